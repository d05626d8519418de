/* vonkk3: Cholesky decomposition; Cholesky back substitution. See vonkk3.h for names, layouts and units.
 *
 * Generated from the catalogue of functions; do not edit.
 */
#ifndef VONKK3_CHOLESKY_H
#define VONKK3_CHOLESKY_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Cholesky decomposition -----------------------------------------------------------------------------------------
 *
 * vonkCholeskyDecomp factors each symmetric positive definite matrix A of `src`, `order` by `order`, into L L', L lower
 * triangular with a positive diagonal. `dst` gets L below the diagonal and on it the RECIPROCALS 1 / L(i, i), so that
 * vonkCholeskyBackSubst need not divide. Only lower triangles are read and written, with their diagonals: elements
 * above them, and the pointers of such positions, may be anything, and in `dst` they are left as they are.
 *
 * Row by row: F(i, j) = (A(i, j) - the sum of F(i, k) F(j, k) over k < j) F(j, j) for j < i, then s = A(i, i) - the sum
 * of F(i, k)^2 over k < i and F(i, i) = 1 / root of s; products are subtracted one by one, k ascending. Unless s > 0
 * the call ends with vonkErrNotPosDef. There is no tolerance. Method: Golub and Van Loan, Matrix Computations,
 * "Cholesky factorization", row by row.
 *
 * Rounding: `32f` rounds every operation, but takes root and reciprocal in the 80-bit type and rounds them once; in `P`
 * and `PS2` both are `32f` operations. `64f` in the 80-bit type, at the calling thread's precision: orders 3 to 6, also
 * as `order`, keep all of F unrounded and round what they store, but for `P` and `PS2`; these and all other orders read
 * F back from `dst`, and round a difference after its pairs of products, not after an odd last one.
 *
 * Status: vonkErrNullPtr if `src` or `dst` is null; vonkErrSize if `order` is 0; vonkErrNotPosDef if a matrix is not
 * positive definite or a pivot is a NaN: rows before the failing one and, of that, the elements below the diagonal are
 * stored by then, objects before it are complete, and those after it untouched. Entries of tables and lists are not
 * checked; but in `L` and `LS2` an entry that is null once its shift is added gives vonkErrNullPtr when its turn comes.
 *
 * Overlap:
 * Overlap is not checked. `dst` may be `src` (in place), with the same strides or tables. No other overlap is
 * supported.
 *
 * Exceptions:
 * - cholesky-whole-strides (arguments): vonkCholeskyDecomp_{m_{32f,64f}{,_?x?}_S2,ma_{32f,64f}{,_?x?}_{S2,LS2}}
 *   At orders 3 to 6, in the name or as `order`, element strides count in whole elements; what exceeds a multiple of
 *   the element size is dropped.
 * - cholesky-signed-count (arguments): vonkCholeskyDecomp_ma_{32f,64f}{,_?x?}{,_S2,_L,_LS2}
 *   `count` is signed: with its top bit set nothing is done, and the status is vonkOk. In `P` and `PS2` it is a very
 *   large number.
 * - cholesky-count-zero (status): vonkCholeskyDecomp_ma_*
 *   `count` 0 is vonkErrSize.
 * - cholesky-first-nan (status): vonkCholeskyDecomp_m_64f{,_3x3,_4x4}{,_S2}
 *     vonkCholeskyDecomp_ma_64f{,_3x3,_4x4}{,_S2,_L,_LS2}
 *   At orders 3 and 4, in the name or as `order`, a NaN passes as the very first pivot: F(0, 0) and F(1, 0) are stored,
 *   and the call fails at the second.
 */

/** dst = Cholesky factor of src, diagonal inverted; `order` by `order` float; standard layout. */
VonkStatus vonkCholeskyDecomp_m_32f(const float *src, int32_t srcRowStride, float *dst, int32_t dstRowStride,
    uint32_t order);
/** dst = Cholesky factor of src, diagonal inverted; `order` by `order` float; S2, strided elements. Exception:
 * cholesky-whole-strides. */
VonkStatus vonkCholeskyDecomp_m_32f_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float *dst,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t order);
/** dst = Cholesky factor of src, diagonal inverted; `order` by `order` float; P, one pointer per element position. */
VonkStatus vonkCholeskyDecomp_m_32f_P(const float *const *src, int32_t srcShift, float *const *dst, int32_t dstShift,
    uint32_t order);
/** dst = Cholesky factor of src, diagonal inverted; 3x3 float; standard layout. */
VonkStatus vonkCholeskyDecomp_m_32f_3x3(const float *src, int32_t srcRowStride, float *dst, int32_t dstRowStride);
/** dst = Cholesky factor of src, diagonal inverted; 3x3 float; S2, strided elements. Exception: cholesky-whole-strides.
 * */
VonkStatus vonkCholeskyDecomp_m_32f_3x3_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float *dst,
    int32_t dstRowStride, int32_t dstElemStride);
/** dst = Cholesky factor of src, diagonal inverted; 3x3 float; P, one pointer per element position. */
VonkStatus vonkCholeskyDecomp_m_32f_3x3_P(const float *const *src, int32_t srcShift, float *const *dst,
    int32_t dstShift);
/** dst = Cholesky factor of src, diagonal inverted; 4x4 float; standard layout. */
VonkStatus vonkCholeskyDecomp_m_32f_4x4(const float *src, int32_t srcRowStride, float *dst, int32_t dstRowStride);
/** dst = Cholesky factor of src, diagonal inverted; 4x4 float; S2, strided elements. Exception: cholesky-whole-strides.
 * */
VonkStatus vonkCholeskyDecomp_m_32f_4x4_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float *dst,
    int32_t dstRowStride, int32_t dstElemStride);
/** dst = Cholesky factor of src, diagonal inverted; 4x4 float; P, one pointer per element position. */
VonkStatus vonkCholeskyDecomp_m_32f_4x4_P(const float *const *src, int32_t srcShift, float *const *dst,
    int32_t dstShift);
/** dst = Cholesky factor of src, diagonal inverted; 5x5 float; standard layout. */
VonkStatus vonkCholeskyDecomp_m_32f_5x5(const float *src, int32_t srcRowStride, float *dst, int32_t dstRowStride);
/** dst = Cholesky factor of src, diagonal inverted; 5x5 float; S2, strided elements. Exception: cholesky-whole-strides.
 * */
VonkStatus vonkCholeskyDecomp_m_32f_5x5_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float *dst,
    int32_t dstRowStride, int32_t dstElemStride);
/** dst = Cholesky factor of src, diagonal inverted; 5x5 float; P, one pointer per element position. */
VonkStatus vonkCholeskyDecomp_m_32f_5x5_P(const float *const *src, int32_t srcShift, float *const *dst,
    int32_t dstShift);
