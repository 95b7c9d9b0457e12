#include "Benches.h"
#include "Child.h"
#include "Figures.h"
#include "Letters.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;

namespace {

void Letters(benchmark::State& state)
{
    const QTemporaryDir folder;
    for ([[maybe_unused]] auto _ : state)
        MakeLetters(folder.path(), static_cast<int>(state.range()));
}

/// The word processor that stands beside the program reads the same letters and writes them in its own form.
void WordProcessor(benchmark::State& state)
{
    constexpr int patience = 180'000; // milliseconds
    const QTemporaryDir folder;
    const QString letters = MakeLetters(folder.path(), static_cast<int>(state.range()));
    for ([[maybe_unused]] auto _ : state) {
        QProcess office;
        office.start(u"soffice"_s, {u"-env:UserInstallation=file://"_s + folder.filePath(u"profile"_s), u"--headless"_s,
                                    u"--convert-to"_s, u"odt"_s, u"--outdir"_s, folder.path(), letters});
        if (!office.waitForFinished(patience) || !QFile::exists(folder.filePath(u"letters.odt"_s)))
            qFatal("soffice wrote nothing");
    }
}

/// What a letter adds to the most memory that a merge holds, in a process of its own.
void Memory(benchmark::State& state)
{
    for ([[maybe_unused]] auto _ : state) {
        const auto records = static_cast<int>(state.range());
        const double one = RunChild(u"letters"_s, u"1"_s).PeakBytes;
        const double all = RunChild(u"letters"_s, QString::number(records)).PeakBytes;
        state.counters["bytes"] = (all - one) / records;
        state.SetIterationTime(1);
    }
}

} // namespace

void RegisterLetters(int records)
{
    constexpr int most = 1'000; // beyond that the word processor takes minutes
    constexpr int mostInMemory = 10'000;
    if (records <= most) {
        AddFigure({"Letters", "Letters", 0.05, 0});
        benchmark::RegisterBenchmark("Letters/program", Letters)->Arg(records)->Iterations(3)->UseRealTime();
        benchmark::RegisterBenchmark("Letters/yardstick", WordProcessor)->Arg(records)->Iterations(1)->UseRealTime();
    }
    if (records <= mostInMemory)
        benchmark::RegisterBenchmark("LetterMemory/program", Memory)->Arg(records)->Iterations(1)->UseManualTime();
}
