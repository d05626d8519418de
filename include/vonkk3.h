/* vonkk3: linear algebra on very many small matrices and vectors.
 *
 * Generated from the catalogue of functions; do not edit.
 *
 * Names: vonk<Op>_<operands>_<type>[_<size>][_<layout>]
 *
 *   operands  one group per source: m matrix, v vector, c constant; `a` behind m or v makes it an array of `count` like
 *             objects, `T` reads it transposed. The result is an array if any source is.
 *   type      32f float, 64f double
 *   size      3x3 to 6x6, or 3x1 to 6x1 for vectors; without it the size is a parameter
 *   layout    where element (i, j) of object n lies; p is the operand's pointer, e the element's size in bytes:
 *               (none)  p + n * ObjStride + i * RowStride + j * e
 *               S2      p + n * ObjStride + i * RowStride + j * ElemStride
 *               P       p[i * cols + j] + Shift + n * e                one pointer per element position
 *               PS2     p[i * cols + j] + Shift + n * ObjStride
 *               L       p[n] + Shift + i * RowStride + j * e           one pointer per object
 *               LS2     p[n] + Shift + i * RowStride + j * ElemStride
 *             A vector has no i. A single operand has no n: no ObjStride, and in L and LS2 a plain pointer without
 *             Shift.
 *
 * Units: every stride and shift is in BYTES, may be negative or zero, and is never tested. Sizes are in elements,
 * `count` in objects. Elements may lie at any address.
 *
 * A call allocates nothing, keeps nothing, takes no lock and may run beside any other that does not write the same
 * memory. float works in single precision, double in the 80-bit type; rounding mode and precision control are the
 * caller's and are left alone.
 *
 * Tests, in this order: pointers (vonkErrNullPtr), sizes (vonkErrSize), entries of tables where the family tests them
 * (vonkErrNullPtr), `count` 0 (vonkOk with nothing done). A failing call undoes nothing.
 *
 * In C, a table of pointers to elements that are not const needs a cast where a source table is expected:
 * (const float *const *)table.
 */
#ifndef VONKK3_H
#define VONKK3_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

typedef int32_t VonkStatus;

enum {
    vonkOk = 0,               /* done */
    vonkErrSize = -6,         /* a size is zero, or sizes do not fit each other */
    vonkErrNullPtr = -8,      /* a null pointer among the operands */
    vonkErrSingular = -10,    /* a pivot or divisor is below the family's tolerance */
    vonkErrNotPosDef = -179   /* the matrix is not positive definite */
};

/* Which build of the library this is. The record is constant and lives as long as the library is loaded. */
typedef struct VonkLibVersion {
    int32_t versionMajor;
    int32_t versionMinor;
    int32_t buildMajor;
    int32_t buildNumber;
    char cpuTag[4]; /* processor variant, zero-terminated */
    const char *libraryName;
    const char *versionText;
    const char *buildDateText;
} VonkLibVersion;

const VonkLibVersion *vonkGetLibVersion(void);

/* ---- Vector and vector ----------------------------------------------------------------------------------------------
 *
 * vonkAdd: dst(n, j) = src1(n, j) + src2(n, j)
 * vonkSub: dst(n, j) = src1(n, j) - src2(n, j)
 *
 * for j below `len` and each object n; one rounded operation per element. Groups: `vv` two vectors, `vav` an array and
 * a vector, `vva` a vector and an array (vonkSub only), `vava` two arrays. A single vector serves all objects.
 *
 * Status: vonkErrNullPtr if `src1`, `src2` or `dst` is null; vonkErrSize if `len` is 0; vonkErrNullPtr if a table or
 * list entry is null: in `vv` `P` entry by entry just before each element, earlier elements being final; in `P` and
 * `PS2` of arrays all entries of all tables ahead of everything else, even at `count` 0; in `L` and `LS2` when the
 * object's turn comes, earlier objects being complete. `count` 0 then gives vonkOk with nothing written.
 *
 * Members that behave unlike their siblings:
 * - vonkAdd_vv_32f and vonkSub_vv_32f are built for length: from 11 elements on, with a `dst` that overlaps no source
 *   and lies at a multiple of 4, they bring `dst` to a 16-byte boundary and work blocks of eight in four-lane
 *   registers. The results are those of the plain loop, which all other calls take.
 * - `32f` of fixed size, standard layout and `L`, with a single operand (`vav`, `vva`): the operand is loaded once,
 *   ahead of all objects. Everywhere else it is read anew for each object.
 * - `32f` of fixed size, standard layout and `L`, but for `3x1` of `vav` and `vva`: an object is loaded whole before
 *   it is stored.
 * - vonkAdd_vv_32f_4x1 alone looks at the alignment of its operands (vonkSub_vv_32f_4x1 does not), and
 *   vonkSub_vava_32f_3x1 alone takes objects in blocks of four with a prefetch. Neither changes a result.
 *
 * Overlap:
 * `dst` may be any source itself. Where it overlaps a source otherwise, elements are read and written in ascending
 * order, so a `dst` that runs ahead of a source sees new elements. Fixed sizes of `32f` in the standard layout and `L`
 * load an object whole before they store it; how 5 and 6 elements meet a partial overlap is not promised.
 *
 * Read beyond the operands:
 * Nothing.
 */

VonkStatus vonkAdd_vv_32f(const float *src1, const float *src2, float *dst, uint32_t len);
VonkStatus vonkAdd_vv_32f_S2(const float *src1, int32_t src1ElemStride, const float *src2, int32_t src2ElemStride,
    float *dst, int32_t dstElemStride, uint32_t len);
VonkStatus vonkAdd_vv_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t len);
VonkStatus vonkAdd_vv_32f_3x1(const float *src1, const float *src2, float *dst);
VonkStatus vonkAdd_vv_32f_3x1_S2(const float *src1, int32_t src1ElemStride, const float *src2, int32_t src2ElemStride,
    float *dst, int32_t dstElemStride);
VonkStatus vonkAdd_vv_32f_3x1_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
VonkStatus vonkAdd_vv_32f_4x1(const float *src1, const float *src2, float *dst);
VonkStatus vonkAdd_vv_32f_4x1_S2(const float *src1, int32_t src1ElemStride, const float *src2, int32_t src2ElemStride,
    float *dst, int32_t dstElemStride);
VonkStatus vonkAdd_vv_32f_4x1_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
VonkStatus vonkAdd_vv_32f_5x1(const float *src1, const float *src2, float *dst);
VonkStatus vonkAdd_vv_32f_5x1_S2(const float *src1, int32_t src1ElemStride, const float *src2, int32_t src2ElemStride,
    float *dst, int32_t dstElemStride);
VonkStatus vonkAdd_vv_32f_5x1_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
VonkStatus vonkAdd_vv_32f_6x1(const float *src1, const float *src2, float *dst);
VonkStatus vonkAdd_vv_32f_6x1_S2(const float *src1, int32_t src1ElemStride, const float *src2, int32_t src2ElemStride,
    float *dst, int32_t dstElemStride);
VonkStatus vonkAdd_vv_32f_6x1_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);

VonkStatus vonkAdd_vv_64f(const double *src1, const double *src2, double *dst, uint32_t len);
VonkStatus vonkAdd_vv_64f_S2(const double *src1, int32_t src1ElemStride, const double *src2, int32_t src2ElemStride,
    double *dst, int32_t dstElemStride, uint32_t len);
VonkStatus vonkAdd_vv_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2, int32_t src2Shift,
    double *const *dst, int32_t dstShift, uint32_t len);
VonkStatus vonkAdd_vv_64f_3x1(const double *src1, const double *src2, double *dst);
VonkStatus vonkAdd_vv_64f_3x1_S2(const double *src1, int32_t src1ElemStride, const double *src2, int32_t src2ElemStride,
    double *dst, int32_t dstElemStride);
VonkStatus vonkAdd_vv_64f_3x1_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
VonkStatus vonkAdd_vv_64f_4x1(const double *src1, const double *src2, double *dst);
VonkStatus vonkAdd_vv_64f_4x1_S2(const double *src1, int32_t src1ElemStride, const double *src2, int32_t src2ElemStride,
    double *dst, int32_t dstElemStride);
VonkStatus vonkAdd_vv_64f_4x1_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
VonkStatus vonkAdd_vv_64f_5x1(const double *src1, const double *src2, double *dst);
VonkStatus vonkAdd_vv_64f_5x1_S2(const double *src1, int32_t src1ElemStride, const double *src2, int32_t src2ElemStride,
    double *dst, int32_t dstElemStride);
VonkStatus vonkAdd_vv_64f_5x1_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
VonkStatus vonkAdd_vv_64f_6x1(const double *src1, const double *src2, double *dst);
VonkStatus vonkAdd_vv_64f_6x1_S2(const double *src1, int32_t src1ElemStride, const double *src2, int32_t src2ElemStride,
    double *dst, int32_t dstElemStride);
VonkStatus vonkAdd_vv_64f_6x1_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);

VonkStatus vonkAdd_vav_32f(const float *src1, int32_t src1ObjStride, const float *src2, float *dst,
    int32_t dstObjStride, uint32_t len, uint32_t count);
VonkStatus vonkAdd_vav_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t len, uint32_t count);
VonkStatus vonkAdd_vav_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t len, uint32_t count);
VonkStatus vonkAdd_vav_32f_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t len, uint32_t count);
VonkStatus vonkAdd_vav_32f_L(const float *const *src1, int32_t src1Shift, const float *src2, float *const *dst,
    int32_t dstShift, uint32_t len, uint32_t count);
VonkStatus vonkAdd_vav_32f_LS2(const float *const *src1, int32_t src1Shift, int32_t src1ElemStride, const float *src2,
    int32_t src2ElemStride, float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t len, uint32_t count);
