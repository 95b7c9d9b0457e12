#include "ui/widgets/GridDelegate.h"

void GridDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    if (option->backgroundBrush.style() != Qt::NoBrush && !index.data(Qt::ForegroundRole).isValid()) {
        const bool light = qGray(option->backgroundBrush.color().rgb()) > 128;
        option->palette.setColor(QPalette::Text, light ? Qt::black : Qt::white);
    }
    // The picture's lines are light on the accent; on the paler field of a list without focus they stay as they are.
    const bool idle = option->state.testFlag(QStyle::State_Selected) && !option->state.testFlag(QStyle::State_Active);
    if (idle && !option->icon.isNull()) {
        const QPixmap plain = option->icon.pixmap(option->decorationSize, option->widget->devicePixelRatioF());
        option->icon = QIcon(plain);
        option->icon.addPixmap(plain, QIcon::Selected);
    }
    if (option->text.isEmpty() && !option->icon.isNull()) {
        option->decorationPosition = QStyleOptionViewItem::Top;
        option->decorationAlignment = option->displayAlignment;
    }
}
