#pragma once

#include <QListWidget>

/// The selected line of a list, or null. The current line is not always selected: a list that gets the focus makes its
/// first line the current one.
[[nodiscard]] inline QListWidgetItem* Chosen(const QListWidget& list)
{
    return list.selectedItems().value(0);
}
