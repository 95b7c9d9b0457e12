#include "model/Alert.h"

#include "core/adodb/Connection.h"
#include "core/Convert.h"
#include "core/Trap.h"
#include "model/Alerts.h"
#include "model/ReadBack.h"

using namespace Qt::StringLiterals;

Long Alert::AddToDB() const
{
    return Trap(u"Class Alert AddToDB Error #"_s, Icon::Information, [&] {
        const QString date = CStr(AlertDate);
        gConn.Execute(u"Insert into Alerts (ContactID,AlertDate,AlertNote) Values ("_s + CStr(ContactID) + u",'"_s +
                      date + u"','"_s + FixQuotes(AlertNote) + u"')"_s);
        return ReadBackID(u"Select ID from Alerts Where ContactID="_s + CStr(ContactID) + u" and cdate(AlertDate)='"_s +
                          date + u"'"_s);
    });
}

void Alert::UpdateDB() const
{
    Trap(u"Class Alert UpdateDB Error #"_s, Icon::Information, [&] {
        // Its row was never found: a change would go nowhere without a word.
        if (curAlertKey() == 0)
            throw RunTimeError(ErrorNumber::NoCurrentRecord);
        gConn.Execute(u"Update Alerts set AlertDate='"_s + CStr(AlertDate) + u"', AlertNote='"_s +
                      FixQuotes(AlertNote) + u"' Where ID="_s + CStr(curAlertKey()));
    });
}

Long Alert::KeyID() const
{
    return CLng(QString(Key).remove(u'A'));
}
