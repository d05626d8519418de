#!/bin/sh
# The bits of the baseline on a processor that has nothing beyond SSE4.2, in emulation: one export in so many, since each
# takes four times as long there. The test `bits` checks all of them on the processor at hand, and `baseline` that no
# instruction asks for more.
#
#     emulated_test.sh BITS_PROGRAM BITS_FILE LIBRARY EVERY      exit code 77: no emulator
command -v qemu-x86_64 >/dev/null || { echo "left out: there is no qemu-x86_64"; exit 77; }
exec qemu-x86_64 -cpu Nehalem "$1" --check "$2" --library "$3" --every "$4"
