#include "core/Convert.h"

#include "core/Dates.h"
#include "core/Decimal.h"
#include "core/RunTimeError.h"

#include <algorithm>
#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

Decimal NumberIn(QStringView text)
{
    if (auto number = Decimal::Parse(text))
        return *std::move(number);
    throw RunTimeError(ErrorNumber::TypeMismatch);
}

template <typename Value>
Value OrOverflow(const std::optional<Value>& value)
{
    if (!value)
        throw RunTimeError(ErrorNumber::Overflow);
    return *value;
}

template <typename Whole>
Whole ToWhole(const Decimal& number)
{
    // One more fits below zero than above it.
    constexpr qint64 limit = std::numeric_limits<Whole>::max();
    const qint64 value = OrOverflow(number.ToScaled(0, limit + 1));
    if (value > limit)
        throw RunTimeError(ErrorNumber::Overflow);
    return static_cast<Whole>(value);
}

Currency ToCurrency(const Decimal& number)
{
    return Currency::FromScaled(OrOverflow(number.ToScaled(4, std::numeric_limits<qint64>::max())));
}

QString PlainText(const Decimal& number)
{
    QString text;
    if (number.IsNegative())
        text += u'-';
    if (number.WholeDigits() <= 0)
        text += u'0';
    for (qint64 place = -std::max<qint64>(number.WholeDigits(), 0); place < number.Decimals(); ++place) {
        if (place == 0)
            text += u'.';
        text += QLatin1Char(number.DigitAt(place));
    }
    return text;
}

QString ExponentText(const Decimal& number)
{
    QString text;
    if (number.IsNegative())
        text += u'-';
    const QLatin1StringView digits = number.Digits();
    text += digits.front();
    if (digits.size() > 1)
        text += u'.' + digits.sliced(1);
    const qint64 exponent = number.WholeDigits() - 1;
    text += exponent < 0 ? "E-"_L1 : "E+"_L1;
    return text + QString::number(std::abs(exponent)).rightJustified(2, u'0');
}

/// The text of a floating number that holds `significant` digits. Below 0.0001 it takes the exponent form.
QString FloatText(const Decimal& number, int significant)
{
    const bool plain = number.IsZero() || (number.WholeDigits() > -4 && number.WholeDigits() <= significant);
    return plain ? PlainText(number) : ExponentText(number);
}

/// A text whose blanks, tabs and line feeds do not count.
class LooseReader
{
public:
    explicit LooseReader(QStringView text) : m_rest(text) { Skip(); }

    /// The next character, in lower case; NUL at the end and for all that no number holds.
    [[nodiscard]] char Peek() const
    {
        if (m_rest.isEmpty() || m_rest.front() > u'z')
            return '\0';
        const char c = static_cast<char>(m_rest.front().unicode());
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    }
    [[nodiscard]] bool AtDigit() const { return Peek() >= '0' && Peek() <= '9'; }

    char Next()
    {
        const char c = Peek();
        m_rest = m_rest.sliced(1);
        Skip();
        return c;
    }

private:
    void Skip()
    {
        while (!m_rest.isEmpty() && (m_rest.front() == u' ' || m_rest.front() == u'\t' || m_rest.front() == u'\n'))
            m_rest = m_rest.sliced(1);
    }

    QStringView m_rest;
};

double PrefixedVal(LooseReader& reader)
{
    reader.Next();
    const int base = reader.Peek() == 'h' ? 16 : reader.Peek() == 'o' ? 8 : 0;
    if (base == 0)
        return 0;
    reader.Next();
    double value = 0;
    for (;;) {
        const char c = reader.Peek();
        const int digit = c >= '0' && c <= '9' ? c - '0' : c >= 'a' && c <= 'f' ? c - 'a' + 10 : base;
        if (digit >= base)
            return std::min(value, std::numeric_limits<double>::max());
        value = value * base + digit;
        reader.Next();
    }
}

} // namespace

bool IsNumeric(QStringView text)
{
    return Decimal::Parse(text).has_value();
}

Integer CInt(QStringView text)
{
    return ToWhole<Integer>(NumberIn(text));
}

Integer CInt(double value)
{
    return ToWhole<Integer>(Decimal::From(value));
}

Long CLng(QStringView text)
{
    return ToWhole<Long>(NumberIn(text));
}

Long CLng(double value)
{
    return ToWhole<Long>(Decimal::From(value));
}

Single CSng(QStringView text)
{
    const double value = CDbl(text);
    if (std::abs(value) > static_cast<double>(std::numeric_limits<Single>::max()))
        throw RunTimeError(ErrorNumber::Overflow);
    return static_cast<Single>(value);
}

double CDbl(QStringView text)
{
    return OrOverflow(NumberIn(text).ToDouble());
}

Currency CCur(QStringView text)
{
    return ToCurrency(NumberIn(text));
}

Currency CCur(double value)
{
    return ToCurrency(Decimal::From(value));
}

double Val(QStringView text)
{
    LooseReader reader(text);
    if (reader.Peek() == '&')
        return PrefixedVal(reader);

    // The number without its blanks, as the strict reader knows it.
    QString number;
    const auto takeSign = [&] {
        if (reader.Peek() == '-' || reader.Peek() == '+')
            number += QLatin1Char(reader.Next());
    };
    const auto takeDigits = [&] {
        while (reader.AtDigit())
            number += QLatin1Char(reader.Next());
    };
    takeSign();
    takeDigits();
    if (reader.Peek() == '.') {
        number += QLatin1Char(reader.Next());
        takeDigits();
    }
    if (reader.Peek() == 'e' || reader.Peek() == 'd') {
        reader.Next();
        const qsizetype before = number.size();
        number += u'e';
        takeSign();
        takeDigits();
        if (!number.back().isDigit())
            number.truncate(before);
    }
    const auto value = Decimal::Parse(number);
    if (!value)
        return 0;
    constexpr double largest = std::numeric_limits<double>::max();
    return value->ToDouble().value_or(value->IsNegative() ? -largest : largest);
}

QString CStr(Integer value)
{
    return QString::number(value);
}

QString CStr(Long value)
{
    return QString::number(value);
}

QString CStr(qint64 value)
{
    return QString::number(value);
}

QString CStr(Single value)
{
    return FloatText(Decimal::From(value), 7);
}

QString CStr(double value)
{
    return FloatText(Decimal::From(value), 15);
}

QString CStr(Currency value)
{
    return PlainText(Decimal::From(value));
}

QString CStr(Date value)
{
    const auto parts = PartsOf(value);
    if (!parts)
        return CStr(value.Serial());

    QString text;
    const bool withDay = parts->DayNumber != 0;
    if (withDay) {
        int year = 0;
        int month = 0;
        int day = 0;
        parts->Day().getDate(&year, &month, &day);
        text = QString::number(month) + u'/' + QString::number(day) + u'/' + QString::number(year);
    }
    if (withDay && parts->Seconds == 0)
        return text;

    const auto twoDigits = [](int number) { return QString::number(number).rightJustified(2, u'0'); };
    const int hour = parts->Seconds / 3600;
    if (withDay)
        text += u' ';
    text += QString::number(hour % 12 == 0 ? 12 : hour % 12) + u':' + twoDigits(parts->Seconds / 60 % 60) + u':' +
            twoDigits(parts->Seconds % 60);
    return text + (hour < 12 ? " AM"_L1 : " PM"_L1);
}

QString CStr(bool value)
{
    return value ? u"True"_s : u"False"_s;
}
