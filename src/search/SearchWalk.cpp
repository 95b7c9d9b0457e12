#include "search/SearchWalk.h"

#include "model/Contact.h"
#include "model/Main.h"
#include "model/PropDetail.h"
#include "search/FindInContacts.h"
#include "search/FindInProps.h"

#include <array>

namespace {

/// The tests of the filled rows, in the order of the search.
template <typename Test>
std::vector<Test> TestsOf(const SearchCriteria& criteria, SearchMode mode)
{
    std::vector<Test> tests;
    for (const SearchedRow& row : SearchedRows(mode)) {
        const QString value = criteria.Values.value(row.Row - 1);
        if (!value.isEmpty())
            tests.emplace_back(value, row.FieldName, criteria.Case);
    }
    return tests;
}

template <typename Test, typename Record>
bool IsTaken(const Record& record, const std::vector<Test>& tests, bool isAnd)
{
    // The first miss decides an And, the first hit an Or.
    for (const Test& test : tests) {
        if (test(record) != isAnd)
            return !isAnd;
    }
    return isAnd || tests.empty();
}

constexpr size_t batchSize = 32;

/// Asks the memory for a few units that may lie across the bound of two cache lines.
template <typename Unit>
void Prefetch(const Unit* first, qsizetype count = 1)
{
    __builtin_prefetch(first);
    __builtin_prefetch(reinterpret_cast<const char*>(first + count) - 1);
}

/// Tests records in batches. Records and their texts lie anywhere in memory; asking for those of a whole batch before
/// the first is looked at has the memory fetch them side by side, where a plain walk would wait for each in turn: at
/// 100,000 contacts that waiting is most of a search.
template <typename Test, typename Record>
class Batch
{
public:
    Batch(const SearchCriteria& criteria, SearchMode mode, const std::function<void(const Record&)>& take)
        : m_tests(TestsOf<Test>(criteria, mode)), m_isAnd(criteria.And), m_take(take)
    {}

    void Add(const Record& record)
    {
        if (const QString* text = FirstText(record))
            Prefetch(text);
        m_records[m_count++] = &record;
        if (m_count == m_records.size())
            Flush();
    }

    /// To be called at the end.
    void Flush()
    {
        for (size_t i = 0; i < m_count; ++i) {
            if (const QString* text = FirstText(*m_records[i]))
                Prefetch(text->constData(), text->size());
        }
        for (size_t i = 0; i < m_count; ++i) {
            if (IsTaken(*m_records[i], m_tests, m_isAnd))
                m_take(*m_records[i]);
        }
        m_count = 0;
    }

private:
    /// What the first test looks into, or null.
    [[nodiscard]] const QString* FirstText(const Record& record) const
    {
        return m_tests.empty() ? nullptr : m_tests.front().TextOf(record);
    }

    std::vector<Test> m_tests;
    bool m_isAnd;
    const std::function<void(const Record&)>& m_take;
    std::array<const Record*, batchSize> m_records{};
    size_t m_count = 0;
};

} // namespace

void FindContacts(const SearchCriteria& criteria, const std::function<void(const Contact&)>& take)
{
    Batch<FindInContacts, Contact> batch(criteria, SearchMode::Contacts, take);
    gContacts.ForEach([&batch](Long, const std::shared_ptr<Contact>& contact) {
        if (contact)
            batch.Add(*contact);
    });
    batch.Flush();
}

void FindProperties(const SearchCriteria& criteria, const std::function<void(const PropDetail&)>& take)
{
    Batch<FindInProps, PropDetail> batch(criteria, SearchMode::Properties, take);
    std::array<const Contact*, batchSize> owners{};
    size_t count = 0;
    const auto addProperties = [&] {
        for (size_t i = 0; i < count; ++i)
            owners[i]->Properties.Prefetch();
        for (size_t i = 0; i < count; ++i) {
            owners[i]->Properties.ForEach([&batch](Long, const std::shared_ptr<PropDetail>& property) {
                if (property)
                    batch.Add(*property);
            });
        }
        count = 0;
    };
    gContacts.ForEach([&](Long, const std::shared_ptr<Contact>& contact) {
        if (!contact)
            return;
        Prefetch(&contact->Properties);
        owners[count++] = contact.get();
        if (count == batchSize)
            addProperties();
    });
    addProperties();
    batch.Flush();
}
