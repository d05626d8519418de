// Frobenius norms: sums of squares in an order that differs from form to form, and three ways to the root of the sum.
// The forms in lanes come to it by the processor's estimate of a reciprocal root, and some take four objects at a time,
// which add in another order than the objects that are left over.
#include "model/families.h"
#include "model/overlaps.h"
#include "model/sums.h"

#include <algorithm>

namespace model {

namespace {

struct FrobeniusNorm : Execution {
    std::uint64_t columns = dimension("cols");
    std::uint64_t rows = dimension("rows");
    Operand src = matrix("src", rows, columns);

    Numbers squares() const {
        Numbers made = load(placesOf(src, object, rows, columns));
        for (Wide &number : made) number = squared(number);
        return made;
    }

    // ---- One after the other

    // Array forms go by columns, and some of them backwards.
    Places terms() const {
        if (!form.isArray()) return placesOf(src, object, rows, columns);
        Places places;
        for (std::uint64_t j = 0; j < columns; ++j)
            for (std::uint64_t i = 0; i < rows; ++i) places.push_back(src.element(object, i, j));
        const bool goesBackwards = isReal32() && form.size != 0 && (hasTables() || form.layout == Layout::stridedList);
        if (goesBackwards) std::ranges::reverse(places);
        return places;
    }
    // Whether the sum runs through the result's cell or stays in a register to the end is free, so the cell must not
    // lie in the object itself.
    void oneByOne() const {
        const Places places = terms();
        markOpenIf(anyOverlap(places, {result()}, form.elementSize()));
        Wide sum = 0;
        for (const std::uintptr_t place : places) sum = add(sum, squared(load(place)));
        // Of Real64; Real32 rounds all along.
        const bool roundsSum = form.size == 0 && !hasTables();
        store(result(), squareRoot(roundsSum ? rounded(sum) : sum));
    }

    // ---- In lanes: the columns one by one, then their sums

    Wide column(const Numbers &squares, std::uint64_t j) const {
        Numbers p;
        for (std::uint64_t i = 0; i < rows; ++i) p.push_back(squares[i * columns + j]);
        switch (form.size) {
        case 3: return sumAs("0+1+2", *this, p);
        case 4: return sumAs("(0+1)+(2+3)", *this, p);
        case 5: return sumAs("(0+1)+(2+3)+4", *this, p);
        default: return sumAs(j < 4 ? "(0+1)+(2+3)+(4+5)" : "(0+2+4)+(1+3+5)", *this, p);
        }
    }
    Wide sumInLanes(bool isInBlock) const {
        const Numbers p = squares();
        if (isInBlock && form.size == 3) return sumAs("((0+1+8)+(2+3))+((4+5)+(6+7))", *this, p);
        Numbers sums;
        for (std::uint64_t j = 0; j < columns; ++j) sums.push_back(column(p, j));
        switch (form.size) {
        case 3: return sumAs("0+1+2", *this, sums);
        case 4: return sumAs(isInBlock ? "(0+1)+(2+3)" : "(0+2)+(1+3)", *this, sums);
        case 5: return sumAs("(0+2)+(1+3)+4", *this, sums);
        default: return sumAs("(0+2)+(1+3)+(4+5)", *this, sums);
        }
    }
    // Array forms in lanes of these orders take four objects at a time. The list entries of a block are tested
    // together, those of the objects that are left over not at all.
    Status blocksAndRest() {
        const std::uint64_t objects = count();
        for (object = 0; isInBlockOfFour(object);) {
            Numbers roots;
            for (std::uint64_t n = object; n < object + 4; ++n)
                if (anyListEntryIsNull({&src}, n)) return statusNullPointer;
            for (std::size_t k = 0; k < 4; ++k, ++object) roots.push_back(rootByEstimate(*this, sumInLanes(true)));
            object -= 4;
            for (std::size_t k = 0; k < 4; ++k, ++object) store(result(), roots[k]);
        }
        for (; object < objects; ++object) store(result(), rootByEstimate(*this, sumInLanes(false)));
        return statusOk;
    }

    Status run() {
        if (columns == 0 || rows == 0) return statusSize;
        if (hasTables() && anyTableEntryIsNull({&src})) return statusNullPointer;
        if (hasLanes() && form.isArray() && form.size <= 4) return blocksAndRest();
        return overObjects({&src}, [&] {
            if (hasLanes()) store(result(), rootByEstimate(*this, sumInLanes(false)));
            else oneByOne();
            return statusOk;
        });
    }
};

} // namespace

Status takeFrobeniusNorm(const Execution &execution) { return FrobeniusNorm{execution}.run(); }

} // namespace model
