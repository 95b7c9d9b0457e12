#pragma once

#include <QString>
#include <QStringMatcher>
#include <string>

/// Looks for one text in many, each time as InStr does: with or without regard to letter case. A search asks it once
/// for each record and filled row, so what can be known of the text alone is worked out once.
class TextFinder
{
public:
    TextFinder(const QString& find, Qt::CaseSensitivity sensitivity);

    /// Whether the text occurs anywhere. An empty text contains nothing.
    [[nodiscard]] bool IsIn(const QString& text) const;

private:
    [[nodiscard]] bool IsInUnits(QStringView text) const;

    QStringMatcher m_matcher;
    bool m_ignoresCase;
    /// Comparing units one for one is enough to find it: its letters have no case, or are plain ones.
    bool m_byUnits = true;
    /// The units looked for, letters in lower case where case does not count.
    std::u16string m_units;
    /// What puts a letter of the other case onto the unit looked for: its bit, or none.
    std::u16string m_caseBits;
};
