#include "core/Clock.h"
#include "core/Convert.h"
#include "model/Contact.h"
#include "model/Main.h"
#include "model/PropDetail.h"
#include "search/CriteriaRows.h"
#include "search/FindInContacts.h"
#include "search/FindInProps.h"
#include "search/FoundColumns.h"
#include "support/FreshDatabase.h"
#include "support/ScriptedUser.h"

#include <QTest>

using namespace Qt::StringLiterals;

/// The tables of the search, against plain lists of what the person meets.
class tst_SearchTables : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        Clock::SetSource([] { return QDateTime(QDate(2026, 11, 22), QTime(9, 0)); });
    }
    void cleanupTestCase()
    {
        Clock::SetSource({});
        ResetGlobals();
    }

    void OddRowsStayOdd();
    void NamesStandForTheirFields();
    void CellsOfAContact();
    void CellsOfProperties_data();
    void CellsOfProperties();
};

void tst_SearchTables::OddRowsStayOdd()
{
    const auto labels = [](auto&& holds) {
        QStringList told;
        for (const CriterionRow& row : CriteriaRows(SearchMode::Properties))
            if (holds(row))
                told << row.Label;
        return told.join(u' ');
    };
    QCOMPARE(labels([](const CriterionRow& row) { return row.Caption == "Rented"_L1; }), u"Rented: Sold:"_s);
    QCOMPARE(labels([](const CriterionRow& row) { return row.Dialog == CriterionDialog::Date; }),
             u"Lease Expires: Listing Date: Exp Date: Sold Date: Closing Date:"_s);
    QCOMPARE(labels([](const CriterionRow& row) { return row.Dialog == CriterionDialog::Currency; }),
             u"Maint Fee: Assoc Fee: Rental Amount: Asking Price: Sold Price:"_s);

    // The order of the tests decides which report comes first.
    QList<int> order;
    for (const SearchedRow& row : SearchedRows(SearchMode::Properties))
        order << row.Row;
    QCOMPARE(order.first(), 2);
    QCOMPARE(order.mid(order.indexOf(22), 3), (QList<int>{22, 1, 28}));

    // Two dates have a column that is never filled, and the rent is filled before the elevator that stands left of it.
    QStringList filled;
    for (const int column : FoundPropertyFilling())
        filled << FoundPropertyColumns()[static_cast<size_t>(column) - 1].Key;
    for (const GridColumn& column : FoundPropertyColumns()) {
        QCOMPARE(column.Visible, column.Key != "ContactID"_L1);
        QCOMPARE(filled.contains(column.Key), column.Key != "ListingDate"_L1 && column.Key != "ExpDate"_L1);
    }
    QVERIFY(filled.indexOf(u"Rented"_s) < filled.indexOf(u"Elevator"_s));
}

