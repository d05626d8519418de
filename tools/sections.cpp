// What the header and the reference pages say about each family. See catalogue.h.
#include "catalogue.h"

namespace catalogue {
namespace {
constexpr std::array sectionTable = std::to_array<Section>({
    {"vector-constant", "Vector and constant", "sum, difference and product of each element and a constant",
     R"(vonkAdd:           dst(n, j) = src(n, j) + val
vonkSub vc, vac:   dst(n, j) = src(n, j) - val
vonkSub cv, cva:   dst(n, j) = val - src(n, j)
vonkMul:           dst(n, j) = src(n, j) * val

for j below `len` and each object n; one rounded operation per element. The vector stands first among the parameters
in all groups. `val` has the type of the elements.

Status: vonkErrNullPtr if `src` or `dst` is null; vonkErrSize if `len` is 0; vonkErrNullPtr if a table or
list entry is null: in single forms in `P` entry by entry just before each element, earlier elements being final; in
`P` and `PS2` of arrays all entries of all tables ahead of everything else, even at `count` 0; in `L` and `LS2` when
the object's turn comes, earlier objects being complete. `count` 0 then gives vonkOk with nothing written.

Members that behave unlike their siblings:
- The four forms `32f` of a single vector of run-time length in the standard layout are built for length: from 11
  elements on, with a `dst` that does not overlap `src` and lies at a multiple of 4, they bring `dst` to a 16-byte
  boundary and work blocks of eight in four-lane registers. The results are those of the plain loop.
- `32f` of fixed size, standard layout and `L`: an object is loaded whole before it is stored.)",
     R"(`dst` may be `src` itself. Where it overlaps a source otherwise, elements are read and written in ascending
order, so a `dst` that runs ahead of a source sees new elements. Fixed sizes of `32f` in the standard layout and `L`
load an object whole before they store it; how 5 and 6 elements meet a partial overlap is not promised.)",
     R"(Nothing.)"},
    {"vector-vector", "Vector and vector", "element-wise sum and difference of vectors",
     R"(vonkAdd: dst(n, j) = src1(n, j) + src2(n, j)
vonkSub: dst(n, j) = src1(n, j) - src2(n, j)

for j below `len` and each object n; one rounded operation per element. Groups: `vv` two vectors, `vav` an array and
a vector, `vva` a vector and an array (vonkSub only), `vava` two arrays. A single vector serves all objects.

Status: vonkErrNullPtr if `src1`, `src2` or `dst` is null; vonkErrSize if `len` is 0; vonkErrNullPtr if a table or
list entry is null: in `vv` `P` entry by entry just before each element, earlier elements being final; in `P` and
`PS2` of arrays all entries of all tables ahead of everything else, even at `count` 0; in `L` and `LS2` when the
object's turn comes, earlier objects being complete. `count` 0 then gives vonkOk with nothing written.

Members that behave unlike their siblings:
- vonkAdd_vv_32f and vonkSub_vv_32f are built for length: from 11 elements on, with a `dst` that overlaps no source
  and lies at a multiple of 4, they bring `dst` to a 16-byte boundary and work blocks of eight in four-lane
  registers. The results are those of the plain loop, which all other calls take.
- `32f` of fixed size, standard layout and `L`, with a single operand (`vav`, `vva`): the operand is loaded once,
  ahead of all objects. Everywhere else it is read anew for each object.
- `32f` of fixed size, standard layout and `L`, but for `3x1` of `vav` and `vva`: an object is loaded whole before
  it is stored.
- vonkAdd_vv_32f_4x1 alone looks at the alignment of its operands (vonkSub_vv_32f_4x1 does not), and
  vonkSub_vava_32f_3x1 alone takes objects in blocks of four with a prefetch. Neither changes a result.)",
     R"(`dst` may be any source itself. Where it overlaps a source otherwise, elements are read and written in ascending
order, so a `dst` that runs ahead of a source sees new elements. Fixed sizes of `32f` in the standard layout and `L`
load an object whole before they store it; how 5 and 6 elements meet a partial overlap is not promised.)",
     R"(Nothing.)"},
    {"saxpy", "Saxpy", "a vector times a constant, plus a vector",
     R"(dst(n, j) = src1(n, j) * val + src2(n, j)

for j below `len` and each object n. The product is rounded before the sum in `32f` and never fused with it; in
`64f` it stays in 80 bits and the sum rounds. Groups: `vv` two vectors, `vav` an array and a vector, `vva` a vector
and an array, `vava` two arrays. A single vector serves all objects.

Status: vonkErrNullPtr if `src1`, `src2` or `dst` is null; vonkErrSize if `len` is 0; vonkErrNullPtr if a table or
list entry is null: in single forms in `P` entry by entry just before each element, earlier elements being final; in
`P` and `PS2` of arrays all entries of all tables ahead of everything else, even at `count` 0; in `L` and `LS2` when
the object's turn comes, earlier objects being complete. `count` 0 then gives vonkOk with nothing written.

Members that behave unlike their siblings:
- vonkSaxpy_vv_32f is built for length, as vonkAdd_vv_32f is, with the results of the plain loop.
- vonkSaxpy_vav_32f and vonkSaxpy_vava_32f of 4x1 and 6x1 work in lanes if `src1`, `src2`, `dst`, `src1ObjStride`
  and `dstObjStride` are all multiples of 16. `vav` then loads its single vector once, ahead of all objects;
  everywhere else it is read anew for each object. `vava` then takes `src2ObjStride` for a multiple of 16 without a
  look: it must be one.)",
     R"(`dst` may be any source itself. Where it overlaps a source otherwise, elements are read and written in ascending
order, so a `dst` that runs ahead of a source sees new elements.)",
     R"(Nothing.)"},
    {"linear-combination", "Linear combination", "linear combination of two vectors",
     R"(dst(n, j) = src1(n, j) * val1 + src2(n, j) * val2

for j below `len` and each object n. In `32f` both products and the sum round; in `64f` they stay in 80 bits, and
the result rounds. There is no shortcut for a constant of 0: with an infinity it makes a NaN. Groups: `vv` two
vectors, `vav` an array and a vector, `vava` two arrays. A single vector serves all objects.

Status: vonkErrNullPtr if `src1`, `src2` or `dst` is null; vonkErrSize if `len` is 0; vonkErrNullPtr if a table or
list entry is null: in single forms in `P` entry by entry just before each element, earlier elements being final; in
`P` and `PS2` of arrays all entries of all tables ahead of everything else, even at `count` 0; in `L` and `LS2` when
the object's turn comes, earlier objects being complete. `count` 0 then gives vonkOk with nothing written.

Members that behave unlike their siblings:
- vonkLComb_vv_32f is built for length, as vonkAdd_vv_32f is, with the results of the plain loop.
- `vav` of `32f` of fixed size, standard layout and `L`: the single vector is loaded once, ahead of all objects.
  Everywhere else it is read anew for each object.
- `32f` of 4x1 to 6x1 in the standard layout, and vonkLComb_vav_32f_4x1_L, look whether pointers and object strides
  are multiples of 16 and then move in aligned registers. That changes no result.)",
     R"(`dst` may be any source itself. Where it overlaps a source otherwise, elements are read and written in ascending
