#pragma once

#include "core/Types.h"

#include <QString>

// How an alert shows in a list.

/// The date as "mm/dd/yyyy".
[[nodiscard]] QString AlertDateText(Date date);

/// The note on one line: every pair of carriage return and line feed is left out.
[[nodiscard]] QString AlertNoteText(const QString& note);

/// The picture of an alert: "red" today, "yellow" past, "white" future.
[[nodiscard]] QString AlertIcon(Date date, Date today);
