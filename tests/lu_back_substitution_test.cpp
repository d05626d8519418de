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

// ---- Solutions

// Where columns lie 4 bytes apart, neighbours share 4 bytes: the high half of one is the low half of the next. So rows
// of such matrices have numbers at every other place, their diagonal among them, with low halves of zero. In between,
// the high halves of numbers are the low halves of denormals: below 2^-1042 and lost beside any whole number.
bool isPresent(const Function &function, std::uint32_t i, std::uint32_t j) {
    return !hasColumnsFourBytesApart(function) || (i + j) % 2 == 0;
}

struct System {
    std::vector<std::uint32_t> permutation;
    std::vector<double> factors; // by logical row: L below the diagonal, U from it on
    std::vector<double> solution = {};
    std::vector<double> rightHandSide = {};

    std::uint32_t order() const { return static_cast<std::uint32_t>(permutation.size()); }
    double at(std::uint32_t i, std::uint32_t j) const { return factors[i * order() + j]; }
};

// Object n has the right-hand side n, of the matrix n or of the only one.
System systemOf(const Function &function, std::uint32_t order, std::uint32_t n) {
    const Factors factors(order, isShared(function) ? 0 : n);
    System system{factors.permutation, std::vector<double>(std::size_t{order} * order), Factors(order, n).solution(),
                  std::vector<double>(order)};
    for (std::uint32_t i = 0; i < order; ++i)
        for (std::uint32_t j = 0; j < order; ++j)
            if (isPresent(function, i, j))
                system.factors[i * order + j] = j < i ? factors.lower(i, j) : factors.upper(i, j);
    std::vector<double> between(order); // y = U x, and then b = L y, all multiples of 1/4
    for (std::uint32_t i = 0; i < order; ++i)
        for (std::uint32_t j = i; j < order; ++j) between[i] += system.at(i, j) * system.solution[j];
    for (std::uint32_t i = 0; i < order; ++i) {
        double &b = system.rightHandSide[system.permutation[i]];
        b = between[i];
        for (std::uint32_t j = 0; j < i; ++j) b += system.at(i, j) * between[j];
    }
    return system;
}

// Object n has this matrix, unless the only one is another object's.
void setMatrix(Call &call, std::uint32_t n, const System &system) {
    if (n >= call.objectsOf("src1")) return;
    call.setPivots(n, system.permutation);
    const bool overlapping = hasColumnsFourBytesApart(call.function());
    for (std::uint32_t i = 0; i < system.order(); ++i) {
        const std::uint32_t row = system.permutation[i];
        std::byte *const start = call["src1"].address(n, row, 0);
        if (overlapping) std::memset(start, 0, std::size_t{4} * (system.order() + 1));
        for (std::uint32_t j = 0; j < system.order(); ++j)
            if (!overlapping) call.set("src1", n, row, j, system.at(i, j));
            else if (isPresent(call.function(), i, j)) call.setAt(start + std::size_t{4} * j, system.at(i, j));
    }
}

void fill(Call &call) {
    for (std::uint32_t n = 0; n < call.count(); ++n) {
        const System system = systemOf(call.function(), call.size(), n);
        setMatrix(call, n, system);
        call.set("src2", n, system.rightHandSide);
    }
}

