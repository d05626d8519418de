// GLM's matrices element by element; order 4 aligned, order 3 packed as it is by default.
#define GLM_FORCE_INTRINSICS
#define GLM_FORCE_ALIGNED_GENTYPES
#include "peers/matrix_walk.h"

#include <glm/mat3x3.hpp>
#include <glm/mat4x4.hpp>
#include <glm/matrix.hpp>

#include <glm/gtc/type_aligned.hpp> // behind the others, which configure it

#include <type_traits>

namespace bench::glm {
namespace {

template <std::size_t order> using Matrix = std::conditional_t<order == 3, ::glm::mat3, ::glm::aligned_mat4>;
static_assert(sizeof(Matrix<3>) == 36 && sizeof(Matrix<4>) == 64);

template <Job job, std::size_t order> inline void workOne(const float *a, const float *b, float *d) {
    const auto &first = *reinterpret_cast<const Matrix<order> *>(a);
    auto &result = *reinterpret_cast<Matrix<order> *>(d);
    if constexpr (job == Job::scale) result = first * b[0];
    else if constexpr (job == Job::transpose) result = ::glm::transpose(first);
    else result = first + *reinterpret_cast<const Matrix<order> *>(b);
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
    template struct Matrices<Job::addArrays, ORDER>;                                                                   \
    template struct Matrices<Job::addOne, ORDER>;                                                                      \
    template struct Matrices<Job::scale, ORDER>;                                                                       \
    template struct Matrices<Job::transpose, ORDER>;
BENCH_MATRICES(3)
BENCH_MATRICES(4)

} // namespace bench::glm
