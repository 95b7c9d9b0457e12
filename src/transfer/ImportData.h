#pragma once

/// Takes a transfer file that the person names: with `restore` a database backup, in the place of all data, otherwise
/// the contacts of another agency, into the data at hand.
void ImportData(bool restore);

/// Asks, and on Yes wipes all data, in the file and in memory; the settings stay. True when it wiped. The hourglass
/// stays on for what follows.
[[nodiscard]] bool DeleteAllData();
