#include "search/frmDate.h"

#include "core/Dates.h"
#include "core/Format.h"
#include "core/Trap.h"
#include "search/EntryFilter.h"
#include "ui/widgets/frmCalendar.h"
#include "ui/widgets/Pictures.h"

#include <QGridLayout>
#include <QLineEdit>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace {

constexpr int calendarColumn = 2;

EntryRules DateRules()
{
    return {.Accepts = ValidDateChar, .BeforeKey = DateFormat, .Pasted = u"0123456789/"_s};
}

QString DateText(const QLineEdit& entry)
{
    return Format(entry.text(), u"mm/dd/yyyy");
}

} // namespace

frmDate::frmDate()
    : RangeForm({.Name = u"frmDate"_s,
                 .Conditions = {u"Equal To"_s, u"Before"_s, u"After"_s, u"From"_s},
                 .RangeCondition = u"From"_s,
                 .Between = u"To"_s,
                 .EntryName = u"txtDate"_s,
                 .EntryCaption = u"Date"_s})
    , m_picCalendar(new QToolButton(this))
    , m_active(&First())
{
    new EntryFilter(First(), DateRules());
    new EntryFilter(Second(), DateRules());
    m_picCalendar->setObjectName(u"picCalendar"_s);
    m_picCalendar->setIcon(Pictures::Icon(u"calendar"_s));
    m_picCalendar->setIconSize(QSize(24, 24));
    m_picCalendar->setAutoRaise(true);
    m_picCalendar->setFocusPolicy(Qt::TabFocus);
    m_picCalendar->setAccessibleName(u"Choose the date"_s);
    m_picCalendar->setToolTip(u"Choose the date"_s);
    Rows().addWidget(m_picCalendar, 0, calendarColumn);
    connect(m_picCalendar, &QToolButton::clicked, this, &frmDate::picCalendar_Click);
    setTabOrder(&Second(), m_picCalendar);
    CenterForm(*this);
}

void frmDate::EntryGotFocus(QLineEdit& entry)
{
    RangeForm::EntryGotFocus(entry);
    m_active = &entry;
    Rows().addWidget(m_picCalendar, &entry == &First() ? 0 : 1, calendarColumn);
}

bool frmDate::IsValid(QLineEdit& entry)
{
    if (entry.text().isEmpty() || IsDate(entry.text()))
        return true;
    MsgBox(u"Please check that the date is valid."_s, Buttons::Ok, Icon::Information, u"Invalid Date"_s);
    // A second date is asked for its sense while it is hidden as well: the person must see what is meant.
    if (&entry == &Second())
        ShowRange();
    entry.setFocus();
    return false;
}

void frmDate::cmdbutton_Click(int index)
{
    Trap(u"frmDate cmdbutton_Click Error #"_s, Icon::Critical, [&] {
        // Cancel is refused over a bad date as well, which is meant.
        if (!IsValid(First()) || !IsValid(Second()))
            return;
        if (index == Ok)
            OkClick();
        else
            AnswerWith({});
    });
}

void frmDate::OkClick()
{
    Trap(u"frmDate OkClick Error #"_s, Icon::Critical, [this] {
        const QString first = DateText(First());
        if (!IsRange()) {
            AnswerWith(OneValue(first));
            return;
        }
        const QString second = DateText(Second());
        if (!first.isEmpty() && !second.isEmpty() && CDate(Second().text()) < CDate(First().text())) {
            MsgBox(u"Please check if the From Date is later than the To Date."_s, Buttons::Ok, Icon::Information,
                   u"Invalid Date Range"_s);
            return;
        }
        AnswerWith(u"From "_s + first + u" To "_s + second);
    });
}

void frmDate::picCalendar_Click()
{
    Trap(u"frmDate picCalendar_Click Error #"_s, Icon::Critical, [this] {
        // A calendar that was cancelled empties the entry, which is meant.
        m_active->setText(AskForDate(windowTitle(), m_active->text()));
        // The calendar's answer is not this window's.
        gReturnValue.clear();
        m_active->setFocus();
    });
}
