#include "letters/word/LabelText.h"

#include "letters/word/Document.h"
#include "letters/word/DocumentText.h"
#include "letters/word/LabelLook.h"
#include "letters/word/Story.h"

#include <QXmlStreamWriter>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace Word {

namespace {

/// The tables of a document. All edges are rounded from the sheet's own measure, so that no error adds up over a page.
class SheetWriter
{
public:
    SheetWriter(QXmlStreamWriter& xml, const LabelPages& pages)
        : m_xml(xml), m_pages(pages), m_sheet(pages.Sheet), m_look(LookOf(pages.Sheet))
    {}

    void WriteAll()
    {
        const std::size_t perSheet = static_cast<std::size_t>(m_sheet.PerSheet());
        for (std::size_t first = 0; first < m_pages.Labels.size(); first += perSheet) {
            WriteTable(first);
            // A table never ends a page: the smallest of paragraphs stands behind it, and starts the next sheet's page.
            const bool last = first + perSheet >= m_pages.Labels.size();
            if (last)
                WriteStory(m_xml, Story(), u"LabelEnd"_s);
            else
                WriteStory(m_xml, Story(), u"LabelEnd"_s, [this] { WritePage(); });
        }
        WritePage();
    }

private:
    [[nodiscard]] int ColumnLeft(int column) const { return Twips(m_sheet.Left + column * m_sheet.PitchH); }
    [[nodiscard]] int RowTop(int row) const { return Twips(m_sheet.Top + row * m_sheet.PitchV); }
    [[nodiscard]] int Width(int column) const
    {
        return Twips(m_sheet.Left + column * m_sheet.PitchH + m_sheet.Width) - ColumnLeft(column);
    }
    [[nodiscard]] int GapBehind(int column) const
    {
        return column + 1 < m_sheet.Across ? ColumnLeft(column + 1) - ColumnLeft(column) - Width(column) : 0;
    }
    /// A gap that is too low to be a row belongs to the label above it.
    [[nodiscard]] int Height(int row) const
    {
        const int height = Twips(m_sheet.Top + row * m_sheet.PitchV + m_sheet.Height) - RowTop(row);
        // The last row leaves room for the paragraph behind the table.
        if (row + 1 == m_sheet.Down)
            return std::min(height, Twips(m_sheet.PageHeight) - RowTop(row) - endHeight);
        const int pitch = RowTop(row + 1) - RowTop(row);
        return pitch - height < lowestRow ? pitch : height;
    }
    [[nodiscard]] int GapBelow(int row) const
    {
        return row + 1 < m_sheet.Down ? RowTop(row + 1) - RowTop(row) - Height(row) : 0;
    }

    void WriteTwips(const QString& element, int twips)
    {
        m_xml.writeEmptyElement(element);
        m_xml.writeAttribute(u"w:w"_s, QString::number(twips));
        m_xml.writeAttribute(u"w:type"_s, u"dxa"_s);
    }

    void WriteTable(std::size_t first)
    {
        m_xml.writeStartElement(u"w:tbl"_s);
        m_xml.writeStartElement(u"w:tblPr"_s);
        WriteTwips(u"w:tblW"_s, ColumnLeft(m_sheet.Across - 1) + Width(m_sheet.Across - 1) - ColumnLeft(0));
        WriteTwips(u"w:tblInd"_s, 0);
        m_xml.writeEmptyElement(u"w:tblLayout"_s);
        m_xml.writeAttribute(u"w:type"_s, u"fixed"_s);
        // Without margins of cells every reader lays the table on the page's margin; the text is indented instead.
        m_xml.writeStartElement(u"w:tblCellMar"_s);
        WriteTwips(u"w:left"_s, 0);
        WriteTwips(u"w:right"_s, 0);
        m_xml.writeEndElement();
        m_xml.writeEndElement();
        m_xml.writeStartElement(u"w:tblGrid"_s);
        ForEachColumn([this](int, int width) {
            m_xml.writeEmptyElement(u"w:gridCol"_s);
            m_xml.writeAttribute(u"w:w"_s, QString::number(width));
        });
        m_xml.writeEndElement();
        for (int row = 0; row < m_sheet.Down; ++row) {
            WriteRow(Height(row), [&](int column) { return LabelAt(first, row, column); });
            if (GapBelow(row) > 0)
                WriteRow(GapBelow(row), [](int) { return nullptr; });
        }
        m_xml.writeEndElement();
    }

    /// Every column from the left: its label's number and its width; -1 for a gap.
    template <typename Visit>
    void ForEachColumn(Visit&& visit) const
    {
        for (int column = 0; column < m_sheet.Across; ++column) {
            visit(column, Width(column));
            if (GapBehind(column) > 0)
                visit(-1, GapBehind(column));
        }
    }

    [[nodiscard]] const Story* LabelAt(std::size_t first, int row, int column) const
    {
        const std::size_t index = first + static_cast<std::size_t>(row * m_sheet.Across + column);
        return column >= 0 && index < m_pages.Labels.size() ? &m_pages.Labels[index] : nullptr;
    }

    template <typename LabelOf>
    void WriteRow(int height, LabelOf&& labelOf)
    {
        m_xml.writeStartElement(u"w:tr"_s);
        m_xml.writeStartElement(u"w:trPr"_s);
        m_xml.writeEmptyElement(u"w:cantSplit"_s);
        m_xml.writeEmptyElement(u"w:trHeight"_s);
        m_xml.writeAttribute(u"w:val"_s, QString::number(height));
        m_xml.writeAttribute(u"w:hRule"_s, u"exact"_s);
        m_xml.writeEndElement();
        ForEachColumn([&](int column, int width) { WriteCell(width, column < 0 ? nullptr : labelOf(column)); });
        m_xml.writeEndElement();
    }

    void WriteCell(int width, const Story* label)
    {
        m_xml.writeStartElement(u"w:tc"_s);
        m_xml.writeStartElement(u"w:tcPr"_s);
        WriteTwips(u"w:tcW"_s, width);
        if (label != nullptr) {
            m_xml.writeEmptyElement(u"w:vAlign"_s);
            m_xml.writeAttribute(u"w:val"_s, u"center"_s);
        }
        m_xml.writeEndElement();
        if (label != nullptr)
            WriteStory(m_xml, *label, LabelStyle(FittingSize(*label, m_look), m_look));
        else
            WriteStory(m_xml, Story(), u"LabelEnd"_s);
        m_xml.writeEndElement();
    }

    void WritePage()
    {
        PageSetup page;
        page.Width = Twips(m_sheet.PageWidth);
        page.Height = Twips(m_sheet.PageHeight);
        page.Top = RowTop(0);
        page.Left = ColumnLeft(0);
        page.Right = page.Bottom = page.HeaderDistance = 0;
        page.PaperSource = m_pages.LaserTray;
        WritePageSetup(m_xml, page);
    }

    static constexpr int endHeight = 40;
    static constexpr int lowestRow = 20;

    QXmlStreamWriter& m_xml;
    const LabelPages& m_pages;
    const LabelSheet& m_sheet;
    LabelLook m_look;
};

} // namespace

void WriteLabelPages(QXmlStreamWriter& xml, const LabelPages& pages)
{
    SheetWriter(xml, pages).WriteAll();
}

} // namespace Word
