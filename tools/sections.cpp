// What the header and the reference pages say about the rules of each family. See catalogue.h.
#include "catalogue.h"

namespace catalogue {
namespace {
constexpr std::array sectionTable = std::to_array<Section>({
    {"vector-constant", "vector", "Vector and constant", "sum, difference and product of each element and a constant",
     R"(vonkAdd:           dst(n, j) = src(n, j) + val
vonkSub vc, vac:   dst(n, j) = src(n, j) - val
vonkSub cv, cva:   dst(n, j) = val - src(n, j)
vonkMul:           dst(n, j) = src(n, j) * val

for j below `len` and each object n; one rounded operation per element. The vector stands first among the parameters
in all groups. `val` has the type of the elements. The arithmetic of an element depends neither on the length nor on
the alignment of operands.

Status: vonkErrNullPtr if `src` or `dst` is null; vonkErrSize if `len` is 0; vonkErrNullPtr if a table or list entry
is null: in single forms in `P` entry by entry just before each element, earlier elements being final; in `P` and
`PS2` of arrays all entries of all tables before anything else, even at `count` 0; in `L` and `LS2` when the object's
turn comes, earlier objects being complete. `count` 0 then gives vonkOk with nothing written.)",
     R"(Overlap is not checked. `dst` may be `src` (in place): each element is read before it is written. With any other
overlap elements are read and written one by one in ascending order, so that a source element which `dst` has
overwritten by then is read as overwritten.)"},
    {"vector-vector", "vector", "Vector and vector", "element-wise sum and difference of vectors",
     R"(vonkAdd: dst(n, j) = src1(n, j) + src2(n, j)
vonkSub: dst(n, j) = src1(n, j) - src2(n, j)

for j below `len` and each object n; one rounded operation per element. Groups: `vv` two vectors, `vav` an array and
a vector, `vva` a vector and an array (vonkSub only), `vava` two arrays. A single vector serves all objects. The
arithmetic of an element depends neither on the length nor on the alignment of operands.

Status: vonkErrNullPtr if `src1`, `src2` or `dst` is null; vonkErrSize if `len` is 0; vonkErrNullPtr if a table or
list entry is null: in single forms in `P` entry by entry just before each element, earlier elements being final; in
`P` and `PS2` of arrays all entries of all tables before anything else, even at `count` 0; in `L` and `LS2` when the
object's turn comes, earlier objects being complete. `count` 0 then gives vonkOk with nothing written.)",
     R"(Overlap is not checked. `dst` may be any source (in place): each element is read before it is written. With any other
overlap elements are read and written one by one in ascending order, so that a source element which `dst` has
overwritten by then is read as overwritten.)"},
    {"saxpy", "vector", "Saxpy", "a vector times a constant, plus a vector",
     R"(dst(n, j) = src1(n, j) * val + src2(n, j)

for j below `len` and each object n. The product is rounded before the sum in `32f` and never fused with it; in `64f`
it stays in 80 bits and the sum is rounded. Groups: `vv` two vectors, `vav` an array and a vector, `vva` a vector and
an array, `vava` two arrays. A single vector serves all objects. The arithmetic of an element depends neither on the
length nor on the alignment of operands.

Status: vonkErrNullPtr if `src1`, `src2` or `dst` is null; vonkErrSize if `len` is 0; vonkErrNullPtr if a table or
list entry is null: in single forms in `P` entry by entry just before each element, earlier elements being final; in
`P` and `PS2` of arrays all entries of all tables before anything else, even at `count` 0; in `L` and `LS2` when the
object's turn comes, earlier objects being complete. `count` 0 then gives vonkOk with nothing written.)",
     R"(Overlap is not checked. `dst` may be any source (in place): each element is read before it is written. With any other
overlap elements are read and written one by one in ascending order, so that a source element which `dst` has
overwritten by then is read as overwritten.)"},
    {"linear-combination", "vector", "Linear combination", "linear combination of two vectors",
     R"(dst(n, j) = src1(n, j) * val1 + src2(n, j) * val2

for j below `len` and each object n. In `32f` both products and the sum are rounded; in `64f` they stay in 80 bits,
and the result is rounded. There is no shortcut for a constant of 0: with an infinity it gives a NaN. Groups: `vv`
two vectors, `vav` an array and a vector, `vava` two arrays. A single vector serves all objects. The arithmetic of an
element depends neither on the length nor on the alignment of operands.

Status: vonkErrNullPtr if `src1`, `src2` or `dst` is null; vonkErrSize if `len` is 0; vonkErrNullPtr if a table or
list entry is null: in single forms in `P` entry by entry just before each element, earlier elements being final; in
`P` and `PS2` of arrays all entries of all tables before anything else, even at `count` 0; in `L` and `LS2` when the
object's turn comes, earlier objects being complete. `count` 0 then gives vonkOk with nothing written.)",
     R"(Overlap is not checked. `dst` may be any source (in place): each element is read before it is written. With any other
overlap elements are read and written one by one in ascending order, so that a source element which `dst` has
overwritten by then is read as overwritten.)"},
    {"dot-product", "vector", "Dot product", "sum of the products of corresponding elements",
     R"(dst[n] = sum over j of src1(n, j) * src2(n, j)

for j below `len`. `dst` is a plain pointer in every layout: one element for `vv`, `count` packed elements for
arrays. Groups: `vv` two vectors, `vav` an array against one vector, `vava` two arrays.

With p0, p1, ... for the products, the sum is ((p0 + p1) + p2) + ..., from +0 at run-time length and from p0 at fixed
length. In `32f` products and sums are rounded one by one and never fused; in `64f` they stay in 80 bits, and the
result is rounded.

Status: vonkErrNullPtr if `src1`, `src2` or `dst` is null; vonkErrSize if `len` is 0; vonkErrNullPtr if a table or
list entry is null: in `P` and `PS2` all entries before anything else, even at `count` 0; in `L` and `LS2` when the
object's turn comes, earlier objects being complete. `count` 0 then gives vonkOk with nothing written.)",
     R"(Overlap is not checked. Each result is stored after its sum, object by object: where `dst` overlaps operands of later
objects, these are read as overwritten.)"},
    {"norm", "vector", "L2 norm", "Euclidean length of a vector",
     R"(dst[n] = square root of the sum over j of src(n, j) * src(n, j)

for j below `len`. `dst` is a plain pointer in every layout: one element for `v`, `count` packed elements for `va`.
Squares are added left to right from +0, rounded one by one in `32f`, in 80 bits in `64f`; the root is correctly
rounded. Squares that overflow give infinity; those of `64f` cannot in 80 bits.

Status: vonkErrNullPtr if `src` or `dst` is null; vonkErrSize if `len` is 0; vonkErrNullPtr if a table or list entry
is null: in `P` and `PS2` all entries before anything else, even at `count` 0; in `L` and `LS2` when the object's
turn comes, earlier objects being complete. `count` 0 then gives vonkOk with nothing written.)",
     R"(Overlap is not checked. Each result is stored after its sum, object by object: where `dst` overlaps later objects,
these are read as overwritten.)"},
    {"cross-product", "vector", "Cross product", "vector product in three dimensions",
     R"(dst(n)[0] = a[1] * b[2] - a[2] * b[1]
dst(n)[1] = a[2] * b[0] - a[0] * b[2]
dst(n)[2] = a[0] * b[1] - a[1] * b[0]

with a from `src1` and b from `src2`. In `32f` products and difference are rounded one by one; in `64f` they stay in
80 bits, and the component is rounded. Groups: `vv` two vectors, `vav` an array and a vector, `vva` a vector and an
array, `vava` two arrays. A single vector serves all objects.

Status: vonkErrNullPtr if `src1`, `src2` or `dst` is null; vonkErrNullPtr if a table or list entry is null: in `P`
and `PS2` all entries before anything else, even at `count` 0; in `L` and `LS2` when the object's turn comes, earlier
objects being complete. `count` 0 then gives vonkOk with nothing written.)",
     R"(Overlap is not checked. Both vectors are loaded before a component is stored, so `dst` may be either source.)"},
    {"matrix-matrix", "matrix", "Matrix and matrix", "element-wise sum and difference of matrices",
     R"(vonkAdd: dst(n, i, j) = A(n, i, j) + B(n, i, j)
vonkSub: dst(n, i, j) = A(n, i, j) - B(n, i, j)

with A(n, i, j) = src1(n, i, j), or src1(n, j, i) if the first operand carries `T`, and B alike from `src2`. A single
operand serves all objects. One rounded operation and one store per element; `64f` adds in the 80-bit type and rounds
to 64 bits. Objects, rows and columns ascend. The arithmetic of an element does not depend on the alignment of
operands.

Sizes: `cols` and `rows` are those of `dst`. A transposed operand is stored as `cols` rows of `rows` columns, in
pointer layouts too: its entry for A(i, j) is j * `rows` + i.

Status: vonkErrNullPtr if `src1`, `src2` or `dst` is null; vonkErrSize if `cols` or `rows` is 0; vonkErrNullPtr if a
table or list entry is null: in single forms in `P` element by element, earlier elements being final; in `P` and
`PS2` of arrays all entries of all tables before anything else, even at `count` 0; in `L` and `LS2` when the object's
turn comes, earlier objects being complete. `count` 0 then gives vonkOk with nothing written.)",
     R"(Overlap is not checked. `dst` may be any source (in place) unless that is read transposed: each element is read
before it is written. With any other overlap elements are read and written one by one in ascending order, so that a
source element which `dst` has overwritten by then is read as overwritten.)"},
    {"matrix-constant", "matrix", "Matrix times constant", "each element times a constant",
     R"(dst(n, i, j) = A(n, i, j) * `val`

with A(n, i, j) = src(n, i, j), or src(n, j, i) in `mTc` and `maTc`. One rounded product and one store per element;
`64f` multiplies in the 80-bit type and rounds to 64 bits. A `val` of 0 multiplies too: NaN and infinity give NaN,
and zeros keep the sign of the product. The arithmetic of an element does not depend on the alignment of operands.

Sizes: `cols` and `rows` are those of `dst`. A transposed source is stored as `cols` rows of `rows` columns.

Status: vonkErrNullPtr if `src` or `dst` is null; vonkErrSize if `cols` or `rows` is 0; vonkErrNullPtr if a table or
list entry is null: in single forms in `P` element by element, earlier elements being final; in `P` and `PS2` of
arrays all entries of both tables before anything else, even at `count` 0; in `L` and `LS2` when the object's turn
comes, earlier objects being complete. `count` 0 then gives vonkOk with nothing written.)",
     R"(Overlap is not checked. In `mc` and `mac` `dst` may be `src` (in place): each element is read before it is written.
