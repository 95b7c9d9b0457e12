#include "model/PropertyFields.h"

#include <QTest>

using namespace Qt::StringLiterals;

/// What a person typed becomes a field of a property, and a field becomes what a person reads.
class tst_PropertyFields : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void AFieldReadsAsItsPlaceWritesIt();
    void EveryFieldHasItsOwnPlaceInTheRecord();
};

void tst_PropertyFields::AFieldReadsAsItsPlaceWritesIt()
{
    using enum PropertyField;
    using enum PropertyForm;
    const auto read = [](PropertyField field, const QString& typed, PropertyForm form) {
        PropDetail property;
        SetPropertyText(property, field, typed);
        return PropertyText(property, field, form);
    };
    QCOMPARE(read(City, u" o'Neil  "_s, List), u" o'Neil  "_s);
    QCOMPARE(read(LeaseExpires, u"13/45/2026"_s, Sheet), u"13/45/2026"_s);
    QCOMPARE(read(State, QString(), Plain), u"AL"_s);              // the first entry, for none
    QCOMPARE(read(Pool, u"in ground"_s, List), u"Above Ground"_s); // letter for letter
    QCOMPARE(read(Baths, u"1.2.3"_s, List), u"1.2"_s);             // up to the second point
    QCOMPARE(read(SqFt, u"1850.5"_s, List), u"1850"_s);
    QCOMPARE(read(Rooms, QString(), List), u"0"_s);
    QCOMPARE(read(SqFt, QString(), ListNo0), QString());
    QCOMPARE(read(MaintFee, u"$1,250.50"_s, List), u"$1,250.50"_s);
    QCOMPARE(read(AssocFee, u"$1,250.50"_s, Plain), u"1250.5"_s);
    QCOMPARE(read(SoldPrice, u"$1,234,567"_s, List), u"$1,234,567.00"_s);
    QCOMPARE(read(AskingPrice, u"350000"_s, Sheet), u"$350,000"_s);
    QCOMPARE(read(RentalAmount, QString(), List), u"$.00"_s);
    QCOMPARE(read(RentalAmount, QString(), ListNo0), QString());
    QCOMPARE(read(AskingPrice, u"$0"_s, Sheet), QString());
}

void tst_PropertyFields::EveryFieldHasItsOwnPlaceInTheRecord()
{
    // Each field gets a text of its own, in turn; each must still read as its own at the end.
    const auto typed = [](int index) {
        const auto field = static_cast<PropertyField>(index);
        return KindOf(field) == PropertyKind::List ? PropertyText({}, field) : QString::number(index + 1);
    };
    PropDetail property;
    for (int index = 0; index < PropertyFieldCount; ++index)
        SetPropertyText(property, static_cast<PropertyField>(index), typed(index));
    for (int index = 0; index < PropertyFieldCount; ++index)
        QCOMPARE(PropertyText(property, static_cast<PropertyField>(index), PropertyForm::Plain), typed(index));
}

QTEST_APPLESS_MAIN(tst_PropertyFields)
#include "tst_PropertyFields.moc"
