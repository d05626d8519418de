// Plain products of matrices by vectors.
#include "peers/plain_products.h"

namespace bench::plain {
namespace {

template <std::size_t order, class W> [[gnu::always_inline]] inline W sumAsLibrary(const W (&p)[order]) {
    if constexpr (order == 4) return (p[0] + p[2]) + (p[1] + p[3]);
    else if constexpr (order == 6) return ((p[0] + p[2]) + p[4]) + ((p[1] + p[3]) + p[5]);
    else return (p[0] + p[1]) + p[2];
}

template <Sums sums, class T, class W, std::size_t order>
[[gnu::always_inline]] inline void multiplyOneVector(const T *__restrict a, const T *__restrict v, W (&result)[order]) {
    if constexpr (sums == Sums::byColumns) {
        BENCH_UNROLL for (std::size_t i = 0; i < order; ++i) result[i] = W(a[i * order]) * W(v[0]);
        BENCH_UNROLL for (std::size_t k = 1; k < order; ++k) BENCH_UNROLL for (std::size_t i = 0; i < order; ++i)
            result[i] += W(a[i * order + k]) * W(v[k]);
    } else {
        BENCH_UNROLL for (std::size_t i = 0; i < order; ++i) {
            W products[order];
            BENCH_UNROLL for (std::size_t k = 0; k < order; ++k) products[k] = W(a[i * order + k]) * W(v[k]);
            if constexpr (sums == Sums::asLibrary) result[i] = sumAsLibrary<order>(products);
            else {
                result[i] = products[0];
                BENCH_UNROLL for (std::size_t k = 1; k < order; ++k) result[i] += products[k];
            }
        }
    }
}

template <class T, class W, std::size_t order>
[[gnu::always_inline]] inline void store(T *__restrict d, const W (&result)[order]) {
    BENCH_UNROLL for (std::size_t i = 0; i < order; ++i) d[i] = T(result[i]);
}

} // namespace

// The matrix goes into a local copy: the compiler then knows that nothing changes it.
template <Sums sums, class T, class W, std::size_t order>
void multiplyVectors(const T *__restrict matrix, const T *__restrict v, T *__restrict d, std::size_t count) {
    T held[order * order];
    for (std::size_t i = 0; i < order * order; ++i) held[i] = matrix[i];
    for (std::size_t n = 0; n < count; ++n) {
        W result[order];
        multiplyOneVector<sums>(held, v + n * order, result);
        store(d + n * order, result);
    }
}

template <Sums sums, class T, class W, std::size_t order>
void multiplyVectorArrays(const T *__restrict matrices, const T *__restrict v, T *__restrict d, std::size_t count) {
    for (std::size_t n = 0; n < count; ++n) {
        W result[order];
        multiplyOneVector<sums>(matrices + n * order * order, v + n * order, result);
        store(d + n * order, result);
    }
}

template <Sums sums, std::size_t order>
void multiplyVectorsAdd(const float *__restrict matrix, const float *__restrict v, const float *__restrict w,
                        float *__restrict d, std::size_t count) {
    float held[order * order];
    for (std::size_t i = 0; i < order * order; ++i) held[i] = matrix[i];
    for (std::size_t n = 0; n < count; ++n) {
        float result[order];
        multiplyOneVector<sums>(held, v + n * order, result);
        BENCH_UNROLL for (std::size_t i = 0; i < order; ++i) result[i] += w[n * order + i];
        store(d + n * order, result);
    }
}

#define BENCH_VECTOR_PRODUCTS(SUMS, T, W, ORDER)                                                                       \
    template void multiplyVectors<SUMS, T, W, ORDER>(const T *, const T *, T *, std::size_t);                          \
    template void multiplyVectorArrays<SUMS, T, W, ORDER>(const T *, const T *, T *, std::size_t);
#define BENCH_ALL_SUMS(ORDER)                                                                                          \
    BENCH_VECTOR_PRODUCTS(Sums::inOrder, float, float, ORDER)                                                          \
    BENCH_VECTOR_PRODUCTS(Sums::asLibrary, float, float, ORDER)                                                        \
    BENCH_VECTOR_PRODUCTS(Sums::byColumns, float, float, ORDER)
BENCH_ALL_SUMS(3)
BENCH_ALL_SUMS(4)
BENCH_ALL_SUMS(6)
BENCH_VECTOR_PRODUCTS(Sums::inOrder, double, double, 4)
BENCH_VECTOR_PRODUCTS(Sums::inOrder, double, long double, 4)

template void multiplyVectorsAdd<Sums::inOrder, 4>(const float *, const float *, const float *, float *, std::size_t);
template void multiplyVectorsAdd<Sums::asLibrary, 4>(const float *, const float *, const float *, float *, std::size_t);
template void multiplyVectorsAdd<Sums::byColumns, 4>(const float *, const float *, const float *, float *, std::size_t);

} // namespace bench::plain
