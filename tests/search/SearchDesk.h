#pragma once

#include "app/Composition.h"
#include "core/Clock.h"
#include "model/Categories.h"
#include "model/Contact.h"
#include "model/LoadContacts.h"
#include "model/Main.h"
#include "organise/CategoryTree.h"
#include "support/FreshDatabase.h"
#include "support/ScriptedUser.h"
#include "support/Windows.h"
#include "ui/frame/Menus.h"
#include "ui/widgets/Forms.h"
#include "ui/widgets/Grid.h"

#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QRadioButton>
#include <QTest>

/// The program on the morning of November 22, 2026, with the search tab in front, on a small file:
///   Buyers   First home: 1 Ann Lee (12 Elm St, FL), 2 Bob M Ray (9 Oak Ave, PA), 3 Cy Day
///   Ann: 1 MLS A-1, 1 Elm St, her default property, 250,000, listed 11/20/2026; 2 at 2 Elm St, 90,000, listed
///   12/1/2026 Bob: 3 MLS B-3, 3 Oak Ave, never listed
class SearchDesk
{
public:
    SearchDesk()
    {
        Clock::SetSource([] { return QDateTime(QDate(2026, 11, 22), QTime(9, 0)); });
        Run("Insert into Categories (Description) Values ('Buyers')");
        Run("Insert into SubCategories (Description,ParentID) Values ('First home',1)");
        Run("Insert into Contacts "
            "(CategoryID,SubCategoryID,FirstName,MI,LastName,MailAddr1,MailState,HomePhone,MailZip,"
            "MailZip4,DefaultProperty) Values (1,1,'Ann','','Lee','12 Elm St',10,'(215) 555-0100','19103','2204',1)");
        Run("Insert into Contacts (CategoryID,SubCategoryID,FirstName,MI,LastName,MailAddr1,MailState) "
            "Values (1,1,'Bob','M','Ray','9 Oak Ave',44)");
        Run("Insert into Contacts (CategoryID,SubCategoryID,FirstName,MI,LastName) Values (1,1,'Cy','','Day')");
        Run("Insert into PropDetail (ContactID,MLS,Addr1,City,AskingPrice,ListingDate,SqFt) "
            "Values (1,'A-1','1 Elm St','Salem',250000,'11/20/2026',1312)");
        Run("Insert into PropDetail (ContactID,Addr1,City,AskingPrice,ListingDate) "
            "Values (1,'2 Elm St','Salem',90000,'12/01/2026')");
        Run("Insert into PropDetail (ContactID,MLS,Addr1,City) Values (2,'B-3','3 Oak Ave','Dover')");
        LoadCategories();
        m_program = std::make_unique<Composition>();
        m_program->Tree().FillTree();
        LoadContacts([](int) {});
        Main().Show();
        Main().ShowTab(1);
        QTest::qWait(0);
        static_cast<void>(Database.TakeStatements());
        Person.Forget();
    }

    ~SearchDesk()
    {
        Main().Unload();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        m_program.reset();
        Clock::SetSource({});
    }

    static void Run(const char* statement) { FreshDatabase::Execute(QString::fromLatin1(statement)); }

    [[nodiscard]] frmMain& Main() { return m_program->Main(); }
    [[nodiscard]] QAction& Entry(const char* name) { return Main().MainMenus().Entry(QString::fromLatin1(name)); }
    [[nodiscard]] QMenu& Menu(const char* name) { return Main().MainMenus().Menu(QString::fromLatin1(name)); }
    [[nodiscard]] Grid& Criteria() { return Control<Grid>(Main(), QStringLiteral("GridSearch")); }
    [[nodiscard]] Grid& Found() { return Control<Grid>(Main(), QStringLiteral("GridFound")); }
    [[nodiscard]] QString Heading() { return Control<QLabel>(Main(), QStringLiteral("lblFound")).text(); }
    [[nodiscard]] QColor HeadingColor()
    {
        return Control<QLabel>(Main(), QStringLiteral("lblFound")).palette().color(QPalette::WindowText);
    }
    /// The menus of what was found that stand in the menu bar.
    [[nodiscard]] QStringList FoundMenus()
    {
        QStringList shown;
        for (const char* name : {"mnuFoundContacts", "mnuFoundProperties"})
            if (Menu(name).menuAction()->isVisible())
                shown << QString::fromLatin1(name);
        return shown;
    }

    void Choose(const char* option) { Control<QRadioButton>(Main(), QString::fromLatin1(option)).click(); }
    void Properties() { Choose("optSearch_1"); }
    void SetCriterion(int row, const QString& text) { Criteria().SetCellText(row, 2, text); }
    void Search() { ClickOn(Main(), QStringLiteral("cmdbutton_2")); }
    /// The first columns of the visible rows, by key.
    [[nodiscard]] QStringList Texts(QStringView key)
    {
        QStringList texts;
        for (int row = 1; row <= Found().Rows(); ++row)
            if (Found().RowVisible(row))
                texts << Found().CellText(row, Found().ColumnIndex(key));
        return texts;
    }
    void Press(Grid& grid, int row, Qt::MouseButton button = Qt::LeftButton)
    {
        const QModelIndex cell = grid.model()->index(row - 1, grid.columnAt(1));
        QTest::mouseClick(grid.viewport(), button, {}, grid.visualRect(cell).center());
    }

    FreshDatabase Database;
    ScriptedUser Person;

private:
    std::unique_ptr<Composition> m_program;
};
