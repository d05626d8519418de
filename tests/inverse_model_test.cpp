// Tests of the model of determinants and inverses: pivots about the tolerance, what a failed pivot leaves, the three
// associations of order 3, the tests for singular matrices, and that the bounds hold a true inverse.
#include "model/model.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <random>
#include <string>
#include <vector>

namespace {

using Words = std::vector<std::uint64_t>;

constexpr double infinity = std::numeric_limits<double>::infinity();

template <class Type> std::uint64_t to(Type *pointer) { return reinterpret_cast<std::uintptr_t>(pointer); }

template <class Real> Real determinant(const std::string &name, std::vector<Real> matrix, std::uint32_t order) {
    std::vector<double> scratch(order * order + order);
    Real result = 99;
    Words words{to(matrix.data()), order * sizeof(Real), order, to(scratch.data()), to(&result)};
    if (name.find("_ma_") != std::string::npos) {
        words.insert(words.begin() + 1, 0);
        words.push_back(1);
    }
    EXPECT_EQ(model::run({name, words}).status, 0);
    return result;
}

float determinant32(const std::string &group, const std::vector<float> &matrix, std::uint32_t order) {
    return determinant("vonkDet_" + group + "_32f", matrix, order);
}

double determinant64(const std::vector<double> &matrix, std::uint32_t order) {
    return determinant("vonkDet_m_64f", matrix, order);
}

TEST(DeterminantModel, AsksMoreOfTheLastPivotThanOfTheOthers) {
    EXPECT_EQ(determinant32("m", {0x1p-23F}, 1), 0.0F);
    EXPECT_EQ(determinant32("m", {-0x1.000002p-23F}, 1), -0x1.000002p-23F);
    EXPECT_EQ(determinant32("m", {0x1p-23F, 0, 0, 1}, 2), 0x1p-23F);
    EXPECT_EQ(determinant32("m", {1, 0, 0, 0x1p-23F}, 2), 0.0F);
    EXPECT_EQ(determinant64({0x1p-52, 0, 0, 1}, 2), 0x1p-52);
    EXPECT_EQ(determinant64({1e-20, 0, 0, 1}, 2), 0.0);
    EXPECT_EQ(determinant32("m", {0, 1, 0, 0, 0, 1, 1, 0, 0}, 3), 1.0F); // two exchanges
}

TEST(DeterminantModel, GoesOnBehindAFailedPivotInArrays) {
    const auto last = [](float element) { return std::vector<float>{0, 1, 2, 0, 3, 4, 0, 5, element}; };
    EXPECT_TRUE(std::signbit(determinant32("ma", last(-5), 3)));
    EXPECT_FALSE(std::signbit(determinant32("m", last(-5), 3)));
    EXPECT_TRUE(std::isnan(determinant32("ma", last(static_cast<float>(infinity)), 3)));
    EXPECT_EQ(determinant32("ma", last(0x1p-23F), 3), 0.0F);
}

// The first candidate is the larger one but becomes 1 as the best so far, so the second one wins. It leaves -2^-52 (1 +
// 2^-30), which counts; the other way round 2^-52 would be left, which does not.
TEST(DeterminantModel, KeepsTheBestCandidateInSinglePrecision) {
    const double result = determinant64({1 + 0x1p-30, 0, 1 + 0x1p-40, 0x1p-52}, 2);
    EXPECT_NEAR(result * 0x1p52, 1 + 0x1p-30, 0x1p-51);
}

template <class Real>
Real determinantOfThree(const std::string &type, const std::string &layout, std::vector<Real> matrix) {
    Real result = 99;
    Words words{to(matrix.data()), 3 * sizeof(Real), to(&result)};
    if (layout == "S2") words.insert(words.begin() + 2, sizeof(Real));
    model::run({"vonkDet_m_" + type + "_3x3" + (layout.empty() ? "" : "_" + layout), words});
    return result;
}

TEST(DeterminantModel, AddsTheTermsOfOrderThreeInThreeWays) {
    const float large = 0x1p70F;
    // Along row 0 the terms are 1, 2^70 and -2^70.
    const std::vector<float> row{1, -large, large, 1, 1, 0, 1, 0, 1};
    EXPECT_EQ(determinantOfThree<float>("32f", "", row), 1.0F);
    EXPECT_EQ(determinantOfThree<float>("32f", "S2", row), 0.0F);
    // Along column 0 they are -2^70, 2^70 and 1.
    const std::vector<double> column{large, -1, large, 1, 1, 0, 1, 0, 1};
    EXPECT_EQ(determinantOfThree<double>("64f", "", column), 1.0);
    EXPECT_EQ(determinantOfThree<double>("64f", "S2", column), 0.0);
}

// ---- Inverses

struct Inverse {
    model::Outcome outcome;
    std::vector<double> elements;
};

template <class Real>
Inverse invertIn(const std::string &name, const std::vector<double> &matrix, std::uint32_t order) {
    std::vector<Real> source(matrix.begin(), matrix.end()), result(matrix.size(), Real{99});
    std::vector<double> scratch(order * order + order);
    const std::uint64_t row = order * sizeof(Real);
    const bool isStrided = name.find("_S2") != std::string::npos;
    Words words{to(source.data()), row};
    if (isStrided) words.push_back(sizeof(Real));
    if (name.find('x') == std::string::npos) words.insert(words.end(), {order, to(scratch.data())});
    words.insert(words.end(), {to(result.data()), row});
    if (isStrided) words.push_back(sizeof(Real));
    model::Outcome outcome = model::run({name, words});
    return {std::move(outcome), std::vector<double>(result.begin(), result.end())};
}

Inverse invert(const std::string &name, const std::vector<double> &matrix) {
    const auto order = static_cast<std::uint32_t>(std::lround(std::sqrt(static_cast<double>(matrix.size()))));
    return name.find("32f") != std::string::npos ? invertIn<float>(name, matrix, order)
                                                 : invertIn<double>(name, matrix, order);
}

std::vector<double> diagonal(const std::vector<double> &elements) {
    std::vector<double> matrix(elements.size() * elements.size());
    for (std::size_t i = 0; i < elements.size(); ++i) matrix[i * (elements.size() + 1)] = elements[i];
    return matrix;
}

// 4 7 / 2 6 has the determinant 10, and a tenth, 0x1.99999ap-4, is rounded before it is used: 6 times and -7 times
// that are rounded again.
TEST(InverseModel, ScalesTheAdjugateWithARoundedReciprocal) {
    const Inverse inverse = invert("vonkInvert_m_32f", {4, 7, 2, 6});
    EXPECT_EQ(inverse.elements, (std::vector<double>{0x1.333334p-1, -0x1.666666p-1, -0x1.99999ap-3, 0x1.99999ap-2}));
    EXPECT_TRUE(inverse.outcome.approximations.empty());
}

TEST(InverseModel, LeavesNegativeZerosBesideTheDiagonal) {
    const Inverse inverse = invert("vonkInvert_m_64f", diagonal({1, 1, 1}));
    EXPECT_EQ(inverse.elements, diagonal({1, 1, 1}));
    for (std::size_t k = 0; k < 9; ++k) EXPECT_EQ(std::signbit(inverse.elements[k]), k % 2 == 1) << k;
}

std::int32_t statusOf(const std::string &name, const std::vector<double> &matrix) {
    const Inverse inverse = invert(name, matrix);
    EXPECT_FALSE(inverse.outcome.open);
    if (inverse.outcome.status != 0) {
        EXPECT_EQ(inverse.elements, std::vector<double>(matrix.size(), 99.0));
    }
    return inverse.outcome.status;
}

TEST(InverseModel, TakesForSingularWhatTheFormSays) {
    const std::vector<double> small = diagonal({0x1p-9, 0x1p-9, 0x1p-9}); // 2^-27 is 7.45e-9
    EXPECT_EQ(statusOf("vonkInvert_m_32f_3x3", small), 0);
    EXPECT_EQ(statusOf("vonkInvert_m_32f_3x3_S2", small), -10);
    EXPECT_EQ(statusOf("vonkInvert_m_64f_3x3", small), 0);
    EXPECT_EQ(statusOf("vonkInvert_m_32f_4x4", diagonal({0x1p-9, 0x1p-9, 0x1p-9, 1})), 0);
    EXPECT_EQ(statusOf("vonkInvert_m_32f_4x4_S2", diagonal({0x1p-9, 0x1p-9, 0x1p-9, 1})), -10);
    EXPECT_EQ(statusOf("vonkInvert_m_32f_4x4", diagonal({1, 0, 1, 1})), -10);
    EXPECT_EQ(statusOf("vonkInvert_m_64f_5x5", diagonal({1e-8, 1e-8, 1, 1, 1})), -10); // the leading block
    EXPECT_EQ(statusOf("vonkInvert_m_64f_5x5", diagonal({1e-8, 1, 1, 1, 1e-7})), 0);
    EXPECT_EQ(statusOf("vonkInvert_m_32f", diagonal({0x1p-23, 1})), 0);
    EXPECT_EQ(statusOf("vonkInvert_m_32f", diagonal({1, 0x1p-23})), -10);
    EXPECT_EQ(statusOf("vonkInvert_m_64f_3x3_S2", diagonal({1e-15, 1, 1})), 0);
    EXPECT_EQ(statusOf("vonkInvert_m_64f_3x3_S2", diagonal({std::nextafter(1e-15, 0), 1, 1})), -10);
    EXPECT_EQ(statusOf("vonkInvert_m_64f_4x4", diagonal({std::nan(""), 1, 1, 1})), 0);
}

std::vector<double> exchange() {
    std::vector<double> matrix(36);
    for (std::size_t i = 0; i < 6; ++i) matrix[i * 6 + 5 - i] = 1;
    return matrix;
}

TEST(InverseModel, LooksAtFiveColumnsOfSixButForTheFastForms) {
    EXPECT_EQ(statusOf("vonkInvert_m_64f_6x6", exchange()), -10);
    EXPECT_EQ(statusOf("vonkInvert_m_32f_6x6_S2", exchange()), -10);
    const Inverse inverse = invert("vonkInvert_m_32f_6x6", exchange());
    EXPECT_EQ(inverse.outcome.status, 0);
    EXPECT_EQ(inverse.elements, exchange());
}

TEST(InverseModel, LeavesTheFastBlockFormsPartlyWritten) {
    const Inverse inverse = invert("vonkInvert_m_32f_5x5", diagonal({1, 1, 1, 1, 0}));
    EXPECT_EQ(inverse.outcome.status, -10);
    ASSERT_EQ(inverse.outcome.approximations.size(), 25U);
    EXPECT_TRUE(std::isinf(inverse.outcome.approximations.front().error));
    EXPECT_EQ(statusOf("vonkInvert_m_32f_5x5_S2", diagonal({1, 1, 1, 1, 0})), -10);
    EXPECT_EQ(statusOf("vonkInvert_m_32f_5x5", diagonal({1, 0, 0, 0, 0})), -10);
}

// What is to be expected of each element times the matrix is the identity, and the bounds are some digits away from it.
TEST(InverseModel, ExpectsTheTrueInverseWithinUsefulBounds) {
    std::mt19937 random(7);
    std::uniform_real_distribution<float> numbers(-1, 1);
    for (const char *name : {"vonkInvert_m_32f_4x4", "vonkInvert_m_64f_4x4_S2", "vonkInvert_m_32f_5x5",
                             "vonkInvert_m_64f_5x5", "vonkInvert_m_32f_6x6_S2", "vonkInvert_m_64f_6x6"}) {
        const auto order = static_cast<std::size_t>(std::string(name)[17] - '0');
        std::vector<double> matrix(order * order);
        for (std::size_t k = 0; k < matrix.size(); ++k)
            matrix[k] = numbers(random) + (k % (order + 1) == 0 ? 3.0F : 0.0F);
        const Inverse inverse = invert(name, matrix);
        ASSERT_EQ(inverse.outcome.approximations.size(), matrix.size()) << name;
        std::vector<long double> exact(matrix.size());
        for (const model::Approximation &element : inverse.outcome.approximations) {
            const std::size_t k = (element.address - inverse.outcome.approximations.front().address) / element.size;
            EXPECT_LT(element.error, std::string(name).find("32f") != std::string::npos ? 1e-3 : 1e-12) << name;
            if (k < exact.size()) exact[k] = element.exact;
        }
        for (std::size_t i = 0; i < order; ++i)
            for (std::size_t j = 0; j < order; ++j) {
                long double sum = 0;
                for (std::size_t k = 0; k < order; ++k) sum += matrix[i * order + k] * exact[k * order + j];
                EXPECT_NEAR(static_cast<double>(sum), i == j ? 1 : 0, 1e-15) << name << " " << i << " " << j;
            }
    }
}

} // namespace
