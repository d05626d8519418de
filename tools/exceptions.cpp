// The table of exceptions, and which functions its rows are about. See exceptions.h.
#include "exceptions.h"
#include "patterns.h"

#include <algorithm>
#include <stdexcept>

namespace catalogue {
namespace {

using enum ExceptionClass;

constexpr std::array exceptionTable = std::to_array<Exception>({
    // ---- Vectors element by element ---------------------------------------------------------------------------------
    {"vc-whole-object", "vector-constant", overlap,
     "vonk{Add_vc,Sub_vc,Sub_cv,Mul_vc}_32f_?x1 vonk{Add_vac,Sub_vac,Sub_cva,Mul_vac}_32f_?x1{,_L}",
     "An object is loaded whole before it is stored. Of 5 and 6 elements, what a partial overlap shows is not "
     "promised."},

    {"vv-single-loaded-once", "vector-vector", overlap, "vonk{Add_vav,Sub_vav,Sub_vva}_32f_?x1{,_L}",
     "The single vector is loaded once, before all objects; a `dst` that overlaps it changes nothing for later "
     "objects. "
     "All other forms load it again for each object."},
    {"vv-whole-object", "vector-vector", overlap,
     "vonk{Add,Sub}_{vv,vava}_32f_?x1 vonk{Add,Sub}_vava_32f_?x1_L "
     "vonk{Add_vav,Sub_vav,Sub_vva}_32f_{4x1,5x1,6x1}{,_L}",
     "An object is loaded whole before it is stored. Of 5 and 6 elements, what a partial overlap shows is not "
     "promised."},
    {"vv-blocks-of-four", "vector-vector", overlap, "vonkSub_vava_32f_3x1",
     "Works in blocks of four objects. Where `dst` overlaps sources of later objects of the same block, what these see "
     "is not promised."},

    {"saxpy-third-stride", "saxpy", arguments, "vonkSaxpy_vava_32f_{4x1,6x1}",
     "If `src1`, `src2`, `dst`, `src1ObjStride` and `dstObjStride` are all multiples of 16, `src2ObjStride` must be "
     "one, "
     "too. This is not checked."},
    {"saxpy-single-loaded-once", "saxpy", overlap, "vonkSaxpy_vav_32f_{4x1,6x1}",
     "If `src1`, `src2`, `dst`, `src1ObjStride` and `dstObjStride` are all multiples of 16, the single vector is "
     "loaded "
     "once, before all objects. Otherwise, and in all other forms, it is loaded again for each object."},

    {"lcomb-single-loaded-once", "linear-combination", overlap, "vonkLComb_vav_32f_?x1{,_L}",
     "The single vector is loaded once, before all objects; a `dst` that overlaps it changes nothing for later "
     "objects. "
     "All other forms load it again for each object."},
    {"lcomb-whole-object", "linear-combination", overlap,
     "vonkLComb_{vv,vava}_32f_?x1 vonkLComb_vava_32f_?x1_L vonkLComb_vav_32f_{4x1,5x1,6x1}{,_L}",
     "An object is loaded whole before it is stored. Of 5 and 6 elements, what a partial overlap shows is not "
     "promised."},

    // ---- Products and norm of vectors -------------------------------------------------------------------------------
    {"dot-blocks-of-eight", "dot-product", arithmetic, "vonkDotProduct_vv_32f",
     "From 11 elements on, with `src2` at a multiple of 4 bytes, the sum runs in SIMD lanes: element by element up to "
     "a "
     "16-byte boundary of `src2`; then blocks of eight in two registers of four lanes, X, which begins with the sum so "
     "far in lane 0, and Y, which begins with zeros; then, with L = X + Y, (L0 + L2) + (L1 + L3); then element by "
     "element. The last bits depend on `len` and on the alignment of `src2`."},
    {"dot-pairs", "dot-product", arithmetic, "vonkDotProduct_vav_32f_4x1{,_L}", "The sum is (p0 + p1) + (p2 + p3)."},
    {"dot-aligned-order", "dot-product", arithmetic, "vonkDotProduct_vava_32f_3x1",
     "If `src1`, `src2`, their object strides and `dst` are all multiples of 16, the sum of each object in a full "
     "block of four is (p0 + p2) + p1. Of the others it runs left to right."},
    {"dot-odd-term", "dot-product", arithmetic, "vonkDotProduct_vv_64f{,_S2,_P} vonkDotProduct_{vav,vava}_64f_L",
     "Of an odd number of terms, the sum is rounded to 64 bits before the last term is added."},
    {"dot-unchecked-entries", "dot-product", checks, "vonkDotProduct_vav_32f_{3x1,4x1}_L",
     "List entries are not checked; a null entry is followed."},
    {"dot-four-objects", "dot-product", overlap, "vonkDotProduct_vav_32f_{3x1,4x1}{,_L} vonkDotProduct_vava_32f_3x1",
     "Works in blocks of four objects: four results are stored after four sums. 3x1 in the standard layout does "
     "so only if `src1`, its object stride and `dst`, in `vava` also `src2` and its object stride, are multiples "
     "of 16."},
    {"dot-reads-next-element", "dot-product", reads, "vonkDotProduct_vava_32f_3x1",
     "If `src1`, `src2`, their object strides and `dst` are all multiples of 16, the element past the end of each "
     "object in a full block of four is read."},

    {"norm-estimate", "norm", arithmetic, "vonkL2Norm_v_32f_?x1 vonkL2Norm_va_32f_?x1{,_L}",
     "Approximate, and NaN for a zero vector, where all other forms give 0. With q0, q1, ... for the squares, s is "
     "(q0 + q1) + q2 of 3 elements, (q0 + q1) + (q2 + q3) of 4, that + q4 of 5, and ((q0 + q1) + (q2 + q3)) + (q4 + "
     "q5) "
     "of 6. With r the processor's estimate of 1 / root(s), of about 12 bits, the result is "
     "s * (r * (0.5 * (3.0 - s * (r * r)))), each operation rounded: one Newton step for the reciprocal root."},
    {"norm-blocks-of-eight", "norm", arithmetic, "vonkL2Norm_v_32f",
     "From 11 elements on, with `src` at a multiple of 4 bytes, squares are added in SIMD lanes, as "
     "vonkDotProduct_vv_32f "
     "adds products. The last bits depend on `len` and on the alignment of `src`."},
    {"norm-unchecked-entries", "norm", checks, "vonkL2Norm_va_32f_4x1_L",
     "List entries are not checked; a null entry is followed."},
    {"norm-four-objects", "norm", overlap, "vonkL2Norm_va_32f_?x1{,_L}",
     "Works in blocks of four objects: four results are stored after four sums."},

    {"cross-zero-minus", "cross-product", arithmetic, "vonkCrossProduct_{vav,vva}_32f_3x1_{S2,P,PS2,LS2}",
     "A component u v - w x is computed as u v + (0 - w) x. This shows in the sign of zeros, and in rounding modes "
     "other "
     "than to nearest."},
    {"cross-negated", "cross-product", arithmetic, "vonkCrossProduct_{vav,vva}_64f_3x1{,_S2,_P,_PS2,_L,_LS2}",
     "A component u v - w x is computed as u v + (-w) x. This shows in the sign of zeros, and in rounding modes other "
     "than to nearest."},
    {"cross-by-component", "cross-product", overlap,
     "vonkCrossProduct_{vav,vva}_32f_3x1_{S2,P,PS2,LS2} vonkCrossProduct_{vav,vva}_64f_3x1{,_S2,_P,_PS2,_L,_LS2}",
     "Each component is stored before the elements for the next one are loaded."},
    {"cross-four-objects", "cross-product", overlap, "vonkCrossProduct_vava_32f_3x1",
     "Works in blocks of four objects: four are loaded before four are stored. The results are the same."},

    // ---- Matrices element by element --------------------------------------------------------------------------------
    {"sub-repeated-row", "matrix-matrix", result, "vonkSub_mTmT_32f_6x6", "Row 3 of `dst` repeats row 2."},
    {"sub-other-elements", "matrix-matrix", result, "vonkSub_maTmaT_32f_6x6{,_L}",
     "Element (i, j) is src1(r, c) - src2(r, c), with r and c the digits in column j of row i: row 0 is 00 04 20 24 40 "
     "44, row 1 is 01 05 21 25 41 45, rows 2 and 3 are 02 14 22 34 42 54, row 4 is 10 12 30 32 50 52, row 5 is 11 13 "
     "31 "
     "33 51 53."},
    {"sum-ignored-stride", "matrix-matrix", arguments, "vonk{Add,Sub}_mamT_32f_3x3{,_L}",
     "`src2RowStride` is ignored: the rows of `src2` lie `src1RowStride` apart."},
    {"sum-count-zero", "matrix-matrix", checks, "vonk{Add,Sub}_{mam,mamT}_32f_3x3{,_L}",
     "`count` 0 is not checked: one object is computed and stored, as at `count` 1."},
    {"sum-pipelined-entries", "matrix-matrix", checks, "vonk{Add,Sub}_{mam,mamT}_32f_3x3_L",
     "List entries are checked in another order: entry 0 of `src1` and entry `count` - 1 of `dst` before anything "
     "else, "
     "then the entries of object n + 1 before object n is stored. A null entry k leaves the objects below k - 1 "
     "complete. Entry 0 of `dst` is checked at `count` 1 alone, and else followed if null."},
    {"sum-position-8", "matrix-matrix", checks, "vonk{Add,Sub}_{mmT,mTm,mTmT}_{32f,64f}_4x4_P",
     "The entry at position 8 of a transposed operand's table is not checked; a null entry is followed."},
    {"sum-software-pipelined", "matrix-matrix", overlap, "vonk{Add,Sub}_{mam,mamT}_32f_3x3{,_L}",
     "Software-pipelined: object n + 1 is loaded before object n is stored."},
    {"sum-single-loaded-once", "matrix-matrix", overlap,
     "vonk{Add,Sub}_{mam,mamT,maTm,maTmT}_32f_{3x3,4x4}{,_L} vonkSub_{mma,mmaT,mTma,mTmaT}_32f_{3x3,4x4}{,_L}",
     "The single operand is loaded once, before all objects; a `dst` that overlaps it changes nothing for later "
     "objects. "
     "All other forms load it again for each object."},
    {"sum-rows-loaded-first", "matrix-matrix", overlap, "vonk{Add,Sub}_m*_32f_?x?{,_L}",
     "A row or more of an object is loaded before it is stored; how much is not promised."},
    {"sum-reads-next-element", "matrix-matrix", reads, "vonk{Add,Sub}_{maTm,mamT}_32f_3x3{,_L}",
     "The element past the end of each row of the transposed operand may be read. Its value does not matter."},
    {"sum-entry-before-list", "matrix-matrix", reads, "vonk{Add,Sub}_{mam,mamT}_32f_3x3_L",
     "At `count` 0 entry 0 of `src1` is read, and of `dst` the entry before the list, through which one object is "
     "stored."},

    {"scale-position-8", "matrix-constant", checks, "vonkMul_mTc_{32f,64f}_4x4_P",
     "The entry at position 8 of the table of `src` is not checked; a null entry is followed."},
    {"scale-rows-loaded-first", "matrix-constant", overlap, "vonkMul_{mc,mTc}_32f_?x? vonkMul_{mac,maTc}_32f_?x?{,_L}",
     "A row or more of an object is loaded before it is stored; how much is not promised."},

    {"transpose-crosswise", "transpose", result, "vonkTranspose_{m_{32f,64f}_P,ma_{32f,64f}_{P,PS2}}",
     "The lengths of the tables' rows are exchanged: element (i, j) goes from entry i * `rows` + j of `src` to entry j "
     "* "
     "`cols` + i of `dst`, i outermost. A square matrix is transposed; of others some entries are read or written "
     "twice, "
     "and the later write stays."},
    {"transpose-loaded-first", "transpose", overlap, "vonkTranspose_{m_32f_{4x4,5x5,6x6},ma_32f_{4x4,5x5,6x6}{,_L}}",
     "More than one element of an object is loaded before it is stored; how many is not promised."},
    {"transpose-reads-entries", "transpose", reads, "vonkTranspose_{m_{32f,64f}_P,ma_{32f,64f}_{P,PS2}}",
     "Of matrices that are not square, table entries past the `cols` * `rows`th are read. The checks of `ma` do not "
     "cover "
     "them."},

    {"trace-odd-order", "trace", arithmetic, "vonkTrace_m_64f{,_S2}",
     "Of an odd `order`, the last element is added to the sum as it was stored, rounded to 64 bits. All others add it "
     "to "
     "the unrounded sum."},
    {"trace-checked-entries", "trace", checks, "vonkTrace_ma_{32f,64f}{,_?x?}_{P,PS2}",
     "Entries 0 to `order` - 1 of the table are checked before anything else, even at `count` 0. That is not where the "
     "diagonal lies: a null entry of the diagonal further on is followed."},

    {"frobenius-estimate", "frobenius-norm", arithmetic, "vonkFrobNorm_{m_32f_?x?,ma_32f_?x?{,_L}}",
     "The sum s runs in SIMD lanes, in the family's order for them. The root is s * (r * (0.5 * (3.0 - s * (r * r)))) "
     "with r the processor's estimate of 1 / root(s), of about 12 bits: not correctly rounded, dependent on the "
     "processor, and NaN for a matrix of zeros."},
    {"frobenius-backwards", "frobenius-norm", arithmetic, "vonkFrobNorm_ma_32f_?x?_{P,PS2,LS2}",
     "The sum runs backwards from +0: the last column first, each column from the bottom."},
    {"frobenius-four-objects", "frobenius-norm", arithmetic, "vonkFrobNorm_ma_32f_{3x3,4x4}{,_L}",
     "Works in blocks of four objects, whose sums are 3x3 (((p00 + p01) + p22) + (p02 + p10)) + ((p11 + p12) + (p20 + "
     "p21)) and 4x4 (c0 + c1) + (c2 + c3). Objects that fill no block are summed in the order above: the last bit of a "
     "result may depend on `count`."},
    {"frobenius-rounded-sum", "frobenius-norm", arithmetic, "vonkFrobNorm_{m_64f{,_S2},ma_64f{,_S2,_L,_LS2}}",
     "The sum is rounded to 64 bits before the root. It overflows to infinity and underflows where other forms do "
     "not."},
    {"frobenius-unchecked-entries", "frobenius-norm", checks, "vonkFrobNorm_ma_32f_{3x3,4x4}_L",
     "The four list entries of a block are checked when its turn comes. Those of objects that fill no block are not "
     "checked; a null entry is followed."},
    {"frobenius-block-overlap", "frobenius-norm", overlap, "vonkFrobNorm_ma_32f_{3x3,4x4}{,_L}",
     "All of a block of four objects is read before its results are stored."},

    // ---- Products of matrices ---------------------------------------------------------------------------------------
    {"product-simd", "matrix-product", arithmetic,
     "vonkMul_{mam,mama}_32f_{3x3,4x4,5x5}_S2 vonkMul_{maTm,mamT,maTmT}_32f_3x3_S2 "
     "vonkMul_{mam,maTm,mamT}_32f_3x3_{P,PS2} vonkMul_{mam,maTm,mamT,maTmT}_32f_3x3_LS2",
     "Sums run in SIMD lanes, as in the standard layout: from the first product on, with one store per element."},
    {"product-pairs", "matrix-product", arithmetic, "vonkMul_{mm,mmT,mTmT}_32f_6x6_S2",
     "The sum is ((p0 + p1) + (p2 + p3)) + (p4 + p5), with one store per element."},
    {"product-stored-shape", "matrix-product", result, "vonkMul_mmT_{32f,64f}",
     "The loops follow the shapes as stored: the result has `src2Rows` columns and sums `src1Cols` terms."},
    {"product-size-check", "matrix-product", checks, "vonkMul_{mma,mama}_{32f,64f}{,_S2,_P,_PS2,_L,_LS2}",
     "The size check is that of the doubly transposed forms: vonkErrSize unless `src1Rows` = `src2Cols`."},
    {"product-checked-entries", "matrix-product", checks,
     "vonkMul_{mam,mamT,maTm,maTmT,mma,mmaT,mTma,mTmaT,mama,mamaT,maTma,maTmaT}_{32f,64f}_{P,PS2}",
     "Of the `dst` table `src1Cols` * `src2Rows` entries are checked (`src1Rows` for the first if `src1` is "
     "transposed, "
     "`src2Cols` for the second if `src2` is), which need not be those that are written."},
    {"product-unchecked-entries", "matrix-product", checks,
     "vonkMul_{mam,maTm,mamT}_32f_3x3_{P,PS2} vonkMul_{mam,maTm,mamT,maTmT}_32f_3x3_LS2",
     "Table and list entries are not checked; a null entry is followed."},
    {"product-no-columns", "matrix-product", status, "vonkMul_mam_{32f,64f}{,_S2,_P,_PS2,_L,_LS2}",
     "A `src2Cols` of 0 is no error: nothing is written, and the status is vonkOk."},

    {"product-vector-position-8", "matrix-vector", checks, "vonkMul_mTv_{32f,64f}_4x4_P",
     "The entry at position 8 of the table of `src1` is not checked; a null entry is followed."},

    // ---- Data movement ----------------------------------------------------------------------------------------------
    {"copy-other-table", "copy", result, "vonkCopy_va_{32f,64f}_PP",
     "The `src` table is never read. Both ends of the copy are found through the `dst` table: element j of object n "
     "comes "
     "from dst[j] + `srcShift` + n * `srcObjStride` and goes to dst[j] + `dstShift` + n * `dstObjStride`."},
    {"copy-empty-matrix", "copy", status, "vonkCopy_ma_{32f,64f}_??",
     "`cols` or `rows` 0 is no error: nothing is written, and the status is vonkOk."},

    {"extract-not-transposed", "extract", result, "vonkExtract_maT_{32f,64f}_PS2",
     "Does not transpose: it is vonkExtract_ma of `PS2` under a second name."},
    {"extract-table-shape", "extract", result, "vonkExtract_mT_{32f,64f}_P",
     "`rows` and `cols` are those of the table: dst[j * `rows` + i] is what entry i * `cols` + j points to."},
    {"extract-ignored-shift", "extract", arguments, "vonkExtract_mT_{32f,64f}_P", "`srcShift` is ignored."},
    {"extract-unchecked", "extract", checks, "vonkExtract_{m_{32f,64f},mT_{32f,64f},v_64f}_P",
     "No pointer is checked, and a size of 0 gives vonkOk; in `m` if `cols` * `rows` is 0 in 32 bits."},
    {"extract-count-zero", "extract", status,
     "vonkExtract_{va,ma}_{32f,64f}_{S2,PS2,LS2} vonkExtract_maT_{32f,64f}_{PS2,LS2}", "`count` 0 is vonkErrSize."},
    {"identity-element-stride", "identity", arguments, "vonkLoadIdentity_ma_64f_L",
     "The least `dstElemStride` is 4: with a smaller one elements overlap."},
    {"identity-count-zero", "identity", status, "vonkLoadIdentity_ma_{32f,64f}_?", "`count` 0 is vonkErrSize."},
    {"identity-past-table", "identity", reads, "vonkLoadIdentity_ma_{32f,64f}_P",
     "Entries past the end of the table are read, `rows` * `count` - `cols` of them if there are more rows in all than "
     "columns. They are written through, so they must be valid."},

    // ---- LU ---------------------------------------------------------------------------------------------------------
    {"lu-unrounded-quotient", "lu-decomposition", arithmetic, "vonkLUDecomp_{m,ma}_64f_{3x3,4x4,5x5}*",
     "Rows are updated with the unrounded quotient. Run-time size and 6x6 use the stored multiplier."},
    {"lu-nan-position", "lu-decomposition", arithmetic, "vonkLUDecomp_{m,ma}_64f_{3x3,4x4,5x5}*",
     "Candidates for the pivot come in pairs. If the first of a pair and the best so far are unordered (one is a NaN), "
     "the candidate's position is taken, but not its value. `32f` passes over a NaN."},
    {"lu-nan-value", "lu-decomposition", arithmetic, "vonkLUDecomp_m_64f{,_6x6}{,_S2,_P}",
     "Candidates for the pivot come in pairs. If the first of a pair and the best so far are unordered (one is a NaN), "
     "the candidate's value is taken, but not its position. `32f` passes over a NaN."},
    {"lu-nan-candidate", "lu-decomposition", arithmetic, "vonkLUDecomp_ma_64f{,_6x6}{,_S2,_P,_PS2,_L,_LS2}",
     "Candidates for the pivot come in pairs. If the first of a pair and the best so far are unordered (one is a NaN), "
     "the candidate's value and position are taken. `32f` passes over a NaN."},
    {"lu-zero-multiplier", "lu-decomposition", arithmetic, "vonkLUDecomp_{m,ma}_32f*",
     "A zero multiplier is negated to +0. `64f` negates it to -0."},
    {"lu-displaced-last-pivot", "lu-decomposition", status, "vonkLUDecomp_ma_*",
     "The check of the LAST pivot of object n reads the element n * `order` columns beyond it. The last pivot of an "
     "object other than the first is thus not checked, and a regular object fails if what lies there is too small."},
    {"lu-reads-displaced-pivot", "lu-decomposition", reads, "vonkLUDecomp_ma_*",
     "With the last pivot of object n at row r of `dst`, one element is read n * `order` * element size bytes after it "
     "(standard and `L`), n * `order` * `dstElemStride` bytes after it (`S2`, `LS2`), or through entry (r + n) * "
     "`order` "
     "+ `order` - 1 of the `dst` table (`P`, `PS2`). This is past the end of an array or table for its last objects: "
     "leave readable memory there, and mind that its value decides over vonkErrSingular."},

    {"lu-solve-wide-sums", "lu-back-substitution", arithmetic, "vonkLUBackSubst_{mva,mava}_64f_?x?{,_S2,_P,_PS2}",
     "Sums are never rounded. All other forms of `64f` round a sum to 64 bits after its pairs of terms, and again "
     "after "
     "an odd last term. At 53-bit precision the difference is one of range alone."},
    {"lu-solve-column-step", "lu-back-substitution", result, "vonkLUBackSubst_mva_64f{,_?x?}_L",
     "The columns of `src1` are taken to lie 4 bytes apart: element (i, j) is the double at i * `src1RowStride` + j * "
     "4. "
     "`LS2` and all other forms step by the element."},
    {"lu-solve-ignored-argument", "lu-back-substitution", arguments,
     "vonkLUBackSubst_mva_{32f,64f}{,_?x?}{,_S2,_L,_LS2}",
     "The argument after `src1` (`src1ObjStride`, in `L` and `LS2` `src1Shift`) is ignored, so that `mva` and `mava` "
     "have "
     "one parameter list. In `L` and `LS2` `src1` is a plain pointer."},

    {"det-float-search", "determinant", arithmetic, "vonkDet_{m_64f{,_S2,_P},ma_64f{,_S2,_P,_PS2,_L,_LS2}}",
     "The search keeps the magnitude of the best pivot so far as a float: between candidates that agree in that "
     "precision, its rounding decides."},
    {"det-zero-multiplied", "determinant", arithmetic, "vonkDet_ma_{32f,64f}{,_S2,_P,_PS2,_L,_LS2}",
     "After a pivot that is too small the 0 is still multiplied by the last pivot, whatever that is by then: it may "
     "become -0, or NaN if that pivot is infinite."},
    {"det-entry-by-entry", "determinant", checks, "vonkDet_m_{32f,64f}_P",
     "Table entries are checked one by one, as `scratch` is filled."},

    {"inverse-estimate", "inverse", arithmetic, "vonkInvert_{m_32f_?x?,ma_32f_?x?{,_L}}",
     "With D the determinant, r = 1 / D comes from the processor's estimate x of it and one Newton step: x + x - (D x) "
     "x in 3x3, x + x - D (x x) in the others. It is right to rounding, but not promised bit for bit."},
    {"inverse-unchecked-entries", "inverse", checks, "vonkInvert_ma_32f_?x?_L",
     "List entries are not checked; a null entry is followed."},
    {"inverse-entries-first", "inverse", checks, "vonkInvert_ma_64f_?x?_L vonkInvert_ma_{32f,64f}_?x?_LS2",
     "All list entries are checked before the first object."},
    {"inverse-entry-by-entry", "inverse", checks, "vonkInvert_m_{32f,64f}_P",
     "Table entries are checked one by one, as `scratch` is filled."},
    {"inverse-exact-zero", "inverse", status, "vonkInvert_{m_32f_{3x3,4x4},ma_32f_{3x3,4x4}{,_L}}",
     "A matrix is singular only if its determinant is exactly 0: one of 1e-30 gives huge numbers."},
    {"inverse-column-5", "inverse", status, "vonkInvert_{m_32f_6x6,ma_32f_6x6{,_L}}",
     "Column 5 is a candidate as well. Where row 0 is zero but for column 5, all other 6x6 forms find a regular matrix "
     "singular."},
    {"inverse-partly-written", "inverse", status, "vonkInvert_{m_32f_{5x5,6x6},ma_32f_{5x5,6x6}{,_L}}",
     "Intermediate results are stored in `dst`: a failure of the second block leaves it partly written."},

    // ---- Cholesky and QR --------------------------------------------------------------------------------------------
    {"cholesky-whole-strides", "cholesky-decomposition", arguments,
     "vonkCholeskyDecomp_{m_{32f,64f}{,_?x?}_S2,ma_{32f,64f}{,_?x?}_{S2,LS2}}",
     "At orders 3 to 6, in the name or as `order`, element strides count in whole elements; what exceeds a multiple of "
     "the element size is dropped."},
    {"cholesky-signed-count", "cholesky-decomposition", arguments,
     "vonkCholeskyDecomp_ma_{32f,64f}{,_?x?}{,_S2,_L,_LS2}",
     "`count` is signed: with its top bit set nothing is done, and the status is vonkOk. In `P` and `PS2` it is a very "
     "large number."},
    {"cholesky-count-zero", "cholesky-decomposition", status, "vonkCholeskyDecomp_ma_*", "`count` 0 is vonkErrSize."},
    {"cholesky-first-nan", "cholesky-decomposition", status,
     "vonkCholeskyDecomp_m_64f{,_3x3,_4x4}{,_S2} vonkCholeskyDecomp_ma_64f{,_3x3,_4x4}{,_S2,_L,_LS2}",
     "At orders 3 and 4, in the name or as `order`, a NaN passes as the very first pivot: F(0, 0) and F(1, 0) are "
     "stored, "
     "and the call fails at the second."},

    {"cholesky-solve-signed-count", "cholesky-back-substitution", arguments, "vonkCholeskyBackSubst_{mva,mava}_*",
     "`count` is signed: with its top bit set nothing is done, and the status is vonkOk."},
    {"cholesky-solve-signed-order", "cholesky-back-substitution", arguments,
     "vonkCholeskyBackSubst_{mv_{32f,64f}_S2,{mva,mava}_{32f,64f}_{S2,LS2}}",
     "`order` is signed: with its top bit set nothing is done, and the status is vonkOk."},
    {"cholesky-solve-count-zero", "cholesky-back-substitution", status, "vonkCholeskyBackSubst_{mva,mava}_*",
     "`count` 0 is vonkErrSize."},

    {"qr-solve-column-step", "qr-back-substitution", result, "vonkQRBackSubst_mva_64f{,_?x?}_L",
     "The columns of `src1` are taken to lie 4 bytes apart: element (i, j) is the double at i * `src1RowStride` + j * "
     "4. "
     "This does not solve the system, unless `cols` is 1 or the data lie so. `LS2` and all other forms follow their "
     "strides."},
    {"qr-solve-displaced-triangle", "qr-back-substitution", result, "vonkQRBackSubst_mava_64f{,_?x?}_L",
     "The reflectors are read where they are, but R(i, j) at 8 * j + i + 1 - `src1RowStride` bytes after the start of "
     "the "
     "object. This does not solve the system, unless the data lie so. `LS2` and all other forms follow their strides."},
    {"qr-solve-ignored-argument", "qr-back-substitution", arguments,
     "vonkQRBackSubst_mva_{32f,64f}{,_?x?}{,_S2,_L,_LS2}",
     "The argument after `src1` (`src1ObjStride`, in `L` and `LS2` `src1Shift`) is ignored, so that `mva` and `mava` "
     "have "
     "one parameter list. In `L` and `LS2` `src1` is a plain pointer."},
    {"qr-solve-reads-before", "qr-back-substitution", reads, "vonkQRBackSubst_mava_64f{,_?x?}_L",
     "The elements of R are read where `qr-solve-displaced-triangle` finds them, up to a row before the object."},
});

void require(bool condition, const Exception &row, std::string_view what) {
    if (!condition) throw std::logic_error("exception " + std::string(row.id) + ": " + std::string(what));
}

} // namespace

std::string_view name(ExceptionClass exceptionClass) {
    constexpr std::array<std::string_view, exceptionClasses.size()> all{"arithmetic", "result",  "arguments", "checks",
                                                                        "status",     "overlap", "reads"};
    return all[std::size_t(exceptionClass)];
}

std::string_view meaning(ExceptionClass exceptionClass) {
    switch (exceptionClass) {
    case arithmetic: return "other order of operations or other roundings; signs of zeros and NaNs";
    case result: return "another result than the name says";
    case arguments: return "an argument is ignored, restricted, or read in another way";
    case checks: return "which arguments are checked, and when; what is not checked";
    case status: return "another status, or another state after a failing call";
    case overlap: return "what operands that overlap show";
    case reads: return "what is accessed beyond the operands";
    }
    throw std::logic_error("a class of exceptions has no meaning");
}

std::span<const Exception> exceptions() { return exceptionTable; }

ExceptionIndex::ExceptionIndex(std::span<const Exception> rows, std::span<const Function> functions) {
    for (const Exception &row : rows) {
        require(!functionsById_.contains(row.id), row, "its id is not unique");
        add(row, functions);
    }
}

void ExceptionIndex::add(const Exception &row, std::span<const Function> functions) {
    for (const std::string_view mark : {"\n", "/*", "*/", "|"}) // they stand in comments of C and in tables of Markdown
        require(row.text.find(mark) == std::string_view::npos, row, "its text holds " + std::string(mark));
    std::vector<bool> isMatched(functions.size());
    for (const std::string &alternative : patterns::alternatives(row.functions)) {
        bool matchesAny = false;
        for (std::size_t k = 0; k < functions.size(); ++k) {
            if (!patterns::matches(alternative, functions[k].name)) continue;
            require(functions[k].section->id == row.section, row, functions[k].name + " is in another section");
            require(!isMatched[k], row, functions[k].name + " is matched twice");
            isMatched[k] = matchesAny = true;
        }
        require(matchesAny, row, alternative + " matches no function");
    }
    std::vector<const Function *> &matched = functionsById_[row.id];
    for (std::size_t k = 0; k < functions.size(); ++k) {
        if (!isMatched[k]) continue;
        matched.push_back(&functions[k]);
        exceptionsByName_[functions[k].name].push_back(&row);
    }
}

const std::vector<const Function *> &ExceptionIndex::functionsOf(const Exception &row) const {
    return functionsById_.at(row.id);
}

const std::vector<const Exception *> &ExceptionIndex::exceptionsOf(const Function &function) const {
    static const std::vector<const Exception *> none;
    const auto found = exceptionsByName_.find(function.name);
    return found == exceptionsByName_.end() ? none : found->second;
}

} // namespace catalogue
