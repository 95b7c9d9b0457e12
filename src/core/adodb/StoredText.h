#pragma once

#include <QByteArray>
#include <QString>

// Text as it lies in the file: UTF-8, in which an unpaired surrogate is kept as the three bytes of its code point
// (the generalised UTF-8 known as WTF-8), so that every text comes back as it was typed.

[[nodiscard]] QByteArray ToStored(const QString& text);
[[nodiscard]] QString FromStored(const char* bytes, qsizetype length);
