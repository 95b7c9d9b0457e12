#pragma once

#include "core/Types.h"

#include <QString>
#include <memory>
#include <vector>

class Alert;
class Contact;

// What each window shows to the others: the procedures that others call, under their own names, without a widget in
// sight. The owner registers its face while it is loaded; a caller asks for the face and gets null when the window is
// not loaded.

template <typename Interface>
class Face
{
public:
    /// The face of the loaded window, or null.
    [[nodiscard]] static Interface* Get() { return s_current; }

    /// Registers an owner for as long as this object lives.
    class Registration
    {
    public:
        explicit Registration(Interface& owner) : m_owner(&owner) { s_current = m_owner; }
        ~Registration()
        {
            if (s_current == m_owner)
                s_current = nullptr;
        }
        Registration(const Registration&) = delete;
        Registration& operator=(const Registration&) = delete;

    private:
        Interface* m_owner;
    };

private:
    static inline Interface* s_current = nullptr;
};

/// frmMain: caption, status bar and the menu of the Selected set.
class MainFace
{
public:
    virtual ~MainFace() = default;
    virtual void SetCaption(const QString& caption) = 0;
    /// Panel 1 to 5 of the status bar.
    virtual void SetPanel(int panel, const QString& text) = 0;
    /// Shows or hides mnuSelectedRecords.
    virtual void ShowSelectedMenu(bool shown) = 0;
    /// The title without a category: the client's name and " - Ready"; and the chosen label.
    virtual void ShowStatus() = 0;
    /// Makes one of the three tabs current, from 0.
    virtual void ShowTab(int tab) = 0;
};

/// trvCategories. Node keys are "C" or "S" and the record's ID.
class TreeFace
{
public:
    virtual ~TreeFace() = default;
    [[nodiscard]] virtual int NodeCount() const = 0;
    /// The key of the selected node, "" without one.
    [[nodiscard]] virtual QString SelectedKey() const = 0;
    /// The key of the selected node's parent, "" for a category.
    [[nodiscard]] virtual QString SelectedParentKey() const = 0;
    [[nodiscard]] virtual QString SelectedText() const = 0;
    /// True on a subcategory, which then becomes curSubIndex; a category leaves curSubIndex as it was.
    virtual bool ItsASub() = 0;
    /// Selects the node with this key, and makes its parent the current category. False where there is none.
    virtual bool FindInTree(const QString& key) = 0;
    /// Adds a subcategory's node under the node that LocateNode finds for `parentID`, and selects it.
    virtual void AddSubNode(Long parentID, const QString& text, Long id) = 0;
    /// Writes a new category and adds its node; a name that is there already is refused with its box.
    virtual void CreateNewCategory(const QString& name) = 0;
    /// Takes all nodes away.
    virtual void ClearNodes() = 0;
    /// Makes the tree visible and enabled.
    virtual void ShowTree() = 0;
    /// Adds a category's node and selects it.
    virtual void AddRootNode(const QString& text, Long id) = 0;
    virtual void trvCategories_DblClick() = 0;
    /// The caption step for the current subcategory, after contacts were added or removed.
    virtual void ShowSubContactCount() = 0;
};

