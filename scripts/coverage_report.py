#!/usr/bin/env python3
"""Prints how many lines of src/ were reached, by folder, and which were not, with the reasons that are on file.

    coverage_report.py COUNTS REASONS

COUNTS is what llvm-cov exports as text. A line counts as reached if any instance of its template reaches it. A line of
REASONS is

    src/folder/file.h | the line, as it stands in the file | why nothing reaches it

where the reason holds for the line and all that follow it and were not reached either; one that begins with # is a
remark. Exit code 1: a place that was not reached has no reason, or a reason no such place.
"""
import collections
import json
import os
import pathlib
import sys

CODE = 0  # the kind of a region; others are gaps, what the preprocessor skips, and branches


def lines_of(regions):
    """Of the code of one function how often each line was reached: as the innermost region around its beginning says, or
    one that begins on it."""
    count = {}
    # Outer regions come before what lies in them.
    for first, _, last, _, times, _, _, kind in sorted(regions, key=lambda r: (r[0], r[1], -r[2], -r[3])):
        if kind != CODE:
            continue
        count[first] = max(count.get(first, 0), times)
        for line in range(first + 1, last + 1):
            count[line] = times
    return count


def read_lines(path, root):
    """Per file of src/ the numbers of its lines, with how often each was reached by any instance of a template."""
    files = collections.defaultdict(dict)
    for function in json.loads(pathlib.Path(path).read_text())["data"][0]["functions"]:
        by_file = collections.defaultdict(list)
        for region in function["regions"]:
            by_file[region[5]].append(region)
        for number, regions in by_file.items():
            file = pathlib.Path(os.path.normpath(function["filenames"][number]))  # compilers are given relative ones
            if not file.is_relative_to(root / "src"):
                continue
            lines = files[str(file.relative_to(root))]
            for line, times in lines_of(regions).items():
                lines[line] = max(lines.get(line, 0), times)
    return files


def read_reasons(path):
    reasons = {}
    for number, line in enumerate(pathlib.Path(path).read_text().splitlines(), 1):
        if not line.strip() or line.startswith("#"):
            continue
        parts = [part.strip() for part in line.split(" | ")]
        if len(parts) < 3:
            sys.exit(f"{path}:{number}: not FILE | LINE | REASON")
        # The line itself may hold " | ".
        reasons[parts[0], " | ".join(parts[1:-1])] = parts[-1]
    return reasons


def runs(numbers):
    """First and last of each row of consecutive numbers."""
    found = []
    for number in numbers:
        if found and found[-1][1] == number - 1:
            found[-1][1] = number
        else:
            found.append([number, number])
    return found


def main():
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    root = pathlib.Path.cwd()
    files = read_lines(sys.argv[1], root)
    reasons = read_reasons(sys.argv[2])
    if not files:
        sys.exit("no line of src/ was counted")

    folders = collections.defaultdict(lambda: [0, 0])
    for file, lines in files.items():
        totals = folders[str(pathlib.Path(file).parent)]
        totals[0] += sum(count > 0 for count in lines.values())
        totals[1] += len(lines)
    print(f"{'folder':<16}{'lines':>8}{'reached':>9}")
    rows = sorted(folders.items())
    rows.append(("together", [sum(row[1][k] for row in rows) for k in (0, 1)]))
    for folder, (reached, lines) in rows:
        print(f"{folder:<16}{lines:>8}{reached:>9}{100 * reached / lines:>9.2f}%")

    used = set()
    unexplained = 0
    for file, lines in sorted(files.items()):
        text = (root / file).read_text().splitlines()
        for first, last in runs(sorted(number for number, count in lines.items() if count == 0)):
            line = text[first - 1].strip()
            reason = reasons.get((file, line))
            used.add((file, line))
            unexplained += reason is None
            print(f"{file}:{first}-{last}: {line}\n    not reached: {reason or 'NO REASON IS ON FILE'}")
    stale = [key for key in reasons if key not in used]
    for file, line in stale:
        print(f"{sys.argv[2]}: out of date, since it is reached or gone: {file} | {line}")
    print(f"{unexplained} places without a reason, {len(stale)} reasons out of date")
    return 1 if unexplained or stale else 0


sys.exit(main())
