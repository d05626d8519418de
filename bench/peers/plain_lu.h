// LU decomposition and back substitution as plain loops with fixed bounds, written for speed: a matrix is worked in a
// local copy that fits the registers, rows are exchanged there, all loops are unrolled. Multipliers are true quotients
// and pivots below the tolerance are refused. T is what memory holds, W what is worked in.
#pragma once

#include "peers/unroll.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <utility>

namespace bench::plain {

template <class X> [[gnu::always_inline]] inline void swapIf(bool condition, X &a, X &b) {
    const X first = a, second = b;
    a = condition ? second : first;
    b = condition ? first : second;
}

// One matrix, packed. `pivots` says which row of the source each row of the factors was. In line, for those who have
// one matrix and no call to make. Whether it went through; `stops` at the pivot that fails, or else goes on, without a
// branch.
template <class T, class W, std::size_t order, bool stops = true>
[[gnu::always_inline]] inline bool decomposeOne(const T *__restrict source, std::uint32_t *__restrict pivots,
                                                T *__restrict factors) {
    constexpr T tolerance = T(0x1p-23);
    T a[order][order];
    std::uint32_t rows[order];
    [[maybe_unused]] bool isRegular = true;
    BENCH_UNROLL for (std::size_t i = 0; i < order; ++i) {
        rows[i] = std::uint32_t(i);
        BENCH_UNROLL for (std::size_t j = 0; j < order; ++j) a[i][j] = source[i * order + j];
    }
    BENCH_UNROLL for (std::size_t k = 0; k < order; ++k) {
        if constexpr (stops) {
            auto best = std::uint32_t(k);
            T largest = std::fabs(a[k][k]);
            BENCH_UNROLL for (std::size_t i = k + 1; i < order; ++i) {
                const T magnitude = std::fabs(a[i][k]);
                const bool isLarger = magnitude > largest;
                best = isLarger ? std::uint32_t(i) : best;
                largest = isLarger ? magnitude : largest;
            }
            if (!(largest >= tolerance)) return false;
            // Asked row by row: an index that is only known at run time would keep the matrix out of registers.
            BENCH_UNROLL for (std::size_t i = k + 1; i < order; ++i) if (i == best) {
                BENCH_UNROLL for (std::size_t j = 0; j < order; ++j) std::swap(a[k][j], a[i][j]);
                std::swap(rows[k], rows[i]);
            }
        } else {
            // The largest so far goes up at once. Rows below it come in another order, which decides between equals
            // alone.
            BENCH_UNROLL for (std::size_t i = k + 1; i < order; ++i) {
                const bool isLarger = std::fabs(a[i][k]) > std::fabs(a[k][k]);
                BENCH_UNROLL for (std::size_t j = 0; j < order; ++j) swapIf(isLarger, a[k][j], a[i][j]);
                swapIf(isLarger, rows[k], rows[i]);
            }
            isRegular = isRegular & (std::fabs(a[k][k]) >= tolerance);
        }
        BENCH_UNROLL for (std::size_t i = k + 1; i < order; ++i) {
            const W multiplier = W(a[i][k]) / W(a[k][k]);
            a[i][k] = T(multiplier);
            BENCH_UNROLL for (std::size_t j = k + 1; j < order; ++j) a[i][j] = T(W(a[i][j]) - multiplier * W(a[k][j]));
        }
    }
    BENCH_UNROLL for (std::size_t i = 0; i < order; ++i) {
        pivots[i] = rows[i];
        BENCH_UNROLL for (std::size_t j = 0; j < order; ++j) factors[i * order + j] = a[i][j];
    }
    return isRegular;
}

template <class T, class W, std::size_t order>
bool decompose(const T *source, std::uint32_t *pivots, T *factors, std::size_t count);

// Solving, with each matrix for its own right-hand side, or one matrix for all of them. `sumsFirst` builds sums from
// zero and subtracts them at the end, as the library does, which gives the same bits; otherwise they start from the
// right-hand side, as one writes it by hand.
template <bool sumsFirst, class T, class W, std::size_t order>
void solve(const T *factors, const std::uint32_t *pivots, const T *b, T *x, std::size_t count);
template <bool sumsFirst, class T, class W, std::size_t order>
void solveForOne(const T *factors, const std::uint32_t *pivots, const T *b, T *x, std::size_t count);

} // namespace bench::plain
