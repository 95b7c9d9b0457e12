#include "ui/widgets/GridSort.h"

#include "core/Convert.h"
#include "core/Dates.h"

#include <algorithm>
#include <limits>
#include <numeric>

namespace {

constexpr double Lowest = -std::numeric_limits<double>::infinity();

double NumberKey(const QString& text)
{
    return IsNumeric(text) ? CDbl(text) : Lowest;
}

double DateKey(const QString& text)
{
    const std::optional<Date> date = ParseDate(text);
    return date ? date->Serial() : Lowest;
}

template <typename KeyType>
std::vector<int> OrderBy(const std::vector<KeyType>& keys, int direction)
{
    std::vector<int> order(keys.size());
    std::iota(order.begin(), order.end(), 0);
    const auto key = [&keys](int position) -> const KeyType& { return keys[static_cast<size_t>(position)]; };
    if (direction == 1)
        std::stable_sort(order.begin(), order.end(), [&key](int a, int b) { return key(a) < key(b); });
    else
        std::stable_sort(order.begin(), order.end(), [&key](int a, int b) { return key(b) < key(a); });
    return order;
}

} // namespace

std::vector<int> SortedOrder(const std::vector<QString>& cells, SortType type, int direction)
{
    if (type == SortType::Text) {
        std::vector<QString> keys(cells.size());
        std::transform(cells.begin(), cells.end(), keys.begin(),
                       [](const QString& text) { return text.toCaseFolded(); });
        return OrderBy(keys, direction);
    }
    std::vector<double> keys(cells.size());
    std::transform(cells.begin(), cells.end(), keys.begin(), type == SortType::Number ? NumberKey : DateKey);
    return OrderBy(keys, direction);
}
