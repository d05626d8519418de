/* vonkk3: Matrix and matrix; Matrix times constant; Transpose; Trace; Frobenius norm. See vonkk3.h for names, layouts
 * and units.
 *
 * Generated from the catalogue of functions; do not edit.
 */
#ifndef VONKK3_MATRIX_H
#define VONKK3_MATRIX_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Matrix and matrix ----------------------------------------------------------------------------------------------
 *
 * vonkAdd: dst(n, i, j) = A(n, i, j) + B(n, i, j)
 * vonkSub: dst(n, i, j) = A(n, i, j) - B(n, i, j)
 *
 * with A(n, i, j) = src1(n, i, j), or src1(n, j, i) if the first operand carries `T`, and B alike from `src2`. A single
 * operand serves all objects. One rounded operation and one store per element; `64f` adds in the 80-bit type and rounds
 * to 64 bits. Objects, rows and columns ascend. The arithmetic of an element does not depend on the alignment of
 * operands.
 *
 * Sizes: `cols` and `rows` are those of `dst`. A transposed operand is stored as `cols` rows of `rows` columns, in
 * pointer layouts too: its entry for A(i, j) is j * `rows` + i.
 *
 * Status: vonkErrNullPtr if `src1`, `src2` or `dst` is null; vonkErrSize if `cols` or `rows` is 0; vonkErrNullPtr if a
 * table or list entry is null: in single forms in `P` element by element, earlier elements being final; in `P` and
 * `PS2` of arrays all entries of all tables before anything else, even at `count` 0; in `L` and `LS2` when the object's
 * turn comes, earlier objects being complete. `count` 0 then gives vonkOk with nothing written.
 *
 * Overlap:
 * Overlap is not checked. `dst` may be any source (in place) unless that is read transposed: each element is read
 * before it is written. With any other overlap elements are read and written one by one in ascending order, so that a
 * source element which `dst` has overwritten by then is read as overwritten.
 *
 * Exceptions:
 * - sub-repeated-row (result): vonkSub_mTmT_32f_6x6
 *   Row 3 of `dst` repeats row 2.
 * - sub-other-elements (result): vonkSub_maTmaT_32f_6x6{,_L}
 *   Element (i, j) is src1(r, c) - src2(r, c), with r and c the digits in column j of row i: row 0 is 00 04 20 24 40
 *   44, row 1 is 01 05 21 25 41 45, rows 2 and 3 are 02 14 22 34 42 54, row 4 is 10 12 30 32 50 52, row 5 is 11 13 31
 *   33 51 53.
 * - sum-ignored-stride (arguments): vonk{Add,Sub}_mamT_32f_3x3{,_L}
 *   `src2RowStride` is ignored: the rows of `src2` lie `src1RowStride` apart.
 * - sum-count-zero (checks): vonk{Add,Sub}_{mam,mamT}_32f_3x3{,_L}
 *   `count` 0 is not checked: one object is computed and stored, as at `count` 1.
 * - sum-pipelined-entries (checks): vonk{Add,Sub}_{mam,mamT}_32f_3x3_L
 *   List entries are checked in another order: entry 0 of `src1` and entry `count` - 1 of `dst` before anything else,
 *   then the entries of object n + 1 before object n is stored. A null entry k leaves the objects below k - 1 complete.
 *   Entry 0 of `dst` is checked at `count` 1 alone, and else followed if null.
 * - sum-position-8 (checks): vonk{Add,Sub}_{mmT,mTm,mTmT}_{32f,64f}_4x4_P
 *   The entry at position 8 of a transposed operand's table is not checked; a null entry is followed.
 * - sum-software-pipelined (overlap): vonk{Add,Sub}_{mam,mamT}_32f_3x3{,_L}
 *   Software-pipelined: object n + 1 is loaded before object n is stored.
 * - sum-single-loaded-once (overlap): vonk{Add,Sub}_{mam,mamT,maTm,maTmT}_32f_{3x3,4x4}{,_L}
 *     vonkSub_{mma,mmaT,mTma,mTmaT}_32f_{3x3,4x4}{,_L}
 *   The single operand is loaded once, before all objects; a `dst` that overlaps it changes nothing for later objects.
 *   All other forms load it again for each object.
 * - sum-rows-loaded-first (overlap): vonk{Add,Sub}_m*_32f_?x?{,_L}
 *   A row or more of an object is loaded before it is stored; how much is not promised.
 * - sum-reads-next-element (reads): vonk{Add,Sub}_{maTm,mamT}_32f_3x3{,_L}
 *   The element past the end of each row of the transposed operand may be read. Its value does not matter.
 * - sum-entry-before-list (reads): vonk{Add,Sub}_{mam,mamT}_32f_3x3_L
 *   At `count` 0 entry 0 of `src1` is read, and of `dst` the entry before the list, through which one object is stored.
 */

/** dst = src1 + src2; `rows` by `cols` float; standard layout. */
VonkStatus vonkAdd_mm_32f(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride, uint32_t cols, uint32_t rows);
/** dst = src1 + src2; `rows` by `cols` float; S2, strided elements. */
VonkStatus vonkAdd_mm_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t cols, uint32_t rows);
/** dst = src1 + src2; `rows` by `cols` float; P, one pointer per element position. */
VonkStatus vonkAdd_mm_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows);
/** dst = src1 + src2; 3x3 float; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkAdd_mm_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
/** dst = src1 + src2; 3x3 float; S2, strided elements. */
VonkStatus vonkAdd_mm_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = src1 + src2; 3x3 float; P, one pointer per element position. */
VonkStatus vonkAdd_mm_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
/** dst = src1 + src2; 4x4 float; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkAdd_mm_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
/** dst = src1 + src2; 4x4 float; S2, strided elements. */
VonkStatus vonkAdd_mm_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = src1 + src2; 4x4 float; P, one pointer per element position. */
VonkStatus vonkAdd_mm_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
/** dst = src1 + src2; 5x5 float; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkAdd_mm_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
/** dst = src1 + src2; 5x5 float; S2, strided elements. */
VonkStatus vonkAdd_mm_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = src1 + src2; 5x5 float; P, one pointer per element position. */
VonkStatus vonkAdd_mm_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
/** dst = src1 + src2; 6x6 float; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkAdd_mm_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
/** dst = src1 + src2; 6x6 float; S2, strided elements. */
VonkStatus vonkAdd_mm_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = src1 + src2; 6x6 float; P, one pointer per element position. */
VonkStatus vonkAdd_mm_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);

/** dst = src1 + src2; `rows` by `cols` double; standard layout. */
VonkStatus vonkAdd_mm_64f(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride, uint32_t cols, uint32_t rows);
/** dst = src1 + src2; `rows` by `cols` double; S2, strided elements. */
VonkStatus vonkAdd_mm_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t cols, uint32_t rows);
/** dst = src1 + src2; `rows` by `cols` double; P, one pointer per element position. */
VonkStatus vonkAdd_mm_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2, int32_t src2Shift,
    double *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows);
/** dst = src1 + src2; 3x3 double; standard layout. */
VonkStatus vonkAdd_mm_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
/** dst = src1 + src2; 3x3 double; S2, strided elements. */
VonkStatus vonkAdd_mm_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = src1 + src2; 3x3 double; P, one pointer per element position. */
VonkStatus vonkAdd_mm_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
/** dst = src1 + src2; 4x4 double; standard layout. */
VonkStatus vonkAdd_mm_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
/** dst = src1 + src2; 4x4 double; S2, strided elements. */
VonkStatus vonkAdd_mm_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = src1 + src2; 4x4 double; P, one pointer per element position. */
VonkStatus vonkAdd_mm_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
/** dst = src1 + src2; 5x5 double; standard layout. */
VonkStatus vonkAdd_mm_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
/** dst = src1 + src2; 5x5 double; S2, strided elements. */
VonkStatus vonkAdd_mm_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = src1 + src2; 5x5 double; P, one pointer per element position. */
VonkStatus vonkAdd_mm_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
/** dst = src1 + src2; 6x6 double; standard layout. */
VonkStatus vonkAdd_mm_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
/** dst = src1 + src2; 6x6 double; S2, strided elements. */
VonkStatus vonkAdd_mm_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = src1 + src2; 6x6 double; P, one pointer per element position. */
VonkStatus vonkAdd_mm_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);

/** dst = src1 + src2'; `rows` by `cols` float; standard layout. */
VonkStatus vonkAdd_mmT_32f(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride, uint32_t cols, uint32_t rows);
/** dst = src1 + src2'; `rows` by `cols` float; S2, strided elements. */
VonkStatus vonkAdd_mmT_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t cols, uint32_t rows);
/** dst = src1 + src2'; `rows` by `cols` float; P, one pointer per element position. */
VonkStatus vonkAdd_mmT_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows);
/** dst = src1 + src2'; 3x3 float; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkAdd_mmT_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
/** dst = src1 + src2'; 3x3 float; S2, strided elements. */
VonkStatus vonkAdd_mmT_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = src1 + src2'; 3x3 float; P, one pointer per element position. */
VonkStatus vonkAdd_mmT_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
/** dst = src1 + src2'; 4x4 float; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkAdd_mmT_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
/** dst = src1 + src2'; 4x4 float; S2, strided elements. */
VonkStatus vonkAdd_mmT_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = src1 + src2'; 4x4 float; P, one pointer per element position. Exception: sum-position-8. */
VonkStatus vonkAdd_mmT_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
/** dst = src1 + src2'; 5x5 float; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkAdd_mmT_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
/** dst = src1 + src2'; 5x5 float; S2, strided elements. */
VonkStatus vonkAdd_mmT_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = src1 + src2'; 5x5 float; P, one pointer per element position. */
VonkStatus vonkAdd_mmT_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
/** dst = src1 + src2'; 6x6 float; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkAdd_mmT_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
/** dst = src1 + src2'; 6x6 float; S2, strided elements. */
VonkStatus vonkAdd_mmT_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = src1 + src2'; 6x6 float; P, one pointer per element position. */
VonkStatus vonkAdd_mmT_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);

/** dst = src1 + src2'; `rows` by `cols` double; standard layout. */
VonkStatus vonkAdd_mmT_64f(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride, uint32_t cols, uint32_t rows);
/** dst = src1 + src2'; `rows` by `cols` double; S2, strided elements. */
VonkStatus vonkAdd_mmT_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t cols, uint32_t rows);
/** dst = src1 + src2'; `rows` by `cols` double; P, one pointer per element position. */
VonkStatus vonkAdd_mmT_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2, int32_t src2Shift,
    double *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows);
/** dst = src1 + src2'; 3x3 double; standard layout. */
VonkStatus vonkAdd_mmT_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
/** dst = src1 + src2'; 3x3 double; S2, strided elements. */
VonkStatus vonkAdd_mmT_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = src1 + src2'; 3x3 double; P, one pointer per element position. */
VonkStatus vonkAdd_mmT_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
/** dst = src1 + src2'; 4x4 double; standard layout. */
VonkStatus vonkAdd_mmT_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
/** dst = src1 + src2'; 4x4 double; S2, strided elements. */
VonkStatus vonkAdd_mmT_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = src1 + src2'; 4x4 double; P, one pointer per element position. Exception: sum-position-8. */
VonkStatus vonkAdd_mmT_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
/** dst = src1 + src2'; 5x5 double; standard layout. */
VonkStatus vonkAdd_mmT_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
/** dst = src1 + src2'; 5x5 double; S2, strided elements. */
VonkStatus vonkAdd_mmT_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = src1 + src2'; 5x5 double; P, one pointer per element position. */
VonkStatus vonkAdd_mmT_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
/** dst = src1 + src2'; 6x6 double; standard layout. */
VonkStatus vonkAdd_mmT_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
/** dst = src1 + src2'; 6x6 double; S2, strided elements. */
VonkStatus vonkAdd_mmT_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = src1 + src2'; 6x6 double; P, one pointer per element position. */
VonkStatus vonkAdd_mmT_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);

/** dst = src1' + src2; `rows` by `cols` float; standard layout. */
VonkStatus vonkAdd_mTm_32f(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride, uint32_t cols, uint32_t rows);
/** dst = src1' + src2; `rows` by `cols` float; S2, strided elements. */
VonkStatus vonkAdd_mTm_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t cols, uint32_t rows);
/** dst = src1' + src2; `rows` by `cols` float; P, one pointer per element position. */
VonkStatus vonkAdd_mTm_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows);
/** dst = src1' + src2; 3x3 float; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkAdd_mTm_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
/** dst = src1' + src2; 3x3 float; S2, strided elements. */
VonkStatus vonkAdd_mTm_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = src1' + src2; 3x3 float; P, one pointer per element position. */
VonkStatus vonkAdd_mTm_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
/** dst = src1' + src2; 4x4 float; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkAdd_mTm_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
/** dst = src1' + src2; 4x4 float; S2, strided elements. */
VonkStatus vonkAdd_mTm_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = src1' + src2; 4x4 float; P, one pointer per element position. Exception: sum-position-8. */
VonkStatus vonkAdd_mTm_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
/** dst = src1' + src2; 5x5 float; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkAdd_mTm_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
/** dst = src1' + src2; 5x5 float; S2, strided elements. */
VonkStatus vonkAdd_mTm_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = src1' + src2; 5x5 float; P, one pointer per element position. */
VonkStatus vonkAdd_mTm_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
/** dst = src1' + src2; 6x6 float; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkAdd_mTm_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
/** dst = src1' + src2; 6x6 float; S2, strided elements. */
VonkStatus vonkAdd_mTm_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = src1' + src2; 6x6 float; P, one pointer per element position. */
VonkStatus vonkAdd_mTm_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);

/** dst = src1' + src2; `rows` by `cols` double; standard layout. */
VonkStatus vonkAdd_mTm_64f(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride, uint32_t cols, uint32_t rows);
/** dst = src1' + src2; `rows` by `cols` double; S2, strided elements. */
VonkStatus vonkAdd_mTm_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t cols, uint32_t rows);
/** dst = src1' + src2; `rows` by `cols` double; P, one pointer per element position. */
VonkStatus vonkAdd_mTm_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2, int32_t src2Shift,
    double *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows);
/** dst = src1' + src2; 3x3 double; standard layout. */
VonkStatus vonkAdd_mTm_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
/** dst = src1' + src2; 3x3 double; S2, strided elements. */
VonkStatus vonkAdd_mTm_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = src1' + src2; 3x3 double; P, one pointer per element position. */
VonkStatus vonkAdd_mTm_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
/** dst = src1' + src2; 4x4 double; standard layout. */
VonkStatus vonkAdd_mTm_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
/** dst = src1' + src2; 4x4 double; S2, strided elements. */
VonkStatus vonkAdd_mTm_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = src1' + src2; 4x4 double; P, one pointer per element position. Exception: sum-position-8. */
VonkStatus vonkAdd_mTm_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
/** dst = src1' + src2; 5x5 double; standard layout. */
VonkStatus vonkAdd_mTm_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
/** dst = src1' + src2; 5x5 double; S2, strided elements. */
VonkStatus vonkAdd_mTm_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = src1' + src2; 5x5 double; P, one pointer per element position. */
VonkStatus vonkAdd_mTm_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
/** dst = src1' + src2; 6x6 double; standard layout. */
VonkStatus vonkAdd_mTm_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
/** dst = src1' + src2; 6x6 double; S2, strided elements. */
VonkStatus vonkAdd_mTm_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = src1' + src2; 6x6 double; P, one pointer per element position. */
VonkStatus vonkAdd_mTm_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);

/** dst = src1' + src2'; `rows` by `cols` float; standard layout. */
VonkStatus vonkAdd_mTmT_32f(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride, uint32_t cols, uint32_t rows);
/** dst = src1' + src2'; `rows` by `cols` float; S2, strided elements. */
VonkStatus vonkAdd_mTmT_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t cols, uint32_t rows);
/** dst = src1' + src2'; `rows` by `cols` float; P, one pointer per element position. */
VonkStatus vonkAdd_mTmT_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows);
/** dst = src1' + src2'; 3x3 float; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkAdd_mTmT_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
/** dst = src1' + src2'; 3x3 float; S2, strided elements. */
VonkStatus vonkAdd_mTmT_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = src1' + src2'; 3x3 float; P, one pointer per element position. */
VonkStatus vonkAdd_mTmT_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
/** dst = src1' + src2'; 4x4 float; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkAdd_mTmT_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
/** dst = src1' + src2'; 4x4 float; S2, strided elements. */
VonkStatus vonkAdd_mTmT_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = src1' + src2'; 4x4 float; P, one pointer per element position. Exception: sum-position-8. */
VonkStatus vonkAdd_mTmT_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
/** dst = src1' + src2'; 5x5 float; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkAdd_mTmT_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
/** dst = src1' + src2'; 5x5 float; S2, strided elements. */
VonkStatus vonkAdd_mTmT_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = src1' + src2'; 5x5 float; P, one pointer per element position. */
VonkStatus vonkAdd_mTmT_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
/** dst = src1' + src2'; 6x6 float; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkAdd_mTmT_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
/** dst = src1' + src2'; 6x6 float; S2, strided elements. */
VonkStatus vonkAdd_mTmT_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = src1' + src2'; 6x6 float; P, one pointer per element position. */
VonkStatus vonkAdd_mTmT_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);

/** dst = src1' + src2'; `rows` by `cols` double; standard layout. */
VonkStatus vonkAdd_mTmT_64f(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride, uint32_t cols, uint32_t rows);
/** dst = src1' + src2'; `rows` by `cols` double; S2, strided elements. */
VonkStatus vonkAdd_mTmT_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t cols, uint32_t rows);
/** dst = src1' + src2'; `rows` by `cols` double; P, one pointer per element position. */
VonkStatus vonkAdd_mTmT_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows);
/** dst = src1' + src2'; 3x3 double; standard layout. */
VonkStatus vonkAdd_mTmT_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
/** dst = src1' + src2'; 3x3 double; S2, strided elements. */
VonkStatus vonkAdd_mTmT_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
    int32_t dstElemStride);
/** dst = src1' + src2'; 3x3 double; P, one pointer per element position. */
VonkStatus vonkAdd_mTmT_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
/** dst = src1' + src2'; 4x4 double; standard layout. */
VonkStatus vonkAdd_mTmT_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
/** dst = src1' + src2'; 4x4 double; S2, strided elements. */
VonkStatus vonkAdd_mTmT_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
    int32_t dstElemStride);
/** dst = src1' + src2'; 4x4 double; P, one pointer per element position. Exception: sum-position-8. */
VonkStatus vonkAdd_mTmT_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
/** dst = src1' + src2'; 5x5 double; standard layout. */
VonkStatus vonkAdd_mTmT_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
/** dst = src1' + src2'; 5x5 double; S2, strided elements. */
VonkStatus vonkAdd_mTmT_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
    int32_t dstElemStride);
/** dst = src1' + src2'; 5x5 double; P, one pointer per element position. */
VonkStatus vonkAdd_mTmT_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
/** dst = src1' + src2'; 6x6 double; standard layout. */
VonkStatus vonkAdd_mTmT_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
/** dst = src1' + src2'; 6x6 double; S2, strided elements. */
VonkStatus vonkAdd_mTmT_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
    int32_t dstElemStride);
/** dst = src1' + src2'; 6x6 double; P, one pointer per element position. */
VonkStatus vonkAdd_mTmT_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);

/** dst(n) = src1(n) + src2; `rows` by `cols` float, n below count; standard layout. */
VonkStatus vonkAdd_mam_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1(n) + src2; `rows` by `cols` float, n below count; S2, strided elements. */
VonkStatus vonkAdd_mam_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n) + src2; `rows` by `cols` float, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_mam_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n) + src2; `rows` by `cols` float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkAdd_mam_32f_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n) + src2; `rows` by `cols` float, n below count; L, one pointer per object. */
VonkStatus vonkAdd_mam_32f_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1(n) + src2; `rows` by `cols` float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_mam_32f_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n) + src2; 3x3 float, n below count; standard layout. Exceptions: sum-count-zero,
 * sum-software-pipelined, sum-single-loaded-once, sum-rows-loaded-first. */
VonkStatus vonkAdd_mam_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) + src2; 3x3 float, n below count; S2, strided elements. */
VonkStatus vonkAdd_mam_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) + src2; 3x3 float, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_mam_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) + src2; 3x3 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_mam_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n) + src2; 3x3 float, n below count; L, one pointer per object. Exceptions: sum-count-zero,
 * sum-pipelined-entries, sum-software-pipelined, sum-single-loaded-once, sum-rows-loaded-first, sum-entry-before-list.
 * */
VonkStatus vonkAdd_mam_32f_3x3_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) + src2; 3x3 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_mam_32f_3x3_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) + src2; 4x4 float, n below count; standard layout. Exceptions: sum-single-loaded-once,
 * sum-rows-loaded-first. */
VonkStatus vonkAdd_mam_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) + src2; 4x4 float, n below count; S2, strided elements. */
VonkStatus vonkAdd_mam_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) + src2; 4x4 float, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_mam_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) + src2; 4x4 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_mam_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n) + src2; 4x4 float, n below count; L, one pointer per object. Exceptions: sum-single-loaded-once,
 * sum-rows-loaded-first. */
VonkStatus vonkAdd_mam_32f_4x4_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) + src2; 4x4 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_mam_32f_4x4_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) + src2; 5x5 float, n below count; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkAdd_mam_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) + src2; 5x5 float, n below count; S2, strided elements. */
VonkStatus vonkAdd_mam_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) + src2; 5x5 float, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_mam_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) + src2; 5x5 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_mam_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n) + src2; 5x5 float, n below count; L, one pointer per object. Exception: sum-rows-loaded-first. */
VonkStatus vonkAdd_mam_32f_5x5_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) + src2; 5x5 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_mam_32f_5x5_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) + src2; 6x6 float, n below count; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkAdd_mam_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) + src2; 6x6 float, n below count; S2, strided elements. */
VonkStatus vonkAdd_mam_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) + src2; 6x6 float, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_mam_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) + src2; 6x6 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_mam_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n) + src2; 6x6 float, n below count; L, one pointer per object. Exception: sum-rows-loaded-first. */
VonkStatus vonkAdd_mam_32f_6x6_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) + src2; 6x6 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_mam_32f_6x6_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

/** dst(n) = src1(n) + src2; `rows` by `cols` double, n below count; standard layout. */
VonkStatus vonkAdd_mam_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1(n) + src2; `rows` by `cols` double, n below count; S2, strided elements. */
VonkStatus vonkAdd_mam_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n) + src2; `rows` by `cols` double, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_mam_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2, int32_t src2Shift,
    double *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n) + src2; `rows` by `cols` double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkAdd_mam_64f_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n) + src2; `rows` by `cols` double, n below count; L, one pointer per object. */
VonkStatus vonkAdd_mam_64f_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1(n) + src2; `rows` by `cols` double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_mam_64f_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n) + src2; 3x3 double, n below count; standard layout. */
VonkStatus vonkAdd_mam_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) + src2; 3x3 double, n below count; S2, strided elements. */
VonkStatus vonkAdd_mam_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) + src2; 3x3 double, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_mam_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) + src2; 3x3 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_mam_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n) + src2; 3x3 double, n below count; L, one pointer per object. */
VonkStatus vonkAdd_mam_64f_3x3_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n) + src2; 3x3 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_mam_64f_3x3_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) + src2; 4x4 double, n below count; standard layout. */
VonkStatus vonkAdd_mam_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) + src2; 4x4 double, n below count; S2, strided elements. */
VonkStatus vonkAdd_mam_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) + src2; 4x4 double, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_mam_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) + src2; 4x4 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_mam_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n) + src2; 4x4 double, n below count; L, one pointer per object. */
VonkStatus vonkAdd_mam_64f_4x4_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n) + src2; 4x4 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_mam_64f_4x4_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) + src2; 5x5 double, n below count; standard layout. */
VonkStatus vonkAdd_mam_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) + src2; 5x5 double, n below count; S2, strided elements. */
VonkStatus vonkAdd_mam_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) + src2; 5x5 double, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_mam_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) + src2; 5x5 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_mam_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n) + src2; 5x5 double, n below count; L, one pointer per object. */
VonkStatus vonkAdd_mam_64f_5x5_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n) + src2; 5x5 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_mam_64f_5x5_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) + src2; 6x6 double, n below count; standard layout. */
VonkStatus vonkAdd_mam_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) + src2; 6x6 double, n below count; S2, strided elements. */
VonkStatus vonkAdd_mam_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) + src2; 6x6 double, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_mam_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) + src2; 6x6 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_mam_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n) + src2; 6x6 double, n below count; L, one pointer per object. */
VonkStatus vonkAdd_mam_64f_6x6_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n) + src2; 6x6 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_mam_64f_6x6_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

/** dst(n) = src1(n) + src2'; `rows` by `cols` float, n below count; standard layout. */
VonkStatus vonkAdd_mamT_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1(n) + src2'; `rows` by `cols` float, n below count; S2, strided elements. */
VonkStatus vonkAdd_mamT_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n) + src2'; `rows` by `cols` float, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_mamT_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n) + src2'; `rows` by `cols` float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkAdd_mamT_32f_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n) + src2'; `rows` by `cols` float, n below count; L, one pointer per object. */
VonkStatus vonkAdd_mamT_32f_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1(n) + src2'; `rows` by `cols` float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_mamT_32f_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n) + src2'; 3x3 float, n below count; standard layout. Exceptions: sum-ignored-stride, sum-count-zero,
 * sum-software-pipelined, sum-single-loaded-once, sum-rows-loaded-first, sum-reads-next-element. */
VonkStatus vonkAdd_mamT_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) + src2'; 3x3 float, n below count; S2, strided elements. */
VonkStatus vonkAdd_mamT_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) + src2'; 3x3 float, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_mamT_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) + src2'; 3x3 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_mamT_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n) + src2'; 3x3 float, n below count; L, one pointer per object. Exceptions: sum-ignored-stride,
 * sum-count-zero, sum-pipelined-entries, sum-software-pipelined, sum-single-loaded-once, sum-rows-loaded-first,
 * sum-reads-next-element, sum-entry-before-list. */
VonkStatus vonkAdd_mamT_32f_3x3_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) + src2'; 3x3 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_mamT_32f_3x3_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) + src2'; 4x4 float, n below count; standard layout. Exceptions: sum-single-loaded-once,
 * sum-rows-loaded-first. */
VonkStatus vonkAdd_mamT_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) + src2'; 4x4 float, n below count; S2, strided elements. */
VonkStatus vonkAdd_mamT_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) + src2'; 4x4 float, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_mamT_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) + src2'; 4x4 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_mamT_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n) + src2'; 4x4 float, n below count; L, one pointer per object. Exceptions: sum-single-loaded-once,
 * sum-rows-loaded-first. */
VonkStatus vonkAdd_mamT_32f_4x4_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) + src2'; 4x4 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_mamT_32f_4x4_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) + src2'; 5x5 float, n below count; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkAdd_mamT_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) + src2'; 5x5 float, n below count; S2, strided elements. */
VonkStatus vonkAdd_mamT_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) + src2'; 5x5 float, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_mamT_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) + src2'; 5x5 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_mamT_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n) + src2'; 5x5 float, n below count; L, one pointer per object. Exception: sum-rows-loaded-first. */
VonkStatus vonkAdd_mamT_32f_5x5_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) + src2'; 5x5 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_mamT_32f_5x5_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) + src2'; 6x6 float, n below count; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkAdd_mamT_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) + src2'; 6x6 float, n below count; S2, strided elements. */
VonkStatus vonkAdd_mamT_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) + src2'; 6x6 float, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_mamT_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) + src2'; 6x6 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_mamT_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n) + src2'; 6x6 float, n below count; L, one pointer per object. Exception: sum-rows-loaded-first. */
VonkStatus vonkAdd_mamT_32f_6x6_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) + src2'; 6x6 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_mamT_32f_6x6_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

/** dst(n) = src1(n) + src2'; `rows` by `cols` double, n below count; standard layout. */
VonkStatus vonkAdd_mamT_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1(n) + src2'; `rows` by `cols` double, n below count; S2, strided elements. */
VonkStatus vonkAdd_mamT_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n) + src2'; `rows` by `cols` double, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_mamT_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n) + src2'; `rows` by `cols` double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkAdd_mamT_64f_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n) + src2'; `rows` by `cols` double, n below count; L, one pointer per object. */
VonkStatus vonkAdd_mamT_64f_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1(n) + src2'; `rows` by `cols` double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_mamT_64f_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n) + src2'; 3x3 double, n below count; standard layout. */
VonkStatus vonkAdd_mamT_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) + src2'; 3x3 double, n below count; S2, strided elements. */
VonkStatus vonkAdd_mamT_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) + src2'; 3x3 double, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_mamT_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) + src2'; 3x3 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_mamT_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n) + src2'; 3x3 double, n below count; L, one pointer per object. */
VonkStatus vonkAdd_mamT_64f_3x3_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n) + src2'; 3x3 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_mamT_64f_3x3_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) + src2'; 4x4 double, n below count; standard layout. */
VonkStatus vonkAdd_mamT_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) + src2'; 4x4 double, n below count; S2, strided elements. */
VonkStatus vonkAdd_mamT_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) + src2'; 4x4 double, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_mamT_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) + src2'; 4x4 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_mamT_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n) + src2'; 4x4 double, n below count; L, one pointer per object. */
VonkStatus vonkAdd_mamT_64f_4x4_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n) + src2'; 4x4 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_mamT_64f_4x4_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) + src2'; 5x5 double, n below count; standard layout. */
VonkStatus vonkAdd_mamT_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) + src2'; 5x5 double, n below count; S2, strided elements. */
VonkStatus vonkAdd_mamT_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) + src2'; 5x5 double, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_mamT_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) + src2'; 5x5 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_mamT_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n) + src2'; 5x5 double, n below count; L, one pointer per object. */
VonkStatus vonkAdd_mamT_64f_5x5_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n) + src2'; 5x5 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_mamT_64f_5x5_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) + src2'; 6x6 double, n below count; standard layout. */
VonkStatus vonkAdd_mamT_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) + src2'; 6x6 double, n below count; S2, strided elements. */
VonkStatus vonkAdd_mamT_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) + src2'; 6x6 double, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_mamT_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) + src2'; 6x6 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_mamT_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n) + src2'; 6x6 double, n below count; L, one pointer per object. */
VonkStatus vonkAdd_mamT_64f_6x6_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n) + src2'; 6x6 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_mamT_64f_6x6_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

