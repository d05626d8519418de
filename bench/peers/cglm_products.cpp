// cglm's products. Its parameters are not const, though it writes none but the last.
#include "peers/library_products.h"

#include <cglm/cglm.h>

#include <cstddef>

namespace bench::cglm {
namespace {

// cglm's types of order 4 are aligned, as are these arrays.
template <std::size_t order> struct Types;
template <> struct Types<3> {
    using Matrix = mat3;
    using Vector = vec3;
};
template <> struct Types<4> {
    using Matrix = mat4;
    using Vector = vec4;
};

template <std::size_t order> typename Types<order>::Matrix &matrix(const float *p, std::size_t n) {
    return reinterpret_cast<typename Types<order>::Matrix *>(const_cast<float *>(p))[n];
}
template <std::size_t order> typename Types<order>::Vector &vector(const float *p, std::size_t n) {
    return reinterpret_cast<typename Types<order>::Vector *>(const_cast<float *>(p))[n];
}

void multiply(mat3 &a, mat3 &b, mat3 &d) { glm_mat3_mul(a, b, d); }
void multiply(mat4 &a, mat4 &b, mat4 &d) { glm_mat4_mul(a, b, d); }
void multiply(mat3 &a, vec3 &v, vec3 &d) { glm_mat3_mulv(a, v, d); }
void multiply(mat4 &a, vec4 &v, vec4 &d) { glm_mat4_mulv(a, v, d); }

} // namespace

template <std::size_t order>
void Products<order>::multiplyByOne(const float *a, const float *b, float *d, std::size_t count) {
    for (std::size_t n = 0; n < count; ++n) multiply(matrix<order>(b, 0), matrix<order>(a, n), matrix<order>(d, n));
}

template <std::size_t order>
void Products<order>::multiplyArrays(const float *a, const float *b, float *d, std::size_t count) {
    for (std::size_t n = 0; n < count; ++n) multiply(matrix<order>(b, n), matrix<order>(a, n), matrix<order>(d, n));
}

template <std::size_t order>
void Products<order>::multiplyVectors(const float *columns, const float *v, float *d, std::size_t count) {
    for (std::size_t n = 0; n < count; ++n)
        multiply(matrix<order>(columns, 0), vector<order>(v, n), vector<order>(d, n));
}

template <std::size_t order>
void Products<order>::multiplyVectorArrays(const float *columns, const float *v, float *d, std::size_t count) {
    for (std::size_t n = 0; n < count; ++n)
        multiply(matrix<order>(columns, n), vector<order>(v, n), vector<order>(d, n));
}

template <std::size_t order>
void Products<order>::multiplyVectorsAdd(const float *columns, const float *v, const float *w, float *d,
                                         std::size_t count) {
    for (std::size_t n = 0; n < count; ++n) {
        multiply(matrix<order>(columns, 0), vector<order>(v, n), vector<order>(d, n));
        if constexpr (order == 3) glm_vec3_add(vector<order>(d, n), vector<order>(w, n), vector<order>(d, n));
        else glm_vec4_add(vector<order>(d, n), vector<order>(w, n), vector<order>(d, n));
    }
}

template struct Products<3>;
template struct Products<4>;

} // namespace bench::cglm
