// Inverses of 3x3 and 4x4 as the adjugate times the reciprocal of the determinant, element by element.
#pragma once

#include "lu/reciprocal.h"
#include "lu/small.h"

namespace vonkk3::lu {

// A 3x3 matrix's cofactors, transposed as the inverse has them, and the determinant along row 0.
template <class W> struct AdjugateOfThree {
    W elements[3][3];
    W determinant;

    template <class A> VONKK3_INLINE explicit AdjugateOfThree(const A &a) {
        elements[0][0] = a(1, 1) * a(2, 2) - a(1, 2) * a(2, 1);
        elements[1][0] = a(1, 2) * a(2, 0) - a(1, 0) * a(2, 2);
        elements[2][0] = a(1, 0) * a(2, 1) - a(1, 1) * a(2, 0);
        determinant = a(0, 0) * elements[0][0] + elements[1][0] * a(0, 1) + elements[2][0] * a(0, 2);
        elements[0][1] = a(0, 2) * a(2, 1) - a(0, 1) * a(2, 2);
        elements[1][1] = a(0, 0) * a(2, 2) - a(0, 2) * a(2, 0);
        elements[2][1] = a(0, 1) * a(2, 0) - a(0, 0) * a(2, 1);
        elements[0][2] = a(0, 1) * a(1, 2) - a(0, 2) * a(1, 1);
        elements[1][2] = a(0, 2) * a(1, 0) - a(0, 0) * a(1, 2);
        elements[2][2] = a(0, 0) * a(1, 1) - a(0, 1) * a(1, 0);
    }
};

// The 2x2 minors of two rows, by their columns.
template <class W> struct RowMinors {
    W m01, m02, m03, m12, m13, m23;

    template <class A> VONKK3_INLINE RowMinors(const A &a, std::size_t upper, std::size_t lower) {
        const auto minor = [&](std::size_t j, std::size_t k)
                               VONKK3_INLINED { return a(upper, j) * a(lower, k) - a(upper, k) * a(lower, j); };
        m01 = minor(0, 1), m02 = minor(0, 2), m03 = minor(0, 3);
        m12 = minor(1, 2), m13 = minor(1, 3), m23 = minor(2, 3);
    }
};

// A 4x4 matrix's cofactors, transposed: each a row's elements times minors of two other rows, which four cofactors
// share. The determinant along row 0 adds its terms in pairs, which has the least error.
template <class W> struct AdjugateOfFour {
    W elements[4][4];
    W determinant;

    template <class A> VONKK3_INLINE explicit AdjugateOfFour(const A &a) {
        const RowMinors<W> lower(a, 2, 3);
        formColumn(a, 0, 1, lower);
        determinant = (a(0, 0) * elements[0][0] + a(0, 1) * elements[1][0]) +
                      (a(0, 2) * elements[2][0] + a(0, 3) * elements[3][0]);
        formColumn(a, 1, 0, lower);
        const RowMinors<W> upper(a, 0, 1);
        formColumn(a, 2, 3, upper);
        formColumn(a, 3, 2, upper);
    }

private:
    // The cofactors of one row. Of the two rows that share minors, `row` is the other one.
    template <class A>
    VONKK3_INLINE void formColumn(const A &a, std::size_t column, std::size_t row, const RowMinors<W> &m) {
        const W c0 = (a(row, 1) * m.m23 - a(row, 2) * m.m13) + a(row, 3) * m.m12;
        const W c1 = (a(row, 0) * m.m23 - a(row, 2) * m.m03) + a(row, 3) * m.m02;
        const W c2 = (a(row, 0) * m.m13 - a(row, 1) * m.m03) + a(row, 3) * m.m01;
        const W c3 = (a(row, 0) * m.m12 - a(row, 1) * m.m02) + a(row, 2) * m.m01;
        const bool isOdd = column % 2 == 1;
        elements[0][column] = isOdd ? -c0 : c0;
        elements[1][column] = isOdd ? c1 : -c1;
        elements[2][column] = isOdd ? -c2 : c2;
        elements[3][column] = isOdd ? c3 : -c3;
    }
};

template <class W, std::size_t order>
using Adjugate = std::conditional_t<order == 3, AdjugateOfThree<W>, AdjugateOfFour<W>>;

// In the working type throughout, rounded at the results. False, and nothing stored, if the determinant is in the
// interval that is taken for zero.
template <class T, std::size_t order>
[[gnu::noinline]] bool invertClosed(const SmallMatrix<T, order> &matrix, SmallMatrix<T, order> &inverse) {
    using W = Working<T>;
    const Adjugate<W, order> adjugate([&](std::size_t i, std::size_t j)
                                          VONKK3_INLINED { return W(matrix.elements[i][j]); });
    if (isInSingularInterval(adjugate.determinant)) return false;
    const W reciprocal = W(1) / adjugate.determinant;
    for (std::size_t i = 0; i < order; ++i)
        for (std::size_t j = 0; j < order; ++j) inverse.elements[i][j] = round<T>(adjugate.elements[i][j] * reciprocal);
    return true;
}

} // namespace vonkk3::lu
