// Sums and differences of matrices: numbers by hand in every form, the three differences that make elements of the
// wrong ones, the forms that run one object ahead and what they do for no objects, the stride that is taken from the
// other operand, what is held, and what is tested in which order.
#include "support/family_test.h"
#include "support/matrix_checks.h"

namespace {

using namespace literal::names;

std::vector<const Function *> all(bool (*wanted)(const Function &) = isAny) {
    return literal::members("matrix-matrix", wanted);
}

bool isDifference(const Function &function) { return function.family->operation == "Sub"; }

// An array and then a single matrix, three rows in lanes.
bool runsAhead(const Function &function) { return isException(function, "sum-software-pipelined"); }

bool mixesArrayAndSingle(const Function &function) { return function.operands[0].array != function.operands[1].array; }

double combine(const Function &function, double a, double b) { return isDifference(function) ? a - b : a + b; }

const std::vector<std::uint32_t> orders{1, 2, 3, 4, 7};

// ---- Results

double left(std::uint32_t n, std::uint32_t i, std::uint32_t j) { return 1000 * (n + 1) + 16.0 * i + j; }
double right(std::uint32_t n, std::uint32_t i, std::uint32_t j) { return 7 * (n + 1) - 64.0 * i + 3.0 * j * j; }

void fill(Call &call) {
    literal::setElements(call, "src1", call.size(), call.size(), left);
    literal::setElements(call, "src2", call.size(), call.size(), right);
}

// Which element of the stored sources stands in the results of two of the wrong differences, row and column.
constexpr std::array<std::array<const char *, 6>, 6> strayCells = {{
    {"00", "04", "20", "24", "40", "44"},
    {"01", "05", "21", "25", "41", "45"},
    {"02", "14", "22", "34", "42", "54"},
    {"02", "14", "22", "34", "42", "54"},
    {"10", "12", "30", "32", "50", "52"},
    {"11", "13", "31", "33", "51", "53"},
}};

// What belongs at (i, j) of the result, of one operand.
double share(const Function &function, const literal::Elements &elements, std::uint32_t n, std::uint32_t i,
             std::uint32_t j) {
    if (isException(function, "sub-repeated-row") && i == 3) return elements(n, 2, j);
    if (!isException(function, "sub-other-elements")) return elements(n, i, j);
    const char *const cell = strayCells[i][j];
    return elements(n, static_cast<std::uint32_t>(cell[1] - '0'), static_cast<std::uint32_t>(cell[0] - '0'));
}

double expected(Call &call, std::uint32_t n, std::uint32_t i, std::uint32_t j) {
    const Function &function = call.function();
    const double a = share(function, left, call.objectsOf("src1") == 1 ? 0 : n, i, j);
    return combine(function, a, share(function, right, call.objectsOf("src2") == 1 ? 0 : n, i, j));
}

void expectDone(Call &call, std::uint32_t n) {
    const literal::Place &destination = call["dst"];
    for (std::uint32_t i = 0; i < destination.rows; ++i)
        for (std::uint32_t j = 0; j < destination.cols; ++j)
            EXPECT_EQ(call.get("dst", n, i, j), expected(call, n, i, j)) << "element " << i << ", " << j;
}

std::vector<double> results(Call &call) {
    std::vector<double> list;
    for (std::uint32_t i = 0; i < call["dst"].rows; ++i)
        for (std::uint32_t j = 0; j < call["dst"].cols; ++j) list.push_back(expected(call, 0, i, j));
    return list;
}

const literal::Example example{fill, expectDone};

TEST(MatrixSum, HasSixHundredSumsAndEightHundredAndFortyDifferences) {
    const auto functions = all();
    EXPECT_EQ(std::ranges::count_if(functions, [](const Function *one) { return isDifference(*one); }), 840);
    EXPECT_EQ(functions.size(), 1440U);
}

TEST(MatrixSum, AddsAndSubtractsInEveryFormAndGeometry) {
    for (const Function *function : all()) literal::expectResults(*function, example, orders);
}

TEST(MatrixSum, AddsAndSubtractsInPlaceOverASourceThatIsNotTransposed) {
    for (const Function *function : all())
        for (const char *source : {"src1", "src2"}) {
            const Operand &operand = function->operands[source[3] == '1' ? 0 : 1];
            if (!operand.transposed && operand.array == function->array())
                literal::expectInPlaceResults(*function, example, source, orders);
        }
}

// 1 2 / 3 4 transposed into itself, plus 10 everywhere: (0, 1) takes the 3 and overwrites the 2 that (1, 0) would take.
TEST(MatrixSum, GoesWrongInPlaceOverATransposedSource) {
    std::size_t wrong = 0;
    for (const Function *function : all()) {
        if (function->order != 0 || function->group != "mTm") continue;
        Call call(function->name, 2);
        call.layOver("src1");
        call.set("src1", 0, {1, 2, 3, 4});
        call.set("src2", 0, {10, 10, 10, 10});
        ASSERT_EQ(call.run(), vonkOk);
        const bool difference = isDifference(*function);
        EXPECT_EQ(call.get("dst", 0),
                  difference ? (std::vector<double>{-9, -7, -17, -6}) : (std::vector<double>{11, 13, 23, 14}));
        ++wrong;
    }
    EXPECT_EQ(wrong, 2U * 2U * 3U);
}

// The result has `rows` rows of `cols` elements; a transposed operand is stored the other way round, and so is its
// table.
TEST(MatrixSum, TakesRowsAndColumnsOfTheResult) {
    for (const Function *function : all(isRunTime)) {
        for (const auto &[rows, cols] : {std::pair{2U, 3U}, {3U, 2U}, {1U, 4U}, {4U, 1U}, {5U, 2U}}) {
            SCOPED_TRACE(function->name + ", " + std::to_string(rows) + " by " + std::to_string(cols));
            Call call(function->name, 5, 2, literal::spread);
            literal::makeRectangular(call, rows, cols);
            literal::setElements(call, "src1", rows, cols, left);
            literal::setElements(call, "src2", rows, cols, right);
            ASSERT_EQ(call.run(), vonkOk);
            literal::expectAllDone(call, example);
        }
    }
}

TEST(MatrixSum, PutsAllRowsAndObjectsOnOneAnotherAtStrideZero) {
    for (const char *name : {"vonkAdd_mama_32f", "vonkSub_mama_64f_S2", "vonkAdd_mama_32f_S2"}) {
        SCOPED_TRACE(name);
        Call call(name, 3, 2);
        call["dst"].rowStride = call["dst"].objectStride = 0;
        fill(call);
        ASSERT_EQ(call.run(), vonkOk);
        for (std::uint32_t j = 0; j < 3; ++j) EXPECT_EQ(call.get("dst", 0, 0, j), expected(call, 1, 2, j));
    }
}

// ---- Rounding, infinities, NaNs, zeros

// ---- The roads for aligned and unaligned operands

TEST(MatrixSumAlignment, ChangesNoResult) {
    std::size_t called = 0;
    for (const Function *function : all(hasLanes)) {
        for (const char *offender : {"", "src1", "src2", "dst"})
            for (const literal::Offence &offence : literal::offences)
                for (const std::uint32_t count : {1U, 4U}) {
                    SCOPED_TRACE(function->name + ", " + offender + " is off by " + std::to_string(offence.pointer) +
                                 ", rows by " + std::to_string(offence.rowStride) + ", objects by " +
                                 std::to_string(offence.objectStride));
                    Call call(function->name, 0, count);
                    literal::alignAllBut(call, offender, offence);
                    if (runsAhead(*function) && function->group == "mamT") // has one stride for both
                        call["src2"].rowStride = call["src1"].rowStride;
                    fill(call);
                    ASSERT_EQ(call.run(), vonkOk);
                    literal::expectAllDone(call, example);
                    ++called;
                }
    }
    EXPECT_GT(called, 0U);
}

// ---- Differences that are wrong

// 10 r + c at row r, column c of src1, and zeros: the result tells where its elements come from. As stored.
std::vector<double> origins(std::string_view name, std::uint32_t count) {
    Call call(name, 6, count);
    for (std::uint32_t n = 0; n < call.count(); ++n)
        for (std::uint32_t r = 0; r < 6; ++r)
            for (std::uint32_t c = 0; c < 6; ++c) {
                if (n < call.objectsOf("src1")) call.set("src1", n, r, c, 10.0 * r + c);
                if (n < call.objectsOf("src2")) call.set("src2", n, r, c, 0);
            }
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

// Rows of src2 lie 16 bytes farther apart than those of src1, and still are read a stride of src1 apart by four forms.
TEST(MatrixSumStrides, OfAnArrayServeTheTransposedSingleMatrixOfThreeInLanes) {
    std::size_t borrowing = 0;
    for (const Function *function : all()) {
        if (isTabled(*function) || function->group != "mamT") continue;
        for (const std::uint32_t order : literal::sizesOf(*function, {3})) {
            Call call(function->name, order, 3, literal::spread);
            call["src2"].rowStride += 16;
            fill(call);
            literal::Place seen = call["src2"];
            const bool borrows = runsAhead(*function);
            if (borrows) seen.rowStride = call["src1"].rowStride;
            borrowing += borrows ? 1 : 0;
            std::vector<double> single; // as it is seen
            for (std::uint32_t i = 0; i < order; ++i)
                for (std::uint32_t j = 0; j < order; ++j) single.push_back(call.getAt(seen.address(0, j, i)));
            ASSERT_EQ(call.run(), vonkOk);
            for (std::uint32_t n = 0; n < 3; ++n)
                for (std::uint32_t k = 0; k < order * order; ++k) {
                    const double result = combine(*function, left(n, k / order, k % order), single[k]);
                    const bool narrow = function->type == Type::real32;
                    literal::expectSame(narrow ? static_cast<float>(result) : result,
                                        call.get("dst", n, k / order, k % order), "element " + std::to_string(k));
                }
        }
    }
    EXPECT_EQ(borrowing, 4U);
}

TEST(MatrixSumStrides, OfTheTransposedSingleMatrixOfThreeInLanesMayBeAnything) {
    for (const Function *function : all()) {
        if (!runsAhead(*function) || function->group != "mamT") continue;
        Call call(function->name, 3, 3);
        fill(call);
        call.pass("src2RowStride", 0x7ffffff0);
        ASSERT_EQ(call.run(), vonkOk);
        literal::expectAllDone(call, example);
    }
}

// ---- What is held, and what is loaded ahead

// Object 0 of `dst` lies on the single matrix, which is 100; the array is 1, 10 and 20. Forms that hold the single
// matrix see 100 for the later objects too, the others the result for object 0.
TEST(MatrixSumSingle, IsHeldByFloatsOfThreeAndFourInLanesAndReadAnewByAllOthers) {
    std::size_t holding = 0;
    for (const Function *function : all()) {
        if (!mixesArrayAndSingle(*function)) continue;
        const bool arrayFirst = function->operands[0].array;
        const Operand &single = function->operands[arrayFirst ? 1 : 0];
        const bool holds = hasLanes(*function) && function->order <= 4;
        if (single.transposed && !holds) continue; // element for element it is not the destination
        for (const std::uint32_t order : literal::sizesOf(*function, {1, 4})) {
            Call call(function->name, order, 3);
            call.layOver(single.name);
            literal::setAll(call, single.name, 100);
            literal::setElements(call, arrayFirst ? "src1" : "src2", order, order,
                                 [](std::uint32_t n, auto, auto) { return n == 0 ? 1.0 : 10.0 * n; });
            const auto both = [&](double fromArray, double fromSingle) {
                return arrayFirst ? combine(*function, fromArray, fromSingle)
                                  : combine(*function, fromSingle, fromArray);
            };
            const double first = both(1, 100);
            const double seen = holds ? 100 : first;
            ASSERT_EQ(call.run(), vonkOk);
            literal::expectSame(std::vector<double>(std::size_t{order} * order, first), call.get("dst", 0), "object 0");
            literal::expectSame(std::vector<double>(std::size_t{order} * order, both(10, seen)), call.get("dst", 1),
                                "object 1");
            literal::expectSame(std::vector<double>(std::size_t{order} * order, both(20, seen)), call.get("dst", 2),
                                "object 2");
        }
        holding += holds ? 1 : 0;
    }
    EXPECT_EQ(holding, (4U + 8U) * 2U * 2U); // four groups of sums, eight of differences, two orders, two layouts
}

// Object n of `dst` lies on object n + 1 of the array, which is 1000 times the object's number, counted from 1; the
// single matrix is 1. Who runs ahead has loaded that object by then, everybody else meets the result for object n.
TEST(MatrixSumAhead, LoadsTheNextObjectBeforeThisOneIsStored) {
    std::size_t ahead = 0;
    for (const Function *function : all()) {
        if (function->group != "mam" && function->group != "mamT") continue;
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
                    runsAhead(*function) ? combine(*function, 1000.0 * n + 1000, 1) : combine(*function, 1000, n + 1);
                EXPECT_EQ(call.get("dst", n), std::vector<double>(std::size_t{order} * order, result))
                    << "object " << n;
            }
        }
        ahead += runsAhead(*function) ? 1 : 0;
    }
    EXPECT_EQ(ahead, 8U);
}

