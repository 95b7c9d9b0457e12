#pragma once

#include <QString>

// Text functions with positions from 1, in UTF-16 units.

/// The first position of `find` in `text` from `start`; 0 where it is not there. Raises 5 for a start below 1.
[[nodiscard]] qsizetype InStr(QStringView text, QStringView find);
[[nodiscard]] qsizetype InStr(qsizetype start, QStringView text, QStringView find,
                              Qt::CaseSensitivity sensitivity = Qt::CaseSensitive);

/// At most `length` units from either end. Raise 5 for a negative length.
[[nodiscard]] QString Left(const QString& text, qsizetype length);
[[nodiscard]] QString Right(const QString& text, qsizetype length);
/// `length` units from `start`, or all that follow. Raise 5 for a start below 1 or a negative length.
[[nodiscard]] QString Mid(const QString& text, qsizetype start);
[[nodiscard]] QString Mid(const QString& text, qsizetype start, qsizetype length);

/// Without the blanks (U+0020 only) at both ends.
[[nodiscard]] QString Trim(const QString& text);
/// Simple upper-casing: one letter for one letter, so that "ß" stays.
[[nodiscard]] QString UCase(const QString& text);

/// The form in which two names are the same name: trimmed and upper-cased.
[[nodiscard]] QString NameKey(const QString& name);
