#!/bin/sh
# Builds the library with GCC and Clang at -O1, -O2 and -O3 and checks that the results have the same bits from each.
#
#     compilers.sh BITS_PROGRAM BITS_FILE [SCRATCH_FOLDER [COMPILER-LEVEL...]]      as in g++-O1; else all six
set -eu
bits=$1
file=$2
root=$(cd "$(dirname "$0")/.." && pwd)
scratch=${3:-$(mktemp -d)}
[ -n "${3:-}" ] || trap 'rm -rf "$scratch"' EXIT
shift 2
[ $# -eq 0 ] || shift
[ $# -gt 0 ] || set -- g++-O1 g++-O2 g++-O3 clang++-O1 clang++-O2 clang++-O3
failures=0
for made in "$@"; do
    compiler=${made%-O?}
    cmake -S "$root" -B "$scratch/$made" -DCMAKE_CXX_COMPILER="$compiler" -DVONKK3_TESTS=OFF -DVONKK3_EXAMPLES=OFF \
        -DCMAKE_CXX_FLAGS_RELEASE="${made#"$compiler"}" >/dev/null
    cmake --build "$scratch/$made" --target vonkk3 --parallel "$(nproc)" >/dev/null
    if "$bits" --check "$file" --library "$scratch/$made/vonkk3.so"; then echo "ok: $made"
    else echo "FAILED: $made"; failures=$((failures + 1)); fi
done
[ "$failures" -eq 0 ]