In `mTc` and `maTc` it may not. With any other overlap elements are read and written one by one in ascending order,
so that a source element which `dst` has overwritten by then is read as overwritten.)"},
    {"transpose", "matrix", "Transpose", "rows and columns exchanged",
     R"(dst(n, j, i) = src(n, i, j)

for i below `rows` and j below `cols`, which are the sizes of the SOURCE. Elements are copied bit by bit, without
arithmetic: signalling NaNs and signs of zeros are kept.

Status: vonkErrNullPtr if `src` or `dst` is null; vonkErrSize if `cols` or `rows` is 0; vonkErrNullPtr if a table or
list entry is null: in single forms in `P` element by element, earlier elements being final; in `P` and `PS2` of
arrays all `cols` * `rows` entries of both tables before anything else, even at `count` 0; in `L` and `LS2` when the
object's turn comes, earlier objects being complete. `count` 0 then gives vonkOk with nothing written.)",
     R"(Overlap is not checked, and a call in place does not transpose: elements are copied one by one along the rows of the
source, so the upper triangle has overwritten the lower one by the time that is read.)"},
    {"trace", "matrix", "Trace", "sum of the diagonal",
     R"(dst(n) = sum over i of src(n, i, i)

for i below `order`, ascending. `dst` is a packed block of one result per object in every layout.

Sums:
- `32f` of fixed size in the standard layout and `L`: from the first element on, with one store.
- `32f` otherwise: from +0; `dst` is set to +0 and every partial sum is stored to it.
- `64f`: from +0 in the 80-bit type; `dst` is set to +0 and every partial sum is stored to it, rounded.

A diagonal of negative zeros thus gives -0 in the first and +0 in all others.

Status: vonkErrNullPtr if `src` or `dst` is null; vonkErrSize if `order` is 0; vonkErrNullPtr if a table or list
entry is null: in `m` in `P` as the sum reaches it, the partial sum being in `dst`; in `L` and `LS2` when the
object's turn comes, earlier results being complete. `count` 0 then gives vonkOk with nothing written.)",
     R"(Overlap is not checked. Where `dst` is set to +0 first, a diagonal element that it overlaps is lost.)"},
    {"frobenius-norm", "matrix", "Frobenius norm", "root of the sum of the squares of all elements",
     R"(dst(n) = root of the sum of src(n, i, j)^2

for i below `rows` and j below `cols`. `dst` is a packed block of one result per object in every layout. Products and
sums are rounded one by one, in `64f` to the 80-bit type, and nothing is scaled: squares overflow and underflow.

Sums start at +0 and run along the rows in `m`, down the columns in `ma`. The root of `32f` is correctly rounded.

In SIMD lanes, with pij the square of element (i, j) and cj the sum of column j, the sum s is
- 3x3: cj = (p0j + p1j) + p2j; s = (c0 + c1) + c2
- 4x4: cj = (p0j + p1j) + (p2j + p3j); s = (c0 + c2) + (c1 + c3)
- 5x5: cj = ((p0j + p1j) + (p2j + p3j)) + p4j; s = ((c0 + c2) + (c1 + c3)) + c4
- 6x6: cj = ((p0j + p1j) + (p2j + p3j)) + (p4j + p5j), of columns 4 and 5 ((p0j + p2j) + p4j) + ((p1j + p3j) + p5j);
  s = ((c0 + c2) + (c1 + c3)) + (c4 + c5)

Status: vonkErrNullPtr if `src` or `dst` is null; vonkErrSize if `cols` or `rows` is 0; vonkErrNullPtr if a table or
list entry is null: in `P` and `PS2` all of the table before anything else, even at `count` 0; in `L` and `LS2` when
the object's turn comes, earlier results being complete. `count` 0 then gives vonkOk with nothing written.)",
     R"(Overlap is not checked. A result is stored when its matrix has been read, so `dst` may be an element of it.)"},
    {"matrix-product", "product", "Matrix by matrix", "product of two matrices",
     R"(dst(n, i, j) = sum over k of A(i, k) B(k, j)

with A(i, k) = src1(n, i, k), or src1(n, k, i) if the first operand carries `T`, and B alike from `src2`. A single
operand serves all objects. Products and sums are rounded one by one, k ascending, and never fused.

Sizes: `src1Cols` and `src1Rows`, `src2Cols` and `src2Rows`. For square matrices they mean what they say. Otherwise
the size checks take a transposed operand as it is stored and the loops take it as it enters the product: the result
has `src1Rows` rows and `src2Cols` columns and sums `src2Rows` terms. vonkErrSize unless `src1Cols` = `src2Rows`
(`mm`, `mam`), `src1Rows` = `src2Cols` (both transposed), `src1Rows` = `src2Rows` (first transposed), `src1Cols` =
`src2Cols` (second transposed); and if `src1Rows`, `src1Cols` or one size of `src2` is 0: `src2Cols` in `mm` and with
the first transposed alone, else `src2Rows`.

Status: vonkErrNullPtr if `src1`, `src2` or `dst` is null; vonkErrSize, see above; vonkErrNullPtr if a table or list
entry is null: in single forms in `P` entry by entry as the sums reach it, earlier elements and the partial sum being
stored; in `P` and `PS2` of arrays all of `src1`, `src2` and `dst` before anything else, even at `count` 0; in `L`
and `LS2` when the object's turn comes. `count` 0 then gives vonkOk.

Sums:
- `32f` of fixed size in the standard layout and `L`: in SIMD lanes, from the first product on, with one store per
  element.
- `32f` otherwise: from +0; `dst` is set to +0 and every partial sum is stored to it.
- `64f`: from +0 in the 80-bit type; `dst` is set to +0 and every partial sum is stored to it, rounded. In the
  standard layout and `S2` the sum itself stays unrounded to the end; in `P`, `PS2`, `L` and `LS2` it is rounded to
  64 bits at every step.)",
     R"(Overlap is not checked, and where partial sums are stored to memory they destroy an operand that `dst` overlaps. The
