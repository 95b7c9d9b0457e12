#include "Program.h"

#include "core/adodb/Connection.h"
#include "model/Categories.h"
#include "model/Contact.h"
#include "model/LoadContacts.h"
#include "model/Main.h"
#include "organise/CategoryTree.h"
#include "ui/frame/frmMain.h"
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
    Theme::Apply(application);
    UserWindows user;
    User::Install(&user);
    OpenProgram(folder);
    LoadCategories();
    frmMain window;
    window.SetDeleteOnUnload(false);
    auto* tree = new CategoryTree(window);
    window.AddContactsPanel(tree, 1);
    user.SetStatusBar([&window](const std::optional<QString>& message) { window.ShoWait(message); });
    tree->FillTree();
    LoadContacts([](int) { QCoreApplication::processEvents(); });
    ShoWait(u"Ready"_s);
    window.Show();
    const int result = QApplication::exec();
    User::Install(nullptr);
    return result;
}
