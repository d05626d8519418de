// Vectors and a constant: numbers by hand in every form, which side of a difference the constant stands on, the long
// forms at every alignment and overlap, roundings, and what is tested in which order.
#include "support/family_test.h"
#include "support/vector_checks.h"

namespace {

using namespace literal::names;

constexpr double nan = std::numeric_limits<double>::quiet_NaN();

std::vector<const Function *> all(bool (*wanted)(const Function &) = isAny) {
    return literal::members("vector-constant", wanted);
}

const std::vector<std::uint32_t> lengths{1, 2, 3, 7, 11, 12, 19, 21};

double combine(const Function &function, double element, double constant) {
    const std::string_view operation = function.family->operation;
    if (operation == "Add") return element + constant;
    if (operation == "Mul") return element * constant;
    return function.group[0] == 'c' ? constant - element : element - constant;
}

double element(std::uint32_t n, std::uint32_t j) { return 64 * (n + 1) - 3.0 * j; }
constexpr double constant = 5;

const literal::ElementFamily family{[](Call &call) {
                                        call.setConstant("val", constant);
                                        for (std::uint32_t n = 0; n < call.objectsOf("src"); ++n)
                                            for (std::uint32_t j = 0; j < call.size(); ++j)
                                                call.set("src", n, 0, j, element(n, j));
                                    },
                                    [](const Call &call, std::uint32_t n, std::uint32_t j) {
                                        return combine(call.function(), element(n, j), constant);
                                    }};

// ---- Results

TEST(VectorConstant, AddsSubtractsAndMultipliesInEveryFormAndGeometry) {
    for (const Function *function : all()) literal::expectResults(*function, family.example(), lengths);
}

TEST(VectorConstant, WorksInPlaceInEveryForm) {
    for (const Function *function : all()) literal::expectInPlaceResults(*function, family.example(), "src", lengths);
}

TEST(VectorConstant, TakesTheConstantAsMinuendOnlyWhereTheNameBeginsWithIt) {
    const float three = 3;
    const auto one = std::uint64_t{std::bit_cast<std::uint32_t>(1.0F)};
    float result = 0;
    EXPECT_EQ(callWith("vonkSub_cv_32f", {wordOf(&three), one, wordOf(&result), 1}), vonkOk);
    EXPECT_EQ(result, -2);
    EXPECT_EQ(callWith("vonkSub_vc_32f", {wordOf(&three), one, wordOf(&result), 1}), vonkOk);
    EXPECT_EQ(result, 2);
    for (const Function *function : all()) {
        if (function->family->operation != "Sub") continue;
        const double expected = function->group[0] == 'c' ? -2 : 2;
        for (const std::uint32_t size : literal::sizesOf(*function, {1, 11, 30}))
            literal::expectUniform(*function, size, {}, {{"src", 3}, {"val", 1}}, expected);
    }
}

TEST(VectorConstant, FollowsTheArithmeticOfInfinitiesNansAndSignedZeros) {
    struct Special {
        double element;
        double constant;
        double sum, difference, reversed, product;
    };
    constexpr std::array specials = std::to_array<Special>({
        {1, nan, nan, nan, nan, nan},
        {nan, 1, nan, nan, nan, nan},
        {infinity, infinity, infinity, nan, nan, infinity},
        {1, -infinity, -infinity, infinity, -infinity, -infinity},
        {0.0, infinity, infinity, -infinity, infinity, nan},
        {-0.0, 0.0, 0.0, -0.0, 0.0, -0.0},
        {0.0, -0.0, 0.0, 0.0, -0.0, -0.0},
        {-0.0, -0.0, -0.0, 0.0, 0.0, 0.0},
        {5, 5, 10, 0.0, 0.0, 25},
    });
    for (const Function *function : all())
        for (const Special &special : specials) {
            const std::string_view operation = function->family->operation;
            const double expected = operation == "Add"          ? special.sum
                                    : operation == "Mul"        ? special.product
                                    : function->group[0] == 'c' ? special.reversed
                                                                : special.difference;
            for (const std::uint32_t size : literal::sizesOf(*function, {2, 20}))
                literal::expectUniform(*function, size, {}, {{"src", special.element}, {"val", special.constant}},
                                       expected);
        }
}

// ---- Rounding

// 1 + 2^-53 + 2^-78 lies above a tie of doubles. With 53 bits it goes up; with 64 bits the last term is lost on the way
// to the register, and the store finds a tie and goes down to the even 1.
TEST(VectorConstantRounding, OfSumsOfDoublesIsToTheCallersPrecisionAndThenToTheStore) {
    constexpr double small = 0x1p-53 + 0x1p-78;
    for (const Function *function : all()) {
        if (function->type != Type::real64 || function->family->operation == "Mul") continue;
        const bool sum = function->family->operation == "Add";
        const bool reversed = function->group[0] == 'c';
        const std::map<std::string, double> values{{"src", reversed ? -small : 1},
                                                   {"val", reversed ? 1
                                                           : sum    ? small
                                                                    : -small}};
        for (const std::uint32_t size : literal::sizesOf(*function, {5}))
            for (const Rounding rounding : {Rounding::nearest, Rounding::up, Rounding::down}) {
                const double above = 1 + 0x1p-52;
                const bool up53 = rounding != Rounding::down;
                const bool up64 = rounding == Rounding::up;
                literal::expectUniform(*function, size, {Precision::bits53, rounding}, values, up53 ? above : 1);
                literal::expectUniform(*function, size, {Precision::bits64, rounding}, values, up64 ? above : 1);
            }
    }
}

// (1 + 2^-51) (5/4 + 2^-30) = 5/4 + 2^-30 + 2^-51 + 2^-53 + 2^-81, the last but one being half of a double's last
// place.
TEST(VectorConstantRounding, OfProductsOfDoublesIsToTheCallersPrecisionAndThenToTheStore) {
    const std::map<std::string, double> values{{"src", 1 + 0x1p-51}, {"val", 1.25 + 0x1p-30}};
    constexpr double below = 1.25 + 0x1p-30 + 0x1p-51;
    for (const Function *function : all()) {
        if (function->type != Type::real64 || function->family->operation != "Mul") continue;
        for (const std::uint32_t size : literal::sizesOf(*function, {5})) {
            literal::expectUniform(*function, size, {Precision::bits53, Rounding::nearest}, values, below + 0x1p-52);
            literal::expectUniform(*function, size, {Precision::bits64, Rounding::nearest}, values, below);
            literal::expectUniform(*function, size, {Precision::bits64, Rounding::up}, values, below + 0x1p-52);
        }
    }
}

// 1 + 2^-24 is a tie of floats.
TEST(VectorConstantRounding, OfFloatsIsInTheCallersDirection) {
    for (const Function *function : all()) {
        if (function->type != Type::real32 || function->family->operation == "Mul") continue;
        const bool reversed = function->group[0] == 'c';
        const double small = function->family->operation == "Add" ? 0x1p-24 : -0x1p-24;
        const std::map<std::string, double> values{{"src", reversed ? small : 1}, {"val", reversed ? 1 : small}};
        for (const std::uint32_t size : literal::sizesOf(*function, {21})) {
            literal::expectUniform(*function, size, {Precision::bits64, Rounding::nearest}, values, 1);
            literal::expectUniform(*function, size, {Precision::bits64, Rounding::up}, values, 1 + 0x1p-23);
            literal::expectUniform(*function, size, {Precision::bits64, Rounding::down}, values, 1);
        }
    }
}

// ---- The long forms

literal::LongBench benchOf(const std::string &name) {
    const Function &function = literal::function(name);
    return {name, {{"val", 0.3F}}, [&function](float a, float) {
                const std::string_view operation = function.family->operation;
                if (operation == "Add") return a + 0.3F;
                if (operation == "Mul") return a * 0.3F;
                return function.group == "cv" ? 0.3F - a : a - 0.3F;
            }};
}

constexpr std::array longForms{"vonkAdd_vc_32f", "vonkSub_vc_32f", "vonkSub_cv_32f", "vonkMul_vc_32f"};

TEST(VectorConstantLong, AgreesWithTheForwardWalkAtEveryAlignmentAndLength) {
    for (const char *name : longForms) {
        literal::LongBench bench = benchOf(name);
        literal::expectEveryAlignment(bench);
    }
}

TEST(VectorConstantLong, WalksForwardWhereItOverlaps) {
    for (const char *name : longForms) {
        literal::LongBench bench = benchOf(name);
        literal::expectForwardWalkOnOverlap(bench);
    }
}

// dst = src + one element: each element is made of the one that the step before has just written.
TEST(VectorConstantLong, CountsUpWhereTheDestinationIsOneElementAhead) {
    for (const std::uint32_t length : {10U, 11U, 100U}) {
        std::vector<float> numbers(length + 1, 7);
        const auto one = std::uint64_t{std::bit_cast<std::uint32_t>(1.0F)};
        EXPECT_EQ(callWith("vonkAdd_vc_32f", {wordOf(numbers.data()), one, wordOf(numbers.data() + 1), length}),
                  vonkOk);
        for (std::uint32_t k = 0; k <= length; ++k) EXPECT_EQ(numbers[k], 7 + static_cast<float>(k));
    }
}

} // namespace
