#pragma once

#include <QString>

class Contact;

// Which row of the contact sheet is which field of the record. Rows count from 1.

namespace ContactRow {
inline constexpr int FirstName = 1;
inline constexpr int MI = 2;
inline constexpr int LastName = 3;
inline constexpr int Last = 19;
} // namespace ContactRow

/// A field as its row shows it.
[[nodiscard]] QString RowText(const Contact& contact, int row);

/// Takes a field from what its row holds.
void SetRowText(Contact& contact, int row, const QString& text);
