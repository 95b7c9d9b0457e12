#pragma once

#include "core/FieldRules.h"

#include <QString>
#include <functional>

class SheetEditor;

/// One row of a sheet as its window declares it: what it is called, and its own rules for keys, commits and focus. A
/// rule that is left empty changes nothing and forbids nothing.
struct SheetRow
{
    /// Asked of a row; false refuses.
    using Test = std::function<bool(SheetEditor& sheet, int row)>;
    using Act = std::function<void(SheetEditor& sheet, int row)>;

    QString Label;
    /// Object name of the edit control. A name that begins with "cbo" makes a list, any other a one-line field.
    QString Control;
    /// The header of the list column that this row edits.
    QString Tag;
    /// The control that Enter moves to; the row's own one stays.
    QString EnterTo;
    /// Number of the fixed list of a "cbo" row (model/Lists.h).
    int List = 0;

    /// Whether a character may be typed behind what stands in the field; false throws the key away.
    std::function<bool(int keyAscii, const QString& textSoFar)> Accepts = {};
    /// A paste ends at this character: an amount that takes no cents must not take them for hundreds.
    QChar EndsPaste = {};
    /// Laid over the field before a key goes into it, is thrown away or commits by Enter; not for Backspace.
    std::function<FieldText(const FieldText&)> PressMask = {};
    /// Laid over the field when a key is released, and once after a paste.
    std::function<FieldText(int keyCode, const FieldText&)> KeyUp = {};
    /// The cell's text as the field shows it for editing.
    std::function<QString(const QString& cell)> Load = {};

    /// Commits on Enter; false leaves the row in edit.
    Test EnterCommits = {};
    /// Before the focus leaves by Tab, a press on another row or a button; false keeps it. The place of most commits.
    Test Validate = {};
    /// After the focus left, also by Enter.
    Act LostFocus = {};
    /// When the focus comes, before the row becomes the one in edit (with Enter it is already); false sends the focus
    /// back.
    Test GotFocus = {};
};
