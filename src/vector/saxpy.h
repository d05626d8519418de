// A scaled vector plus a vector: the product first, rounded in Real32, then the sum; never fused.
#pragma once

#include "vector/elementwise.h"
#include "vector/operations.h"

namespace vonkk3::vector {

// ---- Members that behave unlike their siblings ----------------------------------------------------------------------

// Fixed sizes are worked element by element and read a single vector anew for each object, but for vav and vava of 4x1
// and 6x1, which have lanes for operands that are aligned throughout. There vav holds its single vector.
template <class F, class A>
inline constexpr bool hasAlignedLanes = F::isReal32 &&F::isStandard &&F::isArray &&A::isArray &&
                                        (F::length == 4 || F::length == 6);

// ---------------------------------------------------------------------------------------------------------------------

// The stride of an array src2 is not looked at: it is loaded as if it were aligned, which is the caller's to see to.
template <class A, class B, class D> inline bool allAligned(const A &a, const B &b, const D &d) {
    const auto words = reinterpret_cast<std::uintptr_t>(a.view(0).base) |
                       reinterpret_cast<std::uintptr_t>(b.view(0).base) |
                       reinterpret_cast<std::uintptr_t>(d.view(0).base) | std::uintptr_t(a.objectSpacing()) |
                       std::uintptr_t(d.objectSpacing());
    return words % laneBytes == 0;
}

// Elements 4 and 5 are loaded behind the store of the first four, as one element behind the other would be: aligned
// operands overlap by whole registers, so that both ways see the same.
template <class Operation, class A, class B, class D, std::size_t length>
inline VonkStatus combineAligned(const Operation &operation, const A &a, const B &b, const D &d, Fixed<length>,
                                 Objects count) {
    const auto combineObject = [&](std::size_t n, const auto &head, const auto &tail) VONKK3_INLINED {
        const std::byte *from = a.view(n).base;
        std::byte *to = d.view(n).base;
        store4Aligned(to, operation(load4Aligned(from), head()));
        if constexpr (length == 6) store2(to + laneBytes, operation(load2(from + laneBytes), tail()));
    };
    if constexpr (B::isArray)
        return forEachLightObject(count, [&](std::size_t n) VONKK3_INLINED {
            const std::byte *other = b.view(n).base;
            combineObject(
                n, [=] { return load4Aligned(other); }, [=] { return load2(other + laneBytes); });
        });
    else {
        const auto held = Lanes<length, Alignment::lanes>::load(b.view(0).base);
        return forEachLightObject(count, [&](std::size_t n) VONKK3_INLINED {
            combineObject(
                n, [&] { return held.head; }, [&] { return held.tail; });
        });
    }
}

// d(n, j) = a(n, j) * factor + b(n, j).
template <class A, class T, class B, class D, class Length, class Count>
VONKK3_INLINE VonkStatus saxpy(const A &a, T factor, const B &b, const D &d, Length length, Count count) {
    using F = Form<Length, D, A, B>;
    const ScaledSum<T> operation{Constant<T>(factor)};
    if (const VonkStatus status = check(length, count, d, a, b); status != vonkOk) return status;
    if (count == 0) return vonkOk;

    if constexpr (hasAlignedLanes<F, A>)
        if (allAligned(a, b, d)) return combineAligned(operation, a, b, d, length, count);
    if constexpr (walksInBlocks<F>) return combineInBlocks(operation, length, d, a, b);
    else return combineAnew(operation, length, count, d, a, b);
}

} // namespace vonkk3::vector
