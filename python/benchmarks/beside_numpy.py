#!/usr/bin/env python3
"""Times the package beside numpy and hand-written vectorised formulas, and draws the plot.

    beside_numpy.py --run FILE.json [--quick]    measures; --quick checks that all rows run
    beside_numpy.py --table FILE.json            the rows as a table in Markdown
    beside_numpy.py --plot FILE.json FILE.svg    draws

Ours and the peers are called in turn on the same arrays, in one process; the least time of each is kept. Unset
OPENBLAS_CORETYPE and OPENBLAS_L2_SIZE before, if they are set: they slow numpy's BLAS down.
"""
import argparse
import json
import os
import pathlib
import platform
import sys
import time
from html import escape

import numpy as np

COUNTS, ORDERS, TYPES = (10, 1000, 100_000), (3, 4, 6), (np.float32, np.float64)


# What a numpy programmer writes who has met the slowness of numpy.linalg: a formula over all objects at once.

def determinant_formula(a):
    if a.shape[-1] == 3:
        return (a[:, 0, 0] * (a[:, 1, 1] * a[:, 2, 2] - a[:, 1, 2] * a[:, 2, 1])
                - a[:, 0, 1] * (a[:, 1, 0] * a[:, 2, 2] - a[:, 1, 2] * a[:, 2, 0])
                + a[:, 0, 2] * (a[:, 1, 0] * a[:, 2, 1] - a[:, 1, 1] * a[:, 2, 0]))
    a, result = a.copy(), a[:, 0, 0].copy() # elimination without pivoting
    for k in range(a.shape[-1] - 1):
        a[:, k + 1:, k + 1:] -= (a[:, k + 1:, k] / a[:, k, k, None])[:, :, None] * a[:, k, None, k + 1:]
        result *= a[:, k + 1, k + 1]
    return result


def inverse_formula(a):
    if a.shape[-1] == 3:
        rows = np.cross(a[:, [1, 2, 0]], a[:, [2, 0, 1]])
        return rows.transpose(0, 2, 1) / (rows[:, 0] * a[:, 0]).sum(-1)[:, None, None]
    return solve_formula(a, np.broadcast_to(np.eye(a.shape[-1], dtype=a.dtype), a.shape))


def solve_formula(a, b):
    if b.ndim == 2:
        return solve_formula(a, b[..., None])[..., 0]
    a, x = a.copy(), b.copy() # Gauss and Jordan without pivoting
    for k in range(a.shape[-1]):
        x[:, k] /= a[:, k, k, None]
        a[:, k] /= a[:, k, k, None]
        for i in range(a.shape[-1]):
            if i != k:
                x[:, i] -= a[:, i, k, None] * x[:, k]
                a[:, i] -= a[:, i, k, None] * a[:, k]
    return x


def cholesky_formula(a):
    l = np.zeros_like(a)
    for j in range(a.shape[-1]):
        l[:, j, j] = np.sqrt(a[:, j, j] - (l[:, j, :j] ** 2).sum(-1))
        for i in range(j + 1, a.shape[-1]):
            l[:, i, j] = (a[:, i, j] - (l[:, i, :j] * l[:, j, :j]).sum(-1)) / l[:, j, j]
    return l


def qr_formula(a):
    q, r = np.empty_like(a), np.zeros_like(a) # Gram and Schmidt
    for j in range(a.shape[-1]):
        v = a[:, :, j].copy()
        for i in range(j):
            r[:, i, j] = (q[:, :, i] * v).sum(-1)
            v -= r[:, i, j, None] * q[:, :, i]
        r[:, j, j] = np.sqrt((v * v).sum(-1))
        q[:, :, j] = v / r[:, j, j, None]
    return q, r


def rows():
    """name -> (operands that it takes, ours, peers)"""
    import vonkk3
    return {
        "inv": ("a", vonkk3.inv, {"linalg.inv": np.linalg.inv, "formula": inverse_formula}),
        "solve": ("ax", vonkk3.solve, {"linalg.solve": np.linalg.solve, "formula": solve_formula}),
        "det": ("a", vonkk3.det, {"linalg.det": np.linalg.det, "formula": determinant_formula}),
        "cholesky": ("s", vonkk3.cholesky, {"linalg.cholesky": np.linalg.cholesky, "formula": cholesky_formula}),
        "qr": ("a", vonkk3.qr, {"linalg.qr": np.linalg.qr, "formula": qr_formula}),
        "matmul": ("ab", vonkk3.matmul, {"matmul": np.matmul, "einsum": lambda a, b: np.einsum("nij,njk->nik", a, b)}),
        "matvec": ("ax", vonkk3.matvec, {"matmul": lambda a, x: np.matmul(a, x[..., None])[..., 0],
                                         "einsum": lambda a, x: np.einsum("nij,nj->ni", a, x),
                                         "formula": lambda a, x: (a * x[:, None, :]).sum(-1)}),
        "dot": ("xy", vonkk3.dot, {"einsum": lambda x, y: np.einsum("ni,ni->n", x, y), "formula": lambda x, y: (x * y).sum(-1)}),
        "norm": ("x", vonkk3.norm, {"linalg.norm": lambda x: np.linalg.norm(x, axis=-1),
                                    "formula": lambda x: np.sqrt((x * x).sum(-1))}),
    }


