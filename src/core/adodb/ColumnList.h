#pragma once

#include <QString>
#include <vector>

struct sqlite3_stmt;

/// How the values of a column are kept, by the type that the table declares for it.
enum class ColumnKind
{
    Whole,
    Real,
    Currency,
    Text
};

/// The columns of a selection. A prepared form keeps one list for all its runs.
class ColumnList
{
public:
    explicit ColumnList(sqlite3_stmt* statement);
    /// Columns of texts.
    explicit ColumnList(const std::vector<QString>& names);

    [[nodiscard]] int Count() const { return static_cast<int>(m_columns.size()); }
    [[nodiscard]] const QString& Name(int column) const { return At(column).Name; }
    [[nodiscard]] ColumnKind Kind(int column) const { return At(column).Kind; }

    /// The position of a column by its name, case-blind; -1 where there is none.
    [[nodiscard]] int Find(QStringView name) const;
    /// The same for a caller that asked for column `after` before (-1 for none). Records ask for their columns in the
    /// same order each time, so the column that was asked for next the last time is tried first.
    [[nodiscard]] int Find(QLatin1StringView name, int after);

private:
    struct Column
    {
        QString Name;
        ColumnKind Kind;
    };
    [[nodiscard]] const Column& At(int column) const { return m_columns[static_cast<size_t>(column)]; }

    std::vector<Column> m_columns;
    std::vector<int> m_askedNext; ///< by the column before, counted from 1; 0 stands for none
};
