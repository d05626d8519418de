// Building a call: sizes, then strides, then places, then contents, then faults. See calls.h.
#include "calls.h"

#include "families.h"
#include "values.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <cstring>
#include <set>
#include <stdexcept>
#include <utility>

namespace support {
namespace {

using catalogue::Function;
using catalogue::Kind;
using catalogue::Operand;
using catalogue::Parameter;

enum class Fault { none, nullPointer, zeroDimension, nullEntry, zeroCount, trouble };

bool isPointer(Kind kind) {
    return kind == Kind::base || kind == Kind::table || kind == Kind::list || kind == Kind::dense;
}

// How one operand's memory lies to another's that gets its place first.
struct Relation {
    int leader = -1; // index of an operand, or -1 where the operand has a place of its own
    std::int64_t delta = 0;
    bool sharesTable = false;
};

// Something that gets a place in the arena: a group of operands, a table or a block.
struct Item {
    Reach reach;           // relative to the origin
    std::uint32_t residue; // of the origin, modulo 16
    std::uintptr_t origin = 0;
};

struct DoesNotFit : std::logic_error {
    using std::logic_error::logic_error;
};

// Which way the destination lies to the sources, told from the addresses.
bool shareMemory(const Placement &a, const Placement &b) {
    return a.origin + static_cast<std::uintptr_t>(a.reach.low) < b.origin + static_cast<std::uintptr_t>(b.reach.high) &&
           b.origin + static_cast<std::uintptr_t>(b.reach.low) < a.origin + static_cast<std::uintptr_t>(a.reach.high);
}

void noteSharedElements(Traits &traits, const std::vector<std::uintptr_t> &to, std::vector<std::uintptr_t> from,
                        std::uintptr_t size) {
    const bool same = to == from;
    std::ranges::sort(from);
    bool any = false;
    for (const std::uintptr_t place : to)
        for (auto at = std::ranges::lower_bound(from, place - size + 1); at != from.end() && *at < place + size; ++at) {
            any = true;
            traits.crossesElements |= *at != place;
        }
    if (any && !same) traits.overlap = Overlap::partial;
    else if (any && traits.overlap == Overlap::none) traits.overlap = Overlap::inPlace;
}

void noteOverlap(Call &call) {
    if (call.operands.empty() || !call.function->operands.back().written) return;
    const Placement &written = call.operands.back();
    for (std::size_t k = 0; k + 1 < call.operands.size(); ++k) {
        const Placement &source = call.operands[k];
        if (!shareMemory(written, source)) continue;
        noteSharedElements(call.traits, written.elements(), source.elements(), written.elementSize);
    }
}

void noteResultInSource(Call &call) {
    if (!families::mayLieInSource(*call.function)) return;
    const Block &result = *std::ranges::find(call.blocks, "dst", &Block::parameter);
    for (const Placement &source : call.operands) {
        std::vector<std::uintptr_t> to;
        for (std::uint32_t at = 0; at < result.bytes; at += source.elementSize) to.push_back(result.address + at);
        noteSharedElements(call.traits, to, source.elements(), source.elementSize);
    }
}

Setting chooseSetting(Random &random) {
    Setting setting;
    setting.precision = random.percent(50) ? Precision::bits53 : Precision::bits64;
    if (random.percent(15)) setting.rounding = static_cast<Rounding>(random.between(1, 3));
    return setting;
}

class Builder {
public:
    Builder(const Function &function, std::uint64_t seed, std::uint64_t index, const CallMixture &mixture,
            bool mayBeLong)
        : function(function), mixture(mixture), random(seed, function.name, index), mayBeLong(mayBeLong) {
        random.steerBy(mixture.steering);
        call.function = &function;
        call.seed = seed;
        call.index = index;
        elementSize = function.type == catalogue::Type::real32 ? 4 : 8;
        // Each function starts its round of faults elsewhere.
        const std::uint64_t place = (index + Random(seed, function.name, 0).next()) % faultRound;
        constexpr std::array<Fault, 5> faults{Fault::nullPointer, Fault::zeroDimension, Fault::nullEntry,
                                              Fault::zeroCount, Fault::trouble};
        if (place % 4 == 1 && place / 4 < faults.size()) scheduled = faults[place / 4];
    }

