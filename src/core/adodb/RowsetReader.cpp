#include "core/adodb/RowsetReader.h"

#include "core/adodb/Dialect.h"
#include "core/adodb/RawBreaks.h"
#include "core/adodb/RowPack.h"
#include "core/adodb/RowsetForm.h"
#include "core/RunTimeError.h"

#include <QHash>
#include <QXmlStreamReader>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// No rowset has elements inside elements for long; a parser remembers each that is open.
constexpr int deepest = 100;

using Row = std::vector<std::optional<QString>>;

[[noreturn]] void RaiseNoRowset(const QString& why)
{
    throw RunTimeError(ErrorNumber::EngineFailure,
                       u"Recordset cannot be created from the specified source. The source file or stream must contain "
                       "Recordset data in XML or ADTG format. (%1)"_s.arg(why));
}

struct Column
{
    QString XmlName; ///< the rows' attribute
    QString Name;
    QString Type;
    int Number = 0; ///< its position from 1; 0 where none is told
};

class Reader
{
public:
    explicit Reader(QIODevice& device) : m_xml(&device) {}

    std::unique_ptr<RowPack> Read()
    {
        if (!NextElement() || m_xml.name() != "xml"_L1)
            RaiseNoRowset(m_xml.hasError() ? Fault() : u"There is no rowset in it."_s);
        while (NextElement()) {
            if (m_xml.name() == "Schema"_L1)
                ReadSchema();
            else if (m_xml.name() == "data"_L1 && IsOf(RowsetForm::RowsetSpace))
                ReadData();
            else
                Skip();
        }
        // What stands behind the root's end has to be XML too.
        while (!m_xml.atEnd())
            m_xml.readNext();
        if (m_xml.hasError())
            RaiseNoRowset(Fault());
        RequireColumns();
        return std::move(m_rows);
    }

private:
    [[nodiscard]] QString Fault() const
    {
        return u"Line %1: %2"_s.arg(QString::number(m_xml.lineNumber()), m_xml.errorString());
    }

    [[nodiscard]] bool IsOf(QByteArrayView space) const { return m_xml.namespaceUri() == QLatin1StringView(space); }

    /// Goes to the next element inside the current one; false at its end.
    bool NextElement()
    {
        while (!m_xml.atEnd()) {
            switch (m_xml.readNext()) {
            case QXmlStreamReader::StartElement:
                return true;
            case QXmlStreamReader::EndElement:
                return false;
            case QXmlStreamReader::DTD:
                RaiseNoRowset(u"It has a document type definition."_s);
            case QXmlStreamReader::Invalid:
                RaiseNoRowset(Fault());
            default:
                break;
            }
        }
        return false;
    }

    /// Goes to the end of the current element.
    void Skip()
    {
        for (int depth = 1; depth > 0 && !m_xml.atEnd();) {
            const QXmlStreamReader::TokenType token = m_xml.readNext();
            if (token == QXmlStreamReader::StartElement && ++depth > deepest)
                RaiseNoRowset(u"Line %1: Its elements are nested too deeply."_s.arg(m_xml.lineNumber()));
            if (token == QXmlStreamReader::EndElement)
                --depth;
        }
    }

    void ReadSchema()
    {
        while (NextElement()) {
            const bool isRow = m_xml.name() == "ElementType"_L1 && m_xml.attributes().value("name"_L1) == "row"_L1;
            if (!isRow) {
                Skip();
                continue;
            }
            while (NextElement()) {
                if (m_xml.name() == "AttributeType"_L1)
                    ReadColumn();
                else
                    Skip();
            }
        }
    }

    void ReadColumn()
    {
        const QXmlStreamAttributes attributes = m_xml.attributes();
        const auto ofRowset = [&](QLatin1StringView name) {
            return attributes.value(QLatin1StringView(RowsetForm::RowsetSpace), name).toString();
        };
        const auto typeOf = [](const QXmlStreamAttributes& of) {
            return of.value(QLatin1StringView(RowsetForm::TypeSpace), "type"_L1).toString();
        };
        Column column;
        column.XmlName = attributes.value("name"_L1).toString();
        column.Name = ofRowset("name"_L1);
        if (column.Name.isEmpty())
            column.Name = column.XmlName;
        column.Number = ofRowset("number"_L1).toInt();
        column.Type = typeOf(attributes);
        while (NextElement()) {
            if (m_xml.name() == "datatype"_L1)
                column.Type = typeOf(m_xml.attributes());
            Skip();
        }
        if (!column.XmlName.isEmpty() && m_rows == nullptr)
            m_columns.push_back(std::move(column));
    }

    void RequireColumns()
    {
        if (m_rows)
            return;
        if (m_columns.empty())
            RaiseNoRowset(u"It declares no columns."_s);
        std::ranges::stable_sort(m_columns, {}, &Column::Number);
        std::vector<QString> names;
        for (size_t i = 0; i < m_columns.size(); ++i) {
            names.push_back(m_columns[i].Name);
            m_place.emplace(m_columns[i].XmlName, i);
        }
        m_rows = std::make_unique<RowPack>(std::make_shared<ColumnList>(names));
    }

    /// The rows in a group: plain ones, and those of changes that wait.
    void ReadData()
    {
        RequireColumns();
        while (NextElement()) {
            if (m_xml.name() == "row"_L1) {
                TakeRow(Row(m_columns.size()));
            } else if (m_xml.name() == "insert"_L1) {
                while (NextElement())
                    TakeRow(Row(m_columns.size()));
            } else if (m_xml.name() == "update"_L1) {
                ReadUpdate();
            } else {
                Skip();
            }
        }
    }

    void ReadUpdate()
    {
        Row row(m_columns.size());
        while (NextElement()) {
            if (m_xml.name() == "original"_L1) {
                while (NextElement())
                    Overlay(row);
            } else {
                TakeRow(row);
            }
        }
    }

    void TakeRow(Row row)
    {
        Overlay(row);
        m_rows->Append(row);
    }

    /// Lays the values of the current element over a row, and goes to its end.
    void Overlay(Row& row)
    {
        const QXmlStreamAttributes attributes = m_xml.attributes();
        for (const QXmlStreamAttribute& attribute : attributes) {
            if (!attribute.namespaceUri().isEmpty())
                continue;
            if (const auto place = m_place.constFind(attribute.name().toString()); place != m_place.constEnd())
                row[*place] = ValueOf(m_columns[*place], attribute.value().toString());
        }
        const auto forced = attributes.value(QLatin1StringView(RowsetForm::RowsetSpace), "forcenull"_L1);
        for (const QStringView name : forced.tokenize(u' ', Qt::SkipEmptyParts)) {
            if (const auto place = m_place.constFind(name.toString()); place != m_place.constEnd())
                row[*place].reset();
        }
        Skip();
    }

    QString ValueOf(const Column& column, const QString& value) const
    {
        try {
            return RowsetForm::ReadValue(column.Type, value);
        } catch (const RunTimeError&) {
            throw RunTimeError(
                ErrorNumber::EngineFailure,
                u"Data provider or other service returned an E_FAIL status. (Line %1: %2 can't be '%3'.)"_s.arg(
                    QString::number(m_xml.lineNumber()), column.Name, value.left(40)));
        }
    }

    QXmlStreamReader m_xml;
    std::vector<Column> m_columns;
    QHash<QString, size_t> m_place; ///< of a column by its attribute
    std::unique_ptr<RowPack> m_rows;
};

} // namespace

std::unique_ptr<RowPack> ReadRowset(QIODevice& device)
{
    RawBreaks escaped(device);
    return Reader(escaped).Read();
}
