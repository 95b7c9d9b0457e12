#include "search/SearchWalk.h"

#include "model/Contact.h"
#include "model/Main.h"
#include "model/PropDetail.h"
#include "search/FindInContacts.h"
#include "search/FindInProps.h"

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

} // namespace

void FindContacts(const SearchCriteria& criteria, const std::function<void(const Contact&)>& take)
{
    const auto tests = TestsOf<FindInContacts>(criteria, SearchMode::Contacts);
    gContacts.ForEach([&](Long, const std::shared_ptr<Contact>& contact) {
        if (contact && IsTaken(*contact, tests, criteria.And))
            take(*contact);
    });
}

void FindProperties(const SearchCriteria& criteria, const std::function<void(const PropDetail&)>& take)
{
    const auto tests = TestsOf<FindInProps>(criteria, SearchMode::Properties);
    gContacts.ForEach([&](Long, const std::shared_ptr<Contact>& contact) {
        if (!contact)
            return;
        contact->Properties.ForEach([&](Long, const std::shared_ptr<PropDetail>& property) {
            if (property && IsTaken(*property, tests, criteria.And))
                take(*property);
        });
    });
}
