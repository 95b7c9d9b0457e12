#include "core/adodb/Engine.h"

#include "core/adodb/ColumnList.h"
#include "core/adodb/StoredText.h"
#include "core/Convert.h"
#include "core/Dates.h"
#include "core/RunTimeError.h"

#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <sqlcipher/sqlite3.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int busyMilliseconds = 3000;
/// Prepared forms are few (the program has some sixty texts); a run of odd texts must not pile them up.
constexpr qsizetype mostKeptForms = 256;

[[noreturn]] void Raise(int number, const QString& message)
{
    throw RunTimeError(number, DriverMessage(message));
}

int NumberOf(int code, const QString& message)
{
    if (message.startsWith("no such table"_L1))
        return ErrorNumber::EngineUnknownTable;
    if (message.startsWith("no such column"_L1) || message.contains("has no column named"_L1))
        return ErrorNumber::EngineUnknownColumn;
    switch (code & 0xFF) {
    case SQLITE_CONSTRAINT:
    case SQLITE_MISMATCH:
        return ErrorNumber::EngineTypeMismatch;
    case SQLITE_ERROR:
    case SQLITE_AUTH:
    case SQLITE_TOOBIG:
        return ErrorNumber::EngineSyntax;
    default:
        return ErrorNumber::EngineFailure;
    }
}

/// The words for a value that a column refuses, in the language of the person rather than that of the constraint.
QString WordsOf(int number, const QString& message)
{
    return number == ErrorNumber::EngineTypeMismatch ? u"Data type mismatch in criteria expression. (%1)"_s.arg(message)
                                                     : message;
}

/// cdate(x): the default text of the date that x names, so that it equals the text that the program writes.
void CDateFunction(sqlite3_context* context, int, sqlite3_value** arguments)
{
    if (sqlite3_value_type(arguments[0]) == SQLITE_NULL) {
        sqlite3_result_null(context);
        return;
    }
    const auto* bytes = reinterpret_cast<const char*>(sqlite3_value_text(arguments[0]));
    const QString text = FromStored(bytes, sqlite3_value_bytes(arguments[0]));
    try {
        const QByteArray date = CStr(CDate(text)).toUtf8();
        sqlite3_result_text(context, date.constData(), static_cast<int>(date.size()), SQLITE_TRANSIENT);
    } catch (const RunTimeError&) {
        sqlite3_result_error(context, "no date", -1);
        sqlite3_result_error_code(context, SQLITE_MISMATCH);
    }
}

bool IsKnownTable(const char* name)
{
    static const QSet<QByteArray> known{"categories",  "subcategories", "contacts",      "propdetail",  "alerts",
                                        "formletters", "settings",      "labelproducts", "labelnumbers"};
    return name != nullptr && known.contains(QByteArray(name).toLower());
}

} // namespace

/// Lets pass what the program says, and nothing else: no definition, no pragma, no attached file, no other function.
int Engine::Authorize(void* engine, int action, const char* first, const char* second, const char*, const char*)
{
    switch (action) {
    case SQLITE_SELECT:
        return SQLITE_OK;
    case SQLITE_READ:
    case SQLITE_INSERT:
    case SQLITE_UPDATE:
    case SQLITE_DELETE:
        return IsKnownTable(first) ? SQLITE_OK : SQLITE_DENY;
    case SQLITE_FUNCTION:
        return qstricmp(second, "cdate") == 0 ? SQLITE_OK : SQLITE_DENY;
    case SQLITE_TRANSACTION:
        return static_cast<const Engine*>(engine)->m_runsOwn ? SQLITE_OK : SQLITE_DENY;
    default:
        return SQLITE_DENY;
    }
}

Engine::Running::Running(Engine& engine, const Form& form, bool kept) : m_engine(engine), m_form(form), m_kept(kept) {}

Engine::Running::~Running()
{
    if (m_kept) {
        sqlite3_reset(m_form.Statement);
        sqlite3_clear_bindings(m_form.Statement);
    } else {
        sqlite3_finalize(m_form.Statement);
    }
}

bool Engine::Running::Step()
{
    switch (sqlite3_step(m_form.Statement)) {
    case SQLITE_ROW:
        return true;
    case SQLITE_DONE:
        return false;
    default:
        m_engine.RaiseLast();
    }
}

Engine::Engine(const QString& path, const QString& password)
{
    if (!QFileInfo(path).isFile())
        Raise(ErrorNumber::EngineFailure, u"Could not find file '%1'."_s.arg(path));
    const int opened =
        sqlite3_open_v2(QFile::encodeName(path).constData(), &m_database, SQLITE_OPEN_READWRITE, nullptr);
    try {
        if (opened != SQLITE_OK)
            RaiseLast();
        const QByteArray key = password.toUtf8();
        if (sqlite3_key(m_database, key.constData(), static_cast<int>(key.size())) != SQLITE_OK)
            RaiseLast();
        Configure();
    } catch (...) {
        sqlite3_close_v2(m_database);
        throw;
    }
    QFile::setPermissions(path,
                          QFile::ReadOwner | (QFileInfo(path).isWritable() ? QFile::WriteOwner : QFile::Permissions{}));
}

Engine::~Engine()
{
    for (const Form& form : std::as_const(m_kept))
        sqlite3_finalize(form.Statement);
    sqlite3_close_v2(m_database);
}