forms in SIMD lanes (`32f` of fixed size in the standard layout and `L`) load B first and read A row by row, so some
calls in place are right: with `dst` = `src1` where A is not transposed (3x3 to 5x5), with `dst` = `src2` where B
need not be read again (not in `mm`, `mTm` of 5x5, nor in `mmT`, `mTmT` of 6x6). A single operand must never overlap
a `dst` that is an array. With disjoint operands the order of objects, elements and stores may be another, with the
same results.)"},
    {"matrix-vector", "product", "Matrix by vector", "product of a matrix and a vector",
     R"(dst(n, i) = sum over k of A(i, k) src2(n, k)

with A(i, k) = src1(n, i, k), or src1(n, k, i) in the groups with `T`. A single operand serves all objects. Products
and sums are rounded one by one and never fused.

Sizes: `src1Cols` and `src1Rows`, `src2Len`. There are `src1Rows` results of `src1Cols` terms, transposed or not.
vonkErrSize if `src1Cols` or `src1Rows` is 0, or unless `src1Cols` = `src2Len` (with `T`: `src1Rows` = `src2Len`).

Status: vonkErrNullPtr if `src1`, `src2` or `dst` is null; vonkErrSize, see above; vonkErrNullPtr if a table or list
entry is null: in single forms in `P` entry by entry as the sums reach it, earlier elements and the partial sum being
stored; in `P` and `PS2` of arrays all of `src1`, `src2` and `dst` before anything else, even at `count` 0; in `L`
and `LS2` when the object's turn comes. `count` 0 then gives vonkOk.

Sums run as those of matrix by matrix, but for `32f` of fixed size in the standard layout and `L`, which sum in SIMD
lanes in orders of their own. With p0, p1, ... for the products of row i:
- 3x3: (p0 + p1) + p2
- 4x4: (p0 + p2) + (p1 + p3); transposed (p0 + p1) + (p2 + p3)
- 5x5: ((p0 + p1) + p4) + (p2 + p3), but the LAST element, if not transposed, is ((p0 + p2) + p4) + (p1 + p3)
- 6x6: ((p0 + p2) + p4) + ((p1 + p3) + p5); transposed ((p0 + p1) + (p2 + p3)) + (p4 + p5))",
     R"(Overlap is not checked. `32f` of fixed size in the standard layout and `L` loads the vector before the first store,
