#include "alerts/frmAlertContacts.h"

#include "core/Convert.h"
#include "core/FieldRules.h"
#include "core/Trap.h"
#include "model/Contact.h"
#include "model/Main.h"
#include "ui/widgets/HoverButtonArray.h"
#include "ui/widgets/Pictures.h"
#include "ui_frmAlertContacts.h"

#include <QHeaderView>
#include <unordered_set>

using namespace Qt::StringLiterals;

namespace {

constexpr int Cancel = 1;
constexpr int Ok = 2;

constexpr int nameColumn = 1;
constexpr int lastNameColumn = 2;
constexpr int alertsColumn = 3;
constexpr int countColumn = 4; ///< the number of "Alerts", where that column dresses it up; not shown

} // namespace

frmAlertContacts::frmAlertContacts()
    : Form(u"frmAlertContacts"_s, Qt::Dialog), m_ui(std::make_unique<Ui::frmAlertContacts>())
{
    m_ui->setupUi(this);
    Grid* grid = m_ui->Grid1;
    grid->SetMultiSelect(false);
    grid->horizontalHeader()->setStretchLastSection(true);
    connect(grid, &Grid::SelectionChange, this, &frmAlertContacts::Grid1_SelectionChange);
    connect(grid, &Grid::DblClick, this, &frmAlertContacts::OkClick);
    connect(grid, &Grid::KeyDown, this, [this](int code) {
        if (code == Key::Enter)
            OkClick();
    });
    LoadBitMaps();
    // A window that is closed by its box has chosen nothing.
    gReturnValue.clear();
    Form_Load();
    CenterForm(*this);
}

frmAlertContacts::~frmAlertContacts() = default;

void frmAlertContacts::Form_Load()
{
    Trap(u"frmAlertContacts Form_Load Error #"_s, Icon::Critical, [this] {
        const HourGlass hourGlass;
        setWindowTitle(u"Choose a Contact for the New Alert"_s);
        if (gAlertMode == AlertMode::SetNew) {
            LoadAllContacts();
        } else if (gAlertMode == AlertMode::Manage) {
            setWindowTitle(u"Contacts with Existing Alerts"_s);
            LoadAllAlerts();
        }
        // The list comes by last names, the first change of the order goes by first names, which is meant.
        m_sortColumn = nameColumn;
    });
}

void frmAlertContacts::LoadBitMaps()
{
    m_buttons = new HoverButtonArray(*this, {{Cancel, u"Cancel"_s, u"Cancel"_s}, {Ok, u"Ok"_s, u"Ok"_s}});
    connect(m_buttons, &HoverButtonArray::Click, this, &frmAlertContacts::cmdButton_Click);
    m_ui->cmdAscDesc->setIcon(Pictures::Icon(u"DirectionUp"_s));
    connect(m_ui->cmdAscDesc, &QPushButton::clicked, this, &frmAlertContacts::cmdAscDesc_Click);
    int index = 0;
    for (QRadioButton* option : {m_ui->OptSort_1, m_ui->OptSort_2, m_ui->OptSort_3}) {
        ++index;
        connect(option, &QRadioButton::clicked, this, [this, index] { OptSort_Click(index); });
    }
}

void frmAlertContacts::LoadColumns()
{
    Grid& grid = *m_ui->Grid1;
    grid.ClearWithColumns();
    grid.AddColumn({.Key = u"FirstName"_s, .Header = u"FirstName"_s, .Width = 15});
    grid.AddColumn({.Key = u"LastName"_s, .Header = u"LastName"_s, .Width = 15});
    grid.AddColumn({.Key = u"Alerts"_s, .Header = u"Alerts"_s, .Width = 15});
    grid.AddColumn({.Key = u"Count"_s, .Visible = false, .Sort = SortType::Number});
}

void frmAlertContacts::LoadAllAlerts()
{
    LoadColumns();
    m_ui->Grid1->SetRedraw(false);
    std::unordered_set<Long> shown;
    for (const std::shared_ptr<Alert>& alert : gAlerts) {
        // An alert whose contact is missing was reported at the start.
        const std::shared_ptr<Contact>* contact = gContacts.Find(alert->ContactID);
        if (contact == nullptr || !*contact || !shown.insert(alert->ContactID).second)
            continue;
        const Long count = (*contact)->NumberOfAlerts;
        AddContact(**contact, FormatName(**contact), count > 0 ? u" ("_s + CStr(count) + u')' : QString());
    }
    ShowRows();
}

