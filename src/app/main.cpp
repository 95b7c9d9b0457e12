#include "model/Main.h"
#include "app/frmSplash.h"
#include "letters/word/OpenDocument.h"
#include "ui/widgets/Pictures.h"
#include "ui/widgets/Theme.h"
#include "ui/widgets/UserWindows.h"

#include <QApplication>
#include <QDir>

using namespace Qt::StringLiterals;

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QApplication::setApplicationName(u"orvantine"_s);
    QApplication::setApplicationDisplayName(QString());
    QApplication::setDesktopFileName(u"orvantine"_s);
    QApplication::setWindowIcon(Pictures::Icon(u"orvantine"_s));
    Theme::Apply(application);

    gAppPath = QApplication::applicationDirPath();
    // Temporary files with people's data lie with the data, wherever the program was started from.
    QDir::setCurrent(AppFile(u"\\Data"_s));
    Word::RemoveOldDocuments();

    UserWindows user;
    User::Install(&user);
    frmSplash splash(user);
    splash.Show();
    const int result = QApplication::exec();
    User::Install(nullptr);
    return result;
}
