// Inverses: values by hand in every form, what each form takes for singular and what it has written by then, the
// columns that it looks at, entries that it tests or trusts, and how far its results lie from the truth.
#include "support/accuracy.h"
#include "support/family_test.h"

#include <iostream>

namespace {

using namespace literal::names;

constexpr double nan = std::numeric_limits<double>::quiet_NaN();

using Matrix = std::vector<double>;

std::vector<const Function *> all(bool (*wanted)(const Function &) = isAny) {
    return literal::members("inverse", wanted);
}

// Floats with adjacent elements, of fixed size: they estimate the reciprocal and take one Newton step.
std::uint32_t orderOf(const Function &function, std::uint32_t runTime) {
    return function.order == 0 ? runTime : static_cast<std::uint32_t>(function.order);
}

Matrix diagonal(const std::vector<double> &elements) {
    Matrix matrix(elements.size() * elements.size());
    for (std::size_t i = 0; i < elements.size(); ++i) matrix[i * (elements.size() + 1)] = elements[i];
    return matrix;
}

// These elements, then ones.
Matrix diagonalOf(const Function &function, std::uint32_t runTime, std::vector<double> elements) {
    elements.resize(orderOf(function, runTime), 1);
    return diagonal(elements);
}

double towardZero(const Function &function, double value) {
    return isFloat(function) ? std::nextafter(static_cast<float>(value), 0.0F) : std::nextafter(value, 0.0);
}

// ---- Values

// A permutation of the rows of a diagonal of powers of two: the inverse has their reciprocals in the transposed places.
struct Exchanged {
    Matrix matrix;
    Matrix inverse;

