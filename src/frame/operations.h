// Operations that several families have in common.
#pragma once

#include "frame/real.h"

#include <xmmintrin.h>

namespace vonkk3 {

struct Sum {
    template <class Real> Real operator()(Real a, Real b) const { return a + b; }
    __m128 operator()(__m128 a, __m128 b) const { return _mm_add_ps(a, b); }
};

struct Difference {
    template <class Real> Real operator()(Real a, Real b) const { return a - b; }
    __m128 operator()(__m128 a, __m128 b) const { return _mm_sub_ps(a, b); }
};

inline Real32 squareRoot(Real32 s) { return __builtin_sqrtf(s); }
inline Wide squareRoot(Wide s) { return __builtin_sqrtl(s); }

} // namespace vonkk3
