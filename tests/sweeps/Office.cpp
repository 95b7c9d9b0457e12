#include "sweeps/Office.h"

#include "app/Composition.h"
#include "core/adodb/Connection.h"
#include "model/Main.h"
#include "organise/CategoryTree.h"
#include "organise/CategoryTreeView.h"
#include "sweeps/SearchWindows.h"
#include "ui/frame/Menus.h"
#include "ui/widgets/Forms.h"
#include "ui/widgets/Grid.h"

#include <QAbstractButton>
#include <QAction>
#include <QFile>
#include <QMenu>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

using Look = std::function<void(QWidget& window)>;

void Fill()
{
    for (const auto statement :
         {"Insert into Categories (Description) Values ('Buyers')"_L1,
          "Insert into Categories (Description) Values ('Sellers')"_L1,
          "Insert into SubCategories (Description,ParentID) Values ('First home',1)"_L1,
          "Insert into SubCategories (Description,ParentID) Values ('Houses',2)"_L1,
          "Insert into Contacts (CategoryID,SubCategoryID,FirstName,LastName) Values (1,1,'Ann','Lee')"_L1,
          "Insert into Contacts (CategoryID,SubCategoryID,FirstName,MI,LastName) Values (1,1,'Bob','M','Ray')"_L1,
          "Insert into Contacts (CategoryID,SubCategoryID,FirstName,LastName) Values (1,1,'Cy','Day')"_L1,
          "Insert into PropDetail (ContactID,Addr1) Values (1,'1 Elm Street')"_L1})
        FreshDatabase::Execute(QString(statement));
}

void Trigger(const QWidget& window, const QString& entry)
{
    auto& action = Control<QAction>(window, entry);
    if (!action.isEnabled())
        qFatal("%s cannot be chosen now", qUtf8Printable(entry));
    action.trigger();
}

} // namespace

Office::Office(File file) : m_splash(m_user)
{
    if (file == File::Small)
        Fill();
    User::Install(&m_user);
}

Office::~Office()
{
    if (m_splash.Program() != nullptr)
        Main().Unload();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    User::Install(nullptr);
}

frmMain& Office::Main()
{
    Start();
    return m_splash.Program()->Main();
}

CategoryTreeView& Office::Tree()
{
    return Control<CategoryTreeView>(Main(), u"trvCategories"_s);
}

Form& Office::List()
{
    return *Forms::Find(u"frmList"_s);
}

void Office::Start()
{
    if (m_splash.Program() != nullptr)
        return;
    m_splash.Show();
    if (!QTest::qWaitFor([this] { return m_splash.Program() != nullptr && m_splash.Program()->Main().isVisible(); }))
        qFatal("the program did not start");
    QTest::qWait(0);
}

void Office::Click(const QString& key)
{
    Tree().expandAll();
    QTreeWidgetItem* node = Tree().FindKey(key);
    if (node == nullptr)
        qFatal("the tree has no %s", qUtf8Printable(key));
    QTest::mouseClick(Tree().viewport(), Qt::LeftButton, {}, Tree().visualItemRect(node).center());
}

Grid& Office::OpenList()
{
    Click(u"S1"_s);
    m_splash.Program()->Tree().trvCategories_DblClick();
    QTest::qWait(0);
    return Control<Grid>(List(), u"GridList"_s);
}

QStringList Office::WindowNames()
{
    return QStringList{u"splash"_s,       u"main window"_s,  u"main window with selected contacts"_s,
                       u"contact list"_s, u"new contact"_s,  u"contact"_s,
                       u"notes"_s,        u"move contact"_s, u"move category"_s,
                       u"question"_s,     u"line of text"_s, u"question of notes"_s,
                       u"error"_s} +
           SearchWindowNames();
}

void Office::Open(const QString& window, const Look& look)
{
    const auto inForm = [&look](const QString& name, const std::function<void()>& open) {
        const WhenFormOpens form(name, [&look](Form& shown) { look(shown); });
        open();
    };
    if (SearchWindowNames().contains(window)) {
        OpenSearchWindow(Main(), window, look);
    } else if (window == "main window"_L1) {
        look(Main());
    } else if (window == "main window with selected contacts"_L1) {
        OpenList().selectAll();
        Trigger(List(), u"mnuSelect"_s);
        List().Unload();
        look(Main());
    } else if (window == "line of text"_L1) {
        inForm(u"frmDialog"_s, [this] { Trigger(Main(), u"mnuCatCreate"_s); });
    } else if (window == "move category"_L1) {
        Click(u"S1"_s);
        Q_EMIT Main().MainMenus().Menu(u"mnuCategory"_s).aboutToShow();
        inForm(u"frmMove"_s, [this] { Trigger(Main(), u"mnuSubMove"_s); });
    } else if (window == "splash"_L1 || window == "error"_L1) {
        OpenBox(window, look);
    } else {
        OpenList();
        if (window == "contact list"_L1)
            look(List());
        else if (window == "new contact"_L1)
            inForm(u"frmContact"_s, [] { Trigger(List(), u"mnuNew"_s); });
        else if (window == "contact"_L1)
            inForm(u"frmContact"_s, [] { Trigger(List(), u"mnuModify"_s); });
        else if (window == "notes"_L1)
            inForm(u"frmNotes"_s, [] { Trigger(List(), u"mnuNotes"_s); });
        else if (window == "move contact"_L1)
            inForm(u"frmMove"_s, [] { Trigger(List(), u"mnuMove"_s); });
        else
            OpenBox(window, look);
    }
}

void Office::OpenBox(const QString& window, const Look& look)
{
    const auto work = [&look](QMessageBox& box) {
        look(box);
        box.button(box.button(QMessageBox::No) != nullptr ? QMessageBox::No : QMessageBox::Ok)->click();
    };
    if (window == "question"_L1) {
        const WhenBoxOpens box(work);
        Trigger(List(), u"mnuDelete"_s);
    } else if (window == "question of notes"_L1) {
        const WhenFormOpens notes(u"frmNotes"_s, [&work](Form& form) {
            TypeText(form, u"x"_s);
            const WhenBoxOpens box(work);
            TypeKey(form, Qt::Key_Escape);
        });
        Trigger(List(), u"mnuNotes"_s);
    } else {
        // A start that fails: the splash stays behind its report.
        gConn.Close();
        if (!QFile::remove(m_database.DatabaseFile()))
            qFatal("the database cannot be removed");
        const WhenBoxOpens box([&](QMessageBox& shown) {
            if (window == "error"_L1)
                look(shown);
            shown.accept();
        });
        m_splash.Show();
        if (!QTest::qWaitFor([&box] { return box.HasRun(); }))
            qFatal("the start that fails was not reported");
        if (window == "splash"_L1)
            look(m_splash);
        m_splash.Unload();
    }
}
