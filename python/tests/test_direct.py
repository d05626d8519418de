"""The same bits as direct calls of the library."""
import ctypes

import numpy as np
import pytest
import vonkk3

library = ctypes.CDLL(vonkk3.get_config()["library"])
COUNT = 300


def call(name, *arguments):
    converted = []
    for argument in arguments:
        if isinstance(argument, np.ndarray):
            converted.append(ctypes.c_void_p(argument.ctypes.data))
        elif argument is None:
            converted.append(ctypes.c_void_p())
        else:
            converted.append(argument if isinstance(argument, ctypes._SimpleCData) else ctypes.c_int32(argument))
    return getattr(library, name)(*converted)


def constant(value, dtype):
    return ctypes.c_float(value) if dtype == np.float32 else ctypes.c_double(value)


def same_bits(a, b):
    return a.dtype == b.dtype and a.shape == b.shape and a.tobytes() == b.tobytes()


@pytest.fixture(params=[3, 4, 5, 6, 8])
def case(request, dtype, rng):
    return Case(request.param, dtype, rng)


class Case:
    def __init__(self, n, dtype, rng):
        self.n, self.dtype = n, dtype
        self.a = (rng.normal(size=(COUNT, n, n)) + n * np.eye(n)).astype(dtype)
        self.b = rng.normal(size=(COUNT, n, n)).astype(dtype)
        self.x, self.y = rng.normal(size=(2, COUNT, n)).astype(dtype)
        self.e = self.a.itemsize
        self.matrices, self.vectors = (n * n * self.e, n * self.e, self.e), (n * self.e, self.e)
        self.type = "32f" if dtype == np.float32 else "64f"

    def name(self, stem, layout="_S2", vector=False):
        size = f"_{self.n}x{1 if vector else self.n}" if self.n <= 6 else ""
        return f"vonk{stem}_{self.type}{size}{layout}"

    def sizes(self, *sizes):
        return () if self.n <= 6 else sizes


def test_matmul(case):
    n, c = case.n, np.empty_like(case.a)
    sizes = case.sizes(n, n)
    assert call(case.name("Mul_mama", ""), case.a, *case.matrices[:2], *sizes, case.b, *case.matrices[:2], *sizes, c,
                *case.matrices[:2], COUNT) == 0
    assert same_bits(vonkk3.matmul(case.a, case.b), c)
    transposed = case.a.transpose(0, 2, 1)
    strides = (case.matrices[0], case.matrices[2], case.matrices[1])
    assert call(case.name("Mul_mama"), case.a, *strides, *sizes, case.b, *case.matrices, *sizes, c, *case.matrices, COUNT) == 0
    assert same_bits(vonkk3.matmul(transposed, case.b), c)


def test_vectors(case):
    n, z = case.n, np.empty_like(case.x)
    assert call(case.name("Mul_mava"), case.a, *case.matrices, *case.sizes(n, n), case.x, *case.vectors, *case.sizes(n), z,
                *case.vectors, COUNT) == 0
    assert same_bits(vonkk3.matvec(case.a, case.x), z)
    assert call(case.name("Gaxpy_va"), case.a, *case.matrices[1:], case.x, *case.vectors, case.y, *case.vectors, z, *case.vectors,
                *case.sizes(n, n), COUNT) == 0
    assert same_bits(vonkk3.gaxpy(case.a[0], case.x, case.y), z)
    assert same_bits(vonkk3.gaxpy(np.repeat(case.a[:1], COUNT, 0), case.x, case.y), z)
    for operation in ("Add", "Sub"):
        assert call(case.name(f"{operation}_vava", vector=True), case.x, *case.vectors, case.y, *case.vectors, z,
                    *case.vectors, *case.sizes(n), COUNT) == 0
        assert same_bits({"Add": vonkk3.add, "Sub": vonkk3.subtract}[operation](case.x, case.y), z)
    factor = constant(1.7, case.dtype)
    assert call(case.name("Saxpy_vava", vector=True), case.x, *case.vectors, factor, case.y, *case.vectors, z, *case.vectors,
                *case.sizes(n), COUNT) == 0
    assert same_bits(vonkk3.saxpy(1.7, case.x, case.y), z)
    assert same_bits(vonkk3.saxpy(np.full(case.x.shape, 1.7, case.dtype), case.x, case.y), z)
    assert call(case.name("Mul_vac", vector=True), case.x, *case.vectors, factor, z, *case.vectors, *case.sizes(n), COUNT) == 0
    assert same_bits(vonkk3.multiply(case.x, 1.7), z)
    assert same_bits(vonkk3.multiply(np.full(case.x.shape, 1.7, case.dtype), case.x), z)


