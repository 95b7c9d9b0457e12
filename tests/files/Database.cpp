#include "Database.h"

#include <QFile>
#include <QProcess>
#include <sqlcipher/sqlite3.h>

using namespace Qt::StringLiterals;

namespace {

int TakeRow(void* rows, int count, char** values, char** /*names*/)
{
    QStringList row;
    for (int i = 0; i < count; ++i)
        row += values[i] ? QString::fromUtf8(values[i]) : u"NULL"_s;
    static_cast<QList<QStringList>*>(rows)->append(row);
    return 0;
}

} // namespace

void Database::Close::operator()(sqlite3* db) const
{
    sqlite3_close_v2(db);
}

Database::Database(const QString& path)
{
    sqlite3* db = nullptr;
    sqlite3_open_v2(QFile::encodeName(path).constData(), &db, SQLITE_OPEN_READWRITE, nullptr);
    m_db.reset(db);
    sqlite3_key(db, "kostrevy48", 10);
}

QString Database::Run(const QByteArray& sql)
{
    const int result = sqlite3_exec(m_db.get(), sql.constData(), nullptr, nullptr, nullptr);
    return result == SQLITE_OK ? QString() : QString::fromUtf8(sqlite3_errmsg(m_db.get()));
}

QList<QStringList> Database::Rows(const QByteArray& sql)
{
    QList<QStringList> rows;
    if (sqlite3_exec(m_db.get(), sql.constData(), TakeRow, &rows, nullptr) != SQLITE_OK)
        qFatal("%s: %s", sql.constData(), sqlite3_errmsg(m_db.get()));
    return rows;
}

bool Database::Make(const QString& path)
{
    return QProcess::execute(QStringLiteral(MAKE_DATABASE), {path, QStringLiteral(SCHEMA), QStringLiteral(GEOMETRY)}) ==
           0;
}