namespace {

/// A contact and a property in which no two fields read alike.
Contact FullContact()
{
    Contact contact;
    contact.RecID = 7;
    contact.FirstName = u"Ann"_s;
    contact.MI = u"Q"_s;
    contact.LastName = u"Lee"_s;
    contact.MailAddr1 = u"12 Elm"_s;
    contact.MailAddr2 = u"Apt 4"_s;
    contact.MailCity = u"Dover"_s;
    contact.MailState = 10;
    contact.MailZip = u"19103"_s;
    contact.MailZip4 = u"2204"_s;
    contact.Salutation = u"Dear"_s;
    contact.Spouse = u"Bob"_s;
    contact.ReferredBy = u"Cy"_s;
    contact.Company = u"Zed"_s;
    contact.Email = u"@"_s;
    contact.HomePhone = u"555-0101"_s;
    contact.WorkPhone = u"555-0102"_s;
    contact.Ext = u"77"_s;
    contact.Cell = u"555-0103"_s;
    contact.Fax = u"555-0105"_s;
    return contact;
}

PropDetail FullProperty()
{
    PropDetail property;
    property.RecID = 3;
    property.ContactID = 7;
    property.MLS = u"A-1"_s;
    property.Subdivision = u"Lakes"_s;
    property.Addr1 = u"9 Oak"_s;
    property.Addr2 = u"Unit B"_s;
    property.City = u"Salem"_s;
    property.State = 44;
    property.Zip = u"08102"_s;
    property.Zip4 = u"1357"_s;
    property.SqFt = 1312;
    property.Rooms = 6;
    property.Baths = 2.5F;
    property.PropType = 2;
    property.Construction = 1;
    property.Floor = 4;
    property.Roof = 5;
    property.Parking = 3;
    property.Pool = 1;
    property.MaintFee = CCur(u"1250.5"_s);
    property.AssocFee = CCur(u"99"_s);
    property.RentalAmount = CCur(u"1800"_s);
    property.AskingPrice = CCur(u"250000"_s);
    property.SoldPrice = CCur(u"1234567.89"_s);
    property.Waterfront = u"Yes"_s;
    property.FloodZone = u"No"_s;
    property.Elevator = u"Yes"_s;
    property.PetsAllowed = u"No"_s;
    property.Rented = u"Yes"_s;
    property.RentalBasis = 1;
    property.LeaseExpires = u"01/05/2027"_s;
    property.ListingDate = u"11/22/2026 9:00:00 AM"_s; // this very moment
    property.ExpDate = u"11/22/2026 9:00:01 AM"_s;
    property.SoldDate = u"09/03/2026"_s;
    property.ClosingDate = u"12/01/2026"_s;
    return property;
}

} // namespace

void tst_SearchTables::NamesStandForTheirFields()
{
    const ScriptedUser person;
    const Contact contact = FullContact();
    const QMap<QString, QString> contacts{
        {u"FirstName"_s, u"Ann"_s},    {u"MI"_s, u"Q"_s},          {u"LastName"_s, u"Lee"_s},
        {u"MailAddr1"_s, u"12 Elm"_s}, {u"MailAddr2"_s, u"Apt"_s}, {u"cbostate"_s, u"FL"_s},
        {u"MailZip"_s, u"19103"_s},    {u"MailZip4"_s, u"2204"_s}, {u"Salutation"_s, u"Dear"_s},
        {u"Spouse"_s, u"Bob"_s},       {u"ReferredBy"_s, u"Cy"_s}, {u"Company"_s, u"Zed"_s},
        {u"Email"_s, u"@"_s},          {u"HomePhone"_s, u"101"_s}, {u"WorkPhone"_s, u"102"_s},
        {u"Ext"_s, u"77"_s},           {u"Cell"_s, u"0103"_s},     {u"Fax"_s, u"0105"_s},
    };
    QCOMPARE(contacts.size(), std::ssize(SearchedRows(SearchMode::Contacts)));
    // Each value is found in its own field and in no other.
    for (const SearchedRow& row : SearchedRows(SearchMode::Contacts))
        for (auto entry = contacts.begin(); entry != contacts.end(); ++entry)
            QVERIFY2(FindInContacts(entry.value(), row.FieldName, Qt::CaseSensitive)(contact) ==
                         (entry.key() == row.FieldName),
                     qPrintable(entry.value() + u" in "_s + row.FieldName));

    const PropDetail property = FullProperty();
    const QMap<QString, QString> properties{
        {u"Subdivision"_s, u"Lakes"_s},
        {u"Addr1"_s, u"9 Oak"_s},
        {u"Addr2"_s, u"Unit"_s},
        {u"City"_s, u"Salem"_s},
        {u"cbostate"_s, u"PA"_s},
        {u"Zip"_s, u"08102"_s},
        {u"Zip4"_s, u"1357"_s},
        {u"SqFt"_s, u"1312"_s},
        {u"Baths"_s, u"2.5"_s},
        {u"MaintFee"_s, u"1250.5"_s},
        {u"AssocFee"_s, u"99"_s},
        {u"Type"_s, u"PUD"_s},
        {u"Construction"_s, u"Block"_s},
        {u"Floor"_s, u"Slate"_s},
        {u"Parking"_s, u"2+ Car Garage"_s},
        {u"Pool"_s, u"In Ground"_s},
        {u"RentalBasis"_s, u"Monthly"_s},
        {u"LeaseExpires"_s, u"= 01/05/2027"_s},
        {u"MLS"_s, u"A-1"_s},
        {u"ExpDate"_s, u":01 AM"_s},
        {u"SoldDate"_s, u"09/03"_s},
        {u"ClosingDate"_s, u"12/01/2026"_s},
        {u"AskingPrice"_s, u"= 250000"_s},
        {u"SoldPrice"_s, u"1234567.89"_s},
        {u"Roof"_s, u"Slate"_s},
    };
    // These read their value as a criterion, and take a plain text for one as well.
    const QStringList criteria{u"LeaseExpires"_s, u"ListingDate"_s, u"AskingPrice"_s};
    for (auto entry = properties.begin(); entry != properties.end(); ++entry)
        for (const SearchedRow& row : SearchedRows(SearchMode::Properties))
            if (entry.key() == row.FieldName ||
                (properties.value(row.FieldName) != entry.value() && !criteria.contains(row.FieldName)))
                QVERIFY2(FindInProps(entry.value(), row.FieldName, Qt::CaseSensitive)(property) ==
                             (entry.key() == row.FieldName),
                         qPrintable(entry.value() + u" in "_s + row.FieldName));
    // Flags, and dates against this moment.
    const QMap<QString, QString> yes{
        {u"Waterfront"_s, u"Yes"_s}, {u"Pets"_s, u"No"_s},      {u"Floodzone"_s, u"No"_s},
        {u"Rented"_s, u"Yes"_s},     {u"Elevator"_s, u"Yes"_s}, {u"Listed"_s, u"Yes"_s},
        {u"Expired"_s, u"No"_s},     {u"Sold"_s, u"Yes"_s},     {u"Closed"_s, u"No"_s},
    };
    for (auto entry = yes.begin(); entry != yes.end(); ++entry)
        for (const QString& value : {u"Yes"_s, u"No"_s})
            QVERIFY2(FindInProps(value, entry.key(), Qt::CaseInsensitive)(property) == (entry.value() == value),
                     qPrintable(entry.key()));
}

