#!/usr/bin/env python3
"""Prints how many lines of src/ were reached, by folder, and which were not, with the reasons that are on file.

    coverage_report.py LINES REASONS

LINES is what llvm-cov exports as lcov. A line of REASONS is

    src/folder/file.h | the line, as it stands in the file | why nothing reaches it

and one that begins with # is a remark. Exit code 1: a line that was not reached has no reason, or a reason no such line.
"""
import collections
import pathlib
import sys


def read_lines(path, root):
    """Per file of src/ the numbers of its lines, with how often each was reached by any library."""
    files = collections.defaultdict(dict)
    current = None
    for record in pathlib.Path(path).read_text().splitlines():
        if record.startswith("SF:"):
            file = pathlib.Path(record[3:])
            inside = file.is_relative_to(root / "src")
            current = files[str(file.relative_to(root))] if inside else None
        elif record.startswith("DA:") and current is not None:
            number, count = record[3:].split(",")[:2]
            current[int(number)] = max(current.get(int(number), 0), int(count))
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
    print(f"{'folder':<16}{'lines':>8}{'reached':>9}{'':>10}")
    rows = sorted(folders.items())
    rows.append(("together", [sum(row[1][k] for row in rows) for k in (0, 1)]))
    for folder, (reached, lines) in rows:
        print(f"{folder:<16}{lines:>8}{reached:>9}{100 * reached / lines:>9.2f}%")

    used = set()
    unexplained = 0
    for file, lines in sorted(files.items()):
        text = (root / file).read_text().splitlines()
        for number in sorted(number for number, count in lines.items() if count == 0):
            line = text[number - 1].strip()
            reason = reasons.get((file, line))
            used.add((file, line))
            unexplained += reason is None
            print(f"{file}:{number}: {line}\n    not reached: {reason or 'NO REASON IS ON FILE'}")
    stale = [key for key in reasons if key not in used]
    for file, line in stale:
        print(f"{sys.argv[2]}: out of date, since it is reached or gone: {file} | {line}")
    print(f"{unexplained} lines without a reason, {len(stale)} reasons out of date")
    return 1 if unexplained or stale else 0


sys.exit(main())
