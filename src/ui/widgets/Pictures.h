#pragma once

#include <QIcon>
#include <QPixmap>
#include <QSize>
#include <QString>

/// The pictures of the program by name, drawn from one SVG each (:/icons). A name is first taken as it is written, then
/// without case. A name that ends in "High" or "Low" and has no drawing of its own is derived from the plain picture:
/// lit with a soft field of the accent colour, or darkened and pressed by one pixel. Every size and screen gets its own
/// sharp rendering, which is kept; on a dark palette the accent lines are drawn in its lighter accent. An unknown name
/// gives an empty picture and a warning.
class Pictures
{
public:
    [[nodiscard]] static bool Has(const QString& name);
    [[nodiscard]] static QIcon Icon(const QString& name);
    /// `size` in device-independent pixels, rendered for a screen of `ratio`.
    [[nodiscard]] static QPixmap Pixmap(const QString& name, QSize size, qreal ratio = 1);
};