order, so a `dst` that runs ahead of a source sees new elements. Fixed sizes of `32f` in the standard layout and `L`
load an object whole before they store it; how 5 and 6 elements meet a partial overlap is not promised.)",
     R"(Nothing.)"},
    {"dot-product", "Dot product", "sum of the products of corresponding elements",
     R"(dst[n] = sum over j of src1(n, j) * src2(n, j)

for j below `len`. `dst` is a plain pointer in every layout: one element for `vv`, `count` packed elements for
arrays. Groups: `vv` two vectors, `vav` an array against one vector, `vava` two arrays.

With p0, p1, ... for the products, the sum is ((p0 + p1) + p2) + ..., from +0 at run-time length and from p0 at
fixed length. In `32f` products and sums round one by one and are never fused; in `64f` they stay in 80 bits, and
the result rounds.

Status: vonkErrNullPtr if `src1`, `src2` or `dst` is null; vonkErrSize if `len` is 0; vonkErrNullPtr if a table or
list entry is null: in `P` and `PS2` all entries ahead of everything else, even at `count` 0; in `L` and `LS2` when
the object's turn comes, earlier objects being complete. `count` 0 then gives vonkOk with nothing written.

Members that behave unlike their siblings:
- vonkDotProduct_vv_32f from 11 elements on, with `src2` at a multiple of 4, sums in lanes: one by one up to a
  16-byte boundary of `src2`, then blocks of eight in two registers X (which begins with the sum so far in lane 0)
  and Y, then with L = X + Y as (L0 + L2) + (L1 + L3), then one by one. The last bits depend on `len` and the
  alignment of `src2`.
- vonkDotProduct_vav_32f_4x1 and vonkDotProduct_vav_32f_4x1_L: (p0 + p1) + (p2 + p3).
- vonkDotProduct_vava_32f_3x1, if `src1`, `src2`, their object strides and `dst` are all multiples of 16: the first
  `count` / 4 * 4 objects are summed as (p0 + p2) + p1, those that remain left to right.
- vonkDotProduct_vav_32f_3x1_L and vonkDotProduct_vav_32f_4x1_L never test an entry.
- `64f` of run-time length, `vv` in all layouts and arrays in `L`: of an odd number of terms the sum is rounded to
  64 bits before the last.)",
     R"(Results are stored behind the sum that they are, object by object; where objects are taken four at a time (3x1 and
4x1 of `vav`, 3x1 of `vava` of `32f`, standard layout and `L`) four results are stored behind four sums. A `dst`
under operands of later objects changes those.)",
     R"(vonkDotProduct_vava_32f_3x1 on its aligned way reads the element behind each of the objects that it takes four at a
time. No other.)"},
    {"norm", "L2 norm", "Euclidean length of a vector",
     R"(dst[n] = square root of the sum over j of src(n, j) * src(n, j)

for j below `len`. `dst` is a plain pointer in every layout: one element for `v`, `count` packed elements for `va`.
Squares are added left to right from +0, rounded one by one in `32f`, in 80 bits in `64f`; the root is correctly
rounded. Squares that overflow give infinity; those of `64f` cannot in 80 bits.

Status: vonkErrNullPtr if `src` or `dst` is null; vonkErrSize if `len` is 0; vonkErrNullPtr if a table or list
entry is null: in `P` and `PS2` all entries ahead of everything else, even at `count` 0; in `L` and `LS2` when the
object's turn comes, earlier objects being complete. `count` 0 then gives vonkOk with nothing written.

Members that behave unlike their siblings:
- `32f` of fixed size in the standard layout and `L` is approximate, and its norm of a zero vector is NaN, where all
  other forms give 0. With q0, q1, ... for the squares, s is (q0 + q1) + q2; (q0 + q1) + (q2 + q3); that + q4; that
  + (q4 + q5). With r the processor's estimate of 1 / root of s, of about 12 bits, the result is s * (r * (0.5 *
  (3.0 - s * (r * r)))), each operation rounded. Method: one Newton step for the reciprocal root.
- vonkL2Norm_v_32f from 11 elements on, with `src` at a multiple of 4, sums squares in lanes as
  vonkDotProduct_vv_32f sums products.
- vonkL2Norm_va_32f_4x1_L never tests an entry.)",
     R"(Results are stored behind the sum that they are, object by object, or four by four in `va` of `32f` of fixed size in
the standard layout and `L`. A `dst` under later objects changes those.)",
     R"(Nothing.)"},
    {"cross-product", "Cross product", "vector product in three dimensions",
     R"(dst(n)[0] = a[1] * b[2] - a[2] * b[1]
dst(n)[1] = a[2] * b[0] - a[0] * b[2]
dst(n)[2] = a[0] * b[1] - a[1] * b[0]

with a from `src1` and b from `src2`. In `32f` products and difference round one by one; in `64f` they stay in 80
bits, and the component rounds. Groups: `vv` two vectors, `vav` an array and a vector, `vva` a vector and an array,
`vava` two arrays. A single vector serves all objects.

Status: vonkErrNullPtr if `src1`, `src2` or `dst` is null; vonkErrNullPtr if a table or list
entry is null: in `P` and `PS2` all entries ahead of everything else, even at `count` 0; in `L` and `LS2` when the
object's turn comes, earlier objects being complete. `count` 0 then gives vonkOk with nothing written.

Members that behave unlike their siblings:
- `vav` and `vva` of `32f` in `S2`, `P`, `PS2` and `LS2` form u v - w x as u v + (0 - w) x, and those of `64f`, in
  all layouts, as u v + (-w) x. That shows in the sign of zeros and in rounding modes other than to nearest. They
  store each component before they load what the next one needs.
- vonkCrossProduct_vava_32f_3x1 takes objects four at a time, one in each lane, with the same results.)",
     R"(Where both vectors are loaded first (all but the forms told above) `dst` may be either source.
