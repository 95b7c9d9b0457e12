#include "letters/WordProcessor.h"
#include "support/ScriptedUser.h"
#include "support/WordReader.h"

#include "core/Clock.h"
#include "core/ErrorOf.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTest>

using namespace Qt::StringLiterals;

/// What becomes of documents when the word processor is let go, and the rules of its objects.
class tst_WordFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void AHiddenApplicationLeavesNothing();
    void AVisibleOneOpensWhatIsNotClosed();
    void EachKindHasItsNameAndItsCount();
    void FilesAreTheirOwnersAlone();
    void WithoutAProgramTheErrorNamesTheFile();
    void AFailedProcedureShowsHowFarItCame();
    void ACacheThatCannotBeWrittenIsReported();
    void WhatIsOlderThanAWeekGoesAtTheStart();
    void ABadStepIsRefused();
    void ASourceIsReadAsItWasWritten_data();
    void ASourceIsReadAsItWasWritten();

private:
    static QDir Cache()
    {
        return QDir(QStandardPaths::writableLocation(QStandardPaths::CacheLocation) + u"/Documents"_s);
    }
};

void tst_WordFiles::init()
{
    QStandardPaths::setTestModeEnabled(true);
    Cache().removeRecursively();
}

void tst_WordFiles::AHiddenApplicationLeavesNothing()
{
    const ScriptedUser user;
    const WordProcessor processor;
    {
        Word::Application word;
        word.Documents().Add();
        word.Selection().TypeText(u"nobody sees this"_s);
    }
    QCOMPARE(processor.Opened(), QStringList());
    QVERIFY(!Cache().exists());
}

void tst_WordFiles::AVisibleOneOpensWhatIsNotClosed()
{
    const WordProcessor processor;
    Word::Application word;
    Word::Document& first = word.Documents().Add();
    word.Selection().TypeText(u"first"_s);
    word.Documents().Add();
    word.Selection().TypeText(u"second"_s);
    first.Close(false);
    word.Visible = true;
    word.Release();
    QCOMPARE(processor.Opened().size(), 1);
    QVERIFY(PackageParts(processor.Opened().value(0))[u"word/document.xml"_s].contains("second"));
    QCOMPARE(word.Documents().Count(), 0);
}

void tst_WordFiles::EachKindHasItsNameAndItsCount()
{
    const WordProcessor processor;
    const auto countOf = [](const QString& path, const QString& name) {
        const QString base = QFileInfo(path).fileName();
        return base.startsWith(name) && base.endsWith(u".docx"_s) ? base.mid(name.size()).chopped(5).toInt() : 0;
    };
    Word::Application word;
    word.Visible = true;
    for (const auto kind : {Word::DocumentKind::Document, Word::DocumentKind::FormLetters, Word::DocumentKind::Labels,
                            Word::DocumentKind::FormLetters})
        word.Documents().Add(kind);
    word.Release();
    const QStringList& opened = processor.Opened();
    QCOMPARE(opened.size(), 4);
    QVERIFY(countOf(opened[0], u"Document"_s) > 0);
    QVERIFY(countOf(opened[2], u"Labels"_s) > 0);
    QVERIFY(countOf(opened[1], u"Form Letters"_s) > 0);
    QCOMPARE(countOf(opened[3], u"Form Letters"_s), countOf(opened[1], u"Form Letters"_s) + 1);
}

void tst_WordFiles::FilesAreTheirOwnersAlone()
{
    const WordProcessor processor;
    Word::Application word;
    word.WordBasic().FileNewDefault();
    word.WordBasic().AppShow();
    word.Release();
    const QFileInfo file(processor.Opened().value(0));
    const auto others = QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
    QCOMPARE(file.permissions() & others, QFile::Permissions());
    QCOMPARE(QFileInfo(file.path()).permissions() & (others | QFile::ExeGroup | QFile::ExeOther), QFile::Permissions());
    QVERIFY(file.path().startsWith(Cache().path()));
}

void tst_WordFiles::WithoutAProgramTheErrorNamesTheFile()
{
    const WordProcessor processor(false);
    Word::Application word;
    word.Documents().Add();
    word.Documents().Add();
    word.Visible = true;
    try {
        word.Release();
        QFAIL("nothing was raised");
    } catch (const RunTimeError& error) {
        QCOMPARE(error.Number(), 429);
        QVERIFY2(error.Description().contains(QDir::toNativeSeparators(processor.Opened().value(0))),
                 qPrintable(error.Description()));
    }
    // The second document got its turn all the same, and both wait for the person.
    QCOMPARE(processor.Opened().size(), 2);
    QVERIFY(QFile::exists(processor.Opened()[0]) && QFile::exists(processor.Opened()[1]));
}

