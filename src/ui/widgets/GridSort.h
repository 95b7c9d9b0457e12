#pragma once

#include "ui/widgets/Grid.h"

#include <vector>

/// The order that sorts these cells stably: position n of the result names the cell that comes n-th. Direction 1 is
/// ascending, any other descending. Each cell's key is computed once.
[[nodiscard]] std::vector<int> SortedOrder(const std::vector<QString>& cells, SortType type, int direction);
