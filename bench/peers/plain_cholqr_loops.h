// Cholesky and QR decomposition and solving of one packed object, for the files that loop over objects. Decompositions
// tell whether they went through; `stops` says whether they stop where they fail, or else go on, without a branch.
#pragma once

#include "peers/unroll.h"

#include <cmath>
#include <cstddef>

namespace bench::plain {

template <class T, class W, class Root, std::size_t order, bool stops = true>
[[gnu::always_inline]] inline bool factorOneCholesky(const T *__restrict source, T *__restrict factors) {
    W f[order][order];
    [[maybe_unused]] bool isPositive = true;
    BENCH_UNROLL for (std::size_t i = 0; i < order; ++i) {
        BENCH_UNROLL for (std::size_t j = 0; j <= i; ++j) {
            W s = source[i * order + j];
            BENCH_UNROLL for (std::size_t k = 0; k < j; ++k) s -= f[i][k] * f[j][k];
            if (j < i) f[i][j] = s * f[j][j];
            else {
                if constexpr (stops) {
                    if (!(s > 0)) return false;
                } else isPositive = isPositive & (s > 0);
                f[i][i] = W(1 / std::sqrt(Root(s)));
            }
            factors[i * order + j] = T(f[i][j]);
        }
    }
    return isPositive;
}

template <class T, class W, std::size_t order>
[[gnu::always_inline]] inline void solveOneCholesky(const T *__restrict f, const T *__restrict b, T *__restrict x) {
    BENCH_UNROLL for (std::size_t i = 0; i < order; ++i) {
        W s = b[i];
        BENCH_UNROLL for (std::size_t k = 0; k < i; ++k) s -= W(f[i * order + k]) * W(x[k]);
        x[i] = T(s * W(f[i * order + i]));
    }
    BENCH_UNROLL for (std::size_t above = 0; above < order; ++above) {
        const std::size_t i = order - 1 - above;
        W s = x[i];
        BENCH_UNROLL for (std::size_t below = 0; below < above; ++below) {
            const std::size_t k = order - 1 - below;
            s -= W(f[k * order + i]) * W(x[k]);
        }
        x[i] = T(s * W(f[i * order + i]));
    }
}

// A sum that is rounded to T behind its pairs of terms and behind an odd last one.
template <class T, class W> class PairedSum {
public:
    explicit PairedSum(W start) : sum(start) {}
    [[gnu::always_inline]] void add(W term, std::size_t index, std::size_t terms) {
        sum += term;
        if (index + 1 == terms || index + 1 == terms / 2 * 2) sum = T(sum);
    }
    W value() const { return sum; }

private:
    W sum;
};

template <class T, class W, class Root, std::size_t order, bool stops = true>
[[gnu::always_inline]] inline bool factorOneQr(const T *__restrict source, T *__restrict factors, T *__restrict betas) {
    T d[order][order];
    [[maybe_unused]] bool isRegular = true;
    BENCH_UNROLL for (std::size_t i = 0; i < order; ++i) BENCH_UNROLL for (std::size_t j = 0; j < order; ++j) d[i][j] =
        source[i * order + j];
    BENCH_UNROLL for (std::size_t k = 0; k + 1 < order; ++k) {
        PairedSum<T, W> norm(0);
        BENCH_UNROLL for (std::size_t i = k; i < order; ++i) norm.add(W(d[i][k]) * W(d[i][k]), i - k, order - k);
        if constexpr (stops) {
            if (!(norm.value() >= W(0x1p-23F))) return false;
        } else isRegular = isRegular & (norm.value() >= W(0x1p-23F));
        const W root = W(std::sqrt(Root(norm.value())));
        const W inverse = 1 / (d[k][k] + (d[k][k] > 0 ? root : -root));
        T v[order];
        v[k] = 1;
        PairedSum<T, W> squares(1);
        BENCH_UNROLL for (std::size_t i = k + 1; i < order; ++i) {
            const W element = d[i][k] * inverse;
            v[i] = T(element);
            squares.add(element * element, i - k - 1, order - k - 1);
        }
        const T beta = T(-2 / squares.value());
        betas[k] = beta;
        BENCH_UNROLL for (std::size_t c = k; c < order; ++c) {
            W p = d[k][c];
            BENCH_UNROLL for (std::size_t i = k + 1; i < order; ++i) p += W(d[i][c]) * W(v[i]);
            p *= beta;
            BENCH_UNROLL for (std::size_t i = k; i < order; ++i) d[i][c] = T(W(v[i]) * p + W(d[i][c]));
        }
        BENCH_UNROLL for (std::size_t i = k + 1; i < order; ++i) d[i][k] = v[i];
    }
    BENCH_UNROLL for (std::size_t i = 0; i < order; ++i) BENCH_UNROLL for (std::size_t j = 0; j < order; ++j)
        factors[i * order + j] = d[i][j];
    return isRegular;
}

template <bool keptBetas, class T, class W, std::size_t order>
[[gnu::always_inline]] inline void solveOneQr(const T *__restrict f, const T *__restrict betas, const T *__restrict b,
                                              T *__restrict x) {
    T work[order];
    BENCH_UNROLL for (std::size_t i = 0; i < order; ++i) work[i] = b[i];
    BENCH_UNROLL for (std::size_t k = 0; k + 1 < order; ++k) {
        W squares = 1, product = work[k];
        BENCH_UNROLL for (std::size_t i = k + 1; i < order; ++i) {
            const W element = f[i * order + k];
            if (!keptBetas) squares += element * element;
            product += W(work[i]) * element;
        }
        const W p = product * (keptBetas ? W(betas[k]) : -2 / squares);
        work[k] = T(work[k] + p);
        BENCH_UNROLL for (std::size_t i = k + 1; i < order; ++i) work[i] = T(W(f[i * order + k]) * p + W(work[i]));
    }
    BENCH_UNROLL for (std::size_t above = 0; above < order; ++above) {
        const std::size_t i = order - 1 - above;
        W s = 0;
        BENCH_UNROLL for (std::size_t j = i + 1; j < order; ++j) s += W(f[i * order + j]) * W(x[j]);
        x[i] = T((work[i] - s) / W(f[i * order + i]));
    }
}

} // namespace bench::plain
