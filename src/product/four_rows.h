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

// How many objects were done: all that make fours, or none. The kernel reads column 4 of the single matrix again for
// every row, which makes no difference where the results are disjoint from it.
template <class A, class B, class D>
inline std::size_t multiplyFourRows(const A &src1, const B &src2, const D &dst, std::size_t objects) {
    constexpr std::size_t order = 5;
    const std::size_t done = inWholePacks(objects), rows = order * done;
    const std::ptrdiff_t sourceStep = src1.rowSpacing(), targetStep = dst.rowSpacing();
    if (done == 0 || !areRowsSpacedEqually(src1) || !areRowsSpacedEqually(dst)) return 0;
    const ObjectsView a = objectsOf(src1, order, order, done), b = objectsOf(src2, order, order, done);
    const ObjectsView d = objectsOf(dst, order, order, done);
    if (!Aliasing(done, writes(d), reads(a), reads(b)).allowsBatch(0, done)) return 0;
    const auto single = src2.view(0);

    Pack factor[order][order];
    for (std::size_t k = 0; k < order; ++k)
        for (std::size_t j = 0; j < order; ++j) factor[k][j] = single.load(k, j);

    const std::byte *source = src1.view(0).base;
    std::byte *target = dst.view(0).base;
    for (std::size_t row = 0; row < rows; row += packWidth) {
        Pack element[order], sum[order];
        gatherRow({source, source + sourceStep, source + 2 * sourceStep, source + 3 * sourceStep}, order, element);
        forIndices(0, order, fixed<order>, [&](std::size_t j) VONKK3_INLINED {
            sum[j] = element[0] * factor[0][j];
            forIndices(1, order, fixed<order>,
                       [&](std::size_t k) VONKK3_INLINED { sum[j] = sum[j] + element[k] * factor[k][j]; });
        });
        scatterRow({target, target + targetStep, target + 2 * targetStep, target + 3 * targetStep}, order, sum);
        source += std::ptrdiff_t(packWidth) * sourceStep;
        target += std::ptrdiff_t(packWidth) * targetStep;
    }
    return done;
}

} // namespace vonkk3::product
