#pragma once

#include <QString>
#include <span>

/// A line of a field picker: what the person reads, and the column that the marker names.
struct LetterField
{
    QLatin1StringView Caption;
    QLatin1StringView Column;
};

/// The lines of lstContactFields, in their order.
[[nodiscard]] std::span<const LetterField> ContactLetterFields();
/// The lines of lstPropFields, in their order.
[[nodiscard]] std::span<const LetterField> PropertyLetterFields();
