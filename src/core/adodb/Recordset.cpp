#include "core/adodb/Recordset.h"

#include "core/adodb/Connection.h"
#include "core/adodb/Engine.h"
#include "core/adodb/RowPack.h"
#include "core/adodb/RowsetReader.h"
#include "core/adodb/RowsetWriter.h"
#include "core/Files.h"
#include "core/RunTimeError.h"

using namespace Qt::StringLiterals;

namespace {

/// The rows carry their row number as one more column behind those that were asked for.
QString WithRowNumber(const QString& selectAll)
{
    constexpr auto head = "Select *"_L1;
    return u"SELECT *, rowid"_s + selectAll.mid(head.size());
}

QVariant ToLiteral(const Value& value)
{
    if (value.IsNull())
        return {};
    if (const QString* text = value.AsText())
        return *text;
    const QString text = value.Text();
    bool whole = false;
    const qint64 number = text.toLongLong(&whole);
    return whole ? QVariant(number) : QVariant(text.toDouble());
}

} // namespace

Value Recordset::Field::Get() const
{
    m_owner.RequireRow();
    const auto pending = m_owner.m_pending.find(m_column);
    return pending != m_owner.m_pending.end() ? pending->second : m_owner.m_rows->At(m_owner.m_row, m_column);
}

void Recordset::Field::Set(Value value) const
{
    m_owner.RequireRow();
    m_owner.RequireUpdatable();
    m_owner.m_pending.insert_or_assign(m_column, std::move(value));
}

Recordset::Recordset() = default;
Recordset::~Recordset() = default;

void Recordset::Open(const QString& statement, Connection& connection)
{
    if (m_rows)
        throw RunTimeError(ErrorNumber::ObjectOpen);
    m_connection = &connection;
    m_statement = statement;
    Fetch();
}

void Recordset::Open(QIODevice& rowset)
{
    if (m_rows)
        throw RunTimeError(ErrorNumber::ObjectOpen);
    m_rows = ReadRowset(rowset);
    m_connection = nullptr;
    m_table.clear();
    m_row = 0;
    m_lastColumn = -1;
    m_pending.clear();
}

void Recordset::Save(const QString& fileName, bool secret) const
{
    RequireOpen();
    if (m_table.isEmpty())
        throw RunTimeError(ErrorNumber::NotAllowedHere);
    std::vector<RowsetColumn> columns;
    for (int i = 0; i < FieldCount(); ++i) {
        const Engine::Declaration declared = m_connection->OpenEngine().Declared(m_table, FieldName(i));
        columns.push_back({FieldName(i), declared.Type, !declared.NotNull, declared.AutoNumbered});
    }
    QFile file(fileName);
    OpenFile(file, QIODevice::WriteOnly | QIODevice::NewOnly, secret);
    WriteRowset(file, m_table, columns, *m_rows);
    CloseWritten(file);
}

void Recordset::Fetch()
{
    if (m_connection == nullptr)
        throw RunTimeError(ErrorNumber::NotAllowedHere);
    Engine& engine = m_connection->OpenEngine();
    m_connection->Record(m_statement);
    const TranslatedStatement translated = Translate(m_statement);
    m_table = LockType == ::LockType::ReadOnly ? QString() : translated.UpdatableTable;
    const QString text = m_table.isEmpty() ? translated.Text : WithRowNumber(translated.Text);
    m_rows = m_connection->Counted([&] {
        const auto running = engine.Prepare(text, translated.Literals, translated.Reusable);
        return std::make_unique<RowPack>(running->Handle(), running->Columns(), [&running] { return running->Step(); });
    });
    m_row = 0;
    m_pending.clear();
}

void Recordset::Close()
{
    RequireOpen();
    m_rows.reset();
    m_pending.clear();
}

int Recordset::RecordCount() const
{
    RequireOpen();
    return CursorLocation == ::CursorLocation::UseClient ? static_cast<int>(m_rows->Rows()) : -1;
}

bool Recordset::Bof() const
{
    RequireOpen();
    return m_rows->Rows() == 0;
}

bool Recordset::Eof() const
{
    RequireOpen();
    return m_row >= m_rows->Rows();
}

void Recordset::MoveFirst()
{
    RequireOpen();
    if (m_rows->Rows() == 0)
        throw RunTimeError(ErrorNumber::NoCurrentRecord);
    m_pending.clear();
    m_row = 0;
}

