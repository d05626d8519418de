"""Uses of the package that a strict type checker must take; it is checked and not run."""
import numpy as np
import vonkk3
from numpy.typing import NDArray
from vonkk3 import parallel

a: NDArray[np.float64] = np.eye(3)
b = np.ones(3)
x: NDArray[np.float64] = vonkk3.solve(a, b)
y, status = vonkk3.solve(a, b, assume_a="pos", vectors=True, status=True)
factors = vonkk3.lu_factor(a)
z: NDArray[np.float64] = vonkk3.lu_solve(factors, b, out=x)
q, r = vonkk3.qr(a)
raw: NDArray[np.float64] = vonkk3.qr(a, mode="raw")
number: float = float(vonkk3.det(a)) + float(vonkk3.norm(a, axis=(-2, -1)))
w: NDArray[np.float64] = parallel.inv(a, threads=2)
(lu, pivots), states = parallel.lu_factor(a, status=True, threads=2)
try:
    vonkk3.inv(a)
except vonkk3.LinAlgError as error:
    index: tuple[int, ...] = error.index
config: dict[str, str] = vonkk3.get_config()
