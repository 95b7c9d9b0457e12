#include "core/Format.h"

#include "core/Convert.h"
#include "core/Dates.h"
#include "core/Decimal.h"

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

enum class MaskKind
{
    Text,
    Number,
    Moment
};

bool IsPlace(QChar c)
{
    return c == u'#' || c == u'0';
}

char16_t LowerLetter(QChar c)
{
    return c >= u'A' && c <= u'Z' ? static_cast<char16_t>(c.unicode() | 0x20) : c.unicode();
}

MaskKind KindOf(QStringView mask)
{
    if (std::ranges::any_of(mask, IsPlace))
        return MaskKind::Number;
    const auto isDateLetter = [](QChar c) { return QStringView(u"dmyhns").contains(QChar(LowerLetter(c))); };
    return std::ranges::any_of(mask, isDateLetter) ? MaskKind::Moment : MaskKind::Text;
}

/// A number's digits laid into the places of a mask: before the point from the right, behind it from the left.
class NumberMask
{
public:
    NumberMask(const Decimal& number, QStringView mask) : m_number(number), m_mask(mask)
    {
        Measure();
        m_number.Round(m_decimalPlaces, Decimal::Half::AwayFromZero);
        m_wholeDigits = std::max(m_number.WholeDigits(), m_leastWhole);
        m_decimals = std::max(m_number.Decimals(), m_leastDecimals);
    }

    QString Text()
    {
        if (m_number.IsNegative())
            m_text += u'-';
        for (qsizetype i = 0; i < m_mask.size(); ++i) {
            const QChar c = m_mask[i];
            if (i == m_point)
                PutPoint();
            else if (IsPlace(c))
                PutPlace(i < m_point);
            else if (c != u',' || !IsGrouping(i))
                m_text += c;
        }
        return std::move(m_text);
    }

private:
    [[nodiscard]] bool IsGrouping(qsizetype i) const { return i > m_firstWhole && i < m_lastWhole; }

    void Measure()
    {
        m_point = m_mask.indexOf(u'.');
        if (m_point < 0)
            m_point = m_mask.size();
        for (qsizetype i = 0; i < m_mask.size(); ++i) {
            if (!IsPlace(m_mask[i]))
                continue;
            const bool fixed = m_mask[i] == u'0';
            if (i > m_point) {
                ++m_decimalPlaces;
                m_leastDecimals = fixed ? m_decimalPlaces : m_leastDecimals;
                continue;
            }
            if (m_wholePlaces++ == 0)
                m_firstWhole = i;
            m_lastWhole = i;
            // From the first "0" on every place before the point shows a digit.
            m_leastWhole += fixed || m_leastWhole > 0 ? 1 : 0;
        }
        const qsizetype comma = m_mask.indexOf(u',', m_firstWhole);
        m_grouped = comma >= 0 && IsGrouping(comma);
    }

    void PutPoint()
    {
        // A mask without a place before its point still loses no digit.
        if (m_wholePlaces == 0)
            PutWhole(m_wholeDigits, 0);
        m_text += u'.';
    }

    void PutPlace(bool beforePoint)
    {
        if (beforePoint) {
            const qint64 behind = m_wholePlaces - ++m_wholeSeen;
            PutWhole(m_wholeSeen == 1 ? m_wholeDigits : std::min(m_wholeDigits, behind + 1), behind);
        } else if (m_decimalSeen < m_decimals) {
            m_text += QLatin1Char(m_number.DigitAt(m_decimalSeen++));
        }
    }

    /// The whole digits that have fewer than `from` and at least `to` others to their right.
    void PutWhole(qint64 from, qint64 to)
    {
        for (qint64 right = from - 1; right >= to; --right) {
            m_text += QLatin1Char(m_number.DigitAt(-right - 1));
            if (m_grouped && right > 0 && right % 3 == 0)
                m_text += u',';
        }
    }

    Decimal m_number;
    QStringView m_mask;
    QString m_text;
    qsizetype m_point = 0;
    qsizetype m_firstWhole = 0;
    qsizetype m_lastWhole = 0;
    qint64 m_wholePlaces = 0;
    qint64 m_leastWhole = 0;
    qint64 m_decimalPlaces = 0;
    qint64 m_leastDecimals = 0;
    qint64 m_wholeDigits = 0;
    qint64 m_decimals = 0;
    qint64 m_wholeSeen = 0;
    qint64 m_decimalSeen = 0;
    bool m_grouped = false;
};

/// A moment's parts in the places of a mask.
class MomentMask
{
public:
    MomentMask(const DateParts& parts, QStringView mask) : m_mask(mask), m_seconds(parts.Seconds)
    {
        parts.Day().getDate(&m_year, &m_month, &m_day);
        m_halves = mask.contains(u"am/pm", Qt::CaseInsensitive);
    }

