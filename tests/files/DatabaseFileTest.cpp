#include "Database.h"
#include "support/Columns.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>
#include <memory>

using namespace Qt::StringLiterals;

/// The delivered database: who can read it, what its tables take, and which row comes first.
class DatabaseFileTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    // Every row finds the file as it was delivered. (Opening it anew for each would derive the key anew, which is slow
    // on purpose.)
    void init() { QCOMPARE(m_database->Run("BEGIN"), QString()); }
    void cleanup() { QCOMPARE(m_database->Run("ROLLBACK"), QString()); }

    void TheFileIsEncryptedAndItsOwnersAlone();
    void AnExistingFileIsLeftAlone();
    void SevenTablesAreDeliveredEmpty();
    void EveryColumnHasADeclaredKind();
    void ATableTakesWhatFitsAndRefusesTheRest_data();
    void ATableTakesWhatFitsAndRefusesTheRest();
    void TheOldestOfEqualRowsComesFirst_data();
    void TheOldestOfEqualRowsComesFirst();
    void SettingsHoldOneRow();

private:
    QTemporaryDir m_folder;
    QString m_delivered = m_folder.filePath(u"Delivered.mdb"_s);
    std::unique_ptr<Database> m_database;
};

void DatabaseFileTest::initTestCase()
{
    QVERIFY(Database::Make(m_delivered));
    m_database = std::make_unique<Database>(m_delivered);
}

void DatabaseFileTest::TheFileIsEncryptedAndItsOwnersAlone()
{
    QFile file(m_delivered);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    QVERIFY(bytes.size() > 4096);
    QVERIFY(!bytes.startsWith("SQLite format 3"));
    QVERIFY(!bytes.contains("Contacts") && !bytes.contains("Avery"));
    const QFile::Permissions others = QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
    QVERIFY(!(file.permissions() & others));
}

void DatabaseFileTest::AnExistingFileIsLeftAlone()
{
    const QString path = m_folder.filePath(u"precious"_s);
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("a life's work");
    file.close();
    QProcess tool;
    tool.start(QStringLiteral(MAKE_DATABASE), {path, QStringLiteral(SCHEMA), QStringLiteral(GEOMETRY)});
    QVERIFY(tool.waitForFinished());
    QCOMPARE(tool.exitCode(), 1);
    QVERIFY(tool.readAllStandardError().contains("exists already"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), "a life's work");
    QCOMPARE(QDir(m_folder.path()).entryList({u".Contacts*"_s}, QDir::Files | QDir::Hidden), QStringList());
}

void DatabaseFileTest::SevenTablesAreDeliveredEmpty()
{
    for (const char* table :
         {"Categories", "SubCategories", "Contacts", "PropDetail", "Alerts", "FormLetters", "Settings"})
        QCOMPARE(m_database->Value("SELECT count(*) FROM "_ba + table), u"0"_s);
    QVERIFY(m_database->Value("SELECT count(*) FROM LabelNumbers").toInt() > 100);
}

void DatabaseFileTest::EveryColumnHasADeclaredKind()
{
    static const QStringList kinds{u"INTEGER"_s,  u"LONG"_s, u"INTEGER16"_s, u"REAL4"_s,
                                   u"CURRENCY"_s, u"TEXT"_s, u"MEMOTEXT"_s,  u"DATETEXT"_s};
    const auto tables =
        m_database->Rows("SELECT name FROM sqlite_master WHERE type = 'table' AND name NOT LIKE 'sqlite%'");
    QCOMPARE(tables.size(), 9);
    for (const QStringList& table : tables) {
        for (const QStringList& column : m_database->Rows("PRAGMA table_info(" + table[0].toLatin1() + ')')) {
            QVERIFY2(kinds.contains(column[2]), qPrintable(table[0] + u'.' + column[1]));
            QCOMPARE(column[2] == "INTEGER"_L1, column[5] == "1"_L1); // the key, and nothing else
        }
    }
}

void DatabaseFileTest::ATableTakesWhatFitsAndRefusesTheRest_data()
{
    AddColumns<QByteArray, QByteArray, QByteArray>({"table", "column", "value"});
    QTest::addColumn<QString>("stored"); // "" for refused

    const auto row = [](const char* column, const char* value, const QString& stored,
                        const char* table = "PropDetail") {
        QTest::addRow("%s = %s", column, value)
            << QByteArray(table) << QByteArray(column) << QByteArray(value) << stored;
    };
    const QString refused;
    for (const char* column : {"SqFt", "Waterfront", "ContactID", "Rooms", "AskingPrice"}) {
        row(column, "'12'", column == "Rooms"_ba ? u"12.0"_s : u"12"_s);
        row(column, "''", refused);
        row(column, "'12abc'", refused);
    }
    for (const char* value : {"32768", "'40000'", "1500.5", "NULL"})
        row("SqFt", value, refused);
    row("SqFt", "-32768", u"-32768"_s);
    row("Waterfront", "NULL", u"NULL"_s);
    row("SubCategoryID", "40000", refused, "Contacts");
    row("DefaultProperty", "NULL", u"NULL"_s, "Contacts");
    row("ContactID", "2147483648", refused);
    row("Baths", "1e39", refused);
    row("AskingPrice", "250000.1234", u"250000.1234"_s);
    row("AskingPrice", "1e15", refused);
    row("ListingDate", "''", u""_s);
    row("MLS", "'0012'", u"0012"_s);
}

