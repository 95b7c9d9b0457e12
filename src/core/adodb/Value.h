#pragma once

#include "core/Types.h"

#include <QString>
#include <variant>

/// What a column holds in one row: nothing (Null), or a value of the column's type.
class Value
{
public:
    Value() = default;
    Value(Long value) : m_value(qint64{value}) {}
    Value(qint64 value) : m_value(value) {}
    Value(Single value) : m_value(value) {}
    Value(Currency value) : m_value(value) {}
    Value(QString value) : m_value(std::move(value)) {}

    [[nodiscard]] bool IsNull() const { return std::holds_alternative<std::monostate>(m_value); }

    /// The default text of the value, "" for Null.
    [[nodiscard]] QString Text() const;
    /// The value as it stands, without reading it as text.
    [[nodiscard]] const QString* AsText() const { return std::get_if<QString>(&m_value); }

    // The value converted. Null raises 94, what does not convert 13, what does not fit 6.
    [[nodiscard]] Long ToLong() const;
    [[nodiscard]] Integer ToInteger() const;
    [[nodiscard]] Single ToSingle() const;
    [[nodiscard]] Currency ToCurrency() const;

    // The same with Null read as 0.
    [[nodiscard]] Long LongOrZero() const { return IsNull() ? 0 : ToLong(); }
    [[nodiscard]] Single SingleOrZero() const { return IsNull() ? 0.0F : ToSingle(); }
    [[nodiscard]] Currency CurrencyOrZero() const { return IsNull() ? Currency{} : ToCurrency(); }

private:
    std::variant<std::monostate, qint64, Single, Currency, QString> m_value;
};
