#include "ui/widgets/HoverButton.h"

#include "ui/widgets/Pictures.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPointer>

using namespace Qt::StringLiterals;

namespace {

constexpr int Padding = 5;
constexpr int Gap = 4;
constexpr QSize PictureSize(28, 28);

} // namespace

HoverButton::HoverButton(QWidget* parent) : QAbstractButton(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setMouseTracking(true);
    connect(this, &QAbstractButton::clicked, this, [this] { Q_EMIT Click(m_index); });
}

void HoverButton::SetPicture(const QString& name)
{
    m_picture = name;
    updateGeometry();
    update();
}

void HoverButton::SetCaption(const QString& caption)
{
    setText(caption);
    const QString words = QString(caption).remove(u'&');
    setAccessibleName(words);
    setToolTip(words);
    updateGeometry();
}

void HoverButton::SetCaptionBeside(bool beside)
{
    m_captionBeside = beside;
    updateGeometry();
    update();
}

void HoverButton::SetLit(bool lit)
{
    if (m_lit == lit)
        return;
    m_lit = lit;
    update();
    Q_EMIT Hovered(m_index, lit);
}

QSize HoverButton::sizeHint() const
{
    const QSize picture = m_picture.isEmpty() ? QSize(0, 0) : PictureSize;
    const QFontMetrics metrics(font());
    const QSize caption = text().isEmpty() ? QSize(0, 0) : metrics.size(Qt::TextShowMnemonic, text()) + QSize(2, 0);
    const int gap = picture.isEmpty() || caption.isEmpty() ? 0 : Gap;
    const QSize inner = m_captionBeside
                            ? QSize(picture.width() + gap + caption.width(), qMax(picture.height(), caption.height()))
                            : QSize(qMax(picture.width(), caption.width()), picture.height() + gap + caption.height());
    return inner + QSize(2 * Padding, 2 * Padding);
}

QPixmap HoverButton::CurrentPixmap() const
{
    if (!isEnabled())
        return Pictures::Icon(m_picture).pixmap(PictureSize, devicePixelRatioF(), QIcon::Disabled);
    const QString form = isDown() ? u"Low"_s : m_lit ? u"High"_s : QString();
    return Pictures::Pixmap(m_picture + form, PictureSize, devicePixelRatioF());
}

void HoverButton::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRect inner = rect().adjusted(Padding, Padding, -Padding, -Padding);
    QRect caption = inner;
    if (!m_picture.isEmpty()) {
        QRect picture(inner.topLeft(), PictureSize);
        if (m_captionBeside) {
            picture.moveTop(inner.center().y() - picture.height() / 2 + 1);
            caption.setLeft(picture.right() + 1 + Gap);
        } else {
            picture.moveLeft(inner.left() + (inner.width() - picture.width()) / 2);
            caption.setTop(picture.bottom() + 1 + Gap);
        }
        painter.drawPixmap(picture, CurrentPixmap());
    }
    const bool active = isEnabled() && (m_lit || isDown());
    painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled,
                                   active ? QPalette::Link : QPalette::WindowText));
    painter.drawText(caption,
                     (m_captionBeside ? Qt::AlignLeft : Qt::AlignHCenter) | Qt::AlignVCenter | Qt::TextShowMnemonic,
                     text());
    DrawFocus(painter);
}

void HoverButton::DrawFocus(QPainter& painter) const
{
    if (!hasFocus())
        return;
    painter.setPen(QPen(palette().color(QPalette::Active, QPalette::Highlight), 1.5));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 5, 5);
}

void HoverButton::changeEvent(QEvent* event)
{
    QAbstractButton::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::PaletteChange)
        updateGeometry();
    if (event->type() == QEvent::EnabledChange && !isEnabled())
        SetLit(false);
}

void HoverButton::enterEvent(QEnterEvent* event)
{
    QAbstractButton::enterEvent(event);
    SetLit(isEnabled());
}

void HoverButton::leaveEvent(QEvent* event)
{
    QAbstractButton::leaveEvent(event);
    SetLit(false);
}

void HoverButton::hideEvent(QHideEvent* event)
{
    QAbstractButton::hideEvent(event);
    SetLit(false);
}

void HoverButton::mouseMoveEvent(QMouseEvent* event)
{
    QAbstractButton::mouseMoveEvent(event);
    SetLit(rect().contains(event->position().toPoint()));
}

void HoverButton::mousePressEvent(QMouseEvent* event)
{
    QAbstractButton::mousePressEvent(event);
    if (event->button() == Qt::LeftButton)
        Q_EMIT MouseDownAt(m_index);
}

void HoverButton::mouseReleaseEvent(QMouseEvent* event)
{
    // The light goes before the click does its work, which may open a window over this one.
    const QPointer<HoverButton> alive(this);
    if (event->button() == Qt::LeftButton) {
        SetLit(false);
        Q_EMIT MouseUpAt(m_index);
    }
    if (!alive.isNull())
        QAbstractButton::mouseReleaseEvent(event);
}

void HoverButton::keyPressEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) {
        QAbstractButton::keyPressEvent(event);
        return;
    }
    event->accept();
    if (!event->isAutoRepeat())
        click();
}
