#include "core/Strings.h"

#include "ErrorOf.h"

#include <QTest>

using namespace Qt::StringLiterals;

class tst_Strings : public QObject
{
    Q_OBJECT

private slots:
    void InStrCountsFromOne_data()
    {
        QTest::addColumn<int>("start");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("find");
        QTest::addColumn<int>("position");
        QTest::addColumn<int>("withoutCase");
        QTest::addRow("found") << 1 << u"Main Street"_s << u"Street"_s << 6 << 6;
        QTest::addRow("letter case") << 1 << u"Main Street"_s << u"sTREET"_s << 0 << 6;
        QTest::addRow("from a later start") << 3 << u"abab"_s << u"ab"_s << 3 << 3;
        QTest::addRow("start behind it") << 2 << u"ab"_s << u"ab"_s << 0 << 0;
        QTest::addRow("empty text") << 1 << QString() << QString() << 0 << 0;
        QTest::addRow("empty find") << 2 << u"ab"_s << QString() << 2 << 2;
        QTest::addRow("start at the end") << 2 << u"ab"_s << u"b"_s << 2 << 2;
        QTest::addRow("start past the end") << 3 << u"ab"_s << QString() << 0 << 0;
        QTest::addRow("accents distinguish") << 1 << u"Rene René"_s << u"RENÉ"_s << 0 << 6;
        QTest::addRow("no accent asked") << 1 << u"René Rene"_s << u"RENE"_s << 0 << 6;
        QTest::addRow("behind letters that grow") << 1 << u"ßßİX"_s << u"x"_s << 0 << 4;
        QTest::addRow("behind a pair") << 1 << u"\U0001F600é"_s << u"É"_s << 0 << 3;
        QTest::addRow("long texts") << 1 << QString(10'000, u'a') + u"Needle"_s << u"nEEDLE"_s << 0 << 10'001;
        QTest::addRow("lone surrogate") << 1 << QString(QChar(0xDE00)) + u"a"_s << u"A"_s << 0 << 2;
    }

    void InStrCountsFromOne()
    {
        QFETCH(int, start);
        QFETCH(QString, text);
        QFETCH(QString, find);
        QFETCH(int, position);
        QFETCH(int, withoutCase);
        QCOMPARE(InStr(start, text, find), position);
        QCOMPARE(InStr(start, text, find, Qt::CaseInsensitive), withoutCase);
        if (start == 1)
            QCOMPARE(InStr(text, find), position);
    }

    void CutsTakeWhatIsThere()
    {
        QCOMPARE(Left(u"abc"_s, 2), u"ab"_s);
        QCOMPARE(Left(u"abc"_s, 9), u"abc"_s);
        QCOMPARE(Left(u"abc"_s, 0), QString());
        QCOMPARE(Right(u"abc"_s, 2), u"bc"_s);
        QCOMPARE(Right(u"abc"_s, 9), u"abc"_s);
        QCOMPARE(Right(u"abc"_s, 0), QString());
        QCOMPARE(Mid(u"abc"_s, 2), u"bc"_s);
        QCOMPARE(Mid(u"abc"_s, 4), QString());
        QCOMPARE(Mid(u"abc"_s, 2, 1), u"b"_s);
        QCOMPARE(Mid(u"abc"_s, 2, std::numeric_limits<qsizetype>::max()), u"bc"_s);
        QCOMPARE(Mid(u"abc"_s, std::numeric_limits<qsizetype>::max(), 1), QString());
    }

    void NegativePositionsAreRefused()
    {
        const QString text = u"abc"_s;
        const auto refused = [](auto&& call) { return ErrorOf(call) == ErrorNumber::InvalidProcedureCall; };
        QVERIFY(refused([&] { return Left(text, -1); }));
        QVERIFY(refused([&] { return Right(text, -1); }));
        QVERIFY(refused([&] { return Mid(text, 0); }));
        QVERIFY(refused([&] { return Mid(text, 1, -1); }));
        QVERIFY(refused([&] { return InStr(0, text, u"a"); }));
        QVERIFY(refused([&] { return InStr(0, u"", u""); }));
    }

    void TrimTakesBlanksOnly_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("trimmed");
        QTest::addRow("both ends") << u"  a b "_s << u"a b"_s;
        QTest::addRow("nothing but blanks") << u"   "_s << QString();
        QTest::addRow("tab stays") << u" \ta\t "_s << u"\ta\t"_s;
        QTest::addRow("line break stays") << u"a\r\n"_s << u"a\r\n"_s;
        QTest::addRow("hard blank stays") << u"\u00A0a"_s << u"\u00A0a"_s;
    }

    void TrimTakesBlanksOnly()
    {
        QFETCH(QString, text);
        QTEST(Trim(text), "trimmed");
    }

    void UCaseKeepsTheLength_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("upper");
        QTest::addRow("plain") << u"Main St. 5"_s << u"MAIN ST. 5"_s;
        QTest::addRow("accents") << u"rené ÿ"_s << u"RENÉ Ÿ"_s;
        QTest::addRow("sharp s") << u"straße"_s << u"STRAßE"_s;
        QTest::addRow("ligature") << u"ﬁ"_s << u"ﬁ"_s;
        QTest::addRow("pair") << u"\U00010428a\U0001F600"_s << u"\U00010400A\U0001F600"_s;
        QTest::addRow("lone surrogates") << QString(QChar(0xDE00)) + QChar(0xD83D)
                                         << QString(QChar(0xDE00)) + QChar(0xD83D);
        QTest::addRow("NUL") << u"a"_s + QChar() + u'b' << u"A"_s + QChar() + u'B';
    }

    void UCaseKeepsTheLength()
    {
        QFETCH(QString, text);
        QTEST(UCase(text), "upper");
    }

    void TheSameNameHasOneKey()
    {
        QCOMPARE(NameKey(u" buyers "_s), NameKey(u"BUYERS"_s));
        QVERIFY(NameKey(u"buyers"_s) != NameKey(u"buyers\t"_s));
    }
};

QTEST_APPLESS_MAIN(tst_Strings)
#include "tst_Strings.moc"
