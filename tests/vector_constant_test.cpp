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
