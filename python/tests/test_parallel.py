"""Objects spread over threads: the same bits, and errors at the same places."""
import inspect
import multiprocessing
import threading
import time

import numpy as np
import pytest
import vonkk3
from vonkk3 import parallel

LEADING = (3, 1100)


def operands(dtype):
    rng = np.random.default_rng(7)
    a = (rng.normal(size=LEADING + (4, 4)) + 5 * np.eye(4)).astype(dtype)
    s = vonkk3.matmul(a, a.swapaxes(-1, -2))
    x, y = rng.normal(size=(2,) + LEADING + (4,)).astype(dtype)
    lu = vonkk3.lu_factor(a)
    return {"add": (a, a[0]), "subtract": (a[1], a), "multiply": (a, dtype(3)), "saxpy": (dtype(2), x, y), "cross": (x[..., :3], y[0, :, 1:]),
            "det": (a,), "dot": (x, y[0]), "gaxpy": (a[0, 0], x, y), "inv": (a,), "lu_factor": (a,), "cholesky": (s,), "qr": (a,),
            "matmul": (a, a[:, :1]), "matvec": (a, x[0]), "trace": (a,), "transpose": (a,), "norm": (x,), "solve": (a, x),
            "lstsq": (a[..., :2], x), "cho_solve": (s, x), "lu_solve": (lu, x)}


def as_tuple(result):
    return result if isinstance(result, tuple) else (result,)


@pytest.mark.parametrize("threads", [1, 2, 3, 7, None])
def test_same_bits(dtype, threads):
    for name, arrays in operands(dtype).items():
        expected = as_tuple(getattr(vonkk3, name)(*arrays))
        result = as_tuple(getattr(parallel, name)(*arrays, threads=threads))
        for ours, theirs in zip(result, expected):
            assert ours.dtype == theirs.dtype and ours.tobytes() == theirs.tobytes(), name
        out = tuple(np.empty_like(one)[:, ::-1] for one in expected)
        getattr(parallel, name)(*arrays, out=out if len(out) > 1 else out[0], threads=threads)
        for ours, theirs in zip(out, expected):
            assert np.array_equal(ours, theirs), name


def test_every_function_is_there():
    names = {name for name in vonkk3.__all__ if callable(getattr(vonkk3, name))}
    assert set(parallel.__all__) == names - {"LinAlgError", "get_config", "show_config"} == set(operands(np.float64))
    for name in parallel.__all__:
        ours = inspect.signature(getattr(parallel, name)).parameters
        assert "threads" in ours and getattr(parallel, name).__doc__
        if not isinstance(getattr(vonkk3, name), np.ufunc):
            theirs = inspect.signature(getattr(vonkk3, name)).parameters
            assert [p for p in ours.values() if p.name != "threads"] == list(theirs.values())


def test_in_place_and_overlapping_results():
    a = operands(np.float64)["inv"][0]
    expected = vonkk3.inv(a)
    again = a.copy()
    parallel.inv(again, out=again, threads=2)
    assert again.tobytes() == expected.tobytes()
    flat = a.reshape(-1, 4, 4)[:3000]
    doubled = vonkk3.matmul(flat, 2 * np.eye(4))
    for _ in range(20): # what one thread stores is what the next one reads
        whole = np.concatenate([flat, flat[:1000]])
        parallel.matmul(whole[:-1000], 2 * np.eye(4), out=whole[1000:], threads=3)
        assert np.array_equal(whole[1000:], doubled)


def test_failures():
    a = np.tile(np.eye(3), (5000, 1, 1))
    a[[17, 4000]] = 0
    with pytest.raises(vonkk3.LinAlgError) as caught:
        parallel.inv(a, threads=2)
    assert caught.value.index == (17,) and caught.value.failures == 2
    assert list(np.flatnonzero(parallel.inv(a, status=True, threads=2)[1])) == [17, 4000]
    with pytest.raises(ValueError):
        parallel.inv(a, threads=0)
    with pytest.raises(ValueError):
        parallel.inv(a, out=np.empty((5000, 3, 2)), threads=2)
    with pytest.raises(TypeError):
        parallel.add(a, threads=2)


def test_the_interpreter_runs_on():
    """Another thread's call of some hundred milliseconds does not stop this one."""
    matrices = np.broadcast_to(np.eye(9) + 0.1, (300_000, 9, 9))
    start = time.perf_counter()
    vonkk3.det(matrices)
    alone = time.perf_counter() - start
    thread = threading.Thread(target=vonkk3.det, args=(matrices,))
    thread.start()
    longest, last = 0.0, time.perf_counter()
    while thread.is_alive():
        now = time.perf_counter()
        longest, last = max(longest, now - last), now
    assert longest < alone / 2


def inverse_in_a_child(queue):
    queue.put(parallel.inv(np.tile(2 * np.eye(3), (5000, 1, 1)), threads=2).sum())


def test_after_a_fork():
    parallel.inv(np.tile(np.eye(3), (5000, 1, 1)), threads=2)
    context = multiprocessing.get_context("fork")
    queue = context.Queue()
    child = context.Process(target=inverse_in_a_child, args=(queue,))
    child.start()
    assert queue.get(timeout=30) == 7500
    child.join()
