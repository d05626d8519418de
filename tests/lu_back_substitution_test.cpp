// LU back substitution: solutions by hand in every form, where sums are rounded and where they are not, what the sweeps
// read when `dst` lies over the right-hand side, and the members that go their own way: the ignored word of `mva` and
// the columns 4 bytes apart.
#include "support/family_test.h"

namespace {

using namespace literal::names;
using literal::hasColumnsFourBytesApart;

std::vector<const Function *> all(bool (*wanted)(const Function &) = isAny) {
    return literal::members("lu-back-substitution", wanted);
}

const std::vector<std::uint32_t> orders{1, 2, 3, 4, 5, 6, 7};

bool isShared(const Function &function) { return function.group == "mva"; } // one matrix for all right-hand sides

std::vector<std::uint32_t> identity(std::uint32_t order) {
    std::vector<std::uint32_t> rows(order);
    std::iota(rows.begin(), rows.end(), 0U);
    return rows;
}

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
    std::vector<double> solution;
    std::vector<double> rightHandSide;

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

void setMatrix(Call &call, std::uint32_t n, const System &system) {
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
        if (n == 0 || !isShared(call.function())) {
            setMatrix(call, n, system);
            call.setPivots(n, system.permutation);
        }
        call.set("src2", n, system.rightHandSide);
    }
}

void expectDone(Call &call, std::uint32_t n) {
    EXPECT_EQ(call.get("dst", n), systemOf(call.function(), call.size(), n).solution);
}

const literal::Example example{fill, expectDone};

