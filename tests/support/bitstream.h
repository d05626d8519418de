// The bits of an export's results as one number: a hash over a fixed stream of calls whose outcome is settled to the
// last bit, so that any change of a result shows as a changed line in a file kept beside the tests.
#pragma once

#include "arena.h"
#include "catalogue.h"
#include "comparison.h"

#include <cstdint>
#include <string>
#include <vector>

namespace support {

inline constexpr std::uint64_t bitstreamSeed = 20;
inline constexpr std::uint64_t bitstreamCalls = 64;

// Operands are disjoint, or the destination is a source, element on element, where that outcome is fixed.
CallMixture bitstreamMixture();

// What the hash is taken over, in sentences, for the head of the file.
std::string bitstreamDescription();

struct StreamHash {
    std::uint64_t calls;                // what they are given: differs only when the making of calls was changed
    std::vector<std::uint64_t> results; // what they leave, by each library
};

// Makes each call once and runs it through every library.
StreamHash hashStream(const catalogue::Function &function, const Arena &arena,
                      const std::vector<LibraryCall> &libraries);

} // namespace support
