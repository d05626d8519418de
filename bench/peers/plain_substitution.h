// The loops of plain back substitution, for the files that compile them; see plain_lu.h.
#pragma once

#include "peers/plain_lu.h"

namespace bench::plain {

template <bool sumsFirst, class T, class W, std::size_t order>
[[gnu::always_inline]] inline void solveOne(const T *__restrict factors, const std::uint32_t *__restrict pivots,
                                            const T *__restrict b, T *__restrict x) {
    BENCH_UNROLL for (std::size_t i = 0; i < order; ++i) {
        W rest = sumsFirst ? W(0) : W(b[pivots[i]]);
        BENCH_UNROLL for (std::size_t j = 0; j < i; ++j) {
            const W term = W(factors[i * order + j]) * W(x[j]);
            rest = sumsFirst ? rest + term : rest - term;
        }
        x[i] = T(sumsFirst ? W(b[pivots[i]]) - rest : rest);
    }
    BENCH_UNROLL for (std::size_t back = 1; back <= order; ++back) {
        const std::size_t i = order - back;
        W rest = sumsFirst ? W(0) : W(x[i]);
        BENCH_UNROLL for (std::size_t j = i + 1; j < order; ++j) {
            const W term = W(factors[i * order + j]) * W(x[j]);
            rest = sumsFirst ? rest + term : rest - term;
        }
        x[i] = T((sumsFirst ? W(x[i]) - rest : rest) / W(factors[i * order + i]));
    }
}

template <bool sumsFirst, class T, class W, std::size_t order>
void solve(const T *__restrict factors, const std::uint32_t *__restrict pivots, const T *__restrict b, T *__restrict x,
           std::size_t count) {
    for (std::size_t n = 0; n < count; ++n)
        solveOne<sumsFirst, T, W, order>(factors + n * order * order, pivots + n * order, b + n * order, x + n * order);
}

template <bool sumsFirst, class T, class W, std::size_t order>
void solveForOne(const T *__restrict factors, const std::uint32_t *__restrict pivots, const T *__restrict b,
                 T *__restrict x, std::size_t count) {
    for (std::size_t n = 0; n < count; ++n)
        solveOne<sumsFirst, T, W, order>(factors, pivots, b + n * order, x + n * order);
}

} // namespace bench::plain
