// Real32 matrices of order 3 and 4 without gaps, transposed: all of a matrix is read before any of it is written.
#pragma once

#include "frame/registers.h"

namespace vonkk3 {

#ifdef __AVX2__
// Lane k of the result is that of the k-th index, from 8 on of the second register.
template <int... lanes> VONKK3_INLINE __m256 permuted(__m256 a) {
    return _mm256_permutevar8x32_ps(a, _mm256_setr_epi32(lanes...));
}
#ifdef __AVX512VL__
template <int... lanes> VONKK3_INLINE __m256 permuted(__m256 a, __m256 b) {
    return _mm256_permutex2var_ps(a, _mm256_setr_epi32(lanes...), b);
}
#endif
#endif

// e0 ... e8 as e0 e3 e6 e1, e4 e7 e2 e5, e8
VONKK3_INLINE void transposePacked(const std::byte *from, std::byte *to, Fixed<3>) {
    const Real32 last = loadAt<Real32>(from + 2 * laneBytes);
#ifdef __AVX2__
    storeLanes(to, permuted<0, 3, 6, 1, 4, 7, 2, 5>(loadLanes<__m256>(from)));
#else
    const __m128 low = load4(from), high = load4(from + laneBytes);
    const __m128 e61 = _mm_shuffle_ps(high, low, _MM_SHUFFLE(1, 1, 2, 2));
    const __m128 e25 = _mm_shuffle_ps(low, high, _MM_SHUFFLE(1, 1, 2, 2));
    store4(to, _mm_shuffle_ps(low, e61, _MM_SHUFFLE(2, 0, 3, 0)));
    keepStoreOrder();
    store4(to + laneBytes, _mm_shuffle_ps(high, e25, _MM_SHUFFLE(2, 0, 3, 0)));
    keepStoreOrder();
#endif
    storeAt<Real32>(to + 2 * laneBytes, last);
}

VONKK3_INLINE void transposePacked(const std::byte *from, std::byte *to, Fixed<4>) {
#ifdef __AVX2__
    const __m256 upper = loadLanes<__m256>(from), lower = loadLanes<__m256>(from + 2 * laneBytes);
#ifdef __AVX512VL__
    storeLanes(to, permuted<0, 4, 8, 12, 1, 5, 9, 13>(upper, lower));
    storeLanes(to + 2 * laneBytes, permuted<2, 6, 10, 14, 3, 7, 11, 15>(upper, lower));
#else
    storeLanes(to, permuted<0, 4, 1, 5, 2, 6, 3, 7>(unpackLow(upper, lower)));
    storeLanes(to + 2 * laneBytes, permuted<0, 4, 1, 5, 2, 6, 3, 7>(unpackHigh(upper, lower)));
#endif
#else
    __m128 rows[4];
    for (std::size_t i = 0; i < 4; ++i) rows[i] = load4(from + i * laneBytes);
    transpose(rows[0], rows[1], rows[2], rows[3]);
    for (std::size_t i = 0; i < 4; ++i) store4(to + i * laneBytes, rows[i]);
#endif
}

} // namespace vonkk3
