#!/bin/sh
# Checks formatting and runs clang-tidy over the library, the generator and the tests; silent when all is well.
set -eu
cd "$(dirname "$0")/.."
. scripts/packages.sh
need clang clang-format clang-tidy cmake make libgtest-dev libcli11-dev liblapacke-dev libopenblas-dev
files=$(git ls-files '*.cpp' '*.h' ':!include')
clang-format --dry-run --Werror $files
cmake --preset clang >/dev/null
cmake --build --preset clang --target generated_files >/dev/null
sources=$(git ls-files 'src/*.cpp' 'tools/*.cpp' 'tests/*.cpp' ':!tests/install')
clang-tidy -p build/clang --quiet $sources build/clang/src/generated/stubs/*.cpp 2>/dev/null
