// A scaled vector plus a vector: the product first, rounded in Real32, then the sum; never fused.
#pragma once

#include "vector/elementwise.h"
#include "vector/operations.h"

namespace vonkk3::vector {

// ---- Exceptions -----------------------------------------------------------------------------------------------------

// Fixed sizes read a single vector again for each object, but for vav of 4x1 and 6x1 in standard layout: where all
// operands are aligned, a destination that overlaps the single vector changes nothing for later objects.
template <class F, class A>
inline constexpr bool mayHoldSingleVector = F::isReal32 &&F::isStandard &&F::sharesOne &&A::isArray &&
                                            (F::length == 4 || F::length == 6);

template <class A, class B, class D> inline bool allAligned(const A &a, const B &b, const D &d) {
    const auto words =
        a.address() | b.address() | d.address() | std::uintptr_t(a.objectSpacing()) | std::uintptr_t(d.objectSpacing());
    return words % laneBytes == 0;
}

// ---------------------------------------------------------------------------------------------------------------------

// Contiguous elements of fixed sizes go in lanes, unless an object's results overwrite what of it is yet to be read.
template <class Operation, std::size_t length, class D, class A, class B>
VONKK3_INLINE VonkStatus saxpyInLanes(const Operation &operation, Fixed<length> size, Objects count, const D &d,
                                      const A &a, const B &b) {
    constexpr std::size_t bytes = length * sizeof(Real32);
    const auto one = [&](std::size_t n) VONKK3_INLINED {
        const auto to = d.view(n);
        const auto first = a.view(n), second = b.view(n);
        if (overwritesAhead(to.base, first.base, bytes) || overwritesAhead(to.base, second.base, bytes)) [[unlikely]]
            return workElements<false>(to, fixed<1>, RunTime{size}, operation, first, second);
        combineLanes(operation, Lanes<length>::load(first.base), Lanes<length>::load(second.base)).store(to.base);
        return VonkStatus(vonkOk);
    };
    return forEachObject(count, one, a, b, d);
}

// d(n, j) = a(n, j) * factor + b(n, j).
template <class A, class T, class B, class D, class Length, class Count>
VONKK3_INLINE VonkStatus saxpy(const A &a, T factor, const B &b, const D &d, Length length, Count count) {
    using F = Form<Length, D, A, B>;
    const ScaledSum<T> operation{Constant<T>(factor)};
    if (const VonkStatus status = check(length, count, d, a, b); status != vonkOk) return status;
    if (count == 0) return vonkOk;
    if (combineFast(operation, length, count, d, a, b)) return vonkOk;
    if constexpr (mayHoldSingleVector<F, A>)
        if (allAligned(a, b, d)) return combineHeld(operation, length, count, d, a, b);
    if constexpr (F::isReal32 && F::isFixed && F::isAdjacent && F::isArray)
        return saxpyInLanes(operation, length, count, d, a, b);
    else return combineByElement(operation, length, count, d, a, b);
}

} // namespace vonkk3::vector
