// A matrix times a constant, single or an array, as stored or transposed. One rounded product per element; objects,
// rows and columns in ascending order.
#pragma once

#include "frame/untested_position.h"
#include "frame/walk.h"
#include "matrix/elements.h"
#include "matrix/rows.h"
#include "matrix/runs.h"

namespace vonkk3::matrix {

struct Product {
    __m128 operator()(__m128 a, __m128 b) const { return _mm_mul_ps(a, b); }
};

// ---- Members that behave unlike their siblings ----------------------------------------------------------------------

// Real32 of fixed size works rows in lanes where elements are adjacent.
template <class D, class Columns>
inline constexpr bool scalesInLanes = std::is_same_v<typename D::Element, Real32> &&Columns::isFixed &&
                                      (D::layout == Layout::Standard || D::layout == Layout::L);

// mTc of 4x4 in P, both types, never tests position 8 of its source's table.
template <class A, class Columns>
inline constexpr bool scalesPosition8Untested =
    A::isTransposed && !A::isArray && Columns::value == 4 && A::layout == Layout::P;

// Which members look whether all rows are aligned, and then move them so.
template <class A, class Columns> inline constexpr bool scaleLooksAtAlignment = !A::isTransposed && Columns::value != 3;

// ---- All objects ----------------------------------------------------------------------------------------------------

template <std::size_t order, class A, class D, class Count>
VONKK3_INLINE VonkStatus scaleRuns(const A &a, Real32 value, const D &d, Count count) {
    if constexpr (A::isArray && A::layout == Layout::Standard) {
        const std::size_t bytes = count * objectBytes<order>;
        const std::byte *const from = a.view(0).base;
        std::byte *const to = d.view(0).base;
        if (areOneRun<order>(a, d) && !runsAhead(to, from, bytes)) [[likely]]
            return workStream(StoredStream{from}, ConstantStream{_mm_set1_ps(value)}, to, bytes, Product()), vonkOk;
    }
    return forEachObject(
        count,
        [&](std::size_t n) VONKK3_INLINED {
            workRun<order, Storing::atTheEnd>(StoredRun<order>(a.view(n).base), ConstantRun(value), d.view(n).base,
                                              Product());
            return vonkOk;
        },
        a, d);
}

template <class A, class D, std::size_t order, class Count>
VONKK3_INLINE VonkStatus scaleInLanes(const A &a, Real32 value, const D &d, Fixed<order>, Count count) {
    if (count == 0) return vonkOk;
    if constexpr (!A::isTransposed)
        if (areRuns<order>(a, d)) [[likely]]
            return scaleRuns<order>(a, value, d, count);
    const auto scaleObject = [&]<Placement placement>(std::size_t n) VONKK3_INLINED {
        workRows<order, placement>(rowsOf<order, placement>(a.view(n)), ConstantRows<order>(value), d.view(n),
                                   Product());
        return vonkOk;
    };
    return forEachObject(
        count,
        [&](std::size_t n) VONKK3_INLINED {
            if constexpr (scaleLooksAtAlignment<A, Fixed<order>>)
                if (haveAlignedRows(a.view(n), d.view(n)))
                    return scaleObject.template operator()<Placement::aligned>(n);
            return scaleObject.template operator()<Placement::anywhere>(n);
        },
        a, d);
}

// d(n, i, j) = a(n, i, j) * value
template <class A, class D, class Columns, class Rows, class Count>
VONKK3_INLINE VonkStatus scale(const A &a, typename D::Element value, const D &d, Columns columns, Rows rows,
                               Count count) {
    using W = Working<typename D::Element>;
    if (anyNull(a, d)) return vonkErrNullPtr;
    if (columns.isZero() || rows.isZero()) return vonkErrSize;
    if constexpr (Count::isArray)
        if (anyTableEntryNull(std::size_t(columns) * rows, a, d)) return vonkErrNullPtr;

    if constexpr (scalesInLanes<D, Columns>) return scaleInLanes(a, value, d, columns, count);
    else
        return forEachObject(
            count,
            [&](std::size_t n) VONKK3_INLINED {
                const auto times = [value](W element) VONKK3_INLINED { return element * W(value); };
                const auto source = a.view(n, A::isTransposed ? rows : columns);
                const auto view = d.view(n, columns);
                if constexpr (scalesPosition8Untested<A, Columns>)
                    return workElements<true>(view, rows, columns, times, Position8Untested{source});
                else return workElements<!Count::isArray>(view, rows, columns, times, source);
            },
            a, d);
}

} // namespace vonkk3::matrix
