#pragma once

#include "model/faces.h"
#include "ui/widgets/Form.h"

#include <optional>

class Category;
class Grid;
class ListMenus;
class QModelIndex;

/// The list of the contacts of one subcategory. It stands beside the main window, and is brought up to date by explicit
/// calls.
class frmList : public Form, public ContactListFace
{
    Q_OBJECT

public:
    frmList();
    ~frmList() override;

    // ContactListFace
    [[nodiscard]] int Rows() const override;
    [[nodiscard]] int SelectedRow() const override;
    [[nodiscard]] std::vector<Long> Highlighted() const override;
    void AddRow() override;
    void RemoveLastRow() override;
    void TakeNewRowAway() override;
    void SelectLastRow() override;
    void SelectContact(Long contactID) override;
    void RemoveContacts(const std::vector<Long>& contactIDs) override;
    void UnSelectAll() override;
    void UpdateContactGridCols() override;
    void SetSelectedRowData(Long contactID) override;
    void ShowPropertyCount(Long contactID, int count) override;
    void ShowAlertIcon() override;
    void FocusFirstName() override;
    void ShowChecked(Long contactID, bool checked) override;
    void FillContactList() override;
    void UnloadList() override;

protected:
    void Form_Activate() override;
    void Form_Unload(bool& cancel) override;
    void EscapePressed() override;

private:
    // frmList.cpp: the window and its rows
    void Form_Load();
    void ShowCaption();
    void AddContact(const std::shared_ptr<Contact>& contact);
    void SetAlertIcon(int row);

    // frmListEvents.cpp: keys, mouse and what the menus do
    void PlugMenus();
    void ConnectGrid();
    void GridList_ColumnClick(int column);
    void GridList_SelectionChange();
    void TakeSelectedRow();
    void GridList_MouseDown();
    void GridList_MouseUp(Qt::MouseButton button, QPoint position);
    void GridList_DblClick(int row, int column);
    void GridList_KeyDown(int code);
    void GridList_MenuKey(QPoint position);
    /// The cell under a global position; an invalid one where there is none.
    [[nodiscard]] QModelIndex CellUnder(QPoint position) const;
    /// The popup of a cell of the list.
    void PopUpMenu(int row, int column, QPoint position);
    void mnuContacts_Click();

    void mnuNew_Click();
    void mnuSelect_Click();
    void mnuUnselect_Click();
    void mnuDelete_Click();

    // frmListMove.cpp: contacts to another subcategory
    void ContactMove();
    void MoveContacts(Long categoryID, const Category& target);

    /// Until it is unloaded: what is closed is not there for the others, although it may be deleted only later.
    std::optional<Face<ContactListFace>::Registration> m_face{*this};
    Grid* m_grid;
    ListMenus* m_menus;
};

/// Shows the contact list beside the main window, loading it where it is not.
void ShowContactList(QWidget* owner);
