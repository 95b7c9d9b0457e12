#include "core/Format.h"

#include "core/Convert.h"
#include "core/Dates.h"
#include "support/Columns.h"

#include <QTest>
#include <array>

using namespace Qt::StringLiterals;

class tst_Format : public QObject
{
    Q_OBJECT

private slots:
    void MoneyMasks_data()
    {
        QTest::addColumn<QString>("number");
        QTest::addColumn<QStringList>("texts");
        QTest::addRow("0") << u"0"_s << QStringList{u"$.00"_s, u"$0.00"_s, u"$"_s, u"$0"_s};
        QTest::addRow("0.005") << u"0.005"_s << QStringList{u"$.01"_s, u"$0.01"_s, u"$"_s, u"$0"_s};
        QTest::addRow("999.995") << u"999.995"_s
                                 << QStringList{u"$1,000.00"_s, u"$1,000.00"_s, u"$1,000"_s, u"$1,000"_s};
        QTest::addRow("1234.5") << u"1234.5"_s << QStringList{u"$1,234.50"_s, u"$1,234.50"_s, u"$1,235"_s, u"$1,235"_s};
        QTest::addRow("1234567.891") << u"1234567.891"_s
                                     << QStringList{u"$1,234,567.89"_s, u"$1,234,567.89"_s, u"$1,234,568"_s,
                                                    u"$1,234,568"_s};
        QTest::addRow("more than the places") << u"12345678901.5"_s
                                              << QStringList{u"$12,345,678,901.50"_s, u"$12,345,678,901.50"_s,
                                                             u"$12,345,678,902"_s, u"$12,345,678,902"_s};
        QTest::addRow("-5") << u"-5"_s << QStringList{u"-$5.00"_s, u"-$5.00"_s, u"-$5"_s, u"-$5"_s};
        QTest::addRow("-0.001") << u"-0.001"_s << QStringList{u"$.00"_s, u"$0.00"_s, u"$"_s, u"$0"_s};
    }

    void MoneyMasks()
    {
        constexpr std::array<std::pair<QStringView, int>, 6> masks{{{u"$###,###.00", 0},
                                                                    {u"$##,###,###.00", 0},
                                                                    {u"$##,###,##0.00", 1},
                                                                    {u"$##,###,###", 2},
                                                                    {u"$###,###,###", 2},
                                                                    {u"$##,###,##0", 3}}};
        QFETCH(QString, number);
        QFETCH(QStringList, texts);
        for (const auto& [mask, column] : masks) {
            QCOMPARE(Format(number, mask), texts[column]);
            QCOMPARE(Format(CDbl(number), mask), texts[column]);
            QCOMPARE(Format(CCur(number), mask), texts[column]);
        }
    }

    void NumberMasks()
    {
        const auto both = [](const QString& number, const QString& mask) {
            const QString text = Format(number, mask);
            return Format(CDbl(number), mask) == text ? text : u"text and number differ"_s;
        };
        QCOMPARE(both(u"0.125"_s, u"0.00"_s), u"0.13"_s); // half away from zero
        QCOMPARE(both(u"2.5"_s, u"0"_s), u"3"_s);
        QCOMPARE(both(u"1.005"_s, u"0.00"_s), u"1.01"_s); // rounded by its decimal digits
        QCOMPARE(both(u"0.0049"_s, u"#.##"_s), u"."_s);
        QCOMPARE(both(u"1.5"_s, u"0.0##"_s), u"1.5"_s);
        QCOMPARE(both(u"0.0012"_s, u"0.0000"_s), u"0.0012"_s);
        QCOMPARE(both(u"7"_s, u"000"_s), u"007"_s);
        QCOMPARE(both(u"7"_s, u"0,000"_s), u"0,007"_s);
        QCOMPARE(both(u"12.5"_s, u".00"_s), u"12.50"_s);
        QCOMPARE(both(u"5551"_s, u"(###) #"_s), u"(555) 1"_s); // digits from the right
        QCOMPARE(both(u"5"_s, u"(###) ###-####"_s), u"() -5"_s);
        QCOMPARE(both(u"5"_s, u"-"_s), u"5"_s); // only literals
    }

    void TextThatIsNoNumberComesBack()
    {
        for (const QString& text : u"| |abc|5551A|.|1.2.3|1/5/2026|1e400"_s.split(u'|'))
            QCOMPARE(Format(text, u"$###,###.00"), text);
        for (const QString& text : u"1234.5|$1,234.50| 1234.5 |1,234.5|12345E-1"_s.split(u'|'))
            QCOMPARE(Format(text, u"$###,###.00"), u"$1,234.50"_s);
    }