VonkStatus vonkAdd_vav_32f_3x1(const float *src1, int32_t src1ObjStride, const float *src2, float *dst,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkAdd_vav_32f_3x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_vav_32f_3x1_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_vav_32f_3x1_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkAdd_vav_32f_3x1_L(const float *const *src1, int32_t src1Shift, const float *src2, float *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_vav_32f_3x1_LS2(const float *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const float *src2, int32_t src2ElemStride, float *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);
VonkStatus vonkAdd_vav_32f_4x1(const float *src1, int32_t src1ObjStride, const float *src2, float *dst,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkAdd_vav_32f_4x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_vav_32f_4x1_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_vav_32f_4x1_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkAdd_vav_32f_4x1_L(const float *const *src1, int32_t src1Shift, const float *src2, float *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_vav_32f_4x1_LS2(const float *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const float *src2, int32_t src2ElemStride, float *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);
VonkStatus vonkAdd_vav_32f_5x1(const float *src1, int32_t src1ObjStride, const float *src2, float *dst,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkAdd_vav_32f_5x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_vav_32f_5x1_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_vav_32f_5x1_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkAdd_vav_32f_5x1_L(const float *const *src1, int32_t src1Shift, const float *src2, float *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_vav_32f_5x1_LS2(const float *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const float *src2, int32_t src2ElemStride, float *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);
VonkStatus vonkAdd_vav_32f_6x1(const float *src1, int32_t src1ObjStride, const float *src2, float *dst,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkAdd_vav_32f_6x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_vav_32f_6x1_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_vav_32f_6x1_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkAdd_vav_32f_6x1_L(const float *const *src1, int32_t src1Shift, const float *src2, float *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_vav_32f_6x1_LS2(const float *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const float *src2, int32_t src2ElemStride, float *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);

VonkStatus vonkAdd_vav_64f(const double *src1, int32_t src1ObjStride, const double *src2, double *dst,
    int32_t dstObjStride, uint32_t len, uint32_t count);
VonkStatus vonkAdd_vav_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t len, uint32_t count);
VonkStatus vonkAdd_vav_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2, int32_t src2Shift,
    double *const *dst, int32_t dstShift, uint32_t len, uint32_t count);
VonkStatus vonkAdd_vav_64f_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t len, uint32_t count);
VonkStatus vonkAdd_vav_64f_L(const double *const *src1, int32_t src1Shift, const double *src2, double *const *dst,
    int32_t dstShift, uint32_t len, uint32_t count);
VonkStatus vonkAdd_vav_64f_LS2(const double *const *src1, int32_t src1Shift, int32_t src1ElemStride, const double *src2,
    int32_t src2ElemStride, double *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t len, uint32_t count);
VonkStatus vonkAdd_vav_64f_3x1(const double *src1, int32_t src1ObjStride, const double *src2, double *dst,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkAdd_vav_64f_3x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_vav_64f_3x1_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_vav_64f_3x1_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkAdd_vav_64f_3x1_L(const double *const *src1, int32_t src1Shift, const double *src2, double *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_vav_64f_3x1_LS2(const double *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const double *src2, int32_t src2ElemStride, double *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);
VonkStatus vonkAdd_vav_64f_4x1(const double *src1, int32_t src1ObjStride, const double *src2, double *dst,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkAdd_vav_64f_4x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_vav_64f_4x1_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_vav_64f_4x1_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkAdd_vav_64f_4x1_L(const double *const *src1, int32_t src1Shift, const double *src2, double *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_vav_64f_4x1_LS2(const double *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const double *src2, int32_t src2ElemStride, double *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);
VonkStatus vonkAdd_vav_64f_5x1(const double *src1, int32_t src1ObjStride, const double *src2, double *dst,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkAdd_vav_64f_5x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_vav_64f_5x1_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_vav_64f_5x1_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkAdd_vav_64f_5x1_L(const double *const *src1, int32_t src1Shift, const double *src2, double *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_vav_64f_5x1_LS2(const double *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const double *src2, int32_t src2ElemStride, double *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);
VonkStatus vonkAdd_vav_64f_6x1(const double *src1, int32_t src1ObjStride, const double *src2, double *dst,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkAdd_vav_64f_6x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_vav_64f_6x1_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_vav_64f_6x1_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkAdd_vav_64f_6x1_L(const double *const *src1, int32_t src1Shift, const double *src2, double *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_vav_64f_6x1_LS2(const double *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const double *src2, int32_t src2ElemStride, double *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);

VonkStatus vonkAdd_vava_32f(const float *src1, int32_t src1ObjStride, const float *src2, int32_t src2ObjStride,
    float *dst, int32_t dstObjStride, uint32_t len, uint32_t count);
VonkStatus vonkAdd_vava_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride,
    uint32_t len, uint32_t count);
VonkStatus vonkAdd_vava_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t len, uint32_t count);
VonkStatus vonkAdd_vava_32f_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t len, uint32_t count);
VonkStatus vonkAdd_vava_32f_L(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t len, uint32_t count);
VonkStatus vonkAdd_vava_32f_LS2(const float *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t len, uint32_t count);
VonkStatus vonkAdd_vava_32f_3x1(const float *src1, int32_t src1ObjStride, const float *src2, int32_t src2ObjStride,
    float *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkAdd_vava_32f_3x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride,
    uint32_t count);
VonkStatus vonkAdd_vava_32f_3x1_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_vava_32f_3x1_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkAdd_vava_32f_3x1_L(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_vava_32f_3x1_LS2(const float *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_vava_32f_4x1(const float *src1, int32_t src1ObjStride, const float *src2, int32_t src2ObjStride,
    float *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkAdd_vava_32f_4x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride,
    uint32_t count);
VonkStatus vonkAdd_vava_32f_4x1_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_vava_32f_4x1_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkAdd_vava_32f_4x1_L(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_vava_32f_4x1_LS2(const float *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_vava_32f_5x1(const float *src1, int32_t src1ObjStride, const float *src2, int32_t src2ObjStride,
    float *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkAdd_vava_32f_5x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride,
    uint32_t count);
VonkStatus vonkAdd_vava_32f_5x1_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_vava_32f_5x1_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkAdd_vava_32f_5x1_L(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_vava_32f_5x1_LS2(const float *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_vava_32f_6x1(const float *src1, int32_t src1ObjStride, const float *src2, int32_t src2ObjStride,
    float *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkAdd_vava_32f_6x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride,
    uint32_t count);
VonkStatus vonkAdd_vava_32f_6x1_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_vava_32f_6x1_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkAdd_vava_32f_6x1_L(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_vava_32f_6x1_LS2(const float *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);

VonkStatus vonkAdd_vava_64f(const double *src1, int32_t src1ObjStride, const double *src2, int32_t src2ObjStride,
    double *dst, int32_t dstObjStride, uint32_t len, uint32_t count);
VonkStatus vonkAdd_vava_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride,
    uint32_t len, uint32_t count);
VonkStatus vonkAdd_vava_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t len, uint32_t count);
VonkStatus vonkAdd_vava_64f_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t len, uint32_t count);
VonkStatus vonkAdd_vava_64f_L(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t len, uint32_t count);
VonkStatus vonkAdd_vava_64f_LS2(const double *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t len, uint32_t count);
VonkStatus vonkAdd_vava_64f_3x1(const double *src1, int32_t src1ObjStride, const double *src2, int32_t src2ObjStride,
    double *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkAdd_vava_64f_3x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_vava_64f_3x1_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_vava_64f_3x1_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkAdd_vava_64f_3x1_L(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_vava_64f_3x1_LS2(const double *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_vava_64f_4x1(const double *src1, int32_t src1ObjStride, const double *src2, int32_t src2ObjStride,
    double *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkAdd_vava_64f_4x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_vava_64f_4x1_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_vava_64f_4x1_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkAdd_vava_64f_4x1_L(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_vava_64f_4x1_LS2(const double *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_vava_64f_5x1(const double *src1, int32_t src1ObjStride, const double *src2, int32_t src2ObjStride,
    double *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkAdd_vava_64f_5x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_vava_64f_5x1_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_vava_64f_5x1_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkAdd_vava_64f_5x1_L(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_vava_64f_5x1_LS2(const double *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_vava_64f_6x1(const double *src1, int32_t src1ObjStride, const double *src2, int32_t src2ObjStride,
    double *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkAdd_vava_64f_6x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_vava_64f_6x1_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_vava_64f_6x1_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkAdd_vava_64f_6x1_L(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_vava_64f_6x1_LS2(const double *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);

VonkStatus vonkSub_vv_32f(const float *src1, const float *src2, float *dst, uint32_t len);
VonkStatus vonkSub_vv_32f_S2(const float *src1, int32_t src1ElemStride, const float *src2, int32_t src2ElemStride,
    float *dst, int32_t dstElemStride, uint32_t len);
VonkStatus vonkSub_vv_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t len);
VonkStatus vonkSub_vv_32f_3x1(const float *src1, const float *src2, float *dst);
VonkStatus vonkSub_vv_32f_3x1_S2(const float *src1, int32_t src1ElemStride, const float *src2, int32_t src2ElemStride,
    float *dst, int32_t dstElemStride);
VonkStatus vonkSub_vv_32f_3x1_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
VonkStatus vonkSub_vv_32f_4x1(const float *src1, const float *src2, float *dst);
VonkStatus vonkSub_vv_32f_4x1_S2(const float *src1, int32_t src1ElemStride, const float *src2, int32_t src2ElemStride,
    float *dst, int32_t dstElemStride);
VonkStatus vonkSub_vv_32f_4x1_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
VonkStatus vonkSub_vv_32f_5x1(const float *src1, const float *src2, float *dst);
VonkStatus vonkSub_vv_32f_5x1_S2(const float *src1, int32_t src1ElemStride, const float *src2, int32_t src2ElemStride,
    float *dst, int32_t dstElemStride);
VonkStatus vonkSub_vv_32f_5x1_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
VonkStatus vonkSub_vv_32f_6x1(const float *src1, const float *src2, float *dst);
VonkStatus vonkSub_vv_32f_6x1_S2(const float *src1, int32_t src1ElemStride, const float *src2, int32_t src2ElemStride,
    float *dst, int32_t dstElemStride);
VonkStatus vonkSub_vv_32f_6x1_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);

VonkStatus vonkSub_vv_64f(const double *src1, const double *src2, double *dst, uint32_t len);
VonkStatus vonkSub_vv_64f_S2(const double *src1, int32_t src1ElemStride, const double *src2, int32_t src2ElemStride,
    double *dst, int32_t dstElemStride, uint32_t len);
VonkStatus vonkSub_vv_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2, int32_t src2Shift,
    double *const *dst, int32_t dstShift, uint32_t len);
VonkStatus vonkSub_vv_64f_3x1(const double *src1, const double *src2, double *dst);
VonkStatus vonkSub_vv_64f_3x1_S2(const double *src1, int32_t src1ElemStride, const double *src2, int32_t src2ElemStride,
    double *dst, int32_t dstElemStride);
VonkStatus vonkSub_vv_64f_3x1_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
VonkStatus vonkSub_vv_64f_4x1(const double *src1, const double *src2, double *dst);
VonkStatus vonkSub_vv_64f_4x1_S2(const double *src1, int32_t src1ElemStride, const double *src2, int32_t src2ElemStride,
    double *dst, int32_t dstElemStride);
VonkStatus vonkSub_vv_64f_4x1_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
VonkStatus vonkSub_vv_64f_5x1(const double *src1, const double *src2, double *dst);
VonkStatus vonkSub_vv_64f_5x1_S2(const double *src1, int32_t src1ElemStride, const double *src2, int32_t src2ElemStride,
    double *dst, int32_t dstElemStride);
VonkStatus vonkSub_vv_64f_5x1_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
VonkStatus vonkSub_vv_64f_6x1(const double *src1, const double *src2, double *dst);
VonkStatus vonkSub_vv_64f_6x1_S2(const double *src1, int32_t src1ElemStride, const double *src2, int32_t src2ElemStride,
    double *dst, int32_t dstElemStride);
VonkStatus vonkSub_vv_64f_6x1_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);

VonkStatus vonkSub_vav_32f(const float *src1, int32_t src1ObjStride, const float *src2, float *dst,
    int32_t dstObjStride, uint32_t len, uint32_t count);
VonkStatus vonkSub_vav_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t len, uint32_t count);
VonkStatus vonkSub_vav_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t len, uint32_t count);
VonkStatus vonkSub_vav_32f_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t len, uint32_t count);
VonkStatus vonkSub_vav_32f_L(const float *const *src1, int32_t src1Shift, const float *src2, float *const *dst,
    int32_t dstShift, uint32_t len, uint32_t count);
VonkStatus vonkSub_vav_32f_LS2(const float *const *src1, int32_t src1Shift, int32_t src1ElemStride, const float *src2,
    int32_t src2ElemStride, float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t len, uint32_t count);
VonkStatus vonkSub_vav_32f_3x1(const float *src1, int32_t src1ObjStride, const float *src2, float *dst,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkSub_vav_32f_3x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_vav_32f_3x1_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_vav_32f_3x1_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_vav_32f_3x1_L(const float *const *src1, int32_t src1Shift, const float *src2, float *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkSub_vav_32f_3x1_LS2(const float *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const float *src2, int32_t src2ElemStride, float *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);
VonkStatus vonkSub_vav_32f_4x1(const float *src1, int32_t src1ObjStride, const float *src2, float *dst,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkSub_vav_32f_4x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_vav_32f_4x1_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_vav_32f_4x1_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_vav_32f_4x1_L(const float *const *src1, int32_t src1Shift, const float *src2, float *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkSub_vav_32f_4x1_LS2(const float *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const float *src2, int32_t src2ElemStride, float *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);
VonkStatus vonkSub_vav_32f_5x1(const float *src1, int32_t src1ObjStride, const float *src2, float *dst,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkSub_vav_32f_5x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_vav_32f_5x1_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_vav_32f_5x1_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_vav_32f_5x1_L(const float *const *src1, int32_t src1Shift, const float *src2, float *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkSub_vav_32f_5x1_LS2(const float *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const float *src2, int32_t src2ElemStride, float *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);
VonkStatus vonkSub_vav_32f_6x1(const float *src1, int32_t src1ObjStride, const float *src2, float *dst,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkSub_vav_32f_6x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_vav_32f_6x1_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_vav_32f_6x1_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_vav_32f_6x1_L(const float *const *src1, int32_t src1Shift, const float *src2, float *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkSub_vav_32f_6x1_LS2(const float *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const float *src2, int32_t src2ElemStride, float *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);

VonkStatus vonkSub_vav_64f(const double *src1, int32_t src1ObjStride, const double *src2, double *dst,
    int32_t dstObjStride, uint32_t len, uint32_t count);
VonkStatus vonkSub_vav_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t len, uint32_t count);
VonkStatus vonkSub_vav_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2, int32_t src2Shift,
    double *const *dst, int32_t dstShift, uint32_t len, uint32_t count);
VonkStatus vonkSub_vav_64f_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t len, uint32_t count);
VonkStatus vonkSub_vav_64f_L(const double *const *src1, int32_t src1Shift, const double *src2, double *const *dst,
    int32_t dstShift, uint32_t len, uint32_t count);
VonkStatus vonkSub_vav_64f_LS2(const double *const *src1, int32_t src1Shift, int32_t src1ElemStride, const double *src2,
    int32_t src2ElemStride, double *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t len, uint32_t count);
VonkStatus vonkSub_vav_64f_3x1(const double *src1, int32_t src1ObjStride, const double *src2, double *dst,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkSub_vav_64f_3x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_vav_64f_3x1_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_vav_64f_3x1_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_vav_64f_3x1_L(const double *const *src1, int32_t src1Shift, const double *src2, double *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkSub_vav_64f_3x1_LS2(const double *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const double *src2, int32_t src2ElemStride, double *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);
VonkStatus vonkSub_vav_64f_4x1(const double *src1, int32_t src1ObjStride, const double *src2, double *dst,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkSub_vav_64f_4x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_vav_64f_4x1_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_vav_64f_4x1_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_vav_64f_4x1_L(const double *const *src1, int32_t src1Shift, const double *src2, double *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkSub_vav_64f_4x1_LS2(const double *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const double *src2, int32_t src2ElemStride, double *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);
VonkStatus vonkSub_vav_64f_5x1(const double *src1, int32_t src1ObjStride, const double *src2, double *dst,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkSub_vav_64f_5x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_vav_64f_5x1_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_vav_64f_5x1_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_vav_64f_5x1_L(const double *const *src1, int32_t src1Shift, const double *src2, double *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkSub_vav_64f_5x1_LS2(const double *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const double *src2, int32_t src2ElemStride, double *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);
VonkStatus vonkSub_vav_64f_6x1(const double *src1, int32_t src1ObjStride, const double *src2, double *dst,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkSub_vav_64f_6x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_vav_64f_6x1_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_vav_64f_6x1_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_vav_64f_6x1_L(const double *const *src1, int32_t src1Shift, const double *src2, double *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkSub_vav_64f_6x1_LS2(const double *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const double *src2, int32_t src2ElemStride, double *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);

VonkStatus vonkSub_vva_32f(const float *src1, const float *src2, int32_t src2ObjStride, float *dst,
    int32_t dstObjStride, uint32_t len, uint32_t count);
VonkStatus vonkSub_vva_32f_S2(const float *src1, int32_t src1ElemStride, const float *src2, int32_t src2ObjStride,
    int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t len, uint32_t count);
VonkStatus vonkSub_vva_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t len, uint32_t count);
VonkStatus vonkSub_vva_32f_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t len, uint32_t count);
VonkStatus vonkSub_vva_32f_L(const float *src1, const float *const *src2, int32_t src2Shift, float *const *dst,
    int32_t dstShift, uint32_t len, uint32_t count);
VonkStatus vonkSub_vva_32f_LS2(const float *src1, int32_t src1ElemStride, const float *const *src2, int32_t src2Shift,
    int32_t src2ElemStride, float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t len, uint32_t count);
VonkStatus vonkSub_vva_32f_3x1(const float *src1, const float *src2, int32_t src2ObjStride, float *dst,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkSub_vva_32f_3x1_S2(const float *src1, int32_t src1ElemStride, const float *src2, int32_t src2ObjStride,
    int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_vva_32f_3x1_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_vva_32f_3x1_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_vva_32f_3x1_L(const float *src1, const float *const *src2, int32_t src2Shift, float *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkSub_vva_32f_3x1_LS2(const float *src1, int32_t src1ElemStride, const float *const *src2,
    int32_t src2Shift, int32_t src2ElemStride, float *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);
VonkStatus vonkSub_vva_32f_4x1(const float *src1, const float *src2, int32_t src2ObjStride, float *dst,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkSub_vva_32f_4x1_S2(const float *src1, int32_t src1ElemStride, const float *src2, int32_t src2ObjStride,
    int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_vva_32f_4x1_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_vva_32f_4x1_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_vva_32f_4x1_L(const float *src1, const float *const *src2, int32_t src2Shift, float *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkSub_vva_32f_4x1_LS2(const float *src1, int32_t src1ElemStride, const float *const *src2,
    int32_t src2Shift, int32_t src2ElemStride, float *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);
VonkStatus vonkSub_vva_32f_5x1(const float *src1, const float *src2, int32_t src2ObjStride, float *dst,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkSub_vva_32f_5x1_S2(const float *src1, int32_t src1ElemStride, const float *src2, int32_t src2ObjStride,
    int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_vva_32f_5x1_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_vva_32f_5x1_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_vva_32f_5x1_L(const float *src1, const float *const *src2, int32_t src2Shift, float *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkSub_vva_32f_5x1_LS2(const float *src1, int32_t src1ElemStride, const float *const *src2,
    int32_t src2Shift, int32_t src2ElemStride, float *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);
VonkStatus vonkSub_vva_32f_6x1(const float *src1, const float *src2, int32_t src2ObjStride, float *dst,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkSub_vva_32f_6x1_S2(const float *src1, int32_t src1ElemStride, const float *src2, int32_t src2ObjStride,
    int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_vva_32f_6x1_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_vva_32f_6x1_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_vva_32f_6x1_L(const float *src1, const float *const *src2, int32_t src2Shift, float *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkSub_vva_32f_6x1_LS2(const float *src1, int32_t src1ElemStride, const float *const *src2,
    int32_t src2Shift, int32_t src2ElemStride, float *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);

VonkStatus vonkSub_vva_64f(const double *src1, const double *src2, int32_t src2ObjStride, double *dst,
    int32_t dstObjStride, uint32_t len, uint32_t count);
VonkStatus vonkSub_vva_64f_S2(const double *src1, int32_t src1ElemStride, const double *src2, int32_t src2ObjStride,
    int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t len, uint32_t count);
VonkStatus vonkSub_vva_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2, int32_t src2Shift,
    double *const *dst, int32_t dstShift, uint32_t len, uint32_t count);
VonkStatus vonkSub_vva_64f_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t len,
    uint32_t count);
VonkStatus vonkSub_vva_64f_L(const double *src1, const double *const *src2, int32_t src2Shift, double *const *dst,
    int32_t dstShift, uint32_t len, uint32_t count);
VonkStatus vonkSub_vva_64f_LS2(const double *src1, int32_t src1ElemStride, const double *const *src2, int32_t src2Shift,
    int32_t src2ElemStride, double *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t len, uint32_t count);
VonkStatus vonkSub_vva_64f_3x1(const double *src1, const double *src2, int32_t src2ObjStride, double *dst,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkSub_vva_64f_3x1_S2(const double *src1, int32_t src1ElemStride, const double *src2, int32_t src2ObjStride,
    int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_vva_64f_3x1_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_vva_64f_3x1_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_vva_64f_3x1_L(const double *src1, const double *const *src2, int32_t src2Shift, double *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkSub_vva_64f_3x1_LS2(const double *src1, int32_t src1ElemStride, const double *const *src2,
    int32_t src2Shift, int32_t src2ElemStride, double *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);
VonkStatus vonkSub_vva_64f_4x1(const double *src1, const double *src2, int32_t src2ObjStride, double *dst,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkSub_vva_64f_4x1_S2(const double *src1, int32_t src1ElemStride, const double *src2, int32_t src2ObjStride,
    int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_vva_64f_4x1_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_vva_64f_4x1_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_vva_64f_4x1_L(const double *src1, const double *const *src2, int32_t src2Shift, double *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkSub_vva_64f_4x1_LS2(const double *src1, int32_t src1ElemStride, const double *const *src2,
    int32_t src2Shift, int32_t src2ElemStride, double *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);
VonkStatus vonkSub_vva_64f_5x1(const double *src1, const double *src2, int32_t src2ObjStride, double *dst,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkSub_vva_64f_5x1_S2(const double *src1, int32_t src1ElemStride, const double *src2, int32_t src2ObjStride,
    int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_vva_64f_5x1_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_vva_64f_5x1_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_vva_64f_5x1_L(const double *src1, const double *const *src2, int32_t src2Shift, double *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkSub_vva_64f_5x1_LS2(const double *src1, int32_t src1ElemStride, const double *const *src2,
    int32_t src2Shift, int32_t src2ElemStride, double *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);
VonkStatus vonkSub_vva_64f_6x1(const double *src1, const double *src2, int32_t src2ObjStride, double *dst,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkSub_vva_64f_6x1_S2(const double *src1, int32_t src1ElemStride, const double *src2, int32_t src2ObjStride,
    int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_vva_64f_6x1_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_vva_64f_6x1_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_vva_64f_6x1_L(const double *src1, const double *const *src2, int32_t src2Shift, double *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkSub_vva_64f_6x1_LS2(const double *src1, int32_t src1ElemStride, const double *const *src2,
    int32_t src2Shift, int32_t src2ElemStride, double *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);

VonkStatus vonkSub_vava_32f(const float *src1, int32_t src1ObjStride, const float *src2, int32_t src2ObjStride,
    float *dst, int32_t dstObjStride, uint32_t len, uint32_t count);
VonkStatus vonkSub_vava_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride,
    uint32_t len, uint32_t count);
VonkStatus vonkSub_vava_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t len, uint32_t count);
VonkStatus vonkSub_vava_32f_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t len, uint32_t count);
VonkStatus vonkSub_vava_32f_L(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t len, uint32_t count);
VonkStatus vonkSub_vava_32f_LS2(const float *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t len, uint32_t count);
VonkStatus vonkSub_vava_32f_3x1(const float *src1, int32_t src1ObjStride, const float *src2, int32_t src2ObjStride,
    float *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkSub_vava_32f_3x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride,
    uint32_t count);
VonkStatus vonkSub_vava_32f_3x1_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_vava_32f_3x1_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkSub_vava_32f_3x1_L(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_vava_32f_3x1_LS2(const float *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_vava_32f_4x1(const float *src1, int32_t src1ObjStride, const float *src2, int32_t src2ObjStride,
    float *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkSub_vava_32f_4x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride,
    uint32_t count);
VonkStatus vonkSub_vava_32f_4x1_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_vava_32f_4x1_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkSub_vava_32f_4x1_L(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_vava_32f_4x1_LS2(const float *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_vava_32f_5x1(const float *src1, int32_t src1ObjStride, const float *src2, int32_t src2ObjStride,
    float *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkSub_vava_32f_5x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride,
    uint32_t count);
VonkStatus vonkSub_vava_32f_5x1_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_vava_32f_5x1_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkSub_vava_32f_5x1_L(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_vava_32f_5x1_LS2(const float *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_vava_32f_6x1(const float *src1, int32_t src1ObjStride, const float *src2, int32_t src2ObjStride,
    float *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkSub_vava_32f_6x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride,
    uint32_t count);
VonkStatus vonkSub_vava_32f_6x1_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_vava_32f_6x1_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkSub_vava_32f_6x1_L(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_vava_32f_6x1_LS2(const float *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);

VonkStatus vonkSub_vava_64f(const double *src1, int32_t src1ObjStride, const double *src2, int32_t src2ObjStride,
    double *dst, int32_t dstObjStride, uint32_t len, uint32_t count);
VonkStatus vonkSub_vava_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride,
    uint32_t len, uint32_t count);
VonkStatus vonkSub_vava_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t len, uint32_t count);
VonkStatus vonkSub_vava_64f_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t len, uint32_t count);
VonkStatus vonkSub_vava_64f_L(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t len, uint32_t count);
VonkStatus vonkSub_vava_64f_LS2(const double *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t len, uint32_t count);
VonkStatus vonkSub_vava_64f_3x1(const double *src1, int32_t src1ObjStride, const double *src2, int32_t src2ObjStride,
    double *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkSub_vava_64f_3x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_vava_64f_3x1_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_vava_64f_3x1_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkSub_vava_64f_3x1_L(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_vava_64f_3x1_LS2(const double *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_vava_64f_4x1(const double *src1, int32_t src1ObjStride, const double *src2, int32_t src2ObjStride,
    double *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkSub_vava_64f_4x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_vava_64f_4x1_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_vava_64f_4x1_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkSub_vava_64f_4x1_L(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_vava_64f_4x1_LS2(const double *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_vava_64f_5x1(const double *src1, int32_t src1ObjStride, const double *src2, int32_t src2ObjStride,
    double *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkSub_vava_64f_5x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_vava_64f_5x1_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_vava_64f_5x1_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkSub_vava_64f_5x1_L(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_vava_64f_5x1_LS2(const double *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_vava_64f_6x1(const double *src1, int32_t src1ObjStride, const double *src2, int32_t src2ObjStride,
    double *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkSub_vava_64f_6x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_vava_64f_6x1_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_vava_64f_6x1_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkSub_vava_64f_6x1_L(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_vava_64f_6x1_LS2(const double *const *src1, int32_t src1Shift, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);

/* ---- Matrix and matrix ----------------------------------------------------------------------------------------------
 *
 * vonkAdd: dst(n, i, j) = A(n, i, j) + B(n, i, j)
 * vonkSub: dst(n, i, j) = A(n, i, j) - B(n, i, j)
 *
 * with A(n, i, j) = src1(n, i, j), or src1(n, j, i) if the first operand carries `T`, and B alike from `src2`. A single
 * operand serves all objects. One rounded operation and one store per element; `64f` adds in the 80-bit type and
 * rounds to 64 bits. Objects, rows and columns ascend.
 *
 * Sizes: `cols` and `rows` are those of `dst`. A transposed operand is stored as `cols` rows of `rows` columns, in
 * pointer layouts too: its entry for A(i, j) is j * `rows` + i.
 *
 * Status: vonkErrNullPtr if `src1`, `src2` or `dst` is null; vonkErrSize if `cols` or `rows` is 0; vonkErrNullPtr if a
 * table or list entry is null: in single forms in `P` element by element, earlier elements being final; in `P` and
 * `PS2` of arrays all entries of all tables ahead of everything else, even at `count` 0; in `L` and `LS2` when the
 * object's turn comes, earlier objects being complete. `count` 0 then gives vonkOk with nothing written.
 *
 * Members that behave unlike their siblings:
 * - `mam` and `mamT` of `32f`, 3x3, in the standard layout and `L` load an object before they store the one ahead of
 *   it, and work one object at `count` 0 as they do at 1. In `L` they test the first entry of `src1` and entry
 *   `count` - 1 of `dst` first, at `count` 0 that is the entry ahead of the list, through which they store; then the
 *   entries of object n + 1 ahead of the store of object n: a null entry k leaves the objects below k - 1 complete.
 *   Entry 0 of `dst` is tested at no `count` but 1, and followed if null.
 * - `mamT` of these four walks the rows of `src2` with `src1RowStride`; `src2RowStride` is not read.
 * - vonkSub_mTmT_32f_6x6: row 3 of `dst` repeats row 2.
 * - vonkSub_maTmaT_32f_6x6 and its `L` form: element (i, j) is src1(r, c) - src2(r, c) with r and c from row i, column
 *   j of
 *       00 04 20 24 40 44
 *       01 05 21 25 41 45
 *       02 14 22 34 42 54
 *       02 14 22 34 42 54
 *       10 12 30 32 50 52
 *       11 13 31 33 51 53
 * - `mmT`, `mTm` and `mTmT` of 4x4 in `P`, both types, never test the entry at position 8 of a transposed operand's
 *   table: a null there is followed.
 * - `32f` of 3x3 and 4x4 in the standard layout and `L` loads a single operand once, ahead of all objects. All other
 *   forms read it anew for each object.
 * - Some members of `32f` look whether all rows lie at multiples of 16 bytes: 3x3 `maTm`; 4x4 `mam`, vonkAdd `mama`,
 *   vonkSub `mma`, `mm` (standard) and `mama` (`L`); 5x5 `mama`, vonkSub `mma` and `mam` (standard); 6x6 `mam`, and
 *   vonkAdd `mama` (standard). No result depends on it.
 *
 * Overlap:
 * Nothing tests overlap. `dst` may be any source itself unless that is read transposed: each element is read before
 * it is written. Otherwise elements are read and written in ascending order, so a `dst` that runs ahead of a source
 * sees new elements; `32f` of fixed size in the standard layout and `L` loads a row or more before it stores it, and
 * how much is not promised.
 *
 * Read beyond the operands:
 * `32f` of 3x3 in the standard layout and `L`: the element behind each row of `src1` in `maTm`, and of `src2` in
 * `mamT`, may be read; its value does not matter. Nothing else.
 */

VonkStatus vonkAdd_mm_32f(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride, uint32_t cols, uint32_t rows);
VonkStatus vonkAdd_mm_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t cols, uint32_t rows);
VonkStatus vonkAdd_mm_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows);
VonkStatus vonkAdd_mm_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
VonkStatus vonkAdd_mm_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkAdd_mm_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
VonkStatus vonkAdd_mm_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
VonkStatus vonkAdd_mm_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkAdd_mm_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
VonkStatus vonkAdd_mm_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
VonkStatus vonkAdd_mm_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkAdd_mm_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
VonkStatus vonkAdd_mm_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
VonkStatus vonkAdd_mm_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkAdd_mm_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);

VonkStatus vonkAdd_mm_64f(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride, uint32_t cols, uint32_t rows);
VonkStatus vonkAdd_mm_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t cols, uint32_t rows);
VonkStatus vonkAdd_mm_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2, int32_t src2Shift,
    double *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows);
VonkStatus vonkAdd_mm_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
VonkStatus vonkAdd_mm_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkAdd_mm_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
VonkStatus vonkAdd_mm_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
VonkStatus vonkAdd_mm_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkAdd_mm_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
VonkStatus vonkAdd_mm_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
VonkStatus vonkAdd_mm_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkAdd_mm_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
VonkStatus vonkAdd_mm_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
VonkStatus vonkAdd_mm_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkAdd_mm_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);

VonkStatus vonkAdd_mmT_32f(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride, uint32_t cols, uint32_t rows);
VonkStatus vonkAdd_mmT_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t cols, uint32_t rows);
VonkStatus vonkAdd_mmT_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows);
VonkStatus vonkAdd_mmT_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
VonkStatus vonkAdd_mmT_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkAdd_mmT_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
VonkStatus vonkAdd_mmT_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
VonkStatus vonkAdd_mmT_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkAdd_mmT_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
VonkStatus vonkAdd_mmT_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
VonkStatus vonkAdd_mmT_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkAdd_mmT_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
VonkStatus vonkAdd_mmT_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
VonkStatus vonkAdd_mmT_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkAdd_mmT_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);

VonkStatus vonkAdd_mmT_64f(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride, uint32_t cols, uint32_t rows);
VonkStatus vonkAdd_mmT_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t cols, uint32_t rows);
VonkStatus vonkAdd_mmT_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2, int32_t src2Shift,
    double *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows);
VonkStatus vonkAdd_mmT_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
VonkStatus vonkAdd_mmT_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkAdd_mmT_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
VonkStatus vonkAdd_mmT_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
VonkStatus vonkAdd_mmT_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkAdd_mmT_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
VonkStatus vonkAdd_mmT_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
VonkStatus vonkAdd_mmT_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkAdd_mmT_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
VonkStatus vonkAdd_mmT_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
VonkStatus vonkAdd_mmT_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkAdd_mmT_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);

VonkStatus vonkAdd_mTm_32f(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride, uint32_t cols, uint32_t rows);
VonkStatus vonkAdd_mTm_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t cols, uint32_t rows);
VonkStatus vonkAdd_mTm_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows);
VonkStatus vonkAdd_mTm_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
VonkStatus vonkAdd_mTm_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkAdd_mTm_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
VonkStatus vonkAdd_mTm_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
VonkStatus vonkAdd_mTm_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkAdd_mTm_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
VonkStatus vonkAdd_mTm_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
VonkStatus vonkAdd_mTm_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkAdd_mTm_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
VonkStatus vonkAdd_mTm_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
VonkStatus vonkAdd_mTm_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkAdd_mTm_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);

VonkStatus vonkAdd_mTm_64f(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride, uint32_t cols, uint32_t rows);
VonkStatus vonkAdd_mTm_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t cols, uint32_t rows);
VonkStatus vonkAdd_mTm_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2, int32_t src2Shift,
    double *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows);
VonkStatus vonkAdd_mTm_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
VonkStatus vonkAdd_mTm_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkAdd_mTm_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
VonkStatus vonkAdd_mTm_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
VonkStatus vonkAdd_mTm_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkAdd_mTm_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
VonkStatus vonkAdd_mTm_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
VonkStatus vonkAdd_mTm_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkAdd_mTm_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
VonkStatus vonkAdd_mTm_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
VonkStatus vonkAdd_mTm_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkAdd_mTm_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);

VonkStatus vonkAdd_mTmT_32f(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride, uint32_t cols, uint32_t rows);
VonkStatus vonkAdd_mTmT_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t cols, uint32_t rows);
VonkStatus vonkAdd_mTmT_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows);
VonkStatus vonkAdd_mTmT_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
VonkStatus vonkAdd_mTmT_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkAdd_mTmT_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
VonkStatus vonkAdd_mTmT_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
VonkStatus vonkAdd_mTmT_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkAdd_mTmT_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
VonkStatus vonkAdd_mTmT_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
VonkStatus vonkAdd_mTmT_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkAdd_mTmT_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
VonkStatus vonkAdd_mTmT_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
VonkStatus vonkAdd_mTmT_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkAdd_mTmT_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);

VonkStatus vonkAdd_mTmT_64f(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride, uint32_t cols, uint32_t rows);
VonkStatus vonkAdd_mTmT_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t cols, uint32_t rows);
VonkStatus vonkAdd_mTmT_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows);
VonkStatus vonkAdd_mTmT_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
VonkStatus vonkAdd_mTmT_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
    int32_t dstElemStride);
VonkStatus vonkAdd_mTmT_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
VonkStatus vonkAdd_mTmT_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
VonkStatus vonkAdd_mTmT_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
    int32_t dstElemStride);
VonkStatus vonkAdd_mTmT_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
VonkStatus vonkAdd_mTmT_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
VonkStatus vonkAdd_mTmT_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
    int32_t dstElemStride);
VonkStatus vonkAdd_mTmT_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
VonkStatus vonkAdd_mTmT_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
VonkStatus vonkAdd_mTmT_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
    int32_t dstElemStride);
VonkStatus vonkAdd_mTmT_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);

VonkStatus vonkAdd_mam_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkAdd_mam_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkAdd_mam_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkAdd_mam_32f_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkAdd_mam_32f_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkAdd_mam_32f_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkAdd_mam_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_mam_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_mam_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_mam_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkAdd_mam_32f_3x3_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_mam_32f_3x3_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_mam_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_mam_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_mam_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_mam_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkAdd_mam_32f_4x4_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_mam_32f_4x4_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_mam_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_mam_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_mam_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_mam_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkAdd_mam_32f_5x5_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_mam_32f_5x5_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_mam_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_mam_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_mam_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_mam_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkAdd_mam_32f_6x6_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_mam_32f_6x6_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

VonkStatus vonkAdd_mam_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkAdd_mam_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkAdd_mam_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2, int32_t src2Shift,
    double *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkAdd_mam_64f_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkAdd_mam_64f_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkAdd_mam_64f_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkAdd_mam_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_mam_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_mam_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_mam_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkAdd_mam_64f_3x3_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkAdd_mam_64f_3x3_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_mam_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_mam_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_mam_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_mam_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkAdd_mam_64f_4x4_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkAdd_mam_64f_4x4_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_mam_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_mam_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_mam_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_mam_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkAdd_mam_64f_5x5_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkAdd_mam_64f_5x5_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_mam_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_mam_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_mam_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_mam_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkAdd_mam_64f_6x6_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkAdd_mam_64f_6x6_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

VonkStatus vonkAdd_mamT_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkAdd_mamT_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkAdd_mamT_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkAdd_mamT_32f_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkAdd_mamT_32f_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkAdd_mamT_32f_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkAdd_mamT_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_mamT_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_mamT_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_mamT_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkAdd_mamT_32f_3x3_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_mamT_32f_3x3_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_mamT_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_mamT_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_mamT_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_mamT_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkAdd_mamT_32f_4x4_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_mamT_32f_4x4_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_mamT_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_mamT_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_mamT_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_mamT_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkAdd_mamT_32f_5x5_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_mamT_32f_5x5_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_mamT_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_mamT_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_mamT_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_mamT_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkAdd_mamT_32f_6x6_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_mamT_32f_6x6_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

VonkStatus vonkAdd_mamT_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkAdd_mamT_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkAdd_mamT_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkAdd_mamT_64f_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkAdd_mamT_64f_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkAdd_mamT_64f_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkAdd_mamT_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_mamT_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_mamT_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_mamT_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkAdd_mamT_64f_3x3_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkAdd_mamT_64f_3x3_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_mamT_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_mamT_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_mamT_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_mamT_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkAdd_mamT_64f_4x4_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkAdd_mamT_64f_4x4_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_mamT_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_mamT_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_mamT_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_mamT_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkAdd_mamT_64f_5x5_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkAdd_mamT_64f_5x5_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_mamT_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_mamT_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_mamT_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_mamT_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkAdd_mamT_64f_6x6_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkAdd_mamT_64f_6x6_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

VonkStatus vonkAdd_maTm_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkAdd_maTm_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkAdd_maTm_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkAdd_maTm_32f_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkAdd_maTm_32f_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkAdd_maTm_32f_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkAdd_maTm_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_maTm_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_maTm_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_maTm_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkAdd_maTm_32f_3x3_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_maTm_32f_3x3_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_maTm_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_maTm_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_maTm_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_maTm_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkAdd_maTm_32f_4x4_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_maTm_32f_4x4_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_maTm_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_maTm_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_maTm_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_maTm_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkAdd_maTm_32f_5x5_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_maTm_32f_5x5_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_maTm_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_maTm_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_maTm_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_maTm_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkAdd_maTm_32f_6x6_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_maTm_32f_6x6_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

VonkStatus vonkAdd_maTm_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkAdd_maTm_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkAdd_maTm_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkAdd_maTm_64f_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkAdd_maTm_64f_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkAdd_maTm_64f_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkAdd_maTm_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_maTm_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_maTm_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_maTm_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkAdd_maTm_64f_3x3_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkAdd_maTm_64f_3x3_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_maTm_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_maTm_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_maTm_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_maTm_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkAdd_maTm_64f_4x4_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkAdd_maTm_64f_4x4_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_maTm_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_maTm_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_maTm_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_maTm_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkAdd_maTm_64f_5x5_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkAdd_maTm_64f_5x5_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_maTm_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_maTm_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_maTm_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_maTm_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkAdd_maTm_64f_6x6_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkAdd_maTm_64f_6x6_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

VonkStatus vonkAdd_maTmT_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkAdd_maTmT_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkAdd_maTmT_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkAdd_maTmT_32f_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkAdd_maTmT_32f_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkAdd_maTmT_32f_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkAdd_maTmT_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_maTmT_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_maTmT_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_maTmT_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkAdd_maTmT_32f_3x3_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *src2, int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkAdd_maTmT_32f_3x3_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_maTmT_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_maTmT_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_maTmT_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_maTmT_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkAdd_maTmT_32f_4x4_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *src2, int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkAdd_maTmT_32f_4x4_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_maTmT_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_maTmT_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_maTmT_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_maTmT_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkAdd_maTmT_32f_5x5_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *src2, int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkAdd_maTmT_32f_5x5_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_maTmT_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_maTmT_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_maTmT_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_maTmT_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkAdd_maTmT_32f_6x6_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *src2, int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkAdd_maTmT_32f_6x6_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

VonkStatus vonkAdd_maTmT_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkAdd_maTmT_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkAdd_maTmT_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkAdd_maTmT_64f_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkAdd_maTmT_64f_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkAdd_maTmT_64f_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkAdd_maTmT_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_maTmT_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_maTmT_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_maTmT_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkAdd_maTmT_64f_3x3_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkAdd_maTmT_64f_3x3_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_maTmT_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_maTmT_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_maTmT_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_maTmT_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkAdd_maTmT_64f_4x4_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkAdd_maTmT_64f_4x4_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_maTmT_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_maTmT_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_maTmT_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_maTmT_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkAdd_maTmT_64f_5x5_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkAdd_maTmT_64f_5x5_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_maTmT_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_maTmT_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_maTmT_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_maTmT_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkAdd_maTmT_64f_6x6_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkAdd_maTmT_64f_6x6_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

VonkStatus vonkAdd_mama_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t cols,
    uint32_t rows, uint32_t count);
VonkStatus vonkAdd_mama_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkAdd_mama_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkAdd_mama_32f_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkAdd_mama_32f_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkAdd_mama_32f_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkAdd_mama_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkAdd_mama_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_mama_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_mama_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkAdd_mama_32f_3x3_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_mama_32f_3x3_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_mama_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkAdd_mama_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_mama_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_mama_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkAdd_mama_32f_4x4_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_mama_32f_4x4_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_mama_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkAdd_mama_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_mama_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_mama_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkAdd_mama_32f_5x5_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_mama_32f_5x5_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_mama_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkAdd_mama_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_mama_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_mama_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkAdd_mama_32f_6x6_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_mama_32f_6x6_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

VonkStatus vonkAdd_mama_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkAdd_mama_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkAdd_mama_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkAdd_mama_64f_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkAdd_mama_64f_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkAdd_mama_64f_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkAdd_mama_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkAdd_mama_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_mama_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_mama_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkAdd_mama_64f_3x3_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_mama_64f_3x3_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_mama_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkAdd_mama_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_mama_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_mama_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkAdd_mama_64f_4x4_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_mama_64f_4x4_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_mama_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkAdd_mama_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_mama_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_mama_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkAdd_mama_64f_5x5_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_mama_64f_5x5_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_mama_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkAdd_mama_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_mama_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_mama_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkAdd_mama_64f_6x6_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_mama_64f_6x6_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

VonkStatus vonkAdd_mamaT_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t cols,
    uint32_t rows, uint32_t count);
VonkStatus vonkAdd_mamaT_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkAdd_mamaT_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkAdd_mamaT_32f_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkAdd_mamaT_32f_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkAdd_mamaT_32f_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkAdd_mamaT_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkAdd_mamaT_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_mamaT_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_mamaT_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkAdd_mamaT_32f_3x3_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_mamaT_32f_3x3_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_mamaT_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkAdd_mamaT_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_mamaT_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_mamaT_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkAdd_mamaT_32f_4x4_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_mamaT_32f_4x4_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_mamaT_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkAdd_mamaT_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_mamaT_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_mamaT_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkAdd_mamaT_32f_5x5_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_mamaT_32f_5x5_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_mamaT_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkAdd_mamaT_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_mamaT_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_mamaT_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkAdd_mamaT_32f_6x6_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_mamaT_32f_6x6_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

VonkStatus vonkAdd_mamaT_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkAdd_mamaT_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkAdd_mamaT_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkAdd_mamaT_64f_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkAdd_mamaT_64f_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkAdd_mamaT_64f_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkAdd_mamaT_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkAdd_mamaT_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_mamaT_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_mamaT_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkAdd_mamaT_64f_3x3_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_mamaT_64f_3x3_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_mamaT_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkAdd_mamaT_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_mamaT_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_mamaT_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkAdd_mamaT_64f_4x4_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_mamaT_64f_4x4_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_mamaT_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkAdd_mamaT_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_mamaT_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_mamaT_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkAdd_mamaT_64f_5x5_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_mamaT_64f_5x5_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_mamaT_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkAdd_mamaT_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_mamaT_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_mamaT_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkAdd_mamaT_64f_6x6_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_mamaT_64f_6x6_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

VonkStatus vonkAdd_maTma_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t cols,
    uint32_t rows, uint32_t count);
VonkStatus vonkAdd_maTma_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkAdd_maTma_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkAdd_maTma_32f_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkAdd_maTma_32f_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkAdd_maTma_32f_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkAdd_maTma_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkAdd_maTma_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_maTma_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_maTma_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkAdd_maTma_32f_3x3_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_maTma_32f_3x3_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_maTma_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkAdd_maTma_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_maTma_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_maTma_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkAdd_maTma_32f_4x4_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_maTma_32f_4x4_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_maTma_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkAdd_maTma_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_maTma_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_maTma_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkAdd_maTma_32f_5x5_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_maTma_32f_5x5_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_maTma_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkAdd_maTma_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_maTma_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_maTma_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkAdd_maTma_32f_6x6_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_maTma_32f_6x6_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

VonkStatus vonkAdd_maTma_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkAdd_maTma_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkAdd_maTma_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkAdd_maTma_64f_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkAdd_maTma_64f_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkAdd_maTma_64f_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkAdd_maTma_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkAdd_maTma_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_maTma_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_maTma_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkAdd_maTma_64f_3x3_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_maTma_64f_3x3_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_maTma_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkAdd_maTma_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_maTma_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_maTma_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkAdd_maTma_64f_4x4_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_maTma_64f_4x4_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_maTma_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkAdd_maTma_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_maTma_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_maTma_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkAdd_maTma_64f_5x5_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_maTma_64f_5x5_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_maTma_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkAdd_maTma_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_maTma_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_maTma_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkAdd_maTma_64f_6x6_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_maTma_64f_6x6_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

VonkStatus vonkAdd_maTmaT_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t cols,
    uint32_t rows, uint32_t count);
VonkStatus vonkAdd_maTmaT_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkAdd_maTmaT_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkAdd_maTmaT_32f_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkAdd_maTmaT_32f_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkAdd_maTmaT_32f_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkAdd_maTmaT_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkAdd_maTmaT_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_maTmaT_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_maTmaT_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkAdd_maTmaT_32f_3x3_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_maTmaT_32f_3x3_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_maTmaT_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkAdd_maTmaT_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_maTmaT_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_maTmaT_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkAdd_maTmaT_32f_4x4_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_maTmaT_32f_4x4_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_maTmaT_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkAdd_maTmaT_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_maTmaT_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_maTmaT_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkAdd_maTmaT_32f_5x5_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_maTmaT_32f_5x5_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_maTmaT_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkAdd_maTmaT_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_maTmaT_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_maTmaT_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkAdd_maTmaT_32f_6x6_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_maTmaT_32f_6x6_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

VonkStatus vonkAdd_maTmaT_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkAdd_maTmaT_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkAdd_maTmaT_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkAdd_maTmaT_64f_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkAdd_maTmaT_64f_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkAdd_maTmaT_64f_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkAdd_maTmaT_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkAdd_maTmaT_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_maTmaT_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_maTmaT_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkAdd_maTmaT_64f_3x3_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_maTmaT_64f_3x3_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_maTmaT_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkAdd_maTmaT_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_maTmaT_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_maTmaT_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkAdd_maTmaT_64f_4x4_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_maTmaT_64f_4x4_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_maTmaT_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkAdd_maTmaT_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_maTmaT_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_maTmaT_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkAdd_maTmaT_64f_5x5_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_maTmaT_64f_5x5_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_maTmaT_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkAdd_maTmaT_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkAdd_maTmaT_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkAdd_maTmaT_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkAdd_maTmaT_64f_6x6_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkAdd_maTmaT_64f_6x6_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

VonkStatus vonkSub_mm_32f(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride, uint32_t cols, uint32_t rows);
VonkStatus vonkSub_mm_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t cols, uint32_t rows);
VonkStatus vonkSub_mm_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows);
VonkStatus vonkSub_mm_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
VonkStatus vonkSub_mm_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkSub_mm_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
VonkStatus vonkSub_mm_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
VonkStatus vonkSub_mm_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkSub_mm_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
VonkStatus vonkSub_mm_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
VonkStatus vonkSub_mm_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkSub_mm_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
VonkStatus vonkSub_mm_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
VonkStatus vonkSub_mm_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkSub_mm_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);

VonkStatus vonkSub_mm_64f(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride, uint32_t cols, uint32_t rows);
VonkStatus vonkSub_mm_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t cols, uint32_t rows);
VonkStatus vonkSub_mm_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2, int32_t src2Shift,
    double *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows);
VonkStatus vonkSub_mm_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
VonkStatus vonkSub_mm_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkSub_mm_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
VonkStatus vonkSub_mm_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
VonkStatus vonkSub_mm_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkSub_mm_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
VonkStatus vonkSub_mm_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
VonkStatus vonkSub_mm_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkSub_mm_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
VonkStatus vonkSub_mm_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
VonkStatus vonkSub_mm_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkSub_mm_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);

VonkStatus vonkSub_mmT_32f(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride, uint32_t cols, uint32_t rows);
VonkStatus vonkSub_mmT_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t cols, uint32_t rows);
VonkStatus vonkSub_mmT_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows);
VonkStatus vonkSub_mmT_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
VonkStatus vonkSub_mmT_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkSub_mmT_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
VonkStatus vonkSub_mmT_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
VonkStatus vonkSub_mmT_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkSub_mmT_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
VonkStatus vonkSub_mmT_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
VonkStatus vonkSub_mmT_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkSub_mmT_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
VonkStatus vonkSub_mmT_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
VonkStatus vonkSub_mmT_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkSub_mmT_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);

VonkStatus vonkSub_mmT_64f(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride, uint32_t cols, uint32_t rows);
VonkStatus vonkSub_mmT_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t cols, uint32_t rows);
VonkStatus vonkSub_mmT_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2, int32_t src2Shift,
    double *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows);
VonkStatus vonkSub_mmT_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
VonkStatus vonkSub_mmT_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkSub_mmT_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
VonkStatus vonkSub_mmT_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
VonkStatus vonkSub_mmT_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkSub_mmT_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
VonkStatus vonkSub_mmT_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
VonkStatus vonkSub_mmT_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkSub_mmT_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
VonkStatus vonkSub_mmT_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
VonkStatus vonkSub_mmT_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkSub_mmT_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);

VonkStatus vonkSub_mTm_32f(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride, uint32_t cols, uint32_t rows);
VonkStatus vonkSub_mTm_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t cols, uint32_t rows);
VonkStatus vonkSub_mTm_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows);
VonkStatus vonkSub_mTm_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
VonkStatus vonkSub_mTm_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkSub_mTm_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
VonkStatus vonkSub_mTm_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
VonkStatus vonkSub_mTm_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkSub_mTm_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
VonkStatus vonkSub_mTm_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
VonkStatus vonkSub_mTm_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkSub_mTm_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
VonkStatus vonkSub_mTm_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
VonkStatus vonkSub_mTm_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkSub_mTm_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);

VonkStatus vonkSub_mTm_64f(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride, uint32_t cols, uint32_t rows);
VonkStatus vonkSub_mTm_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t cols, uint32_t rows);
VonkStatus vonkSub_mTm_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2, int32_t src2Shift,
    double *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows);
VonkStatus vonkSub_mTm_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
VonkStatus vonkSub_mTm_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkSub_mTm_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
VonkStatus vonkSub_mTm_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
VonkStatus vonkSub_mTm_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkSub_mTm_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
VonkStatus vonkSub_mTm_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
VonkStatus vonkSub_mTm_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkSub_mTm_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
VonkStatus vonkSub_mTm_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
VonkStatus vonkSub_mTm_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkSub_mTm_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);

VonkStatus vonkSub_mTmT_32f(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride, uint32_t cols, uint32_t rows);
VonkStatus vonkSub_mTmT_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t cols, uint32_t rows);
VonkStatus vonkSub_mTmT_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows);
VonkStatus vonkSub_mTmT_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
VonkStatus vonkSub_mTmT_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkSub_mTmT_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
VonkStatus vonkSub_mTmT_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
VonkStatus vonkSub_mTmT_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkSub_mTmT_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
VonkStatus vonkSub_mTmT_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
VonkStatus vonkSub_mTmT_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkSub_mTmT_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
VonkStatus vonkSub_mTmT_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
VonkStatus vonkSub_mTmT_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkSub_mTmT_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);

VonkStatus vonkSub_mTmT_64f(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride, uint32_t cols, uint32_t rows);
VonkStatus vonkSub_mTmT_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t cols, uint32_t rows);
VonkStatus vonkSub_mTmT_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows);
VonkStatus vonkSub_mTmT_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
VonkStatus vonkSub_mTmT_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
    int32_t dstElemStride);
VonkStatus vonkSub_mTmT_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
VonkStatus vonkSub_mTmT_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
VonkStatus vonkSub_mTmT_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
    int32_t dstElemStride);
VonkStatus vonkSub_mTmT_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
VonkStatus vonkSub_mTmT_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
VonkStatus vonkSub_mTmT_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
    int32_t dstElemStride);
VonkStatus vonkSub_mTmT_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
VonkStatus vonkSub_mTmT_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
VonkStatus vonkSub_mTmT_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
    int32_t dstElemStride);
VonkStatus vonkSub_mTmT_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);

VonkStatus vonkSub_mma_32f(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkSub_mma_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_mma_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_mma_32f_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkSub_mma_32f_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkSub_mma_32f_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_mma_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mma_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mma_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_mma_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_mma_32f_3x3_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mma_32f_3x3_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mma_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mma_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mma_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_mma_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_mma_32f_4x4_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mma_32f_4x4_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mma_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mma_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mma_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_mma_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_mma_32f_5x5_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mma_32f_5x5_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mma_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mma_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mma_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_mma_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_mma_32f_6x6_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mma_32f_6x6_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

VonkStatus vonkSub_mma_64f(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkSub_mma_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_mma_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2, int32_t src2Shift,
    double *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_mma_64f_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t cols,
    uint32_t rows, uint32_t count);
VonkStatus vonkSub_mma_64f_L(const double *src1, int32_t src1RowStride, const double *const *src2, int32_t src2Shift,
    int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkSub_mma_64f_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_mma_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mma_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mma_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_mma_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_mma_64f_3x3_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkSub_mma_64f_3x3_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mma_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mma_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mma_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_mma_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_mma_64f_4x4_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkSub_mma_64f_4x4_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mma_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mma_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mma_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_mma_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_mma_64f_5x5_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkSub_mma_64f_5x5_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mma_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mma_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mma_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_mma_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_mma_64f_6x6_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkSub_mma_64f_6x6_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

VonkStatus vonkSub_mmaT_32f(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkSub_mmaT_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_mmaT_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_mmaT_32f_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t cols,
    uint32_t rows, uint32_t count);
VonkStatus vonkSub_mmaT_32f_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkSub_mmaT_32f_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_mmaT_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mmaT_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mmaT_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_mmaT_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_mmaT_32f_3x3_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mmaT_32f_3x3_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mmaT_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mmaT_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mmaT_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_mmaT_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_mmaT_32f_4x4_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mmaT_32f_4x4_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mmaT_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mmaT_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mmaT_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_mmaT_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_mmaT_32f_5x5_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mmaT_32f_5x5_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mmaT_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mmaT_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mmaT_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_mmaT_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_mmaT_32f_6x6_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mmaT_32f_6x6_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

VonkStatus vonkSub_mmaT_64f(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkSub_mmaT_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_mmaT_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_mmaT_64f_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t cols,
    uint32_t rows, uint32_t count);
VonkStatus vonkSub_mmaT_64f_L(const double *src1, int32_t src1RowStride, const double *const *src2, int32_t src2Shift,
    int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkSub_mmaT_64f_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_mmaT_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mmaT_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mmaT_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_mmaT_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_mmaT_64f_3x3_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkSub_mmaT_64f_3x3_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mmaT_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mmaT_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mmaT_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_mmaT_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_mmaT_64f_4x4_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkSub_mmaT_64f_4x4_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mmaT_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mmaT_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mmaT_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_mmaT_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_mmaT_64f_5x5_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkSub_mmaT_64f_5x5_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mmaT_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mmaT_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mmaT_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_mmaT_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_mmaT_64f_6x6_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkSub_mmaT_64f_6x6_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

VonkStatus vonkSub_mTma_32f(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkSub_mTma_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_mTma_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_mTma_32f_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t cols,
    uint32_t rows, uint32_t count);
VonkStatus vonkSub_mTma_32f_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkSub_mTma_32f_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_mTma_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mTma_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mTma_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_mTma_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_mTma_32f_3x3_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mTma_32f_3x3_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mTma_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mTma_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mTma_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_mTma_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_mTma_32f_4x4_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mTma_32f_4x4_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mTma_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mTma_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mTma_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_mTma_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_mTma_32f_5x5_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mTma_32f_5x5_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mTma_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mTma_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mTma_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_mTma_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_mTma_32f_6x6_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mTma_32f_6x6_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

VonkStatus vonkSub_mTma_64f(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkSub_mTma_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_mTma_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_mTma_64f_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t cols,
    uint32_t rows, uint32_t count);
VonkStatus vonkSub_mTma_64f_L(const double *src1, int32_t src1RowStride, const double *const *src2, int32_t src2Shift,
    int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkSub_mTma_64f_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_mTma_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mTma_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mTma_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_mTma_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_mTma_64f_3x3_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkSub_mTma_64f_3x3_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mTma_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mTma_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mTma_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_mTma_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_mTma_64f_4x4_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkSub_mTma_64f_4x4_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mTma_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mTma_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mTma_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_mTma_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_mTma_64f_5x5_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkSub_mTma_64f_5x5_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mTma_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mTma_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mTma_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_mTma_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_mTma_64f_6x6_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkSub_mTma_64f_6x6_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

VonkStatus vonkSub_mTmaT_32f(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkSub_mTmaT_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_mTmaT_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_mTmaT_32f_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t cols,
    uint32_t rows, uint32_t count);
VonkStatus vonkSub_mTmaT_32f_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkSub_mTmaT_32f_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_mTmaT_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mTmaT_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mTmaT_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_mTmaT_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_mTmaT_32f_3x3_L(const float *src1, int32_t src1RowStride, const float *const *src2,
    int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkSub_mTmaT_32f_3x3_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mTmaT_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mTmaT_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mTmaT_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_mTmaT_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_mTmaT_32f_4x4_L(const float *src1, int32_t src1RowStride, const float *const *src2,
    int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkSub_mTmaT_32f_4x4_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mTmaT_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mTmaT_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mTmaT_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_mTmaT_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_mTmaT_32f_5x5_L(const float *src1, int32_t src1RowStride, const float *const *src2,
    int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkSub_mTmaT_32f_5x5_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mTmaT_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mTmaT_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mTmaT_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_mTmaT_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_mTmaT_32f_6x6_L(const float *src1, int32_t src1RowStride, const float *const *src2,
    int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkSub_mTmaT_32f_6x6_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

VonkStatus vonkSub_mTmaT_64f(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkSub_mTmaT_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_mTmaT_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_mTmaT_64f_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t cols,
    uint32_t rows, uint32_t count);
VonkStatus vonkSub_mTmaT_64f_L(const double *src1, int32_t src1RowStride, const double *const *src2, int32_t src2Shift,
    int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkSub_mTmaT_64f_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_mTmaT_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mTmaT_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mTmaT_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_mTmaT_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_mTmaT_64f_3x3_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkSub_mTmaT_64f_3x3_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mTmaT_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mTmaT_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mTmaT_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_mTmaT_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_mTmaT_64f_4x4_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkSub_mTmaT_64f_4x4_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mTmaT_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mTmaT_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mTmaT_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_mTmaT_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_mTmaT_64f_5x5_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkSub_mTmaT_64f_5x5_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mTmaT_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mTmaT_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mTmaT_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_mTmaT_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_mTmaT_64f_6x6_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkSub_mTmaT_64f_6x6_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

VonkStatus vonkSub_mam_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkSub_mam_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_mam_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_mam_32f_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_mam_32f_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkSub_mam_32f_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_mam_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mam_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mam_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_mam_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_mam_32f_3x3_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mam_32f_3x3_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mam_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mam_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mam_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_mam_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_mam_32f_4x4_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mam_32f_4x4_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mam_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mam_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mam_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_mam_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_mam_32f_5x5_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mam_32f_5x5_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mam_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mam_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mam_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_mam_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_mam_32f_6x6_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mam_32f_6x6_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

VonkStatus vonkSub_mam_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkSub_mam_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_mam_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2, int32_t src2Shift,
    double *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_mam_64f_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_mam_64f_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkSub_mam_64f_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_mam_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mam_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mam_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_mam_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_mam_64f_3x3_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkSub_mam_64f_3x3_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mam_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mam_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mam_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_mam_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_mam_64f_4x4_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkSub_mam_64f_4x4_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mam_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mam_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mam_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_mam_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_mam_64f_5x5_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkSub_mam_64f_5x5_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mam_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mam_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mam_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_mam_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_mam_64f_6x6_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkSub_mam_64f_6x6_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

VonkStatus vonkSub_mamT_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkSub_mamT_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_mamT_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_mamT_32f_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_mamT_32f_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkSub_mamT_32f_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_mamT_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mamT_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mamT_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_mamT_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_mamT_32f_3x3_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mamT_32f_3x3_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mamT_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mamT_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mamT_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_mamT_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_mamT_32f_4x4_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mamT_32f_4x4_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mamT_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mamT_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mamT_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_mamT_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_mamT_32f_5x5_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mamT_32f_5x5_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mamT_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mamT_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mamT_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_mamT_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_mamT_32f_6x6_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mamT_32f_6x6_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

VonkStatus vonkSub_mamT_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkSub_mamT_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_mamT_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_mamT_64f_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_mamT_64f_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkSub_mamT_64f_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_mamT_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mamT_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mamT_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_mamT_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_mamT_64f_3x3_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkSub_mamT_64f_3x3_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mamT_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mamT_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mamT_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_mamT_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_mamT_64f_4x4_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkSub_mamT_64f_4x4_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mamT_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mamT_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mamT_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_mamT_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_mamT_64f_5x5_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkSub_mamT_64f_5x5_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mamT_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mamT_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mamT_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_mamT_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_mamT_64f_6x6_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkSub_mamT_64f_6x6_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

VonkStatus vonkSub_maTm_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkSub_maTm_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_maTm_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_maTm_32f_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_maTm_32f_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkSub_maTm_32f_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_maTm_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_maTm_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_maTm_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_maTm_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_maTm_32f_3x3_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_maTm_32f_3x3_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_maTm_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_maTm_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_maTm_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_maTm_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_maTm_32f_4x4_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_maTm_32f_4x4_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_maTm_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_maTm_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_maTm_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_maTm_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_maTm_32f_5x5_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_maTm_32f_5x5_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_maTm_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_maTm_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_maTm_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_maTm_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_maTm_32f_6x6_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_maTm_32f_6x6_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

VonkStatus vonkSub_maTm_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkSub_maTm_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_maTm_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_maTm_64f_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_maTm_64f_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkSub_maTm_64f_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_maTm_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_maTm_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_maTm_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_maTm_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_maTm_64f_3x3_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkSub_maTm_64f_3x3_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_maTm_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_maTm_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_maTm_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_maTm_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_maTm_64f_4x4_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkSub_maTm_64f_4x4_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_maTm_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_maTm_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_maTm_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_maTm_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_maTm_64f_5x5_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkSub_maTm_64f_5x5_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_maTm_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_maTm_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_maTm_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_maTm_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_maTm_64f_6x6_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkSub_maTm_64f_6x6_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

VonkStatus vonkSub_maTmT_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkSub_maTmT_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_maTmT_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_maTmT_32f_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_maTmT_32f_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkSub_maTmT_32f_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_maTmT_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_maTmT_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_maTmT_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_maTmT_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_maTmT_32f_3x3_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *src2, int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkSub_maTmT_32f_3x3_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_maTmT_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_maTmT_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_maTmT_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_maTmT_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_maTmT_32f_4x4_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *src2, int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkSub_maTmT_32f_4x4_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_maTmT_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_maTmT_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_maTmT_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_maTmT_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_maTmT_32f_5x5_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *src2, int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkSub_maTmT_32f_5x5_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_maTmT_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_maTmT_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_maTmT_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_maTmT_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_maTmT_32f_6x6_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *src2, int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkSub_maTmT_32f_6x6_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

VonkStatus vonkSub_maTmT_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkSub_maTmT_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_maTmT_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_maTmT_64f_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_maTmT_64f_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkSub_maTmT_64f_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_maTmT_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_maTmT_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_maTmT_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_maTmT_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_maTmT_64f_3x3_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkSub_maTmT_64f_3x3_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_maTmT_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_maTmT_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_maTmT_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_maTmT_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_maTmT_64f_4x4_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkSub_maTmT_64f_4x4_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_maTmT_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_maTmT_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_maTmT_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_maTmT_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_maTmT_64f_5x5_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkSub_maTmT_64f_5x5_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_maTmT_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_maTmT_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_maTmT_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_maTmT_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkSub_maTmT_64f_6x6_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkSub_maTmT_64f_6x6_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

VonkStatus vonkSub_mama_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t cols,
    uint32_t rows, uint32_t count);
VonkStatus vonkSub_mama_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_mama_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_mama_32f_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_mama_32f_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_mama_32f_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkSub_mama_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkSub_mama_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mama_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_mama_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkSub_mama_32f_3x3_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mama_32f_3x3_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mama_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkSub_mama_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mama_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_mama_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkSub_mama_32f_4x4_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mama_32f_4x4_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mama_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkSub_mama_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mama_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_mama_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkSub_mama_32f_5x5_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mama_32f_5x5_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mama_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkSub_mama_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mama_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_mama_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkSub_mama_32f_6x6_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mama_32f_6x6_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

VonkStatus vonkSub_mama_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_mama_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_mama_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_mama_64f_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_mama_64f_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_mama_64f_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkSub_mama_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkSub_mama_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mama_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_mama_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkSub_mama_64f_3x3_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mama_64f_3x3_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mama_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkSub_mama_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mama_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_mama_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkSub_mama_64f_4x4_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mama_64f_4x4_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mama_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkSub_mama_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mama_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_mama_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkSub_mama_64f_5x5_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mama_64f_5x5_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mama_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkSub_mama_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mama_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_mama_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkSub_mama_64f_6x6_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mama_64f_6x6_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

VonkStatus vonkSub_mamaT_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t cols,
    uint32_t rows, uint32_t count);
VonkStatus vonkSub_mamaT_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_mamaT_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_mamaT_32f_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_mamaT_32f_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_mamaT_32f_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkSub_mamaT_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkSub_mamaT_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mamaT_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_mamaT_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkSub_mamaT_32f_3x3_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mamaT_32f_3x3_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mamaT_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkSub_mamaT_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mamaT_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_mamaT_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkSub_mamaT_32f_4x4_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mamaT_32f_4x4_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mamaT_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkSub_mamaT_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mamaT_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_mamaT_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkSub_mamaT_32f_5x5_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mamaT_32f_5x5_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mamaT_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkSub_mamaT_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mamaT_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_mamaT_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkSub_mamaT_32f_6x6_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mamaT_32f_6x6_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

VonkStatus vonkSub_mamaT_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_mamaT_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkSub_mamaT_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_mamaT_64f_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_mamaT_64f_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_mamaT_64f_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkSub_mamaT_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkSub_mamaT_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mamaT_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_mamaT_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkSub_mamaT_64f_3x3_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mamaT_64f_3x3_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mamaT_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkSub_mamaT_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mamaT_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_mamaT_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkSub_mamaT_64f_4x4_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mamaT_64f_4x4_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mamaT_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkSub_mamaT_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mamaT_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_mamaT_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkSub_mamaT_64f_5x5_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mamaT_64f_5x5_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mamaT_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkSub_mamaT_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_mamaT_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_mamaT_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkSub_mamaT_64f_6x6_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_mamaT_64f_6x6_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

VonkStatus vonkSub_maTma_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t cols,
    uint32_t rows, uint32_t count);
VonkStatus vonkSub_maTma_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_maTma_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_maTma_32f_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_maTma_32f_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_maTma_32f_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkSub_maTma_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkSub_maTma_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_maTma_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_maTma_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkSub_maTma_32f_3x3_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_maTma_32f_3x3_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_maTma_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkSub_maTma_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_maTma_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_maTma_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkSub_maTma_32f_4x4_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_maTma_32f_4x4_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_maTma_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkSub_maTma_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_maTma_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_maTma_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkSub_maTma_32f_5x5_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_maTma_32f_5x5_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_maTma_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkSub_maTma_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_maTma_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_maTma_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkSub_maTma_32f_6x6_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_maTma_32f_6x6_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

VonkStatus vonkSub_maTma_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_maTma_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkSub_maTma_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_maTma_64f_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_maTma_64f_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_maTma_64f_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkSub_maTma_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkSub_maTma_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_maTma_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_maTma_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkSub_maTma_64f_3x3_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_maTma_64f_3x3_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_maTma_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkSub_maTma_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_maTma_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_maTma_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkSub_maTma_64f_4x4_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_maTma_64f_4x4_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_maTma_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkSub_maTma_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_maTma_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_maTma_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkSub_maTma_64f_5x5_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_maTma_64f_5x5_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_maTma_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkSub_maTma_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_maTma_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_maTma_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkSub_maTma_64f_6x6_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_maTma_64f_6x6_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

VonkStatus vonkSub_maTmaT_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t cols,
    uint32_t rows, uint32_t count);
VonkStatus vonkSub_maTmaT_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkSub_maTmaT_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_maTmaT_32f_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_maTmaT_32f_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_maTmaT_32f_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkSub_maTmaT_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkSub_maTmaT_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_maTmaT_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_maTmaT_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkSub_maTmaT_32f_3x3_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_maTmaT_32f_3x3_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_maTmaT_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkSub_maTmaT_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_maTmaT_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_maTmaT_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkSub_maTmaT_32f_4x4_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_maTmaT_32f_4x4_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_maTmaT_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkSub_maTmaT_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_maTmaT_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_maTmaT_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkSub_maTmaT_32f_5x5_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_maTmaT_32f_5x5_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_maTmaT_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkSub_maTmaT_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_maTmaT_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_maTmaT_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkSub_maTmaT_32f_6x6_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_maTmaT_32f_6x6_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

VonkStatus vonkSub_maTmaT_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_maTmaT_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkSub_maTmaT_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_maTmaT_64f_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_maTmaT_64f_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkSub_maTmaT_64f_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkSub_maTmaT_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkSub_maTmaT_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_maTmaT_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_maTmaT_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkSub_maTmaT_64f_3x3_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_maTmaT_64f_3x3_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_maTmaT_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkSub_maTmaT_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_maTmaT_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_maTmaT_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkSub_maTmaT_64f_4x4_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_maTmaT_64f_4x4_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_maTmaT_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkSub_maTmaT_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_maTmaT_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_maTmaT_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkSub_maTmaT_64f_5x5_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_maTmaT_64f_5x5_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_maTmaT_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkSub_maTmaT_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkSub_maTmaT_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkSub_maTmaT_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkSub_maTmaT_64f_6x6_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkSub_maTmaT_64f_6x6_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

/* ---- Matrix times constant ------------------------------------------------------------------------------------------
 *
 * dst(n, i, j) = A(n, i, j) * `val`
 *
 * with A(n, i, j) = src(n, i, j), or src(n, j, i) in `mTc` and `maTc`. One rounded product and one store per element;
 * `64f` multiplies in the 80-bit type and rounds to 64 bits. A `val` of 0 multiplies too: NaN and infinity give NaN,
 * and zeros keep the sign of the product.
 *
 * Sizes: `cols` and `rows` are those of `dst`. A transposed source is stored as `cols` rows of `rows` columns.
 *
 * Status: vonkErrNullPtr if `src` or `dst` is null; vonkErrSize if `cols` or `rows` is 0; vonkErrNullPtr if a table or
 * list entry is null: in single forms in `P` element by element, earlier elements being final; in `P` and `PS2` of
 * arrays all entries of both tables ahead of everything else, even at `count` 0; in `L` and `LS2` when the object's
 * turn comes, earlier objects being complete. `count` 0 then gives vonkOk with nothing written.
 *
 * Members that behave unlike their siblings:
 * - `mTc` of 4x4 in `P`, both types, never tests the entry at position 8 of its source's table: a null there is
 *   followed.
 * - `mc` in the standard layout and `mac` in the standard layout and `L`, `32f` of 4x4 to 6x6, look whether all rows
 *   lie at multiples of 16 bytes. No result depends on it.
 *
 * Overlap:
 * Nothing tests overlap. In `mc` and `mac` `dst` may be `src` itself: each element is read before it is written. In
 * `mTc` and `maTc` it may not. A partial overlap behaves as told of vonkAdd on matrices.
 *
 * Read beyond the operands:
 * Nothing.
 */

VonkStatus vonkMul_mc_32f(const float *src, int32_t srcRowStride, float val, float *dst, int32_t dstRowStride,
    uint32_t cols, uint32_t rows);
VonkStatus vonkMul_mc_32f_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float val, float *dst,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows);
VonkStatus vonkMul_mc_32f_P(const float *const *src, int32_t srcShift, float val, float *const *dst, int32_t dstShift,
    uint32_t cols, uint32_t rows);
VonkStatus vonkMul_mc_32f_3x3(const float *src, int32_t srcRowStride, float val, float *dst, int32_t dstRowStride);
VonkStatus vonkMul_mc_32f_3x3_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float val, float *dst,
    int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkMul_mc_32f_3x3_P(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift);
VonkStatus vonkMul_mc_32f_4x4(const float *src, int32_t srcRowStride, float val, float *dst, int32_t dstRowStride);
VonkStatus vonkMul_mc_32f_4x4_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float val, float *dst,
    int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkMul_mc_32f_4x4_P(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift);
VonkStatus vonkMul_mc_32f_5x5(const float *src, int32_t srcRowStride, float val, float *dst, int32_t dstRowStride);
VonkStatus vonkMul_mc_32f_5x5_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float val, float *dst,
    int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkMul_mc_32f_5x5_P(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift);
VonkStatus vonkMul_mc_32f_6x6(const float *src, int32_t srcRowStride, float val, float *dst, int32_t dstRowStride);
VonkStatus vonkMul_mc_32f_6x6_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float val, float *dst,
    int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkMul_mc_32f_6x6_P(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift);

VonkStatus vonkMul_mc_64f(const double *src, int32_t srcRowStride, double val, double *dst, int32_t dstRowStride,
    uint32_t cols, uint32_t rows);
VonkStatus vonkMul_mc_64f_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, double val, double *dst,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows);
VonkStatus vonkMul_mc_64f_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift, uint32_t cols, uint32_t rows);
VonkStatus vonkMul_mc_64f_3x3(const double *src, int32_t srcRowStride, double val, double *dst, int32_t dstRowStride);
VonkStatus vonkMul_mc_64f_3x3_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, double val,
    double *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkMul_mc_64f_3x3_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift);
VonkStatus vonkMul_mc_64f_4x4(const double *src, int32_t srcRowStride, double val, double *dst, int32_t dstRowStride);
VonkStatus vonkMul_mc_64f_4x4_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, double val,
    double *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkMul_mc_64f_4x4_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift);
VonkStatus vonkMul_mc_64f_5x5(const double *src, int32_t srcRowStride, double val, double *dst, int32_t dstRowStride);
VonkStatus vonkMul_mc_64f_5x5_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, double val,
    double *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkMul_mc_64f_5x5_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift);
VonkStatus vonkMul_mc_64f_6x6(const double *src, int32_t srcRowStride, double val, double *dst, int32_t dstRowStride);
VonkStatus vonkMul_mc_64f_6x6_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, double val,
    double *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkMul_mc_64f_6x6_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift);

VonkStatus vonkMul_mTc_32f(const float *src, int32_t srcRowStride, float val, float *dst, int32_t dstRowStride,
    uint32_t cols, uint32_t rows);
VonkStatus vonkMul_mTc_32f_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float val, float *dst,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows);
VonkStatus vonkMul_mTc_32f_P(const float *const *src, int32_t srcShift, float val, float *const *dst, int32_t dstShift,
    uint32_t cols, uint32_t rows);
