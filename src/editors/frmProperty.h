#pragma once

#include "ui/widgets/Form.h"

#include <memory>

class frmPropertyList;
class HoverButtonArray;
class PropDetail;
class QToolButton;
class SheetEditor;

/// The property editor: a property of curContact is made (gEditMode 6) or changed (7, curPropertyID) on a sheet of 33
/// rows. Alt+S saves and exits, Alt+A saves and adds, Alt+D opens the calendar on a date row, Esc and Alt+C cancel; the
/// close box cancels too.
class frmProperty : public Form
{
    Q_OBJECT

public:
    frmProperty();
    ~frmProperty() override;

    /// Writes a new property of curContact, made of `values`. False where an error was reported.
    [[nodiscard]] bool AddNewProperty(const PropDetail& values);
    /// Writes `values` over the property curPropertyID of curContact. False where an error was reported.
    [[nodiscard]] bool ModifyProperty(const PropDetail& values);

protected:
    void Form_QueryUnload(bool& cancel, UnloadMode mode) override;
    void EscapePressed() override;

private:
    // frmProperty.cpp: the window
    void Form_Load();
    void LoadBitMaps();
    void AddCalendar();
    void LoadProp();
    void ClearGrids();
    [[nodiscard]] int StartRow(int curRow) const;
    void Started(int row);
    void PlaceCalendar(int row);
    void picCalendar_Click();
    void ShowNewCaption();
    void Press(int index);
    void cmdButton_Click(int index);
    void SaveFailed();
    void CancelProperty();
    void AddAnother();

    // frmPropertySave.cpp: what a save does
    /// False where the property was refused, or an error was reported.
    [[nodiscard]] bool SavePropToMain();
    [[nodiscard]] bool IsDuplicate() const;
    void WriteNewListRow() const;
    void WriteListRow() const;

    SheetEditor* m_sheet = nullptr;
    HoverButtonArray* m_buttons = nullptr;
    QToolButton* m_picCalendar = nullptr;
    /// The row that was begun on without its calendar.
    int m_withoutCalendar = 0;
    /// The new property is in the table, under the ID of an older one in memory: it joins at the next start.
    bool m_joinsLater = false;
    /// The property list that came up unseen, because a property was to be added without it.
    std::unique_ptr<frmPropertyList> m_unseenList;
};
