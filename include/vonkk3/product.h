/* vonkk3: Matrix by matrix; Matrix by vector; Gaxpy. See vonkk3.h for names, layouts and units.
 *
 * Generated from the catalogue of functions; do not edit.
 */
#ifndef VONKK3_PRODUCT_H
#define VONKK3_PRODUCT_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Matrix by matrix -----------------------------------------------------------------------------------------------
 *
 * dst(n, i, j) = sum over k of A(i, k) B(k, j)
 *
 * with A(i, k) = src1(n, i, k), or src1(n, k, i) if the first operand carries `T`, and B alike from `src2`. A single
 * operand serves all objects. Products and sums are rounded one by one, k ascending, and never fused.
 *
 * Sizes: `src1Cols` and `src1Rows`, `src2Cols` and `src2Rows`. For square matrices they mean what they say. Otherwise
 * the size checks take a transposed operand as it is stored and the loops take it as it enters the product: the result
 * has `src1Rows` rows and `src2Cols` columns and sums `src2Rows` terms. vonkErrSize unless `src1Cols` = `src2Rows`
 * (`mm`, `mam`), `src1Rows` = `src2Cols` (both transposed), `src1Rows` = `src2Rows` (first transposed), `src1Cols` =
 * `src2Cols` (second transposed); and if `src1Rows`, `src1Cols` or one size of `src2` is 0: `src2Cols` in `mm` and with
 * the first transposed alone, else `src2Rows`.
 *
 * Status: vonkErrNullPtr if `src1`, `src2` or `dst` is null; vonkErrSize, see above; vonkErrNullPtr if a table or list
 * entry is null: in single forms in `P` entry by entry as the sums reach it, earlier elements and the partial sum being
 * stored; in `P` and `PS2` of arrays all of `src1`, `src2` and `dst` before anything else, even at `count` 0; in `L`
 * and `LS2` when the object's turn comes. `count` 0 then gives vonkOk.
 *
 * Sums:
 * - `32f` of fixed size in the standard layout and `L`: in SIMD lanes, from the first product on, with one store per
 *   element.
 * - `32f` otherwise: from +0; `dst` is set to +0 and every partial sum is stored to it.
 * - `64f`: from +0 in the 80-bit type; `dst` is set to +0 and every partial sum is stored to it, rounded. In the
 *   standard layout and `S2` the sum itself stays unrounded to the end; in `P`, `PS2`, `L` and `LS2` it is rounded to
 *   64 bits at every step.
 *
 * Overlap:
 * Overlap is not checked, and where partial sums are stored to memory they destroy an operand that `dst` overlaps. The
 * forms in SIMD lanes (`32f` of fixed size in the standard layout and `L`) load B first and read A row by row, so some
 * calls in place are right: with `dst` = `src1` where A is not transposed (3x3 to 5x5), with `dst` = `src2` where B
 * need not be read again (not in `mm`, `mTm` of 5x5, nor in `mmT`, `mTmT` of 6x6). A single operand must never overlap
 * a `dst` that is an array. With disjoint operands the order of objects, elements and stores may be another, with the
 * same results.
 *
 * Exceptions:
 * - product-simd (arithmetic): vonkMul_{mam,mama}_32f_{3x3,4x4,5x5}_S2 vonkMul_{maTm,mamT,maTmT}_32f_3x3_S2
 *     vonkMul_{mam,maTm,mamT}_32f_3x3_{P,PS2} vonkMul_{mam,maTm,mamT,maTmT}_32f_3x3_LS2
 *   Sums run in SIMD lanes, as in the standard layout: from the first product on, with one store per element.
 * - product-pairs (arithmetic): vonkMul_{mm,mmT,mTmT}_32f_6x6_S2
 *   The sum is ((p0 + p1) + (p2 + p3)) + (p4 + p5), with one store per element.
 * - product-stored-shape (result): vonkMul_mmT_{32f,64f}
 *   The loops follow the shapes as stored: the result has `src2Rows` columns and sums `src1Cols` terms.
 * - product-size-check (checks): vonkMul_{mma,mama}_{32f,64f}{,_S2,_P,_PS2,_L,_LS2}
 *   The size check is that of the doubly transposed forms: vonkErrSize unless `src1Rows` = `src2Cols`.
 * - product-checked-entries (checks):
 *     vonkMul_{mam,mamT,maTm,maTmT,mma,mmaT,mTma,mTmaT,mama,mamaT,maTma,maTmaT}_{32f,64f}_{P,PS2}
 *   Of the `dst` table `src1Cols` * `src2Rows` entries are checked (`src1Rows` for the first if `src1` is transposed,
 *   `src2Cols` for the second if `src2` is), which need not be those that are written.
 * - product-unchecked-entries (checks): vonkMul_{mam,maTm,mamT}_32f_3x3_{P,PS2}
 *     vonkMul_{mam,maTm,mamT,maTmT}_32f_3x3_LS2
 *   Table and list entries are not checked; a null entry is followed.
 * - product-no-columns (status): vonkMul_mam_{32f,64f}{,_S2,_P,_PS2,_L,_LS2}
 *   A `src2Cols` of 0 is no error: nothing is written, and the status is vonkOk.
 */

/** dst = matrix product src1 src2; `rows` by `cols` float; standard layout. */
VonkStatus vonkMul_mm_32f(const float *src1, int32_t src1RowStride, uint32_t src1Cols, uint32_t src1Rows,
    const float *src2, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows, float *dst, int32_t dstRowStride);
/** dst = matrix product src1 src2; `rows` by `cols` float; S2, strided elements. */
VonkStatus vonkMul_mm_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, uint32_t src2Cols,
    uint32_t src2Rows, float *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = matrix product src1 src2; `rows` by `cols` float; P, one pointer per element position. */
VonkStatus vonkMul_mm_32f_P(const float *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const float *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows, float *const *dst,
    int32_t dstShift);
/** dst = matrix product src1 src2; 3x3 float; standard layout. */
VonkStatus vonkMul_mm_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
/** dst = matrix product src1 src2; 3x3 float; S2, strided elements. */
VonkStatus vonkMul_mm_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = matrix product src1 src2; 3x3 float; P, one pointer per element position. */
VonkStatus vonkMul_mm_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
/** dst = matrix product src1 src2; 4x4 float; standard layout. */
VonkStatus vonkMul_mm_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
/** dst = matrix product src1 src2; 4x4 float; S2, strided elements. */
VonkStatus vonkMul_mm_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = matrix product src1 src2; 4x4 float; P, one pointer per element position. */
VonkStatus vonkMul_mm_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
/** dst = matrix product src1 src2; 5x5 float; standard layout. */
VonkStatus vonkMul_mm_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
/** dst = matrix product src1 src2; 5x5 float; S2, strided elements. */
VonkStatus vonkMul_mm_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = matrix product src1 src2; 5x5 float; P, one pointer per element position. */
VonkStatus vonkMul_mm_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
/** dst = matrix product src1 src2; 6x6 float; standard layout. */
VonkStatus vonkMul_mm_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
/** dst = matrix product src1 src2; 6x6 float; S2, strided elements. Exception: product-pairs. */
VonkStatus vonkMul_mm_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = matrix product src1 src2; 6x6 float; P, one pointer per element position. */
VonkStatus vonkMul_mm_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);

/** dst = matrix product src1 src2; `rows` by `cols` double; standard layout. */
VonkStatus vonkMul_mm_64f(const double *src1, int32_t src1RowStride, uint32_t src1Cols, uint32_t src1Rows,
    const double *src2, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows, double *dst, int32_t dstRowStride);
/** dst = matrix product src1 src2; `rows` by `cols` double; S2, strided elements. */
VonkStatus vonkMul_mm_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, uint32_t src2Cols,
    uint32_t src2Rows, double *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = matrix product src1 src2; `rows` by `cols` double; P, one pointer per element position. */
VonkStatus vonkMul_mm_64f_P(const double *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const double *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows, double *const *dst,
    int32_t dstShift);
/** dst = matrix product src1 src2; 3x3 double; standard layout. */
VonkStatus vonkMul_mm_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
/** dst = matrix product src1 src2; 3x3 double; S2, strided elements. */
VonkStatus vonkMul_mm_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = matrix product src1 src2; 3x3 double; P, one pointer per element position. */
VonkStatus vonkMul_mm_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
/** dst = matrix product src1 src2; 4x4 double; standard layout. */
VonkStatus vonkMul_mm_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
/** dst = matrix product src1 src2; 4x4 double; S2, strided elements. */
VonkStatus vonkMul_mm_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = matrix product src1 src2; 4x4 double; P, one pointer per element position. */
VonkStatus vonkMul_mm_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
/** dst = matrix product src1 src2; 5x5 double; standard layout. */
VonkStatus vonkMul_mm_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
/** dst = matrix product src1 src2; 5x5 double; S2, strided elements. */
VonkStatus vonkMul_mm_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = matrix product src1 src2; 5x5 double; P, one pointer per element position. */
VonkStatus vonkMul_mm_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
/** dst = matrix product src1 src2; 6x6 double; standard layout. */
VonkStatus vonkMul_mm_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
/** dst = matrix product src1 src2; 6x6 double; S2, strided elements. */
VonkStatus vonkMul_mm_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = matrix product src1 src2; 6x6 double; P, one pointer per element position. */
VonkStatus vonkMul_mm_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);

/** dst = matrix product src1 src2'; `rows` by `cols` float; standard layout. Exception: product-stored-shape. */
VonkStatus vonkMul_mmT_32f(const float *src1, int32_t src1RowStride, uint32_t src1Cols, uint32_t src1Rows,
    const float *src2, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows, float *dst, int32_t dstRowStride);
/** dst = matrix product src1 src2'; `rows` by `cols` float; S2, strided elements. */
VonkStatus vonkMul_mmT_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, uint32_t src2Cols,
    uint32_t src2Rows, float *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = matrix product src1 src2'; `rows` by `cols` float; P, one pointer per element position. */
VonkStatus vonkMul_mmT_32f_P(const float *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const float *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows, float *const *dst,
    int32_t dstShift);
/** dst = matrix product src1 src2'; 3x3 float; standard layout. */
VonkStatus vonkMul_mmT_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
/** dst = matrix product src1 src2'; 3x3 float; S2, strided elements. */
VonkStatus vonkMul_mmT_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = matrix product src1 src2'; 3x3 float; P, one pointer per element position. */
VonkStatus vonkMul_mmT_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
/** dst = matrix product src1 src2'; 4x4 float; standard layout. */
VonkStatus vonkMul_mmT_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
/** dst = matrix product src1 src2'; 4x4 float; S2, strided elements. */
VonkStatus vonkMul_mmT_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = matrix product src1 src2'; 4x4 float; P, one pointer per element position. */
VonkStatus vonkMul_mmT_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
/** dst = matrix product src1 src2'; 5x5 float; standard layout. */
VonkStatus vonkMul_mmT_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
/** dst = matrix product src1 src2'; 5x5 float; S2, strided elements. */
VonkStatus vonkMul_mmT_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = matrix product src1 src2'; 5x5 float; P, one pointer per element position. */
VonkStatus vonkMul_mmT_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
/** dst = matrix product src1 src2'; 6x6 float; standard layout. */
VonkStatus vonkMul_mmT_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
/** dst = matrix product src1 src2'; 6x6 float; S2, strided elements. Exception: product-pairs. */
VonkStatus vonkMul_mmT_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = matrix product src1 src2'; 6x6 float; P, one pointer per element position. */
VonkStatus vonkMul_mmT_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);

/** dst = matrix product src1 src2'; `rows` by `cols` double; standard layout. Exception: product-stored-shape. */
VonkStatus vonkMul_mmT_64f(const double *src1, int32_t src1RowStride, uint32_t src1Cols, uint32_t src1Rows,
    const double *src2, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows, double *dst, int32_t dstRowStride);
/** dst = matrix product src1 src2'; `rows` by `cols` double; S2, strided elements. */
VonkStatus vonkMul_mmT_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, uint32_t src2Cols,
    uint32_t src2Rows, double *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = matrix product src1 src2'; `rows` by `cols` double; P, one pointer per element position. */
VonkStatus vonkMul_mmT_64f_P(const double *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const double *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows, double *const *dst,
    int32_t dstShift);
/** dst = matrix product src1 src2'; 3x3 double; standard layout. */
VonkStatus vonkMul_mmT_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
/** dst = matrix product src1 src2'; 3x3 double; S2, strided elements. */
VonkStatus vonkMul_mmT_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = matrix product src1 src2'; 3x3 double; P, one pointer per element position. */
VonkStatus vonkMul_mmT_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
/** dst = matrix product src1 src2'; 4x4 double; standard layout. */
VonkStatus vonkMul_mmT_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
/** dst = matrix product src1 src2'; 4x4 double; S2, strided elements. */
VonkStatus vonkMul_mmT_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = matrix product src1 src2'; 4x4 double; P, one pointer per element position. */
VonkStatus vonkMul_mmT_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
/** dst = matrix product src1 src2'; 5x5 double; standard layout. */
VonkStatus vonkMul_mmT_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
/** dst = matrix product src1 src2'; 5x5 double; S2, strided elements. */
VonkStatus vonkMul_mmT_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = matrix product src1 src2'; 5x5 double; P, one pointer per element position. */
VonkStatus vonkMul_mmT_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
/** dst = matrix product src1 src2'; 6x6 double; standard layout. */
VonkStatus vonkMul_mmT_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
/** dst = matrix product src1 src2'; 6x6 double; S2, strided elements. */
VonkStatus vonkMul_mmT_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = matrix product src1 src2'; 6x6 double; P, one pointer per element position. */
VonkStatus vonkMul_mmT_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);

/** dst = matrix product src1' src2; `rows` by `cols` float; standard layout. */
VonkStatus vonkMul_mTm_32f(const float *src1, int32_t src1RowStride, uint32_t src1Cols, uint32_t src1Rows,
    const float *src2, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows, float *dst, int32_t dstRowStride);
/** dst = matrix product src1' src2; `rows` by `cols` float; S2, strided elements. */
VonkStatus vonkMul_mTm_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, uint32_t src2Cols,
    uint32_t src2Rows, float *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = matrix product src1' src2; `rows` by `cols` float; P, one pointer per element position. */
VonkStatus vonkMul_mTm_32f_P(const float *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const float *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows, float *const *dst,
    int32_t dstShift);
/** dst = matrix product src1' src2; 3x3 float; standard layout. */
VonkStatus vonkMul_mTm_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
/** dst = matrix product src1' src2; 3x3 float; S2, strided elements. */
VonkStatus vonkMul_mTm_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = matrix product src1' src2; 3x3 float; P, one pointer per element position. */
VonkStatus vonkMul_mTm_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
/** dst = matrix product src1' src2; 4x4 float; standard layout. */
VonkStatus vonkMul_mTm_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
/** dst = matrix product src1' src2; 4x4 float; S2, strided elements. */
VonkStatus vonkMul_mTm_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = matrix product src1' src2; 4x4 float; P, one pointer per element position. */
VonkStatus vonkMul_mTm_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
/** dst = matrix product src1' src2; 5x5 float; standard layout. */
VonkStatus vonkMul_mTm_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
/** dst = matrix product src1' src2; 5x5 float; S2, strided elements. */
VonkStatus vonkMul_mTm_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = matrix product src1' src2; 5x5 float; P, one pointer per element position. */
VonkStatus vonkMul_mTm_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
/** dst = matrix product src1' src2; 6x6 float; standard layout. */
VonkStatus vonkMul_mTm_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
/** dst = matrix product src1' src2; 6x6 float; S2, strided elements. */
VonkStatus vonkMul_mTm_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = matrix product src1' src2; 6x6 float; P, one pointer per element position. */
VonkStatus vonkMul_mTm_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);

/** dst = matrix product src1' src2; `rows` by `cols` double; standard layout. */
VonkStatus vonkMul_mTm_64f(const double *src1, int32_t src1RowStride, uint32_t src1Cols, uint32_t src1Rows,
    const double *src2, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows, double *dst, int32_t dstRowStride);
/** dst = matrix product src1' src2; `rows` by `cols` double; S2, strided elements. */
VonkStatus vonkMul_mTm_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, uint32_t src2Cols,
    uint32_t src2Rows, double *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = matrix product src1' src2; `rows` by `cols` double; P, one pointer per element position. */
VonkStatus vonkMul_mTm_64f_P(const double *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const double *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows, double *const *dst,
    int32_t dstShift);
/** dst = matrix product src1' src2; 3x3 double; standard layout. */
VonkStatus vonkMul_mTm_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
/** dst = matrix product src1' src2; 3x3 double; S2, strided elements. */
VonkStatus vonkMul_mTm_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = matrix product src1' src2; 3x3 double; P, one pointer per element position. */
VonkStatus vonkMul_mTm_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
/** dst = matrix product src1' src2; 4x4 double; standard layout. */
VonkStatus vonkMul_mTm_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
/** dst = matrix product src1' src2; 4x4 double; S2, strided elements. */
VonkStatus vonkMul_mTm_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = matrix product src1' src2; 4x4 double; P, one pointer per element position. */
VonkStatus vonkMul_mTm_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
/** dst = matrix product src1' src2; 5x5 double; standard layout. */
VonkStatus vonkMul_mTm_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
/** dst = matrix product src1' src2; 5x5 double; S2, strided elements. */
VonkStatus vonkMul_mTm_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = matrix product src1' src2; 5x5 double; P, one pointer per element position. */
VonkStatus vonkMul_mTm_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
/** dst = matrix product src1' src2; 6x6 double; standard layout. */
VonkStatus vonkMul_mTm_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
/** dst = matrix product src1' src2; 6x6 double; S2, strided elements. */
VonkStatus vonkMul_mTm_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = matrix product src1' src2; 6x6 double; P, one pointer per element position. */
VonkStatus vonkMul_mTm_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);

/** dst = matrix product src1' src2'; `rows` by `cols` float; standard layout. */
VonkStatus vonkMul_mTmT_32f(const float *src1, int32_t src1RowStride, uint32_t src1Cols, uint32_t src1Rows,
    const float *src2, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows, float *dst, int32_t dstRowStride);
/** dst = matrix product src1' src2'; `rows` by `cols` float; S2, strided elements. */
VonkStatus vonkMul_mTmT_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, uint32_t src2Cols,
    uint32_t src2Rows, float *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = matrix product src1' src2'; `rows` by `cols` float; P, one pointer per element position. */
VonkStatus vonkMul_mTmT_32f_P(const float *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const float *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows, float *const *dst,
    int32_t dstShift);
/** dst = matrix product src1' src2'; 3x3 float; standard layout. */
VonkStatus vonkMul_mTmT_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
/** dst = matrix product src1' src2'; 3x3 float; S2, strided elements. */
VonkStatus vonkMul_mTmT_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = matrix product src1' src2'; 3x3 float; P, one pointer per element position. */
VonkStatus vonkMul_mTmT_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
/** dst = matrix product src1' src2'; 4x4 float; standard layout. */
VonkStatus vonkMul_mTmT_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
/** dst = matrix product src1' src2'; 4x4 float; S2, strided elements. */
VonkStatus vonkMul_mTmT_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = matrix product src1' src2'; 4x4 float; P, one pointer per element position. */
VonkStatus vonkMul_mTmT_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
/** dst = matrix product src1' src2'; 5x5 float; standard layout. */
VonkStatus vonkMul_mTmT_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
/** dst = matrix product src1' src2'; 5x5 float; S2, strided elements. */
VonkStatus vonkMul_mTmT_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = matrix product src1' src2'; 5x5 float; P, one pointer per element position. */
VonkStatus vonkMul_mTmT_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
/** dst = matrix product src1' src2'; 6x6 float; standard layout. */
VonkStatus vonkMul_mTmT_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
/** dst = matrix product src1' src2'; 6x6 float; S2, strided elements. Exception: product-pairs. */
VonkStatus vonkMul_mTmT_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = matrix product src1' src2'; 6x6 float; P, one pointer per element position. */
VonkStatus vonkMul_mTmT_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);

/** dst = matrix product src1' src2'; `rows` by `cols` double; standard layout. */
VonkStatus vonkMul_mTmT_64f(const double *src1, int32_t src1RowStride, uint32_t src1Cols, uint32_t src1Rows,
    const double *src2, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows, double *dst, int32_t dstRowStride);
/** dst = matrix product src1' src2'; `rows` by `cols` double; S2, strided elements. */
VonkStatus vonkMul_mTmT_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, uint32_t src2Cols,
    uint32_t src2Rows, double *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = matrix product src1' src2'; `rows` by `cols` double; P, one pointer per element position. */
VonkStatus vonkMul_mTmT_64f_P(const double *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const double *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows, double *const *dst,
    int32_t dstShift);
/** dst = matrix product src1' src2'; 3x3 double; standard layout. */
VonkStatus vonkMul_mTmT_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
/** dst = matrix product src1' src2'; 3x3 double; S2, strided elements. */
VonkStatus vonkMul_mTmT_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
    int32_t dstElemStride);
/** dst = matrix product src1' src2'; 3x3 double; P, one pointer per element position. */
VonkStatus vonkMul_mTmT_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
/** dst = matrix product src1' src2'; 4x4 double; standard layout. */
VonkStatus vonkMul_mTmT_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
/** dst = matrix product src1' src2'; 4x4 double; S2, strided elements. */
VonkStatus vonkMul_mTmT_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
    int32_t dstElemStride);
/** dst = matrix product src1' src2'; 4x4 double; P, one pointer per element position. */
VonkStatus vonkMul_mTmT_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
/** dst = matrix product src1' src2'; 5x5 double; standard layout. */
VonkStatus vonkMul_mTmT_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
/** dst = matrix product src1' src2'; 5x5 double; S2, strided elements. */
VonkStatus vonkMul_mTmT_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
    int32_t dstElemStride);
/** dst = matrix product src1' src2'; 5x5 double; P, one pointer per element position. */
VonkStatus vonkMul_mTmT_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
/** dst = matrix product src1' src2'; 6x6 double; standard layout. */
VonkStatus vonkMul_mTmT_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
/** dst = matrix product src1' src2'; 6x6 double; S2, strided elements. */
VonkStatus vonkMul_mTmT_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
    int32_t dstElemStride);
/** dst = matrix product src1' src2'; 6x6 double; P, one pointer per element position. */
VonkStatus vonkMul_mTmT_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);

/** dst(n) = matrix product src1 src2(n); `rows` by `cols` float, n below count; standard layout. Exception:
 * product-size-check. */
