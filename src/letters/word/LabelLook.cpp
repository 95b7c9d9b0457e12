#include "letters/word/LabelLook.h"

#include "letters/word/LabelSheet.h"
#include "letters/word/Story.h"

#include <QStringList>
#include <algorithm>
#include <array>
#include <cmath>

using namespace Qt::StringLiterals;

namespace Word {

namespace {

/// How wide Times is, in thousandths of its size: from the blank to "~".
constexpr std::array<short, 95> widths{250, 333, 408, 500, 500, 833, 778, 180, 333, 333, 500, 564, 250, 333, 250, 278,
                                       500, 500, 500, 500, 500, 500, 500, 500, 500, 500, 278, 278, 564, 564, 564, 444,
                                       921, 722, 667, 667, 722, 611, 556, 722, 722, 333, 389, 722, 611, 889, 722, 722,
                                       556, 722, 667, 556, 611, 722, 722, 944, 722, 722, 611, 333, 278, 333, 469, 500,
                                       333, 444, 500, 444, 500, 444, 333, 500, 500, 278, 278, 500, 278, 778, 500, 500,
                                       500, 500, 333, 389, 278, 500, 500, 722, 500, 500, 444, 480, 200, 480, 541};

int WidthOf(QStringView text)
{
    constexpr int capital = 722, other = 500;
    int width = 0;
    for (const QChar c : text) {
        if (c >= u' ' && c <= u'~')
            width += widths[static_cast<std::size_t>(c.unicode() - u' ')];
        else
            width += c.isUpper() ? capital : other;
    }
    return width;
}

} // namespace

int Twips(int length)
{
    return static_cast<int>(std::lround(length * 1440.0 / 2540.0));
}

int LineHeight(int halfPoints)
{
    return halfPoints * 12; // 1.2 times the size
}

LabelLook LookOf(const LabelSheet& sheet)
{
    constexpr int lines = 4;
    constexpr int smallest = 10, largest = 22;
    const int height = Twips(sheet.Height);
    const int size = std::clamp(height / LineHeight(lines) - 1, smallest, largest);
    // A third of a centimeter from the edges, less on a narrow label.
    const int indent = Twips(std::min(300, sheet.Width / 20));
    return {size, indent, Twips(sheet.Width) - 2 * indent};
}

int FittingSize(const Story& label, const LabelLook& look)
{
    constexpr int twipsOfHalfPoint = 10;
    const double room = look.Width * 0.98; // another face of these widths may be a trifle wider
    int widest = 1;
    for (const QString& line : label.Text(0, label.Length() - 1).split(u'\r'))
        widest = std::max(widest, WidthOf(line));
    const auto fitting = static_cast<int>(room * 1000 / (static_cast<double>(widest) * twipsOfHalfPoint));
    return std::clamp(fitting, smallestOnLabel, look.HalfPoints);
}

QString LabelStyle(int halfPoints, const LabelLook& look)
{
    return halfPoints == look.HalfPoints ? u"Label"_s : u"Label%1"_s.arg(halfPoints);
}

} // namespace Word
