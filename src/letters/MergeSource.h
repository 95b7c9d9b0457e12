#pragma once

#include <QString>

class Recordset;
class Value;

// The tab-separated files that the word processor merges from. Nothing in them is quoted or escaped.

/// What the mail merge writes for a column: of a list the entry, of a price the formatted amount, of any other the
/// value's text.
[[nodiscard]] QString MergeValue(const QString& column, const Value& value);

/// The mail merge's file: `header` and each row of the recordset, in the order of its columns, with a tab behind every
/// value. Raises 3021 where there is no row.
[[nodiscard]] QString MergeSource(const QString& header, Recordset& rows);

/// The labels' file: their seven columns with tabs between. Raises 3021 where there is no row, 94 for a state that is
/// Null.
[[nodiscard]] QString LabelSource(Recordset& rows);

/// Writes a text anew as a file in code page 1252 that only its owner can read. Raises 76 where the folder is not
/// there, 70 where it cannot be written to, 61 where the disk is full.
void WriteSourceFile(const QString& path, const QString& text);
