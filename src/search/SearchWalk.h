#pragma once

#include "search/CriteriaRows.h"

#include <QStringList>
#include <functional>

class Contact;
class PropDetail;

/// What a search is asked for.
struct SearchCriteria
{
    /// The texts of the grid's rows, the first at 0; "" for a row that is not filled. A blank fills a row.
    QStringList Values;
    /// All filled rows must hold; otherwise any.
    bool And = false;
    Qt::CaseSensitivity Case = Qt::CaseInsensitive;
};

/// Takes every contact that meets the criteria, in the order in which contacts were added. Without a criterion each is
/// taken. A test that fails is reported, counts as a miss, and the walk goes on.
void FindContacts(const SearchCriteria& criteria, const std::function<void(const Contact&)>& take);

/// The same with the properties of each contact, in their order.
void FindProperties(const SearchCriteria& criteria, const std::function<void(const PropDetail&)>& take);
