// Products of 3x3 and packed vectors of three elements, blocks of vectors at a time: a single matrix times an array of
// vectors, or an array of matrices, whose rows are such vectors, times a single matrix. Every element of the result is
// (p0 + p1) + p2, as in the kernels for one object, and so are the results.
#pragma once

#include "frame/aliasing.h"
#include "frame/vector_blocks.h"

namespace vonkk3::product {

// The elements of a matrix in all lanes: element (i, j) of the result's vector i takes factor j of it.
template <std::size_t width> struct BroadcastMatrix {
    Register<width> element[3][3];
    template <class Element> VONKK3_INLINE explicit BroadcastMatrix(const Element &elementAt) {
        for (std::size_t i = 0; i < 3; ++i)
            for (std::size_t j = 0; j < 3; ++j) element[i][j] = vonkk3::broadcast<Register<width>>(elementAt(i, j));
    }
    VONKK3_INLINE Vectors3<width> times(const Vectors3<width> &v) const {
        const auto row = [&](std::size_t i) VONKK3_INLINED {
            return (v.x * element[i][0] + v.y * element[i][1]) + v.z * element[i][2];
        };
        return {row(0), row(1), row(2)};
    }
    BroadcastMatrix<four> narrowed() const {
        return BroadcastMatrix<four>(
            [&](std::size_t i, std::size_t j) { return _mm_cvtss_f32(quad<0>(element[i][j])); });
    }
};

// Multiplies each vector by the matrix with these elements; they fill packs.
template <class Element>
inline void multiplyPackedVectors3(const Element &elementAt, const std::byte *vectors, std::byte *results,
                                   std::size_t count) {
    constexpr std::ptrdiff_t packed = 3 * sizeof(Real32);
    const SpacedVectors<const Real32, packed> from{vectors};
    const SpacedVectors<Real32, packed> to{results};
    const BroadcastMatrix<widestRegister> held(elementAt);
    std::size_t n = 0;
    for (; count - n >= widestRegister; n += widestRegister)
        held.times(Vectors3<widestRegister>::load(from, n)).store(to, n);
    if (n < count) held.narrowed().times(Vectors3<four>::load(from, n)).store(to, n);
}

// Packed results that are disjoint from the vectors, or lie exactly on them. The matrix is read before any is stored.
inline bool mayWorkPacked(const Extent &results, const Extent &vectors) {
    return results.begin == vectors.begin || disjoint(results, vectors);
}

// The two products that are made of that, and how many objects were done: all that fill packs, or none. Each result
// depends on the vector of its place alone, so it may be written in place.
template <class A, class V, class D>
VONKK3_INLINE std::size_t multiplyOneByVectors3(const A &src1, const V &src2, const D &dst, std::size_t objects) {
    const std::size_t done = inFours(objects);
    if (done == 0 || !equallySpaced(src2, dst) || dst.objectSpacing() != 3 * sizeof(Real32)) return 0;
    if (!mayWorkPacked(extentOfAll(dst, 1, 3, done), extentOfAll(src2, 1, 3, done))) return 0;
    multiplyPackedVectors3([a = src1.view(0)](std::size_t i, std::size_t k) { return a.load(i, k); }, src2.view(0).base,
                           dst.view(0).base, done);
    return done;
}

// The rows of packed matrices are vectors, multiplied by the single matrix transposed.
template <class A, class B, class D>
VONKK3_INLINE std::size_t multiplyVectors3ByOne(const A &src1, const B &src2, const D &dst, std::size_t objects) {
    const std::size_t done = inFours(objects);
    if (done == 0 || !equallySpaced(src1, dst) || dst.objectSpacing() != 9 * sizeof(Real32) || !src1.hasPackedRows(3) ||
        !dst.hasPackedRows(3))
        return 0;
    if (!mayWorkPacked(extentOfAll(dst, 3, 3, done), extentOfAll(src1, 3, 3, done))) return 0;
    multiplyPackedVectors3([b = src2.view(0)](std::size_t i, std::size_t k) { return b.load(k, i); }, src1.view(0).base,
                           dst.view(0).base, 3 * done);
    return done;
}

} // namespace vonkk3::product
