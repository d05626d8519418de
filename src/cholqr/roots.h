// Roots that are promised to be taken in the 80-bit type and rounded once, and how four at a time get the same bits
// without it.
#pragma once

#include "cholqr/four_reals.h"

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

// Whether a number of 53 bits that is off by some units in its last place may round to another Real32 than the exact
// one: if it lies that near to the middle of two of them, or to one. Of each, the bits below its Real32.
inline bool anyNearBoundary(__m128i lowWords) {
    constexpr int units = 4, betweenBoundaries = 1 << 28;
    const __m128i beyond =
        _mm_and_si128(_mm_add_epi32(lowWords, _mm_set1_epi32(units)), _mm_set1_epi32(betweenBoundaries - 1));
    return _mm_movemask_epi8(_mm_cmplt_epi32(beyond, _mm_set1_epi32(2 * units + 1))) != 0;
}

// By way of 53 bits, which give the same unless the result lies near a boundary between two Real32 (as all results that
// are Real32 do); then one by one.
inline FourReals reciprocalRoot(FourReals s) {
    const __m128d one = _mm_set1_pd(1.0);
    const __m128d ab = _mm_div_pd(one, _mm_sqrt_pd(_mm_cvtps_pd(s.lanes)));
    const __m128d cd = _mm_div_pd(one, _mm_sqrt_pd(_mm_cvtps_pd(_mm_movehl_ps(s.lanes, s.lanes))));
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
