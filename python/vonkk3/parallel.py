"""The functions of the package, with the objects spread over threads.

Each takes `threads` in addition, by default as many as the process may use processors. The library keeps no state and the
interpreter's lock is released, so threads only share the memory's bandwidth. Results are the same bits for any number of
threads.

Examples
--------
>>> from vonkk3 import parallel
>>> a = np.random.default_rng(1).normal(size=(10000, 3, 3)) + 4 * np.eye(3)
>>> np.array_equal(parallel.inv(a, threads=2), vonkk3.inv(a))
True
"""
import concurrent.futures
import functools
import os

import numpy as np

from . import _functions
from ._functions import _raise_first, _vectors

__all__ = ["add", "cho_solve", "cholesky", "cross", "det", "dot", "gaxpy", "inv", "lstsq", "lu_factor", "lu_solve",
           "matmul", "matvec", "multiply", "norm", "qr", "saxpy", "solve", "subtract", "trace", "transpose"]

_FEWEST = 256  # objects for each thread

_pools = {}
os.register_at_fork(after_in_child=_pools.clear)  # threads do not survive a fork


def _pool(threads):
    if threads not in _pools:
        _pools[threads] = concurrent.futures.ThreadPoolExecutor(threads, "vonkk3")
    return _pools[threads]


def _piece(array, core, leading, axis, part):
    """The part of an operand with `core` core dimensions along `axis` of the `leading` dimensions that all broadcast to."""
    own = axis - (leading - (array.ndim - core))
    if own < 0 or array.shape[own] == 1:
        return array
    return array[(slice(None),) * own + (part,)]


def _as_tuple(result):
    return result if isinstance(result, tuple) else (result,)


