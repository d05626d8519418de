#!/bin/sh
# What takes a night: everything that the tests of a change have no time for. Writes docs/verification.md.
#
#     nightly.sh [--comparisons N] [--fuzz MINUTES] [STEP...]
#
#     N random comparisons, 100000000 unless told; 60 minutes of search on each build unless told; all steps unless named:
#
#     tests         scripts/test.sh
#     compilers     the bits from GCC and Clang at -O1, -O2 and -O3
#     levels        the bits and random calls of the library for each instruction set that this processor runs
#     comparisons   library, for each instruction set, and model, in chunks
#     fuzz          the coverage-guided search on each build
#     coverage      scripts/coverage.sh
#     threads       every export from eight threads on a library with the thread sanitizer
#     valgrind      memory errors alone: its 80-bit arithmetic has 64 bits, so that results differ
#     abi           scripts/abi.sh
#     windows       scripts/windows.sh: the DLL and its tests by Wine
#     linux32       scripts/linux32.sh: the library for 32-bit x86 Linux and its tests
#     packages      scripts/release.sh, twice with the same bytes, and tests/debian_test.sh of its packages
#     site          scripts/docs.sh --test: the documentation, by clicks in a browser
#     faults        scripts/faults.py: every deliberate fault turns a test red
#
# A step or chunk that is done at this commit is not done again: a night that is cut short goes on in the next. Results are
# kept in build/nightly; what the page says of steps that this machine has no results of stays. Exit code 1: a step failed.
set -u
cd "$(dirname "$0")/.."
. scripts/packages.sh
. scripts/levels.sh

comparisons=100000000
minutes=60
steps=
while [ $# -gt 0 ]; do
    case $1 in
    --comparisons | --fuzz)
        case ${2:-} in '' | *[!0-9]*) echo "nightly.sh: $1 takes a number" >&2; exit 2 ;; esac
        case $1 in --fuzz) minutes=$2 ;; *) comparisons=$2 ;; esac
        shift
        ;;
    --help | -h)
        sed -n '2,/^set -u/s/^# \{0,1\}//p' "$0"
        exit 0
        ;;
    -*) echo "nightly.sh: no such option: $1" >&2; exit 2 ;;
    *) steps="$steps $1" ;;
    esac
    shift
done
all="tests compilers levels abi windows linux32 packages threads valgrind coverage fuzz comparisons site faults"
[ -n "$steps" ] || steps=$all
for step in $steps; do
    case " $all " in *" $step "*) ;; *) echo "nightly.sh: no such step: $step" >&2; exit 2 ;; esac
done

need g++ gcc clang llvm libclang-rt-dev cmake make python3 valgrind libgtest-dev libcli11-dev liblapacke-dev libopenblas-dev
if ! git diff --quiet HEAD -- ':!docs/verification.md'; then echo "nightly.sh: there are changes that are not committed" >&2; exit 2; fi
commit=$(git rev-parse --short HEAD)
processor=$(python3 scripts/verification.py --processor)
results=$PWD/build/nightly
mkdir -p "$results"
failed=0

# A result is a file: commit, date, seconds, exit code, the command, and what it printed.
record() { # NAME COMMAND...
    file=$results/$1
    shift
    if [ "$(sed -n 1p "$file" 2>/dev/null)" = "commit $commit" ] && [ "$(sed -n 5p "$file")" = "exit 0" ]; then return 0; fi
    began=$(date +%s)
    "$@" >"$file.output" 2>&1
    code=$?
    { echo "commit $commit"; date -u '+date %Y-%m-%d'; echo "seconds $(($(date +%s) - began))"
        echo "processor $processor"; echo "exit $code"; echo "command $*"; cat "$file.output"; } >"$file"
    rm "$file.output"
    [ $code -eq 0 ] || { echo "FAILED: $*"; tail -n 5 "$file"; failed=1; }
    return $code
}

