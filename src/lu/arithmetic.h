// The small arithmetic of elimination.
#pragma once

#include "frame/pack.h"
#include "frame/real.h"

namespace vonkk3::lu {

// Elements, or packs of them, and what they are worked in: packs of Real32 in themselves.
template <class T> inline constexpr bool isPacks = false;
template <std::size_t chains> inline constexpr bool isPacks<Packs<chains>> = true;
template <class T> using WorkedAs = std::conditional_t<isPacks<T>, T, Working<T>>;
template <class T> inline T rounded(const WorkedAs<T> &value) { return static_cast<T>(value); }

inline Real32 magnitude(Real32 value) { return __builtin_fabsf(value); }
inline Wide magnitude(Wide value) { return __builtin_fabsl(value); }
template <std::size_t chains> VONKK3_INLINE Packs<chains> magnitude(const Packs<chains> &value) {
    return Packs<chains>::each([&](std::size_t c) VONKK3_INLINED { return vonkk3::magnitude(value.chain[c]); });
}

// A zero Real32 multiplier is negated to +0 by taking it from zero, a zero Real64 one to the other zero.
inline Real32 negated(Real32 multiplier) { return 0.0F - multiplier; }
inline Wide negated(Wide multiplier) { return -multiplier; }
template <std::size_t chains> VONKK3_INLINE Packs<chains> negated(const Packs<chains> &multiplier) {
    return Packs<chains>(0.0F) - multiplier;
}

} // namespace vonkk3::lu
