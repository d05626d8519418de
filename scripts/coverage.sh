#!/bin/sh
# Which lines of src/ the tests reach: all test programs, the bits, the comparison with the model and the fuzzer's corpus,
# on the library as Clang builds it with counters. Prints a table by folder, then every line that nothing reached with its
# reason out of tests/unreached.txt.
#
#     coverage.sh [LEVEL...]      instruction sets: x86-64 and, where this processor runs it, x86-64-v3
#
# Exit code 1: a test failed, a line without a reason was not reached, or a reason is out of date; 2: cannot build.
set -eu
cd "$(dirname "$0")/.."
. scripts/packages.sh
. scripts/levels.sh
need clang llvm libclang-rt-dev cmake make python3 libgtest-dev libcli11-dev liblapacke-dev libopenblas-dev

if [ $# -eq 0 ]; then
    set -- x86-64
    if runs_level x86-64-v3; then set -- x86-64 x86-64-v3; fi
fi

calls=${VONKK3_COVERAGE_CALLS:-60} # random ones for each export
failed=0
libraries=
mkdir -p build
rm -rf build/coverage-profiles && mkdir build/coverage-profiles

# A failing test still counts what it reaches.
run() { # PROGRAM ARGUMENT...
    "$@" >build/coverage-profiles/log 2>&1 && return 0
    tail -n 20 build/coverage-profiles/log
    echo "FAILED: $*"
    failed=1
}

for level in "$@"; do
    build=build/coverage-$level
    echo "building $build" >&2
    # Without optimization the build is quickest, and lines are counted as they are written either way.
    { cmake -S . -B "$build" -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS_DEBUG=-O1 -DVONKK3_SINGLE_LEVEL="$level" \
        -DVONKK3_INSTRUMENT="-O0;-fprofile-instr-generate;-fcoverage-mapping" -DVONKK3_EXAMPLES=OFF \
        -DCMAKE_C_COMPILER=clang -DCMAKE_CXX_COMPILER=clang++ &&
        cmake --build "$build" --parallel "$(nproc)"
    } >"$build.log" 2>&1 || { tail -n 40 "$build.log"; exit 2; }

    # Counts of all programs add up in a few files.
    export LLVM_PROFILE_FILE="$PWD/build/coverage-profiles/$level-%4m.profraw"
    for test in "$build"/tests/*_test "$build"/tests/fuzz/*_test; do
        case $test in */least_squares_test | */generator_test) continue ;; esac # of examples and of the generator
        run "$test"
    done
    run "$build/tests/bits" --check tests/bits.txt
    run "$build/tests/compare" --calls "$calls"
    run "$build/tests/fuzz/fuzz_corpus" --check tests/fuzz/corpus.txt
    libraries="$libraries -object $build/vonkk3.so"
done
llvm-profdata merge -o build/coverage-profiles/all.profdata build/coverage-profiles/*.profraw
llvm-cov export -format=lcov -instr-profile=build/coverage-profiles/all.profdata ${libraries# -object } \
    >build/coverage-profiles/lines.info
python3 scripts/coverage_report.py build/coverage-profiles/lines.info tests/unreached.txt || failed=1
exit $failed
