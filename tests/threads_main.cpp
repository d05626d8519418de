// threads: calls every export from eight threads at once, each on memory of its own, and compares the results with
// those of the same calls made alone. On a library that is built with the thread sanitizer it shows data races.
//
// Exit code 1: results differ. The sanitizer ends the program with one of its own.
#include "support/control.h"
#include "support/invoke.h"
#include "support/objects.h"

#include <CLI/CLI.hpp>

#include <array>
#include <atomic>
#include <cstdio>
#include <cstring>
#include <exception>
#include <iostream>
#include <thread>

namespace {

using catalogue::Function;

constexpr std::size_t threads = 8;
constexpr std::size_t bytesPerThread = std::size_t{64} << 10;
constexpr std::uint32_t mostObjects = 40;
constexpr std::size_t shown = 20;

struct Worker {
    std::vector<std::byte> memory = std::vector<std::byte>(bytesPerThread);
    std::vector<std::vector<std::uint64_t>> results;
};

class Run {
public:
    Run(const std::string &path, std::uint64_t callsPerExport) : library(path), calls(callsPerExport) {
        for (const Function &function : functions) addresses.push_back(library.find(function.name));
    }

    // All calls of a thread, in the order of the exports.
    void work(std::uint64_t thread, std::span<std::byte> memory,
              std::vector<std::vector<std::uint64_t>> &results) const {
        for (std::size_t k = 0; k < functions.size(); ++k)
            for (std::uint64_t n = 0; n < calls; ++n)
                results.push_back(call(functions[k], addresses[k], thread * calls + n, memory));
    }

    const std::string &nameOf(std::size_t result) const { return functions[result / calls].name; }
    std::size_t all() const { return functions.size() * calls * threads; }

private:
    static std::vector<std::uint64_t> call(const Function &function, void *address, std::uint64_t index,
                                           std::span<std::byte> memory) {
        support::Random random(7, function.name, index);
        std::memset(memory.data(), 0x3f, memory.size());
        const support::Objects objects = support::drawObjects(function, mostObjects, memory, random);
        return support::resultsOf(function, address, objects, memory, random);
    }

    const std::vector<Function> functions = catalogue::expand();
    const support::Library library;
    std::vector<void *> addresses;
    std::uint64_t calls;
};

// Whether every thread got what its calls give alone.
bool compare(const Run &run, bool share) {
    std::array<Worker, threads> workers;
    std::vector<std::thread> running;
    for (std::size_t k = 0; k < threads; ++k)
        running.emplace_back([&, k] { run.work(k, workers[share ? 0 : k].memory, workers[k].results); });
    for (std::thread &thread : running) thread.join();

    std::size_t differing = 0;
    for (std::size_t k = 0; k < threads; ++k) {
        Worker alone; // in the same place, since some exports read tables and strides beside those they should
        run.work(k, workers[share ? 0 : k].memory, alone.results);
        for (std::size_t n = 0; n < alone.results.size(); ++n) {
            if (alone.results[n] == workers[k].results[n]) continue;
            if (++differing <= shown) std::cout << run.nameOf(n) << ", call " << n << " of thread " << k << "\n";
        }
    }
    std::cout << run.all() << " calls from " << threads << " threads: " << run.all() - differing << " passed, "
              << differing << " failed" << std::endl;
    return differing == 0;
}

} // namespace

int main(int argc, char **argv) {
    std::uint64_t calls = 2;
    std::string library = support::defaultLibrary();
    bool share = false;
    CLI::App app("Calls every export from eight threads at once.");
    app.add_option("--calls", calls, "Calls of each export from each thread")->capture_default_str();
    app.add_option("--library", library, "Path of the shared library")->capture_default_str();
    app.add_flag("--share", share, "All threads work on the same memory, which has to be found out");
    CLI11_PARSE(app, argc, argv);
    try {
        return compare(Run(library, calls), share) ? 0 : 1;
    } catch (const std::exception &problem) {
        std::cerr << "threads: " << problem.what() << "\n";
        return 2;
    }
}
