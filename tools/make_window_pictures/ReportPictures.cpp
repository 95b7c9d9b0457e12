#include "make_window_pictures/Run.h"
#include "ui/widgets/Grid.h"

using namespace Qt::StringLiterals;

void TakeReports(Run& run)
{
    run.Click(u"S2"_s);
    run.OpenList();
    Run::ClickCell(Run::List(), 1, 4);
    InModal([] { Run::Trigger(Run::ListWindow(), u"mnuWord"_s); },
            [&run](QWidget& form) {
                auto& grid = Find<Grid>(form, u"Grid1"_s);
                Run::ClickCell(grid, 4, 2);
                Run::ClickCell(grid, 5, 2);
                run.Take(form, u"report"_s);
                Key(form, Qt::Key_Escape);
            });
}
