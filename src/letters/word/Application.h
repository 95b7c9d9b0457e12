#pragma once

#include "letters/word/AutoText.h"
#include "letters/word/Document.h"

#include <QString>
#include <memory>
#include <vector>

// The word processor as its callers speak to it. Nothing of it runs beside the program: documents are made in memory,
// and become .docx files that the person's own word processor opens.
//
//   Word::Application word;
//   Word::Document& document = word.Documents().Add();
//   word.Selection().TypeText(text);
//   word.Visible = true;
//   word.Release();

namespace Word {

class Application;

/// The documents of an application, in the order in which they came.
class Documents
{
public:
    explicit Documents(Application& application) : m_application(&application) {}

    /// A new, empty document, which becomes the active one. It lives as long as the application, closed or not.
    Document& Add(DocumentKind kind = DocumentKind::Document);
    /// Those that are not closed.
    [[nodiscard]] int Count() const;
    /// The last one that is not closed; raises 4248 where there is none.
    [[nodiscard]] Document& Active() const;

private:
    friend class Application;
    Application* m_application;
    std::vector<std::unique_ptr<Document>> m_documents;
};

/// What CreateNewDocument wants to know. The number alone is not enough: several makers have labels of the same one.
struct LabelWish
{
    QString Brand;    ///< LabelProducts.BrandName
    QString Name;     ///< LabelNumbers.LabelNumber
    QString Address;  ///< printed on each label instead of the layout where it is not ""
    QString AutoText; ///< the entry of the normal template that is each label's layout
    int LaserTray = 0;
};

class MailingLabel
{
public:
    explicit MailingLabel(Application& application) : m_application(&application) {}

    /// Turns the active document into a sheet of that label, whose layout is the AutoText entry. Raises 5843 for a
    /// label that nobody knows, or "", and 5941 for an unknown entry; the document then stays as it is.
    void CreateNewDocument(const LabelWish& wish);

private:
    Application* m_application;
};

/// The older way to work the same application.
class WordBasic
{
public:
    explicit WordBasic(Application& application) : m_application(&application) {}

    void FileNewDefault();
    /// Types a text into the active document.
    void Insert(const QString& text);
    void AppShow();

private:
    Application* m_application;
};

/// The word processor. While it is hidden its documents are nobody's business, and are gone with it; of a visible one
/// every document that is still open is written as a .docx into the person's cache and opened there, when the
/// application is let go.
class Application
{
public:
    Application();
    /// Lets go of what was not released. Only a procedure that failed gets here with something open: the person then
    /// sees how far it got, and a failure of this last step is reported in a box of its own.
    ~Application();
    Application(const Application&) = delete;
    Application& operator=(const Application&) = delete;

    bool Visible = false;

    [[nodiscard]] Word::Documents& Documents() { return m_documents; }
    /// Of the active document; raises 4248 where there is none.
    [[nodiscard]] Word::Selection& Selection() { return m_documents.Active().Selection(); }
    [[nodiscard]] Template& NormalTemplate() { return m_template; }
    [[nodiscard]] Word::MailingLabel& MailingLabel() { return m_mailingLabel; }
    [[nodiscard]] Word::WordBasic& WordBasic() { return m_wordBasic; }

    /// Lets go of the application, as the last step of a procedure: each open document of a visible application is
    /// written, closed and opened for the person. Raises 75 where it cannot be written and 429, with the file's name,
    /// where no program opens it; what comes behind that document still opens.
    void Release();

private:
    Word::Documents m_documents;
    Template m_template;
    Word::MailingLabel m_mailingLabel;
    Word::WordBasic m_wordBasic;
};

} // namespace Word
