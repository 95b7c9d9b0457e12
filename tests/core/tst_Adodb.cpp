#include "core/adodb/Connection.h"
#include "core/adodb/Recordset.h"
#include "core/Clock.h"

#include "ErrorOf.h"
#include "support/FreshDatabase.h"

#include <QFile>
#include <QFileInfo>
#include <QTest>

using namespace Qt::StringLiterals;

class tst_Adodb : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void OpeningAFileThatWontOpenChangesNothing_data();
    void OpeningAFileThatWontOpenChangesNothing();
    void FaultsBearTheNumbersOfTheirKind_data();
    void FaultsBearTheNumbersOfTheirKind();
    void OnlyTheProgramsOwnStatementsPass();
    void EveryTextComesBackAsItWasWritten();
    void ANewRowsNumberIsNeverGivenAgain();
    void RowsCanBeWalkedFoundAndChanged();
    void FieldsAreFoundInWhateverOrderTheyAreAskedFor();
    void ColumnsKeepTheirKinds();
    void AReadingLetsOwnWritesThroughAndFreesTheFile();
    void AFileThatVanishedTakesNoWritesAndIsUsableWhenItIsBack();
    void StatementsThatShareCommitsKeepAllBeforeAFailure();

private:
    static QByteArray Content(const QString& file);
};

QByteArray tst_Adodb::Content(const QString& file)
{
    QFile opened(file);
    return opened.open(QIODevice::ReadOnly) ? opened.readAll() : QByteArray();
}

void tst_Adodb::OpeningAFileThatWontOpenChangesNothing_data()
{
    QTest::addColumn<QString>("fault");
    QTest::addColumn<int>("number");
    QTest::newRow("missing") << u"missing"_s << ErrorNumber::EngineFailure;
    QTest::newRow("another key") << u"key"_s << ErrorNumber::EnginePassword;
    QTest::newRow("no database") << u"text"_s << ErrorNumber::EnginePassword;
    QTest::newRow("damaged") << u"damaged"_s << ErrorNumber::EnginePassword;
    QTest::newRow("empty") << u"empty"_s << ErrorNumber::EngineFailure;
    QTest::newRow("a folder") << u"folder"_s << ErrorNumber::EngineFailure;
}

void tst_Adodb::OpeningAFileThatWontOpenChangesNothing()
{
    QFETCH(QString, fault);
    QFETCH(int, number);
    const FreshDatabase fresh;
    gConn.Close();
    const QString path = fresh.DatabaseFile();
    QString key = u"kostrevy48"_s;
    if (fault == "missing"_L1 || fault == "folder"_L1) {
        QVERIFY(QFile::remove(path));
        if (fault == "folder"_L1)
            QVERIFY(QDir().mkpath(path));
    } else if (fault == "key"_L1) {
        key = u"another"_s;
    } else {
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadWrite));
        if (fault == "text"_L1)
            file.write(QByteArray(4096, 'x'));
        else if (fault == "empty"_L1)
            file.resize(0);
        else
            file.write("damage");
    }
    const QByteArray before = Content(path);
    QCOMPARE(ErrorOf([&] { gConn.Open(u"Dbq="_s + path + u";Password="_s + key); }), number);
    QCOMPARE(gConn.State(), ObjectState::Closed);
    QCOMPARE(QFileInfo::exists(path), fault != "missing"_L1);
    QCOMPARE(Content(path), before);
}

