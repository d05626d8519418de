/* vonkk3: Vector and constant; Vector and vector; Saxpy; Linear combination; Dot product; L2 norm; Cross product. See
 * vonkk3.h for names, layouts and units.
 *
 * Generated from the catalogue of functions; do not edit.
 */
#ifndef VONKK3_VECTOR_H
#define VONKK3_VECTOR_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Vector and constant --------------------------------------------------------------------------------------------
 *
 * vonkAdd:           dst(n, j) = src(n, j) + val
 * vonkSub vc, vac:   dst(n, j) = src(n, j) - val
 * vonkSub cv, cva:   dst(n, j) = val - src(n, j)
 * vonkMul:           dst(n, j) = src(n, j) * val
 *
 * for j below `len` and each object n; one rounded operation per element. The vector stands first among the parameters
 * in all groups. `val` has the type of the elements. The arithmetic of an element depends neither on the length nor on
 * the alignment of operands.
 *
 * Status: vonkErrNullPtr if `src` or `dst` is null; vonkErrSize if `len` is 0; vonkErrNullPtr if a table or list entry
 * is null: in single forms in `P` entry by entry just before each element, earlier elements being final; in `P` and
 * `PS2` of arrays all entries of all tables before anything else, even at `count` 0; in `L` and `LS2` when the object's
 * turn comes, earlier objects being complete. `count` 0 then gives vonkOk with nothing written.
 *
 * Overlap:
 * Overlap is not checked. `dst` may be `src` (in place): each element is read before it is written. With any other
 * overlap elements are read and written one by one in ascending order, so that a source element which `dst` has
 * overwritten by then is read as overwritten.
 *
 * Exceptions:
 * - vc-whole-object (overlap): vonk{Add_vc,Sub_vc,Sub_cv,Mul_vc}_32f_?x1
 *     vonk{Add_vac,Sub_vac,Sub_cva,Mul_vac}_32f_?x1{,_L}
 *   An object is loaded whole before it is stored. Of 5 and 6 elements, what a partial overlap shows is not promised.
 */

/** dst = src + val; `len` float; standard layout. */
VonkStatus vonkAdd_vc_32f(const float *src, float val, float *dst, uint32_t len);
/** dst = src + val; `len` float; S2, strided elements. */
VonkStatus vonkAdd_vc_32f_S2(const float *src, int32_t srcElemStride, float val, float *dst, int32_t dstElemStride,
    uint32_t len);
/** dst = src + val; `len` float; P, one pointer per element position. */
VonkStatus vonkAdd_vc_32f_P(const float *const *src, int32_t srcShift, float val, float *const *dst, int32_t dstShift,
    uint32_t len);
/** dst = src + val; 3 float; standard layout. Exception: vc-whole-object. */
VonkStatus vonkAdd_vc_32f_3x1(const float *src, float val, float *dst);
/** dst = src + val; 3 float; S2, strided elements. */
VonkStatus vonkAdd_vc_32f_3x1_S2(const float *src, int32_t srcElemStride, float val, float *dst, int32_t dstElemStride);
/** dst = src + val; 3 float; P, one pointer per element position. */
VonkStatus vonkAdd_vc_32f_3x1_P(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift);
/** dst = src + val; 4 float; standard layout. Exception: vc-whole-object. */
VonkStatus vonkAdd_vc_32f_4x1(const float *src, float val, float *dst);
/** dst = src + val; 4 float; S2, strided elements. */
VonkStatus vonkAdd_vc_32f_4x1_S2(const float *src, int32_t srcElemStride, float val, float *dst, int32_t dstElemStride);
/** dst = src + val; 4 float; P, one pointer per element position. */
VonkStatus vonkAdd_vc_32f_4x1_P(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift);
/** dst = src + val; 5 float; standard layout. Exception: vc-whole-object. */
VonkStatus vonkAdd_vc_32f_5x1(const float *src, float val, float *dst);
/** dst = src + val; 5 float; S2, strided elements. */
VonkStatus vonkAdd_vc_32f_5x1_S2(const float *src, int32_t srcElemStride, float val, float *dst, int32_t dstElemStride);
/** dst = src + val; 5 float; P, one pointer per element position. */
VonkStatus vonkAdd_vc_32f_5x1_P(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift);
/** dst = src + val; 6 float; standard layout. Exception: vc-whole-object. */
VonkStatus vonkAdd_vc_32f_6x1(const float *src, float val, float *dst);
/** dst = src + val; 6 float; S2, strided elements. */
VonkStatus vonkAdd_vc_32f_6x1_S2(const float *src, int32_t srcElemStride, float val, float *dst, int32_t dstElemStride);
/** dst = src + val; 6 float; P, one pointer per element position. */
VonkStatus vonkAdd_vc_32f_6x1_P(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift);

/** dst = src + val; `len` double; standard layout. */
VonkStatus vonkAdd_vc_64f(const double *src, double val, double *dst, uint32_t len);
/** dst = src + val; `len` double; S2, strided elements. */
VonkStatus vonkAdd_vc_64f_S2(const double *src, int32_t srcElemStride, double val, double *dst, int32_t dstElemStride,
    uint32_t len);
/** dst = src + val; `len` double; P, one pointer per element position. */
VonkStatus vonkAdd_vc_64f_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift, uint32_t len);
/** dst = src + val; 3 double; standard layout. */
VonkStatus vonkAdd_vc_64f_3x1(const double *src, double val, double *dst);
/** dst = src + val; 3 double; S2, strided elements. */
VonkStatus vonkAdd_vc_64f_3x1_S2(const double *src, int32_t srcElemStride, double val, double *dst,
    int32_t dstElemStride);
/** dst = src + val; 3 double; P, one pointer per element position. */
VonkStatus vonkAdd_vc_64f_3x1_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift);
/** dst = src + val; 4 double; standard layout. */
VonkStatus vonkAdd_vc_64f_4x1(const double *src, double val, double *dst);
/** dst = src + val; 4 double; S2, strided elements. */
VonkStatus vonkAdd_vc_64f_4x1_S2(const double *src, int32_t srcElemStride, double val, double *dst,
    int32_t dstElemStride);
/** dst = src + val; 4 double; P, one pointer per element position. */
VonkStatus vonkAdd_vc_64f_4x1_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift);
/** dst = src + val; 5 double; standard layout. */
VonkStatus vonkAdd_vc_64f_5x1(const double *src, double val, double *dst);
/** dst = src + val; 5 double; S2, strided elements. */
VonkStatus vonkAdd_vc_64f_5x1_S2(const double *src, int32_t srcElemStride, double val, double *dst,
    int32_t dstElemStride);
/** dst = src + val; 5 double; P, one pointer per element position. */
VonkStatus vonkAdd_vc_64f_5x1_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift);
/** dst = src + val; 6 double; standard layout. */
VonkStatus vonkAdd_vc_64f_6x1(const double *src, double val, double *dst);
/** dst = src + val; 6 double; S2, strided elements. */
VonkStatus vonkAdd_vc_64f_6x1_S2(const double *src, int32_t srcElemStride, double val, double *dst,
    int32_t dstElemStride);
/** dst = src + val; 6 double; P, one pointer per element position. */
VonkStatus vonkAdd_vc_64f_6x1_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift);

/** dst(n) = src(n) + val; `len` float, n below count; standard layout. */
VonkStatus vonkAdd_vac_32f(const float *src, int32_t srcObjStride, float val, float *dst, int32_t dstObjStride,
    uint32_t len, uint32_t count);
/** dst(n) = src(n) + val; `len` float, n below count; S2, strided elements. */
VonkStatus vonkAdd_vac_32f_S2(const float *src, int32_t srcObjStride, int32_t srcElemStride, float val, float *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t len, uint32_t count);
/** dst(n) = src(n) + val; `len` float, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_vac_32f_P(const float *const *src, int32_t srcShift, float val, float *const *dst, int32_t dstShift,
    uint32_t len, uint32_t count);
/** dst(n) = src(n) + val; `len` float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_vac_32f_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t len, uint32_t count);
/** dst(n) = src(n) + val; `len` float, n below count; L, one pointer per object. */
VonkStatus vonkAdd_vac_32f_L(const float *const *src, int32_t srcShift, float val, float *const *dst, int32_t dstShift,
    uint32_t len, uint32_t count);
