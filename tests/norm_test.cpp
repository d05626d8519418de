// Euclidean norms: numbers by hand in every form, the exact root and the root by estimate with what the latter makes of
// zeros and infinities, the order of the sums, results that lie over their sources, and what is tested in which order.
#include "support/family_test.h"

#include <sys/mman.h>
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
void expectDone(Call &call, std::uint32_t n) {
    const double expected = 3.0 + n;
    const double actual = call.get("dst", n, 0, 0);
    if (isEstimated(call.function())) EXPECT_NEAR(actual, expected, expected * 0x1p-21);
    else EXPECT_EQ(actual, expected);
}

const literal::Example example{fill, expectDone};

TEST(Norm, IsRightInEveryFormAndGeometry) {
    for (const Function *function : all()) literal::expectResults(*function, example, lengths);
}

// Blocks of four objects and what is left over, on 16 and off it.
TEST(Norm, TakesAnyNumberOfObjects) {
    for (const Function *function : all())
        for (std::uint32_t count = 1; function->array() && count <= 9; ++count)
            for (const literal::Geometry geometry : {literal::packed, literal::spread, literal::backward}) {
                Call call(function->name, 5, count, geometry);
                fill(call);
                ASSERT_EQ(call.run(), vonkOk);
                literal::expectAllDone(call, example);
            }
}

TEST(Norm, OfThreeAndFourIsFive) {
    for (const Function *function : all())
        for (const std::uint32_t size : literal::sizesOf(*function, {2, 11, 20})) {
            Call call(function->name, size, 5);
            std::vector<double> vector(call.size(), 0);
            vector[0] = 3;
            vector.back() = -4;
            for (std::uint32_t n = 0; n < call.count(); ++n) call.set("src", n, vector);
            ASSERT_EQ(call.run(), vonkOk);
            for (std::uint32_t n = 0; n < call.count(); ++n) {
                if (isEstimated(*function)) EXPECT_NEAR(call.get("dst", n, 0, 0), 5, 5 * 0x1p-21);
                else EXPECT_EQ(call.get("dst", n, 0, 0), 5);
            }
        }
}

// ---- Zeros, infinities, the ends of the range

double normOf(const Function &function, std::uint32_t size, double value, std::uint32_t n = 0) {
    Call call(function.name, size, 5);
    for (std::uint32_t k = 0; k < call.count(); ++k) call.set("src", k, std::vector<double>(call.size(), value));
    EXPECT_EQ(call.run(), vonkOk);
    return call.get("dst", function.array() ? n : 0, 0, 0);
}

// In blocks and behind them.
TEST(NormOfZero, IsNanByEstimateAndZeroEverywhereElse) {
    std::size_t estimated = 0;
    for (const Function *function : all()) {
        estimated += isEstimated(*function);
        for (const std::uint32_t size : literal::sizesOf(*function, {1, 10, 11, 20}))
            for (const double zero : {0.0, -0.0})
                for (const std::uint32_t n : {0U, 4U}) {
                    SCOPED_TRACE(function->name + ", size " + std::to_string(size));
                    literal::expectSame(isEstimated(*function) ? nan : 0.0, normOf(*function, size, zero, n),
                                        "the norm");
                }
    }
    EXPECT_EQ(estimated, 3U * 4U); // v, va and va in L, of four sizes
}

// The estimate of 1/sqrt(infinity) is 0, and infinity times its square a NaN.
TEST(NormOfInfinity, IsNanByEstimateAndInfinityEverywhereElse) {
    for (const Function *function : all())
        for (const std::uint32_t size : literal::sizesOf(*function, {1, 10, 11, 20}))
            for (const std::uint32_t n : {0U, 4U}) {
                SCOPED_TRACE(function->name + ", size " + std::to_string(size));
                literal::expectSame(isEstimated(*function) ? nan : infinity, normOf(*function, size, -infinity, n),
                                    "the norm");
                literal::expectSame(nan, normOf(*function, size, nan, n), "the norm of NaNs");
            }
}

