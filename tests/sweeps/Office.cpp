#include "sweeps/Office.h"

#include "app/Composition.h"
#include "core/adodb/Connection.h"
#include "core/Clock.h"
#include "model/Main.h"
#include "organise/CategoryTree.h"
#include "organise/CategoryTreeView.h"
#include "ui/widgets/Forms.h"
#include "ui/widgets/Grid.h"

#include <QAction>
#include <QFile>
#include <QTest>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

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
          "Insert into PropDetail (ContactID,Addr1) Values (1,'1 Elm Street')"_L1,
          "Update Contacts set DefaultProperty=1 Where ID=1"_L1})
        FreshDatabase::Execute(QString(statement));
    FreshDatabase::Execute(
        u"Insert into Alerts (ContactID,AlertDate,AlertNote) Values (1,'%1','Call about the house')"_s.arg(
            Clock::Today().toString(u"MM/dd/yyyy"_s)));
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

const QList<OfficeWindow>& Office::Windows()
{
    static const QList<OfficeWindow> windows = DeskWindows() + PropertyWindows() + AlertWindows() + SearchWindows() +
                                               LettersWindows() + ReportWindows() + FeedbackWindows();
    return windows;
}

void Office::Open(const QString& window, const Look& look)
{
    const auto place = std::ranges::find(Windows(), window, &OfficeWindow::Name);
    if (place == Windows().end())
        qFatal("there is no window %s", qUtf8Printable(window));
    place->Open(*this, look);
}

void Office::Trigger(const QWidget& window, const QString& entry)
{
    auto& action = Control<QAction>(window, entry);
    if (!action.isEnabled())
        qFatal("%s cannot be chosen now", qUtf8Printable(entry));
    action.trigger();
}

void Office::InForm(const QString& name, const std::function<void()>& open, const Look& look)
{
    const WhenFormOpens form(name, [&look](Form& shown) { look(shown); });
    open();
}

void Office::StartInVain(bool box, const Look& look)
{
    gConn.Close();
    if (!QFile::remove(m_database.DatabaseFile()))
        qFatal("the database cannot be removed");
    const WhenBoxOpens report([&](QMessageBox& shown) {
        if (box)
            look(shown);
        shown.accept();
    });
    m_splash.Show();
    if (!QTest::qWaitFor([&report] { return report.HasRun(); }))
        qFatal("the start that fails was not reported");
    if (!box)
        look(m_splash);
    m_splash.Unload();
}
