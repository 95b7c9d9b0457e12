#include "organise/frmList.h"

#include "core/Convert.h"
#include "core/Trap.h"
#include "model/Categories.h"
#include "model/ContactFields.h"
#include "model/Main.h"
#include "model/Openers.h"
#include "model/PropDetail.h"
#include "model/ShowContact.h"
#include "ui/widgets/Grid.h"

#include <QAction>
#include <QMenuBar>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

/// A column that shows a field of the contact.
struct FieldColumn
{
    QLatin1StringView Key;
    QLatin1StringView Header;
    int Width;
    ContactField Field;
};

constexpr FieldColumn fieldColumns[]{
    {"FirstName"_L1, "First Name"_L1, 122, ContactField::FirstName},
    {"MI"_L1, "MI"_L1, 29, ContactField::MI},
    {"LastName"_L1, "Last Name"_L1, 122, ContactField::LastName},
    {"Address1"_L1, "Address1"_L1, 122, ContactField::MailAddr1},
    {"Address2"_L1, "Address2"_L1, 102, ContactField::MailAddr2},
    {"City"_L1, "City"_L1, 122, ContactField::MailCity},
    {"State"_L1, "State"_L1, 42, ContactField::MailState},
    {"Zip"_L1, "Zip"_L1, 49, ContactField::MailZip},
    {"Zip4"_L1, "Zip4"_L1, 42, ContactField::MailZip4},
    {"Salutation"_L1, "Salutation"_L1, 122, ContactField::Salutation},
    {"Spouse"_L1, "Spouse"_L1, 122, ContactField::Spouse},
    {"ReferredBy"_L1, "Referred By"_L1, 122, ContactField::ReferredBy},
    {"Company"_L1, "Company"_L1, 122, ContactField::Company},
    {"Email"_L1, "Email"_L1, 122, ContactField::Email},
    {"HomePhone"_L1, "Home Phone"_L1, 104, ContactField::HomePhone},
    {"WorkPhone"_L1, "Work Phone"_L1, 104, ContactField::WorkPhone},
    {"Ext"_L1, "Ext"_L1, 94, ContactField::Ext},
    {"CellPhone"_L1, "Cell Phone"_L1, 104, ContactField::Cell},
    {"Fax"_L1, "Fax"_L1, 104, ContactField::Fax},
};

constexpr int alertColumn = 1;
constexpr int checkedColumn = 2;
constexpr int propColumn = 3;
constexpr int firstFieldColumn = 4;

/// Small counts in a face of their own.
QFont CountFont()
{
    QFont font(u"Verdana"_s, 9);
    font.setBold(true);
    font.setItalic(true);
    return font;
}

/// The icon of a contact's alerts; the numbers of the states are those of AlertColor.
QString AlertIcon(AlertState state)
{
    switch (state) {
    case AlertState::Today:
        return u"red"_s;
    case AlertState::Future:
        return u"white"_s;
    case AlertState::Past:
        return u"yellow"_s;
    case AlertState::None:
        break;
    }
    return {};
}

} // namespace

frmList::frmList() : Form(u"frmList"_s), m_grid(new Grid(this))
{
    m_grid->setObjectName(u"GridList"_s);
    m_grid->setAccessibleName(u"Contacts"_s);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* bar = new QMenuBar(this);
    layout->setMenuBar(bar);
    layout->addWidget(m_grid);
    BuildMenu();
    bar->addMenu(m_contactsMenu);
    ConnectGrid();
    resize(960, 480);
    setMinimumSize(320, 200);
    Form_Load();
}

frmList::~frmList() = default;

void frmList::Form_Load()
{
    Trap(u"frmList Form_Load Error #"_s, Icon::Information, [this] {
        CenterForm(*this);
        ShowCaption();
        ShoWait(u"Contact List"_s);
        m_grid->SetBackgroundPicture(gSettings.Picture);
    });
}

void frmList::ShowCaption()
{
    setWindowTitle(u"Contacts in "_s + CurrentSub()->Description);
}