so `dst` may be `src2` (in place); elsewhere the partial sums that are stored to memory destroy it. With disjoint
operands the order of objects, elements and stores may be another, with the same results.)"},
    {"gaxpy", "product", "Gaxpy", "a matrix times a vector, plus a vector",
     R"(dst(n, i) = (sum over k of src1(i, k) src2(n, k)) + src3(n, i)

for i below `rows` and k below `cols`: a single matrix, a vector or an array of vectors. The sum is finished first,
as in matrix by vector, and `src3` is added last. `64f` in the standard layout and `S2` adds it to the unrounded sum.

Status: vonkErrNullPtr if `src1`, `src2`, `src3` or `dst` is null; vonkErrSize if `cols` or `rows` is 0;
vonkErrNullPtr if a table or list entry is null: of `v` in `P` those of `src3` and `dst` before an element, those of
its terms as the sum reaches them, earlier elements and the partial sum being stored; of `va` in `P` and `PS2` all
four tables before anything else, even at `count` 0; in `L` and `LS2` when the object's turn comes. `count` 0 then
gives vonkOk.)",
     R"(Overlap is not checked. `32f` of fixed size in the standard layout and `L` loads both vectors before it stores, so
`dst` may be `src2` or `src3`; elsewhere the partial sums that are stored to memory destroy what `dst` overlaps. With
disjoint operands the order of objects, elements and stores may be another, with the same results.)"},
    {"copy", "copy", "Copy", "from any of three layouts into any of three layouts",
     R"(dst(n, j) = src(n, j)          (`va`, of `len` elements)
dst(n, i, j) = src(n, i, j)    (`ma`, of `rows` by `cols`)

Two letters at the end of a name say where the elements come from and where they go: `S` strided (elsewhere `S2`),
`P` strided pointer (`PS2`), `L` strided list (`LS2`). Nothing is converted. Objects, rows and elements are copied in
ascending order, one element at a time. A `float` is copied bit by bit; a `double` goes through the 80-bit unit, so
that a signalling NaN arrives as a quiet one.

Status: vonkErrNullPtr if `src` or `dst` is null; vonkErrSize if `len` is 0. Entries of tables and lists are not
checked. `count` 0 gives vonkOk.)",
     R"(Overlap is not checked. `dst` may be `src` (in place), with the same strides or tables. With any other overlap
