#include "ui/widgets/Grid.h"
#include "ui/widgets/GridFit.h"
#include "ui/widgets/GridModel.h"

// What stands in the cells of a grid, and how it looks.

QString Grid::CellText(int row, int column) const
{
    CheckCell(row, column);
    return m_model->Text(row - 1, column - 1);
}

void Grid::SetCellText(int row, int column, const QString& text)
{
    CheckCell(row, column);
    m_model->SetText(row - 1, column - 1, text);
    m_fit->CellChanged(row - 1, column - 1);
}

void Grid::SetCellText(int row, QStringView key, const QString& text)
{
    SetCellText(row, ColumnIndex(key), text);
}

QString Grid::CellIcon(int row, int column) const
{
    CheckCell(row, column);
    return m_model->Look(row - 1, column - 1).Icon;
}

void Grid::SetCellIcon(int row, int column, const QString& name)
{
    CheckCell(row, column);
    CellLook look = m_model->Look(row - 1, column - 1);
    look.Icon = name;
    m_model->SetLook(row - 1, column - 1, look);
    m_fit->CellChanged(row - 1, column - 1);
}

QColor Grid::CellColor(int row, int column) const
{
    CheckCell(row, column);
    return m_model->Look(row - 1, column - 1).Color;
}

void Grid::SetCellColor(int row, int column, const QColor& color)
{
    CheckCell(row, column);
    CellLook look = m_model->Look(row - 1, column - 1);
    look.Color = color;
    m_model->SetLook(row - 1, column - 1, look);
}

QColor Grid::CellBackColor(int row, int column) const
{
    CheckCell(row, column);
    return m_model->Look(row - 1, column - 1).BackColor;
}

void Grid::SetCellBackColor(int row, int column, const QColor& color)
{
    CheckCell(row, column);
    CellLook look = m_model->Look(row - 1, column - 1);
    look.BackColor = color;
    m_model->SetLook(row - 1, column - 1, look);
}

QFont Grid::CellFont(int row, int column) const
{
    CheckCell(row, column);
    return m_model->Look(row - 1, column - 1).Font.value_or(font());
}

void Grid::SetCellFont(int row, int column, const QFont& font)
{
    CheckCell(row, column);
    CellLook look = m_model->Look(row - 1, column - 1);
    look.Font = font;
    m_model->SetLook(row - 1, column - 1, look);
    m_fit->CellChanged(row - 1, column - 1);
}

void Grid::ResetCellFont(int row, int column)
{
    CheckCell(row, column);
    CellLook look = m_model->Look(row - 1, column - 1);
    look.Font.reset();
    m_model->SetLook(row - 1, column - 1, look);
}
