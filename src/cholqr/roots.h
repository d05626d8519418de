// Roots that are promised to be taken in the 80-bit type and rounded once, and how packs get the same bits without it.
#pragma once

#include "frame/lanes.h"
#include "frame/operations.h"
#include "frame/pack.h"
#include "frame/rounding_control.h"

namespace vonkk3::cholqr {

// Root.
inline Wide root(Wide s) { return __builtin_sqrtl(s); }
inline Real32 root(Real32 s) { return Real32(__builtin_sqrtl(Wide(s))); }

// In Real32 at once: rounding first to at least twice the digits and two more, or to as many, changes no root.
template <std::size_t chains> VONKK3_INLINE Packs<chains> root(const Packs<chains> &s) { return squareRoot(s); }

// 1 / root, both steps taken wide.
inline Wide reciprocalRoot(Wide s) { return 1.0L / __builtin_sqrtl(s); }
inline Real32 reciprocalRoot(Real32 s) { return Real32(1.0L / __builtin_sqrtl(Wide(s))); }

// How a kernel takes the reciprocal roots of its pivots. Each policy has the number it works, so that it may be a pack.
struct RoundedOnce {
    template <class Number> Number operator()(Number s) const { return reciprocalRoot(s); }
};
struct RoundedTwice {
    template <class Number> Number operator()(const Number &s) const { return Number(1) / squareRoot(s); }
};

// Lane by lane as for one object.
struct LaneByLane {
    template <std::size_t chains> Packs<chains> operator()(const Packs<chains> &s) const {
        return Packs<chains>::each([&](std::size_t c) { return ofPack(s.chain[c]); });
    }

private:
    template <std::size_t width> VONKK3_NOINLINE static PackOf<width> ofPack(PackOf<width> s) {
        Real32 each[width];
        const auto memory = reinterpret_cast<std::byte *>(each);
        storeLanes(memory, s.lanes);
        for (Real32 &number : each) number = reciprocalRoot(number);
        return loadLanes<Register<width>>(memory);
    }
};

// A filter: reciprocal roots in double, rounded to Real32, which is what rounding once from 80 bits gives unless the
// result lies near the midpoint of two Real32. The processor's estimate r has a relative error below 1.5 * 2^-12. A
// Newton step r (3 - s r r) / 2 turns an error e into 3/2 e^2 at most: one in Real32 leaves 2^-21.5, one in double less
// than 2^-41. `error`, 2^14 units of the double's last place, is 2^-38. Doubtful is also what is no positive finite
// number: the estimate of a subnormal s is infinite.
class Filtered {
public:
    template <std::size_t chains> VONKK3_INLINE Packs<chains> operator()(const Packs<chains> &s) {
        return Packs<chains>::each([&](std::size_t c) VONKK3_INLINED { return ofPack(s.chain[c]); });
    }

    // Of any root so far.
    bool hasDoubt() const { return _mm_movemask_epi8(_mm_or_si128(doubts, _mm_castps_si128(outside))) != 0; }

private:
    static constexpr int midpoint = 1 << 28, error = 1 << 14; // among the 29 bits of a double below its Real32
    __m128i doubts = _mm_setzero_si128();
    __m128 outside = _mm_setzero_ps();

    template <std::size_t width> VONKK3_INLINE PackOf<width> ofPack(PackOf<width> s) {
        return ofQuads<Register<width>>([&](auto q) VONKK3_INLINED { return ofQuad(quad<q>(s.lanes)); });
    }
    VONKK3_INLINE __m128 ofQuad(__m128 s) {
        const __m128 r = refined(s, _mm_rsqrt_ps(s));
        const __m128d ab = refined(_mm_cvtps_pd(s), _mm_cvtps_pd(r));
        const __m128d cd = refined(_mm_cvtps_pd(_mm_movehl_ps(s, s)), _mm_cvtps_pd(_mm_movehl_ps(r, r)));
        const __m128 lowWords = _mm_shuffle_ps(_mm_castpd_ps(ab), _mm_castpd_ps(cd), _MM_SHUFFLE(2, 0, 2, 0));
        const __m128i distance = _mm_slli_epi32(
            _mm_add_epi32(_mm_castps_si128(lowWords), _mm_set1_epi32(error - midpoint)), 3); // above it, plus the error
        constexpr int sign = 1 << 31;                                                        // compared without sign
        doubts = _mm_or_si128(doubts, _mm_cmplt_epi32(_mm_xor_si128(distance, _mm_set1_epi32(sign)),
                                                      _mm_set1_epi32((16 * error + 8) ^ sign)));
        const __m128 result = _mm_movelh_ps(_mm_cvtpd_ps(ab), _mm_cvtpd_ps(cd));
        outside = _mm_or_ps(outside, _mm_cmpnlt_ps(result, _mm_set1_ps(__builtin_inff())));
        return result;
    }

    VONKK3_INLINE static __m128 refined(__m128 s, __m128 r) {
        const __m128 isNearOne = _mm_mul_ps(_mm_mul_ps(s, r), r); // in this order no number leaves the range
        return _mm_mul_ps(_mm_mul_ps(r, _mm_set1_ps(0.5F)), _mm_sub_ps(_mm_set1_ps(3.0F), isNearOne));
    }
    VONKK3_INLINE static __m128d refined(__m128d s, __m128d r) {
        const __m128d isNearOne = _mm_mul_pd(_mm_mul_pd(s, r), r);
        return _mm_mul_pd(_mm_mul_pd(r, _mm_set1_pd(0.5)), _mm_sub_pd(_mm_set1_pd(3.0), isNearOne));
    }
};

} // namespace vonkk3::cholqr
