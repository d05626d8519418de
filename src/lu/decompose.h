// LU decomposition by Gaussian elimination with partial pivoting (unit lower factor, updates row by row), through a
// permutation instead of row exchanges. The factors stay in the rows where the matrix had them.
#pragma once

#include "frame/shared_batch.h"
#include "lu/arithmetic.h"
#include "lu/last_pivots.h"
#include "lu/rows.h"

#include <bit>

namespace vonkk3::lu {

// The singularity tolerance of pivots: an absolute number, and the same for both element types.
inline constexpr Real32 pivotTolerance = 0x1p-23F;

// ---- Exceptions -----------------------------------------------------------------------------------------------------

// Real64 of 3x3, 4x4 and 5x5 differs from run-time size and 6x6 in two respects.
template <class Order> inline constexpr bool isSmallFixed = Order::isFixed &&Order::value != 6;

// The first: the Real64 search takes candidates in pairs. When the first of a pair and the best so far are unordered
// (one is a NaN), some forms take the candidate's value, some its position, some both. Real32 forms take neither.
struct UnorderedCandidate {
    bool replacesValue;
    bool replacesPosition;
};

template <class T, class Order> VONKK3_INLINE UnorderedCandidate unorderedCandidate(bool isArray) {
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
    return inAllLanes(magnitude(value), [](auto a) VONKK3_INLINED { return a >= decltype(a)(pivotTolerance); });
}

// The same of the bits of a Real32, which is quicker where they are in memory: twice a number without its sign ascends
// with the magnitude, up to infinity.
inline bool passesAsPivot(std::uint32_t bits) {
    constexpr std::uint32_t least = 2 * std::bit_cast<std::uint32_t>(pivotTolerance);
    constexpr std::uint32_t infinity = 2 * std::bit_cast<std::uint32_t>(__builtin_inff());
    return 2 * bits - least <= infinity - least;
}

// The position from k on of the row whose element in column k is largest in magnitude; the first of equals. Candidates
// are selected without branches: which one wins is as good as random.
template <class T, class Rows, class Order>
VONKK3_INLINE std::size_t findPivot(const Rows &rows, std::size_t k, Order order, bool isArray) {
    using W = Working<T>;
    const UnorderedCandidate unordered = unorderedCandidate<T, Order>(isArray);
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

// Brings the pivot of column k to position k.
template <class T, class Rows, class Order>
VONKK3_INLINE void bringPivot(Rows &rows, std::size_t k, Order order, bool isArray) {
    if constexpr (isPacks<T>) {
        typename Rows::Mask isPivot[Order::value];
        findLargest(
            k, order, [&](std::size_t i) VONKK3_INLINED { return magnitude(rows.load(i, k)); }, isPivot);
        rows.exchange(k, isPivot);
    } else rows.exchange(k, findPivot<T>(rows, k, order, isArray));
}

// Column by column: brings the pivot and clears the column below it. False if a pivot is too small.
template <class T, class Rows, class Order> VONKK3_INLINE bool eliminateColumns(Rows &rows, Order order, bool isArray) {
    return everyIndex(0, order - 1, order, [&](std::size_t k) VONKK3_INLINED {
        bringPivot<T>(rows, k, order, isArray);
        const WorkedAs<T> pivot = rows.load(k, k);
        if (!passesAsPivot(pivot)) return false;
        forIndices(k + 1, order, order,
                   [&](std::size_t i) VONKK3_INLINED { eliminateRow<T>(rows, i, k, order, pivot); });
        return true;
    });
}

template <class T, class Factors>
VONKK3_INLINE VonkStatus testLastPivot(const Factors &factors, std::size_t row, std::size_t order, std::size_t n) {
    const Working<T> last = factors.load(row, testedLastColumn(order, n));
    return passesAsPivot(last) ? vonkOk : vonkErrSingular;
}

// In memory: right for all operands, whatever they overlap.
template <class Source, class Factors, class Order>
VONKK3_INLINE VonkStatus decomposeInMemory(const Source &source, const Factors &factors, std::byte *pivots, Order order,
                                           std::size_t n, bool isArray) {
    using T = typename Factors::Element;
    RowsInMemory<T, Factors, Order> rows(source, factors, pivots, order);
    if (!eliminateColumns<T>(rows, order, isArray)) return vonkErrSingular;
    return testLastPivot<T>(factors, rows[order - 1], order, n);
}
template <class Source, class Factors>
VONKK3_NOINLINE VonkStatus decomposeInMemoryByCall(Source source, Factors factors, std::byte *pivots, RunTime order,
                                                   std::size_t n) {
    return decomposeInMemory(source, factors, pivots, order, n, true);
}

// From order 5 on one body serves all views.
template <std::size_t order> VONKK3_NOINLINE bool eliminateByCall(LocalRows<order> &rows) {
    return eliminateColumns<Real32>(rows, fixed<order>, true);
}

template <bool copiesAsItReads, class Source, class Factors, std::size_t order>
VONKK3_INLINE VonkStatus decomposeLocally(const Source &source, const Factors &factors, std::byte *pivots,
                                          Fixed<order> size, std::size_t n) {
    LocalRows<order> rows;
    rows.template load<copiesAsItReads>(source, factors);
    const bool regular = order < 5 ? eliminateColumns<Real32>(rows, size, true) : eliminateByCall(rows);
    rows.store(factors, pivots);
    return regular ? testLastPivot<Real32>(factors, rows[order - 1], order, n) : vonkErrSingular;
}

template <class Source, class Factors, class Order>
VONKK3_INLINE VonkStatus decomposeObject(const Source &source, const Factors &factors, std::byte *pivots, Order order,
                                         std::size_t n, bool isArray) {
    using T = typename Factors::Element;
    if constexpr (!Order::isFixed || std::is_same_v<T, Real64>)
        return decomposeInMemory(source, factors, pivots, order, n, isArray);
    else if constexpr (std::is_same_v<Factors, TableView<T>>) {
        if (!areElementsDisjoint(factors, order)) [[unlikely]]
            return decomposeInMemoryByCall(source, factors, pivots, RunTime{order}, n);
        return decomposeLocally<true>(source, factors, pivots, order, n);
    } else {
        if (!areElementsDisjoint(factors, order) || !mayReadFirst(source, factors, order)) [[unlikely]]
            return decomposeInMemoryByCall(strided(source), strided(factors), pivots, RunTime{order}, n);
        return decomposeLocally<false>(source, factors, pivots, order, n);
    }
}

// ---- Batches --------------------------------------------------------------------------------------------------------

// Of a call.
struct DecomposeWords : MatrixWords {
    std::uint32_t *pivots;
};

template <std::size_t order> struct DecomposeBatch : MatrixBatch<order> {
    using MatrixBatch<order>::src, MatrixBatch<order>::dst;
    // A pivot waits for the column before it. Blends of two packs to a register take too long where there are no masks.
    static constexpr std::size_t chains = order <= 4 && (hasMasks || packsToRegister == 1) ? 2 : 1, chainsOfAny = 1;
    ObjectsView pivots;
    LastPivots<order> lastPivots;

    template <class Tables>
    VONKK3_INLINE DecomposeBatch(const DecomposeWords &words, std::size_t count, Tables throughTables)
        : MatrixBatch<order>(words, count, throughTables), pivots(packedBlocks(words.pivots, order, count)),
          lastPivots(dst.view, pivots) {}

    template <Access access, std::size_t chains> VONKK3_INLINE bool work(std::size_t n) const {
        if constexpr (access == Access::rows) {
            RowsOfBatch<chains, order, false> rows;
            src.template gather<access>(n, rows.elements);
            if (!factor(n, rows)) return false;
            scatterRowsInOrder(
                dst.view, n, [&](std::size_t k, std::size_t i) VONKK3_INLINED { return loadPivot(pivotsOf(n + k), i); },
                rows.elements);
        } else if constexpr (access == Access::positions && order <= 4) {
            RowsOfBatch<chains, order, true> rows;
            src.template gather<access>(n, rows.elements);
            if (!factor(n, rows)) return false;
            rows.takeBackExchanges();
            dst.template scatter<access>(n, rows.elements);
        } else {
            Packs<chains> elements[order][order];
            src.template gather<access>(n, elements);
            if (!factorInPlace(n, elements)) return false;
            dst.template scatter<access>(n, elements);
        }
        return true;
    }

private:
    std::byte *pivotsOf(std::size_t n) const { return reinterpret_cast<std::byte *>(pivots.object(n)); }

    // Stores the row indices if all is well.
    template <std::size_t chains, bool rowsReturn>
    VONKK3_INLINE bool factor(std::size_t n, RowsOfBatch<chains, order, rowsReturn> &rows) const {
        rows.begin();
        if (!eliminateColumns<Packs<chains>>(rows, fixed<order>, true)) return false;
        std::uint32_t lastRow[chains * packWidth];
        storePacks(reinterpret_cast<std::byte *>(lastRow), rows.rows[0][order - 1]);
        if (!lastPivots.passClear(n, lastRow, passesLast)) [[unlikely]] {
            auto copy = rows; // whose address may be known
            if (!lastPivotsPass(n, lastRow, copy)) return false;
        }
        scatterPacked(pivotsOf(n), rows.rows);
        return true;
    }
    // The factors in the rows where the matrix had them. One body for all arrays whose rows are not contiguous.
    template <std::size_t chains>
    VONKK3_NOINLINE bool factorInPlace(std::size_t n, Packs<chains> (&elements)[order][order]) const {
        RowsOfBatch<chains, order, true> rows;
        copyElements(elements, rows.elements);
        if (!factor(n, rows)) return false;
        rows.takeBackExchanges();
        copyElements(rows.elements, elements);
        return true;
    }

    static constexpr auto passesLast = [](auto numberOrBits) VONKK3_INLINED { return passesAsPivot(numberOrBits); };
    template <std::size_t chains, bool rowsReturn>
    VONKK3_NOINLINE bool lastPivotsPass(std::size_t n, const std::uint32_t (&lastRow)[chains * packWidth],
                                        RowsOfBatch<chains, order, rowsReturn> &rows) const {
        if constexpr (rowsReturn) rows.takeBackExchanges();
        return lastPivots.pass(
            n, lastRow, [&](std::size_t k, std::size_t i, std::size_t j) VONKK3_INLINED { return rows.bits(k, i, j); },
            passesLast);
    }
};

// From how many objects on batches are quicker than one by one, where branches depend on pivots. The alias test of
// lists and tables costs as much as several small objects.
template <std::size_t order> constexpr std::size_t leastToDecompose(bool areIndirect) {
    if (order >= 5 || !areIndirect) return packWidth;
    return (order == 4 ? 2 : 3) * packWidth;
}

// ---- All objects ----------------------------------------------------------------------------------------------------

// Objects one after the other, each through all its steps; the first singular one ends the call.
template <class Source, class Factors, class Order>
VONKK3_NOINLINE VonkStatus decomposePlainly(const DecomposeWords &words, Order sizes, std::size_t n, std::size_t to) {
    std::uint32_t *const pivots = words.pivots;
    const Order order = sizes;
    return knowingLists < isLight<Order> &&
           !Factors::isTable > (words.dst.isList, [&](auto areLists) VONKK3_INLINED -> VonkStatus {
               Source src(words.src);
               Factors dst(words.dst);
               src.isList = dst.isList = areLists;
               for (; n < to; ++n) {
                   if (src.listHasNull(n) || dst.listHasNull(n)) [[unlikely]]
                       return vonkErrNullPtr;
                   const VonkStatus status = decomposeObject(src.view(n, order), dst.view(n, order),
                                                             pivotBlock(pivots, n, order), order, n, true);
                   if (status != vonkOk) return status;
               }
               return vonkOk;
           });
}

template <class T, bool throughTables, class Order>
VONKK3_INLINE VonkStatus decomposePlainly(const DecomposeWords &words, Order order, std::size_t from, std::size_t to) {
    if constexpr (std::is_same_v<T, Real32> && !throughTables && (Order::value == 3 || Order::value == 4))
        if (areRowsContiguous<T>(words.src, words.dst))
            return decomposePlainly<ContiguousOperand<const T>, ContiguousOperand<T>>(words, order, from, to);
    using Source = SharedOperand<const T, throughTables>;
    return decomposePlainly<Source, SharedOperand<T, throughTables>>(words, order, from, to);
}

template <std::size_t order, bool throughTables>
VONKK3_NOINLINE VonkStatus decomposeInBatches(const DecomposeWords &words, std::size_t count) {
    const auto plainly = [&](std::size_t from, std::size_t to) VONKK3_INLINED {
        return decomposePlainly<Real32, throughTables>(words, fixed<order>, from, to);
    };
    if (count < leastToDecompose<order>(throughTables || words.dst.isList)) return plainly(0, count);
    DecomposeBatch<order> batch(words, count, std::bool_constant<throughTables>());
    const Aliasing aliasing(count, writes(batch.dst.view), writes(batch.pivots), readsInPlace(batch.src.view));
    return forEachBatch(batch, aliasing, count, [&](std::size_t n) { return plainly(n, n + 1); });
}

template <class Source, class Factors, class Order, class Count>
VONKK3_INLINE VonkStatus decompose(const Source &src, std::uint32_t *pivots, const Factors &dst, Order order,
                                   Count count) {
    using T = typename Factors::Element;
    if (anyNull(src, pivots, dst)) return vonkErrNullPtr;
    if (order.isZero()) return vonkErrSize;
    if (anyTableEntryNull(order * order, src, dst)) return vonkErrNullPtr;
    if constexpr (!Count::isArray)
        return decomposeObject(src.view(0, order), dst.view(0, order), pivotBlock(pivots, 0, order), order, 0, false);
    const DecomposeWords words{{src.words(order), dst.words(order)}, pivots};
    const auto plainly = [&]() VONKK3_INLINED { return decomposePlainly<T, Factors::isTable>(words, order, 0, count); };
    if constexpr (worksInBatches<Factors>)
        if (count >= packWidth)
            return withFixedOrder(
                order,
                [&](auto size) VONKK3_INLINED { return decomposeInBatches<size, Factors::isTable>(words, count); },
                plainly);
    return plainly();
}

} // namespace vonkk3::lu
