// The divisor of an inverse: when it is too close to zero, and how its reciprocal is made.
#pragma once

#include "frame/pack.h"

namespace vonkk3::lu {

// Inside this interval around zero a divisor is below the singularity tolerance; its ends and a NaN are not. The bounds
// are Real64 numbers for both types.
template <class T> inline constexpr Real64 singularBelow = std::is_same_v<T, Real32> ? 1e-7 : 1e-15;

inline bool isInSingularInterval(Real32 divisor) {
    const Real64 d = divisor;
    return -singularBelow<Real32> < d && d < singularBelow<Real32>;
}
inline bool isInSingularInterval(Wide divisor) {
    return -Wide(singularBelow<Real64>) < divisor && divisor < Wide(singularBelow<Real64>);
}

// Whether the divisor of any object of a batch is. The Real32 bound is the least Real32 that is not below the other.
template <std::size_t chains> VONKK3_INLINE bool isInSingularInterval(const Packs<chains> &divisor) {
    static constexpr auto bound = Real32(singularBelow<Real32>);
    static_assert(bound >= singularBelow<Real32> && Real64(bound) * (1 - 0x1p-23) < singularBelow<Real32>);
    return inAnyLane(divisor, [](auto d) VONKK3_INLINED { return decltype(d)(bound) > magnitude(d); });
}

// One Newton step from the processor's estimate x of about 12 bits: x + x - d x^2, which is multiplied in one order for
// 3x3 and in the other for larger matrices.
template <class Lanes> inline Lanes reciprocalByEstimateOfThree(Lanes d) {
    const Lanes x = reciprocalEstimate(d);
    return (x + x) - (d * x) * x;
}
template <class Lanes> inline Lanes reciprocalByEstimate(Lanes d) {
    const Lanes x = reciprocalEstimate(d);
    return (x + x) - d * (x * x);
}
template <std::size_t packs> VONKK3_INLINE Packs<packs> reciprocalByEstimate(const Packs<packs> &d) {
    using Value = typename Packs<packs>::Value;
    return Packs<packs>::each([&](std::size_t c)
                                  VONKK3_INLINED { return Value(reciprocalByEstimate(d.chain[c].lanes)); });
}
inline Real32 reciprocalByEstimate(Real32 d) { return _mm_cvtss_f32(reciprocalByEstimate(_mm_set1_ps(d))); }

// What an inverse does with a divisor: whether it gives up, and else the reciprocal.
struct ByDivision {
    template <class W> VONKK3_INLINE static bool isSingular(const W &divisor) { return isInSingularInterval(divisor); }
    template <class W> VONKK3_INLINE W operator()(const W &divisor) const { return W(1.0F) / divisor; }
};
struct ByEstimate {
    template <class W> VONKK3_INLINE static bool isSingular(const W &divisor) { return isInSingularInterval(divisor); }
    template <class W> VONKK3_INLINE W operator()(const W &divisor) const { return reciprocalByEstimate(divisor); }
};

// Of batches whose plain path takes all but zero.
template <std::size_t order> struct ByEstimateUnlessZero {
    template <std::size_t packs> VONKK3_INLINE static bool isSingular(const Packs<packs> &divisor) {
        return inAnyLane(divisor, [](auto d) VONKK3_INLINED { return d == decltype(d)(0.0F); });
    }
    template <std::size_t packs> VONKK3_INLINE Packs<packs> operator()(const Packs<packs> &divisor) const {
        using Value = typename Packs<packs>::Value;
        return Packs<packs>::each([&](std::size_t c) VONKK3_INLINED {
            if constexpr (order == 3) return Value(reciprocalByEstimateOfThree(divisor.chain[c].lanes));
            else return Value(reciprocalByEstimate(divisor.chain[c].lanes));
        });
    }
};

} // namespace vonkk3::lu
