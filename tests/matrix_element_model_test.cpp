// Tests of the model of the matrices element by element (sums, multiples, transposes, traces, Frobenius norms): calls
// worked out by hand where a misreading would go unnoticed, and which overlaps it leaves open.
#include "model/model.h"

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <string>
#include <vector>
#include <xmmintrin.h>

namespace {

using Words = std::vector<std::uint64_t>;

template <class Type> std::uint64_t to(Type *pointer) { return reinterpret_cast<std::uintptr_t>(pointer); }
template <class Container> std::uint64_t to(Container &container) { return to(container.data()); }

model::Outcome run(const std::string &name, const Words &words) { return model::run({name, words}); }

constexpr std::int32_t ok = 0;
constexpr std::int32_t badSize = -6;
constexpr std::int32_t nullPointer = -8;

template <class Real> std::vector<Real> counting(std::size_t elements, Real first = 0) {
    std::vector<Real> list;
    for (std::size_t k = 0; k < elements; ++k) list.push_back(first + static_cast<Real>(k));
    return list;
}

// ---- Sums

TEST(MatrixSumModel, TakesOneShapeBehindTheOperandsAndATransposedOneTheOtherWayRound) {
    std::vector<double> a{1, 2, 3, 4, 5, 6};       // two rows of three
    std::vector<double> b{10, 20, 30, 40, 50, 60}; // three rows of two
    std::vector<double> sum(6);
    EXPECT_EQ(run("vonkAdd_mmT_64f", {to(a), 24, to(b), 16, to(sum), 24, 3, 2}).status, ok);
    EXPECT_EQ(sum, (std::vector<double>{11, 32, 53, 24, 45, 66}));
    EXPECT_EQ(run("vonkSub_mmT_64f", {to(a), 24, to(b), 16, to(sum), 24, 3, 2}).status, ok);
    EXPECT_EQ(sum, (std::vector<double>{-9, -28, -47, -16, -35, -54}));
    EXPECT_EQ(run("vonkSub_mmT_64f", {to(a), 24, to(b), 16, to(sum), 24, 0, 2}).status, badSize);
    EXPECT_EQ(run("vonkSub_mmT_64f", {to(a), 24, to(b), 16, to(sum), 24, 3, 0}).status, badSize);
}

TEST(MatrixSumModel, ScattersOneDifferenceAndRepeatsARowOfAnother) {
    std::vector<float> a;
    for (int r = 0; r < 6; ++r)
        for (int c = 0; c < 6; ++c) a.push_back(static_cast<float>(10 * r + c));
    std::vector<float> zeros(36);
    std::vector<float> result(36);
    EXPECT_EQ(run("vonkSub_maTmaT_32f_6x6", {to(a), 144, 24, to(zeros), 144, 24, to(result), 144, 24, 1}).status, ok);
    EXPECT_EQ(result, (std::vector<float>{0, 4,  20, 24, 40, 44, 1,  5,  21, 25, 41, 45, 2,  14, 22, 34, 42, 54,
                                          2, 14, 22, 34, 42, 54, 10, 12, 30, 32, 50, 52, 11, 13, 31, 33, 51, 53}));
    EXPECT_EQ(run("vonkSub_mTmT_32f_6x6", {to(a), 24, to(zeros), 24, to(result), 24}).status, ok);
    EXPECT_EQ(std::vector<float>(result.begin() + 12, result.begin() + 30),
              (std::vector<float>{2, 12, 22, 32, 42, 52, 2, 12, 22, 32, 42, 52, 4, 14, 24, 34, 44, 54}));
}

TEST(MatrixSumModel, WalksTheTransposedSingleMatrixOfThreeWithTheStrideOfTheArray) {
    std::vector<float> zeros(32);
    std::vector<float> single = counting<float>(32);
    std::vector<float> sum(9);
    EXPECT_EQ(run("vonkAdd_mamT_32f_3x3", {to(zeros), 0, 16, to(single), 12, to(sum), 36, 12, 1}).status, ok);
    EXPECT_EQ(sum, (std::vector<float>{0, 4, 8, 1, 5, 9, 2, 6, 10})); // four from row to row
    std::vector<float> four(16);
    EXPECT_EQ(run("vonkAdd_mamT_32f_4x4", {to(zeros), 0, 16, to(single), 20, to(four), 64, 16, 1}).status, ok);
    EXPECT_EQ(std::vector<float>(four.begin(), four.begin() + 4), (std::vector<float>{0, 5, 10, 15}));
    EXPECT_EQ(run("vonkAdd_maTm_32f_3x3", {to(single), 0, 16, to(zeros), 12, to(sum), 36, 12, 1}).status, ok);
    EXPECT_EQ(sum, (std::vector<float>{0, 4, 8, 1, 5, 9, 2, 6, 10}));
}

// Objects of nine floats in a row, dst one object ahead of src1: only who loads ahead sees the old objects.
TEST(MatrixSumModel, LoadsOneObjectAheadInFourFormsAndTheirLists) {
    const auto sumsOver = [](const std::string &name, std::uint64_t columnStride) {
        std::vector<float> objects(36, 5);
        std::vector<float> single(9, 1);
        Words words{to(objects), 36, 12, to(single), 12, to(objects) + 36, 36, 12, 3};
        if (columnStride != 0) words = {to(objects), 36, 12, 4, to(single), 12, 4, to(objects) + 36, 36, 12, 4, 3};
        EXPECT_EQ(run(name, words).status, ok);
        return std::vector<float>{objects[9], objects[18], objects[27]};
    };
    EXPECT_EQ(sumsOver("vonkAdd_mam_32f_3x3", 0), (std::vector<float>{6, 6, 6}));
    EXPECT_EQ(sumsOver("vonkSub_mamT_32f_3x3", 0), (std::vector<float>{4, 4, 4}));
    EXPECT_EQ(sumsOver("vonkAdd_mam_32f_3x3_S2", 4), (std::vector<float>{6, 7, 8}));
    EXPECT_EQ(sumsOver("vonkAdd_maTm_32f_3x3", 0), (std::vector<float>{6, 7, 8}));
}

TEST(MatrixSumModel, DoesOneObjectForNoneInFourFormsAndTheirLists) {
    std::vector<float> a = counting<float>(9, 1);
    std::vector<float> b(9, 10);
    std::vector<float> sum(9, -1);
    EXPECT_EQ(run("vonkAdd_maTm_32f_3x3", {to(a), 36, 12, to(b), 12, to(sum), 36, 12, 0}).writes.size(), 0U);
    EXPECT_EQ(run("vonkAdd_mam_32f_3x3", {to(a), 36, 12, to(b), 12, to(sum), 36, 12, 0}).writes.size(), 9U);
    EXPECT_EQ(sum, counting<float>(9, 11));

    std::vector<std::uint64_t> arrays{to(a)};
    std::vector<std::uint64_t> results{to(sum), 0}; // of which the list begins behind the first
    const Words words{to(arrays), 0, 12, to(b), 12, to(results) + 8, 0, 12, 0};
    EXPECT_EQ(run("vonkSub_mam_32f_3x3_L", words).status, ok);
    EXPECT_EQ(sum, counting<float>(9, -9));
    results[0] = 0;
    EXPECT_EQ(run("vonkSub_mam_32f_3x3_L", words).status, nullPointer);
}

TEST(MatrixSumModel, LosesTheObjectInHandToANullEntry) {
    std::vector<float> a(36, 1);
    std::vector<float> b(9, 1);
    std::vector<float> sum(36);
    std::vector<std::uint64_t> arrays{to(a), to(a) + 36, to(a) + 72, to(a) + 108};
    std::vector<std::uint64_t> results{to(sum), to(sum) + 36, to(sum) + 72, to(sum) + 108};
    arrays[2] = 0;
    const Words words{to(arrays), 0, 12, to(b), 12, to(results), 0, 12, 4};
    const model::Outcome outcome = run("vonkAdd_mam_32f_3x3_L", words);
    EXPECT_EQ(outcome.status, nullPointer);
    EXPECT_EQ(outcome.writes.size(), 9U); // object 0; object 1 was in hand
    results[3] = 0;
    EXPECT_EQ(run("vonkAdd_mam_32f_3x3_L", words).writes.size(), 0U);
}

TEST(MatrixSumModel, PassesOverPositionEightOfATransposedTableOfFour) {
    std::vector<float> numbers = counting<float>(16);
    std::vector<float> sum(16);
    std::vector<std::uint64_t> table;
    std::vector<std::uint64_t> results;
    for (std::size_t k = 0; k < 16; ++k) {
        table.push_back(to(numbers) + 4 * k);
        results.push_back(to(sum) + 4 * k);
    }
    std::vector<std::uint64_t> holed = table;
    holed[9] = 0; // (2, 1) as stored, (1, 2) of the result
    const model::Outcome outcome = run("vonkAdd_mTm_32f_4x4_P", {to(holed), 0, to(table), 0, to(results), 0});
    EXPECT_EQ(outcome.status, nullPointer);
    EXPECT_EQ(outcome.writes.size(), 6U);
    EXPECT_EQ(sum[2], 8 + 2);
}

// ---- Overlap

TEST(MatrixSumModel, LeavesOpenWhatAnObjectInLanesMayHaveLoaded) {
    std::vector<float> a = counting<float>(64);
    std::vector<float> b(16, 1);
    const auto isOpen = [&](const std::string &name, std::uint64_t dst) {
        return run(name, {to(a), 16, to(b), 16, dst, 16}).open;
    };
    EXPECT_FALSE(isOpen("vonkAdd_mm_32f_4x4", to(a)));
    EXPECT_TRUE(isOpen("vonkAdd_mm_32f_4x4", to(a) + 4));
    EXPECT_TRUE(isOpen("vonkAdd_mTm_32f_4x4", to(a)));
    EXPECT_FALSE(run("vonkAdd_mTm_32f", {to(a), 16, to(b), 16, to(a), 16, 4, 4}).open);
    EXPECT_FALSE(run("vonkAdd_mTm_64f_3x3", {to(a), 24, to(a), 24, to(a), 24}).open);
}

// ---- Multiples

TEST(ScaledMatrixModel, TakesTheConstantByItsBits) {
    std::vector<float> a{1, 2, 3, 4};
    std::vector<float> product(4);
    EXPECT_EQ(run("vonkMul_mTc_32f", {to(a), 8, std::bit_cast<std::uint32_t>(-2.5F), to(product), 8, 2, 2}).status, ok);
    EXPECT_EQ(product, (std::vector<float>{-2.5F, -7.5F, -5, -10}));
    std::vector<double> wide{1, -0.0};
    EXPECT_EQ(run("vonkMul_mc_64f", {to(wide), 16, std::bit_cast<std::uint64_t>(-0.5), to(wide), 16, 2, 1}).status, ok);
    EXPECT_EQ(wide[0], -0.5);
    EXPECT_FALSE(std::signbit(wide[1]));
}

// ---- Transposes

TEST(TransposeModel, ExchangesTheRowLengthsOfTables) {
    std::vector<double> numbers = counting<double>(8);
    std::vector<double> moved(5, -1);
    std::vector<std::uint64_t> from;
    std::vector<std::uint64_t> target;
    for (std::size_t k = 0; k < 8; ++k) from.push_back(to(numbers) + 8 * k);
    for (std::size_t k = 0; k < 5; ++k) target.push_back(to(moved) + 8 * k);
    const model::Outcome outcome = run("vonkTranspose_m_64f_P", {to(from), 0, 2, 3, to(target), 0});
    EXPECT_EQ(outcome.status, ok);
    EXPECT_EQ(outcome.writes.size(), 6U);
    EXPECT_EQ(moved, (std::vector<double>{0, 3, 6, 4, 7}));
}

// ---- Traces

TEST(TraceModel, BeginsWithAZeroExceptInLanes) {
    std::vector<float> zeros(9, -0.0F);
    float sum = 1;
    EXPECT_EQ(run("vonkTrace_m_32f_3x3", {to(zeros), 12, to(&sum)}).writes.size(), 1U);
    EXPECT_TRUE(std::signbit(sum));
    EXPECT_EQ(run("vonkTrace_m_32f_3x3_S2", {to(zeros), 12, 4, to(&sum)}).writes.size(), 4U);
    EXPECT_FALSE(std::signbit(sum));
}

TEST(TraceModel, ScansAsManyEntriesAsTheOrderSays) {
    std::vector<float> numbers = counting<float>(9, 1);
    float sum = -1;
    std::vector<std::uint64_t> table;
    for (std::size_t k = 0; k < 9; ++k) table.push_back(to(numbers) + 4 * k);
    table[3] = table[5] = 0; // are never read
    EXPECT_EQ(run("vonkTrace_ma_32f_P", {to(table), 0, 3, to(&sum), 1}).status, ok);
    EXPECT_EQ(sum, 15);
    table[2] = 0;
    EXPECT_EQ(run("vonkTrace_ma_32f_P", {to(table), 0, 3, to(&sum), 0}).status, nullPointer);
    EXPECT_EQ(run("vonkTrace_m_32f_P", {to(table), 0, 3, to(&sum)}).status, ok);
    table[4] = 0;
    EXPECT_EQ(run("vonkTrace_m_32f_P", {to(table), 0, 3, to(&sum)}).status, nullPointer);
    EXPECT_EQ(sum, 1);
}

// At 64 bits 1 + 3 * 2^-55 is kept by a register and lost by a double.
TEST(TraceModel, ReadsTheSumBackAheadOfALastOddElementOfTwoForms) {
    std::vector<double> matrix{1, 0, 0, 0, 0x3p-55, 0, 0, 0, 0x3p-55};
    double sum = 0;
    run("vonkTrace_m_64f", {to(matrix), 24, 3, to(&sum)});
    EXPECT_EQ(sum, 1);
    run("vonkTrace_m_64f_3x3", {to(matrix), 24, to(&sum)});
    EXPECT_EQ(sum, 1 + 0x1p-52);
    run("vonkTrace_ma_64f", {to(matrix), 0, 24, 3, to(&sum), 1});
    EXPECT_EQ(sum, 1 + 0x1p-52);
    EXPECT_TRUE(run("vonkTrace_m_64f", {to(matrix), 24, 2, to(&matrix[4])}).open);
    EXPECT_FALSE(run("vonkTrace_m_64f", {to(matrix), 24, 3, to(&matrix[8])}).open);
}

// ---- Norms

// One large number and two that are half a step of its square: in a block the two meet first.
TEST(FrobeniusNormModel, AddsInAnotherOrderInABlock) {
    const auto rootOf = [](float s) {
        const float r = _mm_cvtss_f32(_mm_rsqrt_ss(_mm_set_ss(s)));
        return s * (r * (0.5F * (3.0F - s * (r * r))));
    };
    std::vector<float> objects(5 * 9);
    for (std::size_t n = 0; n < 5; ++n) {
        objects[9 * n] = 4096; // squared 2^24, whose neighbour above is 2 away
        objects[9 * n + 2] = objects[9 * n + 3] = 1;
    }
    std::vector<float> norms(5);
    EXPECT_EQ(run("vonkFrobNorm_ma_32f_3x3", {to(objects), 36, 12, to(norms), 5}).status, ok);
    EXPECT_EQ(norms, (std::vector<float>{rootOf(0x1p24F + 2), rootOf(0x1p24F + 2), rootOf(0x1p24F + 2),
                                         rootOf(0x1p24F + 2), rootOf(0x1p24F)}));
}

TEST(FrobeniusNormModel, MakesANanOfZerosInLanes) {
    std::vector<float> zeros(9);
    float norm = 1;
    EXPECT_TRUE(run("vonkFrobNorm_m_32f_3x3", {to(zeros), 12, to(&norm)}).nanSeen);
    EXPECT_TRUE(std::isnan(norm));
    EXPECT_EQ(run("vonkFrobNorm_m_32f", {to(zeros), 12, 3, 3, to(&norm)}).status, ok);
    EXPECT_EQ(norm, 0);
}

TEST(FrobeniusNormModel, RoundsTheSumOfDoublesInSixFormsOnly) {
    std::vector<double> matrix(9);
    matrix[4] = 0x1p600;
    double norm = 0;
    run("vonkFrobNorm_m_64f", {to(matrix), 24, 3, 3, to(&norm)});
    EXPECT_EQ(norm, std::numeric_limits<double>::infinity());
    run("vonkFrobNorm_m_64f_3x3", {to(matrix), 24, to(&norm)});
    EXPECT_EQ(norm, 0x1p600);
    run("vonkFrobNorm_ma_64f", {to(matrix), 72, 24, 3, 3, to(&norm), 1});
    EXPECT_EQ(norm, std::numeric_limits<double>::infinity());
    run("vonkFrobNorm_ma_64f_3x3_LS2", {to(matrix), 0, 24, 8, to(&norm), 0});
    EXPECT_TRUE(run("vonkFrobNorm_m_64f", {to(matrix), 24, 3, 3, to(&matrix[2])}).open);
}

TEST(FrobeniusNormModel, TestsTheEntriesOfABlockAndNoOthers) {
    std::vector<float> matrix = counting<float>(9);
    std::vector<float> norms(8, -1);
    std::vector<std::uint64_t> list(8, to(matrix));
    list[6] = 0;
    const auto outcome = [&](std::uint64_t count) {
        return run("vonkFrobNorm_ma_32f_3x3_L", {to(list), 0, 12, to(norms), count});
    };
    EXPECT_EQ(outcome(8).status, nullPointer);
    EXPECT_EQ(outcome(8).writes.size(), 4U);
    EXPECT_EQ(outcome(6).writes.size(), 6U);
}

} // namespace
