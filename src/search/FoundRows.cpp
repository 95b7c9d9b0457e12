#include "search/FoundRows.h"

#include "core/Trap.h"
#include "model/Contact.h"
#include "model/PropDetail.h"
#include "search/CriteriaRows.h"
#include "ui/widgets/Grid.h"

#include <numeric>

using namespace Qt::StringLiterals;

void FoundRows::Begin(SearchMode mode)
{
    m_texts.reset();
    if (mode == SearchMode::Properties) {
        LoadPropFoundCols();
        m_texts.emplace();
    } else {
        LoadContactFoundCols();
    }
    m_grid.Clear();
}

void FoundRows::End()
{
    if (m_texts)
        AddBogusPropToFoundList();
    else
        AddBogusContactToFoundGrid();
    m_texts.reset();
}

void FoundRows::MarkContact(int row, bool selected)
{
    MarkCell(m_grid, row, NameColumn, selected);
}

void FoundRows::LoadContactFoundCols()
{
    Trap(u"frmMain LoadContactFoundCols Error #"_s, Icon::Critical,
         [this] { MakeColumns(FoundContactColumns(), 1, u"Name"); });
}

void FoundRows::LoadPropFoundCols()
{
    Trap(u"frmMain LoadPropFoundCols Error #"_s, Icon::Critical,
         [this] { MakeColumns(FoundPropertyColumns(), 2, u"ContactName"); });
}

void FoundRows::MakeColumns(const std::vector<GridColumn>& columns, int known, QStringView key)
{
    if (m_grid.Columns() > 0 && m_grid.Column(known).Key != key)
        m_grid.ClearWithColumns();
    if (m_grid.Columns() > 0)
        return;
    for (const GridColumn& column : columns)
        m_grid.AddColumn(column);
}

void FoundRows::AddContactToFoundGrid(int row, const Contact& contact)
{
    Trap(u"frmMain AddContactToFoundGrid Error #"_s, Icon::Critical, [&] {
        for (int column = 1; column <= m_grid.Columns(); ++column) {
            m_grid.SetCellText(row, column, FoundContactText(contact, column));
            m_grid.AutoWidthColumn(column);
        }
        if (contact.Selected)
            MarkContact(row, true);
        m_grid.SetRowItemData(row, contact.RecID);
    });
}

void FoundRows::AddPropToFoundGrid(int row, const PropDetail& property)
{
    Trap(u"frmMain AddPropToFoundGrid Error #"_s, Icon::Critical, [&] {
        for (const int column : FoundPropertyFilling()) {
            m_grid.SetCellText(row, column, m_texts->Text(property, column));
            m_grid.AutoWidthColumn(column);
        }
        m_grid.SetRowItemData(row, property.RecID);
    });
}

void FoundRows::AddBogusContactToFoundGrid()
{
    Trap(u"frmMain AddBogusContact Error #"_s, Icon::Critical, [this] {
        std::vector<int> columns(static_cast<size_t>(m_grid.Columns()));
        std::iota(columns.begin(), columns.end(), 1);
        AddSpacer(columns);
    });
}

void FoundRows::AddBogusPropToFoundList()
{
    Trap(u"frmMain AddBogusPropToFoundList Error #"_s, Icon::Critical, [this] {
        std::vector<int> columns = FoundPropertyFilling();
        std::erase_if(columns, [this](int column) { return !m_grid.Column(column).Visible; });
        AddSpacer(columns);
    });
}

void FoundRows::AddSpacer(const std::vector<int>& columns)
{
    constexpr int blanks = 25;
    const QString wide = u'.' + QString(blanks, u' ') + u'.';
    const int row = m_grid.AddRow();
    for (const int column : columns) {
        m_grid.SetCellText(row, column, wide);
        m_grid.AutoWidthColumn(column);
    }
    m_grid.SetRowVisible(row, false);
}