def test_numbers(case):
    n, z = case.n, np.empty(COUNT, case.dtype)
    assert call(case.name("DotProduct_vava", vector=True), case.x, *case.vectors, case.y, *case.vectors, z, *case.sizes(n), COUNT) == 0
    assert same_bits(vonkk3.dot(case.x, case.y), z)
    assert call(case.name("L2Norm_va", vector=True), case.x, *case.vectors, z, *case.sizes(n), COUNT) == 0
    assert same_bits(vonkk3.norm(case.x), z)
    assert call(case.name("FrobNorm_ma"), case.a, *case.matrices, *case.sizes(n, n), z, COUNT) == 0
    assert same_bits(vonkk3.norm(case.a, axis=(-2, -1)), z)
    assert call(case.name("Trace_ma"), case.a, *case.matrices, *case.sizes(n), z, COUNT) == 0
    assert same_bits(vonkk3.trace(case.a), z)
    spread = np.empty((COUNT, 3), case.dtype)[:, 1]
    assert same_bits(vonkk3.trace(case.a, out=spread).copy(), z)


def test_cross(dtype, rng):
    a, b = rng.normal(size=(2, COUNT, 3)).astype(dtype)
    c, strides = np.empty_like(a), (3 * a.itemsize, a.itemsize)
    name = "vonkCrossProduct_vava_" + ("32f" if dtype == np.float32 else "64f") + "_3x1_S2"
    assert call(name, a, *strides, b, *strides, c, *strides, COUNT) == 0
    assert same_bits(vonkk3.cross(a, b), c)


def test_det_and_inv(case):
    if case.n > 6:
        return
    z, x = np.empty(COUNT, case.dtype), np.empty_like(case.a)
    a = case.a
    if case.dtype == np.float32: # what is so small takes the form that works in the 80-bit type
        a = np.where(np.abs(a) < 2.0 ** -20, np.float32(1), a)
    assert call(case.name("Det_ma"), a, *case.matrices, z, COUNT) == 0
    assert same_bits(vonkk3.det(a), z)
    if case.dtype == np.float32:
        assert call(case.name("Det_ma", ""), a * np.float32(2.0 ** 21), *case.matrices[:2], z, COUNT) == 0
        assert same_bits(vonkk3.det(a * np.float32(2.0 ** 21)), z)
    assert call(case.name("Invert_ma"), case.a, *case.matrices, x, *case.matrices, COUNT) == 0
    assert same_bits(vonkk3.inv(case.a), x)


def test_lu(case):
    n, lu, x = case.n, np.empty_like(case.a), np.empty_like(case.x)
    a = np.ascontiguousarray(case.a[:, np.random.default_rng(3).permutation(n)])
    pivots = np.empty((COUNT, n), np.uint32)
    for k in range(COUNT):
        assert call(case.name("LUDecomp_m", ""), a[k], case.matrices[1], pivots[k], lu[k], case.matrices[1], *case.sizes(n)) == 0
    ours = vonkk3.lu_factor(a)
    assert same_bits(ours[0], lu) and same_bits(ours[1], pivots)
    assert call(case.name("LUBackSubst_mava"), lu, *case.matrices, pivots, case.x, *case.vectors, x, *case.vectors,
                *case.sizes(n), COUNT) == 0
    assert same_bits(vonkk3.lu_solve(ours, case.x), x)
    assert same_bits(vonkk3.solve(a, case.x), x)
    assert same_bits(vonkk3.solve(a, np.stack([case.x, case.y], -1))[..., 0].copy(), x)
    # One matrix for all right-hand sides.
    assert call(case.name("LUBackSubst_mva"), lu, *case.matrices, pivots, case.x, *case.vectors, x, *case.vectors,
                *case.sizes(n), COUNT) == 0
    assert same_bits(vonkk3.solve(a[0], case.x, vectors=True), x)
    assert same_bits(vonkk3.lu_solve((lu[0], pivots[0]), case.x, vectors=True), x)


def test_cholesky(case):
    n, factors, x = case.n, np.zeros_like(case.a), np.empty_like(case.x)
    a = vonkk3.matmul(case.a, case.a.transpose(0, 2, 1))
    assert call(case.name("CholeskyDecomp_ma"), a, *case.matrices, factors, *case.matrices, *case.sizes(n), COUNT) == 0
    assert call(case.name("CholeskyBackSubst_mava"), factors, *case.matrices, case.x, *case.vectors, x, *case.vectors,
                *case.sizes(n), COUNT) == 0
    assert same_bits(vonkk3.solve(a, case.x, assume_a="pos"), x)
    diagonal = np.arange(n)
    factors[:, diagonal, diagonal] = 1 / factors[:, diagonal, diagonal]
    assert same_bits(vonkk3.cholesky(a), factors)


def test_qr(case):
    n, factors, x = case.n, np.empty_like(case.a), np.empty_like(case.x)
    work = np.empty(n, case.dtype)
    assert call(case.name("QRDecomp_ma"), case.a, *case.matrices, work, factors, *case.matrices, *case.sizes(n, n), COUNT) == 0
    assert same_bits(vonkk3.qr(case.a, mode="raw"), factors)
    assert call(case.name("QRBackSubst_mava"), factors, *case.matrices, work, case.x, *case.vectors, x, *case.vectors,
                *case.sizes(n, n), COUNT) == 0
    assert same_bits(vonkk3.lstsq(case.a, case.x), x)


def test_transpose(case):
    b = np.empty_like(case.a)
    assert call(case.name("Transpose_ma"), case.a, *case.matrices, *case.sizes(case.n, case.n), b, *case.matrices, COUNT) == 0
    assert same_bits(vonkk3.transpose(case.a), b)
