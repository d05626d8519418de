#!/bin/sh
# Every public header stands alone: C99 and C++ without a warning, nothing included but <stdint.h>, and cheap to parse.
#
#     header_test.sh INCLUDE_FOLDER C_COMPILER CXX_COMPILER
include=$1
cc=$2
cxx=$3
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
failures=0

warnings="-pedantic -Wall -Wextra -Wshadow -Wstrict-prototypes -Werror"
headers=$(cd "$include" && ls vonkk3.h vonkk3/*.h)
for header in $headers; do
    printf '#include <%s>\nint unit_is_not_empty;\n' "$header" >"$scratch/unit.c"
    cp "$scratch/unit.c" "$scratch/unit.cpp"
    for standard in c99 c11 c17; do
        if ! "$cc" -std=$standard $warnings -I"$include" -c "$scratch/unit.c" -o "$scratch/unit.o"; then
            echo "FAILED: $header is not clean as $standard"; failures=$((failures + 1))
        fi
    done
    for standard in c++11 c++17 c++20; do
        if ! "$cxx" -std=$standard -pedantic -Wall -Wextra -Wshadow -Werror -I"$include" -c "$scratch/unit.cpp" \
            -o "$scratch/unit.o"; then
            echo "FAILED: $header is not clean as $standard"; failures=$((failures + 1))
        fi
    done
    begin=$(date +%s%N)
    "$cc" -std=c99 -I"$include" -fsyntax-only "$scratch/unit.c"
    milliseconds=$((($(date +%s%N) - begin) / 1000000))
    echo "a C file that includes $header is parsed in $milliseconds ms"
    [ "$milliseconds" -lt 1000 ] || { echo "FAILED: too slow to include"; failures=$((failures + 1)); }
done

# Each gives what it needs, whichever comes first, and all of it goes together.
{ for header in $headers $headers; do echo "#include <$header>"; done; echo 'int unit_is_not_empty;'; } >"$scratch/unit.c"
"$cc" -std=c99 $warnings -I"$include" -c "$scratch/unit.c" -o "$scratch/unit.o" ||
    { echo "FAILED: not clean together"; failures=$((failures + 1)); }

grep -n '#include' "$include/vonkk3.h" "$include"/vonkk3/*.h | grep -vE '<stdint\.h>|"types\.h"|"vonkk3/[a-z]+\.h"' &&
    { echo "FAILED: includes more"; failures=$((failures + 1)); }

[ "$failures" -eq 0 ]
