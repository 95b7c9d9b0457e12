#pragma once

#include <QString>

/// One shared copy of a text that many records repeat (a city, a first name, "Yes").
[[nodiscard]] QString SharedText(const QString& text);