TEST(LuBackSubstitution, SolvesInEveryFormAndGeometryTakingRightHandSidesThroughThePivots) {
    for (const Function *function : all()) literal::expectResults(*function, example, orders);
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

// ---- Members of their own

double fromHalves(std::uint32_t low, std::uint32_t high) {
    return std::bit_cast<double>((std::uint64_t{high} << 32) | low);
}

// The recurrence on doubles, for numbers that nobody has worked out by hand; at 53 bits it is the same bit for bit.
std::vector<double> solve(const std::vector<double> &factors, const std::vector<std::uint32_t> &p,
                          const std::vector<double> &b) {
    const std::size_t order = p.size();
    const auto at = [&](std::size_t i, std::size_t j) { return factors[p[i] * order + j]; };
    std::vector<double> x(order);
    for (std::size_t i = 0; i < order; ++i) {
        double s = 0;
        for (std::size_t j = 0; j < i; ++j) s = s + at(i, j) * x[j];
        x[i] = i == 0 ? b[p[0]] : b[p[i]] - s;
    }
    for (std::size_t i = order; i-- > 0;) {
        double s = 0;
        for (std::size_t j = i + 1; j < order; ++j) s = s + at(i, j) * x[j];
        x[i] = (i + 1 == order ? x[i] : x[i] - s) / at(i, i);
    }
    return x;
}

// Each half may be a high one: all elements are between 1 and 2.2, each with its neighbour's half below its own.
TEST(LuBackSubstitutionShared, TakesColumnsFourBytesApartInListsOfDoublesAndNowhereElse) {
    std::size_t overlapping = 0;
    for (const Function *function : all()) {
        if (!isShared(*function) || function->type != Type::real64) continue;
        if (function->layout != "L" && function->layout != "LS2") continue;
        if (function->layout == "L") ++overlapping;
        for (const std::uint32_t order : literal::sizesOf(*function, {1, 2, 3, 6}))
            for (const std::int32_t columnStride : {4, 8}) {
                if (function->layout == "L" && columnStride == 8) continue; // has no word for it
                Call call(function->name, order, 2);
                std::vector<double> elements;
                std::vector<std::uint32_t> halves(std::size_t{2} * order);
                for (std::uint32_t i = 0; i < order; ++i) {
                    for (std::uint32_t k = 0; k < halves.size(); ++k)
                        halves[k] = 0x3ff00000 + 0x1e377 * ((i * 5 + k * 3) % 10);
                    std::memcpy(call["src1"].address(0, i, 0), halves.data(), 4 * halves.size());
                    const std::size_t step = static_cast<std::size_t>(columnStride) / 4;
                    for (std::uint32_t j = 0; j < order; ++j)
                        elements.push_back(fromHalves(halves[step * j], halves[step * j + 1]));
                }
                call["src1"].elementStride = columnStride; // passed in LS2 only
                std::vector<std::uint32_t> pivots = identity(order);
                std::ranges::reverse(pivots);
                call.setPivots(0, pivots);
                for (std::uint32_t n = 0; n < 2; ++n)
                    for (std::uint32_t j = 0; j < order; ++j) call.set("src2", n, 0, j, 5.0 * n + j + 1);
                const SettingScope scope({Precision::bits53, Rounding::nearest});
                ASSERT_EQ(call.run(), vonkOk);
                for (std::uint32_t n = 0; n < 2; ++n)
                    literal::expectSame(solve(elements, pivots, call.get("src2", n)), call.get("dst", n), "dst");
            }
    }
    EXPECT_EQ(overlapping, 5U);
}

// ---- Sums

// The fixed sizes of arrays, but for lists, keep a sum wide from its first term to its use. All others are loops over
// pairs of terms and an odd last one, and store the sum as a double after the pairs and after the odd term.
bool keepsSums(const Function &function) { return isException(function, "lu-solve-wide-sums"); }

enum class Sweep { forward, backward };

struct Sum {
    std::vector<std::pair<double, double>> terms; // coefficient and element of x
    double minuend;                               // of which the sum is taken
    double divisor = 1;                           // backward only
};

// An otherwise plain system in which one element of x is minuend minus sum: the row behind, or before, as many rows as
// there are terms.
double differenceOf(const Function &function, std::uint32_t order, Sweep sweep, Precision precision, const Sum &sum) {
    const auto terms = static_cast<std::uint32_t>(sum.terms.size());
    const std::uint32_t row = sweep == Sweep::forward ? terms : order - 1 - terms;
    const std::uint32_t first = sweep == Sweep::forward ? 0 : row + 1;
    Call call(function.name, order);
    std::vector<double> matrix(std::size_t{order} * order);
    for (std::uint32_t i = 0; i < order; ++i) matrix[i * order + i] = i == row ? sum.divisor : 1;
    std::vector<double> side(order, 0.0);
    for (std::uint32_t k = 0; k < terms; ++k) {
        matrix[row * order + first + k] = sum.terms[k].first;
        side[first + k] = sum.terms[k].second;
    }
    side[row] = sum.minuend;
    call.set("src1", 0, matrix);
    call.setPivots(0, identity(order));
    call.set("src2", 0, side);
    EXPECT_EQ(call.run({precision, Rounding::nearest}), vonkOk);
    return call.get("dst", 0, 0, row);
}

// Where columns lie 4 bytes apart, matrices with neighbours of one's choice do not exist.
bool isDoubleWithFreeMatrix(const Function &function) {
    return isDouble(function) && !hasColumnsFourBytesApart(function);
}

struct SumCase {
    const char *what;
    Sum sum;
    double looped;   // at 64 bits
    double unrolled; // at 64 bits
    double narrow;   // at 53 bits, in all forms
};

void expectSum(const Function &function, const SumCase &expectation) {
    const auto least = static_cast<std::uint32_t>(expectation.sum.terms.size()) + 1;
    for (const std::uint32_t order : literal::sizesOf(function, {least, least + 1, 7}))
        for (const Sweep sweep : {Sweep::forward, Sweep::backward}) {
            if (order < least) continue;
            if (sweep == Sweep::forward && expectation.sum.divisor != 1) continue;
            SCOPED_TRACE(function.name + ", order " + std::to_string(order) + ", " + expectation.what +
                         (sweep == Sweep::forward ? ", forward" : ", backward"));
            literal::expectSame(keepsSums(function) ? expectation.unrolled : expectation.looped,
                                differenceOf(function, order, sweep, Precision::bits64, expectation.sum), "64 bits");
            literal::expectSame(expectation.narrow,
                                differenceOf(function, order, sweep, Precision::bits53, expectation.sum), "53 bits");
        }
}

// a * b = 1 + 2^-25 + 2^-30 + 2^-55: 64 bits hold it, 53 bits lose the last term. It shows once the rest is taken away.
constexpr double a = 1 + 0x1p-25;
constexpr double b = 1 + 0x1p-30;
constexpr double kept = 0x1p-55;
constexpr double ab = 1 + 0x1p-25 + 0x1p-30;

TEST(LuBackSubstitutionSums, AreStoredAfterThePairsAndAfterTheOddTermInLoopsAndNeverWhenUnrolled) {
    const std::array cases = std::to_array<SumCase>({
        {"an odd term alone is stored", {{{a, b}}, ab}, 0, -kept, 0},
        {"a pair is stored", {{{a, b}, {1, 1}}, ab + 1}, 0, -kept, 0},
        {"between the terms of a pair nothing is", {{{a, b}, {-1, 1}}, ab - 1}, -kept, -kept, 0},
        {"a pair is stored ahead of the odd term", {{{a, b}, {0, 1}, {-1, 1}}, ab - 1}, 0, -kept, 0},
        {"and with the odd term again", {{{1, 1}, {0, 1}, {a, b}}, ab + 1}, 0, -kept, 0},
        {"the odd product itself is not", {{{-1, 1}, {0, 1}, {a, b}}, ab - 1}, -kept, -kept, 0},
        {"between pairs nothing is", {{{a, b}, {0, 1}, {-1, 1}, {0, 1}}, ab - 1}, -kept, -kept, 0},
        {"two pairs are stored", {{{1, 1}, {0, 1}, {a, b}, {0, 1}}, ab + 1}, 0, -kept, 0},
        {"two pairs are stored ahead of the odd term",
         {{{a, b}, {0, 1}, {0, 1}, {0, 1}, {-1, 1}}, ab - 1},
         0,
         -kept,
         0},
    });
    for (const Function *function : all(isDoubleWithFreeMatrix))
        for (const SumCase &expectation : cases) expectSum(*function, expectation);
}

// 2^600 * 2^600 is infinite and 2^-600 * 2^-600 is 0 once stored, at either precision.
TEST(LuBackSubstitutionSums, HaveTheRangeOfDoublesInLoopsAndAWiderOneWhenUnrolled) {
    for (const Function *function : all(isDoubleWithFreeMatrix))
        for (const std::uint32_t order : literal::sizesOf(*function, {2, 3, 5}))
            for (const Precision precision : {Precision::bits53, Precision::bits64}) {
                SCOPED_TRACE(function->name);
                const bool wide = keepsSums(*function);
                literal::expectSame(
                    wide ? -0x1p200 : -infinity,
                    differenceOf(*function, order, Sweep::backward, precision, {{{0x1p600, 0x1p600}}, 0, 0x1p1000}),
                    "large");
                literal::expectSame(
                    wide ? -0x1p-200 : 0.0,
                    differenceOf(*function, order, Sweep::backward, precision, {{{0x1p-600, 0x1p-600}}, 0, 0x1p-1000}),
                    "small");
            }
}

// 1/(1 - 2^-53) = 1 + 2^-53 + 2^-106: cut to 64 bits a tie, which the store takes down to 1. (1 + 2^-60) over the same
// is above the tie. So the difference may not be stored ahead of the division.
TEST(LuBackSubstitutionSums, AreTakenAwayAndDividedWithoutAStoreInBetween) {
    const Sum sum{{{-0x1p-60, 1}}, 1, 1 - 0x1p-53};
    for (const Function *function : all(isDoubleWithFreeMatrix))
        for (const std::uint32_t order : literal::sizesOf(*function, {2, 3, 5})) {
            SCOPED_TRACE(function->name);
            EXPECT_EQ(differenceOf(*function, order, Sweep::backward, Precision::bits64, sum), 1 + 0x1p-52);
            EXPECT_EQ(differenceOf(*function, order, Sweep::backward, Precision::bits64, {{{0, 1}}, 1, 1 - 0x1p-53}),
                      1);
        }
}

// x1 = 1 + 2^-55 is stored as 1, and 1 is what the next row reads: 1 - 1 = 0.
TEST(LuBackSubstitutionSums, AreMadeOfWhatWasStored) {
    for (const Function *function : all(isDoubleWithFreeMatrix))
        for (const std::uint32_t order : literal::sizesOf(*function, {3, 5}))
            for (const Sweep sweep : {Sweep::forward, Sweep::backward}) {
                const bool forward = sweep == Sweep::forward;
                const std::uint32_t first = forward ? 0 : order - 1;
                const std::uint32_t second = forward ? 1 : order - 2;
                const std::uint32_t third = forward ? 2 : order - 3;
                Call call(function->name, order);
                std::vector<double> matrix(std::size_t{order} * order);
                for (std::uint32_t i = 0; i < order; ++i) matrix[i * order + i] = 1;
                matrix[second * order + first] = -0x1p-55;
                matrix[third * order + second] = 1;
                call.set("src1", 0, matrix);
                call.setPivots(0, identity(order));
                call.set("src2", 0, std::vector<double>(order, 1.0));
                ASSERT_EQ(call.run(), vonkOk);
                literal::expectSame(0.0, call.get("dst", 0, 0, third), "the third");
            }
}

// (1 + 2^-12)^2 = 1 + 2^-11 + 2^-24, a tie that goes to 1 + 2^-11: nothing is left of the difference. The next product
// is lost beside 1: 1 + 2^-24 is 1.
TEST(LuBackSubstitutionSums, OfFloatsAreRoundedAtEveryStep) {
    struct Case {
        Sum sum;
        double expected;
    };
    constexpr double c = 1 + 0x1p-12;
    const std::array cases = std::to_array<Case>({
        {{{{c, c}}, 1 + 0x1p-11}, 0},
        {{{{1, 1}, {0x1p-24, 1}}, 1}, 0},
        {{{{1, 1}, {0x1p-24, 1}, {0x1p-24, 1}}, 1}, 0},
        {{{{0x1p-24, 1}, {0x1p-24, 1}, {1, 1}}, 1}, -0x1p-23}, // in ascending order the small ones add up first
    });
    for (const Function *function : all(isFloat)) {
        for (const Case &expectation : cases) {
            const auto least = static_cast<std::uint32_t>(expectation.sum.terms.size()) + 1;
            for (const std::uint32_t order : literal::sizesOf(*function, {least, 7}))
                for (const Sweep sweep : {Sweep::forward, Sweep::backward})
                    for (const Precision precision : {Precision::bits53, Precision::bits64}) {
                        if (order < least) continue;
                        SCOPED_TRACE(function->name);
                        literal::expectSame(expectation.expected,
                                            differenceOf(*function, order, sweep, precision, expectation.sum), "float");
                    }
        }
    }
}

// 0 + -0 is +0, and -0 - +0 is -0; without the 0 in front it would be -0 - -0 = +0.
TEST(LuBackSubstitutionSums, StartFromZero) {
    for (const Function *function : all()) {
        if (hasColumnsFourBytesApart(*function)) continue;
        for (const std::uint32_t order : literal::sizesOf(*function, {2, 3, 5}))
            for (const Sweep sweep : {Sweep::forward, Sweep::backward}) {
                SCOPED_TRACE(function->name);
                const Sum sum{{{-0.0, 1}}, -0.0};
                literal::expectSame(-0.0, differenceOf(*function, order, sweep, Precision::bits64, sum), "the zero");
            }
    }
}

// 5/3 is 13981013.33 * 2^-23; 5 times the float nearest 1/3 is 13981013.75 * 2^-23. For doubles it is
// 7505999378950826.67 and 826.25 * 2^-52. A reciprocal would show in the last place.
TEST(LuBackSubstitution, DividesTruly) {
    for (const Function *function : all())
        for (const std::uint32_t order : literal::sizesOf(*function, {1, 3})) {
            Call call(function->name, order);
            System system = systemOf(*function, order, 0);
            for (std::uint32_t i = 0; i < order; ++i)
                for (std::uint32_t j = 0; j < order; ++j) system.factors[i * order + j] = i == j ? 3 : 0;
            setMatrix(call, 0, system);
            call.setPivots(0, system.permutation);
            call.set("src2", 0, std::vector<double>(order, 5));
            const SettingScope scope({Precision::bits53, Rounding::nearest});
            ASSERT_EQ(call.run(), vonkOk);
            const double expected = function->type == Type::real32 ? 13981013 * 0x1p-23 : 7505999378950827 * 0x1p-52;
            EXPECT_EQ(call.get("dst", 0), std::vector<double>(order, expected));
        }
}

TEST(LuBackSubstitution, DividesByZeroPivotsWithoutAWord) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const std::array<std::pair<double, double>, 3> cases{{{5, infinity}, {-5, -infinity}, {0, nan}}};
    for (const Function *function : all())
        for (const auto &[side, expected] : cases)
            for (const std::uint32_t order : literal::sizesOf(*function, {1, 2, 5})) {
                Call call(function->name, order, 2);
                fill(call);
                for (std::uint32_t n = 0; n < call.count(); ++n) {
                    System system = systemOf(*function, order, n);
                    system.factors[0] = 0; // the top pivot, on which no other element depends
                    for (std::uint32_t j = 1; j < order; ++j) system.factors[j] = 0;
                    if (n == 0 || !isShared(*function)) setMatrix(call, n, system);
                    call.set("src2", n, 0, system.permutation[0], side);
                }
                EXPECT_EQ(call.run(), vonkOk);
                for (std::uint32_t n = 0; n < call.count(); ++n)
                    literal::expectSame(expected, call.get("dst", n, 0, 0), "the quotient");
            }
}

