// The root of the sum of the squares of all elements, of single matrices and arrays. Results are packed in every
// layout.
#pragma once

#include "frame/contiguous.h"
#include "frame/operations.h"
#include "frame/positions.h"
#include "matrix/norm_kernels.h"

namespace vonkk3::matrix {

// ---- Exceptions -----------------------------------------------------------------------------------------------------

// The order of a norm's additions and the way to its root.
enum class NormOrder {
    alongRows,     // rows from the first, left to right, from +0: single matrices
    downColumns,   // columns from the first, top to bottom, from +0: arrays
    backwards,     // columns from the last, bottom to top, from +0: arrays of Real32 of fixed size in P, PS2 and LS2
    inLanes,       // Real32 of fixed size, adjacent elements: the kernels' own, and a root by estimate
    inLanesByFour, // the same for arrays of 3x3 and 4x4, with another order for objects that fill blocks of four
};

template <class T, class A, class Columns> constexpr NormOrder normOrder() {
    constexpr bool isFixed32 = std::is_same_v<T, Real32> && Columns::isFixed;
    if (isFixed32) {
        if (A::layout == Layout::Standard || A::layout == Layout::L)
            return A::isArray && Columns::value <= 4 ? NormOrder::inLanesByFour : NormOrder::inLanes;
        if (A::isArray && A::layout != Layout::S2) return NormOrder::backwards;
    }
    return A::isArray ? NormOrder::downColumns : NormOrder::alongRows;
}

// Real64 of run-time size rounds the sum to 64 bits before the root, but not in the pointer layouts.
template <class T, class A, class Columns>
inline constexpr bool roundsSum = std::is_same_v<T, Real64> && !Columns::isFixed && !A::isTable;

// ---- One object, or the objects of a batch --------------------------------------------------------------------------

// From +0; `element(i, j)` is a number or a pack.
template <NormOrder way, class Number, class Element>
VONKK3_INLINE Number sumOfSquares(const Element &element, std::size_t columns, std::size_t rows) {
    Number sum = 0.0F;
    const auto addSquare = [&](std::size_t i, std::size_t j) VONKK3_INLINED {
        const Number a = element(i, j);
        sum = sum + a * a;
    };
    if constexpr (way == NormOrder::alongRows)
        for (std::size_t i = 0; i < rows; ++i)
            for (std::size_t j = 0; j < columns; ++j) addSquare(i, j);
    else if constexpr (way == NormOrder::downColumns)
        for (std::size_t j = 0; j < columns; ++j)
            for (std::size_t i = 0; i < rows; ++i) addSquare(i, j);
    else
        for (std::size_t j = columns; j-- > 0;)
            for (std::size_t i = rows; i-- > 0;) addSquare(i, j);
    return sum;
}

// Of arrays in the pointer layout.
template <NormOrder way> struct FrobeniusOfPacks {
    static constexpr bool isSum = false;
    template <class A> VONKK3_INLINE auto operator()(std::size_t rows, std::size_t columns, const A &a) const {
        return squareRoot(sumOfSquares<way, typename A::Number>(
            [&](std::size_t i, std::size_t j) VONKK3_INLINED { return a.load(i, j); }, columns, rows));
    }
};

// ---- All objects ----------------------------------------------------------------------------------------------------

template <bool areAdjacent, class A, std::size_t order>
VONKK3_INLINE void normOfBlock(const A &a, std::size_t n, Fixed<order> size, std::byte *results) {
    const auto view = [&](std::size_t k) VONKK3_INLINED { return a.view(n + k); };
    store4(results + n * sizeof(Real32), rootByEstimate(sumsOfSquares<areAdjacent>(view, size)));
}

template <class A, std::size_t order>
VONKK3_INLINE void normOfOne(const A &a, std::size_t n, Fixed<order> size, std::byte *results) {
    storeAt<Real32>(results + n * sizeof(Real32), rootByEstimate(_mm_cvtss_f32(sumOfSquares(a.view(n), size))));
}

// 3x3 and 4x4. The list entries of a block are tested together, those of the objects that fill no block never.
template <bool areAdjacent, class A, std::size_t order>
VONKK3_INLINE VonkStatus normsByFour(const A &a, Fixed<order> size, std::byte *results, std::size_t count) {
    std::size_t n = 0;
    for (; n + four <= count; n += four) {
        if (a.listHasNull(n) || a.listHasNull(n + 1) || a.listHasNull(n + 2) || a.listHasNull(n + 3))
            return vonkErrNullPtr;
        normOfBlock<areAdjacent>(a, n, size, results);
    }
    for (; n < count; ++n) normOfOne(a, n, size, results);
    return vonkOk;
}

// 6x6 gives the same results one by one or many at a time, but that must not be seen: no result may lie where a later
// object is read, and objects before a null list entry are complete.
template <class A> VONKK3_INLINE VonkStatus normsOfSix(const A &a, std::byte *results, std::size_t count) {
    const bool areClear =
        !A::isList && disjoint(extentOf(results, count * sizeof(Real32)), extentOfAll(a, 6, 6, count));
    const auto workBlock = [&](auto width, std::size_t first) VONKK3_INLINED {
        const Extent written = extentOf(results + first * sizeof(Real32), width * sizeof(Real32));
        if constexpr (A::isList) {
            const Address entries = a.address() + first * sizeof(void *);
            if (!disjoint(written, {entries, entries + width * sizeof(void *)})) return false;
        }
        for (std::size_t n = first; !areClear && n < first + width; ++n)
            if (a.listHasNull(n) || !disjoint(written, extentOf(a.view(n), 6, 6))) return false;
        const auto view = [&](std::size_t k) VONKK3_INLINED { return a.view(first + k); };
        storeLanes(results + first * sizeof(Real32), rootByEstimate(sumsOfSquaresOfSix<width>(view)));
        return true;
    };
    for (std::size_t n = 0; n < count;) {
        n += forEachBlock(count - n, true,
                          [&](auto width, std::size_t k) VONKK3_INLINED { return workBlock(width, n + k); });
        for (const std::size_t end = count - n < four ? count : n + four; n < end; ++n) {
            if (a.listHasNull(n)) return vonkErrNullPtr;
            normOfOne(a, n, fixed<6>, results);
        }
    }
    return vonkOk;
}

template <class A, class Columns, class RowCount, class T, class Count>
VONKK3_INLINE VonkStatus frobeniusNorm(const A &a, Columns columns, RowCount rows, T *results, Count count) {
    constexpr NormOrder way = normOrder<T, A, Columns>();
    if (anyNull(a, results)) return vonkErrNullPtr;
    if (columns.isZero() || rows.isZero()) return vonkErrSize;
    if (anyTableEntryNull(std::size_t(columns) * rows, a)) return vonkErrNullPtr;

    const auto cells = reinterpret_cast<std::byte *>(results);
    if constexpr (way == NormOrder::inLanes) {
        if constexpr (A::isArray && Columns::value == 6)
            if (count != 0 && areAdjacentRows<6>(6, a)) [[likely]]
                return normsOfSix(a.walkedBy(6 * sizeof(Real32)), cells, count);
        return forEachObject(
            count, [&](std::size_t n) VONKK3_INLINED { return normOfOne(a, n, columns, cells), vonkOk; }, a);
    } else if constexpr (way == NormOrder::inLanesByFour) {
        if constexpr (Columns::value == 3)
            if (areAdjacentRows<3>(3, a)) [[likely]]
                return normsByFour<true>(a.walkedBy(3 * sizeof(Real32)), columns, cells, count);
        return normsByFour<false>(a, columns, cells, count);
    } else {
        const auto one = [&](std::size_t n) VONKK3_INLINED {
            const auto view = a.view(n, columns);
            Working<T> sum = sumOfSquares<way, Working<T>>(
                [&](std::size_t i, std::size_t j) VONKK3_INLINED { return view.load(i, j); }, columns, rows);
            if constexpr (roundsSum<T, A, Columns>) sum = round<T>(sum);
            storeAt<T>(cells + n * sizeof(T), round<T>(squareRoot(sum)));
            return VonkStatus(vonkOk);
        };
        std::size_t done = 0;
        if constexpr (std::is_same_v<T, Real32> && A::isArray && A::isTable && Columns::value > 4) // not unrolled
            done = reduceArrays(FrobeniusOfPacks<way>(), cells, atRunTime(rows), atRunTime(columns), count,
                                a.words(columns));
        else if constexpr (std::is_same_v<T, Real32> && A::isArray && A::isTable)
            done = reduceArrays(FrobeniusOfPacks<way>(), cells, rows, columns, count, a.words(columns));
        return forEachObjectFrom(done, count, one, a);
    }
}

} // namespace vonkk3::matrix
