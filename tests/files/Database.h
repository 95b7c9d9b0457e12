#pragma once

#include <QByteArray>
#include <QList>
#include <QStringList>
#include <memory>

struct sqlite3;

/// A database file as any other tool would open it: with the key, through the engine alone.
class Database
{
public:
    explicit Database(const QString& path);

    /// Runs one statement; gives "" or the engine's complaint.
    [[nodiscard]] QString Run(const QByteArray& sql);
    /// The rows of a selection as texts, null as "NULL". A complaint of the engine ends the test program.
    [[nodiscard]] QList<QStringList> Rows(const QByteArray& sql);
    /// The first column of the first row.
    [[nodiscard]] QString Value(const QByteArray& sql) { return Rows(sql).value(0).value(0); }

    /// Makes a fresh database at `path` by the tool; false when the tool fails.
    [[nodiscard]] static bool Make(const QString& path);

private:
    struct Close
    {
        void operator()(sqlite3* db) const;
    };
    std::unique_ptr<sqlite3, Close> m_db;
};
