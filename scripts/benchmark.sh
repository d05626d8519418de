#!/bin/sh
# Sets everything up on a fresh Debian machine, measures the library beside its peers, and prints a table and a summary.
#
#     --filter REGEX    only the rows whose names match
#     --rounds N        turns of every contestant in a row (200)
#     --native          peers compiled for this machine, beside the library built for the best level that it runs
#     --both            first the baseline, then that, and a summary with columns for both
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

filter=. rounds=200 runs=baseline save= against=
while [ $# -gt 0 ]; do
    case $1 in
    --native) runs=native ;;
    --both) runs='baseline native' ;;
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
case $runs in
*' '*) [ -z "$save$against" ] || fail "--save and --against are of one run: --native, or without --both" ;;
esac
[ -z "$against" ] || python3 scripts/benchmark_compare.py "$against"
if [ -n "$save" ]; then
    { [ -w "$(dirname "$save")" ] && [ ! -d "$save" ]; } || fail "cannot write $save"
fi

targets=
for run in $runs; do
    case $run in
    baseline) targets="$targets benchmarks" ;;
    native) targets="$targets benchmarks_native vonkk3_levels" ;;
    esac
done
echo "building" >&2
mkdir -p build
{ configure bench && cmake --build --preset bench --target $targets --parallel "$(nproc)"
} >build/bench.log 2>&1 || { tail -n 40 build/bench.log >&2; fail "cannot build the benchmarks"; }

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
json=$scratch/run.json
measure() { # PROGRAMME OPTION...
    programme=$1
    shift
    build/bench/bench/"$programme" --rounds="$rounds" --benchmark_filter="$filter" --benchmark_out="$json" \
        --benchmark_out_format=json "$@" || fail "no row matches $filter, or contestants disagree"
}
case $runs in
baseline) measure benchmarks ;;
*)
    level=$(best_level build/bench/levels)
    best=build/bench/levels/$level
    [ -n "$level" ] || best=build/bench
    case $runs in
    baseline*)
        measure benchmarks --ratios="$scratch/baseline"
        set -- --baseline="$scratch/baseline"
        echo
        ;;
    *) set -- ;;
    esac
    echo "library built for ${level:-x86-64}"
    export LD_LIBRARY_PATH="$PWD/$best" # the loader takes it from there
    measure benchmarks_native "$@"
    ;;
esac
[ -z "$save" ] || cat "$json" >"$save"
[ -z "$against" ] || python3 scripts/benchmark_compare.py "$against" "$json"
