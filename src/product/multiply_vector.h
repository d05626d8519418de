// Matrix by vector: a single one or an array on either side, the matrix read as stored or transposed.
#pragma once

#include "frame/untested_position.h"
#include "product/running_sums.h"
#include "product/vector_kernels.h"
#include "product/vectors_at_once.h"

namespace vonkk3::product {

// ---- Exceptions -----------------------------------------------------------------------------------------------------

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

template <class Held, class A> VONKK3_INLINE auto matricesInLanes(const A &src) {
    return heldOrLoaded<Held, A::isArray>([&src](std::size_t n) VONKK3_INLINED { return Held(src.view(n)); });
}

template <class Held, class V> VONKK3_INLINE auto factorsInLanes(const V &src) {
    using Factors = typename Held::Factors;
    return heldOrLoaded<Factors, V::isArray>([&src](std::size_t n)
                                                 VONKK3_INLINED { return Factors(src.view(n).base); });
}

// A product of order 3 or 4 takes few instructions, and equally spaced vectors can share one running offset.
template <class Held, class A, class V, class D, std::size_t order, class Count>
VONKK3_INLINE VonkStatus multiplyVectors(const A &src1, const V &src2, const D &dst, Fixed<order>, Count count) {
    const auto matrices = matricesInLanes<Held>(src1); // before all results, one of which may be stored on it
    const auto vectors = factorsInLanes<Held>(src2);
    const auto walk = [&](auto forEach, const auto &dst) VONKK3_INLINED {
        return forEach([&](std::size_t n) VONKK3_INLINED {
            storeVector<order>(dst.view(n).base, matrices(n).times(vectors(n)));
            return vonkOk;
        });
    };
    std::size_t done = multiplyOneAtOnce<order>(src1, src2, dst, count);
    if constexpr (order == 3 && !A::isArray && V::isArray && D::layout == Layout::Standard)
        done = multiplyOneByVectors3(src1, src2, dst, count);
    if constexpr (order <= 4 && V::isArray && D::layout == Layout::Standard)
        if (equallySpaced(src2, dst))
            return walk([&](auto work) VONKK3_INLINED { return forEachLightObjectFrom(done, count, work); },
                        dst.spacedAs(src2));
    return walk([&](auto work) VONKK3_INLINED { return forEachObjectFrom(done, count, work, src1, src2, dst); }, dst);
}

template <class A, class V, class D, std::size_t order, class Count>
VONKK3_INLINE VonkStatus multiplyVectorInLanes(const A &src1, const V &src2, const D &dst, Fixed<order> size,
                                               Count count) {
    if (count == 0) return vonkOk; // nothing is read, not even a single operand
    if constexpr (order == 3 && A::isArray && !A::isTransposed && A::layout == Layout::Standard)
        if (src1.hasPackedRows(3)) return multiplyVectors<PackedMatrixOfThree>(src1, src2, dst, size, count);
    return multiplyVectors<HeldMatrix<A, order>>(src1, src2, dst, size, count);
}

template <class A, class Cols, class Rows, class V, class Length, class D, class Count>
inline VonkStatus multiplyVector(const A &src1, Cols cols, Rows rows, const V &src2, Length length, const D &dst,
                                 Count count) {
    using T = typename D::Element;
    if (anyNull(src1, src2, dst)) return vonkErrNullPtr;
    if (cols.isZero() || rows.isZero()) return vonkErrSize;
    // The length is compared with the stored shape, the loops below take the transposed one as it enters the product.
    if ((A::isTransposed ? std::size_t(rows) : std::size_t(cols)) != length) return vonkErrSize;
    if constexpr (Count::isArray && !testsTablesLater<T, Cols>)
        if (anyTableEntryNull(cols * rows, src1) || anyTableEntryNull(length, src2) || anyTableEntryNull(rows, dst))
            return vonkErrNullPtr;

    if constexpr (multipliesVectorInLanes<T, D::layout, Cols>)
        return multiplyVectorInLanes(src1, src2, dst, cols, count);
    else if constexpr (Count::isArray) {
        const ProductWords words{src1.words(A::isTransposed ? std::size_t(rows) : std::size_t(cols)), columnWords(src2),
                                 columnWords(dst)};
        if constexpr (std::is_same_v<T, Real64> && D::layout == Layout::Standard) {
            // Addresses within rows are constants here, which keeps the 80-bit unit busy.
            const ObjectsView a = objectsOf(src1, rows, cols, count), v = objectsOf(src2, 1, cols, count);
            const ObjectsView d = objectsOf(dst, 1, rows, count);
            if (count != 0 && Aliasing(count, writes(d), reads(a), reads(v)).allowsBatch(0, count)) {
                for (std::size_t n = 0; n < count; ++n)
                    sumOnce<T>(src1.view(n), ColumnView{src2.view(n)}, ColumnView{dst.view(n)}, rows, 1, cols);
                return vonkOk;
            }
        }
        return sumProducts<T, accumulatesInCell<T, D::layout>, D::isTable>(
            words, SumShape<Cols::value, true>{rows, 1, cols}, count);
    } else {
        const auto a = src1.view(0, A::isTransposed ? std::size_t(rows) : std::size_t(cols));
        const ColumnView v{src2.view(0)};
        const ColumnView d{dst.view(0)};
        constexpr bool inCell = accumulatesInCell<T, D::layout>;
        if constexpr (D::layout == Layout::Standard) {
            const ObjectsView matrix = objectsOf(src1, rows, cols, 1), vector = objectsOf(src2, 1, cols, 1);
            const ObjectsView result = objectsOf(dst, 1, rows, 1);
            if (!Aliasing(1, writes(result), reads(matrix), reads(vector)).rulesOutBatches())
                return sumOnce<T>(a, v, d, rows, 1, cols), vonkOk;
        }
        if constexpr (leavesPosition8Untested<A, Count, Cols>)
            return sumIntoCells<T, inCell, true>(Position8Untested{a}, v, d, rows, 1, cols);
        else return sumIntoCells<T, inCell, true>(a, v, d, rows, 1, cols);
    }
}

} // namespace vonkk3::product
