#!/bin/sh
# The baseline has no instruction that an x86-64 processor may lack: nothing beyond SSE2.
#
#     baseline_test.sh LIBRARY [WIDE_LIBRARY]      the wide one has to be found out
library=$1
wide=${2:-}

beyond() { # LIBRARY
    objdump -d --no-show-raw-insn "$1" | awk -F'\t' 'NF > 1 { split($2, words, " "); seen[words[1]] = 1 }
        END { for (word in seen) print word }' | grep -E -x "$newer" | sort
}

# By extension: AVX and all later ones (v..., k...), SSE3, SSSE3, SSE4.1, SSE4.2, what is no vector. Not tzcnt, which older
# processors take for bsf: compilers write it where either gives the same.
newer='v.*|k(mov|and|andn|or|xor|xnor|not|add|shift|test|ortest|unpck).*'
newer="$newer|addsubp[sd]|h(add|sub)p[sd]|lddqu|movddup|movs[hl]dup|fisttp.*"
newer="$newer|pshufb|palignr|pabs[bwd]|ph(add|sub).*|psign[bwd]|pmulhrsw|pmaddubsw"
newer="$newer|p?blend.*|dpp[sd]|extractps|insertps|round[sp][sd]|pinsr[bdq]|pextr[bdq]|pmul(ld|dq)|pm(in|ax)(sb|sd|ud|uw)"
newer="$newer|pmov[sz]x.*|ptest|mpsadbw|phminposuw|packusdw|pcmpeqq|movntdqa|pcmpgtq|pcmp[ei]str.*|crc32.*"
newer="$newer|popcnt|lzcnt|andn|bextr|bls.*|bzhi|mulx|pdep|pext|rorx|s[ahl][lr]x|ad[co]x|movbe|aes.*|pclmul.*|sha.*[0-9]"
newer="$newer|xgetbv|rd(rand|seed)"

found=$(beyond "$library")
if [ -n "$found" ]; then
    echo "FAILED: instructions beyond SSE2:" $found
    exit 1
fi
echo "nothing beyond SSE2"
[ -n "$wide" ] || exit 0
found=$(beyond "$wide" | wc -l)
echo "$found other instructions in $wide"
[ "$found" -gt 10 ] || { echo "FAILED: nothing would be found"; exit 1; }
