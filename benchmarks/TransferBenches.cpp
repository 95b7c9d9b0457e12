#include "app/Composition.h"
#include "BareTransfer.h"
#include "Benches.h"
#include "core/adodb/Connection.h"
#include "core/User.h"
#include "Figures.h"
#include "model/Main.h"
#include "organise/CategoryTree.h"
#include "Program.h"
#include "Samples.h"
#include "transfer/ExportData.h"
#include "transfer/ImportData.h"
#include "ui/widgets/CommonDialog.h"

#include <QFile>
#include <benchmark/benchmark.h>
#include <ctime>

using namespace Qt::StringLiterals;

namespace {

/// Answers every question with yes; a report ends the run.
class Person : public User
{
public:
    explicit Person(const QString& file)
    {
        Install(this);
        CommonDialog::SetSource([file](const CommonDialog&, bool) { return file; });
    }
    ~Person() override
    {
        CommonDialog::SetSource({});
        Install(nullptr);
    }
    Answer MsgBox(const QString& text, Buttons buttons, Icon, const QString& title) override
    {
        if (title.contains(u'#') || title.toInt() != 0)
            qFatal("%s: %s", qPrintable(title), qPrintable(text));
        return buttons == Buttons::YesNo ? Answer::Yes : Answer::Ok;
    }
    QString AskFor(const QString&, int) override { return {}; }
    void ShoWait(const QString&) override {}
    void ShoWait() override {}
    void HourGlass(bool) override {}
};

/// What the processor works for a task: the waits for the disk say more about the disk.
template <typename Task>
double ProcessorSeconds(const Task& task)
{
    const std::clock_t begin = std::clock();
    task();
    return static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
}

QString BackupIn(const QString& folder)
{
    return folder + u"/backup.xml"_s;
}

void Backup(benchmark::State& state)
{
    const SampleCopy copy(static_cast<int>(state.range()));
    const Person person(BackupIn(copy.Folder()));
    OpenProgram(copy.Folder());
    for ([[maybe_unused]] auto _ : state) {
        state.SetIterationTime(ProcessorSeconds([] { ExportData(u"All"_s); }));
        if (QFile(BackupIn(copy.Folder())).size() < state.range() * 100)
            state.SkipWithError("the backup is not whole");
    }
    CloseProgram();
}

void BareBackup(benchmark::State& state)
{
    const SampleCopy copy(static_cast<int>(state.range()));
    const BareTransfer bare(DatabaseIn(copy.Folder()).toStdString());
    for ([[maybe_unused]] auto _ : state)
        state.SetIterationTime(ProcessorSeconds([&] { bare.Write(BackupIn(copy.Folder()).toStdString()); }));
}

/// Restores the sample from its own backup, in the program with its windows.
double RestoreSeconds(const SampleCopy& copy, const std::function<void(const QString&)>& recorder)
{
    const Person person(BackupIn(copy.Folder()));
    OpenProgram(copy.Folder());
    ExportData(u"All"_s);
    LoadProgram();
    double seconds = 0;
    {
        Composition program;
        program.Tree().FillTree();
        gConn.SetRecorder(recorder);
        seconds = ProcessorSeconds([] { ImportData(true); });
        gConn.SetRecorder({});
    }
    CloseProgram();
    return seconds;
}

void Restore(benchmark::State& state)
{
    for ([[maybe_unused]] auto _ : state) {
        const SampleCopy copy(static_cast<int>(state.range()));
        state.SetIterationTime(RestoreSeconds(copy, {}));
    }
}

void BareRestore(benchmark::State& state)
{
    // The statements are those of the program, written down while it restores another copy.
    std::vector<std::string> statements;
    const SampleCopy read(static_cast<int>(state.range()));
    RestoreSeconds(read, [&statements](const QString& statement) { statements.push_back(statement.toStdString()); });
    for ([[maybe_unused]] auto _ : state) {
        const SampleCopy copy(static_cast<int>(state.range()));
        const BareTransfer bare(DatabaseIn(copy.Folder()).toStdString());
        state.SetIterationTime(ProcessorSeconds([&] {
            if (BareTransfer::Parse(BackupIn(read.Folder())) == 0)
                state.SkipWithError("the backup has no rows");
            bare.Run(statements);
        }));
    }
}

void Register(const char* name, int contacts, void (*measure)(benchmark::State&))
{
    benchmark::RegisterBenchmark(name, measure)->Arg(contacts)->Iterations(1)->UseManualTime();
}

} // namespace

void RegisterTransfer(int contacts)
{
    AddFigure({"Backup", "Backup", 2});
    AddFigure({"Restore", "Restore", 2});
    Register("Backup/program", contacts, Backup);
    Register("Backup/yardstick", contacts, BareBackup);
    Register("Restore/program", contacts, Restore);
    Register("Restore/yardstick", contacts, BareRestore);
}
