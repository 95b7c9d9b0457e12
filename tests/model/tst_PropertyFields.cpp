#include "model/PropertyFields.h"

#include "core/Convert.h"
#include "core/RunTimeError.h"

#include <QTest>

using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(PropertyForm)
Q_DECLARE_METATYPE(PropertyField)

/// What a person typed becomes a field of a property, and a field becomes what a person reads.
class tst_PropertyFields : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void AFieldReadsAsItsPlaceWritesIt_data();
    void AFieldReadsAsItsPlaceWritesIt();
    void WhatDoesNotFitIsRaisedAndChangesNothing_data();
    void WhatDoesNotFitIsRaisedAndChangesNothing();
    void EveryFieldHasItsOwnPlaceInTheRecord();
};

void tst_PropertyFields::AFieldReadsAsItsPlaceWritesIt_data()
{
    using enum PropertyField;
    using enum PropertyForm;
    QTest::addColumn<PropertyField>("field");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<PropertyForm>("form");
    QTest::addColumn<QString>("read");

    QTest::newRow("a text") << City << u" o'Neil  "_s << List << u" o'Neil  "_s;
    QTest::newRow("a flag") << Rented << u"No"_s << List << u"No"_s;
    QTest::newRow("a date") << LeaseExpires << u"13/45/2026"_s << Sheet << u"13/45/2026"_s;
    QTest::newRow("an entry") << Floor << u"Vinyl"_s << List << u"Vinyl"_s;
    QTest::newRow("the first entry, for none") << State << QString() << Plain << u"AL"_s;
    QTest::newRow("an entry, letter for letter") << Pool << u"in ground"_s << List << u"Above Ground"_s;
    QTest::newRow("a number up to its second point") << Baths << u"1.2.3"_s << List << u"1.2"_s;
    QTest::newRow("a whole number") << SqFt << u"1850.5"_s << List << u"1850"_s;
    QTest::newRow("no number") << Rooms << QString() << List << u"0"_s;
    QTest::newRow("no number, left out") << SqFt << QString() << ListNo0 << QString();
    QTest::newRow("a fee") << MaintFee << u"$1,250.50"_s << List << u"$1,250.50"_s;
    QTest::newRow("a fee, bare") << AssocFee << u"$1,250.50"_s << Plain << u"1250.5"_s;
    QTest::newRow("a price") << SoldPrice << u"$1,234,567"_s << List << u"$1,234,567.00"_s;
    QTest::newRow("a price in the sheet") << AskingPrice << u"350000"_s << Sheet << u"$350,000"_s;
    QTest::newRow("no amount") << RentalAmount << QString() << List << u"$.00"_s;
    QTest::newRow("no amount, left out") << RentalAmount << QString() << ListNo0 << QString();
    QTest::newRow("no amount in the sheet") << AskingPrice << u"$0"_s << Sheet << QString();
}

void tst_PropertyFields::AFieldReadsAsItsPlaceWritesIt()
{
    QFETCH(const PropertyField, field);
    QFETCH(const QString, typed);
    QFETCH(const PropertyForm, form);
    PropDetail property;
    SetPropertyText(property, field, typed);
    QTEST(PropertyText(property, field, form), "read");
}

void tst_PropertyFields::WhatDoesNotFitIsRaisedAndChangesNothing_data()
{
    using enum PropertyField;
    QTest::addColumn<PropertyField>("field");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("number");

    QTest::newRow("a 16-bit area") << SqFt << u"40000"_s << ErrorNumber::Overflow;
    QTest::newRow("twenty digits of money") << SoldPrice << u"$99,999,999,999,999,999,999"_s << ErrorNumber::Overflow;
    QTest::newRow("money with two points") << MaintFee << u"1.2.3"_s << ErrorNumber::TypeMismatch;
    QTest::newRow("only the sign") << AssocFee << u"$"_s << ErrorNumber::TypeMismatch;
}

void tst_PropertyFields::WhatDoesNotFitIsRaisedAndChangesNothing()
{
    QFETCH(const PropertyField, field);
    QFETCH(const QString, typed);
    PropDetail property;
    SetPropertyText(property, field, u"7"_s);
    int raised = 0;
    try {
        SetPropertyText(property, field, typed);
    } catch (const RunTimeError& error) {
        raised = error.Number();
    }
    QTEST(raised, "number");
    QCOMPARE(CDbl(PropertyText(property, field, PropertyForm::Plain)), 7.0);
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
