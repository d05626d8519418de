// Operations that several families have in common.
#pragma once

#include "frame/real.h"

namespace vonkk3 {

// Of numbers, or lane by lane of registers.
struct Sum {
    template <class Real> Real operator()(Real a, Real b) const { return a + b; }
};

struct Difference {
    template <class Real> Real operator()(Real a, Real b) const { return a - b; }
};

inline Real32 squareRoot(Real32 s) { return __builtin_sqrtf(s); }
inline Wide squareRoot(Wide s) { return __builtin_sqrtl(s); }

} // namespace vonkk3