void frmList::Form_Activate()
{
    Trap(u"frmList Form_Activate Error #"_s, Icon::Information, [this] {
        if (gEditMode == EditMode::Neutral && Rows() == 0) {
            Unload();
            return;
        }
        ShowPropertyCaption();
        ShoWait(u"Contact list"_s);
    });
}

void frmList::Form_Unload(bool&)
{
    m_face.reset();
    Trap(u"frmList Form_Unload Error #"_s, Icon::Information, [] {
        if (auto* tree = Face<TreeFace>::Get())
            tree->ShowSubContactCount();
        ShoWait(u"Ready"_s);
    });
}

void frmList::EscapePressed()
{
    Unload();
}

void frmList::UnloadList()
{
    Unload();
}

void frmList::LoadContactColumns()
{
    if (m_grid->Columns() > 0)
        return;
    m_grid->AddColumn({.Key = u"Alert"_s, .HeaderIcon = u"red"_s, .Width = 39, .Sort = SortType::Number});
    m_grid->AddColumn({.Key = u"Checked"_s, .HeaderIcon = u"checked"_s, .Width = 26});
    m_grid->AddColumn({.Key = u"Prop"_s, .HeaderIcon = u"house"_s, .Width = 37, .Sort = SortType::Number});
    for (const FieldColumn& column : fieldColumns)
        m_grid->AddColumn({.Key = QString(column.Key), .Header = QString(column.Header), .Width = column.Width});
}

void frmList::FillContactList()
{
    Trap(u"frmList FillContactList Error #"_s, Icon::Information, [this] {
        const HourGlass hourGlass;
        m_grid->SetRedraw(false);
        LoadContactColumns();
        m_grid->Clear();
        auto* tree = Face<TreeFace>::Get();
        if (tree != nullptr && tree->SelectedKey().isEmpty())
            ShowContact();
        const Long sub = tree != nullptr ? GetKey(tree->SelectedKey()) : CurrentSub()->RecID;
        m_grid->Clear();
        gContacts.ForEach([&](Long, const std::shared_ptr<Contact>& contact) {
            if (contact && contact->subCategoryID == sub)
                AddContact(contact);
        });
        if (Rows() > 0) {
            curContact = ContactAt(m_grid->RowItemData(1));
            m_grid->SelectCell(1, firstFieldColumn);
        }
        ShowCaption();
        EnableProperties();
    });
    m_grid->SetRedraw(true);
}

void frmList::AddContact(const std::shared_ptr<Contact>& contact)
{
    curContact = contact;
    const int row = m_grid->AddRow(contact->RecID);
    WriteRow(row);
    if (!gAlerts.OfContact(contact->RecID).empty())
        SetAlertIcon(row);
    if (contact->Selected)
        m_grid->SetCellIcon(row, checkedColumn, u"checked"_s);
    UpdateContactPropDisplay(static_cast<int>(contact->Properties.Count()), row);
}

void frmList::WriteRow(int row)
{
    int column = firstFieldColumn;
    for (const FieldColumn& field : fieldColumns)
        m_grid->SetCellText(row, column++, ContactText(*curContact, field.Field));
}

void frmList::UpdateContactGridCols()
{
    Trap(u"frmList UpdateContactGridCols Error #"_s, Icon::Information, [this] { WriteRow(SelectedRow()); });
}

void frmList::UpdateContactPropDisplay(int count, int row)
{
    if (count == 0 && m_grid->CellText(row, propColumn).isEmpty())
        return;
    m_grid->SetCellText(row, propColumn, count > 0 ? CStr(Long{count}) : QString());
    m_grid->SetCellIcon(row, propColumn, count > 0 ? u"house"_s : QString());
    m_grid->SetCellFont(row, propColumn, CountFont());
}

