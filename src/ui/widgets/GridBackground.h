#pragma once

#include <QPixmap>
#include <QString>

class QWidget;

/// The picture behind a grid's rows: it covers the viewport, under a wash of the palette's base through which text
/// stays readable.
class GridBackground
{
public:
    /// "" or an unreadable file shows none.
    void Load(const QString& path);
    [[nodiscard]] bool IsShown() const { return !m_picture.isNull(); }
    void Paint(QWidget& viewport);

private:
    QPixmap m_picture;
    QPixmap m_covering;
};