VonkStatus vonkMul_mma_32f(const float *src1, int32_t src1RowStride, uint32_t src1Cols, uint32_t src1Rows,
    const float *src2, int32_t src2ObjStride, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1 src2(n); `rows` by `cols` float, n below count; S2, strided elements. Exception:
 * product-size-check. */
VonkStatus vonkMul_mma_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    uint32_t src2Cols, uint32_t src2Rows, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = matrix product src1 src2(n); `rows` by `cols` float, n below count; P, one pointer per element position.
 * Exceptions: product-size-check, product-checked-entries. */
VonkStatus vonkMul_mma_32f_P(const float *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const float *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1 src2(n); `rows` by `cols` float, n below count; PS2, one pointer per element position,
 * strided objects. Exceptions: product-size-check, product-checked-entries. */
VonkStatus vonkMul_mma_32f_PS2(const float *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, uint32_t src2Cols, uint32_t src2Rows,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix product src1 src2(n); `rows` by `cols` float, n below count; L, one pointer per object. Exception:
 * product-size-check. */
VonkStatus vonkMul_mma_32f_L(const float *src1, int32_t src1RowStride, uint32_t src1Cols, uint32_t src1Rows,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1 src2(n); `rows` by `cols` float, n below count; LS2, one pointer per object, strided
 * elements. Exception: product-size-check. */
VonkStatus vonkMul_mma_32f_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    uint32_t src2Cols, uint32_t src2Rows, float *const *dst, int32_t dstShift, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1 src2(n); 3x3 float, n below count; standard layout. */
VonkStatus vonkMul_mma_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1 src2(n); 3x3 float, n below count; S2, strided elements. */
VonkStatus vonkMul_mma_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1 src2(n); 3x3 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mma_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1 src2(n); 3x3 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mma_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix product src1 src2(n); 3x3 float, n below count; L, one pointer per object. */
VonkStatus vonkMul_mma_32f_3x3_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1 src2(n); 3x3 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_mma_32f_3x3_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1 src2(n); 4x4 float, n below count; standard layout. */
VonkStatus vonkMul_mma_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1 src2(n); 4x4 float, n below count; S2, strided elements. */
VonkStatus vonkMul_mma_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1 src2(n); 4x4 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mma_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1 src2(n); 4x4 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mma_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix product src1 src2(n); 4x4 float, n below count; L, one pointer per object. */
VonkStatus vonkMul_mma_32f_4x4_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1 src2(n); 4x4 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_mma_32f_4x4_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1 src2(n); 5x5 float, n below count; standard layout. */
VonkStatus vonkMul_mma_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1 src2(n); 5x5 float, n below count; S2, strided elements. */
VonkStatus vonkMul_mma_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1 src2(n); 5x5 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mma_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1 src2(n); 5x5 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mma_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix product src1 src2(n); 5x5 float, n below count; L, one pointer per object. */
VonkStatus vonkMul_mma_32f_5x5_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1 src2(n); 5x5 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_mma_32f_5x5_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1 src2(n); 6x6 float, n below count; standard layout. */
VonkStatus vonkMul_mma_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1 src2(n); 6x6 float, n below count; S2, strided elements. */
VonkStatus vonkMul_mma_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1 src2(n); 6x6 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mma_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1 src2(n); 6x6 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mma_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix product src1 src2(n); 6x6 float, n below count; L, one pointer per object. */
VonkStatus vonkMul_mma_32f_6x6_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1 src2(n); 6x6 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_mma_32f_6x6_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

/** dst(n) = matrix product src1 src2(n); `rows` by `cols` double, n below count; standard layout. Exception:
 * product-size-check. */
VonkStatus vonkMul_mma_64f(const double *src1, int32_t src1RowStride, uint32_t src1Cols, uint32_t src1Rows,
    const double *src2, int32_t src2ObjStride, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1 src2(n); `rows` by `cols` double, n below count; S2, strided elements. Exception:
 * product-size-check. */
VonkStatus vonkMul_mma_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    uint32_t src2Cols, uint32_t src2Rows, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1 src2(n); `rows` by `cols` double, n below count; P, one pointer per element position.
 * Exceptions: product-size-check, product-checked-entries. */
VonkStatus vonkMul_mma_64f_P(const double *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const double *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1 src2(n); `rows` by `cols` double, n below count; PS2, one pointer per element position,
 * strided objects. Exceptions: product-size-check, product-checked-entries. */
VonkStatus vonkMul_mma_64f_PS2(const double *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, uint32_t src2Cols, uint32_t src2Rows,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix product src1 src2(n); `rows` by `cols` double, n below count; L, one pointer per object. Exception:
 * product-size-check. */
VonkStatus vonkMul_mma_64f_L(const double *src1, int32_t src1RowStride, uint32_t src1Cols, uint32_t src1Rows,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1 src2(n); `rows` by `cols` double, n below count; LS2, one pointer per object, strided
 * elements. Exception: product-size-check. */
VonkStatus vonkMul_mma_64f_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    uint32_t src2Cols, uint32_t src2Rows, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1 src2(n); 3x3 double, n below count; standard layout. */
VonkStatus vonkMul_mma_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1 src2(n); 3x3 double, n below count; S2, strided elements. */
VonkStatus vonkMul_mma_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1 src2(n); 3x3 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mma_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1 src2(n); 3x3 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mma_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix product src1 src2(n); 3x3 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_mma_64f_3x3_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = matrix product src1 src2(n); 3x3 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_mma_64f_3x3_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1 src2(n); 4x4 double, n below count; standard layout. */
VonkStatus vonkMul_mma_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1 src2(n); 4x4 double, n below count; S2, strided elements. */
VonkStatus vonkMul_mma_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1 src2(n); 4x4 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mma_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1 src2(n); 4x4 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mma_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix product src1 src2(n); 4x4 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_mma_64f_4x4_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = matrix product src1 src2(n); 4x4 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_mma_64f_4x4_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1 src2(n); 5x5 double, n below count; standard layout. */
VonkStatus vonkMul_mma_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1 src2(n); 5x5 double, n below count; S2, strided elements. */
VonkStatus vonkMul_mma_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1 src2(n); 5x5 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mma_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1 src2(n); 5x5 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mma_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix product src1 src2(n); 5x5 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_mma_64f_5x5_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = matrix product src1 src2(n); 5x5 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_mma_64f_5x5_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1 src2(n); 6x6 double, n below count; standard layout. */
VonkStatus vonkMul_mma_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1 src2(n); 6x6 double, n below count; S2, strided elements. */
VonkStatus vonkMul_mma_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1 src2(n); 6x6 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mma_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1 src2(n); 6x6 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mma_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix product src1 src2(n); 6x6 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_mma_64f_6x6_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = matrix product src1 src2(n); 6x6 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_mma_64f_6x6_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

/** dst(n) = matrix product src1 src2(n)'; `rows` by `cols` float, n below count; standard layout. */
VonkStatus vonkMul_mmaT_32f(const float *src1, int32_t src1RowStride, uint32_t src1Cols, uint32_t src1Rows,
    const float *src2, int32_t src2ObjStride, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1 src2(n)'; `rows` by `cols` float, n below count; S2, strided elements. */
VonkStatus vonkMul_mmaT_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    uint32_t src2Cols, uint32_t src2Rows, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = matrix product src1 src2(n)'; `rows` by `cols` float, n below count; P, one pointer per element position.
 * Exception: product-checked-entries. */
VonkStatus vonkMul_mmaT_32f_P(const float *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const float *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1 src2(n)'; `rows` by `cols` float, n below count; PS2, one pointer per element position,
 * strided objects. Exception: product-checked-entries. */
VonkStatus vonkMul_mmaT_32f_PS2(const float *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, uint32_t src2Cols, uint32_t src2Rows,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix product src1 src2(n)'; `rows` by `cols` float, n below count; L, one pointer per object. */
VonkStatus vonkMul_mmaT_32f_L(const float *src1, int32_t src1RowStride, uint32_t src1Cols, uint32_t src1Rows,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1 src2(n)'; `rows` by `cols` float, n below count; LS2, one pointer per object, strided
 * elements. */
VonkStatus vonkMul_mmaT_32f_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    uint32_t src2Cols, uint32_t src2Rows, float *const *dst, int32_t dstShift, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1 src2(n)'; 3x3 float, n below count; standard layout. */
VonkStatus vonkMul_mmaT_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1 src2(n)'; 3x3 float, n below count; S2, strided elements. */
VonkStatus vonkMul_mmaT_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1 src2(n)'; 3x3 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mmaT_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1 src2(n)'; 3x3 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mmaT_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix product src1 src2(n)'; 3x3 float, n below count; L, one pointer per object. */
VonkStatus vonkMul_mmaT_32f_3x3_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1 src2(n)'; 3x3 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_mmaT_32f_3x3_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1 src2(n)'; 4x4 float, n below count; standard layout. */
VonkStatus vonkMul_mmaT_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1 src2(n)'; 4x4 float, n below count; S2, strided elements. */
VonkStatus vonkMul_mmaT_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1 src2(n)'; 4x4 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mmaT_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1 src2(n)'; 4x4 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mmaT_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix product src1 src2(n)'; 4x4 float, n below count; L, one pointer per object. */
VonkStatus vonkMul_mmaT_32f_4x4_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1 src2(n)'; 4x4 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_mmaT_32f_4x4_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1 src2(n)'; 5x5 float, n below count; standard layout. */
VonkStatus vonkMul_mmaT_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1 src2(n)'; 5x5 float, n below count; S2, strided elements. */
VonkStatus vonkMul_mmaT_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1 src2(n)'; 5x5 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mmaT_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1 src2(n)'; 5x5 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mmaT_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix product src1 src2(n)'; 5x5 float, n below count; L, one pointer per object. */
VonkStatus vonkMul_mmaT_32f_5x5_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1 src2(n)'; 5x5 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_mmaT_32f_5x5_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1 src2(n)'; 6x6 float, n below count; standard layout. */
VonkStatus vonkMul_mmaT_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1 src2(n)'; 6x6 float, n below count; S2, strided elements. */
VonkStatus vonkMul_mmaT_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1 src2(n)'; 6x6 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mmaT_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1 src2(n)'; 6x6 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mmaT_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix product src1 src2(n)'; 6x6 float, n below count; L, one pointer per object. */
VonkStatus vonkMul_mmaT_32f_6x6_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1 src2(n)'; 6x6 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_mmaT_32f_6x6_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

/** dst(n) = matrix product src1 src2(n)'; `rows` by `cols` double, n below count; standard layout. */
VonkStatus vonkMul_mmaT_64f(const double *src1, int32_t src1RowStride, uint32_t src1Cols, uint32_t src1Rows,
    const double *src2, int32_t src2ObjStride, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1 src2(n)'; `rows` by `cols` double, n below count; S2, strided elements. */
VonkStatus vonkMul_mmaT_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    uint32_t src2Cols, uint32_t src2Rows, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1 src2(n)'; `rows` by `cols` double, n below count; P, one pointer per element position.
 * Exception: product-checked-entries. */
VonkStatus vonkMul_mmaT_64f_P(const double *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const double *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1 src2(n)'; `rows` by `cols` double, n below count; PS2, one pointer per element
 * position, strided objects. Exception: product-checked-entries. */
VonkStatus vonkMul_mmaT_64f_PS2(const double *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, uint32_t src2Cols, uint32_t src2Rows,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix product src1 src2(n)'; `rows` by `cols` double, n below count; L, one pointer per object. */
VonkStatus vonkMul_mmaT_64f_L(const double *src1, int32_t src1RowStride, uint32_t src1Cols, uint32_t src1Rows,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1 src2(n)'; `rows` by `cols` double, n below count; LS2, one pointer per object, strided
 * elements. */
VonkStatus vonkMul_mmaT_64f_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    uint32_t src2Cols, uint32_t src2Rows, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1 src2(n)'; 3x3 double, n below count; standard layout. */
VonkStatus vonkMul_mmaT_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1 src2(n)'; 3x3 double, n below count; S2, strided elements. */
VonkStatus vonkMul_mmaT_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1 src2(n)'; 3x3 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mmaT_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1 src2(n)'; 3x3 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mmaT_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix product src1 src2(n)'; 3x3 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_mmaT_64f_3x3_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = matrix product src1 src2(n)'; 3x3 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_mmaT_64f_3x3_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1 src2(n)'; 4x4 double, n below count; standard layout. */
VonkStatus vonkMul_mmaT_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1 src2(n)'; 4x4 double, n below count; S2, strided elements. */
VonkStatus vonkMul_mmaT_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1 src2(n)'; 4x4 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mmaT_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1 src2(n)'; 4x4 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mmaT_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix product src1 src2(n)'; 4x4 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_mmaT_64f_4x4_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = matrix product src1 src2(n)'; 4x4 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_mmaT_64f_4x4_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1 src2(n)'; 5x5 double, n below count; standard layout. */
VonkStatus vonkMul_mmaT_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1 src2(n)'; 5x5 double, n below count; S2, strided elements. */
VonkStatus vonkMul_mmaT_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1 src2(n)'; 5x5 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mmaT_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1 src2(n)'; 5x5 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mmaT_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix product src1 src2(n)'; 5x5 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_mmaT_64f_5x5_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = matrix product src1 src2(n)'; 5x5 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_mmaT_64f_5x5_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1 src2(n)'; 6x6 double, n below count; standard layout. */
VonkStatus vonkMul_mmaT_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1 src2(n)'; 6x6 double, n below count; S2, strided elements. */
VonkStatus vonkMul_mmaT_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1 src2(n)'; 6x6 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mmaT_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1 src2(n)'; 6x6 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mmaT_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix product src1 src2(n)'; 6x6 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_mmaT_64f_6x6_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = matrix product src1 src2(n)'; 6x6 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_mmaT_64f_6x6_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

/** dst(n) = matrix product src1' src2(n); `rows` by `cols` float, n below count; standard layout. */
VonkStatus vonkMul_mTma_32f(const float *src1, int32_t src1RowStride, uint32_t src1Cols, uint32_t src1Rows,
    const float *src2, int32_t src2ObjStride, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1' src2(n); `rows` by `cols` float, n below count; S2, strided elements. */
VonkStatus vonkMul_mTma_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    uint32_t src2Cols, uint32_t src2Rows, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = matrix product src1' src2(n); `rows` by `cols` float, n below count; P, one pointer per element position.
 * Exception: product-checked-entries. */
VonkStatus vonkMul_mTma_32f_P(const float *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const float *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1' src2(n); `rows` by `cols` float, n below count; PS2, one pointer per element position,
 * strided objects. Exception: product-checked-entries. */
VonkStatus vonkMul_mTma_32f_PS2(const float *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, uint32_t src2Cols, uint32_t src2Rows,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix product src1' src2(n); `rows` by `cols` float, n below count; L, one pointer per object. */
VonkStatus vonkMul_mTma_32f_L(const float *src1, int32_t src1RowStride, uint32_t src1Cols, uint32_t src1Rows,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1' src2(n); `rows` by `cols` float, n below count; LS2, one pointer per object, strided
 * elements. */
VonkStatus vonkMul_mTma_32f_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    uint32_t src2Cols, uint32_t src2Rows, float *const *dst, int32_t dstShift, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1' src2(n); 3x3 float, n below count; standard layout. */
VonkStatus vonkMul_mTma_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1' src2(n); 3x3 float, n below count; S2, strided elements. */
VonkStatus vonkMul_mTma_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1' src2(n); 3x3 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mTma_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1' src2(n); 3x3 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mTma_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix product src1' src2(n); 3x3 float, n below count; L, one pointer per object. */
VonkStatus vonkMul_mTma_32f_3x3_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1' src2(n); 3x3 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_mTma_32f_3x3_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1' src2(n); 4x4 float, n below count; standard layout. */
VonkStatus vonkMul_mTma_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1' src2(n); 4x4 float, n below count; S2, strided elements. */
VonkStatus vonkMul_mTma_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1' src2(n); 4x4 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mTma_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1' src2(n); 4x4 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mTma_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix product src1' src2(n); 4x4 float, n below count; L, one pointer per object. */
VonkStatus vonkMul_mTma_32f_4x4_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1' src2(n); 4x4 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_mTma_32f_4x4_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1' src2(n); 5x5 float, n below count; standard layout. */
VonkStatus vonkMul_mTma_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1' src2(n); 5x5 float, n below count; S2, strided elements. */
VonkStatus vonkMul_mTma_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1' src2(n); 5x5 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mTma_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1' src2(n); 5x5 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mTma_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix product src1' src2(n); 5x5 float, n below count; L, one pointer per object. */
VonkStatus vonkMul_mTma_32f_5x5_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1' src2(n); 5x5 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_mTma_32f_5x5_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1' src2(n); 6x6 float, n below count; standard layout. */
VonkStatus vonkMul_mTma_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1' src2(n); 6x6 float, n below count; S2, strided elements. */
VonkStatus vonkMul_mTma_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1' src2(n); 6x6 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mTma_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1' src2(n); 6x6 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mTma_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix product src1' src2(n); 6x6 float, n below count; L, one pointer per object. */
VonkStatus vonkMul_mTma_32f_6x6_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1' src2(n); 6x6 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_mTma_32f_6x6_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

/** dst(n) = matrix product src1' src2(n); `rows` by `cols` double, n below count; standard layout. */
VonkStatus vonkMul_mTma_64f(const double *src1, int32_t src1RowStride, uint32_t src1Cols, uint32_t src1Rows,
    const double *src2, int32_t src2ObjStride, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1' src2(n); `rows` by `cols` double, n below count; S2, strided elements. */
VonkStatus vonkMul_mTma_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    uint32_t src2Cols, uint32_t src2Rows, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1' src2(n); `rows` by `cols` double, n below count; P, one pointer per element position.
 * Exception: product-checked-entries. */
VonkStatus vonkMul_mTma_64f_P(const double *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const double *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1' src2(n); `rows` by `cols` double, n below count; PS2, one pointer per element
 * position, strided objects. Exception: product-checked-entries. */
VonkStatus vonkMul_mTma_64f_PS2(const double *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, uint32_t src2Cols, uint32_t src2Rows,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix product src1' src2(n); `rows` by `cols` double, n below count; L, one pointer per object. */
VonkStatus vonkMul_mTma_64f_L(const double *src1, int32_t src1RowStride, uint32_t src1Cols, uint32_t src1Rows,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1' src2(n); `rows` by `cols` double, n below count; LS2, one pointer per object, strided
 * elements. */
VonkStatus vonkMul_mTma_64f_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    uint32_t src2Cols, uint32_t src2Rows, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1' src2(n); 3x3 double, n below count; standard layout. */
VonkStatus vonkMul_mTma_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1' src2(n); 3x3 double, n below count; S2, strided elements. */
VonkStatus vonkMul_mTma_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1' src2(n); 3x3 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mTma_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1' src2(n); 3x3 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mTma_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix product src1' src2(n); 3x3 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_mTma_64f_3x3_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = matrix product src1' src2(n); 3x3 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_mTma_64f_3x3_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1' src2(n); 4x4 double, n below count; standard layout. */
VonkStatus vonkMul_mTma_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1' src2(n); 4x4 double, n below count; S2, strided elements. */
VonkStatus vonkMul_mTma_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1' src2(n); 4x4 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mTma_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1' src2(n); 4x4 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mTma_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix product src1' src2(n); 4x4 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_mTma_64f_4x4_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = matrix product src1' src2(n); 4x4 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_mTma_64f_4x4_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1' src2(n); 5x5 double, n below count; standard layout. */
VonkStatus vonkMul_mTma_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1' src2(n); 5x5 double, n below count; S2, strided elements. */
VonkStatus vonkMul_mTma_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1' src2(n); 5x5 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mTma_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1' src2(n); 5x5 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mTma_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix product src1' src2(n); 5x5 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_mTma_64f_5x5_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = matrix product src1' src2(n); 5x5 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_mTma_64f_5x5_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1' src2(n); 6x6 double, n below count; standard layout. */
VonkStatus vonkMul_mTma_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1' src2(n); 6x6 double, n below count; S2, strided elements. */
VonkStatus vonkMul_mTma_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1' src2(n); 6x6 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mTma_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1' src2(n); 6x6 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mTma_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix product src1' src2(n); 6x6 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_mTma_64f_6x6_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = matrix product src1' src2(n); 6x6 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_mTma_64f_6x6_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

/** dst(n) = matrix product src1' src2(n)'; `rows` by `cols` float, n below count; standard layout. */
VonkStatus vonkMul_mTmaT_32f(const float *src1, int32_t src1RowStride, uint32_t src1Cols, uint32_t src1Rows,
    const float *src2, int32_t src2ObjStride, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1' src2(n)'; `rows` by `cols` float, n below count; S2, strided elements. */
VonkStatus vonkMul_mTmaT_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    uint32_t src2Cols, uint32_t src2Rows, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = matrix product src1' src2(n)'; `rows` by `cols` float, n below count; P, one pointer per element position.
 * Exception: product-checked-entries. */
VonkStatus vonkMul_mTmaT_32f_P(const float *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const float *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1' src2(n)'; `rows` by `cols` float, n below count; PS2, one pointer per element
 * position, strided objects. Exception: product-checked-entries. */
VonkStatus vonkMul_mTmaT_32f_PS2(const float *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, uint32_t src2Cols, uint32_t src2Rows,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix product src1' src2(n)'; `rows` by `cols` float, n below count; L, one pointer per object. */
VonkStatus vonkMul_mTmaT_32f_L(const float *src1, int32_t src1RowStride, uint32_t src1Cols, uint32_t src1Rows,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1' src2(n)'; `rows` by `cols` float, n below count; LS2, one pointer per object, strided
 * elements. */
VonkStatus vonkMul_mTmaT_32f_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    uint32_t src2Cols, uint32_t src2Rows, float *const *dst, int32_t dstShift, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1' src2(n)'; 3x3 float, n below count; standard layout. */
VonkStatus vonkMul_mTmaT_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1' src2(n)'; 3x3 float, n below count; S2, strided elements. */
VonkStatus vonkMul_mTmaT_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1' src2(n)'; 3x3 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mTmaT_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1' src2(n)'; 3x3 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mTmaT_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix product src1' src2(n)'; 3x3 float, n below count; L, one pointer per object. */
VonkStatus vonkMul_mTmaT_32f_3x3_L(const float *src1, int32_t src1RowStride, const float *const *src2,
    int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = matrix product src1' src2(n)'; 3x3 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_mTmaT_32f_3x3_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1' src2(n)'; 4x4 float, n below count; standard layout. */
VonkStatus vonkMul_mTmaT_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1' src2(n)'; 4x4 float, n below count; S2, strided elements. */
VonkStatus vonkMul_mTmaT_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1' src2(n)'; 4x4 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mTmaT_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1' src2(n)'; 4x4 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mTmaT_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix product src1' src2(n)'; 4x4 float, n below count; L, one pointer per object. */
VonkStatus vonkMul_mTmaT_32f_4x4_L(const float *src1, int32_t src1RowStride, const float *const *src2,
    int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = matrix product src1' src2(n)'; 4x4 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_mTmaT_32f_4x4_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1' src2(n)'; 5x5 float, n below count; standard layout. */
VonkStatus vonkMul_mTmaT_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1' src2(n)'; 5x5 float, n below count; S2, strided elements. */
VonkStatus vonkMul_mTmaT_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1' src2(n)'; 5x5 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mTmaT_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1' src2(n)'; 5x5 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mTmaT_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix product src1' src2(n)'; 5x5 float, n below count; L, one pointer per object. */
VonkStatus vonkMul_mTmaT_32f_5x5_L(const float *src1, int32_t src1RowStride, const float *const *src2,
    int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = matrix product src1' src2(n)'; 5x5 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_mTmaT_32f_5x5_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1' src2(n)'; 6x6 float, n below count; standard layout. */
VonkStatus vonkMul_mTmaT_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1' src2(n)'; 6x6 float, n below count; S2, strided elements. */
VonkStatus vonkMul_mTmaT_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1' src2(n)'; 6x6 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mTmaT_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1' src2(n)'; 6x6 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mTmaT_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix product src1' src2(n)'; 6x6 float, n below count; L, one pointer per object. */
VonkStatus vonkMul_mTmaT_32f_6x6_L(const float *src1, int32_t src1RowStride, const float *const *src2,
    int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = matrix product src1' src2(n)'; 6x6 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_mTmaT_32f_6x6_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

/** dst(n) = matrix product src1' src2(n)'; `rows` by `cols` double, n below count; standard layout. */
VonkStatus vonkMul_mTmaT_64f(const double *src1, int32_t src1RowStride, uint32_t src1Cols, uint32_t src1Rows,
    const double *src2, int32_t src2ObjStride, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1' src2(n)'; `rows` by `cols` double, n below count; S2, strided elements. */
VonkStatus vonkMul_mTmaT_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    uint32_t src2Cols, uint32_t src2Rows, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1' src2(n)'; `rows` by `cols` double, n below count; P, one pointer per element position.
 * Exception: product-checked-entries. */
VonkStatus vonkMul_mTmaT_64f_P(const double *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const double *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1' src2(n)'; `rows` by `cols` double, n below count; PS2, one pointer per element
 * position, strided objects. Exception: product-checked-entries. */
VonkStatus vonkMul_mTmaT_64f_PS2(const double *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, uint32_t src2Cols, uint32_t src2Rows,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix product src1' src2(n)'; `rows` by `cols` double, n below count; L, one pointer per object. */
VonkStatus vonkMul_mTmaT_64f_L(const double *src1, int32_t src1RowStride, uint32_t src1Cols, uint32_t src1Rows,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1' src2(n)'; `rows` by `cols` double, n below count; LS2, one pointer per object, strided
 * elements. */
VonkStatus vonkMul_mTmaT_64f_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    uint32_t src2Cols, uint32_t src2Rows, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1' src2(n)'; 3x3 double, n below count; standard layout. */
VonkStatus vonkMul_mTmaT_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1' src2(n)'; 3x3 double, n below count; S2, strided elements. */
VonkStatus vonkMul_mTmaT_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1' src2(n)'; 3x3 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mTmaT_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1' src2(n)'; 3x3 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mTmaT_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix product src1' src2(n)'; 3x3 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_mTmaT_64f_3x3_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = matrix product src1' src2(n)'; 3x3 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_mTmaT_64f_3x3_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1' src2(n)'; 4x4 double, n below count; standard layout. */
VonkStatus vonkMul_mTmaT_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1' src2(n)'; 4x4 double, n below count; S2, strided elements. */
VonkStatus vonkMul_mTmaT_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1' src2(n)'; 4x4 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mTmaT_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1' src2(n)'; 4x4 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mTmaT_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix product src1' src2(n)'; 4x4 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_mTmaT_64f_4x4_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = matrix product src1' src2(n)'; 4x4 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_mTmaT_64f_4x4_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1' src2(n)'; 5x5 double, n below count; standard layout. */
VonkStatus vonkMul_mTmaT_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1' src2(n)'; 5x5 double, n below count; S2, strided elements. */
VonkStatus vonkMul_mTmaT_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1' src2(n)'; 5x5 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mTmaT_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1' src2(n)'; 5x5 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mTmaT_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix product src1' src2(n)'; 5x5 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_mTmaT_64f_5x5_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = matrix product src1' src2(n)'; 5x5 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_mTmaT_64f_5x5_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1' src2(n)'; 6x6 double, n below count; standard layout. */
VonkStatus vonkMul_mTmaT_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1' src2(n)'; 6x6 double, n below count; S2, strided elements. */
VonkStatus vonkMul_mTmaT_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1' src2(n)'; 6x6 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mTmaT_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1' src2(n)'; 6x6 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mTmaT_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix product src1' src2(n)'; 6x6 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_mTmaT_64f_6x6_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = matrix product src1' src2(n)'; 6x6 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_mTmaT_64f_6x6_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

/** dst(n) = matrix product src1(n) src2; `rows` by `cols` float, n below count; standard layout. Exception:
 * product-no-columns. */
VonkStatus vonkMul_mam_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *src2, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2; `rows` by `cols` float, n below count; S2, strided elements. Exception:
 * product-no-columns. */
VonkStatus vonkMul_mam_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    uint32_t src1Cols, uint32_t src1Rows, const float *src2, int32_t src2RowStride, int32_t src2ElemStride,
    uint32_t src2Cols, uint32_t src2Rows, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = matrix product src1(n) src2; `rows` by `cols` float, n below count; P, one pointer per element position.
 * Exceptions: product-checked-entries, product-no-columns. */
VonkStatus vonkMul_mam_32f_P(const float *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const float *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n) src2; `rows` by `cols` float, n below count; PS2, one pointer per element position,
 * strided objects. Exceptions: product-checked-entries, product-no-columns. */
VonkStatus vonkMul_mam_32f_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2; `rows` by `cols` float, n below count; L, one pointer per object. Exception:
 * product-no-columns. */
VonkStatus vonkMul_mam_32f_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *src2, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2; `rows` by `cols` float, n below count; LS2, one pointer per object, strided
 * elements. Exception: product-no-columns. */
VonkStatus vonkMul_mam_32f_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, uint32_t src1Cols, uint32_t src1Rows, const float *src2, int32_t src2RowStride,
    int32_t src2ElemStride, uint32_t src2Cols, uint32_t src2Rows, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2; 3x3 float, n below count; standard layout. */
VonkStatus vonkMul_mam_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2; 3x3 float, n below count; S2, strided elements. Exception: product-simd. */
VonkStatus vonkMul_mam_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2; 3x3 float, n below count; P, one pointer per element position. Exceptions:
 * product-simd, product-unchecked-entries. */
VonkStatus vonkMul_mam_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n) src2; 3x3 float, n below count; PS2, one pointer per element position, strided
 * objects. Exceptions: product-simd, product-unchecked-entries. */
VonkStatus vonkMul_mam_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix product src1(n) src2; 3x3 float, n below count; L, one pointer per object. */
VonkStatus vonkMul_mam_32f_3x3_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2; 3x3 float, n below count; LS2, one pointer per object, strided elements.
 * Exceptions: product-simd, product-unchecked-entries. */
VonkStatus vonkMul_mam_32f_3x3_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2; 4x4 float, n below count; standard layout. */
VonkStatus vonkMul_mam_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2; 4x4 float, n below count; S2, strided elements. Exception: product-simd. */
VonkStatus vonkMul_mam_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2; 4x4 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mam_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n) src2; 4x4 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mam_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix product src1(n) src2; 4x4 float, n below count; L, one pointer per object. */
VonkStatus vonkMul_mam_32f_4x4_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2; 4x4 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_mam_32f_4x4_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2; 5x5 float, n below count; standard layout. */
VonkStatus vonkMul_mam_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2; 5x5 float, n below count; S2, strided elements. Exception: product-simd. */
VonkStatus vonkMul_mam_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2; 5x5 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mam_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n) src2; 5x5 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mam_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix product src1(n) src2; 5x5 float, n below count; L, one pointer per object. */
VonkStatus vonkMul_mam_32f_5x5_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2; 5x5 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_mam_32f_5x5_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2; 6x6 float, n below count; standard layout. */
VonkStatus vonkMul_mam_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2; 6x6 float, n below count; S2, strided elements. */
VonkStatus vonkMul_mam_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2; 6x6 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mam_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n) src2; 6x6 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mam_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix product src1(n) src2; 6x6 float, n below count; L, one pointer per object. */
VonkStatus vonkMul_mam_32f_6x6_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2; 6x6 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_mam_32f_6x6_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

/** dst(n) = matrix product src1(n) src2; `rows` by `cols` double, n below count; standard layout. Exception:
 * product-no-columns. */
VonkStatus vonkMul_mam_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *src2, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2; `rows` by `cols` double, n below count; S2, strided elements. Exception:
 * product-no-columns. */
VonkStatus vonkMul_mam_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    uint32_t src1Cols, uint32_t src1Rows, const double *src2, int32_t src2RowStride, int32_t src2ElemStride,
    uint32_t src2Cols, uint32_t src2Rows, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2; `rows` by `cols` double, n below count; P, one pointer per element position.
 * Exceptions: product-checked-entries, product-no-columns. */
VonkStatus vonkMul_mam_64f_P(const double *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const double *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n) src2; `rows` by `cols` double, n below count; PS2, one pointer per element position,
 * strided objects. Exceptions: product-checked-entries, product-no-columns. */
VonkStatus vonkMul_mam_64f_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2; `rows` by `cols` double, n below count; L, one pointer per object. Exception:
 * product-no-columns. */
VonkStatus vonkMul_mam_64f_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *src2, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2; `rows` by `cols` double, n below count; LS2, one pointer per object, strided
 * elements. Exception: product-no-columns. */
VonkStatus vonkMul_mam_64f_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, uint32_t src1Cols, uint32_t src1Rows, const double *src2, int32_t src2RowStride,
    int32_t src2ElemStride, uint32_t src2Cols, uint32_t src2Rows, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2; 3x3 double, n below count; standard layout. */
VonkStatus vonkMul_mam_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2; 3x3 double, n below count; S2, strided elements. */
VonkStatus vonkMul_mam_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2; 3x3 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mam_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n) src2; 3x3 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mam_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix product src1(n) src2; 3x3 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_mam_64f_3x3_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = matrix product src1(n) src2; 3x3 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_mam_64f_3x3_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2; 4x4 double, n below count; standard layout. */
VonkStatus vonkMul_mam_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2; 4x4 double, n below count; S2, strided elements. */
VonkStatus vonkMul_mam_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2; 4x4 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mam_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n) src2; 4x4 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mam_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix product src1(n) src2; 4x4 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_mam_64f_4x4_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = matrix product src1(n) src2; 4x4 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_mam_64f_4x4_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2; 5x5 double, n below count; standard layout. */
VonkStatus vonkMul_mam_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2; 5x5 double, n below count; S2, strided elements. */
VonkStatus vonkMul_mam_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2; 5x5 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mam_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n) src2; 5x5 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mam_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix product src1(n) src2; 5x5 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_mam_64f_5x5_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = matrix product src1(n) src2; 5x5 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_mam_64f_5x5_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2; 6x6 double, n below count; standard layout. */
VonkStatus vonkMul_mam_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2; 6x6 double, n below count; S2, strided elements. */
VonkStatus vonkMul_mam_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2; 6x6 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mam_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n) src2; 6x6 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mam_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix product src1(n) src2; 6x6 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_mam_64f_6x6_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = matrix product src1(n) src2; 6x6 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_mam_64f_6x6_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

/** dst(n) = matrix product src1(n) src2'; `rows` by `cols` float, n below count; standard layout. */
VonkStatus vonkMul_mamT_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *src2, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2'; `rows` by `cols` float, n below count; S2, strided elements. */
VonkStatus vonkMul_mamT_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    uint32_t src1Cols, uint32_t src1Rows, const float *src2, int32_t src2RowStride, int32_t src2ElemStride,
    uint32_t src2Cols, uint32_t src2Rows, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = matrix product src1(n) src2'; `rows` by `cols` float, n below count; P, one pointer per element position.
 * Exception: product-checked-entries. */
VonkStatus vonkMul_mamT_32f_P(const float *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const float *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n) src2'; `rows` by `cols` float, n below count; PS2, one pointer per element position,
 * strided objects. Exception: product-checked-entries. */
VonkStatus vonkMul_mamT_32f_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2'; `rows` by `cols` float, n below count; L, one pointer per object. */
VonkStatus vonkMul_mamT_32f_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *src2, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2'; `rows` by `cols` float, n below count; LS2, one pointer per object, strided
 * elements. */
VonkStatus vonkMul_mamT_32f_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, uint32_t src1Cols, uint32_t src1Rows, const float *src2, int32_t src2RowStride,
    int32_t src2ElemStride, uint32_t src2Cols, uint32_t src2Rows, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2'; 3x3 float, n below count; standard layout. */
VonkStatus vonkMul_mamT_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2'; 3x3 float, n below count; S2, strided elements. Exception: product-simd. */
VonkStatus vonkMul_mamT_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2'; 3x3 float, n below count; P, one pointer per element position. Exceptions:
 * product-simd, product-unchecked-entries. */
VonkStatus vonkMul_mamT_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n) src2'; 3x3 float, n below count; PS2, one pointer per element position, strided
 * objects. Exceptions: product-simd, product-unchecked-entries. */
VonkStatus vonkMul_mamT_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix product src1(n) src2'; 3x3 float, n below count; L, one pointer per object. */
VonkStatus vonkMul_mamT_32f_3x3_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2'; 3x3 float, n below count; LS2, one pointer per object, strided elements.
 * Exceptions: product-simd, product-unchecked-entries. */
VonkStatus vonkMul_mamT_32f_3x3_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2'; 4x4 float, n below count; standard layout. */
VonkStatus vonkMul_mamT_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2'; 4x4 float, n below count; S2, strided elements. */
VonkStatus vonkMul_mamT_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2'; 4x4 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mamT_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n) src2'; 4x4 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mamT_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix product src1(n) src2'; 4x4 float, n below count; L, one pointer per object. */
VonkStatus vonkMul_mamT_32f_4x4_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2'; 4x4 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_mamT_32f_4x4_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2'; 5x5 float, n below count; standard layout. */
VonkStatus vonkMul_mamT_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2'; 5x5 float, n below count; S2, strided elements. */
VonkStatus vonkMul_mamT_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2'; 5x5 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mamT_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n) src2'; 5x5 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mamT_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix product src1(n) src2'; 5x5 float, n below count; L, one pointer per object. */
VonkStatus vonkMul_mamT_32f_5x5_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2'; 5x5 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_mamT_32f_5x5_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2'; 6x6 float, n below count; standard layout. */
VonkStatus vonkMul_mamT_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2'; 6x6 float, n below count; S2, strided elements. */
VonkStatus vonkMul_mamT_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2'; 6x6 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mamT_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n) src2'; 6x6 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mamT_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix product src1(n) src2'; 6x6 float, n below count; L, one pointer per object. */
VonkStatus vonkMul_mamT_32f_6x6_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2'; 6x6 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_mamT_32f_6x6_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

/** dst(n) = matrix product src1(n) src2'; `rows` by `cols` double, n below count; standard layout. */
VonkStatus vonkMul_mamT_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *src2, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2'; `rows` by `cols` double, n below count; S2, strided elements. */
VonkStatus vonkMul_mamT_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    uint32_t src1Cols, uint32_t src1Rows, const double *src2, int32_t src2RowStride, int32_t src2ElemStride,
    uint32_t src2Cols, uint32_t src2Rows, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2'; `rows` by `cols` double, n below count; P, one pointer per element position.
 * Exception: product-checked-entries. */
VonkStatus vonkMul_mamT_64f_P(const double *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const double *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n) src2'; `rows` by `cols` double, n below count; PS2, one pointer per element
 * position, strided objects. Exception: product-checked-entries. */
VonkStatus vonkMul_mamT_64f_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2'; `rows` by `cols` double, n below count; L, one pointer per object. */
VonkStatus vonkMul_mamT_64f_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *src2, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2'; `rows` by `cols` double, n below count; LS2, one pointer per object, strided
 * elements. */
VonkStatus vonkMul_mamT_64f_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, uint32_t src1Cols, uint32_t src1Rows, const double *src2, int32_t src2RowStride,
    int32_t src2ElemStride, uint32_t src2Cols, uint32_t src2Rows, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2'; 3x3 double, n below count; standard layout. */
VonkStatus vonkMul_mamT_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2'; 3x3 double, n below count; S2, strided elements. */
VonkStatus vonkMul_mamT_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2'; 3x3 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mamT_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n) src2'; 3x3 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mamT_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix product src1(n) src2'; 3x3 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_mamT_64f_3x3_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = matrix product src1(n) src2'; 3x3 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_mamT_64f_3x3_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2'; 4x4 double, n below count; standard layout. */
VonkStatus vonkMul_mamT_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2'; 4x4 double, n below count; S2, strided elements. */
VonkStatus vonkMul_mamT_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2'; 4x4 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mamT_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n) src2'; 4x4 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mamT_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix product src1(n) src2'; 4x4 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_mamT_64f_4x4_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = matrix product src1(n) src2'; 4x4 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_mamT_64f_4x4_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2'; 5x5 double, n below count; standard layout. */
VonkStatus vonkMul_mamT_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2'; 5x5 double, n below count; S2, strided elements. */
VonkStatus vonkMul_mamT_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2'; 5x5 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mamT_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n) src2'; 5x5 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mamT_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix product src1(n) src2'; 5x5 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_mamT_64f_5x5_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = matrix product src1(n) src2'; 5x5 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_mamT_64f_5x5_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2'; 6x6 double, n below count; standard layout. */
VonkStatus vonkMul_mamT_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2'; 6x6 double, n below count; S2, strided elements. */
VonkStatus vonkMul_mamT_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2'; 6x6 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mamT_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n) src2'; 6x6 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mamT_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix product src1(n) src2'; 6x6 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_mamT_64f_6x6_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = matrix product src1(n) src2'; 6x6 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_mamT_64f_6x6_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

/** dst(n) = matrix product src1(n)' src2; `rows` by `cols` float, n below count; standard layout. */
VonkStatus vonkMul_maTm_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *src2, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2; `rows` by `cols` float, n below count; S2, strided elements. */
VonkStatus vonkMul_maTm_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    uint32_t src1Cols, uint32_t src1Rows, const float *src2, int32_t src2RowStride, int32_t src2ElemStride,
    uint32_t src2Cols, uint32_t src2Rows, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = matrix product src1(n)' src2; `rows` by `cols` float, n below count; P, one pointer per element position.
 * Exception: product-checked-entries. */
VonkStatus vonkMul_maTm_32f_P(const float *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const float *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n)' src2; `rows` by `cols` float, n below count; PS2, one pointer per element position,
 * strided objects. Exception: product-checked-entries. */
VonkStatus vonkMul_maTm_32f_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2; `rows` by `cols` float, n below count; L, one pointer per object. */
VonkStatus vonkMul_maTm_32f_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *src2, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2; `rows` by `cols` float, n below count; LS2, one pointer per object, strided
 * elements. */
VonkStatus vonkMul_maTm_32f_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, uint32_t src1Cols, uint32_t src1Rows, const float *src2, int32_t src2RowStride,
    int32_t src2ElemStride, uint32_t src2Cols, uint32_t src2Rows, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2; 3x3 float, n below count; standard layout. */
VonkStatus vonkMul_maTm_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2; 3x3 float, n below count; S2, strided elements. Exception: product-simd. */
VonkStatus vonkMul_maTm_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2; 3x3 float, n below count; P, one pointer per element position. Exceptions:
 * product-simd, product-unchecked-entries. */
VonkStatus vonkMul_maTm_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n)' src2; 3x3 float, n below count; PS2, one pointer per element position, strided
 * objects. Exceptions: product-simd, product-unchecked-entries. */
VonkStatus vonkMul_maTm_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix product src1(n)' src2; 3x3 float, n below count; L, one pointer per object. */
VonkStatus vonkMul_maTm_32f_3x3_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2; 3x3 float, n below count; LS2, one pointer per object, strided elements.
 * Exceptions: product-simd, product-unchecked-entries. */
VonkStatus vonkMul_maTm_32f_3x3_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2; 4x4 float, n below count; standard layout. */
VonkStatus vonkMul_maTm_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2; 4x4 float, n below count; S2, strided elements. */
VonkStatus vonkMul_maTm_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2; 4x4 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_maTm_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n)' src2; 4x4 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_maTm_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix product src1(n)' src2; 4x4 float, n below count; L, one pointer per object. */
VonkStatus vonkMul_maTm_32f_4x4_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2; 4x4 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_maTm_32f_4x4_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2; 5x5 float, n below count; standard layout. */
VonkStatus vonkMul_maTm_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2; 5x5 float, n below count; S2, strided elements. */
VonkStatus vonkMul_maTm_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2; 5x5 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_maTm_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n)' src2; 5x5 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_maTm_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix product src1(n)' src2; 5x5 float, n below count; L, one pointer per object. */
VonkStatus vonkMul_maTm_32f_5x5_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2; 5x5 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_maTm_32f_5x5_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2; 6x6 float, n below count; standard layout. */
VonkStatus vonkMul_maTm_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2; 6x6 float, n below count; S2, strided elements. */
VonkStatus vonkMul_maTm_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2; 6x6 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_maTm_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n)' src2; 6x6 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_maTm_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix product src1(n)' src2; 6x6 float, n below count; L, one pointer per object. */
VonkStatus vonkMul_maTm_32f_6x6_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2; 6x6 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_maTm_32f_6x6_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

/** dst(n) = matrix product src1(n)' src2; `rows` by `cols` double, n below count; standard layout. */
VonkStatus vonkMul_maTm_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *src2, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2; `rows` by `cols` double, n below count; S2, strided elements. */
VonkStatus vonkMul_maTm_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    uint32_t src1Cols, uint32_t src1Rows, const double *src2, int32_t src2RowStride, int32_t src2ElemStride,
    uint32_t src2Cols, uint32_t src2Rows, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2; `rows` by `cols` double, n below count; P, one pointer per element position.
 * Exception: product-checked-entries. */
VonkStatus vonkMul_maTm_64f_P(const double *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const double *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n)' src2; `rows` by `cols` double, n below count; PS2, one pointer per element
 * position, strided objects. Exception: product-checked-entries. */
VonkStatus vonkMul_maTm_64f_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2; `rows` by `cols` double, n below count; L, one pointer per object. */
VonkStatus vonkMul_maTm_64f_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *src2, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2; `rows` by `cols` double, n below count; LS2, one pointer per object, strided
 * elements. */
VonkStatus vonkMul_maTm_64f_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, uint32_t src1Cols, uint32_t src1Rows, const double *src2, int32_t src2RowStride,
    int32_t src2ElemStride, uint32_t src2Cols, uint32_t src2Rows, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2; 3x3 double, n below count; standard layout. */
VonkStatus vonkMul_maTm_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2; 3x3 double, n below count; S2, strided elements. */
VonkStatus vonkMul_maTm_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2; 3x3 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_maTm_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n)' src2; 3x3 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_maTm_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix product src1(n)' src2; 3x3 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_maTm_64f_3x3_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = matrix product src1(n)' src2; 3x3 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_maTm_64f_3x3_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2; 4x4 double, n below count; standard layout. */
VonkStatus vonkMul_maTm_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2; 4x4 double, n below count; S2, strided elements. */
VonkStatus vonkMul_maTm_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2; 4x4 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_maTm_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n)' src2; 4x4 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_maTm_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix product src1(n)' src2; 4x4 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_maTm_64f_4x4_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = matrix product src1(n)' src2; 4x4 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_maTm_64f_4x4_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2; 5x5 double, n below count; standard layout. */
VonkStatus vonkMul_maTm_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2; 5x5 double, n below count; S2, strided elements. */
VonkStatus vonkMul_maTm_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2; 5x5 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_maTm_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n)' src2; 5x5 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_maTm_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix product src1(n)' src2; 5x5 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_maTm_64f_5x5_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = matrix product src1(n)' src2; 5x5 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_maTm_64f_5x5_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2; 6x6 double, n below count; standard layout. */
VonkStatus vonkMul_maTm_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2; 6x6 double, n below count; S2, strided elements. */
VonkStatus vonkMul_maTm_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2; 6x6 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_maTm_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n)' src2; 6x6 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_maTm_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix product src1(n)' src2; 6x6 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_maTm_64f_6x6_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = matrix product src1(n)' src2; 6x6 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_maTm_64f_6x6_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

/** dst(n) = matrix product src1(n)' src2'; `rows` by `cols` float, n below count; standard layout. */
VonkStatus vonkMul_maTmT_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *src2, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2'; `rows` by `cols` float, n below count; S2, strided elements. */
VonkStatus vonkMul_maTmT_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    uint32_t src1Cols, uint32_t src1Rows, const float *src2, int32_t src2RowStride, int32_t src2ElemStride,
    uint32_t src2Cols, uint32_t src2Rows, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = matrix product src1(n)' src2'; `rows` by `cols` float, n below count; P, one pointer per element position.
 * Exception: product-checked-entries. */
VonkStatus vonkMul_maTmT_32f_P(const float *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const float *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n)' src2'; `rows` by `cols` float, n below count; PS2, one pointer per element
 * position, strided objects. Exception: product-checked-entries. */
VonkStatus vonkMul_maTmT_32f_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2'; `rows` by `cols` float, n below count; L, one pointer per object. */
VonkStatus vonkMul_maTmT_32f_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *src2, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2'; `rows` by `cols` float, n below count; LS2, one pointer per object, strided
 * elements. */
VonkStatus vonkMul_maTmT_32f_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, uint32_t src1Cols, uint32_t src1Rows, const float *src2, int32_t src2RowStride,
    int32_t src2ElemStride, uint32_t src2Cols, uint32_t src2Rows, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2'; 3x3 float, n below count; standard layout. */
VonkStatus vonkMul_maTmT_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2'; 3x3 float, n below count; S2, strided elements. Exception: product-simd. */
VonkStatus vonkMul_maTmT_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2'; 3x3 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_maTmT_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n)' src2'; 3x3 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_maTmT_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix product src1(n)' src2'; 3x3 float, n below count; L, one pointer per object. */
VonkStatus vonkMul_maTmT_32f_3x3_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *src2, int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = matrix product src1(n)' src2'; 3x3 float, n below count; LS2, one pointer per object, strided elements.
 * Exceptions: product-simd, product-unchecked-entries. */
VonkStatus vonkMul_maTmT_32f_3x3_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2'; 4x4 float, n below count; standard layout. */
VonkStatus vonkMul_maTmT_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2'; 4x4 float, n below count; S2, strided elements. */
VonkStatus vonkMul_maTmT_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2'; 4x4 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_maTmT_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n)' src2'; 4x4 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_maTmT_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix product src1(n)' src2'; 4x4 float, n below count; L, one pointer per object. */
VonkStatus vonkMul_maTmT_32f_4x4_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *src2, int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = matrix product src1(n)' src2'; 4x4 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_maTmT_32f_4x4_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2'; 5x5 float, n below count; standard layout. */
VonkStatus vonkMul_maTmT_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2'; 5x5 float, n below count; S2, strided elements. */
VonkStatus vonkMul_maTmT_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2'; 5x5 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_maTmT_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n)' src2'; 5x5 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_maTmT_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix product src1(n)' src2'; 5x5 float, n below count; L, one pointer per object. */
VonkStatus vonkMul_maTmT_32f_5x5_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *src2, int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = matrix product src1(n)' src2'; 5x5 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_maTmT_32f_5x5_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2'; 6x6 float, n below count; standard layout. */
VonkStatus vonkMul_maTmT_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2'; 6x6 float, n below count; S2, strided elements. */
VonkStatus vonkMul_maTmT_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2'; 6x6 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_maTmT_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n)' src2'; 6x6 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_maTmT_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix product src1(n)' src2'; 6x6 float, n below count; L, one pointer per object. */
VonkStatus vonkMul_maTmT_32f_6x6_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *src2, int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = matrix product src1(n)' src2'; 6x6 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_maTmT_32f_6x6_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

/** dst(n) = matrix product src1(n)' src2'; `rows` by `cols` double, n below count; standard layout. */
VonkStatus vonkMul_maTmT_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *src2, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2'; `rows` by `cols` double, n below count; S2, strided elements. */
VonkStatus vonkMul_maTmT_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, uint32_t src1Cols, uint32_t src1Rows, const double *src2, int32_t src2RowStride,
    int32_t src2ElemStride, uint32_t src2Cols, uint32_t src2Rows, double *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2'; `rows` by `cols` double, n below count; P, one pointer per element position.
 * Exception: product-checked-entries. */
VonkStatus vonkMul_maTmT_64f_P(const double *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const double *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n)' src2'; `rows` by `cols` double, n below count; PS2, one pointer per element
 * position, strided objects. Exception: product-checked-entries. */
VonkStatus vonkMul_maTmT_64f_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2'; `rows` by `cols` double, n below count; L, one pointer per object. */
VonkStatus vonkMul_maTmT_64f_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *src2, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2'; `rows` by `cols` double, n below count; LS2, one pointer per object, strided
 * elements. */
VonkStatus vonkMul_maTmT_64f_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, uint32_t src1Cols, uint32_t src1Rows, const double *src2, int32_t src2RowStride,
    int32_t src2ElemStride, uint32_t src2Cols, uint32_t src2Rows, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2'; 3x3 double, n below count; standard layout. */
VonkStatus vonkMul_maTmT_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2'; 3x3 double, n below count; S2, strided elements. */
VonkStatus vonkMul_maTmT_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2'; 3x3 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_maTmT_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n)' src2'; 3x3 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_maTmT_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix product src1(n)' src2'; 3x3 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_maTmT_64f_3x3_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = matrix product src1(n)' src2'; 3x3 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_maTmT_64f_3x3_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2'; 4x4 double, n below count; standard layout. */
VonkStatus vonkMul_maTmT_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2'; 4x4 double, n below count; S2, strided elements. */
VonkStatus vonkMul_maTmT_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2'; 4x4 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_maTmT_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n)' src2'; 4x4 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_maTmT_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix product src1(n)' src2'; 4x4 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_maTmT_64f_4x4_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = matrix product src1(n)' src2'; 4x4 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_maTmT_64f_4x4_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2'; 5x5 double, n below count; standard layout. */
VonkStatus vonkMul_maTmT_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2'; 5x5 double, n below count; S2, strided elements. */
VonkStatus vonkMul_maTmT_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2'; 5x5 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_maTmT_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n)' src2'; 5x5 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_maTmT_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix product src1(n)' src2'; 5x5 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_maTmT_64f_5x5_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = matrix product src1(n)' src2'; 5x5 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_maTmT_64f_5x5_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2'; 6x6 double, n below count; standard layout. */
VonkStatus vonkMul_maTmT_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2'; 6x6 double, n below count; S2, strided elements. */
VonkStatus vonkMul_maTmT_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2'; 6x6 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_maTmT_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n)' src2'; 6x6 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_maTmT_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix product src1(n)' src2'; 6x6 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_maTmT_64f_6x6_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = matrix product src1(n)' src2'; 6x6 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_maTmT_64f_6x6_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

/** dst(n) = matrix product src1(n) src2(n); `rows` by `cols` float, n below count; standard layout. Exception:
 * product-size-check. */
VonkStatus vonkMul_mama_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, uint32_t src2Cols,
    uint32_t src2Rows, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n); `rows` by `cols` float, n below count; S2, strided elements. Exception:
 * product-size-check. */
VonkStatus vonkMul_mama_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    uint32_t src1Cols, uint32_t src1Rows, const float *src2, int32_t src2ObjStride, int32_t src2RowStride,
    int32_t src2ElemStride, uint32_t src2Cols, uint32_t src2Rows, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n); `rows` by `cols` float, n below count; P, one pointer per element position.
 * Exceptions: product-size-check, product-checked-entries. */
VonkStatus vonkMul_mama_32f_P(const float *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const float *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n); `rows` by `cols` float, n below count; PS2, one pointer per element
 * position, strided objects. Exceptions: product-size-check, product-checked-entries. */
VonkStatus vonkMul_mama_32f_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, uint32_t src2Cols,
    uint32_t src2Rows, float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n); `rows` by `cols` float, n below count; L, one pointer per object.
 * Exception: product-size-check. */
VonkStatus vonkMul_mama_32f_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, uint32_t src2Cols,
    uint32_t src2Rows, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n); `rows` by `cols` float, n below count; LS2, one pointer per object, strided
 * elements. Exception: product-size-check. */
VonkStatus vonkMul_mama_32f_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, uint32_t src1Cols, uint32_t src1Rows, const float *const *src2, int32_t src2Shift,
    int32_t src2RowStride, int32_t src2ElemStride, uint32_t src2Cols, uint32_t src2Rows, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n); 3x3 float, n below count; standard layout. */
VonkStatus vonkMul_mama_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = matrix product src1(n) src2(n); 3x3 float, n below count; S2, strided elements. Exception: product-simd. */
VonkStatus vonkMul_mama_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n); 3x3 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mama_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n); 3x3 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mama_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n); 3x3 float, n below count; L, one pointer per object. */
VonkStatus vonkMul_mama_32f_3x3_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n); 3x3 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_mama_32f_3x3_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n); 4x4 float, n below count; standard layout. */
VonkStatus vonkMul_mama_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = matrix product src1(n) src2(n); 4x4 float, n below count; S2, strided elements. Exception: product-simd. */
VonkStatus vonkMul_mama_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n); 4x4 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mama_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n); 4x4 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mama_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n); 4x4 float, n below count; L, one pointer per object. */
VonkStatus vonkMul_mama_32f_4x4_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n); 4x4 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_mama_32f_4x4_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n); 5x5 float, n below count; standard layout. */
VonkStatus vonkMul_mama_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = matrix product src1(n) src2(n); 5x5 float, n below count; S2, strided elements. Exception: product-simd. */
VonkStatus vonkMul_mama_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n); 5x5 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mama_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n); 5x5 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mama_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n); 5x5 float, n below count; L, one pointer per object. */
VonkStatus vonkMul_mama_32f_5x5_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n); 5x5 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_mama_32f_5x5_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n); 6x6 float, n below count; standard layout. */
VonkStatus vonkMul_mama_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = matrix product src1(n) src2(n); 6x6 float, n below count; S2, strided elements. */
VonkStatus vonkMul_mama_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n); 6x6 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mama_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n); 6x6 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mama_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n); 6x6 float, n below count; L, one pointer per object. */
VonkStatus vonkMul_mama_32f_6x6_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n); 6x6 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_mama_32f_6x6_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

