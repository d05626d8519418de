// An array of matrices of order 5 or 6 times a single matrix, four rows at a time: each is a vector that is multiplied
// by the single matrix transposed. An element of every row lies in a lane, and every lane is rounded as in the kernels
// for one object.
#pragma once

#include "frame/extent.h"
#include "frame/four_reals.h"

namespace vonkk3::product {

// Rows of adjacent elements at equal distances, those of one matrix behind those of another.
template <class T> struct SpacedRows {
    ByteOf<T> *first;
    std::ptrdiff_t spacing;
    std::size_t count;

    template <class Operand, std::size_t order>
    VONKK3_INLINE SpacedRows(const Operand &matrices, Fixed<order>, std::size_t objects)
        : first(matrices.view(0).base), spacing(matrices.rowSpacing()), count(order * objects) {}

    VONKK3_INLINE Extent extent(std::size_t columns) const {
        return Extent(RowsView<T>(first, spacing), count, columns);
    }
};

template <std::size_t order, class A, class D> VONKK3_INLINE bool areRowsSpaced(const A &src, const D &dst) {
    return src.objectSpacing() == std::ptrdiff_t(order) * src.rowSpacing() &&
           dst.objectSpacing() == std::ptrdiff_t(order) * dst.rowSpacing() &&
           dst.rowSpacing() >= std::ptrdiff_t(order * sizeof(Real32));
}

// How many objects were done: all whose rows make fours, or none. Order 5 reads column 4 of the single matrix anew for
// every row, and order 6 reads every matrix twice; neither is seen where the results lie apart.
template <std::size_t order, class A, class B, class D>
inline std::size_t multiplyFourRows(const A &src1, const B &src2, const D &dst, std::size_t objects) {
    const std::size_t done = inFours(objects);
    if (done == 0 || !areRowsSpaced<order>(src1, dst)) return 0;
    const SpacedRows<const Real32> from(src1, fixed<order>, done);
    const SpacedRows<Real32> to(dst, fixed<order>, done);
    const auto single = src2.view(0);
    const Extent written = to.extent(order);
    if (!areApart(written, from.extent(order)) || !areApart(written, Extent(single, order, order))) return 0;

    FourReals factor[order][order];
    for (std::size_t k = 0; k < order; ++k)
        for (std::size_t j = 0; j < order; ++j) factor[k][j] = single.load(k, j);

    const std::byte *source = from.first;
    std::byte *target = to.first;
    for (std::size_t row = 0; row < from.count; row += four) {
        FourReals a[order], d[order];
        gatherRow({source, source + from.spacing, source + 2 * from.spacing, source + 3 * from.spacing}, order, a);
        forIndices(0, order, fixed<order>, [&](std::size_t j) VONKK3_INLINED {
            d[j] = a[0] * factor[0][j];
            forIndices(1, order, fixed<order>,
                       [&](std::size_t k) VONKK3_INLINED { d[j] = d[j] + a[k] * factor[k][j]; });
        });
        scatterRow({target, target + to.spacing, target + 2 * to.spacing, target + 3 * to.spacing}, order, d);
        source += four * from.spacing;
        target += four * to.spacing;
    }
    return done;
}

} // namespace vonkk3::product