vonkCrossProduct_vava_32f_3x1 loads four objects before it stores four.)",
     R"(Nothing.)"},
    {"matrix-matrix", "Matrix and matrix", "element-wise sum and difference of matrices",
     R"(vonkAdd: dst(n, i, j) = A(n, i, j) + B(n, i, j)
vonkSub: dst(n, i, j) = A(n, i, j) - B(n, i, j)

with A(n, i, j) = src1(n, i, j), or src1(n, j, i) if the first operand carries `T`, and B alike from `src2`. A
single operand serves all objects. One rounded operation and one store per element; `64f` adds in the 80-bit type
and rounds to 64 bits. Objects, rows and columns ascend.

Sizes: `cols` and `rows` are those of `dst`. A transposed operand is stored as `cols` rows of `rows` columns, in
pointer layouts too: its entry for A(i, j) is j * `rows` + i.

Status: vonkErrNullPtr if `src1`, `src2` or `dst` is null; vonkErrSize if `cols` or `rows` is 0; vonkErrNullPtr if a
table or list entry is null: in single forms in `P` element by element, earlier elements being final; in `P` and
`PS2` of arrays all entries of all tables ahead of everything else, even at `count` 0; in `L` and `LS2` when the
object's turn comes, earlier objects being complete. `count` 0 then gives vonkOk with nothing written.

Members that behave unlike their siblings:
- `mam` and `mamT` of `32f`, 3x3, in the standard layout and `L` load an object before they store the one ahead of
  it, and work one object at `count` 0 as they do at 1. In `L` they test the first entry of `src1` and entry
  `count` - 1 of `dst` first, at `count` 0 that is the entry ahead of the list, through which they store; then the
  entries of object n + 1 ahead of the store of object n: a null entry k leaves the objects below k - 1 complete.
  Entry 0 of `dst` is tested at no `count` but 1, and followed if null.
- `mamT` of these four walks the rows of `src2` with `src1RowStride`; `src2RowStride` is not read.
- vonkSub_mTmT_32f_6x6: row 3 of `dst` repeats row 2.
- vonkSub_maTmaT_32f_6x6 and its `L` form: element (i, j) is src1(r, c) - src2(r, c) with r and c from row i, column
  j of
      00 04 20 24 40 44
      01 05 21 25 41 45
      02 14 22 34 42 54
      02 14 22 34 42 54
      10 12 30 32 50 52
      11 13 31 33 51 53
- `mmT`, `mTm` and `mTmT` of 4x4 in `P`, both types, never test the entry at position 8 of a transposed operand's
  table: a null there is followed.
- `32f` of 3x3 and 4x4 in the standard layout and `L` loads a single operand once, ahead of all objects. All other
  forms read it anew for each object.
- Some members of `32f` look whether all rows lie at multiples of 16 bytes: 3x3 `maTm`; 4x4 `mam`, vonkAdd `mama`,
  vonkSub `mma`, `mm` (standard) and `mama` (`L`); 5x5 `mama`, vonkSub `mma` and `mam` (standard); 6x6 `mam`, and
  vonkAdd `mama` (standard). No result depends on it.)",
     R"(Nothing tests overlap. `dst` may be any source itself unless that is read transposed: each element is read before
it is written. Otherwise elements are read and written in ascending order, so a `dst` that runs ahead of a source
sees new elements; `32f` of fixed size in the standard layout and `L` loads a row or more before it stores it, and
how much is not promised.)",
     R"(`32f` of 3x3 in the standard layout and `L`: the element behind each row of `src1` in `maTm`, and of `src2` in
`mamT`, may be read; its value does not matter. Nothing else.)"},
    {"matrix-constant", "Matrix times constant", "each element times a constant",
     R"(dst(n, i, j) = A(n, i, j) * `val`

with A(n, i, j) = src(n, i, j), or src(n, j, i) in `mTc` and `maTc`. One rounded product and one store per element;
`64f` multiplies in the 80-bit type and rounds to 64 bits. A `val` of 0 multiplies too: NaN and infinity give NaN,
and zeros keep the sign of the product.

Sizes: `cols` and `rows` are those of `dst`. A transposed source is stored as `cols` rows of `rows` columns.

Status: vonkErrNullPtr if `src` or `dst` is null; vonkErrSize if `cols` or `rows` is 0; vonkErrNullPtr if a table or
list entry is null: in single forms in `P` element by element, earlier elements being final; in `P` and `PS2` of
arrays all entries of both tables ahead of everything else, even at `count` 0; in `L` and `LS2` when the object's
turn comes, earlier objects being complete. `count` 0 then gives vonkOk with nothing written.

Members that behave unlike their siblings:
- `mTc` of 4x4 in `P`, both types, never tests the entry at position 8 of its source's table: a null there is
  followed.
- `mc` in the standard layout and `mac` in the standard layout and `L`, `32f` of 4x4 to 6x6, look whether all rows
  lie at multiples of 16 bytes. No result depends on it.)",
     R"(Nothing tests overlap. In `mc` and `mac` `dst` may be `src` itself: each element is read before it is written. In
`mTc` and `maTc` it may not. A partial overlap behaves as told of vonkAdd on matrices.)",
     R"(Nothing.)"},
    {"transpose", "Transpose", "rows and columns exchanged",
     R"(dst(n, j, i) = src(n, i, j)

for i below `rows` and j below `cols`, which are the sizes of the SOURCE. Elements are moved, not worked: every bit
stays, signalling NaNs and signs of zeros included.

Status: vonkErrNullPtr if `src` or `dst` is null; vonkErrSize if `cols` or `rows` is 0; vonkErrNullPtr if a table or
list entry is null: in single forms in `P` element by element, earlier elements being final; in `P` and `PS2` of
arrays all `cols` * `rows` entries of both tables ahead of everything else, even at `count` 0; in `L` and `LS2` when
the object's turn comes, earlier objects being complete. `count` 0 then gives vonkOk with nothing written.

Members that behave unlike their siblings:
- In `P` and `PS2` of run-time size the lengths of the tables' rows are taken crosswise: element (i, j) goes from
  entry i * `rows` + j of `src` to entry j * `cols` + i of `dst`, i outermost. A square matrix is transposed; of
  others some entries are read or written twice, and the later write stays.)",
     R"(Nothing tests overlap, and a call in place is not protected: elements go one by one along the rows of the source, so
the upper triangle has overwritten the lower one by the time that is read. `32f` of 4x4 to 6x6 in the standard
layout and `L` reads more of an object first; how much is not promised.)",
     R"(In `P` and `PS2` of run-time size, of matrices that are not square: table entries behind the `cols` * `rows`th,
