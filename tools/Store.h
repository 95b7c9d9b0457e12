#pragma once

#include <QByteArray>
#include <QString>
#include <initializer_list>
#include <memory>
#include <variant>

struct sqlite3;
struct sqlite3_stmt;

/// One value of a statement: null, a whole number, a real number or a text.
using StoreValue = std::variant<std::monostate, qint64, double, QString>;

/// The encrypted file as the tools see it: opened with its key, with every statement allowed. The program itself
/// reaches the file through its own connection, which allows less. Every failure raises std::runtime_error with the
/// reason.
class Store
{
public:
    /// A statement that is prepared once and run for many rows.
    class Statement
    {
    public:
        Statement(const Store& store, const QByteArray& sql);
        /// Binds `values` in their order and runs to the end; gives the number of the row it inserted last.
        qint64 Run(std::initializer_list<StoreValue> values) const;
        /// Binds `values` and gives the first column of the first row as a whole number, 0 without a row.
        [[nodiscard]] qint64 Number(std::initializer_list<StoreValue> values) const;

    private:
        void Bind(std::initializer_list<StoreValue> values) const;
        [[noreturn]] void Fail() const;

        struct Finalize
        {
            void operator()(sqlite3_stmt* statement) const;
        };
        sqlite3* m_db;
        std::unique_ptr<sqlite3_stmt, Finalize> m_statement;
    };

    /// Opens `path`, which must exist (an empty file becomes a new store), and proves that the library encrypts and
    /// that the key fits.
    explicit Store(const QString& path);

    /// Runs any number of statements given as one text.
    void Execute(const QByteArray& sql) const;

private:
    friend class Statement;
    struct Close
    {
        void operator()(sqlite3* db) const;
    };
    std::unique_ptr<sqlite3, Close> m_db;
};
