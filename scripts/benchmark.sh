#!/bin/sh
# Sets everything up on a fresh Debian machine, measures the library beside its peers, and prints a table and a summary.
#
#     --filter REGEX    only the rows whose names match
#     --rounds N        turns of every contestant in a row (200)
#     --native          peers compiled for this machine, beside the library built for the best level that it runs
#     --save FILE       stores the run as JSON
#     --against FILE    compares with a stored run, ratio by ratio; exit code 1 if a row got slower by more than a tenth
#
# Exit code 2: an option or a file that is none. Let nothing else run meanwhile.
set -eu

fail() {
    echo "benchmark.sh: $*" >&2
    exit 2
}
absolute() {
    case $1 in
    /*) echo "$1" ;;
    *) echo "$PWD/$1" ;;
    esac
}

filter=. rounds=200 native=OFF save= against=
while [ $# -gt 0 ]; do
    case $1 in
    --native) native=ON ;;
    --filter | --rounds | --save | --against)
        [ $# -ge 2 ] && [ -n "$2" ] || fail "$1 needs a value"
        case $1 in
        --filter) filter=$2 ;;
        --rounds) rounds=$2 ;;
        --save) save=$(absolute "$2") ;;
        --against) against=$(absolute "$2") ;;
        esac
        shift
        ;;
    --help | -h)
        sed -n '2,/^set -eu/s/^# \{0,1\}//p' "$0"
        exit 0
        ;;
    *) fail "no such option: $1 (--help lists them)" ;;
    esac
    shift
done
case $rounds in
'' | *[!0-9]* | 0*) fail "--rounds: not a number above 0: $rounds" ;;
esac

cd "$(dirname "$0")/.."
. scripts/packages.sh
. scripts/levels.sh
. scripts/presets.sh
need g++ gcc cmake ninja-build python3 libgtest-dev libcli11-dev libbenchmark-dev libeigen3-dev libglm-dev libcglm-dev \
    libxsmm-dev liblapacke-dev libopenblas-dev

# Whatever would fail after minutes fails now.
[ -z "$against" ] || python3 scripts/benchmark_compare.py "$against"
if [ -n "$save" ]; then
    { [ -w "$(dirname "$save")" ] && [ ! -d "$save" ]; } || fail "cannot write $save"
fi

echo "building" >&2
mkdir -p build
{ configure bench -DVONKK3_BENCH_NATIVE=$native &&
    cmake --build --preset bench --target benchmarks $([ $native = OFF ] || echo levels) --parallel "$(nproc)"
} >build/bench.log 2>&1 || { tail -n 40 build/bench.log >&2; fail "cannot build the benchmarks"; }

# The loader takes the library from there.
if [ $native = ON ]; then
    level=$(best_level build/bench/levels)
    [ -z "$level" ] || export LD_LIBRARY_PATH="$PWD/build/bench/levels/$level"
    echo "library built for ${level:-x86-64}" >&2
fi

run=$(mktemp)
trap 'rm -f "$run"' EXIT
build/bench/bench/benchmarks --rounds="$rounds" --benchmark_filter="$filter" --benchmark_out="$run" \
    --benchmark_out_format=json || fail "no row matches $filter, or contestants disagree"
[ -z "$save" ] || cat "$run" >"$save"
[ -z "$against" ] || python3 scripts/benchmark_compare.py "$against" "$run"
