#include "letters/LetterWalk.h"

#include "core/Strings.h"

using namespace Qt::StringLiterals;

namespace {

constexpr auto Opening = "!<"_L1;
constexpr auto Closing = ">!"_L1;

/// Cuts what stands before `mark` off the front of a text, and the mark with it. Raises 5 where the mark is not there.
QString CutBefore(QString& text, QLatin1StringView mark)
{
    const qsizetype position = InStr(text, QString(mark));
    const QString before = Left(text, position - 1);
    text = Mid(text, position + mark.size());
    return before;
}

void Append(QString& list, QChar separator, const QString& name)
{
    if (!list.isEmpty())
        list += separator;
    list += name;
}

} // namespace

bool HasMarkers(const QString& letter)
{
    return letter.contains(Opening);
}

LetterWalk WalkLetter(const QString& letter)
{
    LetterWalk walk;
    QString text = letter;
    while (HasMarkers(text)) {
        walk.Pieces.push_back({false, CutBefore(text, Opening)});
        const QString field = CutBefore(text, Closing);
        if (InStr(walk.Select, u',' + field) == 0) {
            Append(walk.Select, u',', field);
            Append(walk.Header, u'\t', field);
        }
        walk.Pieces.push_back({true, field});
    }
    walk.Pieces.push_back({false, text});
    return walk;
}

std::vector<std::pair<qsizetype, qsizetype>> BoldRanges(const QString& content)
{
    std::vector<std::pair<qsizetype, qsizetype>> ranges;
    for (qsizetype from = 1; from > 0;) {
        const qsizetype start = InStr(from, content, u"<b>");
        if (start == 0)
            break;
        from = InStr(start, content, u"</b>");
        ranges.emplace_back(start, from);
    }
    return ranges;
}
