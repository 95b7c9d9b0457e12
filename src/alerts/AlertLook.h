#pragma once

#include "core/Types.h"

#include <QString>

class QWidget;

// How an alert shows in a list.

/// The date as "mm/dd/yyyy".
[[nodiscard]] QString AlertDateText(Date date);

/// The note on one line: every pair of carriage return and line feed is left out.
[[nodiscard]] QString AlertNoteText(const QString& note);

/// The picture of an alert: "red" today, "yellow" past, "white" future.
[[nodiscard]] QString AlertIcon(Date date, Date today);

/// A width for a column of such dates: `width`, or more where the control's font needs it.
[[nodiscard]] int DateColumnWidth(int width, const QWidget& control);