void tst_Adodb::FaultsBearTheNumbersOfTheirKind_data()
{
    QTest::addColumn<QString>("statement");
    QTest::addColumn<int>("number");
    QTest::newRow("an apostrophe ends the literal")
        << u"Insert into SubCategories (Description,ParentID) Values ('O'Hara',1)"_s << ErrorNumber::EngineSyntax;
    QTest::newRow("too many values") << u"Insert into Categories (Description) Values ('a','b')"_s
                                     << ErrorNumber::EngineSyntax;
    QTest::newRow("unknown column") << u"Update Categories set Nme='x'"_s << ErrorNumber::EngineUnknownColumn;
    QTest::newRow("unknown column of an insert")
        << u"Insert into Categories (Nme) Values ('x')"_s << ErrorNumber::EngineUnknownColumn;
    QTest::newRow("unknown table") << u"Delete from Boats"_s << ErrorNumber::EngineUnknownTable;
    QTest::newRow("text in a number column")
        << u"Insert into Contacts (MailState) Values ('x')"_s << ErrorNumber::EngineTypeMismatch;
    QTest::newRow("too wide") << u"Insert into Contacts (SubCategoryID) Values (40000)"_s
                              << ErrorNumber::EngineTypeMismatch;
    QTest::newRow("no date") << u"Select ID from Alerts Where cdate(AlertDate)='1/5/2026'"_s
                             << ErrorNumber::EngineTypeMismatch;
}

void tst_Adodb::FaultsBearTheNumbersOfTheirKind()
{
    QFETCH(QString, statement);
    const FreshDatabase fresh;
    gConn.Execute(u"Insert into Alerts (ContactID,AlertDate) Values (1,'some day')"_s);
    const QStringList before = FreshDatabase::WholeFile();
    Recordset rows;
    const bool selects = statement.startsWith("Select"_L1);
    QTEST(ErrorOf([&] { selects ? rows.Open(statement, gConn) : gConn.Execute(statement); }), "number");
    QCOMPARE(FreshDatabase::WholeFile(), before);
}

void tst_Adodb::OnlyTheProgramsOwnStatementsPass()
{
    const FreshDatabase fresh;
    for (const QString& statement :
         {u"Create table Boats (ID integer)"_s, u"Drop table Contacts"_s, u"Attach 'x' as y"_s, u"Pragma rekey='x'"_s,
          u"Begin"_s, u"Delete from sqlite_sequence"_s, u"Update Contacts set Notes=load_extension('x')"_s,
          QString()}) {
        QVERIFY2(ErrorOf([&] { gConn.Execute(statement); }) != 0, qPrintable(statement));
        QCOMPARE(gConn.State(), ObjectState::Open);
    }
}

void tst_Adodb::EveryTextComesBackAsItWasWritten()
{
    const FreshDatabase fresh;
    const QStringList texts{
        QString(u"a"_s + QChar(u'\0') + u"b"_s),                    // a NUL
        QString(u"a"_s + QChar(0xD83D) + u"b"_s),                   // an unpaired high surrogate
        QString(u"a"_s + QChar(0xDC00)),                            // an unpaired low surrogate at the end
        QString(QString(QChar(0xDC00)) + QChar(0xD800)),            // surrogates the wrong way round
        QString(u"\U0001F600"_s + QChar(0xD800) + u"\U0001F600"_s), // emoji beside an unpaired surrogate
        QString(u"한국"_s),                                         // hangul, whose bytes look alike
        QString(u"\uFEFF\uFEFFa"_s + QChar(0xD800) + u"\uFEFF"_s),  // byte order marks first
    };
    for (const QString& text : texts)
        gConn.Execute(u"Insert into Categories (Description) Values ('"_s + FixQuotes(text) + u"')"_s);
    QCOMPARE(FreshDatabase::Rows(u"Select Description from Categories"_s), texts);
}

void tst_Adodb::ANewRowsNumberIsNeverGivenAgain()
{
    const FreshDatabase fresh;
    gConn.Execute(u"Insert into Categories (Description) Values ('a')"_s);
    gConn.Execute(u"Insert into Categories (Description) Values ('b')"_s);
    gConn.Execute(u"Delete * from Categories"_s);
    gConn.Execute(u"Insert into Categories (Description) Values ('c')"_s);
    QCOMPARE(FreshDatabase::Rows(u"Select ID from Categories"_s), QStringList{u"3"_s});
}

