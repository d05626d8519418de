#!/usr/bin/env python3
"""Proves that the tests can fail: applies the deliberate faults of tests/faults.toml one at a time, each to a copy of the
sources, and checks the library that comes of it; at least one check must turn red. Prints what caught each fault and ends
in 'N passed, N failed', where a fault that nothing catches has failed.

    faults.py [--list | --apply] [--unit UNIT] [WORD...]     the faults whose names contain one of the words, all without
                                                              words; with --unit those that change what is compiled into a
                                                              unit; --apply only looks whether each still changes its file

Only the units that a fault names are compiled anew, at -O1; the rest of the library, the programs that check it and the
compiler's options are those of build/bench, which is brought up to date first. One fault to a processor is in work.
"""
import argparse
import concurrent.futures
import os
import pathlib
import re
import shutil
import subprocess
import sys
import time
import tomllib

TOP = pathlib.Path(__file__).resolve().parent.parent
BUILD = TOP / "build/bench"
FOLDER = TOP / "build/faults"
PATIENCE = 600 # seconds that a check may take


class NotApplied(Exception):
    pass


def run(command, **options):
    return subprocess.run([str(word) for word in command], capture_output=True, text=True, errors="replace", **options)


def must(command, **options):
    done = run(command, **options)
    if done.returncode != 0:
        raise RuntimeError(f"{' '.join(map(str, command))}\n{(done.stdout + done.stderr)[-2000:]}")
    return done.stdout


class Library:
    """How the library for an instruction set is compiled and linked, by the build's own commands."""

    def __init__(self, level):
        self.path = BUILD / "vonkk3.so" if level == "x86-64" else BUILD / f"levels/{level}/vonkk3.so"
        commands = must(["ninja", "-C", BUILD, "-t", "commands", self.path.relative_to(BUILD)]).splitlines()
        self.link = next(line for line in reversed(commands) if " -shared " in line)
        self.compile = {}
        for line in commands:
            compiled = re.search(r" -o (\S+/([^/ ]+)\.cpp\.o) -c \S+$", line)
            if compiled and f" {compiled[1]} " in self.link: # wide levels have objects of the baseline, too
                self.compile[compiled[2]] = (line, compiled[1])

    def with_fault(self, units, sources, folder):
        """Links the library with `units` compiled from `sources`, and gives its path."""
        link = re.sub(r"-o (\S+)", f"-o {folder}/vonkk3.so", self.link.split("&&")[1], count=1)
        for unit in units:
            if unit not in self.compile:
                raise NotApplied(f"there is no unit {unit}")
            line, output = self.compile[unit]
            ours = f"{folder}/{unit}.o"
            line = line.replace(f"-I{TOP}/src", f"-I{sources}/src").replace(" -O3 ", " -O1 -fexpensive-optimizations ").replace(" -Werror ", " ")
            line = line.replace(f"-c {TOP}/src/", f"-c {sources}/src/").replace(output, ours)
            line = re.sub(r" -Winvalid-pch -include \S+", "", line) # the precompiled header is of the sources without the fault
            must(["sh", "-c", line], cwd=BUILD)
            # Before all others: of functions that several units have alike, the linker takes the first.
            link = link.replace(f" {output}", "")
            link = link.replace(f"-o {folder}/vonkk3.so", f"-o {folder}/vonkk3.so {ours}")
        must(["sh", "-c", link], cwd=BUILD)
        return folder / "vonkk3.so"


def functions_of(unit):
    """A regular expression for the names of a unit's exports, or None where it has none."""
    match = re.fullmatch(r"[a-z-]+_(\w+)_(32f|64f)", unit)
    return f"vonk{match[1]}_[a-zA-Z]+_{match[2]}" if match else None


def checks(units, library):
    """Commands, each with its name and environment, in the order of what they take."""
    patterns = [pattern for pattern in map(functions_of, units) if pattern]
    loaded = {**os.environ, "VONKK3_LIBRARY": str(library), "LD_PRELOAD": str(library)}
    if patterns:
        only = f"^({'|'.join(patterns)})"
        compare = [BUILD / "tests/compare", "--only", only, "--library", library]
        yield "compare", compare + ["--calls", "100", "--stop"], None
        yield "bits", [BUILD / "tests/bits", "--check", TOP / "tests/bits.txt", "--only", only, "--library", library], None
    tests = [BUILD / "tests/vonkk3_tests", "--gtest_brief=1"]
    yield "control", tests + ["--gtest_filter=Control*"], loaded
    if patterns:
        yield "compare", compare + ["--calls", "500", "--seed", "2", "--stop"], None
    yield "cases", tests + ["--gtest_filter=-Guards*:Control*:Calls.ReachEveryStatus*:Bitstream.HoldsNoCall*"], loaded
    yield "guards", tests + ["--gtest_filter=Guards*"], loaded
    yield "library_file", ["sh", TOP / "tests/library_file_test.sh", library.parent, BUILD / "src/generated/exports.txt"], None


def copied_with(fault, folder, names):
    """A copy of the folders `names` with the fault in it."""
    tree = folder / "tree"
    tree.mkdir()
    for name in names:
        if (TOP / name).is_dir():
            shutil.copytree(TOP / name, tree / name)
        else:
            shutil.copy2(TOP / name, tree / name)
    path = tree / fault["file"]
    path.write_text(changed(fault, path))
    return tree


