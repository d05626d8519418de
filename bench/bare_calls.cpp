// The functions that only return, in a shared library of their own so that they are called as the library is.
#include "bare_calls.h"

std::int32_t bareAddCall(const float *, const float *, float *) { return 0; }
std::int32_t bareSubCall(const float *, const float *, float *) { return 0; }
std::int32_t bareDecomposeCall(const float *, std::int32_t, std::uint32_t *, float *, std::int32_t) { return 0; }
std::int32_t bareMultiplyCall(const float *, std::int32_t, const float *, std::int32_t, float *, std::int32_t) {
    return 0;
}
