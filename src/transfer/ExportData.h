#pragma once

#include <QString>

/// Writes a transfer file that the person names: the whole database with the mode "All", otherwise the contacts that
/// GetSelected gives for the mode, with what belongs to them.
void ExportData(const QString& mode);

/// The IDs of the chosen contacts, joined by ", ": of the Selected set ("Selected"), or of the highlighted rows of the
/// found list ("Highlighted"); "" for any other mode.
[[nodiscard]] QString GetSelected(const QString& mode);
