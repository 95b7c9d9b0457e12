#pragma once

#include <QString>

namespace Word {

class Story;

/// A stretch of a text, by positions from 0 with the end left out. It belongs to the text and must not outlive it.
class Range
{
public:
    Range(Story& story, qsizetype start, qsizetype end);

    [[nodiscard]] qsizetype Start() const { return m_start; }
    [[nodiscard]] qsizetype End() const { return m_end; }
    /// A merge field reads as «name», the end of a paragraph as character 13.
    [[nodiscard]] QString Text() const;
    /// Puts a text in the place of the stretch; the last mark of a text stays.
    void SetText(const QString& text);
    /// A place inside a field stands for its start: a field is bold where its start lies in the stretch.
    void SetBold(bool bold);
    void Delete();

    [[nodiscard]] Story& Whole() const { return *m_story; }

private:
    Story* m_story;
    qsizetype m_start;
    qsizetype m_end;
};

} // namespace Word
