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

    void RowsAskForTheirValues_data();
    void RowsAskForTheirValues();
    void TestsComeInTheirOrder_data();
    void TestsComeInTheirOrder();
    void NamesStandForTheirFields();
    void ColumnsStandInTheirOrder_data();
    void ColumnsStandInTheirOrder();
    void CellsOfAContact();
    void CellsOfProperties_data();
    void CellsOfProperties();
    void RowsAreFilledInTheirOrder();
};

void tst_SearchTables::RowsAskForTheirValues_data()
{
    QTest::addColumn<SearchMode>("mode");
    QTest::addColumn<QString>("rows"); // label, caption, and the window or its input
    QTest::newRow("contacts") << SearchMode::Contacts << uR"(First Name:|First Name|txtLongString
MI:|MI|txtInitial
Last Name:|LastName|txtLongString
Address1:|Mailing Address1|txtLongString
Address2:|Mailing Address2|txtLongString
City:|Mailing City|txtLongString
State:|Mailing State|cboState
Zip:|Mailing Zip|txtShortInt
Zip4:|Mailing Zip4|txtShortInt
Salutation:|Salutation|txtLongString
Spouse:|Spouse|txtLongString
Referred By:|Referred By|txtLongString
Company:|Company|txtLongString
Email:|Email|txtLongString
Home Phone:|Home Phone|txtPhone
Work Phone:|Work Phone|txtPhone
Ext:|Extension|txtShortInt
Cell Phone:|Cell Phone|txtPhone
Fax:|Fax|txtPhone)"_s;
    QTest::newRow("properties") << SearchMode::Properties << uR"(MLS#:|MLS|txtLongString
Subdivision:|Subdivision|txtLongString
Address1:|Address1|txtLongString
Address2:|Address2|txtLongString
City:|City|txtLongString
State:|State|cboState
Zip:|Zip|txtShortInt
Zip4:|Zip4|txtShortInt
Sq Ft:|Sq Feet|txtShortInt
Rooms:|No. of Rooms|txtShortInt
Baths:|No. of Baths|txtShortInt
Type:|Property Type|cboPropType
Construction:|Construction|cboConstruction
Floor:|Floor Type|cboFloor
Roof:|Roof Type|cboRoof
Parking:|Parking|cboParking
Pool:|Pool|cboPool
Maint Fee:|Maintenance Fee|frmCurrency
Assoc Fee:|Association Fee|frmCurrency
Waterfront:|Waterfront|cboYesNo
Flood Zone:|Flood Zone|cboYesNo
Elevator:|Elevator|cboYesNo
Pets Allowed:|Pets Allowed|cboYesNo
Rented:|Rented|cboYesNo
Rental Basis:|Rental Basis|cboRentalBasis
Rental Amount:|Rental Amount|frmCurrency
Lease Expires:|Lease Expires|frmDate
Listed:|Listed|cboYesNo
Listing Date:|Listing Date|frmDate
Expired:|Expired|cboYesNo
Exp Date:|Listing Exp Date|frmDate
Asking Price:|Asking Price|frmCurrency
Sold:|Rented|cboYesNo
Sold Date:|Sold Date|frmDate
Closed:|Closed|cboYesNo
Closing Date:|Closing Date|frmDate
Sold Price:|Sold Price|frmCurrency)"_s;
}

void tst_SearchTables::RowsAskForTheirValues()
{
    QFETCH(SearchMode, mode);
    QFETCH(QString, rows);
    const QMap<ValueInput, QString> inputs{
        {ValueInput::txtLongString, u"txtLongString"_s},
        {ValueInput::txtInitial, u"txtInitial"_s},
        {ValueInput::txtShortInt, u"txtShortInt"_s},
        {ValueInput::txtPhone, u"txtPhone"_s},
        {ValueInput::cboState, u"cboState"_s},
        {ValueInput::cboPropType, u"cboPropType"_s},
        {ValueInput::cboConstruction, u"cboConstruction"_s},
        {ValueInput::cboFloor, u"cboFloor"_s},
        {ValueInput::cboRoof, u"cboRoof"_s},
        {ValueInput::cboParking, u"cboParking"_s},
        {ValueInput::cboPool, u"cboPool"_s},
        {ValueInput::cboYesNo, u"cboYesNo"_s},
        {ValueInput::cboRentalBasis, u"cboRentalBasis"_s},
    };
    QStringList told;
    for (const CriterionRow& row : CriteriaRows(mode)) {
        const QString window = row.Dialog == CriterionDialog::Currency ? u"frmCurrency"_s
                               : row.Dialog == CriterionDialog::Date   ? u"frmDate"_s
                                                                       : inputs.value(row.Input);
        told << row.Label + u'|' + row.Caption + u'|' + window;
    }
    QCOMPARE(told, rows.split(u'\n'));
}

