#include "sweeps/Office.h"
#include "ui/frame/frmMain.h"
#include "ui/widgets/Grid.h"

#include <QComboBox>
#include <QRadioButton>

using namespace Qt::StringLiterals;

namespace {

/// The search tab with everything found.
void OpenTab(Office& office, const QString& mode, const Look& look)
{
    office.Main().ShowTab(1);
    Control<QRadioButton>(office.Main(), mode).click();
    ClickOn(office.Main(), u"cmdbutton_2"_s);
    Control<Grid>(office.Main(), u"GridSearch"_s).setFocus();
    look(office.Main());
}

/// Asks for the criterion of a row of properties; `condition` shows all of a window that has one.
void AskRow(Office& office, int row, const QString& form, const QString& condition, const Look& look)
{
    OpenTab(office, u"optSearch_1"_s, [&](QWidget& main) {
        Control<Grid>(main, u"GridSearch"_s).SetSelectedRow(row);
        Office::InForm(
            form, [&main] { TypeKey(main, Qt::Key_Return); },
            [&](QWidget& shown) {
                if (!condition.isEmpty())
                    Control<QComboBox>(shown, u"cboCondition"_s).setCurrentText(condition);
                look(shown);
            });
    });
}

OfficeWindow Asking(const QString& name, const QString& focus, int row, const QString& form, const QString& condition)
{
    return {name, focus, [=](Office& office, const Look& look) { AskRow(office, row, form, condition, look); }};
}

} // namespace

QList<OfficeWindow> SearchWindows()
{
    return {
        {u"search for contacts"_s, u"GridSearch"_s,
         [](Office& office, const Look& look) { OpenTab(office, u"optSearch_0"_s, look); }},
        {u"search for properties"_s, u"GridSearch"_s,
         [](Office& office, const Look& look) { OpenTab(office, u"optSearch_1"_s, look); }},
        Asking(u"value of a criterion"_s, u"txtLongString"_s, 2, u"frmSetValue"_s, {}),
        Asking(u"list of a criterion"_s, u"cboPropType"_s, 12, u"frmSetValue"_s, {}),
        Asking(u"date of a criterion"_s, u"txtDate1"_s, 27, u"frmDate"_s, u"From"_s),
        Asking(u"amount of a criterion"_s, u"txtAmount1"_s, 18, u"frmCurrency"_s, u"Between"_s),
    };
}
