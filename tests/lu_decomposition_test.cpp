// LU decomposition: factors and pivots by hand in every form, the tolerance, the states that failures leave, and the
// members that go their own way: the displaced look at the last pivot, the search over NaNs, the width of the
// multiplier.
#include "support/family_test.h"

namespace {

using namespace literal::names;

constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr double tolerance = 0x1p-23;

using Pivots = std::vector<std::uint32_t>;

std::vector<const Function *> all(bool (*wanted)(const Function &) = isAny) {
    return literal::members("lu-decomposition", wanted);
}

const std::vector<std::uint32_t> orders{1, 2, 3, 4, 5, 6, 7};

// The look at a displaced last pivot finds numbers there: packed, the last column of U; else what the room is filled
// with.
const std::vector<Geometry> geometries{literal::packed, literal::roomy, literal::roomyBackward};

Pivots identity(std::uint32_t order) {
    Pivots rows(order);
    std::iota(rows.begin(), rows.end(), 0U);
    return rows;
}

std::vector<double> diagonal(std::uint32_t order, double value) {
    std::vector<double> elements(std::size_t{order} * order);
    for (std::uint32_t i = 0; i < order; ++i) elements[std::size_t{i} * order + i] = value;
    return elements;
}

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
    EXPECT_EQ(call.get("dst", n), factors.factored());
    EXPECT_EQ(call.pivots(n), factors.permutation);
}

const literal::Example example{fill, expectDone};

// Objects have their pivots packed behind one another, whatever lies between their matrices.
TEST(LuDecomposition, LeavesFactorsAndPivotsInEveryFormAndGeometry) {
    for (const Function *function : all()) literal::expectResults(*function, example, orders, geometries);
}

TEST(LuDecomposition, FactorsInPlaceInEveryForm) {
    for (const Function *function : all()) literal::expectInPlaceResults(*function, example, "src", orders, geometries);
}

// 2 4 6 / 4 4 4 / 1 5 9: 4 is the first pivot, with multipliers 1/2 and 1/4. What is left of the other two rows is
// 2 4 and 4 8: the third row has the pivot, the multiplier is 1/2, and 4 - 8/2 = 0 remains, which nobody may take.
TEST(LuDecomposition, LeavesRowsWhereTheyAreAndNamesThemInPivots) {
    const double matrix[9] = {2, 4, 6, 4, 4, 4, 1, 5, 9};
    double factored[9] = {};
    std::uint32_t pivots[3] = {};
    EXPECT_EQ(vonkLUDecomp_m_64f(matrix, 24, pivots, factored, 24, 3), vonkErrSingular);
    const std::vector<double> expected{0.5, 0.5, 0, 4, 4, 4, 0.25, 4, 8};
    EXPECT_EQ(std::vector<double>(factored, factored + 9), expected);
    EXPECT_EQ(Pivots(pivots, pivots + 3), (Pivots{1, 2, 0}));
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
    struct Case {
        std::vector<double> column;
        std::uint32_t expected;
    };
    const std::array cases = std::to_array<Case>({
        {{1, 1, 1}, 0},
        {{1, -1, 1}, 0},
        {{-2, 1, 2}, 0},
        {{1, -2, 2}, 1},
        {{1, 2, -2}, 1},
        {{1, 2, 3}, 2},
        {{-infinity, infinity, 1}, 0},
        {{1, 1, infinity}, 2},
    });
    for (const Function *function : all())
        for (const Case &expectation : cases)
            for (const std::uint32_t order : literal::sizesOf(*function, {3, 4, 7})) {
                Call call(function->name, order);
                call.set("src", 0, diagonal(order, 1));
                for (std::uint32_t i = 0; i < 3; ++i) call.set("src", 0, i, 0, expectation.column[i]);
                call.run();
                EXPECT_EQ(call.pivots(0)[0], expectation.expected);
            }
}

