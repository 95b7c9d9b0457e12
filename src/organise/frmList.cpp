#include "organise/frmList.h"

#include "core/Trap.h"
#include "model/Categories.h"
#include "model/Contact.h"
#include "model/Main.h"
#include "model/Openers.h"
#include "model/PropDetail.h"
#include "model/ShowContact.h"
#include "organise/ListColumns.h"
#include "organise/ListMenus.h"
#include "ui/widgets/Grid.h"

#include <QMenu>
#include <QMenuBar>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

frmList::frmList() : Form(u"frmList"_s), m_grid(new Grid(this)), m_menus(new ListMenus(*this))
{
    m_grid->setObjectName(u"GridList"_s);
    m_grid->setAccessibleName(u"Contacts"_s);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* bar = new QMenuBar(this);
    layout->setMenuBar(bar);
    layout->addWidget(m_grid);
    PlugMenus();
    bar->addMenu(&m_menus->Contacts());
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
        m_menus->ShowPropertyCaption();
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

void frmList::FillContactList()
{
    Trap(u"frmList FillContactList Error #"_s, Icon::Information, [this] {
        const HourGlass hourGlass;
        m_grid->SetRedraw(false);
        LoadContactColumns(*m_grid);
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
            m_grid->SelectCell(1, ListColumn::FirstField);
        }
        ShowCaption();
        m_menus->EnableProperties();
    });
    m_grid->SetRedraw(true);
}

void frmList::AddContact(const std::shared_ptr<Contact>& contact)
{
    curContact = contact;
    const int row = m_grid->AddRow(contact->RecID);
    WriteContact(*m_grid, row, *contact);
    if (!gAlerts.OfContact(contact->RecID).empty())
        SetAlertIcon(row);
    if (contact->Selected)
        m_grid->SetCellIcon(row, ListColumn::Checked, u"checked"_s);
    WritePropertyCount(*m_grid, row, static_cast<int>(contact->Properties.Count()));
}

void frmList::UpdateContactGridCols()
{
    Trap(u"frmList UpdateContactGridCols Error #"_s, Icon::Information,
         [this] { WriteContact(*m_grid, SelectedRow(), *curContact); });
}

void frmList::SetAlertIcon(int row)
{
    Trap(u"frmList SetAlertIcon Error #"_s, Icon::Information, [&] {
        if (!curContact)
            throw RunTimeError(ErrorNumber::ObjectNotSet);
        WriteAlerts(*m_grid, row);
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
        m_grid->SetSelectedCol(ListColumn::FirstField);
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
    return HighlightedData(*m_grid);
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
    m_menus->EnableProperties();
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
        WritePropertyCount(*m_grid, row, count);
}

void frmList::ShowChecked(Long contactID, bool checked)
{
    const int row = m_grid->FindRow(contactID);
    if (row > 0)
        m_grid->SetCellIcon(row, ListColumn::Checked, checked ? u"checked"_s : QString());
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
