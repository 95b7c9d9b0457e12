#include "letters/Study.h"
#include "letters/WordProcessor.h"
#include "support/WordReader.h"

#include "letters/LetterWalk.h"
#include "letters/MailMerge.h"
#include "support/Columns.h"

#include <QFile>

using namespace Qt::StringLiterals;

using Ranges = std::vector<std::pair<qsizetype, qsizetype>>;

class tst_MailMerge : public QObject
{
    Q_OBJECT

private:
    /// The file that the merge left behind.
    static QByteArray Source()
    {
        QFile file(AppFile(u"\\Data\\MailMergeSource.txt"_s));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("none");
    }
    /// The text of a letter's pieces, the fields in brackets.
    static QString Joined(const LetterWalk& walk)
    {
        QString text;
        for (const LetterPiece& piece : walk.Pieces)
            text += piece.IsField ? u'[' + piece.Text + u']' : piece.Text;
        return text;
    }

    std::unique_ptr<WordProcessor> m_word;

private Q_SLOTS:
    void init() { m_word = std::make_unique<WordProcessor>(); }
    void cleanup() { m_word.reset(); }

    void TheWalkFindsTheMarkers_data()
    {
        AddColumns<QString, QString, QString, QString>({"letter", "joined", "select", "header"});
        QTest::addRow("none") << u"Come in."_s << u"Come in."_s << QString() << QString();
        QTest::addRow("two") << u"A !<City>! , !<Zip>!"_s << u"A [City] , [Zip]"_s << u"City,Zip"_s << u"City\tZip"_s;
        QTest::addRow("the second one twice")
            << u"!<MI>! !<City>! !<City>! "_s << u"[MI] [City] [City] "_s << u"MI,City"_s << u"MI\tCity"_s;
        QTest::addRow("the first one twice")
            << u"!<City>! !<MI>! !<City>! !<City>! "_s << u"[City] [MI] [City] [City] "_s << u"City,MI,City"_s
            << u"City\tMI\tCity"_s;
        QTest::addRow("the start of a listed one")
            << u"!<MI>!!<Zip4>!!<Zip>!"_s << u"[MI][Zip4][Zip]"_s << u"MI,Zip4"_s << u"MI\tZip4"_s;
        QTest::addRow("behind its own start")
            << u"!<MI>!!<Zip>!!<Zip4>!"_s << u"[MI][Zip][Zip4]"_s << u"MI,Zip,Zip4"_s << u"MI\tZip\tZip4"_s;
        QTest::addRow("a closing mark in front") << u"a>!b!<MI>!"_s << u"a>!b[MI]"_s << u"MI"_s << u"MI"_s;
        QTest::addRow("an opening inside") << u"!<M!<MI>!"_s << u"[M!<MI]"_s << u"M!<MI"_s << u"M!<MI"_s;
        QTest::addRow("no name") << u"a!<>!b"_s << u"a[]b"_s << QString() << QString();
    }

    void TheWalkFindsTheMarkers()
    {
        QFETCH(QString, letter);
        const LetterWalk walk = WalkLetter(letter);
        QTEST(Joined(walk), "joined");
        QTEST(walk.Select, "select");
        QTEST(walk.Header, "header");
    }

    void BoldRunsFromOneCharacterLateToOneCharacterLate()
    {
        QCOMPARE(BoldRanges(u"Hi"_s), Ranges{});
        QCOMPARE(BoldRanges(u"<b>Hi</b>"_s), (Ranges{{1, 6}}));
        QCOMPARE(BoldRanges(u"a<b>b</b>c<b></b>"_s), (Ranges{{2, 6}, {11, 14}}));
        QCOMPARE(BoldRanges(u"<b>a<b>b</b>c</b>"_s), (Ranges{{1, 9}}));    // one inside another
        QCOMPARE(BoldRanges(u"<b>a</b><b>b"_s), (Ranges{{1, 5}, {9, 0}})); // never closed
    }

