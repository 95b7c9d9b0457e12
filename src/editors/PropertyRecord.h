#pragma once

#include "model/PropertyFields.h"

class SheetEditor;

// Which row of the property sheet is which field of the record. Rows count from 1, in the order of the fields.

[[nodiscard]] constexpr int RowOf(PropertyField field)
{
    return static_cast<int>(field) + 1;
}

[[nodiscard]] constexpr PropertyField FieldOf(int row)
{
    return static_cast<PropertyField>(row - 1);
}

/// Takes every field from the values of the sheet. False after a report, where a number or an amount is none or does
/// not fit.
[[nodiscard]] bool SetPropValues(PropDetail& property, const SheetEditor& sheet);

/// Writes every field into the values of the sheet.
void ShowPropValues(const PropDetail& property, SheetEditor& sheet);
