// Plain Cholesky and QR decomposition and solving.
#include "peers/plain_cholqr.h"

#include "peers/plain_cholqr_loops.h"

namespace bench::plain {

template <class T, class W, class Root, std::size_t order>
bool factorCholesky(const T *__restrict source, T *__restrict factors, std::size_t count) {
    for (std::size_t n = 0; n < count; ++n)
        if (!factorOneCholesky<T, W, Root, order>(source + n * order * order, factors + n * order * order))
            return false;
    return true;
}

template <class T, class W, std::size_t order>
void solveCholesky(const T *__restrict factors, const T *__restrict b, T *__restrict x, std::size_t count) {
    for (std::size_t n = 0; n < count; ++n)
        solveOneCholesky<T, W, order>(factors + n * order * order, b + n * order, x + n * order);
}

template <class T, class W, std::size_t order>
void solveCholeskyForOne(const T *__restrict factors, const T *__restrict b, T *__restrict x, std::size_t count) {
    for (std::size_t n = 0; n < count; ++n) solveOneCholesky<T, W, order>(factors, b + n * order, x + n * order);
}

template <class T, class W, class Root, std::size_t order>
bool factorQr(const T *__restrict source, T *__restrict factors, T *__restrict betas, std::size_t count) {
    for (std::size_t n = 0; n < count; ++n)
        if (!factorOneQr<T, W, Root, order>(source + n * order * order, factors + n * order * order,
                                            betas + n * (order - 1)))
            return false;
    return true;
}

template <bool keptBetas, class T, class W, std::size_t order>
void solveQr(const T *__restrict factors, const T *__restrict betas, const T *__restrict b, T *__restrict x,
             std::size_t count) {
    for (std::size_t n = 0; n < count; ++n)
        solveOneQr<keptBetas, T, W, order>(factors + n * order * order, betas + n * (order - 1), b + n * order,
                                           x + n * order);
}

template <bool keptBetas, class T, class W, std::size_t order>
void solveQrForOne(const T *__restrict factors, const T *__restrict betas, const T *__restrict b, T *__restrict x,
                   std::size_t count) {
    for (std::size_t n = 0; n < count; ++n)
        solveOneQr<keptBetas, T, W, order>(factors, betas, b + n * order, x + n * order);
}

#define BENCH_FACTOR(T, W, Root, order)                                                                                \
    template bool factorCholesky<T, W, Root, order>(const T *, T *, std::size_t);                                      \
    template bool factorQr<T, W, Root, order>(const T *, T *, T *, std::size_t);
#define BENCH_SOLVE(T, W, order)                                                                                       \
    template void solveCholesky<T, W, order>(const T *, const T *, T *, std::size_t);                                  \
    template void solveQr<false, T, W, order>(const T *, const T *, const T *, T *, std::size_t);                      \
    template void solveQr<true, T, W, order>(const T *, const T *, const T *, T *, std::size_t);
#define BENCH_ALL(order)                                                                                               \
    BENCH_FACTOR(float, float, long double, order)                                                                     \
    BENCH_FACTOR(float, float, float, order)                                                                           \
    BENCH_FACTOR(double, long double, long double, order)                                                              \
    BENCH_FACTOR(double, double, double, order)                                                                        \
    BENCH_SOLVE(float, float, order)                                                                                   \
    BENCH_SOLVE(double, long double, order)                                                                            \
    BENCH_SOLVE(double, double, order)

BENCH_ALL(3)
BENCH_ALL(4)
BENCH_ALL(6)
template void solveCholeskyForOne<float, float, 4>(const float *, const float *, float *, std::size_t);
template void solveQrForOne<false, float, float, 4>(const float *, const float *, const float *, float *, std::size_t);
template void solveQrForOne<true, float, float, 4>(const float *, const float *, const float *, float *, std::size_t);

} // namespace bench::plain
