// Plain loops over matrices element by element. __restrict lets the compiler put them into lanes without asking about
// overlap at run time.
#include "peers/matrix_walk.h"
#include "peers/unroll.h"

#include <cmath>

namespace bench::plain {
namespace {

template <Job job, std::size_t order>
inline void workOne(const float *__restrict a, const float *__restrict b, float *__restrict d) {
    constexpr std::size_t size = order * order;
    if constexpr (job == Job::addArrays || job == Job::addOne)
        for (std::size_t k = 0; k < size; ++k) d[k] = a[k] + b[k];
    else if constexpr (job == Job::scale)
        for (std::size_t k = 0; k < size; ++k) d[k] = a[k] * b[0];
    else if constexpr (job == Job::transpose) {
        BENCH_UNROLL
        for (std::size_t i = 0; i < order; ++i) {
            BENCH_UNROLL
            for (std::size_t j = 0; j < order; ++j) d[j * order + i] = a[i * order + j];
        }
    } else if constexpr (job == Job::norm) {
        float columns[order] = {}; // side by side, as an impatient order of additions
        for (std::size_t i = 0; i < order; ++i)
            for (std::size_t j = 0; j < order; ++j) columns[j] += a[i * order + j] * a[i * order + j];
        float sum = 0;
        for (std::size_t j = 0; j < order; ++j) sum += columns[j];
        *d = std::sqrt(sum);
    } else {
        float sum = a[0];
        for (std::size_t i = 1; i < order; ++i) sum += a[i * (order + 1)];
        *d = sum;
    }
}

} // namespace

template <Job job, std::size_t order>
void Matrices<job, order>::packed(const float *a, const float *b, float *d, std::size_t count) {
    walkPacked<job, order>(a, b, d, count, workOne<job, order>);
}

template <Job job, std::size_t order>
void Matrices<job, order>::listed(const float *const *a, const float *const *b, float *const *d, std::size_t count) {
    walkListed<job>(a, b, d, count, workOne<job, order>);
}

template <Job job, std::size_t order>
void Matrices<job, order>::atOnce(const float *__restrict a, const float *__restrict b, float *__restrict d,
                                  std::size_t count) {
    const std::size_t size = count * order * order;
    const float factor = b[0];
    for (std::size_t k = 0; k < size; ++k) d[k] = job == Job::scale ? a[k] * factor : a[k] + b[k];
}

#define BENCH_MATRICES(ORDER)                                                                                          \
    template struct Matrices<Job::addArrays, ORDER>;                                                                   \
    template struct Matrices<Job::addOne, ORDER>;                                                                      \
    template struct Matrices<Job::scale, ORDER>;                                                                       \
    template struct Matrices<Job::transpose, ORDER>;                                                                   \
    template struct Matrices<Job::norm, ORDER>;                                                                        \
    template struct Matrices<Job::trace, ORDER>;
BENCH_MATRICES(3)
BENCH_MATRICES(4)
BENCH_MATRICES(6)

} // namespace bench::plain
