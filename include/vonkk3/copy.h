/* vonkk3: Copy; Extract; LoadIdentity. See vonkk3.h for names, layouts and units.
 *
 * Generated from the catalogue of functions; do not edit.
 */
#ifndef VONKK3_COPY_H
#define VONKK3_COPY_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Copy -----------------------------------------------------------------------------------------------------------
 *
 * dst(n, j) = src(n, j)          (`va`, of `len` elements)
 * dst(n, i, j) = src(n, i, j)    (`ma`, of `rows` by `cols`)
 *
 * Two letters at the end of a name say where the elements come from and where they go: `S` strided (elsewhere `S2`),
 * `P` strided pointer (`PS2`), `L` strided list (`LS2`). Nothing is converted. Objects, rows and elements are copied in
 * ascending order, one element at a time. A `float` is copied bit by bit; a `double` goes through the 80-bit unit, so
 * that a signalling NaN arrives as a quiet one.
 *
 * Status: vonkErrNullPtr if `src` or `dst` is null; vonkErrSize if `len` is 0. Entries of tables and lists are not
 * checked. `count` 0 gives vonkOk.
 *
 * Overlap:
 * Overlap is not checked. `dst` may be `src` (in place), with the same strides or tables. With any other overlap
 * elements are copied one by one in ascending order, so that an element of `src` which `dst` has overwritten by then is
 * read as overwritten.
 *
 * Exceptions:
 * - copy-other-table (result): vonkCopy_va_{32f,64f}_PP
 *   The `src` table is never read. Both ends of the copy are found through the `dst` table: element j of object n comes
 *   from dst[j] + `srcShift` + n * `srcObjStride` and goes to dst[j] + `dstShift` + n * `dstObjStride`.
 * - copy-empty-matrix (status): vonkCopy_ma_{32f,64f}_??
 *   `cols` or `rows` 0 is no error: nothing is written, and the status is vonkOk.
 */

/** dst(n) = src(n), copied; `len` float, n below count; from S2 to S2. */
VonkStatus vonkCopy_va_32f_SS(const float *src, int32_t srcObjStride, int32_t srcElemStride, float *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t len, uint32_t count);
/** dst(n) = src(n), copied; `len` float, n below count; from S2 to PS2. */
VonkStatus vonkCopy_va_32f_SP(const float *src, int32_t srcObjStride, int32_t srcElemStride, float *const *dst,
    int32_t dstShift, int32_t dstObjStride, uint32_t len, uint32_t count);
/** dst(n) = src(n), copied; `len` float, n below count; from S2 to LS2. */
VonkStatus vonkCopy_va_32f_SL(const float *src, int32_t srcObjStride, int32_t srcElemStride, float *const *dst,
    int32_t dstShift, int32_t dstElemStride, uint32_t len, uint32_t count);
/** dst(n) = src(n), copied; `len` float, n below count; from PS2 to S2. */
VonkStatus vonkCopy_va_32f_PS(const float *const *src, int32_t srcShift, int32_t srcObjStride, float *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t len, uint32_t count);
/** dst(n) = src(n), copied; `len` float, n below count; from PS2 to PS2. Exception: copy-other-table. */
VonkStatus vonkCopy_va_32f_PP(const float *const *src, int32_t srcShift, int32_t srcObjStride, float *const *dst,
    int32_t dstShift, int32_t dstObjStride, uint32_t len, uint32_t count);
/** dst(n) = src(n), copied; `len` float, n below count; from PS2 to LS2. */
VonkStatus vonkCopy_va_32f_PL(const float *const *src, int32_t srcShift, int32_t srcObjStride, float *const *dst,
    int32_t dstShift, int32_t dstElemStride, uint32_t len, uint32_t count);
/** dst(n) = src(n), copied; `len` float, n below count; from LS2 to S2. */
VonkStatus vonkCopy_va_32f_LS(const float *const *src, int32_t srcShift, int32_t srcElemStride, float *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t len, uint32_t count);
/** dst(n) = src(n), copied; `len` float, n below count; from LS2 to PS2. */
VonkStatus vonkCopy_va_32f_LP(const float *const *src, int32_t srcShift, int32_t srcElemStride, float *const *dst,
    int32_t dstShift, int32_t dstObjStride, uint32_t len, uint32_t count);
