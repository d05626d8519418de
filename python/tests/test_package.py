"""Which library is loaded, docstrings, stubs, overhead, and the wheel's contents."""
import doctest
import importlib.util
import os
import pathlib
import pickle
import re
import shutil
import subprocess
import sys
import timeit

import numpy as np
import pytest
import vonkk3

TOP = pathlib.Path(__file__).resolve().parents[2]
LEVELS = ("x86-64", "x86-64-v3", "x86-64-v4")


def run(code, **environment):
    return subprocess.run([sys.executable, "-c", code], capture_output=True, text=True, check=False,
                          env={**os.environ, **environment})


def test_the_package_is_the_installed_one():
    assert TOP not in pathlib.Path(vonkk3.__file__).parents
    text = (TOP / "include/vonkk3/types.h").read_text(encoding="utf-8")
    parts = [re.search(rf"VONKK3_VERSION_{part} (\d+)", text)[1] for part in ("MAJOR", "MINOR", "PATCH")]
    assert vonkk3.__version__ == ".".join(parts)


def test_the_wheel_has_all_levels_that_were_built():
    build = os.environ.get("VONKK3_BUILD")
    if not build:
        pytest.skip("VONKK3_BUILD does not name the library's build")
    built = {level for level in LEVELS if (pathlib.Path(build) / ("" if level == "x86-64" else f"levels/{level}") / "vonkk3.so").exists()}
    installed = {path.parent.name for path in (pathlib.Path(vonkk3.__file__).parent / "lib").glob("*/vonkk3.so")}
    assert "x86-64" in built and installed == built


def test_the_wheel_has_the_licence():
    found = list(pathlib.Path(vonkk3.__file__).parents[1].glob("vonkk3-*.dist-info/**/LICENSE"))
    assert [path.read_text(encoding="utf-8") for path in found] == [(TOP / "LICENSE").read_text(encoding="utf-8")]


def test_the_best_level_is_chosen():
    config = vonkk3.get_config()
    has = config["processor"].split()
    installed = [path.parent.name for path in (pathlib.Path(vonkk3.__file__).parent / "lib").glob("*/vonkk3.so")]
    assert config["level"] == max(set(has) & set(installed), key=LEVELS.index)


def test_levels_can_be_named_and_give_the_same_bits():
    code = ("import numpy as np, vonkk3, hashlib; r = np.random.default_rng(1); print(vonkk3.get_config()['level']);"
            "a = r.normal(size=(999, 5, 5)) + 9 * np.eye(5); b = a.astype('f');"
            "print(hashlib.sha1(b''.join(f(x).tobytes() for x in (a, b) for f in (vonkk3.inv, vonkk3.det,"
            "lambda x: vonkk3.solve(x, x), lambda x: vonkk3.qr(x)[0], lambda x: vonkk3.norm(x)))).hexdigest())")
    seen = set()
    for level in vonkk3.get_config()["processor"].split():
        if (pathlib.Path(vonkk3.__file__).parent / "lib" / level / "vonkk3.so").exists():
            done = run(code, VONKK3_LEVEL=level)
            assert done.returncode == 0, done.stderr
            loaded, digest = done.stdout.split()
            assert loaded == level
            seen.add(digest)
    assert len(seen) == 1


def test_a_library_file_can_be_named():
    path = vonkk3.get_config()["library"]
    done = run("import vonkk3; vonkk3.show_config()", VONKK3_LIBRARY=path)
    assert path in done.stdout and "named by VONKK3_LIBRARY" in done.stdout


@pytest.mark.parametrize("environment, words", [
    ({"VONKK3_LEVEL": "x86-64-v9"}, "the levels are"), ({"VONKK3_LIBRARY": "/nowhere/vonkk3.so"}, "cannot be loaded"),
    ({"VONKK3_LIBRARY": "libm.so.6"}, "not a fitting library")])
def test_what_cannot_be_loaded_is_said(environment, words):
    done = run("import vonkk3", **environment)
    assert done.returncode and "ImportError" in done.stderr and words in done.stderr


def test_functions_can_be_pickled():
    """As programs on many processes do."""
    for name in vonkk3.__all__:
        if name != "parallel":
            assert pickle.loads(pickle.dumps(getattr(vonkk3, name))) is getattr(vonkk3, name)


