#include "letters/word/Document.h"

#include "letters/word/DocumentPackage.h"
#include "letters/word/Errors.h"

namespace Word {

namespace {

constexpr int wdHeaderFooterPrimary = 1;

HeaderFooter& Primary(HeaderFooter& one, int which)
{
    if (which != wdHeaderFooterPrimary)
        throw Error::MemberMissing();
    return one;
}

} // namespace

Word::Range HeaderFooter::Range()
{
    if (!m_story)
        m_story.emplace();
    return {*m_story, 0, m_story->Length()};
}

HeaderFooter& Section::Headers(int which)
{
    return Primary(m_header, which);
}

HeaderFooter& Section::Footers(int which)
{
    return Primary(m_footer, which);
}

Section Section::WithBody(Story body) const
{
    Section copy;
    copy.m_header = m_header;
    copy.m_footer = m_footer;
    copy.Body = std::move(body);
    return copy;
}

Document::Document(Application& application, DocumentKind kind)
    : m_kind(kind), m_selection(*this), m_mailMerge(application, *this)
{
    AllSections.push_back(std::make_unique<Section>());
}

Word::Range Document::Content()
{
    Story& body = AllSections.front()->Body;
    return {body, 0, body.Length()};
}

Word::Range Document::Range(qsizetype start, qsizetype end)
{
    return {AllSections.front()->Body, start, end};
}

Section& Document::Sections(int index)
{
    if (index < 1 || static_cast<std::size_t>(index) > AllSections.size())
        throw Error::MemberMissing();
    return *AllSections[static_cast<std::size_t>(index) - 1];
}

void Document::Close(bool /*saveChanges*/)
{
    m_closed = true;
    LabelSheets.reset();
    AllSections.clear();
    AllSections.push_back(std::make_unique<Section>());
}

void Document::SaveAs(const QString& path) const
{
    WriteDocument(*this, path);
}

} // namespace Word
