#!/usr/bin/env python3
"""Runs of the benchmarks that scripts/benchmark.sh has stored.

    benchmark_compare.py OLD        says whether OLD is such a run
    benchmark_compare.py OLD NEW    names the rows of NEW that got slower

Rows are compared by the ratio of the library to its best peer, not by nanoseconds. Exit code 0: none is slower by more
than a tenth; 1: some are; 2: a file cannot be read.
"""
import json
import math
import sys

LIMIT = 1.1
FORMAT = "vonkk3 benchmarks 1"
SUFFIX = "/iterations:1/manual_time"


class NotARun(Exception):
    pass


def load(path):
    """Context of a run, and its ratios by row."""
    try:
        with open(path, encoding="utf-8") as file:
            run = json.load(file)
        context = run["context"]
        if context["format"] != FORMAT:
            raise NotARun(f"{path}: stored by another version of the benchmarks")
        ratios = {}
        for row in run["benchmarks"]:
            ratio = float(row["ratio"])
            if not (math.isfinite(ratio) and ratio > 0):
                raise NotARun(f"{path}: the ratio of {row['name']} is {ratio}")
            ratios[row["name"].removesuffix(SUFFIX)] = ratio
    except OSError as error:
        raise NotARun(f"{path}: {error.strerror}") from error
    except (ValueError, KeyError, TypeError) as error:
        raise NotARun(f"{path}: not a run stored by scripts/benchmark.sh --save") from error
    if not ratios:
        raise NotARun(f"{path}: holds no rows")
    return context, ratios


def compare(old_path, new_path):
    """Prints what changed; whether no row got slower."""
    old_context, old = load(old_path)
    new_context, new = load(new_path)
    print(f"\nAGAINST {old_path}, measured {old_context.get('date', 'at an unknown time')}")
    for key in ("processor", "compiler", "flags"):
        if old_context.get(key) != new_context.get(key):
            print(f"    another {key}: {old_context.get(key)}; now {new_context.get(key)}")
    common = [name for name in new if name in old]
    for name in new:
        if name not in old:
            print(f"    not in that run: {name}")
    if not common:
        raise NotARun(f"{old_path}: no row of this run is in it")
    changes = sorted(((new[name] / old[name], name) for name in common), reverse=True)
    mean = math.exp(sum(math.log(change) for change, _ in changes) / len(changes))
    slower = [(change, name) for change, name in changes if change > LIMIT]
    faster = sum(change < 1 / LIMIT for change, _ in changes)
    print(f"    {len(common)} rows; ratios are {mean:.3f} of what they were, as a geometric mean")
    print(f"    slower by more than a tenth: {len(slower)}; faster by as much: {faster}")
    for change, name in slower:
        print(f"    {change:7.2f}  {name}  ({old[name]:.2f}, now {new[name]:.2f})")
    return not slower


def main():
    try:
        if len(sys.argv) == 2:
            load(sys.argv[1])
            return 0
        if len(sys.argv) == 3:
            return 0 if compare(sys.argv[1], sys.argv[2]) else 1
    except NotARun as error:
        print(error, file=sys.stderr)
        return 2
    print(__doc__, file=sys.stderr)
    return 2


if __name__ == "__main__":
    sys.exit(main())
