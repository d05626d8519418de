// QR back substitution: solutions by hand in every form, least squares with what is left over in the work block, where
// doubles are rounded, the block copy of vonkQRBackSubst_mv_32f, and the members that go their own way: the word that
// nobody reads, and the lists of doubles that look for their matrix elsewhere.
#include "support/family_test.h"

namespace {

using namespace literal::names;
using literal::diagonal;

constexpr const char *section = "qr-back-substitution";
constexpr double nan = std::numeric_limits<double>::quiet_NaN();

bool isShared(const Function &function) { return function.group == "mva"; } // one matrix for all right-hand sides

// mva and mava of doubles in L look for elements elsewhere than all others: run() compares what they make of bytes that
// nobody has worked out, and there is a case by hand for each.
bool isDisplaced(const Function &function) {
    return isException(function, "qr-solve-column-step") || isException(function, "qr-solve-displaced-triangle");
}

bool isRegular(const Function &function) { return !isDisplaced(function); }

const std::vector<std::uint32_t> orders{1, 2, 3, 4, 5, 6, 7};

// ---- Solutions

// Reflector k is 1 in row k and 1 or -1 in the next, so that it exchanges two elements and turns their signs or does
// not; R has powers of two on its diagonal and whole numbers beside it. No step rounds.
struct System {
    std::uint32_t rows;
    std::uint32_t cols;
    std::uint32_t variant; // of the matrix
    std::uint32_t side;    // of the right-hand side

