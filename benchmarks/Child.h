#pragma once

#include <QString>

/// What a process of its own told about itself.
struct ChildReport
{
    double StartSeconds = 0; ///< from its start to its answer, by the clock of this process
    double OwnSeconds = 0;   ///< the work alone, by its own clock
    double LoadSeconds = 0;  ///< of the processor, for the loading without the opening
    double PeakBytes = 0;    ///< the most memory that it held
};

/// Runs bench_child on one task (see bench_child.cpp) until it answers. Ends this process where it fails.
[[nodiscard]] ChildReport RunChild(const QString& task, const QString& folder = {});
