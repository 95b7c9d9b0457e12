#include "alerts/Morning.h"

#include "core/adodb/Connection.h"
#include "core/Dates.h"
#include "model/AddNewAlert.h"
#include "model/DeleteContacts.h"
#include "model/Openers.h"
#include "support/Columns.h"

#include <QContextMenuEvent>

using namespace Qt::StringLiterals;

class tst_AlertPanels : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheMorningShowsWhatIsDueAndWhatComes();
    void MidnightChangesNothingBeforeTheNextFilling();
    void ANewAlertTakesItsPlace();
    void FutureAlertsStandInTheirOrderOfSetting();
    void WithoutAlertsTheRowsStayAndTheCountsGo();
    void EnterAndDoubleClickShowTheAlert();
    void DeleteTakesTheAlertOfTheSelectedRow_data();
    void DeleteTakesTheAlertOfTheSelectedRow();
    void TheListWorksOnItsOwnRowAfterAPanelChoseAnother();
    void AnAlertOfNextJanuaryLeavesItsRowBehind();
    void ADeleteThatFailsLosesNothing();
    void TheFirstPopupAfterAnEmptyPanelIsShort();
    void ThePopupWorksOnItsOwnPanel();
    void ShowContactBringsTheListToTheContact();
    void DeletedContactsTakeTheirAlertsAlong();
    void AStartWithABadAlertReportsAndGoesOn_data();
    void AStartWithABadAlertReportsAndGoesOn();

private:
    static QString Question(const QString& date, const QString& name)
    {
        return u"Do you want me to delete the alert dated "_s + date + u"\r\nbelonging to "_s + name + u"?"_s;
    }
    static constexpr auto title = "Please Confirm Before I Proceed"_L1;
};

void tst_AlertPanels::TheMorningShowsWhatIsDueAndWhatComes()
{
    Morning morning({{1, "11/20/2026", "Late"},
                     {1, "11/22/2026", "Call Ann"},
                     {2, "12/1/2026", "Soon"},
                     {3, "11/21/2026", "Mail"}});
    Grid& current = morning.Current();
    QCOMPARE(Morning::Texts(current), (QStringList{u"Call Ann"_s, u"Mail"_s, u"Late"_s}));
    QCOMPARE(Morning::Texts(current, 2), (QStringList{u"11/22/2026"_s, u"11/21/2026"_s, u"11/20/2026"_s}));
    QCOMPARE(current.CellIcon(1, 1), u"red"_s);
    QCOMPARE(current.CellColor(1, 3), QColor(255, 0, 0));
    QCOMPARE(current.CellIcon(2, 1), u"yellow"_s);
    QVERIFY(!current.CellColor(2, 3).isValid());
    QCOMPARE(current.RowItemData(1), 2);
    QCOMPARE(current.SortOrder(1), 2);
    QCOMPARE(Morning::Texts(morning.Future()), QStringList{u"12/01/2026 Soon"_s});
    QCOMPARE(morning.Counts(), u"3 1"_s);
    QCOMPARE(current.SelectedRow(), 1);
    QCOMPARE(morning.Future().SelectedRow(), 1);
}

void tst_AlertPanels::MidnightChangesNothingBeforeTheNextFilling()
{
    Morning morning;
    Morning::SetToday(QDate(2026, 11, 23));
    QTest::qWait(0);
    Grid& current = morning.Current();
    QCOMPARE(current.CellIcon(1, 1), u"red"_s);
    Morning::Panels().FillAlertGrid(false);
    QCOMPARE(current.CellText(1, 3), u"Call Ann"_s);
    QCOMPARE(current.CellIcon(1, 1), u"yellow"_s);
    QVERIFY(!current.CellColor(1, 3).isValid());
    Morning::SetToday(QDate(2026, 12, 1));
    Morning::Panels().FillAlertGrid(true);
    QCOMPARE(Morning::Texts(morning.Future()), QStringList{u"01/15/2027 Next year"_s});
    QCOMPARE(morning.Counts(), u"3 1"_s);
    QCOMPARE(current.Rows(), 2); // the other panel was not asked
}

