#include "support/WordReader.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QLockFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>
#include <QXmlStreamReader>
#include <memory>
#include <zip.h>

using namespace Qt::StringLiterals;

namespace {

constexpr double millimetersPerPoint = 25.4 / 72;

/// What a program prints; an empty text, and a failed test, where it fails.
QByteArray OutputOf(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.start(program, arguments);
    constexpr int patience = 300'000;
    const bool done =
        process.waitForFinished(patience) && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    if (!done) {
        QTest::qFail(qPrintable(program + u": "_s + process.errorString() +
                                QString::fromLocal8Bit(process.readAllStandardError())),
                     __FILE__, __LINE__);
        return {};
    }
    return process.readAllStandardOutput();
}

bool MakePdfs(const QStringList& documents, const QString& folder)
{
    // One profile for all test programs: making one takes longer than the work. It serves one start at a time.
    const QString profile = QStringLiteral(ORVANTINE_BINARY_DIR "/tests/office-profile");
    QDir().mkpath(profile);
    QLockFile lock(profile + u".lock"_s);
    lock.setStaleLockTime(0);
    if (!lock.lock())
        return false;
    const QString office = QStandardPaths::findExecutable(u"soffice"_s);
    OutputOf(office, QStringList{u"--headless"_s, u"--norestore"_s,
                                 u"-env:UserInstallation="_s + QUrl::fromLocalFile(profile).toString(),
                                 u"--convert-to"_s, u"pdf"_s, u"--outdir"_s, folder} +
                         documents);
    return true;
}

QList<Page> ReadWords(const QString& pdf)
{
    QList<Page> pages;
    QXmlStreamReader xml(OutputOf(u"pdftotext"_s, {u"-bbox"_s, pdf, u"-"_s}));
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        const auto number = [&](const char* name) {
            return xml.attributes().value(QLatin1StringView(name)).toDouble() * millimetersPerPoint;
        };
        if (xml.name() == "page"_L1) {
            pages.append(Page{{number("width"), number("height")}, {}, {}, {}});
        } else if (xml.name() == "word"_L1) {
            const QRectF place(QPointF(number("xMin"), number("yMin")), QPointF(number("xMax"), number("yMax")));
            pages.last().Words.append({xml.readElementText(), place});
        }
    }
    return pages;
}

void ReadLines(const QString& pdf, QList<Page>& pages)
{
    const QStringList texts = QString::fromUtf8(OutputOf(u"pdftotext"_s, {u"-layout"_s, pdf, u"-"_s})).split(u'\f');
    for (qsizetype i = 0; i < pages.size(); ++i) {
        for (const QString& line : texts.value(i).split(u'\n')) {
            if (!line.trimmed().isEmpty())
                pages[i].Lines << line.simplified();
        }
    }
}

void ReadBold(const QString& pdf, QList<Page>& pages)
{
    QXmlStreamReader xml(OutputOf(u"pdftohtml"_s, {u"-xml"_s, u"-i"_s, u"-stdout"_s, pdf}));
    qsizetype page = -1;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == "page"_L1)
            ++page;
        else if (xml.name() == "b"_L1 && page >= 0 && page < pages.size())
            pages[page].Bold << xml.readElementText(QXmlStreamReader::IncludeChildElements).simplified();
    }
}

