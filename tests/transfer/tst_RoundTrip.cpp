#include "SmallBackup.h"

#include "core/Convert.h"
#include "core/Dates.h"
#include "ui/widgets/Grid.h"

using namespace Qt::StringLiterals;

namespace {

using Rows = QList<QHash<QString, QString>>;

/// The rows of a section, by column; a Null stands as "(null)".
Rows RowsOf(QByteArray section)
{
    QBuffer buffer(&section);
    buffer.open(QIODevice::ReadOnly);
    Recordset set;
    set.Open(buffer);
    Rows rows;
    for (; !set.Eof(); set.MoveNext()) {
        QHash<QString, QString> row;
        for (int i = 0; i < set.FieldCount(); ++i) {
            const Value value = set.Fields(i).Get();
            row.insert(set.FieldName(i), value.IsNull() ? u"(null)"_s : value.Text());
        }
        rows << row;
    }
    return rows;
}

/// Where the row of each ID stands.
QHash<QString, qsizetype> Places(const Rows& rows)
{
    QHash<QString, qsizetype> places;
    for (qsizetype i = 0; i < rows.size(); ++i)
        places.insert(rows[i][u"ID"_s], i);
    return places;
}

/// What a column becomes: of most the same, with Null as an empty text.
QString Expected(Section section, const QString& column, const QString& value)
{
    if (section == Contacts && column == "DefaultProperty"_L1)
        return u"(null)"_s;
    if (section == Contacts)
        return value == "(null)"_L1 ? QString() : value;
    if (section != Properties)
        return value;
    static const QStringList lost{u"Notes"_s, u"Picture"_s, u"Video"_s};
    static const QStringList unset{u"Waterfront"_s, u"Floodzone"_s,   u"Rented"_s,
                                   u"Elevator"_s,   u"PetsAllowed"_s, u"RentalAmount"_s};
    return lost.contains(column) ? u"(null)"_s : unset.contains(column) ? u"0"_s : value;
}

} // namespace

/// Transfer files out of one program and into another.
class tst_RoundTrip : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ABackupIsRestoredButForWhatItLoses();
    void AnExportIsImportedTwiceAndNothingIsDoubled();
    void StatementsOfABackupAreInTheirOrder();
    void TheListOfTheSelectedKeepsItsForm();
    void AnImportJoinsCategoriesOfTheSameName();
    void ARestoreShowsTheNewData();
    void NoAndCancelChangeNothing();
    void AnEmptyProgramRefusesABackup();
    void TheProgramsOwnFilesAreNoTarget();
    void TheSchemaNamesBaseTablesAndTypes();
};

void tst_RoundTrip::ABackupIsRestoredButForWhatItLoses()
{
    QByteArray backup;
    {
        Agency from(150);
        backup = BytesOf(from.Backup(u"first.xml"_s));
        QCOMPARE(from.Leftovers(), QStringList());
    }
    Agency to(Agency::File::Empty);
    FreshDatabase::Execute(u"Insert into Categories (Description) Values ('Wiped')"_s); // so that all IDs differ
    const QString copy = Written(to, backup);
    to.Restore(copy);
    QCOMPARE(to.Leftovers(), QStringList());
    const QList<QByteArray> before = SectionsOf(copy);
    const QList<QByteArray> after = SectionsOf(to.Backup(u"second.xml"_s));
    QCOMPARE(before.size(), 6);
    QCOMPARE(after.size(), 6);

    // What each reference points to, by its place in its table.
    const QHash<QString, Section> references{{u"CategoryID"_s, CategoryRows},
                                             {u"SubCategoryID"_s, SubCategories},
                                             {u"ParentID"_s, CategoryRows},
                                             {u"ContactID"_s, Contacts}};
    QList<QHash<QString, qsizetype>> oldPlaces;
    QList<QHash<QString, qsizetype>> newPlaces;
    for (int i = 0; i < 6; ++i) {
        oldPlaces << Places(RowsOf(before[i]));
        newPlaces << Places(RowsOf(after[i]));
        QVERIFY(!oldPlaces[i].isEmpty());
    }
    for (int i = 0; i < 6; ++i) {
        const Rows oldRows = RowsOf(before[i]);
        const Rows newRows = RowsOf(after[i]);
        QCOMPARE(newRows.size(), oldRows.size());
        for (qsizetype row = 0; row < oldRows.size(); ++row) {
            for (auto cell = oldRows[row].begin(); cell != oldRows[row].end(); ++cell) {
                const QString got = newRows[row][cell.key()];
                if (const auto target = references.constFind(cell.key()); target != references.constEnd())
                    QCOMPARE(newPlaces[*target][got], oldPlaces[*target][cell.value()]);
                else if (cell.key() != "ID"_L1)
                    QVERIFY2(got == Expected(static_cast<Section>(i), cell.key(), cell.value()),
                             qPrintable(u"%1 %2: %3 became %4"_s.arg(i).arg(cell.key(), cell.value(), got)));
            }
        }
    }
}

