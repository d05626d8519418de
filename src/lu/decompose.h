// LU decomposition by Gaussian elimination with partial pivoting (unit lower factor, updates row by row), through a
// permutation instead of row exchanges. The factors stay in the rows where the matrix had them.
#pragma once

#include "frame/batch.h"
#include "lu/arithmetic.h"
#include "lu/last_pivots.h"
#include "lu/rows.h"

namespace vonkk3::lu {

// Pivots below this are taken for zero: an absolute number, and the same for both element types.
inline constexpr Real32 pivotTolerance = 0x1p-23F;

// ---- Members that behave unlike their siblings ----------------------------------------------------------------------

// In two ways Real64 of 3x3, 4x4 and 5x5 goes apart from run-time size and 6x6.
template <class Order> inline constexpr bool isSmallFixed = Order::isFixed &&Order::value != 6;

// The first: the Real64 search takes candidates in pairs. When the first of a pair and the best so far are unordered
// (one is a NaN), some forms take the candidate's value, some its position, some both. Real32 forms take neither.
struct UnorderedCandidate {
    bool replacesValue;
    bool replacesPosition;
};

template <class T, bool isArray, class Order> constexpr UnorderedCandidate unorderedCandidate() {
    if (std::is_same_v<T, Real32>) return {false, false};
    if (isSmallFixed<Order>) return {false, true};
    return {true, isArray};
}

// The second: 3x3, 4x4 and 5x5 update rows with the quotient as the division left it, the others with the rounded
// multiplier that the matrix keeps. At reduced precision that still shows where the quotient leaves the Real64 range.
template <class Order> inline constexpr bool updatesWithRoundedMultiplier = !isSmallFixed<Order>;

// The last pivot test of an array looks beyond that pivot: see last_pivots.h.

// ---- One object -----------------------------------------------------------------------------------------------------

// A NaN does not pass.
template <class W> inline bool passesAsPivot(W value) { return magnitude(value) >= W(pivotTolerance); }
template <std::size_t chains> VONKK3_INLINE bool passesAsPivot(const Packs<chains> &value) {
    return inAllLanes(magnitude(value), [](Pack a) VONKK3_INLINED { return a >= Pack(pivotTolerance); });
}

// The position from k on of the row whose element in column k is largest in magnitude; the first of equals. Candidates
// are selected without branches: which one wins is as good as random.
template <bool isArray, class T, class Rows, class Order>
VONKK3_INLINE std::size_t findPivot(const Rows &rows, std::size_t k, Order order) {
    using W = Working<T>;
    constexpr UnorderedCandidate unordered = unorderedCandidate<T, isArray, Order>();
    W best = magnitude(W(rows.load(k, k)));
    std::size_t position = k;
    forIndices(k + 1, order, order, [&](std::size_t i) VONKK3_INLINED {
        const W candidate = magnitude(W(rows.load(i, k)));
        bool replacesValue = candidate > best;
        bool replacesPosition = replacesValue;
        const bool isFirstOfPair = (i - k) % 2 == 1 && i + 1 < order;
        if ((unordered.replacesValue || unordered.replacesPosition) && isFirstOfPair) {
            const bool isUnordered = __builtin_isunordered(candidate, best);
            replacesValue |= unordered.replacesValue && isUnordered;
            replacesPosition |= unordered.replacesPosition && isUnordered;
        }
        best = replacesValue ? candidate : best;
        position = replacesPosition ? i : position;
    });
    return position;
}

// Takes the multiple of pivot row k that clears column k out of row i, and keeps the multiplier in its place.
template <class T, class Rows, class Order>
VONKK3_INLINE void eliminateRow(Rows &rows, std::size_t i, std::size_t k, Order order, const WorkedAs<T> &pivot) {
    using W = WorkedAs<T>;
    const W quotient = W(rows.load(i, k)) / pivot;
    const T multiplier = rounded<T>(quotient);
    rows.store(i, k, multiplier);
    const W factor = negated(updatesWithRoundedMultiplier<Order> ? W(multiplier) : quotient);
    forIndices(k + 1, order, order, [&](std::size_t j) VONKK3_INLINED {
        rows.store(i, j, rounded<T>(W(rows.load(k, j)) * factor + W(rows.load(i, j))));
    });
}

template <bool isArray, class T, class Rows, class Order>
VONKK3_INLINE void bringPivot(Rows &rows, std::size_t k, Order order) {
    if constexpr (isPacks<T>) {
        typename Rows::Mask isPivot[Order::value];
        findLargest(
            k, order, [&](std::size_t i) VONKK3_INLINED { return magnitude(rows.load(i, k)); }, isPivot);
        rows.exchange(k, isPivot);
    } else rows.exchange(k, findPivot<isArray, T>(rows, k, order));
}

// Brings the pivot of column k to position k and clears the column below it; false if the pivot is too small.
template <bool isArray, class T, class Rows, class Order>
VONKK3_INLINE bool eliminateColumn(Rows &rows, std::size_t k, Order order) {
    bringPivot<isArray, T>(rows, k, order);
    const WorkedAs<T> pivot = rows.load(k, k);
    if (!passesAsPivot(pivot)) return false;
    forIndices(k + 1, order, order, [&](std::size_t i) VONKK3_INLINED { eliminateRow<T>(rows, i, k, order, pivot); });
    return true;
}

template <bool isArray, class T, class Rows, class Order> VONKK3_INLINE bool eliminateColumns(Rows &rows, Order order) {
    return everyIndex(0, order - 1, order,
                      [&](std::size_t k) VONKK3_INLINED { return eliminateColumn<isArray, T>(rows, k, order); });
}

template <bool isArray, class T, class Rows, class Factors, class Order>
VONKK3_INLINE VonkStatus eliminate(Rows &rows, const Factors &factors, Order order, std::size_t n) {
    const bool regular = eliminateColumns<isArray, T>(rows, order);
    rows.finish();
    if (!regular) return vonkErrSingular;
    const Working<T> last = factors.load(rows.physical(order - 1), testedLastColumn(order, n));
    return passesAsPivot(last) ? vonkOk : vonkErrSingular;
}

template <bool isArray, class Source, class Factors, class Order>
VONKK3_INLINE VonkStatus decomposeObject(const Source &source, const Factors &factors, std::byte *pivots, Order order,
                                         std::size_t n) {
    using T = typename Factors::Element;
    if constexpr (fitsRegisters<Factors, Order>)
        if (mayWorkInRegisters(source, factors, order)) {
            RowsInRegisters<T, Factors, Order::value> rows(source, factors, pivots);
            return eliminate<isArray, T>(rows, factors, order, n);
        }
    RowsInMemory<T, Factors, Order> rows(source, factors, pivots, order);
    return eliminate<isArray, T>(rows, factors, order, n);
}

// ---- Batches --------------------------------------------------------------------------------------------------------

template <std::size_t order> struct DecomposeBatch {
    static constexpr std::size_t chains = 1;
    MatricesOfBatch<order> src, dst;
    VectorsOfBatch<order> pivots;
    LastPivots<order> lastPivots;

    template <class Source, class Factors>
    VONKK3_INLINE DecomposeBatch(const Source &src, std::uint32_t *pivots, const Factors &dst, std::size_t count)
        : src(src, count), dst(dst, count), pivots(packedBlocks(pivots, order, count)),
          lastPivots(this->dst.view, this->pivots.view) {}

    Access access() const { return accessOf(src.view, dst.view); }
    template <Access access> VONKK3_INLINE void hoist() {
        src.template hoist<access>();
        dst.template hoist<access>();
    }

    template <Access access, std::size_t chains> VONKK3_INLINE bool work(std::size_t n) const {
        RowsOfBatch<chains, order> rows;
        src.template gather<access>(n, rows.elements);
        if (!eliminateColumns<true, Packs<chains>>(rows, fixed<order>)) return false;

        std::uint32_t physical[chains * packWidth][order];
        const VectorsOfBatch<order> blocks(packedBlocks(&physical[0][0], order, chains * packWidth));
        blocks.template scatter<Access::rows>(0, rows.rows);
        const auto own = [&](std::size_t k, std::size_t i, std::size_t j)
                             VONKK3_INLINED { return rows.element(k, i, j); };
        if (!lastPivots.pass(n, physical, own, [](Real32 last) { return passesAsPivot(last); })) return false;

        pivots.template scatter<Access::rows>(n, rows.rows);
        if constexpr (access == Access::rows)
            scatterRowsInOrder(
                dst.view, n, [&](std::size_t k, std::size_t i) VONKK3_INLINED { return physical[k][i]; },
                rows.elements);
        else {
            rows.takeBackExchanges();
            dst.template scatter<access>(n, rows.elements);
        }
        return true;
    }
};

// From how many objects on batches are quicker than one by one. Small matrices are quick enough; and the alias test of
// lists and tables costs as much as several objects.
template <std::size_t order> std::size_t leastToDecompose(const ObjectsView &factors, Access access) {
    if (access == Access::any) return order < 5 ? std::size_t(-1) : 16 * packWidth;
    return factors.indirection == ObjectsView::Indirection::none ? 2 * packWidth : 8 * packWidth;
}

template <class Source, class Factors, std::size_t order, class One>
VONKK3_INLINE VonkStatus decomposeInBatches(const Source &src, std::uint32_t *pivots, const Factors &dst, Fixed<order>,
                                            std::size_t count, const One &one) {
    DecomposeBatch<order> batch(src, pivots, dst, count);
    if (count < leastToDecompose<order>(batch.dst.view, batch.access())) return forEachPlainly(count, one);
    const Aliasing aliasing(count, writes(batch.dst.view), writes(batch.pivots.view), readsInPlace(batch.src.view));
    return forEachBatch(batch, aliasing, count, one);
}

// ---- All objects ----------------------------------------------------------------------------------------------------

// Objects one after the other, each through all its steps; the first singular one ends the call.
template <class Source, class Factors, class Order, class Count>
VONKK3_INLINE VonkStatus decompose(const Source &src, std::uint32_t *pivots, const Factors &dst, Order order,
                                   Count count) {
    if (anyNull(src, pivots, dst)) return vonkErrNullPtr;
    if (order.isZero()) return vonkErrSize;
    if (anyTableEntryNull(order * order, src, dst)) return vonkErrNullPtr;
    const auto one = [&](std::size_t n) VONKK3_INLINED {
        if (src.listHasNull(n) || dst.listHasNull(n)) [[unlikely]]
            return VonkStatus(vonkErrNullPtr);
        return decomposeObject<Count::isArray>(src.view(n, order), dst.view(n, order), pivotBlock(pivots, n, order),
                                               order, n);
    };
    if constexpr (worksInBatches<Factors>)
        if (count >= 2 * packWidth)
            return withFixedOrder(
                order,
                [&](auto size) VONKK3_INLINED {
                    if constexpr (size < 4) return forEachPlainly(count, one);
                    else return decomposeInBatches(src, pivots, dst, size, count, one);
                },
                [&]() VONKK3_INLINED { return forEachPlainly(count, one); });
    return forEachObject(count, one);
}

} // namespace vonkk3::lu
