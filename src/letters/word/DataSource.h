#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <vector>

namespace Word {

/// The records of a merge: a text file in code page 1252, values separated by tabs. The first line names the columns,
/// each further one is a record; CR LF, CR or LF ends a line. There are no quotes: a tab or a line end inside a value
/// breaks its record. A record that is short reads as empty where it ends; values beyond the columns, and an empty line
/// at the end, are nothing.
class DataSource
{
public:
    /// Raises 53 where there is no such file, 75 where it cannot be read.
    [[nodiscard]] static DataSource Read(const QString& path);
    [[nodiscard]] static DataSource FromBytes(const QByteArray& bytes);

    [[nodiscard]] const QStringList& Columns() const { return m_columns; }
    /// The first column of that name, without regard to case; -1 where there is none.
    [[nodiscard]] qsizetype ColumnOf(const QString& name) const;
    [[nodiscard]] qsizetype RecordCount() const { return static_cast<qsizetype>(m_records.size()); }
    [[nodiscard]] QString Value(qsizetype record, qsizetype column) const;

private:
    QStringList m_columns;
    std::vector<QStringList> m_records;
};

} // namespace Word
