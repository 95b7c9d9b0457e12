#pragma once

#include <QByteArray>
#include <QString>

// Text files in code page 1252, the form that word processors of this system's kind take for plain text.

/// The bytes of a text. A character that the page lacks becomes its base letter ("ő" o, "ł" l), otherwise "?".
[[nodiscard]] QByteArray ToCodePage1252(const QString& text);

/// The text of bytes; all 256 values have a character, so that nothing is lost on the way there and back.
[[nodiscard]] QString FromCodePage1252(const QByteArray& bytes);