    Call build(const Arena &arena) {
        arena.fill(random.next());
        allAligned = random.percent(families::looksAtAlignment(function) ? 60 : 30);
        chooseSizes();
        for (int k = 0; k < operandCount(); ++k)
            call.operands.push_back(layOut(function, k, sizes, chooseStyle(described(k)), random));
        chooseRelations();
        for (int k = 0; k < operandCount(); ++k) // room for an operand that is walked with the strides of another
            operand(k).reach.include(families::borrowedReach(function, described(k), call.operands));
        place();
        writeValues();
        injectFaults();
        noteTraits();
        noteOverlap(call);
        noteResultInSource(call);
        call.setting = chooseSetting(random);
        return std::move(call);
    }

private:
    bool meets(Fault fault) { return scheduled == fault || random.percent(1); }
    int operandCount() const { return static_cast<int>(function.operands.size()); }
    const Operand &described(int k) const { return function.operands[static_cast<std::size_t>(k)]; }
    Placement &operand(int k) { return call.operands[static_cast<std::size_t>(k)]; }

    // --- sizes

    std::uint32_t chooseDimension() {
        const bool vectorsOnly = std::ranges::none_of(function.operands, &Operand::matrix);
        if (families::turnsAtEleven(function) && random.percent(25))
            return static_cast<std::uint32_t>(random.between(9, 13));
        const auto kind = random.below(100);
        if (!vectorsOnly) return static_cast<std::uint32_t>(kind < 75 ? random.between(1, 6) : random.between(1, 9));
        if (kind < 50) return static_cast<std::uint32_t>(random.between(1, 9));
        return static_cast<std::uint32_t>(kind < 75 ? random.between(9, 20) : random.between(21, 40));
    }

    void chooseSizes() {
        for (const Parameter &parameter : function.parameters)
            if (parameter.kind == Kind::size) sizes.dimensions.push_back({parameter.name, chooseDimension()});
        families::relateDimensions(function, sizes, random);
        if (function.array())
            sizes.count = static_cast<std::uint32_t>(random.percent(85) ? random.between(1, 6) : random.between(7, 9));
        if (!mixture.fixedOutcomesOnly && families::turnsAtEightObjects(function) && random.percent(40))
            sizes.count = static_cast<std::uint32_t>(random.between(7, 14));
        // Fast paths begin at up to 128 objects, where operands are disjoint; few calls are as long, for they take
        // long.
        if (mayBeLong && random.percent(5))
            sizes.count =
                static_cast<std::uint32_t>(random.percent(70) ? random.between(15, 40) : random.between(41, 150));
    }

    // --- strides and relations

    // Where alignment opens another route, one pointer or the strides of one operand may be all that closes it.
    bool keepsAligned() { return allAligned && !(families::looksAtAlignment(function) && random.percent(6)); }

    Style chooseStyle(const Operand &operand) {
        Style style;
        style.aligned = keepsAligned();
        style.onGrid = operand.written && mixture.fixedOutcomesOnly;
        // Equal rows are singular, and a destination on itself is open: both are to stay rare.
        const unsigned share = operand.written ? 15 : families::hasTrouble(function) ? 20 : 60;
        style.geometry = mixture.geometry;
        style.mayOverlap = random.percent(share) && !(operand.written && mixture.fixedOutcomesOnly);
        return style;
    }

    bool isAlike(int a, int b) {
        const Shape first = families::shapeOf(function, described(a), sizes);
        const Shape second = families::shapeOf(function, described(b), sizes);
        return described(a).layout == described(b).layout && described(a).matrix == described(b).matrix &&
               described(a).array == described(b).array && first.rows == second.rows && first.cols == second.cols;
    }

    // A source to lay the destination on, or -1.
    int chooseLeader(int written) {
        std::vector<int> possible;
        for (int k = 0; k < written; ++k)
            if (!mixture.fixedOutcomesOnly || (isAlike(k, written) && families::isFixedInPlace(function, described(k))))
                possible.push_back(k);
        return possible.empty() ? -1 : random.pick(std::span<const int>(possible));
    }

