// Determinants: values by hand in every form, pivots about the tolerance, what a failed pivot leaves, a search in
// single precision, the associations of order 3, and the accuracy of the orders above.
#include "support/accuracy.h"
#include "support/family_test.h"

#include <iostream>
#include <xmmintrin.h>

namespace {

using namespace literal::names;
using literal::diagonal;

constexpr const char *section = "determinant";
constexpr double nan = std::numeric_limits<double>::quiet_NaN();

using Matrix = std::vector<double>;

std::vector<const Function *> runTime() { return literal::members(section, isRunTime); }

bool hasClosedForm(const Function &function) { return function.order != 0; }

// Fixed sizes of adjacent elements compute in extended precision, floats too.
bool isKernel(const Function &function) {
    return function.order != 0 && (function.layout.empty() || function.layout == "L");
}

double tolerance(const Function &function) { return isFloat(function) ? 0x1p-23 : 0x1p-52; }

// The matrix in the upper left corner of an identity.
Matrix bordered(const Matrix &corner, std::uint32_t cornerOrder, std::uint32_t order) {
    Matrix matrix = diagonal(order, 1);
    for (std::uint32_t k = 0; k < corner.size(); ++k) matrix[k / cornerOrder * order + k % cornerOrder] = corner[k];
    return matrix;
}

double determinantOf(const Function &function, std::uint32_t order, const Matrix &matrix) {
    Call call(function.name, order);
    call.set("src", 0, matrix);
    EXPECT_EQ(call.run(), vonkOk);
    EXPECT_FALSE(call.strayWrites());
    return call.results().front();
}

// ---- Values

// No form rounds: the rows of a triangular matrix of whole numbers, half the first of them added to the others, and all
// shifted downwards by n. Its pivots are 4 (n + 1) and ones.
Matrix exampleOf(std::uint32_t order, std::uint32_t n) {
    const auto triangular = [n](std::uint32_t i, std::uint32_t j) -> double {
        return i == j ? (i == 0 ? 4 * (n + 1) : 1) : i < j ? (i + 2 * j + n) % 5 - 2.0 : 0;
    };
    Matrix matrix;
    for (std::uint32_t row = 0; row < order; ++row)
        for (std::uint32_t j = 0, i = (row + n * order + order - n) % order; j < order; ++j)
            matrix.push_back(triangular(i, j) + (i == 0 ? 0 : triangular(0, j) / 2));
    return matrix;
}

double determinantOfExample(std::uint32_t order, std::uint32_t n) {
    return 4 * (n + 1) * (n * (order - 1) % 2 ? -1.0 : 1.0); // each shift is order - 1 exchanges
}

void fill(Call &call) {
    for (std::uint32_t n = 0; n < call.count(); ++n) call.set("src", n, exampleOf(call.size(), n));
}

void expectDone(Call &call, std::uint32_t n) { EXPECT_EQ(call.results()[n], determinantOfExample(call.size(), n)); }

const literal::Example example{fill, expectDone};

TEST(Determinant, IsWorkedOutInEveryFormAndGeometry) {
    for (const Function *function : literal::members(section))
        literal::expectResults(*function, example, {1, 2, 3, 4, 5, 6, 7});
}

// Its results are packed, and may lie in the source: that is read before an object's cell is written.
TEST(Determinant, MayBeWrittenIntoItsSource) {
    for (const auto &[function, order] : literal::sized(section, {2, 5})) {
        Call call(function->name, order);
        fill(call);
        std::byte *const cell = call["src"].address(0, 0, order - 1);
        call.pass("dst", reinterpret_cast<std::uintptr_t>(cell));
        EXPECT_EQ(call.run(), vonkOk);
        EXPECT_EQ(call.getAt(cell), determinantOfExample(order, 0));
    }
}

TEST(Determinant, TakesScratchMemoryAtAnyMultipleOfAnElementAndLeavesTheRestAlone) {
    for (const Function *function : runTime()) {
        Call call(function->name, 5, 3);
        fill(call);
        call.block("scratch").address += isFloat(*function) ? 4 : 8;
        EXPECT_EQ(call.run(), vonkOk);
        literal::expectAllDone(call, example);
    }
}

// ---- Pivots of run-time size

TEST(DeterminantPivots, PassAtTheToleranceButTheLastOneAboveIt) {
    for (const auto &[function, order] : literal::sized(section, {1, 2, 4}, isRunTime)) {
        const double limit = tolerance(*function), below = literal::nextElement(*function, limit, 0),
                     above = literal::nextElement(*function, limit, 1);
        for (std::uint32_t k = 0; k < order; ++k)
            for (const double pivot : {limit, -limit, below, above, 0.0, nan}) {
                SCOPED_TRACE(function->name + ", pivot " + std::to_string(k) + " is " + std::to_string(pivot));
                const bool isLast = k + 1 == order;
                if (std::isnan(pivot) && isDouble(*function) && !isLast) continue; // any search
                Matrix matrix = diagonal(order, 1);
                matrix[std::size_t{k} * (order + 1)] = pivot;
                const bool counts = isLast ? std::fabs(pivot) > limit : std::fabs(pivot) >= limit;
                literal::expectSame(counts ? pivot : 0.0, determinantOf(*function, order, matrix), "determinant");
            }
    }
}

TEST(DeterminantPivots, ChangeTheSignWithEachExchange) {
    for (const auto &[function, order] : literal::sized(section, {3})) {
        SCOPED_TRACE(function->name);
        EXPECT_EQ(determinantOf(*function, order, bordered({0, 1, 0, 0, 0, 1, 1, 0, 0}, 3, order)), 1); // two
        EXPECT_EQ(determinantOf(*function, order, bordered({0, 1, 1, 0}, 2, order)), -1);               // one
        EXPECT_EQ(determinantOf(*function, order, bordered({1, 0, 1, 1}, 2, order)), 1);                // a tie: none
    }
}

TEST(DeterminantPivots, TooSmallForRunTimeSizeAreNoMatterToClosedForms) {
    for (const auto &[function, order] : literal::sized(section, {3}, isDouble))
        EXPECT_EQ(determinantOf(*function, order, bordered({1e-20, 0, 0, 4}, 2, order)),
                  hasClosedForm(*function) ? 4 * 1e-20 : 0)
            << function->name;
}

// The first column fails. What counts is the element in the last row of the last column, as it stood.
TEST(DeterminantPivots, ThatFailLeaveZerosOfEitherSignOrNaNsInArrays) {
    for (const Function *function : runTime())
        for (const double last : {5.0, -5.0, infinity, -infinity, tolerance(*function), nan}) {
            SCOPED_TRACE(function->name + ", last element " + std::to_string(last));
            const double failed = !(std::fabs(last) > tolerance(*function)) ? 0.0 : 0 * last;
            const double result = determinantOf(*function, 3, {0, 1, 2, 0, 3, 4, 0, 5, last});
            literal::expectSame(function->array() ? failed : 0.0, result, "determinant");
        }
}

TEST(DeterminantPivots, ThatFailLeaveTheOtherObjectsAlone) {
    for (const Function *function : runTime()) {
        if (!function->array()) continue;
        Call call(function->name, 4, 3);
        fill(call);
        call.set("src", 1, Matrix(16, 0));
        EXPECT_EQ(call.run(), vonkOk);
        expectDone(call, 0);
        EXPECT_EQ(call.results()[1], 0);
        expectDone(call, 2);
    }
}

// 1 + 2^-30 becomes 1 as the best candidate, which 1 + 2^-40 beats. That leaves -2^-52 (1 + 2^-30) of the second
// column, and the determinant is as large; with the first row for a pivot 2^-52 would be left, which does not count. In
// floats all of this is 1, and the second column as it stands.
// Of two that are both 1 as floats, the second loses if it is no larger than that. A candidate beyond the floats is an
// infinite best, which nothing beats: the first row stays.
TEST(DeterminantSearch, OfDoublesRemembersTheBestCandidateAsAFloat) {
    for (const Function *function : runTime()) {
        if (isFloat(*function)) continue;
        SCOPED_TRACE(function->name);
        const double result = determinantOf(*function, 2, {1 + 0x1p-30, 0, 1 + 0x1p-40, 0x1p-52});
        EXPECT_NEAR(result * 0x1p52, 1 + 0x1p-30, 0x1p-51);
        EXPECT_EQ(determinantOf(*function, 2, {1 - 0x1p-40, 0, 1, 0x1p-52}), 0.0);
        EXPECT_EQ(determinantOf(*function, 2, {0x1p200, 0, 0x1p300, 0x1p-52}), 0.0);
        EXPECT_EQ(determinantOf(*function, 2, {0x1p300, 0, 0x1p200, 1}), 0x1p300);
    }
}

// ---- Closed forms

// Along row 0 the terms of the first matrix are 1, 2^70 and -2^70; added to the large ones the 1 is lost. Floats in
// kernels begin with the other two, doubles there go along column 0. Its terms are -2^70, 2^70 and 1 for the second
// matrix, which leaves the 1, as only this order does.
TEST(DeterminantOfThree, AddsItsTermsInTheOrderOfTheForm) {
    constexpr double large = 0x1p70;
    const Matrix alongRow{1, -large, large, 1, 1, 0, 1, 0, 1};
    const Matrix alongColumn{large, -1, large, 1, 1, 0, 1, 0, 1};
    for (const auto &[function, order] : literal::ofSize(section, 3, hasClosedForm)) {
        SCOPED_TRACE(function->name);
        EXPECT_EQ(determinantOf(*function, order, alongRow), isKernel(*function) && isFloat(*function) ? 1 : 0);
        EXPECT_EQ(determinantOf(*function, order, alongColumn), isKernel(*function) && isDouble(*function) ? 1 : 0);
    }
}

// (1 + 2^-12)^2 = 1 + 2^-11 + 2^-24 is no float, and the minor with it comes to 2^-24 or to 0.
TEST(DeterminantOfThree, OfFloatsKeepsItsProductsInKernelsOnly) {
    const Matrix matrix{1, 0, 0, 0, 1 + 0x1p-12, 1 + 0x1p-11, 0, 1, 1 + 0x1p-12};
    for (const auto &[function, order] : literal::ofSize(section, 3, hasClosedForm))
        EXPECT_EQ(determinantOf(*function, order, matrix), isKernel(*function) || isDouble(*function) ? 0x1p-24 : 0)
            << function->name;
}

// The minor of the last two rows is 2^140, too large for a float, or 2^1200, too large for a double, and nothing to the
// extended range.
TEST(DeterminantAboveThree, HasTheExtendedRangeButForFloatsOutsideKernels) {
    for (const auto &[function, order] : literal::sized(section, {}))
        for (const double large : {0x1p70, 0x1p600}) {
            if (order < 4 || (isFloat(*function) && large > 0x1p70)) continue;
            SCOPED_TRACE(function->name);
            std::vector<double> elements(order, 1);
            elements[0] = elements[1] = 1 / large;
            elements.end()[-1] = elements.end()[-2] = large;
            const double result = determinantOf(*function, order, diagonal(elements));
            if (isKernel(*function) || isDouble(*function)) EXPECT_EQ(result, 1);
            else EXPECT_FALSE(std::isfinite(result));
        }
}

TEST(DeterminantOfClosedForms, LetsNaNsAndInfinitiesThrough) {
    for (const auto &[function, order] : literal::sized(section, {}))
        for (std::uint32_t k = 0; k < order * order; ++k) {
            SCOPED_TRACE(function->name + ", element " + std::to_string(k));
            Matrix matrix = exampleOf(order, 0);
            matrix[k] = nan;
            EXPECT_TRUE(std::isnan(determinantOf(*function, order, matrix)));
            matrix[k] = infinity;
            EXPECT_FALSE(std::isfinite(determinantOf(*function, order, matrix)));
        }
}

// A tenth times a tenth, rounded up and down.
TEST(DeterminantOfClosedForms, FollowsTheCallersRounding) {
    for (const auto &[function, order] : literal::sized(section, {})) {
        SCOPED_TRACE(function->name);
        std::vector<double> elements(order, 1);
        elements[0] = elements[1] = isFloat(*function) ? static_cast<double>(0.1F) : 0.1;
        const auto at = [&, &function = *function](Rounding rounding) {
            const SettingScope scope({Precision::bits64, rounding});
            return determinantOf(function, 0, diagonal(elements));
        };
        EXPECT_EQ(literal::nextElement(*function, at(Rounding::down), 1), at(Rounding::up));
    }
}

// ---- Accuracy

TEST(DeterminantAccuracy, KeepsTheBoundOfAnyOrderOfTheSums) {
    for (const auto &[what, matrixOf] :
         {std::pair<const char *, literal::MatrixOf>{"well", literal::wellConditioned},
          std::pair<const char *, literal::MatrixOf>{"badly", literal::badlyConditioned}})
        for (const Type type : {Type::real32, Type::real64})
            for (const int order : {4, 5, 6}) {
                const literal::Measured measured = literal::measure("determinant", type, order, matrixOf, 50);
                std::cout << what << " conditioned, " << literal::describe(type, order, measured) << "\n";
                EXPECT_EQ(measured.accuracy.elements, 50U * 9U);
                for (const std::string &complaint : measured.complaints) ADD_FAILURE() << complaint;
            }
}

// ---- Many floats of adjacent elements

// The determinant of an object is that of its last two rows, x y - s t, with a one on the rest of the diagonal.
struct Block {
    float x, y, s, t;
};

float roundedOnce(const Block &block) {
    const volatile long double x = block.x, y = block.y, s = block.s, t = block.t;
    const volatile long double xy = x * y, st = s * t, difference = xy - st;
    return static_cast<float>(difference);
}

Matrix matrixOf(const Block &block, std::uint32_t order) {
    Matrix matrix = diagonal(order, 1);
    matrix.end()[-1] = block.y;
    matrix.end()[-2] = block.t;
    matrix.end()[-1 - static_cast<int>(order)] = block.s;
    matrix.end()[-2 - static_cast<int>(order)] = block.x;
    return matrix;
}

// As an array and alone; signs of zeros are the same.
void expectRoundedOnce(const std::vector<Block> &blocks) {
    for (const auto &[function, order] : literal::sized(section, {}, hasLanes)) {
        if (!function->array()) continue;
        const std::string ofOne = "vonkDet_m_32f_" + std::to_string(order) + "x" + std::to_string(order);
        Call call(function->name, order, static_cast<std::uint32_t>(blocks.size()));
        for (std::uint32_t n = 0; n < call.count(); ++n) call.set("src", n, matrixOf(blocks[n], order));
        EXPECT_EQ(call.run(), vonkOk);
        const std::vector<double> results = call.results();
        for (std::uint32_t n = 0; n < call.count(); ++n) {
            EXPECT_EQ(results[n], roundedOnce(blocks[n])) << "object " << n;
            literal::expectSame(determinantOf(literal::function(ofOne), order, matrixOf(blocks[n], order)), results[n],
                                "object " + std::to_string(n));
        }
    }
}

// (1 + j 2^-12) (1 + 2^-12) = 1 + (j + 1) 2^-12 + j 2^-24 is halfway between two floats where j is odd. A term of 2^-50
// tells to which side it goes in 53 bits, and one of 2^-60 in 64 bits alone. In some the sum of a row is 0.
TEST(DeterminantOfManyFloats, IsRoundedOnceNearTheMidpointsOfFloats) {
    std::vector<Block> blocks;
    for (int j = 1; j < 40; ++j)
        for (const float term : {0.0F, 0x1p-50F, -0x1p-50F, 0x1p-60F, -0x1p-60F})
            for (const float sign : {1.0F, -1.0F})
                for (const bool cancels : {false, true}) {
                    const float x = sign * (1 + static_cast<float>(j) * 0x1p-12F);
                    blocks.push_back({x, 1 + 0x1p-12F, term, cancels ? -x : sign});
                }
    for (const Precision precision : {Precision::bits53, Precision::bits64})
        for (const Rounding rounding : {Rounding::nearest, Rounding::down, Rounding::up, Rounding::towardZero}) {
            const SettingScope scope({precision, rounding});
            expectRoundedOnce(blocks);
        }
    const SettingScope scope({Precision::bits64, Rounding::nearest});
    for (const unsigned ofLanesAlone : {0x2000U, 0x4000U, 0x6000U}) { // the 80-bit unit rounds to nearest
        _mm_setcsr((_mm_getcsr() & ~0x6000U) | ofLanesAlone);
        expectRoundedOnce(blocks);
    }
}

TEST(DeterminantOfManyFloats, KeepsZerosOfEitherSignAndWhatLeavesTheRangeOfFloats) {
    const float large = 0x1p100F, small = 0x1p-100F;
    std::vector<Block> blocks{{0, 1, 0, 1},
                              {-0.0F, 1, 0, 1},
                              {1, 1, 1, 1},
                              {large, large, 0, 0},
                              {-large, large, 0, 0},
                              {small, small, 0, 0},
                              {-small, small, 0, 0},
                              {0x1p-75F, 0x1p-74F, 0, 0},
                              {0x1p-75F, 0x1p-75F, 0, 0},
                              {1, 1, 0x1p-140F, 0x1p125F}};
    for (std::size_t k = 0; k < 20; ++k) blocks.push_back(blocks[k]); // three times
    for (const Precision precision : {Precision::bits53, Precision::bits64}) {
        const SettingScope scope({precision, Rounding::nearest});
        expectRoundedOnce(blocks);
    }
}

// The 80-bit unit knows no such mode: an array is worked like an object.
TEST(DeterminantOfManyFloats, KeepsSubnormalsWhateverTheSimdUnitDoesWithThem) {
    Call call("vonkDet_ma_32f_4x4", 4, 20);
    call.set("src", matrixOf({0x1p-110F, 0x1p100F, 0x1p-130F, 0x1p115F}, 4));
    const unsigned before = _mm_getcsr();
    _mm_setcsr(before | 0x8040U);
    const std::int32_t status = call.run();
    _mm_setcsr(before);
    EXPECT_EQ(status, vonkOk);
    EXPECT_EQ(call.results(), std::vector<double>(20, 0x1p-10 - 0x1p-15));
}

} // namespace
