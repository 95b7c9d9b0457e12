#include "core/Dates.h"

#include "core/Clock.h"
#include "core/Decimal.h"
#include "core/RunTimeError.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

namespace {

constexpr int julianOfDayZero = 2'415'019;
constexpr int firstDay = -657'434; // January 1, 100
constexpr int lastDay = 2'958'465; // December 31, 9999
constexpr int secondsPerDay = 86'400;
constexpr qint64 msecsPerDay = 86'400'000;

constexpr std::array<std::string_view, 12> monthNames{"january",   "february", "march",    "april",
                                                      "may",       "june",     "july",     "august",
                                                      "september", "october",  "november", "december"};
constexpr std::array<std::string_view, 7> dayNames{"monday", "tuesday",  "wednesday", "thursday",
                                                   "friday", "saturday", "sunday"};

/// Before day 0 the time of day still counts forward, away from zero: -1.25 is six in the morning of the day before it.
Date Joined(double dayNumber, double time)
{
    return Date(dayNumber < 0 ? dayNumber - time : dayNumber + time);
}

/// In floating numbers, because a day that is not valid lies at the very end of the whole ones.
double DayNumberOf(const QDate& day)
{
    return static_cast<double>(day.toJulianDay()) - julianOfDayZero;
}

bool IsLetter(QChar c)
{
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
}

bool IsDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

enum class Half
{
    None,
    Am,
    Pm
};

struct DateValue
{
    int Number = 0;
    bool IsMonth = false;
    bool JoinsTime = false; ///< a ":" or "." stands behind it
    Half HalfDay = Half::None;
};

struct DayCandidate
{
    int Year;
    int Month;
    int Day;
};

/// The first of the candidates that is a day of the calendar, as a day number.
std::optional<double> FirstRealDay(std::initializer_list<DayCandidate> candidates)
{
    for (const auto& [typedYear, month, day] : candidates) {
        const int year = typedYear < 30 ? typedYear + 2000 : typedYear < 100 ? typedYear + 1900 : typedYear;
        if (year <= 9999 && QDate::isValid(year, month, day))
            return DayNumberOf(QDate(year, month, day));
    }
    return std::nullopt;
}

/// Reads a text as values with the marks between them, then finds out which value is what.
class DateReader
{
public:
    bool Read(QStringView text);
    [[nodiscard]] std::optional<Date> Resolve() const;

private:
    bool Add(int number, bool isMonth);
    bool ReadNumber();
    bool ReadWord();
    bool ReadMark();
    [[nodiscard]] bool FindTime(int& begin, int& end) const;
    [[nodiscard]] std::optional<double> TimeOf(int begin, int end) const;
    [[nodiscard]] std::optional<double> DayOf(int begin, int end) const;
    [[nodiscard]] static std::optional<double> NamedMonth(int month, int a, std::optional<int> b);

