// Frobenius norms: the order in which every form adds its squares; its way to the root; matrices of zeros; and how far
// sums reach.
#include "support/family_test.h"
#include "support/matrix_checks.h"

#include <xmmintrin.h>

namespace {

using namespace literal::names;

constexpr const char *section = "frobenius-norm";
constexpr double nan = std::numeric_limits<double>::quiet_NaN();

// Four objects share the lanes.
bool takesBlocks(const Function &function) { return isException(function, "frobenius-four-objects"); }

// ---- Calls

double resultOf(Call &call, std::uint32_t n) { return call.get("dst", n, 0, 0); }

double element(std::uint32_t n, std::uint32_t i, std::uint32_t j) {
    return static_cast<int>((3 * i + 5 * j + i * j + n) % 9) - 4;
}

void fill(Call &call) { literal::setElements(call, "src", call.size(), call.size(), element); }

// ---- The three roots

// One Newton step on the processor's estimate of the reciprocal root.
float rootByEstimate(float sum) {
    const float r = _mm_cvtss_f32(_mm_rsqrt_ss(_mm_set_ss(sum)));
    const float t = sum * (r * r);
    const float w = r * (0.5F * (3.0F - t));
    return sum * w;
}

bool roundsSum(const Function &function) { return isException(function, "frobenius-rounded-sum"); }

double rootOf(const Function &function, long double sum) {
    if (function.type == Type::real64) {
        const volatile auto rounded = static_cast<double>(sum);
        return static_cast<double>(std::sqrt(roundsSum(function) ? static_cast<long double>(rounded) : sum));
    }
    const auto narrow = static_cast<float>(sum);
    return hasLanes(function) ? rootByEstimate(narrow) : std::sqrt(narrow);
}

void expectDone(Call &call, std::uint32_t n) {
    double sum = 0;
    for (const double one : call.get("src", n)) sum += one * one;
    EXPECT_EQ(resultOf(call, n), rootOf(call.function(), sum)) << "object " << n;
}

const literal::Example example{fill, expectDone};

// Whole numbers, so that no sum rounds.
TEST(FrobeniusNorm, TakesTheRootOfTheSumOfSquaresInEveryFormAndGeometry) {
    for (const auto &[function, order] : literal::sized(section, {1, 2, 3, 4, 7}))
        for (const Geometry geometry : {literal::packed, literal::spread, literal::backward})
            for (std::uint32_t count = 1; count <= (function->array() ? 9 : 1); ++count) {
                Call call(function->name, order, count, geometry);
                fill(call);
                ASSERT_EQ(call.run(), vonkOk);
                literal::expectAllDone(call, example);
            }
}

TEST(FrobeniusNorm, MeasuresRowsAndColumns) {
    for (const Function *function : literal::members(section, isRunTime))
        for (const auto &[rows, cols] : {std::pair{2U, 3U}, {3U, 2U}, {1U, 5U}, {5U, 1U}, {4U, 5U}}) {
            SCOPED_TRACE(std::to_string(rows) + " by " + std::to_string(cols));
            Call call(function->name, 5, 2, literal::spread);
            call.set("src", std::vector<double>(25, 77));
            literal::makeRectangular(call, rows, cols);
            literal::setElements(call, "src", rows, cols, element);
            ASSERT_EQ(call.run(), vonkOk);
            for (std::uint32_t n = 0; n < call.count(); ++n) expectDone(call, n);
        }
}

TEST(FrobeniusNorm, FindsThreeAndFourToBeFive) {
    for (const auto &[function, order] : literal::sized(section, {2})) {
        Call call(function->name, order, 5);
        std::vector<double> matrix = literal::zeros(order);
        matrix[order - 1] = -3;
        matrix[(order - 1) * order + 1] = 4;
        call.set("src", matrix);
        ASSERT_EQ(call.run(), vonkOk);
        for (std::uint32_t n = 0; n < call.count(); ++n)
            EXPECT_NEAR(resultOf(call, n), 5, hasLanes(*function) ? 5 * 0x1p-20 : 0);
    }
}

// The estimate of a reciprocal root of 0 is infinite, and nothing guards what becomes of it.
TEST(FrobeniusNorm, OfZerosIsANanInLanesAndZeroOtherwise) {
    for (const auto &[function, order] : literal::sized(section, {1, 3})) {
        Call call(function->name, order, 6);
        literal::setAll(call, "src", -0.0);
        if (call.count() > 1) call.set("src", 1, 0, 0, 2);
        ASSERT_EQ(call.run(), vonkOk);
        for (std::uint32_t n = 0; n < call.count(); ++n)
            if (n == 1) EXPECT_NEAR(resultOf(call, n), 2, 2 * 0x1p-20);
            else literal::expectSame(hasLanes(*function) ? nan : 0.0, resultOf(call, n), "object " + std::to_string(n));
    }
}

// A sum that is infinite has an estimate of 0, and infinity times 0 is no number.
TEST(FrobeniusNorm, OfInfinitiesIsANanInLanesAndInfiniteOtherwise) {
    for (const auto &[function, order] : literal::sized(section, {3})) {
        Call call(function->name, order, 2);
        fill(call);
        call.set("src", 0, 1, 1, -infinity);
        ASSERT_EQ(call.run(), vonkOk);
        literal::expectSame(hasLanes(*function) ? nan : infinity, resultOf(call, 0), "the norm");
    }
}

// Of one element, 2^512 or 2^-538: its square leaves the range of a double, but not that of the register.
TEST(FrobeniusNorm, OfDoublesReachesAsFarAsItsSumIsRounded) {
    for (const auto &[function, order] : literal::sized(section, {3}, isDouble))
        for (const auto &[one, lost] : {std::pair{0x1p512, infinity}, {0x1p-538, 0.0}}) {
            Call call(function->name, order);
            literal::setAll(call, "src", 0);
            call.set("src", 0, 2, 1, one);
            ASSERT_EQ(call.run(), vonkOk);
            EXPECT_EQ(resultOf(call, 0), roundsSum(*function) ? lost : one);
        }
    EXPECT_EQ(std::ranges::count_if(literal::members(section, isDouble),
                                    [](const Function *function) { return roundsSum(*function); }),
              6);
}

// ---- Orders of addition

// Rounded upwards, a sum with a large square in it grows by a step for each tiny one that joins it, but by one step
// only where two tiny ones have joined each other before.
constexpr Setting upwards{Precision::bits53, Rounding::up};
constexpr double tiny = 0x1p-40;

// Of a sum that begins as the square of the large one.
template <class Real> double normAfter(const Function &function, double large, int steps) {
    const SettingScope scope(upwards);
    volatile auto sum = static_cast<Real>(large) * static_cast<Real>(large);
    for (int step = 0; step < steps; ++step) sum = sum + static_cast<Real>(tiny * tiny);
    return rootOf(function, sum);
}

double normOf(const Function &function, double large, int steps) {
    return isFloat(function) ? normAfter<float>(function, large, steps) : normAfter<double>(function, large, steps);
}

// The number above the root of 2 times a power of 4 where the root tells one step of the sum from two. Not every number
// does in lanes, and which ones do is up to the processor.
double largeFor(const Function &function) {
    double large = isFloat(function) ? 5793 : 0x1.6a09e667f3bcdp0;
    while (normOf(function, large, 1) == normOf(function, large, 2)) large += isFloat(function) ? 1 : 0x1p-52;
    return large;
}

// All threesomes of elements tell one order from every other: run() compares them.
TEST(FrobeniusNormOrder, IsFixedForEveryThreesome) {
    for (const auto &[function, order] : literal::sized(section, {3})) {
        Call call(function->name, order, takesBlocks(*function) ? 6 : 2);
        literal::setAll(call, "src", 0);
        const double large = largeFor(*function);
        const std::uint32_t terms = order * order;
        for (std::uint32_t a = 0; a < terms; ++a)
            for (std::uint32_t b = 0; b < terms; ++b)
                for (std::uint32_t c = b + 1; c < terms; ++c) {
                    if (a == b || a == c || (terms == 36 && (a + b + c) % 4 != 0)) continue;
                    std::vector<double> elements(terms);
                    elements[a] = large;
                    elements[b] = elements[c] = tiny;
                    call.set("src", elements);
                    ASSERT_EQ(call.run(upwards), vonkOk);
                }
    }
}

enum class Way { byRows, byColumns, byColumnsBackwards, inLanes, inBlocksOfFour };

Way wayOf(const Function &function, bool inBlock) {
    if (hasLanes(function)) return inBlock && takesBlocks(function) ? Way::inBlocksOfFour : Way::inLanes;
    if (!function.array()) return Way::byRows;
    const bool backwards = isFloat(function) && function.order != 0 && (isTabled(function) || function.layout == "LS2");
    return backwards ? Way::byColumnsBackwards : Way::byColumns;
}

// Elements are named by row and column in two digits.
struct Joining {
    Way way;
    std::uint32_t order; // 0: any
    std::uint32_t large, first, second;
    bool joinsFirst; // the tiny ones each other, ahead of the large one
};

const std::array joinings = std::to_array<Joining>({
    // One after the other.
    {Way::byRows, 0, 10, 0, 1, true},
    {Way::byRows, 0, 1, 0, 10, false},
    {Way::byColumns, 0, 1, 0, 10, true},
    {Way::byColumns, 0, 10, 0, 1, false},
    {Way::byColumnsBackwards, 0, 1, 12, 22, true},
    {Way::byColumnsBackwards, 0, 10, 0, 1, false},
    {Way::byColumnsBackwards, 0, 1, 0, 10, false},
    // Columns, and then all columns: ((01)2).
    {Way::inLanes, 3, 20, 0, 10, true},
    {Way::inLanes, 3, 0, 10, 20, false},
    {Way::inLanes, 3, 2, 0, 1, true},
    {Way::inLanes, 3, 0, 1, 2, false},
    // ((((01)8)(23))((45)(67))) in row order.
    {Way::inBlocksOfFour, 3, 22, 0, 1, true},
    {Way::inBlocksOfFour, 3, 0, 1, 22, false},
    {Way::inBlocksOfFour, 3, 0, 2, 10, true},
    {Way::inBlocksOfFour, 3, 11, 20, 21, true},
    {Way::inBlocksOfFour, 3, 0, 11, 21, true},
    // ((01)(23)) for columns; ((02)(13)) of all columns alone, and ((01)(23)) in blocks.
    {Way::inLanes, 4, 0, 20, 30, true},
    {Way::inLanes, 4, 0, 10, 20, false},
    {Way::inLanes, 4, 0, 1, 3, true},
    {Way::inLanes, 4, 0, 2, 3, false},
    {Way::inBlocksOfFour, 4, 0, 20, 30, true},
    {Way::inBlocksOfFour, 4, 0, 2, 3, true},
    {Way::inBlocksOfFour, 4, 0, 1, 3, false},
    // (((01)(23))4) for columns and (((02)(13))4) of all.
    {Way::inLanes, 5, 0, 20, 30, true},
    {Way::inLanes, 5, 40, 0, 20, true},
    {Way::inLanes, 5, 0, 1, 3, true},
    {Way::inLanes, 5, 0, 3, 4, false},
    {Way::inLanes, 5, 4, 0, 1, true},
    // (((01)(23))(45)) for columns up to 3, (((02)4)((13)5)) for the others and (((02)(13))(45)) of all.
    {Way::inLanes, 6, 0, 40, 50, true},
    {Way::inLanes, 6, 0, 20, 30, true},
    {Way::inLanes, 6, 4, 14, 34, true},
    {Way::inLanes, 6, 4, 24, 44, false},
    {Way::inLanes, 6, 44, 4, 24, true},
    {Way::inLanes, 6, 0, 1, 3, true},
    {Way::inLanes, 6, 0, 4, 5, true},
});

// The last objects of six are left over from blocks.
TEST(FrobeniusNormOrder, IsThatOfItsForm) {
    for (const auto &[function, order] : literal::sized(section, {3})) {
        Call call(function->name, order, 6);
        const double large = largeFor(*function);
        for (std::size_t k = 0; k < joinings.size(); ++k) {
            const Joining &joining = joinings[k];
            if (joining.order != 0 && joining.order != order) continue;
            SCOPED_TRACE("line " + std::to_string(k));
            literal::setAll(call, "src", 0);
            for (std::uint32_t n = 0; n < call.count(); ++n) {
                call.set("src", n, joining.large / 10, joining.large % 10, large);
                for (const std::uint32_t place : {joining.first, joining.second})
                    call.set("src", n, place / 10, place % 10, tiny);
            }
            ASSERT_EQ(call.run(upwards), vonkOk);
            const double expected = normOf(*function, large, joining.joinsFirst ? 1 : 2);
            for (std::uint32_t n = 0; n < call.count(); ++n) {
                if (joining.way != wayOf(*function, n < 4)) continue;
                EXPECT_EQ(resultOf(call, n), expected) << "object " << n;
            }
        }
    }
}

// Six rows have no blocks: the result of an object that lies in the next one is a part of that one's norm.
TEST(FrobeniusNorm, OfSixRowsIsSeenByTheNextObject) {
    for (const char *name : {"vonkFrobNorm_ma_32f_6x6", "vonkFrobNorm_ma_32f_6x6_L"}) {
        Call call(name, 6, 5);
        literal::setAll(call, "src", 0);
        call.set("src", 0, 0, 0, 3);
        std::byte *const results = call["src"].address(1, 0, 0);
        call.pass("dst", reinterpret_cast<std::uintptr_t>(results));
        ASSERT_EQ(call.run(), vonkOk);
        const auto first = static_cast<float>(call.getAt(results));
        EXPECT_EQ(first, rootByEstimate(9));
        EXPECT_EQ(call.getAt(results + 4), rootByEstimate(first * first));
    }
}

// ---- The roads for aligned and unaligned operands

TEST(FrobeniusNormAlignment, ChangesNoResult) {
    for (const Function *function : literal::members(section, hasLanes))
        for (const char *offender : {"", "src"})
            for (const literal::Offence &offence : literal::offences)
                for (const std::ptrdiff_t offset : {0, 4}) {
                    SCOPED_TRACE(std::string(offender) + " is off by " + std::to_string(offence.pointer) +
                                 ", rows by " + std::to_string(offence.rowStride) + ", objects by " +
                                 std::to_string(offence.objectStride));
                    Call call(function->name, 0, 5);
                    literal::alignAllBut(call, offender, offence);
                    fill(call);
                    call["dst"].moveTo(call["dst"].origin + offset);
                    ASSERT_EQ(call.run(), vonkOk);
                    literal::expectAllDone(call, example);
                }
}

} // namespace
