#pragma once

#include "core/Types.h"
#include "ui/widgets/GridBackground.h"

#include <QColor>
#include <QString>
#include <QTableView>
#include <memory>
#include <optional>
#include <vector>

class GridFit;
class GridModel;
class GridSelection;

/// How a column's cells compare when it is sorted.
enum class SortType
{
    Text,      ///< without case
    Number,    ///< by value, cells that are no number lowest
    Date = 200 ///< by the date's value, cells that are no date lowest
};

/// One column as it is declared.
struct GridColumn
{
    QString Key = {};
    QString Header = {};
    QString HeaderIcon = {}; ///< name of a picture shown in place of the header text
    int Width = 100;         ///< pixels
    Qt::Alignment Alignment = Qt::AlignLeft | Qt::AlignVCenter;
    bool Visible = true;
    SortType Sort = SortType::Text;
    /// Where the header's text stands; without a place of its own it stands as the cells' do.
    std::optional<Qt::Alignment> HeaderAlignment = {};
};

/// The list of every window. Rows and columns count from 1; each row carries the ID of its record as item data.
/// SelectionChange is raised by the person's keys and mouse only: never by code, by sorting or by the removal of a row.
/// A hidden row is never current, highlighted or part of a range.
class Grid : public QTableView
{
    Q_OBJECT

public:
    explicit Grid(QWidget* parent = nullptr);
    ~Grid() override;

    // Columns.
    int AddColumn(const GridColumn& column);
    [[nodiscard]] int Columns() const;
    /// The position of the column with this key, 0 where there is none.
    [[nodiscard]] int ColumnIndex(QStringView key) const;
    [[nodiscard]] const GridColumn& Column(int column) const;
    /// Fits the column to the widest text that it now holds.
    void AutoWidthColumn(int column);
    void SetColumnVisible(int column, bool visible);

    // Rows.
    /// Takes all rows away and keeps the columns.
    void Clear();
    void ClearWithColumns();
    [[nodiscard]] int Rows() const;
    /// Adds a row at the end, or before row `before`; returns its number.
    int AddRow(Long itemData = 0, int before = 0);
    /// Takes a row away. When it was the current row, the next row (else the last) becomes current and highlighted; the
    /// highlight of a last row comes with the next turn of the event loop, so that a walk from the last row to the
    /// first that removes what is highlighted never eats its way up. Costs a move of 8 bytes for each row behind it
    /// (100,000 rows: some 50 µs).
    void RemoveRow(int row);
    /// Takes many rows away at once, in one pass over the grid however many they are.
    void RemoveRows(const std::vector<int>& rows);
    [[nodiscard]] Long RowItemData(int row) const;
    void SetRowItemData(int row, Long itemData);
    /// The first row with this item data, 0 where there is none.
    [[nodiscard]] int FindRow(Long itemData) const;
    [[nodiscard]] bool RowVisible(int row) const;
    void SetRowVisible(int row, bool visible);

    // Cells. A row or column that is not there raises 9.
    [[nodiscard]] QString CellText(int row, int column) const;
    void SetCellText(int row, int column, const QString& text);
    void SetCellText(int row, QStringView key, const QString& text);
    [[nodiscard]] QString CellIcon(int row, int column) const;
    /// Shows the picture of this name in the cell; "" takes it away.
    void SetCellIcon(int row, int column, const QString& name);
    [[nodiscard]] QColor CellColor(int row, int column) const;
    /// The text colour of a cell; an invalid colour goes back to the grid's own.
    void SetCellColor(int row, int column, const QColor& color);
    [[nodiscard]] QColor CellBackColor(int row, int column) const;
    void SetCellBackColor(int row, int column, const QColor& color);
    [[nodiscard]] QFont CellFont(int row, int column) const;
    void SetCellFont(int row, int column, const QFont& font);
    void ResetCellFont(int row, int column);

