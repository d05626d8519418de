// Determinants of fixed order without a division or a test: the minors of the last two rows first, each level of
// larger minors built on the one below, row 0 last. W is the type in which all of it is worked; elements enter exactly.
#pragma once

#include "frame/unroll.h"
#include "frame/views.h"
#include "lu/element_in_memory.h"

#include <bit>
#include <utility>

namespace vonkk3::lu {

// ---- 3x3: three expansions, each with an order of its own -----------------------------------------------------------

// Along row 0, the last cofactor first.
template <class A> VONKK3_INLINE auto determinantAlongRow(const A &a) {
    return (a(2, 0) * a(1, 2) - a(1, 0) * a(2, 2)) * a(0, 1) + (a(2, 1) * a(1, 0) - a(2, 0) * a(1, 1)) * a(0, 2) +
           (a(1, 1) * a(2, 2) - a(1, 2) * a(2, 1)) * a(0, 0);
}

// Along column 0, from below.
template <class A> VONKK3_INLINE auto determinantAlongColumn(const A &a) {
    return (a(1, 2) * a(0, 1) - a(1, 1) * a(0, 2)) * a(2, 0) + (a(1, 1) * a(2, 2) - a(1, 2) * a(2, 1)) * a(0, 0) +
           (a(2, 1) * a(0, 2) - a(0, 1) * a(2, 2)) * a(1, 0);
}

// Along row 0, in order.
template <class A> VONKK3_INLINE auto determinantInOrder(const A &a) {
    return (a(1, 1) * a(2, 2) - a(2, 1) * a(1, 2)) * a(0, 0) + (a(1, 2) * a(2, 0) - a(2, 2) * a(1, 0)) * a(0, 1) +
           (a(1, 0) * a(2, 1) - a(2, 0) * a(1, 1)) * a(0, 2);
}

// ---- 4x4 ------------------------------------------------------------------------------------------------------------

// Minors are formed when they are needed and die early: with the sum so far and two terms they just fit the eight
// registers of the 80-bit unit. Sums run from left to right; grouping them in pairs would be no more exact.
template <class A> VONKK3_INLINE auto determinantOfFour(const A &a) {
    const auto minor = [&](std::size_t j, std::size_t k)
                           VONKK3_INLINED { return a(2, j) * a(3, k) - a(2, k) * a(3, j); };
    const auto m23 = minor(2, 3), m13 = minor(1, 3), m12 = minor(1, 2);
    auto sum = ((a(1, 1) * m23 - a(1, 2) * m13) + a(1, 3) * m12) * a(0, 0);
    const auto m03 = minor(0, 3), m02 = minor(0, 2);
    sum = sum - ((a(1, 0) * m23 - a(1, 2) * m03) + a(1, 3) * m02) * a(0, 1);
    const auto m01 = minor(0, 1);
    sum = sum + ((a(1, 0) * m13 - a(1, 1) * m03) + a(1, 3) * m01) * a(0, 2);
    return sum - ((a(1, 0) * m12 - a(1, 1) * m02) + a(1, 2) * m01) * a(0, 3);
}

// ---- 5x5 and 6x6 ----------------------------------------------------------------------------------------------------

using Columns = unsigned; // a set, bit j for column j

// The minors of the last rows, as many as the set has columns, by that set.
template <class W, std::size_t order> struct Minors { W of[1U << order]; };

// Term number `term` of the expansion of a minor along its first row, without its sign.
template <Columns columns, std::size_t term> constexpr std::size_t columnOfTerm() {
    Columns rest = columns;
    for (std::size_t k = 0; k < term; ++k) rest &= rest - 1;
    return std::countr_zero(rest);
}

template <Columns columns, std::size_t term, class A, class W, std::size_t order>
VONKK3_INLINE auto minorTerm(const A &a, const Minors<W, order> &below) {
    constexpr std::size_t row = order - std::popcount(columns);
    constexpr std::size_t column = columnOfTerm<columns, term>();
    constexpr Columns others = columns & ~(1U << column);
    if constexpr (std::popcount(others) == 1) return a(row, column) * a(row + 1, std::countr_zero(others));
    else return a(row, column) * below.of[others];
}

// Terms in pairs, (t0 - t1) + (t2 - t3) + ...: of all orders of addition the one with the least error.
template <Columns columns, std::size_t term, class A, class W, std::size_t order>
VONKK3_INLINE W minorPair(const A &a, const Minors<W, order> &below) {
    const W first = minorTerm<columns, term>(a, below);
    if constexpr (term + 1 == std::popcount(columns)) return first;
    else return first - minorTerm<columns, term + 1>(a, below);
}

template <Columns columns, class A, class W, std::size_t order>
VONKK3_INLINE void formMinor(const A &a, Minors<W, order> &minors) {
    constexpr std::size_t terms = std::popcount(columns);
    W sum = minorPair<columns, 0>(a, minors);
    if constexpr (terms > 2) sum = sum + minorPair<columns, 2>(a, minors);
    if constexpr (terms > 4) sum = sum + minorPair<columns, 4>(a, minors);
    minors.of[columns] = sum;
}

// All minors of so many rows.
template <std::size_t rows, class A, class W, std::size_t order, Columns... sets>
VONKK3_INLINE void formLevel(const A &a, Minors<W, order> &minors, std::integer_sequence<Columns, sets...>) {
    const auto formIfOfLevel = [&]<Columns columns>(std::integral_constant<Columns, columns>) VONKK3_INLINED {
        if constexpr (std::popcount(columns) == rows) formMinor<columns>(a, minors);
    };
    (formIfOfLevel(std::integral_constant<Columns, sets>{}), ...);
}

template <class W, std::size_t order, class A> VONKK3_INLINE W determinantByLevels(const A &a) {
    constexpr auto sets = std::make_integer_sequence<Columns, 1U << order>{};
    Minors<W, order> minors;
    formLevel<2>(a, minors, sets);
    formLevel<3>(a, minors, sets);
    formLevel<4>(a, minors, sets);
    formLevel<5>(a, minors, sets);
    if constexpr (order == 6) formLevel<6>(a, minors, sets);
    return minors.of[(1U << order) - 1];
}

} // namespace vonkk3::lu
