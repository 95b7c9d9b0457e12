#pragma once

#include <QItemSelectionModel>
#include <vector>

class QTableView;

/// The highlighted rows and the current cell of a grid. The one gate through which every highlight and every move
/// passes, whether it comes of a key, the mouse or code: what would touch a hidden row is kept out here.
class GridSelection : public QItemSelectionModel
{
    Q_OBJECT

public:
    GridSelection(QAbstractItemModel* model, QTableView* view);

    void setCurrentIndex(const QModelIndex& index, QItemSelectionModel::SelectionFlags command) override;
    void select(const QItemSelection& selection, QItemSelectionModel::SelectionFlags command) override;
    using QItemSelectionModel::select;

    /// Whether a row (from 0) is highlighted; cheap enough to be asked of every row.
    [[nodiscard]] bool IsHighlighted(int row) const;
    [[nodiscard]] int HighlightedCount() const;

private:
    void Count() const;
    void Forget() { m_counted = false; }

    QTableView* m_view;
    mutable std::vector<bool> m_highlighted;
    mutable int m_count = 0;
    mutable bool m_counted = false;
};
