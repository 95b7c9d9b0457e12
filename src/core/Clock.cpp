#include "core/Clock.h"

#include <utility>

namespace {
std::function<QDateTime()> clockSource;
}

QDateTime Clock::Now()
{
    return clockSource ? clockSource() : QDateTime::currentDateTime();
}

void Clock::SetSource(std::function<QDateTime()> source)
{
    clockSource = std::move(source);
}