void tst_WordFiles::AFailedProcedureShowsHowFarItCame()
{
    const ScriptedUser user;
    const WordProcessor processor;
    try {
        Word::Application word;
        word.Documents().Add();
        word.Visible = true;
        word.Selection().TypeText(u"as far as here"_s);
        throw RunTimeError(424);
    } catch (const RunTimeError&) {
        QCOMPARE(processor.Opened().size(), 1);
    }
    QVERIFY(PackageParts(processor.Opened().value(0))[u"word/document.xml"_s].contains("as far as here"));
}

void tst_WordFiles::ACacheThatCannotBeWrittenIsReported()
{
    const WordProcessor processor;
    QDir().mkpath(QFileInfo(Cache().path()).path());
    QFile inTheWay(Cache().path());
    QVERIFY(inTheWay.open(QIODevice::WriteOnly));
    Word::Application word;
    word.Documents().Add();
    word.Visible = true;
    QCOMPARE(ErrorOf([&] { word.Release(); }), 75);
    QVERIFY(inTheWay.remove());
    QCOMPARE(processor.Opened(), QStringList());
}

void tst_WordFiles::WhatIsOlderThanAWeekGoesAtTheStart()
{
    QVERIFY(Cache().mkpath(u"then"_s));
    QFile file(Cache().filePath(u"then/Document1.docx"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.close();
    const QDateTime now = QDateTime::currentDateTime();
    for (const int days : {6, 8}) {
        Clock::SetSource([&] { return now.addDays(days); });
        Word::RemoveOldDocuments();
        QCOMPARE(Cache().exists(u"then"_s), days == 6);
    }
    Clock::SetSource({});
}

void tst_WordFiles::ABadStepIsRefused()
{
    using Word::Application;
    using Word::Document;
    const std::pair<int, std::function<void(Application&, Document&)>> steps[]{
        {4608, [](Application&, Document& document) { static_cast<void>(document.Range(3, 0)); }},
        {4608, [](Application&, Document& document) { static_cast<void>(document.Range(0, 6)); }},
        {4605, [](Application&, Document& document) { document.MailMerge().Execute(); }},
        {53, [](Application&,
                Document& document) { document.MailMerge().OpenDataSource(u"/nowhere/MailMergeSource.txt"_s); }},
        {5843,
         [](Application& word, Document&) {
             word.MailingLabel().CreateNewDocument({u"Avery Letter Size"_s, {}, {}, {}, 4});
         }},
        {5843,
         [](Application& word, Document&) {
             word.MailingLabel().CreateNewDocument({u"Avery A4"_s, u"5160"_s, {}, {}, 4});
         }},
        {5941,
         [](Application& word, Document&) { // a layout nobody kept
             word.MailingLabel().CreateNewDocument({u"Avery Letter Size"_s, u"5160"_s, {}, u"none"_s, 4});
         }},
        {5941, [](Application&, Document& document) { static_cast<void>(document.Sections(1).Headers(2)); }},
        {4248,
         [](Application& word, Document& document) {
             document.Close();
             word.Selection().TypeText(u"lost"_s);
         }},
    };
    for (const auto& [number, step] : steps) {
        Application word;
        Document& document = word.Documents().Add();
        word.Selection().TypeText(u"text"_s);
        QCOMPARE(ErrorOf([&] { step(word, document); }), number);
    }
}

void tst_WordFiles::ASourceIsReadAsItWasWritten_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QStringList>("values"); // of the column "B" in each record
    QTest::newRow("trailing tabs") << QByteArray("A\tB\t\r\n1\t2\t\r\n3\t4\t\r\n") << QStringList{u"2"_s, u"4"_s};
    QTest::newRow("no tab at the end") << QByteArray("A\tB\r\n1\t2\r\n") << QStringList{u"2"_s};
    QTest::newRow("quotes stay") << QByteArray("A\tB\t\r\n1\t\"Al\" \t\r\n") << QStringList{u"\"Al\" "_s};
    QTest::newRow("the code page") << QByteArray("A\tb\t\r\n1\t\x80\xE9\x92\t\r\n") << QStringList{u"€é’"_s};
    QTest::newRow("no record") << QByteArray("A\tB\t\r\n") << QStringList{};
    QTest::newRow("empty lines at the end") << QByteArray("A\tB\t\r\n1\t2\t\r\n\r\n\r\n") << QStringList{u"2"_s};
    QTest::newRow("nothing at all") << QByteArray() << QStringList{};
}

void tst_WordFiles::ASourceIsReadAsItWasWritten()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QStringList, values);
    const Word::DataSource source = Word::DataSource::FromBytes(bytes);
    QStringList read;
    for (qsizetype i = 0; i < source.RecordCount(); ++i)
        read << source.Value(i, source.ColumnOf(u"B"_s));
    QCOMPARE(read, values);
    QCOMPARE(source.ColumnOf(u"C"_s), -1);
}

QTEST_MAIN(tst_WordFiles)
#include "tst_WordFiles.moc"
