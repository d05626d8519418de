// cglm's matrices element by element. It scales in place, so a matrix is copied first; its types of order 4 are
// aligned, as are these arrays.
#include "peers/matrix_walk.h"

#include <cglm/cglm.h>

namespace bench::cglm {
namespace {

template <std::size_t order> struct Types;
template <> struct Types<3> { using Matrix = mat3; };
template <> struct Types<4> { using Matrix = mat4; };

template <Job job, std::size_t order> inline void workOne(const float *a, const float *b, float *d) {
    using Matrix = typename Types<order>::Matrix;
    auto &first = *reinterpret_cast<Matrix *>(const_cast<float *>(a));
    auto &result = *reinterpret_cast<Matrix *>(d);
    if constexpr (job == Job::scale && order == 3) glm_mat3_copy(first, result), glm_mat3_scale(result, b[0]);
    else if constexpr (job == Job::scale) glm_mat4_copy(first, result), glm_mat4_scale(result, b[0]);
    else if constexpr (job == Job::transpose && order == 3) glm_mat3_transpose_to(first, result);
    else if constexpr (job == Job::transpose) glm_mat4_transpose_to(first, result);
    else if constexpr (order == 3) *d = glm_mat3_trace(first);
    else *d = glm_mat4_trace(first);
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

#define BENCH_MATRICES(ORDER)                                                                                          \
    template struct Matrices<Job::scale, ORDER>;                                                                       \
    template struct Matrices<Job::transpose, ORDER>;                                                                   \
    template struct Matrices<Job::trace, ORDER>;
BENCH_MATRICES(3)
BENCH_MATRICES(4)

} // namespace bench::cglm
