"""The functions. Those that cannot fail are ufunc objects; the others look at the status of each object."""
import numpy as np

from . import _core
from ._documentation import DOCUMENTATION

__all__ = ["LinAlgError", "add", "cho_solve", "cholesky", "cross", "det", "dot", "gaxpy", "inv", "lstsq", "lu_factor",
           "lu_solve", "matmul", "matvec", "multiply", "norm", "qr", "saxpy", "solve", "subtract", "trace", "transpose"]

_ufuncs = _core.ufuncs(DOCUMENTATION)
_failures = _core.failures

add = _ufuncs["add"]
cross = _ufuncs["cross"]
det = _ufuncs["det"]
dot = _ufuncs["dot"]
gaxpy = _ufuncs["gaxpy"]
matmul = _ufuncs["matmul"]
matvec = _ufuncs["matvec"]
multiply = _ufuncs["multiply"]
saxpy = _ufuncs["saxpy"]
subtract = _ufuncs["subtract"]
trace = _ufuncs["trace"]
transpose = _ufuncs["transpose"]

_cho_solve, _cho_solve1 = _ufuncs["_cho_solve"], _ufuncs["_cho_solve1"]
_cholesky, _frobenius, _inv, _norm = (_ufuncs[name] for name in ("_cholesky", "_frobenius", "_inv", "_norm"))
_lstsq, _lstsq1, _lu = _ufuncs["_lstsq"], _ufuncs["_lstsq1"], _ufuncs["_lu"]
_lu_solve, _lu_solve1 = _ufuncs["_lu_solve"], _ufuncs["_lu_solve1"]
_qr, _qr_r, _qr_raw = _ufuncs["_qr"], _ufuncs["_qr_r"], _ufuncs["_qr_raw"]
_solve, _solve1 = _ufuncs["_solve"], _ufuncs["_solve1"]
_solve_pos, _solve_pos1 = _ufuncs["_solve_pos"], _ufuncs["_solve_pos1"]

_SIZE = -6
_WORDS = {-10: "singular: below the tolerance, or not finite", -179: "not positive definite"}


class LinAlgError(np.linalg.LinAlgError):
    """An object of a stack could not be decomposed. The others are done.

    Attributes
    ----------
    index : tuple of int
        Where the first object that failed stands in the leading dimensions.
    failures : int
        How many failed.
    status : (...) ndarray of int32
        0 for each object that is done, -10 for a singular matrix, -179 for one that is not positive definite.
    result : ndarray or tuple of ndarray
        What the function would have returned: NaN for objects that failed.

    Examples
    --------
    >>> try:
    ...     vonkk3.inv([np.eye(3), np.zeros((3, 3)), np.eye(3)])
    ... except vonkk3.LinAlgError as error:
    ...     print(error, error.index)
    the matrix at index (1,) is singular: below the tolerance, or not finite (1 of 3 failed) (1,)
    """

    def __init__(self, message, index=(), failures=1, status=None, result=None):
        super().__init__(message)
        self.index, self.failures, self.status, self.result = index, failures, status, result

    def __reduce__(self):
        return type(self), (self.args[0], self.index, self.failures, self.status, self.result)


def _raise_first(result, status):
    """Raises for the first object whose status is not 0; returns if there is none."""
    status = np.asarray(status)
    failed = np.argwhere(status)
    if not len(failed):
        return
    index = tuple(int(i) for i in failed[0])
    code = int(status[index])
    where = f"the matrix at index {index}" if index else "the matrix"
    if code == _SIZE:
        raise ValueError(f"{where} has pivots that are not row indices")
    count = f" ({len(failed)} of {status.size} failed)" if index else ""
    raise LinAlgError(f"{where} is {_WORDS[code]}{count}", index, len(failed), status, result)


def _finish(result, states, status):
    """What a function that can fail does last."""
    if _failures() and not status:
        _raise_first(result, states)
    return (result, states) if status else result


