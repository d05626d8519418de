// A case that runs through library and model fails where they differ: here one export stands in for another.
#include "support/both.h"
#include "support/invoke.h"
#include "support/literal.h"

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <cstdint>
#include <string>
#include <vector>

namespace {

using Floats = std::array<float, 2>;

class Both {
public:
    // Calls this export where the model is asked for that function.
    std::int32_t call(const std::string &exported, const std::string &modelled, float constant, Floats source) {
        const std::vector<std::uint64_t> words{literal::wordOf(source.data()), std::bit_cast<std::uint32_t>(constant),
                                               literal::wordOf(result.data()), result.size()};
        return support::invokeBoth(library.find(exported), literal::function(modelled), words, outcome);
    }

    Floats result{};
    model::Outcome outcome;

private:
    support::Library library{support::defaultLibrary()};
};

TEST(BothOfThem, AgreeAndLeaveWhatTheLibraryWrote) {
    Both both;
    EXPECT_EQ(both.call("vonkAdd_vc_32f", "vonkAdd_vc_32f", 3, {1, 2}), 0);
    EXPECT_EQ(both.result, (Floats{4, 5}));
    EXPECT_EQ(both.outcome.writes.size(), 2U);
    EXPECT_FALSE(both.outcome.open);
}

TEST(BothOfThem, DifferInOneElement) {
    EXPECT_THROW(Both().call("vonkSub_vc_32f", "vonkAdd_vc_32f", 3, {1, 2}), support::Disagreement);
    EXPECT_THROW(Both().call("vonkSub_vc_32f", "vonkAdd_vc_32f", 0x1p-149F, {1, 0}), support::Disagreement);
}

TEST(BothOfThem, DifferInTheStatus) {
    Both both;
    both.result = {7, 7};
    EXPECT_THROW(both.call("vonkL2Norm_v_32f", "vonkAdd_vc_32f", 3, {3, 4}), support::Disagreement);
}

} // namespace
