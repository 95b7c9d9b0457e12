#include "search/FoundColumns.h"

#include "core/Clock.h"
#include "core/Convert.h"
#include "core/Dates.h"
#include "model/Contact.h"
#include "model/ContactFields.h"
#include "model/PropertyFields.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

QString ZipText(const QString& zip, const QString& zip4)
{
    return zip4.isEmpty() ? zip : zip + u'-' + zip4;
}

// Found contacts.

template <ContactField field>
QString FieldOf(const Contact& contact)
{
    return ContactText(contact, field);
}

QString NameOf(const Contact& contact)
{
    return FormatName(contact);
}

QString ZipOf(const Contact& contact)
{
    return ZipText(contact.MailZip, contact.MailZip4);
}

QString PropertyCountOf(const Contact& contact)
{
    return CStr(qint64{contact.Properties.Count()});
}

struct ContactColumn
{
    QLatin1StringView Key;
    QLatin1StringView Header;
    QString (*Text)(const Contact&);
    SortType Sort = SortType::Text;
};

constexpr std::array contactColumns{
    ContactColumn{"Name"_L1, "Name"_L1, NameOf},
    ContactColumn{"Phone"_L1, "Phone"_L1, FieldOf<ContactField::HomePhone>},
    ContactColumn{"WorkPhone"_L1, "Work Phone"_L1, FieldOf<ContactField::WorkPhone>},
    ContactColumn{"Ext"_L1, "Ext"_L1, FieldOf<ContactField::Ext>},
    ContactColumn{"Fax"_L1, "Fax"_L1, FieldOf<ContactField::Fax>},
    ContactColumn{"Cell"_L1, "Cell"_L1, FieldOf<ContactField::Cell>},
    ContactColumn{"Address1"_L1, "Address1"_L1, FieldOf<ContactField::MailAddr1>},
    ContactColumn{"Address2"_L1, "Address2"_L1, FieldOf<ContactField::MailAddr2>},
    ContactColumn{"City"_L1, "City"_L1, FieldOf<ContactField::MailCity>},
    ContactColumn{"State"_L1, "State"_L1, FieldOf<ContactField::MailState>},
    ContactColumn{"Zip"_L1, "Zip"_L1, ZipOf},
    ContactColumn{"Properties"_L1, "Properties"_L1, PropertyCountOf, SortType::Number},
};

// Found properties.

enum class Content
{
    OwnerID,
    OwnerName,
    Zip,
    Field,
    HasCome,   ///< whether the date has come
    DateValue, ///< the date in the form of all dates
    Nothing
};

struct PropertyColumn
{
    QLatin1StringView Key;
    QLatin1StringView Header;
    Content Kind;
    PropertyField Field = PropertyField::MLS;
    SortType Sort = SortType::Text;
};

constexpr PropertyColumn FieldColumn(QLatin1StringView key, QLatin1StringView header, PropertyField field)
{
    return {key, header, Content::Field, field};
}

/// Sorted by value: "$90,000.00" comes before "$250,000.00".
constexpr PropertyColumn NumberColumn(QLatin1StringView key, QLatin1StringView header, PropertyField field)
{
    return {key, header, Content::Field, field, SortType::Number};
}

constexpr PropertyColumn HasComeColumn(QLatin1StringView name, PropertyField date)
{
    return {name, name, Content::HasCome, date};
}

constexpr PropertyColumn DateColumn(QLatin1StringView key, QLatin1StringView header, PropertyField field)
{
    return {key, header, Content::DateValue, field, SortType::Date};
}