// 2^-100 squared is below every float and 2^100 squared above, so the norms are those of zeros and infinities. Squares
// of doubles stay inside the wider range of the 80-bit type.
TEST(NormRange, IsLeftBySquaresOfFloatsAndNotOfDoubles) {
    for (const Function *function : all())
        for (const std::uint32_t size : literal::sizesOf(*function, {4, 16})) {
            SCOPED_TRACE(function->name + ", size " + std::to_string(size));
            if (function->type == Type::real32) {
                literal::expectSame(isEstimated(*function) ? nan : 0.0, normOf(*function, size, 0x1p-100), "tiny");
                literal::expectSame(isEstimated(*function) ? nan : infinity, normOf(*function, size, 0x1p100), "huge");
            } else if (size == 4 || size == 16) { // whose roots are whole
                const double root = size == 4 ? 2 : 4;
                EXPECT_EQ(normOf(*function, size, 0x1p-1000), root * 0x1p-1000);
                EXPECT_EQ(normOf(*function, size, 0x1p1000), root * 0x1p1000);
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

float tree(const std::vector<float> &q) {
    const float two = q[0] + q[1];
    if (q.size() == 3) return two + q[2];
    const float four = two + (q[2] + q[3]);
    if (q.size() == 4) return four;
    return q.size() == 5 ? four + q[4] : four + (q[4] + q[5]);
}

float leftToRight(const std::vector<float> &q) {
    float sum = 0;
    for (const float square : q) sum += square;
    return sum;
}

// Numbers whose squares round, all different.
float rough(std::uint32_t n, std::uint32_t j) {
    return 1.1F + static_cast<float>((n * 7 + j * 5) % 13) * 0.37F - static_cast<float>(n) / 7;
}

TEST(NormByEstimate, TakesItsStepsAndItsTreeInEveryObject) {
    std::size_t told = 0;
    for (const Function *function : all()) {
        if (!isEstimated(*function)) continue;
        for (std::uint32_t count = 1; count <= 9; ++count)
            for (const literal::Geometry geometry :
                 {literal::packed, literal::spread, literal::Geometry{1, 4, false}}) {
                Call call(function->name, 0, count, geometry);
                std::vector<std::vector<float>> squares(call.count());
                for (std::uint32_t n = 0; n < call.count(); ++n)
                    for (std::uint32_t j = 0; j < call.size(); ++j) {
                        const float a = rough(n + count, j);
                        call.set("src", n, 0, j, static_cast<double>(a));
                        squares[n].push_back(a * a);
                    }
                ASSERT_EQ(call.run(), vonkOk);
                for (std::uint32_t n = 0; n < call.count(); ++n) {
                    const auto expected = static_cast<double>(rootByEstimate(tree(squares[n])));
                    EXPECT_EQ(call.get("dst", n, 0, 0), expected);
                    told += expected != static_cast<double>(std::sqrt(leftToRight(squares[n])));
                }
            }
    }
    EXPECT_GT(told, 100U); // neither tree nor root would do otherwise
}

// In all other forms of floats.
TEST(NormByRoot, AddsFromLeftToRightUpToTenElements) {
    std::size_t told = 0;
    for (const Function *function : all()) {
        if (function->type != Type::real32 || isEstimated(*function)) continue;
        for (const std::uint32_t size : literal::sizesOf(*function, {3, 4, 6, 10})) {
            Call call(function->name, size, 6);
            for (std::uint32_t n = 0; n < call.count(); ++n) {
                std::vector<float> squares;
                for (std::uint32_t j = 0; j < size; ++j) {
                    call.set("src", n, 0, j, static_cast<double>(rough(n, j)));
                    squares.push_back(rough(n, j) * rough(n, j));
                }
                if (size <= 6) told += std::sqrt(leftToRight(squares)) != rootByEstimate(tree(squares));
            }
            ASSERT_EQ(call.run(), vonkOk);
            for (std::uint32_t n = 0; n < call.count(); ++n) {
                std::vector<float> squares;
                for (std::uint32_t j = 0; j < size; ++j) squares.push_back(rough(n, j) * rough(n, j));
                EXPECT_EQ(call.get("dst", n, 0, 0), static_cast<double>(std::sqrt(leftToRight(squares))));
            }
        }
    }
    EXPECT_GT(told, 10U);
}

// ---- The long form of floats on adjacent elements

// Elements are roots of the squares given here, at so many bytes behind a boundary of 16.
float longNorm(const std::vector<double> &squares, std::size_t offset) {
    alignas(64) std::array<float, 80> buffer{};
    auto *const source = reinterpret_cast<std::byte *>(buffer.data()) + offset;
    for (std::size_t j = 0; j < squares.size(); ++j) {
        const auto a = static_cast<float>(std::sqrt(squares[j]));
        std::memcpy(source + 4 * j, &a, sizeof a);
    }
    float result = -1;
    const auto length = static_cast<std::uint32_t>(squares.size());
    EXPECT_EQ(callWith("vonkL2Norm_v_32f", {wordOf(source), wordOf(&result), length}), vonkOk);
    return result;
}

// 2^24 loses ones that come singly and keeps them in pairs. First of eleven: from left to right all are lost. On a
// boundary (2^24 + 2) + (2 + 2), then three singly: 2^24 + 8; with three ahead of the block 2^24 + 6. sqrt(2^24 + 8) is
// 4096 + 2^-10 less a bit, which rounds to that; sqrt(2^24 + 6) is 4096 + 3 * 2^-12 less a bit, halfway but for the
// bit, which rounds down.
TEST(NormLong, GroupsTheSumByTheAlignmentOfTheSource) {
    std::vector<double> squares(11, 1);
    squares[0] = 0x1p24;
    constexpr float last = 0x1p-11F; // the last place of 4096
    EXPECT_EQ(longNorm(squares, 0), 4096 + 2 * last);
    EXPECT_EQ(longNorm(squares, 4), 4096 + last);
    EXPECT_EQ(longNorm(squares, 8), 4096 + 2 * last);
    EXPECT_EQ(longNorm(squares, 12), 4096 + 2 * last);
    for (const std::size_t offTheGrid : {1U, 2U, 3U, 6U, 13U}) EXPECT_EQ(longNorm(squares, offTheGrid), 4096);
}

TEST(NormLong, AddsFromLeftToRightUpToTenElements) {
    std::vector<double> squares(10, 1);
    squares[0] = 0x1p24;
    for (std::size_t offset = 0; offset < 16; ++offset) EXPECT_EQ(longNorm(squares, offset), 4096);
}

// 2^24 and ones four apart: every other one meets 2^24 in its lane and is lost, the others make a 4 of their own.
TEST(NormLong, HasTwoRegisters) {
    std::vector<double> squares(32, 0);
    for (std::size_t j = 0; j < squares.size(); j += 4) squares[j] = j == 0 ? 0x1p24 : 1;
    EXPECT_EQ(longNorm(squares, 0), 4096 + 0x1p-11F); // the root of 2^24 + 4
    EXPECT_EQ(longNorm(squares, 1), 4096);            // all are lost
}

// ---- Doubles

double normOfDoubles(const Function &function, std::uint32_t size, double others, Precision precision) {
    Call call(function.name, size, 2);
    for (std::uint32_t n = 0; n < call.count(); ++n) {
        call.set("src", n, std::vector<double>(size, others));
        call.set("src", n, 0, 0, 1);
    }
    const SettingScope scope({precision, Rounding::nearest});
    EXPECT_EQ(call.run(), vonkOk);
    return call.get("dst", 0, 0, 0);
}

// Beside a 1 squares of 0.49 * 2^-52 are lost one by one with 53 bits. With 64 bits three to five of them add up
// to 1.47 to 2.45 times 2^-52, half of which goes to 2^-52 in the root.
TEST(NormOfDoubles, KeepsTheSumAsWideAsTheCallersPrecision) {
    for (const Function *function : all()) {
        if (function->type != Type::real64 || function->order == 3) continue;
        for (const std::uint32_t size : literal::sizesOf(*function, {4, 5, 6})) {
            SCOPED_TRACE(function->name);
            EXPECT_EQ(normOfDoubles(*function, size, 0.7 * 0x1p-26, Precision::bits53), 1);
            EXPECT_EQ(normOfDoubles(*function, size, 0.7 * 0x1p-26, Precision::bits64), 1 + 0x1p-52);
        }
    }
}

// 1 and twelve times 2^-54 are 1 + 3 * 2^-52, whose root is a little below 1 + 1.5 * 2^-52. With 64 bits it is rounded
// to just that, and then from the tie to the even 1 + 2^-51.
TEST(NormOfDoubles, RoundsTheRootToTheCallersPrecisionAndThenToTheStore) {
    for (const Function *function : all()) {
        if (function->type != Type::real64 || function->order != 0) continue;
        SCOPED_TRACE(function->name);
        EXPECT_EQ(normOfDoubles(*function, 13, 0x1p-27, Precision::bits53), 1);
        EXPECT_EQ(normOfDoubles(*function, 13, 0x1p-27, Precision::bits64), 1 + 0x1p-51);
    }
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

// ---- What is tested, and when

constexpr const char *trusting = "vonkL2Norm_va_32f_4x1_L";

} // namespace
