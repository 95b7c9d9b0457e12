#include "core/adodb/RawBreaks.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace {

struct SectionKind
{
    QByteArrayView Begin;
    QByteArrayView End;
};
constexpr std::array sections{SectionKind{"!--", "-->"}, SectionKind{"![CDATA[", "]]>"}, SectionKind{"?", "?>"}};

constexpr qint64 blockSize = 1 << 16;
constexpr int mostValuesOfATag = 10'000;

} // namespace

RawBreaks::RawBreaks(QIODevice& source) : m_source(source)
{
    open(ReadOnly | Unbuffered);
}

qint64 RawBreaks::readData(char* data, qint64 most)
{
    while (m_mended.isEmpty()) {
        if (m_place == Place::Over)
            return 0;
        const QByteArray block = m_source.read(blockSize);
        if (block.isEmpty())
            return m_source.atEnd() ? 0 : -1;
        Mend(block);
    }
    const qint64 taken = std::min<qint64>(most, m_mended.size());
    std::memcpy(data, m_mended.constData(), static_cast<size_t>(taken));
    m_mended.remove(0, taken);
    return taken;
}

void RawBreaks::Mend(const QByteArray& block)
{
    m_mended.reserve(block.size() + block.size() / 4);
    for (const char sign : block)
        Step(sign);
}

void RawBreaks::Step(char sign)
{
    switch (m_place) {
    case Place::Front:
        if (sign == ' ' || sign == '\t' || sign == '\r' || sign == '\n' || sign == '\xEF' || sign == '\xBB' ||
            sign == '\xBF')
            return;
        m_place = Place::Text;
        [[fallthrough]];
    case Place::Text:
        if (sign == '<') {
            m_place = Place::Markup;
            m_begun.clear();
            m_values = 0;
        }
        break;
    case Place::Markup: {
        m_begun += sign;
        const auto begins = [this](const SectionKind& kind) { return kind.Begin.startsWith(m_begun); };
        const auto* kind = std::ranges::find_if(sections, begins);
        if (kind != sections.end()) {
            if (m_begun.size() == kind->Begin.size()) {
                m_place = Place::Section;
                m_end = kind->End.toByteArray();
                m_last.clear();
            }
            break;
        }
        m_place = Place::Tag;
        [[fallthrough]];
    }
    case Place::Tag:
        if (sign == '>')
            m_place = Place::Text;
        if (sign == '"' || sign == '\'') {
            m_place = ++m_values > mostValuesOfATag ? Place::Over : Place::Quoted;
            m_quote = sign;
        }
        break;
    case Place::Quoted:
        if (sign == m_quote) {
            m_place = Place::Tag;
        } else if (sign == '\r' || sign == '\n' || sign == '\t') {
            m_mended += sign == '\r' ? "&#xd;" : sign == '\n' ? "&#xa;" : "&#x9;";
            return;
        }
        break;
    case Place::Section:
        m_last += sign;
        if (m_last.size() > m_end.size())
            m_last.remove(0, 1);
        if (m_last == m_end)
            m_place = Place::Text;
        break;
    case Place::Over:
        return;
    }
    m_mended += sign;
}
