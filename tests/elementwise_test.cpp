// Arithmetic of all families that make each element of `dst` out of the elements in its place: sums, differences,
// products, saxpy and linear combinations of vectors and matrices. Cases worked out by hand, the same for every form.
#include "support/family_test.h"

namespace {

using namespace literal::names;

constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr double largestFloat = std::numeric_limits<float>::max();
constexpr double largestDouble = std::numeric_limits<double>::max();

constexpr Setting nearest53{Precision::bits53, Rounding::nearest};
constexpr Setting up53{Precision::bits53, Rounding::up};
constexpr Setting down53{Precision::bits53, Rounding::down};
constexpr Setting towardZero53{Precision::bits53, Rounding::towardZero};
constexpr Setting nearest64{Precision::bits64, Rounding::nearest};
constexpr Setting up64{Precision::bits64, Rounding::up};
constexpr Setting down64{Precision::bits64, Rounding::down};
constexpr Setting towardZero64{Precision::bits64, Rounding::towardZero};

enum class Of { both, floats, doubles };

bool concerns(Of types, const Function &function) {
    return types == Of::both || isFloat(function) == (types == Of::floats);
}

// Every element of every operand has the same value: what does `dst` become?
void expectUniform(const Function &function, Setting setting, const std::map<std::string, double> &values,
                   double expected) {
    const bool matrix = function.operands.back().matrix;
    for (const std::uint32_t size : literal::sizesOf(function, matrix ? std::vector{3U} : std::vector{1U, 5U, 21U})) {
        Call call(function.name, size, matrix ? 2 : 5);
        for (const auto &[name, value] : values)
            if (name.starts_with("val")) call.setConstant(name, value);
            else
                for (std::uint32_t n = 0; n < call.objectsOf(name); ++n)
                    call.set(name, n, std::vector<double>(call.get(name, n).size(), value));
        ASSERT_EQ(call.run(setting), vonkOk);
        for (std::uint32_t n = 0; n < call.count(); ++n)
            literal::expectSame(std::vector<double>(call.get("dst", n).size(), expected), call.get("dst", n),
                                support::describe(setting) + ", object " + std::to_string(n));
    }
}

// ---- Sums, differences and products of two numbers

struct Pair {
    Of types;
    Setting setting;
    double left, right, expected;
};

// The names of what is added, subtracted or multiplied, in this order: `cv` begins with the constant.
std::pair<std::string, std::string> operandsOf(const Function &function) {
    if (function.section->id == "vector-vector" || function.section->id == "matrix-matrix") return {"src1", "src2"};
    if (function.group.front() == 'c') return {"val", "src"};
    return {"src", "val"};
}

void expectPairs(std::string_view operation, std::span<const Pair> pairs, double signOfRight = 1) {
    for (const char *section : {"vector-constant", "vector-vector", "matrix-matrix", "matrix-constant"})
        for (const Function *function : literal::members(section)) {
            if (function->family->operation != operation) continue;
            const auto [left, right] = operandsOf(*function);
            for (const Pair &pair : pairs)
                if (concerns(pair.types, *function))
                    expectUniform(*function, pair.setting, {{left, pair.left}, {right, signOfRight * pair.right}},
                                  pair.expected);
        }
}

constexpr std::array sums = std::to_array<Pair>({
    {Of::both, nearest64, 5, 5, 10},
    {Of::both, nearest64, 5, -5, 0.0},
    {Of::both, nearest64, infinity, 1, infinity},
    {Of::both, nearest64, 1, infinity, infinity},
    {Of::both, nearest64, 1, -infinity, -infinity},
    {Of::both, nearest64, infinity, -infinity, nan},
    {Of::both, nearest64, infinity, infinity, infinity},
    {Of::both, nearest64, nan, 1, nan},
    {Of::both, nearest64, 1, nan, nan},
    {Of::both, nearest64, -0.0, -0.0, -0.0},
    {Of::both, nearest64, -0.0, 0.0, 0.0},
    {Of::both, nearest64, 0.0, -0.0, 0.0},
    {Of::floats, nearest64, largestFloat, largestFloat, infinity},
    {Of::floats, nearest64, 0x1p-149, 0x1p-149, 0x1p-148},
    {Of::doubles, nearest64, largestDouble, largestDouble, infinity},
    {Of::doubles, nearest64, 0x1p-1074, 0x1p-1074, 0x1p-1073},
    // 1 + 2^-24 is a tie of floats, between 1 and 1 + 2^-23; -1 - 2^-24 is its mirror image.
    {Of::floats, nearest64, 1, 0x1p-24, 1},
    {Of::floats, up64, 1, 0x1p-24, 1 + 0x1p-23},
    {Of::floats, down64, 1, 0x1p-24, 1},
    {Of::floats, towardZero64, 1, 0x1p-24, 1},
    {Of::floats, nearest64, -1, -0x1p-24, -1},
    {Of::floats, up64, -1, -0x1p-24, -1},
    {Of::floats, down64, -1, -0x1p-24, -1 - 0x1p-23},
    {Of::floats, towardZero64, -1, -0x1p-24, -1},
    // 1 + 2^-53 + 2^-78: with 53 bits it is above the tie and goes up. With 64 bits the last term is lost on the way to
    // the register, and the store finds a tie and goes down to the even 1. Directed roundings go their way in both.
    {Of::doubles, nearest53, 1, 0x1p-53 + 0x1p-78, 1 + 0x1p-52},
    {Of::doubles, up53, 1, 0x1p-53 + 0x1p-78, 1 + 0x1p-52},
    {Of::doubles, down53, 1, 0x1p-53 + 0x1p-78, 1},
    {Of::doubles, towardZero53, 1, 0x1p-53 + 0x1p-78, 1},
    {Of::doubles, nearest64, 1, 0x1p-53 + 0x1p-78, 1},
    {Of::doubles, up64, 1, 0x1p-53 + 0x1p-78, 1 + 0x1p-52},
    {Of::doubles, down64, 1, 0x1p-53 + 0x1p-78, 1},
    {Of::doubles, towardZero64, 1, 0x1p-53 + 0x1p-78, 1},
});

TEST(Elementwise, AddsWithInfinitiesNansSignedZerosAndTheCallersRounding) { expectPairs("Add", sums); }

TEST(Elementwise, SubtractsAsItAddsTheOpposite) { expectPairs("Sub", sums, -1); }

constexpr double floatFactor = 1 + 0x1p-12;  // its square is 1 + 2^-11 + 2^-24, a tie of floats
constexpr double doubleFactor = 1 + 0x1p-30; // its square is 1 + 2^-29 + 2^-60, which 64 bits hold and 53 do not
constexpr double belowTie = 1.25 + 0x1p-30 + 0x1p-51;
constexpr double even = 1 + 0x1p-26 + 0x1p-27 + 0x1p-51;

constexpr std::array products = std::to_array<Pair>({
    {Of::both, nearest64, 5, 5, 25},
    {Of::both, nearest64, nan, 1, nan},
    {Of::both, nearest64, 1, nan, nan},
    {Of::both, nearest64, nan, 0, nan},
    {Of::both, nearest64, infinity, 0, nan},
    {Of::both, nearest64, 0, infinity, nan},
    {Of::both, nearest64, infinity, infinity, infinity},
    {Of::both, nearest64, infinity, -2, -infinity},
    {Of::both, nearest64, 1, -infinity, -infinity},
    {Of::both, nearest64, -3, 0, -0.0},
    {Of::both, nearest64, 3, -0.0, -0.0},
    {Of::both, nearest64, -0.0, 0.0, -0.0},
    {Of::both, nearest64, -0.0, -0.0, 0.0},
    {Of::floats, nearest64, floatFactor, floatFactor, 1 + 0x1p-11},
    {Of::floats, up64, floatFactor, floatFactor, 1 + 0x1p-11 + 0x1p-23},
    {Of::floats, down64, floatFactor, floatFactor, 1 + 0x1p-11},
    // (1 + 2^-51) (5/4 + 2^-30) is 2^-53 + 2^-81 above, the former being half of a double's last place.
    {Of::doubles, nearest53, 1 + 0x1p-51, 1.25 + 0x1p-30, belowTie + 0x1p-52},
    {Of::doubles, nearest64, 1 + 0x1p-51, 1.25 + 0x1p-30, belowTie},
    {Of::doubles, up64, 1 + 0x1p-51, 1.25 + 0x1p-30, belowTie + 0x1p-52},
    // (1 + 2^-26) (1 + 2^-27 + 2^-51) is 2^-53 + 2^-77 more than an even double. At 53 bits that is above the tie and
    // goes up; at 64 bits the last term is lost in the register, and the store meets the tie.
    {Of::doubles, nearest53, 1 + 0x1p-26, 1 + 0x1p-27 + 0x1p-51, even + 0x1p-52},
    {Of::doubles, nearest64, 1 + 0x1p-26, 1 + 0x1p-27 + 0x1p-51, even},
    {Of::doubles, up64, 1 + 0x1p-26, 1 + 0x1p-27 + 0x1p-51, even + 0x1p-52},
    {Of::doubles, down53, 1 + 0x1p-26, 1 + 0x1p-27 + 0x1p-51, even},
});

TEST(Elementwise, MultipliesByZeroLikeByAnyNumberAndRounds) { expectPairs("Mul", products); }

// ---- a x + b y: saxpy has no y, and a linear combination may be told in either order

struct Combination {
    Of types;
    Setting setting;
    double a, x, b, y, expected;
};

constexpr std::array combinations = std::to_array<Combination>({
    {Of::both, nearest64, infinity, 0, 1, 1, nan}, // a constant of 0 is no short cut
    {Of::both, nearest64, infinity, 0, 1, 2, nan},
    {Of::both, nearest64, 1, nan, 1, 1, nan},
    {Of::both, nearest64, 1, 0, -0.0, 1, 0.0},
    {Of::both, nearest64, 1, -0.0, -0.0, 1, -0.0},
    {Of::both, nearest64, -0.0, 1, -0.0, 1, -0.0},
    {Of::both, nearest64, 0.0, -1, 0.0, 1, 0.0},
    // Of the square a float loses the last term before the sum. A fused operation would keep it.
    {Of::floats, nearest64, floatFactor, floatFactor, -1 - 0x1p-11, 1, 0.0},
    {Of::floats, nearest64, floatFactor, floatFactor, 1 + 0x1p-11, -1, 0.0},
    {Of::floats, up64, floatFactor, floatFactor, -1 - 0x1p-11, 1, 0x1p-23},
    // Of doubles 53 bits lose it and 64 bits keep it up to the sum.
    {Of::doubles, nearest53, doubleFactor, doubleFactor, -1 - 0x1p-29, 1, 0.0},
    {Of::doubles, nearest64, doubleFactor, doubleFactor, -1 - 0x1p-29, 1, 0x1p-60},
    {Of::doubles, nearest53, doubleFactor, doubleFactor, 1 + 0x1p-29, -1, 0.0},
    {Of::doubles, nearest64, doubleFactor, doubleFactor, 1 + 0x1p-29, -1, 0x1p-60},
});

TEST(Elementwise, ScalesAndAddsWithoutAShortCutAndWithoutFusing) {
    for (const Combination &one : combinations) {
        for (const Function *function : literal::members("saxpy"))
            if (one.y == 1 && concerns(one.types, *function))
                expectUniform(*function, one.setting, {{"src1", one.a}, {"val", one.x}, {"src2", one.b}}, one.expected);
        for (const Function *function : literal::members("linear-combination")) {
            if (!concerns(one.types, *function)) continue;
            expectUniform(*function, one.setting, {{"src1", one.a}, {"val1", one.x}, {"src2", one.b}, {"val2", one.y}},
                          one.expected);
            expectUniform(*function, one.setting, {{"src1", one.b}, {"val1", one.y}, {"src2", one.a}, {"val2", one.x}},
                          one.expected);
        }
    }
}

} // namespace
