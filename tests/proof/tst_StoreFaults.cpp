#include "core/adodb/Connection.h"
#include "core/ErrorOf.h"
#include "model/Contact.h"
#include "proof/Faults.h"
#include "support/FreshDatabase.h"
#include "support/ScriptedUser.h"

#include <QTest>
#include <thread>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

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
    AddFaults();
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
qsizetype RowsThatFit(qint64 room, bool sharing)
{
    FreshDatabase fresh;
    {
        const Undo undo = FullDisk(fresh, room);
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
    for (const qint64 room : {300'000, 4'000'000}) {
        const qsizetype alone = RowsThatFit(room, false);
        QVERIFY(alone > 20);
        QCOMPARE(RowsThatFit(room, true), alone);
    }
}

QTEST_APPLESS_MAIN(tst_StoreFaults)
#include "tst_StoreFaults.moc"