void tst_RoundTrip::AnExportIsImportedTwiceAndNothingIsDoubled()
{
    QByteArray transfer;
    {
        Agency from(100);
        const std::vector<Long> ids = gContacts.Keys();
        for (size_t i = 0; i < 10; ++i)
            from.Select(ids[i * 9]);
        transfer = BytesOf(from.Export(u"Selected"_s, u"ten"_s, u"Contact Export Done"_s,
                                       u"I have successfully exported your contacts."_s) +
                           u".xml"_s);
        QCOMPARE(transfer.count("</xml>"), 5);
        QVERIFY(!transfer.contains("FormLetters"));
    }
    Agency to(Agency::File::Small);
    const QString file = Written(to, transfer);
    to.Import(file);
    QCOMPARE(gContacts.Count(), 13);
    QVERIFY(to.Person.Statuses().contains(u"Performing System Restore.."_s));
    QCOMPARE(to.Person.LastStatus(), u"Ready"_s);
    QVERIFY(!to.Person.HourGlassIsOn());
    QVERIFY(curContact == nullptr);
    const auto counted = [] {
        QStringList counts;
        for (const auto table : {"Categories"_L1, "SubCategories"_L1, "Contacts"_L1, "PropDetail"_L1})
            counts << QString::number(FreshDatabase::Rows("Select ID from "_L1 + table).size());
        return counts;
    };
    const QStringList once = counted();
    to.StartAnew();
    to.Import(file);
    QCOMPARE(counted(), once);
    QCOMPARE(gContacts.Count(), 13);
}

void tst_RoundTrip::StatementsOfABackupAreInTheirOrder()
{
    Agency agency(Agency::File::Small);
    agency.Backup(u"all"_s);
    QCOMPARE(agency.Asked, u"What file do you want me to back up your data to?|DataBackup|xml"_s);
    QCOMPARE(agency.Database.TakeStatements(),
             (QStringList{u"Select * from Contacts"_s, u"Select * from PropDetail"_s, u"Select * from SubCategories"_s,
                          u"Select * from Categories"_s, u"Select * from Alerts"_s, u"Select * from FormLetters"_s}));
    const QList<QByteArray> sections = SectionsOf(agency.FileOf(u"all.xml"_s));
    const QList<QByteArray> tables{"Contacts", "Alerts", "PropDetail", "Categories", "SubCategories", "FormLetters"};
    for (int i = 0; i < 6; ++i)
        QVERIFY(sections[i].contains("rs:basetable='" + tables[i] + '\''));
}

void tst_RoundTrip::TheListOfTheSelectedKeepsItsForm()
{
    Agency agency(Agency::File::Small);
    agency.Select(3);
    agency.Select(1);
    QCOMPARE(GetSelected(u"Selected"_s), u"3, 1"_s);
    QCOMPARE(GetSelected(u"Other"_s), QString());
    agency.Export(u"Selected"_s, u"two"_s, u"Contact Export Done"_s, u"I have successfully exported your contacts."_s);
    QCOMPARE(agency.Asked, u"What file do you want me to export to?|ContactTransfer|xml"_s);
    QCOMPARE(
        agency.Database.TakeStatements(),
        (QStringList{
            u"select * from Contacts where ID in  (3, 1)"_s, u"Select * from PropDetail where ContactID in (3, 1)"_s,
            u"Select * from SubCategories Where ID in (SELECT SubCategoryID FROM Contacts where ID in (3, 1))"_s,
            u"Select * from Categories Where ID in (Select ParentID from SubCategories Where ID in (SELECT "
            "SubCategoryID FROM Contacts where ID in (3, 1)))"_s,
            u"Select * from Alerts Where ContactID in  (3, 1)"_s}));
    // An empty list is the engine's fault to tell.
    while (!gSelected.IsEmpty()) {
        curContact = ContactAt(gSelected.Last());
        UnSelectCurContact();
    }
    agency.Person.ExpectReport(QString::number(ErrorNumber::EngineSyntax));
    ExportData(u"Selected"_s);
    QCOMPARE(agency.Person.LastBox().Picture, Icon::Critical);
    QVERIFY(agency.Person.LastBox().Text.startsWith("frmMain ExportData: "_L1));
}

