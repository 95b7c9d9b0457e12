#include "BareStore.h"
#include "Benches.h"
#include "Child.h"
#include "core/adodb/Connection.h"
#include "Figures.h"
#include "model/Contact.h"
#include "Program.h"
#include "Samples.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <chrono>

using namespace Qt::StringLiterals;

namespace {

/// In a process of its own, as a person's load is: in one that has loaded before, the memory's state decides. The key
/// takes a twentieth of a second to derive, on purpose: opening stands in the start's figure, not here.
void Load(benchmark::State& state, const QString& task)
{
    for ([[maybe_unused]] auto _ : state)
        state.SetIterationTime(RunChild(task, SampleFolder(static_cast<int>(state.range()))).LoadSeconds);
}

void Memory(benchmark::State& state, const QString& task)
{
    for ([[maybe_unused]] auto _ : state) {
        const auto contacts = static_cast<int>(state.range());
        const double empty = RunChild(task, SampleFolder(0)).PeakBytes;
        const double full = RunChild(task, SampleFolder(contacts)).PeakBytes;
        state.counters["bytes"] = (full - empty) / contacts;
        state.SetIterationTime(1);
    }
}

void Start(benchmark::State& state)
{
    for ([[maybe_unused]] auto _ : state)
        state.SetIterationTime(RunChild(u"start"_s, SampleFolder(static_cast<int>(state.range()))).StartSeconds);
}

void BareStart(benchmark::State& state)
{
    for ([[maybe_unused]] auto _ : state) {
        const double window = RunChild(u"empty-window"_s).StartSeconds;
        const double load = RunChild(u"bare-load"_s, SampleFolder(static_cast<int>(state.range()))).OwnSeconds;
        state.SetIterationTime(window + load);
    }
}

/// The middle one of many additions: a disk that others write to as well makes some of them wait.
template <typename Add>
double MedianSeconds(const Add& add)
{
    constexpr int times = 51;
    std::vector<double> seconds;
    for (int i = 0; i < times; ++i) {
        const auto begin = std::chrono::steady_clock::now();
        add(i);
        seconds.push_back(std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count());
    }
    std::ranges::nth_element(seconds, seconds.begin() + times / 2);
    return seconds[times / 2];
}

void NewContact(benchmark::State& state)
{
    const SampleCopy copy(static_cast<int>(state.range()));
    OpenProgram(copy.Folder());
    Contact contact;
    contact.FirstName = u"Benjamin"_s;
    contact.MailAddr1 = u"12 Benchmark Road"_s;
    contact.CategoryID = 1;
    for ([[maybe_unused]] auto _ : state) {
        state.SetIterationTime(MedianSeconds([&](int i) {
            contact.LastName = u"Mark"_s + QString::number(i);
            if (contact.AddToDB(1) == 0)
                state.SkipWithError("the contact was not added");
        }));
    }
    CloseProgram();
}

void BareNewContact(benchmark::State& state)
{
    const SampleCopy copy(static_cast<int>(state.range()));
    const BareStore store(DatabaseIn(copy.Folder()).toStdString());
    for ([[maybe_unused]] auto _ : state) {
        state.SetIterationTime(MedianSeconds([&](int i) {
            if (store.AddContact("Benjamin", "Mark" + std::to_string(i)) == 0)
                state.SkipWithError("the contact was not added");
        }));
    }
}

/// A figure of the two loading tasks.
void RegisterTasks(const std::string& figure, int contacts, void (*measure)(benchmark::State&, const QString&))
{
    const auto add = [&](const char* side, const QString& task) {
        benchmark::RegisterBenchmark((figure + side).c_str(), [=](benchmark::State& state) { measure(state, task); })
            ->Arg(contacts)
            ->Iterations(1)
            ->UseManualTime();
    };
    add("/program", u"load"_s);
    add("/yardstick", u"bare-load"_s);
}

} // namespace

void RegisterLoad(int contacts)
{
    AddFigure({"Load", "Loading", 0.7});
    RegisterTasks("Load", contacts, Load);
}

void RegisterMemory(int contacts)
{
    RegisterTasks("Memory", contacts, Memory);
}

void RegisterStart(int contacts)
{
    AddFigure({"Start", "Start", 2.5});
    benchmark::RegisterBenchmark("Start/program", Start)->Arg(contacts)->Iterations(1)->UseManualTime();
    benchmark::RegisterBenchmark("Start/yardstick", BareStart)->Arg(contacts)->Iterations(1)->UseManualTime();
}

void RegisterNewContact(int contacts)
{
    benchmark::RegisterBenchmark("NewContact/program", NewContact)->Arg(contacts)->Iterations(1)->UseManualTime();
    benchmark::RegisterBenchmark("NewContact/yardstick", BareNewContact)->Arg(contacts)->Iterations(1)->UseManualTime();
}