    // The destination is laid out ahead of the sources, so the source is the follower.
    void relate(int follower, int leader, Overlap overlap) {
        const bool alike = isAlike(follower, leader);
        if (overlap == Overlap::inPlace && !alike)
            overlap = mixture.fixedOutcomesOnly ? Overlap::none : Overlap::partial;
        if (overlap == Overlap::none) return;
        Relation &relation = relations[static_cast<std::size_t>(follower)];
        relation.leader = leader;
        if (overlap == Overlap::inPlace) {
            operand(follower) = operand(leader);
            relation.sharesTable = random.percent(50);
        } else if (placesDestination()) {
            const bool sameStrides = alike && (mixture.geometry != Geometry::touching || random.percent(50));
            if (sameStrides) operand(follower) = operand(leader);
            relation.delta = deltaByGeometry(follower, leader);
            relation.sharesTable =
                mixture.geometry == Geometry::tablesInEachOther && sameStrides && mayShareTable(follower, leader);
        } else {
            const bool sameStrides = alike && random.percent(65);
            if (sameStrides) operand(follower) = operand(leader);
            relation.delta = chooseDelta(follower, leader, sameStrides);
            if (allAligned && families::looksAtAlignment(function) && random.percent(50))
                relation.delta = relation.delta / 16 * 16;
        }
    }

    // Whether the geometry asked for is one of a destination to a source.
    bool placesDestination() const {
        return mixture.geometry != Geometry::any && mixture.geometry != Geometry::negativeStrides &&
               mixture.geometry != Geometry::sameObjectTwice;
    }

    bool mayShareTable(int a, int b) const {
        return call.operands[static_cast<std::size_t>(a)].tabled && call.operands[static_cast<std::size_t>(b)].tabled &&
               families::addsShift(function) && !families::readsThroughDestination(function);
    }

    std::int64_t deltaByGeometry(int follower, int leader) {
        const Reach first = operand(leader).reach;
        const Reach second = operand(follower).reach;
        const std::int64_t sign = random.percent(50) ? 1 : -1;
        if (mixture.geometry == Geometry::touching) {
            const std::int64_t shared = random.percent(30) ? elementSize : 0;
            return sign > 0 ? first.high - second.low - shared : first.low - second.high + shared;
        }
        if (mixture.geometry == Geometry::rowsInRows)
            return sign * std::max(operand(leader).gap / elementSize * elementSize, elementSize);
        if (mixture.geometry == Geometry::tablesInEachOther) return sign * elementSize * random.between(1, 8);
        return sign * elementSize;
    }

    std::int64_t chooseDelta(int follower, int leader, bool sameStrides) {
        const Placement &first = operand(leader);
        const Placement &second = operand(follower);
        if (sameStrides) {
            // By an element or a few, by a row, by an object, or by bytes that fit nothing.
            const std::array<std::int64_t, 6> steps{elementSize,         elementSize * random.between(1, 8),
                                                    first.elementStride, first.rowStride,
                                                    first.objectStride,  random.between(1, 15)};
            const std::int64_t step = std::abs(random.pick(std::span<const std::int64_t>(steps)));
            const std::int64_t delta = step == 0 || step >= first.reach.length() ? elementSize : step;
            return random.percent(50) ? delta : -delta;
        }
        if (random.percent(15)) return 0; // the same pointer with other strides
        const std::int64_t delta = random.between(first.reach.low - second.reach.high + elementSize,
                                                  first.reach.high - second.reach.low - elementSize);
        return random.percent(75) ? delta / elementSize * elementSize : delta;
    }

    void layDestinationOn(int source, Overlap overlap) {
        const int written = operandCount() - 1;
        relate(source, written, overlap);
        for (int k = 0; k < written && overlap == Overlap::inPlace; ++k) // now and then on two sources at once
            if (k != source && isAlike(k, source) &&
                (!mixture.fixedOutcomesOnly || families::isFixedInPlace(function, described(k))) && random.percent(15))
                relate(k, written, overlap);
    }

