// Inverses of 5x5 and 6x6 by blocks. Columns are chosen so that the leading block P of 2 or 3 rows is far from
// singular:
//
//     | P A |   inverse   | P^-1 + X S^-1 Y   -X S^-1 |    X = P^-1 A    Y = B P^-1    S = C - Y A
//     | B C |             |      -S^-1 Y        S^-1  |
//
// P and S, which has order 3, are inverted by their adjugates, each with a test of its own determinant: that of the
// matrix is never formed. What was a choice of columns becomes an order of the rows of the result.
#pragma once

#include "lu/arithmetic.h"
#include "lu/closed_inverse.h"

#include <utility>

namespace vonkk3::lu {

// Column 5 is never among the candidates of the leading places: a 6x6 matrix whose row 0 is zero but for that column
// counts as singular, though it may be regular.
inline constexpr std::size_t candidateColumns = 5;

// Which column stands at which place.
template <std::size_t order> struct ColumnOrder {
    std::size_t column[order];

    ColumnOrder() {
        for (std::size_t k = 0; k < order; ++k) column[k] = k;
    }
    std::size_t operator[](std::size_t place) const { return column[place]; }

    // Brings to `place` the column of the largest magnitude among the places from there on, below `candidates`; the
    // first of equals.
    template <class Magnitude>
    VONKK3_INLINE void choose(std::size_t place, std::size_t candidates, const Magnitude &magnitude) {
        auto best = magnitude(column[place]);
        std::size_t chosen = place;
        for (std::size_t t = place + 1; t < candidates; ++t) {
            const auto candidate = magnitude(column[t]);
            chosen = candidate > best ? t : chosen;
            best = candidate > best ? candidate : best;
        }
        std::swap(column[place], column[chosen]);
    }
};

// The same for the matrices of a batch, whose columns are brought to their places.
template <std::size_t chains, std::size_t order> class ColumnsOfBatch {
public:
    using Block = Packs<chains>[order][order];

    VONKK3_INLINE explicit ColumnsOfBatch(Block &matrices) : matrices(matrices) {}
    std::size_t operator[](std::size_t place) const { return place; }

    template <class Magnitude>
    VONKK3_INLINE void choose(std::size_t place, std::size_t candidates, const Magnitude &magnitude) {
        findLargest(place, candidates, magnitude, exchanged[place]);
        forIndices(place + 1, candidates, fixed<order>, [&](std::size_t t) VONKK3_INLINED {
            forIndices(0, order, fixed<order>, [&](std::size_t i) VONKK3_INLINED {
                exchangeWhere(exchanged[place][t], matrices[i][place], matrices[i][t]);
            });
        });
    }

    // Brings the rows of a block from the places of so many chosen columns to where these were.
    VONKK3_INLINE void takeBack(std::size_t chosen, std::size_t candidates, Block &rows) const {
        forIndices(0, chosen, fixed<order>, [&](std::size_t later) VONKK3_INLINED {
            const std::size_t place = chosen - 1 - later;
            forIndices(place + 1, candidates, fixed<order>, [&](std::size_t t) VONKK3_INLINED {
                forIndices(0, order, fixed<order>, [&](std::size_t j) VONKK3_INLINED {
                    exchangeWhere(exchanged[place][t], rows[place][j], rows[t][j]);
                });
            });
        });
    }

private:
    Block &matrices;
    PackMasks<chains> exchanged[order][order];
};

// Places of the leading block: 2 or 3. Each is given to the column that makes its leading minor largest.
template <std::size_t lead, class W, class A, class Columns>
VONKK3_INLINE void chooseColumns(const A &a, Columns &c, std::size_t candidates) {
    const auto minor = [&](std::size_t i, std::size_t k, std::size_t first, std::size_t second)
                           VONKK3_INLINED { return a(i, first) * a(k, second) - a(i, second) * a(k, first); };
    c.choose(0, candidates, [&](std::size_t t) VONKK3_INLINED { return magnitude(a(0, t)); });
    c.choose(1, candidates, [&](std::size_t t) VONKK3_INLINED { return magnitude(minor(0, 1, c[0], t)); });
    if constexpr (lead == 3) {
        const W m01 = minor(0, 1, c[0], c[1]), m02 = minor(0, 2, c[0], c[1]), m12 = minor(1, 2, c[0], c[1]);
        c.choose(2, candidates, [&](std::size_t t) VONKK3_INLINED {
            return magnitude((a(0, t) * m12 - a(1, t) * m02) + a(2, t) * m01);
        });
    }
}

template <class W, std::size_t rows, std::size_t inner, std::size_t columns>
VONKK3_INLINE void multiplyBlocks(const W (&a)[rows][inner], const W (&b)[inner][columns],
                                  W (&product)[rows][columns]) {
    for (std::size_t i = 0; i < rows; ++i)
        for (std::size_t j = 0; j < columns; ++j) {
            W sum = a[i][0] * b[0][j];
            for (std::size_t k = 1; k < inner; ++k) sum = sum + a[i][k] * b[k][j];
            product[i][j] = sum;
        }
}

// The inverse of a block of 2 or 3 rows; false if its determinant is in the singular interval.
template <class W, class Reciprocal>
VONKK3_INLINE bool invertBlock(const W (&block)[3][3], W (&inverse)[3][3], const Reciprocal &reciprocal) {
    return invertThree<W>([&](std::size_t i, std::size_t j) VONKK3_INLINED { return block[i][j]; }, reciprocal,
                          [&](std::size_t i, std::size_t j, W value) VONKK3_INLINED { inverse[i][j] = value; });
}

template <class W, class Reciprocal>
VONKK3_INLINE bool invertBlock(const W (&block)[2][2], W (&inverse)[2][2], const Reciprocal &reciprocal) {
    const W determinant = block[0][0] * block[1][1] - block[0][1] * block[1][0];
    if (reciprocal.isSingular(determinant)) return false;
    const W r = reciprocal(determinant);
    inverse[0][0] = block[1][1] * r;
    inverse[0][1] = -block[0][1] * r;
    inverse[1][0] = -block[1][0] * r;
    inverse[1][1] = block[0][0] * r;
    return true;
}

// The four blocks of a matrix with its columns in a chosen order, and those of its inverse.
template <class W, std::size_t order> class Blocks {
public:
    static constexpr std::size_t lead = order - 3;

    template <class Matrix, class Columns> VONKK3_INLINE Blocks(const Matrix &a, const Columns &c) {
        for (std::size_t i = 0; i < order; ++i)
            for (std::size_t j = 0; j < order; ++j) {
                const W element = a(i, c[j]);
                if (i < lead && j < lead) P[i][j] = element;
                else if (i < lead) A[i][j - lead] = element;
                else if (j < lead) B[i - lead][j] = element;
                else S[i - lead][j - lead] = element;
            }
    }

    template <class Reciprocal> VONKK3_INLINE bool invertLeading(const Reciprocal &reciprocal) {
        return invertBlock(P, leading, reciprocal);
    }

    // The Schur complement, its inverse, and from it the rest.
    template <class Reciprocal> VONKK3_INLINE bool invertRest(const Reciprocal &reciprocal) {
        W Y[3][lead], X[lead][3], product[3][3], correction[lead][lead];
        multiplyBlocks(B, leading, Y);
        multiplyBlocks(Y, A, product);
        for (std::size_t i = 0; i < 3; ++i)
            for (std::size_t j = 0; j < 3; ++j) S[i][j] = S[i][j] - product[i][j];
        if (!invertBlock(S, last, reciprocal)) return false;
        multiplyBlocks(leading, A, X);
        multiplyBlocks(X, last, upper);
        multiplyBlocks(last, Y, lower);
        multiplyBlocks(X, lower, correction);
        for (std::size_t i = 0; i < lead; ++i)
            for (std::size_t j = 0; j < lead; ++j) leading[i][j] = leading[i][j] + correction[i][j];
        return true;
    }

    W leadingInverse(std::size_t i, std::size_t j) const { return leading[i][j]; }

    // Element (i, j) of the inverse, as long as its rows are in the order of the chosen columns.
    W inverse(std::size_t i, std::size_t j) const {
        if (i < lead) return j < lead ? leading[i][j] : -upper[i][j - lead];
        return j < lead ? -lower[i - lead][j] : last[i - lead][j - lead];
    }

private:
    W P[lead][lead], A[lead][3], B[3][lead], S[3][3];
    W leading[lead][lead], upper[lead][3], lower[3][lead], last[3][3];
};

// In the working type throughout, rounded at the results. False, and nothing stored, if either determinant is in the
// singular interval.
template <class T, std::size_t order>
[[gnu::noinline]] bool invertByBlocks(const SmallMatrix<T, order> &matrix, RowsView<T> inverse) {
    using W = Working<T>;
    const auto a = [&](std::size_t i, std::size_t j) VONKK3_INLINED { return W(matrix.elements[i][j]); };
    constexpr ByDivision reciprocal;
    ColumnOrder<order> c;
    chooseColumns<order - 3, W>(a, c, candidateColumns);
    Blocks<W, order> blocks(a, c);
    if (!blocks.invertLeading(reciprocal) || !blocks.invertRest(reciprocal)) return false;
    for (std::size_t i = 0; i < order; ++i)
        for (std::size_t j = 0; j < order; ++j) inverse.store(c[i], j, round<T>(blocks.inverse(i, j)));
    return true;
}

// The same for the matrices of a batch. Their columns are exchanged.
template <std::size_t chains, std::size_t order, class Reciprocal>
VONKK3_INLINE bool invertByBlocks(Packs<chains> (&matrices)[order][order], Packs<chains> (&inverses)[order][order],
                                  const Reciprocal &reciprocal) {
    using W = Packs<chains>;
    const auto a = [&](std::size_t i, std::size_t j) VONKK3_INLINED { return matrices[i][j]; };
    ColumnsOfBatch<chains, order> c(matrices);
    chooseColumns<order - 3, W>(a, c, candidateColumns);
    Blocks<W, order> blocks(a, c);
    if (!blocks.invertLeading(reciprocal) || !blocks.invertRest(reciprocal)) return false;
    forIndices(0, order, fixed<order>, [&](std::size_t i) VONKK3_INLINED {
        forIndices(0, order, fixed<order>,
                   [&](std::size_t j) VONKK3_INLINED { inverses[i][j] = blocks.inverse(i, j); });
    });
    c.takeBack(order - 3, candidateColumns, inverses);
    return true;
}

// Real32 5x5 with adjacent elements: the reciprocals are estimated, and the inverse of the leading block waits in the
// destination, where a failure of the second block leaves it.
[[gnu::noinline]] inline bool invertFiveThroughDestination(RowsView<const Real32> source,
                                                           RowsView<Real32> destination) {
    const SmallMatrix<Real32, 5> matrix(source);
    const auto a = [&](std::size_t i, std::size_t j) VONKK3_INLINED { return matrix.elements[i][j]; };
    constexpr ByEstimate estimated;
    ColumnOrder<5> c;
    chooseColumns<2, Real32>(a, c, candidateColumns);
    Blocks<Real32, 5> blocks(a, c);
    if (!blocks.invertLeading(estimated)) return false;
    for (std::size_t i = 0; i < 2; ++i)
        for (std::size_t j = 0; j < 2; ++j) destination.store(c[i], j, blocks.leadingInverse(i, j));
    if (!blocks.invertRest(estimated)) return false;
    for (std::size_t i = 0; i < 5; ++i)
        for (std::size_t j = 0; j < 5; ++j) destination.store(c[i], j, blocks.inverse(i, j));
    return true;
}

} // namespace vonkk3::lu