/** dst = Cholesky factor of src, diagonal inverted; 6x6 float; standard layout. */
VonkStatus vonkCholeskyDecomp_m_32f_6x6(const float *src, int32_t srcRowStride, float *dst, int32_t dstRowStride);
/** dst = Cholesky factor of src, diagonal inverted; 6x6 float; S2, strided elements. Exception: cholesky-whole-strides.
 * */
VonkStatus vonkCholeskyDecomp_m_32f_6x6_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float *dst,
    int32_t dstRowStride, int32_t dstElemStride);
/** dst = Cholesky factor of src, diagonal inverted; 6x6 float; P, one pointer per element position. */
VonkStatus vonkCholeskyDecomp_m_32f_6x6_P(const float *const *src, int32_t srcShift, float *const *dst,
    int32_t dstShift);

/** dst = Cholesky factor of src, diagonal inverted; `order` by `order` double; standard layout. Exception:
 * cholesky-first-nan. */
VonkStatus vonkCholeskyDecomp_m_64f(const double *src, int32_t srcRowStride, double *dst, int32_t dstRowStride,
    uint32_t order);
/** dst = Cholesky factor of src, diagonal inverted; `order` by `order` double; S2, strided elements. Exceptions:
 * cholesky-whole-strides, cholesky-first-nan. */
VonkStatus vonkCholeskyDecomp_m_64f_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, double *dst,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t order);
/** dst = Cholesky factor of src, diagonal inverted; `order` by `order` double; P, one pointer per element position. */
VonkStatus vonkCholeskyDecomp_m_64f_P(const double *const *src, int32_t srcShift, double *const *dst, int32_t dstShift,
    uint32_t order);
/** dst = Cholesky factor of src, diagonal inverted; 3x3 double; standard layout. Exception: cholesky-first-nan. */
VonkStatus vonkCholeskyDecomp_m_64f_3x3(const double *src, int32_t srcRowStride, double *dst, int32_t dstRowStride);
/** dst = Cholesky factor of src, diagonal inverted; 3x3 double; S2, strided elements. Exceptions:
 * cholesky-whole-strides, cholesky-first-nan. */
VonkStatus vonkCholeskyDecomp_m_64f_3x3_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, double *dst,
    int32_t dstRowStride, int32_t dstElemStride);
/** dst = Cholesky factor of src, diagonal inverted; 3x3 double; P, one pointer per element position. */
VonkStatus vonkCholeskyDecomp_m_64f_3x3_P(const double *const *src, int32_t srcShift, double *const *dst,
    int32_t dstShift);
/** dst = Cholesky factor of src, diagonal inverted; 4x4 double; standard layout. Exception: cholesky-first-nan. */
VonkStatus vonkCholeskyDecomp_m_64f_4x4(const double *src, int32_t srcRowStride, double *dst, int32_t dstRowStride);
/** dst = Cholesky factor of src, diagonal inverted; 4x4 double; S2, strided elements. Exceptions:
 * cholesky-whole-strides, cholesky-first-nan. */
VonkStatus vonkCholeskyDecomp_m_64f_4x4_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, double *dst,
    int32_t dstRowStride, int32_t dstElemStride);
/** dst = Cholesky factor of src, diagonal inverted; 4x4 double; P, one pointer per element position. */
VonkStatus vonkCholeskyDecomp_m_64f_4x4_P(const double *const *src, int32_t srcShift, double *const *dst,
    int32_t dstShift);
/** dst = Cholesky factor of src, diagonal inverted; 5x5 double; standard layout. */
VonkStatus vonkCholeskyDecomp_m_64f_5x5(const double *src, int32_t srcRowStride, double *dst, int32_t dstRowStride);
/** dst = Cholesky factor of src, diagonal inverted; 5x5 double; S2, strided elements. Exception:
 * cholesky-whole-strides. */
VonkStatus vonkCholeskyDecomp_m_64f_5x5_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, double *dst,
    int32_t dstRowStride, int32_t dstElemStride);
/** dst = Cholesky factor of src, diagonal inverted; 5x5 double; P, one pointer per element position. */
VonkStatus vonkCholeskyDecomp_m_64f_5x5_P(const double *const *src, int32_t srcShift, double *const *dst,
    int32_t dstShift);
/** dst = Cholesky factor of src, diagonal inverted; 6x6 double; standard layout. */
VonkStatus vonkCholeskyDecomp_m_64f_6x6(const double *src, int32_t srcRowStride, double *dst, int32_t dstRowStride);
/** dst = Cholesky factor of src, diagonal inverted; 6x6 double; S2, strided elements. Exception:
 * cholesky-whole-strides. */
VonkStatus vonkCholeskyDecomp_m_64f_6x6_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, double *dst,
    int32_t dstRowStride, int32_t dstElemStride);
/** dst = Cholesky factor of src, diagonal inverted; 6x6 double; P, one pointer per element position. */
VonkStatus vonkCholeskyDecomp_m_64f_6x6_P(const double *const *src, int32_t srcShift, double *const *dst,
    int32_t dstShift);

/** dst(n) = Cholesky factor of src(n), diagonal inverted; `order` by `order` float, n below count; standard layout.
 * Exceptions: cholesky-signed-count, cholesky-count-zero. */
VonkStatus vonkCholeskyDecomp_ma_32f(const float *src, int32_t srcObjStride, int32_t srcRowStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t order, int32_t count);
/** dst(n) = Cholesky factor of src(n), diagonal inverted; `order` by `order` float, n below count; S2, strided
 * elements. Exceptions: cholesky-whole-strides, cholesky-signed-count, cholesky-count-zero. */
VonkStatus vonkCholeskyDecomp_ma_32f_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
    int32_t srcElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t order, int32_t count);
/** dst(n) = Cholesky factor of src(n), diagonal inverted; `order` by `order` float, n below count; P, one pointer per
 * element position. Exception: cholesky-count-zero. */
VonkStatus vonkCholeskyDecomp_ma_32f_P(const float *const *src, int32_t srcShift, float *const *dst, int32_t dstShift,
    uint32_t order, uint32_t count);
/** dst(n) = Cholesky factor of src(n), diagonal inverted; `order` by `order` float, n below count; PS2, one pointer per
 * element position, strided objects. Exception: cholesky-count-zero. */
VonkStatus vonkCholeskyDecomp_ma_32f_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t order, uint32_t count);
/** dst(n) = Cholesky factor of src(n), diagonal inverted; `order` by `order` float, n below count; L, one pointer per
 * object. Exceptions: cholesky-signed-count, cholesky-count-zero. */
VonkStatus vonkCholeskyDecomp_ma_32f_L(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t order, int32_t count);
/** dst(n) = Cholesky factor of src(n), diagonal inverted; `order` by `order` float, n below count; LS2, one pointer per
 * object, strided elements. Exceptions: cholesky-whole-strides, cholesky-signed-count, cholesky-count-zero. */
