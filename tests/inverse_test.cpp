// Inverses: values by hand in every form, what is below each form's singularity tolerance and what it has written by
// then, the columns that it reads, and bounds of the error of its results.
#include "support/accuracy.h"
#include "support/family_test.h"

#include <bit>
#include <iostream>
#include <random>

namespace {

using namespace literal::names;
using literal::diagonal;

constexpr const char *section = "inverse";
constexpr double nan = std::numeric_limits<double>::quiet_NaN();

using Matrix = std::vector<double>;

// These elements, then ones.
Matrix diagonalOf(std::uint32_t order, std::vector<double> elements) {
    elements.resize(order, 1);
    return diagonal(elements);
}

bool isBlockForm(const Function &function) { return function.order > 4; }
bool isExact(const Function &function) { return !hasLanes(function); }

double tolerance(const Function &function) { return isFloat(function) ? 0x1p-23 : 0x1p-52; }

// ---- Values

// A permutation of the rows of a diagonal of powers of two: the inverse has their reciprocals in the transposed places.
struct Exchanged {
    Matrix matrix;
    Matrix inverse;

    Exchanged(std::uint32_t order, std::uint32_t variant) : matrix(literal::zeros(order)), inverse(matrix) {
        for (std::uint32_t i = 0; i < order; ++i) {
            const std::uint32_t j = (i + variant) % (order == 6 ? 3 : order) + (order == 6 && i > 2 ? 3 : 0);
            const double element = std::ldexp((i + variant) % 3 == 0 ? -1 : 1, static_cast<int>((i + variant) % 4) - 1);
            matrix[i * order + j] = element;
            inverse[j * order + i] = 1 / element;
        }
    }
};

void fill(Call &call) {
    for (std::uint32_t n = 0; n < call.count(); ++n) call.set("src", n, Exchanged(call.size(), n).matrix);
}

void expectNear(const std::vector<double> &expected, const std::vector<double> &actual, double relative) {
    ASSERT_EQ(expected.size(), actual.size());
    for (std::size_t k = 0; k < expected.size(); ++k)
        EXPECT_NEAR(expected[k], actual[k], std::fabs(expected[k]) * relative) << "element " << k;
}

struct Inverted {
    std::int32_t status;
    Matrix inverse;
    bool changedNothing;
};

Inverted inverted(const Function &function, const Matrix &matrix) {
    Call call(function.name, static_cast<std::uint32_t>(std::lround(std::sqrt(matrix.size()))));
    call.set("src", matrix);
    const std::int32_t status = call.run();
    EXPECT_FALSE(call.strayWrites());
    return {status, call.get("dst", 0), call.changedNothing()};
}

Matrix inverseOf(const Function &function, const Matrix &matrix) {
    const Inverted got = inverted(function, matrix);
    EXPECT_EQ(got.status, vonkOk) << function.name;
    return got.inverse;
}

// Floats of fixed size with adjacent elements estimate the reciprocal and take one Newton step: they are some units
// off. All others are exact here.
void expectDone(Call &call, std::uint32_t n) {
    expectNear(Exchanged(call.size(), n).inverse, call.get("dst", n), isExact(call.function()) ? 0 : 0x1p-19);
}

const literal::Example example{fill, expectDone};

TEST(Inverse, IsWorkedOutInEveryFormAndGeometry) {
    for (const Function *function : literal::members(section))
        literal::expectResults(*function, example, {2, 3, 4, 5, 6, 7});
}

// 1 2 3 / 0 1 4 / 5 6 0 has the determinant 1. At run-time size the pivots are rounded; the closed forms have whole
// numbers only.
TEST(Inverse, IsTheTransposedAdjugate) {
    for (const auto &[function, order] : literal::ofSize(section, 3))
        expectNear({-24, 18, 5, 20, -15, -4, -5, 4, 1}, inverseOf(*function, {1, 2, 3, 0, 1, 4, 5, 6, 0}),
                   isRunTime(*function) || hasLanes(*function) ? 1e-5 : 0);
}

TEST(Inverse, TimesItsMatrixIsTheIdentity) {
    for (const auto &[function, order] : literal::sized(section, {5})) {
        SCOPED_TRACE(function->name);
        const Matrix matrix = literal::wellConditioned(order, 3);
        const Matrix inverse = inverseOf(*function, matrix);
        for (std::uint32_t i = 0; i < order; ++i)
            for (std::uint32_t j = 0; j < order; ++j) {
                double sum = 0;
                for (std::uint32_t k = 0; k < order; ++k) sum += matrix[i * order + k] * inverse[k * order + j];
                EXPECT_NEAR(sum, i == j ? 1 : 0, isFloat(*function) ? 1e-5 : 1e-14) << i << " " << j;
            }
    }
}

// 4 7 / 2 6 has the determinant 10; a tenth is rounded to the element type before it is used.
TEST(InverseOfRunTimeSize, ScalesMinorsWithARoundedReciprocal) {
    for (const Function *function : literal::members(section, isRunTime)) {
        Matrix expected;
        for (const double minor : {6.0, -7.0, -2.0, 4.0})
            expected.push_back(isFloat(*function) ? static_cast<float>(minor) * 0.1F : minor * 0.1);
        EXPECT_EQ(inverseOf(*function, {4, 7, 2, 6}), expected) << function->name;
    }
}

// A minor that is singular counts as 0, and an odd place changes its sign. The last pivot of a minor has to be above
// the tolerance; the smallest of the second matrix is at it, of which the determinant is -1.
TEST(InverseOfRunTimeSize, TakesMinorsAtTheToleranceForZeroAndHasNegativeZerosInOddPlaces) {
    for (const Function *function : literal::members(section, isRunTime)) {
        literal::expectSame({1, -0.0, 0, -0.0, 1, -0.0, 0, -0.0, 1}, inverseOf(*function, diagonal(3, 1)),
                            function->name);
        literal::expectSame({-0.0, 1, 1, -0.0}, inverseOf(*function, {tolerance(*function), 1, 1, 0}), function->name);
    }
}

TEST(InverseOfRunTimeSize, TakesScratchMemoryAtAnyMultipleOfAnElementAndLeavesTheRestAlone) {
    for (const Function *function : literal::members(section, isRunTime)) {
        Call call(function->name, 5, 3);
        fill(call);
        call.block("scratch").address += isFloat(*function) ? 4 : 8;
        EXPECT_EQ(call.run(), vonkOk);
        literal::expectAllDone(call, example);
    }
}

// ---- Singular matrices

// One case per line: the matrix, and whether it is singular.
void expectSingular(const Function &function, const std::vector<std::pair<Matrix, bool>> &cases) {
    for (std::size_t k = 0; k < cases.size(); ++k)
        EXPECT_EQ(inverted(function, cases[k].first).status, cases[k].second ? vonkErrSingular : vonkOk)
            << function.name << ", case " << k;
}

TEST(InverseSingularity, OfRunTimeSizeAsksMoreOfTheLastPivot) {
    for (const Function *function : literal::members(section, isRunTime)) {
        const double limit = tolerance(*function);
        for (const double sign : {1.0, -1.0})
            expectSingular(*function, {{diagonal({sign * limit, 1, 1}), false},
                                       {diagonal({sign * literal::nextElement(*function, limit, 0), 1, 1}), true},
                                       {diagonal({1, 1, sign * limit}), true},
                                       {diagonal({1, 1, sign * limit * 1.5}), false}});
        expectSingular(*function, {{diagonal({1, 1, nan}), true}, {{0}, true}, {{limit}, true}});
    }
}

// The interval is open, and its ends are doubles: the float next to 1e-7 is a little larger.
TEST(InverseSingularity, OfClosedFormsIsADeterminantInAnOpenInterval) {
    for (const auto &[function, order] : literal::sized(section, {}, isExact)) {
        if (isBlockForm(*function)) continue;
        const double limit = isFloat(*function) ? static_cast<double>(1e-7F) : 1e-15;
        for (const double sign : {1.0, -1.0})
            expectSingular(*function, {{diagonalOf(order, {1, sign * limit}), false},
                                       {diagonalOf(order, {sign * literal::nextElement(*function, limit, 0)}), true}});
        expectSingular(*function, {{diagonalOf(order, {0}), true}});
    }
}

TEST(InverseSingularity, OfFastClosedFormsIsADeterminantOfZero) {
    for (const auto &[function, order] : literal::sized(section, {}, hasLanes))
        if (!isBlockForm(*function))
            expectSingular(*function, {{diagonalOf(order, {1e-8, 1, 1}), false},
                                       {diagonalOf(order, {-1e-10, 1e-10, 1e-10}), false},
                                       {diagonalOf(order, {1, 0}), true},
                                       {diagonalOf(order, {1, -0.0}), true}});
}

// The determinant is that of row 0 and its cofactors. Equal rows 2 and 3 make all these zero; that rows 0 and 1 are
// equal is lost in the roundings.
TEST(InverseSingularity, OfTheFastFormOfFourStandsOnTheCofactorsOfRowZero) {
    const Matrix rows{1.0 / 3,  1.0 / 7,  1.0 / 11, 1.0 / 13, 1.0 / 3,  1.0 / 7,  1.0 / 11, 1.0 / 13,
                      1.0 / 17, 1.0 / 19, 1.0 / 23, 1.0 / 29, 1.0 / 31, 1.0 / 37, 1.0 / 41, 1.0 / 43};
    Matrix swapped = rows;
    std::rotate(swapped.begin(), swapped.begin() + 8, swapped.end());
    for (const auto &[function, order] : literal::ofSize(section, 4, hasLanes))
        expectSingular(*function, {{rows, false}, {swapped, true}});
}

// The step of the fast form of 4 squares the estimate, 2^80 here, which no float holds.
TEST(InverseSingularity, LeavesTheFastFormOfFourNoResultsWhereTheSquareOverflows) {
    for (const auto &[function, order] : literal::ofSize(section, 4, hasLanes))
        for (std::uint32_t i = 0; i < order; ++i)
            EXPECT_FALSE(std::isfinite(inverseOf(*function, diagonal(order, 0x1p-20))[std::size_t{i} * (order + 1)]));
}

// Of 1e-8 in the first pivots alone nothing follows for the others: the determinant of the whole is 1.
TEST(InverseSingularity, OfBlocksIsThatOfTheLeadingOneOrOfTheRest) {
    for (const auto &[function, order] : literal::sized(section, {}, isBlockForm)) {
        const double small = isFloat(*function) ? 0x1p-13 : 0x1p-26; // its square is below the tolerance
        const auto diagonalWith = [order = order](std::array<double, 2> first, std::array<double, 2> last) {
            std::vector<double> elements(order, 1);
            std::ranges::copy(first, elements.begin());
            std::ranges::copy(last, elements.end() - 2);
            return diagonal(elements);
        };
        const double large = 1 / small;
        expectSingular(*function, {{diagonalWith({small, small}, {large, large}), true},
                                   {diagonalWith({large, large}, {small, small}), true},
                                   {diagonalWith({small, large}, {small, large}), false}}); // one of each in either
    }
}

TEST(InverseSingularity, IsNoNaN) {
    for (const auto &[function, order] : literal::sized(section, {3})) {
        const bool choosesFreely = hasLanes(*function) && order == 6; // and may leave out a single one
        const Inverted got = inverted(*function, choosesFreely ? Matrix(36, nan) : diagonalOf(order, {nan}));
        EXPECT_EQ(got.status, isRunTime(*function) ? vonkErrSingular : vonkOk);
        if (isRunTime(*function)) continue;
        literal::expectSame(Matrix(std::size_t{order} * order, nan), got.inverse, function->name);
    }
}

TEST(InverseSingularity, EndsTheCallWithTheObjectsBeforeDoneAndTheOthersUntouched) {
    for (const auto &[function, order] : literal::sized(section, {4}, isArray)) {
        Call call(function->name, order, 3);
        fill(call);
        call.set("src", 1, literal::zeros(order));
        EXPECT_EQ(call.run(), vonkErrSingular);
        expectDone(call, 0);
        EXPECT_FALSE(call.changedObject(1));
        EXPECT_FALSE(call.changedObject(2));
        EXPECT_FALSE(call.strayWrites());
    }
}

// Behind the leading block the fast forms of 5 and 6 have written to the object; what, is open. Elsewhere it is
// untouched.
TEST(InverseSingularity, OfTheSecondBlockMayFindFastFormsInTheirObject) {
    for (const auto &[function, order] : literal::sized(section, {}, isBlockForm)) {
        Call call(function->name, order, 2);
        Matrix matrix = diagonal(order, 1);
        matrix.back() = 0;
        call.set("src", matrix);
        EXPECT_EQ(call.run(), vonkErrSingular);
        EXPECT_TRUE(hasLanes(*function) || call.changedNothing());
        EXPECT_FALSE(function->array() && call.changedObject(1));
        EXPECT_FALSE(call.strayWrites());
    }
}

// ---- Columns of the block forms

// Ones on the other diagonal of six: regular, but its first row has nothing in the five columns that are looked at,
// unless by the fast forms. On that of the leading five, the leading columns depend on one another, and others take
// their places. Either is its own inverse.
TEST(InverseOfBlocks, PutsRegularColumnsInFrontOfWhichSixHasFiveButInTheFastForms) {
    for (const auto &[function, order] : literal::sized(section, {}, isBlockForm))
        for (const std::uint32_t exchanged : order == 6 ? std::vector{5U, 6U} : std::vector{5U}) {
            Matrix exchange = diagonal(order, 1);
            for (std::uint32_t i = 0; i < exchanged; ++i)
                for (std::uint32_t j = 0; j < exchanged; ++j) exchange[i * order + j] = i + j + 1 == exchanged ? 1 : 0;
            const Inverted got = inverted(*function, exchange);
            const bool isSingular = exchanged == 6 && isExact(*function);
            EXPECT_EQ(got.status, isSingular ? vonkErrSingular : vonkOk);
            EXPECT_EQ(got.changedNothing, isSingular);
            for (std::uint32_t k = 0; !isSingular && k < order * order; ++k)
                EXPECT_NEAR(got.inverse[k], exchange[k], isExact(*function) ? 0 : 0x1p-19) << "element " << k;
        }
}

// ---- Precision and accuracy

// A third is rounded as the caller says.
TEST(InverseRounding, IsTheCallers) {
    for (const auto &[function, order] : literal::sized(section, {3}, isExact)) {
        const auto at = [&function = *function, order = order](Rounding rounding) {
            const SettingScope scope({Precision::bits64, rounding});
            return inverseOf(function, diagonalOf(order, {3})).front();
        };
        EXPECT_EQ(at(Rounding::down), literal::nextElement(*function, at(Rounding::up), 0)) << function->name;
    }
}

// Where reciprocals are estimated, bounds alone are checked elsewhere: here the bits, of objects in lanes and alone.
TEST(InverseRounding, OfFastFormsIsInArraysThatOfEachMatrixAlone) {
    constexpr std::uint32_t count = 37;
    const auto expectSame = [&](std::int32_t order, auto single, auto array, auto list) {
        const std::int32_t length = order * order, row = order * std::int32_t(sizeof(float)), object = order * row;
        std::vector<float> matrices(count * length), alone(matrices.size()), strided(matrices.size());
        std::vector<float> listed(matrices.size());
        std::minstd_rand random(7);
        for (float &element : matrices) element = static_cast<float>(random() % 2001) / 64 - 15;
        std::vector<const float *> sources;
        std::vector<float *> destinations;
        for (std::uint32_t n = 0; n < count; ++n) {
            sources.push_back(&matrices[n * length]);
            destinations.push_back(&listed[n * length]);
        }
        for (const Rounding rounding : {Rounding::nearest, Rounding::down, Rounding::up, Rounding::towardZero}) {
            const SettingScope scope({Precision::bits64, rounding});
            for (std::uint32_t n = 0; n < count; ++n)
                ASSERT_EQ(single(sources[n], row, &alone[n * length], row), vonkOk);
            ASSERT_EQ(array(matrices.data(), object, row, strided.data(), object, row, count), vonkOk);
            ASSERT_EQ(list(sources.data(), 0, row, destinations.data(), 0, row, count), vonkOk);
            for (std::size_t k = 0; k < alone.size(); ++k) {
                const auto bits = std::bit_cast<std::uint32_t>(alone[k]);
                EXPECT_EQ(std::bit_cast<std::uint32_t>(strided[k]), bits) << order << " " << k;
                EXPECT_EQ(std::bit_cast<std::uint32_t>(listed[k]), bits) << order << " " << k;
            }
        }
    };
    expectSame(3, vonkInvert_m_32f_3x3, vonkInvert_ma_32f_3x3, vonkInvert_ma_32f_3x3_L);
    expectSame(4, vonkInvert_m_32f_4x4, vonkInvert_ma_32f_4x4, vonkInvert_ma_32f_4x4_L);
}

// Cofactors, determinant and reciprocal of doubles stay in the extended type: the determinant is 2^-1200 or 2^1200, and
// the results are numbers all the same.
TEST(InverseOfDoubles, HasTheExtendedRange) {
    for (const auto &[function, order] : literal::sized(section, {}, isDouble))
        EXPECT_EQ(inverseOf(*function, diagonal(order, 0x1p400)), diagonal(order, 0x1p-400)) << function->name;
}

TEST(InverseAccuracy, KeepsTheBoundOfAnyOrderOfTheSums) {
    for (const auto &[what, matrixOf] :
         {std::pair<const char *, literal::MatrixOf>{"well", literal::wellConditioned},
          std::pair<const char *, literal::MatrixOf>{"badly", literal::badlyConditioned}})
        for (const Type type : {Type::real32, Type::real64})
            for (const int order : {3, 4, 5, 6}) {
                const literal::Measured measured = literal::measure("inverse", type, order, matrixOf, 50);
                std::cout << what << " conditioned, " << literal::describe(type, order, measured) << "\n";
                // Quotients of order 3 are fixed to the last bit; and a test of a float may hang on its roundings.
                const bool isHeld = order > 3 || type == Type::real32;
                EXPECT_GE(measured.accuracy.elements, isHeld ? 25U * 9U : 0U);
                for (const std::string &complaint : measured.complaints) ADD_FAILURE() << complaint;
            }
}

} // namespace
