#!/bin/sh
# Searches for calls on which library and model differ, guided by the coverage of the library: libFuzzer's bytes steer the
# generator of random calls.
#
#     fuzz.sh MINUTES [--build sanitizers|optimised] [--keep]
#
#     --build      the library with the address and undefined-behaviour sanitizers (usual), or as Clang optimises it
#     --keep       afterwards stores the inputs that reach every line reached so far as tests/fuzz/corpus.txt
#
# The search goes on where the last one stopped: what it gathers stays in build/fuzz-BUILD/gathered. A finding is stored
# in build/fuzz-findings/, and the command that makes it again is printed. Exit code 0: nothing found; 1: a finding;
# 2: an option that is none, or a build that fails.
set -eu

fail() {
    echo "fuzz.sh: $*" >&2
    exit 2
}

build=sanitizers keep= minutes=
while [ $# -gt 0 ]; do
    case $1 in
    --build)
        [ $# -ge 2 ] || fail "$1 needs a value"
        build=$2
        shift
        ;;
    --keep) keep=yes ;;
    --help | -h)
        sed -n '2,/^set -eu/s/^# \{0,1\}//p' "$0"
        exit 0
        ;;
    -*) fail "no such option: $1 (--help lists them)" ;;
    *) minutes=$1 ;;
    esac
    shift
done
case $minutes in
'' | 0* | *[!0-9]*) fail "how many minutes? (--help tells more)" ;;
esac
case $build in
sanitizers) options="-DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS_DEBUG=-O1 -DVONKK3_SANITIZE=ON" ;;
optimised) options=-DCMAKE_BUILD_TYPE=Release ;;
*) fail "no such build: $build" ;;
esac

cd "$(dirname "$0")/.."
. scripts/packages.sh
need clang llvm libclang-rt-dev cmake make libgtest-dev libcli11-dev liblapacke-dev libopenblas-dev

folder=build/fuzz-$build
findings=build/fuzz-findings
corpus=tests/fuzz/corpus.txt
mkdir -p build "$findings"
echo "building $folder" >&2
{ cmake -S . -B "$folder" $options -DVONKK3_FUZZ=ON -DVONKK3_EXAMPLES=OFF -DVONKK3_LEVELS=x86-64 \
    -DCMAKE_C_COMPILER=clang -DCMAKE_CXX_COMPILER=clang++ &&
    cmake --build "$folder" --target fuzz distill --parallel "$(nproc)"
} >"$folder.log" 2>&1 || { tail -n 40 "$folder.log" >&2; fail "cannot build the search"; }

export ASAN_OPTIONS=detect_leaks=0
search=$folder/tests/fuzz/fuzz
mkdir -p "$folder/gathered"
rm -rf "$folder/corpus"
"$folder/tests/fuzz/distill" --unpack "$corpus" "$folder/corpus" || fail "cannot read $corpus"

# What the search says of each new input is left to its log.
log=$folder/search.log
{ "$search" -max_total_time=$((minutes * 60)) -max_len=160 -timeout=60 -rss_limit_mb=4096 -print_final_stats=1 \
    -artifact_prefix="$findings/" "$folder/gathered" "$folder/corpus" 2>&1 && echo "ended: nothing found"
} | tee "$log" | grep --line-buffered -v -E '^#[0-9]+[[:space:]]+(NEW|REDUCE)|^stat::(average|peak|slowest)' || true

if ! grep -q '^ended: nothing found' "$log"; then
    finding=$(sed -n 's/.*Test unit written to \([^ ]*\).*/\1/p' "$log" | tail -n 1)
    [ -n "$finding" ] || fail "the search ended early; see $log"
    echo "FOUND: $finding"
    echo "again: $search $finding"
    echo "on any other build: BUILD/tests/fuzz/fuzz_corpus --input $finding"
    exit 1
fi
if [ -n "$keep" ]; then
    "$folder/tests/fuzz/distill" "$folder/gathered" "$folder/corpus" >"$folder/kept" || fail "cannot distil the corpus"
    { sed -n '/^#/p' "$corpus"; cat "$folder/kept"; } >"$folder/corpus.txt"
    mv "$folder/corpus.txt" "$corpus"
fi