/** dst(n) = matrix product src1(n) src2(n); `rows` by `cols` double, n below count; standard layout. Exception:
 * product-size-check. */
VonkStatus vonkMul_mama_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, uint32_t src2Cols,
    uint32_t src2Rows, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n); `rows` by `cols` double, n below count; S2, strided elements. Exception:
 * product-size-check. */
VonkStatus vonkMul_mama_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    uint32_t src1Cols, uint32_t src1Rows, const double *src2, int32_t src2ObjStride, int32_t src2RowStride,
    int32_t src2ElemStride, uint32_t src2Cols, uint32_t src2Rows, double *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n); `rows` by `cols` double, n below count; P, one pointer per element
 * position. Exceptions: product-size-check, product-checked-entries. */
VonkStatus vonkMul_mama_64f_P(const double *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const double *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n); `rows` by `cols` double, n below count; PS2, one pointer per element
 * position, strided objects. Exceptions: product-size-check, product-checked-entries. */
VonkStatus vonkMul_mama_64f_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, uint32_t src2Cols,
    uint32_t src2Rows, double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n); `rows` by `cols` double, n below count; L, one pointer per object.
 * Exception: product-size-check. */
VonkStatus vonkMul_mama_64f_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, uint32_t src2Cols,
    uint32_t src2Rows, double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n); `rows` by `cols` double, n below count; LS2, one pointer per object,
 * strided elements. Exception: product-size-check. */
