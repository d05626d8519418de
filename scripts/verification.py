#!/usr/bin/env python3
"""Writes docs/verification.md from the results of scripts/nightly.sh, or counts comparisons.

    verification.py FOLDER [PAGE]             the page, on standard output; steps without results stand as in the old PAGE
    verification.py --comparisons FOLDER [COMMIT]      how many comparisons passed in its chunks of a commit, or of HEAD
    verification.py --processor               this machine's processor, as results name it
"""
import pathlib
import re
import subprocess
import sys

STEPS = {
    "tests": "All tests, with sanitizers and as optimised",
    "compilers": "Bits from six compilers and levels",
    "levels": "Instruction sets",
    "comparisons": "Random comparisons with the model",
    "fuzz": "Coverage-guided search",
    "coverage": "Coverage of `src/`",
    "threads": "Eight threads, thread sanitizer",
    "valgrind": "Memory errors, Valgrind",
    "abi": "Functions and types of the header",
    "windows": "Windows DLL, by Wine",
    "linux32": "32-bit x86 Linux",
    "packages": "Debian packages and release",
    "site": "Documentation site",
    "faults": "Deliberate faults",
}

# The lines of an output that say what came out.
TELLING = re.compile(
    r"passed, |differences$|tests passed|^ok: |FAILED|FOUND|^together|reasons out of date|functions compared"
    r"|^packages work|the same bytes twice|^stat::number_of_executed|^ended: |\braces? |without a reason"
)


class Result:
    def __init__(self, path):
        lines = path.read_text(errors="replace").splitlines()
        self.name = path.name
        self.step = path.name.split("-")[0]
        (self.commit, self.date, self.seconds, self.processor, self.exit,
         self.command) = (line.split(" ", 1)[1] for line in lines[:6])
        self.output = lines[6:]

    def passed_and_failed(self):
        last = [re.search(r"(\d+) passed, (\d+) failed", line) for line in self.output]
        last = [match for match in last if match]
        return (int(last[-1][1]), int(last[-1][2])) if last else (0, 0)

    def telling(self):
        return [line.strip() for line in self.output if TELLING.search(line)]


def results_in(folder):
    paths = sorted(path for path in pathlib.Path(folder).iterdir() if path.name.split("-")[0] in STEPS)
    return [Result(path) for path in paths if path.read_text(errors="replace").startswith("commit ")]


def output_of(*command):
    return subprocess.run(command, capture_output=True, text=True, check=True).stdout.splitlines()[0].strip()


def processor():
    facts = dict(re.findall(r"^([^\t:]+?)\s*:\s*(.*)$", pathlib.Path("/proc/cpuinfo").read_text().split("\n\n")[0], re.M))
    wide = [name for name in ("avx2", "avx512f") if name in facts.get("flags", "").split()]
    return (f"{facts.get('model name', 'unknown processor')}, family {facts.get('cpu family', '?')} "
            f"model {facts.get('model', '?')}, {' and '.join(wide) or 'no AVX2'}")


def sections_of(page):
    """What stands under each heading of an older page."""
    parts = re.split(r"^## (.*)\n", pathlib.Path(page).read_text(), flags=re.M)[1:]
    return dict(zip(parts[::2], (text.strip() for text in parts[1::2])))


def comparisons(results, older):
    """A line for each commit; the older page's lines stay, but those of a commit that is counted anew."""
    lines = []
    for commit in sorted({result.commit for result in results}):
        chunks = [result for result in results if result.commit == commit]
        passed, failed = (sum(numbers) for numbers in zip(*(chunk.passed_and_failed() for chunk in chunks)))
        dates = sorted({chunk.date for chunk in chunks})
        seconds = sum(int(chunk.seconds) for chunk in chunks)
        builds = max(chunk.command.count("--library") for chunk in chunks)
        of_builds = f" of {builds} builds of the library" if builds > 1 else ""
        lines.append(f"- Commit {commit}, {' to '.join(dates[:1] + dates[1:][-1:])}, {len(chunks)} "
                     f"chunk{'s' * (len(chunks) != 1)}, {seconds} s: {passed + failed:,} comparisons{of_builds}, {failed} failures.")
    counted = tuple(f"- Commit {result.commit}," for result in results)
    return [line for line in older.splitlines() if line.startswith("- ") and not line.startswith(counted)] + lines


def section(step, results, older):
    if not results:
        return older or "Not run."
    if step == "comparisons":
        return "\n".join(comparisons(results, older))
    texts = []
    for result in results:
        outcome = "passed" if result.exit == "0" else f"FAILED (exit code {result.exit})"
        texts.append(f"`{result.command}`: {outcome}. Commit {result.commit}, {result.date}, {result.seconds} s, on "
                     f"{result.processor}.")
        telling = result.telling()
        if telling:
            texts.append("\n".join("    " + line for line in telling[-12:]))
    return "\n\n".join(texts)


def main():
    arguments = sys.argv[1:]
    if arguments == ["--processor"]:
        print(processor())
        return
    counts = arguments[:1] == ["--comparisons"]
    if len(arguments) not in ((2, 3) if counts else (1, 2)):
        sys.exit(__doc__)
    results = results_in(arguments[1] if counts else arguments[0])
    if counts:
        commit = arguments[2] if len(arguments) == 3 else output_of("git", "rev-parse", "--short", "HEAD")
        print(sum(result.passed_and_failed()[0] for result in results
                  if result.step == "comparisons" and result.commit == commit))
        return
    older = sections_of(arguments[1]) if len(arguments) == 2 else {}
    print("# Verification\n\nWritten by `scripts/nightly.sh`: what was run last, and what came of it. Each result names "
          "the commit it is\nof; a step that has not been run says so.\n")
    for compiler in ("g++", "clang++"):
        print(f"- Compiler: {output_of(compiler, '--version')}")
    for step, title in STEPS.items():
        print(f"\n## {title}\n\n" + section(step, [result for result in results if result.step == step],
                                            older.get(title, "")))


main()
