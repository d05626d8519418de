// The small arithmetic of elimination.
#pragma once

#include "frame/real.h"

namespace vonkk3::lu {

inline Real32 magnitude(Real32 value) { return __builtin_fabsf(value); }
inline Wide magnitude(Wide value) { return __builtin_fabsl(value); }

// A zero Real32 multiplier is negated to +0 by taking it from zero, a zero Real64 one to the other zero.
inline Real32 negated(Real32 multiplier) { return 0.0F - multiplier; }
inline Wide negated(Wide multiplier) { return -multiplier; }

} // namespace vonkk3::lu
