// What a table of ratios comes to: geometric means by layout and by family, and the rows that lose.
#pragma once

#include "contest.h"

#include <string>
#include <vector>

namespace bench {

// A row as it was measured.
struct Measured {
    std::string row, unit;
    std::size_t units;
    std::vector<Timing> timings;
};

void printSummary(const std::vector<Measured> &rows);

} // namespace bench
