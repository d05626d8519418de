"""functions.json against its schema; and the schema itself, which must refuse what is wrong.

    schema_test.py SCHEMA FUNCTIONS VERSION
"""
import copy
import json
import sys

import jsonschema

schema, data = (json.load(open(path, encoding="utf-8")) for path in sys.argv[1:3])
jsonschema.Draft202012Validator.check_schema(schema)
validator = jsonschema.Draft202012Validator(schema)


def fail(sentence):
    sys.exit(f"schema: {sentence}")


for error in validator.iter_errors(data):
    fail(f"{'/'.join(map(str, error.absolute_path))}: {error.message}")
if data["version"] != sys.argv[3]:
    fail(f"the version is {data['version']}, not {sys.argv[3]}")
if len(data["functions"]) != 5572:
    fail(f"{len(data['functions'])} functions")

# What a schema cannot say: that names lead somewhere.
families = {family["id"] for family in data["families"]} | {"version"}
exceptions = {row["id"]: row for row in data["exceptions"]}
counts = dict.fromkeys(exceptions, 0)
for function in data["functions"]:
    operands = {operand["name"] for operand in function["operands"]}
    parameters = {parameter["name"] for parameter in function["parameters"]}
    if function["family"] not in families:
        fail(f"{function['name']}: no family {function['family']}")
    for name in function["exceptions"]:
        if exceptions[name]["family"] != function["family"]:
            fail(f"{function['name']}: {name} is of another family")
        counts[name] += 1
    for parameter in function["parameters"]:
        if parameter.get("operand", next(iter(operands))) not in operands:
            fail(f"{function['name']}: no operand {parameter['operand']}")
    for operand in function["operands"]:
        for size in (operand["rows"], operand["cols"]):
            if not size.isdigit() and size not in parameters:
                fail(f"{function['name']}: no parameter {size}")
for name, row in exceptions.items():
    if counts[name] != row["count"]:
        fail(f"{name}: of {counts[name]} functions, not {row['count']}")

# One fault at a time in a copy of three functions.
short = {**data, "functions": data["functions"][:3]}


def must_refuse(what, change):
    wrong = copy.deepcopy(short)
    change(wrong)
    if validator.is_valid(wrong):
        fail(f"lets through {what}")


parameter = lambda d: d["functions"][1]["parameters"][0]
must_refuse("an unknown field", lambda d: d["functions"][1].update(colour="red"))
must_refuse("a function without parameters", lambda d: d["functions"][1].pop("parameters"))
must_refuse("an unknown kind", lambda d: parameter(d).update(kind="pointer"))
must_refuse("an unknown type", lambda d: parameter(d).update(type="int"))
must_refuse("an unknown layout", lambda d: d["functions"][1].update(layout="Q"))
must_refuse("order 7", lambda d: d["functions"][1].update(order=7))
must_refuse("a name of something else", lambda d: d["functions"][1].update(name="sqrt"))
must_refuse("an exception twice", lambda d: d["functions"][1].update(exceptions=["a", "a"]))
must_refuse("an exception of no class", lambda d: d["exceptions"][0].update({"class": "other"}))
must_refuse("no version", lambda d: d.pop("version"))
print(f"{len(data['functions'])} functions and {len(exceptions)} exceptions match the schema of version {data['version']}")
