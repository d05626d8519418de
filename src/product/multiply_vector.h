// Matrix by vector: a single one or an array on either side, the matrix read as stored or transposed.
#pragma once

#include "frame/untested_position.h"
#include "product/packed_triples.h"
#include "product/position_runs.h"
#include "product/schemes.h"
#include "product/vector_kernels.h"

namespace vonkk3::product {

// ---- Members that behave unlike their siblings ----------------------------------------------------------------------

// Real32 of fixed order works in lanes where elements are adjacent, whatever the pattern.
template <class T, Layout layout, class Cols>
inline constexpr bool multipliesVectorInLanes = std::is_same_v<T, Real32> &&Cols::isFixed &&
                                                (layout == Layout::Standard || layout == Layout::L);

// vonkMul_mTv of 4x4 in the pointer layout never tests the matrix entry at position 8.
template <class A, class Count, class Cols>
inline constexpr bool leavesPosition8Untested =
    A::isTransposed && !Count::isArray && Cols::value == 4 && A::layout == Layout::P;

// ---- All objects ----------------------------------------------------------------------------------------------------

// What hands out an operand of object n in registers; a single one is loaded once, here.
template <class Held, bool isArray, class Load> VONKK3_INLINE auto heldOrLoaded(Load load) {
    if constexpr (isArray) return load;
    else return [held = load(0)](std::size_t) -> const Held & { return held; };
}

template <std::size_t order, class A> VONKK3_INLINE auto matricesInLanes(const A &src) {
    using Held = HeldMatrix<A, order>;
    return heldOrLoaded<Held, A::isArray>([&src](std::size_t n) VONKK3_INLINED { return Held(src.view(n)); });
}

template <std::size_t order, class A, class V> VONKK3_INLINE auto factorsInLanes(const V &src) {
    using Factors = typename HeldMatrix<A, order>::Factors;
    return heldOrLoaded<Factors, V::isArray>([&src](std::size_t n)
                                                 VONKK3_INLINED { return Factors(src.view(n).base); });
}

template <class A, class V, class D, std::size_t order, class Count>
VONKK3_INLINE VonkStatus multiplyVectorInLanes(const A &src1, const V &src2, const D &dst, Fixed<order>, Count count) {
    if (count == 0) return vonkOk; // nothing is read, a single operand neither
    const auto matrices = matricesInLanes<order>(src1);
    const auto vectors = factorsInLanes<order, A>(src2);
    std::size_t done = 0;
    if constexpr (order == 3 && !A::isArray && V::isArray && D::layout == Layout::Standard)
        if (equallySpaced(src2, dst) && dst.objectSpacing() == 3 * sizeof(Real32))
            done = multiplyPackedTriples([a = src1.view(0)](auto i, auto k) { return a.load(i, k); }, src2.view(0).base,
                                         dst.view(0).base, count);
    return forEachObjectFrom(
        done, count,
        [&](std::size_t n) VONKK3_INLINED {
            storeVector<order>(dst.view(n).base, matrices(n).times(vectors(n)));
            return vonkOk;
        },
        src1, src2, dst);
}

template <class A, class Cols, class Rows, class V, class Length, class D, class Count>
inline VonkStatus multiplyVector(const A &src1, Cols cols, Rows rows, const V &src2, Length length, const D &dst,
                                 Count count) {
    using T = typename D::Element;
    if (anyNull(src1, src2, dst)) return vonkErrNullPtr;
    if (cols.isZero() || rows.isZero()) return vonkErrSize;
    // The length is compared with the stored shape, the loops below take the transposed one as it enters the product.
    if ((A::isTransposed ? std::size_t(rows) : std::size_t(cols)) != length) return vonkErrSize;
    if constexpr (Count::isArray)
        if (anyTableEntryNull(cols * rows, src1) || anyTableEntryNull(length, src2) || anyTableEntryNull(rows, dst))
            return vonkErrNullPtr;

    if constexpr (multipliesVectorInLanes<T, D::layout, Cols>)
        return multiplyVectorInLanes(src1, src2, dst, cols, count);
    else {
        std::size_t done = 0;
        if constexpr (sumsInRuns<A, Cols, Count>) done = sumInRuns<Cols::value, 1>(src1, src2, dst, count);
        return forEachObjectFrom(
            done, count,
            [&](std::size_t n) VONKK3_INLINED {
                const auto a = src1.view(n, A::isTransposed ? std::size_t(rows) : std::size_t(cols));
                const ColumnView v{src2.view(n)};
                const ColumnView d{dst.view(n)};
                constexpr bool inCell = accumulatesInCell<T, D::layout>;
                if constexpr (leavesPosition8Untested<A, Count, Cols>)
                    return sumIntoCells<T, inCell, true>(Position8Untested{a}, v, d, rows, 1, cols);
                else return sumIntoCells<T, inCell, !Count::isArray>(a, v, d, rows, 1, cols);
            },
            src1, src2, dst);
    }
}

} // namespace vonkk3::product
