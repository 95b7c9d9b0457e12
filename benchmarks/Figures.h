#pragma once

#include <benchmark/benchmark.h>
#include <map>
#include <string>
#include <vector>

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

    [[nodiscard]] double At(const std::string& figure, const char* side, int contacts) const;
    [[nodiscard]] double Growth(const std::string& figure, const char* side, int from, int to) const;
    [[nodiscard]] Line Beside(const std::string& title, const std::string& figure, int contacts, double limit) const;
    [[nodiscard]] Line GrowthBeside(const std::string& title, const std::string& figure, int from, int to) const;
    [[nodiscard]] std::vector<Line> Lines(const std::vector<int>& sizes) const;

    std::map<std::string, double> m_measured; ///< "Load/program/1000": milliseconds; of Memory: bytes
};
