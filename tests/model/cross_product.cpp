// Cross products, written in three ways that differ in the sign of a zero: u v - w x, u v + (0 - w) x and u v + (-w) x.
// They also differ in what a destination over a source sees.
#include "model/families.h"
#include "model/overlaps.h"

namespace model {

namespace {

struct CrossProduct : Execution {
    Operand src1 = vector("src1", 3);
    Operand src2 = vector("src2", 3);
    Operand dst = vector("dst", 3);
    bool mixesArrayAndSingle = form.group == "vav" || form.group == "vva";
    // An array beside a single vector, but for the Real32 forms of adjacent elements.
    bool addsNegated = mixesArrayAndSingle && !hasLanes();
    bool loadsAllFirst = form.group == "vv" && form.layout == Layout::standard;

    Wide component(std::uint64_t i) const {
        const Wide u = load(src1.element(object, (i + 1) % 3));
        const Wide v = load(src2.element(object, (i + 2) % 3));
        const Wide w = load(src1.element(object, (i + 2) % 3));
        const Wide x = load(src2.element(object, (i + 1) % 3));
        if (addsNegated) return add(multiply(u, v), multiply(negated(w), x));
        return subtract(multiply(u, v), multiply(w, x));
    }
    void computeObject() const {
        Numbers results;
        for (std::uint64_t i = 0; i < 3; ++i) {
            results.push_back(component(i));
            if (!loadsAllFirst) store(dst.element(object, i), results[i]);
        }
        for (std::uint64_t i = 0; loadsAllFirst && i < 3; ++i) store(dst.element(object, i), results[i]);
    }

    bool overlapsFirst(std::uint64_t components, std::uintptr_t stored, const Operand &source, std::uint64_t n) const {
        return anyOverlap({stored}, placesOf(source, n, 1, components), form.elementSize());
    }
    // The forms that subtract are free in the order of their loads and stores, but for the pair that loads all six
    // elements first: no component may be stored over what a later one is made of. Component 2 is made of elements 0
    // and 1.
    void checkOwnOverlaps() const {
        if (addsNegated || loadsAllFirst) return;
        for (const Operand *source : {&src1, &src2})
            markOpenIf(overlapsFirst(3, dst.element(object, 0), *source, object) ||
                       overlapsFirst(2, dst.element(object, 1), *source, object));
    }
    // Where registers hold adjacent elements they may hold the single vector for all objects, and of one form four
    // objects may be loaded before the first of them is stored.
    void checkLaterOverlaps() const {
        const bool mayHoldSingle = mixesArrayAndSingle && !addsNegated && object + 1 < count();
        const bool isInBlock = form.name == "vonkCrossProduct_vava_32f_3x1" && isInBlockOfFour(object);
        for (const std::uintptr_t stored : placesOf(dst, object, 1, 3)) {
            markOpenIf(mayHoldSingle && overlapsFirst(3, stored, src1.isArray() ? src2 : src1, 0));
            for (std::uint64_t later = object + 1; isInBlock && later % 4 != 0; ++later)
                markOpenIf(overlapsFirst(3, stored, src1, later) || overlapsFirst(3, stored, src2, later));
        }
    }

    Status run() {
        if (hasTables() && anyTableEntryIsNull({&src1, &src2, &dst})) return statusNullPointer;
        return overObjects({&src1, &src2, &dst}, [&] {
            checkOwnOverlaps();
            checkLaterOverlaps();
            computeObject();
            return statusOk;
        });
    }
};

} // namespace

Status crossVectors(const Execution &execution) { return CrossProduct{execution}.run(); }

} // namespace model
