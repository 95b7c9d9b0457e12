#pragma once

#include <QStringList>
#include <QTemporaryDir>

/// A program folder of its own for one test: a copy of the delivered database, opened by gConn, the delivered pictures,
/// and every global as at a start. The store is the real one.
class FreshDatabase
{
public:
    FreshDatabase();
    ~FreshDatabase();
    FreshDatabase(const FreshDatabase&) = delete;
    FreshDatabase& operator=(const FreshDatabase&) = delete;

    [[nodiscard]] QString Folder() const { return m_folder.path(); }
    [[nodiscard]] QString DatabaseFile() const;

    /// Forgets everything in memory and opens the file again, as a new start of the program does.
    void StartAnew();
    /// Opens the file, where gConn was closed; what is in memory stays.
    void Open();

    /// The statements that went through gConn since the last call, in their order.
    [[nodiscard]] QStringList TakeStatements();

    /// Runs a statement that no recorder sees.
    static void Execute(const QString& statement);
    /// The rows of a selection, each row's values joined by "|"; Null shows as "NULL".
    [[nodiscard]] static QStringList Rows(const QString& selection);
    /// Every row of every table that holds a person's data: what a refused statement must leave as it was.
    [[nodiscard]] static QStringList WholeFile();

private:
    void Record();

    QTemporaryDir m_folder;
    QStringList m_statements;
};

/// Every global of the program as at a start.
void ResetGlobals();
