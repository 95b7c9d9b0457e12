#pragma once

#include <QString>

class QPlainTextEdit;

/// The text of a box as the store keeps it: a break is CR LF, and hard blanks stay hard.
[[nodiscard]] QString PlainText(const QPlainTextEdit& box);
