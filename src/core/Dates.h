#pragma once

#include "core/Types.h"

#include <QDateTime>
#include <QString>
#include <optional>

/// The date that a text names by the rules of the United States locale, or nothing.
[[nodiscard]] std::optional<Date> ParseDate(QStringView text);

/// True exactly when ParseDate gives a date.
[[nodiscard]] bool IsDate(QStringView text);

/// The date that a text names; where it names none, the number that it is, as a serial date. Raises 13 otherwise.
[[nodiscard]] Date CDate(QStringView text);

/// A day that is not valid gives a date out of all years.
[[nodiscard]] Date ToDate(const QDate& day);
[[nodiscard]] Date ToDate(const QDateTime& moment);
/// To the nearest second; not valid outside the years 100 to 9999.
[[nodiscard]] QDateTime ToDateTime(Date date);

/// A date taken apart, to the nearest second.
struct DateParts
{
    int DayNumber = 0; ///< days since December 30, 1899; 0 where the date is but a time of day
    int Seconds = 0;   ///< since midnight

    [[nodiscard]] QDate Day() const;
};
/// Nothing outside the years 100 to 9999.
[[nodiscard]] std::optional<DateParts> PartsOf(Date date);

/// Today without the time.
[[nodiscard]] Date TodayDate();