    QStringView m_rest;
    std::array<DateValue, 6> m_values{};
    int m_count = 0;
    int m_separators = 0;
};

bool DateReader::Read(QStringView text)
{
    m_rest = text;
    while (m_rest.endsWith(u' '))
        m_rest.chop(1);
    if (m_rest.isEmpty() || QStringView(u"/-:.,").contains(m_rest.back()))
        return false;
    while (!m_rest.isEmpty()) {
        const QChar c = m_rest.front();
        if (!(IsDigit(c) ? ReadNumber() : IsLetter(c) ? ReadWord() : ReadMark()))
            return false;
    }
    return m_count > 0;
}

bool DateReader::Add(int number, bool isMonth)
{
    if (m_count == static_cast<int>(m_values.size()))
        return false;
    m_values[static_cast<size_t>(m_count++)] = {number, isMonth, false, Half::None};
    return true;
}

bool DateReader::ReadNumber()
{
    constexpr int tooLarge = 100'000; // no year, day, hour: more digits change nothing
    int number = 0;
    for (; !m_rest.isEmpty() && IsDigit(m_rest.front()); m_rest = m_rest.sliced(1))
        number = std::min(number * 10 + (m_rest.front().unicode() - u'0'), tooLarge);
    return Add(number, false);
}

bool DateReader::ReadWord()
{
    std::array<char, 9> letters{}; // as long as the longest name
    size_t length = 0;
    for (; !m_rest.isEmpty() && IsLetter(m_rest.front()); m_rest = m_rest.sliced(1)) {
        if (length == letters.size())
            return false;
        letters[length++] = static_cast<char>(m_rest.front().unicode() | 0x20);
    }
    const std::string_view word(letters.data(), length);
    const auto isName = [word](std::string_view name) { return word == name || word == name.substr(0, 3); };

    if (word == "am" || word == "a" || word == "pm" || word == "p") {
        if (m_count == 0)
            return false;
        Half& half = m_values[static_cast<size_t>(m_count - 1)].HalfDay;
        if (half != Half::None)
            return false;
        half = word.front() == 'a' ? Half::Am : Half::Pm;
        return true;
    }
    if (const auto month = std::ranges::find_if(monthNames, isName); month != monthNames.end())
        return Add(static_cast<int>(month - monthNames.begin()) + 1, true);
    return std::ranges::any_of(dayNames, isName);
}

bool DateReader::ReadMark()
{
    const QChar mark = m_rest.front();
    m_rest = m_rest.sliced(1);
    if (mark == u' ' || mark == u',')
        return true;
    if (m_count == 0)
        return false;
    if (mark == u':' || mark == u'.') {
        m_values[static_cast<size_t>(m_count - 1)].JoinsTime = true;
        return true;
    }
    return (mark == u'/' || mark == u'-') && ++m_separators <= 2;
}

std::optional<Date> DateReader::Resolve() const
{
    int begin = 0;
    int end = 0;
    if (!FindTime(begin, end))
        return std::nullopt;
    const auto time = TimeOf(begin, end);
    const auto day = DayOf(begin, end);
    return time && day ? std::optional(Joined(*day, *time)) : std::nullopt;
}

/// The run of values that are the time: those joined by time marks, or a single one with am or pm. It stands before or
/// behind the date.
bool DateReader::FindTime(int& begin, int& end) const
{
    const auto first = m_values.begin();
    const auto last = first + m_count;
    auto from = std::find_if(first, last, [](const DateValue& value) { return value.JoinsTime; });
    auto to = std::find_if(from, last, [](const DateValue& value) { return !value.JoinsTime; });
    if (from == last) {
        from = std::find_if(first, last, [](const DateValue& value) { return value.HalfDay != Half::None; });
        to = from;
    } else if (to == last) {
        return false;
    }
    if (from == last) {
        begin = end = 0;
        return true;
    }
    ++to;
    begin = static_cast<int>(from - first);
    end = static_cast<int>(to - first);
    const auto strayMark = [](const DateValue& value) { return value.JoinsTime || value.HalfDay != Half::None; };
    return (from == first || to == last) && std::none_of(to, last, strayMark) && std::none_of(first, from, strayMark);
}

/// As the fraction of a day; 0 where there is none.
std::optional<double> DateReader::TimeOf(int begin, int end) const
{
    if (end - begin > 3)
        return std::nullopt;
    std::array<int, 3> parts{};
    Half half = Half::None;
    for (int i = begin; i < end; ++i) {
        const DateValue& value = m_values[static_cast<size_t>(i)];
        if (value.IsMonth || (value.HalfDay != Half::None && i != end - 1))
            return std::nullopt;
        parts[static_cast<size_t>(i - begin)] = value.Number;
        half = value.HalfDay;
    }
    auto [hour, minute, second] = parts;
    if (hour > 23 || minute > 59 || second > 59)
        return std::nullopt;
    // Above 12 the hour says itself which half of the day it is in.
    if (half == Half::Am && hour == 12)
        hour = 0;
    else if (half == Half::Pm && hour >= 1 && hour < 12)
        hour += 12;
    return (hour * 3600 + minute * 60 + second) / static_cast<double>(secondsPerDay);
}

std::optional<double> DateReader::DayOf(int begin, int end) const
{
    std::array<int, 3> numbers{};
    size_t count = 0;
    int month = 0;
    for (int i = 0; i < m_count; ++i) {
        const DateValue& value = m_values[static_cast<size_t>(i)];
        if (i >= begin && i < end)
            continue;
        if (value.IsMonth && month == 0)
            month = value.Number;
        else if (value.IsMonth || count == numbers.size())
            return std::nullopt;
        else
            numbers[count++] = value.Number;
    }

    const auto [a, b, c] = numbers;
    if (month > 0) {
        if (count == 0 || count > 2)
            return std::nullopt;
        return NamedMonth(month, a, count == 2 ? std::optional(b) : std::nullopt);
    }
    if (count == 0)
        return 0.0;
    if (count == 2) {
        const int thisYear = Clock::Today().year();
        return FirstRealDay({{thisYear, a, b}, {thisYear, b, a}, {a, b, 1}, {b, a, 1}});
    }
    if (count == 3)
        return FirstRealDay({{c, a, b}, {a, b, c}, {a, c, b}, {c, b, a}});
    return std::nullopt;
}

std::optional<double> DateReader::NamedMonth(int month, int a, std::optional<int> b)
{
    if (b)
        return FirstRealDay({{*b, month, a}, {a, month, *b}});
    return FirstRealDay({{Clock::Today().year(), month, a}, {a, month, 1}});
}

} // namespace

std::optional<Date> ParseDate(QStringView text)
{
    DateReader reader;
    return reader.Read(text) ? reader.Resolve() : std::nullopt;
}

bool IsDate(QStringView text)
{
    return ParseDate(text).has_value();
}

Date CDate(QStringView text)
{
    if (const auto date = ParseDate(text))
        return *date;
    if (const auto number = Decimal::Parse(text)) {
        const Date date(number->ToDouble().value_or(HUGE_VAL));
        if (PartsOf(date))
            return date;
    }
    throw RunTimeError(ErrorNumber::TypeMismatch);
}

Date ToDate(const QDate& day)
{
    return Joined(DayNumberOf(day), 0);
}

Date ToDate(const QDateTime& moment)
{
    return Joined(DayNumberOf(moment.date()), moment.time().msecsSinceStartOfDay() / static_cast<double>(msecsPerDay));
}

QDateTime ToDateTime(Date date)
{
    const auto parts = PartsOf(date);
    return parts ? QDateTime(parts->Day(), QTime::fromMSecsSinceStartOfDay(parts->Seconds * 1000)) : QDateTime();
}

QDate DateParts::Day() const
{
    return QDate::fromJulianDay(julianOfDayZero + DayNumber);
}

std::optional<DateParts> PartsOf(Date date)
{
    const double serial = date.Serial();
    // Written so that what is not a number at all falls through as well.
    if (!(serial > firstDay - 1 && serial < lastDay + 1))
        return std::nullopt;
    const double wholeDays = std::trunc(serial);
    DateParts parts{static_cast<int>(wholeDays), static_cast<int>(std::abs(serial - wholeDays) * secondsPerDay + 0.5)};
    if (parts.Seconds == secondsPerDay)
        parts = {parts.DayNumber + 1, 0};
    return parts.DayNumber <= lastDay ? std::optional(parts) : std::nullopt;
}

Date TodayDate()
{
    return ToDate(Clock::Today());
}
