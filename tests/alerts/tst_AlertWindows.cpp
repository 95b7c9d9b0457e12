#include "alerts/Morning.h"

#include "alerts/ManageAlerts.h"
#include "model/Openers.h"
#include "support/Columns.h"
#include "ui/widgets/frmCalendar.h"
#include "ui/widgets/HoverButton.h"

#include <QCalendarWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>

using namespace Qt::StringLiterals;

class tst_AlertWindows : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheWindowOpensOnTheAlertOfItsCaller_data();
    void TheWindowOpensOnTheAlertOfItsCaller();
    void EditingTurnsTheButtonsOver();
    void CancelBringsTheFieldsBack();
    void ASaveIsRefused();
    void ANewAlertFromTheContactList();
    void NewNeverOverwritesAnAlertAndModifyNeverAddsOne();
    void AChangeToYesterdayMovesTheAlertAndCountsOneTooMany();
    void DeletingShowsTheNextAlertAndThenNone();
    void TwoAlertsOfOneDayShareTheirKeyUntilTheNextStart();
    void ANoteComesBackAsItWasWritten();
    void ANoteOfOtherHandsIsNotTouchedByADate();
    void SettingAnAlertByThreeQuestions();
    void SettingAnAlertEndsWhereThePersonStops_data();
    void SettingAnAlertEndsWhereThePersonStops();
    void ManagingGoesFromContactToContact();
    void WithoutAlertsThereIsNothingToManage();
    void TheContactsAreSortedAsTheButtonsSay();
    void TheCalendarAnswers();

private:
    static void Open(Long contactID, Long mode)
    {
        curContact = ContactAt(contactID);
        gAlertMode = mode;
        ShowAlerts();
    }
    static void Modify(const Form& form) { ClickOn(form, u"cmdbutton_3"_s); }
    static void New(const Form& form) { ClickOn(form, u"cmdbutton_4"_s); }
    static void Delete(const Form& form) { ClickOn(form, u"cmdbutton_5"_s); }
    static bool Shows(const Form& form, const QString& name) { return Control<QWidget>(form, name).isVisible(); }
    static QString DateOf(const Form& form) { return Control<QLabel>(form, u"lblDate"_s).text(); }
    static QPlainTextEdit& NoteOf(const Form& form) { return Control<QPlainTextEdit>(form, u"txtNotes"_s); }
    static Grid& GridOf(const Form& form) { return Control<Grid>(form, u"Grid1"_s); }
    /// Picks a day in the calendar that opens next, an invalid day cancels it; then goes on in the window beneath.
    static std::unique_ptr<WhenFormOpens> Pick(const QDate& day, const QString& caption = u"Alert Date for Ann Lee"_s,
                                               const std::function<void()>& goOn = {})
    {
        return std::make_unique<WhenFormOpens>(u"frmCalendar"_s, [=](Form& form) {
            QCOMPARE(form.windowTitle(), caption);
            Control<QCalendarWidget>(form, u"Calendar1"_s).setSelectedDate(day);
            ClickOn(form, day.isValid() ? u"cmdButton_2"_s : u"cmdButton_1"_s);
            if (goOn)
                goOn();
        });
    }
    static constexpr auto confirm = "Please Confirm Before I Proceed"_L1;
};

void tst_AlertWindows::TheWindowOpensOnTheAlertOfItsCaller_data()
{
    AddColumns<int, int, int, QString, QString>({"contact", "mode", "current", "caption", "date"});
    QTest::newRow("the current alert") << 1 << 4 << 2 << u"Ann Lee Alerts"_s << u"11/20/2026"_s;
    QTest::newRow("no alert of this contact: the first row") << 2 << 2 << 1 << u"Bob M Ray Alerts"_s << u"01/15/2027"_s;
    QTest::newRow("an alert that is long gone") << 1 << 4 << 99 << u"Ann Lee Alerts"_s << u"11/22/2026"_s;
    QTest::newRow("after setting one") << 1 << 1 << 1 << u"New Alert for Ann Lee"_s << u"11/22/2026"_s;
    QTest::newRow("no alerts") << 3 << 4 << 1 << u"Cy Day Alerts"_s << QString();
}

