// Solving A x = b with a Cholesky factor: forward through the lower factor, backward through its transpose. Its
// diagonal holds reciprocals, so nothing divides and nothing can fail. The solution is its own scratch space.
#pragma once

#include "cholqr/elements.h"
#include "frame/shared_batch.h"

namespace vonkk3::cholqr {

// ---- Exceptions -----------------------------------------------------------------------------------------------------

// `count` 0 is an error here, and `count` is a signed number in every layout. In the strided layouts `order` is one,
// too. With the top bit set there is nothing to do.
template <class Solution> inline constexpr bool ordersWithSign = Solution::isStrided;

// An array goes on past an object that cannot be worked, and never tells of it.

// ---- One object -----------------------------------------------------------------------------------------------------

// The backward sums run down from the last row: that fixes their roundings.
template <class Factor, class RightSide, class Solution, class Order>
VONKK3_INLINE void solve(const Factor &f, const RightSide &b, const Solution &x, Order order) {
    forIndices(0, order, order, [&](std::size_t i) VONKK3_INLINED {
        auto s = b.load(i);
        forIndices(0, i, order, [&](std::size_t k) VONKK3_INLINED { s = s - f.load(i, k) * x.load(k); });
        x.store(i, s * f.load(i, i));
    });
    const std::size_t last = order - 1;
    forIndices(0, order, order, [&](std::size_t above) VONKK3_INLINED {
        const std::size_t i = last - above;
        auto s = x.load(i);
        forIndices(0, above, order,
                   [&](std::size_t below) VONKK3_INLINED { s = s - f.load(last - below, i) * x.load(last - below); });
        x.store(i, s * f.load(i, i));
    });
}

template <class Factor, class RightSide, class Solution, class Order>
VONKK3_NOINLINE void solveByCall(Factor factor, RightSide b, Solution x, Order order) {
    solve(InMemory{factor}, InMemory{b}, InMemory{x}, order);
}

// ---- Batches --------------------------------------------------------------------------------------------------------

// Real32 sums are the same in every layout and for every order.
template <std::size_t order, bool isArray> struct SolveBatch : SystemBatch<order, isArray, Triangle::lower> {
    using System = SystemBatch<order, isArray, Triangle::lower>;
    using System::System, System::src1, System::src2, System::dst;
    static constexpr std::size_t chains = 2;
    template <Access access, std::size_t chains> VONKK3_INLINE bool work(std::size_t n) const {
        Packs<chains> b[1][order], x[1][order];
        src2.template gather<access>(n, b);
        src1.template with<access, chains>(n, [&](auto &f) VONKK3_INLINED {
            if constexpr (chains > 1) solve(Local{f}, Local{b}, Local{x}, fixed<order>);
            else solveByCall(f, b, x);
        });
        dst.template scatter<access>(n, x);
        return true;
    }

private:
    // What is left over is worked by one body for all layouts.
    template <class Number, class Factor>
    VONKK3_NOINLINE static void solveByCall(Factor (&f)[order][order], Number (&b)[1][order], Number (&x)[1][order]) {
        solve(Local{f}, Local{b}, Local{x}, fixed<order>);
    }
};

// ---- All objects ----------------------------------------------------------------------------------------------------

// An object is passed over if one of its operands begins at null.
template <class Source, class Solution, class Order>
VONKK3_NOINLINE void solvePlainly(const SystemWords &words, Order sizes, std::size_t n, std::size_t to) {
    const Source src1(words.src1), src2(words.src2);
    const Solution dst(words.dst);
    const Order order = sizes;
    for (; n < to; ++n)
        if (!anyBeginsAtNull(n, src1, src2, dst))
            solve(InMemory{src1.view(n, order)}, InMemory{src2.view(n, 1)}, InMemory{dst.view(n, 1)}, order);
}

// Unrolled where rows are contiguous.
template <class T, bool throughTables, class Order>
VONKK3_INLINE VonkStatus solvePlainly(const SystemWords &words, Order order, std::size_t from, std::size_t to) {
    if constexpr (Order::isFixed && !throughTables)
        if (areRowsContiguous<T>(words.src1, words.src2, words.dst)) {
            solvePlainly<ContiguousOperand<const T>, ContiguousOperand<T>>(words, order, from, to);
            return vonkOk;
        }
    using Source = SharedOperand<const T, throughTables>;
    solvePlainly<Source, SharedOperand<T, throughTables>>(words, RunTime{std::uint32_t(order)}, from, to);
    return vonkOk;
}

template <std::size_t order, bool isArray, bool throughTables>
VONKK3_NOINLINE VonkStatus solveInBatches(const SystemWords &words, std::size_t count) {
    SolveBatch<order, isArray> batch(words, count, std::bool_constant<throughTables>());
    const Aliasing aliasing(count, writes(batch.dst.view), reads(batch.src1.view), readsInPlace(batch.src2.view));
    return forEachBatch(batch, aliasing, count, [&](std::size_t n) {
        return solvePlainly<Real32, throughTables>(words, fixed<order>, n, n + 1);
    });
}

// Entries of tables and lists are not tested.
template <class Factor, class RightSide, class Solution, class Order, class Count>
VONKK3_INLINE VonkStatus choleskyBackSubstitute(const Factor &src1, const RightSide &src2, const Solution &dst,
                                                Order order, Count count) {
    using T = typename Solution::Element;
    constexpr bool throughTables = Solution::isTable;
    if (anyNull(src1, src2, dst)) return vonkErrNullPtr;
    if (order.isZero() || count == 0) return vonkErrSize;
    if (hasTopBit(count) || (ordersWithSign<Solution> && hasTopBit(order))) return vonkOk;
    if constexpr (!Count::isArray && Solution::layout == Layout::Standard) {
        const auto factor = src1.view(0);
        if constexpr (Order::isFixed && std::is_same_v<T, Real32>)
            solve(InMemory{factor}, InMemory{src2.view(0)}, InMemory{dst.view(0)}, order);
        else solveByCall(factor, src2.view(0), dst.view(0), order);
        return vonkOk;
    } else {
        const SystemWords words{src1.words(order), src2.words(1), dst.words(1)};
        const auto plainly = [&]() VONKK3_INLINED { return solvePlainly<T, throughTables>(words, order, 0, count); };
        if constexpr (worksInBatches<Solution>)
            if (count >= packWidth)
                return withFixedOrder(
                    order,
                    [&](auto size)
                        VONKK3_INLINED { return solveInBatches<size, Factor::isArray, throughTables>(words, count); },
                    plainly);
        return plainly();
    }
}

} // namespace vonkk3::cholqr