elements are copied one by one in ascending order, so that an element of `src` which `dst` has overwritten by then is
read as overwritten.)"},
    {"extract", "copy", "Extract", "gathering into one dense block",
     R"(`dst` is a plain pointer and is filled in ascending order, without gaps and strides:

- `v`, `va`: dst[n * `len` + j] = src(n, j)
- `m`, `ma`: dst[(n * `rows` + i) * `cols` + j] = src(n, i, j)
- `mT`, `maT`: dst[(n * `rows` + i) * `cols` + j] = src(n, j, i): `rows` and `cols` are those of the result

A `float` is copied bit by bit; a `double` goes through the 80-bit unit, so that a signalling NaN arrives as a quiet
one. There is no standard layout, no `maT` of `S2`, and no `mT` of `S2` in `64f`. vonkExtract_va of `S2` is
vonkExtract_m of `S2` under a second name: an array of strided vectors lies like the rows of one strided matrix.

Status: vonkErrNullPtr if `src` or `dst` is null; vonkErrSize if `len`, `cols` or `rows` is 0. Entries of tables and
lists are not checked.)",
     R"(Overlap is not checked. Elements are copied one by one in ascending order, so that an element of `src` which `dst`
has overwritten by then is read as overwritten.)"},
    {"identity", "copy", "LoadIdentity", "identity matrices",
     R"(For each object n and each row i, in ascending order: columns 0 to `cols` - 1 of the row become 0, then column n *
`rows` + i becomes 1. That column does not start again with each object, so only `count` 1 makes an identity: in
later objects the ones lie past the columns of their row, wherever the strides lead, and zeros of a later row may
overwrite a one. In `P` the one of row i goes through table entry i * `cols` + n * `rows` + i, which lies past the
end of the table for all objects but the first.

One letter at the end of a name is the layout: `S` strided (elsewhere `S2`), `P` strided pointer (`PS2`), `L` strided
list (`LS2`). `cols` and `rows` are signed (int32_t): with `rows` below 1 nothing is written, with `cols` below 1 the
ones are written all the same.

Strides that are too small are replaced, with no error: `dstElemStride` by the size of an element, `dstRowStride` by
`cols` times that (`S`, `L`), `dstObjStride` of `P` by the size of an element. They are compared as unsigned numbers,
so negative strides are kept.

Status: vonkErrNullPtr if `dst` is null. `cols`, `rows` and entries of tables and lists are not checked.)",
     R"(There is no source. Objects and rows that overlap are written one after the other.)"},
    {"lu-decomposition", "lu", "LU decomposition", "Gaussian elimination with partial pivoting",
     R"(vonkLUDecomp factors each matrix of `src`, `order` by `order`, into a unit lower and an upper triangular factor by
Gaussian elimination with partial pivoting. Rows are never moved: `pivots`, `order` row indices per object and packed
in every layout, says that logical row k lies in row pivots[k] of `dst`. With p the block of an object, element
(p[i], j) of `dst` is the multiplier L(i, j) for j < i and U(i, j) for j >= i; the unit diagonal of L is not stored,
and A(p[i], j) is the sum over k of L(i, k) U(k, j).

The pivot of a column is the element of largest magnitude, the first of equals. One below the singularity tolerance
2^-23 = 1.1920928955078125e-7, an absolute number and the same for both types, ends the call with vonkErrSingular; so
does a NaN in its place. Method: Golub and Van Loan, Matrix Computations, "LU with partial pivoting", the
outer-product form with row indices in place of row exchanges.

Status: vonkErrNullPtr if `src`, `pivots` or `dst` is null; vonkErrSize if `order` is 0; vonkErrNullPtr if a table
entry is null, even at `count` 0 (`P`, `PS2`), or a list entry when the object's turn comes (`L`, `LS2`); `count` 0
gives vonkOk. vonkErrSingular leaves the objects before the failing one complete, that one as far as it got (a
failure at the last pivot leaves it complete), and those after it untouched, in `dst` and in `pivots`.)",
     R"(Overlap is not checked. `dst` may be `src` (in place), with the same strides or tables. A partial overlap behaves as