which are not scanned.)"},
    {"trace", "Trace", "sum of the diagonal",
     R"(dst(n) = sum over i of src(n, i, i)

for i below `order`, ascending. `dst` is a packed block of one result per object in every layout.

How sums are made:
- `32f` of fixed size in the standard layout and `L`: from the first element on, one store.
- `32f` otherwise: `dst` is set to +0, and follows every step.
- `64f`: `dst` is set to +0, the sum runs in the 80-bit type, and `dst` follows every step, rounded.

A diagonal of negative zeros thus gives -0 in the first and +0 in all others.

Status: vonkErrNullPtr if `src` or `dst` is null; vonkErrSize if `order` is 0; vonkErrNullPtr if a table or list
entry is null: in `m` in `P` as the sum reaches it, the sum so far being in `dst`; in `L` and `LS2` when the
object's turn comes, earlier results being complete. `count` 0 then gives vonkOk with nothing written.

Members that behave unlike their siblings:
- `ma` in `P` and `PS2` scans entries 0 to `order` - 1 of the table ahead of everything else, even at `count` 0,
  which is not where the diagonal lies: a null entry of the diagonal further on is followed.
- vonkTrace_m_64f and vonkTrace_m_64f_S2, of an odd `order`: the last element is added to the sum as it was stored,
  rounded to 64 bits. All others add it to the unrounded sum.)",
     R"(Nothing tests overlap. Where `dst` is set to +0 first, an element under it is lost.)", R"(Nothing.)"},
    {"frobenius-norm", "Frobenius norm", "root of the sum of the squares of all elements",
     R"(dst(n) = root of the sum of src(n, i, j)^2

for i below `rows` and j below `cols`. `dst` is a packed block of one result per object in every layout. Products
and sums are rounded one by one, in `64f` to the 80-bit type, and nothing is scaled: squares overflow and underflow.

Order of sums, and root:
- `m`: along the rows, from +0. `ma`: down the columns, from +0. True root, correctly rounded in `32f`.
- `ma` of `32f`, fixed size, in `P`, `PS2` and `LS2`: backwards, the last column first and each from the bottom.
- `32f` of fixed size, `m` in the standard layout and `ma` in the standard layout and `L`: in lanes, see below. The
  root is s * r (0.5 (3 - s (r r))) with r the processor's estimate of 1 / root(s) to about 12 bits: not correctly
  rounded, dependent on the processor, and NaN for a matrix of zeros.

In lanes, with pij the square of element (i, j) and cj the sum of column j:
- 3x3: cj = (p0j + p1j) + p2j; s = (c0 + c1) + c2
- 4x4: cj = (p0j + p1j) + (p2j + p3j); s = (c0 + c2) + (c1 + c3)
- 5x5: cj = ((p0j + p1j) + (p2j + p3j)) + p4j; s = ((c0 + c2) + (c1 + c3)) + c4
- 6x6: cj = ((p0j + p1j) + (p2j + p3j)) + (p4j + p5j), of columns 4 and 5 ((p0j + p2j) + p4j) + ((p1j + p3j) + p5j);
  s = ((c0 + c2) + (c1 + c3)) + (c4 + c5)

Status: vonkErrNullPtr if `src` or `dst` is null; vonkErrSize if `cols` or `rows` is 0; vonkErrNullPtr if a table or
list entry is null: in `P` and `PS2` all of the table ahead of everything else, even at `count` 0; in `L` and `LS2`
when the object's turn comes, earlier results being complete. `count` 0 then gives vonkOk with nothing written.

Members that behave unlike their siblings:
- `ma` of `32f`, 3x3 and 4x4, in the standard layout and `L` takes blocks of four objects, which are summed in
  another order: 3x3 (((p00 + p01) + p22) + (p02 + p10)) + ((p11 + p12) + (p20 + p21)), 4x4 (c0 + c1) + (c2 + c3).
  Objects that fill no block are summed as above: the last bit of a result may depend on `count`. All of a block is
  read before its results are written.
- In `L` these two test the four entries of a block at its start, and those of the objects behind the last block
  never: a null there is followed.
- `64f` of run-time size, but for `P` and `PS2`, rounds the sum to 64 bits ahead of the root. It overflows to
  infinity and underflows where the others do not.)",
     R"(Nothing tests overlap. A result is written when its matrix has been read, so `dst` may be an element of it.)",
     R"(Nothing.)"},
    {"matrix-product", "Matrix by matrix", "product of two matrices",
     R"(dst(n, i, j) = sum over k of A(i, k) B(k, j)

with A(i, k) = src1(n, i, k), or src1(n, k, i) if the first operand carries `T`, and B alike from `src2`. A single
operand serves all objects. Products and sums are rounded one by one, k ascending, and never fused.

Sizes: `src1Cols` and `src1Rows`, `src2Cols` and `src2Rows`. For square matrices they mean what they say. Otherwise
the tests look at a transposed operand as it is stored and the loops as it enters the product: the result has
`src1Rows` rows and `src2Cols` columns and sums `src2Rows` terms, except in vonkMul_mmT of run-time size in the
standard layout, which has `src2Rows` columns and sums `src1Cols` terms. vonkErrSize unless `src1Cols` = `src2Rows`
(`mm`, `mam`), `src1Rows` = `src2Cols` (`mma`, `mama`, and with both transposed), `src1Rows` = `src2Rows` (first
transposed), `src1Cols` = `src2Cols` (second transposed); and if `src1Rows`, `src1Cols` or one word of `src2` is 0:
`src2Cols` in `mm` and with the first transposed alone, else `src2Rows`.

Status: vonkErrNullPtr if `src1`, `src2` or `dst` is null; vonkErrSize as told; vonkErrNullPtr if a table or list
entry is null: in single forms in `P` entry by entry as the sums reach it, earlier cells and the sum so far being in
place; in `P` and `PS2` of arrays all of `src1`, `src2` and `dst` ahead of everything else, even at `count` 0; in
`L` and `LS2` when the object's turn comes. `count` 0 then gives vonkOk.

How sums are made:
- `32f` of fixed size in the standard layout and `L`, and some members beside: in lanes, from the first product on,
  one store per element.
- `32f` otherwise: from +0, and the cell follows every step.
- `64f`: from +0 in the 80-bit type, and the cell follows every step, rounded. In the standard layout and `S2` the
  sum itself stays unrounded to the end; in `P`, `PS2`, `L` and `LS2` it is rounded to 64 bits at every step.

Members that behave unlike their siblings:
- In lanes are also, of `32f`: `mam`, `mama` of 3x3, 4x4 and 5x5 and `maTm`, `mamT`, `maTmT` of 3x3 in `S2`; `mam`,
  `maTm`, `mamT` of 3x3 in `P` and `PS2`; `mam`, `maTm`, `mamT`, `maTmT` of 3x3 in `LS2`. Those in `P`, `PS2` and
  `LS2` never test a table or list entry.
- `mm`, `mmT` and `mTmT` of `32f`, 6x6, `S2` add in pairs: ((p0 + p1) + (p2 + p3)) + (p4 + p5).
- `mma` and `mama` of run-time size carry the test of the doubly transposed forms. In `mam` a `src2Cols` of 0
  passes, and nothing is written.
- The scan of the `dst` table of run-time size covers `src1Cols` * `src2Rows` entries (`src1Rows` for the first,
  `src2Cols` for the second if transposed), which need not be those that are written.)",
     R"(Nothing protects overlap: sums that are stored at every step destroy an operand under them. The forms in lanes hold