void tst_AlertWindows::TheWindowOpensOnTheAlertOfItsCaller()
{
    QFETCH(int, contact);
    QFETCH(int, mode);
    QFETCH(int, current);
    Morning morning;
    curAlertIndex = current;
    const WhenFormOpens window(u"frmAlerts"_s, [](Form& form) {
        QTEST(form.windowTitle(), "caption");
        QTEST(DateOf(form), "date");
        QVERIFY(NoteOf(form).isReadOnly());
        if (!DateOf(form).isEmpty())
            QCOMPARE(gAlerts.Item(curAlertIndex)->KeyID(), GridOf(form).RowItemData(GridOf(form).SelectedRow()));
        else
            Modify(form); // does nothing without a row
        QVERIFY(Shows(form, u"cmdbutton_7"_s));
    });
    Open(contact, mode);
}

void tst_AlertWindows::EditingTurnsTheButtonsOver()
{
    Morning morning;
    const WhenFormOpens window(u"frmAlerts"_s, [](Form& form) {
        const auto captions = [&form] {
            return Control<HoverButton>(form, u"cmdbutton_3"_s).Picture() + u' ' +
                   Control<HoverButton>(form, u"cmdbutton_5"_s).Picture();
        };
        QCOMPARE(captions(), u"Modify Delete"_s);
        QVERIFY(!Shows(form, u"picCalendar"_s));
        Modify(form);
        QCOMPARE(captions(), u"Save Cancel"_s);
        QVERIFY(Shows(form, u"picCalendar"_s) && !Shows(form, u"cmdbutton_4"_s) && !Shows(form, u"cmdbutton_7"_s));
        QVERIFY(!GridOf(form).isEnabled());
        QVERIFY(NoteOf(form).hasFocus());
        QCOMPARE(NoteOf(form).textCursor().selectedText(), u"Call Ann"_s);
        QVERIFY(!form.close()); // Save and Cancel are the ways out
        TypeKey(form, Qt::Key_Escape);
        QCOMPARE(captions(), u"Modify Delete"_s);
        QVERIFY(Shows(form, u"cmdbutton_4"_s) && Shows(form, u"cmdbutton_7"_s) && !Shows(form, u"picCalendar"_s));
        QVERIFY(GridOf(form).isEnabled() && NoteOf(form).isReadOnly());
        TypeKey(form, Qt::Key_Escape);
        QVERIFY(!form.isVisible());
    });
    Open(1, AlertMode::Modify);
}

void tst_AlertWindows::CancelBringsTheFieldsBack()
{
    // Of a change, of the new one that opened the window, and of the first alert.
    for (const auto& [contact, mode, date, note] : {std::tuple(1, AlertMode::Modify, u"11/22/2026"_s, u"Call Ann"_s),
                                                    std::tuple(1, AlertMode::New, u"11/22/2026"_s, u"Call Ann"_s),
                                                    std::tuple(3, AlertMode::New, QString(), QString())}) {
        Morning morning;
        const QString caption = u"Alert Date for "_s + FormatName(*ContactAt(contact));
        std::unique_ptr<WhenFormOpens> window;
        const auto work = [&] {
            window = std::make_unique<WhenFormOpens>(u"frmAlerts"_s, [&](Form& form) {
                if (mode == AlertMode::Modify) {
                    Modify(form);
                    const auto second = Pick(QDate(2026, 12, 5));
                    ClickOn(form, u"picCalendar"_s);
                }
                QCOMPARE(DateOf(form), u"12/05/2026"_s);
                TypeText(form, u"Something else"_s);
                Delete(form);
                QCOMPARE(DateOf(form), date);
                QCOMPARE(NoteOf(form).toPlainText(), note);
            });
        };
        const auto first = mode == AlertMode::New ? Pick(QDate(2026, 12, 5), caption, work) : nullptr;
        if (!first)
            work();
        Open(contact, mode);
        QVERIFY(morning.Database.TakeStatements().isEmpty());
    }
}

void tst_AlertWindows::ASaveIsRefused()
{
    Morning morning;
    const WhenFormOpens window(u"frmAlerts"_s, [&](Form& form) {
        Modify(form);
        TypeKey(form, Qt::Key_Delete);
        morning.Person.Expect(u"Alert not Saved"_s,
                              u"I did not save this alert because\r\nyou did not enter any Snotes."_s);
        Modify(form);
        QVERIFY(NoteOf(form).hasFocus() && !NoteOf(form).isReadOnly());
        Control<QLabel>(form, u"lblDate"_s).setText(u"soon"_s);
        morning.Person.Expect(u"Invalid Alert Date"_s, u"Please check the Alert Date."_s);
        Modify(form);
        QCOMPARE(morning.Person.LastBox().Picture, Icon::Information);
        QVERIFY(Shows(form, u"picCalendar"_s));
    });
    Open(1, AlertMode::Modify);
    QVERIFY(morning.Database.TakeStatements().isEmpty());
}

