"""Docstrings of the functions that are ufunc objects. numpy puts the signature before each."""

_OUT = """out : ndarray, optional
    Where the result is stored. It may overlap the operands: what would be overwritten is copied before. One case is a
    `ValueError`, after which its contents are undefined: an operand itself whose objects have more dimensions than
    those of the result."""

_NOTES = """Like all ufuncs it takes ``out``, ``casting``, ``dtype`` and so on, releases the interpreter's lock, and gives no
floating-point warnings. Integers are converted to float64; complex numbers are a `TypeError`, shapes that do not fit a
`ValueError`."""


def _text(summary, parameters, returns, notes, example):
    return f"""{summary}

Parameters
----------
{parameters}
{_OUT}

Returns
-------
{returns}

Notes
-----
{notes}

{_NOTES}

Examples
--------
{example}
"""


DOCUMENTATION = {
    "matmul": _text(
        "Products of matrices.",
        "x1 : (..., m, k) array_like\n    The first factors.\nx2 : (..., k, n) array_like\n    The second factors.",
        "(..., m, n) ndarray\n    The products.",
        "Sums run with `k` ascending. Products and sums are rounded one by one, float64 in the 80-bit type. Vectors are\n"
        "the business of `matvec` and `dot`.",
        ">>> a = np.array([[[1.0, 2.0], [3.0, 4.0]], [[0.0, 1.0], [1.0, 0.0]]])\n>>> vonkk3.matmul(a, a[0])\n"
        "array([[[ 7., 10.],\n        [15., 22.]],\n<BLANKLINE>\n       [[ 3.,  4.],\n        [ 1.,  2.]]])"),
    "matvec": _text(
        "Products of matrices and vectors.",
        "x1 : (..., m, n) array_like\n    Matrices.\nx2 : (..., n) array_like\n    Vectors.",
        "(..., m) ndarray\n    The products.",
        "One matrix and many vectors broadcast: ``matvec(a, points)`` transforms all points.",
        ">>> turn = np.array([[0.0, -1.0], [1.0, 0.0]])\n>>> vonkk3.matvec(turn, [[1.0, 0.0], [0.0, 2.0]])\n"
        "array([[ 0.,  1.],\n       [-2.,  0.]])"),
    "gaxpy": _text(
        "A matrix times a vector, plus a vector: ``x1 @ x2 + x3``.",
        "x1 : (..., m, n) array_like\n    Matrices.\nx2 : (..., n) array_like\n    Vectors that are multiplied.\n"
        "x3 : (..., m) array_like\n    Vectors that are added.",
        "(..., m) ndarray\n    The sums.",
        "float64 adds `x3` to the unrounded product.",
        ">>> vonkk3.gaxpy([[2.0, 0.0], [0.0, 3.0]], [1.0, 1.0], [10.0, 20.0])\narray([12., 23.])"),
    "saxpy": _text(
        "A constant times a vector, plus a vector: ``x1 * x2 + x3``, element by element.",
        "x1 : array_like\n    Constants.\nx2 : array_like\n    What is multiplied.\nx3 : array_like\n    What is added.",
        "ndarray\n    The sums, of the shape that all three broadcast to.",
        "float32 rounds the product before the sum; float64 keeps it in the 80-bit type. A constant that differs from\n"
        "element to element is a call of the library for each of them.",
        ">>> vonkk3.saxpy(2.0, [1.0, 2.0, 3.0], [10.0, 20.0, 30.0])\narray([12., 24., 36.])"),
    "transpose": _text(
        "Transposed copies of matrices.",
        "x : (..., m, n) array_like\n    Matrices.",
        "(..., n, m) ndarray\n    A copy, in contrast to numpy's transposed view.",
        "Elements are copied bit by bit.",
        ">>> vonkk3.transpose([[1.0, 2.0, 3.0], [4.0, 5.0, 6.0]])\narray([[1., 4.],\n       [2., 5.],\n       [3., 6.]])"),
    "cross": _text(
        "Cross products in three dimensions.",
        "x1 : (..., 3) array_like\n    The first vectors.\nx2 : (..., 3) array_like\n    The second vectors.",
        "(..., 3) ndarray\n    The products.",
        "In float64 products and difference stay in the 80-bit type, and the component is rounded.",
        ">>> vonkk3.cross([1.0, 0.0, 0.0], [[0.0, 1.0, 0.0], [0.0, 0.0, 1.0]])\n"
        "array([[ 0.,  0.,  1.],\n       [ 0., -1.,  0.]])"),
    "dot": _text(
        "Dot products of vectors.",
        "x1 : (..., n) array_like\n    The first vectors.\nx2 : (..., n) array_like\n    The second vectors.",
        "(...) ndarray or scalar\n    The sums of the products of corresponding elements; 0 for `n` 0.",
        "Unlike `numpy.dot`, both operands are stacks of vectors.",
        ">>> vonkk3.dot([[1.0, 2.0], [3.0, 4.0]], [1.0, 1.0])\narray([3., 7.])"),
    "trace": _text(
        "Sums of diagonals.",
        "x : (..., n, n) array_like\n    Square matrices.",
        "(...) ndarray or scalar\n    The sums; 0 for `n` 0.",
        "float64 adds in the 80-bit type.",
        ">>> vonkk3.trace([[1.0, 2.0], [3.0, 4.0]])\n5.0"),
    "det": _text(
        "Determinants.",
        "x : (..., n, n) array_like\n    Square matrices.",
        "(...) ndarray or scalar\n    The determinants; 1 for `n` 0. A singular matrix has one of 0, as far as rounding lets it.",
        "Up to `n` 6 a polynomial in the elements, without a tolerance: the error is within a few roundings of the sum of\n"
        "the magnitudes of all products. float64 works in the 80-bit type; float32 in float, or in the 80-bit type for a\n"
        "matrix with elements above 2**20 or, but for zeros, below 2**-20 in magnitude. From `n` 7 on by elimination,\n"
        "scaled by powers of two; a pivot within rounding, 2**-23 in float32 and 2**-52 in float64, makes the determinant\n"
        "0.",
        ">>> vonkk3.det([[[2.0, 0.0], [0.0, 3.0]], [[1.0, 2.0], [2.0, 4.0]]])\narray([6., 0.])"),
    "add": _text(
        "Sums, element by element.",
        "x1 : array_like\n    The first summands.\nx2 : array_like\n    The second summands.",
        "ndarray or scalar\n    The sums, of the shape that both broadcast to.",
        "One rounded operation for each element; float64 adds in the 80-bit type, and is slower than `numpy.add`.",
        ">>> vonkk3.add([1.0, 2.0], 10.0)\narray([11., 12.])"),
    "subtract": _text(
        "Differences, element by element.",
        "x1 : array_like\n    What is subtracted from.\nx2 : array_like\n    What is subtracted.",
        "ndarray or scalar\n    The differences, of the shape that both broadcast to.",
        "As `add`.",
        ">>> vonkk3.subtract([1.0, 2.0], 10.0)\narray([-9., -8.])"),
    "multiply": _text(
        "Matrices or vectors times constants, element by element.",
        "x1 : array_like\n    The first factors.\nx2 : array_like\n    The second factors.",
        "ndarray or scalar\n    The products, of the shape that both broadcast to.",
        "The library multiplies by a constant. Where neither factor is one, each element is a call: right, and slow.\n"
        "Matrix products are `matmul`.",
        ">>> vonkk3.multiply([[1.0, 2.0], [3.0, 4.0]], 2.0)\narray([[2., 4.],\n       [6., 8.]])"),
}
