#!/bin/sh
# Runs a test on the library as Clang makes it with the sanitizers: their runtime and the library are loaded first, into a
# program that knows of neither.
#
#     sanitized.sh LIBRARY COMMAND...
library=$1
shift
runtime=$(clang -print-file-name=libclang_rt.asan-x86_64.so)
[ -f "$runtime" ] || { echo "FAILED: no $runtime"; exit 1; }
# A guard's fault leaves a call by a jump over its destructors, which is no leak of the library.
exec env VONKK3_LIBRARY="$library" LD_PRELOAD="$runtime $library" ASAN_OPTIONS=detect_leaks=0 "$@"
