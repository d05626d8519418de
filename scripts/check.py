"""What scripts/check.sh runs once packages and build folder stand; it has the options."""
import argparse
import json
import pathlib
import re
import subprocess
import sys
import time

TOP = pathlib.Path(__file__).resolve().parent.parent
BUILD = TOP / "build/bench"
BEGAN = time.monotonic()


def heading(text):
    print(f"== {text} ({time.monotonic() - BEGAN:.0f} s)", flush=True)


def chosen(functions, names):
    """The functions that names stand for, in the order of the catalogue."""
    found = set()
    for name in names:
        matching = [f for f in functions if name in (f["family"], f["operation"])]
        if not matching:
            try:
                matching = [f for f in functions if re.search(name, f["name"])]
            except re.error as problem:
                sys.exit(f"check.sh: no regular expression: {name} ({problem})")
        if not matching:
            print(f"check.sh: no function, operation or family is named so: {name}", file=sys.stderr)
            sys.exit(2)
        found.update(f["name"] for f in matching)
    return [f for f in functions if f["name"] in found]


def suites_that_call(operations):
    """A filter for the test suites in whose files a function of one of the operations is called, and those that call every export."""
    calls = re.compile(rf"\bvonk({'|'.join(operations)})_")
    suites = {"ManyObjects", "ArgumentChecks", "Elementwise"} # of all exports
    for path in sorted((TOP / "tests").glob("*_test.cpp")):
        text = path.read_text()
        if calls.search(text):
            suites.update(re.findall(r"^TEST(?:_[FP])?\((\w+),", text, re.MULTILINE))
    return ":".join(f"{suite}.*" for suite in sorted(suites - {"CheckedInFiles", "Calls", "Bitstream", "Comparison"}))


def main():
    parser = argparse.ArgumentParser(prog="check.sh")
    parser.add_argument("--no-faults", action="store_true")
    parser.add_argument("--no-benchmarks", action="store_true")
    parser.add_argument("names", nargs="+", metavar="NAME")
    options = parser.parse_args()

    def build(*targets):
        heading("Building")
        done = subprocess.run(["cmake", "--build", BUILD, "--target", *targets], stdout=subprocess.PIPE, text=True)
        if done.returncode != 0:
            print(done.stdout[-4000:])
            sys.exit(1)

    def check(what, *command):
        heading(what)
        if subprocess.run([str(word) for word in command], cwd=TOP).returncode != 0:
            print(f"== FAILED: {what}")
            sys.exit(1)

    build("vonkk3_generated")
    functions = chosen(json.loads((BUILD / "src/generated/functions.json").read_text())["functions"], options.names)
    operations = sorted({f["operation"] for f in functions})
    names = "^(" + "|".join(f["name"] for f in functions) + ")$"
    units = sorted({f"{f['family']}_{f['operation']}_{'32f' if f['element'] == 'float' else '64f'}" for f in functions})
    print(f"{len(functions)} functions in {', '.join(units)}")

    build("vonkk3", "vonkk3_tests", "compare", "bits")
    check("Literal tests", BUILD / "tests/vonkk3_tests", "--gtest_brief=1", f"--gtest_filter={suites_that_call(operations)}")
    check("Random calls", BUILD / "tests/compare", "--calls", "200", "--only", names)
    check("Bits", BUILD / "tests/bits", "--check", "tests/bits.txt", "--only", names)
    if not options.no_benchmarks:
        build("benchmarks")
        rows = subprocess.run([BUILD / "bench/benchmarks", "--benchmark_list_tests"], capture_output=True, text=True).stdout
        rows = sorted({row.split("/")[0] for row in rows.splitlines()} & {f["name"] for f in functions})
        if rows:
            check("Benchmarks", BUILD / "bench/benchmarks", "--rounds=40", f"--benchmark_filter=^({'|'.join(rows)})/")
        else:
            heading("No row of the benchmarks is one of these functions")
    if not options.no_faults:
        check("Deliberate faults", sys.executable, "scripts/faults.py", *(f"--unit={unit}" for unit in units))
    heading("Done")


main()
