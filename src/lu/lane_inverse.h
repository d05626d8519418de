// Inverses of Real32 3x3 and 4x4 with adjacent elements, in four lanes that hold parts of one matrix. The determinant
// is taken for zero only if it is zero, and its reciprocal comes from the processor's estimate. A matrix is loaded
// whole before any of its inverse is stored.
#pragma once

#include "frame/lanes.h"
#include "frame/views.h"
#include "lu/reciprocal.h"

namespace vonkk3::lu {

// Lane k of the result is lane k of the arguments as told, from the lowest lane up.
template <int k0, int k1, int k2, int k3> VONKK3_INLINE __m128 pick(__m128 lanes) {
    return _mm_castsi128_ps(_mm_shuffle_epi32(_mm_castps_si128(lanes), _MM_SHUFFLE(k3, k2, k1, k0)));
}
template <int a0, int a1, int b2, int b3> VONKK3_INLINE __m128 pick(__m128 a, __m128 b) {
    return _mm_shuffle_ps(a, b, _MM_SHUFFLE(b3, b2, a1, a0));
}

// ---- 3x3: a row (x, y, z) lies in lanes 0, 2 and 3, where it goes to and fro without shuffling ----------------------

VONKK3_INLINE __m128 turnedLeft(__m128 row) { return pick<2, 1, 3, 0>(row); }  // (y, z, x)
VONKK3_INLINE __m128 turnedRight(__m128 row) { return pick<3, 1, 0, 2>(row); } // (z, x, y)

// The cross product of two rows, turned right: from the rows and the same turned left.
VONKK3_INLINE __m128 crossTurned(__m128 u, __m128 uLeft, __m128 v, __m128 vLeft) {
    return _mm_sub_ps(_mm_mul_ps(u, vLeft), _mm_mul_ps(uLeft, v));
}

// The columns of the adjugate are the cross products of rows 1 and 2, 2 and 0, 0 and 1. False, and nothing stored, if
// the determinant is zero.
VONKK3_INLINE bool invertThreeInLanes(const RowsView<const Real32> &matrix, const RowsView<Real32> &inverse) {
    const __m128 row0 = load3(matrix.at(0, 0)), row1 = load3(matrix.at(1, 0)), row2 = load3(matrix.at(2, 0));
    const __m128 left0 = turnedLeft(row0), left1 = turnedLeft(row1), left2 = turnedLeft(row2);
    const __m128 column0 = crossTurned(row1, left1, row2, left2);
    const __m128 column1 = crossTurned(row2, left2, row0, left0);
    const __m128 column2 = crossTurned(row0, left0, row1, left1);

    const __m128 terms = _mm_mul_ps(column0, turnedRight(row0)); // z, x, y
    const __m128 determinant =
        _mm_add_ss(_mm_add_ss(_mm_movehl_ps(terms, terms), pick<3, 3, 3, 3>(terms)), terms); // (x + y) + z
    if (_mm_cvtss_f32(determinant) == 0) return false;
    const __m128 r = _mm_set1_ps(reciprocalByEstimateOfThree(_mm_cvtss_f32(determinant)));

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

// ---- 4x4: 2x2 blocks | A B | of the matrix, each in the four lanes of a register, row after row ---------------------
//                      | C D |

// adj(M) N, whose elements are 2x2 minors of the rows that M and N share.
VONKK3_INLINE __m128 adjugateTimes(__m128 m, __m128 n) {
    return _mm_sub_ps(_mm_mul_ps(pick<3, 3, 0, 0>(m), n), _mm_mul_ps(pick<1, 1, 2, 2>(m), pick<2, 3, 0, 1>(n)));
}

// M N
VONKK3_INLINE __m128 timesBlock(__m128 m, __m128 n) {
    return _mm_add_ps(_mm_mul_ps(pick<0, 0, 2, 2>(m), _mm_movelh_ps(n, n)),
                      _mm_mul_ps(pick<1, 1, 3, 3>(m), _mm_movehl_ps(n, n)));
}

// M adj(N)
VONKK3_INLINE __m128 timesAdjugate(__m128 m, __m128 n) {
    return _mm_sub_ps(_mm_mul_ps(m, pick<3, 0, 3, 0>(n)), _mm_mul_ps(pick<1, 0, 3, 2>(m), pick<2, 1, 2, 1>(n)));
}

// Every cofactor is made of elements and the minors of the two upper or the two lower rows: |D| A - B adj(D) C holds
// those of the leading block, and the others follow alike. False, and nothing stored, if the determinant is zero.
VONKK3_INLINE bool invertFourInLanes(const RowsView<const Real32> &matrix, const RowsView<Real32> &inverse) {
    const __m128 row0 = load4(matrix.at(0, 0)), row1 = load4(matrix.at(1, 0));
    const __m128 row2 = load4(matrix.at(2, 0)), row3 = load4(matrix.at(3, 0));
    const __m128 a = _mm_movelh_ps(row0, row1), b = _mm_movehl_ps(row1, row0);
    const __m128 c = _mm_movelh_ps(row2, row3), d = _mm_movehl_ps(row3, row2);

    // |A|, |B|, |C|, |D|
    const __m128 upper = _mm_mul_ps(row0, pick<1, 0, 3, 2>(row1)), lower = _mm_mul_ps(row2, pick<1, 0, 3, 2>(row3));
    const __m128 minors = _mm_sub_ps(pick<0, 2, 0, 2>(upper, lower), pick<1, 3, 1, 3>(upper, lower));
    const __m128 ab = adjugateTimes(a, b), dc = adjugateTimes(d, c);

    // |A| |D| + |B| |C| - trace(adj(A) B adj(D) C)
    const __m128 products = _mm_mul_ps(minors, pick<3, 2, 1, 0>(minors));
    const __m128 mixed = _mm_mul_ps(pick<0, 2, 1, 3>(dc), ab);
    const __m128 pairs = _mm_add_ps(mixed, _mm_movehl_ps(mixed, mixed));
    const __m128 trace = _mm_add_ss(pairs, pick<1, 1, 1, 1>(pairs));
    const __m128 determinant = _mm_sub_ss(_mm_add_ss(products, pick<1, 1, 1, 1>(products)), trace);
    if (_mm_cvtss_f32(determinant) == 0) return false;
    const __m128 signs = _mm_castsi128_ps(_mm_setr_epi32(0, INT32_MIN, INT32_MIN, 0));
    const __m128 r = _mm_xor_ps(_mm_set1_ps(reciprocalByEstimate(_mm_cvtss_f32(determinant))), signs);

    const auto blockOf = [&](__m128 minor, __m128 block, __m128 other)
                             VONKK3_INLINED { return _mm_mul_ps(_mm_sub_ps(_mm_mul_ps(minor, block), other), r); };
    const __m128 x = blockOf(pick<3, 3, 3, 3>(minors), a, timesBlock(b, dc));
    const __m128 y = blockOf(pick<1, 1, 1, 1>(minors), c, timesAdjugate(d, ab));
    const __m128 z = blockOf(pick<2, 2, 2, 2>(minors), b, timesAdjugate(a, dc));
    const __m128 w = blockOf(pick<0, 0, 0, 0>(minors), d, timesBlock(c, ab));
    store4(inverse.at(0, 0), pick<3, 1, 3, 1>(x, y));
    store4(inverse.at(1, 0), pick<2, 0, 2, 0>(x, y));
    store4(inverse.at(2, 0), pick<3, 1, 3, 1>(z, w));
    store4(inverse.at(3, 0), pick<2, 0, 2, 0>(z, w));
    return true;
}

} // namespace vonkk3::lu
