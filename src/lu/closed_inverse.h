// Inverses of 3x3 and 4x4 as the adjugate times the reciprocal of the determinant, element by element.
#pragma once

#include "lu/element_in_memory.h"
#include "lu/local_block.h"
#include "lu/minors.h"
#include "lu/reciprocal.h"

namespace vonkk3::lu {

// The elements of the inverse go to `store` one by one, row and column first. They are worked in W from elements that
// are multiplied where they are, and a block of five or six is no more to them than a matrix. False, and nothing
// stored, if the determinant is singular to `reciprocal`. `a` must not lie where results go.
template <class W, class A, class Reciprocal, class Store>
VONKK3_INLINE bool invertThree(const A &a, const Reciprocal &reciprocal, const Store &store) {
    const W c00 = a(1, 1) * a(2, 2) - a(1, 2) * a(2, 1);
    const W c10 = a(1, 2) * a(2, 0) - a(1, 0) * a(2, 2);
    const W c20 = a(1, 0) * a(2, 1) - a(1, 1) * a(2, 0);
    const W determinant = a(0, 0) * c00 + c10 * a(0, 1) + c20 * a(0, 2);
    if (reciprocal.isSingular(determinant)) return false;
    const W r = reciprocal(determinant);
    store(0, 0, c00 * r), store(1, 0, c10 * r), store(2, 0, c20 * r);
    store(0, 1, (a(0, 2) * a(2, 1) - a(0, 1) * a(2, 2)) * r);
    store(1, 1, (a(0, 0) * a(2, 2) - a(0, 2) * a(2, 0)) * r);
    store(2, 1, (a(0, 1) * a(2, 0) - a(0, 0) * a(2, 1)) * r);
    store(0, 2, (a(0, 1) * a(1, 2) - a(0, 2) * a(1, 1)) * r);
    store(1, 2, (a(0, 2) * a(1, 0) - a(0, 0) * a(1, 2)) * r);
    store(2, 2, (a(0, 0) * a(1, 1) - a(0, 1) * a(1, 0)) * r);
    return true;
}

// One column of the inverse of 4x4: the cofactors of a row, each an expansion along the row `paired` with it on the
// minors of the two rows from `lower` on, times r. As in the determinant, minors are formed late and die early; forming
// them again for the next column is quicker than putting them away in ten bytes.
template <class W, class A, class Store>
VONKK3_INLINE void invertColumn(const A &a, std::size_t column, std::size_t paired, std::size_t lower, W r,
                                const Store &store) {
    const auto minor = [&](std::size_t j, std::size_t k) VONKK3_INLINED -> W {
        return a(lower, j) * a(lower + 1, k) - a(lower, k) * a(lower + 1, j);
    };
    const W m23 = minor(2, 3), m13 = minor(1, 3), m12 = minor(1, 2);
    store(0, column, ((a(paired, 1) * m23 - a(paired, 2) * m13) + a(paired, 3) * m12) * r);
    const W m03 = minor(0, 3), m02 = minor(0, 2);
    store(1, column, ((a(paired, 2) * m03 - a(paired, 0) * m23) - a(paired, 3) * m02) * r);
    const W m01 = minor(0, 1);
    store(2, column, ((a(paired, 0) * m13 - a(paired, 1) * m03) + a(paired, 3) * m01) * r);
    store(3, column, ((a(paired, 1) * m02 - a(paired, 0) * m12) - a(paired, 2) * m01) * r);
}

template <class W, class A, class Reciprocal, class Store>
VONKK3_INLINE bool invertFour(const A &a, const Reciprocal &reciprocal, const Store &store) {
    const W determinant = determinantOfFour(a);
    if (reciprocal.isSingular(determinant)) return false;
    const W r = reciprocal(determinant);
    invertColumn<W>(a, 0, 1, 2, r, store);
    invertColumn<W>(a, 1, 0, 2, -r, store);
    invertColumn<W>(a, 2, 3, 0, r, store);
    invertColumn<W>(a, 3, 2, 0, -r, store);
    return true;
}

// The same as in lane_inverse.h, whose lane k is element k here: the signs of the cofactors are those of the
// determinant, which is formed with either sign.
template <class W, class A, class Reciprocal, class Store>
VONKK3_INLINE bool invertFourByPairs(const A &a, const Reciprocal &reciprocal, const Store &store) {
    struct PairMinors {
        W near[4], far[4]; // on columns k and k + 1, and k and k + 2
    };
    const auto pairMinors = [&](std::size_t u, std::size_t v) VONKK3_INLINED {
        PairMinors m;
        forIndices(0, 4, fixed<4>, [&](std::size_t k) VONKK3_INLINED {
            const std::size_t next = (k + 1) % 4, opposite = (k + 2) % 4;
            m.near[k] = a(u, k) * a(v, next) - a(u, next) * a(v, k);
            m.far[k] = a(u, k) * a(v, opposite) - a(u, opposite) * a(v, k);
        });
        return m;
    };
    const auto minorOfThree = [&](std::size_t row, const PairMinors &m, std::size_t k) VONKK3_INLINED -> W {
        const std::size_t next = (k + 1) % 4, opposite = (k + 2) % 4;
        return (a(row, k) * m.near[next] - a(row, next) * m.far[k]) + a(row, opposite) * m.near[k];
    };
    const PairMinors lower = pairMinors(2, 3);
    W column0[4], term[4];
    forIndices(0, 4, fixed<4>, [&](std::size_t k) VONKK3_INLINED { column0[k] = minorOfThree(1, lower, k); });
    forIndices(0, 4, fixed<4>, [&](std::size_t k) VONKK3_INLINED { term[k] = a(0, k) * column0[(k + 1) % 4]; });
    const W even = term[0] + term[2], odd = term[1] + term[3];
    if (reciprocal.isSingular(even - odd)) return false;
    const W r[2] = {reciprocal(even - odd), reciprocal(odd - even)};
    const auto storeColumn = [&](std::size_t j, const auto &minor) VONKK3_INLINED {
        forIndices(0, 4, fixed<4>,
                   [&](std::size_t i) VONKK3_INLINED { store(i, j, minor((i + 1) % 4) * r[(i + j) % 2]); });
    };
    storeColumn(0, [&](std::size_t k) VONKK3_INLINED { return column0[k]; });
    storeColumn(1, [&](std::size_t k) VONKK3_INLINED { return minorOfThree(0, lower, k); });
    const PairMinors upper = pairMinors(0, 1);
    storeColumn(2, [&](std::size_t k) VONKK3_INLINED { return minorOfThree(3, upper, k); });
    storeColumn(3, [&](std::size_t k) VONKK3_INLINED { return minorOfThree(2, upper, k); });
    return true;
}

// In the working type throughout, rounded at the results.
template <class T, std::size_t order>
[[gnu::noinline]] bool invertClosed(const SmallMatrix<T, order> &matrix, RowsView<T> inverse) {
    using W = Working<T>;
    const auto source = matrix.view();
    const Elements<W, RowsView<const T>> a(source);
    const auto store = [&](std::size_t i, std::size_t j, W value)
                           VONKK3_INLINED { inverse.store(i, j, round<T>(value)); };
    if constexpr (order == 3) return invertThree<W>(a, ByDivision(), store);
    else return invertFour<W>(a, ByDivision(), store);
}

// The matrices of a batch.
template <std::size_t chains, std::size_t order, class Reciprocal>
VONKK3_INLINE bool invertClosed(Packs<chains> (&matrices)[order][order], Packs<chains> (&inverses)[order][order],
                                const Reciprocal &reciprocal) {
    using W = Packs<chains>;
    const LocalBlock a{matrices}, inverse{inverses};
    const auto store = [&](std::size_t i, std::size_t j, const W &value) VONKK3_INLINED { inverse.store(i, j, value); };
    if constexpr (order == 3) return invertThree<W>(a, reciprocal, store);
    else if constexpr (std::is_same_v<Reciprocal, ByDivision>) return invertFour<W>(a, reciprocal, store);
    else return invertFourByPairs<W>(a, reciprocal, store);
}

} // namespace vonkk3::lu
