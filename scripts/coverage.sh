#!/bin/sh
# Which lines of src/ the tests reach: vonkk3_tests, steered_test, the bits, the comparison with the model and the fuzzer's corpus,
# on the library as Clang builds it with counters; and, where this processor runs it, the library for x86-64-v3 by all of
# these but the test programs. Prints a table by folder, then every line that nothing reached with its reason out of
# tests/unreached.txt.
#
# Exit code 1: a test failed, a line without a reason was not reached, or a reason is out of date; 2: cannot build.
set -eu
cd "$(dirname "$0")/.."
. scripts/packages.sh
. scripts/levels.sh
need clang llvm libclang-rt-dev cmake make python3 libgtest-dev libcli11-dev liblapacke-dev libopenblas-dev

calls=${VONKK3_COVERAGE_CALLS:-60} # random ones for each export
failed=0
profiles=build/coverage-profiles
mkdir -p build
rm -rf $profiles && mkdir $profiles
export LLVM_PROFILE_FILE="$PWD/$profiles/%4m.profraw" # counts of all programs add up in a few files

# Without optimization the build is quickest, and lines are counted as they are written either way.
build() { # FOLDER LEVEL TARGET...
    folder=$1
    level=$2
    shift 2
    echo "building $folder" >&2
    { cmake -S . -B "$folder" -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS_DEBUG=-O1 -DVONKK3_SINGLE_LEVEL="$level" \
        -DVONKK3_INSTRUMENT="-O0;-fprofile-instr-generate;-fcoverage-mapping" -DVONKK3_EXAMPLES=OFF \
        -DCMAKE_C_COMPILER=clang -DCMAKE_CXX_COMPILER=clang++ &&
        cmake --build "$folder" --target "$@" --parallel "$(nproc)"
    } >"$folder.log" 2>&1 || { tail -n 40 "$folder.log"; exit 2; }
}

# A failing test still counts what it reaches.
run() { # PROGRAM ARGUMENT...
    "$@" >$profiles/log 2>&1 && return 0
    tail -n 20 $profiles/log
    echo "FAILED: $*"
    failed=1
}

run_all() {
    run build/coverage/tests/bits --check tests/bits.txt
    run build/coverage/tests/compare --calls "$calls"
    run build/coverage/tests/fuzz/fuzz_corpus --check tests/fuzz/corpus.txt
}

build build/coverage x86-64 all
run build/coverage/tests/vonkk3_tests --gtest_brief=1
run build/coverage/tests/fuzz/steered_test
run_all
libraries=build/coverage/vonkk3.so
if runs_level x86-64-v3; then
    build build/coverage-v3 x86-64-v3 vonkk3
    export VONKK3_LIBRARY="$PWD/build/coverage-v3/vonkk3.so"
    run_all
    libraries="$libraries -object build/coverage-v3/vonkk3.so"
fi

llvm-profdata merge -o $profiles/all.profdata $profiles/*.profraw
llvm-cov export -format=text -skip-expansions -instr-profile=$profiles/all.profdata $libraries >$profiles/counts.json
python3 scripts/coverage_report.py $profiles/counts.json tests/unreached.txt || failed=1
exit $failed
