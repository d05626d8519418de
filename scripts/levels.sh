# Sourced by scripts and tests: which instruction sets this processor runs, as the C library's loader sees it.
#
#     runs_level LEVEL        whether it runs x86-64, x86-64-v3, ...
#     best_level FOLDER       the best one that has a subfolder there, or nothing
runs_level() {
    [ "$1" = x86-64 ] && return 0
    loader=$(readelf -lW "$(command -v cat)" | sed -n 's/.*interpreter: \(.*\)\]/\1/p')
    "$loader" --help | grep -q "^ *$1 (supported"
}
best_level() {
    for level in x86-64-v4 x86-64-v3; do
        if [ -d "$1/$level" ] && runs_level "$level"; then
            echo "$level"
            return 0
        fi
    done
}