VonkStatus vonkMul_mTc_32f_3x3(const float *src, int32_t srcRowStride, float val, float *dst, int32_t dstRowStride);
VonkStatus vonkMul_mTc_32f_3x3_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float val, float *dst,
    int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkMul_mTc_32f_3x3_P(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift);
VonkStatus vonkMul_mTc_32f_4x4(const float *src, int32_t srcRowStride, float val, float *dst, int32_t dstRowStride);
VonkStatus vonkMul_mTc_32f_4x4_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float val, float *dst,
    int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkMul_mTc_32f_4x4_P(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift);
VonkStatus vonkMul_mTc_32f_5x5(const float *src, int32_t srcRowStride, float val, float *dst, int32_t dstRowStride);
VonkStatus vonkMul_mTc_32f_5x5_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float val, float *dst,
    int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkMul_mTc_32f_5x5_P(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift);
VonkStatus vonkMul_mTc_32f_6x6(const float *src, int32_t srcRowStride, float val, float *dst, int32_t dstRowStride);
VonkStatus vonkMul_mTc_32f_6x6_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float val, float *dst,
    int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkMul_mTc_32f_6x6_P(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift);

VonkStatus vonkMul_mTc_64f(const double *src, int32_t srcRowStride, double val, double *dst, int32_t dstRowStride,
    uint32_t cols, uint32_t rows);
VonkStatus vonkMul_mTc_64f_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, double val, double *dst,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows);
VonkStatus vonkMul_mTc_64f_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift, uint32_t cols, uint32_t rows);
VonkStatus vonkMul_mTc_64f_3x3(const double *src, int32_t srcRowStride, double val, double *dst, int32_t dstRowStride);
VonkStatus vonkMul_mTc_64f_3x3_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, double val,
    double *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkMul_mTc_64f_3x3_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift);
VonkStatus vonkMul_mTc_64f_4x4(const double *src, int32_t srcRowStride, double val, double *dst, int32_t dstRowStride);
VonkStatus vonkMul_mTc_64f_4x4_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, double val,
    double *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkMul_mTc_64f_4x4_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift);
VonkStatus vonkMul_mTc_64f_5x5(const double *src, int32_t srcRowStride, double val, double *dst, int32_t dstRowStride);
VonkStatus vonkMul_mTc_64f_5x5_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, double val,
    double *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkMul_mTc_64f_5x5_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift);
VonkStatus vonkMul_mTc_64f_6x6(const double *src, int32_t srcRowStride, double val, double *dst, int32_t dstRowStride);
VonkStatus vonkMul_mTc_64f_6x6_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, double val,
    double *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkMul_mTc_64f_6x6_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift);

VonkStatus vonkMul_mac_32f(const float *src, int32_t srcObjStride, int32_t srcRowStride, float val, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkMul_mac_32f_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    float val, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols,
    uint32_t rows, uint32_t count);
