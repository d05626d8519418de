// Operations on two elements that several families have in common, in scalars and in lanes.
#pragma once

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

} // namespace vonkk3
