#include "Saved.h"

#include "core/adodb/Connection.h"
#include "files/Database.h"
#include "support/FreshDatabase.h"

#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QProcess>
#include <QRandomGenerator>
#include <QSet>
#include <QTest>
#include <chrono>
#include <thread>

using namespace Qt::StringLiterals;

/// The program is killed while it saves. What it called done must be there at the next start, and nothing must be half
/// there.
class tst_SuddenDeath : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void WhatWasSavedSurvivesAKill();
    void AKilledRestoreLeavesAWholeFile();

private:
    void RunAndKill(const FreshDatabase& fresh);
    void ReadLine(const QByteArray& line);
    void CheckFile(const FreshDatabase& fresh);
    void CheckRestored(const FreshDatabase& fresh, bool whole);

    QRandomGenerator m_random{20261122};
    int m_contacts = 0;  ///< how many contacts were reported as saved, or found written
    QSet<int> m_notesOf; ///< whose notes were reported as saved
    int m_saves = 0;
    int m_cutSaves = 0; ///< kills that left a journal behind
};

void tst_SuddenDeath::ReadLine(const QByteArray& line)
{
    const QList<QByteArray> words = line.trimmed().split(' ');
    QVERIFY2(words.size() == 2 && words[0] != "!", line.constData());
    if (words[0] == "contact")
        m_contacts = words[1].toInt();
    else
        m_notesOf << words[1].toInt();
    ++m_saves;
}

