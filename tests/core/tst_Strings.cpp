#include "core/Strings.h"

#include "ErrorOf.h"

#include <QTest>

using namespace Qt::StringLiterals;

class tst_Strings : public QObject
{
    Q_OBJECT

private slots:
    void InStrCountsFromOne()
    {
        // With regard to the case of letters, and without.
        using Places = std::pair<qsizetype, qsizetype>;
        const auto places = [](int start, const QString& text, const QString& find) {
            return Places(InStr(start, text, find), InStr(start, text, find, Qt::CaseInsensitive));
        };
        QCOMPARE(places(1, u"Main Street"_s, u"Street"_s), Places(6, 6));
        QCOMPARE(places(1, u"Main Street"_s, u"sTREET"_s), Places(0, 6));
        QCOMPARE(InStr(u"Main Street"_s, u"Street"_s), 6);
        QCOMPARE(places(3, u"abab"_s, u"ab"_s), Places(3, 3));
        QCOMPARE(places(1, QString(), QString()), Places(0, 0));
        QCOMPARE(places(2, u"ab"_s, QString()), Places(2, 2));
        QCOMPARE(places(3, u"ab"_s, QString()), Places(0, 0));
        // Accents distinguish; letters that grow, pairs and lone surrogates shift nothing behind them.
        QCOMPARE(places(1, u"Rene René"_s, u"RENÉ"_s), Places(0, 6));
        QCOMPARE(places(1, u"ßßİX"_s, u"x"_s), Places(0, 4));
        QCOMPARE(places(1, u"\U0001F600é"_s, u"É"_s), Places(0, 3));
        QCOMPARE(places(1, QString(QChar(0xDE00)) + u"a"_s, u"A"_s), Places(0, 2));
        QCOMPARE(places(1, QString(10'000, u'a') + u"Needle"_s, u"nEEDLE"_s), Places(0, 10'001));
    }

    void CutsCountFromOneAndTrimTakesBlanksOnly()
    {
        QCOMPARE(Mid(u"abc"_s, 2, std::numeric_limits<qsizetype>::max()), u"bc"_s);
        QCOMPARE(Mid(u"abc"_s, std::numeric_limits<qsizetype>::max(), 1), QString());
        QCOMPARE(Left(u"abc"_s, 9) + Right(u"abc"_s, 2), u"abcbc"_s);
        QCOMPARE(Trim(u" \u00A0\ta\t\r\n "_s), u"\u00A0\ta\t\r\n"_s);
    }

    void NegativePositionsAreRefused()
    {
        const QString text = u"abc"_s;
        const auto refused = [](auto&& call) { return ErrorOf(call) == ErrorNumber::InvalidProcedureCall; };
        QVERIFY(refused([&] { return Left(text, -1); }));
        QVERIFY(refused([&] { return Mid(text, 0); }));
        QVERIFY(refused([&] { return Mid(text, 1, -1); }));
        QVERIFY(refused([&] { return InStr(0, text, u"a"); }));
    }

    void UCaseKeepsTheLength()
    {
        QCOMPARE(UCase(u"rené ÿ"_s), u"RENÉ Ÿ"_s);
        QCOMPARE(UCase(u"straße ﬁ"_s), u"STRAßE ﬁ"_s);
        QCOMPARE(UCase(u"\U00010428a\U0001F600"_s), u"\U00010400A\U0001F600"_s);
        const QString surrogates = QString(QChar(0xDE00)) + QChar(0xD83D);
        QCOMPARE(UCase(surrogates + QChar() + u'b'), surrogates + QChar() + u'B');
    }

    void TheSameNameHasOneKey()
    {
        QCOMPARE(NameKey(u" buyers "_s), NameKey(u"BUYERS"_s));
        QVERIFY(NameKey(u"buyers"_s) != NameKey(u"buyers\t"_s));
    }
};

QTEST_APPLESS_MAIN(tst_Strings)
#include "tst_Strings.moc"
