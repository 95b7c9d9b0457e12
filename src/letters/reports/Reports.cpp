#include "letters/reports/Reports.h"

#include "letters/reports/frmCreateWordFile.h"
#include "model/Openers.h"
#include "ui/widgets/Forms.h"

using namespace Qt::StringLiterals;

namespace {

std::function<void()> Report(const QString& mode)
{
    return [mode] {
        frmCreateWordFile form;
        form.Mode = mode;
        form.ShowModal(Forms::Active());
    };
}

} // namespace

void PlugReports()
{
    gOpeners.WordFileOfSelected = Report(u"Selected"_s);
    gOpeners.WordFileOfListed = Report(u"Listed"_s);
    gOpeners.WordFileOfFoundContacts = Report(u"Found"_s);
    gOpeners.WordFileOfHilitedContacts = Report(u"HilitedContact"_s);
    gOpeners.WordFileOfFoundProperties = Report(u"FoundProperties"_s);
    gOpeners.WordFileOfHilitedProperties = Report(u"HilitedProperty"_s);
    gOpeners.WordFileOfProperty = Report(u"Property"_s);
}
