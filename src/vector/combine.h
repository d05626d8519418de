// Sum and difference of vectors, element by element: two vectors, a vector and an array, or two arrays. One rounded
// operation per element.
#pragma once

#include "vector/elementwise.h"
#include "vector/operations.h"

namespace vonkk3::vector {

// d(n, j) = operation(a(n, j), b(n, j)); a single operand serves all objects.
template <class Operation, class A, class B, class D, class Length, class Count>
VONKK3_INLINE VonkStatus combine(const A &a, const B &b, const D &d, Length length, Count count) {
    if (const VonkStatus status = check(length, count, d, a, b); status != vonkOk) return status;
    return combineObjects(Operation(), length, count, d, a, b);
}

} // namespace vonkk3::vector
