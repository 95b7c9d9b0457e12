#pragma once

#include "model/PropertyFields.h"

#include <QLatin1StringView>
#include <optional>
#include <span>

class Grid;

/// One column of the property list.
struct PropertyColumn
{
    QLatin1StringView Key;
    QLatin1StringView Header;
    int Width = 0;
    /// None for the three columns of icons and for "Closed".
    std::optional<PropertyField> Field = {};
};

/// The 37 columns in their order.
[[nodiscard]] std::span<const PropertyColumn> PropertyColumns();

/// The columns of icons, by their position from 1; each bears its icon as header.
namespace IconColumn {
inline constexpr int Default = 1;
inline constexpr int Camera = 2;
inline constexpr int Video = 3;
} // namespace IconColumn

void LoadPropColumns(Grid& grid);
