#pragma once

#include "core/Types.h"

#include <QString>
#include <QVarLengthArray>
#include <algorithm>
#include <optional>

/// A number by its decimal digits, as a person would write it down. Text, Single, Double and Currency all become one
/// before they are rounded, so that 0.125 and 2.675 round as they read and not as their binary form happens to lie.
class Decimal
{
public:
    enum class Half
    {
        ToEven,
        AwayFromZero
    };

    /// The number that the whole of a text is: blanks around it; a sign before or behind, or brackets for a negative
    /// one; one
    /// "$"; "," among the whole digits; one "."; an exponent; or "&H1F", "&O17". Nothing where it is none.
    [[nodiscard]] static std::optional<Decimal> Parse(QStringView text);

    /// By its 7-digit text. Raises 6 for what is not finite, as does the next.
    [[nodiscard]] static Decimal From(Single value);
    /// By its 15-digit text.
    [[nodiscard]] static Decimal From(double value);
    [[nodiscard]] static Decimal From(Currency value);
    [[nodiscard]] static Decimal FromWhole(quint64 magnitude);
    /// `digits` holds "0" to "9" only; the decimal point stands behind the first `point` of them.
    [[nodiscard]] static Decimal FromDigits(QLatin1StringView digits, qint64 point, bool negative);

    [[nodiscard]] bool IsZero() const { return m_digits.isEmpty(); }
    [[nodiscard]] bool IsNegative() const { return m_negative; }
    /// How many digits stand before the decimal point; 0 or less for a number below 1.
    [[nodiscard]] qint64 WholeDigits() const { return m_point; }
    /// How many digits must stand behind the decimal point to show the number in full.
    [[nodiscard]] qint64 Decimals() const { return IsZero() ? 0 : std::max<qint64>(m_digits.size() - m_point, 0); }
    /// The digit "0" to "9" at a place: 0 is the first behind the decimal point, -1 the last before it.
    [[nodiscard]] char DigitAt(qint64 place) const;
    /// All digits from the first to the last that is not 0; empty for 0.
    [[nodiscard]] QLatin1StringView Digits() const;

    /// Cuts to `places` digits behind the decimal point. What rounds to 0 loses its sign.
    void Round(qint64 places, Half half);

    /// The number times 10^`places`, rounded half to even; nothing where that goes beyond ±`limit`.
    [[nodiscard]] std::optional<qint64> ToScaled(int places, qint64 limit) const;
    /// The nearest Double; nothing where it is too large for one.
    [[nodiscard]] std::optional<double> ToDouble() const;

private:
    void Normalise();

    // The value is 0.DIGITS times 10^m_point; neither the first nor the last digit is 0.
    QVarLengthArray<char, 40> m_digits;
    qint64 m_point = 0;
    bool m_negative = false;

    friend class NumberReader;
};
