// What the Cholesky families alone have in common: their array forms are walks of calls for one object.
#pragma once

#include "frame/size.h"
#include "frame/unroll.h"

namespace vonkk3::cholqr {

// Sizes that are signed are negative then.
inline bool hasTopBit(std::size_t size) { return size >> 31 != 0; }

// The test for null that every single call makes: whether an operand has object n at null. In the pointer layouts it is
// a test of the table, which has been made by then.
template <class... Operands> VONKK3_INLINE bool anyBeginsAtNull(std::size_t n, const Operands &...operands) {
    return (operands.beginsAtNull(n) || ...);
}

} // namespace vonkk3::cholqr