VonkStatus vonkMul_mac_32f_P(const float *const *src, int32_t srcShift, float val, float *const *dst, int32_t dstShift,
    uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkMul_mac_32f_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkMul_mac_32f_L(const float *const *src, int32_t srcShift, int32_t srcRowStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkMul_mac_32f_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride, int32_t srcElemStride,
    float val, float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols,
    uint32_t rows, uint32_t count);
VonkStatus vonkMul_mac_32f_3x3(const float *src, int32_t srcObjStride, int32_t srcRowStride, float val, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mac_32f_3x3_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    float val, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mac_32f_3x3_P(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mac_32f_3x3_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mac_32f_3x3_L(const float *const *src, int32_t srcShift, int32_t srcRowStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mac_32f_3x3_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, float val, float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
VonkStatus vonkMul_mac_32f_4x4(const float *src, int32_t srcObjStride, int32_t srcRowStride, float val, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mac_32f_4x4_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    float val, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mac_32f_4x4_P(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mac_32f_4x4_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mac_32f_4x4_L(const float *const *src, int32_t srcShift, int32_t srcRowStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mac_32f_4x4_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, float val, float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
VonkStatus vonkMul_mac_32f_5x5(const float *src, int32_t srcObjStride, int32_t srcRowStride, float val, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mac_32f_5x5_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    float val, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mac_32f_5x5_P(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mac_32f_5x5_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mac_32f_5x5_L(const float *const *src, int32_t srcShift, int32_t srcRowStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mac_32f_5x5_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, float val, float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
VonkStatus vonkMul_mac_32f_6x6(const float *src, int32_t srcObjStride, int32_t srcRowStride, float val, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mac_32f_6x6_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    float val, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mac_32f_6x6_P(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mac_32f_6x6_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mac_32f_6x6_L(const float *const *src, int32_t srcShift, int32_t srcRowStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mac_32f_6x6_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, float val, float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);

VonkStatus vonkMul_mac_64f(const double *src, int32_t srcObjStride, int32_t srcRowStride, double val, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkMul_mac_64f_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    double val, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols,
    uint32_t rows, uint32_t count);
VonkStatus vonkMul_mac_64f_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkMul_mac_64f_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkMul_mac_64f_L(const double *const *src, int32_t srcShift, int32_t srcRowStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkMul_mac_64f_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride, int32_t srcElemStride,
    double val, double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols,
    uint32_t rows, uint32_t count);
VonkStatus vonkMul_mac_64f_3x3(const double *src, int32_t srcObjStride, int32_t srcRowStride, double val, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mac_64f_3x3_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    double val, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mac_64f_3x3_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mac_64f_3x3_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mac_64f_3x3_L(const double *const *src, int32_t srcShift, int32_t srcRowStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mac_64f_3x3_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, double val, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mac_64f_4x4(const double *src, int32_t srcObjStride, int32_t srcRowStride, double val, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mac_64f_4x4_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    double val, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mac_64f_4x4_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mac_64f_4x4_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mac_64f_4x4_L(const double *const *src, int32_t srcShift, int32_t srcRowStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mac_64f_4x4_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, double val, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mac_64f_5x5(const double *src, int32_t srcObjStride, int32_t srcRowStride, double val, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mac_64f_5x5_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    double val, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mac_64f_5x5_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mac_64f_5x5_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mac_64f_5x5_L(const double *const *src, int32_t srcShift, int32_t srcRowStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mac_64f_5x5_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, double val, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mac_64f_6x6(const double *src, int32_t srcObjStride, int32_t srcRowStride, double val, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mac_64f_6x6_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    double val, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mac_64f_6x6_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mac_64f_6x6_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mac_64f_6x6_L(const double *const *src, int32_t srcShift, int32_t srcRowStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mac_64f_6x6_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, double val, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);

VonkStatus vonkMul_maTc_32f(const float *src, int32_t srcObjStride, int32_t srcRowStride, float val, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkMul_maTc_32f_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    float val, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols,
    uint32_t rows, uint32_t count);
VonkStatus vonkMul_maTc_32f_P(const float *const *src, int32_t srcShift, float val, float *const *dst, int32_t dstShift,
    uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkMul_maTc_32f_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkMul_maTc_32f_L(const float *const *src, int32_t srcShift, int32_t srcRowStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkMul_maTc_32f_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride, int32_t srcElemStride,
    float val, float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols,
    uint32_t rows, uint32_t count);
VonkStatus vonkMul_maTc_32f_3x3(const float *src, int32_t srcObjStride, int32_t srcRowStride, float val, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_maTc_32f_3x3_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    float val, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTc_32f_3x3_P(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTc_32f_3x3_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_maTc_32f_3x3_L(const float *const *src, int32_t srcShift, int32_t srcRowStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_maTc_32f_3x3_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, float val, float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
VonkStatus vonkMul_maTc_32f_4x4(const float *src, int32_t srcObjStride, int32_t srcRowStride, float val, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_maTc_32f_4x4_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    float val, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTc_32f_4x4_P(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTc_32f_4x4_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_maTc_32f_4x4_L(const float *const *src, int32_t srcShift, int32_t srcRowStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_maTc_32f_4x4_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, float val, float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
VonkStatus vonkMul_maTc_32f_5x5(const float *src, int32_t srcObjStride, int32_t srcRowStride, float val, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_maTc_32f_5x5_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    float val, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTc_32f_5x5_P(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTc_32f_5x5_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_maTc_32f_5x5_L(const float *const *src, int32_t srcShift, int32_t srcRowStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_maTc_32f_5x5_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, float val, float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
VonkStatus vonkMul_maTc_32f_6x6(const float *src, int32_t srcObjStride, int32_t srcRowStride, float val, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_maTc_32f_6x6_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    float val, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTc_32f_6x6_P(const float *const *src, int32_t srcShift, float val, float *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTc_32f_6x6_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_maTc_32f_6x6_L(const float *const *src, int32_t srcShift, int32_t srcRowStride, float val,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_maTc_32f_6x6_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, float val, float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);

VonkStatus vonkMul_maTc_64f(const double *src, int32_t srcObjStride, int32_t srcRowStride, double val, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkMul_maTc_64f_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    double val, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols,
    uint32_t rows, uint32_t count);
VonkStatus vonkMul_maTc_64f_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkMul_maTc_64f_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkMul_maTc_64f_L(const double *const *src, int32_t srcShift, int32_t srcRowStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkMul_maTc_64f_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride, int32_t srcElemStride,
    double val, double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols,
    uint32_t rows, uint32_t count);
VonkStatus vonkMul_maTc_64f_3x3(const double *src, int32_t srcObjStride, int32_t srcRowStride, double val, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_maTc_64f_3x3_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    double val, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTc_64f_3x3_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTc_64f_3x3_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_maTc_64f_3x3_L(const double *const *src, int32_t srcShift, int32_t srcRowStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_maTc_64f_3x3_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, double val, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTc_64f_4x4(const double *src, int32_t srcObjStride, int32_t srcRowStride, double val, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_maTc_64f_4x4_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    double val, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTc_64f_4x4_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTc_64f_4x4_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_maTc_64f_4x4_L(const double *const *src, int32_t srcShift, int32_t srcRowStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_maTc_64f_4x4_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, double val, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTc_64f_5x5(const double *src, int32_t srcObjStride, int32_t srcRowStride, double val, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_maTc_64f_5x5_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    double val, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTc_64f_5x5_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTc_64f_5x5_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_maTc_64f_5x5_L(const double *const *src, int32_t srcShift, int32_t srcRowStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_maTc_64f_5x5_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, double val, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTc_64f_6x6(const double *src, int32_t srcObjStride, int32_t srcRowStride, double val, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_maTc_64f_6x6_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    double val, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTc_64f_6x6_P(const double *const *src, int32_t srcShift, double val, double *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTc_64f_6x6_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_maTc_64f_6x6_L(const double *const *src, int32_t srcShift, int32_t srcRowStride, double val,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_maTc_64f_6x6_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, double val, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);

/* ---- Transpose ------------------------------------------------------------------------------------------------------
 *
 * dst(n, j, i) = src(n, i, j)
 *
 * for i below `rows` and j below `cols`, which are the sizes of the SOURCE. Elements are moved, not worked: every bit
 * stays, signalling NaNs and signs of zeros included.
 *
 * Status: vonkErrNullPtr if `src` or `dst` is null; vonkErrSize if `cols` or `rows` is 0; vonkErrNullPtr if a table or
 * list entry is null: in single forms in `P` element by element, earlier elements being final; in `P` and `PS2` of
 * arrays all `cols` * `rows` entries of both tables ahead of everything else, even at `count` 0; in `L` and `LS2` when
 * the object's turn comes, earlier objects being complete. `count` 0 then gives vonkOk with nothing written.
 *
 * Members that behave unlike their siblings:
 * - In `P` and `PS2` of run-time size the lengths of the tables' rows are taken crosswise: element (i, j) goes from
 *   entry i * `rows` + j of `src` to entry j * `cols` + i of `dst`, i outermost. A square matrix is transposed; of
 *   others some entries are read or written twice, and the later write stays.
 *
 * Overlap:
 * Nothing tests overlap, and a call in place is not protected: elements go one by one along the rows of the source, so
 * the upper triangle has overwritten the lower one by the time that is read. `32f` of 4x4 to 6x6 in the standard
 * layout and `L` reads more of an object first; how much is not promised.
 *
 * Read beyond the operands:
 * In `P` and `PS2` of run-time size, of matrices that are not square: table entries behind the `cols` * `rows`th, which
 * are not scanned.
 */

VonkStatus vonkTranspose_m_32f(const float *src, int32_t srcRowStride, uint32_t cols, uint32_t rows, float *dst,
    int32_t dstRowStride);
VonkStatus vonkTranspose_m_32f_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, uint32_t cols,
    uint32_t rows, float *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkTranspose_m_32f_P(const float *const *src, int32_t srcShift, uint32_t cols, uint32_t rows,
    float *const *dst, int32_t dstShift);
VonkStatus vonkTranspose_m_32f_3x3(const float *src, int32_t srcRowStride, float *dst, int32_t dstRowStride);
VonkStatus vonkTranspose_m_32f_3x3_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float *dst,
    int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkTranspose_m_32f_3x3_P(const float *const *src, int32_t srcShift, float *const *dst, int32_t dstShift);
VonkStatus vonkTranspose_m_32f_4x4(const float *src, int32_t srcRowStride, float *dst, int32_t dstRowStride);
VonkStatus vonkTranspose_m_32f_4x4_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float *dst,
    int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkTranspose_m_32f_4x4_P(const float *const *src, int32_t srcShift, float *const *dst, int32_t dstShift);
VonkStatus vonkTranspose_m_32f_5x5(const float *src, int32_t srcRowStride, float *dst, int32_t dstRowStride);
VonkStatus vonkTranspose_m_32f_5x5_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float *dst,
    int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkTranspose_m_32f_5x5_P(const float *const *src, int32_t srcShift, float *const *dst, int32_t dstShift);
VonkStatus vonkTranspose_m_32f_6x6(const float *src, int32_t srcRowStride, float *dst, int32_t dstRowStride);
VonkStatus vonkTranspose_m_32f_6x6_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float *dst,
    int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkTranspose_m_32f_6x6_P(const float *const *src, int32_t srcShift, float *const *dst, int32_t dstShift);

VonkStatus vonkTranspose_m_64f(const double *src, int32_t srcRowStride, uint32_t cols, uint32_t rows, double *dst,
    int32_t dstRowStride);
VonkStatus vonkTranspose_m_64f_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, uint32_t cols,
    uint32_t rows, double *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkTranspose_m_64f_P(const double *const *src, int32_t srcShift, uint32_t cols, uint32_t rows,
    double *const *dst, int32_t dstShift);
VonkStatus vonkTranspose_m_64f_3x3(const double *src, int32_t srcRowStride, double *dst, int32_t dstRowStride);
VonkStatus vonkTranspose_m_64f_3x3_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, double *dst,
    int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkTranspose_m_64f_3x3_P(const double *const *src, int32_t srcShift, double *const *dst, int32_t dstShift);
VonkStatus vonkTranspose_m_64f_4x4(const double *src, int32_t srcRowStride, double *dst, int32_t dstRowStride);
VonkStatus vonkTranspose_m_64f_4x4_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, double *dst,
    int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkTranspose_m_64f_4x4_P(const double *const *src, int32_t srcShift, double *const *dst, int32_t dstShift);
VonkStatus vonkTranspose_m_64f_5x5(const double *src, int32_t srcRowStride, double *dst, int32_t dstRowStride);
VonkStatus vonkTranspose_m_64f_5x5_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, double *dst,
    int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkTranspose_m_64f_5x5_P(const double *const *src, int32_t srcShift, double *const *dst, int32_t dstShift);
VonkStatus vonkTranspose_m_64f_6x6(const double *src, int32_t srcRowStride, double *dst, int32_t dstRowStride);
VonkStatus vonkTranspose_m_64f_6x6_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, double *dst,
    int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkTranspose_m_64f_6x6_P(const double *const *src, int32_t srcShift, double *const *dst, int32_t dstShift);

VonkStatus vonkTranspose_ma_32f(const float *src, int32_t srcObjStride, int32_t srcRowStride, uint32_t cols,
    uint32_t rows, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkTranspose_ma_32f_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    uint32_t cols, uint32_t rows, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
VonkStatus vonkTranspose_ma_32f_P(const float *const *src, int32_t srcShift, uint32_t cols, uint32_t rows,
    float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkTranspose_ma_32f_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, uint32_t cols,
    uint32_t rows, float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkTranspose_ma_32f_L(const float *const *src, int32_t srcShift, int32_t srcRowStride, uint32_t cols,
    uint32_t rows, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkTranspose_ma_32f_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, uint32_t cols, uint32_t rows, float *const *dst, int32_t dstShift, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkTranspose_ma_32f_3x3(const float *src, int32_t srcObjStride, int32_t srcRowStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkTranspose_ma_32f_3x3_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
    int32_t srcElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
VonkStatus vonkTranspose_ma_32f_3x3_P(const float *const *src, int32_t srcShift, float *const *dst, int32_t dstShift,
    uint32_t count);
VonkStatus vonkTranspose_ma_32f_3x3_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkTranspose_ma_32f_3x3_L(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkTranspose_ma_32f_3x3_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
VonkStatus vonkTranspose_ma_32f_4x4(const float *src, int32_t srcObjStride, int32_t srcRowStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkTranspose_ma_32f_4x4_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
    int32_t srcElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
VonkStatus vonkTranspose_ma_32f_4x4_P(const float *const *src, int32_t srcShift, float *const *dst, int32_t dstShift,
    uint32_t count);
VonkStatus vonkTranspose_ma_32f_4x4_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkTranspose_ma_32f_4x4_L(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkTranspose_ma_32f_4x4_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
VonkStatus vonkTranspose_ma_32f_5x5(const float *src, int32_t srcObjStride, int32_t srcRowStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkTranspose_ma_32f_5x5_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
    int32_t srcElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
VonkStatus vonkTranspose_ma_32f_5x5_P(const float *const *src, int32_t srcShift, float *const *dst, int32_t dstShift,
    uint32_t count);
VonkStatus vonkTranspose_ma_32f_5x5_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkTranspose_ma_32f_5x5_L(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkTranspose_ma_32f_5x5_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
VonkStatus vonkTranspose_ma_32f_6x6(const float *src, int32_t srcObjStride, int32_t srcRowStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkTranspose_ma_32f_6x6_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
    int32_t srcElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
VonkStatus vonkTranspose_ma_32f_6x6_P(const float *const *src, int32_t srcShift, float *const *dst, int32_t dstShift,
    uint32_t count);
VonkStatus vonkTranspose_ma_32f_6x6_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkTranspose_ma_32f_6x6_L(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkTranspose_ma_32f_6x6_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);

VonkStatus vonkTranspose_ma_64f(const double *src, int32_t srcObjStride, int32_t srcRowStride, uint32_t cols,
    uint32_t rows, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkTranspose_ma_64f_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    uint32_t cols, uint32_t rows, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
VonkStatus vonkTranspose_ma_64f_P(const double *const *src, int32_t srcShift, uint32_t cols, uint32_t rows,
    double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkTranspose_ma_64f_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, uint32_t cols,
    uint32_t rows, double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkTranspose_ma_64f_L(const double *const *src, int32_t srcShift, int32_t srcRowStride, uint32_t cols,
    uint32_t rows, double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkTranspose_ma_64f_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, uint32_t cols, uint32_t rows, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkTranspose_ma_64f_3x3(const double *src, int32_t srcObjStride, int32_t srcRowStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkTranspose_ma_64f_3x3_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
    int32_t srcElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
VonkStatus vonkTranspose_ma_64f_3x3_P(const double *const *src, int32_t srcShift, double *const *dst, int32_t dstShift,
    uint32_t count);
VonkStatus vonkTranspose_ma_64f_3x3_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkTranspose_ma_64f_3x3_L(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkTranspose_ma_64f_3x3_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
VonkStatus vonkTranspose_ma_64f_4x4(const double *src, int32_t srcObjStride, int32_t srcRowStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkTranspose_ma_64f_4x4_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
    int32_t srcElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
VonkStatus vonkTranspose_ma_64f_4x4_P(const double *const *src, int32_t srcShift, double *const *dst, int32_t dstShift,
    uint32_t count);
VonkStatus vonkTranspose_ma_64f_4x4_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkTranspose_ma_64f_4x4_L(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkTranspose_ma_64f_4x4_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
VonkStatus vonkTranspose_ma_64f_5x5(const double *src, int32_t srcObjStride, int32_t srcRowStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkTranspose_ma_64f_5x5_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
    int32_t srcElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
VonkStatus vonkTranspose_ma_64f_5x5_P(const double *const *src, int32_t srcShift, double *const *dst, int32_t dstShift,
    uint32_t count);
VonkStatus vonkTranspose_ma_64f_5x5_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkTranspose_ma_64f_5x5_L(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkTranspose_ma_64f_5x5_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
VonkStatus vonkTranspose_ma_64f_6x6(const double *src, int32_t srcObjStride, int32_t srcRowStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkTranspose_ma_64f_6x6_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
    int32_t srcElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
VonkStatus vonkTranspose_ma_64f_6x6_P(const double *const *src, int32_t srcShift, double *const *dst, int32_t dstShift,
    uint32_t count);
VonkStatus vonkTranspose_ma_64f_6x6_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkTranspose_ma_64f_6x6_L(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkTranspose_ma_64f_6x6_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);

/* ---- Trace ----------------------------------------------------------------------------------------------------------
 *
 * dst(n) = sum over i of src(n, i, i)
 *
 * for i below `order`, ascending. `dst` is a packed block of one result per object in every layout.
 *
 * How sums are made:
 * - `32f` of fixed size in the standard layout and `L`: from the first element on, one store.
 * - `32f` otherwise: `dst` is set to +0, and follows every step.
 * - `64f`: `dst` is set to +0, the sum runs in the 80-bit type, and `dst` follows every step, rounded.
 *
 * A diagonal of negative zeros thus gives -0 in the first and +0 in all others.
 *
 * Status: vonkErrNullPtr if `src` or `dst` is null; vonkErrSize if `order` is 0; vonkErrNullPtr if a table or list
 * entry is null: in `m` in `P` as the sum reaches it, the sum so far being in `dst`; in `L` and `LS2` when the object's
 * turn comes, earlier results being complete. `count` 0 then gives vonkOk with nothing written.
 *
 * Members that behave unlike their siblings:
 * - `ma` in `P` and `PS2` scans entries 0 to `order` - 1 of the table ahead of everything else, even at `count` 0,
 *   which is not where the diagonal lies: a null entry of the diagonal further on is followed.
 * - vonkTrace_m_64f and vonkTrace_m_64f_S2, of an odd `order`: the last element is added to the sum as it was stored,
 *   rounded to 64 bits. All others add it to the unrounded sum.
 *
 * Overlap:
 * Nothing tests overlap. Where `dst` is set to +0 first, an element under it is lost.
 *
 * Read beyond the operands:
 * Nothing.
 */

VonkStatus vonkTrace_m_32f(const float *src, int32_t srcRowStride, uint32_t order, float *dst);
VonkStatus vonkTrace_m_32f_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, uint32_t order,
    float *dst);
VonkStatus vonkTrace_m_32f_P(const float *const *src, int32_t srcShift, uint32_t order, float *dst);
VonkStatus vonkTrace_m_32f_3x3(const float *src, int32_t srcRowStride, float *dst);
VonkStatus vonkTrace_m_32f_3x3_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float *dst);
VonkStatus vonkTrace_m_32f_3x3_P(const float *const *src, int32_t srcShift, float *dst);
VonkStatus vonkTrace_m_32f_4x4(const float *src, int32_t srcRowStride, float *dst);
VonkStatus vonkTrace_m_32f_4x4_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float *dst);
VonkStatus vonkTrace_m_32f_4x4_P(const float *const *src, int32_t srcShift, float *dst);
VonkStatus vonkTrace_m_32f_5x5(const float *src, int32_t srcRowStride, float *dst);
VonkStatus vonkTrace_m_32f_5x5_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float *dst);
VonkStatus vonkTrace_m_32f_5x5_P(const float *const *src, int32_t srcShift, float *dst);
VonkStatus vonkTrace_m_32f_6x6(const float *src, int32_t srcRowStride, float *dst);
VonkStatus vonkTrace_m_32f_6x6_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float *dst);
VonkStatus vonkTrace_m_32f_6x6_P(const float *const *src, int32_t srcShift, float *dst);

VonkStatus vonkTrace_m_64f(const double *src, int32_t srcRowStride, uint32_t order, double *dst);
VonkStatus vonkTrace_m_64f_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, uint32_t order,
    double *dst);
VonkStatus vonkTrace_m_64f_P(const double *const *src, int32_t srcShift, uint32_t order, double *dst);
VonkStatus vonkTrace_m_64f_3x3(const double *src, int32_t srcRowStride, double *dst);
VonkStatus vonkTrace_m_64f_3x3_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, double *dst);
VonkStatus vonkTrace_m_64f_3x3_P(const double *const *src, int32_t srcShift, double *dst);
VonkStatus vonkTrace_m_64f_4x4(const double *src, int32_t srcRowStride, double *dst);
VonkStatus vonkTrace_m_64f_4x4_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, double *dst);
VonkStatus vonkTrace_m_64f_4x4_P(const double *const *src, int32_t srcShift, double *dst);
VonkStatus vonkTrace_m_64f_5x5(const double *src, int32_t srcRowStride, double *dst);
VonkStatus vonkTrace_m_64f_5x5_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, double *dst);
VonkStatus vonkTrace_m_64f_5x5_P(const double *const *src, int32_t srcShift, double *dst);
VonkStatus vonkTrace_m_64f_6x6(const double *src, int32_t srcRowStride, double *dst);
VonkStatus vonkTrace_m_64f_6x6_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, double *dst);
VonkStatus vonkTrace_m_64f_6x6_P(const double *const *src, int32_t srcShift, double *dst);

VonkStatus vonkTrace_ma_32f(const float *src, int32_t srcObjStride, int32_t srcRowStride, uint32_t order, float *dst,
    uint32_t count);
VonkStatus vonkTrace_ma_32f_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    uint32_t order, float *dst, uint32_t count);
VonkStatus vonkTrace_ma_32f_P(const float *const *src, int32_t srcShift, uint32_t order, float *dst, uint32_t count);
VonkStatus vonkTrace_ma_32f_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, uint32_t order,
    float *dst, uint32_t count);
VonkStatus vonkTrace_ma_32f_L(const float *const *src, int32_t srcShift, int32_t srcRowStride, uint32_t order,
    float *dst, uint32_t count);
VonkStatus vonkTrace_ma_32f_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride, int32_t srcElemStride,
    uint32_t order, float *dst, uint32_t count);
VonkStatus vonkTrace_ma_32f_3x3(const float *src, int32_t srcObjStride, int32_t srcRowStride, float *dst,
    uint32_t count);
VonkStatus vonkTrace_ma_32f_3x3_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    float *dst, uint32_t count);
VonkStatus vonkTrace_ma_32f_3x3_P(const float *const *src, int32_t srcShift, float *dst, uint32_t count);
VonkStatus vonkTrace_ma_32f_3x3_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float *dst,
    uint32_t count);
VonkStatus vonkTrace_ma_32f_3x3_L(const float *const *src, int32_t srcShift, int32_t srcRowStride, float *dst,
    uint32_t count);
VonkStatus vonkTrace_ma_32f_3x3_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, float *dst, uint32_t count);
VonkStatus vonkTrace_ma_32f_4x4(const float *src, int32_t srcObjStride, int32_t srcRowStride, float *dst,
    uint32_t count);
VonkStatus vonkTrace_ma_32f_4x4_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    float *dst, uint32_t count);
VonkStatus vonkTrace_ma_32f_4x4_P(const float *const *src, int32_t srcShift, float *dst, uint32_t count);
VonkStatus vonkTrace_ma_32f_4x4_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float *dst,
    uint32_t count);
VonkStatus vonkTrace_ma_32f_4x4_L(const float *const *src, int32_t srcShift, int32_t srcRowStride, float *dst,
    uint32_t count);
VonkStatus vonkTrace_ma_32f_4x4_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, float *dst, uint32_t count);
VonkStatus vonkTrace_ma_32f_5x5(const float *src, int32_t srcObjStride, int32_t srcRowStride, float *dst,
    uint32_t count);
VonkStatus vonkTrace_ma_32f_5x5_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    float *dst, uint32_t count);
VonkStatus vonkTrace_ma_32f_5x5_P(const float *const *src, int32_t srcShift, float *dst, uint32_t count);
VonkStatus vonkTrace_ma_32f_5x5_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float *dst,
    uint32_t count);
VonkStatus vonkTrace_ma_32f_5x5_L(const float *const *src, int32_t srcShift, int32_t srcRowStride, float *dst,
    uint32_t count);
VonkStatus vonkTrace_ma_32f_5x5_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, float *dst, uint32_t count);
VonkStatus vonkTrace_ma_32f_6x6(const float *src, int32_t srcObjStride, int32_t srcRowStride, float *dst,
    uint32_t count);
VonkStatus vonkTrace_ma_32f_6x6_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    float *dst, uint32_t count);
VonkStatus vonkTrace_ma_32f_6x6_P(const float *const *src, int32_t srcShift, float *dst, uint32_t count);
VonkStatus vonkTrace_ma_32f_6x6_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float *dst,
    uint32_t count);
VonkStatus vonkTrace_ma_32f_6x6_L(const float *const *src, int32_t srcShift, int32_t srcRowStride, float *dst,
    uint32_t count);
VonkStatus vonkTrace_ma_32f_6x6_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, float *dst, uint32_t count);

VonkStatus vonkTrace_ma_64f(const double *src, int32_t srcObjStride, int32_t srcRowStride, uint32_t order, double *dst,
    uint32_t count);
VonkStatus vonkTrace_ma_64f_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    uint32_t order, double *dst, uint32_t count);
VonkStatus vonkTrace_ma_64f_P(const double *const *src, int32_t srcShift, uint32_t order, double *dst, uint32_t count);
VonkStatus vonkTrace_ma_64f_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, uint32_t order,
    double *dst, uint32_t count);
VonkStatus vonkTrace_ma_64f_L(const double *const *src, int32_t srcShift, int32_t srcRowStride, uint32_t order,
    double *dst, uint32_t count);
VonkStatus vonkTrace_ma_64f_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride, int32_t srcElemStride,
    uint32_t order, double *dst, uint32_t count);
VonkStatus vonkTrace_ma_64f_3x3(const double *src, int32_t srcObjStride, int32_t srcRowStride, double *dst,
    uint32_t count);
VonkStatus vonkTrace_ma_64f_3x3_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    double *dst, uint32_t count);
VonkStatus vonkTrace_ma_64f_3x3_P(const double *const *src, int32_t srcShift, double *dst, uint32_t count);
VonkStatus vonkTrace_ma_64f_3x3_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, double *dst,
    uint32_t count);
VonkStatus vonkTrace_ma_64f_3x3_L(const double *const *src, int32_t srcShift, int32_t srcRowStride, double *dst,
    uint32_t count);
VonkStatus vonkTrace_ma_64f_3x3_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, double *dst, uint32_t count);
VonkStatus vonkTrace_ma_64f_4x4(const double *src, int32_t srcObjStride, int32_t srcRowStride, double *dst,
    uint32_t count);
VonkStatus vonkTrace_ma_64f_4x4_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    double *dst, uint32_t count);
VonkStatus vonkTrace_ma_64f_4x4_P(const double *const *src, int32_t srcShift, double *dst, uint32_t count);
VonkStatus vonkTrace_ma_64f_4x4_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, double *dst,
    uint32_t count);
VonkStatus vonkTrace_ma_64f_4x4_L(const double *const *src, int32_t srcShift, int32_t srcRowStride, double *dst,
    uint32_t count);
VonkStatus vonkTrace_ma_64f_4x4_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, double *dst, uint32_t count);
VonkStatus vonkTrace_ma_64f_5x5(const double *src, int32_t srcObjStride, int32_t srcRowStride, double *dst,
    uint32_t count);
VonkStatus vonkTrace_ma_64f_5x5_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    double *dst, uint32_t count);
VonkStatus vonkTrace_ma_64f_5x5_P(const double *const *src, int32_t srcShift, double *dst, uint32_t count);
VonkStatus vonkTrace_ma_64f_5x5_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, double *dst,
    uint32_t count);
VonkStatus vonkTrace_ma_64f_5x5_L(const double *const *src, int32_t srcShift, int32_t srcRowStride, double *dst,
    uint32_t count);
VonkStatus vonkTrace_ma_64f_5x5_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, double *dst, uint32_t count);
VonkStatus vonkTrace_ma_64f_6x6(const double *src, int32_t srcObjStride, int32_t srcRowStride, double *dst,
    uint32_t count);
VonkStatus vonkTrace_ma_64f_6x6_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    double *dst, uint32_t count);
VonkStatus vonkTrace_ma_64f_6x6_P(const double *const *src, int32_t srcShift, double *dst, uint32_t count);
VonkStatus vonkTrace_ma_64f_6x6_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, double *dst,
    uint32_t count);
VonkStatus vonkTrace_ma_64f_6x6_L(const double *const *src, int32_t srcShift, int32_t srcRowStride, double *dst,
    uint32_t count);
VonkStatus vonkTrace_ma_64f_6x6_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, double *dst, uint32_t count);

/* ---- Frobenius norm -------------------------------------------------------------------------------------------------
 *
 * dst(n) = root of the sum of src(n, i, j)^2
 *
 * for i below `rows` and j below `cols`. `dst` is a packed block of one result per object in every layout. Products
 * and sums are rounded one by one, in `64f` to the 80-bit type, and nothing is scaled: squares overflow and underflow.
 *
 * Order of sums, and root:
 * - `m`: along the rows, from +0. `ma`: down the columns, from +0. True root, correctly rounded in `32f`.
 * - `ma` of `32f`, fixed size, in `P`, `PS2` and `LS2`: backwards, the last column first and each from the bottom.
 * - `32f` of fixed size, `m` in the standard layout and `ma` in the standard layout and `L`: in lanes, see below. The
 *   root is s * r (0.5 (3 - s (r r))) with r the processor's estimate of 1 / root(s) to about 12 bits: not correctly
 *   rounded, dependent on the processor, and NaN for a matrix of zeros.
 *
 * In lanes, with pij the square of element (i, j) and cj the sum of column j:
 * - 3x3: cj = (p0j + p1j) + p2j; s = (c0 + c1) + c2
 * - 4x4: cj = (p0j + p1j) + (p2j + p3j); s = (c0 + c2) + (c1 + c3)
 * - 5x5: cj = ((p0j + p1j) + (p2j + p3j)) + p4j; s = ((c0 + c2) + (c1 + c3)) + c4
 * - 6x6: cj = ((p0j + p1j) + (p2j + p3j)) + (p4j + p5j), of columns 4 and 5 ((p0j + p2j) + p4j) + ((p1j + p3j) + p5j);
 *   s = ((c0 + c2) + (c1 + c3)) + (c4 + c5)
 *
 * Status: vonkErrNullPtr if `src` or `dst` is null; vonkErrSize if `cols` or `rows` is 0; vonkErrNullPtr if a table or
 * list entry is null: in `P` and `PS2` all of the table ahead of everything else, even at `count` 0; in `L` and `LS2`
 * when the object's turn comes, earlier results being complete. `count` 0 then gives vonkOk with nothing written.
 *
 * Members that behave unlike their siblings:
 * - `ma` of `32f`, 3x3 and 4x4, in the standard layout and `L` takes blocks of four objects, which are summed in
 *   another order: 3x3 (((p00 + p01) + p22) + (p02 + p10)) + ((p11 + p12) + (p20 + p21)), 4x4 (c0 + c1) + (c2 + c3).
 *   Objects that fill no block are summed as above: the last bit of a result may depend on `count`. All of a block is
 *   read before its results are written.
 * - In `L` these two test the four entries of a block at its start, and those of the objects behind the last block
 *   never: a null there is followed.
 * - `64f` of run-time size, but for `P` and `PS2`, rounds the sum to 64 bits ahead of the root. It overflows to
 *   infinity and underflows where the others do not.
 *
 * Overlap:
 * Nothing tests overlap. A result is written when its matrix has been read, so `dst` may be an element of it.
 *
 * Read beyond the operands:
 * Nothing.
 */

VonkStatus vonkFrobNorm_m_32f(const float *src, int32_t srcRowStride, uint32_t cols, uint32_t rows, float *dst);
VonkStatus vonkFrobNorm_m_32f_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, uint32_t cols,
    uint32_t rows, float *dst);
VonkStatus vonkFrobNorm_m_32f_P(const float *const *src, int32_t srcShift, uint32_t cols, uint32_t rows, float *dst);
VonkStatus vonkFrobNorm_m_32f_3x3(const float *src, int32_t srcRowStride, float *dst);
VonkStatus vonkFrobNorm_m_32f_3x3_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float *dst);
VonkStatus vonkFrobNorm_m_32f_3x3_P(const float *const *src, int32_t srcShift, float *dst);
VonkStatus vonkFrobNorm_m_32f_4x4(const float *src, int32_t srcRowStride, float *dst);
VonkStatus vonkFrobNorm_m_32f_4x4_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float *dst);
VonkStatus vonkFrobNorm_m_32f_4x4_P(const float *const *src, int32_t srcShift, float *dst);
VonkStatus vonkFrobNorm_m_32f_5x5(const float *src, int32_t srcRowStride, float *dst);
VonkStatus vonkFrobNorm_m_32f_5x5_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float *dst);
VonkStatus vonkFrobNorm_m_32f_5x5_P(const float *const *src, int32_t srcShift, float *dst);
VonkStatus vonkFrobNorm_m_32f_6x6(const float *src, int32_t srcRowStride, float *dst);
VonkStatus vonkFrobNorm_m_32f_6x6_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float *dst);
VonkStatus vonkFrobNorm_m_32f_6x6_P(const float *const *src, int32_t srcShift, float *dst);

VonkStatus vonkFrobNorm_m_64f(const double *src, int32_t srcRowStride, uint32_t cols, uint32_t rows, double *dst);
VonkStatus vonkFrobNorm_m_64f_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, uint32_t cols,
    uint32_t rows, double *dst);
VonkStatus vonkFrobNorm_m_64f_P(const double *const *src, int32_t srcShift, uint32_t cols, uint32_t rows, double *dst);
VonkStatus vonkFrobNorm_m_64f_3x3(const double *src, int32_t srcRowStride, double *dst);
VonkStatus vonkFrobNorm_m_64f_3x3_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, double *dst);
VonkStatus vonkFrobNorm_m_64f_3x3_P(const double *const *src, int32_t srcShift, double *dst);
VonkStatus vonkFrobNorm_m_64f_4x4(const double *src, int32_t srcRowStride, double *dst);
VonkStatus vonkFrobNorm_m_64f_4x4_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, double *dst);
VonkStatus vonkFrobNorm_m_64f_4x4_P(const double *const *src, int32_t srcShift, double *dst);
VonkStatus vonkFrobNorm_m_64f_5x5(const double *src, int32_t srcRowStride, double *dst);
VonkStatus vonkFrobNorm_m_64f_5x5_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, double *dst);
VonkStatus vonkFrobNorm_m_64f_5x5_P(const double *const *src, int32_t srcShift, double *dst);
VonkStatus vonkFrobNorm_m_64f_6x6(const double *src, int32_t srcRowStride, double *dst);
VonkStatus vonkFrobNorm_m_64f_6x6_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, double *dst);
VonkStatus vonkFrobNorm_m_64f_6x6_P(const double *const *src, int32_t srcShift, double *dst);

VonkStatus vonkFrobNorm_ma_32f(const float *src, int32_t srcObjStride, int32_t srcRowStride, uint32_t cols,
    uint32_t rows, float *dst, uint32_t count);
VonkStatus vonkFrobNorm_ma_32f_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    uint32_t cols, uint32_t rows, float *dst, uint32_t count);
VonkStatus vonkFrobNorm_ma_32f_P(const float *const *src, int32_t srcShift, uint32_t cols, uint32_t rows, float *dst,
    uint32_t count);
VonkStatus vonkFrobNorm_ma_32f_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, uint32_t cols,
    uint32_t rows, float *dst, uint32_t count);
VonkStatus vonkFrobNorm_ma_32f_L(const float *const *src, int32_t srcShift, int32_t srcRowStride, uint32_t cols,
    uint32_t rows, float *dst, uint32_t count);
VonkStatus vonkFrobNorm_ma_32f_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, uint32_t cols, uint32_t rows, float *dst, uint32_t count);
VonkStatus vonkFrobNorm_ma_32f_3x3(const float *src, int32_t srcObjStride, int32_t srcRowStride, float *dst,
    uint32_t count);
VonkStatus vonkFrobNorm_ma_32f_3x3_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
    int32_t srcElemStride, float *dst, uint32_t count);
VonkStatus vonkFrobNorm_ma_32f_3x3_P(const float *const *src, int32_t srcShift, float *dst, uint32_t count);
VonkStatus vonkFrobNorm_ma_32f_3x3_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float *dst,
    uint32_t count);
VonkStatus vonkFrobNorm_ma_32f_3x3_L(const float *const *src, int32_t srcShift, int32_t srcRowStride, float *dst,
    uint32_t count);
VonkStatus vonkFrobNorm_ma_32f_3x3_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, float *dst, uint32_t count);
VonkStatus vonkFrobNorm_ma_32f_4x4(const float *src, int32_t srcObjStride, int32_t srcRowStride, float *dst,
    uint32_t count);
VonkStatus vonkFrobNorm_ma_32f_4x4_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
    int32_t srcElemStride, float *dst, uint32_t count);
VonkStatus vonkFrobNorm_ma_32f_4x4_P(const float *const *src, int32_t srcShift, float *dst, uint32_t count);
VonkStatus vonkFrobNorm_ma_32f_4x4_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float *dst,
    uint32_t count);
VonkStatus vonkFrobNorm_ma_32f_4x4_L(const float *const *src, int32_t srcShift, int32_t srcRowStride, float *dst,
    uint32_t count);
VonkStatus vonkFrobNorm_ma_32f_4x4_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, float *dst, uint32_t count);
VonkStatus vonkFrobNorm_ma_32f_5x5(const float *src, int32_t srcObjStride, int32_t srcRowStride, float *dst,
    uint32_t count);
