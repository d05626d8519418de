// Linear combination of two vectors, element by element: two products, each rounded in Real32, and their sum.
#pragma once

#include "vector/elementwise.h"
#include "vector/operations.h"

namespace vonkk3::vector {

// ---- Members that behave unlike their siblings ----------------------------------------------------------------------

// Where vectors of 4 to 6 adjacent Real32 elements are moved in lanes, the standard layout looks whether pointers and
// object strides are multiples of 16, and then moves them aligned.
template <class F> inline constexpr bool looksAtAlignment = F::isReal32 &&F::isFixed &&F::isStandard &&F::length >= 4;

// vonkLComb_vav_32f_4x1_L does so too, object by object; no other list form does.
template <class F>
inline constexpr bool looksAtEachAlignment =
    F::isReal32 &&F::isAdjacent && !F::isStandard && F::sharesOne && F::length == 4;

// ---------------------------------------------------------------------------------------------------------------------

template <class Operand> inline bool allAligned(const Operand &operand) {
    return isAligned(operand.view(0).base) && operand.objectSpacing() % std::ptrdiff_t(laneBytes) == 0;
}

template <class Operation, class A, class B, class D, class Size>
inline VonkStatus combineEachAligned(const Operation &operation, const A &a, const B &b, const D &d, Size,
                                     Objects count) {
    if (count == 0) return vonkOk; // nothing is read, not even a single vector
    const auto held = lanesOf<4, Alignment::any>(b);
    const auto combineObject = [&](std::size_t n) VONKK3_INLINED {
        const std::byte *from = a.view(n).base;
        std::byte *to = d.view(n).base;
        if (isAligned(from) && isAligned(to)) store4Aligned(to, operation(load4Aligned(from), held(n).head));
        else store4(to, operation(load4(from), held(n).head));
    };
    return forEachLightObject(count, combineObject, a, d);
}

// d(n, j) = a(n, j) * first + b(n, j) * second.
template <class A, class T, class B, class D, class Length, class Count>
VONKK3_INLINE VonkStatus combineLinearly(const A &a, T first, const B &b, T second, const D &d, Length length,
                                         Count count) {
    using F = Form<Length, D, A, B>;
    const LinearCombination<T> operation{Constant<T>(first), Constant<T>(second)};
    if (const VonkStatus status = check(length, count, d, a, b); status != vonkOk) return status;

    if constexpr (looksAtAlignment<F>)
        if (allAligned(a) && allAligned(b) && allAligned(d))
            return combineObjects<Alignment::lanes>(operation, length, count, d, a, b);
    if constexpr (looksAtEachAlignment<F>) return combineEachAligned(operation, a, b, d, length, count);
    else return combineObjects(operation, length, count, d, a, b);
}

} // namespace vonkk3::vector