def _spread(function, arrays, cores, out, threads, status=None):
    """function(*arrays, out=...) by pieces.

    cores: core dimensions of each operand. status: None if the function cannot fail, or whether its states are returned.
    """
    arrays = [np.asanyarray(array) for array in arrays]
    if threads is None:
        threads = len(os.sched_getaffinity(0))
    if threads < 1:
        raise ValueError(f"threads is {threads}; there must be at least one")
    call = function if status is None else functools.partial(function, status=True)
    short = any(array.ndim < core for array, core in zip(arrays, cores))
    shape = () if short else np.broadcast_shapes(*(a.shape[:a.ndim - core] for a, core in zip(arrays, cores)))
    axis = int(np.argmax(shape)) if shape else 0
    threads = min(threads, shape[axis] if shape else 1, max(1, int(np.prod(shape)) // _FEWEST))
    if threads < 2:
        result = call(*arrays, out=out)
    else:
        result = _in_threads(call, arrays, cores, shape, axis, out, threads, status is not None)
    if status is None:
        return result
    result, states = result
    if status:
        return result, states
    _raise_first(result, states)
    return result


def _in_threads(call, arrays, cores, shape, axis, out, threads, fallible):
    def pieces(part):
        return [_piece(array, core, len(shape), axis, part) for array, core in zip(arrays, cores)]

    # What comes of no objects has the types and core dimensions of the result.
    sample = call(*pieces(slice(0, 0)))
    single = not isinstance(sample[0] if fallible else sample, tuple)
    kinds = _as_tuple(sample[0] if fallible else sample)
    given = (out if isinstance(out, tuple) else (out,)) if out is not None else (None,) * len(kinds)
    results = tuple(np.empty(shape + kind.shape[len(shape):], kind.dtype) if one is None else one
                    for kind, one in zip(kinds, given))
    for result, kind in zip(results, kinds):
        if result.shape != shape + kind.shape[len(shape):]:
            raise ValueError(f"out has the shape {result.shape}; the result has {shape + kind.shape[len(shape):]}")
    if any(np.may_share_memory(result, array) for result in results for array in arrays):
        # A piece must not overwrite what another one reads.
        arrays[:] = [array.copy() if any(np.may_share_memory(result, array) for result in results) else array
                     for array in arrays]
    states = np.empty(shape, np.int32) if fallible else None
    ends = [shape[axis] * i // threads for i in range(threads + 1)]
    parts = [slice(*pair) for pair in zip(ends, ends[1:])]

    def work(part):
        place = (slice(None),) * axis + (part,)
        into = tuple(result[place] for result in results)
        done = call(*pieces(part), out=into[0] if single else into)
        if fallible:
            states[place] = done[1]

    for future in [_pool(threads).submit(work, part) for part in parts]:
        future.result()
    result = results[0] if single else results
    return (result, states) if fallible else result


def _documented(wrapper, function):
    wrapper.__name__ = wrapper.__qualname__ = function.__name__
    wrapper.__doc__ = (f"`vonkk3.{function.__name__}` with the objects spread over `threads` threads.\n\n"
                       "Parameters are the same, and `threads`: how many, by default as many as the process may use\n"
                       "processors. Leading dimensions are split along the longest one; few objects are not split.\n")
    return wrapper


def _plain(function, *cores):
    def wrapper(*arrays, out=None, threads=None):
        if len(arrays) != len(cores):
            raise TypeError(f"{function.__name__} takes {len(cores)} operands, not {len(arrays)}")
        return _spread(function, arrays, cores, out, threads)
    return _documented(wrapper, function)


add = _plain(_functions.add, 0, 0)
subtract = _plain(_functions.subtract, 0, 0)
multiply = _plain(_functions.multiply, 0, 0)
saxpy = _plain(_functions.saxpy, 0, 0, 0)
cross = _plain(_functions.cross, 1, 1)
det = _plain(_functions.det, 2)
dot = _plain(_functions.dot, 1, 1)
gaxpy = _plain(_functions.gaxpy, 2, 1, 1)
matmul = _plain(_functions.matmul, 2, 2)
matvec = _plain(_functions.matvec, 2, 1)
trace = _plain(_functions.trace, 2)
transpose = _plain(_functions.transpose, 2)


def inv(a, out=None, *, status=False, threads=None):
    return _spread(_functions.inv, [a], [2], out, threads, status)


def lu_factor(a, out=None, *, status=False, threads=None):
    return _spread(_functions.lu_factor, [a], [2], out, threads, status)


def cholesky(a, out=None, *, status=False, threads=None):
    return _spread(_functions.cholesky, [a], [2], out, threads, status)


def qr(a, mode="reduced", out=None, *, status=False, threads=None):
    return _spread(functools.partial(_functions.qr, mode=mode), [a], [2], out, threads, status)


def solve(a, b, out=None, *, assume_a="gen", vectors=None, status=False, threads=None):
    vectors = _vectors(a, b, vectors)
    function = functools.partial(_functions.solve, assume_a=assume_a, vectors=vectors)
    return _spread(function, [a, b], [2, 2 - vectors], out, threads, status)


def cho_solve(l, b, out=None, *, vectors=None, status=False, threads=None):
    vectors = _vectors(l, b, vectors)
    function = functools.partial(_functions.cho_solve, vectors=vectors)
    return _spread(function, [l, b], [2, 2 - vectors], out, threads, status)


def lstsq(a, b, out=None, *, vectors=None, status=False, threads=None):
    vectors = _vectors(a, b, vectors)
    function = functools.partial(_functions.lstsq, vectors=vectors)
    return _spread(function, [a, b], [2, 2 - vectors], out, threads, status)


def lu_solve(lu_and_pivots, b, out=None, *, vectors=None, status=False, threads=None):
    vectors = _vectors(lu_and_pivots[0], b, vectors)

    def function(factors, pivots, b, out=None, status=False):
        return _functions.lu_solve((factors, pivots), b, out, vectors=vectors, status=status)

    return _spread(function, [*lu_and_pivots, b], [2, 1, 2 - vectors], out, threads, status)


def norm(x, axis=-1, out=None, *, keepdims=False, threads=None):
    x = np.asanyarray(x)
    if keepdims or axis not in (-1, (-2, -1)):
        return _functions.norm(x, axis, out, keepdims=keepdims)
    return _spread(functools.partial(_functions.norm, axis=axis), [x], [2 if isinstance(axis, tuple) else 1], out, threads)


for _name in ("inv", "lu_factor", "cholesky", "qr", "solve", "cho_solve", "lstsq", "lu_solve", "norm"):
    _documented(globals()[_name], getattr(_functions, _name))
