// BENCH_UNROLL, before a loop of fixed bounds: the compiler unrolls it whole. By itself it leaves some of the peers'
// loops rolled, and a local copy of a matrix in memory. BENCH_ROLLED: it leaves the loop alone.
#pragma once

#ifdef __clang__
#define BENCH_UNROLL _Pragma("unroll")
#define BENCH_ROLLED _Pragma("nounroll")
#else
#define BENCH_UNROLL _Pragma("GCC unroll 8")
#define BENCH_ROLLED _Pragma("GCC unroll 1")
#endif
