#!/bin/sh
# The public header stands alone: C99 and C++ without a warning, <stdint.h> its only include, and cheap to compile.
#
#     header_test.sh INCLUDE_FOLDER C_COMPILER CXX_COMPILER
include=$1
cc=$2
cxx=$3
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
failures=0

printf '#include <vonkk3.h>\nint unit_is_not_empty;\n' >"$scratch/unit.c"
cp "$scratch/unit.c" "$scratch/unit.cpp"
warnings="-pedantic -Wall -Wextra -Wshadow -Wstrict-prototypes -Werror"
for standard in c99 c11 c17; do
    if ! "$cc" -std=$standard $warnings -I"$include" -c "$scratch/unit.c" -o "$scratch/unit.o"; then
        echo "FAILED: not clean as $standard"; failures=$((failures + 1))
    fi
done
for standard in c++11 c++17 c++20; do
    if ! "$cxx" -std=$standard -pedantic -Wall -Wextra -Wshadow -Werror -I"$include" -c "$scratch/unit.cpp" \
        -o "$scratch/unit.o"; then
        echo "FAILED: not clean as $standard"; failures=$((failures + 1))
    fi
done

grep -n '#include' "$include/vonkk3.h" | grep -v '<stdint\.h>' && { echo "FAILED: includes more"; failures=$((failures + 1)); }

begin=$(date +%s%N)
"$cc" -std=c99 -I"$include" -c "$scratch/unit.c" -o "$scratch/unit.o"
milliseconds=$((($(date +%s%N) - begin) / 1000000))
echo "a C file that includes the header compiles in $milliseconds ms"
[ "$milliseconds" -lt 1000 ] || { echo "FAILED: too slow to include"; failures=$((failures + 1)); }

[ "$failures" -eq 0 ]
