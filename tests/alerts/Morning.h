#pragma once

#include "alerts/AlertPanels.h"
#include "core/Clock.h"
#include "model/Contact.h"
#include "model/Main.h"
#include "support/RunningProgram.h"
#include "support/Windows.h"
#include "ui/frame/Menus.h"
#include "ui/widgets/Forms.h"
#include "ui/widgets/Grid.h"

#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QTest>

/// The program on the morning of November 22, 2026, on a small file:
///   Buyers   First home: 1 Ann Lee, 2 Bob M Ray, 3 Cy Day
///   Ann: A1 today "Call Ann", A2 two days late "Late";  Bob: A3 in December "Soon", A4 in January "Next year"
class Morning : public RunningProgram
{
public:
    struct Row
    {
        int ContactID;
        const char* Date;
        const char* Note;
    };

    explicit Morning(const std::vector<Row>& alerts = {{1, "11/22/2026", "Call Ann"},
                                                       {1, "11/20/2026", "Late"},
                                                       {2, "12/1/2026", "Soon"},
                                                       {2, "1/15/2027", "Next year"}})
    {
        SetToday(QDate(2026, 11, 22));
        FreshDatabase::Execute(QStringLiteral("Insert into Categories (Description) Values ('Buyers')"));
        FreshDatabase::Execute(
            QStringLiteral("Insert into SubCategories (Description,ParentID) Values ('First home',1)"));
        AddContact("Ann", "", "Lee");
        AddContact("Bob", "M", "Ray");
        AddContact("Cy", "", "Day");
        for (const Row& row : alerts)
            FreshDatabase::Execute(
                QStringLiteral("Insert into Alerts (ContactID,AlertDate,AlertNote) Values (%1,'%2','%3')")
                    .arg(row.ContactID)
                    .arg(QLatin1StringView(row.Date), QLatin1StringView(row.Note)));
        Start();
    }

    ~Morning() override
    {
        End();
        Clock::SetSource({});
    }

    static void SetToday(const QDate& day)
    {
        Clock::SetSource([day] { return QDateTime(day, QTime(9, 0)); });
    }

    [[nodiscard]] QAction& Entry(const QString& name) { return Main().MainMenus().Entry(name); }
    [[nodiscard]] static AlertPanelsFace& Panels() { return *Face<AlertPanelsFace>::Get(); }
    [[nodiscard]] Grid& Current() { return Control<Grid>(Main(), QStringLiteral("GridAlerts")); }
    [[nodiscard]] Grid& Future() { return Control<Grid>(Main(), QStringLiteral("GridFutureAlerts")); }
    /// The two counts as they are shown, "current future".
    [[nodiscard]] QString Counts()
    {
        return Control<QLabel>(Main(), QStringLiteral("lblCurrentAlerts")).text() + QLatin1Char(' ') +
               Control<QLabel>(Main(), QStringLiteral("lblFutureAlerts")).text();
    }
    /// The last column of a grid, from the first row.
    [[nodiscard]] static QStringList Texts(const Grid& grid, int column = 0)
    {
        QStringList texts;
        for (int row = 1; row <= grid.Rows(); ++row)
            texts << grid.CellText(row, column > 0 ? column : grid.Columns());
        return texts;
    }
    /// Presses a mouse button on a row, or on the empty panel.
    static void Press(Grid& grid, int row, Qt::MouseButton button = Qt::LeftButton)
    {
        const QPoint spot = row > 0 ? grid.visualRect(grid.model()->index(row - 1, 0)).center() : QPoint(5, 5);
        QTest::mouseClick(grid.viewport(), button, {}, spot);
    }
    /// The list of First home, with its grid.
    Grid& OpenList()
    {
        Tree().FindInTree(QStringLiteral("S1"));
        Tree().trvCategories_DblClick();
        QTest::qWait(0);
        return Control<Grid>(*Forms::Find(QStringLiteral("frmList")), QStringLiteral("GridList"));
    }

private:
    static void AddContact(const char* first, const char* mi, const char* last)
    {
        FreshDatabase::Execute(QStringLiteral("Insert into Contacts (CategoryID,SubCategoryID,FirstName,MI,LastName) "
                                              "Values (1,1,'%1','%2','%3')")
                                   .arg(QLatin1StringView(first), QLatin1StringView(mi), QLatin1StringView(last)));
    }
};
