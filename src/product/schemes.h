// The running sums that products are made of where no lane kernel serves: cell by cell, term by term, and the cell
// follows every step, so an operand that overlaps it sees what was stored.
#pragma once

#include "frame/aliasing.h"
#include "frame/walk.h"

namespace vonkk3::product {

// A Real64 sum stays wide in the standard and strided layouts, where its roundings on the way to the cell are lost; in
// the pointer and list layouts the cell itself is the accumulator, and the sum is rounded at every step.
template <class T, Layout layout>
inline constexpr bool accumulatesInCell = std::is_same_v<T, Real64> && (layout != Layout::Standard) &&
                                          (layout != Layout::S2);

// Starts cell (i, j) of d at +0 and adds a(i, k) * b(k, j) for ascending k. Table entries, where they are tested here,
// come one by one: that of the cell, then those of each term just before it is added; false at a null one, with what
// was summed up by then left in the cell.
template <class T, bool inCell, bool testsEntries, class A, class B, class D>
VONKK3_INLINE bool sumIntoCell(const A &a, const B &b, const D &d, std::size_t i, std::size_t j, std::size_t terms,
                               Working<T> &sum) {
    using W = Working<T>;
    if (testsEntries && d.hasNullEntry(i, j)) return false;
    d.store(i, j, T(0));
    sum = 0;
    for (std::size_t k = 0; k < terms; ++k) {
        if (testsEntries && (a.hasNullEntry(i, k) || b.hasNullEntry(k, j))) return false;
        sum = sum + W(a.load(i, k)) * W(b.load(k, j));
        if (inCell) sum = round<T>(sum);
        d.store(i, j, round<T>(sum));
    }
    return true;
}

// The whole product, rows outermost.
template <class T, bool inCell, bool testsEntries, class A, class B, class D>
VONKK3_INLINE VonkStatus sumIntoCells(const A &a, const B &b, const D &d, std::size_t rows, std::size_t columns,
                                      std::size_t terms) {
    Working<T> sum;
    for (std::size_t i = 0; i < rows; ++i)
        for (std::size_t j = 0; j < columns; ++j)
            if (!sumIntoCell<T, inCell, testsEntries>(a, b, d, i, j, terms, sum)) return vonkErrNullPtr;
    return vonkOk;
}

// ---- The same sums where no cell lies on a factor -------------------------------------------------------------------
// What happens to a cell on the way to its sum cannot be seen then, and it is stored once.

// The 80-bit unit is busy with nothing but the operations, so Real64 leaves out the first addition: a sum that begins
// at its first product comes out the same as one from +0 unless all terms are zeros. A -0 is found out by its bits and
// summed anew.
template <class T> inline constexpr bool beginsAtFirstProduct = std::is_same_v<T, Real64>;

inline bool isNegativeZero(const std::byte *real64) { return loadAt<std::uint64_t>(real64) == std::uint64_t(1) << 63; }

template <class View> inline constexpr bool hasExtent = false;
template <class T> inline constexpr bool hasExtent<RowsView<T>> = true;
template <class T> inline constexpr bool hasExtent<TransposedView<RowsView<T>>> = true;

// The plain path of arrays that have a fast one: few objects, and operands that overlap. A fixed order is none of the
// arguments.
template <class T, std::size_t order, std::size_t fixedColumns, class A, class B, class D>
VONKK3_APART void sumIntoCellsPlainly(const A &a, const B &b, const D &d, std::size_t rows, std::size_t columns,
                                      std::size_t terms) {
    const A first = a; // what a view holds stays in registers only if no store may change it
    const B second = b;
    const D cells = d;
    if constexpr (order == 0) sumIntoCells<T, false, false>(first, second, cells, rows, columns, terms);
    else sumIntoCells<T, false, false>(first, second, cells, order, fixedColumns, order);
}

template <class T>
VONKK3_INLINE Extent extentOf(const TransposedView<RowsView<T>> &view, std::size_t rows, std::size_t columns) {
    return extentOf(view.stored, columns, rows);
}

// A vector of adjacent elements as a matrix of one column.
template <class T> VONKK3_INLINE RowsView<T> asColumn(const RowsView<T> &vector) {
    return RowsView<T>(vector.base, sizeof(T));
}

// Looks first, and is false, and nothing done, where cells lie on factors.
template <class T, class A, class B>
VONKK3_INLINE bool sumOnceIfDisjoint(const A &a, const B &b, const RowsView<T> &d, std::size_t rows,
                                     std::size_t columns, std::size_t terms) {
    const Extent cells = extentOf(d, rows, columns);
    if (!disjoint(cells, extentOf(a, rows, terms)) || !disjoint(cells, extentOf(b, terms, columns))) return false;
    using W = Working<T>;
    for (std::size_t i = 0; i < rows; ++i)
        for (std::size_t j = 0; j < columns; ++j) {
            const auto term = [&](std::size_t k) VONKK3_INLINED { return W(a.load(i, k)) * W(b.load(k, j)); };
            W total = beginsAtFirstProduct<T> ? term(0) : W(0);
            for (std::size_t k = beginsAtFirstProduct<T>; k < terms; ++k) total = total + term(k);
            d.store(i, j, round<T>(total));
            if (beginsAtFirstProduct<T> && isNegativeZero(d.at(i, j))) [[unlikely]]
                sumIntoCell<T, false, false>(a, b, d, i, j, terms, total);
        }
    return true;
}

} // namespace vonkk3::product
