#pragma once

#include "core/Types.h"

#include <QString>

// Masks for numbers ("$###,###.00", "(###) ###-####") and for dates and times ("mm/dd/yyyy", "hh:NN:SS am/pm"; the
// letters are case-blind, `nn` is always the minute).

/// A text through a mask. Text that is neither number nor date comes back as it is; "" gives "".
[[nodiscard]] QString Format(const QString& text, QStringView mask);
[[nodiscard]] QString Format(double value, QStringView mask);
[[nodiscard]] QString Format(Currency value, QStringView mask);
[[nodiscard]] QString Format(Date value, QStringView mask);

/// The digits of `digits` laid into the places of `mask` from the left, one by one; none is lost, a leading zero
/// included.
[[nodiscard]] QString FillMask(QStringView digits, QStringView mask);
