// The floating-point control state is the caller's: every call works under the setting that it finds and leaves both
// units as they were, whether it succeeds, fails or meets numbers that raise exceptions.
#include "support/family_test.h"
#include "support/fill.h"

#include <immintrin.h>

namespace {

using namespace literal::names;
using literal::fill;
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

TEST(ControlItself, TellsWhatHasChangedButForTheFlags) {
    const auto narrow = [] {
        const std::uint16_t word = 0x027f;
        __asm__ volatile("fldcw %0" : : "m"(word));
    };
    EXPECT_NE(changesOf({}, 0, narrow), "");
    EXPECT_NE(changesOf({}, 0, [] { __asm__ volatile("fld1"); }), "") << "a number left in the registers";
    EXPECT_NE(changesOf({}, flushToZero, [] { _mm_setcsr(_mm_getcsr() & ~flushToZero); }), "");
    EXPECT_NE(changesOf({}, 0, [] { _mm_setcsr(_mm_getcsr() | denormalsAreZero); }), "");
    EXPECT_NE(changesOf({}, 0, [] { _mm_setcsr(_mm_getcsr() | 0x6000); }), "");
    const auto inexact = [] {
        volatile float third = 1.0F;
        third = third / 3;
        volatile long double wide = 1;
        wide = wide / 3;
    };
    EXPECT_EQ(changesOf({}, 0, inexact), "");
}

// ---- What settings do

struct Flush {
    Type type;
    double left;
    double right; // of which the sum is taken
    std::uint32_t denormals;
    double expected;
};

// 2^-126 is the smallest normal float. Its difference to 3/2 of it is a denormal, which flushing makes a zero with its
// sign; and denormals taken as zeros leave of 2^-126 and 2^-127 only the first. The 80-bit unit has no such bits.
TEST(Control, DecidesWhatBecomesOfDenormalFloats) {
    constexpr double least = 0x1p-126;
    constexpr std::array cases = std::to_array<Flush>({
        {Type::real32, 1.5 * least, -least, 0, least / 2},
        {Type::real32, 1.5 * least, -least, flushToZero, 0.0},
        {Type::real32, 1.5 * least, -least, denormalsAreZero, least / 2},
        {Type::real32, -1.5 * least, least, flushToZero, -0.0},
        {Type::real32, least, least / 2, 0, 1.5 * least},
        {Type::real32, least, least / 2, flushToZero, 1.5 * least},
        {Type::real32, least, least / 2, denormalsAreZero, least},
        {Type::real32, least / 2, least / 2, denormalsAreZero, 0.0},
        {Type::real32, least / 2, least / 2, denormalsAreZero | flushToZero, 0.0},
        {Type::real64, 0x1p-1030, 0x1p-1040, denormalsAreZero | flushToZero, 0x1p-1030 + 0x1p-1040},
    });
    for (const Function *function : literal::members("vector-vector"))
        for (const Flush &flush : cases)
            for (const std::uint32_t size : literal::sizesOf(*function, {21})) {
                if (function->type != flush.type) continue;
                SCOPED_TRACE("denormals " + std::to_string(flush.denormals));
                Call call(function->name, size, 2);
                const double sign = function->family->operation == "Sub" ? -1 : 1;
                for (std::uint32_t n = 0; n < call.objectsOf("src1"); ++n)
                    call.set("src1", n, std::vector<double>(size, flush.left));
                for (std::uint32_t n = 0; n < call.objectsOf("src2"); ++n)
                    call.set("src2", n, std::vector<double>(size, sign * flush.right));
                EXPECT_EQ(changesOf({}, flush.denormals, [&] { call.run(); }), "");
                for (std::uint32_t n = 0; n < call.count(); ++n)
                    literal::expectSame(std::vector<double>(size, flush.expected), call.get("dst", n), "dst");
            }
}

// 1/3 is 11184810.67 * 2^-25 and 6004799503160661.33 * 2^-54. The precision does not matter to a single quotient.
double third(Type type, Rounding rounding) {
    if (type == Type::real64) return (rounding == Rounding::up ? 6004799503160662 : 6004799503160661) * 0x1p-54;
    return (rounding == Rounding::up || rounding == Rounding::nearest ? 11184811 : 11184810) * 0x1p-25;
}

std::vector<double> diagonal(std::uint32_t order, double element) {
    std::vector<double> matrix(std::size_t{order} * order);
    for (std::uint32_t i = 0; i < order; ++i) matrix[i * order + i] = element;
    return matrix;
}

// Each of these results is a third.
void expectThirds(const Function &function, const std::vector<std::uint32_t> &orders,
                  const std::function<void(Call &)> &fill, const std::function<std::vector<double>(Call &)> &results) {
    for (const Precision precision : {Precision::bits53, Precision::bits64})
        for (const Rounding rounding : roundings)
            for (const std::uint32_t order : literal::sizesOf(function, orders)) {
                SCOPED_TRACE(support::describe({precision, rounding}));
                Call call(function.name, order);
                fill(call);
                EXPECT_EQ(changesOf({precision, rounding}, 0, [&] { EXPECT_EQ(call.run(), vonkOk); }), "");
                for (const double result : results(call)) EXPECT_EQ(result, third(function.type, rounding));
            }
}

std::vector<double> solution(Call &call) { return call.get("dst", 0); }

// The multiplier of the second row, under a pivot of 3.
TEST(Control, DecidesHowQuotientsOfLuDecompositionAreRounded) {
    const auto fill = [](Call &call) {
        call.set("src", 0, diagonal(call.size(), 3));
        call.set("src", 0, 1, 0, 1);
    };
    const auto multiplier = [](Call &call) { return std::vector<double>{call.get("dst", 0, 1, 0)}; };
    for (const Function *function : literal::members("lu-decomposition"))
        expectThirds(*function, {2}, fill, multiplier);
}

TEST(Control, DecidesHowQuotientsOfLuBackSubstitutionAreRounded) {
    const auto fill = [](Call &call) {
        call.set("src1", 0, diagonal(call.size(), 3));
        std::vector<std::uint32_t> rows(call.size());
        std::iota(rows.begin(), rows.end(), 0);
        call.setPivots(0, rows);
        call.set("src2", 0, std::vector<double>(call.size(), 1));
    };
    // With columns four bytes apart its threes would have neighbours a hair off 0, which directed roundings notice.
    for (const Function *function : literal::members("lu-back-substitution"))
        if (!literal::hasColumnsFourBytesApart(*function)) expectThirds(*function, {2}, fill, solution);
}

// A diagonal of nines, whose roots are threes, and of which the reciprocals are left.
TEST(Control, DecidesHowReciprocalsOfCholeskyDecompositionAreRounded) {
    const auto fill = [](Call &call) { call.set("src", 0, diagonal(call.size(), 9)); };
    const auto reciprocals = [](Call &call) {
        std::vector<double> found;
        for (std::uint32_t i = 0; i < call.size(); ++i) found.push_back(call.get("dst", 0, i, i));
        return found;
    };
    for (const Function *function : literal::members("cholesky-decomposition"))
        expectThirds(*function, {1, 3, 7}, fill, reciprocals);
}

// Reflectors of zeros turn the signs of all elements but the last: -1 over -3.
TEST(Control, DecidesHowQuotientsOfQrBackSubstitutionAreRounded) {
    const auto fill = [](Call &call) {
        const std::uint32_t last = call.size() - 1;
        call.set("src1", 0, diagonal(call.size(), -3));
        call.set("src1", 0, last, last, 3);
        call.set("src2", 0, std::vector<double>(call.size(), 1));
    };
    for (const Function *function : literal::members("qr-back-substitution")) {
        if (isDouble(*function) && function->layout == "L") continue; // looks for its matrix elsewhere
        expectThirds(*function, {1, 3, 7}, fill, solution);
    }
}

// What is flushed to zero is no pivot.
TEST(Control, DecidesWhetherADenormalPivotOfFloatsPasses) {
    for (const Function *function : literal::members("cholesky-decomposition")) {
        if (function->type != Type::real32) continue;
        for (const std::uint32_t denormals : {0U, flushToZero}) {
            for (const std::uint32_t order : literal::sizesOf(*function, {2, 3, 7})) {
                SCOPED_TRACE("denormals " + std::to_string(denormals));
                Call call(function->name, order);
                call.set("src", 0, diagonal(order, 1));
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