/// The children that a type has, in the order in which they must stand (those that the program writes).
const QHash<QString, QStringList>& ChildOrders()
{
    static const QHash<QString, QStringList> orders{
        {u"w:pPr"_s, {u"w:pStyle"_s, u"w:tabs"_s, u"w:spacing"_s, u"w:ind"_s, u"w:sectPr"_s}},
        {u"w:rPr"_s, {u"w:rFonts"_s, u"w:b"_s, u"w:sz"_s, u"w:szCs"_s, u"w:lang"_s}},
        {u"w:sectPr"_s,
         {u"w:headerReference"_s, u"w:footerReference"_s, u"w:type"_s, u"w:pgSz"_s, u"w:pgMar"_s, u"w:paperSrc"_s}},
        {u"w:tbl"_s, {u"w:tblPr"_s, u"w:tblGrid"_s, u"w:tr"_s}},
        {u"w:tblPr"_s, {u"w:tblW"_s, u"w:tblInd"_s, u"w:tblLayout"_s, u"w:tblCellMar"_s}},
        {u"w:tblCellMar"_s, {u"w:top"_s, u"w:left"_s, u"w:bottom"_s, u"w:right"_s}},
        {u"w:tblGrid"_s, {u"w:gridCol"_s}},
        {u"w:tr"_s, {u"w:trPr"_s, u"w:tc"_s}},
        {u"w:trPr"_s, {u"w:cantSplit"_s, u"w:trHeight"_s}},
        {u"w:tc"_s, {u"w:tcPr"_s, u"w:p"_s}},
        {u"w:tcPr"_s, {u"w:tcW"_s, u"w:vAlign"_s}},
        {u"w:document"_s, {u"w:body"_s}},
        {u"w:r"_s, {u"w:rPr"_s, u"*"_s}},
        {u"w:p"_s, {u"w:pPr"_s, u"w:r"_s}},
        {u"w:hdr"_s, {u"w:p"_s}},
        {u"w:ftr"_s, {u"w:p"_s}},
        {u"w:styles"_s, {u"w:docDefaults"_s, u"w:style"_s}},
        {u"w:docDefaults"_s, {u"w:rPrDefault"_s, u"w:pPrDefault"_s}},
        {u"w:style"_s,
         {u"w:name"_s, u"w:basedOn"_s, u"w:uiPriority"_s, u"w:semiHidden"_s, u"w:unhideWhenUsed"_s, u"w:qFormat"_s,
          u"w:pPr"_s, u"w:rPr"_s, u"w:tblPr"_s}},
        {u"w:settings"_s,
         {u"w:zoom"_s, u"w:defaultTabStop"_s, u"w:characterSpacingControl"_s, u"w:compat"_s, u"w:decimalSymbol"_s,
          u"w:listSeparator"_s}},
    };
    return orders;
}

/// Walks one part's elements, and says where the order or a run's content is not that of the type.
class PartWalk
{
public:
    explicit PartWalk(const QByteArray& bytes) : m_xml(bytes) {}

    QStringList Faults()
    {
        while (!m_xml.atEnd()) {
            switch (m_xml.readNext()) {
            case QXmlStreamReader::StartElement:
                Enter(m_xml.qualifiedName().toString());
                break;
            case QXmlStreamReader::EndElement:
                Leave();
                break;
            case QXmlStreamReader::Characters:
                if (!m_xml.isWhitespace() && !IsTextElement(m_open.last().Name))
                    m_faults << u"text in "_s + m_open.last().Name;
                break;
            default:
                break;
            }
        }
        if (m_xml.hasError())
            m_faults << u"not well-formed: "_s + m_xml.errorString();
        return m_faults;
    }

private:
    struct Open
    {
        QString Name;
        qsizetype Reached = 0;
        QString LastChild;
    };

    static bool IsTextElement(const QString& name) { return name == "w:t"_L1 || name == "w:instrText"_L1; }

    void Enter(const QString& name)
    {
        if (!m_open.isEmpty()) {
            Open& parent = m_open.last();
            const auto order = ChildOrders().constFind(parent.Name);
            if (order != ChildOrders().constEnd()) {
                qsizetype place = order->indexOf(name);
                if (place < 0)
                    place = order->indexOf(u"*"_s);
                if (place < parent.Reached)
                    m_faults << name + u" out of its order in "_s + parent.Name;
                parent.Reached = std::max(place, parent.Reached);
            }
            parent.LastChild = name;
        }
        m_open.append({name, 0, {}});
    }

    void Leave()
    {
        const Open closed = m_open.takeLast();
        if (closed.Name == "w:tc"_L1 && closed.LastChild != "w:p"_L1)
            m_faults << u"a cell that does not end in a paragraph"_s;
        if (closed.Name == "w:body"_L1 && closed.LastChild != "w:sectPr"_L1)
            m_faults << u"a body that does not end in its section"_s;
    }

    QXmlStreamReader m_xml;
    QList<Open> m_open;
    QStringList m_faults;
};

