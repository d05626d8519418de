#!/usr/bin/env python3
"""The README's plot is drawn from the checked-in run of the benchmarks, and the text beside it says which run that is.

    plot_test.py SOURCE_FOLDER
"""
import json
import pathlib
import subprocess
import sys
import tempfile

source = pathlib.Path(sys.argv[1])
context = json.loads((source / "docs/site/data/benchmarks.json").read_text(encoding="utf-8"))["context"]
failures = []

with tempfile.TemporaryDirectory() as folder:
    drawn = pathlib.Path(folder) / "speed.svg"
    subprocess.run([sys.executable, "-B", source / "docs/site/plots.py", "--speed", drawn], check=True)
    if drawn.read_bytes() != (source / "docs/speed.svg").read_bytes():
        failures.append("docs/speed.svg is not what docs/site/plots.py --speed docs/speed.svg draws")

for page, picture in (("README.md", "(docs/speed.svg)"), ("docs/site/pages/performance.md", "(plots/peers.svg)")):
    text = " ".join((source / page).read_text(encoding="utf-8").split())
    for words in (picture, context["processor"], context["compiler"]):
        if words not in text:
            failures.append(f"{page} does not have {words}")

for failure in failures:
    print("FAILED:", failure)
sys.exit(1 if failures else 0)
