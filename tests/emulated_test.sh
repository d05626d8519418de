#!/bin/sh
# The bits of the baseline on a processor that has nothing beyond it, in emulation.
#
#     emulated_test.sh BITS_PROGRAM BITS_FILE LIBRARY      exit code 77: no emulator
command -v qemu-x86_64 >/dev/null || { echo "left out: there is no qemu-x86_64"; exit 77; }
exec qemu-x86_64 -cpu Nehalem "$1" --check "$2" --library "$3"