B and read A row by row, so some calls in place are right: with `dst` = `src1` where A is not transposed (3x3 to
5x5), with `dst` = `src2` where B need not be read again (not in `mm`, `mTm` of 5x5, nor in `mmT`, `mTmT` of 6x6). A
single operand is never safe under an array. Operands that are seen to lie apart may be worked quicker, with the same
results: `32f` of fixed size in `P` and rows of 3x3 and 5x5 by one matrix four at a time, packed rows of 6x6 in twos.)",
     R"(Nothing.)"},
    {"matrix-vector", "Matrix by vector", "product of a matrix and a vector",
     R"(dst(n, i) = sum over k of A(i, k) src2(n, k)

with A(i, k) = src1(n, i, k), or src1(n, k, i) in the patterns with `T`. A single operand serves all objects.
Products and sums are rounded one by one and never fused.

Sizes: `src1Cols` and `src1Rows`, `src2Len`. There are `src1Rows` results of `src1Cols` terms, transposed or not.
vonkErrSize if `src1Cols` or `src1Rows` is 0, or unless `src1Cols` = `src2Len` (with `T`: `src1Rows` = `src2Len`).

Status: vonkErrNullPtr if `src1`, `src2` or `dst` is null; vonkErrSize as told; vonkErrNullPtr if a table or list
entry is null: in single forms in `P` entry by entry as the sums reach it, earlier elements and the sum so far being
in place; in `P` and `PS2` of arrays all of `src1`, `src2` and `dst` ahead of everything else, even at `count` 0; in
`L` and `LS2` when the object's turn comes. `count` 0 then gives vonkOk.

Sums run as those of matrix by matrix, but for `32f` of fixed size in the standard layout and `L`, which are made in
lanes with orders of their own. With p0, p1, ... for the products of row i:
- 3x3: (p0 + p1) + p2
- 4x4: (p0 + p2) + (p1 + p3); transposed (p0 + p1) + (p2 + p3)
- 5x5: ((p0 + p1) + p4) + (p2 + p3), but the LAST element, if not transposed, is ((p0 + p2) + p4) + (p1 + p3)
- 6x6: ((p0 + p2) + p4) + ((p1 + p3) + p5); transposed ((p0 + p1) + (p2 + p3)) + (p4 + p5)

Members that behave unlike their siblings:
- vonkMul_mTv of 4x4 in `P`, both types, never tests the entry at position 8 of the `src1` table.)",
     R"(Nothing protects overlap. In lanes the vector is held before the first store, so `dst` may be `src2`; elsewhere sums
that are stored at every step destroy it. Operands that are seen to lie apart may be worked quicker, with the same
results: `32f` of fixed size in `P` four objects at a time, and packed vectors of 3 by one matrix.)",
     R"(Nothing.)"},
    {"gaxpy", "Gaxpy", "a matrix times a vector, plus a vector",
     R"(dst(n, i) = (sum over k of src1(i, k) src2(n, k)) + src3(n, i)

for i below `rows` and k below `cols`: a single matrix, a vector or an array of vectors. The sum is finished first,
as in matrix by vector, and `src3` is added last. `64f` in the standard layout and `S2` adds it to the unrounded
sum.

Status: vonkErrNullPtr if `src1`, `src2`, `src3` or `dst` is null; vonkErrSize if `cols` or `rows` is 0;
vonkErrNullPtr if a table or list entry is null: of `v` in `P` those of `src3` and `dst` ahead of an element, those
of its terms as the sum reaches them, earlier elements and the sum so far being in place; of `va` in `P` and `PS2`
all four tables ahead of everything else, even at `count` 0; in `L` and `LS2` when the object's turn comes. `count`
0 then gives vonkOk.)",
     R"(Nothing protects overlap. `32f` of fixed size in the standard layout and `L` holds both vectors before it stores, so
`dst` may be `src2` or `src3`; elsewhere the sum that is stored at every step destroys what lies under it. `32f` of
fixed size in `P` takes four objects at a time where operands are seen to lie apart, with the same results.)",
     R"(Nothing.)"},
    {"copy", "Copy", "from any of three layouts into any of three layouts",
     R"(dst(n, j) = src(n, j)          (`va`, of `len` elements)
dst(n, i, j) = src(n, i, j)    (`ma`, of `rows` by `cols`)

Two letters at the end of a name say where the elements come from and where they go: `S` strided (elsewhere `S2`),
`P` strided pointer (`PS2`), `L` strided list (`LS2`). Nothing is converted. Objects, rows and elements are walked
in ascending order, one element at a time. A `float` is moved as the word that it is; a `double` goes through the
80-bit unit, so that a signalling NaN arrives as a quiet one.

Status: vonkErrNullPtr if `src` or `dst` is null; vonkErrSize if `len` is 0. Entries of tables and lists are not
tested. `count` 0 gives vonkOk.

Members that behave unlike their siblings:
- vonkCopy_va_32f_PP and vonkCopy_va_64f_PP never read the `src` table. Both ends of the copy are found through the
  `dst` table: element j of object n comes from dst[j] + `srcShift` + n * `srcObjStride` and goes to dst[j] +
  `dstShift` + n * `dstObjStride`.
- `ma`: `cols` or `rows` 0 is no error; nothing is written and the status is vonkOk.)",
     R"(`dst` may be `src` itself with the same strides or tables, and all is as before. Any other overlap behaves as the
forward walk, element by element: a `dst` that runs ahead of `src` sees new elements.)",
     R"(Nothing.)"},
    {"extract", "Extract", "gathering into one dense block",
     R"(`dst` is a plain pointer and is filled in ascending order, without gaps and strides:

- `v`, `va`: dst[n * `len` + j] = src(n, j)
- `m`, `ma`: dst[(n * `rows` + i) * `cols` + j] = src(n, i, j)
- `mT`, `maT`: dst[(n * `rows` + i) * `cols` + j] = src(n, j, i): `rows` and `cols` are those of the result

A `float` is moved as the word that it is; a `double` goes through the 80-bit unit, so that a signalling NaN arrives
as a quiet one.

Status: vonkErrNullPtr if `src` or `dst` is null; vonkErrSize if `len`, `cols`, `rows` or `count` is 0. Entries of
tables and lists are not tested.

Members that behave unlike their siblings:
- vonkExtract_maT of `PS2` does not transpose: it is vonkExtract_ma of `PS2` under a second name. (vonkExtract_va of
  `S2` is vonkExtract_m of `S2` in the same way, which is what its words say.)
- vonkExtract_mT of `P`: `rows` and `cols` are those of the table, dst[j * `rows` + i] is what entry i * `cols` + j
  points to, and `srcShift` is never added.
- vonkExtract_m and vonkExtract_mT of `P` and vonkExtract_v_64f_P test no pointer, and a size of 0 gives vonkOk
  (`m`: if `cols` * `rows` is 0 in 32 bits). vonkExtract_v_32f_P has the usual tests.
- There is no standard layout, no `maT` of `S2`, and no `mT` of `S2` in `64f`.)",
     R"(Behaves as the forward walk, element by element: elements of `src` that lie under what is written already are new.)",
     R"(Nothing.)"},
    {"identity", "LoadIdentity", "identity matrices",
     R"(For each object n and each row i, in ascending order: columns 0 to `cols` - 1 of the row become 0, then column n *
`rows` + i becomes 1. That column runs on from object to object, so only `count` 1 makes an identity: in later
objects the ones fall beyond the columns of their row, on whatever lies there by the stride arithmetic, and zeros of
a later row may take a one away again. In `P` the one of row i goes through table entry i * `cols` + n * `rows` + i,
which lies beyond the table for all objects but the first.

One letter at the end of a name is the layout: `S` strided (elsewhere `S2`), `P` strided pointer (`PS2`), `L`
strided list (`LS2`). `cols` and `rows` are signed (int32_t): with `rows` below 1 nothing is written, with `cols`
below 1 the ones are written all the same.

Strides that are too small are replaced, with no error: `dstElemStride` by the size of an element, `dstRowStride` by
`cols` times that (`S`, `L`), `dstObjStride` of `P` by the size of an element. They are compared as unsigned words,
so negative strides stand.

Status: vonkErrNullPtr if `dst` is null; vonkErrSize if `count` is 0. `cols`, `rows` and entries of tables and lists
are not tested.

Members that behave unlike their siblings:
- vonkLoadIdentity_ma_64f_L takes 4 for the least `dstElemStride`: with a smaller one its elements overlap.)",
     R"(There is no source. Objects and rows that overlap are written one after the other.)",
     R"(In `P`, entries behind the table's own, `rows` * `count` - `cols` of them if there are more rows in all than
