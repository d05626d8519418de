// GLM's products. Its four-lane instructions work on aligned types only, and those of order 3 have padded columns:
// order 4 is aligned, order 3 packed as it is by default.
#define GLM_FORCE_INTRINSICS
#define GLM_FORCE_ALIGNED_GENTYPES
#include "peers/library_products.h"

#include <glm/mat3x3.hpp>
#include <glm/mat4x4.hpp>

#include <glm/gtc/type_aligned.hpp> // behind the others, which configure it

#if GLM_CONFIG_SIMD != GLM_ENABLE
#error "GLM works without its intrinsics"
#endif

namespace bench::glm {
namespace {

template <std::size_t order> struct Types;
template <> struct Types<3> {
    using Matrix = ::glm::mat3;
    using Vector = ::glm::vec3;
};
template <> struct Types<4> {
    using Matrix = ::glm::aligned_mat4;
    using Vector = ::glm::aligned_vec4;
};
static_assert(sizeof(Types<3>::Matrix) == 36 && sizeof(Types<4>::Matrix) == 64);

template <std::size_t order> auto *matrices(const float *p) {
    return reinterpret_cast<const typename Types<order>::Matrix *>(p);
}
template <std::size_t order> auto *matrices(float *p) { return reinterpret_cast<typename Types<order>::Matrix *>(p); }
template <std::size_t order> auto *vectors(const float *p) {
    return reinterpret_cast<const typename Types<order>::Vector *>(p);
}
template <std::size_t order> auto *vectors(float *p) { return reinterpret_cast<typename Types<order>::Vector *>(p); }

} // namespace

template <std::size_t order>
void Products<order>::multiplyByOne(const float *a, const float *b, float *d, std::size_t count) {
    const auto held = *matrices<order>(b);
    for (std::size_t n = 0; n < count; ++n) matrices<order>(d)[n] = held * matrices<order>(a)[n];
}

template <std::size_t order>
void Products<order>::multiplyArrays(const float *a, const float *b, float *d, std::size_t count) {
    for (std::size_t n = 0; n < count; ++n) matrices<order>(d)[n] = matrices<order>(b)[n] * matrices<order>(a)[n];
}

template <std::size_t order>
void Products<order>::multiplyVectors(const float *columns, const float *v, float *d, std::size_t count) {
    const auto held = *matrices<order>(columns);
    for (std::size_t n = 0; n < count; ++n) vectors<order>(d)[n] = held * vectors<order>(v)[n];
}

template <std::size_t order>
void Products<order>::multiplyVectorArrays(const float *columns, const float *v, float *d, std::size_t count) {
    for (std::size_t n = 0; n < count; ++n) vectors<order>(d)[n] = matrices<order>(columns)[n] * vectors<order>(v)[n];
}

template <std::size_t order>
void Products<order>::multiplyVectorsAdd(const float *columns, const float *v, const float *w, float *d,
                                         std::size_t count) {
    const auto held = *matrices<order>(columns);
    for (std::size_t n = 0; n < count; ++n) vectors<order>(d)[n] = held * vectors<order>(v)[n] + vectors<order>(w)[n];
}

template struct Products<3>;
template struct Products<4>;

} // namespace bench::glm
