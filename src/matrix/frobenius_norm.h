// The root of the sum of the squares of all elements, of single matrices and arrays. Results are packed in every
// layout.
#pragma once

#include "frame/walk.h"
#include "matrix/norm_kernels.h"

namespace vonkk3::matrix {

// ---- Members that behave unlike their siblings ----------------------------------------------------------------------

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

// Real64 of run-time size rounds the sum to 64 bits ahead of the root, but not in the pointer layouts.
template <class T, class A, class Columns>
inline constexpr bool roundsSum = std::is_same_v<T, Real64> && !Columns::isFixed && !A::isTable;

// ---- One object -----------------------------------------------------------------------------------------------------

inline Real32 squareRoot(Real32 value) { return __builtin_sqrtf(value); }
inline Wide squareRoot(Wide value) { return __builtin_sqrtl(value); }

template <NormOrder way, class T, class View>
VONKK3_INLINE Working<T> sumOfSquares(const View &a, std::size_t columns, std::size_t rows) {
    using W = Working<T>;
    W sum = 0;
    const auto addSquare = [&](std::size_t i, std::size_t j) VONKK3_INLINED {
        const W element = a.load(i, j);
        sum = sum + element * element;
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

// ---- All objects ----------------------------------------------------------------------------------------------------

template <class A, std::size_t order, class Count>
VONKK3_INLINE VonkStatus normsInLanes(const A &a, Fixed<order> size, std::byte *results, Count count) {
    return forEachObject(
        count,
        [&](std::size_t n) VONKK3_INLINED {
            store1(results + n * sizeof(Real32), rootByEstimate(sumOfSquares(a.view(n), size)));
            return vonkOk;
        },
        a);
}

// The list entries of a block are tested together, those of the objects that fill no block never.
template <class A, std::size_t order>
VONKK3_INLINE VonkStatus normsByFour(const A &a, Fixed<order> size, std::byte *results, std::size_t count) {
    std::size_t n = 0;
    for (; n + 4 <= count; n += 4) {
        if (a.listHasNull(n) || a.listHasNull(n + 1) || a.listHasNull(n + 2) || a.listHasNull(n + 3))
            return vonkErrNullPtr;
        const auto view = [&](std::size_t k) VONKK3_INLINED { return a.view(n + k); };
        store4(results + n * sizeof(Real32), rootByEstimate(sumsOfSquares(view, size)));
    }
    for (; n < count; ++n) store1(results + n * sizeof(Real32), rootByEstimate(sumOfSquares(a.view(n), size)));
    return vonkOk;
}

template <class A, class Columns, class Rows, class T, class Count>
VONKK3_INLINE VonkStatus frobeniusNorm(const A &a, Columns columns, Rows rows, T *results, Count count) {
    constexpr NormOrder way = normOrder<T, A, Columns>();
    if (anyNull(a, results)) return vonkErrNullPtr;
    if (columns.isZero() || rows.isZero()) return vonkErrSize;
    if (anyTableEntryNull(std::size_t(columns) * rows, a)) return vonkErrNullPtr;

    const auto cells = reinterpret_cast<std::byte *>(results);
    if constexpr (way == NormOrder::inLanes) return normsInLanes(a, columns, cells, count);
    else if constexpr (way == NormOrder::inLanesByFour) return normsByFour(a, columns, cells, count);
    else
        return forEachObject(
            count,
            [&](std::size_t n) VONKK3_INLINED {
                Working<T> sum = sumOfSquares<way, T>(a.view(n, columns), columns, rows);
                if constexpr (roundsSum<T, A, Columns>) sum = round<T>(sum);
                storeAt<T>(cells + n * sizeof(T), round<T>(squareRoot(sum)));
                return vonkOk;
            },
            a);
}

} // namespace vonkk3::matrix
