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

echo "by find_package"
cmake -S "$tests/install" -B "$scratch/user" -DCMAKE_PREFIX_PATH="$prefix" -DCMAKE_C_COMPILER="$cc" \
    -DCMAKE_CXX_COMPILER="$cxx" >/dev/null
cmake --build "$scratch/user" >/dev/null
test "$("$scratch/user/c_program")" = v4.1
"$scratch/user/cpp_program"
"$scratch/user/door_program"

echo "by pkg-config"
export PKG_CONFIG_PATH="$libraries/pkgconfig"
flags=$(pkg-config --cflags --libs vonkk3)
# The flags are words, so they go unquoted.
"$cc" -std=c99 -pedantic -Wall -Wextra -Werror "$tests/install/program.c" $flags -o "$scratch/c_program"
"$cxx" -std=c++20 -Wall -Wextra -Werror "$tests/install/program.cpp" $flags -o "$scratch/cpp_program"
"$cxx" -std=c++17 -Wall -Wextra -Werror "$tests/install/door.cpp" $flags -o "$scratch/door_program"
test "$("$scratch/c_program")" = v4.1
"$scratch/cpp_program"
"$scratch/door_program"
readelf -dW "$scratch/c_program" | grep -q 'NEEDED.*\[libvonkk3\.so\.4\]'

echo "by dlopen"
"$cc" -std=c99 -D_POSIX_C_SOURCE=200809L "$tests/install/opens.c" -ldl -o "$scratch/opens"
"$scratch/opens" vonkk3.so libvonkk3.so libvonkk3.so.4 >/dev/null

echo "from Fortran"
if command -v gfortran >/dev/null; then
    mkdir "$scratch/fortran"
    # Objects and module files are put into the current folder.
    (cd "$scratch/fortran" && gfortran -c $(pkg-config --variable=fortran_sources vonkk3))
    gfortran -std=f2018 -I"$scratch/fortran" "$tests/install/program.f90" "$scratch"/fortran/*.o \
        $(pkg-config --libs vonkk3) -o "$scratch/fortran_program"
    "$scratch/fortran_program"
    cmake -S "$tests/install/fortran" -B "$scratch/fortran_user" -DCMAKE_PREFIX_PATH="$prefix" \
        -DCMAKE_Fortran_COMPILER=gfortran >/dev/null
    cmake --build "$scratch/fortran_user" >/dev/null
    "$scratch/fortran_user/program"
else echo "  left out: there is no gfortran"; fi

echo "by instruction set"
. "$tests/../scripts/levels.sh"
best=$(best_level "$libraries/glibc-hwcaps")
expected=$(readlink -f "$libraries${best:+/glibc-hwcaps/$best}/vonkk3.so")
resolved() { sed -n 's/.*libvonkk3\.so\.4 => \(.*\) (0x.*/\1/p' | xargs readlink -f; } # of what the loader lists
loads() { # WHAT FILE EXPECTED
    if [ "$2" = "$3" ]; then echo "  $1: ${2#"$prefix"/}"
    else fail "$1 loads $2, not $3"; fi
}
loads "along LD_LIBRARY_PATH" "$(LD_TRACE_LOADED_OBJECTS=1 "$scratch/c_program" | resolved)" "$expected"
"$cc" -std=c99 "$tests/install/program.c" $flags -Wl,--enable-new-dtags,-rpath,"$libraries" -o "$scratch/with_runpath"
loads "along RUNPATH" "$(LD_LIBRARY_PATH= LD_TRACE_LOADED_OBJECTS=1 "$scratch/with_runpath" | resolved)" "$expected"
test "$(LD_LIBRARY_PATH= "$scratch/with_runpath")" = v4.1
loads "by dlopen" "$(readlink -f "$("$scratch/opens" libvonkk3.so.4)")" "$expected"
if command -v qemu-x86_64 >/dev/null; then
    base=$(readlink -f "$libraries/vonkk3.so")
    loads "on a processor without AVX2" \
        "$(qemu-x86_64 -cpu Nehalem -E LD_TRACE_LOADED_OBJECTS=1 "$scratch/c_program" | resolved)" "$base"
    test "$(qemu-x86_64 -cpu Nehalem "$scratch/c_program")" = v4.1
else echo "  left out: there is no qemu-x86_64 to stand for a processor without AVX2"; fi

echo "as data"
cmake -DJSON="$prefix/share/vonkk3/functions.json" -DEXPORTS="$build/src/generated/exports.txt" \
    -P "$tests/install/functions.cmake"
[ "$failures" -eq 0 ] && echo "installed library works"
