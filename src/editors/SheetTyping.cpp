#include "core/FieldRules.h"
#include "editors/OneLine.h"
#include "editors/SheetEditor.h"
#include "ui/widgets/Grid.h"
#include "ui/widgets/KeyCodes.h"

#include <QKeyEvent>
#include <QLineEdit>

using namespace Qt::StringLiterals;

// What keys and pastes do to the row in edit of a sheet.

namespace {

/// The field as it stands once a key has taken its selection away.
FieldText WithoutSelection(const QLineEdit& field)
{
    if (!field.hasSelectedText())
        return {field.text(), field.cursorPosition()};
    QString text = field.text();
    return {text.remove(field.selectionStart(), field.selectionLength()), field.selectionStart()};
}

/// What comes of characters that are typed one by one behind a text, in a row that lays its mask before each of them.
QString TypedBehind(const SheetRow& rule, const QString& text, const QString& typed)
{
    FieldText field{text, text.size()};
    for (const QChar c : typed) {
        const bool accepted = !rule.Accepts || rule.Accepts(c.unicode(), field.Text);
        field = rule.PressMask(field);
        if (accepted)
            field.Text += c;
    }
    return field.Text;
}

} // namespace

bool SheetEditor::SwallowsKey(int row, QKeyEvent* event)
{
    const bool withCtrl = event->modifiers().testFlag(Qt::ControlModifier);
    const int ascii = KeyAscii(*event);
    m_typing = false;
    if (ascii == Key::Escape) {
        // A list would take it for a letter to look for; the window is who knows what Esc does.
        event->ignore();
        return true;
    }
    if (!withCtrl && (event->key() == Qt::Key_Tab || event->key() == Qt::Key_Backtab))
        return TabKey(event->key() == Qt::Key_Backtab || event->modifiers().testFlag(Qt::ShiftModifier));
    m_grid->EnsureVisible(row, LabelColumn);
    if (ascii == Key::Enter) {
        LayPressMask(row);
        Enter();
        return true;
    }
    if (withCtrl || ascii == 0 || LineEdit(row) == nullptr)
        return false;
    const SheetRow& rule = At(row);
    const FieldText left = WithoutSelection(*LineEdit(row));
    if (rule.Accepts && !rule.Accepts(ascii, left.Text)) {
        LayPressMask(row);
        return true;
    }
    m_typing = true;
    if (!rule.PressMask || ascii == Key::Backspace)
        return false;
    // The selection goes with the key; where the mask has nothing to add it is left to the key.
    if (const FieldText masked = rule.PressMask(left); masked.Text != left.Text)
        SetField(row, masked);
    return false;
}

void SheetEditor::LayPressMask(int row)
{
    if (!At(row).PressMask)
        return;
    if (const FieldText masked = At(row).PressMask(Field(row)); masked.Text != ControlText(row))
        SetField(row, masked);
}

void SheetEditor::KeyReleased(int row, const QKeyEvent& event)
{
    // While a key is held it is not released; and what Ctrl does to the text (copy, select all) must outlive the key.
    const bool withCtrl = event.modifiers().testFlag(Qt::ControlModifier) || event.key() == Qt::Key_Control;
    if (!event.isAutoRepeat() && !withCtrl && At(row).KeyUp)
        SetField(row, At(row).KeyUp(KeyCode(event), Field(row)));
}

void SheetEditor::Edited(int row, const QString& now)
{
    if (row != m_row)
        return;
    const Insertion edit = FindInsertion(m_before, now);
    const bool accepted = std::exchange(m_typing, false) && edit.Text.size() == 1;
    if (At(row).PressMask && edit.Text.size() > 1)
        PasteAsKeys(row, now, edit);
    else
        KeepAccepted(row, now, edit, accepted);
    m_before = ControlText(row);
}

void SheetEditor::PasteAsKeys(int row, const QString& now, const Insertion& edit)
{
    const SheetRow& rule = At(row);
    // A field that holds what keys make of a text is laid out anew, any other from the paste on.
    if (TypedBehind(rule, {}, m_before) == m_before) {
        const QString text = TypedBehind(rule, {}, now);
        SetField(row, {text, text.size()});
        return;
    }
    const QString text = TypedBehind(rule, now.left(edit.Position), edit.Text);
    SetField(row, {text + now.mid(edit.Position + edit.Text.size()), text.size()});
}

void SheetEditor::KeepAccepted(int row, const QString& now, const Insertion& edit, bool accepted)
{
    const SheetRow& rule = At(row);
    const QString before = now.left(edit.Position);
    QString kept;
    for (const QChar c : OneLine(edit.Text)) {
        if (c == rule.EndsPaste)
            break;
        if (accepted || !rule.Accepts || rule.Accepts(c.unicode(), before + kept))
            kept += c;
    }
    if (kept != edit.Text)
        SetField(row, {before + kept + now.mid(edit.Position + edit.Text.size()), before.size() + kept.size()});
    if (edit.Text.size() > 1 && rule.KeyUp)
        SetField(row, rule.KeyUp(Key::Shift, Field(row)));
}