VonkStatus vonkMul_mama_64f_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, uint32_t src1Cols, uint32_t src1Rows, const double *const *src2, int32_t src2Shift,
    int32_t src2RowStride, int32_t src2ElemStride, uint32_t src2Cols, uint32_t src2Rows, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n); 3x3 double, n below count; standard layout. */
VonkStatus vonkMul_mama_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = matrix product src1(n) src2(n); 3x3 double, n below count; S2, strided elements. */
VonkStatus vonkMul_mama_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n); 3x3 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mama_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n); 3x3 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mama_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n); 3x3 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_mama_64f_3x3_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n); 3x3 double, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkMul_mama_64f_3x3_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n); 4x4 double, n below count; standard layout. */
VonkStatus vonkMul_mama_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = matrix product src1(n) src2(n); 4x4 double, n below count; S2, strided elements. */
VonkStatus vonkMul_mama_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n); 4x4 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mama_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n); 4x4 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mama_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n); 4x4 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_mama_64f_4x4_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n); 4x4 double, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkMul_mama_64f_4x4_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n); 5x5 double, n below count; standard layout. */
VonkStatus vonkMul_mama_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = matrix product src1(n) src2(n); 5x5 double, n below count; S2, strided elements. */
VonkStatus vonkMul_mama_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n); 5x5 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mama_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n); 5x5 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mama_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n); 5x5 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_mama_64f_5x5_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n); 5x5 double, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkMul_mama_64f_5x5_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n); 6x6 double, n below count; standard layout. */
VonkStatus vonkMul_mama_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = matrix product src1(n) src2(n); 6x6 double, n below count; S2, strided elements. */
VonkStatus vonkMul_mama_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n); 6x6 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mama_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n); 6x6 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mama_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n); 6x6 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_mama_64f_6x6_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n); 6x6 double, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkMul_mama_64f_6x6_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

/** dst(n) = matrix product src1(n) src2(n)'; `rows` by `cols` float, n below count; standard layout. */
VonkStatus vonkMul_mamaT_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, uint32_t src2Cols,
    uint32_t src2Rows, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n)'; `rows` by `cols` float, n below count; S2, strided elements. */
VonkStatus vonkMul_mamaT_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    uint32_t src1Cols, uint32_t src1Rows, const float *src2, int32_t src2ObjStride, int32_t src2RowStride,
    int32_t src2ElemStride, uint32_t src2Cols, uint32_t src2Rows, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n)'; `rows` by `cols` float, n below count; P, one pointer per element
 * position. Exception: product-checked-entries. */
VonkStatus vonkMul_mamaT_32f_P(const float *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const float *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n)'; `rows` by `cols` float, n below count; PS2, one pointer per element
 * position, strided objects. Exception: product-checked-entries. */
VonkStatus vonkMul_mamaT_32f_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, uint32_t src2Cols,
    uint32_t src2Rows, float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n)'; `rows` by `cols` float, n below count; L, one pointer per object. */
VonkStatus vonkMul_mamaT_32f_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, uint32_t src2Cols,
    uint32_t src2Rows, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n)'; `rows` by `cols` float, n below count; LS2, one pointer per object,
 * strided elements. */
VonkStatus vonkMul_mamaT_32f_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, uint32_t src1Cols, uint32_t src1Rows, const float *const *src2, int32_t src2Shift,
    int32_t src2RowStride, int32_t src2ElemStride, uint32_t src2Cols, uint32_t src2Rows, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n)'; 3x3 float, n below count; standard layout. */
VonkStatus vonkMul_mamaT_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = matrix product src1(n) src2(n)'; 3x3 float, n below count; S2, strided elements. */
VonkStatus vonkMul_mamaT_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n)'; 3x3 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mamaT_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n)'; 3x3 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mamaT_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n)'; 3x3 float, n below count; L, one pointer per object. */
VonkStatus vonkMul_mamaT_32f_3x3_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n)'; 3x3 float, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkMul_mamaT_32f_3x3_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n)'; 4x4 float, n below count; standard layout. */
VonkStatus vonkMul_mamaT_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = matrix product src1(n) src2(n)'; 4x4 float, n below count; S2, strided elements. */
VonkStatus vonkMul_mamaT_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n)'; 4x4 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mamaT_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n)'; 4x4 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mamaT_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n)'; 4x4 float, n below count; L, one pointer per object. */
VonkStatus vonkMul_mamaT_32f_4x4_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n)'; 4x4 float, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkMul_mamaT_32f_4x4_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n)'; 5x5 float, n below count; standard layout. */
VonkStatus vonkMul_mamaT_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = matrix product src1(n) src2(n)'; 5x5 float, n below count; S2, strided elements. */
VonkStatus vonkMul_mamaT_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n)'; 5x5 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mamaT_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n)'; 5x5 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mamaT_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n)'; 5x5 float, n below count; L, one pointer per object. */
VonkStatus vonkMul_mamaT_32f_5x5_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n)'; 5x5 float, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkMul_mamaT_32f_5x5_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n)'; 6x6 float, n below count; standard layout. */
VonkStatus vonkMul_mamaT_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = matrix product src1(n) src2(n)'; 6x6 float, n below count; S2, strided elements. */
VonkStatus vonkMul_mamaT_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n)'; 6x6 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mamaT_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n)'; 6x6 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mamaT_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n)'; 6x6 float, n below count; L, one pointer per object. */
VonkStatus vonkMul_mamaT_32f_6x6_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n)'; 6x6 float, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkMul_mamaT_32f_6x6_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

/** dst(n) = matrix product src1(n) src2(n)'; `rows` by `cols` double, n below count; standard layout. */
VonkStatus vonkMul_mamaT_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, uint32_t src2Cols,
    uint32_t src2Rows, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n)'; `rows` by `cols` double, n below count; S2, strided elements. */
VonkStatus vonkMul_mamaT_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, uint32_t src1Cols, uint32_t src1Rows, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, int32_t src2ElemStride, uint32_t src2Cols, uint32_t src2Rows, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n)'; `rows` by `cols` double, n below count; P, one pointer per element
 * position. Exception: product-checked-entries. */
VonkStatus vonkMul_mamaT_64f_P(const double *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const double *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n)'; `rows` by `cols` double, n below count; PS2, one pointer per element
 * position, strided objects. Exception: product-checked-entries. */
VonkStatus vonkMul_mamaT_64f_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, uint32_t src2Cols,
    uint32_t src2Rows, double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n)'; `rows` by `cols` double, n below count; L, one pointer per object. */
VonkStatus vonkMul_mamaT_64f_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, uint32_t src2Cols,
    uint32_t src2Rows, double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n)'; `rows` by `cols` double, n below count; LS2, one pointer per object,
 * strided elements. */
VonkStatus vonkMul_mamaT_64f_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, uint32_t src1Cols, uint32_t src1Rows, const double *const *src2, int32_t src2Shift,
    int32_t src2RowStride, int32_t src2ElemStride, uint32_t src2Cols, uint32_t src2Rows, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n)'; 3x3 double, n below count; standard layout. */
VonkStatus vonkMul_mamaT_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = matrix product src1(n) src2(n)'; 3x3 double, n below count; S2, strided elements. */
VonkStatus vonkMul_mamaT_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n)'; 3x3 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mamaT_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n)'; 3x3 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mamaT_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n)'; 3x3 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_mamaT_64f_3x3_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n)'; 3x3 double, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkMul_mamaT_64f_3x3_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n)'; 4x4 double, n below count; standard layout. */
VonkStatus vonkMul_mamaT_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = matrix product src1(n) src2(n)'; 4x4 double, n below count; S2, strided elements. */
VonkStatus vonkMul_mamaT_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n)'; 4x4 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mamaT_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n)'; 4x4 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mamaT_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n)'; 4x4 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_mamaT_64f_4x4_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n)'; 4x4 double, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkMul_mamaT_64f_4x4_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n)'; 5x5 double, n below count; standard layout. */
VonkStatus vonkMul_mamaT_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = matrix product src1(n) src2(n)'; 5x5 double, n below count; S2, strided elements. */
VonkStatus vonkMul_mamaT_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n)'; 5x5 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mamaT_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n)'; 5x5 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mamaT_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n)'; 5x5 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_mamaT_64f_5x5_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n)'; 5x5 double, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkMul_mamaT_64f_5x5_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n)'; 6x6 double, n below count; standard layout. */
VonkStatus vonkMul_mamaT_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = matrix product src1(n) src2(n)'; 6x6 double, n below count; S2, strided elements. */
VonkStatus vonkMul_mamaT_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n)'; 6x6 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mamaT_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n)'; 6x6 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mamaT_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n)'; 6x6 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_mamaT_64f_6x6_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n) src2(n)'; 6x6 double, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkMul_mamaT_64f_6x6_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

/** dst(n) = matrix product src1(n)' src2(n); `rows` by `cols` float, n below count; standard layout. */
VonkStatus vonkMul_maTma_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, uint32_t src2Cols,
    uint32_t src2Rows, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n); `rows` by `cols` float, n below count; S2, strided elements. */
VonkStatus vonkMul_maTma_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    uint32_t src1Cols, uint32_t src1Rows, const float *src2, int32_t src2ObjStride, int32_t src2RowStride,
    int32_t src2ElemStride, uint32_t src2Cols, uint32_t src2Rows, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n); `rows` by `cols` float, n below count; P, one pointer per element
 * position. Exception: product-checked-entries. */
VonkStatus vonkMul_maTma_32f_P(const float *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const float *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n); `rows` by `cols` float, n below count; PS2, one pointer per element
 * position, strided objects. Exception: product-checked-entries. */
VonkStatus vonkMul_maTma_32f_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, uint32_t src2Cols,
    uint32_t src2Rows, float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n); `rows` by `cols` float, n below count; L, one pointer per object. */
VonkStatus vonkMul_maTma_32f_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, uint32_t src2Cols,
    uint32_t src2Rows, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n); `rows` by `cols` float, n below count; LS2, one pointer per object,
 * strided elements. */
