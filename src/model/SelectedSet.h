#pragma once

#include "core/Types.h"

#include <QString>
#include <list>
#include <unordered_map>
#include <vector>

/// The IDs of the Selected contacts, in the order of selecting, positions from 1. Finding and removing an ID cost the
/// same at any size; a walk over all goes through `Ids`.
class SelectedSet
{
public:
    void Add(Long id);
    /// Nothing happens where the ID is not there.
    void Remove(Long id);
    void RemoveAll();
    [[nodiscard]] bool Contains(Long id) const { return m_index.contains(id); }
    [[nodiscard]] qsizetype Count() const { return static_cast<qsizetype>(m_order.size()); }
    [[nodiscard]] bool IsEmpty() const { return m_order.empty(); }
    /// The ID that was added last. Raises 9 on an empty set.
    [[nodiscard]] Long Last() const;
    /// A copy in order, safe to walk while the set changes.
    [[nodiscard]] std::vector<Long> Ids() const { return {m_order.begin(), m_order.end()}; }

private:
    std::list<Long> m_order;
    std::unordered_map<Long, std::list<Long>::iterator> m_index;
};

/// The Selected contacts in their order, joined by "," for an "in" clause.
[[nodiscard]] QString SelectedIDs();

/// Adds curContact to gSelected, and marks it in every view that shows it. Nothing happens where it is there already.
void SelectCurContact();
/// The mirror: takes curContact out of gSelected, and its marks away.
void UnSelectCurContact();

/// Selects these contacts, or unselects them, one after the other under the hourglass; each becomes curContact. Raises
/// 424 at a contact that is gone; those before it are done.
void SelectContacts(const std::vector<Long>& ids, bool select);

/// Asks, and on Yes unselects all, the one selected last first.
void UnselectAll();

/// Counts the highlighted rows of the contact list, and rebuilds gHilited and gHilitedList from them.
qsizetype HilitedContacts();
/// The same of the property list.
qsizetype HilitedProperties();

/// Brings the third panel of the status bar and the Selected Contacts menu in line with gSelected.
void ShowSelectedCount();
