// Cholesky decomposition, row by row: the lower factor l with the reciprocals of its diagonal. l(i, j) is a(i, j) less
// the sum over k < j of l(i, k) l(j, k), times l(j, j); l(i, i) is 1 / sqrt of what is left of a(i, i). Every member
// reaches one of six kernels; the array forms call them object by object and stop at the first failure.
#include "model/families.h"
#include "model/overlaps.h"

namespace model {

namespace {

struct CholeskyDecomposition : Execution {
    std::uint64_t order = dimension("order");
    Operand src = matrix("src", order, order);
    Operand dst = matrix("dst", order, order);
    // The kernels without a loop, which hold the whole factor in the arithmetic unit and never read the destination.
    bool isStraight = order >= 3 && order <= 6 && !hasTables();
    Numbers held = {}; // of these: the factor as it came out of the arithmetic, by rows

    // What a kernel is handed: the table of positions, or the address to which base, stride, entry and shift add up.
    bool objectIsNull(const Operand &operand) const { return !hasTables() && operand.element(object, 0, 0) == 0; }

    // Only a destination that is the source, element on element, is fixed: whether an element of the source is read
    // before or after the factor's elements ahead of it are stored is free, and so is whether these are kept or read
    // back. A source element that is used up by the time its bytes are overwritten does not matter.
    void checkOverlaps() const {
        Places to, from;
        for (std::uint64_t i = 0; i < order; ++i)
            for (std::uint64_t j = 0; j <= i; ++j) {
                to.push_back(dst.element(object, i, j));
                from.push_back(src.element(object, i, j));
            }
        markOpenIf(storesOverLaterElements(to, from, form.elementSize()));
    }

    Wide factor(std::uint64_t i, std::uint64_t j) const {
        return isStraight ? held[i * order + j] : load(dst.element(object, i, j));
    }
    void storeFactor(std::uint64_t i, std::uint64_t j, Wide value) {
        held[i * order + j] = value;
        store(dst.element(object, i, j), value);
    }
    // The general loop of Real64 takes products in pairs and rounds what is left after the last pair; what an odd last
    // product leaves goes on unrounded.
    Wide reduced(std::uint64_t i, std::uint64_t j) const {
        const std::uint64_t endOfPairs = j - j % 2;
        Wide rest = load(src.element(object, i, j));
        for (std::uint64_t k = 0; k < j; ++k) {
            if (!isStraight && k == endOfPairs) rest = rounded(rest);
            rest = subtract(rest, multiply(factor(i, k), factor(j, k)));
        }
        return !isStraight && j == endOfPairs ? rounded(rest) : rest;
    }
    // A NaN fails like a zero, but for one test that stands the other way round.
    bool isRefused(Wide pivot, std::uint64_t i) const {
        const bool isReversed = isStraight && !isReal32() && order <= 4 && i == 0;
        return isReversed ? 0 >= pivot : !(pivot > 0);
    }
    // Rounded once, but through tables of positions, where root and reciprocal are two operations of the element type.
    Wide reciprocalRoot(Wide pivot) const {
        if (hasTables()) return divide(1, squareRoot(pivot));
        const ElementArithmetic extended(Element::real64, memory);
        return kept(extended.divide(1, extended.squareRoot(pivot)));
    }

    Status factorObject() {
        if (objectIsNull(src) || objectIsNull(dst)) return statusNullPointer;
        checkOverlaps();
        held.assign(order * order, 0);
        for (std::uint64_t i = 0; i < order; ++i) {
            for (std::uint64_t j = 0; j < i; ++j) storeFactor(i, j, multiply(reduced(i, j), factor(j, j)));
            const Wide pivot = reduced(i, i);
            if (isRefused(pivot, i)) return statusNotPositiveDefinite;
            storeFactor(i, i, reciprocalRoot(pivot));
        }
        return statusOk;
    }

    Status run() {
        if (order == 0 || count() == 0) return statusSize;
        if (isStraight) // these kernels step from element to element by whole elements
            for (Operand *operand : {&src, &dst}) operand->elementStride &= ~(std::uint64_t{form.elementSize()} - 1);
        const std::uint64_t objects = form.isArray() ? arguments.times("count") : 1;
        for (object = 0; object < objects; ++object)
            if (const Status status = factorObject(); status != statusOk) return status;
        return statusOk;
    }
};

} // namespace

Status decomposeCholesky(const Execution &execution) { return CholeskyDecomposition{execution}.run(); }

} // namespace model
