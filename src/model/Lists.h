#pragma once

#include "core/Types.h"

#include <QString>
#include <QStringList>

// The fixed lists. A record stores the position of an entry, from 0, so the order of the entries is data and never
// changes.

/// The numbers by which GetIndex knows the lists.
namespace ListField {
inline constexpr int State = 6;
inline constexpr int PropType = 12;
inline constexpr int Construction = 13;
inline constexpr int Floor = 14;
inline constexpr int Roof = 15;
inline constexpr int Parking = 16;
inline constexpr int Pool = 17;
inline constexpr int FirstYesNo = 20;
inline constexpr int LastYesNo = 24;
inline constexpr int RentalBasis = 25;
} // namespace ListField

/// The entries of a list; none for a number that has no list.
[[nodiscard]] const QStringList& ListEntries(int field);

/// The position of a text in a list, compared exactly; 0 where it is not there or the number has no list.
[[nodiscard]] Integer GetIndex(const QString& text, int field);

/// The entry at a stored position, rounded half to even; "" where there is none.
[[nodiscard]] QString ListEntry(Single index, int field);
