"""Linear algebra on very many small matrices and vectors.

Stacks of matrices ``(..., m, n)`` and of vectors ``(..., n)`` of float32 and float64, with numpy's habits: leading
dimensions broadcast, results go where numpy would put them, and any view is taken as it lies.

`vonkk3.parallel` has the same functions, with the objects spread over threads.
"""
from . import _library  # loads the library: before all else
from ._functions import *
from ._functions import __all__ as _names
from ._library import get_config, show_config
from . import parallel

__version__ = "4.1.0"
__all__ = [*_names, "get_config", "parallel", "show_config"]
