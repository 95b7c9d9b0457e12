#include "SmallBackup.h"

#include "core/ErrorOf.h"
#include "core/Files.h"
#include "support/FullDisk.h"
#include "transfer/AppendFileBytes.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

/// What an export of everything reports.
void ExpectExportReport(Agency& agency, int number, const QString& words)
{
    agency.Person.Expect(QString::number(number), u"frmMain ExportData: "_s + words);
}

void Fill(const QString& name, QByteArrayView bytes)
{
    QFile file(name);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes.data(), bytes.size()) != bytes.size())
        qFatal("%s can't be written", qPrintable(name));
}

} // namespace

/// Files that can't be written or read, and a store that fails on the way.
class tst_TransferFaults : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { static_cast<void>(Backup()); }
    void AFullDiskEndsAnExport_data();
    void AFullDiskEndsAnExport();
    void AFullDiskEndsTheCuttingOfABackup();
    void AStoreThatFailsIsReportedOnce();
    void AProtectedTargetStays();
    void ATargetThatIsNoFile();
    void ATargetThatComesMeanwhileIsAskedAbout();
    void AFailedReadIsNoEnd();
    void AFileThatNeedsNoWaitingIsSafe();
    void TheFileThatWasChosenIsRead();
    void AHugeFileIsRefused();
};

void tst_TransferFaults::AFullDiskEndsAnExport_data()
{
    QTest::addColumn<qint64>("room");
    QTest::addColumn<bool>("leavesDumps");

    QTest::newRow("in the contacts") << qint64{3000} << false;
    qint64 largest = 0;
    for (const QByteArray& section : Backup())
        largest = std::max(largest, qint64{section.size()});
    QTest::newRow("behind the contacts") << largest + 100 << true;
}

void tst_TransferFaults::AFullDiskEndsAnExport()
{
    QFETCH(qint64, room);
    QFETCH(bool, leavesDumps);
    Agency agency(Agency::File::Small);
    const QString target = agency.FileOf(u"all.xml"_s);
    agency.Name(target);
    {
        const FullDisk disk(static_cast<rlim_t>(room));
        ExpectExportReport(agency, ErrorNumber::DiskFull, u"Disk full"_s);
        ExportData(u"All"_s);
    }
    // What was written stays, and the next run writes it over.
    QVERIFY(QFileInfo::exists(target));
    QCOMPARE(!agency.Leftovers().isEmpty(), leavesDumps);
    agency.Person.Expect(u"all.xml Already Exists"_s, u"Do you want me to overwrite it?"_s, Answer::Yes);
    agency.Backup(u"all.xml"_s);
    QCOMPARE(SectionsOf(target).size(), 6);
    QCOMPARE(agency.Leftovers(), QStringList());
}

