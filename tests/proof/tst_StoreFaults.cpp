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

QTEST_APPLESS_MAIN(tst_StoreFaults)
#include "tst_StoreFaults.moc"
