#include "core/adodb/StatementBatch.h"

#include "core/adodb/Engine.h"
#include "core/RunTimeError.h"

namespace {

constexpr size_t mostInOneCommit = 1000;

} // namespace

StatementBatch::~StatementBatch()
{
    try {
        m_engine.RollBack();
    } catch (const RunTimeError&) {
        // The engine takes back by itself what it can't commit.
    }
}

void StatementBatch::Run(TranslatedStatement statement)
{
    if (!m_engine.IsBegun())
        m_engine.Begin();
    try {
        RunStatement(m_engine, statement);
    } catch (const RunTimeError&) {
        Commit();
        throw;
    }
    m_sinceCommit.push_back(std::move(statement));
    if (m_sinceCommit.size() >= mostInOneCommit)
        Commit();
}

void StatementBatch::Commit()
{
    if (m_engine.IsBegun()) {
        try {
            m_engine.Commit();
            m_sinceCommit.clear();
            return;
        } catch (const RunTimeError&) {
            m_engine.RollBack();
        }
    }
    RunAgain();
}

void StatementBatch::RunAgain()
{
    const std::vector<TranslatedStatement> lost = std::exchange(m_sinceCommit, {});
    for (const TranslatedStatement& statement : lost)
        RunStatement(m_engine, statement);
}

void RunStatement(Engine& engine, const TranslatedStatement& statement)
{
    const auto running = engine.Prepare(statement.Text, statement.Literals, statement.Reusable);
    while (running->Step()) {
    }
}
