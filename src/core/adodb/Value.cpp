#include "core/adodb/Value.h"

#include "core/Convert.h"
#include "core/RunTimeError.h"

#include <limits>

namespace {

template <typename... Cases>
struct Match : Cases...
{
    using Cases::operator()...;
};
// clang 14 does not deduce an aggregate by itself.
template <typename... Cases>
Match(Cases...) -> Match<Cases...>;

[[noreturn]] void RaiseNull()
{
    throw RunTimeError(ErrorNumber::InvalidUseOfNull);
}

/// A whole number in the range of `Target`, or an overflow.
template <typename Target>
Target Narrow(qint64 value)
{
    if (value < std::numeric_limits<Target>::min() || value > std::numeric_limits<Target>::max())
        throw RunTimeError(ErrorNumber::Overflow);
    return static_cast<Target>(value);
}

double ToDouble(Currency amount)
{
    return static_cast<double>(amount.Scaled()) / static_cast<double>(Currency::Scale);
}

} // namespace

QString Value::Text() const
{
    return std::visit(Match{[](std::monostate) { return QString(); }, [](const QString& text) { return text; },
                            [](auto number) { return CStr(number); }},
                      m_value);
}

Long Value::ToLong() const
{
    return std::visit(
        Match{[](std::monostate) -> Long { RaiseNull(); }, [](qint64 whole) { return Narrow<Long>(whole); },
              [](Single number) { return CLng(static_cast<double>(number)); },
              [](Currency amount) { return CLng(ToDouble(amount)); }, [](const QString& text) { return CLng(text); }},
        m_value);
}

Integer Value::ToInteger() const
{
    return Narrow<Integer>(ToLong());
}

Single Value::ToSingle() const
{
    return std::visit(Match{[](std::monostate) -> Single { RaiseNull(); },
                            [](qint64 whole) { return static_cast<Single>(whole); },
                            [](Single number) { return number; },
                            [](Currency amount) { return static_cast<Single>(ToDouble(amount)); },
                            [](const QString& text) { return CSng(text); }},
                      m_value);
}

Currency Value::ToCurrency() const
{
    return std::visit(Match{[](std::monostate) -> Currency { RaiseNull(); },
                            [](qint64 whole) { return CCur(static_cast<double>(whole)); },
                            [](Single number) { return CCur(static_cast<double>(number)); },
                            [](Currency amount) { return amount; }, [](const QString& text) { return CCur(text); }},
                      m_value);
}
