// Running sums from +0 of disjoint Real32 operands, one object at a time, in any layout but P: sums stay in registers
// and every cell is stored once. Transposed operands have their strides exchanged, so one kernel serves all patterns.
#pragma once

#include "frame/batch.h"
#include "product/kernels.h"

namespace vonkk3::product {

template <std::size_t order, class B> VONKK3_INLINE void holdRows(HeldRows<order> &held, const B &b) {
    held.loadHead(b);
    if constexpr (order == 5) held.loadLast(b);
    if constexpr (order == 6) held.loadPairs(b);
}

template <std::size_t order, class A, class D>
VONKK3_INLINE void sumByRows(const A &a, const HeldRows<order> &held, const D &d) {
    constexpr SumBegins begins = SumBegins::withZero;
    if constexpr (order <= 4) multiplyRows<begins>(a, held, d);
    else if constexpr (order == 5)
        multiplyRowsOfFive<begins>(a, held, d, [&](std::size_t k) VONKK3_INLINED { return held.last[k]; });
    else multiplyRowsOfSix<begins>(a, held, d), multiplyPairsOfSix<begins>(a, held, d);
}

// Matrix by matrix.
template <std::size_t order, bool secondIsArray, bool throughTables> struct MatrixSums {
    static constexpr bool lanesWithinObject = true;
    static constexpr std::size_t chains = 1;
    ObjectsView a, b, d;
    HeldRows<order> held;

    VONKK3_INLINE MatrixSums(const ObjectsView &a, const ObjectsView &b, const ObjectsView &d) : a(a), b(b), d(d) {}
    Access access() const { return Access::any; }
    template <Access> VONKK3_INLINE void hoist() {
        if constexpr (!secondIsArray) holdRows(held, objectAt<throughTables, const Real32>(b, 0));
    }
    template <Access, std::size_t> VONKK3_INLINE bool work(std::size_t n) {
        if constexpr (secondIsArray) holdRows(held, objectAt<throughTables, const Real32>(b, n));
        sumByRows(objectAt<throughTables, const Real32>(a, n), held, objectAt<throughTables, Real32>(d, n));
        return true;
    }
};

template <std::size_t order, class A, class B, class D, class One>
VONKK3_INLINE VonkStatus sumMatrices(const A &src1, const B &src2, const D &dst, std::size_t count, const One &one) {
    MatrixSums<order, B::isArray, D::isTable> sums(objectsOf(src1, order, order, count),
                                                   objectsOf(src2, order, order, count),
                                                   objectsOf(dst, order, order, count));
    return forEachBatch(sums, Aliasing(count, writes(sums.d), reads(sums.a), reads(sums.b)), count, one);
}

// Matrix by vector.
template <std::size_t order, bool throughTables> struct VectorSums {
    static constexpr bool lanesWithinObject = true;
    static constexpr std::size_t chains = 1;
    ObjectsView a, v, d;

    Access access() const { return Access::any; }
    template <Access> void hoist() {}
    template <Access, std::size_t> VONKK3_INLINE bool work(std::size_t n) const {
        const auto matrix = objectAt<throughTables, const Real32>(a, n);
        const auto vector = objectAt<throughTables, const Real32>(v, n);
        const auto result = objectAt<throughTables, Real32>(d, n);
        Real32 element[order];
        forIndices(0, order, fixed<order>, [&](std::size_t k) VONKK3_INLINED { element[k] = vector.load(k); });
        forIndices(0, order, fixed<order>, [&](std::size_t i) VONKK3_INLINED {
            Real32 sum = 0;
            forIndices(0, order, fixed<order>,
                       [&](std::size_t k) VONKK3_INLINED { sum = sum + matrix.load(i, k) * element[k]; });
            result.store(i, sum);
        });
        return true;
    }
};

template <std::size_t order, class A, class V, class D, class One>
VONKK3_INLINE VonkStatus sumVectors(const A &src1, const V &src2, const D &dst, std::size_t count, const One &one) {
    VectorSums<order, D::isTable> sums{objectsOf(src1, order, order, count), objectsOf(src2, 1, order, count),
                                       objectsOf(dst, 1, order, count)};
    return forEachBatch(sums, Aliasing(count, writes(sums.d), reads(sums.a), reads(sums.v)), count, one);
}

} // namespace vonkk3::product
