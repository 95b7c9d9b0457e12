#pragma once

#include "core/Types.h"

#include <QString>

// Conversions between text and numbers. Each takes the whole text or raises: 13 where it is no number, 6 where the
// number does not fit. Whole numbers round half to even.

[[nodiscard]] bool IsNumeric(QStringView text);

[[nodiscard]] Integer CInt(QStringView text);
[[nodiscard]] Integer CInt(double value);
[[nodiscard]] Long CLng(QStringView text);
[[nodiscard]] Long CLng(double value);
[[nodiscard]] Single CSng(QStringView text);
[[nodiscard]] double CDbl(QStringView text);
[[nodiscard]] Currency CCur(QStringView text);
[[nodiscard]] Currency CCur(double value);

/// The number at the start of a text; 0 where there is none. Blanks, tabs and line feeds are skipped anywhere. Never
/// fails.
[[nodiscard]] double Val(QStringView text);

/// The default text of a value: no thousands separators, "." as decimal point, no trailing zeros.
[[nodiscard]] QString CStr(Integer value);
[[nodiscard]] QString CStr(Long value);
[[nodiscard]] QString CStr(qint64 value);
/// Up to 7 significant digits; exponent form ("1E+07") from ten million on.
[[nodiscard]] QString CStr(Single value);
/// Up to 15 significant digits.
[[nodiscard]] QString CStr(double value);
/// Up to four decimals, no currency sign.
[[nodiscard]] QString CStr(Currency value);
/// "m/d/yyyy" without leading zeros; " h:mm:ss AM" where it is not midnight; only the time where there is no date.
[[nodiscard]] QString CStr(Date value);
[[nodiscard]] QString CStr(bool value);
