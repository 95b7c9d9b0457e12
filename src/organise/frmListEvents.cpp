#include "core/Convert.h"
#include "core/FieldRules.h"
#include "core/Trap.h"
#include "model/Contact.h"
#include "model/DeleteContacts.h"
#include "model/Main.h"
#include "model/Openers.h"
#include "model/PropDetail.h"
#include "organise/frmList.h"
#include "ui/frame/Menus.h"
#include "ui/widgets/Grid.h"

#include <QAction>
#include <QMenu>

using namespace Qt::StringLiterals;

// What the keys, the mouse and the menu of the contact list do.

void frmList::BuildMenu()
{
    m_contactsMenu = new QMenu(u"Current &Contact"_s, this);
    m_contactsMenu->setObjectName(u"mnuContacts"_s);
    m_propertyMenu = new QMenu(u"Properties"_s, this);
    m_propertyMenu->setObjectName(u"mnuProperty"_s);

    AddEntry(m_contactsMenu, "mnuNew", u"New Contact"_s, &frmList::mnuNew_Click);
    AddEntry(m_contactsMenu, "mnuModify", u"Modify"_s, &frmList::mnuModify_Click);
    AddEntry(m_contactsMenu, "mnuSelect", u"Select"_s, &frmList::mnuSelect_Click);
    AddEntry(m_contactsMenu, "mnuUnselect", u"Unselect"_s, &frmList::mnuUnselect_Click);
    AddEntry(m_contactsMenu, "mnuDelete", u"Delete"_s, &frmList::mnuDelete_Click);
    AddEntry(m_contactsMenu, "mnuMove", u"Move"_s, &frmList::mnuMove_Click);
    AddEntry(m_contactsMenu, "mnuManageAlerts", u"Alerts"_s, &frmList::mnuManageAlerts_Click);
    AddEntry(m_contactsMenu, "mnuNewAlert", u"New Alert "_s, &frmList::mnuNewAlert_Click);
    AddEntry(m_contactsMenu, "mnuWord", u"Send To Ms Word File"_s, &frmList::mnuWord_Click);
    AddEntry(m_contactsMenu, "mnuNotes", u"Notes"_s, &frmList::mnuNotes_Click);
    m_contactsMenu->addMenu(m_propertyMenu);
    AddEntry(m_propertyMenu, "mnuProperties", u"View Current Properties"_s, &frmList::mnuProperties_Click);
    AddEntry(m_propertyMenu, "mnuNewProperty", u"New Property"_s, &frmList::mnuNewProperty_Click);
    AddEntry(m_contactsMenu, "mnuClose", u"Close"_s, &frmList::mnuClose_Click);
    Entry("mnuWord").setEnabled(static_cast<bool>(gOpeners.WordFileOfListed));
    connect(m_contactsMenu, &QMenu::aboutToShow, this, &frmList::mnuContacts_Click);
}

QAction* frmList::AddEntry(QMenu* menu, const char* name, const QString& caption, void (frmList::*click)())
{
    QAction* entry = menu->addAction(caption);
    entry->setObjectName(QLatin1StringView(name));
    connect(entry, &QAction::triggered, this, click);
    return entry;
}

QAction& frmList::Entry(const char* name) const
{
    return *findChild<QAction*>(QLatin1StringView(name));
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
        EnableProperties();
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
        ShowPropertyCaption();
        EnableProperties();
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
    (onProperties ? m_propertyMenu : m_contactsMenu)->popup(position);
}

void frmList::mnuContacts_Click()
{
    Trap(u"frmList mnuContacts_Click Error #"_s, Icon::Information, [this] {
        const qsizetype count = HilitedContacts();
        TakeSelectedRow();
        for (const char* name : {"mnuModify", "mnuSelect", "mnuUnselect", "mnuDelete", "mnuMove", "mnuManageAlerts",
                                 "mnuNewAlert", "mnuNotes"})
            Entry(name).setEnabled(count > 0);
        Entry("mnuNewProperty").setEnabled(count > 0 && gOpeners.PropertyEditor);
        if (count >= 2)
            ShowMenuForMany(count);
        else if (count == 1 && curContact)
            ShowMenuForOne();
        ShowPropertyCaption();
        EnableProperties();
    });
}

