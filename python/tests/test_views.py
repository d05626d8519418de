"""Any view of an array gives what its packed copy gives."""
import mmap

import hypothesis
import hypothesis.strategies as st
import numpy as np
import pytest
import vonkk3

# name: (function, core dimensions of each operand); "n" one size, "m" another
OPERATIONS = {
    "add": (vonkk3.add, ["mn", "mn"]),
    "subtract": (vonkk3.subtract, ["mn", "mn"]),
    "multiply": (vonkk3.multiply, ["mn", "mn"]),
    "saxpy": (vonkk3.saxpy, ["1", "n", "n"]),
    "matmul": (vonkk3.matmul, ["mn", "nm"]),
    "matmul square": (vonkk3.matmul, ["nn", "nn"]),
    "matvec": (vonkk3.matvec, ["mn", "n"]),
    "gaxpy": (vonkk3.gaxpy, ["mn", "n", "m"]),
    "transpose": (vonkk3.transpose, ["mn"]),
    "cross": (vonkk3.cross, ["3", "3"]),
    "dot": (vonkk3.dot, ["n", "n"]),
    "trace": (vonkk3.trace, ["nn"]),
    "norm": (vonkk3.norm, ["n"]),
    "frobenius": (lambda a, **kw: vonkk3.norm(a, axis=(-2, -1), **kw), ["mn"]),
    "det": (vonkk3.det, ["nn"]),
    "inv": (vonkk3.inv, ["nn+"]),
    "lu_factor": (vonkk3.lu_factor, ["nn+"]),
    "solve": (lambda a, b, **kw: vonkk3.solve(a, b, vectors=False, **kw), ["nn+", "nm"]),
    "solve vectors": (lambda a, b, **kw: vonkk3.solve(a, b, vectors=True, **kw), ["nn+", "n"]),
    "solve pos": (lambda a, b, **kw: vonkk3.solve(a, b, vectors=False, assume_a="pos", **kw), ["nn+", "nm"]),
    "lu_solve": (lambda a, b, **kw: vonkk3.lu_solve((a, np.arange(a.shape[-1], dtype=np.uint32)), b, vectors=True, **kw),
                 ["nn+", "n"]),
    "cholesky": (vonkk3.cholesky, ["nn+"]),
    "cho_solve": (lambda a, b, **kw: vonkk3.cho_solve(a, b, vectors=True, **kw), ["nn+", "n"]),
    "qr": (vonkk3.qr, ["tn+"]),
    "qr raw": (lambda a, **kw: vonkk3.qr(a, mode="raw", **kw), ["tn+"]),
    "lstsq": (lambda a, b, **kw: vonkk3.lstsq(a, b, vectors=True, **kw), ["tn+", "t"]),
}


@st.composite
def views(draw, shape, dtype, writable=False):
    """An array of the shape that lies somehow in memory: steps, reversed, axes exchanged, broadcast, bytes swapped,
    a field of records, not aligned, read-only."""
    order = draw(st.permutations(range(len(shape))))
    steps = [draw(st.sampled_from([1, 1, 2, 3, -1, -2])) for _ in shape]
    offset = [draw(st.integers(0, 2)) for _ in shape]
    stored = dtype
    kind = draw(st.sampled_from(["plain", "plain", "swapped", "record", "packed record"]))
    if kind == "swapped":
        stored = np.dtype(dtype).newbyteorder()
    elif kind == "record":
        stored = np.dtype([("before", np.int64), ("it", dtype), ("after", np.int32)], align=True)
    elif kind == "packed record":
        stored = np.dtype([("before", np.int8), ("it", dtype)])
    lengths = [shape[axis] * abs(steps[axis]) + offset[axis] for axis in order]
    base = np.zeros(lengths, stored)
    field = base["it"] if "record" in kind else base
    view = field.transpose(np.argsort(order))
    view = view[(..., *(slice(offset[axis], None) for axis in range(len(shape))))]
    view = view[(..., *(slice(None, None, step) for step in steps))]
    view = view[(..., *(slice(0, size) for size in shape))]
    assert view.shape == shape
    if writable:
        return view
    seed = draw(st.integers(0, 2**32 - 1))
    view[...] = np.random.default_rng(seed).normal(size=shape)
    if draw(st.booleans()):
        view.flags.writeable = False
    return view


def dominant(view):
    """Regular and positive definite by its diagonal."""
    writable = view.flags.writeable
    view.flags.writeable = True
    for i in range(view.shape[-1]):
        view[..., i, i] = np.abs(view[..., i, i]) + 4 * view.shape[-1]
    view.flags.writeable = writable


def as_tuple(result):
    return result if isinstance(result, tuple) else (result,)


