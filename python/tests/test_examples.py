"""The programs beside the package run."""
import importlib.util
import json
import pathlib
import subprocess
import sys

import pytest

PYTHON = pathlib.Path(__file__).resolve().parents[1]
DOCS = PYTHON.parent / "docs"


def run(*arguments):
    done = subprocess.run([sys.executable, *map(str, arguments)], capture_output=True, text=True, check=False, timeout=300)
    assert done.returncode == 0, done.stdout + done.stderr
    return done.stdout


@pytest.mark.skipif(importlib.util.find_spec("distributed") is None, reason="python3-dask or python3-distributed is not installed")
def test_dask_gives_the_same_bits_for_any_number_of_workers(tmp_path):
    output = run(PYTHON / "examples/dask_solve.py", "--systems", 50500, "--chunk", 10000, "--workers", "1,2", "--save", tmp_path / "rows")
    lines = output.splitlines()
    assert len(lines) == 2 and lines[0].split()[-1] == lines[1].split()[-1]
    assert all(float(line.split("largest residual ")[1].split(",")[0]) < 1e-5 for line in lines)
    assert [row["workers"] for row in json.loads((tmp_path / "rows").read_text())["rows"]] == [1, 2]


def test_the_benchmark_runs(tmp_path):
    run(PYTHON / "benchmarks/beside_numpy.py", "--run", tmp_path / "rows.json", "--quick", "--plot", tmp_path / "rows.json",
        tmp_path / "rows.svg")
    assert len(json.loads((tmp_path / "rows.json").read_text())["rows"]) == 54
    assert (tmp_path / "rows.svg").read_text().startswith("<svg")


@pytest.mark.parametrize("program, data, picture", [("beside_numpy.py", "python.json", "python.svg"),
                                                    ("scaling.py", "python-scaling.json", "python-scaling.svg")])
def test_the_plots_are_of_the_data(tmp_path, program, data, picture):
    run(PYTHON / "benchmarks" / program, "--plot", DOCS / "site/data" / data, tmp_path / picture)
    assert (tmp_path / picture).read_text() == (DOCS / picture).read_text()


def test_the_table_is_of_the_data():
    table = run(PYTHON / "benchmarks/beside_numpy.py", "--table", DOCS / "site/data/python.json")
    assert table == (DOCS / "python-benchmarks.md").read_text()
