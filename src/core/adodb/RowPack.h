#pragma once

#include "core/adodb/ColumnList.h"
#include "core/adodb/Value.h"

#include <memory>
#include <unordered_set>
#include <vector>

struct sqlite3_stmt;

/// The rows of a selection as the engine gave them, packed one behind the other, and unpacked value by value when asked.
class RowPack
{
public:
    /// Reads the rows of a prepared statement, whose columns are `columns`, by calling `step` until it gives false.
    template <typename Step>
    RowPack(sqlite3_stmt* statement, std::shared_ptr<ColumnList> columns, Step&& step) : m_columns(std::move(columns))
    {
        while (step())
            AppendRow(statement);
    }

    [[nodiscard]] qsizetype Rows() const { return static_cast<qsizetype>(m_rowStarts.size()); }
    [[nodiscard]] ColumnList& Columns() const { return *m_columns; }

    /// The value of a cell; `row` and `column` from 0.
    [[nodiscard]] Value At(qsizetype row, int column) const;

    // Marks of single rows.
    void SetValue(qsizetype row, int column, Value value);
    void MarkDeleted(qsizetype row);
    [[nodiscard]] bool IsDeleted(qsizetype row) const;

private:
    void AppendRow(sqlite3_stmt* statement);
    void LocateCells(qsizetype row) const;

    struct Change
    {
        qsizetype Row;
        int Column;
        Value NewValue;
    };

    std::shared_ptr<ColumnList> m_columns;
    std::vector<char> m_bytes;
    std::vector<size_t> m_rowStarts;
    std::vector<Change> m_changes;
    std::unordered_set<qsizetype> m_deleted;

    // The cells of the row that was asked for last.
    mutable qsizetype m_locatedRow = -1;
    mutable std::vector<size_t> m_cellStarts;
};
