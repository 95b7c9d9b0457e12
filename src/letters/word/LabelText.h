#pragma once

class QXmlStreamWriter;

namespace Word {

struct LabelPages;
struct LabelSheet;

/// Writes sheets of labels as tables, each on a page of its own, with the setup of that page behind it. The table's
/// rows and columns are the sheet's labels and the gaps between them, so that text stands where the label is.
void WriteLabelPages(QXmlStreamWriter& xml, const LabelPages& pages);

/// The look of the text on a label: in half points and twips.
struct LabelLook
{
    int HalfPoints = 20;
    /// How far the text keeps away from the label's left and right edge.
    int Indent = 0;
};

/// As large as four lines fit on the label, and never larger than is usual.
[[nodiscard]] LabelLook LookOf(const LabelSheet& sheet);

} // namespace Word