// ---- The solution over the right-hand side

TEST(LuBackSubstitutionInPlace, SolvesWhereTheRowsAreInTheirPlaces) {
    for (const Function *function : all())
        for (const std::uint32_t order : literal::sizesOf(*function, {1, 2, 5, 6}))
            for (const Geometry geometry : {literal::packed, literal::spread, literal::backward}) {
                Call call(function->name, order, 3, geometry);
                call.layOver("src2");
                for (std::uint32_t n = 0; n < call.count(); ++n) {
                    System system = systemOf(*function, order, n);
                    std::vector<double> side(order);
                    for (std::uint32_t i = 0; i < order; ++i) side[i] = system.rightHandSide[system.permutation[i]];
                    system.permutation = identity(order);
                    if (n == 0 || !isShared(*function)) {
                        setMatrix(call, n, system);
                        call.setPivots(n, system.permutation);
                    }
                    call.set("src2", n, side);
                }
                ASSERT_EQ(call.run(), vonkOk);
                literal::expectAllDone(call, example);
            }
}

// U = diag(2, 4, 1) and L(2, 0) = 1/2, the first two rows exchanged, b = 10 20 30. Apart, y0 = b1 = 20, y1 = b0 = 10
// and y2 = b2 - 20/2 = 20, so that x = 10 2.5 20. In place y0 = 20 is written over b0, and y1 reads it there: y = 20 20
// 20 and x = 10 5 20. All elements stand at even distances from the diagonal and so serve every form.
TEST(LuBackSubstitutionInPlace, ReadsWhatItHasWrittenWhereRowsAreExchanged) {
    for (const Function *function : all()) {
        if (function->order != 0 && function->order != 3) continue;
        for (const bool inPlace : {false, true}) {
            Call call(function->name, 3, 2);
            if (inPlace) call.layOver("src2");
            const System system{{1, 0, 2}, {2, 0, 0, 0, 4, 0, 0.5, 0, 1}, {}, {}};
            for (std::uint32_t n = 0; n < call.count(); ++n) {
                if (n == 0 || !isShared(*function)) {
                    setMatrix(call, n, system);
                    call.setPivots(n, system.permutation);
                }
                call.set("src2", n, {10, 20, 30});
            }
            ASSERT_EQ(call.run(), vonkOk);
            const std::vector<double> expected =
                inPlace ? std::vector<double>{10, 5, 20} : std::vector<double>{10, 2.5, 20};
            for (std::uint32_t n = 0; n < call.count(); ++n) EXPECT_EQ(call.get("dst", n), expected);
        }
    }
}

} // namespace
