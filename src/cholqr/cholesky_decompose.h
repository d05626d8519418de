// Cholesky decomposition, row by row: each row of the lower factor is finished before the next is begun. The diagonal
// of what is stored holds the RECIPROCALS of the factor's, so that nobody divides later. Only lower triangles, with
// their diagonals, are read and written.
#pragma once

#include "cholqr/elements.h"
#include "cholqr/roots.h"
#include "cholqr/single_calls.h"
#include "frame/batch.h"

namespace vonkk3::cholqr {

// ---- Members that behave unlike their siblings ----------------------------------------------------------------------

// `count` 0 is an error here. And it is a signed number, but in the pointer layouts: with the top bit set there is
// nothing to do.
template <class Factor> inline constexpr bool countsWithSign = Factor::isArray && !Factor::isTable;

// Order 3 to 6, also if it comes at run time, goes a straight way where rows are rows: the factor is held in numbers of
// the working type and only stored, never read back. In Real64 that shows: there the loops read rounded elements.
template <class View> inline constexpr bool hasStraightWay = true;
template <class T> inline constexpr bool hasStraightWay<TableView<T>> = false;

// On the straight way an element stride counts in whole elements; what it has beyond them is dropped.
template <class T> inline RowsView<T> inWholeElements(const RowsView<T> &view) { return view; }
template <class T> inline StridedView<T> inWholeElements(const StridedView<T> &view) {
    return {view.base, view.rowStride, view.elementStride & -std::ptrdiff_t(sizeof(T))};
}

// The straight way of Real64 of order 3 and 4 lets a NaN pass as the very first pivot. It fails at the second, but by
// then has been stored.
template <class Number, std::size_t order>
inline constexpr bool letsFirstNanPass = std::is_same_v<Number, Wide> && (order == 3 || order == 4);

// ---- One object -----------------------------------------------------------------------------------------------------

// Real32 takes root and reciprocal in the 80-bit type and rounds once, but in the pointer layouts takes them in Real32
// and rounds twice.
template <class View>
using Roots = std::conditional_t<std::is_same_v<View, TableView<Real32>>, RoundedTwice, RoundedOnce>;

// A NaN is not.
template <class Number> inline bool isPositive(Number s) { return s > 0; }
template <std::size_t chains> VONKK3_INLINE bool isPositive(const Packs<chains> &s) {
    return inAllLanes(s, [](Pack a) VONKK3_INLINED { return a > Pack(0); });
}

template <std::size_t order, class Number> VONKK3_INLINE bool isPositiveFirst(const Number &s) {
    if constexpr (letsFirstNanPass<Number, order>) return !(0 >= s);
    else return isPositive(s);
}

// s - Σ f(i, k) f(j, k) for k below `terms`, one product at a time. Real64 is rounded behind the pairs of products;
// what a left-over product makes of it is not.
template <class Factor, class Number>
inline Number minusProducts(Number s, const Factor &f, std::size_t i, std::size_t j, std::size_t terms) {
    const std::size_t endOfPairs = terms / 2 * 2;
    for (std::size_t k = 0; k < endOfPairs; ++k) s = s - f.load(i, k) * f.load(j, k);
    s = f.rounded(s);
    return endOfPairs < terms ? s - f.load(i, endOfPairs) * f.load(j, endOfPairs) : s;
}

// Of any order, through memory.
template <class Source, class Factor>
[[gnu::noinline]] VonkStatus factorByLoops(Source source, Factor factor, std::size_t order) {
    const InMemory a{source};
    const InMemory f{factor};
    for (std::size_t i = 0; i < order; ++i) {
        for (std::size_t j = 0; j < i; ++j) f.store(i, j, minusProducts(a.load(i, j), f, i, j, j) * f.load(j, j));
        const auto s = minusProducts(a.load(i, i), f, i, i, i);
        if (!isPositive(s)) return vonkErrNotPosDef;
        f.store(i, i, Roots<Factor>()(s));
    }
    return vonkOk;
}

// The straight way, in the order of the loops: elements come from `load` and go to f and, as they are finished, to
// `store`.
template <class Number, std::size_t order, class Roots, class Load, class Store>
VONKK3_INLINE bool factorStraight(Number (&f)[order][order], Roots &&roots, const Load &load, const Store &store) {
    const auto minus = [&](Number s, std::size_t i, std::size_t j) VONKK3_INLINED {
        forIndices(0, j, fixed<order>, [&](std::size_t k) VONKK3_INLINED { s = s - f[i][k] * f[j][k]; });
        return s;
    };
    return everyIndex(0, order, fixed<order>, [&](std::size_t i) VONKK3_INLINED {
        forIndices(0, i, fixed<order>, [&](std::size_t j) VONKK3_INLINED {
            f[i][j] = minus(load(i, j), i, j) * f[j][j];
            store(i, j, f[i][j]);
        });
        const Number s = minus(load(i, i), i, i);
        if (!(i == 0 ? isPositiveFirst<order>(s) : isPositive(s))) return false;
        f[i][i] = roots(s);
        store(i, i, f[i][i]);
        return true;
    });
}

template <class Source, class Factor, std::size_t order>
VONKK3_INLINE VonkStatus factorStraight(const Source &source, const Factor &factor, Fixed<order>) {
    const InMemory a{inWholeElements(source)};
    const InMemory f{inWholeElements(factor)};
    using Number = typename decltype(f)::Number;
    Number inRegisters[order][order];
    const bool definite = factorStraight(
        inRegisters, RoundedOnce(), [&](std::size_t i, std::size_t j) VONKK3_INLINED { return a.load(i, j); },
        [&](std::size_t i, std::size_t j, Number value) VONKK3_INLINED { f.store(i, j, value); });
    return definite ? vonkOk : vonkErrNotPosDef;
}

template <class Source, class Factor, std::size_t order>
[[gnu::noinline]] VonkStatus factorStraightByCall(Source source, Factor factor) {
    return factorStraight(source, factor, fixed<order>);
}

template <class Source, class Factor>
VONKK3_INLINE VonkStatus factor(const Source &source, const Factor &factor, RunTime order) {
    if constexpr (hasStraightWay<Factor>) {
        switch (order) {
        case 3: return factorStraightByCall<Source, Factor, 3>(source, factor);
        case 4: return factorStraightByCall<Source, Factor, 4>(source, factor);
        case 5: return factorStraightByCall<Source, Factor, 5>(source, factor);
        case 6: return factorStraightByCall<Source, Factor, 6>(source, factor);
        default: break;
        }
    }
    return factorByLoops(source, factor, order);
}

template <class Source, class Factor, std::size_t order>
VONKK3_INLINE VonkStatus factor(const Source &source, const Factor &factor, Fixed<order>) {
    if constexpr (!hasStraightWay<Factor>) return factorByLoops(source, factor, order);
    else if constexpr (std::is_same_v<Factor, RowsView<Real32>>) return factorStraight(source, factor, fixed<order>);
    else return factorStraightByCall<Source, Factor, order>(source, factor);
}

// ---- Batches --------------------------------------------------------------------------------------------------------

// Matrices on the straight way. Where roots round once, they are filtered; if one is doubtful, all are taken anew.
template <std::size_t order, bool rootsRoundTwice> struct FactorBatch {
    static constexpr std::size_t chains = 2; // a root waits for the one before it
    MatricesOfBatch<order, true, Triangle::lower> src, dst;

    Access access() const { return accessOf(src.view, dst.view); }
    template <Access access> VONKK3_INLINE void hoist() {
        src.template hoist<access>();
        dst.template hoist<access>();
    }
    template <Access access, std::size_t chains> VONKK3_INLINE bool work(std::size_t n) const {
        Packs<chains> f[order][order];
        if constexpr (rootsRoundTwice) {
            if (!factorGathered<access>(n, f, RoundedTwice())) return false;
        } else {
            Filtered roots;
            if (!factorGathered<access>(n, f, roots)) return false;
            if (roots.hasDoubt() && !factorAnew<access>(n, f)) return false;
        }
        dst.template scatter<access>(n, f);
        return true;
    }

private:
    template <Access access, std::size_t chains, class Roots>
    VONKK3_INLINE bool factorGathered(std::size_t n, Packs<chains> (&f)[order][order], Roots &&roots) const {
        src.template gather<access>(n, f);
        return factorStraight(
            f, roots, [&](std::size_t i, std::size_t j) VONKK3_INLINED { return f[i][j]; },
            [](std::size_t, std::size_t, const Packs<chains> &) VONKK3_INLINED {});
    }
    template <Access access, std::size_t chains>
    VONKK3_NOINLINE bool factorAnew(std::size_t n, Packs<chains> (&f)[order][order]) const {
        return factorGathered<access>(n, f, LaneByLane());
    }
};

// On the straight way an element stride counts in whole elements.
template <class Operand, std::size_t order>
VONKK3_INLINE ObjectsView matricesOf(const Operand &operand, Fixed<order>, std::size_t count) {
    ObjectsView view = objectsOf(operand, order, order, count);
    if (Operand::isStrided) view.elementStride &= -std::ptrdiff_t(sizeof(Real32));
    return view;
}

template <class Source, class Factor, std::size_t order, class One>
VONKK3_INLINE VonkStatus factorInBatches(const Source &src, const Factor &dst, Fixed<order> size, std::size_t count,
                                         const One &one) {
    if constexpr (!Factor::isTable)
        if (const RoundingControl control; !control.bothRoundToNearest() || !control.wideHas53Bits())
            return forEachPlainly(count, one);
    using Matrices = MatricesOfBatch<order, true, Triangle::lower>;
    FactorBatch<order, Factor::isTable> batch{Matrices(matricesOf(src, size, count)),
                                              Matrices(matricesOf(dst, size, count))};
    return forEachBatch(batch, Aliasing(count, writes(batch.dst.view), readsInPlace(batch.src.view)), count, one);
}

// ---- All objects ----------------------------------------------------------------------------------------------------

// An array is a walk of calls for one object, each with its own tests: an object is refused if it begins at null, and
// the entries of tables and lists are not looked at.
template <class Source, class Factor, class Order, class Count>
VONKK3_INLINE VonkStatus choleskyDecompose(const Source &src, const Factor &dst, Order order, Count count) {
    if (anyNull(src, dst)) return vonkErrNullPtr;
    if (order.isZero() || count == 0) return vonkErrSize;
    if (countsWithSign<Factor> && hasTopBit(count)) return vonkOk;
    const auto one = [&](std::size_t n) VONKK3_INLINED {
        if (anyBeginsAtNull(n, src, dst)) return VonkStatus(vonkErrNullPtr);
        return factor(src.view(n, order), dst.view(n, order), order);
    };
    if constexpr (worksInBatches<Factor>)
        if (count >= packWidth)
            return withFixedOrder(
                order, [&](auto size) VONKK3_INLINED { return factorInBatches(src, dst, size, count, one); },
                [&]() VONKK3_INLINED { return forEachPlainly(count, one); });
    return forEachObject(count, one);
}

} // namespace vonkk3::cholqr
