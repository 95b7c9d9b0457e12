#include "sweeps/SearchWindows.h"

#include "support/Windows.h"
#include "ui/frame/frmMain.h"
#include "ui/widgets/Grid.h"

#include <QComboBox>
#include <QRadioButton>

using namespace Qt::StringLiterals;

namespace {

struct Opening
{
    const char* Window;
    /// The row of the property criteria that asks by it.
    int Row;
    const char* Form;
    /// The condition that shows all of it.
    const char* Condition;
};

constexpr Opening openings[]{{"value of a criterion", 2, "frmSetValue", nullptr},
                             {"list of a criterion", 12, "frmSetValue", nullptr},
                             {"date of a criterion", 27, "frmDate", "From"},
                             {"amount of a criterion", 18, "frmCurrency", "Between"}};

} // namespace

QStringList SearchWindowNames()
{
    QStringList names{u"search"_s, u"search for properties"_s};
    for (const Opening& opening : openings)
        names << QString::fromLatin1(opening.Window);
    return names;
}

void OpenSearchWindow(frmMain& main, const QString& window, const std::function<void(QWidget& window)>& look)
{
    main.ShowTab(1);
    if (window != "search"_L1)
        Control<QRadioButton>(main, u"optSearch_1"_s).click();
    if (window.startsWith("search"_L1)) {
        ClickOn(main, u"cmdbutton_2"_s);
        Control<Grid>(main, u"GridSearch"_s).setFocus();
        look(main);
        return;
    }
    for (const Opening& opening : openings) {
        if (window != QLatin1StringView(opening.Window))
            continue;
        auto& grid = Control<Grid>(main, u"GridSearch"_s);
        grid.SetSelectedRow(opening.Row);
        grid.setFocus();
        const WhenFormOpens form(QString::fromLatin1(opening.Form), [&](Form& shown) {
            if (opening.Condition != nullptr)
                Control<QComboBox>(shown, u"cboCondition"_s).setCurrentText(QString::fromLatin1(opening.Condition));
            look(shown);
        });
        TypeKey(main, Qt::Key_Return);
    }
}
