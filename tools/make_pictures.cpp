// Paints the background pictures of the two lists.
//
//   make_pictures FOLDER
//
// Two impressions (houses on a hill, a beach) and four hazes. The same pictures come out every time. All are very
// light: black text, pure red and the fixed green must read on every spot of them.

#include <QCoreApplication>
#include <QDir>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <numbers>
#include <random>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize Size{1280, 800};

/// Random numbers that are the same with every library: only the engine is standardised, not the distributions.
class Dice
{
public:
    explicit Dice(unsigned seed) : m_engine(seed) {}
    double Between(double low, double high) { return low + (high - low) * (double(m_engine()) / 4294967296.0); }

private:
    std::mt19937 m_engine;
};

QImage Canvas()
{
    QImage canvas(Size, QImage::Format_RGB32);
    canvas.fill(Qt::white);
    return canvas;
}

void FillGradient(QPainter& painter, const QRectF& area, const QColor& top, const QColor& bottom)
{
    QLinearGradient gradient(area.topLeft(), area.bottomLeft());
    gradient.setColorAt(0, top);
    gradient.setColorAt(1, bottom);
    painter.fillRect(area, gradient);
}

void Blob(QPainter& painter, const QPointF& centre, double radiusX, double radiusY, const QColor& colour)
{
    painter.setBrush(colour);
    painter.drawEllipse(centre, radiusX, radiusY);
}

/// A wavy strip of land from `y` to the lower edge.
void Hill(QPainter& painter, double y, double height, double waves, double phase, const QColor& colour)
{
    QPainterPath path(QPointF(0, Size.height()));
    for (int x = 0; x <= Size.width(); x += 8)
        path.lineTo(x, y - height * std::sin(phase + waves * x / Size.width() * 2 * std::numbers::pi));
    path.lineTo(Size.width(), Size.height());
    painter.fillPath(path, colour);
}

void House(QPainter& painter, const QRectF& body, const QColor& wall, const QColor& roof)
{
    painter.setBrush(wall);
    painter.drawRect(body);
    painter.setBrush(wall.darker(118));
    painter.drawRect(QRectF(body.right(), body.top(), body.width() * 0.28, body.height()));
    painter.setBrush(roof);
    const double rise = body.height() * 0.55;
    const double over = body.width() * 0.10;
    painter.drawPolygon(QPolygonF({{body.left() - over, body.top()},
                                   {body.center().x() - over, body.top() - rise},
                                   {body.right() + body.width() * 0.05, body.top() - rise},
                                   {body.right() + body.width() * 0.28 + over, body.top()}}));
    painter.setBrush(QColor(70, 96, 140));
    const double side = body.width() * 0.17;
    for (const double at : {0.14, 0.67})
        painter.drawRect(QRectF(body.left() + at * body.width(), body.top() + body.height() * 0.22, side, side * 1.25));
    painter.setBrush(QColor(150, 82, 60));
    painter.drawRect(
        QRectF(body.center().x() - side * 0.5, body.bottom() - body.height() * 0.5, side, body.height() * 0.5));
}

void Tree(QPainter& painter, const QPointF& foot, double height, const QColor& leaf)
{
    painter.setBrush(QColor(120, 92, 70));
    painter.drawRect(QRectF(foot.x() - height * 0.04, foot.y() - height * 0.5, height * 0.08, height * 0.5));
    Blob(painter, foot - QPointF(0, height * 0.66), height * 0.27, height * 0.34, leaf);
    Blob(painter, foot - QPointF(height * 0.14, height * 0.52), height * 0.19, height * 0.20, leaf.darker(112));
    Blob(painter, foot - QPointF(-height * 0.15, height * 0.55), height * 0.18, height * 0.20, leaf.lighter(112));
}

