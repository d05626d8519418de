// Euclidean norms: the exact root of a sum of squares, or in the Real32 forms in lanes the processor's estimate of its
// reciprocal and one Newton step, which makes a NaN of the norm 0.
#include "model/families.h"
#include "model/overlaps.h"
#include "model/sums.h"

namespace model {

namespace {

struct Norm : Execution {
    std::uint64_t length = dimension("len");
    Operand src = vector("src", length);

    const char *tree() const {
        switch (length) {
        case 3: return "0+1+2";
        case 4: return "(0+1)+(2+3)";
        case 5: return "(0+1)+(2+3)+4";
        default: return "(0+1)+(2+3)+(4+5)";
        }
    }
    Wide norm() const {
        Numbers squares;
        for (std::uint64_t j = 0; j < length; ++j) squares.push_back(squared(load(src.element(object, j))));
        if (hasLanes()) return rootByEstimate(*this, sumAs(tree(), *this, squares));
        if (form.name == "vonkL2Norm_v_32f") return squareRoot(sumInLanes(*this, src.base, squares));
        Wide sum = 0; // squares of doubles do not leave the range of the extended type
        for (const Wide square : squares) sum = add(sum, square);
        return squareRoot(sum);
    }

    // The estimated forms take four objects at a time, and may load them all before the first result is stored.
    void checkOverlaps() const {
        for (std::uint64_t later = object + 1; hasLanes() && isInBlockOfFour(object) && later % 4 != 0; ++later)
            if (!src.isList() || !src.entryIsNull(later))
                markOpenIf(anyOverlap({result()}, placesOf(src, later, 1, length), form.elementSize()));
    }

    Status run() {
        if (length == 0) return statusSize;
        if (hasTables() && anyTableEntryIsNull({&src})) return statusNullPointer;
        return overObjects(form.name == "vonkL2Norm_va_32f_4x1_L" ? Operands{} : Operands{&src}, [&] {
            checkOverlaps();
            store(result(), norm());
            return statusOk;
        });
    }
};

} // namespace

Status takeNorm(const Execution &execution) { return Norm{execution}.run(); }

} // namespace model