void Engine::Configure()
{
    // Another library of the same symbols would ignore the key and write the file in clear.
    if (Pragma("PRAGMA cipher_version").isEmpty())
        Raise(ErrorNumber::EngineFailure, u"The database library has no encryption."_s);
    // The form of this file's encryption; a library that knows only this form has no such setting.
    (void)Pragma("PRAGMA cipher_compatibility = 3");
    sqlite3_busy_timeout(m_database, busyMilliseconds);
    try {
        // An empty file is a valid database of the engine, but not ours: it was cut off.
        if (Pragma("SELECT count(*) FROM sqlite_master WHERE name = 'Contacts'") == "0"_L1)
            Raise(ErrorNumber::EngineFailure, u"The database has lost its tables."_s);
    } catch (const RunTimeError&) {
        if ((sqlite3_errcode(m_database) & 0xFF) == SQLITE_NOTADB)
            Raise(ErrorNumber::EnginePassword, u"Not a valid password."_s);
        throw;
    }
    (void)Pragma("PRAGMA synchronous = FULL");
    if (Pragma("PRAGMA synchronous") != "2"_L1 || Pragma("PRAGMA journal_mode") != "delete"_L1)
        Raise(ErrorNumber::EngineFailure, u"The database can't be written safely."_s);
    sqlite3_create_function_v2(m_database, "cdate", 1, SQLITE_UTF8, nullptr, CDateFunction, nullptr, nullptr, nullptr);
    sqlite3_set_authorizer(m_database, Authorize, this);
}

QString Engine::Pragma(const char* text) const
{
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(m_database, text, -1, &statement, nullptr) != SQLITE_OK)
        RaiseLast();
    const int result = sqlite3_step(statement);
    QString answer;
    if (result == SQLITE_ROW)
        answer = QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(statement, 0)));
    if (sqlite3_finalize(statement) != SQLITE_OK)
        RaiseLast();
    return answer;
}

std::unique_ptr<Engine::Running> Engine::Prepare(const QString& text, const std::vector<QVariant>& literals, bool keep)
{
    Form form = keep ? m_kept.value(text) : Form();
    // A form that is still running (a walk inside a walk) can't be used twice at once.
    if (form.Statement != nullptr && sqlite3_stmt_busy(form.Statement) != 0) {
        form = {};
        keep = false;
    }
    if (form.Statement == nullptr) {
        form = Compile(text);
        keep = keep && m_kept.size() < mostKeptForms;
        if (keep)
            m_kept.insert(text, form);
    }
    auto running = std::make_unique<Running>(*this, form, keep);
    Bind(form.Statement, literals);
    return running;
}

Engine::Form Engine::Compile(const QString& text) const
{
    const QByteArray bytes = ToStored(text);
    sqlite3_stmt* statement = nullptr;
    const char* tail = nullptr;
    if (sqlite3_prepare_v2(m_database, bytes.constData(), static_cast<int>(bytes.size()), &statement, &tail) !=
        SQLITE_OK)
        RaiseLast();
    if (statement == nullptr || tail != bytes.constData() + bytes.size()) {
        sqlite3_finalize(statement);
        Raise(ErrorNumber::EngineSyntax,
              u"Invalid SQL statement; expected 'DELETE', 'INSERT', 'SELECT', or 'UPDATE'."_s);
    }
    return {statement, std::make_shared<ColumnList>(statement)};
}

void Engine::Bind(sqlite3_stmt* statement, const std::vector<QVariant>& literals) const
{
    int position = 0;
    for (const QVariant& literal : literals) {
        ++position;
        int result = SQLITE_OK;
        switch (literal.typeId()) {
        case QMetaType::LongLong:
            result = sqlite3_bind_int64(statement, position, literal.toLongLong());
            break;
        case QMetaType::Double:
            result = sqlite3_bind_double(statement, position, literal.toDouble());
            break;
        default: {
            const QByteArray bytes = ToStored(literal.toString());
            result = sqlite3_bind_text(statement, position, bytes.constData(), static_cast<int>(bytes.size()),
                                       SQLITE_TRANSIENT);
        }
        }
        if (result != SQLITE_OK)
            RaiseLast();
    }
}

Engine::Declaration Engine::Declared(const QString& table, const QString& column) const
{
    const char* type = nullptr;
    int notNull = 0;
    int key = 0;
    int autoNumbered = 0;
    if (sqlite3_table_column_metadata(m_database, nullptr, table.toUtf8().constData(), column.toUtf8().constData(),
                                      &type, nullptr, &notNull, &key, &autoNumbered) != SQLITE_OK)
        RaiseLast();
    return {QByteArray(type).toUpper(), notNull != 0 || key != 0, autoNumbered != 0};
}

void Engine::Begin()
{
    RunOwn("BEGIN IMMEDIATE");
}

void Engine::Commit()
{
    RunOwn("COMMIT");
}

bool Engine::IsBegun() const
{
    return sqlite3_get_autocommit(m_database) == 0;
}

void Engine::RollBack()
{
    if (IsBegun())
        RunOwn("ROLLBACK");
}

void Engine::RunOwn(const char* text)
{
    m_runsOwn = true;
    const int result = sqlite3_exec(m_database, text, nullptr, nullptr, nullptr);
    m_runsOwn = false;
    if (result != SQLITE_OK)
        RaiseLast();
}

void Engine::RaiseLast() const
{
    const QString message = QString::fromUtf8(sqlite3_errmsg(m_database));
    const int number = NumberOf(sqlite3_errcode(m_database), message);
    Raise(number, WordsOf(number, message));
}
