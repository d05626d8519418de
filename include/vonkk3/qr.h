/* vonkk3: QR decomposition; QR back substitution. See vonkk3.h for names, layouts and units.
 *
 * Generated from the catalogue of functions; do not edit.
 */
#ifndef VONKK3_QR_H
#define VONKK3_QR_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- QR decomposition -----------------------------------------------------------------------------------------------
 *
 * vonkQRDecomp factors each matrix of `src`, `rows` by `cols` with `rows` >= `cols`, into an orthogonal Q and an upper
 * triangular R by Householder reflections, column by column. `dst` gets R on and above the diagonal and below it, in
 * column k, reflector k: elements k + 1 and on of the vector v whose element k is 1. The reflection is I + beta v v'
 * with beta = -2 / (v'v), which vonkQRBackSubst recomputes. There is a reflection for each column, but none for the
 * last column of a square matrix. `work` is a workspace of `rows` contiguous elements in every layout, reused for every
 * object; its contents on entry do not matter, and on return it holds the last reflector.
 *
 * For column k: s = the sum of d(i, k)^2 over i >= k. If s is below the singularity tolerance 2^-23 =
 * 1.1920928955078125e-7 or a NaN, the call ends with vonkErrSingular: an absolute bound on the SQUARED norm, the same
 * for both types, so columns with elements of about 1e-4 fail; scale such data. Then alpha = d(k, k) + t, where t is
 * the root of s with the sign of d(k, k), minus for 0; v(i) = d(i, k) (1 / alpha); and for each column c >= k: p =
 * (d(k, c) + the sum of d(i, c) v(i)) beta, d(i, c) = v(i) p + d(i, c). All sums ascend. The diagonal of R has the sign
 * opposite to t. Method: Golub and Van Loan, Matrix Computations, "Householder QR".
 *
 * Rounding: `32f` rounds every operation; the root is taken in the 80-bit type and rounded. `64f` in the 80-bit type: s
 * and v'v are rounded after their pairs of terms and again after an odd last one; v, beta and the elements of `dst` are
 * rounded, but v'v is the sum over unrounded v; nothing else is rounded.
 *
 * Status: vonkErrNullPtr if `src`, `work` or `dst` is null; vonkErrSize if `cols` or `rows` is 0; vonkErrNullPtr if a
 * table entry is null, even at `count` 0 (`P`, `PS2`), or a list entry when the object's turn comes (`L`, `LS2`);
 * `count` 0 gives vonkOk. vonkErrSingular leaves the objects before the failing one complete, that one with the
 * reflections before the failing column, and those after it untouched. A matrix with more columns than rows always
 * fails so: after its last row there is nothing left.
 *
 * Overlap:
 * Overlap is not checked. `dst` may be `src` (in place), with the same strides or tables. `work` must overlap neither.
 *
 * Exceptions:
 * None.
 */

/** dst = QR factors of src; `rows` by `cols` float; standard layout. */
VonkStatus vonkQRDecomp_m_32f(const float *src, int32_t srcRowStride, float *work, float *dst, int32_t dstRowStride,
    uint32_t cols, uint32_t rows);
/** dst = QR factors of src; `rows` by `cols` float; S2, strided elements. */
VonkStatus vonkQRDecomp_m_32f_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float *work, float *dst,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows);
/** dst = QR factors of src; `rows` by `cols` float; P, one pointer per element position. */
VonkStatus vonkQRDecomp_m_32f_P(const float *const *src, int32_t srcShift, float *work, float *const *dst,
    int32_t dstShift, uint32_t cols, uint32_t rows);
/** dst = QR factors of src; 3x3 float; standard layout. */
VonkStatus vonkQRDecomp_m_32f_3x3(const float *src, int32_t srcRowStride, float *work, float *dst,
    int32_t dstRowStride);
/** dst = QR factors of src; 3x3 float; S2, strided elements. */
VonkStatus vonkQRDecomp_m_32f_3x3_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float *work,
    float *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = QR factors of src; 3x3 float; P, one pointer per element position. */
VonkStatus vonkQRDecomp_m_32f_3x3_P(const float *const *src, int32_t srcShift, float *work, float *const *dst,
    int32_t dstShift);
/** dst = QR factors of src; 4x4 float; standard layout. */
VonkStatus vonkQRDecomp_m_32f_4x4(const float *src, int32_t srcRowStride, float *work, float *dst,
    int32_t dstRowStride);
/** dst = QR factors of src; 4x4 float; S2, strided elements. */
VonkStatus vonkQRDecomp_m_32f_4x4_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float *work,
    float *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = QR factors of src; 4x4 float; P, one pointer per element position. */
VonkStatus vonkQRDecomp_m_32f_4x4_P(const float *const *src, int32_t srcShift, float *work, float *const *dst,
    int32_t dstShift);
/** dst = QR factors of src; 5x5 float; standard layout. */
VonkStatus vonkQRDecomp_m_32f_5x5(const float *src, int32_t srcRowStride, float *work, float *dst,
    int32_t dstRowStride);
/** dst = QR factors of src; 5x5 float; S2, strided elements. */
VonkStatus vonkQRDecomp_m_32f_5x5_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float *work,
    float *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = QR factors of src; 5x5 float; P, one pointer per element position. */
VonkStatus vonkQRDecomp_m_32f_5x5_P(const float *const *src, int32_t srcShift, float *work, float *const *dst,
    int32_t dstShift);
/** dst = QR factors of src; 6x6 float; standard layout. */
VonkStatus vonkQRDecomp_m_32f_6x6(const float *src, int32_t srcRowStride, float *work, float *dst,
    int32_t dstRowStride);
/** dst = QR factors of src; 6x6 float; S2, strided elements. */
VonkStatus vonkQRDecomp_m_32f_6x6_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float *work,
    float *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = QR factors of src; 6x6 float; P, one pointer per element position. */
VonkStatus vonkQRDecomp_m_32f_6x6_P(const float *const *src, int32_t srcShift, float *work, float *const *dst,
    int32_t dstShift);

/** dst = QR factors of src; `rows` by `cols` double; standard layout. */
VonkStatus vonkQRDecomp_m_64f(const double *src, int32_t srcRowStride, double *work, double *dst, int32_t dstRowStride,
    uint32_t cols, uint32_t rows);
/** dst = QR factors of src; `rows` by `cols` double; S2, strided elements. */
VonkStatus vonkQRDecomp_m_64f_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, double *work,
    double *dst, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows);
/** dst = QR factors of src; `rows` by `cols` double; P, one pointer per element position. */
VonkStatus vonkQRDecomp_m_64f_P(const double *const *src, int32_t srcShift, double *work, double *const *dst,
    int32_t dstShift, uint32_t cols, uint32_t rows);
/** dst = QR factors of src; 3x3 double; standard layout. */
VonkStatus vonkQRDecomp_m_64f_3x3(const double *src, int32_t srcRowStride, double *work, double *dst,
    int32_t dstRowStride);
