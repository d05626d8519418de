// Sums and differences of matrices that go their own ways: the three differences that make elements of the wrong ones,
// the forms that run one object ahead and what they do for no objects, the stride that is taken from the other operand,
// and the tables of transposed operands. The rest is in Elementwise.
#include "support/family_test.h"
#include "support/matrix_checks.h"

namespace {

using namespace literal::names;

std::vector<const Function *> all(bool (*wanted)(const Function &) = isAny) {
    return literal::members("matrix-matrix", wanted);
}

double combine(const Function &function, double a, double b) {
    return function.family->operation == "Sub" ? a - b : a + b;
}

// ---- Differences that are wrong

// 10 r + c at row r, column c of src1, and zeros: the result tells where its elements come from. As stored.
std::vector<double> origins(std::string_view name, std::uint32_t count) {
    Call call(name, 6, count);
    for (std::uint32_t n = 0; n < call.objectsOf("src1"); ++n)
        for (std::uint32_t r = 0; r < 6; ++r)
            for (std::uint32_t c = 0; c < 6; ++c) call.set("src1", n, r, c, 10.0 * r + c);
    literal::setAll(call, "src2", 0);
    EXPECT_EQ(call.run(), vonkOk);
    for (std::uint32_t n = 1; n < call.count(); ++n) EXPECT_EQ(call.get("dst", n), call.get("dst", 0));
    return call.get("dst", 0);
}

const std::vector<double> transposedOrigins{0, 10, 20, 30, 40, 50, 1, 11, 21, 31, 41, 51, 2, 12, 22, 32, 42, 52,
                                            3, 13, 23, 33, 43, 53, 4, 14, 24, 34, 44, 54, 5, 15, 25, 35, 45, 55};

TEST(MatrixSumDefects, RepeatTheThirdRowInTheDifferenceOfTwoTransposedMatricesOfSix) {
    std::vector<double> repeated = transposedOrigins;
    std::copy_n(repeated.begin() + 12, 6, repeated.begin() + 18); // 2 12 22 32 42 52 again
    EXPECT_EQ(origins("vonkSub_mTmT_32f_6x6", 1), repeated);
}

TEST(MatrixSumDefects, ScatterTheDifferenceOfTwoTransposedArraysOfSix) {
    const std::vector<double> scattered{0, 4,  20, 24, 40, 44, 1,  5,  21, 25, 41, 45, 2,  14, 22, 34, 42, 54,
                                        2, 14, 22, 34, 42, 54, 10, 12, 30, 32, 50, 52, 11, 13, 31, 33, 51, 53};
    for (const std::uint32_t count : {1U, 2U, 3U}) {
        EXPECT_EQ(origins("vonkSub_maTmaT_32f_6x6", count), scattered);
        EXPECT_EQ(origins("vonkSub_maTmaT_32f_6x6_L", count), scattered);
    }
}

TEST(MatrixSumDefects, ScatterBothOperands) {
    for (const char *name : {"vonkSub_maTmaT_32f_6x6", "vonkSub_maTmaT_32f_6x6_L"}) {
        Call call(name, 6);
        literal::setAll(call, "src1", 0);
        call.set("src1", 0, 5, 3, 100); // as stored
        literal::setAll(call, "src2", 0);
        call.set("src2", 0, 1, 4, 1);
        ASSERT_EQ(call.run(), vonkOk);
        EXPECT_EQ(call.get("dst", 0, 5, 5), 100);
        EXPECT_EQ(call.get("dst", 0, 2, 1), -1);
        EXPECT_EQ(call.get("dst", 0, 3, 1), -1);
        EXPECT_EQ(call.get("dst", 0, 3, 5), 0);
    }
}

TEST(MatrixSumDefects, AreInNoOtherForm) {
    for (const char *name :
         {"vonkAdd_mTmT_32f_6x6", "vonkSub_mTmT_32f_6x6_S2", "vonkSub_mTmT_32f_6x6_P", "vonkSub_mTmT_64f_6x6",
          "vonkAdd_maTmaT_32f_6x6", "vonkAdd_maTmaT_32f_6x6_L", "vonkSub_maTmaT_32f_6x6_S2", "vonkSub_maTmaT_32f_6x6_P",
          "vonkSub_maTmaT_32f_6x6_PS2", "vonkSub_maTmaT_32f_6x6_LS2", "vonkSub_maTmaT_64f_6x6_L",
          "vonkSub_maTmT_32f_6x6", "vonkSub_mTmaT_32f_6x6", "vonkSub_maTmT_32f_6x6_L", "vonkSub_mTmaT_32f_6x6_L"})
        EXPECT_EQ(origins(name, 2), transposedOrigins) << name;
}

// ---- Strides

// Rows of src2 are 1 and lie 64 bytes farther apart than those of src1, which are 0. Where the rows of src2 would lie
// with the stride of src1, there is 100; the first row is common to both. As a transposed matrix, rows are columns.
TEST(MatrixSumStrides, OfAnArrayServeTheTransposedSingleMatrixOfThreeInLanes) {
    std::size_t borrowing = 0;
    for (const Function *function : all()) {
        if (isTabled(*function) || function->group != "mamT") continue;
        for (const std::uint32_t order : literal::sizesOf(*function, {3})) {
            Call call(function->name, order, 3, literal::spread);
            literal::setAll(call, "src1", 0);
            literal::setAll(call, "src2", 100);
            call["src2"].rowStride += 64;
            literal::setAll(call, "src2", 1);
            const bool borrows = isException(*function, "sum-ignored-stride");
            borrowing += borrows ? 1 : 0;
            const auto expect = [&] {
                ASSERT_EQ(call.run(), vonkOk);
                for (std::uint32_t n = 0; n < 3; ++n)
                    for (std::uint32_t k = 0; k < order * order; ++k)
                        EXPECT_EQ(call.get("dst", n, k / order, k % order),
                                  combine(*function, 0, borrows && k % order != 0 ? 100 : 1));
            };
            expect();
            if (!borrows) continue;
            call.pass("src2RowStride", 0x7ffffff0); // may be anything
            expect();
        }
    }
    EXPECT_EQ(borrowing, 4U);
}

// ---- What is loaded ahead

// Object n of `dst` lies on object n + 1 of the array, which is 1000 times the object's number, counted from 1; the
// single matrix is 1. Who runs ahead has loaded that object by then, everybody else meets the result for object n.
TEST(MatrixSumAhead, LoadsTheNextObjectBeforeThisOneIsStored) {
    std::size_t ahead = 0;
    for (const Function *function : all()) {
        if (function->group != "mam" && function->group != "mamT") continue;
        const bool runsAhead = isException(*function, "sum-software-pipelined");
        for (const std::uint32_t order : literal::sizesOf(*function, {1, 3})) {
            Call call(function->name, order, 4);
            const literal::Place &array = call["src1"];
            call["dst"].moveTo(array.origin + array.objectStride);
            literal::setElements(call, "src1", order, order,
                                 [](std::uint32_t n, auto, auto) { return 1000.0 * n + 1000; });
            literal::setAll(call, "src2", 1);
            ASSERT_EQ(call.run(), vonkOk);
            for (std::uint32_t n = 0; n < 4; ++n) {
                const double result =
                    runsAhead ? combine(*function, 1000.0 * n + 1000, 1) : combine(*function, 1000, n + 1);
                EXPECT_EQ(call.get("dst", n), std::vector<double>(std::size_t{order} * order, result))
                    << "object " << n;
            }
        }
        ahead += runsAhead ? 1 : 0;
    }
    EXPECT_EQ(ahead, 8U);
}

constexpr std::array listsAhead{"vonkAdd_mam_32f_3x3_L", "vonkAdd_mamT_32f_3x3_L", "vonkSub_mam_32f_3x3_L",
                                "vonkSub_mamT_32f_3x3_L"};

// The last entry of `dst` is looked up first of all, and of no objects that is the word in front of the list.
TEST(MatrixSumAhead, StoresThatObjectThroughTheEntryInFrontOfTheList) {
    for (const char *name : listsAhead) {
        Call call(name, 3, 2, literal::spread);
        literal::setAll(call, "src1", 7);
        literal::setAll(call, "src2", 2);
        call["dst"].before = call["dst"].entries[1];
        call["dst"].entries[0] = nullptr;
        call["src1"].entries[1] = nullptr;
        call.pass("count", 0);
        EXPECT_EQ(call.run(), vonkOk);
        EXPECT_EQ(call.get("dst", 1), std::vector<double>(9, combine(call.function(), 7, 2)));
    }
}

TEST(MatrixSumAhead, CatchesANullInFrontOfTheListOrAtTheHeadOfTheArray) {
    for (const char *name : listsAhead)
        for (const bool inFront : {true, false}) {
            Call call(name, 3, 2);
            call.pass("count", 0);
            if (inFront) call["dst"].before = nullptr;
            else call["src1"].entries[0] = nullptr;
            EXPECT_EQ(call.run(), vonkErrNullPtr);
            EXPECT_TRUE(call.changedNothing());
        }
}

// ---- Tables

// Two rows of three: src1 is stored as three rows of two, and entry 4 of its table is (2, 0) as stored, (0, 2) of the
// result. 10 20 30 / ... and ones.
TEST(MatrixSumTables, OfATransposedOperandAreCountedByItsOwnRows) {
    for (const char *name : {"vonkAdd_mTm_32f_P", "vonkSub_mTm_64f_P"}) {
        Call call(name, 3);
        literal::makeRectangular(call, 2, 3);
        literal::setElements(call, "src1", 2, 3, [](auto, auto i, auto j) { return 30.0 * i + 10 * j + 10; });
        literal::setAll(call, "src2", 1);
        literal::setAll(call, "dst", -1);
        std::byte *const entry = std::exchange(call["src1"].entries[4], nullptr);
        EXPECT_EQ(call.run(), vonkErrNullPtr);
        call["src1"].entries[4] = entry;
        EXPECT_EQ(call.get("dst", 0), (std::vector<double>{combine(call.function(), 10, 1),
                                                           combine(call.function(), 20, 1), -1, -1, -1, -1}));
    }
}

} // namespace
