#pragma once

class QXmlStreamWriter;

namespace Word {

struct LabelPages;

/// Writes sheets of labels as tables, each on a page of its own, with the setup of that page behind it. The table's
/// rows and columns are the sheet's labels and the gaps between them, so that text stands where the label is.
void WriteLabelPages(QXmlStreamWriter& xml, const LabelPages& pages);

} // namespace Word
