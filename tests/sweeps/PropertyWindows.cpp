#include "sweeps/Office.h"

#include <QMenu>

using namespace Qt::StringLiterals;

namespace {

/// Chooses an entry that the opening of its menu brings up to date.
void Choose(const QWidget& window, const QString& menu, const QString& entry)
{
    Q_EMIT Control<QMenu>(window, menu).aboutToShow();
    Office::Trigger(window, entry);
}

/// Opens the properties of Ann Lee from the contact list.
void InPropertyList(Office& office, const Look& look)
{
    office.OpenList();
    Office::InForm(
        u"frmPropertyList"_s, [] { Choose(Office::List(), u"mnuContacts"_s, u"mnuProperties"_s); }, look);
}

void OpenProperty(Office& office, const Look& look)
{
    InPropertyList(office, [&look](QWidget& list) {
        Office::InForm(
            u"frmProperty"_s, [&list] { Choose(list, u"mnuProperty"_s, u"mnuModify"_s); }, look);
    });
}

void OpenNewProperty(Office& office, const Look& look)
{
    office.OpenList();
    Office::InForm(
        u"frmProperty"_s, [] { Choose(Office::List(), u"mnuContacts"_s, u"mnuNewProperty"_s); }, look);
}

} // namespace

QList<OfficeWindow> PropertyWindows()
{
    return {
        {u"property list"_s, u"GridPropList"_s, InPropertyList},
        {u"property"_s, u"txtAddr1"_s, OpenProperty, true},
        {u"new property"_s, u"txtMLS"_s, OpenNewProperty, true},
    };
}
