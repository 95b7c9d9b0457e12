#pragma once

#include <QString>
#include <functional>

/// Opens a file with the system's default program for it. False where there is no such program.
[[nodiscard]] bool OpenFile(const QString& path);

/// Stands in for the system: gets the path, says whether it was opened. For tests; an empty function goes back to the
/// system.
void SetFileOpener(std::function<bool(const QString& path)> opener);
