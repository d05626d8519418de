// The sum of a diagonal, of single matrices and arrays. Results are packed in every layout.
#pragma once

#include "frame/positions.h"
#include "frame/straight.h"

namespace vonkk3::matrix {

// ---- Exceptions -----------------------------------------------------------------------------------------------------

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

// Of arrays that may lie under their results.
VONKK3_SHARED inline void sumDiagonalsInMemory(StridedView<const Real32> diagonal, std::ptrdiff_t step,
                                               std::size_t order, Real32 *results, std::size_t count) {
    for (std::size_t n = 0; n < count; ++n, diagonal.base += step)
        sumDiagonal<false, false>(diagonal, order, results + n);
}

// The same in a register, stored once: for results that do not lie in a diagonal.
template <bool beginsWithZero, class Order>
VONKK3_INLINE Real32 sumOf(const StridedView<const Real32> &diagonal, Order order) {
    Real32 sum = beginsWithZero ? 0.0F + diagonal.load(0) : diagonal.load(0);
    forIndices(1, order, order, [&](std::size_t i) VONKK3_INLINED { sum = sum + diagonal.load(i); });
    return sum;
}

// The bytes from the first to the last element of a diagonal, as memory has them.
struct DiagonalSpan {
    std::uintptr_t lowest; // from element 0
    Address bytes;

    VONKK3_INLINE DiagonalSpan(std::ptrdiff_t stride, std::size_t order)
        : lowest(stride < 0 ? std::uintptr_t(strides(order - 1, stride)) : 0),
          bytes(Address(order - 1) * magnitudeOf(stride) + sizeof(Real32)) {}

    VONKK3_INLINE bool holdsPartOf(const Real32 *result, const std::byte *diagonal) const {
        constexpr std::uintptr_t others = sizeof(Real32) - 1; // bytes of the result behind its first
        const auto first = reinterpret_cast<std::uintptr_t>(diagonal) + lowest;
        return reinterpret_cast<std::uintptr_t>(result) - first + others < bytes + others;
    }
};

// ---- Arrays in the pointer layout -----------------------------------------------------------------------------------

// A diagonal is a column of its own.
struct TraceOfPacks {
    static constexpr bool isSum = true;
    template <class A> VONKK3_INLINE auto operator()(std::size_t order, std::size_t, const A &diagonal) const {
        using Number = typename A::Number;
        Number sum = Number(0.0F) + diagonal.load(0, 0);
        for (std::size_t i = 1; i < order; ++i) sum = sum + diagonal.load(i, 0);
        return sum;
    }
};

// ---- All objects ----------------------------------------------------------------------------------------------------

template <class A, class Order, class T, class Count>
VONKK3_INLINE VonkStatus trace(const A &a, Order order, T *results, Count count) {
    if (anyNull(a, results)) return vonkErrNullPtr;
    if (order.isZero()) return vonkErrSize;
    if constexpr (Count::isArray)
        if (anyTableEntryNull(scannedEntries(order), a)) return vonkErrNullPtr;

    const auto one = [&](std::size_t n) VONKK3_INLINED {
        return sumDiagonal<goesInPairs<T, A, Order>, !Count::isArray>(a.view(n, order), order, results + n);
    };
    if constexpr (std::is_same_v<T, Real32> && A::isArray && A::isTable)
        return forEachObjectFrom(reduceArrays(TraceOfPacks(), reinterpret_cast<std::byte *>(results), order, fixed<1>,
                                              count, a.words(order + 1)), // from one diagonal element to the next
                                 count, one);
    else if constexpr (sumsInRegister<T, A, Order> || (std::is_same_v<T, Real32> && A::isArray)) {
        const std::ptrdiff_t stride = a.rowSpacing() + a.elementSpacing();
        const auto diagonal = [&](std::size_t n)
                                  VONKK3_INLINED { return StridedView<const T>(a.view(n).base, 0, stride); };
        if constexpr (!sumsInRegister<T, A, Order> && !A::isList) {
            if (count == 0) return vonkOk;
            const Extent all = extentOf(diagonal(0), 1, order).extendedBy(distanceOf(count - 1, a.objectSpacing()));
            if (!disjoint(all, extentOf(results, count)))
                return sumDiagonalsInMemory(diagonal(0), a.objectSpacing(), order, results, count), vonkOk;
        }
        const DiagonalSpan span(stride, order);
        const auto inRegister = [&](std::size_t n) VONKK3_INLINED -> VonkStatus {
            if constexpr (!sumsInRegister<T, A, Order> && A::isList)
                if (span.holdsPartOf(results + n, diagonal(n).base)) [[unlikely]]
                    return one(n);
            const T sum = sumOf<!sumsInRegister<T, A, Order>>(diagonal(n), order);
            return storeAt<T>(reinterpret_cast<std::byte *>(results + n), sum), vonkOk;
        };
        if constexpr (sumsInRegister<T, A, Order>) return forEachLightObject(count, inRegister, a);
        else return forEachObject(count, inRegister, a);
    } else return forEachObject(count, one, a);
}

} // namespace vonkk3::matrix
