#include "alerts/frmAlerts.h"

#include "alerts/AlertLook.h"
#include "alerts/DeleteAlert.h"
#include "core/Dates.h"
#include "core/FieldRules.h"
#include "core/Trap.h"
#include "model/AddNewAlert.h"
#include "model/Contact.h"
#include "model/faces.h"
#include "model/Main.h"
#include "ui/widgets/frmCalendar.h"
#include "ui/widgets/HoverButton.h"
#include "ui/widgets/HoverButtonArray.h"
#include "ui/widgets/Pictures.h"
#include "ui_frmAlerts.h"

#include <QHeaderView>

using namespace Qt::StringLiterals;

namespace {

enum Button
{
    ModifyButton = 3,
    NewButton = 4,
    DeleteButton = 5,
    ExitButton = 7
};

constexpr int iconColumn = 1;
constexpr int dateColumn = 2;
constexpr int noteColumn = 3;

void KeepPlace(QWidget* control)
{
    QSizePolicy policy = control->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    control->setSizePolicy(policy);
}

} // namespace

// The window and its list.

frmAlerts::frmAlerts() : Form(u"frmAlerts"_s), m_ui(std::make_unique<Ui::frmAlerts>())
{
    m_ui->setupUi(this);
    m_note.emplace(*m_ui->txtNotes);
    m_ui->Grid1->SetMultiSelect(false);
    m_ui->Grid1->horizontalHeader()->setStretchLastSection(true);
    connect(m_ui->Grid1, &Grid::SelectionChange, this, &frmAlerts::Grid1_SelectionChange);
    connect(m_ui->picCalendar, &QToolButton::clicked, this, &frmAlerts::picCalendar_Click);
    LoadBitMaps();
    SetEditing(false);
    Form_Load();
    CenterForm(*this);
}

frmAlerts::~frmAlerts() = default;

void frmAlerts::Form_Load()
{
    Trap(u"frmAlerts Form_Load Error #"_s, Icon::Critical, [this] {
        const HourGlass hourGlass;
        LoadAlerts();
        const bool isNew = gAlertMode == AlertMode::New || gAlertMode == AlertMode::SetNew;
        setWindowTitle(isNew ? u"New Alert for "_s + FormatName() : FormatName() + u" Alerts"_s);
    });
}

void frmAlerts::LoadBitMaps()
{
    m_buttons = new HoverButtonArray(*this, {{ModifyButton, u"Modify"_s, u"Modify"_s},
                                             {NewButton, u"New"_s, u"New"_s},
                                             {DeleteButton, u"Delete"_s, u"Delete"_s},
                                             {ExitButton, u"Exit"_s, u"Exit"_s}});
    connect(m_buttons, &HoverButtonArray::Click, this, &frmAlerts::cmdButton_Click);
    m_ui->picCalendar->setIcon(Pictures::Icon(u"calendar"_s));
    for (QWidget* control :
         {static_cast<QWidget*>(m_ui->picCalendar), static_cast<QWidget*>(m_buttons->Button(NewButton)),
          static_cast<QWidget*>(m_buttons->Button(ExitButton))})
        KeepPlace(control);
}

void frmAlerts::LoadColumns()
{
    Grid& grid = *m_ui->Grid1;
    grid.ClearWithColumns();
    grid.AddColumn({.Key = u"Alert"_s, .Width = 19, .Alignment = Qt::AlignCenter});
    grid.AddColumn({.Key = u"Date"_s, .Header = u"Date"_s, .Width = DateColumnWidth(85, grid), .Sort = SortType::Date});
    grid.AddColumn({.Key = u"Note"_s, .Header = u"Note"_s, .Width = 235});
}

void frmAlerts::LoadAlerts()
{
    LoadColumns();
    if (!curContact)
        throw RunTimeError(ErrorNumber::ObjectNotSet);
    for (const Alert* alert : gAlerts.OfContact(curContact->RecID))
        AddAlertToGrid(*alert);
}

void frmAlerts::WriteRow(int row, const Alert& alert)
{
    Grid& grid = *m_ui->Grid1;
    grid.SetCellText(row, dateColumn, AlertDateText(alert.AlertDate));
    grid.SetCellText(row, noteColumn, AlertNoteText(alert.AlertNote));
    grid.SetCellIcon(row, iconColumn, AlertIcon(alert.AlertDate, TodayDate()));
}

void frmAlerts::AddAlertToGrid(const Alert& alert, int row)
{
    Grid& grid = *m_ui->Grid1;
    const int added = grid.AddRow(alert.KeyID(), row);
    WriteRow(added, alert);
    // The current alert may be long gone, with its window.
    if (curAlertIndex > 0 && curAlertIndex <= gAlerts.Count() && gAlerts.Item(curAlertIndex)->Key == alert.Key)
        grid.SelectCell(added, dateColumn);
}

