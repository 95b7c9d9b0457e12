#include "sweeps/Office.h"

using namespace Qt::StringLiterals;

QList<OfficeWindow> ReportWindows()
{
    return {{u"report"_s, u"Grid1"_s, [](Office& office, const Look& look) {
                 office.OpenList();
                 Office::InForm(
                     u"frmCreateWordFile"_s, [] { Office::Trigger(Office::List(), u"mnuWord"_s); }, look);
             }}};
}
