// The summary after the table.
#include "summary.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <functional>
#include <map>
#include <optional>

namespace bench {
namespace {

// Ratios above these count as slower, and as slow enough to be listed.
constexpr double slower = 1.05, listed = 1.15;

constexpr const char *layouts[] = {"standard", "S2", "P", "PS2", "L", "LS2", "mixed"};

// What a row's name tells: vonk<Op>_<operands>_<type>[_<size>][_<layout>], then remarks and the count.
struct Parts {
    std::string family, type, layout;
};

std::string layoutOf(const std::string &last) {
    if (last == "SS") return "S2";
    if (last == "PP") return "PS2";
    if (last == "LL") return "LS2";
    if (last == "PL") return "mixed";
    const auto found = std::find(std::begin(layouts), std::end(layouts), last);
    return found == std::end(layouts) ? "standard" : last;
}

Parts partsOf(const std::string &row) {
    const std::string function = row.substr(4, row.find_first_of(", /") - 4);
    std::vector<std::string> words;
    std::size_t end = 0;
    for (std::size_t start = 0; end != std::string::npos; start = end + 1) {
        end = function.find('_', start);
        words.push_back(function.substr(start, end - start));
    }
    return {words.at(0) + "_" + words.at(1), words.at(2), layoutOf(words.back())};
}

struct Entry {
    std::string row, peer;
    Parts parts;
    double ratio;
    bool isApart;                   // a determinant, or the best peer rounds otherwise
    std::optional<double> sameBits; // the ratio to the best peer of the same bits
    std::optional<double> baseline; // the ratio of the other run
    std::optional<double> tested;   // the ratio to the best peer, if it took the time of such tests as well
};

Entry entryOf(const Measured &measured, const Ratios &others) {
    const Timing &best = bestOf(measured.timings);
    std::optional<double> sameBits, tested;
    for (const Timing &timing : measured.timings)
        if (timing.peer == testsOfOperands) tested = best.ours / (best.theirs + timing.theirs);
    for (const Timing &timing : measured.timings)
        if (timing.agreement == Agreement::bits) sameBits = std::max(sameBits.value_or(0), timing.ratio());
    const Parts parts = partsOf(measured.row);
    const bool isApart = best.agreement != Agreement::bits || parts.family.rfind("Det_", 0) == 0;
    const auto other = others.find(measured.row);
    const auto baseline = other == others.end() ? std::nullopt : std::optional(other->second);
    return {measured.row, best.peer, parts, best.ratio(), isApart, sameBits, baseline, tested};
}

class Mean {
public:
    void add(double ratio) {
        logarithms += std::log(ratio);
        ++rows;
        aboveSlower += ratio > slower;
        aboveListed += ratio > listed;
    }
    std::size_t count() const { return rows; }
    void print() const {
        if (rows == 0) return;
        std::printf(" %8.2f %8zu %8zu", std::exp(logarithms / double(rows)), aboveSlower, aboveListed);
    }

private:
    double logarithms = 0;
    std::size_t rows = 0, aboveSlower = 0, aboveListed = 0;
};

// A line of the summary: this run, and the other one.
class Line {
public:
    void add(const Entry &entry) {
        mean.add(entry.ratio);
        if (entry.baseline) baseline.add(*entry.baseline);
    }
    void print(const std::string &name) const {
        if (mean.count() == 0) return;
        std::printf("    %-26s %5zu", name.c_str(), mean.count());
        baseline.print();
        mean.print();
        std::printf("\n");
    }

private:
    Mean mean, baseline;
};

using Entries = std::vector<Entry>;

void printMean(const Entries &entries, const char *name, const std::function<bool(const Entry &)> &isMeant) {
    Line line;
    for (const Entry &entry : entries)
        if (isMeant(entry)) line.add(entry);
    line.print(name);
}

void printMeans(const Entries &entries, bool hasLayouts) {
    const bool hasBaseline =
        std::any_of(entries.begin(), entries.end(), [](const Entry &e) { return bool(e.baseline); });
    if (hasBaseline) std::printf("    %-26s %5s %26s %26s\n", "", "", "baseline", "best level");
    std::printf("    %-26s %5s", "", "rows");
    for (int runs = hasBaseline ? 2 : 1; runs > 0; --runs) std::printf(" %8s %8s %8s", "mean", "> 1.05", "> 1.15");
    std::printf("\n");
    printMean(entries, "all", [](const Entry &) { return true; });
    printMean(entries, "peers of the same bits", [](const Entry &entry) { return !entry.isApart; });
    if (hasLayouts) {
        std::printf("\n");
        for (const char *layout : layouts)
            printMean(entries, layout, [=](const Entry &entry) { return entry.parts.layout == layout; });
    }
    std::printf("\n");
    std::map<std::string, Line> families;
    for (const Entry &entry : entries) families[entry.parts.family].add(entry);
    for (const auto &[name, line] : families) line.print(name);
}

void printLosers(Entries entries, bool isApart, const char *heading) {
    entries.erase(std::remove_if(entries.begin(), entries.end(),
                                 [=](const Entry &entry) { return entry.isApart != isApart || entry.ratio <= listed; }),
                  entries.end());
    if (entries.empty()) return;
    std::sort(entries.begin(), entries.end(), [](const Entry &a, const Entry &b) { return a.ratio > b.ratio; });
    std::printf("\n    %s\n", heading);
    for (const Entry &entry : entries) {
        std::printf("    ");
        if (entry.baseline) std::printf("%7.2f ", *entry.baseline);
        std::printf("%7.2f  %s  (%s", entry.ratio, entry.row.c_str(), entry.peer.c_str());
        if (isApart && entry.sameBits) std::printf("; of the same bits %.2f", *entry.sameBits);
        if (entry.tested) std::printf("; if it tested its operands %.2f", *entry.tested);
        std::printf(")\n");
    }
}

void printGroup(const Entries &all, const char *heading, bool hasLayouts,
                const std::function<bool(const Measured &, const Entry &)> &isMember,
                const std::vector<Measured> &rows) {
    Entries entries;
    for (std::size_t k = 0; k < rows.size(); ++k)
        if (isMember(rows[k], all[k])) entries.push_back(all[k]);
    if (entries.empty()) return;
    std::printf("\n%s\n\n", heading);
    printMeans(entries, hasLayouts);
    printLosers(entries, false, "slower than the best peer by more than 15 %, worst first");
    printLosers(entries, true, "the same of determinants, and where the best peer rounds otherwise");
}

} // namespace

void printSummary(const std::vector<Measured> &rows, const Ratios &baseline) {
    Entries entries;
    for (const Measured &row : rows) entries.push_back(entryOf(row, baseline));
    const auto isDouble = [](const Entry &entry) { return entry.parts.type == "64f"; };
    const auto isArray = [](const Measured &row) { return row.unit == "objects"; };

    std::printf("\nSUMMARY: ratios to the best peers, as geometric means, and how many rows lie above 1.05 and 1.15\n");
    printGroup(
        entries, "Arrays of objects, 32f", true,
        [=](const Measured &row, const Entry &entry) { return isArray(row) && !isDouble(entry); }, rows);
    printGroup(
        entries, "Single calls and single vectors, 32f", false,
        [=](const Measured &row, const Entry &entry) { return !isArray(row) && !isDouble(entry); }, rows);
    printGroup(
        entries, "64f", false, [=](const Measured &, const Entry &entry) { return isDouble(entry); }, rows);
}

} // namespace bench
