// Linear combination of two vectors, element by element: two products, each rounded in Real32, and their sum.
#pragma once

#include "vector/elementwise.h"
#include "vector/operations.h"

namespace vonkk3::vector {

// d(n, j) = a(n, j) * first + b(n, j) * second.
template <class A, class T, class B, class D, class Length, class Count>
VONKK3_INLINE VonkStatus combineLinearly(const A &a, T first, const B &b, T second, const D &d, Length length,
                                         Count count) {
    const LinearCombination<T> operation{Constant<T>(first), Constant<T>(second)};
    if (const VonkStatus status = check(length, count, d, a, b); status != vonkOk) return status;
    return combineObjects(operation, length, count, d, a, b);
}

} // namespace vonkk3::vector
