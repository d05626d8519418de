// The running sums that products are made of where no lane kernel serves: cell by cell, term by term, and the cell
// follows every step, so an operand that overlaps it sees what was stored.
#pragma once

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

} // namespace vonkk3::product
