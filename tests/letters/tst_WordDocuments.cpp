#include "letters/WordProcessor.h"
#include "support/ScriptedUser.h"
#include "support/WordReader.h"

#include "core/Clock.h"
#include "core/RunTimeError.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <cmath>

using namespace Qt::StringLiterals;

/// The documents of the word processor's objects, each as LibreOffice renders it.
class tst_WordDocuments : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void EveryPackageIsWhole();
    void ALetterForEachRecordOnItsOwnPage();
    void LinesOfEmptyFieldsGo();
    void BoldStandsWhereItWasSet();
    void ATextOfAnyKindArrives();
    void HeaderAndFooterAreOnEveryPage();
    void MergeFieldsShowTheirNames();
    void LabelsLieWhereTheirSheetHasThem_data();
    void LabelsLieWhereTheirSheetHasThem();
    void AnyLabelFitsItsPage();

private:
    void Save(Word::Document& document, const QString& name);
    void MakeLetters();
    void MakeTexts();
    void MakeReport();
    void MakeLabels();
    [[nodiscard]] const QList<Page>& Pages(const QString& name) const { return *m_pages.constFind(name); }

    QTemporaryDir m_folder;
    QStringList m_documents;
    QHash<QString, QList<Page>> m_pages;
};

namespace {

struct Product
{
    const char* Name;
    const char* Brand;
    const char* Number;
    double Left, Top, Width, Height, PitchH, PitchV; ///< millimeters
    int Across, Down;
};

constexpr Product products[] = {
    {"30 a sheet", "Avery Letter Size", "5160", 4.78, 12.7, 66.68, 25.4, 69.85, 25.4, 3, 10},
    {"14 a sheet", "Avery Letter Size", "5162", 3.96, 21.17, 101.6, 33.87, 106.36, 33.87, 2, 7},
    {"A4", "Avery A4", "L7160", 7.2, 15.15, 63.5, 38.1, 66.04, 38.1, 3, 7},
};

QString WriteSource(const QTemporaryDir& folder, const QByteArray& text)
{
    const QString path = folder.filePath(u"source.txt"_s);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
        qFatal("no source");
    return path;
}

/// A layout as callers build it for labels.
void BuildLayout(Word::Application& word)
{
    Word::Document& document = word.Documents().Add();
    Word::Selection& selection = word.Selection();
    const auto addField = [&](const QString& name) { document.MailMerge().Fields().Add(selection.Range(), name); };
    addField(u"Name"_s);
    selection.TypeParagraph();
    addField(u"Address1"_s);
    selection.TypeParagraph();
    addField(u"Address2"_s);
    selection.TypeParagraph();
    addField(u"City"_s);
    selection.TypeText(u"  "_s);
    addField(u"Zip"_s);
}

} // namespace

void tst_WordDocuments::Save(Word::Document& document, const QString& name)
{
    const QString path = m_folder.filePath(name + u".docx"_s);
    document.SaveAs(path);
    m_documents << path;
}

void tst_WordDocuments::initTestCase()
{
    MakeLetters();
    MakeTexts();
    MakeReport();
    MakeLabels();
    const QList<QList<Page>> rendered = RenderDocuments(m_documents);
    QCOMPARE(rendered.size(), m_documents.size());
    for (qsizetype i = 0; i < rendered.size(); ++i)
        m_pages.insert(QFileInfo(m_documents[i]).completeBaseName(), rendered[i]);
}

void tst_WordDocuments::MakeLetters()
{
    Word::Application word;
    Word::Document& document = word.Documents().Add();
    Word::Selection& selection = word.Selection();
    const auto addField = [&](const QString& name) { document.MailMerge().Fields().Add(selection.Range(), name); };
    selection.TypeText(u"Dear "_s);
    addField(u"FirstName"_s);
    selection.TypeText(u",\r\n"_s);
    addField(u"Company"_s);
    addField(u"Title"_s);
    selection.TypeText(u"\r\nOf "_s);
    addField(u"Company"_s);
    selection.TypeText(u"\r\nBehind the <b>loud "_s);
    addField(u"FirstName"_s);
    selection.TypeText(u"</b> end."_s);
    const QString text = document.Content().Text();
    document.Range(text.indexOf(u"loud"_s), text.indexOf(u"</b>"_s)).SetBold(true);
    Save(document, u"fields"_s);
    document.MailMerge().OpenDataSource(WriteSource(m_folder, "FirstName\tCompany\tTitle\t\r\n"
                                                              "Zo\xEB\tSmith & <Sons>\tDr.\t\r\n"
                                                              "Bob\t\t\t\r\n"
                                                              "\"Al\"\t\r\n"));
    document.MailMerge().Execute(true);
    document.Close(false);
    Save(word.Documents().Active(), u"letters"_s);
}