void frmList::ShowMenuForOne()
{
    const QString name = FormatName();
    const auto show = [this](const char* entry, const QString& caption, bool enabled = true) {
        Entry(entry).setText(MenuText(caption));
        Entry(entry).setEnabled(enabled);
    };
    const bool alerts = static_cast<bool>(gOpeners.Alerts);
    show("mnuModify", u"Modify "_s + name);
    show("mnuSelect", u"Select "_s + name);
    show("mnuUnselect", u"Unselect "_s + name);
    show("mnuDelete", u"Delete "_s + name);
    show("mnuMove", u"Move "_s + name);
    show("mnuManageAlerts", name + u"'s Existing Alerts"_s, alerts);
    show("mnuNewAlert", u"Set a New Alert for "_s + name, alerts);
    Entry("mnuNotes").setEnabled(true);
    Entry("mnuSelect").setVisible(!curContact->Selected);
    Entry("mnuUnselect").setVisible(curContact->Selected);
}

void frmList::ShowMenuForMany(qsizetype count)
{
    const QString many = u" the "_s + CStr(qint64{count}) + u" Highlighted Contacts"_s;
    Entry("mnuSelect").setText(u"Select"_s + many);
    Entry("mnuUnselect").setText(u"Unselect"_s + many);
    Entry("mnuDelete").setText(u"Delete"_s + many);
    Entry("mnuMove").setText(u"Move"_s + many);
    Entry("mnuSelect").setVisible(true);
    Entry("mnuUnselect").setVisible(true);
    for (const char* name : {"mnuNewAlert", "mnuModify", "mnuManageAlerts", "mnuNotes"})
        Entry(name).setEnabled(false);
}

void frmList::ShowPropertyCaption()
{
    if (curContact)
        m_propertyMenu->setTitle(MenuText(FormatName() + u"'s Properties"_s));
}

void frmList::GridList_DblClick(int row, int column)
{
    Trap(u"frmList GridList_DblClick Error #"_s, Icon::Information, [&] {
        if (row == 0 || column == 0 || !curContact)
            return;
        const QString key = m_grid->Column(column).Key;
        if (key == "Prop"_L1) {
            if (curContact->Properties.IsEmpty())
                mnuNewProperty_Click();
            else
                mnuProperties_Click();
        } else if (key == "Alert"_L1) {
            if (!gOpeners.Alerts)
                return;
            ShoWait(FormatName() + u" Alerts.."_s);
            gAlertMode = gAlerts.OfContact(curContact->RecID).empty() ? AlertMode::New : AlertMode::Modify;
            gOpeners.Alerts();
        } else if (key != "Checked"_L1) {
            mnuModify_Click();
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
        LoadContactColumns();
        AddRow();
        SelectLastRow();
        if (gOpeners.ContactEditor)
            gOpeners.ContactEditor();
    });
}

void frmList::mnuModify_Click()
{
    Trap(u"frmList mnuModify_Click Error #"_s, Icon::Information, [] {
        gEditMode = EditMode::ModifyContact;
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

void frmList::mnuMove_Click()
{
    ContactMove();
}

void frmList::mnuManageAlerts_Click()
{
    Trap(u"frmList mnuManageAlerts_Click Error #"_s, Icon::Information, [] {
        gAlertMode = AlertMode::Modify;
        if (gOpeners.Alerts)
            gOpeners.Alerts();
    });
}

void frmList::mnuNewAlert_Click()
{
    Trap(u"frmList mnuNewAlert_Click Error #"_s, Icon::Information, [] {
        gAlertMode = AlertMode::New;
        if (gOpeners.Alerts)
            gOpeners.Alerts();
    });
}

void frmList::mnuWord_Click()
{
    Trap(u"frmList mnuWord_Click Error #"_s, Icon::Information, [] {
        if (gOpeners.WordFileOfListed)
            gOpeners.WordFileOfListed();
    });
}

void frmList::mnuNotes_Click()
{
    Trap(u"frmList mnuNotes_Click Error #"_s, Icon::Information, [] {
        gEditMode = EditMode::Neutral;
        if (gOpeners.Notes)
            gOpeners.Notes();
    });
}

void frmList::mnuProperties_Click()
{
    Trap(u"frmList mnuProperties_Click Error #"_s, Icon::Information, [] {
        if (!gOpeners.PropertyList)
            return;
        gEditMode = EditMode::ModifyProperty;
        gOpeners.PropertyList();
    });
}

void frmList::mnuNewProperty_Click()
{
    Trap(u"frmList mnuNewProperty_Click Error #"_s, Icon::Information, [] {
        if (!gOpeners.PropertyEditor)
            return;
        gEditMode = EditMode::NewProperty;
        ShoWait(u"Adding a property.."_s);
        gOpeners.PropertyEditor();
    });
}

void frmList::mnuClose_Click()
{
    Unload();
}