void tst_SearchTables::TestsComeInTheirOrder_data()
{
    QTest::addColumn<SearchMode>("mode");
    QTest::addColumn<QString>("tests");
    QTest::newRow("contacts") << SearchMode::Contacts
                              << u"1 FirstName,2 MI,3 LastName,4 MailAddr1,5 MailAddr2,7 cbostate,8 MailZip,9 MailZip4,"
                                 "10 Salutation,11 Spouse,12 ReferredBy,13 Company,14 Email,15 HomePhone,16 WorkPhone,"
                                 "17 Ext,18 Cell,19 Fax"_s;
    QTest::newRow("properties")
        << SearchMode::Properties
        << u"2 Subdivision,3 Addr1,4 Addr2,5 City,6 cbostate,7 Zip,8 Zip4,9 SqFt,10 Rooms,11 Baths,18 MaintFee,"
           "19 AssocFee,12 Type,13 Construction,14 Floor,15 Roof,16 Parking,17 Pool,20 Waterfront,23 Pets,21 Floodzone,"
           "24 Rented,27 LeaseExpires,25 RentalBasis,22 Elevator,1 MLS,28 Listed,29 ListingDate,30 Expired,31 ExpDate,"
           "33 Sold,34 SoldDate,35 Closed,36 ClosingDate,32 AskingPrice,37 SoldPrice"_s;
}

void tst_SearchTables::TestsComeInTheirOrder()
{
    QFETCH(SearchMode, mode);
    QStringList told;
    for (const SearchedRow& row : SearchedRows(mode))
        told << QString::number(row.Row) + u' ' + row.FieldName;
    QTEST(told.join(u','), "tests");
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

void tst_SearchTables::ColumnsStandInTheirOrder_data()
{
    QTest::addColumn<bool>("properties");
    QTest::addColumn<QString>("columns"); // key, and the header where it is another
    QTest::newRow("contacts") << false
                              << u"Name,Phone,WorkPhone=Work Phone,Ext,Fax,Cell,Address1,Address2,City,State,Zip,"
                                 "Properties"_s;
    QTest::newRow("properties")
        << true
        << u"ContactID=,ContactName=Contact,MLS,Subdivision,Address1,Address2,City,State,Zip,SqFt=Sq "
           u"Ft,Rooms,Baths,Type,"
           "Construction,Floor,Roof,Parking,Pool,MaintFee=Maint Fee,AssocFee=Assoc Fee,Waterfront,FloodZone=Flood Zone,"
           "Elevator,PetsAllowed=Pets Allowed,Rented,RentalBasis=Rental Basis,RentalAmount=Rental Amount,"
           "LeaseExpires=Lease Expires,Listed,ListingDate=Listing Date,Expired,ExpDate=Exp Date,"
           "AskingPrice=Asking Price,Sold,SoldDate=Sold Date,Closed,ClosingDate=Closing Date,SoldPrice=Sold Price"_s;
}

void tst_SearchTables::ColumnsStandInTheirOrder()
{
    QFETCH(bool, properties);
    QStringList told;
    for (const GridColumn& column : properties ? FoundPropertyColumns() : FoundContactColumns()) {
        told << (column.Key == column.Header ? column.Key : column.Key + u'=' + column.Header);
        QCOMPARE(column.Visible, column.Key != "ContactID"_L1);
    }
    QTEST(told.join(u','), "columns");
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

void tst_SearchTables::RowsAreFilledInTheirOrder()
{
    QStringList told;
    for (const int column : FoundPropertyFilling())
        told << FoundPropertyColumns()[static_cast<size_t>(column) - 1].Key;
    QCOMPARE(told.join(u','),
             u"ContactID,ContactName,MLS,Subdivision,Address1,Address2,City,State,Zip,SqFt,Rooms,Baths,Type,"
             "Construction,Floor,Roof,Parking,Pool,MaintFee,AssocFee,Waterfront,FloodZone,Rented,RentalBasis,"
             "RentalAmount,LeaseExpires,Elevator,PetsAllowed,Listed,Expired,AskingPrice,Sold,SoldDate,Closed,"
             "ClosingDate,SoldPrice"_s);
}

QTEST_GUILESS_MAIN(tst_SearchTables)
#include "tst_SearchTables.moc"