    void chooseRelations() {
        relations.resize(function.operands.size());
        const int written = operandCount() - 1;
        if (operandCount() > 0 && described(written).written) {
            const auto share = random.below(100);
            Overlap overlap = share < mixture.inPlace                     ? Overlap::inPlace
                              : share < mixture.inPlace + mixture.partial ? Overlap::partial
                                                                          : Overlap::none;
            if (placesDestination())
                overlap = mixture.geometry == Geometry::inPlace ? Overlap::inPlace : Overlap::partial;
            const int source = chooseLeader(written);
            const bool alwaysDrawn = mixture.fixedOutcomesOnly || placesDestination();
            const unsigned drawn = alwaysDrawn ? 100 : families::overlapShare(function);
            if (source >= 0 && overlap != Overlap::none && (drawn == 100 || random.percent(drawn)))
                layDestinationOn(source, overlap);
        }
        // Two sources may be one.
        for (int k = 1; k < operandCount(); ++k)
            if (!described(k).written && isAlike(0, k) && relations[0].leader < 0 &&
                relations[static_cast<std::size_t>(k)].leader < 0 && random.percent(8))
                relate(k, 0, Overlap::inPlace);
    }

    // --- places

    // Where nothing keeps a plain result out of its source. It may run beyond that, but not into a table.
    void layResultOnSource() {
        if (mixture.fixedOutcomesOnly || !families::mayLieInSource(function) || !random.percent(15)) return;
        Block &result = *std::ranges::find(call.blocks, "dst", &Block::parameter);
        const auto source = operandCount() == 1 ? 0 : static_cast<int>(random.below(call.operands.size()));
        const std::vector<std::uintptr_t> places = operand(source).elements();
        std::uintptr_t address = random.pick(std::span<const std::uintptr_t>(places));
        if (random.percent(15)) address += static_cast<std::uintptr_t>(random.between(1, elementSize - 1));
        for (const Placement &placement : call.operands)
            if (placement.tabled && address < placement.table + 8 * placement.slots.size() &&
                placement.table - 8 < address + result.bytes)
                return;
        for (const Block &block : call.blocks)
            if (&block != &result && address < block.address + block.bytes && block.address < address + result.bytes)
                return;
        result.address = address;
    }

    std::uint32_t chooseResidue() {
        if (keepsAligned() || random.percent(40)) return 0;
        const bool onGrid = random.percent(65);
        return static_cast<std::uint32_t>(onGrid ? random.below(16 / static_cast<std::uint64_t>(elementSize)) *
                                                       static_cast<std::uint64_t>(elementSize)
                                                 : random.below(16));
    }

    // In any order, with the free bytes spread between them at random.
    void placeItems(std::vector<Item> &items) {
        std::vector<Item *> order;
        std::int64_t spare = static_cast<std::int64_t>(Arena::size - 2 * Arena::margin);
        for (Item &item : items) {
            order.push_back(&item);
            spare -= item.reach.length() + 15;
        }
        if (spare < 0) throw DoesNotFit("the operands of a call do not fit the arena");
        random.shuffle(order);
        std::uintptr_t at = Arena::address + Arena::margin;
        for (Item *item : order) {
            const std::int64_t gap =
                random.percent(30) ? 0 : random.between(0, spare / static_cast<std::int64_t>(items.size()));
            item->origin = at + static_cast<std::uintptr_t>(gap - item->reach.low);
            item->origin += (item->residue - item->origin) & 15;
            at = item->origin + static_cast<std::uintptr_t>(item->reach.high);
        }
    }

    // Operands, then tables, then blocks.
    std::vector<Item> makeItems() {
        std::vector<Item> items;
        for (const Placement &placement : call.operands) items.push_back({placement.reach, chooseResidue()});
        if (families::mustKeepOffBoundary(function, call.operands)) items.back().residue = 4;
        for (std::size_t k = 0; k < call.operands.size(); ++k) { // a follower moves in with its leader
            const Relation &relation = relations[k];
            if (relation.leader < 0) continue;
            const Reach own = std::exchange(items[k].reach, {});
            items[static_cast<std::size_t>(relation.leader)].reach.include(
                {own.low + relation.delta, own.high + relation.delta});
        }
        for (const Placement &placement : call.operands) { // with the word in front of the table
            const auto entries = static_cast<std::int64_t>(placement.slots.size());
            items.push_back({{entries == 0 ? 0 : -8, entries * 8}, random.percent(50) ? 0u : 8u});
        }
        for (const Parameter &parameter : function.parameters) {
            if (parameter.kind != Kind::dense) continue;
            call.blocks.push_back({parameter.name, 0, families::blockBytes(function, parameter.name, sizes)});
            const bool elements = families::holdsElements(parameter.name);
            items.push_back({{0, call.blocks.back().bytes}, elements ? chooseResidue() : random.percent(50) ? 0u : 8u});
        }
        return items;
    }

