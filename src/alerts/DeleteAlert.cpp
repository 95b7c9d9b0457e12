#include "alerts/DeleteAlert.h"

#include "alerts/AlertLook.h"
#include "core/adodb/Connection.h"
#include "core/Convert.h"
#include "core/Dates.h"
#include "core/Trap.h"
#include "model/Contact.h"
#include "model/faces.h"
#include "model/Main.h"

using namespace Qt::StringLiterals;

bool ConfirmedDelete(const Alert& alert)
{
    return Confirmed(u"Do you want me to delete the alert dated "_s + AlertDateText(alert.AlertDate) +
                     u"\r\nbelonging to "_s + FormatName() + u"?"_s);
}

bool DeleteCurrentAlert()
{
    const bool future = AlertDateText(gAlerts.Item(curAlertIndex)->AlertDate) > AlertDateText(TodayDate());
    const Long id = curAlertKey();
    gConn.Execute(u"Delete from Alerts where ID="_s + CStr(id));
    if (auto* panels = Face<AlertPanelsFace>::Get())
        panels->RemoveAlertFromGrid(id, future);
    gAlerts.Remove(curAlertIndex);
    return future;
}

void ShowAlertIcon()
{
    if (auto* list = Face<ContactListFace>::Get())
        list->ShowAlertIcon();
}

void CountDeletedAlert()
{
    --curContact->NumberOfAlerts;
    ShowAlertIcon();
    if (auto* list = Face<ContactListFace>::Get())
        list->FocusFirstName();
}

void ConfirmDelThisAlert()
{
    Trap(u"frmMain ConfirmDelThisAlert Error #"_s, Icon::Critical, [] {
        const std::shared_ptr<Alert> alert = gAlerts.Item(curAlertIndex);
        if (!curContact)
            curContact = ContactAt(alert->ContactID);
        if (!ConfirmedDelete(*alert))
            return;
        const bool future = DeleteCurrentAlert();
        curAlertIndex = 0;
        if (auto* panels = Face<AlertPanelsFace>::Get())
            panels->FillAlertGrid(future);
        CountDeletedAlert();
    });
}
