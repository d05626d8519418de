// Plain matrix products.
#include "peers/plain_products.h"

#include <type_traits>

namespace bench::plain {

template <Loops loops, class T, class W, std::size_t order>
void multiplyByOne(const T *__restrict a, const T *__restrict b, T *__restrict d, std::size_t count) {
    constexpr std::size_t elements = order * order;
    for (std::size_t n = 0; n < count; ++n) multiplyOne<loops, T, W, order>(a + n * elements, b, d + n * elements);
}

template <Loops loops, class T, class W, std::size_t order>
void multiplyArrays(const T *__restrict a, const T *__restrict b, T *__restrict d, std::size_t count) {
    constexpr std::size_t elements = order * order;
    for (std::size_t n = 0; n < count; ++n)
        multiplyOne<loops, T, W, order>(a + n * elements, b + n * elements, d + n * elements);
}

template <Loops loops, std::size_t order>
void multiplyListed(const float *const *a, const float *const *b, float *const *d, std::size_t count) {
    for (std::size_t n = 0; n < count; ++n) multiplyOne<loops, float, float, order>(a[n], b[n], d[n]);
}

#define BENCH_PRODUCTS(LOOPS, T, W, ORDER)                                                                             \
    template void multiplyByOne<LOOPS, T, W, ORDER>(const T *, const T *, T *, std::size_t);                           \
    template void multiplyArrays<LOOPS, T, W, ORDER>(const T *, const T *, T *, std::size_t);
#define BENCH_BOTH_LOOPS(T, W, ORDER)                                                                                  \
    BENCH_PRODUCTS(Loops::cellByCell, T, W, ORDER)                                                                     \
    BENCH_PRODUCTS(Loops::rowByRow, T, W, ORDER)
BENCH_BOTH_LOOPS(float, float, 3)
BENCH_BOTH_LOOPS(float, float, 4)
BENCH_BOTH_LOOPS(float, float, 5)
BENCH_BOTH_LOOPS(float, float, 6)
BENCH_BOTH_LOOPS(double, double, 4)
BENCH_PRODUCTS(Loops::cellsRolled, double, long double, 4)

using Pointers = const float *const *;
template void multiplyListed<Loops::cellByCell, 4>(Pointers, Pointers, float *const *, std::size_t);
template void multiplyListed<Loops::rowByRow, 4>(Pointers, Pointers, float *const *, std::size_t);

namespace {

// One row of all objects.
void multiplyRowTables(const float *__restrict a0, const float *__restrict a1, const float *__restrict a2,
                       const float (&b)[9], float *__restrict d0, float *__restrict d1, float *__restrict d2,
                       std::size_t count) {
    for (std::size_t n = 0; n < count; ++n) {
        d0[n] = a0[n] * b[0] + a1[n] * b[3] + a2[n] * b[6];
        d1[n] = a0[n] * b[1] + a1[n] * b[4] + a2[n] * b[7];
        d2[n] = a0[n] * b[2] + a1[n] * b[5] + a2[n] * b[8];
    }
}

} // namespace

void multiplyTablesByOne(const float *const *a, const float *const *b, float *const *d, std::size_t count) {
    float held[9];
    for (std::size_t k = 0; k < 9; ++k) held[k] = *b[k];
    for (std::size_t i = 0; i < 9; i += 3)
        multiplyRowTables(a[i], a[i + 1], a[i + 2], held, d[i], d[i + 1], d[i + 2], count);
}

void multiplyArrays(const float *__restrict a, std::ptrdiff_t aStride, std::ptrdiff_t aRowStride,
                    const float *__restrict b, std::ptrdiff_t bStride, std::ptrdiff_t bRowStride, float *__restrict d,
                    std::ptrdiff_t dStride, std::ptrdiff_t dRowStride, std::size_t order, std::size_t count) {
    const auto row = [](auto *matrix, std::ptrdiff_t bytes) {
        using Byte = std::conditional_t<std::is_const_v<std::remove_pointer_t<decltype(matrix)>>, const char, char>;
        return reinterpret_cast<decltype(matrix)>(reinterpret_cast<Byte *>(matrix) + bytes);
    };
    for (std::size_t n = 0; n < count; ++n, a = row(a, aStride), b = row(b, bStride), d = row(d, dStride))
        for (std::size_t i = 0; i < order; ++i) {
            const float *aRow = row(a, std::ptrdiff_t(i) * aRowStride);
            float *dRow = row(d, std::ptrdiff_t(i) * dRowStride);
            for (std::size_t j = 0; j < order; ++j) {
                float sum = 0;
                for (std::size_t k = 0; k < order; ++k) sum += aRow[k] * row(b, std::ptrdiff_t(k) * bRowStride)[j];
                dRow[j] = sum;
            }
        }
}

} // namespace bench::plain