const std::array listsAhead{"vonkAdd_mam_32f_3x3_L", "vonkAdd_mamT_32f_3x3_L", "vonkSub_mam_32f_3x3_L",
                            "vonkSub_mamT_32f_3x3_L"};

// The last entry of `dst` is looked up first of all, and of no objects that is the word in front of the list.
TEST(MatrixSumAhead, StoresThatObjectThroughTheEntryInFrontOfTheList) {
    for (const char *name : listsAhead) {
        SCOPED_TRACE(name);
        Call call(name, 3, 2, literal::spread);
        fill(call);
        call["dst"].before = call["dst"].entries[1];
        call["dst"].entries[0] = nullptr;
        call["src1"].entries[1] = nullptr;
        call.pass("count", 0);
        EXPECT_EQ(call.run(), vonkOk);
        call["dst"].entries[0] = call["dst"].entries[1];
        expectDone(call, 0);
    }
}

TEST(MatrixSumAhead, CatchesANullInFrontOfTheListOrAtTheHeadOfTheArray) {
    for (const char *name : listsAhead)
        for (const bool inFront : {true, false}) {
            SCOPED_TRACE(name);
            Call call(name, 3, 2);
            fill(call);
            call.pass("count", 0);
            if (inFront) call["dst"].before = nullptr;
            else call["src1"].entries[0] = nullptr;
            EXPECT_EQ(call.run(), vonkErrNullPtr);
            EXPECT_TRUE(call.changedNothing());
        }
}

// ---- What is tested, and when

TEST(MatrixSumChecks, CountTheEntriesOfATransposedTableByItsOwnRows) {
    for (const char *name : {"vonkAdd_mTm_32f_P", "vonkSub_mTm_64f_P"}) {
        SCOPED_TRACE(name);
        Call call(name, 3); // two rows of three: src1 is stored as three rows of two
        literal::makeRectangular(call, 2, 3);
        literal::setElements(call, "src1", 2, 3, left);
        literal::setElements(call, "src2", 2, 3, right);
        literal::expectNullEntryStops(call, "src1", 4, 2, results(call)); // (2, 0) as stored, (0, 2) of the result
    }
}

} // namespace
