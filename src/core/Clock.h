#pragma once

#include <QDateTime>
#include <functional>

/// The one place that knows what time it is. A test sets a source of its own to let midnight pass.
class Clock
{
public:
    [[nodiscard]] static QDateTime Now();
    /// Today without the time.
    [[nodiscard]] static QDate Today() { return Now().date(); }

    /// Replaces the system's clock; an empty function goes back to it.
    static void SetSource(std::function<QDateTime()> source);
};
