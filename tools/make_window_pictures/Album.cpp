#include "make_window_pictures/Album.h"

#include "make_window_pictures/Stage.h"

#include <QGuiApplication>
#include <QImageWriter>
#include <QMessageBox>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QWidget>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

constexpr int TitleBar = 30;

QPixmap Blank(QSize size, qreal ratio, const QColor& color)
{
    QPixmap pixmap(size * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(color);
    return pixmap;
}

QSize LogicalSize(const QPixmap& pixmap)
{
    return pixmap.deviceIndependentSize().toSize();
}

/// The colour of what lies behind the windows.
QColor DeskColor()
{
    const bool dark = QGuiApplication::palette().color(QPalette::Window).lightness() < 128;
    return dark ? QColor(0x14181D) : QColor(0xB9C4D2);
}

/// A window's picture under a title bar that shows as much of the title as a person would see.
QPixmap UnderTitleBar(const QPixmap& inner, const QString& title)
{
    const QPalette palette = QGuiApplication::palette();
    const QSize size = LogicalSize(inner);
    QPixmap framed = Blank(size + QSize(2, TitleBar + 1), inner.devicePixelRatio(), palette.color(QPalette::Mid));
    QPainter painter(&framed);
    const QRect bar(1, 1, size.width(), TitleBar - 1);
    painter.fillRect(bar, palette.color(QPalette::Window).darker(108));
    painter.setPen(palette.color(QPalette::WindowText));
    const QRect words = bar.adjusted(12, 0, -36, 0);
    painter.drawText(words, Qt::AlignVCenter, painter.fontMetrics().elidedText(title, Qt::ElideRight, words.width()));
    const QPointF cross(bar.right() - 17, bar.center().y());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.drawLine(cross + QPointF(-4, -4), cross + QPointF(4, 4));
    painter.drawLine(cross + QPointF(-4, 4), cross + QPointF(4, -4));
    painter.drawPixmap(1, TitleBar, inner);
    return framed;
}

} // namespace

Album::Album(const QDir& folder, QString scheme, bool smallest)
    : m_folder(folder), m_scheme(std::move(scheme)), m_smallest(smallest)
{}

void Album::Save(const QPixmap& picture, const QString& name) const
{
    QImageWriter writer(m_folder.filePath(u"%1-%2.png"_s.arg(name, m_scheme)));
    writer.setCompression(100);
    if (!writer.write(picture.toImage().convertToFormat(QImage::Format_RGB32)))
        throw std::runtime_error(qPrintable(writer.fileName() + u": "_s + writer.errorString()));
}

void Album::Take(QWidget& window, const QString& name)
{
    const QSize usual = window.size();
    if (m_smallest)
        window.resize(1, 1);
    Settle();
    Save(UnderTitleBar(window.grab(), window.windowTitle()), name);
    window.resize(usual);
}

void Album::TakeWithPopup(QWidget& window, QWidget& popup, const QString& name)
{
    Settle();
    const QPixmap below = window.grab();
    const QPixmap above = popup.grab();
    const QRect place(popup.geometry().topLeft() - window.geometry().topLeft(), LogicalSize(above));
    const QRect whole = place.united(QRect(QPoint(0, 0), LogicalSize(below)));
    QPixmap both = Blank(whole.size(), below.devicePixelRatio(), DeskColor());
    QPainter painter(&both);
    painter.translate(-whole.topLeft());
    painter.drawPixmap(0, 0, below);
    painter.drawPixmap(place.topLeft(), above);
    painter.end();
    Save(both, name);
}

void Album::TakeDesk(const QList<std::pair<QWidget*, QPoint>>& windows, QSize desk, const QString& name)
{
    Settle();
    QPixmap picture = Blank(desk, windows.first().first->devicePixelRatioF(), DeskColor());
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    for (const auto& [window, place] : windows) {
        const QPixmap framed = UnderTitleBar(window->grab(), window->windowTitle());
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(0, 0, 0, 7));
        for (int reach = 2; reach <= 12; reach += 2)
            painter.drawRoundedRect(QRect(place, LogicalSize(framed)).adjusted(-reach, 4 - reach, reach, 4 + reach),
                                    reach, reach);
        painter.drawPixmap(place, framed);
    }
    painter.end();
    Save(picture, name);
}