the copy from `src` to `dst` that each object begins with: element by element, ascending. `pivots` must overlap
neither.)"},
    {"lu-back-substitution", "lu", "LU back substitution", "solving with the factors of an LU decomposition",
     R"(vonkLUBackSubst solves A x = b with what vonkLUDecomp left: `src1` the factors in their unpermuted rows, `pivots` the
permutation, `src2` the right-hand side b, `dst` the solution x, of `order` elements. Groups: `mv` one system; `mva`
one factored matrix with its `pivots` for `count` right-hand sides; `mava` a factored matrix and `order` pivots per
object.

Forward: x(i) = b(p[i]) - s, s the sum of A(p[i], j) x(j) over j < i. Backward, from the last row up: x(i) = (x(i) -
s) / A(p[i], i), s the sum over j > i. Sums start at 0 and run in ascending j, divisions are true divisions, and x is
its own workspace. Entries of `pivots` are trusted to be below `order`. Method: Golub and Van Loan, Matrix
Computations, "Triangular systems", the row-oriented form.

Status: vonkErrNullPtr if `src1`, `pivots`, `src2` or `dst` is null; vonkErrSize if `order` is 0; vonkErrNullPtr if a
table entry is null, even at `count` 0 (`P`, `PS2`), or a list entry when the object's turn comes (`L`, `LS2`);
`count` 0 gives vonkOk. The numbers are not checked: division by a zero pivot gives an infinity or a NaN, with
vonkOk.)",
     R"(Overlap is not checked; the sweeps read what memory holds by then. `dst` must not be `src2` unless the permutation is
the identity: x(i) is written while b(p[i]) of later rows is still needed. `pivots` must not overlap `dst`.)"},
    {"determinant", "lu", "Determinant", "determinant, by elimination or as a polynomial in the elements",
     R"(dst[n] = det src(n)

`dst` is packed in every layout: one element per object, without a stride. A singular matrix is no failure.

Run-time size: Gaussian elimination with partial pivoting in `scratch`, a workspace of `order` * `order` elements
followed by `order` 32-bit integers, at any address that suits an element; one `scratch` serves all objects of a
call, and its contents are of no use afterwards. The pivot of a column is the element of largest magnitude, the first
of equals. One below the singularity tolerance 2^-23 = 1.1920928955078125e-7 (`32f`) or 2^-52 = 2.220446049250313e-16
(`64f`), absolute numbers both, or a NaN, makes the determinant 0; so does a last pivot that is not ABOVE that. The
partial products of the pivots are stored to `dst` after every column. Method: Golub and Van Loan, Matrix
Computations, "LU with partial pivoting", the outer-product form with row indices in place of row exchanges.

Fixed size: no division, no tolerance, no `scratch`. Minors of the last two rows come first, each level of larger
minors is built on the one below, and row 0 comes last. A singular matrix gives 0 as far as rounding lets it. The
standard layout and `L` work both types in 80 bits and round once, at the result; in `S2`, `P`, `PS2` and `LS2` each
operation of `32f` is rounded to float, so that a `32f` determinant may differ in its last place between layouts.
With a(i,j) for the elements, 3x3 is
- `32f`, standard layout and `L`: (a20 a12 - a10 a22) a01 + (a21 a10 - a20 a11) a02 + (a11 a22 - a12 a21) a00
- `64f`, standard layout and `L`: (a12 a01 - a11 a02) a20 + (a11 a22 - a12 a21) a00 + (a21 a02 - a01 a22) a10
- all others: (a11 a22 - a21 a12) a00 + (a12 a20 - a22 a10) a01 + (a10 a21 - a20 a11) a02

How larger sums are grouped is not promised.

Status: vonkErrNullPtr if `src`, `scratch` or `dst` is null; vonkErrSize if `order` is 0; vonkErrNullPtr if a table
entry is null, even at `count` 0 (`P`, `PS2`), or a list entry when the object's turn comes (`L`, `LS2`), the
determinants of earlier objects being stored; `count` 0 gives vonkOk.)",
     R"(Overlap is not checked. Run-time size copies a matrix to `scratch` first, so `dst` may be an element of it; fixed