QImage HousesScene()
{
    QImage scene = Canvas();
    QPainter painter(&scene);
    painter.setPen(Qt::NoPen);
    FillGradient(painter, QRectF(0, 0, 1280, 480), QColor(120, 172, 226), QColor(252, 226, 188));
    for (const QPointF& at : {QPointF(220, 120), QPointF(560, 70), QPointF(980, 150), QPointF(1180, 80)}) {
        Blob(painter, at, 120, 30, QColor(255, 255, 255, 210));
        Blob(painter, at + QPointF(50, -22), 70, 30, QColor(255, 250, 244, 220));
    }
    Hill(painter, 400, 46, 0.8, 0.4, QColor(140, 168, 196));
    Hill(painter, 450, 40, 1.2, 2.2, QColor(128, 178, 140));
    Hill(painter, 520, 26, 0.7, 1.0, QColor(150, 196, 116));
    Tree(painter, {90, 560}, 250, QColor(86, 146, 86));
    Tree(painter, {640, 530}, 190, QColor(104, 160, 84));
    Tree(painter, {1190, 560}, 280, QColor(92, 150, 92));
    House(painter, {170, 420, 150, 120}, QColor(250, 236, 208), QColor(196, 92, 74));
    House(painter, {390, 440, 130, 104}, QColor(244, 214, 190), QColor(168, 86, 96));
    House(painter, {720, 400, 190, 140}, QColor(252, 244, 226), QColor(206, 112, 70));
    House(painter, {990, 450, 120, 96}, QColor(236, 226, 240), QColor(120, 108, 160));
    Hill(painter, 590, 14, 0.9, 3.0, QColor(170, 204, 108));
    painter.setBrush(QColor(238, 214, 170));
    painter.drawPolygon(QPolygonF({{800, 540}, {840, 540}, {700, 800}, {460, 800}}));
    Dice dice(11);
    const QColor petals[] = {{226, 92, 110}, {246, 190, 70}, {250, 248, 244}, {164, 116, 190}, {238, 130, 90}};
    for (int i = 0; i < 900; ++i) {
        const double y = 610 + 190 * std::sqrt(dice.Between(0, 1));
        const double x = dice.Between(0, 1280);
        const double size = 2 + (y - 600) / 30;
        Blob(painter, {x, y}, size, size * 0.8, petals[int(dice.Between(0, 5))]);
    }
    return scene;
}

void Boat(QPainter& painter, const QPointF& at, double size, const QColor& sail)
{
    painter.setBrush(sail);
    painter.drawPolygon(
        QPolygonF({at + QPointF(0, -size), at + QPointF(size * 0.62, -size * 0.12), at + QPointF(0, -size * 0.12)}));
    painter.setBrush(sail.darker(108));
    painter.drawPolygon(QPolygonF({at + QPointF(-size * 0.06, -size * 0.85), at + QPointF(-size * 0.42, -size * 0.12),
                                   at + QPointF(-size * 0.06, -size * 0.12)}));
    painter.setBrush(QColor(122, 82, 64));
    painter.drawPolygon(QPolygonF({at + QPointF(-size * 0.5, 0), at + QPointF(size * 0.7, 0),
                                   at + QPointF(size * 0.5, size * 0.15), at + QPointF(-size * 0.35, size * 0.15)}));
}

void Parasol(QPainter& painter, const QPointF& foot, double size, const QColor& one, const QColor& other)
{
    painter.setBrush(QColor(150, 120, 96));
    painter.drawRect(QRectF(foot.x() - size * 0.02, foot.y() - size, size * 0.04, size));
    const QRectF hood(foot.x() - size * 0.6, foot.y() - size * 1.25, size * 1.2, size * 0.9);
    for (int i = 0; i < 6; ++i) {
        painter.setBrush(i % 2 == 0 ? one : other);
        painter.drawPie(hood, i * 30 * 16, 30 * 16);
    }
}

QImage BeachScene()
{
    QImage scene = Canvas();
    QPainter painter(&scene);
    painter.setPen(Qt::NoPen);
    FillGradient(painter, QRectF(0, 0, 1280, 330), QColor(134, 190, 236), QColor(255, 232, 206));
    Blob(painter, {1010, 230}, 44, 44, QColor(255, 240, 190));
    for (const QPointF& at : {QPointF(180, 90), QPointF(520, 140), QPointF(860, 70)}) {
        Blob(painter, at, 130, 26, QColor(255, 255, 255, 210));
        Blob(painter, at + QPointF(-40, -18), 70, 26, QColor(255, 246, 240, 220));
    }
    FillGradient(painter, QRectF(0, 320, 1280, 280), QColor(74, 136, 190), QColor(126, 204, 204));
    Dice dice(23);
    for (int i = 0; i < 420; ++i) {
        const double depth = dice.Between(0, 1);
        const QColor glint = i % 3 == 0 ? QColor(236, 248, 250) : QColor(96, 166, 204);
        Blob(painter, {dice.Between(0, 1280), 328 + depth * 230}, 14 + 36 * depth, 1.5 + 3 * depth, glint);
    }
    Boat(painter, {330, 380}, 84, QColor(255, 252, 246));
    Boat(painter, {760, 352}, 46, QColor(252, 226, 200));
    Boat(painter, {940, 410}, 110, QColor(246, 150, 120));
    Hill(painter, 568, 12, 1.3, 0.5, QColor(250, 252, 252));
    Hill(painter, 588, 14, 1.2, 0.9, QColor(226, 200, 150));
    Hill(painter, 612, 16, 1.1, 1.3, QColor(244, 222, 176));
    Parasol(painter, {260, 690}, 120, QColor(226, 88, 84), QColor(255, 250, 240));
    Parasol(painter, {610, 660}, 86, QColor(70, 136, 190), QColor(252, 232, 150));
    Blob(painter, {330, 706}, 70, 12, QColor(96, 150, 190));
    Blob(painter, {664, 672}, 46, 8, QColor(226, 120, 110));
    for (int i = 0; i < 260; ++i) {
        const double x = dice.Between(880, 1280);
        const double tall = dice.Between(40, 120) * (x - 820) / 400;
        const QPointF foot(x, 760 + dice.Between(-30, 50));
        painter.setPen(QPen(QColor(128 + int(dice.Between(0, 50)), 160, 92), 4));
        painter.drawLine(foot, foot + QPointF(dice.Between(-30, 10), -tall));
    }
    return scene;
}

