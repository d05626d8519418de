// cglm's determinants and inverses. Its parameters are not const, though it writes none but the last.
#include "peers/inverses.h"

#include <cglm/cglm.h>

namespace bench::cglm {
namespace {

float determinant(mat3 &a) { return glm_mat3_det(a); }
float determinant(mat4 &a) { return glm_mat4_det(a); }
void invert(mat3 &a, mat3 &x) { glm_mat3_inv(a, x); }
void invert(mat4 &a, mat4 &x) { glm_mat4_inv(a, x); }

// cglm's type of order 4 is aligned, as are these arrays.
template <std::size_t order> struct Types;
template <> struct Types<3> { using Matrix = mat3; };
template <> struct Types<4> { using Matrix = mat4; };
template <std::size_t order> typename Types<order>::Matrix &matrix(const float *p) {
    return *reinterpret_cast<typename Types<order>::Matrix *>(const_cast<float *>(p));
}

template <std::size_t order, class Objects> void determinantsOf(Objects a, float *d, std::size_t count) {
    for (std::size_t n = 0; n < count; ++n) d[n] = determinant(matrix<order>(a[n]));
}

template <std::size_t order, class Objects, class Results> void inversesOf(Objects a, Results x, std::size_t count) {
    for (std::size_t n = 0; n < count; ++n) invert(matrix<order>(a[n]), matrix<order>(x[n]));
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

} // namespace bench::cglm
