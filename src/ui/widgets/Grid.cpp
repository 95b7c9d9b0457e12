#include "ui/widgets/Grid.h"

#include "core/RunTimeError.h"
#include "ui/widgets/GridDelegate.h"
#include "ui/widgets/GridFit.h"
#include "ui/widgets/GridModel.h"
#include "ui/widgets/GridSelection.h"
#include "ui/widgets/GridSort.h"

#include <QHeaderView>
#include <algorithm>
#include <numeric>
#include <utility>

namespace {

constexpr int CellMargin = 12;
constexpr int HeaderMargin = 16;

} // namespace

/// For its lifetime, moves and highlights are the code's own and raise no SelectionChange.
class Grid::ByCode
{
public:
    explicit ByCode(Grid& grid) : m_grid(grid) { ++m_grid.m_codeActs; }
    ~ByCode() { --m_grid.m_codeActs; }
    ByCode(const ByCode&) = delete;
    ByCode& operator=(const ByCode&) = delete;

private:
    Grid& m_grid;
};

Grid::Grid(QWidget* parent)
    : QTableView(parent), m_model(new GridModel(this)), m_selection(nullptr), m_fit(std::make_unique<GridFit>(*m_model))
{
    setModel(m_model);
    delete selectionModel();
    m_selection = new GridSelection(m_model, this);
    setSelectionModel(m_selection);
    setItemDelegate(new GridDelegate(this));
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    setTabKeyNavigation(false);
    setCornerButtonEnabled(false);
    setShowGrid(false);
    setWordWrap(false);
    setIconSize(QSize(16, 16));
    viewport()->setMouseTracking(true);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionsClickable(true);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    connect(horizontalHeader(), &QHeaderView::sectionClicked, this,
            [this](int section) { Q_EMIT ColumnClick(section + 1); });
    m_fit->SetFont(font());
    FitRowHeight();
}

Grid::~Grid() = default;

// Columns.

int Grid::SmallestWidth(const GridColumn& column) const
{
    int width = 0;
    if (!column.Header.isEmpty())
        width = horizontalHeader()->fontMetrics().horizontalAdvance(column.Header) +
                2 * style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, horizontalHeader());
    if (column.Sort == SortType::Date)
        width = std::max(width, fontMetrics().horizontalAdvance(QStringLiteral("00/00/0000")) +
                                    2 * (style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, this) + 2));
    return width;
}

int Grid::AddColumn(const GridColumn& column)
{
    m_model->AddColumn(column);
    const int section = Columns() - 1;
    setColumnWidth(section, column.Width > 0 ? std::max(column.Width, SmallestWidth(column)) : column.Width);
    setColumnHidden(section, !column.Visible);
    m_sortOrders.push_back(0);
    return Columns();
}

int Grid::Columns() const
{
    return m_model->columnCount();
}

int Grid::ColumnIndex(QStringView key) const
{
    const std::vector<GridColumn>& columns = m_model->ColumnList();
    const auto found =
        std::find_if(columns.begin(), columns.end(), [key](const GridColumn& column) { return column.Key == key; });
    return found == columns.end() ? 0 : static_cast<int>(found - columns.begin()) + 1;
}

const GridColumn& Grid::Column(int column) const
{
    if (column < 1 || column > Columns())
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
    return m_model->ColumnAt(column - 1);
}

void Grid::AutoWidthColumn(int column)
{
    const GridColumn& fitted = Column(column);
    if (isColumnHidden(column - 1))
        return;
    const int header = fitted.HeaderIcon.isEmpty() ? m_fit->TextWidth(fitted.Header) : iconSize().width();
    const int width = std::max(m_fit->Widest(column - 1) + CellMargin, header + HeaderMargin);
    if (width != columnWidth(column - 1))
        setColumnWidth(column - 1, width);
}

void Grid::SetColumnVisible(int column, bool visible)
{
    static_cast<void>(Column(column));
    setColumnHidden(column - 1, !visible);
}

// Rows.

void Grid::Clear()
{
    const ByCode byCode(*this);
    m_lateHighlight = false;
    m_model->Clear();
    m_fit->Clear();
}

void Grid::ClearWithColumns()
{
    const ByCode byCode(*this);
    m_lateHighlight = false;
    m_model->ClearWithColumns();
    m_fit->Clear();
    m_sortOrders.clear();
}

int Grid::Rows() const
{
    return m_model->Rows();
}

int Grid::AddRow(Long itemData, int before)
{
    const ByCode byCode(*this);
    if (before != 0)
        CheckRow(before);
    const int row = before == 0 ? Rows() : before - 1;
    m_model->InsertRow(row, itemData);
    m_fit->RowInserted(row);
    return row + 1;
}