/** dst = QR factors of src; 3x3 double; S2, strided elements. */
VonkStatus vonkQRDecomp_m_64f_3x3_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, double *work,
    double *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = QR factors of src; 3x3 double; P, one pointer per element position. */
VonkStatus vonkQRDecomp_m_64f_3x3_P(const double *const *src, int32_t srcShift, double *work, double *const *dst,
    int32_t dstShift);
/** dst = QR factors of src; 4x4 double; standard layout. */
VonkStatus vonkQRDecomp_m_64f_4x4(const double *src, int32_t srcRowStride, double *work, double *dst,
    int32_t dstRowStride);
/** dst = QR factors of src; 4x4 double; S2, strided elements. */
VonkStatus vonkQRDecomp_m_64f_4x4_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, double *work,
    double *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = QR factors of src; 4x4 double; P, one pointer per element position. */
VonkStatus vonkQRDecomp_m_64f_4x4_P(const double *const *src, int32_t srcShift, double *work, double *const *dst,
    int32_t dstShift);
/** dst = QR factors of src; 5x5 double; standard layout. */
VonkStatus vonkQRDecomp_m_64f_5x5(const double *src, int32_t srcRowStride, double *work, double *dst,
    int32_t dstRowStride);
/** dst = QR factors of src; 5x5 double; S2, strided elements. */
VonkStatus vonkQRDecomp_m_64f_5x5_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, double *work,
    double *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = QR factors of src; 5x5 double; P, one pointer per element position. */
VonkStatus vonkQRDecomp_m_64f_5x5_P(const double *const *src, int32_t srcShift, double *work, double *const *dst,
    int32_t dstShift);
/** dst = QR factors of src; 6x6 double; standard layout. */
VonkStatus vonkQRDecomp_m_64f_6x6(const double *src, int32_t srcRowStride, double *work, double *dst,
    int32_t dstRowStride);
/** dst = QR factors of src; 6x6 double; S2, strided elements. */
VonkStatus vonkQRDecomp_m_64f_6x6_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, double *work,
    double *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = QR factors of src; 6x6 double; P, one pointer per element position. */
VonkStatus vonkQRDecomp_m_64f_6x6_P(const double *const *src, int32_t srcShift, double *work, double *const *dst,
    int32_t dstShift);

/** dst(n) = QR factors of src(n); `rows` by `cols` float, n below count; standard layout. */
VonkStatus vonkQRDecomp_ma_32f(const float *src, int32_t srcObjStride, int32_t srcRowStride, float *work, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = QR factors of src(n); `rows` by `cols` float, n below count; S2, strided elements. */
VonkStatus vonkQRDecomp_ma_32f_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    float *work, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols,
    uint32_t rows, uint32_t count);