TEST(LuDecomposition, CopiesTheOnlyElementOfOrderOne) {
    for (const Function *function : all(isRunTime)) {
        for (const double element : {5.0, -tolerance, 0x1p-24, 0.0, nan}) {
            SCOPED_TRACE(function->name + ", element " + std::to_string(element));
            Call call(function->name, 1);
            call.set("src", 0, {element});
            EXPECT_EQ(call.run(), std::fabs(element) >= tolerance ? vonkOk : vonkErrSingular);
            expectObject(call, 0, {element}, {0});
        }
    }
}

// The destination lies one object ahead of the source, so that object 1 is made of what object 0 has left: the first
// time 1/2 is the multiplier of 1 and 2, the second time 1/4 that of 1/2 and 2.
TEST(LuDecomposition, FinishesEachObjectBeforeItCopiesTheNext) {
    for (const Function *function : all(isArray)) {
        if (function->order != 0 && function->order != 3) continue;
        Call call(function->name, 3, 2);
        call["dst"].moveTo(call["src"].origin + call["src"].objectStride);
        call.set("src", 1, diagonal(3, 7));
        call.set("src", 0, {2, 0, 0, 1, 4, 1, 0, 0, 8});
        ASSERT_EQ(call.run(), vonkOk);
        expectObject(call, 0, {2, 0, 0, 0.5, 4, 1, 0, 0, 8}, identity(3));
        expectObject(call, 1, {2, 0, 0, 0.25, 4, 1, 0, 0, 8}, identity(3));
    }
}

// One element ahead, the copy goes forward and sees what it has written: all elements become the first. That leaves 1
// as multiplier and 0 as the second pivot.
TEST(LuDecomposition, CopiesForwardWhereTheMatricesOverlap) {
    for (const Function *function : all()) {
        if (function->order > 3 || !function->layout.empty()) continue;
        Call call(function->name, 3);
        call.set("src", 0, {3, 1, 4, 1, 5, 9, 2, 6, 5});
        call["dst"].moveTo(call["src"].origin + call["src"].elementSize);
        EXPECT_EQ(call.run(), vonkErrSingular);
        expectObject(call, 0, {3, 3, 3, 1, 0, 0, 1, 0, 0}, identity(3));
    }
}

// Element (i, j) of the result is m[i + j]. Copied forward, that leaves m = 2 0 1 1/4 3; the multipliers are then
// stored where elements of the pivot rows lie: 0 and 1/2 of the first, 1/2 of the second.
TEST(LuDecomposition, StoresEveryStepWhereElementsOfTheResultOverlap) {
    for (const Function *function : all()) {
        if (function->order != 0 && function->order != 3) continue;
        Call call(function->name, 3);
        literal::Place &dst = call["dst"];
        dst.rowStride = dst.elementStride != 0 ? dst.elementStride : dst.elementSize;
        if (catalogue::isTable(dst.operand->layout))
            for (std::size_t k = 8; k > 0; --k)
                dst.entries[k] = dst.entries[0] + dst.elementSize * static_cast<int>(k / 3 + k % 3);
        call.set("src", 0, {2, 7, 7, 0, 7, 7, 1, 0.25, 3});
        ASSERT_EQ(call.run(), vonkOk);
        expectObject(call, 0, {2, 0, 0.5, 0, 0.5, 0.5, 0.5, 0.5, 2.5}, identity(3));
    }
}

// ---- Singular matrices