/** dst(n) = src1(n)' + src2; `rows` by `cols` float, n below count; standard layout. */
VonkStatus vonkAdd_maTm_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1(n)' + src2; `rows` by `cols` float, n below count; S2, strided elements. */
VonkStatus vonkAdd_maTm_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n)' + src2; `rows` by `cols` float, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_maTm_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n)' + src2; `rows` by `cols` float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkAdd_maTm_32f_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n)' + src2; `rows` by `cols` float, n below count; L, one pointer per object. */
VonkStatus vonkAdd_maTm_32f_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1(n)' + src2; `rows` by `cols` float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_maTm_32f_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n)' + src2; 3x3 float, n below count; standard layout. Exceptions: sum-single-loaded-once,
 * sum-rows-loaded-first, sum-reads-next-element. */
VonkStatus vonkAdd_maTm_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n)' + src2; 3x3 float, n below count; S2, strided elements. */
VonkStatus vonkAdd_maTm_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' + src2; 3x3 float, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_maTm_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n)' + src2; 3x3 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_maTm_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n)' + src2; 3x3 float, n below count; L, one pointer per object. Exceptions: sum-single-loaded-once,
 * sum-rows-loaded-first, sum-reads-next-element. */
VonkStatus vonkAdd_maTm_32f_3x3_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n)' + src2; 3x3 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_maTm_32f_3x3_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' + src2; 4x4 float, n below count; standard layout. Exceptions: sum-single-loaded-once,
 * sum-rows-loaded-first. */
VonkStatus vonkAdd_maTm_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n)' + src2; 4x4 float, n below count; S2, strided elements. */
VonkStatus vonkAdd_maTm_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' + src2; 4x4 float, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_maTm_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n)' + src2; 4x4 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_maTm_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n)' + src2; 4x4 float, n below count; L, one pointer per object. Exceptions: sum-single-loaded-once,
 * sum-rows-loaded-first. */
VonkStatus vonkAdd_maTm_32f_4x4_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n)' + src2; 4x4 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_maTm_32f_4x4_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' + src2; 5x5 float, n below count; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkAdd_maTm_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n)' + src2; 5x5 float, n below count; S2, strided elements. */
VonkStatus vonkAdd_maTm_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' + src2; 5x5 float, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_maTm_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n)' + src2; 5x5 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_maTm_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n)' + src2; 5x5 float, n below count; L, one pointer per object. Exception: sum-rows-loaded-first. */
VonkStatus vonkAdd_maTm_32f_5x5_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n)' + src2; 5x5 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_maTm_32f_5x5_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' + src2; 6x6 float, n below count; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkAdd_maTm_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n)' + src2; 6x6 float, n below count; S2, strided elements. */
VonkStatus vonkAdd_maTm_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' + src2; 6x6 float, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_maTm_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n)' + src2; 6x6 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_maTm_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n)' + src2; 6x6 float, n below count; L, one pointer per object. Exception: sum-rows-loaded-first. */
VonkStatus vonkAdd_maTm_32f_6x6_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n)' + src2; 6x6 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_maTm_32f_6x6_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

/** dst(n) = src1(n)' + src2; `rows` by `cols` double, n below count; standard layout. */
VonkStatus vonkAdd_maTm_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1(n)' + src2; `rows` by `cols` double, n below count; S2, strided elements. */
VonkStatus vonkAdd_maTm_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n)' + src2; `rows` by `cols` double, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_maTm_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n)' + src2; `rows` by `cols` double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkAdd_maTm_64f_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n)' + src2; `rows` by `cols` double, n below count; L, one pointer per object. */
VonkStatus vonkAdd_maTm_64f_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1(n)' + src2; `rows` by `cols` double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_maTm_64f_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n)' + src2; 3x3 double, n below count; standard layout. */
VonkStatus vonkAdd_maTm_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n)' + src2; 3x3 double, n below count; S2, strided elements. */
VonkStatus vonkAdd_maTm_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' + src2; 3x3 double, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_maTm_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n)' + src2; 3x3 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_maTm_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n)' + src2; 3x3 double, n below count; L, one pointer per object. */
VonkStatus vonkAdd_maTm_64f_3x3_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n)' + src2; 3x3 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_maTm_64f_3x3_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' + src2; 4x4 double, n below count; standard layout. */
VonkStatus vonkAdd_maTm_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n)' + src2; 4x4 double, n below count; S2, strided elements. */
VonkStatus vonkAdd_maTm_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' + src2; 4x4 double, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_maTm_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n)' + src2; 4x4 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_maTm_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n)' + src2; 4x4 double, n below count; L, one pointer per object. */
VonkStatus vonkAdd_maTm_64f_4x4_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n)' + src2; 4x4 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_maTm_64f_4x4_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' + src2; 5x5 double, n below count; standard layout. */
VonkStatus vonkAdd_maTm_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n)' + src2; 5x5 double, n below count; S2, strided elements. */
VonkStatus vonkAdd_maTm_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' + src2; 5x5 double, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_maTm_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n)' + src2; 5x5 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_maTm_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n)' + src2; 5x5 double, n below count; L, one pointer per object. */
VonkStatus vonkAdd_maTm_64f_5x5_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n)' + src2; 5x5 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_maTm_64f_5x5_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' + src2; 6x6 double, n below count; standard layout. */
VonkStatus vonkAdd_maTm_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n)' + src2; 6x6 double, n below count; S2, strided elements. */
VonkStatus vonkAdd_maTm_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' + src2; 6x6 double, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_maTm_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n)' + src2; 6x6 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_maTm_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n)' + src2; 6x6 double, n below count; L, one pointer per object. */
VonkStatus vonkAdd_maTm_64f_6x6_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n)' + src2; 6x6 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_maTm_64f_6x6_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

/** dst(n) = src1(n)' + src2'; `rows` by `cols` float, n below count; standard layout. */
VonkStatus vonkAdd_maTmT_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1(n)' + src2'; `rows` by `cols` float, n below count; S2, strided elements. */
VonkStatus vonkAdd_maTmT_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n)' + src2'; `rows` by `cols` float, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_maTmT_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n)' + src2'; `rows` by `cols` float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkAdd_maTmT_32f_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n)' + src2'; `rows` by `cols` float, n below count; L, one pointer per object. */
VonkStatus vonkAdd_maTmT_32f_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1(n)' + src2'; `rows` by `cols` float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_maTmT_32f_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n)' + src2'; 3x3 float, n below count; standard layout. Exceptions: sum-single-loaded-once,
 * sum-rows-loaded-first. */
VonkStatus vonkAdd_maTmT_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n)' + src2'; 3x3 float, n below count; S2, strided elements. */
VonkStatus vonkAdd_maTmT_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' + src2'; 3x3 float, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_maTmT_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n)' + src2'; 3x3 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_maTmT_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n)' + src2'; 3x3 float, n below count; L, one pointer per object. Exceptions: sum-single-loaded-once,
 * sum-rows-loaded-first. */
VonkStatus vonkAdd_maTmT_32f_3x3_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *src2, int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n)' + src2'; 3x3 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_maTmT_32f_3x3_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' + src2'; 4x4 float, n below count; standard layout. Exceptions: sum-single-loaded-once,
 * sum-rows-loaded-first. */
VonkStatus vonkAdd_maTmT_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n)' + src2'; 4x4 float, n below count; S2, strided elements. */
VonkStatus vonkAdd_maTmT_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' + src2'; 4x4 float, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_maTmT_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n)' + src2'; 4x4 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_maTmT_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n)' + src2'; 4x4 float, n below count; L, one pointer per object. Exceptions: sum-single-loaded-once,
 * sum-rows-loaded-first. */
VonkStatus vonkAdd_maTmT_32f_4x4_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *src2, int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n)' + src2'; 4x4 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_maTmT_32f_4x4_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' + src2'; 5x5 float, n below count; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkAdd_maTmT_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n)' + src2'; 5x5 float, n below count; S2, strided elements. */
VonkStatus vonkAdd_maTmT_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' + src2'; 5x5 float, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_maTmT_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n)' + src2'; 5x5 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_maTmT_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n)' + src2'; 5x5 float, n below count; L, one pointer per object. Exception: sum-rows-loaded-first. */
VonkStatus vonkAdd_maTmT_32f_5x5_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *src2, int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n)' + src2'; 5x5 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_maTmT_32f_5x5_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' + src2'; 6x6 float, n below count; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkAdd_maTmT_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n)' + src2'; 6x6 float, n below count; S2, strided elements. */
VonkStatus vonkAdd_maTmT_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' + src2'; 6x6 float, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_maTmT_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n)' + src2'; 6x6 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_maTmT_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n)' + src2'; 6x6 float, n below count; L, one pointer per object. Exception: sum-rows-loaded-first. */
VonkStatus vonkAdd_maTmT_32f_6x6_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *src2, int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n)' + src2'; 6x6 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_maTmT_32f_6x6_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

/** dst(n) = src1(n)' + src2'; `rows` by `cols` double, n below count; standard layout. */
VonkStatus vonkAdd_maTmT_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1(n)' + src2'; `rows` by `cols` double, n below count; S2, strided elements. */
VonkStatus vonkAdd_maTmT_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n)' + src2'; `rows` by `cols` double, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_maTmT_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n)' + src2'; `rows` by `cols` double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkAdd_maTmT_64f_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n)' + src2'; `rows` by `cols` double, n below count; L, one pointer per object. */
VonkStatus vonkAdd_maTmT_64f_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1(n)' + src2'; `rows` by `cols` double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_maTmT_64f_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n)' + src2'; 3x3 double, n below count; standard layout. */
VonkStatus vonkAdd_maTmT_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n)' + src2'; 3x3 double, n below count; S2, strided elements. */
VonkStatus vonkAdd_maTmT_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' + src2'; 3x3 double, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_maTmT_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n)' + src2'; 3x3 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_maTmT_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n)' + src2'; 3x3 double, n below count; L, one pointer per object. */
VonkStatus vonkAdd_maTmT_64f_3x3_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n)' + src2'; 3x3 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_maTmT_64f_3x3_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' + src2'; 4x4 double, n below count; standard layout. */
VonkStatus vonkAdd_maTmT_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n)' + src2'; 4x4 double, n below count; S2, strided elements. */
VonkStatus vonkAdd_maTmT_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' + src2'; 4x4 double, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_maTmT_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n)' + src2'; 4x4 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_maTmT_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n)' + src2'; 4x4 double, n below count; L, one pointer per object. */
VonkStatus vonkAdd_maTmT_64f_4x4_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n)' + src2'; 4x4 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_maTmT_64f_4x4_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' + src2'; 5x5 double, n below count; standard layout. */
VonkStatus vonkAdd_maTmT_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n)' + src2'; 5x5 double, n below count; S2, strided elements. */
VonkStatus vonkAdd_maTmT_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' + src2'; 5x5 double, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_maTmT_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n)' + src2'; 5x5 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_maTmT_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n)' + src2'; 5x5 double, n below count; L, one pointer per object. */
VonkStatus vonkAdd_maTmT_64f_5x5_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n)' + src2'; 5x5 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_maTmT_64f_5x5_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' + src2'; 6x6 double, n below count; standard layout. */
VonkStatus vonkAdd_maTmT_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n)' + src2'; 6x6 double, n below count; S2, strided elements. */
VonkStatus vonkAdd_maTmT_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' + src2'; 6x6 double, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_maTmT_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n)' + src2'; 6x6 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_maTmT_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n)' + src2'; 6x6 double, n below count; L, one pointer per object. */
VonkStatus vonkAdd_maTmT_64f_6x6_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n)' + src2'; 6x6 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_maTmT_64f_6x6_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

/** dst(n) = src1(n) + src2(n); `rows` by `cols` float, n below count; standard layout. */
VonkStatus vonkAdd_mama_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t cols,
    uint32_t rows, uint32_t count);
/** dst(n) = src1(n) + src2(n); `rows` by `cols` float, n below count; S2, strided elements. */
VonkStatus vonkAdd_mama_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n) + src2(n); `rows` by `cols` float, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_mama_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n) + src2(n); `rows` by `cols` float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkAdd_mama_32f_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n) + src2(n); `rows` by `cols` float, n below count; L, one pointer per object. */
VonkStatus vonkAdd_mama_32f_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n) + src2(n); `rows` by `cols` float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_mama_32f_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1(n) + src2(n); 3x3 float, n below count; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkAdd_mama_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n) + src2(n); 3x3 float, n below count; S2, strided elements. */
VonkStatus vonkAdd_mama_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) + src2(n); 3x3 float, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_mama_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) + src2(n); 3x3 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_mama_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) + src2(n); 3x3 float, n below count; L, one pointer per object. Exception: sum-rows-loaded-first.
 * */
VonkStatus vonkAdd_mama_32f_3x3_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) + src2(n); 3x3 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_mama_32f_3x3_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) + src2(n); 4x4 float, n below count; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkAdd_mama_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n) + src2(n); 4x4 float, n below count; S2, strided elements. */
VonkStatus vonkAdd_mama_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) + src2(n); 4x4 float, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_mama_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) + src2(n); 4x4 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_mama_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) + src2(n); 4x4 float, n below count; L, one pointer per object. Exception: sum-rows-loaded-first.
 * */
VonkStatus vonkAdd_mama_32f_4x4_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) + src2(n); 4x4 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_mama_32f_4x4_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) + src2(n); 5x5 float, n below count; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkAdd_mama_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n) + src2(n); 5x5 float, n below count; S2, strided elements. */
VonkStatus vonkAdd_mama_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) + src2(n); 5x5 float, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_mama_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) + src2(n); 5x5 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_mama_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) + src2(n); 5x5 float, n below count; L, one pointer per object. Exception: sum-rows-loaded-first.
 * */
VonkStatus vonkAdd_mama_32f_5x5_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) + src2(n); 5x5 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_mama_32f_5x5_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) + src2(n); 6x6 float, n below count; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkAdd_mama_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n) + src2(n); 6x6 float, n below count; S2, strided elements. */
VonkStatus vonkAdd_mama_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) + src2(n); 6x6 float, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_mama_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) + src2(n); 6x6 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_mama_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) + src2(n); 6x6 float, n below count; L, one pointer per object. Exception: sum-rows-loaded-first.
 * */
VonkStatus vonkAdd_mama_32f_6x6_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) + src2(n); 6x6 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_mama_32f_6x6_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

/** dst(n) = src1(n) + src2(n); `rows` by `cols` double, n below count; standard layout. */
VonkStatus vonkAdd_mama_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n) + src2(n); `rows` by `cols` double, n below count; S2, strided elements. */
VonkStatus vonkAdd_mama_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n) + src2(n); `rows` by `cols` double, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_mama_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n) + src2(n); `rows` by `cols` double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkAdd_mama_64f_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n) + src2(n); `rows` by `cols` double, n below count; L, one pointer per object. */
VonkStatus vonkAdd_mama_64f_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n) + src2(n); `rows` by `cols` double, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkAdd_mama_64f_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1(n) + src2(n); 3x3 double, n below count; standard layout. */
VonkStatus vonkAdd_mama_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n) + src2(n); 3x3 double, n below count; S2, strided elements. */
VonkStatus vonkAdd_mama_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) + src2(n); 3x3 double, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_mama_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) + src2(n); 3x3 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_mama_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) + src2(n); 3x3 double, n below count; L, one pointer per object. */
VonkStatus vonkAdd_mama_64f_3x3_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) + src2(n); 3x3 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_mama_64f_3x3_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) + src2(n); 4x4 double, n below count; standard layout. */
VonkStatus vonkAdd_mama_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n) + src2(n); 4x4 double, n below count; S2, strided elements. */
VonkStatus vonkAdd_mama_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) + src2(n); 4x4 double, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_mama_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) + src2(n); 4x4 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_mama_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) + src2(n); 4x4 double, n below count; L, one pointer per object. */
VonkStatus vonkAdd_mama_64f_4x4_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) + src2(n); 4x4 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_mama_64f_4x4_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) + src2(n); 5x5 double, n below count; standard layout. */
VonkStatus vonkAdd_mama_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n) + src2(n); 5x5 double, n below count; S2, strided elements. */
VonkStatus vonkAdd_mama_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) + src2(n); 5x5 double, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_mama_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) + src2(n); 5x5 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_mama_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) + src2(n); 5x5 double, n below count; L, one pointer per object. */
VonkStatus vonkAdd_mama_64f_5x5_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) + src2(n); 5x5 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_mama_64f_5x5_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) + src2(n); 6x6 double, n below count; standard layout. */
VonkStatus vonkAdd_mama_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n) + src2(n); 6x6 double, n below count; S2, strided elements. */
VonkStatus vonkAdd_mama_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) + src2(n); 6x6 double, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_mama_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) + src2(n); 6x6 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_mama_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) + src2(n); 6x6 double, n below count; L, one pointer per object. */
VonkStatus vonkAdd_mama_64f_6x6_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) + src2(n); 6x6 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_mama_64f_6x6_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

/** dst(n) = src1(n) + src2(n)'; `rows` by `cols` float, n below count; standard layout. */
VonkStatus vonkAdd_mamaT_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t cols,
    uint32_t rows, uint32_t count);
/** dst(n) = src1(n) + src2(n)'; `rows` by `cols` float, n below count; S2, strided elements. */
VonkStatus vonkAdd_mamaT_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n) + src2(n)'; `rows` by `cols` float, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_mamaT_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n) + src2(n)'; `rows` by `cols` float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkAdd_mamaT_32f_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n) + src2(n)'; `rows` by `cols` float, n below count; L, one pointer per object. */
VonkStatus vonkAdd_mamaT_32f_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n) + src2(n)'; `rows` by `cols` float, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkAdd_mamaT_32f_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1(n) + src2(n)'; 3x3 float, n below count; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkAdd_mamaT_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n) + src2(n)'; 3x3 float, n below count; S2, strided elements. */
VonkStatus vonkAdd_mamaT_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) + src2(n)'; 3x3 float, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_mamaT_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) + src2(n)'; 3x3 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_mamaT_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) + src2(n)'; 3x3 float, n below count; L, one pointer per object. Exception: sum-rows-loaded-first.
 * */
VonkStatus vonkAdd_mamaT_32f_3x3_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) + src2(n)'; 3x3 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_mamaT_32f_3x3_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) + src2(n)'; 4x4 float, n below count; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkAdd_mamaT_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n) + src2(n)'; 4x4 float, n below count; S2, strided elements. */
VonkStatus vonkAdd_mamaT_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) + src2(n)'; 4x4 float, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_mamaT_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) + src2(n)'; 4x4 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_mamaT_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) + src2(n)'; 4x4 float, n below count; L, one pointer per object. Exception: sum-rows-loaded-first.
 * */
VonkStatus vonkAdd_mamaT_32f_4x4_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) + src2(n)'; 4x4 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_mamaT_32f_4x4_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) + src2(n)'; 5x5 float, n below count; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkAdd_mamaT_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n) + src2(n)'; 5x5 float, n below count; S2, strided elements. */
VonkStatus vonkAdd_mamaT_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) + src2(n)'; 5x5 float, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_mamaT_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) + src2(n)'; 5x5 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_mamaT_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) + src2(n)'; 5x5 float, n below count; L, one pointer per object. Exception: sum-rows-loaded-first.
 * */
VonkStatus vonkAdd_mamaT_32f_5x5_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) + src2(n)'; 5x5 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_mamaT_32f_5x5_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) + src2(n)'; 6x6 float, n below count; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkAdd_mamaT_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n) + src2(n)'; 6x6 float, n below count; S2, strided elements. */
VonkStatus vonkAdd_mamaT_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) + src2(n)'; 6x6 float, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_mamaT_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) + src2(n)'; 6x6 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_mamaT_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) + src2(n)'; 6x6 float, n below count; L, one pointer per object. Exception: sum-rows-loaded-first.
 * */
VonkStatus vonkAdd_mamaT_32f_6x6_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) + src2(n)'; 6x6 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_mamaT_32f_6x6_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

/** dst(n) = src1(n) + src2(n)'; `rows` by `cols` double, n below count; standard layout. */
VonkStatus vonkAdd_mamaT_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n) + src2(n)'; `rows` by `cols` double, n below count; S2, strided elements. */
VonkStatus vonkAdd_mamaT_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1(n) + src2(n)'; `rows` by `cols` double, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_mamaT_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n) + src2(n)'; `rows` by `cols` double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkAdd_mamaT_64f_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n) + src2(n)'; `rows` by `cols` double, n below count; L, one pointer per object. */
VonkStatus vonkAdd_mamaT_64f_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n) + src2(n)'; `rows` by `cols` double, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkAdd_mamaT_64f_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1(n) + src2(n)'; 3x3 double, n below count; standard layout. */
VonkStatus vonkAdd_mamaT_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n) + src2(n)'; 3x3 double, n below count; S2, strided elements. */
VonkStatus vonkAdd_mamaT_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) + src2(n)'; 3x3 double, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_mamaT_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) + src2(n)'; 3x3 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_mamaT_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) + src2(n)'; 3x3 double, n below count; L, one pointer per object. */
VonkStatus vonkAdd_mamaT_64f_3x3_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) + src2(n)'; 3x3 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_mamaT_64f_3x3_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) + src2(n)'; 4x4 double, n below count; standard layout. */
VonkStatus vonkAdd_mamaT_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n) + src2(n)'; 4x4 double, n below count; S2, strided elements. */
VonkStatus vonkAdd_mamaT_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) + src2(n)'; 4x4 double, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_mamaT_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) + src2(n)'; 4x4 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_mamaT_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) + src2(n)'; 4x4 double, n below count; L, one pointer per object. */
VonkStatus vonkAdd_mamaT_64f_4x4_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) + src2(n)'; 4x4 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_mamaT_64f_4x4_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) + src2(n)'; 5x5 double, n below count; standard layout. */
VonkStatus vonkAdd_mamaT_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n) + src2(n)'; 5x5 double, n below count; S2, strided elements. */
VonkStatus vonkAdd_mamaT_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) + src2(n)'; 5x5 double, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_mamaT_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) + src2(n)'; 5x5 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_mamaT_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) + src2(n)'; 5x5 double, n below count; L, one pointer per object. */
VonkStatus vonkAdd_mamaT_64f_5x5_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) + src2(n)'; 5x5 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_mamaT_64f_5x5_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) + src2(n)'; 6x6 double, n below count; standard layout. */
VonkStatus vonkAdd_mamaT_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n) + src2(n)'; 6x6 double, n below count; S2, strided elements. */
VonkStatus vonkAdd_mamaT_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) + src2(n)'; 6x6 double, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_mamaT_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) + src2(n)'; 6x6 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_mamaT_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) + src2(n)'; 6x6 double, n below count; L, one pointer per object. */
VonkStatus vonkAdd_mamaT_64f_6x6_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) + src2(n)'; 6x6 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_mamaT_64f_6x6_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

/** dst(n) = src1(n)' + src2(n); `rows` by `cols` float, n below count; standard layout. */
VonkStatus vonkAdd_maTma_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t cols,
    uint32_t rows, uint32_t count);
/** dst(n) = src1(n)' + src2(n); `rows` by `cols` float, n below count; S2, strided elements. */
VonkStatus vonkAdd_maTma_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n)' + src2(n); `rows` by `cols` float, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_maTma_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n)' + src2(n); `rows` by `cols` float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkAdd_maTma_32f_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n)' + src2(n); `rows` by `cols` float, n below count; L, one pointer per object. */
VonkStatus vonkAdd_maTma_32f_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n)' + src2(n); `rows` by `cols` float, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkAdd_maTma_32f_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1(n)' + src2(n); 3x3 float, n below count; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkAdd_maTma_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n)' + src2(n); 3x3 float, n below count; S2, strided elements. */
VonkStatus vonkAdd_maTma_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' + src2(n); 3x3 float, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_maTma_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n)' + src2(n); 3x3 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_maTma_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n)' + src2(n); 3x3 float, n below count; L, one pointer per object. Exception: sum-rows-loaded-first.
 * */
VonkStatus vonkAdd_maTma_32f_3x3_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n)' + src2(n); 3x3 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_maTma_32f_3x3_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' + src2(n); 4x4 float, n below count; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkAdd_maTma_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n)' + src2(n); 4x4 float, n below count; S2, strided elements. */
VonkStatus vonkAdd_maTma_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' + src2(n); 4x4 float, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_maTma_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n)' + src2(n); 4x4 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_maTma_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n)' + src2(n); 4x4 float, n below count; L, one pointer per object. Exception: sum-rows-loaded-first.
 * */
VonkStatus vonkAdd_maTma_32f_4x4_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n)' + src2(n); 4x4 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_maTma_32f_4x4_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' + src2(n); 5x5 float, n below count; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkAdd_maTma_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n)' + src2(n); 5x5 float, n below count; S2, strided elements. */
VonkStatus vonkAdd_maTma_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' + src2(n); 5x5 float, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_maTma_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n)' + src2(n); 5x5 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_maTma_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n)' + src2(n); 5x5 float, n below count; L, one pointer per object. Exception: sum-rows-loaded-first.
 * */
VonkStatus vonkAdd_maTma_32f_5x5_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n)' + src2(n); 5x5 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_maTma_32f_5x5_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' + src2(n); 6x6 float, n below count; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkAdd_maTma_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n)' + src2(n); 6x6 float, n below count; S2, strided elements. */
VonkStatus vonkAdd_maTma_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' + src2(n); 6x6 float, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_maTma_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n)' + src2(n); 6x6 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_maTma_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n)' + src2(n); 6x6 float, n below count; L, one pointer per object. Exception: sum-rows-loaded-first.
 * */
VonkStatus vonkAdd_maTma_32f_6x6_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n)' + src2(n); 6x6 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_maTma_32f_6x6_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

/** dst(n) = src1(n)' + src2(n); `rows` by `cols` double, n below count; standard layout. */
VonkStatus vonkAdd_maTma_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n)' + src2(n); `rows` by `cols` double, n below count; S2, strided elements. */
VonkStatus vonkAdd_maTma_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1(n)' + src2(n); `rows` by `cols` double, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_maTma_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n)' + src2(n); `rows` by `cols` double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkAdd_maTma_64f_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n)' + src2(n); `rows` by `cols` double, n below count; L, one pointer per object. */
VonkStatus vonkAdd_maTma_64f_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n)' + src2(n); `rows` by `cols` double, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkAdd_maTma_64f_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1(n)' + src2(n); 3x3 double, n below count; standard layout. */
VonkStatus vonkAdd_maTma_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n)' + src2(n); 3x3 double, n below count; S2, strided elements. */
VonkStatus vonkAdd_maTma_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' + src2(n); 3x3 double, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_maTma_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n)' + src2(n); 3x3 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_maTma_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n)' + src2(n); 3x3 double, n below count; L, one pointer per object. */
VonkStatus vonkAdd_maTma_64f_3x3_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n)' + src2(n); 3x3 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_maTma_64f_3x3_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' + src2(n); 4x4 double, n below count; standard layout. */
VonkStatus vonkAdd_maTma_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n)' + src2(n); 4x4 double, n below count; S2, strided elements. */
VonkStatus vonkAdd_maTma_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' + src2(n); 4x4 double, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_maTma_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n)' + src2(n); 4x4 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_maTma_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n)' + src2(n); 4x4 double, n below count; L, one pointer per object. */
VonkStatus vonkAdd_maTma_64f_4x4_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n)' + src2(n); 4x4 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_maTma_64f_4x4_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' + src2(n); 5x5 double, n below count; standard layout. */
VonkStatus vonkAdd_maTma_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n)' + src2(n); 5x5 double, n below count; S2, strided elements. */
VonkStatus vonkAdd_maTma_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' + src2(n); 5x5 double, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_maTma_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n)' + src2(n); 5x5 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_maTma_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n)' + src2(n); 5x5 double, n below count; L, one pointer per object. */
VonkStatus vonkAdd_maTma_64f_5x5_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n)' + src2(n); 5x5 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_maTma_64f_5x5_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' + src2(n); 6x6 double, n below count; standard layout. */
VonkStatus vonkAdd_maTma_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n)' + src2(n); 6x6 double, n below count; S2, strided elements. */
VonkStatus vonkAdd_maTma_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' + src2(n); 6x6 double, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_maTma_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n)' + src2(n); 6x6 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_maTma_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n)' + src2(n); 6x6 double, n below count; L, one pointer per object. */
VonkStatus vonkAdd_maTma_64f_6x6_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n)' + src2(n); 6x6 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_maTma_64f_6x6_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

/** dst(n) = src1(n)' + src2(n)'; `rows` by `cols` float, n below count; standard layout. */
VonkStatus vonkAdd_maTmaT_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t cols,
    uint32_t rows, uint32_t count);
/** dst(n) = src1(n)' + src2(n)'; `rows` by `cols` float, n below count; S2, strided elements. */
VonkStatus vonkAdd_maTmaT_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1(n)' + src2(n)'; `rows` by `cols` float, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_maTmaT_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n)' + src2(n)'; `rows` by `cols` float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkAdd_maTmaT_32f_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n)' + src2(n)'; `rows` by `cols` float, n below count; L, one pointer per object. */
VonkStatus vonkAdd_maTmaT_32f_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n)' + src2(n)'; `rows` by `cols` float, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkAdd_maTmaT_32f_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1(n)' + src2(n)'; 3x3 float, n below count; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkAdd_maTmaT_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n)' + src2(n)'; 3x3 float, n below count; S2, strided elements. */
VonkStatus vonkAdd_maTmaT_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' + src2(n)'; 3x3 float, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_maTmaT_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n)' + src2(n)'; 3x3 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_maTmaT_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n)' + src2(n)'; 3x3 float, n below count; L, one pointer per object. Exception: sum-rows-loaded-first.
 * */
VonkStatus vonkAdd_maTmaT_32f_3x3_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n)' + src2(n)'; 3x3 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_maTmaT_32f_3x3_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' + src2(n)'; 4x4 float, n below count; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkAdd_maTmaT_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n)' + src2(n)'; 4x4 float, n below count; S2, strided elements. */
VonkStatus vonkAdd_maTmaT_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' + src2(n)'; 4x4 float, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_maTmaT_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n)' + src2(n)'; 4x4 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_maTmaT_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n)' + src2(n)'; 4x4 float, n below count; L, one pointer per object. Exception: sum-rows-loaded-first.
 * */
