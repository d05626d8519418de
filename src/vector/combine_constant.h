// Vectors and a constant, element by element: sum, difference either way round, and product.
#pragma once

#include "vector/elementwise.h"
#include "vector/operations.h"

namespace vonkk3::vector {

// d(n, j) = operation(source(n, j), constant).
template <class Operation, class Source, class T, class D, class Length, class Count>
VONKK3_INLINE VonkStatus combineConstant(const Source &source, T constant, const D &d, Length length, Count count) {
    if (const VonkStatus status = check(length, count, d, source); status != vonkOk) return status;
    return combineObjects(WithConstant<T, Operation>{Constant<T>(constant)}, length, count, d, source);
}

} // namespace vonkk3::vector
