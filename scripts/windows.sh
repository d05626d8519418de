#!/bin/sh
# Sets everything up on a fresh Debian machine, builds the library as a Windows DLL for each instruction set, runs its tests
# by Wine, and packs what a Windows programmer needs: dist/vonkk3-4.1-windows-x64.zip.
#
#     windows.sh [--quick]      of the tests the file's, the bits and the examples alone
#
# The zip has the same bytes from the same commit. Exit code 1: a build or a test failed.
set -eu
case ${1:-} in
'') tests=. ;;
--quick) tests='^(wine|bits|library_file-.*)$' ;;
--help | -h) sed -n '2,/^set -eu/s/^# \{0,1\}//p' "$0"; exit 0 ;;
*) echo "windows.sh: no such option: $1" >&2; exit 2 ;;
esac
cd "$(dirname "$0")/.."
. scripts/packages.sh
. scripts/presets.sh
need g++ cmake ninja-build lld g++-mingw-w64-x86-64-posix binutils-mingw-w64-x86-64 wine wine64 googletest libcli11-dev zip unzip

build=build/windows
mkdir -p build dist
configure windows >build/windows.log 2>&1 || { cat build/windows.log; exit 1; }
cmake --build --preset windows --parallel "$(nproc)"
ctest --test-dir $build --output-on-failure --tests-regex "$tests"

name=vonkk3-$(sed -n 's/^project(vonkk3 VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)-windows-x64
rm -rf "dist/$name" "dist/$name.zip"
cmake --install $build --prefix "dist/$name" >/dev/null

echo "== The package, as its user builds the examples"
export WINEPREFIX="$PWD/$build/wine" WINEDEBUG=-all
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
cc=x86_64-w64-mingw32-gcc
unpacked=$scratch/$name
cp -R "dist/$name" "$scratch"
for example in example choose; do
    $cc -std=c99 -pedantic -Wall -Wextra -Werror -I"$unpacked/include" "$unpacked/example/$example.c" "$unpacked/lib/vonkk3.lib" \
        -o "$scratch/$example.exe"
done
echo '#include <vonkk3.hpp>' | x86_64-w64-mingw32-g++ -std=c++17 -pedantic -Wall -Wextra -Werror -I"$unpacked/include" \
    -fsyntax-only -x c++ -
# How Visual C sets the precision, by instructions of which GCC has the same names.
$cc -std=c99 -Wall -Wextra -Werror -mfxsr -DPRECISION_BY_STATE -I"$unpacked/include" "$unpacked/example/example.c" \
    "$unpacked/lib/vonkk3.lib" -o "$scratch/by_state.exe"
# A list of exports is enough for linkers that take it.
x86_64-w64-mingw32-dlltool -d "$unpacked/lib/vonkk3.def" -l "$scratch/libfromdef.a"
$cc -std=c99 -I"$unpacked/include" "$unpacked/example/example.c" "$scratch/libfromdef.a" -o "$scratch/from_def.exe"
cat >"$scratch/expected" <<'END'
vonkk3.dll v4.1
x = 1 1 1 and 1 1 1
the thread started at 64 bits
at 53 bits 1 + 0
at 64 bits 1 + 2.22045e-16
END
cp "$unpacked/bin/vonkk3.dll" "$scratch"
for program in example by_state from_def; do
    wine "$scratch/$program.exe" | tr -d '\r' | diff "$scratch/expected" - || { echo "FAILED: $program"; exit 1; }
done
(cd "$unpacked" && wine "$scratch/choose.exe" bin | tr -d '\r') >"$scratch/chosen"
cat "$scratch/chosen"
grep -q '^1 / sqrt(16) = 0.25$' "$scratch/chosen" || { echo "FAILED: choose"; exit 1; }

date=$(git log -1 --format=%ct 2>/dev/null || echo 1577836800)
find "dist/$name" -exec touch -h -d "@${SOURCE_DATE_EPOCH:-$date}" {} +
(cd dist && find "$name" | LC_ALL=C sort | TZ=UTC zip -q -X -9 "$name.zip" -@)
rm -rf "dist/$name"
unzip -q -t "dist/$name.zip"
ls -l "dist/$name.zip"
