"""Results beside numpy's in float64 and in the 80-bit type, to bounds that follow from the algorithms.

u is the unit roundoff, and gamma(k) = k u / (1 - k u) bounds k successive roundings (Higham, Accuracy and Stability of
Numerical Algorithms, chapters 3, 9, 10 and 19).
"""
import itertools

import numpy as np
import pytest
import vonkk3

COUNT = 60


def unit(dtype):
    return np.finfo(dtype).eps / 2


def gamma(k, dtype):
    return k * unit(dtype) / (1 - k * unit(dtype))


def wide(a):
    """In a type that has more digits: float64 for float32, the 80-bit type for float64."""
    return a.astype(np.float64 if a.dtype == np.float32 else np.longdouble)


def product(a, b):
    return np.einsum("...ik,...kj->...ij", a, b)


def matrices(rng, dtype, m, n=None):
    return rng.normal(size=(COUNT, m, n or m)).astype(dtype)


def regular(rng, dtype, n):
    """Away from singular, but with pivots that move."""
    a = rng.normal(size=(COUNT, n, n)) + 3 * np.eye(n)
    return np.take_along_axis(a, rng.permuted(np.tile(np.arange(n), (COUNT, 1)), axis=1)[..., None], 1).astype(dtype)


def definite(rng, dtype, n):
    a = matrices(rng, np.float64, n)
    return (a @ a.transpose(0, 2, 1) + np.eye(n)).astype(dtype)


def permanent(a):
    n = a.shape[-1]
    return sum(np.prod([a[..., i, p[i]] for i in range(n)], axis=0) for p in itertools.permutations(range(n)))


def sum_bound(exact, magnitude, terms, dtype):
    """Of a sum of products: float32 rounds each of `terms` products and sums, float64 in the 80-bit type, and once more."""
    if dtype == np.float32:
        return gamma(terms, dtype) * magnitude
    return unit(dtype) * np.abs(exact) + gamma(terms + 2, np.longdouble) * magnitude


def test_products_are_right_to_their_roundings(rng, dtype, order):
    for m, k, n in [(order, order, order), (order + 1, order, 2)]:
        a, b = matrices(rng, dtype, m, k), matrices(rng, dtype, k, n)
        exact, magnitude = product(wide(a), wide(b)), product(np.abs(wide(a)), np.abs(wide(b)))
        assert (np.abs(vonkk3.matmul(a, b) - exact) <= sum_bound(exact, magnitude, k, dtype)).all()
        x, y = matrices(rng, dtype, k, 1)[..., 0], matrices(rng, dtype, m, 1)[..., 0]
        exact, magnitude = (product(f(wide(a)), f(wide(x))[..., None])[..., 0] for f in (lambda v: v, np.abs))
        assert (np.abs(vonkk3.matvec(a, x) - exact) <= sum_bound(exact, magnitude, k, dtype)).all()
        exact, magnitude = exact + wide(y), magnitude + np.abs(wide(y))
        assert (np.abs(vonkk3.gaxpy(a, x, y) - exact) <= sum_bound(exact, magnitude, k + 1, dtype)).all()


def test_numbers_of_vectors_and_matrices(rng, dtype, order):
    a, x, y = matrices(rng, dtype, order), *matrices(rng, dtype, 2, order).transpose(1, 0, 2)
    exact, magnitude = (wide(x) * wide(y)).sum(-1), np.abs(wide(x) * wide(y)).sum(-1)
    assert (np.abs(vonkk3.dot(x, y) - exact) <= sum_bound(exact, magnitude, order, dtype)).all()
    exact = np.trace(wide(a), axis1=1, axis2=2)
    magnitude = np.trace(np.abs(wide(a)), axis1=1, axis2=2)
    assert (np.abs(vonkk3.trace(a) - exact) <= sum_bound(exact, magnitude, order, dtype)).all()
    # The root halves the error of the sum and adds one rounding.
    for norm, exact in [(vonkk3.norm(x), np.sqrt((wide(x) ** 2).sum(-1))),
                        (vonkk3.norm(a, axis=(-2, -1)), np.sqrt((wide(a) ** 2).sum((-2, -1))))]:
        assert (np.abs(norm - exact) <= gamma(order * order if dtype == np.float32 else 2, dtype) * exact).all()


