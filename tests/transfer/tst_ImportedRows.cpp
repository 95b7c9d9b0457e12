#include "SmallBackup.h"

#include "core/RunTimeError.h"
#include "model/AddNewAlert.h"
#include "ui/frame/Menus.h"
#include "ui/widgets/Grid.h"

#include <QAction>

using namespace Qt::StringLiterals;

namespace {

int RowsIn(QLatin1StringView table)
{
    return static_cast<int>(FreshDatabase::Rows("Select ID from "_L1 + table).size());
}

std::vector<Long> PropertiesOf(Long contact)
{
    return ContactAt(contact)->Properties.Keys();
}

} // namespace

/// What becomes of the rows of a file, in the tables and in memory.
class tst_ImportedRows : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { static_cast<void>(Backup()); }
    void AFileCanBeImportedTwiceInOneRun();
    void AlertsOfOneDayAreAllRestored();
    void AContactWithoutAnIDIsLeftOutWithWhatHangsOnIt_data();
    void AContactWithoutAnIDIsLeftOutWithWhatHangsOnIt();
    void AnAlertFallsOnTheOneAtItsPlace();
    void TheMenuRunsEachTransfer();
    void TheHighlightedAreExported();
    void TheSelectionOutlivesARestore();
};

void tst_ImportedRows::AFileCanBeImportedTwiceInOneRun()
{
    Agency agency(Agency::File::Empty);
    FreshDatabase::Execute(u"Insert into PropDetail (ContactID,SqFt) Values (99,1)"_s); // so that the IDs differ
    const QString file = Written(agency, Joined(Backup().first(5)));
    agency.Import(file);
    QCOMPARE(PropertiesOf(1), std::vector<Long>{2});
    agency.Import(file);
    QCOMPARE(RowsIn("Categories"_L1), 2);
    QCOMPARE(RowsIn("SubCategories"_L1), 2);
    QCOMPARE(RowsIn("Contacts"_L1), 3);
    QCOMPARE(RowsIn("PropDetail"_L1), 2);
    // Alerts are no things that one has or has not: they are added again each time.
    QCOMPARE(FreshDatabase::Rows(u"Select ContactID,AlertNote from Alerts"_s),
             (QStringList{u"1|Call Ann"_s, u"3|Write to Cy"_s, u"1|Call Ann"_s, u"3|Write to Cy"_s}));
    QCOMPARE(gAlerts.Count(), 4);
    QCOMPARE(gContacts.Keys(), (std::vector<Long>{1, 2, 3}));
    // A property that was there stands under the number of the file as well, until the next start.
    QCOMPARE(PropertiesOf(1), (std::vector<Long>{2, 1}));
    agency.StartAnew();
    QCOMPARE(PropertiesOf(1), std::vector<Long>{2});
}

void tst_ImportedRows::AlertsOfOneDayAreAllRestored()
{
    Agency agency(Agency::File::Small);
    curContact = ContactAt(1);
    AddNewAlert(u"1/5/2026"_s, u"Call Ann again"_s);
    const QString backup = agency.Backup(u"two.xml"_s);
    agency.Restore(backup);
    QCOMPARE(FreshDatabase::Rows(u"Select AlertDate,AlertNote from Alerts"_s),
             (QStringList{u"1/5/2026|Call Ann"_s, u"2/6/2026|Write to Cy"_s, u"1/5/2026|Call Ann again"_s}));
    QCOMPARE(gAlerts.Count(), 3);
    QCOMPARE(RowsIn("PropDetail"_L1), 1);
    QCOMPARE(RowsIn("FormLetters"_L1), 1);
}

void tst_ImportedRows::AContactWithoutAnIDIsLeftOutWithWhatHangsOnIt_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QList<int>>("rows"); // contacts, alerts, properties, letters

    // The one is written and not found again, the other is not written at all.
    const QString address = u"MailAddr1"_s;
    const QString phone = u"WorkPhone"_s;
    QTest::newRow("one that is written") << address << QStringList{u"Ann"_s} << QList{3, 1, 0, 1};
    QTest::newRow("two that are written") << address << QStringList{u"Ann"_s, u"Cy"_s} << QList{3, 0, 0, 1};
    QTest::newRow("one that is not written") << phone << QStringList{u"Ann"_s} << QList{2, 1, 0, 1};
    QTest::newRow("two that are not written") << phone << QStringList{u"Ann"_s, u"Cy"_s} << QList{1, 0, 0, 1};
    QTest::newRow("an e-mail") << u"Email"_s << QStringList{u"Cy"_s} << QList{2, 1, 1, 1};
}

void tst_ImportedRows::AContactWithoutAnIDIsLeftOutWithWhatHangsOnIt()
{
    QFETCH(QString, field);
    QFETCH(QStringList, names);
    QFETCH(QList<int>, rows);
    QList<QByteArray> sections = Backup();
    Agency agency(Agency::File::Empty);
    agency.ExpectRestoreQuestion(Answer::Yes);
    for (const QString& name : names) {
        const QByteArray first = " FirstName='" + name.toUtf8() + '\'';
        QVERIFY(sections[Contacts].contains(first));
        sections[Contacts].replace(first, first + ' ' + field.toUtf8() + "='12 O&#x27;Hara'");
        agency.Person.ExpectReport(u"Class Contact AddToDB Error #"_s + QString::number(ErrorNumber::EngineSyntax));
    }
    agency.Person.ExpectReport(u"Database Restored"_s);
    agency.Name(Written(agency, Joined(sections)));
    ImportData(true);
    agency.Person.Done();
    QVERIFY(!gContacts.Exists(0));
    QCOMPARE((QList{RowsIn("Contacts"_L1), RowsIn("Alerts"_L1), RowsIn("PropDetail"_L1), RowsIn("FormLetters"_L1)}),
             rows);
    // Nothing is left that a start stumbles over.
    agency.StartAnew();
    QCOMPARE(gContacts.Count(), rows[0]);
    QCOMPARE(gAlerts.Count(), rows[1]);
}

