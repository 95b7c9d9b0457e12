#include "letters/word/Application.h"

#include "core/Trap.h"
#include "letters/word/Errors.h"
#include "letters/word/OpenDocument.h"

#include <algorithm>
#include <exception>

using namespace Qt::StringLiterals;

namespace Word {

Document& Documents::Add(DocumentKind kind)
{
    return *m_documents.emplace_back(std::make_unique<Document>(*m_application, kind));
}

int Documents::Count() const
{
    return static_cast<int>(
        std::ranges::count_if(m_documents, [](const auto& document) { return !document->IsClosed(); }));
}

Document& Documents::Active() const
{
    const auto last = std::find_if(m_documents.rbegin(), m_documents.rend(),
                                   [](const auto& document) { return !document->IsClosed(); });
    if (last == m_documents.rend())
        throw RunTimeError(Error::NoDocument, u"This command is not available because no document is open."_s);
    return **last;
}

void MailingLabel::CreateNewDocument(const LabelWish& wish)
{
    Document& document = m_application->Documents().Active();
    LabelPages pages{FindLabelSheet(wish.Brand, wish.Name), wish.LaserTray, {}};
    const Story layout = wish.Address.isEmpty()
                             ? m_application->NormalTemplate().AutoTextEntries().Item(wish.AutoText).Text()
                             : Story(wish.Address);
    pages.Labels.assign(static_cast<std::size_t>(pages.Sheet.PerSheet()), layout);
    document.LabelSheets = std::move(pages);
}

void WordBasic::FileNewDefault()
{
    m_application->Documents().Add();
}

void WordBasic::Insert(const QString& text)
{
    m_application->Selection().TypeText(text);
}

void WordBasic::AppShow()
{
    m_application->Visible = true;
}

Application::Application() : m_documents(*this), m_mailingLabel(*this), m_wordBasic(*this) {}

Application::~Application()
{
    Trap(u"Word Release Error #"_s, Icon::Critical, [this] { Release(); });
}

void Application::Release()
{
    std::exception_ptr failure;
    for (const auto& document : m_documents.m_documents) {
        if (!Visible || document->IsClosed())
            continue;
        try {
            const QString path = WriteToCache(*document);
            document->Close();
            OpenForPerson(path);
        } catch (const RunTimeError&) {
            // The others still get their turn; a document that failed is not tried again.
            document->Close();
            if (!failure)
                failure = std::current_exception();
        }
    }
    m_documents.m_documents.clear();
    if (failure)
        std::rethrow_exception(failure);
}

} // namespace Word
