// Sum and difference of vectors, element by element: two vectors, a vector and an array, or two arrays. One rounded
// operation per element.
#pragma once

#include "vector/elementwise.h"
#include "vector/operations.h"

namespace vonkk3::vector {

// ---- Members that behave unlike their siblings ----------------------------------------------------------------------

// vonkAdd_vv_32f_4x1 looks whether all three vectors are aligned and then moves them so; vonkSub_vv_32f_4x1 does not.
template <class Operation, class F>
inline constexpr bool looksAtAlignment =
    std::is_same_v<Operation, Sum> &&F::isReal32 &&F::isStandard && !F::isArray && F::length == 4;

// vonkSub_vava_32f_3x1 takes objects in blocks of four, with a prefetch at the head of each; vonkAdd_vava_32f_3x1 does
// not.
template <class Operation, class F>
inline constexpr bool takesBlocksOfFour =
    std::is_same_v<Operation, Difference> &&F::isReal32 &&F::isStandard &&F::isArray && !F::sharesOne && F::length == 3;

// ---------------------------------------------------------------------------------------------------------------------

template <class Operation, class A, class B, class D, class Count>
inline VonkStatus combineInBlocksOfFour(const Operation &operation, const A &a, const B &b, const D &d, Count count) {
    constexpr std::size_t block = 4;
    const auto combineObject = [&](std::size_t n) {
        combineLanes(operation, Lanes<3>::load(a.view(n).base), Lanes<3>::load(b.view(n).base)).store(d.view(n).base);
    };
    const std::size_t inBlocks = count / block * block;
    for (std::size_t n = 0; n < inBlocks; n += block) {
        prefetch(a.view(n).base + prefetchDistance);
        prefetch(b.view(n).base + prefetchDistance);
        for (std::size_t k = 0; k < block; ++k) combineObject(n + k);
    }
    for (std::size_t n = inBlocks; n < count; ++n) combineObject(n);
    return vonkOk;
}

// d(n, j) = operation(a(n, j), b(n, j)); a single operand serves all objects.
template <class Operation, class A, class B, class D, class Length, class Count>
VONKK3_INLINE VonkStatus combine(const A &a, const B &b, const D &d, Length length, Count count) {
    using F = Form<Length, D, A, B>;
    constexpr Operation operation;
    if (const VonkStatus status = check(length, count, d, a, b); status != vonkOk) return status;

    if constexpr (looksAtAlignment<Operation, F>)
        if (isAligned(a.view(0).base) && isAligned(b.view(0).base) && isAligned(d.view(0).base))
            return combineObjects<Alignment::lanes>(operation, length, count, d, a, b);
    if constexpr (takesBlocksOfFour<Operation, F>) return combineInBlocksOfFour(operation, a, b, d, count);
    else return combineObjects(operation, length, count, d, a, b);
}

} // namespace vonkk3::vector
