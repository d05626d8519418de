// GLM's determinants and inverses. As for products, order 4 is aligned and worked in four-lane instructions.
#define GLM_FORCE_INTRINSICS
#define GLM_FORCE_ALIGNED_GENTYPES
#include "peers/inverses.h"

#include <glm/mat3x3.hpp>
#include <glm/mat4x4.hpp>
#include <glm/matrix.hpp>

#include <glm/gtc/type_aligned.hpp> // behind the others, which configure it

#if GLM_CONFIG_SIMD != GLM_ENABLE
#error "GLM works without its intrinsics"
#endif

#include <type_traits>

namespace bench::glm {
namespace {

template <std::size_t order> using Matrix = std::conditional_t<order == 3, ::glm::mat3, ::glm::aligned_mat4>;
static_assert(sizeof(Matrix<3>) == 36 && sizeof(Matrix<4>) == 64);

template <std::size_t order, class Objects> void determinantsOf(Objects a, float *d, std::size_t count) {
    for (std::size_t n = 0; n < count; ++n) d[n] = ::glm::determinant(*reinterpret_cast<const Matrix<order> *>(a[n]));
}

template <std::size_t order, class Objects, class Results> void inversesOf(Objects a, Results x, std::size_t count) {
    for (std::size_t n = 0; n < count; ++n)
        *reinterpret_cast<Matrix<order> *>(x[n]) = ::glm::inverse(*reinterpret_cast<const Matrix<order> *>(a[n]));
}

} // namespace

template <std::size_t order>
void Inverses<order>::determinants(Packed<const float, order> a, float *d, std::size_t count) {
    determinantsOf<order>(a, d, count);
}
template <std::size_t order> void Inverses<order>::determinants(Listed<const float> a, float *d, std::size_t count) {
    determinantsOf<order>(a, d, count);
}
template <std::size_t order>
void Inverses<order>::inverses(Packed<const float, order> a, Packed<float, order> x, std::size_t count) {
    inversesOf<order>(a, x, count);
}
template <std::size_t order> void Inverses<order>::inverses(Listed<const float> a, Listed<float> x, std::size_t count) {
    inversesOf<order>(a, x, count);
}

template struct Inverses<3>;
template struct Inverses<4>;

} // namespace bench::glm
