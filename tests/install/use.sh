#!/bin/sh
# Builds programs with the installed library in the current folder, by pkg-config and by CMake, and runs them. The
# compilers are CC and CXX; Fortran is left out where there is no gfortran.
#
#     use.sh
set -eu
sources=$(cd "$(dirname "$0")" && pwd)
flags=$(pkg-config --cflags --libs vonkk3)

echo "by pkg-config" # the flags are words, so they go unquoted
"${CC:=gcc}" -std=c99 -pedantic -Wall -Wextra -Werror "$sources/program.c" $flags -o c_program
"${CXX:=g++}" -std=c++20 -Wall -Wextra -Werror "$sources/program.cpp" $flags -o cpp_program
"$CXX" -std=c++17 -Wall -Wextra -Werror "$sources/door.cpp" $flags -o door_program
test "$(./c_program)" = v4.1
./cpp_program
./door_program

echo "by dlopen"
"$CC" -std=c99 -D_POSIX_C_SOURCE=200809L "$sources/opens.c" -ldl -o opens
./opens vonkk3.so libvonkk3.so libvonkk3.so.4 >/dev/null

projects=$sources
if command -v gfortran >/dev/null; then
    echo "from Fortran"
    gfortran -c $(pkg-config --variable=fortran_sources vonkk3) # objects and module files go into the current folder
    gfortran -std=f2018 "$sources/program.f90" vonkk3*.o $flags -o fortran_program
    ./fortran_program
    projects="$projects $sources/fortran"
else echo "  left out: there is no gfortran"; fi

echo "by find_package"
export CC CXX
for project in $projects; do
    cmake -S "$project" -B cmake >/dev/null
    cmake --build cmake >/dev/null
    for program in cmake/*program; do $program; done >printed
    [ ! -x cmake/c_program ] || grep -q -F -x v4.1 printed
    rm -rf cmake
done
