#include "app/Composition.h"
#include "app/frmSplash.h"
#include "core/adodb/Connection.h"
#include "model/Contact.h"
#include "model/Main.h"
#include "model/Openers.h"
#include "organise/CategoryTree.h"
#include "organise/CategoryTreeView.h"
#include "support/FreshDatabase.h"
#include "support/ScriptedUser.h"
#include "support/Windows.h"
#include "ui/frame/Menus.h"
#include "ui/frame/StatusPanels.h"
#include "ui/widgets/Forms.h"
#include "ui/widgets/Grid.h"
#include "ui/widgets/UserWindows.h"

#include <QAction>
#include <QFile>
#include <QLockFile>
#include <QPlainTextEdit>
#include <QProcess>
#include <QProgressBar>
#include <QTest>
#include <QTreeWidget>

using namespace Qt::StringLiterals;

/// The program from its start to its end, as a person walks it.
class tst_WholeRoad : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void FromTheFirstCategoryToTheNextMorning();
    void AStartThatFailsStaysOnTheSplash();
    void TheProgramLeavesAFolderAloneThatAnotherOneHolds();
    void ClosingTakesOpenEditorsAlong();

private:
    /// A run of the program inside this process.
    struct Run
    {
        Run() : Splash(Windows)
        {
            gConn.Close();
            Splash.Show();
        }
        ~Run()
        {
            if (Splash.Program() != nullptr)
                Splash.Program()->Main().Unload();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
        [[nodiscard]] frmMain& Main() { return Splash.Program()->Main(); }
        [[nodiscard]] QAction& Entry(const QString& name) { return Main().MainMenus().Entry(name); }
        [[nodiscard]] CategoryTreeView& Tree() { return Control<CategoryTreeView>(Main(), u"trvCategories"_s); }

        UserWindows Windows;
        frmSplash Splash;
    };

    static Grid& ListGrid() { return Control<Grid>(*Forms::Find(u"frmList"_s), u"GridList"_s); }
    static QAction& ListEntry(const QString& name) { return Control<QAction>(*Forms::Find(u"frmList"_s), name); }
    static void TypeTwoContacts();
    static void MoveSecondContact(Run& run);
    static void WriteNotes();
};

void tst_WholeRoad::TypeTwoContacts()
{
    WhenFormOpens editor(u"frmContact"_s, [](Form& form) {
        QCOMPARE(form.windowTitle(), u"New Contact Under First home"_s);
        TypeText(form, u"ann"_s);
        TypeKey(form, Qt::Key_Return);
        TypeKey(form, Qt::Key_Tab);
        TypeText(form, u"o'hara"_s);
        TypeKey(form, Qt::Key_Tab);
        TypeText(form, u"1 Elm St"_s);
        for (int i = 0; i < 11; ++i)
            TypeKey(form, Qt::Key_Return);
        TypeText(form, u"2155550101x"_s);
        ClickOn(form, u"cmdButton_3"_s);
        TypeText(form, u"Bob"_s);
        TypeKey(form, Qt::Key_Return);
        ClickOn(form, u"cmdButton_2"_s);
    });
    QTest::keyClick(&Control<CategoryTreeView>(*Forms::Find(u"frmMain"_s), u"trvCategories"_s), Qt::Key_Return);
    QVERIFY(editor.HasRun());
}

void tst_WholeRoad::MoveSecondContact(Run& run)
{
    WhenFormOpens chooser(u"frmMove"_s, [](Form& form) {
        auto& tree = Control<QTreeWidget>(form, u"TreeView1"_s);
        QTRY_COMPARE(tree.topLevelItemCount(), 1);
        tree.setCurrentItem(tree.topLevelItem(0)->child(1));
        ClickOn(form, u"cmdButton_2"_s);
    });
    ListEntry(u"mnuMove"_s).trigger();
    QCOMPARE(run.Main().windowTitle(), u" - 1 contact in First home"_s);
}

void tst_WholeRoad::WriteNotes()
{
    WhenFormOpens notes(u"frmNotes"_s, [](Form& form) {
        QCOMPARE(form.windowTitle(), u"Ann O'hara's Notes"_s);
        TypeText(form, u"Likes the sea"_s);
        ClickOn(form, u"cmdButton_1"_s);
        TypeKey(form, Qt::Key_Escape);
    });
    ListEntry(u"mnuNotes"_s).trigger();
    QVERIFY(notes.HasRun());
}

