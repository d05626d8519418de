// QR decomposition: factors by hand in every form, the tolerance on the squared norm of a column, shapes other than
// squares, what a failure leaves in `dst` and in the work block, and where wide arithmetic is rounded.
#include "support/family_test.h"

namespace {

using namespace literal::names;
using literal::diagonal;

constexpr const char *section = "qr-decomposition";
constexpr double nan = std::numeric_limits<double>::quiet_NaN();

const std::vector<std::uint32_t> orders{1, 2, 3, 4, 5, 6, 7};

// ---- Factors

void fillUnround(Call &call) {
    for (std::uint32_t n = 0; n < call.count(); ++n)
        call.set("src", n, literal::unroundNumbers(call.rows() * call.size(), n % 3)); // 3 is singular at order 7
}

// run() compares what comes of them.
const literal::Example unround{fillUnround, [](Call &, std::uint32_t) {}};

TEST(QrDecomposition, FactorsUnroundNumbersInEveryFormAndShape) {
    for (const Precision precision : {Precision::bits53, Precision::bits64}) {
        const SettingScope scope({precision, Rounding::nearest});
        for (const Function *function : literal::members(section))
            literal::expectResults(*function, unround, {2, 3, 4, 5, 6, 7, 9});
        for (const Function *function : literal::members(section, isRunTime))
            for (const auto &[rows, cols] :
                 {std::pair{2U, 1U}, {3U, 1U}, {3U, 2U}, {4U, 3U}, {5U, 3U}, {6U, 2U}, {7U, 3U}, {8U, 7U}})
                for (const Geometry geometry : {literal::packed, literal::spread, literal::backward}) {
                    Call call(function->name, cols, 3, geometry, rows);
                    fillUnround(call);
                    EXPECT_EQ(call.run(), vonkOk);
                }
    }
}

// A column of 0 and 2^n below it has the norm 2^n and the reflector 1 -1, and exchanges two rows: beta is -1.
//   0 3    alpha is -4, work is 1 -1; the second column is 3 5: p = (3 - 5) * -1 = 2, so 2 + 3 and -2 + 5
//   4 5    and the first 0 4: p = (0 - 4) * -1 = 4, so 4 + 0 and -4 + 4, over which -1 is stored
// Where all below the diagonal is zero the reflector is 1 and turns the sign of the row.
struct Exchanged {
    std::vector<double> matrix;
    std::vector<double> factored;