void frmAlertContacts::LoadAllContacts()
{
    LoadColumns();
    m_ui->Grid1->SetRedraw(false);
    gContacts.ForEach([this](Long, const std::shared_ptr<Contact>& contact) {
        if (!contact)
            return;
        const QString initial = contact->MI.isEmpty() ? QString() : contact->MI + u' ';
        const Long count = contact->NumberOfAlerts;
        AddContact(*contact, contact->FirstName + u' ' + initial, count > 0 ? CStr(count) : QString());
    });
    ShowRows();
}

void frmAlertContacts::AddContact(const Contact& contact, const QString& name, const QString& count)
{
    Grid& grid = *m_ui->Grid1;
    const int row = grid.AddRow(contact.RecID);
    grid.SetCellText(row, nameColumn, name);
    grid.SetCellText(row, lastNameColumn, contact.LastName);
    grid.SetCellText(row, alertsColumn, count);
    grid.SetCellText(row, countColumn, CStr(contact.NumberOfAlerts));
}

void frmAlertContacts::ShowRows()
{
    Grid& grid = *m_ui->Grid1;
    for (const int column : {nameColumn, lastNameColumn, alertsColumn})
        grid.AutoWidthColumn(column);
    grid.Sort(lastNameColumn, grid.Column(lastNameColumn).Sort, 1);
    grid.SetRedraw(true);
    if (grid.Rows() > 0)
        grid.SetSelectedRow(1);
}

void frmAlertContacts::Form_Activate()
{
    Grid& grid = *m_ui->Grid1;
    if (grid.Rows() > 0 && grid.SelectedRow() == 0) {
        grid.SetSelectedRow(1);
        grid.setFocus();
    }
}

void frmAlertContacts::Grid1_SelectionChange()
{
    Trap(u"frmAlertContacts Grid1_SelectionChange Error #"_s, Icon::Critical, [this] {
        const Grid& grid = *m_ui->Grid1;
        if (grid.SelectedRow() > 0)
            curContact = ContactAt(grid.RowItemData(grid.SelectedRow()));
    });
}

void frmAlertContacts::OptSort_Click(int index)
{
    m_sortColumn = index;
    SortGrid();
}

void frmAlertContacts::cmdAscDesc_Click()
{
    // The flag is looked at before it flips, so the first click leaves "Ascending", which is meant.
    m_ui->cmdAscDesc->setIcon(Pictures::Icon(m_ascending ? u"DirectionDown"_s : u"DirectionUp"_s));
    m_ui->cmdAscDesc->setText(m_ascending ? u"Descending"_s : u"Ascending"_s);
    m_ascending = !m_ascending;
    SortGrid();
    m_ui->Grid1->setFocus();
}

void frmAlertContacts::SortGrid()
{
    Trap(u"frmAlertContacts SortGrid Error #"_s, Icon::Critical, [this] {
        Grid& grid = *m_ui->Grid1;
        const int column = m_sortColumn == alertsColumn ? countColumn : m_sortColumn;
        const int direction = m_ascending ? 1 : 2;
        grid.SetSortOrder(1, direction);
        grid.Sort(column, grid.Column(column).Sort, direction);
        if (grid.Rows() == 0)
            return;
        grid.SetSelectedRow(1);
        grid.EnsureVisible(1, nameColumn);
    });
}

void frmAlertContacts::cmdButton_Click(int index)
{
    if (index == Ok) {
        OkClick();
        return;
    }
    gReturnValue.clear();
    Unload();
}

void frmAlertContacts::OkClick()
{
    Trap(u"frmAlertContacts OkClick Error #"_s, Icon::Critical, [this] {
        const Grid& grid = *m_ui->Grid1;
        if (grid.SelectedRow() == 0)
            return;
        gReturnValue = CStr(grid.RowItemData(grid.SelectedRow()));
        Unload();
    });
}

void frmAlertContacts::EscapePressed()
{
    cmdButton_Click(Cancel);
}
