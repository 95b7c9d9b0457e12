#include "editors/PropertyColumns.h"

#include "ui/widgets/Grid.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

using enum PropertyField;

constexpr int iconWidth = 28;

constexpr std::array columns{
    PropertyColumn{"Default"_L1, ""_L1, iconWidth},
    PropertyColumn{"Camera"_L1, ""_L1, iconWidth},
    PropertyColumn{"Video"_L1, ""_L1, iconWidth},
    PropertyColumn{"MLS#"_L1, "MLS#"_L1, 80, MLS},
    PropertyColumn{"Subdivision"_L1, "Subdivision"_L1, 122, Subdivision},
    PropertyColumn{"Address1"_L1, "Address1"_L1, 152, Addr1},
    PropertyColumn{"Address2"_L1, "Address2"_L1, 92, Addr2},
    PropertyColumn{"City"_L1, "City"_L1, 112, City},
    PropertyColumn{"State"_L1, "State"_L1, 42, State},
    PropertyColumn{"Zip"_L1, "Zip"_L1, 52, Zip},
    PropertyColumn{"Zip4"_L1, "Zip4"_L1, 44, Zip4},
    PropertyColumn{"SqFt"_L1, "Sq Ft"_L1, 52, SqFt},
    PropertyColumn{"Rooms"_L1, "Rooms"_L1, 52, Rooms},
    PropertyColumn{"Baths"_L1, "Baths"_L1, 52, Baths},
    PropertyColumn{"Type"_L1, "Type"_L1, 92, PropType},
    PropertyColumn{"Construction"_L1, "Construction"_L1, 82, Construction},
    PropertyColumn{"Floor"_L1, "Floor"_L1, 112, Floor},
    PropertyColumn{"Roof"_L1, "Roof"_L1, 62, Roof},
    PropertyColumn{"Parking"_L1, "Parking"_L1, 112, Parking},
    PropertyColumn{"Pool"_L1, "Pool"_L1, 92, Pool},
    PropertyColumn{"MaintFee"_L1, "Maint Fee"_L1, 82, MaintFee},
    PropertyColumn{"AssocFee"_L1, "Assoc Fee"_L1, 82, AssocFee},
    PropertyColumn{"Waterfront"_L1, "Waterfront"_L1, 72, Waterfront},
    PropertyColumn{"FloodZone"_L1, "Flood Zone"_L1, 72, FloodZone},
    PropertyColumn{"Elevator"_L1, "Elevator"_L1, 62, Elevator},
    PropertyColumn{"PetsAllowed"_L1, "Pets Allowed"_L1, 82, PetsAllowed},
    PropertyColumn{"Rented"_L1, "Rented"_L1, 56, Rented},
    PropertyColumn{"RentalBasis"_L1, "Rental Basis"_L1, 82, RentalBasis},
    PropertyColumn{"RentalAmount"_L1, "Rental Amount"_L1, 92, RentalAmount},
    PropertyColumn{"LeaseExpires"_L1, "Lease Expires"_L1, 88, LeaseExpires},
    PropertyColumn{"ListingDate"_L1, "Listing Date"_L1, 88, ListingDate},
    PropertyColumn{"ExpDate"_L1, "Exp Date"_L1, 88, ExpDate},
    PropertyColumn{"AskingPrice"_L1, "Asking Price"_L1, 102, AskingPrice},
    PropertyColumn{"SoldDate"_L1, "Sold Date"_L1, 88, SoldDate},
    PropertyColumn{"Closed"_L1, "Closed"_L1, 56},
    PropertyColumn{"ClosingDate"_L1, "Closing Date"_L1, 88, ClosingDate},
    PropertyColumn{"SoldPrice"_L1, "Sold Price"_L1, 102, SoldPrice},
};

SortType SortOf(const PropertyColumn& column)
{
    if (!column.Field)
        return SortType::Text;
    switch (KindOf(*column.Field)) {
    case PropertyKind::Number:
    case PropertyKind::Money:
        return SortType::Number;
    case PropertyKind::Date:
        return SortType::Date;
    default:
        return SortType::Text;
    }
}

} // namespace

std::span<const PropertyColumn> PropertyColumns()
{
    return columns;
}

void LoadPropColumns(Grid& grid)
{
    for (const PropertyColumn& column : columns) {
        const QString key(column.Key);
        grid.AddColumn({.Key = key,
                        .Header = QString(column.Header),
                        .HeaderIcon = column.Header.isEmpty() ? key.toLower() : QString(),
                        .Width = column.Width,
                        .Sort = SortOf(column)});
    }
}
