#include "search/frmSetValue.h"

#include "core/User.h"
#include "model/Lists.h"
#include "search/EntryFilter.h"
#include "ui/widgets/HoverButtonArray.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QStackedLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int Cancel = 1;
constexpr int Ok = 2;
constexpr int inputWidth = 320;

bool IsDigit(int keyAscii)
{
    return keyAscii >= u'0' && keyAscii <= u'9';
}

EntryRules PhoneRules()
{
    return {.Accepts = [](int key, QStringView) { return IsDigit(key) || key == Key::Backspace; },
            .AfterKey = FormatPhone,
            .Pasted = u"0123456789()- "_s};
}

EntryRules NumberRules()
{
    return {.Accepts = [](int key, QStringView) { return Numeric(key); }, .Pasted = u"0123456789."_s};
}

} // namespace

frmSetValue::frmSetValue(const QString& caption, ValueInput input, const QString& seed)
    : Form(u"frmSetValue"_s, Qt::Dialog), m_inputs(new QStackedLayout)
{
    setWindowTitle(caption);
    // A window that is closed by its box has chosen nothing.
    gReturnValue.clear();
    AddTexts();
    AddLists();
    auto* line = new QHBoxLayout;
    line->addStretch();
    auto* buttons = new HoverButtonArray(*this, *line, {{Ok, u"Ok"_s, u"Ok"_s}, {Cancel, u"Cancel"_s, u"Cancel"_s}});
    connect(buttons, &HoverButtonArray::Click, this, &frmSetValue::cmdbutton_Click);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 16, 16, 8);
    layout->addLayout(m_inputs);
    layout->addStretch();
    layout->addLayout(line);
    setMinimumWidth(std::max(TitleWidth(), minimumSizeHint().width()));
    ShowInput(input, seed);
    CenterForm(*this);
}

void frmSetValue::AddTexts()
{
    const auto add = [this](ValueInput input, const QString& name) {
        auto* entry = new QLineEdit(this);
        AddInput(input, entry, name);
        return entry;
    };
    add(ValueInput::txtLongString, u"txtLongString"_s);
    add(ValueInput::txtInitial, u"txtInitial"_s);
    new EntryFilter(*add(ValueInput::txtShortInt, u"txtShortInt"_s), NumberRules());
    new EntryFilter(*add(ValueInput::txtPhone, u"txtPhone"_s), PhoneRules());
}

void frmSetValue::AddLists()
{
    const auto add = [this](ValueInput input, const QString& name, const QStringList& entries) {
        auto* list = new QComboBox(this);
        list->addItems(entries);
        list->setCurrentIndex(-1);
        AddInput(input, list, name);
    };
    add(ValueInput::cboState, u"cboState"_s, ListEntries(ListField::State));
    // This list alone has one entry more, which no property bears: that is meant.
    add(ValueInput::cboPropType, u"cboPropType"_s, QStringList(ListEntries(ListField::PropType)) << u"Villa"_s);
    add(ValueInput::cboConstruction, u"cboConstruction"_s, ListEntries(ListField::Construction));
    add(ValueInput::cboFloor, u"cboFloor"_s, ListEntries(ListField::Floor));
    add(ValueInput::cboRoof, u"cboRoof"_s, ListEntries(ListField::Roof));
    add(ValueInput::cboParking, u"cboParking"_s, ListEntries(ListField::Parking));
    add(ValueInput::cboPool, u"cboPool"_s, ListEntries(ListField::Pool));
    add(ValueInput::cboYesNo, u"cboYesNo"_s, ListEntries(ListField::FirstYesNo));
    add(ValueInput::cboRentalBasis, u"cboRentalBasis"_s, ListEntries(ListField::RentalBasis));
}

void frmSetValue::AddInput(ValueInput input, QWidget* control, const QString& name)
{
    control->setObjectName(name);
    control->setAccessibleName(windowTitle());
    control->setMinimumWidth(inputWidth);
    m_inputs->addWidget(control);
    m_controls.insert(input, control);
}

void frmSetValue::ShowInput(ValueInput input, const QString& seed)
{
    QWidget* active = m_controls.value(input);
    m_inputs->setCurrentWidget(active);
    active->setFocus();
    if (auto* entry = qobject_cast<QLineEdit*>(active); entry != nullptr && !seed.isEmpty()) {
        entry->setText(seed);
        // setFocus marks the text when the window is shown; the next key must not replace what was typed.
        entry->end(false);
    }
}

bool frmSetValue::KeyPreview(QKeyEvent* event)
{
    return EnterIsOk(*event, [this] { cmdbutton_Click(Ok); });
}

void frmSetValue::EscapePressed()
{
    cmdbutton_Click(Cancel);
}

void frmSetValue::cmdbutton_Click(int index)
{
    gReturnValue.clear();
    if (index == Ok) {
        const QWidget* active = m_inputs->currentWidget();
        if (const auto* entry = qobject_cast<const QLineEdit*>(active))
            gReturnValue = entry->text();
        else if (const auto* list = qobject_cast<const QComboBox*>(active))
            gReturnValue = list->currentText();
    }
    Unload();
}