    void TheSourceHoldsTheSelectedContactsWithTheirDefaultProperty_data()
    {
        QTest::addColumn<QString>("letter");
        QTest::addColumn<QByteArray>("source");
        QTest::addRow("texts and lists") << u"!<FirstName>!!<MailState>!!<Addr1>!!<State>!!<PropType>!!<RentalBasis>!"_s
                                         << QByteArray("FirstName\tMailState\tAddr1\tState\tPropType\tRentalBasis\t\r\n"
                                                       "Ann\tNV\t1 Elm St\tCA\tTownhome\tMonthly\t\r\n"
                                                       "Bob\t\t\t\t\t\t\r\n"
                                                       "Cy\t\t\t\t\t\t\r\n");
        QTest::addRow("prices") << u"!<LastName>!!<AskingPrice>!!<SoldPrice>!!<RentalAmount>!!<Baths>!!<ListingDate>!"_s
                                << QByteArray("LastName\tAskingPrice\tSoldPrice\tRentalAmount\tBaths\tListingDate\t\r\n"
                                              "Lee\t$250,000\t\t1200\t2.5\t05/12/2026\t\r\n"
                                              "Ray\t\t\t\t\t\t\r\n"
                                              "Day\t\t\t\t\t\t\r\n");
        QTest::addRow("the first field twice") << u"!<MailState>!!<MI>!!<MailState>!"_s
                                               << QByteArray("MailState\tMI\tMailState\t\r\n"
                                                             "NV\t\tNV\t\r\n\tM\t\t\r\n\t\t\t\r\n");
        QTest::addRow("in the person's own spelling") << u"!<mailstate>!!<ASKINGPRICE>!"_s
                                                      << QByteArray("mailstate\tASKINGPRICE\t\r\n"
                                                                    "NV\t$250,000\t\r\n\t\t\r\n\t\t\r\n");
    }

    void TheSourceHoldsTheSelectedContactsWithTheirDefaultProperty()
    {
        QFETCH(QString, letter);
        Study study;
        Study::Select({3, 1, 2});
        static_cast<void>(study.Database.TakeStatements());
        MailMerge(letter);
        QVERIFY(study.Database.TakeStatements().first().endsWith(
            " FROM [PropDetail] RIGHT JOIN [Contacts] ON PropDetail.ContactID = Contacts.ID and "
            "Contacts.DefaultProperty = "
            "PropDetail.ID Where Contacts.ID in (3,1,2) "_L1));
        QTEST(Source(), "source");
        QCOMPARE(m_word->Opened().size(), 1);
    }

    void WhatHasNoPlaceInTheFileIsWrittenAsItIs()
    {
        Study study;
        FreshDatabase::Execute(
            u"Update Contacts set FirstName='Dvořák \U0001F600', MI='a\tb', Company='c\r\nd' Where ID=2"_s);
        Study::Select({2});
        MailMerge(u"!<FirstName>!!<MI>!!<Company>!"_s);
        QCOMPARE(Source(), QByteArray("FirstName\tMI\tCompany\t\r\nDvor\xE1k ?\ta\tb\tc\r\nd\t\r\n"));
    }

    void TheLettersComeOutOfTheWordProcessor()
    {
        Study study;
        Study::AddLetter(u"Address"_s,
                         u"!<FormattedName>!\r\n!<MailAddr1>!\r\n!<MailAddr2>!\r\n\r\nDear <b>!<FirstName>!</b>, "
                         "your !<PropType>! in !<City>! for !<AskingPrice>!"_s);
        study.Page().LoadFormLetters();
        study.Forms().setCurrentRow(3);
        Study::Select({2, 1});
        const QStringList before = FreshDatabase::WholeFile();
        ClickOn(study.Main(), u"cmdbutton_7"_s);
        QCOMPARE(FreshDatabase::WholeFile(), before);
        study.Forms().setCurrentRow(2); // no marker: it goes as it is, with nobody selected too
        UnSelectCurContact();
        ClickOn(study.Main(), u"cmdbutton_7"_s);
        QVERIFY(!study.Person.HourGlassIsOn());

        QCOMPARE(m_word->Opened().size(), 2);
        QVERIFY(m_word->Opened()[0].contains("/Form Letters"_L1));
        for (const QString& document : m_word->Opened())
            QCOMPARE(PackageFaults(document), QStringList());
        const QList<QList<Page>> documents = RenderDocuments(m_word->Opened());
        QCOMPARE(documents.size(), 2);
        QCOMPARE(documents[0].size(), 2);
        QCOMPARE(documents[0][0].Lines, (QStringList{u"Ann Lee"_s, u"100 Oak St"_s, u"Apt 2"_s,
                                                     u"Dear <b>Ann</b>, your Townhome in Sparks for $250,000"_s}));
        QCOMPARE(documents[0][0].Bold, QStringList{u"b>Ann<"_s});
        // The second line of the address is empty, and goes.
        QCOMPARE(documents[0][1].Lines,
                 (QStringList{u"Bob M Ray"_s, u"7 Pine Rd"_s, u"Dear <b>Bob</b>, your in for"_s}));
        QCOMPARE(documents[1].size(), 1);
        QCOMPARE(documents[1][0].Lines, (QStringList{u"Come in."_s, u"<b>Now</b>"_s}));
        QCOMPARE(documents[1][0].Bold, QStringList());
    }

