#!/bin/sh
# Sets everything up on a fresh Debian machine and runs the Iris example.
set -eu
cd "$(dirname "$0")/.."
. scripts/packages.sh
need g++ gcc cmake make
cmake -S . -B build/iris -DVONKK3_TESTS=OFF -DVONKK3_LEVELS=x86-64 >/dev/null
cmake --build build/iris --parallel "$(nproc)" >/dev/null
build/iris/examples/iris