VonkStatus vonkFrobNorm_ma_32f_5x5_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
    int32_t srcElemStride, float *dst, uint32_t count);
VonkStatus vonkFrobNorm_ma_32f_5x5_P(const float *const *src, int32_t srcShift, float *dst, uint32_t count);
VonkStatus vonkFrobNorm_ma_32f_5x5_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float *dst,
    uint32_t count);
VonkStatus vonkFrobNorm_ma_32f_5x5_L(const float *const *src, int32_t srcShift, int32_t srcRowStride, float *dst,
    uint32_t count);
VonkStatus vonkFrobNorm_ma_32f_5x5_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, float *dst, uint32_t count);
VonkStatus vonkFrobNorm_ma_32f_6x6(const float *src, int32_t srcObjStride, int32_t srcRowStride, float *dst,
    uint32_t count);
VonkStatus vonkFrobNorm_ma_32f_6x6_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
    int32_t srcElemStride, float *dst, uint32_t count);
VonkStatus vonkFrobNorm_ma_32f_6x6_P(const float *const *src, int32_t srcShift, float *dst, uint32_t count);
VonkStatus vonkFrobNorm_ma_32f_6x6_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float *dst,
    uint32_t count);
VonkStatus vonkFrobNorm_ma_32f_6x6_L(const float *const *src, int32_t srcShift, int32_t srcRowStride, float *dst,
    uint32_t count);
VonkStatus vonkFrobNorm_ma_32f_6x6_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, float *dst, uint32_t count);

VonkStatus vonkFrobNorm_ma_64f(const double *src, int32_t srcObjStride, int32_t srcRowStride, uint32_t cols,
    uint32_t rows, double *dst, uint32_t count);
VonkStatus vonkFrobNorm_ma_64f_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    uint32_t cols, uint32_t rows, double *dst, uint32_t count);
VonkStatus vonkFrobNorm_ma_64f_P(const double *const *src, int32_t srcShift, uint32_t cols, uint32_t rows, double *dst,
    uint32_t count);
VonkStatus vonkFrobNorm_ma_64f_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, uint32_t cols,
    uint32_t rows, double *dst, uint32_t count);
VonkStatus vonkFrobNorm_ma_64f_L(const double *const *src, int32_t srcShift, int32_t srcRowStride, uint32_t cols,
    uint32_t rows, double *dst, uint32_t count);
VonkStatus vonkFrobNorm_ma_64f_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, uint32_t cols, uint32_t rows, double *dst, uint32_t count);
VonkStatus vonkFrobNorm_ma_64f_3x3(const double *src, int32_t srcObjStride, int32_t srcRowStride, double *dst,
    uint32_t count);
VonkStatus vonkFrobNorm_ma_64f_3x3_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
    int32_t srcElemStride, double *dst, uint32_t count);
VonkStatus vonkFrobNorm_ma_64f_3x3_P(const double *const *src, int32_t srcShift, double *dst, uint32_t count);
VonkStatus vonkFrobNorm_ma_64f_3x3_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, double *dst,
    uint32_t count);
VonkStatus vonkFrobNorm_ma_64f_3x3_L(const double *const *src, int32_t srcShift, int32_t srcRowStride, double *dst,
    uint32_t count);
VonkStatus vonkFrobNorm_ma_64f_3x3_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, double *dst, uint32_t count);
VonkStatus vonkFrobNorm_ma_64f_4x4(const double *src, int32_t srcObjStride, int32_t srcRowStride, double *dst,
    uint32_t count);
VonkStatus vonkFrobNorm_ma_64f_4x4_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
    int32_t srcElemStride, double *dst, uint32_t count);
VonkStatus vonkFrobNorm_ma_64f_4x4_P(const double *const *src, int32_t srcShift, double *dst, uint32_t count);
VonkStatus vonkFrobNorm_ma_64f_4x4_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, double *dst,
    uint32_t count);
VonkStatus vonkFrobNorm_ma_64f_4x4_L(const double *const *src, int32_t srcShift, int32_t srcRowStride, double *dst,
    uint32_t count);
VonkStatus vonkFrobNorm_ma_64f_4x4_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, double *dst, uint32_t count);
VonkStatus vonkFrobNorm_ma_64f_5x5(const double *src, int32_t srcObjStride, int32_t srcRowStride, double *dst,
    uint32_t count);
VonkStatus vonkFrobNorm_ma_64f_5x5_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
    int32_t srcElemStride, double *dst, uint32_t count);
VonkStatus vonkFrobNorm_ma_64f_5x5_P(const double *const *src, int32_t srcShift, double *dst, uint32_t count);
VonkStatus vonkFrobNorm_ma_64f_5x5_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, double *dst,
    uint32_t count);
VonkStatus vonkFrobNorm_ma_64f_5x5_L(const double *const *src, int32_t srcShift, int32_t srcRowStride, double *dst,
    uint32_t count);
VonkStatus vonkFrobNorm_ma_64f_5x5_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, double *dst, uint32_t count);
VonkStatus vonkFrobNorm_ma_64f_6x6(const double *src, int32_t srcObjStride, int32_t srcRowStride, double *dst,
    uint32_t count);
VonkStatus vonkFrobNorm_ma_64f_6x6_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
    int32_t srcElemStride, double *dst, uint32_t count);
VonkStatus vonkFrobNorm_ma_64f_6x6_P(const double *const *src, int32_t srcShift, double *dst, uint32_t count);
VonkStatus vonkFrobNorm_ma_64f_6x6_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, double *dst,
    uint32_t count);
VonkStatus vonkFrobNorm_ma_64f_6x6_L(const double *const *src, int32_t srcShift, int32_t srcRowStride, double *dst,
    uint32_t count);
VonkStatus vonkFrobNorm_ma_64f_6x6_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, double *dst, uint32_t count);

/* ---- Matrix by matrix -----------------------------------------------------------------------------------------------
 *
 * dst(n, i, j) = sum over k of A(i, k) B(k, j)
 *
 * with A(i, k) = src1(n, i, k), or src1(n, k, i) if the first operand carries `T`, and B alike from `src2`. A single
 * operand serves all objects. Products and sums are rounded one by one, k ascending, and never fused.
 *
 * Sizes: `src1Cols` and `src1Rows`, `src2Cols` and `src2Rows`. For square matrices they mean what they say. Otherwise
 * the tests look at a transposed operand as it is stored and the loops as it enters the product: the result has
 * `src1Rows` rows and `src2Cols` columns and sums `src2Rows` terms, except in vonkMul_mmT of run-time size in the
 * standard layout, which has `src2Rows` columns and sums `src1Cols` terms. vonkErrSize unless `src1Cols` = `src2Rows`
 * (`mm`, `mam`), `src1Rows` = `src2Cols` (`mma`, `mama`, and with both transposed), `src1Rows` = `src2Rows` (first
 * transposed), `src1Cols` = `src2Cols` (second transposed); and if `src1Rows`, `src1Cols` or one word of `src2` is 0:
 * `src2Cols` in `mm` and with the first transposed alone, else `src2Rows`.
 *
 * Status: vonkErrNullPtr if `src1`, `src2` or `dst` is null; vonkErrSize as told; vonkErrNullPtr if a table or list
 * entry is null: in single forms in `P` entry by entry as the sums reach it, earlier cells and the sum so far being in
 * place; in `P` and `PS2` of arrays all of `src1`, `src2` and `dst` ahead of everything else, even at `count` 0; in
 * `L` and `LS2` when the object's turn comes. `count` 0 then gives vonkOk.
 *
 * How sums are made:
 * - `32f` of fixed size in the standard layout and `L`, and some members beside: in lanes, from the first product on,
 *   one store per element.
 * - `32f` otherwise: from +0, and the cell follows every step.
 * - `64f`: from +0 in the 80-bit type, and the cell follows every step, rounded. In the standard layout and `S2` the
 *   sum itself stays unrounded to the end; in `P`, `PS2`, `L` and `LS2` it is rounded to 64 bits at every step.
 *
 * Members that behave unlike their siblings:
 * - In lanes are also, of `32f`: `mam`, `mama` of 3x3, 4x4 and 5x5 and `maTm`, `mamT`, `maTmT` of 3x3 in `S2`; `mam`,
 *   `maTm`, `mamT` of 3x3 in `P` and `PS2`; `mam`, `maTm`, `mamT`, `maTmT` of 3x3 in `LS2`. Those in `P`, `PS2` and
 *   `LS2` never test a table or list entry.
 * - `mm`, `mmT` and `mTmT` of `32f`, 6x6, `S2` add in pairs: ((p0 + p1) + (p2 + p3)) + (p4 + p5).
 * - `mma` and `mama` of run-time size carry the test of the doubly transposed forms. In `mam` a `src2Cols` of 0
 *   passes, and nothing is written.
 * - The scan of the `dst` table of run-time size covers `src1Cols` * `src2Rows` entries (`src1Rows` for the first,
 *   `src2Cols` for the second if transposed), which need not be those that are written.
 *
 * Overlap:
 * Nothing tests overlap, and sums that are stored at every step destroy an operand under them. The forms in lanes hold
 * B and read A row by row, so some calls in place are right: with `dst` = `src1` where A is not transposed (3x3 to
 * 5x5), with `dst` = `src2` where B need not be read again (not in `mm`, `mTm` of 5x5, nor in `mmT`, `mTmT` of 6x6). A
 * single operand is never safe under an array.
 *
 * Read beyond the operands:
 * Nothing.
 */

VonkStatus vonkMul_mm_32f(const float *src1, int32_t src1RowStride, uint32_t src1Cols, uint32_t src1Rows,
    const float *src2, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows, float *dst, int32_t dstRowStride);
VonkStatus vonkMul_mm_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, uint32_t src2Cols,
    uint32_t src2Rows, float *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkMul_mm_32f_P(const float *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const float *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows, float *const *dst,
    int32_t dstShift);
VonkStatus vonkMul_mm_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
VonkStatus vonkMul_mm_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkMul_mm_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
VonkStatus vonkMul_mm_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
VonkStatus vonkMul_mm_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkMul_mm_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
VonkStatus vonkMul_mm_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
VonkStatus vonkMul_mm_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkMul_mm_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
VonkStatus vonkMul_mm_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
VonkStatus vonkMul_mm_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkMul_mm_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);

VonkStatus vonkMul_mm_64f(const double *src1, int32_t src1RowStride, uint32_t src1Cols, uint32_t src1Rows,
    const double *src2, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows, double *dst, int32_t dstRowStride);
VonkStatus vonkMul_mm_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, uint32_t src2Cols,
    uint32_t src2Rows, double *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkMul_mm_64f_P(const double *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const double *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows, double *const *dst,
    int32_t dstShift);
VonkStatus vonkMul_mm_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
VonkStatus vonkMul_mm_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkMul_mm_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
VonkStatus vonkMul_mm_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
VonkStatus vonkMul_mm_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkMul_mm_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
VonkStatus vonkMul_mm_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
VonkStatus vonkMul_mm_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkMul_mm_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
VonkStatus vonkMul_mm_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
VonkStatus vonkMul_mm_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkMul_mm_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);

VonkStatus vonkMul_mmT_32f(const float *src1, int32_t src1RowStride, uint32_t src1Cols, uint32_t src1Rows,
    const float *src2, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows, float *dst, int32_t dstRowStride);
VonkStatus vonkMul_mmT_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, uint32_t src2Cols,
    uint32_t src2Rows, float *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkMul_mmT_32f_P(const float *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const float *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows, float *const *dst,
    int32_t dstShift);
VonkStatus vonkMul_mmT_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
VonkStatus vonkMul_mmT_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkMul_mmT_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
VonkStatus vonkMul_mmT_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
VonkStatus vonkMul_mmT_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkMul_mmT_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
VonkStatus vonkMul_mmT_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
VonkStatus vonkMul_mmT_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkMul_mmT_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
VonkStatus vonkMul_mmT_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
VonkStatus vonkMul_mmT_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkMul_mmT_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);

VonkStatus vonkMul_mmT_64f(const double *src1, int32_t src1RowStride, uint32_t src1Cols, uint32_t src1Rows,
    const double *src2, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows, double *dst, int32_t dstRowStride);
VonkStatus vonkMul_mmT_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, uint32_t src2Cols,
    uint32_t src2Rows, double *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkMul_mmT_64f_P(const double *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const double *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows, double *const *dst,
    int32_t dstShift);
VonkStatus vonkMul_mmT_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
VonkStatus vonkMul_mmT_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkMul_mmT_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
VonkStatus vonkMul_mmT_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
VonkStatus vonkMul_mmT_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkMul_mmT_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
VonkStatus vonkMul_mmT_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
VonkStatus vonkMul_mmT_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkMul_mmT_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
VonkStatus vonkMul_mmT_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
VonkStatus vonkMul_mmT_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkMul_mmT_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);

VonkStatus vonkMul_mTm_32f(const float *src1, int32_t src1RowStride, uint32_t src1Cols, uint32_t src1Rows,
    const float *src2, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows, float *dst, int32_t dstRowStride);
VonkStatus vonkMul_mTm_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, uint32_t src2Cols,
    uint32_t src2Rows, float *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkMul_mTm_32f_P(const float *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const float *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows, float *const *dst,
    int32_t dstShift);
VonkStatus vonkMul_mTm_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
VonkStatus vonkMul_mTm_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkMul_mTm_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
VonkStatus vonkMul_mTm_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
VonkStatus vonkMul_mTm_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkMul_mTm_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
VonkStatus vonkMul_mTm_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
VonkStatus vonkMul_mTm_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkMul_mTm_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
VonkStatus vonkMul_mTm_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
VonkStatus vonkMul_mTm_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkMul_mTm_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);

VonkStatus vonkMul_mTm_64f(const double *src1, int32_t src1RowStride, uint32_t src1Cols, uint32_t src1Rows,
    const double *src2, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows, double *dst, int32_t dstRowStride);
VonkStatus vonkMul_mTm_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, uint32_t src2Cols,
    uint32_t src2Rows, double *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkMul_mTm_64f_P(const double *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const double *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows, double *const *dst,
    int32_t dstShift);
VonkStatus vonkMul_mTm_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
VonkStatus vonkMul_mTm_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkMul_mTm_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
VonkStatus vonkMul_mTm_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
VonkStatus vonkMul_mTm_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkMul_mTm_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
VonkStatus vonkMul_mTm_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
VonkStatus vonkMul_mTm_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkMul_mTm_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
VonkStatus vonkMul_mTm_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
VonkStatus vonkMul_mTm_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkMul_mTm_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);

VonkStatus vonkMul_mTmT_32f(const float *src1, int32_t src1RowStride, uint32_t src1Cols, uint32_t src1Rows,
    const float *src2, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows, float *dst, int32_t dstRowStride);
VonkStatus vonkMul_mTmT_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, uint32_t src2Cols,
    uint32_t src2Rows, float *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkMul_mTmT_32f_P(const float *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const float *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows, float *const *dst,
    int32_t dstShift);
VonkStatus vonkMul_mTmT_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
VonkStatus vonkMul_mTmT_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkMul_mTmT_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
VonkStatus vonkMul_mTmT_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
VonkStatus vonkMul_mTmT_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkMul_mTmT_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
VonkStatus vonkMul_mTmT_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
VonkStatus vonkMul_mTmT_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkMul_mTmT_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
VonkStatus vonkMul_mTmT_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2RowStride,
    float *dst, int32_t dstRowStride);
VonkStatus vonkMul_mTmT_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkMul_mTmT_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);

VonkStatus vonkMul_mTmT_64f(const double *src1, int32_t src1RowStride, uint32_t src1Cols, uint32_t src1Rows,
    const double *src2, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows, double *dst, int32_t dstRowStride);
VonkStatus vonkMul_mTmT_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, uint32_t src2Cols,
    uint32_t src2Rows, double *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkMul_mTmT_64f_P(const double *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const double *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows, double *const *dst,
    int32_t dstShift);
VonkStatus vonkMul_mTmT_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
VonkStatus vonkMul_mTmT_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
    int32_t dstElemStride);
VonkStatus vonkMul_mTmT_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
VonkStatus vonkMul_mTmT_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
VonkStatus vonkMul_mTmT_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
    int32_t dstElemStride);
VonkStatus vonkMul_mTmT_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
VonkStatus vonkMul_mTmT_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
VonkStatus vonkMul_mTmT_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
    int32_t dstElemStride);
VonkStatus vonkMul_mTmT_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
VonkStatus vonkMul_mTmT_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2RowStride,
    double *dst, int32_t dstRowStride);
VonkStatus vonkMul_mTmT_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
    int32_t dstElemStride);
VonkStatus vonkMul_mTmT_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);

