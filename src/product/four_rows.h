// An array of 5x5 matrices times a single matrix, four rows at a time: each row is a vector that is multiplied by the
// single matrix transposed. An element of every row lies in a lane, and every lane is rounded as in the kernel for one
// object.
#pragma once

#include "frame/aliasing.h"
#include "frame/gather.h"

namespace vonkk3::product {

// Whether the rows of all matrices follow one another at equal distances.
template <class Matrices> VONKK3_INLINE bool areRowsSpacedEqually(const Matrices &matrices) {
    return matrices.objectSpacing() == 5 * matrices.rowSpacing();
}

template <class Matrices> VONKK3_INLINE Extent extentOfRows(const Matrices &matrices, std::size_t rows) {
    return extentOf(matrices.view(0), rows, 5);
}

// How many objects were done: all that make fours, or none. The kernel reads column 4 of the single matrix anew for
// every row, which is not seen where the results lie apart from it.
template <class A, class B, class D>
inline std::size_t multiplyFourRows(const A &src1, const B &src2, const D &dst, std::size_t objects) {
    constexpr std::size_t order = 5;
    const std::size_t done = inWholePacks(objects), rows = order * done;
    const std::ptrdiff_t sourceStep = src1.rowSpacing(), targetStep = dst.rowSpacing();
    if (done == 0 || !areRowsSpacedEqually(src1) || !areRowsSpacedEqually(dst)) return 0;
    if (targetStep < std::ptrdiff_t(order * sizeof(Real32))) return 0; // rows of a result would share elements
    const auto single = src2.view(0);
    const Extent written = extentOfRows(dst, rows);
    if (!disjoint(written, extentOfRows(src1, rows)) || !disjoint(written, extentOf(single, order, order))) return 0;

    Pack factor[order][order];
    for (std::size_t k = 0; k < order; ++k)
        for (std::size_t j = 0; j < order; ++j) factor[k][j] = single.load(k, j);

    const std::byte *source = src1.view(0).base;
    std::byte *target = dst.view(0).base;
    for (std::size_t row = 0; row < rows; row += packWidth) {
        Pack a[order], d[order];
        gatherRow({source, source + sourceStep, source + 2 * sourceStep, source + 3 * sourceStep}, order, a);
        forIndices(0, order, fixed<order>, [&](std::size_t j) VONKK3_INLINED {
            d[j] = a[0] * factor[0][j];
            forIndices(1, order, fixed<order>,
                       [&](std::size_t k) VONKK3_INLINED { d[j] = d[j] + a[k] * factor[k][j]; });
        });
        scatterRow({target, target + targetStep, target + 2 * targetStep, target + 3 * targetStep}, order, d);
        source += std::ptrdiff_t(packWidth) * sourceStep;
        target += std::ptrdiff_t(packWidth) * targetStep;
    }
    return done;
}

} // namespace vonkk3::product
