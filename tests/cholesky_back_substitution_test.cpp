// Cholesky back substitution: solutions by hand in every form, the order in which products are taken away, where sums
// are rounded, and what goes its own way: objects that lead to null are passed over, a count of zero is refused, and
// sizes may be negative.
#include "support/family_test.h"

namespace {

using namespace literal::names;

constexpr double nan = std::numeric_limits<double>::quiet_NaN();

std::vector<const Function *> all(bool (*wanted)(const Function &) = isAny) {
    return literal::members("cholesky-back-substitution", wanted);
}

bool isInTable(const Function &function) { return catalogue::isTable(function.operands[0].layout); }
bool isShared(const Function &function) { return function.group == "mva"; } // one matrix for all right-hand sides

const std::vector<std::uint32_t> orders{1, 2, 3, 4, 5, 6, 7};

// ---- Solutions

// Whole numbers below a diagonal of powers of two, so that no step rounds.
double lower(std::uint32_t variant, std::uint32_t i, std::uint32_t j) {
    if (i == j) return std::array{2.0, 1.0, 4.0}[(i + variant) % 3];
    return static_cast<double>((i * 3 + j * 5 + variant) % 5) - 2;
}

double solution(std::uint32_t n, std::uint32_t i) { return static_cast<double>((i * 5 + n * 3) % 7) - 3.5; }

// L times what its transpose makes of the solution.
std::vector<double> rightHandSide(const Function &function, std::uint32_t order, std::uint32_t n) {
    const std::uint32_t variant = isShared(function) ? 0 : n;
    std::vector<double> between(order);
    for (std::uint32_t i = 0; i < order; ++i)
        for (std::uint32_t k = i; k < order; ++k) between[i] += lower(variant, k, i) * solution(n, k);
    std::vector<double> side(order);
    for (std::uint32_t i = 0; i < order; ++i)
        for (std::uint32_t k = 0; k <= i; ++k) side[i] += lower(variant, i, k) * between[k];
    return side;
}

// Above the diagonal nothing is a number.
void fill(Call &call) {
    for (std::uint32_t n = 0; n < call.objectsOf("src1"); ++n)
        for (std::uint32_t i = 0; i < call.size(); ++i)
            for (std::uint32_t j = 0; j < call.size(); ++j)
                call.set("src1", n, i, j, j > i ? nan : i == j ? 1 / lower(n, i, i) : lower(n, i, j));
    for (std::uint32_t n = 0; n < call.count(); ++n)
        call.set("src2", n, rightHandSide(call.function(), call.size(), n));
}

void expectDone(Call &call, std::uint32_t n) {
    for (std::uint32_t i = 0; i < call.size(); ++i)
        literal::expectSame(solution(n, i), call.get("dst", n, 0, i), "element " + std::to_string(i));
}

const literal::Example example{fill, expectDone};

TEST(CholeskyBackSubstitution, SolvesInEveryFormAndGeometry) {
    for (const Function *function : all()) literal::expectResults(*function, example, orders);
}

TEST(CholeskyBackSubstitution, SolvesInPlaceInEveryForm) {
    for (const Function *function : all()) literal::expectInPlaceResults(*function, example, "src2", orders);
}

// L = 2 . / 1 4, stored as 1/2 . / 1 1/4. b = 8 28: y = 4 6; x = 6/4 and (4 - 1.5)/2.
TEST(CholeskyBackSubstitution, TakesItsWordsInTheOrderOfTheHeader) {
    using literal::wordOf;
    const float factor[5] = {0.5F, -1, -1, 1, 0.25F}; // rows 12 bytes apart
    const float side[2] = {8, 28};
    float solved[4] = {};
    EXPECT_EQ(literal::callWith("vonkCholeskyBackSubst_mv_32f", {wordOf(factor), 12, wordOf(side), wordOf(solved), 2}),
              vonkOk);
    EXPECT_EQ(std::vector<float>(solved, solved + 4), (std::vector<float>{1.25F, 1.5F, 0, 0}));
    EXPECT_EQ(literal::callWith("vonkCholeskyBackSubst_mva_32f_S2",
                                {wordOf(factor), 12, 4, wordOf(side), 1 << 20, 4, wordOf(solved), 1 << 20, 12, 2, 1}),
              vonkOk);
    EXPECT_EQ(std::vector<float>(solved, solved + 4), (std::vector<float>{1.25F, 1.5F, 0, 1.5F}));
}

// In lists of right-hand sides the shared matrix is no list, and has neither a shift nor a word that nobody reads.
TEST(CholeskyBackSubstitution, TakesTheSharedMatrixOfListsByAPlainPointer) {
    using literal::wordOf;
    const double factor[4] = {0.5, nan, 1, 0.25};
    const double sides[4] = {8, 28, 4, 2}; // the second: y = 2 0, x = 1 0
    const double *const sideList[2] = {sides, sides + 2};
    double solved[4] = {};
    double *const solutionList[2] = {solved + 2, solved};
    EXPECT_EQ(literal::callWith("vonkCholeskyBackSubst_mva_64f_L",
                                {wordOf(factor), 16, wordOf(sideList), 0, wordOf(solutionList), 0, 2, 2}),
              vonkOk);
    EXPECT_EQ(std::vector<double>(solved, solved + 4), (std::vector<double>{1, 0, 1.25, 1.5}));
}

// 4 2 / 2 10 has the factor 2 . / 1 3, of which 1/3 is not to be had exactly: at 53 bits all of it is plain.
TEST(CholeskyBackSubstitution, SolvesWithWhatADecompositionLeaves) {
    using literal::wordOf;
    const double matrix[4] = {4, nan, 2, 10};
    const double side[2] = {8, 22};
    double factor[4] = {};
    double solved[2] = {};
    const SettingScope scope({Precision::bits53, Rounding::nearest});
    ASSERT_EQ(literal::callWith("vonkCholeskyDecomp_m_64f", {wordOf(matrix), 16, wordOf(factor), 16, 2}), vonkOk);
    ASSERT_EQ(literal::callWith("vonkCholeskyBackSubst_mv_64f", {wordOf(factor), 16, wordOf(side), wordOf(solved), 2}),
              vonkOk);
    const double third = 1.0 / 3;
    const double second = (22 - 1.0 * 4) * third * third;
    EXPECT_EQ(solved[1], second);
    EXPECT_EQ(solved[0], (4 - second) * 0.5);
}

TEST(CholeskyBackSubstitution, FollowsNoPointerAboveTheDiagonal) {
    for (const Function *function : all()) {
        if (!isInTable(*function)) continue;
        for (const std::uint32_t order : literal::sizesOf(*function, {2, 5}))
            for (const std::uintptr_t garbage : {std::uintptr_t{0}, ~std::uintptr_t{0}}) {
                Call call(function->name, order, 2);
                fill(call);
                for (std::uint32_t i = 0; i < order; ++i)
                    for (std::uint32_t j = i + 1; j < order; ++j)
                        call["src1"].entries[i * order + j] = reinterpret_cast<std::byte *>(garbage);
                EXPECT_EQ(call.run(), vonkOk);
                literal::expectAllDone(call, example);
            }
    }
}

// An infinite pivot has left a zero.
TEST(CholeskyBackSubstitution, MakesZerosOfReciprocalsOfZeroAndNansOfNansWithoutAWord) {
    for (const Function *function : all())
        for (const double reciprocal : {0.0, nan, infinity})
            for (const std::uint32_t order : literal::sizesOf(*function, {1, 4})) {
                Call call(function->name, order, 2);
                fill(call);
                for (std::uint32_t n = 0; n < call.objectsOf("src1"); ++n)
                    for (std::uint32_t i = 0; i < order; ++i) call.set("src1", n, i, i, reciprocal);
                for (std::uint32_t n = 0; n < call.count(); ++n) call.set("src2", n, std::vector<double>(order, 1.0));
                EXPECT_EQ(call.run(), vonkOk);
                for (std::uint32_t n = 0; n < call.count(); ++n) {
                    const double last = call.get("dst", n, 0, order - 1);
                    if (reciprocal == 0) EXPECT_EQ(call.get("dst", n), std::vector<double>(order, 0.0));
                    else if (order == 1) literal::expectSame(reciprocal, last, "the solution");
                    else EXPECT_FALSE(std::isfinite(last));
                }
            }
}

// ---- Sums

enum class Sweep { forward, backward };

// A system with ones on its diagonal, in which one element of the intermediate vector or of the solution is the start
// less products of these coefficients and ones: the last forward, the first backward. Nothing else changes it.
double remainderOf(const Function &function, std::uint32_t order, Sweep sweep, double start,
                   const std::vector<double> &coefficients, double reciprocal = 1) {
    const auto terms = static_cast<std::uint32_t>(coefficients.size());
    const std::uint32_t row = sweep == Sweep::forward ? order - 1 : 0;
    Call call(function.name, order);
    std::vector<double> side(order, 0.0);
    for (std::uint32_t i = 0; i < order; ++i)
        for (std::uint32_t j = 0; j <= i; ++j) call.set("src1", 0, i, j, i != j ? 0 : i == row ? reciprocal : 1);
    for (std::uint32_t k = 0; k < terms; ++k) {
        const std::uint32_t other = sweep == Sweep::forward ? k : 1 + k;
        if (sweep == Sweep::forward) call.set("src1", 0, row, other, coefficients[k]);
        else call.set("src1", 0, other, row, coefficients[k]);
        side[other] = 1;
    }
    side[row] = start;
    // Ahead of the backward sweep the start goes through the forward one, which takes it from the rows below.
    if (sweep == Sweep::backward)
        for (std::uint32_t k = 0; k < terms; ++k) side[1 + k] += coefficients[k] * start;
    call.set("src2", 0, side);
    EXPECT_EQ(call.run(), vonkOk);
    return call.get("dst", 0, 0, row);
}

// 2^80 and its opposite leave nothing of a 1 that joins one of them first.
TEST(CholeskyBackSubstitutionSums, GoUpwardsForwardAndDownwardsBackward) {
    for (const Function *function : all())
        for (const std::uint32_t order : literal::sizesOf(*function, {4, 5, 7})) {
            const std::uint32_t terms = order - 1;
            int telling = 0;
            if (terms < 3) continue;
            for (const std::vector<double> &coefficients : literal::threesomes(terms)) {
                SCOPED_TRACE(function->name + ", order " + std::to_string(order));
                double upwards = 0;
                double downwards = 0;
                for (std::uint32_t k = 0; k < terms; ++k) upwards -= coefficients[k];
                for (std::uint32_t k = terms; k-- > 0;) downwards -= coefficients[k];
                EXPECT_EQ(remainderOf(*function, order, Sweep::forward, 0, coefficients), upwards);
                EXPECT_EQ(remainderOf(*function, order, Sweep::backward, 0, coefficients), downwards);
                telling += upwards != downwards;
            }
            EXPECT_GT(telling, 0);
        }
}

// a * a = 1 + 2^-26 + 2^-54, of which 53 bits lose the last term: taken from the rest it shows as -2^-54. There is no
// rounding behind a pair or any other number of terms.
TEST(CholeskyBackSubstitutionSums, OfDoublesAreRoundedWhenStoredOnly) {
    constexpr double a = 1 + 0x1p-27;
    constexpr double square = 1 + 0x1p-26;
    struct Case {
        std::vector<double> coefficients; // of elements a
        double start;
        double wide;
        double narrow;
    };
    const std::array cases = std::to_array<Case>({
        {{a}, square, -0x1p-54, 0},
        {{a, 0}, square, -0x1p-54, 0},
        {{0, a}, square, -0x1p-54, 0},
        {{a, 0, 0}, square, -0x1p-54, 0},
        {{a, 0, 0, 0}, square, -0x1p-54, 0},
        {{a, 0, 0, 0, 0}, square, -0x1p-54, 0},
        {{a, -1, 1}, square, -0x1p-54, 0},
    });
    for (const Function *function : all(isDouble))
        for (const Case &expectation : cases)
            for (const std::uint32_t order : literal::sizesOf(*function, {2, 3, 4, 5, 6, 7}))
                for (const Precision precision : {Precision::bits53, Precision::bits64}) {
                    const auto terms = static_cast<std::uint32_t>(expectation.coefficients.size());
                    if (order <= terms) continue;
                    Call call(function->name, order);
                    for (std::uint32_t i = 0; i < order; ++i)
                        for (std::uint32_t j = 0; j <= i; ++j) call.set("src1", 0, i, j, i == j ? 1 : 0);
                    std::vector<double> side(order, 0.0);
                    for (std::uint32_t k = 0; k < terms; ++k) {
                        call.set("src1", 0, order - 1, k, expectation.coefficients[k]);
                        side[k] = a;
                    }
                    side[order - 1] = expectation.start;
                    call.set("src2", 0, side);
                    const SettingScope scope({precision, Rounding::nearest});
                    ASSERT_EQ(call.run(), vonkOk);
                    literal::expectSame(precision == Precision::bits64 ? expectation.wide : expectation.narrow,
                                        call.get("dst", 0, 0, order - 1), "the remainder");
                }
}

// 1 - 2^-54 is a number of 54 bits, and a double would be 1: of it, 1 is taken away.
TEST(CholeskyBackSubstitutionSums, OfDoublesAreNotRoundedBetweenTermsInEitherSweep) {
    for (const Function *function : all(isDouble))
        for (const Precision precision : {Precision::bits53, Precision::bits64})
            for (const std::uint32_t order : literal::sizesOf(*function, {4, 5, 7})) {
                if (order < 4) continue;
                SCOPED_TRACE(function->name + ", order " + std::to_string(order));
                const SettingScope scope({precision, Rounding::nearest});
                const double expected = precision == Precision::bits64 ? -0x1p-54 : 0.0;
                std::vector<double> coefficients(order - 1, 0.0); // 0 between the others
                coefficients.front() = -1;
                coefficients[1] = 0x1p-54;
                coefficients.back() = 1;
                EXPECT_EQ(remainderOf(*function, order, Sweep::forward, 0, coefficients), expected);
                std::swap(coefficients.front(), coefficients.back());
                EXPECT_EQ(remainderOf(*function, order, Sweep::backward, 0, coefficients), expected);
            }
}

// 1 + 2^-53 times 1 + 2^-52 is 1 + 2^-52 + 2^-53 and a little that 64 bits do not hold: a tie, which goes to the even
// one, 1 + 2^-51. Stored as 1 ahead of the product it would give 1 + 2^-52. The backward sweep multiplies once more.
TEST(CholeskyBackSubstitutionSums, OfDoublesAreMultipliedAsTheyAre) {
    for (const Function *function : all(isDouble))
        for (const std::uint32_t order : literal::sizesOf(*function, {2, 3, 7})) {
            SCOPED_TRACE(function->name);
            const double once = 1 + 0x1p-51;
            const auto twice = static_cast<double>(static_cast<long double>(once) * (1 + 0x1p-52));
            EXPECT_EQ(remainderOf(*function, order, Sweep::forward, 1, {-0x1p-53}, 1 + 0x1p-52), twice);
            EXPECT_NE(twice, static_cast<double>((1 + 0x1p-52L) * (1 + 0x1p-52L)));
        }
}

// (1 + 2^-12)^2 = 1 + 2^-11 + 2^-24 is rounded to 1 + 2^-11: nothing is left of the difference. And 2^-24 is lost
// beside 1 + 2^-22 as often as it comes, since the last place there is 2^-23 and even.
TEST(CholeskyBackSubstitutionSums, OfFloatsAreRoundedAtEveryStep) {
    for (const Function *function : all(isFloat))
        for (const std::uint32_t order : literal::sizesOf(*function, {2, 4, 7}))
            for (const Precision precision : {Precision::bits53, Precision::bits64}) {
                const SettingScope scope({precision, Rounding::nearest});
                Call call(function->name, order);
                for (std::uint32_t i = 0; i < order; ++i)
                    for (std::uint32_t j = 0; j <= i; ++j) call.set("src1", 0, i, j, i == j ? 1 : 0);
                call.set("src1", 0, order - 1, 0, 1 + 0x1p-12);
                std::vector<double> side(order, 0.0);
                side[0] = 1 + 0x1p-12;
                side[order - 1] = 1 + 0x1p-11;
                call.set("src2", 0, side);
                ASSERT_EQ(call.run(), vonkOk);
                literal::expectSame(0.0, call.get("dst", 0, 0, order - 1), "the remainder");
                if (order < 4) continue;
                literal::expectSame(0x1p-22,
                                    remainderOf(*function, order, Sweep::forward, 1 + 0x1p-22, {0x1p-24, 0x1p-24, 1}),
                                    "forward");
                literal::expectSame(0x1p-22,
                                    remainderOf(*function, order, Sweep::backward, 1 + 0x1p-22, {1, 0x1p-24, 0x1p-24}),
                                    "backward");
            }
}

// Twice times a third, rounded in between; times the square of a third would be another number.
TEST(CholeskyBackSubstitution, MultipliesTheOnlyElementOfOrderOneTwice) {
    for (const Function *function : all(isRunTime)) {
        const bool narrow = function->type == Type::real32;
        const double third = narrow ? static_cast<double>(1.0F / 3) : 1.0 / 3;
        int telling = 0;
        for (int side = 1; side <= 40; ++side) {
            Call call(function->name, 1);
            call.set("src1", 0, {third});
            call.set("src2", 0, {static_cast<double>(side)});
            const SettingScope scope({Precision::bits53, Rounding::nearest});
            ASSERT_EQ(call.run(), vonkOk);
            double expected = side * third * third;
            double squared = side * (third * third);
            if (narrow) {
                const auto slim = static_cast<float>(third);
                const float once = static_cast<float>(side) * slim;
                const float square = slim * slim;
                expected = static_cast<double>(once * slim);
                squared = static_cast<double>(static_cast<float>(side) * square);
            }
            EXPECT_EQ(call.get("dst", 0, 0, 0), expected);
            telling += expected != squared;
        }
        EXPECT_GT(telling, 0);
    }
}

// ---- What is tested, and when

// The object that an array has at address 0, here the last.
TEST(CholeskyBackSubstitutionChecks, PassOverTheObjectAtAddressZero) {
    constexpr std::int32_t apart = 1 << 24;
    const float unit[9] = {1, 0, 0, 0, 1, 0, 0, 0, 1};
    for (const std::uint32_t count : {2U, 4U, 8U}) {
        const literal::PagesDownToNull sides(apart, count - 1);
        for (std::size_t n = 0; n + 1 < count; ++n)
            for (std::size_t i = 0; i < 3; ++i) sides[n][i] = static_cast<float>(10 * n + i);
        std::vector<float> solutions(std::size_t{3} * count, -1);
        EXPECT_EQ(vonkCholeskyBackSubst_mva_32f_3x3(unit, 12, sides[0], -apart, solutions.data(), 12,
                                                    static_cast<std::int32_t>(count)),
                  vonkOk);
        for (std::size_t n = 0; n < count; ++n)
            for (std::size_t i = 0; i < 3; ++i) EXPECT_EQ(solutions[3 * n + i], n + 1 < count ? sides[n][i] : -1);
    }
}

} // namespace
