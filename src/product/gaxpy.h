// Gaxpy: a single matrix times a vector, plus a vector. The sum is finished first, the vector added last.
#pragma once

#include "product/multiply_vector.h"

namespace vonkk3::product {

template <class A, class V, class W, class D, std::size_t order, class Count>
VONKK3_INLINE VonkStatus gaxpyInLanes(const A &src1, const V &src2, const W &src3, const D &dst, Fixed<order>,
                                      Count count) {
    if (count == 0) return vonkOk; // nothing is read, not even the matrix
    using Held = HeldMatrix<A, order>;
    const auto matrices = matricesInLanes<Held>(src1);
    const auto walk = [&](auto forEach, const auto &w, const auto &d) VONKK3_INLINED {
        return forEach([&](std::size_t n) VONKK3_INLINED {
            const typename Held::Factors v(src2.view(n).base);
            const ProductVector addend = loadVector<order>(w.view(n).base);
            const ProductVector product = matrices(n).times(v);
            storeVector<order>(d.view(n).base, product + addend);
            return vonkOk;
        });
    };
    const std::size_t done = multiplyOneAtOnce<order>(src1, src2, dst, count, src3);
    if constexpr (order <= 4 && Count::isArray && D::layout == Layout::Standard)
        if (equallySpaced(src2, src3, dst))
            return walk([&](auto work) VONKK3_INLINED { return forEachLightObjectFrom(done, count, work); },
                        src3.spacedAs(src2), dst.spacedAs(src2));
    return walk([&](auto work) VONKK3_INLINED { return forEachObjectFrom(done, count, work, src2, src3, dst); }, src3,
                dst);
}

// A single object element by element. In tables an element's entries of src3 and dst are tested before it is set to
// zero, those of its terms as they come.
template <class T, bool inCell, class A, class V, class W, class D>
VONKK3_INLINE VonkStatus gaxpySingle(const A &a, const V &v, const W &w, const D &d, std::size_t rows,
                                     std::size_t cols) {
    for (std::size_t i = 0; i < rows; ++i) {
        if (w.hasNullEntry(i)) return vonkErrNullPtr;
        Working<T> sum;
        if (!sumIntoCell<T, inCell, true>(a, ColumnView<V>{v}, ColumnView<D>{d}, i, 0, cols, sum))
            return vonkErrNullPtr;
        d.store(i, round<T>(sum + Working<T>(w.load(i))));
    }
    return vonkOk;
}

template <class A, class V, class W, class D, class Cols, class Rows, class Count>
inline VonkStatus gaxpy(const A &src1, const V &src2, const W &src3, const D &dst, Cols cols, Rows rows, Count count) {
    using T = typename D::Element;
    if (anyNull(src1, src2, src3, dst)) return vonkErrNullPtr;
    if (cols.isZero() || rows.isZero()) return vonkErrSize;
    if constexpr (Count::isArray && !testsTablesLater<T, Cols>)
        if (anyTableEntryNull(cols * rows, src1) || anyTableEntryNull(cols, src2) || anyTableEntryNull(rows, src3) ||
            anyTableEntryNull(rows, dst))
            return vonkErrNullPtr;

    if constexpr (multipliesVectorInLanes<T, D::layout, Cols>) return gaxpyInLanes(src1, src2, src3, dst, cols, count);
    else if constexpr (Count::isArray) {
        const GaxpyWords words{{src1.words(cols), columnWords(src2), columnWords(dst)}, columnWords(src3)};
        return sumProducts<T, accumulatesInCell<T, D::layout>, D::isTable>(
            words, SumShape<Cols::value, true>{rows, 1, cols}, count);
    } else
        return gaxpySingle<T, accumulatesInCell<T, D::layout>>(src1.view(0, cols), src2.view(0), src3.view(0),
                                                               dst.view(0), rows, cols);
}

} // namespace vonkk3::product
