#!/bin/sh
# Installs into a scratch prefix and uses the library from there as a stranger would: a C, a C++ and a Fortran program,
# each by find_package and by pkg-config, and a program that opens the library by its names at run time. Of the builds
# for several instruction sets the loader must take the best that the processor has.
#
#     install_test.sh BUILD_FOLDER TESTS_FOLDER C_COMPILER CXX_COMPILER
set -eu
build=$1
tests=$2
cc=$3
cxx=$4
. "$(dirname "$0")/checks.sh"

cmake --install "$build" --prefix "$scratch/first" >/dev/null
mv "$scratch/first" "$scratch/moved" # nothing installed may remember where it was put
prefix=$scratch/moved
libraries=$(dirname "$(find "$prefix" -name libvonkk3.so)") # the baseline alone has that link
export LD_LIBRARY_PATH="$libraries"

export PKG_CONFIG_PATH="$libraries/pkgconfig"

mkdir "$scratch/user"
cd "$scratch/user"
CC=$cc CXX=$cxx CMAKE_PREFIX_PATH=$prefix sh "$tests/install/use.sh"
readelf -dW c_program | grep -q 'NEEDED.*\[libvonkk3\.so\.4\]'

echo "by instruction set"
. "$tests/../scripts/levels.sh"
best=$(best_level "$libraries/glibc-hwcaps")
expected=$(readlink -f "$libraries${best:+/glibc-hwcaps/$best}/vonkk3.so")
resolved() { sed -n 's/.*libvonkk3\.so\.4 => \(.*\) (0x.*/\1/p' | xargs readlink -f; } # of what the loader lists
loads() { # WHAT FILE EXPECTED
    if [ "$2" = "$3" ]; then echo "  $1: ${2#"$prefix"/}"
    else fail "$1 loads $2, not $3"; fi
}
loads "along LD_LIBRARY_PATH" "$(LD_TRACE_LOADED_OBJECTS=1 ./c_program | resolved)" "$expected"
"$cc" -std=c99 "$tests/install/program.c" $(pkg-config --cflags --libs vonkk3) \
    -Wl,--enable-new-dtags,-rpath,"$libraries" -o with_runpath
loads "along RUNPATH" "$(LD_LIBRARY_PATH= LD_TRACE_LOADED_OBJECTS=1 ./with_runpath | resolved)" "$expected"
test "$(LD_LIBRARY_PATH= ./with_runpath)" = v4.1
loads "by dlopen" "$(readlink -f "$(./opens libvonkk3.so.4)")" "$expected"
if command -v qemu-x86_64 >/dev/null; then
    base=$(readlink -f "$libraries/vonkk3.so")
    loads "on a processor without AVX2" \
        "$(qemu-x86_64 -cpu Nehalem -E LD_TRACE_LOADED_OBJECTS=1 ./c_program | resolved)" "$base"
    test "$(qemu-x86_64 -cpu Nehalem ./c_program)" = v4.1
else echo "  left out: there is no qemu-x86_64 to stand for a processor without AVX2"; fi

echo "as data"
cmake -DJSON="$prefix/share/vonkk3/functions.json" -DEXPORTS="$build/src/generated/exports.txt" \
    -P "$tests/install/functions.cmake"
[ "$failures" -eq 0 ] && echo "installed library works"