/** dst(n) = src(n), copied; `len` float, n below count; from LS2 to LS2. */
VonkStatus vonkCopy_va_32f_LL(const float *const *src, int32_t srcShift, int32_t srcElemStride, float *const *dst,
    int32_t dstShift, int32_t dstElemStride, uint32_t len, uint32_t count);

/** dst(n) = src(n), copied; `len` double, n below count; from S2 to S2. */
VonkStatus vonkCopy_va_64f_SS(const double *src, int32_t srcObjStride, int32_t srcElemStride, double *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t len, uint32_t count);
/** dst(n) = src(n), copied; `len` double, n below count; from S2 to PS2. */
VonkStatus vonkCopy_va_64f_SP(const double *src, int32_t srcObjStride, int32_t srcElemStride, double *const *dst,
    int32_t dstShift, int32_t dstObjStride, uint32_t len, uint32_t count);
/** dst(n) = src(n), copied; `len` double, n below count; from S2 to LS2. */
VonkStatus vonkCopy_va_64f_SL(const double *src, int32_t srcObjStride, int32_t srcElemStride, double *const *dst,
    int32_t dstShift, int32_t dstElemStride, uint32_t len, uint32_t count);
/** dst(n) = src(n), copied; `len` double, n below count; from PS2 to S2. */
VonkStatus vonkCopy_va_64f_PS(const double *const *src, int32_t srcShift, int32_t srcObjStride, double *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t len, uint32_t count);
/** dst(n) = src(n), copied; `len` double, n below count; from PS2 to PS2. Exception: copy-other-table. */
VonkStatus vonkCopy_va_64f_PP(const double *const *src, int32_t srcShift, int32_t srcObjStride, double *const *dst,
    int32_t dstShift, int32_t dstObjStride, uint32_t len, uint32_t count);
/** dst(n) = src(n), copied; `len` double, n below count; from PS2 to LS2. */
VonkStatus vonkCopy_va_64f_PL(const double *const *src, int32_t srcShift, int32_t srcObjStride, double *const *dst,
    int32_t dstShift, int32_t dstElemStride, uint32_t len, uint32_t count);
/** dst(n) = src(n), copied; `len` double, n below count; from LS2 to S2. */
VonkStatus vonkCopy_va_64f_LS(const double *const *src, int32_t srcShift, int32_t srcElemStride, double *dst,
    int32_t dstObjStride, int32_t dstElemStride, uint32_t len, uint32_t count);
/** dst(n) = src(n), copied; `len` double, n below count; from LS2 to PS2. */
VonkStatus vonkCopy_va_64f_LP(const double *const *src, int32_t srcShift, int32_t srcElemStride, double *const *dst,
    int32_t dstShift, int32_t dstObjStride, uint32_t len, uint32_t count);
/** dst(n) = src(n), copied; `len` double, n below count; from LS2 to LS2. */
VonkStatus vonkCopy_va_64f_LL(const double *const *src, int32_t srcShift, int32_t srcElemStride, double *const *dst,
    int32_t dstShift, int32_t dstElemStride, uint32_t len, uint32_t count);

