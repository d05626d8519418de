// The inverse of run-time order as the adjugate divided by the determinant: one elimination for the determinant and one
// for the minor of every element, all in the caller's scratch memory. The work is of the fifth order, and the matrix is
// read again for every minor.
#pragma once

#include "frame/exports.h"
#include "lu/scratch_elimination.h"

namespace vonkk3::lu {

// The matrix without one row and one column.
template <class T, class Source>
inline void copyMinorToScratch(const ScratchMatrix<T> &matrix, std::size_t order, const Source &source, std::size_t row,
                               std::size_t column) {
    for (std::size_t i = 0; i + 1 < order; ++i)
        for (std::size_t j = 0; j + 1 < order; ++j) matrix.fill(i, j, source.load(i + (i >= row), j + (j >= column)));
    matrix.resetIndices(order - 1);
}

// A minor that is singular is 0, or what its last pivot makes of that: a cofactor may well be zero.
template <class T> inline Working<T> minorInScratch(const ScratchMatrix<T> &matrix, std::size_t order) {
    ProductInVariable<T> product;
    if (order == 0) return product.get(); // a matrix of one element has an empty minor, and that is 1
    const Elimination done = eliminate(matrix, order, product);
    if (!done.isRegular) product.set(0);
    multiplyLastPivot(matrix, order, done.sign, product);
    return product.get();
}

// Nothing is stored before the determinant has passed. Only its reciprocal and the results are rounded to the element.
template <class T, class Source, class Destination>
inline VonkStatus invertByMinors(const ScratchMatrix<T> &matrix, std::size_t order, const Source &source,
                                 const Destination &inverse) {
    using W = Working<T>;
    ProductInVariable<T> determinant;
    const Elimination done = eliminate(matrix, order, determinant);
    if (!done.isRegular || !multiplyLastPivot(matrix, order, done.sign, determinant)) return vonkErrSingular;
    const W reciprocal = round<T>(W(1) / determinant.get());
    for (std::size_t c = 0; c < order; ++c)
        for (std::size_t q = 0; q < order; ++q) {
            copyMinorToScratch(matrix, order, source, c, q);
            const W sign = (c + q) % 2 == 0 ? W(1) : W(-1);
            inverse.store(q, c, round<T>((minorInScratch(matrix, order - 1) * reciprocal) * sign));
        }
    return vonkOk;
}

} // namespace vonkk3::lu
