#include "SmallBackup.h"

#include "core/RunTimeError.h"
#include "support/Columns.h"

using namespace Qt::StringLiterals;

namespace {

QList<int> RowsOfEachTable()
{
    QList<int> rows;
    for (const auto table :
         {"Categories"_L1, "SubCategories"_L1, "Contacts"_L1, "Alerts"_L1, "PropDetail"_L1, "FormLetters"_L1})
        rows << static_cast<int>(FreshDatabase::Rows("Select ID from "_L1 + table).size());
    return rows;
}

} // namespace

/// Files that no program wrote well. Each gives its box, and the program stays usable.
class tst_BadFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { static_cast<void>(Backup()); }
    void ARefusedImportChangesNothing_data();
    void ARefusedImportChangesNothing();
    void ADamagedBackupIsReported_data();
    void ADamagedBackupIsReported();
    void ASectionIsMissingOrThereTwice_data();
    void ASectionIsMissingOrThereTwice();
    void ABackupCutOffAnywhereIsReported();
    void WhatStoodBeforeAFaultStays();
    void AFileThatIsNoneOfAnySection();
};

void tst_BadFiles::ARefusedImportChangesNothing_data()
{
    AddColumns<QByteArray, bool, QString, QString>({"file", "restores", "title", "text"});

    const QString noBackup =
        u"I did not restore from the file that you have selected\r\n because it is not a database backup "
        "file."_s;
    const QString noTransfer =
        u"I did not import from the file that you have selected\r\n because it is not a Contact Transfer "
        "File."_s;
    QTest::newRow("a backup for an import") << Joined(Backup()) << false << u"Import Cancelled"_s << noTransfer;
    QTest::newRow("a transfer file for a restore")
        << Joined(Backup().mid(0, 5)) << true << u"Restore Cancelled"_s << noBackup;
    QTest::newRow("any note with the word")
        << QByteArray("FormLetters") << false << u"Import Cancelled"_s << noTransfer;
    QTest::newRow("another case of the word")
        << QByteArray("formletters") << true << u"Restore Cancelled"_s << noBackup;
    // The word lies across the blocks in which the file is read.
    QTest::newRow("the word far behind") << QByteArray((1 << 20) - 5, 'x') + "FormLetters" << false
                                         << u"Import Cancelled"_s << noTransfer;
    QTest::newRow("empty, import") << QByteArray() << false << u"ImportData Error #62"_s << u"Input past end of file"_s;
    QTest::newRow("empty, restore") << QByteArray() << true << u"ImportData Error #62"_s << u"Input past end of file"_s;
}

void tst_BadFiles::ARefusedImportChangesNothing()
{
    QFETCH(QByteArray, file);
    QFETCH(bool, restores);
    QFETCH(QString, title);
    QFETCH(QString, text);
    Agency agency(Agency::File::Small);
    const QStringList before = FreshDatabase::WholeFile();
    agency.Name(Written(agency, file));
    agency.Person.Expect(title, text);
    ImportData(restores);
    QCOMPARE(FreshDatabase::WholeFile(), before);
    QCOMPARE(gContacts.Count(), 3);
    QVERIFY(!agency.Person.HourGlassIsOn());
    QCOMPARE(agency.Leftovers(), QStringList());
}