void tst_TransferFaults::AFullDiskEndsTheCuttingOfABackup()
{
    Agency agency(Agency::File::Small);
    const QByteArray note(4'000'000, 'n');
    agency.Name(Written(agency, Changed(Contacts, "Notes='two'", "Notes='" + note + '\'')));
    agency.ExpectRestoreQuestion(Answer::Yes);
    agency.Person.ExpectReport(u"ImportData Error #61"_s);
    {
        const FullDisk disk(static_cast<rlim_t>(QFileInfo(agency.Database.DatabaseFile()).size()) + 100'000);
        ImportData(true);
    }
    QVERIFY(IsUsable());
    agency.Restore(agency.FileOf(u"given.xml"_s));
    QCOMPARE(FreshDatabase::Rows(u"Select Notes from Contacts Where FirstName='Bob'"_s),
             QStringList{QString::fromLatin1(note)});
}

void tst_TransferFaults::AStoreThatFailsIsReportedOnce()
{
    Agency agency(Agency::File::Empty);
    // The file of the store is larger than that of any section, so that only the store finds the disk full.
    FreshDatabase::Execute(u"Insert into FormLetters (FormName,FormText) values ('long','"_s +
                           QString(8'000'000, u'x') + u"')"_s);
    QList<QByteArray> sections = Backup().first(5);
    const QByteArray row = sections[Properties].mid(sections[Properties].indexOf("\t<z:row"));
    QByteArray rows;
    // More than the engine keeps in memory, so that it fails in one of them and not at the end.
    for (int number = 1; number <= 15; ++number) {
        QByteArray property = row.first(row.indexOf("/>") + 2);
        property.replace("1 Elm Street", QByteArray::number(number) + " Elm Street");
        property.replace("MLS='M1'", "MLS='" + QByteArray(400'000, 'm') + '\'');
        rows += property + "\r\n";
    }
    sections[Properties].insert(sections[Properties].indexOf("\t<z:row"), rows);
    agency.Name(Written(agency, Joined(sections)));
    agency.Person.ExpectReport(u"Class PropDetail SaveToDB Error #"_s + QString::number(ErrorNumber::EngineFailure));
    agency.Person.ExpectReport(u"Contacts Imported"_s);
    {
        const FullDisk disk(static_cast<rlim_t>(QFileInfo(agency.Database.DatabaseFile()).size()) + 200'000);
        ImportData(false);
    }
    QCOMPARE(FreshDatabase::Rows(u"Select FirstName from Contacts"_s), (QStringList{u"Ann"_s, u"Bob"_s, u"Cy"_s}));
    QCOMPARE(FreshDatabase::Rows(u"Select ID from PropDetail"_s), QStringList());
    QVERIFY(IsUsable());
}

void tst_TransferFaults::AProtectedTargetStays()
{
    Agency agency(Agency::File::Small);
    const QString target = agency.FileOf(u"mine.xml"_s);
    Fill(target, "precious");
    QFile::setPermissions(target, QFile::ReadOwner);
    agency.Name(target);
    agency.Person.Expect(u"mine.xml Already Exists"_s, u"Do you want me to overwrite it?"_s, Answer::Yes);
    ExpectExportReport(agency, ErrorNumber::PermissionDenied, u"Permission denied"_s);
    ExportData(u"All"_s);
    QCOMPARE(agency.Person.LastBox().Picture, Icon::Critical);
    QCOMPARE(BytesOf(target), "precious");
}

void tst_TransferFaults::ATargetThatIsNoFile()
{
    Agency agency(Agency::File::Small);
    agency.Name(u"none/backup.xml"_s);
    ExpectExportReport(agency, ErrorNumber::PathNotFound, u"Path not found"_s);
    ExportData(u"All"_s);
    QDir(agency.Database.Folder()).mkdir(u"folder.xml"_s);
    agency.Name(u"folder.xml"_s);
    ExpectExportReport(agency, ErrorNumber::PathFileAccess, u"Path/File access error"_s);
    ExportData(u"All"_s);
}

void tst_TransferFaults::ATargetThatComesMeanwhileIsAskedAbout()
{
    Agency agency(Agency::File::Small);
    // A link to nothing is there only for who wants to make the file.
    const QString target = agency.FileOf(u"link.xml"_s);
    QVERIFY(QFile::link(agency.FileOf(u"gone.xml"_s), target));
    const QString question = target + u" already exists, overwrite the existing file?"_s;
    const QString title = u"Over Write an Existing File Warning"_s;
    agency.Name(target);
    agency.Person.Expect(title, question, Answer::No);
    ExportData(u"All"_s);
    QVERIFY(QFileInfo(target).isSymLink());
    agency.Person.Expect(title, question, Answer::Yes);
    agency.Backup(target);
    QCOMPARE(SectionsOf(target).size(), 6);
    QVERIFY(!QFileInfo::exists(agency.FileOf(u"gone.xml"_s)));
}

void tst_TransferFaults::AFailedReadIsNoEnd()
{
    // The system refuses every read from its beginning.
    const QString unreadable = u"/proc/self/mem"_s;
    if (!QFileInfo::exists(unreadable))
        QSKIP("this system has no unreadable file to offer");
    Agency agency(Agency::File::Small);
    const QString target = agency.FileOf(u"target"_s);
    Fill(target, "before");
    QCOMPARE(ErrorOf([&] { AppendFileBytes(unreadable, target); }), ErrorNumber::PathFileAccess);
    agency.Name(unreadable);
    agency.Person.ExpectReport(u"ImportData Error #75"_s);
    ImportData(true);
}

void tst_TransferFaults::AFileThatNeedsNoWaitingIsSafe()
{
    const Agency agency(Agency::File::Empty);
    SyncFile(agency.Database.DatabaseFile());
    // The system can't wait for this one.
    SyncFile(u"/dev/null"_s);
}

void tst_TransferFaults::TheFileThatWasChosenIsRead()
{
    Agency agency(Agency::File::Small);
    Fill(agency.FileOf(u"Monday"_s), "a note");
    Fill(agency.FileOf(u"Monday.xml"_s), Joined(Backup()));
    agency.Name(u"Monday"_s);
    agency.Person.Expect(u"Restore Cancelled"_s,
                         u"I did not restore from the file that you have selected\r\n because it is not a database "
                         "backup file."_s);
    ImportData(true);
    QCOMPARE(gContacts.Keys(), (std::vector<Long>{1, 2, 3}));
}

void tst_TransferFaults::AHugeFileIsRefused()
{
    Agency agency(Agency::File::Small);
    const QStringList before = FreshDatabase::WholeFile();
    QFile file(agency.FileOf(u"huge.xml"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(file.resize(500'000'000)); // all one line
    file.close();
    agency.Name(file.fileName());
    agency.Person.ExpectReport(u"StartImport Error #"_s + QString::number(ErrorNumber::EngineFailure));
    agency.Person.ExpectReport(u"ImportData Error #53"_s);
    ImportData(false);
    QCOMPARE(FreshDatabase::WholeFile(), before);
    QVERIFY(IsUsable());
}

QTEST_MAIN(tst_TransferFaults)
#include "tst_TransferFaults.moc"