/** dst(n) = src(n) + val; `len` float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_vac_32f_LS2(const float *const *src, int32_t srcShift, int32_t srcElemStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t len, uint32_t count);
/** dst(n) = src(n) + val; 3 float, n below count; standard layout. Exception: vc-whole-object. */
VonkStatus vonkAdd_vac_32f_3x1(const float *src, int32_t srcObjStride, float val, float *dst, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src(n) + val; 3 float, n below count; S2, strided elements. */
VonkStatus vonkAdd_vac_32f_3x1_S2(const float *src, int32_t srcObjStride, int32_t srcElemStride, float val, float *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src(n) + val; 3 float, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_vac_32f_3x1_P(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src(n) + val; 3 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_vac_32f_3x1_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = src(n) + val; 3 float, n below count; L, one pointer per object. Exception: vc-whole-object. */
VonkStatus vonkAdd_vac_32f_3x1_L(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src(n) + val; 3 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_vac_32f_3x1_LS2(const float *const *src, int32_t srcShift, int32_t srcElemStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = src(n) + val; 4 float, n below count; standard layout. Exception: vc-whole-object. */
VonkStatus vonkAdd_vac_32f_4x1(const float *src, int32_t srcObjStride, float val, float *dst, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src(n) + val; 4 float, n below count; S2, strided elements. */
VonkStatus vonkAdd_vac_32f_4x1_S2(const float *src, int32_t srcObjStride, int32_t srcElemStride, float val, float *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src(n) + val; 4 float, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_vac_32f_4x1_P(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src(n) + val; 4 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_vac_32f_4x1_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = src(n) + val; 4 float, n below count; L, one pointer per object. Exception: vc-whole-object. */
VonkStatus vonkAdd_vac_32f_4x1_L(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src(n) + val; 4 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_vac_32f_4x1_LS2(const float *const *src, int32_t srcShift, int32_t srcElemStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = src(n) + val; 5 float, n below count; standard layout. Exception: vc-whole-object. */
VonkStatus vonkAdd_vac_32f_5x1(const float *src, int32_t srcObjStride, float val, float *dst, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src(n) + val; 5 float, n below count; S2, strided elements. */
VonkStatus vonkAdd_vac_32f_5x1_S2(const float *src, int32_t srcObjStride, int32_t srcElemStride, float val, float *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src(n) + val; 5 float, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_vac_32f_5x1_P(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src(n) + val; 5 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_vac_32f_5x1_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = src(n) + val; 5 float, n below count; L, one pointer per object. Exception: vc-whole-object. */
VonkStatus vonkAdd_vac_32f_5x1_L(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src(n) + val; 5 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_vac_32f_5x1_LS2(const float *const *src, int32_t srcShift, int32_t srcElemStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = src(n) + val; 6 float, n below count; standard layout. Exception: vc-whole-object. */
VonkStatus vonkAdd_vac_32f_6x1(const float *src, int32_t srcObjStride, float val, float *dst, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src(n) + val; 6 float, n below count; S2, strided elements. */
VonkStatus vonkAdd_vac_32f_6x1_S2(const float *src, int32_t srcObjStride, int32_t srcElemStride, float val, float *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src(n) + val; 6 float, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_vac_32f_6x1_P(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src(n) + val; 6 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_vac_32f_6x1_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = src(n) + val; 6 float, n below count; L, one pointer per object. Exception: vc-whole-object. */
VonkStatus vonkAdd_vac_32f_6x1_L(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src(n) + val; 6 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_vac_32f_6x1_LS2(const float *const *src, int32_t srcShift, int32_t srcElemStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);

/** dst(n) = src(n) + val; `len` double, n below count; standard layout. */
VonkStatus vonkAdd_vac_64f(const double *src, int32_t srcObjStride, double val, double *dst, int32_t dstObjStride,
    uint32_t len, uint32_t count);
/** dst(n) = src(n) + val; `len` double, n below count; S2, strided elements. */
VonkStatus vonkAdd_vac_64f_S2(const double *src, int32_t srcObjStride, int32_t srcElemStride, double val, double *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t len, uint32_t count);
/** dst(n) = src(n) + val; `len` double, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_vac_64f_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift, uint32_t len, uint32_t count);
/** dst(n) = src(n) + val; `len` double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_vac_64f_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t len, uint32_t count);
/** dst(n) = src(n) + val; `len` double, n below count; L, one pointer per object. */
VonkStatus vonkAdd_vac_64f_L(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift, uint32_t len, uint32_t count);
/** dst(n) = src(n) + val; `len` double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_vac_64f_LS2(const double *const *src, int32_t srcShift, int32_t srcElemStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t len, uint32_t count);
/** dst(n) = src(n) + val; 3 double, n below count; standard layout. */
VonkStatus vonkAdd_vac_64f_3x1(const double *src, int32_t srcObjStride, double val, double *dst, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src(n) + val; 3 double, n below count; S2, strided elements. */
VonkStatus vonkAdd_vac_64f_3x1_S2(const double *src, int32_t srcObjStride, int32_t srcElemStride, double val,
    double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src(n) + val; 3 double, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_vac_64f_3x1_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src(n) + val; 3 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_vac_64f_3x1_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = src(n) + val; 3 double, n below count; L, one pointer per object. */
VonkStatus vonkAdd_vac_64f_3x1_L(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src(n) + val; 3 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_vac_64f_3x1_LS2(const double *const *src, int32_t srcShift, int32_t srcElemStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = src(n) + val; 4 double, n below count; standard layout. */
VonkStatus vonkAdd_vac_64f_4x1(const double *src, int32_t srcObjStride, double val, double *dst, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src(n) + val; 4 double, n below count; S2, strided elements. */
VonkStatus vonkAdd_vac_64f_4x1_S2(const double *src, int32_t srcObjStride, int32_t srcElemStride, double val,
    double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src(n) + val; 4 double, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_vac_64f_4x1_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src(n) + val; 4 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_vac_64f_4x1_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = src(n) + val; 4 double, n below count; L, one pointer per object. */
VonkStatus vonkAdd_vac_64f_4x1_L(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src(n) + val; 4 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_vac_64f_4x1_LS2(const double *const *src, int32_t srcShift, int32_t srcElemStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = src(n) + val; 5 double, n below count; standard layout. */
VonkStatus vonkAdd_vac_64f_5x1(const double *src, int32_t srcObjStride, double val, double *dst, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src(n) + val; 5 double, n below count; S2, strided elements. */
VonkStatus vonkAdd_vac_64f_5x1_S2(const double *src, int32_t srcObjStride, int32_t srcElemStride, double val,
    double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src(n) + val; 5 double, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_vac_64f_5x1_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src(n) + val; 5 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_vac_64f_5x1_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = src(n) + val; 5 double, n below count; L, one pointer per object. */
VonkStatus vonkAdd_vac_64f_5x1_L(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src(n) + val; 5 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_vac_64f_5x1_LS2(const double *const *src, int32_t srcShift, int32_t srcElemStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = src(n) + val; 6 double, n below count; standard layout. */
VonkStatus vonkAdd_vac_64f_6x1(const double *src, int32_t srcObjStride, double val, double *dst, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src(n) + val; 6 double, n below count; S2, strided elements. */
VonkStatus vonkAdd_vac_64f_6x1_S2(const double *src, int32_t srcObjStride, int32_t srcElemStride, double val,
    double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src(n) + val; 6 double, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_vac_64f_6x1_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src(n) + val; 6 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_vac_64f_6x1_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = src(n) + val; 6 double, n below count; L, one pointer per object. */
VonkStatus vonkAdd_vac_64f_6x1_L(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src(n) + val; 6 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_vac_64f_6x1_LS2(const double *const *src, int32_t srcShift, int32_t srcElemStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);

/** dst = src - val; `len` float; standard layout. */
VonkStatus vonkSub_vc_32f(const float *src, float val, float *dst, uint32_t len);
/** dst = src - val; `len` float; S2, strided elements. */
VonkStatus vonkSub_vc_32f_S2(const float *src, int32_t srcElemStride, float val, float *dst, int32_t dstElemStride,
    uint32_t len);
/** dst = src - val; `len` float; P, one pointer per element position. */
VonkStatus vonkSub_vc_32f_P(const float *const *src, int32_t srcShift, float val, float *const *dst, int32_t dstShift,
    uint32_t len);
/** dst = src - val; 3 float; standard layout. Exception: vc-whole-object. */
VonkStatus vonkSub_vc_32f_3x1(const float *src, float val, float *dst);
/** dst = src - val; 3 float; S2, strided elements. */
VonkStatus vonkSub_vc_32f_3x1_S2(const float *src, int32_t srcElemStride, float val, float *dst, int32_t dstElemStride);
/** dst = src - val; 3 float; P, one pointer per element position. */
VonkStatus vonkSub_vc_32f_3x1_P(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift);
/** dst = src - val; 4 float; standard layout. Exception: vc-whole-object. */
VonkStatus vonkSub_vc_32f_4x1(const float *src, float val, float *dst);
/** dst = src - val; 4 float; S2, strided elements. */
VonkStatus vonkSub_vc_32f_4x1_S2(const float *src, int32_t srcElemStride, float val, float *dst, int32_t dstElemStride);
/** dst = src - val; 4 float; P, one pointer per element position. */
VonkStatus vonkSub_vc_32f_4x1_P(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift);
/** dst = src - val; 5 float; standard layout. Exception: vc-whole-object. */
VonkStatus vonkSub_vc_32f_5x1(const float *src, float val, float *dst);
/** dst = src - val; 5 float; S2, strided elements. */
VonkStatus vonkSub_vc_32f_5x1_S2(const float *src, int32_t srcElemStride, float val, float *dst, int32_t dstElemStride);
/** dst = src - val; 5 float; P, one pointer per element position. */
VonkStatus vonkSub_vc_32f_5x1_P(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift);
/** dst = src - val; 6 float; standard layout. Exception: vc-whole-object. */
VonkStatus vonkSub_vc_32f_6x1(const float *src, float val, float *dst);
/** dst = src - val; 6 float; S2, strided elements. */
VonkStatus vonkSub_vc_32f_6x1_S2(const float *src, int32_t srcElemStride, float val, float *dst, int32_t dstElemStride);
/** dst = src - val; 6 float; P, one pointer per element position. */
VonkStatus vonkSub_vc_32f_6x1_P(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift);

/** dst = src - val; `len` double; standard layout. */
VonkStatus vonkSub_vc_64f(const double *src, double val, double *dst, uint32_t len);
/** dst = src - val; `len` double; S2, strided elements. */
VonkStatus vonkSub_vc_64f_S2(const double *src, int32_t srcElemStride, double val, double *dst, int32_t dstElemStride,
    uint32_t len);
/** dst = src - val; `len` double; P, one pointer per element position. */
VonkStatus vonkSub_vc_64f_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift, uint32_t len);
/** dst = src - val; 3 double; standard layout. */
VonkStatus vonkSub_vc_64f_3x1(const double *src, double val, double *dst);
/** dst = src - val; 3 double; S2, strided elements. */
VonkStatus vonkSub_vc_64f_3x1_S2(const double *src, int32_t srcElemStride, double val, double *dst,
    int32_t dstElemStride);
/** dst = src - val; 3 double; P, one pointer per element position. */
VonkStatus vonkSub_vc_64f_3x1_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift);
/** dst = src - val; 4 double; standard layout. */
VonkStatus vonkSub_vc_64f_4x1(const double *src, double val, double *dst);
/** dst = src - val; 4 double; S2, strided elements. */
VonkStatus vonkSub_vc_64f_4x1_S2(const double *src, int32_t srcElemStride, double val, double *dst,
    int32_t dstElemStride);
/** dst = src - val; 4 double; P, one pointer per element position. */
VonkStatus vonkSub_vc_64f_4x1_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift);
/** dst = src - val; 5 double; standard layout. */
VonkStatus vonkSub_vc_64f_5x1(const double *src, double val, double *dst);
/** dst = src - val; 5 double; S2, strided elements. */
VonkStatus vonkSub_vc_64f_5x1_S2(const double *src, int32_t srcElemStride, double val, double *dst,
    int32_t dstElemStride);
/** dst = src - val; 5 double; P, one pointer per element position. */
VonkStatus vonkSub_vc_64f_5x1_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift);
/** dst = src - val; 6 double; standard layout. */
VonkStatus vonkSub_vc_64f_6x1(const double *src, double val, double *dst);
/** dst = src - val; 6 double; S2, strided elements. */
VonkStatus vonkSub_vc_64f_6x1_S2(const double *src, int32_t srcElemStride, double val, double *dst,
    int32_t dstElemStride);
/** dst = src - val; 6 double; P, one pointer per element position. */
VonkStatus vonkSub_vc_64f_6x1_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift);

/** dst(n) = src(n) - val; `len` float, n below count; standard layout. */
VonkStatus vonkSub_vac_32f(const float *src, int32_t srcObjStride, float val, float *dst, int32_t dstObjStride,
    uint32_t len, uint32_t count);
/** dst(n) = src(n) - val; `len` float, n below count; S2, strided elements. */
VonkStatus vonkSub_vac_32f_S2(const float *src, int32_t srcObjStride, int32_t srcElemStride, float val, float *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t len, uint32_t count);
/** dst(n) = src(n) - val; `len` float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_vac_32f_P(const float *const *src, int32_t srcShift, float val, float *const *dst, int32_t dstShift,
    uint32_t len, uint32_t count);
/** dst(n) = src(n) - val; `len` float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_vac_32f_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t len, uint32_t count);
/** dst(n) = src(n) - val; `len` float, n below count; L, one pointer per object. */
VonkStatus vonkSub_vac_32f_L(const float *const *src, int32_t srcShift, float val, float *const *dst, int32_t dstShift,
    uint32_t len, uint32_t count);
/** dst(n) = src(n) - val; `len` float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_vac_32f_LS2(const float *const *src, int32_t srcShift, int32_t srcElemStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t len, uint32_t count);
/** dst(n) = src(n) - val; 3 float, n below count; standard layout. Exception: vc-whole-object. */
VonkStatus vonkSub_vac_32f_3x1(const float *src, int32_t srcObjStride, float val, float *dst, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src(n) - val; 3 float, n below count; S2, strided elements. */
VonkStatus vonkSub_vac_32f_3x1_S2(const float *src, int32_t srcObjStride, int32_t srcElemStride, float val, float *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src(n) - val; 3 float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_vac_32f_3x1_P(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src(n) - val; 3 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_vac_32f_3x1_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = src(n) - val; 3 float, n below count; L, one pointer per object. Exception: vc-whole-object. */
VonkStatus vonkSub_vac_32f_3x1_L(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src(n) - val; 3 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_vac_32f_3x1_LS2(const float *const *src, int32_t srcShift, int32_t srcElemStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = src(n) - val; 4 float, n below count; standard layout. Exception: vc-whole-object. */
VonkStatus vonkSub_vac_32f_4x1(const float *src, int32_t srcObjStride, float val, float *dst, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src(n) - val; 4 float, n below count; S2, strided elements. */
VonkStatus vonkSub_vac_32f_4x1_S2(const float *src, int32_t srcObjStride, int32_t srcElemStride, float val, float *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src(n) - val; 4 float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_vac_32f_4x1_P(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src(n) - val; 4 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_vac_32f_4x1_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = src(n) - val; 4 float, n below count; L, one pointer per object. Exception: vc-whole-object. */
VonkStatus vonkSub_vac_32f_4x1_L(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src(n) - val; 4 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_vac_32f_4x1_LS2(const float *const *src, int32_t srcShift, int32_t srcElemStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = src(n) - val; 5 float, n below count; standard layout. Exception: vc-whole-object. */
VonkStatus vonkSub_vac_32f_5x1(const float *src, int32_t srcObjStride, float val, float *dst, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src(n) - val; 5 float, n below count; S2, strided elements. */
VonkStatus vonkSub_vac_32f_5x1_S2(const float *src, int32_t srcObjStride, int32_t srcElemStride, float val, float *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src(n) - val; 5 float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_vac_32f_5x1_P(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src(n) - val; 5 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_vac_32f_5x1_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = src(n) - val; 5 float, n below count; L, one pointer per object. Exception: vc-whole-object. */
VonkStatus vonkSub_vac_32f_5x1_L(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src(n) - val; 5 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_vac_32f_5x1_LS2(const float *const *src, int32_t srcShift, int32_t srcElemStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = src(n) - val; 6 float, n below count; standard layout. Exception: vc-whole-object. */
VonkStatus vonkSub_vac_32f_6x1(const float *src, int32_t srcObjStride, float val, float *dst, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src(n) - val; 6 float, n below count; S2, strided elements. */
VonkStatus vonkSub_vac_32f_6x1_S2(const float *src, int32_t srcObjStride, int32_t srcElemStride, float val, float *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src(n) - val; 6 float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_vac_32f_6x1_P(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src(n) - val; 6 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_vac_32f_6x1_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = src(n) - val; 6 float, n below count; L, one pointer per object. Exception: vc-whole-object. */
VonkStatus vonkSub_vac_32f_6x1_L(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src(n) - val; 6 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_vac_32f_6x1_LS2(const float *const *src, int32_t srcShift, int32_t srcElemStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);

/** dst(n) = src(n) - val; `len` double, n below count; standard layout. */
VonkStatus vonkSub_vac_64f(const double *src, int32_t srcObjStride, double val, double *dst, int32_t dstObjStride,
    uint32_t len, uint32_t count);
/** dst(n) = src(n) - val; `len` double, n below count; S2, strided elements. */
VonkStatus vonkSub_vac_64f_S2(const double *src, int32_t srcObjStride, int32_t srcElemStride, double val, double *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t len, uint32_t count);
/** dst(n) = src(n) - val; `len` double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_vac_64f_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift, uint32_t len, uint32_t count);
/** dst(n) = src(n) - val; `len` double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_vac_64f_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t len, uint32_t count);
/** dst(n) = src(n) - val; `len` double, n below count; L, one pointer per object. */
VonkStatus vonkSub_vac_64f_L(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift, uint32_t len, uint32_t count);
/** dst(n) = src(n) - val; `len` double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_vac_64f_LS2(const double *const *src, int32_t srcShift, int32_t srcElemStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t len, uint32_t count);
/** dst(n) = src(n) - val; 3 double, n below count; standard layout. */
VonkStatus vonkSub_vac_64f_3x1(const double *src, int32_t srcObjStride, double val, double *dst, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src(n) - val; 3 double, n below count; S2, strided elements. */
VonkStatus vonkSub_vac_64f_3x1_S2(const double *src, int32_t srcObjStride, int32_t srcElemStride, double val,
    double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src(n) - val; 3 double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_vac_64f_3x1_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src(n) - val; 3 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_vac_64f_3x1_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = src(n) - val; 3 double, n below count; L, one pointer per object. */
VonkStatus vonkSub_vac_64f_3x1_L(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src(n) - val; 3 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_vac_64f_3x1_LS2(const double *const *src, int32_t srcShift, int32_t srcElemStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = src(n) - val; 4 double, n below count; standard layout. */
VonkStatus vonkSub_vac_64f_4x1(const double *src, int32_t srcObjStride, double val, double *dst, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src(n) - val; 4 double, n below count; S2, strided elements. */
VonkStatus vonkSub_vac_64f_4x1_S2(const double *src, int32_t srcObjStride, int32_t srcElemStride, double val,
    double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src(n) - val; 4 double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_vac_64f_4x1_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src(n) - val; 4 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_vac_64f_4x1_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = src(n) - val; 4 double, n below count; L, one pointer per object. */
VonkStatus vonkSub_vac_64f_4x1_L(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src(n) - val; 4 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_vac_64f_4x1_LS2(const double *const *src, int32_t srcShift, int32_t srcElemStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = src(n) - val; 5 double, n below count; standard layout. */
VonkStatus vonkSub_vac_64f_5x1(const double *src, int32_t srcObjStride, double val, double *dst, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src(n) - val; 5 double, n below count; S2, strided elements. */
VonkStatus vonkSub_vac_64f_5x1_S2(const double *src, int32_t srcObjStride, int32_t srcElemStride, double val,
    double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src(n) - val; 5 double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_vac_64f_5x1_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src(n) - val; 5 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_vac_64f_5x1_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = src(n) - val; 5 double, n below count; L, one pointer per object. */
VonkStatus vonkSub_vac_64f_5x1_L(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src(n) - val; 5 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_vac_64f_5x1_LS2(const double *const *src, int32_t srcShift, int32_t srcElemStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = src(n) - val; 6 double, n below count; standard layout. */
VonkStatus vonkSub_vac_64f_6x1(const double *src, int32_t srcObjStride, double val, double *dst, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src(n) - val; 6 double, n below count; S2, strided elements. */
VonkStatus vonkSub_vac_64f_6x1_S2(const double *src, int32_t srcObjStride, int32_t srcElemStride, double val,
    double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src(n) - val; 6 double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_vac_64f_6x1_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src(n) - val; 6 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_vac_64f_6x1_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = src(n) - val; 6 double, n below count; L, one pointer per object. */
VonkStatus vonkSub_vac_64f_6x1_L(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src(n) - val; 6 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_vac_64f_6x1_LS2(const double *const *src, int32_t srcShift, int32_t srcElemStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);

/** dst = val - src; `len` float; standard layout. */
VonkStatus vonkSub_cv_32f(const float *src, float val, float *dst, uint32_t len);
/** dst = val - src; `len` float; S2, strided elements. */
VonkStatus vonkSub_cv_32f_S2(const float *src, int32_t srcElemStride, float val, float *dst, int32_t dstElemStride,
    uint32_t len);
/** dst = val - src; `len` float; P, one pointer per element position. */
VonkStatus vonkSub_cv_32f_P(const float *const *src, int32_t srcShift, float val, float *const *dst, int32_t dstShift,
    uint32_t len);
/** dst = val - src; 3 float; standard layout. Exception: vc-whole-object. */
VonkStatus vonkSub_cv_32f_3x1(const float *src, float val, float *dst);
/** dst = val - src; 3 float; S2, strided elements. */
VonkStatus vonkSub_cv_32f_3x1_S2(const float *src, int32_t srcElemStride, float val, float *dst, int32_t dstElemStride);
/** dst = val - src; 3 float; P, one pointer per element position. */
VonkStatus vonkSub_cv_32f_3x1_P(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift);
/** dst = val - src; 4 float; standard layout. Exception: vc-whole-object. */
VonkStatus vonkSub_cv_32f_4x1(const float *src, float val, float *dst);
/** dst = val - src; 4 float; S2, strided elements. */
VonkStatus vonkSub_cv_32f_4x1_S2(const float *src, int32_t srcElemStride, float val, float *dst, int32_t dstElemStride);
/** dst = val - src; 4 float; P, one pointer per element position. */
VonkStatus vonkSub_cv_32f_4x1_P(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift);
/** dst = val - src; 5 float; standard layout. Exception: vc-whole-object. */
VonkStatus vonkSub_cv_32f_5x1(const float *src, float val, float *dst);
/** dst = val - src; 5 float; S2, strided elements. */
VonkStatus vonkSub_cv_32f_5x1_S2(const float *src, int32_t srcElemStride, float val, float *dst, int32_t dstElemStride);
/** dst = val - src; 5 float; P, one pointer per element position. */
VonkStatus vonkSub_cv_32f_5x1_P(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift);
/** dst = val - src; 6 float; standard layout. Exception: vc-whole-object. */
VonkStatus vonkSub_cv_32f_6x1(const float *src, float val, float *dst);
/** dst = val - src; 6 float; S2, strided elements. */
VonkStatus vonkSub_cv_32f_6x1_S2(const float *src, int32_t srcElemStride, float val, float *dst, int32_t dstElemStride);
/** dst = val - src; 6 float; P, one pointer per element position. */
VonkStatus vonkSub_cv_32f_6x1_P(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift);

/** dst = val - src; `len` double; standard layout. */
VonkStatus vonkSub_cv_64f(const double *src, double val, double *dst, uint32_t len);
/** dst = val - src; `len` double; S2, strided elements. */
VonkStatus vonkSub_cv_64f_S2(const double *src, int32_t srcElemStride, double val, double *dst, int32_t dstElemStride,
    uint32_t len);
/** dst = val - src; `len` double; P, one pointer per element position. */
VonkStatus vonkSub_cv_64f_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift, uint32_t len);
/** dst = val - src; 3 double; standard layout. */
VonkStatus vonkSub_cv_64f_3x1(const double *src, double val, double *dst);
/** dst = val - src; 3 double; S2, strided elements. */
VonkStatus vonkSub_cv_64f_3x1_S2(const double *src, int32_t srcElemStride, double val, double *dst,
    int32_t dstElemStride);
/** dst = val - src; 3 double; P, one pointer per element position. */
VonkStatus vonkSub_cv_64f_3x1_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift);
/** dst = val - src; 4 double; standard layout. */
VonkStatus vonkSub_cv_64f_4x1(const double *src, double val, double *dst);
/** dst = val - src; 4 double; S2, strided elements. */
VonkStatus vonkSub_cv_64f_4x1_S2(const double *src, int32_t srcElemStride, double val, double *dst,
    int32_t dstElemStride);
/** dst = val - src; 4 double; P, one pointer per element position. */
VonkStatus vonkSub_cv_64f_4x1_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift);
/** dst = val - src; 5 double; standard layout. */
VonkStatus vonkSub_cv_64f_5x1(const double *src, double val, double *dst);
/** dst = val - src; 5 double; S2, strided elements. */
VonkStatus vonkSub_cv_64f_5x1_S2(const double *src, int32_t srcElemStride, double val, double *dst,
    int32_t dstElemStride);
/** dst = val - src; 5 double; P, one pointer per element position. */
VonkStatus vonkSub_cv_64f_5x1_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift);
/** dst = val - src; 6 double; standard layout. */
VonkStatus vonkSub_cv_64f_6x1(const double *src, double val, double *dst);
/** dst = val - src; 6 double; S2, strided elements. */
VonkStatus vonkSub_cv_64f_6x1_S2(const double *src, int32_t srcElemStride, double val, double *dst,
    int32_t dstElemStride);
/** dst = val - src; 6 double; P, one pointer per element position. */
VonkStatus vonkSub_cv_64f_6x1_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift);

/** dst(n) = val - src(n); `len` float, n below count; standard layout. */
VonkStatus vonkSub_cva_32f(const float *src, int32_t srcObjStride, float val, float *dst, int32_t dstObjStride,
    uint32_t len, uint32_t count);
/** dst(n) = val - src(n); `len` float, n below count; S2, strided elements. */
VonkStatus vonkSub_cva_32f_S2(const float *src, int32_t srcObjStride, int32_t srcElemStride, float val, float *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t len, uint32_t count);
/** dst(n) = val - src(n); `len` float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_cva_32f_P(const float *const *src, int32_t srcShift, float val, float *const *dst, int32_t dstShift,
    uint32_t len, uint32_t count);
/** dst(n) = val - src(n); `len` float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_cva_32f_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t len, uint32_t count);
/** dst(n) = val - src(n); `len` float, n below count; L, one pointer per object. */
VonkStatus vonkSub_cva_32f_L(const float *const *src, int32_t srcShift, float val, float *const *dst, int32_t dstShift,
    uint32_t len, uint32_t count);
/** dst(n) = val - src(n); `len` float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_cva_32f_LS2(const float *const *src, int32_t srcShift, int32_t srcElemStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t len, uint32_t count);
/** dst(n) = val - src(n); 3 float, n below count; standard layout. Exception: vc-whole-object. */
VonkStatus vonkSub_cva_32f_3x1(const float *src, int32_t srcObjStride, float val, float *dst, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = val - src(n); 3 float, n below count; S2, strided elements. */
VonkStatus vonkSub_cva_32f_3x1_S2(const float *src, int32_t srcObjStride, int32_t srcElemStride, float val, float *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = val - src(n); 3 float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_cva_32f_3x1_P(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = val - src(n); 3 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_cva_32f_3x1_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = val - src(n); 3 float, n below count; L, one pointer per object. Exception: vc-whole-object. */
VonkStatus vonkSub_cva_32f_3x1_L(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = val - src(n); 3 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_cva_32f_3x1_LS2(const float *const *src, int32_t srcShift, int32_t srcElemStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = val - src(n); 4 float, n below count; standard layout. Exception: vc-whole-object. */
VonkStatus vonkSub_cva_32f_4x1(const float *src, int32_t srcObjStride, float val, float *dst, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = val - src(n); 4 float, n below count; S2, strided elements. */
VonkStatus vonkSub_cva_32f_4x1_S2(const float *src, int32_t srcObjStride, int32_t srcElemStride, float val, float *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = val - src(n); 4 float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_cva_32f_4x1_P(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = val - src(n); 4 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_cva_32f_4x1_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = val - src(n); 4 float, n below count; L, one pointer per object. Exception: vc-whole-object. */
VonkStatus vonkSub_cva_32f_4x1_L(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = val - src(n); 4 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_cva_32f_4x1_LS2(const float *const *src, int32_t srcShift, int32_t srcElemStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = val - src(n); 5 float, n below count; standard layout. Exception: vc-whole-object. */
VonkStatus vonkSub_cva_32f_5x1(const float *src, int32_t srcObjStride, float val, float *dst, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = val - src(n); 5 float, n below count; S2, strided elements. */
VonkStatus vonkSub_cva_32f_5x1_S2(const float *src, int32_t srcObjStride, int32_t srcElemStride, float val, float *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = val - src(n); 5 float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_cva_32f_5x1_P(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = val - src(n); 5 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_cva_32f_5x1_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = val - src(n); 5 float, n below count; L, one pointer per object. Exception: vc-whole-object. */
VonkStatus vonkSub_cva_32f_5x1_L(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = val - src(n); 5 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_cva_32f_5x1_LS2(const float *const *src, int32_t srcShift, int32_t srcElemStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = val - src(n); 6 float, n below count; standard layout. Exception: vc-whole-object. */
VonkStatus vonkSub_cva_32f_6x1(const float *src, int32_t srcObjStride, float val, float *dst, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = val - src(n); 6 float, n below count; S2, strided elements. */
VonkStatus vonkSub_cva_32f_6x1_S2(const float *src, int32_t srcObjStride, int32_t srcElemStride, float val, float *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = val - src(n); 6 float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_cva_32f_6x1_P(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = val - src(n); 6 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_cva_32f_6x1_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = val - src(n); 6 float, n below count; L, one pointer per object. Exception: vc-whole-object. */
VonkStatus vonkSub_cva_32f_6x1_L(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = val - src(n); 6 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_cva_32f_6x1_LS2(const float *const *src, int32_t srcShift, int32_t srcElemStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);

/** dst(n) = val - src(n); `len` double, n below count; standard layout. */
VonkStatus vonkSub_cva_64f(const double *src, int32_t srcObjStride, double val, double *dst, int32_t dstObjStride,
    uint32_t len, uint32_t count);
/** dst(n) = val - src(n); `len` double, n below count; S2, strided elements. */
VonkStatus vonkSub_cva_64f_S2(const double *src, int32_t srcObjStride, int32_t srcElemStride, double val, double *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t len, uint32_t count);
/** dst(n) = val - src(n); `len` double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_cva_64f_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift, uint32_t len, uint32_t count);
/** dst(n) = val - src(n); `len` double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_cva_64f_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t len, uint32_t count);
/** dst(n) = val - src(n); `len` double, n below count; L, one pointer per object. */
VonkStatus vonkSub_cva_64f_L(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift, uint32_t len, uint32_t count);
/** dst(n) = val - src(n); `len` double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_cva_64f_LS2(const double *const *src, int32_t srcShift, int32_t srcElemStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t len, uint32_t count);
/** dst(n) = val - src(n); 3 double, n below count; standard layout. */
VonkStatus vonkSub_cva_64f_3x1(const double *src, int32_t srcObjStride, double val, double *dst, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = val - src(n); 3 double, n below count; S2, strided elements. */
VonkStatus vonkSub_cva_64f_3x1_S2(const double *src, int32_t srcObjStride, int32_t srcElemStride, double val,
    double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = val - src(n); 3 double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_cva_64f_3x1_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = val - src(n); 3 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_cva_64f_3x1_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = val - src(n); 3 double, n below count; L, one pointer per object. */
VonkStatus vonkSub_cva_64f_3x1_L(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = val - src(n); 3 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_cva_64f_3x1_LS2(const double *const *src, int32_t srcShift, int32_t srcElemStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = val - src(n); 4 double, n below count; standard layout. */
VonkStatus vonkSub_cva_64f_4x1(const double *src, int32_t srcObjStride, double val, double *dst, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = val - src(n); 4 double, n below count; S2, strided elements. */
VonkStatus vonkSub_cva_64f_4x1_S2(const double *src, int32_t srcObjStride, int32_t srcElemStride, double val,
    double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = val - src(n); 4 double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_cva_64f_4x1_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = val - src(n); 4 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_cva_64f_4x1_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = val - src(n); 4 double, n below count; L, one pointer per object. */
VonkStatus vonkSub_cva_64f_4x1_L(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = val - src(n); 4 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_cva_64f_4x1_LS2(const double *const *src, int32_t srcShift, int32_t srcElemStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = val - src(n); 5 double, n below count; standard layout. */
VonkStatus vonkSub_cva_64f_5x1(const double *src, int32_t srcObjStride, double val, double *dst, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = val - src(n); 5 double, n below count; S2, strided elements. */
VonkStatus vonkSub_cva_64f_5x1_S2(const double *src, int32_t srcObjStride, int32_t srcElemStride, double val,
    double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = val - src(n); 5 double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_cva_64f_5x1_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = val - src(n); 5 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_cva_64f_5x1_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = val - src(n); 5 double, n below count; L, one pointer per object. */
VonkStatus vonkSub_cva_64f_5x1_L(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = val - src(n); 5 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_cva_64f_5x1_LS2(const double *const *src, int32_t srcShift, int32_t srcElemStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = val - src(n); 6 double, n below count; standard layout. */
VonkStatus vonkSub_cva_64f_6x1(const double *src, int32_t srcObjStride, double val, double *dst, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = val - src(n); 6 double, n below count; S2, strided elements. */
VonkStatus vonkSub_cva_64f_6x1_S2(const double *src, int32_t srcObjStride, int32_t srcElemStride, double val,
    double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = val - src(n); 6 double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_cva_64f_6x1_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = val - src(n); 6 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_cva_64f_6x1_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = val - src(n); 6 double, n below count; L, one pointer per object. */
VonkStatus vonkSub_cva_64f_6x1_L(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = val - src(n); 6 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_cva_64f_6x1_LS2(const double *const *src, int32_t srcShift, int32_t srcElemStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);

/** dst = src * val; `len` float; standard layout. */
VonkStatus vonkMul_vc_32f(const float *src, float val, float *dst, uint32_t len);
/** dst = src * val; `len` float; S2, strided elements. */
VonkStatus vonkMul_vc_32f_S2(const float *src, int32_t srcElemStride, float val, float *dst, int32_t dstElemStride,
    uint32_t len);
/** dst = src * val; `len` float; P, one pointer per element position. */
VonkStatus vonkMul_vc_32f_P(const float *const *src, int32_t srcShift, float val, float *const *dst, int32_t dstShift,
    uint32_t len);
/** dst = src * val; 3 float; standard layout. Exception: vc-whole-object. */
VonkStatus vonkMul_vc_32f_3x1(const float *src, float val, float *dst);
/** dst = src * val; 3 float; S2, strided elements. */
VonkStatus vonkMul_vc_32f_3x1_S2(const float *src, int32_t srcElemStride, float val, float *dst, int32_t dstElemStride);
/** dst = src * val; 3 float; P, one pointer per element position. */
VonkStatus vonkMul_vc_32f_3x1_P(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift);
/** dst = src * val; 4 float; standard layout. Exception: vc-whole-object. */
VonkStatus vonkMul_vc_32f_4x1(const float *src, float val, float *dst);
/** dst = src * val; 4 float; S2, strided elements. */
VonkStatus vonkMul_vc_32f_4x1_S2(const float *src, int32_t srcElemStride, float val, float *dst, int32_t dstElemStride);
/** dst = src * val; 4 float; P, one pointer per element position. */
VonkStatus vonkMul_vc_32f_4x1_P(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift);
/** dst = src * val; 5 float; standard layout. Exception: vc-whole-object. */
VonkStatus vonkMul_vc_32f_5x1(const float *src, float val, float *dst);
/** dst = src * val; 5 float; S2, strided elements. */
VonkStatus vonkMul_vc_32f_5x1_S2(const float *src, int32_t srcElemStride, float val, float *dst, int32_t dstElemStride);
/** dst = src * val; 5 float; P, one pointer per element position. */
VonkStatus vonkMul_vc_32f_5x1_P(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift);
/** dst = src * val; 6 float; standard layout. Exception: vc-whole-object. */
VonkStatus vonkMul_vc_32f_6x1(const float *src, float val, float *dst);
/** dst = src * val; 6 float; S2, strided elements. */
VonkStatus vonkMul_vc_32f_6x1_S2(const float *src, int32_t srcElemStride, float val, float *dst, int32_t dstElemStride);
/** dst = src * val; 6 float; P, one pointer per element position. */
VonkStatus vonkMul_vc_32f_6x1_P(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift);

/** dst = src * val; `len` double; standard layout. */
VonkStatus vonkMul_vc_64f(const double *src, double val, double *dst, uint32_t len);
/** dst = src * val; `len` double; S2, strided elements. */
VonkStatus vonkMul_vc_64f_S2(const double *src, int32_t srcElemStride, double val, double *dst, int32_t dstElemStride,
    uint32_t len);
/** dst = src * val; `len` double; P, one pointer per element position. */
VonkStatus vonkMul_vc_64f_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift, uint32_t len);
/** dst = src * val; 3 double; standard layout. */
VonkStatus vonkMul_vc_64f_3x1(const double *src, double val, double *dst);
/** dst = src * val; 3 double; S2, strided elements. */
VonkStatus vonkMul_vc_64f_3x1_S2(const double *src, int32_t srcElemStride, double val, double *dst,
    int32_t dstElemStride);
/** dst = src * val; 3 double; P, one pointer per element position. */
VonkStatus vonkMul_vc_64f_3x1_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift);
/** dst = src * val; 4 double; standard layout. */
VonkStatus vonkMul_vc_64f_4x1(const double *src, double val, double *dst);
/** dst = src * val; 4 double; S2, strided elements. */
VonkStatus vonkMul_vc_64f_4x1_S2(const double *src, int32_t srcElemStride, double val, double *dst,
    int32_t dstElemStride);
/** dst = src * val; 4 double; P, one pointer per element position. */
VonkStatus vonkMul_vc_64f_4x1_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift);
/** dst = src * val; 5 double; standard layout. */
VonkStatus vonkMul_vc_64f_5x1(const double *src, double val, double *dst);
/** dst = src * val; 5 double; S2, strided elements. */
VonkStatus vonkMul_vc_64f_5x1_S2(const double *src, int32_t srcElemStride, double val, double *dst,
    int32_t dstElemStride);
/** dst = src * val; 5 double; P, one pointer per element position. */
VonkStatus vonkMul_vc_64f_5x1_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift);
/** dst = src * val; 6 double; standard layout. */
VonkStatus vonkMul_vc_64f_6x1(const double *src, double val, double *dst);
/** dst = src * val; 6 double; S2, strided elements. */
VonkStatus vonkMul_vc_64f_6x1_S2(const double *src, int32_t srcElemStride, double val, double *dst,
    int32_t dstElemStride);
/** dst = src * val; 6 double; P, one pointer per element position. */
VonkStatus vonkMul_vc_64f_6x1_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift);

/** dst(n) = src(n) * val; `len` float, n below count; standard layout. */
VonkStatus vonkMul_vac_32f(const float *src, int32_t srcObjStride, float val, float *dst, int32_t dstObjStride,
    uint32_t len, uint32_t count);
/** dst(n) = src(n) * val; `len` float, n below count; S2, strided elements. */
VonkStatus vonkMul_vac_32f_S2(const float *src, int32_t srcObjStride, int32_t srcElemStride, float val, float *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t len, uint32_t count);
/** dst(n) = src(n) * val; `len` float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_vac_32f_P(const float *const *src, int32_t srcShift, float val, float *const *dst, int32_t dstShift,
    uint32_t len, uint32_t count);
/** dst(n) = src(n) * val; `len` float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkMul_vac_32f_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t len, uint32_t count);
/** dst(n) = src(n) * val; `len` float, n below count; L, one pointer per object. */
VonkStatus vonkMul_vac_32f_L(const float *const *src, int32_t srcShift, float val, float *const *dst, int32_t dstShift,
    uint32_t len, uint32_t count);
/** dst(n) = src(n) * val; `len` float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_vac_32f_LS2(const float *const *src, int32_t srcShift, int32_t srcElemStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t len, uint32_t count);
/** dst(n) = src(n) * val; 3 float, n below count; standard layout. Exception: vc-whole-object. */
VonkStatus vonkMul_vac_32f_3x1(const float *src, int32_t srcObjStride, float val, float *dst, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src(n) * val; 3 float, n below count; S2, strided elements. */
VonkStatus vonkMul_vac_32f_3x1_S2(const float *src, int32_t srcObjStride, int32_t srcElemStride, float val, float *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src(n) * val; 3 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_vac_32f_3x1_P(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src(n) * val; 3 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkMul_vac_32f_3x1_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = src(n) * val; 3 float, n below count; L, one pointer per object. Exception: vc-whole-object. */
VonkStatus vonkMul_vac_32f_3x1_L(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src(n) * val; 3 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_vac_32f_3x1_LS2(const float *const *src, int32_t srcShift, int32_t srcElemStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = src(n) * val; 4 float, n below count; standard layout. Exception: vc-whole-object. */
VonkStatus vonkMul_vac_32f_4x1(const float *src, int32_t srcObjStride, float val, float *dst, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src(n) * val; 4 float, n below count; S2, strided elements. */
VonkStatus vonkMul_vac_32f_4x1_S2(const float *src, int32_t srcObjStride, int32_t srcElemStride, float val, float *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src(n) * val; 4 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_vac_32f_4x1_P(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src(n) * val; 4 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkMul_vac_32f_4x1_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = src(n) * val; 4 float, n below count; L, one pointer per object. Exception: vc-whole-object. */
VonkStatus vonkMul_vac_32f_4x1_L(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src(n) * val; 4 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_vac_32f_4x1_LS2(const float *const *src, int32_t srcShift, int32_t srcElemStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = src(n) * val; 5 float, n below count; standard layout. Exception: vc-whole-object. */
VonkStatus vonkMul_vac_32f_5x1(const float *src, int32_t srcObjStride, float val, float *dst, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src(n) * val; 5 float, n below count; S2, strided elements. */
VonkStatus vonkMul_vac_32f_5x1_S2(const float *src, int32_t srcObjStride, int32_t srcElemStride, float val, float *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src(n) * val; 5 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_vac_32f_5x1_P(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src(n) * val; 5 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkMul_vac_32f_5x1_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = src(n) * val; 5 float, n below count; L, one pointer per object. Exception: vc-whole-object. */
VonkStatus vonkMul_vac_32f_5x1_L(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src(n) * val; 5 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_vac_32f_5x1_LS2(const float *const *src, int32_t srcShift, int32_t srcElemStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = src(n) * val; 6 float, n below count; standard layout. Exception: vc-whole-object. */
VonkStatus vonkMul_vac_32f_6x1(const float *src, int32_t srcObjStride, float val, float *dst, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src(n) * val; 6 float, n below count; S2, strided elements. */
VonkStatus vonkMul_vac_32f_6x1_S2(const float *src, int32_t srcObjStride, int32_t srcElemStride, float val, float *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src(n) * val; 6 float, n below count; P, one pointer per element position. */
VonkStatus vonkMul_vac_32f_6x1_P(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src(n) * val; 6 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkMul_vac_32f_6x1_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = src(n) * val; 6 float, n below count; L, one pointer per object. Exception: vc-whole-object. */
VonkStatus vonkMul_vac_32f_6x1_L(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src(n) * val; 6 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_vac_32f_6x1_LS2(const float *const *src, int32_t srcShift, int32_t srcElemStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);

/** dst(n) = src(n) * val; `len` double, n below count; standard layout. */
VonkStatus vonkMul_vac_64f(const double *src, int32_t srcObjStride, double val, double *dst, int32_t dstObjStride,
    uint32_t len, uint32_t count);
/** dst(n) = src(n) * val; `len` double, n below count; S2, strided elements. */
VonkStatus vonkMul_vac_64f_S2(const double *src, int32_t srcObjStride, int32_t srcElemStride, double val, double *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t len, uint32_t count);
/** dst(n) = src(n) * val; `len` double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_vac_64f_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift, uint32_t len, uint32_t count);
/** dst(n) = src(n) * val; `len` double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkMul_vac_64f_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t len, uint32_t count);
/** dst(n) = src(n) * val; `len` double, n below count; L, one pointer per object. */
VonkStatus vonkMul_vac_64f_L(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift, uint32_t len, uint32_t count);
/** dst(n) = src(n) * val; `len` double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_vac_64f_LS2(const double *const *src, int32_t srcShift, int32_t srcElemStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t len, uint32_t count);
/** dst(n) = src(n) * val; 3 double, n below count; standard layout. */
VonkStatus vonkMul_vac_64f_3x1(const double *src, int32_t srcObjStride, double val, double *dst, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src(n) * val; 3 double, n below count; S2, strided elements. */
VonkStatus vonkMul_vac_64f_3x1_S2(const double *src, int32_t srcObjStride, int32_t srcElemStride, double val,
    double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src(n) * val; 3 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_vac_64f_3x1_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src(n) * val; 3 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkMul_vac_64f_3x1_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = src(n) * val; 3 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_vac_64f_3x1_L(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src(n) * val; 3 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_vac_64f_3x1_LS2(const double *const *src, int32_t srcShift, int32_t srcElemStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = src(n) * val; 4 double, n below count; standard layout. */
VonkStatus vonkMul_vac_64f_4x1(const double *src, int32_t srcObjStride, double val, double *dst, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src(n) * val; 4 double, n below count; S2, strided elements. */
VonkStatus vonkMul_vac_64f_4x1_S2(const double *src, int32_t srcObjStride, int32_t srcElemStride, double val,
    double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src(n) * val; 4 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_vac_64f_4x1_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src(n) * val; 4 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkMul_vac_64f_4x1_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = src(n) * val; 4 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_vac_64f_4x1_L(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src(n) * val; 4 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_vac_64f_4x1_LS2(const double *const *src, int32_t srcShift, int32_t srcElemStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = src(n) * val; 5 double, n below count; standard layout. */
VonkStatus vonkMul_vac_64f_5x1(const double *src, int32_t srcObjStride, double val, double *dst, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src(n) * val; 5 double, n below count; S2, strided elements. */
VonkStatus vonkMul_vac_64f_5x1_S2(const double *src, int32_t srcObjStride, int32_t srcElemStride, double val,
    double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src(n) * val; 5 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_vac_64f_5x1_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src(n) * val; 5 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkMul_vac_64f_5x1_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = src(n) * val; 5 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_vac_64f_5x1_L(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src(n) * val; 5 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_vac_64f_5x1_LS2(const double *const *src, int32_t srcShift, int32_t srcElemStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = src(n) * val; 6 double, n below count; standard layout. */
VonkStatus vonkMul_vac_64f_6x1(const double *src, int32_t srcObjStride, double val, double *dst, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src(n) * val; 6 double, n below count; S2, strided elements. */
VonkStatus vonkMul_vac_64f_6x1_S2(const double *src, int32_t srcObjStride, int32_t srcElemStride, double val,
    double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src(n) * val; 6 double, n below count; P, one pointer per element position. */
VonkStatus vonkMul_vac_64f_6x1_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src(n) * val; 6 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkMul_vac_64f_6x1_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = src(n) * val; 6 double, n below count; L, one pointer per object. */
VonkStatus vonkMul_vac_64f_6x1_L(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src(n) * val; 6 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkMul_vac_64f_6x1_LS2(const double *const *src, int32_t srcShift, int32_t srcElemStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);

/* ---- Vector and vector ----------------------------------------------------------------------------------------------
 *
 * vonkAdd: dst(n, j) = src1(n, j) + src2(n, j)
 * vonkSub: dst(n, j) = src1(n, j) - src2(n, j)
 *
 * for j below `len` and each object n; one rounded operation per element. Groups: `vv` two vectors, `vav` an array and
 * a vector, `vva` a vector and an array (vonkSub only), `vava` two arrays. A single vector serves all objects. The
 * arithmetic of an element depends neither on the length nor on the alignment of operands.
 *
 * Status: vonkErrNullPtr if `src1`, `src2` or `dst` is null; vonkErrSize if `len` is 0; vonkErrNullPtr if a table or
 * list entry is null: in single forms in `P` entry by entry just before each element, earlier elements being final; in
 * `P` and `PS2` of arrays all entries of all tables before anything else, even at `count` 0; in `L` and `LS2` when the
 * object's turn comes, earlier objects being complete. `count` 0 then gives vonkOk with nothing written.
 *
 * Overlap:
 * Overlap is not checked. `dst` may be any source (in place): each element is read before it is written. With any other
 * overlap elements are read and written one by one in ascending order, so that a source element which `dst` has
 * overwritten by then is read as overwritten.
 *
 * Exceptions:
 * - vv-single-loaded-once (overlap): vonk{Add_vav,Sub_vav,Sub_vva}_32f_?x1{,_L}
 *   The single vector is loaded once, before all objects; a `dst` that overlaps it changes nothing for later objects.
 *   All other forms load it again for each object.
 * - vv-whole-object (overlap): vonk{Add,Sub}_{vv,vava}_32f_?x1 vonk{Add,Sub}_vava_32f_?x1_L
 *     vonk{Add_vav,Sub_vav,Sub_vva}_32f_{4x1,5x1,6x1}{,_L}
 *   An object is loaded whole before it is stored. Of 5 and 6 elements, what a partial overlap shows is not promised.
 * - vv-blocks-of-four (overlap): vonkSub_vava_32f_3x1
 *   Works in blocks of four objects. Where `dst` overlaps sources of later objects of the same block, what these see is
 *   not promised.
 */

/** dst = src1 + src2; `len` float; standard layout. */
VonkStatus vonkAdd_vv_32f(const float *src1, const float *src2, float *dst, uint32_t len);
/** dst = src1 + src2; `len` float; S2, strided elements. */
VonkStatus vonkAdd_vv_32f_S2(const float *src1, int32_t src1ElemStride, const float *src2, int32_t src2ElemStride,
    float *dst, int32_t dstElemStride, uint32_t len);
/** dst = src1 + src2; `len` float; P, one pointer per element position. */
VonkStatus vonkAdd_vv_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t len);
/** dst = src1 + src2; 3 float; standard layout. Exception: vv-whole-object. */
VonkStatus vonkAdd_vv_32f_3x1(const float *src1, const float *src2, float *dst);
/** dst = src1 + src2; 3 float; S2, strided elements. */
VonkStatus vonkAdd_vv_32f_3x1_S2(const float *src1, int32_t src1ElemStride, const float *src2, int32_t src2ElemStride,
    float *dst, int32_t dstElemStride);
/** dst = src1 + src2; 3 float; P, one pointer per element position. */
VonkStatus vonkAdd_vv_32f_3x1_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
/** dst = src1 + src2; 4 float; standard layout. Exception: vv-whole-object. */
VonkStatus vonkAdd_vv_32f_4x1(const float *src1, const float *src2, float *dst);
/** dst = src1 + src2; 4 float; S2, strided elements. */
VonkStatus vonkAdd_vv_32f_4x1_S2(const float *src1, int32_t src1ElemStride, const float *src2, int32_t src2ElemStride,
    float *dst, int32_t dstElemStride);
/** dst = src1 + src2; 4 float; P, one pointer per element position. */
VonkStatus vonkAdd_vv_32f_4x1_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
/** dst = src1 + src2; 5 float; standard layout. Exception: vv-whole-object. */
VonkStatus vonkAdd_vv_32f_5x1(const float *src1, const float *src2, float *dst);
/** dst = src1 + src2; 5 float; S2, strided elements. */
VonkStatus vonkAdd_vv_32f_5x1_S2(const float *src1, int32_t src1ElemStride, const float *src2, int32_t src2ElemStride,
    float *dst, int32_t dstElemStride);
/** dst = src1 + src2; 5 float; P, one pointer per element position. */
VonkStatus vonkAdd_vv_32f_5x1_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
/** dst = src1 + src2; 6 float; standard layout. Exception: vv-whole-object. */
VonkStatus vonkAdd_vv_32f_6x1(const float *src1, const float *src2, float *dst);
/** dst = src1 + src2; 6 float; S2, strided elements. */
VonkStatus vonkAdd_vv_32f_6x1_S2(const float *src1, int32_t src1ElemStride, const float *src2, int32_t src2ElemStride,
    float *dst, int32_t dstElemStride);
/** dst = src1 + src2; 6 float; P, one pointer per element position. */
VonkStatus vonkAdd_vv_32f_6x1_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);

/** dst = src1 + src2; `len` double; standard layout. */
VonkStatus vonkAdd_vv_64f(const double *src1, const double *src2, double *dst, uint32_t len);
/** dst = src1 + src2; `len` double; S2, strided elements. */
VonkStatus vonkAdd_vv_64f_S2(const double *src1, int32_t src1ElemStride, const double *src2, int32_t src2ElemStride,
    double *dst, int32_t dstElemStride, uint32_t len);
/** dst = src1 + src2; `len` double; P, one pointer per element position. */
VonkStatus vonkAdd_vv_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2, int32_t src2Shift,
    double *const *dst, int32_t dstShift, uint32_t len);
/** dst = src1 + src2; 3 double; standard layout. */
VonkStatus vonkAdd_vv_64f_3x1(const double *src1, const double *src2, double *dst);
/** dst = src1 + src2; 3 double; S2, strided elements. */
VonkStatus vonkAdd_vv_64f_3x1_S2(const double *src1, int32_t src1ElemStride, const double *src2, int32_t src2ElemStride,
    double *dst, int32_t dstElemStride);
/** dst = src1 + src2; 3 double; P, one pointer per element position. */
VonkStatus vonkAdd_vv_64f_3x1_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
/** dst = src1 + src2; 4 double; standard layout. */
VonkStatus vonkAdd_vv_64f_4x1(const double *src1, const double *src2, double *dst);
/** dst = src1 + src2; 4 double; S2, strided elements. */
VonkStatus vonkAdd_vv_64f_4x1_S2(const double *src1, int32_t src1ElemStride, const double *src2, int32_t src2ElemStride,
    double *dst, int32_t dstElemStride);
/** dst = src1 + src2; 4 double; P, one pointer per element position. */
VonkStatus vonkAdd_vv_64f_4x1_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
/** dst = src1 + src2; 5 double; standard layout. */
VonkStatus vonkAdd_vv_64f_5x1(const double *src1, const double *src2, double *dst);
/** dst = src1 + src2; 5 double; S2, strided elements. */
VonkStatus vonkAdd_vv_64f_5x1_S2(const double *src1, int32_t src1ElemStride, const double *src2, int32_t src2ElemStride,
    double *dst, int32_t dstElemStride);
/** dst = src1 + src2; 5 double; P, one pointer per element position. */
VonkStatus vonkAdd_vv_64f_5x1_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
/** dst = src1 + src2; 6 double; standard layout. */
VonkStatus vonkAdd_vv_64f_6x1(const double *src1, const double *src2, double *dst);
/** dst = src1 + src2; 6 double; S2, strided elements. */
VonkStatus vonkAdd_vv_64f_6x1_S2(const double *src1, int32_t src1ElemStride, const double *src2, int32_t src2ElemStride,
    double *dst, int32_t dstElemStride);
/** dst = src1 + src2; 6 double; P, one pointer per element position. */
VonkStatus vonkAdd_vv_64f_6x1_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);

/** dst(n) = src1(n) + src2; `len` float, n below count; standard layout. */
VonkStatus vonkAdd_vav_32f(const float *src1, int32_t src1ObjStride, const float *src2, float *dst,
    int32_t dstObjStride, uint32_t len, uint32_t count);
/** dst(n) = src1(n) + src2; `len` float, n below count; S2, strided elements. */
VonkStatus vonkAdd_vav_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t len, uint32_t count);
/** dst(n) = src1(n) + src2; `len` float, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_vav_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t len, uint32_t count);
/** dst(n) = src1(n) + src2; `len` float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_vav_32f_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t len, uint32_t count);
/** dst(n) = src1(n) + src2; `len` float, n below count; L, one pointer per object. */
VonkStatus vonkAdd_vav_32f_L(const float *const *src1, int32_t src1Shift, const float *src2, float *const *dst,
    int32_t dstShift, uint32_t len, uint32_t count);
/** dst(n) = src1(n) + src2; `len` float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_vav_32f_LS2(const float *const *src1, int32_t src1Shift, int32_t src1ElemStride, const float *src2,
    int32_t src2ElemStride, float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t len, uint32_t count);
/** dst(n) = src1(n) + src2; 3 float, n below count; standard layout. Exception: vv-single-loaded-once. */
VonkStatus vonkAdd_vav_32f_3x1(const float *src1, int32_t src1ObjStride, const float *src2, float *dst,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) + src2; 3 float, n below count; S2, strided elements. */
VonkStatus vonkAdd_vav_32f_3x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) + src2; 3 float, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_vav_32f_3x1_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) + src2; 3 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_vav_32f_3x1_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n) + src2; 3 float, n below count; L, one pointer per object. Exception: vv-single-loaded-once. */
VonkStatus vonkAdd_vav_32f_3x1_L(const float *const *src1, int32_t src1Shift, const float *src2, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) + src2; 3 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_vav_32f_3x1_LS2(const float *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const float *src2, int32_t src2ElemStride, float *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = src1(n) + src2; 4 float, n below count; standard layout. Exceptions: vv-single-loaded-once,
 * vv-whole-object. */
VonkStatus vonkAdd_vav_32f_4x1(const float *src1, int32_t src1ObjStride, const float *src2, float *dst,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) + src2; 4 float, n below count; S2, strided elements. */
VonkStatus vonkAdd_vav_32f_4x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) + src2; 4 float, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_vav_32f_4x1_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) + src2; 4 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_vav_32f_4x1_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n) + src2; 4 float, n below count; L, one pointer per object. Exceptions: vv-single-loaded-once,
 * vv-whole-object. */
VonkStatus vonkAdd_vav_32f_4x1_L(const float *const *src1, int32_t src1Shift, const float *src2, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) + src2; 4 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_vav_32f_4x1_LS2(const float *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const float *src2, int32_t src2ElemStride, float *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = src1(n) + src2; 5 float, n below count; standard layout. Exceptions: vv-single-loaded-once,
 * vv-whole-object. */
VonkStatus vonkAdd_vav_32f_5x1(const float *src1, int32_t src1ObjStride, const float *src2, float *dst,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) + src2; 5 float, n below count; S2, strided elements. */
VonkStatus vonkAdd_vav_32f_5x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) + src2; 5 float, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_vav_32f_5x1_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) + src2; 5 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_vav_32f_5x1_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n) + src2; 5 float, n below count; L, one pointer per object. Exceptions: vv-single-loaded-once,
 * vv-whole-object. */
VonkStatus vonkAdd_vav_32f_5x1_L(const float *const *src1, int32_t src1Shift, const float *src2, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) + src2; 5 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_vav_32f_5x1_LS2(const float *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const float *src2, int32_t src2ElemStride, float *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = src1(n) + src2; 6 float, n below count; standard layout. Exceptions: vv-single-loaded-once,
 * vv-whole-object. */
VonkStatus vonkAdd_vav_32f_6x1(const float *src1, int32_t src1ObjStride, const float *src2, float *dst,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) + src2; 6 float, n below count; S2, strided elements. */
VonkStatus vonkAdd_vav_32f_6x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) + src2; 6 float, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_vav_32f_6x1_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) + src2; 6 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_vav_32f_6x1_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n) + src2; 6 float, n below count; L, one pointer per object. Exceptions: vv-single-loaded-once,
 * vv-whole-object. */
VonkStatus vonkAdd_vav_32f_6x1_L(const float *const *src1, int32_t src1Shift, const float *src2, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) + src2; 6 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_vav_32f_6x1_LS2(const float *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const float *src2, int32_t src2ElemStride, float *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);

/** dst(n) = src1(n) + src2; `len` double, n below count; standard layout. */
VonkStatus vonkAdd_vav_64f(const double *src1, int32_t src1ObjStride, const double *src2, double *dst,
    int32_t dstObjStride, uint32_t len, uint32_t count);
/** dst(n) = src1(n) + src2; `len` double, n below count; S2, strided elements. */
VonkStatus vonkAdd_vav_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t len, uint32_t count);
/** dst(n) = src1(n) + src2; `len` double, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_vav_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2, int32_t src2Shift,
    double *const *dst, int32_t dstShift, uint32_t len, uint32_t count);
/** dst(n) = src1(n) + src2; `len` double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_vav_64f_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t len, uint32_t count);
/** dst(n) = src1(n) + src2; `len` double, n below count; L, one pointer per object. */
VonkStatus vonkAdd_vav_64f_L(const double *const *src1, int32_t src1Shift, const double *src2, double *const *dst,
    int32_t dstShift, uint32_t len, uint32_t count);
/** dst(n) = src1(n) + src2; `len` double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_vav_64f_LS2(const double *const *src1, int32_t src1Shift, int32_t src1ElemStride, const double *src2,
    int32_t src2ElemStride, double *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t len, uint32_t count);
/** dst(n) = src1(n) + src2; 3 double, n below count; standard layout. */
VonkStatus vonkAdd_vav_64f_3x1(const double *src1, int32_t src1ObjStride, const double *src2, double *dst,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) + src2; 3 double, n below count; S2, strided elements. */
VonkStatus vonkAdd_vav_64f_3x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) + src2; 3 double, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_vav_64f_3x1_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) + src2; 3 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_vav_64f_3x1_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n) + src2; 3 double, n below count; L, one pointer per object. */
VonkStatus vonkAdd_vav_64f_3x1_L(const double *const *src1, int32_t src1Shift, const double *src2, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) + src2; 3 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_vav_64f_3x1_LS2(const double *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const double *src2, int32_t src2ElemStride, double *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = src1(n) + src2; 4 double, n below count; standard layout. */
VonkStatus vonkAdd_vav_64f_4x1(const double *src1, int32_t src1ObjStride, const double *src2, double *dst,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) + src2; 4 double, n below count; S2, strided elements. */
VonkStatus vonkAdd_vav_64f_4x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) + src2; 4 double, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_vav_64f_4x1_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) + src2; 4 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_vav_64f_4x1_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n) + src2; 4 double, n below count; L, one pointer per object. */
VonkStatus vonkAdd_vav_64f_4x1_L(const double *const *src1, int32_t src1Shift, const double *src2, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) + src2; 4 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_vav_64f_4x1_LS2(const double *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const double *src2, int32_t src2ElemStride, double *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = src1(n) + src2; 5 double, n below count; standard layout. */
VonkStatus vonkAdd_vav_64f_5x1(const double *src1, int32_t src1ObjStride, const double *src2, double *dst,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) + src2; 5 double, n below count; S2, strided elements. */
VonkStatus vonkAdd_vav_64f_5x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) + src2; 5 double, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_vav_64f_5x1_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) + src2; 5 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_vav_64f_5x1_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n) + src2; 5 double, n below count; L, one pointer per object. */
VonkStatus vonkAdd_vav_64f_5x1_L(const double *const *src1, int32_t src1Shift, const double *src2, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) + src2; 5 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_vav_64f_5x1_LS2(const double *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const double *src2, int32_t src2ElemStride, double *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = src1(n) + src2; 6 double, n below count; standard layout. */
VonkStatus vonkAdd_vav_64f_6x1(const double *src1, int32_t src1ObjStride, const double *src2, double *dst,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) + src2; 6 double, n below count; S2, strided elements. */
VonkStatus vonkAdd_vav_64f_6x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) + src2; 6 double, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_vav_64f_6x1_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) + src2; 6 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_vav_64f_6x1_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n) + src2; 6 double, n below count; L, one pointer per object. */
VonkStatus vonkAdd_vav_64f_6x1_L(const double *const *src1, int32_t src1Shift, const double *src2, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) + src2; 6 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_vav_64f_6x1_LS2(const double *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const double *src2, int32_t src2ElemStride, double *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);

/** dst(n) = src1(n) + src2(n); `len` float, n below count; standard layout. */
VonkStatus vonkAdd_vava_32f(const float *src1, int32_t src1ObjStride, const float *src2, int32_t src2ObjStride,
    float *dst, int32_t dstObjStride, uint32_t len, uint32_t count);
/** dst(n) = src1(n) + src2(n); `len` float, n below count; S2, strided elements. */
VonkStatus vonkAdd_vava_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride,
    uint32_t len, uint32_t count);
/** dst(n) = src1(n) + src2(n); `len` float, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_vava_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t len, uint32_t count);
/** dst(n) = src1(n) + src2(n); `len` float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_vava_32f_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t len, uint32_t count);
/** dst(n) = src1(n) + src2(n); `len` float, n below count; L, one pointer per object. */
VonkStatus vonkAdd_vava_32f_L(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t len, uint32_t count);
/** dst(n) = src1(n) + src2(n); `len` float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_vava_32f_LS2(const float *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t len, uint32_t count);
/** dst(n) = src1(n) + src2(n); 3 float, n below count; standard layout. Exception: vv-whole-object. */
VonkStatus vonkAdd_vava_32f_3x1(const float *src1, int32_t src1ObjStride, const float *src2, int32_t src2ObjStride,
    float *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) + src2(n); 3 float, n below count; S2, strided elements. */
VonkStatus vonkAdd_vava_32f_3x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = src1(n) + src2(n); 3 float, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_vava_32f_3x1_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) + src2(n); 3 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_vava_32f_3x1_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) + src2(n); 3 float, n below count; L, one pointer per object. Exception: vv-whole-object. */
VonkStatus vonkAdd_vava_32f_3x1_L(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) + src2(n); 3 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_vava_32f_3x1_LS2(const float *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) + src2(n); 4 float, n below count; standard layout. Exception: vv-whole-object. */
VonkStatus vonkAdd_vava_32f_4x1(const float *src1, int32_t src1ObjStride, const float *src2, int32_t src2ObjStride,
    float *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) + src2(n); 4 float, n below count; S2, strided elements. */
VonkStatus vonkAdd_vava_32f_4x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = src1(n) + src2(n); 4 float, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_vava_32f_4x1_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) + src2(n); 4 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_vava_32f_4x1_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) + src2(n); 4 float, n below count; L, one pointer per object. Exception: vv-whole-object. */
VonkStatus vonkAdd_vava_32f_4x1_L(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) + src2(n); 4 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_vava_32f_4x1_LS2(const float *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) + src2(n); 5 float, n below count; standard layout. Exception: vv-whole-object. */
VonkStatus vonkAdd_vava_32f_5x1(const float *src1, int32_t src1ObjStride, const float *src2, int32_t src2ObjStride,
    float *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) + src2(n); 5 float, n below count; S2, strided elements. */
VonkStatus vonkAdd_vava_32f_5x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = src1(n) + src2(n); 5 float, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_vava_32f_5x1_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) + src2(n); 5 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_vava_32f_5x1_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) + src2(n); 5 float, n below count; L, one pointer per object. Exception: vv-whole-object. */
VonkStatus vonkAdd_vava_32f_5x1_L(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) + src2(n); 5 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_vava_32f_5x1_LS2(const float *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) + src2(n); 6 float, n below count; standard layout. Exception: vv-whole-object. */
VonkStatus vonkAdd_vava_32f_6x1(const float *src1, int32_t src1ObjStride, const float *src2, int32_t src2ObjStride,
    float *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) + src2(n); 6 float, n below count; S2, strided elements. */
VonkStatus vonkAdd_vava_32f_6x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = src1(n) + src2(n); 6 float, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_vava_32f_6x1_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) + src2(n); 6 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_vava_32f_6x1_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) + src2(n); 6 float, n below count; L, one pointer per object. Exception: vv-whole-object. */
VonkStatus vonkAdd_vava_32f_6x1_L(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) + src2(n); 6 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_vava_32f_6x1_LS2(const float *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);

/** dst(n) = src1(n) + src2(n); `len` double, n below count; standard layout. */
VonkStatus vonkAdd_vava_64f(const double *src1, int32_t src1ObjStride, const double *src2, int32_t src2ObjStride,
    double *dst, int32_t dstObjStride, uint32_t len, uint32_t count);
/** dst(n) = src1(n) + src2(n); `len` double, n below count; S2, strided elements. */
VonkStatus vonkAdd_vava_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride,
    uint32_t len, uint32_t count);
/** dst(n) = src1(n) + src2(n); `len` double, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_vava_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t len, uint32_t count);
/** dst(n) = src1(n) + src2(n); `len` double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_vava_64f_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t len, uint32_t count);
/** dst(n) = src1(n) + src2(n); `len` double, n below count; L, one pointer per object. */
VonkStatus vonkAdd_vava_64f_L(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t len, uint32_t count);
/** dst(n) = src1(n) + src2(n); `len` double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_vava_64f_LS2(const double *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t len, uint32_t count);
/** dst(n) = src1(n) + src2(n); 3 double, n below count; standard layout. */
VonkStatus vonkAdd_vava_64f_3x1(const double *src1, int32_t src1ObjStride, const double *src2, int32_t src2ObjStride,
    double *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) + src2(n); 3 double, n below count; S2, strided elements. */
VonkStatus vonkAdd_vava_64f_3x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) + src2(n); 3 double, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_vava_64f_3x1_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) + src2(n); 3 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_vava_64f_3x1_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) + src2(n); 3 double, n below count; L, one pointer per object. */
VonkStatus vonkAdd_vava_64f_3x1_L(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) + src2(n); 3 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_vava_64f_3x1_LS2(const double *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) + src2(n); 4 double, n below count; standard layout. */
VonkStatus vonkAdd_vava_64f_4x1(const double *src1, int32_t src1ObjStride, const double *src2, int32_t src2ObjStride,
    double *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) + src2(n); 4 double, n below count; S2, strided elements. */
VonkStatus vonkAdd_vava_64f_4x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) + src2(n); 4 double, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_vava_64f_4x1_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) + src2(n); 4 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_vava_64f_4x1_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) + src2(n); 4 double, n below count; L, one pointer per object. */
VonkStatus vonkAdd_vava_64f_4x1_L(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) + src2(n); 4 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_vava_64f_4x1_LS2(const double *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) + src2(n); 5 double, n below count; standard layout. */
VonkStatus vonkAdd_vava_64f_5x1(const double *src1, int32_t src1ObjStride, const double *src2, int32_t src2ObjStride,
    double *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) + src2(n); 5 double, n below count; S2, strided elements. */
VonkStatus vonkAdd_vava_64f_5x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) + src2(n); 5 double, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_vava_64f_5x1_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) + src2(n); 5 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_vava_64f_5x1_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) + src2(n); 5 double, n below count; L, one pointer per object. */
VonkStatus vonkAdd_vava_64f_5x1_L(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) + src2(n); 5 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_vava_64f_5x1_LS2(const double *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) + src2(n); 6 double, n below count; standard layout. */
VonkStatus vonkAdd_vava_64f_6x1(const double *src1, int32_t src1ObjStride, const double *src2, int32_t src2ObjStride,
    double *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) + src2(n); 6 double, n below count; S2, strided elements. */
VonkStatus vonkAdd_vava_64f_6x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) + src2(n); 6 double, n below count; P, one pointer per element position. */
VonkStatus vonkAdd_vava_64f_6x1_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) + src2(n); 6 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkAdd_vava_64f_6x1_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) + src2(n); 6 double, n below count; L, one pointer per object. */
VonkStatus vonkAdd_vava_64f_6x1_L(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) + src2(n); 6 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkAdd_vava_64f_6x1_LS2(const double *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);

/** dst = src1 - src2; `len` float; standard layout. */
VonkStatus vonkSub_vv_32f(const float *src1, const float *src2, float *dst, uint32_t len);
/** dst = src1 - src2; `len` float; S2, strided elements. */
VonkStatus vonkSub_vv_32f_S2(const float *src1, int32_t src1ElemStride, const float *src2, int32_t src2ElemStride,
    float *dst, int32_t dstElemStride, uint32_t len);
/** dst = src1 - src2; `len` float; P, one pointer per element position. */
VonkStatus vonkSub_vv_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t len);
/** dst = src1 - src2; 3 float; standard layout. Exception: vv-whole-object. */
VonkStatus vonkSub_vv_32f_3x1(const float *src1, const float *src2, float *dst);
/** dst = src1 - src2; 3 float; S2, strided elements. */
VonkStatus vonkSub_vv_32f_3x1_S2(const float *src1, int32_t src1ElemStride, const float *src2, int32_t src2ElemStride,
    float *dst, int32_t dstElemStride);
/** dst = src1 - src2; 3 float; P, one pointer per element position. */
VonkStatus vonkSub_vv_32f_3x1_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
/** dst = src1 - src2; 4 float; standard layout. Exception: vv-whole-object. */
VonkStatus vonkSub_vv_32f_4x1(const float *src1, const float *src2, float *dst);
/** dst = src1 - src2; 4 float; S2, strided elements. */
VonkStatus vonkSub_vv_32f_4x1_S2(const float *src1, int32_t src1ElemStride, const float *src2, int32_t src2ElemStride,
    float *dst, int32_t dstElemStride);
/** dst = src1 - src2; 4 float; P, one pointer per element position. */
VonkStatus vonkSub_vv_32f_4x1_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
/** dst = src1 - src2; 5 float; standard layout. Exception: vv-whole-object. */
VonkStatus vonkSub_vv_32f_5x1(const float *src1, const float *src2, float *dst);
/** dst = src1 - src2; 5 float; S2, strided elements. */
VonkStatus vonkSub_vv_32f_5x1_S2(const float *src1, int32_t src1ElemStride, const float *src2, int32_t src2ElemStride,
    float *dst, int32_t dstElemStride);
/** dst = src1 - src2; 5 float; P, one pointer per element position. */
VonkStatus vonkSub_vv_32f_5x1_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
/** dst = src1 - src2; 6 float; standard layout. Exception: vv-whole-object. */
VonkStatus vonkSub_vv_32f_6x1(const float *src1, const float *src2, float *dst);
/** dst = src1 - src2; 6 float; S2, strided elements. */
VonkStatus vonkSub_vv_32f_6x1_S2(const float *src1, int32_t src1ElemStride, const float *src2, int32_t src2ElemStride,
    float *dst, int32_t dstElemStride);
/** dst = src1 - src2; 6 float; P, one pointer per element position. */
VonkStatus vonkSub_vv_32f_6x1_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);

/** dst = src1 - src2; `len` double; standard layout. */
VonkStatus vonkSub_vv_64f(const double *src1, const double *src2, double *dst, uint32_t len);
/** dst = src1 - src2; `len` double; S2, strided elements. */
VonkStatus vonkSub_vv_64f_S2(const double *src1, int32_t src1ElemStride, const double *src2, int32_t src2ElemStride,
    double *dst, int32_t dstElemStride, uint32_t len);
/** dst = src1 - src2; `len` double; P, one pointer per element position. */
VonkStatus vonkSub_vv_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2, int32_t src2Shift,
    double *const *dst, int32_t dstShift, uint32_t len);
/** dst = src1 - src2; 3 double; standard layout. */
VonkStatus vonkSub_vv_64f_3x1(const double *src1, const double *src2, double *dst);
/** dst = src1 - src2; 3 double; S2, strided elements. */
VonkStatus vonkSub_vv_64f_3x1_S2(const double *src1, int32_t src1ElemStride, const double *src2, int32_t src2ElemStride,
    double *dst, int32_t dstElemStride);
/** dst = src1 - src2; 3 double; P, one pointer per element position. */
VonkStatus vonkSub_vv_64f_3x1_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
/** dst = src1 - src2; 4 double; standard layout. */
VonkStatus vonkSub_vv_64f_4x1(const double *src1, const double *src2, double *dst);
/** dst = src1 - src2; 4 double; S2, strided elements. */
VonkStatus vonkSub_vv_64f_4x1_S2(const double *src1, int32_t src1ElemStride, const double *src2, int32_t src2ElemStride,
    double *dst, int32_t dstElemStride);
/** dst = src1 - src2; 4 double; P, one pointer per element position. */
VonkStatus vonkSub_vv_64f_4x1_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
/** dst = src1 - src2; 5 double; standard layout. */
VonkStatus vonkSub_vv_64f_5x1(const double *src1, const double *src2, double *dst);
/** dst = src1 - src2; 5 double; S2, strided elements. */
VonkStatus vonkSub_vv_64f_5x1_S2(const double *src1, int32_t src1ElemStride, const double *src2, int32_t src2ElemStride,
    double *dst, int32_t dstElemStride);
/** dst = src1 - src2; 5 double; P, one pointer per element position. */
VonkStatus vonkSub_vv_64f_5x1_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
/** dst = src1 - src2; 6 double; standard layout. */
VonkStatus vonkSub_vv_64f_6x1(const double *src1, const double *src2, double *dst);
/** dst = src1 - src2; 6 double; S2, strided elements. */
VonkStatus vonkSub_vv_64f_6x1_S2(const double *src1, int32_t src1ElemStride, const double *src2, int32_t src2ElemStride,
    double *dst, int32_t dstElemStride);
/** dst = src1 - src2; 6 double; P, one pointer per element position. */
VonkStatus vonkSub_vv_64f_6x1_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);

/** dst(n) = src1(n) - src2; `len` float, n below count; standard layout. */
VonkStatus vonkSub_vav_32f(const float *src1, int32_t src1ObjStride, const float *src2, float *dst,
    int32_t dstObjStride, uint32_t len, uint32_t count);
/** dst(n) = src1(n) - src2; `len` float, n below count; S2, strided elements. */
VonkStatus vonkSub_vav_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t len, uint32_t count);
/** dst(n) = src1(n) - src2; `len` float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_vav_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t len, uint32_t count);
/** dst(n) = src1(n) - src2; `len` float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_vav_32f_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t len, uint32_t count);
/** dst(n) = src1(n) - src2; `len` float, n below count; L, one pointer per object. */
VonkStatus vonkSub_vav_32f_L(const float *const *src1, int32_t src1Shift, const float *src2, float *const *dst,
    int32_t dstShift, uint32_t len, uint32_t count);
/** dst(n) = src1(n) - src2; `len` float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_vav_32f_LS2(const float *const *src1, int32_t src1Shift, int32_t src1ElemStride, const float *src2,
    int32_t src2ElemStride, float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t len, uint32_t count);
/** dst(n) = src1(n) - src2; 3 float, n below count; standard layout. Exception: vv-single-loaded-once. */
VonkStatus vonkSub_vav_32f_3x1(const float *src1, int32_t src1ObjStride, const float *src2, float *dst,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) - src2; 3 float, n below count; S2, strided elements. */
VonkStatus vonkSub_vav_32f_3x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) - src2; 3 float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_vav_32f_3x1_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) - src2; 3 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_vav_32f_3x1_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n) - src2; 3 float, n below count; L, one pointer per object. Exception: vv-single-loaded-once. */
VonkStatus vonkSub_vav_32f_3x1_L(const float *const *src1, int32_t src1Shift, const float *src2, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) - src2; 3 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_vav_32f_3x1_LS2(const float *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const float *src2, int32_t src2ElemStride, float *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = src1(n) - src2; 4 float, n below count; standard layout. Exceptions: vv-single-loaded-once,
 * vv-whole-object. */
VonkStatus vonkSub_vav_32f_4x1(const float *src1, int32_t src1ObjStride, const float *src2, float *dst,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) - src2; 4 float, n below count; S2, strided elements. */
VonkStatus vonkSub_vav_32f_4x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) - src2; 4 float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_vav_32f_4x1_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) - src2; 4 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_vav_32f_4x1_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n) - src2; 4 float, n below count; L, one pointer per object. Exceptions: vv-single-loaded-once,
 * vv-whole-object. */
VonkStatus vonkSub_vav_32f_4x1_L(const float *const *src1, int32_t src1Shift, const float *src2, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) - src2; 4 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_vav_32f_4x1_LS2(const float *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const float *src2, int32_t src2ElemStride, float *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = src1(n) - src2; 5 float, n below count; standard layout. Exceptions: vv-single-loaded-once,
 * vv-whole-object. */
VonkStatus vonkSub_vav_32f_5x1(const float *src1, int32_t src1ObjStride, const float *src2, float *dst,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) - src2; 5 float, n below count; S2, strided elements. */
VonkStatus vonkSub_vav_32f_5x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) - src2; 5 float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_vav_32f_5x1_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) - src2; 5 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_vav_32f_5x1_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n) - src2; 5 float, n below count; L, one pointer per object. Exceptions: vv-single-loaded-once,
 * vv-whole-object. */
VonkStatus vonkSub_vav_32f_5x1_L(const float *const *src1, int32_t src1Shift, const float *src2, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) - src2; 5 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_vav_32f_5x1_LS2(const float *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const float *src2, int32_t src2ElemStride, float *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = src1(n) - src2; 6 float, n below count; standard layout. Exceptions: vv-single-loaded-once,
 * vv-whole-object. */
VonkStatus vonkSub_vav_32f_6x1(const float *src1, int32_t src1ObjStride, const float *src2, float *dst,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) - src2; 6 float, n below count; S2, strided elements. */
VonkStatus vonkSub_vav_32f_6x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) - src2; 6 float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_vav_32f_6x1_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) - src2; 6 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_vav_32f_6x1_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n) - src2; 6 float, n below count; L, one pointer per object. Exceptions: vv-single-loaded-once,
 * vv-whole-object. */
VonkStatus vonkSub_vav_32f_6x1_L(const float *const *src1, int32_t src1Shift, const float *src2, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) - src2; 6 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_vav_32f_6x1_LS2(const float *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const float *src2, int32_t src2ElemStride, float *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);

/** dst(n) = src1(n) - src2; `len` double, n below count; standard layout. */
VonkStatus vonkSub_vav_64f(const double *src1, int32_t src1ObjStride, const double *src2, double *dst,
    int32_t dstObjStride, uint32_t len, uint32_t count);
/** dst(n) = src1(n) - src2; `len` double, n below count; S2, strided elements. */
VonkStatus vonkSub_vav_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t len, uint32_t count);
/** dst(n) = src1(n) - src2; `len` double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_vav_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2, int32_t src2Shift,
    double *const *dst, int32_t dstShift, uint32_t len, uint32_t count);
/** dst(n) = src1(n) - src2; `len` double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_vav_64f_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t len, uint32_t count);
/** dst(n) = src1(n) - src2; `len` double, n below count; L, one pointer per object. */
VonkStatus vonkSub_vav_64f_L(const double *const *src1, int32_t src1Shift, const double *src2, double *const *dst,
    int32_t dstShift, uint32_t len, uint32_t count);
/** dst(n) = src1(n) - src2; `len` double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_vav_64f_LS2(const double *const *src1, int32_t src1Shift, int32_t src1ElemStride, const double *src2,
    int32_t src2ElemStride, double *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t len, uint32_t count);
/** dst(n) = src1(n) - src2; 3 double, n below count; standard layout. */
VonkStatus vonkSub_vav_64f_3x1(const double *src1, int32_t src1ObjStride, const double *src2, double *dst,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) - src2; 3 double, n below count; S2, strided elements. */
VonkStatus vonkSub_vav_64f_3x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) - src2; 3 double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_vav_64f_3x1_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) - src2; 3 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_vav_64f_3x1_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n) - src2; 3 double, n below count; L, one pointer per object. */
VonkStatus vonkSub_vav_64f_3x1_L(const double *const *src1, int32_t src1Shift, const double *src2, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) - src2; 3 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_vav_64f_3x1_LS2(const double *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const double *src2, int32_t src2ElemStride, double *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = src1(n) - src2; 4 double, n below count; standard layout. */
VonkStatus vonkSub_vav_64f_4x1(const double *src1, int32_t src1ObjStride, const double *src2, double *dst,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) - src2; 4 double, n below count; S2, strided elements. */
VonkStatus vonkSub_vav_64f_4x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) - src2; 4 double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_vav_64f_4x1_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) - src2; 4 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_vav_64f_4x1_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n) - src2; 4 double, n below count; L, one pointer per object. */
VonkStatus vonkSub_vav_64f_4x1_L(const double *const *src1, int32_t src1Shift, const double *src2, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) - src2; 4 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_vav_64f_4x1_LS2(const double *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const double *src2, int32_t src2ElemStride, double *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = src1(n) - src2; 5 double, n below count; standard layout. */
VonkStatus vonkSub_vav_64f_5x1(const double *src1, int32_t src1ObjStride, const double *src2, double *dst,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) - src2; 5 double, n below count; S2, strided elements. */
VonkStatus vonkSub_vav_64f_5x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) - src2; 5 double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_vav_64f_5x1_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) - src2; 5 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_vav_64f_5x1_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n) - src2; 5 double, n below count; L, one pointer per object. */
VonkStatus vonkSub_vav_64f_5x1_L(const double *const *src1, int32_t src1Shift, const double *src2, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) - src2; 5 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_vav_64f_5x1_LS2(const double *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const double *src2, int32_t src2ElemStride, double *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = src1(n) - src2; 6 double, n below count; standard layout. */
VonkStatus vonkSub_vav_64f_6x1(const double *src1, int32_t src1ObjStride, const double *src2, double *dst,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) - src2; 6 double, n below count; S2, strided elements. */
VonkStatus vonkSub_vav_64f_6x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) - src2; 6 double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_vav_64f_6x1_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) - src2; 6 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_vav_64f_6x1_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n) - src2; 6 double, n below count; L, one pointer per object. */
VonkStatus vonkSub_vav_64f_6x1_L(const double *const *src1, int32_t src1Shift, const double *src2, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) - src2; 6 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_vav_64f_6x1_LS2(const double *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const double *src2, int32_t src2ElemStride, double *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);

/** dst(n) = src1 - src2(n); `len` float, n below count; standard layout. */
VonkStatus vonkSub_vva_32f(const float *src1, const float *src2, int32_t src2ObjStride, float *dst,
    int32_t dstObjStride, uint32_t len, uint32_t count);
/** dst(n) = src1 - src2(n); `len` float, n below count; S2, strided elements. */
VonkStatus vonkSub_vva_32f_S2(const float *src1, int32_t src1ElemStride, const float *src2, int32_t src2ObjStride,
    int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t len, uint32_t count);
/** dst(n) = src1 - src2(n); `len` float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_vva_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t len, uint32_t count);
/** dst(n) = src1 - src2(n); `len` float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_vva_32f_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t len, uint32_t count);
/** dst(n) = src1 - src2(n); `len` float, n below count; L, one pointer per object. */
VonkStatus vonkSub_vva_32f_L(const float *src1, const float *const *src2, int32_t src2Shift, float *const *dst,
    int32_t dstShift, uint32_t len, uint32_t count);
/** dst(n) = src1 - src2(n); `len` float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_vva_32f_LS2(const float *src1, int32_t src1ElemStride, const float *const *src2, int32_t src2Shift,
    int32_t src2ElemStride, float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t len, uint32_t count);
/** dst(n) = src1 - src2(n); 3 float, n below count; standard layout. Exception: vv-single-loaded-once. */
VonkStatus vonkSub_vva_32f_3x1(const float *src1, const float *src2, int32_t src2ObjStride, float *dst,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1 - src2(n); 3 float, n below count; S2, strided elements. */
VonkStatus vonkSub_vva_32f_3x1_S2(const float *src1, int32_t src1ElemStride, const float *src2, int32_t src2ObjStride,
    int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1 - src2(n); 3 float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_vva_32f_3x1_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1 - src2(n); 3 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_vva_32f_3x1_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1 - src2(n); 3 float, n below count; L, one pointer per object. Exception: vv-single-loaded-once. */
VonkStatus vonkSub_vva_32f_3x1_L(const float *src1, const float *const *src2, int32_t src2Shift, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src1 - src2(n); 3 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_vva_32f_3x1_LS2(const float *src1, int32_t src1ElemStride, const float *const *src2,
    int32_t src2Shift, int32_t src2ElemStride, float *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = src1 - src2(n); 4 float, n below count; standard layout. Exceptions: vv-single-loaded-once,
 * vv-whole-object. */
VonkStatus vonkSub_vva_32f_4x1(const float *src1, const float *src2, int32_t src2ObjStride, float *dst,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1 - src2(n); 4 float, n below count; S2, strided elements. */
VonkStatus vonkSub_vva_32f_4x1_S2(const float *src1, int32_t src1ElemStride, const float *src2, int32_t src2ObjStride,
    int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1 - src2(n); 4 float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_vva_32f_4x1_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1 - src2(n); 4 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_vva_32f_4x1_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1 - src2(n); 4 float, n below count; L, one pointer per object. Exceptions: vv-single-loaded-once,
 * vv-whole-object. */
VonkStatus vonkSub_vva_32f_4x1_L(const float *src1, const float *const *src2, int32_t src2Shift, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src1 - src2(n); 4 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_vva_32f_4x1_LS2(const float *src1, int32_t src1ElemStride, const float *const *src2,
    int32_t src2Shift, int32_t src2ElemStride, float *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = src1 - src2(n); 5 float, n below count; standard layout. Exceptions: vv-single-loaded-once,
 * vv-whole-object. */
VonkStatus vonkSub_vva_32f_5x1(const float *src1, const float *src2, int32_t src2ObjStride, float *dst,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1 - src2(n); 5 float, n below count; S2, strided elements. */
VonkStatus vonkSub_vva_32f_5x1_S2(const float *src1, int32_t src1ElemStride, const float *src2, int32_t src2ObjStride,
    int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1 - src2(n); 5 float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_vva_32f_5x1_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1 - src2(n); 5 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_vva_32f_5x1_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1 - src2(n); 5 float, n below count; L, one pointer per object. Exceptions: vv-single-loaded-once,
 * vv-whole-object. */
VonkStatus vonkSub_vva_32f_5x1_L(const float *src1, const float *const *src2, int32_t src2Shift, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src1 - src2(n); 5 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_vva_32f_5x1_LS2(const float *src1, int32_t src1ElemStride, const float *const *src2,
    int32_t src2Shift, int32_t src2ElemStride, float *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = src1 - src2(n); 6 float, n below count; standard layout. Exceptions: vv-single-loaded-once,
 * vv-whole-object. */
VonkStatus vonkSub_vva_32f_6x1(const float *src1, const float *src2, int32_t src2ObjStride, float *dst,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1 - src2(n); 6 float, n below count; S2, strided elements. */
VonkStatus vonkSub_vva_32f_6x1_S2(const float *src1, int32_t src1ElemStride, const float *src2, int32_t src2ObjStride,
    int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1 - src2(n); 6 float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_vva_32f_6x1_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1 - src2(n); 6 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_vva_32f_6x1_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1 - src2(n); 6 float, n below count; L, one pointer per object. Exceptions: vv-single-loaded-once,
 * vv-whole-object. */
VonkStatus vonkSub_vva_32f_6x1_L(const float *src1, const float *const *src2, int32_t src2Shift, float *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src1 - src2(n); 6 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_vva_32f_6x1_LS2(const float *src1, int32_t src1ElemStride, const float *const *src2,
    int32_t src2Shift, int32_t src2ElemStride, float *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);

/** dst(n) = src1 - src2(n); `len` double, n below count; standard layout. */
VonkStatus vonkSub_vva_64f(const double *src1, const double *src2, int32_t src2ObjStride, double *dst,
    int32_t dstObjStride, uint32_t len, uint32_t count);
/** dst(n) = src1 - src2(n); `len` double, n below count; S2, strided elements. */
VonkStatus vonkSub_vva_64f_S2(const double *src1, int32_t src1ElemStride, const double *src2, int32_t src2ObjStride,
    int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t len, uint32_t count);
/** dst(n) = src1 - src2(n); `len` double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_vva_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2, int32_t src2Shift,
    double *const *dst, int32_t dstShift, uint32_t len, uint32_t count);
/** dst(n) = src1 - src2(n); `len` double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_vva_64f_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t len,
    uint32_t count);
/** dst(n) = src1 - src2(n); `len` double, n below count; L, one pointer per object. */
VonkStatus vonkSub_vva_64f_L(const double *src1, const double *const *src2, int32_t src2Shift, double *const *dst,
    int32_t dstShift, uint32_t len, uint32_t count);
/** dst(n) = src1 - src2(n); `len` double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_vva_64f_LS2(const double *src1, int32_t src1ElemStride, const double *const *src2, int32_t src2Shift,
    int32_t src2ElemStride, double *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t len, uint32_t count);
/** dst(n) = src1 - src2(n); 3 double, n below count; standard layout. */
VonkStatus vonkSub_vva_64f_3x1(const double *src1, const double *src2, int32_t src2ObjStride, double *dst,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1 - src2(n); 3 double, n below count; S2, strided elements. */
VonkStatus vonkSub_vva_64f_3x1_S2(const double *src1, int32_t src1ElemStride, const double *src2, int32_t src2ObjStride,
    int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1 - src2(n); 3 double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_vva_64f_3x1_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1 - src2(n); 3 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_vva_64f_3x1_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1 - src2(n); 3 double, n below count; L, one pointer per object. */
VonkStatus vonkSub_vva_64f_3x1_L(const double *src1, const double *const *src2, int32_t src2Shift, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src1 - src2(n); 3 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_vva_64f_3x1_LS2(const double *src1, int32_t src1ElemStride, const double *const *src2,
    int32_t src2Shift, int32_t src2ElemStride, double *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = src1 - src2(n); 4 double, n below count; standard layout. */
VonkStatus vonkSub_vva_64f_4x1(const double *src1, const double *src2, int32_t src2ObjStride, double *dst,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1 - src2(n); 4 double, n below count; S2, strided elements. */
VonkStatus vonkSub_vva_64f_4x1_S2(const double *src1, int32_t src1ElemStride, const double *src2, int32_t src2ObjStride,
    int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1 - src2(n); 4 double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_vva_64f_4x1_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1 - src2(n); 4 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_vva_64f_4x1_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1 - src2(n); 4 double, n below count; L, one pointer per object. */
VonkStatus vonkSub_vva_64f_4x1_L(const double *src1, const double *const *src2, int32_t src2Shift, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src1 - src2(n); 4 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_vva_64f_4x1_LS2(const double *src1, int32_t src1ElemStride, const double *const *src2,
    int32_t src2Shift, int32_t src2ElemStride, double *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = src1 - src2(n); 5 double, n below count; standard layout. */
VonkStatus vonkSub_vva_64f_5x1(const double *src1, const double *src2, int32_t src2ObjStride, double *dst,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1 - src2(n); 5 double, n below count; S2, strided elements. */
VonkStatus vonkSub_vva_64f_5x1_S2(const double *src1, int32_t src1ElemStride, const double *src2, int32_t src2ObjStride,
    int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1 - src2(n); 5 double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_vva_64f_5x1_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1 - src2(n); 5 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_vva_64f_5x1_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1 - src2(n); 5 double, n below count; L, one pointer per object. */
VonkStatus vonkSub_vva_64f_5x1_L(const double *src1, const double *const *src2, int32_t src2Shift, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src1 - src2(n); 5 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_vva_64f_5x1_LS2(const double *src1, int32_t src1ElemStride, const double *const *src2,
    int32_t src2Shift, int32_t src2ElemStride, double *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = src1 - src2(n); 6 double, n below count; standard layout. */
VonkStatus vonkSub_vva_64f_6x1(const double *src1, const double *src2, int32_t src2ObjStride, double *dst,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1 - src2(n); 6 double, n below count; S2, strided elements. */
VonkStatus vonkSub_vva_64f_6x1_S2(const double *src1, int32_t src1ElemStride, const double *src2, int32_t src2ObjStride,
    int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1 - src2(n); 6 double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_vva_64f_6x1_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1 - src2(n); 6 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_vva_64f_6x1_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1 - src2(n); 6 double, n below count; L, one pointer per object. */
VonkStatus vonkSub_vva_64f_6x1_L(const double *src1, const double *const *src2, int32_t src2Shift, double *const *dst,
    int32_t dstShift, uint32_t count);
/** dst(n) = src1 - src2(n); 6 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_vva_64f_6x1_LS2(const double *src1, int32_t src1ElemStride, const double *const *src2,
    int32_t src2Shift, int32_t src2ElemStride, double *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);

/** dst(n) = src1(n) - src2(n); `len` float, n below count; standard layout. */
VonkStatus vonkSub_vava_32f(const float *src1, int32_t src1ObjStride, const float *src2, int32_t src2ObjStride,
    float *dst, int32_t dstObjStride, uint32_t len, uint32_t count);
/** dst(n) = src1(n) - src2(n); `len` float, n below count; S2, strided elements. */
VonkStatus vonkSub_vava_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride,
    uint32_t len, uint32_t count);
/** dst(n) = src1(n) - src2(n); `len` float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_vava_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t len, uint32_t count);
/** dst(n) = src1(n) - src2(n); `len` float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_vava_32f_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t len, uint32_t count);
/** dst(n) = src1(n) - src2(n); `len` float, n below count; L, one pointer per object. */
VonkStatus vonkSub_vava_32f_L(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t len, uint32_t count);
/** dst(n) = src1(n) - src2(n); `len` float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_vava_32f_LS2(const float *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t len, uint32_t count);
/** dst(n) = src1(n) - src2(n); 3 float, n below count; standard layout. Exceptions: vv-whole-object, vv-blocks-of-four.
 * */
VonkStatus vonkSub_vava_32f_3x1(const float *src1, int32_t src1ObjStride, const float *src2, int32_t src2ObjStride,
    float *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) - src2(n); 3 float, n below count; S2, strided elements. */
VonkStatus vonkSub_vava_32f_3x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = src1(n) - src2(n); 3 float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_vava_32f_3x1_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) - src2(n); 3 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_vava_32f_3x1_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) - src2(n); 3 float, n below count; L, one pointer per object. Exception: vv-whole-object. */
VonkStatus vonkSub_vava_32f_3x1_L(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) - src2(n); 3 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_vava_32f_3x1_LS2(const float *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) - src2(n); 4 float, n below count; standard layout. Exception: vv-whole-object. */
VonkStatus vonkSub_vava_32f_4x1(const float *src1, int32_t src1ObjStride, const float *src2, int32_t src2ObjStride,
    float *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) - src2(n); 4 float, n below count; S2, strided elements. */
VonkStatus vonkSub_vava_32f_4x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = src1(n) - src2(n); 4 float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_vava_32f_4x1_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) - src2(n); 4 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_vava_32f_4x1_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) - src2(n); 4 float, n below count; L, one pointer per object. Exception: vv-whole-object. */
VonkStatus vonkSub_vava_32f_4x1_L(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) - src2(n); 4 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_vava_32f_4x1_LS2(const float *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) - src2(n); 5 float, n below count; standard layout. Exception: vv-whole-object. */
VonkStatus vonkSub_vava_32f_5x1(const float *src1, int32_t src1ObjStride, const float *src2, int32_t src2ObjStride,
    float *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) - src2(n); 5 float, n below count; S2, strided elements. */
VonkStatus vonkSub_vava_32f_5x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = src1(n) - src2(n); 5 float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_vava_32f_5x1_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) - src2(n); 5 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_vava_32f_5x1_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) - src2(n); 5 float, n below count; L, one pointer per object. Exception: vv-whole-object. */
VonkStatus vonkSub_vava_32f_5x1_L(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) - src2(n); 5 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_vava_32f_5x1_LS2(const float *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) - src2(n); 6 float, n below count; standard layout. Exception: vv-whole-object. */
VonkStatus vonkSub_vava_32f_6x1(const float *src1, int32_t src1ObjStride, const float *src2, int32_t src2ObjStride,
    float *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) - src2(n); 6 float, n below count; S2, strided elements. */
VonkStatus vonkSub_vava_32f_6x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = src1(n) - src2(n); 6 float, n below count; P, one pointer per element position. */
VonkStatus vonkSub_vava_32f_6x1_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) - src2(n); 6 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_vava_32f_6x1_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) - src2(n); 6 float, n below count; L, one pointer per object. Exception: vv-whole-object. */
VonkStatus vonkSub_vava_32f_6x1_L(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) - src2(n); 6 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_vava_32f_6x1_LS2(const float *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);

/** dst(n) = src1(n) - src2(n); `len` double, n below count; standard layout. */
VonkStatus vonkSub_vava_64f(const double *src1, int32_t src1ObjStride, const double *src2, int32_t src2ObjStride,
    double *dst, int32_t dstObjStride, uint32_t len, uint32_t count);
/** dst(n) = src1(n) - src2(n); `len` double, n below count; S2, strided elements. */
VonkStatus vonkSub_vava_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride,
    uint32_t len, uint32_t count);
/** dst(n) = src1(n) - src2(n); `len` double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_vava_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t len, uint32_t count);
/** dst(n) = src1(n) - src2(n); `len` double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_vava_64f_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t len, uint32_t count);
/** dst(n) = src1(n) - src2(n); `len` double, n below count; L, one pointer per object. */
VonkStatus vonkSub_vava_64f_L(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t len, uint32_t count);
/** dst(n) = src1(n) - src2(n); `len` double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_vava_64f_LS2(const double *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t len, uint32_t count);
/** dst(n) = src1(n) - src2(n); 3 double, n below count; standard layout. */
VonkStatus vonkSub_vava_64f_3x1(const double *src1, int32_t src1ObjStride, const double *src2, int32_t src2ObjStride,
    double *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) - src2(n); 3 double, n below count; S2, strided elements. */
VonkStatus vonkSub_vava_64f_3x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) - src2(n); 3 double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_vava_64f_3x1_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) - src2(n); 3 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_vava_64f_3x1_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) - src2(n); 3 double, n below count; L, one pointer per object. */
VonkStatus vonkSub_vava_64f_3x1_L(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) - src2(n); 3 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_vava_64f_3x1_LS2(const double *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) - src2(n); 4 double, n below count; standard layout. */
VonkStatus vonkSub_vava_64f_4x1(const double *src1, int32_t src1ObjStride, const double *src2, int32_t src2ObjStride,
    double *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) - src2(n); 4 double, n below count; S2, strided elements. */
VonkStatus vonkSub_vava_64f_4x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) - src2(n); 4 double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_vava_64f_4x1_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) - src2(n); 4 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_vava_64f_4x1_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) - src2(n); 4 double, n below count; L, one pointer per object. */
VonkStatus vonkSub_vava_64f_4x1_L(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) - src2(n); 4 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_vava_64f_4x1_LS2(const double *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) - src2(n); 5 double, n below count; standard layout. */
VonkStatus vonkSub_vava_64f_5x1(const double *src1, int32_t src1ObjStride, const double *src2, int32_t src2ObjStride,
    double *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) - src2(n); 5 double, n below count; S2, strided elements. */
VonkStatus vonkSub_vava_64f_5x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) - src2(n); 5 double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_vava_64f_5x1_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) - src2(n); 5 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_vava_64f_5x1_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) - src2(n); 5 double, n below count; L, one pointer per object. */
VonkStatus vonkSub_vava_64f_5x1_L(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) - src2(n); 5 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_vava_64f_5x1_LS2(const double *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) - src2(n); 6 double, n below count; standard layout. */
VonkStatus vonkSub_vava_64f_6x1(const double *src1, int32_t src1ObjStride, const double *src2, int32_t src2ObjStride,
    double *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) - src2(n); 6 double, n below count; S2, strided elements. */
VonkStatus vonkSub_vava_64f_6x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) - src2(n); 6 double, n below count; P, one pointer per element position. */
VonkStatus vonkSub_vava_64f_6x1_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) - src2(n); 6 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSub_vava_64f_6x1_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) - src2(n); 6 double, n below count; L, one pointer per object. */
VonkStatus vonkSub_vava_64f_6x1_L(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) - src2(n); 6 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSub_vava_64f_6x1_LS2(const double *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);

/* ---- Saxpy ----------------------------------------------------------------------------------------------------------
 *
 * dst(n, j) = src1(n, j) * val + src2(n, j)
 *
 * for j below `len` and each object n. The product is rounded before the sum in `32f` and never fused with it; in `64f`
 * it stays in 80 bits and the sum is rounded. Groups: `vv` two vectors, `vav` an array and a vector, `vva` a vector and
 * an array, `vava` two arrays. A single vector serves all objects. The arithmetic of an element depends neither on the
 * length nor on the alignment of operands.
 *
 * Status: vonkErrNullPtr if `src1`, `src2` or `dst` is null; vonkErrSize if `len` is 0; vonkErrNullPtr if a table or
 * list entry is null: in single forms in `P` entry by entry just before each element, earlier elements being final; in
 * `P` and `PS2` of arrays all entries of all tables before anything else, even at `count` 0; in `L` and `LS2` when the
 * object's turn comes, earlier objects being complete. `count` 0 then gives vonkOk with nothing written.
 *
 * Overlap:
 * Overlap is not checked. `dst` may be any source (in place): each element is read before it is written. With any other
 * overlap elements are read and written one by one in ascending order, so that a source element which `dst` has
 * overwritten by then is read as overwritten.
 *
 * Exceptions:
 * - saxpy-third-stride (arguments): vonkSaxpy_vava_32f_{4x1,6x1}
 *   If `src1`, `src2`, `dst`, `src1ObjStride` and `dstObjStride` are all multiples of 16, `src2ObjStride` must be one,
 *   too. This is not checked.
 * - saxpy-single-loaded-once (overlap): vonkSaxpy_vav_32f_{4x1,6x1}
 *   If `src1`, `src2`, `dst`, `src1ObjStride` and `dstObjStride` are all multiples of 16, the single vector is loaded
 *   once, before all objects. Otherwise, and in all other forms, it is loaded again for each object.
 */

/** dst = src1 * val + src2; `len` float; standard layout. */
VonkStatus vonkSaxpy_vv_32f(const float *src1, float val, const float *src2, float *dst, uint32_t len);
/** dst = src1 * val + src2; `len` float; S2, strided elements. */
VonkStatus vonkSaxpy_vv_32f_S2(const float *src1, int32_t src1ElemStride, float val, const float *src2,
    int32_t src2ElemStride, float *dst, int32_t dstElemStride, uint32_t len);
/** dst = src1 * val + src2; `len` float; P, one pointer per element position. */
VonkStatus vonkSaxpy_vv_32f_P(const float *const *src1, int32_t src1Shift, float val, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t len);
/** dst = src1 * val + src2; 3 float; standard layout. */
VonkStatus vonkSaxpy_vv_32f_3x1(const float *src1, float val, const float *src2, float *dst);
/** dst = src1 * val + src2; 3 float; S2, strided elements. */
VonkStatus vonkSaxpy_vv_32f_3x1_S2(const float *src1, int32_t src1ElemStride, float val, const float *src2,
    int32_t src2ElemStride, float *dst, int32_t dstElemStride);
/** dst = src1 * val + src2; 3 float; P, one pointer per element position. */
VonkStatus vonkSaxpy_vv_32f_3x1_P(const float *const *src1, int32_t src1Shift, float val, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
/** dst = src1 * val + src2; 4 float; standard layout. */
VonkStatus vonkSaxpy_vv_32f_4x1(const float *src1, float val, const float *src2, float *dst);
/** dst = src1 * val + src2; 4 float; S2, strided elements. */
VonkStatus vonkSaxpy_vv_32f_4x1_S2(const float *src1, int32_t src1ElemStride, float val, const float *src2,
    int32_t src2ElemStride, float *dst, int32_t dstElemStride);
/** dst = src1 * val + src2; 4 float; P, one pointer per element position. */
VonkStatus vonkSaxpy_vv_32f_4x1_P(const float *const *src1, int32_t src1Shift, float val, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
/** dst = src1 * val + src2; 5 float; standard layout. */
VonkStatus vonkSaxpy_vv_32f_5x1(const float *src1, float val, const float *src2, float *dst);
/** dst = src1 * val + src2; 5 float; S2, strided elements. */
VonkStatus vonkSaxpy_vv_32f_5x1_S2(const float *src1, int32_t src1ElemStride, float val, const float *src2,
    int32_t src2ElemStride, float *dst, int32_t dstElemStride);
/** dst = src1 * val + src2; 5 float; P, one pointer per element position. */
VonkStatus vonkSaxpy_vv_32f_5x1_P(const float *const *src1, int32_t src1Shift, float val, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
/** dst = src1 * val + src2; 6 float; standard layout. */
VonkStatus vonkSaxpy_vv_32f_6x1(const float *src1, float val, const float *src2, float *dst);
/** dst = src1 * val + src2; 6 float; S2, strided elements. */
VonkStatus vonkSaxpy_vv_32f_6x1_S2(const float *src1, int32_t src1ElemStride, float val, const float *src2,
    int32_t src2ElemStride, float *dst, int32_t dstElemStride);
/** dst = src1 * val + src2; 6 float; P, one pointer per element position. */
VonkStatus vonkSaxpy_vv_32f_6x1_P(const float *const *src1, int32_t src1Shift, float val, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);

/** dst = src1 * val + src2; `len` double; standard layout. */
VonkStatus vonkSaxpy_vv_64f(const double *src1, double val, const double *src2, double *dst, uint32_t len);
/** dst = src1 * val + src2; `len` double; S2, strided elements. */
VonkStatus vonkSaxpy_vv_64f_S2(const double *src1, int32_t src1ElemStride, double val, const double *src2,
    int32_t src2ElemStride, double *dst, int32_t dstElemStride, uint32_t len);
/** dst = src1 * val + src2; `len` double; P, one pointer per element position. */
VonkStatus vonkSaxpy_vv_64f_P(const double *const *src1, int32_t src1Shift, double val, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t len);
/** dst = src1 * val + src2; 3 double; standard layout. */
VonkStatus vonkSaxpy_vv_64f_3x1(const double *src1, double val, const double *src2, double *dst);
/** dst = src1 * val + src2; 3 double; S2, strided elements. */
VonkStatus vonkSaxpy_vv_64f_3x1_S2(const double *src1, int32_t src1ElemStride, double val, const double *src2,
    int32_t src2ElemStride, double *dst, int32_t dstElemStride);
/** dst = src1 * val + src2; 3 double; P, one pointer per element position. */
VonkStatus vonkSaxpy_vv_64f_3x1_P(const double *const *src1, int32_t src1Shift, double val, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
/** dst = src1 * val + src2; 4 double; standard layout. */
VonkStatus vonkSaxpy_vv_64f_4x1(const double *src1, double val, const double *src2, double *dst);
/** dst = src1 * val + src2; 4 double; S2, strided elements. */
VonkStatus vonkSaxpy_vv_64f_4x1_S2(const double *src1, int32_t src1ElemStride, double val, const double *src2,
    int32_t src2ElemStride, double *dst, int32_t dstElemStride);
/** dst = src1 * val + src2; 4 double; P, one pointer per element position. */
VonkStatus vonkSaxpy_vv_64f_4x1_P(const double *const *src1, int32_t src1Shift, double val, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
/** dst = src1 * val + src2; 5 double; standard layout. */
VonkStatus vonkSaxpy_vv_64f_5x1(const double *src1, double val, const double *src2, double *dst);
/** dst = src1 * val + src2; 5 double; S2, strided elements. */
VonkStatus vonkSaxpy_vv_64f_5x1_S2(const double *src1, int32_t src1ElemStride, double val, const double *src2,
    int32_t src2ElemStride, double *dst, int32_t dstElemStride);
/** dst = src1 * val + src2; 5 double; P, one pointer per element position. */
VonkStatus vonkSaxpy_vv_64f_5x1_P(const double *const *src1, int32_t src1Shift, double val, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
/** dst = src1 * val + src2; 6 double; standard layout. */
VonkStatus vonkSaxpy_vv_64f_6x1(const double *src1, double val, const double *src2, double *dst);
/** dst = src1 * val + src2; 6 double; S2, strided elements. */
VonkStatus vonkSaxpy_vv_64f_6x1_S2(const double *src1, int32_t src1ElemStride, double val, const double *src2,
    int32_t src2ElemStride, double *dst, int32_t dstElemStride);
/** dst = src1 * val + src2; 6 double; P, one pointer per element position. */
VonkStatus vonkSaxpy_vv_64f_6x1_P(const double *const *src1, int32_t src1Shift, double val, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);

/** dst(n) = src1(n) * val + src2; `len` float, n below count; standard layout. */
VonkStatus vonkSaxpy_vav_32f(const float *src1, int32_t src1ObjStride, float val, const float *src2, float *dst,
    int32_t dstObjStride, uint32_t len, uint32_t count);
/** dst(n) = src1(n) * val + src2; `len` float, n below count; S2, strided elements. */
VonkStatus vonkSaxpy_vav_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride, float val,
    const float *src2, int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t len,
    uint32_t count);
/** dst(n) = src1(n) * val + src2; `len` float, n below count; P, one pointer per element position. */
VonkStatus vonkSaxpy_vav_32f_P(const float *const *src1, int32_t src1Shift, float val, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t len, uint32_t count);
/** dst(n) = src1(n) * val + src2; `len` float, n below count; PS2, one pointer per element position, strided objects.
 * */
VonkStatus vonkSaxpy_vav_32f_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride, float val,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t len, uint32_t count);
/** dst(n) = src1(n) * val + src2; `len` float, n below count; L, one pointer per object. */
VonkStatus vonkSaxpy_vav_32f_L(const float *const *src1, int32_t src1Shift, float val, const float *src2,
    float *const *dst, int32_t dstShift, uint32_t len, uint32_t count);
/** dst(n) = src1(n) * val + src2; `len` float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSaxpy_vav_32f_LS2(const float *const *src1, int32_t src1Shift, int32_t src1ElemStride, float val,
    const float *src2, int32_t src2ElemStride, float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t len,
    uint32_t count);
/** dst(n) = src1(n) * val + src2; 3 float, n below count; standard layout. */
VonkStatus vonkSaxpy_vav_32f_3x1(const float *src1, int32_t src1ObjStride, float val, const float *src2, float *dst,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) * val + src2; 3 float, n below count; S2, strided elements. */
VonkStatus vonkSaxpy_vav_32f_3x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride, float val,
    const float *src2, int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) * val + src2; 3 float, n below count; P, one pointer per element position. */
VonkStatus vonkSaxpy_vav_32f_3x1_P(const float *const *src1, int32_t src1Shift, float val, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) * val + src2; 3 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSaxpy_vav_32f_3x1_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride, float val,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n) * val + src2; 3 float, n below count; L, one pointer per object. */
VonkStatus vonkSaxpy_vav_32f_3x1_L(const float *const *src1, int32_t src1Shift, float val, const float *src2,
    float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) * val + src2; 3 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSaxpy_vav_32f_3x1_LS2(const float *const *src1, int32_t src1Shift, int32_t src1ElemStride, float val,
    const float *src2, int32_t src2ElemStride, float *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = src1(n) * val + src2; 4 float, n below count; standard layout. Exception: saxpy-single-loaded-once. */
VonkStatus vonkSaxpy_vav_32f_4x1(const float *src1, int32_t src1ObjStride, float val, const float *src2, float *dst,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) * val + src2; 4 float, n below count; S2, strided elements. */
VonkStatus vonkSaxpy_vav_32f_4x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride, float val,
    const float *src2, int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) * val + src2; 4 float, n below count; P, one pointer per element position. */
VonkStatus vonkSaxpy_vav_32f_4x1_P(const float *const *src1, int32_t src1Shift, float val, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) * val + src2; 4 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSaxpy_vav_32f_4x1_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride, float val,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n) * val + src2; 4 float, n below count; L, one pointer per object. */
VonkStatus vonkSaxpy_vav_32f_4x1_L(const float *const *src1, int32_t src1Shift, float val, const float *src2,
    float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) * val + src2; 4 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSaxpy_vav_32f_4x1_LS2(const float *const *src1, int32_t src1Shift, int32_t src1ElemStride, float val,
    const float *src2, int32_t src2ElemStride, float *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = src1(n) * val + src2; 5 float, n below count; standard layout. */
VonkStatus vonkSaxpy_vav_32f_5x1(const float *src1, int32_t src1ObjStride, float val, const float *src2, float *dst,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) * val + src2; 5 float, n below count; S2, strided elements. */
VonkStatus vonkSaxpy_vav_32f_5x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride, float val,
    const float *src2, int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) * val + src2; 5 float, n below count; P, one pointer per element position. */
VonkStatus vonkSaxpy_vav_32f_5x1_P(const float *const *src1, int32_t src1Shift, float val, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) * val + src2; 5 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSaxpy_vav_32f_5x1_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride, float val,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n) * val + src2; 5 float, n below count; L, one pointer per object. */
VonkStatus vonkSaxpy_vav_32f_5x1_L(const float *const *src1, int32_t src1Shift, float val, const float *src2,
    float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) * val + src2; 5 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSaxpy_vav_32f_5x1_LS2(const float *const *src1, int32_t src1Shift, int32_t src1ElemStride, float val,
    const float *src2, int32_t src2ElemStride, float *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = src1(n) * val + src2; 6 float, n below count; standard layout. Exception: saxpy-single-loaded-once. */
VonkStatus vonkSaxpy_vav_32f_6x1(const float *src1, int32_t src1ObjStride, float val, const float *src2, float *dst,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) * val + src2; 6 float, n below count; S2, strided elements. */
VonkStatus vonkSaxpy_vav_32f_6x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride, float val,
    const float *src2, int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) * val + src2; 6 float, n below count; P, one pointer per element position. */
VonkStatus vonkSaxpy_vav_32f_6x1_P(const float *const *src1, int32_t src1Shift, float val, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) * val + src2; 6 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSaxpy_vav_32f_6x1_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride, float val,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n) * val + src2; 6 float, n below count; L, one pointer per object. */
VonkStatus vonkSaxpy_vav_32f_6x1_L(const float *const *src1, int32_t src1Shift, float val, const float *src2,
    float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) * val + src2; 6 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSaxpy_vav_32f_6x1_LS2(const float *const *src1, int32_t src1Shift, int32_t src1ElemStride, float val,
    const float *src2, int32_t src2ElemStride, float *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);

/** dst(n) = src1(n) * val + src2; `len` double, n below count; standard layout. */
VonkStatus vonkSaxpy_vav_64f(const double *src1, int32_t src1ObjStride, double val, const double *src2, double *dst,
    int32_t dstObjStride, uint32_t len, uint32_t count);
/** dst(n) = src1(n) * val + src2; `len` double, n below count; S2, strided elements. */
VonkStatus vonkSaxpy_vav_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride, double val,
    const double *src2, int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t len,
    uint32_t count);
/** dst(n) = src1(n) * val + src2; `len` double, n below count; P, one pointer per element position. */
VonkStatus vonkSaxpy_vav_64f_P(const double *const *src1, int32_t src1Shift, double val, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t len, uint32_t count);
/** dst(n) = src1(n) * val + src2; `len` double, n below count; PS2, one pointer per element position, strided objects.
 * */
VonkStatus vonkSaxpy_vav_64f_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride, double val,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t len, uint32_t count);
/** dst(n) = src1(n) * val + src2; `len` double, n below count; L, one pointer per object. */
VonkStatus vonkSaxpy_vav_64f_L(const double *const *src1, int32_t src1Shift, double val, const double *src2,
    double *const *dst, int32_t dstShift, uint32_t len, uint32_t count);
/** dst(n) = src1(n) * val + src2; `len` double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSaxpy_vav_64f_LS2(const double *const *src1, int32_t src1Shift, int32_t src1ElemStride, double val,
    const double *src2, int32_t src2ElemStride, double *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t len, uint32_t count);
/** dst(n) = src1(n) * val + src2; 3 double, n below count; standard layout. */
VonkStatus vonkSaxpy_vav_64f_3x1(const double *src1, int32_t src1ObjStride, double val, const double *src2, double *dst,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) * val + src2; 3 double, n below count; S2, strided elements. */
VonkStatus vonkSaxpy_vav_64f_3x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride, double val,
    const double *src2, int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = src1(n) * val + src2; 3 double, n below count; P, one pointer per element position. */
VonkStatus vonkSaxpy_vav_64f_3x1_P(const double *const *src1, int32_t src1Shift, double val, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) * val + src2; 3 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSaxpy_vav_64f_3x1_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride, double val,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n) * val + src2; 3 double, n below count; L, one pointer per object. */
VonkStatus vonkSaxpy_vav_64f_3x1_L(const double *const *src1, int32_t src1Shift, double val, const double *src2,
    double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) * val + src2; 3 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSaxpy_vav_64f_3x1_LS2(const double *const *src1, int32_t src1Shift, int32_t src1ElemStride, double val,
    const double *src2, int32_t src2ElemStride, double *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = src1(n) * val + src2; 4 double, n below count; standard layout. */
VonkStatus vonkSaxpy_vav_64f_4x1(const double *src1, int32_t src1ObjStride, double val, const double *src2, double *dst,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) * val + src2; 4 double, n below count; S2, strided elements. */
VonkStatus vonkSaxpy_vav_64f_4x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride, double val,
    const double *src2, int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = src1(n) * val + src2; 4 double, n below count; P, one pointer per element position. */
VonkStatus vonkSaxpy_vav_64f_4x1_P(const double *const *src1, int32_t src1Shift, double val, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) * val + src2; 4 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSaxpy_vav_64f_4x1_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride, double val,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n) * val + src2; 4 double, n below count; L, one pointer per object. */
VonkStatus vonkSaxpy_vav_64f_4x1_L(const double *const *src1, int32_t src1Shift, double val, const double *src2,
    double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) * val + src2; 4 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSaxpy_vav_64f_4x1_LS2(const double *const *src1, int32_t src1Shift, int32_t src1ElemStride, double val,
    const double *src2, int32_t src2ElemStride, double *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = src1(n) * val + src2; 5 double, n below count; standard layout. */
VonkStatus vonkSaxpy_vav_64f_5x1(const double *src1, int32_t src1ObjStride, double val, const double *src2, double *dst,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) * val + src2; 5 double, n below count; S2, strided elements. */
VonkStatus vonkSaxpy_vav_64f_5x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride, double val,
    const double *src2, int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = src1(n) * val + src2; 5 double, n below count; P, one pointer per element position. */
VonkStatus vonkSaxpy_vav_64f_5x1_P(const double *const *src1, int32_t src1Shift, double val, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) * val + src2; 5 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSaxpy_vav_64f_5x1_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride, double val,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n) * val + src2; 5 double, n below count; L, one pointer per object. */
VonkStatus vonkSaxpy_vav_64f_5x1_L(const double *const *src1, int32_t src1Shift, double val, const double *src2,
    double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) * val + src2; 5 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSaxpy_vav_64f_5x1_LS2(const double *const *src1, int32_t src1Shift, int32_t src1ElemStride, double val,
    const double *src2, int32_t src2ElemStride, double *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = src1(n) * val + src2; 6 double, n below count; standard layout. */
VonkStatus vonkSaxpy_vav_64f_6x1(const double *src1, int32_t src1ObjStride, double val, const double *src2, double *dst,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) * val + src2; 6 double, n below count; S2, strided elements. */
VonkStatus vonkSaxpy_vav_64f_6x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride, double val,
    const double *src2, int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = src1(n) * val + src2; 6 double, n below count; P, one pointer per element position. */
VonkStatus vonkSaxpy_vav_64f_6x1_P(const double *const *src1, int32_t src1Shift, double val, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) * val + src2; 6 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSaxpy_vav_64f_6x1_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride, double val,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n) * val + src2; 6 double, n below count; L, one pointer per object. */
VonkStatus vonkSaxpy_vav_64f_6x1_L(const double *const *src1, int32_t src1Shift, double val, const double *src2,
    double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) * val + src2; 6 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSaxpy_vav_64f_6x1_LS2(const double *const *src1, int32_t src1Shift, int32_t src1ElemStride, double val,
    const double *src2, int32_t src2ElemStride, double *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);

/** dst(n) = src1 * val + src2(n); `len` float, n below count; standard layout. */
VonkStatus vonkSaxpy_vva_32f(const float *src1, float val, const float *src2, int32_t src2ObjStride, float *dst,
    int32_t dstObjStride, uint32_t len, uint32_t count);
/** dst(n) = src1 * val + src2(n); `len` float, n below count; S2, strided elements. */
VonkStatus vonkSaxpy_vva_32f_S2(const float *src1, int32_t src1ElemStride, float val, const float *src2,
    int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride,
    uint32_t len, uint32_t count);
/** dst(n) = src1 * val + src2(n); `len` float, n below count; P, one pointer per element position. */
VonkStatus vonkSaxpy_vva_32f_P(const float *const *src1, int32_t src1Shift, float val, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t len, uint32_t count);
/** dst(n) = src1 * val + src2(n); `len` float, n below count; PS2, one pointer per element position, strided objects.
 * */
VonkStatus vonkSaxpy_vva_32f_PS2(const float *const *src1, int32_t src1Shift, float val, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t len,
    uint32_t count);
/** dst(n) = src1 * val + src2(n); `len` float, n below count; L, one pointer per object. */
VonkStatus vonkSaxpy_vva_32f_L(const float *src1, float val, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t len, uint32_t count);
/** dst(n) = src1 * val + src2(n); `len` float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSaxpy_vva_32f_LS2(const float *src1, int32_t src1ElemStride, float val, const float *const *src2,
    int32_t src2Shift, int32_t src2ElemStride, float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t len,
    uint32_t count);
/** dst(n) = src1 * val + src2(n); 3 float, n below count; standard layout. */
VonkStatus vonkSaxpy_vva_32f_3x1(const float *src1, float val, const float *src2, int32_t src2ObjStride, float *dst,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1 * val + src2(n); 3 float, n below count; S2, strided elements. */
VonkStatus vonkSaxpy_vva_32f_3x1_S2(const float *src1, int32_t src1ElemStride, float val, const float *src2,
    int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = src1 * val + src2(n); 3 float, n below count; P, one pointer per element position. */
VonkStatus vonkSaxpy_vva_32f_3x1_P(const float *const *src1, int32_t src1Shift, float val, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1 * val + src2(n); 3 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSaxpy_vva_32f_3x1_PS2(const float *const *src1, int32_t src1Shift, float val, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1 * val + src2(n); 3 float, n below count; L, one pointer per object. */
VonkStatus vonkSaxpy_vva_32f_3x1_L(const float *src1, float val, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1 * val + src2(n); 3 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSaxpy_vva_32f_3x1_LS2(const float *src1, int32_t src1ElemStride, float val, const float *const *src2,
    int32_t src2Shift, int32_t src2ElemStride, float *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = src1 * val + src2(n); 4 float, n below count; standard layout. */
VonkStatus vonkSaxpy_vva_32f_4x1(const float *src1, float val, const float *src2, int32_t src2ObjStride, float *dst,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1 * val + src2(n); 4 float, n below count; S2, strided elements. */
VonkStatus vonkSaxpy_vva_32f_4x1_S2(const float *src1, int32_t src1ElemStride, float val, const float *src2,
    int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = src1 * val + src2(n); 4 float, n below count; P, one pointer per element position. */
VonkStatus vonkSaxpy_vva_32f_4x1_P(const float *const *src1, int32_t src1Shift, float val, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1 * val + src2(n); 4 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSaxpy_vva_32f_4x1_PS2(const float *const *src1, int32_t src1Shift, float val, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1 * val + src2(n); 4 float, n below count; L, one pointer per object. */
VonkStatus vonkSaxpy_vva_32f_4x1_L(const float *src1, float val, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1 * val + src2(n); 4 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSaxpy_vva_32f_4x1_LS2(const float *src1, int32_t src1ElemStride, float val, const float *const *src2,
    int32_t src2Shift, int32_t src2ElemStride, float *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = src1 * val + src2(n); 5 float, n below count; standard layout. */
VonkStatus vonkSaxpy_vva_32f_5x1(const float *src1, float val, const float *src2, int32_t src2ObjStride, float *dst,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1 * val + src2(n); 5 float, n below count; S2, strided elements. */
VonkStatus vonkSaxpy_vva_32f_5x1_S2(const float *src1, int32_t src1ElemStride, float val, const float *src2,
    int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = src1 * val + src2(n); 5 float, n below count; P, one pointer per element position. */
VonkStatus vonkSaxpy_vva_32f_5x1_P(const float *const *src1, int32_t src1Shift, float val, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1 * val + src2(n); 5 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSaxpy_vva_32f_5x1_PS2(const float *const *src1, int32_t src1Shift, float val, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1 * val + src2(n); 5 float, n below count; L, one pointer per object. */
VonkStatus vonkSaxpy_vva_32f_5x1_L(const float *src1, float val, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1 * val + src2(n); 5 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSaxpy_vva_32f_5x1_LS2(const float *src1, int32_t src1ElemStride, float val, const float *const *src2,
    int32_t src2Shift, int32_t src2ElemStride, float *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = src1 * val + src2(n); 6 float, n below count; standard layout. */
VonkStatus vonkSaxpy_vva_32f_6x1(const float *src1, float val, const float *src2, int32_t src2ObjStride, float *dst,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1 * val + src2(n); 6 float, n below count; S2, strided elements. */
VonkStatus vonkSaxpy_vva_32f_6x1_S2(const float *src1, int32_t src1ElemStride, float val, const float *src2,
    int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = src1 * val + src2(n); 6 float, n below count; P, one pointer per element position. */
VonkStatus vonkSaxpy_vva_32f_6x1_P(const float *const *src1, int32_t src1Shift, float val, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1 * val + src2(n); 6 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSaxpy_vva_32f_6x1_PS2(const float *const *src1, int32_t src1Shift, float val, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1 * val + src2(n); 6 float, n below count; L, one pointer per object. */
VonkStatus vonkSaxpy_vva_32f_6x1_L(const float *src1, float val, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1 * val + src2(n); 6 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSaxpy_vva_32f_6x1_LS2(const float *src1, int32_t src1ElemStride, float val, const float *const *src2,
    int32_t src2Shift, int32_t src2ElemStride, float *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);

/** dst(n) = src1 * val + src2(n); `len` double, n below count; standard layout. */
VonkStatus vonkSaxpy_vva_64f(const double *src1, double val, const double *src2, int32_t src2ObjStride, double *dst,
    int32_t dstObjStride, uint32_t len, uint32_t count);
/** dst(n) = src1 * val + src2(n); `len` double, n below count; S2, strided elements. */
VonkStatus vonkSaxpy_vva_64f_S2(const double *src1, int32_t src1ElemStride, double val, const double *src2,
    int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride,
    uint32_t len, uint32_t count);
/** dst(n) = src1 * val + src2(n); `len` double, n below count; P, one pointer per element position. */
VonkStatus vonkSaxpy_vva_64f_P(const double *const *src1, int32_t src1Shift, double val, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t len, uint32_t count);
/** dst(n) = src1 * val + src2(n); `len` double, n below count; PS2, one pointer per element position, strided objects.
 * */
VonkStatus vonkSaxpy_vva_64f_PS2(const double *const *src1, int32_t src1Shift, double val, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t len,
    uint32_t count);
/** dst(n) = src1 * val + src2(n); `len` double, n below count; L, one pointer per object. */
VonkStatus vonkSaxpy_vva_64f_L(const double *src1, double val, const double *const *src2, int32_t src2Shift,
    double *const *dst, int32_t dstShift, uint32_t len, uint32_t count);
/** dst(n) = src1 * val + src2(n); `len` double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSaxpy_vva_64f_LS2(const double *src1, int32_t src1ElemStride, double val, const double *const *src2,
    int32_t src2Shift, int32_t src2ElemStride, double *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t len, uint32_t count);
/** dst(n) = src1 * val + src2(n); 3 double, n below count; standard layout. */
VonkStatus vonkSaxpy_vva_64f_3x1(const double *src1, double val, const double *src2, int32_t src2ObjStride, double *dst,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1 * val + src2(n); 3 double, n below count; S2, strided elements. */
VonkStatus vonkSaxpy_vva_64f_3x1_S2(const double *src1, int32_t src1ElemStride, double val, const double *src2,
    int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = src1 * val + src2(n); 3 double, n below count; P, one pointer per element position. */
VonkStatus vonkSaxpy_vva_64f_3x1_P(const double *const *src1, int32_t src1Shift, double val, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1 * val + src2(n); 3 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSaxpy_vva_64f_3x1_PS2(const double *const *src1, int32_t src1Shift, double val,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1 * val + src2(n); 3 double, n below count; L, one pointer per object. */
VonkStatus vonkSaxpy_vva_64f_3x1_L(const double *src1, double val, const double *const *src2, int32_t src2Shift,
    double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1 * val + src2(n); 3 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSaxpy_vva_64f_3x1_LS2(const double *src1, int32_t src1ElemStride, double val, const double *const *src2,
    int32_t src2Shift, int32_t src2ElemStride, double *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = src1 * val + src2(n); 4 double, n below count; standard layout. */
VonkStatus vonkSaxpy_vva_64f_4x1(const double *src1, double val, const double *src2, int32_t src2ObjStride, double *dst,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1 * val + src2(n); 4 double, n below count; S2, strided elements. */
VonkStatus vonkSaxpy_vva_64f_4x1_S2(const double *src1, int32_t src1ElemStride, double val, const double *src2,
    int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = src1 * val + src2(n); 4 double, n below count; P, one pointer per element position. */
VonkStatus vonkSaxpy_vva_64f_4x1_P(const double *const *src1, int32_t src1Shift, double val, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1 * val + src2(n); 4 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSaxpy_vva_64f_4x1_PS2(const double *const *src1, int32_t src1Shift, double val,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1 * val + src2(n); 4 double, n below count; L, one pointer per object. */
VonkStatus vonkSaxpy_vva_64f_4x1_L(const double *src1, double val, const double *const *src2, int32_t src2Shift,
    double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1 * val + src2(n); 4 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSaxpy_vva_64f_4x1_LS2(const double *src1, int32_t src1ElemStride, double val, const double *const *src2,
    int32_t src2Shift, int32_t src2ElemStride, double *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = src1 * val + src2(n); 5 double, n below count; standard layout. */
VonkStatus vonkSaxpy_vva_64f_5x1(const double *src1, double val, const double *src2, int32_t src2ObjStride, double *dst,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1 * val + src2(n); 5 double, n below count; S2, strided elements. */
VonkStatus vonkSaxpy_vva_64f_5x1_S2(const double *src1, int32_t src1ElemStride, double val, const double *src2,
    int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = src1 * val + src2(n); 5 double, n below count; P, one pointer per element position. */
VonkStatus vonkSaxpy_vva_64f_5x1_P(const double *const *src1, int32_t src1Shift, double val, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1 * val + src2(n); 5 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSaxpy_vva_64f_5x1_PS2(const double *const *src1, int32_t src1Shift, double val,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1 * val + src2(n); 5 double, n below count; L, one pointer per object. */
VonkStatus vonkSaxpy_vva_64f_5x1_L(const double *src1, double val, const double *const *src2, int32_t src2Shift,
    double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1 * val + src2(n); 5 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSaxpy_vva_64f_5x1_LS2(const double *src1, int32_t src1ElemStride, double val, const double *const *src2,
    int32_t src2Shift, int32_t src2ElemStride, double *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = src1 * val + src2(n); 6 double, n below count; standard layout. */
VonkStatus vonkSaxpy_vva_64f_6x1(const double *src1, double val, const double *src2, int32_t src2ObjStride, double *dst,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1 * val + src2(n); 6 double, n below count; S2, strided elements. */
VonkStatus vonkSaxpy_vva_64f_6x1_S2(const double *src1, int32_t src1ElemStride, double val, const double *src2,
    int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = src1 * val + src2(n); 6 double, n below count; P, one pointer per element position. */
VonkStatus vonkSaxpy_vva_64f_6x1_P(const double *const *src1, int32_t src1Shift, double val, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1 * val + src2(n); 6 double, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSaxpy_vva_64f_6x1_PS2(const double *const *src1, int32_t src1Shift, double val,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1 * val + src2(n); 6 double, n below count; L, one pointer per object. */
VonkStatus vonkSaxpy_vva_64f_6x1_L(const double *src1, double val, const double *const *src2, int32_t src2Shift,
    double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1 * val + src2(n); 6 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSaxpy_vva_64f_6x1_LS2(const double *src1, int32_t src1ElemStride, double val, const double *const *src2,
    int32_t src2Shift, int32_t src2ElemStride, double *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);

/** dst(n) = src1(n) * val + src2(n); `len` float, n below count; standard layout. */
VonkStatus vonkSaxpy_vava_32f(const float *src1, int32_t src1ObjStride, float val, const float *src2,
    int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t len, uint32_t count);
/** dst(n) = src1(n) * val + src2(n); `len` float, n below count; S2, strided elements. */
VonkStatus vonkSaxpy_vava_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride, float val,
    const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t len, uint32_t count);
/** dst(n) = src1(n) * val + src2(n); `len` float, n below count; P, one pointer per element position. */
VonkStatus vonkSaxpy_vava_32f_P(const float *const *src1, int32_t src1Shift, float val, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t len, uint32_t count);
/** dst(n) = src1(n) * val + src2(n); `len` float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkSaxpy_vava_32f_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride, float val,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t len, uint32_t count);
/** dst(n) = src1(n) * val + src2(n); `len` float, n below count; L, one pointer per object. */
VonkStatus vonkSaxpy_vava_32f_L(const float *const *src1, int32_t src1Shift, float val, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t len, uint32_t count);
/** dst(n) = src1(n) * val + src2(n); `len` float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSaxpy_vava_32f_LS2(const float *const *src1, int32_t src1Shift, int32_t src1ElemStride, float val,
    const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t len, uint32_t count);
/** dst(n) = src1(n) * val + src2(n); 3 float, n below count; standard layout. */
VonkStatus vonkSaxpy_vava_32f_3x1(const float *src1, int32_t src1ObjStride, float val, const float *src2,
    int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) * val + src2(n); 3 float, n below count; S2, strided elements. */
VonkStatus vonkSaxpy_vava_32f_3x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride, float val,
    const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) * val + src2(n); 3 float, n below count; P, one pointer per element position. */
VonkStatus vonkSaxpy_vava_32f_3x1_P(const float *const *src1, int32_t src1Shift, float val, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) * val + src2(n); 3 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSaxpy_vava_32f_3x1_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride, float val,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) * val + src2(n); 3 float, n below count; L, one pointer per object. */
VonkStatus vonkSaxpy_vava_32f_3x1_L(const float *const *src1, int32_t src1Shift, float val, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) * val + src2(n); 3 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSaxpy_vava_32f_3x1_LS2(const float *const *src1, int32_t src1Shift, int32_t src1ElemStride, float val,
    const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) * val + src2(n); 4 float, n below count; standard layout. Exception: saxpy-third-stride. */
VonkStatus vonkSaxpy_vava_32f_4x1(const float *src1, int32_t src1ObjStride, float val, const float *src2,
    int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) * val + src2(n); 4 float, n below count; S2, strided elements. */
VonkStatus vonkSaxpy_vava_32f_4x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride, float val,
    const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) * val + src2(n); 4 float, n below count; P, one pointer per element position. */
VonkStatus vonkSaxpy_vava_32f_4x1_P(const float *const *src1, int32_t src1Shift, float val, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) * val + src2(n); 4 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSaxpy_vava_32f_4x1_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride, float val,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) * val + src2(n); 4 float, n below count; L, one pointer per object. */
VonkStatus vonkSaxpy_vava_32f_4x1_L(const float *const *src1, int32_t src1Shift, float val, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) * val + src2(n); 4 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSaxpy_vava_32f_4x1_LS2(const float *const *src1, int32_t src1Shift, int32_t src1ElemStride, float val,
    const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) * val + src2(n); 5 float, n below count; standard layout. */
VonkStatus vonkSaxpy_vava_32f_5x1(const float *src1, int32_t src1ObjStride, float val, const float *src2,
    int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) * val + src2(n); 5 float, n below count; S2, strided elements. */
VonkStatus vonkSaxpy_vava_32f_5x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride, float val,
    const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) * val + src2(n); 5 float, n below count; P, one pointer per element position. */
VonkStatus vonkSaxpy_vava_32f_5x1_P(const float *const *src1, int32_t src1Shift, float val, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) * val + src2(n); 5 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSaxpy_vava_32f_5x1_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride, float val,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) * val + src2(n); 5 float, n below count; L, one pointer per object. */
VonkStatus vonkSaxpy_vava_32f_5x1_L(const float *const *src1, int32_t src1Shift, float val, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) * val + src2(n); 5 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSaxpy_vava_32f_5x1_LS2(const float *const *src1, int32_t src1Shift, int32_t src1ElemStride, float val,
    const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) * val + src2(n); 6 float, n below count; standard layout. Exception: saxpy-third-stride. */
VonkStatus vonkSaxpy_vava_32f_6x1(const float *src1, int32_t src1ObjStride, float val, const float *src2,
    int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) * val + src2(n); 6 float, n below count; S2, strided elements. */
VonkStatus vonkSaxpy_vava_32f_6x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride, float val,
    const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) * val + src2(n); 6 float, n below count; P, one pointer per element position. */
VonkStatus vonkSaxpy_vava_32f_6x1_P(const float *const *src1, int32_t src1Shift, float val, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) * val + src2(n); 6 float, n below count; PS2, one pointer per element position, strided objects. */
VonkStatus vonkSaxpy_vava_32f_6x1_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride, float val,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) * val + src2(n); 6 float, n below count; L, one pointer per object. */
VonkStatus vonkSaxpy_vava_32f_6x1_L(const float *const *src1, int32_t src1Shift, float val, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) * val + src2(n); 6 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSaxpy_vava_32f_6x1_LS2(const float *const *src1, int32_t src1Shift, int32_t src1ElemStride, float val,
    const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);

/** dst(n) = src1(n) * val + src2(n); `len` double, n below count; standard layout. */
VonkStatus vonkSaxpy_vava_64f(const double *src1, int32_t src1ObjStride, double val, const double *src2,
    int32_t src2ObjStride, double *dst, int32_t dstObjStride, uint32_t len, uint32_t count);
/** dst(n) = src1(n) * val + src2(n); `len` double, n below count; S2, strided elements. */
VonkStatus vonkSaxpy_vava_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride, double val,
    const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t len, uint32_t count);
/** dst(n) = src1(n) * val + src2(n); `len` double, n below count; P, one pointer per element position. */
VonkStatus vonkSaxpy_vava_64f_P(const double *const *src1, int32_t src1Shift, double val, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t len, uint32_t count);
/** dst(n) = src1(n) * val + src2(n); `len` double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkSaxpy_vava_64f_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride, double val,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t len, uint32_t count);
/** dst(n) = src1(n) * val + src2(n); `len` double, n below count; L, one pointer per object. */
VonkStatus vonkSaxpy_vava_64f_L(const double *const *src1, int32_t src1Shift, double val, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t len, uint32_t count);
/** dst(n) = src1(n) * val + src2(n); `len` double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSaxpy_vava_64f_LS2(const double *const *src1, int32_t src1Shift, int32_t src1ElemStride, double val,
    const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t len, uint32_t count);
/** dst(n) = src1(n) * val + src2(n); 3 double, n below count; standard layout. */
VonkStatus vonkSaxpy_vava_64f_3x1(const double *src1, int32_t src1ObjStride, double val, const double *src2,
    int32_t src2ObjStride, double *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) * val + src2(n); 3 double, n below count; S2, strided elements. */
VonkStatus vonkSaxpy_vava_64f_3x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride, double val,
    const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) * val + src2(n); 3 double, n below count; P, one pointer per element position. */
VonkStatus vonkSaxpy_vava_64f_3x1_P(const double *const *src1, int32_t src1Shift, double val, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) * val + src2(n); 3 double, n below count; PS2, one pointer per element position, strided objects.
 * */
VonkStatus vonkSaxpy_vava_64f_3x1_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride, double val,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) * val + src2(n); 3 double, n below count; L, one pointer per object. */
VonkStatus vonkSaxpy_vava_64f_3x1_L(const double *const *src1, int32_t src1Shift, double val, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) * val + src2(n); 3 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSaxpy_vava_64f_3x1_LS2(const double *const *src1, int32_t src1Shift, int32_t src1ElemStride, double val,
    const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) * val + src2(n); 4 double, n below count; standard layout. */
VonkStatus vonkSaxpy_vava_64f_4x1(const double *src1, int32_t src1ObjStride, double val, const double *src2,
    int32_t src2ObjStride, double *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) * val + src2(n); 4 double, n below count; S2, strided elements. */
VonkStatus vonkSaxpy_vava_64f_4x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride, double val,
    const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) * val + src2(n); 4 double, n below count; P, one pointer per element position. */
VonkStatus vonkSaxpy_vava_64f_4x1_P(const double *const *src1, int32_t src1Shift, double val, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) * val + src2(n); 4 double, n below count; PS2, one pointer per element position, strided objects.
 * */
VonkStatus vonkSaxpy_vava_64f_4x1_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride, double val,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) * val + src2(n); 4 double, n below count; L, one pointer per object. */
VonkStatus vonkSaxpy_vava_64f_4x1_L(const double *const *src1, int32_t src1Shift, double val, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) * val + src2(n); 4 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSaxpy_vava_64f_4x1_LS2(const double *const *src1, int32_t src1Shift, int32_t src1ElemStride, double val,
    const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) * val + src2(n); 5 double, n below count; standard layout. */
VonkStatus vonkSaxpy_vava_64f_5x1(const double *src1, int32_t src1ObjStride, double val, const double *src2,
    int32_t src2ObjStride, double *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) * val + src2(n); 5 double, n below count; S2, strided elements. */
VonkStatus vonkSaxpy_vava_64f_5x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride, double val,
    const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) * val + src2(n); 5 double, n below count; P, one pointer per element position. */
VonkStatus vonkSaxpy_vava_64f_5x1_P(const double *const *src1, int32_t src1Shift, double val, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) * val + src2(n); 5 double, n below count; PS2, one pointer per element position, strided objects.
 * */
VonkStatus vonkSaxpy_vava_64f_5x1_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride, double val,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) * val + src2(n); 5 double, n below count; L, one pointer per object. */
VonkStatus vonkSaxpy_vava_64f_5x1_L(const double *const *src1, int32_t src1Shift, double val, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) * val + src2(n); 5 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSaxpy_vava_64f_5x1_LS2(const double *const *src1, int32_t src1Shift, int32_t src1ElemStride, double val,
    const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) * val + src2(n); 6 double, n below count; standard layout. */
VonkStatus vonkSaxpy_vava_64f_6x1(const double *src1, int32_t src1ObjStride, double val, const double *src2,
    int32_t src2ObjStride, double *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) * val + src2(n); 6 double, n below count; S2, strided elements. */
VonkStatus vonkSaxpy_vava_64f_6x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride, double val,
    const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) * val + src2(n); 6 double, n below count; P, one pointer per element position. */
VonkStatus vonkSaxpy_vava_64f_6x1_P(const double *const *src1, int32_t src1Shift, double val, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) * val + src2(n); 6 double, n below count; PS2, one pointer per element position, strided objects.
 * */
VonkStatus vonkSaxpy_vava_64f_6x1_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride, double val,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) * val + src2(n); 6 double, n below count; L, one pointer per object. */
VonkStatus vonkSaxpy_vava_64f_6x1_L(const double *const *src1, int32_t src1Shift, double val, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) * val + src2(n); 6 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkSaxpy_vava_64f_6x1_LS2(const double *const *src1, int32_t src1Shift, int32_t src1ElemStride, double val,
    const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);

/* ---- Linear combination ---------------------------------------------------------------------------------------------
 *
 * dst(n, j) = src1(n, j) * val1 + src2(n, j) * val2
 *
 * for j below `len` and each object n. In `32f` both products and the sum are rounded; in `64f` they stay in 80 bits,
 * and the result is rounded. There is no shortcut for a constant of 0: with an infinity it gives a NaN. Groups: `vv`
 * two vectors, `vav` an array and a vector, `vava` two arrays. A single vector serves all objects. The arithmetic of an
 * element depends neither on the length nor on the alignment of operands.
 *
 * Status: vonkErrNullPtr if `src1`, `src2` or `dst` is null; vonkErrSize if `len` is 0; vonkErrNullPtr if a table or
 * list entry is null: in single forms in `P` entry by entry just before each element, earlier elements being final; in
 * `P` and `PS2` of arrays all entries of all tables before anything else, even at `count` 0; in `L` and `LS2` when the
 * object's turn comes, earlier objects being complete. `count` 0 then gives vonkOk with nothing written.
 *
 * Overlap:
 * Overlap is not checked. `dst` may be any source (in place): each element is read before it is written. With any other
 * overlap elements are read and written one by one in ascending order, so that a source element which `dst` has
 * overwritten by then is read as overwritten.
 *
 * Exceptions:
 * - lcomb-single-loaded-once (overlap): vonkLComb_vav_32f_?x1{,_L}
 *   The single vector is loaded once, before all objects; a `dst` that overlaps it changes nothing for later objects.
 *   All other forms load it again for each object.
 * - lcomb-whole-object (overlap): vonkLComb_{vv,vava}_32f_?x1 vonkLComb_vava_32f_?x1_L
 *     vonkLComb_vav_32f_{4x1,5x1,6x1}{,_L}
 *   An object is loaded whole before it is stored. Of 5 and 6 elements, what a partial overlap shows is not promised.
 */

/** dst = src1 * val1 + src2 * val2; `len` float; standard layout. */
VonkStatus vonkLComb_vv_32f(const float *src1, float val1, const float *src2, float val2, float *dst, uint32_t len);
/** dst = src1 * val1 + src2 * val2; `len` float; S2, strided elements. */
VonkStatus vonkLComb_vv_32f_S2(const float *src1, int32_t src1ElemStride, float val1, const float *src2,
    int32_t src2ElemStride, float val2, float *dst, int32_t dstElemStride, uint32_t len);
/** dst = src1 * val1 + src2 * val2; `len` float; P, one pointer per element position. */
VonkStatus vonkLComb_vv_32f_P(const float *const *src1, int32_t src1Shift, float val1, const float *const *src2,
    int32_t src2Shift, float val2, float *const *dst, int32_t dstShift, uint32_t len);
/** dst = src1 * val1 + src2 * val2; 3 float; standard layout. Exception: lcomb-whole-object. */
VonkStatus vonkLComb_vv_32f_3x1(const float *src1, float val1, const float *src2, float val2, float *dst);
/** dst = src1 * val1 + src2 * val2; 3 float; S2, strided elements. */
VonkStatus vonkLComb_vv_32f_3x1_S2(const float *src1, int32_t src1ElemStride, float val1, const float *src2,
    int32_t src2ElemStride, float val2, float *dst, int32_t dstElemStride);
/** dst = src1 * val1 + src2 * val2; 3 float; P, one pointer per element position. */
VonkStatus vonkLComb_vv_32f_3x1_P(const float *const *src1, int32_t src1Shift, float val1, const float *const *src2,
    int32_t src2Shift, float val2, float *const *dst, int32_t dstShift);
/** dst = src1 * val1 + src2 * val2; 4 float; standard layout. Exception: lcomb-whole-object. */
VonkStatus vonkLComb_vv_32f_4x1(const float *src1, float val1, const float *src2, float val2, float *dst);
/** dst = src1 * val1 + src2 * val2; 4 float; S2, strided elements. */
VonkStatus vonkLComb_vv_32f_4x1_S2(const float *src1, int32_t src1ElemStride, float val1, const float *src2,
    int32_t src2ElemStride, float val2, float *dst, int32_t dstElemStride);
/** dst = src1 * val1 + src2 * val2; 4 float; P, one pointer per element position. */
VonkStatus vonkLComb_vv_32f_4x1_P(const float *const *src1, int32_t src1Shift, float val1, const float *const *src2,
    int32_t src2Shift, float val2, float *const *dst, int32_t dstShift);
/** dst = src1 * val1 + src2 * val2; 5 float; standard layout. Exception: lcomb-whole-object. */
VonkStatus vonkLComb_vv_32f_5x1(const float *src1, float val1, const float *src2, float val2, float *dst);
/** dst = src1 * val1 + src2 * val2; 5 float; S2, strided elements. */
VonkStatus vonkLComb_vv_32f_5x1_S2(const float *src1, int32_t src1ElemStride, float val1, const float *src2,
    int32_t src2ElemStride, float val2, float *dst, int32_t dstElemStride);
/** dst = src1 * val1 + src2 * val2; 5 float; P, one pointer per element position. */
VonkStatus vonkLComb_vv_32f_5x1_P(const float *const *src1, int32_t src1Shift, float val1, const float *const *src2,
    int32_t src2Shift, float val2, float *const *dst, int32_t dstShift);
/** dst = src1 * val1 + src2 * val2; 6 float; standard layout. Exception: lcomb-whole-object. */
VonkStatus vonkLComb_vv_32f_6x1(const float *src1, float val1, const float *src2, float val2, float *dst);
/** dst = src1 * val1 + src2 * val2; 6 float; S2, strided elements. */
VonkStatus vonkLComb_vv_32f_6x1_S2(const float *src1, int32_t src1ElemStride, float val1, const float *src2,
    int32_t src2ElemStride, float val2, float *dst, int32_t dstElemStride);
/** dst = src1 * val1 + src2 * val2; 6 float; P, one pointer per element position. */
VonkStatus vonkLComb_vv_32f_6x1_P(const float *const *src1, int32_t src1Shift, float val1, const float *const *src2,
    int32_t src2Shift, float val2, float *const *dst, int32_t dstShift);

/** dst = src1 * val1 + src2 * val2; `len` double; standard layout. */
VonkStatus vonkLComb_vv_64f(const double *src1, double val1, const double *src2, double val2, double *dst,
    uint32_t len);
/** dst = src1 * val1 + src2 * val2; `len` double; S2, strided elements. */
VonkStatus vonkLComb_vv_64f_S2(const double *src1, int32_t src1ElemStride, double val1, const double *src2,
    int32_t src2ElemStride, double val2, double *dst, int32_t dstElemStride, uint32_t len);
/** dst = src1 * val1 + src2 * val2; `len` double; P, one pointer per element position. */
VonkStatus vonkLComb_vv_64f_P(const double *const *src1, int32_t src1Shift, double val1, const double *const *src2,
    int32_t src2Shift, double val2, double *const *dst, int32_t dstShift, uint32_t len);
/** dst = src1 * val1 + src2 * val2; 3 double; standard layout. */
VonkStatus vonkLComb_vv_64f_3x1(const double *src1, double val1, const double *src2, double val2, double *dst);
/** dst = src1 * val1 + src2 * val2; 3 double; S2, strided elements. */
VonkStatus vonkLComb_vv_64f_3x1_S2(const double *src1, int32_t src1ElemStride, double val1, const double *src2,
    int32_t src2ElemStride, double val2, double *dst, int32_t dstElemStride);
/** dst = src1 * val1 + src2 * val2; 3 double; P, one pointer per element position. */
VonkStatus vonkLComb_vv_64f_3x1_P(const double *const *src1, int32_t src1Shift, double val1, const double *const *src2,
    int32_t src2Shift, double val2, double *const *dst, int32_t dstShift);
/** dst = src1 * val1 + src2 * val2; 4 double; standard layout. */
VonkStatus vonkLComb_vv_64f_4x1(const double *src1, double val1, const double *src2, double val2, double *dst);
/** dst = src1 * val1 + src2 * val2; 4 double; S2, strided elements. */
VonkStatus vonkLComb_vv_64f_4x1_S2(const double *src1, int32_t src1ElemStride, double val1, const double *src2,
    int32_t src2ElemStride, double val2, double *dst, int32_t dstElemStride);
/** dst = src1 * val1 + src2 * val2; 4 double; P, one pointer per element position. */
VonkStatus vonkLComb_vv_64f_4x1_P(const double *const *src1, int32_t src1Shift, double val1, const double *const *src2,
    int32_t src2Shift, double val2, double *const *dst, int32_t dstShift);
/** dst = src1 * val1 + src2 * val2; 5 double; standard layout. */
VonkStatus vonkLComb_vv_64f_5x1(const double *src1, double val1, const double *src2, double val2, double *dst);
/** dst = src1 * val1 + src2 * val2; 5 double; S2, strided elements. */
VonkStatus vonkLComb_vv_64f_5x1_S2(const double *src1, int32_t src1ElemStride, double val1, const double *src2,
    int32_t src2ElemStride, double val2, double *dst, int32_t dstElemStride);
/** dst = src1 * val1 + src2 * val2; 5 double; P, one pointer per element position. */
VonkStatus vonkLComb_vv_64f_5x1_P(const double *const *src1, int32_t src1Shift, double val1, const double *const *src2,
    int32_t src2Shift, double val2, double *const *dst, int32_t dstShift);
/** dst = src1 * val1 + src2 * val2; 6 double; standard layout. */
VonkStatus vonkLComb_vv_64f_6x1(const double *src1, double val1, const double *src2, double val2, double *dst);
/** dst = src1 * val1 + src2 * val2; 6 double; S2, strided elements. */
VonkStatus vonkLComb_vv_64f_6x1_S2(const double *src1, int32_t src1ElemStride, double val1, const double *src2,
    int32_t src2ElemStride, double val2, double *dst, int32_t dstElemStride);
/** dst = src1 * val1 + src2 * val2; 6 double; P, one pointer per element position. */
VonkStatus vonkLComb_vv_64f_6x1_P(const double *const *src1, int32_t src1Shift, double val1, const double *const *src2,
    int32_t src2Shift, double val2, double *const *dst, int32_t dstShift);

/** dst(n) = src1(n) * val1 + src2 * val2; `len` float, n below count; standard layout. */
VonkStatus vonkLComb_vav_32f(const float *src1, int32_t src1ObjStride, float val1, const float *src2, float val2,
    float *dst, int32_t dstObjStride, uint32_t len, uint32_t count);
/** dst(n) = src1(n) * val1 + src2 * val2; `len` float, n below count; S2, strided elements. */
VonkStatus vonkLComb_vav_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride, float val1,
    const float *src2, int32_t src2ElemStride, float val2, float *dst, int32_t dstObjStride, int32_t dstElemStride,
    uint32_t len, uint32_t count);
/** dst(n) = src1(n) * val1 + src2 * val2; `len` float, n below count; P, one pointer per element position. */
VonkStatus vonkLComb_vav_32f_P(const float *const *src1, int32_t src1Shift, float val1, const float *const *src2,
    int32_t src2Shift, float val2, float *const *dst, int32_t dstShift, uint32_t len, uint32_t count);
/** dst(n) = src1(n) * val1 + src2 * val2; `len` float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkLComb_vav_32f_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride, float val1,
    const float *const *src2, int32_t src2Shift, float val2, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t len, uint32_t count);
/** dst(n) = src1(n) * val1 + src2 * val2; `len` float, n below count; L, one pointer per object. */
VonkStatus vonkLComb_vav_32f_L(const float *const *src1, int32_t src1Shift, float val1, const float *src2, float val2,
    float *const *dst, int32_t dstShift, uint32_t len, uint32_t count);
/** dst(n) = src1(n) * val1 + src2 * val2; `len` float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkLComb_vav_32f_LS2(const float *const *src1, int32_t src1Shift, int32_t src1ElemStride, float val1,
    const float *src2, int32_t src2ElemStride, float val2, float *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t len, uint32_t count);
/** dst(n) = src1(n) * val1 + src2 * val2; 3 float, n below count; standard layout. Exception: lcomb-single-loaded-once.
 * */
VonkStatus vonkLComb_vav_32f_3x1(const float *src1, int32_t src1ObjStride, float val1, const float *src2, float val2,
    float *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) * val1 + src2 * val2; 3 float, n below count; S2, strided elements. */
VonkStatus vonkLComb_vav_32f_3x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride, float val1,
    const float *src2, int32_t src2ElemStride, float val2, float *dst, int32_t dstObjStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = src1(n) * val1 + src2 * val2; 3 float, n below count; P, one pointer per element position. */
VonkStatus vonkLComb_vav_32f_3x1_P(const float *const *src1, int32_t src1Shift, float val1, const float *const *src2,
    int32_t src2Shift, float val2, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) * val1 + src2 * val2; 3 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkLComb_vav_32f_3x1_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride, float val1,
    const float *const *src2, int32_t src2Shift, float val2, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n) * val1 + src2 * val2; 3 float, n below count; L, one pointer per object. Exception:
 * lcomb-single-loaded-once. */
VonkStatus vonkLComb_vav_32f_3x1_L(const float *const *src1, int32_t src1Shift, float val1, const float *src2,
    float val2, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) * val1 + src2 * val2; 3 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkLComb_vav_32f_3x1_LS2(const float *const *src1, int32_t src1Shift, int32_t src1ElemStride, float val1,
    const float *src2, int32_t src2ElemStride, float val2, float *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = src1(n) * val1 + src2 * val2; 4 float, n below count; standard layout. Exceptions:
 * lcomb-single-loaded-once, lcomb-whole-object. */
VonkStatus vonkLComb_vav_32f_4x1(const float *src1, int32_t src1ObjStride, float val1, const float *src2, float val2,
    float *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) * val1 + src2 * val2; 4 float, n below count; S2, strided elements. */
VonkStatus vonkLComb_vav_32f_4x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride, float val1,
    const float *src2, int32_t src2ElemStride, float val2, float *dst, int32_t dstObjStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = src1(n) * val1 + src2 * val2; 4 float, n below count; P, one pointer per element position. */
VonkStatus vonkLComb_vav_32f_4x1_P(const float *const *src1, int32_t src1Shift, float val1, const float *const *src2,
    int32_t src2Shift, float val2, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) * val1 + src2 * val2; 4 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkLComb_vav_32f_4x1_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride, float val1,
    const float *const *src2, int32_t src2Shift, float val2, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n) * val1 + src2 * val2; 4 float, n below count; L, one pointer per object. Exceptions:
 * lcomb-single-loaded-once, lcomb-whole-object. */
VonkStatus vonkLComb_vav_32f_4x1_L(const float *const *src1, int32_t src1Shift, float val1, const float *src2,
    float val2, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) * val1 + src2 * val2; 4 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkLComb_vav_32f_4x1_LS2(const float *const *src1, int32_t src1Shift, int32_t src1ElemStride, float val1,
    const float *src2, int32_t src2ElemStride, float val2, float *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = src1(n) * val1 + src2 * val2; 5 float, n below count; standard layout. Exceptions:
 * lcomb-single-loaded-once, lcomb-whole-object. */
VonkStatus vonkLComb_vav_32f_5x1(const float *src1, int32_t src1ObjStride, float val1, const float *src2, float val2,
    float *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) * val1 + src2 * val2; 5 float, n below count; S2, strided elements. */
VonkStatus vonkLComb_vav_32f_5x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride, float val1,
    const float *src2, int32_t src2ElemStride, float val2, float *dst, int32_t dstObjStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = src1(n) * val1 + src2 * val2; 5 float, n below count; P, one pointer per element position. */
VonkStatus vonkLComb_vav_32f_5x1_P(const float *const *src1, int32_t src1Shift, float val1, const float *const *src2,
    int32_t src2Shift, float val2, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) * val1 + src2 * val2; 5 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkLComb_vav_32f_5x1_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride, float val1,
    const float *const *src2, int32_t src2Shift, float val2, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n) * val1 + src2 * val2; 5 float, n below count; L, one pointer per object. Exceptions:
 * lcomb-single-loaded-once, lcomb-whole-object. */
VonkStatus vonkLComb_vav_32f_5x1_L(const float *const *src1, int32_t src1Shift, float val1, const float *src2,
    float val2, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) * val1 + src2 * val2; 5 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkLComb_vav_32f_5x1_LS2(const float *const *src1, int32_t src1Shift, int32_t src1ElemStride, float val1,
    const float *src2, int32_t src2ElemStride, float val2, float *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = src1(n) * val1 + src2 * val2; 6 float, n below count; standard layout. Exceptions:
 * lcomb-single-loaded-once, lcomb-whole-object. */
VonkStatus vonkLComb_vav_32f_6x1(const float *src1, int32_t src1ObjStride, float val1, const float *src2, float val2,
    float *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) * val1 + src2 * val2; 6 float, n below count; S2, strided elements. */
VonkStatus vonkLComb_vav_32f_6x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride, float val1,
    const float *src2, int32_t src2ElemStride, float val2, float *dst, int32_t dstObjStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = src1(n) * val1 + src2 * val2; 6 float, n below count; P, one pointer per element position. */
VonkStatus vonkLComb_vav_32f_6x1_P(const float *const *src1, int32_t src1Shift, float val1, const float *const *src2,
    int32_t src2Shift, float val2, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) * val1 + src2 * val2; 6 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkLComb_vav_32f_6x1_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride, float val1,
    const float *const *src2, int32_t src2Shift, float val2, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = src1(n) * val1 + src2 * val2; 6 float, n below count; L, one pointer per object. Exceptions:
 * lcomb-single-loaded-once, lcomb-whole-object. */
VonkStatus vonkLComb_vav_32f_6x1_L(const float *const *src1, int32_t src1Shift, float val1, const float *src2,
    float val2, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) * val1 + src2 * val2; 6 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkLComb_vav_32f_6x1_LS2(const float *const *src1, int32_t src1Shift, int32_t src1ElemStride, float val1,
    const float *src2, int32_t src2ElemStride, float val2, float *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);

/** dst(n) = src1(n) * val1 + src2 * val2; `len` double, n below count; standard layout. */
VonkStatus vonkLComb_vav_64f(const double *src1, int32_t src1ObjStride, double val1, const double *src2, double val2,
    double *dst, int32_t dstObjStride, uint32_t len, uint32_t count);
/** dst(n) = src1(n) * val1 + src2 * val2; `len` double, n below count; S2, strided elements. */
VonkStatus vonkLComb_vav_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride, double val1,
    const double *src2, int32_t src2ElemStride, double val2, double *dst, int32_t dstObjStride, int32_t dstElemStride,
    uint32_t len, uint32_t count);
/** dst(n) = src1(n) * val1 + src2 * val2; `len` double, n below count; P, one pointer per element position. */
VonkStatus vonkLComb_vav_64f_P(const double *const *src1, int32_t src1Shift, double val1, const double *const *src2,
    int32_t src2Shift, double val2, double *const *dst, int32_t dstShift, uint32_t len, uint32_t count);
/** dst(n) = src1(n) * val1 + src2 * val2; `len` double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkLComb_vav_64f_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride, double val1,
    const double *const *src2, int32_t src2Shift, double val2, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t len, uint32_t count);
/** dst(n) = src1(n) * val1 + src2 * val2; `len` double, n below count; L, one pointer per object. */
VonkStatus vonkLComb_vav_64f_L(const double *const *src1, int32_t src1Shift, double val1, const double *src2,
    double val2, double *const *dst, int32_t dstShift, uint32_t len, uint32_t count);
/** dst(n) = src1(n) * val1 + src2 * val2; `len` double, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkLComb_vav_64f_LS2(const double *const *src1, int32_t src1Shift, int32_t src1ElemStride, double val1,
    const double *src2, int32_t src2ElemStride, double val2, double *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t len, uint32_t count);
/** dst(n) = src1(n) * val1 + src2 * val2; 3 double, n below count; standard layout. */
VonkStatus vonkLComb_vav_64f_3x1(const double *src1, int32_t src1ObjStride, double val1, const double *src2,
    double val2, double *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) * val1 + src2 * val2; 3 double, n below count; S2, strided elements. */
VonkStatus vonkLComb_vav_64f_3x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride, double val1,
    const double *src2, int32_t src2ElemStride, double val2, double *dst, int32_t dstObjStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = src1(n) * val1 + src2 * val2; 3 double, n below count; P, one pointer per element position. */
VonkStatus vonkLComb_vav_64f_3x1_P(const double *const *src1, int32_t src1Shift, double val1, const double *const *src2,
    int32_t src2Shift, double val2, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) * val1 + src2 * val2; 3 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkLComb_vav_64f_3x1_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride, double val1,
    const double *const *src2, int32_t src2Shift, double val2, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) * val1 + src2 * val2; 3 double, n below count; L, one pointer per object. */
VonkStatus vonkLComb_vav_64f_3x1_L(const double *const *src1, int32_t src1Shift, double val1, const double *src2,
    double val2, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) * val1 + src2 * val2; 3 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkLComb_vav_64f_3x1_LS2(const double *const *src1, int32_t src1Shift, int32_t src1ElemStride, double val1,
    const double *src2, int32_t src2ElemStride, double val2, double *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) * val1 + src2 * val2; 4 double, n below count; standard layout. */
VonkStatus vonkLComb_vav_64f_4x1(const double *src1, int32_t src1ObjStride, double val1, const double *src2,
    double val2, double *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) * val1 + src2 * val2; 4 double, n below count; S2, strided elements. */
VonkStatus vonkLComb_vav_64f_4x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride, double val1,
    const double *src2, int32_t src2ElemStride, double val2, double *dst, int32_t dstObjStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = src1(n) * val1 + src2 * val2; 4 double, n below count; P, one pointer per element position. */
VonkStatus vonkLComb_vav_64f_4x1_P(const double *const *src1, int32_t src1Shift, double val1, const double *const *src2,
    int32_t src2Shift, double val2, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) * val1 + src2 * val2; 4 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkLComb_vav_64f_4x1_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride, double val1,
    const double *const *src2, int32_t src2Shift, double val2, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) * val1 + src2 * val2; 4 double, n below count; L, one pointer per object. */
VonkStatus vonkLComb_vav_64f_4x1_L(const double *const *src1, int32_t src1Shift, double val1, const double *src2,
    double val2, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) * val1 + src2 * val2; 4 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkLComb_vav_64f_4x1_LS2(const double *const *src1, int32_t src1Shift, int32_t src1ElemStride, double val1,
    const double *src2, int32_t src2ElemStride, double val2, double *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) * val1 + src2 * val2; 5 double, n below count; standard layout. */
VonkStatus vonkLComb_vav_64f_5x1(const double *src1, int32_t src1ObjStride, double val1, const double *src2,
    double val2, double *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) * val1 + src2 * val2; 5 double, n below count; S2, strided elements. */
VonkStatus vonkLComb_vav_64f_5x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride, double val1,
    const double *src2, int32_t src2ElemStride, double val2, double *dst, int32_t dstObjStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = src1(n) * val1 + src2 * val2; 5 double, n below count; P, one pointer per element position. */
VonkStatus vonkLComb_vav_64f_5x1_P(const double *const *src1, int32_t src1Shift, double val1, const double *const *src2,
    int32_t src2Shift, double val2, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) * val1 + src2 * val2; 5 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkLComb_vav_64f_5x1_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride, double val1,
    const double *const *src2, int32_t src2Shift, double val2, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) * val1 + src2 * val2; 5 double, n below count; L, one pointer per object. */
VonkStatus vonkLComb_vav_64f_5x1_L(const double *const *src1, int32_t src1Shift, double val1, const double *src2,
    double val2, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) * val1 + src2 * val2; 5 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkLComb_vav_64f_5x1_LS2(const double *const *src1, int32_t src1Shift, int32_t src1ElemStride, double val1,
    const double *src2, int32_t src2ElemStride, double val2, double *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) * val1 + src2 * val2; 6 double, n below count; standard layout. */
VonkStatus vonkLComb_vav_64f_6x1(const double *src1, int32_t src1ObjStride, double val1, const double *src2,
    double val2, double *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) * val1 + src2 * val2; 6 double, n below count; S2, strided elements. */
VonkStatus vonkLComb_vav_64f_6x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride, double val1,
    const double *src2, int32_t src2ElemStride, double val2, double *dst, int32_t dstObjStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = src1(n) * val1 + src2 * val2; 6 double, n below count; P, one pointer per element position. */
VonkStatus vonkLComb_vav_64f_6x1_P(const double *const *src1, int32_t src1Shift, double val1, const double *const *src2,
    int32_t src2Shift, double val2, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) * val1 + src2 * val2; 6 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkLComb_vav_64f_6x1_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride, double val1,
    const double *const *src2, int32_t src2Shift, double val2, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) * val1 + src2 * val2; 6 double, n below count; L, one pointer per object. */
VonkStatus vonkLComb_vav_64f_6x1_L(const double *const *src1, int32_t src1Shift, double val1, const double *src2,
    double val2, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) * val1 + src2 * val2; 6 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkLComb_vav_64f_6x1_LS2(const double *const *src1, int32_t src1Shift, int32_t src1ElemStride, double val1,
    const double *src2, int32_t src2ElemStride, double val2, double *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);

/** dst(n) = src1(n) * val1 + src2(n) * val2; `len` float, n below count; standard layout. */
VonkStatus vonkLComb_vava_32f(const float *src1, int32_t src1ObjStride, float val1, const float *src2,
    int32_t src2ObjStride, float val2, float *dst, int32_t dstObjStride, uint32_t len, uint32_t count);
/** dst(n) = src1(n) * val1 + src2(n) * val2; `len` float, n below count; S2, strided elements. */
VonkStatus vonkLComb_vava_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride, float val1,
    const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float val2, float *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t len, uint32_t count);
/** dst(n) = src1(n) * val1 + src2(n) * val2; `len` float, n below count; P, one pointer per element position. */
VonkStatus vonkLComb_vava_32f_P(const float *const *src1, int32_t src1Shift, float val1, const float *const *src2,
    int32_t src2Shift, float val2, float *const *dst, int32_t dstShift, uint32_t len, uint32_t count);
/** dst(n) = src1(n) * val1 + src2(n) * val2; `len` float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkLComb_vava_32f_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride, float val1,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float val2, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t len, uint32_t count);
/** dst(n) = src1(n) * val1 + src2(n) * val2; `len` float, n below count; L, one pointer per object. */
VonkStatus vonkLComb_vava_32f_L(const float *const *src1, int32_t src1Shift, float val1, const float *const *src2,
    int32_t src2Shift, float val2, float *const *dst, int32_t dstShift, uint32_t len, uint32_t count);
/** dst(n) = src1(n) * val1 + src2(n) * val2; `len` float, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkLComb_vava_32f_LS2(const float *const *src1, int32_t src1Shift, int32_t src1ElemStride, float val1,
    const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float val2, float *const *dst,
    int32_t dstShift, int32_t dstElemStride, uint32_t len, uint32_t count);
/** dst(n) = src1(n) * val1 + src2(n) * val2; 3 float, n below count; standard layout. Exception: lcomb-whole-object. */
VonkStatus vonkLComb_vava_32f_3x1(const float *src1, int32_t src1ObjStride, float val1, const float *src2,
    int32_t src2ObjStride, float val2, float *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) * val1 + src2(n) * val2; 3 float, n below count; S2, strided elements. */
VonkStatus vonkLComb_vava_32f_3x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride, float val1,
    const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float val2, float *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) * val1 + src2(n) * val2; 3 float, n below count; P, one pointer per element position. */
VonkStatus vonkLComb_vava_32f_3x1_P(const float *const *src1, int32_t src1Shift, float val1, const float *const *src2,
    int32_t src2Shift, float val2, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) * val1 + src2(n) * val2; 3 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkLComb_vava_32f_3x1_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride, float val1,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float val2, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) * val1 + src2(n) * val2; 3 float, n below count; L, one pointer per object. Exception:
 * lcomb-whole-object. */
VonkStatus vonkLComb_vava_32f_3x1_L(const float *const *src1, int32_t src1Shift, float val1, const float *const *src2,
    int32_t src2Shift, float val2, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) * val1 + src2(n) * val2; 3 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkLComb_vava_32f_3x1_LS2(const float *const *src1, int32_t src1Shift, int32_t src1ElemStride, float val1,
    const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float val2, float *const *dst,
    int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) * val1 + src2(n) * val2; 4 float, n below count; standard layout. Exception: lcomb-whole-object. */
VonkStatus vonkLComb_vava_32f_4x1(const float *src1, int32_t src1ObjStride, float val1, const float *src2,
    int32_t src2ObjStride, float val2, float *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) * val1 + src2(n) * val2; 4 float, n below count; S2, strided elements. */
VonkStatus vonkLComb_vava_32f_4x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride, float val1,
    const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float val2, float *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) * val1 + src2(n) * val2; 4 float, n below count; P, one pointer per element position. */
VonkStatus vonkLComb_vava_32f_4x1_P(const float *const *src1, int32_t src1Shift, float val1, const float *const *src2,
    int32_t src2Shift, float val2, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) * val1 + src2(n) * val2; 4 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkLComb_vava_32f_4x1_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride, float val1,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float val2, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) * val1 + src2(n) * val2; 4 float, n below count; L, one pointer per object. Exception:
 * lcomb-whole-object. */
VonkStatus vonkLComb_vava_32f_4x1_L(const float *const *src1, int32_t src1Shift, float val1, const float *const *src2,
    int32_t src2Shift, float val2, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) * val1 + src2(n) * val2; 4 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkLComb_vava_32f_4x1_LS2(const float *const *src1, int32_t src1Shift, int32_t src1ElemStride, float val1,
    const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float val2, float *const *dst,
    int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) * val1 + src2(n) * val2; 5 float, n below count; standard layout. Exception: lcomb-whole-object. */
VonkStatus vonkLComb_vava_32f_5x1(const float *src1, int32_t src1ObjStride, float val1, const float *src2,
    int32_t src2ObjStride, float val2, float *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) * val1 + src2(n) * val2; 5 float, n below count; S2, strided elements. */
VonkStatus vonkLComb_vava_32f_5x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride, float val1,
    const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float val2, float *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) * val1 + src2(n) * val2; 5 float, n below count; P, one pointer per element position. */
VonkStatus vonkLComb_vava_32f_5x1_P(const float *const *src1, int32_t src1Shift, float val1, const float *const *src2,
    int32_t src2Shift, float val2, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) * val1 + src2(n) * val2; 5 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkLComb_vava_32f_5x1_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride, float val1,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float val2, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) * val1 + src2(n) * val2; 5 float, n below count; L, one pointer per object. Exception:
 * lcomb-whole-object. */
VonkStatus vonkLComb_vava_32f_5x1_L(const float *const *src1, int32_t src1Shift, float val1, const float *const *src2,
    int32_t src2Shift, float val2, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) * val1 + src2(n) * val2; 5 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkLComb_vava_32f_5x1_LS2(const float *const *src1, int32_t src1Shift, int32_t src1ElemStride, float val1,
    const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float val2, float *const *dst,
    int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) * val1 + src2(n) * val2; 6 float, n below count; standard layout. Exception: lcomb-whole-object. */
VonkStatus vonkLComb_vava_32f_6x1(const float *src1, int32_t src1ObjStride, float val1, const float *src2,
    int32_t src2ObjStride, float val2, float *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) * val1 + src2(n) * val2; 6 float, n below count; S2, strided elements. */
VonkStatus vonkLComb_vava_32f_6x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride, float val1,
    const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float val2, float *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) * val1 + src2(n) * val2; 6 float, n below count; P, one pointer per element position. */
VonkStatus vonkLComb_vava_32f_6x1_P(const float *const *src1, int32_t src1Shift, float val1, const float *const *src2,
    int32_t src2Shift, float val2, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) * val1 + src2(n) * val2; 6 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkLComb_vava_32f_6x1_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride, float val1,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float val2, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) * val1 + src2(n) * val2; 6 float, n below count; L, one pointer per object. Exception:
 * lcomb-whole-object. */
VonkStatus vonkLComb_vava_32f_6x1_L(const float *const *src1, int32_t src1Shift, float val1, const float *const *src2,
    int32_t src2Shift, float val2, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) * val1 + src2(n) * val2; 6 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkLComb_vava_32f_6x1_LS2(const float *const *src1, int32_t src1Shift, int32_t src1ElemStride, float val1,
    const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float val2, float *const *dst,
    int32_t dstShift, int32_t dstElemStride, uint32_t count);

/** dst(n) = src1(n) * val1 + src2(n) * val2; `len` double, n below count; standard layout. */
VonkStatus vonkLComb_vava_64f(const double *src1, int32_t src1ObjStride, double val1, const double *src2,
    int32_t src2ObjStride, double val2, double *dst, int32_t dstObjStride, uint32_t len, uint32_t count);
/** dst(n) = src1(n) * val1 + src2(n) * val2; `len` double, n below count; S2, strided elements. */
VonkStatus vonkLComb_vava_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride, double val1,
    const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double val2, double *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t len, uint32_t count);
/** dst(n) = src1(n) * val1 + src2(n) * val2; `len` double, n below count; P, one pointer per element position. */
VonkStatus vonkLComb_vava_64f_P(const double *const *src1, int32_t src1Shift, double val1, const double *const *src2,
    int32_t src2Shift, double val2, double *const *dst, int32_t dstShift, uint32_t len, uint32_t count);
/** dst(n) = src1(n) * val1 + src2(n) * val2; `len` double, n below count; PS2, one pointer per element position,
 * strided objects. */
VonkStatus vonkLComb_vava_64f_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride, double val1,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double val2, double *const *dst,
    int32_t dstShift, int32_t dstObjStride, uint32_t len, uint32_t count);
/** dst(n) = src1(n) * val1 + src2(n) * val2; `len` double, n below count; L, one pointer per object. */
VonkStatus vonkLComb_vava_64f_L(const double *const *src1, int32_t src1Shift, double val1, const double *const *src2,
    int32_t src2Shift, double val2, double *const *dst, int32_t dstShift, uint32_t len, uint32_t count);
/** dst(n) = src1(n) * val1 + src2(n) * val2; `len` double, n below count; LS2, one pointer per object, strided
 * elements. */
VonkStatus vonkLComb_vava_64f_LS2(const double *const *src1, int32_t src1Shift, int32_t src1ElemStride, double val1,
    const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double val2, double *const *dst,
    int32_t dstShift, int32_t dstElemStride, uint32_t len, uint32_t count);
/** dst(n) = src1(n) * val1 + src2(n) * val2; 3 double, n below count; standard layout. */
VonkStatus vonkLComb_vava_64f_3x1(const double *src1, int32_t src1ObjStride, double val1, const double *src2,
    int32_t src2ObjStride, double val2, double *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) * val1 + src2(n) * val2; 3 double, n below count; S2, strided elements. */
VonkStatus vonkLComb_vava_64f_3x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride, double val1,
    const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double val2, double *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) * val1 + src2(n) * val2; 3 double, n below count; P, one pointer per element position. */
VonkStatus vonkLComb_vava_64f_3x1_P(const double *const *src1, int32_t src1Shift, double val1,
    const double *const *src2, int32_t src2Shift, double val2, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) * val1 + src2(n) * val2; 3 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkLComb_vava_64f_3x1_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride, double val1,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double val2, double *const *dst,
    int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) * val1 + src2(n) * val2; 3 double, n below count; L, one pointer per object. */
VonkStatus vonkLComb_vava_64f_3x1_L(const double *const *src1, int32_t src1Shift, double val1,
    const double *const *src2, int32_t src2Shift, double val2, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) * val1 + src2(n) * val2; 3 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkLComb_vava_64f_3x1_LS2(const double *const *src1, int32_t src1Shift, int32_t src1ElemStride, double val1,
    const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double val2, double *const *dst,
    int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) * val1 + src2(n) * val2; 4 double, n below count; standard layout. */
VonkStatus vonkLComb_vava_64f_4x1(const double *src1, int32_t src1ObjStride, double val1, const double *src2,
    int32_t src2ObjStride, double val2, double *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) * val1 + src2(n) * val2; 4 double, n below count; S2, strided elements. */
VonkStatus vonkLComb_vava_64f_4x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride, double val1,
    const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double val2, double *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) * val1 + src2(n) * val2; 4 double, n below count; P, one pointer per element position. */
VonkStatus vonkLComb_vava_64f_4x1_P(const double *const *src1, int32_t src1Shift, double val1,
    const double *const *src2, int32_t src2Shift, double val2, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) * val1 + src2(n) * val2; 4 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkLComb_vava_64f_4x1_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride, double val1,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double val2, double *const *dst,
    int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) * val1 + src2(n) * val2; 4 double, n below count; L, one pointer per object. */
VonkStatus vonkLComb_vava_64f_4x1_L(const double *const *src1, int32_t src1Shift, double val1,
    const double *const *src2, int32_t src2Shift, double val2, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) * val1 + src2(n) * val2; 4 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkLComb_vava_64f_4x1_LS2(const double *const *src1, int32_t src1Shift, int32_t src1ElemStride, double val1,
    const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double val2, double *const *dst,
    int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) * val1 + src2(n) * val2; 5 double, n below count; standard layout. */
VonkStatus vonkLComb_vava_64f_5x1(const double *src1, int32_t src1ObjStride, double val1, const double *src2,
    int32_t src2ObjStride, double val2, double *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) * val1 + src2(n) * val2; 5 double, n below count; S2, strided elements. */
VonkStatus vonkLComb_vava_64f_5x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride, double val1,
    const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double val2, double *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) * val1 + src2(n) * val2; 5 double, n below count; P, one pointer per element position. */
VonkStatus vonkLComb_vava_64f_5x1_P(const double *const *src1, int32_t src1Shift, double val1,
    const double *const *src2, int32_t src2Shift, double val2, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) * val1 + src2(n) * val2; 5 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkLComb_vava_64f_5x1_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride, double val1,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double val2, double *const *dst,
    int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) * val1 + src2(n) * val2; 5 double, n below count; L, one pointer per object. */
VonkStatus vonkLComb_vava_64f_5x1_L(const double *const *src1, int32_t src1Shift, double val1,
    const double *const *src2, int32_t src2Shift, double val2, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) * val1 + src2(n) * val2; 5 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkLComb_vava_64f_5x1_LS2(const double *const *src1, int32_t src1Shift, int32_t src1ElemStride, double val1,
    const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double val2, double *const *dst,
    int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) * val1 + src2(n) * val2; 6 double, n below count; standard layout. */
VonkStatus vonkLComb_vava_64f_6x1(const double *src1, int32_t src1ObjStride, double val1, const double *src2,
    int32_t src2ObjStride, double val2, double *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) * val1 + src2(n) * val2; 6 double, n below count; S2, strided elements. */
VonkStatus vonkLComb_vava_64f_6x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride, double val1,
    const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double val2, double *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = src1(n) * val1 + src2(n) * val2; 6 double, n below count; P, one pointer per element position. */
VonkStatus vonkLComb_vava_64f_6x1_P(const double *const *src1, int32_t src1Shift, double val1,
    const double *const *src2, int32_t src2Shift, double val2, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) * val1 + src2(n) * val2; 6 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkLComb_vava_64f_6x1_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride, double val1,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double val2, double *const *dst,
    int32_t dstShift, int32_t dstObjStride, uint32_t count);
/** dst(n) = src1(n) * val1 + src2(n) * val2; 6 double, n below count; L, one pointer per object. */
VonkStatus vonkLComb_vava_64f_6x1_L(const double *const *src1, int32_t src1Shift, double val1,
    const double *const *src2, int32_t src2Shift, double val2, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = src1(n) * val1 + src2(n) * val2; 6 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkLComb_vava_64f_6x1_LS2(const double *const *src1, int32_t src1Shift, int32_t src1ElemStride, double val1,
    const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double val2, double *const *dst,
    int32_t dstShift, int32_t dstElemStride, uint32_t count);

/* ---- Dot product ----------------------------------------------------------------------------------------------------
 *
 * dst[n] = sum over j of src1(n, j) * src2(n, j)
 *
 * for j below `len`. `dst` is a plain pointer in every layout: one element for `vv`, `count` packed elements for
 * arrays. Groups: `vv` two vectors, `vav` an array against one vector, `vava` two arrays.
 *
 * With p0, p1, ... for the products, the sum is ((p0 + p1) + p2) + ..., from +0 at run-time length and from p0 at fixed
 * length. In `32f` products and sums are rounded one by one and never fused; in `64f` they stay in 80 bits, and the
 * result is rounded.
 *
 * Status: vonkErrNullPtr if `src1`, `src2` or `dst` is null; vonkErrSize if `len` is 0; vonkErrNullPtr if a table or
 * list entry is null: in `P` and `PS2` all entries before anything else, even at `count` 0; in `L` and `LS2` when the
 * object's turn comes, earlier objects being complete. `count` 0 then gives vonkOk with nothing written.
 *
 * Overlap:
 * Overlap is not checked. Each result is stored after its sum, object by object: where `dst` overlaps operands of later
 * objects, these are read as overwritten.
 *
 * Exceptions:
 * - dot-blocks-of-eight (arithmetic): vonkDotProduct_vv_32f
 *   From 11 elements on, with `src2` at a multiple of 4 bytes, the sum runs in SIMD lanes: element by element up to a
 *   16-byte boundary of `src2`; then blocks of eight in two registers of four lanes, X, which begins with the sum so
 *   far in lane 0, and Y, which begins with zeros; then, with L = X + Y, (L0 + L2) + (L1 + L3); then element by
 *   element. The last bits depend on `len` and on the alignment of `src2`.
 * - dot-pairs (arithmetic): vonkDotProduct_vav_32f_4x1{,_L}
 *   The sum is (p0 + p1) + (p2 + p3).
 * - dot-aligned-order (arithmetic): vonkDotProduct_vava_32f_3x1
 *   If `src1`, `src2`, their object strides and `dst` are all multiples of 16, the sum of each object in a full block
 *   of four is (p0 + p2) + p1. Of the others it runs left to right.
 * - dot-odd-term (arithmetic): vonkDotProduct_vv_64f{,_S2,_P} vonkDotProduct_{vav,vava}_64f_L
 *   Of an odd number of terms, the sum is rounded to 64 bits before the last term is added.
 * - dot-unchecked-entries (checks): vonkDotProduct_vav_32f_{3x1,4x1}_L
 *   List entries are not checked; a null entry is followed.
 * - dot-four-objects (overlap): vonkDotProduct_vav_32f_{3x1,4x1}{,_L} vonkDotProduct_vava_32f_3x1
 *   Works in blocks of four objects: four results are stored after four sums. 3x1 in the standard layout does so only
 *   if `src1`, its object stride and `dst`, in `vava` also `src2` and its object stride, are multiples of 16.
 * - dot-reads-next-element (reads): vonkDotProduct_vava_32f_3x1
 *   If `src1`, `src2`, their object strides and `dst` are all multiples of 16, the element past the end of each object
 *   in a full block of four is read.
 */

/** *dst = dot product of src1 and src2; `len` float; standard layout. Exception: dot-blocks-of-eight. */
VonkStatus vonkDotProduct_vv_32f(const float *src1, const float *src2, float *dst, uint32_t len);
/** *dst = dot product of src1 and src2; `len` float; S2, strided elements. */
VonkStatus vonkDotProduct_vv_32f_S2(const float *src1, int32_t src1ElemStride, const float *src2,
    int32_t src2ElemStride, float *dst, uint32_t len);
/** *dst = dot product of src1 and src2; `len` float; P, one pointer per element position. */
VonkStatus vonkDotProduct_vv_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *dst, uint32_t len);
/** *dst = dot product of src1 and src2; 3 float; standard layout. */
VonkStatus vonkDotProduct_vv_32f_3x1(const float *src1, const float *src2, float *dst);
/** *dst = dot product of src1 and src2; 3 float; S2, strided elements. */
VonkStatus vonkDotProduct_vv_32f_3x1_S2(const float *src1, int32_t src1ElemStride, const float *src2,
    int32_t src2ElemStride, float *dst);
/** *dst = dot product of src1 and src2; 3 float; P, one pointer per element position. */
VonkStatus vonkDotProduct_vv_32f_3x1_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *dst);
/** *dst = dot product of src1 and src2; 4 float; standard layout. */
VonkStatus vonkDotProduct_vv_32f_4x1(const float *src1, const float *src2, float *dst);
/** *dst = dot product of src1 and src2; 4 float; S2, strided elements. */
VonkStatus vonkDotProduct_vv_32f_4x1_S2(const float *src1, int32_t src1ElemStride, const float *src2,
    int32_t src2ElemStride, float *dst);
/** *dst = dot product of src1 and src2; 4 float; P, one pointer per element position. */
VonkStatus vonkDotProduct_vv_32f_4x1_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *dst);
/** *dst = dot product of src1 and src2; 5 float; standard layout. */
VonkStatus vonkDotProduct_vv_32f_5x1(const float *src1, const float *src2, float *dst);
/** *dst = dot product of src1 and src2; 5 float; S2, strided elements. */
VonkStatus vonkDotProduct_vv_32f_5x1_S2(const float *src1, int32_t src1ElemStride, const float *src2,
    int32_t src2ElemStride, float *dst);
/** *dst = dot product of src1 and src2; 5 float; P, one pointer per element position. */
VonkStatus vonkDotProduct_vv_32f_5x1_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *dst);
/** *dst = dot product of src1 and src2; 6 float; standard layout. */
VonkStatus vonkDotProduct_vv_32f_6x1(const float *src1, const float *src2, float *dst);
/** *dst = dot product of src1 and src2; 6 float; S2, strided elements. */
VonkStatus vonkDotProduct_vv_32f_6x1_S2(const float *src1, int32_t src1ElemStride, const float *src2,
    int32_t src2ElemStride, float *dst);
/** *dst = dot product of src1 and src2; 6 float; P, one pointer per element position. */
VonkStatus vonkDotProduct_vv_32f_6x1_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *dst);

/** *dst = dot product of src1 and src2; `len` double; standard layout. Exception: dot-odd-term. */
VonkStatus vonkDotProduct_vv_64f(const double *src1, const double *src2, double *dst, uint32_t len);
/** *dst = dot product of src1 and src2; `len` double; S2, strided elements. Exception: dot-odd-term. */
VonkStatus vonkDotProduct_vv_64f_S2(const double *src1, int32_t src1ElemStride, const double *src2,
    int32_t src2ElemStride, double *dst, uint32_t len);
/** *dst = dot product of src1 and src2; `len` double; P, one pointer per element position. Exception: dot-odd-term. */
VonkStatus vonkDotProduct_vv_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *dst, uint32_t len);
/** *dst = dot product of src1 and src2; 3 double; standard layout. */
VonkStatus vonkDotProduct_vv_64f_3x1(const double *src1, const double *src2, double *dst);
/** *dst = dot product of src1 and src2; 3 double; S2, strided elements. */
VonkStatus vonkDotProduct_vv_64f_3x1_S2(const double *src1, int32_t src1ElemStride, const double *src2,
    int32_t src2ElemStride, double *dst);
/** *dst = dot product of src1 and src2; 3 double; P, one pointer per element position. */
VonkStatus vonkDotProduct_vv_64f_3x1_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *dst);
/** *dst = dot product of src1 and src2; 4 double; standard layout. */
VonkStatus vonkDotProduct_vv_64f_4x1(const double *src1, const double *src2, double *dst);
/** *dst = dot product of src1 and src2; 4 double; S2, strided elements. */
VonkStatus vonkDotProduct_vv_64f_4x1_S2(const double *src1, int32_t src1ElemStride, const double *src2,
    int32_t src2ElemStride, double *dst);
/** *dst = dot product of src1 and src2; 4 double; P, one pointer per element position. */
VonkStatus vonkDotProduct_vv_64f_4x1_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *dst);
/** *dst = dot product of src1 and src2; 5 double; standard layout. */
VonkStatus vonkDotProduct_vv_64f_5x1(const double *src1, const double *src2, double *dst);
/** *dst = dot product of src1 and src2; 5 double; S2, strided elements. */
VonkStatus vonkDotProduct_vv_64f_5x1_S2(const double *src1, int32_t src1ElemStride, const double *src2,
    int32_t src2ElemStride, double *dst);
/** *dst = dot product of src1 and src2; 5 double; P, one pointer per element position. */
VonkStatus vonkDotProduct_vv_64f_5x1_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *dst);
/** *dst = dot product of src1 and src2; 6 double; standard layout. */
VonkStatus vonkDotProduct_vv_64f_6x1(const double *src1, const double *src2, double *dst);
/** *dst = dot product of src1 and src2; 6 double; S2, strided elements. */
VonkStatus vonkDotProduct_vv_64f_6x1_S2(const double *src1, int32_t src1ElemStride, const double *src2,
    int32_t src2ElemStride, double *dst);
/** *dst = dot product of src1 and src2; 6 double; P, one pointer per element position. */
VonkStatus vonkDotProduct_vv_64f_6x1_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *dst);

/** dst[n] = dot product of src1(n) and src2; `len` float, n below count; standard layout. */
VonkStatus vonkDotProduct_vav_32f(const float *src1, int32_t src1ObjStride, const float *src2, float *dst, uint32_t len,
    uint32_t count);
/** dst[n] = dot product of src1(n) and src2; `len` float, n below count; S2, strided elements. */
VonkStatus vonkDotProduct_vav_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride,
    const float *src2, int32_t src2ElemStride, float *dst, uint32_t len, uint32_t count);
/** dst[n] = dot product of src1(n) and src2; `len` float, n below count; P, one pointer per element position. */
VonkStatus vonkDotProduct_vav_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *dst, uint32_t len, uint32_t count);
/** dst[n] = dot product of src1(n) and src2; `len` float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkDotProduct_vav_32f_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *dst, uint32_t len, uint32_t count);
/** dst[n] = dot product of src1(n) and src2; `len` float, n below count; L, one pointer per object. */
VonkStatus vonkDotProduct_vav_32f_L(const float *const *src1, int32_t src1Shift, const float *src2, float *dst,
    uint32_t len, uint32_t count);
/** dst[n] = dot product of src1(n) and src2; `len` float, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkDotProduct_vav_32f_LS2(const float *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const float *src2, int32_t src2ElemStride, float *dst, uint32_t len, uint32_t count);
/** dst[n] = dot product of src1(n) and src2; 3 float, n below count; standard layout. Exception: dot-four-objects. */
VonkStatus vonkDotProduct_vav_32f_3x1(const float *src1, int32_t src1ObjStride, const float *src2, float *dst,
    uint32_t count);
/** dst[n] = dot product of src1(n) and src2; 3 float, n below count; S2, strided elements. */
VonkStatus vonkDotProduct_vav_32f_3x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride,
    const float *src2, int32_t src2ElemStride, float *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2; 3 float, n below count; P, one pointer per element position. */
VonkStatus vonkDotProduct_vav_32f_3x1_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2; 3 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkDotProduct_vav_32f_3x1_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2; 3 float, n below count; L, one pointer per object. Exceptions:
 * dot-unchecked-entries, dot-four-objects. */
VonkStatus vonkDotProduct_vav_32f_3x1_L(const float *const *src1, int32_t src1Shift, const float *src2, float *dst,
    uint32_t count);
/** dst[n] = dot product of src1(n) and src2; 3 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkDotProduct_vav_32f_3x1_LS2(const float *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const float *src2, int32_t src2ElemStride, float *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2; 4 float, n below count; standard layout. Exceptions: dot-pairs,
 * dot-four-objects. */
VonkStatus vonkDotProduct_vav_32f_4x1(const float *src1, int32_t src1ObjStride, const float *src2, float *dst,
    uint32_t count);
/** dst[n] = dot product of src1(n) and src2; 4 float, n below count; S2, strided elements. */
VonkStatus vonkDotProduct_vav_32f_4x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride,
    const float *src2, int32_t src2ElemStride, float *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2; 4 float, n below count; P, one pointer per element position. */
VonkStatus vonkDotProduct_vav_32f_4x1_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2; 4 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkDotProduct_vav_32f_4x1_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2; 4 float, n below count; L, one pointer per object. Exceptions: dot-pairs,
 * dot-unchecked-entries, dot-four-objects. */
VonkStatus vonkDotProduct_vav_32f_4x1_L(const float *const *src1, int32_t src1Shift, const float *src2, float *dst,
    uint32_t count);
/** dst[n] = dot product of src1(n) and src2; 4 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkDotProduct_vav_32f_4x1_LS2(const float *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const float *src2, int32_t src2ElemStride, float *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2; 5 float, n below count; standard layout. */
VonkStatus vonkDotProduct_vav_32f_5x1(const float *src1, int32_t src1ObjStride, const float *src2, float *dst,
    uint32_t count);
/** dst[n] = dot product of src1(n) and src2; 5 float, n below count; S2, strided elements. */
VonkStatus vonkDotProduct_vav_32f_5x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride,
    const float *src2, int32_t src2ElemStride, float *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2; 5 float, n below count; P, one pointer per element position. */
VonkStatus vonkDotProduct_vav_32f_5x1_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2; 5 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkDotProduct_vav_32f_5x1_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2; 5 float, n below count; L, one pointer per object. */
VonkStatus vonkDotProduct_vav_32f_5x1_L(const float *const *src1, int32_t src1Shift, const float *src2, float *dst,
    uint32_t count);
/** dst[n] = dot product of src1(n) and src2; 5 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkDotProduct_vav_32f_5x1_LS2(const float *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const float *src2, int32_t src2ElemStride, float *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2; 6 float, n below count; standard layout. */
VonkStatus vonkDotProduct_vav_32f_6x1(const float *src1, int32_t src1ObjStride, const float *src2, float *dst,
    uint32_t count);
/** dst[n] = dot product of src1(n) and src2; 6 float, n below count; S2, strided elements. */
VonkStatus vonkDotProduct_vav_32f_6x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride,
    const float *src2, int32_t src2ElemStride, float *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2; 6 float, n below count; P, one pointer per element position. */
VonkStatus vonkDotProduct_vav_32f_6x1_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2; 6 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkDotProduct_vav_32f_6x1_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2; 6 float, n below count; L, one pointer per object. */
VonkStatus vonkDotProduct_vav_32f_6x1_L(const float *const *src1, int32_t src1Shift, const float *src2, float *dst,
    uint32_t count);
/** dst[n] = dot product of src1(n) and src2; 6 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkDotProduct_vav_32f_6x1_LS2(const float *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const float *src2, int32_t src2ElemStride, float *dst, uint32_t count);

/** dst[n] = dot product of src1(n) and src2; `len` double, n below count; standard layout. */
VonkStatus vonkDotProduct_vav_64f(const double *src1, int32_t src1ObjStride, const double *src2, double *dst,
    uint32_t len, uint32_t count);
/** dst[n] = dot product of src1(n) and src2; `len` double, n below count; S2, strided elements. */
VonkStatus vonkDotProduct_vav_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ElemStride, double *dst, uint32_t len, uint32_t count);
/** dst[n] = dot product of src1(n) and src2; `len` double, n below count; P, one pointer per element position. */
VonkStatus vonkDotProduct_vav_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *dst, uint32_t len, uint32_t count);
/** dst[n] = dot product of src1(n) and src2; `len` double, n below count; PS2, one pointer per element position,
 * strided objects. */
VonkStatus vonkDotProduct_vav_64f_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *dst, uint32_t len, uint32_t count);
/** dst[n] = dot product of src1(n) and src2; `len` double, n below count; L, one pointer per object. Exception:
 * dot-odd-term. */
VonkStatus vonkDotProduct_vav_64f_L(const double *const *src1, int32_t src1Shift, const double *src2, double *dst,
    uint32_t len, uint32_t count);
/** dst[n] = dot product of src1(n) and src2; `len` double, n below count; LS2, one pointer per object, strided
 * elements. */
VonkStatus vonkDotProduct_vav_64f_LS2(const double *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const double *src2, int32_t src2ElemStride, double *dst, uint32_t len, uint32_t count);
/** dst[n] = dot product of src1(n) and src2; 3 double, n below count; standard layout. */
VonkStatus vonkDotProduct_vav_64f_3x1(const double *src1, int32_t src1ObjStride, const double *src2, double *dst,
    uint32_t count);
/** dst[n] = dot product of src1(n) and src2; 3 double, n below count; S2, strided elements. */
VonkStatus vonkDotProduct_vav_64f_3x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ElemStride, double *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2; 3 double, n below count; P, one pointer per element position. */
VonkStatus vonkDotProduct_vav_64f_3x1_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2; 3 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkDotProduct_vav_64f_3x1_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2; 3 double, n below count; L, one pointer per object. */
VonkStatus vonkDotProduct_vav_64f_3x1_L(const double *const *src1, int32_t src1Shift, const double *src2, double *dst,
    uint32_t count);
/** dst[n] = dot product of src1(n) and src2; 3 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkDotProduct_vav_64f_3x1_LS2(const double *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const double *src2, int32_t src2ElemStride, double *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2; 4 double, n below count; standard layout. */
VonkStatus vonkDotProduct_vav_64f_4x1(const double *src1, int32_t src1ObjStride, const double *src2, double *dst,
    uint32_t count);
/** dst[n] = dot product of src1(n) and src2; 4 double, n below count; S2, strided elements. */
VonkStatus vonkDotProduct_vav_64f_4x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ElemStride, double *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2; 4 double, n below count; P, one pointer per element position. */
VonkStatus vonkDotProduct_vav_64f_4x1_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2; 4 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkDotProduct_vav_64f_4x1_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2; 4 double, n below count; L, one pointer per object. */
VonkStatus vonkDotProduct_vav_64f_4x1_L(const double *const *src1, int32_t src1Shift, const double *src2, double *dst,
    uint32_t count);
/** dst[n] = dot product of src1(n) and src2; 4 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkDotProduct_vav_64f_4x1_LS2(const double *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const double *src2, int32_t src2ElemStride, double *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2; 5 double, n below count; standard layout. */
VonkStatus vonkDotProduct_vav_64f_5x1(const double *src1, int32_t src1ObjStride, const double *src2, double *dst,
    uint32_t count);
/** dst[n] = dot product of src1(n) and src2; 5 double, n below count; S2, strided elements. */
VonkStatus vonkDotProduct_vav_64f_5x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ElemStride, double *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2; 5 double, n below count; P, one pointer per element position. */
VonkStatus vonkDotProduct_vav_64f_5x1_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2; 5 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkDotProduct_vav_64f_5x1_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2; 5 double, n below count; L, one pointer per object. */
VonkStatus vonkDotProduct_vav_64f_5x1_L(const double *const *src1, int32_t src1Shift, const double *src2, double *dst,
    uint32_t count);
/** dst[n] = dot product of src1(n) and src2; 5 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkDotProduct_vav_64f_5x1_LS2(const double *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const double *src2, int32_t src2ElemStride, double *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2; 6 double, n below count; standard layout. */
VonkStatus vonkDotProduct_vav_64f_6x1(const double *src1, int32_t src1ObjStride, const double *src2, double *dst,
    uint32_t count);
/** dst[n] = dot product of src1(n) and src2; 6 double, n below count; S2, strided elements. */
VonkStatus vonkDotProduct_vav_64f_6x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ElemStride, double *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2; 6 double, n below count; P, one pointer per element position. */
VonkStatus vonkDotProduct_vav_64f_6x1_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2; 6 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkDotProduct_vav_64f_6x1_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2; 6 double, n below count; L, one pointer per object. */
VonkStatus vonkDotProduct_vav_64f_6x1_L(const double *const *src1, int32_t src1Shift, const double *src2, double *dst,
    uint32_t count);
/** dst[n] = dot product of src1(n) and src2; 6 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkDotProduct_vav_64f_6x1_LS2(const double *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const double *src2, int32_t src2ElemStride, double *dst, uint32_t count);

/** dst[n] = dot product of src1(n) and src2(n); `len` float, n below count; standard layout. */
VonkStatus vonkDotProduct_vava_32f(const float *src1, int32_t src1ObjStride, const float *src2, int32_t src2ObjStride,
    float *dst, uint32_t len, uint32_t count);
/** dst[n] = dot product of src1(n) and src2(n); `len` float, n below count; S2, strided elements. */
VonkStatus vonkDotProduct_vava_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride,
    const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst, uint32_t len, uint32_t count);
/** dst[n] = dot product of src1(n) and src2(n); `len` float, n below count; P, one pointer per element position. */
VonkStatus vonkDotProduct_vava_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *dst, uint32_t len, uint32_t count);
/** dst[n] = dot product of src1(n) and src2(n); `len` float, n below count; PS2, one pointer per element position,
 * strided objects. */
VonkStatus vonkDotProduct_vava_32f_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *dst, uint32_t len, uint32_t count);
/** dst[n] = dot product of src1(n) and src2(n); `len` float, n below count; L, one pointer per object. */
VonkStatus vonkDotProduct_vava_32f_L(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *dst, uint32_t len, uint32_t count);
/** dst[n] = dot product of src1(n) and src2(n); `len` float, n below count; LS2, one pointer per object, strided
 * elements. */
VonkStatus vonkDotProduct_vava_32f_LS2(const float *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float *dst, uint32_t len, uint32_t count);
/** dst[n] = dot product of src1(n) and src2(n); 3 float, n below count; standard layout. Exceptions: dot-aligned-order,
 * dot-four-objects, dot-reads-next-element. */
VonkStatus vonkDotProduct_vava_32f_3x1(const float *src1, int32_t src1ObjStride, const float *src2,
    int32_t src2ObjStride, float *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2(n); 3 float, n below count; S2, strided elements. */
VonkStatus vonkDotProduct_vava_32f_3x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride,
    const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2(n); 3 float, n below count; P, one pointer per element position. */
VonkStatus vonkDotProduct_vava_32f_3x1_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2(n); 3 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkDotProduct_vava_32f_3x1_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2(n); 3 float, n below count; L, one pointer per object. */
VonkStatus vonkDotProduct_vava_32f_3x1_L(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2(n); 3 float, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkDotProduct_vava_32f_3x1_LS2(const float *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2(n); 4 float, n below count; standard layout. */
VonkStatus vonkDotProduct_vava_32f_4x1(const float *src1, int32_t src1ObjStride, const float *src2,
    int32_t src2ObjStride, float *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2(n); 4 float, n below count; S2, strided elements. */
VonkStatus vonkDotProduct_vava_32f_4x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride,
    const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2(n); 4 float, n below count; P, one pointer per element position. */
VonkStatus vonkDotProduct_vava_32f_4x1_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2(n); 4 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkDotProduct_vava_32f_4x1_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2(n); 4 float, n below count; L, one pointer per object. */
VonkStatus vonkDotProduct_vava_32f_4x1_L(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2(n); 4 float, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkDotProduct_vava_32f_4x1_LS2(const float *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2(n); 5 float, n below count; standard layout. */
VonkStatus vonkDotProduct_vava_32f_5x1(const float *src1, int32_t src1ObjStride, const float *src2,
    int32_t src2ObjStride, float *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2(n); 5 float, n below count; S2, strided elements. */
VonkStatus vonkDotProduct_vava_32f_5x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride,
    const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2(n); 5 float, n below count; P, one pointer per element position. */
VonkStatus vonkDotProduct_vava_32f_5x1_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2(n); 5 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkDotProduct_vava_32f_5x1_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2(n); 5 float, n below count; L, one pointer per object. */
VonkStatus vonkDotProduct_vava_32f_5x1_L(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2(n); 5 float, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkDotProduct_vava_32f_5x1_LS2(const float *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2(n); 6 float, n below count; standard layout. */
VonkStatus vonkDotProduct_vava_32f_6x1(const float *src1, int32_t src1ObjStride, const float *src2,
    int32_t src2ObjStride, float *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2(n); 6 float, n below count; S2, strided elements. */
VonkStatus vonkDotProduct_vava_32f_6x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride,
    const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2(n); 6 float, n below count; P, one pointer per element position. */
VonkStatus vonkDotProduct_vava_32f_6x1_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2(n); 6 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkDotProduct_vava_32f_6x1_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2(n); 6 float, n below count; L, one pointer per object. */
VonkStatus vonkDotProduct_vava_32f_6x1_L(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2(n); 6 float, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkDotProduct_vava_32f_6x1_LS2(const float *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float *dst, uint32_t count);

/** dst[n] = dot product of src1(n) and src2(n); `len` double, n below count; standard layout. */
VonkStatus vonkDotProduct_vava_64f(const double *src1, int32_t src1ObjStride, const double *src2, int32_t src2ObjStride,
    double *dst, uint32_t len, uint32_t count);
/** dst[n] = dot product of src1(n) and src2(n); `len` double, n below count; S2, strided elements. */
VonkStatus vonkDotProduct_vava_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst, uint32_t len, uint32_t count);
/** dst[n] = dot product of src1(n) and src2(n); `len` double, n below count; P, one pointer per element position. */
VonkStatus vonkDotProduct_vava_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *dst, uint32_t len, uint32_t count);
/** dst[n] = dot product of src1(n) and src2(n); `len` double, n below count; PS2, one pointer per element position,
 * strided objects. */
VonkStatus vonkDotProduct_vava_64f_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *dst, uint32_t len, uint32_t count);
/** dst[n] = dot product of src1(n) and src2(n); `len` double, n below count; L, one pointer per object. Exception:
 * dot-odd-term. */
VonkStatus vonkDotProduct_vava_64f_L(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *dst, uint32_t len, uint32_t count);
/** dst[n] = dot product of src1(n) and src2(n); `len` double, n below count; LS2, one pointer per object, strided
 * elements. */
VonkStatus vonkDotProduct_vava_64f_LS2(const double *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double *dst, uint32_t len, uint32_t count);
/** dst[n] = dot product of src1(n) and src2(n); 3 double, n below count; standard layout. */
VonkStatus vonkDotProduct_vava_64f_3x1(const double *src1, int32_t src1ObjStride, const double *src2,
    int32_t src2ObjStride, double *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2(n); 3 double, n below count; S2, strided elements. */
VonkStatus vonkDotProduct_vava_64f_3x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2(n); 3 double, n below count; P, one pointer per element position. */
VonkStatus vonkDotProduct_vava_64f_3x1_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2(n); 3 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkDotProduct_vava_64f_3x1_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2(n); 3 double, n below count; L, one pointer per object. */
VonkStatus vonkDotProduct_vava_64f_3x1_L(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2(n); 3 double, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkDotProduct_vava_64f_3x1_LS2(const double *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2(n); 4 double, n below count; standard layout. */
VonkStatus vonkDotProduct_vava_64f_4x1(const double *src1, int32_t src1ObjStride, const double *src2,
    int32_t src2ObjStride, double *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2(n); 4 double, n below count; S2, strided elements. */
VonkStatus vonkDotProduct_vava_64f_4x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2(n); 4 double, n below count; P, one pointer per element position. */
VonkStatus vonkDotProduct_vava_64f_4x1_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2(n); 4 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkDotProduct_vava_64f_4x1_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2(n); 4 double, n below count; L, one pointer per object. */
VonkStatus vonkDotProduct_vava_64f_4x1_L(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2(n); 4 double, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkDotProduct_vava_64f_4x1_LS2(const double *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2(n); 5 double, n below count; standard layout. */
VonkStatus vonkDotProduct_vava_64f_5x1(const double *src1, int32_t src1ObjStride, const double *src2,
    int32_t src2ObjStride, double *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2(n); 5 double, n below count; S2, strided elements. */
VonkStatus vonkDotProduct_vava_64f_5x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2(n); 5 double, n below count; P, one pointer per element position. */
VonkStatus vonkDotProduct_vava_64f_5x1_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2(n); 5 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkDotProduct_vava_64f_5x1_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2(n); 5 double, n below count; L, one pointer per object. */
VonkStatus vonkDotProduct_vava_64f_5x1_L(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2(n); 5 double, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkDotProduct_vava_64f_5x1_LS2(const double *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2(n); 6 double, n below count; standard layout. */
VonkStatus vonkDotProduct_vava_64f_6x1(const double *src1, int32_t src1ObjStride, const double *src2,
    int32_t src2ObjStride, double *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2(n); 6 double, n below count; S2, strided elements. */
VonkStatus vonkDotProduct_vava_64f_6x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2(n); 6 double, n below count; P, one pointer per element position. */
VonkStatus vonkDotProduct_vava_64f_6x1_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2(n); 6 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkDotProduct_vava_64f_6x1_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2(n); 6 double, n below count; L, one pointer per object. */
VonkStatus vonkDotProduct_vava_64f_6x1_L(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *dst, uint32_t count);
/** dst[n] = dot product of src1(n) and src2(n); 6 double, n below count; LS2, one pointer per object, strided elements.
 * */
VonkStatus vonkDotProduct_vava_64f_6x1_LS2(const double *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double *dst, uint32_t count);

/* ---- L2 norm --------------------------------------------------------------------------------------------------------
 *
 * dst[n] = square root of the sum over j of src(n, j) * src(n, j)
 *
 * for j below `len`. `dst` is a plain pointer in every layout: one element for `v`, `count` packed elements for `va`.
 * Squares are added left to right from +0, rounded one by one in `32f`, in 80 bits in `64f`; the root is correctly
 * rounded. Squares that overflow give infinity; those of `64f` cannot in 80 bits.
 *
 * Status: vonkErrNullPtr if `src` or `dst` is null; vonkErrSize if `len` is 0; vonkErrNullPtr if a table or list entry
 * is null: in `P` and `PS2` all entries before anything else, even at `count` 0; in `L` and `LS2` when the object's
 * turn comes, earlier objects being complete. `count` 0 then gives vonkOk with nothing written.
 *
 * Overlap:
 * Overlap is not checked. Each result is stored after its sum, object by object: where `dst` overlaps later objects,
 * these are read as overwritten.
 *
 * Exceptions:
 * - norm-estimate (arithmetic): vonkL2Norm_v_32f_?x1 vonkL2Norm_va_32f_?x1{,_L}
 *   Approximate, and NaN for a zero vector, where all other forms give 0. With q0, q1, ... for the squares, s is (q0 +
 *   q1) + q2 of 3 elements, (q0 + q1) + (q2 + q3) of 4, that + q4 of 5, and ((q0 + q1) + (q2 + q3)) + (q4 + q5) of 6.
 *   With r the processor's estimate of 1 / root(s), of about 12 bits, the result is s * (r * (0.5 * (3.0 - s * (r *
 *   r)))), each operation rounded: one Newton step for the reciprocal root.
 * - norm-blocks-of-eight (arithmetic): vonkL2Norm_v_32f
 *   From 11 elements on, with `src` at a multiple of 4 bytes, squares are added in SIMD lanes, as vonkDotProduct_vv_32f
 *   adds products. The last bits depend on `len` and on the alignment of `src`.
 * - norm-unchecked-entries (checks): vonkL2Norm_va_32f_4x1_L
 *   List entries are not checked; a null entry is followed.
 * - norm-four-objects (overlap): vonkL2Norm_va_32f_?x1{,_L}
 *   Works in blocks of four objects: four results are stored after four sums.
 */

/** *dst = Euclidean norm of src; `len` float; standard layout. Exception: norm-blocks-of-eight. */
VonkStatus vonkL2Norm_v_32f(const float *src, float *dst, uint32_t len);
/** *dst = Euclidean norm of src; `len` float; S2, strided elements. */
VonkStatus vonkL2Norm_v_32f_S2(const float *src, int32_t srcElemStride, float *dst, uint32_t len);
/** *dst = Euclidean norm of src; `len` float; P, one pointer per element position. */
VonkStatus vonkL2Norm_v_32f_P(const float *const *src, int32_t srcShift, float *dst, uint32_t len);
/** *dst = Euclidean norm of src; 3 float; standard layout. Exception: norm-estimate. */
VonkStatus vonkL2Norm_v_32f_3x1(const float *src, float *dst);
/** *dst = Euclidean norm of src; 3 float; S2, strided elements. */
VonkStatus vonkL2Norm_v_32f_3x1_S2(const float *src, int32_t srcElemStride, float *dst);
/** *dst = Euclidean norm of src; 3 float; P, one pointer per element position. */
VonkStatus vonkL2Norm_v_32f_3x1_P(const float *const *src, int32_t srcShift, float *dst);
/** *dst = Euclidean norm of src; 4 float; standard layout. Exception: norm-estimate. */
VonkStatus vonkL2Norm_v_32f_4x1(const float *src, float *dst);
/** *dst = Euclidean norm of src; 4 float; S2, strided elements. */
VonkStatus vonkL2Norm_v_32f_4x1_S2(const float *src, int32_t srcElemStride, float *dst);
/** *dst = Euclidean norm of src; 4 float; P, one pointer per element position. */
VonkStatus vonkL2Norm_v_32f_4x1_P(const float *const *src, int32_t srcShift, float *dst);
/** *dst = Euclidean norm of src; 5 float; standard layout. Exception: norm-estimate. */
VonkStatus vonkL2Norm_v_32f_5x1(const float *src, float *dst);
/** *dst = Euclidean norm of src; 5 float; S2, strided elements. */
VonkStatus vonkL2Norm_v_32f_5x1_S2(const float *src, int32_t srcElemStride, float *dst);
/** *dst = Euclidean norm of src; 5 float; P, one pointer per element position. */
VonkStatus vonkL2Norm_v_32f_5x1_P(const float *const *src, int32_t srcShift, float *dst);
/** *dst = Euclidean norm of src; 6 float; standard layout. Exception: norm-estimate. */
VonkStatus vonkL2Norm_v_32f_6x1(const float *src, float *dst);
/** *dst = Euclidean norm of src; 6 float; S2, strided elements. */
VonkStatus vonkL2Norm_v_32f_6x1_S2(const float *src, int32_t srcElemStride, float *dst);
/** *dst = Euclidean norm of src; 6 float; P, one pointer per element position. */
VonkStatus vonkL2Norm_v_32f_6x1_P(const float *const *src, int32_t srcShift, float *dst);

/** *dst = Euclidean norm of src; `len` double; standard layout. */
VonkStatus vonkL2Norm_v_64f(const double *src, double *dst, uint32_t len);
/** *dst = Euclidean norm of src; `len` double; S2, strided elements. */
VonkStatus vonkL2Norm_v_64f_S2(const double *src, int32_t srcElemStride, double *dst, uint32_t len);
/** *dst = Euclidean norm of src; `len` double; P, one pointer per element position. */
VonkStatus vonkL2Norm_v_64f_P(const double *const *src, int32_t srcShift, double *dst, uint32_t len);
/** *dst = Euclidean norm of src; 3 double; standard layout. */
VonkStatus vonkL2Norm_v_64f_3x1(const double *src, double *dst);
/** *dst = Euclidean norm of src; 3 double; S2, strided elements. */
VonkStatus vonkL2Norm_v_64f_3x1_S2(const double *src, int32_t srcElemStride, double *dst);
/** *dst = Euclidean norm of src; 3 double; P, one pointer per element position. */
VonkStatus vonkL2Norm_v_64f_3x1_P(const double *const *src, int32_t srcShift, double *dst);
/** *dst = Euclidean norm of src; 4 double; standard layout. */
VonkStatus vonkL2Norm_v_64f_4x1(const double *src, double *dst);
/** *dst = Euclidean norm of src; 4 double; S2, strided elements. */
VonkStatus vonkL2Norm_v_64f_4x1_S2(const double *src, int32_t srcElemStride, double *dst);
/** *dst = Euclidean norm of src; 4 double; P, one pointer per element position. */
VonkStatus vonkL2Norm_v_64f_4x1_P(const double *const *src, int32_t srcShift, double *dst);
/** *dst = Euclidean norm of src; 5 double; standard layout. */
VonkStatus vonkL2Norm_v_64f_5x1(const double *src, double *dst);
/** *dst = Euclidean norm of src; 5 double; S2, strided elements. */
VonkStatus vonkL2Norm_v_64f_5x1_S2(const double *src, int32_t srcElemStride, double *dst);
/** *dst = Euclidean norm of src; 5 double; P, one pointer per element position. */
VonkStatus vonkL2Norm_v_64f_5x1_P(const double *const *src, int32_t srcShift, double *dst);
/** *dst = Euclidean norm of src; 6 double; standard layout. */
VonkStatus vonkL2Norm_v_64f_6x1(const double *src, double *dst);
/** *dst = Euclidean norm of src; 6 double; S2, strided elements. */
VonkStatus vonkL2Norm_v_64f_6x1_S2(const double *src, int32_t srcElemStride, double *dst);
/** *dst = Euclidean norm of src; 6 double; P, one pointer per element position. */
VonkStatus vonkL2Norm_v_64f_6x1_P(const double *const *src, int32_t srcShift, double *dst);

/** dst[n] = Euclidean norm of src(n); `len` float, n below count; standard layout. */
VonkStatus vonkL2Norm_va_32f(const float *src, int32_t srcObjStride, float *dst, uint32_t len, uint32_t count);
/** dst[n] = Euclidean norm of src(n); `len` float, n below count; S2, strided elements. */
VonkStatus vonkL2Norm_va_32f_S2(const float *src, int32_t srcObjStride, int32_t srcElemStride, float *dst, uint32_t len,
    uint32_t count);
/** dst[n] = Euclidean norm of src(n); `len` float, n below count; P, one pointer per element position. */
VonkStatus vonkL2Norm_va_32f_P(const float *const *src, int32_t srcShift, float *dst, uint32_t len, uint32_t count);
/** dst[n] = Euclidean norm of src(n); `len` float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkL2Norm_va_32f_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float *dst,
    uint32_t len, uint32_t count);
/** dst[n] = Euclidean norm of src(n); `len` float, n below count; L, one pointer per object. */
VonkStatus vonkL2Norm_va_32f_L(const float *const *src, int32_t srcShift, float *dst, uint32_t len, uint32_t count);
/** dst[n] = Euclidean norm of src(n); `len` float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkL2Norm_va_32f_LS2(const float *const *src, int32_t srcShift, int32_t srcElemStride, float *dst,
    uint32_t len, uint32_t count);
/** dst[n] = Euclidean norm of src(n); 3 float, n below count; standard layout. Exceptions: norm-estimate,
 * norm-four-objects. */
VonkStatus vonkL2Norm_va_32f_3x1(const float *src, int32_t srcObjStride, float *dst, uint32_t count);
/** dst[n] = Euclidean norm of src(n); 3 float, n below count; S2, strided elements. */
VonkStatus vonkL2Norm_va_32f_3x1_S2(const float *src, int32_t srcObjStride, int32_t srcElemStride, float *dst,
    uint32_t count);
/** dst[n] = Euclidean norm of src(n); 3 float, n below count; P, one pointer per element position. */
VonkStatus vonkL2Norm_va_32f_3x1_P(const float *const *src, int32_t srcShift, float *dst, uint32_t count);
/** dst[n] = Euclidean norm of src(n); 3 float, n below count; PS2, one pointer per element position, strided objects.
 * */
VonkStatus vonkL2Norm_va_32f_3x1_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float *dst,
    uint32_t count);
/** dst[n] = Euclidean norm of src(n); 3 float, n below count; L, one pointer per object. Exceptions: norm-estimate,
 * norm-four-objects. */
VonkStatus vonkL2Norm_va_32f_3x1_L(const float *const *src, int32_t srcShift, float *dst, uint32_t count);
/** dst[n] = Euclidean norm of src(n); 3 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkL2Norm_va_32f_3x1_LS2(const float *const *src, int32_t srcShift, int32_t srcElemStride, float *dst,
    uint32_t count);
/** dst[n] = Euclidean norm of src(n); 4 float, n below count; standard layout. Exceptions: norm-estimate,
 * norm-four-objects. */
VonkStatus vonkL2Norm_va_32f_4x1(const float *src, int32_t srcObjStride, float *dst, uint32_t count);
/** dst[n] = Euclidean norm of src(n); 4 float, n below count; S2, strided elements. */
VonkStatus vonkL2Norm_va_32f_4x1_S2(const float *src, int32_t srcObjStride, int32_t srcElemStride, float *dst,
    uint32_t count);
/** dst[n] = Euclidean norm of src(n); 4 float, n below count; P, one pointer per element position. */
VonkStatus vonkL2Norm_va_32f_4x1_P(const float *const *src, int32_t srcShift, float *dst, uint32_t count);
/** dst[n] = Euclidean norm of src(n); 4 float, n below count; PS2, one pointer per element position, strided objects.
 * */
VonkStatus vonkL2Norm_va_32f_4x1_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float *dst,
    uint32_t count);
/** dst[n] = Euclidean norm of src(n); 4 float, n below count; L, one pointer per object. Exceptions: norm-estimate,
 * norm-unchecked-entries, norm-four-objects. */
VonkStatus vonkL2Norm_va_32f_4x1_L(const float *const *src, int32_t srcShift, float *dst, uint32_t count);
/** dst[n] = Euclidean norm of src(n); 4 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkL2Norm_va_32f_4x1_LS2(const float *const *src, int32_t srcShift, int32_t srcElemStride, float *dst,
    uint32_t count);
/** dst[n] = Euclidean norm of src(n); 5 float, n below count; standard layout. Exceptions: norm-estimate,
 * norm-four-objects. */
VonkStatus vonkL2Norm_va_32f_5x1(const float *src, int32_t srcObjStride, float *dst, uint32_t count);
/** dst[n] = Euclidean norm of src(n); 5 float, n below count; S2, strided elements. */
VonkStatus vonkL2Norm_va_32f_5x1_S2(const float *src, int32_t srcObjStride, int32_t srcElemStride, float *dst,
    uint32_t count);
/** dst[n] = Euclidean norm of src(n); 5 float, n below count; P, one pointer per element position. */
VonkStatus vonkL2Norm_va_32f_5x1_P(const float *const *src, int32_t srcShift, float *dst, uint32_t count);
/** dst[n] = Euclidean norm of src(n); 5 float, n below count; PS2, one pointer per element position, strided objects.
 * */
VonkStatus vonkL2Norm_va_32f_5x1_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float *dst,
    uint32_t count);
/** dst[n] = Euclidean norm of src(n); 5 float, n below count; L, one pointer per object. Exceptions: norm-estimate,
 * norm-four-objects. */
VonkStatus vonkL2Norm_va_32f_5x1_L(const float *const *src, int32_t srcShift, float *dst, uint32_t count);
/** dst[n] = Euclidean norm of src(n); 5 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkL2Norm_va_32f_5x1_LS2(const float *const *src, int32_t srcShift, int32_t srcElemStride, float *dst,
    uint32_t count);
/** dst[n] = Euclidean norm of src(n); 6 float, n below count; standard layout. Exceptions: norm-estimate,
 * norm-four-objects. */
VonkStatus vonkL2Norm_va_32f_6x1(const float *src, int32_t srcObjStride, float *dst, uint32_t count);
/** dst[n] = Euclidean norm of src(n); 6 float, n below count; S2, strided elements. */
VonkStatus vonkL2Norm_va_32f_6x1_S2(const float *src, int32_t srcObjStride, int32_t srcElemStride, float *dst,
    uint32_t count);
/** dst[n] = Euclidean norm of src(n); 6 float, n below count; P, one pointer per element position. */
VonkStatus vonkL2Norm_va_32f_6x1_P(const float *const *src, int32_t srcShift, float *dst, uint32_t count);
/** dst[n] = Euclidean norm of src(n); 6 float, n below count; PS2, one pointer per element position, strided objects.
 * */
VonkStatus vonkL2Norm_va_32f_6x1_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float *dst,
    uint32_t count);
/** dst[n] = Euclidean norm of src(n); 6 float, n below count; L, one pointer per object. Exceptions: norm-estimate,
 * norm-four-objects. */
VonkStatus vonkL2Norm_va_32f_6x1_L(const float *const *src, int32_t srcShift, float *dst, uint32_t count);
/** dst[n] = Euclidean norm of src(n); 6 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkL2Norm_va_32f_6x1_LS2(const float *const *src, int32_t srcShift, int32_t srcElemStride, float *dst,
    uint32_t count);

/** dst[n] = Euclidean norm of src(n); `len` double, n below count; standard layout. */
VonkStatus vonkL2Norm_va_64f(const double *src, int32_t srcObjStride, double *dst, uint32_t len, uint32_t count);
/** dst[n] = Euclidean norm of src(n); `len` double, n below count; S2, strided elements. */
VonkStatus vonkL2Norm_va_64f_S2(const double *src, int32_t srcObjStride, int32_t srcElemStride, double *dst,
    uint32_t len, uint32_t count);
/** dst[n] = Euclidean norm of src(n); `len` double, n below count; P, one pointer per element position. */
VonkStatus vonkL2Norm_va_64f_P(const double *const *src, int32_t srcShift, double *dst, uint32_t len, uint32_t count);
/** dst[n] = Euclidean norm of src(n); `len` double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkL2Norm_va_64f_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, double *dst,
    uint32_t len, uint32_t count);
/** dst[n] = Euclidean norm of src(n); `len` double, n below count; L, one pointer per object. */
VonkStatus vonkL2Norm_va_64f_L(const double *const *src, int32_t srcShift, double *dst, uint32_t len, uint32_t count);
/** dst[n] = Euclidean norm of src(n); `len` double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkL2Norm_va_64f_LS2(const double *const *src, int32_t srcShift, int32_t srcElemStride, double *dst,
    uint32_t len, uint32_t count);
/** dst[n] = Euclidean norm of src(n); 3 double, n below count; standard layout. */
VonkStatus vonkL2Norm_va_64f_3x1(const double *src, int32_t srcObjStride, double *dst, uint32_t count);
/** dst[n] = Euclidean norm of src(n); 3 double, n below count; S2, strided elements. */
VonkStatus vonkL2Norm_va_64f_3x1_S2(const double *src, int32_t srcObjStride, int32_t srcElemStride, double *dst,
    uint32_t count);
/** dst[n] = Euclidean norm of src(n); 3 double, n below count; P, one pointer per element position. */
VonkStatus vonkL2Norm_va_64f_3x1_P(const double *const *src, int32_t srcShift, double *dst, uint32_t count);
/** dst[n] = Euclidean norm of src(n); 3 double, n below count; PS2, one pointer per element position, strided objects.
 * */
VonkStatus vonkL2Norm_va_64f_3x1_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, double *dst,
    uint32_t count);
/** dst[n] = Euclidean norm of src(n); 3 double, n below count; L, one pointer per object. */
VonkStatus vonkL2Norm_va_64f_3x1_L(const double *const *src, int32_t srcShift, double *dst, uint32_t count);
/** dst[n] = Euclidean norm of src(n); 3 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkL2Norm_va_64f_3x1_LS2(const double *const *src, int32_t srcShift, int32_t srcElemStride, double *dst,
    uint32_t count);
/** dst[n] = Euclidean norm of src(n); 4 double, n below count; standard layout. */
VonkStatus vonkL2Norm_va_64f_4x1(const double *src, int32_t srcObjStride, double *dst, uint32_t count);
/** dst[n] = Euclidean norm of src(n); 4 double, n below count; S2, strided elements. */
VonkStatus vonkL2Norm_va_64f_4x1_S2(const double *src, int32_t srcObjStride, int32_t srcElemStride, double *dst,
    uint32_t count);
/** dst[n] = Euclidean norm of src(n); 4 double, n below count; P, one pointer per element position. */
VonkStatus vonkL2Norm_va_64f_4x1_P(const double *const *src, int32_t srcShift, double *dst, uint32_t count);
/** dst[n] = Euclidean norm of src(n); 4 double, n below count; PS2, one pointer per element position, strided objects.
 * */
VonkStatus vonkL2Norm_va_64f_4x1_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, double *dst,
    uint32_t count);
/** dst[n] = Euclidean norm of src(n); 4 double, n below count; L, one pointer per object. */
VonkStatus vonkL2Norm_va_64f_4x1_L(const double *const *src, int32_t srcShift, double *dst, uint32_t count);
/** dst[n] = Euclidean norm of src(n); 4 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkL2Norm_va_64f_4x1_LS2(const double *const *src, int32_t srcShift, int32_t srcElemStride, double *dst,
    uint32_t count);
/** dst[n] = Euclidean norm of src(n); 5 double, n below count; standard layout. */
VonkStatus vonkL2Norm_va_64f_5x1(const double *src, int32_t srcObjStride, double *dst, uint32_t count);
/** dst[n] = Euclidean norm of src(n); 5 double, n below count; S2, strided elements. */
VonkStatus vonkL2Norm_va_64f_5x1_S2(const double *src, int32_t srcObjStride, int32_t srcElemStride, double *dst,
    uint32_t count);
/** dst[n] = Euclidean norm of src(n); 5 double, n below count; P, one pointer per element position. */
VonkStatus vonkL2Norm_va_64f_5x1_P(const double *const *src, int32_t srcShift, double *dst, uint32_t count);
/** dst[n] = Euclidean norm of src(n); 5 double, n below count; PS2, one pointer per element position, strided objects.
 * */
VonkStatus vonkL2Norm_va_64f_5x1_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, double *dst,
    uint32_t count);
/** dst[n] = Euclidean norm of src(n); 5 double, n below count; L, one pointer per object. */
VonkStatus vonkL2Norm_va_64f_5x1_L(const double *const *src, int32_t srcShift, double *dst, uint32_t count);
/** dst[n] = Euclidean norm of src(n); 5 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkL2Norm_va_64f_5x1_LS2(const double *const *src, int32_t srcShift, int32_t srcElemStride, double *dst,
    uint32_t count);
/** dst[n] = Euclidean norm of src(n); 6 double, n below count; standard layout. */
VonkStatus vonkL2Norm_va_64f_6x1(const double *src, int32_t srcObjStride, double *dst, uint32_t count);
/** dst[n] = Euclidean norm of src(n); 6 double, n below count; S2, strided elements. */
VonkStatus vonkL2Norm_va_64f_6x1_S2(const double *src, int32_t srcObjStride, int32_t srcElemStride, double *dst,
    uint32_t count);
/** dst[n] = Euclidean norm of src(n); 6 double, n below count; P, one pointer per element position. */
VonkStatus vonkL2Norm_va_64f_6x1_P(const double *const *src, int32_t srcShift, double *dst, uint32_t count);
/** dst[n] = Euclidean norm of src(n); 6 double, n below count; PS2, one pointer per element position, strided objects.
 * */
VonkStatus vonkL2Norm_va_64f_6x1_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, double *dst,
    uint32_t count);
/** dst[n] = Euclidean norm of src(n); 6 double, n below count; L, one pointer per object. */
VonkStatus vonkL2Norm_va_64f_6x1_L(const double *const *src, int32_t srcShift, double *dst, uint32_t count);
/** dst[n] = Euclidean norm of src(n); 6 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkL2Norm_va_64f_6x1_LS2(const double *const *src, int32_t srcShift, int32_t srcElemStride, double *dst,
    uint32_t count);

/* ---- Cross product --------------------------------------------------------------------------------------------------
 *
 * dst(n)[0] = a[1] * b[2] - a[2] * b[1]
 * dst(n)[1] = a[2] * b[0] - a[0] * b[2]
 * dst(n)[2] = a[0] * b[1] - a[1] * b[0]
 *
 * with a from `src1` and b from `src2`. In `32f` products and difference are rounded one by one; in `64f` they stay in
 * 80 bits, and the component is rounded. Groups: `vv` two vectors, `vav` an array and a vector, `vva` a vector and an
 * array, `vava` two arrays. A single vector serves all objects.
 *
 * Status: vonkErrNullPtr if `src1`, `src2` or `dst` is null; vonkErrNullPtr if a table or list entry is null: in `P`
 * and `PS2` all entries before anything else, even at `count` 0; in `L` and `LS2` when the object's turn comes, earlier
 * objects being complete. `count` 0 then gives vonkOk with nothing written.
 *
 * Overlap:
 * Overlap is not checked. Both vectors are loaded before a component is stored, so `dst` may be either source.
 *
 * Exceptions:
 * - cross-zero-minus (arithmetic): vonkCrossProduct_{vav,vva}_32f_3x1_{S2,P,PS2,LS2}
 *   A component u v - w x is computed as u v + (0 - w) x. This shows in the sign of zeros, and in rounding modes other
 *   than to nearest.
 * - cross-negated (arithmetic): vonkCrossProduct_{vav,vva}_64f_3x1{,_S2,_P,_PS2,_L,_LS2}
 *   A component u v - w x is computed as u v + (-w) x. This shows in the sign of zeros, and in rounding modes other
 *   than to nearest.
 * - cross-by-component (overlap): vonkCrossProduct_{vav,vva}_32f_3x1_{S2,P,PS2,LS2}
 *     vonkCrossProduct_{vav,vva}_64f_3x1{,_S2,_P,_PS2,_L,_LS2}
 *   Each component is stored before the elements for the next one are loaded.
 * - cross-four-objects (overlap): vonkCrossProduct_vava_32f_3x1
 *   Works in blocks of four objects: four are loaded before four are stored. The results are the same.
 */

/** dst = cross product src1 x src2; 3 float; standard layout. */
VonkStatus vonkCrossProduct_vv_32f_3x1(const float *src1, const float *src2, float *dst);
/** dst = cross product src1 x src2; 3 float; S2, strided elements. */
VonkStatus vonkCrossProduct_vv_32f_3x1_S2(const float *src1, int32_t src1ElemStride, const float *src2,
    int32_t src2ElemStride, float *dst, int32_t dstElemStride);
/** dst = cross product src1 x src2; 3 float; P, one pointer per element position. */
VonkStatus vonkCrossProduct_vv_32f_3x1_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);

/** dst = cross product src1 x src2; 3 double; standard layout. */
VonkStatus vonkCrossProduct_vv_64f_3x1(const double *src1, const double *src2, double *dst);
/** dst = cross product src1 x src2; 3 double; S2, strided elements. */
VonkStatus vonkCrossProduct_vv_64f_3x1_S2(const double *src1, int32_t src1ElemStride, const double *src2,
    int32_t src2ElemStride, double *dst, int32_t dstElemStride);
/** dst = cross product src1 x src2; 3 double; P, one pointer per element position. */
VonkStatus vonkCrossProduct_vv_64f_3x1_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);

/** dst(n) = cross product src1(n) x src2; 3 float, n below count; standard layout. */
VonkStatus vonkCrossProduct_vav_32f_3x1(const float *src1, int32_t src1ObjStride, const float *src2, float *dst,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = cross product src1(n) x src2; 3 float, n below count; S2, strided elements. Exceptions: cross-zero-minus,
 * cross-by-component. */
VonkStatus vonkCrossProduct_vav_32f_3x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride,
    const float *src2, int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
/** dst(n) = cross product src1(n) x src2; 3 float, n below count; P, one pointer per element position. Exceptions:
 * cross-zero-minus, cross-by-component. */
VonkStatus vonkCrossProduct_vav_32f_3x1_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = cross product src1(n) x src2; 3 float, n below count; PS2, one pointer per element position, strided
 * objects. Exceptions: cross-zero-minus, cross-by-component. */
VonkStatus vonkCrossProduct_vav_32f_3x1_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = cross product src1(n) x src2; 3 float, n below count; L, one pointer per object. */
VonkStatus vonkCrossProduct_vav_32f_3x1_L(const float *const *src1, int32_t src1Shift, const float *src2,
    float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = cross product src1(n) x src2; 3 float, n below count; LS2, one pointer per object, strided elements.
 * Exceptions: cross-zero-minus, cross-by-component. */
VonkStatus vonkCrossProduct_vav_32f_3x1_LS2(const float *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const float *src2, int32_t src2ElemStride, float *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);

/** dst(n) = cross product src1(n) x src2; 3 double, n below count; standard layout. Exceptions: cross-negated,
 * cross-by-component. */
VonkStatus vonkCrossProduct_vav_64f_3x1(const double *src1, int32_t src1ObjStride, const double *src2, double *dst,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = cross product src1(n) x src2; 3 double, n below count; S2, strided elements. Exceptions: cross-negated,
 * cross-by-component. */
VonkStatus vonkCrossProduct_vav_64f_3x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = cross product src1(n) x src2; 3 double, n below count; P, one pointer per element position. Exceptions:
 * cross-negated, cross-by-component. */
VonkStatus vonkCrossProduct_vav_64f_3x1_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = cross product src1(n) x src2; 3 double, n below count; PS2, one pointer per element position, strided
 * objects. Exceptions: cross-negated, cross-by-component. */
VonkStatus vonkCrossProduct_vav_64f_3x1_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = cross product src1(n) x src2; 3 double, n below count; L, one pointer per object. Exceptions:
 * cross-negated, cross-by-component. */
VonkStatus vonkCrossProduct_vav_64f_3x1_L(const double *const *src1, int32_t src1Shift, const double *src2,
    double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = cross product src1(n) x src2; 3 double, n below count; LS2, one pointer per object, strided elements.
 * Exceptions: cross-negated, cross-by-component. */
VonkStatus vonkCrossProduct_vav_64f_3x1_LS2(const double *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const double *src2, int32_t src2ElemStride, double *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);

/** dst(n) = cross product src1 x src2(n); 3 float, n below count; standard layout. */
VonkStatus vonkCrossProduct_vva_32f_3x1(const float *src1, const float *src2, int32_t src2ObjStride, float *dst,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = cross product src1 x src2(n); 3 float, n below count; S2, strided elements. Exceptions: cross-zero-minus,
 * cross-by-component. */
VonkStatus vonkCrossProduct_vva_32f_3x1_S2(const float *src1, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = cross product src1 x src2(n); 3 float, n below count; P, one pointer per element position. Exceptions:
 * cross-zero-minus, cross-by-component. */
VonkStatus vonkCrossProduct_vva_32f_3x1_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = cross product src1 x src2(n); 3 float, n below count; PS2, one pointer per element position, strided
 * objects. Exceptions: cross-zero-minus, cross-by-component. */
VonkStatus vonkCrossProduct_vva_32f_3x1_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = cross product src1 x src2(n); 3 float, n below count; L, one pointer per object. */
VonkStatus vonkCrossProduct_vva_32f_3x1_L(const float *src1, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = cross product src1 x src2(n); 3 float, n below count; LS2, one pointer per object, strided elements.
 * Exceptions: cross-zero-minus, cross-by-component. */
VonkStatus vonkCrossProduct_vva_32f_3x1_LS2(const float *src1, int32_t src1ElemStride, const float *const *src2,
    int32_t src2Shift, int32_t src2ElemStride, float *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);

/** dst(n) = cross product src1 x src2(n); 3 double, n below count; standard layout. Exceptions: cross-negated,
 * cross-by-component. */
VonkStatus vonkCrossProduct_vva_64f_3x1(const double *src1, const double *src2, int32_t src2ObjStride, double *dst,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = cross product src1 x src2(n); 3 double, n below count; S2, strided elements. Exceptions: cross-negated,
 * cross-by-component. */
VonkStatus vonkCrossProduct_vva_64f_3x1_S2(const double *src1, int32_t src1ElemStride, const double *src2,
    int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride,
    uint32_t count);
/** dst(n) = cross product src1 x src2(n); 3 double, n below count; P, one pointer per element position. Exceptions:
 * cross-negated, cross-by-component. */
VonkStatus vonkCrossProduct_vva_64f_3x1_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = cross product src1 x src2(n); 3 double, n below count; PS2, one pointer per element position, strided
 * objects. Exceptions: cross-negated, cross-by-component. */
VonkStatus vonkCrossProduct_vva_64f_3x1_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
/** dst(n) = cross product src1 x src2(n); 3 double, n below count; L, one pointer per object. Exceptions:
 * cross-negated, cross-by-component. */
VonkStatus vonkCrossProduct_vva_64f_3x1_L(const double *src1, const double *const *src2, int32_t src2Shift,
    double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = cross product src1 x src2(n); 3 double, n below count; LS2, one pointer per object, strided elements.
 * Exceptions: cross-negated, cross-by-component. */
VonkStatus vonkCrossProduct_vva_64f_3x1_LS2(const double *src1, int32_t src1ElemStride, const double *const *src2,
    int32_t src2Shift, int32_t src2ElemStride, double *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);

/** dst(n) = cross product src1(n) x src2(n); 3 float, n below count; standard layout. Exception: cross-four-objects. */
VonkStatus vonkCrossProduct_vava_32f_3x1(const float *src1, int32_t src1ObjStride, const float *src2,
    int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = cross product src1(n) x src2(n); 3 float, n below count; S2, strided elements. */
VonkStatus vonkCrossProduct_vava_32f_3x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride,
    const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = cross product src1(n) x src2(n); 3 float, n below count; P, one pointer per element position. */
VonkStatus vonkCrossProduct_vava_32f_3x1_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = cross product src1(n) x src2(n); 3 float, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkCrossProduct_vava_32f_3x1_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = cross product src1(n) x src2(n); 3 float, n below count; L, one pointer per object. */
VonkStatus vonkCrossProduct_vava_32f_3x1_L(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = cross product src1(n) x src2(n); 3 float, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkCrossProduct_vava_32f_3x1_LS2(const float *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);

/** dst(n) = cross product src1(n) x src2(n); 3 double, n below count; standard layout. */
VonkStatus vonkCrossProduct_vava_64f_3x1(const double *src1, int32_t src1ObjStride, const double *src2,
    int32_t src2ObjStride, double *dst, int32_t dstObjStride, uint32_t count);
/** dst(n) = cross product src1(n) x src2(n); 3 double, n below count; S2, strided elements. */
VonkStatus vonkCrossProduct_vava_64f_3x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t count);
/** dst(n) = cross product src1(n) x src2(n); 3 double, n below count; P, one pointer per element position. */
VonkStatus vonkCrossProduct_vava_64f_3x1_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = cross product src1(n) x src2(n); 3 double, n below count; PS2, one pointer per element position, strided
 * objects. */
VonkStatus vonkCrossProduct_vava_64f_3x1_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
/** dst(n) = cross product src1(n) x src2(n); 3 double, n below count; L, one pointer per object. */
VonkStatus vonkCrossProduct_vava_64f_3x1_L(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
/** dst(n) = cross product src1(n) x src2(n); 3 double, n below count; LS2, one pointer per object, strided elements. */
VonkStatus vonkCrossProduct_vava_64f_3x1_LS2(const double *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);

#ifdef __cplusplus
}
#endif

#endif
