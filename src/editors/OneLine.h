#pragma once

#include <QString>

// What is typed, pasted or dropped into a one-line field.

/// The text that an edit put in, and where.
struct Insertion
{
    qsizetype Position = 0;
    QString Text;
};

/// Finds what came in between two states of a field.
[[nodiscard]] Insertion FindInsertion(QStringView before, QStringView now);

/// The text as one line can hold it: line breaks and tabs inside become blanks, at the ends they go; other control
/// characters go.
[[nodiscard]] QString OneLine(QString text);
