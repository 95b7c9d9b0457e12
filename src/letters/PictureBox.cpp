#include "letters/PictureBox.h"

#include "ui/widgets/Pictures.h"

#include <QFocusEvent>
#include <QPainter>

namespace {

constexpr QSize PictureSize(24, 24);
constexpr int Padding = 6;
constexpr QColor InkOnColor(0x1F, 0x2A, 0x38);
constexpr QColor PaleInk(0xA8, 0xB0, 0xBC);

} // namespace

PictureBox::PictureBox(QWidget* parent) : HoverButton(parent)
{
    // A press leaves the focus, and with it the caret of the letter, where it is.
    SetTakesFocus(false);
    connect(this, &HoverButton::Hovered, this, [this](int, bool lit) {
        if (lit)
            Q_EMIT MouseMoveOver();
    });
}

void PictureBox::SetWords(const QString& words)
{
    setAccessibleName(words);
    setToolTip(words);
}

void PictureBox::SetBackColor(const QColor& color)
{
    m_backColor = color;
    update();
}

QSize PictureBox::sizeHint() const
{
    return PictureSize + QSize(2 * Padding, 2 * Padding);
}

QPixmap PictureBox::OnBackColor() const
{
    QPixmap picture = Pictures::Pixmap(Picture(), PictureSize, devicePixelRatioF());
    QPainter painter(&picture);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(QRect(QPoint(), PictureSize), isEnabled() ? InkOnColor : PaleInk);
    return picture;
}

void PictureBox::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF field = QRectF(rect()).adjusted(2.5, 2.5, -2.5, -2.5);
    painter.setPen(HasBorder() ? QPen(palette().color(QPalette::WindowText), 1) : QPen(Qt::NoPen));
    painter.setBrush(m_backColor.isValid() ? QBrush(m_backColor) : QBrush(Qt::NoBrush));
    painter.drawRoundedRect(field, 4, 4);
    const QPoint corner(Padding + (HasBorder() ? 1 : 0), Padding + (HasBorder() ? 1 : 0));
    if (m_backColor.isValid())
        painter.drawPixmap(corner, OnBackColor());
    else
        painter.drawPixmap(corner, Pictures::Icon(Picture()).pixmap(PictureSize, devicePixelRatioF(),
                                                                    isEnabled() ? QIcon::Normal : QIcon::Disabled));
    DrawFocus(painter);
}

void PictureBox::focusInEvent(QFocusEvent* event)
{
    HoverButton::focusInEvent(event);
    if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason)
        Q_EMIT MouseMoveOver();
}
