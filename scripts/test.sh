#!/bin/sh
# Sets everything up on a fresh Debian machine and runs all tests: on the library as Clang makes it with the sanitizers,
# then as GCC makes it, with the benchmarks' check and the bits of what Clang makes of it at -O3. Takes a quarter of an hour
# on two processors. What tests nothing but the tests' own machinery, and takes long, is left out with the sanitizers.
set -eu
cd "$(dirname "$0")/.."
. scripts/packages.sh
need g++ gcc clang libclang-rt-dev cmake make binutils pkg-config libgtest-dev libcli11-dev libbenchmark-dev libeigen3-dev \
    libglm-dev libcglm-dev libxsmm-dev liblapacke-dev libopenblas-dev qemu-user man-db groff-base
jobs=$(nproc)

build() { # PRESET
    cmake --preset "$1" >/dev/null
    cmake --build --preset "$1" --parallel "$jobs" >"build/$1.log" 2>&1 || { tail -n 40 "build/$1.log"; exit 1; }
}

echo "== Clang with sanitizers"
build sanitizers
ctest --preset sanitizers --parallel "$jobs" -LE random \
    -E 'Calls.ReachEveryStatus|Bitstream.HoldsNoCall|ProductModelSums'

echo "== GCC, with benchmarks and another compiler's bits"
build bench
exec ctest --test-dir build/bench --output-on-failure --parallel "$jobs"