    Exchanged(std::uint32_t order, double sign) : matrix(diagonal(order, 1)), factored(diagonal(order, -1)) {
        matrix[0] = 0;
        matrix[1] = 3;
        matrix[order] = 4 * sign;
        matrix[order + 1] = 5 * sign;
        factored.back() = 1;
        factored[0] = 4;
        factored[1] = 5;
        factored[order] = -sign;
        factored[order + 1] = order == 2 ? 3 * sign : -3 * sign;
    }
};

double signOf(std::uint32_t n) { return n % 2 ? -1 : 1; }

void fill(Call &call) {
    for (std::uint32_t n = 0; n < call.count(); ++n)
        if (call.size() == 1) call.set("src", n, {5.0 + n});
        else call.set("src", n, Exchanged(call.size(), signOf(n)).matrix);
}

void expectDone(Call &call, std::uint32_t n) { // zeros of any sign
    if (call.size() == 1) EXPECT_EQ(call.get("dst", n, 0, 0), 5.0 + n);
    else EXPECT_EQ(call.get("dst", n), Exchanged(call.size(), signOf(n)).factored);
}

const literal::Example example{fill, expectDone};

// With a zero on the diagonal the norm is taken negative, and R comes out positive.
TEST(QrDecomposition, ExchangesTwoRowsByHandInEveryForm) {
    for (const Function *function : literal::members(section)) literal::expectResults(*function, example, orders);
}

TEST(QrDecomposition, FactorsInPlaceInEveryForm) {
    for (const Function *function : literal::members(section))
        literal::expectInPlaceResults(*function, example, "src", orders);
}

// The first column has the norm 4, the reflector 1 and four times -1/2, and the length 2: beta is -1. p = -(1 - 6/2) =
// 2 leaves 3 0 0 0 2 of the second column, of which 0 0 0 2 has the reflector 1 0 0 -1.
TEST(QrDecomposition, GoesThroughTheLastColumnOfAMatrixHigherThanWide) {
    for (const Function *function : literal::members(section, isRunTime)) {
        Call call(function->name, 2, 2, literal::spread, 5);
        call.set("src", {0, 1, 2, 1, 2, 1, 2, 1, 2, 3});
        ASSERT_EQ(call.run(), vonkOk);
        for (std::uint32_t n = 0; n < call.count(); ++n)
            EXPECT_EQ(call.get("dst", n), (std::vector<double>{4, 3, -0.5, 2, -0.5, 0, -0.5, 0, -0.5, -1}));
        EXPECT_EQ(call.work(), (std::vector<double>{1, 1, 0, 0, -1}));
    }
}

TEST(QrDecomposition, TakesItsWordsInTheOrderOfTheHeader) {
    const float matrix[6] = {0, 3, 9, 9, 4, 5}; // rows 16 bytes apart
    float work[3] = {7, 7, 7};
    float factor[7] = {}; // rows 8 bytes apart, elements 12
    EXPECT_EQ(callWith("vonkQRDecomp_ma_32f_S2",
                       {wordOf(matrix), 1 << 20, 16, 4, wordOf(work), wordOf(factor), 1 << 20, 8, 12, 2, 2, 1}),
              vonkOk);
    EXPECT_EQ(std::vector<float>(factor, factor + 7), (std::vector<float>{4, 0, -1, 5, 0, 3, 0}));
    EXPECT_EQ(std::vector<float>(work, work + 3), (std::vector<float>{1, -1, 7}));
    // One column of two rows.
    const double column[2] = {0, -2};
    double length[2] = {};
    double wide[2] = {};
    EXPECT_EQ(callWith("vonkQRDecomp_m_64f", {wordOf(column), 8, wordOf(wide), wordOf(length), 8, 1, 2}), vonkOk);
    EXPECT_EQ(std::vector<double>(length, length + 2), (std::vector<double>{2, 1}));
}

// Neither tolerance nor reflector: whatever the number is.
TEST(QrDecomposition, CopiesTheOnlyElementOfOneRowAndLeavesTheWorkAlone) {
    for (const Function *function : literal::members(section, isRunTime))
        for (const double element : {5.0, 0x1p-30, 0.0, -0.0, infinity, nan}) {
            Call call(function->name, 1);
            call.set("src", {element});
            EXPECT_EQ(call.run(), vonkOk);
            literal::expectSame(element, call.get("dst", 0, 0, 0), "dst");
            EXPECT_FALSE(call.changedWork());
        }
}

// What the work block held before is of no account, nor what an earlier object has left there.
TEST(QrDecomposition, KeepsInTheWorkTheReflectorAndAboveItWhatEarlierOnesLeft) {
    for (const auto &[function, order] : literal::sized(section, {3, 7})) {
        Call call(function->name, order, 2);
        std::vector<double> matrix = diagonal(order, 2);
        matrix[order - 1] = 1;
        call.set("src", matrix);
        ASSERT_EQ(call.run(), vonkOk);
        std::vector<double> expected(order, 1.0); // each has left its leading 1
        expected.back() = 0;
        EXPECT_EQ(call.work(), expected);
    }
}

// The destination lies one object ahead of the source: object 1 is made of what object 0 has left.
TEST(QrDecomposition, FinishesEachObjectBeforeItCopiesTheNext) {
    for (const auto &[function, order] : literal::sized(section, {2, 3}, isArray)) {
        Call call(function->name, order, 2);
        call["dst"].moveTo(call["src"].origin + call["src"].objectStride);
        std::vector<double> matrix = diagonal(order, 2);
        call.set("src", 1, matrix);
        matrix[1] = 6;
        call.set("src", 0, matrix);
        ASSERT_EQ(call.run(), vonkOk);
        for (const std::uint32_t n : {0U, 1U}) {
            EXPECT_EQ(call.get("dst", n, 0, 0), -2 * signOf(n));
            EXPECT_EQ(call.get("dst", n, 0, 1), -6 * signOf(n));
        }
    }
}

// ---- The tolerance

// 2^-12 twice has the squared norm 2^-23 and passes; a hair less does not, however far from the noise of doubles. Ahead
// of the column stand zeros below a diagonal of ones, which each reflection turns, and behind it anything.
TEST(QrDecompositionTolerance, IsTwoToTheMinus23OfTheSquaredNormForBothTypesAndEqualPasses) {
    for (const auto &[function, order] : literal::sized(section, {2, 3, 4, 7})) {
        const double half = 0x1p-12, below = literal::nextElement(*function, half, 0);
        const std::vector<std::pair<double, double>> columns{{half, half},  {-half, half}, {half, -half}, {below, half},
                                                             {half, below}, {1e-4, 1e-4},  {0, 0},        {0, 0x1p-11},
                                                             {0x1p-11, 0},  {nan, 1},      {1, nan}};
        for (std::uint32_t k = 0; k + 1 < order; ++k)
            for (const auto &[first, last] : columns) {
                const bool passes = first * first + last * last >= 0x1p-23;
                SCOPED_TRACE("column " + std::to_string(k));
                Call call(function->name, order, 2);
                call.set("src", diagonal(order, 1));
                for (std::uint32_t n = 0; n < call.count(); ++n) {
                    call.set("src", n, k, k, first);
                    call.set("src", n, order - 1, k, last);
                }
                EXPECT_EQ(call.run(), passes ? vonkOk : vonkErrSingular);
                if (passes) continue;
                EXPECT_FALSE(function->array() && call.changedObject(1));
                EXPECT_FALSE(k == 0 && call.changedWork());
                if (k > 0 && std::isnan(first + last)) continue; // times the zeros of reflectors, NaNs spread
                std::vector<double> left = call.get("src", 0), got = call.get("dst", 0); // zeros of any sign
                for (std::uint32_t i = 0; i < k; ++i) left[i * order + i] = -1;
                for (std::size_t e = 0; e < left.size(); ++e)
                    EXPECT_TRUE(got[e] == left[e] || (std::isnan(got[e]) && std::isnan(left[e]))) << "element " << e;
            }
    }
}

TEST(QrDecompositionTolerance, SparesTheLastColumnOfASquare) {
    for (const auto &[function, order] : literal::sized(section, {2, 3, 7}))
        for (const double last : {0.0, 0x1p-60, nan}) {
            Call call(function->name, order);
            call.set("src", diagonal(order, 1));
            call.set("src", 0, order - 1, order - 1, last);
            EXPECT_EQ(call.run(), vonkOk);
            literal::expectSame(last, call.get("dst", 0, order - 1, order - 1), "the last element");
        }
}

TEST(QrDecompositionTolerance, MeetsTheLastColumnOfAHigherMatrix) {
    for (const Function *function : literal::members(section, isRunTime))
        for (const double last : {0x1p-12, 1.0}) {
            Call call(function->name, 2, 1, literal::packed, 3);
            call.set("src", {1, 0, 0, 0, 0, last});
            EXPECT_EQ(call.run(), last == 1 ? vonkOk : vonkErrSingular);
        }
}

// An infinity passes. On the diagonal it makes a reflector of zeros and a NaN in its own place; below it makes a NaN of
// the reflector and so of all columns, which the next one's test finds, if there is one.
TEST(QrDecompositionTolerance, LetsInfinityPass) {
    for (const auto &[function, order] : literal::sized(section, {2, 3, 7}))
        for (const std::uint32_t row : {0U, 1U}) {
            Call call(function->name, order);
            call.set("src", diagonal(order, 1));
            call.set("src", 0, row, 0, infinity);
            EXPECT_EQ(call.run(), row == 0 || order == 2 ? vonkOk : vonkErrSingular);
            EXPECT_TRUE(std::isnan(call.get("dst", 0, 0, 0)));
            if (row == 0) EXPECT_EQ(call.get("dst", 0, 1, 0), 0);
            else EXPECT_TRUE(std::isnan(call.get("dst", 0, 1, 1)));
        }
}

// The last row's reflector is its leading 1 alone and turns the signs of the row; then nothing is left to sum up. Zeros
// below the diagonal do the same in the rows above.
TEST(QrDecompositionTolerance, RefusesEveryMatrixWiderThanHighAfterAsManyReflectionsAsRows) {
    for (const Function *function : literal::members(section, isRunTime))
        for (const auto &[rows, cols] :
             {std::pair{1U, 2U}, {1U, 3U}, {1U, 5U}, {2U, 3U}, {2U, 4U}, {2U, 6U}, {3U, 4U}, {3U, 5U}, {3U, 7U}}) {
            SCOPED_TRACE(std::to_string(rows) + " rows");
            Call call(function->name, cols, 2, literal::packed, rows);
            std::vector<double> matrix, turned;
            for (std::uint32_t k = 0; k < rows * cols; ++k) {
                matrix.push_back(k % cols < k / cols ? 0 : k % cols - k / cols + 1);
                turned.push_back(-matrix.back());
            }
            call.set("src", matrix);
            EXPECT_EQ(call.run(), vonkErrSingular);
            EXPECT_EQ(call.get("dst", 0), turned);
            EXPECT_EQ(call.work(), std::vector<double>(rows, 1.0));
            EXPECT_FALSE(call.strayWrites());
            EXPECT_FALSE(function->array() && call.changedObject(1));
        }
}

TEST(QrDecompositionTolerance, EndsTheCallWithTheObjectsBeforeDoneAndThoseAfterUntouched) {
    for (const auto &[function, order] : literal::sized(section, {2, 5}, isArray)) {
        Call call(function->name, order, 4, literal::spread);
        fill(call);
        call.set("src", 2, literal::zeros(order));
        EXPECT_EQ(call.run(), vonkErrSingular);
        expectDone(call, 0);
        expectDone(call, 1);
        EXPECT_EQ(call.get("dst", 2), literal::zeros(order));
        EXPECT_FALSE(call.changedObject(3));
        EXPECT_FALSE(call.strayWrites());
    }
}

// ---- Rounding

// In a matrix with this first and this last column.
struct Reflected {
    std::vector<double> work;
    double firstOfLastColumn;
};

Reflected reflected(const Function &function, std::uint32_t order, Precision precision,
                    const std::vector<double> &first, const std::vector<double> &last) {
    Call call(function.name, order);
    call.set("src", literal::zeros(order));
    for (std::uint32_t i = 0; i < first.size(); ++i) call.set("src", 0, i, 0, first[i]);
    for (std::uint32_t i = 0; i < last.size(); ++i) call.set("src", 0, i, order - 1, last[i]);
    // The columns between are zero, so that the second one fails and leaves what the first has done.
    EXPECT_EQ(call.run({precision, Rounding::nearest}), order == 2 ? vonkOk : vonkErrSingular);
    return {call.work(), call.get("dst", 0, 0, order - 1)};
}

// In units of 2^-24, the squares of 1 - u and 1 + v add up to 2 - 2^-58.5, with 2 (v - u) = -2^-52 and u^2 + v^2 just
// below 2^-52; and 1 + 4 w, with w = 25 * 2^-31, and the square of 1 - 2 w - 2^-53, to 2 - 0.39 * 2^-52. Both are short
// of the tolerance, and pass because they are stored as 2.
TEST(QrDecompositionRounding, OfDoublesMeetsTheSquaredNorm) {
    const std::vector<double> pair{0x1p-12 * (1 - 180 * 0x1p-34 - 0x1p-53), 0x1p-12 * (1 + 180 * 0x1p-34)};
    const std::vector<double> three{0x1p-12, 5 * 0x1p-27, 0x1p-12 * (1 - 25 * 0x1p-31 - 0x1p-53)};
    for (const auto &[function, order] : literal::sized(section, {2, 3, 4, 5, 6, 7}, isDouble))
        for (const std::vector<double> &column : {pair, three})
            for (const Precision precision : {Precision::bits53, Precision::bits64}) {
                if (column.size() > order) continue;
                SCOPED_TRACE(function->name);
                EXPECT_EQ(reflected(*function, order, precision, column, {}).work[0], 1) << "it failed";
            }
}

// -3/5 is -0x1.33333333333333 / 2. Three times the double next to 1/5 is -0x1.33333333333338 / 2, a tie that goes up.
TEST(QrDecompositionRounding, OfDoublesDoesNotMeetTheReciprocal) {
    for (const auto &[function, order] : literal::sized(section, {3, 4, 5, 6, 7}, isDouble)) {
        SCOPED_TRACE(function->name);
        EXPECT_EQ(reflected(*function, order, Precision::bits64, {0, 3, 4}, {}).work[1], -0x1.3333333333333p-1);
        EXPECT_EQ(reflected(*function, order, Precision::bits53, {0, 3, 4}, {}).work[1], -0x1.3333333333334p-1);
    }
}

struct RoundingCase {
    const char *what;
    std::vector<double> first;
    std::vector<double> last;
    double at64;
    double at53;
};

TEST(QrDecompositionRounding, OfDoublesMeetsLengthAndBetaAndNeitherElementsNorTheProjection) {
    const std::array cases = std::to_array<RoundingCase>({
        // The reflector is 1 1/2, its length 5/4. Beta is stored as -1.6 - 2^-53.3; 5 times that is -8 - 2^-51, which a
        // store would take to -8. With -1.6 to 64 bits it would be -3 as well.
        {"beta is stored, and p is not", {3, 4}, {5}, -0x1.8000000000001p+1, -3},
        // 1 1/3, of the length 10/9, which is stored; if it were not, beta were -9/5 and the result 5 - 9.
        {"the length is stored", {4, 3}, {5}, -0x1.ffffffffffffep+1, -4},
        // 1 3/5, of the length 34/25, which with the stored 3/5 would be one less in the last place. 2 - 4 * 25/34 is
        // -16/17, or -0x1.e1e1e1e1e1e1e / 2.
        {"elements go wide into the length", {8, 15}, {2}, -0x1.e1e1e1e1e1e1cp-1, -0x1.e1e1e1e1e1e2p-1},
        // The reflector 1 -1 exchanges 1 and 2^-60: p = 2^-60 - 1.
        {"p is wide when it is added", {0, 4}, {1, 0x1p-60}, 0x1p-60, 0},
    });
    for (const auto &[function, order] : literal::sized(section, {2, 3, 4, 5, 6, 7}, isDouble))
        for (const RoundingCase &rounding : cases) {
            SCOPED_TRACE(function->name + ", order " + std::to_string(order) + ": " + rounding.what);
            const auto at = [&rounding, &function = *function, order = order](Precision precision) {
                return reflected(function, order, precision, rounding.first, rounding.last).firstOfLastColumn;
            };
            EXPECT_EQ(at(Precision::bits64), rounding.at64);
            EXPECT_EQ(at(Precision::bits53), rounding.at53);
        }
}

// The float next to 1.6 is 0x1.99999a: 5 - 8 * 1.6 shows which one it was. The precision of the 80-bit unit does not
// matter.
TEST(QrDecompositionRounding, OfFloatsIsDoneAtEveryStepAtEveryPrecision) {
    for (const auto &[function, order] : literal::sized(section, {2, 3, 5, 7}, isFloat))
        for (const Precision precision : {Precision::bits53, Precision::bits64}) {
            SCOPED_TRACE(function->name);
            const Reflected got = reflected(*function, order, precision, {3, 4}, {5, 6});
            EXPECT_EQ(got.work[1], 0.5);
            EXPECT_EQ(got.firstOfLastColumn, 5 - 8 * 0x1.99999ap0);
        }
}

// ---- What is tested, and when

TEST(QrDecompositionChecks, LookAtAllPositionsOfMatricesHigherThanWide) {
    for (const Function *function : literal::members(section, isRunTime))
        for (const char *operand : {"src", "dst"})
            for (std::size_t entry = 0; isTabled(*function) && entry < 10; ++entry) {
                SCOPED_TRACE(operand + ("[" + std::to_string(entry) + "]"));
                Call call(function->name, 2, 2, literal::packed, 5);
                call.set("src", literal::unroundNumbers(10, 0));
                call[operand].entries[entry] = nullptr;
                EXPECT_EQ(call.run(), vonkErrNullPtr);
                EXPECT_TRUE(call.changedNothing());
            }
}

} // namespace