    QString Text()
    {
        while (!m_mask.isEmpty()) {
            const qsizetype taken =
                QStringView(u"dmyhns").contains(QChar(LowerLetter(m_mask.front()))) ? PutRun() : PutOther();
            m_mask = m_mask.sliced(taken);
        }
        return std::move(m_text);
    }

private:
    void PutNumber(int number, qsizetype width)
    {
        const QString digits = QString::number(number);
        for (qsizetype i = digits.size(); i < width; ++i)
            m_text += u'0';
        m_text += digits;
    }

    /// A run of one letter. Gives the length of the run.
    qsizetype PutRun()
    {
        const char16_t letter = LowerLetter(m_mask.front());
        qsizetype run = 1;
        while (run < m_mask.size() && LowerLetter(m_mask[run]) == letter)
            ++run;
        const int hour = m_seconds / 3600;
        const int minute = m_seconds / 60 % 60;
        const qsizetype width = std::min<qsizetype>(run, 2);
        switch (letter) {
        case u'd':
            PutNumber(m_day, width);
            break;
        case u'm':
            PutNumber(m_behindHour ? minute : m_month, width);
            break;
        case u'y':
            // Four digits also below the year 1000.
            PutNumber(run > 2 ? m_year : m_year % 100, run > 2 ? 4 : 2);
            break;
        case u'h':
            PutNumber(!m_halves ? hour : hour % 12 == 0 ? 12 : hour % 12, width);
            break;
        case u'n':
            PutNumber(minute, width);
            break;
        default:
            PutNumber(m_seconds % 60, width);
        }
        m_behindHour = letter == u'h';
        return run;
    }

    qsizetype PutOther()
    {
        if (!m_mask.startsWith(u"am/pm", Qt::CaseInsensitive)) {
            m_text += m_mask.front();
            return 1;
        }
        const bool upper = m_mask.startsWith(u'A');
        const bool morning = m_seconds < 12 * 3600;
        m_text += morning ? (upper ? "AM"_L1 : "am"_L1) : (upper ? "PM"_L1 : "pm"_L1);
        return 5;
    }

    QStringView m_mask;
    QString m_text;
    int m_year = 0;
    int m_month = 0;
    int m_day = 0;
    int m_seconds = 0;
    bool m_halves = false;
    bool m_behindHour = false;
};

std::optional<QString> MomentText(Date value, QStringView mask)
{
    const auto parts = PartsOf(value);
    return parts ? std::optional(MomentMask(*parts, mask).Text()) : std::nullopt;
}

std::optional<QString> NumberText(const std::optional<Decimal>& number, QStringView mask)
{
    // A text with more digits than any number type can hold is no number here.
    if (!number || number->WholeDigits() > std::numeric_limits<double>::max_exponent10 + 1)
        return std::nullopt;
    return NumberMask(*number, mask).Text();
}

std::optional<QString> MomentInText(QStringView text, QStringView mask)
{
    if (const auto date = ParseDate(text))
        return MomentText(*date, mask);
    const auto number = Decimal::Parse(text);
    const auto serial = number ? number->ToDouble() : std::nullopt;
    return serial ? MomentText(Date(*serial), mask) : std::nullopt;
}

/// A value that is a number and a serial date alike.
template <typename Value>
QString FormatNumber(Value value, double serial, QStringView mask)
{
    switch (KindOf(mask)) {
    case MaskKind::Number:
        return NumberMask(Decimal::From(value), mask).Text();
    case MaskKind::Moment:
        if (auto text = MomentText(Date(serial), mask))
            return *std::move(text);
        break;
    case MaskKind::Text:
        break;
    }
    return CStr(value);
}

} // namespace

QString Format(const QString& text, QStringView mask)
{
    if (text.isEmpty())
        return {};
    switch (KindOf(mask)) {
    case MaskKind::Number:
        return NumberText(Decimal::Parse(text), mask).value_or(text);
    case MaskKind::Moment:
        return MomentInText(text, mask).value_or(text);
    case MaskKind::Text:
        break;
    }
    return text;
}

QString Format(double value, QStringView mask)
{
    return FormatNumber(value, value, mask);
}

QString Format(Currency value, QStringView mask)
{
    return FormatNumber(value, static_cast<double>(value.Scaled()) / static_cast<double>(Currency::Scale), mask);
}

QString Format(Date value, QStringView mask)
{
    switch (KindOf(mask)) {
    case MaskKind::Number:
        return NumberMask(Decimal::From(value.Serial()), mask).Text();
    case MaskKind::Moment:
        if (auto text = MomentText(value, mask))
            return *std::move(text);
        break;
    case MaskKind::Text:
        break;
    }
    return CStr(value);
}

QString FillMask(QStringView digits, QStringView mask)
{
    QString text;
    for (const QChar c : mask) {
        if (!IsPlace(c)) {
            text += c;
        } else if (!digits.isEmpty()) {
            text += digits.front();
            digits = digits.sliced(1);
        }
    }
    return text.append(digits);
}