void frmAlerts::InsertIntoGrid(const Alert& alert)
{
    const Grid& grid = *m_ui->Grid1;
    int row = 0;
    for (int other = 1; other <= grid.Rows(); ++other) {
        row = other;
        if (CDate(grid.CellText(other, dateColumn)) <= alert.AlertDate)
            break;
    }
    AddAlertToGrid(alert, row);
}

void frmAlerts::SortGrid()
{
    m_ui->Grid1->Sort(dateColumn, SortType::Date, 2);
}

void frmAlerts::Form_Activate()
{
    Trap(u"frmAlerts Form_Activate Error #"_s, Icon::Critical, [this] {
        if (!std::exchange(m_activated, true) && gAlertMode == AlertMode::New)
            cmdButton_Click(NewButton);
        if (IsUnloaded() || m_editing || !m_ui->lblDate->text().isEmpty())
            return;
        SortGrid();
        ChooseRow();
    });
}

void frmAlerts::ChooseRow()
{
    const Grid& grid = *m_ui->Grid1;
    if (grid.Rows() == 0)
        return;
    if (grid.SelectedRow() == 0) {
        SelectRow(1);
        return;
    }
    const int row = gAlertMode != AlertMode::New ? grid.FindRow(curAlertKey()) : 0;
    SelectRow(row > 0 ? row : grid.SelectedRow());
    if (row == 0)
        m_ui->txtNotes->setFocus();
}

void frmAlerts::SelectRow(int row)
{
    m_ui->Grid1->SelectCell(row, dateColumn);
    m_ui->Grid1->EnsureVisible(row, dateColumn);
    Grid1_SelectionChange();
}

void frmAlerts::Grid1_SelectionChange()
{
    Trap(u"frmAlerts Grid1_SelectionChange Error #"_s, Icon::Critical, [this] {
        const Grid& grid = *m_ui->Grid1;
        if (grid.SelectedRow() == 0)
            return;
        curAlertIndex = FindAlert(grid.RowItemData(grid.SelectedRow()));
        ShowAlert(*gAlerts.Item(curAlertIndex));
    });
}

void frmAlerts::Form_QueryUnload(bool& cancel, UnloadMode mode)
{
    // Save and Cancel are the ways out of a note that is being written.
    cancel = m_editing && mode == UnloadMode::CloseBox;
}

void frmAlerts::Form_Unload(bool&)
{
    Trap(u"frmAlerts Form_Unload Error #"_s, Icon::Critical, [this] {
        if (curContact)
            curContact->NumberOfAlerts = m_ui->Grid1->Rows();
    });
}

void frmAlerts::EscapePressed()
{
    cmdButton_Click(m_editing ? DeleteButton : ExitButton);
}

// The fields.

void frmAlerts::ShowAlert(const Alert& alert)
{
    m_ui->lblDate->setText(AlertDateText(alert.AlertDate));
    m_note->Show(alert.AlertNote);
}

void frmAlerts::ClearFields()
{
    m_ui->lblDate->clear();
    m_note->Show({});
}

// The buttons.

void frmAlerts::cmdButton_Click(int index)
{
    switch (index) {
    case ModifyButton:
        if (m_editing)
            SaveClick();
        else
            ModifyClick();
        break;
    case NewButton:
        NewClick();
        break;
    case DeleteButton:
        if (m_editing)
            CancelClick();
        else
            DeleteClick();
        break;
    default:
        Unload();
    }
}

void frmAlerts::picCalendar_Click()
{
    Trap(u"frmAlerts picCalendar_Click Error #"_s, Icon::Critical, [this] {
        const QString date = AskForDate(u"Alert Date for "_s + FormatName(), m_ui->lblDate->text());
        if (!date.isEmpty())
            m_ui->lblDate->setText(date);
    });
}

void frmAlerts::NewClick()
{
    Trap(u"frmAlerts NewClick Error #"_s, Icon::Critical, [this] {
        const QString date = AskForDate(u"Alert Date for "_s + FormatName());
        if (date.isEmpty())
            return;
        gAlertMode = AlertMode::New;
        m_note->Show({});
        m_ui->lblDate->setText(date);
        SetEditing(true);
    });
}

void frmAlerts::ModifyClick()
{
    Trap(u"frmAlerts ModifyClick Error #"_s, Icon::Critical, [this] {
        if (m_ui->Grid1->Rows() == 0)
            return;
        gAlertMode = AlertMode::Modify;
        SetEditing(true);
    });
}

