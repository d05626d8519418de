// LU back substitution: solutions by hand in every form, where sums are rounded and where they are not, what the sweeps
// read when `dst` lies over the right-hand side, and the members that go their own way: the ignored word of `mva` and
// the columns 4 bytes apart.
#include "support/family_test.h"

namespace {

using namespace literal::names;
using literal::hasColumnsFourBytesApart;

constexpr const char *section = "lu-back-substitution";
constexpr double nan = std::numeric_limits<double>::quiet_NaN();

bool isShared(const Function &function) { return function.group == "mva"; } // one matrix for all right-hand sides

// Where columns lie 4 bytes apart, matrices with neighbours of one's choice do not exist.
bool hasFreeMatrix(const Function &function) { return !hasColumnsFourBytesApart(function); }
bool isDoubleWithFreeMatrix(const Function &function) { return isDouble(function) && hasFreeMatrix(function); }

// ---- Solutions

// The factors of the matrix that goes with right-hand side n.
Factors factorsOf(const Function &function, std::uint32_t order, std::uint32_t n) {
    return {order, isShared(function) ? 0 : n};
}

// L U x with its rows permuted, all multiples of 1/4.
std::vector<double> rightHandSide(const Factors &factors, const std::vector<double> &x) {
    std::vector<double> between(factors.order), side(factors.order);
    for (std::uint32_t i = 0; i < factors.order; ++i)
        for (std::uint32_t j = i; j < factors.order; ++j) between[i] += factors.upper(i, j) * x[j];
    for (std::uint32_t i = 0; i < factors.order; ++i)
        for (std::uint32_t j = 0; j <= i; ++j) side[factors.permutation[i]] += factors.lower(i, j) * between[j];
    return side;
}

void setSystem(Call &call, std::uint32_t n, const Factors &factors) {
    if (n < call.objectsOf("src1")) {
        call.set("src1", n, factors.factored());
        call.setPivots(n, factors.permutation);
    }
    call.set("src2", n, rightHandSide(factors, Factors(call.size(), n).solution()));
}

// Where columns lie 4 bytes apart, run() compares what comes of bytes that nobody has worked out.
void fill(Call &call) {
    for (std::uint32_t n = 0; n < call.count(); ++n) setSystem(call, n, factorsOf(call.function(), call.size(), n));
    if (hasColumnsFourBytesApart(call.function())) literal::fillWithOrdinaryBytes(call, "src1");
}

void expectDone(Call &call, std::uint32_t n) {
    if (hasColumnsFourBytesApart(call.function())) return;
    EXPECT_EQ(call.get("dst", n), Factors(call.size(), n).solution());
}

const literal::Example example{fill, expectDone};

TEST(LuBackSubstitution, SolvesInEveryFormAndGeometryTakingRightHandSidesThroughThePivots) {
    for (const Function *function : literal::members(section))
        literal::expectResults(*function, example, {1, 2, 3, 4, 5, 6, 7});
}

// L = 1 0 / 1/2 1 and U = 4 2 / 0 8, the rows exchanged. b = 20 12: y = 12, 20 - 6 = 14; x = (12 - 3.5)/4, 14/8.
TEST(LuBackSubstitution, TakesItsWordsInTheOrderOfTheHeader) {
    const float factors[5] = {0.5F, 8, -1, 4, 2}; // rows 12 bytes apart
    const std::uint32_t pivots[2] = {1, 0};
    const float side[2] = {20, 12};
    float solution[3] = {};
    EXPECT_EQ(vonkLUBackSubst_mv_32f(factors, 12, pivots, side, solution, 2), vonkOk);
    EXPECT_EQ(std::vector<float>(solution, solution + 3), (std::vector<float>{2.125F, 1.75F, 0}));
    EXPECT_EQ(
        vonkLUBackSubst_mava_32f_S2(factors, 1 << 20, 12, 4, pivots, side, 1 << 20, 4, solution, 1 << 20, 8, 2, 1),
        vonkOk);
    EXPECT_EQ(std::vector<float>(solution, solution + 3), (std::vector<float>{2.125F, 1.75F, 1.75F}));
}

// Nobody tests the pivots: with p = 2 the only row is row 2 and the right-hand side is the third.
TEST(LuBackSubstitution, TrustsThePivotOfOrderOne) {
    const double factors[3] = {1, 2, 4};
    const std::uint32_t pivots[1] = {2};
    const double side[3] = {10, 20, 30};
    double solution = 0;
    EXPECT_EQ(vonkLUBackSubst_mv_64f(factors, 8, pivots, side, &solution, 1), vonkOk);
    EXPECT_EQ(solution, 7.5);
}

// Columns 4 bytes apart share halves: the row's 0, 2 and 1 are high halves of 0, and of 2 with 1 + 2^-22 behind it. So
// L = 1 0 / 2 1, and U = 2 1 + 2^-22 / . 1 + 2^-22. b = 3 + 2^-22 and 7 + 3 * 2^-22: y = 3 + 2^-22, 1 + 2^-22.
TEST(LuBackSubstitution, TakesTheSharedMatrixOfListsOfDoublesWithColumnsFourBytesApart) {
    const std::uint32_t halves[2][3] = {{0, 0x40000000, 0x3ff00000}, {0, 0x40000000, 0x3ff00000}};
    const std::uint32_t pivots[2] = {0, 1};
    const double sides[4] = {3 + 0x1p-22, 7 + 0x3p-22, 6 + 0x2p-22, 14 + 0x6p-22};
    const double *const sideList[2] = {sides, sides + 2};
    double solutions[4] = {};
    double *const solutionList[2] = {solutions, solutions + 2};
    EXPECT_EQ(callWith("vonkLUBackSubst_mva_64f_L",
                       {wordOf(halves), 12345, 12, wordOf(pivots), wordOf(sideList), 0, wordOf(solutionList), 0, 2, 2}),
              vonkOk);
    EXPECT_EQ(std::vector<double>(solutions, solutions + 4), (std::vector<double>{1, 1, 2, 2}));
    for (const Function *function : literal::members(section))
        EXPECT_EQ(hasColumnsFourBytesApart(*function), isException(*function, "lu-solve-column-step"));
}

// ---- Sums

// The fixed sizes of arrays, but for lists, keep a sum wide from its first term to its use. All others are loops over
// pairs of terms and an odd last one, and store the sum as a double after the pairs and after the odd term.
bool keepsSums(const Function &function) { return isException(function, "lu-solve-wide-sums"); }

struct Sum {
    std::vector<std::pair<double, double>> terms; // coefficient and element of x
    double minuend;                               // of which the sum is taken
    double divisor = 1;                           // backward only
};

struct Expected {
    double looped;
    double unrolled;
};

// An otherwise plain system in which one element of x is (minuend - sum) / divisor: in the row behind as many others as
// there are terms, forward, or ahead of as many, backward.
void expectDifference(const Function &function, std::uint32_t order, Precision precision, const Sum &sum,
                      Expected expected) {
    const auto terms = static_cast<std::uint32_t>(sum.terms.size());
    if (order <= terms) return;
    for (const bool forward : {true, false}) {
        if (forward && sum.divisor != 1) continue;
        SCOPED_TRACE(std::to_string(terms) + " terms, " + (forward ? "forward" : "backward") +
                     support::describe(Setting{precision, Rounding::nearest}));
        const std::uint32_t row = forward ? terms : order - 1 - terms;
        const std::uint32_t first = forward ? 0 : row + 1;
        Call call(function.name, order);
        call.set("src1", literal::diagonal(order, 1));
        call.set("src1", 0, row, row, sum.divisor);
        call.set("src2", std::vector<double>(order, 0.0));
        for (std::uint32_t k = 0; k < terms; ++k) {
            call.set("src1", 0, row, first + k, sum.terms[k].first);
            call.set("src2", 0, 0, first + k, sum.terms[k].second);
        }
        call.set("src2", 0, 0, row, sum.minuend);
        call.setPivots(0, literal::identityPermutation(order));
        EXPECT_EQ(call.run({precision, Rounding::nearest}), vonkOk);
        literal::expectSame(keepsSums(function) ? expected.unrolled : expected.looped, call.get("dst", 0, 0, row),
                            "the difference");
    }
}

struct SumCase {
    const char *what;
    Sum sum;
    Expected at64;
    Expected at53;
};

// a * b = 1 + 2^-25 + 2^-30 + 2^-55: 64 bits hold it, 53 bits lose the last term. It shows once the rest is taken away.
constexpr double a = 1 + 0x1p-25;
constexpr double b = 1 + 0x1p-30;
constexpr double kept = 0x1p-55;
constexpr double ab = 1 + 0x1p-25 + 0x1p-30;

TEST(LuBackSubstitutionSums, AreStoredAfterThePairsAndAfterTheOddTermInLoopsAndNeverWhenUnrolled) {
    const std::array cases = std::to_array<SumCase>({
        {"an odd term alone is stored", {{{a, b}}, ab}, {0, -kept}, {}},
        {"a pair is stored", {{{a, b}, {1, 1}}, ab + 1}, {0, -kept}, {}},
        {"between the terms of a pair nothing is", {{{a, b}, {-1, 1}}, ab - 1}, {-kept, -kept}, {}},
        {"a pair is stored ahead of the odd term", {{{a, b}, {0, 1}, {-1, 1}}, ab - 1}, {0, -kept}, {}},
        {"and with the odd term again", {{{1, 1}, {0, 1}, {a, b}}, ab + 1}, {0, -kept}, {}},
        {"the odd product itself is not", {{{-1, 1}, {0, 1}, {a, b}}, ab - 1}, {-kept, -kept}, {}},
        {"between pairs nothing is", {{{a, b}, {0, 1}, {-1, 1}, {0, 1}}, ab - 1}, {-kept, -kept}, {}},
        {"two pairs are stored", {{{1, 1}, {0, 1}, {a, b}, {0, 1}}, ab + 1}, {0, -kept}, {}},
        {"and ahead of the odd term", {{{a, b}, {0, 1}, {0, 1}, {0, 1}, {-1, 1}}, ab - 1}, {0, -kept}, {}},
        // 2^600 * 2^600 is infinite and 2^-600 * 2^-600 is 0 once stored, at either precision.
        {"a large one has the range of doubles in loops",
         {{{0x1p600, 0x1p600}}, 0, 0x1p1000},
         {-infinity, -0x1p200},
         {-infinity, -0x1p200}},
        {"and a small one", {{{0x1p-600, 0x1p-600}}, 0, 0x1p-1000}, {0.0, -0x1p-200}, {0.0, -0x1p-200}},
        // 1/(1 - 2^-53) = 1 + 2^-53 + 2^-106: cut to 64 bits a tie, which the store takes down to 1. (1 + 2^-60) over
        // the same is above the tie. So the difference may not be stored ahead of the division. (At 53 bits, both are.)
        {"a difference is divided", {{{0, 1}}, 1, 1 - 0x1p-53}, {1, 1}, {1 + 0x1p-52, 1 + 0x1p-52}},
        {"as it is", {{{-0x1p-60, 1}}, 1, 1 - 0x1p-53}, {1 + 0x1p-52, 1 + 0x1p-52}, {1 + 0x1p-52, 1 + 0x1p-52}},
    });
    for (const auto &[function, order] : literal::sized(section, {2, 3, 4, 5, 6, 7}, isDoubleWithFreeMatrix))
        for (const SumCase &expectation : cases) {
            SCOPED_TRACE(function->name + ": " + expectation.what);
            expectDifference(*function, order, Precision::bits64, expectation.sum, expectation.at64);
            expectDifference(*function, order, Precision::bits53, expectation.sum, expectation.at53);
        }
}

// x1 = 1 + 2^-55 is stored as 1, and 1 is what the next row reads: 1 - 1 = 0.
TEST(LuBackSubstitutionSums, AreMadeOfWhatWasStored) {
    for (const auto &[function, order] : literal::sized(section, {3, 5}, isDoubleWithFreeMatrix))
        for (const std::array<std::uint32_t, 3> rows : {std::array{0U, 1U, 2U}, {order - 1, order - 2, order - 3}}) {
            Call call(function->name, order);
            call.set("src1", literal::diagonal(order, 1));
            call.set("src1", 0, rows[1], rows[0], -0x1p-55);
            call.set("src1", 0, rows[2], rows[1], 1);
            call.setPivots(0, literal::identityPermutation(order));
            call.set("src2", std::vector<double>(order, 1.0));
            ASSERT_EQ(call.run(), vonkOk);
            literal::expectSame(0.0, call.get("dst", 0, 0, rows[2]), "the third");
        }
}

// (1 + 2^-12)^2 = 1 + 2^-11 + 2^-24, a tie that goes to 1 + 2^-11: nothing is left of the difference. The next product
// is lost beside 1: 1 + 2^-24 is 1.
TEST(LuBackSubstitutionSums, OfFloatsAreRoundedAtEveryStep) {
    constexpr double c = 1 + 0x1p-12;
    const std::array cases = std::to_array<std::pair<Sum, double>>({
        {{{{c, c}}, 1 + 0x1p-11}, 0},
        {{{{1, 1}, {0x1p-24, 1}}, 1}, 0},
        {{{{1, 1}, {0x1p-24, 1}, {0x1p-24, 1}}, 1}, 0},
        {{{{0x1p-24, 1}, {0x1p-24, 1}, {1, 1}}, 1}, -0x1p-23}, // in ascending order the small ones add up first
    });
    for (const auto &[function, order] : literal::sized(section, {2, 3, 4, 7}, isFloat))
        for (const auto &[sum, expected] : cases)
            for (const Precision precision : {Precision::bits53, Precision::bits64})
                expectDifference(*function, order, precision, sum, {expected, expected});
}

// 0 + -0 is +0, and -0 - +0 is -0; without the 0 in front it would be -0 - -0 = +0.
TEST(LuBackSubstitutionSums, StartFromZero) {
    for (const auto &[function, order] : literal::sized(section, {2, 3, 5}, hasFreeMatrix))
        expectDifference(*function, order, Precision::bits64, {{{-0.0, 1}}, -0.0}, {-0.0, -0.0});
}

// 5/3 is 13981013.33 * 2^-23; 5 times the float nearest 1/3 is 13981013.75 * 2^-23. For doubles it is
// 7505999378950826.67 and 826.25 * 2^-52. A reciprocal would show in the last place.
TEST(LuBackSubstitution, DividesTruly) {
    for (const auto &[function, order] : literal::sized(section, {1, 3}, hasFreeMatrix)) {
        Call call(function->name, order);
        call.set("src1", literal::diagonal(order, 3));
        call.setPivots(0, literal::identityPermutation(order));
        call.set("src2", std::vector<double>(order, 5));
        ASSERT_EQ(call.run({Precision::bits53, Rounding::nearest}), vonkOk);
        const double expected = isFloat(*function) ? 13981013 * 0x1p-23 : 7505999378950827 * 0x1p-52;
        EXPECT_EQ(call.get("dst", 0), std::vector<double>(order, expected));
    }
}

// The top pivot, on which no other element depends.
TEST(LuBackSubstitution, DividesByZeroPivotsWithoutAWord) {
    for (const auto &[function, order] : literal::sized(section, {1, 2, 5}, hasFreeMatrix))
        for (const auto &[side, expected] : {std::pair{5.0, infinity}, {-5.0, -infinity}, {0.0, nan}}) {
            Call call(function->name, order);
            fill(call);
            const std::uint32_t top = call.pivots(0)[0];
            for (std::uint32_t j = 0; j < order; ++j) call.set("src1", 0, top, j, 0);
            call.set("src2", 0, 0, top, side);
            EXPECT_EQ(call.run(), vonkOk);
            literal::expectSame(expected, call.get("dst", 0, 0, 0), "the quotient");
        }
}

// ---- The solution over the right-hand side

TEST(LuBackSubstitutionInPlace, SolvesWhereTheRowsAreInTheirPlaces) {
    const auto fillUnpermuted = [](Call &call) {
        for (std::uint32_t n = 0; n < call.count(); ++n) {
            Factors factors = factorsOf(call.function(), call.size(), n);
            factors.permutation = literal::identityPermutation(call.size());
            setSystem(call, n, factors);
        }
    };
    for (const Function *function : literal::members(section, hasFreeMatrix))
        literal::expectInPlaceResults(*function, {fillUnpermuted, expectDone}, "src2", {1, 2, 5, 6});
}

// U = diag(2, 4, 1) and L(2, 0) = 1/2, the first two rows exchanged, b = 10 20 30. Apart, y0 = b1 = 20, y1 = b0 = 10
// and y2 = b2 - 20/2 = 20, so that x = 10 2.5 20. In place y0 = 20 is written over b0, and y1 reads it there: y = 20 20
// 20 and x = 10 5 20.
TEST(LuBackSubstitutionInPlace, ReadsWhatItHasWrittenWhereRowsAreExchanged) {
    for (const auto &[function, order] : literal::ofSize(section, 3, hasFreeMatrix))
        for (const bool inPlace : {false, true}) {
            Call call(function->name, order, 2);
            if (inPlace) call.layOver("src2");
            call.set("src1", {0, 4, 0, 2, 0, 0, 0.5, 0, 1});
            for (std::uint32_t n = 0; n < call.count(); ++n) call.setPivots(n, {1, 0, 2});
            call.set("src2", {10, 20, 30});
            ASSERT_EQ(call.run(), vonkOk);
            for (std::uint32_t n = 0; n < call.count(); ++n)
                EXPECT_EQ(call.get("dst", n), (std::vector<double>{10, inPlace ? 5 : 2.5, 20}));
        }
}

} // namespace
