#!/bin/sh
# Sets everything up on a fresh Debian machine, builds the library for 32-bit x86 Linux, and runs its tests.
#
#     linux32.sh [--quick]      of the tests the file's and the bits alone
#
# Exit code 1: a build or a test failed.
set -eu
case ${1:-} in
'') tests=. ;;
--quick) tests='^(bits|library_file)$' ;;
--help | -h) sed -n '2,/^set -eu/s/^# \{0,1\}//p' "$0"; exit 0 ;;
*) echo "linux32.sh: no such option: $1" >&2; exit 2 ;;
esac
cd "$(dirname "$0")/.."
. scripts/packages.sh
. scripts/presets.sh
need g++-multilib gcc-multilib cmake ninja-build ccache googletest libcli11-dev

mkdir -p build
configure linux32 >build/linux32.log 2>&1 || { cat build/linux32.log; exit 1; }
cmake --build --preset linux32 --parallel "$(nproc)"
ctest --test-dir build/linux32 --output-on-failure --tests-regex "$tests"
echo "== What the programs say last"
grep -E ' differences$|passed, [0-9]+ failed|\[  (PASSED|SKIPPED)  \]|^ok: ' build/linux32/Testing/Temporary/LastTest.log
