#include "sweeps/Office.h"
#include "ui/widgets/Forms.h"

#include <QAction>
#include <QMenu>

using namespace Qt::StringLiterals;

// The windows of properties, for the current contact of the list.

namespace {

void Choose(QWidget& window, const QString& menu, const QString& entry)
{
    Q_EMIT Control<QMenu>(window, menu).aboutToShow();
    auto& action = Control<QAction>(window, entry);
    if (!action.isEnabled())
        qFatal("%s cannot be chosen now", qUtf8Printable(entry));
    action.trigger();
}

} // namespace

void Office::OpenProperty(const QString& window, const std::function<void(QWidget& window)>& look)
{
    if (window == "new property"_L1) {
        const WhenFormOpens editor(u"frmProperty"_s, [&look](Form& form) { look(form); });
        Choose(List(), u"mnuContacts"_s, u"mnuNewProperty"_s);
        return;
    }
    const WhenFormOpens list(u"frmPropertyList"_s, [&](Form& form) {
        if (window == "property list"_L1) {
            look(form);
            return;
        }
        const WhenFormOpens editor(u"frmProperty"_s, [&look](Form& shown) { look(shown); });
        Choose(form, u"mnuProperty"_s, u"mnuModify"_s);
    });
    Choose(List(), u"mnuContacts"_s, u"mnuProperties"_s);
}
