#include "core/Decimal.h"

#include "core/RunTimeError.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

// Far beyond the length of any text, so that a cut exponent never changes whether a number is too large or nothing at
// all.
constexpr qint64 farAway = 1'000'000'000'000;

constexpr bool IsDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

template <typename Float>
Decimal FromFloat(Float value, int significant)
{
    if (!std::isfinite(value))
        throw RunTimeError(ErrorNumber::Overflow);

    // Written as d.dddE±nn: one digit, the point, the others, and the exponent behind the "e".
    std::array<char, 40> buffer{};
    const auto written = std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::abs(value),
                                       std::chars_format::scientific, significant - 1);
    int exponent = 0;
    const char* mantissaEnd = buffer.data() + 1 + significant;
    const char* exponentStart = mantissaEnd + (mantissaEnd[1] == '+' ? 2 : 1);
    std::from_chars(exponentStart, written.ptr, exponent);
    buffer[1] = buffer[0];
    return Decimal::FromDigits(QLatin1StringView(buffer.data() + 1, significant), exponent + 1, std::signbit(value));
}

} // namespace

/// Reads one text as a number, from left to right.
class NumberReader
{
public:
    explicit NumberReader(QStringView text) : m_rest(text) {}

    std::optional<Decimal> Read()
    {
        SkipBlanks();
        if (m_rest.startsWith(u'&'))
            return ReadPrefixed();
        ReadLeading();
        if (!ReadDigits() || !ReadExponent())
            return std::nullopt;
        ReadTrailing();
        if (!m_rest.isEmpty() || m_open)
            return std::nullopt;
        m_number.m_negative = m_minus || m_brackets;
        m_number.Normalise();
        return m_number;
    }

private:
    bool Take(QChar c)
    {
        if (!m_rest.startsWith(c))
            return false;
        m_rest = m_rest.sliced(1);
        return true;
    }

    void SkipBlanks()
    {
        while (Take(u' ')) {
        }
    }

    bool TakeSign()
    {
        if (m_signed || m_brackets)
            return false;
        m_minus = m_rest.startsWith(u'-');
        m_signed = Take(u'-') || Take(u'+');
        return m_signed;
    }

    bool TakeDollar()
    {
        if (m_dollar)
            return false;
        m_dollar = Take(u'$');
        return m_dollar;
    }

    void ReadLeading()
    {
        for (;;) {
            SkipBlanks();
            if (TakeSign() || TakeDollar())
                continue;
            if (m_brackets || m_signed || !Take(u'('))
                return;
            m_brackets = m_open = true;
        }
    }

    void ReadTrailing()
    {
        for (;;) {
            SkipBlanks();
            if (TakeSign() || TakeDollar())
                continue;
            if (!m_open || !Take(u')'))
                return;
            m_open = false;
        }
    }

    bool ReadDigits()
    {
        bool any = false;
        bool behindPoint = false;
        for (; !m_rest.isEmpty(); m_rest = m_rest.sliced(1)) {
            const QChar c = m_rest.front();
            if (IsDigit(c)) {
                m_number.m_digits.append(static_cast<char>(c.unicode()));
                m_number.m_point += behindPoint ? 0 : 1;
                any = true;
            } else if (c == u'.' && !behindPoint) {
                behindPoint = true;
            } else if (c != u',' || behindPoint || !any) {
                break;
            }
        }
        return any;
    }

    bool ReadExponent()
    {
        if (!Take(u'e') && !Take(u'E') && !Take(u'd') && !Take(u'D'))
            return true;
        const bool minus = m_rest.startsWith(u'-');
        if (!Take(u'-'))
            Take(u'+');
        bool any = false;
        qint64 exponent = 0;
        for (; !m_rest.isEmpty() && IsDigit(m_rest.front()); m_rest = m_rest.sliced(1)) {
            exponent = std::min(exponent * 10 + (m_rest.front().unicode() - u'0'), farAway);
            any = true;
        }
        m_number.m_point += minus ? -exponent : exponent;
        return any;
    }

    std::optional<Decimal> ReadPrefixed()
    {
        Take(u'&');
        const int base = Take(u'H') || Take(u'h') ? 16 : Take(u'O') || Take(u'o') ? 8 : 0;
        while (m_rest.endsWith(u' '))
            m_rest.chop(1);
        if (base == 0)
            return std::nullopt;
        const QByteArray digits = m_rest.toLatin1();
        quint64 value = 0;
        const auto read = std::from_chars(digits.begin(), digits.end(), value, base);
        if (read.ec != std::errc{} || read.ptr != digits.end())
            return std::nullopt;
        return Decimal::FromWhole(value);
    }

