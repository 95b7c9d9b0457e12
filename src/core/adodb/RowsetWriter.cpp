#include "core/adodb/RowsetWriter.h"

#include "core/adodb/RowPack.h"
#include "core/adodb/RowsetForm.h"
#include "core/adodb/StoredText.h"
#include "core/Files.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace {

constexpr qsizetype blockSize = 1 << 18;
/// The width of a text column, which has none here, is that of its longest text but never below this.
constexpr qsizetype leastTextWidth = 255;

struct DataType
{
    const char* Declared;
    const char* Xml;
};

/// What the schema says of each declared type; a text's width comes behind.
constexpr std::array dataTypes{
    DataType{"INTEGER16", "dt:type='i2' dt:maxLength='2' rs:precision='5' rs:fixedlength='true'"},
    DataType{"INTEGER", "dt:type='int' dt:maxLength='4' rs:precision='10' rs:fixedlength='true'"},
    DataType{"LONG", "dt:type='int' dt:maxLength='4' rs:precision='10' rs:fixedlength='true'"},
    DataType{"REAL4", "dt:type='r4' dt:maxLength='4' rs:precision='7' rs:fixedlength='true'"},
    DataType{"CURRENCY", "dt:type='number' rs:dbtype='numeric' dt:maxLength='19' rs:scale='4' rs:precision='19' "
                         "rs:fixedlength='true'"},
    DataType{"MEMOTEXT", "dt:type='string' dt:maxLength='1073741823' rs:long='true'"},
};

/// How the signs below 0x80 are written: as they are (empty), or in another form.
struct Escapes
{
    std::array<QByteArrayView, 128> Of{};

    constexpr Escapes()
    {
        for (size_t sign = 0; sign < 0x20; ++sign)
            Of[sign] = "\xEF\xBF\xBD";
        Of['\t'] = "&#x9;";
        Of['\n'] = "&#xa;";
        Of['\r'] = "&#xd;";
        Of['&'] = "&#x26;";
        Of['<'] = "&#x3c;";
        Of['>'] = "&#x3e;";
        Of['\''] = "&#x27;";
        Of['"'] = "&#x22;";
    }
};
constexpr Escapes escapes;

/// The length of the character of two or more bytes at `text`; 0 where the bytes are none that XML can carry.
qsizetype LengthOfCharacter(const char* text, qsizetype left)
{
    const auto byte = [text](qsizetype i) { return static_cast<unsigned char>(text[i]); };
    const unsigned char first = byte(0);
    const qsizetype length = first >= 0xC2 && first < 0xE0   ? 2
                             : (first & 0xF0) == 0xE0        ? 3
                             : first >= 0xF0 && first < 0xF5 ? 4
                                                             : 0;
    if (length == 0 || left < length)
        return 0;
    for (qsizetype i = 1; i < length; ++i) {
        if ((byte(i) & 0xC0) != 0x80)
            return 0;
    }
    const bool tooLong = (first == 0xE0 && byte(1) < 0xA0) || (first == 0xF0 && byte(1) < 0x90);
    const bool tooLarge = first == 0xF4 && byte(1) > 0x8F;
    const bool surrogate = first == 0xED && byte(1) >= 0xA0;
    const bool noCharacter = first == 0xEF && byte(1) == 0xBF && byte(2) >= 0xBE;
    return tooLong || tooLarge || surrogate || noCharacter ? 0 : length;
}

/// How many bytes of an impossible character go with its first one.
qsizetype LengthOfRefused(const char* text, qsizetype left)
{
    qsizetype length = 1;
    while (length < left && length < 3 && (static_cast<unsigned char>(text[length]) & 0xC0) == 0x80)
        ++length;
    return length;
}

/// How many UTF-16 units a stored text has.
qsizetype SignsIn(QByteArrayView text)
{
    qsizetype signs = 0;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        signs += (byte & 0xC0) == 0x80 ? 0 : byte >= 0xF0 ? 2 : 1;
    }
    return signs;
}

template <typename Number>
void AppendNumber(QByteArray& xml, Number number)
{
    std::array<char, 32> text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), number).ptr;
    xml.append(text.data(), end - text.data());
}

void AppendReal(QByteArray& xml, Single number)
{
    // The shortest text of the greatest number is one that reads as more than it; so it gets one of its own.
    if (std::abs(number) >= std::numeric_limits<Single>::max()) {
        xml += number < 0 ? "-3.4028234E+38" : "3.4028234E+38";
        return;
    }
    const qsizetype start = xml.size();
    AppendNumber(xml, number == 0 ? 0 : number); // never "-0"
    const qsizetype exponent = xml.indexOf('e', start);
    if (exponent > 0)
        xml[exponent] = 'E';
}

void AppendCurrency(QByteArray& xml, Currency amount)
{
    const qint64 scaled = amount.Scaled();
    const auto magnitude = scaled < 0 ? 0 - static_cast<quint64>(scaled) : static_cast<quint64>(scaled);
    if (scaled < 0)
        xml += '-';
    AppendNumber(xml, magnitude / Currency::Scale);
    quint64 decimals = magnitude % Currency::Scale;
    if (decimals == 0)
        return;
    xml += '.';
    for (quint64 place = Currency::Scale / 10; decimals != 0; place /= 10) {
        xml += static_cast<char>('0' + decimals / place);
        decimals %= place;
    }
}

void AppendCell(QByteArray& xml, const RowPack::Cell& cell, ColumnKind kind)
{
    if (cell.Type == RowPack::CellType::Text) {
        AppendEscaped(xml, cell.Text, cell.Length);
        return;
    }
    const double number = cell.Type == RowPack::CellType::Whole ? static_cast<double>(cell.Whole) : cell.Real;
    if (kind == ColumnKind::Real)
        AppendReal(xml, static_cast<Single>(number));
    else if (kind == ColumnKind::Currency)
        AppendCurrency(xml, RoundedCurrency(number));
    else if (cell.Type == RowPack::CellType::Whole)
        AppendNumber(xml, cell.Whole);
    else
        AppendNumber(xml, number);
}