def _vectors(a, b, vectors):
    """Is b a stack of vectors? As in numpy: if it has one dimension, or one less than a."""
    if vectors is not None:
        return bool(vectors)
    try:
        dimensions, of_a = b.ndim, a.ndim
    except AttributeError:
        dimensions, of_a = np.ndim(b), np.ndim(a)
    return dimensions == 1 or dimensions == of_a - 1


def _tall(a):
    try:
        shape = a.shape
    except AttributeError:
        shape = np.shape(a)
    if len(shape) >= 2 and shape[-2] < shape[-1]:
        rows, cols = shape[-2:]
        raise ValueError(f"the matrices have {rows} rows and {cols} columns: there must be at least as many rows")


def inv(a, out=None, *, status=False):
    """Inverses of matrices.

    Parameters
    ----------
    a : (..., n, n) array_like
        Square matrices.
    out : (..., n, n) ndarray, optional
        Where the inverses are stored. It may be `a`.
    status : bool, optional
        Return the status of each object in place of raising an exception.

    Returns
    -------
    x : (..., n, n) ndarray
        The inverses; NaN for matrices that failed.
    status : (...) ndarray of int32
        Only if asked for: 0, or -10 for a singular matrix.

    Raises
    ------
    LinAlgError
        If a matrix is singular. The others are done.
    ValueError
        If the matrices are not square.

    Notes
    -----
    Orders 3 and 4 by cofactors, 5 and 6 by blocks, all others by LU decomposition; so are matrices whose determinant is
    below the library's absolute tolerance, and those that are badly conditioned: where the largest element times that of
    the inverse is above 2**8 in float32 or 2**20 in float64 (2**6 and 2**13 in order 6). LU decomposition decides whether
    a matrix is singular, as in `solve`. One with a NaN counts as singular.

    Examples
    --------
    >>> vonkk3.inv([[[2.0, 0.0], [0.0, 4.0]], [[0.0, 1.0], [1.0, 0.0]]])
    array([[[0.5 , 0.  ],
            [0.  , 0.25]],
    <BLANKLINE>
           [[0.  , 1.  ],
            [1.  , 0.  ]]])
    """
    if out is None:
        x, states = _inv(a)
    else:
        x, states = _inv(a, out=(out, None))
    return _finish(x, states, status)


def solve(a, b, out=None, *, assume_a="gen", vectors=None, status=False):
    """Solutions x of ``a @ x = b``.

    Parameters
    ----------
    a : (..., n, n) array_like
        Matrices of coefficients.
    b : (..., n) or (..., n, k) array_like
        Right-hand sides: vectors, or matrices of `k` columns.
    out : ndarray, optional
        Where the solutions are stored. It may be `b`.
    assume_a : {"gen", "pos"}, optional
        What is known of `a`. "gen": nothing; LU decomposition with partial pivoting. "pos": symmetric and positive
        definite; Cholesky decomposition, which reads the lower triangle alone.
    vectors : bool, optional
        Whether `b` is a stack of vectors. Without it the rule of numpy 1 decides: if it has one dimension, or one less
        than `a`. Say True for one matrix and many vectors.
    status : bool, optional
        Return the status of each object in place of raising an exception.

    Returns
    -------
    x : (..., n) or (..., n, k) ndarray
        The solutions; NaN for systems that failed.
    status : (...) ndarray of int32
        Only if asked for: 0, -10 for a singular matrix, or -179 for one that is not positive definite.

    Raises
    ------
    LinAlgError
        If a matrix is singular, or with "pos" not positive definite. The others are done.
    ValueError
        If shapes do not fit, or `assume_a` is none of the two.

    Notes
    -----
    A matrix counts as singular if a pivot is below 2**-23 or a NaN, and also after its rows and columns are scaled by powers
    of two, which rounds nothing: then the bound is 2**-23 of the largest elements in float32 and 2**-48 in float64. Some
    matrices that are singular but for rounding are refused so, which `numpy.linalg.solve` takes.

    Examples
    --------
    >>> vonkk3.solve([[2.0, 0.0], [1.0, 1.0]], [4.0, 3.0])
    array([2., 1.])

    One matrix, two right-hand sides:

    >>> vonkk3.solve([[2.0, 0.0], [1.0, 1.0]], [[4.0, 3.0], [2.0, 0.0]], vectors=True)
    array([[ 2.,  1.],
           [ 1., -1.]])
    """
    one = _vectors(a, b, vectors)
    if assume_a == "gen":
        ufunc = _solve1 if one else _solve
    elif assume_a == "pos":
        ufunc = _solve_pos1 if one else _solve_pos
    else:
        raise ValueError(f'assume_a is {assume_a!r}; it must be "gen" or "pos"')
    if out is None:
        x, states = ufunc(a, b)
    else:
        x, states = ufunc(a, b, out=(out, None))
    return _finish(x, states, status)


