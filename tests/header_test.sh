#!/bin/sh
# Every public header stands alone: C99 and C++ without a warning, nothing included but <stdint.h>, and cheap to parse.
# Those for C++ stand alone, too, and a file that uses three functions is compiled in half a second.
#
#     header_test.sh INCLUDE_FOLDER C_COMPILER CXX_COMPILER
include=$1
cc=$2
cxx=$3
. "$(dirname "$0")/checks.sh"

compile() { # COMPILER FILE STANDARD OPTION...
    compiler=$1 file=$2 standard=$3
    shift 3
    "$compiler" -std="$standard" -pedantic -Wall -Wextra -Wshadow -Werror -I"$include" "$@" -c "$file" -o "$scratch/unit.o" ||
        fail "$header is not clean as $standard"
}

headers=$(cd "$include" && ls vonkk3.h vonkk3/*.h)
for header in $headers; do
    printf '#include <%s>\nint unit_is_not_empty;\n' "$header" >"$scratch/unit.c"
    cp "$scratch/unit.c" "$scratch/unit.cpp"
    for standard in c99 c11 c17; do compile "$cc" "$scratch/unit.c" $standard -Wstrict-prototypes; done
    for standard in c++11 c++17 c++20; do compile "$cxx" "$scratch/unit.cpp" $standard; done
    begin=$(date +%s%N)
    "$cc" -std=c99 -I"$include" -fsyntax-only "$scratch/unit.c"
    milliseconds=$((($(date +%s%N) - begin) / 1000000))
    echo "a C file that includes $header is parsed in $milliseconds ms"
    [ "$milliseconds" -lt 1000 ] || fail "too slow to include"
done

# Each gives what it needs, whichever comes first, and all of it goes together.
{ for header in $headers $headers; do echo "#include <$header>"; done; echo 'int unit_is_not_empty;'; } >"$scratch/unit.c"
header="all together"
compile "$cc" "$scratch/unit.c" c99 -Wstrict-prototypes

grep -n '#include' "$include/vonkk3.h" "$include"/vonkk3/*.h | grep -vE '<stdint\.h>|"types\.h"|"vonkk3/[a-z]+\.h"' &&
    fail "includes more"

for header in $(cd "$include" && ls vonkk3.hpp vonkk3/*.hpp vonkk3/exports/*.hpp | grep -vE 'eigen|glm'); do
    printf '#include <%s>\n#include <%s>\nint unit_is_not_empty;\n' "$header" "$header" >"$scratch/unit.cpp"
    for standard in c++17 c++20; do compile "$cxx" "$scratch/unit.cpp" $standard -Wconversion; done
done
cat >"$scratch/three.cpp" <<'END'
#include <vonkk3/cholesky.hpp>
#include <vonkk3/vector.hpp>
VonkStatus three(const float *a, float *f, const float *b, float *x, float *d, unsigned n) {
    const auto factors = vonk::matrices<4, 4>(f, n);
    if (const auto status = vonk::cholesky(vonk::matrices<4, 4>(a, n), factors); !status) return status.value();
    if (const auto status = vonk::cholesky_solve(factors, vonk::vectors<4>(b, n), vonk::vectors<4>(x, n)); !status)
        return status.value();
    return vonk::dot(vonk::vectors<4>(b, n), vonk::vectors<4>(x, n), d).value();
}
END
# The processor's time, not the clock's: it may have other things to do.
("$cxx" -std=c++17 -O2 -Wall -Wextra -Werror -I"$include" -c "$scratch/three.cpp" -o "$scratch/three.o" || echo failed
    times) >"$scratch/times"
if grep -q failed "$scratch/times"; then fail "three functions do not compile"; fi
milliseconds=$(sed -n '$s/m/ /gp' "$scratch/times" | tr -d s |
    awk '{ printf "%d", 1000 * (60 * $1 + $2 + 60 * $3 + $4) }')
echo "a C++ file that uses three functions is compiled in $milliseconds ms"
[ "$milliseconds" -lt 500 ] || fail "too slow to compile"

[ "$failures" -eq 0 ]
