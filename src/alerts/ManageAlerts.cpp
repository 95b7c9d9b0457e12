#include "alerts/ManageAlerts.h"

#include "alerts/frmAlertContacts.h"
#include "alerts/frmAlerts.h"
#include "core/Convert.h"
#include "core/Trap.h"
#include "model/AddNewAlert.h"
#include "model/Contact.h"
#include "model/Main.h"
#include "ui/widgets/Forms.h"
#include "ui/widgets/frmCalendar.h"

using namespace Qt::StringLiterals;

namespace {

/// Makes the contact current that the person chooses; false when none was chosen.
bool ChooseContact(Long mode)
{
    gAlertMode = mode;
    {
        frmAlertContacts chooser;
        chooser.ShowModal(Forms::Active());
    }
    if (gReturnValue.isEmpty())
        return false;
    curContact = ContactAt(CLng(gReturnValue));
    return true;
}

bool AskDateAndNote()
{
    const QString date = AskForDate(u"New Alert Date for "_s + FormatName());
    if (date.isEmpty())
        return false;
    const QString note = AskFor(u"New Alert Title"_s, 255);
    if (note.isEmpty()) {
        MsgBox(u"I did not save this alert because\r\nyou did not enter any alert notes."_s, Buttons::Ok,
               Icon::Information, u"Alert not Saved"_s);
        return false;
    }
    AddNewAlert(date, note);
    return true;
}

} // namespace

void ShowAlerts()
{
    frmAlerts form;
    form.ShowModal(Forms::Active());
}

void ManageAlerts()
{
    Trap(u"frmMain ManageAlerts Error #"_s, Icon::Critical, [] {
        while (gAlerts.Count() > 0) {
            if (!ChooseContact(AlertMode::Manage))
                return;
            ShowAlerts();
            if (Forms::Active() == nullptr) // the program was closed meanwhile
                return;
        }
        MsgBox(u"I did not find any alerts in the system."_s, Buttons::Ok, Icon::Information, u"You Have No Alerts"_s);
    });
}

bool SetNewAlert_Click()
{
    return Trap(u"frmMain SetNewAlert_Click Error #"_s, Icon::Critical, [] {
        if (gContacts.IsEmpty()) {
            MsgBox(u"I cannot set any new alerts because\r\nyou do not have any contacts in the system."_s, Buttons::Ok,
                   Icon::Information, u"New Alert Cancelled"_s);
            return false;
        }
        return ChooseContact(AlertMode::SetNew) && AskDateAndNote();
    });
}