void tst_WholeRoad::FromTheFirstCategoryToTheNextMorning()
{
    FreshDatabase fresh;
    ScriptedUser person;
    {
        Run run;
        QTRY_VERIFY(run.Splash.Program() != nullptr && run.Main().isVisible());
        QTRY_COMPARE(person.LastStatus(), u"Enter a new category to get started"_s);
        QVERIFY(!run.Splash.isVisible());

        person.ExpectAskFor(u"New Category Name:"_s, u"Buyers"_s);
        run.Entry(u"mnuCatCreate"_s).trigger();
        for (const auto name : {"First home"_L1, "Moving up"_L1}) {
            person.ExpectAskFor(u"New Subcategory Name"_s, QString(name));
            run.Entry(u"mnuSubCreate"_s).trigger();
        }
        run.Splash.Program()->Tree().FindInTree(u"S1"_s);
        TypeTwoContacts();
        QCOMPARE(person.LastStatus(), u"Saved"_s);

        run.Splash.Program()->Tree().trvCategories_DblClick();
        QTRY_COMPARE(ListGrid().Rows(), 2);
        QCOMPARE(ListGrid().CellText(1, ListGrid().ColumnIndex(u"LastName")), u"O'hara"_s);
        QCOMPARE(ListGrid().CellText(1, ListGrid().ColumnIndex(u"HomePhone")), u"(215) 555-0101"_s);
        ListEntry(u"mnuSelect"_s).trigger();
        QCOMPARE(gSelected.Ids(), std::vector<Long>{1});
        WriteNotes();
        ListGrid().SelectCell(2, 4);
        curContact = ContactAt(2);
        person.Expect(u"Please Confirm Before I Proceed"_s, u"Do you want me to move Bob  to Moving up?"_s,
                      Answer::Yes);
        MoveSecondContact(run);
    }
    fresh.StartAnew();
    {
        Run run;
        QTRY_VERIFY(run.Splash.Program() != nullptr && run.Main().isVisible());
        QTRY_COMPARE(person.LastStatus(), u"Ready"_s);
        QCOMPARE(gContacts.Count(), 2);
        QCOMPARE(ContactAt(1)->Notes, u"Likes the sea"_s);
        QCOMPARE(ContactAt(1)->HomePhone, u"(215) 555-0101"_s);
        QCOMPARE(ContactAt(2)->subCategoryID, 2);
        QVERIFY(gSelected.IsEmpty()); // the set does not outlive the run
        run.Splash.Program()->Tree().FindInTree(u"S2"_s);
        run.Splash.Program()->Tree().trvCategories_DblClick();
        QTRY_COMPARE(ListGrid().Rows(), 1);
        person.Expect(u"Please Confirm Before I Proceed"_s, u"Delete Bob ?"_s, Answer::Yes);
        ListEntry(u"mnuDelete"_s).trigger();
        QVERIFY(!IsLoaded(u"frmList"_s));
    }
    fresh.StartAnew();
    QCOMPARE(FreshDatabase::Rows(u"Select FormattedName from Contacts"_s), QStringList{u"Ann O'hara"_s});
}

void tst_WholeRoad::AStartThatFailsStaysOnTheSplash()
{
    const FreshDatabase fresh;
    ScriptedUser person;
    gConn.Close();
    QVERIFY(QFile::remove(fresh.DatabaseFile()));
    person.Expect(u"frmSplash Activate Error #-2147467259"_s,
                  u"[Microsoft][ODBC Microsoft Access Driver] Could not find file '"_s + fresh.DatabaseFile() +
                      u"'."_s);
    Run run;
    QTRY_COMPARE(person.Boxes().size(), 1);
    QCOMPARE(person.LastBox().Picture, Icon::Critical);
    QVERIFY(run.Splash.isVisible());
    QVERIFY(run.Splash.Program() == nullptr);
    QVERIFY(!QFile::exists(fresh.DatabaseFile()));
    TypeKey(run.Splash, Qt::Key_Escape);
    QVERIFY(!run.Splash.isVisible());
}

void tst_WholeRoad::TheProgramLeavesAFolderAloneThatAnotherOneHolds()
{
    const FreshDatabase fresh;
    const QString program = fresh.Folder() + u"/orvantine"_s;
    QVERIFY(QFile::copy(QStringLiteral(ORVANTINE_PROGRAM), program));
    QFile before(fresh.DatabaseFile());
    QVERIFY(before.open(QIODevice::ReadOnly));
    const QByteArray content = before.readAll();
    QLockFile lock(fresh.Folder() + u"/Data/Orvantine.lock"_s);
    QVERIFY(lock.tryLock(0));
    QProcess second;
    second.start(program, {});
    QVERIFY(second.waitForStarted());
    // It stands before its box. A first start would have written the row of settings by now.
    QVERIFY(!second.waitForFinished(1500));
    second.kill();
    second.waitForFinished();
    before.seek(0);
    QCOMPARE(before.readAll(), content);
    QVERIFY(FreshDatabase::Rows(u"Select * from Settings"_s).isEmpty());
}

void tst_WholeRoad::ClosingTakesOpenEditorsAlong()
{
    const FreshDatabase fresh;
    ScriptedUser person;
    FreshDatabase::Execute(u"Insert into Categories (Description) Values ('Buyers')"_s);
    FreshDatabase::Execute(u"Insert into SubCategories (Description,ParentID) Values ('First home',1)"_s);
    Run run;
    QTRY_VERIFY(run.Splash.Program() != nullptr && run.Main().isVisible());
    run.Splash.Program()->Tree().FindInTree(u"S1"_s);
    WhenFormOpens editor(u"frmContact"_s, [&run](Form& form) {
        TypeText(form, u"Lost"_s);
        run.Main().Unload();
    });
    run.Splash.Program()->Tree().trvCategories_DblClick();
    QVERIFY(Forms::Loaded().isEmpty() || Forms::Loaded() == QStringList{u"frmSplash"_s});
    QVERIFY(FreshDatabase::Rows(u"Select * from Contacts"_s).isEmpty());
}

QTEST_MAIN(tst_WholeRoad)
#include "tst_WholeRoad.moc"