/// The values of an attribute of all elements of one name.
QStringList Attributes(const QByteArray& part, QLatin1StringView element, QLatin1StringView attribute)
{
    QStringList values;
    for (QXmlStreamReader xml(part); !xml.atEnd(); xml.readNext()) {
        if (xml.isStartElement() && xml.qualifiedName() == element)
            values << xml.attributes().value(attribute).toString();
    }
    return values;
}

} // namespace

QList<QList<Page>> RenderDocuments(const QStringList& documents)
{
    const QTemporaryDir folder;
    QList<QList<Page>> rendered;
    if (!MakePdfs(documents, folder.path()))
        return rendered;
    for (const QString& document : documents) {
        const QString pdf = folder.filePath(QFileInfo(document).completeBaseName() + u".pdf"_s);
        QList<Page> pages = ReadWords(pdf);
        ReadLines(pdf, pages);
        ReadBold(pdf, pages);
        rendered << pages;
    }
    return rendered;
}

QMap<QString, QByteArray> PackageParts(const QString& document)
{
    QMap<QString, QByteArray> parts;
    int error = 0;
    zip_t* archive = zip_open(QFile::encodeName(document).constData(), ZIP_RDONLY | ZIP_CHECKCONS, &error);
    if (archive == nullptr)
        return parts;
    for (zip_int64_t i = 0; i < zip_get_num_entries(archive, 0); ++i) {
        zip_stat_t about;
        zip_stat_index(archive, zip_uint64_t(i), 0, &about);
        QByteArray bytes(qsizetype(about.size), '\0');
        zip_file_t* file = zip_fopen_index(archive, zip_uint64_t(i), 0);
        zip_fread(file, bytes.data(), about.size);
        zip_fclose(file);
        parts.insert(QString::fromUtf8(about.name), bytes);
    }
    zip_discard(archive);
    return parts;
}

QStringList PackageFaults(const QString& document)
{
    const QMap<QString, QByteArray> parts = PackageParts(document);
    const QString types = u"[Content_Types].xml"_s;
    if (!parts.contains(types))
        return {u"no package"_s};
    QStringList faults;
    for (auto part = parts.cbegin(); part != parts.cend(); ++part) {
        for (const QString& fault : PartWalk(part.value()).Faults())
            faults << part.key() + u": "_s + fault;
    }

    const QStringList typed = Attributes(parts[types], "Override"_L1, "PartName"_L1);
    QStringList wanted;
    for (const QString& name : parts.keys()) {
        if (name != types && !name.endsWith(".rels"_L1))
            wanted << u'/' + name;
    }
    if (QStringList(typed).removeDuplicates() != 0 ||
        QSet(typed.begin(), typed.end()) != QSet(wanted.begin(), wanted.end()))
        faults << u"content types and parts differ"_s;

    const QByteArray relations = parts[u"word/_rels/document.xml.rels"_s];
    QStringList ids = Attributes(relations, "Relationship"_L1, "Id"_L1);
    QStringList targets = Attributes(relations, "Relationship"_L1, "Target"_L1);
    QSet<QString> related{u"/word/document.xml"_s};
    for (const QString& target : targets)
        related << u"/word/"_s + target;
    if (ids.removeDuplicates() != 0 || targets.removeDuplicates() != 0 || related != QSet(wanted.begin(), wanted.end()))
        faults << u"relations and parts differ"_s;
    const QByteArray body = parts[u"word/document.xml"_s];
    for (const QString& id :
         Attributes(body, "w:headerReference"_L1, "r:id"_L1) + Attributes(body, "w:footerReference"_L1, "r:id"_L1)) {
        if (!ids.contains(id))
            faults << u"no relation "_s + id;
    }

    QStringList styles = Attributes(parts[u"word/styles.xml"_s], "w:style"_L1, "w:styleId"_L1);
    if (styles.removeDuplicates() != 0)
        faults << u"a style twice"_s;
    for (const QString& name : parts.keys()) {
        for (const QString& style : Attributes(parts[name], "w:pStyle"_L1, "w:val"_L1)) {
            if (!styles.contains(style))
                faults << u"no style "_s + style;
        }
    }
    return faults;
}
