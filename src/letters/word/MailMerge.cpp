#include "letters/word/MailMerge.h"

#include "letters/word/Application.h"
#include "letters/word/Errors.h"

#include <algorithm>
#include <functional>

using namespace Qt::StringLiterals;

namespace Word {

namespace {

/// What stands in the place of a field that no column feeds, so that nobody takes the letter for complete.
constexpr auto fieldMissing = "Error! MergeField was not found in header record of data source."_L1;

/// A layout with the places of its fields looked up once, for as many records as there are.
class MergeText
{
public:
    MergeText(const Story& layout, const DataSource& source) : m_layout(layout), m_source(source)
    {
        for (const Piece& piece : layout.Pieces())
            m_columns.push_back(piece.Is == Piece::Kind::Field ? source.ColumnOf(piece.Content) : -1);
    }

    /// The text for one record.
    [[nodiscard]] Story For(qsizetype record, bool dropEmptyLines) const
    {
        const std::vector<Piece>& pieces = m_layout.Pieces();
        Story filled = Story::Unfinished();
        std::vector<Piece> line;
        bool hasField = false;
        bool hasText = false;
        for (std::size_t i = 0; i < pieces.size(); ++i) {
            Piece piece = pieces[i];
            if (piece.Is == Piece::Kind::Field) {
                hasField = true;
                piece.Content = m_columns[i] < 0 ? fieldMissing : m_source.Value(record, m_columns[i]);
                piece.Is = Piece::Kind::Text;
            }
            if (piece.Is == Piece::Kind::Text) {
                hasText = hasText || !piece.Content.isEmpty();
                if (!piece.Content.isEmpty())
                    line.push_back(std::move(piece));
                continue;
            }
            line.push_back(std::move(piece));
            if (hasText || !hasField || !dropEmptyLines)
                std::ranges::for_each(line, [&](const Piece& one) { filled.Append(one); });
            line.clear();
            hasField = hasText = false;
        }
        if (filled.Pieces().empty())
            filled.Append({{}, Piece::Kind::Mark, false});
        return filled;
    }

private:
    const Story& m_layout;
    const DataSource& m_source;
    std::vector<qsizetype> m_columns;
};

} // namespace

void MailMergeFields::Add(const Range& range, const QString& name)
{
    Selection& selection = m_document->Selection();
    const qsizetype place = range.Start();
    const qsizetype behind = m_document->Content().Whole().InsertField(place, name, selection.Font.Bold);
    if (place <= selection.Position())
        selection.m_position += behind - place;
}

void MailMerge::OpenDataSource(const QString& path)
{
    m_source = DataSource::Read(path);
}

void MailMerge::Execute(bool /*pause*/)
{
    const bool labels = MainDocumentType == wdMailingLabels;
    if (!m_source || (labels && !m_document->LabelSheets))
        throw RunTimeError(Error::NotAvailable,
                           u"This method or property is not available because the document is not a "
                           "mail merge main document."_s);
    if (m_source->RecordCount() == 0)
        throw RunTimeError(Error::NoRecords,
                           u"Word could not merge the main document with the data source because the "
                           "data records were empty or no data records matched your query options."_s);
    Document& merged = m_application->Documents().Add(labels ? DocumentKind::Labels : DocumentKind::FormLetters);
    if (labels)
        MergeLabels(merged);
    else
        MergeLetters(merged);
}

void MailMerge::MergeLetters(Document& merged) const
{
    const Section& main = *m_document->AllSections.front();
    const MergeText text(main.Body, *m_source);
    merged.AllSections.clear();
    merged.AllSections.reserve(static_cast<std::size_t>(m_source->RecordCount()));
    for (qsizetype record = 0; record < m_source->RecordCount(); ++record) {
        // The copy is the record's alone; header and footer are the main document's.
        auto section = std::make_unique<Section>(main.WithBody(text.For(record, true)));
        merged.AllSections.push_back(std::move(section));
    }
}

void MailMerge::MergeLabels(Document& merged) const
{
    const LabelPages& main = *m_document->LabelSheets;
    LabelPages& pages = merged.LabelSheets.emplace(LabelPages{main.Sheet, main.LaserTray, {}});
    const MergeText text(main.Labels.front(), *m_source);
    pages.Labels.reserve(static_cast<std::size_t>(m_source->RecordCount()));
    for (qsizetype record = 0; record < m_source->RecordCount(); ++record)
        pages.Labels.push_back(text.For(record, false));
}

} // namespace Word
