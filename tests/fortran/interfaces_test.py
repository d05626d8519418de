"""The Fortran interfaces beside the catalogue: for every function the name, the order, names and kinds of its arguments.

What the compiler has understood is compared, not the text: gfortran writes C prototypes of what a module declares.

    interfaces_test.py FORTRAN_COMPILER FUNCTIONS_JSON TYPES_F90 MODULE_F90...
"""
import json
import re
import subprocess
import sys

compiler, catalogue, *sources = sys.argv[1:]


def declared(source):
    """Name -> (result, [(type, name)]) of a module's interfaces, as C sees them."""
    output = subprocess.run([compiler, "-fsyntax-only", "-fc-prototypes", "-std=f2018", source], check=True,
                            capture_output=True, text=True).stdout
    found = {}
    for result, name, arguments in re.findall(r"^(int|void \*) ?(\w+) \((.*)\);$", output, re.M):
        pieces = [re.fullmatch(r"(void \*|int |float |double )(\w+)", piece.strip()) for piece in arguments.split(",")
                  if piece.strip()]
        found[name] = (result.strip(), [(piece[1].strip(), piece[2]) for piece in pieces])
    return found


def expected(function):
    def kind(parameter):
        c_type = parameter["type"]
        return "void *" if c_type.endswith("*") else {"int32_t": "int", "uint32_t": "int"}.get(c_type, c_type)

    # Fortran's names have no case; the name that is linked has.
    return ("void *" if function["returns"].endswith("*") else "int",
            [(kind(parameter), parameter["name"].lower()) for parameter in function["parameters"]])


found = {}
for source in sources:
    for name, prototype in declared(source).items():
        assert name not in found, f"{name} is declared twice"
        found[name] = prototype
functions = json.load(open(catalogue, encoding="utf-8"))["functions"]
wrong = [f["name"] for f in functions if found.get(f["name"]) != expected(f)]
for name in wrong[:10]:
    print(f"FAILED: {name}: {found.get(name)}")
more = set(found) - {f["name"] for f in functions}
assert not wrong and not more, f"{len(wrong)} interfaces are missing or wrong, {len(more)} are of no function"
assert len(functions) == 5572 and len({name.lower() for name in found}) == 5572
print(f"{len(functions)} interfaces are those of the catalogue")