void tst_RoundTrip::AnImportJoinsCategoriesOfTheSameName()
{
    QByteArray transfer;
    {
        Agency from(Agency::File::Small);
        for (const Long id : {1, 3})
            from.Select(id);
        transfer = BytesOf(from.Export(u"Selected"_s, u"two.xml"_s, u"Contact Export Done"_s,
                                       u"I have successfully exported your contacts."_s));
    }
    Agency to(Agency::File::Empty);
    FreshDatabase::Execute(u"Insert into Categories (Description) Values ('Vendors')"_s);
    FreshDatabase::Execute(u"Insert into Categories (Description) Values (' BUYERS')"_s);
    FreshDatabase::Execute(u"Insert into SubCategories (Description,ParentID) Values ('FIRST HOME ',2)"_s);
    FreshDatabase::Execute(
        u"Insert into Contacts (CategoryID,SubCategoryID,FirstName,MI,LastName,Email,Company) Values "
        "(2,1,'ANN ','','lee','old','Old & Co')"_s);
    to.StartAnew();
    to.Import(Written(to, transfer));
    QCOMPARE(FreshDatabase::Rows(u"Select Description from Categories"_s),
             (QStringList{u"Vendors"_s, u" BUYERS"_s, u"Sellers"_s}));
    QCOMPARE(FreshDatabase::Rows(u"Select Description,ParentID from SubCategories"_s),
             (QStringList{u"FIRST HOME |2"_s, u"Houses|3"_s}));
    // The known contact keeps its names and takes the rest, an empty field included.
    QCOMPARE(FreshDatabase::Rows(u"Select CategoryID,SubCategoryID,FirstName,LastName,Email,Company from Contacts"_s),
             (QStringList{u"2|1|ANN |lee|ann@x|"_s, u"3|2|Cy|Day||"_s}));
    QCOMPARE(FreshDatabase::Rows(u"Select ContactID,AlertDate,AlertNote from Alerts"_s),
             (QStringList{u"1|1/5/2026|Call Ann"_s, u"2|2/6/2026|Write to Cy"_s}));
    QCOMPARE(CategoryAt(3)->ContactCount, 1);
    QCOMPARE(CategoryAt(3)->Sub(1)->ContactCount, 1);
    QCOMPARE(gAlerts.Item(2)->Key, u"A2"_s);
    QCOMPARE(gAlerts.Item(2)->ID, 0);
}

void tst_RoundTrip::ARestoreShowsTheNewData()
{
    Agency agency(Agency::File::Small);
    const QString backup = agency.Backup(u"all.xml"_s);
    FreshDatabase::Execute(u"Delete from FormLetters"_s);
    static_cast<void>(agency.Database.TakeStatements());
    agency.Restore(backup);
    QCOMPARE(agency.Asked, u"What file do you want me to restore the Database with?||xml"_s);
    QCOMPARE(agency.Database.TakeStatements().mid(0, 6),
             (QStringList{u"Delete * from Contacts"_s, u"Delete * from PropDetail"_s, u"Delete * from Subcategories"_s,
                          u"Delete * from Categories"_s, u"Delete * from FormLetters"_s, u"Delete * from Alerts"_s}));
    QVERIFY(agency.Person.Statuses().contains(u"Restoring Database..."_s));
    QVERIFY(!agency.Person.HourGlassIsOn());
    QCOMPARE(Face<TreeFace>::Get()->NodeCount(), 4);
    QCOMPARE(gContacts.Keys(), (std::vector<Long>{4, 5, 6}));
    auto& alerts = Control<Grid>(agency.Main(), u"GridAlerts"_s);
    QCOMPARE(alerts.Rows(), 2);
    QCOMPARE(FreshDatabase::Rows(u"Select FormName,FormText from FormLetters"_s),
             QStringList{u"Hello|Dear !<FirstName>!"_s});
    // The same again at the next start.
    agency.StartAnew();
    QCOMPARE(gContacts.Count(), 3);
    QCOMPARE(gAlerts.Count(), 2);
}

void tst_RoundTrip::NoAndCancelChangeNothing()
{
    Agency agency(Agency::File::Small);
    const QString backup = agency.Backup(u"all.xml"_s);
    const QList<QByteArray> sections = SectionsOf(backup);
    const QStringList before = FreshDatabase::WholeFile();
    agency.Name(QString());
    ExportData(u"All"_s);
    ImportData(true);
    ImportData(false);
    QCOMPARE(agency.Asked, u"What file do you want me to import from?||xml"_s);
    agency.Name(backup);
    agency.Person.Expect(u"all.xml Already Exists"_s, u"Do you want me to overwrite it?"_s, Answer::No);
    ExportData(u"All"_s);
    QCOMPARE(SectionsOf(backup), sections);
    QCOMPARE(agency.Leftovers(), QStringList());
    agency.ExpectRestoreQuestion(Answer::No);
    ImportData(true);
    QCOMPARE(FreshDatabase::WholeFile(), before);
    QCOMPARE(gContacts.Count(), 3);
    QVERIFY(!agency.Person.HourGlassIsOn());
}

