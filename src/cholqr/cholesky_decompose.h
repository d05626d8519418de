// Cholesky decomposition, row by row: each row of the lower factor is finished before the next is begun. The diagonal
// of what is stored holds the RECIPROCALS of the factor's, so that nothing divides later. Only lower triangles, with
// their diagonals, are read and written.
#pragma once

#include "cholqr/elements.h"
#include "cholqr/roots.h"
#include "frame/shared_batch.h"

namespace vonkk3::cholqr {

// ---- Exceptions -----------------------------------------------------------------------------------------------------

// `count` 0 is an error here. And it is a signed number, but in the pointer layouts: with the top bit set there is
// nothing to do.
template <class Factor> inline constexpr bool countsWithSign = Factor::isArray && !Factor::isTable;

// Order 3 to 6, also if it comes at run time, is unrolled but in the pointer layouts: the factor is held in numbers of
// the working type and only stored, never read back. In Real64 that shows: there the loops read rounded elements.

// Unrolled, an element stride counts in whole elements; what it has beyond them is dropped.
template <class T> constexpr std::int32_t inWholeElements(std::int32_t stride) {
    return stride & -std::int32_t(sizeof(T));
}
// Unrolled Real64 of order 3 and 4 lets a NaN pass as the very first pivot. It fails at the second, but by then has
// been stored.
template <class Number, std::size_t order>
inline constexpr bool letsFirstNanPass = std::is_same_v<Number, Wide> && (order == 3 || order == 4);

// ---- One object -----------------------------------------------------------------------------------------------------

// Real32 takes root and reciprocal in the 80-bit type and rounds once, but in the pointer layouts takes them in Real32
// and rounds twice.
template <class View>
using Roots = std::conditional_t<std::is_same_v<View, TableView<Real32>>, RoundedTwice, RoundedOnce>;

// A NaN is not.
template <class Number> inline bool isPositive(Number s) { return s > 0; }
template <std::size_t chains> VONKK3_INLINE bool isPositive(const Packs<chains> &s) {
    return inAllLanes(s, [](auto a) VONKK3_INLINED { return a > decltype(a)(0); });
}

template <std::size_t order, class Number> VONKK3_INLINE bool isPositiveFirst(const Number &s) {
    if constexpr (letsFirstNanPass<Number, order>) return !(0 >= s);
    else return isPositive(s);
}

// s - Σ f(i, k) f(j, k) for k below `terms`, one product at a time. Real64 is rounded after the pairs of products;
// what a left-over product makes of it is not.
template <class Factor, class Number>
inline Number minusProducts(Number s, const Factor &f, std::size_t i, std::size_t j, std::size_t terms) {
    const std::size_t endOfPairs = terms / 2 * 2;
    for (std::size_t k = 0; k < endOfPairs; ++k) s = s - f.load(i, k) * f.load(j, k);
    s = f.rounded(s);
    return endOfPairs < terms ? s - f.load(i, endOfPairs) * f.load(j, endOfPairs) : s;
}

// Of any order, through memory.
template <class Source, class Factor>
VONKK3_INLINE VonkStatus factorByLoops(const Source &source, const Factor &factor, std::size_t order) {
    const InMemory a{source};
    const InMemory f{factor};
    for (std::size_t i = 0; i < order; ++i) {
        for (std::size_t j = 0; j < i; ++j) f.store(i, j, minusProducts(a.load(i, j), f, i, j, j) * f.load(j, j));
        const auto s = minusProducts(a.load(i, i), f, i, i, i);
        if (!isPositive(s)) return vonkErrNotPosDef;
        f.store(i, i, Roots<Factor>()(s));
    }
    return vonkOk;
}

// In the order of the loops: elements come from `load` and go to f and, as they are finished, to `store`.
template <class Number, std::size_t order, class Roots, class Load, class Store>
VONKK3_INLINE bool factorUnrolled(Number (&f)[order][order], Roots &&roots, const Load &load, const Store &store) {
    const auto minus = [&](Number s, std::size_t i, std::size_t j) VONKK3_INLINED {
        forIndices(0, j, fixed<order>, [&](std::size_t k) VONKK3_INLINED { s = s - f[i][k] * f[j][k]; });
        return s;
    };
    return everyIndex(0, order, fixed<order>, [&](std::size_t i) VONKK3_INLINED {
        forIndices(0, i, fixed<order>, [&](std::size_t j) VONKK3_INLINED {
            f[i][j] = minus(load(i, j), i, j) * f[j][j];
            store(i, j, f[i][j]);
        });
        const Number s = minus(load(i, i), i, i);
        if (!(i == 0 ? isPositiveFirst<order>(s) : isPositive(s))) return false;
        f[i][i] = roots(s);
        store(i, i, f[i][i]);
        return true;
    });
}

template <class Source, class Factor, class Order>
VONKK3_INLINE VonkStatus factor(const Source &source, const Factor &factor, Order order) {
    if constexpr (!Order::isFixed) return factorByLoops(source, factor, order);
    else {
        const InMemory a{source};
        const InMemory f{factor};
        typename decltype(f)::Number inRegisters[order][order];
        const bool definite = factorUnrolled(
            inRegisters, RoundedOnce(), [&](std::size_t i, std::size_t j) VONKK3_INLINED { return a.load(i, j); },
            [&](std::size_t i, std::size_t j, auto value) VONKK3_INLINED { f.store(i, j, value); });
        return definite ? vonkOk : vonkErrNotPosDef;
    }
}
template <class Source, class Factor, class Order>
VONKK3_NOINLINE VonkStatus factorByCall(Source source, Factor view, Order order) {
    return factor(source, view, order);
}

// ---- Batches --------------------------------------------------------------------------------------------------------

// Unrolled orders, and all that is in tables. Where roots round once, they are filtered; if one is doubtful, all are
// recomputed.
template <std::size_t order, bool throughTables> struct FactorBatch : MatrixBatch<order, Triangle::lower> {
    using Matrices = MatrixBatch<order, Triangle::lower>;
    using Matrices::Matrices, Matrices::src, Matrices::dst;
    static constexpr std::size_t chains = 4; // a root waits for the one before it
    static constexpr bool takesRows = !throughTables, takesPositions = throughTables;
    template <Access access, std::size_t chains> VONKK3_INLINE bool work(std::size_t n) const {
        Packs<chains> f[order][order];
        src.template gather<access>(n, f);
        const Outcome outcome = chains > 1 ? factorGathered(f) : factorByCall(f);
        if (outcome == Outcome::failed || (outcome == Outcome::doubtful && !factorExactly(n, f))) return false;
        dst.template scatter<access>(n, f);
        return true;
    }

private:
    enum class Outcome { failed, doubtful, good };

    template <class Number, class Roots>
    VONKK3_INLINE static bool factorWith(Number (&f)[order][order], Roots &&roots) {
        return factorUnrolled(
            f, roots, [&](std::size_t i, std::size_t j) VONKK3_INLINED { return f[i][j]; },
            [](std::size_t, std::size_t, const Number &) VONKK3_INLINED {});
    }
    template <class Number> VONKK3_INLINE static Outcome factorGathered(Number (&f)[order][order]) {
        if constexpr (throughTables) return factorWith(f, RoundedTwice()) ? Outcome::good : Outcome::failed;
        else {
            Filtered<Number::width> roots;
            if (!factorWith(f, roots)) return Outcome::failed;
            return roots.hasDoubt() ? Outcome::doubtful : Outcome::good;
        }
    }
    // What is left over is worked by one body for all layouts.
    template <class Number> VONKK3_NOINLINE static Outcome factorByCall(Number (&f)[order][order]) {
        return factorGathered(f);
    }
    template <std::size_t chains>
    VONKK3_NOINLINE bool factorExactly(std::size_t n, Packs<chains> (&f)[order][order]) const {
        src.gatherAnew(n, f);
        return factorWith(f, LaneByLane());
    }
};

// ---- All objects ----------------------------------------------------------------------------------------------------

// An array is a walk of calls for one object, each with its own argument checks: an object is refused if it begins at
// null, and the entries of tables and lists are not looked at.
template <class Source, class Factor, class Order>
VONKK3_NOINLINE VonkStatus factorPlainly(const MatrixWords &words, Order sizes, std::size_t n, std::size_t to) {
    const Source src(words.src);
    const Factor dst(words.dst);
    const Order order = sizes;
    for (; n < to; ++n) {
        if (anyBeginsAtNull(n, src, dst)) return vonkErrNullPtr;
        if (const VonkStatus status = factor(src.view(n, order), dst.view(n, order), order); status != vonkOk)
            return status;
    }
    return vonkOk;
}

template <class T, bool throughTables, class Order>
VONKK3_INLINE VonkStatus factorPlainly(const MatrixWords &words, Order order, std::size_t from, std::size_t to) {
    if constexpr (Order::isFixed && std::is_same_v<T, Real32> && !throughTables)
        if (areRowsContiguous<T>(words.src, words.dst))
            return factorPlainly<ContiguousOperand<const T>, ContiguousOperand<T>>(words, order, from, to);
    using Source = SharedOperand<const T, throughTables>;
    using Factor = SharedOperand<T, throughTables>;
    if constexpr (throughTables) return factorPlainly<Source, Factor>(words, RunTime{std::uint32_t(order)}, from, to);
    else return factorPlainly<Source, Factor>(words, order, from, to);
}

template <std::size_t order, bool throughTables>
VONKK3_NOINLINE VonkStatus factorInBatches(const MatrixWords &words, std::size_t count) {
    const auto plainly = [&](std::size_t from, std::size_t to) VONKK3_INLINED {
        return factorPlainly<Real32, throughTables>(words, fixed<order>, from, to);
    };
    if constexpr (!throughTables)
        if (const RoundingControl control; !control.bothRoundToNearest() || !control.wideHas53Bits())
            return plainly(0, count);
    FactorBatch<order, throughTables> batch(words, count, std::bool_constant<throughTables>());
    return forEachBatch(batch, Aliasing(count, writes(batch.dst.view), readsInPlace(batch.src.view)), count,
                        [&](std::size_t n) { return plainly(n, n + 1); });
}

template <class Source, class Factor, class Order, class Count>
VONKK3_INLINE VonkStatus choleskyDecompose(const Source &src, const Factor &dst, Order order, Count count) {
    using T = typename Factor::Element;
    constexpr bool throughTables = Factor::isTable;
    if (anyNull(src, dst)) return vonkErrNullPtr;
    if (order.isZero() || count == 0) return vonkErrSize;
    if (countsWithSign<Factor> && hasTopBit(count)) return vonkOk;
    if constexpr (!Count::isArray && Factor::layout == Layout::Standard) {
        const auto source = src.view(0);
        const auto target = dst.view(0);
        if constexpr (Order::isFixed && std::is_same_v<T, Real32>) return factor(source, target, order);
        else
            return withFixedOrder(
                order, [&](auto size) VONKK3_INLINED { return factorByCall(source, target, size); },
                [&]() VONKK3_INLINED { return factorByCall(source, target, RunTime{std::uint32_t(order)}); });
    } else {
        MatrixWords words{src.words(order), dst.words(order)};
        return withFixedOrder(
            order,
            [&](auto size) VONKK3_INLINED {
                if (Factor::isStrided) {
                    words.src.elementStride = inWholeElements<T>(words.src.elementStride);
                    words.dst.elementStride = inWholeElements<T>(words.dst.elementStride);
                }
                if constexpr (worksInBatches<Factor>)
                    if (count >= packWidth) return factorInBatches<size, throughTables>(words, count);
                return factorPlainly<T, throughTables>(words, size, 0, count);
            },
            [&]() VONKK3_INLINED { return factorPlainly<T, throughTables>(words, order, 0, count); });
    }
}

} // namespace vonkk3::cholqr
