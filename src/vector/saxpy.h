// A scaled vector plus a vector: the product first, rounded in Real32, then the sum; never fused.
#pragma once

#include "vector/elementwise.h"
#include "vector/operations.h"

namespace vonkk3::vector {

// ---- Exceptions -----------------------------------------------------------------------------------------------------

// Fixed sizes go element by element, and read a single vector again for each object, but for vav of 4x1 and 6x1 in
// standard layout: where all operands are aligned, a destination that overlaps the single vector changes nothing for
// later objects.
template <class F, class A>
inline constexpr bool mayHoldSingleVector = F::isReal32 &&F::isStandard &&F::sharesOne &&A::isArray &&
                                            (F::length == 4 || F::length == 6);

template <class A, class B, class D> inline bool allAligned(const A &a, const B &b, const D &d) {
    const auto words =
        a.address() | b.address() | d.address() | std::uintptr_t(a.objectSpacing()) | std::uintptr_t(d.objectSpacing());
    return words % laneBytes == 0;
}

// ---------------------------------------------------------------------------------------------------------------------

// d(n, j) = a(n, j) * factor + b(n, j), element by element.
template <class A, class T, class B, class D, class Length, class Count>
VONKK3_INLINE VonkStatus saxpy(const A &a, T factor, const B &b, const D &d, Length length, Count count) {
    const ScaledSum<T> operation{Constant<T>(factor)};
    if (const VonkStatus status = check(length, count, d, a, b); status != vonkOk) return status;
    if constexpr (mayHoldSingleVector<Form<Length, D, A, B>, A>)
        if (allAligned(a, b, d)) return combineObjects<1, true>(operation, length, count, d, a, b);
    return combineObjects<1, false>(operation, length, count, d, a, b);
}

} // namespace vonkk3::vector