QByteArray TypeOf(const RowsetColumn& column, qsizetype width)
{
    for (const DataType& type : dataTypes) {
        if (column.DeclaredType == type.Declared)
            return type.Xml;
    }
    return "dt:type='string' dt:maxLength='" + QByteArray::number(width) + '\'';
}

class Writer
{
public:
    Writer(QIODevice& device, const std::vector<RowsetColumn>& columns, const RowPack& rows)
        : m_device(device), m_columns(columns), m_rows(rows)
    {
        m_xml.reserve(blockSize + blockSize / 8);
        for (const RowsetColumn& column : columns)
            m_heads.push_back(' ' + column.Name.toUtf8() + "='");
    }

    void Write(const QByteArray& table)
    {
        AppendSchema(table);
        m_xml += "<rs:data>\r\n";
        for (qsizetype row = 0; row < m_rows.Rows(); ++row) {
            if (!m_rows.IsDeleted(row))
                AppendRow(row);
        }
        m_xml += "</rs:data>\r\n</xml>";
        WriteBytes(m_device, m_xml);
    }

private:
    void AppendSchema(const QByteArray& table)
    {
        const auto space = [this](const char* head, QByteArrayView name) {
            m_xml += head;
            m_xml += name.toByteArray();
        };
        space("<xml xmlns:s='", RowsetForm::SchemaSpace);
        space("'\r\n\txmlns:dt='", RowsetForm::TypeSpace);
        space("'\r\n\txmlns:rs='", RowsetForm::RowsetSpace);
        space("'\r\n\txmlns:z='", RowsetForm::RowSpace);
        m_xml += "'>\r\n<s:Schema id='RowsetSchema'>\r\n\t<s:ElementType name='row' content='eltOnly' "
                 "rs:updatable='true'>\r\n";
        const std::vector<qsizetype> widths = TextWidths();
        for (size_t i = 0; i < m_columns.size(); ++i) {
            const RowsetColumn& column = m_columns[i];
            const QByteArray name = column.Name.toUtf8();
            m_xml += "\t\t<s:AttributeType name='" + name + "' rs:number='" + QByteArray::number(i + 1) + '\'';
            if (column.Nullable)
                m_xml += " rs:nullable='true'";
            m_xml += " rs:writeunknown='true' rs:basetable='" + table + "' rs:basecolumn='" + name + '\'';
            if (column.AutoNumbered)
                m_xml += " rs:keycolumn='true' rs:autoincrement='true'";
            m_xml += ">\r\n\t\t\t<s:datatype " + TypeOf(column, widths[i]);
            if (!column.Nullable)
                m_xml += " rs:maybenull='false'";
            m_xml += "/>\r\n\t\t</s:AttributeType>\r\n";
        }
        m_xml += "\t\t<s:extends type='rs:rowbase'/>\r\n\t</s:ElementType>\r\n</s:Schema>\r\n";
    }

    [[nodiscard]] std::vector<qsizetype> TextWidths() const
    {
        std::vector<qsizetype> widths(m_columns.size(), leastTextWidth);
        for (qsizetype row = 0; row < m_rows.Rows(); ++row) {
            for (size_t i = 0; i < m_columns.size(); ++i) {
                // A text has never more signs than bytes.
                const RowPack::Cell cell = m_rows.CellAt(row, static_cast<int>(i));
                if (cell.Length > widths[i])
                    widths[i] = std::max(widths[i], SignsIn({cell.Text, cell.Length}));
            }
        }
        return widths;
    }

    void AppendRow(qsizetype row)
    {
        m_xml += "\t<z:row";
        for (size_t i = 0; i < m_columns.size(); ++i) {
            const auto column = static_cast<int>(i);
            const RowPack::Cell cell = m_rows.CellAt(row, column);
            if (cell.Type == RowPack::CellType::Null)
                continue;
            m_xml += m_heads[i];
            AppendCell(m_xml, cell, m_rows.Columns().Kind(column));
            m_xml += '\'';
        }
        m_xml += "/>\r\n";
        if (m_xml.size() < blockSize)
            return;
        WriteBytes(m_device, m_xml);
        m_xml.resize(0);
    }

    QIODevice& m_device;
    const std::vector<RowsetColumn>& m_columns;
    const RowPack& m_rows;
    QByteArray m_xml;
    std::vector<QByteArray> m_heads; ///< by column: " Name='"
};

} // namespace

void AppendEscaped(QByteArray& xml, const char* text, qsizetype length)
{
    qsizetype from = 0;
    qsizetype i = 0;
    const auto replace = [&](QByteArrayView by, qsizetype replaced) {
        xml.append(text + from, i - from);
        xml.append(by.data(), by.size());
        i += replaced;
        from = i;
    };
    while (i < length) {
        const auto byte = static_cast<unsigned char>(text[i]);
        if (byte < 0x80) {
            if (const QByteArrayView escape = escapes.Of[byte]; !escape.isEmpty())
                replace(escape, 1);
            else
                ++i;
        } else if (const qsizetype character = LengthOfCharacter(text + i, length - i); character > 0) {
            i += character;
        } else {
            replace("\xEF\xBF\xBD", LengthOfRefused(text + i, length - i));
        }
    }
    xml.append(text + from, length - from);
}

void WriteRowset(QIODevice& device, const QString& table, const std::vector<RowsetColumn>& columns, const RowPack& rows)
{
    Writer(device, columns, rows).Write(table.toUtf8());
}
