#pragma once

#include "core/adodb/Dialect.h"

#include <QByteArray>
#include <QHash>
#include <QString>
#include <memory>

class ColumnList;
struct sqlite3;
struct sqlite3_stmt;

/// One open SQLCipher file and the prepared forms of its statements. Only Connection and Recordset see it.
class Engine
{
    /// A prepared form and its columns: reading their names for each of 100,000 runs takes longer than the rows do.
    struct Form
    {
        sqlite3_stmt* Statement = nullptr;
        std::shared_ptr<ColumnList> Columns;
    };

public:
    /// A statement that is being run; reset and given back to the store of prepared forms when it goes away.
    class Running
    {
    public:
        Running(Engine& engine, const Form& form, bool kept);
        ~Running();
        Running(const Running&) = delete;
        Running& operator=(const Running&) = delete;

        /// True while there is a row. Raises the engine's error.
        [[nodiscard]] bool Step();
        [[nodiscard]] sqlite3_stmt* Handle() const { return m_form.Statement; }
        [[nodiscard]] const std::shared_ptr<ColumnList>& Columns() const { return m_form.Columns; }

    private:
        Engine& m_engine;
        Form m_form;
        bool m_kept;
    };

    /// Opens an existing file with its key. Raises EnginePassword where the key does not fit (or the file is no
    /// database), EngineFailure where it is missing or can't be read. Changes nothing where it raises.
    Engine(const QString& path, const QString& password);
    ~Engine();
    Engine(const Engine&) = delete;
    Engine& operator=(const Engine&) = delete;

    /// Prepares `text`, or takes its kept form, and binds the literals in their order. Only Select, Insert, Update and
    /// Delete on the known tables are accepted.
    [[nodiscard]] std::unique_ptr<Running> Prepare(const QString& text, const std::vector<QVariant>& literals,
                                                   bool keep);

    /// What a table declares of a column.
    struct Declaration
    {
        QByteArray Type;
        bool NotNull = false;
        bool AutoNumbered = false;
    };
    [[nodiscard]] Declaration Declared(const QString& table, const QString& column) const;

    // Statements between these share one commit. Raise the engine's error.
    void Begin();
    void Commit();
    /// False once the engine has ended what Begin began, which a full disk can make it do.
    [[nodiscard]] bool IsBegun() const;
    /// Takes back what was not committed.
    void RollBack();

    /// The engine's last fault as an error of the program.
    [[noreturn]] void RaiseLast() const;

private:
    void Configure();
    [[nodiscard]] QString Pragma(const char* text) const;
    void RunOwn(const char* text);
    static int Authorize(void* engine, int action, const char* first, const char* second, const char*, const char*);
    [[nodiscard]] Form Compile(const QString& text) const;
    void Bind(sqlite3_stmt* statement, const std::vector<QVariant>& literals) const;

    sqlite3* m_database = nullptr;
    bool m_runsOwn = false; ///< the engine's own statement, not one of the program, is being prepared
    QHash<QString, Form> m_kept;
};