void tst_WordDocuments::MakeTexts()
{
    Word::Application word;
    word.WordBasic().FileNewDefault();
    word.WordBasic().Insert(u"first\r\nsecond\rthird\nfour\tth\vbroken\ffifth\x01\x1F & <six> \"7\" 'é' 😀 "_s +
                            QChar(0xD800) + u"end  \r\n"_s);
    Save(word.Documents().Active(), u"texts"_s);
}

void tst_WordDocuments::MakeReport()
{
    Word::Application word;
    Word::Document& document = word.Documents().Add();
    Word::Section& section = document.Sections(1);
    section.Headers(1).Range().SetText(u"Above all"_s);
    section.Footers(1).Range().SetText(u"Below all"_s);
    for (int i = 1; i <= 60; ++i) {
        word.Selection().Font.Bold = true;
        word.Selection().TypeText(u"Name: "_s);
        word.Selection().Font.Bold = false;
        word.Selection().TypeText(u"Number %1"_s.arg(i));
        word.Selection().TypeParagraph();
    }
    Save(document, u"report"_s);
}

void tst_WordDocuments::MakeLabels()
{
    for (const Product& product : products) {
        Word::Application word;
        BuildLayout(word);
        Word::Document& document = word.Documents().Active();
        Word::AutoTextEntry& entry = word.NormalTemplate().AutoTextEntries().Add(u"MyLayout"_s, document.Content());
        document.Content().Delete();
        document.MailMerge().MainDocumentType = Word::wdMailingLabels;
        QByteArray source = "Name\tAddress1\tAddress2\tCity\tZip\r\n";
        // One sheet and one label more.
        for (int i = 0; i <= product.Across * product.Down; ++i)
            source += "Name" + QByteArray::number(i) + "\tStreet\t\tTown\t1\r\n";
        document.MailMerge().OpenDataSource(WriteSource(m_folder, source));
        word.MailingLabel().CreateNewDocument({.Brand = QString::fromLatin1(product.Brand),
                                               .Name = QString::fromLatin1(product.Number),
                                               .Address = {},
                                               .AutoText = u"MYLAYOUT"_s,
                                               .LaserTray = 4});
        document.MailMerge().Execute();
        entry.Delete();
        QCOMPARE(word.NormalTemplate().AutoTextEntries().Count(), 0);
        Save(word.Documents().Active(), QString::fromLatin1(product.Name));
    }
}

void tst_WordDocuments::EveryPackageIsWhole()
{
    for (const QString& document : std::as_const(m_documents))
        QCOMPARE(PackageFaults(document).join(u'\n'), QString());
}

void tst_WordDocuments::ALetterForEachRecordOnItsOwnPage()
{
    const QList<Page>& pages = Pages(u"letters"_s);
    QCOMPARE(pages.size(), 3);
    QCOMPARE(pages[0].Lines, (QStringList{u"Dear Zoë,"_s, u"Smith & <Sons>Dr."_s, u"Of Smith & <Sons>"_s,
                                          u"Behind the <b>loud Zoë</b> end."_s}));
    QCOMPARE(pages[2].Lines.value(0), u"Dear \"Al\","_s);
}

void tst_WordDocuments::LinesOfEmptyFieldsGo()
{
    const QList<Page>& pages = Pages(u"letters"_s);
    QCOMPARE(pages[1].Lines, (QStringList{u"Dear Bob,"_s, u"Of"_s, u"Behind the <b>loud Bob</b> end."_s}));
    // The line is not just empty: the next one takes its place.
    const auto top = [](const Page& page, const QString& word) {
        for (const PageWord& one : page.Words) {
            if (one.Text == word)
                return one.Place.top();
        }
        return std::nan("");
    };
    QVERIFY(top(pages[1], u"Of"_s) < top(pages[0], u"Of"_s) - 3);
}

void tst_WordDocuments::BoldStandsWhereItWasSet()
{
    QCOMPARE(Pages(u"letters"_s)[0].Bold.join(u' '), u"loud Zoë"_s);
    QCOMPARE(Pages(u"texts"_s)[0].Bold, QStringList());
    const QStringList captions = Pages(u"report"_s)[0].Bold;
    QVERIFY(captions.size() > 30);
    QCOMPARE(QSet(captions.begin(), captions.end()), QSet{u"Name:"_s});
}

