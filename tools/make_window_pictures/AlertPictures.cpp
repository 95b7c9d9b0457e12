#include "make_window_pictures/Run.h"
#include "ui/frame/frmMain.h"
#include "ui/widgets/Grid.h"

#include <QAbstractButton>

using namespace Qt::StringLiterals;

namespace {

void Panels(Run& run)
{
    for (const auto name : {"GridAlerts"_L1, "GridFutureAlerts"_L1}) {
        auto& panel = Find<Grid>(run.Main(), QString(name));
        Run::ClickCell(panel, 2, 1);
        run.TakeCellMenu(run.Main(), panel, 2, 1, "alerts-menu-"_L1 + QString(name).toLower());
    }
}

void AlertWindow(Run& run)
{
    auto& panel = Find<Grid>(run.Main(), u"GridAlerts"_s);
    Run::ClickCell(panel, 2, 2);
    InModal([&] { Key(run.Main(), Qt::Key_Return); },
            [&run](QWidget& form) {
                run.Take(form, u"alerts"_s);
                Find<QAbstractButton>(form, u"cmdbutton_3"_s).click();
                run.Take(form, u"alerts-editing"_s);
                run.TakeModal([&form] { Find<QAbstractButton>(form, u"picCalendar"_s).click(); }, u"calendar"_s);
                Key(form, Qt::Key_Escape);
            });
}

} // namespace

void TakeAlerts(Run& run)
{
    Panels(run);
    AlertWindow(run);
    run.TakeModal([&run] { Run::Trigger(run.Main(), u"mnuManageAlerts"_s); }, u"alert-contacts-managed"_s);
    run.TakeModal([&run] { Run::Trigger(run.Main(), u"mnuSetNewAlert"_s); }, u"alert-contacts"_s);
}
