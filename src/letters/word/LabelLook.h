#pragma once

#include <QString>

namespace Word {

struct LabelSheet;
class Story;

/// The look of the text on the labels of a sheet: in half points and twips.
struct LabelLook
{
    int HalfPoints = 20;
    /// How far the text keeps away from the label's left and right edge.
    int Indent = 0;
    /// The place that a line has.
    int Width = 0;
};

/// No text on a label is smaller, in half points.
inline constexpr int smallestOnLabel = 6;

/// As large as four lines fit on the label, and never larger than is usual.
[[nodiscard]] LabelLook LookOf(const LabelSheet& sheet);

/// The size for this label's text, in half points: the sheet's own, or smaller where its longest line would not fit: a
/// line more than four would push the last one off the label.
[[nodiscard]] int FittingSize(const Story& label, const LabelLook& look);

/// The height of a line of this size, in twips.
[[nodiscard]] int LineHeight(int halfPoints);

/// The paragraph style of a label's text of this size.
[[nodiscard]] QString LabelStyle(int halfPoints, const LabelLook& look);

/// From 1/100 mm.
[[nodiscard]] int Twips(int length);

} // namespace Word
