// bits: the results of every export to the last bit, as a file of hashes that is kept with the tests.
//
// Writing it is a decision: whoever relies on the library relies on these bits. Checking it tells which exports no
// longer give them.
#include "support/arena.h"
#include "support/bitstream.h"
#include "support/invoke.h"
#include "support/selection.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <bit>
#include <fstream>
#include <iomanip>
#include <iostream>
#include <map>
#include <memory>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>
#include <xmmintrin.h>

namespace {

using catalogue::Function;

constexpr std::string_view estimateHeading = "# The exports below stand on the processor's estimates of reciprocals. "
                                             "Processors differ in them: the results are\n"
                                             "# compared where these give the hash that stands here.\n";
constexpr std::string_view estimateWord = "estimates";

// Norms and inverses that are built on the processor's estimates of a reciprocal and of a reciprocal root.
bool standsOnEstimate(const Function &function) {
    const std::string_view section = function.section->id;
    return (section == "norm" || section == "frobenius-norm" || section == "inverse") &&
           function.type == catalogue::Type::real32 && function.order != 0 &&
           (function.layout.empty() || function.layout == "L");
}

struct Line {
    std::string results, calls;
};

using Hashes = std::map<std::string, Line>;

std::string hexadecimal(std::uint64_t value) {
    std::ostringstream text;
    text << std::hex << std::setfill('0') << std::setw(16) << value;
    return text.str();
}

// What tells this processor's estimates from others': all mantissas that they look at, of even and odd exponents.
std::string hashOfEstimates() {
    std::uint64_t hash = 0xcbf29ce484222325;
    const auto add = [&](__m128 estimate) {
        hash = (hash ^ std::bit_cast<std::uint32_t>(_mm_cvtss_f32(estimate))) * 0x100000001b3;
    };
    for (std::uint32_t mantissa = 0; mantissa < 1U << 13; ++mantissa)
        for (const std::uint32_t exponent : {0x3f800000U, 0x40000000U}) {
            const __m128 value = _mm_set_ss(std::bit_cast<float>(exponent | mantissa << 10));
            add(_mm_rsqrt_ss(value));
            add(_mm_rcp_ss(value));
        }
    return hexadecimal(hash);
}

// By each of the libraries.
std::vector<Hashes> takeHashes(const std::vector<Function> &functions, const std::vector<std::string> &paths) {
    std::vector<std::unique_ptr<support::Library>> libraries;
    for (const std::string &path : paths) libraries.push_back(std::make_unique<support::Library>(path));
    const support::Arena arena;
    std::vector<Hashes> hashes(paths.size());
    for (const Function &function : functions) {
        std::vector<support::LibraryCall> calls;
        for (std::size_t k = 0; k < paths.size(); ++k) {
            void *const address = libraries[k]->find(function.name);
            if (address == nullptr) throw std::runtime_error(paths[k] + " has no export " + function.name);
            calls.emplace_back([address, &function](const support::Call &call) {
                return support::invoke(address, function, call.words);
            });
        }
        const support::StreamHash hash = support::hashStream(function, arena, calls);
        for (std::size_t k = 0; k < paths.size(); ++k)
            hashes[k][function.name] = {hexadecimal(hash.results[k]), hexadecimal(hash.calls)};
    }
    return hashes;
}

std::string asComment(const std::string &text) {
    std::istringstream lines(text);
    std::string result;
    for (std::string line; std::getline(lines, line);) result += "# " + line + "\n";
    return result;
}

void writeFile(const std::string &path, const std::vector<Function> &functions, const Hashes &hashes) {
    std::ofstream file(path);
    file << asComment(support::bitstreamDescription());
    for (const bool estimated : {false, true}) {
        if (estimated) file << estimateHeading << estimateWord << " " << hashOfEstimates() << "\n";
        for (const Function &function : functions) {
            const Line &line = hashes.at(function.name);
            if (standsOnEstimate(function) == estimated)
                file << function.name << " " << line.results << " " << line.calls << "\n";
        }
    }
    if (!file.flush()) throw std::runtime_error("cannot write " + path);
    std::cout << functions.size() << " exports written to " << path << "\n";
}

struct Kept {
    Hashes hashes;
    std::string estimates;
};

Kept readFile(const std::string &path) {
    std::ifstream file(path);
    if (!file) throw std::runtime_error("cannot read " + path);
    Kept all;
    for (std::string line; std::getline(file, line);) {
        if (line.empty() || line.front() == '#') continue;
        std::istringstream words(line);
        std::string name, rest;
        Line kept;
        if (line.starts_with(estimateWord) && words >> name >> all.estimates) continue;
        if (!(words >> name >> kept.results >> kept.calls) || words >> rest)
            throw std::runtime_error(path + " has a line that is none: " + line);
        if (!all.hashes.emplace(name, kept).second) throw std::runtime_error(path + " has two lines for " + name);
    }
    return all;
}

// Every difference, in the order of the exports; then the lines whose export is not there any more.
std::vector<std::string> findDifferences(const std::vector<Function> &functions, const Hashes &now, Hashes kept,
                                         bool comparesEstimates) {
    std::vector<std::string> found;
    for (const Function &function : functions) {
        const auto keptLine = kept.find(function.name);
        if (keptLine == kept.end()) {
            found.push_back(function.name + ": the file has no line for it");
            continue;
        }
        const Line &line = now.at(function.name), &wanted = keptLine->second;
        const bool isCompared = comparesEstimates || !standsOnEstimate(function);
        if (line.calls != wanted.calls)
            found.push_back(function.name +
                            ": makes other calls than those in the file, which tells nothing about results");
        else if (isCompared && line.results != wanted.results)
            found.push_back(function.name + ": " + line.results + " now, " + wanted.results + " in the file");
        kept.erase(keptLine);
    }
    for (const auto &line : kept) found.push_back(line.first + ": a line without an export");
    return found;
}

bool check(const Kept &kept, const std::vector<Function> &functions, const Hashes &now) {
    const bool comparesEstimates = kept.estimates == hashOfEstimates();
    if (!comparesEstimates)
        std::cout
            << std::ranges::count_if(functions, standsOnEstimate)
            << " exports stand on estimates that this processor makes otherwise: their results are not compared\n";
    const std::vector<std::string> found = findDifferences(functions, now, kept.hashes, comparesEstimates);
    for (const std::string &line : found) std::cout << line << "\n";
    if (!found.empty())
        std::cout
            << "The first difference is " << found.front().substr(0, found.front().find(':'))
            << ". A changed line is a change of the contract, as callers rely on these bits, unless all that was\n"
               "changed is how the tests make their calls: then a library that passed before writes the file anew.\n";
    std::cout << functions.size() << " exports, " << found.size() << " differences" << std::endl;
    return found.empty();
}

// Leaves every so many functions.
std::vector<Function> thinnedOut(const std::vector<Function> &functions, std::size_t every) {
    std::vector<Function> spread;
    for (std::size_t k = 0; k < functions.size(); k += every) spread.push_back(functions[k]);
    return spread;
}

// The lines of all that the library exports, but not those of functions that are not checked.
void dropLinesOfOthers(Hashes &kept, const std::vector<Function> &checked) {
    Hashes lines;
    for (const Function &function : checked)
        if (const auto line = kept.find(function.name); line != kept.end()) lines.insert(*line);
    for (const Function &function : catalogue::expand()) kept.erase(function.name);
    kept.merge(lines);
}

} // namespace