VonkStatus vonkCholeskyDecomp_ma_32f_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t order, int32_t count);
/** dst(n) = Cholesky factor of src(n), diagonal inverted; 3x3 float, n below count; standard layout. Exceptions:
 * cholesky-signed-count, cholesky-count-zero. */
VonkStatus vonkCholeskyDecomp_ma_32f_3x3(const float *src, int32_t srcObjStride, int32_t srcRowStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t count);
/** dst(n) = Cholesky factor of src(n), diagonal inverted; 3x3 float, n below count; S2, strided elements. Exceptions:
 * cholesky-whole-strides, cholesky-signed-count, cholesky-count-zero. */
VonkStatus vonkCholeskyDecomp_ma_32f_3x3_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
    int32_t srcElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
    int32_t count);
/** dst(n) = Cholesky factor of src(n), diagonal inverted; 3x3 float, n below count; P, one pointer per element
 * position. Exception: cholesky-count-zero. */
VonkStatus vonkCholeskyDecomp_ma_32f_3x3_P(const float *const *src, int32_t srcShift, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = Cholesky factor of src(n), diagonal inverted; 3x3 float, n below count; PS2, one pointer per element
 * position, strided objects. Exception: cholesky-count-zero. */
VonkStatus vonkCholeskyDecomp_ma_32f_3x3_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = Cholesky factor of src(n), diagonal inverted; 3x3 float, n below count; L, one pointer per object.
 * Exceptions: cholesky-signed-count, cholesky-count-zero. */
VonkStatus vonkCholeskyDecomp_ma_32f_3x3_L(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t count);
/** dst(n) = Cholesky factor of src(n), diagonal inverted; 3x3 float, n below count; LS2, one pointer per object,
 * strided elements. Exceptions: cholesky-whole-strides, cholesky-signed-count, cholesky-count-zero. */
VonkStatus vonkCholeskyDecomp_ma_32f_3x3_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride,
    int32_t count);
/** dst(n) = Cholesky factor of src(n), diagonal inverted; 4x4 float, n below count; standard layout. Exceptions:
 * cholesky-signed-count, cholesky-count-zero. */
VonkStatus vonkCholeskyDecomp_ma_32f_4x4(const float *src, int32_t srcObjStride, int32_t srcRowStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t count);
/** dst(n) = Cholesky factor of src(n), diagonal inverted; 4x4 float, n below count; S2, strided elements. Exceptions:
 * cholesky-whole-strides, cholesky-signed-count, cholesky-count-zero. */
VonkStatus vonkCholeskyDecomp_ma_32f_4x4_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
    int32_t srcElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
    int32_t count);
/** dst(n) = Cholesky factor of src(n), diagonal inverted; 4x4 float, n below count; P, one pointer per element
 * position. Exception: cholesky-count-zero. */
VonkStatus vonkCholeskyDecomp_ma_32f_4x4_P(const float *const *src, int32_t srcShift, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = Cholesky factor of src(n), diagonal inverted; 4x4 float, n below count; PS2, one pointer per element
 * position, strided objects. Exception: cholesky-count-zero. */
VonkStatus vonkCholeskyDecomp_ma_32f_4x4_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = Cholesky factor of src(n), diagonal inverted; 4x4 float, n below count; L, one pointer per object.
 * Exceptions: cholesky-signed-count, cholesky-count-zero. */
VonkStatus vonkCholeskyDecomp_ma_32f_4x4_L(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t count);
/** dst(n) = Cholesky factor of src(n), diagonal inverted; 4x4 float, n below count; LS2, one pointer per object,
 * strided elements. Exceptions: cholesky-whole-strides, cholesky-signed-count, cholesky-count-zero. */
VonkStatus vonkCholeskyDecomp_ma_32f_4x4_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride,
    int32_t count);
/** dst(n) = Cholesky factor of src(n), diagonal inverted; 5x5 float, n below count; standard layout. Exceptions:
 * cholesky-signed-count, cholesky-count-zero. */
VonkStatus vonkCholeskyDecomp_ma_32f_5x5(const float *src, int32_t srcObjStride, int32_t srcRowStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t count);
/** dst(n) = Cholesky factor of src(n), diagonal inverted; 5x5 float, n below count; S2, strided elements. Exceptions:
 * cholesky-whole-strides, cholesky-signed-count, cholesky-count-zero. */
VonkStatus vonkCholeskyDecomp_ma_32f_5x5_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
    int32_t srcElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
    int32_t count);
/** dst(n) = Cholesky factor of src(n), diagonal inverted; 5x5 float, n below count; P, one pointer per element
 * position. Exception: cholesky-count-zero. */
VonkStatus vonkCholeskyDecomp_ma_32f_5x5_P(const float *const *src, int32_t srcShift, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = Cholesky factor of src(n), diagonal inverted; 5x5 float, n below count; PS2, one pointer per element
 * position, strided objects. Exception: cholesky-count-zero. */
VonkStatus vonkCholeskyDecomp_ma_32f_5x5_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = Cholesky factor of src(n), diagonal inverted; 5x5 float, n below count; L, one pointer per object.
 * Exceptions: cholesky-signed-count, cholesky-count-zero. */
VonkStatus vonkCholeskyDecomp_ma_32f_5x5_L(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t count);
/** dst(n) = Cholesky factor of src(n), diagonal inverted; 5x5 float, n below count; LS2, one pointer per object,
 * strided elements. Exceptions: cholesky-whole-strides, cholesky-signed-count, cholesky-count-zero. */
VonkStatus vonkCholeskyDecomp_ma_32f_5x5_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride,
    int32_t count);
/** dst(n) = Cholesky factor of src(n), diagonal inverted; 6x6 float, n below count; standard layout. Exceptions:
 * cholesky-signed-count, cholesky-count-zero. */
VonkStatus vonkCholeskyDecomp_ma_32f_6x6(const float *src, int32_t srcObjStride, int32_t srcRowStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t count);
/** dst(n) = Cholesky factor of src(n), diagonal inverted; 6x6 float, n below count; S2, strided elements. Exceptions:
 * cholesky-whole-strides, cholesky-signed-count, cholesky-count-zero. */
VonkStatus vonkCholeskyDecomp_ma_32f_6x6_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
    int32_t srcElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
    int32_t count);
/** dst(n) = Cholesky factor of src(n), diagonal inverted; 6x6 float, n below count; P, one pointer per element
 * position. Exception: cholesky-count-zero. */
