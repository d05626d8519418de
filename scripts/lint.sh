#!/bin/sh
# Checks formatting and runs clang-tidy over the library, the generator and the tests; silent when all is well.
#
#     lint.sh              everything
#     lint.sh --format     the formatting of everything, and no more
#     lint.sh --changed    clang-tidy of the files that have changed since the branch left origin/main, or else in the last
#                          commit; says what it looks at. Headers of src/ are seen in the units that include them, by the
#                          whole run alone.
set -eu
cd "$(dirname "$0")/.."
. scripts/packages.sh
. scripts/presets.sh

check_format() {
    need clang-format
    # Found without git, which may know nothing of the tree: an archive, or somebody else's checkout.
    find bench examples include python src tests tools \( -name '*.cpp' -o -name '*.h' -o -name '*.hpp' \) \
        ! -path '*/build/*' ! -path 'include/vonkk3/exports/*' ! -path 'include/*.h' -print0 |
        xargs -0 clang-format --dry-run --Werror
}

tidy() { # FILE...
    need clang clang-tidy cmake ninja-build libgtest-dev libcli11-dev liblapacke-dev libopenblas-dev
    # clang-tidy reads no precompiled header.
    configure clang -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON >/dev/null
    cmake --build --preset clang --target vonkk3_generated >/dev/null
    printf '%s\n' "$@" | xargs -P "$(nproc)" -n 1 clang-tidy -p build/clang --quiet \
        --extra-arg=-Wno-pragma-once-outside-header 2>/dev/null
}

# What the branch has changed, or nothing where there is no history to tell.
base_of_changes() {
    head=$(git rev-parse --quiet --verify HEAD) || return 0
    base=$(git merge-base HEAD origin/main 2>/dev/null) || base=$head
    [ "$base" != "$head" ] || base=$(git rev-parse --quiet --verify HEAD~1) || return 0
    echo "$base"
}

tidy_changed() {
    base=$(base_of_changes)
    if [ -z "$base" ]; then
        echo "left out: there is no earlier commit to tell what has changed"
        return 0
    fi
    changed=$(git diff --name-only --diff-filter=d "$base" -- 'src/*.cpp' 'tools/*.cpp' 'tests/*.cpp' \
        ':!tests/install' ':!tests/cpp' ':!*/windows/*')
    echo "changed since $(git rev-parse --short "$base"): $(printf '%s' "$changed" | grep -c .) files"
    # File names are words, so they go unquoted.
    [ -z "$changed" ] || tidy $changed
}

case ${1:-} in
--format) check_format ;;
--changed) tidy_changed ;;
'')
    check_format
    need clang cmake ninja-build
    configure clang -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON >/dev/null
    cmake --build --preset clang --target vonkk3_generated >/dev/null
    tidy $(git ls-files 'src/*.cpp' 'tools/*.cpp' 'tests/*.cpp' ':!tests/install' ':!*/windows/*') build/clang/src/generated/stubs/*.cpp
    ;;
*)
    echo "lint.sh: no such option: $1" >&2
    exit 2
    ;;
esac
