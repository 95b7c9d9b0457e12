// The procedures that all lists share; declared at the end of Grid.h.
#include "core/Dates.h"
#include "ui/widgets/Grid.h"
#include "ui/widgets/Theme.h"

#include <unordered_set>

int AddGridRow(Grid& grid, const QString& text, Long itemData)
{
    const int row = grid.AddRow(itemData);
    grid.SetCellText(row, 1, text);
    return row;
}

void RemoveRowsOf(Grid& grid, const std::vector<Long>& itemData)
{
    const std::unordered_set<Long> gone(itemData.begin(), itemData.end());
    std::vector<int> rows;
    for (int row = 1; row <= grid.Rows(); ++row)
        if (gone.contains(grid.RowItemData(row)))
            rows.push_back(row);
    grid.RemoveRows(rows);
}

bool AnySelectedCol(int row, const Grid& grid)
{
    // Rows are highlighted whole.
    return grid.Columns() > 0 && grid.CellSelected(row, 1);
}

std::vector<Long> HighlightedData(const Grid& grid)
{
    std::vector<Long> data;
    for (int row = 1; row <= grid.Rows(); ++row)
        if (AnySelectedCol(row, grid))
            data.push_back(grid.RowItemData(row));
    return data;
}

void MarkCell(Grid& grid, int row, int column, bool selected)
{
    if (!selected) {
        grid.ResetCellFont(row, column);
        grid.SetCellColor(row, column, QColor());
        return;
    }
    QFont boldItalic = grid.font();
    boldItalic.setBold(true);
    boldItalic.setItalic(true);
    grid.SetCellFont(row, column, boldItalic);
    grid.SetCellColor(row, column, Theme::Green);
}

void SortGrid(Grid& grid, int column)
{
    SortType type = grid.Column(column).Sort;
    int row = 1;
    while (row <= grid.Rows() && (!grid.RowVisible(row) || grid.CellText(row, column).isEmpty()))
        ++row;
    if (row <= grid.Rows() && IsDate(grid.CellText(row, column)))
        type = SortType::Date;
    const int direction = grid.SortOrder(1) == 2 ? 1 : 2;
    grid.SetSortOrder(1, direction);
    grid.Sort(column, type, direction);
    for (row = 1; row <= grid.Rows(); ++row) {
        if (!grid.RowVisible(row))
            continue;
        grid.SetSelectedRow(row);
        break;
    }
}
