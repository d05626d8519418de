// One row of the table: contestants that do the same work on the same data. They are first held to agree on the
// results, then measured in turn, over and over, so that whatever else the machine does hits all of them alike.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace bench {

using Values = std::vector<double>;

enum class Agreement {
    bits,      // the same operations in the same order: the results are the same bits
    tolerance, // the same job by other roundings: Contest::complaint decides
    none       // a yardstick that does no work: measured, but neither compared nor a peer
};

// The yardstick of pointer and list layouts: tests for null entries and overlap, which peers leave out.
inline constexpr const char *testsOfOperands = "tests of the operands";

struct Contestant {
    std::string name;
    Agreement agreement;
    std::function<void(std::size_t)> run; // does the row's work so many times
    std::function<Values()> results;      // what the last run left
};

struct Contest {
    std::string unit;  // what the nanoseconds are for: "objects" or "elements"
    std::size_t units; // how many of them one run works
    std::shared_ptr<void> data;
    std::function<void()> spoil; // overwrites all results, so that nobody is judged by another's

    // Why results that may differ in their roundings do not agree; empty if they do.
    std::function<std::string(const Values &expected, const Values &found)> complaint;

    std::vector<Contestant> contestants; // the library first

    // Fills the sources anew, where branches depend on them: then no run is timed on data that was seen before, and no
    // branch predictor knows it by heart.
    std::function<void(std::uint32_t seed)> renew = nullptr;
};

// A row of the table, and how to set it up when its turn comes.
struct Row {
    std::string name;
    std::function<Contest()> prepare;
};
using Rows = std::vector<Row>;

void addSumRows(Rows &rows);
void addVectorRows(Rows &rows);
void addMatrixRows(Rows &rows);
void addLuRows(Rows &rows);
void addInverseRows(Rows &rows);
void addCholeskyAndQrRows(Rows &rows);
void addMoveRows(Rows &rows);
void addProductRows(Rows &rows);
void addCallRows(Rows &rows);
void addLayoutRows(Rows &rows);
void addLayoutProductRows(Rows &rows);
void addLayoutSolverRows(Rows &rows);

// Runs every contestant once; says who differs from the library, or nothing.
std::string disagreement(const Contest &contest);

struct Timing {
    std::string peer;
    Agreement agreement;
    double ours;        // nanoseconds per unit, the least of all rounds
    double theirs;      // the same of this peer
    double medianRatio; // median of what the rounds' own ratios were
    double ratio() const { return ours / theirs; }
    bool isPeer() const { return agreement != Agreement::none; } // as against a yardstick
};

// One timing for each contestant but the library.
std::vector<Timing> measure(const Contest &contest, std::size_t rounds);

// The timing of the quickest peer.
const Timing &bestOf(const std::vector<Timing> &timings);

// Work as a function that does it a number of times.
template <class Work> std::function<void(std::size_t)> repeated(Work work) {
    return [work](std::size_t times) {
        for (std::size_t k = 0; k < times; ++k) {
            work();
            asm volatile("" : : : "memory"); // every repetition starts from memory and ends there
        }
    };
}

} // namespace bench
