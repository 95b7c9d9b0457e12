#include "letters/LetterFields.h"

using namespace Qt::StringLiterals;

namespace {

constexpr LetterField contactFields[]{
    {"Cell"_L1, "Cell"_L1},
    {"Company"_L1, "Company"_L1},
    {"Email"_L1, "Email"_L1},
    {"Ext"_L1, "Ext"_L1},
    {"Fax"_L1, "Fax"_L1},
    {"First Name"_L1, "FirstName"_L1},
    {"Formatted Name"_L1, "FormattedName"_L1},
    {"Home Phone"_L1, "HomePhone"_L1},
    {"Last Name"_L1, "LastName"_L1},
    {"MailAddr1"_L1, "MailAddr1"_L1},
    {"MailAddr2"_L1, "MailAddr2"_L1},
    {"MailCity"_L1, "MailCity"_L1},
    {"MailState"_L1, "MailState"_L1},
    {"MailZip"_L1, "MailZip"_L1},
    {"MailZip 4"_L1, "MailZip4"_L1},
    {"MI"_L1, "MI"_L1},
    {"Salutation"_L1, "Salutation"_L1},
    {"Spouse"_L1, "Spouse"_L1},
    {"Work Phone"_L1, "WorkPhone"_L1},
};

constexpr LetterField propertyFields[]{
    {"Address1"_L1, "Addr1"_L1},
    {"Address2"_L1, "Addr2"_L1},
    {"Asking Price"_L1, "AskingPrice"_L1},
    {"Association Fee"_L1, "AssocFee"_L1},
    {"Baths"_L1, "Baths"_L1},
    {"City"_L1, "City"_L1},
    {"Closing Date"_L1, "ClosingDate"_L1},
    {"Expiration Date"_L1, "ExpDate"_L1},
    {"Lease Exp Date"_L1, "LeaseExpires"_L1},
    {"Listing Date"_L1, "ListingDate"_L1},
    {"Maintenance Fee"_L1, "MaintFee"_L1},
    {"MLS#"_L1, "MLS"_L1},
    {"Rental Amount"_L1, "RentalAmount"_L1},
    {"Rental Basis"_L1, "RentalBasis"_L1},
    {"Rooms"_L1, "Rooms"_L1},
    {"Sold Date"_L1, "SoldDate"_L1},
    {"Sold Price"_L1, "SoldPrice"_L1},
    {"SqFt"_L1, "SqFt"_L1},
    {"State"_L1, "State"_L1},
    {"Subdivision"_L1, "Subdivision"_L1},
    {"Type"_L1, "PropType"_L1},
    {"Zip"_L1, "Zip"_L1},
    {"Zip 4"_L1, "Zip4"_L1},
};

} // namespace

std::span<const LetterField> ContactLetterFields()
{
    return contactFields;
}

std::span<const LetterField> PropertyLetterFields()
{
    return propertyFields;
}