VonkStatus vonkMul_maTma_32f_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, uint32_t src1Cols, uint32_t src1Rows, const float *const *src2, int32_t src2Shift,
    int32_t src2RowStride, int32_t src2ElemStride, uint32_t src2Cols, uint32_t src2Rows, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n); 3x3 float, n below count; standard layout. */
VonkStatus vonkMul_maTma_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n); 3x3 float, n below count; S2, strided elements. */
VonkStatus vonkMul_maTma_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n); 3x3 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_maTma_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n); 3x3 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_maTma_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n); 3x3 float, n below count; L, one pointer per object. */
VonkStatus vonkMul_maTma_32f_3x3_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n); 3x3 float, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkMul_maTma_32f_3x3_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n); 4x4 float, n below count; standard layout. */
VonkStatus vonkMul_maTma_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n); 4x4 float, n below count; S2, strided elements. */
VonkStatus vonkMul_maTma_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n); 4x4 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_maTma_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n); 4x4 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_maTma_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n); 4x4 float, n below count; L, one pointer per object. */
VonkStatus vonkMul_maTma_32f_4x4_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n); 4x4 float, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkMul_maTma_32f_4x4_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n); 5x5 float, n below count; standard layout. */
VonkStatus vonkMul_maTma_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n); 5x5 float, n below count; S2, strided elements. */
VonkStatus vonkMul_maTma_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n); 5x5 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_maTma_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n); 5x5 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_maTma_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n); 5x5 float, n below count; L, one pointer per object. */
VonkStatus vonkMul_maTma_32f_5x5_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n); 5x5 float, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkMul_maTma_32f_5x5_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n); 6x6 float, n below count; standard layout. */
VonkStatus vonkMul_maTma_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n); 6x6 float, n below count; S2, strided elements. */
VonkStatus vonkMul_maTma_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n); 6x6 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_maTma_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n); 6x6 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_maTma_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n); 6x6 float, n below count; L, one pointer per object. */
VonkStatus vonkMul_maTma_32f_6x6_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n); 6x6 float, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkMul_maTma_32f_6x6_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

/** dst(n) = matrix product src1(n)' src2(n); `rows` by `cols` double, n below count; standard layout. */
VonkStatus vonkMul_maTma_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, uint32_t src2Cols,
    uint32_t src2Rows, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n); `rows` by `cols` double, n below count; S2, strided elements. */
VonkStatus vonkMul_maTma_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, uint32_t src1Cols, uint32_t src1Rows, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, int32_t src2ElemStride, uint32_t src2Cols, uint32_t src2Rows, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n); `rows` by `cols` double, n below count; P, one pointer per element
 * position. Exception: product-checked-entries. */
VonkStatus vonkMul_maTma_64f_P(const double *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const double *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n); `rows` by `cols` double, n below count; PS2, one pointer per element
 * position, strided objects. Exception: product-checked-entries. */
VonkStatus vonkMul_maTma_64f_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, uint32_t src2Cols,
    uint32_t src2Rows, double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n); `rows` by `cols` double, n below count; L, one pointer per object. */
VonkStatus vonkMul_maTma_64f_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, uint32_t src2Cols,
    uint32_t src2Rows, double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n); `rows` by `cols` double, n below count; LS2, one pointer per object,
 * strided elements. */
VonkStatus vonkMul_maTma_64f_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, uint32_t src1Cols, uint32_t src1Rows, const double *const *src2, int32_t src2Shift,
    int32_t src2RowStride, int32_t src2ElemStride, uint32_t src2Cols, uint32_t src2Rows, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n); 3x3 double, n below count; standard layout. */
VonkStatus vonkMul_maTma_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n); 3x3 double, n below count; S2, strided elements. */
VonkStatus vonkMul_maTma_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n); 3x3 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_maTma_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n); 3x3 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_maTma_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n); 3x3 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_maTma_64f_3x3_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n); 3x3 double, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkMul_maTma_64f_3x3_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n); 4x4 double, n below count; standard layout. */
VonkStatus vonkMul_maTma_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n); 4x4 double, n below count; S2, strided elements. */
VonkStatus vonkMul_maTma_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n); 4x4 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_maTma_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n); 4x4 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_maTma_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n); 4x4 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_maTma_64f_4x4_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n); 4x4 double, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkMul_maTma_64f_4x4_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n); 5x5 double, n below count; standard layout. */
VonkStatus vonkMul_maTma_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n); 5x5 double, n below count; S2, strided elements. */
VonkStatus vonkMul_maTma_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n); 5x5 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_maTma_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n); 5x5 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_maTma_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n); 5x5 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_maTma_64f_5x5_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n); 5x5 double, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkMul_maTma_64f_5x5_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n); 6x6 double, n below count; standard layout. */
VonkStatus vonkMul_maTma_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n); 6x6 double, n below count; S2, strided elements. */
VonkStatus vonkMul_maTma_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n); 6x6 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_maTma_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n); 6x6 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_maTma_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n); 6x6 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_maTma_64f_6x6_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n); 6x6 double, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkMul_maTma_64f_6x6_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

/** dst(n) = matrix product src1(n)' src2(n)'; `rows` by `cols` float, n below count; standard layout. */
VonkStatus vonkMul_maTmaT_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, uint32_t src2Cols,
    uint32_t src2Rows, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n)'; `rows` by `cols` float, n below count; S2, strided elements. */
VonkStatus vonkMul_maTmaT_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, uint32_t src1Cols, uint32_t src1Rows, const float *src2, int32_t src2ObjStride,
    int32_t src2RowStride, int32_t src2ElemStride, uint32_t src2Cols, uint32_t src2Rows, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n)'; `rows` by `cols` float, n below count; P, one pointer per element
 * position. Exception: product-checked-entries. */
VonkStatus vonkMul_maTmaT_32f_P(const float *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const float *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n)'; `rows` by `cols` float, n below count; PS2, one pointer per element
 * position, strided objects. Exception: product-checked-entries. */
VonkStatus vonkMul_maTmaT_32f_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, uint32_t src2Cols,
    uint32_t src2Rows, float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n)'; `rows` by `cols` float, n below count; L, one pointer per object. */
VonkStatus vonkMul_maTmaT_32f_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, uint32_t src2Cols,
    uint32_t src2Rows, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n)'; `rows` by `cols` float, n below count; LS2, one pointer per object,
 * strided elements. */
VonkStatus vonkMul_maTmaT_32f_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, uint32_t src1Cols, uint32_t src1Rows, const float *const *src2, int32_t src2Shift,
    int32_t src2RowStride, int32_t src2ElemStride, uint32_t src2Cols, uint32_t src2Rows, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n)'; 3x3 float, n below count; standard layout. */
VonkStatus vonkMul_maTmaT_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n)'; 3x3 float, n below count; S2, strided elements. */
VonkStatus vonkMul_maTmaT_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n)'; 3x3 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_maTmaT_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n)'; 3x3 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_maTmaT_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n)'; 3x3 float, n below count; L, one pointer per object. */
VonkStatus vonkMul_maTmaT_32f_3x3_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n)'; 3x3 float, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkMul_maTmaT_32f_3x3_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n)'; 4x4 float, n below count; standard layout. */
VonkStatus vonkMul_maTmaT_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n)'; 4x4 float, n below count; S2, strided elements. */
VonkStatus vonkMul_maTmaT_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n)'; 4x4 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_maTmaT_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n)'; 4x4 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_maTmaT_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n)'; 4x4 float, n below count; L, one pointer per object. */
VonkStatus vonkMul_maTmaT_32f_4x4_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n)'; 4x4 float, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkMul_maTmaT_32f_4x4_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n)'; 5x5 float, n below count; standard layout. */
VonkStatus vonkMul_maTmaT_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n)'; 5x5 float, n below count; S2, strided elements. */
VonkStatus vonkMul_maTmaT_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n)'; 5x5 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_maTmaT_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n)'; 5x5 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_maTmaT_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n)'; 5x5 float, n below count; L, one pointer per object. */
VonkStatus vonkMul_maTmaT_32f_5x5_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n)'; 5x5 float, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkMul_maTmaT_32f_5x5_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n)'; 6x6 float, n below count; standard layout. */
VonkStatus vonkMul_maTmaT_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n)'; 6x6 float, n below count; S2, strided elements. */
VonkStatus vonkMul_maTmaT_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n)'; 6x6 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_maTmaT_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n)'; 6x6 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_maTmaT_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n)'; 6x6 float, n below count; L, one pointer per object. */
VonkStatus vonkMul_maTmaT_32f_6x6_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n)'; 6x6 float, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkMul_maTmaT_32f_6x6_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

/** dst(n) = matrix product src1(n)' src2(n)'; `rows` by `cols` double, n below count; standard layout. */
VonkStatus vonkMul_maTmaT_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, uint32_t src2Cols,
    uint32_t src2Rows, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n)'; `rows` by `cols` double, n below count; S2, strided elements. */
VonkStatus vonkMul_maTmaT_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, uint32_t src1Cols, uint32_t src1Rows, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, int32_t src2ElemStride, uint32_t src2Cols, uint32_t src2Rows, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n)'; `rows` by `cols` double, n below count; P, one pointer per element
 * position. Exception: product-checked-entries. */
VonkStatus vonkMul_maTmaT_64f_P(const double *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const double *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n)'; `rows` by `cols` double, n below count; PS2, one pointer per element
 * position, strided objects. Exception: product-checked-entries. */
VonkStatus vonkMul_maTmaT_64f_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    uint32_t src1Cols, uint32_t src1Rows, const double *const *src2, int32_t src2Shift, int32_t src2ObjStride,
    uint32_t src2Cols, uint32_t src2Rows, double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n)'; `rows` by `cols` double, n below count; L, one pointer per object. */
VonkStatus vonkMul_maTmaT_64f_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, uint32_t src2Cols,
    uint32_t src2Rows, double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n)'; `rows` by `cols` double, n below count; LS2, one pointer per object,
 * strided elements. */
VonkStatus vonkMul_maTmaT_64f_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, uint32_t src1Cols, uint32_t src1Rows, const double *const *src2, int32_t src2Shift,
    int32_t src2RowStride, int32_t src2ElemStride, uint32_t src2Cols, uint32_t src2Rows, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n)'; 3x3 double, n below count; standard layout. */
VonkStatus vonkMul_maTmaT_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n)'; 3x3 double, n below count; S2, strided elements. */
VonkStatus vonkMul_maTmaT_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n)'; 3x3 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_maTmaT_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n)'; 3x3 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_maTmaT_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n)'; 3x3 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_maTmaT_64f_3x3_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n)'; 3x3 double, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkMul_maTmaT_64f_3x3_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n)'; 4x4 double, n below count; standard layout. */
VonkStatus vonkMul_maTmaT_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n)'; 4x4 double, n below count; S2, strided elements. */
VonkStatus vonkMul_maTmaT_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n)'; 4x4 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_maTmaT_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n)'; 4x4 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_maTmaT_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n)'; 4x4 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_maTmaT_64f_4x4_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n)'; 4x4 double, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkMul_maTmaT_64f_4x4_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n)'; 5x5 double, n below count; standard layout. */
VonkStatus vonkMul_maTmaT_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n)'; 5x5 double, n below count; S2, strided elements. */
VonkStatus vonkMul_maTmaT_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n)'; 5x5 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_maTmaT_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n)'; 5x5 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_maTmaT_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n)'; 5x5 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_maTmaT_64f_5x5_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n)'; 5x5 double, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkMul_maTmaT_64f_5x5_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n)'; 6x6 double, n below count; standard layout. */
VonkStatus vonkMul_maTmaT_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n)'; 6x6 double, n below count; S2, strided elements. */
VonkStatus vonkMul_maTmaT_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n)'; 6x6 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_maTmaT_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n)'; 6x6 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_maTmaT_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n)'; 6x6 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_maTmaT_64f_6x6_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = matrix product src1(n)' src2(n)'; 6x6 double, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkMul_maTmaT_64f_6x6_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

/* ---- Matrix by vector -----------------------------------------------------------------------------------------------
 *
 * dst(n, i) = sum over k of A(i, k) src2(n, k)
 *
 * with A(i, k) = src1(n, i, k), or src1(n, k, i) in the groups with `T`. A single operand serves all objects. Products
 * and sums are rounded one by one and never fused.
 *
 * Sizes: `src1Cols` and `src1Rows`, `src2Len`. There are `src1Rows` results of `src1Cols` terms, transposed or not.
 * vonkErrSize if `src1Cols` or `src1Rows` is 0, or unless `src1Cols` = `src2Len` (with `T`: `src1Rows` = `src2Len`).
 *
 * Status: vonkErrNullPtr if `src1`, `src2` or `dst` is null; vonkErrSize, see above; vonkErrNullPtr if a table or list
 * entry is null: in single forms in `P` entry by entry as the sums reach it, earlier elements and the partial sum being
 * stored; in `P` and `PS2` of arrays all of `src1`, `src2` and `dst` before anything else, even at `count` 0; in `L`
 * and `LS2` when the object's turn comes. `count` 0 then gives vonkOk.
 *
 * Sums run as those of matrix by matrix, but for `32f` of fixed size in the standard layout and `L`, which sum in SIMD
 * lanes in orders of their own. With p0, p1, ... for the products of row i:
 * - 3x3: (p0 + p1) + p2
 * - 4x4: (p0 + p2) + (p1 + p3); transposed (p0 + p1) + (p2 + p3)
 * - 5x5: ((p0 + p1) + p4) + (p2 + p3), but the LAST element, if not transposed, is ((p0 + p2) + p4) + (p1 + p3)
 * - 6x6: ((p0 + p2) + p4) + ((p1 + p3) + p5); transposed ((p0 + p1) + (p2 + p3)) + (p4 + p5)
 *
 * Overlap:
 * Overlap is not checked. `32f` of fixed size in the standard layout and `L` loads the vector before the first store,
 * so `dst` may be `src2` (in place); elsewhere the partial sums that are stored to memory destroy it. With disjoint
 * operands the order of objects, elements and stores may be another, with the same results.
 *
 * Exceptions:
 * - product-vector-position-8 (checks): vonkMul_mTv_{32f,64f}_4x4_P
 *   The entry at position 8 of the table of `src1` is not checked; a null entry is followed.
 */

/** dst = matrix times vector src1 src2; `rows` by `cols` float; standard layout. */
VonkStatus vonkMul_mv_32f(const float *src1, int32_t src1RowStride, uint32_t src1Cols, uint32_t src1Rows,
    const float *src2, uint32_t src2Len, float *dst);
/** dst = matrix times vector src1 src2; `rows` by `cols` float; S2, strided elements. */
VonkStatus vonkMul_mv_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *src2, int32_t src2ElemStride, uint32_t src2Len, float *dst, int32_t dstElemStride);
/** dst = matrix times vector src1 src2; `rows` by `cols` float; P, one pointer per element position. */
VonkStatus vonkMul_mv_32f_P(const float *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const float *const *src2, int32_t src2Shift, uint32_t src2Len, float *const *dst, int32_t dstShift);
/** dst = matrix times vector src1 src2; 3x3 float; standard layout. */
VonkStatus vonkMul_mv_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2, float *dst);
/** dst = matrix times vector src1 src2; 3x3 float; S2, strided elements. */
VonkStatus vonkMul_mv_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ElemStride, float *dst, int32_t dstElemStride);
/** dst = matrix times vector src1 src2; 3x3 float; P, one pointer per element position. */
VonkStatus vonkMul_mv_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
/** dst = matrix times vector src1 src2; 4x4 float; standard layout. */
VonkStatus vonkMul_mv_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2, float *dst);
/** dst = matrix times vector src1 src2; 4x4 float; S2, strided elements. */
VonkStatus vonkMul_mv_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ElemStride, float *dst, int32_t dstElemStride);
/** dst = matrix times vector src1 src2; 4x4 float; P, one pointer per element position. */
VonkStatus vonkMul_mv_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
/** dst = matrix times vector src1 src2; 5x5 float; standard layout. */
VonkStatus vonkMul_mv_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2, float *dst);
/** dst = matrix times vector src1 src2; 5x5 float; S2, strided elements. */
VonkStatus vonkMul_mv_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ElemStride, float *dst, int32_t dstElemStride);
/** dst = matrix times vector src1 src2; 5x5 float; P, one pointer per element position. */
VonkStatus vonkMul_mv_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
/** dst = matrix times vector src1 src2; 6x6 float; standard layout. */
VonkStatus vonkMul_mv_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2, float *dst);
/** dst = matrix times vector src1 src2; 6x6 float; S2, strided elements. */
VonkStatus vonkMul_mv_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ElemStride, float *dst, int32_t dstElemStride);
/** dst = matrix times vector src1 src2; 6x6 float; P, one pointer per element position. */
VonkStatus vonkMul_mv_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);

/** dst = matrix times vector src1 src2; `rows` by `cols` double; standard layout. */
VonkStatus vonkMul_mv_64f(const double *src1, int32_t src1RowStride, uint32_t src1Cols, uint32_t src1Rows,
    const double *src2, uint32_t src2Len, double *dst);
/** dst = matrix times vector src1 src2; `rows` by `cols` double; S2, strided elements. */
VonkStatus vonkMul_mv_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *src2, int32_t src2ElemStride, uint32_t src2Len, double *dst,
    int32_t dstElemStride);
/** dst = matrix times vector src1 src2; `rows` by `cols` double; P, one pointer per element position. */
VonkStatus vonkMul_mv_64f_P(const double *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const double *const *src2, int32_t src2Shift, uint32_t src2Len, double *const *dst, int32_t dstShift);
/** dst = matrix times vector src1 src2; 3x3 double; standard layout. */
VonkStatus vonkMul_mv_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2, double *dst);
/** dst = matrix times vector src1 src2; 3x3 double; S2, strided elements. */
VonkStatus vonkMul_mv_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ElemStride, double *dst, int32_t dstElemStride);
/** dst = matrix times vector src1 src2; 3x3 double; P, one pointer per element position. */
VonkStatus vonkMul_mv_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
/** dst = matrix times vector src1 src2; 4x4 double; standard layout. */
VonkStatus vonkMul_mv_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2, double *dst);
/** dst = matrix times vector src1 src2; 4x4 double; S2, strided elements. */
VonkStatus vonkMul_mv_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ElemStride, double *dst, int32_t dstElemStride);
/** dst = matrix times vector src1 src2; 4x4 double; P, one pointer per element position. */
VonkStatus vonkMul_mv_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
/** dst = matrix times vector src1 src2; 5x5 double; standard layout. */
VonkStatus vonkMul_mv_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2, double *dst);
/** dst = matrix times vector src1 src2; 5x5 double; S2, strided elements. */
VonkStatus vonkMul_mv_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ElemStride, double *dst, int32_t dstElemStride);
/** dst = matrix times vector src1 src2; 5x5 double; P, one pointer per element position. */
VonkStatus vonkMul_mv_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
/** dst = matrix times vector src1 src2; 6x6 double; standard layout. */
VonkStatus vonkMul_mv_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2, double *dst);
/** dst = matrix times vector src1 src2; 6x6 double; S2, strided elements. */
VonkStatus vonkMul_mv_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ElemStride, double *dst, int32_t dstElemStride);
/** dst = matrix times vector src1 src2; 6x6 double; P, one pointer per element position. */
VonkStatus vonkMul_mv_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);

/** dst = matrix times vector src1' src2; `rows` by `cols` float; standard layout. */
VonkStatus vonkMul_mTv_32f(const float *src1, int32_t src1RowStride, uint32_t src1Cols, uint32_t src1Rows,
    const float *src2, uint32_t src2Len, float *dst);
/** dst = matrix times vector src1' src2; `rows` by `cols` float; S2, strided elements. */
VonkStatus vonkMul_mTv_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *src2, int32_t src2ElemStride, uint32_t src2Len, float *dst, int32_t dstElemStride);
/** dst = matrix times vector src1' src2; `rows` by `cols` float; P, one pointer per element position. */
VonkStatus vonkMul_mTv_32f_P(const float *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const float *const *src2, int32_t src2Shift, uint32_t src2Len, float *const *dst, int32_t dstShift);
/** dst = matrix times vector src1' src2; 3x3 float; standard layout. */
VonkStatus vonkMul_mTv_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2, float *dst);
/** dst = matrix times vector src1' src2; 3x3 float; S2, strided elements. */
VonkStatus vonkMul_mTv_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ElemStride, float *dst, int32_t dstElemStride);
/** dst = matrix times vector src1' src2; 3x3 float; P, one pointer per element position. */
VonkStatus vonkMul_mTv_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
/** dst = matrix times vector src1' src2; 4x4 float; standard layout. */
VonkStatus vonkMul_mTv_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2, float *dst);
/** dst = matrix times vector src1' src2; 4x4 float; S2, strided elements. */
VonkStatus vonkMul_mTv_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ElemStride, float *dst, int32_t dstElemStride);
/** dst = matrix times vector src1' src2; 4x4 float; P, one pointer per element position. Exception:
 * product-vector-position-8. */
VonkStatus vonkMul_mTv_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
/** dst = matrix times vector src1' src2; 5x5 float; standard layout. */
VonkStatus vonkMul_mTv_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2, float *dst);
/** dst = matrix times vector src1' src2; 5x5 float; S2, strided elements. */
VonkStatus vonkMul_mTv_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ElemStride, float *dst, int32_t dstElemStride);
/** dst = matrix times vector src1' src2; 5x5 float; P, one pointer per element position. */
VonkStatus vonkMul_mTv_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
/** dst = matrix times vector src1' src2; 6x6 float; standard layout. */
VonkStatus vonkMul_mTv_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2, float *dst);
/** dst = matrix times vector src1' src2; 6x6 float; S2, strided elements. */
VonkStatus vonkMul_mTv_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ElemStride, float *dst, int32_t dstElemStride);
/** dst = matrix times vector src1' src2; 6x6 float; P, one pointer per element position. */
VonkStatus vonkMul_mTv_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);

/** dst = matrix times vector src1' src2; `rows` by `cols` double; standard layout. */
VonkStatus vonkMul_mTv_64f(const double *src1, int32_t src1RowStride, uint32_t src1Cols, uint32_t src1Rows,
    const double *src2, uint32_t src2Len, double *dst);
/** dst = matrix times vector src1' src2; `rows` by `cols` double; S2, strided elements. */
VonkStatus vonkMul_mTv_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *src2, int32_t src2ElemStride, uint32_t src2Len, double *dst,
    int32_t dstElemStride);
/** dst = matrix times vector src1' src2; `rows` by `cols` double; P, one pointer per element position. */
VonkStatus vonkMul_mTv_64f_P(const double *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const double *const *src2, int32_t src2Shift, uint32_t src2Len, double *const *dst, int32_t dstShift);
/** dst = matrix times vector src1' src2; 3x3 double; standard layout. */
VonkStatus vonkMul_mTv_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2, double *dst);
/** dst = matrix times vector src1' src2; 3x3 double; S2, strided elements. */
VonkStatus vonkMul_mTv_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ElemStride, double *dst, int32_t dstElemStride);
/** dst = matrix times vector src1' src2; 3x3 double; P, one pointer per element position. */
VonkStatus vonkMul_mTv_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
/** dst = matrix times vector src1' src2; 4x4 double; standard layout. */
VonkStatus vonkMul_mTv_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2, double *dst);
/** dst = matrix times vector src1' src2; 4x4 double; S2, strided elements. */
VonkStatus vonkMul_mTv_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ElemStride, double *dst, int32_t dstElemStride);
/** dst = matrix times vector src1' src2; 4x4 double; P, one pointer per element position. Exception:
 * product-vector-position-8. */
