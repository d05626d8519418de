// Random calls of any export: all operands in the arena, every combination of strides, shifts, alignments, tables,
// overlaps and faults that the contract answers, and numbers that bring out rounding. A call is a function of the
// seed, the export and an index alone.
#pragma once

#include "arena.h"
#include "catalogue.h"
#include "control.h"
#include "geometry.h"

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace support {

enum class Overlap {
    none,
    inPlace, // the destination is a source, element on element
    partial, // the destination shares memory with a source in another way
};

// Every so many calls of an export meet each kind of fault once, at its own place in the round.
inline constexpr std::uint64_t faultRound = 24;

// What kinds of calls to make, in percent.
struct CallMixture {
    unsigned inPlace = 14;
    unsigned partial = 20;
    bool fixedOutcomesOnly = false; // destinations keep their elements apart and overlap a source only where
                                    // the outcome is fixed
    Geometry geometry = Geometry::any;
    std::span<const std::uint8_t> steering = {}; // what chance draws from first, in place of the seed
};

// Everything a call may do in the way of coverage, for counting.
struct Traits {
    Overlap overlap = Overlap::none;
    bool crossesElements = false; // a destination element shares some bytes of a source element, not all
    bool nullPointer = false;
    bool nullEntry = false;
    bool zeroDimension = false;
    bool zeroCount = false;
    bool hugeSize = false;
    bool negativeStride = false;
    bool alignedBases = false;   // all base pointers on 16 bytes
    bool unalignedBases = false; // a base pointer off its element's size
    bool trouble = false;
};

struct Block { // a dense block outside the layouts
    std::string parameter;
    std::uintptr_t address;
    std::uint32_t bytes;
};

struct Call {
    const catalogue::Function *function;
    std::uint64_t seed;
    std::uint64_t index;
    std::vector<std::uint64_t> words; // one per parameter; 32-bit words with rubbish above them
    std::vector<Placement> operands;  // as Function::operands
    std::vector<Block> blocks;
    Setting setting; // Real64 functions are run at both precisions
    Traits traits;
};

// Fills the arena and returns the call. In two steps: as 64-bit processes make it, in which words and entries of tables
// are widened addresses, an entry in 8 bytes; and as this process needs it, which is the same in those.
Call makeCall(const catalogue::Function &function, const Arena &arena, std::uint64_t seed, std::uint64_t index,
              const CallMixture &mixture = {});
Call makeWideCall(const catalogue::Function &function, const Arena &arena, std::uint64_t seed, std::uint64_t index,
                  const CallMixture &mixture = {});
void narrow(Call &call);

} // namespace support
