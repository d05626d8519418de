// Products as plain loops: packed arrays, rows adjacent, sizes fixed in the code, no operand over another. T is what
// memory holds, W what sums are worked in.
#pragma once

#include "peers/unroll.h"

#include <cstddef>

namespace bench::plain {

// Two ways to write the loops of a matrix product. Every element is the same sum in the same order; what differs is
// what the compiler makes of it.
enum class Loops {
    cellByCell, // the innermost loop runs over the terms of one element
    rowByRow,   // the innermost loop runs over the elements of one row
    cellsRolled // cell by cell in a loop: unrolled, elements that were widened to 80 bits would be kept in memory
};

// One matrix product. In line, for those who have one object and no call to make.
template <Loops loops, class T, class W, std::size_t order>
[[gnu::always_inline]] inline void multiplyOne(const T *__restrict a, const T *__restrict b, T *__restrict d) {
    const auto cell = [=](std::size_t i, std::size_t j) __attribute__((always_inline)) {
        W sum = W(a[i * order]) * W(b[j]);
        BENCH_UNROLL for (std::size_t k = 1; k < order; ++k) sum += W(a[i * order + k]) * W(b[k * order + j]);
        d[i * order + j] = T(sum);
    };
    if constexpr (loops == Loops::cellsRolled) {
        BENCH_ROLLED for (std::size_t i = 0; i < order; ++i) BENCH_ROLLED for (std::size_t j = 0; j < order; ++j)
            cell(i, j);
    } else if constexpr (loops == Loops::cellByCell) {
        BENCH_UNROLL for (std::size_t i = 0; i < order; ++i) BENCH_UNROLL for (std::size_t j = 0; j < order; ++j)
            cell(i, j);
    } else {
        BENCH_UNROLL for (std::size_t i = 0; i < order; ++i) {
            W row[order];
            BENCH_UNROLL for (std::size_t j = 0; j < order; ++j) row[j] = W(a[i * order]) * W(b[j]);
            BENCH_UNROLL for (std::size_t k = 1; k < order; ++k) BENCH_UNROLL for (std::size_t j = 0; j < order; ++j)
                row[j] += W(a[i * order + k]) * W(b[k * order + j]);
            BENCH_UNROLL for (std::size_t j = 0; j < order; ++j) d[i * order + j] = T(row[j]);
        }
    }
}

template <Loops loops, class T, class W, std::size_t order>
void multiplyByOne(const T *a, const T *b, T *d, std::size_t count); // d(n) = a(n) b
template <Loops loops, class T, class W, std::size_t order>
void multiplyArrays(const T *a, const T *b, T *d, std::size_t count); // d(n) = a(n) b(n)

// Objects that lie anywhere, each told by a pointer.
template <Loops loops, std::size_t order>
void multiplyListed(const float *const *a, const float *const *b, float *const *d, std::size_t count);

// Structures of arrays, 3x3: element (i, j) of object n is a[3 i + j][n]; the second operand is one matrix.
void multiplyTablesByOne(const float *const *a, const float *const *b, float *const *d, std::size_t count);

// Size and byte strides among the arguments, as a general routine has them.
void multiplyArrays(const float *a, std::ptrdiff_t aStride, std::ptrdiff_t aRowStride, const float *b,
                    std::ptrdiff_t bStride, std::ptrdiff_t bRowStride, float *d, std::ptrdiff_t dStride,
                    std::ptrdiff_t dRowStride, std::size_t order, std::size_t count);

// How the sums of a matrix by vector are written.
enum class Sums {
    inOrder,   // term by term
    asLibrary, // in the library's order of additions, which gives the same bits
    byColumns  // term by term, all elements of the result together
};

template <Sums sums, class T, class W, std::size_t order>
void multiplyVectors(const T *matrix, const T *v, T *d, std::size_t count); // d(n) = matrix v(n)
template <Sums sums, class T, class W, std::size_t order>
void multiplyVectorArrays(const T *matrices, const T *v, T *d, std::size_t count); // d(n) = matrix(n) v(n)
template <Sums sums, std::size_t order>
void multiplyVectorsAdd(const float *matrix, const float *v, const float *w, float *d,
                        std::size_t count); // d(n) = matrix v(n) + w(n)

} // namespace bench::plain
