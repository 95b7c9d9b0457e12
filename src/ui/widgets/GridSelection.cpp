#include "ui/widgets/GridSelection.h"

#include <QHeaderView>
#include <QTableView>

GridSelection::GridSelection(QAbstractItemModel* model, QTableView* view)
    : QItemSelectionModel(model, view), m_view(view)
{
    connect(this, &QItemSelectionModel::selectionChanged, this, &GridSelection::Forget);
    connect(model, &QAbstractItemModel::rowsInserted, this, &GridSelection::Forget);
    connect(model, &QAbstractItemModel::rowsRemoved, this, &GridSelection::Forget);
    connect(model, &QAbstractItemModel::layoutChanged, this, &GridSelection::Forget);
}

void GridSelection::setCurrentIndex(const QModelIndex& index, QItemSelectionModel::SelectionFlags command)
{
    if (index.isValid() && m_view->isRowHidden(index.row()))
        return;
    QItemSelectionModel::setCurrentIndex(index, command);
}

void GridSelection::select(const QItemSelection& selection, QItemSelectionModel::SelectionFlags command)
{
    if (!m_view->verticalHeader()->sectionsHidden() || !(command & (Select | Toggle))) {
        QItemSelectionModel::select(selection, command);
        return;
    }
    QItemSelection shown;
    for (const QItemSelectionRange& range : selection) {
        int first = range.top();
        for (int row = range.top(); row <= range.bottom() + 1; ++row) {
            if (row <= range.bottom() && !m_view->isRowHidden(row))
                continue;
            if (row > first)
                shown.append(
                    QItemSelectionRange(model()->index(first, range.left()), model()->index(row - 1, range.right())));
            first = row + 1;
        }
    }
    QItemSelectionModel::select(shown, command);
}

bool GridSelection::IsHighlighted(int row) const
{
    Count();
    const auto position = static_cast<size_t>(row);
    return position < m_highlighted.size() && m_highlighted[position];
}

int GridSelection::HighlightedCount() const
{
    Count();
    return m_count;
}

void GridSelection::Count() const
{
    if (m_counted)
        return;
    m_highlighted.assign(static_cast<size_t>(model()->rowCount()), false);
    const QItemSelection ranges = selection();
    for (const QItemSelectionRange& range : ranges)
        std::fill(m_highlighted.begin() + range.top(), m_highlighted.begin() + range.bottom() + 1, true);
    m_count = static_cast<int>(std::count(m_highlighted.begin(), m_highlighted.end(), true));
    m_counted = true;
}