VonkStatus vonkAdd_maTmaT_32f_4x4_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n)' + src2(n)'; 4x4 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_maTmaT_32f_4x4_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' + src2(n)'; 5x5 float, n below count; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkAdd_maTmaT_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n)' + src2(n)'; 5x5 float, n below count; S2, strided elements. */
VonkStatus vonkAdd_maTmaT_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' + src2(n)'; 5x5 float, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_maTmaT_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n)' + src2(n)'; 5x5 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_maTmaT_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n)' + src2(n)'; 5x5 float, n below count; L, one pointer per object. Exception: sum-rows-loaded-first.
 * */
VonkStatus vonkAdd_maTmaT_32f_5x5_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n)' + src2(n)'; 5x5 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_maTmaT_32f_5x5_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' + src2(n)'; 6x6 float, n below count; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkAdd_maTmaT_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n)' + src2(n)'; 6x6 float, n below count; S2, strided elements. */
VonkStatus vonkAdd_maTmaT_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' + src2(n)'; 6x6 float, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_maTmaT_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n)' + src2(n)'; 6x6 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_maTmaT_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n)' + src2(n)'; 6x6 float, n below count; L, one pointer per object. Exception: sum-rows-loaded-first.
 * */
VonkStatus vonkAdd_maTmaT_32f_6x6_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n)' + src2(n)'; 6x6 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_maTmaT_32f_6x6_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

/** dst(n) = src1(n)' + src2(n)'; `rows` by `cols` double, n below count; standard layout. */
VonkStatus vonkAdd_maTmaT_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n)' + src2(n)'; `rows` by `cols` double, n below count; S2, strided elements. */
VonkStatus vonkAdd_maTmaT_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1(n)' + src2(n)'; `rows` by `cols` double, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_maTmaT_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n)' + src2(n)'; `rows` by `cols` double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkAdd_maTmaT_64f_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n)' + src2(n)'; `rows` by `cols` double, n below count; L, one pointer per object. */
VonkStatus vonkAdd_maTmaT_64f_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n)' + src2(n)'; `rows` by `cols` double, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkAdd_maTmaT_64f_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1(n)' + src2(n)'; 3x3 double, n below count; standard layout. */
VonkStatus vonkAdd_maTmaT_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n)' + src2(n)'; 3x3 double, n below count; S2, strided elements. */
VonkStatus vonkAdd_maTmaT_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' + src2(n)'; 3x3 double, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_maTmaT_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n)' + src2(n)'; 3x3 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_maTmaT_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n)' + src2(n)'; 3x3 double, n below count; L, one pointer per object. */
VonkStatus vonkAdd_maTmaT_64f_3x3_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n)' + src2(n)'; 3x3 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_maTmaT_64f_3x3_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' + src2(n)'; 4x4 double, n below count; standard layout. */
VonkStatus vonkAdd_maTmaT_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n)' + src2(n)'; 4x4 double, n below count; S2, strided elements. */
VonkStatus vonkAdd_maTmaT_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' + src2(n)'; 4x4 double, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_maTmaT_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n)' + src2(n)'; 4x4 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_maTmaT_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n)' + src2(n)'; 4x4 double, n below count; L, one pointer per object. */
VonkStatus vonkAdd_maTmaT_64f_4x4_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n)' + src2(n)'; 4x4 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_maTmaT_64f_4x4_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' + src2(n)'; 5x5 double, n below count; standard layout. */
VonkStatus vonkAdd_maTmaT_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n)' + src2(n)'; 5x5 double, n below count; S2, strided elements. */
VonkStatus vonkAdd_maTmaT_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' + src2(n)'; 5x5 double, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_maTmaT_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n)' + src2(n)'; 5x5 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_maTmaT_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n)' + src2(n)'; 5x5 double, n below count; L, one pointer per object. */
VonkStatus vonkAdd_maTmaT_64f_5x5_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n)' + src2(n)'; 5x5 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_maTmaT_64f_5x5_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' + src2(n)'; 6x6 double, n below count; standard layout. */
VonkStatus vonkAdd_maTmaT_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n)' + src2(n)'; 6x6 double, n below count; S2, strided elements. */
VonkStatus vonkAdd_maTmaT_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' + src2(n)'; 6x6 double, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_maTmaT_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n)' + src2(n)'; 6x6 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_maTmaT_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n)' + src2(n)'; 6x6 double, n below count; L, one pointer per object. */
VonkStatus vonkAdd_maTmaT_64f_6x6_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n)' + src2(n)'; 6x6 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_maTmaT_64f_6x6_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

/** dst = src1 - src2; `rows` by `cols` float; standard layout. */
VonkStatus vonkSub_mm_32f(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride, uint32_t cols, uint32_t rows);
/** dst = src1 - src2; `rows` by `cols` float; S2, strided elements. */
VonkStatus vonkSub_mm_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t cols, uint32_t rows);
/** dst = src1 - src2; `rows` by `cols` float; P, one pointer per element position. */
VonkStatus vonkSub_mm_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows);
/** dst = src1 - src2; 3x3 float; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkSub_mm_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
/** dst = src1 - src2; 3x3 float; S2, strided elements. */
VonkStatus vonkSub_mm_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = src1 - src2; 3x3 float; P, one pointer per element position. */
VonkStatus vonkSub_mm_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
/** dst = src1 - src2; 4x4 float; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkSub_mm_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
/** dst = src1 - src2; 4x4 float; S2, strided elements. */
VonkStatus vonkSub_mm_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = src1 - src2; 4x4 float; P, one pointer per element position. */
VonkStatus vonkSub_mm_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
/** dst = src1 - src2; 5x5 float; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkSub_mm_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
/** dst = src1 - src2; 5x5 float; S2, strided elements. */
VonkStatus vonkSub_mm_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = src1 - src2; 5x5 float; P, one pointer per element position. */
VonkStatus vonkSub_mm_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
/** dst = src1 - src2; 6x6 float; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkSub_mm_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
/** dst = src1 - src2; 6x6 float; S2, strided elements. */
VonkStatus vonkSub_mm_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = src1 - src2; 6x6 float; P, one pointer per element position. */
VonkStatus vonkSub_mm_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);

/** dst = src1 - src2; `rows` by `cols` double; standard layout. */
VonkStatus vonkSub_mm_64f(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride, uint32_t cols, uint32_t rows);
/** dst = src1 - src2; `rows` by `cols` double; S2, strided elements. */
VonkStatus vonkSub_mm_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t cols, uint32_t rows);
/** dst = src1 - src2; `rows` by `cols` double; P, one pointer per element position. */
VonkStatus vonkSub_mm_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2, int32_t src2Shift,
    double *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows);
/** dst = src1 - src2; 3x3 double; standard layout. */
VonkStatus vonkSub_mm_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
/** dst = src1 - src2; 3x3 double; S2, strided elements. */
VonkStatus vonkSub_mm_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = src1 - src2; 3x3 double; P, one pointer per element position. */
VonkStatus vonkSub_mm_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
/** dst = src1 - src2; 4x4 double; standard layout. */
VonkStatus vonkSub_mm_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
/** dst = src1 - src2; 4x4 double; S2, strided elements. */
VonkStatus vonkSub_mm_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = src1 - src2; 4x4 double; P, one pointer per element position. */
VonkStatus vonkSub_mm_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
/** dst = src1 - src2; 5x5 double; standard layout. */
VonkStatus vonkSub_mm_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
/** dst = src1 - src2; 5x5 double; S2, strided elements. */
VonkStatus vonkSub_mm_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = src1 - src2; 5x5 double; P, one pointer per element position. */
VonkStatus vonkSub_mm_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
/** dst = src1 - src2; 6x6 double; standard layout. */
VonkStatus vonkSub_mm_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
/** dst = src1 - src2; 6x6 double; S2, strided elements. */
VonkStatus vonkSub_mm_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = src1 - src2; 6x6 double; P, one pointer per element position. */
VonkStatus vonkSub_mm_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);

/** dst = src1 - src2'; `rows` by `cols` float; standard layout. */
VonkStatus vonkSub_mmT_32f(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride, uint32_t cols, uint32_t rows);
/** dst = src1 - src2'; `rows` by `cols` float; S2, strided elements. */
VonkStatus vonkSub_mmT_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t cols, uint32_t rows);
/** dst = src1 - src2'; `rows` by `cols` float; P, one pointer per element position. */
VonkStatus vonkSub_mmT_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows);
/** dst = src1 - src2'; 3x3 float; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkSub_mmT_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
/** dst = src1 - src2'; 3x3 float; S2, strided elements. */
VonkStatus vonkSub_mmT_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = src1 - src2'; 3x3 float; P, one pointer per element position. */
VonkStatus vonkSub_mmT_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
/** dst = src1 - src2'; 4x4 float; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkSub_mmT_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
/** dst = src1 - src2'; 4x4 float; S2, strided elements. */
VonkStatus vonkSub_mmT_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = src1 - src2'; 4x4 float; P, one pointer per element position. Exception: sum-position-8. */
VonkStatus vonkSub_mmT_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
/** dst = src1 - src2'; 5x5 float; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkSub_mmT_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
/** dst = src1 - src2'; 5x5 float; S2, strided elements. */
VonkStatus vonkSub_mmT_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = src1 - src2'; 5x5 float; P, one pointer per element position. */
VonkStatus vonkSub_mmT_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
/** dst = src1 - src2'; 6x6 float; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkSub_mmT_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
/** dst = src1 - src2'; 6x6 float; S2, strided elements. */
VonkStatus vonkSub_mmT_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = src1 - src2'; 6x6 float; P, one pointer per element position. */
VonkStatus vonkSub_mmT_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);

/** dst = src1 - src2'; `rows` by `cols` double; standard layout. */
VonkStatus vonkSub_mmT_64f(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride, uint32_t cols, uint32_t rows);
/** dst = src1 - src2'; `rows` by `cols` double; S2, strided elements. */
VonkStatus vonkSub_mmT_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t cols, uint32_t rows);
/** dst = src1 - src2'; `rows` by `cols` double; P, one pointer per element position. */
VonkStatus vonkSub_mmT_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2, int32_t src2Shift,
    double *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows);
/** dst = src1 - src2'; 3x3 double; standard layout. */
VonkStatus vonkSub_mmT_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
/** dst = src1 - src2'; 3x3 double; S2, strided elements. */
VonkStatus vonkSub_mmT_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = src1 - src2'; 3x3 double; P, one pointer per element position. */
VonkStatus vonkSub_mmT_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
/** dst = src1 - src2'; 4x4 double; standard layout. */
VonkStatus vonkSub_mmT_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
/** dst = src1 - src2'; 4x4 double; S2, strided elements. */
VonkStatus vonkSub_mmT_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = src1 - src2'; 4x4 double; P, one pointer per element position. Exception: sum-position-8. */
VonkStatus vonkSub_mmT_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
/** dst = src1 - src2'; 5x5 double; standard layout. */
VonkStatus vonkSub_mmT_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
/** dst = src1 - src2'; 5x5 double; S2, strided elements. */
VonkStatus vonkSub_mmT_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = src1 - src2'; 5x5 double; P, one pointer per element position. */
VonkStatus vonkSub_mmT_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
/** dst = src1 - src2'; 6x6 double; standard layout. */
VonkStatus vonkSub_mmT_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
/** dst = src1 - src2'; 6x6 double; S2, strided elements. */
VonkStatus vonkSub_mmT_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = src1 - src2'; 6x6 double; P, one pointer per element position. */
VonkStatus vonkSub_mmT_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);

/** dst = src1' - src2; `rows` by `cols` float; standard layout. */
VonkStatus vonkSub_mTm_32f(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride, uint32_t cols, uint32_t rows);
/** dst = src1' - src2; `rows` by `cols` float; S2, strided elements. */
VonkStatus vonkSub_mTm_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t cols, uint32_t rows);
/** dst = src1' - src2; `rows` by `cols` float; P, one pointer per element position. */
VonkStatus vonkSub_mTm_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows);
/** dst = src1' - src2; 3x3 float; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkSub_mTm_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
/** dst = src1' - src2; 3x3 float; S2, strided elements. */
VonkStatus vonkSub_mTm_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = src1' - src2; 3x3 float; P, one pointer per element position. */
VonkStatus vonkSub_mTm_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
/** dst = src1' - src2; 4x4 float; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkSub_mTm_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
/** dst = src1' - src2; 4x4 float; S2, strided elements. */
VonkStatus vonkSub_mTm_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = src1' - src2; 4x4 float; P, one pointer per element position. Exception: sum-position-8. */
VonkStatus vonkSub_mTm_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
/** dst = src1' - src2; 5x5 float; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkSub_mTm_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
/** dst = src1' - src2; 5x5 float; S2, strided elements. */
VonkStatus vonkSub_mTm_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = src1' - src2; 5x5 float; P, one pointer per element position. */
VonkStatus vonkSub_mTm_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
/** dst = src1' - src2; 6x6 float; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkSub_mTm_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
/** dst = src1' - src2; 6x6 float; S2, strided elements. */
VonkStatus vonkSub_mTm_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = src1' - src2; 6x6 float; P, one pointer per element position. */
VonkStatus vonkSub_mTm_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);

/** dst = src1' - src2; `rows` by `cols` double; standard layout. */
VonkStatus vonkSub_mTm_64f(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride, uint32_t cols, uint32_t rows);
/** dst = src1' - src2; `rows` by `cols` double; S2, strided elements. */
VonkStatus vonkSub_mTm_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t cols, uint32_t rows);
/** dst = src1' - src2; `rows` by `cols` double; P, one pointer per element position. */
VonkStatus vonkSub_mTm_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2, int32_t src2Shift,
    double *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows);
/** dst = src1' - src2; 3x3 double; standard layout. */
VonkStatus vonkSub_mTm_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
/** dst = src1' - src2; 3x3 double; S2, strided elements. */
VonkStatus vonkSub_mTm_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = src1' - src2; 3x3 double; P, one pointer per element position. */
VonkStatus vonkSub_mTm_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
/** dst = src1' - src2; 4x4 double; standard layout. */
VonkStatus vonkSub_mTm_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
/** dst = src1' - src2; 4x4 double; S2, strided elements. */
VonkStatus vonkSub_mTm_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = src1' - src2; 4x4 double; P, one pointer per element position. Exception: sum-position-8. */
VonkStatus vonkSub_mTm_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
/** dst = src1' - src2; 5x5 double; standard layout. */
VonkStatus vonkSub_mTm_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
/** dst = src1' - src2; 5x5 double; S2, strided elements. */
VonkStatus vonkSub_mTm_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = src1' - src2; 5x5 double; P, one pointer per element position. */
VonkStatus vonkSub_mTm_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
/** dst = src1' - src2; 6x6 double; standard layout. */
VonkStatus vonkSub_mTm_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
/** dst = src1' - src2; 6x6 double; S2, strided elements. */
VonkStatus vonkSub_mTm_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = src1' - src2; 6x6 double; P, one pointer per element position. */
VonkStatus vonkSub_mTm_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);

/** dst = src1' - src2'; `rows` by `cols` float; standard layout. */
VonkStatus vonkSub_mTmT_32f(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride, uint32_t cols, uint32_t rows);
/** dst = src1' - src2'; `rows` by `cols` float; S2, strided elements. */
VonkStatus vonkSub_mTmT_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t cols, uint32_t rows);
/** dst = src1' - src2'; `rows` by `cols` float; P, one pointer per element position. */
VonkStatus vonkSub_mTmT_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows);
/** dst = src1' - src2'; 3x3 float; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkSub_mTmT_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
/** dst = src1' - src2'; 3x3 float; S2, strided elements. */
VonkStatus vonkSub_mTmT_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = src1' - src2'; 3x3 float; P, one pointer per element position. */
VonkStatus vonkSub_mTmT_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
/** dst = src1' - src2'; 4x4 float; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkSub_mTmT_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
/** dst = src1' - src2'; 4x4 float; S2, strided elements. */
VonkStatus vonkSub_mTmT_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = src1' - src2'; 4x4 float; P, one pointer per element position. Exception: sum-position-8. */
VonkStatus vonkSub_mTmT_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
/** dst = src1' - src2'; 5x5 float; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkSub_mTmT_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
/** dst = src1' - src2'; 5x5 float; S2, strided elements. */
VonkStatus vonkSub_mTmT_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = src1' - src2'; 5x5 float; P, one pointer per element position. */
VonkStatus vonkSub_mTmT_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
/** dst = src1' - src2'; 6x6 float; standard layout. Exceptions: sub-repeated-row, sum-rows-loaded-first. */
VonkStatus vonkSub_mTmT_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
/** dst = src1' - src2'; 6x6 float; S2, strided elements. */
VonkStatus vonkSub_mTmT_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = src1' - src2'; 6x6 float; P, one pointer per element position. */
VonkStatus vonkSub_mTmT_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);

/** dst = src1' - src2'; `rows` by `cols` double; standard layout. */
VonkStatus vonkSub_mTmT_64f(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride, uint32_t cols, uint32_t rows);
/** dst = src1' - src2'; `rows` by `cols` double; S2, strided elements. */
VonkStatus vonkSub_mTmT_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t cols, uint32_t rows);
/** dst = src1' - src2'; `rows` by `cols` double; P, one pointer per element position. */
VonkStatus vonkSub_mTmT_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows);
/** dst = src1' - src2'; 3x3 double; standard layout. */
VonkStatus vonkSub_mTmT_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
/** dst = src1' - src2'; 3x3 double; S2, strided elements. */
VonkStatus vonkSub_mTmT_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
    int32_t dstElemStride);
/** dst = src1' - src2'; 3x3 double; P, one pointer per element position. */
VonkStatus vonkSub_mTmT_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
/** dst = src1' - src2'; 4x4 double; standard layout. */
VonkStatus vonkSub_mTmT_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
/** dst = src1' - src2'; 4x4 double; S2, strided elements. */
VonkStatus vonkSub_mTmT_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
    int32_t dstElemStride);
/** dst = src1' - src2'; 4x4 double; P, one pointer per element position. Exception: sum-position-8. */
VonkStatus vonkSub_mTmT_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
/** dst = src1' - src2'; 5x5 double; standard layout. */
VonkStatus vonkSub_mTmT_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
/** dst = src1' - src2'; 5x5 double; S2, strided elements. */
VonkStatus vonkSub_mTmT_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
    int32_t dstElemStride);
/** dst = src1' - src2'; 5x5 double; P, one pointer per element position. */
VonkStatus vonkSub_mTmT_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
/** dst = src1' - src2'; 6x6 double; standard layout. */
VonkStatus vonkSub_mTmT_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
/** dst = src1' - src2'; 6x6 double; S2, strided elements. */
VonkStatus vonkSub_mTmT_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
    int32_t dstElemStride);
/** dst = src1' - src2'; 6x6 double; P, one pointer per element position. */
VonkStatus vonkSub_mTmT_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);