def test_element_by_element(rng, dtype):
    x, y = matrices(rng, dtype, 5, 7), matrices(rng, dtype, 5, 7)
    # Two roundings, to 64 bits and to 53, differ from one in rare ties: half a unit more is allowed.
    for ours, exact in [(vonkk3.add(x, y), wide(x) + wide(y)), (vonkk3.subtract(x, y), wide(x) - wide(y)),
                        (vonkk3.multiply(x, y[:, :1, :1]), wide(x) * wide(y[:, :1, :1])),
                        (vonkk3.multiply(x, y), wide(x) * wide(y))]:
        assert (np.abs(ours - exact) <= (unit(dtype) + 2.0 ** -63) * np.abs(exact)).all()
    exact = wide(dtype(2.5)) * wide(x) + wide(y)
    rounding = unit(dtype) * (np.abs(exact) + (np.abs(2.5 * x) if dtype == np.float32 else 2.0 ** -9 * np.abs(x) + np.abs(y) * 2.0 ** -9))
    assert (np.abs(vonkk3.saxpy(2.5, x, y) - exact) <= 1.001 * rounding).all()
    assert np.array_equal(vonkk3.transpose(x), x.transpose(0, 2, 1))
    a, b = x[..., :3], y[..., :3]
    exact, magnitude = np.cross(wide(a), wide(b)), np.abs(np.cross(np.abs(wide(a)), np.abs(wide(b)) * [1, 1, 1]))
    magnitude = np.stack([np.abs(a[..., i - 2] * b[..., i - 1]) + np.abs(a[..., i - 1] * b[..., i - 2]) for i in range(3)], -1)
    assert (np.abs(vonkk3.cross(a, b) - exact) <= sum_bound(exact, magnitude.astype(exact.dtype), 2, dtype)).all()


@pytest.mark.parametrize("n", [1, 2, 3, 4, 5, 6])
def test_determinants_are_right_to_the_magnitude_of_their_products(rng, dtype, n):
    # A product of n elements passes one rounding of a product and at most n of sums on each of n - 1 levels.
    a = matrices(rng, dtype, n)
    exact = np.zeros(COUNT, np.longdouble)
    for p in itertools.permutations(range(n)):
        sign = np.linalg.det(np.eye(n)[list(p)]).round()
        exact += sign * np.prod([a[:, i, p[i]].astype(np.longdouble) for i in range(n)], axis=0)
    bound = gamma(n * n, dtype) * permanent(np.abs(wide(a)))
    assert (np.abs(vonkk3.det(a) - exact) <= bound).all()


@pytest.mark.parametrize("n", [7, 9])
def test_determinants_of_larger_orders(rng, dtype, n):
    # det(A + E) with |E| <= gamma |L||U|: relative to the determinant that is n |A^-1| |E|.
    a = regular(rng, dtype, n)
    exact = np.linalg.det(a.astype(np.float64))
    bound = 4 * n * n * gamma(n, dtype) * np.linalg.cond(a.astype(np.float64)) * np.abs(exact)
    assert (np.abs(vonkk3.det(a) - exact) <= bound).all()


@pytest.mark.parametrize("scale", [1e-30, 1e-10, 1.0, 1e8])
def test_scale_does_not_matter_to_inverses_and_determinants(rng, order, scale):
    # In float32 too, where products of such elements overflow or vanish.
    a = regular(rng, np.float32, order)
    exponent = round(np.log2(scale))
    scaled = np.ldexp(a, exponent)
    assert np.allclose(np.ldexp(vonkk3.inv(scaled), exponent), vonkk3.inv(a), rtol=2e-3, atol=1e-3)
    b = np.ones((COUNT, order), np.float32)
    assert np.allclose(np.ldexp(vonkk3.solve(scaled, b), exponent), vonkk3.solve(a, b), rtol=2e-3, atol=1e-3)
    wider = np.ldexp(a.astype(np.float64), exponent)
    assert np.allclose(vonkk3.det(wider), np.linalg.det(wider), rtol=1e-10, atol=0)
    q, r = vonkk3.qr(scaled)
    assert np.allclose(np.ldexp(q @ r, -exponent), a, rtol=1e-4, atol=1e-4)


def test_inverses(rng, dtype, order):
    # Cofactors are computed to gamma(n^2) of their products, so the error grows with cond^2 at worst.
    a = regular(rng, dtype, order)
    exact = np.linalg.inv(a.astype(np.float64))
    cond = np.linalg.cond(a.astype(np.float64), np.inf)[:, None, None]
    largest = np.abs(exact).max((1, 2), keepdims=True)
    slack = 10 * np.finfo(np.float64).eps * cond # of the reference
    assert (np.abs(vonkk3.inv(a) - exact) <= (gamma(8 * order * order, dtype) * cond ** 2 + slack) * largest).all()


@pytest.mark.parametrize("n", [3, 4, 5, 6])
@pytest.mark.parametrize("small", [2, 6, 9, 12, 17, 22, 27, 33])
@pytest.mark.parametrize("scale", [1, 1000]) # then determinants are far above the library's tolerance
def test_inverses_of_badly_conditioned_matrices(rng, dtype, n, small, scale):
    # By elimination the error grows with the condition alone. By cofactors and blocks, which are taken up to a condition of
    # 2^8 in float32 and 2^20 in float64 (order 6: 2^6 and 2^13), it may grow with its square.
    if dtype == np.float32 and small > 17:
        return
    q, r = np.linalg.qr(rng.normal(size=(2, COUNT, n, n)))[0]
    values = np.full(n, 2.0 ** -small)
    values[0] = 1
    a = (scale * (q * values) @ r).astype(dtype)
    exact = np.linalg.inv(a.astype(np.float64))
    norm = np.linalg.norm(exact, axis=(1, 2))
    error = np.linalg.norm(vonkk3.inv(a) - exact, axis=(1, 2))
    square = 2.0 ** min(2 * small, small + (8 if dtype == np.float32 else 20) + 2)
    assert (error <= (20 * n * 2.0 ** small + 4 * square) * unit(dtype) * norm).all()


