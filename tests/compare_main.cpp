// compare: every export against the model, over random calls at the same addresses.
//
// Status and every byte of the arena have to agree, and the processor's control state has to be as it was found. A
// failing call is printed with the options that make it again; at the end stand the counts of what was compared how.
#include "support/arena.h"
#include "support/calls.h"
#include "support/comparison.h"
#include "support/invoke.h"
#include "support/report.h"
#include "support/selection.h"
#include "support/tally.h"
#include "support/watch.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <cstdio>
#include <iostream>
#include <memory>
#include <stdexcept>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

using catalogue::Function;

struct Options {
    std::uint64_t calls = 200;
    std::uint64_t seed = 1;
    std::string only;
    std::vector<std::string> libraries;
    std::string replay;
    bool list = false;
    bool stop = false;
};

// One of the libraries that are compared with the model.
struct Contestant {
    std::string path;
    support::Library library;
    void *address = nullptr; // of the function
    support::Tally tally;    // of its calls

    explicit Contestant(const std::string &path) : path(path), library(path) {}
};

class Comparing {
public:
    explicit Comparing(const Options &options) : options(options), comparison(arena, open(options), model::run) {}

    // Whether all went well.
    bool compareAll() {
        const std::vector<Function> functions = support::functionsNamed(options.only);
        std::size_t done = 0;
        for (const Function &function : functions) {
            showProgress(done++, functions.size(), function.name);
            if (prepare(function)) compareExport(function);
            else ++shortOf;
            if (options.stop && total.failed + shortOf != 0) break;
        }
        showProgress(functions.size(), functions.size(), "");
        return conclude();
    }

    bool replay() {
        const std::size_t colon = options.replay.find(':');
        if (colon == std::string::npos) throw std::runtime_error("--replay takes NAME:INDEX");
        if (contestants.size() != 1) throw std::runtime_error("--replay takes one library");
        const std::string name = options.replay.substr(0, colon);
        const std::vector<Function> functions = catalogue::expand();
        const auto function = std::ranges::find(functions, name, &Function::name);
        if (function == functions.end()) throw std::runtime_error("no export is called " + name);
        if (!prepare(*function)) return false;

        const support::Call call =
            support::makeCall(*function, arena, options.seed, std::stoull(options.replay.substr(colon + 1)));
        support::announce("compare " + support::replayOptions(call));
        std::cout << name << ", call " << call.index << " of seed " << call.seed << "\n"
                  << support::describeWords(call);
        bool passed = true;
        for (const support::Setting setting : support::settingsFor(call)) {
            support::Image before;
            arena.save(before);
            std::cout << "at " << support::describe(setting) << "\nbefore\n"
                      << support::describeOperands(call, before) << std::flush;
            const support::Verdict verdict = comparison.compare(call, setting);
            std::cout << "after, by the library\n"
                      << support::describeOperands(call, comparison.imageByLibrary()) << "after, by the model\n"
                      << support::describeOperands(call, comparison.imageByModel()) << "status " << verdict.status
                      << (verdict.passed ? ", passed\n" : ", FAILED\n") << verdict.complaint;
            passed &= verdict.passed;
        }
        std::cout << (passed ? "1 passed, 0 failed" : "0 passed, 1 failed") << std::endl;
        return passed;
    }

private:
    std::vector<support::LibraryCall> open(const Options &options) {
        std::vector<support::LibraryCall> calls;
        for (const std::string &path : options.libraries) {
            const Contestant &opened = *contestants.emplace_back(std::make_unique<Contestant>(path));
            calls.emplace_back([&opened](const support::Call &call) {
                return support::invoke(opened.address, *call.function, call.words);
            });
        }
        return calls;
    }

    bool prepare(const Function &function) {
        bool prepared = model::knows(function.name);
        if (!prepared) std::cout << function.name << ": the model does not know it\n";
        for (const auto &contestant : contestants) {
            contestant->tally = {};
            contestant->address = contestant->library.find(function.name);
            if (contestant->address != nullptr) continue;
            std::cout << function.name << ": no such export in " << contestant->path << "\n";
            prepared = false;
        }
        return prepared;
    }

