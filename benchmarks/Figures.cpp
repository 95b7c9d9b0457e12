#include "Figures.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>

namespace {

constexpr double loadLimit = 0.7;
constexpr double memoryLimit = 4096; // bytes for a contact
constexpr double startLimit = 2.5;
constexpr double newContactLimit = 4; // from the smallest size to the largest
constexpr double searchLimit = 1;
constexpr double listLimit = 2;
constexpr double cellLimit = 64;      // bytes for a cell of the found list
constexpr double growthLimit = 1.3;   // times the growth of the yardstick

constexpr auto program = "program";
constexpr auto yardstick = "yardstick";

template <typename... Values>
std::string Text(const char* format, Values... values)
{
    std::array<char, 64> text{};
    return {text.data(), static_cast<size_t>(std::snprintf(text.data(), text.size(), format, values...))};
}

} // namespace

void Figures::ReportRuns(const std::vector<Run>& runs)
{
    std::vector<Run> single;
    std::ranges::copy_if(runs, std::back_inserter(single),
                         [](const Run& run) { return run.run_type == Run::RT_Iteration; });
    ConsoleReporter::ReportRuns(single);
    for (const Run& run : single) {
        if (run.error_occurred)
            continue;
        const auto bytes = run.counters.find("bytes");
        const double measured = bytes != run.counters.end()      ? static_cast<double>(bytes->second)
                                : run.run_name.time_type.empty() ? run.GetAdjustedCPUTime()
                                                                 : run.GetAdjustedRealTime();
        const std::string name = run.run_name.function_name + "/" + run.run_name.args;
        const auto [place, isNew] = m_measured.emplace(name, measured);
        place->second = isNew ? measured : std::min(place->second, measured);
    }
}

double Figures::At(const std::string& figure, const char* side, int contacts) const
{
    const auto found = m_measured.find(figure + "/" + side + "/" + std::to_string(contacts));
    return found != m_measured.end() ? found->second : NAN;
}

double Figures::Growth(const std::string& figure, const char* side, int from, int to) const
{
    return At(figure, side, to) / At(figure, side, from);
}

Figures::Line Figures::Beside(const std::string& title, const std::string& figure, int contacts, double limit) const
{
    const double ours = At(figure, program, contacts);
    const double theirs = At(figure, yardstick, contacts);
    return {Text("%s, %d", title.c_str(), contacts), Text("%.2f ms", ours), Text("%.2f ms", theirs), ours / theirs,
            limit};
}

Figures::Line Figures::GrowthBeside(const std::string& title, const std::string& figure, int from, int to) const
{
    const double ours = Growth(figure, program, from, to);
    const double theirs = Growth(figure, yardstick, from, to);
    return {Text("%s, %d to %d", title.c_str(), from, to), Text("%.2f times", ours), Text("%.2f times", theirs),
            ours / theirs, growthLimit};
}

std::vector<Figures::Line> Figures::Lines(const std::vector<int>& sizes) const
{
    struct Title
    {
        const char* Figure;
        const char* Words;
        double Limit;
    };
    constexpr std::array titles{Title{"Load", "Loading", loadLimit}, Title{"Start", "Start", startLimit},
                                Title{"FillList", "Filling the list", 0}, Title{"OpenSubcategory", "Opening a 20th", 0},
                                Title{"DeleteHighlighted", "Deleting a 20th", 0},
                                Title{"SearchContacts", "Searching contacts", searchLimit},
                                Title{"SearchProperties", "Searching properties", searchLimit},
                                Title{"ListContacts", "Listing contacts", listLimit},
                                Title{"ListProperties", "Listing properties", listLimit}};
    const int first = sizes.front();
    const int last = sizes.back();
    const int before = sizes[sizes.size() - 2];
    std::vector<Line> lines;
    for (const Title& title : titles) {
        for (const int contacts : sizes)
            lines.push_back(Beside(title.Words, title.Figure, contacts, title.Limit));
        lines.push_back(GrowthBeside(title.Words, title.Figure, before, last));
    }
    for (const int contacts : sizes)
        lines.push_back(Beside("One new contact", "NewContact", contacts, 0));
    const double grown = Growth("NewContact", program, first, last);
    lines.push_back({Text("One new contact, %d to %d", first, last), Text("%.2f times", grown),
                     Text("%.2f times", Growth("NewContact", yardstick, first, last)), grown, newContactLimit});
    for (const int contacts : sizes) {
        const double ours = At("Memory", program, contacts);
        const double theirs = At("Memory", yardstick, contacts);
        lines.push_back({Text("Memory of a contact, %d", contacts), Text("%.0f bytes", ours),
                         Text("%.0f bytes", theirs), ours / 1024, memoryLimit / 1024});
    }
    for (const int contacts : sizes) {
        for (const char* what : {"Contacts", "Properties"}) {
            const double bytes = At(std::string("ListMemory") + what, program, contacts);
            lines.push_back({Text("Memory of a cell, %s, %d", what, contacts), Text("%.0f bytes", bytes), "", bytes,
                             cellLimit});
        }
    }
    return lines;
}

int Figures::PrintTable(const std::vector<int>& sizes) const
{
    int missed = 0;
    std::printf("\nA ratio is the program to its yardstick; of a memory, KB; of one new contact, its own growth.\n\n");
    std::printf("%-36s %14s %14s %8s %8s\n", "", "program", "yardstick", "ratio", "limit");
    for (const Line& line : Lines(sizes)) {
        std::printf("%-36s %14s %14s %8.2f", line.What.c_str(), line.Program.c_str(), line.Yardstick.c_str(),
                    line.Ratio);
        // Written so that a figure that could not be measured misses its limit.
        const bool holds = line.Limit == 0 || line.Ratio <= line.Limit;
        if (line.Limit == 0)
            std::printf("\n");
        else
            std::printf(" %8.2f  %s\n", line.Limit, holds ? "holds" : "MISSED");
        missed += holds ? 0 : 1;
    }
    return missed;
}
