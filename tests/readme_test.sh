#!/bin/sh
# The README's C and C++ examples compile as they stand and print the right solutions, and what it links to is there.
#
#     readme_test.sh SOURCE_FOLDER BUILD_FOLDER C_COMPILER CXX_COMPILER
set -eu
source=$1
build=$2
cc=$3
cxx=$4
. "$(dirname "$0")/checks.sh"

awk '/^```c$/ { inside = 1; next } /^```$/ { inside = 0 } inside' "$source/README.md" >"$scratch/example.c"
"$cc" -std=c99 -pedantic -Wall -Wextra -Werror -I"$source/include" "$scratch/example.c" -L"$build" -lvonkk3 \
    -Wl,-rpath,"$build" -o "$scratch/example"
"$scratch/example" >"$scratch/output"
cat "$scratch/output"
test "$(cat "$scratch/output")" = "x = 1 1 1 and 1 1 1"
awk '/^```cpp$/ { inside = 1; next } /^```$/ { inside = 0 } inside' "$source/README.md" >"$scratch/example.cpp"
"$cxx" -std=c++17 -pedantic -Wall -Wextra -Werror -I"$source/include" "$scratch/example.cpp" -L"$build" -lvonkk3 \
    -Wl,-rpath,"$build" -o "$scratch/example"
test "$("$scratch/example")" = "x = 1 1 1 and 1 1 1"

# The site's plots are drawn when it is built.
for page in "$source"/*.md "$source"/bench/*.md "$source"/python/*.md "$source"/docs/*.md "$source"/docs/reference/*.md \
    "$source"/docs/site/pages/*.md "$source"/docs/site/pages/recipes/*.md "$source"/examples/nist/*.md; do
    grep -oE '\]\([^)#]+' "$page" | sed 's/^](//' | grep -vE '^(https?:|plots/)' | while read -r link; do
        test -e "${page%/*}/$link" || { echo "FAILED: ${page#"$source"/} links to $link, which is not there"; exit 1; }
    done || exit 1
done

# The picture of the house has every folder of the sources.
for folder in "$source"/src/*/ "$source"/tests/model/ "$source"/tests/fuzz/ "$source"/tools/ "$source"/bench/ \
    "$source"/python/ "$source"/fortran/; do
    name=${folder#"$source"/}
    grep -q "${name%/}" "$source/docs/architecture.md" ||
        { echo "FAILED: docs/architecture.md does not name ${name%/}"; exit 1; }
done
