#include "model/AddNewAlert.h"

#include "core/Convert.h"
#include "core/Dates.h"
#include "core/FieldRules.h"
#include "core/Format.h"
#include "core/Trap.h"
#include "model/Contact.h"
#include "model/faces.h"
#include "model/Main.h"

using namespace Qt::StringLiterals;

std::shared_ptr<Alert> AddToAlertCollection(const QString& alertDate, const QString& alertNote)
{
    if (!curContact)
        throw RunTimeError(ErrorNumber::ObjectNotSet);
    Alert alert;
    alert.AlertDate = CDate(alertDate);
    alert.AlertNote = alertNote;
    alert.ContactID = curContact->RecID;
    const Long id = alert.AddToDB();
    const Date day = CDate(Format(alert.AlertDate, u"mm/dd/yyyy"));
    std::shared_ptr<Alert> added = gAlerts.Add(u"A"_s + CStr(id), alert.ContactID, day, alertNote);
    added->ID = id;
    return added;
}

void AddNewAlert(const QString& alertDate, const QString& alertNote)
{
    Trap(u"AddNewAlert Error #"_s, Icon::Information, [&] {
        const std::shared_ptr<Alert> alert = AddToAlertCollection(alertDate, alertNote);
        if (auto* panels = Face<AlertPanelsFace>::Get())
            panels->InsertAlertToGrid(*alert, IsAFutureDate(alert->AlertDate));
        curAlertIndex = gAlerts.Count();
    });
}