// A diagonal matrix, so that the candidates of each column are the pivot and zeros.
TEST(LuDecompositionTolerance, IsTwoToTheMinus23ForBothTypesAndEqualPasses) {
    for (const Function *function : all()) {
        const bool narrow = function->type == Type::real32;
        const double below =
            narrow ? std::nextafter(static_cast<float>(tolerance), 0.0F) : std::nextafter(tolerance, 0.0);
        const std::array<std::pair<double, bool>, 9> cases{{{tolerance, true},
                                                            {-tolerance, true},
                                                            {below, false},
                                                            {-below, false},
                                                            {1e-10, false},
                                                            {0.0, false},
                                                            {nan, false},
                                                            {infinity, true},
                                                            {0x1p-126, false}}};
        for (const auto &[pivot, passes] : cases)
            for (const std::uint32_t order : literal::sizesOf(*function, {1, 2, 4, 7}))
                for (std::uint32_t k = 0; k < order; ++k) {
                    SCOPED_TRACE(function->name + ", pivot " + std::to_string(k) + " is " + std::to_string(pivot));
                    Call call(function->name, order);
                    call.set("src", 0, diagonal(order, 1));
                    call.set("src", 0, k, k, pivot);
                    EXPECT_EQ(call.run(), passes ? vonkOk : vonkErrSingular);
                    if (std::isnan(pivot)) continue;                   // which moves the search
                    EXPECT_EQ(call.get("dst", 0), call.get("src", 0)); // or -0 for 0
                    EXPECT_EQ(call.pivots(0), identity(order));
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
    // As above with 1 in place of 2^-24: it is a pivot, the multiplier is 0, and 0 - 0 * 2 = 0 is the last pivot.
    {"the last pivot is zero", {1, 1, 3, 2, 0, 2, 4, 0, 4}, {0.25, 1, 2, 0.5, 0, 0, 4, 0, 4}, {2, 0, 1}},
});

TEST(LuDecompositionFailure, LeavesTheObjectAsFarAsItGot) {
    for (const Function *function : all()) {
        if (function->order != 0 && function->order != 3) continue;
        for (const Failure &failure : failures) {
            SCOPED_TRACE(function->name + ": " + failure.what);
            Call call(function->name, 3);
            call.set("src", 0, failure.matrix);
            EXPECT_EQ(call.run(), vonkErrSingular);
            EXPECT_EQ(call.get("dst", 0), failure.left);
            EXPECT_EQ(call.pivots(0), failure.pivots);
            EXPECT_FALSE(call.strayWrites());
        }
    }
}

TEST(LuDecompositionFailure, EndsTheCallWithTheObjectsBeforeDoneAndThoseAfterUntouched) {
    for (const Function *function : all(isArray))
        for (const std::uint32_t order : literal::sizesOf(*function, {2, 5})) {
            Call call(function->name, order, 4);
            fill(call);
            call.set("src", 2, diagonal(order, 0));
            EXPECT_EQ(call.run(), vonkErrSingular);
            expectDone(call, 0);
            expectDone(call, 1);
            expectObject(call, 2, diagonal(order, 0), identity(order));
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

struct Look {
    double ownLastPivot;
    double displacedElement;
    bool passes;
};

// In a roomy geometry the look goes past the row into the gap behind it, or to an entry of the table behind the matrix.
void expectLook(const Function &function, std::uint32_t order, std::uint32_t lastRow, Geometry geometry, Look look) {
    constexpr std::uint32_t objects = 3;
    for (std::uint32_t looked = 1; looked < objects; ++looked) {
        SCOPED_TRACE(function.name + ", order " + std::to_string(order) + ", last pivot " +
                     std::to_string(look.ownLastPivot) + " in row " + std::to_string(lastRow) + ", object " +
                     std::to_string(looked) + " finds " + std::to_string(look.displacedElement));
        Call call(function.name, order, objects, geometry);
        std::vector<Factors> factors;
        for (std::uint32_t n = 0; n < objects; ++n) {
            factors.emplace_back(order, n);
            factors[n].leaveLastRow(lastRow);
            if (n == looked) factors[n].lastPivot = look.ownLastPivot;
            call.set("src", n, factors[n].matrix());
        }
        call.setAt(displaced(call, looked, lastRow), look.displacedElement);
        EXPECT_EQ(call.run(), look.passes ? vonkOk : vonkErrSingular);
        for (std::uint32_t n = 0; n < objects; ++n)
            if (n <= looked || look.passes) expectObject(call, n, factors[n].factored(), factors[n].permutation);
            else EXPECT_FALSE(call.changedObject(n)) << "object " << n;
        EXPECT_FALSE(call.strayWrites());
    }
}

TEST(LuDecompositionLastPivot, IsLookedForPastItsRowInEveryArrayForm) {
    for (const Function *function : all(isArray)) {
        const double below = function->type == Type::real32 ? std::nextafter(static_cast<float>(tolerance), 0.0F)
                                                            : std::nextafter(tolerance, 0.0);
        const std::array looks = std::to_array<Look>({{0, 1, true},
                                                      {0, -5, true},
                                                      {0, tolerance, true},
                                                      {0, -tolerance, true},
                                                      {0, infinity, true},
                                                      {8, 0, false},
                                                      {8, below, false},
                                                      {8, nan, false}});
        for (const std::uint32_t order : literal::sizesOf(*function, {1, 2, 3, 5}))
            for (const Geometry geometry : {literal::roomy, literal::roomyBackward})
                for (const Look &look : looks) {
                    expectLook(*function, order, order - 1, geometry, look);
                    const bool table = catalogue::isTable(function->operands[0].layout);
                    if (!table && order > 1) expectLook(*function, order, 0, geometry, look);
                }
    }
}

TEST(LuDecompositionLastPivot, OfTheFirstObjectIsLookedForInItsPlace) {
    for (const Function *function : all(isArray))
        for (const std::uint32_t order : literal::sizesOf(*function, {1, 4})) {
            Call call(function->name, order, 2, literal::roomy);
            Factors factors(order, 0);
            factors.lastPivot = 0;
            call.set("src", 0, factors.matrix());
            call.set("src", 1, Factors(order, 1).matrix());
            EXPECT_EQ(call.run(), vonkErrSingular);
            expectObject(call, 0, factors.factored(), factors.permutation);
            EXPECT_FALSE(call.changedObject(1));
        }
}

// Packed, the look goes one row down. The rows of object 1 serve bottom up: its last pivot is in the top row, and the
// look goes to the middle one.
TEST(LuDecompositionLastPivot, IsLookedForOneRowDownInPackedObjects) {
    const std::vector<double> singular{0, 0, 0, 0, 4, 5, 4, 0, 0};
    const std::vector<double> innocent{0, 0, 9, 0, 4, 0, 4, 0, 0};
    for (const Function *function : all(isArray)) {
        if (function->order != 0 && function->order != 3) continue;
        for (const bool passes : {true, false}) {
            const std::vector<double> &matrix = passes ? singular : innocent;
            Call call(function->name, 3, 3);
            call.set("src", 0, diagonal(3, 1));
            call.set("src", 1, matrix);
            call.set("src", 2, diagonal(3, 2));
            EXPECT_EQ(call.run(), passes ? vonkOk : vonkErrSingular);
            expectObject(call, 0, diagonal(3, 1), identity(3));
            expectObject(call, 1, matrix, {2, 1, 0});
            EXPECT_EQ(call.changedObject(2), passes);
        }
    }
}

// Object 1 of order 1 is itself never looked at, but the element behind it.
TEST(LuDecompositionLastPivot, OfOrderOneIsTheElementAsFarBehind) {
    const double elements[2] = {5, 0};
    double factored[3] = {0, 0, 7};
    std::uint32_t pivots[2] = {9, 9};
    EXPECT_EQ(vonkLUDecomp_ma_64f(elements, 8, 8, pivots, factored, 8, 8, 1, 2), vonkOk);
    EXPECT_EQ(std::vector<double>(factored, factored + 3), (std::vector<double>{5, 0, 7}));
    EXPECT_EQ(Pivots(pivots, pivots + 2), (Pivots{0, 0}));
    const double others[2] = {5, 6};
    factored[2] = 0;
    EXPECT_EQ(vonkLUDecomp_ma_64f(others, 8, 8, pivots, factored, 8, 8, 1, 2), vonkErrSingular);
}

// A NaN in the last column reaches the last pivot, which in objects after the first nobody looks at.
TEST(LuDecompositionLastPivot, MayBeNanAfterTheFirstObject) {
    for (const Function *function : all(isArray))
        for (const std::uint32_t order : literal::sizesOf(*function, {3})) {
            Call call(function->name, order, 2, literal::roomy);
            for (std::uint32_t n = 0; n < 2; ++n) call.set("src", n, diagonal(order, 1));
            call.set("src", 1, 0, order - 1, nan);
            EXPECT_EQ(call.run(), vonkOk);
            for (std::uint32_t i = 0; i < order; ++i) // 0 * NaN for the rows below
                EXPECT_TRUE(std::isnan(call.get("dst", 1, i, order - 1))) << "row " << i;
        }
}

// ---- The search over NaNs

enum class Search {
    plain,            // a NaN is never taken and, once best, stays: 32f
    valueOnly,        // 64f, m, run-time size and 6x6
    positionOnly,     // 64f, 3x3 to 5x5
    valueAndPosition, // 64f, ma, run-time size and 6x6
};

Search searchOf(const Function &function) {
    if (function.type == Type::real32) return Search::plain;
    if (function.order >= 3 && function.order <= 5) return Search::positionOnly;
    return function.array() ? Search::valueAndPosition : Search::valueOnly;
}

struct NanSearch {
    std::vector<double> column;            // from the position of the pivot down
    std::array<std::uint32_t, 4> expected; // the position taken, by kind of search
};

// Candidates from the second on come in pairs. Of each pair's first element, unordered with the best so far: valueOnly
// makes it the best but leaves the position, positionOnly takes the position but leaves the best, the last takes both.
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
    {{2, 4, nan}, {1, 1, 1, 1}},
    // A pair and a single last one: 16 is greater than 4, 8 or not than NaN.
    {{4, nan, 8, 16}, {3, 0, 3, 1}},
    {{nan, 4, 8, 16}, {0, 3, 1, 3}},
    {{4, 2, 1, nan}, {0, 0, 0, 0}},
    // Two pairs. Where best is NaN after the first, the third candidate meets it unordered.
    {{4, nan, 8, 1, 0.5}, {2, 0, 2, 3}},
    {{4, nan, 2, 1, 0.5}, {0, 0, 1, 3}},
    {{4, nan, 2, 8, 0.5}, {3, 0, 3, 3}},
    {{4, nan, 8, 1, 2}, {2, 4, 2, 4}},
    {{nan, 4, 8, 1, 2}, {0, 2, 3, 2}},
    {{4, 2, 1, nan, 8}, {4, 0, 4, 3}},
    // Two pairs and a single last one, which is never positionOnly's: 5x5 is its largest.
    {{4, nan, 8, 1, 0.5, 2}, {2, 5, 0, 5}},
    {{4, 2, 1, nan, 8, 16}, {5, 0, 0, 3}},
});

// The pattern stands in column k below ones on the diagonal, so that the columns before leave it alone.
void expectSearch(const Function &function, std::uint32_t order, const NanSearch &search) {
    const auto rows = static_cast<std::uint32_t>(search.column.size());
    const std::uint32_t k = order - rows;
    const std::uint32_t taken = search.expected[static_cast<std::size_t>(searchOf(function))];
    const double pivot = search.column[taken];
    Call call(function.name, order);
    call.set("src", 0, diagonal(order, 1));
    for (std::uint32_t i = 0; i < rows; ++i) call.set("src", 0, k + i, k, search.column[i]);
    const std::vector<double> matrix = call.get("src", 0);
    const std::int32_t status = call.run();
    EXPECT_EQ(call.pivots(0)[k], k + taken);
    if (std::isnan(pivot)) { // fails on the spot, with nothing eliminated
        EXPECT_EQ(status, vonkErrSingular);
        literal::expectSame(matrix, call.get("dst", 0), "dst");
        return;
    }
    for (std::uint32_t i = 0; i < rows; ++i) { // the taken pivot has divided all others
        const double expected = i == taken ? pivot : search.column[i] / pivot;
        literal::expectSame(expected, call.get("dst", 0, k + i, k), "row " + std::to_string(k + i));
    }
}

TEST(LuDecompositionNan, IsMetByEachGroupOfFormsInItsOwnWay) {
    for (const Function *function : all())
        for (const std::uint32_t order : literal::sizesOf(*function, {2, 3, 4, 5, 6, 7}))
            for (std::size_t k = 0; k < nanSearches.size(); ++k) {
                if (nanSearches[k].column.size() > order) continue;
                SCOPED_TRACE(function->name + ", order " + std::to_string(order) + ", pattern " + std::to_string(k));
                expectSearch(*function, order, nanSearches[k]);
            }
}

// ---- Arithmetic

// 0 / 1 / 0 is the multiplier of row 1 and 2 in turn; the element to be updated in column 2 is -0.
struct ZeroCase {
    double multiplied; // the element of row 0 in the last column
    double multiplier; // the element of row 1 in the first column, over 1
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
    for (const Function *function : all())
        for (const ZeroCase &zero : cases)
            for (const std::uint32_t order : literal::sizesOf(*function, {3, 7})) {
                const support::Setting setting{Precision::bits64, zero.rounding};
                SCOPED_TRACE(function->name + ", " + support::describe(setting));
                Call call(function->name, order);
                call.set("src", 0, diagonal(order, 1));
                call.set("src", 0, 0, order - 1, zero.multiplied);
                call.set("src", 0, 1, 0, zero.multiplier);
                call.set("src", 0, 1, order - 1, -0.0);
                EXPECT_EQ(call.run(setting), vonkOk);
                literal::expectSame(zero.multiplier, call.get("dst", 0, 1, 0), "the multiplier");
                literal::expectSame(function->type == Type::real32 ? zero.narrow : zero.wide,
                                    call.get("dst", 0, 1, order - 1), "the updated zero");
            }
}

// The float nearest 1/3 is above it by 2^-25 / 3. Three times that is 1 + 2^-25, which rounds to 1, and 1 - 1 = 0;
// an unrounded product or quotient leaves something else.
TEST(LuDecompositionArithmetic, RoundsEveryOperationOnFloats) {
    for (const Function *function : all(isFloat)) {
        for (const std::uint32_t order : literal::sizesOf(*function, {3, 7}))
            for (const Precision precision : {Precision::bits53, Precision::bits64}) {
                Call call(function->name, order);
                call.set("src", 0, diagonal(order, 8));
                call.set("src", 0, 0, 0, 3);
                call.set("src", 0, 0, order - 1, 3);
                call.set("src", 0, 1, 0, 1);
                call.set("src", 0, 1, order - 1, 1);
                EXPECT_EQ(call.run({precision, Rounding::nearest}), vonkOk);
                EXPECT_EQ(call.get("dst", 0, 1, 0), 0x1.555556p-2);
                literal::expectSame(0.0, call.get("dst", 0, 1, order - 1), "the updated element");
            }
    }
}

// 5/6 is 13981013.33 * 2^-24; 5 times the float nearest 1/6 is 13981013.75 * 2^-24. For doubles it is
// 7505999378950826.67 and 826.25 * 2^-53. A reciprocal would show in the last place.
TEST(LuDecompositionArithmetic, DividesTruly) {
    for (const Function *function : all())
        for (const std::uint32_t order : literal::sizesOf(*function, {3})) {
            Call call(function->name, order);
            call.set("src", 0, diagonal(order, 8));
            call.set("src", 0, 0, 0, 6);
            call.set("src", 0, 1, 0, 5);
            EXPECT_EQ(call.run({Precision::bits53, Rounding::nearest}), vonkOk);
            EXPECT_EQ(call.get("dst", 0, 1, 0),
                      function->type == Type::real32 ? 13981013 * 0x1p-24 : 7505999378950827 * 0x1p-53);
        }
}

bool keepsQuotient(const Function &function) { return function.order >= 3 && function.order <= 5; }

// Row 0 starts with `pivot` and ends with `above`, row 1 starts with `below` and ends with `element`; tells what
// becomes of that last element.
double updated(const Function &function, std::uint32_t order, Precision precision, std::array<double, 4> corner) {
    const auto &[pivot, above, below, element] = corner;
    Call call(function.name, order);
    call.set("src", 0, diagonal(order, 8));
    call.set("src", 0, 0, 0, pivot);
    call.set("src", 0, 0, order - 1, above);
    call.set("src", 0, 1, 0, below);
    call.set("src", 0, 1, order - 1, element);
    EXPECT_EQ(call.run({precision, Rounding::nearest}), vonkOk);
    return call.get("dst", 0, 1, order - 1);
}

// The double nearest 1/3 is below it by 2^-54 / 3, so that 1 - 3 * m = 2^-54, all exact in 64 bits. With the 64-bit
// quotient 3 * m rounds to 1 and nothing is left. With 53 bits 1 - 2^-54 is a tie that goes to 1: nothing is left
// either.
TEST(LuDecompositionArithmetic, UpdatesWithTheUnroundedQuotientIn3To5AndWithTheStoredMultiplierElsewhere) {
    for (const Function *function : all(isDouble)) {
        for (const std::uint32_t order : literal::sizesOf(*function, {3, 4, 5, 6, 7})) {
            SCOPED_TRACE(function->name + ", order " + std::to_string(order));
            EXPECT_EQ(updated(*function, order, Precision::bits64, {3, 3, 1, 1}),
                      keepsQuotient(*function) ? 0 : 0x1p-54);
            EXPECT_EQ(updated(*function, order, Precision::bits53, {3, 3, 1, 1}), 0);
        }
    }
}

// (2^-600 / 2^500) * 2^100 = 2^-1000, though the quotient is 0 once stored: the registers keep the wide exponents at
// either precision.
TEST(LuDecompositionArithmetic, UpdatesWithAQuotientBelowTheRangeOfDoublesIn3To5) {
    for (const Function *function : all(isDouble)) {
        for (const std::uint32_t order : literal::sizesOf(*function, {3, 4, 5, 6, 7}))
            for (const Precision precision : {Precision::bits53, Precision::bits64}) {
                SCOPED_TRACE(function->name + ", order " + std::to_string(order));
                literal::expectSame(keepsQuotient(*function) ? -0x1p-1000 : 0.0,
                                    updated(*function, order, precision, {0x1p500, 0x1p100, 0x1p-600, 0}),
                                    "the update");
            }
    }
}

constexpr double small = 0x1p-20;
constexpr double large = 0x1p1020; // in row 2

struct Misled {
    std::vector<double> column;
    std::uint32_t taken;
};

// Columns whose NaN makes the search pass over the large element and take the small one.
Misled misled(const Function &function) {
    switch (function.order) {
    case 3: return {{nan, small, large}, 1};       // the position goes to 1, best stays NaN
    case 4: return {{nan, small, large, 0}, 1};    // the same
    case 5: return {{nan, 0, large, small, 0}, 3}; // and goes on to the first of the second pair
    default: break;
    }
    if (function.array()) return {{0, nan, large, small, 0, 0}, 3}; // the NaN is taken, then 2^-20 is
    return {{small, nan, large, 0x1p-30, 0, 0}, 0};                 // the NaN is best, then 2^-30, the position stays
}

// A pivot is the smaller one only if a NaN has misled the search. The quotient of 2^1020 and 2^-20 is infinite once
// stored. Times 2^-60 it is 2^980 where the quotient is kept.
TEST(LuDecompositionArithmetic, UpdatesWithAQuotientBeyondTheRangeOfDoublesIn3To5) {
    for (const Function *function : all(isDouble)) {
        for (const Precision precision : {Precision::bits53, Precision::bits64}) {
            const Misled search = misled(*function);
            const auto order = static_cast<std::uint32_t>(search.column.size());
            Call call(function->name, order);
            call.set("src", 0, diagonal(order, 8));
            for (std::uint32_t i = 0; i < order; ++i) call.set("src", 0, i, 0, search.column[i]);
            call.set("src", 0, 2, order - 1, 0);
            call.set("src", 0, search.taken, order - 1, 0x1p-60);
            {
                const SettingScope scope({precision, Rounding::nearest});
                call.run(); // the row of the NaN may spoil it later
            }
            ASSERT_EQ(call.pivots(0)[0], search.taken);
            EXPECT_EQ(call.get("dst", 0, 2, 0), infinity);
            EXPECT_EQ(call.get("dst", 0, 2, order - 1), keepsQuotient(*function) ? -0x1p980 : -infinity);
        }
    }
}

} // namespace