build() { # TARGETS FOLDER CMAKE_ARGUMENT...
    targets=$1
    folder=$2
    shift 2
    { cmake "$@" && cmake --build "$folder" --target $targets --parallel "$(nproc)"
    } >"$results/build.log" 2>&1 || { tail -n 20 "$results/build.log"; echo "FAILED: cannot build $folder"; failed=1; return 1; }
}
gcc=build/bench # as scripts/test.sh leaves it
plain() { build "${1:-compare bits threads}" $gcc --preset bench; }

step_tests() { record tests sh scripts/test.sh; }

step_compilers() { plain && record compilers sh scripts/compilers.sh $gcc/tests/bits tests/bits.txt; }

step_levels() {
    plain "compare bits vonkk3_levels" || return
    for level in x86-64 x86-64-v3 x86-64-v4; do
        library=$gcc/levels/$level/vonkk3.so
        [ $level != x86-64 ] || library=$gcc/vonkk3.so
        if ! runs_level $level; then
            echo "left out: this processor does not run $level"
            continue
        fi
        record "levels-$level-bits" $gcc/tests/bits --check tests/bits.txt --library $library
        record "levels-$level-random" $gcc/tests/compare --calls 200 --seed 9 --library $library
    done
}

# 100 calls of each export make about 840,000 comparisons, for each instruction set of the library that this processor runs:
# the model works a call once for all of them.
step_comparisons() {
    plain "compare vonkk3_levels" || return
    libraries="--library $gcc/vonkk3.so"
    for level in x86-64-v3 x86-64-v4; do
        if runs_level $level; then libraries="$libraries --library $gcc/levels/$level/vonkk3.so"; fi
    done
    seed=1
    while [ "$(python3 scripts/verification.py --comparisons "$results" "$commit")" -lt "$comparisons" ]; do
        record "comparisons-$seed" $gcc/tests/compare --calls 100 --seed "$seed" $libraries || return
        seed=$((seed + 1))
    done
}

step_fuzz() { for kind in sanitizers optimised; do record "fuzz-$kind" sh scripts/fuzz.sh $minutes --build $kind; done; }

step_coverage() { record coverage sh scripts/coverage.sh; }

# First that it finds what there is to find: all threads on the same memory.
step_threads() {
    build threads build/threads -S . -B build/threads -DVONKK3_EXAMPLES=OFF -DCMAKE_BUILD_TYPE=Release \
        -DCMAKE_C_COMPILER=clang -DCMAKE_CXX_COMPILER=clang++ -DVONKK3_LEVELS=x86-64 \
        -DVONKK3_INSTRUMENT="-O0;-g1;-fsanitize=thread" -DCMAKE_EXE_LINKER_FLAGS=-fsanitize=thread || return
    if TSAN_OPTIONS=halt_on_error=1 build/threads/tests/threads --calls 1 --share >"$results/threads-share" 2>&1 ||
        ! grep -q 'WARNING: ThreadSanitizer: data race' "$results/threads-share"; then
        echo "FAILED: the thread sanitizer finds no race on shared memory"
        failed=1
        return
    fi
    record threads env TSAN_OPTIONS=halt_on_error=1 build/threads/tests/threads --calls 4
}

step_valgrind() {
    plain || return
    record valgrind sh -c "valgrind --error-exitcode=99 --quiet $gcc/tests/threads --calls 1; [ \$? -ne 99 ]"
}

step_abi() { record abi sh scripts/abi.sh; }

step_windows() { record windows sh scripts/windows.sh; }

step_linux32() { record linux32 sh scripts/linux32.sh; }

step_packages() {
    record packages sh -c 'sh scripts/release.sh --twice --no-windows --output build/release-packages &&
        sh tests/debian_test.sh build/release-packages'
}

step_site() { record site sh scripts/docs.sh --test "$gcc"; }

step_faults() { record faults python3 scripts/faults.py; }

for step in $steps; do
    echo "== $step"
    step_$step
done
python3 scripts/verification.py "$results" docs/verification.md >"$results/page" &&
    cp "$results/page" docs/verification.md || failed=1
exit $failed