sizes read all of a matrix before they store. In arrays, `dst` must not overlap later matrices. `scratch` must
overlap nothing.)"},
    {"inverse", "lu", "Inverse", "inverse of a matrix",
     R"(dst(n) = inverse of src(n), by one of three methods, each with its own criterion for a singular matrix: what one of
them finds singular, another may invert. vonkErrSingular ends the call at once: earlier objects are complete, the
failing one and later ones untouched. The inverses of 4x4 to 6x6 are right to rounding, but not promised bit for bit.

Run-time size: the adjugate over the determinant. Determinant D and the minor m of every element come from
eliminations in `scratch`, as in vonkDet and with its tolerances: 2^-23 (`32f`), 2^-52 (`64f`). A pivot below, or a
last pivot not above, is vonkErrSingular for D and makes a minor 0. dst(q, c) = (m(c, q) (1 / D)) (+1 or -1), so the
inverse of a diagonal matrix has -0 in places. The work grows with the fifth power of `order`. `scratch` is a
workspace of `order` * `order` elements followed by `order` 32-bit integers, one for all objects. `order` 1 gives 1 /
D, which is not promised. Method: Cramer's rule.

3x3 and 4x4: D is the sum of row 0's elements times their cofactors, dst(q, c) = cofactor(c, q) r with r = 1 / D.
Singular is -1e-7 < D < 1e-7 (`32f`) or -1e-15 < D < 1e-15 (`64f`), the ends and a NaN excluded.

5x5 and 6x6: block inversion. Three columns (5x5: two) are brought to the front, the k-th such that the minor of the
first k rows on the columns chosen is largest in magnitude. The leading block and its Schur complement are inverted
as above, and each determinant is checked as above: a regular matrix whose leading block is close to singular fails.
Columns 0 to 4 are candidates. Method: Golub and Van Loan, Matrix Computations, "block elimination"; Press et al.,
Numerical Recipes, "inversion by partitioning".

Status: vonkErrNullPtr if `src`, `scratch` or `dst` is null; vonkErrSize if `order` is 0; vonkErrNullPtr if an entry
of the `src` or `dst` table is null, even at `count` 0 (`P`, `PS2`), or, at run-time size, a list entry when the
object's turn comes (`L`, `LS2`); `count` 0 gives vonkOk; vonkErrSingular, see above.)",
     R"(Overlap is not checked. Run-time size reads `src` to the end: `dst` must not overlap it. Fixed sizes read a matrix
whole before they store, except that 5x5 and 6x6 of `32f` in the standard layout and `L` leave the matrix changed
where they fail in place. In arrays, no object may overlap the result of an earlier one. `scratch` must overlap
nothing.)"},
    {"cholesky-decomposition", "cholesky", "Cholesky decomposition", "lower factor of a positive definite matrix",
     R"(vonkCholeskyDecomp factors each symmetric positive definite matrix A of `src`, `order` by `order`, into L L', L lower
triangular with a positive diagonal. `dst` gets L below the diagonal and on it the RECIPROCALS 1 / L(i, i), so that
vonkCholeskyBackSubst need not divide. Only lower triangles are read and written, with their diagonals: elements
above them, and the pointers of such positions, may be anything, and in `dst` they are left as they are.

Row by row: F(i, j) = (A(i, j) - the sum of F(i, k) F(j, k) over k < j) F(j, j) for j < i, then s = A(i, i) - the sum
of F(i, k)^2 over k < i and F(i, i) = 1 / root of s; products are subtracted one by one, k ascending. Unless s > 0
the call ends with vonkErrNotPosDef. There is no tolerance. Method: Golub and Van Loan, Matrix Computations,
"Cholesky factorization", row by row.

Rounding: `32f` rounds every operation, but takes root and reciprocal in the 80-bit type and rounds them once; in `P`
and `PS2` both are `32f` operations. `64f` in the 80-bit type, at the calling thread's precision: orders 3 to 6, also
as `order`, keep all of F unrounded and round what they store, but for `P` and `PS2`; these and all other orders read
F back from `dst`, and round a difference after its pairs of products, not after an odd last one.

Status: vonkErrNullPtr if `src` or `dst` is null; vonkErrSize if `order` is 0; vonkErrNotPosDef if a matrix is not
positive definite or a pivot is a NaN: rows before the failing one and, of that, the elements below the diagonal are
stored by then, objects before it are complete, and those after it untouched. Entries of tables and lists are not
checked; but in `L` and `LS2` an entry that is null once its shift is added gives vonkErrNullPtr when its turn comes.)",
     R"(Overlap is not checked. `dst` may be `src` (in place), with the same strides or tables. No other overlap is