void tst_WordDocuments::ATextOfAnyKindArrives()
{
    const QList<Page>& pages = Pages(u"texts"_s);
    QCOMPARE(pages.size(), 2);
    QCOMPARE(pages[0].Lines, (QStringList{u"first"_s, u"second"_s, u"third"_s, u"four th"_s, u"broken"_s}));
    const QString second = pages[1].Lines.join(u'\n');
    QVERIFY2(second.startsWith(u"fifth & <six> \"7\" 'é' "_s) && second.endsWith(u"end"_s), qPrintable(second));
    const QMap<QString, QByteArray> parts = PackageParts(m_folder.filePath(u"texts.docx"_s));
    QVERIFY(parts[u"word/document.xml"_s].contains(u"😀 \uFFFDend  </w:t>"_s.toUtf8()));
}

void tst_WordDocuments::HeaderAndFooterAreOnEveryPage()
{
    const QList<Page>& pages = Pages(u"report"_s);
    QCOMPARE(pages.size(), 2);
    for (const Page& page : pages) {
        QCOMPARE(page.Lines.first(), u"Above all"_s);
        QCOMPARE(page.Lines.last(), u"Below all"_s);
    }
    QCOMPARE(pages[0].Lines.value(1), u"Name: Number 1"_s);
    QCOMPARE(pages[1].Lines.value(pages[1].Lines.size() - 2), u"Name: Number 60"_s);
}

void tst_WordDocuments::MergeFieldsShowTheirNames()
{
    QCOMPARE(Pages(u"fields"_s)[0].Lines, (QStringList{u"Dear «FirstName»,"_s, u"«Company»«Title»"_s, u"Of «Company»"_s,
                                                       u"Behind the <b>loud «FirstName»</b> end."_s}));
}

void tst_WordDocuments::LabelsLieWhereTheirSheetHasThem_data()
{
    QTest::addColumn<int>("product");
    for (int i = 0; i < int(std::size(products)); ++i)
        QTest::newRow(products[i].Name) << i;
}

void tst_WordDocuments::LabelsLieWhereTheirSheetHasThem()
{
    QFETCH(int, product);
    const Product& sheet = products[product];
    const QList<Page>& pages = Pages(QString::fromLatin1(sheet.Name));
    QCOMPARE(pages.size(), 2);
    constexpr double close = 0.5;
    const int perSheet = sheet.Across * sheet.Down;
    QList<PageWord> names;
    for (const Page& page : pages) {
        for (const PageWord& word : page.Words) {
            if (word.Text.startsWith("Name"_L1))
                names << word;
        }
    }
    QCOMPARE(names.size(), perSheet + 1);
    const QRectF first = names.first().Place;
    // The text of the first label lies in it, where it belongs; each other one by whole pitches from there.
    QVERIFY(first.left() > sheet.Left && first.left() < sheet.Left + 4);
    const auto last = std::find_if(pages[0].Words.begin(), pages[0].Words.end(),
                                   [](const PageWord& word) { return word.Text == "Town"_L1; });
    const double middle = (first.top() + last->Place.bottom()) / 2;
    QVERIFY2(std::abs(middle - (sheet.Top + sheet.Height / 2)) < close, qPrintable(QString::number(middle)));
    for (int i = 0; i <= perSheet; ++i) {
        const int place = i % perSheet;
        const QString number = u"Name"_s + QString::number(i);
        const auto found =
            std::find_if(names.begin(), names.end(), [&](const auto& word) { return word.Text == number; });
        QVERIFY2(found != names.end(), qPrintable(number));
        const double right = found->Place.left() - first.left() - (place % sheet.Across) * sheet.PitchH;
        const double down = found->Place.top() - first.top() - (place / sheet.Across) * sheet.PitchV;
        QVERIFY2(std::abs(right) < close && std::abs(down) < close,
                 qPrintable(u"%1: %2, %3"_s.arg(number).arg(right).arg(down)));
    }
}

void tst_WordDocuments::AnyLabelFitsItsPage()
{
    QFile table(u":/labels/geometry.csv"_s);
    QVERIFY(table.open(QIODevice::ReadOnly));
    const QStringList rows = QString::fromUtf8(table.readAll()).split(u'\n', Qt::SkipEmptyParts).sliced(1);
    for (const QString& row : rows) {
        const Word::LabelSheet sheet = Word::FindLabelSheet(row.section(u',', 0, 0), row.section(u',', 1, 1));
        QVERIFY2(sheet.Width > 0 && sheet.PageHeight > 0, qPrintable(row));
    }
    QVERIFY(rows.size() > 100);
}

QTEST_MAIN(tst_WordDocuments)
#include "tst_WordDocuments.moc"