void Grid::RemoveRow(int row)
{
    CheckRow(row);
    const ByCode byCode(*this);
    m_model->Publish();
    int heir = 0;
    const bool wasCurrent = row == SelectedRow();
    if (wasCurrent)
        heir = Neighbour(row, [row](int other) { return other == row; });
    if (heir != 0)
        m_selection->setCurrentIndex(m_model->index(heir - 1, currentIndex().column()), QItemSelectionModel::NoUpdate);
    m_model->RemoveRows(row - 1, 1);
    m_fit->RowsRemoved(row - 1, 1);
    if (wasCurrent)
        MoveTo(heir > row ? heir - 1 : heir, heir < row);
}

void Grid::RemoveRows(const std::vector<int>& rows)
{
    if (rows.empty())
        return;
    std::vector<bool> gone(static_cast<size_t>(Rows()) + 1, false);
    for (const int row : rows) {
        CheckRow(row);
        gone[static_cast<size_t>(row)] = true;
    }
    const ByCode byCode(*this);
    m_model->Publish();
    const auto isGone = [&gone](int row) { return static_cast<bool>(gone[static_cast<size_t>(row)]); };
    const int current = SelectedRow();
    const bool wasCurrent = current != 0 && isGone(current);
    const int heir = wasCurrent ? Neighbour(current, isGone) : 0;
    if (heir != 0)
        m_selection->setCurrentIndex(m_model->index(heir - 1, currentIndex().column()), QItemSelectionModel::NoUpdate);

    std::vector<int> order(static_cast<size_t>(Rows()));
    std::iota(order.begin(), order.end(), 0);
    const auto firstGone =
        std::stable_partition(order.begin(), order.end(), [&isGone](int row) { return !isGone(row + 1); });
    const int kept = static_cast<int>(firstGone - order.begin());
    m_model->Reorder(order);
    m_fit->RowsReordered();
    const int removed = Rows() - kept;
    m_model->RemoveRows(kept, removed);
    m_fit->RowsRemoved(kept, removed);
    if (wasCurrent)
        MoveTo(SelectedRow(), heir < current);
}

Long Grid::RowItemData(int row) const
{
    CheckRow(row);
    return m_model->ItemData(row - 1);
}

void Grid::SetRowItemData(int row, Long itemData)
{
    CheckRow(row);
    m_model->SetItemData(row - 1, itemData);
}

int Grid::FindRow(Long itemData) const
{
    return m_model->Find(itemData) + 1;
}

bool Grid::RowVisible(int row) const
{
    CheckRow(row);
    return row > m_model->rowCount() || !isRowHidden(row - 1);
}

void Grid::SetRowVisible(int row, bool visible)
{
    CheckRow(row);
    const ByCode byCode(*this);
    m_model->Publish();
    if (!visible && row == SelectedRow()) {
        const int heir = Neighbour(row, [row](int other) { return other == row; });
        SetRowSelected(row, false);
        MoveTo(heir, false);
    } else if (!visible) {
        SetRowSelected(row, false);
    }
    setRowHidden(row - 1, !visible);
}

// Selection.

int Grid::SelectedRow() const
{
    return currentIndex().row() + 1;
}

void Grid::SetSelectedRow(int row)
{
    if (row == 0) {
        const ByCode byCode(*this);
        m_lateHighlight = false;
        m_selection->clear();
        return;
    }
    CheckRow(row);
    if (Columns() == 0)
        return;
    int column = SelectedCol();
    if (column == 0) {
        column = 1;
        while (column < Columns() && isColumnHidden(column - 1))
            ++column;
    }
    SelectCell(row, column);
}

int Grid::SelectedCol() const
{
    return currentIndex().column() + 1;
}

void Grid::SetSelectedCol(int column)
{
    static_cast<void>(Column(column));
    const ByCode byCode(*this);
    if (SelectedRow() != 0)
        m_selection->setCurrentIndex(Cell(SelectedRow(), column), QItemSelectionModel::NoUpdate);
}

