// How contestants are compared and measured.
#include "contest.h"

#include <algorithm>
#include <chrono>
#include <cstring>

namespace bench {
namespace {

// Long against the clock's own cost, short against the times between interruptions.
constexpr double turnNanoseconds = 50e3;

std::string differingBits(const Values &expected, const Values &found) {
    if (expected.size() != found.size()) return "another number of results";
    for (std::size_t i = 0; i < expected.size(); ++i)
        if (std::memcmp(&expected[i], &found[i], sizeof(double)) != 0)
            return "result " + std::to_string(i) + " is " + std::to_string(found[i]) + ", not " +
                   std::to_string(expected[i]);
    return "";
}

double nanosecondsOf(const Contestant &contestant, std::size_t times) {
    using Clock = std::chrono::steady_clock;
    const Clock::time_point start = Clock::now();
    contestant.run(times);
    return std::chrono::duration<double, std::nano>(Clock::now() - start).count();
}

// Of one turn. The clock is read for every run where data is renewed, in which the clock's own time counts little:
// there a run takes hundreds of nanoseconds.
double nanosecondsOfTurn(const Contest &contest, const Contestant &contestant, std::size_t times) {
    if (!contest.renew) return nanosecondsOf(contestant, times);
    double nanoseconds = 0;
    for (std::size_t k = 0; k < times; ++k) {
        static std::uint32_t seed = 100;
        contest.renew(++seed);
        nanoseconds += nanosecondsOf(contestant, 1);
    }
    return nanoseconds;
}

// So many that the slowest contestant's turn takes its time.
std::size_t timesPerTurn(const Contest &contest) {
    for (std::size_t times = 1;; times *= 2) {
        double slowest = 0;
        for (const Contestant &contestant : contest.contestants)
            slowest = std::max(slowest, nanosecondsOfTurn(contest, contestant, times));
        if (slowest * 2 > turnNanoseconds) return times;
    }
}

double median(std::vector<double> values) {
    const auto middle = values.begin() + std::ptrdiff_t(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

} // namespace

std::string disagreement(const Contest &contest) {
    Values expected;
    for (const Contestant &contestant : contest.contestants) {
        if (contestant.agreement == Agreement::none) continue;
        contest.spoil();
        contestant.run(1);
        const Values found = contestant.results();
        if (found.empty()) return contestant.name + ": no results";
        if (&contestant == &contest.contestants.front()) {
            expected = found;
            continue;
        }
        const std::string complaint = contestant.agreement == Agreement::bits ? differingBits(expected, found)
                                                                              : contest.complaint(expected, found);
        if (!complaint.empty()) return contestant.name + ": " + complaint;
    }
    return "";
}

std::vector<Timing> measure(const Contest &contest, std::size_t rounds) {
    const std::vector<Contestant> &contestants = contest.contestants;
    const std::size_t times = timesPerTurn(contest);
    std::vector<std::vector<double>> turns(contestants.size());
    for (std::size_t round = 0; round < rounds; ++round) {
        for (std::size_t turn = 0; turn < contestants.size(); ++turn) {
            const std::size_t who = (round + turn) % contestants.size(); // nobody always follows the same one
            turns[who].push_back(nanosecondsOfTurn(contest, contestants[who], times) / double(times * contest.units));
        }
    }

    const auto least = [](const std::vector<double> &values) {
        return *std::min_element(values.begin(), values.end());
    };
    std::vector<Timing> timings;
    for (std::size_t who = 1; who < contestants.size(); ++who) {
        std::vector<double> ratios;
        for (std::size_t round = 0; round < rounds; ++round) ratios.push_back(turns[0][round] / turns[who][round]);
        timings.push_back(
            {contestants[who].name, contestants[who].agreement, least(turns[0]), least(turns[who]), median(ratios)});
    }
    return timings;
}

const Timing &bestOf(const std::vector<Timing> &timings) {
    return *std::min_element(timings.begin(), timings.end(), [](const Timing &a, const Timing &b) {
        return a.isPeer() != b.isPeer() ? a.isPeer() : a.theirs < b.theirs;
    });
}

} // namespace bench
