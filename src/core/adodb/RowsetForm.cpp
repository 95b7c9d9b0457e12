#include "core/adodb/RowsetForm.h"

#include "core/Convert.h"
#include "core/Dates.h"
#include "core/RunTimeError.h"

#include <QRegularExpression>
#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

template <typename Whole>
bool IsWhole(const QString& value)
{
    bool read = false;
    if constexpr (std::is_signed_v<Whole>) {
        const qlonglong number = value.toLongLong(&read);
        return read && number >= std::numeric_limits<Whole>::min() && number <= std::numeric_limits<Whole>::max();
    } else {
        const qulonglong number = value.toULongLong(&read);
        return read && number <= std::numeric_limits<Whole>::max();
    }
}

/// What `toDouble` takes beyond numbers, "inf" and "nan", is none here.
template <typename Real>
bool IsReal(const QString& value)
{
    bool read = false;
    const double number = value.toDouble(&read);
    return read && std::abs(number) <= static_cast<double>(std::numeric_limits<Real>::max());
}

bool IsBoolean(const QString& value)
{
    return value == "True"_L1 || value == "False"_L1 || value == "true"_L1 || value == "false"_L1 || value == "1"_L1 ||
           value == "0"_L1 || value == "-1"_L1;
}

struct NumberType
{
    QLatin1StringView Name;
    bool (*Holds)(const QString& value);
};

constexpr std::array numberTypes{
    NumberType{"int"_L1, IsWhole<qint32>},   NumberType{"i1"_L1, IsWhole<qint8>},
    NumberType{"i2"_L1, IsWhole<qint16>},    NumberType{"i4"_L1, IsWhole<qint32>},
    NumberType{"i8"_L1, IsWhole<qint64>},    NumberType{"ui1"_L1, IsWhole<quint8>},
    NumberType{"ui2"_L1, IsWhole<quint16>},  NumberType{"ui4"_L1, IsWhole<quint32>},
    NumberType{"ui8"_L1, IsWhole<quint64>},  NumberType{"r4"_L1, IsReal<float>},
    NumberType{"r8"_L1, IsReal<double>},     NumberType{"float"_L1, IsReal<double>},
    NumberType{"number"_L1, IsReal<double>}, NumberType{"fixed.14.4"_L1, IsReal<double>},
    NumberType{"boolean"_L1, IsBoolean},
};

QString DateText(const QString& value)
{
    const QTime time = QTime::fromString(value, Qt::ISODateWithMs);
    if (time.isValid() && !value.contains(u'-'))
        return CStr(Date(time.msecsSinceStartOfDay() / 86'400'000.0));
    // The time is the one on the clock of who wrote it. A clock here may skip it, so no zone has a say.
    constexpr qsizetype dateLength = 10;
    static const QRegularExpression zone(u"(Z|[+-]\\d\\d(:?\\d\\d)?)$"_s);
    const QString written = value.size() > dateLength ? QString(value).remove(zone) : value + u"T00:00:00"_s;
    const QDateTime moment = QDateTime::fromString(written + u'Z', Qt::ISODateWithMs);
    if (!moment.isValid() || moment.date().year() < 100 || moment.date().year() > 9999)
        throw RunTimeError(ErrorNumber::WrongType);
    return CStr(ToDate(moment));
}

} // namespace

QString RowsetForm::ReadValue(const QString& type, const QString& value)
{
    if (type == "string"_L1)
        return value;
    if (type.startsWith("dateTime"_L1) || type == "date"_L1 || type == "time"_L1)
        return DateText(value);
    const auto found = std::ranges::find_if(numberTypes, [&](const NumberType& known) { return known.Name == type; });
    if (found != numberTypes.end() && !found->Holds(value))
        throw RunTimeError(ErrorNumber::WrongType);
    return value;
}