    QStringView m_rest;
    Decimal m_number;
    bool m_signed = false;
    bool m_minus = false;
    bool m_dollar = false;
    bool m_brackets = false;
    bool m_open = false;
};

std::optional<Decimal> Decimal::Parse(QStringView text)
{
    return NumberReader(text).Read();
}

Decimal Decimal::From(Single value)
{
    return FromFloat(value, 7);
}

Decimal Decimal::From(double value)
{
    return FromFloat(value, 15);
}

Decimal Decimal::From(Currency value)
{
    const bool negative = value.Scaled() < 0;
    const auto scaled = static_cast<quint64>(value.Scaled());
    Decimal number = FromWhole(negative ? 0 - scaled : scaled);
    number.m_negative = negative;
    if (!number.IsZero())
        number.m_point -= 4;
    return number;
}

Decimal Decimal::FromWhole(quint64 magnitude)
{
    std::array<char, 24> buffer{};
    const auto written = std::to_chars(buffer.data(), buffer.data() + buffer.size(), magnitude);
    const qsizetype length = written.ptr - buffer.data();
    return FromDigits(QLatin1StringView(buffer.data(), length), length, false);
}

Decimal Decimal::FromDigits(QLatin1StringView digits, qint64 point, bool negative)
{
    Decimal number;
    number.m_digits.append(digits.data(), digits.size());
    number.m_point = point;
    number.m_negative = negative;
    number.Normalise();
    return number;
}

char Decimal::DigitAt(qint64 place) const
{
    const qint64 index = m_point + place;
    return index >= 0 && index < m_digits.size() ? m_digits[static_cast<qsizetype>(index)] : '0';
}

QLatin1StringView Decimal::Digits() const
{
    return QLatin1StringView(m_digits.constData(), m_digits.size());
}

void Decimal::Round(qint64 places, Half half)
{
    const qint64 kept = m_point + places;
    if (kept >= m_digits.size())
        return;

    bool up = false;
    if (kept >= 0) {
        const auto first = static_cast<qsizetype>(kept);
        // The last digit is never 0, so that a single 5 is the exact half and more digits are more than it.
        const bool exactHalf = m_digits[first] == '5' && first == m_digits.size() - 1;
        const bool odd = first > 0 && (m_digits[first - 1] - '0') % 2 == 1;
        up = exactHalf ? half == Half::AwayFromZero || odd : m_digits[first] >= '5';
    }
    m_digits.resize(static_cast<qsizetype>(std::max<qint64>(kept, 0)));
    if (up) {
        while (!m_digits.isEmpty() && m_digits.last() == '9')
            m_digits.removeLast();
        if (m_digits.isEmpty()) {
            m_digits.append('1');
            ++m_point;
        } else {
            ++m_digits.last();
        }
    }
    Normalise();
}

std::optional<qint64> Decimal::ToScaled(int places, qint64 limit) const
{
    Decimal rounded = *this;
    rounded.Round(places, Half::ToEven);
    if (rounded.IsZero())
        return 0;
    if (rounded.m_point + places > std::numeric_limits<quint64>::digits10)
        return std::nullopt;
    quint64 magnitude = 0;
    for (qint64 place = -rounded.m_point; place < places; ++place)
        magnitude = magnitude * 10 + static_cast<quint64>(rounded.DigitAt(place) - '0');
    if (magnitude > static_cast<quint64>(limit))
        return std::nullopt;
    const auto value = static_cast<qint64>(magnitude);
    return m_negative ? -value : value;
}

std::optional<double> Decimal::ToDouble() const
{
    if (IsZero() || m_point < -400)
        return 0.0;
    if (m_point > 400)
        return std::nullopt;
    QByteArray text = m_negative ? "-0."_ba : "0."_ba;
    text.append(m_digits.constData(), m_digits.size()).append('e').append(QByteArray::number(m_point));
    double value = 0;
    const auto read = std::from_chars(text.cbegin(), text.cend(), value);
    if (read.ec == std::errc{} && std::isfinite(value))
        return value;
    return m_point > 0 ? std::nullopt : std::optional(0.0);
}

void Decimal::Normalise()
{
    while (!m_digits.isEmpty() && m_digits.last() == '0')
        m_digits.removeLast();
    const auto firstUsed = std::ranges::find_if(m_digits, [](char digit) { return digit != '0'; });
    const qsizetype leading = firstUsed - m_digits.begin();
    m_digits.remove(0, leading);
    m_point -= leading;
    if (m_digits.isEmpty()) {
        m_point = 0;
        m_negative = false;
    }
}