VonkStatus vonkCholeskyDecomp_ma_32f_6x6_P(const float *const *src, int32_t srcShift, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = Cholesky factor of src(n), diagonal inverted; 6x6 float, n below count; PS2, one pointer per element
 * position, strided objects. Exception: cholesky-count-zero. */
VonkStatus vonkCholeskyDecomp_ma_32f_6x6_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = Cholesky factor of src(n), diagonal inverted; 6x6 float, n below count; L, one pointer per object.
 * Exceptions: cholesky-signed-count, cholesky-count-zero. */
VonkStatus vonkCholeskyDecomp_ma_32f_6x6_L(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t count);
/** dst(n) = Cholesky factor of src(n), diagonal inverted; 6x6 float, n below count; LS2, one pointer per object,
 * strided elements. Exceptions: cholesky-whole-strides, cholesky-signed-count, cholesky-count-zero. */
VonkStatus vonkCholeskyDecomp_ma_32f_6x6_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride,
    int32_t count);

/** dst(n) = Cholesky factor of src(n), diagonal inverted; `order` by `order` double, n below count; standard layout.
 * Exceptions: cholesky-signed-count, cholesky-count-zero, cholesky-first-nan. */
VonkStatus vonkCholeskyDecomp_ma_64f(const double *src, int32_t srcObjStride, int32_t srcRowStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t order, int32_t count);
/** dst(n) = Cholesky factor of src(n), diagonal inverted; `order` by `order` double, n below count; S2, strided
 * elements. Exceptions: cholesky-whole-strides, cholesky-signed-count, cholesky-count-zero, cholesky-first-nan. */
VonkStatus vonkCholeskyDecomp_ma_64f_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
    int32_t srcElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t order, int32_t count);
/** dst(n) = Cholesky factor of src(n), diagonal inverted; `order` by `order` double, n below count; P, one pointer per
 * element position. Exception: cholesky-count-zero. */
VonkStatus vonkCholeskyDecomp_ma_64f_P(const double *const *src, int32_t srcShift, double *const *dst, int32_t dstShift,
    uint32_t order, uint32_t count);
/** dst(n) = Cholesky factor of src(n), diagonal inverted; `order` by `order` double, n below count; PS2, one pointer
 * per element position, strided objects. Exception: cholesky-count-zero. */
VonkStatus vonkCholeskyDecomp_ma_64f_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t order, uint32_t count);
/** dst(n) = Cholesky factor of src(n), diagonal inverted; `order` by `order` double, n below count; L, one pointer per
 * object. Exceptions: cholesky-signed-count, cholesky-count-zero, cholesky-first-nan. */
VonkStatus vonkCholeskyDecomp_ma_64f_L(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t order, int32_t count);
/** dst(n) = Cholesky factor of src(n), diagonal inverted; `order` by `order` double, n below count; LS2, one pointer
 * per object, strided elements. Exceptions: cholesky-whole-strides, cholesky-signed-count, cholesky-count-zero,
 * cholesky-first-nan. */
VonkStatus vonkCholeskyDecomp_ma_64f_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t order, int32_t count);
/** dst(n) = Cholesky factor of src(n), diagonal inverted; 3x3 double, n below count; standard layout. Exceptions:
 * cholesky-signed-count, cholesky-count-zero, cholesky-first-nan. */
VonkStatus vonkCholeskyDecomp_ma_64f_3x3(const double *src, int32_t srcObjStride, int32_t srcRowStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t count);
/** dst(n) = Cholesky factor of src(n), diagonal inverted; 3x3 double, n below count; S2, strided elements. Exceptions:
 * cholesky-whole-strides, cholesky-signed-count, cholesky-count-zero, cholesky-first-nan. */
VonkStatus vonkCholeskyDecomp_ma_64f_3x3_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
    int32_t srcElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
    int32_t count);
/** dst(n) = Cholesky factor of src(n), diagonal inverted; 3x3 double, n below count; P, one pointer per element
 * position. Exception: cholesky-count-zero. */
VonkStatus vonkCholeskyDecomp_ma_64f_3x3_P(const double *const *src, int32_t srcShift, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = Cholesky factor of src(n), diagonal inverted; 3x3 double, n below count; PS2, one pointer per element
 * position, strided objects. Exception: cholesky-count-zero. */
VonkStatus vonkCholeskyDecomp_ma_64f_3x3_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = Cholesky factor of src(n), diagonal inverted; 3x3 double, n below count; L, one pointer per object.
 * Exceptions: cholesky-signed-count, cholesky-count-zero, cholesky-first-nan. */
VonkStatus vonkCholeskyDecomp_ma_64f_3x3_L(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t count);
/** dst(n) = Cholesky factor of src(n), diagonal inverted; 3x3 double, n below count; LS2, one pointer per object,
 * strided elements. Exceptions: cholesky-whole-strides, cholesky-signed-count, cholesky-count-zero, cholesky-first-nan.
 * */
VonkStatus vonkCholeskyDecomp_ma_64f_3x3_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride,
    int32_t count);
/** dst(n) = Cholesky factor of src(n), diagonal inverted; 4x4 double, n below count; standard layout. Exceptions:
 * cholesky-signed-count, cholesky-count-zero, cholesky-first-nan. */
VonkStatus vonkCholeskyDecomp_ma_64f_4x4(const double *src, int32_t srcObjStride, int32_t srcRowStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t count);
/** dst(n) = Cholesky factor of src(n), diagonal inverted; 4x4 double, n below count; S2, strided elements. Exceptions:
 * cholesky-whole-strides, cholesky-signed-count, cholesky-count-zero, cholesky-first-nan. */
VonkStatus vonkCholeskyDecomp_ma_64f_4x4_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
    int32_t srcElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
    int32_t count);
/** dst(n) = Cholesky factor of src(n), diagonal inverted; 4x4 double, n below count; P, one pointer per element
 * position. Exception: cholesky-count-zero. */
VonkStatus vonkCholeskyDecomp_ma_64f_4x4_P(const double *const *src, int32_t srcShift, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = Cholesky factor of src(n), diagonal inverted; 4x4 double, n below count; PS2, one pointer per element
 * position, strided objects. Exception: cholesky-count-zero. */
VonkStatus vonkCholeskyDecomp_ma_64f_4x4_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = Cholesky factor of src(n), diagonal inverted; 4x4 double, n below count; L, one pointer per object.
 * Exceptions: cholesky-signed-count, cholesky-count-zero, cholesky-first-nan. */
VonkStatus vonkCholeskyDecomp_ma_64f_4x4_L(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t count);
/** dst(n) = Cholesky factor of src(n), diagonal inverted; 4x4 double, n below count; LS2, one pointer per object,
 * strided elements. Exceptions: cholesky-whole-strides, cholesky-signed-count, cholesky-count-zero, cholesky-first-nan.
 * */
VonkStatus vonkCholeskyDecomp_ma_64f_4x4_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride,
    int32_t count);
