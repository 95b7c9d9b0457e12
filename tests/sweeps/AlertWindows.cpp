#include "sweeps/Office.h"
#include "ui/frame/frmMain.h"

using namespace Qt::StringLiterals;

namespace {

/// Opens the alert window of Ann Lee from the contact list.
void InAlertWindow(Office& office, const Look& look)
{
    office.OpenList();
    Office::InForm(
        u"frmAlerts"_s, [] { Office::Trigger(Office::List(), u"mnuManageAlerts"_s); }, look);
}

void OpenEditing(Office& office, const Look& look)
{
    InAlertWindow(office, [&look](QWidget& form) {
        ClickOn(form, u"cmdbutton_3"_s);
        look(form);
        TypeKey(form, Qt::Key_Escape);
    });
}

void OpenCalendar(Office& office, const Look& look)
{
    InAlertWindow(office, [&look](QWidget& form) {
        Office::InForm(
            u"frmCalendar"_s, [&form] { ClickOn(form, u"cmdbutton_4"_s); }, look);
    });
}

void OpenChooser(Office& office, const QString& entry, const Look& look)
{
    Office::InForm(
        u"frmAlertContacts"_s, [&] { Office::Trigger(office.Main(), entry); }, look);
}

} // namespace

QList<OfficeWindow> AlertWindows()
{
    return {
        {u"alerts"_s, u"Grid1"_s, InAlertWindow},
        {u"alert in edit"_s, u"txtNotes"_s, OpenEditing},
        {u"calendar"_s, u"qt_calendar_calendarview"_s, OpenCalendar},
        {u"contacts with alerts"_s, u"Grid1"_s,
         [](Office& office, const Look& look) { OpenChooser(office, u"mnuManageAlerts"_s, look); }},
        {u"contacts for a new alert"_s, u"Grid1"_s,
         [](Office& office, const Look& look) { OpenChooser(office, u"mnuSetNewAlert"_s, look); }},
    };
}
