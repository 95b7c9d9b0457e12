#pragma once

#include "core/adodb/Value.h"

#include <QByteArray>
#include <QString>
#include <memory>
#include <unordered_set>
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

struct PackedColumn
{
    QString Name;
    ColumnKind Kind;
};

/// The rows of a selection as the engine gave them, packed one behind the other, and unpacked value by value when asked.
class RowPack
{
public:
    /// Reads the columns of a prepared statement, and its rows by calling `step` until it gives false.
    template <typename Step>
    RowPack(sqlite3_stmt* statement, Step&& step) : RowPack(statement)
    {
        while (step())
            AppendRow(statement);
    }

    [[nodiscard]] qsizetype Rows() const { return static_cast<qsizetype>(m_rowStarts.size()); }
    [[nodiscard]] int Columns() const { return static_cast<int>(m_columns->size()); }
    [[nodiscard]] const PackedColumn& Column(int column) const { return (*m_columns)[static_cast<size_t>(column)]; }

    /// The value of a cell; `row` and `column` from 0.
    [[nodiscard]] Value At(qsizetype row, int column) const;

    // Marks of single rows.
    void SetValue(qsizetype row, int column, Value value);
    void MarkDeleted(qsizetype row);
    [[nodiscard]] bool IsDeleted(qsizetype row) const;

private:
    using ColumnList = std::vector<PackedColumn>;

    explicit RowPack(sqlite3_stmt* statement);
    void AppendRow(sqlite3_stmt* statement);
    void LocateCells(qsizetype row) const;

    struct Change
    {
        qsizetype Row;
        int Column;
        Value NewValue;
    };

    std::shared_ptr<const ColumnList> m_columns;
    std::vector<char> m_bytes;
    std::vector<size_t> m_rowStarts;
    std::vector<Change> m_changes;
    std::unordered_set<qsizetype> m_deleted;

    // The cells of the row that was asked for last.
    mutable qsizetype m_locatedRow = -1;
    mutable std::vector<size_t> m_cellStarts;
};