void expectDone(Call &call, std::uint32_t n) {
    EXPECT_EQ(call.get("dst", n), systemOf(call.function(), call.size(), n).solution);
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

// In lists of right-hand sides the shared matrix is no list.
TEST(LuBackSubstitution, TakesTheSharedMatrixOfListsByAPlainPointer) {
    const double factors[4] = {4, 2, 0.5, 8};
    const std::uint32_t pivots[2] = {0, 1};
    const double sides[4] = {12, 20, 8, 12}; // the second: y = 8, 8; x = (8 - 2)/4, 1
    const double *const sideList[2] = {sides, sides + 2};
    double solutions[4] = {};
    double *const solutionList[2] = {solutions + 2, solutions};
    EXPECT_EQ(vonkLUBackSubst_mva_64f_LS2(factors, 12345, 16, 8, pivots, sideList, 0, 8, solutionList, 0, 8, 2, 2),
              vonkOk);
    EXPECT_EQ(std::vector<double>(solutions, solutions + 4), (std::vector<double>{1.5, 1, 2.125, 1.75}));
}

// What a decomposition has left with rows of its own, whatever the rows of the matrix: 1 2 1 / 4 4 8 / 2 6 2 times
// 1 2 3 is 8 36 20.
TEST(LuBackSubstitution, SolvesWithWhatADecompositionLeaves) {
    const double matrix[9] = {1, 2, 1, 4, 4, 8, 2, 6, 2};
    const double side[3] = {8, 36, 20};
    for (const std::int32_t rowStride : {24, 32, 72}) {
        std::array<double, 21> factors{};
        std::uint32_t pivots[3] = {};
        double solution[3] = {};
        ASSERT_EQ(vonkLUDecomp_m_64f_3x3(matrix, 24, pivots, factors.data(), rowStride), vonkOk);
        ASSERT_EQ(vonkLUBackSubst_mv_64f_3x3(factors.data(), rowStride, pivots, side, solution), vonkOk);
        EXPECT_EQ(std::vector<double>(solution, solution + 3), (std::vector<double>{1, 2, 3})) << rowStride;
    }
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

// Where columns lie 4 bytes apart, matrices with neighbours of one's choice do not exist.
bool hasFreeMatrix(const Function &function) { return !hasColumnsFourBytesApart(function); }
bool isDoubleWithFreeMatrix(const Function &function) { return isDouble(function) && hasFreeMatrix(function); }

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
    for (const auto &[function, order] : literal::sized(section, {1, 3})) {
        Call call(function->name, order);
        setMatrix(call, 0, {literal::identityPermutation(order), literal::diagonal(order, 3)});
        call.set("src2", std::vector<double>(order, 5));
        ASSERT_EQ(call.run({Precision::bits53, Rounding::nearest}), vonkOk);
        const double expected = isFloat(*function) ? 13981013 * 0x1p-23 : 7505999378950827 * 0x1p-52;
        EXPECT_EQ(call.get("dst", 0), std::vector<double>(order, expected));
    }
}

// The top pivot, on which no other element depends.
TEST(LuBackSubstitution, DividesByZeroPivotsWithoutAWord) {
    for (const auto &[function, order] : literal::sized(section, {1, 2, 5}))
        for (const auto &[side, expected] : {std::pair{5.0, infinity}, {-5.0, -infinity}, {0.0, nan}}) {
            Call call(function->name, order);
            fill(call);
            System system = systemOf(*function, order, 0);
            std::fill_n(system.factors.begin(), order, 0.0);
            setMatrix(call, 0, system);
            call.set("src2", 0, 0, system.permutation[0], side);
            EXPECT_EQ(call.run(), vonkOk);
            literal::expectSame(expected, call.get("dst", 0, 0, 0), "the quotient");
        }
}

// ---- The solution over the right-hand side

TEST(LuBackSubstitutionInPlace, SolvesWhereTheRowsAreInTheirPlaces) {
    const auto fillUnpermuted = [](Call &call) {
        for (std::uint32_t n = 0; n < call.count(); ++n) {
            System system = systemOf(call.function(), call.size(), n);
            std::vector<double> side;
            for (const std::uint32_t row : system.permutation) side.push_back(system.rightHandSide[row]);
            system.permutation = literal::identityPermutation(call.size());
            setMatrix(call, n, system);
            call.set("src2", n, side);
        }
    };
    for (const Function *function : literal::members(section))
        literal::expectInPlaceResults(*function, {fillUnpermuted, expectDone}, "src2", {1, 2, 5, 6});
}

// U = diag(2, 4, 1) and L(2, 0) = 1/2, the first two rows exchanged, b = 10 20 30. Apart, y0 = b1 = 20, y1 = b0 = 10
// and y2 = b2 - 20/2 = 20, so that x = 10 2.5 20. In place y0 = 20 is written over b0, and y1 reads it there: y = 20 20
// 20 and x = 10 5 20. All elements stand at even distances from the diagonal and so serve every form.
TEST(LuBackSubstitutionInPlace, ReadsWhatItHasWrittenWhereRowsAreExchanged) {
    for (const auto &[function, order] : literal::ofSize(section, 3))
        for (const bool inPlace : {false, true}) {
            Call call(function->name, order, 2);
            if (inPlace) call.layOver("src2");
            for (std::uint32_t n = 0; n < call.count(); ++n)
                setMatrix(call, n, {{1, 0, 2}, {2, 0, 0, 0, 4, 0, 0.5, 0, 1}});
            call.set("src2", {10, 20, 30});
            ASSERT_EQ(call.run(), vonkOk);
            for (std::uint32_t n = 0; n < call.count(); ++n)
                EXPECT_EQ(call.get("dst", n), (std::vector<double>{10, inPlace ? 5 : 2.5, 20}));
        }
}

} // namespace
