// The sum of a diagonal, of single matrices and arrays. Results are packed in every layout.
#pragma once

#include "frame/batch.h"
#include "frame/straight.h"

namespace vonkk3::matrix {

// ---- Members that behave unlike their siblings ----------------------------------------------------------------------

// Real32 of fixed size adds in a register and stores once where elements are adjacent, from the first element on: a sum
// of negative zeros stays one. All other forms run from +0 and store that and every step.
template <class T, class A, class Order>
inline constexpr bool sumsInRegister = std::is_same_v<T, Real32> &&Order::isFixed &&
                                       (A::layout == Layout::Standard || A::layout == Layout::L);

// vonkTrace_m_64f and its S2 form take the diagonal two by two: the last element of an odd order is added to the sum as
// it was stored, so rounded to 64 bits.
template <class T, class A, class Order>
inline constexpr bool goesInPairs = std::is_same_v<T, Real64> && !A::isArray && !Order::isFixed &&
                                    (A::layout == Layout::Standard || A::layout == Layout::S2);

// The scan of an array's table covers as many entries as the order, which is not where the diagonal lies.
inline std::size_t scannedEntries(std::size_t order) { return order; }

// ---- One object -----------------------------------------------------------------------------------------------------

// A single matrix in a pointer layout has its entries tested as the sum reaches them; the sum so far is stored then.
template <bool goesInPairs, bool testsEntries, class T, class View>
VONKK3_INLINE VonkStatus sumDiagonal(const View &a, std::size_t order, T *result) {
    using W = Working<T>;
    const auto cell = reinterpret_cast<std::byte *>(result);
    storeAt<T>(cell, 0);
    W sum = 0;
    for (std::size_t i = 0; i < order; ++i) {
        if (testsEntries && a.hasNullEntry(i, i)) return vonkErrNullPtr;
        if (goesInPairs && i + 1 == order && order % 2 != 0) sum = loadAt<T>(cell);
        sum = sum + W(a.load(i, i));
        storeAt<T>(cell, round<T>(sum));
    }
    return vonkOk;
}

template <class View, std::size_t order> VONKK3_INLINE Real32 diagonalSum(const View &a, Fixed<order>) {
    Real32 sum = a.load(0, 0);
    forEachBelow<order - 1>([&](std::size_t i) VONKK3_INLINED { sum = sum + a.load(i + 1, i + 1); });
    return sum;
}

// ---- Batches: the pointer layout with packed objects ----------------------------------------------------------------

template <std::size_t order> struct TraceBatch {
    static constexpr std::size_t chains = 2;
    VectorsOfBatch<order> diagonal;
    ObjectsView dst;

    Access access() const { return accessOf(diagonal.view); }
    template <Access access> VONKK3_INLINE void hoist() { diagonal.template hoist<access>(); }
    template <Access access, std::size_t chains> VONKK3_INLINE bool work(std::size_t n) const {
        Packs<chains> a[1][order];
        diagonal.template gather<access>(n, a);
        Packs<chains> sum = Packs<chains>(0.0F) + a[0][0];
        forIndices(1, order, fixed<order>, [&](std::size_t i) VONKK3_INLINED { sum = sum + a[0][i]; });
        storeResults(dst, n, sum);
        return true;
    }
};

template <class A, std::size_t order, class One>
VONKK3_INLINE VonkStatus tracesInBatches(const A &a, Real32 *results, Fixed<order>, std::size_t count, const One &one) {
    const ObjectsView matrices = objectsOf(a, order, order, count);
    TraceBatch<order> batch{VectorsOfBatch<order>(diagonalOf(matrices)), packedBlocks(results, 1, count)};
    return forEachBatch(batch, Aliasing(count, writes(batch.dst), reads(matrices)), count, one);
}

// ---- All objects ----------------------------------------------------------------------------------------------------

template <class A, class Order, class T, class Count>
VONKK3_INLINE VonkStatus trace(const A &a, Order order, T *results, Count count) {
    if (anyNull(a, results)) return vonkErrNullPtr;
    if (order.isZero()) return vonkErrSize;
    if constexpr (Count::isArray)
        if (anyTableEntryNull(scannedEntries(order), a)) return vonkErrNullPtr;

    if constexpr (sumsInRegister<T, A, Order>)
        return forEachLightObject(
            count,
            [&](std::size_t n) VONKK3_INLINED {
                storeAt<T>(reinterpret_cast<std::byte *>(results + n), diagonalSum(a.view(n), order));
            },
            a);
    else {
        const auto one = [&](std::size_t n) VONKK3_INLINED {
            return sumDiagonal<goesInPairs<T, A, Order>, !Count::isArray>(a.view(n, order), order, results + n);
        };
        if constexpr (worksInBatches<A> && A::layout == Layout::P)
            if (count >= worthBatches)
                return withFixedOrder(
                    order, [&](auto size) VONKK3_INLINED { return tracesInBatches(a, results, size, count, one); },
                    [&]() VONKK3_INLINED { return forEachPlainly(count, one); });
        return forEachObject(count, one, a);
    }
}

} // namespace vonkk3::matrix
