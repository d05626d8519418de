#!/bin/sh
# Nothing is paid for the C++ headers: of each pair in same_code.cpp the instructions are the same, optimised.
#
#     same_code_test.sh INCLUDE_FOLDER SOURCE CXX_COMPILER...
set -eu
include=$1
source=$2
shift 2
. "$(dirname "$0")/../checks.sh"

for cxx in "$@"; do
    command -v "$cxx" >/dev/null || { echo "left out: there is no $cxx"; continue; }
    # Sections apart, so that every function begins alike.
    "$cxx" -std=c++17 -O2 -DNDEBUG -ffunction-sections -I"$include" -c "$source" -o "$scratch/code.o"
    # Addresses within a function and labels of constants are left out, names of what it calls stay.
    objdump -dr --no-show-raw-insn "$scratch/code.o" | awk -v folder="$scratch" '
        /^[0-9a-f]+ <(c|cpp)_[a-z_]+>:$/ { name = $2; gsub(/[<>:]/, "", name); file = folder "/" name; next }
        /^$/ || /^Disassembly/ { file = ""; next }
        file { sub(/^ *[0-9a-f]+:/, ""); gsub(/(cpp|c)_[a-z_]+/, "it"); gsub(/<?\.L[A-Za-z0-9_.+]*>?/, "data"); print >file }'
    pairs=0
    for direct in "$scratch"/c_*; do
        name=${direct#"$scratch"/c_}
        pairs=$((pairs + 1))
        grep -q vonk "$direct" || fail "$cxx: $name calls nothing"
        cmp -s "$direct" "$scratch/cpp_$name" || {
            fail "$cxx: $name has other instructions"
            diff "$direct" "$scratch/cpp_$name" | head -n 30
        }
    done
    echo "$cxx: $pairs calls compared with the C functions"
    [ "$pairs" -ge 24 ] || fail "$cxx: too few pairs"
    rm -f "$scratch"/c_* "$scratch"/cpp_*
done
[ "$failures" -eq 0 ]
