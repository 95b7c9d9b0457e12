#pragma once

class Contact;
class Grid;

/// Where the columns of the contact list stand that show no field.
namespace ListColumn {
inline constexpr int Alert = 1;
inline constexpr int Checked = 2;
inline constexpr int Prop = 3;
inline constexpr int FirstField = 4;
} // namespace ListColumn

/// Gives the contact list its columns where it has none yet.
void LoadContactColumns(Grid& grid);
/// Writes the fields of a contact.
void WriteContact(Grid& grid, int row, const Contact& contact);
/// Shows how many properties the row's contact has; without any, what was shown goes.
void WritePropertyCount(Grid& grid, int row, int count);
/// Shows curContact's alerts: their icon and count, and the names in red where one is due today.
void WriteAlerts(Grid& grid, int row);
