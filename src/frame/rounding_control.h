// How the caller's control words have results rounded. The units for 80-bit and for SIMD arithmetic each have their
// own, and both are the caller's. Where they do not round alike, lanes do not give what is promised of the 80-bit unit;
// nor do they through the 53 bits of a double unless that unit has at least as many and rounds to nearest.
#pragma once

#include "frame/lanes.h"

#include <cstdint>

namespace vonkk3 {

struct RoundingControl {
    std::uint16_t wide;
    unsigned lanes = _mm_getcsr();
    RoundingControl() { __asm__ volatile("fnstcw %0" : "=m"(wide)); }

    bool bothRoundToNearest() const { return (wide & 0x0c00) == 0 && (lanes & 0x6000) == 0; }
    bool wideHas53Bits() const { return (wide & 0x0200) != 0; }
    bool lanesKeepSubnormals() const { return (lanes & 0x8040) == 0; }
};

} // namespace vonkk3
