#include "letters/word/Selection.h"

#include "letters/word/Document.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Word {

qsizetype Selection::Position() const
{
    // The text may have been taken away from under the insertion point.
    return std::min(m_position, m_document->Content().End() - 1);
}

void Selection::TypeText(const QString& text)
{
    m_position = m_document->Content().Whole().Insert(Position(), text, Font.Bold);
}

void Selection::TypeParagraph()
{
    TypeText(u"\r"_s);
}

Word::Range Selection::Range() const
{
    return m_document->Range(Position(), Position());
}

} // namespace Word
