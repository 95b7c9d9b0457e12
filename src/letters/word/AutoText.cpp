#include "letters/word/AutoText.h"

#include "letters/word/Errors.h"
#include "letters/word/Range.h"

#include <algorithm>

namespace Word {

AutoTextEntry::AutoTextEntry(AutoTextEntries& entries, QString name, Story text)
    : m_entries(&entries), m_name(std::move(name)), m_text(std::move(text))
{}

void AutoTextEntry::Delete()
{
    m_entries->Remove(m_name);
}

AutoTextEntry& AutoTextEntries::Add(const QString& name, const Range& range)
{
    Remove(name);
    Story text = range.Whole();
    text.Delete(range.End(), text.Length());
    text.Delete(0, range.Start());
    return *m_entries.emplace_back(std::make_unique<AutoTextEntry>(*this, name, std::move(text)));
}

const AutoTextEntry& AutoTextEntries::Item(const QString& name) const
{
    const auto same = [&](const auto& entry) { return entry->Name().compare(name, Qt::CaseInsensitive) == 0; };
    const auto found = std::ranges::find_if(m_entries, same);
    if (found == m_entries.end())
        throw Error::MemberMissing();
    return **found;
}

void AutoTextEntries::Remove(QString name)
{
    std::erase_if(m_entries, [&](const auto& entry) { return entry->Name().compare(name, Qt::CaseInsensitive) == 0; });
}

} // namespace Word
