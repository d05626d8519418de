#!/bin/sh
# Runs a program on the library and on its builds for wider processors, as its options --library. Says which of these
# this processor does not run.
#
#     with_levels.sh BUILD_FOLDER BASE,LEVEL,... PROGRAM [OPTION...]      the file is VONKK3_FILE, or vonkk3.so
. "$(dirname "$0")/../scripts/levels.sh"
build=$1
levels=$(echo "$2" | tr ',' ' ' | sed 's/^[^ ]* *//')
shift 2
file=${VONKK3_FILE:-vonkk3.so}
set -- "$@" --library "$build/$file"
for level in $levels; do
    if runs_level "$level"; then set -- "$@" --library "$build/levels/$level/$file"
    else echo "left out: this processor does not run $level"; fi
done
exec "$@"
