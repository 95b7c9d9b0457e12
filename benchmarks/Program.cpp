#include "Program.h"

#include "app/frmSplash.h"
#include "core/adodb/Connection.h"
#include "model/Categories.h"
#include "model/Contact.h"
#include "model/LoadContacts.h"
#include "model/Main.h"
#include "ui/widgets/Pictures.h"
#include "ui/widgets/Theme.h"
#include "ui/widgets/UserWindows.h"

#include <QApplication>

using namespace Qt::StringLiterals;

void OpenProgram(const QString& folder)
{
    gAppPath = folder;
    gConn.Open(u"Driver={Microsoft Access Driver (*.mdb)};Dbq="_s + gAppPath +
               u"\\Data\\Contacts.mdb;Password=kostrevy48"_s);
}

void LoadProgram()
{
    LoadCategories();
    LoadContacts([](int) {});
}

void CloseProgram()
{
    gCategories.RemoveAll();
    gContacts.RemoveAll();
    gAlerts.RemoveAll();
    gSelected.RemoveAll();
    curContact.reset();
    gConn.Close();
}

int RunProgram(QApplication& application, const QString& folder)
{
    QApplication::setWindowIcon(Pictures::Icon(u"orvantine"_s));
    Theme::Apply(application);
    gAppPath = folder;
    UserWindows user;
    User::Install(&user);
    frmSplash splash(user);
    splash.Show();
    const int result = QApplication::exec();
    User::Install(nullptr);
    return result;
}