def changed(fault, path):
    """The text of a file with the fault in it."""
    text = must(["sed", "-E", fault["change"], path])
    if text == path.read_text():
        raise NotApplied("the code has moved on: mend tests/faults.toml")
    return text


def all_apply(faults):
    """Whether each of them still changes its file. It takes a second, so that the tests of a change can ask."""
    passed = 0
    for fault in faults:
        try:
            changed(fault, TOP / fault["file"])
            passed += 1
        except NotApplied as reason:
            print(f"NOT APPLIED: {fault['name']} ({reason})")
    print(f"{passed} passed, {len(faults) - passed} failed")
    return passed == len(faults)


def caught_by_library(fault, folder, libraries):
    tree = copied_with(fault, folder, ["src"])
    library = libraries[fault.get("level", "x86-64")].with_fault(fault["units"], tree, folder)
    for name in ("libvonkk3.so", "libvonkk3.so.4"):
        (folder / name).symlink_to("vonkk3.so")
    for name, command, environment in checks(fault["units"], library):
        try:
            done = run(command, env=environment, timeout=PATIENCE)
        except subprocess.TimeoutExpired:
            return f"{name}, which does not end"
        if done.returncode != 0:
            red = re.search(r"\[  FAILED  \] (\S+\.\S+)", done.stdout)
            return f"{name}, {red[1]}" if red else name
    return None


def caught_by_generator(fault, folder):
    """A fault of the generator: what it writes, its tables, and the tests of both."""
    tree = copied_with(fault, folder, [path.name for path in TOP.iterdir() if path.name not in ("build", "dist", ".git")])
    # As build/bench is, so that a compiler cache knows what the fault leaves alone.
    must(["cmake", "--preset", "bench", "-DVONKK3_EXAMPLES=OFF", "-DVONKK3_BENCHMARKS=OFF", "-DVONKK3_LEVELS=x86-64"], cwd=tree)
    built = run(["cmake", "--build", "--preset", "bench", "--target", "vonkk3_tests"], cwd=tree)
    if built.returncode != 0:
        refused = re.search(r"(exception \S+|generate): .*", built.stdout + built.stderr)
        if refused:
            return f"the generator, {refused[0]}"
        raise RuntimeError((built.stdout + built.stderr)[-2000:])
    done = run([tree / "build/bench/tests/vonkk3_tests", "--gtest_brief=1",
                "--gtest_filter=Catalogue*:Patterns*:Exception*:Text*:Stubs*:Exports*:CheckedInFiles*:Header*:Usage*"])
    red = re.search(r"\[  FAILED  \] (\S+)", done.stdout)
    return red[1] if done.returncode != 0 and red else None


def worked(number, fault, libraries):
    folder = FOLDER / str(number)
    folder.mkdir(parents=True)
    try:
        by = caught_by_library(fault, folder, libraries) if "units" in fault else caught_by_generator(fault, folder)
        return (True, f"caught: {fault['name']}, by {by}") if by else (False, f"MISSED: {fault['name']}")
    except NotApplied as reason:
        return False, f"NOT APPLIED: {fault['name']} ({reason})"
    except Exception as reason: # which must not end the others
        return False, f"NOT BUILT: {fault['name']}\n{reason}"
    finally:
        shutil.rmtree(folder, ignore_errors=True)


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--list", action="store_true", help="print the names of the faults and stop")
    parser.add_argument("--apply", action="store_true", help="only look whether each still changes its file")
    parser.add_argument("--unit", action="append", default=[], help="only faults that change this unit")
    parser.add_argument("words", nargs="*")
    options = parser.parse_args()
    faults = tomllib.loads((TOP / "tests/faults.toml").read_text())["fault"]
    if options.unit:
        faults = [fault for fault in faults if set(options.unit) & set(fault.get("units", []))]
    if options.words:
        faults = [fault for fault in faults if any(word in fault["name"] for word in options.words)]
    if options.list:
        print("\n".join(fault["name"] for fault in faults))
        return 0
    if not faults:
        print("no fault is named so; --list prints their names" if options.words else "0 passed, 0 failed")
        return 2 if options.words else 0
    if options.apply:
        return 0 if all_apply(faults) else 1
    levels = sorted({fault.get("level", "x86-64") for fault in faults})
    unknown = [level for level in levels if level != "x86-64" and run(["sh", "-c", f". scripts/levels.sh; runs_level {level}"], cwd=TOP).returncode]
    for level in unknown:
        left_out = [fault for fault in faults if fault.get("level") == level]
        print(f"left out: {len(left_out)} faults of {level}, which this processor does not run")
        faults = [fault for fault in faults if fault.get("level") != level]
    targets = ["vonkk3" if level == "x86-64" else f"vonkk3-{level}" for level in levels]
    must(["cmake", "--preset", "bench"], cwd=TOP)
    must(["cmake", "--build", BUILD, "--target", *targets, "vonkk3_tests", "compare", "bits"])
    libraries = {level: Library(level) for level in levels}
    shutil.rmtree(FOLDER, ignore_errors=True)
    began = time.monotonic()
    missed = done = 0
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        for caught, line in (future.result() for future in concurrent.futures.as_completed(
                [pool.submit(worked, number, fault, libraries) for number, fault in enumerate(faults)])):
            done += 1
            missed += not caught
            print(f"[{done}/{len(faults)}, {time.monotonic() - began:.0f} s] {line}", flush=True)
    print(f"{done - missed} passed, {missed} failed")
    return 1 if missed else 0


if __name__ == "__main__":
    sys.exit(main())