/// GridList of frmList. Rows count from 1; a row's data is the contact's ID.
class ContactListFace
{
public:
    virtual ~ContactListFace() = default;
    [[nodiscard]] virtual int Rows() const = 0;
    [[nodiscard]] virtual int SelectedRow() const = 0;
    /// The IDs of the highlighted rows, from the first.
    [[nodiscard]] virtual std::vector<Long> Highlighted() const = 0;
    /// Adds an empty row at the end.
    virtual void AddRow() = 0;
    virtual void RemoveLastRow() = 0;
    /// Cancel of New: takes the last row away and selects the one before the selected row.
    virtual void TakeNewRowAway() = 0;
    /// Selects the cell of "FirstName" in the last row.
    virtual void SelectLastRow() = 0;
    /// Selects the contact's row alone, with the focus on "FirstName".
    virtual void SelectContact(Long contactID) = 0;
    /// Removes the rows of these contacts; then its own selection handler runs on the row then selected.
    virtual void RemoveContacts(const std::vector<Long>& contactIDs) = 0;
    /// Takes the highlight of all rows away.
    virtual void UnSelectAll() = 0;
    /// Writes curContact into the selected row.
    virtual void UpdateContactGridCols() = 0;
    virtual void SetSelectedRowData(Long contactID) = 0;
    /// Shows how many properties a contact has.
    virtual void ShowPropertyCount(Long contactID, int count) = 0;
    /// Brings the alert column up to date in curContact's row, which need not be the selected one.
    virtual void ShowAlertIcon() = 0;
    /// Moves the selected cell to "FirstName" in its row; all highlights stay.
    virtual void FocusFirstName() = 0;
    /// Shows or takes away the mark of a Selected contact.
    virtual void ShowChecked(Long contactID, bool checked) = 0;
    virtual void FillContactList() = 0;
    virtual void UnloadList() = 0;
};

/// GridPropList of frmPropertyList. A row's data is the property's ID.
class PropertyListFace
{
public:
    virtual ~PropertyListFace() = default;
    /// The IDs of the highlighted rows, from the first.
    [[nodiscard]] virtual std::vector<Long> Highlighted() const = 0;
};

/// GridRolodex.
class RolodexFace
{
public:
    virtual ~RolodexFace() = default;
    virtual void SelectInRolodex(bool selecting) = 0;
    /// The same for many contacts that were unselected, at once.
    virtual void UnselectInRolodex(const std::vector<Long>& contactIDs) = 0;
    /// Takes all rows away at once where the Selected contacts are shown: none of them will be Selected.
    virtual void ForgetSelected() = 0;
    virtual void RemoveContacts(const std::vector<Long>& contactIDs) = 0;
};

/// GridFound.
class FoundFace
{
public:
    virtual ~FoundFace() = default;
    /// The contacts of all rows, or of the highlighted ones.
    [[nodiscard]] virtual std::vector<Long> FoundContacts() const = 0;
    [[nodiscard]] virtual std::vector<Long> HighlightedContacts() const = 0;
    virtual void MarkSelected(Long contactID, bool selected) = 0;
    /// Redraws each row of this contact, where the list shows contacts.
    virtual void RedrawContact(const Contact& contact) = 0;
    virtual void RemoveContacts(const std::vector<Long>& contactIDs) = 0;
    /// Removes the rows of these properties, where the list shows properties.
    virtual void RemoveProperties(const std::vector<Long>& propertyIDs) = 0;
    /// The properties of all rows, or of the highlighted ones; none where the list shows contacts.
    [[nodiscard]] virtual std::vector<Long> FoundProperties() const = 0;
    [[nodiscard]] virtual std::vector<Long> HighlightedProperties() const = 0;
    virtual void ShowHowManyFound() = 0;
};

/// GridAlerts and GridFutureAlerts.
class AlertPanelsFace
{
public:
    virtual ~AlertPanelsFace() = default;
    virtual void FillAlertGrid(bool futureOnly) = 0;
    /// Takes all rows from both panels; the columns stay.
    virtual void ClearPanels() = 0;
    virtual void InsertAlertToGrid(const Alert& alert, bool isFuture) = 0;
    virtual void RemoveAlertFromGrid(Long alertID, bool isFuture) = 0;
    /// Removes the rows of these alerts from both panels.
    virtual void RemoveAlerts(const std::vector<Long>& alertIDs) = 0;
};

/// The search and letters tabs, as the main window's tab change sees them.
class SearchFace
{
public:
    virtual ~SearchFace() = default;
    [[nodiscard]] virtual bool HasCriteriaRows() const = 0;
    virtual void optSearch_Click() = 0;
    /// Clears GridFound but for its columns, and runs optSearch_Click for the search of contacts: all contacts have
    /// changed.
    virtual void SearchContactsAnew() = 0;
};

class LettersFace
{
public:
    virtual ~LettersFace() = default;
    virtual void LoadFormLetters() = 0;
    virtual void ShowLabelType(const QString& labelNumber) = 0;
};