def factors(a):
    lu, pivots = vonkk3.lu_factor(a)
    rows = np.take_along_axis(lu, pivots[..., None].astype(np.intp), 1)
    n = a.shape[-1]
    return np.tril(rows, -1) + np.eye(n, dtype=a.dtype), np.triu(rows), pivots


def test_lu_factors_and_solutions(rng, dtype, order):
    a = regular(rng, dtype, order)
    l, u, pivots = factors(a)
    assert (np.abs(l) <= 1).all(), "partial pivoting"
    permuted = np.take_along_axis(a, pivots[..., None].astype(np.intp), 1)
    magnitude = product(np.abs(wide(l)), np.abs(wide(u)))
    assert (np.abs(product(wide(l), wide(u)) - permuted) <= gamma(order + 1, dtype) * magnitude).all()

    b = matrices(rng, dtype, order, 3)
    for x, right in [(vonkk3.solve(a, b), b), (vonkk3.lu_solve(vonkk3.lu_factor(a), b), b),
                     (vonkk3.solve(a, b[..., 0])[..., None], b[..., :1]),
                     (vonkk3.lu_solve(vonkk3.lu_factor(a), b[..., 0])[..., None], b[..., :1])]:
        residual = product(wide(permuted), wide(x)) - np.take_along_axis(right, pivots[..., None].astype(np.intp), 1)
        assert (np.abs(residual) <= gamma(3 * order + 1, dtype) * product(magnitude, np.abs(wide(x)))).all()


def test_cholesky_factors_and_solutions(rng, dtype, order):
    a = definite(rng, dtype, order)
    l = vonkk3.cholesky(a)
    assert np.array_equal(l, np.tril(l))
    lower = np.tril(np.ones((order, order), bool))
    magnitude = product(np.abs(wide(l)), np.abs(wide(l)).transpose(0, 2, 1))
    # The reciprocal of the diagonal, and its reciprocal: three roundings more for each factor.
    error = np.abs(product(wide(l), wide(l).transpose(0, 2, 1)) - a)
    assert (error <= gamma(order + 7, dtype) * magnitude)[:, lower].all()

    b = matrices(rng, dtype, order, 2)
    symmetric = wide(np.tril(a) + np.tril(a, -1).transpose(0, 2, 1))
    for x, right in [(vonkk3.solve(a, b, assume_a="pos"), b), (vonkk3.cho_solve(l, b), b),
                     (vonkk3.solve(a, b[..., 0], assume_a="pos")[..., None], b[..., :1]),
                     (vonkk3.cho_solve(l, b[..., 0])[..., None], b[..., :1])]:
        bound = gamma(3 * order + 15, dtype) * product(magnitude, np.abs(wide(x)))
        assert (np.abs(product(symmetric, wide(x)) - right) <= bound).all()


def test_qr_factors_and_least_squares(rng, dtype, order):
    for rows in (order, order + 1, order + 5):
        a, b = matrices(rng, dtype, rows, order), matrices(rng, dtype, rows, 2)
        a += 2 * np.eye(rows, order, dtype=dtype)
        q, r = vonkk3.qr(a)
        size = gamma(10 * rows * order, dtype)
        assert np.array_equal(r, np.triu(r)) and np.array_equal(r, vonkk3.qr(a, mode="r"))
        assert np.linalg.norm(product(wide(q).transpose(0, 2, 1), wide(q)) - np.eye(order), axis=(1, 2)).max() <= size * order
        norm = np.linalg.norm(wide(a), axis=(1, 2))
        assert (np.linalg.norm(product(wide(q), wide(r)) - a, axis=(1, 2)) <= size * norm).all()
        compact = vonkk3.qr(a, mode="raw")
        assert np.array_equal(np.triu(compact)[:, :order], r)

        # The gradient of the residual vanishes.
        for x, right in [(vonkk3.lstsq(a, b), b), (vonkk3.lstsq(a, b[..., 0])[..., None], b[..., :1])]:
            residual = right - product(wide(a), wide(x))
            gradient = np.linalg.norm(product(wide(a).transpose(0, 2, 1), residual), axis=1)
            scale = norm[:, None] * np.linalg.norm(wide(x), axis=1) + np.linalg.norm(wide(right), axis=1)
            assert (gradient <= size * norm[:, None] * scale).all()


def test_float64_has_one_digit_more_than_numpy(rng):
    # In the 80-bit type a product of vectors is off by a rounding at most where the sum does not cancel.
    x, y = rng.uniform(1, 2, size=(2, 10000, 6))
    exact = (x.astype(np.longdouble) * y).sum(-1)
    ours, theirs = (np.abs(dot - exact).max() for dot in (vonkk3.dot(x, y), (x * y).sum(-1)))
    assert ours <= 0.51 * np.spacing(exact.astype(np.float64).max()) and ours < theirs