    Exchanged(std::uint32_t order, std::uint32_t variant) : matrix(order * order), inverse(order * order) {
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

// Exact but for the fast forms, which are some units off.
void expectDone(Call &call, std::uint32_t n) {
    const double relative = hasLanes(call.function()) ? 0x1p-19 : 0;
    expectNear(Exchanged(call.size(), n).inverse, call.get("dst", n), relative);
}

const literal::Example example{fill, expectDone};

TEST(Inverse, IsWorkedOutInEveryFormAndGeometry) {
    for (const Function *function : all()) literal::expectResults(*function, example, {2, 3, 4, 5, 6, 7});
}

// 1 2 3 / 0 1 4 / 5 6 0 has the determinant 1.
TEST(Inverse, IsTheTransposedAdjugate) {
    const Matrix matrix{1, 2, 3, 0, 1, 4, 5, 6, 0};
    const Matrix inverse{-24, 18, 5, 20, -15, -4, -5, 4, 1};
    for (const Function *function : all()) {
        if (orderOf(*function, 3) != 3) continue;
        Call call(function->name, 3);
        call.set("src", 0, matrix);
        EXPECT_EQ(call.run(), vonkOk);
        // At run-time size the pivots are rounded; the closed forms have whole numbers only.
        expectNear(inverse, call.get("dst", 0), function->order == 0 || hasLanes(*function) ? 1e-5 : 0);
    }
}

TEST(Inverse, TimesItsMatrixIsTheIdentity) {
    for (const Function *function : all()) {
        const std::uint32_t order = orderOf(*function, 5);
        const Matrix matrix = literal::wellConditioned(order, 3);
        Call call(function->name, order);
        call.set("src", 0, matrix);
        ASSERT_EQ(call.run(), vonkOk);
        const Matrix inverse = call.get("dst", 0);
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
    for (const Function *function : literal::members("inverse", isRunTime)) {
        Call call(function->name, 2);
        call.set("src", 0, {4, 7, 2, 6});
        EXPECT_EQ(call.run(), vonkOk);
        Matrix expected;
        for (const double minor : {6.0, -7.0, -2.0, 4.0})
            expected.push_back(isFloat(*function) ? static_cast<float>(minor) * 0.1F : minor * 0.1);
        EXPECT_EQ(call.get("dst", 0), expected);
        EXPECT_FALSE(call.strayWrites());
    }
}

// A minor that is singular counts as 0, and an odd place changes its sign.
TEST(InverseOfRunTimeSize, HasNegativeZerosInOddPlaces) {
    for (const Function *function : literal::members("inverse", isRunTime)) {
        Call call(function->name, 3);
        call.set("src", 0, diagonal({1, 1, 1}));
        EXPECT_EQ(call.run(), vonkOk);
        literal::expectSame({1, -0.0, 0, -0.0, 1, -0.0, 0, -0.0, 1}, call.get("dst", 0), "dst");
    }
}

// The last pivot of a minor has to be above the tolerance; the smallest here is at it.
TEST(InverseOfRunTimeSize, TakesMinorsAtTheToleranceForZero) {
    for (const Function *function : literal::members("inverse", isRunTime)) {
        const double limit = isFloat(*function) ? 0x1p-23 : 0x1p-52;
        Call call(function->name, 2);
        call.set("src", 0, {limit, 1, 1, 0}); // exchanged; the determinant is -1
        EXPECT_EQ(call.run(), vonkOk);
        literal::expectSame({-0.0, 1, 1, -0.0}, call.get("dst", 0), "dst");
    }
}

TEST(InverseOfRunTimeSize, TakesScratchMemoryAtAnyMultipleOfAnElementAndLeavesTheRestAlone) {
    for (const Function *function : literal::members("inverse", isRunTime)) {
        Call call(function->name, 5, 3);
        fill(call);
        call.block("scratch").address += isFloat(*function) ? 4 : 8;
        EXPECT_EQ(call.run(), vonkOk);
        literal::expectAllDone(call, example);
    }
}

// ---- Singular matrices

std::int32_t statusOf(const Function &function, const Matrix &matrix) {
    Call call(function.name, function.order == 0 ? static_cast<std::uint32_t>(std::sqrt(matrix.size()) + 0.5) : 0);
    call.set("src", 0, matrix);
    return call.run();
}

TEST(InverseSingularity, OfRunTimeSizeAsksMoreOfTheLastPivot) {
    for (const Function *function : literal::members("inverse", isRunTime)) {
        const double limit = isFloat(*function) ? 0x1p-23 : 0x1p-52;
        for (const double sign : {1.0, -1.0}) {
            SCOPED_TRACE(function->name);
            EXPECT_EQ(statusOf(*function, diagonal({sign * limit, 1, 1})), vonkOk);
            EXPECT_EQ(statusOf(*function, diagonal({sign * towardZero(*function, limit), 1, 1})), vonkErrSingular);
            EXPECT_EQ(statusOf(*function, diagonal({1, 1, sign * limit})), vonkErrSingular);
            EXPECT_EQ(statusOf(*function, diagonal({1, 1, sign * limit * 1.5})), vonkOk);
        }
        EXPECT_EQ(statusOf(*function, diagonal({1, 1, nan})), vonkErrSingular);
        EXPECT_EQ(statusOf(*function, {0}), vonkErrSingular);
        EXPECT_EQ(statusOf(*function, {limit}), vonkErrSingular);
    }
}

// The interval is open, and its ends are doubles: the float next to 1e-7 is a little larger.
TEST(InverseSingularity, OfClosedFormsIsADeterminantInAnOpenInterval) {
    for (const Function *function :
         literal::members("inverse", [](const Function &found) { return found.order == 3 || found.order == 4; })) {
        if (hasLanes(*function)) continue;
        const double limit = isFloat(*function) ? static_cast<double>(1e-7F) : 1e-15;
        for (const double sign : {1.0, -1.0}) {
            SCOPED_TRACE(function->name);
            EXPECT_EQ(statusOf(*function, diagonalOf(*function, 0, {1, sign * limit})), vonkOk);
            EXPECT_EQ(statusOf(*function, diagonalOf(*function, 0, {sign * towardZero(*function, limit)})),
                      vonkErrSingular);
        }
        EXPECT_EQ(statusOf(*function, diagonalOf(*function, 0, {0})), vonkErrSingular);
    }
}

TEST(InverseSingularity, OfFastClosedFormsIsADeterminantOfZero) {
    for (const Function *function :
         literal::members("inverse", [](const Function &found) { return hasLanes(found) && found.order < 5; })) {
        SCOPED_TRACE(function->name);
        EXPECT_EQ(statusOf(*function, diagonalOf(*function, 0, {1e-8, 1, 1})), vonkOk);
        EXPECT_EQ(statusOf(*function, diagonalOf(*function, 0, {-1e-10, 1e-10, 1e-10})), vonkOk);
        EXPECT_EQ(statusOf(*function, diagonalOf(*function, 0, {1, 0})), vonkErrSingular);
        EXPECT_EQ(statusOf(*function, diagonalOf(*function, 0, {1, -0.0})), vonkErrSingular);
    }
}

// The determinant is that of row 0 and its cofactors. Equal rows 2 and 3 make all these zero; that rows 0 and 1 are
// equal is lost in the roundings.
TEST(InverseSingularity, OfTheFastFormOfFourStandsOnTheCofactorsOfRowZero) {
    const Matrix equal{1.0 / 3, 1.0 / 7, 1.0 / 11, 1.0 / 13};
    const Matrix others[]{{1.0 / 17, 1.0 / 19, 1.0 / 23, 1.0 / 29}, {1.0 / 31, 1.0 / 37, 1.0 / 41, 1.0 / 43}};
    const auto matrixOf = [](const std::vector<Matrix> &rows) {
        Matrix matrix;
        for (const Matrix &row : rows) matrix.insert(matrix.end(), row.begin(), row.end());
        return matrix;
    };
    for (const Function *function :
         literal::members("inverse", [](const Function &found) { return hasLanes(found) && found.order == 4; })) {
        SCOPED_TRACE(function->name);
        EXPECT_EQ(statusOf(*function, matrixOf({equal, equal, others[0], others[1]})), vonkOk);
        EXPECT_EQ(statusOf(*function, matrixOf({others[0], others[1], equal, equal})), vonkErrSingular);
    }
}

// A determinant of 1e-30: the elements are 1e-20 times 1e30.
TEST(InverseSingularity, LeavesTheFastFormOfThreeItsHugeResults) {
    for (const Function *function :
         literal::members("inverse", [](const Function &found) { return found.order == 3; })) {
        Call call(function->name, 0);
        call.set("src", 0, diagonal({1e-10, 1e-10, 1e-10}));
        EXPECT_EQ(call.run(), hasLanes(*function) ? vonkOk : vonkErrSingular);
        EXPECT_TRUE(hasLanes(*function) || call.changedNothing());
        if (hasLanes(*function)) expectNear(diagonal({1e10, 1e10, 1e10}), call.get("dst", 0), 1e-6);
    }
}

// The step of the fast form of 4 squares the estimate, 2^80 here, which no float holds.
TEST(InverseSingularity, LeavesTheFastFormOfFourNoResultsWhereTheSquareOverflows) {
    for (const Function *function :
         literal::members("inverse", [](const Function &found) { return hasLanes(found) && found.order == 4; })) {
        Call call(function->name, 0);
        call.set("src", 0, diagonal({0x1p-20, 0x1p-20, 0x1p-20, 0x1p-20}));
        EXPECT_EQ(call.run(), vonkOk);
        for (std::uint32_t i = 0; i < 4; ++i) EXPECT_FALSE(std::isfinite(call.get("dst", 0, i, i)));
    }
}

// Of 1e-8 in the first pivots alone nothing follows for the others: the determinant of the whole is 1.
TEST(InverseSingularity, OfBlocksIsThatOfTheLeadingOneOrOfTheRest) {
    for (const Function *function :
         literal::members("inverse", [](const Function &found) { return found.order > 4; })) {
        SCOPED_TRACE(function->name);
        const double small = isFloat(*function) ? 0x1p-13 : 0x1p-26; // its square is below the tolerance
        const double large = 1 / small;
        std::vector<double> elements(static_cast<std::size_t>(function->order), 1);
        elements[0] = elements[1] = small;
        elements.end()[-1] = elements.end()[-2] = large;
        EXPECT_EQ(statusOf(*function, diagonal(elements)), vonkErrSingular);
        std::swap(elements[0], elements.end()[-1]);
        std::swap(elements[1], elements.end()[-2]);
        EXPECT_EQ(statusOf(*function, diagonal(elements)), vonkErrSingular);
        std::swap(elements[0], elements.end()[-1]); // one of each in either block
        EXPECT_EQ(statusOf(*function, diagonal(elements)), vonkOk);
    }
}

TEST(InverseSingularity, IsNoNaN) {
    for (const Function *function : all()) {
        Call call(function->name, 3);
        const std::uint32_t order = call.size();
        const bool choosesFreely = hasLanes(*function) && order == 6; // and may leave out a single one
        call.set("src", 0, choosesFreely ? Matrix(36, nan) : diagonalOf(*function, 3, {nan}));
        EXPECT_EQ(call.run(), function->order == 0 ? vonkErrSingular : vonkOk);
        if (function->order == 0) continue;
        literal::expectSame(Matrix(std::size_t{order} * order, nan), call.get("dst", 0), "dst");
    }
}

TEST(InverseSingularity, EndsTheCallWithTheObjectsBeforeDoneAndTheOthersUntouched) {
    for (const Function *function : literal::members("inverse", [](const Function &found) { return found.array(); })) {
        Call call(function->name, 4, 3);
        fill(call);
        call.set("src", 1, Matrix(std::size_t{call.size()} * call.size(), 0));
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
    for (const Function *function :
         literal::members("inverse", [](const Function &found) { return found.order > 4; })) {
        Call call(function->name, 0, 2);
        const std::size_t order = call.size();
        for (std::uint32_t n = 0; n < call.count(); ++n) {
            Matrix matrix = diagonal(std::vector<double>(order, 1));
            matrix.back() = 0;
            call.set("src", n, matrix);
        }
        EXPECT_EQ(call.run(), vonkErrSingular);
        EXPECT_TRUE(hasLanes(*function) || call.changedNothing());
        EXPECT_FALSE(function->array() && call.changedObject(1));
        EXPECT_FALSE(call.strayWrites());
    }
}

// ---- Columns of the block forms

// Ones on the other diagonal: regular, but its first row has nothing in the five columns that are looked at.
TEST(InverseOfSix, LooksAtFiveColumnsButInTheFastForms) {
    Matrix exchange(36);
    for (std::size_t i = 0; i < 6; ++i) exchange[i * 6 + 5 - i] = 1;
    for (const Function *function :
         literal::members("inverse", [](const Function &found) { return found.order == 6; })) {
        Call call(function->name, 0);
        call.set("src", 0, exchange);
        EXPECT_EQ(call.run(), hasLanes(*function) ? vonkOk : vonkErrSingular);
        EXPECT_TRUE(hasLanes(*function) || call.changedNothing());
        for (std::uint32_t k = 0; hasLanes(*function) && k < 36; ++k)
            EXPECT_NEAR(call.get("dst", 0)[k], exchange[k], 0x1p-19) << "element " << k;
    }
}

// The leading columns depend on one another, and others take their places.
TEST(InverseOfBlocks, PutsRegularColumnsInFront) {
    for (const Function *function :
         literal::members("inverse", [](const Function &found) { return found.order > 4; })) {
        const auto order = static_cast<std::uint32_t>(function->order);
        Matrix matrix(std::size_t{order} * order), inverse(matrix.size());
        // Row i has its one in column 4 - i, and the last one of 6 by 6 its own.
        for (std::uint32_t i = 0; i < order; ++i) {
            const std::uint32_t j = i < 5 ? 4 - i : i;
            matrix[i * order + j] = inverse[j * order + i] = 1;
        }
        Call call(function->name, 0);
        call.set("src", 0, matrix);
        EXPECT_EQ(call.run(), vonkOk);
        for (std::uint32_t k = 0; k < order * order; ++k)
            EXPECT_NEAR(call.get("dst", 0)[k], inverse[k], hasLanes(*function) ? 0x1p-19 : 0) << "element " << k;
    }
}

// ---- Precision and accuracy

// A third is rounded as the caller says.
TEST(InverseRounding, IsTheCallers) {
    for (const Function *function : all()) {
        if (hasLanes(*function)) continue;
        SCOPED_TRACE(function->name);
        const auto at = [&](Rounding rounding) {
            const SettingScope scope({Precision::bits64, rounding});
            Call call(function->name, 3);
            call.set("src", 0, diagonalOf(*function, 3, {3}));
            EXPECT_EQ(call.run(), vonkOk);
            return call.get("dst", 0, 0, 0);
        };
        EXPECT_EQ(at(Rounding::down), towardZero(*function, at(Rounding::up)));
    }
}

// Cofactors, determinant and reciprocal of doubles stay in the extended type: the determinant is 2^-1200 or 2^1200, and
// the results are numbers all the same.
TEST(InverseOfDoubles, HasTheExtendedRange) {
    for (const Function *function :
         literal::members("inverse", [](const Function &found) { return !isFloat(found) && found.order != 0; })) {
        const std::uint32_t order = orderOf(*function, 0);
        Call call(function->name, 0);
        call.set("src", 0, diagonal(std::vector<double>(order, 0x1p400)));
        EXPECT_EQ(call.run(), vonkOk);
        EXPECT_EQ(call.get("dst", 0), diagonal(std::vector<double>(order, 0x1p-400)));
    }
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
