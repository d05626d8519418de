#!/bin/sh
# Builds the library with GCC and Clang at -O1, -O2 and -O3 and checks that the results have the same bits from each.
#
#     compilers.sh BITS_PROGRAM BITS_FILE [SCRATCH_FOLDER]
set -eu
bits=$1
file=$2
root=$(cd "$(dirname "$0")/.." && pwd)
scratch=${3:-$(mktemp -d)}
failures=0
for compiler in g++ clang++; do
    for level in 1 2 3; do
        build=$scratch/$compiler-O$level
        cmake -S "$root" -B "$build" -DCMAKE_CXX_COMPILER=$compiler -DVONKK3_TESTS=OFF -DVONKK3_EXAMPLES=OFF \
            -DCMAKE_CXX_FLAGS_RELEASE=-O$level >/dev/null
        cmake --build "$build" --target vonkk3 --parallel "$(nproc)" >/dev/null
        if "$bits" --check "$file" --library "$build/vonkk3.so"; then echo "ok: $compiler -O$level"
        else echo "FAILED: $compiler -O$level"; failures=$((failures + 1)); fi
    done
done
[ -n "${3:-}" ] || rm -rf "$scratch"
[ "$failures" -eq 0 ]
