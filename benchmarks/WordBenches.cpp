#include "Benches.h"
#include "Figures.h"
#include "letters/word/Application.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;

namespace {

void Write(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qUtf8Printable(path));
}

/// A source of so many records.
QString WriteSource(const QTemporaryDir& folder, int records)
{
    QByteArray text = "Name\tAddress1\tCity\tZip\r\n";
    for (int i = 0; i < records; ++i) {
        const QByteArray number = QByteArray::number(i);
        text += "Pat Lee " + number + '\t' + number + " Elm Street\tTroy, NY\t12180\r\n";
    }
    const QString path = folder.filePath(u"source.txt"_s);
    Write(path, text);
    return path;
}

/// The labels of all records as a document in the folder.
void MakeLabels(const QTemporaryDir& folder, const QString& source)
{
    Word::Application word;
    Word::Document& document = word.Documents().Add();
    Word::Selection& selection = word.Selection();
    for (const auto field : {"Name"_L1, "Address1"_L1, "City"_L1, "Zip"_L1}) {
        document.MailMerge().Fields().Add(selection.Range(), QString(field));
        selection.TypeText(field == "City"_L1 ? u"  "_s : u"\r"_s);
    }
    word.NormalTemplate().AutoTextEntries().Add(u"Layout"_s, document.Content());
    document.MailMerge().MainDocumentType = Word::wdMailingLabels;
    document.MailMerge().OpenDataSource(source);
    word.MailingLabel().CreateNewDocument({u"Avery Letter Size"_s, u"5160"_s, {}, u"Layout"_s, 4});
    document.MailMerge().Execute();
    const QString path = folder.filePath(u"labels.docx"_s);
    QFile::remove(path);
    word.Documents().Active().SaveAs(path);
}

void Labels(benchmark::State& state)
{
    const QTemporaryDir folder;
    const QString source = WriteSource(folder, static_cast<int>(state.range()));
    for ([[maybe_unused]] auto _ : state)
        MakeLabels(folder, source);
}

/// The same sheet in the form of the label printer that stands beside the program.
constexpr auto labelSheet = R"(<?xml version="1.0"?>
<Glabels-document xmlns="http://glabels.org/xmlns/3.0/">
<Template brand="Avery" part="5160" size="US-Letter" description="Address">
<Label-rectangle id="0" width="189pt" height="72pt" round="4.5pt">
<Layout nx="3" ny="10" x0="13.5pt" y0="36pt" dx="198pt" dy="72pt"/></Label-rectangle></Template>
<Objects id="0" rotate="False"><Object-text x="9pt" y="6pt" w="170pt" h="60pt" justify="Left" valign="Top">
<Span font_family="Sans" font_size="9" font_weight="Regular" color="0x000000ff"><Field name="Name"/><NL/><Field name="Address1"/><NL/><Field name="City"/>  <Field name="Zip"/></Span>
</Object-text></Objects>
<Merge type="Text/Tab/Line1Keys" src="%1"/><Data></Data></Glabels-document>
)"_L1;

void LabelPrinter(benchmark::State& state)
{
    const QTemporaryDir folder;
    const QString source = WriteSource(folder, static_cast<int>(state.range()));
    const QString sheet = folder.filePath(u"sheet.glabels"_s);
    Write(sheet, QString(labelSheet).arg(source).toUtf8());
    const QString pages = folder.filePath(u"labels.pdf"_s);
    for ([[maybe_unused]] auto _ : state) {
        if (QProcess::execute(u"sh"_s, {u"-c"_s, u"exec glabels-3-batch -o \"$1\" \"$2\" > /dev/null 2>&1"_s, u"sh"_s,
                                        pages, sheet}) != 0)
            qFatal("glabels-3-batch failed");
    }
}

} // namespace

void RegisterLabels(int records)
{
    constexpr int most = 1'000; // beyond that the label printer takes minutes
    if (records > most)
        return;
    AddFigure({"Labels", "Labels", 0.25, 0});
    benchmark::RegisterBenchmark("Labels/program", Labels)->Arg(records)->Iterations(3)->UseRealTime();
    benchmark::RegisterBenchmark("Labels/yardstick", LabelPrinter)->Arg(records)->Iterations(1)->UseRealTime();
}
