#include "letters/reports/CaptionLabel.h"

#include "ui/widgets/Theme.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>

CaptionLabel::CaptionLabel(QWidget* parent) : QLabel(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    setMargin(4);
}

void CaptionLabel::RemoveHighlight()
{
    setPalette(QPalette());
}

void CaptionLabel::enterEvent(QEnterEvent* event)
{
    QPalette lit = palette();
    lit.setColor(QPalette::WindowText, Theme::Red);
    setPalette(lit);
    QLabel::enterEvent(event);
}

void CaptionLabel::leaveEvent(QEvent* event)
{
    RemoveHighlight();
    QLabel::leaveEvent(event);
}

void CaptionLabel::keyPressEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Space && event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter)
        QLabel::keyPressEvent(event);
    else if (!event->isAutoRepeat()) // held, the key would answer what it asks for
        Q_EMIT MouseUp();
}

void CaptionLabel::mousePressEvent(QMouseEvent* event)
{
    event->accept(); // or the release would go to the window
}

void CaptionLabel::mouseReleaseEvent(QMouseEvent* event)
{
    if (rect().contains(event->position().toPoint()))
        Q_EMIT MouseUp();
}

void CaptionLabel::paintEvent(QPaintEvent* event)
{
    QLabel::paintEvent(event);
    if (!hasFocus())
        return;
    QPainter painter(this);
    QStyleOptionFocusRect frame;
    frame.initFrom(this);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &frame, &painter, this);
}
