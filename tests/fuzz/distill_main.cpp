// distill: of the inputs that a search has gathered, the few that reach every line of the library they all reach, for
// each family and element type; as lines of the corpus, in order of the exports.
//
//     distill FOLDER...                   the lines on standard output, counts on standard error
//     distill --unpack CORPUS FOLDER      the other way round: a file for each line
//
// Coverage tells instances of a template apart, of which there are thousands for each line; a corpus of all would be as
// large as the library. So the places that the library counts are looked up in its line table, and lines count.
#include "steered.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <dlfcn.h>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <map>
#include <queue>
#include <set>
#include <span>
#include <stdexcept>
#include <string>
#include <unordered_map>
#include <vector>

namespace {

namespace fs = std::filesystem;

struct Counted { // an edge of the library's control flow
    std::uintptr_t address;
    std::uintptr_t flags;
};

std::span<std::uint8_t> counters;
std::span<const Counted> places;

} // namespace

// The library calls these two when it is loaded.
extern "C" void __sanitizer_cov_8bit_counters_init(std::uint8_t *begin, std::uint8_t *end) { counters = {begin, end}; }
extern "C" void __sanitizer_cov_pcs_init(const std::uintptr_t *begin, const std::uintptr_t *end) {
    places = {reinterpret_cast<const Counted *>(begin), reinterpret_cast<const Counted *>(end)};
}