columns; and they are written through, so leave valid ones there.)"},
    {"lu-decomposition", "LU decomposition", "Gaussian elimination with partial pivoting",
     R"(vonkLUDecomp factors each matrix of `src`, `order` by `order`, into a unit lower and an upper triangular factor by
Gaussian elimination with partial pivoting. Rows are never moved: `pivots`, `order` row indices per object and
packed in every layout, tells that logical row k lies in row pivots[k] of `dst`. With p the block of an object,
element (p[i], j) of `dst` is the multiplier L(i, j) for j < i and U(i, j) for j >= i; the unit diagonal of L is not
stored, and A(p[i], j) is the sum over k of L(i, k) U(k, j).

The pivot of a column is the element of largest magnitude, the first of equals. One below 2^-23 =
1.1920928955078125e-7, an absolute number and the same for both types, ends the call with vonkErrSingular; so does a
NaN in its place. Method: Golub and Van Loan, Matrix Computations, "LU with partial pivoting", the outer-product
form with row indices in place of row exchanges.

Status: vonkErrNullPtr if `src`, `pivots` or `dst` is null; vonkErrSize if `order` is 0; vonkErrNullPtr if a table
entry is null, even at `count` 0 (`P`, `PS2`), or a list entry when the object's turn comes (`L`, `LS2`); `count` 0
gives vonkOk. vonkErrSingular leaves the objects before the failing one complete, that one as far as it got (a
failure at the last pivot leaves it complete), and those after it untouched, in `dst` and in `pivots`.

Members that behave unlike their siblings:
- Arrays: the test of the LAST pivot of object n looks n * `order` columns beyond it (see what is read). The last
  pivot of an object other than the first is thus not tested, and an innocent object fails if what lies there is too
  small.
- `64f`, 3x3 to 5x5: rows are updated with the unrounded quotient; run-time size and 6x6 use the stored multiplier.
- `64f`, candidates for the pivot come in pairs; if the first of a pair and the best so far are unordered (a NaN),
  3x3 to 5x5 take the candidate's position but not its value, run-time size and 6x6 take the value in `m` and value
  and position in `ma`. `32f` forms pass over a NaN.
- A zero multiplier is negated to +0 in `32f` and to -0 in `64f`.)",
     R"(`dst` may be `src` itself, with the same strides or tables. A partial overlap behaves as the copy from `src` to
`dst` that each object begins with: element by element, forward. `pivots` must overlap neither.)",
     R"(Arrays: with the last pivot of object n at row r of `dst`, one element is read n * `order` * element size bytes
behind it (standard and `L`), n * `order` * `dstElemStride` bytes behind it (`S2`, `LS2`), or through slot (r + n) *
`order` + `order` - 1 of the `dst` table (`P`, `PS2`). At the end of an array or table that lies beyond it: leave
readable memory there, and mind that its value decides over vonkErrSingular.)"},
    {"lu-back-substitution", "LU back substitution", "solving with the factors of an LU decomposition",
     R"(vonkLUBackSubst solves A x = b with what vonkLUDecomp left: `src1` the factors in their unpermuted rows, `pivots`
the permutation, `src2` the right-hand side b, `dst` the solution x, of `order` elements. Groups: `mv` one system;
`mva` one factored matrix with its `pivots` for `count` right-hand sides; `mava` a factored matrix and `order`
pivots per object.

Forward: x(i) = b(p[i]) - s, s the sum of A(p[i], j) x(j) over j < i. Backward, from the last row up: x(i) = (x(i) -
s) / A(p[i], i), s the sum over j > i. Sums grow from 0 in ascending j, divisions are true divisions, and x is its
own scratch space. Entries of `pivots` are trusted to be below `order`. Method: Golub and Van Loan, Matrix
Computations, "Triangular systems", the row-oriented form.

Status: vonkErrNullPtr if `src1`, `pivots`, `src2` or `dst` is null; vonkErrSize if `order` is 0; vonkErrNullPtr if
a table entry is null, even at `count` 0 (`P`, `PS2`), or a list entry when the object's turn comes (`L`, `LS2`);
`count` 0 gives vonkOk. The numbers are not tested: a zero pivot divides through to an infinity or a NaN with
vonkOk.

Members that behave unlike their siblings:
- `mva` in the standard layout, `S2`, `L` and `LS2` has a word behind `src1` (`src1ObjStride` or `src1Shift`) that
  is accepted and never read, so that `mva` and `mava` have one parameter list. In `L` and `LS2` `src1` is a plain
  pointer.
- `mva` of `64f` in `L`, of every size, steps through the columns of `src1` by 4 bytes: element (i, j) is the double
  at i * `src1RowStride` + j * 4. `LS2` and all other forms step by the element.
- `64f` sums: array forms of fixed size, but for `L` and `LS2`, never round them; all other forms round a sum to 64
  bits after its pairs of terms, and again after an odd last term. At 53-bit precision there is no difference but in
  range.)",
     R"(`dst` must not be `src2` unless the permutation is the identity: x(i) is written while b(p[i]) of later rows is
still needed. Nothing tests overlap; sweeps read what memory holds by then.)",
     R"(Nothing.)"},
    {"determinant", "Determinant", "determinant, by elimination or as a polynomial in the elements",
     R"(dst[n] = det src(n)

`dst` is packed in every layout: one element per object, without a stride. A singular matrix is no failure.

Run-time size: Gaussian elimination with partial pivoting in `scratch`, which is `order` * `order` elements and
behind them `order` 32-bit integers, at any address that suits an element; one `scratch` serves all objects of a
call, and its contents are of no use afterwards. The pivot of a column is the element of largest magnitude, the
first of equals. One below 2^-23 = 1.1920928955078125e-7 (`32f`) or 2^-52 = 2.220446049250313e-16 (`64f`), absolute
numbers both, or a NaN, makes the determinant 0; so does a last pivot that is not ABOVE that. The product of the
pivots grows in the result's cell, which follows every column. Method: Golub and Van Loan, Matrix Computations, "LU
with partial pivoting", the outer-product form with row indices in place of row exchanges.

Fixed size: no division, no test, no `scratch`. Minors of the last two rows come first, each level of larger minors
is built on the one below, and row 0 comes last. A singular matrix gives 0 as far as rounding lets it. The standard
layout and `L` work both types in 80 bits and round once, at the result; in `S2`, `P`, `PS2` and `LS2` each
operation of `32f` is rounded to float, so that a `32f` determinant may differ in its last place between layouts.
With a(i,j) for the elements, 3x3 is
- `32f`, standard layout and `L`:
  (a20 a12 - a10 a22) a01 + (a21 a10 - a20 a11) a02 + (a11 a22 - a12 a21) a00
- `64f`, standard layout and `L`:
  (a12 a01 - a11 a02) a20 + (a11 a22 - a12 a21) a00 + (a21 a02 - a01 a22) a10
- all others:
  (a11 a22 - a21 a12) a00 + (a12 a20 - a22 a10) a01 + (a10 a21 - a20 a11) a02
and how larger sums are grouped is not promised.

Status: vonkErrNullPtr if `src`, `scratch` or `dst` is null; vonkErrSize if `order` is 0; vonkErrNullPtr if a table
entry is null, even at `count` 0 (`P`, `PS2`), or a list entry when the object's turn comes (`L`, `LS2`), the
determinants of earlier objects being in place; `count` 0 gives vonkOk.

Members that behave unlike their siblings:
- `64f` of run-time size keeps the magnitude of the best pivot so far as a float: of candidates that agree in that
  precision, its rounding decides.
- Arrays of run-time size go on behind a pivot that is too small: the 0 is still multiplied by the last pivot, such
  as it is then, and may become -0, or NaN if that is infinite.
- vonkDet_m of run-time size in `P` tests table entries one by one as it fills `scratch`.)",
     R"(Run-time size copies a matrix to `scratch` first, so `dst` may lie in it; fixed sizes read all of it before they
