// The inverses of a batch of Real32 6x6 matrices with contiguous rows, to the same bits as lane_blocks.h makes them
// one by one: any column may be chosen for the leading block, and the others stay in order.
#pragma once

#include "lu/block_inverse.h"

namespace vonkk3::lu {

// The choice of columns: a chosen column moves to its place, those before it move on, so that they stay in order.
template <std::size_t chains> class ColumnsOfBatchOfSix {
public:
    using Block = Packs<chains>[6][6];

    VONKK3_INLINE explicit ColumnsOfBatchOfSix(Block &matrices) : matrices(matrices) {}

    // One after the other, each makes the leading minor as large as it can. False at a NaN.
    VONKK3_INLINE bool choose() {
        const auto &m = matrices;
        const auto minor = [&](std::size_t i, std::size_t k, std::size_t j)
                               VONKK3_INLINED { return m[k][j] * m[i][0] - m[i][j] * m[k][0]; };
        if (!chooseAt(0, [&](std::size_t t) VONKK3_INLINED { return m[0][t]; })) return false;
        if (!chooseAt(1, [&](std::size_t t) VONKK3_INLINED { return minor(0, 1, t); })) return false;
        const auto m12 = m[1][0] * m[2][1] - m[1][1] * m[2][0], m02 = m[0][0] * m[2][1] - m[0][1] * m[2][0];
        const auto m01 = m[0][0] * m[1][1] - m[0][1] * m[1][0];
        return chooseAt(2,
                        [&](std::size_t t) VONKK3_INLINED { return (m[0][t] * m12 - m[1][t] * m02) + m[2][t] * m01; });
    }

    // Brings the rows of a block from the places of the chosen columns to where these were.
    VONKK3_INLINE void takeBack(Block &rows) const {
        forIndices(0, 3, fixed<6>, [&](std::size_t later) VONKK3_INLINED {
            const std::size_t place = 2 - later;
            forIndices(place + 1, 6, fixed<6>, [&](std::size_t t) VONKK3_INLINED {
                forIndices(0, 6, fixed<6>, [&](std::size_t j) VONKK3_INLINED {
                    exchangeWhere(moved[place][t], rows[t - 1][j], rows[t][j]);
                });
            });
        });
    }

private:
    using Mask = typename PackMasks<chains>::Value;
    Block &matrices;
    PackMasks<chains> moved[3][6]; // whether the column chosen for a place was at t or after it

    // The largest magnitude of all columns decides: where only a chosen column has it, the first of the others is
    // taken.
    template <class Candidate> VONKK3_INLINE bool chooseAt(std::size_t place, const Candidate &candidate) {
        bool ordered = true;
        VONKK3_UNROLL_WHOLE
        for (std::size_t c = 0; c < Packs<chains>::registers; ++c) {
            typename Packs<chains>::Value magnitudes[6];
            forIndices(0, 6, fixed<6>, [&](std::size_t t) VONKK3_INLINED {
                magnitudes[t] = vonkk3::magnitude(Packs<chains>(candidate(t)).chain[c]);
            });
            auto largest = magnitudes[0];
            auto comparable = magnitudes[0] == magnitudes[0];
            forIndices(1, 6, fixed<6>, [&](std::size_t t) VONKK3_INLINED {
                largest = larger(largest, magnitudes[t]);
                comparable = comparable & (magnitudes[t] == magnitudes[t]);
            });
            ordered = ordered && comparable.all();
            Mask after = Mask::none(); // the first of equals is at t or after it
            Mask before = magnitudes[place] == largest;
            forIndices(place + 1, 6, fixed<6>, [&](std::size_t t) VONKK3_INLINED {
                moved[place][t].chain[c] = without(magnitudes[t] == largest, before);
                before = before | moved[place][t].chain[c];
            });
            forIndices(place + 1, 6, fixed<6>, [&](std::size_t ahead) VONKK3_INLINED {
                Mask &mask = moved[place][place + 6 - ahead].chain[c];
                mask = after = after | mask;
            });
        }
        if (!ordered) return false;
        forIndices(place + 1, 6, fixed<6>, [&](std::size_t ahead) VONKK3_INLINED {
            const std::size_t t = place + 6 - ahead;
            forIndices(0, 6, fixed<6>, [&](std::size_t i) VONKK3_INLINED {
                exchangeWhere(moved[place][t], matrices[i][t - 1], matrices[i][t]);
            });
        });
        return true;
    }
};

template <std::size_t chains>
VONKK3_INLINE bool invertSixOfBatch(Packs<chains> (&m)[6][6], Packs<chains> (&inverses)[6][6]) {
    using W = Packs<chains>;
    using Block = W[3][3];
    const auto forElements = [](const auto &body) VONKK3_INLINED {
        forIndices(0, 3, fixed<3>, [&](std::size_t i) VONKK3_INLINED {
            forIndices(0, 3, fixed<3>, [&](std::size_t j) VONKK3_INLINED { body(i, j); });
        });
    };
    constexpr ByEstimate estimated;
    ColumnsOfBatchOfSix<chains> columns(m);
    if (!columns.choose()) return false;

    Block p, a, b, p1, s1, x, y, product, lower;
    forElements([&](std::size_t i, std::size_t j)
                    VONKK3_INLINED { p[i][j] = m[i][j], a[i][j] = m[i][j + 3], b[i][j] = m[i + 3][j]; });
    if (!invertBlock(p, p1, estimated)) return false;
    multiplyBlocks(b, p1, y);
    multiplyBlocks(y, a, product);
    Block s;
    forElements([&](std::size_t i, std::size_t j) VONKK3_INLINED { s[i][j] = m[i + 3][j + 3] - product[i][j]; });
    if (!invertBlock(s, s1, estimated)) return false;
    multiplyBlocks(p1, a, x);
    multiplyBlocks(s1, y, lower);
    forElements([&](std::size_t i, std::size_t j) VONKK3_INLINED { lower[i][j] = -lower[i][j]; });
    multiplyBlocks(x, lower, product);
    forElements([&](std::size_t i, std::size_t j) VONKK3_INLINED {
        inverses[i][j] = p1[i][j] - product[i][j];
        inverses[i + 3][j] = lower[i][j];
        inverses[i + 3][j + 3] = s1[i][j];
    });
    multiplyBlocks(x, s1, product);
    forElements([&](std::size_t i, std::size_t j) VONKK3_INLINED { inverses[i][j + 3] = -product[i][j]; });
    columns.takeBack(inverses);
    return true;
}

} // namespace vonkk3::lu
