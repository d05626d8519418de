"""Which library file is loaded: the package's best level for the processor, or the system's, or what the environment names."""
import os
import pathlib

from . import _core

_FOLDER = pathlib.Path(__file__).parent / "lib"
_LEVELS = ("x86-64-v4", "x86-64-v3", "x86-64")
_SONAME = "libvonkk3.so.4"


def _choose():
    """(path, level, reason) of the library file."""
    named = os.environ.get("VONKK3_LIBRARY")
    if named:
        return named, "", "named by VONKK3_LIBRARY"
    level = os.environ.get("VONKK3_LEVEL")
    if not _FOLDER.exists():  # a package of the system, beside its library
        if level:
            raise ImportError(f"VONKK3_LEVEL is {level!r}, but the package has no library files of its own: the system's loader "
                              f"chooses the level of {_SONAME}. VONKK3_LIBRARY names another file")
        return _SONAME, "", "the system's; its loader chooses the level"
    processor = _core.levels()
    if level:
        if level not in _LEVELS:
            raise ImportError(f"VONKK3_LEVEL is {level!r}; the levels are {', '.join(_LEVELS)}")
        if level not in processor:
            raise ImportError(f"VONKK3_LEVEL is {level!r}, which this processor does not have; it has {', '.join(processor)}")
        path = _FOLDER / level / "vonkk3.so"
        if not path.exists():
            raise ImportError(f"VONKK3_LEVEL is {level!r}, but the package has no library file {path}")
        return str(path), level, "named by VONKK3_LEVEL"
    for level in processor:
        path = _FOLDER / level / "vonkk3.so"
        if path.exists():
            return str(path), level, "the best that is installed for this processor"
    raise ImportError(f"the package has no library file below {_FOLDER}; name one by VONKK3_LIBRARY")


_path, _level, _reason = _choose()
_major, _minor, _text = _core.load(_path)
if _major != 4:
    raise ImportError(f"{_path} is version {_major}.{_minor}; this package calls version 4")


def get_config():
    """What `show_config` prints, as a dictionary.

    Returns
    -------
    dict of str to str
        ``library`` (path), ``level`` ("" if the path was named), ``reason``, ``version``, ``processor``.

    Examples
    --------
    >>> sorted(vonkk3.get_config())
    ['level', 'library', 'processor', 'reason', 'version']
    """
    return {"library": _path, "level": _level, "reason": _reason, "version": _text,
            "processor": " ".join(_core.levels())}


def show_config():
    """Print which library file is loaded, and why.

    The wheel has the library for every x86-64 processor (``x86-64``) and for those with AVX2 (``x86-64-v3``) and AVX-512
    (``x86-64-v4``). The best one is loaded at import. Debian's package has none: it loads the system's ``libvonkk3.so.4``,
    of which the system's loader chooses the level. The environment variable VONKK3_LEVEL names another of them, and
    VONKK3_LIBRARY any library file. Results are the same bits at all levels.

    Examples
    --------
    >>> vonkk3.show_config()  # doctest: +ELLIPSIS
    library    ...vonkk3.so
    level      ...
    reason     ...
    version    ...
    processor  ...x86-64
    """
    for key, value in get_config().items():
        print(f"{key:<10} {value or '(unknown)'}")
