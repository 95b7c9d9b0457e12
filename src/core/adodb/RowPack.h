#pragma once

#include "core/adodb/ColumnList.h"
#include "core/adodb/Value.h"

#include <memory>
#include <optional>
#include <unordered_set>
#include <vector>

struct sqlite3_stmt;

/// The rows of a selection as the engine gave them, packed one behind the other, and unpacked value by value when
/// asked.
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

    /// A pack without rows, to be filled by `Append`.
    explicit RowPack(std::shared_ptr<ColumnList> columns) : m_columns(std::move(columns)) {}
    /// Appends a row of texts, one for each column; nothing stands for Null.
    void Append(const std::vector<std::optional<QString>>& texts);

    [[nodiscard]] qsizetype Rows() const { return static_cast<qsizetype>(m_rowStarts.size()); }
    [[nodiscard]] ColumnList& Columns() const { return *m_columns; }

    /// The value of a cell; `row` and `column` from 0.
    [[nodiscard]] Value At(qsizetype row, int column) const;

    enum class CellType : char
    {
        Null,
        Whole,
        Real,
        Text
    };
    /// A cell as it lies in the pack: a number, or a text in its stored form.
    struct Cell
    {
        CellType Type = CellType::Null;
        qint64 Whole = 0;
        double Real = 0;
        const char* Text = nullptr;
        qsizetype Length = 0;
    };
    /// A cell as it was fetched.
    [[nodiscard]] Cell CellAt(qsizetype row, int column) const;

    // Marks of single rows.
    void SetValue(qsizetype row, int column, Value value);
    void MarkDeleted(qsizetype row);
    [[nodiscard]] bool IsDeleted(qsizetype row) const;

private:
    void AppendRow(sqlite3_stmt* statement);
    void AppendText(const char* text, qsizetype length);
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

/// The amount of money that a number in the file stands for.
[[nodiscard]] Currency RoundedCurrency(double number);
