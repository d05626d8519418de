// Counts over the calls of one export, and what they must add up to: a comparison that hardly compares is a failure.
#pragma once

#include "calls.h"
#include "comparison.h"

#include <array>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace support {

struct Tally {
    std::uint64_t calls = 0;
    std::uint64_t failed = 0;
    std::array<std::uint64_t, 4> extents{};
    std::uint64_t worked = 0; // returned vonkOk and wrote something
    std::uint64_t inPlace = 0;
    std::uint64_t partialOverlap = 0;
    Accuracy accuracy;
    std::map<std::int32_t, std::uint64_t> perStatus;

    std::uint64_t of(Extent extent) const { return extents.at(static_cast<std::size_t>(extent)); }
    void add(const Call &call, const Verdict &verdict);
    void add(const Tally &other);
};

// Sentences about what is missing. Shares are asked for from 50 calls on, each status from four rounds of faults on.
std::vector<std::string> shortcomings(const Tally &tally, const catalogue::Function &function);

// The statuses that no call has returned, though calls of this function should.
std::vector<std::int32_t> missingStatuses(const Tally &tally, const catalogue::Function &function);

// A small table over all calls.
std::string summary(const Tally &tally);

} // namespace support
