/* vonkk3: LU decomposition; LU back substitution; Determinant; Inverse. See vonkk3.h for names, layouts and units.
 *
 * Generated from the catalogue of functions; do not edit.
 */
#ifndef VONKK3_LU_H
#define VONKK3_LU_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- LU decomposition -----------------------------------------------------------------------------------------------
 *
 * vonkLUDecomp factors each matrix of `src`, `order` by `order`, into a unit lower and an upper triangular factor by
 * Gaussian elimination with partial pivoting. Rows are never moved: `pivots`, `order` row indices per object and packed
 * in every layout, says that logical row k lies in row pivots[k] of `dst`. With p the block of an object, element
 * (p[i], j) of `dst` is the multiplier L(i, j) for j < i and U(i, j) for j >= i; the unit diagonal of L is not stored,
 * and A(p[i], j) is the sum over k of L(i, k) U(k, j).
 *
 * The pivot of a column is the element of largest magnitude, the first of equals. One below the singularity tolerance
 * 2^-23 = 1.1920928955078125e-7, an absolute number and the same for both types, ends the call with vonkErrSingular; so
 * does a NaN in its place. Method: Golub and Van Loan, Matrix Computations, "LU with partial pivoting", the
 * outer-product form with row indices in place of row exchanges.
 *
 * Status: vonkErrNullPtr if `src`, `pivots` or `dst` is null; vonkErrSize if `order` is 0; vonkErrNullPtr if a table
 * entry is null, even at `count` 0 (`P`, `PS2`), or a list entry when the object's turn comes (`L`, `LS2`); `count` 0
 * gives vonkOk. vonkErrSingular leaves the objects before the failing one complete, that one as far as it got (a
 * failure at the last pivot leaves it complete), and those after it untouched, in `dst` and in `pivots`.
 *
 * Overlap:
 * Overlap is not checked. `dst` may be `src` (in place), with the same strides or tables. A partial overlap behaves as
 * the copy from `src` to `dst` that each object begins with: element by element, ascending. `pivots` must overlap
 * neither.
 *
 * Exceptions:
 * - lu-unrounded-quotient (arithmetic): vonkLUDecomp_{m,ma}_64f_{3x3,4x4,5x5}*
 *   Rows are updated with the unrounded quotient. Run-time size and 6x6 use the stored multiplier.
 * - lu-nan-position (arithmetic): vonkLUDecomp_{m,ma}_64f_{3x3,4x4,5x5}*
 *   Candidates for the pivot come in pairs. If the first of a pair and the best so far are unordered (one is a NaN),
 *   the candidate's position is taken, but not its value. `32f` passes over a NaN.
 * - lu-nan-value (arithmetic): vonkLUDecomp_m_64f{,_6x6}{,_S2,_P}
 *   Candidates for the pivot come in pairs. If the first of a pair and the best so far are unordered (one is a NaN),
 *   the candidate's value is taken, but not its position. `32f` passes over a NaN.
 * - lu-nan-candidate (arithmetic): vonkLUDecomp_ma_64f{,_6x6}{,_S2,_P,_PS2,_L,_LS2}
 *   Candidates for the pivot come in pairs. If the first of a pair and the best so far are unordered (one is a NaN),
 *   the candidate's value and position are taken. `32f` passes over a NaN.
 * - lu-zero-multiplier (arithmetic): vonkLUDecomp_{m,ma}_32f*
 *   A zero multiplier is negated to +0. `64f` negates it to -0.
 * - lu-displaced-last-pivot (status): vonkLUDecomp_ma_*
 *   The check of the LAST pivot of object n reads the element n * `order` columns beyond it. The last pivot of an
 *   object other than the first is thus not checked, and a regular object fails if what lies there is too small.
 * - lu-reads-displaced-pivot (reads): vonkLUDecomp_ma_*
 *   With the last pivot of object n at row r of `dst`, one element is read n * `order` * element size bytes after it
 *   (standard and `L`), n * `order` * `dstElemStride` bytes after it (`S2`, `LS2`), or through entry (r + n) * `order`
 *   + `order` - 1 of the `dst` table (`P`, `PS2`). This is past the end of an array or table for its last objects:
 *   leave readable memory there, and mind that its value decides over vonkErrSingular.
 */

/** dst = LU factors of src with partial pivoting; `order` by `order` float; standard layout. Exception:
 * lu-zero-multiplier. */
VonkStatus vonkLUDecomp_m_32f(const float *src, int32_t srcRowStride, uint32_t *pivots, float *dst,
    int32_t dstRowStride, uint32_t order);
/** dst = LU factors of src with partial pivoting; `order` by `order` float; S2, strided elements. Exception:
 * lu-zero-multiplier. */
VonkStatus vonkLUDecomp_m_32f_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, uint32_t *pivots,
    float *dst, int32_t dstRowStride, int32_t dstElemStride, uint32_t order);
/** dst = LU factors of src with partial pivoting; `order` by `order` float; P, one pointer per element position.
 * Exception: lu-zero-multiplier. */
VonkStatus vonkLUDecomp_m_32f_P(const float *const *src, int32_t srcShift, uint32_t *pivots, float *const *dst,
    int32_t dstShift, uint32_t order);
/** dst = LU factors of src with partial pivoting; 3x3 float; standard layout. Exception: lu-zero-multiplier. */
VonkStatus vonkLUDecomp_m_32f_3x3(const float *src, int32_t srcRowStride, uint32_t *pivots, float *dst,
    int32_t dstRowStride);
/** dst = LU factors of src with partial pivoting; 3x3 float; S2, strided elements. Exception: lu-zero-multiplier. */
VonkStatus vonkLUDecomp_m_32f_3x3_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, uint32_t *pivots,
    float *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = LU factors of src with partial pivoting; 3x3 float; P, one pointer per element position. Exception:
 * lu-zero-multiplier. */
VonkStatus vonkLUDecomp_m_32f_3x3_P(const float *const *src, int32_t srcShift, uint32_t *pivots, float *const *dst,
    int32_t dstShift);
/** dst = LU factors of src with partial pivoting; 4x4 float; standard layout. Exception: lu-zero-multiplier. */
VonkStatus vonkLUDecomp_m_32f_4x4(const float *src, int32_t srcRowStride, uint32_t *pivots, float *dst,
    int32_t dstRowStride);
/** dst = LU factors of src with partial pivoting; 4x4 float; S2, strided elements. Exception: lu-zero-multiplier. */
VonkStatus vonkLUDecomp_m_32f_4x4_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, uint32_t *pivots,
    float *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = LU factors of src with partial pivoting; 4x4 float; P, one pointer per element position. Exception:
 * lu-zero-multiplier. */
VonkStatus vonkLUDecomp_m_32f_4x4_P(const float *const *src, int32_t srcShift, uint32_t *pivots, float *const *dst,
    int32_t dstShift);
/** dst = LU factors of src with partial pivoting; 5x5 float; standard layout. Exception: lu-zero-multiplier. */
VonkStatus vonkLUDecomp_m_32f_5x5(const float *src, int32_t srcRowStride, uint32_t *pivots, float *dst,
    int32_t dstRowStride);
/** dst = LU factors of src with partial pivoting; 5x5 float; S2, strided elements. Exception: lu-zero-multiplier. */
VonkStatus vonkLUDecomp_m_32f_5x5_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, uint32_t *pivots,
    float *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = LU factors of src with partial pivoting; 5x5 float; P, one pointer per element position. Exception:
 * lu-zero-multiplier. */
VonkStatus vonkLUDecomp_m_32f_5x5_P(const float *const *src, int32_t srcShift, uint32_t *pivots, float *const *dst,
    int32_t dstShift);
/** dst = LU factors of src with partial pivoting; 6x6 float; standard layout. Exception: lu-zero-multiplier. */
VonkStatus vonkLUDecomp_m_32f_6x6(const float *src, int32_t srcRowStride, uint32_t *pivots, float *dst,
    int32_t dstRowStride);
/** dst = LU factors of src with partial pivoting; 6x6 float; S2, strided elements. Exception: lu-zero-multiplier. */
VonkStatus vonkLUDecomp_m_32f_6x6_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, uint32_t *pivots,
    float *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = LU factors of src with partial pivoting; 6x6 float; P, one pointer per element position. Exception:
 * lu-zero-multiplier. */
VonkStatus vonkLUDecomp_m_32f_6x6_P(const float *const *src, int32_t srcShift, uint32_t *pivots, float *const *dst,
    int32_t dstShift);

/** dst = LU factors of src with partial pivoting; `order` by `order` double; standard layout. Exception: lu-nan-value.
 * */
VonkStatus vonkLUDecomp_m_64f(const double *src, int32_t srcRowStride, uint32_t *pivots, double *dst,
    int32_t dstRowStride, uint32_t order);
/** dst = LU factors of src with partial pivoting; `order` by `order` double; S2, strided elements. Exception:
 * lu-nan-value. */
VonkStatus vonkLUDecomp_m_64f_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, uint32_t *pivots,
    double *dst, int32_t dstRowStride, int32_t dstElemStride, uint32_t order);
/** dst = LU factors of src with partial pivoting; `order` by `order` double; P, one pointer per element position.
 * Exception: lu-nan-value. */
VonkStatus vonkLUDecomp_m_64f_P(const double *const *src, int32_t srcShift, uint32_t *pivots, double *const *dst,
    int32_t dstShift, uint32_t order);
/** dst = LU factors of src with partial pivoting; 3x3 double; standard layout. Exceptions: lu-unrounded-quotient,
 * lu-nan-position. */
VonkStatus vonkLUDecomp_m_64f_3x3(const double *src, int32_t srcRowStride, uint32_t *pivots, double *dst,
    int32_t dstRowStride);
/** dst = LU factors of src with partial pivoting; 3x3 double; S2, strided elements. Exceptions: lu-unrounded-quotient,
 * lu-nan-position. */
VonkStatus vonkLUDecomp_m_64f_3x3_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, uint32_t *pivots,
    double *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = LU factors of src with partial pivoting; 3x3 double; P, one pointer per element position. Exceptions:
 * lu-unrounded-quotient, lu-nan-position. */
VonkStatus vonkLUDecomp_m_64f_3x3_P(const double *const *src, int32_t srcShift, uint32_t *pivots, double *const *dst,
    int32_t dstShift);
/** dst = LU factors of src with partial pivoting; 4x4 double; standard layout. Exceptions: lu-unrounded-quotient,
 * lu-nan-position. */
VonkStatus vonkLUDecomp_m_64f_4x4(const double *src, int32_t srcRowStride, uint32_t *pivots, double *dst,
    int32_t dstRowStride);
/** dst = LU factors of src with partial pivoting; 4x4 double; S2, strided elements. Exceptions: lu-unrounded-quotient,
 * lu-nan-position. */
VonkStatus vonkLUDecomp_m_64f_4x4_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, uint32_t *pivots,
    double *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = LU factors of src with partial pivoting; 4x4 double; P, one pointer per element position. Exceptions:
 * lu-unrounded-quotient, lu-nan-position. */
VonkStatus vonkLUDecomp_m_64f_4x4_P(const double *const *src, int32_t srcShift, uint32_t *pivots, double *const *dst,
    int32_t dstShift);
/** dst = LU factors of src with partial pivoting; 5x5 double; standard layout. Exceptions: lu-unrounded-quotient,
 * lu-nan-position. */
VonkStatus vonkLUDecomp_m_64f_5x5(const double *src, int32_t srcRowStride, uint32_t *pivots, double *dst,
    int32_t dstRowStride);
/** dst = LU factors of src with partial pivoting; 5x5 double; S2, strided elements. Exceptions: lu-unrounded-quotient,
 * lu-nan-position. */
VonkStatus vonkLUDecomp_m_64f_5x5_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, uint32_t *pivots,
    double *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = LU factors of src with partial pivoting; 5x5 double; P, one pointer per element position. Exceptions:
 * lu-unrounded-quotient, lu-nan-position. */
VonkStatus vonkLUDecomp_m_64f_5x5_P(const double *const *src, int32_t srcShift, uint32_t *pivots, double *const *dst,
    int32_t dstShift);
/** dst = LU factors of src with partial pivoting; 6x6 double; standard layout. Exception: lu-nan-value. */
VonkStatus vonkLUDecomp_m_64f_6x6(const double *src, int32_t srcRowStride, uint32_t *pivots, double *dst,
    int32_t dstRowStride);
/** dst = LU factors of src with partial pivoting; 6x6 double; S2, strided elements. Exception: lu-nan-value. */
VonkStatus vonkLUDecomp_m_64f_6x6_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, uint32_t *pivots,
    double *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = LU factors of src with partial pivoting; 6x6 double; P, one pointer per element position. Exception:
 * lu-nan-value. */
VonkStatus vonkLUDecomp_m_64f_6x6_P(const double *const *src, int32_t srcShift, uint32_t *pivots, double *const *dst,
    int32_t dstShift);

/** dst(n) = LU factors of src(n) with partial pivoting; `order` by `order` float, n below count; standard layout.
 * Exceptions: lu-zero-multiplier, lu-displaced-last-pivot, lu-reads-displaced-pivot. */
VonkStatus vonkLUDecomp_ma_32f(const float *src, int32_t srcObjStride, int32_t srcRowStride, uint32_t *pivots,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t order, uint32_t count);
/** dst(n) = LU factors of src(n) with partial pivoting; `order` by `order` float, n below count; S2, strided elements.
 * Exceptions: lu-zero-multiplier, lu-displaced-last-pivot, lu-reads-displaced-pivot. */
VonkStatus vonkLUDecomp_ma_32f_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    uint32_t *pivots, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t order,
    uint32_t count);
/** dst(n) = LU factors of src(n) with partial pivoting; `order` by `order` float, n below count; P, one pointer per
 * element position. Exceptions: lu-zero-multiplier, lu-displaced-last-pivot, lu-reads-displaced-pivot. */
VonkStatus vonkLUDecomp_ma_32f_P(const float *const *src, int32_t srcShift, uint32_t *pivots, float *const *dst,
    int32_t dstShift, uint32_t order, uint32_t count);
/** dst(n) = LU factors of src(n) with partial pivoting; `order` by `order` float, n below count; PS2, one pointer per
 * element position, strided objects. Exceptions: lu-zero-multiplier, lu-displaced-last-pivot, lu-reads-displaced-pivot.
 * */
VonkStatus vonkLUDecomp_ma_32f_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, uint32_t *pivots,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t order, uint32_t count);
/** dst(n) = LU factors of src(n) with partial pivoting; `order` by `order` float, n below count; L, one pointer per
 * object. Exceptions: lu-zero-multiplier, lu-displaced-last-pivot, lu-reads-displaced-pivot. */
