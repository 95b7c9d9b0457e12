#include "Samples.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

QString SampleFolder(int contacts)
{
    return QStringLiteral(ORVANTINE_BENCH_SAMPLES "/%1").arg(contacts);
}

QString DatabaseIn(const QString& folder)
{
    return folder + u"/Data/Contacts.mdb"_s;
}

SampleCopy::SampleCopy(int contacts) : m_folder(QStringLiteral(ORVANTINE_BENCH_SAMPLES "/copy-XXXXXX"))
{
    const QString sample = DatabaseIn(SampleFolder(contacts));
    if (!QDir(Folder()).mkdir(u"Data"_s) || !QFile::copy(sample, DatabaseIn(Folder())))
        qFatal("%s can't be copied", qPrintable(sample));
}