void frmAlerts::SetEditing(bool editing)
{
    m_editing = editing;
    m_ui->Grid1->setEnabled(!editing);
    m_ui->picCalendar->setVisible(editing);
    m_ui->txtNotes->setReadOnly(!editing);
    m_ui->txtNotes->viewport()->setBackgroundRole(editing ? QPalette::Base : QPalette::Window);
    if (editing) {
        m_ui->txtNotes->selectAll();
        m_ui->txtNotes->setFocus();
        m_buttons->SetPicture(ModifyButton, u"Save"_s, u"Save"_s);
        m_buttons->SetPicture(DeleteButton, u"Cancel"_s, u"Cancel"_s);
    } else {
        m_ui->Grid1->setFocus();
        m_buttons->SetPicture(ModifyButton, u"Modify"_s, u"Modify"_s);
        m_buttons->SetPicture(DeleteButton, u"Delete"_s, u"Delete"_s);
    }
    m_buttons->SetVisible(NewButton, !editing);
    m_buttons->SetVisible(ExitButton, !editing);
}

void frmAlerts::SaveClick()
{
    Trap(u"frmAlerts SaveClick Error #"_s, Icon::Critical, [this] {
        if (!IsDate(m_ui->lblDate->text())) {
            MsgBox(u"Please check the Alert Date."_s, Buttons::Ok, Icon::Information, u"Invalid Alert Date"_s);
            return;
        }
        const QString note = m_note->Text();
        if (note.isEmpty()) {
            // The misspelling is meant.
            MsgBox(u"I did not save this alert because\r\nyou did not enter any Snotes."_s, Buttons::Ok,
                   Icon::Information, u"Alert not Saved"_s);
            m_ui->txtNotes->setFocus();
            return;
        }
        if (m_ui->Grid1->Rows() == 0 || gAlertMode == AlertMode::New || gAlertMode == AlertMode::SetNew)
            SaveNew(note);
        else
            SaveChange(note);
        SortGrid();
        SetEditing(false);
    });
}

void frmAlerts::SaveNew(const QString& note)
{
    if (m_ui->Grid1->Columns() == 0)
        LoadColumns();
    const std::shared_ptr<Alert> alert = AddToAlertCollection(m_ui->lblDate->text(), note);
    // The first alert of that key: a second one on the same day shares it until the next start, which is meant.
    curAlertIndex = FindAlert(alert->ID);
    InsertIntoGrid(*alert);
    if (auto* panels = Face<AlertPanelsFace>::Get())
        panels->InsertAlertToGrid(*alert, IsAFutureDate(alert->AlertDate));
    ++curContact->NumberOfAlerts;
    ShowAlertIcon();
    m_note->Show(note);
}

void frmAlerts::SaveChange(const QString& note)
{
    const std::shared_ptr<Alert> alert = gAlerts.Item(curAlertIndex);
    auto* panels = Face<AlertPanelsFace>::Get();
    if (panels != nullptr)
        panels->RemoveAlertFromGrid(curAlertKey(), IsAFutureDate(alert->AlertDate));
    alert->AlertDate = CDate(m_ui->lblDate->text());
    alert->AlertNote = note;
    alert->UpdateDB();
    if (panels != nullptr)
        panels->InsertAlertToGrid(*alert, IsAFutureDate(alert->AlertDate));
    WriteRow(m_ui->Grid1->SelectedRow(), *alert);
    ShowAlertIcon();
    m_note->Show(note);
}

void frmAlerts::DeleteClick()
{
    Trap(u"frmAlerts DeleteClick Error #"_s, Icon::Critical, [this] {
        Grid& grid = *m_ui->Grid1;
        if (grid.SelectedRow() == 0 || !ConfirmedDelete(*gAlerts.Item(curAlertIndex)))
            return;
        DeleteCurrentAlert();
        if (auto* panels = Face<AlertPanelsFace>::Get())
            panels->FillAlertGrid(IsAFutureDate(CDate(m_ui->lblDate->text())));
        grid.RemoveRow(grid.SelectedRow());
        if (grid.Rows() > 0) {
            Grid1_SelectionChange();
        } else {
            curAlertIndex = 0;
            ClearFields();
        }
        CountDeletedAlert();
    });
}

void frmAlerts::CancelClick()
{
    Trap(u"frmAlerts CancelClick Error #"_s, Icon::Critical, [this] {
        SetEditing(false);
        const Grid& grid = *m_ui->Grid1;
        if (grid.Rows() == 0)
            ClearFields();
        else if (grid.SelectedRow() > 0)
            ShowAlert(*gAlerts.Item(curAlertIndex));
        else
            SelectRow(1);
    });
}