void tst_AlertWindows::ANewAlertFromTheContactList()
{
    Morning morning;
    Grid& list = morning.OpenList();
    Face<ContactListFace>::Get()->SelectContact(3);
    curContact = ContactAt(3);
    static_cast<void>(morning.Database.TakeStatements());
    std::unique_ptr<WhenFormOpens> window;
    const auto work = [&](Form& form) {
        QCOMPARE(form.windowTitle(), u"New Alert for Cy Day"_s);
        TypeText(form, u"Cy's keys"_s);
        Modify(form);
        QCOMPARE(GridOf(form).Rows(), 1);
        QCOMPARE(GridOf(form).CellIcon(1, 1), u"red"_s);
        QCOMPARE(GridOf(form).SelectedRow(), 1);
        QCOMPARE(list.CellText(3, 1), u"1"_s);
        QCOMPARE(list.CellIcon(3, 1), u"red"_s);
        QCOMPARE(list.CellColor(3, list.ColumnIndex(u"LastName")), QColor(255, 0, 0));
        QVERIFY(NoteOf(form).isReadOnly());
    };
    const auto calendar = Pick(QDate(2026, 11, 22), u"Alert Date for Cy Day"_s,
                               [&] { window = std::make_unique<WhenFormOpens>(u"frmAlerts"_s, work); });
    // The double click on "Alert" of a contact without alerts goes straight to a new one.
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(list.model()->index(2, 0)).center());
    QCOMPARE(morning.Database.TakeStatements(),
             (QStringList{u"Insert into Alerts (ContactID,AlertDate,AlertNote) Values (3,'11/22/2026','Cy''s keys')"_s,
                          u"Select ID from Alerts Where ContactID=3 and cdate(AlertDate)='11/22/2026'"_s}));
    QCOMPARE(morning.Counts(), u"3 2"_s);
    QCOMPARE(Morning::Texts(morning.Current()), (QStringList{u"Call Ann"_s, u"Cy's keys"_s, u"Late"_s}));
    QCOMPARE(ContactAt(3)->NumberOfAlerts, 1);
}

void tst_AlertWindows::NewNeverOverwritesAnAlertAndModifyNeverAddsOne()
{
    Morning morning;
    const WhenFormOpens window(u"frmAlerts"_s, [&](Form& form) {
        { // A New that is cancelled at the calendar changes nothing.
            const auto calendar = Pick(QDate());
            New(form);
        }
        QCOMPARE(gAlertMode, AlertMode::Manage);
        QCOMPARE(DateOf(form), u"11/22/2026"_s);
        {
            const auto calendar = Pick(QDate(2026, 11, 30));
            New(form);
        }
        TypeText(form, u"Third"_s);
        Modify(form);
        QCOMPARE(Morning::Texts(GridOf(form)), (QStringList{u"Third"_s, u"Call Ann"_s, u"Late"_s}));
        QCOMPARE(curAlertIndex, 5);
        Modify(form);
        TypeText(form, u"Changed"_s);
        Modify(form);
        QCOMPARE(Morning::Texts(GridOf(form)), (QStringList{u"Changed"_s, u"Call Ann"_s, u"Late"_s}));
    });
    Open(1, AlertMode::Manage);
    QCOMPARE(FreshDatabase::Rows(u"Select AlertNote from Alerts Where ContactID=1"_s),
             (QStringList{u"Call Ann"_s, u"Late"_s, u"Changed"_s}));
    QCOMPARE(ContactAt(1)->NumberOfAlerts, 3);
}

