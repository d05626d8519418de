// The comparison of library and model. See comparison.h.
#include "comparison.h"

#include "families.h"
#include "values.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <iomanip>
#include <sstream>
#include <unordered_map>
#include <utility>

namespace support {
namespace {

// Where the model wrote, each place once, in order of address.
class WriteMap {
public:
    explicit WriteMap(std::vector<model::Write> writes) : places(sortedOnce(std::move(writes))) {
        tangled.resize(places.size());
        std::size_t reaching = 0; // the place that ends last so far
        for (std::size_t k = 1; k < places.size(); ++k) {
            if (places[k].address < end(reaching)) tangled[k] = tangled[reaching] = true;
            if (end(k) > end(reaching)) reaching = k;
        }
    }

    bool anyTangled() const { return std::ranges::find(tangled, true) != tangled.end(); }
    bool covers(std::uintptr_t byte) const { return find(byte) != places.size(); }

    // The write that a byte belongs to, if it belongs to exactly one.
    const model::Write *only(std::uintptr_t byte) const {
        const std::size_t k = find(byte);
        return k == places.size() || tangled[k] ? nullptr : &places[k];
    }

private:
    static std::vector<model::Write> sortedOnce(std::vector<model::Write> writes) {
        const auto key = [](const model::Write &write) { return std::pair(write.address, write.size); };
        std::ranges::sort(writes, {}, key);
        const auto same = [&](const model::Write &a, const model::Write &b) { return key(a) == key(b); };
        writes.erase(std::unique(writes.begin(), writes.end(), same), writes.end());
        return writes;
    }

    std::uintptr_t end(std::size_t k) const { return places[k].address + places[k].size; }

    std::size_t find(std::uintptr_t byte) const {
        // Writes have 8 bytes at most, so only the last few that begin before the byte can hold it.
        auto k = static_cast<std::size_t>(std::ranges::upper_bound(places, byte, {}, &model::Write::address) -
                                          places.begin());
        while (k-- > 0 && places[k].address + 8 > byte)
            if (end(k) > byte) return k;
        return places.size();
    }

