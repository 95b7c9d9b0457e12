#include "core/Dates.h"

#include "core/Clock.h"
#include "core/Convert.h"
#include "ErrorOf.h"

#include <QTest>
#include <limits>

using namespace Qt::StringLiterals;

class tst_Dates : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        Clock::SetSource([] { return QDateTime(QDate(2026, 11, 22), QTime(9, 41, 7)); });
    }

    void cleanupTestCase() { Clock::SetSource({}); }

    void ATextNamesADate_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("date");
        // What each text names, in the form that CStr gives.
        const std::vector<std::pair<const char*, std::vector<const char*>>> rows{
            {"1/2/1970",
             {"1/2/1970", "1-2-1970", "1 2 1970", " 01/02/70 ", "2 January, 1970", "2-Jan-1970", "Jan 2 1970",
              "1970 JANUARY 2", "Fri, 2 Jan 1970", "Friday 1/2/1970", "2Jan1970"}},
            {"1/13/1970", {"13/1/1970", "13-1-1970", "1970-1-13", "1970/13/1"}},
            {"1/5/2026", {"01/05", "1 5", "5 jan", "January 5", "1//5"}},
            {"1/14/2026", {"14 1", "1 14"}},
            {"2/1/1930", {"30 2", "2 30", "Feb 30"}},
            {"1/2/2029", {"1 2 29"}},
            {"1/2/1930", {"1 2 30"}},
            {"2/29/2028", {"2/29/2028"}},
            {"2/1/2029", {"29-FEB-01", "2/29"}},
            {"5/14/2000", {"0/5/14"}},
            {"2/3/2014", {"14 2 3"}},
            {"2/3/1932", {"2 3 32", "32 2 3"}},
            {"1/5/2002", {"01/05/2"}},
            {"1/5/2020", {"01/05/20"}},
            {"1/5/202", {"01/05/202"}},
            {"12/1/1945", {"12/45"}},
            {"1/1/1935", {"Jan 35", "35 Jan"}},
            {"4/26/1931", {"31/4/26"}},
            {"1/1/2026", {"1/2026"}},
            {"1/1/100", {"1/1/100"}},
            {"12/31/9999", {"12/31/9999"}},
            {"12:01:00 AM", {"0.1", "0:1", "0:1:0"}},
            {"1:00:00 AM", {"1 am", "1a"}},
            {"12:59:00 AM", {"12:59 AM"}},
            {"12:00:00 PM", {"12 p", "12:00", "12.00.00 pm"}},
            {"3:00:00 PM", {"3pm", "15:00 am", "15:00 PM"}},
            {"6/30/2011 1:20:34 PM",
             {"6/30/2011 01:20:34 PM", "1:20:34 pm 6/30/2011", "30 June 2011, 13:20:34", "13.20.34 6-30-2011"}},
            {"1/5/2026 10:00:00 PM", {"10 pm 1/5", "1/5 10 pm"}},
            {"12/29/1899 6:00:00 AM", {"12/29/1899 6:00"}},
        };
        for (const auto& [date, texts] : rows) {
            for (const char* text : texts)
                QTest::addRow("[%s]", text) << QString::fromLatin1(text) << QString::fromLatin1(date);
        }
    }

    void ATextNamesADate()
    {
        QFETCH(QString, text);
        const auto date = ParseDate(text);
        QVERIFY(date.has_value());
        QVERIFY(IsDate(text));
        QTEST(CStr(*date), "date");
        QCOMPARE(ParseDate(CStr(*date)), date);
    }

    void OtherTextsNameNone()
    {
        const QString none =
            u"| |5|45000|True|12;5;2026|01/|01/05/|.0|01/05/2026,|12:|02/30/2026|2/29/2026|2/29/26|32 49|"
            "02.01.1970|0.60|24:00|1 2 am|1 am 2|2013-05-14 02:04:12.017|1/2/3/4|1:2 3|1:2 3:4|1 2:30 5|am|"
            "am 5:30|1 am pm|1 pm 5:30|12 am:30|1:am|1/5 am 10:30|January|January 5 February|1:Jan|Jan 1 2 3|"
            "Sept 5|/1/2|1/2\t2026|1/5/10000|1/1/99999999999|1/32/2026\u00A0|-1/2/2026|1.|"
            "13/13/2026|0 49|1 2 3 4|1 2 3 4 5 6 7|1:2:3:4|1 am 2 3 pm|January am|Janx 5|Septembers 5|Monday"_s;
        for (const QString& text : none.split(u'|'))
            QVERIFY2(!IsDate(text), qPrintable(text));
    }

    void ALeapDayWithoutAYearFollowsThisYear()
    {
        Clock::SetSource([] { return QDateTime(QDate(2028, 3, 1), QTime(0, 0)); });
        QCOMPARE(CStr(CDate(u"2/29")), u"2/29/2028"_s);
        initTestCase();
    }

    void ANumberIsASerialDate()
    {
        QCOMPARE(CStr(CDate(u"45000")), u"3/15/2023"_s);
        QCOMPARE(CStr(CDate(u"0")), u"12:00:00 AM"_s);
        QCOMPARE(CStr(CDate(u"-657434")), u"1/1/100"_s);
        QCOMPARE(CStr(CDate(u"2958465")), u"12/31/9999"_s);
        for (const QStringView text : {u"", u"soon", u"02/30/2026", u"2958466", u"-657435", u"1e300"})
            QCOMPARE(ErrorOf([&] { return CDate(text); }), ErrorNumber::TypeMismatch);
    }

    void ADateHasItsDefaultText()
    {
        QCOMPARE(CStr(ToDate(QDate(2026, 1, 5))), u"1/5/2026"_s);
        QCOMPARE(CStr(Date(1461.5)), u"12/31/1903 12:00:00 PM"_s);
        QCOMPARE(CStr(Date(3.34)), u"1/2/1900 8:09:36 AM"_s);
        QCOMPARE(CStr(Date(0.0)), u"12:00:00 AM"_s);
        QCOMPARE(CStr(Date(14.5 / 24)), u"2:30:00 PM"_s);
        QCOMPARE(CStr(Date(-657434.0)), u"1/1/100"_s);
        QCOMPARE(CStr(Date(-1.25)), u"12/29/1899 6:00:00 AM"_s);
        // Up to the next midnight, to day zero, and to a day that no year has.
        QCOMPARE(CStr(Date(2.999999)), u"1/2/1900"_s);
        QCOMPARE(CStr(Date(-1.999999)), u"12:00:00 AM"_s);
        QCOMPARE(CStr(Date(2958465.9999999)), u"2958465.9999999"_s);
        QCOMPARE(CStr(Date(1e12)), u"1000000000000"_s);
    }

    void MomentsGoThereAndBack()
    {
        for (const QDateTime& moment :
             {QDateTime(QDate(2026, 11, 22), QTime(23, 59, 59)), QDateTime(QDate(1899, 12, 30), QTime(6, 0)),
              QDateTime(QDate(1850, 5, 5), QTime(18, 0, 1))})
            QCOMPARE(ToDateTime(ToDate(moment)), moment);
        QCOMPARE(ToDate(QDate(1899, 12, 30)).Serial(), 0.0);
        QVERIFY(!ToDateTime(Date(std::numeric_limits<double>::quiet_NaN())).isValid());
        QVERIFY(!ToDateTime(ToDate(QDate())).isValid());
    }

    void TodayHasNoTime() { QCOMPARE(TodayDate(), ToDate(QDate(2026, 11, 22))); }
};

QTEST_APPLESS_MAIN(tst_Dates)
#include "tst_Dates.moc"
