#!/usr/bin/env python3
"""Makes the table of the library's functions that the extension module calls.

    export_table.py functions.json HEADER

For each operation and group of operands that is not read transposed, in the standard layout and in S2, HEADER has one
inline function with the parameters of the run-time form. It calls the form of fixed size where all sizes are one
number from 3 to 6, and else the run-time form.
"""
import json
import pathlib
import sys

ELEMENTS = ("float", "double")


def callable_from_python(function):
    return (function.get("layout") in ("", "S2") and function["operation"] not in ("Extract", "LoadIdentity")
            and not any(operand["transposed"] for operand in function["operands"]))


def forms(catalogue):
    """(name of the inline function, element) -> {order or None: function}"""
    result = {}
    for function in filter(callable_from_python, catalogue["functions"]):
        name = f"{function['operation']}_{function['group']}" + ("_S2" if function["layout"] else "")
        result.setdefault((name, function["element"]), {})[function["order"]] = function
    return result


def declared(parameters):
    return ", ".join(f"{p['type']}{'' if p['type'].endswith('*') else ' '}{p['name']}" for p in parameters)


def call(function, index, parameters):
    """The call through the table, with those of `parameters` that `function` has."""
    names = [p["name"] for p in function["parameters"]]
    given = [p["name"] for p in parameters]
    if [name for name in given if name in names] != names:
        raise SystemExit(f"{function['name']}: its parameters are not among those of the run-time form")
    types = ", ".join(p["type"] for p in function["parameters"])
    return f"reinterpret_cast<VonkStatus (*)({types})>(addresses[{index}])({', '.join(names)})"


def inline_function(name, by_order, index):
    general = by_order.get(None, by_order.get(3))
    parameters = general["parameters"]
    sizes = [p["name"] for p in parameters if p["kind"] == "size"]
    lines = [f"    static VonkStatus {name}({declared(parameters)}) {{"]
    orders = sorted(order for order in by_order if order) if None in by_order else []
    if orders:
        same = "".join(f" && {other} == {sizes[0]}" for other in sizes[1:])
        cases = " ".join(f"case {order}: return {call(by_order[order], index[by_order[order]['name']], parameters)};"
                         for order in orders)
        lines.append(f"        if (true{same}) switch (static_cast<int>({sizes[0]})) {{ {cases} default: break; }}")
    lines.append(f"        return {call(general, index[general['name']], parameters)};")
    return "\n".join(lines + ["    }"])


def header(catalogue):
    table = forms(catalogue)
    names = sorted({function["name"] for by_order in table.values() for function in by_order.values()})
    index = {name: number for number, name in enumerate(names)}
    text = ["// Generated from functions.json by export_table.py; do not edit.", "#pragma once", "", "#include <cstdint>", "",
            "namespace vonkk3 {", "", "using VonkStatus = std::int32_t;", "using std::int32_t;", "using std::uint32_t;", "",
            f"inline constexpr int exportCount = {len(names)};",
            "inline constexpr const char *exportNames[exportCount] = {" + ",\n    ".join(f'"{n}"' for n in names) + "};",
            "inline void *addresses[exportCount]; // filled when the library is loaded", "",
            "template <typename T> struct Exports;"]
    for element in ELEMENTS:
        text += ["", f"template <> struct Exports<{element}> {{"]
        text += [inline_function(name, by_order, index) for (name, its), by_order in sorted(table.items()) if its == element]
        text += ["};"]
    return "\n".join(text + ["", "} // namespace vonkk3", ""])


def write(functions_json, path):
    catalogue = json.loads(pathlib.Path(functions_json).read_text(encoding="utf-8"))
    pathlib.Path(path).write_text(header(catalogue), encoding="utf-8")


if __name__ == "__main__":
    write(*sys.argv[1:])
