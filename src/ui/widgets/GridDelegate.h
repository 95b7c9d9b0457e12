#pragma once

#include <QStyledItemDelegate>

/// Paints a grid's cells: text on a coloured cell stays readable in any palette, and a cell that holds only an icon
/// shows it in the column's alignment.
class GridDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};
