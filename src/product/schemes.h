// The running sums that products are made of where no lane kernel serves: cell by cell, term by term, and the cell
// follows every step, so an operand that overlaps it sees what was stored.
#pragma once

#include "frame/extent.h"
#include "frame/walk.h"

namespace vonkk3::product {

// A Real64 sum stays wide in the standard and strided layouts, where its roundings on the way to the cell are lost; in
// the pointer and list layouts the cell itself is the accumulator, and the sum is rounded at every step.
template <class T, Layout layout>
inline constexpr bool accumulatesInCell = std::is_same_v<T, Real64> && (layout != Layout::Standard) &&
                                          (layout != Layout::S2);

// How the cell follows its sum. Storing every step shows only through operands that overlap the cell, so where it is
// known that none does, the last store is enough.
enum class Steps { stored, left };

// Starts cell (i, j) of d at +0 and adds a(i, k) * b(k, j) for ascending k. Table entries, where they are tested here,
// come one by one: that of the cell, then those of each term just before it is added; false at a null one, with what
// was summed up by then left in the cell.
template <class T, bool inCell, bool testsEntries, Steps steps = Steps::stored, class A, class B, class D>
VONKK3_INLINE bool sumIntoCell(const A &a, const B &b, const D &d, std::size_t i, std::size_t j, std::size_t terms,
                               Working<T> &sum) {
    using W = Working<T>;
    if (testsEntries && d.hasNullEntry(i, j)) return false;
    if constexpr (steps == Steps::stored) d.store(i, j, T(0));
    sum = 0;
    for (std::size_t k = 0; k < terms; ++k) {
        if (testsEntries && (a.hasNullEntry(i, k) || b.hasNullEntry(k, j))) return false;
        sum = sum + W(a.load(i, k)) * W(b.load(k, j));
        if (inCell) sum = round<T>(sum);
        if constexpr (steps == Steps::stored) d.store(i, j, round<T>(sum));
    }
    if constexpr (steps == Steps::left) d.store(i, j, round<T>(sum));
    return true;
}

// The whole product, rows outermost.
template <class T, bool inCell, bool testsEntries, Steps steps = Steps::stored, class A, class B, class D>
VONKK3_INLINE VonkStatus sumIntoCells(const A &a, const B &b, const D &d, std::size_t rows, std::size_t columns,
                                      std::size_t terms) {
    Working<T> sum;
    for (std::size_t i = 0; i < rows; ++i)
        for (std::size_t j = 0; j < columns; ++j)
            if (!sumIntoCell<T, inCell, testsEntries, steps>(a, b, d, i, j, terms, sum)) return vonkErrNullPtr;
    return vonkOk;
}

// Whether the cells lie apart from both operands, as far as they lie in rows of adjacent elements; others are not
// asked.
template <class View> inline constexpr bool knowsExtent = false;
template <class T> inline constexpr bool knowsExtent<RowsView<T>> = true;
template <class View> inline constexpr bool knowsExtent<TransposedView<View>> = knowsExtent<View>;
template <class View> inline constexpr bool knowsExtent<ColumnView<View>> = knowsExtent<View>;

template <class T> VONKK3_INLINE Extent extentOf(const RowsView<T> &view, std::size_t rows, std::size_t columns) {
    return Extent(view, rows, columns);
}
template <class View>
VONKK3_INLINE Extent extentOf(const TransposedView<View> &view, std::size_t rows, std::size_t columns) {
    return extentOf(view.stored, columns, rows);
}
template <class View> VONKK3_INLINE Extent extentOf(const ColumnView<View> &view, std::size_t rows, std::size_t) {
    return extentOf(view.vector, 1, rows);
}

template <class A, class B, class D>
VONKK3_INLINE bool cellsLieApart(const A &a, const B &b, const D &d, std::size_t rows, std::size_t columns,
                                 std::size_t terms) {
    if constexpr (knowsExtent<A> && knowsExtent<B> && knowsExtent<D>) {
        if (rows == 0 || columns == 0 || terms == 0) return false;
        const Extent cells = extentOf(d, rows, columns);
        return areApart(cells, extentOf(a, rows, terms)) && areApart(cells, extentOf(b, terms, columns));
    } else return false;
}

// The product of one object, with the steps stored unless nobody can tell.
template <class T, bool inCell, bool testsEntries, class A, class B, class D>
VONKK3_INLINE VonkStatus sumObject(const A &a, const B &b, const D &d, std::size_t rows, std::size_t columns,
                                   std::size_t terms) {
    if (cellsLieApart(a, b, d, rows, columns, terms))
        return sumIntoCells<T, inCell, testsEntries, Steps::left>(a, b, d, rows, columns, terms);
    return sumIntoCells<T, inCell, testsEntries>(a, b, d, rows, columns, terms);
}

} // namespace vonkk3::product
