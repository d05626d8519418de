#!/bin/sh
# Sets everything up on a fresh Debian machine and runs all tests: the library as GCC makes it, then as Clang makes it
# with the sanitizers, then the bits of the results as both make it at every optimisation level.
set -eu
cd "$(dirname "$0")/.."
. scripts/packages.sh
need g++ gcc clang libclang-rt-dev cmake make binutils pkg-config libgtest-dev libcli11-dev libbenchmark-dev libeigen3-dev \
    libglm-dev libcglm-dev libxsmm-dev
jobs=$(nproc)

echo "== Clang with sanitizers"
cmake --preset sanitizers >/dev/null
cmake --build --preset sanitizers --parallel "$jobs" | grep -E 'warning|error|Built target vonkk3' || true
ctest --preset sanitizers --parallel "$jobs" -LE 'random|slow'

echo "== GCC, with benchmarks and every compiler's bits"
cmake --preset bench >/dev/null
cmake --build --preset bench --parallel "$jobs" | grep -E 'warning|error|Built target vonkk3' || true
exec ctest --test-dir build/bench --output-on-failure --parallel "$jobs"