/** dst(n) = src1 - src2(n); `rows` by `cols` float, n below count; standard layout. */
VonkStatus vonkSub_mma_32f(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1 - src2(n); `rows` by `cols` float, n below count; S2, strided elements. */
VonkStatus vonkSub_mma_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1 - src2(n); `rows` by `cols` float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mma_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1 - src2(n); `rows` by `cols` float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkSub_mma_32f_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1 - src2(n); `rows` by `cols` float, n below count; L, one pointer per object. */
VonkStatus vonkSub_mma_32f_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1 - src2(n); `rows` by `cols` float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mma_32f_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1 - src2(n); 3x3 float, n below count; standard layout. Exceptions: sum-single-loaded-once,
 * sum-rows-loaded-first. */
VonkStatus vonkSub_mma_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1 - src2(n); 3x3 float, n below count; S2, strided elements. */
VonkStatus vonkSub_mma_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1 - src2(n); 3x3 float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mma_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1 - src2(n); 3x3 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_mma_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1 - src2(n); 3x3 float, n below count; L, one pointer per object. Exceptions: sum-single-loaded-once,
 * sum-rows-loaded-first. */
VonkStatus vonkSub_mma_32f_3x3_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1 - src2(n); 3x3 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mma_32f_3x3_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1 - src2(n); 4x4 float, n below count; standard layout. Exceptions: sum-single-loaded-once,
 * sum-rows-loaded-first. */
VonkStatus vonkSub_mma_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1 - src2(n); 4x4 float, n below count; S2, strided elements. */
VonkStatus vonkSub_mma_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1 - src2(n); 4x4 float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mma_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1 - src2(n); 4x4 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_mma_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1 - src2(n); 4x4 float, n below count; L, one pointer per object. Exceptions: sum-single-loaded-once,
 * sum-rows-loaded-first. */
VonkStatus vonkSub_mma_32f_4x4_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1 - src2(n); 4x4 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mma_32f_4x4_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1 - src2(n); 5x5 float, n below count; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkSub_mma_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1 - src2(n); 5x5 float, n below count; S2, strided elements. */
VonkStatus vonkSub_mma_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1 - src2(n); 5x5 float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mma_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1 - src2(n); 5x5 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_mma_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1 - src2(n); 5x5 float, n below count; L, one pointer per object. Exception: sum-rows-loaded-first. */
VonkStatus vonkSub_mma_32f_5x5_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1 - src2(n); 5x5 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mma_32f_5x5_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1 - src2(n); 6x6 float, n below count; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkSub_mma_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1 - src2(n); 6x6 float, n below count; S2, strided elements. */
VonkStatus vonkSub_mma_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1 - src2(n); 6x6 float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mma_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1 - src2(n); 6x6 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_mma_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1 - src2(n); 6x6 float, n below count; L, one pointer per object. Exception: sum-rows-loaded-first. */
VonkStatus vonkSub_mma_32f_6x6_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1 - src2(n); 6x6 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mma_32f_6x6_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

/** dst(n) = src1 - src2(n); `rows` by `cols` double, n below count; standard layout. */
VonkStatus vonkSub_mma_64f(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1 - src2(n); `rows` by `cols` double, n below count; S2, strided elements. */
VonkStatus vonkSub_mma_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1 - src2(n); `rows` by `cols` double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mma_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2, int32_t src2Shift,
    double *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1 - src2(n); `rows` by `cols` double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkSub_mma_64f_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t cols,
    uint32_t rows, uint32_t count);
/** dst(n) = src1 - src2(n); `rows` by `cols` double, n below count; L, one pointer per object. */
VonkStatus vonkSub_mma_64f_L(const double *src1, int32_t src1RowStride, const double *const *src2, int32_t src2Shift,
    int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1 - src2(n); `rows` by `cols` double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mma_64f_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1 - src2(n); 3x3 double, n below count; standard layout. */
VonkStatus vonkSub_mma_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1 - src2(n); 3x3 double, n below count; S2, strided elements. */
VonkStatus vonkSub_mma_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1 - src2(n); 3x3 double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mma_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1 - src2(n); 3x3 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_mma_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1 - src2(n); 3x3 double, n below count; L, one pointer per object. */
VonkStatus vonkSub_mma_64f_3x3_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1 - src2(n); 3x3 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mma_64f_3x3_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1 - src2(n); 4x4 double, n below count; standard layout. */
VonkStatus vonkSub_mma_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1 - src2(n); 4x4 double, n below count; S2, strided elements. */
VonkStatus vonkSub_mma_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1 - src2(n); 4x4 double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mma_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1 - src2(n); 4x4 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_mma_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1 - src2(n); 4x4 double, n below count; L, one pointer per object. */
VonkStatus vonkSub_mma_64f_4x4_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1 - src2(n); 4x4 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mma_64f_4x4_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1 - src2(n); 5x5 double, n below count; standard layout. */
VonkStatus vonkSub_mma_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1 - src2(n); 5x5 double, n below count; S2, strided elements. */
VonkStatus vonkSub_mma_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1 - src2(n); 5x5 double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mma_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1 - src2(n); 5x5 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_mma_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1 - src2(n); 5x5 double, n below count; L, one pointer per object. */
VonkStatus vonkSub_mma_64f_5x5_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1 - src2(n); 5x5 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mma_64f_5x5_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1 - src2(n); 6x6 double, n below count; standard layout. */
VonkStatus vonkSub_mma_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1 - src2(n); 6x6 double, n below count; S2, strided elements. */
VonkStatus vonkSub_mma_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1 - src2(n); 6x6 double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mma_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1 - src2(n); 6x6 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_mma_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1 - src2(n); 6x6 double, n below count; L, one pointer per object. */
VonkStatus vonkSub_mma_64f_6x6_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1 - src2(n); 6x6 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mma_64f_6x6_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

/** dst(n) = src1 - src2(n)'; `rows` by `cols` float, n below count; standard layout. */
VonkStatus vonkSub_mmaT_32f(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1 - src2(n)'; `rows` by `cols` float, n below count; S2, strided elements. */
VonkStatus vonkSub_mmaT_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1 - src2(n)'; `rows` by `cols` float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mmaT_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1 - src2(n)'; `rows` by `cols` float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkSub_mmaT_32f_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t cols,
    uint32_t rows, uint32_t count);
/** dst(n) = src1 - src2(n)'; `rows` by `cols` float, n below count; L, one pointer per object. */
VonkStatus vonkSub_mmaT_32f_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1 - src2(n)'; `rows` by `cols` float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mmaT_32f_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1 - src2(n)'; 3x3 float, n below count; standard layout. Exceptions: sum-single-loaded-once,
 * sum-rows-loaded-first. */
VonkStatus vonkSub_mmaT_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1 - src2(n)'; 3x3 float, n below count; S2, strided elements. */
VonkStatus vonkSub_mmaT_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1 - src2(n)'; 3x3 float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mmaT_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1 - src2(n)'; 3x3 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_mmaT_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1 - src2(n)'; 3x3 float, n below count; L, one pointer per object. Exceptions: sum-single-loaded-once,
 * sum-rows-loaded-first. */
VonkStatus vonkSub_mmaT_32f_3x3_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1 - src2(n)'; 3x3 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mmaT_32f_3x3_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1 - src2(n)'; 4x4 float, n below count; standard layout. Exceptions: sum-single-loaded-once,
 * sum-rows-loaded-first. */
VonkStatus vonkSub_mmaT_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1 - src2(n)'; 4x4 float, n below count; S2, strided elements. */
VonkStatus vonkSub_mmaT_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1 - src2(n)'; 4x4 float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mmaT_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1 - src2(n)'; 4x4 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_mmaT_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1 - src2(n)'; 4x4 float, n below count; L, one pointer per object. Exceptions: sum-single-loaded-once,
 * sum-rows-loaded-first. */
VonkStatus vonkSub_mmaT_32f_4x4_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1 - src2(n)'; 4x4 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mmaT_32f_4x4_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1 - src2(n)'; 5x5 float, n below count; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkSub_mmaT_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1 - src2(n)'; 5x5 float, n below count; S2, strided elements. */
VonkStatus vonkSub_mmaT_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1 - src2(n)'; 5x5 float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mmaT_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1 - src2(n)'; 5x5 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_mmaT_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1 - src2(n)'; 5x5 float, n below count; L, one pointer per object. Exception: sum-rows-loaded-first. */
VonkStatus vonkSub_mmaT_32f_5x5_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1 - src2(n)'; 5x5 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mmaT_32f_5x5_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1 - src2(n)'; 6x6 float, n below count; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkSub_mmaT_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1 - src2(n)'; 6x6 float, n below count; S2, strided elements. */
VonkStatus vonkSub_mmaT_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1 - src2(n)'; 6x6 float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mmaT_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1 - src2(n)'; 6x6 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_mmaT_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1 - src2(n)'; 6x6 float, n below count; L, one pointer per object. Exception: sum-rows-loaded-first. */
VonkStatus vonkSub_mmaT_32f_6x6_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1 - src2(n)'; 6x6 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mmaT_32f_6x6_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

/** dst(n) = src1 - src2(n)'; `rows` by `cols` double, n below count; standard layout. */
VonkStatus vonkSub_mmaT_64f(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1 - src2(n)'; `rows` by `cols` double, n below count; S2, strided elements. */
VonkStatus vonkSub_mmaT_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1 - src2(n)'; `rows` by `cols` double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mmaT_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1 - src2(n)'; `rows` by `cols` double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkSub_mmaT_64f_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t cols,
    uint32_t rows, uint32_t count);
/** dst(n) = src1 - src2(n)'; `rows` by `cols` double, n below count; L, one pointer per object. */
VonkStatus vonkSub_mmaT_64f_L(const double *src1, int32_t src1RowStride, const double *const *src2, int32_t src2Shift,
    int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1 - src2(n)'; `rows` by `cols` double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mmaT_64f_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1 - src2(n)'; 3x3 double, n below count; standard layout. */
VonkStatus vonkSub_mmaT_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1 - src2(n)'; 3x3 double, n below count; S2, strided elements. */
VonkStatus vonkSub_mmaT_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1 - src2(n)'; 3x3 double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mmaT_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1 - src2(n)'; 3x3 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_mmaT_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1 - src2(n)'; 3x3 double, n below count; L, one pointer per object. */
VonkStatus vonkSub_mmaT_64f_3x3_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1 - src2(n)'; 3x3 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mmaT_64f_3x3_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1 - src2(n)'; 4x4 double, n below count; standard layout. */
VonkStatus vonkSub_mmaT_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1 - src2(n)'; 4x4 double, n below count; S2, strided elements. */
VonkStatus vonkSub_mmaT_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1 - src2(n)'; 4x4 double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mmaT_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1 - src2(n)'; 4x4 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_mmaT_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1 - src2(n)'; 4x4 double, n below count; L, one pointer per object. */
VonkStatus vonkSub_mmaT_64f_4x4_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1 - src2(n)'; 4x4 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mmaT_64f_4x4_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1 - src2(n)'; 5x5 double, n below count; standard layout. */
VonkStatus vonkSub_mmaT_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1 - src2(n)'; 5x5 double, n below count; S2, strided elements. */
VonkStatus vonkSub_mmaT_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1 - src2(n)'; 5x5 double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mmaT_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1 - src2(n)'; 5x5 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_mmaT_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1 - src2(n)'; 5x5 double, n below count; L, one pointer per object. */
VonkStatus vonkSub_mmaT_64f_5x5_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1 - src2(n)'; 5x5 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mmaT_64f_5x5_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1 - src2(n)'; 6x6 double, n below count; standard layout. */
VonkStatus vonkSub_mmaT_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1 - src2(n)'; 6x6 double, n below count; S2, strided elements. */
VonkStatus vonkSub_mmaT_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1 - src2(n)'; 6x6 double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mmaT_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1 - src2(n)'; 6x6 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_mmaT_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1 - src2(n)'; 6x6 double, n below count; L, one pointer per object. */
VonkStatus vonkSub_mmaT_64f_6x6_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1 - src2(n)'; 6x6 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mmaT_64f_6x6_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

/** dst(n) = src1' - src2(n); `rows` by `cols` float, n below count; standard layout. */
VonkStatus vonkSub_mTma_32f(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1' - src2(n); `rows` by `cols` float, n below count; S2, strided elements. */
VonkStatus vonkSub_mTma_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1' - src2(n); `rows` by `cols` float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mTma_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1' - src2(n); `rows` by `cols` float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkSub_mTma_32f_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t cols,
    uint32_t rows, uint32_t count);
/** dst(n) = src1' - src2(n); `rows` by `cols` float, n below count; L, one pointer per object. */
VonkStatus vonkSub_mTma_32f_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1' - src2(n); `rows` by `cols` float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mTma_32f_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1' - src2(n); 3x3 float, n below count; standard layout. Exceptions: sum-single-loaded-once,
 * sum-rows-loaded-first. */
VonkStatus vonkSub_mTma_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1' - src2(n); 3x3 float, n below count; S2, strided elements. */
VonkStatus vonkSub_mTma_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1' - src2(n); 3x3 float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mTma_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1' - src2(n); 3x3 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_mTma_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1' - src2(n); 3x3 float, n below count; L, one pointer per object. Exceptions: sum-single-loaded-once,
 * sum-rows-loaded-first. */
VonkStatus vonkSub_mTma_32f_3x3_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1' - src2(n); 3x3 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mTma_32f_3x3_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1' - src2(n); 4x4 float, n below count; standard layout. Exceptions: sum-single-loaded-once,
 * sum-rows-loaded-first. */
VonkStatus vonkSub_mTma_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1' - src2(n); 4x4 float, n below count; S2, strided elements. */
VonkStatus vonkSub_mTma_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1' - src2(n); 4x4 float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mTma_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1' - src2(n); 4x4 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_mTma_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1' - src2(n); 4x4 float, n below count; L, one pointer per object. Exceptions: sum-single-loaded-once,
 * sum-rows-loaded-first. */
VonkStatus vonkSub_mTma_32f_4x4_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1' - src2(n); 4x4 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mTma_32f_4x4_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1' - src2(n); 5x5 float, n below count; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkSub_mTma_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1' - src2(n); 5x5 float, n below count; S2, strided elements. */
VonkStatus vonkSub_mTma_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1' - src2(n); 5x5 float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mTma_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1' - src2(n); 5x5 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_mTma_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1' - src2(n); 5x5 float, n below count; L, one pointer per object. Exception: sum-rows-loaded-first. */
VonkStatus vonkSub_mTma_32f_5x5_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1' - src2(n); 5x5 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mTma_32f_5x5_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1' - src2(n); 6x6 float, n below count; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkSub_mTma_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1' - src2(n); 6x6 float, n below count; S2, strided elements. */
VonkStatus vonkSub_mTma_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1' - src2(n); 6x6 float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mTma_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1' - src2(n); 6x6 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_mTma_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1' - src2(n); 6x6 float, n below count; L, one pointer per object. Exception: sum-rows-loaded-first. */
VonkStatus vonkSub_mTma_32f_6x6_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1' - src2(n); 6x6 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mTma_32f_6x6_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

/** dst(n) = src1' - src2(n); `rows` by `cols` double, n below count; standard layout. */
VonkStatus vonkSub_mTma_64f(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1' - src2(n); `rows` by `cols` double, n below count; S2, strided elements. */
VonkStatus vonkSub_mTma_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1' - src2(n); `rows` by `cols` double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mTma_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1' - src2(n); `rows` by `cols` double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkSub_mTma_64f_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t cols,
    uint32_t rows, uint32_t count);
/** dst(n) = src1' - src2(n); `rows` by `cols` double, n below count; L, one pointer per object. */
VonkStatus vonkSub_mTma_64f_L(const double *src1, int32_t src1RowStride, const double *const *src2, int32_t src2Shift,
    int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1' - src2(n); `rows` by `cols` double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mTma_64f_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1' - src2(n); 3x3 double, n below count; standard layout. */
VonkStatus vonkSub_mTma_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1' - src2(n); 3x3 double, n below count; S2, strided elements. */
VonkStatus vonkSub_mTma_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1' - src2(n); 3x3 double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mTma_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1' - src2(n); 3x3 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_mTma_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1' - src2(n); 3x3 double, n below count; L, one pointer per object. */
VonkStatus vonkSub_mTma_64f_3x3_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1' - src2(n); 3x3 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mTma_64f_3x3_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1' - src2(n); 4x4 double, n below count; standard layout. */
VonkStatus vonkSub_mTma_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1' - src2(n); 4x4 double, n below count; S2, strided elements. */
VonkStatus vonkSub_mTma_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1' - src2(n); 4x4 double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mTma_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1' - src2(n); 4x4 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_mTma_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1' - src2(n); 4x4 double, n below count; L, one pointer per object. */
VonkStatus vonkSub_mTma_64f_4x4_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1' - src2(n); 4x4 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mTma_64f_4x4_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1' - src2(n); 5x5 double, n below count; standard layout. */
VonkStatus vonkSub_mTma_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1' - src2(n); 5x5 double, n below count; S2, strided elements. */
VonkStatus vonkSub_mTma_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1' - src2(n); 5x5 double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mTma_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1' - src2(n); 5x5 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_mTma_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1' - src2(n); 5x5 double, n below count; L, one pointer per object. */
VonkStatus vonkSub_mTma_64f_5x5_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1' - src2(n); 5x5 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mTma_64f_5x5_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1' - src2(n); 6x6 double, n below count; standard layout. */
VonkStatus vonkSub_mTma_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1' - src2(n); 6x6 double, n below count; S2, strided elements. */
VonkStatus vonkSub_mTma_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1' - src2(n); 6x6 double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mTma_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1' - src2(n); 6x6 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_mTma_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1' - src2(n); 6x6 double, n below count; L, one pointer per object. */
VonkStatus vonkSub_mTma_64f_6x6_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1' - src2(n); 6x6 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mTma_64f_6x6_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

/** dst(n) = src1' - src2(n)'; `rows` by `cols` float, n below count; standard layout. */
VonkStatus vonkSub_mTmaT_32f(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1' - src2(n)'; `rows` by `cols` float, n below count; S2, strided elements. */
VonkStatus vonkSub_mTmaT_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1' - src2(n)'; `rows` by `cols` float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mTmaT_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1' - src2(n)'; `rows` by `cols` float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkSub_mTmaT_32f_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t cols,
    uint32_t rows, uint32_t count);
/** dst(n) = src1' - src2(n)'; `rows` by `cols` float, n below count; L, one pointer per object. */
VonkStatus vonkSub_mTmaT_32f_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1' - src2(n)'; `rows` by `cols` float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mTmaT_32f_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1' - src2(n)'; 3x3 float, n below count; standard layout. Exceptions: sum-single-loaded-once,
 * sum-rows-loaded-first. */
VonkStatus vonkSub_mTmaT_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1' - src2(n)'; 3x3 float, n below count; S2, strided elements. */
VonkStatus vonkSub_mTmaT_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1' - src2(n)'; 3x3 float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mTmaT_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1' - src2(n)'; 3x3 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_mTmaT_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1' - src2(n)'; 3x3 float, n below count; L, one pointer per object. Exceptions: sum-single-loaded-once,
 * sum-rows-loaded-first. */
VonkStatus vonkSub_mTmaT_32f_3x3_L(const float *src1, int32_t src1RowStride, const float *const *src2,
    int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1' - src2(n)'; 3x3 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mTmaT_32f_3x3_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1' - src2(n)'; 4x4 float, n below count; standard layout. Exceptions: sum-single-loaded-once,
 * sum-rows-loaded-first. */
VonkStatus vonkSub_mTmaT_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1' - src2(n)'; 4x4 float, n below count; S2, strided elements. */
VonkStatus vonkSub_mTmaT_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1' - src2(n)'; 4x4 float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mTmaT_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1' - src2(n)'; 4x4 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_mTmaT_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1' - src2(n)'; 4x4 float, n below count; L, one pointer per object. Exceptions: sum-single-loaded-once,
 * sum-rows-loaded-first. */
VonkStatus vonkSub_mTmaT_32f_4x4_L(const float *src1, int32_t src1RowStride, const float *const *src2,
    int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1' - src2(n)'; 4x4 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mTmaT_32f_4x4_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1' - src2(n)'; 5x5 float, n below count; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkSub_mTmaT_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1' - src2(n)'; 5x5 float, n below count; S2, strided elements. */
VonkStatus vonkSub_mTmaT_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1' - src2(n)'; 5x5 float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mTmaT_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1' - src2(n)'; 5x5 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_mTmaT_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1' - src2(n)'; 5x5 float, n below count; L, one pointer per object. Exception: sum-rows-loaded-first. */
VonkStatus vonkSub_mTmaT_32f_5x5_L(const float *src1, int32_t src1RowStride, const float *const *src2,
    int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1' - src2(n)'; 5x5 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mTmaT_32f_5x5_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1' - src2(n)'; 6x6 float, n below count; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkSub_mTmaT_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1' - src2(n)'; 6x6 float, n below count; S2, strided elements. */
VonkStatus vonkSub_mTmaT_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1' - src2(n)'; 6x6 float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mTmaT_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1' - src2(n)'; 6x6 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_mTmaT_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1' - src2(n)'; 6x6 float, n below count; L, one pointer per object. Exception: sum-rows-loaded-first. */
VonkStatus vonkSub_mTmaT_32f_6x6_L(const float *src1, int32_t src1RowStride, const float *const *src2,
    int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1' - src2(n)'; 6x6 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mTmaT_32f_6x6_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

/** dst(n) = src1' - src2(n)'; `rows` by `cols` double, n below count; standard layout. */
VonkStatus vonkSub_mTmaT_64f(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1' - src2(n)'; `rows` by `cols` double, n below count; S2, strided elements. */
VonkStatus vonkSub_mTmaT_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1' - src2(n)'; `rows` by `cols` double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mTmaT_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1' - src2(n)'; `rows` by `cols` double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkSub_mTmaT_64f_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t cols,
    uint32_t rows, uint32_t count);
/** dst(n) = src1' - src2(n)'; `rows` by `cols` double, n below count; L, one pointer per object. */
VonkStatus vonkSub_mTmaT_64f_L(const double *src1, int32_t src1RowStride, const double *const *src2, int32_t src2Shift,
    int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1' - src2(n)'; `rows` by `cols` double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mTmaT_64f_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1' - src2(n)'; 3x3 double, n below count; standard layout. */
VonkStatus vonkSub_mTmaT_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1' - src2(n)'; 3x3 double, n below count; S2, strided elements. */
VonkStatus vonkSub_mTmaT_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1' - src2(n)'; 3x3 double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mTmaT_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1' - src2(n)'; 3x3 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_mTmaT_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1' - src2(n)'; 3x3 double, n below count; L, one pointer per object. */
VonkStatus vonkSub_mTmaT_64f_3x3_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1' - src2(n)'; 3x3 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mTmaT_64f_3x3_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1' - src2(n)'; 4x4 double, n below count; standard layout. */
VonkStatus vonkSub_mTmaT_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1' - src2(n)'; 4x4 double, n below count; S2, strided elements. */
VonkStatus vonkSub_mTmaT_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1' - src2(n)'; 4x4 double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mTmaT_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1' - src2(n)'; 4x4 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_mTmaT_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1' - src2(n)'; 4x4 double, n below count; L, one pointer per object. */
VonkStatus vonkSub_mTmaT_64f_4x4_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1' - src2(n)'; 4x4 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mTmaT_64f_4x4_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1' - src2(n)'; 5x5 double, n below count; standard layout. */
VonkStatus vonkSub_mTmaT_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1' - src2(n)'; 5x5 double, n below count; S2, strided elements. */
VonkStatus vonkSub_mTmaT_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1' - src2(n)'; 5x5 double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mTmaT_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1' - src2(n)'; 5x5 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_mTmaT_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1' - src2(n)'; 5x5 double, n below count; L, one pointer per object. */
VonkStatus vonkSub_mTmaT_64f_5x5_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1' - src2(n)'; 5x5 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mTmaT_64f_5x5_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1' - src2(n)'; 6x6 double, n below count; standard layout. */
VonkStatus vonkSub_mTmaT_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1' - src2(n)'; 6x6 double, n below count; S2, strided elements. */
VonkStatus vonkSub_mTmaT_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1' - src2(n)'; 6x6 double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mTmaT_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1' - src2(n)'; 6x6 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_mTmaT_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1' - src2(n)'; 6x6 double, n below count; L, one pointer per object. */
VonkStatus vonkSub_mTmaT_64f_6x6_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1' - src2(n)'; 6x6 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mTmaT_64f_6x6_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

/** dst(n) = src1(n) - src2; `rows` by `cols` float, n below count; standard layout. */
VonkStatus vonkSub_mam_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1(n) - src2; `rows` by `cols` float, n below count; S2, strided elements. */
VonkStatus vonkSub_mam_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n) - src2; `rows` by `cols` float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mam_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n) - src2; `rows` by `cols` float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkSub_mam_32f_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n) - src2; `rows` by `cols` float, n below count; L, one pointer per object. */
VonkStatus vonkSub_mam_32f_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1(n) - src2; `rows` by `cols` float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mam_32f_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n) - src2; 3x3 float, n below count; standard layout. Exceptions: sum-count-zero,
 * sum-software-pipelined, sum-single-loaded-once, sum-rows-loaded-first. */
VonkStatus vonkSub_mam_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) - src2; 3x3 float, n below count; S2, strided elements. */
VonkStatus vonkSub_mam_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) - src2; 3x3 float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mam_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) - src2; 3x3 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_mam_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n) - src2; 3x3 float, n below count; L, one pointer per object. Exceptions: sum-count-zero,
 * sum-pipelined-entries, sum-software-pipelined, sum-single-loaded-once, sum-rows-loaded-first, sum-entry-before-list.
 * */
VonkStatus vonkSub_mam_32f_3x3_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) - src2; 3x3 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mam_32f_3x3_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) - src2; 4x4 float, n below count; standard layout. Exceptions: sum-single-loaded-once,
 * sum-rows-loaded-first. */
VonkStatus vonkSub_mam_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) - src2; 4x4 float, n below count; S2, strided elements. */
VonkStatus vonkSub_mam_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) - src2; 4x4 float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mam_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) - src2; 4x4 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_mam_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n) - src2; 4x4 float, n below count; L, one pointer per object. Exceptions: sum-single-loaded-once,
 * sum-rows-loaded-first. */
VonkStatus vonkSub_mam_32f_4x4_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) - src2; 4x4 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mam_32f_4x4_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) - src2; 5x5 float, n below count; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkSub_mam_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) - src2; 5x5 float, n below count; S2, strided elements. */
VonkStatus vonkSub_mam_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) - src2; 5x5 float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mam_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) - src2; 5x5 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_mam_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n) - src2; 5x5 float, n below count; L, one pointer per object. Exception: sum-rows-loaded-first. */
VonkStatus vonkSub_mam_32f_5x5_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) - src2; 5x5 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mam_32f_5x5_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) - src2; 6x6 float, n below count; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkSub_mam_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) - src2; 6x6 float, n below count; S2, strided elements. */
VonkStatus vonkSub_mam_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) - src2; 6x6 float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mam_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) - src2; 6x6 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_mam_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n) - src2; 6x6 float, n below count; L, one pointer per object. Exception: sum-rows-loaded-first. */
VonkStatus vonkSub_mam_32f_6x6_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) - src2; 6x6 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mam_32f_6x6_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

/** dst(n) = src1(n) - src2; `rows` by `cols` double, n below count; standard layout. */
VonkStatus vonkSub_mam_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1(n) - src2; `rows` by `cols` double, n below count; S2, strided elements. */
VonkStatus vonkSub_mam_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n) - src2; `rows` by `cols` double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mam_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2, int32_t src2Shift,
    double *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n) - src2; `rows` by `cols` double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkSub_mam_64f_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n) - src2; `rows` by `cols` double, n below count; L, one pointer per object. */
VonkStatus vonkSub_mam_64f_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1(n) - src2; `rows` by `cols` double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mam_64f_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n) - src2; 3x3 double, n below count; standard layout. */
VonkStatus vonkSub_mam_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) - src2; 3x3 double, n below count; S2, strided elements. */
VonkStatus vonkSub_mam_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) - src2; 3x3 double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mam_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) - src2; 3x3 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_mam_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n) - src2; 3x3 double, n below count; L, one pointer per object. */
VonkStatus vonkSub_mam_64f_3x3_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n) - src2; 3x3 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mam_64f_3x3_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) - src2; 4x4 double, n below count; standard layout. */
VonkStatus vonkSub_mam_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) - src2; 4x4 double, n below count; S2, strided elements. */
VonkStatus vonkSub_mam_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) - src2; 4x4 double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mam_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) - src2; 4x4 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_mam_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n) - src2; 4x4 double, n below count; L, one pointer per object. */
VonkStatus vonkSub_mam_64f_4x4_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n) - src2; 4x4 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mam_64f_4x4_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) - src2; 5x5 double, n below count; standard layout. */
VonkStatus vonkSub_mam_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) - src2; 5x5 double, n below count; S2, strided elements. */
VonkStatus vonkSub_mam_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) - src2; 5x5 double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mam_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) - src2; 5x5 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_mam_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n) - src2; 5x5 double, n below count; L, one pointer per object. */
VonkStatus vonkSub_mam_64f_5x5_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n) - src2; 5x5 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mam_64f_5x5_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) - src2; 6x6 double, n below count; standard layout. */
VonkStatus vonkSub_mam_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) - src2; 6x6 double, n below count; S2, strided elements. */
VonkStatus vonkSub_mam_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) - src2; 6x6 double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mam_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) - src2; 6x6 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_mam_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n) - src2; 6x6 double, n below count; L, one pointer per object. */
VonkStatus vonkSub_mam_64f_6x6_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n) - src2; 6x6 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mam_64f_6x6_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

/** dst(n) = src1(n) - src2'; `rows` by `cols` float, n below count; standard layout. */
VonkStatus vonkSub_mamT_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1(n) - src2'; `rows` by `cols` float, n below count; S2, strided elements. */
VonkStatus vonkSub_mamT_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n) - src2'; `rows` by `cols` float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mamT_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n) - src2'; `rows` by `cols` float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkSub_mamT_32f_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n) - src2'; `rows` by `cols` float, n below count; L, one pointer per object. */
VonkStatus vonkSub_mamT_32f_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1(n) - src2'; `rows` by `cols` float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mamT_32f_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n) - src2'; 3x3 float, n below count; standard layout. Exceptions: sum-ignored-stride, sum-count-zero,
 * sum-software-pipelined, sum-single-loaded-once, sum-rows-loaded-first, sum-reads-next-element. */
VonkStatus vonkSub_mamT_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) - src2'; 3x3 float, n below count; S2, strided elements. */
VonkStatus vonkSub_mamT_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) - src2'; 3x3 float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mamT_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) - src2'; 3x3 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_mamT_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n) - src2'; 3x3 float, n below count; L, one pointer per object. Exceptions: sum-ignored-stride,
 * sum-count-zero, sum-pipelined-entries, sum-software-pipelined, sum-single-loaded-once, sum-rows-loaded-first,
 * sum-reads-next-element, sum-entry-before-list. */
VonkStatus vonkSub_mamT_32f_3x3_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) - src2'; 3x3 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mamT_32f_3x3_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) - src2'; 4x4 float, n below count; standard layout. Exceptions: sum-single-loaded-once,
 * sum-rows-loaded-first. */
VonkStatus vonkSub_mamT_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) - src2'; 4x4 float, n below count; S2, strided elements. */
VonkStatus vonkSub_mamT_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) - src2'; 4x4 float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mamT_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) - src2'; 4x4 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_mamT_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n) - src2'; 4x4 float, n below count; L, one pointer per object. Exceptions: sum-single-loaded-once,
 * sum-rows-loaded-first. */
VonkStatus vonkSub_mamT_32f_4x4_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) - src2'; 4x4 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mamT_32f_4x4_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) - src2'; 5x5 float, n below count; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkSub_mamT_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) - src2'; 5x5 float, n below count; S2, strided elements. */
VonkStatus vonkSub_mamT_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) - src2'; 5x5 float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mamT_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) - src2'; 5x5 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_mamT_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n) - src2'; 5x5 float, n below count; L, one pointer per object. Exception: sum-rows-loaded-first. */
VonkStatus vonkSub_mamT_32f_5x5_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) - src2'; 5x5 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mamT_32f_5x5_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) - src2'; 6x6 float, n below count; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkSub_mamT_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) - src2'; 6x6 float, n below count; S2, strided elements. */
VonkStatus vonkSub_mamT_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) - src2'; 6x6 float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mamT_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) - src2'; 6x6 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_mamT_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n) - src2'; 6x6 float, n below count; L, one pointer per object. Exception: sum-rows-loaded-first. */
VonkStatus vonkSub_mamT_32f_6x6_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) - src2'; 6x6 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mamT_32f_6x6_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

/** dst(n) = src1(n) - src2'; `rows` by `cols` double, n below count; standard layout. */
VonkStatus vonkSub_mamT_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1(n) - src2'; `rows` by `cols` double, n below count; S2, strided elements. */
VonkStatus vonkSub_mamT_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n) - src2'; `rows` by `cols` double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mamT_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n) - src2'; `rows` by `cols` double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkSub_mamT_64f_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n) - src2'; `rows` by `cols` double, n below count; L, one pointer per object. */
VonkStatus vonkSub_mamT_64f_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1(n) - src2'; `rows` by `cols` double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mamT_64f_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n) - src2'; 3x3 double, n below count; standard layout. */
VonkStatus vonkSub_mamT_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) - src2'; 3x3 double, n below count; S2, strided elements. */
VonkStatus vonkSub_mamT_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) - src2'; 3x3 double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mamT_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) - src2'; 3x3 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_mamT_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n) - src2'; 3x3 double, n below count; L, one pointer per object. */
VonkStatus vonkSub_mamT_64f_3x3_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n) - src2'; 3x3 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mamT_64f_3x3_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) - src2'; 4x4 double, n below count; standard layout. */
VonkStatus vonkSub_mamT_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) - src2'; 4x4 double, n below count; S2, strided elements. */
VonkStatus vonkSub_mamT_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) - src2'; 4x4 double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mamT_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) - src2'; 4x4 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_mamT_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n) - src2'; 4x4 double, n below count; L, one pointer per object. */
VonkStatus vonkSub_mamT_64f_4x4_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n) - src2'; 4x4 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mamT_64f_4x4_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) - src2'; 5x5 double, n below count; standard layout. */
VonkStatus vonkSub_mamT_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) - src2'; 5x5 double, n below count; S2, strided elements. */
VonkStatus vonkSub_mamT_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) - src2'; 5x5 double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mamT_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) - src2'; 5x5 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_mamT_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n) - src2'; 5x5 double, n below count; L, one pointer per object. */
VonkStatus vonkSub_mamT_64f_5x5_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n) - src2'; 5x5 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mamT_64f_5x5_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) - src2'; 6x6 double, n below count; standard layout. */
VonkStatus vonkSub_mamT_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) - src2'; 6x6 double, n below count; S2, strided elements. */
VonkStatus vonkSub_mamT_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) - src2'; 6x6 double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mamT_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) - src2'; 6x6 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_mamT_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n) - src2'; 6x6 double, n below count; L, one pointer per object. */
VonkStatus vonkSub_mamT_64f_6x6_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n) - src2'; 6x6 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mamT_64f_6x6_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

/** dst(n) = src1(n)' - src2; `rows` by `cols` float, n below count; standard layout. */
VonkStatus vonkSub_maTm_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1(n)' - src2; `rows` by `cols` float, n below count; S2, strided elements. */
VonkStatus vonkSub_maTm_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n)' - src2; `rows` by `cols` float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_maTm_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n)' - src2; `rows` by `cols` float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkSub_maTm_32f_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n)' - src2; `rows` by `cols` float, n below count; L, one pointer per object. */
VonkStatus vonkSub_maTm_32f_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1(n)' - src2; `rows` by `cols` float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_maTm_32f_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n)' - src2; 3x3 float, n below count; standard layout. Exceptions: sum-single-loaded-once,
 * sum-rows-loaded-first, sum-reads-next-element. */
VonkStatus vonkSub_maTm_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n)' - src2; 3x3 float, n below count; S2, strided elements. */
VonkStatus vonkSub_maTm_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' - src2; 3x3 float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_maTm_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n)' - src2; 3x3 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_maTm_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n)' - src2; 3x3 float, n below count; L, one pointer per object. Exceptions: sum-single-loaded-once,
 * sum-rows-loaded-first, sum-reads-next-element. */
VonkStatus vonkSub_maTm_32f_3x3_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n)' - src2; 3x3 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_maTm_32f_3x3_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' - src2; 4x4 float, n below count; standard layout. Exceptions: sum-single-loaded-once,
 * sum-rows-loaded-first. */
VonkStatus vonkSub_maTm_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n)' - src2; 4x4 float, n below count; S2, strided elements. */
VonkStatus vonkSub_maTm_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' - src2; 4x4 float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_maTm_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n)' - src2; 4x4 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_maTm_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n)' - src2; 4x4 float, n below count; L, one pointer per object. Exceptions: sum-single-loaded-once,
 * sum-rows-loaded-first. */
VonkStatus vonkSub_maTm_32f_4x4_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n)' - src2; 4x4 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_maTm_32f_4x4_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' - src2; 5x5 float, n below count; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkSub_maTm_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n)' - src2; 5x5 float, n below count; S2, strided elements. */
VonkStatus vonkSub_maTm_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' - src2; 5x5 float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_maTm_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n)' - src2; 5x5 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_maTm_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n)' - src2; 5x5 float, n below count; L, one pointer per object. Exception: sum-rows-loaded-first. */
VonkStatus vonkSub_maTm_32f_5x5_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n)' - src2; 5x5 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_maTm_32f_5x5_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' - src2; 6x6 float, n below count; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkSub_maTm_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n)' - src2; 6x6 float, n below count; S2, strided elements. */
VonkStatus vonkSub_maTm_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' - src2; 6x6 float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_maTm_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n)' - src2; 6x6 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_maTm_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n)' - src2; 6x6 float, n below count; L, one pointer per object. Exception: sum-rows-loaded-first. */
VonkStatus vonkSub_maTm_32f_6x6_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n)' - src2; 6x6 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_maTm_32f_6x6_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

/** dst(n) = src1(n)' - src2; `rows` by `cols` double, n below count; standard layout. */
VonkStatus vonkSub_maTm_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1(n)' - src2; `rows` by `cols` double, n below count; S2, strided elements. */
VonkStatus vonkSub_maTm_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n)' - src2; `rows` by `cols` double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_maTm_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n)' - src2; `rows` by `cols` double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkSub_maTm_64f_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n)' - src2; `rows` by `cols` double, n below count; L, one pointer per object. */
VonkStatus vonkSub_maTm_64f_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1(n)' - src2; `rows` by `cols` double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_maTm_64f_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n)' - src2; 3x3 double, n below count; standard layout. */
VonkStatus vonkSub_maTm_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n)' - src2; 3x3 double, n below count; S2, strided elements. */
VonkStatus vonkSub_maTm_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' - src2; 3x3 double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_maTm_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n)' - src2; 3x3 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_maTm_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n)' - src2; 3x3 double, n below count; L, one pointer per object. */
VonkStatus vonkSub_maTm_64f_3x3_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n)' - src2; 3x3 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_maTm_64f_3x3_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' - src2; 4x4 double, n below count; standard layout. */
VonkStatus vonkSub_maTm_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n)' - src2; 4x4 double, n below count; S2, strided elements. */
VonkStatus vonkSub_maTm_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' - src2; 4x4 double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_maTm_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n)' - src2; 4x4 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_maTm_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n)' - src2; 4x4 double, n below count; L, one pointer per object. */
VonkStatus vonkSub_maTm_64f_4x4_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n)' - src2; 4x4 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_maTm_64f_4x4_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' - src2; 5x5 double, n below count; standard layout. */
VonkStatus vonkSub_maTm_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n)' - src2; 5x5 double, n below count; S2, strided elements. */
VonkStatus vonkSub_maTm_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' - src2; 5x5 double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_maTm_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n)' - src2; 5x5 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_maTm_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n)' - src2; 5x5 double, n below count; L, one pointer per object. */
VonkStatus vonkSub_maTm_64f_5x5_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n)' - src2; 5x5 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_maTm_64f_5x5_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' - src2; 6x6 double, n below count; standard layout. */
VonkStatus vonkSub_maTm_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n)' - src2; 6x6 double, n below count; S2, strided elements. */
VonkStatus vonkSub_maTm_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' - src2; 6x6 double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_maTm_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n)' - src2; 6x6 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_maTm_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n)' - src2; 6x6 double, n below count; L, one pointer per object. */
VonkStatus vonkSub_maTm_64f_6x6_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n)' - src2; 6x6 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_maTm_64f_6x6_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

/** dst(n) = src1(n)' - src2'; `rows` by `cols` float, n below count; standard layout. */
VonkStatus vonkSub_maTmT_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1(n)' - src2'; `rows` by `cols` float, n below count; S2, strided elements. */
VonkStatus vonkSub_maTmT_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n)' - src2'; `rows` by `cols` float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_maTmT_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n)' - src2'; `rows` by `cols` float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkSub_maTmT_32f_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n)' - src2'; `rows` by `cols` float, n below count; L, one pointer per object. */
VonkStatus vonkSub_maTmT_32f_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1(n)' - src2'; `rows` by `cols` float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_maTmT_32f_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n)' - src2'; 3x3 float, n below count; standard layout. Exceptions: sum-single-loaded-once,
 * sum-rows-loaded-first. */