store. In arrays, `dst` must not lie in matrices that are yet to come. `scratch` must overlap nothing.)",
     R"(Nothing.)"},
    {"inverse", "Inverse", "inverse of a matrix",
     R"(dst(n) = inverse of src(n), by one of three methods, each with its own test for a singular matrix: what one of them
finds singular, another may invert. vonkErrSingular ends the call at once: earlier objects are complete, the failing
one and later ones untouched.

Run-time size: the adjugate over the determinant. Determinant D and the minor m of every element come from
eliminations in `scratch`, as in vonkDet and with its tolerances: 2^-23 (`32f`), 2^-52 (`64f`). A pivot below, or a
last pivot not above, is vonkErrSingular for D and makes a minor 0. dst(q, c) = (m(c, q) (1 / D)) (+1 or -1), so the
inverse of a diagonal matrix has -0 in places. The work grows with the fifth power of `order`. `scratch` is `order`
* `order` elements and behind them `order` 32-bit integers, one for all objects. `order` 1 gives 1 / D, which is not
promised. Method: Cramer's rule.

3x3 and 4x4: D is the sum of row 0's elements times their cofactors, dst(q, c) = cofactor(c, q) r with r = 1 / D.
Singular is -1e-7 < D < 1e-7 (`32f`) or -1e-15 < D < 1e-15 (`64f`), the ends and a NaN excluded.

5x5 and 6x6: block inversion. Three columns (5x5: two) are brought to the front, the k-th such that the minor of the
first k rows on the columns chosen is largest in magnitude. The leading block and its Schur complement are inverted
as above, and each determinant is tested as above: a regular matrix whose leading block is close to singular fails.
Columns 0 to 4 are candidates. Method: Golub and Van Loan, Matrix Computations, "block elimination"; Press et al.,
Numerical Recipes, "inversion by partitioning".

Status: vonkErrNullPtr if `src`, `scratch` or `dst` is null; vonkErrSize if `order` is 0; vonkErrNullPtr if an entry
of the `src` or `dst` table is null, even at `count` 0 (`P`, `PS2`), or, at run-time size, a list entry when the
object's turn comes (`L`, `LS2`); `count` 0 gives vonkOk; vonkErrSingular as told.

Members that behave unlike their siblings:
- `32f` of fixed size in the standard layout and `L` makes r from the processor's estimate, x, and one Newton step:
  x + x - (D x) x in 3x3, x + x - D (x x) in the others.
- Of these, 3x3 and 4x4 find only a D of exactly 0 singular: one of 1e-30 gives huge numbers.
- Of these, 5x5 and 6x6 work through `dst`: a failure of the second block leaves it partly written. In 6x6, column 5
  is a candidate as well: where row 0 is zero but for column 5, all other 6x6 forms find a regular matrix singular.
- Lists of fixed size: in `32f` `L` no entry is ever tested; in `64f` `L` and in `LS2` all of them are, ahead of the
  first object.
- vonkInvert_m of run-time size in `P` tests table entries one by one as it fills `scratch`.
- 4x4 to 6x6, and r of the forms that estimate it, are right to rounding, but not promised bit for bit.)",
     R"(Run-time size reads `src` to the end: `dst` must not overlap it. Fixed sizes read a matrix whole before they store,