supported.)"},
    {"cholesky-back-substitution", "cholesky", "Cholesky back substitution", "solving with a Cholesky factor",
     R"(vonkCholeskyBackSubst solves A x = b with what vonkCholeskyDecomp left: `src1` the factor F with the reciprocals on
its diagonal, `src2` the right-hand side b, `dst` the solution x, of `order` elements. Groups: `mv` one system; `mva`
one factor for `count` right-hand sides, with no ignored argument after `src1`, unlike the other two families of
solvers; `mava` a factor per object. Nothing above the diagonal of `src1` is read.

Forward: x(i) = (b(i) - the sum of F(i, k) x(k) over k < i) F(i, i). Backward, from the last row up: x(i) = (x(i) -
the sum of F(k, i) x(k) over k > i) F(i, i). Products are subtracted one by one, forward with k ascending, backward
with k DESCENDING; x is its own workspace. `32f` rounds every operation; `64f` is computed in the 80-bit type and
rounded where it is stored. Nothing divides. Method: Golub and Van Loan, Matrix Computations, "Triangular systems".

Status: vonkErrNullPtr if `src1`, `src2` or `dst` is null; vonkErrSize if `order` is 0; else vonkOk. Neither the
numbers nor entries of tables and lists are checked; but in `L` and `LS2` an object one of whose entries is null once
its shift is added is skipped, with no error, and the next is solved.)",
     R"(Overlap is not checked; both sweeps read what memory holds by then. `dst` may be `src2`.)"},
    {"qr-decomposition", "qr", "QR decomposition", "Householder reflectors and upper factor",
     R"(vonkQRDecomp factors each matrix of `src`, `rows` by `cols` with `rows` >= `cols`, into an orthogonal Q and an upper
triangular R by Householder reflections, column by column. `dst` gets R on and above the diagonal and below it, in
column k, reflector k: elements k + 1 and on of the vector v whose element k is 1. The reflection is I + beta v v'
with beta = -2 / (v'v), which vonkQRBackSubst recomputes. There is a reflection for each column, but none for the
last column of a square matrix. `work` is a workspace of `rows` contiguous elements in every layout, reused for every
object; its contents on entry do not matter, and on return it holds the last reflector.

For column k: s = the sum of d(i, k)^2 over i >= k. If s is below the singularity tolerance 2^-23 =
1.1920928955078125e-7 or a NaN, the call ends with vonkErrSingular: an absolute bound on the SQUARED norm, the same
for both types, so columns with elements of about 1e-4 fail; scale such data. Then alpha = d(k, k) + t, where t is
the root of s with the sign of d(k, k), minus for 0; v(i) = d(i, k) (1 / alpha); and for each column c >= k: p =
(d(k, c) + the sum of d(i, c) v(i)) beta, d(i, c) = v(i) p + d(i, c). All sums ascend. The diagonal of R has the sign
opposite to t. Method: Golub and Van Loan, Matrix Computations, "Householder QR".

Rounding: `32f` rounds every operation; the root is taken in the 80-bit type and rounded. `64f` in the 80-bit type: s
and v'v are rounded after their pairs of terms and again after an odd last one; v, beta and the elements of `dst` are
rounded, but v'v is the sum over unrounded v; nothing else is rounded.

Status: vonkErrNullPtr if `src`, `work` or `dst` is null; vonkErrSize if `cols` or `rows` is 0; vonkErrNullPtr if a
table entry is null, even at `count` 0 (`P`, `PS2`), or a list entry when the object's turn comes (`L`, `LS2`);
`count` 0 gives vonkOk. vonkErrSingular leaves the objects before the failing one complete, that one with the
reflections before the failing column, and those after it untouched. A matrix with more columns than rows always
fails so: after its last row there is nothing left.)",
     R"(Overlap is not checked. `dst` may be `src` (in place), with the same strides or tables. `work` must overlap neither.)"},
    {"qr-back-substitution", "qr", "QR back substitution", "least squares with the factors of a QR decomposition",
     R"(vonkQRBackSubst solves A x = b with what vonkQRDecomp left in `src1`, `rows` by `cols`: exactly if A is square, else
x minimises the residual. `src2` is b, of `rows` elements, `dst` is x, of `cols`. `work` is a workspace of `rows`
contiguous elements in every layout, reused for every object; on return it holds Q'b of the last object, whose
elements from `cols` on are the residual's. Groups: `mv` one system; `mva` one decomposition for `count` right-hand
sides; `mava` one per object.

b is copied to `work`. For each reflector v in turn: p = (work(k) + the sum of work(i) v(i)) beta, beta = -2 / (v'v),
work(i) = v(i) p + work(i). Then from the last row up: x(i) = (work(i) - s) / R(i, i), s the sum of R(i, j) x(j) over
j > i, from 0 with j ascending. `32f` rounds every operation; `64f` is computed in the 80-bit type and rounded where
`work` and `dst` are stored. Method: Golub and Van Loan, Matrix Computations, "Householder QR" and "Full rank least
squares".

Status: vonkErrNullPtr if `src1`, `work`, `src2` or `dst` is null; vonkErrSize if `cols` or `rows` is 0;
vonkErrNullPtr if a table entry is null, even at `count` 0 (`P`, `PS2`), or a list entry when the object's turn comes
(`L`, `LS2`); `count` 0 gives vonkOk. Of the table of `src2` the first `cols` entries are checked, though `rows` are
used. The numbers are not checked: division by a zero on the diagonal gives an infinity or a NaN, with vonkOk.)",
     R"(Overlap is not checked. `dst` may be `src2`, which is read before. `work` must not overlap `src1` or `dst`; the copy
from `src2` is made element by element, ascending.)"},
});
} // namespace

std::span<const Section> sections() { return sectionTable; }

} // namespace catalogue
