#include "letters/word/OpenDocument.h"
#include "make_window_pictures/Run.h"
#include "ui/widgets/Grid.h"

#include <QAbstractButton>
#include <QFile>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

void TakeReports(Run& run)
{
    // The document lies with the pictures; the script has its page rendered.
    QStandardPaths::setTestModeEnabled(true);
    const QString document = run.Pictures().Folder().filePath(u"report-page.docx"_s);
    Word::SetDocumentOpener([&document](const QString& path) {
        QFile::remove(document);
        return QFile::copy(path, document);
    });
    run.Click(u"S2"_s);
    run.OpenList();
    Run::ClickCell(Run::List(), 1, 4);
    Key(Run::ListWindow(), Qt::Key_Down, Qt::ShiftModifier);
    Key(Run::ListWindow(), Qt::Key_Down, Qt::ShiftModifier);
    InModal([] { Run::Trigger(Run::ListWindow(), u"mnuWord"_s); },
            [&run](QWidget& form) {
                auto& grid = Find<Grid>(form, u"Grid1"_s);
                Run::ClickCell(grid, 4, 2);
                Run::ClickCell(grid, 5, 2);
                run.Take(form, u"report"_s);
                Find<QAbstractButton>(form, u"cmdButton_2"_s).click();
                Key(form, Qt::Key_Escape);
            });
    Word::SetDocumentOpener({});
    QStandardPaths::setTestModeEnabled(false);
}
