// fuzz_corpus: makes the calls of a fuzzer's corpus again, with any compiler and library.
//
// A line of the corpus is a call (steered.h); what begins with # is none. A call that crashes or does not come back is
// named. Exit code 1: a call failed; 2: a file or line that is none.
#include "steered.h"
#include "support/watch.h"

#include <CLI/CLI.hpp>

#include <iostream>
#include <map>
#include <stdexcept>

namespace {

class Corpus {
public:
    explicit Corpus(const std::string &library) : runner(library) {}

    bool check(const std::string &path) {
        std::uint64_t failed = 0;
        const std::vector<std::string> lines = fuzz::linesOf(path);
        std::map<std::int32_t, std::uint64_t> perStatus;
        for (const std::string &line : lines) {
            const std::string complaint = run(runner.fromLine(line));
            ++perStatus[runner.lastStatus()];
            if (complaint.empty()) continue;
            ++failed;
            std::cout << complaint << "  again: fuzz_corpus --line '" << line << "'\n";
        }
        for (const auto &[status, times] : perStatus) std::cout << times << " returned " << status << "\n";
        std::cout << runner.comparisons() << " comparisons; " << lines.size() - failed << " passed, " << failed
                  << " failed" << std::endl;
        return failed == 0 && !lines.empty();
    }

    bool replay(const fuzz::Steered &steered) {
        std::cout << runner.describe(steered) << std::flush;
        const std::string complaint = run(steered);
        std::cout << complaint << (complaint.empty() ? "1 passed, 0 failed" : "0 passed, 1 failed") << std::endl;
        return complaint.empty();
    }

    bool replayLine(const std::string &line) { return replay(runner.fromLine(line)); }

private:
    std::string run(const fuzz::Steered &steered) {
        support::announce(runner.toLine(steered));
        return runner.run(steered);
    }

    fuzz::Runner runner;
};

} // namespace

int main(int argc, char **argv) {
    std::string check, line, file, library = support::defaultLibrary();
    CLI::App app("Makes the calls of a fuzzer's corpus again and compares the library with the model.");
    app.add_option("--library", library, "Path of the shared library")->capture_default_str();
    app.add_option("--check", check, "Make every call of this corpus");
    app.add_option("--line", line, "Make the call of this line and print everything");
    app.add_option("--input", file, "Make the call of a file that the fuzzer wrote and print everything");
    app.require_option(1, 2);
    CLI11_PARSE(app, argc, argv);
    try {
        Corpus corpus(library);
        support::watchCalls();
        if (!check.empty()) return corpus.check(check) ? 0 : 1;
        return (line.empty() ? corpus.replay(fuzz::fromFile(file)) : corpus.replayLine(line)) ? 0 : 1;
    } catch (const std::exception &problem) {
        std::cerr << "fuzz_corpus: " << problem.what() << "\n";
        return 2;
    }
}