def lu_factor(a, out=None, *, status=False):
    """LU decompositions with partial pivoting, as the library leaves them.

    Parameters
    ----------
    a : (..., n, n) array_like
        Square matrices.
    out : tuple of (..., n, n) ndarray and (..., n) ndarray of uint32, optional
        Where factors and pivots are stored. The first may be `a`; either may be None.
    status : bool, optional
        Return the status of each object in place of raising an exception.

    Returns
    -------
    (lu, pivots) : tuple
        `lu`, (..., n, n): L below the diagonal, its ones left out, and U, both in the rows of `a`, which are never moved.
        `pivots`, (..., n) of uint32: row k of the factors stands in row ``pivots[k]``. See the example. NaN, and rows in
        order, for matrices that failed.
    status : (...) ndarray of int32
        Only if asked for: 0, or -10 for a singular matrix.

    Raises
    ------
    LinAlgError
        If a matrix is singular; see `solve`. The others are done.

    See Also
    --------
    lu_solve : solves with the factors.

    Examples
    --------
    >>> a = np.array([[1.0, 2.0], [4.0, 4.0]])
    >>> lu, pivots = vonkk3.lu_factor(a)
    >>> pivots
    array([1, 0], dtype=uint32)
    >>> in_order = lu[pivots]
    >>> l, u = np.tril(in_order, -1) + np.eye(2), np.triu(in_order)
    >>> np.array_equal(l @ u, a[pivots])
    True
    """
    if out is None:
        factors, pivots, states = _lu(a)
    else:
        factors, pivots, states = _lu(a, out=(*out, None))
    return _finish((factors, pivots), states, status)


def lu_solve(lu_and_pivots, b, out=None, *, vectors=None, status=False):
    """Solutions of ``a @ x = b`` from what `lu_factor` gave.

    Parameters
    ----------
    lu_and_pivots : tuple
        Of `lu_factor`.
    b : (..., n) or (..., n, k) array_like
        Right-hand sides.
    out : ndarray, optional
        Where the solutions are stored. It may be `b`.
    vectors : bool, optional
        As in `solve`.
    status : bool, optional
        Return the status of each object in place of raising an exception.

    Returns
    -------
    x : (..., n) or (..., n, k) ndarray
        The solutions.
    status : (...) ndarray of int32
        Only if asked for: 0, or -6 for pivots that are not row indices.

    Raises
    ------
    ValueError
        If shapes do not fit, or pivots are not row indices.

    Examples
    --------
    >>> factors = vonkk3.lu_factor([[2.0, 0.0], [1.0, 1.0]])
    >>> vonkk3.lu_solve(factors, [4.0, 3.0])
    array([2., 1.])
    """
    factors, pivots = lu_and_pivots
    ufunc = _lu_solve1 if _vectors(factors, b, vectors) else _lu_solve
    if out is None:
        x, states = ufunc(factors, pivots, b)
    else:
        x, states = ufunc(factors, pivots, b, out=(out, None))
    return _finish(x, states, status)


