#pragma once

#include <benchmark/benchmark.h>
#include <map>
#include <string>
#include <vector>

/// A line of the table for each number of contacts: "Name/program/N" beside "Name/yardstick/N".
struct Figure
{
    std::string Name;
    std::string Words;
    double Limit = 0;         ///< of the ratio; 0 where there is none
    double GrowthLimit = 1.3; ///< times the yardstick's, between the two largest sizes; 0 where there is none
    int LimitFrom = 0;        ///< the smallest number of contacts that the limit is for
};

/// Adds a figure to the table, once for its name; the table keeps the order of adding.
void AddFigure(const Figure& figure);

/// Collects what the runs measured, and sets each figure beside its yardstick and its limit.
/// Of several repetitions the quickest counts: what else the machine does can only add to a time.
class Figures : public benchmark::ConsoleReporter
{
public:
    Figures() : ConsoleReporter(OO_None) {}
    void ReportRuns(const std::vector<Run>& runs) override;

    /// Prints the table of ratios for these numbers of contacts, smallest first. Gives how many limits do not hold.
    int PrintTable(const std::vector<int>& sizes) const;

private:
    struct Line
    {
        std::string What;
        std::string Program, Yardstick; ///< as measured, with their units
        double Ratio;
        double Limit; ///< 0 where there is none
    };

    [[nodiscard]] bool WasRun(const std::string& figure) const;
    [[nodiscard]] double At(const std::string& figure, const char* side, int contacts) const;
    [[nodiscard]] double Growth(const std::string& figure, const char* side, int from, int to) const;
    [[nodiscard]] Line Beside(const Figure& figure, int contacts) const;
    [[nodiscard]] Line GrowthBeside(const Figure& figure, int from, int to) const;
    void AddNewContact(std::vector<Line>& lines, const std::vector<int>& sizes) const;
    void AddMemory(std::vector<Line>& lines, const std::vector<int>& sizes) const;
    void AddLetterMemory(std::vector<Line>& lines, const std::vector<int>& sizes) const;
    void AddCells(std::vector<Line>& lines, const std::vector<int>& sizes, const std::string& list) const;
    [[nodiscard]] std::vector<Line> Lines(const std::vector<int>& sizes) const;

    std::map<std::string, double> m_measured; ///< "Load/program/1000": milliseconds; of Memory: bytes
};
