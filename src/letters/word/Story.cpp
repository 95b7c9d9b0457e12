#include "letters/word/Story.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Word {

qsizetype Piece::Length() const
{
    switch (Is) {
    case Kind::Text:
        return Content.size();
    case Kind::Field:
        return Content.size() + 2;
    case Kind::Mark:
        break;
    }
    return 1;
}

QString Piece::Text() const
{
    switch (Is) {
    case Kind::Text:
        return Content;
    case Kind::Field:
        return u'«' + Content + u'»';
    case Kind::Mark:
        break;
    }
    return u"\r"_s;
}

Story::Story(const QString& text)
{
    Insert(0, text, false);
}

Story Story::Unfinished()
{
    Story story;
    story.m_pieces.clear();
    story.m_length = 0;
    return story;
}

void Story::Append(const Piece& piece)
{
    m_pieces.push_back(piece);
    m_length += piece.Length();
}

QString Story::Text(qsizetype start, qsizetype end) const
{
    QString text;
    qsizetype position = 0;
    for (const Piece& piece : m_pieces) {
        const qsizetype behind = position + piece.Length();
        if (position >= end)
            break;
        if (behind > start) {
            const qsizetype from = std::max(start, position);
            text += piece.Text().mid(from - position, std::min(end, behind) - from);
        }
        position = behind;
    }
    return text;
}

std::size_t Story::CutAt(qsizetype position)
{
    // Nearly all typing goes on at the end, which is found at once.
    if (position >= m_length - 1)
        return position >= m_length ? m_pieces.size() : m_pieces.size() - 1;
    std::size_t index = 0;
    qsizetype start = 0;
    while (start + m_pieces[index].Length() <= position)
        start += m_pieces[index++].Length();
    Piece& piece = m_pieces[index];
    if (start == position || piece.Is != Piece::Kind::Text)
        return index; // a field is never cut: a place inside it stands for its start
    Piece rest = piece;
    rest.Content = piece.Content.mid(position - start);
    piece.Content.truncate(position - start);
    m_pieces.insert(m_pieces.begin() + qptrdiff(index) + 1, rest);
    return index + 1;
}

qsizetype Story::Insert(qsizetype at, const QString& text, bool bold)
{
    std::vector<Piece> added;
    qsizetype line = 0;
    const auto addLine = [&](qsizetype end) {
        if (end > line)
            added.push_back({text.mid(line, end - line), Piece::Kind::Text, bold});
    };
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] != u'\r' && text[i] != u'\n')
            continue;
        addLine(i);
        added.push_back({{}, Piece::Kind::Mark, bold});
        if (text[i] == u'\r' && i + 1 < text.size() && text[i + 1] == u'\n')
            ++i;
        line = i + 1;
    }
    addLine(text.size());
    qsizetype length = 0;
    for (const Piece& piece : added)
        length += piece.Length();
    const auto place = m_pieces.begin() + qptrdiff(CutAt(at));
    m_pieces.insert(place, added.begin(), added.end());
    m_length += length;
    return at + length;
}

qsizetype Story::InsertField(qsizetype at, const QString& name, bool bold)
{
    const Piece field{name, Piece::Kind::Field, bold};
    const auto place = m_pieces.begin() + qptrdiff(CutAt(at));
    m_pieces.insert(place, field);
    m_length += field.Length();
    return at + field.Length();
}

void Story::SetBold(qsizetype start, qsizetype end, bool bold)
{
    if (start >= end)
        return;
    const std::size_t first = CutAt(start);
    const std::size_t behind = CutAt(end);
    for (std::size_t i = first; i < behind; ++i)
        m_pieces[i].Bold = bold;
}

void Story::Delete(qsizetype start, qsizetype end)
{
    end = std::min(end, m_length - 1);
    if (start >= end)
        return;
    const std::size_t first = CutAt(start);
    const std::size_t behind = CutAt(end);
    for (std::size_t i = first; i < behind; ++i)
        m_length -= m_pieces[i].Length();
    m_pieces.erase(m_pieces.begin() + qptrdiff(first), m_pieces.begin() + qptrdiff(behind));
}

} // namespace Word
