// Roots and reciprocals from the processor's estimates of about 12 bits, each refined by one Newton step: no division
// and no root, in Real32 alone. The packed and the scalar estimate give the same bits, so a number's result does not
// depend on the lane it is worked in.
#pragma once

#include "frame/registers.h"

namespace vonkk3 {

// The square root of s as s * (1 / root of s). There is no test for zero: its estimate is infinite, and the root of 0
// is NaN.
template <class Lanes> VONKK3_INLINE Lanes rootByEstimate(Lanes s) {
    const Lanes r = reciprocalRootEstimate(s);
    return s * (r * (broadcast<Lanes>(0.5F) * (broadcast<Lanes>(3) - s * (r * r))));
}

inline Real32 rootByEstimate(Real32 s) {
    const Real32 r = _mm_cvtss_f32(_mm_rsqrt_ss(_mm_set_ss(s)));
    return s * (r * (0.5F * (3.0F - s * (r * r))));
}

} // namespace vonkk3