void tst_AlertWindows::AChangeToYesterdayMovesTheAlertAndCountsOneTooMany()
{
    Morning morning;
    Grid& list = morning.OpenList();
    list.SelectCell(2, 4);
    curAlertIndex = 3;
    const WhenFormOpens window(u"frmAlerts"_s, [](Form& form) {
        Modify(form);
        const auto calendar = Pick(QDate(2026, 11, 21), u"Alert Date for Bob M Ray"_s);
        ClickOn(form, u"picCalendar"_s);
        Modify(form);
        QCOMPARE(GridOf(form).CellIcon(2, 1), u"yellow"_s);
        QCOMPARE(GridOf(form).CellText(2, 2), u"11/21/2026"_s);
        QCOMPARE(GridOf(form).SelectedRow(), 2);
    });
    static_cast<void>(morning.Database.TakeStatements());
    Open(2, AlertMode::Modify);
    QCOMPARE(morning.Database.TakeStatements(),
             QStringList{u"Update Alerts set AlertDate='11/21/2026', AlertNote='Soon' Where ID=3"_s});
    QCOMPARE(Morning::Texts(morning.Current()), (QStringList{u"Call Ann"_s, u"Soon"_s, u"Late"_s}));
    QCOMPARE(morning.Future().Rows(), 1);
    QCOMPARE(list.CellIcon(2, 1), u"yellow"_s);
    QCOMPARE(morning.Counts(), u"3 2"_s);
    Morning::Panels().FillAlertGrid(true);
    QCOMPARE(morning.Counts(), u"3 1"_s);
}

void tst_AlertWindows::DeletingShowsTheNextAlertAndThenNone()
{
    Morning morning;
    Grid& list = morning.OpenList();
    list.SelectCell(1, 4);
    const WhenFormOpens window(u"frmAlerts"_s, [&](Form& form) {
        const QString question = u"Do you want me to delete the alert dated %1\r\nbelonging to Ann Lee?"_s;
        morning.Person.Expect(confirm, question.arg(u"11/22/2026"_s), Answer::No);
        Delete(form);
        QCOMPARE(GridOf(form).Rows(), 2);
        morning.Person.Expect(confirm, question.arg(u"11/22/2026"_s), Answer::Yes);
        Delete(form);
        QCOMPARE(DateOf(form), u"11/20/2026"_s);
        QCOMPARE(gAlerts.Item(curAlertIndex)->AlertNote, u"Late"_s);
        QCOMPARE(list.CellIcon(1, 1), u"yellow"_s);
        QCOMPARE(morning.Counts(), u"1 2"_s);
        morning.Person.Expect(confirm, question.arg(u"11/20/2026"_s), Answer::Yes);
        Delete(form);
        QCOMPARE(DateOf(form) + NoteOf(form).toPlainText(), QString());
        QCOMPARE(list.CellText(1, 1), QString());
        QCOMPARE(morning.Counts(), u"0 2"_s);
        Delete(form); // no row: no question
    });
    Open(1, AlertMode::Modify);
    QCOMPARE(FreshDatabase::Rows(u"Select ID from Alerts"_s), (QStringList{u"3"_s, u"4"_s}));
    QCOMPARE(ContactAt(1)->NumberOfAlerts, 0);
}

void tst_AlertWindows::TwoAlertsOfOneDayShareTheirKeyUntilTheNextStart()
{
    Morning morning;
    const WhenFormOpens window(u"frmAlerts"_s, [](Form& form) {
        const auto calendar = Pick(QDate(2026, 11, 22));
        New(form);
        TypeText(form, u"Second of the day"_s);
        Modify(form);
        QCOMPARE(GridOf(form).RowItemData(1), 1);
        QCOMPARE(GridOf(form).RowItemData(2), 1);
    });
    Open(1, AlertMode::Modify);
    QCOMPARE(gAlerts.Item(5)->Key, u"A1"_s);
    morning.StartAnew();
    QCOMPARE(gAlerts.Item(5)->Key, u"A5"_s);
    QCOMPARE(Morning::Texts(morning.Current()), (QStringList{u"Call Ann"_s, u"Second of the day"_s, u"Late"_s}));
}

void tst_AlertWindows::ANoteComesBackAsItWasWritten()
{
    const QString note = u"It's a long \U0001F600 story'); Delete from Alerts; --\r\n"_s.repeated(800);
    Morning morning;
    {
        const WhenFormOpens window(u"frmAlerts"_s, [&note](Form& form) {
            Modify(form);
            NoteOf(form).insertPlainText(note);
            Modify(form);
            QCOMPARE(GridOf(form).CellText(1, 3), QString(note).remove(u"\r\n"_s));
            QCOMPARE(NoteOf(form).toPlainText().count(u'\n'), note.count(u'\n'));
        });
        Open(1, AlertMode::Modify);
    }
    morning.StartAnew();
    QCOMPARE(gAlerts.Item(1)->AlertNote, note);
    QCOMPARE(Morning::Texts(morning.Current()).first(), QString(note).remove(u"\r\n"_s));
    morning.Main().grab(); // a long note must paint, too
}

