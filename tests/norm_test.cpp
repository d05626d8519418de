// Euclidean norms: numbers by hand in every form, the exact root and the root by estimate with what the latter makes of
// zeros and infinities, the order of the sums, and results that lie over their sources.
#include "support/family_test.h"

#include <xmmintrin.h>

namespace {

using namespace literal::names;

constexpr double nan = std::numeric_limits<double>::quiet_NaN();

std::vector<const Function *> all(bool (*wanted)(const Function &) = isAny) { return literal::members("norm", wanted); }

bool isEstimated(const Function &function) { return isException(function, "norm-estimate"); }

const std::vector<std::uint32_t> lengths{1, 2, 3, 7, 10, 11, 12, 19, 21, 40};

// ---- Results

// One element that is not 0, in a place of its own for each object: the root of its square is exact.
double element(std::uint32_t n, std::uint32_t j, std::uint32_t size) { return j == n % size ? -3.0 - n : 0; }

void fill(Call &call) {
    for (std::uint32_t n = 0; n < call.objectsOf("src"); ++n)
        for (std::uint32_t j = 0; j < call.size(); ++j) call.set("src", n, 0, j, element(n, j, call.size()));
}

// One step of Newton's from an estimate good to 1.5 * 2^-12 leaves 1.5 times its square, and a few roundings.
void expectNorm(Call &call, std::uint32_t n, double expected) {
    if (isEstimated(call.function())) EXPECT_NEAR(call.get("dst", n, 0, 0), expected, expected * 0x1p-21);
    else EXPECT_EQ(call.get("dst", n, 0, 0), expected);
}

void expectDone(Call &call, std::uint32_t n) { expectNorm(call, n, 3.0 + n); }

const literal::Example example{fill, expectDone};

TEST(Norm, IsRightInEveryFormAndGeometry) {
    for (const Function *function : all()) literal::expectResults(*function, example, lengths);
}

TEST(Norm, TakesAnyNumberOfObjects) {
    for (const Function *function : all(isArray)) literal::expectResultsOfAnyCount(*function, example, 5);
}

TEST(Norm, OfThreeAndFourIsFive) {
    for (const Function *function : all())
        for (const std::uint32_t size : literal::sizesOf(*function, {2, 11, 20})) {
            Call call(function->name, size, 5);
            std::vector<double> vector(call.size(), 0);
            vector[0] = 3;
            vector.back() = -4;
            literal::setObjects(call, "src", vector);
            ASSERT_EQ(call.run(), vonkOk);
            for (std::uint32_t n = 0; n < call.count(); ++n) expectNorm(call, n, 5);
        }
}

// ---- Zeros, infinities, the ends of the range

// All elements of all objects are the same, in blocks and behind them.
void expectNormOf(double value, const Function &function, std::uint32_t size, double expected) {
    SCOPED_TRACE("all are " + std::to_string(value));
    Call call(function.name, size, 5);
    literal::setObjects(call, "src", std::vector<double>(size, value));
    literal::expectEverywhere(call, expected);
}

double unlessEstimated(const Function &function, double norm) { return isEstimated(function) ? nan : norm; }

TEST(NormOfZero, IsNanByEstimateAndZeroEverywhereElse) {
    std::size_t estimated = 0;
    for (const Function *function : all()) {
        estimated += isEstimated(*function) ? 1 : 0;
        for (const std::uint32_t size : literal::sizesOf(*function, {1, 10, 11, 20}))
            for (const double zero : {0.0, -0.0}) expectNormOf(zero, *function, size, unlessEstimated(*function, 0.0));
    }
    EXPECT_EQ(estimated, 3U * 4U); // v, va and va in L, of four sizes
}

// The estimate of 1/sqrt(infinity) is 0, and infinity times its square a NaN.
TEST(NormOfInfinity, IsNanByEstimateAndInfinityEverywhereElse) {
    for (const Function *function : all())
        for (const std::uint32_t size : literal::sizesOf(*function, {1, 10, 11, 20})) {
            expectNormOf(-infinity, *function, size, unlessEstimated(*function, infinity));
            expectNormOf(nan, *function, size, nan);
        }
}

// 2^-100 squared is below every float and 2^100 squared above, so the norms are those of zeros and infinities. Squares
// of doubles stay inside the wider range of the 80-bit type.
TEST(NormRange, IsLeftBySquaresOfFloatsAndNotOfDoubles) {
    for (const Function *function : all())
        for (const std::uint32_t size : literal::sizesOf(*function, {4, 16})) {
            if (isFloat(*function)) {
                expectNormOf(0x1p-100, *function, size, unlessEstimated(*function, 0.0));
                expectNormOf(0x1p100, *function, size, unlessEstimated(*function, infinity));
            } else if (size == 4 || size == 16) { // whose roots are whole
                const double root = size == 4 ? 2 : 4;
                expectNormOf(0x1p-1000, *function, size, root * 0x1p-1000);
                expectNormOf(0x1p1000, *function, size, root * 0x1p1000);
            }
        }
}

// ---- The root by estimate

// 3 - s r^2, halved, times r, times s; every step a float.
float rootByEstimate(float s) {
    const float r = _mm_cvtss_f32(_mm_rsqrt_ss(_mm_set_ss(s)));
    const float square = r * r;
    const float t = s * square;
    const float u = 3.0F - t;
    const float h = 0.5F * u;
    const float better = r * h;
    return s * better;
}

// Squares of 2^24 and then ones, in every object.
void setBigAndOnes(Call &call) {
    std::vector<double> vector(call.size(), 1);
    vector[0] = 0x1p12;
    literal::setObjects(call, "src", vector);
}

// Of pairs of squares, 2^24 + 1 is a tie that goes back to 2^24, and 1 + 1 is kept: 3 elements sum to 2^24 and 4 to
// 2^24 + 2; a fifth 1 makes another tie, which goes to 2^24 + 4, and two more ones the same without any.
TEST(NormByEstimate, TakesItsStepsAndItsTreeInEveryObject) {
    const std::map<int, float> sums{{3, 0x1p24F}, {4, 0x1p24F + 2}, {5, 0x1p24F + 4}, {6, 0x1p24F + 4}};
    for (const Function *function : all(isEstimated))
        for (std::uint32_t count = 1; count <= 9; ++count)
            for (const literal::Geometry geometry :
                 {literal::packed, literal::spread, literal::Geometry{1, 4, false}}) {
                Call call(function->name, 0, count, geometry);
                setBigAndOnes(call);
                literal::expectEverywhere(call, static_cast<double>(rootByEstimate(sums.at(function->order))));
            }
}

// In all other forms of floats the ones are lost one by one; six of them in the tree above would make 4096 + 2^-11.
TEST(NormByRoot, AddsFromLeftToRightUpToTenElements) {
    for (const Function *function : all(isFloat)) {
        if (isEstimated(*function)) continue;
        for (const std::uint32_t size : literal::sizesOf(*function, {3, 4, 6, 10})) {
            Call call(function->name, size, 6);
            setBigAndOnes(call);
            literal::expectEverywhere(call, 4096);
        }
    }
}

// ---- The long form of floats on adjacent elements

// Elements are roots of the squares given here, at so many bytes behind a boundary of 16.
double longNorm(const std::vector<double> &squares, std::ptrdiff_t offset) {
    Call call("vonkL2Norm_v_32f", static_cast<std::uint32_t>(squares.size()));
    literal::moveBy(call, "src", offset);
    for (std::uint32_t j = 0; j < squares.size(); ++j) call.set("src", 0, 0, j, std::sqrt(squares[j]));
    EXPECT_EQ(call.run(), vonkOk);
    return call.get("dst", 0, 0, 0);
}

// 2^24 loses ones that come singly and keeps them in pairs. First of eleven: from left to right all are lost. On a
// boundary (2^24 + 2) + (2 + 2), then three singly: 2^24 + 8; with three ahead of the block 2^24 + 6. sqrt(2^24 + 8) is
// 4096 + 2^-10 less a bit, which rounds to that; sqrt(2^24 + 6) is 4096 + 3 * 2^-12 less a bit, halfway but for the
// bit, which rounds down.
TEST(NormLong, GroupsTheSumByTheAlignmentOfTheSource) {
    std::vector<double> squares(11, 1);
    squares[0] = 0x1p24;
    constexpr double last = 0x1p-11; // the last place of 4096
    EXPECT_EQ(longNorm(squares, 0), 4096 + 2 * last);
    EXPECT_EQ(longNorm(squares, 4), 4096 + last);
    EXPECT_EQ(longNorm(squares, 8), 4096 + 2 * last);
    EXPECT_EQ(longNorm(squares, 12), 4096 + 2 * last);
    for (const std::ptrdiff_t offTheGrid : {1, 2, 3, 6, 13}) EXPECT_EQ(longNorm(squares, offTheGrid), 4096);
}

TEST(NormLong, AddsFromLeftToRightUpToTenElements) {
    std::vector<double> squares(10, 1);
    squares[0] = 0x1p24;
    for (std::ptrdiff_t offset = 0; offset < 16; ++offset) EXPECT_EQ(longNorm(squares, offset), 4096);
}

// 2^24 and ones four apart: every other one meets 2^24 in its lane and is lost, the others make a 4 of their own.
TEST(NormLong, HasTwoRegisters) {
    std::vector<double> squares(32, 0);
    for (std::size_t j = 0; j < squares.size(); j += 4) squares[j] = j == 0 ? 0x1p24 : 1;
    EXPECT_EQ(longNorm(squares, 0), 4096 + 0x1p-11); // the root of 2^24 + 4
    EXPECT_EQ(longNorm(squares, 1), 4096);           // all are lost
}

// ---- Doubles

// Beside a 1.
void expectNormOfDoubles(const Function &function, std::uint32_t size, double others, double at53, double at64) {
    for (const Precision precision : {Precision::bits53, Precision::bits64}) {
        Call call(function.name, size, 2);
        std::vector<double> vector(size, others);
        vector[0] = 1;
        literal::setObjects(call, "src", vector);
        const SettingScope scope({precision, Rounding::nearest});
        literal::expectEverywhere(call, precision == Precision::bits53 ? at53 : at64);
    }
}

// Beside a 1 squares of 0.49 * 2^-52 are lost one by one with 53 bits. With 64 bits three to five of them add up
// to 1.47 to 2.45 times 2^-52, half of which goes to 2^-52 in the root.
TEST(NormOfDoubles, KeepsTheSumAsWideAsTheCallersPrecision) {
    for (const Function *function : all(isDouble))
        for (const std::uint32_t size : literal::sizesOf(*function, {4, 5, 6}))
            if (size != 3) expectNormOfDoubles(*function, size, 0.7 * 0x1p-26, 1, 1 + 0x1p-52);
}

// 1 and twelve times 2^-54 are 1 + 3 * 2^-52, whose root is a little below 1 + 1.5 * 2^-52. With 64 bits it is rounded
// to just that, and then from the tie to the even 1 + 2^-51.
TEST(NormOfDoubles, RoundsTheRootToTheCallersPrecisionAndThenToTheStore) {
    for (const Function *function : all(isDouble))
        if (function->order == 0) expectNormOfDoubles(*function, 13, 0x1p-27, 1, 1 + 0x1p-51);
}

// ---- Results over their sources

TEST(NormOverlap, DoesNoHarmInTheFirstElementOfTheOnlyObject) {
    for (const Function *function : all())
        for (const std::uint32_t size : literal::sizesOf(*function, {1, 10, 20})) {
            Call call(function->name, size, 1);
            fill(call);
            call["dst"].moveTo(call["src"].address(0, 0, 0));
            ASSERT_EQ(call.run(), vonkOk);
            expectDone(call, 0);
        }
}

} // namespace