namespace {

struct Input {
    fuzz::Steered steered;
    std::vector<std::uint32_t> reached; // places, later lines
};

void runAll(fuzz::Runner &runner, std::vector<Input> &inputs) {
    for (Input &input : inputs) {
        std::ranges::fill(counters, std::uint8_t{0});
        if (!runner.run(input.steered).empty())
            throw std::runtime_error("library and model differ: " + runner.toLine(input.steered));
        for (std::size_t k = 0; k < counters.size(); ++k)
            if (counters[k] != 0) input.reached.push_back(static_cast<std::uint32_t>(k));
    }
}

std::vector<Input> readInputs(std::span<char *const> folders) {
    std::vector<Input> inputs;
    for (const char *const folder : folders)
        for (const fs::directory_entry &entry : fs::directory_iterator(folder))
            inputs.push_back({fuzz::fromFile(entry.path().string()), {}});
    return inputs;
}

// "src/frame/batch.h:31" for each of these places, by the symbolizer of the compiler's tools.
std::vector<std::string> linesAt(const std::string &library, const std::vector<std::uint32_t> &wanted) {
    Dl_info module{};
    if (wanted.empty() || dladdr(reinterpret_cast<const void *>(places[0].address), &module) == 0)
        throw std::runtime_error("the library counts nothing");
    const std::string base = fs::temp_directory_path() / ("distill" + std::to_string(std::rand()));
    {
        std::ofstream query(base + ".in");
        for (const std::uint32_t place : wanted)
            query << "0x" << std::hex << places[place].address - reinterpret_cast<std::uintptr_t>(module.dli_fbase)
                  << "\n";
    }
    const std::string command = "llvm-symbolizer --functions=none --no-inlines --output-style=GNU --obj='" + library +
                                "' <" + base + ".in >" + base + ".out";
    const int exitCode = std::system(command.c_str());
    std::vector<std::string> lines;
    std::ifstream answers(base + ".out");
    for (std::string line; std::getline(answers, line);)
        if (!line.empty()) lines.push_back(line.substr(0, line.find(" (discriminator")));
    fs::remove(base + ".in");
    fs::remove(base + ".out");
    if (exitCode != 0 || lines.size() != wanted.size()) throw std::runtime_error("llvm-symbolizer failed");
    return lines;
}

// Puts lines, numbered for each family and type, into the place of counted places.
std::size_t placesToLines(const fuzz::Runner &runner, const std::string &library, std::vector<Input> &inputs) {
    std::set<std::uint32_t> all;
    for (const Input &input : inputs) all.insert(input.reached.begin(), input.reached.end());
    const std::vector<std::uint32_t> wanted(all.begin(), all.end());
    const std::vector<std::string> lines = linesAt(library, wanted);
    std::unordered_map<std::uint32_t, std::size_t> lineOf;
    for (std::size_t k = 0; k < wanted.size(); ++k) lineOf.emplace(wanted[k], k);
    std::map<std::string, std::uint32_t> numbers;
    for (Input &input : inputs) {
        const catalogue::Function &function = runner.functions()[input.steered.function];
        const std::string prefix = std::string(function.section->id) + suffix(function.type).data();
        std::erase_if(input.reached, [&](std::uint32_t place) { // the stub of an export has a line of its own
            return !lines[lineOf[place]].starts_with(VONKK3_SOURCE_FOLDER "/src/");
        });
        for (std::uint32_t &reached : input.reached)
            reached = numbers.try_emplace(prefix + lines[lineOf[reached]], numbers.size()).first->second;
        std::ranges::sort(input.reached);
        input.reached.erase(std::unique(input.reached.begin(), input.reached.end()), input.reached.end());
    }
    std::cerr << numbers.size() << " lines, each once for each family and type that reaches it\n";
    return numbers.size();
}

// Time and again the one that adds most, of equals the shortest.
std::vector<Input> choose(std::vector<Input> inputs, std::size_t lines) {
    std::vector<bool> covered(lines);
    const auto gainOf = [&](const Input &input) {
        return std::ranges::count_if(input.reached, [&](std::uint32_t line) { return !covered[line]; });
    };
    struct Candidate {
        std::ptrdiff_t gain; // may have become less since
        std::size_t length;
        std::size_t input;
        bool operator<(const Candidate &other) const {
            return gain != other.gain ? gain < other.gain : length > other.length;
        }
    };
    std::priority_queue<Candidate> candidates;
    for (std::size_t k = 0; k < inputs.size(); ++k)
        candidates.push({gainOf(inputs[k]), inputs[k].steered.bytes.size(), k});
    std::vector<Input> kept;
    while (!candidates.empty()) {
        Candidate best = candidates.top();
        candidates.pop();
        const std::ptrdiff_t gain = gainOf(inputs[best.input]);
        if (gain == 0) continue;
        if (gain < best.gain) {
            best.gain = gain;
            candidates.push(best);
            continue;
        }
        for (const std::uint32_t line : inputs[best.input].reached) covered[line] = true;
        kept.push_back(std::move(inputs[best.input]));
    }
    std::ranges::stable_sort(kept, {}, [](const Input &input) { return input.steered.function; });
    return kept;
}

void unpack(const fuzz::Runner &runner, const std::string &corpus, const fs::path &folder) {
    fs::create_directories(folder);
    std::size_t number = 0;
    for (const std::string &line : fuzz::linesOf(corpus)) {
        const std::vector<std::uint8_t> bytes = fuzz::toBytes(runner.fromLine(line));
        std::ofstream file(folder / ("line" + std::to_string(++number)), std::ios::binary);
        file.write(reinterpret_cast<const char *>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
        if (!file) throw std::runtime_error("cannot write to " + folder.string());
    }
}

} // namespace

int main(int argc, char **argv) {
    try {
        const std::string library = support::defaultLibrary();
        fuzz::Runner runner(library);
        if (argc == 4 && std::string(argv[1]) == "--unpack") return unpack(runner, argv[2], argv[3]), 0;
        std::vector<Input> inputs = readInputs(std::span(argv, static_cast<std::size_t>(argc)).subspan(1));
        runAll(runner, inputs);
        const std::size_t lines = placesToLines(runner, library, inputs);
        const std::size_t given = inputs.size();
        const std::vector<Input> kept = choose(std::move(inputs), lines);
        for (const Input &input : kept) std::cout << runner.toLine(input.steered) << "\n";
        std::cerr << kept.size() << " of " << given << " inputs kept\n";
        return kept.empty() ? 2 : 0;
    } catch (const std::exception &problem) {
        std::cerr << "distill: " << problem.what() << "\n";
        return 2;
    }
}
