#include "search/RangeForm.h"

#include "core/User.h"
#include "ui/widgets/HoverButtonArray.h"
#include "ui/widgets/Theme.h"

#include <QComboBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace {

constexpr int conditionColumn = 0;
constexpr int entryColumn = 1;
constexpr int entryWidth = 160;

} // namespace

RangeForm::RangeForm(const RangeWords& words)
    : Form(words.Name, Qt::Dialog)
    , m_rangeCondition(words.RangeCondition)
    , m_rows(new QGridLayout)
    , m_condition(new QComboBox(this))
    , m_first(AddEntry(words, 1))
    , m_between(new QLabel(words.Between, this))
    , m_second(AddEntry(words, 2))
{
    // The field's name is not told, which is meant.
    setWindowTitle(u" Search Criteria"_s);
    // A window that is closed by its box has chosen nothing.
    gReturnValue.clear();
    m_condition->setObjectName(u"cboCondition"_s);
    m_condition->setAccessibleName(u"Condition"_s);
    m_condition->addItems(words.Conditions);
    m_between->setObjectName(u"Label1"_s);
    m_between->setAlignment(Qt::AlignRight | Qt::AlignVCenter);

    m_rows->setSpacing(Theme::Spacing);
    m_rows->addWidget(m_condition, 0, conditionColumn);
    m_rows->addWidget(m_first, 0, entryColumn);
    m_rows->addWidget(m_between, 1, conditionColumn);
    m_rows->addWidget(m_second, 1, entryColumn);
    m_rows->setColumnStretch(entryColumn, 1);
    auto* line = new QHBoxLayout;
    line->addStretch();
    auto* buttons = new HoverButtonArray(*this, *line, {{Ok, u"Ok"_s, u"Ok"_s}, {Cancel, u"Cancel"_s, u"Cancel"_s}});
    connect(buttons, &HoverButtonArray::Click, this, [this](int index) { cmdbutton_Click(index); });
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 16, 16, 8);
    layout->addLayout(m_rows);
    layout->addStretch();
    layout->addLayout(line);

    connect(m_condition, &QComboBox::currentIndexChanged, this, &RangeForm::cboCondition_Click);
    // The condition that stands already may be chosen again.
    connect(m_condition, &QComboBox::activated, this, &RangeForm::cboCondition_Click);
    cboCondition_Click();
    m_first->setFocus();
}

QLineEdit* RangeForm::AddEntry(const RangeWords& words, int number)
{
    auto* entry = new QLineEdit(this);
    entry->setObjectName(words.EntryName + QString::number(number));
    entry->setAccessibleName(number == 1 ? words.EntryCaption : words.Between + u' ' + words.EntryCaption);
    entry->setMinimumWidth(entryWidth);
    entry->installEventFilter(this);
    return entry;
}

QString RangeForm::Condition() const
{
    return m_condition->currentText();
}

bool RangeForm::IsRange() const
{
    return Condition() == m_rangeCondition;
}

void RangeForm::ShowRange()
{
    m_condition->setCurrentText(m_rangeCondition);
}

QString RangeForm::OneValue(const QString& text) const
{
    return (Condition() == "Equal To"_L1 ? u"="_s : Condition()) + u' ' + text;
}

void RangeForm::cboCondition_Click()
{
    m_between->setVisible(IsRange());
    m_second->setVisible(IsRange());
    if (m_first->isVisible())
        m_first->setFocus();
}

void RangeForm::AnswerWith(const QString& answer)
{
    gReturnValue = answer;
    Unload();
}

bool RangeForm::KeyPreview(QKeyEvent* event)
{
    return EnterIsOk(*event, [this] { cmdbutton_Click(Ok); });
}

void RangeForm::EscapePressed()
{
    cmdbutton_Click(Cancel);
}

bool RangeForm::eventFilter(QObject* watched, QEvent* event)
{
    auto* entry = qobject_cast<QLineEdit*>(watched);
    if (entry != nullptr && event->type() == QEvent::FocusIn) {
        // Back from its own menu or from another window, the field is being worked in.
        const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
        if (reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason)
            EntryGotFocus(*entry);
    }
    return Form::eventFilter(watched, event);
}

void RangeForm::EntryGotFocus(QLineEdit& entry)
{
    // When the focus has come: a click would take the mark away again.
    QMetaObject::invokeMethod(&entry, &QLineEdit::selectAll, Qt::QueuedConnection);
}
