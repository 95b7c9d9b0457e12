#pragma once

#include "core/Types.h"

#include <QString>
#include <optional>

/// A date or money criterion in the form in which the dialogs leave it in the grid: "= 01/31/2026",
/// "More Than $250,000.00", "From 01/01/2026 To 02/01/2026", "After ...", "Before ...".
/// - "More Than" compares the numbers at the start of both texts, and a comma ends a number, which is meant:
///   $250,000.00 is 250.
/// - "Less Than" never holds, and "Between" is taken for a "Before" and fails on it, both of which are meant.
/// - A text that is no date raises 13.
class Criterion
{
public:
    explicit Criterion(const QString& text);

    [[nodiscard]] bool Holds(const QString& value) const;

private:
    char16_t m_form;
    /// What is left of the text behind its words.
    QString m_rest;
    double m_threshold = 0;
    std::optional<Date> m_from, m_to;
};

/// Whether a stored value meets a criterion. Reports a text that is no date and gives false.
[[nodiscard]] bool CheckCriterion(const QString& value, const Criterion& criterion);
