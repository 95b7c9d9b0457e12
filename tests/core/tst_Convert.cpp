#include "core/Convert.h"

#include "core/Dates.h"
#include "ErrorOf.h"

#include <QTest>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

constexpr int overflow = ErrorNumber::Overflow;
constexpr int mismatch = ErrorNumber::TypeMismatch;

} // namespace

class tst_Convert : public QObject
{
    Q_OBJECT

private slots:
    void ATextIsReadAsAWholeNumber()
    {
        const QString good =
            u"12 =12|$1,234.50=1234|-$5=-5|$-5=-5|(5)=-5|5-=-5|5 +=5|.5=0|1,2,3=123|1e3=1000|1D+3=1000|"
            "3500E-3=4|&H1F=31|&o17=15|0000000000000000000000000000000000000000000007=7"_s;
        for (const QString& entry : good.split(u'|')) {
            QVERIFY2(IsNumeric(entry.section(u'=', 0, 0)), qPrintable(entry));
            QCOMPARE(CLng(entry.section(u'=', 0, 0)), entry.section(u'=', 1).toInt());
        }
        const QString bad = u"| |abc|12a|1.2.3|.|,|-|$|()|(5|5)|-(5)|(-5)|-5-|$$5|$5$|1 2|1e|1e+|1.5,0|,5|&H|&HG|&H 1|"
                            "&17|-&H1|True|1\t|\u00A01|\uFF15"_s;
        for (const QString& text : bad.split(u'|')) {
            QVERIFY2(!IsNumeric(text), qPrintable(text));
            QCOMPARE(ErrorOf([&] { return CLng(text); }), mismatch);
        }
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

    void WholeNumbersRoundHalfToEven()
    {
        for (const auto& [value, text, whole] :
             {std::tuple(0.5, u"0.5"_s, 0), std::tuple(1.5, u"1.5"_s, 2), std::tuple(-2.5, u"-2.5"_s, -2),
              std::tuple(2.51, u"2.51"_s, 3), std::tuple(1500.5, u"1500.5"_s, 1500), std::tuple(-0.5, u"-0.5"_s, 0),
              std::tuple(2.675 * 100, u"267.5"_s, 268)}) { // the last one by its digits
            QCOMPARE(CLng(value), whole);
            QCOMPARE(CLng(text), whole);
            QCOMPARE(CInt(value), whole);
            QCOMPARE(CInt(text), whole);
        }
    }

    void MoneyKeepsFourDecimalsHalfToEven()
    {
        QCOMPARE(CStr(CCur(u"$250,001"_s)), u"250001"_s);
        QCOMPARE(CStr(CCur(u"(1.5)"_s)), u"-1.5"_s);
        for (const auto& [text, kept] : {std::pair(u"250000.50"_s, u"250000.5"_s), std::pair(u"-0.00001"_s, u"0"_s),
                                         std::pair(u"0.00005"_s, u"0"_s), std::pair(u"0.00015"_s, u"0.0002"_s),
                                         std::pair(u"0.000050001"_s, u"0.0001"_s), std::pair(u"9.99995"_s, u"10"_s)}) {
            QCOMPARE(CStr(CCur(text)), kept);
            QCOMPARE(CStr(CCur(text.toDouble())), kept);
        }
    }

    void FloatingTextsAreExact()
    {
        QCOMPARE(CDbl(u"0.1"), 0.1);
        QCOMPARE(CDbl(u"-1,234.5e-2"), -12.345);
        QCOMPARE(CDbl(u"0.000000000000000000000000000001"), 1e-30);
        QCOMPARE(CDbl(u"1e-400"), 0.0);
        QCOMPARE(CSng(u"2.5"), 2.5F);
    }

    void ValReadsTheNumberAtTheStart()
    {
        const QString texts =
            u"=0|$5=0|.=0|250,000.00=250|24 and 57=24| 1615 198th St=1615198|1 2\t3\n4=1234|1\r2=1|"
            "1e3=1000|1 D - 2=0.01|12e=12|12 d+x=12|1.2.3=1.2|-.5=-0.5|12-5=12|&H1F=31|&o178=15|&x=0"_s;
        for (const QString& entry : texts.split(u'|'))
            QVERIFY2(Val(entry.section(u'=', 0, 0)) == entry.section(u'=', 1).toDouble(), qPrintable(entry));
        QCOMPARE(Val(u"1e999"), std::numeric_limits<double>::max());
    }

    void NumbersHaveTheirDefaultText()
    {
        QStringList singles;
        for (const float value : {1.5F, 0.1F, -2.5F, -0.0F, 9999999.0F, 10000000.0F, 12345678.0F, 0.0001F, 0.00001F})
            singles << CStr(value);
        QCOMPARE(singles.join(u' '), u"1.5 0.1 -2.5 0 9999999 1E+07 1.234568E+07 0.0001 1E-05"_s);
        QStringList doubles;
        for (const double value : {0.1 + 0.2, 123456789012345.0, 1e15, -1e100, 1.0 / 3, 1000000.25})
            doubles << CStr(value);
        QCOMPARE(doubles.join(u' '), u"0.3 123456789012345 1E+15 -1E+100 0.333333333333333 1000000.25"_s);
        QCOMPARE(CStr(Integer(-42)) + CStr(Long(17)), u"-4217"_s);
        QCOMPARE(CStr(Currency::FromScaled(std::numeric_limits<qint64>::min())), u"-922337203685477.5808"_s);
        QCOMPARE(CStr(true) + CStr(false), u"TrueFalse"_s);
    }
};

QTEST_APPLESS_MAIN(tst_Convert)
#include "tst_Convert.moc"
