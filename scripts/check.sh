#!/bin/sh
# Checks a few functions while one works on them: builds what is stale, and runs their literal tests, random calls beside
# the model, the bits, their rows of the benchmarks, and the deliberate faults in what is compiled for them.
#
#     check.sh [--no-faults] [--no-benchmarks] NAME...
#
# A NAME is a family (lu-decomposition), an operation (LUDecomp), or a regular expression for names of functions
# (vonkLUDecomp_ma_32f_4x4). Exit code 1: a check failed; 2: nothing is named so.
set -eu
cd "$(dirname "$0")/.."
. scripts/packages.sh
. scripts/presets.sh
case ${1:---help} in
--help | -h) sed -n '2,/^set -eu/s/^# \{0,1\}//p' "$0"; exit 0 ;;
esac
need g++ gcc cmake ninja-build python3 libgtest-dev libcli11-dev libbenchmark-dev libeigen3-dev libglm-dev libcglm-dev \
    libxsmm-dev liblapacke-dev libopenblas-dev
mkdir -p build
configure bench >build/check.log 2>&1 || { cat build/check.log; exit 1; }
exec python3 scripts/check.py "$@"
