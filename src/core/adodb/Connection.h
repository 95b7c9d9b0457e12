#pragma once

#include "core/RunTimeError.h"

#include <QString>
#include <functional>
#include <memory>

class Engine;
class StatementBatch;

enum class ObjectState
{
    Closed,
    Open
};

/// The connection to the database file. Every statement is handed over as a whole text.
class Connection
{
public:
    Connection();
    ~Connection();
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    /// Opens the file that the connection string names by "Dbq=", with the key behind "Password=". Backslashes in the
    /// path are folder separators. Raises 3705 where it is open already, the engine's errors where the file is missing,
    /// damaged or of another key. Nothing is ever created.
    void Open(const QString& connectionString);
    void Close();
    [[nodiscard]] ObjectState State() const { return m_engine ? ObjectState::Open : ObjectState::Closed; }

    /// Runs one Insert, Update or Delete. When it returns, the change is safe on the disk. Raises 3709 where the
    /// connection is closed, and the engine's errors.
    void Execute(const QString& statement);

    /// Runs `body`, whose statements share commits: a run of thousands waits for the disk a few times only. Where one
    /// fails, all before it are kept. Selections see what was not committed yet. Raises what `body` raises.
    void ShareCommits(const std::function<void()>& body);

    /// How often the store itself has failed so far: a full disk, a file that can't be written, another program's lock.
    /// What a statement asked for had no part in it.
    [[nodiscard]] int Failures() const { return m_failures; }

    /// For its lifetime every selection sees the file in one state, and none has to ask the system for the file's lock
    /// anew. Other programs can't write meanwhile. Raises as `Execute` does.
    class Reading
    {
    public:
        explicit Reading(Connection& connection);
        ~Reading();
        Reading(const Reading&) = delete;
        Reading& operator=(const Reading&) = delete;

    private:
        struct Held;
        std::unique_ptr<Held> m_held;
    };

    /// Is told every statement, in its order, before it runs.
    void SetRecorder(std::function<void(const QString&)> recorder) { m_recorder = std::move(recorder); }

private:
    friend class Recordset;
    void Record(const QString& statement) const;
    /// Runs what talks to the store, and counts its failures.
    template <typename Body>
    auto Counted(Body&& body)
    {
        try {
            return body();
        } catch (const RunTimeError& error) {
            m_failures += error.Number() == ErrorNumber::EngineFailure ? 1 : 0;
            throw;
        }
    }
    /// Raises 3709 where the connection is closed.
    [[nodiscard]] Engine& OpenEngine();

    std::unique_ptr<Engine> m_engine;
    StatementBatch* m_batch = nullptr; ///< of the ShareCommits that is running
    std::function<void(const QString&)> m_recorder;
    int m_failures = 0;
};

/// The text with each apostrophe doubled, for a literal between apostrophes.
[[nodiscard]] QString FixQuotes(const QString& text);

/// The one connection of the program.
extern Connection gConn;
