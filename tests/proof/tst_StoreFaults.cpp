#include "core/adodb/Connection.h"
#include "core/ErrorOf.h"
#include "files/Database.h"
#include "model/Contact.h"
#include "support/FreshDatabase.h"
#include "support/ScriptedUser.h"

#include <csignal>
#include <QFileInfo>
#include <QTest>
#include <sys/resource.h>
#include <thread>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// An end that sets right again what was done.
using Undo = std::shared_ptr<void>;

Undo AtTheEnd(std::function<void()> act)
{
    return {nullptr, [act = std::move(act)](void*) { act(); }};
}

/// Takes the rights away that let root write anywhere; the folder then belongs to the person who is left.
Undo WithoutPrivileges(const FreshDatabase& fresh)
{
    constexpr uid_t nobody = 65534;
    if (geteuid() != 0)
        return {};
    for (const QString& path : {fresh.Folder(), QFileInfo(fresh.DatabaseFile()).path(), fresh.DatabaseFile()}) {
        if (chown(qPrintable(path), nobody, static_cast<gid_t>(-1)) != 0)
            qFatal("%s can't be given away", qPrintable(path));
    }
    if (setresuid(nobody, nobody, 0) != 0)
        qFatal("The privileges can't be dropped");
    return AtTheEnd([] {
        if (setresuid(0, 0, 0) != 0)
            qFatal("The privileges don't come back");
    });
}

Undo ReadOnly(const QString& path)
{
    const QFile::Permissions before = QFile::permissions(path);
    QFile::setPermissions(path, QFile::ReadOwner | (before & QFile::ExeOwner));
    return AtTheEnd([=] { QFile::setPermissions(path, before); });
}

/// No file of this process grows beyond the size that the database has now.
Undo FullDisk(const FreshDatabase& fresh)
{
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit now{static_cast<rlim_t>(QFileInfo(fresh.DatabaseFile()).size()), before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &now);
    return AtTheEnd([before] { setrlimit(RLIMIT_FSIZE, &before); });
}

/// Another program has the file open and is in the middle of a transaction.
std::shared_ptr<Database> LockedBy(const FreshDatabase& fresh, const QByteArray& transaction)
{
    auto other = std::make_shared<Database>(fresh.DatabaseFile());
    for (const QByteArray& statement : transaction.split(';')) {
        if (!other->Run(statement).isEmpty())
            qFatal("The other program can't %s", statement.constData());
    }
    return other;
}

struct Fault
{
    bool FromTheStart;
    std::function<QList<Undo>(const FreshDatabase&)> Begin;
};

std::shared_ptr<Contact> NewContact(const QString& name)
{
    auto contact = std::make_shared<Contact>();
    contact->CategoryID = 1;
    contact->subCategoryID = 1;
    contact->FirstName = name;
    // Longer than what is free in the file.
    contact->Notes = QString(300'000, u'n');
    return contact;
}

} // namespace

/// The store can't be written, or not now: the person reads why, nothing is half written, and the work goes on
/// afterwards.
class tst_StoreFaults : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void AFailedSaveIsReportedAndTheNextOneWorks_data();
    void AFailedSaveIsReportedAndTheNextOneWorks();
    void ASaveWaitsForALockThatGoes();
    void AFileThatIsLockedAtTheStartIsAnErrorAndOpensLater();
    void ADiskThatFillsUpKeepsWhatSharedACommit();
};

void tst_StoreFaults::AFailedSaveIsReportedAndTheNextOneWorks_data()
{
    QTest::addColumn<Fault>("fault");
    const auto folder = [](const FreshDatabase& fresh) { return QFileInfo(fresh.DatabaseFile()).path(); };
    QTest::newRow("a folder that can't be written")
        << Fault{false, [=](const FreshDatabase& fresh) {
                     return QList{ReadOnly(folder(fresh)), WithoutPrivileges(fresh)};
                 }};
    QTest::newRow("a file that can't be written")
        << Fault{true, [](const FreshDatabase& fresh) {
                     return QList{ReadOnly(fresh.DatabaseFile()), WithoutPrivileges(fresh)};
                 }};
    QTest::newRow("a full disk") << Fault{false, [](const FreshDatabase& fresh) { return QList{FullDisk(fresh)}; }};
    QTest::newRow("another program writes")
        << Fault{false, [](const FreshDatabase& fresh) { return QList<Undo>{LockedBy(fresh, "BEGIN IMMEDIATE")}; }};
    QTest::newRow("another program reads")
        << Fault{false, [](const FreshDatabase& fresh) {
                     return QList<Undo>{LockedBy(fresh, "BEGIN; SELECT * FROM Contacts")};
                 }};
}

