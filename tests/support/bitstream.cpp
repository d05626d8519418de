// Hashing the fixed stream. See bitstream.h.
#include "bitstream.h"

#include "control.h"
#include "families.h"
#include "values.h"

#include <array>
#include <cstring>

namespace support {
namespace {

class Fnv1a {
public:
    void add(std::uint64_t value, int bytes) {
        for (int k = 0; k < bytes; ++k) {
            hash ^= (value >> (8 * k)) & 0xff;
            hash *= 0x100000001b3;
        }
    }
    std::uint64_t value() const { return hash; }

private:
    std::uint64_t hash = 0xcbf29ce484222325;
};

// The sign and payload of a NaN result are nobody's promise.
void unifyNans(const Call &call) {
    const catalogue::Type type = call.function->type;
    for (std::size_t k = 0; k < call.operands.size(); ++k)
        if (call.function->operands[k].written)
            for (const std::uintptr_t place : call.operands[k].elements())
                unifyNan(reinterpret_cast<void *>(place), type);
    const std::uint32_t size = type == catalogue::Type::real32 ? 4 : 8;
    for (const Block &block : call.blocks)
        for (std::uint32_t at = 0; families::holdsElements(block.parameter) && at + size <= block.bytes; at += size)
            unifyNan(reinterpret_cast<void *>(block.address + at), type);
}

bool isUnspecified(const Call &call, std::uintptr_t byte) {
    for (const Block &block : call.blocks)
        if (byte - block.address < block.bytes && families::isUnspecifiedAfterCall(*call.function, block.parameter))
            return true;
    return false;
}

// Words and memory that a call is given, as 64-bit processes have them, eight bytes a step.
void addInputs(std::uint64_t &hash, const Call &call, const Image &before) {
    const auto add = [&hash](std::uint64_t word) { hash = (hash ^ word) * 0x9e3779b97f4a7c15 + (hash >> 29); };
    for (const std::uint64_t word : call.words) add(word);
    for (std::size_t at = 0; at < before.size(); at += sizeof(std::uint64_t)) {
        std::uint64_t word;
        std::memcpy(&word, before.data() + at, sizeof word);
        add(word);
    }
}

void addChangedBytes(Fnv1a &hash, const Call &call, const Arena &arena, const Image &before) {
    const std::byte *const after = arena.bytes().data();
    for (std::size_t line = 0; line < Arena::size; line += 64) {
        if (std::memcmp(before.data() + line, after + line, 64) == 0) continue;
        for (std::size_t offset = line; offset < line + 64; ++offset) {
            if (before[offset] == after[offset] || isUnspecified(call, Arena::address + offset)) continue;
            hash.add(offset, 4);
            hash.add(std::to_integer<std::uint64_t>(after[offset]), 1);
        }
    }
}

// The arena holds `before`, and holds it again afterwards.
void addCall(Fnv1a &hash, const Call &call, Setting setting, const Arena &arena, const Image &before,
             const LibraryCall &library) {
    std::int32_t status = 0;
    {
        const SettingScope scope(setting);
        status = library(call);
    }
    unifyNans(call);
    hash.add(static_cast<std::uint32_t>(status), 4);
    addChangedBytes(hash, call, arena, before);
    arena.restore(before);
}

} // namespace

CallMixture bitstreamMixture() { return {.inPlace = 20, .partial = 0, .fixedOutcomesOnly = true}; }

std::string bitstreamDescription() {
    const std::string calls = std::to_string(bitstreamCalls), seed = std::to_string(bitstreamSeed);
    return "The results of every export to the last bit. One line for each: its name, a hash of what it leaves "
           "after\n" +
           calls + " random calls of seed " + seed + ", and a hash of what these calls are given.\n" +
           "Rounding is to nearest; Real64 functions make each call at 53 and then at 64 bits of precision, Real32\n"
           "functions at 64. Operands are disjoint, or the destination is a source, element on element, where that\n"
           "outcome is fixed. The hash of the results is FNV-1a in 64 bits over, for each call, the status in 4 "
           "bytes,\n"
           "then for each byte of the arena that changed, in ascending order, its offset in 4 bytes and its new "
           "value;\n"
           "least significant bytes first. NaNs in results count as one and the same quiet NaN.\n"
           "Who changes the way in which calls are made writes this file anew, with a library that passed before.\n";
}

StreamHash hashStream(const catalogue::Function &function, const Arena &arena,
                      const std::vector<LibraryCall> &libraries) {
    std::vector<Fnv1a> results(libraries.size());
    StreamHash hash{};
    Image before;
    for (std::uint64_t index = 0; index < bitstreamCalls; ++index) {
        Call call = makeWideCall(function, arena, bitstreamSeed, index, bitstreamMixture());
        unifyNans(call); // before the call too, so that an untouched one does not count as changed
        arena.save(before);
        addInputs(hash.calls, call, before);
        narrow(call);
        arena.save(before);
        for (std::size_t k = 0; k < libraries.size(); ++k) {
            if (function.type == catalogue::Type::real64)
                addCall(results[k], call, {.precision = Precision::bits53}, arena, before, libraries[k]);
            addCall(results[k], call, {.precision = Precision::bits64}, arena, before, libraries[k]);
        }
    }
    for (const Fnv1a &result : results) hash.results.push_back(result.value());
    return hash;
}

} // namespace support