def cholesky(a, out=None, *, status=False):
    """Lower Cholesky factors L of positive definite matrices: ``a = L @ L.T``.

    Parameters
    ----------
    a : (..., n, n) array_like
        Symmetric matrices. Only their lower triangles are read.
    out : (..., n, n) ndarray, optional
        Where the factors are stored. It may be `a`.
    status : bool, optional
        Return the status of each object in place of raising an exception.

    Returns
    -------
    l : (..., n, n) ndarray
        The factors, with zeros above the diagonal; NaN for matrices that failed.
    status : (...) ndarray of int32
        Only if asked for: 0, or -179 for a matrix that is not positive definite.

    Raises
    ------
    LinAlgError
        If a matrix is not positive definite. The others are done.

    Notes
    -----
    The library keeps the reciprocals of the diagonal; the diagonal of the result is their rounded reciprocal. To solve
    with decompositions that are needed once, ``solve(a, b, assume_a="pos")`` is faster.

    Examples
    --------
    >>> vonkk3.cholesky([[4.0, 2.0], [2.0, 5.0]])
    array([[2., 0.],
           [1., 2.]])
    """
    if out is None:
        factors, states = _cholesky(a)
    else:
        factors, states = _cholesky(a, out=(out, None))
    return _finish(factors, states, status)


def cho_solve(l, b, out=None, *, vectors=None, status=False):
    """Solutions of ``a @ x = b`` from what `cholesky` gave.

    Parameters
    ----------
    l : (..., n, n) array_like
        Lower factors. Nothing above the diagonal is read.
    b : (..., n) or (..., n, k) array_like
        Right-hand sides.
    out : ndarray, optional
        Where the solutions are stored. It may be `b`.
    vectors : bool, optional
        As in `solve`.
    status : bool, optional
        Return the status of each object in place of raising an exception.

    Returns
    -------
    x : (..., n) or (..., n, k) ndarray
        The solutions; NaN for systems that failed.
    status : (...) ndarray of int32
        Only if asked for: 0, or -179 for a factor whose diagonal is not positive.

    Raises
    ------
    LinAlgError
        If the diagonal of a factor is not positive.

    Examples
    --------
    >>> l = vonkk3.cholesky([[4.0, 2.0], [2.0, 5.0]])
    >>> vonkk3.cho_solve(l, [8.0, 8.0])
    array([1.5, 1. ])
    """
    ufunc = _cho_solve1 if _vectors(l, b, vectors) else _cho_solve
    if out is None:
        x, states = ufunc(l, b)
    else:
        x, states = ufunc(l, b, out=(out, None))
    return _finish(x, states, status)


def qr(a, mode="reduced", out=None, *, status=False):
    """QR decompositions by Householder reflections.

    Parameters
    ----------
    a : (..., m, n) array_like
        Matrices with m >= n.
    mode : {"reduced", "r", "raw"}, optional
        "reduced": Q and R. "r": R alone. "raw": the library's compact factors.
    out : ndarray or tuple of ndarray, optional
        Where the result is stored, two arrays for "reduced".
    status : bool, optional
        Return the status of each object in place of raising an exception.

    Returns
    -------
    (q, r) : tuple of (..., m, n) and (..., n, n) ndarray
        In mode "reduced": `q` has orthonormal columns and `r` is upper triangular; NaN for matrices that failed. The signs
        of the diagonal of `r` are free.
    r : (..., n, n) ndarray
        In mode "r".
    compact : (..., m, n) ndarray
        In mode "raw": R, and below it in column k the elements of the vector v of reflection k after its leading 1, with
        Q the product of all ``I - 2 v v' / (v'v)``. A square matrix has none for its last column.
    status : (...) ndarray of int32
        Only if asked for: 0, or -10 for dependent columns.

    Raises
    ------
    LinAlgError
        If columns are linearly dependent: the squared norm of what one adds to those before it is below 2**-23, and also
        after columns are scaled by powers of two, where the norm is about 2**-20 of the column's largest element in
        float32 and 2**-48 in float64. The other matrices are done.
    ValueError
        If there are more columns than rows, or `mode` is none of the three.

    Examples
    --------
    >>> q, r = vonkk3.qr([[3.0, 1.0], [4.0, 2.0]])
    >>> np.allclose(q @ r, [[3.0, 1.0], [4.0, 2.0]]), np.allclose(q.T @ q, np.eye(2))
    (True, True)
    """
    _tall(a)
    if mode == "reduced":
        q, r, states = _qr(a) if out is None else _qr(a, out=(*out, None))
        return _finish((q, r), states, status)
    if mode not in ("r", "raw"):
        raise ValueError(f'mode is {mode!r}; it must be "reduced", "r" or "raw"')
    ufunc = _qr_r if mode == "r" else _qr_raw
    result, states = ufunc(a) if out is None else ufunc(a, out=(out, None))
    return _finish(result, states, status)


