#include "core/adodb/Connection.h"

#include "core/adodb/Engine.h"
#include "core/adodb/StatementBatch.h"

#include <QDir>
#include <QScopedValueRollback>

using namespace Qt::StringLiterals;

Connection gConn;

Connection::Connection() = default;
Connection::~Connection() = default;

void Connection::Open(const QString& connectionString)
{
    if (m_engine)
        throw RunTimeError(ErrorNumber::ObjectOpen);
    constexpr auto pathMark = "Dbq="_L1;
    constexpr auto keyMark = ";Password="_L1;
    const qsizetype path = connectionString.indexOf(pathMark, 0, Qt::CaseInsensitive) + pathMark.size();
    // The key has no semicolon; a folder's name may have one.
    const qsizetype key = connectionString.lastIndexOf(keyMark, -1, Qt::CaseInsensitive);
    if (path < pathMark.size() || key < path)
        throw RunTimeError(ErrorNumber::EngineFailure,
                           DriverMessage(u"Data source name not found and no default driver specified"_s));
    QString file = connectionString.mid(path, key - path);
    file.replace(u'\\', QDir::separator());
    m_engine = std::make_unique<Engine>(file, connectionString.mid(key + keyMark.size()));
}

void Connection::Close()
{
    m_engine.reset();
}

void Connection::Execute(const QString& statement)
{
    Engine& engine = OpenEngine();
    Record(statement);
    TranslatedStatement translated = Translate(statement);
    Counted([&] {
        if (m_batch != nullptr)
            m_batch->Run(std::move(translated));
        else
            RunStatement(engine, translated);
    });
}

void Connection::ShareCommits(const std::function<void()>& body)
{
    if (m_batch != nullptr) {
        body();
        return;
    }
    StatementBatch batch(OpenEngine());
    const QScopedValueRollback<StatementBatch*> current(m_batch, &batch);
    try {
        body();
    } catch (...) {
        batch.Commit();
        throw;
    }
    batch.Commit();
}

/// A selection that is not at its end holds the lock. This one has a row whatever the tables hold.
struct Connection::Reading::Held
{
    std::unique_ptr<Engine::Running> Selection;
};

Connection::Reading::Reading(Connection& connection) : m_held(std::make_unique<Held>())
{
    m_held->Selection = connection.OpenEngine().Prepare(u"SELECT EXISTS (SELECT * FROM Settings)"_s, {}, true);
    (void)m_held->Selection->Step();
}

Connection::Reading::~Reading() = default;

void Connection::Record(const QString& statement) const
{
    if (m_recorder)
        m_recorder(statement);
}

Engine& Connection::OpenEngine()
{
    if (!m_engine)
        throw RunTimeError(ErrorNumber::ConnectionClosed);
    return *m_engine;
}

QString FixQuotes(const QString& text)
{
    return QString(text).replace(u'\'', "''"_L1);
}
