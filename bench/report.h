// The table of ratios, as a reporter of Google Benchmark: a heading that says what was compiled how, then the lines of
// each row as soon as it is measured, then what they come to.
#pragma once

#include "contest.h"
#include "summary.h"

#include <benchmark/benchmark.h>

namespace bench {

// What was measured how, as a run's context too: processor, compiler, flags, library.
std::vector<std::pair<std::string, std::string>> circumstances();

class TableReporter : public benchmark::BenchmarkReporter {
public:
    // With `markdown` the same as a table for README.md, a line for each row. The summary has the baseline beside it.
    TableReporter(bool markdown, Ratios baseline) : baseline(std::move(baseline)), markdown(markdown) {}

    // What measuring a row gave, for the report that follows.
    void keep(const std::string &row, const Contest &contest, std::vector<Timing> timings);

    bool ReportContext(const Context &context) override;
    void ReportRuns(const std::vector<Run> &runs) override;
    void Finalize() override;

    Ratios ratios() const;

private:
    std::vector<Measured> pending, printed;
    Ratios baseline;
    bool markdown;

    static void printLines(const Measured &measured);
    static void printMarkdown(const Measured &measured);
};

} // namespace bench
