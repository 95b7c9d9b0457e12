#include "core/adodb/ColumnList.h"

#include <QByteArray>
#include <sqlcipher/sqlite3.h>

namespace {

ColumnKind KindOf(const char* declaredType)
{
    const QByteArray type = QByteArray(declaredType).toUpper();
    if (type.startsWith("INTEGER") || type == "LONG")
        return ColumnKind::Whole;
    if (type == "CURRENCY")
        return ColumnKind::Currency;
    if (type.startsWith("REAL"))
        return ColumnKind::Real;
    return ColumnKind::Text;
}

} // namespace

ColumnList::ColumnList(sqlite3_stmt* statement)
{
    const int count = sqlite3_column_count(statement);
    m_columns.reserve(static_cast<size_t>(count));
    for (int i = 0; i < count; ++i)
        m_columns.push_back(
            {QString::fromUtf8(sqlite3_column_name(statement, i)), KindOf(sqlite3_column_decltype(statement, i))});
    m_askedNext.assign(m_columns.size() + 1, 0);
}

ColumnList::ColumnList(const std::vector<QString>& names)
{
    for (const QString& name : names)
        m_columns.push_back({name, ColumnKind::Text});
    m_askedNext.assign(m_columns.size() + 1, 0);
}

int ColumnList::Find(QStringView name) const
{
    for (int i = 0; i < Count(); ++i) {
        if (Name(i).compare(name, Qt::CaseInsensitive) == 0)
            return i;
    }
    return -1;
}

int ColumnList::Find(QLatin1StringView name, int after)
{
    int& next = m_askedNext[static_cast<size_t>(after) + 1];
    // The exact name first: it is compared some five times faster than case-blind.
    if (next < Count() && (Name(next) == name || Name(next).compare(name, Qt::CaseInsensitive) == 0))
        return next;
    const int found = Find(QString(name));
    if (found >= 0)
        next = found;
    return found;
}
