#include "search/CriteriaRows.h"

using namespace Qt::StringLiterals;

namespace {

constexpr CriterionRow Value(QLatin1StringView label, QLatin1StringView caption, ValueInput input)
{
    return {label, caption, CriterionDialog::SetValue, input};
}

constexpr CriterionRow Amount(QLatin1StringView label, QLatin1StringView caption)
{
    return {label, caption, CriterionDialog::Currency, ValueInput::txtLongString};
}

constexpr CriterionRow Day(QLatin1StringView label, QLatin1StringView caption)
{
    return {label, caption, CriterionDialog::Date, ValueInput::txtLongString};
}

} // namespace

const std::vector<CriterionRow>& CriteriaRows(SearchMode mode)
{
    static const std::vector<CriterionRow> contacts{
        Value("First Name:"_L1, "First Name"_L1, ValueInput::txtLongString),
        Value("MI:"_L1, "MI"_L1, ValueInput::txtInitial),
        Value("Last Name:"_L1, "LastName"_L1, ValueInput::txtLongString),
        Value("Address1:"_L1, "Mailing Address1"_L1, ValueInput::txtLongString),
        Value("Address2:"_L1, "Mailing Address2"_L1, ValueInput::txtLongString),
        Value("City:"_L1, "Mailing City"_L1, ValueInput::txtLongString),
        Value("State:"_L1, "Mailing State"_L1, ValueInput::cboState),
        Value("Zip:"_L1, "Mailing Zip"_L1, ValueInput::txtShortInt),
        Value("Zip4:"_L1, "Mailing Zip4"_L1, ValueInput::txtShortInt),
        Value("Salutation:"_L1, "Salutation"_L1, ValueInput::txtLongString),
        Value("Spouse:"_L1, "Spouse"_L1, ValueInput::txtLongString),
        Value("Referred By:"_L1, "Referred By"_L1, ValueInput::txtLongString),
        Value("Company:"_L1, "Company"_L1, ValueInput::txtLongString),
        Value("Email:"_L1, "Email"_L1, ValueInput::txtLongString),
        Value("Home Phone:"_L1, "Home Phone"_L1, ValueInput::txtPhone),
        Value("Work Phone:"_L1, "Work Phone"_L1, ValueInput::txtPhone),
        Value("Ext:"_L1, "Extension"_L1, ValueInput::txtShortInt),
        Value("Cell Phone:"_L1, "Cell Phone"_L1, ValueInput::txtPhone),
        Value("Fax:"_L1, "Fax"_L1, ValueInput::txtPhone),
    };
    static const std::vector<CriterionRow> properties{
        Value("MLS#:"_L1, "MLS"_L1, ValueInput::txtLongString),
        Value("Subdivision:"_L1, "Subdivision"_L1, ValueInput::txtLongString),
        Value("Address1:"_L1, "Address1"_L1, ValueInput::txtLongString),
        Value("Address2:"_L1, "Address2"_L1, ValueInput::txtLongString),
        Value("City:"_L1, "City"_L1, ValueInput::txtLongString),
        Value("State:"_L1, "State"_L1, ValueInput::cboState),
        Value("Zip:"_L1, "Zip"_L1, ValueInput::txtShortInt),
        Value("Zip4:"_L1, "Zip4"_L1, ValueInput::txtShortInt),
        Value("Sq Ft:"_L1, "Sq Feet"_L1, ValueInput::txtShortInt),
        Value("Rooms:"_L1, "No. of Rooms"_L1, ValueInput::txtShortInt),
        Value("Baths:"_L1, "No. of Baths"_L1, ValueInput::txtShortInt),
        Value("Type:"_L1, "Property Type"_L1, ValueInput::cboPropType),
        Value("Construction:"_L1, "Construction"_L1, ValueInput::cboConstruction),
        Value("Floor:"_L1, "Floor Type"_L1, ValueInput::cboFloor),
        Value("Roof:"_L1, "Roof Type"_L1, ValueInput::cboRoof),
        Value("Parking:"_L1, "Parking"_L1, ValueInput::cboParking),
        Value("Pool:"_L1, "Pool"_L1, ValueInput::cboPool),
        Amount("Maint Fee:"_L1, "Maintenance Fee"_L1),
        Amount("Assoc Fee:"_L1, "Association Fee"_L1),
        Value("Waterfront:"_L1, "Waterfront"_L1, ValueInput::cboYesNo),
        Value("Flood Zone:"_L1, "Flood Zone"_L1, ValueInput::cboYesNo),
        Value("Elevator:"_L1, "Elevator"_L1, ValueInput::cboYesNo),
        Value("Pets Allowed:"_L1, "Pets Allowed"_L1, ValueInput::cboYesNo),
        Value("Rented:"_L1, "Rented"_L1, ValueInput::cboYesNo),
        Value("Rental Basis:"_L1, "Rental Basis"_L1, ValueInput::cboRentalBasis),
        Amount("Rental Amount:"_L1, "Rental Amount"_L1),
        Day("Lease Expires:"_L1, "Lease Expires"_L1),
        Value("Listed:"_L1, "Listed"_L1, ValueInput::cboYesNo),
        Day("Listing Date:"_L1, "Listing Date"_L1),
        Value("Expired:"_L1, "Expired"_L1, ValueInput::cboYesNo),
        Day("Exp Date:"_L1, "Listing Exp Date"_L1),
        Amount("Asking Price:"_L1, "Asking Price"_L1),
        // Captioned so, which is meant.
        Value("Sold:"_L1, "Rented"_L1, ValueInput::cboYesNo),
        Day("Sold Date:"_L1, "Sold Date"_L1),
        Value("Closed:"_L1, "Closed"_L1, ValueInput::cboYesNo),
        Day("Closing Date:"_L1, "Closing Date"_L1),
        Amount("Sold Price:"_L1, "Sold Price"_L1),
    };
    return mode == SearchMode::Contacts ? contacts : properties;
}

