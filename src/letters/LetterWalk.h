#pragma once

#include <QString>
#include <utility>
#include <vector>

/// One stretch of a letter: text as it stands, or the column of a merge field.
struct LetterPiece
{
    bool IsField = false;
    QString Text;

    friend bool operator==(const LetterPiece&, const LetterPiece&) = default;
};

/// A letter taken apart at its markers, "!<", a column, ">!".
struct LetterWalk
{
    std::vector<LetterPiece> Pieces;
    QString Select; ///< the columns for a selection, with "," between
    QString Header; ///< the same for the first line of the source file, with a tab between
};

/// Whether a letter has a marker, and so is for a merge.
[[nodiscard]] bool HasMarkers(const QString& letter);

/// Walks a letter. A column counts as listed when "," and its name stand anywhere in the list, as plain text, which is
/// meant: the letter's first field is listed anew by its second use, and a name that begins a listed one ("Zip" behind
/// "Zip4") is not listed. Raises 5 for a marker that is not closed.
[[nodiscard]] LetterWalk WalkLetter(const QString& letter);

/// The stretches of a document's text that are bold, as start and end for Document.Range: from the place of each "<b>"
/// to that of the "</b>" behind it. The places count from 1 and are passed on as they are to a range that counts from
/// 0, which is meant. A "<b>" that is never closed ends at 0, which no range takes.
[[nodiscard]] std::vector<std::pair<qsizetype, qsizetype>> BoldRanges(const QString& content);
