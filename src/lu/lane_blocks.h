// The inverse of Real32 6x6 with contiguous rows: the block inversion of block_inverse.h in blocks of 3x3, whose rows
// lie in four SIMD lanes. Any column may be chosen for the leading block.
#pragma once

#include "lu/lane_inverse.h"

#include <bit>

namespace vonkk3::lu {

// ---- The choice of columns ------------------------------------------------------------------------------------------

// One number for each column.
struct SixLanes {
    __m128 head, tail; // columns 0 to 3, and 4 and 5

    VONKK3_INLINE static SixLanes load(const std::byte *row) { return {load4(row), load2(row + 4 * sizeof(Real32))}; }
    VONKK3_INLINE SixLanes operator*(Real32 factor) const {
        const __m128 f = _mm_set1_ps(factor);
        return {_mm_mul_ps(head, f), _mm_mul_ps(tail, f)};
    }
    VONKK3_INLINE SixLanes operator+(const SixLanes &b) const {
        return {_mm_add_ps(head, b.head), _mm_add_ps(tail, b.tail)};
    }
    VONKK3_INLINE SixLanes operator-(const SixLanes &b) const {
        return {_mm_sub_ps(head, b.head), _mm_sub_ps(tail, b.tail)};
    }
};

// The columns in their order: those of the leading block first, then the others as they come.
struct ChosenColumns {
    std::size_t column[6];
    unsigned free = 0b111111; // bit j: column j is not chosen yet

    // The free column of the largest magnitude, the first of equals. Where there is a NaN it may be any.
    VONKK3_INLINE std::size_t takeLargest(std::size_t place, const SixLanes &numbers) {
        const __m128 sign = _mm_set1_ps(-0.0F);
        const __m128 head = _mm_andnot_ps(sign, numbers.head), tail = _mm_andnot_ps(sign, numbers.tail);
        const __m128 pairs = _mm_max_ps(_mm_max_ps(head, pick<2, 3, 0, 1>(head)), pick<0, 1, 0, 1>(tail));
        const __m128 largest = _mm_max_ps(pairs, pick<1, 0, 3, 2>(pairs));
        const auto found = unsigned(_mm_movemask_ps(_mm_cmpeq_ps(head, largest))) |
                           unsigned(_mm_movemask_ps(_mm_cmpeq_ps(tail, largest))) << 4;
        return take(place, (found & free) != 0 ? found & free : free);
    }
    VONKK3_INLINE void takeOthers() {
        for (std::size_t place = 3; place < 6; ++place) take(place, free);
    }

private:
    VONKK3_INLINE std::size_t take(std::size_t place, unsigned candidates) {
        column[place] = std::countr_zero(candidates);
        free &= ~(1U << column[place]);
        return column[place];
    }
};

// One after the other, each makes the leading minor as large as it can.
VONKK3_INLINE ChosenColumns chooseColumns(const RowsView<const Real32> &matrix) {
    const auto row0 = SixLanes::load(matrix.at(0, 0)), row1 = SixLanes::load(matrix.at(1, 0));
    const auto row2 = SixLanes::load(matrix.at(2, 0));
    ChosenColumns c;
    const std::size_t j = c.takeLargest(0, row0);
    const Real32 j0 = matrix.load(0, j), j1 = matrix.load(1, j), j2 = matrix.load(2, j);
    const std::size_t k = c.takeLargest(1, row1 * j0 - row0 * j1);
    const Real32 k0 = matrix.load(0, k), k1 = matrix.load(1, k), k2 = matrix.load(2, k);
    c.takeLargest(2, (row0 * (j1 * k2 - k1 * j2) - row1 * (j0 * k2 - k0 * j2)) + row2 * (j0 * k1 - k0 * j1));
    c.takeOthers();
    return c;
}

// ---- Blocks of 3x3 --------------------------------------------------------------------------------------------------

struct LaneBlock {
    __m128 rows[3]; // in lanes 0 to 2

    // From three columns of the matrix.
    VONKK3_INLINE static LaneBlock gather(const RowsView<const Real32> &matrix, std::size_t firstRow,
                                          const std::size_t *columns) {
        LaneBlock block;
        forIndices(0, 3, fixed<3>, [&](std::size_t i) VONKK3_INLINED {
            const auto at = [&](std::size_t j) VONKK3_INLINED { return matrix.load(firstRow + i, columns[j]); };
            block.rows[i] = _mm_setr_ps(at(0), at(1), at(2), 0);
        });
        return block;
    }

