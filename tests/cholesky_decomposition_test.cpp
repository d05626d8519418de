// Cholesky decomposition: factors by hand in every form, the test of the pivots and what a failure leaves, where the
// wide arithmetic is rounded, and the members that go their own way: the first pivot that may be a NaN, strides of
// whole elements, the count that is a dimension and may be negative.
#include "support/family_test.h"

namespace {

using namespace literal::names;

constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr double untouched = 99;

std::vector<const Function *> all(bool (*wanted)(const Function &) = isAny) {
    return literal::members("cholesky-decomposition", wanted);
}

bool isInTable(const Function &function) { return catalogue::isTable(function.operands[0].layout); }

bool hasElementStrides(const Function &function) { return function.layout == "S2" || function.layout == "LS2"; }

// No loop and no look at `dst`.
bool isStraight(const Function &function, std::uint32_t order) {
    return order >= 3 && order <= 6 && !isInTable(function);
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
    for (std::uint32_t i = 0; i < call.size(); ++i)
        for (std::uint32_t j = 0; j < call.size(); ++j) call.set("dst", n, i, j, untouched);
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
    for (std::uint32_t i = 0; i < call.size(); ++i)
        for (std::uint32_t j = 0; j < call.size(); ++j) {
            const bool done = j <= i && (i < rows || (i == rows && j < more));
            const double factor = i == j ? 1 / lower(variant, i, i) : lower(variant, i, j);
            literal::expectSame(done ? factor : untouched, call.get("dst", n, i, j),
                                "(" + std::to_string(i) + ", " + std::to_string(j) + ")");
        }
}

void expectDone(Call &call, std::uint32_t n) { expectFactor(call, n, n, call.size()); }

const literal::Example example{fill, expectDone};

TEST(CholeskyDecomposition, LeavesTheLowerFactorWithReciprocalsOnItsDiagonalInEveryForm) {
    for (const Function *function : all()) literal::expectResults(*function, example, orders, geometries);
}

TEST(CholeskyDecomposition, FactorsInPlaceInEveryForm) {
    for (const Function *function : all()) literal::expectInPlaceResults(*function, example, "src", orders, geometries);
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
    for (const Function *function : all()) {
        if (!isInTable(*function)) continue;
        for (const std::uint32_t order : literal::sizesOf(*function, {2, 3, 7}))
            for (const std::uintptr_t garbage : {std::uintptr_t{0}, std::uintptr_t{64}, ~std::uintptr_t{0}}) {
                Call call(function->name, order, 2);
                fill(call);
                std::vector<std::vector<std::byte *>> kept;
                for (const char *operand : {"src", "dst"}) {
                    kept.push_back(call[operand].entries);
                    for (std::uint32_t i = 0; i < order; ++i)
                        for (std::uint32_t j = i + 1; j < order; ++j)
                            call[operand].entries[i * order + j] = reinterpret_cast<std::byte *>(garbage);
                }
                EXPECT_EQ(call.run(), vonkOk);
                call["src"].entries = kept[0];
                call["dst"].entries = kept[1];
                for (std::uint32_t n = 0; n < call.count(); ++n) expectDone(call, n);
            }
    }
}

// The destination lies one object ahead of the source: what object 0 leaves of 16 is 1/4, of which object 1 makes 2.
TEST(CholeskyDecomposition, FinishesEachObjectBeforeTheNext) {
    for (const Function *function : all(isArray))
        for (const std::uint32_t order : literal::sizesOf(*function, {1, 3, 7})) {
            Call call(function->name, order, 2);
            call["dst"].moveTo(call["src"].origin + call["src"].objectStride);
            for (std::uint32_t i = 0; i < order; ++i)
                for (std::uint32_t j = 0; j <= i; ++j) call.set("src", 0, i, j, i == j ? 16 : 0);
            ASSERT_EQ(call.run(), vonkOk);
            for (std::uint32_t i = 0; i < order; ++i) {
                EXPECT_EQ(call.get("dst", 0, i, i), 0.25);
                EXPECT_EQ(call.get("dst", 1, i, i), 2);
            }
        }
}

// ---- Pivots

struct Pivot {
    double pivot;
    bool passes;
    double reciprocal; // of its root
};

// A diagonal of fours in which one element is the pivot.
void expectPivot(const Function &function, std::uint32_t order, std::uint32_t k, const Pivot &pivot) {
    SCOPED_TRACE(function.name + ", order " + std::to_string(order) + ", pivot " + std::to_string(k) + " is " +
                 std::to_string(pivot.pivot));
    Call call(function.name, order);
    for (std::uint32_t i = 0; i < order; ++i)
        for (std::uint32_t j = 0; j < order; ++j) {
            call.set("dst", 0, i, j, untouched);
            call.set("src", 0, i, j, i != j ? 0 : i == k ? pivot.pivot : 4);
        }
    EXPECT_EQ(call.run(), pivot.passes ? vonkOk : vonkErrNotPosDef);
    for (std::uint32_t i = 0; i < order; ++i)
        for (std::uint32_t j = 0; j < order; ++j) {
            const bool done = j <= i && (pivot.passes || i < k || (i == k && j < i));
            const double expected = !done ? untouched : i != j ? 0 : i == k ? pivot.reciprocal : 0.5;
            literal::expectSame(expected, call.get("dst", 0, i, j),
                                "(" + std::to_string(i) + ", " + std::to_string(j) + ")");
        }
    EXPECT_FALSE(call.strayWrites());
}

TEST(CholeskyDecompositionPivots, PassIfGreaterThanZeroWhateverTheirSize) {
    for (const Function *function : all()) {
        const bool narrow = function->type == Type::real32;
        const double least = narrow ? 0x1p-148 : 0x1p-1074;
        const double ofLeast = narrow ? 0x1p74 : 0x1p537;
        const std::array pivots = std::to_array<Pivot>({{least, true, ofLeast},
                                                        {0x1p-100, true, 0x1p50},
                                                        {0x1p100, true, 0x1p-50},
                                                        {infinity, true, 0.0},
                                                        {0.0, false, 0},
                                                        {-0.0, false, 0},
                                                        {-least, false, 0},
                                                        {-4, false, 0},
                                                        {-infinity, false, 0}});
        for (const Pivot &pivot : pivots)
            for (const std::uint32_t order : literal::sizesOf(*function, {1, 2, 3, 4, 5, 6, 7}))
                for (std::uint32_t k = 0; k < order; ++k) expectPivot(*function, order, k, pivot);
    }
}

// The first pivot of doubles of order 3 and 4 is tested the other way round, but through tables.
bool letsNanPass(const Function &function, std::uint32_t order, std::uint32_t k) {
    return function.type == Type::real64 && isStraight(function, order) && order <= 4 && k == 0;
}

TEST(CholeskyDecompositionPivots, FailIfNotANumberButForTheFirstOfDoublesOfOrderThreeAndFour) {
    for (const Function *function : all())
        for (const std::uint32_t order : literal::sizesOf(*function, {1, 2, 3, 4, 5, 6, 7}))
            for (std::uint32_t k = 0; k < order; ++k)
                if (!letsNanPass(*function, order, k)) expectPivot(*function, order, k, {nan, false, 0});
}

// It is followed by the element below it, and the next pivot fails.
TEST(CholeskyDecompositionPivots, MayBeNoNumberAtFirstForDoublesOfOrderThreeAndFour) {
    std::size_t passing = 0;
    for (const Function *function : all())
        for (const std::uint32_t order : literal::sizesOf(*function, {3, 4})) {
            if (!letsNanPass(*function, order, 0)) continue;
            ++passing;
            Call call(function->name, order, 2);
            fill(call);
            call.set("src", 0, 0, 0, nan);
            EXPECT_EQ(call.run(), vonkErrNotPosDef);
            for (std::uint32_t i = 0; i < order; ++i)
                for (std::uint32_t j = 0; j < order; ++j)
                    literal::expectSame(j == 0 && i <= 1 ? nan : untouched, call.get("dst", 0, i, j),
                                        "(" + std::to_string(i) + ", " + std::to_string(j) + ")");
            if (function->array()) {
                EXPECT_FALSE(call.changedObject(1));
            }
        }
    EXPECT_EQ(passing, 6U * 4U); // two layouts of one object, four of arrays; run-time size at two orders, two sizes
}

// Nothing of the matrix but the pivot itself is at fault: 1 - 1 * 1 = 0 in row 1, and further down likewise.
TEST(CholeskyDecompositionPivots, FailAtExactlyZeroWithTheRowLeftOfThemStored) {
    for (const Function *function : all())
        for (const std::uint32_t order : literal::sizesOf(*function, {2, 3, 7}))
            for (std::uint32_t k = 1; k < order; ++k) {
                SCOPED_TRACE(function->name + ", row " + std::to_string(k));
                Call call(function->name, order);
                setMatrix(call, 0, 1);
                const double root = lower(1, k, k);
                call.set("src", 0, k, k, square(1, k, k) - root * root);
                EXPECT_EQ(call.run(), vonkErrNotPosDef);
                expectFactor(call, 0, 1, k, k);
            }
}

TEST(CholeskyDecompositionPivots, EndTheCallWithTheObjectsBeforeDoneAndThoseAfterUntouched) {
    for (const Function *function : all(isArray))
        for (const std::uint32_t order : literal::sizesOf(*function, {2, 5, 7})) {
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
    for (const Function *function : all(isFloat))
        for (const std::uint32_t order : literal::sizesOf(*function, {1, 2, 3, 7}))
            for (const Precision precision : {Precision::bits53, Precision::bits64}) {
                Call call(function->name, order);
                for (std::uint32_t i = 0; i < order; ++i)
                    for (std::uint32_t j = 0; j <= i; ++j) call.set("src", 0, i, j, i == j ? 7 : 0);
                const SettingScope scope({precision, Rounding::nearest});
                ASSERT_EQ(call.run(), vonkOk);
                for (std::uint32_t i = 0; i < order; ++i)
                    EXPECT_EQ(call.get("dst", 0, i, i), (isInTable(*function) ? 12682384 : 12682383) * 0x1p-25);
            }
}

// Roots of one, so that an element of the factor is what is left of the matrix's own; the last row's is read.
struct Remainder {
    std::vector<double> left; // of the factor, the last row
    double pivot;             // of the matrix
};

double reciprocalOf(const Function &function, std::uint32_t order, const Remainder &remainder) {
    const auto row = static_cast<std::uint32_t>(remainder.left.size());
    Call call(function.name, order);
    for (std::uint32_t i = 0; i < order; ++i)
        for (std::uint32_t j = 0; j <= i; ++j)
            call.set("src", 0, i, j, i == row ? (j == row ? remainder.pivot : remainder.left[j]) : i == j ? 1 : 0);
    EXPECT_EQ(call.run(), vonkOk);
    return call.get("dst", 0, row, row);
}

// (1 + 2^-12)^2 = 1 + 2^-11 + 2^-24 is rounded to 1 + 2^-11 ahead of the difference: 2^-22 is left of 1 + 2^-11 +
// 2^-22, and 3 * 2^-24 would be if it were not.
TEST(CholeskyDecompositionRounding, OfFloatsIsDoneAtEveryStep) {
    for (const Function *function : all(isFloat))
        for (const std::uint32_t order : literal::sizesOf(*function, {2, 3, 7})) {
            SCOPED_TRACE(function->name);
            EXPECT_EQ(reciprocalOf(*function, order, {{1 + 0x1p-12}, 1 + 0x1p-11 + 0x1p-22}), 0x1p11);
            if (order < 4) continue;
            // 2^-24 is half a last place of 1 + 2^-22, which has an even one: it is lost there twice, not added up.
            EXPECT_EQ(reciprocalOf(*function, order, {{0x1p-12, 0x1p-12, 1}, 1 + 0x1p-22}), 0x1p11);
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
    for (const Function *function : all(isDouble))
        for (const std::uint32_t order : literal::sizesOf(*function, {2, 3, 4, 5, 6, 7, 8})) {
            SCOPED_TRACE(function->name + ", order " + std::to_string(order));
            const bool straight = isStraight(*function, order);
            // A product is not rounded: 2^-52 - 2^-54 = 3 * 2^-54 is left and not 2^-52.
            EXPECT_EQ(reciprocalOf(*function, order, {{a}, 1 + 0x1p-26 + 0x1p-52}),
                      static_cast<double>(0x1p27L / std::sqrt(3.0L)));
            if (order >= 3) { // within a pair nothing is
                EXPECT_EQ(reciprocalOf(*function, order, {{a, b}, sumOfSquares}), fifteenth());
            }
            if (order >= 4) { // but behind it
                EXPECT_EQ(reciprocalOf(*function, order, {{a, 0, b}, sumOfSquares}), straight ? fifteenth() : 0x1p25);
                EXPECT_EQ(reciprocalOf(*function, order, {{0, a, b}, sumOfSquares}), straight ? fifteenth() : 0x1p25);
            }
            if (order >= 5) { // two pairs run through without
                EXPECT_EQ(reciprocalOf(*function, order, {{a, 0, b, 0}, sumOfSquares}), fifteenth());
            }
            if (order >= 6) { // and once more ahead of the odd one
                EXPECT_EQ(reciprocalOf(*function, order, {{a, 0, 0, 0, b}, sumOfSquares}),
                          straight ? fifteenth() : 0x1p25);
            }
        }
}

TEST(CholeskyDecompositionRounding, OfDoublesIsDoneAtEveryStepAt53Bits) {
    const SettingScope scope({Precision::bits53, Rounding::nearest});
    for (const Function *function : all(isDouble))
        for (const std::uint32_t order : literal::sizesOf(*function, {3, 7})) {
            SCOPED_TRACE(function->name);
            EXPECT_EQ(reciprocalOf(*function, order, {{a}, 1 + 0x1p-26 + 0x1p-52}), 0x1p26);
            EXPECT_EQ(reciprocalOf(*function, order, {{a, b}, sumOfSquares}), 0x1p25);
        }
}

// 2^1023 * 2^511 leaves the range of doubles. Behind an odd product what is left, -2^1534, goes wide into the
// multiplication by 2^-511; behind a pair it is stored as infinity first. The row's own pivot fails afterwards.
TEST(CholeskyDecompositionRounding, OfDoublesBehindAPairShowsInTheRange) {
    for (const Function *function : all(isDouble))
        for (const Precision precision : {Precision::bits53, Precision::bits64})
            for (const std::uint32_t order : literal::sizesOf(*function, {4, 5, 7}))
                for (const std::uint32_t column : {1U, 2U}) {
                    if (order < 4) continue;
                    Call call(function->name, order);
                    for (std::uint32_t i = 0; i < order; ++i)
                        for (std::uint32_t j = 0; j <= i; ++j) call.set("src", 0, i, j, i == j ? 1 : 0);
                    call.set("src", 0, column, 0, 0x1p511);
                    call.set("src", 0, column, column, 0x1p1023);
                    call.set("src", 0, column + 1, 0, 0x1p1023);
                    const SettingScope scope({precision, Rounding::nearest});
                    EXPECT_EQ(call.run(), vonkErrNotPosDef);
                    const bool rounds = column == 2 && !isStraight(*function, order);
                    EXPECT_EQ(call.get("dst", 0, column + 1, column), rounds ? -infinity : -0x1p1023);
                }
}

// x / sqrt(3), with the reciprocal as it came out of the unit or as it was stored.
TEST(CholeskyDecompositionRounding, OfAFactorThatIsUsedAgainIsLeftOutInTheStraightForms) {
    const long double wide = 1 / std::sqrt(3.0L);
    const auto stored = static_cast<double>(wide);
    for (const Function *function : all(isDouble))
        for (const std::uint32_t order : literal::sizesOf(*function, {2, 3, 4, 5, 6, 7})) {
            int telling = 0;
            for (int x = 1; x <= 20; ++x) {
                SCOPED_TRACE(function->name + ", x is " + std::to_string(x));
                Call call(function->name, order);
                for (std::uint32_t i = 0; i < order; ++i)
                    for (std::uint32_t j = 0; j <= i; ++j) call.set("src", 0, i, j, i == j ? 3 : 0);
                call.set("src", 0, 1, 0, x);
                const auto ofWide = static_cast<double>(x * wide);
                const auto ofStored = static_cast<double>(static_cast<long double>(x) * stored);
                const bool straight = isStraight(*function, order);
                // The square of the one or the other leaves a little of the pivot, which tells them apart.
                const long double element = straight ? x * wide : static_cast<long double>(ofStored);
                const double pivot = std::nextafter(static_cast<double>(element * element), infinity);
                call.set("src", 0, 1, 1, pivot);
                ASSERT_EQ(call.run(), vonkOk);
                EXPECT_EQ(call.get("dst", 0, 1, 0), straight ? ofWide : ofStored);
                const long double rest = static_cast<long double>(pivot) - element * element;
                EXPECT_EQ(call.get("dst", 0, 1, 1), static_cast<double>(1 / std::sqrt(rest)));
                telling += ofWide != ofStored;
            }
            EXPECT_GT(telling, 0);
        }
}

// ---- Strides

// Without the bytes that make no whole element, also of a stride that goes back: it is cut downwards.
TEST(CholeskyDecompositionStrides, FromElementToElementAreCutToWholeElementsInTheStraightForms) {
    std::size_t cut = 0;
    for (const Function *function : all()) {
        if (!hasElementStrides(*function)) continue;
        for (const std::uint32_t order : literal::sizesOf(*function, {3, 4, 5, 6}))
            for (const Geometry geometry : geometries)
                for (const int surplus : {1, 2, 3, 7}) {
                    Call call(function->name, order, 2, geometry);
                    if (surplus >= call["src"].elementSize) continue;
                    SCOPED_TRACE(function->name + ", surplus " + std::to_string(surplus));
                    ++cut;
                    fill(call);
                    call.pass("srcElemStride", static_cast<std::uint32_t>(call["src"].elementStride + surplus));
                    call.pass("dstElemStride", static_cast<std::uint32_t>(call["dst"].elementStride + surplus));
                    ASSERT_EQ(call.run(), vonkOk);
                    literal::expectAllDone(call, example);
                }
    }
    EXPECT_EQ(cut,
              3U * 8U * 3U * (3U + 4U)); // S2 of one object, S2 and LS2; orders; geometries; surpluses of each type
}

TEST(CholeskyDecompositionStrides, AreTakenInBytesInAllOthers) {
    for (const Function *function : all()) {
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

TEST(CholeskyDecompositionChecks, TakeANegativeCountForNoneWithoutAWordButInTables) {
    for (const Function *function : all(isArray))
        for (const std::uint32_t count : {0x80000000U, 0xffffffffU}) {
            Call call(function->name, 3, 2);
            fill(call);
            call.set("src", 1, 0, 0, -1); // object 1 fails, however many there are
            call.pass("count", count);
            EXPECT_EQ(call.run(), isInTable(*function) ? vonkErrNotPosDef : vonkOk);
            if (isInTable(*function)) expectDone(call, 0);
            else EXPECT_TRUE(call.changedNothing());
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
