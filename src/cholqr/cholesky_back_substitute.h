// Solving A x = b with a Cholesky factor: forward through the lower factor, backward through its transpose. Its
// diagonal holds reciprocals, so nothing divides and nothing can fail. The solution is its own scratch space.
#pragma once

#include "cholqr/elements.h"
#include "cholqr/single_calls.h"
#include "frame/walk.h"

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

// ---- All objects ----------------------------------------------------------------------------------------------------

// One factor serves all right-hand sides (mva), or each has its own (mava). An object is passed over if one of its
// operands begins at null; entries of tables and lists are not looked at.
template <class Factor, class RightSide, class Solution, class Order, class Count>
VONKK3_INLINE VonkStatus choleskyBackSubstitute(const Factor &src1, const RightSide &src2, const Solution &dst,
                                                Order order, Count count) {
    if (anyNull(src1, src2, dst)) return vonkErrNullPtr;
    if (order.isZero() || count == 0) return vonkErrSize;
    if (hasTopBit(count) || (ordersWithSign<Solution> && hasTopBit(order))) return vonkOk;
    return forEachObject(count, [&](std::size_t n) VONKK3_INLINED {
        const auto factor = src1.view(n, order);
        const auto b = src2.view(n);
        const auto x = dst.view(n);
        if (!beginsAtNull(factor) && !beginsAtNull(b) && !beginsAtNull(x))
            solveByLoops(factor, b, x, RunTime{std::uint32_t(order)});
        return vonkOk;
    });
}

} // namespace vonkk3::cholqr
