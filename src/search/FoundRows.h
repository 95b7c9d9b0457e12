#pragma once

#include "search/FoundColumns.h"

#include <QStringView>
#include <optional>
#include <vector>

enum class SearchMode;

/// Fills the found list: its columns, a row for each record, and the hidden spacer row behind them, which keeps the
/// columns wide.
class FoundRows
{
public:
    static constexpr int NameColumn = 1;

    /// `grid` outlives this.
    explicit FoundRows(Grid& grid) : m_grid(grid) {}

    /// The columns of a mode, and no rows.
    void Begin(SearchMode mode);
    /// The spacer row.
    void End();

    void AddContactToFoundGrid(int row, const Contact& contact);
    void AddPropToFoundGrid(int row, const PropDetail& property);
    void MarkContact(int row, bool selected);

private:
    void LoadContactFoundCols();
    void LoadPropFoundCols();
    /// Makes the columns, unless the column `known` has this key already.
    void MakeColumns(const std::vector<GridColumn>& columns, int known, QStringView key);
    void AddBogusContactToFoundGrid();
    void AddBogusPropToFoundList();
    void AddSpacer(const std::vector<int>& columns);

    Grid& m_grid;
    /// Works out the cells of one search's properties.
    std::optional<FoundPropertyTexts> m_texts;
};
