#include "Database.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

QString MakeSample(const QTemporaryDir& folder, const QString& name, const QStringList& arguments)
{
    const QString path = folder.filePath(name);
    if (!Database::Make(path))
        qFatal("no database");
    const QStringList all = arguments + QStringList{u"--database"_s, path, u"--today"_s, u"2026-11-22"_s};
    return QProcess::execute(QStringLiteral(MAKE_SAMPLE), all) == 0 ? path : QString();
}

QList<QStringList> Everything(const QString& path)
{
    Database database(path);
    QList<QStringList> rows;
    for (const char* table : {"Categories", "SubCategories", "Contacts", "PropDetail", "Alerts", "FormLetters"})
        rows += database.Rows("SELECT * FROM "_ba + table);
    return rows;
}

} // namespace

/// The invented agency.
class SampleTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void ASeedAlwaysGivesTheSameAgency();
    void NothingHangsInTheAir_data();
    void NothingHangsInTheAir();
    void ADatabaseInUseIsLeftAlone();

private:
    QTemporaryDir m_folder;
    QString m_path;
    std::unique_ptr<Database> m_database;
};

void SampleTest::initTestCase()
{
    m_path = MakeSample(m_folder, u"sample.mdb"_s, {u"--contacts"_s, u"2000"_s, u"--seed"_s, u"7"_s});
    QVERIFY(!m_path.isEmpty());
    m_database = std::make_unique<Database>(m_path);
}

void SampleTest::ASeedAlwaysGivesTheSameAgency()
{
    const QString again = MakeSample(m_folder, u"again.mdb"_s, {u"--contacts"_s, u"2000"_s, u"--seed"_s, u"7"_s});
    const QString other = MakeSample(m_folder, u"other.mdb"_s, {u"--contacts"_s, u"2000"_s, u"--seed"_s, u"8"_s});
    QVERIFY(Everything(m_path) == Everything(again));
    QVERIFY(Everything(m_path) != Everything(other));
}

void SampleTest::NothingHangsInTheAir_data()
{
    QTest::addColumn<QByteArray>("wrong"); // finds what must not be there
    const auto row = [](const char* name, const char* sql) { QTest::newRow(name) << QByteArray(sql); };
    row("a subcategory without a category", "SubCategories WHERE ParentID NOT IN (SELECT ID FROM Categories)");
    row("a contact outside the tree",
        "Contacts c WHERE NOT EXISTS (SELECT 1 FROM SubCategories s WHERE s.ID = c.SubCategoryID "
        "AND s.ParentID = c.CategoryID)");
    row("a property without an owner", "PropDetail WHERE ContactID NOT IN (SELECT ID FROM Contacts)");
    row("an alert without a contact", "Alerts WHERE ContactID NOT IN (SELECT ID FROM Contacts)");
    row("a default property of somebody else",
        "Contacts c WHERE DefaultProperty IS NOT NULL AND NOT EXISTS "
        "(SELECT 1 FROM PropDetail p WHERE p.ID = c.DefaultProperty AND p.ContactID = c.ID)");
    row("two people of one name in a subcategory",
        "(SELECT 1 FROM Contacts GROUP BY SubCategoryID, FirstName, MI, LastName "
        "HAVING count(*) > 1)");
    row("a formatted name that is out of date",
        "Contacts WHERE FormattedName <> FirstName || CASE MI WHEN '' THEN ' ' ELSE ' ' || MI "
        "|| ' ' END || LastName");
    row("two alerts of a contact on one day",
        "(SELECT 1 FROM Alerts GROUP BY ContactID, AlertDate HAVING count(*) > 1)");
    row("a telephone that could ring",
        "(SELECT WorkPhone AS p FROM Contacts UNION SELECT HomePhone FROM Contacts UNION SELECT Cell FROM Contacts "
        "UNION "
        "SELECT Fax FROM Contacts) WHERE p <> '' AND p NOT GLOB '([0-9][0-9][0-9]) 555-01[0-9][0-9]'");
    row("an address that could receive", "Contacts WHERE Email <> '' AND Email NOT GLOB '*@example.[cno][oer][mgt]'");
    row("a list place that is not there", "PropDetail WHERE State NOT BETWEEN 0 AND 57 OR PropType NOT BETWEEN 0 AND 4 "
                                          "OR Construction NOT BETWEEN 0 AND 8 OR "
                                          "Roof NOT BETWEEN 0 AND 6 OR Parking NOT BETWEEN 0 AND 5 OR Floor NOT "
                                          "BETWEEN 0 AND 8 OR Pool NOT BETWEEN 0 AND 1 OR "
                                          "RentalBasis NOT BETWEEN 0 AND 2");
    row("a property or a letter that could not be saved again",
        "(SELECT Addr1 || Addr2 || City || MLS || Subdivision || Notes AS t FROM PropDetail UNION SELECT FormName || "
        "FormText FROM "
        "FormLetters UNION SELECT Description FROM SubCategories) WHERE instr(t, '''') > 0");
    row("a date that is none",
        "PropDetail WHERE ListingDate <> '' AND ListingDate NOT GLOB '[01][0-9]/[0-3][0-9]/20[0-9][0-9]'");
}

void SampleTest::NothingHangsInTheAir()
{
    QFETCH(QByteArray, wrong);
    QCOMPARE(m_database->Value("SELECT count(*) FROM " + wrong), u"0"_s);
}

void SampleTest::ADatabaseInUseIsLeftAlone()
{
    const QList<QStringList> before = Everything(m_path);
    QProcess tool;
    tool.start(QStringLiteral(MAKE_SAMPLE), {u"--database"_s, m_path});
    QVERIFY(tool.waitForFinished());
    QCOMPARE(tool.exitCode(), 1);
    QVERIFY(Everything(m_path) == before);
}

QTEST_GUILESS_MAIN(SampleTest)
#include "SampleTest.moc"