void tst_AlertPanels::ANewAlertTakesItsPlace()
{
    // Behind its equals of today, between, behind an older equal, and as the oldest.
    for (const auto& [date, row, icon] :
         {std::tuple(u"11/22/2026"_s, 2, u"red"_s), std::tuple(u"11/21/2026"_s, 2, u"yellow"_s),
          std::tuple(u"11/20/2026"_s, 3, u"yellow"_s), std::tuple(u"1/1/1999"_s, 3, u"yellow"_s)}) {
        Morning morning;
        Grid& current = morning.Current();
        curContact = ContactAt(3);
        AddNewAlert(date, u"First line\r\nsecond"_s);
        QCOMPARE(current.SelectedRow(), row);
        QCOMPARE(current.CellText(row, 3), u"First linesecond"_s);
        QCOMPARE(current.CellIcon(row, 1), icon);
        QVERIFY(!current.CellColor(row, 3).isValid()); // red comes with the next filling
        QCOMPARE(current.RowItemData(row), 5);
        QCOMPARE(curAlertIndex, 5);
        QCOMPARE(morning.Counts(), u"3 2"_s);
        const QStringList inserted = Morning::Texts(current);
        Morning::Panels().FillAlertGrid(false);
        QCOMPARE(Morning::Texts(current), inserted);
    }
}

void tst_AlertPanels::FutureAlertsStandInTheirOrderOfSetting()
{
    // Date and note together are no date to the date sort, unless the note is a time of day.
    Morning morning({{1, "1/15/2027", "Next year"}, {1, "12/1/2026", "Soon"}, {2, "12/2/2026", "5 pm"}});
    const QStringList order{u"12/02/2026 5 pm"_s, u"01/15/2027 Next year"_s, u"12/01/2026 Soon"_s};
    QCOMPARE(Morning::Texts(morning.Future()), order);
    curContact = ContactAt(3);
    AddNewAlert(u"11/30/2026"_s, u"Call"_s);
    QCOMPARE(Morning::Texts(morning.Future()), order + QStringList{u"11/30/2026 Call"_s});
    AddNewAlert(u"12/3/2026"_s, u"8 am"_s);
    QCOMPARE(morning.Future().SelectedRow(), 1);
    QCOMPARE(morning.Counts(), u"0 5"_s);
}

void tst_AlertPanels::WithoutAlertsTheRowsStayAndTheCountsGo()
{
    Morning morning;
    gAlerts.RemoveAll();
    Morning::Panels().FillAlertGrid(true);
    QCOMPARE(morning.Counts(), u"0 0"_s);
    QCOMPARE(morning.Current().Rows(), 2);
    QCOMPARE(morning.Future().Rows(), 2);
}

void tst_AlertPanels::EnterAndDoubleClickShowTheAlert()
{
    Morning morning;
    Grid& future = morning.Future();
    for (const bool byKey : {true, false}) {
        curContact = ContactAt(3);
        curAlertIndex = 1;
        gAlertMode = AlertMode::New;
        const WhenFormOpens window(u"frmAlerts"_s, [](Form& form) {
            QCOMPARE(form.windowTitle(), u"Bob M Ray Alerts"_s);
            QCOMPARE(Control<QLabel>(form, u"lblDate"_s).text(), u"01/15/2027"_s);
        });
        future.SelectCell(2, 1);
        if (byKey)
            QTest::keyClick(&future, Qt::Key_Return);
        else
            QTest::mouseDClick(future.viewport(), Qt::LeftButton, {},
                               future.visualRect(future.model()->index(1, 0)).center());
        QCOMPARE(gAlertMode, AlertMode::Modify);
    }
}

void tst_AlertPanels::DeleteTakesTheAlertOfTheSelectedRow_data()
{
    AddColumns<bool, QString, QString, QString>({"future", "question", "statement", "counts"});
    QTest::newRow("current") << false << Question(u"11/20/2026"_s, u"Ann Lee"_s) << u"Delete from Alerts where ID=2"_s
                             << u"1 2"_s;
    QTest::newRow("future") << true << Question(u"12/01/2026"_s, u"Bob M Ray"_s) << u"Delete from Alerts where ID=3"_s
                            << u"2 1"_s;
}

void tst_AlertPanels::DeleteTakesTheAlertOfTheSelectedRow()
{
    QFETCH(bool, future);
    QFETCH(QString, question);
    QFETCH(QString, statement);
    Morning morning;
    Grid& list = morning.OpenList();
    Grid& panel = future ? morning.Future() : morning.Current();
    panel.SelectCell(future ? 1 : 2, 1);
    curContact = ContactAt(3); // somebody else, and another alert
    curAlertIndex = 1;
    static_cast<void>(morning.Database.TakeStatements());
    morning.Person.Expect(title, question, Answer::No);
    QTest::keyClick(&panel, Qt::Key_Delete);
    QVERIFY(morning.Database.TakeStatements().isEmpty());
    QCOMPARE(panel.Rows(), 2);

    // The list stands on somebody else, whose row stays as it is.
    const int row = future ? 2 : 1;
    list.SelectCell(3, 9);
    morning.Person.Expect(title, question, Answer::Yes);
    QTest::keyClick(&panel, Qt::Key_Delete);
    QCOMPARE(morning.Database.TakeStatements(), QStringList{statement});
    QCOMPARE(panel.Rows(), 1);
    QTEST(morning.Counts(), "counts");
    QCOMPARE(gAlerts.Count(), 3);
    QCOMPARE(curContact->NumberOfAlerts, 1);
    QCOMPARE(list.CellText(row, 1), u"1"_s);
    QCOMPARE(list.CellText(3, 1) + list.CellIcon(3, 1), QString());
    QCOMPARE(list.SelectedRow(), 3);
    QCOMPARE(list.Column(list.SelectedCol()).Key, u"FirstName"_s);
    // An empty panel has nothing to delete.
    panel.RemoveRow(1);
    QTest::keyClick(&panel, Qt::Key_Delete);
}