VonkStatus vonkMul_mma_32f(const float *src1, int32_t src1RowStride, uint32_t src1Cols, uint32_t src1Rows,
    const float *src2, int32_t src2ObjStride, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mma_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    uint32_t src2Cols, uint32_t src2Rows, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
VonkStatus vonkMul_mma_32f_P(const float *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const float *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows, float *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mma_32f_PS2(const float *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, uint32_t src2Cols, uint32_t src2Rows,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mma_32f_L(const float *src1, int32_t src1RowStride, uint32_t src1Cols, uint32_t src1Rows,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mma_32f_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    uint32_t src2Cols, uint32_t src2Rows, float *const *dst, int32_t dstShift, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mma_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mma_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mma_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mma_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_mma_32f_3x3_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mma_32f_3x3_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mma_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mma_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mma_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mma_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_mma_32f_4x4_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mma_32f_4x4_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mma_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mma_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mma_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mma_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_mma_32f_5x5_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mma_32f_5x5_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mma_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mma_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mma_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mma_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_mma_32f_6x6_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mma_32f_6x6_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

VonkStatus vonkMul_mma_64f(const double *src1, int32_t src1RowStride, uint32_t src1Cols, uint32_t src1Rows,
    const double *src2, int32_t src2ObjStride, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mma_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    uint32_t src2Cols, uint32_t src2Rows, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mma_64f_P(const double *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const double *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows, double *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mma_64f_PS2(const double *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, uint32_t src2Cols, uint32_t src2Rows,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mma_64f_L(const double *src1, int32_t src1RowStride, uint32_t src1Cols, uint32_t src1Rows,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mma_64f_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    uint32_t src2Cols, uint32_t src2Rows, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mma_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mma_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mma_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mma_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_mma_64f_3x3_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkMul_mma_64f_3x3_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mma_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mma_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mma_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mma_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_mma_64f_4x4_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkMul_mma_64f_4x4_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mma_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mma_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mma_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mma_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_mma_64f_5x5_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkMul_mma_64f_5x5_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mma_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mma_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mma_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mma_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_mma_64f_6x6_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkMul_mma_64f_6x6_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

VonkStatus vonkMul_mmaT_32f(const float *src1, int32_t src1RowStride, uint32_t src1Cols, uint32_t src1Rows,
    const float *src2, int32_t src2ObjStride, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mmaT_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    uint32_t src2Cols, uint32_t src2Rows, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
VonkStatus vonkMul_mmaT_32f_P(const float *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const float *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows, float *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mmaT_32f_PS2(const float *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, uint32_t src2Cols, uint32_t src2Rows,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mmaT_32f_L(const float *src1, int32_t src1RowStride, uint32_t src1Cols, uint32_t src1Rows,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mmaT_32f_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    uint32_t src2Cols, uint32_t src2Rows, float *const *dst, int32_t dstShift, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mmaT_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mmaT_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mmaT_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mmaT_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_mmaT_32f_3x3_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mmaT_32f_3x3_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mmaT_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mmaT_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mmaT_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mmaT_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_mmaT_32f_4x4_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mmaT_32f_4x4_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mmaT_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mmaT_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mmaT_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mmaT_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_mmaT_32f_5x5_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mmaT_32f_5x5_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mmaT_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mmaT_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mmaT_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mmaT_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_mmaT_32f_6x6_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mmaT_32f_6x6_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

VonkStatus vonkMul_mmaT_64f(const double *src1, int32_t src1RowStride, uint32_t src1Cols, uint32_t src1Rows,
    const double *src2, int32_t src2ObjStride, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mmaT_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    uint32_t src2Cols, uint32_t src2Rows, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mmaT_64f_P(const double *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const double *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows, double *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mmaT_64f_PS2(const double *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, uint32_t src2Cols, uint32_t src2Rows,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mmaT_64f_L(const double *src1, int32_t src1RowStride, uint32_t src1Cols, uint32_t src1Rows,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mmaT_64f_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    uint32_t src2Cols, uint32_t src2Rows, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mmaT_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mmaT_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mmaT_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mmaT_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_mmaT_64f_3x3_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkMul_mmaT_64f_3x3_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mmaT_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mmaT_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mmaT_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mmaT_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_mmaT_64f_4x4_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkMul_mmaT_64f_4x4_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mmaT_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mmaT_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mmaT_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mmaT_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_mmaT_64f_5x5_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkMul_mmaT_64f_5x5_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mmaT_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mmaT_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mmaT_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mmaT_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_mmaT_64f_6x6_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkMul_mmaT_64f_6x6_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

VonkStatus vonkMul_mTma_32f(const float *src1, int32_t src1RowStride, uint32_t src1Cols, uint32_t src1Rows,
    const float *src2, int32_t src2ObjStride, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mTma_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    uint32_t src2Cols, uint32_t src2Rows, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
VonkStatus vonkMul_mTma_32f_P(const float *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const float *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows, float *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mTma_32f_PS2(const float *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, uint32_t src2Cols, uint32_t src2Rows,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mTma_32f_L(const float *src1, int32_t src1RowStride, uint32_t src1Cols, uint32_t src1Rows,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mTma_32f_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    uint32_t src2Cols, uint32_t src2Rows, float *const *dst, int32_t dstShift, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mTma_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mTma_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mTma_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mTma_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_mTma_32f_3x3_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mTma_32f_3x3_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mTma_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mTma_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mTma_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mTma_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_mTma_32f_4x4_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mTma_32f_4x4_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mTma_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mTma_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mTma_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mTma_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_mTma_32f_5x5_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mTma_32f_5x5_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mTma_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mTma_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mTma_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mTma_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_mTma_32f_6x6_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mTma_32f_6x6_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

VonkStatus vonkMul_mTma_64f(const double *src1, int32_t src1RowStride, uint32_t src1Cols, uint32_t src1Rows,
    const double *src2, int32_t src2ObjStride, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mTma_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    uint32_t src2Cols, uint32_t src2Rows, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mTma_64f_P(const double *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const double *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows, double *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mTma_64f_PS2(const double *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, uint32_t src2Cols, uint32_t src2Rows,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mTma_64f_L(const double *src1, int32_t src1RowStride, uint32_t src1Cols, uint32_t src1Rows,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mTma_64f_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    uint32_t src2Cols, uint32_t src2Rows, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mTma_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mTma_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mTma_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mTma_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_mTma_64f_3x3_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkMul_mTma_64f_3x3_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mTma_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mTma_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mTma_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mTma_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_mTma_64f_4x4_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkMul_mTma_64f_4x4_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mTma_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mTma_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mTma_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mTma_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_mTma_64f_5x5_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkMul_mTma_64f_5x5_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mTma_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mTma_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mTma_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mTma_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_mTma_64f_6x6_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkMul_mTma_64f_6x6_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

VonkStatus vonkMul_mTmaT_32f(const float *src1, int32_t src1RowStride, uint32_t src1Cols, uint32_t src1Rows,
    const float *src2, int32_t src2ObjStride, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mTmaT_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    uint32_t src2Cols, uint32_t src2Rows, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
VonkStatus vonkMul_mTmaT_32f_P(const float *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const float *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows, float *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mTmaT_32f_PS2(const float *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, uint32_t src2Cols, uint32_t src2Rows,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mTmaT_32f_L(const float *src1, int32_t src1RowStride, uint32_t src1Cols, uint32_t src1Rows,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mTmaT_32f_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    uint32_t src2Cols, uint32_t src2Rows, float *const *dst, int32_t dstShift, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mTmaT_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mTmaT_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mTmaT_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mTmaT_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_mTmaT_32f_3x3_L(const float *src1, int32_t src1RowStride, const float *const *src2,
    int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkMul_mTmaT_32f_3x3_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mTmaT_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mTmaT_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mTmaT_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mTmaT_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_mTmaT_32f_4x4_L(const float *src1, int32_t src1RowStride, const float *const *src2,
    int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkMul_mTmaT_32f_4x4_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mTmaT_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mTmaT_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mTmaT_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mTmaT_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_mTmaT_32f_5x5_L(const float *src1, int32_t src1RowStride, const float *const *src2,
    int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkMul_mTmaT_32f_5x5_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mTmaT_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mTmaT_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mTmaT_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mTmaT_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_mTmaT_32f_6x6_L(const float *src1, int32_t src1RowStride, const float *const *src2,
    int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkMul_mTmaT_32f_6x6_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

VonkStatus vonkMul_mTmaT_64f(const double *src1, int32_t src1RowStride, uint32_t src1Cols, uint32_t src1Rows,
    const double *src2, int32_t src2ObjStride, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mTmaT_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    uint32_t src2Cols, uint32_t src2Rows, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mTmaT_64f_P(const double *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const double *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows, double *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mTmaT_64f_PS2(const double *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, uint32_t src2Cols, uint32_t src2Rows,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mTmaT_64f_L(const double *src1, int32_t src1RowStride, uint32_t src1Cols, uint32_t src1Rows,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mTmaT_64f_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    uint32_t src2Cols, uint32_t src2Rows, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mTmaT_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mTmaT_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mTmaT_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mTmaT_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_mTmaT_64f_3x3_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkMul_mTmaT_64f_3x3_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mTmaT_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mTmaT_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mTmaT_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mTmaT_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_mTmaT_64f_4x4_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkMul_mTmaT_64f_4x4_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mTmaT_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mTmaT_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mTmaT_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mTmaT_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_mTmaT_64f_5x5_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkMul_mTmaT_64f_5x5_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mTmaT_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mTmaT_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mTmaT_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mTmaT_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_mTmaT_64f_6x6_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkMul_mTmaT_64f_6x6_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

VonkStatus vonkMul_mam_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *src2, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mam_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    uint32_t src1Cols, uint32_t src1Rows, const float *src2, int32_t src2RowStride, int32_t src2ElemStride,
    uint32_t src2Cols, uint32_t src2Rows, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
VonkStatus vonkMul_mam_32f_P(const float *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const float *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows, float *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mam_32f_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mam_32f_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *src2, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mam_32f_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, uint32_t src1Cols, uint32_t src1Rows, const float *src2, int32_t src2RowStride,
    int32_t src2ElemStride, uint32_t src2Cols, uint32_t src2Rows, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mam_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mam_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mam_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mam_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_mam_32f_3x3_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mam_32f_3x3_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mam_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mam_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mam_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mam_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_mam_32f_4x4_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mam_32f_4x4_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mam_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mam_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mam_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mam_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_mam_32f_5x5_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mam_32f_5x5_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mam_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mam_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mam_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mam_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_mam_32f_6x6_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mam_32f_6x6_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

VonkStatus vonkMul_mam_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *src2, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mam_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    uint32_t src1Cols, uint32_t src1Rows, const double *src2, int32_t src2RowStride, int32_t src2ElemStride,
    uint32_t src2Cols, uint32_t src2Rows, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mam_64f_P(const double *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const double *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows, double *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mam_64f_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mam_64f_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *src2, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mam_64f_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, uint32_t src1Cols, uint32_t src1Rows, const double *src2, int32_t src2RowStride,
    int32_t src2ElemStride, uint32_t src2Cols, uint32_t src2Rows, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mam_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mam_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mam_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mam_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_mam_64f_3x3_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkMul_mam_64f_3x3_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mam_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mam_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mam_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mam_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_mam_64f_4x4_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkMul_mam_64f_4x4_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mam_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mam_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mam_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mam_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_mam_64f_5x5_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkMul_mam_64f_5x5_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mam_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mam_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mam_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mam_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_mam_64f_6x6_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkMul_mam_64f_6x6_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

VonkStatus vonkMul_mamT_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *src2, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mamT_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    uint32_t src1Cols, uint32_t src1Rows, const float *src2, int32_t src2RowStride, int32_t src2ElemStride,
    uint32_t src2Cols, uint32_t src2Rows, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
VonkStatus vonkMul_mamT_32f_P(const float *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const float *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows, float *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mamT_32f_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mamT_32f_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *src2, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mamT_32f_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, uint32_t src1Cols, uint32_t src1Rows, const float *src2, int32_t src2RowStride,
    int32_t src2ElemStride, uint32_t src2Cols, uint32_t src2Rows, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mamT_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mamT_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mamT_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mamT_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_mamT_32f_3x3_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mamT_32f_3x3_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mamT_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mamT_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mamT_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mamT_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_mamT_32f_4x4_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mamT_32f_4x4_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mamT_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mamT_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mamT_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mamT_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_mamT_32f_5x5_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mamT_32f_5x5_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mamT_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mamT_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mamT_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mamT_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_mamT_32f_6x6_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mamT_32f_6x6_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

VonkStatus vonkMul_mamT_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *src2, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mamT_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    uint32_t src1Cols, uint32_t src1Rows, const double *src2, int32_t src2RowStride, int32_t src2ElemStride,
    uint32_t src2Cols, uint32_t src2Rows, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mamT_64f_P(const double *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const double *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows, double *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mamT_64f_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mamT_64f_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *src2, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mamT_64f_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, uint32_t src1Cols, uint32_t src1Rows, const double *src2, int32_t src2RowStride,
    int32_t src2ElemStride, uint32_t src2Cols, uint32_t src2Rows, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mamT_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mamT_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mamT_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mamT_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_mamT_64f_3x3_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkMul_mamT_64f_3x3_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mamT_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mamT_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mamT_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mamT_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_mamT_64f_4x4_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkMul_mamT_64f_4x4_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mamT_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mamT_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mamT_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mamT_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_mamT_64f_5x5_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkMul_mamT_64f_5x5_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mamT_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mamT_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mamT_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mamT_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_mamT_64f_6x6_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkMul_mamT_64f_6x6_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

VonkStatus vonkMul_maTm_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *src2, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_maTm_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    uint32_t src1Cols, uint32_t src1Rows, const float *src2, int32_t src2RowStride, int32_t src2ElemStride,
    uint32_t src2Cols, uint32_t src2Rows, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
VonkStatus vonkMul_maTm_32f_P(const float *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const float *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows, float *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTm_32f_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_maTm_32f_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *src2, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_maTm_32f_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, uint32_t src1Cols, uint32_t src1Rows, const float *src2, int32_t src2RowStride,
    int32_t src2ElemStride, uint32_t src2Cols, uint32_t src2Rows, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTm_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_maTm_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTm_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTm_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_maTm_32f_3x3_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_maTm_32f_3x3_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTm_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_maTm_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTm_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTm_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_maTm_32f_4x4_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_maTm_32f_4x4_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTm_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_maTm_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTm_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTm_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_maTm_32f_5x5_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_maTm_32f_5x5_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTm_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_maTm_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTm_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTm_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_maTm_32f_6x6_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_maTm_32f_6x6_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

VonkStatus vonkMul_maTm_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *src2, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_maTm_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    uint32_t src1Cols, uint32_t src1Rows, const double *src2, int32_t src2RowStride, int32_t src2ElemStride,
    uint32_t src2Cols, uint32_t src2Rows, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTm_64f_P(const double *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const double *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows, double *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTm_64f_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_maTm_64f_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *src2, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_maTm_64f_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, uint32_t src1Cols, uint32_t src1Rows, const double *src2, int32_t src2RowStride,
    int32_t src2ElemStride, uint32_t src2Cols, uint32_t src2Rows, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTm_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_maTm_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTm_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTm_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_maTm_64f_3x3_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkMul_maTm_64f_3x3_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTm_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_maTm_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTm_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTm_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_maTm_64f_4x4_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkMul_maTm_64f_4x4_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTm_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_maTm_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTm_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTm_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_maTm_64f_5x5_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkMul_maTm_64f_5x5_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTm_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_maTm_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTm_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTm_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_maTm_64f_6x6_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkMul_maTm_64f_6x6_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

VonkStatus vonkMul_maTmT_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *src2, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_maTmT_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    uint32_t src1Cols, uint32_t src1Rows, const float *src2, int32_t src2RowStride, int32_t src2ElemStride,
    uint32_t src2Cols, uint32_t src2Rows, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
    uint32_t count);
VonkStatus vonkMul_maTmT_32f_P(const float *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const float *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows, float *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTmT_32f_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_maTmT_32f_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *src2, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_maTmT_32f_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, uint32_t src1Cols, uint32_t src1Rows, const float *src2, int32_t src2RowStride,
    int32_t src2ElemStride, uint32_t src2Cols, uint32_t src2Rows, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTmT_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_maTmT_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTmT_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTmT_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_maTmT_32f_3x3_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *src2, int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkMul_maTmT_32f_3x3_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTmT_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_maTmT_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTmT_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTmT_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_maTmT_32f_4x4_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *src2, int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkMul_maTmT_32f_4x4_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTmT_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_maTmT_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTmT_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTmT_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_maTmT_32f_5x5_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *src2, int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkMul_maTmT_32f_5x5_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTmT_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_maTmT_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTmT_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTmT_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_maTmT_32f_6x6_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *src2, int32_t src2RowStride, float *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkMul_maTmT_32f_6x6_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

VonkStatus vonkMul_maTmT_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *src2, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_maTmT_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, uint32_t src1Cols, uint32_t src1Rows, const double *src2, int32_t src2RowStride,
    int32_t src2ElemStride, uint32_t src2Cols, uint32_t src2Rows, double *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTmT_64f_P(const double *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const double *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows, double *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTmT_64f_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_maTmT_64f_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *src2, int32_t src2RowStride, uint32_t src2Cols, uint32_t src2Rows,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_maTmT_64f_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, uint32_t src1Cols, uint32_t src1Rows, const double *src2, int32_t src2RowStride,
    int32_t src2ElemStride, uint32_t src2Cols, uint32_t src2Rows, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTmT_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_maTmT_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTmT_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTmT_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_maTmT_64f_3x3_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkMul_maTmT_64f_3x3_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTmT_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_maTmT_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTmT_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTmT_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_maTmT_64f_4x4_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkMul_maTmT_64f_4x4_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTmT_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_maTmT_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTmT_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTmT_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_maTmT_64f_5x5_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkMul_maTmT_64f_5x5_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTmT_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_maTmT_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTmT_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTmT_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_maTmT_64f_6x6_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, int32_t src2RowStride, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkMul_maTmT_64f_6x6_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

VonkStatus vonkMul_mama_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, uint32_t src2Cols,
    uint32_t src2Rows, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mama_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    uint32_t src1Cols, uint32_t src1Rows, const float *src2, int32_t src2ObjStride, int32_t src2RowStride,
    int32_t src2ElemStride, uint32_t src2Cols, uint32_t src2Rows, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mama_32f_P(const float *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const float *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows, float *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mama_32f_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, uint32_t src2Cols,
    uint32_t src2Rows, float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mama_32f_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, uint32_t src2Cols,
    uint32_t src2Rows, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mama_32f_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, uint32_t src1Cols, uint32_t src1Rows, const float *const *src2, int32_t src2Shift,
    int32_t src2RowStride, int32_t src2ElemStride, uint32_t src2Cols, uint32_t src2Rows, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mama_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkMul_mama_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mama_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mama_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mama_32f_3x3_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mama_32f_3x3_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mama_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkMul_mama_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mama_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mama_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mama_32f_4x4_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mama_32f_4x4_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mama_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkMul_mama_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mama_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mama_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mama_32f_5x5_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mama_32f_5x5_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mama_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkMul_mama_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mama_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mama_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mama_32f_6x6_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mama_32f_6x6_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

VonkStatus vonkMul_mama_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, uint32_t src2Cols,
    uint32_t src2Rows, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mama_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    uint32_t src1Cols, uint32_t src1Rows, const double *src2, int32_t src2ObjStride, int32_t src2RowStride,
    int32_t src2ElemStride, uint32_t src2Cols, uint32_t src2Rows, double *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mama_64f_P(const double *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const double *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows, double *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mama_64f_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, uint32_t src2Cols,
    uint32_t src2Rows, double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mama_64f_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, uint32_t src2Cols,
    uint32_t src2Rows, double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mama_64f_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, uint32_t src1Cols, uint32_t src1Rows, const double *const *src2, int32_t src2Shift,
    int32_t src2RowStride, int32_t src2ElemStride, uint32_t src2Cols, uint32_t src2Rows, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mama_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkMul_mama_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mama_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mama_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mama_64f_3x3_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mama_64f_3x3_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mama_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkMul_mama_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mama_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mama_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mama_64f_4x4_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mama_64f_4x4_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mama_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkMul_mama_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mama_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mama_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mama_64f_5x5_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mama_64f_5x5_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mama_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkMul_mama_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mama_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mama_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mama_64f_6x6_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mama_64f_6x6_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

VonkStatus vonkMul_mamaT_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, uint32_t src2Cols,
    uint32_t src2Rows, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mamaT_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    uint32_t src1Cols, uint32_t src1Rows, const float *src2, int32_t src2ObjStride, int32_t src2RowStride,
    int32_t src2ElemStride, uint32_t src2Cols, uint32_t src2Rows, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mamaT_32f_P(const float *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const float *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows, float *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mamaT_32f_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, uint32_t src2Cols,
    uint32_t src2Rows, float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mamaT_32f_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, uint32_t src2Cols,
    uint32_t src2Rows, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mamaT_32f_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, uint32_t src1Cols, uint32_t src1Rows, const float *const *src2, int32_t src2Shift,
    int32_t src2RowStride, int32_t src2ElemStride, uint32_t src2Cols, uint32_t src2Rows, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mamaT_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkMul_mamaT_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mamaT_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mamaT_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mamaT_32f_3x3_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mamaT_32f_3x3_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mamaT_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkMul_mamaT_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mamaT_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mamaT_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mamaT_32f_4x4_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mamaT_32f_4x4_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mamaT_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkMul_mamaT_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mamaT_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mamaT_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mamaT_32f_5x5_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mamaT_32f_5x5_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mamaT_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkMul_mamaT_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mamaT_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mamaT_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mamaT_32f_6x6_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mamaT_32f_6x6_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

VonkStatus vonkMul_mamaT_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, uint32_t src2Cols,
    uint32_t src2Rows, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mamaT_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, uint32_t src1Cols, uint32_t src1Rows, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, int32_t src2ElemStride, uint32_t src2Cols, uint32_t src2Rows, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mamaT_64f_P(const double *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const double *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows, double *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mamaT_64f_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, uint32_t src2Cols,
    uint32_t src2Rows, double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mamaT_64f_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, uint32_t src2Cols,
    uint32_t src2Rows, double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mamaT_64f_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, uint32_t src1Cols, uint32_t src1Rows, const double *const *src2, int32_t src2Shift,
    int32_t src2RowStride, int32_t src2ElemStride, uint32_t src2Cols, uint32_t src2Rows, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mamaT_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkMul_mamaT_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mamaT_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mamaT_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mamaT_64f_3x3_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mamaT_64f_3x3_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mamaT_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkMul_mamaT_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mamaT_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mamaT_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mamaT_64f_4x4_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mamaT_64f_4x4_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mamaT_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkMul_mamaT_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mamaT_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mamaT_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mamaT_64f_5x5_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mamaT_64f_5x5_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mamaT_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkMul_mamaT_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mamaT_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mamaT_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mamaT_64f_6x6_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_mamaT_64f_6x6_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

VonkStatus vonkMul_maTma_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, uint32_t src2Cols,
    uint32_t src2Rows, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_maTma_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    uint32_t src1Cols, uint32_t src1Rows, const float *src2, int32_t src2ObjStride, int32_t src2RowStride,
    int32_t src2ElemStride, uint32_t src2Cols, uint32_t src2Rows, float *dst, int32_t dstObjStride,
    int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTma_32f_P(const float *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const float *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows, float *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTma_32f_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, uint32_t src2Cols,
    uint32_t src2Rows, float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_maTma_32f_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, uint32_t src2Cols,
    uint32_t src2Rows, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_maTma_32f_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, uint32_t src1Cols, uint32_t src1Rows, const float *const *src2, int32_t src2Shift,
    int32_t src2RowStride, int32_t src2ElemStride, uint32_t src2Cols, uint32_t src2Rows, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTma_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkMul_maTma_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTma_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTma_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_maTma_32f_3x3_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_maTma_32f_3x3_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTma_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkMul_maTma_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTma_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTma_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_maTma_32f_4x4_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_maTma_32f_4x4_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTma_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkMul_maTma_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTma_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTma_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_maTma_32f_5x5_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_maTma_32f_5x5_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTma_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkMul_maTma_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTma_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTma_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_maTma_32f_6x6_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_maTma_32f_6x6_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

VonkStatus vonkMul_maTma_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, uint32_t src2Cols,
    uint32_t src2Rows, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_maTma_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, uint32_t src1Cols, uint32_t src1Rows, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, int32_t src2ElemStride, uint32_t src2Cols, uint32_t src2Rows, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTma_64f_P(const double *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const double *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows, double *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTma_64f_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, uint32_t src2Cols,
    uint32_t src2Rows, double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_maTma_64f_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, uint32_t src2Cols,
    uint32_t src2Rows, double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_maTma_64f_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, uint32_t src1Cols, uint32_t src1Rows, const double *const *src2, int32_t src2Shift,
    int32_t src2RowStride, int32_t src2ElemStride, uint32_t src2Cols, uint32_t src2Rows, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTma_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkMul_maTma_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTma_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTma_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_maTma_64f_3x3_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_maTma_64f_3x3_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTma_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkMul_maTma_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTma_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTma_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_maTma_64f_4x4_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_maTma_64f_4x4_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTma_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkMul_maTma_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTma_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTma_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_maTma_64f_5x5_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_maTma_64f_5x5_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTma_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkMul_maTma_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTma_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTma_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_maTma_64f_6x6_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_maTma_64f_6x6_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

VonkStatus vonkMul_maTmaT_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, uint32_t src2Cols,
    uint32_t src2Rows, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_maTmaT_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, uint32_t src1Cols, uint32_t src1Rows, const float *src2, int32_t src2ObjStride,
    int32_t src2RowStride, int32_t src2ElemStride, uint32_t src2Cols, uint32_t src2Rows, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTmaT_32f_P(const float *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const float *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows, float *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTmaT_32f_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, uint32_t src2Cols,
    uint32_t src2Rows, float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_maTmaT_32f_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, uint32_t src2Cols,
    uint32_t src2Rows, float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_maTmaT_32f_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, uint32_t src1Cols, uint32_t src1Rows, const float *const *src2, int32_t src2Shift,
    int32_t src2RowStride, int32_t src2ElemStride, uint32_t src2Cols, uint32_t src2Rows, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTmaT_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkMul_maTmaT_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTmaT_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTmaT_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_maTmaT_32f_3x3_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_maTmaT_32f_3x3_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTmaT_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkMul_maTmaT_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTmaT_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTmaT_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_maTmaT_32f_4x4_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_maTmaT_32f_4x4_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTmaT_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkMul_maTmaT_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTmaT_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTmaT_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_maTmaT_32f_5x5_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_maTmaT_32f_5x5_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTmaT_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkMul_maTmaT_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTmaT_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTmaT_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_maTmaT_32f_6x6_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, int32_t src2RowStride, float *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_maTmaT_32f_6x6_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

VonkStatus vonkMul_maTmaT_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, uint32_t src2Cols,
    uint32_t src2Rows, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_maTmaT_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, uint32_t src1Cols, uint32_t src1Rows, const double *src2, int32_t src2ObjStride,
    int32_t src2RowStride, int32_t src2ElemStride, uint32_t src2Cols, uint32_t src2Rows, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTmaT_64f_P(const double *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const double *const *src2, int32_t src2Shift, uint32_t src2Cols, uint32_t src2Rows, double *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTmaT_64f_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    uint32_t src1Cols, uint32_t src1Rows, const double *const *src2, int32_t src2Shift, int32_t src2ObjStride,
    uint32_t src2Cols, uint32_t src2Rows, double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_maTmaT_64f_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, uint32_t src2Cols,
    uint32_t src2Rows, double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_maTmaT_64f_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, uint32_t src1Cols, uint32_t src1Rows, const double *const *src2, int32_t src2Shift,
    int32_t src2RowStride, int32_t src2ElemStride, uint32_t src2Cols, uint32_t src2Rows, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTmaT_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkMul_maTmaT_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTmaT_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTmaT_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_maTmaT_64f_3x3_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_maTmaT_64f_3x3_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTmaT_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkMul_maTmaT_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTmaT_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTmaT_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_maTmaT_64f_4x4_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_maTmaT_64f_4x4_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTmaT_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkMul_maTmaT_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTmaT_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTmaT_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_maTmaT_64f_5x5_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_maTmaT_64f_5x5_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTmaT_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    uint32_t count);
VonkStatus vonkMul_maTmaT_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTmaT_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTmaT_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_maTmaT_64f_6x6_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, int32_t src2RowStride, double *const *dst, int32_t dstShift,
    int32_t dstRowStride, uint32_t count);
VonkStatus vonkMul_maTmaT_64f_6x6_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

/* ---- Matrix by vector -----------------------------------------------------------------------------------------------
 *
 * dst(n, i) = sum over k of A(i, k) src2(n, k)
 *
 * with A(i, k) = src1(n, i, k), or src1(n, k, i) in the patterns with `T`. A single operand serves all objects.
 * Products and sums are rounded one by one and never fused.
 *
 * Sizes: `src1Cols` and `src1Rows`, `src2Len`. There are `src1Rows` results of `src1Cols` terms, transposed or not.
 * vonkErrSize if `src1Cols` or `src1Rows` is 0, or unless `src1Cols` = `src2Len` (with `T`: `src1Rows` = `src2Len`).
 *
 * Status: vonkErrNullPtr if `src1`, `src2` or `dst` is null; vonkErrSize as told; vonkErrNullPtr if a table or list
 * entry is null: in single forms in `P` entry by entry as the sums reach it, earlier elements and the sum so far being
 * in place; in `P` and `PS2` of arrays all of `src1`, `src2` and `dst` ahead of everything else, even at `count` 0; in
 * `L` and `LS2` when the object's turn comes. `count` 0 then gives vonkOk.
 *
 * Sums run as those of matrix by matrix, but for `32f` of fixed size in the standard layout and `L`, which are made in
 * lanes with orders of their own. With p0, p1, ... for the products of row i:
 * - 3x3: (p0 + p1) + p2
 * - 4x4: (p0 + p2) + (p1 + p3); transposed (p0 + p1) + (p2 + p3)
 * - 5x5: ((p0 + p1) + p4) + (p2 + p3), but the LAST element, if not transposed, is ((p0 + p2) + p4) + (p1 + p3)
 * - 6x6: ((p0 + p2) + p4) + ((p1 + p3) + p5); transposed ((p0 + p1) + (p2 + p3)) + (p4 + p5)
 *
 * Members that behave unlike their siblings:
 * - vonkMul_mTv of 4x4 in `P`, both types, never tests the entry at position 8 of the `src1` table.
 *
 * Overlap:
 * Nothing tests overlap. In lanes the vector is held before the first store, so `dst` may be `src2`; elsewhere sums
 * that are stored at every step destroy it.
 *
 * Read beyond the operands:
 * Nothing.
 */

VonkStatus vonkMul_mv_32f(const float *src1, int32_t src1RowStride, uint32_t src1Cols, uint32_t src1Rows,
    const float *src2, uint32_t src2Len, float *dst);
VonkStatus vonkMul_mv_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *src2, int32_t src2ElemStride, uint32_t src2Len, float *dst, int32_t dstElemStride);
VonkStatus vonkMul_mv_32f_P(const float *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const float *const *src2, int32_t src2Shift, uint32_t src2Len, float *const *dst, int32_t dstShift);
VonkStatus vonkMul_mv_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2, float *dst);
VonkStatus vonkMul_mv_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ElemStride, float *dst, int32_t dstElemStride);
VonkStatus vonkMul_mv_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
VonkStatus vonkMul_mv_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2, float *dst);
VonkStatus vonkMul_mv_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ElemStride, float *dst, int32_t dstElemStride);
VonkStatus vonkMul_mv_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
VonkStatus vonkMul_mv_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2, float *dst);
VonkStatus vonkMul_mv_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ElemStride, float *dst, int32_t dstElemStride);
VonkStatus vonkMul_mv_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
VonkStatus vonkMul_mv_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2, float *dst);
VonkStatus vonkMul_mv_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ElemStride, float *dst, int32_t dstElemStride);
VonkStatus vonkMul_mv_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);

VonkStatus vonkMul_mv_64f(const double *src1, int32_t src1RowStride, uint32_t src1Cols, uint32_t src1Rows,
    const double *src2, uint32_t src2Len, double *dst);
VonkStatus vonkMul_mv_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *src2, int32_t src2ElemStride, uint32_t src2Len, double *dst,
    int32_t dstElemStride);
VonkStatus vonkMul_mv_64f_P(const double *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const double *const *src2, int32_t src2Shift, uint32_t src2Len, double *const *dst, int32_t dstShift);
VonkStatus vonkMul_mv_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2, double *dst);
VonkStatus vonkMul_mv_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ElemStride, double *dst, int32_t dstElemStride);
VonkStatus vonkMul_mv_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
VonkStatus vonkMul_mv_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2, double *dst);
VonkStatus vonkMul_mv_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ElemStride, double *dst, int32_t dstElemStride);
VonkStatus vonkMul_mv_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
VonkStatus vonkMul_mv_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2, double *dst);
VonkStatus vonkMul_mv_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ElemStride, double *dst, int32_t dstElemStride);
VonkStatus vonkMul_mv_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
VonkStatus vonkMul_mv_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2, double *dst);
VonkStatus vonkMul_mv_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ElemStride, double *dst, int32_t dstElemStride);
VonkStatus vonkMul_mv_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);

VonkStatus vonkMul_mTv_32f(const float *src1, int32_t src1RowStride, uint32_t src1Cols, uint32_t src1Rows,
    const float *src2, uint32_t src2Len, float *dst);
VonkStatus vonkMul_mTv_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *src2, int32_t src2ElemStride, uint32_t src2Len, float *dst, int32_t dstElemStride);
VonkStatus vonkMul_mTv_32f_P(const float *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const float *const *src2, int32_t src2Shift, uint32_t src2Len, float *const *dst, int32_t dstShift);
VonkStatus vonkMul_mTv_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2, float *dst);
VonkStatus vonkMul_mTv_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ElemStride, float *dst, int32_t dstElemStride);
VonkStatus vonkMul_mTv_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
VonkStatus vonkMul_mTv_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2, float *dst);
VonkStatus vonkMul_mTv_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ElemStride, float *dst, int32_t dstElemStride);
VonkStatus vonkMul_mTv_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
VonkStatus vonkMul_mTv_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2, float *dst);
VonkStatus vonkMul_mTv_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ElemStride, float *dst, int32_t dstElemStride);
VonkStatus vonkMul_mTv_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);
VonkStatus vonkMul_mTv_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2, float *dst);
VonkStatus vonkMul_mTv_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ElemStride, float *dst, int32_t dstElemStride);
VonkStatus vonkMul_mTv_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift);

VonkStatus vonkMul_mTv_64f(const double *src1, int32_t src1RowStride, uint32_t src1Cols, uint32_t src1Rows,
    const double *src2, uint32_t src2Len, double *dst);
VonkStatus vonkMul_mTv_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *src2, int32_t src2ElemStride, uint32_t src2Len, double *dst,
    int32_t dstElemStride);
VonkStatus vonkMul_mTv_64f_P(const double *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const double *const *src2, int32_t src2Shift, uint32_t src2Len, double *const *dst, int32_t dstShift);
VonkStatus vonkMul_mTv_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2, double *dst);
VonkStatus vonkMul_mTv_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ElemStride, double *dst, int32_t dstElemStride);
VonkStatus vonkMul_mTv_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
VonkStatus vonkMul_mTv_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2, double *dst);
VonkStatus vonkMul_mTv_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ElemStride, double *dst, int32_t dstElemStride);
VonkStatus vonkMul_mTv_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
VonkStatus vonkMul_mTv_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2, double *dst);
VonkStatus vonkMul_mTv_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ElemStride, double *dst, int32_t dstElemStride);
VonkStatus vonkMul_mTv_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);
VonkStatus vonkMul_mTv_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2, double *dst);
VonkStatus vonkMul_mTv_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ElemStride, double *dst, int32_t dstElemStride);
VonkStatus vonkMul_mTv_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift);

VonkStatus vonkMul_mva_32f(const float *src1, int32_t src1RowStride, uint32_t src1Cols, uint32_t src1Rows,
    const float *src2, int32_t src2ObjStride, uint32_t src2Len, float *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mva_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, uint32_t src2Len, float *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mva_32f_P(const float *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const float *const *src2, int32_t src2Shift, uint32_t src2Len, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mva_32f_PS2(const float *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, uint32_t src2Len, float *const *dst,
    int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mva_32f_L(const float *src1, int32_t src1RowStride, uint32_t src1Cols, uint32_t src1Rows,
    const float *const *src2, int32_t src2Shift, uint32_t src2Len, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mva_32f_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, uint32_t src2Len,
    float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mva_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    float *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mva_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride,
    uint32_t count);
VonkStatus vonkMul_mva_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mva_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_mva_32f_3x3_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mva_32f_3x3_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mva_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    float *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mva_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride,
    uint32_t count);
VonkStatus vonkMul_mva_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mva_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_mva_32f_4x4_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mva_32f_4x4_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mva_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    float *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mva_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride,
    uint32_t count);
VonkStatus vonkMul_mva_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mva_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_mva_32f_5x5_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mva_32f_5x5_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mva_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    float *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mva_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride,
    uint32_t count);
VonkStatus vonkMul_mva_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mva_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_mva_32f_6x6_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mva_32f_6x6_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);

VonkStatus vonkMul_mva_64f(const double *src1, int32_t src1RowStride, uint32_t src1Cols, uint32_t src1Rows,
    const double *src2, int32_t src2ObjStride, uint32_t src2Len, double *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mva_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, uint32_t src2Len, double *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mva_64f_P(const double *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const double *const *src2, int32_t src2Shift, uint32_t src2Len, double *const *dst, int32_t dstShift,
    uint32_t count);
VonkStatus vonkMul_mva_64f_PS2(const double *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, uint32_t src2Len, double *const *dst,
    int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mva_64f_L(const double *src1, int32_t src1RowStride, uint32_t src1Cols, uint32_t src1Rows,
    const double *const *src2, int32_t src2Shift, uint32_t src2Len, double *const *dst, int32_t dstShift,
    uint32_t count);
VonkStatus vonkMul_mva_64f_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, uint32_t src2Len,
    double *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mva_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    double *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mva_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride,
    uint32_t count);
VonkStatus vonkMul_mva_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mva_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_mva_64f_3x3_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mva_64f_3x3_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mva_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    double *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mva_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride,
    uint32_t count);
VonkStatus vonkMul_mva_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mva_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_mva_64f_4x4_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mva_64f_4x4_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mva_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    double *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mva_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride,
    uint32_t count);
VonkStatus vonkMul_mva_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mva_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_mva_64f_5x5_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mva_64f_5x5_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mva_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    double *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mva_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride,
    uint32_t count);
VonkStatus vonkMul_mva_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mva_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_mva_64f_6x6_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mva_64f_6x6_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);

VonkStatus vonkMul_mTva_32f(const float *src1, int32_t src1RowStride, uint32_t src1Cols, uint32_t src1Rows,
    const float *src2, int32_t src2ObjStride, uint32_t src2Len, float *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mTva_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, uint32_t src2Len, float *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mTva_32f_P(const float *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const float *const *src2, int32_t src2Shift, uint32_t src2Len, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mTva_32f_PS2(const float *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, uint32_t src2Len, float *const *dst,
    int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mTva_32f_L(const float *src1, int32_t src1RowStride, uint32_t src1Cols, uint32_t src1Rows,
    const float *const *src2, int32_t src2Shift, uint32_t src2Len, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mTva_32f_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, uint32_t src2Len,
    float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mTva_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    float *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mTva_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride,
    uint32_t count);
VonkStatus vonkMul_mTva_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mTva_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_mTva_32f_3x3_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mTva_32f_3x3_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mTva_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    float *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mTva_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride,
    uint32_t count);
VonkStatus vonkMul_mTva_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mTva_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_mTva_32f_4x4_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mTva_32f_4x4_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mTva_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    float *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mTva_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride,
    uint32_t count);
VonkStatus vonkMul_mTva_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mTva_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_mTva_32f_5x5_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mTva_32f_5x5_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mTva_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    float *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mTva_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride,
    uint32_t count);
VonkStatus vonkMul_mTva_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mTva_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_mTva_32f_6x6_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mTva_32f_6x6_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);

VonkStatus vonkMul_mTva_64f(const double *src1, int32_t src1RowStride, uint32_t src1Cols, uint32_t src1Rows,
    const double *src2, int32_t src2ObjStride, uint32_t src2Len, double *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mTva_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, uint32_t src2Len, double *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mTva_64f_P(const double *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const double *const *src2, int32_t src2Shift, uint32_t src2Len, double *const *dst, int32_t dstShift,
    uint32_t count);
VonkStatus vonkMul_mTva_64f_PS2(const double *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, uint32_t src2Len, double *const *dst,
    int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mTva_64f_L(const double *src1, int32_t src1RowStride, uint32_t src1Cols, uint32_t src1Rows,
    const double *const *src2, int32_t src2Shift, uint32_t src2Len, double *const *dst, int32_t dstShift,
    uint32_t count);
VonkStatus vonkMul_mTva_64f_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, uint32_t src2Len,
    double *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mTva_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    double *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mTva_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mTva_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mTva_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_mTva_64f_3x3_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mTva_64f_3x3_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mTva_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    double *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mTva_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mTva_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mTva_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_mTva_64f_4x4_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mTva_64f_4x4_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mTva_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    double *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mTva_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mTva_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mTva_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_mTva_64f_5x5_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mTva_64f_5x5_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mTva_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    double *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mTva_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mTva_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mTva_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_mTva_64f_6x6_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mTva_64f_6x6_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);

VonkStatus vonkMul_mav_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *src2, uint32_t src2Len, float *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mav_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    uint32_t src1Cols, uint32_t src1Rows, const float *src2, int32_t src2ElemStride, uint32_t src2Len, float *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mav_32f_P(const float *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const float *const *src2, int32_t src2Shift, uint32_t src2Len, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mav_32f_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *const *src2, int32_t src2Shift, uint32_t src2Len, float *const *dst,
    int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mav_32f_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *src2, uint32_t src2Len, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mav_32f_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, uint32_t src1Cols, uint32_t src1Rows, const float *src2, int32_t src2ElemStride,
    uint32_t src2Len, float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mav_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    float *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mav_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mav_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mav_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_mav_32f_3x3_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mav_32f_3x3_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ElemStride, float *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mav_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    float *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mav_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mav_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mav_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_mav_32f_4x4_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mav_32f_4x4_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ElemStride, float *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mav_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    float *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mav_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mav_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mav_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_mav_32f_5x5_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mav_32f_5x5_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ElemStride, float *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mav_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    float *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mav_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mav_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mav_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_mav_32f_6x6_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mav_32f_6x6_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ElemStride, float *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);

VonkStatus vonkMul_mav_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *src2, uint32_t src2Len, double *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mav_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    uint32_t src1Cols, uint32_t src1Rows, const double *src2, int32_t src2ElemStride, uint32_t src2Len, double *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mav_64f_P(const double *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const double *const *src2, int32_t src2Shift, uint32_t src2Len, double *const *dst, int32_t dstShift,
    uint32_t count);
VonkStatus vonkMul_mav_64f_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *const *src2, int32_t src2Shift, uint32_t src2Len, double *const *dst,
    int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mav_64f_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *src2, uint32_t src2Len, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mav_64f_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, uint32_t src1Cols, uint32_t src1Rows, const double *src2, int32_t src2ElemStride,
    uint32_t src2Len, double *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mav_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    double *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mav_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mav_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mav_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_mav_64f_3x3_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mav_64f_3x3_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ElemStride, double *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mav_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    double *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mav_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mav_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mav_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_mav_64f_4x4_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mav_64f_4x4_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ElemStride, double *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mav_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    double *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mav_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mav_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mav_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_mav_64f_5x5_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mav_64f_5x5_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ElemStride, double *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mav_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    double *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mav_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mav_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mav_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_mav_64f_6x6_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mav_64f_6x6_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ElemStride, double *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);

VonkStatus vonkMul_maTv_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *src2, uint32_t src2Len, float *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_maTv_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    uint32_t src1Cols, uint32_t src1Rows, const float *src2, int32_t src2ElemStride, uint32_t src2Len, float *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTv_32f_P(const float *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const float *const *src2, int32_t src2Shift, uint32_t src2Len, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTv_32f_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *const *src2, int32_t src2Shift, uint32_t src2Len, float *const *dst,
    int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_maTv_32f_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *src2, uint32_t src2Len, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTv_32f_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, uint32_t src1Cols, uint32_t src1Rows, const float *src2, int32_t src2ElemStride,
    uint32_t src2Len, float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTv_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    float *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_maTv_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTv_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTv_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_maTv_32f_3x3_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTv_32f_3x3_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ElemStride, float *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTv_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    float *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_maTv_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTv_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTv_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_maTv_32f_4x4_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTv_32f_4x4_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ElemStride, float *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTv_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    float *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_maTv_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTv_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTv_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_maTv_32f_5x5_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTv_32f_5x5_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ElemStride, float *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTv_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    float *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_maTv_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTv_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTv_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_maTv_32f_6x6_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, const float *src2,
    float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTv_32f_6x6_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ElemStride, float *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);

VonkStatus vonkMul_maTv_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *src2, uint32_t src2Len, double *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_maTv_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    uint32_t src1Cols, uint32_t src1Rows, const double *src2, int32_t src2ElemStride, uint32_t src2Len, double *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTv_64f_P(const double *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const double *const *src2, int32_t src2Shift, uint32_t src2Len, double *const *dst, int32_t dstShift,
    uint32_t count);
VonkStatus vonkMul_maTv_64f_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *const *src2, int32_t src2Shift, uint32_t src2Len, double *const *dst,
    int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_maTv_64f_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *src2, uint32_t src2Len, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTv_64f_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, uint32_t src1Cols, uint32_t src1Rows, const double *src2, int32_t src2ElemStride,
    uint32_t src2Len, double *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTv_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    double *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_maTv_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTv_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTv_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_maTv_64f_3x3_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTv_64f_3x3_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ElemStride, double *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTv_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    double *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_maTv_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTv_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTv_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_maTv_64f_4x4_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTv_64f_4x4_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ElemStride, double *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTv_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    double *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_maTv_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTv_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTv_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_maTv_64f_5x5_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTv_64f_5x5_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ElemStride, double *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTv_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    double *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_maTv_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTv_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTv_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_maTv_64f_6x6_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *src2, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTv_64f_6x6_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ElemStride, double *const *dst, int32_t dstShift,
    int32_t dstElemStride, uint32_t count);

VonkStatus vonkMul_mava_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *src2, int32_t src2ObjStride, uint32_t src2Len, float *dst, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_mava_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    uint32_t src1Cols, uint32_t src1Rows, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride,
    uint32_t src2Len, float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mava_32f_P(const float *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const float *const *src2, int32_t src2Shift, uint32_t src2Len, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mava_32f_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, uint32_t src2Len,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mava_32f_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *const *src2, int32_t src2Shift, uint32_t src2Len, float *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mava_32f_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, uint32_t src1Cols, uint32_t src1Rows, const float *const *src2, int32_t src2Shift,
    int32_t src2ElemStride, uint32_t src2Len, float *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);
VonkStatus vonkMul_mava_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mava_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mava_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mava_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mava_32f_3x3_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mava_32f_3x3_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mava_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mava_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mava_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mava_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mava_32f_4x4_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mava_32f_4x4_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mava_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mava_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mava_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mava_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mava_32f_5x5_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mava_32f_5x5_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mava_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mava_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mava_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mava_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mava_32f_6x6_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mava_32f_6x6_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstElemStride, uint32_t count);

