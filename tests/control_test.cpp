// The floating-point control state is the caller's: every call works under the setting that it finds and leaves both
// units as they were, whether it succeeds, fails or meets numbers that raise exceptions.
#include "support/family_test.h"

#include <immintrin.h>

namespace {

using namespace literal::names;
using support::MachineState;

constexpr double nan = std::numeric_limits<double>::quiet_NaN();

constexpr std::uint32_t denormalsAreZero = 0x0040;
constexpr std::uint32_t flushToZero = 0x8000;

constexpr std::array roundings{Rounding::nearest, Rounding::down, Rounding::up, Rounding::towardZero};

// What a thread may run under: precision and rounding, and what the lane unit makes of denormals.
std::vector<std::pair<Setting, std::uint32_t>> settings() {
    std::vector<std::pair<Setting, std::uint32_t>> list;
    for (const Precision precision : {Precision::bits53, Precision::bits64})
        for (const Rounding rounding : roundings)
            for (const std::uint32_t denormals : {0U, denormalsAreZero, flushToZero, denormalsAreZero | flushToZero})
                list.push_back({{precision, rounding}, denormals});
    return list;
}

// Runs under the setting and tells what has changed by the end.
std::string changesOf(Setting setting, std::uint32_t denormals, const std::function<void()> &call) {
    MachineState before;
    MachineState after;
    {
        const SettingScope scope(setting);
        _mm_setcsr(_mm_getcsr() | denormals);
        before = MachineState::now();
        call();
        after = MachineState::now();
    }
    return support::difference(before, after);
}

void fill(Call &call) {
    for (const catalogue::Operand &operand : call.function().operands)
        for (std::uint32_t n = 0; !operand.written && n < call.objectsOf(operand.name); ++n) {
            const Factors factors(call.size(), n);
            if (!operand.matrix) call.set(operand.name, n, factors.solution());
            else call.set(operand.name, n, operand.name == "src" ? factors.matrix() : factors.factored());
            if (call.function().family->operation != "CholeskyDecomp") continue;
            for (std::uint32_t i = 0; i < call.size(); ++i) // positive definite
                for (std::uint32_t j = 0; j < call.size(); ++j) call.set(operand.name, n, i, j, i == j ? 20 : 1);
        }
    for (std::uint32_t n = 0; n < call.count(); ++n) call.setPivots(n, Factors(call.size(), n).permutation);
    for (const catalogue::Parameter &parameter : call.function().parameters)
        if (parameter.kind == catalogue::Kind::constant) call.setConstant(parameter.name, 3);
}

void fillWith(Call &call, double value) {
    fill(call);
    for (const catalogue::Operand &operand : call.function().operands) {
        if (operand.written) continue;
        const literal::Place &place = call[operand.name];
        for (std::uint32_t n = 0; n < call.objectsOf(operand.name); ++n)
            call.set(operand.name, n, std::vector<double>(std::size_t{place.rows} * place.cols, value));
    }
}

struct Occasion {
    const char *what;
    std::function<void(Call &)> prepare;
};

constexpr const char *nullPointer = "a null pointer";

// The inverse of a single element may read anywhere.
std::vector<std::uint32_t> smallSizes(const Function &function) {
    return {function.family->operation == "Invert" ? 2U : 1U, 4};
}

const std::array occasions = std::to_array<Occasion>({
    {"whole numbers", fill},
    {"thirds", [](Call &call) { fillWith(call, 1.0 / 3); }},
    {"zeros, which are singular and divide by zero", [](Call &call) { fillWith(call, 0); }},
    {"infinities", [](Call &call) { fillWith(call, infinity); }},
    {"NaNs", [](Call &call) { fillWith(call, nan); }},
    {"numbers that overflow",
     [](Call &call) { fillWith(call, call.function().type == Type::real32 ? 3e38 : 1.7e308); }},
    {"denormals", [](Call &call) { fillWith(call, call.function().type == Type::real32 ? 0x1p-140 : 0x1p-1060); }},
    {nullPointer, [](Call &call) { fill(call), call.pass("dst", 0); }},
    {"no size",
     [](Call &call) {
         fill(call);
         for (const char *size : {"len", "order", "cols", "src1Cols"}) call.pass(size, 0);
     }},
    {"no objects", [](Call &call) { fill(call), call.pass("count", 0); }},
});

TEST(Control, IsLeftAsFoundByEveryExportAtEverySetting) {
    const auto list = settings();
    for (const Function &function : literal::allMembers())
        for (const std::uint32_t size : literal::sizesOf(function, {13}))
            for (const auto &[setting, denormals] : list) {
                Call call(function.name, size, 5, literal::roomy);
                fill(call);
                EXPECT_EQ(changesOf(setting, denormals, [&] { call.run(); }), "")
                    << function.name << ", " << support::describe(setting) << ", denormals " << denormals;
            }
}

TEST(Control, IsLeftAsFoundOnEveryOccasion) {
    for (const Function &function : literal::allMembers())
        for (const Occasion &occasion : occasions)
            for (const Precision precision : {Precision::bits53, Precision::bits64})
                for (const std::uint32_t size : literal::sizesOf(function, smallSizes(function))) {
                    if (literal::isException(function, "extract-unchecked") && occasion.what == nullPointer) continue;
                    Call call(function.name, size, 2, literal::roomy);
                    occasion.prepare(call);
                    EXPECT_EQ(changesOf({precision, Rounding::up}, flushToZero, [&] { call.run(); }), "")
                        << function.name << ", " << occasion.what;
                }
}

TEST(Control, ShowsUpperHalvesInUse) {
    if (!support::seesUpperHalves()) GTEST_SKIP() << "this processor does not tell whether upper halves are in use";
    const auto widen = [] { __asm__ volatile("vcmpps $15, %%ymm0, %%ymm0, %%ymm0" : : : "xmm0"); };
    EXPECT_NE(changesOf({}, 0, widen), "");
    EXPECT_EQ(changesOf({}, 0, [&] { widen(), [] { __asm__ volatile("vzeroupper" : : : "memory"); }(); }), "");
}

TEST(Control, IsLeftAsFoundByTheVersion) {
    EXPECT_EQ(
        changesOf({Precision::bits53, Rounding::down}, flushToZero, [] { ASSERT_NE(vonkGetLibVersion(), nullptr); }),
        "");
}

// ---- What the comparison above would tell

TEST(ControlItself, TellsAChangeOfPrecision) {
    EXPECT_NE(changesOf({}, 0,
                        [] {
                            const std::uint16_t word = 0x027f;
                            __asm__ volatile("fldcw %0" : : "m"(word));
                        }),
              "");
}

TEST(ControlItself, TellsANumberLeftInTheRegisters) {
    EXPECT_NE(changesOf({}, 0, [] { __asm__ volatile("fld1"); }), "");
}

TEST(ControlItself, TellsAChangeOfTheLaneUnit) {
    EXPECT_NE(changesOf({}, flushToZero, [] { _mm_setcsr(_mm_getcsr() & ~flushToZero); }), "");
    EXPECT_NE(changesOf({}, 0, [] { _mm_setcsr(_mm_getcsr() | denormalsAreZero); }), "");
    EXPECT_NE(changesOf({}, 0, [] { _mm_setcsr(_mm_getcsr() | 0x6000); }), "");
}

// The flags of exceptions come and go with the arithmetic.
TEST(ControlItself, DoesNotMindTheFlags) {
    EXPECT_EQ(changesOf({}, 0,
                        [] {
                            volatile float third = 1.0F;
                            third = third / 3;
                            volatile long double wide = 1;
                            wide = wide / 3;
                        }),
              "");
}

// ---- What settings do

// 2^-126 is the smallest normal float. Its difference to 3/2 of it is a denormal, which flushing makes a zero with its
// sign; and denormals taken as zeros leave of 2^-126 and 2^-127 only the first.
struct Flush {
    double left;
    double right; // of which the sum is taken
    std::uint32_t denormals;
    double expected;
};

TEST(Control, DecidesWhatBecomesOfDenormalFloats) {
    constexpr double least = 0x1p-126;
    constexpr std::array cases = std::to_array<Flush>({
        {1.5 * least, -least, 0, least / 2},
        {1.5 * least, -least, flushToZero, 0.0},
        {1.5 * least, -least, denormalsAreZero, least / 2},
        {-1.5 * least, least, flushToZero, -0.0},
        {least, least / 2, 0, 1.5 * least},
        {least, least / 2, flushToZero, 1.5 * least},
        {least, least / 2, denormalsAreZero, least},
        {least / 2, least / 2, denormalsAreZero, 0.0},
        {least / 2, least / 2, denormalsAreZero | flushToZero, 0.0},
    });
    for (const Function *function : literal::members("vector-vector")) {
        if (function->type != Type::real32) continue;
        const double sign = function->family->operation == "Sub" ? -1 : 1;
        for (const Flush &flush : cases)
            for (const std::uint32_t size : literal::sizesOf(*function, {21})) {
                SCOPED_TRACE(function->name + ", denormals " + std::to_string(flush.denormals));
                Call call(function->name, size, 2);
                for (std::uint32_t n = 0; n < call.objectsOf("src1"); ++n)
                    call.set("src1", n, std::vector<double>(size, flush.left));
                for (std::uint32_t n = 0; n < call.objectsOf("src2"); ++n)
                    call.set("src2", n, std::vector<double>(size, sign * flush.right));
                EXPECT_EQ(changesOf({}, flush.denormals, [&] { call.run(); }), "");
                for (std::uint32_t n = 0; n < call.count(); ++n)
                    literal::expectSame(std::vector<double>(size, flush.expected), call.get("dst", n), "dst");
            }
    }
}

// The 80-bit unit has no such bits.
TEST(Control, OfDenormalFloatsIsNothingToDoubles) {
    for (const Function *function : literal::members("vector-vector")) {
        if (function->type != Type::real64) continue;
        const double sign = function->family->operation == "Sub" ? -1 : 1;
        for (const std::uint32_t size : literal::sizesOf(*function, {5})) {
            Call call(function->name, size);
            call.set("src1", 0, std::vector<double>(size, 0x1p-1030));
            call.set("src2", 0, std::vector<double>(size, sign * 0x1p-1040));
            EXPECT_EQ(changesOf({}, denormalsAreZero | flushToZero, [&] { call.run(); }), "");
            EXPECT_EQ(call.get("dst", 0), std::vector<double>(size, 0x1p-1030 + 0x1p-1040));
        }
    }
}

struct Quotient {
    Setting setting;
    double narrow; // 32f
    double wide;   // 64f
};

// 1/3 is 11184810.67 * 2^-25 and 6004799503160661.33 * 2^-54. The precision does not matter to a single quotient.
const std::vector<Quotient> &thirds() {
    constexpr double floatBelow = 11184810 * 0x1p-25;
    constexpr double floatAbove = 11184811 * 0x1p-25;
    constexpr double doubleBelow = 6004799503160661 * 0x1p-54;
    constexpr double doubleAbove = 6004799503160662 * 0x1p-54;
    static const std::vector<Quotient> list{
        {{Precision::bits53, Rounding::nearest}, floatAbove, doubleBelow},
        {{Precision::bits64, Rounding::nearest}, floatAbove, doubleBelow},
        {{Precision::bits53, Rounding::up}, floatAbove, doubleAbove},
        {{Precision::bits64, Rounding::up}, floatAbove, doubleAbove},
        {{Precision::bits53, Rounding::down}, floatBelow, doubleBelow},
        {{Precision::bits64, Rounding::down}, floatBelow, doubleBelow},
        {{Precision::bits53, Rounding::towardZero}, floatBelow, doubleBelow},
        {{Precision::bits64, Rounding::towardZero}, floatBelow, doubleBelow},
    };
    return list;
}

// A diagonal of threes.
void setThrees(Call &call, const char *matrix) {
    const std::uint32_t order = call.size();
    call.set(matrix, 0, std::vector<double>(std::size_t{order} * order, 0));
    for (std::uint32_t i = 0; i < order; ++i) call.set(matrix, 0, i, i, 3);
}

// The multiplier of the second row, under a pivot of 3.
double multiplier(const Function &function, std::uint32_t order, Setting setting) {
    Call call(function.name, order);
    setThrees(call, "src");
    call.set("src", 0, 1, 0, 1);
    EXPECT_EQ(changesOf(setting, 0, [&] { EXPECT_EQ(call.run(), vonkOk); }), "");
    return call.get("dst", 0, 1, 0);
}

// The solution for a diagonal of threes and a right-hand side of ones.
double solution(const Function &function, std::uint32_t order, Setting setting) {
    Call call(function.name, order);
    setThrees(call, "src1");
    std::vector<std::uint32_t> rows;
    for (std::uint32_t i = 0; i < order; ++i) rows.push_back(i);
    call.setPivots(0, rows);
    call.set("src2", 0, std::vector<double>(order, 1));
    EXPECT_EQ(changesOf(setting, 0, [&] { EXPECT_EQ(call.run(), vonkOk); }), "");
    EXPECT_EQ(call.get("dst", 0), std::vector<double>(order, call.get("dst", 0, 0, 0)));
    return call.get("dst", 0, 0, 0);
}

TEST(Control, DecidesHowQuotientsOfTheLuFamilyAreRounded) {
    for (const Quotient &third : thirds())
        for (const char *section : {"lu-decomposition", "lu-back-substitution"})
            for (const Function *function : literal::members(section)) {
                // Its threes would have neighbours a hair off 0, which directed roundings notice.
                if (literal::hasColumnsFourBytesApart(*function)) continue;
                for (const std::uint32_t order : literal::sizesOf(*function, {2})) {
                    SCOPED_TRACE(function->name + ", " + support::describe(third.setting));
                    const bool decomposition = function->family->operation == "LUDecomp";
                    EXPECT_EQ(decomposition ? multiplier(*function, order, third.setting)
                                            : solution(*function, order, third.setting),
                              function->type == Type::real32 ? third.narrow : third.wide);
                }
            }
}

// A diagonal of nines, whose roots are threes, and of which the reciprocals are left.
TEST(Control, DecidesHowReciprocalsOfCholeskyDecompositionAreRounded) {
    for (const Quotient &third : thirds())
        for (const Function *function : literal::members("cholesky-decomposition"))
            for (const std::uint32_t order : literal::sizesOf(*function, {1, 3, 7})) {
                SCOPED_TRACE(function->name + ", " + support::describe(third.setting));
                Call call(function->name, order);
                for (std::uint32_t i = 0; i < order; ++i)
                    for (std::uint32_t j = 0; j <= i; ++j) call.set("src", 0, i, j, i == j ? 9 : 0);
                EXPECT_EQ(changesOf(third.setting, 0, [&] { EXPECT_EQ(call.run(), vonkOk); }), "");
                for (std::uint32_t i = 0; i < order; ++i)
                    EXPECT_EQ(call.get("dst", 0, i, i), function->type == Type::real32 ? third.narrow : third.wide);
            }
}

// Reflectors of zeros turn the signs of all elements but the last: -1 over -3.
TEST(Control, DecidesHowQuotientsOfQrBackSubstitutionAreRounded) {
    for (const Quotient &third : thirds())
        for (const Function *function : literal::members("qr-back-substitution")) {
            if (function->type == Type::real64 && function->layout == "L") continue; // looks for its matrix elsewhere
            for (const std::uint32_t order : literal::sizesOf(*function, {1, 3, 7})) {
                SCOPED_TRACE(function->name + ", " + support::describe(third.setting));
                Call call(function->name, order);
                for (std::uint32_t i = 0; i < order; ++i)
                    for (std::uint32_t j = 0; j < order; ++j)
                        call.set("src1", 0, i, j, i != j ? 0 : i + 1 == order ? 3 : -3);
                call.set("src2", 0, std::vector<double>(order, 1));
                EXPECT_EQ(changesOf(third.setting, 0, [&] { EXPECT_EQ(call.run(), vonkOk); }), "");
                const double expected = function->type == Type::real32 ? third.narrow : third.wide;
                EXPECT_EQ(call.get("dst", 0), std::vector<double>(order, expected));
            }
        }
}

// What is flushed to zero is no pivot.
TEST(Control, DecidesWhetherADenormalPivotOfFloatsPasses) {
    for (const Function *function : literal::members("cholesky-decomposition")) {
        if (function->type != Type::real32) continue;
        for (const std::uint32_t denormals : {0U, flushToZero}) {
            for (const std::uint32_t order : literal::sizesOf(*function, {2, 3, 7})) {
                SCOPED_TRACE(function->name + ", denormals " + std::to_string(denormals));
                Call call(function->name, order);
                for (std::uint32_t i = 0; i < order; ++i)
                    for (std::uint32_t j = 0; j <= i; ++j) call.set("src", 0, i, j, i == j ? 1 : 0);
                // 3/2 of the least normal number less that number.
                call.set("src", 0, 1, 0, 0x1p-63);
                call.set("src", 0, 1, 1, 1.5 * 0x1p-126);
                std::int32_t status = 1;
                EXPECT_EQ(changesOf({}, denormals, [&] { status = call.run(); }), "");
                EXPECT_EQ(status, denormals == 0 ? vonkOk : vonkErrNotPosDef);
            }
        }
    }
}

} // namespace
