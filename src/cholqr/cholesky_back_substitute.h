// Solving A x = b with a Cholesky factor: forward through the lower factor, backward through its transpose. Its
// diagonal holds reciprocals, so nothing divides and nothing can fail. The solution is its own scratch space.
#pragma once

#include "cholqr/elements.h"
#include "cholqr/single_calls.h"
#include "frame/batch.h"

namespace vonkk3::cholqr {

// ---- Members that behave unlike their siblings ----------------------------------------------------------------------

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

template <class Factor, class RightSide, class Solution>
[[gnu::noinline]] void solveByLoops(Factor factor, RightSide b, Solution x, RunTime order) {
    solve(InMemory{factor}, InMemory{b}, InMemory{x}, order);
}

// Of fixed order in rows of adjacent elements, for every layout that has them.
template <class Factor, class RightSide, class Solution, class Order>
[[gnu::noinline]] void solveUnrolled(Factor factor, RightSide b, Solution x, Order order) {
    solve(InMemory{factor}, InMemory{b}, InMemory{x}, order);
}

template <class Factor, class RightSide, class Solution, class Order>
VONKK3_INLINE void solveObject(const Factor &factor, const RightSide &b, const Solution &x, Order order) {
    if constexpr (Order::isFixed && std::is_same_v<Solution, RowsView<Real32>>)
        solve(InMemory{factor}, InMemory{b}, InMemory{x}, order);
    else if constexpr (Order::isFixed && std::is_same_v<Solution, RowsView<Real64>>) solveUnrolled(factor, b, x, order);
    else solveByLoops(factor, b, x, RunTime{std::uint32_t(order)});
}

// ---- Batches --------------------------------------------------------------------------------------------------------

// Real32 sums are the same in every layout and for every order.
template <std::size_t order, bool isArray> struct SolveBatch {
    static constexpr std::size_t chains = 2;
    MatricesOfBatch<order, isArray, Triangle::lower> src1;
    VectorsOfBatch<order> src2, dst;

    Access access() const { return accessOf(src1.view, src2.view, dst.view); }
    template <Access access> VONKK3_INLINE void hoist() {
        src1.template hoist<access>();
        src2.template hoist<access>();
        dst.template hoist<access>();
    }
    template <Access access, std::size_t chains> VONKK3_INLINE bool work(std::size_t n) const {
        Packs<chains> b[1][order], x[1][order];
        src2.template gather<access>(n, b);
        src1.template with<access, chains>(
            n, [&](auto &f) VONKK3_INLINED { solve(Local{f}, Local{b}, Local{x}, fixed<order>); });
        dst.template scatter<access>(n, x);
        return true;
    }
};

template <class Factor, class RightSide, class Solution, std::size_t order, class One>
VONKK3_INLINE VonkStatus solveInBatches(const Factor &src1, const RightSide &src2, const Solution &dst, Fixed<order>,
                                        std::size_t count, const One &one) {
    SolveBatch<order, Factor::isArray> batch{{src1, count}, {src2, count}, {dst, count}};
    const Aliasing aliasing(count, writes(batch.dst.view), reads(batch.src1.view), readsInPlace(batch.src2.view));
    return forEachBatch(batch, aliasing, count, one);
}

// ---- All objects ----------------------------------------------------------------------------------------------------

// One factor serves all right-hand sides (mva), or each has its own (mava). An object is passed over if one of its
// operands begins at null; entries of tables and lists are not looked at.
template <class Factor, class RightSide, class Solution, class Order, class Count>
VONKK3_INLINE VonkStatus choleskyBackSubstitute(const Factor &src1, const RightSide &src2, const Solution &dst,
                                                Order order, Count count) {
    if (anyNull(src1, src2, dst)) return vonkErrNullPtr;
    if (order.isZero() || count == 0) return vonkErrSize;
    if (hasTopBit(count) || (ordersWithSign<Solution> && hasTopBit(order))) return vonkOk;
    const auto one = [&](std::size_t n) VONKK3_INLINED {
        if (!anyBeginsAtNull(n, src1, src2, dst)) solveObject(src1.view(n, order), src2.view(n), dst.view(n), order);
        return vonkOk;
    };
    if constexpr (worksInBatches<Solution>)
        if (count >= packWidth)
            return withFixedOrder(
                order, [&](auto size) VONKK3_INLINED { return solveInBatches(src1, src2, dst, size, count, one); },
                [&]() VONKK3_INLINED { return forEachPlainly(count, one); });
    return forEachObject(count, one);
}

} // namespace vonkk3::cholqr
