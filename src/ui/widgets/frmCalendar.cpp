#include "ui/widgets/frmCalendar.h"

#include "core/Clock.h"
#include "core/Dates.h"
#include "core/Format.h"
#include "core/Trap.h"
#include "core/User.h"
#include "ui/widgets/Forms.h"
#include "ui/widgets/HoverButtonArray.h"

#include <QCalendarWidget>
#include <QTextCharFormat>
#include <QToolButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int Cancel = 1;
constexpr int Ok = 2;

} // namespace

frmCalendar::frmCalendar(const QString& caption, const QDate& value)
    : Form(u"frmCalendar"_s, Qt::Dialog), m_calendar(new QCalendarWidget(this))
{
    setWindowTitle(caption);
    DressCalendar(value);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 16, 16, 8);
    layout->addWidget(m_calendar);
    auto* row = new QHBoxLayout;
    row->addStretch();
    layout->addLayout(row);
    auto* buttons = new HoverButtonArray(*this, *row, {{Ok, u"Ok"_s, u"Ok"_s}, {Cancel, u"Cancel"_s, u"Cancel"_s}});
    connect(buttons, &HoverButtonArray::Click, this, &frmCalendar::cmdButton_Click);
    connect(m_calendar, &QCalendarWidget::activated, this, &frmCalendar::OkClick);
    // On the calendar, not on the window: a window with a width of its own no longer keeps its layout's smallest
    // height.
    m_calendar->setMinimumWidth(std::max(320, TitleWidth()));
    m_calendar->setFocus();
    CenterForm(*this);
}

void frmCalendar::DressCalendar(const QDate& value)
{
    m_calendar->setObjectName(u"Calendar1"_s);
    m_calendar->setAccessibleName(u"Date"_s);
    m_calendar->setLocale(QLocale(QLocale::English, QLocale::UnitedStates));
    m_calendar->setFirstDayOfWeek(Qt::Sunday);
    m_calendar->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    m_calendar->setMinimumHeight(240);
    // Red is the colour of what is due; a Sunday is not.
    m_calendar->setWeekdayTextFormat(Qt::Saturday, {});
    m_calendar->setWeekdayTextFormat(Qt::Sunday, {});
    QTextCharFormat today;
    today.setFontWeight(QFont::Bold);
    m_calendar->setDateTextFormat(Clock::Today(), today);
    m_calendar->setSelectedDate(value);
    DressHead();
}

void frmCalendar::DressHead()
{
    // The style's own arrows are green, and its mark of a menu is cut here.
    const auto dress = [this](const QString& name, const QString& sign, const QString& accessibleName) {
        auto* button = m_calendar->findChild<QToolButton*>(name);
        if (button == nullptr)
            return;
        QFont font = button->font();
        font.setPointSizeF(font.pointSizeF() * 1.5);
        button->setFont(font);
        QPalette palette = button->palette();
        for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive})
            palette.setColor(group, QPalette::ButtonText, palette.color(group, QPalette::HighlightedText));
        button->setPalette(palette);
        button->setIcon({});
        button->setText(sign);
        button->setToolButtonStyle(Qt::ToolButtonTextOnly);
        button->setAccessibleName(accessibleName);
        button->setToolTip(accessibleName);
    };
    dress(u"qt_calendar_prevmonth"_s, u"\u2039"_s, u"Previous month"_s);
    dress(u"qt_calendar_nextmonth"_s, u"\u203A"_s, u"Next month"_s);
    if (auto* month = m_calendar->findChild<QToolButton*>(u"qt_calendar_monthbutton"_s))
        month->setStyleSheet(u"QToolButton::menu-indicator { image: none; }"_s);
}

void frmCalendar::cmdButton_Click(int index)
{
    if (index == Ok)
        OkClick();
    else
        Unload();
}

void frmCalendar::OkClick()
{
    Trap(u"frmCalendar OkClick Error #"_s, Icon::Critical,
         [this] { m_reply = Format(ToDate(m_calendar->selectedDate()), u"mm/dd/yyyy"); });
    Unload();
}

void frmCalendar::EscapePressed()
{
    Unload();
}

QString AskForDate(const QString& caption, const QString& text)
{
    const std::optional<Date> typed = ParseDate(text);
    frmCalendar form(caption, typed ? ToDateTime(*typed).date() : Clock::Today());
    form.ShowModal(Forms::Active());
    gReturnValue = form.Reply();
    return gReturnValue;
}
