#include "core/CodePage.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr char16_t FirstSpecial = 0x80;
constexpr char16_t FirstPlain = 0xA0;

/// The characters of the bytes from 0x80 to 0x9F. The five bytes without one stand for the control of their own number.
constexpr std::array<char16_t, FirstPlain - FirstSpecial> specials{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

/// Letters whose stroke or missing dot is no mark that could be taken off.
constexpr std::array<std::pair<char16_t, char>, 14> strokes{{{u'Ł', 'L'},
                                                             {u'ł', 'l'},
                                                             {u'Đ', 'D'},
                                                             {u'đ', 'd'},
                                                             {u'Ħ', 'H'},
                                                             {u'ħ', 'h'},
                                                             {u'Ŧ', 'T'},
                                                             {u'ŧ', 't'},
                                                             {u'ı', 'i'},
                                                             {u'Ŋ', 'N'},
                                                             {u'ŋ', 'n'},
                                                             {u'ĸ', 'k'},
                                                             {u'Ɓ', 'B'},
                                                             {u'ƀ', 'b'}}};

std::optional<char> ByteOf(QChar character)
{
    const char16_t code = character.unicode();
    if (code < FirstSpecial || (code >= FirstPlain && code <= 0xFF))
        return static_cast<char>(code);
    const auto found = std::ranges::find(specials, code);
    if (found == specials.end())
        return std::nullopt;
    return static_cast<char>(FirstSpecial + (found - specials.begin()));
}

/// What is left of a character that the page lacks when its marks are taken off; "?" where the page lacks that too.
QByteArray BaseOf(QStringView character)
{
    const auto stroke = std::ranges::find(strokes, character.front().unicode(), &std::pair<char16_t, char>::first);
    if (stroke != strokes.end())
        return QByteArray(1, stroke->second);
    QByteArray base;
    for (const QChar part : character.toString().normalized(QString::NormalizationForm_KD)) {
        if (part.isMark())
            continue;
        const std::optional<char> byte = ByteOf(part);
        if (!byte)
            return "?";
        base += *byte;
    }
    return base;
}

} // namespace

QByteArray ToCodePage1252(const QString& text)
{
    // Marks that stand behind their letter join it first: most letters with a mark are in the page.
    const QString composed = text.normalized(QString::NormalizationForm_C);
    QByteArray bytes;
    bytes.reserve(composed.size());
    for (qsizetype i = 0; i < composed.size(); ++i) {
        if (const std::optional<char> byte = ByteOf(composed[i])) {
            bytes += *byte;
            continue;
        }
        const bool pair = composed[i].isHighSurrogate() && i + 1 < composed.size() && composed[i + 1].isLowSurrogate();
        bytes += BaseOf(QStringView(composed).mid(i, pair ? 2 : 1));
        i += pair ? 1 : 0;
    }
    return bytes;
}

QString FromCodePage1252(const QByteArray& bytes)
{
    QString text = QString::fromLatin1(bytes);
    for (QChar& character : text) {
        if (character.unicode() >= FirstSpecial && character.unicode() < FirstPlain)
            character = QChar(specials[character.unicode() - FirstSpecial]);
    }
    return text;
}
