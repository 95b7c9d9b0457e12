#include "editors/frmProperty.h"

#include "core/Strings.h"
#include "core/Trap.h"
#include "editors/frmPropertyList.h"
#include "editors/PropertyRecord.h"
#include "editors/PropertyRows.h"
#include "editors/SheetButtons.h"
#include "editors/SheetEditor.h"
#include "model/Contact.h"
#include "model/Main.h"
#include "model/PropDescribe.h"
#include "ui/widgets/frmCalendar.h"
#include "ui/widgets/HoverButtonArray.h"
#include "ui/widgets/Pictures.h"
#include "ui/widgets/Theme.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QShortcut>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace {

/// The list rows whose headers no rule of the start knows: begun on, they stand on no entry, which is meant.
constexpr PropertyField withoutEntry[]{PropertyField::State, PropertyField::PropType, PropertyField::FloodZone,
                                       PropertyField::PetsAllowed, PropertyField::RentalBasis};

bool IsDateRow(int row)
{
    return row > 0 && KindOf(FieldOf(row)) == PropertyKind::Date;
}

} // namespace

frmProperty::frmProperty() : Form(u"frmProperty"_s)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(Theme::Spacing, Theme::Spacing, Theme::Spacing, Theme::Spacing);
    layout->setSpacing(Theme::Spacing);
    m_sheet = new SheetEditor(PropertyRows(), this);
    m_sheet->SetStartRow([this](int curRow) { return StartRow(curRow); });
    m_sheet->SetStarted([this](int row) { Started(row); });
    layout->addWidget(m_sheet, 1);
    LoadBitMaps();
    AddCalendar();
    Form_Load();
    // As many rows as the screen has room for; CenterForm takes away what it has not.
    resize(sizeHint());
    CenterForm(*this);
}

frmProperty::~frmProperty() = default;

void frmProperty::Form_Load()
{
    Trap(u"frmProperty Form_Load Error #"_s, Icon::Critical, [this] {
        if (gEditMode == EditMode::ModifyProperty) {
            LoadProp();
            setWindowTitle(u"Property Modification"_s);
            ShoWait(PropDescribe());
        } else {
            ShowNewCaption();
        }
    });
}

void frmProperty::ShowNewCaption()
{
    setWindowTitle(u"New Property for "_s + FormatName());
    ShoWait(u"Adding a Property.."_s);
}

void frmProperty::LoadBitMaps()
{
    m_buttons = AddSheetButtons(*this, *static_cast<QBoxLayout*>(layout()));
    connect(m_buttons, &HoverButtonArray::Click, this, &frmProperty::Press);
}

void frmProperty::AddCalendar()
{
    m_picCalendar = new QToolButton(m_sheet);
    m_picCalendar->setObjectName(u"picCalendar"_s);
    m_picCalendar->setAccessibleName(u"Calendar"_s);
    m_picCalendar->setToolTip(u"Calendar (Alt+D)"_s);
    m_picCalendar->setIcon(Pictures::Icon(u"calendar"_s));
    m_picCalendar->setFocusPolicy(Qt::NoFocus);
    m_picCalendar->hide();
    connect(m_picCalendar, &QToolButton::clicked, this, &frmProperty::picCalendar_Click);
    auto* shortcut = new QShortcut(QKeySequence(u"Alt+D"_s), this);
    shortcut->setAutoRepeat(false);
    connect(shortcut, &QShortcut::activated, this, [this] {
        if (!m_picCalendar->isHidden())
            picCalendar_Click();
    });
    connect(m_sheet, &SheetEditor::Placed, this, &frmProperty::PlaceCalendar);
}

void frmProperty::LoadProp()
{
    ShowPropValues(*CurProperty(), *m_sheet);
}

// Where the sheet begins.

int frmProperty::StartRow(int curRow) const
{
    // An unfinished date is not left upward.
    if (IsDateRow(curRow))
        return curRow;
    if (curRow == RowOf(PropertyField::MLS) || gEditMode == EditMode::NewProperty)
        return RowOf(PropertyField::MLS);
    const auto* list = frmPropertyList::Loaded();
    if (gFocusField.isEmpty() || list == nullptr || list->SelectedHeader() != gFocusField)
        return curRow;
    return m_sheet->RowOfTag(gFocusField);
}

