// The divisor of an inverse: when it is taken for zero, and how its reciprocal is made.
#pragma once

#include "frame/real.h"

#include <xmmintrin.h>

namespace vonkk3::lu {

// Inside this interval around zero a divisor is taken for zero; its ends and a NaN are not. The bounds are Real64
// numbers for both types.
template <class T> inline constexpr Real64 singularBelow = std::is_same_v<T, Real32> ? 1e-7 : 1e-15;

inline bool isInSingularInterval(Real32 divisor) {
    const Real64 d = divisor;
    return -singularBelow<Real32> < d && d < singularBelow<Real32>;
}
inline bool isInSingularInterval(Wide divisor) {
    return -Wide(singularBelow<Real64>) < divisor && divisor < Wide(singularBelow<Real64>);
}

inline Real32 reciprocalEstimate(Real32 d) { return _mm_cvtss_f32(_mm_rcp_ss(_mm_set_ss(d))); }

// One Newton step from the processor's estimate of about 12 bits: x + x - d x^2, which is multiplied in one order for
// 3x3 and in the other for larger matrices.
inline Real32 reciprocalByEstimateOfThree(Real32 d) {
    const Real32 x = reciprocalEstimate(d);
    return (x + x) - (d * x) * x;
}
inline Real32 reciprocalByEstimate(Real32 d) {
    const Real32 x = reciprocalEstimate(d);
    return (x + x) - d * (x * x);
}

} // namespace vonkk3::lu
