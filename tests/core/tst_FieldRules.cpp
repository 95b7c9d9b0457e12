#include "core/FieldRules.h"

#include "core/Clock.h"
#include "core/Dates.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// A field after one more character typed at its end.
FieldText Typed(const FieldText& field, QChar c)
{
    return {field.Text + c, field.Text.size() + 1};
}

} // namespace

class tst_FieldRules : public QObject
{
    Q_OBJECT

private slots:
    void APhoneNumberGrowsIntoItsMask()
    {
        const QString digits = u"0551234567"_s;
        const QStringList forms{
            u"(0"_s,        u"(05"_s,         u"(055) "_s,       u"(055) 1"_s,       u"(055) 12"_s,
            u"(055) 123"_s, u"(055) 123-4"_s, u"(055) 123-45"_s, u"(055) 123-456"_s, u"(055) 123-4567"_s};
        FieldText field;
        for (qsizetype i = 0; i < digits.size(); ++i) {
            field = FormatPhone(digits[i].unicode(), Typed(field, digits[i]));
            QCOMPARE(field, (FieldText{forms[i], forms[i].size()}));
        }
        QCOMPARE(FormatPhone(Key::Shift, field), field);
    }

    void AnEleventhDigitUndoesTheMask()
    {
        QCOMPARE(FormatPhone('8', {u"(555) 123-45678"_s, 15}), (FieldText{u"55512345678"_s, 11}));
        QCOMPARE(FormatPhone(Key::Shift, {u"() -"_s, 2}), (FieldText{QString(), 0}));
    }

    void BackspaceLeavesThePhoneNumberAndTheNextDigitMasksIt()
    {
        const FieldText field{u"(555) 12"_s, 3};
        QCOMPARE(FormatPhone(Key::Backspace, field), field);
        QCOMPARE(FormatPhone('9', Typed({u"(555)"_s, 5}, u'9')), (FieldText{u"(555) 9"_s, 7}));
    }

    void APhoneNumberWithLettersStandsBare()
    {
        QCOMPARE(FormatPhone('A', {u"(555) 1A"_s, 8}), (FieldText{u"5551A"_s, 5}));
    }

    void ADateTypedWithSingleDigitsGetsItsZeros()
    {
        for (const auto& [keys, date] :
             {std::pair(u"1/5/2026"_s, u"01/05/2026"_s), std::pair(u"01052026"_s, u"01/05/2026"_s),
              std::pair(u"11222026"_s, u"11/22/2026"_s)}) {
            // A key is let in or not, the field is tidied, and then the key arrives at the caret.
            FieldText field;
            for (const QChar key : keys) {
                if (!ValidDateChar(key.unicode(), field.Text))
                    continue;
                field = DateFormat(field);
                QCOMPARE(field.SelStart, field.Text.size());
                field = Typed(field, key);
            }
            QCOMPARE(DateFormat(field).Text, date);
        }
    }

    void DatesAreTidiedOneStepAtATime()
    {
        const QString steps = u"= 1=1 12=12/ 1/=01/ //=// /1=/1 01/0=01/0 01/05=01/05/ 01/5/=01/05/ 01//5=01//5/ "
                              "01///=01/// 01/05/2026=01/05/2026"_s;
        for (const QString& step : steps.split(u' ')) {
            const QString typed = step.section(u'=', 0, 0);
            const QString tidied = step.section(u'=', 1);
            const qsizetype caret = typed == tidied ? 0 : tidied.size();
            QCOMPARE(DateFormat({typed, 0}), (FieldText{tidied, caret}));
        }
    }

    void DateFieldsTakeDigitsAndASlashInItsPlace()
    {
        for (const QStringView text : {u"", u"1", u"01", u"01/", u"01/5", u"01/05"}) {
            for (int key = -1; key < 300; ++key) {
                const bool slash = key == '/' && (text.size() == 1 || text.size() == 4);
                QCOMPARE(ValidDateChar(key, text), slash || key == Key::Backspace || (key >= '0' && key <= '9'));
            }
        }
    }

    void OnlyDaysAfterTodayAreFuture()
    {
        Clock::SetSource([] { return QDateTime(QDate(2026, 11, 22), QTime(23, 59, 59)); });
        QVERIFY(!IsAFutureDate(ToDate(QDate(2026, 11, 21))));
        QVERIFY(!IsAFutureDate(ToDate(QDate(2026, 11, 22))));
        QVERIFY(IsAFutureDate(ToDate(QDate(2026, 11, 23))));
        Clock::SetSource([] { return QDateTime(QDate(2026, 11, 23), QTime(0, 0)); });
        QVERIFY(!IsAFutureDate(ToDate(QDate(2026, 11, 23))));
        Clock::SetSource({});
    }

    void NumberFieldsTakeDigitsAndThePoint()
    {
        QString taken;
        for (int key = -1; key < 300; ++key) {
            QCOMPARE(isCurrency(key), Numeric(key));
            if (Numeric(key))
                taken += QChar(key);
        }
        QCOMPARE(taken, u"\b\r.0123456789"_s);
    }

    void TheFirstLetterIsRaised()
    {
        QCOMPARE(Upper(QString()), QString());
        QCOMPARE(Upper(u"mcDonald van"_s), u"McDonald van"_s);
        QCOMPARE(Upper(u"émile"_s), u"Émile"_s);
        QCOMPARE(Upper(u" a"_s), u" a"_s);
        QCOMPARE(Upper(u"\U00010428a"_s), u"\U00010400a"_s);
    }

    void YesAndNoHaveCodes()
    {
        QCOMPARE(BitToYesNo(0), QString());
        QCOMPARE(BitToYesNo(1), u"Yes"_s);
        QCOMPARE(BitToYesNo(2), u"No"_s);
        QVERIFY(!BitToYesNo(3) && !BitToYesNo(-1));
        QCOMPARE(YesNoToBit(u""), 0);
        QCOMPARE(YesNoToBit(u" "), 0);
        QCOMPARE(YesNoToBit(u"Yes"), 1);
        QCOMPARE(YesNoToBit(u"No"), 2);
        QVERIFY(!YesNoToBit(u"yes") && !YesNoToBit(u"  "));
    }
};

QTEST_APPLESS_MAIN(tst_FieldRules)
#include "tst_FieldRules.moc"