void frmList::SetAlertIcon(int row)
{
    Trap(u"frmList SetAlertIcon Error #"_s, Icon::Information, [&] {
        if (!curContact)
            throw RunTimeError(ErrorNumber::ObjectNotSet);
        const AlertState state = AlertColor();
        const QColor own = m_grid->CellColor(row, m_grid->ColumnIndex(u"Address1"));
        const QColor names = state == AlertState::Today ? QColor(255, 0, 0) : own;
        for (const QStringView key : {u"FirstName", u"MI", u"LastName"})
            m_grid->SetCellColor(row, m_grid->ColumnIndex(key), names);
        m_grid->SetCellIcon(row, alertColumn, AlertIcon(state));
        m_grid->SetCellFont(row, alertColumn, CountFont());
        m_grid->SetCellText(row, alertColumn,
                            curContact->NumberOfAlerts > 0 ? CStr(curContact->NumberOfAlerts) : QString());
    });
}

void frmList::ShowAlertIcon()
{
    if (!curContact)
        return;
    if (const int row = m_grid->FindRow(curContact->RecID); row > 0)
        SetAlertIcon(row);
}

void frmList::FocusFirstName()
{
    if (SelectedRow() > 0)
        m_grid->SetSelectedCol(firstFieldColumn);
}

int frmList::Rows() const
{
    return m_grid->Rows();
}

int frmList::SelectedRow() const
{
    return m_grid->SelectedRow();
}

std::vector<Long> frmList::Highlighted() const
{
    std::vector<Long> ids;
    for (int row = 1; row <= Rows(); ++row) {
        if (AnySelectedCol(row, *m_grid))
            ids.push_back(m_grid->RowItemData(row));
    }
    return ids;
}

void frmList::AddRow()
{
    m_grid->AddRow();
}

void frmList::RemoveLastRow()
{
    if (Rows() > 0)
        m_grid->RemoveRow(Rows());
}

void frmList::TakeNewRowAway()
{
    const int row = SelectedRow();
    const int column = m_grid->SelectedCol() > 0 ? m_grid->SelectedCol() : m_grid->ColumnIndex(u"FirstName");
    m_grid->SetSelectedRow(row < 2 ? 1 : row - 1);
    RemoveLastRow();
    if (Rows() == 0)
        return;
    m_grid->SetSelectedCol(column);
    GridList_SelectionChange();
}

void frmList::SelectLastRow()
{
    m_grid->SelectCell(Rows(), m_grid->ColumnIndex(u"FirstName"));
}

void frmList::SelectContact(Long contactID)
{
    const int row = m_grid->FindRow(contactID);
    m_grid->ClearHighlight();
    if (row == 0)
        return;
    m_grid->SelectCell(row, m_grid->ColumnIndex(u"FirstName"));
    m_grid->EnsureVisible(row, 1);
    EnableProperties();
}

void frmList::RemoveContacts(const std::vector<Long>& contactIDs)
{
    RemoveRowsOf(*m_grid, contactIDs);
    if (Rows() > 0)
        GridList_SelectionChange();
}

void frmList::UnSelectAll()
{
    m_grid->ClearHighlight();
}

void frmList::SetSelectedRowData(Long contactID)
{
    if (SelectedRow() > 0)
        m_grid->SetRowItemData(SelectedRow(), contactID);
}

void frmList::ShowPropertyCount(Long contactID, int count)
{
    const int row = m_grid->FindRow(contactID);
    if (row > 0)
        UpdateContactPropDisplay(count, row);
}

void frmList::ShowChecked(Long contactID, bool checked)
{
    const int row = m_grid->FindRow(contactID);
    if (row > 0)
        m_grid->SetCellIcon(row, checkedColumn, checked ? u"checked"_s : QString());
}

void frmList::EnableProperties()
{
    const bool some = curContact && !curContact->Properties.IsEmpty();
    Entry("mnuProperties").setEnabled(some && gOpeners.PropertyList);
}

void ShowContactList(QWidget* owner)
{
    if (auto* loaded = dynamic_cast<frmList*>(Face<ContactListFace>::Get())) {
        loaded->Show(owner);
        return;
    }
    auto* list = new frmList; // deletes itself when it is unloaded
    list->Show(owner);
}
