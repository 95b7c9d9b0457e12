#pragma once

#include "editors/SheetRow.h"

#include <vector>

/// The nineteen rows of the contact sheet.
[[nodiscard]] std::vector<SheetRow> ContactRows();

/// Writes what stands in the control of the row in edit, its first letter as a capital, into the sheet.
void ApplyChanges(SheetEditor& sheet);
