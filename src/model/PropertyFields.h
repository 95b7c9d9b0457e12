#pragma once

#include "core/Types.h"
#include "model/PropDetail.h"

#include <QString>

/// The fields of a property that the person sees. Sheets, lists, searches, merges and reports are tables over these.
enum class PropertyField
{
    MLS,
    Subdivision,
    Addr1,
    Addr2,
    City,
    State,
    Zip,
    Zip4,
    SqFt,
    Rooms,
    Baths,
    PropType,
    Construction,
    Floor,
    Roof,
    Parking,
    Pool,
    MaintFee,
    AssocFee,
    Waterfront,
    FloodZone,
    Elevator,
    PetsAllowed,
    Rented,
    RentalBasis,
    RentalAmount,
    LeaseExpires,
    ListingDate,
    ExpDate,
    AskingPrice,
    SoldDate,
    ClosingDate,
    SoldPrice
};

inline constexpr int PropertyFieldCount = static_cast<int>(PropertyField::SoldPrice) + 1;

enum class PropertyKind
{
    Text,
    List,   ///< the position of an entry in a fixed list
    Number, ///< SqFt, Rooms, Baths
    Money,
    Flag, ///< "Yes", "No" or ""
    Date  ///< a text, as it was typed
};
[[nodiscard]] PropertyKind KindOf(PropertyField field);

/// The number of the fixed list (model/Lists.h) of a List or Flag field; 0 for any other.
[[nodiscard]] int ListOf(PropertyField field);

/// How numbers and amounts are written. All other fields read the same everywhere: a list field as its entry, the rest
/// as they stand.
enum class PropertyForm
{
    List,    ///< in lists and reports: fees and rent "$###,###.00", prices "$##,###,###.00", 0 as "$.00" and "0"
    ListNo0, ///< the same, with an empty text for an amount or a number of 0
    Sheet,   ///< in the sheet: fees and rent "$###,###.00", prices "$###,###,###", an amount of 0 empty
    Plain    ///< the bare value: "1250.5"
};

/// The field as the person sees it.
[[nodiscard]] QString PropertyText(const PropDetail& property, PropertyField field,
                                   PropertyForm form = PropertyForm::List);

/// The text itself of a Text, Flag or Date field; null for any other.
[[nodiscard]] const QString* PropertyStoredText(const PropDetail& property, PropertyField field);

/// The amount of a Money field; raises 13 for any other.
[[nodiscard]] Currency PropertyMoney(const PropDetail& property, PropertyField field);

/// Takes the field from what the person typed: of a list field the entry's position, 0 for a text that is none; a
/// number by what stands at its start; an amount with or without "$" and ",". Raises 6 where the number does not fit,
/// 13 for an amount that is none.
void SetPropertyText(PropDetail& property, PropertyField field, const QString& text);