void tst_AlertWindows::ANoteOfOtherHandsIsNotTouchedByADate()
{
    Morning morning({{1, "11/22/2026", "Line one\nline two\rthree"}});
    const WhenFormOpens window(u"frmAlerts"_s, [](Form& form) {
        Modify(form);
        const auto calendar = Pick(QDate(2026, 11, 21));
        ClickOn(form, u"picCalendar"_s);
        Modify(form);
    });
    Open(1, AlertMode::Modify);
    QCOMPARE(gAlerts.Item(1)->AlertNote, u"Line one\nline two\rthree"_s);
}

void tst_AlertWindows::SettingAnAlertByThreeQuestions()
{
    Morning morning;
    const WhenFormOpens chooser(u"frmAlertContacts"_s, [](Form& form) {
        Grid& grid = GridOf(form);
        QCOMPARE(Morning::Texts(grid, 1), (QStringList{u"Cy "_s, u"Ann "_s, u"Bob M "_s}));
        QCOMPARE(Morning::Texts(grid, 2), (QStringList{u"Day"_s, u"Lee"_s, u"Ray"_s}));
        QCOMPARE(Morning::Texts(grid, 3), (QStringList{QString(), u"2"_s, u"2"_s}));
        QTest::keyClick(&grid, Qt::Key_Down);
        QCOMPARE(curContact->RecID, 1);
        ClickOn(form, u"cmdbutton_2"_s);
    });
    const auto calendar = Pick(QDate(2026, 11, 21), u"New Alert Date for Ann Lee"_s);
    morning.Person.ExpectAskFor(u"New Alert Title"_s, u"Typed"_s);
    const WhenFormOpens window(u"frmAlerts"_s, [](Form& form) {
        QCOMPARE(form.windowTitle(), u"New Alert for Ann Lee"_s);
        QCOMPARE(NoteOf(form).toPlainText(), u"Typed"_s);
        QCOMPARE(ContactAt(1)->NumberOfAlerts, 2); // counted when the window closes
        ClickOn(form, u"cmdbutton_7"_s);
    });
    morning.Entry(u"mnuSetNewAlert"_s).trigger();
    QCOMPARE(morning.Person.LastMaxLength(), 255);
    QCOMPARE(ContactAt(1)->NumberOfAlerts, 3);
    QCOMPARE(morning.Counts(), u"3 2"_s);
}

void tst_AlertWindows::SettingAnAlertEndsWhereThePersonStops_data()
{
    QTest::addColumn<int>("stop");
    QTest::newRow("at the contact") << 1;
    QTest::newRow("at the date") << 2;
    QTest::newRow("at the note") << 3;
    QTest::newRow("before it began, without contacts") << 0;
}

void tst_AlertWindows::SettingAnAlertEndsWhereThePersonStops()
{
    QFETCH(int, stop);
    Morning morning;
    std::unique_ptr<WhenFormOpens> chooser;
    std::unique_ptr<WhenFormOpens> calendar;
    if (stop == 0) {
        gContacts.RemoveAll();
        morning.Person.Expect(u"New Alert Cancelled"_s, u"I cannot set any new alerts because\r\nyou do not have any "
                                                        u"contacts in the system."_s);
    } else {
        chooser = std::make_unique<WhenFormOpens>(u"frmAlertContacts"_s, [stop](Form& form) {
            ClickOn(form, stop == 1 ? u"cmdbutton_1"_s : u"cmdbutton_2"_s);
        });
    }
    if (stop > 1)
        calendar = Pick(stop == 2 ? QDate() : QDate(2026, 11, 21), u"New Alert Date for Cy Day"_s);
    if (stop == 3) {
        morning.Person.ExpectAskFor(u"New Alert Title"_s, QString());
        morning.Person.Expect(u"Alert not Saved"_s,
                              u"I did not save this alert because\r\nyou did not enter any alert notes."_s);
    }
    morning.Entry(u"mnuNewCurAlert"_s).trigger();
    QVERIFY(morning.Database.TakeStatements().isEmpty());
    QCOMPARE(gAlerts.Count(), 4);
}