    // The source lies where the destination's table leads with the source's shift and stride: over the destination in
    // calls in place, else anywhere in the arena.
    void placeSourceByDestination() {
        Placement &source = operand(0);
        const Placement &destination = operand(1);
        source.slots = destination.slots;
        const auto [first, last] = std::ranges::minmax(source.slots);
        const std::int64_t walk = (source.objects - 1) * source.objectStride;
        source.reach = {first + std::min<std::int64_t>(walk, 0), last + std::max<std::int64_t>(walk, 0) + elementSize};
        const auto origin = static_cast<std::int64_t>(destination.origin - Arena::address);
        const auto end = static_cast<std::int64_t>(Arena::size);
        std::int64_t delta = random.between(-origin - source.reach.low, end - origin - source.reach.high);
        if (random.percent(75)) delta = delta / elementSize * elementSize;
        const std::int64_t shift = destination.shift + delta;
        const bool inPlace = relations[0].leader >= 0 && relations[0].delta == 0;
        if (inPlace || shift != static_cast<std::int32_t>(shift)) delta = 0;
        source.origin = destination.origin + static_cast<std::uintptr_t>(delta);
        source.shift = static_cast<std::int32_t>(destination.shift + delta);
    }

    void place() {
        std::vector<Item> items = makeItems();
        placeItems(items);
        const std::size_t operands = call.operands.size();
        for (std::size_t k = 0; k < operands; ++k) {
            const Relation &relation = relations[k];
            const std::size_t host = relation.leader < 0 ? k : static_cast<std::size_t>(relation.leader);
            call.operands[k].origin = items[host].origin + static_cast<std::uintptr_t>(relation.delta);
            call.operands[k].table = items[operands + k].origin;
            chooseShift(call.operands[k]);
        }
        if (families::readsThroughDestination(function)) placeSourceByDestination();
        for (std::size_t k = 0; k < operands; ++k)
            if (relations[k].sharesTable) {
                const Placement &leader = operand(relations[k].leader);
                const std::int64_t shift = leader.shift + relations[k].delta;
                if (shift != static_cast<std::int32_t>(shift)) continue;
                call.operands[k].table = leader.table;
                call.operands[k].shift = static_cast<std::int32_t>(shift);
            }
        for (std::size_t k = 0; k < call.blocks.size(); ++k) call.blocks[k].address = items[2 * operands + k].origin;
        layResultOnSource();
    }

    void chooseShift(Placement &placement) {
        const auto kind = random.below(100);
        if (kind < 30) placement.shift = 0;
        else if (kind < 60) placement.shift = static_cast<std::int32_t>(random.between(-40, 40) * elementSize);
        else if (kind < 85) placement.shift = static_cast<std::int32_t>(random.between(-300, 300));
        else placement.shift = static_cast<std::int32_t>(random.next());
        if (allAligned && families::looksAtAlignment(function)) placement.shift &= ~15;
    }

    // --- contents

    void writeTable(const Placement &placement) {
        const std::int64_t shift = families::addsShift(function) ? placement.shift : 0;
        // A table that is asked for and never read leads astray.
        const bool unread = families::readsThroughDestination(function) && placement.table != operand(1).table;
        const std::int64_t astray = unread ? 64 : 0;
        for (std::size_t k = 0; k <= placement.slots.size(); ++k) {
            // The word in front of the table leads to its first place.
            const std::int64_t offset = placement.slots[k == 0 ? 0 : k - 1] - shift + astray;
            std::uint64_t entry = Arena::widened(placement.origin) + static_cast<std::uint64_t>(offset);
            if (k > 0 && !families::followsEntry(function, placement, static_cast<std::uint32_t>(k - 1)))
                entry = random.percent(30) ? 0 : random.percent(50) ? random.next() : entry;
            std::memcpy(reinterpret_cast<void *>(placement.table + 8 * k - 8), &entry, sizeof entry);
        }
    }

