// QR decomposition by Householder reflections, column by column. R stays on and above the diagonal; each reflector lies
// below the diagonal of its column, scaled so that its leading element is 1, which is not stored. Its factor
// beta = -2 / (v'v) is not stored either.
#pragma once

#include "cholqr/elements.h"
#include "cholqr/roots.h"
#include "frame/shared_batch.h"

namespace vonkk3::cholqr {

// The singularity tolerance of the SQUARED norm of a column from the diagonal down: an absolute number, and the same
// for both element types.
inline constexpr Real32 squaredNormTolerance = 0x1p-23F;

// A NaN does not pass.
template <class Number> inline bool passesAsSquaredNorm(Number s) { return s >= Number(squaredNormTolerance); }
template <std::size_t chains> VONKK3_INLINE bool passesAsSquaredNorm(const Packs<chains> &s) {
    return inAllLanes(s, [](auto a) VONKK3_INLINED { return a >= decltype(a)(squaredNormTolerance); });
}

// With the sign of the diagonal element, so that their sum cancels nothing; of zero and NaN the minus sign.
template <class Number> inline Number withSignOf(Number diagonal, Number norm) { return diagonal > 0 ? norm : -norm; }
template <std::size_t chains>
VONKK3_INLINE Packs<chains> withSignOf(const Packs<chains> &diagonal, const Packs<chains> &norm) {
    return Packs<chains>::each([&](std::size_t c) VONKK3_INLINED {
        return select(diagonal.chain[c] > typename Packs<chains>::Value(0), norm.chain[c], -norm.chain[c]);
    });
}

// ---- One object -----------------------------------------------------------------------------------------------------

// Builds reflector k in `work` from what column k of d holds from the diagonal down; its beta.
template <class Matrix, class Work, class Number, class Rows>
VONKK3_INLINE Number buildReflector(const Matrix &d, const Work &work, std::size_t k, Rows rows, Number norm) {
    const Number diagonal = d.load(k, k);
    const Number inverse = 1 / (diagonal + withSignOf(diagonal, norm));
    work.store(k, 1);
    const Number squares = sumInPairs(d, Number(1), k + 1, rows, rows, [&](std::size_t i) VONKK3_INLINED {
        const Number element = d.load(i, k) * inverse;
        work.store(i, element);
        return element * element;
    });
    return d.rounded(-2 / squares);
}

// Adds beta v (v'd) to column c of d.
template <class Matrix, class Work, class Number, class Rows>
VONKK3_INLINE void reflectColumn(const Matrix &d, const Work &work, std::size_t k, std::size_t c, Rows rows,
                                 Number beta) {
    Number p = d.load(k, c);
    forIndices(k + 1, rows, rows, [&](std::size_t i) VONKK3_INLINED { p = p + d.load(i, c) * work.load(i); });
    p = p * beta;
    forIndices(k, rows, rows, [&](std::size_t i) VONKK3_INLINED { d.store(i, c, work.load(i) * p + d.load(i, c)); });
}

// All reflections; false if a column is too small, and what came before it stands. A matrix wider than high always
// ends so: it runs out of rows.
template <class Matrix, class Work, class Columns, class Rows>
VONKK3_INLINE bool reflectAll(const Matrix &d, const Work &work, Columns columns, Rows rows) {
    using Number = typename Matrix::Number;
    return everyIndex(0, reflections(columns, rows), columns, [&](std::size_t k) VONKK3_INLINED {
        const Number squaredNorm = sumInPairs(d, Number(0), k, rows, rows, [&](std::size_t i) VONKK3_INLINED {
            const Number element = d.load(i, k);
            return element * element;
        });
        if (!passesAsSquaredNorm(squaredNorm)) return false;
        const Number beta = buildReflector(d, work, k, rows, root(squaredNorm));
        forIndices(k, columns, columns,
                   [&](std::size_t c) VONKK3_INLINED { reflectColumn(d, work, k, c, rows, beta); });
        forIndices(k + 1, rows, rows, [&](std::size_t i) VONKK3_INLINED { d.store(i, k, work.load(i)); });
        return true;
    });
}

// Every step is stored at once.
template <class Source, class Factors, class T, class Columns, class Rows>
VONKK3_INLINE VonkStatus reflectInMemory(const Source &source, const Factors &factors, T *work, Columns columns,
                                         Rows rows) {
    for (std::size_t i = 0; i < rows; ++i)
        for (std::size_t j = 0; j < columns; ++j) factors.store(i, j, source.load(i, j));
    return reflectAll(InMemory{factors}, InMemory{workSpace(work)}, columns, rows) ? vonkOk : vonkErrSingular;
}
template <class Source, class Factors, class T>
VONKK3_NOINLINE VonkStatus reflectByCall(Source source, Factors factors, T *work, RunTime columns, RunTime rows) {
    return reflectInMemory(source, factors, work, columns, rows);
}

// Real32 of fixed order in rows of adjacent elements is worked on a local copy, where operands are disjoint or in
// place, and stored if all goes well.
template <std::size_t order>
VONKK3_INLINE bool reflectLocally(const RowsView<const Real32> &source, const RowsView<Real32> &factors, Real32 *work,
                                  Fixed<order>) {
    const Extent target = extentOf(factors, order, order);
    if (!areRowsDisjoint(factors, order) || !disjoint(target, extentOf(work, order))) return false;
    if (!disjoint(target, extentOf(source, order, order)) &&
        !(source.base == factors.base && source.rowStride == factors.rowStride))
        return false;

    Real32 d[order][order], v[1][order];
    const auto forElements = [](const auto &body) VONKK3_INLINED {
        forIndices(0, order, fixed<order>, [&](std::size_t i) VONKK3_INLINED {
            forIndices(0, order, fixed<order>, [&](std::size_t j) VONKK3_INLINED { body(i, j); });
        });
    };
    forElements([&](std::size_t i, std::size_t j) VONKK3_INLINED { d[i][j] = source.load(i, j); });
    if (!reflectAll(Local{d}, Local{v}, fixed<order>, fixed<order>)) return false;
    forElements([&](std::size_t i, std::size_t j) VONKK3_INLINED { factors.store(i, j, d[i][j]); });
    forIndices(0, order, fixed<order>, [&](std::size_t i) VONKK3_INLINED { workSpace(work).store(i, v[0][i]); });
    return true;
}

template <class Source, class Factors, class T, class Columns, class Rows>
VONKK3_INLINE VonkStatus reflectObject(const Source &source, const Factors &factors, T *work, Columns columns,
                                       Rows rows) {
    constexpr bool hasRows = std::is_same_v<Factors, RowsView<T>>;
    if constexpr (Columns::isFixed && std::is_same_v<T, Real32> && hasRows)
        if (reflectLocally(source, factors, work, columns)) return vonkOk;
    if constexpr (hasRows)
        return reflectByCall(source, factors, work, RunTime{std::uint32_t(columns)}, RunTime{std::uint32_t(rows)});
    else return reflectInMemory(source, factors, work, columns, rows);
}

// ---- Batches --------------------------------------------------------------------------------------------------------

// Of a call.
template <class T> struct ReflectWords : MatrixWords { T *work; };

// `work` is left as the last object leaves it.
template <std::size_t order> struct ReflectBatch : MatrixBatch<order> {
    using MatrixBatch<order>::src, MatrixBatch<order>::dst;
    static constexpr std::size_t chains = 4; // norms and roots wait for one another
    ObjectsView workspace;

    template <class Tables>
    VONKK3_INLINE ReflectBatch(const ReflectWords<Real32> &words, std::size_t count, Tables throughTables)
        : MatrixBatch<order>(words, count, throughTables), workspace(packedBlocks(words.work, order, 1)) {}

    template <Access access, std::size_t chains> VONKK3_INLINE bool work(std::size_t n) const {
        Packs<chains> d[order][order], v[1][order];
        src.template gather<access>(n, d);
        if (!(order <= 4 ? reflect(d, v) : reflectByCall(d, v))) return false;
        dst.template scatter<access>(n, d);
        storeLast(workspace, v[0]);
        return true;
    }

private:
    template <class Number> VONKK3_INLINE static bool reflect(Number (&d)[order][order], Number (&v)[1][order]) {
        return reflectAll(Local{d}, Local{v}, fixed<order>, fixed<order>);
    }
    template <class Number>
    VONKK3_NOINLINE static bool reflectByCall(Number (&d)[order][order], Number (&v)[1][order]) {
        return reflect(d, v);
    }
};

// ---- All objects ----------------------------------------------------------------------------------------------------

// Objects one after the other, each through all its steps; the first singular one ends the call.
template <class Source, class Factors, class T, class Columns, class Rows>
VONKK3_NOINLINE VonkStatus reflectPlainly(const ReflectWords<T> &words, Columns columns, Rows rows, std::size_t n,
                                          std::size_t to) {
    const Source src(words.src);
    const Factors dst(words.dst);
    T *const work = words.work;
    for (; n < to; ++n) {
        if (src.listHasNull(n) || dst.listHasNull(n)) return vonkErrNullPtr;
        const VonkStatus status = reflectObject(src.view(n, columns), dst.view(n, columns), work, columns, rows);
        if (status != vonkOk) return status;
    }
    return vonkOk;
}

template <class T, bool throughTables, class Columns, class Rows>
VONKK3_INLINE VonkStatus reflectPlainly(const ReflectWords<T> &words, Columns columns, Rows rows, std::size_t from,
                                        std::size_t to) {
    if constexpr (Columns::isFixed && std::is_same_v<T, Real32> && !throughTables)
        if (areRowsContiguous<T>(words.src, words.dst))
            return reflectPlainly<ContiguousOperand<const T>, ContiguousOperand<T>>(words, columns, rows, from, to);
    using Source = SharedOperand<const T, throughTables>;
    using Factors = SharedOperand<T, throughTables>;
    // A few small objects of Real32 are not worth code of their own.
    constexpr bool isShared = std::is_same_v<T, Real32> && isLight<Columns>;
    const auto size = [](std::size_t given)
                          VONKK3_INLINED { return RunTime{std::uint32_t(isShared ? opaque(given) : given)}; };
    return reflectPlainly<Source, Factors>(words, size(columns), size(rows), from, to);
}

template <std::size_t order, bool throughTables>
VONKK3_NOINLINE VonkStatus reflectInBatches(const ReflectWords<Real32> &words, std::size_t count) {
    const auto plainly = [&](std::size_t from, std::size_t to) VONKK3_INLINED {
        return reflectPlainly<Real32, throughTables>(words, fixed<order>, fixed<order>, from, to);
    };
    if (!RoundingControl().bothRoundToNearest()) return plainly(0, count);
    ReflectBatch<order> batch(words, count, std::bool_constant<throughTables>());
    const Aliasing aliasing(count, writes(batch.dst.view), readsInPlace(batch.src.view), writes(batch.workspace));
    return forEachBatch(batch, aliasing, count, [&](std::size_t n) { return plainly(n, n + 1); });
}

template <class Source, class T, class Factors, class Columns, class Rows, class Count>
VONKK3_INLINE VonkStatus qrDecompose(const Source &src, T *work, const Factors &dst, Columns columns, Rows rows,
                                     Count count) {
    constexpr bool throughTables = Factors::isTable;
    if (anyNull(src, work, dst)) return vonkErrNullPtr;
    if (columns.isZero() || rows.isZero()) return vonkErrSize;
    if (anyTableEntryNull(columns * rows, src, dst)) return vonkErrNullPtr;
    if constexpr (!Count::isArray && Factors::layout == Layout::Standard)
        return reflectObject(src.view(0), dst.view(0), work, columns, rows);
    else {
        const ReflectWords<T> words{{src.words(columns), dst.words(columns)}, work};
        const auto plainly = [&]() VONKK3_INLINED {
            return reflectPlainly<T, throughTables>(words, columns, rows, 0, count);
        };
        if constexpr (worksInBatches<Factors>)
            if (count >= packWidth && columns == rows)
                return withFixedOrder(
                    columns,
                    [&](auto order) VONKK3_INLINED { return reflectInBatches<order, throughTables>(words, count); },
                    plainly);
        return plainly();
    }
}

} // namespace vonkk3::cholqr