void tst_AlertWindows::ManagingGoesFromContactToContact()
{
    Morning morning;
    QStringList seen;
    std::unique_ptr<WhenFormOpens> next;
    const auto choose = [&](int row) {
        return std::make_unique<WhenFormOpens>(u"frmAlertContacts"_s, [row](Form& form) {
            QCOMPARE(form.windowTitle(), u"Contacts with Existing Alerts"_s);
            QCOMPARE(Morning::Texts(GridOf(form), 1), (QStringList{u"Ann Lee"_s, u"Bob M Ray"_s}));
            QCOMPARE(Morning::Texts(GridOf(form), 3), (QStringList{u" (2)"_s, u" (2)"_s}));
            if (row == 0)
                TypeKey(form, Qt::Key_Escape);
            else
                QTest::mouseDClick(GridOf(form).viewport(), Qt::LeftButton, {},
                                   GridOf(form).visualRect(GridOf(form).model()->index(row - 1, 1)).center());
        });
    };
    const auto first = choose(2);
    const WhenFormOpens window(u"frmAlerts"_s, [&](Form& form) {
        seen << form.windowTitle();
        next = choose(0);
    });
    morning.Entry(u"mnuManageAlerts"_s).trigger();
    QCOMPARE(seen, QStringList{u"Bob M Ray Alerts"_s});
    QVERIFY(next && next->HasRun());
}

void tst_AlertWindows::WithoutAlertsThereIsNothingToManage()
{
    Morning morning({{1, "11/22/2026", "The last one"}});
    const WhenFormOpens chooser(u"frmAlertContacts"_s, [](Form& form) { ClickOn(form, u"cmdbutton_2"_s); });
    const WhenFormOpens window(u"frmAlerts"_s, [&](Form& form) {
        morning.Person.Expect(
            confirm, u"Do you want me to delete the alert dated 11/22/2026\r\nbelonging to Ann Lee?"_s, Answer::Yes);
        Delete(form);
        morning.Person.Expect(u"You Have No Alerts"_s, u"I did not find any alerts in the system."_s);
    });
    morning.Entry(u"mnuManageCurAlerts"_s).trigger();
}

void tst_AlertWindows::TheContactsAreSortedAsTheButtonsSay()
{
    Morning morning({{1, "11/22/2026", "a"}, {2, "11/22/2026", "b"}, {3, "11/22/2026", "c"}, {1, "11/23/2026", "d"}});
    for (Long more = 0; more < 10; ++more)
        ++ContactAt(3)->NumberOfAlerts; // 11 must come before 2
    gAlertMode = AlertMode::Manage;
    const WhenFormOpens chooser(u"frmAlertContacts"_s, [](Form& form) {
        const auto names = [&form] { return Morning::Texts(GridOf(form), 2).join(u' '); };
        const auto& order = Control<QPushButton>(form, u"cmdAscDesc"_s);
        QCOMPARE(names(), u"Day Lee Ray"_s);
        ClickOn(form, u"OptSort_3"_s);
        QCOMPARE(names(), u"Day Lee Ray"_s);
        ClickOn(form, u"OptSort_2"_s);
        QCOMPARE(names(), u"Ray Lee Day"_s);
        ClickOn(form, u"cmdAscDesc"_s); // the first click leaves the caption
        QCOMPARE(order.text() + u": "_s + names(), u"Ascending: Day Lee Ray"_s);
        QVERIFY(GridOf(form).hasFocus());
        ClickOn(form, u"cmdAscDesc"_s);
        QCOMPARE(order.text() + u": "_s + names(), u"Descending: Ray Lee Day"_s);
        ClickOn(form, u"cmdAscDesc"_s);
        ClickOn(form, u"OptSort_1"_s);
        QCOMPARE(order.text() + u": "_s + names(), u"Ascending: Lee Ray Day"_s);
        ClickOn(form, u"OptSort_3"_s);
        QCOMPARE(names(), u"Ray Lee Day"_s);
        QCOMPARE(GridOf(form).SelectedRow(), 1);
        TypeKey(form, Qt::Key_Escape);
    });
    ManageAlerts();
}

void tst_AlertWindows::TheCalendarAnswers()
{
    for (const auto& [key, reply] : {std::pair(Qt::Key_Right, u"01/01/2027"_s), std::pair(Qt::Key_Escape, QString())}) {
        const WhenFormOpens window(u"frmCalendar"_s, [key = key](Form& form) {
            TypeKey(form, key);
            if (key == Qt::Key_Right)
                TypeKey(form, Qt::Key_Return);
        });
        QCOMPARE(AskForDate(u"When"_s, u"12/31/2026"_s), reply);
    }
}

QTEST_MAIN(tst_AlertWindows)
#include "tst_AlertWindows.moc"