    void writeValues() {
        const ValueSource values(function.type, families::usualValues(function), random);
        for (int k = 0; k < operandCount(); ++k) {
            if (described(k).written && !random.percent(20)) continue;
            for (const std::uintptr_t place : operand(k).elements())
                storeElement(place, function.type, values.next(random));
        }
        families::shapeValues(function, call.operands, random);
        if (families::hasTrouble(function) && (scheduled == Fault::trouble || random.percent(5))) {
            families::makeTrouble(function, call.operands, random);
            call.traits.trouble = true;
        }
        for (const Block &block : call.blocks)
            families::fillBlock(function, block.parameter, {reinterpret_cast<std::byte *>(block.address), block.bytes},
                                sizes, random);
        for (const Placement &placement : call.operands)
            if (placement.tabled) writeTable(placement);
        for (const Parameter &parameter : function.parameters) call.words.push_back(wordOf(parameter, values));
    }

    // --- words

    std::uint64_t withRubbish(std::int64_t value) {
        return static_cast<std::uint32_t>(value) | (random.next() & 0xffffffff00000000);
    }

    std::uint64_t wordOf(const Parameter &parameter, const ValueSource &values) {
        const auto operandOf = [&]() -> Placement & { return operand(parameter.operand); };
        switch (parameter.kind) {
        case Kind::base: return Arena::widened(operandOf().origin);
        case Kind::table:
        case Kind::list: return Arena::widened(operandOf().table);
        case Kind::dense:
            return Arena::widened(std::ranges::find(call.blocks, parameter.name, &Block::parameter)->address);
        case Kind::elementStride: return withRubbish(operandOf().elementStride + uselessBytes());
        case Kind::ignored: return random.next();
        case Kind::size: return withRubbish(sizes[parameter.name]);
        case Kind::count: return withRubbish(sizes.count);
        case Kind::constant: return elementBits(function.type, values.next(random));
        default: return withRubbish(operandOf().bytesFor(parameter.kind));
        }
    }

    // Added to an element stride of which only whole elements count.
    std::int64_t uselessBytes() {
        if (!families::dropsPartOfElementStride(function, sizes) || random.percent(50)) return 0;
        return random.between(0, elementSize - 1);
    }

    // --- faults

    // The parameters of which this holds, by their numbers.
    template <class Condition> std::vector<std::size_t> parametersWhere(Condition holds) const {
        std::vector<std::size_t> numbers;
        for (std::size_t k = 0; k < function.parameters.size(); ++k)
            if (holds(function.parameters[k])) numbers.push_back(k);
        return numbers;
    }

    std::uint64_t &anyWord(const std::vector<std::size_t> &numbers) {
        return call.words[random.pick(std::span<const std::size_t>(numbers))];
    }

    // At least 2^31.
    std::uint32_t hugeSize() {
        call.traits.hugeSize = true;
        return static_cast<std::uint32_t>(random.next()) | 0x80000000;
    }

    // Of the words of this kind, one.
    void setSize(Kind kind, std::uint32_t value) {
        const auto possible = parametersWhere([&](const Parameter &parameter) { return parameter.kind == kind; });
        if (!possible.empty()) anyWord(possible) = withRubbish(value);
    }

    // Null pointers go first, so whatever the sizes are does not matter beside one.
    void makeNullPointer() {
        if (!families::testsPointers(function)) return;
        const auto possible = parametersWhere([](const Parameter &parameter) { return isPointer(parameter.kind); });
        do anyWord(possible) = 0;
        while (random.percent(15));
        call.traits.nullPointer = true;
        for (const Kind kind : {Kind::size, Kind::count})
            if (random.percent(25)) {
                setSize(kind, random.percent(30) ? 0 : hugeSize());
                call.traits.hugeSize = true;
            }
    }

    void makeNullEntry() {
        std::vector<int> possible;
        for (int k = 0; k < operandCount(); ++k)
            if (operand(k).tabled) possible.push_back(k);
        if (possible.empty()) return;
        const int k = random.pick(std::span<const int>(possible));
        const Placement &placement = operand(k);
        const bool positions = isTable(described(k).layout);
        const std::uint32_t entries = positions ? placement.shape.rows * placement.shape.cols : placement.objects;
        const auto entry = static_cast<std::uint32_t>(random.below(entries));
        for (int other = 0; other < operandCount(); ++other) // two operands may have one table
            if (operand(other).table == placement.table &&
                !families::testsEntry(function, described(other), sizes, entry))
                return;
        const std::uint64_t null = families::nullEntry(function, placement.shift);
        for (const Placement &other : call.operands) // nor is what is null after one shift null after another
            if (null != 0 && other.table == placement.table && other.shift != placement.shift) return;
        std::memcpy(reinterpret_cast<void *>(placement.table + 8 * std::uintptr_t{entry}), &null, sizeof null);
        call.traits.nullEntry = true;
        if (random.percent(15) && function.array() && families::stopsAtNullEntry(function, described(k))) {
            setSize(Kind::count, hugeSize());
        } else if (random.percent(20) && positions && sizes["len"] != 0) {
            setSize(Kind::size, hugeSize());
        }
    }