/// Lets the program do some saves and kills it a moment later, wherever it is then.
void tst_SuddenDeath::RunAndKill(const FreshDatabase& fresh)
{
    QProcess program;
    program.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    program.start(QStringLiteral(SAVER), {fresh.Folder(), QString::number(m_contacts + 1)});
    for (int left = m_random.bounded(4, 24); left > 0; --left) {
        while (!program.canReadLine() && program.waitForReadyRead(20'000)) {
        }
        QVERIFY2(program.canReadLine(), "the program neither saves nor says why");
        ReadLine(program.readLine());
    }
    // Half of the kills fall anywhere, the others while a save is on its way to the disk.
    const QString journal = fresh.DatabaseFile() + u"-journal"_s;
    if (m_random.bounded(2) == 0) {
        const QDeadlineTimer patience(1000);
        while (!QFileInfo::exists(journal) && !patience.hasExpired()) {
        }
    }
    std::this_thread::sleep_for(std::chrono::microseconds(m_random.bounded(30'000)));
    program.kill();
    QVERIFY(program.waitForFinished());
    while (program.canReadLine())
        ReadLine(program.readLine());
    m_cutSaves += QFileInfo(journal).size() > 0 ? 1 : 0;
}

void tst_SuddenDeath::CheckFile(const FreshDatabase& fresh)
{
    // The program's own opening first: it has to mend what was cut.
    gConn.Open(u"Dbq="_s + fresh.DatabaseFile() + u";Password=kostrevy48"_s);
    const QStringList rows = FreshDatabase::Rows(u"Select FirstName,FormattedName,MailAddr1,Notes from Contacts"_s);
    gConn.Close();
    // One save may have been written, but not reported any more; the next run goes on behind it.
    QVERIFY(rows.size() == m_contacts || rows.size() == m_contacts + 1);
    m_contacts = static_cast<int>(rows.size());
    for (int number = 1; number <= m_contacts; ++number) {
        const QString& row = rows[number - 1];
        const QString names =
            QStringList{Saved::First(number), Saved::First(number) + u' ' + Saved::Last(number), Saved::Address(number)}
                .join(u'|');
        const bool whole = row == names + u'|' + Saved::Notes(number);
        // The run that was killed between a contact and its notes leaves the notes out for good.
        QVERIFY2(whole || row == names + u'|', qPrintable(row.left(100)));
        QVERIFY2(whole || !m_notesOf.contains(number), qPrintable(row.left(100)));
    }
    QCOMPARE(Database(fresh.DatabaseFile()).Value("PRAGMA integrity_check"), u"ok"_s);
}

void tst_SuddenDeath::WhatWasSavedSurvivesAKill()
{
    const FreshDatabase fresh;
    FreshDatabase::Execute(u"Insert into Categories (Description) Values ('Buyers')"_s);
    FreshDatabase::Execute(u"Insert into SubCategories (Description,ParentID) Values ('First home',1)"_s);
    gConn.Close();
    QElapsedTimer time;
    time.start();
    int kills = 0;
    // A machine that is busy otherwise does fewer saves; it must not take for ever.
    for (; m_saves < 200 && time.elapsed() < 25'000; ++kills) {
        RunAndKill(fresh);
        CheckFile(fresh);
        if (QTest::currentTestFailed())
            return;
    }
    qInfo("%d saves, %d kills, %d of them in the middle of a save", m_saves, kills, m_cutSaves);
    QVERIFY(kills > 1);
}

namespace {

constexpr int restoredContacts = 2500;

/// Contacts with an alert each, and a letter.
void FillForABackup()
{
    gConn.ShareCommits([] {
        gConn.Execute(u"Insert into Categories (Description) Values ('Buyers')"_s);
        gConn.Execute(u"Insert into SubCategories (Description,ParentID) Values ('First home',1)"_s);
        for (int number = 1; number <= restoredContacts; ++number) {
            gConn.Execute(
                u"Insert into Contacts (CategoryID,SubCategoryID,FirstName,MI,LastName,MailAddr1,Notes) Values "
                "(1,1,'%1','','%2','%3','%1 %3')"_s.arg(Saved::First(number), Saved::Last(number),
                                                        Saved::Address(number)));
            gConn.Execute(u"Insert into Alerts (ContactID,AlertDate,AlertNote) Values (%1,'1/5/2026','%2')"_s.arg(
                QString::number(number), Saved::First(number)));
        }
        gConn.Execute(u"Insert into FormLetters (FormName,FormText) values ('Hello','Dear')"_s);
    });
}

void WaitForLine(QProcess& program, const QByteArray& line)
{
    while (!program.canReadLine() && program.waitForReadyRead(60'000)) {
    }
    QCOMPARE(program.readLine().trimmed(), line);
}

} // namespace

/// The rows come in their order, and so does what is left of them: nothing is half there, nothing is there before what
/// it hangs on.
void tst_SuddenDeath::CheckRestored(const FreshDatabase& fresh, bool whole)
{
    gConn.Open(u"Dbq="_s + fresh.DatabaseFile() + u";Password=kostrevy48"_s);
    const QStringList contacts = FreshDatabase::Rows(u"Select FirstName,MailAddr1,Notes from Contacts"_s);
    const qsizetype alerts = FreshDatabase::Rows(u"Select ID from Alerts"_s).size();
    const qsizetype letters = FreshDatabase::Rows(u"Select ID from FormLetters"_s).size();
    gConn.Close();
    QCOMPARE(Database(fresh.DatabaseFile()).Value("PRAGMA integrity_check"), u"ok"_s);
    for (int number = 1; number <= contacts.size(); ++number) {
        const QString first = Saved::First(number);
        const QString address = Saved::Address(number);
        QCOMPARE(contacts[number - 1], QStringList({first, address, first + u' ' + address}).join(u'|'));
    }
    // The wipe takes the contacts first.
    const bool isWiping = contacts.isEmpty();
    QVERIFY(isWiping || alerts == 0 || contacts.size() == restoredContacts);
    QVERIFY(isWiping || letters == 0 || alerts == restoredContacts);
    if (whole)
        QCOMPARE(letters, 1);
    m_cutSaves += contacts.size() % restoredContacts != 0 || alerts % restoredContacts != 0 ? 1 : 0;
}

void tst_SuddenDeath::AKilledRestoreLeavesAWholeFile()
{
    const FreshDatabase fresh;
    FillForABackup();
    gConn.Close();
    const QString backup = fresh.Folder() + u"/backup.xml"_s;
    const auto start = [&](QProcess& program, const QString& direction) {
        program.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        program.start(QStringLiteral(SAVER), {fresh.Folder(), direction, backup});
        WaitForLine(program, "transfer begun");
    };
    qint64 microseconds = 0;
    for (const auto& direction : {u"backup"_s, u"restore"_s}) {
        QProcess program;
        start(program, direction);
        QElapsedTimer time;
        time.start();
        WaitForLine(program, "transfer done");
        microseconds = time.nsecsElapsed() / 1000;
        QVERIFY(program.waitForFinished());
    }
    CheckRestored(fresh, true);
    m_cutSaves = 0;
    QElapsedTimer time;
    time.start();
    int kills = 0;
    for (; kills < 12 && time.elapsed() < 25'000 && !QTest::currentTestFailed(); ++kills) {
        QProcess program;
        start(program, u"restore"_s);
        std::this_thread::sleep_for(std::chrono::microseconds(m_random.bounded(microseconds)));
        program.kill();
        QVERIFY(program.waitForFinished());
        CheckRestored(fresh, false);
    }
    qInfo("%d kills, %d of them between the rows", kills, m_cutSaves);
    QProcess last;
    start(last, u"restore"_s);
    WaitForLine(last, "transfer done");
    QVERIFY(last.waitForFinished());
    CheckRestored(fresh, true);
}

QTEST_APPLESS_MAIN(tst_SuddenDeath)
#include "tst_SuddenDeath.moc"
