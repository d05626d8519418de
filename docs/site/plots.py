#!/usr/bin/env python3
"""Draws the plots of the performance pages, and the README's, from a run of the benchmarks.

    plots.py --keep RUN.json         keeps of a run (scripts/benchmark.sh --save RUN.json) what the plots need, in
                                     data/benchmarks.json, and draws docs/speed.svg from it
    plots.py --speed FILE            draws the README's plot alone, into FILE
    plots.py DATA FOLDER             draws the plots of the site

Times are nanoseconds per object or call, the least of all rounds, with the best peer's beside them. A row that the
file does not have is an error: nothing is drawn that was not measured.
"""
import json
import pathlib
import sys
from html import escape

LAYOUTS = ["", "S2", "P", "PS2", "L", "LS2"]
BY_LAYOUT = ["Add_mama", "Mul_mama", "Mul_mva", "LUDecomp_ma", "CholeskyDecomp_ma", "Invert_ma"]
PEERS = ["Add_mama", "Mul_mama", "Mul_mva", "Transpose_ma", "FrobNorm_ma", "LUDecomp_ma", "LUBackSubst_mava",
         "CholeskyDecomp_ma", "CholeskyBackSubst_mava", "QRDecomp_ma", "QRBackSubst_mava", "Det_ma", "Invert_ma"]
# The README's: the line at a group of bars, the operation.
SPEED = [("Matrix by matrix", "Mul_mama"), ("Matrix by vector", "Mul_mava"), ("One matrix by vectors", "Mul_mva"),
         ("LU decomposition", "LUDecomp_ma"), ("LU back substitution", "LUBackSubst_mava"),
         ("Cholesky decomposition", "CholeskyDecomp_ma"), ("Cholesky back substitution", "CholeskyBackSubst_mava"),
         ("QR decomposition", "QRDecomp_ma"), ("QR back substitution", "QRBackSubst_mava"),
         ("Inverse", "Invert_ma"), ("Determinant", "Det_ma")]
DATA = pathlib.Path(__file__).resolve().parent / "data" / "benchmarks.json"
SPEED_FILE = pathlib.Path(__file__).resolve().parent.parent / "speed.svg"
SINGLES = [("Mul_mm_32f_4x4", "Mul_mama_32f_4x4"), ("LUDecomp_m_32f_4x4", "LUDecomp_ma_32f_4x4"),
           ("Add_vv_32f_4x1", "Add_vava_32f_4x1"), ("Sub_vv_32f_3x1", "Sub_vava_32f_3x1")]

TYPES = ["Mul_mama", "Mul_mava", "LUDecomp_ma", "LUBackSubst_mava", "CholeskyDecomp_ma", "CholeskyBackSubst_mava",
         "QRDecomp_ma", "QRBackSubst_mava", "Invert_ma"]


def row_name(operation, layout, count):
    return f"vonk{operation}_32f_4x4" + (f"_{layout}" if layout else "") + f"/{count}"


def needed():
    names = [row_name(op, layout, count) for op in BY_LAYOUT for layout in LAYOUTS for count in (64, 2048)]
    names += [row_name(op, "", 2048) for op in PEERS + [op for _, op in SPEED]]
    names += [f"vonk{op}_{element}_4x4/2048" for op in TYPES for element in ("32f", "64f")]
    names += [f"vonk{name}/64" for pair in SINGLES for name in pair]
    return list(dict.fromkeys(names))


def keep(run, path):
    with open(run, encoding="utf-8") as file:
        run = json.load(file)
    rows = {}
    for row in run["benchmarks"]:
        name = row["name"].split("/iterations")[0]
        rows[name] = {"ns": round(row["ours_ns"], 3), "peer_ns": round(row["best_peer_ns"], 3), "peer": row["label"]}
    context = {key: run["context"][key] for key in ("date", "processor", "compiler", "flags", "library", "rounds")}
    with open(path, "w", encoding="utf-8") as file:
        lines = ",\n".join(f'  {json.dumps(name)}: {json.dumps(rows[name])}' for name in needed() if name in rows)
        file.write('{"context": ' + json.dumps(context) + ',\n "rows": {\n' + lines + "\n}}\n")


