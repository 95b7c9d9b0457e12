#include "letters/word/Range.h"

#include "letters/word/Errors.h"
#include "letters/word/Story.h"

namespace Word {

Range::Range(Story& story, qsizetype start, qsizetype end) : m_story(&story), m_start(start), m_end(end)
{
    if (start < 0 || end < start || end > story.Length())
        throw RunTimeError(Error::ValueOutOfRange, QStringLiteral("Value out of range"));
}

QString Range::Text() const
{
    return m_story->Text(m_start, m_end);
}

void Range::SetText(const QString& text)
{
    Delete();
    m_end = m_story->Insert(m_start, text, false);
}

void Range::SetBold(bool bold)
{
    m_story->SetBold(m_start, m_end, bold);
}

void Range::Delete()
{
    m_story->Delete(m_start, m_end);
    m_end = m_start;
}

} // namespace Word
