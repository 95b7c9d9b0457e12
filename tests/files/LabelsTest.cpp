#include "Database.h"

#include <QFile>
#include <QHash>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <QtTest>
#include <QXmlStreamReader>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

/// One label sheet; lengths in 1/100 mm.
struct Sheet
{
    int across = 0, down = 0;
    double width = 0, height = 0, left = 0, top = 0, pitchH = 0, pitchV = 0;
};

using Sheets = QHash<QString, Sheet>;

constexpr double Inch = 2540;
constexpr double Close = 15; ///< How far two sources may be apart for the same sheet: 0.15 mm.

QList<QStringList> GeometryRows()
{
    QFile file(QStringLiteral(GEOMETRY));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("no geometry");
    QList<QStringList> rows;
    for (const QString& line : QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts).sliced(1))
        rows += line.split(u',');
    return rows;
}

Sheets LetterSheets()
{
    Sheets sheets;
    for (const QStringList& f : GeometryRows()) {
        if (f[0] == "Avery Letter Size"_L1)
            sheets.insert(f[1], {f[2].toInt(), f[3].toInt(), f[4].toDouble(), f[5].toDouble(), f[6].toDouble(),
                                 f[7].toDouble(), f[8].toDouble(), f[9].toDouble()});
    }
    return sheets;
}

double Length(const QString& text)
{
    static const QRegularExpression form(u"^([0-9.]+)(in|mm|pt)?$"_s);
    const QRegularExpressionMatch match = form.match(text);
    const QString unit = match.captured(2);
    return match.captured(1).toDouble() * (unit == "in"_L1 ? Inch : unit == "mm"_L1 ? 100 : Inch / 72);
}

/// The rectangular US Letter sheets of the other source, each under its own number and those that equal it.
Sheets Templates()
{
    QFile file(u"/usr/share/libglabels-3.0/templates/avery-us-templates.xml"_s);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("glabels-data is not installed");
    Sheets sheets;
    QString part;
    bool letter = false;
    Sheet sheet;
    for (QXmlStreamReader xml(&file); !xml.atEnd(); xml.readNext()) {
        if (!xml.isStartElement())
            continue;
        const auto value = [attributes = xml.attributes()](const char* name) {
            return attributes.value(QLatin1StringView(name)).toString();
        };
        if (xml.name() == "Template"_L1) {
            part = value("part");
            letter = value("size") == "US-Letter"_L1;
            if (const auto same = sheets.constFind(value("equiv")); same != sheets.constEnd())
                sheets.insert(part, Sheet(*same));
        } else if (xml.name() == "Label-rectangle"_L1) {
            sheet.width = Length(value("width"));
            sheet.height = Length(value("height"));
        } else if (xml.name() == "Layout"_L1 && letter && !sheets.contains(part)) {
            sheets.insert(part, {value("nx").toInt(), value("ny").toInt(), sheet.width, sheet.height,
                                 Length(value("x0")), Length(value("y0")), Length(value("dx")), Length(value("dy"))});
        }
    }
    return sheets;
}

/// What differs by more than a hair, as "field list/template".
QString Differences(const Sheet& list, const Sheet& other)
{
    QStringList found;
    const auto compare = [&found](const char* name, double one, double two, double allowed) {
        if (std::abs(one - two) > allowed)
            found += u"%1 %2/%3"_s.arg(QLatin1StringView(name)).arg(std::round(one)).arg(std::round(two));
    };
    compare("across", list.across, other.across, 0);
    compare("down", list.down, other.down, 0);
    compare("width", list.width, other.width, Close);
    compare("height", list.height, other.height, Close);
    compare("left", list.left, other.left, Close);
    compare("top", list.top, other.top, Close);
    if (list.across > 1)
        compare("pitchH", list.pitchH, other.pitchH, Close);
    if (list.down > 1)
        compare("pitchV", list.pitchV, other.pitchV, Close);
    return found.join(u", "_s);
}

} // namespace

/// The label sheets that the program prints on.
class LabelsTest : public QObject
{
    Q_OBJECT

private slots:
    void TheCommonSheetsHaveTheirPublishedSizes_data();
    void TheCommonSheetsHaveTheirPublishedSizes();
    void EverySheetFitsItsPage();
    void TheTablesServeTheSameSheets();
    void TheSourcesAgreeButForKnownDifferences();
};