    std::vector<model::Write> places;
    std::vector<bool> tangled; // shares some of its bytes with another
};

constexpr std::size_t shownDifferences = 8;

std::string differingByte(std::size_t offset, const Image &before, const Image &library, const Image &model) {
    std::ostringstream text;
    text << "  byte at arena + 0x" << std::hex << offset << ": before 0x" << std::to_integer<int>(before[offset])
         << ", library 0x" << std::to_integer<int>(library[offset]) << ", model 0x"
         << std::to_integer<int>(model[offset]) << "\n";
    return text.str();
}

std::vector<std::size_t> differences(const Image &first, const Image &second) {
    std::vector<std::size_t> offsets;
    for (std::size_t word = 0; word < first.size(); word += 64) {
        if (std::memcmp(first.data() + word, second.data() + word, 64) == 0) continue;
        for (std::size_t k = word; k < word + 64; ++k)
            if (first[k] != second[k]) offsets.push_back(k);
    }
    return offsets;
}

// Where objects are reached by a list, numbers decide whether a call ends at them or at a null entry further on.
bool endsAtNumbersOrEntry(const Call &call, std::int32_t a, std::int32_t b) {
    constexpr std::int32_t nullPointer = -8;
    const bool listed = std::ranges::any_of(call.function->operands, [](const catalogue::Operand &operand) {
        return operand.array && isList(operand.layout);
    });
    return listed && call.traits.nullEntry && std::min(a, b) < nullPointer && std::max(a, b) == nullPointer;
}

// All that the call may write by its words, however far it gets: destination, writable blocks, and what the model
// wrote.
WriteMap writable(const Call &call, std::vector<model::Write> places) {
    for (std::size_t k = 0; k < call.operands.size(); ++k)
        if (call.function->operands[k].written)
            for (const std::uintptr_t place : call.operands[k].elements())
                places.push_back({place, call.operands[k].elementSize});
    for (const catalogue::Parameter &parameter : call.function->parameters) {
        if (parameter.kind != catalogue::Kind::dense || parameter.type.starts_with("const")) continue;
        const Block &block = *std::ranges::find(call.blocks, parameter.name, &Block::parameter);
        for (std::uint32_t at = 0; at + 4 <= block.bytes; at += 4) places.push_back({block.address + at, 4});
    }
    return WriteMap(std::move(places));
}

bool isNanInBoth(const Call &call, const model::Write *write, const Image &library, const Image &model) {
    const catalogue::Type type = call.function->type;
    if (write == nullptr || write->size != (type == catalogue::Type::real32 ? 4 : 8)) return false;
    const std::size_t offset = write->address - Arena::address;
    return isNanElement(library.data() + offset, type) && isNanElement(model.data() + offset, type);
}

// The last bound of each element.
std::unordered_map<std::uintptr_t, model::Approximation> boundsOf(const model::Outcome &outcome) {
    std::unordered_map<std::uintptr_t, model::Approximation> bounds;
    for (const model::Approximation &approximation : outcome.approximations)
        bounds.insert_or_assign(approximation.address, approximation);
    return bounds;
}

long double unitInTheLastPlace(long double value, catalogue::Type type) {
    const bool narrow = type == catalogue::Type::real32;
    const int exponent = value == 0 ? -20000 : std::ilogb(value);
    return std::ldexp(1.0L, std::max(exponent, narrow ? -126 : -1022) - (narrow ? 23 : 52));
}

std::string outOfBound(double result, const model::Approximation &bound) {
    std::ostringstream text;
    text << std::setprecision(20) << "  element at arena + 0x" << std::hex << bound.address - Arena::address
         << ": library " << result << ", model " << bound.exact << " with a bound of " << bound.error << "\n";
    return text.str();
}

} // namespace

bool dependsOnNumbers(std::int32_t status) { return status == 0 || status == -10 || status == -179; }

std::vector<Setting> settingsFor(const Call &call) {
    if (call.function->type == catalogue::Type::real32) return {call.setting};
    return {{Precision::bits53, call.setting.rounding}, {Precision::bits64, call.setting.rounding}};
}

bool isWithinBound(double result, const model::Approximation &bound) {
    if (std::isinf(bound.error)) return true;
    if (std::isnan(bound.exact)) return std::isnan(result);
    if (std::isinf(bound.exact)) return !std::isfinite(result);
    return std::abs(result - bound.exact) <= bound.error;
}

Accuracy measure(double result, const model::Approximation &bound, catalogue::Type type) {
    if (std::isinf(bound.error)) return {};
    Accuracy accuracy{1, 0, 0, 0};
    if (!std::isfinite(bound.exact)) return accuracy;
    const long double unit = unitInTheLastPlace(bound.exact, type);
    const long double error = std::abs(result - bound.exact);
    if (bound.error <= Accuracy::tightBound * unit) accuracy.underTightBound = static_cast<double>(error / unit);
    else if (bound.error < std::abs(bound.exact)) accuracy.elsewhere = static_cast<double>(error / unit);
    if (bound.error > 0) accuracy.shareOfBound = static_cast<double>(error / bound.error);
    return accuracy;
}

void Accuracy::include(const Accuracy &other) {
    elements += other.elements;
    underTightBound = std::max(underTightBound, other.underTightBound);
    elsewhere = std::max(elsewhere, other.elsewhere);
    shareOfBound = std::max(shareOfBound, other.shareOfBound);
}

std::int32_t Comparison::callLibrary(const Call &call, Setting setting, const LibraryCall &library, Verdict &verdict) {
    MachineState found, left;
    std::int32_t status = 0;
    {
        const SettingScope scope(setting);
        found = MachineState::now();
        status = library(call);
        left = MachineState::now();
    }
    if (found != left) {
        verdict.passed = false;
        verdict.complaint += "  " + difference(found, left) + "\n";
    }
    return status;
}

model::Outcome Comparison::callModel(const Call &call, Setting setting) {
    const model::Call words{call.function->name, call.words};
    const SettingScope scope(setting);
    return runModel(words);
}

void Comparison::compareMemory(const Call &call, const model::Outcome &outcome, Verdict &verdict) {
    for (const Block &block : call.blocks)
        if (families::isUnspecifiedAfterCall(*call.function, block.parameter)) {
            const std::size_t offset = block.address - Arena::address;
            std::copy_n(byModel.begin() + static_cast<std::ptrdiff_t>(offset), block.bytes,
                        byLibrary.begin() + static_cast<std::ptrdiff_t>(offset));
        }
    const bool differs = std::memcmp(byLibrary.data(), byModel.data(), Arena::size) != 0;
    if (!outcome.open && !differs && outcome.approximations.empty()) return;

    const WriteMap writes(outcome.writes);
    const bool nansLeak = outcome.nanSeen && (writes.anyTangled() || call.traits.crossesElements);
    const bool boundsLeak = !outcome.approximations.empty() && writes.anyTangled();
    if (outcome.open || nansLeak || boundsLeak) {
        verdict.extent = Extent::statusOnly;
        const WriteMap open = writable(call, outcome.writes);
        judge(differences(byLibrary, before), verdict, [&](std::uintptr_t byte) { return open.covers(byte); });
    } else {
        const Addresses accurate = accurateElements(call, outcome, verdict);
        verdict.extent = outcome.approximations.empty()   ? Extent::nanTolerated
                         : verdict.accuracy.elements != 0 ? Extent::withinBounds
                                                          : Extent::statusOnly;
        judge(differences(byLibrary, byModel), verdict, [&](std::uintptr_t byte) {
            const model::Write *const write = writes.only(byte);
            if (write != nullptr && accurate.contains(write->address)) return true;
            return outcome.nanSeen && isNanInBoth(call, write, byLibrary, byModel);
        });
    }
}

// Those that lie within their bounds.
Addresses Comparison::accurateElements(const Call &call, const model::Outcome &outcome, Verdict &verdict) const {
    Addresses accurate;
    for (const auto &[address, bound] : boundsOf(outcome)) {
        const auto *const bytes = byLibrary.data() + (address - Arena::address);
        const double result = loadElement(reinterpret_cast<std::uintptr_t>(bytes), call.function->type);
        if (!isWithinBound(result, bound)) {
            verdict.complaint += outOfBound(result, bound);
            continue;
        }
        accurate.insert(address);
        verdict.accuracy.include(measure(result, bound, call.function->type));
    }
    return accurate;
}

void Comparison::judge(const std::vector<std::size_t> &differing, Verdict &verdict,
                       const std::function<bool(std::uintptr_t)> &tolerated) const {
    std::size_t wrong = 0;
    for (const std::size_t offset : differing) {
        if (tolerated(Arena::address + offset)) continue;
        if (++wrong <= shownDifferences) verdict.complaint += differingByte(offset, before, byLibrary, byModel);
    }
    if (wrong > shownDifferences)
        verdict.complaint += "  and " + std::to_string(wrong - shownDifferences) + " bytes more\n";
    verdict.passed &= wrong == 0;
}

void Comparison::compareStatus(const Call &call, const model::Outcome &outcome, Verdict &verdict) {
    const std::int32_t status = verdict.status;
    if (status == outcome.status) return;
    if (verdict.extent == Extent::statusOnly && ((dependsOnNumbers(status) && dependsOnNumbers(outcome.status)) ||
                                                 endsAtNumbersOrEntry(call, status, outcome.status)))
        return;
    verdict.passed = false;
    verdict.complaint +=
        "  status: library " + std::to_string(status) + ", model " + std::to_string(outcome.status) + "\n";
}

std::vector<Verdict> Comparison::compareEach(const Call &call, Setting setting) {
    arena.save(before);
    const model::Outcome outcome = callModel(call, setting);
    arena.save(byModel);
    arena.restore(before);
    std::vector<Verdict> verdicts;
    for (const LibraryCall &library : libraries) {
        Verdict &verdict = verdicts.emplace_back();
        verdict.status = callLibrary(call, setting, library, verdict);
        arena.save(byLibrary);
        arena.restore(before);
        verdict.worked = !outcome.writes.empty();
        compareMemory(call, outcome, verdict);
        compareStatus(call, outcome, verdict);
    }
    return verdicts;
}

} // namespace support
