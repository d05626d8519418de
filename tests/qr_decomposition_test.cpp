// QR decomposition: factors by hand and by the plain recurrence in every form, the tolerance on the squared norm of a
// column, shapes other than squares, what a failure leaves in `dst` and in the work block, and where wide arithmetic is
// rounded.
#include "support/family_test.h"

namespace {

using namespace literal::names;

constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr double tolerance = 0x1p-23;

std::vector<const Function *> all(bool (*wanted)(const Function &) = isAny) {
    return literal::members("qr-decomposition", wanted);
}

const std::vector<std::uint32_t> orders{1, 2, 3, 4, 5, 6, 7};

// ---- The recurrence

// In the element type throughout, which is what all forms do at 53 bits; a root of a float is the same whether it is
// taken wide and rounded or not.
template <class Real> struct Recurrence {
    std::uint32_t rows;
    std::uint32_t cols;
    std::vector<Real> elements;
    std::vector<Real> work;
    bool failed = false;

    Recurrence(std::uint32_t height, std::uint32_t width, const std::vector<double> &matrix)
        : rows(height), cols(width), work(height) {
        for (const double element : matrix) elements.push_back(static_cast<Real>(element));
        const std::uint32_t reflections = rows == cols ? cols - 1 : cols;
        for (std::uint32_t k = 0; k < reflections && !failed; ++k) reflect(k);
    }

    Real &at(std::uint32_t i, std::uint32_t j) { return elements[std::size_t{i} * cols + j]; }

    void reflect(std::uint32_t k) {
        Real squares = 0;
        for (std::uint32_t i = k; i < rows; ++i) squares = squares + at(i, k) * at(i, k);
        failed = !(squares >= static_cast<Real>(tolerance));
        if (failed) return;
        const Real norm = std::sqrt(squares);
        const Real reciprocal = Real(1) / (at(k, k) + (at(k, k) > 0 ? norm : -norm));
        Real length = 1;
        work[k] = 1;
        for (std::uint32_t i = k + 1; i < rows; ++i) {
            work[i] = at(i, k) * reciprocal;
            length = length + work[i] * work[i];
        }
        const Real beta = Real(-2) / length;
        for (std::uint32_t c = k; c < cols; ++c) {
            Real projection = at(k, c);
            for (std::uint32_t i = k + 1; i < rows; ++i) projection = projection + at(i, c) * work[i];
            projection = projection * beta;
            for (std::uint32_t i = k; i < rows; ++i) at(i, c) = work[i] * projection + at(i, c);
        }
        for (std::uint32_t i = k + 1; i < rows; ++i) at(i, k) = work[i];
    }

    std::vector<double> left() const { return {elements.begin(), elements.end()}; }
    std::vector<double> leftInWork() const { return {work.begin(), work.end()}; }
};

struct Left {
    std::vector<double> elements;
    std::vector<double> work;
    bool failed;
};

Left recur(const Function &function, std::uint32_t rows, std::uint32_t cols, const std::vector<double> &matrix) {
    if (function.type == Type::real32) {
        const Recurrence<float> done(rows, cols, matrix);
        return {done.left(), done.leftInWork(), done.failed};
    }
    const Recurrence<double> done(rows, cols, matrix);
    return {done.left(), done.leftInWork(), done.failed};
}

// Nothing about these numbers is round, also not in the last place.
std::vector<double> matrixOf(std::uint32_t rows, std::uint32_t cols, std::uint32_t variant) {
    std::vector<double> matrix;
    for (std::uint32_t k = 0; k < rows * cols; ++k)
        matrix.push_back(static_cast<double>(static_cast<float>(((k * k * 5 + k * 7 + variant * 3) % 23 - 10.7) / 3)));
    return matrix;
}

// ---- Factors

// 53 bits, so that doubles are doubles at every step.
void expectRecurrence(const Function &function, std::uint32_t rows, std::uint32_t cols, Geometry geometry) {
    constexpr std::uint32_t count = 3;
    SCOPED_TRACE(function.name + ", " + std::to_string(rows) + " by " + std::to_string(cols));
    Call call(function.name, cols, count, geometry, rows);
    for (std::uint32_t n = 0; n < call.count(); ++n) call.set("src", n, matrixOf(rows, cols, n));
    const SettingScope scope({Precision::bits53, Rounding::nearest});
    ASSERT_EQ(call.run(), vonkOk);
    for (std::uint32_t n = 0; n < call.count(); ++n)
        literal::expectSame(recur(function, rows, cols, matrixOf(rows, cols, n)).elements, call.get("dst", n),
                            "dst of object " + std::to_string(n));
    const std::uint32_t last = call.count() - 1;
    literal::expectSame(recur(function, rows, cols, matrixOf(rows, cols, last)).work, call.work(), "work");
    EXPECT_FALSE(call.strayWrites());
}

TEST(QrDecomposition, FollowsTheRecurrenceInEveryFormAndGeometry) {
    for (const Function *function : all())
        for (const Geometry geometry : {literal::packed, literal::spread, literal::backward})
            for (const std::uint32_t order : literal::sizesOf(*function, {2, 3, 4, 5, 6, 7, 9}))
                expectRecurrence(*function, order, order, geometry);
}

TEST(QrDecomposition, FollowsTheRecurrenceForMatricesHigherThanWide) {
    for (const Function *function : all(isRunTime))
        for (const Geometry geometry : {literal::packed, literal::spread, literal::backward})
            for (const auto &[rows, cols] :
                 {std::pair{2U, 1U}, {3U, 1U}, {3U, 2U}, {4U, 3U}, {5U, 3U}, {6U, 2U}, {7U, 3U}, {8U, 7U}})
                expectRecurrence(*function, rows, cols, geometry);
}

// A column of 0 and 2^n below it has the norm 2^n and the reflector 1 -1, and exchanges two rows: beta is -1.
//   0 3    alpha is -4, work is 1 -1; the second column is 3 5: p = (3 - 5) * -1 = 2, so 2 + 3 and -2 + 5
//   4 5    and the first 0 4: p = (0 - 4) * -1 = 4, so 4 + 0 and -4 + 4, over which -1 is stored
std::vector<double> exchanged(std::uint32_t order, double sign) {
    std::vector<double> matrix(std::size_t{order} * order);
    for (std::uint32_t i = 0; i < order; ++i) matrix[i * order + i] = 1;
    matrix[0] = 0;
    matrix[1] = 3;
    matrix[order] = 4 * sign;
    matrix[order + 1] = 5 * sign;
    return matrix;
}

// Where all below the diagonal is zero the reflector is 1 and turns the sign of the row.
void expectExchanged(Call &call, std::uint32_t n, double sign) {
    const std::uint32_t order = call.size();
    std::vector<double> expected(std::size_t{order} * order);
    for (std::uint32_t i = 0; i < order; ++i) expected[i * order + i] = i + 1 == order ? 1 : -1;
    expected[0] = 4;
    expected[1] = 5;
    expected[order] = -sign;
    expected[order + 1] = order == 2 ? 3 * sign : -3 * sign;
    for (std::uint32_t i = 0; i < order; ++i)
        for (std::uint32_t j = 0; j < order; ++j)
            EXPECT_EQ(expected[i * order + j], call.get("dst", n, i, j)) << i << " " << j; // zeros of any sign
}

const literal::Example example{[](Call &call) {
                                   for (std::uint32_t n = 0; n < call.count(); ++n)
                                       call.set("src", n,
                                                call.size() == 1 ? std::vector<double>{5.0 + n}
                                                                 : exchanged(call.size(), n % 2 ? -1 : 1));
                               },
                               [](Call &call, std::uint32_t n) {
                                   if (call.size() == 1) EXPECT_EQ(call.get("dst", n, 0, 0), 5.0 + n);
                                   else expectExchanged(call, n, n % 2 ? -1 : 1);
                               }};

// With a zero on the diagonal the norm is taken negative, and R comes out positive.
TEST(QrDecomposition, ExchangesTwoRowsByHandInEveryForm) {
    for (const Function *function : all()) literal::expectResults(*function, example, orders);
}

TEST(QrDecomposition, FactorsInPlaceInEveryForm) {
    for (const Function *function : all()) literal::expectInPlaceResults(*function, example, "src", orders);
}

TEST(QrDecomposition, TakesItsWordsInTheOrderOfTheHeader) {
    using literal::wordOf;
    const float matrix[6] = {0, 3, 9, 9, 4, 5}; // rows 16 bytes apart
    float work[3] = {7, 7, 7};
    float factor[7] = {}; // rows 8 bytes apart, elements 12
    EXPECT_EQ(literal::callWith("vonkQRDecomp_ma_32f_S2", {wordOf(matrix), 1 << 20, 16, 4, wordOf(work), wordOf(factor),
                                                           1 << 20, 8, 12, 2, 2, 1}),
              vonkOk);
    EXPECT_EQ(std::vector<float>(factor, factor + 7), (std::vector<float>{4, 0, -1, 5, 0, 3, 0}));
    EXPECT_EQ(std::vector<float>(work, work + 3), (std::vector<float>{1, -1, 7}));
    // One column of two rows.
    const double column[2] = {0, -2};
    double length[2] = {};
    double wide[2] = {};
    EXPECT_EQ(literal::callWith("vonkQRDecomp_m_64f", {wordOf(column), 8, wordOf(wide), wordOf(length), 8, 1, 2}),
              vonkOk);
    EXPECT_EQ(std::vector<double>(length, length + 2), (std::vector<double>{2, 1}));
}

// The norm with the opposite sign: of 3 4 it is 5.
TEST(QrDecomposition, LeavesTheNormOfASingleColumnWithTheOtherSign) {
    for (const Function *function : all(isRunTime))
        for (const double sign : {1.0, -1.0}) {
            Call call(function->name, 1, 2, literal::spread, 2);
            for (std::uint32_t n = 0; n < call.count(); ++n) call.set("src", n, {3 * sign, 4});
            ASSERT_EQ(call.run(), vonkOk);
            for (std::uint32_t n = 0; n < call.count(); ++n) {
                EXPECT_NEAR(call.get("dst", n, 0, 0), -5 * sign, 1e-6);
                EXPECT_EQ(call.get("dst", n, 1, 0), 0.5 * sign); // 4 / (3 + 5)
            }
        }
}

// Neither tolerance nor reflector: whatever the number is.
TEST(QrDecomposition, CopiesTheOnlyElementOfOneRowAndLeavesTheWorkAlone) {
    for (const Function *function : all(isRunTime))
        for (const double element : {5.0, 0x1p-30, 0.0, -0.0, infinity, nan}) {
            Call call(function->name, 1, 2);
            for (std::uint32_t n = 0; n < call.count(); ++n) call.set("src", n, {element});
            EXPECT_EQ(call.run(), vonkOk);
            for (std::uint32_t n = 0; n < call.count(); ++n)
                literal::expectSame(element, call.get("dst", n, 0, 0), "dst");
            EXPECT_FALSE(call.changedWork());
        }
}

// What the work block held before, a NaN for one, is of no account, nor what an earlier object has left there.
TEST(QrDecomposition, KeepsInTheWorkTheReflectorAndAboveItWhatEarlierOnesLeft) {
    for (const Function *function : all())
        for (const std::uint32_t order : literal::sizesOf(*function, {3, 7})) {
            Call call(function->name, order, 2);
            std::vector<double> matrix(std::size_t{order} * order);
            for (std::uint32_t i = 0; i < order; ++i) matrix[i * order + i] = 2;
            matrix[order - 1] = 1;
            for (std::uint32_t n = 0; n < call.count(); ++n) call.set("src", n, matrix);
            ASSERT_EQ(call.run(), vonkOk);
            std::vector<double> expected(order, 1.0); // each has left its leading 1
            expected.back() = 0;
            EXPECT_EQ(call.work(), expected);
        }
}

// The destination lies one object ahead of the source: object 1 is made of what object 0 has left.
TEST(QrDecomposition, FinishesEachObjectBeforeItCopiesTheNext) {
    for (const Function *function : all(isArray))
        for (const std::uint32_t order : literal::sizesOf(*function, {2, 3})) {
            Call call(function->name, order, 2);
            call["dst"].moveTo(call["src"].origin + call["src"].objectStride);
            std::vector<double> matrix(std::size_t{order} * order);
            for (std::uint32_t i = 0; i < order; ++i) matrix[i * order + i] = 2;
            call.set("src", 1, matrix);
            matrix[1] = 6;
            call.set("src", 0, matrix);
            ASSERT_EQ(call.run(), vonkOk);
            EXPECT_EQ(call.get("dst", 0, 0, 0), -2);
            EXPECT_EQ(call.get("dst", 0, 0, 1), -6);
            EXPECT_EQ(call.get("dst", 1, 0, 0), 2);
            EXPECT_EQ(call.get("dst", 1, 0, 1), 6);
        }
}

// ---- The tolerance

double nextBelow(const Function &function, double value) {
    if (function.type == Type::real64) return std::nextafter(value, 0.0);
    return static_cast<double>(std::nextafterf(static_cast<float>(value), 0.0F));
}

// 2^-12 twice has the squared norm 2^-23 and passes; a hair less does not, however far from the noise of doubles. Ahead
// of the column stand zeros below a diagonal of ones, which each reflection turns, and behind it anything.
TEST(QrDecompositionTolerance, IsTwoToTheMinus23OfTheSquaredNormForBothTypesAndEqualPasses) {
    for (const Function *function : all()) {
        const double half = 0x1p-12;
        const std::array cases = std::to_array<std::pair<std::array<double, 2>, bool>>({
            {{half, half}, true},
            {{-half, half}, true},
            {{half, -half}, true},
            {{nextBelow(*function, half), half}, false},
            {{half, nextBelow(*function, half)}, false},
            {{1e-4, 1e-4}, false},
            {{0, 0}, false},
            {{0, 0x1p-11}, true},
            {{0x1p-11, 0}, true},
            {{nan, 1}, false},
            {{1, nan}, false},
        });
        for (const std::uint32_t order : literal::sizesOf(*function, {2, 3, 4, 7}))
            for (std::uint32_t k = 0; k + 1 < order; ++k)
                for (const auto &[column, passes] : cases) {
                    SCOPED_TRACE(function->name + ", order " + std::to_string(order) + ", column " + std::to_string(k));
                    Call call(function->name, order, 2);
                    std::vector<double> matrix(std::size_t{order} * order);
                    for (std::uint32_t i = 0; i < order; ++i) matrix[i * order + i] = 1;
                    matrix[k * order + k] = column[0];
                    matrix[(order - 1) * order + k] = column[1];
                    for (std::uint32_t n = 0; n < call.count(); ++n) call.set("src", n, matrix);
                    EXPECT_EQ(call.run(), passes ? vonkOk : vonkErrSingular);
                    if (passes) continue;
                    for (std::uint32_t i = 0; i < order; ++i) // those before are done, and this one is as it was
                        for (std::uint32_t j = 0; j < order; ++j) {
                            const double element = call.get("src", 0, i, j);
                            // The product of a NaN and a zero of the reflector has spread over the column.
                            const bool spread = j == k && k > 0 && std::isnan(column[0] + column[1]);
                            const double expected = spread ? nan : i == j && i < k ? -element : element;
                            const double got = call.get("dst", 0, i, j);
                            EXPECT_TRUE(got == expected || (std::isnan(got) && std::isnan(expected))) << i << " " << j;
                        }
                    if (function->array()) {
                        EXPECT_FALSE(call.changedObject(1));
                    }
                    if (k == 0) {
                        EXPECT_FALSE(call.changedWork());
                    }
                }
    }
}

TEST(QrDecompositionTolerance, SparesTheLastColumnOfASquare) {
    for (const Function *function : all())
        for (const double last : {0.0, 0x1p-60, nan})
            for (const std::uint32_t order : literal::sizesOf(*function, {2, 3, 7})) {
                Call call(function->name, order, 2);
                std::vector<double> matrix(std::size_t{order} * order);
                for (std::uint32_t i = 0; i < order; ++i) matrix[i * order + i] = i + 1 == order ? last : 1;
                for (std::uint32_t n = 0; n < call.count(); ++n) call.set("src", n, matrix);
                EXPECT_EQ(call.run(), vonkOk);
                for (std::uint32_t n = 0; n < call.count(); ++n)
                    literal::expectSame(last, call.get("dst", n, order - 1, order - 1), "the last element");
            }
}

TEST(QrDecompositionTolerance, MeetsTheLastColumnOfAHigherMatrix) {
    for (const Function *function : all(isRunTime))
        for (const double last : {0x1p-12, 1.0}) {
            Call call(function->name, 2, 2, literal::packed, 3);
            for (std::uint32_t n = 0; n < call.count(); ++n) call.set("src", n, {1, 0, 0, 0, 0, last});
            EXPECT_EQ(call.run(), last == 1 ? vonkOk : vonkErrSingular);
        }
}

// An infinity passes. On the diagonal it makes a reflector of zeros and a NaN in its own place; below it makes a NaN of
// the reflector and so of all columns, which the next one's test finds, if there is one.
TEST(QrDecompositionTolerance, LetsInfinityPass) {
    for (const Function *function : all())
        for (const std::uint32_t order : literal::sizesOf(*function, {2, 3, 7}))
            for (const bool onDiagonal : {true, false}) {
                Call call(function->name, order);
                std::vector<double> matrix(std::size_t{order} * order);
                for (std::uint32_t i = 0; i < order; ++i) matrix[i * order + i] = 1;
                matrix[onDiagonal ? 0 : order] = infinity;
                call.set("src", 0, matrix);
                EXPECT_EQ(call.run(), onDiagonal || order == 2 ? vonkOk : vonkErrSingular);
                EXPECT_TRUE(std::isnan(call.get("dst", 0, 0, 0)));
                if (onDiagonal) EXPECT_EQ(call.get("dst", 0, 1, 0), 0);
                else EXPECT_TRUE(std::isnan(call.get("dst", 0, 1, 1)));
            }
}

// The last row's reflector is its leading 1 alone and turns the signs of the row; then nothing is left to sum up. Zeros
// below the diagonal do the same in the rows above.
TEST(QrDecompositionTolerance, RefusesEveryMatrixWiderThanHighAfterAsManyReflectionsAsRows) {
    for (const Function *function : all(isRunTime))
        for (const std::uint32_t rows : {1U, 2U, 3U})
            for (const std::uint32_t surplus : {1U, 2U, 4U}) {
                const std::uint32_t cols = rows + surplus;
                SCOPED_TRACE(function->name + ", " + std::to_string(rows) + " by " + std::to_string(cols));
                Call call(function->name, cols, 2, literal::packed, rows);
                std::vector<double> matrix;
                for (std::uint32_t i = 0; i < rows; ++i)
                    for (std::uint32_t j = 0; j < cols; ++j) matrix.push_back(j < i ? 0 : j - i + 1);
                for (std::uint32_t n = 0; n < call.count(); ++n) call.set("src", n, matrix);
                EXPECT_EQ(call.run(), vonkErrSingular);
                for (std::uint32_t i = 0; i < rows; ++i)
                    for (std::uint32_t j = 0; j < cols; ++j) EXPECT_EQ(call.get("dst", 0, i, j), -matrix[i * cols + j]);
                EXPECT_EQ(call.work(), std::vector<double>(rows, 1.0));
                EXPECT_FALSE(call.strayWrites());
                if (function->array()) {
                    EXPECT_FALSE(call.changedObject(1));
                }
            }
}

TEST(QrDecompositionTolerance, EndsTheCallWithTheObjectsBeforeDoneAndThoseAfterUntouched) {
    for (const Function *function : all(isArray))
        for (const std::uint32_t order : literal::sizesOf(*function, {2, 5})) {
            Call call(function->name, order, 4, literal::spread);
            example.fill(call);
            const std::vector<double> zeros(std::size_t{order} * order, 0.0);
            call.set("src", 2, zeros);
            EXPECT_EQ(call.run(), vonkErrSingular);
            example.expectDone(call, 0);
            example.expectDone(call, 1);
            EXPECT_EQ(call.get("dst", 2), zeros);
            EXPECT_FALSE(call.changedObject(3));
            EXPECT_FALSE(call.strayWrites());
        }
}

// ---- Rounding

// The precision of the 80-bit unit does not matter, not even to the root.
TEST(QrDecompositionRounding, OfFloatsIsDoneAtEveryStepAtEveryPrecision) {
    for (const Function *function : all(isFloat))
        for (const Precision precision : {Precision::bits53, Precision::bits64})
            for (const std::uint32_t order : literal::sizesOf(*function, {2, 3, 5, 7}))
                for (std::uint32_t variant = 0; variant < 5; ++variant) {
                    Call call(function->name, order);
                    call.set("src", 0, matrixOf(order, order, variant));
                    const Left left = recur(*function, order, order, matrixOf(order, order, variant));
                    const SettingScope scope({precision, Rounding::nearest});
                    EXPECT_EQ(call.run(), left.failed ? vonkErrSingular : vonkOk);
                    literal::expectSame(left.elements, call.get("dst", 0), "dst");
                    literal::expectSame(left.work, call.work(), "work");
                }
}

// The first element of the reflector, x1 / (x0 + norm), by the steps that doubles take at 64 bits: the squared norm is
// rounded behind the pairs and behind the odd one, the rest up to the store is wide.
double expectedReflector(const std::vector<double> &column, bool roundsNorm, bool roundsReciprocal) {
    long double sum = 0;
    const std::size_t pairs = column.size() / 2 * 2;
    for (std::size_t i = 0; i < pairs; ++i) sum += static_cast<long double>(column[i]) * column[i];
    if (roundsNorm) sum = static_cast<double>(sum);
    if (pairs < column.size()) sum += static_cast<long double>(column.back()) * column.back();
    if (roundsNorm) sum = static_cast<double>(sum);
    const long double norm = std::sqrt(sum);
    long double reciprocal = 1 / (column[0] > 0 ? column[0] + norm : column[0] - norm);
    if (roundsReciprocal) reciprocal = static_cast<double>(reciprocal);
    return static_cast<double>(column[1] * reciprocal);
}

// What a matrix with zeros behind its first column leaves in the work block: the second column fails.
std::vector<double> reflectorOf(const Function &function, std::uint32_t order, const std::vector<double> &column) {
    Call call(function.name, order);
    std::vector<double> matrix(std::size_t{order} * order);
    for (std::uint32_t i = 0; i < order; ++i) matrix[i * order] = column[i];
    call.set("src", 0, matrix);
    EXPECT_EQ(call.run(), order == 2 ? vonkOk : vonkErrSingular);
    return call.work();
}

TEST(QrDecompositionRounding, OfDoublesMeetsTheSquaredNormAndNotTheReciprocal) {
    for (const Function *function : all(isDouble))
        for (const std::uint32_t order : literal::sizesOf(*function, {2, 3, 4, 5, 6, 7})) {
            int tellingNorm = 0;
            int tellingReciprocal = 0;
            for (int variant = 1; variant <= 200; ++variant) {
                SCOPED_TRACE(function->name + ", variant " + std::to_string(variant));
                std::vector<double> column;
                for (std::uint32_t i = 0; i < order; ++i)
                    column.push_back((variant + 1.7 * i) / 3 * ((variant + i) % 2 == 0 ? 1 : -1));
                const double expected = expectedReflector(column, true, false);
                ASSERT_EQ(reflectorOf(*function, order, column)[1], expected);
                tellingNorm += expected != expectedReflector(column, false, false);
                tellingReciprocal += expected != expectedReflector(column, true, true);
            }
            EXPECT_GT(tellingNorm, 0);
            EXPECT_GT(tellingReciprocal, 0);
        }
}

// The squared length of the reflector is built from wide elements and rounded behind the pairs and behind the odd one,
// and so is beta; p stays wide. The recurrence in long doubles, with these roundings, is the reference; the one without
// any has to differ from it now and then.
struct Wide {
    bool roundsLength = true; // and beta
    bool keepsElements = true;
    bool roundsProjection = false;