except that 5x5 and 6x6 of `32f` in the standard layout and `L` leave the matrix changed where they fail in place.
In arrays, no object may lie under the result of an earlier one. `scratch` must overlap nothing.)",
     R"(Nothing.)"},
    {"cholesky-decomposition", "Cholesky decomposition", "lower factor of a positive definite matrix",
     R"(vonkCholeskyDecomp factors each symmetric positive definite matrix A of `src`, `order` by `order`, into L L', L
lower triangular with a positive diagonal. `dst` gets L below the diagonal and on it the RECIPROCALS 1 / L(i, i), so
that vonkCholeskyBackSubst need not divide. Only lower triangles are read and written, with their diagonals:
elements above them, and the pointers of such positions, may be anything, and in `dst` they stay.

Row by row: F(i, j) = (A(i, j) - the sum of F(i, k) F(j, k) over k < j) F(j, j) for j < i, then s = A(i, i) - the
sum of F(i, k)^2 over k < i and F(i, i) = 1 / root of s; products are taken off one by one, k ascending. Unless s >
0 the call ends with vonkErrNotPosDef. There is no tolerance. Method: Golub and Van Loan, Matrix Computations,
"Cholesky factorization", row by row.

Rounding: `32f` rounds every operation, but takes root and reciprocal in the 80-bit type and rounds them once; in
`P` and `PS2` both are `32f` operations. `64f` in the 80-bit type, at the calling thread's precision: orders 3 to 6,
also as `order`, keep all of F unrounded and round what they store, but for `P` and `PS2`; these and all other
orders read F back from `dst`, and round a difference behind its pairs of products, not behind an odd last one.

Status: vonkErrNullPtr if `src` or `dst` is null; vonkErrSize if `order` is 0, or `count` is; vonkErrNotPosDef if a
matrix is not positive definite, with a NaN in its pivot or not: rows before the failing one and, of that, the
elements below the diagonal are stored by then, objects before it are complete, and those after it untouched.
Entries of tables and lists are not tested; but in `L` and `LS2` an entry that is null WITH its shift gives
vonkErrNullPtr when its turn comes.

Members that behave unlike their siblings:
- Arrays: `count` 0 is vonkErrSize. With its top bit set nothing is done and vonkOk returned, but in `P` and `PS2`,
  where it is a very large number.
- Orders 3 to 6, also as `order`, in `S2` and `LS2`: element strides count in whole elements; bits below are
  dropped.
- `64f`, order 3 and 4, but for `P` and `PS2`: a NaN passes as the very first pivot. F(0, 0) and F(1, 0) are stored,
  and the call fails at the second.)",
     R"(`dst` may be `src` itself, with the same strides or tables. No other overlap is supported.)", R"(Nothing.)"},
    {"cholesky-back-substitution", "Cholesky back substitution", "solving with a Cholesky factor",
     R"(vonkCholeskyBackSubst solves A x = b with what vonkCholeskyDecomp left: `src1` the factor F with the reciprocals on
its diagonal, `src2` the right-hand side b, `dst` the solution x, of `order` elements. Groups: `mv` one system;
`mva` one factor for `count` right-hand sides; `mava` a factor per object. Nothing above the diagonal of `src1` is
read.

Forward: x(i) = (b(i) - the sum of F(i, k) x(k) over k < i) F(i, i). Backward, from the last row up: x(i) = (x(i) -
the sum of F(k, i) x(k) over k > i) F(i, i). Products are taken off one by one, forward with k ascending, backward
with k DESCENDING; x is its own scratch space. `32f` rounds every operation; `64f` is worked in the 80-bit type and
rounded where it is stored. Nothing divides. Method: Golub and Van Loan, Matrix Computations, "Triangular systems".

Status: vonkErrNullPtr if `src1`, `src2` or `dst` is null; vonkErrSize if `order` is 0, or `count` is; else vonkOk.
Neither the numbers nor entries of tables and lists are tested; but in `L` and `LS2` an object one of whose entries
is null WITH its shift is passed over, without a word, and the next is worked.

Members that behave unlike their siblings:
- Arrays: `count` 0 is vonkErrSize; with its top bit set nothing is done and vonkOk returned. In `S2` and `LS2` the
  same goes for the top bit of `order`.
- `mva` has no word behind `src1` that its matrix does not need, as the other two families of solvers have.)",
     R"(`dst` may be `src2` itself. Nothing tests overlap; both ways read what memory holds by then.)", R"(Nothing.)"},
    {"qr-decomposition", "QR decomposition", "Householder reflectors and upper factor",
     R"(vonkQRDecomp factors each matrix of `src`, `rows` by `cols` with `rows` >= `cols`, into an orthogonal Q and an upper
triangular R by Householder reflections, column by column. `dst` gets R on and above the diagonal and below it, in
column k, reflector k: elements k + 1 and on of the vector v whose element k is 1. The reflection is I + beta v v'
with beta = -2 / (v'v), which vonkQRBackSubst reckons anew. There is a reflection for each column, but none for the
last column of a square matrix. `work` is a block of `rows` elements in every layout, used for every object anew;
what it holds before does not matter, and on return it holds the last reflector.

For column k: s = the sum of d(i, k)^2 over i >= k. If s is below 2^-23 = 1.1920928955078125e-7 or a NaN, the call
ends with vonkErrSingular: an absolute bound on the SQUARED norm, the same for both types, so columns with elements
of about 1e-4 fail; scale such data. Then alpha = d(k, k) + t, where t is the root of s with the sign of d(k, k),
minus for 0; v(i) = d(i, k) (1 / alpha); and for each column c >= k: p = (d(k, c) + the sum of d(i, c) v(i)) beta,
d(i, c) = v(i) p + d(i, c). All sums ascend. The diagonal of R has the sign opposite to t. Method: Golub and Van
Loan, Matrix Computations, "Householder QR".

Rounding: `32f` rounds every operation; the root is taken in the 80-bit type and rounded. `64f` in the 80-bit type:
s and v'v are rounded behind their pairs of terms and again behind an odd last one; v, beta and the elements of
`dst` are rounded, but v'v is the sum over unrounded v; nothing else is rounded.

Status: vonkErrNullPtr if `src`, `work` or `dst` is null; vonkErrSize if `cols` or `rows` is 0; vonkErrNullPtr if a
table entry is null, even at `count` 0 (`P`, `PS2`), or a list entry when the object's turn comes (`L`, `LS2`);
`count` 0 gives vonkOk. vonkErrSingular leaves the objects before the failing one complete, that one with the
reflections before the failing column, and those after it untouched. A matrix with more columns than rows always
fails so: after its last row there is nothing left.)",
     R"(`dst` may be `src` itself, with the same strides or tables. `work` must overlap neither.)", R"(Nothing.)"},
    {"qr-back-substitution", "QR back substitution", "least squares with the factors of a QR decomposition",
     R"(vonkQRBackSubst solves A x = b with what vonkQRDecomp left in `src1`, `rows` by `cols`: exactly if A is square, else
x minimises the residual. `src2` is b, of `rows` elements, `dst` is x, of `cols`. `work` is a block of `rows`
elements in every layout, used for every object anew; on return it holds Q'b of the last object, whose elements from
`cols` on are the residual's. Groups: `mv` one system; `mva` one decomposition for `count` right-hand sides; `mava`
one per object.

b is copied to `work`. For each reflector v in turn: p = (work(k) + the sum of work(i) v(i)) beta, beta = -2 /
(v'v), work(i) = v(i) p + work(i). Then from the last row up: x(i) = (work(i) - s) / R(i, i), s the sum of R(i, j)
x(j) over j > i, grown from 0 with j ascending. `32f` rounds every operation; `64f` is worked in the 80-bit type and
rounded where `work` and `dst` are stored. Method: Golub and Van Loan, Matrix Computations, "Householder QR" and
"Full rank least squares".

Status: vonkErrNullPtr if `src1`, `work`, `src2` or `dst` is null; vonkErrSize if `cols` or `rows` is 0;
vonkErrNullPtr if a table entry is null, even at `count` 0 (`P`, `PS2`), or a list entry when the object's turn
comes (`L`, `LS2`); `count` 0 gives vonkOk. Of the table of `src2` the first `cols` entries are tested, though
`rows` are used. The numbers are not tested: a zero on the diagonal divides through to an infinity or a NaN with
vonkOk.

Members that behave unlike their siblings:
- `mva` in the standard layout, `S2`, `L` and `LS2` has a word behind `src1` (`src1ObjStride` or `src1Shift`) that
  is accepted and never read, so that `mva` and `mava` have one parameter list. In `L` and `LS2` `src1` is a plain
  pointer.
- `mva` of `64f` in `L`, of every size, steps through the columns of `src1` by 4 bytes: element (i, j) is the double
  at i * `src1RowStride` + j * 4.
- `mava` of `64f` in `L`, of every size, reads the reflectors where they are, but R(i, j) at 8 * j + i + 1 -
  `src1RowStride` bytes behind the object. Neither form solves the system, unless `cols` is 1 (`mva`) or the data
  lie so. `LS2` and all other forms follow their strides.
- vonkQRBackSubst_mv_32f copies b in blocks of eight from 11 rows on, where `work` does not overlap it.)",
     R"(`dst` may be `src2`, which is read before. `work` must not overlap `src1` or `dst`; the copy from `src2` runs
forward, element by element.)",
     R"(`mava` of `64f` in `L`: what lies at the places told above, up to a row ahead of the object.)"},
});
} // namespace

std::span<const Section> sections() { return sectionTable; }

} // namespace catalogue
