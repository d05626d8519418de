#!/bin/sh
# Whether the header declares what it declared: its functions and types beside tests/vonkk3.abi.xz, by abidiff.
#
#     abi.sh [--write]      --write stores today's as the new description, after a change that is meant
#
# New functions pass, and are named. Exit code 1: something was changed or taken away; 2: the tools fail.
set -eu
cd "$(dirname "$0")/.."
. scripts/packages.sh
need abigail-tools gcc python3 xz-utils
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

# A library of empty functions, whose debugging information holds what the header says and is there in seconds.
python3 - >"$scratch/header.c" <<'END'
import pathlib
import re
parts = [pathlib.Path("include/vonkk3.h"), *sorted(pathlib.Path("include/vonkk3").glob("*.h"))]
header = re.sub(r"/\*.*?\*/", "", "".join(part.read_text() for part in parts), flags=re.S)
prototypes = re.findall(r"^((?:VonkStatus |const VonkLibVersion \*)vonk\w+\([^;]*\));", header, flags=re.M)
assert len(prototypes) == header.count(");") != 0, "a declaration that this script does not understand"
print('#include "vonkk3.h"')
for prototype in prototypes:
    print(prototype, "{ return 0; }")
END
gcc -g -O0 -shared -fPIC -Iinclude "$scratch/header.c" -o "$scratch/libvonkk3.so" || exit 2
if [ "${1:-}" = --write ]; then
    abidw --headers-dir include --no-show-locs --no-corpus-path --no-comp-dir-path "$scratch/libvonkk3.so" \
        >"$scratch/vonkk3.abi" || exit 2
    xz -9 --stdout "$scratch/vonkk3.abi" >tests/vonkk3.abi.xz
fi
xz -dc tests/vonkk3.abi.xz >"$scratch/vonkk3.abi" || exit 2

# The exit code is a set of bits: 1 and 2 are errors of the tool, 4 is a change, 8 one that breaks callers.
result=0
abidiff --headers-dir2 include "$scratch/vonkk3.abi" "$scratch/libvonkk3.so" || result=$?
echo "$(grep -c '<function-decl' "$scratch/vonkk3.abi") functions compared"
[ $((result & 3)) -eq 0 ] || exit 2
[ $((result & 8)) -eq 0 ] || exit 1
[ $((result & 4)) -eq 0 ] || abidiff --no-added-syms --headers-dir2 include "$scratch/vonkk3.abi" "$scratch/libvonkk3.so" >/dev/null || exit 1
