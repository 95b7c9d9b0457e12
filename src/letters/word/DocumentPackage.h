#pragma once

#include <QString>

namespace Word {

class Document;

/// Writes a document as a package of Office Open XML (ECMA-376, WordprocessingML, transitional) under a path that does
/// not exist yet. Raises 75 where that cannot be done, and leaves nothing there.
void WriteDocument(const Document& document, const QString& path);

} // namespace Word
