// LU decomposition: factors and pivots by hand in every form, the tolerance, the states that failures leave, and the
// members that go their own way: the displaced look at the last pivot, the search over NaNs, the width of the
// multiplier.
#include "support/family_test.h"

namespace {

using namespace literal::names;
using literal::diagonal;

constexpr const char *section = "lu-decomposition";
constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr double tolerance = 0x1p-23;

using Pivots = std::vector<std::uint32_t>;

const std::vector<std::uint32_t> orders{1, 2, 3, 4, 5, 6, 7};

// The look at a displaced last pivot finds numbers there: packed, the last column of U; else what the room is filled
// with.
const std::vector<Geometry> geometries{literal::packed, literal::roomy, literal::roomyBackward};

void expectObject(Call &call, std::uint32_t n, const std::vector<double> &elements, const Pivots &pivots) {
    literal::expectSame(elements, call.get("dst", n), "dst of object " + std::to_string(n));
    EXPECT_EQ(call.pivots(n), pivots) << "object " << n;
}

// ---- Factors

void fill(Call &call) {
    for (std::uint32_t n = 0; n < call.count(); ++n) call.set("src", n, Factors(call.size(), n).matrix());
}

void expectDone(Call &call, std::uint32_t n) {
    const Factors factors(call.size(), n);
    expectObject(call, n, factors.factored(), factors.permutation);
}

const literal::Example example{fill, expectDone};

// Objects have their pivots packed behind one another, whatever lies between their matrices.
TEST(LuDecomposition, LeavesFactorsAndPivotsInEveryFormAndGeometry) {
    for (const Function *function : literal::members(section))
        literal::expectResults(*function, example, orders, geometries);
}

TEST(LuDecomposition, FactorsInPlaceInEveryForm) {
    for (const Function *function : literal::members(section))
        literal::expectInPlaceResults(*function, example, "src", orders, geometries);
}

TEST(LuDecomposition, TakesItsWordsInTheOrderOfTheHeader) {
    const float matrix[5] = {4, 1, 99, 2, 2}; // 4 1 / 2 2, rows 12 bytes apart
    float factored[7] = {};                   // rows 8 bytes apart, elements 12: 4 1 / 1/2 3/2
    std::uint32_t pivots[2] = {7, 7};
    EXPECT_EQ(vonkLUDecomp_ma_32f_S2(matrix, 1 << 20, 12, 4, pivots, factored, 1 << 20, 8, 12, 2, 1), vonkOk);
    EXPECT_EQ(std::vector<float>(factored, factored + 7), (std::vector<float>{4, 0, 0.5F, 1, 0, 1.5F, 0}));
    EXPECT_EQ(Pivots(pivots, pivots + 2), (Pivots{0, 1}));
}

TEST(LuDecomposition, KeepsTheFirstOfEqualMagnitudes) {
    const std::array cases = std::to_array<std::pair<std::array<double, 3>, std::uint32_t>>({
        {{1, 1, 1}, 0},
        {{1, -1, 1}, 0},
        {{-2, 1, 2}, 0},
        {{1, -2, 2}, 1},
        {{1, 2, -2}, 1},
        {{1, 2, 3}, 2},
        {{-infinity, infinity, 1}, 0},
        {{1, 1, infinity}, 2},
    });
    for (const auto &[function, order] : literal::sized(section, {3, 4, 7}))
        for (const auto &[column, expected] : cases) {
            Call call(function->name, order);
            call.set("src", diagonal(order, 1));
            for (std::uint32_t i = 0; i < 3; ++i) call.set("src", 0, i, 0, column[i]);
            call.run();
            EXPECT_EQ(call.pivots(0)[0], expected);
        }
}

// The destination lies one object ahead of the source, so that object 1 is made of what object 0 has left: the first
// time 1/2 is the multiplier of 1 and 2, the second time 1/4 that of 1/2 and 2.
TEST(LuDecomposition, FinishesEachObjectBeforeItCopiesTheNext) {
    for (const auto &[function, order] : literal::ofSize(section, 3, isArray)) {
        Call call(function->name, order, 2);
        call["dst"].moveTo(call["src"].origin + call["src"].objectStride);
        call.set("src", 1, diagonal(3, 7));
        call.set("src", 0, {2, 0, 0, 1, 4, 1, 0, 0, 8});
        ASSERT_EQ(call.run(), vonkOk);
        expectObject(call, 0, {2, 0, 0, 0.5, 4, 1, 0, 0, 8}, {0, 1, 2});
        expectObject(call, 1, {2, 0, 0, 0.25, 4, 1, 0, 0, 8}, {0, 1, 2});
    }
}

// One element ahead, the copy goes forward and sees what it has written: all elements become the first. That leaves 1
// as multiplier and 0 as the second pivot.
TEST(LuDecomposition, CopiesForwardWhereTheMatricesOverlap) {
    for (const auto &[function, order] : literal::ofSize(section, 3)) {
        if (!function->layout.empty()) continue;
        Call call(function->name, order);
        call.set("src", {3, 1, 4, 1, 5, 9, 2, 6, 5});
        call["dst"].moveTo(call["src"].origin + call["src"].elementSize);
        EXPECT_EQ(call.run(), vonkErrSingular);
        expectObject(call, 0, {3, 3, 3, 1, 0, 0, 1, 0, 0}, {0, 1, 2});
    }
}

// Element (i, j) of the result is m[i + j]. Copied forward, that leaves m = 2 0 1 1/4 3; the multipliers are then
// stored where elements of the pivot rows lie: 0 and 1/2 of the first, 1/2 of the second.
TEST(LuDecomposition, StoresEveryStepWhereElementsOfTheResultOverlap) {
    for (const auto &[function, order] : literal::ofSize(section, 3)) {
        Call call(function->name, order);
        literal::Place &dst = call["dst"];
        dst.rowStride = dst.elementStride != 0 ? dst.elementStride : dst.elementSize;
        if (isTabled(*function))
            for (std::size_t k = 8; k > 0; --k)
                dst.entries[k] = dst.entries[0] + dst.elementSize * static_cast<int>(k / 3 + k % 3);
        call.set("src", {2, 7, 7, 0, 7, 7, 1, 0.25, 3});
        ASSERT_EQ(call.run(), vonkOk);
        expectObject(call, 0, {2, 0, 0.5, 0, 0.5, 0.5, 0.5, 0.5, 2.5}, {0, 1, 2});
    }
}

// ---- Singular matrices

// A diagonal matrix, so that the candidates of each column are the pivot and zeros. Order 1 is the copy of an element.
TEST(LuDecompositionTolerance, IsTwoToTheMinus23ForBothTypesAndEqualPasses) {
    for (const auto &[function, order] : literal::sized(section, {1, 2, 4, 7})) {
        const double below = literal::nextElement(*function, tolerance, 0);
        for (const double pivot : {tolerance, -tolerance, below, -below, 1e-10, 0.0, nan, infinity, 0x1p-126})
            for (std::uint32_t k = 0; k < order; ++k) {
                SCOPED_TRACE("pivot " + std::to_string(k) + " is " + std::to_string(pivot));
                Call call(function->name, order);
                call.set("src", diagonal(order, 1));
                call.set("src", 0, k, k, pivot);
                EXPECT_EQ(call.run(), std::fabs(pivot) >= tolerance ? vonkOk : vonkErrSingular);
                if (std::isnan(pivot)) continue;                   // which moves the search
                EXPECT_EQ(call.get("dst", 0), call.get("src", 0)); // or -0 for 0
                EXPECT_EQ(call.pivots(0), literal::identityPermutation(order));
            }
    }
}

struct Failure {
    const char *what;
    std::vector<double> matrix;
    std::vector<double> left;
    Pivots pivots;
};

// What the failing object holds: the copy, the eliminations up to there, and the exchange of the failing column too.
const std::array failures = std::to_array<Failure>({
    {"the first column is zero", {0, 1, 2, 0, 3, 4, 0, 5, 6}, {0, 1, 2, 0, 3, 4, 0, 5, 6}, {0, 1, 2}},
    {"the first column is too small, its largest element in the last row",
     {0x1p-30, 1, 2, 0, 3, 4, -0x1p-24, 5, 6},
     {0x1p-30, 1, 2, 0, 3, 4, -0x1p-24, 5, 6},
     {2, 1, 0}},
    // 4 in the last row, multipliers 1/2 and 1/4: 0 6 is left of the middle row and 2^-24 2 of the first, which has the
    // larger candidate and is taken before it proves too small.
    {"the second column is too small",
     {1, 0x1p-24, 3, 2, 0, 8, 4, 0, 4},
     {0.25, 0x1p-24, 2, 0.5, 0, 6, 4, 0, 4},
     {2, 0, 1}},
    // 4 in the middle row, multipliers 1/2 and 1/4: 2 4 is left of the first row and 4 8 of the last. That has the
    // pivot, the multiplier is 1/2, and 4 - 8/2 = 0 is the last pivot. Rows stay where they are.
    {"the last pivot is zero", {2, 4, 6, 4, 4, 4, 1, 5, 9}, {0.5, 0.5, 0, 4, 4, 4, 0.25, 4, 8}, {1, 2, 0}},
});

TEST(LuDecompositionFailure, LeavesTheObjectAsFarAsItGot) {
    for (const auto &[function, order] : literal::ofSize(section, 3))
        for (const Failure &failure : failures) {
            SCOPED_TRACE(failure.what);
            Call call(function->name, order);
            call.set("src", failure.matrix);
            EXPECT_EQ(call.run(), vonkErrSingular);
            EXPECT_EQ(call.get("dst", 0), failure.left);
            EXPECT_EQ(call.pivots(0), failure.pivots);
            EXPECT_FALSE(call.strayWrites());
        }
}

TEST(LuDecompositionFailure, EndsTheCallWithTheObjectsBeforeDoneAndThoseAfterUntouched) {
    for (const auto &[function, order] : literal::sized(section, {2, 5}, isArray)) {
        Call call(function->name, order, 4);
        fill(call);
        call.set("src", 2, literal::zeros(order));
        EXPECT_EQ(call.run(), vonkErrSingular);
        expectDone(call, 0);
        expectDone(call, 1);
        expectObject(call, 2, literal::zeros(order), literal::identityPermutation(order));
        EXPECT_FALSE(call.changedObject(3));
        EXPECT_FALSE(call.strayWrites());
    }
}

// ---- The last pivot of an array, which is looked for n * order columns away

// Where the look for object n goes if its last pivot lies in this row of `dst`.
std::byte *displaced(Call &call, std::uint32_t n, std::uint32_t row) {
    const literal::Place &place = call["dst"];
    const std::uint32_t last = call.size() - 1;
    if (catalogue::isTable(place.operand->layout))
        return place.entries[(row + n) * call.size() + last] + place.shift + std::ptrdiff_t{place.objectStride} * n;
    return place.address(n, row, last) + std::ptrdiff_t{place.elementStride} * n * call.size();
}

// In a roomy geometry the look goes past the row into the gap behind it, or to an entry of the table behind the matrix.
TEST(LuDecompositionLastPivot, IsLookedForPastItsRowInEveryArrayForm) {
    for (const auto &[function, order] : literal::sized(section, {1, 2, 3, 5}, isArray))
        for (const double found :
             {1.0, -5.0, tolerance, -tolerance, infinity, 0.0, nan, literal::nextElement(*function, tolerance, 0)})
            for (const Geometry geometry : {literal::roomy, literal::roomyBackward})
                for (const std::uint32_t lastRow : isTabled(*function) ? Pivots{order - 1} : Pivots{0, order - 1})
                    for (const std::uint32_t looked : {1U, 2U}) {
                        SCOPED_TRACE("object " + std::to_string(looked) + " finds " + std::to_string(found) +
                                     " for its pivot in row " + std::to_string(lastRow));
                        const bool passes = std::fabs(found) >= tolerance;
                        Call call(function->name, order, 3, geometry);
                        fill(call);
                        Factors factors(order, looked);
                        factors.leaveLastRow(lastRow);
                        factors.lastPivot = passes ? 0 : 8;
                        call.set("src", looked, factors.matrix());
                        call.setAt(displaced(call, looked, lastRow), found);
                        EXPECT_EQ(call.run(), passes ? vonkOk : vonkErrSingular);
                        expectObject(call, looked, factors.factored(), factors.permutation);
                        EXPECT_TRUE(looked == 2 || call.changedObject(2) == passes);
                        EXPECT_FALSE(call.strayWrites());
                    }
}

// Packed, the look goes one row down. The rows of object 1 serve bottom up: its last pivot is in the top row, and the
// look goes to the middle one.
TEST(LuDecompositionLastPivot, IsLookedForOneRowDownInPackedObjects) {
    const std::vector<double> singular{0, 0, 0, 0, 4, 5, 4, 0, 0};
    const std::vector<double> innocent{0, 0, 9, 0, 4, 0, 4, 0, 0};
    for (const auto &[function, order] : literal::ofSize(section, 3, isArray))
        for (const bool passes : {true, false}) {
            const std::vector<double> &matrix = passes ? singular : innocent;
            Call call(function->name, order, 3);
            call.set("src", diagonal(3, 1));
            call.set("src", 1, matrix);
            EXPECT_EQ(call.run(), passes ? vonkOk : vonkErrSingular);
            expectObject(call, 0, diagonal(3, 1), {0, 1, 2});
            expectObject(call, 1, matrix, {2, 1, 0});
            EXPECT_EQ(call.changedObject(2), passes);
        }
}

// A NaN in the last column reaches the last pivot, which in objects after the first nobody looks at.
TEST(LuDecompositionLastPivot, MayBeNanAfterTheFirstObject) {
    for (const auto &[function, order] : literal::sized(section, {3}, isArray)) {
        Call call(function->name, order, 2, literal::roomy);
        call.set("src", diagonal(order, 1));
        call.set("src", 1, 0, order - 1, nan);
        EXPECT_EQ(call.run(), vonkOk);
        for (std::uint32_t i = 0; i < order; ++i) // 0 * NaN for the rows below
            EXPECT_TRUE(std::isnan(call.get("dst", 1, i, order - 1))) << "row " << i;
    }
}

// ---- The search over NaNs

// 0 of floats: a NaN is never taken and, once best, stays. Of doubles, by what a candidate that is unordered with the
// best so far changes: 1 the best alone, 2 its position alone, 3 both.
std::size_t searchOf(const Function &function) {
    constexpr std::array ids{"lu-nan-value", "lu-nan-position", "lu-nan-candidate"};
    const auto found = std::ranges::find_if(ids, [&](const char *id) { return isException(function, id); });
    return found == ids.end() ? 0 : static_cast<std::size_t>(found - ids.begin()) + 1;
}

struct NanSearch {
    std::vector<double> column;            // from the position of the pivot down
    std::array<std::uint32_t, 4> expected; // the position taken, by kind of search
};

// Candidates from the second on come in pairs, and the search is of the first one of each.
const std::array nanSearches = std::to_array<NanSearch>({
    // One candidate, the single last: all search plainly.
    {{4, nan}, {0, 0, 0, 0}},
    {{nan, 4}, {0, 0, 0, 0}},
    // A pair. Best NaN: 8 is not greater. Best still 4: 8 is greater.
    {{4, nan, 8}, {2, 0, 2, 1}},
    {{4, nan, 2}, {0, 0, 1, 1}},
    // Best becomes 4, with or without its position; or stays NaN, and 8 is not greater.
    {{nan, 4, 8}, {0, 2, 1, 2}},
    {{nan, 4, 2}, {0, 0, 1, 1}},
    // The second of a pair is looked at plainly.
    {{4, 2, nan}, {0, 0, 0, 0}},
    // A pair and a single last one: 16 is greater than 4, 8 or not than NaN.
    {{4, nan, 8, 16}, {3, 0, 3, 1}},
    {{nan, 4, 8, 16}, {0, 3, 1, 3}},
    // Two pairs. Where best is NaN after the first, the third candidate meets it unordered.
    {{4, nan, 2, 1, 0.5}, {0, 0, 1, 3}},
    {{4, nan, 8, 1, 2}, {2, 4, 2, 4}},
    {{nan, 4, 8, 1, 2}, {0, 2, 3, 2}},
    {{4, 2, 1, nan, 8}, {4, 0, 4, 3}},
    // Two pairs and a single last one, which never is there by position alone: 5x5 is the largest.
    {{4, nan, 8, 1, 0.5, 2}, {2, 5, 0, 5}},
    {{4, 2, 1, nan, 8, 16}, {5, 0, 0, 3}},
});

// The pattern stands in column k below ones on the diagonal, so that the columns before leave it alone. A NaN that is
// taken fails on the spot.
TEST(LuDecompositionNan, IsMetByEachGroupOfFormsInItsOwnWay) {
    for (const auto &[function, order] : literal::sized(section, {2, 3, 4, 5, 6, 7}))
        for (std::size_t pattern = 0; pattern < nanSearches.size(); ++pattern) {
            const auto &[column, expected] = nanSearches[pattern];
            if (column.size() > order) continue;
            SCOPED_TRACE("pattern " + std::to_string(pattern));
            const std::uint32_t taken = expected[searchOf(*function)];
            const std::uint32_t k = order - static_cast<std::uint32_t>(column.size());
            Call call(function->name, order);
            call.set("src", diagonal(order, 1));
            for (std::uint32_t i = k; i < order; ++i) call.set("src", 0, i, k, column[i - k]);
            const std::int32_t status = call.run();
            EXPECT_EQ(call.pivots(0)[k], k + taken);
            if (!std::isnan(column[taken])) continue;
            EXPECT_EQ(status, vonkErrSingular);
            literal::expectSame(call.get("src", 0), call.get("dst", 0), "dst");
        }
}

// ---- Arithmetic

// Row 0 starts with `pivot` and ends with `above`, row 1 starts with `below` and ends with `element`.
struct Corner {
    double pivot, above, below, element;
};

struct Updated {
    double multiplier;
    double element;
};

Updated updated(const Function &function, std::uint32_t order, Setting setting, const Corner &corner) {
    Call call(function.name, order);
    call.set("src", diagonal(order, 8));
    call.set("src", 0, 0, 0, corner.pivot);
    call.set("src", 0, 0, order - 1, corner.above);
    call.set("src", 0, 1, 0, corner.below);
    call.set("src", 0, 1, order - 1, corner.element);
    EXPECT_EQ(call.run(setting), vonkOk);
    return {call.get("dst", 0, 1, 0), call.get("dst", 0, 1, order - 1)};
}

// The multiplier of row 1 is a zero; the element to be updated is -0.
struct ZeroCase {
    double above;
    double multiplier;
    Rounding rounding;
    double narrow; // what becomes of the -0 in 32f
    double wide;   // and in 64f
};

// 32f takes 0 - m, which is +0 for both zeros, or -0 for +0 when rounding down; 64f turns the sign of m. Products with
// +0 and -0 have their signs by rule, and of zeros only -0 + -0 is -0, except that rounding down makes all unlike sums
// -0.
TEST(LuDecompositionArithmetic, NegatesAZeroMultiplierToPlusZeroInFloatsAndToMinusZeroInDoubles) {
    constexpr std::array cases = std::to_array<ZeroCase>({
        {1, 0.0, Rounding::nearest, 0.0, -0.0},
        {1, -0.0, Rounding::nearest, 0.0, 0.0},
        {-1, 0.0, Rounding::nearest, -0.0, 0.0},
        {-1, -0.0, Rounding::nearest, -0.0, -0.0},
        {1, 0.0, Rounding::down, -0.0, -0.0}, // 0 - 0 = -0 here
        {-1, 0.0, Rounding::up, -0.0, 0.0},
    });
    for (const auto &[function, order] : literal::sized(section, {3, 7}))
        for (const ZeroCase &zero : cases) {
            const Setting setting{Precision::bits64, zero.rounding};
            SCOPED_TRACE(function->name + ", " + support::describe(setting));
            const Updated got = updated(*function, order, setting, {1, zero.above, zero.multiplier, -0.0});
            literal::expectSame(zero.multiplier, got.multiplier, "the multiplier");
            literal::expectSame(isFloat(*function) ? zero.narrow : zero.wide, got.element, "the updated zero");
        }
}

// 5/6 is 13981013.33 * 2^-24; 5 times the float nearest 1/6 is 13981013.75 * 2^-24. For doubles it is
// 7505999378950826.67 and 826.25 * 2^-53. A reciprocal would show in the last place.
TEST(LuDecompositionArithmetic, DividesTruly) {
    for (const auto &[function, order] : literal::sized(section, {3}))
        EXPECT_EQ(updated(*function, order, {Precision::bits53, Rounding::nearest}, {6, 0, 5, 0}).multiplier,
                  isFloat(*function) ? 13981013 * 0x1p-24 : 7505999378950827 * 0x1p-53)
            << function->name;
}

struct UpdateCase {
    const char *what;
    Corner corner;
    Precision precision;
    double floats;
    double keptQuotient;     // of doubles of order 3 to 5
    double storedMultiplier; // of the others
};

// The float nearest 1/3 is above it by 2^-25 / 3. Three times that is 1 + 2^-25, which rounds to 1, and 1 - 1 = 0;
// an unrounded product or quotient leaves something else.
// The double nearest 1/3 is below it by 2^-54 / 3, so that 1 - 3 * m = 2^-54, all exact in 64 bits. With the 64-bit
// quotient 3 * m rounds to 1 and nothing is left. With 53 bits 1 - 2^-54 is a tie that goes to 1: nothing is left
// either.
// (2^-600 / 2^500) * 2^100 = 2^-1000, though the quotient is 0 once stored: the registers keep the wide exponents at
// either precision. Floats begin with infinities there.
TEST(LuDecompositionArithmetic, UpdatesWithTheUnroundedQuotientIn3To5OfDoublesAndWithTheStoredMultiplierElsewhere) {
    const Corner third{3, 3, 1, 1}, small{0x1p500, 0x1p100, 0x1p-600, 0};
    const std::array cases = std::to_array<UpdateCase>({
        {"a third at 64 bits", third, Precision::bits64, 0, 0, 0x1p-54},
        {"a third at 53 bits", third, Precision::bits53, 0, 0, 0},
        {"below the range at 64 bits", small, Precision::bits64, nan, -0x1p-1000, 0},
        {"below the range at 53 bits", small, Precision::bits53, nan, -0x1p-1000, 0},
    });
    for (const auto &[function, order] : literal::sized(section, {3, 4, 5, 6, 7}))
        for (const UpdateCase &update : cases) {
            if (isFloat(*function) && std::isnan(update.floats)) continue;
            SCOPED_TRACE(function->name + ": " + update.what);
            const bool keeps = isException(*function, "lu-unrounded-quotient");
            const double expected = isFloat(*function) ? update.floats
                                    : keeps            ? update.keptQuotient
                                                       : update.storedMultiplier;
            const Updated got = updated(*function, order, {update.precision, Rounding::nearest}, update.corner);
            literal::expectSame(expected, got.element, "the updated element");
        }
}

} // namespace