    // Selection. Rows are highlighted whole; the current row and column are one cell. 0 means none.
    [[nodiscard]] int SelectedRow() const;
    void SetSelectedRow(int row);
    [[nodiscard]] int SelectedCol() const;
    void SetSelectedCol(int column);
    /// Makes (row, column) the current cell and highlights only its row.
    void SelectCell(int row, int column);
    /// Whether the cell's row is highlighted. With nothing highlighted at all the current row counts, which is meant: a
    /// key pressed then works on it.
    [[nodiscard]] bool CellSelected(int row, int column) const;
    /// Highlights a row, or takes its highlight away; the current cell stays.
    void SetRowSelected(int row, bool selected);
    void ClearHighlight();
    /// How many rows are highlighted.
    [[nodiscard]] int SelectionCount() const;
    /// The highlighted rows from top to bottom: what a walk that removes rows should collect first.
    [[nodiscard]] std::vector<int> HighlightedRows() const;
    void EnsureVisible(int row, int column);
    /// Whether several rows can be highlighted together; they can at first.
    void SetMultiSelect(bool on);

    // Sorting.
    /// Sorts stably by a column; direction 1 is ascending, 2 descending. The current row and the highlights follow
    /// their rows.
    void Sort(int column, SortType type, int direction);
    /// The direction that is kept on a column; 0 at first.
    [[nodiscard]] int SortOrder(int column) const;
    void SetSortOrder(int column, int direction);

    // Look.
    /// With redraw off nothing is painted and nothing is told to the views cell by cell; for long fills.
    void SetRedraw(bool on);
    void SetHeaderVisible(bool visible);
    /// Shows a picture behind the rows; "" or an unreadable file shows none.
    void SetBackgroundPicture(const QString& path);

Q_SIGNALS:
    void SelectionChange();
    void ColumnClick(int column);
    void DblClick(int row, int column);
    void MouseDown(Qt::MouseButton button);
    void MouseUp(Qt::MouseButton button, QPoint globalPosition);
    void MouseMove();
    /// The menu key or Shift+F10: a popup belongs at `globalPosition`, below the current row. As a right press does, it
    /// leaves a highlight of two or more rows alone; otherwise only the current row is highlighted, where there is one.
    void MenuKey(QPoint globalPosition);
    /// A key that reaches the grid, before the grid's own use of it; `code` as KeyCode gives it: core/FieldRules.h for
    /// Delete, Enter, Esc.
    void KeyDown(int code);
    /// A key that types a character, or Backspace, Enter, Esc; after KeyDown. While somebody listens, typing does not
    /// search the list.
    void KeyPress(int keyAscii);

protected:
    void changeEvent(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyboardSearch(const QString& text) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void timerEvent(QTimerEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;

private:
    /// What a column needs in the letters of this system: its header, and a date where it holds dates.
    [[nodiscard]] int SmallestWidth(const GridColumn& column) const;
    class ByCode;
    template <typename Handler>
    bool ByPerson(Handler&& handler);
    void AskForMenu();
    void CheckRow(int row) const;
    void CheckCell(int row, int column) const;
    [[nodiscard]] QModelIndex Cell(int row, int column) const;
    /// The nearest row that can be current when `gone(row)` holds for the rows that cannot; below first, 0 where there
    /// is none.
    template <typename Gone>
    [[nodiscard]] int Neighbour(int row, Gone&& gone) const;
    void MoveTo(int row, bool above);
    void HighlightLate();
    void FitRowHeight();

    GridModel* m_model;
    GridSelection* m_selection;
    std::unique_ptr<GridFit> m_fit;
    GridBackground m_background;
    int m_personActs = 0;
    int m_codeActs = 0;
    bool m_personChanged = false;
    bool m_lateHighlight = false;
    std::vector<int> m_sortOrders;
};

/// Adds a row at the end with `text` in its first column.
int AddGridRow(Grid& grid, const QString& text, Long itemData = 0);
/// Takes away every row whose item data is one of these, in one pass.
void RemoveRowsOf(Grid& grid, const std::vector<Long>& itemData);
/// Whether any cell of the row is highlighted.
[[nodiscard]] bool AnySelectedCol(int row, const Grid& grid);
/// The item data of those rows, from top to bottom.
[[nodiscard]] std::vector<Long> HighlightedData(const Grid& grid);
/// Shows by the look of a cell whether the row's contact is Selected: bold, italic and green, or the grid's own.
void MarkCell(Grid& grid, int row, int column, bool selected);
/// The sort of a click on a column header: by date where the column's first filled cell is a date, otherwise by the
/// column's declared type. The direction is kept on column 1 whatever column was clicked, which is meant: the first
/// click on a fresh grid sorts with direction 2 and each later click on any column flips it. Row 1 becomes the selected
/// row.
void SortGrid(Grid& grid, int column);