    void reportFailure(const support::Call &call, support::Setting setting, const Contestant &contestant,
                       const support::Verdict &verdict) {
        std::cout << "\nseed " << call.seed << ", " << call.function->name << ", call " << call.index << ", "
                  << support::describe(setting) << "\n"
                  << support::describeWords(call) << verdict.complaint << "  again: compare --library "
                  << contestant.path << " " << support::replayOptions(call) << "\n";
    }

    void compareExport(const Function &function) {
        constexpr std::uint64_t shownFailures = 3;
        const auto allStatusesSeen = [&] {
            return std::ranges::all_of(contestants, [&](const auto &contestant) {
                return support::missingStatuses(contestant->tally, function).empty();
            });
        };
        // A status that random calls return seldom may take more of them, but not for ever.
        const auto mayGoOn = [&](std::uint64_t index) {
            return index < options.calls || (index < 10 * options.calls && !allStatusesSeen());
        };
        for (std::uint64_t index = 0; mayGoOn(index); ++index) {
            const support::Call call = support::makeCall(function, arena, options.seed, index);
            support::announce("compare " + support::replayOptions(call));
            for (const support::Setting setting : support::settingsFor(call)) {
                const std::vector<support::Verdict> verdicts = comparison.compareEach(call, setting);
                for (std::size_t k = 0; k < verdicts.size(); ++k) {
                    support::Tally &tally = contestants[k]->tally;
                    tally.add(call, verdicts[k]);
                    if (!verdicts[k].passed && tally.failed <= shownFailures)
                        reportFailure(call, setting, *contestants[k], verdicts[k]);
                }
            }
        }
        for (const auto &contestant : contestants) {
            const support::Tally &tally = contestant->tally;
            if (tally.failed > shownFailures)
                std::cout << function.name << ": " << tally.failed << " calls failed, of which " << shownFailures
                          << " are shown\n";
            const std::vector<std::string> missing = support::shortcomings(tally, function);
            for (const std::string &sentence : missing) std::cout << function.name << ": " << sentence << "\n";
            if (!missing.empty()) ++shortOf;
            total.add(tally);
        }
    }

    void showProgress(std::size_t done, std::size_t all, const std::string &name) const {
        if (!isatty(STDERR_FILENO)) return;
        std::fprintf(stderr, "\r\033[K%zu/%zu %s", done, all, name.c_str());
        if (done == all) std::fprintf(stderr, "\r\033[K");
    }

    bool conclude() const {
        std::cout << support::summary(total);
        if (shortOf != 0) std::cout << shortOf << " exports are missing or were not compared well enough\n";
        const std::uint64_t failed = total.failed + shortOf;
        std::cout << total.calls - total.failed << " passed, " << failed << " failed" << std::endl;
        return failed == 0 && total.calls != 0;
    }

    const Options &options;
    std::vector<std::unique_ptr<Contestant>> contestants;
    support::Arena arena;
    support::Comparison comparison;
    support::Tally total;
    std::uint64_t shortOf = 0; // exports that are missing, or whose calls do not add up to enough
};

} // namespace

int main(int argc, char **argv) {
    Options options;
    CLI::App app("Compares the library with the model of its contract over random calls.");
    app.add_option("--calls", options.calls, "Random calls for each export")->capture_default_str();
    app.add_option("--seed", options.seed, "Seed of the random calls")->capture_default_str();
    app.add_option("--only", options.only, "Regular expression that the names of the exports have to match");
    app.add_option("--library", options.libraries,
                   "Path of a shared library; of several, each call is made once for all [" +
                       support::defaultLibrary() + "]");
    app.add_option("--replay", options.replay, "Make one call again and print everything: NAME:INDEX");
    app.add_flag("--stop", options.stop, "Stop after the first export that fails");
    app.add_flag("--list", options.list, "Print the names of the exports and stop");
    CLI11_PARSE(app, argc, argv);
    try {
        if (options.list) {
            for (const Function &function : support::functionsNamed(options.only)) std::cout << function.name << "\n";
            return 0;
        }
        if (options.libraries.empty()) options.libraries = {support::defaultLibrary()};
        support::watchCalls();
        Comparing comparing(options);
        return (options.replay.empty() ? comparing.compareAll() : comparing.replay()) ? 0 : 1;
    } catch (const std::exception &problem) {
        std::cerr << "compare: " << problem.what() << "\n";
        return 2;
    }
}