void tst_StoreFaults::AFailedSaveIsReportedAndTheNextOneWorks()
{
    QFETCH(Fault, fault);
    FreshDatabase fresh;
    ScriptedUser user;
    QCOMPARE(NewContact(u"Ann"_s)->AddToDB(1), 1);
    const QStringList before = FreshDatabase::WholeFile();
    const auto contact = NewContact(u"Bob"_s);
    {
        if (fault.FromTheStart)
            gConn.Close();
        const QList<Undo> undo = fault.Begin(fresh);
        if (fault.FromTheStart)
            fresh.StartAnew();
        user.ExpectReport(u"Class Contact AddToDB Error #-2147467259"_s);
        QCOMPARE(contact->AddToDB(1), 0);
        user.Done();
        // What is there can still be read.
        QCOMPARE(FreshDatabase::WholeFile(), before);
        if (fault.FromTheStart)
            gConn.Close();
    }
    if (fault.FromTheStart)
        fresh.StartAnew();
    QCOMPARE(FreshDatabase::WholeFile(), before);
    QCOMPARE(contact->AddToDB(1), 2);
    contact->UpdateDB(1);
    fresh.StartAnew();
    QCOMPARE(FreshDatabase::Rows(u"Select FirstName from Contacts Where ID in (1,2)"_s),
             (QStringList{u"Bob"_s, u"Bob"_s}));
    QCOMPARE(Database(fresh.DatabaseFile()).Value("PRAGMA integrity_check"), u"ok"_s);
}

void tst_StoreFaults::ASaveWaitsForALockThatGoes()
{
    const FreshDatabase fresh;
    const ScriptedUser user;
    const auto other = LockedBy(fresh, "BEGIN IMMEDIATE");
    std::thread later([&other] {
        std::this_thread::sleep_for(500ms);
        (void)other->Run("COMMIT");
    });
    const Long id = NewContact(u"Ann"_s)->AddToDB(1);
    later.join();
    QCOMPARE(id, 1);
}

void tst_StoreFaults::AFileThatIsLockedAtTheStartIsAnErrorAndOpensLater()
{
    FreshDatabase fresh;
    gConn.Close();
    const auto other = LockedBy(fresh, "BEGIN EXCLUSIVE");
    QCOMPARE(ErrorOf([&] { fresh.StartAnew(); }), ErrorNumber::EngineFailure);
    QCOMPARE(gConn.State(), ObjectState::Closed);
    QCOMPARE(other->Run("COMMIT"), QString());
    fresh.StartAnew();
    QCOMPARE(gConn.State(), ObjectState::Open);
}

/// Writes rows into a file that may grow by `room` bytes until none fits, and gives how many are in the file then.
qsizetype RowsThatFit(rlim_t room, bool sharing)
{
    FreshDatabase fresh;
    {
        std::signal(SIGXFSZ, SIG_IGN);
        rlimit before{};
        getrlimit(RLIMIT_FSIZE, &before);
        const rlimit now{static_cast<rlim_t>(QFileInfo(fresh.DatabaseFile()).size()) + room, before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &now);
        const Undo undo = AtTheEnd([before] { setrlimit(RLIMIT_FSIZE, &before); });
        const auto fill = [] {
            for (int i = 0; i < 3000; ++i)
                gConn.Execute(u"Insert into Categories (Description) Values ('%1')"_s.arg(QString(5000, u'n')));
        };
        const int error = ErrorOf([&] { sharing ? gConn.ShareCommits(fill) : fill(); });
        if (error != ErrorNumber::EngineFailure)
            qFatal("the disk did not fill up");
    }
    fresh.StartAnew();
    if (Database(fresh.DatabaseFile()).Value("PRAGMA integrity_check") != "ok"_L1)
        qFatal("the file is damaged");
    return FreshDatabase::Rows(u"Select ID from Categories"_s).size();
}

void tst_StoreFaults::ADiskThatFillsUpKeepsWhatSharedACommit()
{
    // Full at the first commit, and while the engine writes ahead of it.
    for (const rlim_t room : {300'000, 4'000'000}) {
        const qsizetype alone = RowsThatFit(room, false);
        QVERIFY(alone > 20);
        QCOMPARE(RowsThatFit(room, true), alone);
    }
}

QTEST_APPLESS_MAIN(tst_StoreFaults)
#include "tst_StoreFaults.moc"
