// Solving A x = b with the factors of an LU decomposition: a forward sweep through the unit lower factor, with the
// permutation applied on the fly, and a backward sweep through the upper one. The solution is its own scratch space.
// Nothing about the numbers is tested: a zero pivot divides through.
#pragma once

#include "frame/shared_batch.h"
#include "lu/arithmetic.h"
#include "lu/local_block.h"
#include "lu/permutation.h"

namespace vonkk3::lu {

// ---- Exceptions -----------------------------------------------------------------------------------------------------

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
inline constexpr std::int32_t halfColumn = sizeof(Real64) / 2;

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
template <class Order, std::size_t chains>
VONKK3_INLINE Packs<chains> beginSum(const Packs<chains> &product, const Packs<chains> &) {
    return Packs<chains>(0.0F) + product;
}

// A batch cannot ask. There the 0 is added to the second product, if there is one: that waits for nothing, and the sum
// of both is the same.
template <class T> inline constexpr bool addsZeroToSecond = isPacks<T>;

// minuend - sum over j from `from` to `to` - 1 of factors(row, j) * x(j), in ascending order. Terms read what x holds
// by then; there is at least one.
template <bool keepsWide, class T, class Factors, class Solution, class Order>
VONKK3_INLINE WorkedAs<T> minusProducts(const WorkedAs<T> &minuend, const Factors &factors, std::size_t row,
                                        const Solution &x, std::size_t from, std::size_t to, Order order) {
    using W = WorkedAs<T>;
    const auto product = [&](std::size_t j) VONKK3_INLINED { return W(factors.load(row, j)) * W(x.load(j)); };
    const std::size_t endOfPairs = from + (to - from) / 2 * 2;
    const bool zeroIsLeft = addsZeroToSecond<T> && to - from > 1;
    W sum = zeroIsLeft ? product(from) : beginSum<Order>(product(from), minuend);
    forIndices(from + 1, endOfPairs, order, [&](std::size_t j) VONKK3_INLINED {
        sum = sum + (zeroIsLeft && j == from + 1 ? product(j) + W(0.0F) : product(j));
    });
    if (!keepsWide) sum = rounded<T>(sum);
    if (from < endOfPairs && endOfPairs < to) {
        sum = sum + product(endOfPairs);
        if (!keepsWide) sum = rounded<T>(sum);
    }
    return minuend - sum;
}

// Row i of the factors is rows[i] of what they are read from, and so is element i of b.
template <bool keepsWide, class T, class Factors, class Rows, class RightSide, class Solution, class Order>
VONKK3_INLINE void solveObject(const Factors &factors, const Rows &rows, const RightSide &b, const Solution &x,
                               Order order) {
    using W = WorkedAs<T>;
    const auto storeElement = [&](std::size_t i, const W &value) VONKK3_INLINED {
        x.store(i, rounded<T>(value));
        readBackWhatIsStored<T>();
    };
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

// ---- Batches --------------------------------------------------------------------------------------------------------

// Of a call. Each matrix has its own block of pivots.
struct SolveWords : SystemWords {
    const std::uint32_t *pivots;
};

// Rows and right-hand sides are gathered in their logical order. Pivots that are no row indices take the plain path.
template <std::size_t order, bool isArray> struct SolveBatch : SystemBatch<order, true> {
    using System = SystemBatch<order, true>;
    using System::src1, System::src2, System::dst;
    static constexpr std::size_t chains = 4; // a quotient waits for the one before it
    ObjectsView pivots;
    Pack single[order][order]; // the one matrix, in its logical order
    bool singleIsTrusted = false;

    template <class Tables>
    VONKK3_INLINE SolveBatch(const SolveWords &words, std::size_t count, Tables throughTables)
        : System(words, count, throughTables), pivots(packedBlocks(words.pivots, order, isArray ? count : 1)) {}

    template <Access access> VONKK3_INLINE void hoist() {
        if constexpr (isArray) src1.template hoist<access>();
        else holdSingle();
        src2.template hoist<access>();
        dst.template hoist<access>();
    }
    template <Access access, std::size_t chains> VONKK3_INLINE bool work(std::size_t n) {
        Packs<chains> b[1][order], x[1][order];
        if constexpr (isArray) {
            if (!areRowIndices(pivotsOf(n), chains * packWidth * order, order)) return false;
            Packs<chains> factors[order][order];
            constexpr std::size_t registers = Packs<chains>::registers;
            for (std::size_t c = 0; c < registers; ++c)
                gatherSystem<access>(n + c * Packs<chains>::width, &factors[0][0].chain[c], &b[0][0].chain[c],
                                     opaque(registers));
            if constexpr (chains > 1) solveGathered(factors, b, x);
            else solveByCall(factors, b, x);
        } else {
            if (!singleIsTrusted) return false;
            Packs<chains> unordered[1][order];
            src2.template gather<access>(n, unordered);
            for (std::size_t i = 0; i < order; ++i) b[0][i] = unordered[0][loadPivot(pivotsOf(0), i)];
            if constexpr (chains > 1) solveGathered(single, b, x);
            else solveByCall(single, b, x);
        }
        dst.template scatter<access>(n, x);
        return true;
    }

private:
    const std::byte *pivotsOf(std::size_t n) const { return reinterpret_cast<const std::byte *>(pivots.object(n)); }

    VONKK3_NOINLINE void holdSingle() {
        singleIsTrusted = areRowIndices(pivotsOf(0), order, order);
        if (!singleIsTrusted) return;
        for (std::size_t i = 0; i < order; ++i)
            for (std::size_t j = 0; j < order; ++j)
                single[i][j] = src1.view.template load<Real32>(loadPivot(pivotsOf(0), i), j);
    }

    // Of the objects of one register.
    template <Access access, std::size_t width>
    VONKK3_NOINLINE void gatherSystem(std::size_t n, PackOf<width> *factors, PackOf<width> *b, std::size_t step) const {
        const std::byte *const rows = pivotsOf(n);
        if constexpr (access != Access::rows)
            if (access == Access::positions || src1.view.isTable()) {
                PackOf<width> index[order];
                gatherPacked(rows, index);
                return gatherInOrder<access>(src1, src2, n, index, factors, b, step);
            }
        const auto rowOf = [&](std::size_t k, std::size_t i) VONKK3_INLINED { return loadPivot(rows, k * order + i); };
        gatherElementsInOrder<access>(src2, n, rowOf, b, step);
        gatherRowsInOrder<access>(src1, n, rowOf, factors, step);
    }

    // What is left over is worked by one body for all layouts.
    template <class Number, class Factor>
    VONKK3_NOINLINE static void solveByCall(Factor (&factors)[order][order], Number (&b)[1][order],
                                            Number (&x)[1][order]) {
        solveGathered(factors, b, x);
    }
    template <class Number, class Factor>
    VONKK3_INLINE static void solveGathered(Factor (&factors)[order][order], Number (&b)[1][order],
                                            Number (&x)[1][order]) {
        solveObject<true, Number>(LocalBlock{factors}, InOrder(), LocalBlock{b}, LocalBlock{x}, fixed<order>);
    }
};

// Where batches are quicker than one by one, if objects are not few: pivots to follow and lists to look at are time
// that small matrices do not save.
template <std::size_t order> inline bool isWorthSolving(const SolveWords &words, bool throughTables) {
    return throughTables || order >= 3U + words.src1.isArray + words.dst.isList;
}

// ---- All objects ----------------------------------------------------------------------------------------------------

template <class Factors, class RightSide, class Solution, bool keepsWide, class Order>
VONKK3_NOINLINE VonkStatus solvePlainly(const SolveWords &words, Order sizes, std::size_t n, std::size_t to) {
    const std::uint32_t *const pivots = words.pivots;
    const std::size_t blockLength = words.src1.isArray ? sizes : 0;
    const Order order = sizes;
    return knowingLists < isLight<Order> &&
           !Solution::isTable > (words.dst.isList, [&](auto areLists) VONKK3_INLINED -> VonkStatus {
               Factors src1(words.src1);
               RightSide src2(words.src2);
               Solution dst(words.dst);
               src1.isList = areLists && src1.isArray, src2.isList = dst.isList = areLists;
               for (; n < to; ++n) {
                   if (src1.listHasNull(n) || src2.listHasNull(n) || dst.listHasNull(n)) [[unlikely]]
                       return vonkErrNullPtr;
                   const Permutation<Order> rows(pivotBlock(pivots, n, blockLength), order);
                   solveObject<keepsWide, typename Solution::Element>(src1.view(n, order), rows, src2.view(n, 1),
                                                                      dst.view(n, 1), order);
               }
               return vonkOk;
           });
}

template <class T, bool keepsWide, bool throughTables, class Order>
VONKK3_INLINE VonkStatus solvePlainly(const SolveWords &words, Order order, std::size_t from, std::size_t to) {
    if constexpr (std::is_same_v<T, Real32> && !throughTables)
        if (areRowsContiguous<T>(words.src1, words.src2, words.dst)) {
            using Source = ContiguousOperand<const T>;
            return solvePlainly<Source, Source, ContiguousOperand<T>, keepsWide>(words, order, from, to);
        }
    using Source = SharedOperand<const T, throughTables>;
    return solvePlainly<Source, Source, SharedOperand<T, throughTables>, keepsWide>(words, order, from, to);
}

template <std::size_t order, bool isArray, bool throughTables>
VONKK3_NOINLINE VonkStatus solveInBatches(const SolveWords &words, std::size_t count) {
    const auto plainly = [&](std::size_t from, std::size_t to) VONKK3_INLINED {
        return solvePlainly<Real32, true, throughTables>(words, fixed<order>, from, to);
    };
    if (!isWorthSolving<order>(words, throughTables)) return plainly(0, count);
    SolveBatch<order, isArray> batch(words, count, std::bool_constant<throughTables>());
    const Aliasing aliasing(count, writes(batch.dst.view), reads(batch.src1.view), reads(batch.src2.view),
                            reads(batch.pivots));
    return forEachBatch(batch, aliasing, count, [&](std::size_t n) { return plainly(n, n + 1); });
}

template <class Factors, class RightSide, class Solution, class Order, class Count>
VONKK3_INLINE VonkStatus backSubstitute(const Factors &src1, const std::uint32_t *pivots, const RightSide &src2,
                                        const Solution &dst, Order order, Count count) {
    using T = typename Solution::Element;
    constexpr bool throughTables = Solution::isTable;
    if (anyNull(src1, pivots, src2, dst)) return vonkErrNullPtr;
    if (order.isZero()) return vonkErrSize;
    if (anyTableEntryNull(order * order, src1)) return vonkErrNullPtr;
    if (anyTableEntryNull(order, src2, dst)) return vonkErrNullPtr;
    constexpr bool keepsWide = std::is_same_v<T, Real32> || keepsSumWide<Solution, Order>;
    if constexpr (!Count::isArray) {
        const Permutation<Order> rows(pivotBlock(pivots, 0, order), order);
        solveObject<keepsWide, T>(src1.view(0, order), rows, src2.view(0), dst.view(0), order);
        return vonkOk;
    } else {
        SolveWords words{{src1.words(order), src2.words(1), dst.words(1)}, pivots};
        if (stepsHalfColumns<Factors, Solution>) words.src1.elementStride = halfColumn;
        if constexpr (std::is_same_v<T, Real32>)
            if (count >= 2 * packWidth)
                return withFixedOrder(
                    order,
                    [&](auto size)
                        VONKK3_INLINED { return solveInBatches<size, Factors::isArray, throughTables>(words, count); },
                    [&]() VONKK3_INLINED { return solvePlainly<T, keepsWide, throughTables>(words, order, 0, count); });
        return solvePlainly<T, keepsWide, throughTables>(words, order, 0, count);
    }
}

} // namespace vonkk3::lu
