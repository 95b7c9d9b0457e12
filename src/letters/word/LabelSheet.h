#pragma once

#include <QString>

namespace Word {

/// A sheet of labels: lengths in 1/100 mm.
struct LabelSheet
{
    int Across = 1;
    int Down = 1;
    int Width = 0;
    int Height = 0;
    /// From the page's edges to the first label.
    int Left = 0;
    int Top = 0;
    /// From the edge of one label to the same edge of the next.
    int PitchH = 0;
    int PitchV = 0;
    int PageWidth = 0;
    int PageHeight = 0;

    [[nodiscard]] int PerSheet() const { return Across * Down; }
};

/// The sheet of a maker's label in the table :/labels/geometry.csv, both names compared exactly. Raises 5843 for a
/// label that is not in it.
[[nodiscard]] LabelSheet FindLabelSheet(const QString& brand, const QString& number);

} // namespace Word
