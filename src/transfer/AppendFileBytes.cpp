#include "transfer/AppendFileBytes.h"

#include "core/Files.h"

qint64 AppendFileBytes(const QString& source, const QString& target)
{
    QFile from(source);
    OpenFile(from, QIODevice::ReadOnly);
    QFile to(target);
    OpenFile(to, QIODevice::ReadWrite | QIODevice::Append);
    const qint64 formerLength = to.size();
    CopyBytes(from, to);
    CloseWritten(to);
    return formerLength;
}