/** dst(n) = Cholesky factor of src(n), diagonal inverted; 5x5 double, n below count; standard layout. Exceptions:
 * cholesky-signed-count, cholesky-count-zero. */
VonkStatus vonkCholeskyDecomp_ma_64f_5x5(const double *src, int32_t srcObjStride, int32_t srcRowStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t count);
/** dst(n) = Cholesky factor of src(n), diagonal inverted; 5x5 double, n below count; S2, strided elements. Exceptions:
 * cholesky-whole-strides, cholesky-signed-count, cholesky-count-zero. */
VonkStatus vonkCholeskyDecomp_ma_64f_5x5_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
    int32_t srcElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
    int32_t count);
/** dst(n) = Cholesky factor of src(n), diagonal inverted; 5x5 double, n below count; P, one pointer per element
 * position. Exception: cholesky-count-zero. */
VonkStatus vonkCholeskyDecomp_ma_64f_5x5_P(const double *const *src, int32_t srcShift, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = Cholesky factor of src(n), diagonal inverted; 5x5 double, n below count; PS2, one pointer per element
 * position, strided objects. Exception: cholesky-count-zero. */
VonkStatus vonkCholeskyDecomp_ma_64f_5x5_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = Cholesky factor of src(n), diagonal inverted; 5x5 double, n below count; L, one pointer per object.
 * Exceptions: cholesky-signed-count, cholesky-count-zero. */
VonkStatus vonkCholeskyDecomp_ma_64f_5x5_L(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t count);
/** dst(n) = Cholesky factor of src(n), diagonal inverted; 5x5 double, n below count; LS2, one pointer per object,
 * strided elements. Exceptions: cholesky-whole-strides, cholesky-signed-count, cholesky-count-zero. */
VonkStatus vonkCholeskyDecomp_ma_64f_5x5_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride,
    int32_t count);
/** dst(n) = Cholesky factor of src(n), diagonal inverted; 6x6 double, n below count; standard layout. Exceptions:
 * cholesky-signed-count, cholesky-count-zero. */
VonkStatus vonkCholeskyDecomp_ma_64f_6x6(const double *src, int32_t srcObjStride, int32_t srcRowStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t count);
/** dst(n) = Cholesky factor of src(n), diagonal inverted; 6x6 double, n below count; S2, strided elements. Exceptions:
 * cholesky-whole-strides, cholesky-signed-count, cholesky-count-zero. */
VonkStatus vonkCholeskyDecomp_ma_64f_6x6_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
    int32_t srcElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
    int32_t count);
/** dst(n) = Cholesky factor of src(n), diagonal inverted; 6x6 double, n below count; P, one pointer per element
 * position. Exception: cholesky-count-zero. */
VonkStatus vonkCholeskyDecomp_ma_64f_6x6_P(const double *const *src, int32_t srcShift, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = Cholesky factor of src(n), diagonal inverted; 6x6 double, n below count; PS2, one pointer per element
 * position, strided objects. Exception: cholesky-count-zero. */
VonkStatus vonkCholeskyDecomp_ma_64f_6x6_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = Cholesky factor of src(n), diagonal inverted; 6x6 double, n below count; L, one pointer per object.
 * Exceptions: cholesky-signed-count, cholesky-count-zero. */
VonkStatus vonkCholeskyDecomp_ma_64f_6x6_L(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t count);
/** dst(n) = Cholesky factor of src(n), diagonal inverted; 6x6 double, n below count; LS2, one pointer per object,
 * strided elements. Exceptions: cholesky-whole-strides, cholesky-signed-count, cholesky-count-zero. */
VonkStatus vonkCholeskyDecomp_ma_64f_6x6_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride,
    int32_t count);

/* ---- Cholesky back substitution -------------------------------------------------------------------------------------
 *
 * vonkCholeskyBackSubst solves A x = b with what vonkCholeskyDecomp left: `src1` the factor F with the reciprocals on
 * its diagonal, `src2` the right-hand side b, `dst` the solution x, of `order` elements. Groups: `mv` one system; `mva`
 * one factor for `count` right-hand sides, with no ignored argument after `src1`, unlike the other two families of
 * solvers; `mava` a factor per object. Nothing above the diagonal of `src1` is read.
 *
 * Forward: x(i) = (b(i) - the sum of F(i, k) x(k) over k < i) F(i, i). Backward, from the last row up: x(i) = (x(i) -
 * the sum of F(k, i) x(k) over k > i) F(i, i). Products are subtracted one by one, forward with k ascending, backward
 * with k DESCENDING; x is its own workspace. `32f` rounds every operation; `64f` is computed in the 80-bit type and
 * rounded where it is stored. Nothing divides. Method: Golub and Van Loan, Matrix Computations, "Triangular systems".
 *
 * Status: vonkErrNullPtr if `src1`, `src2` or `dst` is null; vonkErrSize if `order` is 0; else vonkOk. Neither the
 * numbers nor entries of tables and lists are checked; but in `L` and `LS2` an object one of whose entries is null once
 * its shift is added is skipped, with no error, and the next is solved.
 *
 * Overlap:
 * Overlap is not checked; both sweeps read what memory holds by then. `dst` may be `src2`.
 *
 * Exceptions:
 * - cholesky-solve-signed-count (arguments): vonkCholeskyBackSubst_{mva,mava}_*
 *   `count` is signed: with its top bit set nothing is done, and the status is vonkOk.
 * - cholesky-solve-signed-order (arguments): vonkCholeskyBackSubst_{mv_{32f,64f}_S2,{mva,mava}_{32f,64f}_{S2,LS2}}
 *   `order` is signed: with its top bit set nothing is done, and the status is vonkOk.
 * - cholesky-solve-count-zero (status): vonkCholeskyBackSubst_{mva,mava}_*
 *   `count` 0 is vonkErrSize.
 */

/** dst = solution of A x = src2 from the Cholesky factor src1; `order` by `order` float; standard layout. */
VonkStatus vonkCholeskyBackSubst_mv_32f(const float *src1, int32_t src1RowStride, const float *src2, float *dst,
    uint32_t order);
/** dst = solution of A x = src2 from the Cholesky factor src1; `order` by `order` float; S2, strided elements.
 * Exception: cholesky-solve-signed-order. */
VonkStatus vonkCholeskyBackSubst_mv_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *src2, int32_t src2ElemStride, float *dst, int32_t dstElemStride, int32_t order);
/** dst = solution of A x = src2 from the Cholesky factor src1; `order` by `order` float; P, one pointer per element
 * position. */
