#pragma once

#include <QFont>
#include <array>
#include <vector>

class GridModel;

/// How wide a grid's columns must be for their texts, in pixels: a running maximum for each column, which only a clear
/// resets. A text is measured once, when its column is first fitted after it came, by adding the widths of its letters
/// from a table; so fitting a column after each row of a long fill stays cheap.
class GridFit
{
public:
    explicit GridFit(const GridModel& model);

    void SetFont(const QFont& font);
    void Clear() { m_columns.clear(); }
    void RowInserted(int row);
    void RowsRemoved(int first, int count);
    void RowsReordered();
    /// A cell got another text, icon or font.
    void CellChanged(int row, int column);

    /// The widest cell that the column has had since the last clear.
    [[nodiscard]] int Widest(int column);
    [[nodiscard]] int TextWidth(const QString& text) const;

private:
    struct Fit
    {
        int Widest = 0;
        int Measured = 0; ///< so many first rows are in Widest
    };

    [[nodiscard]] int CellWidth(int row, int column) const;

    const GridModel& m_model;
    QFont m_font;
    std::array<qreal, 256> m_letters{};
    std::vector<Fit> m_columns;
};
