// Makes the table of label sheets from the word processor's own list of labels.
//
//   make_labels LABELS.XML OUTPUT.csv
//
// The list gives for each maker the names of its labels and a measure of each in 1/100 mm: kind (S for a single sheet,
// C for continuous paper), horizontal and vertical distance, width, height, left and upper margin, columns, rows, width
// and height of the page. Taken are labels for addresses and parcels on single upright sheets of US Letter or A4, whose
// rows and columns fit the page without lying upon each other. A label is known by its bare number, once for a maker.
//
// OUTPUT is the program's resource :/labels/geometry.csv, UTF-8, without quotes; the first line names the columns:
//
//   Product   the maker, LabelProducts.BrandName
//   Number    the label, LabelNumbers.LabelNumber
//   Across    labels beside each other
//   Down      labels below each other
//   Width     of one label; this and all that follow in 1/100 mm
//   Height    of one label
//   Left      from the page's left edge to the first label
//   Top       from the page's upper edge to the first label
//   PitchH    from the left edge of one label to that of the next
//   PitchV    from the upper edge of one label to that of the next
//   PageWidth, PageHeight
//
// The maker with the most US Letter sheets stands first, each maker's labels in the order of the list.

#include <QByteArray>
#include <QFile>
#include <QHash>
#include <QSet>
#include <QStringList>
#include <QXmlStreamReader>
#include <algorithm>
#include <array>
#include <cstdio>
#include <functional>
#include <stdexcept>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

struct Sheet
{
    QString product;
    QString number;
    int pitchH, pitchV, width, height, left, top, across, down, pageWidth, pageHeight;

    [[nodiscard]] bool IsLetter() const { return pageWidth == 21590 && pageHeight == 27940; }
    [[nodiscard]] bool IsA4() const { return pageWidth == 21000 && pageHeight == 29700; }

    /// Whether every label lies on the page and none upon another.
    [[nodiscard]] bool Fits() const
    {
        const bool apart = (across == 1 || pitchH >= width) && (down == 1 || pitchV >= height);
        return apart && across > 0 && down > 0 && width > 0 && height > 0 && left >= 0 && top >= 0 &&
               left + (across - 1) * pitchH + width <= pageWidth && top + (down - 1) * pitchV + height <= pageHeight;
    }
};

/// Whether a label's description tells that it goes on a letter or a parcel.
bool IsForMail(const QString& name)
{
    static constexpr std::array Words{"address"_L1, "adress"_L1, "mailing"_L1, "shipping"_L1, "parcel"_L1};
    return std::ranges::any_of(Words, [&](QLatin1StringView word) { return name.contains(word, Qt::CaseInsensitive); });
}

/// The sheet of one entry of the list; false when it is not a single sheet or not written as the list's head tells.
bool ReadMeasure(const QString& measure, Sheet& sheet)
{
    const QStringList parts = measure.split(u';');
    if (parts.size() != 11 || parts[0].trimmed() != "S"_L1)
        return false;
    const std::array<int*, 10> fields{&sheet.pitchH, &sheet.pitchV, &sheet.width, &sheet.height,    &sheet.left,
                                      &sheet.top,    &sheet.across, &sheet.down,  &sheet.pageWidth, &sheet.pageHeight};
    bool ok = true;
    for (std::size_t i = 0; i < fields.size() && ok; ++i)
        *fields[i] = parts[qsizetype(i) + 1].trimmed().toInt(&ok);
    return ok;
}

std::vector<Sheet> ReadSheets(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("cannot read " + path.toStdString());
    std::vector<Sheet> sheets;
    QSet<QString> taken;
    QString product;
    QString name;
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == "manufacturer"_L1) {
            product = xml.attributes().value("name"_L1).toString();
        } else if (xml.name() == "name"_L1) {
            name = xml.readElementText().simplified();
        } else if (xml.name() == "measure"_L1) {
            Sheet sheet{product, name.section(u' ', 0, 0), 0, 0, 0, 0, 0, 0, 0, 0, 0, 0};
            const bool read = ReadMeasure(xml.readElementText(), sheet);
            if (!read || !IsForMail(name) || !(sheet.IsLetter() || sheet.IsA4()) || !sheet.Fits())
                continue;
            const QString key = product + u'\n' + sheet.number;
            if (!taken.contains(key))
                sheets.push_back(sheet);
            taken.insert(key);
        }
    }
    if (xml.hasError() || sheets.empty())
        throw std::runtime_error("no list of labels: " + path.toStdString());
    QHash<QString, qsizetype> letters;
    for (const Sheet& sheet : sheets)
        letters[sheet.product] += sheet.IsLetter() ? 1 : 0;
    std::ranges::stable_sort(sheets, std::greater{}, [&](const Sheet& sheet) { return letters.value(sheet.product); });
    return sheets;
}

void WriteSheets(const std::vector<Sheet>& sheets, const QString& path)
{
    QByteArray text = "Product,Number,Across,Down,Width,Height,Left,Top,PitchH,PitchV,PageWidth,PageHeight\n";
    for (const Sheet& s : sheets) {
        text += s.product.toUtf8() + ',' + s.number.toUtf8();
        for (const int value :
             {s.across, s.down, s.width, s.height, s.left, s.top, s.pitchH, s.pitchV, s.pageWidth, s.pageHeight})
            text += ',' + QByteArray::number(value);
        text += '\n';
    }
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.flush())
        throw std::runtime_error("cannot write " + path.toStdString());
}

} // namespace

int main(int argc, char* argv[])
{
    if (argc != 3) {
        std::fputs("usage: make_labels LABELS.XML OUTPUT.csv\n", stderr);
        return 2;
    }
    try {
        WriteSheets(ReadSheets(QFile::decodeName(argv[1])), QFile::decodeName(argv[2]));
    } catch (const std::exception& error) {
        std::fprintf(stderr, "make_labels: %s\n", error.what());
        return 1;
    }
    return 0;
}