class Plot:
    """Groups of horizontal bars; each bar is (label, nanoseconds, class of colour)."""

    LEFT, WIDTH, BAR = 215, 445, 15
    # An image cannot see the page that shows it: it has a background of its own, for either of the reader's settings.
    STYLE = ("text{font:13px sans-serif;fill:#222}.s{font-size:11px}.t{font-weight:bold;font-size:14px}.back{fill:#fff}"
             ".ours{fill:#3f51b5}.light{fill:#9fa8da}.peer{fill:#b0b0b0}"
             "@media(prefers-color-scheme:dark){text{fill:#ddd}.back{fill:#161b22}"
             ".ours{fill:#8c9eff}.light{fill:#4d5ba8}.peer{fill:#6e7681}}")

    def __init__(self, title, source, legend):
        self.title, self.source, self.legend, self.groups = title, source, legend, []

    def group(self, label, bars):
        self.groups.append((label, bars))

    def text(self):
        most = max(value for _, bars in self.groups for _, value, _ in bars)
        y, parts = 64, []
        for label, bars in self.groups:
            middle = y + len(bars) * self.BAR / 2 + 4
            parts.append(f'<text x="{self.LEFT - 10}" y="{middle}" text-anchor="end">{escape(label)}</text>')
            for name, value, colour in bars:
                width = max(1, self.WIDTH * value / most)
                parts.append(f'<rect x="{self.LEFT}" y="{y}" width="{width:.1f}" height="{self.BAR - 3}" class="{colour}"/>'
                             f'<text x="{self.LEFT + width + 5:.1f}" y="{y + 10}" class="s">{value:.3g}{" " + escape(name) if name else ""}</text>')
                y += self.BAR
            y += 9
        x = self.LEFT
        for label, colour in self.legend:
            parts.append(f'<rect x="{x}" y="36" width="12" height="12" class="{colour}"/>'
                         f'<text x="{x + 17}" y="46" class="s">{escape(label)}</text>')
            x += 30 + 6.2 * len(label)
        height = y + 28
        return (f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 820 {height}" width="820" height="{height}" role="img" '
                f'aria-label="{escape(self.title)}"><style>{self.STYLE}</style><rect width="820" height="{height}" rx="6" class="back"/>'
                f'<text x="10" y="20" class="t">{escape(self.title)}</text>' + "".join(parts) +
                f'<text x="10" y="{height - 10}" class="s">{escape(self.source)}</text></svg>\n')


def read(path):
    """The rows, and the line at the foot of every plot."""
    data = json.loads(pathlib.Path(path).read_text(encoding="utf-8"))
    context = data["context"]
    return data["rows"], (f'{context["processor"]}, {context["compiler"]}, library {context["library"]} built for x86-64, '
                          f'{context["rounds"]} rounds, {context["date"][:10]}')


def write_speed(path):
    rows, source = read(DATA)
    plot = Plot("Nanoseconds per object: arrays of 2,048, float, 4x4, standard layout (shorter is faster)", source,
                [("vonkk3", "ours"), ("best peer, named at its bar (plain: a C++ loop of fixed sizes)", "peer")])
    for label, operation in SPEED:
        row = rows[row_name(operation, "", 2048)]
        plot.group(label, [("", row["ns"], "ours"), (row["peer"], row["peer_ns"], "peer")])
    pathlib.Path(path).write_text(plot.text(), encoding="utf-8")


def write(path, folder):
    rows, source = read(path)
    folder = pathlib.Path(folder)
    folder.mkdir(parents=True, exist_ok=True)

    plot = Plot("Nanoseconds per object by layout: float, 4x4, 2048 objects", source,
                [("vonkk3", "ours"), ("best peer over the same memory", "peer")])
    for operation in BY_LAYOUT:
        for layout in LAYOUTS:
            row = rows[row_name(operation, layout, 2048)]
            plot.group(f"{operation} {layout or 'standard'}", [("", row["ns"], "ours"), ("", row["peer_ns"], "peer")])
    (folder / "layouts.svg").write_text(plot.text(), encoding="utf-8")

    plot = Plot("Nanoseconds per object by count: float, 4x4", source, [("64 objects", "light"), ("2048 objects", "ours")])
    for operation in BY_LAYOUT:
        for layout in LAYOUTS:
            plot.group(f"{operation} {layout or 'standard'}", [("", rows[row_name(operation, layout, 64)]["ns"], "light"),
                                                               ("", rows[row_name(operation, layout, 2048)]["ns"], "ours")])
    (folder / "counts.svg").write_text(plot.text(), encoding="utf-8")

    plot = Plot("Nanoseconds per object beside the best peer: float, 4x4, standard layout, 2048 objects", source,
                [("vonkk3", "ours"), ("best peer, named at its bar (plain: a C++ loop of fixed sizes)", "peer")])
    for operation in PEERS:
        row = rows[row_name(operation, "", 2048)]
        plot.group(operation, [("", row["ns"], "ours"), (row["peer"], row["peer_ns"], "peer")])
    (folder / "peers.svg").write_text(plot.text(), encoding="utf-8")

    plot = Plot("Nanoseconds per object by type: 4x4, standard layout, 2048 objects", source, [("float", "light"), ("double", "ours")])
    for operation in TYPES:
        plot.group(operation, [("", rows[f"vonk{operation}_{element}_4x4/2048"]["ns"], colour)
                               for element, colour in (("32f", "light"), ("64f", "ours"))])
    (folder / "types.svg").write_text(plot.text(), encoding="utf-8")

    plot = Plot("Nanoseconds per object: a call for each, and one call for 64", source,
                [("single calls", "light"), ("one call for the array", "ours")])
    for single, array in SINGLES:
        plot.group(single, [("", rows[f"vonk{single}/64"]["ns"], "light"), ("", rows[f"vonk{array}/64"]["ns"], "ours")])
    (folder / "singles.svg").write_text(plot.text(), encoding="utf-8")


if __name__ == "__main__":
    if sys.argv[1] == "--keep":
        keep(sys.argv[2], DATA)
        write_speed(SPEED_FILE)
    elif sys.argv[1] == "--speed":
        write_speed(sys.argv[2])
    else:
        write(sys.argv[1], sys.argv[2])
