// A matrix times a constant, single or an array, as stored or transposed. One rounded product per element; objects,
// rows and columns in ascending order.
#pragma once

#include "frame/elementwise.h"
#include "frame/untested_position.h"
#include "frame/walk.h"
#include "matrix/rows.h"

namespace vonkk3::matrix {

// ---- Exceptions -----------------------------------------------------------------------------------------------------

// Real32 of fixed size works rows in lanes where elements are adjacent.
template <class D, class Columns>
inline constexpr bool scalesInLanes = std::is_same_v<typename D::Element, Real32> &&Columns::isFixed &&
                                      (D::layout == Layout::Standard || D::layout == Layout::L);

// mTc of 4x4 in P, both types, never tests position 8 of its source's table.
template <class A, class Columns>
inline constexpr bool scalesPosition8Untested =
    A::isTransposed && !A::isArray && Columns::value == 4 && A::layout == Layout::P;

// ---- All objects ----------------------------------------------------------------------------------------------------

template <class A, class Operation, class D, std::size_t order, class Count>
VONKK3_INLINE VonkStatus scaleInLanes(const A &a, const Operation &times, const D &d, Fixed<order> size, Count count) {
    if (count == 0) return vonkOk;
    if constexpr (A::isArray && A::layout == Layout::Standard && !A::isTransposed)
        if (workAsOneRange<order>(times, size, count, d, a)) [[likely]]
            return vonkOk;
    return workMatrices<order, order * order, false>(times, count, d, a);
}

// d(n, i, j) = a(n, i, j) * value
template <class A, class D, class Columns, class Rows, class Count>
VONKK3_INLINE VonkStatus scale(const A &a, typename D::Element value, const D &d, Columns columns, Rows rows,
                               Count count) {
    using T = typename D::Element;
    const WithConstant<T, Product> times{Constant<T>(value)};
    if (anyNull(a, d)) return vonkErrNullPtr;
    if (columns.isZero() || rows.isZero()) return vonkErrSize;
    if constexpr (Count::isArray && !testsTablesLater<T, Columns>)
        if (anyTableEntryNull(std::size_t(columns) * rows, a, d)) return vonkErrNullPtr;

    if constexpr (scalesInLanes<D, Columns>) return scaleInLanes(a, times, d, columns, count);
    else if constexpr (Count::isArray)
        return workArrays<T>(times, rows, columns, count, d.words(columns),
                             a.words(A::isTransposed ? std::size_t(rows) : std::size_t(columns)));
    else {
        const auto source = a.view(0, A::isTransposed ? rows : columns);
        const auto view = d.view(0, columns);
        if constexpr (scalesPosition8Untested<A, Columns>)
            return workSingle<D>(view, rows, columns, times, Position8Untested{source});
        else return workSingle<D>(view, rows, columns, times, source);
    }
}

} // namespace vonkk3::matrix
