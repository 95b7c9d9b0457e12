#include "core/Convert.h"

#include "core/Dates.h"
#include "ErrorOf.h"
#include "HostileTexts.h"

#include <QTest>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

constexpr int overflow = ErrorNumber::Overflow;
constexpr int mismatch = ErrorNumber::TypeMismatch;
constexpr Long none = std::numeric_limits<Long>::min();

} // namespace

class tst_Convert : public QObject
{
    Q_OBJECT

private slots:
    void ATextIsReadAsAWholeNumber_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<Long>("value");
        const auto row = [](const char* text, Long value) {
            QTest::addRow("[%s]", text) << QString::fromUtf8(text) << value;
        };
        row("12 ", 12);
        row("  12", 12);
        row("$1,234.50", 1234);
        row("-$5", -5);
        row("$-5", -5);
        row("5$", 5);
        row("(5)", -5);
        row("($1,000)", -1000);
        row("5-", -5);
        row("5 +", 5);
        row(".5", 0);
        row("5.", 5);
        row("1,2,3", 123);
        row("1e3", 1000);
        row("1D+3", 1000);
        row("2500E-3", 2);
        row("3500E-3", 4);
        row("&H1F", 31);
        row("&o17", 15);
        row("0000000000000000000000000000000000000000000007", 7);
        for (const char* text : {"",
                                 " ",
                                 "abc",
                                 "12a",
                                 "1.2.3",
                                 ".",
                                 ",",
                                 "-",
                                 "$",
                                 "()",
                                 "(5",
                                 "5)",
                                 "-(5)",
                                 "(-5)",
                                 "-5-",
                                 "$$5",
                                 "$5$",
                                 "1 2",
                                 "1e",
                                 "1e+",
                                 "1.5,0",
                                 ",5",
                                 "&H",
                                 "&HG",
                                 "&H 1",
                                 "&17",
                                 "-&H1",
                                 "True",
                                 "1\t",
                                 "\xC2\xA0"
                                 "1",
                                 "\xEF\xBC\x95"})
            row(text, none);
    }

    void ATextIsReadAsAWholeNumber()
    {
        QFETCH(QString, text);
        QFETCH(Long, value);
        QCOMPARE(IsNumeric(text), value != none);
        if (value == none)
            QCOMPARE(ErrorOf([&] { return CLng(text); }), mismatch);
        else
            QCOMPARE(CLng(text), value);
    }

    void TheDigitsAreTheOnlyNumericCharacters()
    {
        for (char16_t code = 0; code < 0xFFFF; ++code)
            QCOMPARE(IsNumeric(QString(QChar(code))), code >= u'0' && code <= u'9');
    }

    void WhatDoesNotFitOverflows()
    {
        QCOMPARE(CInt(u"32767.4"), Integer(32767));
        QCOMPARE(CInt(u"-32768.5"), Integer(-32768));
        QCOMPARE(ErrorOf([] { return CInt(u"32767.5"); }), overflow);
        QCOMPARE(ErrorOf([] { return CInt(40000.0); }), overflow);
        QCOMPARE(CLng(u"-2147483648"), std::numeric_limits<Long>::min());
        QCOMPARE(ErrorOf([] { return CLng(u"2147483648"); }), overflow);
        QCOMPARE(ErrorOf([] { return CLng(u"99999999999"); }), overflow);
        QCOMPARE(ErrorOf([] { return CLng(u"99999999999999999999999"); }), overflow);
        QCOMPARE(ErrorOf([] { return CLng(std::numeric_limits<double>::quiet_NaN()); }), overflow);
        QCOMPARE(CCur(u"922337203685477.5807").Scaled(), std::numeric_limits<qint64>::max());
        QCOMPARE(CCur(u"-922,337,203,685,477.5807").Scaled(), -std::numeric_limits<qint64>::max());
        QCOMPARE(ErrorOf([] { return CCur(u"922337203685477.5808"); }), overflow);
        QCOMPARE(CSng(u"3.402823E38"), 3.402823E38F);
        QCOMPARE(ErrorOf([] { return CSng(u"3.5E38"); }), overflow);
        QCOMPARE(ErrorOf([] { return CDbl(u"1E309"); }), overflow);
    }

    void WholeNumbersRoundHalfToEven_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("whole");
        QTest::addRow("0.5") << 0.5 << u"0.5"_s << 0;
        QTest::addRow("1.5") << 1.5 << u"1.5"_s << 2;
        QTest::addRow("2.5") << 2.5 << u"2.5"_s << 2;
        QTest::addRow("3.5") << 3.5 << u"3.5"_s << 4;
        QTest::addRow("-2.5") << -2.5 << u"-2.5"_s << -2;
        QTest::addRow("2.51") << 2.51 << u"2.51"_s << 3;
        QTest::addRow("1500.5") << 1500.5 << u"1500.5"_s << 1500;
        QTest::addRow("1501.5") << 1501.5 << u"1501.5"_s << 1502;
        QTest::addRow("-0.5") << -0.5 << u"-0.5"_s << 0;
        QTest::addRow("999.5") << 999.5 << u"999.5"_s << 1000;
        QTest::addRow("0.05") << 0.05 << u"0.05"_s << 0;
        QTest::addRow("267.5 by its digits") << 2.675 * 100 << u"267.5"_s << 268;
    }

    void WholeNumbersRoundHalfToEven()
    {
        QFETCH(double, value);
        QFETCH(QString, text);
        QFETCH(int, whole);
        QCOMPARE(CLng(value), whole);
        QCOMPARE(CLng(text), whole);
        QCOMPARE(CInt(value), whole);
        QCOMPARE(CInt(text), whole);
    }

    void MoneyKeepsFourDecimalsHalfToEven_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("kept");
        QTest::addRow("thousands") << u"$250,001"_s << u"250001"_s;
        QTest::addRow("one decimal") << u"250000.50"_s << u"250000.5"_s;
        QTest::addRow("zero") << u"0.00"_s << u"0"_s;
        QTest::addRow("minus zero") << u"-0.00001"_s << u"0"_s;
        QTest::addRow("half down") << u"0.00005"_s << u"0"_s;
        QTest::addRow("half up") << u"0.00015"_s << u"0.0002"_s;
        QTest::addRow("more than half") << u"0.000050001"_s << u"0.0001"_s;
        QTest::addRow("carry") << u"9.99995"_s << u"10"_s;
        QTest::addRow("small") << u"0.0009"_s << u"0.0009"_s;
        QTest::addRow("negative") << u"(1.5)"_s << u"-1.5"_s;
    }

    void MoneyKeepsFourDecimalsHalfToEven()
    {
        QFETCH(QString, text);
        QFETCH(QString, kept);
        QCOMPARE(CStr(CCur(text)), kept);
        if (!text.startsWith(u'$') && !text.startsWith(u'('))
            QCOMPARE(CStr(CCur(text.toDouble())), kept);
    }

    void FloatingTextsAreExact()
    {
        QCOMPARE(CDbl(u"0.1"), 0.1);
        QCOMPARE(CDbl(u"-1,234.5e-2"), -12.345);
        QCOMPARE(CDbl(u"0.000000000000000000000000000001"), 1e-30);
        QCOMPARE(CDbl(u"1e-400"), 0.0);
        QCOMPARE(CSng(u"2.5"), 2.5F);
    }

    void ValReadsTheNumberAtTheStart_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("value");
        const auto row = [](const char* text, double value) {
            QTest::addRow("[%s]", text) << QString::fromUtf8(text) << value;
        };
        row("", 0);
        row("abc", 0);
        row("$5", 0);
        row("-", 0);
        row(".", 0);
        row("250,000.00", 250);
        row("24 and 57", 24);
        row(" 1615 198th St", 1615198);
        row("1 2\t3\n4", 1234);
        row("1\r2", 1);
        row("1e3", 1000);
        row("1 D - 2", 0.01);
        row("12e", 12);
        row("12 d+x", 12);
        row("1.2.3", 1.2);
        row("-.5", -0.5);
        row("+5", 5);
        row("12-5", 12);
        row("&H1F", 31);
        row("&o178", 15);
        row("&x", 0);
        row("1e999", std::numeric_limits<double>::max());
    }

    void ValReadsTheNumberAtTheStart()
    {
        QFETCH(QString, text);
        QTEST(Val(text), "value");
    }

    void NumbersHaveTheirDefaultText_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("expected");
        QTest::addRow("Integer") << CStr(Integer(-42)) << u"-42"_s;
        QTest::addRow("Long") << CStr(Long(17)) << u"17"_s;
        for (const auto& [value, expected] :
             std::initializer_list<std::pair<float, const char*>>{{1.5F, "1.5"},
                                                                  {0.1F, "0.1"},
                                                                  {9.0F, "9"},
                                                                  {-2.5F, "-2.5"},
                                                                  {0.0F, "0"},
                                                                  {-0.0F, "0"},
                                                                  {1234567.0F, "1234567"},
                                                                  {9999999.0F, "9999999"},
                                                                  {10000000.0F, "1E+07"},
                                                                  {12345678.0F, "1.234568E+07"},
                                                                  {1E15F, "1E+15"},
                                                                  {0.0001F, "0.0001"},
                                                                  {0.00001F, "1E-05"},
                                                                  {16777.216F, "16777.22"}})
            QTest::addRow("Single %s", expected) << CStr(value) << QString::fromLatin1(expected);
        for (const auto& [value, expected] :
             std::initializer_list<std::pair<double, const char*>>{{0.1, "0.1"},
                                                                   {0.1 + 0.2, "0.3"},
                                                                   {123456789012345.0, "123456789012345"},
                                                                   {1e15, "1E+15"},
                                                                   {-1e100, "-1E+100"},
                                                                   {1.0 / 3, "0.333333333333333"},
                                                                   {1000000.25, "1000000.25"}})
            QTest::addRow("Double %s", expected) << CStr(value) << QString::fromLatin1(expected);
        QTest::addRow("smallest money") << CStr(Currency::FromScaled(std::numeric_limits<qint64>::min()))
                                        << u"-922337203685477.5808"_s;
        QTest::addRow("Boolean") << CStr(true) + CStr(false) << u"TrueFalse"_s;
    }

    void NumbersHaveTheirDefaultText()
    {
        QFETCH(QString, text);
        QTEST(text, "expected");
    }

    void HostileTextDoesNoHarm()
    {
        for (const QString& text : HostileTexts()) {
            const bool number = IsNumeric(text);
            for (const int error : {ErrorOf([&] { return CInt(text); }), ErrorOf([&] { return CLng(text); }),
                                    ErrorOf([&] { return CSng(text); }), ErrorOf([&] { return CDbl(text); }),
                                    ErrorOf([&] { return CCur(text); })})
                QVERIFY(number ? error == 0 || error == overflow : error == mismatch);
            QVERIFY(std::isfinite(Val(text)));
        }
    }
};

QTEST_APPLESS_MAIN(tst_Convert)
#include "tst_Convert.moc"