VonkStatus vonkSub_maTmT_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n)' - src2'; 3x3 float, n below count; S2, strided elements. */
VonkStatus vonkSub_maTmT_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' - src2'; 3x3 float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_maTmT_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n)' - src2'; 3x3 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_maTmT_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n)' - src2'; 3x3 float, n below count; L, one pointer per object. Exceptions: sum-single-loaded-once,
 * sum-rows-loaded-first. */
VonkStatus vonkSub_maTmT_32f_3x3_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *src2, int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n)' - src2'; 3x3 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_maTmT_32f_3x3_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' - src2'; 4x4 float, n below count; standard layout. Exceptions: sum-single-loaded-once,
 * sum-rows-loaded-first. */
VonkStatus vonkSub_maTmT_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n)' - src2'; 4x4 float, n below count; S2, strided elements. */
VonkStatus vonkSub_maTmT_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' - src2'; 4x4 float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_maTmT_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n)' - src2'; 4x4 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_maTmT_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n)' - src2'; 4x4 float, n below count; L, one pointer per object. Exceptions: sum-single-loaded-once,
 * sum-rows-loaded-first. */
VonkStatus vonkSub_maTmT_32f_4x4_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *src2, int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n)' - src2'; 4x4 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_maTmT_32f_4x4_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' - src2'; 5x5 float, n below count; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkSub_maTmT_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n)' - src2'; 5x5 float, n below count; S2, strided elements. */
VonkStatus vonkSub_maTmT_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' - src2'; 5x5 float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_maTmT_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n)' - src2'; 5x5 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_maTmT_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n)' - src2'; 5x5 float, n below count; L, one pointer per object. Exception: sum-rows-loaded-first. */
VonkStatus vonkSub_maTmT_32f_5x5_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *src2, int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n)' - src2'; 5x5 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_maTmT_32f_5x5_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' - src2'; 6x6 float, n below count; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkSub_maTmT_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n)' - src2'; 6x6 float, n below count; S2, strided elements. */
VonkStatus vonkSub_maTmT_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' - src2'; 6x6 float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_maTmT_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n)' - src2'; 6x6 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_maTmT_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n)' - src2'; 6x6 float, n below count; L, one pointer per object. Exception: sum-rows-loaded-first. */
VonkStatus vonkSub_maTmT_32f_6x6_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *src2, int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n)' - src2'; 6x6 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_maTmT_32f_6x6_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

/** dst(n) = src1(n)' - src2'; `rows` by `cols` double, n below count; standard layout. */
VonkStatus vonkSub_maTmT_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1(n)' - src2'; `rows` by `cols` double, n below count; S2, strided elements. */
VonkStatus vonkSub_maTmT_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n)' - src2'; `rows` by `cols` double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_maTmT_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n)' - src2'; `rows` by `cols` double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkSub_maTmT_64f_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n)' - src2'; `rows` by `cols` double, n below count; L, one pointer per object. */
VonkStatus vonkSub_maTmT_64f_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1(n)' - src2'; `rows` by `cols` double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_maTmT_64f_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n)' - src2'; 3x3 double, n below count; standard layout. */
VonkStatus vonkSub_maTmT_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n)' - src2'; 3x3 double, n below count; S2, strided elements. */
VonkStatus vonkSub_maTmT_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' - src2'; 3x3 double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_maTmT_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n)' - src2'; 3x3 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_maTmT_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n)' - src2'; 3x3 double, n below count; L, one pointer per object. */
VonkStatus vonkSub_maTmT_64f_3x3_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n)' - src2'; 3x3 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_maTmT_64f_3x3_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' - src2'; 4x4 double, n below count; standard layout. */
VonkStatus vonkSub_maTmT_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n)' - src2'; 4x4 double, n below count; S2, strided elements. */
VonkStatus vonkSub_maTmT_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' - src2'; 4x4 double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_maTmT_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n)' - src2'; 4x4 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_maTmT_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n)' - src2'; 4x4 double, n below count; L, one pointer per object. */
VonkStatus vonkSub_maTmT_64f_4x4_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n)' - src2'; 4x4 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_maTmT_64f_4x4_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' - src2'; 5x5 double, n below count; standard layout. */
VonkStatus vonkSub_maTmT_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n)' - src2'; 5x5 double, n below count; S2, strided elements. */
VonkStatus vonkSub_maTmT_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' - src2'; 5x5 double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_maTmT_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n)' - src2'; 5x5 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_maTmT_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n)' - src2'; 5x5 double, n below count; L, one pointer per object. */
VonkStatus vonkSub_maTmT_64f_5x5_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n)' - src2'; 5x5 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_maTmT_64f_5x5_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' - src2'; 6x6 double, n below count; standard layout. */
VonkStatus vonkSub_maTmT_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n)' - src2'; 6x6 double, n below count; S2, strided elements. */
VonkStatus vonkSub_maTmT_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' - src2'; 6x6 double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_maTmT_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n)' - src2'; 6x6 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_maTmT_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n)' - src2'; 6x6 double, n below count; L, one pointer per object. */
VonkStatus vonkSub_maTmT_64f_6x6_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n)' - src2'; 6x6 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_maTmT_64f_6x6_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

/** dst(n) = src1(n) - src2(n); `rows` by `cols` float, n below count; standard layout. */
VonkStatus vonkSub_mama_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t cols,
    uint32_t rows, uint32_t count);
/** dst(n) = src1(n) - src2(n); `rows` by `cols` float, n below count; S2, strided elements. */
VonkStatus vonkSub_mama_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n) - src2(n); `rows` by `cols` float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mama_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n) - src2(n); `rows` by `cols` float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkSub_mama_32f_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n) - src2(n); `rows` by `cols` float, n below count; L, one pointer per object. */
VonkStatus vonkSub_mama_32f_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n) - src2(n); `rows` by `cols` float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mama_32f_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1(n) - src2(n); 3x3 float, n below count; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkSub_mama_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n) - src2(n); 3x3 float, n below count; S2, strided elements. */
VonkStatus vonkSub_mama_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) - src2(n); 3x3 float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mama_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) - src2(n); 3x3 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_mama_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) - src2(n); 3x3 float, n below count; L, one pointer per object. Exception: sum-rows-loaded-first.
 * */
VonkStatus vonkSub_mama_32f_3x3_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) - src2(n); 3x3 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mama_32f_3x3_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) - src2(n); 4x4 float, n below count; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkSub_mama_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n) - src2(n); 4x4 float, n below count; S2, strided elements. */
VonkStatus vonkSub_mama_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) - src2(n); 4x4 float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mama_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) - src2(n); 4x4 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_mama_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) - src2(n); 4x4 float, n below count; L, one pointer per object. Exception: sum-rows-loaded-first.
 * */
VonkStatus vonkSub_mama_32f_4x4_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) - src2(n); 4x4 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mama_32f_4x4_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) - src2(n); 5x5 float, n below count; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkSub_mama_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n) - src2(n); 5x5 float, n below count; S2, strided elements. */
VonkStatus vonkSub_mama_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) - src2(n); 5x5 float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mama_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) - src2(n); 5x5 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_mama_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) - src2(n); 5x5 float, n below count; L, one pointer per object. Exception: sum-rows-loaded-first.
 * */
VonkStatus vonkSub_mama_32f_5x5_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) - src2(n); 5x5 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mama_32f_5x5_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) - src2(n); 6x6 float, n below count; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkSub_mama_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n) - src2(n); 6x6 float, n below count; S2, strided elements. */
VonkStatus vonkSub_mama_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) - src2(n); 6x6 float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mama_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) - src2(n); 6x6 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_mama_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) - src2(n); 6x6 float, n below count; L, one pointer per object. Exception: sum-rows-loaded-first.
 * */
VonkStatus vonkSub_mama_32f_6x6_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) - src2(n); 6x6 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mama_32f_6x6_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

/** dst(n) = src1(n) - src2(n); `rows` by `cols` double, n below count; standard layout. */
VonkStatus vonkSub_mama_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n) - src2(n); `rows` by `cols` double, n below count; S2, strided elements. */
VonkStatus vonkSub_mama_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n) - src2(n); `rows` by `cols` double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mama_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n) - src2(n); `rows` by `cols` double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkSub_mama_64f_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n) - src2(n); `rows` by `cols` double, n below count; L, one pointer per object. */
VonkStatus vonkSub_mama_64f_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n) - src2(n); `rows` by `cols` double, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkSub_mama_64f_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1(n) - src2(n); 3x3 double, n below count; standard layout. */
VonkStatus vonkSub_mama_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n) - src2(n); 3x3 double, n below count; S2, strided elements. */
VonkStatus vonkSub_mama_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) - src2(n); 3x3 double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mama_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) - src2(n); 3x3 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_mama_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) - src2(n); 3x3 double, n below count; L, one pointer per object. */
VonkStatus vonkSub_mama_64f_3x3_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) - src2(n); 3x3 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mama_64f_3x3_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) - src2(n); 4x4 double, n below count; standard layout. */
VonkStatus vonkSub_mama_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n) - src2(n); 4x4 double, n below count; S2, strided elements. */
VonkStatus vonkSub_mama_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) - src2(n); 4x4 double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mama_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) - src2(n); 4x4 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_mama_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) - src2(n); 4x4 double, n below count; L, one pointer per object. */
VonkStatus vonkSub_mama_64f_4x4_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) - src2(n); 4x4 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mama_64f_4x4_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) - src2(n); 5x5 double, n below count; standard layout. */
VonkStatus vonkSub_mama_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n) - src2(n); 5x5 double, n below count; S2, strided elements. */
VonkStatus vonkSub_mama_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) - src2(n); 5x5 double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mama_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) - src2(n); 5x5 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_mama_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) - src2(n); 5x5 double, n below count; L, one pointer per object. */
VonkStatus vonkSub_mama_64f_5x5_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) - src2(n); 5x5 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mama_64f_5x5_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) - src2(n); 6x6 double, n below count; standard layout. */
VonkStatus vonkSub_mama_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n) - src2(n); 6x6 double, n below count; S2, strided elements. */
VonkStatus vonkSub_mama_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) - src2(n); 6x6 double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mama_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) - src2(n); 6x6 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_mama_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) - src2(n); 6x6 double, n below count; L, one pointer per object. */
VonkStatus vonkSub_mama_64f_6x6_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) - src2(n); 6x6 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mama_64f_6x6_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

/** dst(n) = src1(n) - src2(n)'; `rows` by `cols` float, n below count; standard layout. */
VonkStatus vonkSub_mamaT_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t cols,
    uint32_t rows, uint32_t count);
/** dst(n) = src1(n) - src2(n)'; `rows` by `cols` float, n below count; S2, strided elements. */
VonkStatus vonkSub_mamaT_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n) - src2(n)'; `rows` by `cols` float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mamaT_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n) - src2(n)'; `rows` by `cols` float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkSub_mamaT_32f_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n) - src2(n)'; `rows` by `cols` float, n below count; L, one pointer per object. */
VonkStatus vonkSub_mamaT_32f_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n) - src2(n)'; `rows` by `cols` float, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkSub_mamaT_32f_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1(n) - src2(n)'; 3x3 float, n below count; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkSub_mamaT_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n) - src2(n)'; 3x3 float, n below count; S2, strided elements. */
VonkStatus vonkSub_mamaT_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) - src2(n)'; 3x3 float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mamaT_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) - src2(n)'; 3x3 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_mamaT_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) - src2(n)'; 3x3 float, n below count; L, one pointer per object. Exception: sum-rows-loaded-first.
 * */
VonkStatus vonkSub_mamaT_32f_3x3_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) - src2(n)'; 3x3 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mamaT_32f_3x3_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) - src2(n)'; 4x4 float, n below count; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkSub_mamaT_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n) - src2(n)'; 4x4 float, n below count; S2, strided elements. */
VonkStatus vonkSub_mamaT_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) - src2(n)'; 4x4 float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mamaT_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) - src2(n)'; 4x4 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_mamaT_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) - src2(n)'; 4x4 float, n below count; L, one pointer per object. Exception: sum-rows-loaded-first.
 * */
VonkStatus vonkSub_mamaT_32f_4x4_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) - src2(n)'; 4x4 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mamaT_32f_4x4_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) - src2(n)'; 5x5 float, n below count; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkSub_mamaT_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n) - src2(n)'; 5x5 float, n below count; S2, strided elements. */
VonkStatus vonkSub_mamaT_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) - src2(n)'; 5x5 float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mamaT_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) - src2(n)'; 5x5 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_mamaT_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) - src2(n)'; 5x5 float, n below count; L, one pointer per object. Exception: sum-rows-loaded-first.
 * */
VonkStatus vonkSub_mamaT_32f_5x5_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) - src2(n)'; 5x5 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mamaT_32f_5x5_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) - src2(n)'; 6x6 float, n below count; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkSub_mamaT_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n) - src2(n)'; 6x6 float, n below count; S2, strided elements. */
VonkStatus vonkSub_mamaT_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) - src2(n)'; 6x6 float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mamaT_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) - src2(n)'; 6x6 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_mamaT_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) - src2(n)'; 6x6 float, n below count; L, one pointer per object. Exception: sum-rows-loaded-first.
 * */
VonkStatus vonkSub_mamaT_32f_6x6_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) - src2(n)'; 6x6 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mamaT_32f_6x6_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

/** dst(n) = src1(n) - src2(n)'; `rows` by `cols` double, n below count; standard layout. */
VonkStatus vonkSub_mamaT_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n) - src2(n)'; `rows` by `cols` double, n below count; S2, strided elements. */
VonkStatus vonkSub_mamaT_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1(n) - src2(n)'; `rows` by `cols` double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mamaT_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n) - src2(n)'; `rows` by `cols` double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkSub_mamaT_64f_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n) - src2(n)'; `rows` by `cols` double, n below count; L, one pointer per object. */
VonkStatus vonkSub_mamaT_64f_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n) - src2(n)'; `rows` by `cols` double, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkSub_mamaT_64f_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1(n) - src2(n)'; 3x3 double, n below count; standard layout. */
VonkStatus vonkSub_mamaT_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n) - src2(n)'; 3x3 double, n below count; S2, strided elements. */
VonkStatus vonkSub_mamaT_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) - src2(n)'; 3x3 double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mamaT_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) - src2(n)'; 3x3 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_mamaT_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) - src2(n)'; 3x3 double, n below count; L, one pointer per object. */
VonkStatus vonkSub_mamaT_64f_3x3_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) - src2(n)'; 3x3 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mamaT_64f_3x3_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) - src2(n)'; 4x4 double, n below count; standard layout. */
VonkStatus vonkSub_mamaT_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n) - src2(n)'; 4x4 double, n below count; S2, strided elements. */
VonkStatus vonkSub_mamaT_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) - src2(n)'; 4x4 double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mamaT_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) - src2(n)'; 4x4 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_mamaT_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) - src2(n)'; 4x4 double, n below count; L, one pointer per object. */
VonkStatus vonkSub_mamaT_64f_4x4_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) - src2(n)'; 4x4 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mamaT_64f_4x4_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) - src2(n)'; 5x5 double, n below count; standard layout. */
VonkStatus vonkSub_mamaT_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n) - src2(n)'; 5x5 double, n below count; S2, strided elements. */
VonkStatus vonkSub_mamaT_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) - src2(n)'; 5x5 double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mamaT_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) - src2(n)'; 5x5 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_mamaT_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) - src2(n)'; 5x5 double, n below count; L, one pointer per object. */
VonkStatus vonkSub_mamaT_64f_5x5_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) - src2(n)'; 5x5 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mamaT_64f_5x5_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) - src2(n)'; 6x6 double, n below count; standard layout. */
VonkStatus vonkSub_mamaT_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n) - src2(n)'; 6x6 double, n below count; S2, strided elements. */
VonkStatus vonkSub_mamaT_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) - src2(n)'; 6x6 double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_mamaT_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) - src2(n)'; 6x6 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_mamaT_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) - src2(n)'; 6x6 double, n below count; L, one pointer per object. */
VonkStatus vonkSub_mamaT_64f_6x6_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n) - src2(n)'; 6x6 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_mamaT_64f_6x6_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

/** dst(n) = src1(n)' - src2(n); `rows` by `cols` float, n below count; standard layout. */
VonkStatus vonkSub_maTma_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t cols,
    uint32_t rows, uint32_t count);
/** dst(n) = src1(n)' - src2(n); `rows` by `cols` float, n below count; S2, strided elements. */
VonkStatus vonkSub_maTma_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n)' - src2(n); `rows` by `cols` float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_maTma_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n)' - src2(n); `rows` by `cols` float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkSub_maTma_32f_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n)' - src2(n); `rows` by `cols` float, n below count; L, one pointer per object. */
VonkStatus vonkSub_maTma_32f_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n)' - src2(n); `rows` by `cols` float, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkSub_maTma_32f_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1(n)' - src2(n); 3x3 float, n below count; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkSub_maTma_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n)' - src2(n); 3x3 float, n below count; S2, strided elements. */
VonkStatus vonkSub_maTma_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' - src2(n); 3x3 float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_maTma_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n)' - src2(n); 3x3 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_maTma_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n)' - src2(n); 3x3 float, n below count; L, one pointer per object. Exception: sum-rows-loaded-first.
 * */
VonkStatus vonkSub_maTma_32f_3x3_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n)' - src2(n); 3x3 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_maTma_32f_3x3_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' - src2(n); 4x4 float, n below count; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkSub_maTma_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n)' - src2(n); 4x4 float, n below count; S2, strided elements. */
VonkStatus vonkSub_maTma_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' - src2(n); 4x4 float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_maTma_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n)' - src2(n); 4x4 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_maTma_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n)' - src2(n); 4x4 float, n below count; L, one pointer per object. Exception: sum-rows-loaded-first.
 * */
VonkStatus vonkSub_maTma_32f_4x4_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n)' - src2(n); 4x4 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_maTma_32f_4x4_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' - src2(n); 5x5 float, n below count; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkSub_maTma_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n)' - src2(n); 5x5 float, n below count; S2, strided elements. */
VonkStatus vonkSub_maTma_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' - src2(n); 5x5 float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_maTma_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n)' - src2(n); 5x5 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_maTma_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n)' - src2(n); 5x5 float, n below count; L, one pointer per object. Exception: sum-rows-loaded-first.
 * */
VonkStatus vonkSub_maTma_32f_5x5_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n)' - src2(n); 5x5 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_maTma_32f_5x5_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' - src2(n); 6x6 float, n below count; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkSub_maTma_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n)' - src2(n); 6x6 float, n below count; S2, strided elements. */
VonkStatus vonkSub_maTma_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' - src2(n); 6x6 float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_maTma_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n)' - src2(n); 6x6 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_maTma_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n)' - src2(n); 6x6 float, n below count; L, one pointer per object. Exception: sum-rows-loaded-first.
 * */
VonkStatus vonkSub_maTma_32f_6x6_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n)' - src2(n); 6x6 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_maTma_32f_6x6_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

/** dst(n) = src1(n)' - src2(n); `rows` by `cols` double, n below count; standard layout. */
VonkStatus vonkSub_maTma_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n)' - src2(n); `rows` by `cols` double, n below count; S2, strided elements. */
VonkStatus vonkSub_maTma_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1(n)' - src2(n); `rows` by `cols` double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_maTma_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n)' - src2(n); `rows` by `cols` double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkSub_maTma_64f_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n)' - src2(n); `rows` by `cols` double, n below count; L, one pointer per object. */
VonkStatus vonkSub_maTma_64f_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n)' - src2(n); `rows` by `cols` double, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkSub_maTma_64f_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1(n)' - src2(n); 3x3 double, n below count; standard layout. */
VonkStatus vonkSub_maTma_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n)' - src2(n); 3x3 double, n below count; S2, strided elements. */
VonkStatus vonkSub_maTma_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' - src2(n); 3x3 double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_maTma_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n)' - src2(n); 3x3 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_maTma_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n)' - src2(n); 3x3 double, n below count; L, one pointer per object. */
VonkStatus vonkSub_maTma_64f_3x3_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n)' - src2(n); 3x3 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_maTma_64f_3x3_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' - src2(n); 4x4 double, n below count; standard layout. */
VonkStatus vonkSub_maTma_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n)' - src2(n); 4x4 double, n below count; S2, strided elements. */
VonkStatus vonkSub_maTma_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' - src2(n); 4x4 double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_maTma_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n)' - src2(n); 4x4 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_maTma_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n)' - src2(n); 4x4 double, n below count; L, one pointer per object. */
VonkStatus vonkSub_maTma_64f_4x4_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n)' - src2(n); 4x4 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_maTma_64f_4x4_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' - src2(n); 5x5 double, n below count; standard layout. */
VonkStatus vonkSub_maTma_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n)' - src2(n); 5x5 double, n below count; S2, strided elements. */
VonkStatus vonkSub_maTma_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' - src2(n); 5x5 double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_maTma_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n)' - src2(n); 5x5 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_maTma_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n)' - src2(n); 5x5 double, n below count; L, one pointer per object. */
VonkStatus vonkSub_maTma_64f_5x5_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n)' - src2(n); 5x5 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_maTma_64f_5x5_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' - src2(n); 6x6 double, n below count; standard layout. */
VonkStatus vonkSub_maTma_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n)' - src2(n); 6x6 double, n below count; S2, strided elements. */
VonkStatus vonkSub_maTma_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' - src2(n); 6x6 double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_maTma_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n)' - src2(n); 6x6 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_maTma_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n)' - src2(n); 6x6 double, n below count; L, one pointer per object. */
VonkStatus vonkSub_maTma_64f_6x6_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n)' - src2(n); 6x6 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_maTma_64f_6x6_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

/** dst(n) = src1(n)' - src2(n)'; `rows` by `cols` float, n below count; standard layout. */
VonkStatus vonkSub_maTmaT_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t cols,
    uint32_t rows, uint32_t count);
/** dst(n) = src1(n)' - src2(n)'; `rows` by `cols` float, n below count; S2, strided elements. */
VonkStatus vonkSub_maTmaT_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1(n)' - src2(n)'; `rows` by `cols` float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_maTmaT_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n)' - src2(n)'; `rows` by `cols` float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkSub_maTmaT_32f_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n)' - src2(n)'; `rows` by `cols` float, n below count; L, one pointer per object. */
VonkStatus vonkSub_maTmaT_32f_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n)' - src2(n)'; `rows` by `cols` float, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkSub_maTmaT_32f_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1(n)' - src2(n)'; 3x3 float, n below count; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkSub_maTmaT_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n)' - src2(n)'; 3x3 float, n below count; S2, strided elements. */
VonkStatus vonkSub_maTmaT_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' - src2(n)'; 3x3 float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_maTmaT_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n)' - src2(n)'; 3x3 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_maTmaT_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n)' - src2(n)'; 3x3 float, n below count; L, one pointer per object. Exception: sum-rows-loaded-first.
 * */
VonkStatus vonkSub_maTmaT_32f_3x3_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n)' - src2(n)'; 3x3 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_maTmaT_32f_3x3_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' - src2(n)'; 4x4 float, n below count; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkSub_maTmaT_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n)' - src2(n)'; 4x4 float, n below count; S2, strided elements. */
VonkStatus vonkSub_maTmaT_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' - src2(n)'; 4x4 float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_maTmaT_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n)' - src2(n)'; 4x4 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_maTmaT_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n)' - src2(n)'; 4x4 float, n below count; L, one pointer per object. Exception: sum-rows-loaded-first.
 * */
VonkStatus vonkSub_maTmaT_32f_4x4_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n)' - src2(n)'; 4x4 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_maTmaT_32f_4x4_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' - src2(n)'; 5x5 float, n below count; standard layout. Exception: sum-rows-loaded-first. */
VonkStatus vonkSub_maTmaT_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n)' - src2(n)'; 5x5 float, n below count; S2, strided elements. */
VonkStatus vonkSub_maTmaT_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' - src2(n)'; 5x5 float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_maTmaT_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n)' - src2(n)'; 5x5 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_maTmaT_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n)' - src2(n)'; 5x5 float, n below count; L, one pointer per object. Exception: sum-rows-loaded-first.
 * */
VonkStatus vonkSub_maTmaT_32f_5x5_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n)' - src2(n)'; 5x5 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_maTmaT_32f_5x5_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' - src2(n)'; 6x6 float, n below count; standard layout. Exceptions: sub-other-elements,
 * sum-rows-loaded-first. */
VonkStatus vonkSub_maTmaT_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n)' - src2(n)'; 6x6 float, n below count; S2, strided elements. */
VonkStatus vonkSub_maTmaT_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' - src2(n)'; 6x6 float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_maTmaT_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n)' - src2(n)'; 6x6 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_maTmaT_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n)' - src2(n)'; 6x6 float, n below count; L, one pointer per object. Exceptions: sub-other-elements,
 * sum-rows-loaded-first. */
VonkStatus vonkSub_maTmaT_32f_6x6_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n)' - src2(n)'; 6x6 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_maTmaT_32f_6x6_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

/** dst(n) = src1(n)' - src2(n)'; `rows` by `cols` double, n below count; standard layout. */
VonkStatus vonkSub_maTmaT_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n)' - src2(n)'; `rows` by `cols` double, n below count; S2, strided elements. */
VonkStatus vonkSub_maTmaT_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1(n)' - src2(n)'; `rows` by `cols` double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_maTmaT_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n)' - src2(n)'; `rows` by `cols` double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkSub_maTmaT_64f_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n)' - src2(n)'; `rows` by `cols` double, n below count; L, one pointer per object. */
VonkStatus vonkSub_maTmaT_64f_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src1(n)' - src2(n)'; `rows` by `cols` double, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkSub_maTmaT_64f_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src1(n)' - src2(n)'; 3x3 double, n below count; standard layout. */
VonkStatus vonkSub_maTmaT_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n)' - src2(n)'; 3x3 double, n below count; S2, strided elements. */
VonkStatus vonkSub_maTmaT_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' - src2(n)'; 3x3 double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_maTmaT_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n)' - src2(n)'; 3x3 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_maTmaT_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n)' - src2(n)'; 3x3 double, n below count; L, one pointer per object. */
VonkStatus vonkSub_maTmaT_64f_3x3_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n)' - src2(n)'; 3x3 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_maTmaT_64f_3x3_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' - src2(n)'; 4x4 double, n below count; standard layout. */
VonkStatus vonkSub_maTmaT_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n)' - src2(n)'; 4x4 double, n below count; S2, strided elements. */
VonkStatus vonkSub_maTmaT_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' - src2(n)'; 4x4 double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_maTmaT_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n)' - src2(n)'; 4x4 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_maTmaT_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n)' - src2(n)'; 4x4 double, n below count; L, one pointer per object. */
VonkStatus vonkSub_maTmaT_64f_4x4_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n)' - src2(n)'; 4x4 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_maTmaT_64f_4x4_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' - src2(n)'; 5x5 double, n below count; standard layout. */
VonkStatus vonkSub_maTmaT_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n)' - src2(n)'; 5x5 double, n below count; S2, strided elements. */
VonkStatus vonkSub_maTmaT_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' - src2(n)'; 5x5 double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_maTmaT_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n)' - src2(n)'; 5x5 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_maTmaT_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n)' - src2(n)'; 5x5 double, n below count; L, one pointer per object. */
VonkStatus vonkSub_maTmaT_64f_5x5_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n)' - src2(n)'; 5x5 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_maTmaT_64f_5x5_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' - src2(n)'; 6x6 double, n below count; standard layout. */
VonkStatus vonkSub_maTmaT_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
/** dst(n) = src1(n)' - src2(n)'; 6x6 double, n below count; S2, strided elements. */
VonkStatus vonkSub_maTmaT_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n)' - src2(n)'; 6x6 double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_maTmaT_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n)' - src2(n)'; 6x6 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_maTmaT_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n)' - src2(n)'; 6x6 double, n below count; L, one pointer per object. */
VonkStatus vonkSub_maTmaT_64f_6x6_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
/** dst(n) = src1(n)' - src2(n)'; 6x6 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_maTmaT_64f_6x6_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

/* ---- Matrix times constant ------------------------------------------------------------------------------------------
 *
 * dst(n, i, j) = A(n, i, j) * `val`
 *
 * with A(n, i, j) = src(n, i, j), or src(n, j, i) in `mTc` and `maTc`. One rounded product and one store per element;
 * `64f` multiplies in the 80-bit type and rounds to 64 bits. A `val` of 0 multiplies too: NaN and infinity give NaN,
 * and zeros keep the sign of the product. The arithmetic of an element does not depend on the alignment of operands.
 *
 * Sizes: `cols` and `rows` are those of `dst`. A transposed source is stored as `cols` rows of `rows` columns.
 *
 * Status: vonkErrNullPtr if `src` or `dst` is null; vonkErrSize if `cols` or `rows` is 0; vonkErrNullPtr if a table or
 * list entry is null: in single forms in `P` element by element, earlier elements being final; in `P` and `PS2` of
 * arrays all entries of both tables before anything else, even at `count` 0; in `L` and `LS2` when the object's turn
 * comes, earlier objects being complete. `count` 0 then gives vonkOk with nothing written.
 *
 * Overlap:
 * Overlap is not checked. In `mc` and `mac` `dst` may be `src` (in place): each element is read before it is written.
 * In `mTc` and `maTc` it may not. With any other overlap elements are read and written one by one in ascending order,
 * so that a source element which `dst` has overwritten by then is read as overwritten.
 *
 * Exceptions:
 * - scale-position-8 (checks): vonkMul_mTc_{32f,64f}_4x4_P
 *   The entry at position 8 of the table of `src` is not checked; a null entry is followed.
 * - scale-rows-loaded-first (overlap): vonkMul_{mc,mTc}_32f_?x? vonkMul_{mac,maTc}_32f_?x?{,_L}
 *   A row or more of an object is loaded before it is stored; how much is not promised.
 */

/** dst = src * val; `rows` by `cols` float; standard layout. */
VonkStatus vonkMul_mc_32f(const float *src, int32_t srcRowStride, float val, float *dst, int32_t dstRowStride,
    uint32_t cols, uint32_t rows);
