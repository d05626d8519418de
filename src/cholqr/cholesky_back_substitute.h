// Solving A x = b with a Cholesky factor: forward through the lower factor, backward through its transpose. Its
// diagonal holds reciprocals, so nothing divides and nothing can fail. The solution is its own scratch space.
#pragma once

#include "cholqr/elements.h"
#include "cholqr/four_objects.h"
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

// ---- Four objects ---------------------------------------------------------------------------------------------------

// Four systems side by side, where they lie so that nobody can tell.
template <class Factor, class RightSide, class Solution, std::size_t order> class FourSolutions {
public:
    FourSolutions(const Factor &src1, const RightSide &src2, const Solution &dst, std::size_t count)
        : src1(src1), src2(src2), dst(dst), factors(src1, true), amongFactors(dst, 1, src1, order, order, count),
          amongRightSides(dst, 1, src2, 1, order, count), amongThemselves(dst, 1, dst, 1, order, count) {}

    VONKK3_INLINE bool operator()(std::size_t n) {
        if (anyBeginsAtNull(n, four, src1, src2, dst) || !isClear(n)) return false;
        work<FourReals>(n);
        return true;
    }

    static constexpr bool worksEight = FourMatrices<Factor, Solution, order>::isGatheredOnce;
    VONKK3_INLINE bool eightFrom(std::size_t n) {
        if (anyBeginsAtNull(n, 2 * four, src1, src2, dst) || !isClear(n)) return false;
        work<EightReals>(n);
        return true;
    }

private:
    const Factor &src1;
    const RightSide &src2;
    const Solution &dst;
    FourMatrices<Factor, Solution, order> factors;
    Clearance<Solution, Factor> amongFactors;
    Clearance<Solution, RightSide> amongRightSides;
    Clearance<Solution, Solution> amongThemselves;

    VONKK3_INLINE bool isClear(std::size_t n) const {
        return amongFactors.ofFourFrom(n) && amongRightSides.ofFourFrom(n) && amongThemselves.ofFourFrom(n);
    }

    template <class Reals> VONKK3_INLINE void work(std::size_t n) {
        Reals b[1][order], x[1][order];
        factors.gatherFrom(n);
        gatherRows(src2, n, 0, order, b[0]);
        solve(factors.elements(), Apart{b}, Apart{x}, fixed<order>);
        scatterRows(dst, n, 0, order, x[0]);
    }
};

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
        if (!anyBeginsAtNull(n, 1, src1, src2, dst)) solveObject(src1.view(n, order), src2.view(n), dst.view(n), order);
        return vonkOk;
    };
    if constexpr (worksFourAtOnce<Solution, Order>)
        if (count >= four)
            return forEachFourOrOne(
                count, FourSolutions<Factor, RightSide, Solution, Order::value>(src1, src2, dst, count), one);
    return forEachObject(count, one);
}

} // namespace vonkk3::cholqr