void tst_RoundTrip::AnEmptyProgramRefusesABackup()
{
    Agency agency(Agency::File::Empty);
    FreshDatabase::Execute(u"Insert into FormLetters (FormName,FormText) values ('a','b')"_s);
    agency.Person.Expect(u"Data Backup has been Cancelled"_s,
                         u"I cancelled the data backup because\r\nyou have no contacts in the system."_s);
    ExportData(u"All"_s);
    gSelected.Add(17);
    agency.Person.Expect(u"Contact Export has been Cancelled"_s,
                         u"I cancelled the contact export because\r\nthere are no contacts to export"_s);
    ExportData(u"Selected"_s);
}

void tst_RoundTrip::TheProgramsOwnFilesAreNoTarget()
{
    Agency agency(Agency::File::Small);
    const QStringList before = FreshDatabase::WholeFile();
    for (const auto& [name, number] :
         {std::pair{u"Data/Contacts.mdb"_s, 70}, std::pair{u"Data/AlertExport.xml"_s, 55}}) {
        agency.Name(name);
        agency.Person.ExpectReport(QString::number(number));
        ExportData(u"All"_s);
    }
    agency.Name(u"Data/AlertImport.xml"_s);
    agency.Person.ExpectReport(u"ImportData Error #55"_s);
    ImportData(false);
    QCOMPARE(FreshDatabase::WholeFile(), before);
}

void tst_RoundTrip::TheSchemaNamesBaseTablesAndTypes()
{
    Agency agency(Agency::File::Small);
    const QList<QByteArray> sections = SectionsOf(agency.Backup(u"all.xml"_s));
    QVERIFY(sections[0].startsWith("<xml xmlns:s='uuid:BDC6E3F0-6DA3-11d1-A2A3-00AA00C14882'\r\n"
                                   "\txmlns:dt='uuid:C2F41010-65B3-11d1-A29F-00AA00C14882'\r\n"
                                   "\txmlns:rs='urn:schemas-microsoft-com:rowset'\r\n"
                                   "\txmlns:z='#RowsetSchema'>\r\n<s:Schema id='RowsetSchema'>\r\n"
                                   "\t<s:ElementType name='row' content='eltOnly' rs:updatable='true'>\r\n"
                                   "\t\t<s:AttributeType name='ID' rs:number='1' rs:writeunknown='true' "
                                   "rs:basetable='Contacts' rs:basecolumn='ID' rs:keycolumn='true' "
                                   "rs:autoincrement='true'>\r\n"
                                   "\t\t\t<s:datatype dt:type='int' dt:maxLength='4' rs:precision='10' "
                                   "rs:fixedlength='true' rs:maybenull='false'/>\r\n"));
    const QByteArray properties = sections[2];
    QVERIFY(properties.contains("rs:basecolumn='SqFt'>\r\n\t\t\t<s:datatype dt:type='i2' dt:maxLength='2' "
                                "rs:precision='5' rs:fixedlength='true' rs:maybenull='false'/>"));
    QVERIFY(properties.contains("rs:basecolumn='Baths'>\r\n\t\t\t<s:datatype dt:type='r4'"));
    QVERIFY(
        properties.contains("rs:basecolumn='AskingPrice'>\r\n\t\t\t<s:datatype dt:type='number' rs:dbtype='numeric' "
                            "dt:maxLength='19' rs:scale='4' rs:precision='19' rs:fixedlength='true'/>"));
    QVERIFY(properties.contains("rs:basecolumn='Notes'>\r\n\t\t\t<s:datatype dt:type='string' "
                                "dt:maxLength='1073741823' rs:long='true'/>"));
    QVERIFY(properties.contains(" Baths='2.5'"));
    QVERIFY(properties.contains(" AskingPrice='250000.5'"));
    QVERIFY(!properties.contains(" Picture='"));
    QVERIFY(
        sections[0].contains("rs:basecolumn='FirstName'>\r\n\t\t\t<s:datatype dt:type='string' dt:maxLength='255'/>"));
    QVERIFY(sections[5].trimmed().endsWith("</rs:data>\r\n</xml>"));
}

QTEST_MAIN(tst_RoundTrip)
#include "tst_RoundTrip.moc"
