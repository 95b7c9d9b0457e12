#pragma once

#include <QString>

/// Merges one-page letters of three fields over so many records, and writes them as a document in the folder; gives its
/// file.
QString MakeLetters(const QString& folder, int records);
