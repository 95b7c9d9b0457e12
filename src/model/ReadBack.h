#pragma once

#include "core/Types.h"

#include <QString>

/// Runs the selection by which the ID of a row just inserted is learned, and gives the first value of its first row.
/// Where an older row carries the same values, that is the older row's ID. Raises 3021 where there is no row.
[[nodiscard]] Long ReadBackID(const QString& selection);