void Grid::SelectCell(int row, int column)
{
    CheckCell(row, column);
    const ByCode byCode(*this);
    m_lateHighlight = false;
    m_selection->setCurrentIndex(Cell(row, column), QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

bool Grid::CellSelected(int row, int column) const
{
    CheckCell(row, column);
    if (m_selection->IsHighlighted(row - 1))
        return true;
    return row == SelectedRow() && !m_lateHighlight && SelectionCount() == 0;
}

void Grid::SetRowSelected(int row, bool selected)
{
    CheckRow(row);
    if (Columns() == 0)
        return;
    const ByCode byCode(*this);
    m_selection->select(Cell(row, 1), (selected ? QItemSelectionModel::Select : QItemSelectionModel::Deselect) |
                                          QItemSelectionModel::Rows);
}

void Grid::ClearHighlight()
{
    const ByCode byCode(*this);
    m_lateHighlight = false;
    m_selection->clearSelection();
}

int Grid::SelectionCount() const
{
    return m_selection->HighlightedCount();
}

std::vector<int> Grid::HighlightedRows() const
{
    std::vector<int> rows;
    for (int row = 1; row <= Rows(); ++row)
        if (m_selection->IsHighlighted(row - 1))
            rows.push_back(row);
    return rows;
}

void Grid::EnsureVisible(int row, int column)
{
    CheckCell(row, column);
    scrollTo(Cell(row, column));
}

void Grid::SetMultiSelect(bool on)
{
    setSelectionMode(on ? QAbstractItemView::ExtendedSelection : QAbstractItemView::SingleSelection);
}

void Grid::focusInEvent(QFocusEvent* event)
{
    const bool hadCurrent = currentIndex().isValid();
    const ByCode byCode(*this);
    QTableView::focusInEvent(event);
    // Coming into a list must not choose a row.
    if (!hadCurrent && currentIndex().isValid())
        m_selection->clearCurrentIndex();
}

// Sorting.

void Grid::Sort(int column, SortType type, int direction)
{
    static_cast<void>(Column(column));
    const ByCode byCode(*this);
    std::vector<QString> cells;
    cells.reserve(static_cast<size_t>(Rows()));
    for (int row = 0; row < Rows(); ++row)
        cells.push_back(m_model->Text(row, column - 1));
    m_model->Reorder(SortedOrder(cells, type, direction));
    m_fit->RowsReordered();
}

int Grid::SortOrder(int column) const
{
    static_cast<void>(Column(column));
    return m_sortOrders[static_cast<size_t>(column) - 1];
}

void Grid::SetSortOrder(int column, int direction)
{
    static_cast<void>(Column(column));
    m_sortOrders[static_cast<size_t>(column) - 1] = direction;
}

// Look.

void Grid::SetRedraw(bool on)
{
    viewport()->setUpdatesEnabled(on);
    m_model->Hold(!on);
}

void Grid::SetHeaderVisible(bool visible)
{
    horizontalHeader()->setVisible(visible);
}

void Grid::SetBackgroundPicture(const QString& path)
{
    m_background.Load(path);
    viewport()->update();
}

void Grid::paintEvent(QPaintEvent* event)
{
    m_background.Paint(*viewport());
    QTableView::paintEvent(event);
}

void Grid::scrollContentsBy(int dx, int dy)
{
    QTableView::scrollContentsBy(dx, dy);
    // The picture stands still while the rows move over it.
    if (m_background.IsShown())
        viewport()->update();
}

void Grid::changeEvent(QEvent* event)
{
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        m_fit->SetFont(font());
        FitRowHeight();
    }
}

void Grid::FitRowHeight()
{
    verticalHeader()->setMinimumSectionSize(8);
    verticalHeader()->setDefaultSectionSize(std::max(fontMetrics().height() + 6, iconSize().height() + 6));
}

// Helpers.

void Grid::CheckRow(int row) const
{
    if (row < 1 || row > Rows())
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
}

void Grid::CheckCell(int row, int column) const
{
    if (row < 1 || row > Rows() || column < 1 || column > Columns())
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
}

QModelIndex Grid::Cell(int row, int column) const
{
    m_model->Publish();
    return m_model->index(row - 1, column - 1);
}

template <typename Gone>
int Grid::Neighbour(int row, Gone&& gone) const
{
    for (int below = row + 1; below <= Rows(); ++below)
        if (!gone(below) && !isRowHidden(below - 1))
            return below;
    for (int above = row - 1; above >= 1; --above)
        if (!gone(above) && !isRowHidden(above - 1))
            return above;
    return 0;
}

void Grid::MoveTo(int row, bool above)
{
    if (row == 0) {
        m_selection->clearCurrentIndex();
        return;
    }
    const QModelIndex cell = m_model->index(row - 1, std::max(currentIndex().column(), 0));
    m_selection->setCurrentIndex(cell, QItemSelectionModel::NoUpdate);
    if (!above) {
        m_selection->select(cell, QItemSelectionModel::Select | QItemSelectionModel::Rows);
        return;
    }
    m_lateHighlight = true;
    QMetaObject::invokeMethod(this, &Grid::HighlightLate, Qt::QueuedConnection);
}

void Grid::HighlightLate()
{
    if (!std::exchange(m_lateHighlight, false) || !currentIndex().isValid())
        return;
    const ByCode byCode(*this);
    m_selection->select(currentIndex(), QItemSelectionModel::Select | QItemSelectionModel::Rows);
}