    VONKK3_INLINE LaneBlock operator*(const LaneBlock &b) const {
        LaneBlock product;
        forIndices(0, 3, fixed<3>, [&](std::size_t i) VONKK3_INLINED {
            const __m128 a = rows[i];
            const __m128 sum =
                _mm_add_ps(_mm_mul_ps(pick<0, 0, 0, 0>(a), b.rows[0]), _mm_mul_ps(pick<1, 1, 1, 1>(a), b.rows[1]));
            product.rows[i] = _mm_add_ps(sum, _mm_mul_ps(pick<2, 2, 2, 2>(a), b.rows[2]));
        });
        return product;
    }
    VONKK3_INLINE LaneBlock operator-(const LaneBlock &b) const {
        return {{_mm_sub_ps(rows[0], b.rows[0]), _mm_sub_ps(rows[1], b.rows[1]), _mm_sub_ps(rows[2], b.rows[2])}};
    }
    VONKK3_INLINE LaneBlock operator-() const {
        const __m128 sign = _mm_set1_ps(-0.0F);
        return {{_mm_xor_ps(rows[0], sign), _mm_xor_ps(rows[1], sign), _mm_xor_ps(rows[2], sign)}};
    }

    // Makes this the inverse of a block; false if its determinant is in the singular interval.
    VONKK3_INLINE bool becomeInverse(const LaneBlock &block) {
        const auto left = [](__m128 row) VONKK3_INLINED { return pick<1, 2, 0, 3>(row); };
        const __m128 row0 = block.rows[0], row1 = block.rows[1], row2 = block.rows[2];
        const __m128 left0 = left(row0), left1 = left(row1), left2 = left(row2);
        const __m128 column0 = crossRotated(row1, left1, row2, left2); // z, x, y
        const __m128 terms = _mm_mul_ps(column0, pick<2, 0, 1, 3>(row0));
        const __m128 determinant = // (x + y) + z, in all lanes
            _mm_add_ps(_mm_add_ps(pick<1, 1, 1, 1>(terms), pick<2, 2, 2, 2>(terms)), pick<0, 0, 0, 0>(terms));
        if (isInSingularInterval(_mm_cvtss_f32(determinant))) return false;
        const __m128 r = reciprocalByEstimate(determinant);
        const __m128 column1 = crossRotated(row2, left2, row0, left0), column2 = crossRotated(row0, left0, row1, left1);
        const __m128 zx = _mm_unpacklo_ps(column0, column1), y = _mm_unpackhi_ps(column0, column1);
        rows[0] = _mm_mul_ps(pick<2, 3, 1, 3>(zx, column2), r);
        rows[1] = _mm_mul_ps(pick<0, 1, 2, 3>(y, column2), r);
        rows[2] = _mm_mul_ps(pick<0, 1, 0, 3>(zx, column2), r);
        return true;
    }

    // To three rows of the destination, from a column on.
    VONKK3_INLINE void scatter(const RowsView<Real32> &destination, const std::size_t *destinationRows,
                               std::size_t column) const {
        forIndices(0, 3, fixed<3>, [&](std::size_t i) VONKK3_INLINED {
            std::byte *const address = destination.at(destinationRows[i], column);
            store2(address, rows[i]);
            store1(address + 2 * sizeof(Real32), _mm_movehl_ps(rows[i], rows[i]));
        });
    }
};

// ---- The inverse ----------------------------------------------------------------------------------------------------

// The inverse of the leading block waits in the destination, where a failure of the second block leaves it.
VONKK3_INLINE bool invertSixInLanes(const RowsView<const Real32> &matrix, const RowsView<Real32> &inverse) {
    const ChosenColumns c = chooseColumns(matrix);
    const std::size_t *leading = c.column, *others = c.column + 3;
    const auto p = LaneBlock::gather(matrix, 0, leading), a = LaneBlock::gather(matrix, 0, others);
    const auto b = LaneBlock::gather(matrix, 3, leading), d = LaneBlock::gather(matrix, 3, others);

    LaneBlock p1, s1;
    if (!p1.becomeInverse(p)) return false;
    p1.scatter(inverse, leading, 0);
    const LaneBlock y = b * p1;
    if (!s1.becomeInverse(d - y * a)) return false;
    const LaneBlock x = p1 * a, lower = -(s1 * y);
    (p1 - x * lower).scatter(inverse, leading, 0);
    (-(x * s1)).scatter(inverse, leading, 3);
    lower.scatter(inverse, others, 0);
    s1.scatter(inverse, others, 3);
    return true;
}

} // namespace vonkk3::lu