void tst_Adodb::RowsCanBeWalkedFoundAndChanged()
{
    const FreshDatabase fresh;
    for (const auto name : {"a"_L1, "b"_L1, "c"_L1})
        gConn.Execute(u"Insert into FormLetters (FormName,FormText) Values ('"_s + name + u"','')"_s);
    Recordset rows;
    rows.CursorLocation = CursorLocation::UseClient;
    rows.LockType = LockType::Pessimistic;
    rows.Open(u"Select * from FormLetters"_s, gConn);
    QCOMPARE(rows.RecordCount(), 3);
    QCOMPARE(rows.FieldCount(), 3);
    rows.Find(u"ID=2"_s);
    QCOMPARE(rows.Fields("formname"_L1).Get().Text(), u"b"_s);
    rows.Fields("FormText"_L1).Set(u"it's"_s);
    rows.Update();
    QCOMPARE(rows.Fields("FormText"_L1).Get().Text(), u"it's"_s);
    QCOMPARE(FreshDatabase::Rows(u"Select FormText from FormLetters Where ID=2"_s), QStringList{u"it's"_s});
    rows.Delete();
    QCOMPARE(ErrorOf([&] { (void)rows.Fields(0).Get(); }), ErrorNumber::NoCurrentRecord);
    rows.MoveNext();
    QCOMPARE(rows.Fields("FormName"_L1).Get().Text(), u"c"_s);
    rows.MoveNext();
    QVERIFY(rows.Eof());
    QCOMPARE(ErrorOf([&] { rows.MoveNext(); }), ErrorNumber::NoCurrentRecord);
    rows.Requery();
    QCOMPARE(rows.RecordCount(), 2);
    QCOMPARE(ErrorOf([&] { (void)rows.Fields("Nme"_L1); }), ErrorNumber::ItemNotFound);
    rows.Close();
    QCOMPARE(ErrorOf([&] { rows.Close(); }), ErrorNumber::ObjectClosed);
}

void tst_Adodb::FieldsAreFoundInWhateverOrderTheyAreAskedFor()
{
    const FreshDatabase fresh;
    gConn.Execute(u"Insert into FormLetters (FormName,FormText) Values ('name','text')"_s);
    for (const QString& order : {u"ID FormName FormText"_s, u"FORMTEXT id formname"_s, u"FormText FormText ID"_s}) {
        Recordset rows;
        rows.Open(u"Select * from FormLetters"_s, gConn);
        for (const QString& name : order.split(u' ')) {
            const QByteArray letters = name.toLatin1();
            const QString expected = name.startsWith(u"id"_s, Qt::CaseInsensitive) ? u"1"_s : name.mid(4).toLower();
            QCOMPARE(rows.Fields(QLatin1StringView(letters)).Get().Text(), expected);
            QCOMPARE(rows.Fields(name).Get().Text(), expected);
        }
    }
}

void tst_Adodb::AReadingLetsOwnWritesThroughAndFreesTheFile()
{
    const FreshDatabase fresh;
    Connection other;
    other.Open(u"Dbq="_s + fresh.DatabaseFile() + u";Password=kostrevy48"_s);
    {
        const Connection::Reading reading(gConn);
        gConn.Execute(u"Insert into Categories (Description) Values ('own')"_s);
        QCOMPARE(FreshDatabase::Rows(u"Select Description from Categories"_s), QStringList{u"own"_s});
    }
    other.Execute(u"Insert into Categories (Description) Values ('other')"_s);
    QCOMPARE(FreshDatabase::Rows(u"Select Description from Categories"_s), (QStringList{u"own"_s, u"other"_s}));
}

