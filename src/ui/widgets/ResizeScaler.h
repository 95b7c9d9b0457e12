#pragma once

#include <QFont>
#include <QPointer>
#include <QRect>
#include <vector>

class QWidget;

/// Scales the controls of a window with the window: the first resize records where they stand, each later one
/// multiplies what was recorded. Serves windows whose controls stand in no layout; a control that fills the window by
/// itself is left out.
class ResizeScaler
{
public:
    ResizeScaler(QWidget& form, std::vector<const QWidget*> leftOut);

    /// To be called from the window's resizeEvent: SaveSizes the first time, ResizeControls then, nothing while
    /// minimised.
    void FormResized();
    void SaveSizes();
    /// Places, sizes and fonts by the ratio of the window's size to the recorded one. A combo keeps its height; fonts
    /// follow the smaller of the two ratios, so that no text is cut.
    void ResizeControls();

private:
    struct Saved
    {
        QPointer<QWidget> Control;
        QRect Place;
        qreal FontSize;
    };

    QWidget& m_form;
    std::vector<const QWidget*> m_leftOut;
    std::vector<Saved> m_saved;
    QSize m_scale;
};
