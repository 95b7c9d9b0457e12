#pragma once

#include <QString>
#include <vector>

namespace Word {

/// A stretch of a text that looks the same throughout.
struct Piece
{
    enum class Kind : quint8
    {
        Text,  ///< Content is the text: no line ends, but perhaps tabs (9), line breaks (11) and page breaks (12)
        Field, ///< Content is the name of a merge field, which reads as «name»
        Mark   ///< the end of a paragraph
    };

    QString Content;
    Kind Is = Kind::Text;
    bool Bold = false;

    /// How many positions it takes.
    [[nodiscard]] qsizetype Length() const;
    [[nodiscard]] QString Text() const;
};

/// The running text of a document's body, of a header or footer, or of one label. Positions count UTF-16 units from 0;
/// a merge field takes the places of «name», a paragraph ends in one character 13, and the last paragraph always ends.
class Story
{
public:
    /// One empty paragraph.
    Story() = default;
    explicit Story(const QString& text);

    /// With the mark of the last paragraph.
    [[nodiscard]] qsizetype Length() const { return m_length; }
    [[nodiscard]] QString Text(qsizetype start, qsizetype end) const;
    [[nodiscard]] const std::vector<Piece>& Pieces() const { return m_pieces; }

    /// Puts a text in at a position before the last mark, and gives the position behind it. Each CR LF, CR or LF ends a
    /// paragraph.
    qsizetype Insert(qsizetype at, const QString& text, bool bold);
    qsizetype InsertField(qsizetype at, const QString& name, bool bold);
    void SetBold(qsizetype start, qsizetype end, bool bold);
    /// Takes a stretch away; the last mark stays.
    void Delete(qsizetype start, qsizetype end);

    /// Adds a piece behind all others; for those who build a text from its start, who end with a mark.
    void Append(const Piece& piece);
    /// Without even a last mark: what Append starts from.
    [[nodiscard]] static Story Unfinished();

private:
    /// The index of the piece that starts at a position; a piece that lies across it is cut there.
    std::size_t CutAt(qsizetype position);

    std::vector<Piece> m_pieces{Piece{{}, Piece::Kind::Mark, false}};
    qsizetype m_length = 1;
};

} // namespace Word
