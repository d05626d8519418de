// What only the model tells of a call: whether the contract leaves its outcome open, that NaNs came up, and how far a
// result may lie from the exact one. Where the outcome is fixed the library makes the call as well, and agrees.
#include "model/model.h"
#include "support/literal.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstdint>
#include <limits>
#include <numeric>
#include <random>
#include <string>
#include <vector>

namespace {

using Words = std::vector<std::uint64_t>;

constexpr std::int32_t ok = 0;

template <class Type> std::uint64_t to(Type *pointer) { return reinterpret_cast<std::uintptr_t>(pointer); }
template <class Container> std::uint64_t to(Container &container) { return to(container.data()); }

model::Outcome run(const std::string &name, const Words &words) { return literal::runWhereFixed(name, words); }

TEST(ModelVectorSum, WalksForwardThroughAnOverlap) {
    std::array<float, 5> a = {1, 10, 20, 30, 40};
    const std::array<float, 4> b = {1, 2, 3, 4};
    const model::Outcome outcome = run("vonkAdd_vv_32f", {to(a), to(b), to(&a[1]), 4});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(a, (std::array<float, 5>{1, 2, 4, 7, 11}));
    EXPECT_FALSE(outcome.open);
    ASSERT_EQ(outcome.writes.size(), 4U);
    EXPECT_EQ(outcome.writes[3].address, to(&a[4]));
    EXPECT_EQ(outcome.writes[3].size, 4U);
}

TEST(ModelVectorSum, LanesReadAnObjectBeforeTheyWriteIt) {
    std::array<float, 5> a = {1, 10, 20, 30, 40};
    const std::array<float, 4> b = {1, 2, 3, 4};
    EXPECT_FALSE(run("vonkAdd_vv_32f_4x1", {to(a), to(b), to(&a[1])}).open);
    EXPECT_EQ(a, (std::array<float, 5>{1, 2, 12, 23, 34}));
}

TEST(ModelVectorSum, TwoPartsOfAnObjectAreOpenUnderAPartialOverlapOnly) {
    std::array<float, 7> a = {1, 2, 3, 4, 5, 6, 7};
    const std::array<float, 6> b = {};
    EXPECT_TRUE(run("vonkAdd_vv_32f_6x1", {to(a), to(b), to(&a[1])}).open);
    EXPECT_FALSE(run("vonkAdd_vv_32f_6x1", {to(a), to(b), to(a)}).open);
    std::array<double, 7> wide = {};
    EXPECT_FALSE(run("vonkAdd_vv_64f_6x1", {to(wide), to(wide), to(&wide[1])}).open);
}

TEST(ModelVectorSum, BlocksOfFourAreOpenWhereAnObjectFeedsALaterOne) {
    std::array<float, 24> a = {};
    const std::array<float, 15> b = {};
    // Destination n lies on source n + 1.
    EXPECT_TRUE(run("vonkSub_vava_32f_3x1", {to(a), 12, to(b), 12, to(&a[3]), 12, 4}).open);
    EXPECT_FALSE(run("vonkSub_vava_32f_3x1", {to(a), 12, to(b), 12, to(&a[3]), 12, 3}).open);
    EXPECT_FALSE(run("vonkAdd_vava_32f_3x1", {to(a), 12, to(b), 12, to(&a[3]), 12, 4}).open);
    EXPECT_FALSE(run("vonkSub_vava_32f_3x1", {to(&a[3]), 12, to(b), 12, to(a), 12, 4}).open);
}

TEST(ModelVectorSum, ReportsNansOfTheArithmetic) {
    const float infinity = std::numeric_limits<float>::infinity();
    std::array<float, 2> a = {infinity, 1};
    std::array<float, 2> dst = {};
    EXPECT_FALSE(run("vonkAdd_vv_32f", {to(a), to(a), to(dst), 2}).nanSeen);
    EXPECT_TRUE(run("vonkSub_vv_32f", {to(a), to(a), to(dst), 2}).nanSeen);
}

TEST(ModelOperands, ACallThatWritesItsOwnTableIsOpen) {
    std::array<double, 3> a = {1, 2, 3};
    std::array<void *, 3> table = {&a[0], &a[1], &a[2]};
    std::array<void *, 3> dstTable = {&table[1], &a[1], &a[2]};
    EXPECT_TRUE(run("vonkAdd_vv_64f_P", {to(table), 0, to(table), 0, to(dstTable), 0, 3}).open);
}

TEST(ModelLuDecomposition, TheCopyKeepsASignallingNan) {
    const std::array<std::uint64_t, 1> src = {0x7ff0000000000001};
    std::array<std::uint64_t, 1> dst = {};
    std::array<std::uint32_t, 1> pivots = {};
    const model::Outcome outcome = run("vonkLUDecomp_m_64f", {to(src), 0, to(pivots), to(dst), 0, 1});
    EXPECT_EQ(outcome.status, -10);
    EXPECT_FALSE(outcome.nanSeen);
    EXPECT_EQ(dst, src);
}

TEST(ModelLuDecomposition, IsOpenWhereRowsOrIndicesCollide) {
    std::array<float, 4> src = {1, 2, 4, 6};
    std::array<float, 6> dst = {};
    std::array<std::uint32_t, 2> pivots = {};
    EXPECT_TRUE(run("vonkLUDecomp_m_32f", {to(src), 8, to(pivots), to(dst), 0, 2}).open);
    EXPECT_TRUE(run("vonkLUDecomp_m_32f", {to(src), 8, to(dst), to(&dst[1]), 8, 2}).open);
    EXPECT_FALSE(run("vonkLUDecomp_m_32f", {to(src), 8, to(pivots), to(src), 8, 2}).open);
}

TEST(ModelLuBackSubstitution, ASolutionOverThePermutationIsOpen) {
    const std::array<float, 4> factors = {1, 0, 0, 1};
    std::array<std::uint32_t, 3> pivots = {0, 1, 0};
    const std::array<float, 2> b = {5, 16};
    EXPECT_TRUE(run("vonkLUBackSubst_mv_32f", {to(factors), 8, to(pivots), to(b), to(&pivots[1]), 2}).open);
}

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

TEST(MatrixSumModel, LeavesOpenWhatAnObjectInLanesMayHaveLoaded) {
    std::vector<float> a(64), b(16, 1);
    std::iota(a.begin(), a.end(), 0.0F);
    const auto isOpen = [&](const std::string &name, std::uint64_t dst) {
        return run(name, {to(a), 16, to(b), 16, dst, 16}).open;
    };
    EXPECT_FALSE(isOpen("vonkAdd_mm_32f_4x4", to(a)));
    EXPECT_TRUE(isOpen("vonkAdd_mm_32f_4x4", to(a) + 4));
    EXPECT_TRUE(isOpen("vonkAdd_mTm_32f_4x4", to(a)));
    EXPECT_FALSE(run("vonkAdd_mTm_32f", {to(a), 16, to(b), 16, to(a), 16, 4, 4}).open);
    EXPECT_FALSE(run("vonkAdd_mTm_64f_3x3", {to(a), 24, to(a), 24, to(a), 24}).open);
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

TEST(ProductModelInPlace, TheFifthColumnIsFetchedForEveryRow) {
    std::array<float, 25> a{}, b{};
    a[0] = 2; // the first row doubles, the second adds the first two
    a[5] = a[6] = 1;
    b[4] = b[9] = 1; // in the fifth column
    EXPECT_FALSE(run("vonkMul_mm_32f_5x5", {to(a), 20, to(b), 20, to(b), 20}).open);
    EXPECT_EQ(b[4], 2);
    EXPECT_EQ(b[9], 2 + 1); // of the stored 2, not of the 1 that was there
}

TEST(ProductModelInPlace, ATransposedSixthOrderFetchesItsLastRowsAfterTheFirstPass) {
    std::array<float, 36> a{}, b{};
    for (std::size_t k = 0; k < 6; ++k) a[k * 7] = 2;
    b[4] = 3;  // row 0, column 4
    b[24] = 1; // row 4, column 0
    EXPECT_FALSE(run("vonkMul_mmT_32f_6x6", {to(a), 24, to(b), 24, to(b), 24}).open);
    EXPECT_EQ(b[24], 2 * 3);
    EXPECT_EQ(b[4], 2 * 6); // of the stored 6, not of the 1 that was there
}

TEST(ProductModelInPlace, ATransposedFirstFactorLosesWhatEarlierRowsStored) {
    std::array<float, 9> a = {1, 2, 3, 4, 5, 6, 7, 8, 9};
    const std::array<float, 9> identity = {1, 0, 0, 0, 1, 0, 0, 0, 1};
    EXPECT_FALSE(run("vonkMul_mTm_32f_3x3", {to(a), 12, to(identity), 12, to(a), 12}).open);
    // Row 0 becomes 1 4 7; row 1 is then read as 4 5 8, row 2 as 7 8 9.
    EXPECT_EQ(a, (std::array<float, 9>{1, 4, 7, 4, 5, 8, 7, 8, 9}));
}

TEST(ProductModelInPlace, TheSecondPassReadsTheFirstFactorAnew) {
    std::array<float, 36> a{};
    std::array<float, 36> b{};
    for (std::size_t k = 0; k < 6; ++k) a[k * 7] = b[k * 7] = 2;
    b[4] = 1; // adds the first column of the first factor to its fifth
    EXPECT_FALSE(run("vonkMul_mm_32f_6x6", {to(a), 24, to(b), 24, to(a), 24}).open);
    EXPECT_EQ(a[0], 4);
    EXPECT_EQ(a[4], 4); // of the stored 4, not of the 2 that was there
    EXPECT_EQ(a[35], 4);
}

TEST(ProductModelOverlap, ARowIsReadBeforeItIsStoredAndAfterTheRowAbove) {
    // The destination runs one element ahead of the first factor, times the identity.
    std::array<float, 10> a = {1, 2, 3, 4, 5, 6, 7, 8, 9, 0};
    const std::array<float, 9> identity = {1, 0, 0, 0, 1, 0, 0, 0, 1};
    EXPECT_FALSE(run("vonkMul_mm_32f_3x3", {to(a), 12, to(identity), 12, to(&a[1]), 12}).open);
    EXPECT_EQ(a, (std::array<float, 10>{1, 1, 2, 3, 3, 5, 6, 6, 8, 9}));
}

TEST(ProductModelOverlap, ASingleSecondFactorIsHeldThroughAllObjectsButForAColumnOfOrderFive) {
    std::array<float, 50> a{};
    std::array<float, 25> b{};
    for (std::size_t k = 0; k < 5; ++k) a[k * 6] = a[25 + k * 6] = b[k * 6] = 2;
    // Both objects are stored over the second factor.
    EXPECT_FALSE(run("vonkMul_mam_32f_5x5", {to(a), 100, 20, to(b), 20, to(b), 0, 20, 2}).open);
    EXPECT_EQ(b[0], 4);
    EXPECT_EQ(b[18], 4);
    EXPECT_EQ(b[24], 8);
}

TEST(ProductModelOverlap, ATransposedSecondFactorIsHeldWholeAtOrderFive) {
    const std::array<float, 25> a = {2, 0, 0, 0, 0, 0, 2, 0, 0, 0, 0, 0, 2, 0, 0, 0, 0, 0, 2, 0, 0, 0, 0, 0, 2};
    std::array<float, 45> b{};
    for (std::size_t k = 0; k < 5; ++k) b[20 + k] = static_cast<float>(k + 1); // what is to become column 4
    EXPECT_FALSE(run("vonkMul_mmT_32f_5x5", {to(a), 20, to(b), 20, to(&b[20]), 20}).open);
    for (std::size_t i = 0; i < 5; ++i) EXPECT_EQ(b[20 + 5 * i + 4], static_cast<float>(2 * (i + 1)));
}

TEST(ProductModelOverlap, TheFirstPassOfOrderSixGoesRowByRowAndTheSecondByPairs) {
    std::array<float, 36> b{};
    for (std::size_t k = 0; k < 6; ++k) b[k * 7] = 1;
    std::array<float, 48> first{};
    first[2] = 3;
    first[6] = 7; // the first element of row 1, over which row 0 is stored
    EXPECT_FALSE(run("vonkMul_mm_32f_6x6", {to(first), 24, to(b), 24, to(&first[4]), 24}).open);
    EXPECT_EQ(first[10], 3);
    b[4] = 1; // adds the first column of the first factor to its fifth
    std::array<float, 48> second{};
    second[0] = 1;
    second[6] = 5; // the first element of row 1, over which the fifth of row 0 is stored
    EXPECT_FALSE(run("vonkMul_mm_32f_6x6", {to(second), 24, to(b), 24, to(&second[2]), 24}).open);
    EXPECT_EQ(second[6], 1);
    EXPECT_EQ(second[12], 5);
}

TEST(ProductModelOverlap, IsOpenWhereALateFetchWouldShow) {
    std::array<float, 80> b{};
    const std::array<float, 36> a{};
    EXPECT_FALSE(run("vonkMul_mm_32f_6x6", {to(a), 24, to(b), 24, to(b), 24}).open);
    EXPECT_TRUE(run("vonkMul_mm_32f_6x6", {to(a), 24, to(b), 24, to(&b[1]), 24}).open);
    EXPECT_FALSE(run("vonkMul_mm_32f_6x6", {to(a), 24, to(b), 24, to(&b[36]), 24}).open);
    EXPECT_FALSE(run("vonkMul_mmT_32f_6x6", {to(a), 24, to(b), 24, to(&b[1]), 24}).open);
    EXPECT_FALSE(run("vonkMul_mma_32f_6x6", {to(a), 24, to(b), 144, 24, to(&b[1]), 144, 24, 1}).open);
}

TEST(ProductModelOverlap, IsOpenWhereARowOfAPairFeedsTheOther) {
    std::array<float, 80> a{};
    const std::array<float, 36> b{};
    const auto call = [&](float *dst) {
        return run("vonkMul_mm_32f_6x6_S2", {to(a), 24, 4, to(b), 24, 4, to(dst), 24, 4});
    };
    EXPECT_FALSE(call(a.data()).open);
    EXPECT_TRUE(call(&a[1]).open);
    EXPECT_FALSE(call(&a[12]).open); // rows 2 and 3, which are read when rows 0 and 1 are stored
}

TEST(ProductModelOverlap, ACallThatWritesItsOwnTableIsOpen) {
    std::array<double, 3> a = {1, 2, 3};
    std::array<void *, 1> table = {a.data()};
    std::array<void *, 1> dstTable = {table.data()};
    EXPECT_TRUE(run("vonkMul_mm_64f_P", {to(table), 0, 1, 1, to(table), 0, 1, 1, to(dstTable), 0}).open);
}

TEST(ProductModelVector, SingleOperandsOfLanesAreHeldThroughAllObjects) {
    std::array<float, 9> a = {2, 0, 0, 0, 2, 0, 0, 0, 2};
    const std::array<float, 6> vectors = {1, 2, 3, 4, 5, 6};
    // Both objects are stored over the matrix.
    EXPECT_FALSE(run("vonkMul_mva_32f_3x3", {to(a), 12, to(vectors), 12, to(a), 12, 2}).open);
    EXPECT_EQ(a, (std::array<float, 9>{2, 4, 6, 8, 10, 12, 0, 0, 2}));
    std::array<float, 9> again = {2, 0, 0, 0, 2, 0, 0, 0, 2};
    std::array<float, 3> v = {1, 2, 3};
    EXPECT_FALSE(run("vonkMul_mav_32f_3x3", {to(again), 0, 12, to(v), to(v), 0, 3}).open);
    EXPECT_EQ(v, (std::array<float, 3>{2, 4, 6}));
}

TEST(ProductModelVector, IsOpenWhereTheFirstFourElementsRunIntoWhatServesTheRest) {
    std::array<float, 60> a{};
    const std::array<float, 6> v{};
    const auto mv = [&](const std::string &name, std::size_t rowStride, float *dst) {
        return run(name, {to(a), rowStride, to(v), to(dst)}).open;
    };
    EXPECT_FALSE(mv("vonkMul_mv_32f_5x5", 20, &a[16]));
    EXPECT_TRUE(mv("vonkMul_mv_32f_5x5", 20, &a[17])); // reaches row 4 with its fourth element
    EXPECT_FALSE(mv("vonkMul_mv_32f_5x5", 20, &a[25]));
    EXPECT_FALSE(mv("vonkMul_mTv_32f_5x5", 20, a.data()));
    EXPECT_TRUE(mv("vonkMul_mTv_32f_5x5", 20, &a[1]));
    EXPECT_TRUE(mv("vonkMul_mTv_32f_6x6", 24, &a[1]));
    EXPECT_FALSE(mv("vonkMul_mv_32f_6x6", 24, &a[20]));
    EXPECT_TRUE(mv("vonkMul_mv_32f_6x6", 24, &a[21]));
    EXPECT_FALSE(mv("vonkMul_mv_32f_4x4", 16, &a[14]));
    EXPECT_FALSE(run("vonkMul_mva_32f_5x5", {to(a), 20, to(v), 0, to(&a[17]), 0, 1}).open);
    EXPECT_TRUE(run("vonkMul_mav_32f_5x5", {to(a), 0, 20, to(v), to(&a[17]), 0, 1}).open);
}

TEST(ProductModelGaxpy, IsOpenWhereTheFirstFourElementsRunIntoTheRestOrOntoTheMatrix) {
    std::array<float, 60> a{};
    std::array<float, 12> w{};
    const std::array<float, 6> v{};
    const auto open = [&](float *dst) { return run("vonkGaxpy_v_32f_5x5", {to(a), 20, to(v), to(w), to(dst)}).open; };
    EXPECT_FALSE(open(w.data()));
    EXPECT_TRUE(open(&w[1]));
    EXPECT_FALSE(open(&w[5]));
    EXPECT_FALSE(open(&a[16]));
    EXPECT_TRUE(open(&a[17]));
    const auto many = [&](float *dst, std::uint64_t count) {
        return run("vonkGaxpy_va_32f_3x3", {to(a), 12, to(v), 0, to(w), 0, to(dst), 12, count}).open;
    };
    EXPECT_FALSE(many(&a[6], 1));
    EXPECT_TRUE(many(&a[6], 2));
    EXPECT_FALSE(many(&a[9], 2));
}

// With a destination that is used up by its own element the outcome is fixed, with one that is still to be read not.
TEST(CholeskyModel, LeavesOpenWhatASourceAheadOfItsReadBecomes) {
    std::vector<double> cells{4, 0, 2, 10, 0, 0};
    EXPECT_FALSE(run("vonkCholeskyDecomp_m_64f", {to(cells), 16, to(cells), 16, 2}).open);
    cells = {4, 0, 2, 10, 0, 0};
    EXPECT_TRUE(run("vonkCholeskyDecomp_m_64f", {to(cells), 16, to(&cells[2]), 16, 2}).open);
    cells = {0, 0, 4, 0, 2, 10}; // one row behind, where the source has been read
    EXPECT_FALSE(run("vonkCholeskyDecomp_m_64f", {to(&cells[2]), 16, to(cells), 16, 2}).open);
    cells = {4, 0, 2, 10, 0, 0};
    EXPECT_TRUE(run("vonkCholeskyDecomp_m_64f", {to(cells), 16, to(&cells[4]), 0, 2}).open);
}

TEST(QrModel, LeavesOpenHowFarTheCopyReadsAhead) {
    std::vector<double> cells{0, 3, 4, 5, 0, 0, 0};
    std::vector<double> work(2);
    EXPECT_FALSE(run("vonkQRDecomp_m_64f", {to(cells), 16, to(work), to(cells), 16, 2, 2}).open);
    EXPECT_TRUE(run("vonkQRDecomp_m_64f", {to(cells), 16, to(work), to(&cells[2]), 16, 2, 2}).open);
    EXPECT_FALSE(run("vonkQRDecomp_m_64f", {to(&cells[2]), 16, to(work), to(cells), 16, 2, 2}).open);
    EXPECT_TRUE(run("vonkQRDecomp_m_64f", {to(cells), 16, to(&cells[4]), to(&cells[4]), 8, 2, 2}).open);
}

// ---- Inverses

struct Inverse {
    model::Outcome outcome;
    bool isUntouched;
};

Inverse invert(const std::string &name, const std::vector<double> &matrix) {
    const std::vector<double> before(matrix.size(), 99.0);
    literal::Call call(name, 0);
    call.set("src", 0, matrix);
    call.set("dst", 0, before);
    model::Outcome outcome = run(name, call.words());
    return {std::move(outcome), call.get("dst", 0) == before};
}

std::vector<double> diagonal(const std::vector<double> &elements) {
    std::vector<double> matrix(elements.size() * elements.size());
    for (std::size_t i = 0; i < elements.size(); ++i) matrix[i * (elements.size() + 1)] = elements[i];
    return matrix;
}

void expectRefused(const std::string &name, const std::vector<double> &matrix) {
    const auto [outcome, isUntouched] = invert(name, matrix);
    EXPECT_EQ(outcome.status, -10);
    EXPECT_FALSE(outcome.open);
    EXPECT_TRUE(isUntouched);
}

TEST(InverseModel, LeavesTheFastBlockFormsPartlyWritten) {
    const Inverse inverse = invert("vonkInvert_m_32f_5x5", diagonal({1, 1, 1, 1, 0}));
    EXPECT_EQ(inverse.outcome.status, -10);
    ASSERT_EQ(inverse.outcome.approximations.size(), 25U);
    EXPECT_TRUE(std::isinf(inverse.outcome.approximations.front().error));
    expectRefused("vonkInvert_m_32f_5x5_S2", diagonal({1, 1, 1, 1, 0}));
    expectRefused("vonkInvert_m_32f_5x5", diagonal({1, 0, 0, 0, 0}));
}

// What is to be expected of each element times the matrix is the identity, and the bounds are some digits away from it.
TEST(InverseModel, ExpectsTheTrueInverseWithinUsefulBounds) {
    std::mt19937 random(7);
    std::uniform_real_distribution<float> numbers(-1, 1);
    for (const char *name : {"vonkInvert_m_32f_4x4", "vonkInvert_m_64f_4x4_S2", "vonkInvert_m_32f_5x5",
                             "vonkInvert_m_64f_5x5", "vonkInvert_m_32f_6x6_S2", "vonkInvert_m_64f_6x6"}) {
        const auto order = static_cast<std::size_t>(std::string(name)[17] - '0');
        std::vector<double> matrix(order * order);
        for (std::size_t k = 0; k < matrix.size(); ++k)
            matrix[k] = numbers(random) + (k % (order + 1) == 0 ? 3.0F : 0.0F);
        const std::vector<model::Approximation> found = invert(name, matrix).outcome.approximations;
        ASSERT_EQ(found.size(), matrix.size()) << name;
        std::vector<long double> exact(matrix.size());
        for (const model::Approximation &element : found) {
            EXPECT_LT(element.error, element.size == sizeof(float) ? 1e-3 : 1e-12) << name;
            exact.at((element.address - found.front().address) / element.size) = element.exact;
        }
        for (std::size_t i = 0; i < order; ++i)
            for (std::size_t j = 0; j < order; ++j) {
                long double sum = 0;
                for (std::size_t k = 0; k < order; ++k) sum += matrix[i * order + k] * exact[k * order + j];
                EXPECT_NEAR(static_cast<double>(sum), i == j ? 1 : 0, 1e-15) << name << " " << i << " " << j;
            }
    }
}

} // namespace
