#!/bin/sh
# The calls that the finder shows compile without warnings as they are pasted, link, run, and do what the loop beside
# them does.
#
#     calls_test.sh SOURCE_FOLDER CATALOGUE.js LIBRARY_FOLDER C_COMPILER [--all]
set -eu
source=$1
catalogue=$2
library=$3
cc=$4
. "$(dirname "$0")/../checks.sh"

node "$source/tests/site/calls.js" "$source/docs/site/finder" "$catalogue" "$scratch" ${5:-}
for program in "$scratch"/*.c; do
    # The sanitizer watches what the calls' own declarations leave to the fill and to the loop.
    "$cc" -std=c99 -O0 -Wall -Werror -fsanitize=address -I"$source/include" "$program" -L"$library" -lvonkk3 \
        -Wl,-rpath,"$library" -lm -o "$scratch/program"
    "$scratch/program" || fail "$program"
done
[ "$failures" -eq 0 ]