/** dst = src * val; `rows` by `cols` float; S2, strided elements. */
VonkStatus vonkMul_mc_32f_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float val, float *dst,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows);
/** dst = src * val; `rows` by `cols` float; P, one pointer per element position. */
VonkStatus vonkMul_mc_32f_P(const float *const *src, int32_t srcShift, float val, float *const *dst, int32_t dstShift,
    uint32_t cols, uint32_t rows);
/** dst = src * val; 3x3 float; standard layout. Exception: scale-rows-loaded-first. */
VonkStatus vonkMul_mc_32f_3x3(const float *src, int32_t srcRowStride, float val, float *dst, int32_t dstRowStride);
/** dst = src * val; 3x3 float; S2, strided elements. */
VonkStatus vonkMul_mc_32f_3x3_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float val, float *dst,
    int32_t dstRowStride, int32_t dstElemStride);
/** dst = src * val; 3x3 float; P, one pointer per element position. */
VonkStatus vonkMul_mc_32f_3x3_P(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift);
/** dst = src * val; 4x4 float; standard layout. Exception: scale-rows-loaded-first. */
VonkStatus vonkMul_mc_32f_4x4(const float *src, int32_t srcRowStride, float val, float *dst, int32_t dstRowStride);
/** dst = src * val; 4x4 float; S2, strided elements. */
VonkStatus vonkMul_mc_32f_4x4_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float val, float *dst,
    int32_t dstRowStride, int32_t dstElemStride);
/** dst = src * val; 4x4 float; P, one pointer per element position. */
VonkStatus vonkMul_mc_32f_4x4_P(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift);
/** dst = src * val; 5x5 float; standard layout. Exception: scale-rows-loaded-first. */
VonkStatus vonkMul_mc_32f_5x5(const float *src, int32_t srcRowStride, float val, float *dst, int32_t dstRowStride);
/** dst = src * val; 5x5 float; S2, strided elements. */
VonkStatus vonkMul_mc_32f_5x5_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float val, float *dst,
    int32_t dstRowStride, int32_t dstElemStride);
/** dst = src * val; 5x5 float; P, one pointer per element position. */
VonkStatus vonkMul_mc_32f_5x5_P(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift);
/** dst = src * val; 6x6 float; standard layout. Exception: scale-rows-loaded-first. */
VonkStatus vonkMul_mc_32f_6x6(const float *src, int32_t srcRowStride, float val, float *dst, int32_t dstRowStride);
/** dst = src * val; 6x6 float; S2, strided elements. */
VonkStatus vonkMul_mc_32f_6x6_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float val, float *dst,
    int32_t dstRowStride, int32_t dstElemStride);
/** dst = src * val; 6x6 float; P, one pointer per element position. */
VonkStatus vonkMul_mc_32f_6x6_P(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift);

/** dst = src * val; `rows` by `cols` double; standard layout. */
VonkStatus vonkMul_mc_64f(const double *src, int32_t srcRowStride, double val, double *dst, int32_t dstRowStride,
    uint32_t cols, uint32_t rows);
/** dst = src * val; `rows` by `cols` double; S2, strided elements. */
VonkStatus vonkMul_mc_64f_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, double val, double *dst,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows);
/** dst = src * val; `rows` by `cols` double; P, one pointer per element position. */
VonkStatus vonkMul_mc_64f_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift, uint32_t cols, uint32_t rows);
/** dst = src * val; 3x3 double; standard layout. */
VonkStatus vonkMul_mc_64f_3x3(const double *src, int32_t srcRowStride, double val, double *dst, int32_t dstRowStride);
/** dst = src * val; 3x3 double; S2, strided elements. */
VonkStatus vonkMul_mc_64f_3x3_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, double val,
    double *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = src * val; 3x3 double; P, one pointer per element position. */
VonkStatus vonkMul_mc_64f_3x3_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift);
/** dst = src * val; 4x4 double; standard layout. */
VonkStatus vonkMul_mc_64f_4x4(const double *src, int32_t srcRowStride, double val, double *dst, int32_t dstRowStride);
/** dst = src * val; 4x4 double; S2, strided elements. */
VonkStatus vonkMul_mc_64f_4x4_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, double val,
    double *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = src * val; 4x4 double; P, one pointer per element position. */
VonkStatus vonkMul_mc_64f_4x4_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift);
/** dst = src * val; 5x5 double; standard layout. */
VonkStatus vonkMul_mc_64f_5x5(const double *src, int32_t srcRowStride, double val, double *dst, int32_t dstRowStride);
/** dst = src * val; 5x5 double; S2, strided elements. */
VonkStatus vonkMul_mc_64f_5x5_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, double val,
    double *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = src * val; 5x5 double; P, one pointer per element position. */
VonkStatus vonkMul_mc_64f_5x5_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift);
/** dst = src * val; 6x6 double; standard layout. */
VonkStatus vonkMul_mc_64f_6x6(const double *src, int32_t srcRowStride, double val, double *dst, int32_t dstRowStride);
/** dst = src * val; 6x6 double; S2, strided elements. */
VonkStatus vonkMul_mc_64f_6x6_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, double val,
    double *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = src * val; 6x6 double; P, one pointer per element position. */
VonkStatus vonkMul_mc_64f_6x6_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift);

/** dst = src' * val; `rows` by `cols` float; standard layout. */
VonkStatus vonkMul_mTc_32f(const float *src, int32_t srcRowStride, float val, float *dst, int32_t dstRowStride,
    uint32_t cols, uint32_t rows);
/** dst = src' * val; `rows` by `cols` float; S2, strided elements. */
VonkStatus vonkMul_mTc_32f_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float val, float *dst,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows);
/** dst = src' * val; `rows` by `cols` float; P, one pointer per element position. */
VonkStatus vonkMul_mTc_32f_P(const float *const *src, int32_t srcShift, float val, float *const *dst, int32_t dstShift,
    uint32_t cols, uint32_t rows);
/** dst = src' * val; 3x3 float; standard layout. Exception: scale-rows-loaded-first. */
VonkStatus vonkMul_mTc_32f_3x3(const float *src, int32_t srcRowStride, float val, float *dst, int32_t dstRowStride);
/** dst = src' * val; 3x3 float; S2, strided elements. */
VonkStatus vonkMul_mTc_32f_3x3_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float val, float *dst,
    int32_t dstRowStride, int32_t dstElemStride);
/** dst = src' * val; 3x3 float; P, one pointer per element position. */
VonkStatus vonkMul_mTc_32f_3x3_P(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift);
/** dst = src' * val; 4x4 float; standard layout. Exception: scale-rows-loaded-first. */
VonkStatus vonkMul_mTc_32f_4x4(const float *src, int32_t srcRowStride, float val, float *dst, int32_t dstRowStride);
/** dst = src' * val; 4x4 float; S2, strided elements. */
VonkStatus vonkMul_mTc_32f_4x4_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float val, float *dst,
    int32_t dstRowStride, int32_t dstElemStride);
/** dst = src' * val; 4x4 float; P, one pointer per element position. Exception: scale-position-8. */
VonkStatus vonkMul_mTc_32f_4x4_P(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift);
/** dst = src' * val; 5x5 float; standard layout. Exception: scale-rows-loaded-first. */
VonkStatus vonkMul_mTc_32f_5x5(const float *src, int32_t srcRowStride, float val, float *dst, int32_t dstRowStride);
/** dst = src' * val; 5x5 float; S2, strided elements. */
VonkStatus vonkMul_mTc_32f_5x5_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float val, float *dst,
    int32_t dstRowStride, int32_t dstElemStride);
/** dst = src' * val; 5x5 float; P, one pointer per element position. */
VonkStatus vonkMul_mTc_32f_5x5_P(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift);
/** dst = src' * val; 6x6 float; standard layout. Exception: scale-rows-loaded-first. */
VonkStatus vonkMul_mTc_32f_6x6(const float *src, int32_t srcRowStride, float val, float *dst, int32_t dstRowStride);
/** dst = src' * val; 6x6 float; S2, strided elements. */
VonkStatus vonkMul_mTc_32f_6x6_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float val, float *dst,
    int32_t dstRowStride, int32_t dstElemStride);
/** dst = src' * val; 6x6 float; P, one pointer per element position. */
VonkStatus vonkMul_mTc_32f_6x6_P(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift);

/** dst = src' * val; `rows` by `cols` double; standard layout. */
VonkStatus vonkMul_mTc_64f(const double *src, int32_t srcRowStride, double val, double *dst, int32_t dstRowStride,
    uint32_t cols, uint32_t rows);
/** dst = src' * val; `rows` by `cols` double; S2, strided elements. */
VonkStatus vonkMul_mTc_64f_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, double val, double *dst,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows);
/** dst = src' * val; `rows` by `cols` double; P, one pointer per element position. */
VonkStatus vonkMul_mTc_64f_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift, uint32_t cols, uint32_t rows);
/** dst = src' * val; 3x3 double; standard layout. */
VonkStatus vonkMul_mTc_64f_3x3(const double *src, int32_t srcRowStride, double val, double *dst, int32_t dstRowStride);
/** dst = src' * val; 3x3 double; S2, strided elements. */
VonkStatus vonkMul_mTc_64f_3x3_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, double val,
    double *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = src' * val; 3x3 double; P, one pointer per element position. */
VonkStatus vonkMul_mTc_64f_3x3_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift);
/** dst = src' * val; 4x4 double; standard layout. */
VonkStatus vonkMul_mTc_64f_4x4(const double *src, int32_t srcRowStride, double val, double *dst, int32_t dstRowStride);
/** dst = src' * val; 4x4 double; S2, strided elements. */
VonkStatus vonkMul_mTc_64f_4x4_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, double val,
    double *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = src' * val; 4x4 double; P, one pointer per element position. Exception: scale-position-8. */
VonkStatus vonkMul_mTc_64f_4x4_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift);
/** dst = src' * val; 5x5 double; standard layout. */
VonkStatus vonkMul_mTc_64f_5x5(const double *src, int32_t srcRowStride, double val, double *dst, int32_t dstRowStride);
/** dst = src' * val; 5x5 double; S2, strided elements. */
VonkStatus vonkMul_mTc_64f_5x5_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, double val,
    double *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = src' * val; 5x5 double; P, one pointer per element position. */
VonkStatus vonkMul_mTc_64f_5x5_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift);
/** dst = src' * val; 6x6 double; standard layout. */
VonkStatus vonkMul_mTc_64f_6x6(const double *src, int32_t srcRowStride, double val, double *dst, int32_t dstRowStride);
/** dst = src' * val; 6x6 double; S2, strided elements. */
VonkStatus vonkMul_mTc_64f_6x6_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, double val,
    double *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = src' * val; 6x6 double; P, one pointer per element position. */
VonkStatus vonkMul_mTc_64f_6x6_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift);

/** dst(n) = src(n) * val; `rows` by `cols` float, n below count; standard layout. */
VonkStatus vonkMul_mac_32f(const float *src, int32_t srcObjStride, int32_t srcRowStride, float val, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src(n) * val; `rows` by `cols` float, n below count; S2, strided elements. */
VonkStatus vonkMul_mac_32f_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    float val, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols,
    uint32_t rows, uint32_t count);
/** dst(n) = src(n) * val; `rows` by `cols` float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mac_32f_P(const float *const *src, int32_t srcShift, float val, float *const *dst, int32_t dstShift,
    uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src(n) * val; `rows` by `cols` float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mac_32f_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src(n) * val; `rows` by `cols` float, n below count; L, one pointer per object. */
VonkStatus vonkMul_mac_32f_L(const float *const *src, int32_t srcShift, int32_t srcRowStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src(n) * val; `rows` by `cols` float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_mac_32f_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride, int32_t srcElemStride,
    float val, float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols,
    uint32_t rows, uint32_t count);
