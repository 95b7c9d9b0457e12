#pragma once

#include <QString>

struct BareContents;

/// The yardstick of a search: the rows of a sample in a plain file of the `sqlite3` shell, and what the shell takes to
/// count those that meet a condition.
class SqliteShell
{
public:
    /// Makes the file anew, with every column that a record has as text or number.
    SqliteShell(const QString& file, const BareContents& contents);

    struct Answer
    {
        long long Count = 0;
        /// Of the processor, by the shell's own timer; the quickest of several runs over the file once read.
        double Seconds = 0;
    };
    /// Ends the process where the shell gives no answer.
    [[nodiscard]] Answer Count(const QString& table, const QString& condition) const;

private:
    [[nodiscard]] QByteArray Run(const QByteArray& script) const;

    QString m_file;
};