    double reflector(std::uint32_t i, std::uint32_t k) const { return i != k + 1 ? 0 : (k + variant) % 2 ? -1 : 1; }
    double upper(std::uint32_t i, std::uint32_t j) const {
        if (i == j) return std::array{2.0, -4.0, 1.0}[(i + variant) % 3];
        return static_cast<double>((i * 3 + j * 5 + variant) % 7) - 3;
    }
    double solution(std::uint32_t j) const { return static_cast<double>((j * 5 + side * 3) % 9) - 3.5; }
    std::vector<double> matrix() const {
        std::vector<double> elements;
        for (std::uint32_t i = 0; i < rows; ++i)
            for (std::uint32_t j = 0; j < cols; ++j) elements.push_back(i > j ? reflector(i, j) : upper(i, j));
        return elements;
    }
    std::vector<double> rotated() const { // R times the solution, then what is left over
        std::vector<double> sums(rows);
        for (std::uint32_t i = 0; i < rows; ++i) {
            if (i >= cols) sums[i] = 100.0 + i + side;
            for (std::uint32_t j = i; j < cols; ++j) sums[i] += upper(i, j) * solution(j);
        }
        return sums;
    }
    std::vector<double> rightHandSide() const { // each reflection is its own inverse
        std::vector<double> b = rotated();
        for (std::uint32_t k = rows == cols ? cols - 1 : cols; k-- > 0;) {
            std::swap(b[k], b[k + 1]);
            for (const std::uint32_t i : {k, k + 1}) b[i] *= -reflector(k + 1, k);
        }
        return b;
    }
};

System systemOf(Call &call, std::uint32_t n) {
    return {call.rows(), call.size(), isShared(call.function()) ? 0 : n, n};
}

void fill(Call &call) {
    if (isDisplaced(call.function())) literal::fillWithOrdinaryBytes(call, "src1");
    for (std::uint32_t n = 0; n < call.count(); ++n) {
        const System system = systemOf(call, n);
        if (!isDisplaced(call.function()) && n < call.objectsOf("src1")) call.set("src1", n, system.matrix());
        call.set("src2", n, system.rightHandSide());
    }
}

void expectDone(Call &call, std::uint32_t n) {
    if (isDisplaced(call.function())) return;
    for (std::uint32_t j = 0; j < call.size(); ++j)
        literal::expectSame(systemOf(call, n).solution(j), call.get("dst", n, 0, j), "element " + std::to_string(j));
}

const literal::Example example{fill, expectDone};

TEST(QrBackSubstitution, SolvesInEveryFormAndGeometry) {
    for (const Function *function : literal::members(section)) literal::expectResults(*function, example, orders);
}

const std::vector<std::pair<std::uint32_t, std::uint32_t>> higherThanWide{{2, 1}, {3, 1}, {3, 2},  {4, 3}, {5, 2},
                                                                          {7, 4}, {8, 7}, {13, 2}, {40, 3}};

// The first rows of what the work block holds are R times the solution, the others the residual.
TEST(QrBackSubstitution, SolvesForMatricesHigherThanWideAndLeavesTheResidualInTheWork) {
    for (const Function *function : literal::members(section, isRunTime))
        for (const Geometry geometry : {literal::packed, literal::spread, literal::backward})
            for (const auto &[rows, cols] : higherThanWide) {
                SCOPED_TRACE(std::to_string(rows) + " rows");
                Call call(function->name, cols, 3, geometry, rows);
                fill(call);
                ASSERT_EQ(call.run(), vonkOk);
                literal::expectAllDone(call, example);
                if (isDisplaced(*function)) continue;
                EXPECT_EQ(call.work(), systemOf(call, call.count() - 1).rotated());
            }
}

TEST(QrBackSubstitution, SolvesInPlaceOfTheRightHandSide) {
    for (const Function *function : literal::members(section, isRegular))
        literal::expectInPlaceResults(*function, example, "src2", orders);
    for (const Function *function : literal::members(section, isRunTime)) {
        if (function->array()) continue;
        Call call(function->name, 2, 1, literal::packed, 5);
        call.layOver("src2");
        fill(call);
        ASSERT_EQ(call.run(), vonkOk);
        literal::expectAllDone(call, example);
    }
}

// The reflector 1 -1 exchanges 16 and 10, and R = 4 2 / . 8: 16/8, and (10 - 2 * 2)/4.
TEST(QrBackSubstitution, TakesItsWordsInTheOrderOfTheHeader) {
    const float factor[5] = {4, 2, 9, -1, 8}; // rows 12 bytes apart
    const float side[2] = {16, 10};
    float work[3] = {7, 7, 7};
    float solved[4] = {};
    EXPECT_EQ(
        callWith("vonkQRBackSubst_mv_32f", {wordOf(factor), 12, wordOf(work), wordOf(side), wordOf(solved), 2, 2}),
        vonkOk);
    EXPECT_EQ(std::vector<float>(solved, solved + 4), (std::vector<float>{1.5F, 2, 0, 0}));
    EXPECT_EQ(std::vector<float>(work, work + 3), (std::vector<float>{10, 16, 7}));
    EXPECT_EQ(callWith("vonkQRBackSubst_mva_32f_S2", {wordOf(factor), 12345, 12, 4, wordOf(work), wordOf(side), 1 << 20,
                                                      4, wordOf(solved), 1 << 20, 12, 2, 2, 1}),
              vonkOk);
    EXPECT_EQ(std::vector<float>(solved, solved + 4), (std::vector<float>{1.5F, 2, 0, 2}));
    const double column[3] = {-2, 0, 1}; // one column of three rows, whose reflector exchanges the first and the last
    const double three[3] = {5, 7, 6};
    double wide[3] = {};
    double one = 0;
    EXPECT_EQ(callWith("vonkQRBackSubst_mv_64f", {wordOf(column), 8, wordOf(wide), wordOf(three), wordOf(&one), 1, 3}),
              vonkOk);
    EXPECT_EQ(one, 3);
    EXPECT_EQ(std::vector<double>(wide, wide + 3), (std::vector<double>{-6, 7, -5}));
}

// 5/3 is 13981013.33 * 2^-23 and 7505999378950826.67 * 2^-52; a product with a third would be another number.
TEST(QrBackSubstitution, DividesByTheOnlyElementOfOneRowWithoutAReflection) {
    for (const Function *function : literal::members(section, isRunTime)) {
        if (isException(*function, "qr-solve-displaced-triangle")) continue;
        Call call(function->name, 1, 2);
        call.set("src1", {3});
        call.set("src2", {5});
        ASSERT_EQ(call.run(), vonkOk);
        for (std::uint32_t n = 0; n < call.count(); ++n)
            EXPECT_EQ(call.get("dst", n, 0, 0), isFloat(*function) ? 13981013 * 0x1p-23 : 7505999378950827 * 0x1p-52);
        EXPECT_EQ(call.work(), std::vector<double>{5});
    }
}

// A reflector of zeros turns the sign of its element; the last has none.
TEST(QrBackSubstitution, DividesByZeroWithoutAWord) {
    for (const auto &[function, order] : literal::sized(section, {1, 2, 5}, isRegular))
        for (const auto &[side, expected] : {std::pair{5.0, infinity}, {-5.0, -infinity}, {0.0, nan}}) {
            Call call(function->name, order);
            call.set("src1", diagonal(order, 1));
            call.set("src1", 0, 0, 0, 0);
            call.set("src2", std::vector<double>(order, 0.0));
            call.set("src2", 0, 0, 0, order == 1 ? side : -side);
            EXPECT_EQ(call.run(), vonkOk);
            literal::expectSame(expected, call.get("dst", 0, 0, 0), "the quotient");
        }
}

// ---- Rounding

void fillUnround(Call &call) {
    if (isDisplaced(call.function())) literal::fillWithOrdinaryBytes(call, "src1");
    for (std::uint32_t n = 0; n < call.count(); ++n) {
        if (isRegular(call.function()) && n < call.objectsOf("src1"))
            call.set("src1", n, literal::unroundNumbers(call.rows() * call.size(), n));
        call.set("src2", n, literal::unroundNumbers(call.rows(), n + 7));
    }
}

// run() compares what comes of them.
const literal::Example unround{fillUnround, [](Call &, std::uint32_t) {}};

TEST(QrBackSubstitutionRounding, IsTheSameForUnroundNumbersInEveryForm) {
    for (const Precision precision : {Precision::bits53, Precision::bits64}) {
        const SettingScope scope({precision, Rounding::nearest});
        for (const Function *function : literal::members(section)) literal::expectResults(*function, unround, orders);
        for (const Function *function : literal::members(section, isRunTime))
            for (const auto &[rows, cols] : higherThanWide) {
                Call call(function->name, cols, 3, literal::spread, rows);
                fillUnround(call);
                EXPECT_EQ(call.run(), vonkOk);
            }
    }
}

// The first element of the solution for the reflector 1 v, R = 1 r / . 1 and the right-hand side b. All else is zero;
// the sign of b1 is such that it comes out as the second element.
struct Corner {
    double v, r, b0, b1;
};

double firstOf(const Function &function, std::uint32_t order, Precision precision, const Corner &corner) {
    Call call(function.name, order);
    call.set("src1", diagonal(order, 1));
    call.set("src1", 0, 1, 0, corner.v);
    call.set("src1", 0, 0, 1, corner.r);
    call.set("src2", std::vector<double>(order, 0.0));
    call.set("src2", 0, 0, 0, corner.b0);
    call.set("src2", 0, 0, 1, order == 2 ? corner.b1 : -corner.b1);
    EXPECT_EQ(call.run({precision, Rounding::nearest}), vonkOk);
    return call.get("dst", 0, 0, 0);
}

// Of the reflector 1 1/2, of the length 5/4, beta is -1.6: 5 times that is -8 in 64 bits, and would be -8 - 2^-51 if
// beta were stored. (1 + 2^-25) (1 + 2^-30) in 64 bits has the term 2^-55 that the right-hand side has not.
TEST(QrBackSubstitutionRounding, OfDoublesMeetsNothingButWhatIsStored) {
    constexpr double a = 1 + 0x1p-25, b = 1 + 0x1p-30, ab = 1 + 0x1p-25 + 0x1p-30;
    for (const auto &[function, order] : literal::sized(section, {2, 3, 6}, isRegular)) {
        if (isFloat(*function)) continue;
        SCOPED_TRACE(function->name);
        for (const Precision precision : {Precision::bits53, Precision::bits64}) {
            EXPECT_EQ(firstOf(*function, order, precision, {0.5, 0, 5, 0}), -3);
            EXPECT_EQ(firstOf(*function, order, precision, {0, a, -ab, b}),
                      precision == Precision::bits64 ? -0x1p-55 : 0);
        }
    }
}

// Beta is the float 0x1.99999a, and 3 times that 0x4.ccccd: rounded once only, 3 - 4.8 is 0x1.cccccc. The square of
// 1 + 2^-12 is 1 + 2^-11, and nothing is left of it.
TEST(QrBackSubstitutionRounding, OfFloatsIsDoneAtEveryStepAtEveryPrecision) {
    constexpr double c = 1 + 0x1p-12;
    for (const auto &[function, order] : literal::sized(section, {2, 3, 6}, isFloat))
        for (const Precision precision : {Precision::bits53, Precision::bits64}) {
            SCOPED_TRACE(function->name);
            EXPECT_EQ(firstOf(*function, order, precision, {0.5, 0, 3, 0}), -0x1.ccccdp0);
            EXPECT_EQ(firstOf(*function, order, precision, {0, c, -1 - 0x1p-11, c}), 0);
        }
}

// All products are -0: 0 + -0 is +0, and -0 - +0 is -0; without the 0 in front it would be -0 - -0 = +0. A reflector of
// zeros turns the sign of its element, of which the last has none.
TEST(QrBackSubstitutionRounding, StartsASumFromZero) {
    for (const auto &[function, order] : literal::sized(section, {2, 3, 7}, isRegular)) {
        Call call(function->name, order);
        std::vector<double> matrix = diagonal(order, 1), side(order, -1.0), expected(order, 1.0);
        std::fill_n(matrix.begin() + 1, order - 1, -0.0);
        side.front() = expected.front() = -0.0;
        side.back() = 1;
        call.set("src1", matrix);
        call.set("src2", side);
        ASSERT_EQ(call.run(), vonkOk);
        literal::expectSame(expected, call.get("dst", 0), "dst");
    }
}

// ---- The block copy of one function

// Around the length from which blocks are worth while and at every alignment of both.
TEST(QrBackSubstitutionCopy, AltersNoResultAndNoByteBesideTheWorkAtAnyLengthAndAlignment) {
    for (const char *name : {"vonkQRBackSubst_mv_32f", "vonkQRBackSubst_mv_32f_S2", "vonkQRBackSubst_mv_64f"})
        for (std::uint32_t rows = 2; rows <= 44; ++rows)
            for (const std::uint32_t workOffset : {0U, 4U, 8U, 12U, 1U})
                for (const std::uint32_t sideOffset : {0U, 4U, 8U, 12U, 2U}) {
                    SCOPED_TRACE("rows " + std::to_string(rows) + ", work " + std::to_string(workOffset) +
                                 " and side " + std::to_string(sideOffset) + " bytes off a multiple of 16");
                    Call call(name, 2, 1, literal::packed, rows);
                    call["src2"].moveTo(call["src2"].origin + sideOffset);
                    fillUnround(call);
                    constexpr std::byte untouched{0x55};
                    alignas(16) std::array<std::byte, 512> block{};
                    block.fill(untouched);
                    std::byte *const work = block.data() + 64 + workOffset;
                    call.putWorkAt(work);
                    ASSERT_EQ(call.run(), vonkOk);
                    std::memset(work, 0x55, std::size_t{isFloat(call.function()) ? 4U : 8U} * rows);
                    EXPECT_EQ(std::ranges::count(block, untouched), 512) << "bytes beside the work block";
                }
}

// The work block over the right-hand side: the copy goes forward, element by element, so that one that runs ahead
// repeats what it has written. One element ahead, the first is everywhere; a reflector of zeros turns its sign.
TEST(QrBackSubstitutionCopy, GoesForwardWhereTheWorkOverlapsTheRightHandSide) {
    for (const std::uint32_t rows : {8U, 11U, 12U, 19U, 40U})
        for (const int distance : {-9, -5, -4, -1, 0, 1, 2, 4, 5, 8, 9}) {
            SCOPED_TRACE("rows " + std::to_string(rows) + ", work " + std::to_string(distance) + " elements ahead");
            Call call("vonkQRBackSubst_mv_32f", 1, 1, literal::packed, rows);
            fillUnround(call);
            std::byte *const work = call["src2"].origin + std::ptrdiff_t{4} * distance;
            call.putWorkAt(work);
            ASSERT_EQ(call.run(), vonkOk);
            if (distance != 1) continue;
            std::vector<double> column(rows, 0.0), side(rows, 99.0), expected(rows, 6.0);
            column[0] = 2;
            side[0] = 6;
            expected[0] = -6;
            call.set("src1", column);
            call.set("src2", side);
            ASSERT_EQ(call.run(), vonkOk);
            EXPECT_EQ(call.get("dst", 0, 0, 0), -3);
            for (std::uint32_t i = 0; i < rows; ++i) EXPECT_EQ(call.getAt(work + 4 * i), expected[i]) << i;
        }
}

// ---- Members of their own

// Columns 4 bytes apart share halves: 2 and 1 are high halves, of R = 2 1 + 2^-22 / . 1, and the reflector has a 0.
TEST(QrBackSubstitutionDisplaced, TakesTheColumnsOfOneMatrixFourBytesApart) {
    const std::uint32_t halves[2][3] = {{0, 0x40000000, 0x3ff00000}, {0, 0, 0x3ff00000}};
    const double sides[4] = {-3 - 0x1p-22, 1, -6 - 0x2p-22, 2};
    const double *const sideList[2] = {sides, sides + 2};
    double work[2] = {};
    double solved[4] = {};
    double *const solutionList[2] = {solved, solved + 2};
    EXPECT_EQ(callWith("vonkQRBackSubst_mva_64f_L", {wordOf(halves), 12345, 12, wordOf(work), wordOf(sideList), 0,
                                                     wordOf(solutionList), 0, 2, 2, 2}),
              vonkOk);
    EXPECT_EQ(std::vector<double>(solved, solved + 4), (std::vector<double>{1, 1, 2, 2}));
}

// Of a single column: the element stands 1 byte behind where the row ahead of the matrix would, with rows 16 bytes
// apart.
TEST(QrBackSubstitutionDisplaced, FindsTheTriangleAheadOfTheMatrixWithAMatrixForEach) {
    std::array<std::byte, 64> memory{};
    std::byte *const matrix = memory.data() + 24;
    const double found = 8;
    const double own = 3;
    std::memcpy(matrix + 1 - 16, &found, 8);
    std::memcpy(matrix, &own, 8);
    const std::byte *const matrices[1] = {matrix - 16};
    const double side[1] = {20};
    const double *const sides[1] = {side};
    double work[1] = {};
    double solved[1] = {};
    double *const solutions[1] = {solved};
    EXPECT_EQ(callWith("vonkQRBackSubst_mava_64f_L",
                       {wordOf(matrices), 16, 16, wordOf(work), wordOf(sides), 0, wordOf(solutions), 0, 1, 1, 1}),
              vonkOk);
    EXPECT_EQ(solved[0], 2.5);
}

// ---- What is tested, and when

// Of the right-hand side as many as the solution has: those behind are used, and trusted.
TEST(QrBackSubstitutionChecks, LookAtNoMorePositionsOfTheRightHandSideThanTheSolutionHas) {
    constexpr std::uint32_t rows = 5;
    constexpr std::uint32_t cols = 2;
    for (const Function *function : literal::members(section, isRunTime)) {
        if (!isTabled(*function)) continue;
        for (std::size_t entry = 0; entry < rows; ++entry) {
            SCOPED_TRACE("src2[" + std::to_string(entry) + "]");
            Call call(function->name, cols, 2, literal::packed, rows);
            fill(call);
            const std::int32_t status = literal::runThroughNull(call, "src2", entry);
            EXPECT_EQ(status, entry < cols ? vonkErrNullPtr : vonkOk);
            if (entry < cols) EXPECT_TRUE(call.changedNothing());
            else literal::expectAllDone(call, example);
        }
        for (std::size_t entry = 0; entry < rows * cols; ++entry) {
            SCOPED_TRACE("src1[" + std::to_string(entry) + "]");
            Call call(function->name, cols, 2, literal::packed, rows);
            fill(call);
            call["src1"].entries[entry] = nullptr;
            EXPECT_EQ(call.run(), vonkErrNullPtr);
            EXPECT_TRUE(call.changedNothing());
        }
    }
}

} // namespace
