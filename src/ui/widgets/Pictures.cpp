#include "ui/widgets/Pictures.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QHash>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QStyle>
#include <QStyleOption>
#include <QSvgRenderer>
#include <QtDebug>

using namespace Qt::StringLiterals;

namespace {

enum class Shade
{
    Plain,
    High,
    Low,
    OnAccent ///< for a highlighted row: its lines in the colour of the text there
};

struct Drawing
{
    QString File;
    Shade How = Shade::Plain;
};

/// Capitals come first, so that of two names that differ by case alone the capitalised one answers to any spelling.
const QStringList& Files()
{
    static const QStringList files = QDir(u":/icons"_s).entryList({u"*.svg"_s}, QDir::Files, QDir::Name);
    return files;
}

QString FileOf(QStringView name)
{
    const QString wanted = name.toString() + ".svg"_L1;
    if (Files().contains(wanted))
        return wanted;
    for (const QString& file : Files())
        if (file.compare(wanted, Qt::CaseInsensitive) == 0)
            return file;
    return {};
}

Drawing Find(const QString& name)
{
    if (const QString file = FileOf(name); !file.isEmpty())
        return {file, Shade::Plain};
    if (name.endsWith("High"_L1, Qt::CaseInsensitive))
        return {FileOf(QStringView(name).chopped(4)), Shade::High};
    if (name.endsWith("Low"_L1, Qt::CaseInsensitive))
        return {FileOf(QStringView(name).chopped(3)), Shade::Low};
    return {};
}

bool IsDark()
{
    return QGuiApplication::palette().color(QPalette::Window).lightness() < 128;
}

QImage Render(const QString& file, Shade how, QSize size)
{
    QFile source(u":/icons/"_s + file);
    QByteArray drawing;
    if (source.open(QIODevice::ReadOnly))
        drawing = source.readAll();
    if (how == Shade::OnAccent) {
        const QColor line = QGuiApplication::palette().color(QPalette::Active, QPalette::HighlightedText);
        const QColor ground = QGuiApplication::palette().color(QPalette::Active, QPalette::Highlight);
        // A white line on a field of the accent takes the accent's colour: the field takes that of the text.
        if (drawing.contains("fill=\"#2F6DB5\""))
            drawing.replace("stroke=\"#FFFFFF\"", "stroke=\"" + ground.name().toLatin1() + '"');
        drawing.replace("#2F6DB5", line.name().toLatin1()).replace("#76839A", line.name().toLatin1());
    } else if (IsDark())
        drawing.replace("#2F6DB5", "#6FA8E8").replace("#76839A", "#A9B4C6");
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    QSvgRenderer(drawing).render(&painter);
    return image;
}

/// Lets a colour fall on what is painted of the picture, and on nothing else.
void Tint(QImage& image, const QColor& color)
{
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_SourceAtop);
    painter.fillRect(image.rect(), color);
}

QPixmap Draw(const Drawing& drawing, QSize size, qreal ratio)
{
    const QSize pixels = size * ratio;
    QImage picture = Render(drawing.File, drawing.How, pixels);
    if (drawing.How == Shade::High || drawing.How == Shade::Low) {
        Tint(picture, drawing.How == Shade::High ? QColor(255, 255, 255, 50) : QColor(0, 0, 0, IsDark() ? 30 : 90));
        QImage whole(pixels, QImage::Format_ARGB32_Premultiplied);
        whole.fill(Qt::transparent);
        QPainter painter(&whole);
        painter.setRenderHint(QPainter::Antialiasing);
        QColor field = QGuiApplication::palette().color(QPalette::Highlight);
        field.setAlpha(drawing.How == Shade::High ? 48 : 84);
        painter.setPen(Qt::NoPen);
        painter.setBrush(field);
        painter.drawRoundedRect(QRectF(whole.rect()), 5 * ratio, 5 * ratio);
        const int shift = drawing.How == Shade::Low ? qRound(ratio) : 0;
        painter.drawImage(shift, shift, picture);
        painter.end();
        picture = whole;
    }
    QPixmap pixmap = QPixmap::fromImage(picture);
    pixmap.setDevicePixelRatio(ratio);
    return pixmap;
}

/// The drawing in this size, from the cache where it was drawn before.
QPixmap Cached(const QString& name, const Drawing& drawing, QSize size, qreal ratio)
{
    if (drawing.File.isEmpty()) {
        qWarning("No picture is called \"%s\".", qUtf8Printable(name));
        return {};
    }
    const QString key = u"%1/%2/%3x%4@%5/%6"_s.arg(drawing.File)
                            .arg(static_cast<int>(drawing.How))
                            .arg(size.width())
                            .arg(size.height())
                            .arg(ratio)
                            .arg(QGuiApplication::palette().color(QPalette::Window).rgba());
    QPixmap pixmap;
    if (!QPixmapCache::find(key, &pixmap)) {
        pixmap = Draw(drawing, size, ratio);
        QPixmapCache::insert(key, pixmap);
    }
    return pixmap;
}

/// An icon that asks for its picture anew at each size, so that it is sharp everywhere and follows the palette.
class PictureEngine final : public QIconEngine
{
public:
    explicit PictureEngine(QString name) : m_name(std::move(name)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override
    {
        const qreal ratio = painter->device()->devicePixelRatioF();
        painter->drawPixmap(rect, scaledPixmap(rect.size() * ratio, mode, state, ratio));
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        return scaledPixmap(size, mode, state, 1);
    }
    /// `size` is in pixels of the device here.
    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State, qreal scale) override
    {
        Drawing drawing = Find(m_name);
        if (mode == QIcon::Selected && drawing.How == Shade::Plain)
            drawing.How = Shade::OnAccent;
        const QPixmap plain = Cached(m_name, drawing, size / scale, scale);
        if (mode != QIcon::Disabled)
            return plain;
        QStyleOption option;
        option.palette = QGuiApplication::palette();
        return QApplication::style()->generatedIconPixmap(mode, plain, &option);
    }
    QIconEngine* clone() const override { return new PictureEngine(m_name); }
    QString key() const override { return u"orvantine"_s; }

private:
    QString m_name;
};

} // namespace

bool Pictures::Has(const QString& name)
{
    return !Find(name).File.isEmpty();
}

QIcon Pictures::Icon(const QString& name)
{
    static QHash<QString, QIcon> icons;
    const auto known = icons.constFind(name);
    if (known != icons.constEnd())
        return *known;
    const bool there = Has(name);
    if (!there)
        qWarning("No picture is called \"%s\".", qUtf8Printable(name));
    return *icons.insert(name, there ? QIcon(new PictureEngine(name)) : QIcon());
}

QPixmap Pictures::Pixmap(const QString& name, QSize size, qreal ratio)
{
    return Cached(name, Find(name), size, ratio);
}
