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
    failed += verdict.passed ? 0 : 1;
    full += verdict.extent == Extent::full ? 1 : 0;
    nanTolerated += verdict.extent == Extent::nanTolerated ? 1 : 0;
    withinBounds += verdict.extent == Extent::withinBounds ? 1 : 0;
    statusOnly += verdict.extent == Extent::statusOnly ? 1 : 0;
    accuracy.include(verdict.accuracy);
    worked += verdict.status == 0 && verdict.worked ? 1 : 0;
    inPlace += call.traits.overlap == Overlap::inPlace ? 1 : 0;
    partialOverlap += call.traits.overlap == Overlap::partial ? 1 : 0;
    ++perStatus[verdict.status];
}

void Tally::add(const Tally &other) {
    calls += other.calls;
    failed += other.failed;
    full += other.full;
    nanTolerated += other.nanTolerated;
    withinBounds += other.withinBounds;
    statusOnly += other.statusOnly;
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
        const std::uint64_t inFull = tally.full + tally.withinBounds;
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
    text << tally.calls << " calls: " << tally.full << " compared in full, " << tally.nanTolerated
         << " but for the payload of NaNs, " << tally.statusOnly << " by status alone\n"
         << tally.worked << " did their work, " << tally.inPlace << " in place, " << tally.partialOverlap
         << " with partial overlap\n";
    if (tally.accuracy.elements != 0)
        text << tally.withinBounds << " compared within bounds: " << tally.accuracy.elements
             << " elements, the largest error " << tally.accuracy.underTightBound
             << " units in the last place where the bound is at most " << Accuracy::tightBound << ", "
             << tally.accuracy.elsewhere << " elsewhere, " << tally.accuracy.shareOfBound << " of its bound\n";
    for (const auto &[status, times] : tally.perStatus) text << times << " returned " << nameOf(status) << "\n";
    return text.str();
}

} // namespace support
