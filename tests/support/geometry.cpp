// Random strides and table entries. See geometry.h.
//
// The places of an operand's elements are a nest of axes, each with an extent and a stride: elements, rows, objects,
// or the entries of a table. A stride that covers what lies within it keeps elements apart; the nest may stand in any
// order, so that row by row, column by column and object between object all occur.
#include "geometry.h"

#include "families.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <stdexcept>

namespace support {
namespace {

using catalogue::Layout;

enum class Role { element, row, object, entry };

struct Axis {
    Role role;
    std::uint32_t extent;
    bool fixed; // by the layout, to the size of an element
    std::int64_t stride = 0;
};

std::vector<Axis> axesOf(const catalogue::Operand &operand, const Placement &placement) {
    const std::uint32_t entries = static_cast<std::uint32_t>(placement.slots.size());
    if (isTable(operand.layout)) {
        std::vector<Axis> axes;
        if (operand.array) axes.push_back({Role::object, placement.objects, operand.layout == Layout::pointer});
        axes.push_back({Role::entry, entries, false});
        return axes;
    }
    const bool adjacent = operand.layout == Layout::standard || operand.layout == Layout::list;
    std::vector<Axis> axes{{Role::element, placement.shape.cols, adjacent}};
    if (operand.matrix) axes.push_back({Role::row, placement.shape.rows, false});
    if (placement.tabled) axes.push_back({Role::entry, entries, false});
    else if (operand.array) axes.push_back({Role::object, placement.objects, false});
    return axes;
}

std::int64_t roundUp(std::int64_t value, std::int64_t unit) { return (value + unit - 1) / unit * unit; }

// A stride over what takes `inner` bytes.
std::int64_t chooseMagnitude(std::int64_t inner, std::int64_t elementSize, Style style, Random &random) {
    if (style.packed) return inner;
    if (style.aligned) return roundUp(inner, 16) + (random.percent(30) ? 16 : 0);
    if (style.mayOverlap && random.percent(4)) return 0;
    if (style.mayOverlap && random.percent(4)) {
        const std::int64_t below = random.between(1, inner);
        return style.onGrid ? roundUp(below, elementSize) : below;
    }
    const auto kind = random.below(100);
    if (kind < 35) return inner;
    if (kind < 60) return roundUp(inner, 16);
    if (kind < 85 || style.onGrid) return roundUp(inner, elementSize) + elementSize * random.between(0, 3);
    return inner + random.between(1, 13);
}

// A stride along which no call takes a step may be anything.
std::int64_t wildStride(Random &random) { return static_cast<std::int32_t>(random.next()); }

void chooseStrides(std::vector<Axis> &axes, std::int64_t elementSize, Style style, Random &random) {
    std::int64_t inner = elementSize;
    const Axis *const withGaps =
        style.geometry == Geometry::rowsInRows ? &axes[std::min<std::size_t>(axes.size() - 1, 1)] : nullptr;
    for (Axis &axis : axes) {
        axis.stride = axis.fixed ? elementSize : chooseMagnitude(inner, elementSize, style, random);
        if (&axis == withGaps && !axis.fixed) axis.stride = 2 * roundUp(inner, elementSize);
        if (style.geometry == Geometry::sameObjectTwice && axis.role == Role::object && !axis.fixed) axis.stride = 0;
        if (style.inElements && axis.role == Role::element) axis.stride = roundUp(axis.stride, elementSize);
        inner += (axis.extent - 1) * axis.stride;
        if (axis.fixed) continue;
        if (style.geometry == Geometry::negativeStrides || (!style.packed && random.percent(20)))
            axis.stride = -axis.stride;
        if (axis.extent == 1 && axis.role != Role::entry && !style.packed && &axis != withGaps && random.percent(10))
            axis.stride = wildStride(random);
    }
}

// Usually in the order given, which is the natural one; an axis that the layout fixes stays innermost.
void chooseNest(std::vector<Axis> &axes, Random &random) {
    if (!random.percent(25)) return;
    std::vector<Axis> free(axes.begin() + (axes.front().fixed ? 1 : 0), axes.end());
    random.shuffle(free);
    std::ranges::copy(free, axes.end() - static_cast<std::ptrdiff_t>(free.size()));
}

// The entries of a table stand in their order, or in none; sometimes two lead to one place.
void chooseSlots(Placement &placement, std::int64_t stride, Style style, Random &random) {
    std::vector<std::int64_t> &slots = placement.slots;
    for (std::size_t k = 0; k < slots.size(); ++k) slots[k] = static_cast<std::int64_t>(k) * stride;
    if (random.percent(50)) random.shuffle(slots);
    if (style.geometry == Geometry::sameObjectTwice && slots.size() > 1) {
        const auto first = random.below(slots.size());
        slots[(first + 1 + random.below(slots.size() - 1)) % slots.size()] = slots[first];
    }
    if (style.mayOverlap && random.percent(8)) slots[random.below(slots.size())] = slots[random.below(slots.size())];
}

void applyAxes(Placement &placement, const std::vector<Axis> &axes, Style style, Random &random) {
    placement.elementStride = placement.elementSize;
    placement.rowStride = placement.objectStride = 0;
    placement.reach = {0, placement.elementSize};
    for (const Axis &axis : axes) {
        const std::int64_t last = (axis.extent - 1) * axis.stride;
        placement.reach.low += std::min<std::int64_t>(last, 0);
        placement.reach.high += std::max<std::int64_t>(last, 0);
        switch (axis.role) {
        case Role::element: placement.elementStride = axis.stride; break;
        case Role::row: placement.rowStride = axis.stride; break;
        case Role::object: placement.objectStride = axis.stride; break;
        case Role::entry: chooseSlots(placement, axis.stride, style, random); break;
        }
    }
}

Placement attempt(const catalogue::Function &function, const catalogue::Operand &operand, const Sizes &sizes,
                  Style style, Random &random) {
    Placement placement;
    placement.layout = operand.layout;
    placement.elementSize = function.type == catalogue::Type::real32 ? 4 : 8;
    placement.shape = families::shapeOf(function, operand, sizes);
    placement.objects = operand.array ? sizes.count : 1;
    const bool listed = isList(operand.layout) && operand.array;
    placement.tabled = isTable(operand.layout) || listed;
    if (placement.tabled)
        placement.slots.resize(listed ? placement.objects : placement.shape.rows * placement.shape.cols);

    style.inElements = families::dropsPartOfElementStride(function, sizes);
    std::vector<Axis> axes = axesOf(operand, placement);
    if (!style.packed && style.geometry != Geometry::rowsInRows) chooseNest(axes, random);
    chooseStrides(axes, placement.elementSize, style, random);
    applyAxes(placement, axes, style, random);
    if (style.geometry == Geometry::rowsInRows)
        placement.gap = std::abs(axes[std::min<std::size_t>(axes.size() - 1, 1)].stride) / 2;
    placement.reach.include(families::extraReach(function, operand, sizes, placement));
    for (std::uint32_t k = families::extraEntries(function, operand, sizes); k > 0; --k)
        placement.slots.push_back(placement.slots[random.below(placement.slots.size())]);
    return placement;
}

} // namespace

std::string_view name(Geometry geometry) {
    constexpr std::array<std::string_view, geometries> names{"any",
                                                             "touching",
                                                             "in-place",
                                                             "one-element-off",
                                                             "negative-strides",
                                                             "rows-in-rows",
                                                             "tables-in-each-other",
                                                             "same-object-twice"};
    return names.at(static_cast<std::size_t>(geometry));
}

std::uint32_t Sizes::operator[](std::string_view name) const {
    const auto found = std::ranges::find(dimensions, name, &Named::name);
    return found == dimensions.end() ? 0 : found->value;
}

std::uint32_t Sizes::largest() const {
    std::uint32_t most = 1;
    for (const Named &dimension : dimensions) most = std::max(most, dimension.value);
    return most;
}

void Reach::include(Reach other) {
    low = std::min(low, other.low);
    high = std::max(high, other.high);
}

std::uintptr_t Placement::address(std::uint32_t n, std::uint32_t i, std::uint32_t j) const {
    std::int64_t offset = n * objectStride + i * rowStride + j * elementStride;
    if (catalogue::isTable(layout)) offset = slots[i * shape.cols + j] + n * objectStride;
    else if (tabled) offset = slots[n] + i * rowStride + j * elementStride;
    return origin + static_cast<std::uintptr_t>(offset);
}

std::vector<std::uintptr_t> Placement::elements() const {
    std::vector<std::uintptr_t> all;
    for (std::uint32_t n = 0; n < objects; ++n)
        for (std::uint32_t i = 0; i < shape.rows; ++i)
            for (std::uint32_t j = 0; j < shape.cols; ++j) all.push_back(address(n, i, j));
    return all;
}

std::int64_t Placement::bytesFor(catalogue::Kind kind) const {
    switch (kind) {
    case catalogue::Kind::shift: return shift;
    case catalogue::Kind::objectStride: return objectStride;
    case catalogue::Kind::rowStride: return rowStride;
    case catalogue::Kind::elementStride: return elementStride;
    default: throw std::logic_error("a parameter that is no stride");
    }
}

Placement layOut(const catalogue::Function &function, int operand, const Sizes &sizes, Style style, Random &random) {
    const catalogue::Operand &described = function.operands[static_cast<std::size_t>(operand)];
    for (int attempts = 0; attempts < 3; ++attempts) {
        Placement placement = attempt(function, described, sizes, style, random);
        if (placement.reach.length() <= operandLimit) return placement;
    }
    return attempt(function, described, sizes, {.packed = true}, random);
}

} // namespace support
