# What tests in sh share: a folder that goes when they end, and checks that are counted. To be sourced; a test ends with
# [ "$failures" -eq 0 ].
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
failures=0

fail() {
    echo "FAILED: $*"
    failures=$((failures + 1))
}
expect() { # WHAT CONDITION...
    what=$1
    shift
    if "$@"; then echo "ok: $what"; else fail "$what"; fi
}
same() { diff "$1" "$2" >"$scratch/difference" || { head -n 20 "$scratch/difference"; return 1; }; }
empty() { [ ! -s "$1" ] || { head -n 20 "$1"; return 1; }; }
