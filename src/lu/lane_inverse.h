// Inverses of Real32 3x3 and 4x4 with contiguous rows, in four SIMD lanes that hold parts of one matrix. Only a
// determinant of exactly zero is singular, and its reciprocal comes from the processor's estimate. A matrix is loaded
// whole before any of its inverse is stored.
#pragma once

#include "frame/registers.h"
#include "frame/views.h"
#include "lu/reciprocal.h"

namespace vonkk3::lu {

// ---- 3x3: a row (x, y, z) lies in lanes 0, 2 and 3, where it goes to and fro without shuffling ----------------------

VONKK3_INLINE __m128 rotatedLeft(__m128 row) { return pick<2, 1, 3, 0>(row); }  // (y, z, x)
VONKK3_INLINE __m128 rotatedRight(__m128 row) { return pick<3, 1, 0, 2>(row); } // (z, x, y)

// The cross product of two rows, rotated right: from the rows and the same rotated left.
VONKK3_INLINE __m128 crossRotated(__m128 u, __m128 uLeft, __m128 v, __m128 vLeft) {
    return _mm_sub_ps(_mm_mul_ps(u, vLeft), _mm_mul_ps(uLeft, v));
}

// The columns of the adjugate are the cross products of rows 1 and 2, 2 and 0, 0 and 1. False, and nothing stored, if
// the determinant is zero.
VONKK3_INLINE bool invertThreeInLanes(const RowsView<const Real32> &matrix, const RowsView<Real32> &inverse) {
    const __m128 row0 = load3(matrix.at(0, 0)), row1 = load3(matrix.at(1, 0)), row2 = load3(matrix.at(2, 0));
    const __m128 left0 = rotatedLeft(row0), left1 = rotatedLeft(row1), left2 = rotatedLeft(row2);
    const __m128 column0 = crossRotated(row1, left1, row2, left2);
    const __m128 column1 = crossRotated(row2, left2, row0, left0);
    const __m128 column2 = crossRotated(row0, left0, row1, left1);

    const __m128 terms = _mm_mul_ps(column0, rotatedRight(row0)); // z, x, y
    const __m128 determinant =                                    // (x + y) + z, in all lanes
        _mm_add_ps(_mm_add_ps(pick<2, 2, 2, 2>(terms), pick<3, 3, 3, 3>(terms)), pick<0, 0, 0, 0>(terms));
    if (_mm_cvtss_f32(determinant) == 0) return false;
    const __m128 r = reciprocalByEstimateOfThree(determinant);

    const __m128 z = _mm_mul_ps(_mm_unpacklo_ps(column0, column1), r);
    const __m128 xy = _mm_mul_ps(_mm_unpackhi_ps(column0, column1), r);
    const __m128 last = _mm_mul_ps(column2, r);
    store2(inverse.at(0, 0), xy);
    store1(inverse.at(0, 2), _mm_movehl_ps(last, last));
    _mm_storeh_pi(pair(inverse.at(1, 0)), xy);
    store1(inverse.at(1, 2), pick<3, 3, 3, 3>(last));
    store2(inverse.at(2, 0), z);
    store1(inverse.at(2, 2), last);
    return true;
}

// ---- 4x4: a row lies in its lanes, and column indices count round from 3 to 0 ---------------------------------------

VONKK3_INLINE __m128 rotatedByOne(__m128 row) { return pick<1, 2, 3, 0>(row); }
VONKK3_INLINE __m128 rotatedByTwo(__m128 row) { return pick<2, 3, 0, 1>(row); }

// A row, and the same rotated.
struct RotatedRow {
    __m128 row, byOne, byTwo;
    VONKK3_INLINE explicit RotatedRow(__m128 row) : row(row), byOne(rotatedByOne(row)), byTwo(rotatedByTwo(row)) {}
};

// The 2x2 minors of two rows on columns k and k + 1, and on columns k and k + 2, in lane k.
struct PairMinors {
    __m128 near, nearByOne, far;
    VONKK3_INLINE PairMinors(const RotatedRow &u, const RotatedRow &v)
        : near(_mm_sub_ps(_mm_mul_ps(u.row, v.byOne), _mm_mul_ps(u.byOne, v.row))), nearByOne(rotatedByOne(near)) {
        far = _mm_sub_ps(_mm_mul_ps(u.row, v.byTwo), _mm_mul_ps(u.byTwo, v.row));
    }
};

// In lane k the 3x3 minor of a row and of the two rows of other minors that leaves out column k - 1.
// The signs of the cofactors come with the reciprocal.
VONKK3_INLINE __m128 minorsOfThree(const RotatedRow &v, const PairMinors &m) {
    return _mm_add_ps(_mm_sub_ps(_mm_mul_ps(v.row, m.nearByOne), _mm_mul_ps(v.byOne, m.far)),
                      _mm_mul_ps(v.byTwo, m.near));
}

// The cofactors of a row, from the row that is paired with it and the minors of the two others, are a column of the
// adjugate. The determinant is that of row 0 and its minors, (p0 + p2) - (p1 + p3). False, and nothing stored, if it is
// zero.
VONKK3_INLINE bool invertFourInLanes(const RowsView<const Real32> &matrix, const RowsView<Real32> &inverse) {
    const RotatedRow row2(load4(matrix.at(2, 0))), row3(load4(matrix.at(3, 0)));
    const PairMinors lower(row2, row3);
    const RotatedRow row0(load4(matrix.at(0, 0))), row1(load4(matrix.at(1, 0)));
    __m128 column0 = minorsOfThree(row1, lower), column1 = minorsOfThree(row0, lower);
    const PairMinors upper(row0, row1);
    __m128 column2 = minorsOfThree(row3, upper), column3 = minorsOfThree(row2, upper);

    const __m128 terms = _mm_mul_ps(row0.row, rotatedByOne(column0)); // by minors
    const __m128 pairs = _mm_add_ps(terms, rotatedByTwo(terms));
    const __m128 determinant = _mm_sub_ps(pairs, rotatedByOne(pairs)); // D, -D, D, -D
    if (_mm_cvtss_f32(determinant) == 0) return false;
    const __m128 r = reciprocalByEstimate(determinant), negatedR = rotatedByOne(r);

    transpose(column0, column1, column2, column3);
    store4(inverse.at(0, 0), _mm_mul_ps(column1, r));
    store4(inverse.at(1, 0), _mm_mul_ps(column2, negatedR));
    store4(inverse.at(2, 0), _mm_mul_ps(column3, r));
    store4(inverse.at(3, 0), _mm_mul_ps(column0, negatedR));
    return true;
}

} // namespace vonkk3::lu