VonkStatus vonkMul_mTv_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
/** dst = matrix times vector src1' src2; 5x5 double; standard layout. */
VonkStatus vonkMul_mTv_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2, double *dst);
/** dst = matrix times vector src1' src2; 5x5 double; S2, strided elements. */
VonkStatus vonkMul_mTv_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ElemStride, double *dst, int32_t dstElemStride);
/** dst = matrix times vector src1' src2; 5x5 double; P, one pointer per element position. */
VonkStatus vonkMul_mTv_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
/** dst = matrix times vector src1' src2; 6x6 double; standard layout. */
VonkStatus vonkMul_mTv_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2, double *dst);
/** dst = matrix times vector src1' src2; 6x6 double; S2, strided elements. */
VonkStatus vonkMul_mTv_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ElemStride, double *dst, int32_t dstElemStride);
/** dst = matrix times vector src1' src2; 6x6 double; P, one pointer per element position. */
VonkStatus vonkMul_mTv_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);

/** dst(n) = matrix times vector src1 src2(n); `rows` by `cols` float, n below count; standard layout. */
VonkStatus vonkMul_mva_32f(const float *src1, int32_t src1RowStride, uint32_t src1Cols, uint32_t src1Rows,
    const float *src2, int32_t src2ObjStride, uint32_t src2Len, float *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1 src2(n); `rows` by `cols` float, n below count; S2, strided elements. */
VonkStatus vonkMul_mva_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, uint32_t src2Len, float *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1 src2(n); `rows` by `cols` float, n below count; P, one pointer per element
 * position. */
VonkStatus vonkMul_mva_32f_P(const float *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const float *const *src2, int32_t src2Shift, uint32_t src2Len, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1 src2(n); `rows` by `cols` float, n below count; PS2, one pointer per element
 * position, strided objects. */
VonkStatus vonkMul_mva_32f_PS2(const float *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, uint32_t src2Len, float *const *dst,
    int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1 src2(n); `rows` by `cols` float, n below count; L, one pointer per object. */
VonkStatus vonkMul_mva_32f_L(const float *src1, int32_t src1RowStride, uint32_t src1Cols, uint32_t src1Rows,
    const float *const *src2, int32_t src2Shift, uint32_t src2Len, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1 src2(n); `rows` by `cols` float, n below count; LS2, one pointer per object,
 * strided elements. */
VonkStatus vonkMul_mva_32f_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, uint32_t src2Len,
    float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1 src2(n); 3x3 float, n below count; standard layout. */
VonkStatus vonkMul_mva_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    float *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1 src2(n); 3x3 float, n below count; S2, strided elements. */
VonkStatus vonkMul_mva_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = matrix times vector src1 src2(n); 3x3 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mva_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1 src2(n); 3x3 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mva_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix times vector src1 src2(n); 3x3 float, n below count; L, one pointer per object. */
VonkStatus vonkMul_mva_32f_3x3_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1 src2(n); 3x3 float, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkMul_mva_32f_3x3_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1 src2(n); 4x4 float, n below count; standard layout. */
VonkStatus vonkMul_mva_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    float *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1 src2(n); 4x4 float, n below count; S2, strided elements. */
VonkStatus vonkMul_mva_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = matrix times vector src1 src2(n); 4x4 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mva_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1 src2(n); 4x4 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mva_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix times vector src1 src2(n); 4x4 float, n below count; L, one pointer per object. */
VonkStatus vonkMul_mva_32f_4x4_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1 src2(n); 4x4 float, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkMul_mva_32f_4x4_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1 src2(n); 5x5 float, n below count; standard layout. */
VonkStatus vonkMul_mva_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    float *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1 src2(n); 5x5 float, n below count; S2, strided elements. */
VonkStatus vonkMul_mva_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = matrix times vector src1 src2(n); 5x5 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mva_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1 src2(n); 5x5 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mva_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix times vector src1 src2(n); 5x5 float, n below count; L, one pointer per object. */
VonkStatus vonkMul_mva_32f_5x5_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1 src2(n); 5x5 float, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkMul_mva_32f_5x5_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1 src2(n); 6x6 float, n below count; standard layout. */
VonkStatus vonkMul_mva_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    float *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1 src2(n); 6x6 float, n below count; S2, strided elements. */
VonkStatus vonkMul_mva_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = matrix times vector src1 src2(n); 6x6 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mva_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1 src2(n); 6x6 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mva_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix times vector src1 src2(n); 6x6 float, n below count; L, one pointer per object. */
VonkStatus vonkMul_mva_32f_6x6_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1 src2(n); 6x6 float, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkMul_mva_32f_6x6_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);

/** dst(n) = matrix times vector src1 src2(n); `rows` by `cols` double, n below count; standard layout. */
VonkStatus vonkMul_mva_64f(const double *src1, int32_t src1RowStride, uint32_t src1Cols, uint32_t src1Rows,
    const double *src2, int32_t src2ObjStride, uint32_t src2Len, double *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1 src2(n); `rows` by `cols` double, n below count; S2, strided elements. */
VonkStatus vonkMul_mva_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, uint32_t src2Len, double *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1 src2(n); `rows` by `cols` double, n below count; P, one pointer per element
 * position. */
VonkStatus vonkMul_mva_64f_P(const double *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const double *const *src2, int32_t src2Shift, uint32_t src2Len, double *const *dst, int32_t dstShift,
    uint32_t count);
/** dst(n) = matrix times vector src1 src2(n); `rows` by `cols` double, n below count; PS2, one pointer per element
 * position, strided objects. */
VonkStatus vonkMul_mva_64f_PS2(const double *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, uint32_t src2Len, double *const *dst,
    int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1 src2(n); `rows` by `cols` double, n below count; L, one pointer per object. */
VonkStatus vonkMul_mva_64f_L(const double *src1, int32_t src1RowStride, uint32_t src1Cols, uint32_t src1Rows,
    const double *const *src2, int32_t src2Shift, uint32_t src2Len, double *const *dst, int32_t dstShift,
    uint32_t count);
/** dst(n) = matrix times vector src1 src2(n); `rows` by `cols` double, n below count; LS2, one pointer per object,
 * strided elements. */
VonkStatus vonkMul_mva_64f_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, uint32_t src2Len,
    double *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1 src2(n); 3x3 double, n below count; standard layout. */
VonkStatus vonkMul_mva_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    double *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1 src2(n); 3x3 double, n below count; S2, strided elements. */
VonkStatus vonkMul_mva_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = matrix times vector src1 src2(n); 3x3 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mva_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1 src2(n); 3x3 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mva_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix times vector src1 src2(n); 3x3 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_mva_64f_3x3_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1 src2(n); 3x3 double, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkMul_mva_64f_3x3_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1 src2(n); 4x4 double, n below count; standard layout. */
VonkStatus vonkMul_mva_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    double *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1 src2(n); 4x4 double, n below count; S2, strided elements. */
VonkStatus vonkMul_mva_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = matrix times vector src1 src2(n); 4x4 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mva_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1 src2(n); 4x4 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mva_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix times vector src1 src2(n); 4x4 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_mva_64f_4x4_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1 src2(n); 4x4 double, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkMul_mva_64f_4x4_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1 src2(n); 5x5 double, n below count; standard layout. */
VonkStatus vonkMul_mva_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    double *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1 src2(n); 5x5 double, n below count; S2, strided elements. */
VonkStatus vonkMul_mva_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = matrix times vector src1 src2(n); 5x5 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mva_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1 src2(n); 5x5 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mva_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix times vector src1 src2(n); 5x5 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_mva_64f_5x5_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1 src2(n); 5x5 double, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkMul_mva_64f_5x5_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1 src2(n); 6x6 double, n below count; standard layout. */
VonkStatus vonkMul_mva_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    double *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1 src2(n); 6x6 double, n below count; S2, strided elements. */
VonkStatus vonkMul_mva_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = matrix times vector src1 src2(n); 6x6 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mva_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1 src2(n); 6x6 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mva_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix times vector src1 src2(n); 6x6 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_mva_64f_6x6_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1 src2(n); 6x6 double, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkMul_mva_64f_6x6_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);

/** dst(n) = matrix times vector src1' src2(n); `rows` by `cols` float, n below count; standard layout. */
VonkStatus vonkMul_mTva_32f(const float *src1, int32_t src1RowStride, uint32_t src1Cols, uint32_t src1Rows,
    const float *src2, int32_t src2ObjStride, uint32_t src2Len, float *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1' src2(n); `rows` by `cols` float, n below count; S2, strided elements. */
VonkStatus vonkMul_mTva_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, uint32_t src2Len, float *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1' src2(n); `rows` by `cols` float, n below count; P, one pointer per element
 * position. */
VonkStatus vonkMul_mTva_32f_P(const float *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const float *const *src2, int32_t src2Shift, uint32_t src2Len, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1' src2(n); `rows` by `cols` float, n below count; PS2, one pointer per element
 * position, strided objects. */
VonkStatus vonkMul_mTva_32f_PS2(const float *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, uint32_t src2Len, float *const *dst,
    int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1' src2(n); `rows` by `cols` float, n below count; L, one pointer per object. */
VonkStatus vonkMul_mTva_32f_L(const float *src1, int32_t src1RowStride, uint32_t src1Cols, uint32_t src1Rows,
    const float *const *src2, int32_t src2Shift, uint32_t src2Len, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1' src2(n); `rows` by `cols` float, n below count; LS2, one pointer per object,
 * strided elements. */
VonkStatus vonkMul_mTva_32f_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, uint32_t src2Len,
    float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1' src2(n); 3x3 float, n below count; standard layout. */
VonkStatus vonkMul_mTva_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    float *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1' src2(n); 3x3 float, n below count; S2, strided elements. */
VonkStatus vonkMul_mTva_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = matrix times vector src1' src2(n); 3x3 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mTva_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1' src2(n); 3x3 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mTva_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix times vector src1' src2(n); 3x3 float, n below count; L, one pointer per object. */
VonkStatus vonkMul_mTva_32f_3x3_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1' src2(n); 3x3 float, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkMul_mTva_32f_3x3_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1' src2(n); 4x4 float, n below count; standard layout. */
VonkStatus vonkMul_mTva_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    float *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1' src2(n); 4x4 float, n below count; S2, strided elements. */
VonkStatus vonkMul_mTva_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = matrix times vector src1' src2(n); 4x4 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mTva_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1' src2(n); 4x4 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mTva_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix times vector src1' src2(n); 4x4 float, n below count; L, one pointer per object. */
VonkStatus vonkMul_mTva_32f_4x4_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1' src2(n); 4x4 float, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkMul_mTva_32f_4x4_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1' src2(n); 5x5 float, n below count; standard layout. */
VonkStatus vonkMul_mTva_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    float *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1' src2(n); 5x5 float, n below count; S2, strided elements. */
VonkStatus vonkMul_mTva_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = matrix times vector src1' src2(n); 5x5 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mTva_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1' src2(n); 5x5 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mTva_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix times vector src1' src2(n); 5x5 float, n below count; L, one pointer per object. */
VonkStatus vonkMul_mTva_32f_5x5_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1' src2(n); 5x5 float, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkMul_mTva_32f_5x5_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1' src2(n); 6x6 float, n below count; standard layout. */
VonkStatus vonkMul_mTva_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    float *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1' src2(n); 6x6 float, n below count; S2, strided elements. */
VonkStatus vonkMul_mTva_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = matrix times vector src1' src2(n); 6x6 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mTva_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1' src2(n); 6x6 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mTva_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix times vector src1' src2(n); 6x6 float, n below count; L, one pointer per object. */
VonkStatus vonkMul_mTva_32f_6x6_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1' src2(n); 6x6 float, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkMul_mTva_32f_6x6_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);

/** dst(n) = matrix times vector src1' src2(n); `rows` by `cols` double, n below count; standard layout. */
VonkStatus vonkMul_mTva_64f(const double *src1, int32_t src1RowStride, uint32_t src1Cols, uint32_t src1Rows,
    const double *src2, int32_t src2ObjStride, uint32_t src2Len, double *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1' src2(n); `rows` by `cols` double, n below count; S2, strided elements. */
VonkStatus vonkMul_mTva_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, uint32_t src2Len, double *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1' src2(n); `rows` by `cols` double, n below count; P, one pointer per element
 * position. */
VonkStatus vonkMul_mTva_64f_P(const double *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const double *const *src2, int32_t src2Shift, uint32_t src2Len, double *const *dst, int32_t dstShift,
    uint32_t count);
/** dst(n) = matrix times vector src1' src2(n); `rows` by `cols` double, n below count; PS2, one pointer per element
 * position, strided objects. */
VonkStatus vonkMul_mTva_64f_PS2(const double *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, uint32_t src2Len, double *const *dst,
    int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1' src2(n); `rows` by `cols` double, n below count; L, one pointer per object. */
VonkStatus vonkMul_mTva_64f_L(const double *src1, int32_t src1RowStride, uint32_t src1Cols, uint32_t src1Rows,
    const double *const *src2, int32_t src2Shift, uint32_t src2Len, double *const *dst, int32_t dstShift,
    uint32_t count);
/** dst(n) = matrix times vector src1' src2(n); `rows` by `cols` double, n below count; LS2, one pointer per object,
 * strided elements. */
VonkStatus vonkMul_mTva_64f_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, uint32_t src2Len,
    double *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1' src2(n); 3x3 double, n below count; standard layout. */
VonkStatus vonkMul_mTva_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    double *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1' src2(n); 3x3 double, n below count; S2, strided elements. */
VonkStatus vonkMul_mTva_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1' src2(n); 3x3 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mTva_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1' src2(n); 3x3 double, n below count; PS2, one pointer per element position,
 * strided objects. */
VonkStatus vonkMul_mTva_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix times vector src1' src2(n); 3x3 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_mTva_64f_3x3_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1' src2(n); 3x3 double, n below count; LS2, one pointer per object, strided
 * elements. */
VonkStatus vonkMul_mTva_64f_3x3_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1' src2(n); 4x4 double, n below count; standard layout. */
VonkStatus vonkMul_mTva_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    double *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1' src2(n); 4x4 double, n below count; S2, strided elements. */
VonkStatus vonkMul_mTva_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1' src2(n); 4x4 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mTva_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1' src2(n); 4x4 double, n below count; PS2, one pointer per element position,
 * strided objects. */
VonkStatus vonkMul_mTva_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix times vector src1' src2(n); 4x4 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_mTva_64f_4x4_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1' src2(n); 4x4 double, n below count; LS2, one pointer per object, strided
 * elements. */
VonkStatus vonkMul_mTva_64f_4x4_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1' src2(n); 5x5 double, n below count; standard layout. */
VonkStatus vonkMul_mTva_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    double *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1' src2(n); 5x5 double, n below count; S2, strided elements. */
VonkStatus vonkMul_mTva_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1' src2(n); 5x5 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mTva_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1' src2(n); 5x5 double, n below count; PS2, one pointer per element position,
 * strided objects. */
VonkStatus vonkMul_mTva_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix times vector src1' src2(n); 5x5 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_mTva_64f_5x5_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1' src2(n); 5x5 double, n below count; LS2, one pointer per object, strided
 * elements. */
VonkStatus vonkMul_mTva_64f_5x5_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1' src2(n); 6x6 double, n below count; standard layout. */
VonkStatus vonkMul_mTva_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    double *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1' src2(n); 6x6 double, n below count; S2, strided elements. */
VonkStatus vonkMul_mTva_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1' src2(n); 6x6 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mTva_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1' src2(n); 6x6 double, n below count; PS2, one pointer per element position,
 * strided objects. */
VonkStatus vonkMul_mTva_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix times vector src1' src2(n); 6x6 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_mTva_64f_6x6_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1' src2(n); 6x6 double, n below count; LS2, one pointer per object, strided
 * elements. */
VonkStatus vonkMul_mTva_64f_6x6_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);

/** dst(n) = matrix times vector src1(n) src2; `rows` by `cols` float, n below count; standard layout. */
VonkStatus vonkMul_mav_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *src2, uint32_t src2Len, float *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2; `rows` by `cols` float, n below count; S2, strided elements. */
VonkStatus vonkMul_mav_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    uint32_t src1Cols, uint32_t src1Rows, const float *src2, int32_t src2ElemStride, uint32_t src2Len, float *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2; `rows` by `cols` float, n below count; P, one pointer per element
 * position. */
VonkStatus vonkMul_mav_32f_P(const float *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const float *const *src2, int32_t src2Shift, uint32_t src2Len, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2; `rows` by `cols` float, n below count; PS2, one pointer per element
 * position, strided objects. */
VonkStatus vonkMul_mav_32f_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *const *src2, int32_t src2Shift, uint32_t src2Len, float *const *dst,
    int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2; `rows` by `cols` float, n below count; L, one pointer per object. */
VonkStatus vonkMul_mav_32f_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *src2, uint32_t src2Len, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2; `rows` by `cols` float, n below count; LS2, one pointer per object,
 * strided elements. */
VonkStatus vonkMul_mav_32f_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, uint32_t src1Cols, uint32_t src1Rows, const float *src2, int32_t src2ElemStride,
    uint32_t src2Len, float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2; 3x3 float, n below count; standard layout. */
VonkStatus vonkMul_mav_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    float *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2; 3x3 float, n below count; S2, strided elements. */
VonkStatus vonkMul_mav_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2; 3x3 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mav_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2; 3x3 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mav_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix times vector src1(n) src2; 3x3 float, n below count; L, one pointer per object. */
VonkStatus vonkMul_mav_32f_3x3_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2; 3x3 float, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkMul_mav_32f_3x3_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ElemStride, float *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2; 4x4 float, n below count; standard layout. */
VonkStatus vonkMul_mav_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    float *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2; 4x4 float, n below count; S2, strided elements. */
VonkStatus vonkMul_mav_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2; 4x4 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mav_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2; 4x4 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mav_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix times vector src1(n) src2; 4x4 float, n below count; L, one pointer per object. */
VonkStatus vonkMul_mav_32f_4x4_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2; 4x4 float, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkMul_mav_32f_4x4_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ElemStride, float *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2; 5x5 float, n below count; standard layout. */
VonkStatus vonkMul_mav_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    float *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2; 5x5 float, n below count; S2, strided elements. */
VonkStatus vonkMul_mav_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2; 5x5 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mav_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2; 5x5 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mav_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix times vector src1(n) src2; 5x5 float, n below count; L, one pointer per object. */
VonkStatus vonkMul_mav_32f_5x5_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2; 5x5 float, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkMul_mav_32f_5x5_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ElemStride, float *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2; 6x6 float, n below count; standard layout. */
VonkStatus vonkMul_mav_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    float *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2; 6x6 float, n below count; S2, strided elements. */
VonkStatus vonkMul_mav_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2; 6x6 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mav_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2; 6x6 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mav_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix times vector src1(n) src2; 6x6 float, n below count; L, one pointer per object. */
VonkStatus vonkMul_mav_32f_6x6_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2; 6x6 float, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkMul_mav_32f_6x6_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ElemStride, float *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);

/** dst(n) = matrix times vector src1(n) src2; `rows` by `cols` double, n below count; standard layout. */
VonkStatus vonkMul_mav_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *src2, uint32_t src2Len, double *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2; `rows` by `cols` double, n below count; S2, strided elements. */
VonkStatus vonkMul_mav_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    uint32_t src1Cols, uint32_t src1Rows, const double *src2, int32_t src2ElemStride, uint32_t src2Len, double *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2; `rows` by `cols` double, n below count; P, one pointer per element
 * position. */
VonkStatus vonkMul_mav_64f_P(const double *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const double *const *src2, int32_t src2Shift, uint32_t src2Len, double *const *dst, int32_t dstShift,
    uint32_t count);
/** dst(n) = matrix times vector src1(n) src2; `rows` by `cols` double, n below count; PS2, one pointer per element
 * position, strided objects. */
VonkStatus vonkMul_mav_64f_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *const *src2, int32_t src2Shift, uint32_t src2Len, double *const *dst,
    int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2; `rows` by `cols` double, n below count; L, one pointer per object. */
VonkStatus vonkMul_mav_64f_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *src2, uint32_t src2Len, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2; `rows` by `cols` double, n below count; LS2, one pointer per object,
 * strided elements. */
VonkStatus vonkMul_mav_64f_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, uint32_t src1Cols, uint32_t src1Rows, const double *src2, int32_t src2ElemStride,
    uint32_t src2Len, double *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2; 3x3 double, n below count; standard layout. */
VonkStatus vonkMul_mav_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    double *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2; 3x3 double, n below count; S2, strided elements. */
VonkStatus vonkMul_mav_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2; 3x3 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mav_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2; 3x3 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mav_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix times vector src1(n) src2; 3x3 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_mav_64f_3x3_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2; 3x3 double, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkMul_mav_64f_3x3_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ElemStride, double *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2; 4x4 double, n below count; standard layout. */
VonkStatus vonkMul_mav_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    double *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2; 4x4 double, n below count; S2, strided elements. */
VonkStatus vonkMul_mav_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2; 4x4 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mav_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2; 4x4 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mav_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix times vector src1(n) src2; 4x4 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_mav_64f_4x4_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2; 4x4 double, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkMul_mav_64f_4x4_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ElemStride, double *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2; 5x5 double, n below count; standard layout. */
VonkStatus vonkMul_mav_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    double *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2; 5x5 double, n below count; S2, strided elements. */
VonkStatus vonkMul_mav_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2; 5x5 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mav_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2; 5x5 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mav_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix times vector src1(n) src2; 5x5 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_mav_64f_5x5_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2; 5x5 double, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkMul_mav_64f_5x5_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ElemStride, double *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2; 6x6 double, n below count; standard layout. */
VonkStatus vonkMul_mav_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    double *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2; 6x6 double, n below count; S2, strided elements. */
VonkStatus vonkMul_mav_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2; 6x6 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mav_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2; 6x6 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mav_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix times vector src1(n) src2; 6x6 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_mav_64f_6x6_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2; 6x6 double, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkMul_mav_64f_6x6_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ElemStride, double *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);

/** dst(n) = matrix times vector src1(n)' src2; `rows` by `cols` float, n below count; standard layout. */
VonkStatus vonkMul_maTv_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *src2, uint32_t src2Len, float *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2; `rows` by `cols` float, n below count; S2, strided elements. */
VonkStatus vonkMul_maTv_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    uint32_t src1Cols, uint32_t src1Rows, const float *src2, int32_t src2ElemStride, uint32_t src2Len, float *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2; `rows` by `cols` float, n below count; P, one pointer per element
 * position. */
VonkStatus vonkMul_maTv_32f_P(const float *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const float *const *src2, int32_t src2Shift, uint32_t src2Len, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2; `rows` by `cols` float, n below count; PS2, one pointer per element
 * position, strided objects. */
VonkStatus vonkMul_maTv_32f_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *const *src2, int32_t src2Shift, uint32_t src2Len, float *const *dst,
    int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2; `rows` by `cols` float, n below count; L, one pointer per object. */
VonkStatus vonkMul_maTv_32f_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *src2, uint32_t src2Len, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2; `rows` by `cols` float, n below count; LS2, one pointer per object,
 * strided elements. */
VonkStatus vonkMul_maTv_32f_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, uint32_t src1Cols, uint32_t src1Rows, const float *src2, int32_t src2ElemStride,
    uint32_t src2Len, float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2; 3x3 float, n below count; standard layout. */
VonkStatus vonkMul_maTv_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    float *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2; 3x3 float, n below count; S2, strided elements. */
VonkStatus vonkMul_maTv_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2; 3x3 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_maTv_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2; 3x3 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_maTv_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2; 3x3 float, n below count; L, one pointer per object. */
VonkStatus vonkMul_maTv_32f_3x3_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2; 3x3 float, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkMul_maTv_32f_3x3_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ElemStride, float *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2; 4x4 float, n below count; standard layout. */
VonkStatus vonkMul_maTv_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    float *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2; 4x4 float, n below count; S2, strided elements. */
VonkStatus vonkMul_maTv_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2; 4x4 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_maTv_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2; 4x4 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_maTv_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2; 4x4 float, n below count; L, one pointer per object. */
VonkStatus vonkMul_maTv_32f_4x4_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2; 4x4 float, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkMul_maTv_32f_4x4_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ElemStride, float *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2; 5x5 float, n below count; standard layout. */
VonkStatus vonkMul_maTv_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    float *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2; 5x5 float, n below count; S2, strided elements. */
VonkStatus vonkMul_maTv_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2; 5x5 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_maTv_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2; 5x5 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_maTv_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2; 5x5 float, n below count; L, one pointer per object. */
VonkStatus vonkMul_maTv_32f_5x5_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2; 5x5 float, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkMul_maTv_32f_5x5_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ElemStride, float *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2; 6x6 float, n below count; standard layout. */
VonkStatus vonkMul_maTv_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    float *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2; 6x6 float, n below count; S2, strided elements. */
VonkStatus vonkMul_maTv_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2; 6x6 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_maTv_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2; 6x6 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_maTv_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2; 6x6 float, n below count; L, one pointer per object. */
VonkStatus vonkMul_maTv_32f_6x6_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2; 6x6 float, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkMul_maTv_32f_6x6_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ElemStride, float *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);

/** dst(n) = matrix times vector src1(n)' src2; `rows` by `cols` double, n below count; standard layout. */
VonkStatus vonkMul_maTv_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *src2, uint32_t src2Len, double *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2; `rows` by `cols` double, n below count; S2, strided elements. */
VonkStatus vonkMul_maTv_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    uint32_t src1Cols, uint32_t src1Rows, const double *src2, int32_t src2ElemStride, uint32_t src2Len, double *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2; `rows` by `cols` double, n below count; P, one pointer per element
 * position. */
VonkStatus vonkMul_maTv_64f_P(const double *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const double *const *src2, int32_t src2Shift, uint32_t src2Len, double *const *dst, int32_t dstShift,
    uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2; `rows` by `cols` double, n below count; PS2, one pointer per element
 * position, strided objects. */
VonkStatus vonkMul_maTv_64f_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *const *src2, int32_t src2Shift, uint32_t src2Len, double *const *dst,
    int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2; `rows` by `cols` double, n below count; L, one pointer per object. */
VonkStatus vonkMul_maTv_64f_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *src2, uint32_t src2Len, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2; `rows` by `cols` double, n below count; LS2, one pointer per object,
 * strided elements. */
VonkStatus vonkMul_maTv_64f_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, uint32_t src1Cols, uint32_t src1Rows, const double *src2, int32_t src2ElemStride,
    uint32_t src2Len, double *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2; 3x3 double, n below count; standard layout. */
VonkStatus vonkMul_maTv_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    double *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2; 3x3 double, n below count; S2, strided elements. */
VonkStatus vonkMul_maTv_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2; 3x3 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_maTv_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2; 3x3 double, n below count; PS2, one pointer per element position,
 * strided objects. */
VonkStatus vonkMul_maTv_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2; 3x3 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_maTv_64f_3x3_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2; 3x3 double, n below count; LS2, one pointer per object, strided
 * elements. */
VonkStatus vonkMul_maTv_64f_3x3_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ElemStride, double *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2; 4x4 double, n below count; standard layout. */
VonkStatus vonkMul_maTv_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    double *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2; 4x4 double, n below count; S2, strided elements. */
VonkStatus vonkMul_maTv_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2; 4x4 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_maTv_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2; 4x4 double, n below count; PS2, one pointer per element position,
 * strided objects. */
VonkStatus vonkMul_maTv_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2; 4x4 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_maTv_64f_4x4_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2; 4x4 double, n below count; LS2, one pointer per object, strided
 * elements. */
VonkStatus vonkMul_maTv_64f_4x4_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ElemStride, double *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2; 5x5 double, n below count; standard layout. */
VonkStatus vonkMul_maTv_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    double *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2; 5x5 double, n below count; S2, strided elements. */
VonkStatus vonkMul_maTv_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2; 5x5 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_maTv_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2; 5x5 double, n below count; PS2, one pointer per element position,
 * strided objects. */
VonkStatus vonkMul_maTv_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2; 5x5 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_maTv_64f_5x5_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2; 5x5 double, n below count; LS2, one pointer per object, strided
 * elements. */
VonkStatus vonkMul_maTv_64f_5x5_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ElemStride, double *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2; 6x6 double, n below count; standard layout. */
VonkStatus vonkMul_maTv_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    double *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2; 6x6 double, n below count; S2, strided elements. */
VonkStatus vonkMul_maTv_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2; 6x6 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_maTv_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2; 6x6 double, n below count; PS2, one pointer per element position,
 * strided objects. */
VonkStatus vonkMul_maTv_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2; 6x6 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_maTv_64f_6x6_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2; 6x6 double, n below count; LS2, one pointer per object, strided
 * elements. */
VonkStatus vonkMul_maTv_64f_6x6_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ElemStride, double *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);

/** dst(n) = matrix times vector src1(n) src2(n); `rows` by `cols` float, n below count; standard layout. */
VonkStatus vonkMul_mava_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *src2, int32_t src2ObjStride, uint32_t src2Len, float *dst, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix times vector src1(n) src2(n); `rows` by `cols` float, n below count; S2, strided elements. */
VonkStatus vonkMul_mava_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    uint32_t src1Cols, uint32_t src1Rows, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride,
    uint32_t src2Len, float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2(n); `rows` by `cols` float, n below count; P, one pointer per element
 * position. */
VonkStatus vonkMul_mava_32f_P(const float *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const float *const *src2, int32_t src2Shift, uint32_t src2Len, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2(n); `rows` by `cols` float, n below count; PS2, one pointer per element
 * position, strided objects. */
VonkStatus vonkMul_mava_32f_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, uint32_t src2Len,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2(n); `rows` by `cols` float, n below count; L, one pointer per object. */
VonkStatus vonkMul_mava_32f_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *const *src2, int32_t src2Shift, uint32_t src2Len, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2(n); `rows` by `cols` float, n below count; LS2, one pointer per object,
 * strided elements. */
VonkStatus vonkMul_mava_32f_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, uint32_t src1Cols, uint32_t src1Rows, const float *const *src2, int32_t src2Shift,
    int32_t src2ElemStride, uint32_t src2Len, float *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = matrix times vector src1(n) src2(n); 3x3 float, n below count; standard layout. */
VonkStatus vonkMul_mava_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2(n); 3x3 float, n below count; S2, strided elements. */
VonkStatus vonkMul_mava_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2(n); 3x3 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mava_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2(n); 3x3 float, n below count; PS2, one pointer per element position,
 * strided objects. */
VonkStatus vonkMul_mava_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2(n); 3x3 float, n below count; L, one pointer per object. */
VonkStatus vonkMul_mava_32f_3x3_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2(n); 3x3 float, n below count; LS2, one pointer per object, strided
 * elements. */
VonkStatus vonkMul_mava_32f_3x3_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2(n); 4x4 float, n below count; standard layout. */
VonkStatus vonkMul_mava_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2(n); 4x4 float, n below count; S2, strided elements. */
VonkStatus vonkMul_mava_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2(n); 4x4 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mava_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2(n); 4x4 float, n below count; PS2, one pointer per element position,
 * strided objects. */
VonkStatus vonkMul_mava_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2(n); 4x4 float, n below count; L, one pointer per object. */
VonkStatus vonkMul_mava_32f_4x4_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2(n); 4x4 float, n below count; LS2, one pointer per object, strided
 * elements. */
VonkStatus vonkMul_mava_32f_4x4_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2(n); 5x5 float, n below count; standard layout. */
VonkStatus vonkMul_mava_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2(n); 5x5 float, n below count; S2, strided elements. */
VonkStatus vonkMul_mava_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2(n); 5x5 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mava_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2(n); 5x5 float, n below count; PS2, one pointer per element position,
 * strided objects. */
VonkStatus vonkMul_mava_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2(n); 5x5 float, n below count; L, one pointer per object. */
VonkStatus vonkMul_mava_32f_5x5_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2(n); 5x5 float, n below count; LS2, one pointer per object, strided
 * elements. */
VonkStatus vonkMul_mava_32f_5x5_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2(n); 6x6 float, n below count; standard layout. */
VonkStatus vonkMul_mava_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2(n); 6x6 float, n below count; S2, strided elements. */
VonkStatus vonkMul_mava_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2(n); 6x6 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mava_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2(n); 6x6 float, n below count; PS2, one pointer per element position,
 * strided objects. */
VonkStatus vonkMul_mava_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2(n); 6x6 float, n below count; L, one pointer per object. */
VonkStatus vonkMul_mava_32f_6x6_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2(n); 6x6 float, n below count; LS2, one pointer per object, strided
 * elements. */
VonkStatus vonkMul_mava_32f_6x6_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstElemStride, uint32_t count);

/** dst(n) = matrix times vector src1(n) src2(n); `rows` by `cols` double, n below count; standard layout. */
VonkStatus vonkMul_mava_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *src2, int32_t src2ObjStride, uint32_t src2Len, double *dst, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix times vector src1(n) src2(n); `rows` by `cols` double, n below count; S2, strided elements. */
VonkStatus vonkMul_mava_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    uint32_t src1Cols, uint32_t src1Rows, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride,
    uint32_t src2Len, double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2(n); `rows` by `cols` double, n below count; P, one pointer per element
 * position. */
VonkStatus vonkMul_mava_64f_P(const double *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const double *const *src2, int32_t src2Shift, uint32_t src2Len, double *const *dst, int32_t dstShift,
    uint32_t count);
/** dst(n) = matrix times vector src1(n) src2(n); `rows` by `cols` double, n below count; PS2, one pointer per element
 * position, strided objects. */
VonkStatus vonkMul_mava_64f_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, uint32_t src2Len,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2(n); `rows` by `cols` double, n below count; L, one pointer per object. */
VonkStatus vonkMul_mava_64f_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *const *src2, int32_t src2Shift, uint32_t src2Len, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2(n); `rows` by `cols` double, n below count; LS2, one pointer per object,
 * strided elements. */
VonkStatus vonkMul_mava_64f_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, uint32_t src1Cols, uint32_t src1Rows, const double *const *src2, int32_t src2Shift,
    int32_t src2ElemStride, uint32_t src2Len, double *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = matrix times vector src1(n) src2(n); 3x3 double, n below count; standard layout. */
VonkStatus vonkMul_mava_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, double *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2(n); 3x3 double, n below count; S2, strided elements. */
VonkStatus vonkMul_mava_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2(n); 3x3 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mava_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2(n); 3x3 double, n below count; PS2, one pointer per element position,
 * strided objects. */
VonkStatus vonkMul_mava_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2(n); 3x3 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_mava_64f_3x3_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2(n); 3x3 double, n below count; LS2, one pointer per object, strided
 * elements. */
VonkStatus vonkMul_mava_64f_3x3_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2(n); 4x4 double, n below count; standard layout. */
VonkStatus vonkMul_mava_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, double *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2(n); 4x4 double, n below count; S2, strided elements. */
VonkStatus vonkMul_mava_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2(n); 4x4 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mava_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2(n); 4x4 double, n below count; PS2, one pointer per element position,
 * strided objects. */
VonkStatus vonkMul_mava_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2(n); 4x4 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_mava_64f_4x4_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2(n); 4x4 double, n below count; LS2, one pointer per object, strided
 * elements. */
VonkStatus vonkMul_mava_64f_4x4_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2(n); 5x5 double, n below count; standard layout. */
VonkStatus vonkMul_mava_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, double *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2(n); 5x5 double, n below count; S2, strided elements. */
VonkStatus vonkMul_mava_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2(n); 5x5 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mava_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2(n); 5x5 double, n below count; PS2, one pointer per element position,
 * strided objects. */
VonkStatus vonkMul_mava_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2(n); 5x5 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_mava_64f_5x5_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2(n); 5x5 double, n below count; LS2, one pointer per object, strided
 * elements. */
VonkStatus vonkMul_mava_64f_5x5_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2(n); 6x6 double, n below count; standard layout. */
VonkStatus vonkMul_mava_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, double *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2(n); 6x6 double, n below count; S2, strided elements. */
VonkStatus vonkMul_mava_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2(n); 6x6 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mava_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2(n); 6x6 double, n below count; PS2, one pointer per element position,
 * strided objects. */
VonkStatus vonkMul_mava_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2(n); 6x6 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_mava_64f_6x6_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n) src2(n); 6x6 double, n below count; LS2, one pointer per object, strided
 * elements. */
VonkStatus vonkMul_mava_64f_6x6_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstElemStride, uint32_t count);

/** dst(n) = matrix times vector src1(n)' src2(n); `rows` by `cols` float, n below count; standard layout. */
VonkStatus vonkMul_maTva_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *src2, int32_t src2ObjStride, uint32_t src2Len, float *dst, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2(n); `rows` by `cols` float, n below count; S2, strided elements. */
VonkStatus vonkMul_maTva_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    uint32_t src1Cols, uint32_t src1Rows, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride,
    uint32_t src2Len, float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2(n); `rows` by `cols` float, n below count; P, one pointer per element
 * position. */
VonkStatus vonkMul_maTva_32f_P(const float *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const float *const *src2, int32_t src2Shift, uint32_t src2Len, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2(n); `rows` by `cols` float, n below count; PS2, one pointer per element
 * position, strided objects. */
VonkStatus vonkMul_maTva_32f_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, uint32_t src2Len,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2(n); `rows` by `cols` float, n below count; L, one pointer per object. */
VonkStatus vonkMul_maTva_32f_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *const *src2, int32_t src2Shift, uint32_t src2Len, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2(n); `rows` by `cols` float, n below count; LS2, one pointer per object,
 * strided elements. */
VonkStatus vonkMul_maTva_32f_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, uint32_t src1Cols, uint32_t src1Rows, const float *const *src2, int32_t src2Shift,
    int32_t src2ElemStride, uint32_t src2Len, float *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2(n); 3x3 float, n below count; standard layout. */
VonkStatus vonkMul_maTva_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2(n); 3x3 float, n below count; S2, strided elements. */
VonkStatus vonkMul_maTva_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2(n); 3x3 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_maTva_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2(n); 3x3 float, n below count; PS2, one pointer per element position,
 * strided objects. */
VonkStatus vonkMul_maTva_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2(n); 3x3 float, n below count; L, one pointer per object. */
VonkStatus vonkMul_maTva_32f_3x3_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2(n); 3x3 float, n below count; LS2, one pointer per object, strided
 * elements. */
VonkStatus vonkMul_maTva_32f_3x3_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2(n); 4x4 float, n below count; standard layout. */
VonkStatus vonkMul_maTva_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2(n); 4x4 float, n below count; S2, strided elements. */
VonkStatus vonkMul_maTva_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2(n); 4x4 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_maTva_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2(n); 4x4 float, n below count; PS2, one pointer per element position,
 * strided objects. */
VonkStatus vonkMul_maTva_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2(n); 4x4 float, n below count; L, one pointer per object. */
VonkStatus vonkMul_maTva_32f_4x4_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2(n); 4x4 float, n below count; LS2, one pointer per object, strided
 * elements. */
VonkStatus vonkMul_maTva_32f_4x4_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2(n); 5x5 float, n below count; standard layout. */
VonkStatus vonkMul_maTva_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2(n); 5x5 float, n below count; S2, strided elements. */
VonkStatus vonkMul_maTva_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2(n); 5x5 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_maTva_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2(n); 5x5 float, n below count; PS2, one pointer per element position,
 * strided objects. */
VonkStatus vonkMul_maTva_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2(n); 5x5 float, n below count; L, one pointer per object. */
VonkStatus vonkMul_maTva_32f_5x5_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2(n); 5x5 float, n below count; LS2, one pointer per object, strided
 * elements. */
VonkStatus vonkMul_maTva_32f_5x5_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2(n); 6x6 float, n below count; standard layout. */
VonkStatus vonkMul_maTva_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2(n); 6x6 float, n below count; S2, strided elements. */
VonkStatus vonkMul_maTva_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2(n); 6x6 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_maTva_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2(n); 6x6 float, n below count; PS2, one pointer per element position,
 * strided objects. */
VonkStatus vonkMul_maTva_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2(n); 6x6 float, n below count; L, one pointer per object. */
VonkStatus vonkMul_maTva_32f_6x6_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2(n); 6x6 float, n below count; LS2, one pointer per object, strided
 * elements. */
VonkStatus vonkMul_maTva_32f_6x6_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstElemStride, uint32_t count);

/** dst(n) = matrix times vector src1(n)' src2(n); `rows` by `cols` double, n below count; standard layout. */
VonkStatus vonkMul_maTva_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *src2, int32_t src2ObjStride, uint32_t src2Len, double *dst, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2(n); `rows` by `cols` double, n below count; S2, strided elements. */
VonkStatus vonkMul_maTva_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, uint32_t src1Cols, uint32_t src1Rows, const double *src2, int32_t src2ObjStride,
    int32_t src2ElemStride, uint32_t src2Len, double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2(n); `rows` by `cols` double, n below count; P, one pointer per element
 * position. */
VonkStatus vonkMul_maTva_64f_P(const double *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const double *const *src2, int32_t src2Shift, uint32_t src2Len, double *const *dst, int32_t dstShift,
    uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2(n); `rows` by `cols` double, n below count; PS2, one pointer per element
 * position, strided objects. */
VonkStatus vonkMul_maTva_64f_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, uint32_t src2Len,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2(n); `rows` by `cols` double, n below count; L, one pointer per object. */
VonkStatus vonkMul_maTva_64f_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *const *src2, int32_t src2Shift, uint32_t src2Len, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2(n); `rows` by `cols` double, n below count; LS2, one pointer per object,
 * strided elements. */
VonkStatus vonkMul_maTva_64f_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, uint32_t src1Cols, uint32_t src1Rows, const double *const *src2, int32_t src2Shift,
    int32_t src2ElemStride, uint32_t src2Len, double *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2(n); 3x3 double, n below count; standard layout. */
VonkStatus vonkMul_maTva_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, double *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2(n); 3x3 double, n below count; S2, strided elements. */
VonkStatus vonkMul_maTva_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2(n); 3x3 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_maTva_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2(n); 3x3 double, n below count; PS2, one pointer per element position,
 * strided objects. */
VonkStatus vonkMul_maTva_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2(n); 3x3 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_maTva_64f_3x3_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2(n); 3x3 double, n below count; LS2, one pointer per object, strided
 * elements. */
VonkStatus vonkMul_maTva_64f_3x3_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2(n); 4x4 double, n below count; standard layout. */
VonkStatus vonkMul_maTva_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, double *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2(n); 4x4 double, n below count; S2, strided elements. */
VonkStatus vonkMul_maTva_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2(n); 4x4 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_maTva_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2(n); 4x4 double, n below count; PS2, one pointer per element position,
 * strided objects. */
VonkStatus vonkMul_maTva_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2(n); 4x4 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_maTva_64f_4x4_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2(n); 4x4 double, n below count; LS2, one pointer per object, strided
 * elements. */
VonkStatus vonkMul_maTva_64f_4x4_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2(n); 5x5 double, n below count; standard layout. */
VonkStatus vonkMul_maTva_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, double *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2(n); 5x5 double, n below count; S2, strided elements. */
VonkStatus vonkMul_maTva_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2(n); 5x5 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_maTva_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2(n); 5x5 double, n below count; PS2, one pointer per element position,
 * strided objects. */
VonkStatus vonkMul_maTva_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2(n); 5x5 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_maTva_64f_5x5_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2(n); 5x5 double, n below count; LS2, one pointer per object, strided
 * elements. */
VonkStatus vonkMul_maTva_64f_5x5_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2(n); 6x6 double, n below count; standard layout. */
VonkStatus vonkMul_maTva_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, double *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2(n); 6x6 double, n below count; S2, strided elements. */
VonkStatus vonkMul_maTva_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2(n); 6x6 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_maTva_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2(n); 6x6 double, n below count; PS2, one pointer per element position,
 * strided objects. */
VonkStatus vonkMul_maTva_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2(n); 6x6 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_maTva_64f_6x6_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = matrix times vector src1(n)' src2(n); 6x6 double, n below count; LS2, one pointer per object, strided
 * elements. */
VonkStatus vonkMul_maTva_64f_6x6_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstElemStride, uint32_t count);

/* ---- Gaxpy ----------------------------------------------------------------------------------------------------------
 *
 * dst(n, i) = (sum over k of src1(i, k) src2(n, k)) + src3(n, i)
 *
 * for i below `rows` and k below `cols`: a single matrix, a vector or an array of vectors. The sum is finished first,
 * as in matrix by vector, and `src3` is added last. `64f` in the standard layout and `S2` adds it to the unrounded sum.
 *
 * Status: vonkErrNullPtr if `src1`, `src2`, `src3` or `dst` is null; vonkErrSize if `cols` or `rows` is 0;
 * vonkErrNullPtr if a table or list entry is null: of `v` in `P` those of `src3` and `dst` before an element, those of
 * its terms as the sum reaches them, earlier elements and the partial sum being stored; of `va` in `P` and `PS2` all
 * four tables before anything else, even at `count` 0; in `L` and `LS2` when the object's turn comes. `count` 0 then
 * gives vonkOk.
 *
 * Overlap:
 * Overlap is not checked. `32f` of fixed size in the standard layout and `L` loads both vectors before it stores, so
 * `dst` may be `src2` or `src3`; elsewhere the partial sums that are stored to memory destroy what `dst` overlaps. With
 * disjoint operands the order of objects, elements and stores may be another, with the same results.
 *
 * Exceptions:
 * None.
 */

/** dst = src1 src2 + src3, matrix times vector plus vector; `rows` by `cols` float; standard layout. */
VonkStatus vonkGaxpy_v_32f(const float *src1, int32_t src1RowStride, const float *src2, const float *src3, float *dst,
    uint32_t cols, uint32_t rows);
/** dst = src1 src2 + src3, matrix times vector plus vector; `rows` by `cols` float; S2, strided elements. */
VonkStatus vonkGaxpy_v_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ElemStride, const float *src3, int32_t src3ElemStride, float *dst, int32_t dstElemStride, uint32_t cols,
    uint32_t rows);
/** dst = src1 src2 + src3, matrix times vector plus vector; `rows` by `cols` float; P, one pointer per element
 * position. */
VonkStatus vonkGaxpy_v_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    const float *const *src3, int32_t src3Shift, float *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows);
/** dst = src1 src2 + src3, matrix times vector plus vector; 3x3 float; standard layout. */
VonkStatus vonkGaxpy_v_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2, const float *src3,
    float *dst);
/** dst = src1 src2 + src3, matrix times vector plus vector; 3x3 float; S2, strided elements. */
VonkStatus vonkGaxpy_v_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ElemStride, const float *src3, int32_t src3ElemStride, float *dst, int32_t dstElemStride);
/** dst = src1 src2 + src3, matrix times vector plus vector; 3x3 float; P, one pointer per element position. */
VonkStatus vonkGaxpy_v_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, const float *const *src3, int32_t src3Shift, float *const *dst, int32_t dstShift);
/** dst = src1 src2 + src3, matrix times vector plus vector; 4x4 float; standard layout. */
VonkStatus vonkGaxpy_v_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2, const float *src3,
    float *dst);
