// Drawing and laying out objects. See objects.h.
#include "objects.h"

#include "control.h"
#include "families.h"
#include "invoke.h"
#include "values.h"

#include <algorithm>
#include <cstring>
#include <stdexcept>

namespace support {
namespace {

using catalogue::Function;
using catalogue::Kind;
using catalogue::Parameter;

std::byte *at(std::uintptr_t address) { return reinterpret_cast<std::byte *>(address); }

// Takes pieces of memory one after the other.
class Pieces {
public:
    explicit Pieces(std::span<std::byte> memory)
        : next(reinterpret_cast<std::uintptr_t>(memory.data()) + margin),
          end(reinterpret_cast<std::uintptr_t>(memory.data()) + memory.size() - margin) {}

    std::uintptr_t take(std::int64_t bytes) {
        const std::uintptr_t taken = (next + 63) / 16 * 16;
        next = taken + static_cast<std::uintptr_t>(bytes);
        if (next > end) throw std::runtime_error("the operands of a call do not fit the memory");
        return taken;
    }

private:
    static constexpr std::uintptr_t margin = 512;
    std::uintptr_t next, end;
};

Sizes sizesFor(const Function &function, std::uint32_t mostObjects, Random &random) {
    Sizes sizes;
    const std::string_view section = function.section->id;
    for (const Parameter &parameter : function.parameters)
        if (parameter.kind == Kind::size)
            sizes.dimensions.push_back({parameter.name, static_cast<std::uint32_t>(random.between(1, 7))});
    families::relateDimensions(function, sizes, random);
    if (section == "identity")
        for (Sizes::Named &dimension : sizes.dimensions) dimension.value = 5;
    // Each layout looks elsewhere for the last pivot of a later object, and puts the ones of a later identity
    // elsewhere.
    const bool alone = section == "lu-decomposition" || section == "identity";
    if (function.array() && !alone) sizes.count = static_cast<std::uint32_t>(random.between(1, mostObjects));
    return sizes;
}

} // namespace

Laid::Laid(const Function &function, const Sizes &sizes, std::span<std::byte> memory, Random &random)
    : function(function) {
    // Identities replace strides that are smaller than what lies within them.
    const bool natural = function.section->id == std::string_view("identity");
    const Style style{.onGrid = true, .packed = natural, .inElements = true};
    for (int k = 0; k < static_cast<int>(function.operands.size()); ++k)
        operands.push_back(layOut(function, k, sizes, style, random));
    for (std::size_t k = 0; k < operands.size(); ++k)
        operands[k].reach.include(families::borrowedReach(function, function.operands[k], operands));
    Pieces pieces(memory);
    for (Placement &placement : operands) {
        placement.origin =
            pieces.take(placement.reach.length() + 16) - static_cast<std::uintptr_t>(placement.reach.low);
        if (!placement.tabled) continue;
        placement.shift = static_cast<std::int32_t>(random.between(-40, 40) * placement.elementSize);
        placement.table = pieces.take(static_cast<std::int64_t>(8 * placement.slots.size() + 8)) + 8;
    }
    if (families::mustKeepOffBoundary(function, operands)) operands.back().origin += 4;
    for (const Parameter &parameter : function.parameters)
        if (parameter.kind == Kind::dense) {
            const std::uint32_t bytes = families::blockBytes(function, parameter.name, sizes);
            blocks.push_back({parameter.name, pieces.take(bytes), bytes});
        }
    for (const Placement &placement : operands)
        if (placement.tabled) writeTable(placement);
}

void Laid::writeTable(const Placement &placement) const {
    const std::int64_t shift = families::addsShift(function) ? placement.shift : 0;
    for (std::size_t n = 0; n <= placement.slots.size(); ++n) { // with the word before the table
        const std::int64_t offset = placement.slots[n == 0 ? 0 : n - 1] - shift;
        const std::uintptr_t entry = placement.origin + static_cast<std::uintptr_t>(offset);
        std::memcpy(at(placement.table + sizeof entry * n - sizeof entry), &entry, sizeof entry);
    }
}

void Laid::put(const Objects &objects) const {
    for (std::size_t k = 0; k < operands.size(); ++k) {
        const std::vector<std::uintptr_t> places = operands[k].elements();
        for (std::size_t n = 0; n < places.size(); ++n) storeElement(places[n], function.type, objects.elements[k][n]);
    }
    for (const Block &block : blocks) std::ranges::copy(objects.blocks.at(block.parameter), at(block.address));
}

void Laid::get(Objects &objects) const {
    objects.elements.clear();
    for (const Placement &placement : operands) {
        objects.elements.emplace_back();
        for (const std::uintptr_t place : placement.elements())
            objects.elements.back().push_back(loadElement(place, function.type));
    }
    for (const Block &block : blocks)
        objects.blocks[block.parameter] = {at(block.address), at(block.address) + block.bytes};
}

std::uint64_t Laid::word(const Parameter &parameter, const Objects &objects) const {
    const auto operand = [&]() -> const Placement & { return operands[static_cast<std::size_t>(parameter.operand)]; };
    switch (parameter.kind) {
    case Kind::base: return operand().origin;
    case Kind::table:
    case Kind::list: return operand().table;
    case Kind::dense: return std::ranges::find(blocks, parameter.name, &Block::parameter)->address;
    case Kind::ignored: return 0;
    case Kind::size: return objects.sizes[parameter.name];
    case Kind::count: return objects.sizes.count;
    case Kind::constant: return objects.constants.at(parameter.name);
    default: return static_cast<std::uint32_t>(operand().bytesFor(parameter.kind));
    }
}

std::vector<std::uint64_t> Laid::words(const Objects &objects) const {
    std::vector<std::uint64_t> all;
    for (const Parameter &parameter : function.parameters) all.push_back(word(parameter, objects));
    return all;
}

// What shapes numbers works on memory, so that they are drawn there and then taken.
Objects drawObjects(const Function &function, std::uint32_t mostObjects, std::span<std::byte> memory, Random &random) {
    Objects objects;
    objects.sizes = sizesFor(function, mostObjects, random);
    const Laid laid(function, objects.sizes, memory, random);
    const ValueSource values(function.type, families::usualValues(function), random);
    for (const Placement &placement : laid.operands)
        for (const std::uintptr_t place : placement.elements()) storeElement(place, function.type, values.next(random));
    families::shapeValues(function, laid.operands, random);
    if (families::hasTrouble(function) && random.percent(10)) families::makeTrouble(function, laid.operands, random);
    for (const Block &block : laid.blocks)
        families::fillBlock(function, block.parameter, {at(block.address), block.bytes}, objects.sizes, random);
    laid.get(objects);
    for (const Parameter &parameter : function.parameters)
        if (parameter.kind == Kind::constant)
            objects.constants[parameter.name] = elementBits(function.type, values.next(random));
    return objects;
}

std::vector<std::uint64_t> resultsOf(const Function &function, void *address, const Objects &objects,
                                     std::span<std::byte> memory, Random &random) {
    const Laid laid(function, objects.sizes, memory, random);
    laid.put(objects);
    const SettingScope scope({});
    const std::int32_t status = invoke(address, function, laid.words(objects));
    Objects after;
    laid.get(after);
    std::vector<std::uint64_t> results{static_cast<std::uint32_t>(status)};
    const std::size_t size = function.type == catalogue::Type::real32 ? 4 : 8;
    for (std::size_t k = 0; k < function.operands.size(); ++k)
        for (const double value : function.operands[k].written ? after.elements[k] : std::vector<double>())
            results.push_back(elementBits(function.type, value)); // a NaN is stored as the one that all are unified to
    for (const auto &[name, bytes] : after.blocks) {
        if (families::isUnspecifiedAfterCall(function, name)) continue;
        const bool elements = families::holdsElements(name);
        for (std::size_t k = 0; k < bytes.size(); k += elements ? size : 4) {
            std::uint64_t bits = 0;
            std::memcpy(&bits, &bytes[k], elements ? size : 4);
            if (elements) unifyNan(&bits, function.type);
            results.push_back(bits);
        }
    }
    return results;
}

} // namespace support
