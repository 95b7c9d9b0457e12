#pragma once

#include "editors/SheetRow.h"

#include <vector>

/// The 33 rows of the property sheet.
[[nodiscard]] std::vector<SheetRow> PropertyRows();

/// Writes what stands in a row's control into the sheet, formatted as its field wants it, unless it stands there
/// already.
void ApplyPropertyChanges(SheetEditor& sheet, int row);
