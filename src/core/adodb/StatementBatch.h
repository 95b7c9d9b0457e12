#pragma once

#include "core/adodb/Dialect.h"

#include <vector>

class Engine;

/// Statements that share commits. A commit comes after each so many of them and at the end. A statement that fails
/// changes nothing and commits all before it, so that the file is as it would be had each been committed alone; only
/// where the program is killed or the power fails those since the last commit are gone.
class StatementBatch
{
public:
    explicit StatementBatch(Engine& engine) : m_engine(engine) {}
    ~StatementBatch();
    StatementBatch(const StatementBatch&) = delete;
    StatementBatch& operator=(const StatementBatch&) = delete;

    void Run(TranslatedStatement statement);
    void Commit();

private:
    /// The engine may end a whole transaction where the disk is full or fails: its statements are then run again, each
    /// with a commit of its own, up to the one that can't be.
    void RunAgain();

    Engine& m_engine;
    std::vector<TranslatedStatement> m_sinceCommit;
};

/// Runs a statement to its end.
void RunStatement(Engine& engine, const TranslatedStatement& statement);
