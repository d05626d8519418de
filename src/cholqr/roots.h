// Roots that are promised to be taken in the 80-bit type and rounded once, and how four at a time get the same bits
// without it.
#pragma once

#include "frame/four_reals.h"

namespace vonkk3::cholqr {

// Root.
inline Wide root(Wide s) { return __builtin_sqrtl(s); }
inline Real32 root(Real32 s) { return Real32(__builtin_sqrtl(Wide(s))); }

// In Real32 at once: rounding to at least twice the digits and two more on the way, or to as many, changes no root.
inline FourReals root(FourReals s) { return _mm_sqrt_ps(s.lanes); }

// 1 / root, both steps taken wide.
inline Wide reciprocalRoot(Wide s) { return 1.0L / __builtin_sqrtl(s); }
inline Real32 reciprocalRoot(Real32 s) { return Real32(1.0L / __builtin_sqrtl(Wide(s))); }

// The units for 80-bit and for four-lane arithmetic each have their own control word, and both are the caller's. Where
// they do not round alike, four-lane roots are not what is promised; nor are reciprocal roots by way of 53 bits unless
// the 80-bit unit has at least as many and rounds to nearest.
struct RoundingControl {
    std::uint16_t wide;
    unsigned lanes = _mm_getcsr();
    RoundingControl() { __asm__ volatile("fnstcw %0" : "=m"(wide)); }

    bool bothRoundToNearest() const { return (wide & 0x0c00) == 0 && (lanes & 0x6000) == 0; }
    bool wideHas53Bits() const { return (wide & 0x0200) != 0; }
};

// One step of Newton's method for 1 / root of s, through numbers in the middle of the range only.
inline __m128 refined(__m128 s, __m128 root) {
    const __m128 isNearOne = _mm_mul_ps(_mm_mul_ps(s, root), root);
    return _mm_mul_ps(_mm_mul_ps(root, _mm_set1_ps(0.5F)), _mm_sub_ps(_mm_set1_ps(3.0F), isNearOne));
}
inline __m128d refined(__m128d s, __m128d root) {
    const __m128d isNearOne = _mm_mul_pd(_mm_mul_pd(s, root), root);
    return _mm_mul_pd(_mm_mul_pd(root, _mm_set1_pd(0.5)), _mm_sub_pd(_mm_set1_pd(3.0), isNearOne));
}

// Whether doubles that are nearly right may round to another Real32 than what they stand for: if they lie too near to
// the middle of two of them, or to one. Of each, the bits below its Real32.
inline bool anyNearBoundary(__m128i lowWords) {
    constexpr int error = 1 << 14, betweenBoundaries = 1 << 28;
    const __m128i beyond =
        _mm_and_si128(_mm_add_epi32(lowWords, _mm_set1_epi32(error)), _mm_set1_epi32(betweenBoundaries - 1));
    return _mm_movemask_epi8(_mm_cmplt_epi32(beyond, _mm_set1_epi32(2 * error + 1))) != 0;
}

// The processor's estimate, good for 11 bits, becomes good for 21 in Real32 and for 41 in double. That is enough,
// unless the result lies near a boundary between two Real32, as one does in thousands, and all that are Real32
// themselves, and infinities and NaNs, which come from an s that is out of the estimate's range. Then it is done one by
// one.
inline FourReals reciprocalRoot(FourReals s) {
    const __m128 root = refined(s.lanes, _mm_rsqrt_ps(s.lanes));
    const __m128d ab = refined(_mm_cvtps_pd(s.lanes), _mm_cvtps_pd(root));
    const __m128d cd = refined(_mm_cvtps_pd(_mm_movehl_ps(s.lanes, s.lanes)), _mm_cvtps_pd(_mm_movehl_ps(root, root)));
    const __m128 lowWords = _mm_shuffle_ps(_mm_castpd_ps(ab), _mm_castpd_ps(cd), _MM_SHUFFLE(2, 0, 2, 0));
    if (__builtin_expect(anyNearBoundary(_mm_castps_si128(lowWords)), false)) {
        alignas(laneBytes) Real32 each[four];
        _mm_store_ps(each, s.lanes);
        for (Real32 &number : each) number = reciprocalRoot(number);
        return _mm_load_ps(each);
    }
    return _mm_movelh_ps(_mm_cvtpd_ps(ab), _mm_cvtpd_ps(cd));
}

} // namespace vonkk3::cholqr