/** dst(n) = src(n) * val; 3x3 float, n below count; standard layout. Exception: scale-rows-loaded-first. */
VonkStatus vonkMul_mac_32f_3x3(const float *src, int32_t srcObjStride, int32_t srcRowStride, float val, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src(n) * val; 3x3 float, n below count; S2, strided elements. */
VonkStatus vonkMul_mac_32f_3x3_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    float val, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src(n) * val; 3x3 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mac_32f_3x3_P(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src(n) * val; 3x3 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkMul_mac_32f_3x3_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = src(n) * val; 3x3 float, n below count; L, one pointer per object. Exception: scale-rows-loaded-first. */
VonkStatus vonkMul_mac_32f_3x3_L(const float *const *src, int32_t srcShift, int32_t srcRowStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = src(n) * val; 3x3 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_mac_32f_3x3_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, float val, float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = src(n) * val; 4x4 float, n below count; standard layout. Exception: scale-rows-loaded-first. */
VonkStatus vonkMul_mac_32f_4x4(const float *src, int32_t srcObjStride, int32_t srcRowStride, float val, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src(n) * val; 4x4 float, n below count; S2, strided elements. */
VonkStatus vonkMul_mac_32f_4x4_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    float val, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src(n) * val; 4x4 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mac_32f_4x4_P(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src(n) * val; 4x4 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkMul_mac_32f_4x4_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = src(n) * val; 4x4 float, n below count; L, one pointer per object. Exception: scale-rows-loaded-first. */
VonkStatus vonkMul_mac_32f_4x4_L(const float *const *src, int32_t srcShift, int32_t srcRowStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = src(n) * val; 4x4 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_mac_32f_4x4_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, float val, float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = src(n) * val; 5x5 float, n below count; standard layout. Exception: scale-rows-loaded-first. */
VonkStatus vonkMul_mac_32f_5x5(const float *src, int32_t srcObjStride, int32_t srcRowStride, float val, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src(n) * val; 5x5 float, n below count; S2, strided elements. */
VonkStatus vonkMul_mac_32f_5x5_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    float val, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src(n) * val; 5x5 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mac_32f_5x5_P(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src(n) * val; 5x5 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkMul_mac_32f_5x5_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = src(n) * val; 5x5 float, n below count; L, one pointer per object. Exception: scale-rows-loaded-first. */
VonkStatus vonkMul_mac_32f_5x5_L(const float *const *src, int32_t srcShift, int32_t srcRowStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = src(n) * val; 5x5 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_mac_32f_5x5_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, float val, float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = src(n) * val; 6x6 float, n below count; standard layout. Exception: scale-rows-loaded-first. */
VonkStatus vonkMul_mac_32f_6x6(const float *src, int32_t srcObjStride, int32_t srcRowStride, float val, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src(n) * val; 6x6 float, n below count; S2, strided elements. */
VonkStatus vonkMul_mac_32f_6x6_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    float val, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src(n) * val; 6x6 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mac_32f_6x6_P(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src(n) * val; 6x6 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkMul_mac_32f_6x6_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = src(n) * val; 6x6 float, n below count; L, one pointer per object. Exception: scale-rows-loaded-first. */
VonkStatus vonkMul_mac_32f_6x6_L(const float *const *src, int32_t srcShift, int32_t srcRowStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = src(n) * val; 6x6 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_mac_32f_6x6_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, float val, float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);

/** dst(n) = src(n) * val; `rows` by `cols` double, n below count; standard layout. */
VonkStatus vonkMul_mac_64f(const double *src, int32_t srcObjStride, int32_t srcRowStride, double val, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src(n) * val; `rows` by `cols` double, n below count; S2, strided elements. */
VonkStatus vonkMul_mac_64f_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    double val, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols,
    uint32_t rows, uint32_t count);
/** dst(n) = src(n) * val; `rows` by `cols` double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mac_64f_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src(n) * val; `rows` by `cols` double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_mac_64f_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src(n) * val; `rows` by `cols` double, n below count; L, one pointer per object. */
VonkStatus vonkMul_mac_64f_L(const double *const *src, int32_t srcShift, int32_t srcRowStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src(n) * val; `rows` by `cols` double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_mac_64f_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride, int32_t srcElemStride,
    double val, double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols,
    uint32_t rows, uint32_t count);
/** dst(n) = src(n) * val; 3x3 double, n below count; standard layout. */
VonkStatus vonkMul_mac_64f_3x3(const double *src, int32_t srcObjStride, int32_t srcRowStride, double val, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src(n) * val; 3x3 double, n below count; S2, strided elements. */
VonkStatus vonkMul_mac_64f_3x3_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    double val, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src(n) * val; 3x3 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mac_64f_3x3_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src(n) * val; 3x3 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkMul_mac_64f_3x3_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = src(n) * val; 3x3 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_mac_64f_3x3_L(const double *const *src, int32_t srcShift, int32_t srcRowStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = src(n) * val; 3x3 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_mac_64f_3x3_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, double val, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = src(n) * val; 4x4 double, n below count; standard layout. */
VonkStatus vonkMul_mac_64f_4x4(const double *src, int32_t srcObjStride, int32_t srcRowStride, double val, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src(n) * val; 4x4 double, n below count; S2, strided elements. */
VonkStatus vonkMul_mac_64f_4x4_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    double val, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src(n) * val; 4x4 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mac_64f_4x4_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src(n) * val; 4x4 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkMul_mac_64f_4x4_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = src(n) * val; 4x4 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_mac_64f_4x4_L(const double *const *src, int32_t srcShift, int32_t srcRowStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = src(n) * val; 4x4 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_mac_64f_4x4_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, double val, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = src(n) * val; 5x5 double, n below count; standard layout. */
VonkStatus vonkMul_mac_64f_5x5(const double *src, int32_t srcObjStride, int32_t srcRowStride, double val, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src(n) * val; 5x5 double, n below count; S2, strided elements. */
VonkStatus vonkMul_mac_64f_5x5_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    double val, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src(n) * val; 5x5 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mac_64f_5x5_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src(n) * val; 5x5 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkMul_mac_64f_5x5_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = src(n) * val; 5x5 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_mac_64f_5x5_L(const double *const *src, int32_t srcShift, int32_t srcRowStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = src(n) * val; 5x5 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_mac_64f_5x5_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, double val, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = src(n) * val; 6x6 double, n below count; standard layout. */
VonkStatus vonkMul_mac_64f_6x6(const double *src, int32_t srcObjStride, int32_t srcRowStride, double val, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src(n) * val; 6x6 double, n below count; S2, strided elements. */
VonkStatus vonkMul_mac_64f_6x6_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    double val, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src(n) * val; 6x6 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_mac_64f_6x6_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src(n) * val; 6x6 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkMul_mac_64f_6x6_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = src(n) * val; 6x6 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_mac_64f_6x6_L(const double *const *src, int32_t srcShift, int32_t srcRowStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = src(n) * val; 6x6 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_mac_64f_6x6_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, double val, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);

/** dst(n) = src(n)' * val; `rows` by `cols` float, n below count; standard layout. */
VonkStatus vonkMul_maTc_32f(const float *src, int32_t srcObjStride, int32_t srcRowStride, float val, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src(n)' * val; `rows` by `cols` float, n below count; S2, strided elements. */
VonkStatus vonkMul_maTc_32f_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    float val, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols,
    uint32_t rows, uint32_t count);
/** dst(n) = src(n)' * val; `rows` by `cols` float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_maTc_32f_P(const float *const *src, int32_t srcShift, float val, float *const *dst, int32_t dstShift,
    uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src(n)' * val; `rows` by `cols` float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_maTc_32f_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src(n)' * val; `rows` by `cols` float, n below count; L, one pointer per object. */
VonkStatus vonkMul_maTc_32f_L(const float *const *src, int32_t srcShift, int32_t srcRowStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src(n)' * val; `rows` by `cols` float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_maTc_32f_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride, int32_t srcElemStride,
    float val, float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols,
    uint32_t rows, uint32_t count);
/** dst(n) = src(n)' * val; 3x3 float, n below count; standard layout. Exception: scale-rows-loaded-first. */
VonkStatus vonkMul_maTc_32f_3x3(const float *src, int32_t srcObjStride, int32_t srcRowStride, float val, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src(n)' * val; 3x3 float, n below count; S2, strided elements. */
VonkStatus vonkMul_maTc_32f_3x3_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    float val, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src(n)' * val; 3x3 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_maTc_32f_3x3_P(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src(n)' * val; 3x3 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkMul_maTc_32f_3x3_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = src(n)' * val; 3x3 float, n below count; L, one pointer per object. Exception: scale-rows-loaded-first. */
VonkStatus vonkMul_maTc_32f_3x3_L(const float *const *src, int32_t srcShift, int32_t srcRowStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = src(n)' * val; 3x3 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_maTc_32f_3x3_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, float val, float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = src(n)' * val; 4x4 float, n below count; standard layout. Exception: scale-rows-loaded-first. */
VonkStatus vonkMul_maTc_32f_4x4(const float *src, int32_t srcObjStride, int32_t srcRowStride, float val, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src(n)' * val; 4x4 float, n below count; S2, strided elements. */
VonkStatus vonkMul_maTc_32f_4x4_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    float val, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src(n)' * val; 4x4 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_maTc_32f_4x4_P(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src(n)' * val; 4x4 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkMul_maTc_32f_4x4_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = src(n)' * val; 4x4 float, n below count; L, one pointer per object. Exception: scale-rows-loaded-first. */
VonkStatus vonkMul_maTc_32f_4x4_L(const float *const *src, int32_t srcShift, int32_t srcRowStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = src(n)' * val; 4x4 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_maTc_32f_4x4_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, float val, float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = src(n)' * val; 5x5 float, n below count; standard layout. Exception: scale-rows-loaded-first. */
VonkStatus vonkMul_maTc_32f_5x5(const float *src, int32_t srcObjStride, int32_t srcRowStride, float val, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src(n)' * val; 5x5 float, n below count; S2, strided elements. */
VonkStatus vonkMul_maTc_32f_5x5_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    float val, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src(n)' * val; 5x5 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_maTc_32f_5x5_P(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src(n)' * val; 5x5 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkMul_maTc_32f_5x5_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = src(n)' * val; 5x5 float, n below count; L, one pointer per object. Exception: scale-rows-loaded-first. */
VonkStatus vonkMul_maTc_32f_5x5_L(const float *const *src, int32_t srcShift, int32_t srcRowStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = src(n)' * val; 5x5 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_maTc_32f_5x5_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, float val, float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = src(n)' * val; 6x6 float, n below count; standard layout. Exception: scale-rows-loaded-first. */
VonkStatus vonkMul_maTc_32f_6x6(const float *src, int32_t srcObjStride, int32_t srcRowStride, float val, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src(n)' * val; 6x6 float, n below count; S2, strided elements. */
VonkStatus vonkMul_maTc_32f_6x6_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    float val, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src(n)' * val; 6x6 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_maTc_32f_6x6_P(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src(n)' * val; 6x6 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkMul_maTc_32f_6x6_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = src(n)' * val; 6x6 float, n below count; L, one pointer per object. Exception: scale-rows-loaded-first. */
VonkStatus vonkMul_maTc_32f_6x6_L(const float *const *src, int32_t srcShift, int32_t srcRowStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = src(n)' * val; 6x6 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_maTc_32f_6x6_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, float val, float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);

/** dst(n) = src(n)' * val; `rows` by `cols` double, n below count; standard layout. */
VonkStatus vonkMul_maTc_64f(const double *src, int32_t srcObjStride, int32_t srcRowStride, double val, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src(n)' * val; `rows` by `cols` double, n below count; S2, strided elements. */
VonkStatus vonkMul_maTc_64f_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    double val, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols,
    uint32_t rows, uint32_t count);
/** dst(n) = src(n)' * val; `rows` by `cols` double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_maTc_64f_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src(n)' * val; `rows` by `cols` double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkMul_maTc_64f_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src(n)' * val; `rows` by `cols` double, n below count; L, one pointer per object. */
VonkStatus vonkMul_maTc_64f_L(const double *const *src, int32_t srcShift, int32_t srcRowStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src(n)' * val; `rows` by `cols` double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_maTc_64f_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride, int32_t srcElemStride,
    double val, double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols,
    uint32_t rows, uint32_t count);
/** dst(n) = src(n)' * val; 3x3 double, n below count; standard layout. */
VonkStatus vonkMul_maTc_64f_3x3(const double *src, int32_t srcObjStride, int32_t srcRowStride, double val, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src(n)' * val; 3x3 double, n below count; S2, strided elements. */
VonkStatus vonkMul_maTc_64f_3x3_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    double val, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src(n)' * val; 3x3 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_maTc_64f_3x3_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src(n)' * val; 3x3 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkMul_maTc_64f_3x3_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = src(n)' * val; 3x3 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_maTc_64f_3x3_L(const double *const *src, int32_t srcShift, int32_t srcRowStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = src(n)' * val; 3x3 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_maTc_64f_3x3_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, double val, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = src(n)' * val; 4x4 double, n below count; standard layout. */
VonkStatus vonkMul_maTc_64f_4x4(const double *src, int32_t srcObjStride, int32_t srcRowStride, double val, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src(n)' * val; 4x4 double, n below count; S2, strided elements. */
VonkStatus vonkMul_maTc_64f_4x4_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    double val, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src(n)' * val; 4x4 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_maTc_64f_4x4_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src(n)' * val; 4x4 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkMul_maTc_64f_4x4_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = src(n)' * val; 4x4 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_maTc_64f_4x4_L(const double *const *src, int32_t srcShift, int32_t srcRowStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = src(n)' * val; 4x4 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_maTc_64f_4x4_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, double val, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = src(n)' * val; 5x5 double, n below count; standard layout. */
VonkStatus vonkMul_maTc_64f_5x5(const double *src, int32_t srcObjStride, int32_t srcRowStride, double val, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src(n)' * val; 5x5 double, n below count; S2, strided elements. */
VonkStatus vonkMul_maTc_64f_5x5_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    double val, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src(n)' * val; 5x5 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_maTc_64f_5x5_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src(n)' * val; 5x5 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkMul_maTc_64f_5x5_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = src(n)' * val; 5x5 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_maTc_64f_5x5_L(const double *const *src, int32_t srcShift, int32_t srcRowStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = src(n)' * val; 5x5 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_maTc_64f_5x5_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, double val, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = src(n)' * val; 6x6 double, n below count; standard layout. */
VonkStatus vonkMul_maTc_64f_6x6(const double *src, int32_t srcObjStride, int32_t srcRowStride, double val, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = src(n)' * val; 6x6 double, n below count; S2, strided elements. */
VonkStatus vonkMul_maTc_64f_6x6_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    double val, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src(n)' * val; 6x6 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_maTc_64f_6x6_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src(n)' * val; 6x6 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkMul_maTc_64f_6x6_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = src(n)' * val; 6x6 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_maTc_64f_6x6_L(const double *const *src, int32_t srcShift, int32_t srcRowStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = src(n)' * val; 6x6 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_maTc_64f_6x6_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, double val, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);

/* ---- Transpose ------------------------------------------------------------------------------------------------------
 *
 * dst(n, j, i) = src(n, i, j)
 *
 * for i below `rows` and j below `cols`, which are the sizes of the SOURCE. Elements are copied bit by bit, without
 * arithmetic: signalling NaNs and signs of zeros are kept.
 *
 * Status: vonkErrNullPtr if `src` or `dst` is null; vonkErrSize if `cols` or `rows` is 0; vonkErrNullPtr if a table or
 * list entry is null: in single forms in `P` element by element, earlier elements being final; in `P` and `PS2` of
 * arrays all `cols` * `rows` entries of both tables before anything else, even at `count` 0; in `L` and `LS2` when the
 * object's turn comes, earlier objects being complete. `count` 0 then gives vonkOk with nothing written.
 *
 * Overlap:
 * Overlap is not checked, and a call in place does not transpose: elements are copied one by one along the rows of the
 * source, so the upper triangle has overwritten the lower one by the time that is read.
 *
 * Exceptions:
 * - transpose-crosswise (result): vonkTranspose_{m_{32f,64f}_P,ma_{32f,64f}_{P,PS2}}
 *   The lengths of the tables' rows are exchanged: element (i, j) goes from entry i * `rows` + j of `src` to entry j *
 *   `cols` + i of `dst`, i outermost. A square matrix is transposed; of others some entries are read or written twice,
 *   and the later write stays.
 * - transpose-loaded-first (overlap): vonkTranspose_{m_32f_{4x4,5x5,6x6},ma_32f_{4x4,5x5,6x6}{,_L}}
 *   More than one element of an object is loaded before it is stored; how many is not promised.
 * - transpose-reads-entries (reads): vonkTranspose_{m_{32f,64f}_P,ma_{32f,64f}_{P,PS2}}
 *   Of matrices that are not square, table entries past the `cols` * `rows`th are read. The checks of `ma` do not cover
 *   them.
 */

/** dst = transpose of src; `rows` by `cols` float; standard layout. */
VonkStatus vonkTranspose_m_32f(const float *src, int32_t srcRowStride, uint32_t cols, uint32_t rows, float *dst,
    int32_t dstRowStride);
/** dst = transpose of src; `rows` by `cols` float; S2, strided elements. */
VonkStatus vonkTranspose_m_32f_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, uint32_t cols,
    uint32_t rows, float *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = transpose of src; `rows` by `cols` float; P, one pointer per element position. Exceptions:
 * transpose-crosswise, transpose-reads-entries. */
VonkStatus vonkTranspose_m_32f_P(const float *const *src, int32_t srcShift, uint32_t cols, uint32_t rows,
    float *const *dst, int32_t dstShift);
/** dst = transpose of src; 3x3 float; standard layout. */
VonkStatus vonkTranspose_m_32f_3x3(const float *src, int32_t srcRowStride, float *dst, int32_t dstRowStride);
/** dst = transpose of src; 3x3 float; S2, strided elements. */
VonkStatus vonkTranspose_m_32f_3x3_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float *dst,
    int32_t dstRowStride, int32_t dstElemStride);
/** dst = transpose of src; 3x3 float; P, one pointer per element position. */
VonkStatus vonkTranspose_m_32f_3x3_P(const float *const *src, int32_t srcShift, float *const *dst, int32_t dstShift);
/** dst = transpose of src; 4x4 float; standard layout. Exception: transpose-loaded-first. */
VonkStatus vonkTranspose_m_32f_4x4(const float *src, int32_t srcRowStride, float *dst, int32_t dstRowStride);
/** dst = transpose of src; 4x4 float; S2, strided elements. */
VonkStatus vonkTranspose_m_32f_4x4_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float *dst,
    int32_t dstRowStride, int32_t dstElemStride);
/** dst = transpose of src; 4x4 float; P, one pointer per element position. */
VonkStatus vonkTranspose_m_32f_4x4_P(const float *const *src, int32_t srcShift, float *const *dst, int32_t dstShift);
/** dst = transpose of src; 5x5 float; standard layout. Exception: transpose-loaded-first. */
VonkStatus vonkTranspose_m_32f_5x5(const float *src, int32_t srcRowStride, float *dst, int32_t dstRowStride);
/** dst = transpose of src; 5x5 float; S2, strided elements. */
VonkStatus vonkTranspose_m_32f_5x5_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float *dst,
    int32_t dstRowStride, int32_t dstElemStride);
/** dst = transpose of src; 5x5 float; P, one pointer per element position. */
VonkStatus vonkTranspose_m_32f_5x5_P(const float *const *src, int32_t srcShift, float *const *dst, int32_t dstShift);
/** dst = transpose of src; 6x6 float; standard layout. Exception: transpose-loaded-first. */
VonkStatus vonkTranspose_m_32f_6x6(const float *src, int32_t srcRowStride, float *dst, int32_t dstRowStride);
/** dst = transpose of src; 6x6 float; S2, strided elements. */
VonkStatus vonkTranspose_m_32f_6x6_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float *dst,
    int32_t dstRowStride, int32_t dstElemStride);
/** dst = transpose of src; 6x6 float; P, one pointer per element position. */
VonkStatus vonkTranspose_m_32f_6x6_P(const float *const *src, int32_t srcShift, float *const *dst, int32_t dstShift);

/** dst = transpose of src; `rows` by `cols` double; standard layout. */
VonkStatus vonkTranspose_m_64f(const double *src, int32_t srcRowStride, uint32_t cols, uint32_t rows, double *dst,
    int32_t dstRowStride);
/** dst = transpose of src; `rows` by `cols` double; S2, strided elements. */
VonkStatus vonkTranspose_m_64f_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, uint32_t cols,
    uint32_t rows, double *dst, int32_t dstRowStride, int32_t dstElemStride);
/** dst = transpose of src; `rows` by `cols` double; P, one pointer per element position. Exceptions:
 * transpose-crosswise, transpose-reads-entries. */
VonkStatus vonkTranspose_m_64f_P(const double *const *src, int32_t srcShift, uint32_t cols, uint32_t rows,
    double *const *dst, int32_t dstShift);
/** dst = transpose of src; 3x3 double; standard layout. */
VonkStatus vonkTranspose_m_64f_3x3(const double *src, int32_t srcRowStride, double *dst, int32_t dstRowStride);
/** dst = transpose of src; 3x3 double; S2, strided elements. */
VonkStatus vonkTranspose_m_64f_3x3_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, double *dst,
    int32_t dstRowStride, int32_t dstElemStride);
/** dst = transpose of src; 3x3 double; P, one pointer per element position. */
VonkStatus vonkTranspose_m_64f_3x3_P(const double *const *src, int32_t srcShift, double *const *dst, int32_t dstShift);
/** dst = transpose of src; 4x4 double; standard layout. */
VonkStatus vonkTranspose_m_64f_4x4(const double *src, int32_t srcRowStride, double *dst, int32_t dstRowStride);
/** dst = transpose of src; 4x4 double; S2, strided elements. */
VonkStatus vonkTranspose_m_64f_4x4_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, double *dst,
    int32_t dstRowStride, int32_t dstElemStride);
/** dst = transpose of src; 4x4 double; P, one pointer per element position. */
VonkStatus vonkTranspose_m_64f_4x4_P(const double *const *src, int32_t srcShift, double *const *dst, int32_t dstShift);
/** dst = transpose of src; 5x5 double; standard layout. */
VonkStatus vonkTranspose_m_64f_5x5(const double *src, int32_t srcRowStride, double *dst, int32_t dstRowStride);
/** dst = transpose of src; 5x5 double; S2, strided elements. */
VonkStatus vonkTranspose_m_64f_5x5_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, double *dst,
    int32_t dstRowStride, int32_t dstElemStride);
/** dst = transpose of src; 5x5 double; P, one pointer per element position. */
VonkStatus vonkTranspose_m_64f_5x5_P(const double *const *src, int32_t srcShift, double *const *dst, int32_t dstShift);
/** dst = transpose of src; 6x6 double; standard layout. */
VonkStatus vonkTranspose_m_64f_6x6(const double *src, int32_t srcRowStride, double *dst, int32_t dstRowStride);
/** dst = transpose of src; 6x6 double; S2, strided elements. */
VonkStatus vonkTranspose_m_64f_6x6_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, double *dst,
    int32_t dstRowStride, int32_t dstElemStride);
/** dst = transpose of src; 6x6 double; P, one pointer per element position. */
VonkStatus vonkTranspose_m_64f_6x6_P(const double *const *src, int32_t srcShift, double *const *dst, int32_t dstShift);

/** dst(n) = transpose of src(n); `rows` by `cols` float, n below count; standard layout. */
VonkStatus vonkTranspose_ma_32f(const float *src, int32_t srcObjStride, int32_t srcRowStride, uint32_t cols,
    uint32_t rows, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = transpose of src(n); `rows` by `cols` float, n below count; S2, strided elements. */
VonkStatus vonkTranspose_ma_32f_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    uint32_t cols, uint32_t rows, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = transpose of src(n); `rows` by `cols` float, n below count; P, one pointer per element position.
 * Exceptions: transpose-crosswise, transpose-reads-entries. */
VonkStatus vonkTranspose_ma_32f_P(const float *const *src, int32_t srcShift, uint32_t cols, uint32_t rows,
    float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = transpose of src(n); `rows` by `cols` float, n below count; PS2, one pointer per element position, strided
 * objects. Exceptions: transpose-crosswise, transpose-reads-entries. */
VonkStatus vonkTranspose_ma_32f_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, uint32_t cols,
    uint32_t rows, float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = transpose of src(n); `rows` by `cols` float, n below count; L, one pointer per object. */
VonkStatus vonkTranspose_ma_32f_L(const float *const *src, int32_t srcShift, int32_t srcRowStride, uint32_t cols,
    uint32_t rows, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = transpose of src(n); `rows` by `cols` float, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkTranspose_ma_32f_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, uint32_t cols, uint32_t rows, float *const *dst, int32_t dstShift, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = transpose of src(n); 3x3 float, n below count; standard layout. */
VonkStatus vonkTranspose_ma_32f_3x3(const float *src, int32_t srcObjStride, int32_t srcRowStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = transpose of src(n); 3x3 float, n below count; S2, strided elements. */
VonkStatus vonkTranspose_ma_32f_3x3_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
    int32_t srcElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = transpose of src(n); 3x3 float, n below count; P, one pointer per element position. */
VonkStatus vonkTranspose_ma_32f_3x3_P(const float *const *src, int32_t srcShift, float *const *dst, int32_t dstShift,
    uint32_t count);
/** dst(n) = transpose of src(n); 3x3 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkTranspose_ma_32f_3x3_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = transpose of src(n); 3x3 float, n below count; L, one pointer per object. */
VonkStatus vonkTranspose_ma_32f_3x3_L(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = transpose of src(n); 3x3 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkTranspose_ma_32f_3x3_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = transpose of src(n); 4x4 float, n below count; standard layout. Exception: transpose-loaded-first. */
VonkStatus vonkTranspose_ma_32f_4x4(const float *src, int32_t srcObjStride, int32_t srcRowStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = transpose of src(n); 4x4 float, n below count; S2, strided elements. */
VonkStatus vonkTranspose_ma_32f_4x4_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
    int32_t srcElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = transpose of src(n); 4x4 float, n below count; P, one pointer per element position. */
VonkStatus vonkTranspose_ma_32f_4x4_P(const float *const *src, int32_t srcShift, float *const *dst, int32_t dstShift,
    uint32_t count);
/** dst(n) = transpose of src(n); 4x4 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkTranspose_ma_32f_4x4_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = transpose of src(n); 4x4 float, n below count; L, one pointer per object. Exception:
 * transpose-loaded-first. */
VonkStatus vonkTranspose_ma_32f_4x4_L(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = transpose of src(n); 4x4 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkTranspose_ma_32f_4x4_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = transpose of src(n); 5x5 float, n below count; standard layout. Exception: transpose-loaded-first. */
VonkStatus vonkTranspose_ma_32f_5x5(const float *src, int32_t srcObjStride, int32_t srcRowStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = transpose of src(n); 5x5 float, n below count; S2, strided elements. */
VonkStatus vonkTranspose_ma_32f_5x5_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
    int32_t srcElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = transpose of src(n); 5x5 float, n below count; P, one pointer per element position. */
VonkStatus vonkTranspose_ma_32f_5x5_P(const float *const *src, int32_t srcShift, float *const *dst, int32_t dstShift,
    uint32_t count);
/** dst(n) = transpose of src(n); 5x5 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkTranspose_ma_32f_5x5_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = transpose of src(n); 5x5 float, n below count; L, one pointer per object. Exception:
 * transpose-loaded-first. */
VonkStatus vonkTranspose_ma_32f_5x5_L(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = transpose of src(n); 5x5 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkTranspose_ma_32f_5x5_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = transpose of src(n); 6x6 float, n below count; standard layout. Exception: transpose-loaded-first. */
VonkStatus vonkTranspose_ma_32f_6x6(const float *src, int32_t srcObjStride, int32_t srcRowStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = transpose of src(n); 6x6 float, n below count; S2, strided elements. */
VonkStatus vonkTranspose_ma_32f_6x6_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
    int32_t srcElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = transpose of src(n); 6x6 float, n below count; P, one pointer per element position. */
VonkStatus vonkTranspose_ma_32f_6x6_P(const float *const *src, int32_t srcShift, float *const *dst, int32_t dstShift,
    uint32_t count);
/** dst(n) = transpose of src(n); 6x6 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkTranspose_ma_32f_6x6_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = transpose of src(n); 6x6 float, n below count; L, one pointer per object. Exception:
 * transpose-loaded-first. */
VonkStatus vonkTranspose_ma_32f_6x6_L(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = transpose of src(n); 6x6 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkTranspose_ma_32f_6x6_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);

/** dst(n) = transpose of src(n); `rows` by `cols` double, n below count; standard layout. */
VonkStatus vonkTranspose_ma_64f(const double *src, int32_t srcObjStride, int32_t srcRowStride, uint32_t cols,
    uint32_t rows, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = transpose of src(n); `rows` by `cols` double, n below count; S2, strided elements. */
VonkStatus vonkTranspose_ma_64f_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    uint32_t cols, uint32_t rows, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = transpose of src(n); `rows` by `cols` double, n below count; P, one pointer per element position.
 * Exceptions: transpose-crosswise, transpose-reads-entries. */
VonkStatus vonkTranspose_ma_64f_P(const double *const *src, int32_t srcShift, uint32_t cols, uint32_t rows,
    double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = transpose of src(n); `rows` by `cols` double, n below count; PS2, one pointer per element position, strided
 * objects. Exceptions: transpose-crosswise, transpose-reads-entries. */
VonkStatus vonkTranspose_ma_64f_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, uint32_t cols,
    uint32_t rows, double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = transpose of src(n); `rows` by `cols` double, n below count; L, one pointer per object. */
VonkStatus vonkTranspose_ma_64f_L(const double *const *src, int32_t srcShift, int32_t srcRowStride, uint32_t cols,
    uint32_t rows, double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = transpose of src(n); `rows` by `cols` double, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkTranspose_ma_64f_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, uint32_t cols, uint32_t rows, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = transpose of src(n); 3x3 double, n below count; standard layout. */
VonkStatus vonkTranspose_ma_64f_3x3(const double *src, int32_t srcObjStride, int32_t srcRowStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = transpose of src(n); 3x3 double, n below count; S2, strided elements. */
VonkStatus vonkTranspose_ma_64f_3x3_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
    int32_t srcElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = transpose of src(n); 3x3 double, n below count; P, one pointer per element position. */
VonkStatus vonkTranspose_ma_64f_3x3_P(const double *const *src, int32_t srcShift, double *const *dst, int32_t dstShift,
    uint32_t count);
/** dst(n) = transpose of src(n); 3x3 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkTranspose_ma_64f_3x3_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = transpose of src(n); 3x3 double, n below count; L, one pointer per object. */
VonkStatus vonkTranspose_ma_64f_3x3_L(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = transpose of src(n); 3x3 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkTranspose_ma_64f_3x3_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = transpose of src(n); 4x4 double, n below count; standard layout. */
VonkStatus vonkTranspose_ma_64f_4x4(const double *src, int32_t srcObjStride, int32_t srcRowStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = transpose of src(n); 4x4 double, n below count; S2, strided elements. */
VonkStatus vonkTranspose_ma_64f_4x4_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
    int32_t srcElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = transpose of src(n); 4x4 double, n below count; P, one pointer per element position. */
VonkStatus vonkTranspose_ma_64f_4x4_P(const double *const *src, int32_t srcShift, double *const *dst, int32_t dstShift,
    uint32_t count);
/** dst(n) = transpose of src(n); 4x4 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkTranspose_ma_64f_4x4_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = transpose of src(n); 4x4 double, n below count; L, one pointer per object. */
VonkStatus vonkTranspose_ma_64f_4x4_L(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = transpose of src(n); 4x4 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkTranspose_ma_64f_4x4_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = transpose of src(n); 5x5 double, n below count; standard layout. */
VonkStatus vonkTranspose_ma_64f_5x5(const double *src, int32_t srcObjStride, int32_t srcRowStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = transpose of src(n); 5x5 double, n below count; S2, strided elements. */
VonkStatus vonkTranspose_ma_64f_5x5_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
    int32_t srcElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = transpose of src(n); 5x5 double, n below count; P, one pointer per element position. */
VonkStatus vonkTranspose_ma_64f_5x5_P(const double *const *src, int32_t srcShift, double *const *dst, int32_t dstShift,
    uint32_t count);
/** dst(n) = transpose of src(n); 5x5 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkTranspose_ma_64f_5x5_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = transpose of src(n); 5x5 double, n below count; L, one pointer per object. */
VonkStatus vonkTranspose_ma_64f_5x5_L(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = transpose of src(n); 5x5 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkTranspose_ma_64f_5x5_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = transpose of src(n); 6x6 double, n below count; standard layout. */
VonkStatus vonkTranspose_ma_64f_6x6(const double *src, int32_t srcObjStride, int32_t srcRowStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/** dst(n) = transpose of src(n); 6x6 double, n below count; S2, strided elements. */
VonkStatus vonkTranspose_ma_64f_6x6_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
    int32_t srcElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = transpose of src(n); 6x6 double, n below count; P, one pointer per element position. */
VonkStatus vonkTranspose_ma_64f_6x6_P(const double *const *src, int32_t srcShift, double *const *dst, int32_t dstShift,
    uint32_t count);
/** dst(n) = transpose of src(n); 6x6 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkTranspose_ma_64f_6x6_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = transpose of src(n); 6x6 double, n below count; L, one pointer per object. */
VonkStatus vonkTranspose_ma_64f_6x6_L(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/** dst(n) = transpose of src(n); 6x6 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkTranspose_ma_64f_6x6_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);

/* ---- Trace ----------------------------------------------------------------------------------------------------------
 *
 * dst(n) = sum over i of src(n, i, i)
 *
 * for i below `order`, ascending. `dst` is a packed block of one result per object in every layout.
 *
 * Sums:
 * - `32f` of fixed size in the standard layout and `L`: from the first element on, with one store.
 * - `32f` otherwise: from +0; `dst` is set to +0 and every partial sum is stored to it.
 * - `64f`: from +0 in the 80-bit type; `dst` is set to +0 and every partial sum is stored to it, rounded.
 *
 * A diagonal of negative zeros thus gives -0 in the first and +0 in all others.
 *
 * Status: vonkErrNullPtr if `src` or `dst` is null; vonkErrSize if `order` is 0; vonkErrNullPtr if a table or list
 * entry is null: in `m` in `P` as the sum reaches it, the partial sum being in `dst`; in `L` and `LS2` when the
 * object's turn comes, earlier results being complete. `count` 0 then gives vonkOk with nothing written.
 *
 * Overlap:
 * Overlap is not checked. Where `dst` is set to +0 first, a diagonal element that it overlaps is lost.
 *
 * Exceptions:
 * - trace-odd-order (arithmetic): vonkTrace_m_64f{,_S2}
 *   Of an odd `order`, the last element is added to the sum as it was stored, rounded to 64 bits. All others add it to
 *   the unrounded sum.
 * - trace-checked-entries (checks): vonkTrace_ma_{32f,64f}{,_?x?}_{P,PS2}
 *   Entries 0 to `order` - 1 of the table are checked before anything else, even at `count` 0. That is not where the
 *   diagonal lies: a null entry of the diagonal further on is followed.
 */

/** *dst = trace of src; `order` by `order` float; standard layout. */
VonkStatus vonkTrace_m_32f(const float *src, int32_t srcRowStride, uint32_t order, float *dst);
/** *dst = trace of src; `order` by `order` float; S2, strided elements. */
VonkStatus vonkTrace_m_32f_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, uint32_t order,
    float *dst);
/** *dst = trace of src; `order` by `order` float; P, one pointer per element position. */
VonkStatus vonkTrace_m_32f_P(const float *const *src, int32_t srcShift, uint32_t order, float *dst);
/** *dst = trace of src; 3x3 float; standard layout. */
VonkStatus vonkTrace_m_32f_3x3(const float *src, int32_t srcRowStride, float *dst);
/** *dst = trace of src; 3x3 float; S2, strided elements. */
VonkStatus vonkTrace_m_32f_3x3_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float *dst);
/** *dst = trace of src; 3x3 float; P, one pointer per element position. */
VonkStatus vonkTrace_m_32f_3x3_P(const float *const *src, int32_t srcShift, float *dst);
/** *dst = trace of src; 4x4 float; standard layout. */
VonkStatus vonkTrace_m_32f_4x4(const float *src, int32_t srcRowStride, float *dst);
/** *dst = trace of src; 4x4 float; S2, strided elements. */
VonkStatus vonkTrace_m_32f_4x4_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float *dst);
/** *dst = trace of src; 4x4 float; P, one pointer per element position. */
VonkStatus vonkTrace_m_32f_4x4_P(const float *const *src, int32_t srcShift, float *dst);
/** *dst = trace of src; 5x5 float; standard layout. */
VonkStatus vonkTrace_m_32f_5x5(const float *src, int32_t srcRowStride, float *dst);
/** *dst = trace of src; 5x5 float; S2, strided elements. */
VonkStatus vonkTrace_m_32f_5x5_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float *dst);
/** *dst = trace of src; 5x5 float; P, one pointer per element position. */
VonkStatus vonkTrace_m_32f_5x5_P(const float *const *src, int32_t srcShift, float *dst);
/** *dst = trace of src; 6x6 float; standard layout. */
VonkStatus vonkTrace_m_32f_6x6(const float *src, int32_t srcRowStride, float *dst);
/** *dst = trace of src; 6x6 float; S2, strided elements. */
VonkStatus vonkTrace_m_32f_6x6_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float *dst);
/** *dst = trace of src; 6x6 float; P, one pointer per element position. */
VonkStatus vonkTrace_m_32f_6x6_P(const float *const *src, int32_t srcShift, float *dst);

/** *dst = trace of src; `order` by `order` double; standard layout. Exception: trace-odd-order. */
VonkStatus vonkTrace_m_64f(const double *src, int32_t srcRowStride, uint32_t order, double *dst);
/** *dst = trace of src; `order` by `order` double; S2, strided elements. Exception: trace-odd-order. */
VonkStatus vonkTrace_m_64f_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, uint32_t order,
    double *dst);
/** *dst = trace of src; `order` by `order` double; P, one pointer per element position. */
VonkStatus vonkTrace_m_64f_P(const double *const *src, int32_t srcShift, uint32_t order, double *dst);
/** *dst = trace of src; 3x3 double; standard layout. */
VonkStatus vonkTrace_m_64f_3x3(const double *src, int32_t srcRowStride, double *dst);
/** *dst = trace of src; 3x3 double; S2, strided elements. */
VonkStatus vonkTrace_m_64f_3x3_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, double *dst);
/** *dst = trace of src; 3x3 double; P, one pointer per element position. */
VonkStatus vonkTrace_m_64f_3x3_P(const double *const *src, int32_t srcShift, double *dst);
/** *dst = trace of src; 4x4 double; standard layout. */
VonkStatus vonkTrace_m_64f_4x4(const double *src, int32_t srcRowStride, double *dst);
/** *dst = trace of src; 4x4 double; S2, strided elements. */
VonkStatus vonkTrace_m_64f_4x4_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, double *dst);
/** *dst = trace of src; 4x4 double; P, one pointer per element position. */
VonkStatus vonkTrace_m_64f_4x4_P(const double *const *src, int32_t srcShift, double *dst);
/** *dst = trace of src; 5x5 double; standard layout. */
VonkStatus vonkTrace_m_64f_5x5(const double *src, int32_t srcRowStride, double *dst);
/** *dst = trace of src; 5x5 double; S2, strided elements. */
VonkStatus vonkTrace_m_64f_5x5_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, double *dst);
/** *dst = trace of src; 5x5 double; P, one pointer per element position. */
VonkStatus vonkTrace_m_64f_5x5_P(const double *const *src, int32_t srcShift, double *dst);
/** *dst = trace of src; 6x6 double; standard layout. */
VonkStatus vonkTrace_m_64f_6x6(const double *src, int32_t srcRowStride, double *dst);
/** *dst = trace of src; 6x6 double; S2, strided elements. */
VonkStatus vonkTrace_m_64f_6x6_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, double *dst);
/** *dst = trace of src; 6x6 double; P, one pointer per element position. */
VonkStatus vonkTrace_m_64f_6x6_P(const double *const *src, int32_t srcShift, double *dst);

/** dst[n] = trace of src(n); `order` by `order` float, n below count; standard layout. */
VonkStatus vonkTrace_ma_32f(const float *src, int32_t srcObjStride, int32_t srcRowStride, uint32_t order, float *dst,
    uint32_t count);
/** dst[n] = trace of src(n); `order` by `order` float, n below count; S2, strided elements. */
VonkStatus vonkTrace_ma_32f_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    uint32_t order, float *dst, uint32_t count);
/** dst[n] = trace of src(n); `order` by `order` float, n below count; P, one pointer per element position. Exception:
 * trace-checked-entries. */
VonkStatus vonkTrace_ma_32f_P(const float *const *src, int32_t srcShift, uint32_t order, float *dst, uint32_t count);
/** dst[n] = trace of src(n); `order` by `order` float, n below count; PS2, one pointer per element position, strided
 * objects. Exception: trace-checked-entries. */
VonkStatus vonkTrace_ma_32f_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, uint32_t order,
    float *dst, uint32_t count);
/** dst[n] = trace of src(n); `order` by `order` float, n below count; L, one pointer per object. */
VonkStatus vonkTrace_ma_32f_L(const float *const *src, int32_t srcShift, int32_t srcRowStride, uint32_t order,
    float *dst, uint32_t count);
/** dst[n] = trace of src(n); `order` by `order` float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkTrace_ma_32f_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride, int32_t srcElemStride,
    uint32_t order, float *dst, uint32_t count);
/** dst[n] = trace of src(n); 3x3 float, n below count; standard layout. */
VonkStatus vonkTrace_ma_32f_3x3(const float *src, int32_t srcObjStride, int32_t srcRowStride, float *dst,
    uint32_t count);
/** dst[n] = trace of src(n); 3x3 float, n below count; S2, strided elements. */
VonkStatus vonkTrace_ma_32f_3x3_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    float *dst, uint32_t count);
/** dst[n] = trace of src(n); 3x3 float, n below count; P, one pointer per element position. Exception:
 * trace-checked-entries. */
VonkStatus vonkTrace_ma_32f_3x3_P(const float *const *src, int32_t srcShift, float *dst, uint32_t count);
/** dst[n] = trace of src(n); 3x3 float, n below count; PS2, one pointer per element position, strided objects.
 * Exception: trace-checked-entries. */
VonkStatus vonkTrace_ma_32f_3x3_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float *dst,
    uint32_t count);
/** dst[n] = trace of src(n); 3x3 float, n below count; L, one pointer per object. */
VonkStatus vonkTrace_ma_32f_3x3_L(const float *const *src, int32_t srcShift, int32_t srcRowStride, float *dst,
    uint32_t count);
/** dst[n] = trace of src(n); 3x3 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkTrace_ma_32f_3x3_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, float *dst, uint32_t count);
/** dst[n] = trace of src(n); 4x4 float, n below count; standard layout. */
VonkStatus vonkTrace_ma_32f_4x4(const float *src, int32_t srcObjStride, int32_t srcRowStride, float *dst,
    uint32_t count);
/** dst[n] = trace of src(n); 4x4 float, n below count; S2, strided elements. */
VonkStatus vonkTrace_ma_32f_4x4_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    float *dst, uint32_t count);
/** dst[n] = trace of src(n); 4x4 float, n below count; P, one pointer per element position. Exception:
 * trace-checked-entries. */
VonkStatus vonkTrace_ma_32f_4x4_P(const float *const *src, int32_t srcShift, float *dst, uint32_t count);
/** dst[n] = trace of src(n); 4x4 float, n below count; PS2, one pointer per element position, strided objects.
 * Exception: trace-checked-entries. */
VonkStatus vonkTrace_ma_32f_4x4_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float *dst,
    uint32_t count);
/** dst[n] = trace of src(n); 4x4 float, n below count; L, one pointer per object. */
VonkStatus vonkTrace_ma_32f_4x4_L(const float *const *src, int32_t srcShift, int32_t srcRowStride, float *dst,
    uint32_t count);
/** dst[n] = trace of src(n); 4x4 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkTrace_ma_32f_4x4_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, float *dst, uint32_t count);
/** dst[n] = trace of src(n); 5x5 float, n below count; standard layout. */
VonkStatus vonkTrace_ma_32f_5x5(const float *src, int32_t srcObjStride, int32_t srcRowStride, float *dst,
    uint32_t count);
/** dst[n] = trace of src(n); 5x5 float, n below count; S2, strided elements. */
VonkStatus vonkTrace_ma_32f_5x5_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    float *dst, uint32_t count);
/** dst[n] = trace of src(n); 5x5 float, n below count; P, one pointer per element position. Exception:
 * trace-checked-entries. */
VonkStatus vonkTrace_ma_32f_5x5_P(const float *const *src, int32_t srcShift, float *dst, uint32_t count);
/** dst[n] = trace of src(n); 5x5 float, n below count; PS2, one pointer per element position, strided objects.
 * Exception: trace-checked-entries. */
VonkStatus vonkTrace_ma_32f_5x5_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float *dst,
    uint32_t count);
/** dst[n] = trace of src(n); 5x5 float, n below count; L, one pointer per object. */
VonkStatus vonkTrace_ma_32f_5x5_L(const float *const *src, int32_t srcShift, int32_t srcRowStride, float *dst,
    uint32_t count);
/** dst[n] = trace of src(n); 5x5 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkTrace_ma_32f_5x5_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, float *dst, uint32_t count);
/** dst[n] = trace of src(n); 6x6 float, n below count; standard layout. */
VonkStatus vonkTrace_ma_32f_6x6(const float *src, int32_t srcObjStride, int32_t srcRowStride, float *dst,
    uint32_t count);
/** dst[n] = trace of src(n); 6x6 float, n below count; S2, strided elements. */
VonkStatus vonkTrace_ma_32f_6x6_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    float *dst, uint32_t count);
/** dst[n] = trace of src(n); 6x6 float, n below count; P, one pointer per element position. Exception:
 * trace-checked-entries. */
VonkStatus vonkTrace_ma_32f_6x6_P(const float *const *src, int32_t srcShift, float *dst, uint32_t count);
/** dst[n] = trace of src(n); 6x6 float, n below count; PS2, one pointer per element position, strided objects.
 * Exception: trace-checked-entries. */
VonkStatus vonkTrace_ma_32f_6x6_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float *dst,
    uint32_t count);
/** dst[n] = trace of src(n); 6x6 float, n below count; L, one pointer per object. */
VonkStatus vonkTrace_ma_32f_6x6_L(const float *const *src, int32_t srcShift, int32_t srcRowStride, float *dst,
    uint32_t count);
/** dst[n] = trace of src(n); 6x6 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkTrace_ma_32f_6x6_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, float *dst, uint32_t count);

/** dst[n] = trace of src(n); `order` by `order` double, n below count; standard layout. */
VonkStatus vonkTrace_ma_64f(const double *src, int32_t srcObjStride, int32_t srcRowStride, uint32_t order, double *dst,
    uint32_t count);
/** dst[n] = trace of src(n); `order` by `order` double, n below count; S2, strided elements. */
VonkStatus vonkTrace_ma_64f_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    uint32_t order, double *dst, uint32_t count);
/** dst[n] = trace of src(n); `order` by `order` double, n below count; P, one pointer per element position. Exception:
 * trace-checked-entries. */
VonkStatus vonkTrace_ma_64f_P(const double *const *src, int32_t srcShift, uint32_t order, double *dst, uint32_t count);
/** dst[n] = trace of src(n); `order` by `order` double, n below count; PS2, one pointer per element position, strided
 * objects. Exception: trace-checked-entries. */
VonkStatus vonkTrace_ma_64f_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, uint32_t order,
    double *dst, uint32_t count);
/** dst[n] = trace of src(n); `order` by `order` double, n below count; L, one pointer per object. */
VonkStatus vonkTrace_ma_64f_L(const double *const *src, int32_t srcShift, int32_t srcRowStride, uint32_t order,
    double *dst, uint32_t count);
/** dst[n] = trace of src(n); `order` by `order` double, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkTrace_ma_64f_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride, int32_t srcElemStride,
    uint32_t order, double *dst, uint32_t count);
/** dst[n] = trace of src(n); 3x3 double, n below count; standard layout. */
VonkStatus vonkTrace_ma_64f_3x3(const double *src, int32_t srcObjStride, int32_t srcRowStride, double *dst,
    uint32_t count);
/** dst[n] = trace of src(n); 3x3 double, n below count; S2, strided elements. */
VonkStatus vonkTrace_ma_64f_3x3_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    double *dst, uint32_t count);
/** dst[n] = trace of src(n); 3x3 double, n below count; P, one pointer per element position. Exception:
 * trace-checked-entries. */
VonkStatus vonkTrace_ma_64f_3x3_P(const double *const *src, int32_t srcShift, double *dst, uint32_t count);
/** dst[n] = trace of src(n); 3x3 double, n below count; PS2, one pointer per element position, strided objects.
 * Exception: trace-checked-entries. */
VonkStatus vonkTrace_ma_64f_3x3_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, double *dst,
    uint32_t count);
/** dst[n] = trace of src(n); 3x3 double, n below count; L, one pointer per object. */
VonkStatus vonkTrace_ma_64f_3x3_L(const double *const *src, int32_t srcShift, int32_t srcRowStride, double *dst,
    uint32_t count);
/** dst[n] = trace of src(n); 3x3 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkTrace_ma_64f_3x3_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, double *dst, uint32_t count);
/** dst[n] = trace of src(n); 4x4 double, n below count; standard layout. */
VonkStatus vonkTrace_ma_64f_4x4(const double *src, int32_t srcObjStride, int32_t srcRowStride, double *dst,
    uint32_t count);
/** dst[n] = trace of src(n); 4x4 double, n below count; S2, strided elements. */
VonkStatus vonkTrace_ma_64f_4x4_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    double *dst, uint32_t count);
/** dst[n] = trace of src(n); 4x4 double, n below count; P, one pointer per element position. Exception:
 * trace-checked-entries. */
VonkStatus vonkTrace_ma_64f_4x4_P(const double *const *src, int32_t srcShift, double *dst, uint32_t count);
/** dst[n] = trace of src(n); 4x4 double, n below count; PS2, one pointer per element position, strided objects.
 * Exception: trace-checked-entries. */
VonkStatus vonkTrace_ma_64f_4x4_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, double *dst,
    uint32_t count);
/** dst[n] = trace of src(n); 4x4 double, n below count; L, one pointer per object. */
VonkStatus vonkTrace_ma_64f_4x4_L(const double *const *src, int32_t srcShift, int32_t srcRowStride, double *dst,
    uint32_t count);
/** dst[n] = trace of src(n); 4x4 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkTrace_ma_64f_4x4_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, double *dst, uint32_t count);
/** dst[n] = trace of src(n); 5x5 double, n below count; standard layout. */
VonkStatus vonkTrace_ma_64f_5x5(const double *src, int32_t srcObjStride, int32_t srcRowStride, double *dst,
    uint32_t count);
/** dst[n] = trace of src(n); 5x5 double, n below count; S2, strided elements. */
VonkStatus vonkTrace_ma_64f_5x5_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    double *dst, uint32_t count);
/** dst[n] = trace of src(n); 5x5 double, n below count; P, one pointer per element position. Exception:
 * trace-checked-entries. */
VonkStatus vonkTrace_ma_64f_5x5_P(const double *const *src, int32_t srcShift, double *dst, uint32_t count);
/** dst[n] = trace of src(n); 5x5 double, n below count; PS2, one pointer per element position, strided objects.
 * Exception: trace-checked-entries. */
VonkStatus vonkTrace_ma_64f_5x5_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, double *dst,
    uint32_t count);
/** dst[n] = trace of src(n); 5x5 double, n below count; L, one pointer per object. */
VonkStatus vonkTrace_ma_64f_5x5_L(const double *const *src, int32_t srcShift, int32_t srcRowStride, double *dst,
    uint32_t count);
/** dst[n] = trace of src(n); 5x5 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkTrace_ma_64f_5x5_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, double *dst, uint32_t count);
/** dst[n] = trace of src(n); 6x6 double, n below count; standard layout. */
VonkStatus vonkTrace_ma_64f_6x6(const double *src, int32_t srcObjStride, int32_t srcRowStride, double *dst,
    uint32_t count);
/** dst[n] = trace of src(n); 6x6 double, n below count; S2, strided elements. */
VonkStatus vonkTrace_ma_64f_6x6_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    double *dst, uint32_t count);
/** dst[n] = trace of src(n); 6x6 double, n below count; P, one pointer per element position. Exception:
 * trace-checked-entries. */
VonkStatus vonkTrace_ma_64f_6x6_P(const double *const *src, int32_t srcShift, double *dst, uint32_t count);
/** dst[n] = trace of src(n); 6x6 double, n below count; PS2, one pointer per element position, strided objects.
 * Exception: trace-checked-entries. */
VonkStatus vonkTrace_ma_64f_6x6_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, double *dst,
    uint32_t count);
/** dst[n] = trace of src(n); 6x6 double, n below count; L, one pointer per object. */
VonkStatus vonkTrace_ma_64f_6x6_L(const double *const *src, int32_t srcShift, int32_t srcRowStride, double *dst,
    uint32_t count);
/** dst[n] = trace of src(n); 6x6 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkTrace_ma_64f_6x6_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, double *dst, uint32_t count);

/* ---- Frobenius norm -------------------------------------------------------------------------------------------------
 *
 * dst(n) = root of the sum of src(n, i, j)^2
 *
 * for i below `rows` and j below `cols`. `dst` is a packed block of one result per object in every layout. Products and
 * sums are rounded one by one, in `64f` to the 80-bit type, and nothing is scaled: squares overflow and underflow.
 *
 * Sums start at +0 and run along the rows in `m`, down the columns in `ma`. The root of `32f` is correctly rounded.
 *
 * In SIMD lanes, with pij the square of element (i, j) and cj the sum of column j, the sum s is
 * - 3x3: cj = (p0j + p1j) + p2j; s = (c0 + c1) + c2
 * - 4x4: cj = (p0j + p1j) + (p2j + p3j); s = (c0 + c2) + (c1 + c3)
 * - 5x5: cj = ((p0j + p1j) + (p2j + p3j)) + p4j; s = ((c0 + c2) + (c1 + c3)) + c4
 * - 6x6: cj = ((p0j + p1j) + (p2j + p3j)) + (p4j + p5j), of columns 4 and 5 ((p0j + p2j) + p4j) + ((p1j + p3j) + p5j);
 *   s = ((c0 + c2) + (c1 + c3)) + (c4 + c5)
 *
 * Status: vonkErrNullPtr if `src` or `dst` is null; vonkErrSize if `cols` or `rows` is 0; vonkErrNullPtr if a table or
 * list entry is null: in `P` and `PS2` all of the table before anything else, even at `count` 0; in `L` and `LS2` when
 * the object's turn comes, earlier results being complete. `count` 0 then gives vonkOk with nothing written.
 *
 * Overlap:
 * Overlap is not checked. A result is stored when its matrix has been read, so `dst` may be an element of it.
 *
 * Exceptions:
 * - frobenius-estimate (arithmetic): vonkFrobNorm_{m_32f_?x?,ma_32f_?x?{,_L}}
 *   The sum s runs in SIMD lanes, in the family's order for them. The root is s * (r * (0.5 * (3.0 - s * (r * r))))
 *   with r the processor's estimate of 1 / root(s), of about 12 bits: not correctly rounded, dependent on the
 *   processor, and NaN for a matrix of zeros.
 * - frobenius-backwards (arithmetic): vonkFrobNorm_ma_32f_?x?_{P,PS2,LS2}
 *   The sum runs backwards from +0: the last column first, each column from the bottom.
 * - frobenius-four-objects (arithmetic): vonkFrobNorm_ma_32f_{3x3,4x4}{,_L}
 *   Works in blocks of four objects, whose sums are 3x3 (((p00 + p01) + p22) + (p02 + p10)) + ((p11 + p12) + (p20 +
 *   p21)) and 4x4 (c0 + c1) + (c2 + c3). Objects that fill no block are summed in the order above: the last bit of a
 *   result may depend on `count`.
 * - frobenius-rounded-sum (arithmetic): vonkFrobNorm_{m_64f{,_S2},ma_64f{,_S2,_L,_LS2}}
 *   The sum is rounded to 64 bits before the root. It overflows to infinity and underflows where other forms do not.
 * - frobenius-unchecked-entries (checks): vonkFrobNorm_ma_32f_{3x3,4x4}_L
 *   The four list entries of a block are checked when its turn comes. Those of objects that fill no block are not
 *   checked; a null entry is followed.
 * - frobenius-block-overlap (overlap): vonkFrobNorm_ma_32f_{3x3,4x4}{,_L}
 *   All of a block of four objects is read before its results are stored.
 */

/** *dst = Frobenius norm of src; `rows` by `cols` float; standard layout. */
VonkStatus vonkFrobNorm_m_32f(const float *src, int32_t srcRowStride, uint32_t cols, uint32_t rows, float *dst);
/** *dst = Frobenius norm of src; `rows` by `cols` float; S2, strided elements. */
VonkStatus vonkFrobNorm_m_32f_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, uint32_t cols,
    uint32_t rows, float *dst);
/** *dst = Frobenius norm of src; `rows` by `cols` float; P, one pointer per element position. */
VonkStatus vonkFrobNorm_m_32f_P(const float *const *src, int32_t srcShift, uint32_t cols, uint32_t rows, float *dst);
/** *dst = Frobenius norm of src; 3x3 float; standard layout. Exception: frobenius-estimate. */
VonkStatus vonkFrobNorm_m_32f_3x3(const float *src, int32_t srcRowStride, float *dst);
/** *dst = Frobenius norm of src; 3x3 float; S2, strided elements. */
VonkStatus vonkFrobNorm_m_32f_3x3_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float *dst);
/** *dst = Frobenius norm of src; 3x3 float; P, one pointer per element position. */
VonkStatus vonkFrobNorm_m_32f_3x3_P(const float *const *src, int32_t srcShift, float *dst);
/** *dst = Frobenius norm of src; 4x4 float; standard layout. Exception: frobenius-estimate. */
VonkStatus vonkFrobNorm_m_32f_4x4(const float *src, int32_t srcRowStride, float *dst);
/** *dst = Frobenius norm of src; 4x4 float; S2, strided elements. */
VonkStatus vonkFrobNorm_m_32f_4x4_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float *dst);
/** *dst = Frobenius norm of src; 4x4 float; P, one pointer per element position. */
VonkStatus vonkFrobNorm_m_32f_4x4_P(const float *const *src, int32_t srcShift, float *dst);
/** *dst = Frobenius norm of src; 5x5 float; standard layout. Exception: frobenius-estimate. */
VonkStatus vonkFrobNorm_m_32f_5x5(const float *src, int32_t srcRowStride, float *dst);
/** *dst = Frobenius norm of src; 5x5 float; S2, strided elements. */
VonkStatus vonkFrobNorm_m_32f_5x5_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float *dst);
/** *dst = Frobenius norm of src; 5x5 float; P, one pointer per element position. */
VonkStatus vonkFrobNorm_m_32f_5x5_P(const float *const *src, int32_t srcShift, float *dst);
/** *dst = Frobenius norm of src; 6x6 float; standard layout. Exception: frobenius-estimate. */
VonkStatus vonkFrobNorm_m_32f_6x6(const float *src, int32_t srcRowStride, float *dst);
/** *dst = Frobenius norm of src; 6x6 float; S2, strided elements. */
VonkStatus vonkFrobNorm_m_32f_6x6_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float *dst);
/** *dst = Frobenius norm of src; 6x6 float; P, one pointer per element position. */
VonkStatus vonkFrobNorm_m_32f_6x6_P(const float *const *src, int32_t srcShift, float *dst);

/** *dst = Frobenius norm of src; `rows` by `cols` double; standard layout. Exception: frobenius-rounded-sum. */
VonkStatus vonkFrobNorm_m_64f(const double *src, int32_t srcRowStride, uint32_t cols, uint32_t rows, double *dst);
/** *dst = Frobenius norm of src; `rows` by `cols` double; S2, strided elements. Exception: frobenius-rounded-sum. */
VonkStatus vonkFrobNorm_m_64f_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, uint32_t cols,
    uint32_t rows, double *dst);
/** *dst = Frobenius norm of src; `rows` by `cols` double; P, one pointer per element position. */
VonkStatus vonkFrobNorm_m_64f_P(const double *const *src, int32_t srcShift, uint32_t cols, uint32_t rows, double *dst);
/** *dst = Frobenius norm of src; 3x3 double; standard layout. */
VonkStatus vonkFrobNorm_m_64f_3x3(const double *src, int32_t srcRowStride, double *dst);
/** *dst = Frobenius norm of src; 3x3 double; S2, strided elements. */
VonkStatus vonkFrobNorm_m_64f_3x3_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, double *dst);
/** *dst = Frobenius norm of src; 3x3 double; P, one pointer per element position. */
VonkStatus vonkFrobNorm_m_64f_3x3_P(const double *const *src, int32_t srcShift, double *dst);
/** *dst = Frobenius norm of src; 4x4 double; standard layout. */
VonkStatus vonkFrobNorm_m_64f_4x4(const double *src, int32_t srcRowStride, double *dst);
/** *dst = Frobenius norm of src; 4x4 double; S2, strided elements. */
VonkStatus vonkFrobNorm_m_64f_4x4_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, double *dst);
/** *dst = Frobenius norm of src; 4x4 double; P, one pointer per element position. */
VonkStatus vonkFrobNorm_m_64f_4x4_P(const double *const *src, int32_t srcShift, double *dst);
/** *dst = Frobenius norm of src; 5x5 double; standard layout. */
VonkStatus vonkFrobNorm_m_64f_5x5(const double *src, int32_t srcRowStride, double *dst);
/** *dst = Frobenius norm of src; 5x5 double; S2, strided elements. */
VonkStatus vonkFrobNorm_m_64f_5x5_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, double *dst);
/** *dst = Frobenius norm of src; 5x5 double; P, one pointer per element position. */
VonkStatus vonkFrobNorm_m_64f_5x5_P(const double *const *src, int32_t srcShift, double *dst);
/** *dst = Frobenius norm of src; 6x6 double; standard layout. */
VonkStatus vonkFrobNorm_m_64f_6x6(const double *src, int32_t srcRowStride, double *dst);
/** *dst = Frobenius norm of src; 6x6 double; S2, strided elements. */
VonkStatus vonkFrobNorm_m_64f_6x6_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, double *dst);
/** *dst = Frobenius norm of src; 6x6 double; P, one pointer per element position. */
VonkStatus vonkFrobNorm_m_64f_6x6_P(const double *const *src, int32_t srcShift, double *dst);

/** dst[n] = Frobenius norm of src(n); `rows` by `cols` float, n below count; standard layout. */
VonkStatus vonkFrobNorm_ma_32f(const float *src, int32_t srcObjStride, int32_t srcRowStride, uint32_t cols,
    uint32_t rows, float *dst, uint32_t count);
/** dst[n] = Frobenius norm of src(n); `rows` by `cols` float, n below count; S2, strided elements. */
VonkStatus vonkFrobNorm_ma_32f_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    uint32_t cols, uint32_t rows, float *dst, uint32_t count);
/** dst[n] = Frobenius norm of src(n); `rows` by `cols` float, n below count; P, one pointer per element position. */
VonkStatus vonkFrobNorm_ma_32f_P(const float *const *src, int32_t srcShift, uint32_t cols, uint32_t rows, float *dst,
    uint32_t count);
