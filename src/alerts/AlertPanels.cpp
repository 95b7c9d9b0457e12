#include "alerts/AlertPanels.h"

#include "alerts/AlertLook.h"
#include "alerts/DeleteAlert.h"
#include "alerts/ManageAlerts.h"
#include "core/Convert.h"
#include "core/Dates.h"
#include "core/FieldRules.h"
#include "core/Trap.h"
#include "model/Contact.h"
#include "model/Main.h"
#include "model/ShowContact.h"
#include "ui/frame/frmMain.h"
#include "ui/frame/Menus.h"
#include "ui/widgets/Grid.h"
#include "ui/widgets/Theme.h"

#include <QAction>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QScopeGuard>
#include <QSplitter>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

// GridAlerts.
constexpr int iconColumn = 1;
constexpr int dateColumn = 2;
constexpr int noteColumn = 3;
// GridFutureAlerts.
constexpr int textColumn = 1;

constexpr int newestFirst = 2;

int SortColumn(bool future)
{
    return future ? textColumn : dateColumn;
}

/// The first row that sorts behind `text`, where the date sort would carry a row added at the end; 0 for the end
/// itself.
int PlaceOf(const Grid& panel, int column, const QString& text)
{
    const std::optional<Date> date = ParseDate(text);
    int first = 1;
    int behind = panel.Rows() + 1;
    while (first < behind) {
        const int middle = first + (behind - first) / 2;
        if (ParseDate(panel.CellText(middle, column)) < date)
            behind = middle;
        else
            first = middle + 1;
    }
    return first > panel.Rows() ? 0 : first;
}

QString FutureText(const Alert& alert)
{
    return AlertDateText(alert.AlertDate) + u' ' + AlertNoteText(alert.AlertNote);
}

} // namespace

AlertPanels::AlertPanels(frmMain& window)
    : m_window(window)
    , m_current(new Grid)
    , m_future(new Grid)
    , m_currentCount(new QLabel)
    , m_futureCount(new QLabel)
    , m_popupPanel(m_current)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(Theme::Spacing, Theme::Spacing, Theme::Spacing, Theme::Spacing);
    auto* splitter = new QSplitter(Qt::Vertical, this);
    splitter->setChildrenCollapsible(false);
    layout->addWidget(splitter);
    m_current->setObjectName(u"GridAlerts"_s);
    m_future->setObjectName(u"GridFutureAlerts"_s);
    m_currentCount->setObjectName(u"lblCurrentAlerts"_s);
    m_futureCount->setObjectName(u"lblFutureAlerts"_s);
    AddSection(u"Current Alerts"_s, u"lblCurrentAlert"_s, *m_currentCount, *m_current);
    AddSection(u"Future Alerts"_s, u"lblFutureAlert"_s, *m_futureCount, *m_future);
    setMinimumWidth(200);

    ConnectGrid(*m_current);
    ConnectGrid(*m_future);
    // The other panel follows on a click only, which is meant.
    connect(m_current, &Grid::SelectionChange, this, &AlertPanels::GridAlerts_SelectionChange);
    PlugMenu();
    ShowCounts();
}

AlertPanels::~AlertPanels() = default;

void AlertPanels::AddSection(const QString& heading, const QString& name, QLabel& count, Grid& grid)
{
    auto* section = new QWidget;
    auto* layout = new QVBoxLayout(section);
    layout->setContentsMargins(0, 0, 0, 4);
    auto* row = new QHBoxLayout;
    auto* label = new QLabel(heading);
    label->setObjectName(name);
    QFont bold = label->font();
    bold.setBold(true);
    label->setFont(bold);
    count.setAccessibleName(heading);
    row->addWidget(label);
    row->addStretch();
    row->addWidget(&count);
    layout->addLayout(row);
    layout->addWidget(&grid);
    grid.setAccessibleName(heading);
    grid.SetMultiSelect(false);
    grid.SetHeaderVisible(false);
    grid.horizontalHeader()->setStretchLastSection(true);
    grid.setMinimumHeight(60);
    findChild<QSplitter*>()->addWidget(section);
}

void AlertPanels::ConnectGrid(Grid& grid)
{
    connect(&grid, &Grid::MenuKey, this,
            [this, &grid](QPoint position) { Grid_MouseUp(grid, Qt::RightButton, position); });
    connect(&grid, &Grid::DblClick, this, [this, &grid] { mnuShowAlert_Click(grid); });
    connect(&grid, &Grid::KeyDown, this, [this, &grid](int code) { Grid_KeyDown(grid, code); });
    connect(&grid, &Grid::MouseUp, this,
            [this, &grid](Qt::MouseButton button, QPoint position) { Grid_MouseUp(grid, button, position); });
}

