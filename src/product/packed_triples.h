// Products of 3x3 and packed vectors of three elements, four vectors at a time: a single matrix times an array of
// vectors, or an array of matrices, whose rows are such vectors, times a single matrix. Every element of the result is
// (p0 + p1) + p2, as in the kernels for one object, and so are the results.
#pragma once

#include "frame/aliasing.h"
#include "frame/four_objects.h"

namespace vonkk3::product {

// Blocks are for results that lie apart from the vectors or exactly on them: each depends on the vector of its place
// alone, so nobody can tell the difference.
inline bool mayWorkInBlocks(const std::byte *vectors, const std::byte *results, std::size_t bytes) {
    return vectors == results || disjoint(extentOf(vectors, bytes), extentOf(results, bytes));
}

// The elements of a matrix in all lanes: element (i, j) of the result's vector i takes factor j of it.
struct SpreadMatrix {
    __m128 element[3][3];
    template <class Element> VONKK3_INLINE explicit SpreadMatrix(const Element &elementAt) {
        for (std::size_t i = 0; i < 3; ++i)
            for (std::size_t j = 0; j < 3; ++j) element[i][j] = _mm_set1_ps(elementAt(i, j));
    }
    VONKK3_INLINE FourTriples times(const FourTriples &v) const {
        const auto row = [&](std::size_t i) VONKK3_INLINED {
            return (v.x * element[i][0] + v.y * element[i][1]) + v.z * element[i][2];
        };
        return {row(0), row(1), row(2)};
    }
};

// Multiplies each vector by the matrix with these elements; how many of them were done.
template <class Element>
inline std::size_t multiplyPackedTriples(const Element &elementAt, const std::byte *vectors, std::byte *results,
                                         std::size_t count) {
    constexpr std::ptrdiff_t packed = 3 * sizeof(Real32);
    const std::size_t end = inFours(count);
    if (end == 0 || !mayWorkInBlocks(vectors, results, end * packed)) return 0;
    const SpreadMatrix held(elementAt);
    const SpacedVectors<const Real32, packed> from{vectors};
    const SpacedVectors<Real32, packed> to{results};
    for (std::size_t n = 0; n < end; n += four) held.times(FourTriples::load(from, n)).store(to, n);
    return end;
}

// The two products that are made of that, and how many objects were done: all that make fours, or none.
template <class A, class V, class D>
VONKK3_INLINE std::size_t multiplyOneByTriples(const A &src1, const V &src2, const D &dst, std::size_t objects) {
    if (!equallySpaced(src2, dst) || dst.objectSpacing() != 3 * sizeof(Real32)) return 0;
    return multiplyPackedTriples([a = src1.view(0)](auto i, auto k) { return a.load(i, k); }, src2.view(0).base,
                                 dst.view(0).base, objects);
}

// The rows of packed matrices are vectors, multiplied by the single matrix transposed.
template <class A, class B, class D>
VONKK3_INLINE std::size_t multiplyTriplesByOne(const A &src1, const B &src2, const D &dst, std::size_t objects) {
    if (!equallySpaced(src1, dst) || dst.objectSpacing() != 9 * sizeof(Real32) || !src1.hasPackedRows(3) ||
        !dst.hasPackedRows(3))
        return 0;
    return multiplyPackedTriples([b = src2.view(0)](auto i, auto k) { return b.load(k, i); }, src1.view(0).base,
                                 dst.view(0).base, 3 * inFours(objects)) /
           3;
}

} // namespace vonkk3::product