int main(int argc, char **argv) {
    std::string toWrite, toCheck, only;
    std::vector<std::string> libraries;
    std::size_t every = 1;
    CLI::App app("Writes or checks the file of hashes over the results of every export.");
    auto *const write = app.add_option("--write", toWrite, "File to write");
    app.add_option("--check", toCheck, "File to compare with")->excludes(write);
    app.add_option("--library", libraries,
                   "Path of a shared library; of several, each call is made once for all [" +
                       support::defaultLibrary() + "]");
    app.add_option("--every", every, "Check every so many exports only")->excludes(write)->check(CLI::PositiveNumber);
    app.add_option("--only", only, "Check the exports whose names this regular expression matches")->excludes(write);
    CLI11_PARSE(app, argc, argv);
    try {
        if (toWrite.empty() == toCheck.empty()) throw std::runtime_error("give --write FILE or --check FILE");
        if (libraries.empty()) libraries = {support::defaultLibrary()};
        std::vector<Function> functions = support::functionsNamed(only);
        if (!toWrite.empty()) {
            if (libraries.size() != 1) throw std::runtime_error("--write takes one library");
            writeFile(toWrite, functions, takeHashes(functions, libraries).front());
            return 0;
        }
        Kept kept = readFile(toCheck);
        functions = thinnedOut(functions, every);
        dropLinesOfOthers(kept.hashes, functions);
        const std::vector<Hashes> hashes = takeHashes(functions, libraries);
        bool passed = true;
        for (std::size_t k = 0; k < libraries.size(); ++k) {
            std::cout << libraries[k] << std::endl;
            passed &= check(kept, functions, hashes[k]);
        }
        return passed ? 0 : 1;
    } catch (const std::exception &problem) {
        std::cerr << "bits: " << problem.what() << "\n";
        return 2;
    }
}