void LabelsTest::TheCommonSheetsHaveTheirPublishedSizes_data()
{
    QTest::addColumn<QList<double>>("inches"); // across, down, width, height, left, top, pitch h, pitch v
    for (const char* number : {"5160", "5260", "8160"})
        QTest::newRow(number) << QList<double>{3, 10, 2.625, 1, 0.1875, 0.5, 2.75, 1};
    QTest::newRow("5161") << QList<double>{2, 10, 4, 1, 0.15625, 0.5, 4.1875, 1};
    QTest::newRow("5162") << QList<double>{2, 7, 4, 1.3333, 0.15625, 0.8333, 4.1875, 1.3333};
    QTest::newRow("5163") << QList<double>{2, 5, 4, 2, 0.15625, 0.5, 4.1875, 2};
    QTest::newRow("5164") << QList<double>{2, 3, 4, 3.3333, 0.15625, 0.5, 4.1875, 3.3333};
    QTest::newRow("5167") << QList<double>{4, 20, 1.75, 0.5, 0.28125, 0.5, 2.0625, 0.5};
    QTest::newRow("5159") << QList<double>{2, 7, 4, 1.5, 0.15625, 0.25, 4.1875, 1.5};
}

void LabelsTest::TheCommonSheetsHaveTheirPublishedSizes()
{
    QFETCH(QList<double>, inches);
    const Sheet published{int(inches[0]),   int(inches[1]),   inches[2] * Inch, inches[3] * Inch,
                          inches[4] * Inch, inches[5] * Inch, inches[6] * Inch, inches[7] * Inch};
    const Sheets sheets = LetterSheets();
    const QString number = QString::fromLatin1(QTest::currentDataTag());
    QVERIFY(sheets.contains(number));
    QCOMPARE(Differences(sheets.value(number), published), QString());
}

void LabelsTest::EverySheetFitsItsPage()
{
    QSet<QString> seen;
    for (const QStringList& f : GeometryRows()) {
        QCOMPARE(f.size(), 12);
        const QByteArray name = (f[0] + u' ' + f[1]).toUtf8();
        const auto n = [&f](int field) { return f[field].toInt(); };
        const int across = n(2), down = n(3), width = n(4), height = n(5), left = n(6), top = n(7), pitchH = n(8),
                  pitchV = n(9);
        QVERIFY2(across > 0 && down > 0 && width >= 1000 && height >= 1000 && left >= 0 && top >= 0, name);
        QVERIFY2(across == 1 || pitchH >= width, name);
        QVERIFY2(down == 1 || pitchV >= height, name);
        QVERIFY2(left + (across - 1) * pitchH + width <= n(10), name);
        QVERIFY2(top + (down - 1) * pitchV + height <= n(11), name);
        QVERIFY2((n(10) == 21590 && n(11) == 27940) || (n(10) == 21000 && n(11) == 29700), name);
        QVERIFY2(!seen.contains(QString::fromUtf8(name)), name);
        seen.insert(QString::fromUtf8(name));
    }
}

void LabelsTest::TheTablesServeTheSameSheets()
{
    QTemporaryDir folder;
    QVERIFY(Database::Make(folder.filePath(u"Contacts.mdb"_s)));
    Database database(folder.filePath(u"Contacts.mdb"_s));
    QList<QStringList> served;
    for (const QStringList& product : database.Rows("Select * from LabelProducts")) {
        for (const QStringList& row :
             database.Rows("Select * from LabelNumbers Where LabelProductID=" + product[0].toLatin1()))
            served += {product[1], row[1]};
    }
    QList<QStringList> expected;
    for (const QStringList& fields : GeometryRows())
        expected += fields.first(2);
    QCOMPARE(served, expected);
    QCOMPARE(served.first(), (QStringList{u"Avery Letter Size"_s, u"5167"_s}));
}

void LabelsTest::TheSourcesAgreeButForKnownDifferences()
{
    const Sheets list = LetterSheets();
    const Sheets templates = Templates();
    int agreeing = 0;
    QMap<QString, int> differences;
    for (auto sheet = list.constBegin(); sheet != list.constEnd(); ++sheet) {
        if (!templates.contains(sheet.key()))
            continue;
        const QString difference = Differences(*sheet, templates.value(sheet.key()));
        ++(difference.isEmpty() ? agreeing : differences[difference]);
    }
    // The list is right: its columns of 5160 lie as the maker publishes them and leave equal margins left and right.
    QCOMPARE(differences, (QMap<QString, int>{{u"left 478/397, pitchH 6985/7064"_s, 7},
                                              {u"left 396/413"_s, 7},
                                              {u"left 762/714, pitchH 5207/5239"_s, 1}}));
    QVERIFY(agreeing >= 26);
}

QTEST_GUILESS_MAIN(LabelsTest)
#include "LabelsTest.moc"
