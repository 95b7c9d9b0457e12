#pragma once

#include <algorithm>
#include <chrono>
#include <vector>

/// The middle one of many additions: a disk that others write to as well makes some of them wait.
template <typename Add>
double MedianSeconds(const Add& add)
{
    constexpr int times = 51;
    std::vector<double> seconds;
    for (int i = 0; i < times; ++i) {
        const auto begin = std::chrono::steady_clock::now();
        add(i);
        seconds.push_back(std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count());
    }
    std::ranges::nth_element(seconds, seconds.begin() + times / 2);
    return seconds[times / 2];
}
