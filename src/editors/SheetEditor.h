#pragma once

#include "editors/SheetRow.h"

#include <QHash>
#include <QWidget>
#include <vector>

class Grid;
class QKeyEvent;
class QLineEdit;
struct Insertion;

/// A sheet of labels and values in which one row is in edit: its value cell is painted apart, and the row's control
/// stands on it.
///
///   txtFirst            sentinel before the first row
///   | Label:  | value |
///   | Label:  | [control of the row in edit] |
///   | Label:  | value |
///   txtEnd              sentinel behind the last row
///
/// The values, not the controls, hold the data. The order of events is a contract with the rules of the rows:
///   Tab, Shift+Tab, a press on another row   key press; Validate (may refuse) and LostFocus of the old row; GotFocus
///   of the new one
///                                            (may send back); the new row is in edit; the key's release goes to the
///                                            new row
///   Enter                                    EnterCommits (may stay); LostFocus of the old row; the new row is in
///   edit; its GotFocus
/// Only the person's way through the sheet counts: that another program, a box, a menu or a list's popup takes the
/// focus is neither lost nor got focus. Rows count from 1.
class SheetEditor : public QWidget
{
    Q_OBJECT

public:
    explicit SheetEditor(std::vector<SheetRow> rows, QWidget* parent = nullptr);
    ~SheetEditor() override;

    [[nodiscard]] int Rows() const { return static_cast<int>(m_rows.size()); }
    /// The row of a control's name, or of a tag; 0 where there is none.
    [[nodiscard]] int RowOf(const QString& control) const;
    [[nodiscard]] int RowOfTag(const QString& tag) const;

    // The values.
    [[nodiscard]] QString Value(int row) const;
    void SetValue(int row, const QString& text);
    /// Empties all values and the control in edit. No row is in edit afterwards, until txtFirst_GotFocus begins anew.
    void Clear();

    // The controls.
    [[nodiscard]] QWidget* Control(int row) const;
    [[nodiscard]] QString ControlText(int row) const;
    /// Text and caret of a one-line field.
    [[nodiscard]] FieldText Field(int row) const;
    void SetField(int row, const FieldText& field);

    // The row in edit.
    /// 0 where no row is in edit.
    [[nodiscard]] int CurRow() const { return m_row; }
    /// How txtFirst_GotFocus chooses its row: told the row in edit, gives the row to begin with.
    void SetStartRow(std::function<int(int curRow)> startRow) { m_startRow = std::move(startRow); }
    /// What a window does once txtFirst_GotFocus has put its row in edit.
    void SetStarted(std::function<void(int row)> started) { m_started = std::move(started); }
    /// The focus comes to the sheet from before its first row: when the window opens, by Shift+Tab on the first row,
    /// after Clear.
    void txtFirst_GotFocus();
    /// Puts a row in edit: loads its control from the value, places it, gives it the focus with the caret at the end.
    void SetNextFocus(int row);
    /// The person goes to another row; false where a rule kept the focus.
    bool GoTo(int row);
    /// The person leaves the row in edit for a button: Validate and LostFocus. False where Validate refused.
    bool Leave();

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The control of the row in edit was put on its cell, by a move, a scroll or a resize; beside it a window may
    /// place more.
    void Placed(int row);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void AddGrid();
    void AddControl(int row);
    QWidget* AddSentinel(const QString& name);
    [[nodiscard]] int RowHeight() const;
    void FitRows();
    [[nodiscard]] const SheetRow& At(int row) const { return m_rows.at(static_cast<size_t>(row) - 1); }
    [[nodiscard]] QLineEdit* LineEdit(int row) const;

    void Load(int row);
    void Place();
    /// In a smaller window the row in edit stays in sight.
    void KeepInView();
    void PaintRow(int row, bool inEdit);
    void Enter();
    bool TabKey(bool back);
    bool GridEvent(QEvent* event);

    // SheetTyping.cpp: keys and pastes
    [[nodiscard]] bool SwallowsKey(int row, QKeyEvent* event);
    void KeyReleased(int row, const QKeyEvent& event);
    void LayPressMask(int row);
    void Edited(int row, const QString& now);
    void PasteAsKeys(int row, const QString& now, const Insertion& edit);
    void KeepAccepted(int row, const QString& now, const Insertion& edit, bool accepted);

    static constexpr int LabelColumn = 1;
    static constexpr int ValueColumn = 2;

    std::vector<SheetRow> m_rows;
    std::vector<QWidget*> m_controls;
    QHash<const QObject*, int> m_rowOf;
    std::function<int(int)> m_startRow;
    std::function<void(int)> m_started;
    Grid* m_grid = nullptr;
    QWidget* m_txtFirst = nullptr;
    QWidget* m_txtEnd = nullptr;
    int m_row = 0;
    int m_shown = 0;
    bool m_moving = false;
    /// A key was accepted and is on its way into the field.
    bool m_typing = false;
    /// What stood in the field in edit before the edit that is being told.
    QString m_before;
};