void tst_ImportedRows::AnAlertFallsOnTheOneAtItsPlace()
{
    Agency agency(Agency::File::Small);
    curContact = ContactAt(2);
    AddNewAlert(u"3/7/2026"_s, u"Visit Bob"_s);
    QCOMPARE(gAlerts.Item(3)->ID, 3);
    QList<QByteArray> sections = Backup().first(5);
    sections[AlertRows].replace(" ID='2'", " ID='3'");
    const QString file = Written(agency, Joined(sections));
    agency.Import(file);
    // Ann's is new to this run and comes once more; Cy's has the number of Bob's, and takes its place.
    QCOMPARE(FreshDatabase::Rows(u"Select ContactID,AlertDate,AlertNote from Alerts"_s),
             (QStringList{u"1|1/5/2026|Call Ann"_s, u"3|2/6/2026|Write to Cy"_s, u"2|2/6/2026|Write to Cy"_s,
                          u"1|1/5/2026|Call Ann"_s}));
    QCOMPARE(gAlerts.Item(3)->ContactID, 3);
    QCOMPARE(gAlerts.OfContact(2).size(), 0);
    QCOMPARE(gAlerts.OfContact(3).size(), 2);
    // The number is taken for a position; where there is none, the run ends.
    gAlerts.RemoveIf([](const Alert& alert) { return alert.ID == 0; });
    agency.Name(file);
    agency.Person.ExpectReport(u"StartImport Error #9"_s);
    agency.Person.ExpectReport(u"Contacts Imported"_s);
    ImportData(false);
}

void tst_ImportedRows::TheMenuRunsEachTransfer()
{
    Agency agency(Agency::File::Small);
    Menus& menus = agency.Main().MainMenus();
    const auto choose = [&](const QString& entry) {
        QVERIFY(menus.Entry(entry).isEnabled());
        menus.Entry(entry).trigger();
        agency.Person.Done();
    };
    agency.Name(u"all.xml"_s);
    agency.Person.ExpectReport(u"Database Backed upDone"_s);
    choose(u"mnuBackup"_s);
    agency.Select(3);
    agency.Name(u"one.xml"_s);
    agency.Person.ExpectReport(u"Contact Export Done"_s);
    choose(u"mnuExportSelectedContacts"_s);
    agency.Person.ExpectReport(u"Contacts Imported"_s);
    choose(u"mnuMaintenanceImport"_s);
    agency.Name(u"all.xml"_s);
    agency.ExpectRestoreQuestion(Answer::Yes);
    agency.Person.ExpectReport(u"Database Restored"_s);
    choose(u"mnuRestore"_s);
    QCOMPARE(gContacts.Keys(), (std::vector<Long>{4, 5, 6}));
}

void tst_ImportedRows::TheHighlightedAreExported()
{
    Agency agency(Agency::File::Small);
    agency.Main().ShowTab(1);
    QTest::qWait(0);
    ClickOn(agency.Main(), u"cmdbutton_2"_s);
    auto& found = Control<Grid>(agency.Main(), u"GridFound"_s);
    QCOMPARE(Face<FoundFace>::Get()->FoundContacts().size(), 3);
    const auto press = [&found](int row, Qt::KeyboardModifiers modifiers) {
        const QModelIndex cell = found.model()->index(row - 1, found.columnAt(1));
        QTest::mouseClick(found.viewport(), Qt::LeftButton, modifiers, found.visualRect(cell).center());
    };
    press(1, {});
    press(3, Qt::ControlModifier);
    const std::vector<Long> highlighted = Face<FoundFace>::Get()->HighlightedContacts();
    QCOMPARE(highlighted.size(), 2);
    QCOMPARE(GetSelected(u"Highlighted"_s), u"%1, %2"_s.arg(highlighted[0]).arg(highlighted[1]));
    const QString file = agency.Export(u"Highlighted"_s, u"two.xml"_s, u"Contact Export Done"_s,
                                       u"I have successfully exported your contacts."_s);
    const QByteArray contacts = SectionsOf(file)[Contacts];
    QCOMPARE(contacts.count("<z:row"), 2);
    for (const Long id : highlighted)
        QVERIFY(contacts.contains(" FirstName='" + ContactAt(id)->FirstName.toUtf8() + '\''));
    // What was found is gone with the data.
    agency.Restore(agency.Backup(u"all.xml"_s));
    QVERIFY(Face<FoundFace>::Get()->FoundContacts().empty());
}

void tst_ImportedRows::TheSelectionOutlivesARestore()
{
    Agency agency(Agency::File::Small);
    const QString backup = agency.Backup(u"all.xml"_s);
    agency.Select(1);
    agency.Restore(backup);
    // It names a contact that is gone, which is meant; the next start forgets it.
    QCOMPARE(GetSelected(u"Selected"_s), u"1"_s);
    agency.Person.Expect(u"Contact Export has been Cancelled"_s,
                         u"I cancelled the contact export because\r\nthere are no contacts to export"_s);
    ExportData(u"Selected"_s);
}

QTEST_MAIN(tst_ImportedRows)
#include "tst_ImportedRows.moc"
