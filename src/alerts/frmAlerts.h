#pragma once

#include "ui/widgets/Form.h"
#include "ui/widgets/PlainText.h"

#include <memory>

class Alert;
class HoverButtonArray;
namespace Ui {
class frmAlerts;
}

/// The alerts of curContact: listed, added, changed and deleted. The window is at rest or editing; while it is editing,
/// Modify is Save, Delete is Cancel, and the window cannot be closed.
class frmAlerts : public Form
{
    Q_OBJECT

public:
    /// Works on curContact and gAlertMode.
    frmAlerts();
    ~frmAlerts() override;

protected:
    void Form_Activate() override;
    void Form_QueryUnload(bool& cancel, UnloadMode mode) override;
    void Form_Unload(bool& cancel) override;
    void EscapePressed() override;

private:
    // The window and its list.
    void Form_Load();
    void LoadBitMaps();
    void LoadColumns();
    void LoadAlerts();
    void AddAlertToGrid(const Alert& alert, int row = 0);
    void InsertIntoGrid(const Alert& alert);
    void WriteRow(int row, const Alert& alert);
    void SortGrid();
    void ChooseRow();
    void SelectRow(int row);
    void Grid1_SelectionChange();

    // The fields.
    void ShowAlert(const Alert& alert);
    void ClearFields();
    /// The note in the box; one that was not touched is given back as it came.

    // The buttons.
    void cmdButton_Click(int index);
    void picCalendar_Click();
    void NewClick();
    void ModifyClick();
    void SaveClick();
    void SaveNew(const QString& note);
    void SaveChange(const QString& note);
    void DeleteClick();
    void CancelClick();
    void SetEditing(bool editing);

    std::unique_ptr<Ui::frmAlerts> m_ui;
    HoverButtonArray* m_buttons = nullptr;
    bool m_activated = false;
    bool m_editing = false;
    /// The note as it was shown, and the same as the box gave it back unchanged.
    std::optional<StoredText> m_note;
};