void DatabaseFileTest::ATableTakesWhatFitsAndRefusesTheRest()
{
    QFETCH(QByteArray, table);
    QFETCH(QByteArray, column);
    QFETCH(QByteArray, value);
    QFETCH(QString, stored);
    const QString complaint = m_database->Run("INSERT INTO " + table + " (" + column + ") VALUES (" + value + ')');
    if (stored.isNull()) {
        QVERIFY2(complaint.contains(QLatin1StringView(column)), qPrintable(complaint)); // it names the column
        QCOMPARE(m_database->Value("SELECT count(*) FROM " + table), u"0"_s);
    } else {
        QCOMPARE(complaint, QString());
        QCOMPARE(m_database->Value("SELECT " + column + " FROM " + table), stored);
    }
}

void DatabaseFileTest::TheOldestOfEqualRowsComesFirst_data()
{
    AddColumns<QByteArray, QByteArray, QByteArrayList, QByteArray, QString, QString>(
        {"table", "columns", "values", "where", "index", "ids"});

    QTest::newRow("a subcategory by its name")
        << "SubCategories"_ba
        << "Description, ParentID"_ba << QByteArrayList{"'Z', 2", "'A', 1", "'A', 2", "'a', 2"}
        << "Description='A' And ParentID=2"_ba << u"SubCategoriesByParent"_s << u"3,4"_s;
    QTest::newRow("a contact by its name")
        << "Contacts"_ba
        << "SubCategoryID, FirstName, MI, LastName, MailAddr1"_ba
        << QByteArrayList{"5, 'Ann', '', 'Hart', '2 Elm'", "4, 'Ann', '', 'Hart', '1 Elm'",
                          "5, 'Ann', '', 'Hart', '1 Elm'", "5, 'ann', '', 'HART', '1 elm'"}
        << "SubCategoryID=5 and FirstName='Ann' and MI='' and LastName='Hart' and Mailaddr1='1 Elm'"_ba
        << u"ContactsByName"_s << u"3,4"_s;
    QTest::newRow("an alert of a contact")
        << "Alerts"_ba
        << "ContactID, AlertDate"_ba
        << QByteArrayList{"3, '1/2/2026'", "2, '1/1/2026'", "3, '1/1/2026'", "3, '1/1/2026'"}
        << "ContactID=3 and AlertDate='1/1/2026'"_ba << u"AlertsByContact"_s << u"3,4"_s;
}

void DatabaseFileTest::TheOldestOfEqualRowsComesFirst()
{
    QFETCH(QByteArray, table);
    QFETCH(QByteArray, columns);
    QFETCH(QByteArrayList, values);
    QFETCH(QByteArray, where);
    QFETCH(QString, index);
    QFETCH(QString, ids);
    for (const QByteArray& value : values)
        QCOMPARE(m_database->Run("INSERT INTO " + table + " (" + columns + ") VALUES (" + value + ')'), QString());
    const QByteArray select = "SELECT ID FROM " + table + " WHERE " + where;
    QStringList found;
    for (const QStringList& row : m_database->Rows(select))
        found += row[0];
    QCOMPARE(found.join(u','), ids);
    const QString plan = m_database->Rows("EXPLAIN QUERY PLAN " + select).value(0).join(u' ');
    QVERIFY2(plan.contains(index), qPrintable(plan));
}

void DatabaseFileTest::SettingsHoldOneRow()
{
    const QByteArray insert =
        "INSERT INTO Settings (LabelProduct, LabelNumber, DefaultPicture, DefaultPropPicture, ClientName) "
        "VALUES (0, '', 'a', 'b', '')";
    QCOMPARE(m_database->Run(insert), QString());
    QVERIFY(!m_database->Run(insert).isEmpty());
    QCOMPARE(m_database->Run("UPDATE Settings SET LabelProduct=2, LabelNumber='5160', Clock=3"), QString());
    QCOMPARE(m_database->Rows("SELECT LabelProduct, LabelNumber, Clock FROM Settings"),
             (QList<QStringList>{{u"2"_s, u"5160"_s, u"3"_s}}));
}

QTEST_GUILESS_MAIN(DatabaseFileTest)
#include "DatabaseFileTest.moc"