VonkStatus vonkCholeskyBackSubst_mv_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t order);
/** dst = solution of A x = src2 from the Cholesky factor src1; 3x3 float; standard layout. */
VonkStatus vonkCholeskyBackSubst_mv_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2, float *dst);
/** dst = solution of A x = src2 from the Cholesky factor src1; 3x3 float; S2, strided elements. */
VonkStatus vonkCholeskyBackSubst_mv_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *src2, int32_t src2ElemStride, float *dst, int32_t dstElemStride);
/** dst = solution of A x = src2 from the Cholesky factor src1; 3x3 float; P, one pointer per element position. */
VonkStatus vonkCholeskyBackSubst_mv_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
/** dst = solution of A x = src2 from the Cholesky factor src1; 4x4 float; standard layout. */
VonkStatus vonkCholeskyBackSubst_mv_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2, float *dst);
/** dst = solution of A x = src2 from the Cholesky factor src1; 4x4 float; S2, strided elements. */
VonkStatus vonkCholeskyBackSubst_mv_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *src2, int32_t src2ElemStride, float *dst, int32_t dstElemStride);
/** dst = solution of A x = src2 from the Cholesky factor src1; 4x4 float; P, one pointer per element position. */
VonkStatus vonkCholeskyBackSubst_mv_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
/** dst = solution of A x = src2 from the Cholesky factor src1; 5x5 float; standard layout. */
VonkStatus vonkCholeskyBackSubst_mv_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2, float *dst);
/** dst = solution of A x = src2 from the Cholesky factor src1; 5x5 float; S2, strided elements. */
VonkStatus vonkCholeskyBackSubst_mv_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *src2, int32_t src2ElemStride, float *dst, int32_t dstElemStride);
/** dst = solution of A x = src2 from the Cholesky factor src1; 5x5 float; P, one pointer per element position. */
VonkStatus vonkCholeskyBackSubst_mv_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
/** dst = solution of A x = src2 from the Cholesky factor src1; 6x6 float; standard layout. */
VonkStatus vonkCholeskyBackSubst_mv_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2, float *dst);
/** dst = solution of A x = src2 from the Cholesky factor src1; 6x6 float; S2, strided elements. */
VonkStatus vonkCholeskyBackSubst_mv_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *src2, int32_t src2ElemStride, float *dst, int32_t dstElemStride);
/** dst = solution of A x = src2 from the Cholesky factor src1; 6x6 float; P, one pointer per element position. */
VonkStatus vonkCholeskyBackSubst_mv_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);

/** dst = solution of A x = src2 from the Cholesky factor src1; `order` by `order` double; standard layout. */
VonkStatus vonkCholeskyBackSubst_mv_64f(const double *src1, int32_t src1RowStride, const double *src2, double *dst,
    uint32_t order);
/** dst = solution of A x = src2 from the Cholesky factor src1; `order` by `order` double; S2, strided elements.
 * Exception: cholesky-solve-signed-order. */
VonkStatus vonkCholeskyBackSubst_mv_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ElemStride, double *dst, int32_t dstElemStride, int32_t order);
/** dst = solution of A x = src2 from the Cholesky factor src1; `order` by `order` double; P, one pointer per element
 * position. */
VonkStatus vonkCholeskyBackSubst_mv_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t order);
/** dst = solution of A x = src2 from the Cholesky factor src1; 3x3 double; standard layout. */
VonkStatus vonkCholeskyBackSubst_mv_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2, double *dst);
/** dst = solution of A x = src2 from the Cholesky factor src1; 3x3 double; S2, strided elements. */
VonkStatus vonkCholeskyBackSubst_mv_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ElemStride, double *dst, int32_t dstElemStride);
/** dst = solution of A x = src2 from the Cholesky factor src1; 3x3 double; P, one pointer per element position. */
VonkStatus vonkCholeskyBackSubst_mv_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
/** dst = solution of A x = src2 from the Cholesky factor src1; 4x4 double; standard layout. */
VonkStatus vonkCholeskyBackSubst_mv_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2, double *dst);
/** dst = solution of A x = src2 from the Cholesky factor src1; 4x4 double; S2, strided elements. */
VonkStatus vonkCholeskyBackSubst_mv_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ElemStride, double *dst, int32_t dstElemStride);
/** dst = solution of A x = src2 from the Cholesky factor src1; 4x4 double; P, one pointer per element position. */
VonkStatus vonkCholeskyBackSubst_mv_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
/** dst = solution of A x = src2 from the Cholesky factor src1; 5x5 double; standard layout. */
VonkStatus vonkCholeskyBackSubst_mv_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2, double *dst);
/** dst = solution of A x = src2 from the Cholesky factor src1; 5x5 double; S2, strided elements. */
VonkStatus vonkCholeskyBackSubst_mv_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ElemStride, double *dst, int32_t dstElemStride);
/** dst = solution of A x = src2 from the Cholesky factor src1; 5x5 double; P, one pointer per element position. */
VonkStatus vonkCholeskyBackSubst_mv_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
/** dst = solution of A x = src2 from the Cholesky factor src1; 6x6 double; standard layout. */
VonkStatus vonkCholeskyBackSubst_mv_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2, double *dst);
/** dst = solution of A x = src2 from the Cholesky factor src1; 6x6 double; S2, strided elements. */
VonkStatus vonkCholeskyBackSubst_mv_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ElemStride, double *dst, int32_t dstElemStride);
/** dst = solution of A x = src2 from the Cholesky factor src1; 6x6 double; P, one pointer per element position. */
VonkStatus vonkCholeskyBackSubst_mv_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);