void tst_SearchTables::CellsOfAContact()
{
    const Contact contact = FullContact();
    QStringList told;
    for (int column = 1; column <= static_cast<int>(FoundContactColumns().size()); ++column)
        told << FoundContactText(contact, column);
    QCOMPARE(told.join(u'|'), u"Ann Q Lee|555-0101|555-0102|77|555-0105|555-0103|12 Elm|Apt 4|Dover|FL|19103-2204|0"_s);
}

void tst_SearchTables::CellsOfProperties_data()
{
    QTest::addColumn<bool>("full");
    QTest::addColumn<QString>("cells");
    QTest::newRow("full") << true
                          << u"7|Ann Q Lee|A-1|Lakes|9 Oak|Unit B|Salem|PA|08102-1357|1312|6|2.5|PUD|Block|Slate|Slate|"
                             "2+ Car Garage|In Ground|$1,250.50|$99.00|Yes|No|Yes|No|Yes|Monthly|$1,800.00|1/5/2027|"
                             "Yes||No||$250,000.00|Yes|9/3/2026|No|12/1/2026|$1,234,567.89"_s;
    QTest::newRow("bare") << false
                          << u"7|Ann Q Lee||||||AL|||||Condominium|Asbestos|Brick/Stone|Built Up|1 Car Carport|"
                             "Above Ground||||||||Daily||| || ||| || ||"_s;
}

void tst_SearchTables::CellsOfProperties()
{
    QFETCH(bool, full);
    gContacts.RemoveAll();
    gContacts.Add(7, std::make_shared<Contact>(FullContact()));
    PropDetail property;
    property.ContactID = 7;
    if (full)
        property = FullProperty();
    QStringList told;
    FoundPropertyTexts texts;
    for (int column = 1; column <= static_cast<int>(FoundPropertyColumns().size()); ++column)
        told << texts.Text(property, column);
    QTEST(told.join(u'|'), "cells");
}

QTEST_GUILESS_MAIN(tst_SearchTables)
#include "tst_SearchTables.moc"