VonkStatus vonkLUDecomp_ma_32f_L(const float *const *src, int32_t srcShift, int32_t srcRowStride, uint32_t *pivots,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t order, uint32_t count);
/** dst(n) = LU factors of src(n) with partial pivoting; `order` by `order` float, n below count; LS2, one pointer per
 * object, strided elements. Exceptions: lu-zero-multiplier, lu-displaced-last-pivot, lu-reads-displaced-pivot. */
VonkStatus vonkLUDecomp_ma_32f_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, uint32_t *pivots, float *const *dst, int32_t dstShift, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t order, uint32_t count);
/** dst(n) = LU factors of src(n) with partial pivoting; 3x3 float, n below count; standard layout. Exceptions:
 * lu-zero-multiplier, lu-displaced-last-pivot, lu-reads-displaced-pivot. */
VonkStatus vonkLUDecomp_ma_32f_3x3(const float *src, int32_t srcObjStride, int32_t srcRowStride, uint32_t *pivots,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = LU factors of src(n) with partial pivoting; 3x3 float, n below count; S2, strided elements. Exceptions:
 * lu-zero-multiplier, lu-displaced-last-pivot, lu-reads-displaced-pivot. */
VonkStatus vonkLUDecomp_ma_32f_3x3_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
    int32_t srcElemStride, uint32_t *pivots, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = LU factors of src(n) with partial pivoting; 3x3 float, n below count; P, one pointer per element position.
 * Exceptions: lu-zero-multiplier, lu-displaced-last-pivot, lu-reads-displaced-pivot. */
VonkStatus vonkLUDecomp_ma_32f_3x3_P(const float *const *src, int32_t srcShift, uint32_t *pivots, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = LU factors of src(n) with partial pivoting; 3x3 float, n below count; PS2, one pointer per element
 * position, strided objects. Exceptions: lu-zero-multiplier, lu-displaced-last-pivot, lu-reads-displaced-pivot. */
VonkStatus vonkLUDecomp_ma_32f_3x3_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride,
    uint32_t *pivots, float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = LU factors of src(n) with partial pivoting; 3x3 float, n below count; L, one pointer per object.
 * Exceptions: lu-zero-multiplier, lu-displaced-last-pivot, lu-reads-displaced-pivot. */
VonkStatus vonkLUDecomp_ma_32f_3x3_L(const float *const *src, int32_t srcShift, int32_t srcRowStride, uint32_t *pivots,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = LU factors of src(n) with partial pivoting; 3x3 float, n below count; LS2, one pointer per object, strided
 * elements. Exceptions: lu-zero-multiplier, lu-displaced-last-pivot, lu-reads-displaced-pivot. */
VonkStatus vonkLUDecomp_ma_32f_3x3_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, uint32_t *pivots, float *const *dst, int32_t dstShift, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = LU factors of src(n) with partial pivoting; 4x4 float, n below count; standard layout. Exceptions:
 * lu-zero-multiplier, lu-displaced-last-pivot, lu-reads-displaced-pivot. */
VonkStatus vonkLUDecomp_ma_32f_4x4(const float *src, int32_t srcObjStride, int32_t srcRowStride, uint32_t *pivots,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = LU factors of src(n) with partial pivoting; 4x4 float, n below count; S2, strided elements. Exceptions:
 * lu-zero-multiplier, lu-displaced-last-pivot, lu-reads-displaced-pivot. */
VonkStatus vonkLUDecomp_ma_32f_4x4_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
    int32_t srcElemStride, uint32_t *pivots, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = LU factors of src(n) with partial pivoting; 4x4 float, n below count; P, one pointer per element position.
 * Exceptions: lu-zero-multiplier, lu-displaced-last-pivot, lu-reads-displaced-pivot. */
VonkStatus vonkLUDecomp_ma_32f_4x4_P(const float *const *src, int32_t srcShift, uint32_t *pivots, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = LU factors of src(n) with partial pivoting; 4x4 float, n below count; PS2, one pointer per element
 * position, strided objects. Exceptions: lu-zero-multiplier, lu-displaced-last-pivot, lu-reads-displaced-pivot. */
VonkStatus vonkLUDecomp_ma_32f_4x4_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride,
    uint32_t *pivots, float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = LU factors of src(n) with partial pivoting; 4x4 float, n below count; L, one pointer per object.
 * Exceptions: lu-zero-multiplier, lu-displaced-last-pivot, lu-reads-displaced-pivot. */
VonkStatus vonkLUDecomp_ma_32f_4x4_L(const float *const *src, int32_t srcShift, int32_t srcRowStride, uint32_t *pivots,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = LU factors of src(n) with partial pivoting; 4x4 float, n below count; LS2, one pointer per object, strided
 * elements. Exceptions: lu-zero-multiplier, lu-displaced-last-pivot, lu-reads-displaced-pivot. */
VonkStatus vonkLUDecomp_ma_32f_4x4_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, uint32_t *pivots, float *const *dst, int32_t dstShift, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = LU factors of src(n) with partial pivoting; 5x5 float, n below count; standard layout. Exceptions:
 * lu-zero-multiplier, lu-displaced-last-pivot, lu-reads-displaced-pivot. */
VonkStatus vonkLUDecomp_ma_32f_5x5(const float *src, int32_t srcObjStride, int32_t srcRowStride, uint32_t *pivots,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = LU factors of src(n) with partial pivoting; 5x5 float, n below count; S2, strided elements. Exceptions:
 * lu-zero-multiplier, lu-displaced-last-pivot, lu-reads-displaced-pivot. */
VonkStatus vonkLUDecomp_ma_32f_5x5_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
    int32_t srcElemStride, uint32_t *pivots, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = LU factors of src(n) with partial pivoting; 5x5 float, n below count; P, one pointer per element position.
 * Exceptions: lu-zero-multiplier, lu-displaced-last-pivot, lu-reads-displaced-pivot. */
VonkStatus vonkLUDecomp_ma_32f_5x5_P(const float *const *src, int32_t srcShift, uint32_t *pivots, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = LU factors of src(n) with partial pivoting; 5x5 float, n below count; PS2, one pointer per element
 * position, strided objects. Exceptions: lu-zero-multiplier, lu-displaced-last-pivot, lu-reads-displaced-pivot. */
VonkStatus vonkLUDecomp_ma_32f_5x5_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride,
    uint32_t *pivots, float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = LU factors of src(n) with partial pivoting; 5x5 float, n below count; L, one pointer per object.
 * Exceptions: lu-zero-multiplier, lu-displaced-last-pivot, lu-reads-displaced-pivot. */
VonkStatus vonkLUDecomp_ma_32f_5x5_L(const float *const *src, int32_t srcShift, int32_t srcRowStride, uint32_t *pivots,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = LU factors of src(n) with partial pivoting; 5x5 float, n below count; LS2, one pointer per object, strided
 * elements. Exceptions: lu-zero-multiplier, lu-displaced-last-pivot, lu-reads-displaced-pivot. */
VonkStatus vonkLUDecomp_ma_32f_5x5_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, uint32_t *pivots, float *const *dst, int32_t dstShift, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = LU factors of src(n) with partial pivoting; 6x6 float, n below count; standard layout. Exceptions:
 * lu-zero-multiplier, lu-displaced-last-pivot, lu-reads-displaced-pivot. */
VonkStatus vonkLUDecomp_ma_32f_6x6(const float *src, int32_t srcObjStride, int32_t srcRowStride, uint32_t *pivots,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = LU factors of src(n) with partial pivoting; 6x6 float, n below count; S2, strided elements. Exceptions:
 * lu-zero-multiplier, lu-displaced-last-pivot, lu-reads-displaced-pivot. */
VonkStatus vonkLUDecomp_ma_32f_6x6_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
    int32_t srcElemStride, uint32_t *pivots, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = LU factors of src(n) with partial pivoting; 6x6 float, n below count; P, one pointer per element position.
 * Exceptions: lu-zero-multiplier, lu-displaced-last-pivot, lu-reads-displaced-pivot. */
VonkStatus vonkLUDecomp_ma_32f_6x6_P(const float *const *src, int32_t srcShift, uint32_t *pivots, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = LU factors of src(n) with partial pivoting; 6x6 float, n below count; PS2, one pointer per element
 * position, strided objects. Exceptions: lu-zero-multiplier, lu-displaced-last-pivot, lu-reads-displaced-pivot. */
VonkStatus vonkLUDecomp_ma_32f_6x6_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride,
    uint32_t *pivots, float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = LU factors of src(n) with partial pivoting; 6x6 float, n below count; L, one pointer per object.
 * Exceptions: lu-zero-multiplier, lu-displaced-last-pivot, lu-reads-displaced-pivot. */
VonkStatus vonkLUDecomp_ma_32f_6x6_L(const float *const *src, int32_t srcShift, int32_t srcRowStride, uint32_t *pivots,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = LU factors of src(n) with partial pivoting; 6x6 float, n below count; LS2, one pointer per object, strided
 * elements. Exceptions: lu-zero-multiplier, lu-displaced-last-pivot, lu-reads-displaced-pivot. */
VonkStatus vonkLUDecomp_ma_32f_6x6_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, uint32_t *pivots, float *const *dst, int32_t dstShift, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);

/** dst(n) = LU factors of src(n) with partial pivoting; `order` by `order` double, n below count; standard layout.
 * Exceptions: lu-nan-candidate, lu-displaced-last-pivot, lu-reads-displaced-pivot. */
VonkStatus vonkLUDecomp_ma_64f(const double *src, int32_t srcObjStride, int32_t srcRowStride, uint32_t *pivots,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t order, uint32_t count);
/** dst(n) = LU factors of src(n) with partial pivoting; `order` by `order` double, n below count; S2, strided elements.
 * Exceptions: lu-nan-candidate, lu-displaced-last-pivot, lu-reads-displaced-pivot. */
VonkStatus vonkLUDecomp_ma_64f_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    uint32_t *pivots, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t order,
    uint32_t count);
/** dst(n) = LU factors of src(n) with partial pivoting; `order` by `order` double, n below count; P, one pointer per
 * element position. Exceptions: lu-nan-candidate, lu-displaced-last-pivot, lu-reads-displaced-pivot. */
VonkStatus vonkLUDecomp_ma_64f_P(const double *const *src, int32_t srcShift, uint32_t *pivots, double *const *dst,
    int32_t dstShift, uint32_t order, uint32_t count);
/** dst(n) = LU factors of src(n) with partial pivoting; `order` by `order` double, n below count; PS2, one pointer per
 * element position, strided objects. Exceptions: lu-nan-candidate, lu-displaced-last-pivot, lu-reads-displaced-pivot.
 * */
VonkStatus vonkLUDecomp_ma_64f_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, uint32_t *pivots,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t order, uint32_t count);
/** dst(n) = LU factors of src(n) with partial pivoting; `order` by `order` double, n below count; L, one pointer per
 * object. Exceptions: lu-nan-candidate, lu-displaced-last-pivot, lu-reads-displaced-pivot. */
VonkStatus vonkLUDecomp_ma_64f_L(const double *const *src, int32_t srcShift, int32_t srcRowStride, uint32_t *pivots,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t order, uint32_t count);
/** dst(n) = LU factors of src(n) with partial pivoting; `order` by `order` double, n below count; LS2, one pointer per
 * object, strided elements. Exceptions: lu-nan-candidate, lu-displaced-last-pivot, lu-reads-displaced-pivot. */
VonkStatus vonkLUDecomp_ma_64f_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, uint32_t *pivots, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t order, uint32_t count);
/** dst(n) = LU factors of src(n) with partial pivoting; 3x3 double, n below count; standard layout. Exceptions:
 * lu-unrounded-quotient, lu-nan-position, lu-displaced-last-pivot, lu-reads-displaced-pivot. */
VonkStatus vonkLUDecomp_ma_64f_3x3(const double *src, int32_t srcObjStride, int32_t srcRowStride, uint32_t *pivots,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = LU factors of src(n) with partial pivoting; 3x3 double, n below count; S2, strided elements. Exceptions:
 * lu-unrounded-quotient, lu-nan-position, lu-displaced-last-pivot, lu-reads-displaced-pivot. */
VonkStatus vonkLUDecomp_ma_64f_3x3_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
    int32_t srcElemStride, uint32_t *pivots, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = LU factors of src(n) with partial pivoting; 3x3 double, n below count; P, one pointer per element position.
 * Exceptions: lu-unrounded-quotient, lu-nan-position, lu-displaced-last-pivot, lu-reads-displaced-pivot. */
VonkStatus vonkLUDecomp_ma_64f_3x3_P(const double *const *src, int32_t srcShift, uint32_t *pivots, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = LU factors of src(n) with partial pivoting; 3x3 double, n below count; PS2, one pointer per element
 * position, strided objects. Exceptions: lu-unrounded-quotient, lu-nan-position, lu-displaced-last-pivot,
 * lu-reads-displaced-pivot. */
VonkStatus vonkLUDecomp_ma_64f_3x3_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride,
    uint32_t *pivots, double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = LU factors of src(n) with partial pivoting; 3x3 double, n below count; L, one pointer per object.
 * Exceptions: lu-unrounded-quotient, lu-nan-position, lu-displaced-last-pivot, lu-reads-displaced-pivot. */
VonkStatus vonkLUDecomp_ma_64f_3x3_L(const double *const *src, int32_t srcShift, int32_t srcRowStride, uint32_t *pivots,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = LU factors of src(n) with partial pivoting; 3x3 double, n below count; LS2, one pointer per object, strided
 * elements. Exceptions: lu-unrounded-quotient, lu-nan-position, lu-displaced-last-pivot, lu-reads-displaced-pivot. */
VonkStatus vonkLUDecomp_ma_64f_3x3_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, uint32_t *pivots, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = LU factors of src(n) with partial pivoting; 4x4 double, n below count; standard layout. Exceptions:
 * lu-unrounded-quotient, lu-nan-position, lu-displaced-last-pivot, lu-reads-displaced-pivot. */
VonkStatus vonkLUDecomp_ma_64f_4x4(const double *src, int32_t srcObjStride, int32_t srcRowStride, uint32_t *pivots,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = LU factors of src(n) with partial pivoting; 4x4 double, n below count; S2, strided elements. Exceptions:
 * lu-unrounded-quotient, lu-nan-position, lu-displaced-last-pivot, lu-reads-displaced-pivot. */
VonkStatus vonkLUDecomp_ma_64f_4x4_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
    int32_t srcElemStride, uint32_t *pivots, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = LU factors of src(n) with partial pivoting; 4x4 double, n below count; P, one pointer per element position.
 * Exceptions: lu-unrounded-quotient, lu-nan-position, lu-displaced-last-pivot, lu-reads-displaced-pivot. */
VonkStatus vonkLUDecomp_ma_64f_4x4_P(const double *const *src, int32_t srcShift, uint32_t *pivots, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = LU factors of src(n) with partial pivoting; 4x4 double, n below count; PS2, one pointer per element
 * position, strided objects. Exceptions: lu-unrounded-quotient, lu-nan-position, lu-displaced-last-pivot,
 * lu-reads-displaced-pivot. */
VonkStatus vonkLUDecomp_ma_64f_4x4_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride,
    uint32_t *pivots, double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = LU factors of src(n) with partial pivoting; 4x4 double, n below count; L, one pointer per object.
 * Exceptions: lu-unrounded-quotient, lu-nan-position, lu-displaced-last-pivot, lu-reads-displaced-pivot. */
VonkStatus vonkLUDecomp_ma_64f_4x4_L(const double *const *src, int32_t srcShift, int32_t srcRowStride, uint32_t *pivots,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = LU factors of src(n) with partial pivoting; 4x4 double, n below count; LS2, one pointer per object, strided
 * elements. Exceptions: lu-unrounded-quotient, lu-nan-position, lu-displaced-last-pivot, lu-reads-displaced-pivot. */
VonkStatus vonkLUDecomp_ma_64f_4x4_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, uint32_t *pivots, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = LU factors of src(n) with partial pivoting; 5x5 double, n below count; standard layout. Exceptions:
 * lu-unrounded-quotient, lu-nan-position, lu-displaced-last-pivot, lu-reads-displaced-pivot. */
VonkStatus vonkLUDecomp_ma_64f_5x5(const double *src, int32_t srcObjStride, int32_t srcRowStride, uint32_t *pivots,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = LU factors of src(n) with partial pivoting; 5x5 double, n below count; S2, strided elements. Exceptions:
 * lu-unrounded-quotient, lu-nan-position, lu-displaced-last-pivot, lu-reads-displaced-pivot. */
VonkStatus vonkLUDecomp_ma_64f_5x5_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
    int32_t srcElemStride, uint32_t *pivots, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = LU factors of src(n) with partial pivoting; 5x5 double, n below count; P, one pointer per element position.
 * Exceptions: lu-unrounded-quotient, lu-nan-position, lu-displaced-last-pivot, lu-reads-displaced-pivot. */
VonkStatus vonkLUDecomp_ma_64f_5x5_P(const double *const *src, int32_t srcShift, uint32_t *pivots, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = LU factors of src(n) with partial pivoting; 5x5 double, n below count; PS2, one pointer per element
 * position, strided objects. Exceptions: lu-unrounded-quotient, lu-nan-position, lu-displaced-last-pivot,
 * lu-reads-displaced-pivot. */
VonkStatus vonkLUDecomp_ma_64f_5x5_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride,
    uint32_t *pivots, double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = LU factors of src(n) with partial pivoting; 5x5 double, n below count; L, one pointer per object.
 * Exceptions: lu-unrounded-quotient, lu-nan-position, lu-displaced-last-pivot, lu-reads-displaced-pivot. */
VonkStatus vonkLUDecomp_ma_64f_5x5_L(const double *const *src, int32_t srcShift, int32_t srcRowStride, uint32_t *pivots,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = LU factors of src(n) with partial pivoting; 5x5 double, n below count; LS2, one pointer per object, strided
 * elements. Exceptions: lu-unrounded-quotient, lu-nan-position, lu-displaced-last-pivot, lu-reads-displaced-pivot. */
VonkStatus vonkLUDecomp_ma_64f_5x5_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, uint32_t *pivots, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = LU factors of src(n) with partial pivoting; 6x6 double, n below count; standard layout. Exceptions:
 * lu-nan-candidate, lu-displaced-last-pivot, lu-reads-displaced-pivot. */
VonkStatus vonkLUDecomp_ma_64f_6x6(const double *src, int32_t srcObjStride, int32_t srcRowStride, uint32_t *pivots,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = LU factors of src(n) with partial pivoting; 6x6 double, n below count; S2, strided elements. Exceptions:
 * lu-nan-candidate, lu-displaced-last-pivot, lu-reads-displaced-pivot. */
VonkStatus vonkLUDecomp_ma_64f_6x6_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
    int32_t srcElemStride, uint32_t *pivots, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = LU factors of src(n) with partial pivoting; 6x6 double, n below count; P, one pointer per element position.
 * Exceptions: lu-nan-candidate, lu-displaced-last-pivot, lu-reads-displaced-pivot. */
VonkStatus vonkLUDecomp_ma_64f_6x6_P(const double *const *src, int32_t srcShift, uint32_t *pivots, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = LU factors of src(n) with partial pivoting; 6x6 double, n below count; PS2, one pointer per element
 * position, strided objects. Exceptions: lu-nan-candidate, lu-displaced-last-pivot, lu-reads-displaced-pivot. */
VonkStatus vonkLUDecomp_ma_64f_6x6_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride,
    uint32_t *pivots, double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = LU factors of src(n) with partial pivoting; 6x6 double, n below count; L, one pointer per object.
 * Exceptions: lu-nan-candidate, lu-displaced-last-pivot, lu-reads-displaced-pivot. */
VonkStatus vonkLUDecomp_ma_64f_6x6_L(const double *const *src, int32_t srcShift, int32_t srcRowStride, uint32_t *pivots,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = LU factors of src(n) with partial pivoting; 6x6 double, n below count; LS2, one pointer per object, strided
 * elements. Exceptions: lu-nan-candidate, lu-displaced-last-pivot, lu-reads-displaced-pivot. */
VonkStatus vonkLUDecomp_ma_64f_6x6_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, uint32_t *pivots, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);

/* ---- LU back substitution -------------------------------------------------------------------------------------------
 *
 * vonkLUBackSubst solves A x = b with what vonkLUDecomp left: `src1` the factors in their unpermuted rows, `pivots` the
 * permutation, `src2` the right-hand side b, `dst` the solution x, of `order` elements. Groups: `mv` one system; `mva`
 * one factored matrix with its `pivots` for `count` right-hand sides; `mava` a factored matrix and `order` pivots per
 * object.
 *
 * Forward: x(i) = b(p[i]) - s, s the sum of A(p[i], j) x(j) over j < i. Backward, from the last row up: x(i) = (x(i) -
 * s) / A(p[i], i), s the sum over j > i. Sums start at 0 and run in ascending j, divisions are true divisions, and x is
 * its own workspace. Entries of `pivots` are trusted to be below `order`. Method: Golub and Van Loan, Matrix
 * Computations, "Triangular systems", the row-oriented form.
 *
 * Status: vonkErrNullPtr if `src1`, `pivots`, `src2` or `dst` is null; vonkErrSize if `order` is 0; vonkErrNullPtr if a
 * table entry is null, even at `count` 0 (`P`, `PS2`), or a list entry when the object's turn comes (`L`, `LS2`);
 * `count` 0 gives vonkOk. The numbers are not checked: division by a zero pivot gives an infinity or a NaN, with
 * vonkOk.
 *
 * Overlap:
 * Overlap is not checked; the sweeps read what memory holds by then. `dst` must not be `src2` unless the permutation is
 * the identity: x(i) is written while b(p[i]) of later rows is still needed. `pivots` must not overlap `dst`.
 *
 * Exceptions:
 * - lu-solve-wide-sums (arithmetic): vonkLUBackSubst_{mva,mava}_64f_?x?{,_S2,_P,_PS2}
 *   Sums are never rounded. All other forms of `64f` round a sum to 64 bits after its pairs of terms, and again after
 *   an odd last term. At 53-bit precision the difference is one of range alone.
 * - lu-solve-column-step (result): vonkLUBackSubst_mva_64f{,_?x?}_L
 *   The columns of `src1` are taken to lie 4 bytes apart: element (i, j) is the double at i * `src1RowStride` + j * 4.
 *   `LS2` and all other forms step by the element.
 * - lu-solve-ignored-argument (arguments): vonkLUBackSubst_mva_{32f,64f}{,_?x?}{,_S2,_L,_LS2}
 *   The argument after `src1` (`src1ObjStride`, in `L` and `LS2` `src1Shift`) is ignored, so that `mva` and `mava` have
 *   one parameter list. In `L` and `LS2` `src1` is a plain pointer.
 */

/** dst = solution of A x = src2 from the LU factors src1 and pivots; `order` by `order` float; standard layout. */
VonkStatus vonkLUBackSubst_mv_32f(const float *src1, int32_t src1RowStride, const uint32_t *pivots, const float *src2,
    float *dst, uint32_t order);
/** dst = solution of A x = src2 from the LU factors src1 and pivots; `order` by `order` float; S2, strided elements. */
VonkStatus vonkLUBackSubst_mv_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const uint32_t *pivots, const float *src2, int32_t src2ElemStride, float *dst, int32_t dstElemStride,
    uint32_t order);
/** dst = solution of A x = src2 from the LU factors src1 and pivots; `order` by `order` float; P, one pointer per
 * element position. */
VonkStatus vonkLUBackSubst_mv_32f_P(const float *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t order);
/** dst = solution of A x = src2 from the LU factors src1 and pivots; 3x3 float; standard layout. */
VonkStatus vonkLUBackSubst_mv_32f_3x3(const float *src1, int32_t src1RowStride, const uint32_t *pivots,
    const float *src2, float *dst);
/** dst = solution of A x = src2 from the LU factors src1 and pivots; 3x3 float; S2, strided elements. */
VonkStatus vonkLUBackSubst_mv_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const uint32_t *pivots, const float *src2, int32_t src2ElemStride, float *dst, int32_t dstElemStride);
/** dst = solution of A x = src2 from the LU factors src1 and pivots; 3x3 float; P, one pointer per element position. */
VonkStatus vonkLUBackSubst_mv_32f_3x3_P(const float *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift);
/** dst = solution of A x = src2 from the LU factors src1 and pivots; 4x4 float; standard layout. */
VonkStatus vonkLUBackSubst_mv_32f_4x4(const float *src1, int32_t src1RowStride, const uint32_t *pivots,
    const float *src2, float *dst);
/** dst = solution of A x = src2 from the LU factors src1 and pivots; 4x4 float; S2, strided elements. */
VonkStatus vonkLUBackSubst_mv_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const uint32_t *pivots, const float *src2, int32_t src2ElemStride, float *dst, int32_t dstElemStride);
/** dst = solution of A x = src2 from the LU factors src1 and pivots; 4x4 float; P, one pointer per element position. */
VonkStatus vonkLUBackSubst_mv_32f_4x4_P(const float *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift);
/** dst = solution of A x = src2 from the LU factors src1 and pivots; 5x5 float; standard layout. */
VonkStatus vonkLUBackSubst_mv_32f_5x5(const float *src1, int32_t src1RowStride, const uint32_t *pivots,
    const float *src2, float *dst);
/** dst = solution of A x = src2 from the LU factors src1 and pivots; 5x5 float; S2, strided elements. */
VonkStatus vonkLUBackSubst_mv_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const uint32_t *pivots, const float *src2, int32_t src2ElemStride, float *dst, int32_t dstElemStride);
/** dst = solution of A x = src2 from the LU factors src1 and pivots; 5x5 float; P, one pointer per element position. */
VonkStatus vonkLUBackSubst_mv_32f_5x5_P(const float *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift);
/** dst = solution of A x = src2 from the LU factors src1 and pivots; 6x6 float; standard layout. */
VonkStatus vonkLUBackSubst_mv_32f_6x6(const float *src1, int32_t src1RowStride, const uint32_t *pivots,
    const float *src2, float *dst);
/** dst = solution of A x = src2 from the LU factors src1 and pivots; 6x6 float; S2, strided elements. */
VonkStatus vonkLUBackSubst_mv_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const uint32_t *pivots, const float *src2, int32_t src2ElemStride, float *dst, int32_t dstElemStride);
/** dst = solution of A x = src2 from the LU factors src1 and pivots; 6x6 float; P, one pointer per element position. */
VonkStatus vonkLUBackSubst_mv_32f_6x6_P(const float *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift);

/** dst = solution of A x = src2 from the LU factors src1 and pivots; `order` by `order` double; standard layout. */
VonkStatus vonkLUBackSubst_mv_64f(const double *src1, int32_t src1RowStride, const uint32_t *pivots, const double *src2,
    double *dst, uint32_t order);
/** dst = solution of A x = src2 from the LU factors src1 and pivots; `order` by `order` double; S2, strided elements.
 * */
VonkStatus vonkLUBackSubst_mv_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const uint32_t *pivots, const double *src2, int32_t src2ElemStride, double *dst, int32_t dstElemStride,
    uint32_t order);
/** dst = solution of A x = src2 from the LU factors src1 and pivots; `order` by `order` double; P, one pointer per
 * element position. */
VonkStatus vonkLUBackSubst_mv_64f_P(const double *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t order);
/** dst = solution of A x = src2 from the LU factors src1 and pivots; 3x3 double; standard layout. */
VonkStatus vonkLUBackSubst_mv_64f_3x3(const double *src1, int32_t src1RowStride, const uint32_t *pivots,
    const double *src2, double *dst);
/** dst = solution of A x = src2 from the LU factors src1 and pivots; 3x3 double; S2, strided elements. */
VonkStatus vonkLUBackSubst_mv_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const uint32_t *pivots, const double *src2, int32_t src2ElemStride, double *dst, int32_t dstElemStride);
/** dst = solution of A x = src2 from the LU factors src1 and pivots; 3x3 double; P, one pointer per element position.
 * */
VonkStatus vonkLUBackSubst_mv_64f_3x3_P(const double *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift);
/** dst = solution of A x = src2 from the LU factors src1 and pivots; 4x4 double; standard layout. */
VonkStatus vonkLUBackSubst_mv_64f_4x4(const double *src1, int32_t src1RowStride, const uint32_t *pivots,
    const double *src2, double *dst);
/** dst = solution of A x = src2 from the LU factors src1 and pivots; 4x4 double; S2, strided elements. */
VonkStatus vonkLUBackSubst_mv_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const uint32_t *pivots, const double *src2, int32_t src2ElemStride, double *dst, int32_t dstElemStride);
/** dst = solution of A x = src2 from the LU factors src1 and pivots; 4x4 double; P, one pointer per element position.
 * */
VonkStatus vonkLUBackSubst_mv_64f_4x4_P(const double *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift);
/** dst = solution of A x = src2 from the LU factors src1 and pivots; 5x5 double; standard layout. */
VonkStatus vonkLUBackSubst_mv_64f_5x5(const double *src1, int32_t src1RowStride, const uint32_t *pivots,
    const double *src2, double *dst);
/** dst = solution of A x = src2 from the LU factors src1 and pivots; 5x5 double; S2, strided elements. */
VonkStatus vonkLUBackSubst_mv_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const uint32_t *pivots, const double *src2, int32_t src2ElemStride, double *dst, int32_t dstElemStride);
/** dst = solution of A x = src2 from the LU factors src1 and pivots; 5x5 double; P, one pointer per element position.
 * */
VonkStatus vonkLUBackSubst_mv_64f_5x5_P(const double *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift);
/** dst = solution of A x = src2 from the LU factors src1 and pivots; 6x6 double; standard layout. */
VonkStatus vonkLUBackSubst_mv_64f_6x6(const double *src1, int32_t src1RowStride, const uint32_t *pivots,
    const double *src2, double *dst);
/** dst = solution of A x = src2 from the LU factors src1 and pivots; 6x6 double; S2, strided elements. */
VonkStatus vonkLUBackSubst_mv_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const uint32_t *pivots, const double *src2, int32_t src2ElemStride, double *dst, int32_t dstElemStride);
/** dst = solution of A x = src2 from the LU factors src1 and pivots; 6x6 double; P, one pointer per element position.
 * */
VonkStatus vonkLUBackSubst_mv_64f_6x6_P(const double *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift);

/** dst(n) = solution of A x = src2(n) from the LU factors src1 and pivots; `order` by `order` float, n below count;
 * standard layout. Exception: lu-solve-ignored-argument. */
VonkStatus vonkLUBackSubst_mva_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    const uint32_t *pivots, const float *src2, int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t order,
    uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1 and pivots; `order` by `order` float, n below count; S2,
 * strided elements. Exception: lu-solve-ignored-argument. */
VonkStatus vonkLUBackSubst_mva_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t order, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1 and pivots; `order` by `order` float, n below count; P,
 * one pointer per element position. */
VonkStatus vonkLUBackSubst_mva_32f_P(const float *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t order, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1 and pivots; `order` by `order` float, n below count;
 * PS2, one pointer per element position, strided objects. */
VonkStatus vonkLUBackSubst_mva_32f_PS2(const float *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t order, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1 and pivots; `order` by `order` float, n below count; L,
 * one pointer per object. Exception: lu-solve-ignored-argument. */
VonkStatus vonkLUBackSubst_mva_32f_L(const float *src1, int32_t src1Shift, int32_t src1RowStride,
    const uint32_t *pivots, const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift,
    uint32_t order, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1 and pivots; `order` by `order` float, n below count;
 * LS2, one pointer per object, strided elements. Exception: lu-solve-ignored-argument. */
VonkStatus vonkLUBackSubst_mva_32f_LS2(const float *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const float *const *src2, int32_t src2Shift, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t order, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1 and pivots; 3x3 float, n below count; standard layout.
 * Exception: lu-solve-ignored-argument. */
VonkStatus vonkLUBackSubst_mva_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    const uint32_t *pivots, const float *src2, int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1 and pivots; 3x3 float, n below count; S2, strided
 * elements. Exception: lu-solve-ignored-argument. */
VonkStatus vonkLUBackSubst_mva_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1 and pivots; 3x3 float, n below count; P, one pointer per
 * element position. */
VonkStatus vonkLUBackSubst_mva_32f_3x3_P(const float *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1 and pivots; 3x3 float, n below count; PS2, one pointer
 * per element position, strided objects. */
VonkStatus vonkLUBackSubst_mva_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1 and pivots; 3x3 float, n below count; L, one pointer per
 * object. Exception: lu-solve-ignored-argument. */
VonkStatus vonkLUBackSubst_mva_32f_3x3_L(const float *src1, int32_t src1Shift, int32_t src1RowStride,
    const uint32_t *pivots, const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift,
    uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1 and pivots; 3x3 float, n below count; LS2, one pointer
 * per object, strided elements. Exception: lu-solve-ignored-argument. */
VonkStatus vonkLUBackSubst_mva_32f_3x3_LS2(const float *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const float *const *src2, int32_t src2Shift, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1 and pivots; 4x4 float, n below count; standard layout.
 * Exception: lu-solve-ignored-argument. */
VonkStatus vonkLUBackSubst_mva_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    const uint32_t *pivots, const float *src2, int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1 and pivots; 4x4 float, n below count; S2, strided
 * elements. Exception: lu-solve-ignored-argument. */
VonkStatus vonkLUBackSubst_mva_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1 and pivots; 4x4 float, n below count; P, one pointer per
 * element position. */
VonkStatus vonkLUBackSubst_mva_32f_4x4_P(const float *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1 and pivots; 4x4 float, n below count; PS2, one pointer
 * per element position, strided objects. */
VonkStatus vonkLUBackSubst_mva_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1 and pivots; 4x4 float, n below count; L, one pointer per
 * object. Exception: lu-solve-ignored-argument. */
VonkStatus vonkLUBackSubst_mva_32f_4x4_L(const float *src1, int32_t src1Shift, int32_t src1RowStride,
    const uint32_t *pivots, const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift,
    uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1 and pivots; 4x4 float, n below count; LS2, one pointer
 * per object, strided elements. Exception: lu-solve-ignored-argument. */
VonkStatus vonkLUBackSubst_mva_32f_4x4_LS2(const float *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const float *const *src2, int32_t src2Shift, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1 and pivots; 5x5 float, n below count; standard layout.
 * Exception: lu-solve-ignored-argument. */
VonkStatus vonkLUBackSubst_mva_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    const uint32_t *pivots, const float *src2, int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1 and pivots; 5x5 float, n below count; S2, strided
 * elements. Exception: lu-solve-ignored-argument. */
VonkStatus vonkLUBackSubst_mva_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1 and pivots; 5x5 float, n below count; P, one pointer per
 * element position. */
VonkStatus vonkLUBackSubst_mva_32f_5x5_P(const float *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1 and pivots; 5x5 float, n below count; PS2, one pointer
 * per element position, strided objects. */
VonkStatus vonkLUBackSubst_mva_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1 and pivots; 5x5 float, n below count; L, one pointer per
 * object. Exception: lu-solve-ignored-argument. */
VonkStatus vonkLUBackSubst_mva_32f_5x5_L(const float *src1, int32_t src1Shift, int32_t src1RowStride,
    const uint32_t *pivots, const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift,
    uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1 and pivots; 5x5 float, n below count; LS2, one pointer
 * per object, strided elements. Exception: lu-solve-ignored-argument. */
VonkStatus vonkLUBackSubst_mva_32f_5x5_LS2(const float *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const float *const *src2, int32_t src2Shift, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1 and pivots; 6x6 float, n below count; standard layout.
 * Exception: lu-solve-ignored-argument. */
VonkStatus vonkLUBackSubst_mva_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    const uint32_t *pivots, const float *src2, int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1 and pivots; 6x6 float, n below count; S2, strided
 * elements. Exception: lu-solve-ignored-argument. */
VonkStatus vonkLUBackSubst_mva_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1 and pivots; 6x6 float, n below count; P, one pointer per
 * element position. */
VonkStatus vonkLUBackSubst_mva_32f_6x6_P(const float *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1 and pivots; 6x6 float, n below count; PS2, one pointer
 * per element position, strided objects. */
VonkStatus vonkLUBackSubst_mva_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1 and pivots; 6x6 float, n below count; L, one pointer per
 * object. Exception: lu-solve-ignored-argument. */
VonkStatus vonkLUBackSubst_mva_32f_6x6_L(const float *src1, int32_t src1Shift, int32_t src1RowStride,
    const uint32_t *pivots, const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift,
    uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1 and pivots; 6x6 float, n below count; LS2, one pointer
 * per object, strided elements. Exception: lu-solve-ignored-argument. */
VonkStatus vonkLUBackSubst_mva_32f_6x6_LS2(const float *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const float *const *src2, int32_t src2Shift, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);

/** dst(n) = solution of A x = src2(n) from the LU factors src1 and pivots; `order` by `order` double, n below count;
 * standard layout. Exception: lu-solve-ignored-argument. */
VonkStatus vonkLUBackSubst_mva_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    const uint32_t *pivots, const double *src2, int32_t src2ObjStride, double *dst, int32_t dstObjStride,
    uint32_t order, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1 and pivots; `order` by `order` double, n below count;
 * S2, strided elements. Exception: lu-solve-ignored-argument. */
VonkStatus vonkLUBackSubst_mva_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t order, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1 and pivots; `order` by `order` double, n below count; P,
 * one pointer per element position. */
VonkStatus vonkLUBackSubst_mva_64f_P(const double *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t order, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1 and pivots; `order` by `order` double, n below count;
 * PS2, one pointer per element position, strided objects. */
VonkStatus vonkLUBackSubst_mva_64f_PS2(const double *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t order, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1 and pivots; `order` by `order` double, n below count; L,
 * one pointer per object. Exceptions: lu-solve-column-step, lu-solve-ignored-argument. */
VonkStatus vonkLUBackSubst_mva_64f_L(const double *src1, int32_t src1Shift, int32_t src1RowStride,
    const uint32_t *pivots, const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift,
    uint32_t order, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1 and pivots; `order` by `order` double, n below count;
 * LS2, one pointer per object, strided elements. Exception: lu-solve-ignored-argument. */
VonkStatus vonkLUBackSubst_mva_64f_LS2(const double *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const double *const *src2, int32_t src2Shift,
    int32_t src2ElemStride, double *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t order,
    uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1 and pivots; 3x3 double, n below count; standard layout.
 * Exceptions: lu-solve-wide-sums, lu-solve-ignored-argument. */
VonkStatus vonkLUBackSubst_mva_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    const uint32_t *pivots, const double *src2, int32_t src2ObjStride, double *dst, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1 and pivots; 3x3 double, n below count; S2, strided
 * elements. Exceptions: lu-solve-wide-sums, lu-solve-ignored-argument. */
VonkStatus vonkLUBackSubst_mva_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1 and pivots; 3x3 double, n below count; P, one pointer
 * per element position. Exception: lu-solve-wide-sums. */
VonkStatus vonkLUBackSubst_mva_64f_3x3_P(const double *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1 and pivots; 3x3 double, n below count; PS2, one pointer
 * per element position, strided objects. Exception: lu-solve-wide-sums. */
VonkStatus vonkLUBackSubst_mva_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1 and pivots; 3x3 double, n below count; L, one pointer
 * per object. Exceptions: lu-solve-column-step, lu-solve-ignored-argument. */
VonkStatus vonkLUBackSubst_mva_64f_3x3_L(const double *src1, int32_t src1Shift, int32_t src1RowStride,
    const uint32_t *pivots, const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift,
    uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1 and pivots; 3x3 double, n below count; LS2, one pointer
 * per object, strided elements. Exception: lu-solve-ignored-argument. */
VonkStatus vonkLUBackSubst_mva_64f_3x3_LS2(const double *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const double *const *src2, int32_t src2Shift,
    int32_t src2ElemStride, double *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1 and pivots; 4x4 double, n below count; standard layout.
 * Exceptions: lu-solve-wide-sums, lu-solve-ignored-argument. */
VonkStatus vonkLUBackSubst_mva_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    const uint32_t *pivots, const double *src2, int32_t src2ObjStride, double *dst, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1 and pivots; 4x4 double, n below count; S2, strided
 * elements. Exceptions: lu-solve-wide-sums, lu-solve-ignored-argument. */
VonkStatus vonkLUBackSubst_mva_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1 and pivots; 4x4 double, n below count; P, one pointer
 * per element position. Exception: lu-solve-wide-sums. */
VonkStatus vonkLUBackSubst_mva_64f_4x4_P(const double *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1 and pivots; 4x4 double, n below count; PS2, one pointer
 * per element position, strided objects. Exception: lu-solve-wide-sums. */
VonkStatus vonkLUBackSubst_mva_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1 and pivots; 4x4 double, n below count; L, one pointer
 * per object. Exceptions: lu-solve-column-step, lu-solve-ignored-argument. */
VonkStatus vonkLUBackSubst_mva_64f_4x4_L(const double *src1, int32_t src1Shift, int32_t src1RowStride,
    const uint32_t *pivots, const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift,
    uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1 and pivots; 4x4 double, n below count; LS2, one pointer
 * per object, strided elements. Exception: lu-solve-ignored-argument. */
VonkStatus vonkLUBackSubst_mva_64f_4x4_LS2(const double *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const double *const *src2, int32_t src2Shift,
    int32_t src2ElemStride, double *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1 and pivots; 5x5 double, n below count; standard layout.
 * Exceptions: lu-solve-wide-sums, lu-solve-ignored-argument. */
VonkStatus vonkLUBackSubst_mva_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    const uint32_t *pivots, const double *src2, int32_t src2ObjStride, double *dst, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1 and pivots; 5x5 double, n below count; S2, strided
 * elements. Exceptions: lu-solve-wide-sums, lu-solve-ignored-argument. */
VonkStatus vonkLUBackSubst_mva_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1 and pivots; 5x5 double, n below count; P, one pointer
 * per element position. Exception: lu-solve-wide-sums. */
VonkStatus vonkLUBackSubst_mva_64f_5x5_P(const double *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1 and pivots; 5x5 double, n below count; PS2, one pointer
 * per element position, strided objects. Exception: lu-solve-wide-sums. */
VonkStatus vonkLUBackSubst_mva_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1 and pivots; 5x5 double, n below count; L, one pointer
 * per object. Exceptions: lu-solve-column-step, lu-solve-ignored-argument. */
VonkStatus vonkLUBackSubst_mva_64f_5x5_L(const double *src1, int32_t src1Shift, int32_t src1RowStride,
    const uint32_t *pivots, const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift,
    uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1 and pivots; 5x5 double, n below count; LS2, one pointer
 * per object, strided elements. Exception: lu-solve-ignored-argument. */
VonkStatus vonkLUBackSubst_mva_64f_5x5_LS2(const double *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const double *const *src2, int32_t src2Shift,
    int32_t src2ElemStride, double *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1 and pivots; 6x6 double, n below count; standard layout.
 * Exceptions: lu-solve-wide-sums, lu-solve-ignored-argument. */
VonkStatus vonkLUBackSubst_mva_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    const uint32_t *pivots, const double *src2, int32_t src2ObjStride, double *dst, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1 and pivots; 6x6 double, n below count; S2, strided
 * elements. Exceptions: lu-solve-wide-sums, lu-solve-ignored-argument. */
VonkStatus vonkLUBackSubst_mva_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1 and pivots; 6x6 double, n below count; P, one pointer
 * per element position. Exception: lu-solve-wide-sums. */
VonkStatus vonkLUBackSubst_mva_64f_6x6_P(const double *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1 and pivots; 6x6 double, n below count; PS2, one pointer
 * per element position, strided objects. Exception: lu-solve-wide-sums. */
VonkStatus vonkLUBackSubst_mva_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1 and pivots; 6x6 double, n below count; L, one pointer
 * per object. Exceptions: lu-solve-column-step, lu-solve-ignored-argument. */
VonkStatus vonkLUBackSubst_mva_64f_6x6_L(const double *src1, int32_t src1Shift, int32_t src1RowStride,
    const uint32_t *pivots, const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift,
    uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1 and pivots; 6x6 double, n below count; LS2, one pointer
 * per object, strided elements. Exception: lu-solve-ignored-argument. */
VonkStatus vonkLUBackSubst_mva_64f_6x6_LS2(const double *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const double *const *src2, int32_t src2Shift,
    int32_t src2ElemStride, double *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);

/** dst(n) = solution of A x = src2(n) from the LU factors src1(n) and pivots; `order` by `order` float, n below count;
 * standard layout. */
VonkStatus vonkLUBackSubst_mava_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    const uint32_t *pivots, const float *src2, int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t order,
    uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1(n) and pivots; `order` by `order` float, n below count;
 * S2, strided elements. */
VonkStatus vonkLUBackSubst_mava_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t order, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1(n) and pivots; `order` by `order` float, n below count;
 * P, one pointer per element position. */
VonkStatus vonkLUBackSubst_mava_32f_P(const float *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t order, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1(n) and pivots; `order` by `order` float, n below count;
 * PS2, one pointer per element position, strided objects. */
VonkStatus vonkLUBackSubst_mava_32f_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const uint32_t *pivots, const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst,
    int32_t dstShift, int32_t dstObjStride, uint32_t order, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1(n) and pivots; `order` by `order` float, n below count;
 * L, one pointer per object. */
VonkStatus vonkLUBackSubst_mava_32f_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const uint32_t *pivots, const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift,
    uint32_t order, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1(n) and pivots; `order` by `order` float, n below count;
 * LS2, one pointer per object, strided elements. */
VonkStatus vonkLUBackSubst_mava_32f_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const float *const *src2, int32_t src2Shift, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t order, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1(n) and pivots; 3x3 float, n below count; standard
 * layout. */
VonkStatus vonkLUBackSubst_mava_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    const uint32_t *pivots, const float *src2, int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1(n) and pivots; 3x3 float, n below count; S2, strided
 * elements. */
VonkStatus vonkLUBackSubst_mava_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1(n) and pivots; 3x3 float, n below count; P, one pointer
 * per element position. */
VonkStatus vonkLUBackSubst_mava_32f_3x3_P(const float *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1(n) and pivots; 3x3 float, n below count; PS2, one
 * pointer per element position, strided objects. */
VonkStatus vonkLUBackSubst_mava_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const uint32_t *pivots, const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst,
    int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1(n) and pivots; 3x3 float, n below count; L, one pointer
 * per object. */
VonkStatus vonkLUBackSubst_mava_32f_3x3_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const uint32_t *pivots, const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift,
    uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1(n) and pivots; 3x3 float, n below count; LS2, one
 * pointer per object, strided elements. */
VonkStatus vonkLUBackSubst_mava_32f_3x3_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const float *const *src2, int32_t src2Shift, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1(n) and pivots; 4x4 float, n below count; standard
 * layout. */
VonkStatus vonkLUBackSubst_mava_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    const uint32_t *pivots, const float *src2, int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1(n) and pivots; 4x4 float, n below count; S2, strided
 * elements. */
VonkStatus vonkLUBackSubst_mava_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1(n) and pivots; 4x4 float, n below count; P, one pointer
 * per element position. */
VonkStatus vonkLUBackSubst_mava_32f_4x4_P(const float *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1(n) and pivots; 4x4 float, n below count; PS2, one
 * pointer per element position, strided objects. */
VonkStatus vonkLUBackSubst_mava_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const uint32_t *pivots, const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst,
    int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1(n) and pivots; 4x4 float, n below count; L, one pointer
 * per object. */
VonkStatus vonkLUBackSubst_mava_32f_4x4_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const uint32_t *pivots, const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift,
    uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1(n) and pivots; 4x4 float, n below count; LS2, one
 * pointer per object, strided elements. */
VonkStatus vonkLUBackSubst_mava_32f_4x4_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const float *const *src2, int32_t src2Shift, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1(n) and pivots; 5x5 float, n below count; standard
 * layout. */
VonkStatus vonkLUBackSubst_mava_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    const uint32_t *pivots, const float *src2, int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1(n) and pivots; 5x5 float, n below count; S2, strided
 * elements. */
VonkStatus vonkLUBackSubst_mava_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1(n) and pivots; 5x5 float, n below count; P, one pointer
 * per element position. */
VonkStatus vonkLUBackSubst_mava_32f_5x5_P(const float *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1(n) and pivots; 5x5 float, n below count; PS2, one
 * pointer per element position, strided objects. */
VonkStatus vonkLUBackSubst_mava_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const uint32_t *pivots, const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst,
    int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1(n) and pivots; 5x5 float, n below count; L, one pointer
 * per object. */
VonkStatus vonkLUBackSubst_mava_32f_5x5_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const uint32_t *pivots, const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift,
    uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1(n) and pivots; 5x5 float, n below count; LS2, one
 * pointer per object, strided elements. */
VonkStatus vonkLUBackSubst_mava_32f_5x5_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const float *const *src2, int32_t src2Shift, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1(n) and pivots; 6x6 float, n below count; standard
 * layout. */
VonkStatus vonkLUBackSubst_mava_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    const uint32_t *pivots, const float *src2, int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1(n) and pivots; 6x6 float, n below count; S2, strided
 * elements. */
VonkStatus vonkLUBackSubst_mava_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1(n) and pivots; 6x6 float, n below count; P, one pointer
 * per element position. */
VonkStatus vonkLUBackSubst_mava_32f_6x6_P(const float *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1(n) and pivots; 6x6 float, n below count; PS2, one
 * pointer per element position, strided objects. */
VonkStatus vonkLUBackSubst_mava_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const uint32_t *pivots, const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst,
    int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1(n) and pivots; 6x6 float, n below count; L, one pointer
 * per object. */
VonkStatus vonkLUBackSubst_mava_32f_6x6_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const uint32_t *pivots, const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift,
    uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1(n) and pivots; 6x6 float, n below count; LS2, one
 * pointer per object, strided elements. */
VonkStatus vonkLUBackSubst_mava_32f_6x6_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const float *const *src2, int32_t src2Shift, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);

/** dst(n) = solution of A x = src2(n) from the LU factors src1(n) and pivots; `order` by `order` double, n below count;
 * standard layout. */
VonkStatus vonkLUBackSubst_mava_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    const uint32_t *pivots, const double *src2, int32_t src2ObjStride, double *dst, int32_t dstObjStride,
    uint32_t order, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1(n) and pivots; `order` by `order` double, n below count;
 * S2, strided elements. */
VonkStatus vonkLUBackSubst_mava_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t order, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1(n) and pivots; `order` by `order` double, n below count;
 * P, one pointer per element position. */
VonkStatus vonkLUBackSubst_mava_64f_P(const double *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t order, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1(n) and pivots; `order` by `order` double, n below count;
 * PS2, one pointer per element position, strided objects. */
VonkStatus vonkLUBackSubst_mava_64f_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const uint32_t *pivots, const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst,
    int32_t dstShift, int32_t dstObjStride, uint32_t order, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1(n) and pivots; `order` by `order` double, n below count;
 * L, one pointer per object. */
VonkStatus vonkLUBackSubst_mava_64f_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const uint32_t *pivots, const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift,
    uint32_t order, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1(n) and pivots; `order` by `order` double, n below count;
 * LS2, one pointer per object, strided elements. */
VonkStatus vonkLUBackSubst_mava_64f_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const double *const *src2, int32_t src2Shift,
    int32_t src2ElemStride, double *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t order,
    uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1(n) and pivots; 3x3 double, n below count; standard
 * layout. Exception: lu-solve-wide-sums. */
VonkStatus vonkLUBackSubst_mava_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    const uint32_t *pivots, const double *src2, int32_t src2ObjStride, double *dst, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1(n) and pivots; 3x3 double, n below count; S2, strided
 * elements. Exception: lu-solve-wide-sums. */
VonkStatus vonkLUBackSubst_mava_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1(n) and pivots; 3x3 double, n below count; P, one pointer
 * per element position. Exception: lu-solve-wide-sums. */
VonkStatus vonkLUBackSubst_mava_64f_3x3_P(const double *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1(n) and pivots; 3x3 double, n below count; PS2, one
 * pointer per element position, strided objects. Exception: lu-solve-wide-sums. */
VonkStatus vonkLUBackSubst_mava_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const uint32_t *pivots, const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst,
    int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1(n) and pivots; 3x3 double, n below count; L, one pointer
 * per object. */
VonkStatus vonkLUBackSubst_mava_64f_3x3_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const uint32_t *pivots, const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift,
    uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1(n) and pivots; 3x3 double, n below count; LS2, one
 * pointer per object, strided elements. */
VonkStatus vonkLUBackSubst_mava_64f_3x3_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const double *const *src2, int32_t src2Shift,
    int32_t src2ElemStride, double *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1(n) and pivots; 4x4 double, n below count; standard
 * layout. Exception: lu-solve-wide-sums. */
VonkStatus vonkLUBackSubst_mava_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    const uint32_t *pivots, const double *src2, int32_t src2ObjStride, double *dst, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1(n) and pivots; 4x4 double, n below count; S2, strided
 * elements. Exception: lu-solve-wide-sums. */
VonkStatus vonkLUBackSubst_mava_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1(n) and pivots; 4x4 double, n below count; P, one pointer
 * per element position. Exception: lu-solve-wide-sums. */
VonkStatus vonkLUBackSubst_mava_64f_4x4_P(const double *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1(n) and pivots; 4x4 double, n below count; PS2, one
 * pointer per element position, strided objects. Exception: lu-solve-wide-sums. */
VonkStatus vonkLUBackSubst_mava_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const uint32_t *pivots, const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst,
    int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1(n) and pivots; 4x4 double, n below count; L, one pointer
 * per object. */
VonkStatus vonkLUBackSubst_mava_64f_4x4_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const uint32_t *pivots, const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift,
    uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1(n) and pivots; 4x4 double, n below count; LS2, one
 * pointer per object, strided elements. */
VonkStatus vonkLUBackSubst_mava_64f_4x4_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const double *const *src2, int32_t src2Shift,
    int32_t src2ElemStride, double *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1(n) and pivots; 5x5 double, n below count; standard
 * layout. Exception: lu-solve-wide-sums. */
VonkStatus vonkLUBackSubst_mava_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    const uint32_t *pivots, const double *src2, int32_t src2ObjStride, double *dst, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1(n) and pivots; 5x5 double, n below count; S2, strided
 * elements. Exception: lu-solve-wide-sums. */
VonkStatus vonkLUBackSubst_mava_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1(n) and pivots; 5x5 double, n below count; P, one pointer
 * per element position. Exception: lu-solve-wide-sums. */
VonkStatus vonkLUBackSubst_mava_64f_5x5_P(const double *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1(n) and pivots; 5x5 double, n below count; PS2, one
 * pointer per element position, strided objects. Exception: lu-solve-wide-sums. */
VonkStatus vonkLUBackSubst_mava_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const uint32_t *pivots, const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst,
    int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1(n) and pivots; 5x5 double, n below count; L, one pointer
 * per object. */
VonkStatus vonkLUBackSubst_mava_64f_5x5_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const uint32_t *pivots, const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift,
    uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1(n) and pivots; 5x5 double, n below count; LS2, one
 * pointer per object, strided elements. */
VonkStatus vonkLUBackSubst_mava_64f_5x5_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const double *const *src2, int32_t src2Shift,
    int32_t src2ElemStride, double *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1(n) and pivots; 6x6 double, n below count; standard
 * layout. Exception: lu-solve-wide-sums. */
VonkStatus vonkLUBackSubst_mava_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    const uint32_t *pivots, const double *src2, int32_t src2ObjStride, double *dst, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1(n) and pivots; 6x6 double, n below count; S2, strided
 * elements. Exception: lu-solve-wide-sums. */
VonkStatus vonkLUBackSubst_mava_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1(n) and pivots; 6x6 double, n below count; P, one pointer
 * per element position. Exception: lu-solve-wide-sums. */
VonkStatus vonkLUBackSubst_mava_64f_6x6_P(const double *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1(n) and pivots; 6x6 double, n below count; PS2, one
 * pointer per element position, strided objects. Exception: lu-solve-wide-sums. */
VonkStatus vonkLUBackSubst_mava_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const uint32_t *pivots, const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst,
    int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1(n) and pivots; 6x6 double, n below count; L, one pointer
 * per object. */
VonkStatus vonkLUBackSubst_mava_64f_6x6_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const uint32_t *pivots, const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift,
    uint32_t count);
/** dst(n) = solution of A x = src2(n) from the LU factors src1(n) and pivots; 6x6 double, n below count; LS2, one
 * pointer per object, strided elements. */
VonkStatus vonkLUBackSubst_mava_64f_6x6_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const double *const *src2, int32_t src2Shift,
    int32_t src2ElemStride, double *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);

/* ---- Determinant ----------------------------------------------------------------------------------------------------
 *
 * dst[n] = det src(n)
 *
 * `dst` is packed in every layout: one element per object, without a stride. A singular matrix is no failure.
 *
 * Run-time size: Gaussian elimination with partial pivoting in `scratch`, a workspace of `order` * `order` elements
 * followed by `order` 32-bit integers, at any address that suits an element; one `scratch` serves all objects of a
 * call, and its contents are of no use afterwards. The pivot of a column is the element of largest magnitude, the first
 * of equals. One below the singularity tolerance 2^-23 = 1.1920928955078125e-7 (`32f`) or 2^-52 = 2.220446049250313e-16
 * (`64f`), absolute numbers both, or a NaN, makes the determinant 0; so does a last pivot that is not ABOVE that. The
 * partial products of the pivots are stored to `dst` after every column. Method: Golub and Van Loan, Matrix
 * Computations, "LU with partial pivoting", the outer-product form with row indices in place of row exchanges.
 *
 * Fixed size: no division, no tolerance, no `scratch`. Minors of the last two rows come first, each level of larger
 * minors is built on the one below, and row 0 comes last. A singular matrix gives 0 as far as rounding lets it. The
 * standard layout and `L` work both types in 80 bits and round once, at the result; in `S2`, `P`, `PS2` and `LS2` each
 * operation of `32f` is rounded to float, so that a `32f` determinant may differ in its last place between layouts.
 * With a(i,j) for the elements, 3x3 is
 * - `32f`, standard layout and `L`: (a20 a12 - a10 a22) a01 + (a21 a10 - a20 a11) a02 + (a11 a22 - a12 a21) a00
 * - `64f`, standard layout and `L`: (a12 a01 - a11 a02) a20 + (a11 a22 - a12 a21) a00 + (a21 a02 - a01 a22) a10
 * - all others: (a11 a22 - a21 a12) a00 + (a12 a20 - a22 a10) a01 + (a10 a21 - a20 a11) a02
 *
 * How larger sums are grouped is not promised.
 *
 * Status: vonkErrNullPtr if `src`, `scratch` or `dst` is null; vonkErrSize if `order` is 0; vonkErrNullPtr if a table
 * entry is null, even at `count` 0 (`P`, `PS2`), or a list entry when the object's turn comes (`L`, `LS2`), the
 * determinants of earlier objects being stored; `count` 0 gives vonkOk.
 *
 * Overlap:
 * Overlap is not checked. Run-time size copies a matrix to `scratch` first, so `dst` may be an element of it; fixed
 * sizes read all of a matrix before they store. In arrays, `dst` must not overlap later matrices. `scratch` must
 * overlap nothing.
 *
 * Exceptions:
 * - det-float-search (arithmetic): vonkDet_{m_64f{,_S2,_P},ma_64f{,_S2,_P,_PS2,_L,_LS2}}
 *   The search keeps the magnitude of the best pivot so far as a float: between candidates that agree in that
 *   precision, its rounding decides.
 * - det-zero-multiplied (arithmetic): vonkDet_ma_{32f,64f}{,_S2,_P,_PS2,_L,_LS2}
 *   After a pivot that is too small the 0 is still multiplied by the last pivot, whatever that is by then: it may
 *   become -0, or NaN if that pivot is infinite.
 * - det-entry-by-entry (checks): vonkDet_m_{32f,64f}_P
 *   Table entries are checked one by one, as `scratch` is filled.
 */

/** *dst = determinant of src; `order` by `order` float; standard layout. */
VonkStatus vonkDet_m_32f(const float *src, int32_t srcRowStride, uint32_t order, void *scratch, float *dst);
/** *dst = determinant of src; `order` by `order` float; S2, strided elements. */
VonkStatus vonkDet_m_32f_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, uint32_t order,
    void *scratch, float *dst);
/** *dst = determinant of src; `order` by `order` float; P, one pointer per element position. Exception:
 * det-entry-by-entry. */
VonkStatus vonkDet_m_32f_P(const float *const *src, int32_t srcShift, uint32_t order, void *scratch, float *dst);
/** *dst = determinant of src; 3x3 float; standard layout. */
VonkStatus vonkDet_m_32f_3x3(const float *src, int32_t srcRowStride, float *dst);
/** *dst = determinant of src; 3x3 float; S2, strided elements. */
VonkStatus vonkDet_m_32f_3x3_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float *dst);
/** *dst = determinant of src; 3x3 float; P, one pointer per element position. */
VonkStatus vonkDet_m_32f_3x3_P(const float *const *src, int32_t srcShift, float *dst);
/** *dst = determinant of src; 4x4 float; standard layout. */
VonkStatus vonkDet_m_32f_4x4(const float *src, int32_t srcRowStride, float *dst);
/** *dst = determinant of src; 4x4 float; S2, strided elements. */
VonkStatus vonkDet_m_32f_4x4_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float *dst);
/** *dst = determinant of src; 4x4 float; P, one pointer per element position. */
VonkStatus vonkDet_m_32f_4x4_P(const float *const *src, int32_t srcShift, float *dst);
/** *dst = determinant of src; 5x5 float; standard layout. */
VonkStatus vonkDet_m_32f_5x5(const float *src, int32_t srcRowStride, float *dst);
/** *dst = determinant of src; 5x5 float; S2, strided elements. */
VonkStatus vonkDet_m_32f_5x5_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float *dst);
/** *dst = determinant of src; 5x5 float; P, one pointer per element position. */
VonkStatus vonkDet_m_32f_5x5_P(const float *const *src, int32_t srcShift, float *dst);
/** *dst = determinant of src; 6x6 float; standard layout. */
VonkStatus vonkDet_m_32f_6x6(const float *src, int32_t srcRowStride, float *dst);
/** *dst = determinant of src; 6x6 float; S2, strided elements. */
VonkStatus vonkDet_m_32f_6x6_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float *dst);
/** *dst = determinant of src; 6x6 float; P, one pointer per element position. */
VonkStatus vonkDet_m_32f_6x6_P(const float *const *src, int32_t srcShift, float *dst);

/** *dst = determinant of src; `order` by `order` double; standard layout. Exception: det-float-search. */
VonkStatus vonkDet_m_64f(const double *src, int32_t srcRowStride, uint32_t order, void *scratch, double *dst);
/** *dst = determinant of src; `order` by `order` double; S2, strided elements. Exception: det-float-search. */
VonkStatus vonkDet_m_64f_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, uint32_t order,
    void *scratch, double *dst);
/** *dst = determinant of src; `order` by `order` double; P, one pointer per element position. Exceptions:
 * det-float-search, det-entry-by-entry. */
VonkStatus vonkDet_m_64f_P(const double *const *src, int32_t srcShift, uint32_t order, void *scratch, double *dst);
/** *dst = determinant of src; 3x3 double; standard layout. */
VonkStatus vonkDet_m_64f_3x3(const double *src, int32_t srcRowStride, double *dst);
/** *dst = determinant of src; 3x3 double; S2, strided elements. */
VonkStatus vonkDet_m_64f_3x3_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, double *dst);
/** *dst = determinant of src; 3x3 double; P, one pointer per element position. */
VonkStatus vonkDet_m_64f_3x3_P(const double *const *src, int32_t srcShift, double *dst);
/** *dst = determinant of src; 4x4 double; standard layout. */
VonkStatus vonkDet_m_64f_4x4(const double *src, int32_t srcRowStride, double *dst);
/** *dst = determinant of src; 4x4 double; S2, strided elements. */
VonkStatus vonkDet_m_64f_4x4_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, double *dst);
/** *dst = determinant of src; 4x4 double; P, one pointer per element position. */
VonkStatus vonkDet_m_64f_4x4_P(const double *const *src, int32_t srcShift, double *dst);
/** *dst = determinant of src; 5x5 double; standard layout. */
VonkStatus vonkDet_m_64f_5x5(const double *src, int32_t srcRowStride, double *dst);
/** *dst = determinant of src; 5x5 double; S2, strided elements. */
VonkStatus vonkDet_m_64f_5x5_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, double *dst);
/** *dst = determinant of src; 5x5 double; P, one pointer per element position. */
VonkStatus vonkDet_m_64f_5x5_P(const double *const *src, int32_t srcShift, double *dst);
/** *dst = determinant of src; 6x6 double; standard layout. */
VonkStatus vonkDet_m_64f_6x6(const double *src, int32_t srcRowStride, double *dst);
/** *dst = determinant of src; 6x6 double; S2, strided elements. */
VonkStatus vonkDet_m_64f_6x6_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, double *dst);
/** *dst = determinant of src; 6x6 double; P, one pointer per element position. */
VonkStatus vonkDet_m_64f_6x6_P(const double *const *src, int32_t srcShift, double *dst);

/** dst[n] = determinant of src(n); `order` by `order` float, n below count; standard layout. Exception:
 * det-zero-multiplied. */
VonkStatus vonkDet_ma_32f(const float *src, int32_t srcObjStride, int32_t srcRowStride, uint32_t order, void *scratch,
    float *dst, uint32_t count);
/** dst[n] = determinant of src(n); `order` by `order` float, n below count; S2, strided elements. Exception:
 * det-zero-multiplied. */
VonkStatus vonkDet_ma_32f_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    uint32_t order, void *scratch, float *dst, uint32_t count);
/** dst[n] = determinant of src(n); `order` by `order` float, n below count; P, one pointer per element position.
 * Exception: det-zero-multiplied. */
VonkStatus vonkDet_ma_32f_P(const float *const *src, int32_t srcShift, uint32_t order, void *scratch, float *dst,
    uint32_t count);
/** dst[n] = determinant of src(n); `order` by `order` float, n below count; PS2, one pointer per element position,
 * strided objects. Exception: det-zero-multiplied. */
VonkStatus vonkDet_ma_32f_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, uint32_t order,
    void *scratch, float *dst, uint32_t count);
/** dst[n] = determinant of src(n); `order` by `order` float, n below count; L, one pointer per object. Exception:
 * det-zero-multiplied. */
VonkStatus vonkDet_ma_32f_L(const float *const *src, int32_t srcShift, int32_t srcRowStride, uint32_t order,
    void *scratch, float *dst, uint32_t count);
/** dst[n] = determinant of src(n); `order` by `order` float, n below count; LS2, one pointer per object, strided
 * elements. Exception: det-zero-multiplied. */
VonkStatus vonkDet_ma_32f_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride, int32_t srcElemStride,
    uint32_t order, void *scratch, float *dst, uint32_t count);
/** dst[n] = determinant of src(n); 3x3 float, n below count; standard layout. */
VonkStatus vonkDet_ma_32f_3x3(const float *src, int32_t srcObjStride, int32_t srcRowStride, float *dst, uint32_t count);
/** dst[n] = determinant of src(n); 3x3 float, n below count; S2, strided elements. */
VonkStatus vonkDet_ma_32f_3x3_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    float *dst, uint32_t count);
/** dst[n] = determinant of src(n); 3x3 float, n below count; P, one pointer per element position. */
VonkStatus vonkDet_ma_32f_3x3_P(const float *const *src, int32_t srcShift, float *dst, uint32_t count);
/** dst[n] = determinant of src(n); 3x3 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkDet_ma_32f_3x3_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float *dst,
    uint32_t count);
/** dst[n] = determinant of src(n); 3x3 float, n below count; L, one pointer per object. */
VonkStatus vonkDet_ma_32f_3x3_L(const float *const *src, int32_t srcShift, int32_t srcRowStride, float *dst,
    uint32_t count);
/** dst[n] = determinant of src(n); 3x3 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkDet_ma_32f_3x3_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, float *dst, uint32_t count);
/** dst[n] = determinant of src(n); 4x4 float, n below count; standard layout. */
VonkStatus vonkDet_ma_32f_4x4(const float *src, int32_t srcObjStride, int32_t srcRowStride, float *dst, uint32_t count);
/** dst[n] = determinant of src(n); 4x4 float, n below count; S2, strided elements. */
VonkStatus vonkDet_ma_32f_4x4_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    float *dst, uint32_t count);
/** dst[n] = determinant of src(n); 4x4 float, n below count; P, one pointer per element position. */
VonkStatus vonkDet_ma_32f_4x4_P(const float *const *src, int32_t srcShift, float *dst, uint32_t count);
/** dst[n] = determinant of src(n); 4x4 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkDet_ma_32f_4x4_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float *dst,
    uint32_t count);
/** dst[n] = determinant of src(n); 4x4 float, n below count; L, one pointer per object. */
VonkStatus vonkDet_ma_32f_4x4_L(const float *const *src, int32_t srcShift, int32_t srcRowStride, float *dst,
    uint32_t count);
/** dst[n] = determinant of src(n); 4x4 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkDet_ma_32f_4x4_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, float *dst, uint32_t count);
/** dst[n] = determinant of src(n); 5x5 float, n below count; standard layout. */
VonkStatus vonkDet_ma_32f_5x5(const float *src, int32_t srcObjStride, int32_t srcRowStride, float *dst, uint32_t count);
/** dst[n] = determinant of src(n); 5x5 float, n below count; S2, strided elements. */
VonkStatus vonkDet_ma_32f_5x5_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    float *dst, uint32_t count);
/** dst[n] = determinant of src(n); 5x5 float, n below count; P, one pointer per element position. */
VonkStatus vonkDet_ma_32f_5x5_P(const float *const *src, int32_t srcShift, float *dst, uint32_t count);
/** dst[n] = determinant of src(n); 5x5 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkDet_ma_32f_5x5_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float *dst,
    uint32_t count);
/** dst[n] = determinant of src(n); 5x5 float, n below count; L, one pointer per object. */
VonkStatus vonkDet_ma_32f_5x5_L(const float *const *src, int32_t srcShift, int32_t srcRowStride, float *dst,
    uint32_t count);
/** dst[n] = determinant of src(n); 5x5 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkDet_ma_32f_5x5_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, float *dst, uint32_t count);
/** dst[n] = determinant of src(n); 6x6 float, n below count; standard layout. */
VonkStatus vonkDet_ma_32f_6x6(const float *src, int32_t srcObjStride, int32_t srcRowStride, float *dst, uint32_t count);
/** dst[n] = determinant of src(n); 6x6 float, n below count; S2, strided elements. */
VonkStatus vonkDet_ma_32f_6x6_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    float *dst, uint32_t count);
/** dst[n] = determinant of src(n); 6x6 float, n below count; P, one pointer per element position. */
VonkStatus vonkDet_ma_32f_6x6_P(const float *const *src, int32_t srcShift, float *dst, uint32_t count);
/** dst[n] = determinant of src(n); 6x6 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkDet_ma_32f_6x6_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float *dst,
    uint32_t count);
/** dst[n] = determinant of src(n); 6x6 float, n below count; L, one pointer per object. */
VonkStatus vonkDet_ma_32f_6x6_L(const float *const *src, int32_t srcShift, int32_t srcRowStride, float *dst,
    uint32_t count);
/** dst[n] = determinant of src(n); 6x6 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkDet_ma_32f_6x6_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, float *dst, uint32_t count);

/** dst[n] = determinant of src(n); `order` by `order` double, n below count; standard layout. Exceptions:
 * det-float-search, det-zero-multiplied. */
VonkStatus vonkDet_ma_64f(const double *src, int32_t srcObjStride, int32_t srcRowStride, uint32_t order, void *scratch,
    double *dst, uint32_t count);
/** dst[n] = determinant of src(n); `order` by `order` double, n below count; S2, strided elements. Exceptions:
 * det-float-search, det-zero-multiplied. */
VonkStatus vonkDet_ma_64f_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    uint32_t order, void *scratch, double *dst, uint32_t count);
/** dst[n] = determinant of src(n); `order` by `order` double, n below count; P, one pointer per element position.
 * Exceptions: det-float-search, det-zero-multiplied. */
VonkStatus vonkDet_ma_64f_P(const double *const *src, int32_t srcShift, uint32_t order, void *scratch, double *dst,
    uint32_t count);
/** dst[n] = determinant of src(n); `order` by `order` double, n below count; PS2, one pointer per element position,
 * strided objects. Exceptions: det-float-search, det-zero-multiplied. */
VonkStatus vonkDet_ma_64f_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, uint32_t order,
    void *scratch, double *dst, uint32_t count);
/** dst[n] = determinant of src(n); `order` by `order` double, n below count; L, one pointer per object. Exceptions:
 * det-float-search, det-zero-multiplied. */
VonkStatus vonkDet_ma_64f_L(const double *const *src, int32_t srcShift, int32_t srcRowStride, uint32_t order,
    void *scratch, double *dst, uint32_t count);
/** dst[n] = determinant of src(n); `order` by `order` double, n below count; LS2, one pointer per object, strided
 * elements. Exceptions: det-float-search, det-zero-multiplied. */
VonkStatus vonkDet_ma_64f_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride, int32_t srcElemStride,
    uint32_t order, void *scratch, double *dst, uint32_t count);
/** dst[n] = determinant of src(n); 3x3 double, n below count; standard layout. */
VonkStatus vonkDet_ma_64f_3x3(const double *src, int32_t srcObjStride, int32_t srcRowStride, double *dst,
    uint32_t count);
/** dst[n] = determinant of src(n); 3x3 double, n below count; S2, strided elements. */
VonkStatus vonkDet_ma_64f_3x3_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    double *dst, uint32_t count);
/** dst[n] = determinant of src(n); 3x3 double, n below count; P, one pointer per element position. */
VonkStatus vonkDet_ma_64f_3x3_P(const double *const *src, int32_t srcShift, double *dst, uint32_t count);
/** dst[n] = determinant of src(n); 3x3 double, n below count; PS2, one pointer per element position, strided objects.
 * */
VonkStatus vonkDet_ma_64f_3x3_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, double *dst,
    uint32_t count);
/** dst[n] = determinant of src(n); 3x3 double, n below count; L, one pointer per object. */
VonkStatus vonkDet_ma_64f_3x3_L(const double *const *src, int32_t srcShift, int32_t srcRowStride, double *dst,
    uint32_t count);
/** dst[n] = determinant of src(n); 3x3 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkDet_ma_64f_3x3_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, double *dst, uint32_t count);
/** dst[n] = determinant of src(n); 4x4 double, n below count; standard layout. */
VonkStatus vonkDet_ma_64f_4x4(const double *src, int32_t srcObjStride, int32_t srcRowStride, double *dst,
    uint32_t count);
/** dst[n] = determinant of src(n); 4x4 double, n below count; S2, strided elements. */
VonkStatus vonkDet_ma_64f_4x4_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    double *dst, uint32_t count);
/** dst[n] = determinant of src(n); 4x4 double, n below count; P, one pointer per element position. */
VonkStatus vonkDet_ma_64f_4x4_P(const double *const *src, int32_t srcShift, double *dst, uint32_t count);
/** dst[n] = determinant of src(n); 4x4 double, n below count; PS2, one pointer per element position, strided objects.
 * */
VonkStatus vonkDet_ma_64f_4x4_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, double *dst,
    uint32_t count);
/** dst[n] = determinant of src(n); 4x4 double, n below count; L, one pointer per object. */
VonkStatus vonkDet_ma_64f_4x4_L(const double *const *src, int32_t srcShift, int32_t srcRowStride, double *dst,
    uint32_t count);
/** dst[n] = determinant of src(n); 4x4 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkDet_ma_64f_4x4_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, double *dst, uint32_t count);
/** dst[n] = determinant of src(n); 5x5 double, n below count; standard layout. */
VonkStatus vonkDet_ma_64f_5x5(const double *src, int32_t srcObjStride, int32_t srcRowStride, double *dst,
    uint32_t count);
/** dst[n] = determinant of src(n); 5x5 double, n below count; S2, strided elements. */
VonkStatus vonkDet_ma_64f_5x5_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    double *dst, uint32_t count);
/** dst[n] = determinant of src(n); 5x5 double, n below count; P, one pointer per element position. */
VonkStatus vonkDet_ma_64f_5x5_P(const double *const *src, int32_t srcShift, double *dst, uint32_t count);
/** dst[n] = determinant of src(n); 5x5 double, n below count; PS2, one pointer per element position, strided objects.
 * */
VonkStatus vonkDet_ma_64f_5x5_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, double *dst,
    uint32_t count);
/** dst[n] = determinant of src(n); 5x5 double, n below count; L, one pointer per object. */
VonkStatus vonkDet_ma_64f_5x5_L(const double *const *src, int32_t srcShift, int32_t srcRowStride, double *dst,
    uint32_t count);
/** dst[n] = determinant of src(n); 5x5 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkDet_ma_64f_5x5_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, double *dst, uint32_t count);
/** dst[n] = determinant of src(n); 6x6 double, n below count; standard layout. */
VonkStatus vonkDet_ma_64f_6x6(const double *src, int32_t srcObjStride, int32_t srcRowStride, double *dst,
    uint32_t count);
/** dst[n] = determinant of src(n); 6x6 double, n below count; S2, strided elements. */
VonkStatus vonkDet_ma_64f_6x6_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    double *dst, uint32_t count);
/** dst[n] = determinant of src(n); 6x6 double, n below count; P, one pointer per element position. */
VonkStatus vonkDet_ma_64f_6x6_P(const double *const *src, int32_t srcShift, double *dst, uint32_t count);
/** dst[n] = determinant of src(n); 6x6 double, n below count; PS2, one pointer per element position, strided objects.
 * */
VonkStatus vonkDet_ma_64f_6x6_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, double *dst,
    uint32_t count);
/** dst[n] = determinant of src(n); 6x6 double, n below count; L, one pointer per object. */
VonkStatus vonkDet_ma_64f_6x6_L(const double *const *src, int32_t srcShift, int32_t srcRowStride, double *dst,
    uint32_t count);
/** dst[n] = determinant of src(n); 6x6 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkDet_ma_64f_6x6_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, double *dst, uint32_t count);

/* ---- Inverse --------------------------------------------------------------------------------------------------------
 *
 * dst(n) = inverse of src(n), by one of three methods, each with its own criterion for a singular matrix: what one of
 * them finds singular, another may invert. vonkErrSingular ends the call at once: earlier objects are complete, the
 * failing one and later ones untouched. The inverses of 4x4 to 6x6 are right to rounding, but not promised bit for bit.
 *
 * Run-time size: the adjugate over the determinant. Determinant D and the minor m of every element come from
 * eliminations in `scratch`, as in vonkDet and with its tolerances: 2^-23 (`32f`), 2^-52 (`64f`). A pivot below, or a
 * last pivot not above, is vonkErrSingular for D and makes a minor 0. dst(q, c) = (m(c, q) (1 / D)) (+1 or -1), so the
 * inverse of a diagonal matrix has -0 in places. The work grows with the fifth power of `order`. `scratch` is a
 * workspace of `order` * `order` elements followed by `order` 32-bit integers, one for all objects. `order` 1 gives 1 /
 * D, which is not promised. Method: Cramer's rule.
 *
 * 3x3 and 4x4: D is the sum of row 0's elements times their cofactors, dst(q, c) = cofactor(c, q) r with r = 1 / D.
 * Singular is -1e-7 < D < 1e-7 (`32f`) or -1e-15 < D < 1e-15 (`64f`), the ends and a NaN excluded.
 *
 * 5x5 and 6x6: block inversion. Three columns (5x5: two) are brought to the front, the k-th such that the minor of the
 * first k rows on the columns chosen is largest in magnitude. The leading block and its Schur complement are inverted
 * as above, and each determinant is checked as above: a regular matrix whose leading block is close to singular fails.
 * Columns 0 to 4 are candidates. Method: Golub and Van Loan, Matrix Computations, "block elimination"; Press et al.,
 * Numerical Recipes, "inversion by partitioning".
 *
 * Status: vonkErrNullPtr if `src`, `scratch` or `dst` is null; vonkErrSize if `order` is 0; vonkErrNullPtr if an entry
 * of the `src` or `dst` table is null, even at `count` 0 (`P`, `PS2`), or, at run-time size, a list entry when the
 * object's turn comes (`L`, `LS2`); `count` 0 gives vonkOk; vonkErrSingular, see above.
 *
 * Overlap:
 * Overlap is not checked. Run-time size reads `src` to the end: `dst` must not overlap it. Fixed sizes read a matrix
 * whole before they store, except that 5x5 and 6x6 of `32f` in the standard layout and `L` leave the matrix changed
 * where they fail in place. In arrays, no object may overlap the result of an earlier one. `scratch` must overlap
 * nothing.
 *
 * Exceptions:
 * - inverse-estimate (arithmetic): vonkInvert_{m_32f_?x?,ma_32f_?x?{,_L}}
 *   With D the determinant, r = 1 / D comes from the processor's estimate x of it and one Newton step: x + x - (D x) x
 *   in 3x3, x + x - D (x x) in the others. It is right to rounding, but not promised bit for bit.
 * - inverse-unchecked-entries (checks): vonkInvert_ma_32f_?x?_L
 *   List entries are not checked; a null entry is followed.
 * - inverse-entries-first (checks): vonkInvert_ma_64f_?x?_L vonkInvert_ma_{32f,64f}_?x?_LS2
 *   All list entries are checked before the first object.
 * - inverse-entry-by-entry (checks): vonkInvert_m_{32f,64f}_P
 *   Table entries are checked one by one, as `scratch` is filled.
 * - inverse-exact-zero (status): vonkInvert_{m_32f_{3x3,4x4},ma_32f_{3x3,4x4}{,_L}}
 *   A matrix is singular only if its determinant is exactly 0: one of 1e-30 gives huge numbers.
 * - inverse-column-5 (status): vonkInvert_{m_32f_6x6,ma_32f_6x6{,_L}}
 *   Column 5 is a candidate as well. Where row 0 is zero but for column 5, all other 6x6 forms find a regular matrix
 *   singular.
 * - inverse-partly-written (status): vonkInvert_{m_32f_{5x5,6x6},ma_32f_{5x5,6x6}{,_L}}
 *   Intermediate results are stored in `dst`: a failure of the second block leaves it partly written.
 */

/** dst = inverse of src; `order` by `order` float; standard layout. */
VonkStatus vonkInvert_m_32f(const float *src, int32_t srcRowStride, uint32_t order, void *scratch, float *dst,
    int32_t dstRowStride);
/** dst = inverse of src; `order` by `order` float; S2, strided elements. */
VonkStatus vonkInvert_m_32f_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, uint32_t order,
    void *scratch, float *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = inverse of src; `order` by `order` float; P, one pointer per element position. Exception:
 * inverse-entry-by-entry. */
VonkStatus vonkInvert_m_32f_P(const float *const *src, int32_t srcShift, uint32_t order, void *scratch,
    float *const *dst, int32_t dstShift);
/** dst = inverse of src; 3x3 float; standard layout. Exceptions: inverse-estimate, inverse-exact-zero. */
VonkStatus vonkInvert_m_32f_3x3(const float *src, int32_t srcRowStride, float *dst, int32_t dstRowStride);
/** dst = inverse of src; 3x3 float; S2, strided elements. */
VonkStatus vonkInvert_m_32f_3x3_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float *dst,
    int32_t dstRowStride, int32_t dstElemStride);
/** dst = inverse of src; 3x3 float; P, one pointer per element position. */
VonkStatus vonkInvert_m_32f_3x3_P(const float *const *src, int32_t srcShift, float *const *dst, int32_t dstShift);
/** dst = inverse of src; 4x4 float; standard layout. Exceptions: inverse-estimate, inverse-exact-zero. */
VonkStatus vonkInvert_m_32f_4x4(const float *src, int32_t srcRowStride, float *dst, int32_t dstRowStride);
/** dst = inverse of src; 4x4 float; S2, strided elements. */
VonkStatus vonkInvert_m_32f_4x4_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float *dst,
    int32_t dstRowStride, int32_t dstElemStride);
/** dst = inverse of src; 4x4 float; P, one pointer per element position. */
VonkStatus vonkInvert_m_32f_4x4_P(const float *const *src, int32_t srcShift, float *const *dst, int32_t dstShift);
/** dst = inverse of src; 5x5 float; standard layout. Exceptions: inverse-estimate, inverse-partly-written. */
VonkStatus vonkInvert_m_32f_5x5(const float *src, int32_t srcRowStride, float *dst, int32_t dstRowStride);
/** dst = inverse of src; 5x5 float; S2, strided elements. */
VonkStatus vonkInvert_m_32f_5x5_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float *dst,
    int32_t dstRowStride, int32_t dstElemStride);
/** dst = inverse of src; 5x5 float; P, one pointer per element position. */
VonkStatus vonkInvert_m_32f_5x5_P(const float *const *src, int32_t srcShift, float *const *dst, int32_t dstShift);
/** dst = inverse of src; 6x6 float; standard layout. Exceptions: inverse-estimate, inverse-column-5,
 * inverse-partly-written. */
VonkStatus vonkInvert_m_32f_6x6(const float *src, int32_t srcRowStride, float *dst, int32_t dstRowStride);
/** dst = inverse of src; 6x6 float; S2, strided elements. */
VonkStatus vonkInvert_m_32f_6x6_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float *dst,
    int32_t dstRowStride, int32_t dstElemStride);
/** dst = inverse of src; 6x6 float; P, one pointer per element position. */
VonkStatus vonkInvert_m_32f_6x6_P(const float *const *src, int32_t srcShift, float *const *dst, int32_t dstShift);

/** dst = inverse of src; `order` by `order` double; standard layout. */
VonkStatus vonkInvert_m_64f(const double *src, int32_t srcRowStride, uint32_t order, void *scratch, double *dst,
    int32_t dstRowStride);
/** dst = inverse of src; `order` by `order` double; S2, strided elements. */
VonkStatus vonkInvert_m_64f_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, uint32_t order,
    void *scratch, double *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = inverse of src; `order` by `order` double; P, one pointer per element position. Exception:
 * inverse-entry-by-entry. */
VonkStatus vonkInvert_m_64f_P(const double *const *src, int32_t srcShift, uint32_t order, void *scratch,
    double *const *dst, int32_t dstShift);
/** dst = inverse of src; 3x3 double; standard layout. */
VonkStatus vonkInvert_m_64f_3x3(const double *src, int32_t srcRowStride, double *dst, int32_t dstRowStride);
/** dst = inverse of src; 3x3 double; S2, strided elements. */
VonkStatus vonkInvert_m_64f_3x3_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, double *dst,
    int32_t dstRowStride, int32_t dstElemStride);
/** dst = inverse of src; 3x3 double; P, one pointer per element position. */
VonkStatus vonkInvert_m_64f_3x3_P(const double *const *src, int32_t srcShift, double *const *dst, int32_t dstShift);
/** dst = inverse of src; 4x4 double; standard layout. */
VonkStatus vonkInvert_m_64f_4x4(const double *src, int32_t srcRowStride, double *dst, int32_t dstRowStride);
/** dst = inverse of src; 4x4 double; S2, strided elements. */
VonkStatus vonkInvert_m_64f_4x4_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, double *dst,
    int32_t dstRowStride, int32_t dstElemStride);
/** dst = inverse of src; 4x4 double; P, one pointer per element position. */
VonkStatus vonkInvert_m_64f_4x4_P(const double *const *src, int32_t srcShift, double *const *dst, int32_t dstShift);
/** dst = inverse of src; 5x5 double; standard layout. */
VonkStatus vonkInvert_m_64f_5x5(const double *src, int32_t srcRowStride, double *dst, int32_t dstRowStride);
/** dst = inverse of src; 5x5 double; S2, strided elements. */
VonkStatus vonkInvert_m_64f_5x5_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, double *dst,
    int32_t dstRowStride, int32_t dstElemStride);
/** dst = inverse of src; 5x5 double; P, one pointer per element position. */
VonkStatus vonkInvert_m_64f_5x5_P(const double *const *src, int32_t srcShift, double *const *dst, int32_t dstShift);
/** dst = inverse of src; 6x6 double; standard layout. */
VonkStatus vonkInvert_m_64f_6x6(const double *src, int32_t srcRowStride, double *dst, int32_t dstRowStride);
/** dst = inverse of src; 6x6 double; S2, strided elements. */
VonkStatus vonkInvert_m_64f_6x6_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, double *dst,
    int32_t dstRowStride, int32_t dstElemStride);
/** dst = inverse of src; 6x6 double; P, one pointer per element position. */
VonkStatus vonkInvert_m_64f_6x6_P(const double *const *src, int32_t srcShift, double *const *dst, int32_t dstShift);

/** dst(n) = inverse of src(n); `order` by `order` float, n below count; standard layout. */
VonkStatus vonkInvert_ma_32f(const float *src, int32_t srcObjStride, int32_t srcRowStride, uint32_t order,
    void *scratch, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = inverse of src(n); `order` by `order` float, n below count; S2, strided elements. */
VonkStatus vonkInvert_ma_32f_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    uint32_t order, void *scratch, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = inverse of src(n); `order` by `order` float, n below count; P, one pointer per element position. */
VonkStatus vonkInvert_ma_32f_P(const float *const *src, int32_t srcShift, uint32_t order, void *scratch,
    float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = inverse of src(n); `order` by `order` float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkInvert_ma_32f_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, uint32_t order,
    void *scratch, float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = inverse of src(n); `order` by `order` float, n below count; L, one pointer per object. */
VonkStatus vonkInvert_ma_32f_L(const float *const *src, int32_t srcShift, int32_t srcRowStride, uint32_t order,
    void *scratch, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = inverse of src(n); `order` by `order` float, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkInvert_ma_32f_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride, int32_t srcElemStride,
    uint32_t order, void *scratch, float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = inverse of src(n); 3x3 float, n below count; standard layout. Exceptions: inverse-estimate,
 * inverse-exact-zero. */
VonkStatus vonkInvert_ma_32f_3x3(const float *src, int32_t srcObjStride, int32_t srcRowStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = inverse of src(n); 3x3 float, n below count; S2, strided elements. */
VonkStatus vonkInvert_ma_32f_3x3_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = inverse of src(n); 3x3 float, n below count; P, one pointer per element position. */
VonkStatus vonkInvert_ma_32f_3x3_P(const float *const *src, int32_t srcShift, float *const *dst, int32_t dstShift,
    uint32_t count);
/** dst(n) = inverse of src(n); 3x3 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkInvert_ma_32f_3x3_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float *const *dst,
    int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = inverse of src(n); 3x3 float, n below count; L, one pointer per object. Exceptions: inverse-estimate,
 * inverse-unchecked-entries, inverse-exact-zero. */
VonkStatus vonkInvert_ma_32f_3x3_L(const float *const *src, int32_t srcShift, int32_t srcRowStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = inverse of src(n); 3x3 float, n below count; LS2, one pointer per object, strided elements. Exception:
 * inverse-entries-first. */
VonkStatus vonkInvert_ma_32f_3x3_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = inverse of src(n); 4x4 float, n below count; standard layout. Exceptions: inverse-estimate,
 * inverse-exact-zero. */
VonkStatus vonkInvert_ma_32f_4x4(const float *src, int32_t srcObjStride, int32_t srcRowStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = inverse of src(n); 4x4 float, n below count; S2, strided elements. */
VonkStatus vonkInvert_ma_32f_4x4_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = inverse of src(n); 4x4 float, n below count; P, one pointer per element position. */
VonkStatus vonkInvert_ma_32f_4x4_P(const float *const *src, int32_t srcShift, float *const *dst, int32_t dstShift,
    uint32_t count);
/** dst(n) = inverse of src(n); 4x4 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkInvert_ma_32f_4x4_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float *const *dst,
    int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = inverse of src(n); 4x4 float, n below count; L, one pointer per object. Exceptions: inverse-estimate,
 * inverse-unchecked-entries, inverse-exact-zero. */
VonkStatus vonkInvert_ma_32f_4x4_L(const float *const *src, int32_t srcShift, int32_t srcRowStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = inverse of src(n); 4x4 float, n below count; LS2, one pointer per object, strided elements. Exception:
 * inverse-entries-first. */
VonkStatus vonkInvert_ma_32f_4x4_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = inverse of src(n); 5x5 float, n below count; standard layout. Exceptions: inverse-estimate,
 * inverse-partly-written. */
VonkStatus vonkInvert_ma_32f_5x5(const float *src, int32_t srcObjStride, int32_t srcRowStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = inverse of src(n); 5x5 float, n below count; S2, strided elements. */
VonkStatus vonkInvert_ma_32f_5x5_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = inverse of src(n); 5x5 float, n below count; P, one pointer per element position. */
VonkStatus vonkInvert_ma_32f_5x5_P(const float *const *src, int32_t srcShift, float *const *dst, int32_t dstShift,
    uint32_t count);
/** dst(n) = inverse of src(n); 5x5 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkInvert_ma_32f_5x5_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float *const *dst,
    int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = inverse of src(n); 5x5 float, n below count; L, one pointer per object. Exceptions: inverse-estimate,
 * inverse-unchecked-entries, inverse-partly-written. */
VonkStatus vonkInvert_ma_32f_5x5_L(const float *const *src, int32_t srcShift, int32_t srcRowStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = inverse of src(n); 5x5 float, n below count; LS2, one pointer per object, strided elements. Exception:
 * inverse-entries-first. */
VonkStatus vonkInvert_ma_32f_5x5_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = inverse of src(n); 6x6 float, n below count; standard layout. Exceptions: inverse-estimate,
 * inverse-column-5, inverse-partly-written. */
VonkStatus vonkInvert_ma_32f_6x6(const float *src, int32_t srcObjStride, int32_t srcRowStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = inverse of src(n); 6x6 float, n below count; S2, strided elements. */
VonkStatus vonkInvert_ma_32f_6x6_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = inverse of src(n); 6x6 float, n below count; P, one pointer per element position. */
VonkStatus vonkInvert_ma_32f_6x6_P(const float *const *src, int32_t srcShift, float *const *dst, int32_t dstShift,
    uint32_t count);
/** dst(n) = inverse of src(n); 6x6 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkInvert_ma_32f_6x6_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float *const *dst,
    int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = inverse of src(n); 6x6 float, n below count; L, one pointer per object. Exceptions: inverse-estimate,
 * inverse-unchecked-entries, inverse-column-5, inverse-partly-written. */
VonkStatus vonkInvert_ma_32f_6x6_L(const float *const *src, int32_t srcShift, int32_t srcRowStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = inverse of src(n); 6x6 float, n below count; LS2, one pointer per object, strided elements. Exception:
 * inverse-entries-first. */
VonkStatus vonkInvert_ma_32f_6x6_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);

/** dst(n) = inverse of src(n); `order` by `order` double, n below count; standard layout. */
VonkStatus vonkInvert_ma_64f(const double *src, int32_t srcObjStride, int32_t srcRowStride, uint32_t order,
    void *scratch, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = inverse of src(n); `order` by `order` double, n below count; S2, strided elements. */
VonkStatus vonkInvert_ma_64f_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    uint32_t order, void *scratch, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = inverse of src(n); `order` by `order` double, n below count; P, one pointer per element position. */
VonkStatus vonkInvert_ma_64f_P(const double *const *src, int32_t srcShift, uint32_t order, void *scratch,
    double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = inverse of src(n); `order` by `order` double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkInvert_ma_64f_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, uint32_t order,
    void *scratch, double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = inverse of src(n); `order` by `order` double, n below count; L, one pointer per object. */
VonkStatus vonkInvert_ma_64f_L(const double *const *src, int32_t srcShift, int32_t srcRowStride, uint32_t order,
    void *scratch, double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = inverse of src(n); `order` by `order` double, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkInvert_ma_64f_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, uint32_t order, void *scratch, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = inverse of src(n); 3x3 double, n below count; standard layout. */
VonkStatus vonkInvert_ma_64f_3x3(const double *src, int32_t srcObjStride, int32_t srcRowStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = inverse of src(n); 3x3 double, n below count; S2, strided elements. */
VonkStatus vonkInvert_ma_64f_3x3_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
    int32_t srcElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = inverse of src(n); 3x3 double, n below count; P, one pointer per element position. */
VonkStatus vonkInvert_ma_64f_3x3_P(const double *const *src, int32_t srcShift, double *const *dst, int32_t dstShift,
    uint32_t count);
/** dst(n) = inverse of src(n); 3x3 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkInvert_ma_64f_3x3_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = inverse of src(n); 3x3 double, n below count; L, one pointer per object. Exception: inverse-entries-first.
 * */
VonkStatus vonkInvert_ma_64f_3x3_L(const double *const *src, int32_t srcShift, int32_t srcRowStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = inverse of src(n); 3x3 double, n below count; LS2, one pointer per object, strided elements. Exception:
 * inverse-entries-first. */
VonkStatus vonkInvert_ma_64f_3x3_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = inverse of src(n); 4x4 double, n below count; standard layout. */
VonkStatus vonkInvert_ma_64f_4x4(const double *src, int32_t srcObjStride, int32_t srcRowStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = inverse of src(n); 4x4 double, n below count; S2, strided elements. */
VonkStatus vonkInvert_ma_64f_4x4_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
    int32_t srcElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = inverse of src(n); 4x4 double, n below count; P, one pointer per element position. */
VonkStatus vonkInvert_ma_64f_4x4_P(const double *const *src, int32_t srcShift, double *const *dst, int32_t dstShift,
    uint32_t count);
/** dst(n) = inverse of src(n); 4x4 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkInvert_ma_64f_4x4_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = inverse of src(n); 4x4 double, n below count; L, one pointer per object. Exception: inverse-entries-first.
 * */
VonkStatus vonkInvert_ma_64f_4x4_L(const double *const *src, int32_t srcShift, int32_t srcRowStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = inverse of src(n); 4x4 double, n below count; LS2, one pointer per object, strided elements. Exception:
 * inverse-entries-first. */
VonkStatus vonkInvert_ma_64f_4x4_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = inverse of src(n); 5x5 double, n below count; standard layout. */
VonkStatus vonkInvert_ma_64f_5x5(const double *src, int32_t srcObjStride, int32_t srcRowStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = inverse of src(n); 5x5 double, n below count; S2, strided elements. */
VonkStatus vonkInvert_ma_64f_5x5_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
    int32_t srcElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = inverse of src(n); 5x5 double, n below count; P, one pointer per element position. */
VonkStatus vonkInvert_ma_64f_5x5_P(const double *const *src, int32_t srcShift, double *const *dst, int32_t dstShift,
    uint32_t count);
/** dst(n) = inverse of src(n); 5x5 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkInvert_ma_64f_5x5_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = inverse of src(n); 5x5 double, n below count; L, one pointer per object. Exception: inverse-entries-first.
 * */
VonkStatus vonkInvert_ma_64f_5x5_L(const double *const *src, int32_t srcShift, int32_t srcRowStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = inverse of src(n); 5x5 double, n below count; LS2, one pointer per object, strided elements. Exception:
 * inverse-entries-first. */
VonkStatus vonkInvert_ma_64f_5x5_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = inverse of src(n); 6x6 double, n below count; standard layout. */
VonkStatus vonkInvert_ma_64f_6x6(const double *src, int32_t srcObjStride, int32_t srcRowStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = inverse of src(n); 6x6 double, n below count; S2, strided elements. */
VonkStatus vonkInvert_ma_64f_6x6_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
    int32_t srcElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = inverse of src(n); 6x6 double, n below count; P, one pointer per element position. */
VonkStatus vonkInvert_ma_64f_6x6_P(const double *const *src, int32_t srcShift, double *const *dst, int32_t dstShift,
    uint32_t count);
/** dst(n) = inverse of src(n); 6x6 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkInvert_ma_64f_6x6_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = inverse of src(n); 6x6 double, n below count; L, one pointer per object. Exception: inverse-entries-first.
 * */
VonkStatus vonkInvert_ma_64f_6x6_L(const double *const *src, int32_t srcShift, int32_t srcRowStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = inverse of src(n); 6x6 double, n below count; LS2, one pointer per object, strided elements. Exception:
 * inverse-entries-first. */
VonkStatus vonkInvert_ma_64f_6x6_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);

#ifdef __cplusplus
}
#endif

#endif
