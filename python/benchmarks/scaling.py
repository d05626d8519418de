#!/usr/bin/env python3
"""Times vonkk3.parallel for numbers of threads, beside what examples/dask_solve.py kept of processes, and draws the plot.

    scaling.py --run FILE.json [--dask ROWS.json] [--seconds S]    measures; ROWS.json is what dask_solve.py --save keeps
    scaling.py --plot FILE.json FILE.svg             draws
"""
import argparse
import concurrent.futures
import hashlib
import json
import os
import pathlib
import time
from html import escape

import numpy as np
from beside_numpy import processor

COUNT = 1_000_000


def hashes(threads):
    """Work that is known to scale: what the machine gives while other programs run."""
    with concurrent.futures.ThreadPoolExecutor(threads) as pool:
        list(pool.map(lambda data: hashlib.blake2b(data).digest(), [bytes(12_000_000 // threads)] * threads))


def calls(dtype):
    from vonkk3 import parallel
    rng = np.random.default_rng(1)
    a = (rng.random((COUNT, 4, 4)) + 4 * np.eye(4)).astype(dtype)
    b = rng.random((COUNT, 4)).astype(dtype)
    out, into = np.empty_like(a), np.empty_like(b)
    label = f"threads: {{}}, {np.dtype(dtype).name}, order 4, {COUNT:,} objects"
    return {label.format("solve"): lambda threads: parallel.solve(a, b, out=into, threads=threads),
            label.format("inv"): lambda threads: parallel.inv(a, out=out, threads=threads),
            label.format("matmul"): lambda threads: parallel.matmul(a, a, out=out, threads=threads)}


def run(path, dask, seconds):
    import vonkk3
    work = {**calls(np.float32), **calls(np.float64), "for comparison: hashing 12 MB in threads": hashes}
    numbers = range(1, len(os.sched_getaffinity(0)) + 1)
    least = {(label, number): 1e9 for label in work for number in numbers}
    end = time.perf_counter() + seconds
    while time.perf_counter() < end:
        for (label, number), value in least.items():
            start = time.perf_counter()
            work[label](number)
            least[label, number] = min(value, time.perf_counter() - start)
    rows = [{"label": label, "seconds": {str(number): round(least[label, number], 5) for number in numbers}} for label in work]
    if dask:
        kept = json.loads(pathlib.Path(dask).read_text(encoding="utf-8"))
        for what in ("solving", "making"):
            rows.append({"label": f"Dask processes: {what} {kept['systems']:,} systems, float32, order {kept['order']}",
                         "seconds": {str(row["workers"]): row[what] for row in kept["rows"]}})
    context = {"date": time.strftime("%Y-%m-%d"), "processor": processor(), "processors": len(os.sched_getaffinity(0)),
               "level": vonkk3.get_config()["level"], "load": round(os.getloadavg()[0], 1)}
    text = ",\n".join("  " + json.dumps(row) for row in rows)
    pathlib.Path(path).write_text('{"context": ' + json.dumps(context) + ',\n "rows": [\n' + text + "\n]}\n", encoding="utf-8")


def plot(path, target):
    data = json.loads(pathlib.Path(path).read_text(encoding="utf-8"))
    context, left, width = data["context"], 400, 330
    most = max(int(n) for row in data["rows"] for n in row["seconds"])
    parts, y = [], 64
    for row in data["rows"]:
        first = row["seconds"]["1"]
        parts.append(f'<text x="{left - 10}" y="{y + 14}" text-anchor="end" class="s">{escape(row["label"])}</text>')
        for number, seconds in row["seconds"].items():
            length = width * first / seconds / most
            parts.append(f'<rect x="{left}" y="{y}" width="{length:.1f}" height="11" fill="{"#9fa8da" if number == "1" else "#3f51b5"}"/>'
                         f'<text x="{left + length + 5:.1f}" y="{y + 10}" class="s">{number}: {seconds * 1000:,.0f} ms'
                         f'{"" if number == "1" else f", {first / seconds:.2f} times"}</text>')
            y += 14
        y += 8
    title = "Speed with more threads or processes, relative to one"
    source = (f'{context["processor"]}, {context["processors"]} processors, library {context["level"]}, {context["date"]}, '
              f'load {context["load"]} with other programs')
    pathlib.Path(target).write_text(
        f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 880 {y + 22}" width="880" height="{y + 22}" role="img" '
        f'aria-label="{title}"><style>text{{font:13px sans-serif;fill:#222}}.s{{font-size:11px}}.t{{font-weight:bold}}</style>'
        f'<rect width="880" height="{y + 22}" fill="#fff"/><text x="10" y="20" class="t">{title}</text>'
        f'<text x="10" y="42" class="s">The number of threads or processes stands at each bar; one is the unit.</text>'
        f'{"".join(parts)}<text x="10" y="{y + 12}" class="s">{escape(source)}</text></svg>\n', encoding="utf-8")


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--run", metavar="JSON")
    parser.add_argument("--dask", metavar="ROWS")
    parser.add_argument("--seconds", type=float, default=60, help="how long to look for the least times")
    parser.add_argument("--plot", nargs=2, metavar=("JSON", "SVG"))
    arguments = parser.parse_args()
    if arguments.run:
        run(arguments.run, arguments.dask, arguments.seconds)
    if arguments.plot:
        plot(*arguments.plot)


if __name__ == "__main__":
    main()
