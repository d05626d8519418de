// A call that bytes steer: the export by number, the geometry, the place in the round of faults, a seed, and then what
// the generator of calls draws from before it goes on by itself. As bytes it is what a fuzzer changes; as a line of
// text, with the export by name, it stands in the corpus.
#pragma once

#include "support/arena.h"
#include "support/calls.h"
#include "support/comparison.h"
#include "support/invoke.h"

#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace fuzz {

struct Steered {
    std::uint16_t function = 0; // its number in the catalogue, modulo their number
    support::Geometry geometry = support::Geometry::any;
    std::uint8_t index = 0; // of the call, which decides on the fault that it meets
    std::uint16_t seed = 0;
    std::vector<std::uint8_t> bytes;
};

inline constexpr std::size_t headerSize = 6;
inline constexpr std::size_t functionCount = catalogue::exportCount - 1; // all but vonkGetLibVersion

// Any bytes make a call; what a short input lacks is zero.
Steered fromBytes(std::span<const std::uint8_t> input);
std::vector<std::uint8_t> toBytes(const Steered &steered);
Steered fromFile(const std::string &path); // of such bytes; throws std::runtime_error

// The calls of a corpus: its lines that are not empty and do not begin with #. Throws std::runtime_error.
std::vector<std::string> linesOf(const std::string &path);

class Runner {
public:
    explicit Runner(const std::string &libraryPath);

    // Stands between the library and the comparison from then on: takes a call that has been made and its status.
    using Spoiler = std::function<std::int32_t(const support::Call &, std::int32_t status)>;
    void spoil(Spoiler by) { spoiler = std::move(by); }

    const std::vector<catalogue::Function> &functions() const { return all; }

    // "vonkAdd_mama_32f_3x3_P touching 5 1f00 00c0ffee", or of no bytes "-". Throws std::runtime_error.
    Steered fromLine(const std::string &line) const;
    std::string toLine(const Steered &steered) const;

    // Makes the call of the library and of the model, for Real64 at both precisions. Empty if they agree.
    std::string run(const Steered &steered);

    // The call in words, as it stands in the arena.
    std::string describe(const Steered &steered);

    std::uint64_t comparisons() const { return compared; }
    std::int32_t lastStatus() const { return status; }

private:
    support::Call make(const Steered &steered) const;

    std::vector<catalogue::Function> all;
    std::unordered_map<std::string, std::uint16_t> numbers;
    std::vector<void *> addresses;
    support::Library library;
    support::Arena arena;
    support::Comparison comparison;
    Spoiler spoiler;
    std::uint64_t compared = 0;
    std::int32_t status = 0;
};

} // namespace fuzz
