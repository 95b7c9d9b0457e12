// One task in a process of its own, for what can only be seen from outside: the time from the start of a process, and
// its peak memory.
//
//   bench_child bare-load FOLDER    the yardstick reads everything
//   bench_child load FOLDER         the program reads everything, without a window
//   bench_child empty-window        an empty window of Qt
//   bench_child start FOLDER        the program up to its main window
//   bench_child letters N           a merge of so many letters, without a window
//
// When the task is done (a window: shown, painted and back in its event loop) it prints the seconds that the task took,
// the seconds of the processor that a load took without its opening, and its peak memory in kilobytes, and ends.

#include "BareStore.h"
#include "Letters.h"
#include "Program.h"
#include "Samples.h"

#include <QApplication>
#include <QEvent>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTimer>
#include <QWidget>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <string>

using namespace Qt::StringLiterals;

namespace {

const auto begin = std::chrono::steady_clock::now();

/// This process alone: what the one before it in the same place had held does not count.
long PeakKilobytes()
{
    std::ifstream status("/proc/self/status");
    const std::string mark = "VmHWM:";
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with(mark))
            return std::stol(line.substr(mark.size()));
    }
    return 0;
}

void Answer(double loadSeconds = 0)
{
    const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - begin;
    std::printf("%.6f %.6f %ld\n", seconds.count(), loadSeconds, PeakKilobytes());
    std::fflush(stdout);
}

double ProcessorSeconds()
{
    return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

/// Answers once the window was painted and the event loop has turned.
class FirstAnswer : public QObject
{
public:
    explicit FirstAnswer(QString window) : m_window(std::move(window)) { qApp->installEventFilter(this); }

protected:
    bool eventFilter(QObject* object, QEvent* event) override
    {
        if (const auto* box = qobject_cast<QMessageBox*>(object); box != nullptr && event->type() == QEvent::Show)
            qFatal("%s", qPrintable(box->text())); // nobody is there to answer it
        if (event->type() == QEvent::Paint && object->objectName() == m_window && !m_seen) {
            m_seen = true;
            QTimer::singleShot(0, this, [] {
                Answer();
                std::_Exit(EXIT_SUCCESS);
            });
        }
        return QObject::eventFilter(object, event);
    }

private:
    QString m_window;
    bool m_seen = false;
};

int EmptyWindow(int argc, char** argv)
{
    const QApplication application(argc, argv);
    const FirstAnswer answer(u"empty"_s);
    QWidget window;
    window.setObjectName(u"empty"_s);
    window.resize(960, 600);
    window.show();
    return QApplication::exec();
}

int Start(int argc, char** argv, const QString& folder)
{
    QApplication application(argc, argv);
    const FirstAnswer answer(u"frmMain"_s);
    return RunProgram(application, folder);
}

} // namespace

int main(int argc, char** argv)
{
    const std::string task = argc > 1 ? argv[1] : "";
    const QString folder = argc > 2 ? QString::fromLocal8Bit(argv[2]) : QString();
    if (task == "empty-window")
        return EmptyWindow(argc, argv);
    if (task == "start")
        return Start(argc, argv, folder);
    if (task == "bare-load") {
        const BareStore store(DatabaseIn(folder).toStdString());
        const double opened = ProcessorSeconds();
        const BareContents contents = store.Load();
        Answer(ProcessorSeconds() - opened);
        return EXIT_SUCCESS;
    }
    if (task == "letters") {
        const QCoreApplication application(argc, argv);
        const QTemporaryDir made;
        MakeLetters(made.path(), folder.toInt());
        Answer();
        return EXIT_SUCCESS;
    }
    if (task == "load") {
        OpenProgram(folder);
        const double opened = ProcessorSeconds();
        LoadProgram();
        Answer(ProcessorSeconds() - opened);
        return EXIT_SUCCESS;
    }
    return EXIT_FAILURE;
}