void tst_Adodb::ColumnsKeepTheirKinds()
{
    const FreshDatabase fresh;
    gConn.Execute(u"Insert into PropDetail (ContactID,State,SqFt,Rooms,Baths,AskingPrice,ListingDate) "
                  "Values (1,'5','12',7,2.5,250000.5,'01/05')"_s);
    QCOMPARE(FreshDatabase::Rows(u"Select State,SqFt,Rooms,Baths,AskingPrice,SoldPrice,ListingDate from PropDetail"_s),
             QStringList{u"5|12|7|2.5|250000.5|NULL|01/05"_s});
    Recordset rows;
    rows.Open(u"Select * from PropDetail"_s, gConn);
    QCOMPARE(rows.Fields("AskingPrice"_L1).Get().ToCurrency().Scaled(), 2'500'005'000);
    QCOMPARE(ErrorOf([&] { (void)rows.Fields("SoldPrice"_L1).Get().ToCurrency(); }), ErrorNumber::InvalidUseOfNull);
    QCOMPARE(rows.Fields("SoldPrice"_L1).Get().CurrencyOrZero(), Currency());
}

void tst_Adodb::AFileThatVanishedTakesNoWritesAndIsUsableWhenItIsBack()
{
    const FreshDatabase fresh;
    gConn.Execute(u"Insert into Categories (Description) Values ('a')"_s);
    gConn.Close();
    gConn.Open(u"Dbq="_s + fresh.DatabaseFile() + u";Password=kostrevy48"_s);
    QVERIFY(QFile::rename(fresh.DatabaseFile(), fresh.DatabaseFile() + u".away"_s));
    QCOMPARE(ErrorOf([] { gConn.Execute(u"Insert into Categories (Description) Values ('b')"_s); }),
             ErrorNumber::EngineFailure);
    QVERIFY(QFile::rename(fresh.DatabaseFile() + u".away"_s, fresh.DatabaseFile()));
    gConn.Execute(u"Insert into Categories (Description) Values ('c')"_s);
    QCOMPARE(FreshDatabase::Rows(u"Select Description from Categories"_s), (QStringList{u"a"_s, u"c"_s}));
}

void tst_Adodb::StatementsThatShareCommitsKeepAllBeforeAFailure()
{
    const FreshDatabase fresh;
    const auto add = [](const QString& name) {
        gConn.Execute(u"Insert into Categories (Description) Values ('"_s + name + u"')"_s);
    };
    // What another program sees: only what is committed.
    const auto committed = [&fresh] {
        Connection other;
        other.Open(u"Dbq="_s + fresh.DatabaseFile() + u";Password=kostrevy48"_s);
        Recordset rows;
        rows.CursorLocation = CursorLocation::UseClient;
        rows.Open(u"Select * from Categories"_s, other);
        return rows.RecordCount();
    };
    gConn.ShareCommits([&] {
        add(u"a"_s);
        QCOMPARE(FreshDatabase::Rows(u"Select Description from Categories"_s), QStringList{u"a"_s});
        QCOMPARE(committed(), 0);
        QCOMPARE(ErrorOf([&] { add(u"it's"_s); }), ErrorNumber::EngineSyntax);
        QCOMPARE(ErrorOf([] { gConn.Execute(u"Insert into Alerts (ContactID) Values ('x')"_s); }),
                 ErrorNumber::EngineTypeMismatch);
        QCOMPARE(committed(), 1);
        add(u"b"_s);
    });
    QCOMPARE(committed(), 2);
    QCOMPARE(ErrorOf([&] {
                 gConn.ShareCommits([&] {
                     add(u"c"_s);
                     throw RunTimeError(ErrorNumber::KeyAlreadyThere);
                 });
             }),
             ErrorNumber::KeyAlreadyThere);
    QCOMPARE(committed(), 3);
    add(u"d"_s);
    QCOMPARE(committed(), 4);
    gConn.ShareCommits([&] {
        for (int i = 0; i < 1500; ++i)
            add(QString::number(i));
        QCOMPARE(committed(), 1004);
    });
    QCOMPARE(committed(), 1504);
}

QTEST_APPLESS_MAIN(tst_Adodb)
#include "tst_Adodb.moc"