/** dst(n) = QR factors of src(n); `rows` by `cols` float, n below count; P, one pointer per element position. */
VonkStatus vonkQRDecomp_ma_32f_P(const float *const *src, int32_t srcShift, float *work, float *const *dst,
    int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = QR factors of src(n); `rows` by `cols` float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkQRDecomp_ma_32f_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float *work,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = QR factors of src(n); `rows` by `cols` float, n below count; L, one pointer per object. */
VonkStatus vonkQRDecomp_ma_32f_L(const float *const *src, int32_t srcShift, int32_t srcRowStride, float *work,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = QR factors of src(n); `rows` by `cols` float, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkQRDecomp_ma_32f_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, float *work, float *const *dst, int32_t dstShift, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = QR factors of src(n); 3x3 float, n below count; standard layout. */
VonkStatus vonkQRDecomp_ma_32f_3x3(const float *src, int32_t srcObjStride, int32_t srcRowStride, float *work,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = QR factors of src(n); 3x3 float, n below count; S2, strided elements. */
VonkStatus vonkQRDecomp_ma_32f_3x3_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
    int32_t srcElemStride, float *work, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = QR factors of src(n); 3x3 float, n below count; P, one pointer per element position. */
VonkStatus vonkQRDecomp_ma_32f_3x3_P(const float *const *src, int32_t srcShift, float *work, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = QR factors of src(n); 3x3 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkQRDecomp_ma_32f_3x3_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float *work,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = QR factors of src(n); 3x3 float, n below count; L, one pointer per object. */
VonkStatus vonkQRDecomp_ma_32f_3x3_L(const float *const *src, int32_t srcShift, int32_t srcRowStride, float *work,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = QR factors of src(n); 3x3 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkQRDecomp_ma_32f_3x3_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, float *work, float *const *dst, int32_t dstShift, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = QR factors of src(n); 4x4 float, n below count; standard layout. */
VonkStatus vonkQRDecomp_ma_32f_4x4(const float *src, int32_t srcObjStride, int32_t srcRowStride, float *work,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = QR factors of src(n); 4x4 float, n below count; S2, strided elements. */
VonkStatus vonkQRDecomp_ma_32f_4x4_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
    int32_t srcElemStride, float *work, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = QR factors of src(n); 4x4 float, n below count; P, one pointer per element position. */
VonkStatus vonkQRDecomp_ma_32f_4x4_P(const float *const *src, int32_t srcShift, float *work, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = QR factors of src(n); 4x4 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkQRDecomp_ma_32f_4x4_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float *work,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = QR factors of src(n); 4x4 float, n below count; L, one pointer per object. */
VonkStatus vonkQRDecomp_ma_32f_4x4_L(const float *const *src, int32_t srcShift, int32_t srcRowStride, float *work,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = QR factors of src(n); 4x4 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkQRDecomp_ma_32f_4x4_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, float *work, float *const *dst, int32_t dstShift, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = QR factors of src(n); 5x5 float, n below count; standard layout. */
VonkStatus vonkQRDecomp_ma_32f_5x5(const float *src, int32_t srcObjStride, int32_t srcRowStride, float *work,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = QR factors of src(n); 5x5 float, n below count; S2, strided elements. */
VonkStatus vonkQRDecomp_ma_32f_5x5_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
    int32_t srcElemStride, float *work, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = QR factors of src(n); 5x5 float, n below count; P, one pointer per element position. */
VonkStatus vonkQRDecomp_ma_32f_5x5_P(const float *const *src, int32_t srcShift, float *work, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = QR factors of src(n); 5x5 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkQRDecomp_ma_32f_5x5_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float *work,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = QR factors of src(n); 5x5 float, n below count; L, one pointer per object. */
VonkStatus vonkQRDecomp_ma_32f_5x5_L(const float *const *src, int32_t srcShift, int32_t srcRowStride, float *work,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = QR factors of src(n); 5x5 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkQRDecomp_ma_32f_5x5_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, float *work, float *const *dst, int32_t dstShift, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = QR factors of src(n); 6x6 float, n below count; standard layout. */
VonkStatus vonkQRDecomp_ma_32f_6x6(const float *src, int32_t srcObjStride, int32_t srcRowStride, float *work,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = QR factors of src(n); 6x6 float, n below count; S2, strided elements. */
VonkStatus vonkQRDecomp_ma_32f_6x6_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
    int32_t srcElemStride, float *work, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = QR factors of src(n); 6x6 float, n below count; P, one pointer per element position. */
VonkStatus vonkQRDecomp_ma_32f_6x6_P(const float *const *src, int32_t srcShift, float *work, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = QR factors of src(n); 6x6 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkQRDecomp_ma_32f_6x6_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float *work,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = QR factors of src(n); 6x6 float, n below count; L, one pointer per object. */
VonkStatus vonkQRDecomp_ma_32f_6x6_L(const float *const *src, int32_t srcShift, int32_t srcRowStride, float *work,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = QR factors of src(n); 6x6 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkQRDecomp_ma_32f_6x6_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, float *work, float *const *dst, int32_t dstShift, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);

/** dst(n) = QR factors of src(n); `rows` by `cols` double, n below count; standard layout. */
VonkStatus vonkQRDecomp_ma_64f(const double *src, int32_t srcObjStride, int32_t srcRowStride, double *work, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = QR factors of src(n); `rows` by `cols` double, n below count; S2, strided elements. */
VonkStatus vonkQRDecomp_ma_64f_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    double *work, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols,
    uint32_t rows, uint32_t count);
/** dst(n) = QR factors of src(n); `rows` by `cols` double, n below count; P, one pointer per element position. */
VonkStatus vonkQRDecomp_ma_64f_P(const double *const *src, int32_t srcShift, double *work, double *const *dst,
    int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = QR factors of src(n); `rows` by `cols` double, n below count; PS2, one pointer per element position,
 * strided objects. */
VonkStatus vonkQRDecomp_ma_64f_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, double *work,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = QR factors of src(n); `rows` by `cols` double, n below count; L, one pointer per object. */
VonkStatus vonkQRDecomp_ma_64f_L(const double *const *src, int32_t srcShift, int32_t srcRowStride, double *work,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = QR factors of src(n); `rows` by `cols` double, n below count; LS2, one pointer per object, strided
 * elements. */
VonkStatus vonkQRDecomp_ma_64f_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, double *work, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = QR factors of src(n); 3x3 double, n below count; standard layout. */
VonkStatus vonkQRDecomp_ma_64f_3x3(const double *src, int32_t srcObjStride, int32_t srcRowStride, double *work,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = QR factors of src(n); 3x3 double, n below count; S2, strided elements. */
VonkStatus vonkQRDecomp_ma_64f_3x3_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
    int32_t srcElemStride, double *work, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = QR factors of src(n); 3x3 double, n below count; P, one pointer per element position. */
VonkStatus vonkQRDecomp_ma_64f_3x3_P(const double *const *src, int32_t srcShift, double *work, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = QR factors of src(n); 3x3 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkQRDecomp_ma_64f_3x3_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, double *work,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = QR factors of src(n); 3x3 double, n below count; L, one pointer per object. */
VonkStatus vonkQRDecomp_ma_64f_3x3_L(const double *const *src, int32_t srcShift, int32_t srcRowStride, double *work,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = QR factors of src(n); 3x3 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkQRDecomp_ma_64f_3x3_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, double *work, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = QR factors of src(n); 4x4 double, n below count; standard layout. */
VonkStatus vonkQRDecomp_ma_64f_4x4(const double *src, int32_t srcObjStride, int32_t srcRowStride, double *work,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = QR factors of src(n); 4x4 double, n below count; S2, strided elements. */
VonkStatus vonkQRDecomp_ma_64f_4x4_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
    int32_t srcElemStride, double *work, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = QR factors of src(n); 4x4 double, n below count; P, one pointer per element position. */
VonkStatus vonkQRDecomp_ma_64f_4x4_P(const double *const *src, int32_t srcShift, double *work, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = QR factors of src(n); 4x4 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkQRDecomp_ma_64f_4x4_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, double *work,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = QR factors of src(n); 4x4 double, n below count; L, one pointer per object. */
VonkStatus vonkQRDecomp_ma_64f_4x4_L(const double *const *src, int32_t srcShift, int32_t srcRowStride, double *work,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = QR factors of src(n); 4x4 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkQRDecomp_ma_64f_4x4_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, double *work, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = QR factors of src(n); 5x5 double, n below count; standard layout. */
VonkStatus vonkQRDecomp_ma_64f_5x5(const double *src, int32_t srcObjStride, int32_t srcRowStride, double *work,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = QR factors of src(n); 5x5 double, n below count; S2, strided elements. */
VonkStatus vonkQRDecomp_ma_64f_5x5_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
    int32_t srcElemStride, double *work, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = QR factors of src(n); 5x5 double, n below count; P, one pointer per element position. */
VonkStatus vonkQRDecomp_ma_64f_5x5_P(const double *const *src, int32_t srcShift, double *work, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = QR factors of src(n); 5x5 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkQRDecomp_ma_64f_5x5_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, double *work,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = QR factors of src(n); 5x5 double, n below count; L, one pointer per object. */
VonkStatus vonkQRDecomp_ma_64f_5x5_L(const double *const *src, int32_t srcShift, int32_t srcRowStride, double *work,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = QR factors of src(n); 5x5 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkQRDecomp_ma_64f_5x5_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, double *work, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = QR factors of src(n); 6x6 double, n below count; standard layout. */
VonkStatus vonkQRDecomp_ma_64f_6x6(const double *src, int32_t srcObjStride, int32_t srcRowStride, double *work,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = QR factors of src(n); 6x6 double, n below count; S2, strided elements. */
VonkStatus vonkQRDecomp_ma_64f_6x6_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
    int32_t srcElemStride, double *work, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = QR factors of src(n); 6x6 double, n below count; P, one pointer per element position. */
VonkStatus vonkQRDecomp_ma_64f_6x6_P(const double *const *src, int32_t srcShift, double *work, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = QR factors of src(n); 6x6 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkQRDecomp_ma_64f_6x6_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, double *work,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = QR factors of src(n); 6x6 double, n below count; L, one pointer per object. */
VonkStatus vonkQRDecomp_ma_64f_6x6_L(const double *const *src, int32_t srcShift, int32_t srcRowStride, double *work,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = QR factors of src(n); 6x6 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkQRDecomp_ma_64f_6x6_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, double *work, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);

/* ---- QR back substitution -------------------------------------------------------------------------------------------
 *
 * vonkQRBackSubst solves A x = b with what vonkQRDecomp left in `src1`, `rows` by `cols`: exactly if A is square, else
 * x minimises the residual. `src2` is b, of `rows` elements, `dst` is x, of `cols`. `work` is a workspace of `rows`
 * contiguous elements in every layout, reused for every object; on return it holds Q'b of the last object, whose
 * elements from `cols` on are the residual's. Groups: `mv` one system; `mva` one decomposition for `count` right-hand
 * sides; `mava` one per object.
 *
 * b is copied to `work`. For each reflector v in turn: p = (work(k) + the sum of work(i) v(i)) beta, beta = -2 / (v'v),
 * work(i) = v(i) p + work(i). Then from the last row up: x(i) = (work(i) - s) / R(i, i), s the sum of R(i, j) x(j) over
 * j > i, from 0 with j ascending. `32f` rounds every operation; `64f` is computed in the 80-bit type and rounded where
 * `work` and `dst` are stored. Method: Golub and Van Loan, Matrix Computations, "Householder QR" and "Full rank least
 * squares".
 *
 * Status: vonkErrNullPtr if `src1`, `work`, `src2` or `dst` is null; vonkErrSize if `cols` or `rows` is 0;
 * vonkErrNullPtr if a table entry is null, even at `count` 0 (`P`, `PS2`), or a list entry when the object's turn comes
 * (`L`, `LS2`); `count` 0 gives vonkOk. Of the table of `src2` the first `cols` entries are checked, though `rows` are
 * used. The numbers are not checked: division by a zero on the diagonal gives an infinity or a NaN, with vonkOk.
 *
 * Overlap:
 * Overlap is not checked. `dst` may be `src2`, which is read before. `work` must not overlap `src1` or `dst`; the copy
 * from `src2` is made element by element, ascending.
 *
 * Exceptions:
 * - qr-solve-column-step (result): vonkQRBackSubst_mva_64f{,_?x?}_L
 *   The columns of `src1` are taken to lie 4 bytes apart: element (i, j) is the double at i * `src1RowStride` + j * 4.
 *   This does not solve the system, unless `cols` is 1 or the data lie so. `LS2` and all other forms follow their
 *   strides.
 * - qr-solve-displaced-triangle (result): vonkQRBackSubst_mava_64f{,_?x?}_L
 *   The reflectors are read where they are, but R(i, j) at 8 * j + i + 1 - `src1RowStride` bytes after the start of the
 *   object. This does not solve the system, unless the data lie so. `LS2` and all other forms follow their strides.
 * - qr-solve-ignored-argument (arguments): vonkQRBackSubst_mva_{32f,64f}{,_?x?}{,_S2,_L,_LS2}
 *   The argument after `src1` (`src1ObjStride`, in `L` and `LS2` `src1Shift`) is ignored, so that `mva` and `mava` have
 *   one parameter list. In `L` and `LS2` `src1` is a plain pointer.
 * - qr-solve-reads-before (reads): vonkQRBackSubst_mava_64f{,_?x?}_L
 *   The elements of R are read where `qr-solve-displaced-triangle` finds them, up to a row before the object.
 */

/** dst = least-squares solution of A x = src2 from the QR factors src1; `rows` by `cols` float; standard layout. */
VonkStatus vonkQRBackSubst_mv_32f(const float *src1, int32_t src1RowStride, float *work, const float *src2, float *dst,
    uint32_t cols, uint32_t rows);
/** dst = least-squares solution of A x = src2 from the QR factors src1; `rows` by `cols` float; S2, strided elements.
 * */
VonkStatus vonkQRBackSubst_mv_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, float *work,
    const float *src2, int32_t src2ElemStride, float *dst, int32_t dstElemStride, uint32_t cols, uint32_t rows);
/** dst = least-squares solution of A x = src2 from the QR factors src1; `rows` by `cols` float; P, one pointer per
 * element position. */
VonkStatus vonkQRBackSubst_mv_32f_P(const float *const *src1, int32_t src1Shift, float *work, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows);
/** dst = least-squares solution of A x = src2 from the QR factors src1; 3x3 float; standard layout. */
VonkStatus vonkQRBackSubst_mv_32f_3x3(const float *src1, int32_t src1RowStride, float *work, const float *src2,
    float *dst);
/** dst = least-squares solution of A x = src2 from the QR factors src1; 3x3 float; S2, strided elements. */
VonkStatus vonkQRBackSubst_mv_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, float *work,
    const float *src2, int32_t src2ElemStride, float *dst, int32_t dstElemStride);
/** dst = least-squares solution of A x = src2 from the QR factors src1; 3x3 float; P, one pointer per element position.
 * */
VonkStatus vonkQRBackSubst_mv_32f_3x3_P(const float *const *src1, int32_t src1Shift, float *work,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift);
/** dst = least-squares solution of A x = src2 from the QR factors src1; 4x4 float; standard layout. */
VonkStatus vonkQRBackSubst_mv_32f_4x4(const float *src1, int32_t src1RowStride, float *work, const float *src2,
    float *dst);
/** dst = least-squares solution of A x = src2 from the QR factors src1; 4x4 float; S2, strided elements. */
VonkStatus vonkQRBackSubst_mv_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, float *work,
    const float *src2, int32_t src2ElemStride, float *dst, int32_t dstElemStride);
/** dst = least-squares solution of A x = src2 from the QR factors src1; 4x4 float; P, one pointer per element position.
 * */
VonkStatus vonkQRBackSubst_mv_32f_4x4_P(const float *const *src1, int32_t src1Shift, float *work,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift);
/** dst = least-squares solution of A x = src2 from the QR factors src1; 5x5 float; standard layout. */
VonkStatus vonkQRBackSubst_mv_32f_5x5(const float *src1, int32_t src1RowStride, float *work, const float *src2,
    float *dst);
/** dst = least-squares solution of A x = src2 from the QR factors src1; 5x5 float; S2, strided elements. */
VonkStatus vonkQRBackSubst_mv_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, float *work,
    const float *src2, int32_t src2ElemStride, float *dst, int32_t dstElemStride);
/** dst = least-squares solution of A x = src2 from the QR factors src1; 5x5 float; P, one pointer per element position.
 * */
VonkStatus vonkQRBackSubst_mv_32f_5x5_P(const float *const *src1, int32_t src1Shift, float *work,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift);
/** dst = least-squares solution of A x = src2 from the QR factors src1; 6x6 float; standard layout. */
VonkStatus vonkQRBackSubst_mv_32f_6x6(const float *src1, int32_t src1RowStride, float *work, const float *src2,
    float *dst);
/** dst = least-squares solution of A x = src2 from the QR factors src1; 6x6 float; S2, strided elements. */
VonkStatus vonkQRBackSubst_mv_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, float *work,
    const float *src2, int32_t src2ElemStride, float *dst, int32_t dstElemStride);
/** dst = least-squares solution of A x = src2 from the QR factors src1; 6x6 float; P, one pointer per element position.
 * */
VonkStatus vonkQRBackSubst_mv_32f_6x6_P(const float *const *src1, int32_t src1Shift, float *work,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift);

/** dst = least-squares solution of A x = src2 from the QR factors src1; `rows` by `cols` double; standard layout. */
VonkStatus vonkQRBackSubst_mv_64f(const double *src1, int32_t src1RowStride, double *work, const double *src2,
    double *dst, uint32_t cols, uint32_t rows);
/** dst = least-squares solution of A x = src2 from the QR factors src1; `rows` by `cols` double; S2, strided elements.
 * */
VonkStatus vonkQRBackSubst_mv_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, double *work,
    const double *src2, int32_t src2ElemStride, double *dst, int32_t dstElemStride, uint32_t cols, uint32_t rows);
/** dst = least-squares solution of A x = src2 from the QR factors src1; `rows` by `cols` double; P, one pointer per
 * element position. */
VonkStatus vonkQRBackSubst_mv_64f_P(const double *const *src1, int32_t src1Shift, double *work,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows);
/** dst = least-squares solution of A x = src2 from the QR factors src1; 3x3 double; standard layout. */
VonkStatus vonkQRBackSubst_mv_64f_3x3(const double *src1, int32_t src1RowStride, double *work, const double *src2,
    double *dst);
/** dst = least-squares solution of A x = src2 from the QR factors src1; 3x3 double; S2, strided elements. */
VonkStatus vonkQRBackSubst_mv_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    double *work, const double *src2, int32_t src2ElemStride, double *dst, int32_t dstElemStride);
/** dst = least-squares solution of A x = src2 from the QR factors src1; 3x3 double; P, one pointer per element
 * position. */
VonkStatus vonkQRBackSubst_mv_64f_3x3_P(const double *const *src1, int32_t src1Shift, double *work,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift);
/** dst = least-squares solution of A x = src2 from the QR factors src1; 4x4 double; standard layout. */
VonkStatus vonkQRBackSubst_mv_64f_4x4(const double *src1, int32_t src1RowStride, double *work, const double *src2,
    double *dst);
/** dst = least-squares solution of A x = src2 from the QR factors src1; 4x4 double; S2, strided elements. */
VonkStatus vonkQRBackSubst_mv_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    double *work, const double *src2, int32_t src2ElemStride, double *dst, int32_t dstElemStride);
/** dst = least-squares solution of A x = src2 from the QR factors src1; 4x4 double; P, one pointer per element
 * position. */
VonkStatus vonkQRBackSubst_mv_64f_4x4_P(const double *const *src1, int32_t src1Shift, double *work,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift);
/** dst = least-squares solution of A x = src2 from the QR factors src1; 5x5 double; standard layout. */
VonkStatus vonkQRBackSubst_mv_64f_5x5(const double *src1, int32_t src1RowStride, double *work, const double *src2,
    double *dst);
/** dst = least-squares solution of A x = src2 from the QR factors src1; 5x5 double; S2, strided elements. */
VonkStatus vonkQRBackSubst_mv_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    double *work, const double *src2, int32_t src2ElemStride, double *dst, int32_t dstElemStride);
/** dst = least-squares solution of A x = src2 from the QR factors src1; 5x5 double; P, one pointer per element
 * position. */
VonkStatus vonkQRBackSubst_mv_64f_5x5_P(const double *const *src1, int32_t src1Shift, double *work,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift);
/** dst = least-squares solution of A x = src2 from the QR factors src1; 6x6 double; standard layout. */
VonkStatus vonkQRBackSubst_mv_64f_6x6(const double *src1, int32_t src1RowStride, double *work, const double *src2,
    double *dst);
/** dst = least-squares solution of A x = src2 from the QR factors src1; 6x6 double; S2, strided elements. */
VonkStatus vonkQRBackSubst_mv_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    double *work, const double *src2, int32_t src2ElemStride, double *dst, int32_t dstElemStride);
/** dst = least-squares solution of A x = src2 from the QR factors src1; 6x6 double; P, one pointer per element
 * position. */
VonkStatus vonkQRBackSubst_mv_64f_6x6_P(const double *const *src1, int32_t src1Shift, double *work,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift);

/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1; `rows` by `cols` float, n below count;
 * standard layout. Exception: qr-solve-ignored-argument. */
VonkStatus vonkQRBackSubst_mva_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, float *work,
    const float *src2, int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1; `rows` by `cols` float, n below count;
 * S2, strided elements. Exception: qr-solve-ignored-argument. */
VonkStatus vonkQRBackSubst_mva_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, float *work, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1; `rows` by `cols` float, n below count; P,
 * one pointer per element position. */
VonkStatus vonkQRBackSubst_mva_32f_P(const float *const *src1, int32_t src1Shift, float *work, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1; `rows` by `cols` float, n below count;
 * PS2, one pointer per element position, strided objects. */
VonkStatus vonkQRBackSubst_mva_32f_PS2(const float *const *src1, int32_t src1Shift, float *work,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1; `rows` by `cols` float, n below count; L,
 * one pointer per object. Exception: qr-solve-ignored-argument. */
VonkStatus vonkQRBackSubst_mva_32f_L(const float *src1, int32_t src1Shift, int32_t src1RowStride, float *work,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1; `rows` by `cols` float, n below count;
 * LS2, one pointer per object, strided elements. Exception: qr-solve-ignored-argument. */
VonkStatus vonkQRBackSubst_mva_32f_LS2(const float *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, float *work, const float *const *src2, int32_t src2Shift, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1; 3x3 float, n below count; standard
 * layout. Exception: qr-solve-ignored-argument. */
VonkStatus vonkQRBackSubst_mva_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, float *work,
    const float *src2, int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1; 3x3 float, n below count; S2, strided
 * elements. Exception: qr-solve-ignored-argument. */
VonkStatus vonkQRBackSubst_mva_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, float *work, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1; 3x3 float, n below count; P, one pointer
 * per element position. */
VonkStatus vonkQRBackSubst_mva_32f_3x3_P(const float *const *src1, int32_t src1Shift, float *work,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1; 3x3 float, n below count; PS2, one
 * pointer per element position, strided objects. */
VonkStatus vonkQRBackSubst_mva_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, float *work,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1; 3x3 float, n below count; L, one pointer
 * per object. Exception: qr-solve-ignored-argument. */
VonkStatus vonkQRBackSubst_mva_32f_3x3_L(const float *src1, int32_t src1Shift, int32_t src1RowStride, float *work,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1; 3x3 float, n below count; LS2, one
 * pointer per object, strided elements. Exception: qr-solve-ignored-argument. */
VonkStatus vonkQRBackSubst_mva_32f_3x3_LS2(const float *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, float *work, const float *const *src2, int32_t src2Shift, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1; 4x4 float, n below count; standard
 * layout. Exception: qr-solve-ignored-argument. */
VonkStatus vonkQRBackSubst_mva_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, float *work,
    const float *src2, int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1; 4x4 float, n below count; S2, strided
 * elements. Exception: qr-solve-ignored-argument. */
VonkStatus vonkQRBackSubst_mva_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, float *work, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1; 4x4 float, n below count; P, one pointer
 * per element position. */
VonkStatus vonkQRBackSubst_mva_32f_4x4_P(const float *const *src1, int32_t src1Shift, float *work,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1; 4x4 float, n below count; PS2, one
 * pointer per element position, strided objects. */
VonkStatus vonkQRBackSubst_mva_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, float *work,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1; 4x4 float, n below count; L, one pointer
 * per object. Exception: qr-solve-ignored-argument. */
VonkStatus vonkQRBackSubst_mva_32f_4x4_L(const float *src1, int32_t src1Shift, int32_t src1RowStride, float *work,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1; 4x4 float, n below count; LS2, one
 * pointer per object, strided elements. Exception: qr-solve-ignored-argument. */
VonkStatus vonkQRBackSubst_mva_32f_4x4_LS2(const float *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, float *work, const float *const *src2, int32_t src2Shift, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1; 5x5 float, n below count; standard
 * layout. Exception: qr-solve-ignored-argument. */
VonkStatus vonkQRBackSubst_mva_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, float *work,
    const float *src2, int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1; 5x5 float, n below count; S2, strided
 * elements. Exception: qr-solve-ignored-argument. */
VonkStatus vonkQRBackSubst_mva_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, float *work, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1; 5x5 float, n below count; P, one pointer
 * per element position. */
VonkStatus vonkQRBackSubst_mva_32f_5x5_P(const float *const *src1, int32_t src1Shift, float *work,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1; 5x5 float, n below count; PS2, one
 * pointer per element position, strided objects. */
VonkStatus vonkQRBackSubst_mva_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, float *work,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1; 5x5 float, n below count; L, one pointer
 * per object. Exception: qr-solve-ignored-argument. */
VonkStatus vonkQRBackSubst_mva_32f_5x5_L(const float *src1, int32_t src1Shift, int32_t src1RowStride, float *work,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1; 5x5 float, n below count; LS2, one
 * pointer per object, strided elements. Exception: qr-solve-ignored-argument. */
VonkStatus vonkQRBackSubst_mva_32f_5x5_LS2(const float *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, float *work, const float *const *src2, int32_t src2Shift, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1; 6x6 float, n below count; standard
 * layout. Exception: qr-solve-ignored-argument. */
VonkStatus vonkQRBackSubst_mva_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, float *work,
    const float *src2, int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1; 6x6 float, n below count; S2, strided
 * elements. Exception: qr-solve-ignored-argument. */
VonkStatus vonkQRBackSubst_mva_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, float *work, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1; 6x6 float, n below count; P, one pointer
 * per element position. */
VonkStatus vonkQRBackSubst_mva_32f_6x6_P(const float *const *src1, int32_t src1Shift, float *work,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1; 6x6 float, n below count; PS2, one
 * pointer per element position, strided objects. */
VonkStatus vonkQRBackSubst_mva_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, float *work,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1; 6x6 float, n below count; L, one pointer
 * per object. Exception: qr-solve-ignored-argument. */
VonkStatus vonkQRBackSubst_mva_32f_6x6_L(const float *src1, int32_t src1Shift, int32_t src1RowStride, float *work,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1; 6x6 float, n below count; LS2, one
 * pointer per object, strided elements. Exception: qr-solve-ignored-argument. */
VonkStatus vonkQRBackSubst_mva_32f_6x6_LS2(const float *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, float *work, const float *const *src2, int32_t src2Shift, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);

/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1; `rows` by `cols` double, n below count;
 * standard layout. Exception: qr-solve-ignored-argument. */
VonkStatus vonkQRBackSubst_mva_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, double *work,
    const double *src2, int32_t src2ObjStride, double *dst, int32_t dstObjStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1; `rows` by `cols` double, n below count;
 * S2, strided elements. Exception: qr-solve-ignored-argument. */
VonkStatus vonkQRBackSubst_mva_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, double *work, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1; `rows` by `cols` double, n below count;
 * P, one pointer per element position. */
VonkStatus vonkQRBackSubst_mva_64f_P(const double *const *src1, int32_t src1Shift, double *work,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1; `rows` by `cols` double, n below count;
 * PS2, one pointer per element position, strided objects. */
VonkStatus vonkQRBackSubst_mva_64f_PS2(const double *const *src1, int32_t src1Shift, double *work,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1; `rows` by `cols` double, n below count;
 * L, one pointer per object. Exceptions: qr-solve-column-step, qr-solve-ignored-argument. */
VonkStatus vonkQRBackSubst_mva_64f_L(const double *src1, int32_t src1Shift, int32_t src1RowStride, double *work,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1; `rows` by `cols` double, n below count;
 * LS2, one pointer per object, strided elements. Exception: qr-solve-ignored-argument. */
VonkStatus vonkQRBackSubst_mva_64f_LS2(const double *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, double *work, const double *const *src2, int32_t src2Shift, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1; 3x3 double, n below count; standard
 * layout. Exception: qr-solve-ignored-argument. */
VonkStatus vonkQRBackSubst_mva_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, double *work,
    const double *src2, int32_t src2ObjStride, double *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1; 3x3 double, n below count; S2, strided
 * elements. Exception: qr-solve-ignored-argument. */
VonkStatus vonkQRBackSubst_mva_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, double *work, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1; 3x3 double, n below count; P, one pointer
 * per element position. */
VonkStatus vonkQRBackSubst_mva_64f_3x3_P(const double *const *src1, int32_t src1Shift, double *work,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1; 3x3 double, n below count; PS2, one
 * pointer per element position, strided objects. */
VonkStatus vonkQRBackSubst_mva_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, double *work,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1; 3x3 double, n below count; L, one pointer
 * per object. Exceptions: qr-solve-column-step, qr-solve-ignored-argument. */
VonkStatus vonkQRBackSubst_mva_64f_3x3_L(const double *src1, int32_t src1Shift, int32_t src1RowStride, double *work,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1; 3x3 double, n below count; LS2, one
 * pointer per object, strided elements. Exception: qr-solve-ignored-argument. */
VonkStatus vonkQRBackSubst_mva_64f_3x3_LS2(const double *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, double *work, const double *const *src2, int32_t src2Shift, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1; 4x4 double, n below count; standard
 * layout. Exception: qr-solve-ignored-argument. */
VonkStatus vonkQRBackSubst_mva_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, double *work,
    const double *src2, int32_t src2ObjStride, double *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1; 4x4 double, n below count; S2, strided
 * elements. Exception: qr-solve-ignored-argument. */
VonkStatus vonkQRBackSubst_mva_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, double *work, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1; 4x4 double, n below count; P, one pointer
 * per element position. */
VonkStatus vonkQRBackSubst_mva_64f_4x4_P(const double *const *src1, int32_t src1Shift, double *work,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1; 4x4 double, n below count; PS2, one
 * pointer per element position, strided objects. */
VonkStatus vonkQRBackSubst_mva_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, double *work,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1; 4x4 double, n below count; L, one pointer
 * per object. Exceptions: qr-solve-column-step, qr-solve-ignored-argument. */
VonkStatus vonkQRBackSubst_mva_64f_4x4_L(const double *src1, int32_t src1Shift, int32_t src1RowStride, double *work,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1; 4x4 double, n below count; LS2, one
 * pointer per object, strided elements. Exception: qr-solve-ignored-argument. */
VonkStatus vonkQRBackSubst_mva_64f_4x4_LS2(const double *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, double *work, const double *const *src2, int32_t src2Shift, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1; 5x5 double, n below count; standard
 * layout. Exception: qr-solve-ignored-argument. */
VonkStatus vonkQRBackSubst_mva_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, double *work,
    const double *src2, int32_t src2ObjStride, double *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1; 5x5 double, n below count; S2, strided
 * elements. Exception: qr-solve-ignored-argument. */
VonkStatus vonkQRBackSubst_mva_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, double *work, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1; 5x5 double, n below count; P, one pointer
 * per element position. */
VonkStatus vonkQRBackSubst_mva_64f_5x5_P(const double *const *src1, int32_t src1Shift, double *work,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1; 5x5 double, n below count; PS2, one
 * pointer per element position, strided objects. */
VonkStatus vonkQRBackSubst_mva_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, double *work,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1; 5x5 double, n below count; L, one pointer
 * per object. Exceptions: qr-solve-column-step, qr-solve-ignored-argument. */
VonkStatus vonkQRBackSubst_mva_64f_5x5_L(const double *src1, int32_t src1Shift, int32_t src1RowStride, double *work,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1; 5x5 double, n below count; LS2, one
 * pointer per object, strided elements. Exception: qr-solve-ignored-argument. */
VonkStatus vonkQRBackSubst_mva_64f_5x5_LS2(const double *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, double *work, const double *const *src2, int32_t src2Shift, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1; 6x6 double, n below count; standard
 * layout. Exception: qr-solve-ignored-argument. */
VonkStatus vonkQRBackSubst_mva_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, double *work,
    const double *src2, int32_t src2ObjStride, double *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1; 6x6 double, n below count; S2, strided
 * elements. Exception: qr-solve-ignored-argument. */
VonkStatus vonkQRBackSubst_mva_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, double *work, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1; 6x6 double, n below count; P, one pointer
 * per element position. */
VonkStatus vonkQRBackSubst_mva_64f_6x6_P(const double *const *src1, int32_t src1Shift, double *work,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1; 6x6 double, n below count; PS2, one
 * pointer per element position, strided objects. */
VonkStatus vonkQRBackSubst_mva_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, double *work,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1; 6x6 double, n below count; L, one pointer
 * per object. Exceptions: qr-solve-column-step, qr-solve-ignored-argument. */
VonkStatus vonkQRBackSubst_mva_64f_6x6_L(const double *src1, int32_t src1Shift, int32_t src1RowStride, double *work,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1; 6x6 double, n below count; LS2, one
 * pointer per object, strided elements. Exception: qr-solve-ignored-argument. */
VonkStatus vonkQRBackSubst_mva_64f_6x6_LS2(const double *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, double *work, const double *const *src2, int32_t src2Shift, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);

/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1(n); `rows` by `cols` float, n below count;
 * standard layout. */
VonkStatus vonkQRBackSubst_mava_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, float *work,
    const float *src2, int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1(n); `rows` by `cols` float, n below count;
 * S2, strided elements. */
VonkStatus vonkQRBackSubst_mava_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, float *work, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1(n); `rows` by `cols` float, n below count;
 * P, one pointer per element position. */
VonkStatus vonkQRBackSubst_mava_32f_P(const float *const *src1, int32_t src1Shift, float *work,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1(n); `rows` by `cols` float, n below count;
 * PS2, one pointer per element position, strided objects. */
VonkStatus vonkQRBackSubst_mava_32f_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride, float *work,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1(n); `rows` by `cols` float, n below count;
 * L, one pointer per object. */
VonkStatus vonkQRBackSubst_mava_32f_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, float *work,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1(n); `rows` by `cols` float, n below count;
 * LS2, one pointer per object, strided elements. */
VonkStatus vonkQRBackSubst_mava_32f_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, float *work, const float *const *src2, int32_t src2Shift, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1(n); 3x3 float, n below count; standard
 * layout. */
VonkStatus vonkQRBackSubst_mava_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, float *work,
    const float *src2, int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1(n); 3x3 float, n below count; S2, strided
 * elements. */
VonkStatus vonkQRBackSubst_mava_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, float *work, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1(n); 3x3 float, n below count; P, one
 * pointer per element position. */
VonkStatus vonkQRBackSubst_mava_32f_3x3_P(const float *const *src1, int32_t src1Shift, float *work,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1(n); 3x3 float, n below count; PS2, one
 * pointer per element position, strided objects. */
VonkStatus vonkQRBackSubst_mava_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    float *work, const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst,
    int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1(n); 3x3 float, n below count; L, one
 * pointer per object. */
VonkStatus vonkQRBackSubst_mava_32f_3x3_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    float *work, const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1(n); 3x3 float, n below count; LS2, one
 * pointer per object, strided elements. */
VonkStatus vonkQRBackSubst_mava_32f_3x3_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, float *work, const float *const *src2, int32_t src2Shift, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1(n); 4x4 float, n below count; standard
 * layout. */
VonkStatus vonkQRBackSubst_mava_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, float *work,
    const float *src2, int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1(n); 4x4 float, n below count; S2, strided
 * elements. */
VonkStatus vonkQRBackSubst_mava_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, float *work, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1(n); 4x4 float, n below count; P, one
 * pointer per element position. */
VonkStatus vonkQRBackSubst_mava_32f_4x4_P(const float *const *src1, int32_t src1Shift, float *work,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1(n); 4x4 float, n below count; PS2, one
 * pointer per element position, strided objects. */
VonkStatus vonkQRBackSubst_mava_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    float *work, const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst,
    int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1(n); 4x4 float, n below count; L, one
 * pointer per object. */
VonkStatus vonkQRBackSubst_mava_32f_4x4_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    float *work, const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1(n); 4x4 float, n below count; LS2, one
 * pointer per object, strided elements. */
VonkStatus vonkQRBackSubst_mava_32f_4x4_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, float *work, const float *const *src2, int32_t src2Shift, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1(n); 5x5 float, n below count; standard
 * layout. */
VonkStatus vonkQRBackSubst_mava_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, float *work,
    const float *src2, int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1(n); 5x5 float, n below count; S2, strided
 * elements. */
VonkStatus vonkQRBackSubst_mava_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, float *work, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1(n); 5x5 float, n below count; P, one
 * pointer per element position. */
VonkStatus vonkQRBackSubst_mava_32f_5x5_P(const float *const *src1, int32_t src1Shift, float *work,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1(n); 5x5 float, n below count; PS2, one
 * pointer per element position, strided objects. */
VonkStatus vonkQRBackSubst_mava_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    float *work, const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst,
    int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1(n); 5x5 float, n below count; L, one
 * pointer per object. */
VonkStatus vonkQRBackSubst_mava_32f_5x5_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    float *work, const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1(n); 5x5 float, n below count; LS2, one
 * pointer per object, strided elements. */
VonkStatus vonkQRBackSubst_mava_32f_5x5_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, float *work, const float *const *src2, int32_t src2Shift, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1(n); 6x6 float, n below count; standard
 * layout. */
VonkStatus vonkQRBackSubst_mava_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, float *work,
    const float *src2, int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1(n); 6x6 float, n below count; S2, strided
 * elements. */
VonkStatus vonkQRBackSubst_mava_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, float *work, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1(n); 6x6 float, n below count; P, one
 * pointer per element position. */
VonkStatus vonkQRBackSubst_mava_32f_6x6_P(const float *const *src1, int32_t src1Shift, float *work,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1(n); 6x6 float, n below count; PS2, one
 * pointer per element position, strided objects. */
VonkStatus vonkQRBackSubst_mava_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    float *work, const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst,
    int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1(n); 6x6 float, n below count; L, one
 * pointer per object. */
VonkStatus vonkQRBackSubst_mava_32f_6x6_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    float *work, const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1(n); 6x6 float, n below count; LS2, one
 * pointer per object, strided elements. */
VonkStatus vonkQRBackSubst_mava_32f_6x6_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, float *work, const float *const *src2, int32_t src2Shift, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);

/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1(n); `rows` by `cols` double, n below
 * count; standard layout. */
VonkStatus vonkQRBackSubst_mava_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, double *work,
    const double *src2, int32_t src2ObjStride, double *dst, int32_t dstObjStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1(n); `rows` by `cols` double, n below
 * count; S2, strided elements. */
VonkStatus vonkQRBackSubst_mava_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, double *work, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1(n); `rows` by `cols` double, n below
 * count; P, one pointer per element position. */
VonkStatus vonkQRBackSubst_mava_64f_P(const double *const *src1, int32_t src1Shift, double *work,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1(n); `rows` by `cols` double, n below
 * count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkQRBackSubst_mava_64f_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    double *work, const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst,
    int32_t dstShift, int32_t dstObjStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1(n); `rows` by `cols` double, n below
 * count; L, one pointer per object. Exceptions: qr-solve-displaced-triangle, qr-solve-reads-before. */
VonkStatus vonkQRBackSubst_mava_64f_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride, double *work,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1(n); `rows` by `cols` double, n below
 * count; LS2, one pointer per object, strided elements. */
VonkStatus vonkQRBackSubst_mava_64f_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, double *work, const double *const *src2, int32_t src2Shift, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1(n); 3x3 double, n below count; standard
 * layout. */
VonkStatus vonkQRBackSubst_mava_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, double *work,
    const double *src2, int32_t src2ObjStride, double *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1(n); 3x3 double, n below count; S2, strided
 * elements. */
VonkStatus vonkQRBackSubst_mava_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, double *work, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1(n); 3x3 double, n below count; P, one
 * pointer per element position. */
VonkStatus vonkQRBackSubst_mava_64f_3x3_P(const double *const *src1, int32_t src1Shift, double *work,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1(n); 3x3 double, n below count; PS2, one
 * pointer per element position, strided objects. */
VonkStatus vonkQRBackSubst_mava_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    double *work, const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst,
    int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1(n); 3x3 double, n below count; L, one
 * pointer per object. Exceptions: qr-solve-displaced-triangle, qr-solve-reads-before. */
VonkStatus vonkQRBackSubst_mava_64f_3x3_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    double *work, const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1(n); 3x3 double, n below count; LS2, one
 * pointer per object, strided elements. */
VonkStatus vonkQRBackSubst_mava_64f_3x3_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, double *work, const double *const *src2, int32_t src2Shift, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1(n); 4x4 double, n below count; standard
 * layout. */
VonkStatus vonkQRBackSubst_mava_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, double *work,
    const double *src2, int32_t src2ObjStride, double *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1(n); 4x4 double, n below count; S2, strided
 * elements. */
VonkStatus vonkQRBackSubst_mava_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, double *work, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1(n); 4x4 double, n below count; P, one
 * pointer per element position. */
VonkStatus vonkQRBackSubst_mava_64f_4x4_P(const double *const *src1, int32_t src1Shift, double *work,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1(n); 4x4 double, n below count; PS2, one
 * pointer per element position, strided objects. */
VonkStatus vonkQRBackSubst_mava_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    double *work, const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst,
    int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1(n); 4x4 double, n below count; L, one
 * pointer per object. Exceptions: qr-solve-displaced-triangle, qr-solve-reads-before. */
VonkStatus vonkQRBackSubst_mava_64f_4x4_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    double *work, const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1(n); 4x4 double, n below count; LS2, one
 * pointer per object, strided elements. */
VonkStatus vonkQRBackSubst_mava_64f_4x4_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, double *work, const double *const *src2, int32_t src2Shift, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1(n); 5x5 double, n below count; standard
 * layout. */
VonkStatus vonkQRBackSubst_mava_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, double *work,
    const double *src2, int32_t src2ObjStride, double *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1(n); 5x5 double, n below count; S2, strided
 * elements. */
VonkStatus vonkQRBackSubst_mava_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, double *work, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1(n); 5x5 double, n below count; P, one
 * pointer per element position. */
VonkStatus vonkQRBackSubst_mava_64f_5x5_P(const double *const *src1, int32_t src1Shift, double *work,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1(n); 5x5 double, n below count; PS2, one
 * pointer per element position, strided objects. */
VonkStatus vonkQRBackSubst_mava_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    double *work, const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst,
    int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1(n); 5x5 double, n below count; L, one
 * pointer per object. Exceptions: qr-solve-displaced-triangle, qr-solve-reads-before. */
VonkStatus vonkQRBackSubst_mava_64f_5x5_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    double *work, const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1(n); 5x5 double, n below count; LS2, one
 * pointer per object, strided elements. */
VonkStatus vonkQRBackSubst_mava_64f_5x5_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, double *work, const double *const *src2, int32_t src2Shift, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1(n); 6x6 double, n below count; standard
 * layout. */
VonkStatus vonkQRBackSubst_mava_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, double *work,
    const double *src2, int32_t src2ObjStride, double *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1(n); 6x6 double, n below count; S2, strided
 * elements. */
VonkStatus vonkQRBackSubst_mava_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, double *work, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1(n); 6x6 double, n below count; P, one
 * pointer per element position. */
VonkStatus vonkQRBackSubst_mava_64f_6x6_P(const double *const *src1, int32_t src1Shift, double *work,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1(n); 6x6 double, n below count; PS2, one
 * pointer per element position, strided objects. */
VonkStatus vonkQRBackSubst_mava_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    double *work, const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst,
    int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1(n); 6x6 double, n below count; L, one
 * pointer per object. Exceptions: qr-solve-displaced-triangle, qr-solve-reads-before. */
VonkStatus vonkQRBackSubst_mava_64f_6x6_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    double *work, const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = least-squares solution of A x = src2(n) from the QR factors src1(n); 6x6 double, n below count; LS2, one
 * pointer per object, strided elements. */
VonkStatus vonkQRBackSubst_mava_64f_6x6_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, double *work, const double *const *src2, int32_t src2Shift, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);

#ifdef __cplusplus
}
#endif

#endif
