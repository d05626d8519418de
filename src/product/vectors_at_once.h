// A single matrix of order 4 or 6 times an array of vectors, with Gaxpy's addend or without: a vector in each quad of
// the widest register. Every element of the result is summed as in the kernels for one object.
#pragma once

#include "product/packed_vectors3.h"
#include "product/vector_kernels.h"

namespace vonkk3::product {

// Packed vectors of four elements. The columns of the matrix are in every quad.
template <bool isTransposed> struct TimesFours {
    static constexpr std::size_t length = 4;
    WideRegister columns[4];

    template <class A> VONKK3_INLINE explicit TimesFours(const A &matrix) {
        __m128 rows[4];
        forIndices(0, 4, fixed<4>, [&](std::size_t i) VONKK3_INLINED {
            if constexpr (isTransposed) rows[i] = load4(matrix.stored.at(i, 0));
            else rows[i] = load4(matrix.at(i, 0));
        });
        if constexpr (!isTransposed) transpose(rows[0], rows[1], rows[2], rows[3]);
        forIndices(0, 4, fixed<4>,
                   [&](std::size_t k) VONKK3_INLINED { columns[k] = inEveryQuad<WideRegister>(rows[k]); });
    }

    static bool takes(std::ptrdiff_t spacing) { return spacing == laneBytes; }
    template <class Operand> VONKK3_INLINE static WideRegister load(const Operand &vectors, std::size_t n) {
        return loadLanes<WideRegister>(vectors.view(n).base);
    }
    template <class Operand> VONKK3_INLINE static void store(const Operand &vectors, std::size_t n, WideRegister v) {
        storeLanes(vectors.view(n).base, v);
    }

    // (p0 + p2) + (p1 + p3), transposed (p0 + p1) + (p2 + p3)
    VONKK3_INLINE WideRegister operator()(WideRegister v) const {
        const auto p = [&](std::size_t k) VONKK3_INLINED { return broadcastLane(v, k) * columns[k]; };
        return isTransposed ? (p(0) + p(1)) + (p(2) + p(3)) : (p(0) + p(2)) + (p(1) + p(3));
    }
};

// Vectors of six elements that do not overlap each other.
struct TimesSixes : PlainMatrixOfSix<widestRegister> {
    static constexpr std::size_t length = 6;
    using Vectors = ProductVectors<widestRegister>;
    using PlainMatrixOfSix::PlainMatrixOfSix;

    static bool takes(std::ptrdiff_t spacing) { return magnitudeOf(spacing) >= length * sizeof(Real32); }
    template <class Operand> VONKK3_INLINE static Vectors load(const Operand &vectors, std::size_t n) {
        const auto of = [&](std::size_t q) VONKK3_INLINED { return vectors.view(n + q).base; };
        return {ofQuads<WideRegister>([&](std::size_t q) VONKK3_INLINED { return load4(of(q)); }),
                ofQuads<WideRegister>([&](std::size_t q) VONKK3_INLINED { return load2(of(q) + laneBytes); })};
    }
    template <class Operand> VONKK3_INLINE static void store(const Operand &vectors, std::size_t n, const Vectors &v) {
        forEachQuad<widestRegister>([&](auto q) VONKK3_INLINED {
            std::byte *const to = vectors.view(n + q).base;
            store4(to, quad<q>(v.head)), store2(to + laneBytes, quad<q>(v.tail));
        });
    }
    VONKK3_INLINE Vectors operator()(const Vectors &v) const { return times(Factors(v)); }
};

// How many objects were done: all that fill registers, or none.
template <class Times, class A, class V, class D, class... Addend>
VONKK3_INLINE std::size_t multiplyAtOnce(const A &src1, const V &src2, const D &dst, std::size_t objects,
                                         const Addend &...src3) {
    const std::size_t done = objects / quadsAtOnce * quadsAtOnce;
    if (done == 0 || !equallySpaced(src2, dst, src3...) || !Times::takes(dst.objectSpacing())) return 0;
    const auto extent = [&](const auto &vectors)
                            VONKK3_INLINED { return extentOfAll(vectors, 1, Times::length, done); };
    const Extent results = extent(dst);
    if (!(mayWorkPacked(results, extent(src2)) && ... && mayWorkPacked(results, extent(src3)))) return 0;
    const Times times(src1.view(0));
    for (std::size_t n = 0; n < done; n += quadsAtOnce) {
        auto sum = times(Times::load(src2, n));
        ((sum = sum + Times::load(src3, n)), ...);
        Times::store(dst, n, sum);
    }
    return done;
}

template <std::size_t order, class A, class V, class D, class... Addend>
VONKK3_INLINE std::size_t multiplyOneAtOnce(const A &src1, const V &src2, const D &dst, std::size_t objects,
                                            const Addend &...src3) {
    if constexpr (widestRegister == 4 || A::isArray || !V::isArray || D::layout != Layout::Standard) return 0;
    else if constexpr (order == 4)
        return multiplyAtOnce<TimesFours<A::isTransposed>>(src1, src2, dst, objects, src3...);
    else if constexpr (order == 6 && !A::isTransposed)
        return multiplyAtOnce<TimesSixes>(src1, src2, dst, objects, src3...);
    else return 0;
}

} // namespace vonkk3::product
