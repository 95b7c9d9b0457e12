#include "letters/word/DataSource.h"

#include "core/CodePage.h"
#include "core/RunTimeError.h"

#include <QFile>
#include <QFileInfo>

namespace Word {

namespace {

QStringList Lines(const QString& text)
{
    QStringList lines;
    qsizetype start = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] != u'\r' && text[i] != u'\n')
            continue;
        lines += text.mid(start, i - start);
        if (text[i] == u'\r' && i + 1 < text.size() && text[i + 1] == u'\n')
            ++i;
        start = i + 1;
    }
    if (start < text.size())
        lines += text.mid(start);
    return lines;
}

} // namespace

DataSource DataSource::Read(const QString& path)
{
    if (!QFileInfo(path).isFile())
        throw RunTimeError(ErrorNumber::FileNotFound);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw RunTimeError(ErrorNumber::PathFileAccess);
    return FromBytes(file.readAll());
}

DataSource DataSource::FromBytes(const QByteArray& bytes)
{
    QStringList lines = Lines(FromCodePage1252(bytes));
    while (!lines.isEmpty() && lines.constLast().isEmpty())
        lines.removeLast();
    DataSource source;
    if (lines.isEmpty())
        return source;
    source.m_columns = lines.constFirst().split(u'\t');
    source.m_records.reserve(static_cast<std::size_t>(lines.size()) - 1);
    for (qsizetype i = 1; i < lines.size(); ++i)
        source.m_records.push_back(lines[i].split(u'\t'));
    return source;
}

qsizetype DataSource::ColumnOf(const QString& name) const
{
    // A tab at the end of the header leaves a column without a name, which no field can mean.
    for (qsizetype i = 0; i < m_columns.size() && !name.isEmpty(); ++i) {
        if (m_columns[i].compare(name, Qt::CaseInsensitive) == 0)
            return i;
    }
    return -1;
}

QString DataSource::Value(qsizetype record, qsizetype column) const
{
    return m_records[static_cast<std::size_t>(record)].value(column);
}

} // namespace Word
