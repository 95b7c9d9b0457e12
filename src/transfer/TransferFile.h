#pragma once

#include <QIODevice>
#include <QString>

// The transfer file: XML rowsets (core/adodb/RowsetForm.h) one behind the other with nothing between them, in the order
//
//   1 Contacts   2 Alerts   3 PropDetail   4 Categories   5 SubCategories   6 FormLetters, of a backup only
//
// It has no header. The word "FormLetters", which the schema of the sixth names as its table, makes it a backup.

/// A file beside the database, under the name of a section on its way out or in.
[[nodiscard]] QString TemporaryFile(const QString& name);

/// Raises 55 where a file that the person chose is one of the temporary ones of this name, 70 where it is the database.
void RefuseOwnFile(const QString& chosen, const QStringList& temporaryNames);

/// Whether a transfer file is a database backup. It is read to its end. Raises 62 where it is empty.
[[nodiscard]] bool IsDatabaseBackup(QIODevice& file);
