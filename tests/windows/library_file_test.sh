#!/bin/sh
# Reads off the DLL what users rely on: exactly the built functions are exported, nothing is imported, nothing runs when
# it is attached, no section of it is writable, its version shows, and no instruction relies on a stack that is aligned
# to more than 16 bytes.
#
#     library_file_test.sh FOLDER EXPORTS DEF      FOLDER holds vonkk3.dll and vonkk3.lib
folder=$1
exports=$2
def=$3
library=$folder/vonkk3.dll
tools=x86_64-w64-mingw32
. "$(dirname "$0")/../checks.sh"
zero() { [ -n "$1" ] && [ "$(printf '%s' "$1" | tr -d 0)" = "" ] || { echo "$1"; return 1; }; }

$tools-objdump -p "$library" >"$scratch/headers"
header() { awk -v name="$1" '$1 == name { print $2 }' "$scratch/headers"; }
directory() { sed -n "s/^Entry $1 \([0-9a-f]*\) \([0-9a-f]*\) .*/\1\2/p" "$scratch/headers"; } # address and size

LC_ALL=C sort "$exports" >"$scratch/expected"
sed -n '/Ordinal\/Name Pointer\] Table/,/^$/s/^[[:space:]]*\[ *[0-9]*\] //p' "$scratch/headers" | tr -d '\r' |
    awk '{ print $NF }' | LC_ALL=C sort >"$scratch/defined"
expect "the catalogue has 5572 exports" test "$(wc -l <"$scratch/expected")" -eq 5572
expect "exports are exactly the built functions" same "$scratch/expected" "$scratch/defined"
sed 1,2d "$def" | tr -d ' ' | LC_ALL=C sort >"$scratch/listed"
expect "the list for linkers names them" same "$scratch/expected" "$scratch/listed"
# An import library has each function by its name and by that of its pointer.
$tools-nm "$folder/vonkk3.lib" 2>/dev/null | awk '$2 == "T" && $3 ~ /^vonk/ { print $3 }' | LC_ALL=C sort -u >"$scratch/linked"
expect "the import library has them" same "$scratch/expected" "$scratch/linked"

expect "the image is 64-bit" grep -q 'PE32+' "$scratch/headers"
expect "nothing is imported" zero "$(directory 1)"
expect "no import slots" zero "$(directory c)"
expect "nothing is imported late" zero "$(directory d)"
expect "no thread storage, whose callbacks would run" zero "$(directory 9)"
expect "no entry point" zero "$(header AddressOfEntryPoint)"
expect "no date of the build" grep -q '^Time/Date.*Thu Jan  1 00:00:00 1970' "$scratch/headers"
for flag in HIGH_ENTROPY_VA DYNAMIC_BASE NX_COMPAT; do expect "it is $flag" grep -q "$flag" "$scratch/headers"; done

$tools-objdump -h "$library" | awk 'NF == 7 && $1 ~ /^[0-9]+$/ { name = $2; getline; print name, $0 }' >"$scratch/sections"
expect "sections are found" grep -q '^\.text .*CODE' "$scratch/sections"
grep -v READONLY "$scratch/sections" >"$scratch/writable"
expect "no section is writable" empty "$scratch/writable"
expect "exceptions find their way through every function" sh -c "grep -q '^\.pdata ' '$scratch/sections'"

# The text is UTF-16.
tr -d '\000' <"$library" | LC_ALL=C grep -a -q 'FileVersion4\.1\.11\.30'
expect "the version shows" test $? -eq 0

# What moves 32 or 64 bytes and faults at an address that is not a multiple of them.
needs_alignment() { # OBJECT
    $tools-objdump -d --no-show-raw-insn "$1" >"$scratch/code"
    grep -E '[[:space:]]vmov(ap[sd]|dqa(32|64)?|ntp[sd]|ntdqa?)[[:space:]].*%[yz]mm' "$scratch/code" | grep '('
}
needs_alignment "$library" >"$scratch/aligned"
expect "code is found" grep -q 'ret' "$scratch/code"
expect "nothing needs more than 16 bytes of alignment" empty "$scratch/aligned"
printf 'vmovaps %%ymm0, 32(%%rsp)\nvmovdqa64 (%%rax), %%zmm1\n' | $tools-as -o "$scratch/aligned.o" -
expect "what needs it would be found" test "$(needs_alignment "$scratch/aligned.o" | wc -l)" -eq 2

[ "$failures" -eq 0 ]
