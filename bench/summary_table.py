#!/usr/bin/env python3
"""Takes the table at the head of bench/README.md from the summary at its end.

    summary_table.py [--check]

Paste what `sh scripts/benchmark.sh --both` prints into the README's results, then run this. With --check nothing is
written, and a table that is not of the results is an error.
"""
import pathlib
import re
import sys

PAGE = pathlib.Path(__file__).resolve().parent / "README.md"
ARRAYS, SINGLES, DOUBLES = "Arrays of objects, 32f", "Single calls and single vectors, 32f", "64f"
ROWS = [("arrays, `32f`", ARRAYS, "all"), ("arrays, `32f`: peers of the same bits", ARRAYS, "peers of the same bits"),
        ("arrays, `32f`: standard layout", ARRAYS, "standard")]
ROWS += [(f"arrays, `32f`: `{layout}`", ARRAYS, layout) for layout in ("S2", "P", "PS2", "L", "LS2")]
ROWS += [("single calls, `32f`", SINGLES, "all"), ("`64f`", DOUBLES, "all"),
         ("`64f`: peers of the same bits", DOUBLES, "peers of the same bits")]
HEAD = "| | rows | baseline | > 1.15 | best level | > 1.15 |\n|---|---:|---:|---:|---:|---:|\n"


def table(text):
    results = text[text.index("\n## Results"):]
    lines = []
    for label, part, name in ROWS:
        section = re.split(r"\n(?=\S)", results[re.search(rf"^{part}$", results, re.MULTILINE).start():])[0]
        found = re.search(rf"^    {name}\s+(\d+)\s+([\d.]+)\s+\d+\s+(\d+)\s+([\d.]+)\s+\d+\s+(\d+)$", section, re.MULTILINE)
        if found is None:
            sys.exit(f"bench/README.md: its results have no row \"{name}\" in \"{part}\"")
        lines.append(f"| {label} | " + " | ".join(found.groups()) + " |\n")
    return HEAD + "".join(lines)


def main():
    text = PAGE.read_text(encoding="utf-8")
    start = text.index(HEAD)
    end = text.index("\n\n", start) + 1
    updated = text[:start] + table(text) + text[end:]
    if sys.argv[1:] != ["--check"]:
        PAGE.write_text(updated, encoding="utf-8")
    elif updated != text:
        sys.exit("FAILED: the summary of bench/README.md is not of its results: python3 bench/summary_table.py")


if __name__ == "__main__":
    main()
