#include "model/Contact.h"
#include "search/CriteriaPanel.h"
#include "search/FoundList.h"
#include "ui/widgets/Grid.h"

#include <unordered_set>

// The rows, as others see them.

std::vector<Long> FoundList::Records(SearchMode mode, const std::function<bool(int row)>& wanted) const
{
    std::vector<Long> records;
    if (m_criteria.Mode() != mode)
        return records;
    for (int row = 1; row <= m_grid->Rows(); ++row) {
        if (m_grid->RowVisible(row) && wanted(row))
            records.push_back(m_grid->RowItemData(row));
    }
    return records;
}

std::vector<Long> FoundList::FoundContacts() const
{
    return Records(SearchMode::Contacts, [](int) { return true; });
}

std::vector<Long> FoundList::HighlightedContacts() const
{
    return Records(SearchMode::Contacts, [this](int row) { return m_grid->CellSelected(row, 1); });
}

std::vector<Long> FoundList::FoundProperties() const
{
    return Records(SearchMode::Properties, [](int) { return true; });
}

std::vector<Long> FoundList::HighlightedProperties() const
{
    return Records(SearchMode::Properties, [this](int row) { return m_grid->CellSelected(row, 1); });
}

void FoundList::MarkRow(int row, bool selected)
{
    MarkCell(*m_grid, row, NameColumn, selected);
}

void FoundList::MarkSelected(Long contactID, bool selected)
{
    if (ShowsProperties() || Count() == 0)
        return;
    const int row = m_grid->FindRow(contactID);
    if (row == 0 || !m_grid->RowVisible(row))
        return;
    MarkRow(row, selected);
    // Bold letters need more room.
    m_grid->AutoWidthColumn(NameColumn);
}

void FoundList::RedrawContact(const Contact& contact)
{
    if (ShowsProperties())
        return;
    for (int row = 1; row <= m_grid->Rows(); ++row) {
        if (m_grid->RowItemData(row) == contact.RecID && m_grid->RowVisible(row))
            AddContactToFoundGrid(row, contact);
    }
}

void FoundList::RemoveRowsOf(SearchMode mode, const std::vector<Long>& ids)
{
    if (m_criteria.Mode() != mode)
        return;
    const std::unordered_set<Long> gone(ids.begin(), ids.end());
    std::vector<int> rows;
    for (int row = 1; row <= m_grid->Rows(); ++row) {
        if (m_grid->RowVisible(row) && gone.contains(m_grid->RowItemData(row)))
            rows.push_back(row);
    }
    m_grid->RemoveRows(rows);
}

void FoundList::RemoveContacts(const std::vector<Long>& contactIDs)
{
    RemoveRowsOf(SearchMode::Contacts, contactIDs);
}

void FoundList::RemoveProperties(const std::vector<Long>& propertyIDs)
{
    RemoveRowsOf(SearchMode::Properties, propertyIDs);
}
