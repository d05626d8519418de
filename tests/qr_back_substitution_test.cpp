// QR back substitution: solutions by hand and by the plain recurrence in every form, least squares with what is left
// over in the work block, where doubles are rounded, the block copy of vonkQRBackSubst_mv_32f, and the members that go
// their own way: the word that nobody reads, and the lists of doubles that look for their matrix elsewhere.
#include "support/family_test.h"

namespace {

using namespace literal::names;

constexpr double nan = std::numeric_limits<double>::quiet_NaN();

std::vector<const Function *> all(bool (*wanted)(const Function &) = isAny) {
    return literal::members("qr-back-substitution", wanted);
}

bool isShared(const Function &function) { return function.group == "mva"; } // one matrix for all right-hand sides

// mva and mava of doubles in L look for elements elsewhere than all others.
bool isDisplaced(const Function &function) {
    return isException(function, "qr-solve-column-step") || isException(function, "qr-solve-displaced-triangle");
}

bool isRegular(const Function &function) { return !isDisplaced(function); }

const std::vector<std::uint32_t> orders{1, 2, 3, 4, 5, 6, 7};

// ---- The recurrence

struct Solved {
    std::vector<double> solution;
    std::vector<double> work;
};

struct Roundings {
    bool beta = false; // and what goes into it
    bool sum = false;
};

// What is stored is an element, everything else is wide: of floats a float as well. Works under the precision of the
// 80-bit unit that it finds, as the library does.
template <class Real, class Wide>
Solved solve(const std::vector<double> &side, std::uint32_t cols,
             const std::function<double(std::uint32_t, std::uint32_t)> &reflector,
             const std::function<double(std::uint32_t, std::uint32_t)> &upper, Roundings roundings = {}) {
    const auto rows = static_cast<std::uint32_t>(side.size());
    const auto rounded = [](bool really, Wide value) {
        return really ? static_cast<Wide>(static_cast<Real>(value)) : value;
    };
    std::vector<Real> work;
    for (const double element : side) work.push_back(static_cast<Real>(element));
    for (std::uint32_t k = 0; k < (rows == cols ? cols - 1 : cols); ++k) {
        Wide length = 1;
        Wide dot = static_cast<Wide>(work[k]);
        for (std::uint32_t i = k + 1; i < rows; ++i) {
            const auto element = static_cast<Wide>(reflector(i, k));
            length = length + element * element;
            dot = dot + static_cast<Wide>(work[i]) * element;
        }
        const Wide beta = rounded(roundings.beta, Wide(-2) / rounded(roundings.beta, length));
        const Wide scaled = dot * beta;
        work[k] = static_cast<Real>(static_cast<Wide>(work[k]) + scaled);
        for (std::uint32_t i = k + 1; i < rows; ++i)
            work[i] = static_cast<Real>(static_cast<Wide>(reflector(i, k)) * scaled + static_cast<Wide>(work[i]));
    }
    std::vector<Real> x(cols);
    for (std::uint32_t i = cols; i-- > 0;) {
        Wide sum = 0;
        for (std::uint32_t j = i + 1; j < cols; ++j)
            sum = sum + static_cast<Wide>(upper(i, j)) * static_cast<Wide>(x[j]);
        const Wide rest =
            i + 1 == cols ? static_cast<Wide>(work[i]) : static_cast<Wide>(work[i]) - rounded(roundings.sum, sum);
        x[i] = static_cast<Real>(rest / static_cast<Wide>(upper(i, i)));
    }
    return {{x.begin(), x.end()}, {work.begin(), work.end()}};
}

// With the elements where the function looks for them. One matrix in a list of right-hand sides has columns 4 bytes
// apart; with a matrix for each, row i of the triangle begins i + 1 bytes behind where a row ahead of the matrix would.
Solved solve(Call &call, std::uint32_t n, Roundings roundings = {}) {
    const Function &function = call.function();
    const literal::Place &matrix = call["src1"];
    const auto reflector = [&](std::uint32_t i, std::uint32_t k) {
        if (isDisplaced(function) && isShared(function)) return call.getAt(matrix.address(n, i, 0) + 4 * k);
        return call.get("src1", n, i, k);
    };
    const auto upper = [&](std::uint32_t i, std::uint32_t j) {
        if (!isDisplaced(function) || isShared(function)) return reflector(i, j);
        return call.getAt(matrix.address(n, 0, 0) + 8 * j + (i + 1) - matrix.rowStride);
    };
    const std::vector<double> side = call.get("src2", n);
    return function.type == Type::real32 ? solve<float, float>(side, call.size(), reflector, upper, roundings)
                                         : solve<double, long double>(side, call.size(), reflector, upper, roundings);
}

// ---- Solutions

// Reflector k is 1 in row k and 1 or -1 in the next, so that it exchanges two elements and turns their signs or does
// not; R has powers of two on its diagonal and whole numbers beside it. No step rounds.
struct System {
    std::uint32_t rows;
    std::uint32_t cols;
    std::uint32_t variant; // of the matrix
    std::uint32_t side;    // of the right-hand side

