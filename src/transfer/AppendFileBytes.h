#pragma once

#include <QString>

/// Appends all bytes of a file to another one, with nothing between, and gives the former length of the target. Raises
/// the errors of files.
qint64 AppendFileBytes(const QString& source, const QString& target);
