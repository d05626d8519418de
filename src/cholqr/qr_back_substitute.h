// Solving A x = b with a QR decomposition, in the sense of least squares if there are more rows than columns: the
// reflectors are replayed on a copy of b, their beta = -2 / (v'v) recomputed, then R is solved. Nothing about
// the numbers is tested: a zero on the diagonal divides through.
#pragma once

#include "cholqr/elements.h"
#include "frame/shared_batch.h"

namespace vonkk3::cholqr {

// ---- Exceptions -----------------------------------------------------------------------------------------------------

// One Real64 matrix for all right-hand sides, in the list layout, of every size: its columns are stepped through by 4
// bytes instead of 8.
template <class Factors, class Solution>
inline constexpr bool stepsHalfColumns =
    std::is_same_v<typename Factors::Element, Real64> &&Factors::layout == Layout::L && !Factors::isArray &&
    Solution::isArray;

// A Real64 matrix for each right-hand side, in the list layout, of every size: the reflectors are found where they are,
// but row i of R is read i + 1 bytes past the beginning of the matrix, less one row stride.
template <class Factors>
inline constexpr bool strayInTriangle =
    std::is_same_v<typename Factors::Element, Real64> &&Factors::layout == Layout::L &&Factors::isArray;

// Neither solves the system, but for one column or data that are laid out to match. All others follow their strides.

// ---- One object -----------------------------------------------------------------------------------------------------

// -2 / (v'v) of reflector k. Real64 sums are not rounded.
template <class Reflectors, class Rows>
VONKK3_INLINE auto betaOf(const Reflectors &reflectors, std::size_t k, Rows rows) {
    typename Reflectors::Number squares = 1;
    forIndices(k + 1, rows, rows, [&](std::size_t i) VONKK3_INLINED {
        const auto element = reflectors.load(i, k);
        squares = squares + element * element;
    });
    return -2 / squares;
}

// Adds beta v (v'b) to b, for each reflector v in turn; beta(k) is that of reflector k.
template <class Reflectors, class Work, class Columns, class Rows, class Beta>
VONKK3_INLINE void replay(const Reflectors &reflectors, const Work &work, Columns columns, Rows rows,
                          const Beta &beta) {
    using Number = typename Work::Number;
    forIndices(0, reflections(columns, rows), columns, [&](std::size_t k) VONKK3_INLINED {
        Number product = work.load(k);
        forIndices(k + 1, rows, rows,
                   [&](std::size_t i) VONKK3_INLINED { product = product + work.load(i) * reflectors.load(i, k); });
        const Number p = product * beta(k);
        work.store(k, work.load(k) + p);
        forIndices(k + 1, rows, rows,
                   [&](std::size_t i) VONKK3_INLINED { work.store(i, reflectors.load(i, k) * p + work.load(i)); });
    });
}

template <class Reflectors, class Work, class Columns, class Rows>
VONKK3_INLINE void replay(const Reflectors &reflectors, const Work &work, Columns columns, Rows rows) {
    replay(reflectors, work, columns, rows, [&](std::size_t k) VONKK3_INLINED { return betaOf(reflectors, k, rows); });
}

// Σ term(j) for j from `from` to `to` - 1, grown from 0. Adding to 0 turns a first term of -0 into +0, which shows only
// if all others are -0 as well; so the 0 may be added to the second term instead. In a fixed order it is, where the
// first waits for the latest element of x.
template <class Number, class Extent, class Term>
VONKK3_INLINE Number sumFromZero(std::size_t from, std::size_t to, Extent extent, const Term &term) {
    if (!Extent::isFixed || to - from < 2) {
        Number s = 0;
        forIndices(from, to, extent, [&](std::size_t j) VONKK3_INLINED { s = s + term(j); });
        return s;
    }
    Number s = term(from) + (term(from + 1) + Number(0));
    forIndices(from + 2, to, extent, [&](std::size_t j) VONKK3_INLINED { s = s + term(j); });
    return s;
}

// x from the last row up; each sum is subtracted at the end.
template <class Triangle, class Work, class Solution, class Columns>
VONKK3_INLINE void solveTriangle(const Triangle &r, const Work &work, const Solution &x, Columns columns) {
    using Number = typename Work::Number;
    const std::size_t last = columns - 1;
    x.store(last, work.load(last) / r.load(last, last));
    forIndices(1, columns, columns, [&](std::size_t above) VONKK3_INLINED {
        const std::size_t i = last - above;
        const Number s = sumFromZero<Number>(i + 1, columns, columns,
                                             [&](std::size_t j) VONKK3_INLINED { return r.load(i, j) * x.load(j); });
        x.store(i, (work.load(i) - s) / r.load(i, i));
    });
}

template <class Reflectors, class Triangle, class RightSide, class Solution, class T, class Columns, class Rows>
VONKK3_INLINE void solveObject(const Reflectors &reflectors, const Triangle &triangle, T *work, const RightSide &b,
                               const Solution &x, Columns columns, Rows rows) {
    const RowsView<T> copy = workSpace(work);
    forIndices(0, rows, rows, [&](std::size_t i) VONKK3_INLINED { copy.store(i, b.load(i)); });
    replay(InMemory{reflectors}, InMemory{copy}, columns, rows);
    solveTriangle(InMemory{triangle}, InMemory{copy}, InMemory{x}, columns);
}
template <class Reflectors, class Triangle, class RightSide, class Solution, class T>
VONKK3_NOINLINE void solveByCall(Reflectors reflectors, Triangle triangle, T *work, RightSide b, Solution x,
                                 RunTime columns, RunTime rows) {
    solveObject(reflectors, triangle, work, b, x, columns, rows);
}

// ---- Batches --------------------------------------------------------------------------------------------------------

// Of a call.
template <class T> struct LeastSquaresWords : SystemWords {
    T *work;
    bool strays; // see strayInTriangle
};

// `work` is left as the last object leaves it.
template <std::size_t order, bool isArray> struct LeastSquaresBatch : SystemBatch<order, isArray> {
    using System = SystemBatch<order, isArray>;
    using System::src1, System::src2, System::dst;
    static constexpr std::size_t chains = 4; // a quotient waits for the one before it
    ObjectsView workspace;
    Pack betasOfSingle[order];

    template <class Tables>
    VONKK3_INLINE LeastSquaresBatch(const LeastSquaresWords<Real32> &words, std::size_t count, Tables throughTables)
        : System(words, count, throughTables), workspace(packedBlocks(words.work, order, 1)) {}

    template <Access access> VONKK3_INLINE void hoist() {
        System::template hoist<access>();
        if constexpr (!isArray) findBetas(src1.broadcast(), betasOfSingle);
    }
    template <Access access, std::size_t chains> VONKK3_INLINE bool work(std::size_t n) const {
        Packs<chains> b[1][order], x[1][order];
        src2.template gather<access>(n, b);
        src1.template with<access, chains>(n, [&](auto &f) VONKK3_INLINED {
            if constexpr (isArray) {
                if constexpr (chains > 1) solveWithOwn(f, b, x);
                else solveWithOwnByCall(f, b, x);
            } else if constexpr (chains > 1) solveWith(f, betasOfSingle, b, x);
            else solveWithByCall(f, betasOfSingle, b, x);
        });
        dst.template scatter<access>(n, x);
        storeLast(workspace, b[0]);
        return true;
    }

private:
    // What is left over is worked by one body for all layouts.
    template <class Factors, class Number>
    VONKK3_INLINE static void findBetas(const Factors &f, Number (&betas)[order]) {
        forIndices(0, order - 1, fixed<order>,
                   [&](std::size_t k) VONKK3_INLINED { betas[k] = betaOf(Local{f}, k, fixed<order>); });
    }
    template <class Number>
    VONKK3_INLINE static void solveWithOwn(const Number (&f)[order][order], Number (&b)[1][order],
                                           Number (&x)[1][order]) {
        Number betas[order];
        findBetas(f, betas);
        solveWith(f, betas, b, x);
    }
    template <class Number>
    VONKK3_NOINLINE static void solveWithOwnByCall(const Number (&f)[order][order], Number (&b)[1][order],
                                                   Number (&x)[1][order]) {
        solveWithOwn(f, b, x);
    }
    template <class Factors, class Betas, class Vector>
    VONKK3_NOINLINE static void solveWithByCall(const Factors &f, const Betas &betas, Vector &b, Vector &x) {
        solveWith(f, betas, b, x);
    }
    template <class Factors, class Betas, class Vector>
    VONKK3_INLINE static void solveWith(const Factors &f, const Betas &betas, Vector &b, Vector &x) {
        replay(Local{f}, Local{b}, fixed<order>, fixed<order>, [&](std::size_t k) VONKK3_INLINED { return betas[k]; });
        solveTriangle(Local{f}, Local{b}, Local{x}, fixed<order>);
    }
};

// ---- All objects ----------------------------------------------------------------------------------------------------

template <class Source, class Solution, class T, class Columns, class Rows>
VONKK3_NOINLINE VonkStatus solvePlainly(const LeastSquaresWords<T> &words, Columns columns, Rows rows, std::size_t n,
                                        std::size_t to) {
    const Source src1(words.src1), src2(words.src2);
    const Solution dst(words.dst);
    T *const work = words.work;
    const bool strays = words.strays;
    for (; n < to; ++n) {
        if (src1.listHasNull(n) || src2.listHasNull(n) || dst.listHasNull(n)) return vonkErrNullPtr;
        const auto reflectors = src1.view(n, columns);
        auto triangle = reflectors;
        if constexpr (std::is_same_v<T, Real64> && !Source::isTable)
            if (strays) triangle.base += 1 - reflectors.rowStride, triangle.rowStride = 1;
        solveObject(reflectors, triangle, work, src2.view(n, 1), dst.view(n, 1), columns, rows);
    }
    return vonkOk;
}

// A fixed order is unrolled where rows are contiguous.
template <class T, bool throughTables, class Columns, class Rows>
VONKK3_INLINE VonkStatus solvePlainly(const LeastSquaresWords<T> &words, Columns columns, Rows rows, std::size_t from,
                                      std::size_t to) {
    const RunTime width{std::uint32_t(columns)}, height{std::uint32_t(rows)};
    if constexpr (!throughTables)
        if (areRowsContiguous<T>(words.src1, words.src2, words.dst)) {
            using Source = ContiguousOperand<const T>;
            using Solution = ContiguousOperand<T>;
            if constexpr (Columns::isFixed) return solvePlainly<Source, Solution>(words, columns, rows, from, to);
            else return solvePlainly<Source, Solution>(words, width, height, from, to);
        }
    using Source = SharedOperand<const T, throughTables>;
    return solvePlainly<Source, SharedOperand<T, throughTables>>(words, width, height, from, to);
}

template <std::size_t order, bool isArray, bool throughTables>
VONKK3_NOINLINE VonkStatus solveInBatches(const LeastSquaresWords<Real32> &words, std::size_t count) {
    LeastSquaresBatch<order, isArray> batch(words, count, std::bool_constant<throughTables>());
    const Aliasing aliasing(count, writes(batch.dst.view), reads(batch.src1.view), readsInPlace(batch.src2.view),
                            writes(batch.workspace));
    return forEachBatch(batch, aliasing, count, [&](std::size_t n) {
        return solvePlainly<Real32, throughTables>(words, fixed<order>, fixed<order>, n, n + 1);
    });
}

// Entries of the table of `src2` from `columns` on are used but not tested.
template <class Factors, class T, class RightSide, class Solution, class Columns, class Rows, class Count>
VONKK3_INLINE VonkStatus qrBackSubstitute(const Factors &src1, T *work, const RightSide &src2, const Solution &dst,
                                          Columns columns, Rows rows, Count count) {
    constexpr bool throughTables = Solution::isTable;
    if (anyNull(src1, work, src2, dst)) return vonkErrNullPtr;
    if (columns.isZero() || rows.isZero()) return vonkErrSize;
    if (anyTableEntryNull(columns * rows, src1)) return vonkErrNullPtr;
    if (anyTableEntryNull(columns, src2, dst)) return vonkErrNullPtr;
    if constexpr (!Count::isArray && Solution::layout == Layout::Standard) {
        const auto factors = src1.view(0);
        if constexpr (Columns::isFixed && std::is_same_v<T, Real32>)
            solveObject(factors, factors, work, src2.view(0), dst.view(0), columns, rows);
        else
            solveByCall(factors, factors, work, src2.view(0), dst.view(0), RunTime{std::uint32_t(columns)},
                        RunTime{std::uint32_t(rows)});
        return vonkOk;
    } else {
        LeastSquaresWords<T> words{{src1.words(columns), src2.words(1), dst.words(1)}, work, strayInTriangle<Factors>};
        if (stepsHalfColumns<Factors, Solution>) words.src1.elementStride = sizeof(Real64) / 2;
        const auto plainly = [&]() VONKK3_INLINED {
            return solvePlainly<T, throughTables>(words, columns, rows, 0, count);
        };
        if constexpr (worksInBatches<Solution>)
            if (count >= packWidth && columns == rows)
                return withFixedOrder(
                    columns,
                    [&](auto order)
                        VONKK3_INLINED { return solveInBatches<order, Factors::isArray, throughTables>(words, count); },
                    plainly);
        return plainly();
    }
}

} // namespace vonkk3::cholqr
