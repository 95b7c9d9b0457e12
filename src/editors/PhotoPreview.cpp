#include "editors/PhotoPreview.h"

#include "ui/widgets/Pictures.h"

#include <QFileInfo>
#include <QImageReader>
#include <QPainter>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr qint64 megapixel = 1'000'000;
constexpr qint64 mostScaled = 24 * megapixel;
constexpr qint64 mostWhole = 8 * megapixel;

/// While the person runs down the list nothing is read.
constexpr auto rest = 60ms;

constexpr int iconSize = 32;

} // namespace

QImage ReadPhoto(const QString& path, QSize room)
{
    // A pipe or a device would be waited for.
    if (path.isEmpty() || !QFileInfo(path).isFile() || room.isEmpty())
        return {};
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    const QSize size = reader.size();
    if (size.isEmpty())
        return {};
    const bool scales = reader.supportsOption(QImageIOHandler::ScaledSize);
    if (qint64{size.width()} * size.height() > (scales ? mostScaled : mostWhole))
        return {};
    // What the camera turned is turned when it is read: its sides change places then.
    const bool turned = reader.transformation().testFlag(QImageIOHandler::TransformationRotate90);
    const QSize within = turned ? room.transposed() : room;
    if (size.width() > within.width() || size.height() > within.height())
        reader.setScaledSize(size.scaled(within, Qt::KeepAspectRatio).expandedTo({1, 1}));
    return reader.read();
}

PhotoPreview::PhotoPreview(QWidget* parent) : QWidget(parent)
{
    setObjectName(u"Photo"_s);
    setAccessibleName(u"Photo"_s);
    m_reading.setSingleShot(true);
    m_reading.setInterval(rest);
    connect(&m_reading, &QTimer::timeout, this, &PhotoPreview::Read);
}

void PhotoPreview::SetFile(const QString& path)
{
    m_path = path;
    m_photo = {};
    setAccessibleDescription({});
    if (path.isEmpty())
        m_reading.stop();
    else
        m_reading.start();
    update();
}

void PhotoPreview::Read()
{
    m_photo = ReadPhoto(m_path, size() * devicePixelRatioF());
    m_photo.setDevicePixelRatio(devicePixelRatioF());
    setAccessibleDescription(m_photo.isNull() ? u"The photo cannot be shown here."_s : m_path);
    update();
}

QSize PhotoPreview::sizeHint() const
{
    return {200, 150};
}

void PhotoPreview::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    if (!m_path.isEmpty())
        m_reading.start();
}

void PhotoPreview::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    if (!m_photo.isNull()) {
        const QSize shown = m_photo.deviceIndependentSize().toSize();
        painter.drawImage((width() - shown.width()) / 2, (height() - shown.height()) / 2, m_photo);
        return;
    }
    QColor frame = palette().color(QPalette::WindowText);
    frame.setAlphaF(0.2F);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(frame);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
    painter.setOpacity(0.45);
    const QPixmap icon = Pictures::Pixmap(u"camera"_s, {iconSize, iconSize}, devicePixelRatioF());
    painter.drawPixmap((width() - iconSize) / 2, height() / 2 - iconSize, icon);
    painter.setOpacity(0.75);
    painter.setPen(palette().color(QPalette::WindowText));
    const bool waiting = m_reading.isActive();
    const QString words = m_path.isEmpty() ? u"No photo"_s : waiting ? QString() : u"The photo can't be\nshown here"_s;
    painter.drawText(rect().adjusted(4, height() / 2 + 4, -4, -4), Qt::AlignHCenter | Qt::AlignTop, words);
}
