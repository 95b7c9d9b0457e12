#include "ui/widgets/GridBackground.h"

#include <QPainter>
#include <QWidget>

namespace {

// Of 255: how much of the palette's base lies over the picture.
constexpr int LightWash = 165;
constexpr int DarkWash = 228;

} // namespace

void GridBackground::Load(const QString& path)
{
    m_picture = path.isEmpty() ? QPixmap() : QPixmap(path);
    m_covering = {};
}

void GridBackground::Paint(QWidget& viewport)
{
    if (!IsShown())
        return;
    const qreal ratio = viewport.devicePixelRatioF();
    const QSize size = viewport.size() * ratio;
    if (m_covering.size() != size) {
        const QPixmap scaled = m_picture.scaled(size, Qt::KeepAspectRatioByExpanding, Qt::SmoothTransformation);
        QRect middle(QPoint(), size);
        middle.moveCenter(scaled.rect().center());
        m_covering = scaled.copy(middle);
        m_covering.setDevicePixelRatio(ratio);
    }
    QPainter painter(&viewport);
    painter.drawPixmap(0, 0, m_covering);
    QColor wash = viewport.palette().color(QPalette::Base);
    wash.setAlpha(wash.lightness() < 128 ? DarkWash : LightWash);
    painter.fillRect(viewport.rect(), wash);
}