constexpr std::array propertyColumns{
    PropertyColumn{"ContactID"_L1, ""_L1, Content::OwnerID},
    PropertyColumn{"ContactName"_L1, "Contact"_L1, Content::OwnerName},
    FieldColumn("MLS"_L1, "MLS"_L1, PropertyField::MLS),
    FieldColumn("Subdivision"_L1, "Subdivision"_L1, PropertyField::Subdivision),
    FieldColumn("Address1"_L1, "Address1"_L1, PropertyField::Addr1),
    FieldColumn("Address2"_L1, "Address2"_L1, PropertyField::Addr2),
    FieldColumn("City"_L1, "City"_L1, PropertyField::City),
    FieldColumn("State"_L1, "State"_L1, PropertyField::State),
    PropertyColumn{"Zip"_L1, "Zip"_L1, Content::Zip},
    NumberColumn("SqFt"_L1, "Sq Ft"_L1, PropertyField::SqFt),
    NumberColumn("Rooms"_L1, "Rooms"_L1, PropertyField::Rooms),
    NumberColumn("Baths"_L1, "Baths"_L1, PropertyField::Baths),
    FieldColumn("Type"_L1, "Type"_L1, PropertyField::PropType),
    FieldColumn("Construction"_L1, "Construction"_L1, PropertyField::Construction),
    FieldColumn("Floor"_L1, "Floor"_L1, PropertyField::Floor),
    FieldColumn("Roof"_L1, "Roof"_L1, PropertyField::Roof),
    FieldColumn("Parking"_L1, "Parking"_L1, PropertyField::Parking),
    FieldColumn("Pool"_L1, "Pool"_L1, PropertyField::Pool),
    NumberColumn("MaintFee"_L1, "Maint Fee"_L1, PropertyField::MaintFee),
    NumberColumn("AssocFee"_L1, "Assoc Fee"_L1, PropertyField::AssocFee),
    FieldColumn("Waterfront"_L1, "Waterfront"_L1, PropertyField::Waterfront),
    FieldColumn("FloodZone"_L1, "Flood Zone"_L1, PropertyField::FloodZone),
    FieldColumn("Elevator"_L1, "Elevator"_L1, PropertyField::Elevator),
    FieldColumn("PetsAllowed"_L1, "Pets Allowed"_L1, PropertyField::PetsAllowed),
    FieldColumn("Rented"_L1, "Rented"_L1, PropertyField::Rented),
    FieldColumn("RentalBasis"_L1, "Rental Basis"_L1, PropertyField::RentalBasis),
    NumberColumn("RentalAmount"_L1, "Rental Amount"_L1, PropertyField::RentalAmount),
    DateColumn("LeaseExpires"_L1, "Lease Expires"_L1, PropertyField::LeaseExpires),
    HasComeColumn("Listed"_L1, PropertyField::ListingDate),
    PropertyColumn{"ListingDate"_L1, "Listing Date"_L1, Content::Nothing},
    HasComeColumn("Expired"_L1, PropertyField::ExpDate),
    PropertyColumn{"ExpDate"_L1, "Exp Date"_L1, Content::Nothing},
    NumberColumn("AskingPrice"_L1, "Asking Price"_L1, PropertyField::AskingPrice),
    HasComeColumn("Sold"_L1, PropertyField::SoldDate),
    DateColumn("SoldDate"_L1, "Sold Date"_L1, PropertyField::SoldDate),
    HasComeColumn("Closed"_L1, PropertyField::ClosingDate),
    DateColumn("ClosingDate"_L1, "Closing Date"_L1, PropertyField::ClosingDate),
    NumberColumn("SoldPrice"_L1, "Sold Price"_L1, PropertyField::SoldPrice),
};

template <typename Columns>
std::vector<GridColumn> GridColumnsOf(const Columns& columns)
{
    std::vector<GridColumn> list;
    for (const auto& column : columns)
        list.push_back(
            {.Key = column.Key, .Header = column.Header, .Visible = !column.Header.isEmpty(), .Sort = column.Sort});
    return list;
}

int ColumnOf(QLatin1StringView key)
{
    int column = 1;
    while (propertyColumns.at(static_cast<size_t>(column) - 1).Key != key)
        ++column;
    return column;
}

} // namespace

const std::vector<GridColumn>& FoundContactColumns()
{
    static const std::vector<GridColumn> columns = GridColumnsOf(contactColumns);
    return columns;
}

const std::vector<GridColumn>& FoundPropertyColumns()
{
    static const std::vector<GridColumn> columns = GridColumnsOf(propertyColumns);
    return columns;
}

QString FoundContactText(const Contact& contact, int column)
{
    return contactColumns.at(static_cast<size_t>(column) - 1).Text(contact);
}

const std::vector<int>& FoundPropertyFilling()
{
    static const std::vector<int> filling = [] {
        std::vector<int> columns;
        for (int column = 1; column <= static_cast<int>(propertyColumns.size()); ++column) {
            const PropertyColumn& declared = propertyColumns.at(static_cast<size_t>(column) - 1);
            if (declared.Kind != Content::Nothing && declared.Key != "Elevator"_L1 && declared.Key != "PetsAllowed"_L1)
                columns.push_back(column);
            // These two come late.
            if (declared.Key == "LeaseExpires"_L1) {
                columns.push_back(ColumnOf("Elevator"_L1));
                columns.push_back(ColumnOf("PetsAllowed"_L1));
            }
        }
        return columns;
    }();
    return filling;
}

FoundPropertyTexts::FoundPropertyTexts() : m_now(ToDate(Clock::Now())) {}

QString FoundPropertyTexts::Text(const PropDetail& property, int column)
{
    const PropertyColumn& declared = propertyColumns.at(static_cast<size_t>(column) - 1);
    const auto field = [&] { return PropertyText(property, declared.Field, PropertyForm::ListNo0); };
    switch (declared.Kind) {
    case Content::OwnerID:
        return CStr(property.ContactID);
    case Content::OwnerName:
        return FormatName(*ContactAt(property.ContactID));
    case Content::Zip:
        return ZipText(property.Zip, property.Zip4);
    case Content::Field:
        return field();
    case Content::HasCome:
        return HasCome(field());
    case Content::DateValue:
        return DateText(field());
    case Content::Nothing:
        break;
    }
    return {};
}

Date FoundPropertyTexts::DateOf(const QString& text)
{
    if (text != m_lastText) {
        m_lastDate = CDate(text);
        m_lastText = text;
    }
    return m_lastDate;
}

QString FoundPropertyTexts::HasCome(const QString& date)
{
    if (date.isEmpty())
        return u" "_s;
    return DateOf(date) <= m_now ? u"Yes"_s : u"No"_s;
}

QString FoundPropertyTexts::DateText(const QString& date)
{
    return date.isEmpty() ? QString() : CStr(DateOf(date));
}
