// Cholesky back substitution: solutions by hand in every form, the order in which products are taken away, where sums
// are rounded, and what goes its own way: objects that lead to null are passed over.
#include "support/family_test.h"

namespace {

using namespace literal::names;
using literal::diagonal;

constexpr const char *section = "cholesky-back-substitution";
constexpr double nan = std::numeric_limits<double>::quiet_NaN();

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
    std::vector<double> between(order), side(order);
    for (std::uint32_t i = 0; i < order; ++i)
        for (std::uint32_t k = i; k < order; ++k) between[i] += lower(variant, k, i) * solution(n, k);
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
    for (const Function *function : literal::members(section)) literal::expectResults(*function, example, orders);
}

TEST(CholeskyBackSubstitution, SolvesInPlaceInEveryForm) {
    for (const Function *function : literal::members(section))
        literal::expectInPlaceResults(*function, example, "src2", orders);
}

// L = 2 . / 1 4, stored as 1/2 . / 1 1/4. b = 8 28: y = 4 6; x = 6/4 and (4 - 1.5)/2.
TEST(CholeskyBackSubstitution, TakesItsWordsInTheOrderOfTheHeader) {
    const float factor[5] = {0.5F, -1, -1, 1, 0.25F}; // rows 12 bytes apart
    const float side[2] = {8, 28};
    float solved[4] = {};
    EXPECT_EQ(callWith("vonkCholeskyBackSubst_mv_32f", {wordOf(factor), 12, wordOf(side), wordOf(solved), 2}), vonkOk);
    EXPECT_EQ(std::vector<float>(solved, solved + 4), (std::vector<float>{1.25F, 1.5F, 0, 0}));
    EXPECT_EQ(callWith("vonkCholeskyBackSubst_mva_32f_S2",
                       {wordOf(factor), 12, 4, wordOf(side), 1 << 20, 4, wordOf(solved), 1 << 20, 12, 2, 1}),
              vonkOk);
    EXPECT_EQ(std::vector<float>(solved, solved + 4), (std::vector<float>{1.25F, 1.5F, 0, 1.5F}));
}

