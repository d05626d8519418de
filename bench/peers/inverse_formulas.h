// Determinants and inverses as one writes them by hand: cofactors of row 0, each in its own words, one division.
// Elements are a(i, j) and x(i, j); W is what they are worked in.
#pragma once

#include <cstddef>

namespace bench::plain {

template <class W, class A> [[gnu::always_inline]] inline W determinant3(const A &a) {
    const auto at = [&](int i, int j) __attribute__((always_inline)) { return W(a(std::size_t(i), std::size_t(j))); };
    return (at(2, 0) * at(1, 2) - at(1, 0) * at(2, 2)) * at(0, 1) +
           (at(2, 1) * at(1, 0) - at(2, 0) * at(1, 1)) * at(0, 2) +
           (at(1, 1) * at(2, 2) - at(1, 2) * at(2, 1)) * at(0, 0);
}

template <class W, class A> [[gnu::always_inline]] inline W determinant4(const A &a) {
    const auto at = [&](int i, int j) __attribute__((always_inline)) { return W(a(std::size_t(i), std::size_t(j))); };
    const auto minor = [&](int j, int k) { return at(2, j) * at(3, k) - at(2, k) * at(3, j); };
    const W m01 = minor(0, 1), m02 = minor(0, 2), m03 = minor(0, 3);
    const W m12 = minor(1, 2), m13 = minor(1, 3), m23 = minor(2, 3);
    return (at(1, 1) * m23 - at(1, 2) * m13 + at(1, 3) * m12) * at(0, 0) -
           (at(1, 0) * m23 - at(1, 2) * m03 + at(1, 3) * m02) * at(0, 1) +
           (at(1, 0) * m13 - at(1, 1) * m03 + at(1, 3) * m01) * at(0, 2) -
           (at(1, 0) * m12 - at(1, 1) * m02 + at(1, 2) * m01) * at(0, 3);
}

template <class W, class A, class X> [[gnu::always_inline]] inline void invert3(const A &a, X &x) {
    const auto at = [&](int i, int j) __attribute__((always_inline)) { return W(a(std::size_t(i), std::size_t(j))); };
    const W c0 = at(1, 1) * at(2, 2) - at(1, 2) * at(2, 1);
    const W c1 = at(1, 2) * at(2, 0) - at(1, 0) * at(2, 2);
    const W c2 = at(1, 0) * at(2, 1) - at(1, 1) * at(2, 0);
    const W r = 1 / (at(0, 0) * c0 + at(0, 1) * c1 + at(0, 2) * c2);
    x(0, 0) = c0 * r;
    x(0, 1) = (at(0, 2) * at(2, 1) - at(0, 1) * at(2, 2)) * r;
    x(0, 2) = (at(0, 1) * at(1, 2) - at(0, 2) * at(1, 1)) * r;
    x(1, 0) = c1 * r;
    x(1, 1) = (at(0, 0) * at(2, 2) - at(0, 2) * at(2, 0)) * r;
    x(1, 2) = (at(0, 2) * at(1, 0) - at(0, 0) * at(1, 2)) * r;
    x(2, 0) = c2 * r;
    x(2, 1) = (at(0, 1) * at(2, 0) - at(0, 0) * at(2, 1)) * r;
    x(2, 2) = (at(0, 0) * at(1, 1) - at(0, 1) * at(1, 0)) * r;
}

// The cofactors of two rows from the minors of the two others.
template <class W, class A, class X> [[gnu::always_inline]] inline void invert4(const A &a, X &x) {
    const auto at = [&](int i, int j) __attribute__((always_inline)) { return W(a(std::size_t(i), std::size_t(j))); };
    const auto upper = [&](int j, int k) { return at(0, j) * at(1, k) - at(0, k) * at(1, j); };
    const auto lower = [&](int j, int k) { return at(2, j) * at(3, k) - at(2, k) * at(3, j); };
    const W u01 = upper(0, 1), u02 = upper(0, 2), u03 = upper(0, 3);
    const W u12 = upper(1, 2), u13 = upper(1, 3), u23 = upper(2, 3);
    const W l01 = lower(0, 1), l02 = lower(0, 2), l03 = lower(0, 3);
    const W l12 = lower(1, 2), l13 = lower(1, 3), l23 = lower(2, 3);
    const W r = 1 / (u01 * l23 - u02 * l13 + u03 * l12 + u12 * l03 - u13 * l02 + u23 * l01);
    x(0, 0) = (at(1, 1) * l23 - at(1, 2) * l13 + at(1, 3) * l12) * r;
    x(0, 1) = (at(0, 2) * l13 - at(0, 1) * l23 - at(0, 3) * l12) * r;
    x(0, 2) = (at(3, 1) * u23 - at(3, 2) * u13 + at(3, 3) * u12) * r;
    x(0, 3) = (at(2, 2) * u13 - at(2, 1) * u23 - at(2, 3) * u12) * r;
    x(1, 0) = (at(1, 2) * l03 - at(1, 0) * l23 - at(1, 3) * l02) * r;
    x(1, 1) = (at(0, 0) * l23 - at(0, 2) * l03 + at(0, 3) * l02) * r;
    x(1, 2) = (at(3, 2) * u03 - at(3, 0) * u23 - at(3, 3) * u02) * r;
    x(1, 3) = (at(2, 0) * u23 - at(2, 2) * u03 + at(2, 3) * u02) * r;
    x(2, 0) = (at(1, 0) * l13 - at(1, 1) * l03 + at(1, 3) * l01) * r;
    x(2, 1) = (at(0, 1) * l03 - at(0, 0) * l13 - at(0, 3) * l01) * r;
    x(2, 2) = (at(3, 0) * u13 - at(3, 1) * u03 + at(3, 3) * u01) * r;
    x(2, 3) = (at(2, 1) * u03 - at(2, 0) * u13 - at(2, 3) * u01) * r;
    x(3, 0) = (at(1, 1) * l02 - at(1, 0) * l12 - at(1, 2) * l01) * r;
    x(3, 1) = (at(0, 0) * l12 - at(0, 1) * l02 + at(0, 2) * l01) * r;
    x(3, 2) = (at(3, 1) * u02 - at(3, 0) * u12 - at(3, 2) * u01) * r;
    x(3, 3) = (at(2, 0) * u12 - at(2, 1) * u02 + at(2, 2) * u01) * r;
}

} // namespace bench::plain
