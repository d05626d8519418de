// Cholesky decomposition: factors by hand in every form, the test of the pivots and what a failure leaves, where the
// wide arithmetic is rounded, and the members that go their own way: the first pivot that may be a NaN, strides of
// whole elements, the count that is never negative in tables.
#include "support/family_test.h"

namespace {

using namespace literal::names;
using literal::diagonal;

constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr double untouched = 99;
constexpr const char *section = "cholesky-decomposition";

bool hasElementStrides(const Function &function) { return function.layout == "S2" || function.layout == "LS2"; }

// No loop and no look at `dst`.
bool isStraight(const Function &function, std::uint32_t order) {
    return order >= 3 && order <= 6 && !isTabled(function);
}

const std::vector<std::uint32_t> orders{1, 2, 3, 4, 5, 6, 7, 8};

// Strides of whole elements, which all forms take as they stand.
const std::vector<Geometry> geometries{literal::packed, {1, 8, false}, {-1, 8, false}};

// ---- Factors

// A factor of whole numbers with powers of two on its diagonal: no step that leads to it rounds.
double lower(std::uint32_t variant, std::uint32_t i, std::uint32_t j) {
    if (i == j) return std::array{2.0, 1.0, 4.0}[(i + variant) % 3];
    return static_cast<double>((i * 3 + j * 5 + variant) % 7) - 3;
}

double square(std::uint32_t variant, std::uint32_t i, std::uint32_t j) {
    double sum = 0;
    for (std::uint32_t k = 0; k <= j; ++k) sum += lower(variant, i, k) * lower(variant, j, k);
    return sum;
}

// Above the diagonal nothing is a number, and `dst` is marked.
void setMatrix(Call &call, std::uint32_t n, std::uint32_t variant) {
    call.set("dst", n, std::vector<double>(std::size_t{call.size()} * call.size(), untouched));
    for (std::uint32_t i = 0; i < call.size(); ++i)
        for (std::uint32_t j = 0; j < call.size(); ++j)
            if (j <= i) call.set("src", n, i, j, square(variant, i, j));
            else if (call["src"].origin != call["dst"].origin) call.set("src", n, i, j, nan);
}

void fill(Call &call) {
    for (std::uint32_t n = 0; n < call.count(); ++n) setMatrix(call, n, n);
}

// The first rows of the factor and so many elements of the next one; everything else is as it was.
void expectFactor(Call &call, std::uint32_t n, std::uint32_t variant, std::uint32_t rows, std::uint32_t more = 0) {
    std::vector<double> expected;
    for (std::uint32_t i = 0; i < call.size(); ++i)
        for (std::uint32_t j = 0; j < call.size(); ++j)
            if (j > i || i > rows || (i == rows && j >= more)) expected.push_back(untouched);
            else expected.push_back(i == j ? 1 / lower(variant, i, i) : lower(variant, i, j));
    literal::expectSame(expected, call.get("dst", n), "dst of object " + std::to_string(n));
}

void expectDone(Call &call, std::uint32_t n) { expectFactor(call, n, n, call.size()); }

const literal::Example example{fill, expectDone};

TEST(CholeskyDecomposition, LeavesTheLowerFactorWithReciprocalsOnItsDiagonalInEveryForm) {
    for (const Function *function : literal::members(section))
        literal::expectResults(*function, example, orders, geometries);
}

TEST(CholeskyDecomposition, FactorsInPlaceInEveryForm) {
    for (const Function *function : literal::members(section))
        literal::expectInPlaceResults(*function, example, "src", orders, geometries);
}

// 4 . / 2 10: roots 2 and 3, of which the reciprocals are stored, and 2 / 2 = 1.
TEST(CholeskyDecomposition, TakesItsWordsInTheOrderOfTheHeader) {
    const float matrix[5] = {4, 0, 0, 2, 5}; // rows 12 bytes apart
    float factor[7] = {};                    // rows 8 bytes apart, elements 12
    using literal::wordOf;
    EXPECT_EQ(literal::callWith("vonkCholeskyDecomp_ma_32f_S2",
                                {wordOf(matrix), 1 << 20, 12, 4, wordOf(factor), 1 << 20, 8, 12, 2, 1}),
              vonkOk);
    EXPECT_EQ(std::vector<float>(factor, factor + 7), (std::vector<float>{0.5F, 0, 1, 0, 0, 0.5F, 0}));
}

// Pointers of positions above the diagonal may be anything.
TEST(CholeskyDecomposition, FollowsNoPointerAboveTheDiagonal) {
    for (const auto &[function, order] : literal::sized(section, {2, 3, 7}, isTabled))
        for (const std::uintptr_t garbage : {std::uintptr_t{0}, std::uintptr_t{64}, ~std::uintptr_t{0}}) {
            Call call(function->name, order, 2);
            fill(call);
            const std::array kept{call["src"].entries, call["dst"].entries};
            for (const char *operand : {"src", "dst"})
                for (std::uint32_t i = 0; i < order; ++i)
                    for (std::uint32_t j = i + 1; j < order; ++j)
                        call[operand].entries[i * order + j] = reinterpret_cast<std::byte *>(garbage);
            EXPECT_EQ(call.run(), vonkOk);
            call["src"].entries = kept[0];
            call["dst"].entries = kept[1];
            for (std::uint32_t n = 0; n < call.count(); ++n) expectDone(call, n);
        }
}

// The destination lies one object ahead of the source: what object 0 leaves of 16 is 1/4, of which object 1 makes 2.
TEST(CholeskyDecomposition, FinishesEachObjectBeforeTheNext) {
    for (const auto &[function, order] : literal::sized(section, {1, 3, 7}, isArray)) {
        Call call(function->name, order, 2);
        call["dst"].moveTo(call["src"].origin + call["src"].objectStride);
        call.set("src", 0, diagonal(order, 16));
        ASSERT_EQ(call.run(), vonkOk);
        for (std::uint32_t i = 0; i < order; ++i) {
            EXPECT_EQ(call.get("dst", 0, i, i), 0.25);
            EXPECT_EQ(call.get("dst", 1, i, i), 2);
        }
    }
}

// ---- Pivots

// A diagonal of fours in which one element is the pivot. It fails, or passes and leaves the reciprocal of its root.
void expectPivot(const Function &function, std::uint32_t order, std::uint32_t k, double pivot,
                 std::optional<double> reciprocal) {
    SCOPED_TRACE("pivot " + std::to_string(k) + " is " + std::to_string(pivot));
    Call call(function.name, order);
    call.set("dst", std::vector<double>(std::size_t{order} * order, untouched));
    call.set("src", diagonal(order, 4));
    call.set("src", 0, k, k, pivot);
    EXPECT_EQ(call.run(), reciprocal ? vonkOk : vonkErrNotPosDef);
    std::vector<double> left(std::size_t{order} * order, untouched);
    for (std::uint32_t i = 0; i < (reciprocal ? order : k + 1); ++i) {
        std::fill_n(left.begin() + i * order, i, 0.0);
        if (i != k) left[i * order + i] = 0.5;
    }
    if (reciprocal) left[k * order + k] = *reciprocal;
    literal::expectSame(left, call.get("dst", 0), "dst");
    EXPECT_FALSE(call.strayWrites());
}

// The first pivot of doubles of order 3 and 4 is tested the other way round, but through tables.
bool letsNanPass(const Function &function, std::uint32_t order, std::uint32_t k) {
    return isDouble(function) && isStraight(function, order) && order <= 4 && k == 0;
}

TEST(CholeskyDecompositionPivots, PassIfGreaterThanZeroWhateverTheirSize) {
    for (const auto &[function, order] : literal::sized(section, {1, 2, 3, 4, 5, 6, 7})) {
        const bool narrow = isFloat(*function);
        const double least = narrow ? 0x1p-148 : 0x1p-1074;
        for (std::uint32_t k = 0; k < order; ++k) {
            expectPivot(*function, order, k, least, narrow ? 0x1p74 : 0x1p537);
            expectPivot(*function, order, k, 0x1p-100, 0x1p50);
            expectPivot(*function, order, k, 0x1p100, 0x1p-50);
            expectPivot(*function, order, k, infinity, 0.0);
            for (const double failing : {0.0, -0.0, -least, -4.0, -infinity, nan})
                if (!std::isnan(failing) || !letsNanPass(*function, order, k))
                    expectPivot(*function, order, k, failing, std::nullopt);
        }
    }
}

// It is followed by the element below it, and the next pivot fails.
TEST(CholeskyDecompositionPivots, MayBeNoNumberAtFirstForDoublesOfOrderThreeAndFour) {
    std::size_t passing = 0;
    for (const auto &[function, order] : literal::sized(section, {3, 4})) {
        if (!letsNanPass(*function, order, 0)) continue;
        ++passing;
        Call call(function->name, order, 2);
        fill(call);
        call.set("src", 0, 0, 0, nan);
        EXPECT_EQ(call.run(), vonkErrNotPosDef);
        std::vector<double> left(std::size_t{order} * order, untouched);
        left[0] = left[order] = nan;
        literal::expectSame(left, call.get("dst", 0), "dst");
        EXPECT_FALSE(function->array() && call.changedObject(1));
    }
    EXPECT_EQ(passing, 6U * 4U); // two layouts of one object, four of arrays; run-time size at two orders, two sizes
}

// Nothing of the matrix but the pivot itself is at fault: 1 - 1 * 1 = 0 in row 1, and further down likewise.
TEST(CholeskyDecompositionPivots, FailAtExactlyZeroWithTheRowLeftOfThemStored) {
    for (const auto &[function, order] : literal::sized(section, {2, 3, 7}))
        for (std::uint32_t k = 1; k < order; ++k) {
            SCOPED_TRACE("row " + std::to_string(k));
            Call call(function->name, order);
            setMatrix(call, 0, 1);
            const double root = lower(1, k, k);
            call.set("src", 0, k, k, square(1, k, k) - root * root);
            EXPECT_EQ(call.run(), vonkErrNotPosDef);
            expectFactor(call, 0, 1, k, k);
        }
}

TEST(CholeskyDecompositionPivots, EndTheCallWithTheObjectsBeforeDoneAndThoseAfterUntouched) {
    for (const auto &[function, order] : literal::sized(section, {2, 5, 7}, isArray)) {
        Call call(function->name, order, 4, geometries[1]);
        fill(call);
        call.set("src", 2, 1, 1, -1);
        EXPECT_EQ(call.run(), vonkErrNotPosDef);
        expectDone(call, 0);
        expectDone(call, 1);
        expectFactor(call, 2, 2, 1, 1);
        EXPECT_FALSE(call.changedObject(3));
        EXPECT_FALSE(call.strayWrites());
    }
}

// ---- Rounding

// 1/sqrt(7) is 12682383.21 * 2^-25. The float next to sqrt(7) is 11097085 * 2^-22, a little too small, and 1 over it is
// 12682383.56 * 2^-25.
TEST(CholeskyDecompositionRounding, OfAFloatReciprocalIsOneStepButInTablesTwo) {
    for (const auto &[function, order] : literal::sized(section, {1, 2, 3, 7}, isFloat))
        for (const Precision precision : {Precision::bits53, Precision::bits64}) {
            Call call(function->name, order);
            call.set("src", diagonal(order, 7));
            ASSERT_EQ(call.run({precision, Rounding::nearest}), vonkOk);
            for (std::uint32_t i = 0; i < order; ++i)
                EXPECT_EQ(call.get("dst", 0, i, i), (isTabled(*function) ? 12682384 : 12682383) * 0x1p-25);
        }
}

// Of a matrix with these elements of the factor left of this pivot, and ones on the diagonal above, what becomes of
// the pivot: 1 over the root of what is left of it.
double reciprocalOf(const Function &function, std::uint32_t order, const std::vector<double> &left, double pivot,
                    Precision precision = Precision::bits64) {
    const auto row = static_cast<std::uint32_t>(left.size());
    Call call(function.name, order);
    call.set("src", diagonal(order, 1));
    for (std::uint32_t j = 0; j < row; ++j) call.set("src", 0, row, j, left[j]);
    call.set("src", 0, row, row, pivot);
    EXPECT_EQ(call.run({precision, Rounding::nearest}), vonkOk);
    return call.get("dst", 0, row, row);
}

// (1 + 2^-12)^2 = 1 + 2^-11 + 2^-24 is rounded to 1 + 2^-11 ahead of the difference: 2^-22 is left of 1 + 2^-11 +
// 2^-22, and 3 * 2^-24 would be if it were not.
TEST(CholeskyDecompositionRounding, OfFloatsIsDoneAtEveryStep) {
    for (const auto &[function, order] : literal::sized(section, {2, 3, 7}, isFloat)) {
        SCOPED_TRACE(function->name);
        EXPECT_EQ(reciprocalOf(*function, order, {1 + 0x1p-12}, 1 + 0x1p-11 + 0x1p-22), 0x1p11);
        if (order < 4) continue;
        // 2^-24 is half a last place of 1 + 2^-22, which has an even one: it is lost there twice, not added up.
        EXPECT_EQ(reciprocalOf(*function, order, {0x1p-12, 0x1p-12, 1}, 1 + 0x1p-22), 0x1p11);
    }
}

// a * a = 1 + 2^-26 + 2^-54 in 55 bits. Taken first from the pivot it leaves 1 + 2^-19 + 2^-40 + 2^-50 - 2^-54, which
// doubles round to 1 + 2^-19 + 2^-40 + 2^-50. b * b = 1 + 2^-19 + 2^-40 is taken last: 2^-50 - 2^-54 or 2^-50 is left.
constexpr double a = 1 + 0x1p-27;
constexpr double b = 1 + 0x1p-20;
constexpr double sumOfSquares = 2 + 0x1p-26 + 0x1p-19 + 0x1p-40 + 0x1p-50;

double fifteenth() { return static_cast<double>(0x1p27L / std::sqrt(15.0L)); }

TEST(CholeskyDecompositionRounding, OfDoublesComesAfterThePairsInTheGeneralLoopAndNowhereElse) {
    ASSERT_NE(fifteenth(), 0x1p25);
    const std::array cases = std::to_array<std::pair<std::vector<double>, bool>>({
        {{a, b}, false}, // within a pair nothing is rounded
        {{a, 0, b}, true},
        {{0, a, b}, true},
        {{a, 0, b, 0}, false}, // two pairs run through without
        {{a, 0, 0, 0, b}, true},
    });
    for (const auto &[function, order] : literal::sized(section, {2, 3, 4, 5, 6, 7, 8}, isDouble)) {
        SCOPED_TRACE(function->name + ", order " + std::to_string(order));
        // A product is not rounded: 2^-52 - 2^-54 = 3 * 2^-54 is left and not 2^-52.
        EXPECT_EQ(reciprocalOf(*function, order, {a}, 1 + 0x1p-26 + 0x1p-52),
                  static_cast<double>(0x1p27L / std::sqrt(3.0L)));
        EXPECT_EQ(reciprocalOf(*function, order, {a}, 1 + 0x1p-26 + 0x1p-52, Precision::bits53), 0x1p26);
        for (const auto &[left, roundsInLoops] : cases) {
            if (left.size() >= order) continue;
            EXPECT_EQ(reciprocalOf(*function, order, left, sumOfSquares),
                      roundsInLoops && !isStraight(*function, order) ? 0x1p25 : fifteenth());
            EXPECT_EQ(reciprocalOf(*function, order, left, sumOfSquares, Precision::bits53), 0x1p25);
        }
    }
}

// 2^1023 * 2^511 leaves the range of doubles. Behind an odd product what is left, -2^1534, goes wide into the
// multiplication by 2^-511; behind a pair it is stored as infinity first. The row's own pivot fails afterwards.
TEST(CholeskyDecompositionRounding, OfDoublesBehindAPairShowsInTheRange) {
    for (const auto &[function, order] : literal::sized(section, {4, 5, 7}, isDouble))
        for (const Precision precision : {Precision::bits53, Precision::bits64})
            for (const std::uint32_t column : {1U, 2U}) {
                if (order < 4) continue;
                Call call(function->name, order);
                call.set("src", diagonal(order, 1));
                call.set("src", 0, column, 0, 0x1p511);
                call.set("src", 0, column, column, 0x1p1023);
                call.set("src", 0, column + 1, 0, 0x1p1023);
                EXPECT_EQ(call.run({precision, Rounding::nearest}), vonkErrNotPosDef);
                const bool rounds = column == 2 && !isStraight(*function, order);
                EXPECT_EQ(call.get("dst", 0, column + 1, column), rounds ? -infinity : -0x1p1023);
            }
}

// 5/3 is 7505999378950826.67 * 2^-52, and 5 times the stored 1/3 is 826.25 * 2^-52. Of 3, the square of 5/3 leaves 2/9,
// whose reciprocal root is 3/sqrt(2); the square of either stored number leaves something else.
TEST(CholeskyDecompositionRounding, OfAFactorThatIsUsedAgainIsLeftOutInTheStraightForms) {
    for (const auto &[function, order] : literal::sized(section, {2, 3, 4, 5, 6, 7}, isDouble)) {
        SCOPED_TRACE(function->name + ", order " + std::to_string(order));
        Call call(function->name, order);
        call.set("src", diagonal(order, 9));
        call.set("src", 0, 1, 0, 5);
        call.set("src", 0, 1, 1, 3);
        ASSERT_EQ(call.run(), vonkOk);
        const bool straight = isStraight(*function, order);
        EXPECT_EQ(call.get("dst", 0, 1, 0), (straight ? 7505999378950827 : 7505999378950826) * 0x1p-52);
        EXPECT_EQ(call.get("dst", 0, 1, 1) == static_cast<double>(3 / std::sqrt(2.0L)), straight);
    }
}

// ---- Strides

// Without the bytes that make no whole element, also of a stride that goes back: it is cut downwards.
TEST(CholeskyDecompositionStrides, FromElementToElementAreCutToWholeElementsInTheStraightForms) {
    std::size_t cut = 0;
    for (const auto &[function, order] : literal::sized(section, {3, 4, 5, 6}, hasElementStrides))
        for (const Geometry geometry : geometries)
            for (const int surplus : {1, 2, 3, 7}) {
                Call call(function->name, order, 2, geometry);
                if (surplus >= call["src"].elementSize) continue;
                SCOPED_TRACE("surplus " + std::to_string(surplus));
                ++cut;
                fill(call);
                call.pass("srcElemStride", static_cast<std::uint32_t>(call["src"].elementStride + surplus));
                call.pass("dstElemStride", static_cast<std::uint32_t>(call["dst"].elementStride + surplus));
                ASSERT_EQ(call.run(), vonkOk);
                literal::expectAllDone(call, example);
            }
    EXPECT_EQ(cut,
              3U * 8U * 3U * (3U + 4U)); // S2 of one object, S2 and LS2; orders; geometries; surpluses of each type
}

TEST(CholeskyDecompositionStrides, AreTakenInBytesInAllOthers) {
    for (const Function *function : literal::members(section)) {
        if (hasElementStrides(*function) && function->order != 0) continue;
        const std::vector<std::uint32_t> others =
            hasElementStrides(*function) ? std::vector<std::uint32_t>{1, 2, 7} : orders;
        literal::expectResults(*function, example, others, {literal::spread, literal::backward});
    }
}

// ---- Reciprocal roots of arrays, which are worked in lanes and filtered

// The diagonals of matrices, one after the other, and their reciprocal roots.
void expectReciprocalRoots(const std::vector<float> &diagonals) {
    const std::size_t count = diagonals.size() / 3;
    std::vector<float> matrices(9 * count), factors(9 * count);
    for (std::size_t k = 0; k < 3 * count; ++k) matrices[k / 3 * 9 + k % 3 * 4] = diagonals[k];
    ASSERT_EQ(vonkCholeskyDecomp_ma_32f_3x3(matrices.data(), 36, 12, factors.data(), 36, 12,
                                            static_cast<std::int32_t>(count)),
              vonkOk);
    for (std::size_t k = 0; k < 3 * count; ++k) {
        const float s = diagonals[k], root = factors[k / 3 * 9 + k % 3 * 4];
        ASSERT_EQ(root, static_cast<float>(1.0L / __builtin_sqrtl(s))) << s;
    }
}

TEST(CholeskyOfManyFloats, RoundsTheReciprocalRootOfEveryFloatBetween1And4Once) {
    constexpr std::size_t atOnce = 3 << 14, floats = 1 << 24;
    for (const Precision precision : {Precision::bits53, Precision::bits64}) {
        const SettingScope scope({precision, Rounding::nearest});
        std::vector<float> diagonals(atOnce, 1);
        for (std::size_t first = 0; first < floats; first += atOnce) {
            for (std::size_t k = 0; k < atOnce; ++k)
                diagonals[k] = std::bit_cast<float>(0x3f800000U + static_cast<std::uint32_t>((first + k) % floats));
            expectReciprocalRoots(diagonals);
            if (testing::Test::HasFatalFailure()) return;
        }
    }
}

TEST(CholeskyOfManyFloats, RoundsReciprocalRootsOverTheWholeRangeOnce) {
    std::vector<float> diagonals;
    for (std::uint32_t exponent = 0; exponent < 255; ++exponent) // 0: subnormal
        for (std::uint32_t k = 0; k < 96; ++k)
            diagonals.push_back(
                std::bit_cast<float>(exponent << 23 | (k * 0x2aaab7U + exponent * 0x12347U + 1) % 0x800000U));
    expectReciprocalRoots(diagonals);
}

// ---- What is tested, and when

// All other forms take a negative count for none.
TEST(CholeskyDecompositionChecks, TakeEveryCountForOneOfObjectsInTables) {
    for (const auto &[function, order] : literal::sized(section, {3}, isArray))
        for (const std::uint32_t count : {0x80000000U, 0xffffffffU}) {
            if (!isTabled(*function)) continue;
            Call call(function->name, order, 2);
            fill(call);
            call.set("src", 1, 0, 0, -1); // object 1 fails, however many there are
            call.pass("count", count);
            EXPECT_EQ(call.run(), vonkErrNotPosDef);
            expectDone(call, 0);
        }
}

// The object that an array has at address 0, here the last.
TEST(CholeskyDecompositionChecks, StopAtTheObjectAtAddressZero) {
    constexpr std::int32_t apart = 1 << 24;
    for (const std::uint32_t count : {2U, 4U, 8U}) {
        const literal::PagesDownToNull matrices(apart, count - 1);
        for (std::size_t n = 0; n + 1 < count; ++n)
            for (std::size_t i = 0; i < 3; ++i) matrices[n][4 * i] = 4;
        std::vector<float> factors(std::size_t{9} * count, -1);
        EXPECT_EQ(vonkCholeskyDecomp_ma_32f_3x3(matrices[0], -apart, 12, factors.data(), 36, 12,
                                                static_cast<std::int32_t>(count)),
                  vonkErrNullPtr);
        for (std::size_t n = 0; n < count; ++n)
            for (std::size_t i = 0; i < 3; ++i) EXPECT_EQ(factors[9 * n + 4 * i], n + 1 < count ? 0.5F : -1);
    }
}

} // namespace