/** dst = src1 src2 + src3, matrix times vector plus vector; 4x4 float; S2, strided elements. */
VonkStatus vonkGaxpy_v_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ElemStride, const float *src3, int32_t src3ElemStride, float *dst, int32_t dstElemStride);
/** dst = src1 src2 + src3, matrix times vector plus vector; 4x4 float; P, one pointer per element position. */
VonkStatus vonkGaxpy_v_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, const float *const *src3, int32_t src3Shift, float *const *dst, int32_t dstShift);
/** dst = src1 src2 + src3, matrix times vector plus vector; 5x5 float; standard layout. */
VonkStatus vonkGaxpy_v_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2, const float *src3,
    float *dst);
/** dst = src1 src2 + src3, matrix times vector plus vector; 5x5 float; S2, strided elements. */
VonkStatus vonkGaxpy_v_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ElemStride, const float *src3, int32_t src3ElemStride, float *dst, int32_t dstElemStride);
/** dst = src1 src2 + src3, matrix times vector plus vector; 5x5 float; P, one pointer per element position. */
VonkStatus vonkGaxpy_v_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, const float *const *src3, int32_t src3Shift, float *const *dst, int32_t dstShift);
/** dst = src1 src2 + src3, matrix times vector plus vector; 6x6 float; standard layout. */
VonkStatus vonkGaxpy_v_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2, const float *src3,
    float *dst);