@pytest.mark.parametrize("name", OPERATIONS)
@hypothesis.given(data=st.data())
def test_views(name, data):
    function, cores = OPERATIONS[name]
    elementwise = name in ("add", "subtract", "multiply", "saxpy")
    dtype = data.draw(st.sampled_from([np.float32, np.float64]))
    n, m = data.draw(st.integers(1, 7)), data.draw(st.integers(1, 7))
    sizes = {"n": n, "m": m, "t": n + m - 1, "3": 3, "1": 1}
    leading = tuple(data.draw(st.lists(st.sampled_from([1, 2, 3, 5, 0]), max_size=2)))
    operands = []
    for core in cores:
        # Dimensions of length 1, or none, broadcast.
        own = tuple(data.draw(st.sampled_from([size, size, 1])) for size in leading)
        own = own[data.draw(st.integers(0, len(own))):]
        view = data.draw(views(own + tuple(sizes[c] for c in core.rstrip("+")), dtype))
        if core.endswith("+"):
            dominant(view)
        if own and own[0] == 1 and data.draw(st.booleans()):
            view = np.broadcast_to(view, (leading[len(leading) - len(own)],) + view.shape[1:])
        operands.append(view)
    packed = [np.array(operand, dtype=dtype, order="C") for operand in operands]
    result, expected = as_tuple(function(*operands)), as_tuple(function(*packed))
    for ours, theirs in zip(result, expected):
        assert ours.dtype == theirs.dtype and np.array_equal(ours, theirs, equal_nan=True)

    # Into a view, and into one that is or overlaps an operand.
    out = tuple(data.draw(views(np.shape(one), one.dtype, writable=True)) for one in expected)
    function(*operands, out=out if len(out) > 1 else out[0])
    for ours, theirs in zip(out, expected):
        assert np.array_equal(ours, theirs, equal_nan=True)
    if len(expected) == 1:
        for position, operand in enumerate(packed):
            if operand.shape == np.shape(expected[0]):
                again = [one.copy() for one in packed]
                # Where an operand is a matrix of which the result has a vector, objects lie differently in the two.
                all_leading = np.broadcast_shapes(*(one.shape[:one.ndim - len(core.rstrip("+"))]
                                                    for one, core in zip(packed, cores)))
                differently = elementwise is False and len(cores[position].rstrip("+")) > operand.ndim - len(all_leading)
                try:
                    function(*again, out=again[position])
                except ValueError as error:
                    assert differently and "lie differently" in str(error)
                else:
                    assert np.array_equal(again[position], expected[0], equal_nan=True)
        whole = np.zeros(np.shape(expected[0])[:-1] + (2 * max(1, np.shape(expected[0])[-1]) + 3,), dtype) if np.ndim(
            expected[0]) else None
        if whole is not None and packed[0].shape == np.shape(expected[0]) and whole.shape[-1] > 3:
            width = packed[0].shape[-1]
            for shift in (1, width // 2 + 1):
                operand, target = whole[..., :width], whole[..., shift:shift + width]
                operand[...] = packed[0]
                function(operand, *packed[1:], out=target)
                assert np.array_equal(target, expected[0], equal_nan=True)


@pytest.mark.parametrize("n", [3, 7])
def test_strides_beyond_32_bits(n, dtype):
    """Objects, rows and columns that lie gigabytes apart."""
    apart = 3 * 2**30
    size = np.dtype(dtype).itemsize
    memory = mmap.mmap(-1, n * apart + 2**20, flags=mmap.MAP_PRIVATE | mmap.MAP_ANONYMOUS | getattr(mmap, "MAP_NORESERVE", 0x4000))
    rng = np.random.default_rng(1)
    values = (rng.normal(size=(3, n, n)) + 4 * n * np.eye(n)).astype(dtype)
    vectors = rng.normal(size=(3, n)).astype(dtype)
    far = {"objects": (apart, n * size, size), "rows": (64 * size, apart, size), "columns": (n * size, 64 * size, apart)}
    for strides in far.values():
        a = np.ndarray((3, n, n), dtype, memory, 0, strides)
        a[...] = values
        assert np.array_equal(vonkk3.det(a), vonkk3.det(values))
        assert np.array_equal(vonkk3.inv(a), vonkk3.inv(values))
        assert np.array_equal(vonkk3.matmul(a, values), vonkk3.matmul(values, values))
        assert np.array_equal(vonkk3.solve(a, vectors), vonkk3.solve(values, vectors))
        assert np.array_equal(vonkk3.cholesky(a), vonkk3.cholesky(values))
        assert np.array_equal(vonkk3.qr(a), vonkk3.qr(values))
        assert np.array_equal(vonkk3.add(a, a), vonkk3.add(values, values))
        assert np.array_equal(vonkk3.norm(a, axis=(-2, -1)), vonkk3.norm(values, axis=(-2, -1)))
        vonkk3.inv(values, out=a)
        assert np.array_equal(a, vonkk3.inv(values))
        vonkk3.transpose(values, out=a)
        assert np.array_equal(a, values.transpose(0, 2, 1))
    del a
    memory.close()


def test_results_into_an_operand_whose_objects_lie_differently():
    """A matrix for each vector of the result, in the same memory: an error, and no wrong number."""
    b = np.ones((2, 2, 2))
    for call in (lambda a: vonkk3.matvec(a, b, out=a), lambda a: vonkk3.solve(a, b, vectors=True, out=a),
                 lambda a: vonkk3.transpose(a, out=a, axes=[(0, 1), (1, 2)])):
        with pytest.raises(ValueError, match="pass a copy"):
            call(np.tile(2 * np.eye(2), (2, 1, 1)))
    a = np.tile(2 * np.eye(2), (2, 1, 1))
    assert np.array_equal(vonkk3.matvec(a.copy(), b, out=a), 2 * b)


def test_more_objects_than_one_call_takes(dtype):
    many = 2**24 + 3
    assert (vonkk3.trace(np.broadcast_to(np.eye(3, dtype=dtype), (many, 3, 3))) == 3).all()
    out = np.zeros((many, 2), dtype)[:, 1]
    assert vonkk3.norm(np.broadcast_to(np.array([3, 4], dtype), (many, 2)), out=out) is out and (out == 5).all()


@pytest.mark.parametrize("shape", [(0, 3, 3), (4, 0, 0), (0, 0, 0), (2, 0, 5)])
def test_empty(shape, dtype):
    a = np.zeros(shape, dtype)
    assert vonkk3.matmul(a, a.transpose(0, 2, 1)).shape == shape[:2] + shape[1:2]
    assert not vonkk3.matmul(a.transpose(0, 2, 1), a).any(), "sums of nothing are 0"
    assert vonkk3.transpose(a).shape == (shape[0], shape[2], shape[1])
    assert np.array_equal(vonkk3.norm(a, axis=(-2, -1)), np.zeros(shape[0]))
    assert np.array_equal(vonkk3.gaxpy(a, a[:, 0] if shape[1] else np.zeros((shape[0], shape[2]), dtype), np.ones(
        (shape[0], shape[1]), dtype)), np.ones((shape[0], shape[1])))
    if shape[1] == shape[2]:
        assert np.array_equal(vonkk3.det(a), np.linalg.det(a)) and np.array_equal(vonkk3.trace(a), np.zeros(shape[0]))
        for result in (vonkk3.inv(a), vonkk3.cholesky(a), *vonkk3.qr(a), vonkk3.lu_factor(a)[0]):
            assert result.shape == shape
        b = np.zeros(shape[:2], dtype)
        for x in (vonkk3.solve(a, b), vonkk3.lu_solve(vonkk3.lu_factor(a), b), vonkk3.cho_solve(a, b), vonkk3.lstsq(a, b),
                  vonkk3.solve(a, b, assume_a="pos")):
            assert x.shape == b.shape
        assert vonkk3.solve(a, a).shape == shape
    assert vonkk3.solve(np.ones((3, 2, 2)) + np.eye(2), np.ones((3, 2, 0))).shape == (3, 2, 0)


def test_types(dtype):
    assert vonkk3.inv(np.eye(3, dtype=dtype)).dtype == dtype
    assert vonkk3.inv(np.eye(3, dtype=int)).dtype == np.float64
    assert vonkk3.inv(np.eye(3, dtype=np.float16)).dtype == np.float32
    assert vonkk3.matmul(np.eye(3, dtype=np.float32), np.eye(3)).dtype == np.float64
    assert vonkk3.saxpy(2, np.ones(3, dtype), np.ones(3, dtype)).dtype == dtype
    for bad in (np.eye(3, dtype=complex), np.eye(3, dtype=np.longdouble), np.array([[None]])):
        with pytest.raises(TypeError):
            vonkk3.det(bad)


def test_subclasses_stay_what_they_are():
    class Kept(np.ndarray):
        pass

    a = np.eye(3).view(Kept)
    assert isinstance(vonkk3.inv(a), Kept) and isinstance(vonkk3.matmul(a, np.eye(3)), Kept)


def test_reductions_of_elementwise_functions(dtype):
    x = np.arange(1, 7, dtype=dtype).reshape(2, 3)
    assert np.array_equal(vonkk3.add.reduce(x), x.sum(0)) and np.array_equal(vonkk3.add.reduce(x, axis=1), x.sum(1))
    assert np.array_equal(vonkk3.multiply.reduce(x, axis=1), x.prod(1))
    assert np.array_equal(vonkk3.multiply.outer(x[0], x[1]), np.outer(x[0], x[1]))