def lstsq(a, b, out=None, *, vectors=None, status=False):
    """Least-squares solutions x of ``a @ x = b`` by QR decomposition.

    Parameters
    ----------
    a : (..., m, n) array_like
        Matrices with m >= n, of full rank.
    b : (..., m) or (..., m, k) array_like
        Right-hand sides.
    out : ndarray, optional
        Where the solutions are stored.
    vectors : bool, optional
        As in `solve`.
    status : bool, optional
        Return the status of each object in place of raising an exception.

    Returns
    -------
    x : (..., n) or (..., n, k) ndarray
        What minimises the Euclidean norm of ``b - a @ x``; NaN for systems that failed. Unlike `numpy.linalg.lstsq` there
        is nothing else.
    status : (...) ndarray of int32
        Only if asked for: 0, or -10 for dependent columns.

    Raises
    ------
    LinAlgError
        If columns are linearly dependent; see `qr`. The other systems are done.
    ValueError
        If there are more columns than rows, or shapes do not fit.

    Examples
    --------
    The line through (0, 1), (1, 3), (2, 5):

    >>> x = vonkk3.lstsq([[1.0, 0.0], [1.0, 1.0], [1.0, 2.0]], [1.0, 3.0, 5.0])
    >>> np.allclose(x, [1.0, 2.0])
    True
    """
    _tall(a)
    ufunc = _lstsq1 if _vectors(a, b, vectors) else _lstsq
    if out is None:
        x, states = ufunc(a, b)
    else:
        x, states = ufunc(a, b, out=(out, None))
    return _finish(x, states, status)


def norm(x, axis=-1, out=None, *, keepdims=False):
    """Euclidean norms of vectors, or Frobenius norms of matrices.

    Parameters
    ----------
    x : array_like
        Vectors or matrices.
    axis : int or tuple of two int, optional
        The axis along which vectors lie, or the two axes of matrices.
    out : ndarray, optional
        Where the norms are stored.
    keepdims : bool, optional
        Keep the axes, with length 1.

    Returns
    -------
    ndarray or scalar
        The norms; 0 for empty vectors.

    Raises
    ------
    ValueError
        If `x` does not have the axes.

    Notes
    -----
    The root of the sum of squares; nothing is scaled. Squares of float32 overflow above about 1e19 and vanish below about
    1e-23, as they do in numpy.

    Examples
    --------
    >>> vonkk3.norm([[3.0, 4.0], [0.0, 0.0]])
    array([5., 0.])
    >>> vonkk3.norm([[3.0, 4.0], [0.0, 12.0]], axis=(-2, -1))
    13.0
    """
    if isinstance(axis, tuple):
        return _frobenius(x, axes=[axis], out=out, keepdims=keepdims)
    if axis == -1 and out is None and not keepdims:
        return _norm(x)
    return _norm(x, axis=axis, out=out, keepdims=keepdims)
