#include "ui/widgets/GridDelegate.h"

void GridDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    if (option->backgroundBrush.style() != Qt::NoBrush && !index.data(Qt::ForegroundRole).isValid()) {
        const bool light = qGray(option->backgroundBrush.color().rgb()) > 128;
        option->palette.setColor(QPalette::Text, light ? Qt::black : Qt::white);
    }
    if (option->text.isEmpty() && !option->icon.isNull()) {
        option->decorationPosition = QStyleOptionViewItem::Top;
        option->decorationAlignment = option->displayAlignment;
    }
}
