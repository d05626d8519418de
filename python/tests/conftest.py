import hypothesis
import numpy as np
import pytest

# The same examples on every run; the package is what is tested, not the machine's speed.
hypothesis.settings.register_profile("fixed", derandomize=True, database=None, deadline=None, max_examples=150,
                                     suppress_health_check=list(hypothesis.HealthCheck))
hypothesis.settings.load_profile("fixed")


@pytest.fixture(params=[np.float32, np.float64], ids=["float32", "float64"])
def dtype(request):
    return request.param


@pytest.fixture(params=[1, 2, 3, 4, 5, 6, 7, 9])
def order(request):
    return request.param


@pytest.fixture
def rng():
    return np.random.default_rng(12345)
