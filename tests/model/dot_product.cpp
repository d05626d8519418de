// Dot products: products added from left to right, but for a few Real32 forms with an order of their own, which in two
// of them hangs on the alignment of the operands.
#include "model/families.h"
#include "model/overlaps.h"
#include "model/sums.h"

namespace model {

namespace {

struct DotProduct : Execution {
    std::uint64_t length = dimension("len");
    Operand src1 = vector("src1", length);
    Operand src2 = vector("src2", length);
    bool takesBlocksBesideSingle = hasLanes() && form.group == "vav" && form.size <= 4;
    bool isArrayOfThree = form.name == "vonkDotProduct_vava_32f_3x1";

    bool anyTablePositionIsNull() const {
        for (std::uint64_t k = 0; k < length; ++k)
            if (src1.entryIsNull(k) || src2.entryIsNull(k)) return true;
        return false;
    }

    // One form of three elements does so in its blocks, and takes blocks only if every word that it has is aligned.
    bool addsOuterPairFirst() const {
        if (!isArrayOfThree || !isInBlockOfFour(object)) return false;
        const std::uint64_t together =
            src1.base | src2.base | arguments.pointer("dst") | src1.objectStride | src2.objectStride;
        return together % 16 == 0;
    }
    // Of Real64 at run-time size: the sum is a double between the pairs of terms and the odd one.
    std::uint64_t endOfPairs() const {
        const bool passesThroughDouble = form.size == 0 && (!form.isArray() || form.layout == Layout::list);
        return passesThroughDouble ? length - length % 2 : length;
    }
    Wide sum(const Numbers &products) const {
        if (form.name == "vonkDotProduct_vv_32f") return sumInLanes(*this, src2.base, products);
        if (takesBlocksBesideSingle && form.size == 4) return sumAs("(0+1)+(2+3)", *this, products);
        if (addsOuterPairFirst()) return sumAs("0+2+1", *this, products);
        Wide sum = 0;
        for (std::uint64_t j = 0; j < length; ++j) {
            if (j == endOfPairs()) sum = rounded(sum);
            sum = form.size != 0 && j == 0 ? products[j] : add(sum, products[j]);
        }
        return sum;
    }

    bool resultIsUnder(const Operand &source, std::uint64_t n) const {
        return anyOverlap({result()}, placesOf(source, n, 1, length), form.elementSize());
    }
    // Four objects in lanes may all be loaded before the first result is stored, and where there are such blocks the
    // single vector may be held or read anew. Everywhere else an object is done before the next one is looked at.
    void checkOverlaps() const {
        if (!takesBlocksBesideSingle && !isArrayOfThree) return;
        markOpenIf(takesBlocksBesideSingle && object + 1 < count() && resultIsUnder(src2, object));
        for (std::uint64_t later = object + 1; isInBlockOfFour(object) && later % 4 != 0; ++later)
            markOpenIf(resultIsUnder(src1, later) || (src2.isArray() && resultIsUnder(src2, later)));
    }

    Status run() {
        if (length == 0) return statusSize;
        if (hasTables() && anyTablePositionIsNull()) return statusNullPointer;
        const bool trustsList = form.layout == Layout::list && takesBlocksBesideSingle;
        return overObjects(trustsList ? Operands{} : Operands{&src1, &src2}, [&] {
            checkOverlaps();
            Numbers products;
            for (std::uint64_t j = 0; j < length; ++j)
                products.push_back(multiply(load(src1.element(object, j)), load(src2.element(object, j))));
            store(result(), sum(products));
            return statusOk;
        });
    }
};

} // namespace

Status multiplyVectors(const Execution &execution) { return DotProduct{execution}.run(); }

} // namespace model
