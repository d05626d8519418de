// What the sanitizers have to find in the library. Each is run alone, on the library that is built with them: elsewhere
// nothing would tell.
#include "vonkk3.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

TEST(Sanitizers, DISABLED_FindAReadPastTheEndOfTheHeap) {
    const std::vector<double> source(4);
    std::vector<double> result(64);
    vonkAdd_vc_64f(source.data(), 0, result.data(), 64);
}

TEST(Sanitizers, DISABLED_FindAWritePastTheEndOfTheHeap) {
    const std::vector<float> source(64);
    std::vector<float> result(8);
    vonkExtract_v_32f_S2(source.data(), sizeof(float), result.data(), 64);
}

} // namespace
