#!/bin/sh
# Reads off the library file what users rely on: exactly the built functions are exported, nothing is imported, nothing
# runs when it is attached, nothing in it is writable, and it is found by its names.
#
#     library_file_test.sh FOLDER EXPORTS      FOLDER holds vonkk3.so and its links
folder=$1
exports=$2
library=$folder/vonkk3.so
. "$(dirname "$0")/checks.sh"

nm -D --defined-only "$library" | awk '{ print $3 }' | LC_ALL=C sort >"$scratch/defined"
LC_ALL=C sort "$exports" >"$scratch/expected"
expect "the catalogue has 5572 exports" test "$(wc -l <"$scratch/expected")" -eq 5572
expect "exports are exactly the built functions" same "$scratch/expected" "$scratch/defined"

nm -D --undefined-only "$library" >"$scratch/undefined"
expect "nothing is imported" empty "$scratch/undefined"

# Objects of the baseline are linked, too: of an inline function that both have, the linker would keep one.
case $folder in
*/levels/*)
    level=$(basename "$folder" | tr -c 'a-z0-9\n' _)
    nm -C "$library" >"$scratch/local"
    expect "inline functions are compiled for $level" grep -q " vonkk3_${level}::aliasing::askOnce(" "$scratch/local"
    ;;
esac

readelf -dW "$library" >"$scratch/dynamic"
grep NEEDED "$scratch/dynamic" >"$scratch/needed"
expect "no other library is needed" empty "$scratch/needed"
expect "the soname is libvonkk3.so.4" grep -q 'SONAME.*\[libvonkk3\.so\.4\]' "$scratch/dynamic"

# Position-independent code for 32-bit x86 finds its data from the head of the table of import slots, three words.
head=' .*\.got +PROGBITS +[0-9a-f]+ [0-9a-f]+ 00000c 04 '
readelf -SW "$library" | grep -vE "$head" | grep -E ' \.(data|bss|tdata|tbss|init|fini|init_array|fini_array|ctors|dtors|got|got\.plt) ' \
    >"$scratch/sections"
expect "no writable data, no constructors, no import slots" empty "$scratch/sections"

# What the loader writes once (addresses in the version record) is sealed before any code can run: every writable
# segment lies inside the range that becomes read-only after relocation.
readelf -lW "$library" | awk '$1 == "GNU_RELRO" { print $3, $6 }' >"$scratch/sealed"
readelf -lW "$library" | awk '$1 == "LOAD" && / RWE? / { print $3, $6 }' >"$scratch/segments"
read -r sealed_from sealed_size <"$scratch/sealed"
while read -r from size; do
    if [ $((from)) -lt $((sealed_from)) ] || [ $((from + size)) -gt $((sealed_from + sealed_size)) ]; then
        echo "segment at $from of $size bytes"
    fi
done <"$scratch/segments" >"$scratch/writable"
expect "there is a sealed range" test -n "$sealed_from"
expect "what is writable is sealed after relocation" empty "$scratch/writable"

for name in libvonkk3.so libvonkk3.so.4; do
    expect "$name leads to vonkk3.so" test "$(readlink -f "$folder/$name")" = "$(readlink -f "$library")"
done

[ "$failures" -eq 0 ]
