#pragma once

#include "letters/word/Story.h"

#include <QString>
#include <memory>
#include <vector>

namespace Word {

class AutoTextEntries;
class Range;

/// A text kept under a name.
class AutoTextEntry
{
public:
    AutoTextEntry(AutoTextEntries& entries, QString name, Story text);

    [[nodiscard]] const QString& Name() const { return m_name; }
    [[nodiscard]] const Story& Text() const { return m_text; }
    /// Takes it out of its entries, and with that it is gone.
    void Delete();

private:
    AutoTextEntries* m_entries;
    QString m_name;
    Story m_text;
};

class AutoTextEntries
{
public:
    /// Keeps the text of a range, with its looks and fields, in the place of an entry of that name. It lives until its
    /// Delete or as long as the application.
    AutoTextEntry& Add(const QString& name, const Range& range);
    /// Without regard to case; raises 5941 where there is none.
    [[nodiscard]] const AutoTextEntry& Item(const QString& name) const;
    [[nodiscard]] int Count() const { return static_cast<int>(m_entries.size()); }

private:
    friend class AutoTextEntry;
    /// By value: the name may be that of the entry that goes.
    void Remove(QString name);

    std::vector<std::unique_ptr<AutoTextEntry>> m_entries;
};

/// The template that all documents start from. It lives in memory alone.
class Template
{
public:
    /// Nobody asks to save it: it ends with the application.
    bool Saved = true;

    [[nodiscard]] Word::AutoTextEntries& AutoTextEntries() { return m_entries; }

private:
    Word::AutoTextEntries m_entries;
};

} // namespace Word
