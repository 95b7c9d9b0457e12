#include "ui/widgets/GridFit.h"

#include "ui/widgets/GridModel.h"

#include <QFontMetrics>
#include <QtMath>
#include <algorithm>

namespace {

constexpr int IconWidth = 20;

} // namespace

GridFit::GridFit(const GridModel& model) : m_model(model)
{
    SetFont(m_font);
}

void GridFit::SetFont(const QFont& font)
{
    m_font = font;
    const QFontMetricsF metrics(font);
    for (size_t letter = 0; letter < m_letters.size(); ++letter)
        m_letters[letter] = metrics.horizontalAdvance(QChar(static_cast<char16_t>(letter)));
    m_columns.clear();
}

void GridFit::RowInserted(int row)
{
    for (Fit& fit : m_columns)
        if (row < fit.Measured)
            ++fit.Measured;
}

void GridFit::RowsRemoved(int first, int count)
{
    for (Fit& fit : m_columns)
        fit.Measured -= std::clamp(fit.Measured - first, 0, count);
}

void GridFit::RowsReordered()
{
    for (Fit& fit : m_columns)
        if (fit.Measured < m_model.Rows())
            fit.Measured = 0;
}

void GridFit::CellChanged(int row, int column)
{
    const auto position = static_cast<size_t>(column);
    if (position < m_columns.size() && row < m_columns[position].Measured)
        m_columns[position].Widest = std::max(m_columns[position].Widest, CellWidth(row, column));
}

int GridFit::Widest(int column)
{
    const auto position = static_cast<size_t>(column);
    if (position >= m_columns.size())
        m_columns.resize(position + 1);
    Fit& fit = m_columns[position];
    for (; fit.Measured < m_model.Rows(); ++fit.Measured)
        fit.Widest = std::max(fit.Widest, CellWidth(fit.Measured, column));
    return fit.Widest;
}

int GridFit::TextWidth(const QString& text) const
{
    qreal width = 0;
    for (const QChar letter : text) {
        if (letter.unicode() >= m_letters.size())
            return QFontMetrics(m_font).horizontalAdvance(text);
        width += m_letters[letter.unicode()];
    }
    return qCeil(width);
}

int GridFit::CellWidth(int row, int column) const
{
    const QString& text = m_model.Text(row, column);
    if (!m_model.HasLook(row))
        return TextWidth(text);
    const CellLook look = m_model.Look(row, column);
    const int width = look.Font ? QFontMetrics(*look.Font).horizontalAdvance(text) : TextWidth(text);
    return look.Icon.isEmpty() ? width : width + IconWidth;
}
