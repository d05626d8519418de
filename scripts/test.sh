#!/bin/sh
# Sets everything up on a fresh Debian machine and runs all tests: on the library as GCC makes it for each instruction set,
# and as Clang makes it with the sanitizers, with the benchmarks' check, the bits of what Clang makes of it at -O3, and the
# formatting. Takes about a quarter of an hour on two processors.
set -eu
cd "$(dirname "$0")/.."
. scripts/packages.sh
. scripts/presets.sh
need g++ gcc gfortran clang libclang-rt-dev clang-format cmake ninja-build make ccache binutils pkg-config git \
    libgtest-dev libcli11-dev libbenchmark-dev libeigen3-dev libglm-dev libcglm-dev libxsmm-dev liblapacke-dev \
    libopenblas-dev qemu-user man-db groff-base libopenmpi-dev openmpi-bin \
    lld g++-mingw-w64-x86-64-posix binutils-mingw-w64-x86-64 wine wine64 googletest \
    python3 python3-dev python3-numpy python3-pytest python3-hypothesis python3-setuptools python3-wheel python3-pip \
    python3-venv python3-dask python3-distributed python3-jsonschema mypy
jobs=$(nproc)
export NINJA_STATUS="[%f/%t, %e s] "

build() { # WHAT PRESET TARGETS [OPTION...]
    echo "== $1"
    preset=$2
    target=$3
    shift 3
    configure "$preset" "$@" >"build/$preset.log" 2>&1 || { cat "build/$preset.log"; exit 1; }
    cmake --build --preset "$preset" --target $target --parallel "$jobs"
}

mkdir -p build
echo "== Formatting"
sh scripts/lint.sh --format
build "Clang with sanitizers" sanitizers vonkk3
build "Clang at -O3" clang vonkk3 -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON
build "GCC for Windows" windows "vonkk3 bits" -DVONKK3_LEVELS=x86-64
build "GCC, with tests and benchmarks" bench all -DVONKK3_OTHER_LIBRARIES="$PWD/build/clang/vonkk3.so" \
    -DVONKK3_SANITIZED_LIBRARY="$PWD/build/sanitizers/vonkk3.so" -DVONKK3_WINDOWS_FOLDER="$PWD/build/windows"
echo "== Tests"
exec ctest --test-dir build/bench --output-on-failure --parallel "$jobs"
