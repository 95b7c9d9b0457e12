#include "transfer/ImportedFields.h"

#include "core/adodb/Recordset.h"
#include "core/Convert.h"
#include "core/RunTimeError.h"
#include "model/Contact.h"
#include "model/PropDetail.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

template <typename Record, typename Type>
struct Place
{
    QLatin1StringView Name;
    Type Record::*Member;
};

template <typename Type>
using ContactPlace = Place<Contact, Type>;
template <typename Type>
using PropertyPlace = Place<PropDetail, Type>;

constexpr std::array contactTexts{
    ContactPlace<QString>{"Cell"_L1, &Contact::Cell},
    ContactPlace<QString>{"Company"_L1, &Contact::Company},
    ContactPlace<QString>{"Email"_L1, &Contact::Email},
    ContactPlace<QString>{"Ext"_L1, &Contact::Ext},
    ContactPlace<QString>{"Fax"_L1, &Contact::Fax},
    ContactPlace<QString>{"HomePhone"_L1, &Contact::HomePhone},
    ContactPlace<QString>{"MailAddr1"_L1, &Contact::MailAddr1},
    ContactPlace<QString>{"MailAddr2"_L1, &Contact::MailAddr2},
    ContactPlace<QString>{"MailCity"_L1, &Contact::MailCity},
    ContactPlace<QString>{"MailZip"_L1, &Contact::MailZip},
    ContactPlace<QString>{"MailZip4"_L1, &Contact::MailZip4},
    ContactPlace<QString>{"Notes"_L1, &Contact::Notes},
    ContactPlace<QString>{"ReferredBy"_L1, &Contact::ReferredBy},
    ContactPlace<QString>{"Salutation"_L1, &Contact::Salutation},
    ContactPlace<QString>{"Spouse"_L1, &Contact::Spouse},
    ContactPlace<QString>{"WorkPhone"_L1, &Contact::WorkPhone},
};

constexpr std::array propertyTexts{
    PropertyPlace<QString>{"Addr1"_L1, &PropDetail::Addr1},
    PropertyPlace<QString>{"Addr2"_L1, &PropDetail::Addr2},
    PropertyPlace<QString>{"City"_L1, &PropDetail::City},
    PropertyPlace<QString>{"MLS"_L1, &PropDetail::MLS},
    PropertyPlace<QString>{"Subdivision"_L1, &PropDetail::Subdivision},
    PropertyPlace<QString>{"Zip"_L1, &PropDetail::Zip},
    PropertyPlace<QString>{"Zip4"_L1, &PropDetail::Zip4},
};

constexpr std::array propertyDates{
    PropertyPlace<QString>{"ClosingDate"_L1, &PropDetail::ClosingDate},
    PropertyPlace<QString>{"LeaseExpires"_L1, &PropDetail::LeaseExpires},
    PropertyPlace<QString>{"ListingDate"_L1, &PropDetail::ListingDate},
    PropertyPlace<QString>{"ExpDate"_L1, &PropDetail::ExpDate},
    PropertyPlace<QString>{"SoldDate"_L1, &PropDetail::SoldDate},
};

constexpr std::array propertyNumbers{
    PropertyPlace<Single>{"Baths"_L1, &PropDetail::Baths},
    PropertyPlace<Single>{"Construction"_L1, &PropDetail::Construction},
    PropertyPlace<Single>{"RentalBasis"_L1, &PropDetail::RentalBasis},
    PropertyPlace<Single>{"Floor"_L1, &PropDetail::Floor},
    PropertyPlace<Single>{"Parking"_L1, &PropDetail::Parking},
    PropertyPlace<Single>{"Pool"_L1, &PropDetail::Pool},
    PropertyPlace<Single>{"PropType"_L1, &PropDetail::PropType},
    PropertyPlace<Single>{"Roof"_L1, &PropDetail::Roof},
    PropertyPlace<Single>{"Rooms"_L1, &PropDetail::Rooms},
    PropertyPlace<Single>{"State"_L1, &PropDetail::State},
};

constexpr std::array propertyAmounts{
    PropertyPlace<Currency>{"AssocFee"_L1, &PropDetail::AssocFee},
    PropertyPlace<Currency>{"AskingPrice"_L1, &PropDetail::AskingPrice},
    PropertyPlace<Currency>{"MaintFee"_L1, &PropDetail::MaintFee},
    PropertyPlace<Currency>{"SoldPrice"_L1, &PropDetail::SoldPrice},
};

constexpr std::array propertyFlags{"Elevator"_L1, "FloodZone"_L1, "Rented"_L1, "PetsAllowed"_L1, "Waterfront"_L1};

} // namespace

void SetImportedFields(Contact& contact, Recordset& row)
{
    for (const auto& [name, member] : contactTexts)
        contact.*member = row.Fields(name).Get().Text();
    contact.MailState = static_cast<Single>(Val(row.Fields("MailState"_L1).Get().Text()));
}

void SetImportedFields(PropDetail& property, Recordset& row)
{
    const auto filled = [&row](QLatin1StringView name) {
        Value value = row.Fields(name).Get();
        if (value.IsNull())
            throw RunTimeError(ErrorNumber::InvalidUseOfNull);
        return value;
    };
    for (const auto& [name, member] : propertyTexts)
        property.*member = filled(name).Text();
    for (const auto& [name, member] : propertyDates)
        property.*member = row.Fields(name).Get().Text();
    for (const auto& [name, member] : propertyNumbers)
        property.*member = filled(name).ToSingle();
    for (const auto& [name, member] : propertyAmounts)
        property.*member = filled(name).ToCurrency();
    for (const QLatin1StringView name : propertyFlags)
        (void)filled(name);
    property.SqFt = filled("SqFt"_L1).ToInteger();
    property.ContactID = filled("ContactID"_L1).ToLong();
    property.RecID = filled("ID"_L1).ToLong();
}