def operands(count, order, dtype):
    rng = np.random.default_rng(count + order)
    a = rng.normal(size=(count, order, order)) + 2 * order * np.eye(order)
    made = {"a": a, "b": rng.normal(size=a.shape), "s": a @ a.transpose(0, 2, 1), "x": rng.normal(size=(count, order)),
            "y": rng.normal(size=(count, order))}
    return {name: array.astype(dtype) for name, array in made.items()}


def processor():
    for line in pathlib.Path("/proc/cpuinfo").read_text(encoding="utf-8").splitlines():
        if line.startswith("model name"):
            return line.split(":")[1].strip()
    return platform.processor()


def measure(calls, arrays, seconds):
    """The least time of each call, all called in turn."""
    least = {name: float("inf") for name in calls}
    repeats = {}
    for name, call in calls.items():
        call(*arrays)
        start = time.perf_counter()
        call(*arrays)
        repeats[name] = max(1, int(2e-4 / (time.perf_counter() - start)))
    end = time.perf_counter() + seconds
    rounds = 0
    while rounds < 3 or (time.perf_counter() < end and rounds < 200):
        for name, call in calls.items():
            start = time.perf_counter()
            for _ in range(repeats[name]):
                call(*arrays)
            least[name] = min(least[name], (time.perf_counter() - start) / repeats[name])
        rounds += 1
    return least


def run(path, quick):
    import vonkk3
    result = []
    for dtype in TYPES:
        for order in ORDERS:
            for count in COUNTS[:1] if quick else COUNTS:
                made = operands(count, order, dtype)
                for name, (taken, ours, peers) in rows().items():
                    arrays = [made[letter] for letter in taken]
                    for peer in peers.values():
                        for mine, theirs in zip(*(r if isinstance(r, tuple) else (r,) for r in (ours(*arrays), peer(*arrays)))):
                            if not np.allclose(np.abs(mine), np.abs(theirs), rtol=1e-2, atol=1e-2):
                                raise SystemExit(f"{name}: the results differ")
                    least = measure({"ours": ours, **peers}, arrays, 0.01 if quick else 0.4)
                    result.append({"operation": name, "type": np.dtype(dtype).name, "order": order, "count": count,
                                   "ns": {key: round(value / count * 1e9, 2) for key, value in least.items()}})
                    print(*result[-1].values(), file=sys.stderr)
    context = {"date": time.strftime("%Y-%m-%d"), "processor": processor(), "numpy": np.__version__,
               "level": vonkk3.get_config()["level"], "python": platform.python_version(),
               "load": round(os.getloadavg()[0], 1)}
    text = ",\n".join("  " + json.dumps(row) for row in result)
    pathlib.Path(path).write_text('{"context": ' + json.dumps(context) + ',\n "rows": [\n' + text + "\n]}\n", encoding="utf-8")


def ratios(row):
    """Times numpy's own function and times the best peer of all."""
    peers = {key: value for key, value in row["ns"].items() if key != "ours"}
    best = min(peers, key=peers.get)
    return peers[next(iter(peers))] / row["ns"]["ours"], peers[best] / row["ns"]["ours"], best


def digits(value):
    return f"{value:,.0f}" if value >= 100 else f"{value:.3g}"


