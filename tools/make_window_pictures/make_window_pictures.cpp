// Draws each window of the running program, filled from the real store.
//
//   make_window_pictures --database FILE --images FOLDER --into FOLDER [--scheme light|dark] [--smallest]
//
// --database is a sample that make_sample has made for 2026-05-12 (it is copied, never written to), --images has the
// background pictures. The clock stands still and the caret does not blink, so that the same program gives the same
// pictures.

#include "core/Clock.h"
#include "make_window_pictures/Run.h"
#include "model/Main.h"
#include "ui/frame/frmMain.h"
#include "ui/widgets/Pictures.h"
#include "ui/widgets/Theme.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QTemporaryDir>
#include <QTest>
#include <cstdio>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

/// A program folder with a copy of this database.
void FillFolder(const QDir& folder, const QString& database, const QString& images)
{
    folder.mkpath(u"Data"_s);
    folder.mkpath(u"Resource/Images"_s);
    bool copied = QFile::copy(database, folder.filePath(u"Data/Contacts.mdb"_s));
    for (const QString& image : QDir(images).entryList(QDir::Files))
        copied = copied && QFile::copy(images + u'/' + image, folder.filePath(u"Resource/Images/"_s + image));
    if (!copied)
        throw std::runtime_error("the database or the background pictures cannot be copied");
}

void TakeFull(Album& album, const QString& folder)
{
    Run run(album, folder);
    run.Start();
    TakeDesk(run);
    TakeAlerts(run);
    TakeFeedback(run);
    TakeProperties(run);
    TakeLetters(run);
    TakeReports(run);
    TakeSearch(run);
}

void TakeEmpty(Album& album, const QString& folder)
{
    Run run(album, folder);
    run.SkipSplash();
    run.Start();
    run.Take(run.Main(), u"main-empty"_s);
    run.TakeMenu(u"mnuCategory"_s, u"menu-category-empty"_s);
    InModal([&run] { Run::Trigger(run.Main(), u"mnuCatCreate"_s); },
            [&run](QWidget& form) {
                run.Take(form, u"ask-empty"_s);
                Type(form, u"Buyers"_s);
                run.Take(form, u"ask"_s);
                Key(form, Qt::Key_Tab);
                run.Take(form, u"ask-button"_s);
            });
}

void TakeWithoutFile(Album& album, const QString& folder)
{
    Run run(album, folder);
    run.TakeModal([&run] { run.Start(); }, u"box-critical"_s);
}

void TakeAll(const QCommandLineParser& options)
{
    const QDir into(options.value(u"into"_s));
    if (!into.mkpath(u"."_s))
        throw std::runtime_error("the folder for the pictures cannot be made");
    Album album(into, options.value(u"scheme"_s), options.isSet(u"smallest"_s));
    const QString images = options.value(u"images"_s);
    {
        const QTemporaryDir folder;
        FillFolder(folder.path(), options.value(u"database"_s), images);
        TakeFull(album, folder.path());
    }
    gContacts.RemoveAll();
    gCategories.RemoveAll();
    gAlerts.RemoveAll();
    gAlertsCurrent = 0;
    gAlertsFuture = 0;
    gSelected.RemoveAll();
    {
        const QTemporaryDir folder;
        FillFolder(folder.path(), options.value(u"empty"_s), images);
        TakeEmpty(album, folder.path());
    }
    const QTemporaryDir folder;
    TakeWithoutFile(album, folder.path());
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(u"Draws each window of the running program."_s);
    parser.addHelpOption();
    parser.addOptions({{u"database"_s, u"A sample."_s, u"FILE"_s},
                       {u"empty"_s, u"The delivered database."_s, u"FILE"_s},
                       {u"images"_s, u"The background pictures."_s, u"FOLDER"_s},
                       {u"into"_s, u"Where the pictures go."_s, u"FOLDER"_s, u"."_s},
                       {u"scheme"_s, u"light or dark."_s, u"NAME"_s, u"light"_s},
                       {u"smallest"_s, u"Each window in the smallest size that it allows."_s}});
    parser.process(application);
    QApplication::setCursorFlashTime(0);
    QApplication::setWindowIcon(Pictures::Icon(u"orvantine"_s));
    Theme::Apply(application, parser.value(u"scheme"_s) == "dark"_L1 ? Theme::Scheme::Dark : Theme::Scheme::Light);
    Clock::SetSource([] { return QDateTime(QDate(2026, 5, 12), QTime(9, 41, 7)); });
    try {
        TakeAll(parser);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "make_window_pictures: %s\n", error.what());
        return 1;
    }
    return 0;
}
