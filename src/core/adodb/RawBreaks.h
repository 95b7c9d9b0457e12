#pragma once

#include <QIODevice>

/// An XML document as another device gives it, with two things mended that a conforming parser would not take as they
/// are meant: raw line breaks and tabs inside quoted values become references (a parser makes blanks of them), and
/// blank lines and a byte-order mark in front of the document go.
class RawBreaks : public QIODevice
{
public:
    /// `source` is open, and outlives this.
    explicit RawBreaks(QIODevice& source);

    [[nodiscard]] bool isSequential() const override { return true; }

protected:
    qint64 readData(char* data, qint64 most) override;
    qint64 writeData(const char*, qint64) override { return -1; }

private:
    enum class Place
    {
        Front, ///< before the document
        Text,
        Markup, ///< behind "<", while it may still become a comment or another section
        Tag,
        Quoted,
        Section, ///< a comment, CDATA or processing instruction, up to its end
        Over
    };

    void Mend(const QByteArray& block);
    void Step(char sign);

    QIODevice& m_source;
    Place m_place = Place::Front;
    char m_quote = 0;
    int m_values = 0;    ///< of the tag so far
    QByteArray m_begun;  ///< of Markup, what was read so far
    QByteArray m_last;   ///< of Section, its last signs
    QByteArray m_end;    ///< of Section, how it ends
    QByteArray m_mended; ///< what was not asked for yet
};
