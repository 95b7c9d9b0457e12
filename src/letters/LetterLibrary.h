#pragma once

#include "core/adodb/Recordset.h"

#include <QString>
#include <vector>

/// The form letters, rows of the table FormLetters, over one recordset that stays open. Names and texts go into the
/// statements as they are typed, which is meant: an apostrophe in one is refused with the engine's words and changes
/// nothing. All raise the engine's errors.
class LetterLibrary
{
public:
    struct Entry
    {
        Long ID = 0;
        QString Name;
    };

    /// Opens the recordset, anew where it is open, and gives the letters in its order.
    [[nodiscard]] std::vector<Entry> Load();
    /// The text of a letter, "" for none. Raises 3021 where there is no such letter.
    [[nodiscard]] QString Text(Long id);

    void SetText(Long id, const QString& text);
    /// Adds a letter and gives its ID.
    [[nodiscard]] Long Add(const QString& name, const QString& text);
    void Rename(Long id, const QString& name);
    void Delete(Long id);

private:
    /// Makes a letter's row the current one.
    void GoTo(Long id);

    Recordset m_rows;
    bool m_open = false;
};
