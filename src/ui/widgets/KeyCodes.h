#pragma once

class QKeyEvent;

/// The code of a key as the field rules know it (core/FieldRules.h), the keys of movement beside them; letters and
/// digits have the code of their capital; 0 for all others.
[[nodiscard]] int KeyCode(const QKeyEvent& event);

/// The character that a key types: 8, 13 and 27 for Backspace, Enter and Esc; 0 for a key that types nothing.
[[nodiscard]] int KeyAscii(const QKeyEvent& event);
