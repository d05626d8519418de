// What the Cholesky families alone have in common: their array forms are walks of calls for one object.
#pragma once

#include "frame/size.h"
#include "frame/unroll.h"

namespace vonkk3::cholqr {

// Sizes that are signed are negative then.
inline bool hasTopBit(std::size_t size) { return size >> 31 != 0; }

// The test for null that every single call makes, for so many objects from n on: whether one of the operands has its
// object at null. In the pointer layouts it is a test of the table, which has been made by then. Nothing is looked at
// behind the first that is null.
template <class... Operands>
VONKK3_INLINE bool anyBeginsAtNull(std::size_t n, std::size_t objects, const Operands &...operands) {
    for (std::size_t k = n; k < n + objects; ++k)
        if ((operands.beginsAtNull(k) || ...)) return true;
    return false;
}

} // namespace vonkk3::cholqr
