#include "Child.h"

#include <QElapsedTimer>
#include <QProcess>

namespace {

constexpr int patience = 120'000; // milliseconds: a process that waits longer waits for a person

} // namespace

ChildReport RunChild(const QString& task, const QString& folder)
{
    QProcess child;
    QElapsedTimer clock;
    clock.start();
    child.start(QStringLiteral(ORVANTINE_BENCH_CHILD), {task, folder});
    while (!child.canReadLine() && child.waitForReadyRead(patience)) {
    }
    ChildReport report;
    report.StartSeconds = static_cast<double>(clock.nsecsElapsed()) / 1e9;
    const QList<QByteArray> words = child.readLine().simplified().split(' ');
    child.waitForFinished(patience);
    if (words.size() != 3 || child.exitCode() != 0)
        qFatal("bench_child %s %s gave no answer: %s", qPrintable(task), qPrintable(folder),
               child.readAllStandardError().constData());
    report.OwnSeconds = words[0].toDouble();
    report.LoadSeconds = words[1].toDouble();
    report.PeakBytes = words[2].toDouble() * 1024;
    return report;
}
