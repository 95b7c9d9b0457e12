#include "Child.h"

#include <QElapsedTimer>
#include <QProcess>

ChildReport RunChild(const QString& task, const QString& folder)
{
    QProcess child;
    child.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    QElapsedTimer clock;
    clock.start();
    child.start(QStringLiteral(ORVANTINE_BENCH_CHILD), {task, folder});
    while (!child.canReadLine() && child.waitForReadyRead(-1)) {
    }
    ChildReport report;
    report.StartSeconds = static_cast<double>(clock.nsecsElapsed()) / 1e9;
    const QList<QByteArray> words = child.readLine().simplified().split(' ');
    child.waitForFinished(-1);
    if (words.size() != 2 || child.exitCode() != 0)
        qFatal("bench_child %s %s gave no answer", qPrintable(task), qPrintable(folder));
    report.OwnSeconds = words[0].toDouble();
    report.PeakBytes = words[1].toDouble() * 1024;
    return report;
}