/** dst(n) = src(n), copied; `rows` by `cols` float, n below count; from S2 to S2. Exception: copy-empty-matrix. */
VonkStatus vonkCopy_ma_32f_SS(const float *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src(n), copied; `rows` by `cols` float, n below count; from S2 to PS2. Exception: copy-empty-matrix. */
VonkStatus vonkCopy_ma_32f_SP(const float *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src(n), copied; `rows` by `cols` float, n below count; from S2 to LS2. Exception: copy-empty-matrix. */
VonkStatus vonkCopy_ma_32f_SL(const float *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src(n), copied; `rows` by `cols` float, n below count; from PS2 to S2. Exception: copy-empty-matrix. */
VonkStatus vonkCopy_ma_32f_PS(const float *const *src, int32_t srcShift, int32_t srcObjStride, float *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src(n), copied; `rows` by `cols` float, n below count; from PS2 to PS2. Exception: copy-empty-matrix. */
VonkStatus vonkCopy_ma_32f_PP(const float *const *src, int32_t srcShift, int32_t srcObjStride, float *const *dst,
    int32_t dstShift, int32_t dstObjStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src(n), copied; `rows` by `cols` float, n below count; from PS2 to LS2. Exception: copy-empty-matrix. */
VonkStatus vonkCopy_ma_32f_PL(const float *const *src, int32_t srcShift, int32_t srcObjStride, float *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src(n), copied; `rows` by `cols` float, n below count; from LS2 to S2. Exception: copy-empty-matrix. */
VonkStatus vonkCopy_ma_32f_LS(const float *const *src, int32_t srcShift, int32_t srcRowStride, int32_t srcElemStride,
    float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src(n), copied; `rows` by `cols` float, n below count; from LS2 to PS2. Exception: copy-empty-matrix. */
VonkStatus vonkCopy_ma_32f_LP(const float *const *src, int32_t srcShift, int32_t srcRowStride, int32_t srcElemStride,
    float *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src(n), copied; `rows` by `cols` float, n below count; from LS2 to LS2. Exception: copy-empty-matrix. */
VonkStatus vonkCopy_ma_32f_LL(const float *const *src, int32_t srcShift, int32_t srcRowStride, int32_t srcElemStride,
    float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows,
    uint32_t count);

/** dst(n) = src(n), copied; `rows` by `cols` double, n below count; from S2 to S2. Exception: copy-empty-matrix. */
VonkStatus vonkCopy_ma_64f_SS(const double *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src(n), copied; `rows` by `cols` double, n below count; from S2 to PS2. Exception: copy-empty-matrix. */
VonkStatus vonkCopy_ma_64f_SP(const double *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src(n), copied; `rows` by `cols` double, n below count; from S2 to LS2. Exception: copy-empty-matrix. */
VonkStatus vonkCopy_ma_64f_SL(const double *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src(n), copied; `rows` by `cols` double, n below count; from PS2 to S2. Exception: copy-empty-matrix. */
VonkStatus vonkCopy_ma_64f_PS(const double *const *src, int32_t srcShift, int32_t srcObjStride, double *dst,
    int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src(n), copied; `rows` by `cols` double, n below count; from PS2 to PS2. Exception: copy-empty-matrix. */
VonkStatus vonkCopy_ma_64f_PP(const double *const *src, int32_t srcShift, int32_t srcObjStride, double *const *dst,
    int32_t dstShift, int32_t dstObjStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src(n), copied; `rows` by `cols` double, n below count; from PS2 to LS2. Exception: copy-empty-matrix. */
VonkStatus vonkCopy_ma_64f_PL(const double *const *src, int32_t srcShift, int32_t srcObjStride, double *const *dst,
    int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src(n), copied; `rows` by `cols` double, n below count; from LS2 to S2. Exception: copy-empty-matrix. */
VonkStatus vonkCopy_ma_64f_LS(const double *const *src, int32_t srcShift, int32_t srcRowStride, int32_t srcElemStride,
    double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows,
    uint32_t count);
/** dst(n) = src(n), copied; `rows` by `cols` double, n below count; from LS2 to PS2. Exception: copy-empty-matrix. */
VonkStatus vonkCopy_ma_64f_LP(const double *const *src, int32_t srcShift, int32_t srcRowStride, int32_t srcElemStride,
    double *const *dst, int32_t dstShift, int32_t dstObjStride, uint32_t cols, uint32_t rows, uint32_t count);
/** dst(n) = src(n), copied; `rows` by `cols` double, n below count; from LS2 to LS2. Exception: copy-empty-matrix. */
VonkStatus vonkCopy_ma_64f_LL(const double *const *src, int32_t srcShift, int32_t srcRowStride, int32_t srcElemStride,
    double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t cols, uint32_t rows,
    uint32_t count);

/* ---- Extract --------------------------------------------------------------------------------------------------------
 *
 * `dst` is a plain pointer and is filled in ascending order, without gaps and strides:
 *
 * - `v`, `va`: dst[n * `len` + j] = src(n, j)
 * - `m`, `ma`: dst[(n * `rows` + i) * `cols` + j] = src(n, i, j)
 * - `mT`, `maT`: dst[(n * `rows` + i) * `cols` + j] = src(n, j, i): `rows` and `cols` are those of the result
 *
 * A `float` is copied bit by bit; a `double` goes through the 80-bit unit, so that a signalling NaN arrives as a quiet
 * one. There is no standard layout, no `maT` of `S2`, and no `mT` of `S2` in `64f`. vonkExtract_va of `S2` is
 * vonkExtract_m of `S2` under a second name: an array of strided vectors lies like the rows of one strided matrix.
 *
 * Status: vonkErrNullPtr if `src` or `dst` is null; vonkErrSize if `len`, `cols` or `rows` is 0. Entries of tables and
 * lists are not checked.
 *
 * Overlap:
 * Overlap is not checked. Elements are copied one by one in ascending order, so that an element of `src` which `dst`
 * has overwritten by then is read as overwritten.
 *
 * Exceptions:
 * - extract-not-transposed (result): vonkExtract_maT_{32f,64f}_PS2
 *   Does not transpose: it is vonkExtract_ma of `PS2` under a second name.
 * - extract-table-shape (result): vonkExtract_mT_{32f,64f}_P
 *   `rows` and `cols` are those of the table: dst[j * `rows` + i] is what entry i * `cols` + j points to.
 * - extract-ignored-shift (arguments): vonkExtract_mT_{32f,64f}_P
 *   `srcShift` is ignored.
 * - extract-unchecked (checks): vonkExtract_{m_{32f,64f},mT_{32f,64f},v_64f}_P
 *   No pointer is checked, and a size of 0 gives vonkOk; in `m` if `cols` * `rows` is 0 in 32 bits.
 * - extract-count-zero (status): vonkExtract_{va,ma}_{32f,64f}_{S2,PS2,LS2} vonkExtract_maT_{32f,64f}_{PS2,LS2}
 *   `count` 0 is vonkErrSize.
 */

/** dst = src, gathered into a dense block; `len` float; S2, strided elements. */
VonkStatus vonkExtract_v_32f_S2(const float *src, int32_t srcElemStride, float *dst, uint32_t len);
/** dst = src, gathered into a dense block; `len` float; P, one pointer per element position. */
VonkStatus vonkExtract_v_32f_P(const float *const *src, int32_t srcShift, float *dst, uint32_t len);

/** dst = src, gathered into a dense block; `len` double; S2, strided elements. */
VonkStatus vonkExtract_v_64f_S2(const double *src, int32_t srcElemStride, double *dst, uint32_t len);
/** dst = src, gathered into a dense block; `len` double; P, one pointer per element position. Exception:
 * extract-unchecked. */
VonkStatus vonkExtract_v_64f_P(const double *const *src, int32_t srcShift, double *dst, uint32_t len);

/** dst = src(n), gathered into a dense block; `len` float, n below count; S2, strided elements. Exception:
 * extract-count-zero. */
VonkStatus vonkExtract_va_32f_S2(const float *src, int32_t srcObjStride, int32_t srcElemStride, float *dst,
    uint32_t len, uint32_t count);
/** dst = src(n), gathered into a dense block; `len` float, n below count; PS2, one pointer per element position,
 * strided objects. Exception: extract-count-zero. */
VonkStatus vonkExtract_va_32f_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float *dst,
    uint32_t len, uint32_t count);
/** dst = src(n), gathered into a dense block; `len` float, n below count; LS2, one pointer per object, strided
 * elements. Exception: extract-count-zero. */
VonkStatus vonkExtract_va_32f_LS2(const float *const *src, int32_t srcShift, int32_t srcElemStride, float *dst,
    uint32_t len, uint32_t count);

/** dst = src(n), gathered into a dense block; `len` double, n below count; S2, strided elements. Exception:
 * extract-count-zero. */
VonkStatus vonkExtract_va_64f_S2(const double *src, int32_t srcObjStride, int32_t srcElemStride, double *dst,
    uint32_t len, uint32_t count);
/** dst = src(n), gathered into a dense block; `len` double, n below count; PS2, one pointer per element position,
 * strided objects. Exception: extract-count-zero. */
VonkStatus vonkExtract_va_64f_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, double *dst,
    uint32_t len, uint32_t count);
/** dst = src(n), gathered into a dense block; `len` double, n below count; LS2, one pointer per object, strided
 * elements. Exception: extract-count-zero. */
VonkStatus vonkExtract_va_64f_LS2(const double *const *src, int32_t srcShift, int32_t srcElemStride, double *dst,
    uint32_t len, uint32_t count);

/** dst = src, gathered into a dense block; `rows` by `cols` float; S2, strided elements. */
VonkStatus vonkExtract_m_32f_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float *dst,
    uint32_t cols, uint32_t rows);
/** dst = src, gathered into a dense block; `rows` by `cols` float; P, one pointer per element position. Exception:
 * extract-unchecked. */
VonkStatus vonkExtract_m_32f_P(const float *const *src, int32_t srcShift, float *dst, uint32_t cols, uint32_t rows);

/** dst = src, gathered into a dense block; `rows` by `cols` double; S2, strided elements. */
VonkStatus vonkExtract_m_64f_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, double *dst,
    uint32_t cols, uint32_t rows);
/** dst = src, gathered into a dense block; `rows` by `cols` double; P, one pointer per element position. Exception:
 * extract-unchecked. */
VonkStatus vonkExtract_m_64f_P(const double *const *src, int32_t srcShift, double *dst, uint32_t cols, uint32_t rows);

/** dst = src', gathered into a dense block; `rows` by `cols` float; S2, strided elements. */
VonkStatus vonkExtract_mT_32f_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float *dst,
    uint32_t cols, uint32_t rows);
/** dst = src', gathered into a dense block; `rows` by `cols` float; P, one pointer per element position. Exceptions:
 * extract-table-shape, extract-ignored-shift, extract-unchecked. */
VonkStatus vonkExtract_mT_32f_P(const float *const *src, int32_t srcShift, float *dst, uint32_t cols, uint32_t rows);

/** dst = src', gathered into a dense block; `rows` by `cols` double; P, one pointer per element position. Exceptions:
 * extract-table-shape, extract-ignored-shift, extract-unchecked. */
VonkStatus vonkExtract_mT_64f_P(const double *const *src, int32_t srcShift, double *dst, uint32_t cols, uint32_t rows);

/** dst = src(n), gathered into a dense block; `rows` by `cols` float, n below count; S2, strided elements. Exception:
 * extract-count-zero. */
VonkStatus vonkExtract_ma_32f_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    float *dst, uint32_t cols, uint32_t rows, uint32_t count);
/** dst = src(n), gathered into a dense block; `rows` by `cols` float, n below count; PS2, one pointer per element
 * position, strided objects. Exception: extract-count-zero. */
VonkStatus vonkExtract_ma_32f_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float *dst,
    uint32_t cols, uint32_t rows, uint32_t count);
/** dst = src(n), gathered into a dense block; `rows` by `cols` float, n below count; LS2, one pointer per object,
 * strided elements. Exception: extract-count-zero. */
VonkStatus vonkExtract_ma_32f_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, float *dst, uint32_t cols, uint32_t rows, uint32_t count);

/** dst = src(n), gathered into a dense block; `rows` by `cols` double, n below count; S2, strided elements. Exception:
 * extract-count-zero. */
VonkStatus vonkExtract_ma_64f_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride,
    double *dst, uint32_t cols, uint32_t rows, uint32_t count);
/** dst = src(n), gathered into a dense block; `rows` by `cols` double, n below count; PS2, one pointer per element
 * position, strided objects. Exception: extract-count-zero. */
VonkStatus vonkExtract_ma_64f_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, double *dst,
    uint32_t cols, uint32_t rows, uint32_t count);
/** dst = src(n), gathered into a dense block; `rows` by `cols` double, n below count; LS2, one pointer per object,
 * strided elements. Exception: extract-count-zero. */
VonkStatus vonkExtract_ma_64f_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, double *dst, uint32_t cols, uint32_t rows, uint32_t count);

/** dst = src(n)', gathered into a dense block; `rows` by `cols` float, n below count; PS2, one pointer per element
 * position, strided objects. Exceptions: extract-not-transposed, extract-count-zero. */
VonkStatus vonkExtract_maT_32f_PS2(const float *const *src, int32_t srcShift, int32_t srcObjStride, float *dst,
    uint32_t cols, uint32_t rows, uint32_t count);
/** dst = src(n)', gathered into a dense block; `rows` by `cols` float, n below count; LS2, one pointer per object,
 * strided elements. Exception: extract-count-zero. */
VonkStatus vonkExtract_maT_32f_LS2(const float *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, float *dst, uint32_t cols, uint32_t rows, uint32_t count);

/** dst = src(n)', gathered into a dense block; `rows` by `cols` double, n below count; PS2, one pointer per element
 * position, strided objects. Exceptions: extract-not-transposed, extract-count-zero. */
VonkStatus vonkExtract_maT_64f_PS2(const double *const *src, int32_t srcShift, int32_t srcObjStride, double *dst,
    uint32_t cols, uint32_t rows, uint32_t count);
/** dst = src(n)', gathered into a dense block; `rows` by `cols` double, n below count; LS2, one pointer per object,
 * strided elements. Exception: extract-count-zero. */
VonkStatus vonkExtract_maT_64f_LS2(const double *const *src, int32_t srcShift, int32_t srcRowStride,
    int32_t srcElemStride, double *dst, uint32_t cols, uint32_t rows, uint32_t count);

/* ---- LoadIdentity ---------------------------------------------------------------------------------------------------
 *
 * For each object n and each row i, in ascending order: columns 0 to `cols` - 1 of the row become 0, then column n *
 * `rows` + i becomes 1. That column does not start again with each object, so only `count` 1 makes an identity: in
 * later objects the ones lie past the columns of their row, wherever the strides lead, and zeros of a later row may
 * overwrite a one. In `P` the one of row i goes through table entry i * `cols` + n * `rows` + i, which lies past the
 * end of the table for all objects but the first.
 *
 * One letter at the end of a name is the layout: `S` strided (elsewhere `S2`), `P` strided pointer (`PS2`), `L` strided
 * list (`LS2`). `cols` and `rows` are signed (int32_t): with `rows` below 1 nothing is written, with `cols` below 1 the
 * ones are written all the same.
 *
 * Strides that are too small are replaced, with no error: `dstElemStride` by the size of an element, `dstRowStride` by
 * `cols` times that (`S`, `L`), `dstObjStride` of `P` by the size of an element. They are compared as unsigned numbers,
 * so negative strides are kept.
 *
 * Status: vonkErrNullPtr if `dst` is null. `cols`, `rows` and entries of tables and lists are not checked.
 *
 * Overlap:
 * There is no source. Objects and rows that overlap are written one after the other.
 *
 * Exceptions:
 * - identity-element-stride (arguments): vonkLoadIdentity_ma_64f_L
 *   The least `dstElemStride` is 4: with a smaller one elements overlap.
 * - identity-count-zero (status): vonkLoadIdentity_ma_{32f,64f}_?
 *   `count` 0 is vonkErrSize.
 * - identity-past-table (reads): vonkLoadIdentity_ma_{32f,64f}_P
 *   Entries past the end of the table are read, `rows` * `count` - `cols` of them if there are more rows in all than
 *   columns. They are written through, so they must be valid.
 */

/** dst(n) = identity matrix; `rows` by `cols` float, n below count; S2, strided elements. Exception:
 * identity-count-zero. */
VonkStatus vonkLoadIdentity_ma_32f_S(float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
    int32_t cols, int32_t rows, uint32_t count);
/** dst(n) = identity matrix; `rows` by `cols` float, n below count; PS2, one pointer per element position, strided
 * objects. Exceptions: identity-count-zero, identity-past-table. */
VonkStatus vonkLoadIdentity_ma_32f_P(float *const *dst, int32_t dstShift, int32_t dstObjStride, int32_t cols,
    int32_t rows, uint32_t count);
/** dst(n) = identity matrix; `rows` by `cols` float, n below count; LS2, one pointer per object, strided elements.
 * Exception: identity-count-zero. */
VonkStatus vonkLoadIdentity_ma_32f_L(float *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride,
    int32_t cols, int32_t rows, uint32_t count);

/** dst(n) = identity matrix; `rows` by `cols` double, n below count; S2, strided elements. Exception:
 * identity-count-zero. */
VonkStatus vonkLoadIdentity_ma_64f_S(double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
    int32_t cols, int32_t rows, uint32_t count);
/** dst(n) = identity matrix; `rows` by `cols` double, n below count; PS2, one pointer per element position, strided
 * objects. Exceptions: identity-count-zero, identity-past-table. */
VonkStatus vonkLoadIdentity_ma_64f_P(double *const *dst, int32_t dstShift, int32_t dstObjStride, int32_t cols,
    int32_t rows, uint32_t count);
/** dst(n) = identity matrix; `rows` by `cols` double, n below count; LS2, one pointer per object, strided elements.
 * Exceptions: identity-element-stride, identity-count-zero. */
VonkStatus vonkLoadIdentity_ma_64f_L(double *const *dst, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride,
    int32_t cols, int32_t rows, uint32_t count);

#ifdef __cplusplus
}
#endif

#endif
