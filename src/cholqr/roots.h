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

// Filters: reciprocal roots by other means, whose rounding to Real32 is what rounding once from 80 bits gives, unless
// the result lies near the midpoint of two Real32. `hasDoubt` tells of any root so far whether it may. Doubtful is also
// what is no positive finite number. Both begin with the processor's estimate y of 1 / root(s), with a relative error
// below 1.5 * 2^-12; that of a subnormal s is infinite.

#if defined(__AVX2__) && defined(__FMA__)
// In Real32 alone. A fused Newton step, r = y + y/2 (1 - s y y), leaves a relative error of 2^-21.6 (3/8 (2 * 1.5 *
// 2^-12)^2 of the method, 2^-25 of s y, 2^-24 of the sum). Then s r = h + l exactly, so that e = 1 - s r r = (1 - h r)
// - l r comes out with an error below 2^-43.5, and 1 / root(s) = r (1 + e/2 + 3/8 e^2 ...) is r + r e/2 but for less
// than 2^-42 r. The sum is rounded to `root`, t is what that leaves. As rounding is monotonic, `root` is right wherever
// both t - margin and t + margin, for a margin of 2^-40 r, round to it too.
template <std::size_t width> class Filtered {
public:
    template <std::size_t packs> VONKK3_INLINE Packs<packs> operator()(const Packs<packs> &s) {
        return Packs<packs>::each([&](std::size_t c)
                                      VONKK3_INLINED { return PackOf<width>(ofLanes(s.chain[c].lanes)); });
    }
    bool hasDoubt() const { return !certain.all(); }

private:
    using Lanes = Register<width>;
    MaskOf<width> certain = PackOf<width>(0.0F) == PackOf<width>(0.0F);

    VONKK3_INLINE Lanes ofLanes(Lanes s) {
        const Lanes one = broadcast<Lanes>(1), half = broadcast<Lanes>(0.5F);
        const Lanes y = reciprocalRootEstimate(s);
        const Lanes r = fusedAdd(y * half, fusedSubtract(one, s * y, y), y);
        const Lanes h = s * r, minusLow = fusedSubtract(h, s, r);
        const Lanes e = fusedAdd(minusLow, r, fusedSubtract(one, h, r));
        const Lanes correction = r * half * e, root = r + correction, t = correction - (root - r);
        const Lanes margin = r * broadcast<Lanes>(0x1p-40F);
        certain = certain & (PackOf<width>(root + (t - margin)) == PackOf<width>(root + (t + margin)));
        return root;
    }
};
#else
// In double. A Newton step r (3 - s r r) / 2 turns an error e into 3/2 e^2 at most: one in Real32 leaves 2^-21.5, one
// in double less than 2^-41. `error`, 2^14 units of the double's last place, is 2^-38.
template <std::size_t> class Filtered {
public:
    template <std::size_t packs> VONKK3_INLINE Packs<packs> operator()(const Packs<packs> &s) {
        return Packs<packs>::each([&](std::size_t c) VONKK3_INLINED { return ofPack(s.chain[c]); });
    }
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
#endif

} // namespace vonkk3::cholqr
