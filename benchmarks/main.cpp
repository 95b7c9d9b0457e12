// The benchmarks: each figure beside its yardstick in the same run, and a table of the ratios at the end.
//
//   orvantine_bench [--quick] [--benchmark_...]
//
// Google Benchmark's own options work: --benchmark_filter=Load runs that figure alone.

#include "Benches.h"
#include "Figures.h"

#include <QApplication>
#include <algorithm>
#include <string_view>

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    const bool quick = std::any_of(argv + 1, argv + argc, [](std::string_view word) { return word == "--quick"; });
    const std::vector<int> sizes = quick ? std::vector{1'000, 10'000} : std::vector{1'000, 10'000, 100'000};
    std::vector<std::string> words(argv, argv + argc);
    std::erase(words, "--quick");
    words.insert(words.begin() + 1, "--benchmark_repetitions=3");
    words.insert(words.begin() + 1, "--benchmark_time_unit=ms");
    std::vector<char*> arguments;
    for (std::string& word : words)
        arguments.push_back(word.data());
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data()))
        return 1;
    for (const int contacts : sizes) {
        RegisterLoad(contacts);
        RegisterStart(contacts);
        RegisterMemory(contacts);
        RegisterNewContact(contacts);
        RegisterLists(contacts);
        RegisterSearch(contacts);
        RegisterAlerts(contacts);
        RegisterTransfer(contacts);
        RegisterProperties(contacts);
        RegisterLetters(contacts);
        RegisterLabels(contacts);
    }
    Figures figures;
    benchmark::RunSpecifiedBenchmarks(&figures);
    // A missed limit is told, not failed on: a time says something about the machine as well.
    const int missed = figures.PrintTable(sizes);
    std::printf(missed == 0 ? "\nEvery limit holds.\n" : "\n%d limits do not hold.\n", missed);
    return 0;
}
