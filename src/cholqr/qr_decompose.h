// QR decomposition by Householder reflections, column by column. R stays on and above the diagonal; each reflector lies
// below the diagonal of its column, scaled so that its leading element is 1, which is not stored. Its factor
// beta = -2 / (v'v) is not stored either.
#pragma once

#include "cholqr/elements.h"
#include "cholqr/reflectors.h"
#include "frame/walk.h"

namespace vonkk3::cholqr {

// A column whose SQUARED norm from the diagonal down is below this is taken for zero: an absolute number, and the same
// for both element types.
inline constexpr Real32 squaredNormTolerance = 0x1p-23F;

inline Wide root(Wide s) { return __builtin_sqrtl(s); }
inline Real32 root(Real32 s) { return Real32(__builtin_sqrtl(Wide(s))); } // taken wide, rounded once

// A NaN does not pass.
template <class Number> inline bool passesAsSquaredNorm(Number s) { return s >= Number(squaredNormTolerance); }

// With the sign of the diagonal element, so that their sum cancels nothing; of zero and NaN the minus sign.
template <class Number> inline Number withSignOf(Number diagonal, Number norm) { return diagonal > 0 ? norm : -norm; }

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

template <class Source, class Factors, class T>
[[gnu::noinline]] VonkStatus reflectByLoops(Source source, Factors factors, T *work, RunTime columns, RunTime rows) {
    for (std::size_t i = 0; i < rows; ++i)
        for (std::size_t j = 0; j < columns; ++j) factors.store(i, j, source.load(i, j));
    return reflectAll(InMemory{factors}, InMemory{workSpace(work)}, columns, rows) ? vonkOk : vonkErrSingular;
}

// ---- All objects ----------------------------------------------------------------------------------------------------

// Objects one after the other, each through all its steps; the first singular one ends the call.
template <class Source, class T, class Factors, class Columns, class Rows, class Count>
VONKK3_INLINE VonkStatus qrDecompose(const Source &src, T *work, const Factors &dst, Columns columns, Rows rows,
                                     Count count) {
    if (anyNull(src, work, dst)) return vonkErrNullPtr;
    if (columns.isZero() || rows.isZero()) return vonkErrSize;
    if (anyTableEntryNull(columns * rows, src, dst)) return vonkErrNullPtr;
    return forEachObject(
        count,
        [&](std::size_t n) VONKK3_INLINED {
            return reflectByLoops(src.view(n, columns), dst.view(n, columns), work, RunTime{std::uint32_t(columns)},
                                  RunTime{std::uint32_t(rows)});
        },
        src, dst);
}

} // namespace vonkk3::cholqr
