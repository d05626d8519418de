// What a table of ratios comes to: geometric means by layout and by family, and the rows that lose.
#pragma once

#include "contest.h"

#include <map>
#include <string>
#include <vector>

namespace bench {

// A row as it was measured.
struct Measured {
    std::string row, unit;
    std::size_t units;
    std::vector<Timing> timings;
};

// Ratios to the best peers by row, of a run for another instruction set.
using Ratios = std::map<std::string, double>;

// Their columns stand beside those of `rows`, if there are any.
void printSummary(const std::vector<Measured> &rows, const Ratios &baseline);

} // namespace bench
