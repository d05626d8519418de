#!/bin/sh
# Wrong calls are refused by the compiler, in one sentence that begins with "vonkk3:": see wrong_calls.txt.
#
#     wrong_test.sh INCLUDE_FOLDER CALLS_FILE CXX_COMPILER
set -eu
include=$1
calls=$2
cxx=$3
. "$(dirname "$0")/../checks.sh"

cat >"$scratch/operands.h" <<'END'
#include <vector>
#include <vonkk3.hpp>
static float p[400], a[5][4][4], a3[5][3][3], v4[5][4], v3[5][3], tall[5][4][2], square[4][4], r[5];
static const float constants[5] = {};
static double da[5][4][4], dv[5][4], doubles[5];
static int ints[20];
static std::uint32_t pivots[20];
static float *pointers[16];
static const float ca[5][4][4] = {};
struct Nothing {};
static Nothing nothing;
static std::vector<float> flat(9);
static const auto A = vonk::matrices(a), B = A, D = A;
static const auto A3 = vonk::matrices<3, 3>(p, 5);
static const auto dA = vonk::matrices(da);
static const auto cD = vonk::matrices(ca);
static const auto wide = vonk::matrices<2, 4>(p, 5);
static const auto v = vonk::vectors(v4), w = v;
static const auto list = vonk::matrices<4, 4>(pointers, 5);
static const auto table = vonk::soa_matrices<4, 4>(pointers, 5);
static const auto table_vectors = vonk::soa_vectors<4>(pointers, 5);
static const auto tall_table = vonk::soa_matrices<4, 2>(pointers, 5);
static const auto wide_table = vonk::soa_matrices<2, 4>(pointers, 5);
static const auto square_table = vonk::soa_matrices<2, 2>(pointers, 5);
static const auto open = vonk::matrices(p, 5, 4, 4);
END
# Parsed once for all calls.
"$cxx" -std=c++17 -w -I"$include" -x c++-header "$scratch/operands.h" -o "$scratch/operands.h.gch"

number=0
while IFS='|' read -r sentence call; do
    case $sentence in '' | '#'*) continue ;; esac
    sentence=$(echo "$sentence" | sed 's/ *$//')
    number=$((number + 1))
    printf 'void call() { (void)(%s); }\n' "$call" >"$scratch/call.cpp"
    "$cxx" -std=c++17 -w -fsyntax-only -I"$include" -include "$scratch/operands.h" "$scratch/call.cpp" >"$scratch/out" 2>&1 &&
        status=0 || status=1
    if [ "$sentence" = ok ]; then
        [ "$status" -eq 0 ] || { fail "$call does not compile"; cat "$scratch/out"; }
        continue
    fi
    errors=$(grep -c ' error: ' "$scratch/out" || true)
    if [ "$status" -eq 0 ]; then
        fail "$call compiles"
    elif ! grep ' error: .*vonkk3: ' "$scratch/out" | grep -q -F "$sentence"; then
        fail "$call does not say: $sentence"; grep ' error: ' "$scratch/out"
    elif [ "$errors" -ne 1 ]; then
        fail "$call says $errors errors"; grep ' error: ' "$scratch/out"
    fi
done <"$calls"
echo "$number calls, $failures failures"
[ "$number" -gt 30 ] && [ "$failures" -eq 0 ]
