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

[[nodiscard]] Date ToDate(const QDate& day);
[[nodiscard]] Date ToDate(const QDateTime& moment);
/// To the nearest second.
[[nodiscard]] QDateTime ToDateTime(Date date);

/// Today without the time.
[[nodiscard]] Date TodayDate();