void tst_AlertPanels::TheListWorksOnItsOwnRowAfterAPanelChoseAnother()
{
    Morning morning;
    Grid& list = morning.OpenList();
    Morning::Press(list, 3);
    {
        const WhenFormOpens alerts(u"frmAlerts"_s, [](Form& form) { TypeKey(form, Qt::Key_Escape); });
        QTest::keyClick(&morning.Current(), Qt::Key_Return);
    }
    QCOMPARE(FormatName(), u"Ann Lee"_s);
    // The cell that is selected already: nothing changes its row, but what is done there is done to its contact.
    const int column = list.ColumnIndex(u"LastName");
    list.SelectCell(3, column);
    gOpeners.ContactEditor = [] {};
    QTest::keyClick(&list, Qt::Key_Return);
    QCOMPARE(FormatName(), u"Cy Day"_s);
    curContact = ContactAt(1);
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {},
                       list.visualRect(list.model()->index(2, column - 1)).center());
    QCOMPARE(FormatName(), u"Cy Day"_s);
}

void tst_AlertPanels::AnAlertOfNextJanuaryLeavesItsRowBehind()
{
    // As texts, "01/15/2027" comes before "11/22/2026": the wrong panel is looked through.
    Morning morning;
    Grid& future = morning.Future();
    future.SelectCell(2, 1);
    morning.Person.Expect(title, Question(u"01/15/2027"_s, u"Bob M Ray"_s), Answer::Yes);
    QTest::keyClick(&future, Qt::Key_Delete);
    QCOMPARE(gAlerts.Count(), 3);
    QCOMPARE(Morning::Texts(future), (QStringList{u"12/01/2026 Soon"_s, u"01/15/2027 Next year"_s}));
    QCOMPARE(morning.Counts(), u"2 1"_s);
    // Nothing stands behind that row now.
    future.SelectCell(2, 1);
    morning.Person.Expect(u"frmMain mnuDeleteAlert_Click Error #9"_s, u"Subscript out of range"_s);
    QTest::keyClick(&future, Qt::Key_Delete);
}

void tst_AlertPanels::ADeleteThatFailsLosesNothing()
{
    Morning morning;
    gConn.Close();
    morning.Person.Expect(title, Question(u"11/22/2026"_s, u"Ann Lee"_s), Answer::Yes);
    morning.Person.ExpectReport(u"frmMain ConfirmDelThisAlert Error #3709"_s);
    QTest::keyClick(&morning.Current(), Qt::Key_Delete);
    QCOMPARE(gAlerts.Count(), 4);
    QCOMPARE(morning.Current().Rows(), 2);
    QCOMPARE(ContactAt(1)->NumberOfAlerts, 2);
}

void tst_AlertPanels::TheFirstPopupAfterAnEmptyPanelIsShort()
{
    Morning morning({{1, "11/22/2026", "Call Ann"}});
    QMenu& menu = morning.Main().MainMenus().Menu(u"mnuAlertGrid"_s);
    const auto popup = [&](Grid& panel, int row) {
        Morning::Press(panel, row, Qt::RightButton);
        QStringList shown;
        for (const QAction* entry : menu.actions()) {
            if (entry->isVisible())
                shown << entry->text();
        }
        const bool up = menu.isVisible();
        menu.close();
        return up ? shown : QStringList{u"no popup"_s};
    };
    const QStringList whole{u"Show Alert"_s, u"Show Contact"_s, u"Manage Alerts"_s, u"Delete Alert"_s, u"New Alert"_s};
    const QStringList brief{u"New Alert"_s};
    QCOMPARE(popup(morning.Current(), 1), whole);
    QCOMPARE(popup(morning.Future(), 0), brief);
    QCOMPARE(popup(morning.Future(), 0), brief);
    QCOMPARE(popup(morning.Current(), 1), brief);
    QCOMPARE(popup(morning.Current(), 1), whole);
    QContextMenuEvent byKey(QContextMenuEvent::Keyboard, QPoint(), QPoint());
    QCoreApplication::sendEvent(&morning.Current(), &byKey);
    QVERIFY(menu.isVisible());
    menu.close();
}

