#include "core/adodb/RowPack.h"

#include "core/adodb/StoredText.h"
#include "core/Convert.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <sqlcipher/sqlite3.h>

using namespace Qt::StringLiterals;

namespace {

// A cell is a mark of its type and its payload: 8 bytes of a number; or 4 of a length and the text.
using CellType = RowPack::CellType;

template <typename Number>
void Append(std::vector<char>& bytes, CellType type, Number payload)
{
    const size_t start = bytes.size();
    bytes.resize(start + 1 + sizeof payload);
    bytes[start] = static_cast<char>(type);
    std::memcpy(bytes.data() + start + 1, &payload, sizeof payload);
}

template <typename Number>
Number Read(const char* bytes)
{
    Number number;
    std::memcpy(&number, bytes, sizeof number);
    return number;
}

Value RealValue(double number, ColumnKind kind)
{
    switch (kind) {
    case ColumnKind::Currency:
        return Value(RoundedCurrency(number));
    case ColumnKind::Real:
        return Value(static_cast<Single>(number));
    case ColumnKind::Whole:
        return Value(static_cast<qint64>(std::llround(number)));
    case ColumnKind::Text:
        break;
    }
    return Value(CStr(number));
}

Value WholeValue(qint64 number, ColumnKind kind)
{
    switch (kind) {
    case ColumnKind::Currency:
    case ColumnKind::Real:
        return RealValue(static_cast<double>(number), kind);
    case ColumnKind::Whole:
        return Value(number);
    case ColumnKind::Text:
        break;
    }
    return Value(CStr(number));
}

} // namespace

void RowPack::AppendRow(sqlite3_stmt* statement)
{
    m_rowStarts.push_back(m_bytes.size());
    const int count = m_columns->Count();
    for (int i = 0; i < count; ++i) {
        switch (sqlite3_column_type(statement, i)) {
        case SQLITE_INTEGER:
            ::Append(m_bytes, CellType::Whole, static_cast<qint64>(sqlite3_column_int64(statement, i)));
            break;
        case SQLITE_FLOAT:
            ::Append(m_bytes, CellType::Real, sqlite3_column_double(statement, i));
            break;
        case SQLITE_NULL:
            m_bytes.push_back(static_cast<char>(CellType::Null));
            break;
        default: {
            const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, i));
            AppendText(text, sqlite3_column_bytes(statement, i));
        }
        }
    }
}

void RowPack::AppendText(const char* text, qsizetype length)
{
    ::Append(m_bytes, CellType::Text, static_cast<quint32>(length));
    m_bytes.insert(m_bytes.end(), text, text + length);
}

void RowPack::Append(const std::vector<std::optional<QString>>& texts)
{
    m_rowStarts.push_back(m_bytes.size());
    for (const std::optional<QString>& text : texts) {
        if (!text) {
            m_bytes.push_back(static_cast<char>(CellType::Null));
            continue;
        }
        const QByteArray stored = ToStored(*text);
        AppendText(stored.constData(), stored.size());
    }
}

void RowPack::LocateCells(qsizetype row) const
{
    m_cellStarts.clear();
    size_t position = m_rowStarts[static_cast<size_t>(row)];
    for (int i = 0; i < m_columns->Count(); ++i) {
        m_cellStarts.push_back(position);
        switch (static_cast<CellType>(m_bytes[position])) {
        case CellType::Null:
            position += 1;
            break;
        case CellType::Text:
            position += 1 + sizeof(quint32) + Read<quint32>(m_bytes.data() + position + 1);
            break;
        default:
            position += 1 + sizeof(qint64);
        }
    }
    m_locatedRow = row;
}

Value RowPack::At(qsizetype row, int column) const
{
    for (const Change& change : m_changes) {
        if (change.Row == row && change.Column == column)
            return change.NewValue;
    }
    const Cell cell = CellAt(row, column);
    const ColumnKind kind = m_columns->Kind(column);
    switch (cell.Type) {
    case CellType::Whole:
        return WholeValue(cell.Whole, kind);
    case CellType::Real:
        return RealValue(cell.Real, kind);
    case CellType::Text:
        return Value(FromStored(cell.Text, cell.Length));
    case CellType::Null:
        break;
    }
    return {};
}

RowPack::Cell RowPack::CellAt(qsizetype row, int column) const
{
    if (m_locatedRow != row)
        LocateCells(row);
    const char* bytes = m_bytes.data() + m_cellStarts[static_cast<size_t>(column)];
    Cell cell;
    cell.Type = static_cast<CellType>(bytes[0]);
    switch (cell.Type) {
    case CellType::Whole:
        cell.Whole = Read<qint64>(bytes + 1);
        break;
    case CellType::Real:
        cell.Real = Read<double>(bytes + 1);
        break;
    case CellType::Text:
        cell.Length = Read<quint32>(bytes + 1);
        cell.Text = bytes + 1 + sizeof(quint32);
        break;
    case CellType::Null:
        break;
    }
    return cell;
}

void RowPack::SetValue(qsizetype row, int column, Value value)
{
    std::erase_if(m_changes, [&](const Change& change) { return change.Row == row && change.Column == column; });
    m_changes.push_back({row, column, std::move(value)});
}

void RowPack::MarkDeleted(qsizetype row)
{
    m_deleted.insert(row);
}

bool RowPack::IsDeleted(qsizetype row) const
{
    return m_deleted.contains(row);
}

Currency RoundedCurrency(double number)
{
    // The greatest amounts are no numbers that a double can hold: the next one is beyond what fits.
    constexpr double bound = 0x1p63;
    const double scaled = number * static_cast<double>(Currency::Scale);
    if (scaled >= bound)
        return Currency::FromScaled(std::numeric_limits<qint64>::max());
    if (scaled <= -bound)
        return Currency::FromScaled(std::numeric_limits<qint64>::min());
    return Currency::FromScaled(std::llround(scaled));
}