    double reflector(std::uint32_t i, std::uint32_t k) const { return i != k + 1 ? 0 : (k + variant) % 2 ? -1 : 1; }
    double upper(std::uint32_t i, std::uint32_t j) const {
        if (i == j) return std::array{2.0, -4.0, 1.0}[(i + variant) % 3];
        return static_cast<double>((i * 3 + j * 5 + variant) % 7) - 3;
    }
    double solution(std::uint32_t j) const { return static_cast<double>((j * 5 + side * 3) % 9) - 3.5; }
    std::vector<double> matrix() const {
        std::vector<double> elements;
        for (std::uint32_t i = 0; i < rows; ++i)
            for (std::uint32_t j = 0; j < cols; ++j) elements.push_back(i > j ? reflector(i, j) : upper(i, j));
        return elements;
    }
    std::vector<double> rotated() const { // R times the solution, then what is left over
        std::vector<double> sums(rows);
        for (std::uint32_t i = 0; i < rows; ++i) {
            if (i >= cols) sums[i] = 100.0 + i + side;
            for (std::uint32_t j = i; j < cols; ++j) sums[i] += upper(i, j) * solution(j);
        }
        return sums;
    }
    std::vector<double> rightHandSide() const { // each reflection is its own inverse
        std::vector<double> b = rotated();
        for (std::uint32_t k = rows == cols ? cols - 1 : cols; k-- > 0;) {
            const double sign = reflector(k + 1, k);
            const double kept = b[k];
            b[k] = -sign * b[k + 1];
            b[k + 1] = -sign * kept;
        }
        return b;
    }
};

System systemOf(Call &call, std::uint32_t n) {
    return {call.rows(), call.size(), isShared(call.function()) ? 0 : n, n};
}

// Bytes of which every eight are an ordinary double, around the matrix too.
void fillDisplaced(Call &call) {
    const literal::Place &matrix = call["src1"];
    const std::ptrdiff_t margin = std::abs(matrix.rowStride) + 16;
    std::byte *low = matrix.address(0, 0, 0);
    std::byte *high = low;
    for (std::uint32_t n = 0; n < call.objectsOf("src1"); ++n)
        for (const std::uint32_t i : {0U, call.rows() - 1}) {
            low = std::min(low, matrix.address(n, i, 0));
            high = std::max(high, matrix.address(n, i, call.size() - 1) + 8);
        }
    std::uint32_t state = 1;
    for (std::byte *at = low - margin; at < high + margin; ++at) {
        state = state * 1664525 + 1013904223;
        *at = std::byte{0x3e} | static_cast<std::byte>(state >> 31);
    }
}

void fill(Call &call) {
    if (isDisplaced(call.function())) fillDisplaced(call);
    for (std::uint32_t n = 0; n < call.count(); ++n) {
        const System system = systemOf(call, n);
        if (!isDisplaced(call.function()) && n < call.objectsOf("src1")) call.set("src1", n, system.matrix());
        call.set("src2", n, system.rightHandSide());
    }
}

void expectDone(Call &call, std::uint32_t n) {
    const System system = systemOf(call, n);
    std::vector<double> expected;
    for (std::uint32_t j = 0; j < call.size(); ++j) expected.push_back(system.solution(j));
    if (isDisplaced(call.function())) expected = solve(call, n).solution;
    literal::expectSame(expected, call.get("dst", n), "dst");
}

const literal::Example example{fill, expectDone};

TEST(QrBackSubstitution, SolvesInEveryFormAndGeometry) {
    for (const Function *function : all()) literal::expectResults(*function, example, orders);
}

// The first rows of what the work block holds are R times the solution, the others the residual.
TEST(QrBackSubstitution, SolvesForMatricesHigherThanWideAndLeavesTheResidualInTheWork) {
    for (const Function *function : all(isRunTime))
        for (const Geometry geometry : {literal::packed, literal::spread, literal::backward})
            for (const auto &[rows, cols] : {std::pair{2U, 1U},
                                             {3U, 1U},
                                             {3U, 2U},
                                             {4U, 3U},
                                             {5U, 2U},
                                             {7U, 4U},
                                             {8U, 7U},
                                             {13U, 2U},
                                             {40U, 3U}}) {
                SCOPED_TRACE(function->name + ", " + std::to_string(rows) + " by " + std::to_string(cols));
                Call call(function->name, cols, 3, geometry, rows);
                fill(call);
                ASSERT_EQ(call.run(), vonkOk);
                literal::expectAllDone(call, example);
                const std::uint32_t last = call.count() - 1;
                const bool displaced = isDisplaced(*function);
                const std::vector<double> left = displaced ? solve(call, last).work : systemOf(call, last).rotated();
                EXPECT_EQ(call.work(), left);
            }
}

TEST(QrBackSubstitution, SolvesInPlaceOfTheRightHandSide) {
    for (const Function *function : all(isRegular)) literal::expectInPlaceResults(*function, example, "src2", orders);
    for (const Function *function : all(isRunTime)) {
        if (function->array()) continue;
        Call call(function->name, 2, 1, literal::packed, 5);
        call.layOver("src2");
        fill(call);
        ASSERT_EQ(call.run(), vonkOk);
        literal::expectAllDone(call, example);
    }
}

// The reflector 1 -1 exchanges 16 and 10, and R = 4 2 / . 8: 16/8, and (10 - 2 * 2)/4.
TEST(QrBackSubstitution, TakesItsWordsInTheOrderOfTheHeader) {
    using literal::wordOf;
    const float factor[5] = {4, 2, 9, -1, 8}; // rows 12 bytes apart
    const float side[2] = {16, 10};
    float work[3] = {7, 7, 7};
    float solved[4] = {};
    EXPECT_EQ(literal::callWith("vonkQRBackSubst_mv_32f",
                                {wordOf(factor), 12, wordOf(work), wordOf(side), wordOf(solved), 2, 2}),
              vonkOk);
    EXPECT_EQ(std::vector<float>(solved, solved + 4), (std::vector<float>{1.5F, 2, 0, 0}));
    EXPECT_EQ(std::vector<float>(work, work + 3), (std::vector<float>{10, 16, 7}));
    EXPECT_EQ(literal::callWith("vonkQRBackSubst_mva_32f_S2", {wordOf(factor), 12345, 12, 4, wordOf(work), wordOf(side),
                                                               1 << 20, 4, wordOf(solved), 1 << 20, 12, 2, 2, 1}),
              vonkOk);
    EXPECT_EQ(std::vector<float>(solved, solved + 4), (std::vector<float>{1.5F, 2, 0, 2}));
    const double column[3] = {-2, 0, 1}; // one column of three rows, whose reflector exchanges the first and the last
    const double three[3] = {5, 7, 6};
    double wide[3] = {};
    double one = 0;
    EXPECT_EQ(literal::callWith("vonkQRBackSubst_mv_64f",
                                {wordOf(column), 8, wordOf(wide), wordOf(three), wordOf(&one), 1, 3}),
              vonkOk);
    EXPECT_EQ(one, 3);
    EXPECT_EQ(std::vector<double>(wide, wide + 3), (std::vector<double>{-6, 7, -5}));
}

TEST(QrBackSubstitution, TakesTheSharedMatrixOfListsByAPlainPointer) {
    using literal::wordOf;
    const double factor[4] = {4, 2, -1, 8};
    const double sides[4] = {16, 10, 8, 8};
    const double *const sideList[2] = {sides, sides + 2};
    double work[2] = {};
    double solved[4] = {};
    double *const solutionList[2] = {solved + 2, solved};
    EXPECT_EQ(
        literal::callWith("vonkQRBackSubst_mva_64f_LS2", {wordOf(factor), 12345, 16, 8, wordOf(work), wordOf(sideList),
                                                          0, 8, wordOf(solutionList), 0, 8, 2, 2, 2}),
        vonkOk);
    EXPECT_EQ(std::vector<double>(solved, solved + 4), (std::vector<double>{1.5, 1, 1.5, 2}));
}

// What a decomposition leaves, at 53 bits: the true solution is 1 2 3.
TEST(QrBackSubstitution, SolvesWithWhatADecompositionLeaves) {
    using literal::wordOf;
    const double matrix[9] = {1, 2, 1, 4, 4, 8, 2, 6, 2};
    const double side[3] = {8, 36, 20};
    double factor[9] = {};
    double work[3] = {};
    double solved[3] = {};
    ASSERT_EQ(literal::callWith("vonkQRDecomp_m_64f", {wordOf(matrix), 24, wordOf(work), wordOf(factor), 24, 3, 3}),
              vonkOk);
    ASSERT_EQ(literal::callWith("vonkQRBackSubst_mv_64f",
                                {wordOf(factor), 24, wordOf(work), wordOf(side), wordOf(solved), 3, 3}),
              vonkOk);
    for (int j = 0; j < 3; ++j) EXPECT_NEAR(solved[j], j + 1, 1e-13);
}

TEST(QrBackSubstitution, DividesByTheOnlyElementOfOneRowWithoutAReflection) {
    for (const Function *function : all(isRunTime)) {
        if (isDisplaced(*function) && !isShared(*function)) continue; // looks for its element elsewhere
        const bool narrow = function->type == Type::real32;
        Call call(function->name, 1, 2);
        for (std::uint32_t n = 0; n < call.objectsOf("src1"); ++n) call.set("src1", n, {3});
        for (std::uint32_t n = 0; n < call.count(); ++n) call.set("src2", n, {5});
        ASSERT_EQ(call.run(), vonkOk);
        // 5/3 is 13981013.33 * 2^-23 and 7505999378950826.67 * 2^-52; a product with a third would be another number.
        for (std::uint32_t n = 0; n < call.count(); ++n)
            EXPECT_EQ(call.get("dst", n, 0, 0), narrow ? 13981013 * 0x1p-23 : 7505999378950827 * 0x1p-52);
        EXPECT_EQ(call.work(), std::vector<double>{5});
    }
}

TEST(QrBackSubstitution, DividesByZeroWithoutAWord) {
    for (const Function *function : all(isRegular))
        for (const auto &[side, expected] : {std::pair{5.0, infinity}, {-5.0, -infinity}, {0.0, nan}})
            for (const std::uint32_t order : literal::sizesOf(*function, {1, 2, 5})) {
                Call call(function->name, order, 2);
                std::vector<double> matrix(std::size_t{order} * order);
                for (std::uint32_t i = 1; i < order; ++i) matrix[i * order + i] = 1;
                for (std::uint32_t n = 0; n < call.objectsOf("src1"); ++n) call.set("src1", n, matrix);
                std::vector<double> b(order, 0.0);
                b[0] = order == 1 ? side : -side; // a reflector of zeros turns the sign
                for (std::uint32_t n = 0; n < call.count(); ++n) call.set("src2", n, b);
                EXPECT_EQ(call.run(), vonkOk);
                for (std::uint32_t n = 0; n < call.count(); ++n)
                    literal::expectSame(expected, call.get("dst", n, 0, 0), "the quotient");
            }
}

// ---- Rounding

// Nothing about these numbers is round, also not in the last place.
std::vector<double> numbers(std::uint32_t count, std::uint32_t variant) {
    std::vector<double> list;
    for (std::uint32_t k = 0; k < count; ++k)
        list.push_back(static_cast<double>(static_cast<float>(((k * k * 5 + k * 7 + variant * 3) % 23 - 10.7) / 3)));
    return list;
}

void fillWithNumbers(Call &call, std::uint32_t variant) {
    for (std::uint32_t n = 0; n < call.count(); ++n) {
        if (n < call.objectsOf("src1")) call.set("src1", n, numbers(call.rows() * call.size(), variant + n));
        call.set("src2", n, numbers(call.rows(), variant + n + 7));
    }
}

TEST(QrBackSubstitutionRounding, FollowsTheRecurrenceAtBothPrecisions) {
    for (const Function *function : all())
        for (const Precision precision : {Precision::bits53, Precision::bits64})
            for (const std::uint32_t order : literal::sizesOf(*function, {2, 3, 4, 5, 6, 7})) {
                Call call(function->name, order, 3, literal::spread);
                isDisplaced(*function) ? fill(call) : fillWithNumbers(call, order);
                const SettingScope scope({precision, Rounding::nearest});
                ASSERT_EQ(call.run(), vonkOk);
                for (std::uint32_t n = 0; n < call.count(); ++n)
                    literal::expectSame(solve(call, n).solution, call.get("dst", n), "dst");
                literal::expectSame(solve(call, call.count() - 1).work, call.work(), "work");
            }
}

TEST(QrBackSubstitutionRounding, FollowsTheRecurrenceForMatricesHigherThanWide) {
    for (const Function *function : all(isRunTime))
        for (const auto &[rows, cols] : {std::pair{4U, 1U}, {3U, 2U}, {7U, 3U}, {8U, 5U}}) {
            SCOPED_TRACE(function->name + ", " + std::to_string(rows) + " by " + std::to_string(cols));
            Call call(function->name, cols, 3, literal::spread, rows);
            isDisplaced(*function) ? fill(call) : fillWithNumbers(call, rows);
            ASSERT_EQ(call.run(), vonkOk);
            for (std::uint32_t n = 0; n < call.count(); ++n)
                literal::expectSame(solve(call, n).solution, call.get("dst", n), "dst");
            literal::expectSame(solve(call, call.count() - 1).work, call.work(), "work");
        }
}

// That the recurrence would tell: the same with a beta or a sum that is rounded comes out otherwise now and then.
TEST(QrBackSubstitutionRounding, OfDoublesMeetsNothingButWhatIsStored) {
    for (const Function *function : all(isRegular)) {
        if (function->type != Type::real64) continue;
        for (const std::uint32_t order : literal::sizesOf(*function, {3, 6})) {
            int tellingBeta = 0;
            int tellingSum = 0;
            for (std::uint32_t variant = 0; variant < 60; ++variant) {
                Call call(function->name, order);
                fillWithNumbers(call, variant);
                ASSERT_EQ(call.run(), vonkOk);
                const Solved expected = solve(call, 0);
                literal::expectSame(expected.solution, call.get("dst", 0), function->name);
                tellingBeta += expected.solution != solve(call, 0, {true, false}).solution;
                tellingSum += expected.solution != solve(call, 0, {false, true}).solution;
            }
            EXPECT_GT(tellingBeta, 0);
            EXPECT_GT(tellingSum, 0);
        }
    }
}

// All products are -0: 0 + -0 is +0, and -0 - +0 is -0; without the 0 in front it would be -0 - -0 = +0. A reflector of
// zeros turns the sign of its element, of which the last has none.
TEST(QrBackSubstitutionRounding, StartsASumFromZero) {
    for (const Function *function : all(isRegular))
        for (const std::uint32_t order : literal::sizesOf(*function, {2, 3, 7})) {
            Call call(function->name, order);
            std::vector<double> matrix(std::size_t{order} * order);
            for (std::uint32_t i = 0; i < order; ++i) matrix[i * order + i] = 1;
            for (std::uint32_t j = 1; j < order; ++j) matrix[j] = -0.0;
            std::vector<double> side(order, -1.0);
            side.front() = -0.0;
            side.back() = 1;
            call.set("src1", 0, matrix);
            call.set("src2", 0, side);
            ASSERT_EQ(call.run(), vonkOk);
            std::vector<double> expected(order, 1.0);
            expected.front() = -0.0;
            literal::expectSame(expected, call.get("dst", 0), "dst");
        }
}

// ---- The block copy of one function

// Around the length from which blocks are worth while and at every alignment of both, the same numbers come out.
TEST(QrBackSubstitutionCopy, AltersNoResultAtAnyLengthAndAlignment) {
    for (const char *name : {"vonkQRBackSubst_mv_32f", "vonkQRBackSubst_mv_32f_S2", "vonkQRBackSubst_mv_64f"})
        for (std::uint32_t rows = 2; rows <= 44; ++rows)
            for (const std::uint32_t workOffset : {0U, 4U, 8U, 12U, 1U})
                for (const std::uint32_t sideOffset : {0U, 4U, 8U, 12U, 2U}) {
                    SCOPED_TRACE(std::string(name) + ", rows " + std::to_string(rows) + ", work " +
                                 std::to_string(workOffset) + " and side " + std::to_string(sideOffset) +
                                 " bytes off a multiple of 16");
                    Call call(name, 2, 1, literal::packed, rows);
                    const std::size_t size = call.function().type == Type::real32 ? 4 : 8;
                    call["src2"].moveTo(call["src2"].origin + sideOffset);
                    fillWithNumbers(call, rows);
                    alignas(16) std::array<std::byte, 512> block{};
                    block.fill(std::byte{0x55});
                    call.putWorkAt(block.data() + 64 + workOffset);
                    ASSERT_EQ(call.run(), vonkOk);
                    const Solved expected = solve(call, 0);
                    ASSERT_EQ(call.get("dst", 0), expected.solution);
                    std::size_t changed = 0;
                    for (std::uint32_t i = 0; i < rows; ++i)
                        changed += call.getAt(block.data() + 64 + workOffset + i * size) != expected.work[i];
                    EXPECT_EQ(changed, 0U);
                    const std::size_t end = 64 + workOffset + rows * size;
                    for (std::size_t k = 0; k < block.size(); ++k)
                        if (k < 64 + workOffset || k >= end) changed += block[k] != std::byte{0x55};
                    EXPECT_EQ(changed, 0U) << "bytes beside the work block";
                }
}

// The work block over the right-hand side: the copy goes forward, element by element, so that one that runs ahead
// repeats what it has written.
TEST(QrBackSubstitutionCopy, GoesForwardWhereTheWorkOverlapsTheRightHandSide) {
    for (const std::uint32_t rows : {8U, 11U, 12U, 19U, 40U})
        for (const int distance : {-9, -5, -4, -1, 0, 1, 2, 4, 5, 8, 9}) {
            SCOPED_TRACE("rows " + std::to_string(rows) + ", work " + std::to_string(distance) + " elements ahead");
            Call call("vonkQRBackSubst_mv_32f", 1, 1, literal::packed, rows);
            fillWithNumbers(call, rows);
            const std::vector<double> side = call.get("src2", 0);
            std::byte *const start = call["src2"].origin;
            std::byte *const work = start + std::ptrdiff_t{4} * distance;
            std::vector<double> copied(rows);
            for (std::uint32_t i = 0; i < rows; ++i) {
                const auto from = static_cast<int>(i) - distance; // the element of the work that lies here
                copied[i] = distance > 0 && from >= 0 ? copied[static_cast<std::size_t>(from)] : side[i];
            }
            call.putWorkAt(work);
            ASSERT_EQ(call.run(), vonkOk);
            const auto element = [&](std::uint32_t i, std::uint32_t k) { return call.get("src1", 0, i, k); };
            const Solved expected = solve<float, float>(copied, 1, element, element);
            EXPECT_EQ(call.get("dst", 0), expected.solution);
            for (std::uint32_t i = 0; i < rows; ++i) EXPECT_EQ(call.getAt(work + 4 * i), expected.work[i]) << i;
        }
}

// ---- Members of their own

// What a regular form makes of the same elements is something else.
TEST(QrBackSubstitutionDisplaced, LooksElsewhereInListsOfDoublesAndNowhereElse) {
    std::size_t displaced = 0;
    for (const Function *function : all()) {
        if (!isDisplaced(*function)) continue;
        ++displaced;
        for (const std::uint32_t order : literal::sizesOf(*function, {2, 5})) {
            Call call(function->name, order, 2, literal::spread);
            fill(call);
            ASSERT_EQ(call.run(), vonkOk);
            literal::expectAllDone(call, example);
            const std::string other = "vonkQRBackSubst_" + function->group + "_64f_LS2";
            Call regular(other, order, 2, literal::packed);
            for (std::uint32_t n = 0; n < 2; ++n) {
                if (n < call.objectsOf("src1")) regular.set("src1", n, call.get("src1", n));
                regular.set("src2", n, call.get("src2", n));
            }
            ASSERT_EQ(regular.run(), vonkOk);
            EXPECT_NE(regular.get("dst", 0), call.get("dst", 0));
        }
    }
    EXPECT_EQ(displaced, 2U * 5U);
}

// Of a single column nothing is 4 bytes further on.
TEST(QrBackSubstitutionDisplaced, SolvesForOneColumnWithOneMatrix) {
    Call call("vonkQRBackSubst_mva_64f_L", 1, 3, literal::spread, 4);
    for (std::uint32_t n = 0; n < call.count(); ++n) {
        const System system = systemOf(call, n);
        if (n == 0) call.set("src1", 0, system.matrix());
        call.set("src2", n, system.rightHandSide());
    }
    ASSERT_EQ(call.run(), vonkOk);
    for (std::uint32_t n = 0; n < call.count(); ++n) EXPECT_EQ(call.get("dst", n, 0, 0), systemOf(call, n).solution(0));
}

// Also of a single column: the element stands 1 byte behind where the row ahead of the matrix would, with rows 16 bytes
// apart.
TEST(QrBackSubstitutionDisplaced, FindsTheTriangleAheadOfTheMatrixWithAMatrixForEach) {
    using literal::wordOf;
    std::array<std::byte, 64> memory{};
    std::byte *const matrix = memory.data() + 24;
    const double found = 8;
    const double own = 3;
    std::memcpy(matrix + 1 - 16, &found, 8);
    std::memcpy(matrix, &own, 8);
    const std::byte *const matrices[1] = {matrix - 16};
    const double side[1] = {20};
    const double *const sides[1] = {side};
    double work[1] = {};
    double solved[1] = {};
    double *const solutions[1] = {solved};
    EXPECT_EQ(literal::callWith("vonkQRBackSubst_mava_64f_L", {wordOf(matrices), 16, 16, wordOf(work), wordOf(sides), 0,
                                                               wordOf(solutions), 0, 1, 1, 1}),
              vonkOk);
    EXPECT_EQ(solved[0], 2.5);
}

// ---- What is tested, and when

// Of the right-hand side as many as the solution has: those behind are used, and trusted.
TEST(QrBackSubstitutionChecks, LookAtNoMorePositionsOfTheRightHandSideThanTheSolutionHas) {
    constexpr std::uint32_t rows = 5;
    constexpr std::uint32_t cols = 2;
    for (const Function *function : all(isRunTime)) {
        if (!catalogue::isTable(function->operands[0].layout)) continue;
        for (std::size_t entry = 0; entry < rows; ++entry) {
            SCOPED_TRACE(function->name + ", src2[" + std::to_string(entry) + "]");
            Call call(function->name, cols, 2, literal::packed, rows);
            fill(call);
            const std::int32_t status = literal::runThroughNull(call, "src2", entry);
            EXPECT_EQ(status, entry < cols ? vonkErrNullPtr : vonkOk);
            if (entry < cols) EXPECT_TRUE(call.changedNothing());
            else literal::expectAllDone(call, example);
        }
        for (std::size_t entry = 0; entry < rows * cols; ++entry) {
            SCOPED_TRACE(function->name + ", src1[" + std::to_string(entry) + "]");
            Call call(function->name, cols, 2, literal::packed, rows);
            fill(call);
            call["src1"].entries[entry] = nullptr;
            EXPECT_EQ(call.run(), vonkErrNullPtr);
            EXPECT_TRUE(call.changedNothing());
        }
    }
}

} // namespace
