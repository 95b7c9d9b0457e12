#include "core/FieldRules.h"
#include "core/Trap.h"
#include "model/Contact.h"
#include "model/DeleteContacts.h"
#include "model/Main.h"
#include "model/Openers.h"
#include "model/PropDetail.h"
#include "organise/frmList.h"
#include "organise/ListColumns.h"
#include "organise/ListMenus.h"
#include "ui/widgets/Grid.h"

#include <QMenu>

using namespace Qt::StringLiterals;

// What the keys, the mouse and the menu of the contact list do.

void frmList::PlugMenus()
{
    m_menus->Plug("mnuNew", [this] { mnuNew_Click(); });
    m_menus->Plug("mnuSelect", [this] { mnuSelect_Click(); });
    m_menus->Plug("mnuUnselect", [this] { mnuUnselect_Click(); });
    m_menus->Plug("mnuDelete", [this] { mnuDelete_Click(); });
    m_menus->Plug("mnuMove", [this] { ContactMove(); });
    m_menus->Plug("mnuClose", [this] { Unload(); });
    connect(&m_menus->Contacts(), &QMenu::aboutToShow, this, &frmList::mnuContacts_Click);
}

void frmList::ConnectGrid()
{
    connect(m_grid, &Grid::SelectionChange, this, &frmList::GridList_SelectionChange);
    connect(m_grid, &Grid::MouseDown, this, &frmList::GridList_MouseDown);
    connect(m_grid, &Grid::MouseUp, this, &frmList::GridList_MouseUp);
    connect(m_grid, &Grid::MenuKey, this, &frmList::GridList_MenuKey);
    connect(m_grid, &Grid::DblClick, this, &frmList::GridList_DblClick);
    connect(m_grid, &Grid::KeyDown, this, &frmList::GridList_KeyDown);
    connect(m_grid, &Grid::ColumnClick, this, &frmList::GridList_ColumnClick);
}

void frmList::GridList_ColumnClick(int column)
{
    Trap(u"frmList GridList_ColumnClick Error #"_s, Icon::Information, [&] {
        if (Rows() == 0)
            return;
        SortGrid(*m_grid, column);
        m_grid->EnsureVisible(SelectedRow(), column);
        // Row 1 is the selected row now: were its contact not the current one, a change of it would go to another's
        // row.
        GridList_SelectionChange();
    });
}

void frmList::GridList_SelectionChange()
{
    Trap(u"frmList GridList_SelectionChange Error #"_s, Icon::Information, [this] {
        const int row = SelectedRow();
        // A row that New has added has no contact yet. One whose statement was refused has the key 0, and a contact.
        if (row == 0 || !gContacts.Exists(m_grid->RowItemData(row)))
            return;
        curContact = ContactAt(m_grid->RowItemData(row));
        gEditMode = EditMode::Neutral;
        // Sideways the view stays with the current cell: the columns at the far end are worked like the first.
        m_grid->EnsureVisible(row, std::max(1, m_grid->SelectedCol()));
        m_menus->EnableProperties();
    });
}

void frmList::TakeSelectedRow()
{
    // Other windows choose contacts too; what is done in the list is done to its own row.
    const Long id = SelectedRow() > 0 ? m_grid->RowItemData(SelectedRow()) : 0;
    if (gContacts.Exists(id))
        curContact = ContactAt(id);
}

void frmList::GridList_MouseDown()
{
    TakeSelectedRow();
    ShoWait(u"Contact List"_s);
    gFocusField.clear();
}

