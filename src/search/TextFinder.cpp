#include "search/TextFinder.h"

#include <algorithm>

namespace {

constexpr char16_t FirstBeyondAscii = 0x80;
constexpr char16_t CaseBit = 0x20;

bool IsPlainLetter(char16_t unit)
{
    const char16_t lower = unit | CaseBit;
    return lower >= u'a' && lower <= u'z';
}

bool IsAscii(QStringView text)
{
    char16_t all = 0;
    for (const char16_t* unit = text.utf16(); unit != text.utf16() + text.size(); ++unit)
        all |= *unit;
    return all < FirstBeyondAscii;
}

} // namespace

TextFinder::TextFinder(const QString& find, Qt::CaseSensitivity sensitivity)
    : m_matcher(find, sensitivity), m_ignoresCase(sensitivity == Qt::CaseInsensitive)
{
    m_byUnits = !m_ignoresCase || IsAscii(find);
    for (const QChar letter : find) {
        const bool folds = m_ignoresCase && IsPlainLetter(letter.unicode());
        m_caseBits += folds ? CaseBit : u'\0';
        m_units += folds ? static_cast<char16_t>(letter.unicode() | CaseBit) : letter.unicode();
    }
}

bool TextFinder::IsIn(const QString& text) const
{
    if (m_units.empty())
        return !text.isEmpty();
    // Letters fold one for one, so a longer text cannot be found in a shorter one.
    if (static_cast<size_t>(text.size()) < m_units.size())
        return false;
    if (m_byUnits && IsInUnits(text))
        return true;
    // A letter outside the plain ones may still be a plain one in another case (the sign of the Kelvin is a "k").
    return m_ignoresCase && !(m_byUnits && IsAscii(text)) && m_matcher.indexIn(text) >= 0;
}

bool TextFinder::IsInUnits(QStringView text) const
{
    const size_t length = m_units.size();
    const char16_t* const units = m_units.data();
    const char16_t* const bits = m_caseBits.data();
    const char16_t first = units[0];
    const char16_t firstBit = bits[0];
    const char16_t* const behindLast = text.utf16() + (static_cast<size_t>(text.size()) - length) + 1;
    for (const char16_t* start = text.utf16(); start != behindLast; ++start) {
        if ((*start | firstBit) != first)
            continue;
        size_t same = 1;
        while (same < length && (start[same] | bits[same]) == units[same])
            ++same;
        if (same == length)
            return true;
    }
    return false;
}