void AlertPanels::PlugMenu()
{
    Menus& menus = m_window.MainMenus();
    menus.Plug(u"mnuShowAlert"_s, this, [this] { mnuShowAlert_Click(*m_popupPanel); });
    menus.Plug(u"mnuShowContact"_s, this, [this] { mnuShowContact_Click(*m_popupPanel); });
    menus.Plug(u"mnuManageCurAlerts"_s, this, [] { ManageAlerts(); });
    menus.Plug(u"mnuDeleteAlert"_s, this, [this] { mnuDeleteAlert_Click(*m_popupPanel); });
    menus.Plug(u"mnuNewCurAlert"_s, this, [] { SetNewAlert_Click(); });
    // The entries come back only behind the next popup, so the first one after an empty panel's is still short, which
    // is meant.
    connect(&menus.Menu(u"mnuAlertGrid"_s), &QMenu::aboutToHide, this, [this] {
        if (m_showRowEntriesLater)
            ShowRowEntries(true);
    });
}

// The rows.

void AlertPanels::AddColumns()
{
    if (m_current->Columns() > 0)
        return;
    m_current->AddColumn({.Width = 25, .Alignment = Qt::AlignCenter});
    m_current->AddColumn({.Width = DateColumnWidth(75, *m_current), .Sort = SortType::Date});
    m_current->AddColumn({});
    m_future->AddColumn({.Sort = SortType::Date});
}

void AlertPanels::FillAlertGrid(bool futureOnly)
{
    Trap(u"frmMain FillAlertGrid Error #"_s, Icon::Critical, [&] {
        const HourGlass hourGlass;
        gAlertsCurrent = 0;
        gAlertsFuture = 0;
        AddColumns();
        // Without any alert the rows stay as they are, which is meant: who removed the alerts has removed their rows.
        if (gAlerts.Count() > 0)
            Refill(futureOnly);
        ShowCounts();
        for (Grid* panel : {m_current, m_future}) {
            if (panel->Rows() > 0)
                panel->SetSelectedRow(1);
        }
    });
}

void AlertPanels::ClearPanels()
{
    m_current->Clear();
    m_future->Clear();
}

void AlertPanels::Refill(bool future)
{
    const Date today = TodayDate();
    std::vector<std::pair<Date, const Alert*>> shown;
    for (const std::shared_ptr<Alert>& alert : gAlerts) {
        const bool isFuture = alert->AlertDate > today;
        ++(isFuture ? gAlertsFuture : gAlertsCurrent);
        if (isFuture == future)
            shown.emplace_back(alert->AlertDate, alert.get());
    }
    Grid& panel = Panel(future);
    panel.SetRedraw(false);
    const auto redraw = qScopeGuard([&panel] { panel.SetRedraw(true); });
    panel.Clear();
    panel.SetSortOrder(1, newestFirst);
    if (future) {
        for (const auto& [date, alert] : shown)
            AddAlert(panel.AddRow(alert->KeyID()), *alert, future);
        // A cell is a date here only where the note adds none but a time; the others stay in their order, which is
        // meant.
        panel.Sort(textColumn, SortType::Date, newestFirst);
        return;
    }
    // As the date sort would order the cells, without reading each date back from its text.
    std::stable_sort(shown.begin(), shown.end(),
                     [](const auto& one, const auto& other) { return other.first < one.first; });
    for (const auto& [date, alert] : shown)
        AddCurrentAlert(*alert, today);
}

void AlertPanels::AddCurrentAlert(const Alert& alert, Date today)
{
    const int row = m_current->AddRow(alert.KeyID());
    AddAlert(row, alert, false);
    m_current->SetCellIcon(row, iconColumn, AlertIcon(alert.AlertDate, today));
    if (alert.AlertDate != today)
        return;
    m_current->SetCellColor(row, dateColumn, Theme::Red);
    m_current->SetCellColor(row, noteColumn, Theme::Red);
}

void AlertPanels::AddAlert(int row, const Alert& alert, bool future)
{
    if (future) {
        m_future->SetCellText(row, textColumn, FutureText(alert));
        return;
    }
    m_current->SetCellText(row, dateColumn, AlertDateText(alert.AlertDate));
    m_current->SetCellText(row, noteColumn, AlertNoteText(alert.AlertNote));
}

