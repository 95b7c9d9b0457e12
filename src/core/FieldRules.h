#pragma once

#include "core/Types.h"

#include <QString>
#include <optional>

/// A one-line field as its rules see it: what stands in it and where the caret stands, from 0, in UTF-16 units.
struct FieldText
{
    QString Text;
    qsizetype SelStart = 0;

    friend bool operator==(const FieldText&, const FieldText&) = default;
};

/// Key codes as the field rules know them.
namespace Key {
inline constexpr int Backspace = 8;
inline constexpr int Enter = 13;
inline constexpr int Shift = 16; ///< serves where a key code is wanted that changes nothing
inline constexpr int Escape = 27;
inline constexpr int Delete = 46;
} // namespace Key

/// Lays the mask of a phone number over the digits of a field, the caret at the end. Backspace changes nothing; an
/// eleventh digit undoes the mask, which is meant.
[[nodiscard]] FieldText FormatPhone(int keyCode, const FieldText& field);

/// Tidies a field toward mm/dd/yyyy while a date is typed from left to right.
[[nodiscard]] FieldText DateFormat(const FieldText& field);

/// Whether a key may be typed into a date field that holds `textSoFar`.
[[nodiscard]] bool ValidDateChar(int keyCode, QStringView textSoFar);

/// True when the date is later than today; today itself is not future.
[[nodiscard]] bool IsAFutureDate(Date date);

/// Whether a key may be typed into a number field: digits, ".", Enter, Backspace.
[[nodiscard]] bool Numeric(int keyCode);
/// Whether a key may be typed into a money field; the same test.
[[nodiscard]] bool isCurrency(int keyCode);

/// The text with its first character in upper case and the rest as typed.
[[nodiscard]] QString Upper(const QString& text);

/// 0 gives "", 1 "Yes", 2 "No"; any other code nothing.
[[nodiscard]] std::optional<QString> BitToYesNo(int code);
/// " " and "" give 0, "Yes" 1, "No" 2; any other text (also "yes") nothing.
[[nodiscard]] std::optional<int> YesNoToBit(QStringView text);
