// Solving A x = b with the factors of an LU decomposition: a forward sweep through the unit lower factor, with the
// permutation applied on the fly, and a backward sweep through the upper one. The solution is its own scratch space.
// Nothing about the numbers is tested: a zero pivot divides through.
#pragma once

#include "frame/walk.h"
#include "lu/permutation.h"

namespace vonkk3::lu {

// ---- Members that behave unlike their siblings ----------------------------------------------------------------------

// Real64 sums: the unrolled forms never round them; the looped ones round after the pairs of terms and again after an
// odd last term. Unrolled are the array forms of fixed size but for the list layouts. The rounding shows at the full
// precision of the 80-bit unit only, and where a sum leaves the Real64 range.
template <class Solution, class Order>
inline constexpr bool keepsSumWide =
    Order::isFixed &&Solution::isArray &&Solution::layout != Layout::L &&Solution::layout != Layout::LS2;

// One matrix for all right-hand sides: vonkLUBackSubst_mva in the list layout, Real64, of every size, steps through its
// columns by 4 bytes instead of 8. Its strided twin and all other forms step properly.
template <class Factors, class Solution>
inline constexpr bool stepsHalfColumns =
    std::is_same_v<typename Factors::Element, Real64> &&Factors::layout == Layout::L && !Factors::isArray &&
    Solution::isArray;

template <class Solution, class Factors, class Order>
inline auto factorsOfObject(const Factors &factors, std::size_t n, Order order) {
    const auto view = factors.view(n, order);
    if constexpr (stepsHalfColumns<Factors, Solution>)
        return StridedView<const Real64>(view.base, view.rowStride, sizeof(Real64) / 2);
    else return view;
}

// ---- One object -----------------------------------------------------------------------------------------------------

// How a sum begins that is then taken from `minuend`: with 0 + its first product. That differs from the product itself
// only if the product is -0, then from the sum only if that is zero, and then from the difference only if the minuend
// is zero, too. Real32 of fixed order leaves the addition out where it makes no difference: it waits for the latest
// element of x, and all that follows waits for it.
template <class Order> VONKK3_INLINE Real32 beginSum(Real32 product, Real32 minuend) {
    if (Order::isFixed && __builtin_expect(minuend != 0, true)) return product;
    return 0.0F + product;
}
template <class Order> VONKK3_INLINE Wide beginSum(Wide product, Wide) { return 0.0L + product; }

// minuend - sum over j from `from` to `to` - 1 of factors(row, j) * x(j), in ascending order. Terms read what x holds
// by then; there is at least one.
template <bool keepsWide, class T, class Factors, class Solution, class Order>
VONKK3_INLINE Working<T> minusProducts(Working<T> minuend, const Factors &factors, std::size_t row, const Solution &x,
                                       std::size_t from, std::size_t to, Order order) {
    using W = Working<T>;
    const auto product = [&](std::size_t j) VONKK3_INLINED { return W(factors.load(row, j)) * W(x.load(j)); };
    const std::size_t endOfPairs = from + (to - from) / 2 * 2;
    W sum = beginSum<Order>(product(from), minuend);
    forIndices(from + 1, endOfPairs, order, [&](std::size_t j) VONKK3_INLINED { sum = sum + product(j); });
    if (!keepsWide) sum = round<T>(sum);
    if (from < endOfPairs && endOfPairs < to) {
        sum = sum + product(endOfPairs);
        if (!keepsWide) sum = round<T>(sum);
    }
    return minuend - sum;
}

template <bool keepsWide, class T, class Factors, class RightSide, class Solution, class Order>
VONKK3_INLINE void solveObject(const Factors &factors, const std::byte *pivots, const RightSide &b, const Solution &x,
                               Order order) {
    using W = Working<T>;
    const auto storeElement = [&](std::size_t i, W value) VONKK3_INLINED {
        x.store(i, round<T>(value));
        readBackWhatIsStored<T>();
    };
    const Permutation<Order> rows(pivots, order);
    x.store(0, b.load(rows[0]));
    forIndices(1, order, order, [&](std::size_t i) VONKK3_INLINED {
        storeElement(i, minusProducts<keepsWide, T>(b.load(rows[i]), factors, rows[i], x, 0, i, order));
    });
    const std::size_t last = order - 1;
    storeElement(last, W(x.load(last)) / W(factors.load(rows[last], last)));
    forIndices(1, order, order, [&](std::size_t above) VONKK3_INLINED {
        const std::size_t i = last - above;
        const W difference = minusProducts<keepsWide, T>(x.load(i), factors, rows[i], x, i + 1, order, order);
        storeElement(i, difference / W(factors.load(rows[i], i)));
    });
}

// ---- All objects ----------------------------------------------------------------------------------------------------

// One factored matrix serves all right-hand sides (mva), or each has its own, with its own block of pivots (mava).
template <class Factors, class RightSide, class Solution, class Order, class Count>
VONKK3_INLINE VonkStatus backSubstitute(const Factors &src1, const std::uint32_t *pivots, const RightSide &src2,
                                        const Solution &dst, Order order, Count count) {
    if (anyNull(src1, pivots, src2, dst)) return vonkErrNullPtr;
    if (order.isZero()) return vonkErrSize;
    if (anyTableEntryNull(order * order, src1)) return vonkErrNullPtr;
    if (anyTableEntryNull(order, src2, dst)) return vonkErrNullPtr;
    return forEachObject(
        count,
        [&](std::size_t n) VONKK3_INLINED {
            const std::byte *block = pivotBlock(pivots, Factors::isArray ? n : 0, order);
            solveObject<keepsSumWide<Solution, Order>, typename Solution::Element>(
                factorsOfObject<Solution>(src1, n, order), block, src2.view(n), dst.view(n), order);
            return vonkOk;
        },
        src1, src2, dst);
}

} // namespace vonkk3::lu