void Recordset::MoveLast()
{
    MoveFirst();
    m_row = m_rows->Rows() - 1;
}

void Recordset::MoveNext()
{
    if (Eof())
        throw RunTimeError(ErrorNumber::NoCurrentRecord);
    m_pending.clear();
    ++m_row;
}

void Recordset::Find(const QString& criterion)
{
    RequireOpen();
    const qsizetype equals = criterion.indexOf(u'=');
    if (equals < 0)
        throw RunTimeError(ErrorNumber::WrongArguments);
    const int column = Asked(m_rows->Columns().Find(QStringView(criterion).left(equals).trimmed()));
    QString wanted = criterion.mid(equals + 1).trimmed();
    if (wanted.size() >= 2 && wanted.startsWith(u'\'') && wanted.endsWith(u'\''))
        wanted = wanted.mid(1, wanted.size() - 2).replace("''"_L1, "'"_L1);
    m_pending.clear();
    const auto matches = [&] {
        return !m_rows->IsDeleted(m_row) && m_rows->At(m_row, column).Text().compare(wanted, Qt::CaseInsensitive) == 0;
    };
    while (m_row < m_rows->Rows() && !matches())
        ++m_row;
}

int Recordset::FieldCount() const
{
    RequireOpen();
    return m_rows->Columns().Count() - (m_table.isEmpty() ? 0 : 1);
}

QString Recordset::FieldName(int column) const
{
    return m_rows->Columns().Name(Asked(column));
}

Recordset::Field Recordset::Fields(QLatin1StringView name)
{
    RequireOpen();
    m_lastColumn = Asked(m_rows->Columns().Find(name, m_lastColumn));
    return {*this, m_lastColumn};
}

Recordset::Field Recordset::Fields(const QString& name)
{
    RequireOpen();
    return {*this, Asked(m_rows->Columns().Find(name))};
}

Recordset::Field Recordset::Fields(int column)
{
    return {*this, Asked(column)};
}

int Recordset::Asked(int column) const
{
    if (column < 0 || column >= FieldCount())
        throw RunTimeError(ErrorNumber::ItemNotFound);
    return column;
}

void Recordset::RunOnStore(const QString& text, const std::vector<QVariant>& values)
{
    m_connection->Counted([&] { static_cast<void>(m_connection->OpenEngine().Prepare(text, values, true)->Step()); });
}

void Recordset::Update()
{
    RequireRow();
    RequireUpdatable();
    if (m_pending.empty())
        return;
    QString text = u"UPDATE [%1] SET "_s.arg(m_table);
    std::vector<QVariant> values;
    for (const auto& [column, value] : m_pending) {
        text += u"%1[%2]=?"_s.arg(values.empty() ? QString() : u", "_s, m_rows->Columns().Name(column));
        values.push_back(ToLiteral(value));
    }
    values.push_back(RowId());
    RunOnStore(text + u" WHERE rowid=?"_s, values);
    for (auto& [column, value] : m_pending)
        m_rows->SetValue(m_row, column, std::move(value));
    m_pending.clear();
}

void Recordset::Delete()
{
    RequireRow();
    RequireUpdatable();
    RunOnStore(u"DELETE FROM [%1] WHERE rowid=?"_s.arg(m_table), {RowId()});
    m_rows->MarkDeleted(m_row);
    m_pending.clear();
}

void Recordset::Requery()
{
    RequireOpen();
    Fetch();
}

void Recordset::Resync()
{
    RequireOpen();
    const qsizetype row = m_row;
    Fetch();
    m_row = std::min(row, m_rows->Rows());
}

void Recordset::RequireOpen() const
{
    if (!m_rows)
        throw RunTimeError(ErrorNumber::ObjectClosed);
}

void Recordset::RequireRow() const
{
    RequireOpen();
    if (m_row >= m_rows->Rows() || m_rows->IsDeleted(m_row))
        throw RunTimeError(ErrorNumber::NoCurrentRecord);
}

void Recordset::RequireUpdatable() const
{
    if (m_table.isEmpty())
        throw RunTimeError(ErrorNumber::NotUpdatable);
}

qint64 Recordset::RowId() const
{
    return m_rows->At(m_row, m_rows->Columns().Count() - 1).Text().toLongLong();
}