void frmList::GridList_MouseUp(Qt::MouseButton button, QPoint position)
{
    Trap(u"frmList GridList_MouseUp Error #"_s, Icon::Information, [&] {
        const QModelIndex under = CellUnder(position);
        if (button == Qt::RightButton) {
            PopUpMenu(under.isValid() ? under.row() + 1 : SelectedRow(),
                      under.isValid() ? under.column() + 1 : m_grid->SelectedCol(), position);
            return;
        }
        m_menus->ShowPropertyCaption();
        m_menus->EnableProperties();
        const int column = m_grid->SelectedCol();
        if (Rows() == 0 || column == 0)
            return;
        if (under.isValid() && m_grid->Column(column).Key == "Checked"_L1) {
            if (curContact && curContact->Selected)
                UnSelectCurContact();
            else
                SelectCurContact();
        }
        gFocusField = m_grid->Column(column).Header;
    });
}

void frmList::GridList_MenuKey(QPoint position)
{
    Trap(u"frmList GridList_MouseUp Error #"_s, Icon::Information,
         [&] { PopUpMenu(SelectedRow(), m_grid->SelectedCol(), position); });
}

QModelIndex frmList::CellUnder(QPoint position) const
{
    return m_grid->indexAt(m_grid->viewport()->mapFromGlobal(position));
}

void frmList::PopUpMenu(int row, int column, QPoint position)
{
    if (row > 0 && gContacts.Exists(m_grid->RowItemData(row)))
        curContact = ContactAt(m_grid->RowItemData(row));
    const bool onProperties = column > 0 && m_grid->Column(column).Key == "Prop"_L1;
    mnuContacts_Click();
    (onProperties ? m_menus->Properties() : m_menus->Contacts()).popup(position);
}

void frmList::mnuContacts_Click()
{
    Trap(u"frmList mnuContacts_Click Error #"_s, Icon::Information, [this] {
        const qsizetype count = HilitedContacts();
        TakeSelectedRow();
        m_menus->ShowFor(count);
    });
}

void frmList::GridList_DblClick(int row, int column)
{
    Trap(u"frmList GridList_DblClick Error #"_s, Icon::Information, [&] {
        if (row == 0 || column == 0 || !curContact)
            return;
        const QString key = m_grid->Column(column).Key;
        if (key == "Prop"_L1) {
            if (curContact->Properties.IsEmpty())
                ListMenus::mnuNewProperty_Click();
            else
                ListMenus::mnuProperties_Click();
        } else if (key == "Alert"_L1) {
            if (!gOpeners.Alerts)
                return;
            ShoWait(FormatName() + u" Alerts.."_s);
            gAlertMode = gAlerts.OfContact(curContact->RecID).empty() ? AlertMode::New : AlertMode::Modify;
            gOpeners.Alerts();
        } else if (key != "Checked"_L1) {
            ListMenus::mnuModify_Click();
        }
    });
}

void frmList::GridList_KeyDown(int code)
{
    TakeSelectedRow();
    if (code == Key::Delete) {
        HilitedContacts();
        mnuDelete_Click();
    } else if (code == Key::Enter) {
        // Enter does by key what a double click does on the current cell.
        const int column = m_grid->SelectedCol();
        gFocusField = column > 0 ? m_grid->Column(column).Header : QString();
        GridList_DblClick(SelectedRow(), column);
    }
}

void frmList::mnuNew_Click()
{
    Trap(u"frmList mnuNew_Click Error #"_s, Icon::Information, [this] {
        gEditMode = EditMode::NewContact;
        LoadContactColumns(*m_grid);
        AddRow();
        SelectLastRow();
        if (gOpeners.ContactEditor)
            gOpeners.ContactEditor();
    });
}

void frmList::mnuSelect_Click()
{
    Trap(u"frmList mnuSelect_Click Error #"_s, Icon::Information, [this] { SelectContacts(Highlighted(), true); });
}

void frmList::mnuUnselect_Click()
{
    Trap(u"frmList mnuUnselect_Click Error #"_s, Icon::Information, [this] { SelectContacts(Highlighted(), false); });
}

void frmList::mnuDelete_Click()
{
    Trap(u"frmList mnuDelete_Click Error #"_s, Icon::Information, [this] {
        DeleteContacts(DeleteMode::Hilited);
        if (Rows() == 0)
            Unload();
    });
}