    void TheButtonTellsWhatIsMissing()
    {
        Study study;
        study.Person.Expect(u"Mail Merge Cancelled"_s,
                            u"You need to have some contacts selected to do a Mail Merge."_s);
        ClickOn(study.Main(), u"cmdbutton_7"_s);
        study.Letter().clear();
        study.Person.Expect(u"Mail Merge Cancelled"_s, u"I did not find any form Letters to generate."_s);
        ClickOn(study.Main(), u"cmdbutton_7"_s);
        QCOMPARE(study.Person.LastBox().Picture, Icon::Information);
        QVERIFY(!study.Person.HourGlassIsOn());
        for (const int index : {0, 5, 6, 9})
            study.Page().ProcessCmdButtons(index);
        QCOMPARE(m_word->Opened(), QStringList());
        QCOMPARE(Source(), QByteArray("none"));
    }

    void AFailureOpensNothing()
    {
        Study study;
        Study::Select({1});
        const QStringList before = FreshDatabase::WholeFile();
        for (const auto& [letter, number] : {
                 std::pair(u"Dear !<FirstName"_s, 5),
                 std::pair(u"<b>Dear !<FirstName>! "_s, 4608), // a bold mark never closed
                 std::pair(u"!<Shoes>! "_s, -2147217904),
                 std::pair(u"!<ID>! "_s, -2147217900), // a column of both tables
                 std::pair(u"!<FirstName>!!<>!"_s, -2147217900),
                 std::pair(u"!<FirstName; Delete from Contacts>! "_s, -2147217900),
             }) {
            study.Person.ExpectReport(u"frmMain MailMerge Error #%1"_s.arg(number));
            MailMerge(letter);
            study.Person.Done();
            QCOMPARE(m_word->Opened(), QStringList());
            QCOMPARE(FreshDatabase::WholeFile(), before);
        }
    }

    void WithoutAWordProcessorTheDocumentIsNamed()
    {
        m_word = std::make_unique<WordProcessor>(false);
        Study study;
        Study::Select({1});
        study.Person.ExpectReport(u"frmMain MailMerge Error #429"_s);
        MailMerge(u"!<FirstName>!"_s);
        QVERIFY(study.Person.LastBox().Text.contains(m_word->Opened().value(0)));
        study.Person.ExpectReport(u"frmMain CallWord Error #429"_s);
        CallWord(u"Come in."_s);
    }

    void WhatIsOnTheScreenIsMerged()
    {
        Study study;
        study.Press(2);
        study.Write(u"Not saved yet"_s);
        ClickOn(study.Main(), u"cmdbutton_7"_s);
        QVERIFY(PackageParts(m_word->Opened().value(0)).value(u"word/document.xml"_s).contains("Not saved yet"));
        QCOMPARE(study.Enabled(), u"34"_s);
    }

    void ABrokenRecordIsMergedAsItWasWritten_data()
    {
        QTest::addColumn<QString>("company");
        QTest::addColumn<QString>("letter");
        QTest::addColumn<QStringList>("lines"); // of each letter, joined
        const QString letter = u"[!<Company>!][!<LastName>!]"_s;
        QTest::addRow("tab") << u"a\tb"_s << letter << QStringList{u"[a][b]"_s};
        QTest::addRow("line break") << u"a\r\nb"_s << letter << QStringList{u"[a][]"_s, u"[b][Lee]"_s};
        QTest::addRow("name that starts another")
            << u"a"_s << u"!<Company>!!<Zip4>!!<Zip>!"_s
            << QStringList{u"a77Error! MergeField was not found in header record of data source."_s};
    }

    void ABrokenRecordIsMergedAsItWasWritten()
    {
        QFETCH(QString, company);
        QFETCH(QString, letter);
        QFETCH(QStringList, lines);
        Study study;
        FreshDatabase::Execute(u"Update Contacts set Company='"_s + company + u"' Where ID=1"_s);
        Study::Select({1});
        MailMerge(letter);
        QStringList letters;
        for (const Page& page : RenderDocuments(m_word->Opened()).value(0))
            letters << page.Lines.join(u' ');
        QCOMPARE(letters, lines);
    }

    void AFolderThatCannotBeWrittenToIsReported()
    {
        Study study;
        Study::Select({1});
        QVERIFY(QDir(study.Database.Folder()).mkdir(u"Data/MailMergeSource.txt"_s));
        study.Person.Expect(u"frmMain MailMerge Error #70"_s,
                            u"Permission denied: "_s + AppFile(u"\\Data\\MailMergeSource.txt"_s));
        MailMerge(u"!<FirstName>!"_s);
        QCOMPARE(m_word->Opened(), QStringList());
    }
};

QTEST_MAIN(tst_MailMerge)
#include "tst_MailMerge.moc"
