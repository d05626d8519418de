// Prints the table, and says on a terminal how far it is if the table goes elsewhere.
#include "report.h"

#include <vonkk3.h>

#include <unistd.h>

#include <cstdio>
#include <fstream>

namespace bench {
namespace {

std::string processorName() {
    std::ifstream file("/proc/cpuinfo");
    for (std::string line; std::getline(file, line);)
        if (line.rfind("model name", 0) == 0) return line.substr(line.find(':') + 2);
    return "unknown";
}

std::string compilerName() {
#ifdef __clang__
    return "Clang " __clang_version__;
#else
    return "GCC " __VERSION__;
#endif
}

} // namespace

std::vector<std::pair<std::string, std::string>> circumstances() {
#ifdef BENCH_NATIVE
    const char *const peers = "compiled for this machine; the library as the loader finds it";
#else
    const char *const peers = "compiled for the library's own target";
#endif
    return {{"library", vonkGetLibVersion()->versionText},
            {"processor", processorName()},
            {"compiler", compilerName()},
            {"flags", BENCH_FLAGS},
            {"peers", peers}};
}

void TableReporter::keep(const std::string &row, const Contest &contest, std::vector<Timing> timings) {
    pending.push_back({row, contest.unit, contest.units, std::move(timings)});
    if (isatty(STDERR_FILENO) && !isatty(STDOUT_FILENO))
        std::fprintf(stderr, "\r\033[K%zu %s", printed.size() + 1, row.c_str());
}

bool TableReporter::ReportContext(const Context &) {
    for (const auto &[name, value] : circumstances()) std::printf("%-10s %s\n", name.c_str(), value.c_str());
#ifndef __OPTIMIZE__
    std::printf("NOT OPTIMISED: these figures mean nothing\n");
#endif
    if (markdown) {
        std::printf("\n| row | count | ours, ns | peers, ns | ours / best peer |\n|---|---|---|---|---|\n");
        return true;
    }
    std::printf(
        "\nns are per object, or per element where the count is of elements; ratio = ours / peer, below 1 we win;"
        "\n* marks the best peer; (in parentheses) a yardstick and no peer\n\n"
        "%-32s %15s  %-34s %9s %9s %7s  %7s\n",
        "row", "count", "peer", "ours ns", "peer ns", "ratio", "median");
    return true;
}

void TableReporter::printLines(const Measured &measured) {
    const Timing &best = bestOf(measured.timings);
    const std::string count = std::to_string(measured.units) + " " + measured.unit;
    for (const Timing &timing : measured.timings) {
        const bool isFirst = &timing == &measured.timings.front();
        const std::string peer = timing.isPeer() ? timing.peer : "(" + timing.peer + ")";
        std::printf("%-32s %15s  %-34s %9.3f %9.3f %7.2f%c %7.2f\n", isFirst ? measured.row.c_str() : "",
                    isFirst ? count.c_str() : "", peer.c_str(), timing.ours, timing.theirs, timing.ratio(),
                    &timing == &best ? '*' : ' ', timing.medianRatio);
    }
}

void TableReporter::printMarkdown(const Measured &measured) {
    const Timing &best = bestOf(measured.timings);
    std::printf("| `%s` | %zu %s | %.3g |", measured.row.substr(0, measured.row.rfind('/')).c_str(), measured.units,
                measured.unit.c_str(), best.ours);
    const char *separator = "";
    for (const Timing &timing : measured.timings) {
        std::printf(timing.isPeer() ? "%s %s %.3g" : "%s (%s %.3g)", separator, timing.peer.c_str(), timing.theirs);
        separator = ";";
    }
    std::printf(" | %.2f |\n", best.ratio());
}

void TableReporter::ReportRuns(const std::vector<Run> &) {
    for (Measured &measured : pending) {
        if (markdown) printMarkdown(measured);
        else printLines(measured);
        std::fflush(stdout);
        printed.push_back(std::move(measured));
    }
    pending.clear();
}

void TableReporter::Finalize() {
    if (isatty(STDERR_FILENO) && !isatty(STDOUT_FILENO)) std::fprintf(stderr, "\r\033[K");
    if (markdown) return;
    constexpr double noise = 1.02;
    std::size_t lost = 0;
    for (const Measured &measured : printed) lost += bestOf(measured.timings).ratio() > noise;
    std::printf("\n%zu rows; slower than the best peer by more than 2 %% in %zu\n", printed.size(), lost);
    printSummary(printed, baseline);
}

Ratios TableReporter::ratios() const {
    Ratios ratios;
    for (const Measured &measured : printed) ratios[measured.row] = bestOf(measured.timings).ratio();
    return ratios;
}

} // namespace bench
