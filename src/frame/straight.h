// Straight code for every index below a fixed bound. Unlike a loop that is unrolled later, it lets the compiler see
// arrays of registers as registers from the start.
#pragma once

#include "frame/unroll.h"

#include <utility>

namespace vonkk3 {

// body(0), body(1), ... with each index a constant.
template <std::size_t bound, class Body> VONKK3_INLINE void forEachBelow(const Body &body) {
    [&]<std::size_t... index>(std::index_sequence<index...>) VONKK3_INLINED {
        (body(std::integral_constant<std::size_t, index>()), ...);
    }
    (std::make_index_sequence<bound>());
}

} // namespace vonkk3