/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1; `order` by `order` float, n below count; standard
 * layout. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mva_32f(const float *src1, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t order, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1; `order` by `order` float, n below count; S2,
 * strided elements. Exceptions: cholesky-solve-signed-count, cholesky-solve-signed-order, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mva_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstElemStride, int32_t order, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1; `order` by `order` float, n below count; P, one
 * pointer per element position. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mva_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t order, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1; `order` by `order` float, n below count; PS2, one
 * pointer per element position, strided objects. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mva_32f_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t order,
    int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1; `order` by `order` float, n below count; L, one
 * pointer per object. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mva_32f_L(const float *src1, int32_t src1RowStride, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t order, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1; `order` by `order` float, n below count; LS2, one
 * pointer per object, strided elements. Exceptions: cholesky-solve-signed-count, cholesky-solve-signed-order,
 * cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mva_32f_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float *const *dst, int32_t dstShift,
    int32_t dstElemStride, int32_t order, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1; 3x3 float, n below count; standard layout.
 * Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mva_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, float *dst, int32_t dstObjStride, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1; 3x3 float, n below count; S2, strided elements.
 * Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mva_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstElemStride, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1; 3x3 float, n below count; P, one pointer per
 * element position. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mva_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1; 3x3 float, n below count; PS2, one pointer per
 * element position, strided objects. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mva_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1; 3x3 float, n below count; L, one pointer per
 * object. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mva_32f_3x3_L(const float *src1, int32_t src1RowStride, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1; 3x3 float, n below count; LS2, one pointer per
 * object, strided elements. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mva_32f_3x3_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float *const *dst, int32_t dstShift,
    int32_t dstElemStride, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1; 4x4 float, n below count; standard layout.
 * Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mva_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, float *dst, int32_t dstObjStride, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1; 4x4 float, n below count; S2, strided elements.
 * Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mva_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstElemStride, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1; 4x4 float, n below count; P, one pointer per
 * element position. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mva_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1; 4x4 float, n below count; PS2, one pointer per
 * element position, strided objects. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mva_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1; 4x4 float, n below count; L, one pointer per
 * object. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mva_32f_4x4_L(const float *src1, int32_t src1RowStride, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1; 4x4 float, n below count; LS2, one pointer per
 * object, strided elements. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mva_32f_4x4_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float *const *dst, int32_t dstShift,
    int32_t dstElemStride, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1; 5x5 float, n below count; standard layout.
 * Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mva_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, float *dst, int32_t dstObjStride, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1; 5x5 float, n below count; S2, strided elements.
 * Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mva_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstElemStride, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1; 5x5 float, n below count; P, one pointer per
 * element position. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mva_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1; 5x5 float, n below count; PS2, one pointer per
 * element position, strided objects. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mva_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1; 5x5 float, n below count; L, one pointer per
 * object. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mva_32f_5x5_L(const float *src1, int32_t src1RowStride, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1; 5x5 float, n below count; LS2, one pointer per
 * object, strided elements. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mva_32f_5x5_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float *const *dst, int32_t dstShift,
    int32_t dstElemStride, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1; 6x6 float, n below count; standard layout.
 * Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mva_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, float *dst, int32_t dstObjStride, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1; 6x6 float, n below count; S2, strided elements.
 * Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mva_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstElemStride, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1; 6x6 float, n below count; P, one pointer per
 * element position. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mva_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1; 6x6 float, n below count; PS2, one pointer per
 * element position, strided objects. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mva_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1; 6x6 float, n below count; L, one pointer per
 * object. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mva_32f_6x6_L(const float *src1, int32_t src1RowStride, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1; 6x6 float, n below count; LS2, one pointer per
 * object, strided elements. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mva_32f_6x6_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float *const *dst, int32_t dstShift,
    int32_t dstElemStride, int32_t count);

/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1; `order` by `order` double, n below count; standard
 * layout. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mva_64f(const double *src1, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, double *dst, int32_t dstObjStride, uint32_t order, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1; `order` by `order` double, n below count; S2,
 * strided elements. Exceptions: cholesky-solve-signed-count, cholesky-solve-signed-order, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mva_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstElemStride, int32_t order, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1; `order` by `order` double, n below count; P, one
 * pointer per element position. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mva_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t order, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1; `order` by `order` double, n below count; PS2, one
 * pointer per element position, strided objects. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mva_64f_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t order, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1; `order` by `order` double, n below count; L, one
 * pointer per object. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mva_64f_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t order, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1; `order` by `order` double, n below count; LS2, one
 * pointer per object, strided elements. Exceptions: cholesky-solve-signed-count, cholesky-solve-signed-order,
 * cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mva_64f_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double *const *dst, int32_t dstShift,
    int32_t dstElemStride, int32_t order, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1; 3x3 double, n below count; standard layout.
 * Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mva_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, double *dst, int32_t dstObjStride, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1; 3x3 double, n below count; S2, strided elements.
 * Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mva_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstElemStride, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1; 3x3 double, n below count; P, one pointer per
 * element position. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mva_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1; 3x3 double, n below count; PS2, one pointer per
 * element position, strided objects. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mva_64f_3x3_PS2(const double *const *src1, int32_t src1Shift,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1; 3x3 double, n below count; L, one pointer per
 * object. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mva_64f_3x3_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1; 3x3 double, n below count; LS2, one pointer per
 * object, strided elements. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mva_64f_3x3_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double *const *dst, int32_t dstShift,
    int32_t dstElemStride, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1; 4x4 double, n below count; standard layout.
 * Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mva_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, double *dst, int32_t dstObjStride, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1; 4x4 double, n below count; S2, strided elements.
 * Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mva_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstElemStride, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1; 4x4 double, n below count; P, one pointer per
 * element position. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mva_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1; 4x4 double, n below count; PS2, one pointer per
 * element position, strided objects. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mva_64f_4x4_PS2(const double *const *src1, int32_t src1Shift,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1; 4x4 double, n below count; L, one pointer per
 * object. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mva_64f_4x4_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1; 4x4 double, n below count; LS2, one pointer per
 * object, strided elements. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mva_64f_4x4_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double *const *dst, int32_t dstShift,
    int32_t dstElemStride, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1; 5x5 double, n below count; standard layout.
 * Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mva_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, double *dst, int32_t dstObjStride, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1; 5x5 double, n below count; S2, strided elements.
 * Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mva_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstElemStride, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1; 5x5 double, n below count; P, one pointer per
 * element position. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mva_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1; 5x5 double, n below count; PS2, one pointer per
 * element position, strided objects. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mva_64f_5x5_PS2(const double *const *src1, int32_t src1Shift,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1; 5x5 double, n below count; L, one pointer per
 * object. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mva_64f_5x5_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1; 5x5 double, n below count; LS2, one pointer per
 * object, strided elements. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mva_64f_5x5_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double *const *dst, int32_t dstShift,
    int32_t dstElemStride, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1; 6x6 double, n below count; standard layout.
 * Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mva_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, double *dst, int32_t dstObjStride, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1; 6x6 double, n below count; S2, strided elements.
 * Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mva_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstElemStride, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1; 6x6 double, n below count; P, one pointer per
 * element position. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mva_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1; 6x6 double, n below count; PS2, one pointer per
 * element position, strided objects. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mva_64f_6x6_PS2(const double *const *src1, int32_t src1Shift,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1; 6x6 double, n below count; L, one pointer per
 * object. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mva_64f_6x6_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1; 6x6 double, n below count; LS2, one pointer per
 * object, strided elements. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mva_64f_6x6_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double *const *dst, int32_t dstShift,
    int32_t dstElemStride, int32_t count);

/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1(n); `order` by `order` float, n below count;
 * standard layout. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mava_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    const float *src2, int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t order, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1(n); `order` by `order` float, n below count; S2,
 * strided elements. Exceptions: cholesky-solve-signed-count, cholesky-solve-signed-order, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mava_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstElemStride, int32_t order, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1(n); `order` by `order` float, n below count; P, one
 * pointer per element position. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mava_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t order, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1(n); `order` by `order` float, n below count; PS2,
 * one pointer per element position, strided objects. Exceptions: cholesky-solve-signed-count,
 * cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mava_32f_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t order, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1(n); `order` by `order` float, n below count; L, one
 * pointer per object. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mava_32f_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t order, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1(n); `order` by `order` float, n below count; LS2,
 * one pointer per object, strided elements. Exceptions: cholesky-solve-signed-count, cholesky-solve-signed-order,
 * cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mava_32f_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstElemStride, int32_t order, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1(n); 3x3 float, n below count; standard layout.
 * Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mava_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    const float *src2, int32_t src2ObjStride, float *dst, int32_t dstObjStride, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1(n); 3x3 float, n below count; S2, strided elements.
 * Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mava_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstElemStride, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1(n); 3x3 float, n below count; P, one pointer per
 * element position. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mava_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1(n); 3x3 float, n below count; PS2, one pointer per
 * element position, strided objects. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mava_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1(n); 3x3 float, n below count; L, one pointer per
 * object. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mava_32f_3x3_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1(n); 3x3 float, n below count; LS2, one pointer per
 * object, strided elements. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mava_32f_3x3_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstElemStride, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1(n); 4x4 float, n below count; standard layout.
 * Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mava_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    const float *src2, int32_t src2ObjStride, float *dst, int32_t dstObjStride, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1(n); 4x4 float, n below count; S2, strided elements.
 * Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mava_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstElemStride, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1(n); 4x4 float, n below count; P, one pointer per
 * element position. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mava_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1(n); 4x4 float, n below count; PS2, one pointer per
 * element position, strided objects. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mava_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1(n); 4x4 float, n below count; L, one pointer per
 * object. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mava_32f_4x4_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1(n); 4x4 float, n below count; LS2, one pointer per
 * object, strided elements. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mava_32f_4x4_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstElemStride, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1(n); 5x5 float, n below count; standard layout.
 * Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mava_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    const float *src2, int32_t src2ObjStride, float *dst, int32_t dstObjStride, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1(n); 5x5 float, n below count; S2, strided elements.
 * Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mava_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstElemStride, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1(n); 5x5 float, n below count; P, one pointer per
 * element position. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mava_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1(n); 5x5 float, n below count; PS2, one pointer per
 * element position, strided objects. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mava_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1(n); 5x5 float, n below count; L, one pointer per
 * object. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mava_32f_5x5_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1(n); 5x5 float, n below count; LS2, one pointer per
 * object, strided elements. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mava_32f_5x5_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstElemStride, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1(n); 6x6 float, n below count; standard layout.
 * Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mava_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    const float *src2, int32_t src2ObjStride, float *dst, int32_t dstObjStride, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1(n); 6x6 float, n below count; S2, strided elements.
 * Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mava_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstElemStride, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1(n); 6x6 float, n below count; P, one pointer per
 * element position. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mava_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1(n); 6x6 float, n below count; PS2, one pointer per
 * element position, strided objects. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mava_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1(n); 6x6 float, n below count; L, one pointer per
 * object. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mava_32f_6x6_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1(n); 6x6 float, n below count; LS2, one pointer per
 * object, strided elements. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mava_32f_6x6_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstElemStride, int32_t count);

/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1(n); `order` by `order` double, n below count;
 * standard layout. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mava_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    const double *src2, int32_t src2ObjStride, double *dst, int32_t dstObjStride, uint32_t order, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1(n); `order` by `order` double, n below count; S2,
 * strided elements. Exceptions: cholesky-solve-signed-count, cholesky-solve-signed-order, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mava_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstElemStride, int32_t order, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1(n); `order` by `order` double, n below count; P,
 * one pointer per element position. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mava_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t order, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1(n); `order` by `order` double, n below count; PS2,
 * one pointer per element position, strided objects. Exceptions: cholesky-solve-signed-count,
 * cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mava_64f_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t order, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1(n); `order` by `order` double, n below count; L,
 * one pointer per object. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mava_64f_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t order, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1(n); `order` by `order` double, n below count; LS2,
 * one pointer per object, strided elements. Exceptions: cholesky-solve-signed-count, cholesky-solve-signed-order,
 * cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mava_64f_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstElemStride, int32_t order, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1(n); 3x3 double, n below count; standard layout.
 * Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mava_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    const double *src2, int32_t src2ObjStride, double *dst, int32_t dstObjStride, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1(n); 3x3 double, n below count; S2, strided
 * elements. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mava_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstElemStride, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1(n); 3x3 double, n below count; P, one pointer per
 * element position. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mava_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1(n); 3x3 double, n below count; PS2, one pointer per
 * element position, strided objects. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mava_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1(n); 3x3 double, n below count; L, one pointer per
 * object. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mava_64f_3x3_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1(n); 3x3 double, n below count; LS2, one pointer per
 * object, strided elements. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mava_64f_3x3_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstElemStride, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1(n); 4x4 double, n below count; standard layout.
 * Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mava_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    const double *src2, int32_t src2ObjStride, double *dst, int32_t dstObjStride, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1(n); 4x4 double, n below count; S2, strided
 * elements. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mava_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstElemStride, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1(n); 4x4 double, n below count; P, one pointer per
 * element position. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mava_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1(n); 4x4 double, n below count; PS2, one pointer per
 * element position, strided objects. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mava_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1(n); 4x4 double, n below count; L, one pointer per
 * object. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mava_64f_4x4_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1(n); 4x4 double, n below count; LS2, one pointer per
 * object, strided elements. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mava_64f_4x4_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstElemStride, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1(n); 5x5 double, n below count; standard layout.
 * Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mava_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    const double *src2, int32_t src2ObjStride, double *dst, int32_t dstObjStride, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1(n); 5x5 double, n below count; S2, strided
 * elements. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mava_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstElemStride, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1(n); 5x5 double, n below count; P, one pointer per
 * element position. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mava_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1(n); 5x5 double, n below count; PS2, one pointer per
 * element position, strided objects. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mava_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1(n); 5x5 double, n below count; L, one pointer per
 * object. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mava_64f_5x5_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1(n); 5x5 double, n below count; LS2, one pointer per
 * object, strided elements. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mava_64f_5x5_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstElemStride, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1(n); 6x6 double, n below count; standard layout.
 * Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mava_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    const double *src2, int32_t src2ObjStride, double *dst, int32_t dstObjStride, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1(n); 6x6 double, n below count; S2, strided
 * elements. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mava_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstElemStride, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1(n); 6x6 double, n below count; P, one pointer per
 * element position. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mava_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1(n); 6x6 double, n below count; PS2, one pointer per
 * element position, strided objects. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mava_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1(n); 6x6 double, n below count; L, one pointer per
 * object. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mava_64f_6x6_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t count);
/** dst(n) = solution of A x = src2(n) from the Cholesky factor src1(n); 6x6 double, n below count; LS2, one pointer per
 * object, strided elements. Exceptions: cholesky-solve-signed-count, cholesky-solve-count-zero. */
VonkStatus vonkCholeskyBackSubst_mava_64f_6x6_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstElemStride, int32_t count);

#ifdef __cplusplus
}
#endif

#endif
