#pragma once

#include "ui/widgets/Form.h"

class HoverButtonArray;
class SheetEditor;

/// The contact editor: one contact is made (gEditMode 1) or changed (0, curContact) on a sheet of nineteen rows.
/// Alt+S saves and exits, Alt+A saves and adds, Esc and Alt+C cancel; the close box cancels too.
class frmContact : public Form
{
    Q_OBJECT

public:
    frmContact();
    ~frmContact() override;

protected:
    void Form_QueryUnload(bool& cancel, UnloadMode mode) override;
    void Form_Unload(bool& cancel) override;
    void EscapePressed() override;

private:
    void Form_Load();
    void LoadBitMaps();
    void LoadContact();
    void ClearGrids();
    [[nodiscard]] int StartRow(int curRow) const;

    void Press(int index);
    void cmdButton_Click(int index);
    void CancelContact();
    void AddAnother();
    /// False where the contact was refused, or an error was reported.
    [[nodiscard]] bool SaveContact();
    [[nodiscard]] bool IsDuplicate() const;
    void MakeNewContact() const;
    /// False after a refused write.
    bool InsertContact() const;

    SheetEditor* m_sheet = nullptr;
    HoverButtonArray* m_buttons = nullptr;
};
