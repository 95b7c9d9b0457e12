#include "letters/word/OpenDocument.h"
#include "make_window_pictures/Run.h"
#include "ui/widgets/Grid.h"

#include <QAbstractButton>
#include <QFile>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace {

/// The next document goes to this name beside the pictures; the script has its page rendered.
void KeepDocument(Run& run, const QString& name)
{
    const QString document = run.Pictures().Folder().filePath(name);
    Word::SetDocumentOpener([document](const QString& path) {
        QFile::remove(document);
        return QFile::copy(path, document);
    });
}

void ContactReport(Run& run)
{
    KeepDocument(run, u"report-page.docx"_s);
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
}

void PropertyReport(Run& run)
{
    KeepDocument(run, u"report-properties-page.docx"_s);
    Run::ClickCell(Run::List(), 3, 4);
    InModal([] { Run::Trigger(Run::ListWindow(), u"mnuProperties"_s); },
            [](QWidget& list) {
                Key(list, Qt::Key_Up, Qt::ShiftModifier);
                InModal([&list] { Run::Trigger(list, u"mnuWord"_s); },
                        [](QWidget& form) {
                            Find<QAbstractButton>(form, u"cmdButton_2"_s).click();
                            Key(form, Qt::Key_Escape);
                        });
                Key(list, Qt::Key_Escape);
            });
}

} // namespace

void TakeReports(Run& run)
{
    QStandardPaths::setTestModeEnabled(true);
    ContactReport(run);
    PropertyReport(run);
    Word::SetDocumentOpener({});
    QStandardPaths::setTestModeEnabled(false);
}
