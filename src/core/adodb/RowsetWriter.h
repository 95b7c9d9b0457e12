#pragma once

#include <QByteArray>
#include <QString>
#include <vector>

class QIODevice;
class RowPack;

/// A column as a rowset's schema tells it.
struct RowsetColumn
{
    QString Name;
    QByteArray DeclaredType; ///< as the table declares it: LONG, REAL4, TEXT ...
    bool Nullable = true;
    bool AutoNumbered = false; ///< the key of the table
};

/// Writes rows of a table as one XML rowset (RowsetForm.h): UTF-8 without a mark or a declaration, values in single
/// quotes, lines ending in CR LF but for the last, which is "</xml>" and nothing more. The first columns of `rows` are
/// `columns`; what stands behind them is not written. Line breaks and tabs in a value are written as references, so
/// that every reader gives them back. What XML can't carry (other controls, unpaired surrogates, U+FFFE, U+FFFF) is
/// written as U+FFFD: whatever was written can be read. Raises 61 where the disk is full, 75 where it can't be written.
void WriteRowset(QIODevice& device, const QString& table, const std::vector<RowsetColumn>& columns,
                 const RowPack& rows);

/// Appends a text as it lies in the file (StoredText.h) to an attribute's value in single quotes.
void AppendEscaped(QByteArray& xml, const char* text, qsizetype length);
