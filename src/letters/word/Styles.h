#pragma once

#include "letters/word/LabelSheet.h"

#include <QByteArray>
#include <optional>

namespace Word {

/// The styles of a document; with those of a label's text where it has labels.
[[nodiscard]] QByteArray StylesPart(const std::optional<LabelSheet>& labels);
[[nodiscard]] QByteArray SettingsPart();

} // namespace Word