    void DateMasks_data()
    {
        AddColumns<QString, QString, QString>({"text", "mask", "shown"});
        QTest::addRow("date") << u"1/5/2026"_s << u"mm/dd/yyyy"_s << u"01/05/2026"_s;
        QTest::addRow("letters are case-blind") << u"1/5/2026"_s << u"MM/DD/YYYY"_s << u"01/05/2026"_s;
        QTest::addRow("without leading zeros") << u"1/5/2026"_s << u"m/d/yy"_s << u"1/5/26"_s;
        QTest::addRow("early year") << u"1/5/202"_s << u"mm/dd/yyyy"_s << u"01/05/0202"_s;
        QTest::addRow("serial") << u"39697.11"_s << u"mm-dd-yy"_s << u"09-06-08"_s;
        QTest::addRow("minute behind the hour") << u"39697.11"_s << u"hh:mm"_s << u"02:38"_s;
        QTest::addRow("no date") << u"02/30/2026"_s << u"mm/dd/yyyy"_s << u"02/30/2026"_s;
        QTest::addRow("serial too large") << u"2958466"_s << u"mm/dd/yyyy"_s << u"2958466"_s;
    }

    void DateMasks()
    {
        QFETCH(QString, text);
        QFETCH(QString, mask);
        QTEST(Format(text, mask), "shown");
        if (const auto date = ParseDate(text))
            QTEST(Format(*date, mask), "shown");
        else if (IsNumeric(text))
            QTEST(Format(CDbl(text), mask), "shown");
    }

    void ClockMasks_data()
    {
        QTest::addColumn<QTime>("time");
        QTest::addColumn<QStringList>("texts");
        QTest::addRow("past midnight") << QTime(0, 5, 9)
                                       << QStringList{u"12:05:09 am"_s, u"00:05:09"_s, u"12:05 am"_s, u"00:05"_s};
        QTest::addRow("noon") << QTime(12, 0)
                              << QStringList{u"12:00:00 pm"_s, u"12:00:00"_s, u"12:00 pm"_s, u"12:00"_s};
        QTest::addRow("evening") << QTime(17, 24)
                                 << QStringList{u"05:24:00 pm"_s, u"17:24:00"_s, u"05:24 pm"_s, u"17:24"_s};
        QTest::addRow("up to the minute")
            << QTime(17, 23, 59, 600) << QStringList{u"05:24:00 pm"_s, u"17:24:00"_s, u"05:24 pm"_s, u"17:24"_s};
    }

    void ClockMasks()
    {
        constexpr std::array<QStringView, 4> masks{u"hh:NN:SS am/pm", u"hh:NN:SS", u"hh:NN am/pm", u"hh:NN"};
        QFETCH(QTime, time);
        QFETCH(QStringList, texts);
        const Date moment = ToDate(QDateTime(QDate(2026, 11, 22), time));
        for (size_t i = 0; i < masks.size(); ++i)
            QCOMPARE(Format(moment, masks[i]), texts[static_cast<qsizetype>(i)]);
        QCOMPARE(Format(moment, u"HH:nn:ss AM/PM"), texts[0].toUpper());
    }

    void ADateUnderAnotherMaskIsItsNumberOrItsText()
    {
        QCOMPARE(Format(Date(45000.5), u"0.00"), u"45000.50"_s);
        QCOMPARE(Format(Date(45000), u"-"), u"3/15/2023"_s);
    }

    void OnlyTheTimeOfDayOfASpanIsShown() { QCOMPARE(Format(Date(1 + 2.0 / 24), u"HH:nn:ss"), u"02:00:00"_s); }

    void DigitsFillAMaskFromTheLeft()
    {
        QCOMPARE(FillMask(u"555"_s, u"(###) "_s), u"(555) "_s);
        QCOMPARE(FillMask(u"5551234567"_s, u"(###) ###-####"_s), u"(555) 123-4567"_s);
        QCOMPARE(FillMask(u"0123456789"_s, u"(###) ###-####"_s), u"(012) 345-6789"_s);
        QCOMPARE(FillMask(u"12"_s, u"(###) "_s), u"(12) "_s);
        QCOMPARE(FillMask(u"12345"_s, u"(###)"_s), u"(123)45"_s);
    }
};

QTEST_APPLESS_MAIN(tst_Format)
#include "tst_Format.moc"
