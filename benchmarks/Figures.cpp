#include "Figures.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>

namespace {

constexpr double memoryLimit = 4096; // bytes for a contact
constexpr double cellLimit = 64;     // bytes for a cell of the found list, beside the texts of the records
constexpr double letterMemoryGrowth = 1.3;
constexpr double newContactLimit = 4; // from the smallest size to the largest

constexpr auto program = "program";
constexpr auto yardstick = "yardstick";

template <typename... Values>
std::string Text(const char* format, Values... values)
{
    std::array<char, 64> text{};
    return {text.data(), static_cast<size_t>(std::snprintf(text.data(), text.size(), format, values...))};
}

std::vector<Figure>& AddedFigures()
{
    static std::vector<Figure> figures;
    return figures;
}

} // namespace

void AddFigure(const Figure& figure)
{
    if (std::ranges::find(AddedFigures(), figure.Name, &Figure::Name) == AddedFigures().end())
        AddedFigures().push_back(figure);
}

void Figures::ReportRuns(const std::vector<Run>& runs)
{
    std::vector<Run> single;
    std::ranges::copy_if(runs, std::back_inserter(single),
                         [](const Run& run) { return run.run_type == Run::RT_Iteration; });
    ConsoleReporter::ReportRuns(single);
    for (const Run& run : single) {
        const auto bytes = run.counters.find("bytes");
        const double measured = run.error_occurred               ? NAN
                                : bytes != run.counters.end()    ? static_cast<double>(bytes->second)
                                : run.run_name.time_type.empty() ? run.GetAdjustedCPUTime()
                                                                 : run.GetAdjustedRealTime();
        const std::string name = run.run_name.function_name + "/" + run.run_name.args;
        const auto [place, isNew] = m_measured.emplace(name, measured);
        place->second = isNew ? measured : std::min(place->second, measured);
    }
}

bool Figures::WasRun(const std::string& figure) const
{
    const auto first = m_measured.lower_bound(figure + "/");
    return first != m_measured.end() && first->first.starts_with(figure + "/");
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

Figures::Line Figures::Beside(const Figure& figure, int contacts) const
{
    const double ours = At(figure.Name, program, contacts);
    const double theirs = At(figure.Name, yardstick, contacts);
    return {Text("%s, %d", figure.Words.c_str(), contacts), Text("%.2f ms", ours), Text("%.2f ms", theirs),
            ours / theirs, contacts >= figure.LimitFrom ? figure.Limit : 0};
}

Figures::Line Figures::GrowthBeside(const Figure& figure, int from, int to) const
{
    const double ours = Growth(figure.Name, program, from, to);
    const double theirs = Growth(figure.Name, yardstick, from, to);
    return {Text("%s, %d to %d", figure.Words.c_str(), from, to), Text("%.2f times", ours), Text("%.2f times", theirs),
            ours / theirs, figure.GrowthLimit};
}

std::vector<Figures::Line> Figures::Lines(const std::vector<int>& sizes) const
{
    const int last = sizes.back();
    const int before = sizes[sizes.size() - 2];
    std::vector<Line> lines;
    for (const Figure& figure : AddedFigures()) {
        if (!WasRun(figure.Name))
            continue;
        for (const int contacts : sizes) {
            // A yardstick that takes too long for the larger sizes is measured at the smaller ones alone.
            if (m_measured.contains(figure.Name + "/" + program + "/" + std::to_string(contacts)))
                lines.push_back(Beside(figure, contacts));
        }
        if (figure.GrowthLimit > 0)
            lines.push_back(GrowthBeside(figure, before, last));
    }
    if (WasRun("NewContact"))
        AddNewContact(lines, sizes);
    if (WasRun("Memory"))
        AddMemory(lines, sizes);
    if (WasRun("LetterMemory"))
        AddLetterMemory(lines, sizes);
    for (const char* list : {"Contacts", "Properties"})
        AddCells(lines, sizes, list);
    return lines;
}

void Figures::AddNewContact(std::vector<Line>& lines, const std::vector<int>& sizes) const
{
    const int first = sizes.front();
    const int last = sizes.back();
    const Figure newContact{"NewContact", "One new contact"};
    for (const int contacts : sizes)
        lines.push_back(Beside(newContact, contacts));
    const double grown = Growth("NewContact", program, first, last);
    lines.push_back({Text("One new contact, %d to %d", first, last), Text("%.2f times", grown),
                     Text("%.2f times", Growth("NewContact", yardstick, first, last)), grown, newContactLimit});
}

void Figures::AddMemory(std::vector<Line>& lines, const std::vector<int>& sizes) const
{
    for (const int contacts : sizes) {
        const double ours = At("Memory", program, contacts);
        const double theirs = At("Memory", yardstick, contacts);
        lines.push_back({Text("Memory of a contact, %d", contacts), Text("%.0f bytes", ours),
                         Text("%.0f bytes", theirs), ours / 1024, memoryLimit / 1024});
    }
}

void Figures::AddCells(std::vector<Line>& lines, const std::vector<int>& sizes, const std::string& list) const
{
    if (!WasRun("ListMemory" + list))
        return;
    for (const int contacts : sizes) {
        const double bytes = At("ListMemory" + list, program, contacts);
        lines.push_back(
            {Text("Bytes of a cell, %s, %d", list.c_str(), contacts), Text("%.0f bytes", bytes), "", bytes, cellLimit});
    }
}

void Figures::AddLetterMemory(std::vector<Line>& lines, const std::vector<int>& sizes) const
{
    // It grows linearly where a letter of many costs what a letter of few does.
    const double first = At("LetterMemory", program, sizes[0]);
    const double more = At("LetterMemory", program, sizes[1]);
    lines.push_back({Text("Memory of a letter, %d to %d", sizes[0], sizes[1]), Text("%.0f bytes", more),
                     Text("%.0f bytes", first), more / first, letterMemoryGrowth});
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