/// Paints `scene` anew with brush strokes, broad ones below and fine ones above, that follow a slow swirl.
QImage Impression(const QImage& scene, unsigned seed)
{
    QImage picture = scene;
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    Dice dice(seed);
    for (const double length : {46.0, 26.0, 15.0}) {
        const double step = length * 0.34;
        for (double gridY = 0; gridY < Size.height(); gridY += step) {
            for (double gridX = 0; gridX < Size.width(); gridX += step) {
                const double x = std::clamp(gridX + dice.Between(-step, step), 0.0, Size.width() - 1.0);
                const double y = std::clamp(gridY + dice.Between(-step, step), 0.0, Size.height() - 1.0);
                const QColor seen = scene.pixelColor(int(x), int(y));
                const auto jitter = [&](int value) { return std::clamp(value + int(dice.Between(-18, 18)), 0, 255); };
                const double swirl =
                    0.6 * std::sin(x / 210) + 0.5 * std::sin(y / 130 + x / 400) + dice.Between(-0.3, 0.3);
                const QPointF along(length / 2 * std::cos(swirl), length / 2 * std::sin(swirl));
                painter.setPen(QPen(QColor(jitter(seen.red()), jitter(seen.green()), jitter(seen.blue()), 150),
                                    length * 0.26, Qt::SolidLine, Qt::RoundCap));
                painter.drawLine(QPointF(x, y) - along, QPointF(x, y) + along);
            }
        }
    }
    return picture;
}

/// Soft clouds of one tint.
QImage Haze(const QColor& tint, unsigned seed)
{
    QImage picture = Canvas();
    QPainter painter(&picture);
    painter.setPen(Qt::NoPen);
    FillGradient(painter, QRectF(QPointF(), Size), tint.lighter(150), tint);
    Dice dice(seed);
    for (int i = 0; i < 70; ++i) {
        const QPointF centre(dice.Between(-100, 1380), dice.Between(-100, 900));
        const double radius = dice.Between(120, 360);
        QRadialGradient cloud(centre, radius);
        QColor colour = i % 2 == 0 ? QColor(Qt::white) : tint.darker(108);
        colour.setAlpha(int(dice.Between(30, 90)));
        cloud.setColorAt(0, colour);
        colour.setAlpha(0);
        cloud.setColorAt(1, colour);
        painter.setBrush(cloud);
        painter.drawEllipse(centre, radius, radius);
    }
    return picture;
}

/// Mixes `picture` with white; `share` of white from 0 to 1.
QImage Lighten(QImage picture, double share)
{
    QPainter painter(&picture);
    painter.setOpacity(share);
    painter.fillRect(picture.rect(), Qt::white);
    return picture;
}

void Save(const QImage& picture, const QDir& folder, const QString& name)
{
    if (!picture.save(folder.filePath(name), "JPG", 88))
        throw std::runtime_error("cannot write " + folder.filePath(name).toStdString());
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    if (argc != 2) {
        std::fputs("usage: make_pictures FOLDER\n", stderr);
        return 2;
    }
    try {
        const QDir folder(QCoreApplication::arguments().at(1));
        if (!folder.mkpath("."_L1))
            throw std::runtime_error("cannot make the folder");
        Save(Lighten(Impression(HousesScene(), 1), 0.80), folder, "Impressionist1.jpg"_L1);
        Save(Lighten(Impression(BeachScene(), 2), 0.80), folder, "Impressionist2.jpg"_L1);
        Save(Lighten(Haze(QColor(150, 190, 240), 3), 0.62), folder, "HazeBlue.jpg"_L1);
        Save(Lighten(Haze(QColor(240, 160, 160), 4), 0.66), folder, "HazeRed.jpg"_L1);
        Save(Lighten(Haze(QColor(250, 200, 110), 5), 0.62), folder, "HazeYellow.jpg"_L1);
        Save(Lighten(Haze(QColor(150, 220, 160), 6), 0.64), folder, "HazeGreen.jpg"_L1);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "make_pictures: %s\n", error.what());
        return 1;
    }
    return 0;
}
