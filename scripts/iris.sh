#!/bin/sh
# Sets everything up on a fresh Debian machine and runs the Iris example.
set -eu
cd "$(dirname "$0")/.."
. scripts/packages.sh
need g++ gcc cmake make
cmake -S . -B build/iris -DVONKK3_TESTS=OFF -DVONKK3_LEVELS=x86-64 >/dev/null
echo "building the library; that takes a minute or two"
cmake --build build/iris --target iris --parallel "$(nproc)"
build/iris/examples/iris examples/iris.csv
