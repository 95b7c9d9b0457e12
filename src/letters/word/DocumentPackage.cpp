#include "letters/word/DocumentPackage.h"

#include "letters/word/Document.h"
#include "letters/word/DocumentText.h"
#include "letters/word/Errors.h"
#include "letters/word/LabelText.h"
#include "letters/word/Styles.h"

#include <QDir>
#include <QFile>
#include <QHash>
#include <QXmlStreamWriter>
#include <memory>
#include <vector>
#include <zip.h>

using namespace Qt::StringLiterals;

namespace Word {

namespace {

constexpr auto mainNamespace = "http://schemas.openxmlformats.org/wordprocessingml/2006/main"_L1;
constexpr auto relationNamespace = "http://schemas.openxmlformats.org/officeDocument/2006/relationships"_L1;
constexpr auto packageNamespace = "http://schemas.openxmlformats.org/package/2006/"_L1;
constexpr auto contentTypes = "application/vnd.openxmlformats-officedocument.wordprocessingml."_L1;

/// One part of the package.
struct Part
{
    QString Name; ///< path in the package
    QString Kind; ///< last word of its content type and of its relation to the document
    QByteArray Bytes;
};

template <typename Write>
QByteArray Xml(Write&& write)
{
    QByteArray bytes;
    QXmlStreamWriter xml(&bytes);
    xml.writeStartDocument(u"1.0"_s, true);
    std::forward<Write>(write)(xml);
    xml.writeEndDocument();
    return bytes;
}

void StartWordPart(QXmlStreamWriter& xml, const QString& root)
{
    xml.writeStartElement(root);
    xml.writeAttribute(u"xmlns:w"_s, mainNamespace);
    xml.writeAttribute(u"xmlns:r"_s, relationNamespace);
}

QString RelationId(std::size_t index)
{
    return u"rId"_s + QString::number(index + 1);
}

/// The parts of a document. Sections with the same header share its part.
class Package
{
public:
    explicit Package(const Document& document)
    {
        const std::optional<LabelSheet> labels =
            document.LabelSheets ? std::optional(document.LabelSheets->Sheet) : std::nullopt;
        m_parts.push_back({u"word/styles.xml"_s, u"styles"_s, StylesPart(labels)});
        m_parts.push_back({u"word/settings.xml"_s, u"settings"_s, SettingsPart()});
        m_body = Xml([&](QXmlStreamWriter& xml) { WriteBody(xml, document); });
    }

    [[nodiscard]] std::vector<Part> Parts() const
    {
        const Part body{u"word/document.xml"_s, u"document.main"_s, m_body};
        std::vector<Part> parts{{u"[Content_Types].xml"_s, {}, ContentTypes(body)},
                                {u"_rels/.rels"_s, {}, PackageRelations()},
                                body,
                                {u"word/_rels/document.xml.rels"_s, {}, DocumentRelations()}};
        parts.insert(parts.end(), m_parts.begin(), m_parts.end());
        return parts;
    }

private:
    void WriteBody(QXmlStreamWriter& xml, const Document& document)
    {
        StartWordPart(xml, u"w:document"_s);
        xml.writeStartElement(u"w:body"_s);
        if (document.LabelSheets)
            WriteLabelPages(xml, *document.LabelSheets);
        else
            WriteSections(xml, document);
        xml.writeEndElement();
        xml.writeEndElement();
    }

    void WriteSections(QXmlStreamWriter& xml, const Document& document)
    {
        for (const auto& section : document.AllSections) {
            PageSetup page;
            page.HeaderId = PartOf(section->Header(), u"header"_s, u"w:hdr"_s, u"Header"_s);
            page.FooterId = PartOf(section->Footer(), u"footer"_s, u"w:ftr"_s, u"Footer"_s);
            const auto writePage = [&] { WritePageSetup(xml, page); };
            // The last section's page stands behind the text, that of the others in their last paragraph.
            if (section == document.AllSections.back()) {
                WriteStory(xml, section->Body, {});
                writePage();
            } else {
                WriteStory(xml, section->Body, {}, writePage);
            }
        }
    }

    QString PartOf(const HeaderFooter& content, const QString& kind, const QString& root, const QString& style)
    {
        if (content.Content() == nullptr)
            return {};
        const Story& story = *content.Content();
        const QByteArray bytes = Xml([&](QXmlStreamWriter& xml) {
            StartWordPart(xml, root);
            WriteStory(xml, story, style);
            xml.writeEndElement();
        });
        QString& id = m_known[bytes];
        if (id.isEmpty()) {
            const QString name = u"word/%1%2.xml"_s.arg(kind).arg(++m_counts[kind]);
            id = RelationId(m_parts.size());
            m_parts.push_back({name, kind, bytes});
        }
        return id;
    }