/** dst[n] = Frobenius norm of src(n); `rows` by `cols` float, n below count; PS2, one pointer per element position,
 * strided objects. */
VonkStatus vonkFrobNorm_ma_32f_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, uint32_t cols,
    uint32_t rows, float *dst, uint32_t count);
/** dst[n] = Frobenius norm of src(n); `rows` by `cols` float, n below count; L, one pointer per object. */
VonkStatus vonkFrobNorm_ma_32f_L(const float *const *src, int32_t srcShift, int32_t srcRowStride, uint32_t cols,
    uint32_t rows, float *dst, uint32_t count);
/** dst[n] = Frobenius norm of src(n); `rows` by `cols` float, n below count; LS2, one pointer per object, strided
 * elements. */
VonkStatus vonkFrobNorm_ma_32f_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, uint32_t cols, uint32_t rows, float *dst, uint32_t count);
/** dst[n] = Frobenius norm of src(n); 3x3 float, n below count; standard layout. Exceptions: frobenius-estimate,
 * frobenius-four-objects, frobenius-block-overlap. */
VonkStatus vonkFrobNorm_ma_32f_3x3(const float *src, int32_t srcObjStride, int32_t srcRowStride, float *dst,
    uint32_t count);
/** dst[n] = Frobenius norm of src(n); 3x3 float, n below count; S2, strided elements. */
VonkStatus vonkFrobNorm_ma_32f_3x3_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
    int32_t srcElemStride, float *dst, uint32_t count);
/** dst[n] = Frobenius norm of src(n); 3x3 float, n below count; P, one pointer per element position. Exception:
 * frobenius-backwards. */
VonkStatus vonkFrobNorm_ma_32f_3x3_P(const float *const *src, int32_t srcShift, float *dst, uint32_t count);
/** dst[n] = Frobenius norm of src(n); 3x3 float, n below count; PS2, one pointer per element position, strided objects.
 * Exception: frobenius-backwards. */
VonkStatus vonkFrobNorm_ma_32f_3x3_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float *dst,
    uint32_t count);
/** dst[n] = Frobenius norm of src(n); 3x3 float, n below count; L, one pointer per object. Exceptions:
 * frobenius-estimate, frobenius-four-objects, frobenius-unchecked-entries, frobenius-block-overlap. */
VonkStatus vonkFrobNorm_ma_32f_3x3_L(const float *const *src, int32_t srcShift, int32_t srcRowStride, float *dst,
    uint32_t count);
/** dst[n] = Frobenius norm of src(n); 3x3 float, n below count; LS2, one pointer per object, strided elements.
 * Exception: frobenius-backwards. */
VonkStatus vonkFrobNorm_ma_32f_3x3_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, float *dst, uint32_t count);
/** dst[n] = Frobenius norm of src(n); 4x4 float, n below count; standard layout. Exceptions: frobenius-estimate,
 * frobenius-four-objects, frobenius-block-overlap. */
VonkStatus vonkFrobNorm_ma_32f_4x4(const float *src, int32_t srcObjStride, int32_t srcRowStride, float *dst,
    uint32_t count);
/** dst[n] = Frobenius norm of src(n); 4x4 float, n below count; S2, strided elements. */
VonkStatus vonkFrobNorm_ma_32f_4x4_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
    int32_t srcElemStride, float *dst, uint32_t count);
/** dst[n] = Frobenius norm of src(n); 4x4 float, n below count; P, one pointer per element position. Exception:
 * frobenius-backwards. */
VonkStatus vonkFrobNorm_ma_32f_4x4_P(const float *const *src, int32_t srcShift, float *dst, uint32_t count);
/** dst[n] = Frobenius norm of src(n); 4x4 float, n below count; PS2, one pointer per element position, strided objects.
 * Exception: frobenius-backwards. */
VonkStatus vonkFrobNorm_ma_32f_4x4_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float *dst,
    uint32_t count);
/** dst[n] = Frobenius norm of src(n); 4x4 float, n below count; L, one pointer per object. Exceptions:
 * frobenius-estimate, frobenius-four-objects, frobenius-unchecked-entries, frobenius-block-overlap. */
VonkStatus vonkFrobNorm_ma_32f_4x4_L(const float *const *src, int32_t srcShift, int32_t srcRowStride, float *dst,
    uint32_t count);
/** dst[n] = Frobenius norm of src(n); 4x4 float, n below count; LS2, one pointer per object, strided elements.
 * Exception: frobenius-backwards. */
VonkStatus vonkFrobNorm_ma_32f_4x4_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, float *dst, uint32_t count);
/** dst[n] = Frobenius norm of src(n); 5x5 float, n below count; standard layout. Exception: frobenius-estimate. */
VonkStatus vonkFrobNorm_ma_32f_5x5(const float *src, int32_t srcObjStride, int32_t srcRowStride, float *dst,
    uint32_t count);
/** dst[n] = Frobenius norm of src(n); 5x5 float, n below count; S2, strided elements. */
VonkStatus vonkFrobNorm_ma_32f_5x5_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
    int32_t srcElemStride, float *dst, uint32_t count);
/** dst[n] = Frobenius norm of src(n); 5x5 float, n below count; P, one pointer per element position. Exception:
 * frobenius-backwards. */
VonkStatus vonkFrobNorm_ma_32f_5x5_P(const float *const *src, int32_t srcShift, float *dst, uint32_t count);
/** dst[n] = Frobenius norm of src(n); 5x5 float, n below count; PS2, one pointer per element position, strided objects.
 * Exception: frobenius-backwards. */
VonkStatus vonkFrobNorm_ma_32f_5x5_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float *dst,
    uint32_t count);
/** dst[n] = Frobenius norm of src(n); 5x5 float, n below count; L, one pointer per object. Exception:
 * frobenius-estimate. */
VonkStatus vonkFrobNorm_ma_32f_5x5_L(const float *const *src, int32_t srcShift, int32_t srcRowStride, float *dst,
    uint32_t count);
/** dst[n] = Frobenius norm of src(n); 5x5 float, n below count; LS2, one pointer per object, strided elements.
 * Exception: frobenius-backwards. */
VonkStatus vonkFrobNorm_ma_32f_5x5_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, float *dst, uint32_t count);
/** dst[n] = Frobenius norm of src(n); 6x6 float, n below count; standard layout. Exception: frobenius-estimate. */
VonkStatus vonkFrobNorm_ma_32f_6x6(const float *src, int32_t srcObjStride, int32_t srcRowStride, float *dst,
    uint32_t count);
/** dst[n] = Frobenius norm of src(n); 6x6 float, n below count; S2, strided elements. */
VonkStatus vonkFrobNorm_ma_32f_6x6_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
    int32_t srcElemStride, float *dst, uint32_t count);
/** dst[n] = Frobenius norm of src(n); 6x6 float, n below count; P, one pointer per element position. Exception:
 * frobenius-backwards. */
VonkStatus vonkFrobNorm_ma_32f_6x6_P(const float *const *src, int32_t srcShift, float *dst, uint32_t count);
/** dst[n] = Frobenius norm of src(n); 6x6 float, n below count; PS2, one pointer per element position, strided objects.
 * Exception: frobenius-backwards. */
VonkStatus vonkFrobNorm_ma_32f_6x6_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float *dst,
    uint32_t count);
/** dst[n] = Frobenius norm of src(n); 6x6 float, n below count; L, one pointer per object. Exception:
 * frobenius-estimate. */
VonkStatus vonkFrobNorm_ma_32f_6x6_L(const float *const *src, int32_t srcShift, int32_t srcRowStride, float *dst,
    uint32_t count);
/** dst[n] = Frobenius norm of src(n); 6x6 float, n below count; LS2, one pointer per object, strided elements.
 * Exception: frobenius-backwards. */
VonkStatus vonkFrobNorm_ma_32f_6x6_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, float *dst, uint32_t count);

/** dst[n] = Frobenius norm of src(n); `rows` by `cols` double, n below count; standard layout. Exception:
 * frobenius-rounded-sum. */
VonkStatus vonkFrobNorm_ma_64f(const double *src, int32_t srcObjStride, int32_t srcRowStride, uint32_t cols,
    uint32_t rows, double *dst, uint32_t count);
/** dst[n] = Frobenius norm of src(n); `rows` by `cols` double, n below count; S2, strided elements. Exception:
 * frobenius-rounded-sum. */
VonkStatus vonkFrobNorm_ma_64f_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    uint32_t cols, uint32_t rows, double *dst, uint32_t count);
/** dst[n] = Frobenius norm of src(n); `rows` by `cols` double, n below count; P, one pointer per element position. */
VonkStatus vonkFrobNorm_ma_64f_P(const double *const *src, int32_t srcShift, uint32_t cols, uint32_t rows, double *dst,
    uint32_t count);
/** dst[n] = Frobenius norm of src(n); `rows` by `cols` double, n below count; PS2, one pointer per element position,
 * strided objects. */
VonkStatus vonkFrobNorm_ma_64f_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, uint32_t cols,
    uint32_t rows, double *dst, uint32_t count);
/** dst[n] = Frobenius norm of src(n); `rows` by `cols` double, n below count; L, one pointer per object. Exception:
 * frobenius-rounded-sum. */
VonkStatus vonkFrobNorm_ma_64f_L(const double *const *src, int32_t srcShift, int32_t srcRowStride, uint32_t cols,
    uint32_t rows, double *dst, uint32_t count);
/** dst[n] = Frobenius norm of src(n); `rows` by `cols` double, n below count; LS2, one pointer per object, strided
 * elements. Exception: frobenius-rounded-sum. */
VonkStatus vonkFrobNorm_ma_64f_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, uint32_t cols, uint32_t rows, double *dst, uint32_t count);
/** dst[n] = Frobenius norm of src(n); 3x3 double, n below count; standard layout. */
VonkStatus vonkFrobNorm_ma_64f_3x3(const double *src, int32_t srcObjStride, int32_t srcRowStride, double *dst,
    uint32_t count);
/** dst[n] = Frobenius norm of src(n); 3x3 double, n below count; S2, strided elements. */
VonkStatus vonkFrobNorm_ma_64f_3x3_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
    int32_t srcElemStride, double *dst, uint32_t count);
/** dst[n] = Frobenius norm of src(n); 3x3 double, n below count; P, one pointer per element position. */
VonkStatus vonkFrobNorm_ma_64f_3x3_P(const double *const *src, int32_t srcShift, double *dst, uint32_t count);
/** dst[n] = Frobenius norm of src(n); 3x3 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkFrobNorm_ma_64f_3x3_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, double *dst,
    uint32_t count);
/** dst[n] = Frobenius norm of src(n); 3x3 double, n below count; L, one pointer per object. */
VonkStatus vonkFrobNorm_ma_64f_3x3_L(const double *const *src, int32_t srcShift, int32_t srcRowStride, double *dst,
    uint32_t count);
/** dst[n] = Frobenius norm of src(n); 3x3 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkFrobNorm_ma_64f_3x3_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, double *dst, uint32_t count);
/** dst[n] = Frobenius norm of src(n); 4x4 double, n below count; standard layout. */
VonkStatus vonkFrobNorm_ma_64f_4x4(const double *src, int32_t srcObjStride, int32_t srcRowStride, double *dst,
    uint32_t count);
/** dst[n] = Frobenius norm of src(n); 4x4 double, n below count; S2, strided elements. */
VonkStatus vonkFrobNorm_ma_64f_4x4_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
    int32_t srcElemStride, double *dst, uint32_t count);
/** dst[n] = Frobenius norm of src(n); 4x4 double, n below count; P, one pointer per element position. */
VonkStatus vonkFrobNorm_ma_64f_4x4_P(const double *const *src, int32_t srcShift, double *dst, uint32_t count);
/** dst[n] = Frobenius norm of src(n); 4x4 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkFrobNorm_ma_64f_4x4_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, double *dst,
    uint32_t count);
/** dst[n] = Frobenius norm of src(n); 4x4 double, n below count; L, one pointer per object. */
VonkStatus vonkFrobNorm_ma_64f_4x4_L(const double *const *src, int32_t srcShift, int32_t srcRowStride, double *dst,
    uint32_t count);
/** dst[n] = Frobenius norm of src(n); 4x4 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkFrobNorm_ma_64f_4x4_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, double *dst, uint32_t count);
/** dst[n] = Frobenius norm of src(n); 5x5 double, n below count; standard layout. */
VonkStatus vonkFrobNorm_ma_64f_5x5(const double *src, int32_t srcObjStride, int32_t srcRowStride, double *dst,
    uint32_t count);
/** dst[n] = Frobenius norm of src(n); 5x5 double, n below count; S2, strided elements. */
VonkStatus vonkFrobNorm_ma_64f_5x5_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
    int32_t srcElemStride, double *dst, uint32_t count);
/** dst[n] = Frobenius norm of src(n); 5x5 double, n below count; P, one pointer per element position. */
VonkStatus vonkFrobNorm_ma_64f_5x5_P(const double *const *src, int32_t srcShift, double *dst, uint32_t count);
/** dst[n] = Frobenius norm of src(n); 5x5 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkFrobNorm_ma_64f_5x5_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, double *dst,
    uint32_t count);
/** dst[n] = Frobenius norm of src(n); 5x5 double, n below count; L, one pointer per object. */
VonkStatus vonkFrobNorm_ma_64f_5x5_L(const double *const *src, int32_t srcShift, int32_t srcRowStride, double *dst,
    uint32_t count);
/** dst[n] = Frobenius norm of src(n); 5x5 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkFrobNorm_ma_64f_5x5_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, double *dst, uint32_t count);
/** dst[n] = Frobenius norm of src(n); 6x6 double, n below count; standard layout. */
VonkStatus vonkFrobNorm_ma_64f_6x6(const double *src, int32_t srcObjStride, int32_t srcRowStride, double *dst,
    uint32_t count);
/** dst[n] = Frobenius norm of src(n); 6x6 double, n below count; S2, strided elements. */
VonkStatus vonkFrobNorm_ma_64f_6x6_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
    int32_t srcElemStride, double *dst, uint32_t count);
/** dst[n] = Frobenius norm of src(n); 6x6 double, n below count; P, one pointer per element position. */
VonkStatus vonkFrobNorm_ma_64f_6x6_P(const double *const *src, int32_t srcShift, double *dst, uint32_t count);
/** dst[n] = Frobenius norm of src(n); 6x6 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkFrobNorm_ma_64f_6x6_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, double *dst,
    uint32_t count);
/** dst[n] = Frobenius norm of src(n); 6x6 double, n below count; L, one pointer per object. */
VonkStatus vonkFrobNorm_ma_64f_6x6_L(const double *const *src, int32_t srcShift, int32_t srcRowStride, double *dst,
    uint32_t count);
/** dst[n] = Frobenius norm of src(n); 6x6 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkFrobNorm_ma_64f_6x6_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, double *dst, uint32_t count);

#ifdef __cplusplus
}
#endif

#endif