TEST(CholeskyBackSubstitution, FollowsNoPointerAboveTheDiagonal) {
    for (const auto &[function, order] : literal::sized(section, {2, 5}, isTabled))
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

// An infinite pivot has left a zero.
TEST(CholeskyBackSubstitution, MakesZerosOfReciprocalsOfZeroAndNansOfNansWithoutAWord) {
    for (const auto &[function, order] : literal::sized(section, {1, 4}))
        for (const double reciprocal : {0.0, nan, infinity}) {
            Call call(function->name, order);
            fill(call);
            for (std::uint32_t i = 0; i < order; ++i) call.set("src1", 0, i, i, reciprocal);
            call.set("src2", std::vector<double>(order, 1.0));
            EXPECT_EQ(call.run(), vonkOk);
            const double last = call.get("dst", 0, 0, order - 1);
            if (reciprocal == 0) EXPECT_EQ(call.get("dst", 0), std::vector<double>(order, 0.0));
            else if (order == 1) literal::expectSame(reciprocal, last, "the solution");
            else EXPECT_FALSE(std::isfinite(last));
        }
}

// ---- Sums

enum class Sweep { forward, backward };

// A system with ones on its diagonal, in which one element of the intermediate vector or of the solution is the start
// less products of these coefficients and `other` elements: the last forward, the first backward. Nothing else changes
// it.
struct Remainder {
    double start;
    std::vector<double> coefficients;
    double other = 1;
    double reciprocal = 1; // on the diagonal
};

double remainderOf(const Function &function, std::uint32_t order, Sweep sweep, const Remainder &remainder,
                   Precision precision = Precision::bits64) {
    const bool forward = sweep == Sweep::forward;
    const std::uint32_t row = forward ? order - 1 : 0;
    Call call(function.name, order);
    call.set("src1", diagonal(order, 1));
    call.set("src1", 0, row, row, remainder.reciprocal);
    std::vector<double> side(order, 0.0);
    side[row] = remainder.start;
    for (std::uint32_t k = 0; k < remainder.coefficients.size(); ++k) {
        const double coefficient = remainder.coefficients[k];
        call.set("src1", 0, forward ? row : 1 + k, forward ? k : row, coefficient);
        // Ahead of the backward sweep the start goes through the forward one, which takes it from the rows below.
        side[forward ? k : 1 + k] = remainder.other + (forward ? 0 : coefficient * remainder.start);
    }
    call.set("src2", side);
    EXPECT_EQ(call.run({precision, Rounding::nearest}), vonkOk);
    return call.get("dst", 0, 0, row);
}

// 2^80 and its opposite leave nothing of a 1 that joins one of them first.
TEST(CholeskyBackSubstitutionSums, GoUpwardsForwardAndDownwardsBackward) {
    for (const auto &[function, order] : literal::sized(section, {4, 5, 7})) {
        if (order < 4) continue;
        for (const std::vector<double> &coefficients : literal::threesomes(order - 1)) {
            SCOPED_TRACE(function->name + ", order " + std::to_string(order));
            const double upwards = std::accumulate(coefficients.begin(), coefficients.end(), 0.0);
            const double downwards = std::accumulate(coefficients.rbegin(), coefficients.rend(), 0.0);
            EXPECT_EQ(remainderOf(*function, order, Sweep::forward, {0, coefficients}), -upwards);
            EXPECT_EQ(remainderOf(*function, order, Sweep::backward, {0, coefficients}), -downwards);
        }
    }
}

// a * a = 1 + 2^-26 + 2^-54, of which 53 bits lose the last term: taken from the rest it shows as -2^-54. There is no
// rounding behind a pair or any other number of terms.
TEST(CholeskyBackSubstitutionSums, OfDoublesAreRoundedWhenStoredOnly) {
    constexpr double a = 1 + 0x1p-27;
    const std::array<std::vector<double>, 7> cases{
        {{a}, {a, 0}, {0, a}, {a, 0, 0}, {a, 0, 0, 0}, {a, 0, 0, 0, 0}, {a, -1, 1}}};
    for (const auto &[function, order] : literal::sized(section, {2, 3, 4, 5, 6, 7}, isDouble))
        for (const std::vector<double> &coefficients : cases) {
            if (order <= coefficients.size()) continue;
            SCOPED_TRACE(function->name + ", order " + std::to_string(order));
            const Remainder remainder{1 + 0x1p-26, coefficients, a};
            EXPECT_EQ(remainderOf(*function, order, Sweep::forward, remainder), -0x1p-54);
            EXPECT_EQ(remainderOf(*function, order, Sweep::forward, remainder, Precision::bits53), 0);
        }
}

// 1 - 2^-54 is a number of 54 bits, and a double would be 1: of it, 1 is taken away.
TEST(CholeskyBackSubstitutionSums, OfDoublesAreNotRoundedBetweenTermsInEitherSweep) {
    for (const auto &[function, order] : literal::sized(section, {4, 5, 7}, isDouble))
        for (const Precision precision : {Precision::bits53, Precision::bits64}) {
            if (order < 4) continue;
            SCOPED_TRACE(function->name + ", order " + std::to_string(order));
            const double expected = precision == Precision::bits64 ? -0x1p-54 : 0.0;
            std::vector<double> coefficients(order - 1, 0.0); // 0 between the others
            coefficients.front() = -1;
            coefficients[1] = 0x1p-54;
            coefficients.back() = 1;
            EXPECT_EQ(remainderOf(*function, order, Sweep::forward, {0, coefficients}, precision), expected);
            std::swap(coefficients.front(), coefficients.back());
            EXPECT_EQ(remainderOf(*function, order, Sweep::backward, {0, coefficients}, precision), expected);
        }
}

// 1 + 2^-53 times 1 + 2^-52 is 1 + 2^-52 + 2^-53 and a little that 64 bits do not hold: a tie, which goes to the even
// one, 1 + 2^-51. Stored as 1 ahead of the product it would give 1 + 2^-52. The backward sweep multiplies once more,
// which leaves 1 + 3 * 2^-52.
TEST(CholeskyBackSubstitutionSums, OfDoublesAreMultipliedAsTheyAre) {
    for (const auto &[function, order] : literal::sized(section, {2, 3, 7}, isDouble))
        EXPECT_EQ(remainderOf(*function, order, Sweep::forward, {1, {-0x1p-53}, 1, 1 + 0x1p-52}), 1 + 0x3p-52)
            << function->name;
}

// (1 + 2^-12)^2 = 1 + 2^-11 + 2^-24 is rounded to 1 + 2^-11: nothing is left of the difference. And 2^-24 is lost
// beside 1 + 2^-22 as often as it comes, since the last place there is 2^-23 and even.
TEST(CholeskyBackSubstitutionSums, OfFloatsAreRoundedAtEveryStep) {
    constexpr double c = 1 + 0x1p-12, start = 1 + 0x1p-22;
    for (const auto &[function, order] : literal::sized(section, {2, 4, 7}, isFloat))
        for (const Precision precision : {Precision::bits53, Precision::bits64}) {
            SCOPED_TRACE(function->name);
            const auto expect = [&, &function = *function, order = order](Sweep sweep, const Remainder &remainder,
                                                                          double expected) {
                literal::expectSame(expected, remainderOf(function, order, sweep, remainder, precision), "remainder");
            };
            expect(Sweep::forward, {1 + 0x1p-11, {c}, c}, 0.0);
            if (order < 4) continue;
            expect(Sweep::forward, {start, {0x1p-24, 0x1p-24, 1}}, 0x1p-22);
            expect(Sweep::backward, {start, {1, 0x1p-24, 0x1p-24}}, 0x1p-22);
        }
}

// Of floats, 3 thirds are 1, and times a third that is a third, which 3 times its square is not. Of doubles, 5 thirds
// are 0x1.aaaaaaaaaaaaap+0, and times a third one less in the last place than 5 times the square.
TEST(CholeskyBackSubstitution, MultipliesTheOnlyElementOfOrderOneTwice) {
    for (const Function *function : literal::members(section, isRunTime)) {
        const bool narrow = isFloat(*function);
        Call call(function->name, 1);
        call.set("src1", {narrow ? static_cast<double>(1.0F / 3) : 1.0 / 3});
        call.set("src2", {narrow ? 3.0 : 5.0});
        ASSERT_EQ(call.run({Precision::bits53, Rounding::nearest}), vonkOk);
        EXPECT_EQ(call.get("dst", 0, 0, 0), narrow ? 1.0F / 3 : 0x1.1c71c71c71c71p-1);
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
