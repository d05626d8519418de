// Counting and judging the counts. See tally.h.
#include "tally.h"

#include "families.h"

#include <cmath>
#include <sstream>

namespace support {
namespace {

constexpr std::uint64_t enoughForShares = 50;
constexpr std::uint64_t enoughForStatuses = 4 * faultRound;
constexpr double leastFull = 0.7;   // of the calls
constexpr double leastWorked = 0.5; // of the calls

// The standard deviation of a count among n random calls is at most half the root of n. Thousands of exports are
// counted, so three deviations are allowed.
bool fallsShort(std::uint64_t part, std::uint64_t calls, double least) {
    const auto all = static_cast<double>(calls);
    return static_cast<double>(part) < least * all - 1.5 * std::sqrt(all);
}

const char *nameOf(std::int32_t status) {
    switch (status) {
    case 0: return "vonkOk";
    case -6: return "vonkErrSize";
    case -8: return "vonkErrNullPtr";
    case -10: return "vonkErrSingular";
    case -179: return "vonkErrNotPosDef";
    default: return "no known status";
    }
}

} // namespace

void Tally::add(const Call &call, const Verdict &verdict) {
    ++calls;
    failed += !verdict.passed;
    ++extents.at(static_cast<std::size_t>(verdict.extent));
    accuracy.include(verdict.accuracy);
    worked += verdict.status == 0 && verdict.worked;
    inPlace += call.traits.overlap == Overlap::inPlace;
    partialOverlap += call.traits.overlap == Overlap::partial;
    ++perStatus[verdict.status];
}

void Tally::add(const Tally &other) {
    calls += other.calls;
    failed += other.failed;
    for (std::size_t k = 0; k < extents.size(); ++k) extents[k] += other.extents[k];
    accuracy.include(other.accuracy);
    worked += other.worked;
    inPlace += other.inPlace;
    partialOverlap += other.partialOverlap;
    for (const auto &[status, times] : other.perStatus) perStatus[status] += times;
}

std::vector<std::string> shortcomings(const Tally &tally, const catalogue::Function &function) {
    std::vector<std::string> found;
    const auto percentage = [&](std::uint64_t part) { return part * 100 / tally.calls; };
    if (tally.calls >= enoughForShares) {
        const std::uint64_t inFull = tally.of(Extent::full) + tally.of(Extent::withinBounds);
        if (fallsShort(inFull, tally.calls, leastFull))
            found.push_back("only " + std::to_string(percentage(inFull)) + " % of the calls were compared in full");
        if (fallsShort(tally.worked, tally.calls, leastWorked))
            found.push_back("only " + std::to_string(percentage(tally.worked)) + " % of the calls did their work");
    }
    for (const std::int32_t status : missingStatuses(tally, function))
        found.push_back(std::string("no call returned ") + nameOf(status));
    return found;
}

std::vector<std::int32_t> missingStatuses(const Tally &tally, const catalogue::Function &function) {
    std::vector<std::int32_t> missing;
    if (tally.calls >= enoughForStatuses)
        for (const std::int32_t status : families::relevantStatuses(function))
            if (!tally.perStatus.contains(status)) missing.push_back(status);
    return missing;
}

std::string summary(const Tally &tally) {
    std::ostringstream text;
    text << tally.calls << " calls: " << tally.of(Extent::full) << " compared in full, "
         << tally.of(Extent::nanTolerated) << " but for the payload of NaNs, " << tally.of(Extent::statusOnly)
         << " by status alone\n"
         << tally.worked << " did their work, " << tally.inPlace << " in place, " << tally.partialOverlap
         << " with partial overlap\n";
    if (tally.accuracy.elements != 0)
        text << tally.of(Extent::withinBounds) << " compared within bounds: " << tally.accuracy.elements
             << " elements, the largest error " << tally.accuracy.underTightBound
             << " units in the last place where the bound is at most " << Accuracy::tightBound << ", "
             << tally.accuracy.elsewhere << " elsewhere, " << tally.accuracy.shareOfBound << " of its bound\n";
    for (const auto &[status, times] : tally.perStatus) text << times << " returned " << nameOf(status) << "\n";
    return text.str();
}

} // namespace support