void tst_BadFiles::ADamagedBackupIsReported_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QStringList>("reports");
    QTest::addColumn<QList<int>>("rows"); // categories, subcategories, contacts, alerts, properties, letters

    const QString noRowset = u"StartImport Error #"_s + QString::number(ErrorNumber::EngineFailure);
    const QString noFile = u"ImportData Error #53"_s;
    const QString done = u"Database Restored"_s;
    const auto row = [](const char* name, const QByteArray& file, const QStringList& reports, const QList<int>& rows) {
        QTest::newRow(name) << file << reports << rows;
    };
    const QList<QByteArray> all = Backup();
    row("no closing tag", "Dear FormLetters", {noRowset, noFile}, {0, 0, 0, 0, 0, 0});
    row("letters missing", Joined(all.mid(0, 5)) + "FormLetters", {noRowset, done}, {2, 2, 3, 2, 1, 0});
    row("a number too large", Changed(Contacts, "SubCategoryID='2'", "SubCategoryID='40000'"), {noRowset, done},
        {2, 2, 0, 0, 0, 0});
    row("no date", Changed(AlertRows, "AlertDate='2/6/2026'", "AlertDate='soon'"), {u"StartImport Error #13"_s, done},
        {2, 2, 3, 1, 0, 0});
    row("an alert of nobody", Changed(AlertRows, "ContactID='3'", "ContactID='77'"), {done}, {2, 2, 3, 1, 1, 1});
    row("a property of nobody", Changed(Properties, "ContactID='1'", "ContactID='77'"),
        {u"StartImport Error #424"_s, done}, {2, 2, 3, 2, 0, 0});
    row("a contact of no subcategory", Changed(Contacts, "SubCategoryID='2'", "SubCategoryID='77'"), {done},
        {2, 2, 3, 2, 1, 1});
    row("a contact of no category", Changed(Contacts, "CategoryID='2' ", "CategoryID='77' "),
        {u"StartImport Error #424"_s, done}, {2, 2, 3, 0, 0, 0});
    row("a subcategory of nothing", Changed(SubCategories, "ParentID='2'", "ParentID='0'"), {done}, {2, 1, 3, 2, 1, 1});
    row("a subcategory of a category that is not there", Changed(SubCategories, "ParentID='2'", "ParentID='77'"),
        {u"StartImport Error #424"_s, done}, {2, 1, 0, 0, 0, 0});
    row("one number twice", Changed(CategoryRows, "ID='2'", "ID='1'"), {u"StartImport Error #457"_s, done},
        {2, 0, 0, 0, 0, 0});
    row("a property without a city", Changed(Properties, " City='Troy'", ""), {u"StartImport Error #94"_s, done},
        {2, 2, 3, 2, 0, 0});
    row("a contact without a note", Changed(Contacts, " Notes='two'", ""), {done}, {2, 2, 3, 2, 1, 1});
    row("a note with a control", Changed(Contacts, "Notes='two'", "Notes='t\x07wo'"), {noRowset, done},
        {2, 2, 0, 0, 0, 0});
    row("entities that grow", Changed(Contacts, "<xml ", "<!DOCTYPE xml [<!ENTITY a 'b'><!ENTITY c '&a;&a;'>]><xml "),
        {noRowset, done}, {2, 2, 0, 0, 0, 0});
}

void tst_BadFiles::ADamagedBackupIsReported()
{
    QFETCH(QByteArray, file);
    QFETCH(QStringList, reports);
    QFETCH(QList<int>, rows);
    Agency agency(Agency::File::Empty);
    agency.Name(Written(agency, file));
    agency.ExpectRestoreQuestion(Answer::Yes);
    for (const QString& report : reports)
        agency.Person.ExpectReport(report);
    ImportData(true);
    QCOMPARE(RowsOfEachTable(), rows);
    QVERIFY(IsUsable());
}

void tst_BadFiles::ASectionIsMissingOrThereTwice_data()
{
    AddColumns<bool, int, bool>({"restores", "section", "twice"});
    QTest::addColumn<int>("error"); // none is 0
    QTest::addColumn<QList<int>>("rows");

    constexpr auto noRowset = ErrorNumber::EngineFailure;
    constexpr auto lacksColumn = ErrorNumber::ItemNotFound;
    const QList<int> none{0, 0, 0, 0, 0, 0};
    const QList<int> categories{2, 0, 0, 0, 0, 0};
    const QList<int> allButLetters{2, 2, 3, 2, 1, 0};
    // A section is known by its place. The one behind the categories takes their place where one is missing; the
    // properties do where one is there twice.
    const auto row = [](const char* name, bool restores, Section section, bool twice, int error,
                        const QList<int>& rows) {
        QTest::newRow(name) << restores << int{section} << twice << error << rows;
    };
    row("import, contacts missing", false, Contacts, false, noRowset, categories);
    row("restore, subcategories missing", true, SubCategories, false, lacksColumn, categories);
    row("import, alerts twice", false, AlertRows, true, lacksColumn, none);
    row("restore, categories twice", true, CategoryRows, true, lacksColumn, categories);
    row("import, subcategories twice", false, SubCategories, true, 0, allButLetters);
    row("restore, letters twice", true, Letters, true, noRowset, allButLetters);
}

