// LU decomposition with partial pivoting through a permutation: rows never move, and the array forms look for the last
// pivot at a displaced place.
#include "model/families.h"
#include "model/overlaps.h"

#include <cmath>
#include <numeric>
#include <utility>

namespace model {

namespace {

struct LuDecomposition : Execution {
    std::uint64_t order = dimension("order");
    Operand src = matrix("src", order, order);
    Operand dst = matrix("dst", order, order);
    // Of the Real64 forms: the sizes whose kernels differ from the general loop.
    bool isSmallKernel = form.size >= 3 && form.size <= 5;
    std::vector<std::uint32_t> rows = {}; // the permutation of the object at work, as it stands in pivots

    std::uintptr_t pivots() const { return arguments.pointer("pivots") + object * order * 4; }
    std::uintptr_t at(std::uint64_t i, std::uint64_t j) const { return dst.element(object, rows[i], j); }
    // Absolute, and the same for both element types.
    static bool isBelowTolerance(Wide pivot) { return !(std::fabs(pivot) >= 0x1p-23); }

    // Marks what would show whether a factor, a row or a row index is kept in a register or read again, which is free:
    // an element of the destination that shares bytes with another one, or with the object's own row indices. A source
    // under those indices is left open along with it.
    // A source that overlaps the destination is no such case: the copy walks forward, and then the source is done with.
    void checkOverlaps() const {
        const std::size_t size = form.elementSize();
        const Places to = placesOf(dst, object, order, order);
        for (const Places &places : {to, placesOf(src, object, order, order)})
            for (const std::uintptr_t place : places) markOpenIf(overlap(place, size, pivots(), order * 4));
        markOpenIf(shareBytes(to, size));
    }

    void setPivot(std::uint64_t i, std::uint32_t row) {
        rows[i] = row;
        memory.store(pivots() + i * 4, row);
    }
    void exchange(std::uint64_t k, std::uint64_t b) {
        const std::uint32_t row = rows[k];
        setPivot(k, rows[b]);
        setPivot(b, row);
    }
    // The first of the largest magnitudes. Real64 forms take the candidates in pairs, and what they do when the first
    // of a pair cannot be ordered against the best so far (one of them is a NaN) differs between them.
    std::uint64_t search(std::uint64_t k) const {
        Wide best = std::fabs(load(at(k, k)));
        std::uint64_t position = k;
        for (std::uint64_t i = k + 1; i < order; ++i) {
            const Wide candidate = std::fabs(load(at(i, k)));
            const bool isFirstOfPair = (i - (k + 1)) % 2 == 0 && i + 1 < order;
            if (!isReal32() && isFirstOfPair && std::isunordered(candidate, best)) {
                if (!isSmallKernel) best = candidate;
                if (isSmallKernel || form.isArray()) position = i;
            } else if (std::isgreater(candidate, best)) {
                best = candidate;
                position = i;
            }
        }
        return position;
    }

    // The small kernels go on with the quotient as it came out of the division, the others with what they have stored.
    // That shows at every setting of the precision: even at 53 bits a quotient may leave the range of a 64-bit element.
    void eliminate(std::uint64_t k, std::uint64_t i) const {
        const Wide quotient = divide(load(at(i, k)), load(at(k, k)));
        store(at(i, k), quotient);
        const Wide factor = negated(isSmallKernel ? quotient : rounded(quotient));
        for (std::uint64_t j = k + 1; j < order; ++j)
            store(at(i, j), multiplyAdd(load(at(k, j)), factor, load(at(i, j))));
    }

    // Object n is tested n rows further on, as if the matrices were packed, whatever the row stride is. For n at least
    // 1 that is another row, another object or what lies behind the array, as it stands by then.
    std::uintptr_t lastPivotAddress() const {
        const std::uint64_t last = order - 1;
        if (hasTables()) return dst.throughSlot(object, (rows[last] + object) * order + last);
        return at(last, last) + object * order * dst.elementStride;
    }

    Status decomposeObject() {
        checkOverlaps();
        moveObject(dst, src, order, order);
        rows.assign(order, 0);
        for (std::uint64_t i = 0; i < order; ++i) setPivot(i, static_cast<std::uint32_t>(i));
        for (std::uint64_t k = 0; k + 1 < order; ++k) {
            exchange(k, search(k));
            if (isBelowTolerance(load(at(k, k)))) return statusSingular;
            for (std::uint64_t i = k + 1; i < order; ++i) eliminate(k, i);
        }
        return isBelowTolerance(load(lastPivotAddress())) ? statusSingular : statusOk;
    }

    Status run() {
        if (order == 0) return statusSize;
        if (hasTables() && anyTableEntryIsNull({&src, &dst})) return statusNullPointer;
        return overObjects({&src, &dst}, [&] { return decomposeObject(); });
    }
};

} // namespace

Status decomposeLu(const Execution &execution) { return LuDecomposition{execution}.run(); }

} // namespace model