    // Of a size that is compared as a signed number.
    void makeNegativeSize() {
        const auto possible = parametersWhere(
            [&](const Parameter &parameter) { return families::isSignedSize(function, parameter.name); });
        if (possible.empty() || !random.percent(3)) return;
        std::uint64_t &word = anyWord(possible);
        word = withRubbish(hugeSize());
    }

    // A size that a null entry made harmless is made zero at most, never the other way round.
    void injectFaults() {
        if (meets(Fault::nullEntry)) makeNullEntry();
        if (meets(Fault::zeroDimension)) {
            setSize(Kind::size, 0);
            call.traits.zeroDimension = !sizes.dimensions.empty();
        }
        if (meets(Fault::zeroCount)) {
            setSize(Kind::count, 0);
            call.traits.zeroCount = function.array();
        }
        makeNegativeSize();
        if (meets(Fault::nullPointer)) makeNullPointer();
    }

    void noteTraits() {
        Traits &traits = call.traits;
        traits.alignedBases = true;
        for (std::size_t k = 0; k < function.parameters.size(); ++k) {
            const Kind kind = function.parameters[k].kind;
            const std::uint64_t word = call.words[k];
            if (kind == Kind::base || kind == Kind::dense) {
                traits.alignedBases &= word % 16 == 0;
                traits.unalignedBases |= word % static_cast<std::uint64_t>(elementSize) != 0;
            }
            if (kind == Kind::objectStride || kind == Kind::rowStride || kind == Kind::elementStride)
                traits.negativeStride |= (word & 0x80000000) != 0;
        }
    }

    const Function &function;
    const CallMixture &mixture;
    Random random;
    bool mayBeLong;
    Fault scheduled = Fault::none;
    Call call;
    Sizes sizes;
    std::int64_t elementSize;
    bool allAligned = false;
    std::vector<Relation> relations;
};

} // namespace

Call makeWideCall(const Function &function, const Arena &arena, std::uint64_t seed, std::uint64_t index,
                  const CallMixture &mixture) {
    if (function.array() && !mixture.fixedOutcomesOnly) try {
            return Builder(function, seed, index, mixture, true).build(arena);
        } catch (const DoesNotFit &) { // so many objects are too many, and the call is made anew with few
        }
    return Builder(function, seed, index, mixture, false).build(arena);
}

void narrow(Call &call) {
    if constexpr (sizeof(void *) == sizeof(std::uint64_t)) return;
    for (std::size_t k = 0; k < call.words.size(); ++k)
        if (isPointer(call.function->parameters[k].kind)) call.words[k] = Arena::narrowed(call.words[k]);
    std::set<std::uintptr_t> done; // two operands may have one table
    for (const Placement &placement : call.operands) {
        if (!placement.tabled || !done.insert(placement.table).second) continue;
        std::vector<std::uint64_t> entries(placement.slots.size() + 1); // with the one in front
        std::memcpy(entries.data(), reinterpret_cast<void *>(placement.table - 8), 8 * entries.size());
        for (std::size_t k = 0; k < entries.size(); ++k) {
            const std::uintptr_t entry = Arena::narrowed(entries[k]);
            const std::uintptr_t at = placement.table + sizeof entry * k - sizeof entry;
            std::memcpy(reinterpret_cast<void *>(at), &entry, sizeof entry);
        }
    }
}

Call makeCall(const Function &function, const Arena &arena, std::uint64_t seed, std::uint64_t index,
              const CallMixture &mixture) {
    Call call = makeWideCall(function, arena, seed, index, mixture);
    narrow(call);
    return call;
}

} // namespace support