def examples():
    globs = {"np": np, "vonkk3": vonkk3}
    texts = {name: getattr(vonkk3, name).__doc__ for name in vonkk3.__all__}
    return globs, texts


def test_examples_in_docstrings():
    globs, texts = examples()
    runner = doctest.DocTestRunner(optionflags=doctest.NORMALIZE_WHITESPACE)
    for name, text in texts.items():
        test = doctest.DocTestParser().get_doctest(text, dict(globs), name, None, 0)
        assert test.examples, f"{name} has no example"
        assert runner.run(test).failed == 0
    assert runner.tries > len(texts)


def test_docstrings_say_what_functions_take_and_give():
    for name, text in examples()[1].items():
        if name not in ("parallel", "LinAlgError", "get_config", "show_config"):
            for section in ("Parameters", "Returns", "Notes" if isinstance(getattr(vonkk3, name), np.ufunc) else "Examples"):
                assert f"{section}\n" in text, f"{name} has no {section}"


def page_blocks(page):
    return re.findall(r"^```python\n(.*?)^```$", page.read_text(encoding="utf-8"), re.M | re.S)


def test_the_tutorial_runs():
    page = TOP / "docs/site/pages/python.md"
    blocks = page_blocks(page)
    assert len(blocks) > 5
    runner, globs = doctest.DocTestRunner(optionflags=doctest.NORMALIZE_WHITESPACE | doctest.ELLIPSIS), {}
    if importlib.util.find_spec("dask") is None:
        blocks = [block for block in blocks if "dask" not in block]
    for block in blocks:
        test = doctest.DocTestParser().get_doctest(block, globs, page.name, str(page), 0)
        assert test.examples, f"no example in {block}"
        assert runner.run(test, clear_globs=False).failed == 0
        globs = test.globs


def test_the_readme_runs():
    blocks = page_blocks(TOP / "README.md")
    assert blocks
    for block in blocks:
        exec(compile(block, "README.md", "exec"), {})


def test_stubs():
    mypy = shutil.which("mypy")
    if mypy is None:
        pytest.skip("mypy is not installed: the stubs are not checked")
    use = TOP / "python/tests/typed_use.py"
    installed = str(pathlib.Path(vonkk3.__file__).parent.parent)
    environment = {**os.environ, "MYPYPATH": installed}
    done = subprocess.run([mypy, "--strict", "--cache-dir", os.devnull, "--python-executable", sys.executable, str(use)],
                          capture_output=True, text=True, check=False)
    assert done.returncode == 0, done.stdout + done.stderr
    # Wrong uses are found: the check can fail.
    wrong = subprocess.run([mypy, "--strict", "--cache-dir", os.devnull, "--python-executable", sys.executable, "-c",
                            "import vonkk3, numpy\nvonkk3.solve(numpy.eye(3), numpy.eye(3), assume_a='symmetric')\nvonkk3.invert"],
                           capture_output=True, text=True, check=False)
    assert wrong.returncode == 1 and "assume_a" in wrong.stdout + wrong.stderr and "invert" in wrong.stdout
    # What the stubs name is what there is.
    named = set(re.findall(r"^(?:def|class) (\w+)", (pathlib.Path(vonkk3.__file__).parent / "__init__.pyi").read_text(), re.M))
    assert named | {"parallel"} == set(vonkk3.__all__)
    assert environment


def test_a_call_on_one_object_costs_little():
    """Under 2 microseconds more than numpy.add of one number, by the least of many runs."""
    number = np.ones(1)
    a, b = np.eye(3, dtype=np.float32) * 2, np.ones(3, np.float32)

    def least(call):
        return min(timeit.repeat(call, number=2000, repeat=15)) / 2000

    add = least(lambda: np.add(number, number))
    for name, call in {"inv": lambda: vonkk3.inv(a), "solve": lambda: vonkk3.solve(a, b), "det": lambda: vonkk3.det(a),
                       "matmul": lambda: vonkk3.matmul(a, a), "cholesky": lambda: vonkk3.cholesky(a),
                       "norm": lambda: vonkk3.norm(b)}.items():
        more = least(call) - add
        assert more < 4e-6, f"{name} costs {more * 1e6:.2f} microseconds more" # twice the aim: other programs run, too