VonkStatus vonkMul_mava_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *src2, int32_t src2ObjStride, uint32_t src2Len, double *dst, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_mava_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    uint32_t src1Cols, uint32_t src1Rows, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride,
    uint32_t src2Len, double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mava_64f_P(const double *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const double *const *src2, int32_t src2Shift, uint32_t src2Len, double *const *dst, int32_t dstShift,
    uint32_t count);
VonkStatus vonkMul_mava_64f_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, uint32_t src2Len,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mava_64f_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *const *src2, int32_t src2Shift, uint32_t src2Len, double *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mava_64f_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, uint32_t src1Cols, uint32_t src1Rows, const double *const *src2, int32_t src2Shift,
    int32_t src2ElemStride, uint32_t src2Len, double *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);
VonkStatus vonkMul_mava_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, double *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mava_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mava_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mava_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mava_64f_3x3_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mava_64f_3x3_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mava_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, double *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mava_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mava_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mava_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mava_64f_4x4_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mava_64f_4x4_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mava_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, double *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mava_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mava_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mava_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mava_64f_5x5_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mava_64f_5x5_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mava_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, double *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mava_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_mava_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mava_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_mava_64f_6x6_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_mava_64f_6x6_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstElemStride, uint32_t count);

VonkStatus vonkMul_maTva_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *src2, int32_t src2ObjStride, uint32_t src2Len, float *dst, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_maTva_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride,
    uint32_t src1Cols, uint32_t src1Rows, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride,
    uint32_t src2Len, float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTva_32f_P(const float *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const float *const *src2, int32_t src2Shift, uint32_t src2Len, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTva_32f_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, uint32_t src2Len,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_maTva_32f_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const float *const *src2, int32_t src2Shift, uint32_t src2Len, float *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTva_32f_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, uint32_t src1Cols, uint32_t src1Rows, const float *const *src2, int32_t src2Shift,
    int32_t src2ElemStride, uint32_t src2Len, float *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);
VonkStatus vonkMul_maTva_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_maTva_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTva_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTva_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_maTva_32f_3x3_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTva_32f_3x3_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTva_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_maTva_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTva_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTva_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_maTva_32f_4x4_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTva_32f_4x4_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTva_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_maTva_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTva_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTva_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_maTva_32f_5x5_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTva_32f_5x5_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTva_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride, const float *src2,
    int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_maTva_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTva_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTva_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_maTva_32f_6x6_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTva_32f_6x6_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, float *const *dst,
    int32_t dstShift, int32_t dstElemStride, uint32_t count);

VonkStatus vonkMul_maTva_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *src2, int32_t src2ObjStride, uint32_t src2Len, double *dst, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkMul_maTva_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, uint32_t src1Cols, uint32_t src1Rows, const double *src2, int32_t src2ObjStride,
    int32_t src2ElemStride, uint32_t src2Len, double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTva_64f_P(const double *const *src1, int32_t src1Shift, uint32_t src1Cols, uint32_t src1Rows,
    const double *const *src2, int32_t src2Shift, uint32_t src2Len, double *const *dst, int32_t dstShift,
    uint32_t count);
VonkStatus vonkMul_maTva_64f_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, uint32_t src2Len,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_maTva_64f_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride, uint32_t src1Cols,
    uint32_t src1Rows, const double *const *src2, int32_t src2Shift, uint32_t src2Len, double *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTva_64f_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, uint32_t src1Cols, uint32_t src1Rows, const double *const *src2, int32_t src2Shift,
    int32_t src2ElemStride, uint32_t src2Len, double *const *dst, int32_t dstShift, int32_t dstElemStride,
    uint32_t count);
VonkStatus vonkMul_maTva_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, double *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_maTva_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTva_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTva_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_maTva_64f_3x3_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTva_64f_3x3_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTva_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, double *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_maTva_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTva_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTva_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_maTva_64f_4x4_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTva_64f_4x4_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTva_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, double *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_maTva_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTva_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTva_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_maTva_64f_5x5_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTva_64f_5x5_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTva_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride, const double *src2,
    int32_t src2ObjStride, double *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_maTva_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkMul_maTva_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTva_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkMul_maTva_64f_6x6_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkMul_maTva_64f_6x6_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, double *const *dst,
    int32_t dstShift, int32_t dstElemStride, uint32_t count);

/* ---- Gaxpy ----------------------------------------------------------------------------------------------------------
 *
 * dst(n, i) = (sum over k of src1(i, k) src2(n, k)) + src3(n, i)
 *
 * for i below `rows` and k below `cols`: a single matrix, a vector or an array of vectors. The sum is finished first,
 * as in matrix by vector, and `src3` is added last. `64f` in the standard layout and `S2` adds it to the unrounded
 * sum.
 *
 * Status: vonkErrNullPtr if `src1`, `src2`, `src3` or `dst` is null; vonkErrSize if `cols` or `rows` is 0;
 * vonkErrNullPtr if a table or list entry is null: of `v` in `P` those of `src3` and `dst` ahead of an element, those
 * of its terms as the sum reaches them, earlier elements and the sum so far being in place; of `va` in `P` and `PS2`
 * all four tables ahead of everything else, even at `count` 0; in `L` and `LS2` when the object's turn comes. `count`
 * 0 then gives vonkOk.
 *
 * Overlap:
 * Nothing tests overlap. `32f` of fixed size in the standard layout and `L` holds both vectors before it stores, so
 * `dst` may be `src2` or `src3`; elsewhere the sum that is stored at every step destroys what lies under it.
 *
 * Read beyond the operands:
 * Nothing.
 */

VonkStatus vonkGaxpy_v_32f(const float *src1, int32_t src1RowStride, const float *src2, const float *src3, float *dst,
    uint32_t cols, uint32_t rows);
VonkStatus vonkGaxpy_v_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ElemStride, const float *src3, int32_t src3ElemStride, float *dst, int32_t dstElemStride, uint32_t cols,
    uint32_t rows);
VonkStatus vonkGaxpy_v_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    const float *const *src3, int32_t src3Shift, float *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows);
VonkStatus vonkGaxpy_v_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2, const float *src3,
    float *dst);
VonkStatus vonkGaxpy_v_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ElemStride, const float *src3, int32_t src3ElemStride, float *dst, int32_t dstElemStride);
VonkStatus vonkGaxpy_v_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, const float *const *src3, int32_t src3Shift, float *const *dst, int32_t dstShift);
VonkStatus vonkGaxpy_v_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2, const float *src3,
    float *dst);
VonkStatus vonkGaxpy_v_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ElemStride, const float *src3, int32_t src3ElemStride, float *dst, int32_t dstElemStride);
VonkStatus vonkGaxpy_v_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, const float *const *src3, int32_t src3Shift, float *const *dst, int32_t dstShift);
VonkStatus vonkGaxpy_v_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2, const float *src3,
    float *dst);
VonkStatus vonkGaxpy_v_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ElemStride, const float *src3, int32_t src3ElemStride, float *dst, int32_t dstElemStride);
VonkStatus vonkGaxpy_v_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, const float *const *src3, int32_t src3Shift, float *const *dst, int32_t dstShift);
VonkStatus vonkGaxpy_v_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2, const float *src3,
    float *dst);
VonkStatus vonkGaxpy_v_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ElemStride, const float *src3, int32_t src3ElemStride, float *dst, int32_t dstElemStride);
VonkStatus vonkGaxpy_v_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, const float *const *src3, int32_t src3Shift, float *const *dst, int32_t dstShift);

VonkStatus vonkGaxpy_v_64f(const double *src1, int32_t src1RowStride, const double *src2, const double *src3,
    double *dst, uint32_t cols, uint32_t rows);
VonkStatus vonkGaxpy_v_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ElemStride, const double *src3, int32_t src3ElemStride, double *dst, int32_t dstElemStride,
    uint32_t cols, uint32_t rows);
VonkStatus vonkGaxpy_v_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2, int32_t src2Shift,
    const double *const *src3, int32_t src3Shift, double *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows);
VonkStatus vonkGaxpy_v_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2, const double *src3,
    double *dst);
VonkStatus vonkGaxpy_v_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ElemStride, const double *src3, int32_t src3ElemStride, double *dst, int32_t dstElemStride);
VonkStatus vonkGaxpy_v_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, const double *const *src3, int32_t src3Shift, double *const *dst, int32_t dstShift);
VonkStatus vonkGaxpy_v_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2, const double *src3,
    double *dst);
VonkStatus vonkGaxpy_v_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ElemStride, const double *src3, int32_t src3ElemStride, double *dst, int32_t dstElemStride);
VonkStatus vonkGaxpy_v_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, const double *const *src3, int32_t src3Shift, double *const *dst, int32_t dstShift);
VonkStatus vonkGaxpy_v_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2, const double *src3,
    double *dst);
VonkStatus vonkGaxpy_v_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ElemStride, const double *src3, int32_t src3ElemStride, double *dst, int32_t dstElemStride);
VonkStatus vonkGaxpy_v_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, const double *const *src3, int32_t src3Shift, double *const *dst, int32_t dstShift);
VonkStatus vonkGaxpy_v_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2, const double *src3,
    double *dst);
VonkStatus vonkGaxpy_v_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ElemStride, const double *src3, int32_t src3ElemStride, double *dst, int32_t dstElemStride);
VonkStatus vonkGaxpy_v_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, const double *const *src3, int32_t src3Shift, double *const *dst, int32_t dstShift);

VonkStatus vonkGaxpy_va_32f(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    const float *src3, int32_t src3ObjStride, float *dst, int32_t dstObjStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkGaxpy_va_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2ElemStride, const float *src3, int32_t src3ObjStride, int32_t src3ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkGaxpy_va_32f_P(const float *const *src1, int32_t src1Shift, const float *const *src2, int32_t src2Shift,
    const float *const *src3, int32_t src3Shift, float *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkGaxpy_va_32f_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, const float *const *src3, int32_t src3Shift, int32_t src3ObjStride,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkGaxpy_va_32f_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    const float *const *src3, int32_t src3Shift, float *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkGaxpy_va_32f_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, const float *const *src3, int32_t src3Shift,
    int32_t src3ElemStride, float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkGaxpy_va_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    const float *src3, int32_t src3ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkGaxpy_va_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2ElemStride, const float *src3, int32_t src3ObjStride, int32_t src3ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkGaxpy_va_32f_3x3_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, const float *const *src3, int32_t src3Shift, float *const *dst, int32_t dstShift,
    uint32_t count);
VonkStatus vonkGaxpy_va_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, const float *const *src3, int32_t src3Shift, int32_t src3ObjStride,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkGaxpy_va_32f_3x3_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    const float *const *src3, int32_t src3Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkGaxpy_va_32f_3x3_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, const float *const *src3, int32_t src3Shift,
    int32_t src3ElemStride, float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
VonkStatus vonkGaxpy_va_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    const float *src3, int32_t src3ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkGaxpy_va_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2ElemStride, const float *src3, int32_t src3ObjStride, int32_t src3ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkGaxpy_va_32f_4x4_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, const float *const *src3, int32_t src3Shift, float *const *dst, int32_t dstShift,
    uint32_t count);
VonkStatus vonkGaxpy_va_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, const float *const *src3, int32_t src3Shift, int32_t src3ObjStride,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkGaxpy_va_32f_4x4_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    const float *const *src3, int32_t src3Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkGaxpy_va_32f_4x4_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, const float *const *src3, int32_t src3Shift,
    int32_t src3ElemStride, float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
VonkStatus vonkGaxpy_va_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    const float *src3, int32_t src3ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkGaxpy_va_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2ElemStride, const float *src3, int32_t src3ObjStride, int32_t src3ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkGaxpy_va_32f_5x5_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, const float *const *src3, int32_t src3Shift, float *const *dst, int32_t dstShift,
    uint32_t count);
VonkStatus vonkGaxpy_va_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, const float *const *src3, int32_t src3Shift, int32_t src3ObjStride,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkGaxpy_va_32f_5x5_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    const float *const *src3, int32_t src3Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkGaxpy_va_32f_5x5_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, const float *const *src3, int32_t src3Shift,
    int32_t src3ElemStride, float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
VonkStatus vonkGaxpy_va_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2, int32_t src2ObjStride,
    const float *src3, int32_t src3ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkGaxpy_va_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride, const float *src2,
    int32_t src2ObjStride, int32_t src2ElemStride, const float *src3, int32_t src3ObjStride, int32_t src3ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkGaxpy_va_32f_6x6_P(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, const float *const *src3, int32_t src3Shift, float *const *dst, int32_t dstShift,
    uint32_t count);
VonkStatus vonkGaxpy_va_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, const float *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, const float *const *src3, int32_t src3Shift, int32_t src3ObjStride,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkGaxpy_va_32f_6x6_L(const float *src1, int32_t src1RowStride, const float *const *src2, int32_t src2Shift,
    const float *const *src3, int32_t src3Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkGaxpy_va_32f_6x6_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const float *const *src2, int32_t src2Shift, int32_t src2ElemStride, const float *const *src3, int32_t src3Shift,
    int32_t src3ElemStride, float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);

VonkStatus vonkGaxpy_va_64f(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    const double *src3, int32_t src3ObjStride, double *dst, int32_t dstObjStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkGaxpy_va_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride, const double *src2,
    int32_t src2ObjStride, int32_t src2ElemStride, const double *src3, int32_t src3ObjStride, int32_t src3ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkGaxpy_va_64f_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, const double *const *src3, int32_t src3Shift, double *const *dst, int32_t dstShift,
    uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkGaxpy_va_64f_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, const double *const *src3, int32_t src3Shift, int32_t src3ObjStride,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t cols, uint32_t rows, uint32_t count);
VonkStatus vonkGaxpy_va_64f_L(const double *src1, int32_t src1RowStride, const double *const *src2, int32_t src2Shift,
    const double *const *src3, int32_t src3Shift, double *const *dst, int32_t dstShift, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkGaxpy_va_64f_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, const double *const *src3, int32_t src3Shift,
    int32_t src3ElemStride, double *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t cols, uint32_t rows,
    uint32_t count);
VonkStatus vonkGaxpy_va_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    const double *src3, int32_t src3ObjStride, double *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkGaxpy_va_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, const double *src3, int32_t src3ObjStride,
    int32_t src3ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkGaxpy_va_64f_3x3_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, const double *const *src3, int32_t src3Shift, double *const *dst, int32_t dstShift,
    uint32_t count);
VonkStatus vonkGaxpy_va_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, const double *const *src3, int32_t src3Shift, int32_t src3ObjStride,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkGaxpy_va_64f_3x3_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, const double *const *src3, int32_t src3Shift, double *const *dst, int32_t dstShift,
    uint32_t count);
VonkStatus vonkGaxpy_va_64f_3x3_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, const double *const *src3, int32_t src3Shift,
    int32_t src3ElemStride, double *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
VonkStatus vonkGaxpy_va_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    const double *src3, int32_t src3ObjStride, double *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkGaxpy_va_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, const double *src3, int32_t src3ObjStride,
    int32_t src3ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkGaxpy_va_64f_4x4_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, const double *const *src3, int32_t src3Shift, double *const *dst, int32_t dstShift,
    uint32_t count);
VonkStatus vonkGaxpy_va_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, const double *const *src3, int32_t src3Shift, int32_t src3ObjStride,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkGaxpy_va_64f_4x4_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, const double *const *src3, int32_t src3Shift, double *const *dst, int32_t dstShift,
    uint32_t count);
VonkStatus vonkGaxpy_va_64f_4x4_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, const double *const *src3, int32_t src3Shift,
    int32_t src3ElemStride, double *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
VonkStatus vonkGaxpy_va_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    const double *src3, int32_t src3ObjStride, double *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkGaxpy_va_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, const double *src3, int32_t src3ObjStride,
    int32_t src3ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkGaxpy_va_64f_5x5_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, const double *const *src3, int32_t src3Shift, double *const *dst, int32_t dstShift,
    uint32_t count);
VonkStatus vonkGaxpy_va_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, const double *const *src3, int32_t src3Shift, int32_t src3ObjStride,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkGaxpy_va_64f_5x5_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, const double *const *src3, int32_t src3Shift, double *const *dst, int32_t dstShift,
    uint32_t count);
VonkStatus vonkGaxpy_va_64f_5x5_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, const double *const *src3, int32_t src3Shift,
    int32_t src3ElemStride, double *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
VonkStatus vonkGaxpy_va_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2, int32_t src2ObjStride,
    const double *src3, int32_t src3ObjStride, double *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkGaxpy_va_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, const double *src3, int32_t src3ObjStride,
    int32_t src3ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkGaxpy_va_64f_6x6_P(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, const double *const *src3, int32_t src3Shift, double *const *dst, int32_t dstShift,
    uint32_t count);
VonkStatus vonkGaxpy_va_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, const double *const *src2,
    int32_t src2Shift, int32_t src2ObjStride, const double *const *src3, int32_t src3Shift, int32_t src3ObjStride,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkGaxpy_va_64f_6x6_L(const double *src1, int32_t src1RowStride, const double *const *src2,
    int32_t src2Shift, const double *const *src3, int32_t src3Shift, double *const *dst, int32_t dstShift,
    uint32_t count);
VonkStatus vonkGaxpy_va_64f_6x6_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const double *const *src2, int32_t src2Shift, int32_t src2ElemStride, const double *const *src3, int32_t src3Shift,
    int32_t src3ElemStride, double *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);

/* ---- LU decomposition -----------------------------------------------------------------------------------------------
 *
 * vonkLUDecomp factors each matrix of `src`, `order` by `order`, into a unit lower and an upper triangular factor by
 * Gaussian elimination with partial pivoting. Rows are never moved: `pivots`, `order` row indices per object and
 * packed in every layout, tells that logical row k lies in row pivots[k] of `dst`. With p the block of an object,
 * element (p[i], j) of `dst` is the multiplier L(i, j) for j < i and U(i, j) for j >= i; the unit diagonal of L is not
 * stored, and A(p[i], j) is the sum over k of L(i, k) U(k, j).
 *
 * The pivot of a column is the element of largest magnitude, the first of equals. One below 2^-23 =
 * 1.1920928955078125e-7, an absolute number and the same for both types, ends the call with vonkErrSingular; so does a
 * NaN in its place. Method: Golub and Van Loan, Matrix Computations, "LU with partial pivoting", the outer-product
 * form with row indices in place of row exchanges.
 *
 * Status: vonkErrNullPtr if `src`, `pivots` or `dst` is null; vonkErrSize if `order` is 0; vonkErrNullPtr if a table
 * entry is null, even at `count` 0 (`P`, `PS2`), or a list entry when the object's turn comes (`L`, `LS2`); `count` 0
 * gives vonkOk. vonkErrSingular leaves the objects before the failing one complete, that one as far as it got (a
 * failure at the last pivot leaves it complete), and those after it untouched, in `dst` and in `pivots`.
 *
 * Members that behave unlike their siblings:
 * - Arrays: the test of the LAST pivot of object n looks n * `order` columns beyond it (see what is read). The last
 *   pivot of an object other than the first is thus not tested, and an innocent object fails if what lies there is too
 *   small.
 * - `64f`, 3x3 to 5x5: rows are updated with the unrounded quotient; run-time size and 6x6 use the stored multiplier.
 * - `64f`, candidates for the pivot come in pairs; if the first of a pair and the best so far are unordered (a NaN),
 *   3x3 to 5x5 take the candidate's position but not its value, run-time size and 6x6 take the value in `m` and value
 *   and position in `ma`. `32f` forms pass over a NaN.
 * - A zero multiplier is negated to +0 in `32f` and to -0 in `64f`.
 *
 * Overlap:
 * `dst` may be `src` itself, with the same strides or tables. A partial overlap behaves as the copy from `src` to
 * `dst` that each object begins with: element by element, forward. `pivots` must overlap neither.
 *
 * Read beyond the operands:
 * Arrays: with the last pivot of object n at row r of `dst`, one element is read n * `order` * element size bytes
 * behind it (standard and `L`), n * `order` * `dstElemStride` bytes behind it (`S2`, `LS2`), or through slot (r + n) *
 * `order` + `order` - 1 of the `dst` table (`P`, `PS2`). At the end of an array or table that lies beyond it: leave
 * readable memory there, and mind that its value decides over vonkErrSingular.
 */

VonkStatus vonkLUDecomp_m_32f(const float *src, int32_t srcRowStride, uint32_t *pivots, float *dst,
    int32_t dstRowStride, uint32_t order);
VonkStatus vonkLUDecomp_m_32f_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, uint32_t *pivots,
    float *dst, int32_t dstRowStride, int32_t dstElemStride, uint32_t order);
VonkStatus vonkLUDecomp_m_32f_P(const float *const *src, int32_t srcShift, uint32_t *pivots, float *const *dst,
    int32_t dstShift, uint32_t order);
VonkStatus vonkLUDecomp_m_32f_3x3(const float *src, int32_t srcRowStride, uint32_t *pivots, float *dst,
    int32_t dstRowStride);
VonkStatus vonkLUDecomp_m_32f_3x3_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, uint32_t *pivots,
    float *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkLUDecomp_m_32f_3x3_P(const float *const *src, int32_t srcShift, uint32_t *pivots, float *const *dst,
    int32_t dstShift);
VonkStatus vonkLUDecomp_m_32f_4x4(const float *src, int32_t srcRowStride, uint32_t *pivots, float *dst,
    int32_t dstRowStride);
VonkStatus vonkLUDecomp_m_32f_4x4_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, uint32_t *pivots,
    float *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkLUDecomp_m_32f_4x4_P(const float *const *src, int32_t srcShift, uint32_t *pivots, float *const *dst,
    int32_t dstShift);