    static long double stored(long double value) { return static_cast<double>(value); }

    // The last column behind the reflection of the first, given as one column ahead of another.
    std::vector<double> second(const std::vector<double> &first, std::vector<double> column) const {
        const std::size_t rows = first.size();
        long double squares = 0;
        for (std::size_t i = 0; i < rows; ++i) {
            if (i == rows / 2 * 2) squares = stored(squares);
            squares += static_cast<long double>(first[i]) * first[i];
        }
        const long double norm = std::sqrt(stored(squares));
        const long double reciprocal = 1 / (first[0] > 0 ? first[0] + norm : first[0] - norm);
        std::vector<double> work(rows, 1.0);
        long double length = 1;
        const std::size_t odd = 1 + (rows - 1) / 2 * 2;
        for (std::size_t i = 1; i < rows; ++i) {
            if (i == odd && roundsLength) length = stored(length);
            const long double element = first[i] * reciprocal;
            work[i] = static_cast<double>(element);
            const long double factor = keepsElements ? element : static_cast<long double>(work[i]);
            length += factor * factor;
        }
        if (roundsLength) length = stored(length);
        const long double beta = roundsLength ? stored(-2 / length) : -2 / length;
        long double projection = column[0];
        for (std::size_t i = 1; i < rows; ++i) projection += static_cast<long double>(column[i]) * work[i];
        projection *= beta;
        if (roundsProjection) projection = stored(projection);
        for (std::size_t i = 0; i < rows; ++i)
            column[i] = static_cast<double>(work[i] * projection + static_cast<long double>(column[i]));
        return column;
    }
};

TEST(QrDecompositionRounding, OfDoublesMeetsLengthAndBetaAndNotTheProjection) {
    for (const Function *function : all(isDouble))
        for (const std::uint32_t order : literal::sizesOf(*function, {2, 3, 4, 5, 6, 7})) {
            std::array<int, 3> telling{};
            for (int variant = 1; variant <= 300; ++variant) {
                SCOPED_TRACE(function->name + ", variant " + std::to_string(variant));
                std::vector<double> first;
                std::vector<double> last;
                for (std::uint32_t i = 0; i < order; ++i) {
                    first.push_back((variant + 1.7 * i) / 3 * ((variant + i) % 2 == 0 ? 1 : -1));
                    last.push_back((1 + (variant * 5 + i * 3) % 11) / 7.0);
                }
                Call call(function->name, order);
                std::vector<double> matrix(std::size_t{order} * order);
                for (std::uint32_t i = 0; i < order; ++i) {
                    matrix[i * order] = first[i];
                    matrix[i * order + order - 1] = last[i];
                }
                call.set("src", 0, matrix);
                // The columns between are zero, so that the second one fails and leaves what the first has done.
                ASSERT_EQ(call.run(), order == 2 ? vonkOk : vonkErrSingular);
                std::vector<double> got;
                for (std::uint32_t i = 0; i < order; ++i) got.push_back(call.get("dst", 0, i, order - 1));
                const std::vector<double> expected = Wide{}.second(first, last);
                literal::expectSame(expected, got, "the last column");
                telling[0] += expected != Wide{false, true, false}.second(first, last);
                telling[1] += expected != Wide{true, false, false}.second(first, last);
                telling[2] += expected != Wide{true, true, true}.second(first, last);
            }
            for (const int told : telling) EXPECT_GT(told, 0);
        }
}

// ---- What is tested, and when

TEST(QrDecompositionChecks, LookAtAllPositionsOfMatricesHigherThanWide) {
    for (const Function *function : all(isRunTime)) {
        if (!catalogue::isTable(function->operands[0].layout)) continue;
        for (const char *operand : {"src", "dst"})
            for (std::size_t entry = 0; entry < 10; ++entry) {
                SCOPED_TRACE(function->name + ", " + operand + "[" + std::to_string(entry) + "]");
                Call call(function->name, 2, 2, literal::packed, 5);
                for (std::uint32_t n = 0; n < call.count(); ++n) call.set("src", n, matrixOf(5, 2, n));
                call[operand].entries[entry] = nullptr;
                EXPECT_EQ(call.run(), vonkErrNullPtr);
                EXPECT_TRUE(call.changedNothing());
            }
    }
}

} // namespace
