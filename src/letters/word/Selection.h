#pragma once

#include <QString>

namespace Word {

class Document;
class Range;

struct Font
{
    bool Bold = false;
};

/// Where typing goes on in a document: at first the start of its text, then behind what was put in. It only ever moves
/// by what is put in or taken away.
class Selection
{
public:
    explicit Selection(Document& document) : m_document(&document) {}

    /// How the next text and the next field look.
    Word::Font Font;

    /// Types a text; each CR LF, CR or LF in it ends a paragraph, 11 breaks a line, 9 is a tab, 12 breaks the page.
    void TypeText(const QString& text);
    void TypeParagraph();
    /// The insertion point, as an empty range.
    [[nodiscard]] Word::Range Range() const;

private:
    friend class MailMergeFields;
    /// Between the start of the text and its last mark.
    [[nodiscard]] qsizetype Position() const;

    Document* m_document;
    qsizetype m_position = 0;
};

} // namespace Word
