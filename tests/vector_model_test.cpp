// Tests of the model of the vector families with constants, products and norms: small calls worked out by hand, one for
// each place where a rule could be misread.
#include "model/model.h"

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <string>
#include <vector>

namespace {

constexpr float big = 0x1p24F; // loses a 1

template <class Type> std::uint64_t to(Type *pointer) { return reinterpret_cast<std::uintptr_t>(pointer); }
std::uint64_t word(float value) { return std::bit_cast<std::uint32_t>(value); }
std::uint64_t word(double value) { return std::bit_cast<std::uint64_t>(value); }

model::Outcome run(const std::string &name, const std::vector<std::uint64_t> &words) {
    return model::run({name, words});
}

TEST(VectorModel, KnowsEveryFormOfTheVectors) {
    std::size_t known = 0;
    for (const std::string &name : model::names()) {
        const std::string group =
            name.substr(name.find('_') + 1, name.find("_", name.find('_') + 1) - name.find('_') - 1);
        const bool isOfVectors = group.find('m') == std::string::npos && name.find("Copy") == std::string::npos &&
                                 name.find("Extract") == std::string::npos && name.find("Gaxpy") == std::string::npos;
        if (!isOfVectors) continue;
        EXPECT_TRUE(model::knows(name)) << name;
        ++known;
    }
    EXPECT_EQ(known, 360U + 360U + 210U + 150U + 150U + 90U + 42U);
}

TEST(VectorModel, TakesTheConstantAsMinuendInCvAlone) {
    const std::array<float, 2> source{3, 5};
    std::array<float, 2> result{};
    EXPECT_EQ(run("vonkSub_cv_32f", {to(source.data()), word(1.0F), to(result.data()), 2}).status, 0);
    EXPECT_EQ(result, (std::array<float, 2>{-2, -4}));
    EXPECT_EQ(run("vonkSub_vc_32f", {to(source.data()), word(1.0F), to(result.data()), 2}).status, 0);
    EXPECT_EQ(result, (std::array<float, 2>{2, 4}));
}

TEST(VectorModel, GivesEachConstantItsVector) {
    const double first = 2;
    const double second = 7;
    double result = 0;
    EXPECT_EQ(run("vonkSaxpy_vv_64f", {to(&first), word(10.0), to(&second), to(&result), 1}).status, 0);
    EXPECT_EQ(result, 27);
    EXPECT_EQ(run("vonkLComb_vv_64f", {to(&first), word(10.0), to(&second), word(-1.0), to(&result), 1}).status, 0);
    EXPECT_EQ(result, 13);
}

TEST(VectorModel, RoundsTheProductOfSaxpyAheadOfTheSum) {
    const float first = 1 + 0x1p-12F;
    const float second = -1 - 0x1p-11F;
    float result = -1;
    run("vonkSaxpy_vv_32f", {to(&first), word(first), to(&second), to(&result), 1});
    EXPECT_EQ(result, 0);
}

// Object 0 lands on the single vector of 100; 3 times 1 and 10 are added to it.
TEST(VectorModel, HoldsTheSingleVectorOfSaxpyWhereAllIsAligned) {
    alignas(16) std::array<float, 24> memory{};
    for (const std::size_t offset : {0U, 1U}) {
        float *const array = memory.data() + offset;
        float *const single = memory.data() + 12 + offset;
        for (std::size_t j = 0; j < 4; ++j) {
            array[j] = 1;
            array[4 + j] = 10;
            single[j] = 100;
        }
        run("vonkSaxpy_vav_32f_4x1", {to(array), 16, word(3.0F), to(single), to(single), 16, 2});
        EXPECT_EQ(single[0], 103);
        EXPECT_EQ(single[4], offset == 0 ? 130 : 133);
    }
}

// ---- Dot products

float dot(const std::vector<float> &products, std::size_t offset) {
    alignas(16) std::array<float, 32> ones{};
    ones.fill(1);
    float result = -1;
    run("vonkDotProduct_vv_32f", {to(products.data()), to(ones.data() + offset), to(&result), products.size()});
    return result;
}

TEST(VectorModel, GroupsALongDotProductByTheSecondSource) {
    std::vector<float> products(11, 1);
    products[0] = big;
    EXPECT_EQ(dot(products, 0), big + 8); // (2^24 + 2) + (2 + 2), then three ones: a tie at 7 goes to 8
    EXPECT_EQ(dot(products, 1), big + 6); // three ahead, and the block
    EXPECT_EQ(dot({products.begin(), products.begin() + 10}, 0), big);
}

TEST(VectorModel, AddsTheOuterPairFirstInAlignedBlocksOfThrees) {
    alignas(16) std::array<float, 5 * 4> first{};
    alignas(16) std::array<float, 5 * 4> second{};
    alignas(16) std::array<float, 5> result{};
    for (std::size_t n = 0; n < 5; ++n) {
        first[4 * n] = big;
        first[4 * n + 1] = 1;
        first[4 * n + 2] = -big;
        for (std::size_t j = 0; j < 3; ++j) second[4 * n + j] = 1;
    }
    run("vonkDotProduct_vava_32f_3x1", {to(first.data()), 16, to(second.data()), 16, to(result.data()), 5});
    EXPECT_EQ(result, (std::array<float, 5>{1, 1, 1, 1, 0}));
    run("vonkDotProduct_vava_32f_3x1", {to(first.data()), 16, to(second.data()), 16, to(result.data()), 3});
    EXPECT_EQ(result, (std::array<float, 5>{0, 0, 0, 1, 0}));
}

TEST(VectorModel, PassesTheSumOfDoublesThroughADoubleAheadOfTheOddTerm) {
    const std::array<double, 4> products{1, 0x1p-54, -1, 0};
    const std::array<double, 4> ones{1, 1, 1, 1};
    double result = -1;
    run("vonkDotProduct_vv_64f", {to(products.data()), to(ones.data()), to(&result), 3});
    EXPECT_EQ(result, 0);
    run("vonkDotProduct_vv_64f", {to(products.data()), to(ones.data()), to(&result), 4});
    EXPECT_EQ(result, 0x1p-54); // no odd term; 64 bits are the usual setting
    run("vonkDotProduct_vav_64f", {to(products.data()), 0, to(ones.data()), to(&result), 3, 1});
    EXPECT_EQ(result, 0x1p-54);
}

TEST(VectorModel, StartsDotProductsOfFixedSizeFromTheFirstProduct) {
    const std::array<float, 3> zeros{-0.0F, -0.0F, -0.0F};
    const std::array<float, 3> ones{1, 1, 1};
    float result = -1;
    run("vonkDotProduct_vv_32f_3x1", {to(zeros.data()), to(ones.data()), to(&result)});
    EXPECT_TRUE(std::signbit(result));
    run("vonkDotProduct_vv_32f", {to(zeros.data()), to(ones.data()), to(&result), 3});
    EXPECT_FALSE(std::signbit(result));
}

// ---- Norms

TEST(VectorModel, MakesANanOfTheNormOfZeroByEstimateOnly) {
    const std::array<float, 4> zeros{};
    float result = -1;
    EXPECT_TRUE(run("vonkL2Norm_v_32f_4x1", {to(zeros.data()), to(&result)}).nanSeen);
    EXPECT_TRUE(std::isnan(result));
    run("vonkL2Norm_v_32f_4x1_S2", {to(zeros.data()), 4, to(&result)});
    EXPECT_EQ(result, 0);
    run("vonkL2Norm_v_32f", {to(zeros.data()), to(&result), 4});
    EXPECT_EQ(result, 0);
}

TEST(VectorModel, ComesCloseToTheNormByEstimate) {
    const std::array<float, 6> source{1, 2, 4, 8, 16, 23}; // 1 + 4 + 16 + 64 + 256 + 529 = 870
    float result = -1;
    run("vonkL2Norm_v_32f_6x1", {to(source.data()), to(&result)});
    EXPECT_NEAR(static_cast<double>(result), std::sqrt(870.0), std::sqrt(870.0) * 0x1p-21);
}

// ---- Cross products

TEST(VectorModel, WritesTheComponentsOfCrossProductsInThreeWays) {
    // -0 - 0 1, -0 + (0 - 0) 1 and -0 + (-0) 1 in component 0.
    const std::array<float, 3> a32{2, 0, 0};
    const std::array<float, 3> b32{3, 1, -1};
    std::array<float, 3> c32{};
    run("vonkCrossProduct_vav_32f_3x1", {to(a32.data()), 0, to(b32.data()), to(c32.data()), 0, 1});
    EXPECT_TRUE(std::signbit(c32[0]));
    run("vonkCrossProduct_vav_32f_3x1_S2", {to(a32.data()), 0, 4, to(b32.data()), 4, to(c32.data()), 0, 4, 1});
    EXPECT_FALSE(std::signbit(c32[0]));
    EXPECT_EQ(c32, (std::array<float, 3>{0, 2, 2}));
    const std::array<double, 3> a64{2, 0, 0};
    const std::array<double, 3> b64{3, 1, -1};
    std::array<double, 3> c64{};
    run("vonkCrossProduct_vav_64f_3x1", {to(a64.data()), 0, to(b64.data()), to(c64.data()), 0, 1});
    EXPECT_TRUE(std::signbit(c64[0]));
}

TEST(VectorModel, LeavesCrossProductsInPlaceOpenWhereNothingFixesThem) {
    std::array<float, 6> numbers{1, 2, 3, 4, 5, 7};
    float *const a = numbers.data();
    float *const b = numbers.data() + 3;
    EXPECT_FALSE(run("vonkCrossProduct_vv_32f_3x1", {to(a), to(b), to(a)}).open);
    EXPECT_EQ(numbers, (std::array<float, 6>{-1, 5, -3, 4, 5, 7}));
    EXPECT_TRUE(run("vonkCrossProduct_vv_32f_3x1_S2", {to(a), 4, to(b), 4, to(a), 4}).open);
    numbers = {1, 2, 3, 4, 5, 7};
    EXPECT_FALSE(run("vonkCrossProduct_vav_32f_3x1_S2", {to(a), 12, 4, to(b), 4, to(a), 12, 4, 1}).open);
    EXPECT_EQ(numbers, (std::array<float, 6>{-1, 19, -81, 4, 5, 7}));
}

} // namespace