void AlertPanels::InsertAlertToGrid(const Alert& alert, bool isFuture)
{
    Trap(u"frmMain InsertAlertToGrid Error #"_s, Icon::Critical, [&] {
        AddColumns();
        Grid& panel = Panel(isFuture);
        const QString text = isFuture ? FutureText(alert) : AlertDateText(alert.AlertDate);
        const int row = panel.AddRow(alert.KeyID(), PlaceOf(panel, SortColumn(isFuture), text));
        AddAlert(row, alert, isFuture);
        // Only a new filling makes the text of a row of today red, which is meant.
        if (const Date today = TodayDate(); !isFuture && alert.AlertDate <= today)
            panel.SetCellIcon(row, iconColumn, AlertIcon(alert.AlertDate, today));
        panel.SelectCell(row, 1);
        panel.EnsureVisible(row, 1);
        ++(isFuture ? gAlertsFuture : gAlertsCurrent);
        ShowCounts();
    });
}

void AlertPanels::RemoveAlertFromGrid(Long alertID, bool isFuture)
{
    // The counts stay, which is meant: after a change of an alert they run one high until the next filling.
    Trap(u"frmMain RemoveAlertFromGrid Error #"_s, Icon::Critical, [&] {
        Grid& panel = Panel(isFuture);
        if (const int row = panel.FindRow(alertID); row > 0)
            panel.RemoveRow(row);
    });
}

void AlertPanels::RemoveAlerts(const std::vector<Long>& alertIDs)
{
    Trap(u"frmMain RemoveAlerts Error #"_s, Icon::Critical, [&] {
        for (Grid* panel : {m_current, m_future})
            RemoveRowsOf(*panel, alertIDs);
    });
}

void AlertPanels::ShowCounts()
{
    m_currentCount->setText(CStr(gAlertsCurrent));
    m_futureCount->setText(CStr(gAlertsFuture));
}

// Keys, mouse and menu.

void AlertPanels::GridAlerts_SelectionChange()
{
    Trap(u"frmMain GridAlerts_SelectionChange Error #"_s, Icon::Critical, [this] {
        if (m_current->SelectedRow() > 0)
            curAlertIndex = FindAlert(m_current->RowItemData(m_current->SelectedRow()));
    });
}

void AlertPanels::Grid_KeyDown(Grid& panel, int code)
{
    if (code == Key::Delete)
        mnuDeleteAlert_Click(panel);
    else if (code == Key::Enter)
        mnuShowAlert_Click(panel);
}

void AlertPanels::Grid_MouseUp(Grid& panel, Qt::MouseButton button, QPoint position)
{
    const QString tag =
        &panel == m_future ? u"frmMain GridFutureAlerts Mouse_UP Error #"_s : u"frmMain GridAlerts Mouse_UP Error #"_s;
    Trap(tag, Icon::Critical, [&] {
        if (panel.SelectedRow() > 0)
            curAlertIndex = FindAlert(panel.RowItemData(panel.SelectedRow()));
        if (button == Qt::RightButton)
            PopUpMenu(panel, position);
    });
}

void AlertPanels::PopUpMenu(Grid& panel, QPoint position)
{
    m_popupPanel = &panel;
    m_showRowEntriesLater = panel.Rows() > 0;
    if (!m_showRowEntriesLater)
        ShowRowEntries(false);
    m_window.MainMenus().Menu(u"mnuAlertGrid"_s).popup(position);
}

void AlertPanels::ShowRowEntries(bool shown)
{
    for (const auto name : {"mnuShowAlert"_L1, "mnuShowContact"_L1, "mnuManageCurAlerts"_L1, "mnuDeleteAlert"_L1})
        m_window.MainMenus().Entry(QString(name)).setVisible(shown);
}

bool AlertPanels::TakeRow(const Grid& panel)
{
    if (panel.SelectedRow() == 0)
        return false;
    curAlertIndex = FindAlert(panel.RowItemData(panel.SelectedRow()));
    curContact = ContactAt(gAlerts.Item(curAlertIndex)->ContactID);
    return true;
}

void AlertPanels::mnuShowAlert_Click(const Grid& panel)
{
    Trap(u"frmMain mnuShowAlert_Click Error #"_s, Icon::Critical, [&] {
        if (!TakeRow(panel))
            return;
        gAlertMode = AlertMode::Modify;
        ShowAlerts();
    });
}

void AlertPanels::mnuShowContact_Click(const Grid& panel)
{
    Trap(u"frmMain mnuShowContact_Click Error #"_s, Icon::Critical, [&] {
        if (TakeRow(panel))
            ShowContact();
    });
}

void AlertPanels::mnuDeleteAlert_Click(const Grid& panel)
{
    Trap(u"frmMain mnuDeleteAlert_Click Error #"_s, Icon::Critical, [&] {
        if (TakeRow(panel))
            ConfirmDelThisAlert();
    });
}
