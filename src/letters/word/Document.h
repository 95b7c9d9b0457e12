#pragma once

#include "letters/word/LabelSheet.h"
#include "letters/word/MailMerge.h"
#include "letters/word/Range.h"
#include "letters/word/Selection.h"
#include "letters/word/Story.h"

#include <QString>
#include <memory>
#include <optional>
#include <vector>

namespace Word {

class Application;

/// The header or the footer of a section.
class HeaderFooter
{
public:
    /// Its text; from the first look on it is there, be it empty.
    [[nodiscard]] Word::Range Range();
    /// Null where nobody touched it.
    [[nodiscard]] const Story* Content() const { return m_story ? &*m_story : nullptr; }

private:
    std::optional<Story> m_story;
};

/// A part of a document that starts on a page of its own, with its own header and footer.
class Section
{
public:
    /// Only the primary ones exist: 1, else 5941 is raised.
    [[nodiscard]] HeaderFooter& Headers(int which);
    [[nodiscard]] HeaderFooter& Footers(int which);
    [[nodiscard]] const HeaderFooter& Header() const { return m_header; }
    [[nodiscard]] const HeaderFooter& Footer() const { return m_footer; }

    /// This section with another text.
    [[nodiscard]] Section WithBody(Story body) const;

    Story Body;

private:
    HeaderFooter m_header;
    HeaderFooter m_footer;
};

/// How a new document is named, before its number.
enum class DocumentKind
{
    Document,
    FormLetters,
    Labels
};

/// The sheets of a label document. `Labels` run row by row from the left; as many sheets as they need follow each
/// other, and places that are left over stay empty.
struct LabelPages
{
    LabelSheet Sheet;
    /// The printer's paper source; 4 is feeding by hand.
    int LaserTray = 0;
    std::vector<Story> Labels;
};

/// One document. It has one section at first; its text is that of the first section.
class Document
{
public:
    Document(Application& application, DocumentKind kind);
    Document(const Document&) = delete;
    Document& operator=(const Document&) = delete;

    [[nodiscard]] DocumentKind Kind() const { return m_kind; }
    /// All text of the first section.
    [[nodiscard]] Word::Range Content();
    /// By positions from 0, the end left out. Raises 4608 for an end before the start or behind the text.
    [[nodiscard]] Word::Range Range(qsizetype start, qsizetype end);
    [[nodiscard]] Word::Selection& Selection() { return m_selection; }
    [[nodiscard]] Word::MailMerge& MailMerge() { return m_mailMerge; }
    /// By position from 1. Raises 5941 past the end.
    [[nodiscard]] Section& Sections(int index);

    /// Closes the document, and keeps nothing of it where changes are not saved. A new document has no file to save
    /// them in, so they are lost either way.
    void Close(bool saveChanges = true);
    [[nodiscard]] bool IsClosed() const { return m_closed; }

    /// Writes it as an Office Open XML document (.docx) under a path that does not exist yet. Raises 75 where that
    /// cannot be done, and leaves nothing there.
    void SaveAs(const QString& path) const;

    // What the writer reads and a merge fills.
    std::vector<std::unique_ptr<Section>> AllSections;
    std::optional<LabelPages> LabelSheets;

private:
    DocumentKind m_kind;
    bool m_closed = false;
    Word::Selection m_selection;
    Word::MailMerge m_mailMerge;
};

} // namespace Word
