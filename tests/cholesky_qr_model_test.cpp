// Tests of the model of Cholesky and QR, factor and solve: calls worked out by hand, what it tells of failures, the
// members that go their own way, and which overlaps it leaves open.
#include "model/model.h"

#include <gtest/gtest.h>
#include <sys/mman.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <map>
#include <string>
#include <vector>

namespace {

using Words = std::vector<std::uint64_t>;

constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();

constexpr std::int32_t ok = 0;
constexpr std::int32_t badSize = -6;
constexpr std::int32_t nullPointer = -8;
constexpr std::int32_t singular = -10;
constexpr std::int32_t notPositiveDefinite = -179;

template <class Type> std::uint64_t to(Type *pointer) { return reinterpret_cast<std::uintptr_t>(pointer); }

template <class Real> std::uint64_t to(std::vector<Real> &elements) { return to(elements.data()); }

model::Outcome run(const std::string &name, const Words &words) { return model::run({name, words}); }

TEST(CholeskyQrModel, KnowsEveryMember) {
    std::map<std::string, int> known;
    for (const std::string &name : model::names())
        if (model::knows(name)) ++known[name.substr(0, name.find('_'))];
    EXPECT_EQ(known["vonkCholeskyDecomp"], 90);
    EXPECT_EQ(known["vonkCholeskyBackSubst"], 150);
    EXPECT_EQ(known["vonkQRDecomp"], 90);
    EXPECT_EQ(known["vonkQRBackSubst"], 150);
}

// ---- Cholesky decomposition

// 4 . / 2 10: roots 2 and 3, and 2 / 2 below.
TEST(CholeskyModel, KeepsReciprocalsAndLeavesTheUpperTriangle) {
    std::vector<double> src{4, nan, 2, 10};
    std::vector<double> dst{7, 7, 7, 7};
    const model::Outcome outcome = run("vonkCholeskyDecomp_m_64f", {to(src), 16, to(dst), 16, 2});
    EXPECT_EQ(outcome.status, ok);
    EXPECT_FALSE(outcome.nanSeen);
    EXPECT_EQ(outcome.writes.size(), 3U);
    EXPECT_EQ(dst, (std::vector<double>{0.5, 7, 1, 1.0 / 3}));
}

// 1/sqrt(7) is 12682383.21 * 2^-25, and 1 over the float next to sqrt(7) is 12682383.56 * 2^-25.
TEST(CholeskyModel, RoundsAFloatReciprocalOnceButInTablesTwice) {
    float element = 7;
    float reciprocal = 0;
    EXPECT_EQ(run("vonkCholeskyDecomp_m_32f", {to(&element), 0, to(&reciprocal), 0, 1}).status, ok);
    EXPECT_EQ(reciprocal, 12682383 * 0x1p-25F);
    std::uint64_t src[1] = {to(&element)};
    std::uint64_t dst[1] = {to(&reciprocal)};
    EXPECT_EQ(run("vonkCholeskyDecomp_m_32f_P", {to(src), 0, to(dst), 0, 1}).status, ok);
    EXPECT_EQ(reciprocal, 12682384 * 0x1p-25F);
}

TEST(CholeskyModel, LeavesTheRowOfAFailingPivotUpToThePivot) {
    std::vector<float> src{4, 0, 2, 1};
    std::vector<float> dst{7, 7, 7, 7};
    EXPECT_EQ(run("vonkCholeskyDecomp_m_32f", {to(src), 8, to(dst), 8, 2}).status, notPositiveDefinite);
    EXPECT_EQ(dst, (std::vector<float>{0.5F, 7, 1, 7}));
}

// Rows of 1 . . / . 1 . / ... with the last row 2^-27 + 1, x, 2^-20 + 1: the pivot of that row, less all squares.
TEST(CholeskyModel, RoundsDoublesBehindAPairInTheGeneralLoopOnly) {
    constexpr double a = 1 + 0x1p-27;
    constexpr double b = 1 + 0x1p-20;
    constexpr double pivot = 2 + 0x1p-26 + 0x1p-19 + 0x1p-40 + 0x1p-50;
    std::vector<double> cells{1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, a, 0, b, pivot};
    cells.resize(32);
    double *const dst = &cells[16];
    EXPECT_EQ(run("vonkCholeskyDecomp_m_64f_4x4", {to(cells), 32, to(dst), 32}).status, ok);
    EXPECT_EQ(dst[15], static_cast<double>(1 / std::sqrt(15 * 0x1p-54L)));
    std::vector<std::uint64_t> table;
    for (std::size_t k = 0; k < 16; ++k) table.push_back(to(&cells[k]));
    EXPECT_EQ(run("vonkCholeskyDecomp_m_64f_4x4_P", {to(table), 0, to(table), 128}).status, ok);
    EXPECT_EQ(dst[15], 0x1p25);
}

TEST(CholeskyModel, LetsAFirstNanPassForDoublesOfOrderThreeAndFour) {
    std::vector<double> src(25, 1.0);
    src[0] = nan;
    for (const std::uint64_t order : {2U, 3U, 4U, 5U}) {
        std::vector<double> dst(25, 7.0);
        EXPECT_EQ(run("vonkCholeskyDecomp_m_64f", {to(src), 40, to(dst), 40, order}).status, notPositiveDefinite);
        const bool passes = order == 3 || order == 4;
        EXPECT_EQ(std::isnan(dst[0]), passes);
        EXPECT_EQ(std::isnan(dst[5]), passes);
        EXPECT_EQ(dst[6], 7);
    }
}

TEST(CholeskyModel, CutsElementStridesToWholeElementsInTheStraightKernels) {
    std::vector<float> src{4, 0, 0, 0, 4, 0, 0, 0, 4};
    std::vector<float> dst(9);
    EXPECT_EQ(run("vonkCholeskyDecomp_m_32f_3x3_S2", {to(src), 12, 7, to(dst), 12, 5}).status, ok);
    EXPECT_EQ(dst, (std::vector<float>{0.5F, 0, 0, 0, 0.5F, 0, 0, 0, 0.5F}));
    // Backwards from the last column, -1 is cut to -4.
    src = {0, 0, 4, 0, 4, 0, 4, 0, 0};
    dst.assign(9, 7);
    EXPECT_EQ(run("vonkCholeskyDecomp_m_32f_3x3_S2", {to(&src[2]), 12, 0xffffffff, to(&dst[2]), 12, 0xfffffffd}).status,
              ok);
    EXPECT_EQ(dst, (std::vector<float>{7, 7, 0.5F, 7, 0.5F, 0, 0.5F, 0, 0}));
}

TEST(CholeskyModel, CountsObjectsAmongTheSizesAndSomeOfThemSigned) {
    std::vector<double> src{4};
    std::vector<double> dst{7};
    EXPECT_EQ(run("vonkCholeskyDecomp_ma_64f", {to(src), 0, 0, to(dst), 0, 0, 1, 0}).status, badSize);
    EXPECT_EQ(run("vonkCholeskyDecomp_ma_64f", {to(src), 0, 0, to(dst), 0, 0, 1, 0x80000000}).status, ok);
    EXPECT_EQ(dst[0], 7);
    src[0] = -1;
    std::uint64_t table[1] = {to(src)};
    EXPECT_EQ(run("vonkCholeskyDecomp_ma_64f_P", {to(table), 0, to(table), 0, 1, 0x80000000}).status,
              notPositiveDefinite);
}

TEST(CholeskyModel, ComparesTheSumOfEntryAndShiftWithNull) {
    std::vector<double> src{4, 16};
    std::vector<double> dst{7, 7};
    std::uint64_t from[2] = {to(&src[0]) - 8, to(&src[1]) - 8};
    std::uint64_t into[2] = {to(&dst[0]) - 8, std::uint64_t{0} - 8};
    EXPECT_EQ(run("vonkCholeskyDecomp_ma_64f_L", {to(from), 8, 0, to(into), 8, 0, 1, 2}).status, nullPointer);
    EXPECT_EQ(dst, (std::vector<double>{0.5, 7}));
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

// ---- Cholesky back substitution

// With a column of 1 2^80 -2^80: from below 0 + 2^80 - 2^80 - 1, from above the 1 is lost.
TEST(CholeskySolveModel, GoesUpwardsForwardAndDownwardsBackward) {
    std::vector<float> factor(16);
    for (const std::size_t i : {0U, 5U, 10U, 15U}) factor[i] = 1;
    factor[4] = 1;
    factor[8] = 0x1p80F;
    factor[12] = -0x1p80F;
    std::vector<float> side{0, 1, 1, 1};
    std::vector<float> x(4);
    EXPECT_EQ(run("vonkCholeskyBackSubst_mv_32f", {to(factor), 16, to(side), to(x), 4}).status, ok);
    EXPECT_EQ(x[0], -1);
    factor = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 1, 0x1p80F, -0x1p80F, 1};
    side = {1, 1, 1, 0};
    EXPECT_EQ(run("vonkCholeskyBackSubst_mv_32f", {to(factor), 16, to(side), to(x), 4}).status, ok);
    EXPECT_EQ(x[3], 0);
}

TEST(CholeskySolveModel, PassesOverNullAndCountsSigned) {
    double factor = 0.5;
    std::vector<double> sides{4, 8};
    std::vector<double> x{7, 7};
    std::uint64_t from[2] = {0, to(&sides[1])};
    std::uint64_t into[2] = {to(&x[0]), to(&x[1])};
    EXPECT_EQ(run("vonkCholeskyBackSubst_mva_64f_L", {to(&factor), 0, to(from), 0, to(into), 0, 1, 2}).status, ok);
    EXPECT_EQ(x, (std::vector<double>{7, 2}));
    const Words negative{to(&factor), 0, 8, to(&sides[0]), 0, 8, to(&x[0]), 0, 8, 0x80000000, 1};
    EXPECT_EQ(run("vonkCholeskyBackSubst_mva_64f_S2", negative).status, ok);
    EXPECT_EQ(x[0], 7);
    Words none = negative;
    none.back() = 0;
    EXPECT_EQ(run("vonkCholeskyBackSubst_mva_64f_S2", none).status, badSize);
}

// ---- QR decomposition

// 0 3 / 4 5: the norm is 4 and alpha -4, the reflector 1 -1 and beta -1; the first column becomes 4 0 and the second
// 5 3, and -1 is stored over the 0.
TEST(QrModel, FactorsByHand) {
    std::vector<double> src{0, 3, 4, 5};
    std::vector<double> dst(4);
    std::vector<double> work(2, nan);
    EXPECT_EQ(run("vonkQRDecomp_m_64f", {to(src), 16, to(work), to(dst), 16, 2, 2}).status, ok);
    EXPECT_EQ(dst, (std::vector<double>{4, 5, -1, 3}));
    EXPECT_EQ(work, (std::vector<double>{1, -1}));
}

// A length of one turns the sign of 2 3; the second column then is empty.
TEST(QrModel, FailsOnAWideMatrixAfterAsManyReflectionsAsRows) {
    std::vector<float> src{2, 3};
    std::vector<float> dst(2);
    float work[2] = {7, 7};
    EXPECT_EQ(run("vonkQRDecomp_m_32f", {to(src), 8, to(work), to(dst), 8, 2, 1}).status, singular);
    EXPECT_EQ(dst, (std::vector<float>{-2, -3}));
    EXPECT_EQ(work[0], 1);
    EXPECT_EQ(work[1], 7);
}

TEST(QrModel, HoldsTheToleranceAgainstTheSquaredNorm) {
    std::vector<double> dst(2);
    std::vector<double> work(2);
    const auto statusOf = [&](double first, double second) {
        std::vector<double> src{first, second};
        return run("vonkQRDecomp_m_64f", {to(src), 8, to(work), to(dst), 8, 1, 2}).status;
    };
    EXPECT_EQ(statusOf(0x1p-12, 0x1p-12), ok);
    EXPECT_EQ(statusOf(0x1p-12, std::nextafter(0x1p-12, 0)), singular);
    EXPECT_EQ(statusOf(nan, 1), singular);
    EXPECT_EQ(statusOf(infinity, 1), ok);
    EXPECT_EQ(statusOf(0x1p-24, 0), singular);
}

TEST(QrModel, LeavesOpenHowFarTheCopyReadsAhead) {
    std::vector<double> cells{0, 3, 4, 5, 0, 0, 0};
    std::vector<double> work(2);
    EXPECT_FALSE(run("vonkQRDecomp_m_64f", {to(cells), 16, to(work), to(cells), 16, 2, 2}).open);
    EXPECT_TRUE(run("vonkQRDecomp_m_64f", {to(cells), 16, to(work), to(&cells[2]), 16, 2, 2}).open);
    EXPECT_FALSE(run("vonkQRDecomp_m_64f", {to(&cells[2]), 16, to(work), to(cells), 16, 2, 2}).open);
    EXPECT_TRUE(run("vonkQRDecomp_m_64f", {to(cells), 16, to(&cells[4]), to(&cells[4]), 8, 2, 2}).open);
}

// ---- QR back substitution

// The reflector exchanges 16 and 10; R = 4 2 / . 8.
TEST(QrSolveModel, SolvesByHand) {
    std::vector<double> factor{4, 2, -1, 8};
    std::vector<double> side{16, 10};
    std::vector<double> work(2);
    std::vector<double> x(2);
    EXPECT_EQ(run("vonkQRBackSubst_mv_64f_4x4", {0, 0, 0, 0, 0}).status, nullPointer);
    EXPECT_EQ(run("vonkQRBackSubst_mv_64f", {to(factor), 16, to(work), to(side), to(x), 2, 2}).status, ok);
    EXPECT_EQ(x, (std::vector<double>{1.5, 2}));
    EXPECT_EQ(work, (std::vector<double>{10, 16}));
}

// One column: 1 byte behind the row ahead of the matrix with a matrix for each, at its place with one matrix.
TEST(QrSolveModel, LooksElsewhereInListsOfDoubles) {
    std::vector<double> cells(4);
    auto *const displaced = reinterpret_cast<unsigned char *>(&cells[2]) + 1 - 16;
    const double found = 8;
    std::memcpy(displaced, &found, sizeof found);
    cells[2] = 5;
    double side = 20;
    double work = 0;
    double x = 0;
    std::uint64_t matrices[1] = {to(&cells[2])};
    std::uint64_t sides[1] = {to(&side)};
    std::uint64_t solutions[1] = {to(&x)};
    const Words words{to(matrices), 0, 16, to(&work), to(sides), 0, to(solutions), 0, 1, 1, 1};
    EXPECT_EQ(run("vonkQRBackSubst_mava_64f_L", words).status, ok);
    EXPECT_EQ(x, 2.5);
    Words shared = words;
    shared[0] = to(&cells[2]);
    EXPECT_EQ(run("vonkQRBackSubst_mva_64f_L", shared).status, ok);
    EXPECT_EQ(x, 4);
}

// The second entry of two is null and followed nevertheless, to the start of a block that the shift names.
TEST(QrSolveModel, LooksAtNoMoreEntriesOfTheRightHandSideThanTheSolutionHas) {
    void *const low = mmap(nullptr, 4096, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_32BIT, -1, 0);
    ASSERT_NE(low, MAP_FAILED);
    auto *const block = static_cast<double *>(low);
    block[0] = 5;
    block[1] = 7;
    std::vector<double> cells{-2, 0};
    std::vector<double> work(2);
    double x = 0;
    std::uint64_t factor[2] = {to(&cells[0]), to(&cells[1])};
    std::uint64_t side[2] = {8, 0};
    std::uint64_t solution[1] = {to(&x)};
    const Words words{to(factor), 0, to(work), to(side), to(block), to(solution), 0, 1, 2};
    EXPECT_EQ(run("vonkQRBackSubst_mv_64f_P", words).status, ok);
    EXPECT_EQ(x, 3.5); // a reflector of zeros turns the sign: -7 / -2
    EXPECT_EQ(work, (std::vector<double>{-7, 5}));
    side[0] = 0;
    EXPECT_EQ(run("vonkQRBackSubst_mv_64f_P", words).status, nullPointer);
    munmap(low, 4096);
}

} // namespace
