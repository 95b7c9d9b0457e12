#pragma once

#include <QtGlobal>
#include <compare>

// The value types of the records and the tables. Their widths are design: what does not fit raises an overflow.
using Integer = qint16;
using Long = qint32;
using Single = float;

/// An amount of money: fixed point with four decimal places, kept as a whole number of ten-thousandths.
class Currency
{
public:
    static constexpr qint64 Scale = 10'000;

    constexpr Currency() = default;
    [[nodiscard]] static constexpr Currency FromScaled(qint64 tenThousandths)
    {
        Currency amount;
        amount.m_scaled = tenThousandths;
        return amount;
    }

    [[nodiscard]] constexpr qint64 Scaled() const { return m_scaled; }
    [[nodiscard]] constexpr bool IsZero() const { return m_scaled == 0; }
    friend constexpr auto operator<=>(const Currency&, const Currency&) = default;

private:
    qint64 m_scaled = 0;
};

/// A point in time as a serial number: days since December 30, 1899, the time of day as the fraction.
class Date
{
public:
    constexpr Date() = default;
    constexpr explicit Date(double serial) : m_serial(serial) {}

    [[nodiscard]] constexpr double Serial() const { return m_serial; }
    friend constexpr auto operator<=>(const Date&, const Date&) = default;

private:
    double m_serial = 0;
};
