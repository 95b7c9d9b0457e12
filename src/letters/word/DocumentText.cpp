#include "letters/word/DocumentText.h"

#include "letters/word/Story.h"

#include <QXmlStreamWriter>
#include <algorithm>
#include <span>

using namespace Qt::StringLiterals;

namespace Word {

namespace {

void WriteValue(QXmlStreamWriter& xml, const QString& element, const QString& value)
{
    xml.writeEmptyElement(element);
    xml.writeAttribute(u"w:val"_s, value);
}

/// The element of a character that stands for more than itself; "" for every other.
QString SpecialElement(QChar character)
{
    switch (character.unicode()) {
    case u'\t':
        return u"w:tab"_s;
    case u'\v':
    case u'\f':
        return u"w:br"_s;
    default:
        return {};
    }
}

void StartRun(QXmlStreamWriter& xml, bool bold)
{
    xml.writeStartElement(u"w:r"_s);
    if (!bold)
        return;
    xml.writeStartElement(u"w:rPr"_s);
    xml.writeEmptyElement(u"w:b"_s);
    xml.writeEndElement();
}

void WriteTextElement(QXmlStreamWriter& xml, const QString& element, const QString& text)
{
    xml.writeStartElement(element);
    xml.writeAttribute(u"xml:space"_s, u"preserve"_s);
    xml.writeCharacters(CleanText(text));
    xml.writeEndElement();
}

void WriteText(QXmlStreamWriter& xml, const QString& text, bool bold)
{
    StartRun(xml, bold);
    qsizetype start = 0;
    for (qsizetype i = 0; i <= text.size(); ++i) {
        const QString element = i < text.size() ? SpecialElement(text[i]) : QString();
        if (i < text.size() && element.isEmpty())
            continue;
        if (i > start)
            WriteTextElement(xml, u"w:t"_s, text.mid(start, i - start));
        if (!element.isEmpty())
            xml.writeEmptyElement(element);
        if (i < text.size() && text[i] == u'\f')
            xml.writeAttribute(u"w:type"_s, u"page"_s);
        start = i + 1;
    }
    xml.writeEndElement();
}

void WriteField(QXmlStreamWriter& xml, const Piece& field)
{
    const auto writeMark = [&](const QString& type) {
        StartRun(xml, field.Bold);
        xml.writeEmptyElement(u"w:fldChar"_s);
        xml.writeAttribute(u"w:fldCharType"_s, type);
        xml.writeEndElement();
    };
    const bool quoted = field.Content.contains(u' ');
    writeMark(u"begin"_s);
    StartRun(xml, field.Bold);
    WriteTextElement(xml, u"w:instrText"_s,
                     quoted ? u" MERGEFIELD \"%1\" "_s.arg(field.Content) : u" MERGEFIELD %1 "_s.arg(field.Content));
    xml.writeEndElement();
    writeMark(u"separate"_s);
    WriteText(xml, field.Text(), field.Bold);
    writeMark(u"end"_s);
}

void WriteParagraph(QXmlStreamWriter& xml, std::span<const Piece> pieces, const QString& style,
                    const std::function<void()>& properties)
{
    xml.writeStartElement(u"w:p"_s);
    if (!style.isEmpty() || properties) {
        xml.writeStartElement(u"w:pPr"_s);
        if (!style.isEmpty())
            WriteValue(xml, u"w:pStyle"_s, style);
        if (properties)
            properties();
        xml.writeEndElement();
    }
    for (const Piece& piece : pieces) {
        if (piece.Is == Piece::Kind::Field)
            WriteField(xml, piece);
        else if (!piece.Content.isEmpty())
            WriteText(xml, piece.Content, piece.Bold);
    }
    xml.writeEndElement();
}

void WriteReference(QXmlStreamWriter& xml, const QString& element, const QString& id)
{
    if (id.isEmpty())
        return;
    xml.writeEmptyElement(element);
    xml.writeAttribute(u"w:type"_s, u"default"_s);
    xml.writeAttribute(u"r:id"_s, id);
}

} // namespace

QString CleanText(const QString& text)
{
    const auto isPlain = [](QChar c) { return c.unicode() >= 0x20 && !c.isSurrogate() && c.unicode() < 0xFFFE; };
    if (std::ranges::all_of(text, isPlain))
        return text;
    QString clean;
    clean.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (isPlain(c)) {
            clean += c;
        } else if (c.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate()) {
            clean += c;
            clean += text[++i];
        } else if (c.unicode() >= 0x20) {
            clean += QChar::ReplacementCharacter;
        }
    }
    return clean;
}

void WriteStory(QXmlStreamWriter& xml, const Story& story, const QString& style,
                const std::function<void()>& lastProperties)
{
    const std::span<const Piece> pieces(story.Pieces());
    std::size_t start = 0;
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        if (pieces[i].Is != Piece::Kind::Mark)
            continue;
        const bool last = i + 1 == pieces.size();
        WriteParagraph(xml, pieces.subspan(start, i - start), style, last ? lastProperties : std::function<void()>());
        start = i + 1;
    }
}

void WritePageSetup(QXmlStreamWriter& xml, const PageSetup& page)
{
    const auto number = [&xml](const QString& name, int value) { xml.writeAttribute(name, QString::number(value)); };
    xml.writeStartElement(u"w:sectPr"_s);
    WriteReference(xml, u"w:headerReference"_s, page.HeaderId);
    WriteReference(xml, u"w:footerReference"_s, page.FooterId);
    WriteValue(xml, u"w:type"_s, u"nextPage"_s);
    xml.writeEmptyElement(u"w:pgSz"_s);
    number(u"w:w"_s, page.Width);
    number(u"w:h"_s, page.Height);
    xml.writeEmptyElement(u"w:pgMar"_s);
    number(u"w:top"_s, page.Top);
    number(u"w:right"_s, page.Right);
    number(u"w:bottom"_s, page.Bottom);
    number(u"w:left"_s, page.Left);
    number(u"w:header"_s, page.HeaderDistance);
    number(u"w:footer"_s, page.HeaderDistance);
    number(u"w:gutter"_s, 0);
    if (page.PaperSource != 0) {
        xml.writeEmptyElement(u"w:paperSrc"_s);
        number(u"w:first"_s, page.PaperSource);
        number(u"w:other"_s, page.PaperSource);
    }
    xml.writeEndElement();
}

} // namespace Word