def table(path):
    data = json.loads(pathlib.Path(path).read_text(encoding="utf-8"))
    context = data["context"]
    lines = ["# Python: the package beside numpy", "",
             "Nanoseconds per object, and how many times as fast the package is as numpy's own function and as the best of all",
             "peers, which are formulas over all objects at once. The least times of one run, all called in turn:",
             f"{context['processor']}, library {context['level']}, numpy {context['numpy']}, Python {context['python']},",
             f"{context['date']}, with other programs at work (load {context['load']}). Written by",
             "`python/benchmarks/beside_numpy.py --table`.", "",
             "| operation | type | order | objects | ns per object | numpy's | times | best peer | times |",
             "|---|---|---:|---:|---:|---:|---:|---|---:|"]
    for row in sorted(data["rows"], key=lambda r: (list(rows_order(data)).index(r["operation"]), r["type"], r["order"], r["count"])):
        numpys, best, name = ratios(row)
        first = next(key for key in row["ns"] if key != "ours")
        lines.append(f"| `{row['operation']}` | {row['type']} | {row['order']} | {row['count']:,} | {digits(row['ns']['ours'])} | "
                     f"{digits(row['ns'][first])} | {digits(numpys)} | {name} | {digits(best)} |")
    return "\n".join(lines) + "\n"


def rows_order(data):
    return dict.fromkeys(row["operation"] for row in data["rows"])


def plot(path, target):
    """Dots on a logarithmic axis: how many times as fast as numpy's function and as the best peer."""
    data = json.loads(pathlib.Path(path).read_text(encoding="utf-8"))
    context = data["context"]
    left, width, height, least, most = 190, 560, 13, 0.3, 1000
    x = lambda value: left + width * np.log10(min(max(value, least), most) / least) / np.log10(most / least)
    parts, y = [], 92
    colours = {10: "#b0bec5", 1000: "#7986cb", 100_000: "#1a237e"}
    for operation in rows_order(data):
        parts.append(f'<text x="10" y="{y}" class="t">{escape(operation)}</text>')
        for dtype in ("float32", "float64"):
            for order in ORDERS:
                label = f"{dtype}, order {order}"
                parts.append(f'<text x="{left - 8}" y="{y}" text-anchor="end" class="s">{label}</text>'
                             f'<line x1="{left}" x2="{left + width}" y1="{y - 4}" y2="{y - 4}" stroke="#eee"/>')
                for row in data["rows"]:
                    if (row["operation"], row["type"], row["order"]) == (operation, dtype, order):
                        numpys, best, name = ratios(row)
                        tip = f"<title>{row['count']:,} objects: {best:.1f} times {escape(name)}, {numpys:.1f} times numpy</title>"
                        parts.append(f'<circle cx="{x(numpys):.1f}" cy="{y - 4}" r="4" fill="{colours[row["count"]]}">{tip}</circle>')
                        if best < numpys:
                            parts.append(f'<rect x="{x(best) - 3:.1f}" y="{y - 7}" width="6" height="6" fill="none" '
                                         f'stroke="{colours[row["count"]]}" stroke-width="1.5">{tip}</rect>')
                y += height
        y += 6
    axis = "".join(f'<line x1="{x(v):.1f}" x2="{x(v):.1f}" y1="78" y2="{y - 12}" stroke="{"#c62828" if v == 1 else "#ccc"}"/>'
                   f'<text x="{x(v):.1f}" y="72" text-anchor="middle" class="s">{v:g}</text>' for v in (0.3, 0.5, 1, 2, 5, 10, 20, 50, 100, 200, 500, 1000))
    legend, at = "", left
    for count, colour in colours.items():
        legend += f'<circle cx="{at}" cy="44" r="4" fill="{colour}"/><text x="{at + 9}" y="48" class="s">{count:,} objects</text>'
        at += 110
    legend += f'<text x="{at}" y="48" class="s">dot: numpy\'s function; square: a faster formula</text>'
    source = (f'{context["processor"]}, library {context["level"]}, numpy {context["numpy"]}, {context["date"]}, '
              f'load {context["load"]} by other programs')
    title = "Times as fast as numpy: right of the red line is faster"
    svg = (f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 820 {y + 22}" width="820" height="{y + 22}" role="img" '
           f'aria-label="{title}"><style>text{{font:13px sans-serif;fill:#222}}.s{{font-size:11px}}.t{{font-weight:bold}}'
           f'</style><rect width="820" height="{y + 22}" fill="#fff"/><text x="10" y="20" class="t">{title}</text>'
           f'{legend}{axis}{"".join(parts)}<text x="10" y="{y + 10}" class="s">{escape(source)}</text></svg>\n')
    pathlib.Path(target).write_text(svg, encoding="utf-8")


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--run", metavar="JSON")
    parser.add_argument("--quick", action="store_true")
    parser.add_argument("--table", metavar="JSON")
    parser.add_argument("--plot", nargs=2, metavar=("JSON", "SVG"))
    arguments = parser.parse_args()
    if arguments.run:
        run(arguments.run, arguments.quick)
    if arguments.table:
        print(table(arguments.table), end="")
    if arguments.plot:
        plot(*arguments.plot)


if __name__ == "__main__":
    main()
