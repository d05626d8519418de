// Pairs of functions, c_NAME with the direct call of an export and cpp_NAME with the C++ call: same_code_test.sh
// compares their instructions.
#include <vonkk3.hpp>

#include <array>

using Four = float[4][4];
using Three = double[3][3];

struct Body {
    int id;
    float inertia[3][3];
    float spin[3];
    float momentum[3];
};

#define PAIR(name, parameters, direct, ...)                                                                            \
    extern "C" VonkStatus c_##name parameters { return direct; }                                                       \
    extern "C" VonkStatus cpp_##name parameters { return (__VA_ARGS__).value(); }

// Sums: arrays of run-time count, packed and with strides, transposed
PAIR(add, (const float *a, const float *b, float *d, std::uint32_t n),
     vonkAdd_mamaT_32f_4x4(a, 64, 16, b, 64, 16, d, 64, 16, n),
     vonk::add(vonk::matrices<4, 4>(a, n), vonk::transposed(vonk::matrices<4, 4>(b, n)), vonk::matrices<4, 4>(d, n)))
PAIR(subtract, (const double *a, double *d, std::int32_t row, std::int32_t object, std::uint32_t n),
     vonkSub_mama_64f_3x3(a, object, row, a, 72, 24, d, 72, 24, n),
     vonk::subtract(vonk::matrices<3, 3>(a, n).row_stride(row).object_stride(object), vonk::matrices<3, 3>(a, n),
                    vonk::matrices<3, 3>(d, n)))
PAIR(scale, (const float *const *p, float *const *q, float x, std::uint32_t n), vonkMul_vac_32f_3x1_P(p, 0, x, q, 0, n),
     vonk::scale(vonk::soa_vectors<3>(p, n), x, vonk::soa_vectors<3>(q, n)))
PAIR(saxpy, (const float *x, const float *y, float *d, std::uint32_t length), vonkSaxpy_vv_32f(x, 2.5F, y, d, length),
     vonk::saxpy(vonk::vector(x, length), 2.5F, vonk::vector(y, length), vonk::vector(d, length)))
PAIR(combine, (const double *x, const double *y, double *d, std::uint32_t n),
     vonkLComb_vava_64f_4x1(x, 32, 2, y, 32, 3, d, 32, n),
     vonk::combine(vonk::vectors<4>(x, n), 2, vonk::vectors<4>(y, n), 3, vonk::vectors<4>(d, n)))
PAIR(dot, (const float *x, const float *y, float *d, std::uint32_t n), vonkDotProduct_vava_32f_3x1(x, 12, y, 12, d, n),
     vonk::dot(vonk::vectors<3>(x, n), vonk::vectors<3>(y, n), d))
PAIR(norm, (const double *x, double *d, std::uint32_t n), vonkL2Norm_va_64f_3x1(x, 24, d, n),
     vonk::norm(vonk::vectors<3>(x, n), d))
PAIR(cross, (const std::array<float, 3> &a, const std::array<float, 3> &b, std::array<float, 3> &d),
     vonkCrossProduct_vv_32f_3x1(a.data(), b.data(), d.data()), vonk::cross(a, b, d))

// Matrices
PAIR(transpose, (const Four (&a)[9], Four (&d)[9]), vonkTranspose_ma_32f_4x4(a[0][0], 64, 16, d[0][0], 64, 16, 9),
     vonk::transpose(vonk::matrices(a), vonk::matrices(d)))
PAIR(trace, (const double *const *list, double *d, std::uint32_t n), vonkTrace_ma_64f_3x3_L(list, 0, 24, d, n),
     vonk::trace(vonk::matrices<3, 3>(list, n), d))
PAIR(frobenius, (const Three &a, double &d), vonkFrobNorm_m_64f_3x3(a[0], 24, &d), vonk::frobenius(vonk::matrix(a), d))

// Products: members of structs, run-time sizes, by columns
PAIR(multiply, (Body * b, std::uint32_t n),
     vonkMul_mava_32f_3x3(b->inertia[0], sizeof *b, 12, b->spin, sizeof *b, b->momentum, sizeof *b, n),
     vonk::multiply(vonk::members(b, n, &Body::inertia), vonk::members(b, n, &Body::spin),
                    vonk::members(b, n, &Body::momentum)))
