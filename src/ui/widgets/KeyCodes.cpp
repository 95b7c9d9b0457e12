#include "ui/widgets/KeyCodes.h"

#include "core/FieldRules.h"

#include <QKeyEvent>

int KeyCode(const QKeyEvent& event)
{
    switch (event.key()) {
    case Qt::Key_Backspace:
        return Key::Backspace;
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        return 9;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return Key::Enter;
    case Qt::Key_Shift:
        return Key::Shift;
    case Qt::Key_Escape:
        return Key::Escape;
    case Qt::Key_PageUp:
        return 33;
    case Qt::Key_PageDown:
        return 34;
    case Qt::Key_End:
        return 35;
    case Qt::Key_Home:
        return 36;
    case Qt::Key_Left:
        return 37;
    case Qt::Key_Up:
        return 38;
    case Qt::Key_Right:
        return 39;
    case Qt::Key_Down:
        return 40;
    case Qt::Key_Delete:
        return Key::Delete;
    default:
        break;
    }
    const int key = event.key();
    const bool same =
        key == Qt::Key_Space || (key >= Qt::Key_0 && key <= Qt::Key_9) || (key >= Qt::Key_A && key <= Qt::Key_Z);
    return same ? key : 0;
}

int KeyAscii(const QKeyEvent& event)
{
    switch (event.key()) {
    case Qt::Key_Backspace:
        return Key::Backspace;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return Key::Enter;
    case Qt::Key_Escape:
        return Key::Escape;
    default:
        break;
    }
    // Under Alt a letter is no text; Ctrl and Alt together make the third sign of a key.
    if (event.modifiers().testFlag(Qt::AltModifier) && !event.modifiers().testFlag(Qt::ControlModifier))
        return 0;
    const QString text = event.text();
    return !text.isEmpty() && text.at(0).isPrint() ? text.at(0).unicode() : 0;
}
