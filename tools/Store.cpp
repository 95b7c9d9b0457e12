#include "Store.h"

#include <QFile>
#include <sqlcipher/sqlite3.h>
#include <stdexcept>

namespace {

// The key of every Contacts.mdb, the same as the password of the program's connection string.
constexpr char Key[] = "kostrevy48";

[[noreturn]] void Raise(sqlite3* db, const char* doing)
{
    throw std::runtime_error(std::string(doing) + ": " + (db ? sqlite3_errmsg(db) : "out of memory"));
}

} // namespace

void Store::Close::operator()(sqlite3* db) const
{
    sqlite3_close_v2(db);
}

void Store::Statement::Finalize::operator()(sqlite3_stmt* statement) const
{
    sqlite3_finalize(statement);
}

Store::Store(const QString& path)
{
    sqlite3* db = nullptr;
    const int opened = sqlite3_open_v2(QFile::encodeName(path).constData(), &db, SQLITE_OPEN_READWRITE, nullptr);
    m_db.reset(db);
    if (opened != SQLITE_OK)
        Raise(db, "cannot open the file");
    if (sqlite3_key(db, Key, int(sizeof Key) - 1) != SQLITE_OK)
        Raise(db, "cannot set the key");
    // A library without encryption takes the key silently and would write the file in clear.
    if (sqlite3_stmt* raw = nullptr; sqlite3_prepare_v2(db, "PRAGMA cipher_version", -1, &raw, nullptr) != SQLITE_OK ||
                                     sqlite3_step(raw) != SQLITE_ROW) {
        sqlite3_finalize(raw);
        throw std::runtime_error("the database library does not encrypt");
    } else {
        sqlite3_finalize(raw);
    }
    Execute("PRAGMA cipher_compatibility = 3; PRAGMA journal_mode = DELETE; SELECT count(*) FROM sqlite_master;");
}

void Store::Execute(const QByteArray& sql) const
{
    if (sqlite3_exec(m_db.get(), sql.constData(), nullptr, nullptr, nullptr) != SQLITE_OK)
        Raise(m_db.get(), "the statement was refused");
}

Store::Statement::Statement(const Store& store, const QByteArray& sql) : m_db(store.m_db.get())
{
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(m_db, sql.constData(), int(sql.size()), &statement, nullptr) != SQLITE_OK)
        Raise(m_db, sql.constData());
    m_statement.reset(statement);
}

void Store::Statement::Bind(std::initializer_list<StoreValue> values) const
{
    sqlite3_stmt* const statement = m_statement.get();
    sqlite3_reset(statement);
    int position = 0;
    for (const StoreValue& value : values) {
        ++position;
        int bound = SQLITE_OK;
        if (const auto* whole = std::get_if<qint64>(&value))
            bound = sqlite3_bind_int64(statement, position, *whole);
        else if (const auto* real = std::get_if<double>(&value))
            bound = sqlite3_bind_double(statement, position, *real);
        else if (const auto* text = std::get_if<QString>(&value))
            bound = sqlite3_bind_text16(statement, position, text->utf16(), int(text->size() * 2), SQLITE_TRANSIENT);
        else
            bound = sqlite3_bind_null(statement, position);
        if (bound != SQLITE_OK)
            Fail();
    }
}

qint64 Store::Statement::Run(std::initializer_list<StoreValue> values) const
{
    Bind(values);
    if (sqlite3_step(m_statement.get()) != SQLITE_DONE)
        Fail();
    return sqlite3_last_insert_rowid(m_db);
}

qint64 Store::Statement::Number(std::initializer_list<StoreValue> values) const
{
    Bind(values);
    const int stepped = sqlite3_step(m_statement.get());
    if (stepped != SQLITE_ROW && stepped != SQLITE_DONE)
        Fail();
    const qint64 number = stepped == SQLITE_ROW ? sqlite3_column_int64(m_statement.get(), 0) : 0;
    sqlite3_reset(m_statement.get());
    return number;
}

void Store::Statement::Fail() const
{
    Raise(m_db, sqlite3_sql(m_statement.get()));
}