void tst_BadFiles::ASectionIsMissingOrThereTwice()
{
    QFETCH(bool, restores);
    QFETCH(int, section);
    QFETCH(bool, twice);
    QFETCH(int, error);
    QList<QByteArray> sections = Backup().first(restores ? 6 : 5);
    if (twice)
        sections.insert(section, sections[section]);
    else
        sections.removeAt(section);
    Agency agency(Agency::File::Empty);
    agency.Name(Written(agency, Joined(sections)));
    if (restores)
        agency.ExpectRestoreQuestion(Answer::Yes);
    if (error != 0)
        agency.Person.ExpectReport(u"StartImport Error #"_s + QString::number(error));
    agency.Person.ExpectReport(restores ? u"Database Restored"_s : u"Contacts Imported"_s);
    ImportData(restores);
    QTEST(RowsOfEachTable(), "rows");
    QVERIFY(IsUsable());
}

void tst_BadFiles::ABackupCutOffAnywhereIsReported()
{
    const QByteArray whole = Joined(Backup());
    int cuts = 0;
    for (qsizetype length = 1000; length < whole.size(); length += 1000, ++cuts) {
        Agency agency(Agency::File::Small);
        const bool isBackup = whole.first(length).contains("FormLetters");
        agency.Name(Written(agency, whole.first(length)));
        if (isBackup)
            agency.ExpectRestoreQuestion(Answer::Yes);
        const bool lacksNothing = !isBackup && whole.first(length).count("</xml>") == 5;
        if (!lacksNothing)
            agency.Person.ExpectReport(u"StartImport Error #"_s + QString::number(ErrorNumber::EngineFailure));
        // Only the last section may be cut off; one that is missing is a file that is missing.
        const bool hasAllFiles = isBackup || whole.first(length).count("</xml>") >= 4;
        agency.Person.ExpectReport(!hasAllFiles ? u"ImportData Error #53"_s
                                   : isBackup   ? u"Database Restored"_s
                                                : u"Contacts Imported"_s);
        ImportData(isBackup);
        QVERIFY(IsUsable());
        if (QTest::currentTestFailed())
            return;
    }
    QVERIFY(cuts > 10);
}

void tst_BadFiles::WhatStoodBeforeAFaultStays()
{
    Agency agency(Agency::File::Empty);
    agency.Name(Written(agency, Changed(Letters, "Dear", "Don&#x27;t")));
    agency.ExpectRestoreQuestion(Answer::Yes);
    agency.Person.ExpectReport(u"StartImport Error #"_s + QString::number(ErrorNumber::EngineSyntax));
    agency.Person.ExpectReport(u"Database Restored"_s);
    ImportData(true);
    QVERIFY(!agency.Person.HourGlassIsOn());
    agency.StartAnew();
    QCOMPARE(gContacts.Count(), 3);
    QCOMPARE(gAlerts.Count(), 2);
    QCOMPARE(FreshDatabase::Rows(u"Select Addr1 from PropDetail"_s), QStringList{u"1 Elm Street"_s});
}

void tst_BadFiles::AFileThatIsNoneOfAnySection()
{
    Agency agency(Agency::File::Small);
    const QStringList before = FreshDatabase::WholeFile();
    // What an earlier run left behind is no section of this file.
    const QStringList names{u"Contact"_s, u"Alert"_s, u"Property"_s, u"Category"_s, u"SubCategory"_s};
    for (int i = 0; i < names.size(); ++i) {
        QFile leftover(agency.FileOf(u"Data/"_s + names[i] + u"Import.xml"_s));
        QVERIFY(leftover.open(QIODevice::WriteOnly) && leftover.write(Backup()[i]) > 0);
    }
    agency.Name(Written(agency, "just a text"));
    agency.Person.ExpectReport(u"StartImport Error #"_s + QString::number(ErrorNumber::EngineFailure));
    agency.Person.ExpectReport(u"ImportData Error #53"_s);
    ImportData(false);
    QCOMPARE(FreshDatabase::WholeFile(), before);
    // A fault of this procedure leaves what it made, which is meant.
    QVERIFY(agency.Person.HourGlassIsOn());
    QCOMPARE(agency.Leftovers(), QStringList{u"ContactImport.xml"_s});
    // The next run that comes to its end cleans up behind it.
    agency.Import(Written(agency, Joined(Backup().first(5))));
    QVERIFY(!agency.Person.HourGlassIsOn());
    QCOMPARE(agency.Leftovers(), QStringList());
}

QTEST_MAIN(tst_BadFiles)
#include "tst_BadFiles.moc"