VonkStatus vonkLUDecomp_m_32f_5x5(const float *src, int32_t srcRowStride, uint32_t *pivots, float *dst,
    int32_t dstRowStride);
VonkStatus vonkLUDecomp_m_32f_5x5_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, uint32_t *pivots,
    float *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkLUDecomp_m_32f_5x5_P(const float *const *src, int32_t srcShift, uint32_t *pivots, float *const *dst,
    int32_t dstShift);
VonkStatus vonkLUDecomp_m_32f_6x6(const float *src, int32_t srcRowStride, uint32_t *pivots, float *dst,
    int32_t dstRowStride);
VonkStatus vonkLUDecomp_m_32f_6x6_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, uint32_t *pivots,
    float *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkLUDecomp_m_32f_6x6_P(const float *const *src, int32_t srcShift, uint32_t *pivots, float *const *dst,
    int32_t dstShift);

VonkStatus vonkLUDecomp_m_64f(const double *src, int32_t srcRowStride, uint32_t *pivots, double *dst,
    int32_t dstRowStride, uint32_t order);
VonkStatus vonkLUDecomp_m_64f_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, uint32_t *pivots,
    double *dst, int32_t dstRowStride, int32_t dstElemStride, uint32_t order);
VonkStatus vonkLUDecomp_m_64f_P(const double *const *src, int32_t srcShift, uint32_t *pivots, double *const *dst,
    int32_t dstShift, uint32_t order);
VonkStatus vonkLUDecomp_m_64f_3x3(const double *src, int32_t srcRowStride, uint32_t *pivots, double *dst,
    int32_t dstRowStride);
VonkStatus vonkLUDecomp_m_64f_3x3_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, uint32_t *pivots,
    double *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkLUDecomp_m_64f_3x3_P(const double *const *src, int32_t srcShift, uint32_t *pivots, double *const *dst,
    int32_t dstShift);
VonkStatus vonkLUDecomp_m_64f_4x4(const double *src, int32_t srcRowStride, uint32_t *pivots, double *dst,
    int32_t dstRowStride);
VonkStatus vonkLUDecomp_m_64f_4x4_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, uint32_t *pivots,
    double *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkLUDecomp_m_64f_4x4_P(const double *const *src, int32_t srcShift, uint32_t *pivots, double *const *dst,
    int32_t dstShift);
VonkStatus vonkLUDecomp_m_64f_5x5(const double *src, int32_t srcRowStride, uint32_t *pivots, double *dst,
    int32_t dstRowStride);
VonkStatus vonkLUDecomp_m_64f_5x5_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, uint32_t *pivots,
    double *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkLUDecomp_m_64f_5x5_P(const double *const *src, int32_t srcShift, uint32_t *pivots, double *const *dst,
    int32_t dstShift);
VonkStatus vonkLUDecomp_m_64f_6x6(const double *src, int32_t srcRowStride, uint32_t *pivots, double *dst,
    int32_t dstRowStride);
VonkStatus vonkLUDecomp_m_64f_6x6_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, uint32_t *pivots,
    double *dst, int32_t dstRowStride, int32_t dstElemStride);
VonkStatus vonkLUDecomp_m_64f_6x6_P(const double *const *src, int32_t srcShift, uint32_t *pivots, double *const *dst,
    int32_t dstShift);

VonkStatus vonkLUDecomp_ma_32f(const float *src, int32_t srcObjStride, int32_t srcRowStride, uint32_t *pivots,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t order, uint32_t count);
VonkStatus vonkLUDecomp_ma_32f_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    uint32_t *pivots, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t order,
    uint32_t count);
VonkStatus vonkLUDecomp_ma_32f_P(const float *const *src, int32_t srcShift, uint32_t *pivots, float *const *dst,
    int32_t dstShift, uint32_t order, uint32_t count);
VonkStatus vonkLUDecomp_ma_32f_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, uint32_t *pivots,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t order, uint32_t count);
VonkStatus vonkLUDecomp_ma_32f_L(const float *const *src, int32_t srcShift, int32_t srcRowStride, uint32_t *pivots,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t order, uint32_t count);
VonkStatus vonkLUDecomp_ma_32f_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, uint32_t *pivots, float *const *dst, int32_t dstShift, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t order, uint32_t count);
VonkStatus vonkLUDecomp_ma_32f_3x3(const float *src, int32_t srcObjStride, int32_t srcRowStride, uint32_t *pivots,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkLUDecomp_ma_32f_3x3_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
    int32_t srcElemStride, uint32_t *pivots, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkLUDecomp_ma_32f_3x3_P(const float *const *src, int32_t srcShift, uint32_t *pivots, float *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkLUDecomp_ma_32f_3x3_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride,
    uint32_t *pivots, float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkLUDecomp_ma_32f_3x3_L(const float *const *src, int32_t srcShift, int32_t srcRowStride, uint32_t *pivots,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkLUDecomp_ma_32f_3x3_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, uint32_t *pivots, float *const *dst, int32_t dstShift, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkLUDecomp_ma_32f_4x4(const float *src, int32_t srcObjStride, int32_t srcRowStride, uint32_t *pivots,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkLUDecomp_ma_32f_4x4_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
    int32_t srcElemStride, uint32_t *pivots, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkLUDecomp_ma_32f_4x4_P(const float *const *src, int32_t srcShift, uint32_t *pivots, float *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkLUDecomp_ma_32f_4x4_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride,
    uint32_t *pivots, float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkLUDecomp_ma_32f_4x4_L(const float *const *src, int32_t srcShift, int32_t srcRowStride, uint32_t *pivots,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkLUDecomp_ma_32f_4x4_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, uint32_t *pivots, float *const *dst, int32_t dstShift, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkLUDecomp_ma_32f_5x5(const float *src, int32_t srcObjStride, int32_t srcRowStride, uint32_t *pivots,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkLUDecomp_ma_32f_5x5_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
    int32_t srcElemStride, uint32_t *pivots, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkLUDecomp_ma_32f_5x5_P(const float *const *src, int32_t srcShift, uint32_t *pivots, float *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkLUDecomp_ma_32f_5x5_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride,
    uint32_t *pivots, float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkLUDecomp_ma_32f_5x5_L(const float *const *src, int32_t srcShift, int32_t srcRowStride, uint32_t *pivots,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkLUDecomp_ma_32f_5x5_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, uint32_t *pivots, float *const *dst, int32_t dstShift, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkLUDecomp_ma_32f_6x6(const float *src, int32_t srcObjStride, int32_t srcRowStride, uint32_t *pivots,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkLUDecomp_ma_32f_6x6_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
    int32_t srcElemStride, uint32_t *pivots, float *dst, int32_t dstObjStride, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkLUDecomp_ma_32f_6x6_P(const float *const *src, int32_t srcShift, uint32_t *pivots, float *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkLUDecomp_ma_32f_6x6_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride,
    uint32_t *pivots, float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkLUDecomp_ma_32f_6x6_L(const float *const *src, int32_t srcShift, int32_t srcRowStride, uint32_t *pivots,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkLUDecomp_ma_32f_6x6_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, uint32_t *pivots, float *const *dst, int32_t dstShift, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);

VonkStatus vonkLUDecomp_ma_64f(const double *src, int32_t srcObjStride, int32_t srcRowStride, uint32_t *pivots,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t order, uint32_t count);
VonkStatus vonkLUDecomp_ma_64f_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    uint32_t *pivots, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t order,
    uint32_t count);
VonkStatus vonkLUDecomp_ma_64f_P(const double *const *src, int32_t srcShift, uint32_t *pivots, double *const *dst,
    int32_t dstShift, uint32_t order, uint32_t count);
VonkStatus vonkLUDecomp_ma_64f_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, uint32_t *pivots,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t order, uint32_t count);
VonkStatus vonkLUDecomp_ma_64f_L(const double *const *src, int32_t srcShift, int32_t srcRowStride, uint32_t *pivots,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t order, uint32_t count);
VonkStatus vonkLUDecomp_ma_64f_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, uint32_t *pivots, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t order, uint32_t count);
VonkStatus vonkLUDecomp_ma_64f_3x3(const double *src, int32_t srcObjStride, int32_t srcRowStride, uint32_t *pivots,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkLUDecomp_ma_64f_3x3_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
    int32_t srcElemStride, uint32_t *pivots, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkLUDecomp_ma_64f_3x3_P(const double *const *src, int32_t srcShift, uint32_t *pivots, double *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkLUDecomp_ma_64f_3x3_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride,
    uint32_t *pivots, double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkLUDecomp_ma_64f_3x3_L(const double *const *src, int32_t srcShift, int32_t srcRowStride, uint32_t *pivots,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkLUDecomp_ma_64f_3x3_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, uint32_t *pivots, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkLUDecomp_ma_64f_4x4(const double *src, int32_t srcObjStride, int32_t srcRowStride, uint32_t *pivots,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkLUDecomp_ma_64f_4x4_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
    int32_t srcElemStride, uint32_t *pivots, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkLUDecomp_ma_64f_4x4_P(const double *const *src, int32_t srcShift, uint32_t *pivots, double *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkLUDecomp_ma_64f_4x4_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride,
    uint32_t *pivots, double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkLUDecomp_ma_64f_4x4_L(const double *const *src, int32_t srcShift, int32_t srcRowStride, uint32_t *pivots,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkLUDecomp_ma_64f_4x4_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, uint32_t *pivots, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkLUDecomp_ma_64f_5x5(const double *src, int32_t srcObjStride, int32_t srcRowStride, uint32_t *pivots,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkLUDecomp_ma_64f_5x5_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
    int32_t srcElemStride, uint32_t *pivots, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkLUDecomp_ma_64f_5x5_P(const double *const *src, int32_t srcShift, uint32_t *pivots, double *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkLUDecomp_ma_64f_5x5_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride,
    uint32_t *pivots, double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkLUDecomp_ma_64f_5x5_L(const double *const *src, int32_t srcShift, int32_t srcRowStride, uint32_t *pivots,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkLUDecomp_ma_64f_5x5_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, uint32_t *pivots, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkLUDecomp_ma_64f_6x6(const double *src, int32_t srcObjStride, int32_t srcRowStride, uint32_t *pivots,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
VonkStatus vonkLUDecomp_ma_64f_6x6_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
    int32_t srcElemStride, uint32_t *pivots, double *dst, int32_t dstObjStride, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);
VonkStatus vonkLUDecomp_ma_64f_6x6_P(const double *const *src, int32_t srcShift, uint32_t *pivots, double *const *dst,
    int32_t dstShift, uint32_t count);
VonkStatus vonkLUDecomp_ma_64f_6x6_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride,
    uint32_t *pivots, double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkLUDecomp_ma_64f_6x6_L(const double *const *src, int32_t srcShift, int32_t srcRowStride, uint32_t *pivots,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, uint32_t count);
VonkStatus vonkLUDecomp_ma_64f_6x6_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, uint32_t *pivots, double *const *dst, int32_t dstShift, int32_t dstRowStride,
    int32_t dstElemStride, uint32_t count);

/* ---- LU back substitution -------------------------------------------------------------------------------------------
 *
 * vonkLUBackSubst solves A x = b with what vonkLUDecomp left: `src1` the factors in their unpermuted rows, `pivots`
 * the permutation, `src2` the right-hand side b, `dst` the solution x, of `order` elements. Groups: `mv` one system;
 * `mva` one factored matrix with its `pivots` for `count` right-hand sides; `mava` a factored matrix and `order`
 * pivots per object.
 *
 * Forward: x(i) = b(p[i]) - s, s the sum of A(p[i], j) x(j) over j < i. Backward, from the last row up: x(i) = (x(i) -
 * s) / A(p[i], i), s the sum over j > i. Sums grow from 0 in ascending j, divisions are true divisions, and x is its
 * own scratch space. Entries of `pivots` are trusted to be below `order`. Method: Golub and Van Loan, Matrix
 * Computations, "Triangular systems", the row-oriented form.
 *
 * Status: vonkErrNullPtr if `src1`, `pivots`, `src2` or `dst` is null; vonkErrSize if `order` is 0; vonkErrNullPtr if
 * a table entry is null, even at `count` 0 (`P`, `PS2`), or a list entry when the object's turn comes (`L`, `LS2`);
 * `count` 0 gives vonkOk. The numbers are not tested: a zero pivot divides through to an infinity or a NaN with
 * vonkOk.
 *
 * Members that behave unlike their siblings:
 * - `mva` in the standard layout, `S2`, `L` and `LS2` has a word behind `src1` (`src1ObjStride` or `src1Shift`) that
 *   is accepted and never read, so that `mva` and `mava` have one parameter list. In `L` and `LS2` `src1` is a plain
 *   pointer.
 * - `mva` of `64f` in `L`, of every size, steps through the columns of `src1` by 4 bytes: element (i, j) is the double
 *   at i * `src1RowStride` + j * 4. `LS2` and all other forms step by the element.
 * - `64f` sums: array forms of fixed size, but for `L` and `LS2`, never round them; all other forms round a sum to 64
 *   bits after its pairs of terms, and again after an odd last term. At 53-bit precision there is no difference but in
 *   range.
 *
 * Overlap:
 * `dst` must not be `src2` unless the permutation is the identity: x(i) is written while b(p[i]) of later rows is
 * still needed. Nothing tests overlap; sweeps read what memory holds by then.
 *
 * Read beyond the operands:
 * Nothing.
 */

VonkStatus vonkLUBackSubst_mv_32f(const float *src1, int32_t src1RowStride, const uint32_t *pivots, const float *src2,
    float *dst, uint32_t order);
VonkStatus vonkLUBackSubst_mv_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const uint32_t *pivots, const float *src2, int32_t src2ElemStride, float *dst, int32_t dstElemStride,
    uint32_t order);
VonkStatus vonkLUBackSubst_mv_32f_P(const float *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t order);
VonkStatus vonkLUBackSubst_mv_32f_3x3(const float *src1, int32_t src1RowStride, const uint32_t *pivots,
    const float *src2, float *dst);
VonkStatus vonkLUBackSubst_mv_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const uint32_t *pivots, const float *src2, int32_t src2ElemStride, float *dst, int32_t dstElemStride);
VonkStatus vonkLUBackSubst_mv_32f_3x3_P(const float *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift);
VonkStatus vonkLUBackSubst_mv_32f_4x4(const float *src1, int32_t src1RowStride, const uint32_t *pivots,
    const float *src2, float *dst);
VonkStatus vonkLUBackSubst_mv_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const uint32_t *pivots, const float *src2, int32_t src2ElemStride, float *dst, int32_t dstElemStride);
VonkStatus vonkLUBackSubst_mv_32f_4x4_P(const float *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift);
VonkStatus vonkLUBackSubst_mv_32f_5x5(const float *src1, int32_t src1RowStride, const uint32_t *pivots,
    const float *src2, float *dst);
VonkStatus vonkLUBackSubst_mv_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const uint32_t *pivots, const float *src2, int32_t src2ElemStride, float *dst, int32_t dstElemStride);
VonkStatus vonkLUBackSubst_mv_32f_5x5_P(const float *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift);
VonkStatus vonkLUBackSubst_mv_32f_6x6(const float *src1, int32_t src1RowStride, const uint32_t *pivots,
    const float *src2, float *dst);
VonkStatus vonkLUBackSubst_mv_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const uint32_t *pivots, const float *src2, int32_t src2ElemStride, float *dst, int32_t dstElemStride);
VonkStatus vonkLUBackSubst_mv_32f_6x6_P(const float *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift);

VonkStatus vonkLUBackSubst_mv_64f(const double *src1, int32_t src1RowStride, const uint32_t *pivots, const double *src2,
    double *dst, uint32_t order);
VonkStatus vonkLUBackSubst_mv_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const uint32_t *pivots, const double *src2, int32_t src2ElemStride, double *dst, int32_t dstElemStride,
    uint32_t order);
VonkStatus vonkLUBackSubst_mv_64f_P(const double *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t order);
VonkStatus vonkLUBackSubst_mv_64f_3x3(const double *src1, int32_t src1RowStride, const uint32_t *pivots,
    const double *src2, double *dst);
VonkStatus vonkLUBackSubst_mv_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const uint32_t *pivots, const double *src2, int32_t src2ElemStride, double *dst, int32_t dstElemStride);
VonkStatus vonkLUBackSubst_mv_64f_3x3_P(const double *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift);
VonkStatus vonkLUBackSubst_mv_64f_4x4(const double *src1, int32_t src1RowStride, const uint32_t *pivots,
    const double *src2, double *dst);
VonkStatus vonkLUBackSubst_mv_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const uint32_t *pivots, const double *src2, int32_t src2ElemStride, double *dst, int32_t dstElemStride);
VonkStatus vonkLUBackSubst_mv_64f_4x4_P(const double *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift);
VonkStatus vonkLUBackSubst_mv_64f_5x5(const double *src1, int32_t src1RowStride, const uint32_t *pivots,
    const double *src2, double *dst);
VonkStatus vonkLUBackSubst_mv_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const uint32_t *pivots, const double *src2, int32_t src2ElemStride, double *dst, int32_t dstElemStride);
VonkStatus vonkLUBackSubst_mv_64f_5x5_P(const double *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift);
VonkStatus vonkLUBackSubst_mv_64f_6x6(const double *src1, int32_t src1RowStride, const uint32_t *pivots,
    const double *src2, double *dst);
VonkStatus vonkLUBackSubst_mv_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
    const uint32_t *pivots, const double *src2, int32_t src2ElemStride, double *dst, int32_t dstElemStride);
VonkStatus vonkLUBackSubst_mv_64f_6x6_P(const double *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift);

VonkStatus vonkLUBackSubst_mva_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    const uint32_t *pivots, const float *src2, int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t order,
    uint32_t count);
VonkStatus vonkLUBackSubst_mva_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t order, uint32_t count);
VonkStatus vonkLUBackSubst_mva_32f_P(const float *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t order, uint32_t count);
VonkStatus vonkLUBackSubst_mva_32f_PS2(const float *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t order, uint32_t count);
VonkStatus vonkLUBackSubst_mva_32f_L(const float *src1, int32_t src1Shift, int32_t src1RowStride,
    const uint32_t *pivots, const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift,
    uint32_t order, uint32_t count);
VonkStatus vonkLUBackSubst_mva_32f_LS2(const float *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const float *const *src2, int32_t src2Shift, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t order, uint32_t count);
VonkStatus vonkLUBackSubst_mva_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    const uint32_t *pivots, const float *src2, int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkLUBackSubst_mva_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkLUBackSubst_mva_32f_3x3_P(const float *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkLUBackSubst_mva_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkLUBackSubst_mva_32f_3x3_L(const float *src1, int32_t src1Shift, int32_t src1RowStride,
    const uint32_t *pivots, const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift,
    uint32_t count);
VonkStatus vonkLUBackSubst_mva_32f_3x3_LS2(const float *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const float *const *src2, int32_t src2Shift, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
VonkStatus vonkLUBackSubst_mva_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    const uint32_t *pivots, const float *src2, int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkLUBackSubst_mva_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkLUBackSubst_mva_32f_4x4_P(const float *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkLUBackSubst_mva_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkLUBackSubst_mva_32f_4x4_L(const float *src1, int32_t src1Shift, int32_t src1RowStride,
    const uint32_t *pivots, const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift,
    uint32_t count);
VonkStatus vonkLUBackSubst_mva_32f_4x4_LS2(const float *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const float *const *src2, int32_t src2Shift, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
VonkStatus vonkLUBackSubst_mva_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    const uint32_t *pivots, const float *src2, int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkLUBackSubst_mva_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkLUBackSubst_mva_32f_5x5_P(const float *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkLUBackSubst_mva_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkLUBackSubst_mva_32f_5x5_L(const float *src1, int32_t src1Shift, int32_t src1RowStride,
    const uint32_t *pivots, const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift,
    uint32_t count);
VonkStatus vonkLUBackSubst_mva_32f_5x5_LS2(const float *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const float *const *src2, int32_t src2Shift, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
VonkStatus vonkLUBackSubst_mva_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    const uint32_t *pivots, const float *src2, int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkLUBackSubst_mva_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkLUBackSubst_mva_32f_6x6_P(const float *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkLUBackSubst_mva_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkLUBackSubst_mva_32f_6x6_L(const float *src1, int32_t src1Shift, int32_t src1RowStride,
    const uint32_t *pivots, const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift,
    uint32_t count);
VonkStatus vonkLUBackSubst_mva_32f_6x6_LS2(const float *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const float *const *src2, int32_t src2Shift, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);

VonkStatus vonkLUBackSubst_mva_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    const uint32_t *pivots, const double *src2, int32_t src2ObjStride, double *dst, int32_t dstObjStride,
    uint32_t order, uint32_t count);
VonkStatus vonkLUBackSubst_mva_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t order, uint32_t count);
VonkStatus vonkLUBackSubst_mva_64f_P(const double *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t order, uint32_t count);
VonkStatus vonkLUBackSubst_mva_64f_PS2(const double *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t order, uint32_t count);
VonkStatus vonkLUBackSubst_mva_64f_L(const double *src1, int32_t src1Shift, int32_t src1RowStride,
    const uint32_t *pivots, const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift,
    uint32_t order, uint32_t count);
VonkStatus vonkLUBackSubst_mva_64f_LS2(const double *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const double *const *src2, int32_t src2Shift,
    int32_t src2ElemStride, double *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t order,
    uint32_t count);
VonkStatus vonkLUBackSubst_mva_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    const uint32_t *pivots, const double *src2, int32_t src2ObjStride, double *dst, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkLUBackSubst_mva_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkLUBackSubst_mva_64f_3x3_P(const double *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkLUBackSubst_mva_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkLUBackSubst_mva_64f_3x3_L(const double *src1, int32_t src1Shift, int32_t src1RowStride,
    const uint32_t *pivots, const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift,
    uint32_t count);
VonkStatus vonkLUBackSubst_mva_64f_3x3_LS2(const double *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const double *const *src2, int32_t src2Shift,
    int32_t src2ElemStride, double *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
VonkStatus vonkLUBackSubst_mva_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    const uint32_t *pivots, const double *src2, int32_t src2ObjStride, double *dst, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkLUBackSubst_mva_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkLUBackSubst_mva_64f_4x4_P(const double *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkLUBackSubst_mva_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkLUBackSubst_mva_64f_4x4_L(const double *src1, int32_t src1Shift, int32_t src1RowStride,
    const uint32_t *pivots, const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift,
    uint32_t count);
VonkStatus vonkLUBackSubst_mva_64f_4x4_LS2(const double *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const double *const *src2, int32_t src2Shift,
    int32_t src2ElemStride, double *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
VonkStatus vonkLUBackSubst_mva_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    const uint32_t *pivots, const double *src2, int32_t src2ObjStride, double *dst, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkLUBackSubst_mva_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkLUBackSubst_mva_64f_5x5_P(const double *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkLUBackSubst_mva_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkLUBackSubst_mva_64f_5x5_L(const double *src1, int32_t src1Shift, int32_t src1RowStride,
    const uint32_t *pivots, const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift,
    uint32_t count);
VonkStatus vonkLUBackSubst_mva_64f_5x5_LS2(const double *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const double *const *src2, int32_t src2Shift,
    int32_t src2ElemStride, double *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
VonkStatus vonkLUBackSubst_mva_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    const uint32_t *pivots, const double *src2, int32_t src2ObjStride, double *dst, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkLUBackSubst_mva_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkLUBackSubst_mva_64f_6x6_P(const double *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkLUBackSubst_mva_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst, int32_t dstShift,
    int32_t dstObjStride, uint32_t count);
VonkStatus vonkLUBackSubst_mva_64f_6x6_L(const double *src1, int32_t src1Shift, int32_t src1RowStride,
    const uint32_t *pivots, const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift,
    uint32_t count);
VonkStatus vonkLUBackSubst_mva_64f_6x6_LS2(const double *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const double *const *src2, int32_t src2Shift,
    int32_t src2ElemStride, double *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);

VonkStatus vonkLUBackSubst_mava_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    const uint32_t *pivots, const float *src2, int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t order,
    uint32_t count);
VonkStatus vonkLUBackSubst_mava_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t order, uint32_t count);
VonkStatus vonkLUBackSubst_mava_32f_P(const float *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t order, uint32_t count);
VonkStatus vonkLUBackSubst_mava_32f_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const uint32_t *pivots, const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst,
    int32_t dstShift, int32_t dstObjStride, uint32_t order, uint32_t count);
VonkStatus vonkLUBackSubst_mava_32f_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const uint32_t *pivots, const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift,
    uint32_t order, uint32_t count);
VonkStatus vonkLUBackSubst_mava_32f_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const float *const *src2, int32_t src2Shift, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t order, uint32_t count);
VonkStatus vonkLUBackSubst_mava_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    const uint32_t *pivots, const float *src2, int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkLUBackSubst_mava_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkLUBackSubst_mava_32f_3x3_P(const float *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkLUBackSubst_mava_32f_3x3_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const uint32_t *pivots, const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst,
    int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkLUBackSubst_mava_32f_3x3_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const uint32_t *pivots, const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift,
    uint32_t count);
VonkStatus vonkLUBackSubst_mava_32f_3x3_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const float *const *src2, int32_t src2Shift, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
VonkStatus vonkLUBackSubst_mava_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    const uint32_t *pivots, const float *src2, int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkLUBackSubst_mava_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkLUBackSubst_mava_32f_4x4_P(const float *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkLUBackSubst_mava_32f_4x4_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const uint32_t *pivots, const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst,
    int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkLUBackSubst_mava_32f_4x4_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const uint32_t *pivots, const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift,
    uint32_t count);
VonkStatus vonkLUBackSubst_mava_32f_4x4_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const float *const *src2, int32_t src2Shift, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
VonkStatus vonkLUBackSubst_mava_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    const uint32_t *pivots, const float *src2, int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkLUBackSubst_mava_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkLUBackSubst_mava_32f_5x5_P(const float *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkLUBackSubst_mava_32f_5x5_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const uint32_t *pivots, const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst,
    int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkLUBackSubst_mava_32f_5x5_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const uint32_t *pivots, const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift,
    uint32_t count);
VonkStatus vonkLUBackSubst_mava_32f_5x5_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const float *const *src2, int32_t src2Shift, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
VonkStatus vonkLUBackSubst_mava_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    const uint32_t *pivots, const float *src2, int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
VonkStatus vonkLUBackSubst_mava_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride,
    float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkLUBackSubst_mava_32f_6x6_P(const float *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkLUBackSubst_mava_32f_6x6_PS2(const float *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const uint32_t *pivots, const float *const *src2, int32_t src2Shift, int32_t src2ObjStride, float *const *dst,
    int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkLUBackSubst_mava_32f_6x6_L(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const uint32_t *pivots, const float *const *src2, int32_t src2Shift, float *const *dst, int32_t dstShift,
    uint32_t count);
VonkStatus vonkLUBackSubst_mava_32f_6x6_LS2(const float *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const float *const *src2, int32_t src2Shift, int32_t src2ElemStride,
    float *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);

VonkStatus vonkLUBackSubst_mava_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    const uint32_t *pivots, const double *src2, int32_t src2ObjStride, double *dst, int32_t dstObjStride,
    uint32_t order, uint32_t count);
VonkStatus vonkLUBackSubst_mava_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t order, uint32_t count);
VonkStatus vonkLUBackSubst_mava_64f_P(const double *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t order, uint32_t count);
VonkStatus vonkLUBackSubst_mava_64f_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const uint32_t *pivots, const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst,
    int32_t dstShift, int32_t dstObjStride, uint32_t order, uint32_t count);
VonkStatus vonkLUBackSubst_mava_64f_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const uint32_t *pivots, const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift,
    uint32_t order, uint32_t count);
VonkStatus vonkLUBackSubst_mava_64f_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const double *const *src2, int32_t src2Shift,
    int32_t src2ElemStride, double *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t order,
    uint32_t count);
VonkStatus vonkLUBackSubst_mava_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    const uint32_t *pivots, const double *src2, int32_t src2ObjStride, double *dst, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkLUBackSubst_mava_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkLUBackSubst_mava_64f_3x3_P(const double *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkLUBackSubst_mava_64f_3x3_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const uint32_t *pivots, const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst,
    int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkLUBackSubst_mava_64f_3x3_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const uint32_t *pivots, const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift,
    uint32_t count);
VonkStatus vonkLUBackSubst_mava_64f_3x3_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const double *const *src2, int32_t src2Shift,
    int32_t src2ElemStride, double *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
VonkStatus vonkLUBackSubst_mava_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    const uint32_t *pivots, const double *src2, int32_t src2ObjStride, double *dst, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkLUBackSubst_mava_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkLUBackSubst_mava_64f_4x4_P(const double *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkLUBackSubst_mava_64f_4x4_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const uint32_t *pivots, const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst,
    int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkLUBackSubst_mava_64f_4x4_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const uint32_t *pivots, const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift,
    uint32_t count);
VonkStatus vonkLUBackSubst_mava_64f_4x4_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const double *const *src2, int32_t src2Shift,
    int32_t src2ElemStride, double *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
VonkStatus vonkLUBackSubst_mava_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    const uint32_t *pivots, const double *src2, int32_t src2ObjStride, double *dst, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkLUBackSubst_mava_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkLUBackSubst_mava_64f_5x5_P(const double *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkLUBackSubst_mava_64f_5x5_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const uint32_t *pivots, const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst,
    int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkLUBackSubst_mava_64f_5x5_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const uint32_t *pivots, const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift,
    uint32_t count);
VonkStatus vonkLUBackSubst_mava_64f_5x5_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const double *const *src2, int32_t src2Shift,
    int32_t src2ElemStride, double *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);
VonkStatus vonkLUBackSubst_mava_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    const uint32_t *pivots, const double *src2, int32_t src2ObjStride, double *dst, int32_t dstObjStride,
    uint32_t count);
VonkStatus vonkLUBackSubst_mava_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride,
    double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
VonkStatus vonkLUBackSubst_mava_64f_6x6_P(const double *const *src1, int32_t src1Shift, const uint32_t *pivots,
    const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift, uint32_t count);
VonkStatus vonkLUBackSubst_mava_64f_6x6_PS2(const double *const *src1, int32_t src1Shift, int32_t src1ObjStride,
    const uint32_t *pivots, const double *const *src2, int32_t src2Shift, int32_t src2ObjStride, double *const *dst,
    int32_t dstShift, int32_t dstObjStride, uint32_t count);
VonkStatus vonkLUBackSubst_mava_64f_6x6_L(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    const uint32_t *pivots, const double *const *src2, int32_t src2Shift, double *const *dst, int32_t dstShift,
    uint32_t count);
VonkStatus vonkLUBackSubst_mava_64f_6x6_LS2(const double *const *src1, int32_t src1Shift, int32_t src1RowStride,
    int32_t src1ElemStride, const uint32_t *pivots, const double *const *src2, int32_t src2Shift,
    int32_t src2ElemStride, double *const *dst, int32_t dstShift, int32_t dstElemStride, uint32_t count);

#ifdef __cplusplus
}
#endif

#endif