void tst_AlertPanels::ThePopupWorksOnItsOwnPanel()
{
    Morning morning;
    QMenu& menu = morning.Main().MainMenus().Menu(u"mnuAlertGrid"_s);
    Morning::Press(morning.Future(), 1, Qt::RightButton);
    QCOMPARE(curAlertIndex, 3);
    menu.close();
    curAlertIndex = 1;
    curContact = ContactAt(1);
    morning.Person.Expect(title, Question(u"12/01/2026"_s, u"Bob M Ray"_s), Answer::Yes);
    morning.Entry(u"mnuDeleteAlert"_s).trigger();
    QCOMPARE(FreshDatabase::Rows(u"Select ID from Alerts"_s), (QStringList{u"1"_s, u"2"_s, u"4"_s}));
    // A click on the current panel makes its alert current; moving by key in the other one does not.
    Morning::Press(morning.Current(), 2);
    QCOMPARE(curAlertIndex, 2);
    QTest::keyClick(&morning.Future(), Qt::Key_Down);
    QCOMPARE(curAlertIndex, 2);
    QTest::keyClick(&morning.Current(), Qt::Key_Up);
    QCOMPARE(curAlertIndex, 1);
}

void tst_AlertPanels::ShowContactBringsTheListToTheContact()
{
    Morning morning;
    QMenu& menu = morning.Main().MainMenus().Menu(u"mnuAlertGrid"_s);
    Morning::Press(morning.Future(), 1, Qt::RightButton);
    menu.close();
    morning.Entry(u"mnuShowContact"_s).trigger();
    QTest::qWait(0);
    auto& list = Control<Grid>(*Forms::Find(u"frmList"_s), u"GridList"_s);
    QCOMPARE(list.SelectedRow(), 2);
    QCOMPARE(list.Column(list.SelectedCol()).Key, u"FirstName"_s);
    QCOMPARE(curContact->RecID, 2);
}

void tst_AlertPanels::DeletedContactsTakeTheirAlertsAlong()
{
    Morning morning;
    morning.OpenList();
    Face<ContactListFace>::Get()->SelectContact(2);
    morning.Person.Expect(title, u"Delete Bob M Ray?"_s, Answer::Yes);
    DeleteContacts(DeleteMode::Hilited);
    QCOMPARE(morning.Future().Rows(), 0);
    QCOMPARE(morning.Current().Rows(), 2);
    QCOMPARE(morning.Counts(), u"2 0"_s);
    QCOMPARE(FreshDatabase::Rows(u"Select ID from Alerts"_s), (QStringList{u"1"_s, u"2"_s}));
}

void tst_AlertPanels::AStartWithABadAlertReportsAndGoesOn_data()
{
    AddColumns<QString, QString, int>({"values", "report", "loaded"});
    QTest::newRow("a contact that is gone") << u"99,'11/22/2026','Nobody'"_s << u"LoadContacts Error #424"_s << 2;
    QTest::newRow("a date that is none") << u"1,'soon','Some day'"_s << u"LoadContacts Error #13"_s << 1;
}

void tst_AlertPanels::AStartWithABadAlertReportsAndGoesOn()
{
    QFETCH(QString, values);
    QFETCH(QString, report);
    QFETCH(int, loaded);
    Morning morning({{1, "11/22/2026", "Call Ann"}});
    FreshDatabase::Execute(u"Insert into Alerts (ContactID,AlertDate,AlertNote) Values ("_s + values + u")"_s);
    FreshDatabase::Execute(u"Insert into Alerts (ContactID,AlertDate,AlertNote) Values (2,'11/22/2026','Behind it')"_s);
    const QStringList file = FreshDatabase::WholeFile();
    morning.Person.ExpectReport(report);
    morning.StartAnew();
    QCOMPARE(morning.Current().Rows(), loaded); // what stands behind the bad row waits for a start without it
    QCOMPARE(FreshDatabase::WholeFile(), file);
    if (loaded == 1)
        return;
    morning.Current().SelectCell(2, 1);
    morning.Person.Expect(u"frmMain mnuShowAlert_Click Error #424"_s, u"Object required"_s);
    QTest::keyClick(&morning.Current(), Qt::Key_Return);
}

QTEST_MAIN(tst_AlertPanels)
#include "tst_AlertPanels.moc"