const std::vector<SearchedRow>& SearchedRows(SearchMode mode)
{
    static const std::vector<SearchedRow> contacts{
        {1, "FirstName"_L1},   {2, "MI"_L1},       {3, "LastName"_L1}, {4, "MailAddr1"_L1},   {5, "MailAddr2"_L1},
        {7, "cbostate"_L1},    {8, "MailZip"_L1},  {9, "MailZip4"_L1}, {10, "Salutation"_L1}, {11, "Spouse"_L1},
        {12, "ReferredBy"_L1}, {13, "Company"_L1}, {14, "Email"_L1},   {15, "HomePhone"_L1},  {16, "WorkPhone"_L1},
        {17, "Ext"_L1},        {18, "Cell"_L1},    {19, "Fax"_L1},
    };
    static const std::vector<SearchedRow> properties{
        {2, "Subdivision"_L1}, {3, "Addr1"_L1},         {4, "Addr2"_L1},         {5, "City"_L1},
        {6, "cbostate"_L1},    {7, "Zip"_L1},           {8, "Zip4"_L1},          {9, "SqFt"_L1},
        {10, "Rooms"_L1},      {11, "Baths"_L1},        {18, "MaintFee"_L1},     {19, "AssocFee"_L1},
        {12, "Type"_L1},       {13, "Construction"_L1}, {14, "Floor"_L1},        {15, "Roof"_L1},
        {16, "Parking"_L1},    {17, "Pool"_L1},         {20, "Waterfront"_L1},   {23, "Pets"_L1},
        {21, "Floodzone"_L1},  {24, "Rented"_L1},       {27, "LeaseExpires"_L1}, {25, "RentalBasis"_L1},
        {22, "Elevator"_L1},   {1, "MLS"_L1},           {28, "Listed"_L1},       {29, "ListingDate"_L1},
        {30, "Expired"_L1},    {31, "ExpDate"_L1},      {33, "Sold"_L1},         {34, "SoldDate"_L1},
        {35, "Closed"_L1},     {36, "ClosingDate"_L1},  {32, "AskingPrice"_L1},  {37, "SoldPrice"_L1},
    };
    return mode == SearchMode::Contacts ? contacts : properties;
}
