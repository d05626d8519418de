// The benchmark programme. Rows are benchmarks of Google Benchmark, so its options for choosing and listing them and
// for writing JSON work; the measuring itself is in contest.cpp, because it takes all contestants of a row in turn.
#include "report.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iostream>

namespace {

struct Options {
    bool check = false;
    bool markdown = false;
    std::size_t rounds = 1000;
    std::string ratios, baseline; // files
};

// Takes this programme's own options out of the list and leaves the others to Google Benchmark.
Options takeOptions(int &argc, char **argv) {
    Options options;
    const auto value = [](const char *argument, const char *name) -> const char * {
        const std::size_t length = std::strlen(name);
        return std::strncmp(argument, name, length) == 0 ? argument + length : nullptr;
    };
    int kept = 1;
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "--check") == 0) options.check = true;
        else if (std::strcmp(argv[i], "--markdown") == 0) options.markdown = true;
        else if (const char *number = value(argv[i], "--rounds="))
            options.rounds = std::max(1UL, std::strtoul(number, nullptr, 10));
        else if (const char *written = value(argv[i], "--ratios=")) options.ratios = written;
        else if (const char *read = value(argv[i], "--baseline=")) options.baseline = read;
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
                 "    --ratios=FILE               writes the ratios to the best peers, a row on each line\n"
                 "    --baseline=FILE             such a file of another run, whose figures the summary puts beside\n"
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

// Lines of a ratio and the row's name.
bool readRatios(const std::string &path, bench::Ratios &ratios) {
    std::ifstream file(path);
    double ratio;
    for (std::string row; file >> ratio && std::getline(file >> std::ws, row);) ratios[row] = ratio;
    if (!ratios.empty() && file.eof()) return true;
    std::cerr << "not a file written by --ratios: " << path << "\n";
    return false;
}
bool writeRatios(const std::string &path, const bench::Ratios &ratios) {
    std::ofstream file(path);
    for (const auto &[row, ratio] : ratios) file << ratio << " " << row << "\n";
    if (file.flush()) return true;
    std::cerr << "cannot write " << path << "\n";
    return false;
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

    bench::Ratios baseline;
    if (!options.baseline.empty() && !readRatios(options.baseline, baseline)) return EXIT_FAILURE;
    bench::TableReporter reporter(options.markdown, std::move(baseline));
    for (const bench::Row &row : rows)
        benchmark::RegisterBenchmark(row.name.c_str(),
                                     [&](benchmark::State &state) { runRow(state, row, options, reporter); })
            ->Iterations(1)
            ->UseManualTime();
    const std::size_t measured = benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();
    if (measured == 0) return EXIT_FAILURE;
    if (!options.ratios.empty() && !writeRatios(options.ratios, reporter.ratios())) return EXIT_FAILURE;
    if (options.check) std::cout << "all contestants agree (the figures above are too short to mean anything)\n";
    return EXIT_SUCCESS;
}