/** dst = src1 src2 + src3, matrix times vector plus vector; 6x6 float; S2, strided elements. */
VonkStatus vonkGaxpy_v_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ElemStride, const float *src3, int32_t src3ElemStride, float *dst, int32_t dstElemStride);
/** dst = src1 src2 + src3, matrix times vector plus vector; 6x6 float; P, one pointer per element position. */
VonkStatus vonkGaxpy_v_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, const float *const *src3, int32_t src3Shift, float *const *dst, int32_t dstShift);

/** dst = src1 src2 + src3, matrix times vector plus vector; `rows` by `cols` double; standard layout. */
VonkStatus vonkGaxpy_v_64f(const double *src1, int32_t src1RowStride, const double *src2, const double *src3,
    double *dst, uint32_t cols, uint32_t rows);
/** dst = src1 src2 + src3, matrix times vector plus vector; `rows` by `cols` double; S2, strided elements. */
VonkStatus vonkGaxpy_v_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ElemStride, const double *src3, int32_t src3ElemStride, double *dst, int32_t dstElemStride,
    uint32_t cols, uint32_t rows);
/** dst = src1 src2 + src3, matrix times vector plus vector; `rows` by `cols` double; P, one pointer per element
 * position. */
VonkStatus vonkGaxpy_v_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2, int32_t src2Shift,
    const double *const *src3, int32_t src3Shift, double *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows);
/** dst = src1 src2 + src3, matrix times vector plus vector; 3x3 double; standard layout. */
VonkStatus vonkGaxpy_v_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2, const double *src3,
    double *dst);
/** dst = src1 src2 + src3, matrix times vector plus vector; 3x3 double; S2, strided elements. */
VonkStatus vonkGaxpy_v_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ElemStride, const double *src3, int32_t src3ElemStride, double *dst, int32_t dstElemStride);
/** dst = src1 src2 + src3, matrix times vector plus vector; 3x3 double; P, one pointer per element position. */
VonkStatus vonkGaxpy_v_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, const double *const *src3, int32_t src3Shift, double *const *dst, int32_t dstShift);
/** dst = src1 src2 + src3, matrix times vector plus vector; 4x4 double; standard layout. */
VonkStatus vonkGaxpy_v_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2, const double *src3,
    double *dst);
/** dst = src1 src2 + src3, matrix times vector plus vector; 4x4 double; S2, strided elements. */
VonkStatus vonkGaxpy_v_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ElemStride, const double *src3, int32_t src3ElemStride, double *dst, int32_t dstElemStride);
/** dst = src1 src2 + src3, matrix times vector plus vector; 4x4 double; P, one pointer per element position. */
VonkStatus vonkGaxpy_v_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, const double *const *src3, int32_t src3Shift, double *const *dst, int32_t dstShift);
/** dst = src1 src2 + src3, matrix times vector plus vector; 5x5 double; standard layout. */
VonkStatus vonkGaxpy_v_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2, const double *src3,
    double *dst);
/** dst = src1 src2 + src3, matrix times vector plus vector; 5x5 double; S2, strided elements. */
VonkStatus vonkGaxpy_v_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ElemStride, const double *src3, int32_t src3ElemStride, double *dst, int32_t dstElemStride);
/** dst = src1 src2 + src3, matrix times vector plus vector; 5x5 double; P, one pointer per element position. */
VonkStatus vonkGaxpy_v_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, const double *const *src3, int32_t src3Shift, double *const *dst, int32_t dstShift);
/** dst = src1 src2 + src3, matrix times vector plus vector; 6x6 double; standard layout. */
VonkStatus vonkGaxpy_v_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2, const double *src3,
    double *dst);
/** dst = src1 src2 + src3, matrix times vector plus vector; 6x6 double; S2, strided elements. */
VonkStatus vonkGaxpy_v_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ElemStride, const double *src3, int32_t src3ElemStride, double *dst, int32_t dstElemStride);
/** dst = src1 src2 + src3, matrix times vector plus vector; 6x6 double; P, one pointer per element position. */
VonkStatus vonkGaxpy_v_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, const double *const *src3, int32_t src3Shift, double *const *dst, int32_t dstShift);

/** dst(n) = src1 src2(n) + src3(n), matrix times vector plus vector; `rows` by `cols` float, n below count; standard
 * layout. */
VonkStatus vonkGaxpy_va_32f(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    const float *src3, int32_t src3ObjStride, float *dst, int32_t dstObjStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1 src2(n) + src3(n), matrix times vector plus vector; `rows` by `cols` float, n below count; S2, strided
 * elements. */
VonkStatus vonkGaxpy_va_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2ElemStride, const float *src3, int32_t src3ObjStride, int32_t src3ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1 src2(n) + src3(n), matrix times vector plus vector; `rows` by `cols` float, n below count; P, one
 * pointer per element position. */
VonkStatus vonkGaxpy_va_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    const float *const *src3, int32_t src3Shift, float *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1 src2(n) + src3(n), matrix times vector plus vector; `rows` by `cols` float, n below count; PS2, one
 * pointer per element position, strided objects. */
VonkStatus vonkGaxpy_va_32f_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, const float *const *src3, int32_t src3Shift, int32_t src3ObjStride,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1 src2(n) + src3(n), matrix times vector plus vector; `rows` by `cols` float, n below count; L, one
 * pointer per object. */
VonkStatus vonkGaxpy_va_32f_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    const float *const *src3, int32_t src3Shift, float *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1 src2(n) + src3(n), matrix times vector plus vector; `rows` by `cols` float, n below count; LS2, one
 * pointer per object, strided elements. */
VonkStatus vonkGaxpy_va_32f_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, const float *const *src3, int32_t src3Shift,
    int32_t src3ElemStride, float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1 src2(n) + src3(n), matrix times vector plus vector; 3x3 float, n below count; standard layout. */
VonkStatus vonkGaxpy_va_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    const float *src3, int32_t src3ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = src1 src2(n) + src3(n), matrix times vector plus vector; 3x3 float, n below count; S2, strided elements. */
VonkStatus vonkGaxpy_va_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2ElemStride, const float *src3, int32_t src3ObjStride, int32_t src3ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1 src2(n) + src3(n), matrix times vector plus vector; 3x3 float, n below count; P, one pointer per
 * element position. */
VonkStatus vonkGaxpy_va_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, const float *const *src3, int32_t src3Shift, float *const *dst, int32_t dstShift,
    uint32_t count);
/** dst(n) = src1 src2(n) + src3(n), matrix times vector plus vector; 3x3 float, n below count; PS2, one pointer per
 * element position, strided objects. */
VonkStatus vonkGaxpy_va_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, const float *const *src3, int32_t src3Shift, int32_t src3ObjStride,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = src1 src2(n) + src3(n), matrix times vector plus vector; 3x3 float, n below count; L, one pointer per
 * object. */
VonkStatus vonkGaxpy_va_32f_3x3_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    const float *const *src3, int32_t src3Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1 src2(n) + src3(n), matrix times vector plus vector; 3x3 float, n below count; LS2, one pointer per
 * object, strided elements. */
VonkStatus vonkGaxpy_va_32f_3x3_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, const float *const *src3, int32_t src3Shift,
    int32_t src3ElemStride, float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1 src2(n) + src3(n), matrix times vector plus vector; 4x4 float, n below count; standard layout. */
VonkStatus vonkGaxpy_va_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    const float *src3, int32_t src3ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = src1 src2(n) + src3(n), matrix times vector plus vector; 4x4 float, n below count; S2, strided elements. */
VonkStatus vonkGaxpy_va_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2ElemStride, const float *src3, int32_t src3ObjStride, int32_t src3ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1 src2(n) + src3(n), matrix times vector plus vector; 4x4 float, n below count; P, one pointer per
 * element position. */
VonkStatus vonkGaxpy_va_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, const float *const *src3, int32_t src3Shift, float *const *dst, int32_t dstShift,
    uint32_t count);
/** dst(n) = src1 src2(n) + src3(n), matrix times vector plus vector; 4x4 float, n below count; PS2, one pointer per
 * element position, strided objects. */
VonkStatus vonkGaxpy_va_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, const float *const *src3, int32_t src3Shift, int32_t src3ObjStride,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = src1 src2(n) + src3(n), matrix times vector plus vector; 4x4 float, n below count; L, one pointer per
 * object. */
VonkStatus vonkGaxpy_va_32f_4x4_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    const float *const *src3, int32_t src3Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1 src2(n) + src3(n), matrix times vector plus vector; 4x4 float, n below count; LS2, one pointer per
 * object, strided elements. */
VonkStatus vonkGaxpy_va_32f_4x4_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, const float *const *src3, int32_t src3Shift,
    int32_t src3ElemStride, float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1 src2(n) + src3(n), matrix times vector plus vector; 5x5 float, n below count; standard layout. */
VonkStatus vonkGaxpy_va_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    const float *src3, int32_t src3ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = src1 src2(n) + src3(n), matrix times vector plus vector; 5x5 float, n below count; S2, strided elements. */
VonkStatus vonkGaxpy_va_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2ElemStride, const float *src3, int32_t src3ObjStride, int32_t src3ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1 src2(n) + src3(n), matrix times vector plus vector; 5x5 float, n below count; P, one pointer per
 * element position. */
VonkStatus vonkGaxpy_va_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, const float *const *src3, int32_t src3Shift, float *const *dst, int32_t dstShift,
    uint32_t count);
/** dst(n) = src1 src2(n) + src3(n), matrix times vector plus vector; 5x5 float, n below count; PS2, one pointer per
 * element position, strided objects. */
VonkStatus vonkGaxpy_va_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, const float *const *src3, int32_t src3Shift, int32_t src3ObjStride,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = src1 src2(n) + src3(n), matrix times vector plus vector; 5x5 float, n below count; L, one pointer per
 * object. */
VonkStatus vonkGaxpy_va_32f_5x5_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    const float *const *src3, int32_t src3Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1 src2(n) + src3(n), matrix times vector plus vector; 5x5 float, n below count; LS2, one pointer per
 * object, strided elements. */
VonkStatus vonkGaxpy_va_32f_5x5_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, const float *const *src3, int32_t src3Shift,
    int32_t src3ElemStride, float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1 src2(n) + src3(n), matrix times vector plus vector; 6x6 float, n below count; standard layout. */
VonkStatus vonkGaxpy_va_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    const float *src3, int32_t src3ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = src1 src2(n) + src3(n), matrix times vector plus vector; 6x6 float, n below count; S2, strided elements. */
VonkStatus vonkGaxpy_va_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2ElemStride, const float *src3, int32_t src3ObjStride, int32_t src3ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1 src2(n) + src3(n), matrix times vector plus vector; 6x6 float, n below count; P, one pointer per
 * element position. */
VonkStatus vonkGaxpy_va_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, const float *const *src3, int32_t src3Shift, float *const *dst, int32_t dstShift,
    uint32_t count);
/** dst(n) = src1 src2(n) + src3(n), matrix times vector plus vector; 6x6 float, n below count; PS2, one pointer per
 * element position, strided objects. */
VonkStatus vonkGaxpy_va_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, const float *const *src3, int32_t src3Shift, int32_t src3ObjStride,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = src1 src2(n) + src3(n), matrix times vector plus vector; 6x6 float, n below count; L, one pointer per
 * object. */
VonkStatus vonkGaxpy_va_32f_6x6_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    const float *const *src3, int32_t src3Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1 src2(n) + src3(n), matrix times vector plus vector; 6x6 float, n below count; LS2, one pointer per
 * object, strided elements. */
VonkStatus vonkGaxpy_va_32f_6x6_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, const float *const *src3, int32_t src3Shift,
    int32_t src3ElemStride, float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);

/** dst(n) = src1 src2(n) + src3(n), matrix times vector plus vector; `rows` by `cols` double, n below count; standard
 * layout. */
VonkStatus vonkGaxpy_va_64f(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    const double *src3, int32_t src3ObjStride, double *dst, int32_t dstObjStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1 src2(n) + src3(n), matrix times vector plus vector; `rows` by `cols` double, n below count; S2,
 * strided elements. */
VonkStatus vonkGaxpy_va_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ObjStride, int32_t src2ElemStride, const double *src3, int32_t src3ObjStride, int32_t src3ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1 src2(n) + src3(n), matrix times vector plus vector; `rows` by `cols` double, n below count; P, one
 * pointer per element position. */
VonkStatus vonkGaxpy_va_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, const double *const *src3, int32_t src3Shift, double *const *dst, int32_t dstShift,
    uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1 src2(n) + src3(n), matrix times vector plus vector; `rows` by `cols` double, n below count; PS2, one
 * pointer per element position, strided objects. */
VonkStatus vonkGaxpy_va_64f_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, const double *const *src3, int32_t src3Shift, int32_t src3ObjStride,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1 src2(n) + src3(n), matrix times vector plus vector; `rows` by `cols` double, n below count; L, one
 * pointer per object. */
VonkStatus vonkGaxpy_va_64f_L(const double *src1, int32_t src1RowStride, const double *const *src2, int32_t src2Shift,
    const double *const *src3, int32_t src3Shift, double *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1 src2(n) + src3(n), matrix times vector plus vector; `rows` by `cols` double, n below count; LS2, one
 * pointer per object, strided elements. */
VonkStatus vonkGaxpy_va_64f_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, const double *const *src3, int32_t src3Shift,
    int32_t src3ElemStride, double *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1 src2(n) + src3(n), matrix times vector plus vector; 3x3 double, n below count; standard layout. */
VonkStatus vonkGaxpy_va_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    const double *src3, int32_t src3ObjStride, double *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = src1 src2(n) + src3(n), matrix times vector plus vector; 3x3 double, n below count; S2, strided elements.
 * */
VonkStatus vonkGaxpy_va_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, const double *src3, int32_t src3ObjStride,
    int32_t src3ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1 src2(n) + src3(n), matrix times vector plus vector; 3x3 double, n below count; P, one pointer per
 * element position. */
VonkStatus vonkGaxpy_va_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, const double *const *src3, int32_t src3Shift, double *const *dst, int32_t dstShift,
    uint32_t count);
/** dst(n) = src1 src2(n) + src3(n), matrix times vector plus vector; 3x3 double, n below count; PS2, one pointer per
 * element position, strided objects. */
VonkStatus vonkGaxpy_va_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, const double *const *src3, int32_t src3Shift, int32_t src3ObjStride,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = src1 src2(n) + src3(n), matrix times vector plus vector; 3x3 double, n below count; L, one pointer per
 * object. */
VonkStatus vonkGaxpy_va_64f_3x3_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, const double *const *src3, int32_t src3Shift, double *const *dst, int32_t dstShift,
    uint32_t count);
/** dst(n) = src1 src2(n) + src3(n), matrix times vector plus vector; 3x3 double, n below count; LS2, one pointer per
 * object, strided elements. */
VonkStatus vonkGaxpy_va_64f_3x3_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, const double *const *src3, int32_t src3Shift,
    int32_t src3ElemStride, double *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1 src2(n) + src3(n), matrix times vector plus vector; 4x4 double, n below count; standard layout. */
VonkStatus vonkGaxpy_va_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    const double *src3, int32_t src3ObjStride, double *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = src1 src2(n) + src3(n), matrix times vector plus vector; 4x4 double, n below count; S2, strided elements.
 * */
VonkStatus vonkGaxpy_va_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, const double *src3, int32_t src3ObjStride,
    int32_t src3ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1 src2(n) + src3(n), matrix times vector plus vector; 4x4 double, n below count; P, one pointer per
 * element position. */
VonkStatus vonkGaxpy_va_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, const double *const *src3, int32_t src3Shift, double *const *dst, int32_t dstShift,
    uint32_t count);
/** dst(n) = src1 src2(n) + src3(n), matrix times vector plus vector; 4x4 double, n below count; PS2, one pointer per
 * element position, strided objects. */
VonkStatus vonkGaxpy_va_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, const double *const *src3, int32_t src3Shift, int32_t src3ObjStride,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = src1 src2(n) + src3(n), matrix times vector plus vector; 4x4 double, n below count; L, one pointer per
 * object. */
VonkStatus vonkGaxpy_va_64f_4x4_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, const double *const *src3, int32_t src3Shift, double *const *dst, int32_t dstShift,
    uint32_t count);
/** dst(n) = src1 src2(n) + src3(n), matrix times vector plus vector; 4x4 double, n below count; LS2, one pointer per
 * object, strided elements. */
VonkStatus vonkGaxpy_va_64f_4x4_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, const double *const *src3, int32_t src3Shift,
    int32_t src3ElemStride, double *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1 src2(n) + src3(n), matrix times vector plus vector; 5x5 double, n below count; standard layout. */
VonkStatus vonkGaxpy_va_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    const double *src3, int32_t src3ObjStride, double *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = src1 src2(n) + src3(n), matrix times vector plus vector; 5x5 double, n below count; S2, strided elements.
 * */
VonkStatus vonkGaxpy_va_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, const double *src3, int32_t src3ObjStride,
    int32_t src3ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1 src2(n) + src3(n), matrix times vector plus vector; 5x5 double, n below count; P, one pointer per
 * element position. */
VonkStatus vonkGaxpy_va_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, const double *const *src3, int32_t src3Shift, double *const *dst, int32_t dstShift,
    uint32_t count);
/** dst(n) = src1 src2(n) + src3(n), matrix times vector plus vector; 5x5 double, n below count; PS2, one pointer per
 * element position, strided objects. */
VonkStatus vonkGaxpy_va_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, const double *const *src3, int32_t src3Shift, int32_t src3ObjStride,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = src1 src2(n) + src3(n), matrix times vector plus vector; 5x5 double, n below count; L, one pointer per
 * object. */
VonkStatus vonkGaxpy_va_64f_5x5_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, const double *const *src3, int32_t src3Shift, double *const *dst, int32_t dstShift,
    uint32_t count);
/** dst(n) = src1 src2(n) + src3(n), matrix times vector plus vector; 5x5 double, n below count; LS2, one pointer per
 * object, strided elements. */
VonkStatus vonkGaxpy_va_64f_5x5_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, const double *const *src3, int32_t src3Shift,
    int32_t src3ElemStride, double *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1 src2(n) + src3(n), matrix times vector plus vector; 6x6 double, n below count; standard layout. */
VonkStatus vonkGaxpy_va_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    const double *src3, int32_t src3ObjStride, double *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = src1 src2(n) + src3(n), matrix times vector plus vector; 6x6 double, n below count; S2, strided elements.
 * */
VonkStatus vonkGaxpy_va_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, const double *src3, int32_t src3ObjStride,
    int32_t src3ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1 src2(n) + src3(n), matrix times vector plus vector; 6x6 double, n below count; P, one pointer per
 * element position. */
VonkStatus vonkGaxpy_va_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, const double *const *src3, int32_t src3Shift, double *const *dst, int32_t dstShift,
    uint32_t count);
/** dst(n) = src1 src2(n) + src3(n), matrix times vector plus vector; 6x6 double, n below count; PS2, one pointer per
 * element position, strided objects. */
VonkStatus vonkGaxpy_va_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, const double *const *src3, int32_t src3Shift, int32_t src3ObjStride,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = src1 src2(n) + src3(n), matrix times vector plus vector; 6x6 double, n below count; L, one pointer per
 * object. */
VonkStatus vonkGaxpy_va_64f_6x6_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, const double *const *src3, int32_t src3Shift, double *const *dst, int32_t dstShift,
    uint32_t count);
/** dst(n) = src1 src2(n) + src3(n), matrix times vector plus vector; 6x6 double, n below count; LS2, one pointer per
 * object, strided elements. */
VonkStatus vonkGaxpy_va_64f_6x6_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, const double *const *src3, int32_t src3Shift,
    int32_t src3ElemStride, double *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);

#ifdef __cplusplus
}
#endif

#endif