void frmProperty::Started(int row)
{
    const PropertyField field = FieldOf(row);
    if (gEditMode == EditMode::NewProperty)
        return;
    if (std::ranges::find(withoutEntry, field) != std::end(withoutEntry))
        qobject_cast<QComboBox*>(m_sheet->Control(row))->setCurrentIndex(-1);
    // Neither the bare digits of a rent nor the calendar of a lease come at the start, which is meant.
    if (field == PropertyField::RentalAmount)
        m_sheet->SetField(row, {m_sheet->Value(row), m_sheet->Value(row).size()});
    if (field == PropertyField::LeaseExpires) {
        m_withoutCalendar = row;
        PlaceCalendar(row);
    }
}

void frmProperty::ClearGrids()
{
    m_sheet->Clear();
    m_sheet->txtFirst_GotFocus();
}

// The calendar.

void frmProperty::PlaceCalendar(int row)
{
    if (row != m_withoutCalendar)
        m_withoutCalendar = 0;
    QWidget* control = m_sheet->Control(row);
    const QRect cell = control->geometry();
    const bool inView = control->parentWidget()->rect().contains(cell.center());
    if (!IsDateRow(row) || row == m_withoutCalendar || !inView) {
        m_picCalendar->hide();
        return;
    }
    // It stands at the end of the row, beside what is typed.
    const QSize size(cell.height(), cell.height());
    const QPoint place(cell.right() + 1 - size.width(), cell.top());
    control->resize(cell.width() - size.width(), cell.height());
    m_picCalendar->setGeometry({control->parentWidget()->mapTo(m_sheet, place), size});
    m_picCalendar->show();
    m_picCalendar->raise();
}

void frmProperty::picCalendar_Click()
{
    Trap(u"frmProperty picCalendar_Click Error #"_s, Icon::Critical, [this] {
        const int row = m_sheet->CurRow();
        if (row == 0)
            return;
        const QString date = AskForDate(m_sheet->Control(row)->accessibleName(), m_sheet->ControlText(row));
        if (!date.isEmpty())
            m_sheet->SetField(row, {date, date.size()});
    });
}

// Leaving.

void frmProperty::EscapePressed()
{
    Press(SheetButton::Cancel);
}

void frmProperty::Form_QueryUnload(bool&, UnloadMode mode)
{
    if (mode == UnloadMode::CloseBox)
        Trap(u"frmProperty cmdButton_Click Error #"_s, Icon::Critical, [this] { CancelProperty(); });
}

// The buttons.

void frmProperty::Press(int index)
{
    if (IsUnloaded() || (index != SheetButton::Cancel && !m_sheet->Leave()))
        return;
    Trap(u"frmProperty cmdButton_Click Error #"_s, Icon::Critical, [this, index] { cmdButton_Click(index); });
}

void frmProperty::cmdButton_Click(int index)
{
    if (index == SheetButton::Cancel) {
        CancelProperty();
        Unload();
        return;
    }
    if (Trim(m_sheet->Value(RowOf(PropertyField::Addr1))).isEmpty()) {
        MsgBox(u"I did not save this property because\r\nit does not have a property address."_s, Buttons::Ok,
               Icon::Information, u"Property Save Cancelled"_s);
        return;
    }
    const HourGlass hourGlass;
    ShoWait(u"Saving.."_s);
    if (!SavePropToMain()) {
        SaveFailed();
        return;
    }
    if (m_sheet->CurRow() != 0)
        ApplyPropertyChanges(*m_sheet, m_sheet->CurRow());
    if (index == SheetButton::SaveAndExit) {
        Unload();
        ShoWait(u"Saved"_s);
    } else {
        AddAnother();
    }
}

void frmProperty::SaveFailed()
{
    auto* list = frmPropertyList::Loaded();
    if (m_joinsLater) {
        // One more save would write one more row.
        if (list != nullptr)
            list->CancelEdit();
        Unload();
    } else if (list != nullptr) {
        list->RemoveNewRow();
    }
    ShoWait(u"Error Saving"_s);
}

void frmProperty::CancelProperty()
{
    if (auto* list = frmPropertyList::Loaded())
        list->CancelEdit();
    ShoWait(u"Cancelled"_s);
}

void frmProperty::AddAnother()
{
    gEditMode = EditMode::NewProperty;
    ClearGrids();
    auto* list = frmPropertyList::Loaded();
    if (list == nullptr) {
        m_unseenList = std::make_unique<frmPropertyList>();
        list = m_unseenList.get();
        list->Form_Load();
    }
    list->AddNewRow();
    ShowNewCaption();
}
