// Functions with the parameter lists of single-object calls of the library, which do nothing but return: the price of
// a call into a shared library, against which the calls' own work is measured.
#pragma once

#include <cstdint>

extern "C" {
std::int32_t bareAddCall(const float *src1, const float *src2, float *dst);
std::int32_t bareSubCall(const float *src1, const float *src2, float *dst);
std::int32_t bareDecomposeCall(const float *src, std::int32_t srcRowStride, std::uint32_t *pivots, float *dst,
                               std::int32_t dstRowStride);
std::int32_t bareMultiplyCall(const float *src1, std::int32_t src1RowStride, const float *src2,
                              std::int32_t src2RowStride, float *dst, std::int32_t dstRowStride);
}
