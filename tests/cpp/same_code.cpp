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

extern "C" {

// Sums: arrays of run-time count, packed and with strides, transposed
VonkStatus c_add(const float *a, const float *b, float *d, std::uint32_t n) {
    return vonkAdd_mamaT_32f_4x4(a, 64, 16, b, 64, 16, d, 64, 16, n);
}
VonkStatus cpp_add(const float *a, const float *b, float *d, std::uint32_t n) {
    return vonk::add(vonk::matrices<4, 4>(a, n), vonk::transposed(vonk::matrices<4, 4>(b, n)),
                     vonk::matrices<4, 4>(d, n))
        .value();
}
VonkStatus c_subtract(const double *a, double *d, std::int32_t row, std::int32_t object, std::uint32_t n) {
    return vonkSub_mama_64f_3x3(a, object, row, a, 72, 24, d, 72, 24, n);
}
VonkStatus cpp_subtract(const double *a, double *d, std::int32_t row, std::int32_t object, std::uint32_t n) {
    const auto packed = vonk::matrices<3, 3>(a, n);
    return vonk::subtract(packed.row_stride(row).object_stride(object), packed, vonk::matrices<3, 3>(d, n)).value();
}
VonkStatus c_scale(const float *const *p, float *const *q, float x, std::uint32_t n) {
    return vonkMul_vac_32f_3x1_P(p, 0, x, q, 0, n);
}
VonkStatus cpp_scale(const float *const *p, float *const *q, float x, std::uint32_t n) {
    return vonk::scale(vonk::soa_vectors<3>(p, n), x, vonk::soa_vectors<3>(q, n)).value();
}
VonkStatus c_saxpy(const float *x, const float *y, float *d, std::uint32_t length) {
    return vonkSaxpy_vv_32f(x, 2.5F, y, d, length);
}
VonkStatus cpp_saxpy(const float *x, const float *y, float *d, std::uint32_t length) {
    return vonk::saxpy(vonk::vector(x, length), 2.5F, vonk::vector(y, length), vonk::vector(d, length)).value();
}
VonkStatus c_combine(const double *x, const double *y, double *d, std::uint32_t n) {
    return vonkLComb_vava_64f_4x1(x, 32, 2, y, 32, 3, d, 32, n);
}
VonkStatus cpp_combine(const double *x, const double *y, double *d, std::uint32_t n) {
    return vonk::combine(vonk::vectors<4>(x, n), 2, vonk::vectors<4>(y, n), 3, vonk::vectors<4>(d, n)).value();
}
VonkStatus c_dot(const float *x, const float *y, float *d, std::uint32_t n) {
    return vonkDotProduct_vava_32f_3x1(x, 12, y, 12, d, n);
}
VonkStatus cpp_dot(const float *x, const float *y, float *d, std::uint32_t n) {
    return vonk::dot(vonk::vectors<3>(x, n), vonk::vectors<3>(y, n), d).value();
}
VonkStatus c_norm(const double *x, double *d, std::uint32_t n) { return vonkL2Norm_va_64f_3x1(x, 24, d, n); }
VonkStatus cpp_norm(const double *x, double *d, std::uint32_t n) {
    return vonk::norm(vonk::vectors<3>(x, n), d).value();
}
VonkStatus c_cross(const std::array<float, 3> &a, const std::array<float, 3> &b, std::array<float, 3> &d) {
    return vonkCrossProduct_vv_32f_3x1(a.data(), b.data(), d.data());
}
VonkStatus cpp_cross(const std::array<float, 3> &a, const std::array<float, 3> &b, std::array<float, 3> &d) {
    return vonk::cross(a, b, d).value();
}

// Matrices
VonkStatus c_transpose(const Four (&a)[9], Four (&d)[9]) {
    return vonkTranspose_ma_32f_4x4(a[0][0], 64, 16, d[0][0], 64, 16, 9);
}
VonkStatus cpp_transpose(const Four (&a)[9], Four (&d)[9]) {
    return vonk::transpose(vonk::matrices(a), vonk::matrices(d)).value();
}
VonkStatus c_trace(const double *const *list, double *d, std::uint32_t n) {
    return vonkTrace_ma_64f_3x3_L(list, 0, 24, d, n);
}
VonkStatus cpp_trace(const double *const *list, double *d, std::uint32_t n) {
    return vonk::trace(vonk::matrices<3, 3>(list, n), d).value();
}
VonkStatus c_frobenius(const Three &a, double &d) { return vonkFrobNorm_m_64f_3x3(a[0], 24, &d); }
VonkStatus cpp_frobenius(const Three &a, double &d) { return vonk::frobenius(vonk::matrix(a), d).value(); }

// Products: members of structs, run-time sizes, by columns
VonkStatus c_multiply(Body *b, std::uint32_t n) {
    return vonkMul_mava_32f_3x3(b->inertia[0], sizeof *b, 12, b->spin, sizeof *b, b->momentum, sizeof *b, n);
}
VonkStatus cpp_multiply(Body *b, std::uint32_t n) {
    return vonk::multiply(vonk::members(b, n, &Body::inertia), vonk::members(b, n, &Body::spin),
                          vonk::members(b, n, &Body::momentum))
        .value();
}
VonkStatus c_product(const double *a, const double *b, double *d, std::uint32_t n) {
    return vonkMul_mama_64f_4x4_S2(a, 128, 8, 32, b, 128, 8, 32, d, 128, 8, 32, n);
}
VonkStatus cpp_product(const double *a, const double *b, double *d, std::uint32_t n) {
    return vonk::multiply(vonk::matrices<4, 4>(a, n).column_major(), vonk::matrices<4, 4>(b, n).column_major(),
                          vonk::matrices<4, 4>(d, n).column_major())
        .value();
}
VonkStatus c_gaxpy(const Four &a, const float *x, const float *y, float *d, std::uint32_t n) {
    return vonkGaxpy_va_32f_4x4(a[0], 16, x, 16, y, 16, d, 16, n);
}
VonkStatus cpp_gaxpy(const Four &a, const float *x, const float *y, float *d, std::uint32_t n) {
    return vonk::gaxpy(vonk::matrix(a), vonk::vectors<4>(x, n), vonk::vectors<4>(y, n), vonk::vectors<4>(d, n)).value();
}

// Moving data
VonkStatus c_copy(const float *a, float *const *d, std::uint32_t n) {
    return vonkCopy_ma_32f_SP(a, 64, 16, 4, d, 0, 4, 4, 4, n);
}
VonkStatus cpp_copy(const float *a, float *const *d, std::uint32_t n) {
    return vonk::copy(vonk::matrices<4, 4>(a, n), vonk::soa_matrices<4, 4>(d, n)).value();
}
VonkStatus c_extract(const Three &a, double *d) { return vonkExtract_m_64f_S2(a[0], 24, 8, d, 3, 3); }
VonkStatus cpp_extract(const Three &a, double *d) { return vonk::extract(vonk::matrix(a), d).value(); }
VonkStatus c_identity(Three &d) { return vonkLoadIdentity_ma_64f_S(d[0], 0, 24, 8, 3, 3, 1); }
VonkStatus cpp_identity(Three &d) { return vonk::exact::identity(vonk::matrix(d)).value(); }

// Decompositions
VonkStatus c_lu(const Three &a, std::uint32_t *p, Three &d) { return vonkLUDecomp_m_64f_3x3(a[0], 24, p, d[0], 24); }
VonkStatus cpp_lu(const Three &a, std::uint32_t *p, Three &d) {
    return vonk::lu(vonk::matrix(a), p, vonk::matrix(d)).value();
}
VonkStatus c_lu_solve(const double *f, const std::uint32_t *p, const double *b, double *x, std::uint32_t n) {
    return vonkLUBackSubst_mva_64f_3x3(f, 0, 24, p, b, 24, x, 24, n);
}
VonkStatus cpp_lu_solve(const double *f, const std::uint32_t *p, const double *b, double *x, std::uint32_t n) {
    return vonk::lu_solve(vonk::matrix<3, 3>(f), p, vonk::vectors<3>(b, n), vonk::vectors<3>(x, n)).value();
}
VonkStatus c_determinant(const float *a, float *d, std::uint32_t n) { return vonkDet_ma_32f_4x4(a, 64, 16, d, n); }
VonkStatus cpp_determinant(const float *a, float *d, std::uint32_t n) {
    return vonk::determinant(vonk::matrices<4, 4>(a, n), d).value();
}
VonkStatus c_inverse(const float *a, float *d, std::uint32_t n) {
    return vonkInvert_ma_32f_4x4(a, 64, 16, d, 64, 16, n);
}
VonkStatus cpp_inverse(const float *a, float *d, std::uint32_t n) {
    return vonk::inverse(vonk::matrices<4, 4>(a, n), vonk::matrices<4, 4>(d, n)).value();
}
VonkStatus c_cholesky(const Three (&a)[7], Three (&d)[7]) {
    return vonkCholeskyDecomp_ma_64f_3x3(a[0][0], 72, 24, d[0][0], 72, 24, 7);
}
VonkStatus cpp_cholesky(const Three (&a)[7], Three (&d)[7]) {
    return vonk::cholesky(vonk::matrices(a), vonk::matrices(d)).value();
}
VonkStatus c_cholesky_solve(const float *f, const float *b, float *x) {
    return vonkCholeskyBackSubst_mv_32f_4x4(f, 16, b, x);
}
VonkStatus cpp_cholesky_solve(const float *f, const float *b, float *x) {
    return vonk::cholesky_solve(vonk::matrix<4, 4>(f), vonk::vector<4>(b), vonk::vector<4>(x)).value();
}
VonkStatus c_qr(const float *a, float *d, float *work, std::uint32_t rows, std::uint32_t columns) {
    return vonkQRDecomp_m_32f(a, std::int32_t(4 * columns), work, d, std::int32_t(4 * columns), columns, rows);
}
VonkStatus cpp_qr(const float *a, float *d, float *work, std::uint32_t rows, std::uint32_t columns) {
    const auto bytes = std::int32_t(4 * columns);
    return vonk::qr(vonk::Matrix<const float>(a, 1, rows, columns, {0, bytes, 4, 0}),
                    vonk::Matrix<float>(d, 1, rows, columns, {0, bytes, 4, 0}), work)
        .value();
}
VonkStatus c_qr_solve(const double *f, const double *b, double *x, double *work, std::uint32_t n) {
    return vonkQRBackSubst_mava_64f_3x3(f, 72, 24, work, b, 24, x, 24, n);
}
VonkStatus cpp_qr_solve(const double *f, const double *b, double *x, double *work, std::uint32_t n) {
    return vonk::qr_solve(vonk::matrices<3, 3>(f, n), vonk::vectors<3>(b, n), vonk::vectors<3>(x, n), work).value();
}

} // extern "C"
