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

// What is added to element (i, j) when its sum is finished; nothing, but in Gaxpy.
struct NoAddend {
    static constexpr bool isNone = true;
};
template <class View> struct Addend {
    static constexpr bool isNone = false;
    View view;
};
template <class View> Addend(View) -> Addend<View>;

// The whole product, rows outermost.
template <class T, bool inCell, bool testsEntries, class A, class B, class D, class W = NoAddend>
VONKK3_INLINE VonkStatus sumIntoCells(const A &a, const B &b, const D &d, std::size_t rows, std::size_t columns,
                                      std::size_t terms, const W &addend = {}) {
    Working<T> sum;
    for (std::size_t i = 0; i < rows; ++i)
        for (std::size_t j = 0; j < columns; ++j) {
            if (!sumIntoCell<T, inCell, testsEntries>(a, b, d, i, j, terms, sum)) return vonkErrNullPtr;
            if constexpr (!W::isNone) d.store(i, j, round<T>(sum + Working<T>(addend.view.load(i, j))));
        }
    return vonkOk;
}

// ---- The same sums where d is disjoint from all that is read: every element is stored once --------------------------

// The 80-bit unit is busy with nothing but the operations, so Real64 leaves out the first addition: a sum that begins
// at its first product comes out the same as one from +0 unless all terms are zeros. A -0 is recognised by its bits and
// summed again.
template <class T> inline constexpr bool beginsAtFirstProduct = std::is_same_v<T, Real64>;

inline bool isNegativeZero(const std::byte *real64) { return loadAt<std::uint64_t>(real64) == std::uint64_t(1) << 63; }

template <class T, class A, class B, class D, class W = NoAddend>
VONKK3_INLINE void sumOnce(const A &a, const B &b, const D &d, std::size_t rows, std::size_t columns, std::size_t terms,
                           const W &addend = {}) {
    const auto sumFrom = [&](std::size_t first, std::size_t i, std::size_t j) VONKK3_INLINED {
        const auto term = [&](std::size_t k)
                              VONKK3_INLINED { return Working<T>(a.load(i, k)) * Working<T>(b.load(k, j)); };
        Working<T> sum = first == 0 ? Working<T>(0) : term(0);
        for (std::size_t k = first; k < terms; ++k) sum = sum + term(k);
        if constexpr (!W::isNone) sum = sum + Working<T>(addend.view.load(i, j));
        d.store(i, j, round<T>(sum));
    };
    for (std::size_t i = 0; i < rows; ++i)
        for (std::size_t j = 0; j < columns; ++j) {
            sumFrom(beginsAtFirstProduct<T>, i, j);
            if (beginsAtFirstProduct<T> && isNegativeZero(d.at(i, j))) [[unlikely]]
                sumFrom(0, i, j);
        }
}

} // namespace vonkk3::product