    [[nodiscard]] QByteArray ContentTypes(const Part& body) const
    {
        return Xml([&](QXmlStreamWriter& xml) {
            xml.writeStartElement(u"Types"_s);
            xml.writeAttribute(u"xmlns"_s, packageNamespace + u"content-types"_s);
            const auto addDefault = [&](const QString& extension, const QString& type) {
                xml.writeEmptyElement(u"Default"_s);
                xml.writeAttribute(u"Extension"_s, extension);
                xml.writeAttribute(u"ContentType"_s, type);
            };
            addDefault(u"rels"_s, u"application/vnd.openxmlformats-package.relationships+xml"_s);
            addDefault(u"xml"_s, u"application/xml"_s);
            const auto addPart = [&](const Part& part) {
                xml.writeEmptyElement(u"Override"_s);
                xml.writeAttribute(u"PartName"_s, u'/' + part.Name);
                xml.writeAttribute(u"ContentType"_s, contentTypes + part.Kind + u"+xml"_s);
            };
            addPart(body);
            for (const Part& part : m_parts)
                addPart(part);
            xml.writeEndElement();
        });
    }

    static void WriteRelation(QXmlStreamWriter& xml, const QString& id, const QString& kind, const QString& target)
    {
        xml.writeEmptyElement(u"Relationship"_s);
        xml.writeAttribute(u"Id"_s, id);
        xml.writeAttribute(u"Type"_s, relationNamespace + u'/' + kind);
        xml.writeAttribute(u"Target"_s, target);
    }

    [[nodiscard]] static QByteArray PackageRelations()
    {
        return Xml([](QXmlStreamWriter& xml) {
            xml.writeStartElement(u"Relationships"_s);
            xml.writeAttribute(u"xmlns"_s, packageNamespace + u"relationships"_s);
            WriteRelation(xml, RelationId(0), u"officeDocument"_s, u"word/document.xml"_s);
            xml.writeEndElement();
        });
    }

    [[nodiscard]] QByteArray DocumentRelations() const
    {
        return Xml([this](QXmlStreamWriter& xml) {
            xml.writeStartElement(u"Relationships"_s);
            xml.writeAttribute(u"xmlns"_s, packageNamespace + u"relationships"_s);
            for (std::size_t i = 0; i < m_parts.size(); ++i)
                WriteRelation(xml, RelationId(i), m_parts[i].Kind, m_parts[i].Name.section(u'/', 1));
            xml.writeEndElement();
        });
    }

    /// All that the document refers to; a part's place gives its relation's ID.
    std::vector<Part> m_parts;
    QHash<QByteArray, QString> m_known;
    QHash<QString, int> m_counts;
    QByteArray m_body;
};

struct DiscardArchive
{
    void operator()(zip_t* archive) const { zip_discard(archive); }
};

[[noreturn]] void RaiseCannotWrite(const QString& path)
{
    throw RunTimeError(ErrorNumber::PathFileAccess,
                       u"I could not write the document\r\n"_s + QDir::toNativeSeparators(path));
}

} // namespace

void WriteDocument(const Document& document, const QString& path)
{
    const std::vector<Part> parts = Package(document).Parts();
    int error = 0;
    std::unique_ptr<zip_t, DiscardArchive> archive(
        zip_open(QFile::encodeName(path).constData(), ZIP_CREATE | ZIP_EXCL, &error));
    if (!archive)
        RaiseCannotWrite(path);
    for (const Part& part : parts) {
        zip_source_t* source =
            zip_source_buffer(archive.get(), part.Bytes.constData(), zip_uint64_t(part.Bytes.size()), 0);
        const zip_int64_t index =
            source == nullptr ? -1
                              : zip_file_add(archive.get(), part.Name.toUtf8().constData(), source, ZIP_FL_ENC_UTF_8);
        if (index < 0) {
            zip_source_free(source);
            RaiseCannotWrite(path);
        }
        constexpr zip_uint32_t quickly = 3;
        zip_set_file_compression(archive.get(), zip_uint64_t(index), ZIP_CM_DEFLATE, quickly);
    }
    // Nothing has been written so far; a file that cannot be finished is never given its name.
    if (zip_close(archive.get()) != 0)
        RaiseCannotWrite(path);
    static_cast<void>(archive.release());
}

} // namespace Word