PAIR(product, (const double *a, const double *b, double *d, std::uint32_t n),
     vonkMul_mama_64f_4x4_S2(a, 128, 8, 32, b, 128, 8, 32, d, 128, 8, 32, n),
     vonk::multiply(vonk::matrices<4, 4>(a, n).column_major(), vonk::matrices<4, 4>(b, n).column_major(),
                    vonk::matrices<4, 4>(d, n).column_major()))
PAIR(gaxpy, (const Four &a, const float *x, const float *y, float *d, std::uint32_t n),
     vonkGaxpy_va_32f_4x4(a[0], 16, x, 16, y, 16, d, 16, n),
     vonk::gaxpy(vonk::matrix(a), vonk::vectors<4>(x, n), vonk::vectors<4>(y, n), vonk::vectors<4>(d, n)))

// Moving data
PAIR(copy, (const float *a, float *const *d, std::uint32_t n), vonkCopy_ma_32f_SP(a, 64, 16, 4, d, 0, 4, 4, 4, n),
     vonk::copy(vonk::matrices<4, 4>(a, n), vonk::soa_matrices<4, 4>(d, n)))
PAIR(extract, (const Three &a, double *d), vonkExtract_m_64f_S2(a[0], 24, 8, d, 3, 3),
     vonk::extract(vonk::matrix(a), d))
PAIR(identity, (Three & d), vonkLoadIdentity_ma_64f_S(d[0], 0, 24, 8, 3, 3, 1), vonk::exact::identity(vonk::matrix(d)))

// Decompositions
PAIR(lu, (const Three &a, std::uint32_t *p, Three &d), vonkLUDecomp_m_64f_3x3(a[0], 24, p, d[0], 24),
     vonk::lu(vonk::matrix(a), p, vonk::matrix(d)))
PAIR(lu_solve, (const double *f, const std::uint32_t *p, const double *b, double *x, std::uint32_t n),
     vonkLUBackSubst_mva_64f_3x3(f, 0, 24, p, b, 24, x, 24, n),
     vonk::lu_solve(vonk::matrix<3, 3>(f), p, vonk::vectors<3>(b, n), vonk::vectors<3>(x, n)))
PAIR(determinant, (const float *a, float *d, std::uint32_t n), vonkDet_ma_32f_4x4(a, 64, 16, d, n),
     vonk::determinant(vonk::matrices<4, 4>(a, n), d))
PAIR(inverse, (const float *a, float *d, std::uint32_t n), vonkInvert_ma_32f_4x4(a, 64, 16, d, 64, 16, n),
     vonk::inverse(vonk::matrices<4, 4>(a, n), vonk::matrices<4, 4>(d, n)))
PAIR(cholesky, (const Three (&a)[7], Three (&d)[7]), vonkCholeskyDecomp_ma_64f_3x3(a[0][0], 72, 24, d[0][0], 72, 24, 7),
     vonk::cholesky(vonk::matrices(a), vonk::matrices(d)))
PAIR(cholesky_solve, (const float *f, const float *b, float *x), vonkCholeskyBackSubst_mv_32f_4x4(f, 16, b, x),
     vonk::cholesky_solve(vonk::matrix<4, 4>(f), vonk::vector<4>(b), vonk::vector<4>(x)))
PAIR(qr, (const float *a, float *d, float *work, std::uint32_t rows, std::uint32_t columns),
     vonkQRDecomp_m_32f(a, std::int32_t(4 * columns), work, d, std::int32_t(4 * columns), columns, rows),
     vonk::qr(vonk::Matrix<const float>(a, 1, rows, columns, {0, std::int32_t(4 * columns), 4, 0}),
              vonk::Matrix<float>(d, 1, rows, columns, {0, std::int32_t(4 * columns), 4, 0}), work))
PAIR(qr_solve, (const double *f, const double *b, double *x, double *work, std::uint32_t n),
     vonkQRBackSubst_mava_64f_3x3(f, 72, 24, work, b, 24, x, 24, n),
     vonk::qr_solve(vonk::matrices<3, 3>(f, n), vonk::vectors<3>(b, n), vonk::vectors<3>(x, n), work))
