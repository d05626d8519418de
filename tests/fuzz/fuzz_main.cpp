// fuzz: a coverage-guided search for calls on which library and model differ, by libFuzzer. Its bytes steer the
// generator of calls; scripts/fuzz.sh builds and runs it. A difference is printed and ends the program.
#include "steered.h"

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <vector>

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t *data, std::size_t size, std::size_t maxSize);

namespace {

fuzz::Runner &runner() {
    static fuzz::Runner instance(support::defaultLibrary());
    return instance;
}

std::size_t write(const fuzz::Steered &steered, std::uint8_t *data, std::size_t maxSize) {
    const std::vector<std::uint8_t> bytes = fuzz::toBytes(steered);
    const std::size_t size = std::min(bytes.size(), maxSize);
    std::copy_n(bytes.begin(), size, data);
    return size;
}

} // namespace

// The library is opened ahead of the first call, so that its counters are known by then.
extern "C" int LLVMFuzzerInitialize(int *, char ***) {
    try {
        runner();
    } catch (const std::exception &problem) {
        std::cerr << "fuzz: " << problem.what() << "\n";
        std::exit(2);
    }
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const fuzz::Steered steered = fuzz::fromBytes({data, size});
    const std::string complaint = runner().run(steered);
    if (complaint.empty()) return 0;
    std::cerr << "\nlibrary and model differ:\n" << complaint << runner().describe(steered) << std::flush;
    std::abort();
}

// The words of the header have meanings, so each changes as a whole: what is a dictionary elsewhere is a choice of
// geometries here. The bytes after it change in the usual ways.
extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t *data, std::size_t size, std::size_t maxSize,
                                               unsigned int seed) {
    support::Random random(seed);
    fuzz::Steered steered = fuzz::fromBytes({data, size});
    const auto kind = random.below(100);
    if (kind < 15) {
        steered.geometry = static_cast<support::Geometry>(random.below(support::geometries));
    } else if (kind < 25) {
        steered.function = static_cast<std::uint16_t>(random.below(fuzz::functionCount));
    } else if (kind < 35) { // to a relation of it: the next layout, size or group
        const auto step = static_cast<std::uint64_t>(random.between(-12, 12));
        steered.function =
            static_cast<std::uint16_t>((steered.function + fuzz::functionCount + step) % fuzz::functionCount);
    } else if (kind < 40) {
        steered.index = static_cast<std::uint8_t>(random.below(support::faultRound));
    } else if (kind < 45) {
        steered.seed = static_cast<std::uint16_t>(random.next());
    } else {
        const std::size_t used = steered.bytes.size();
        steered.bytes.resize(maxSize > fuzz::headerSize ? maxSize - fuzz::headerSize : 0);
        steered.bytes.resize(
            LLVMFuzzerMutate(steered.bytes.data(), std::min(used, steered.bytes.size()), steered.bytes.size()));
    }
    return write(steered, data, maxSize);
}
