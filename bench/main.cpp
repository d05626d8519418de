// The benchmark programme. Rows are benchmarks of Google Benchmark, so its options for choosing and listing them and
// for writing JSON work; the measuring itself is in contest.cpp, because it takes all contestants of a row in turn.
#include "report.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <iostream>

namespace {

struct Options {
    bool check = false;
    bool markdown = false;
    std::size_t rounds = 1000;
};

// Takes this programme's own options out of the list and leaves the others to Google Benchmark.
Options takeOptions(int &argc, char **argv) {
    constexpr const char *roundsOption = "--rounds=";
    Options options;
    int kept = 1;
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "--check") == 0) options.check = true;
        else if (std::strcmp(argv[i], "--markdown") == 0) options.markdown = true;
        else if (std::strncmp(argv[i], roundsOption, std::strlen(roundsOption)) == 0)
            options.rounds = std::max(1UL, std::strtoul(argv[i] + std::strlen(roundsOption), nullptr, 10));
        else argv[kept++] = argv[i];
    }
    argc = kept;
    argv[argc] = nullptr;
    if (options.check) options.rounds = 2;
    return options;
}

void printHelp() {
    std::cout << "benchmarks [--check] [--rounds=N] [--markdown] [options of Google Benchmark]\n\n"
                 "    --check                     few rounds, only to see that all contestants agree\n"
                 "    --rounds=N                  turns of every contestant in a row (1000)\n"
                 "    --markdown                  a line for each row, as a table in Markdown, and no summary\n"
                 "    --benchmark_filter=REGEX    only these rows\n"
                 "    --benchmark_list_tests      the names of the rows\n"
                 "    --benchmark_out=FILE        the ratios to the best peers as JSON too\n";
}

void runRow(benchmark::State &state, const bench::Row &row, const Options &options, bench::TableReporter &reporter) {
    const bench::Contest contest = row.prepare();
    if (const std::string complaint = bench::disagreement(contest); !complaint.empty()) {
        std::cerr << "\n" << row.name << ": contestants disagree: " << complaint << "\n";
        std::exit(EXIT_FAILURE);
    }
    std::vector<bench::Timing> timings;
    for (auto _ : state) {
        timings = measure(contest, options.rounds);
        state.SetIterationTime(timings.front().ours * double(contest.units) * 1e-9);
    }
    const bench::Timing &best = bench::bestOf(timings);
    state.counters["ours_ns"] = best.ours;
    state.counters["best_peer_ns"] = best.theirs;
    state.counters["ratio"] = best.ratio();
    state.SetLabel(best.peer);
    reporter.keep(row.name, contest, std::move(timings));
}

} // namespace

int main(int argc, char **argv) {
    const Options options = takeOptions(argc, argv);
    benchmark::Initialize(&argc, argv, printHelp);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return EXIT_FAILURE;

    bench::Rows rows;
    addSumRows(rows);
    addVectorRows(rows);
    addMatrixRows(rows);
    addLuRows(rows);
    addInverseRows(rows);
    addCholeskyAndQrRows(rows);
    addMoveRows(rows);
    addProductRows(rows);
    addCallRows(rows);
    addLayoutRows(rows); // after all others, whose names they look at
    addLayoutProductRows(rows);
    addLayoutSolverRows(rows);

    for (const auto &[name, value] : bench::circumstances()) benchmark::AddCustomContext(name, value);
    benchmark::AddCustomContext("format", "vonkk3 benchmarks 1"); // see scripts/benchmark_compare.py
    benchmark::AddCustomContext("rounds", std::to_string(options.rounds));

    bench::TableReporter reporter(options.markdown);
    for (const bench::Row &row : rows)
        benchmark::RegisterBenchmark(row.name.c_str(),
                                     [&](benchmark::State &state) { runRow(state, row, options, reporter); })
            ->Iterations(1)
            ->UseManualTime();
    const std::size_t measured = benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();
    if (measured == 0) return EXIT_FAILURE;
    if (options.check) std::cout << "all contestants agree (the figures above are too short to mean anything)\n";
    return EXIT_SUCCESS;
}
