#!/usr/bin/env python3
"""Packs functions.json into the script that the finder loads, also from file://.

    pack.py functions.json catalogue.js

What many functions share (parameter lists, operands) is stored once; T stands for the element type in types.
"""
import json
import re
import sys


class Table:
    """Values by number, each stored once."""

    def __init__(self):
        self.values, self.numbers = [], {}

    def number(self, value):
        key = json.dumps(value)
        if key not in self.numbers:
            self.numbers[key] = len(self.values)
            self.values.append(value)
        return self.numbers[key]


def usage_of(catalogue, function):
    for k, row in enumerate(catalogue["operations"]):
        if (row["family"], row["operation"]) == (function["family"], function["operation"]):
            if not row["groups"] or function["group"] in row["groups"].split():
                return k
    raise KeyError(function["name"])


def pack(catalogue):
    parameters, operands = Table(), Table()
    families = [row["id"] for row in catalogue["families"]]
    exceptions = [row["id"] for row in catalogue["exceptions"]]
    functions = []
    for function in catalogue["functions"]:
        if "group" not in function:  # vonkGetLibVersion stands outside the grammar
            continue
        element = re.compile(r"\b" + function["element"] + r"\b")
        rows = [[p["name"], element.sub("T", p["type"]), p["kind"], p.get("operand", ""), p.get("direction", ""),
                 element.sub("T", p.get("length", ""))] for p in function["parameters"]]
        shapes = [[o["name"], o["matrix"], o["array"], o["transposed"], o["layout"], o["rows"], o["cols"]]
                  for o in function["operands"]]
        functions.append([function["name"], families.index(function["family"]), usage_of(catalogue, function),
                          function["group"], int(function["element"] == "double"), function["order"] or 0,
                          function["layout"], operands.number(shapes), parameters.number(rows),
                          [exceptions.index(e) for e in function["exceptions"]]])
    return {
        "families": [{key: row[key] for key in ("id", "title", "summary", "overlap")} for row in catalogue["families"]],
        "operations": catalogue["operations"],
        "classes": {row["name"]: row["meaning"] for row in catalogue["exceptionClasses"]},
        "exceptions": [{key: row[key] for key in ("id", "family", "class", "description")}
                       for row in catalogue["exceptions"]],
        "operands": operands.values,
        "parameters": parameters.values,
        "functions": functions,
    }


def write(catalogue, path):
    packed = json.dumps(pack(catalogue), separators=(",", ":"))
    with open(path, "w", encoding="utf-8") as file:
        file.write("var vonkk3Data = " + packed + ";\n"
                   "if (typeof module !== 'undefined') module.exports = vonkk3Data;\n")


if __name__ == "__main__":
    with open(sys.argv[1], encoding="utf-8") as source:
        write(json.load(source), sys.argv[2])
