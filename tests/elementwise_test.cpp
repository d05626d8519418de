// All families that make each element of `dst` out of the elements in its place: sums, differences and products, saxpy
// and linear combinations, of vectors and matrices. Numbers by hand in every form, what a destination over a source
// comes to, which forms hold a single source, and arithmetic at its limits.
#include "support/family_test.h"
#include "support/matrix_checks.h"

namespace {

using namespace literal::names;

std::vector<const Function *> all(bool (*wanted)(const Function &) = isAny) {
    std::vector<const Function *> found;
    for (const char *section :
         {"vector-constant", "vector-vector", "saxpy", "linear-combination", "matrix-matrix", "matrix-constant"})
        std::ranges::copy(literal::members(section, wanted), std::back_inserter(found));
    return found;
}

bool isMatrix(const Function &function) { return function.operands.back().matrix; }
bool hasTwoSources(const Function &function) { return function.operands.size() == 3; }

// The names of what is added, subtracted or multiplied, in this order: `cv` begins with the constant.
std::pair<std::string, std::string> operandsOf(const Function &function) {
    if (hasTwoSources(function)) return {"src1", "src2"};
    if (function.group.front() == 'c') return {"val", "src"};
    return {"src", "val"};
}

// ---- Results

constexpr double value1 = -2, value2 = 5; // val and val1, val2

void setConstants(Call &call) {
    call.setConstant("val", value1);
    call.setConstant("val1", value1);
    call.setConstant("val2", value2);
}

double combine(const Function &function, double a, double b) {
    const std::string_view operation = function.family->operation;
    if (operation == "Add") return a + b;
    if (operation == "Sub") return a - b;
    if (operation == "Mul") return a * b;
    return operation == "Saxpy" ? value1 * a + b : value1 * a + value2 * b;
}

double number(const Function &function, std::string_view name, std::uint32_t n, std::uint32_t i, std::uint32_t j) {
    if (name == "val") return value1;
    const auto operand = std::ranges::find(function.operands, name, &Operand::name);
    const std::uint32_t object = operand->array ? n : 0;
    return name == "src2" ? 500 * (object + 1) - 64.0 * i + 3 * j : 1000 * (object + 1) + 16.0 * i + j;
}

void fill(Call &call) {
    setConstants(call);
    for (const Operand &source : sourcesOf(call.function()))
        literal::setElements(call, source.name, call["dst"].rows, call["dst"].cols,
                             [&](auto n, auto i, auto j) { return number(call.function(), source.name, n, i, j); });
}

// The differences that take other elements than their own are worked out in MatrixSumDefects.
bool takesOtherElements(const Function &function) {
    return isException(function, "sub-repeated-row") || isException(function, "sub-other-elements");
}

void expectDone(Call &call, std::uint32_t n) {
    const Function &function = call.function();
    if (takesOtherElements(function)) return;
    const auto [left, right] = operandsOf(function);
    for (std::uint32_t i = 0; i < call["dst"].rows; ++i)
        for (std::uint32_t j = 0; j < call["dst"].cols; ++j)
            EXPECT_EQ(call.get("dst", n, i, j),
                      combine(function, number(function, left, n, i, j), number(function, right, n, i, j)))
                << "element " << i << ", " << j;
}

const literal::Example example{fill, expectDone};

std::vector<std::uint32_t> runTimeSizesOf(const Function &function) {
    if (isMatrix(function)) return {1, 2, 3, 4, 7};
    return {1, 2, 3, 7, 10, 11, 12, 19, 21};
}

TEST(Elementwise, WorksElementByElementInEveryFormAndGeometry) {
    for (const Function *function : all()) literal::expectResults(*function, example, runTimeSizesOf(*function));
}

TEST(Elementwise, TakesEachConstantBehindItsVector) {
    const double first[2] = {1, 2};
    const double second[2] = {10, 20};
    double result[2] = {};
    const auto expect = [&](const char *name, const std::vector<std::uint64_t> &words, double one, double two) {
        EXPECT_EQ(callWith(name, words), vonkOk);
        EXPECT_EQ(std::vector<double>(result, result + 2), (std::vector<double>{one, two})) << name;
    };
    const auto three = std::bit_cast<std::uint64_t>(3.0), half = std::bit_cast<std::uint64_t>(0.5);
    const std::uint64_t src1 = wordOf(first), src2 = wordOf(second), dst = wordOf(result);
    expect("vonkAdd_vv_64f", {src1, src2, dst, 2}, 11, 22);
    expect("vonkSub_vv_64f", {src1, src2, dst, 2}, -9, -18);
    expect("vonkMul_vc_64f", {src1, three, dst, 2}, 3, 6);
    expect("vonkSub_vc_64f", {src1, three, dst, 2}, -2, -1);
    expect("vonkSub_cv_64f", {src1, three, dst, 2}, 2, 1); // the constant is the minuend, wherever it stands
    expect("vonkSaxpy_vv_64f", {src1, three, src2, dst, 2}, 13, 26);
    expect("vonkLComb_vv_64f", {src1, three, src2, half, dst, 2}, 8, 16);
}

TEST(Elementwise, TakesStridesBehindTheirOperands) {
    const float left[2] = {1, 2};
    const float right[2] = {10, 20};
    float sum[4] = {};
    EXPECT_EQ(vonkAdd_vv_32f_S2(left, 4, right, -4, sum, 8, 1), vonkOk);
    EXPECT_EQ(vonkSub_vva_32f_S2(left, 4, right, 0, 4, sum + 1, 8, 4, 1, 2), vonkOk); // 1 - 10, twice
    EXPECT_EQ(std::vector<float>(sum, sum + 4), (std::vector<float>{11, -9, 0, -9}));
}

// The result has `rows` rows of `cols` elements; a transposed operand is stored the other way round, and so is its
// table.
TEST(Elementwise, TakesRowsAndColumnsOfTheResult) {
    for (const Function *function : all(isRunTime)) {
        if (!isMatrix(*function)) continue;
        for (const auto &[rows, cols] : {std::pair{2U, 3U}, {3U, 2U}, {1U, 4U}, {4U, 1U}, {5U, 2U}}) {
            SCOPED_TRACE(function->name + ", " + std::to_string(rows) + " by " + std::to_string(cols));
            Call call(function->name, 5, 2, literal::spread);
            literal::makeRectangular(call, rows, cols);
            fill(call);
            ASSERT_EQ(call.run(), vonkOk);
            literal::expectAllDone(call, example);
        }
    }
}

// All objects of the destination fall on one another, of matrices of run-time size all rows, too; the last ones stay.
TEST(Elementwise, PutsTheLastObjectOnAllOthersAtStrideZero) {
    for (const Function *function : all(isArray)) {
        if (!literal::has(*function, Kind::objectStride) || takesOtherElements(*function)) continue;
        Call call(function->name, 4, 3);
        literal::Place &destination = call["dst"];
        destination.objectStride = 0;
        if (function->order == 0 && !isTabled(*function)) destination.rowStride = 0;
        fill(call);
        ASSERT_EQ(call.run(), vonkOk);
        const auto [left, right] = operandsOf(*function);
        const std::uint32_t i = destination.rows - 1;
        for (std::uint32_t j = 0; j < destination.cols; ++j)
            EXPECT_EQ(call.get("dst", 0, i, j),
                      combine(*function, number(*function, left, 2, i, j), number(*function, right, 2, i, j)));
    }
}

// Blocks of four objects and what is left over, beside the sum that has no blocks.
TEST(Elementwise, TakesAnyNumberOfThreeVectorsWhateverTheBlocks) {
    for (const char *name : {"vonkSub_vava_32f_3x1", "vonkAdd_vava_32f_3x1"})
        literal::expectResultsOfAnyCount(literal::function(name), example, 3);
}

TEST(Elementwise, GivesTheSameOfMatricesInLanesAtEveryAlignment) {
    for (const Function *function : all(hasLanes)) {
        if (!isMatrix(*function)) continue;
        for (const Operand &offender : function->operands)
            for (const literal::Offence &offence : literal::offences)
                for (const std::uint32_t count : {1U, 4U}) {
                    SCOPED_TRACE(offender.name + " is off by " + std::to_string(offence.pointer) + ", rows by " +
                                 std::to_string(offence.rowStride) + ", objects by " +
                                 std::to_string(offence.objectStride));
                    Call call(function->name, 0, count);
                    literal::alignAllBut(call, offender.name, offence);
                    if (isException(*function, "sum-ignored-stride")) // has one stride for both
                        call["src2"].rowStride = call["src1"].rowStride;
                    fill(call);
                    ASSERT_EQ(call.run(), vonkOk);
                    literal::expectAllDone(call, example);
                }
    }
}

// ---- A destination over a source

TEST(ElementwiseInPlace, IsRightOverASourceThatIsNotTransposed) {
    for (const Function *function : all())
        for (const Operand &source : sourcesOf(*function))
            if (!source.transposed && source.array == function->array())
                literal::expectInPlaceResults(*function, example, source.name, runTimeSizesOf(*function));
}

// 1 2 / 3 4 transposed into itself, with 10 everywhere: (0, 1) takes the 3 and overwrites the 2 that (1, 0) would take.
TEST(ElementwiseInPlace, GoesWrongOverATransposedSource) {
    const std::map<std::string_view, std::vector<double>> expected{
        {"Add", {11, 13, 23, 14}}, {"Sub", {-9, -7, -17, -6}}, {"Mul", {10, 30, 300, 40}}};
    for (const Function *function : all(isRunTime)) {
        const Operand &first = function->operands[0];
        const bool secondIsPlain = !hasTwoSources(*function) || !function->operands[1].transposed;
        if (!first.transposed || first.array != function->array() || !secondIsPlain) continue;
        Call call(function->name, 2);
        call.layOver(first.name);
        call.set(first.name, 0, {1, 2, 3, 4});
        if (hasTwoSources(*function)) call.set("src2", 0, {10, 10, 10, 10});
        call.setConstant("val", 10);
        ASSERT_EQ(call.run(), vonkOk);
        EXPECT_EQ(call.get("dst", 0), expected.at(function->family->operation));
    }
}

// Each element is made of the one that the step before has left. From a 5 and ones come 6 7 8 ..., 4 3 2 ... and, if
// the element is taken off the constant, -4 5 -4 ...; a constant of 2 makes 10 20 40 ... of it.
TEST(ElementwiseInPlace, RunsOnWhereTheDestinationIsOneElementAhead) {
    for (const Function *function : all(isRunTime)) {
        if (isMatrix(*function) || function->array()) continue;
        const std::string_view operation = function->family->operation;
        for (const std::uint32_t length : {9U, 11U, 100U}) {
            Call call(function->name, length);
            const literal::Place &source = call[function->operands[0].name];
            call["dst"].moveTo(source.origin + (isTabled(*function) ? source.positionStride : source.elementStride));
            for (const char *constant : {"val", "val1", "val2"}) call.setConstant(constant, operation == "Mul" ? 2 : 1);
            literal::setAll(call, function->operands[0].name, 5);
            if (hasTwoSources(*function)) literal::setAll(call, "src2", 1);
            ASSERT_EQ(call.run(), vonkOk);
            for (std::uint32_t j = 0; j < length; ++j) {
                const double expected = operation == "Mul"        ? std::ldexp(10, static_cast<int>(j))
                                        : operation != "Sub"      ? 6.0 + j
                                        : function->group == "cv" ? (j % 2 == 0 ? -4 : 5)
                                                                  : 4.0 - j;
                EXPECT_EQ(call.get("dst", 0, 0, j), expected) << "element " << j;
            }
        }
    }
}

// ---- The run-time forms on adjacent elements, which go by blocks where no overlap shows them

constexpr std::array adjacentForms{"vonkAdd_vv_32f", "vonkSub_vv_32f", "vonkAdd_vc_32f",   "vonkSub_vc_32f",
                                   "vonkSub_cv_32f", "vonkMul_vc_32f", "vonkSaxpy_vv_32f", "vonkLComb_vv_32f",
                                   "vonkAdd_vv_64f", "vonkSub_vv_64f"};

// On numbers whose sums and products round. The model walks forward.
void runAsForwardWalk(Call &call) {
    for (std::uint32_t j = 0; j < call.size(); ++j)
        for (const Operand &source : sourcesOf(call.function()))
            call.set(source.name, 0, 0, j, (source.name == "src2" ? 1.7 : 1.1) * (j + 1) - j * j / 7.0);
    call.setConstant("val", 0.3);
    call.setConstant("val1", 0.3);
    call.setConstant("val2", -1.7);
    ASSERT_EQ(call.run(), vonkOk);
}

// Up to 10 elements there are no blocks; 11 with the destination on a boundary of 16 are one block and three, 4 bytes
// past a boundary three and one block.
TEST(ElementwiseLong, IsTheForwardWalkAtEveryAlignmentAndLength) {
    for (const char *name : adjacentForms) {
        const auto runAt = [&](std::uint32_t length, const std::vector<std::ptrdiff_t> &offsets) {
            Call call(name, length);
            for (std::size_t k = 0; k < call.function().operands.size(); ++k)
                literal::moveBy(call, call.function().operands[k].name, offsets[k]);
            runAsForwardWalk(call);
        };
        const bool hasTwo = hasTwoSources(literal::function(name));
        for (std::uint32_t length = 1; length <= 40; ++length)
            for (std::ptrdiff_t first = 0; first < 16; first += 4)
                for (std::ptrdiff_t second = 0; second < 16; second += 4) {
                    if (!hasTwo) runAt(length, {first, second});
                    for (std::ptrdiff_t result = 0; hasTwo && result < 16; result += 4)
                        runAt(length, {first, second, result});
                }
        for (const std::uint32_t length : {1U, 10U, 11U, 16U, 100U})
            for (std::ptrdiff_t odd = 1; odd < 16; ++odd)
                for (const std::vector<std::ptrdiff_t> &offsets :
                     {std::vector{odd, odd, odd}, {odd, 0, 0}, {0, odd, 4}, {0, 0, odd}})
                    runAt(length, offsets);
    }
}

// Distances from a source to the destination: in place, a few bytes apart, a block apart, just in touch at either end.
std::vector<std::ptrdiff_t> distances(const Function &function, std::uint32_t length) {
    const std::ptrdiff_t bytes = static_cast<std::ptrdiff_t>(length) * (isFloat(function) ? 4 : 8);
    std::vector<std::ptrdiff_t> list{64, bytes / 2, bytes - 4, bytes - 1, bytes, bytes + 4};
    for (std::size_t k = 0; k < 6; ++k) list.push_back(-list[k]);
    for (std::ptrdiff_t distance = -36; distance <= 36; ++distance) list.push_back(distance);
    return list;
}

// Over either source, with the other one far away, or over both, which are one or lie a block apart.
TEST(ElementwiseLong, IsTheForwardWalkWhereItOverlaps) {
    for (const char *name : adjacentForms) {
        const Function &function = literal::function(name);
        for (const std::uint32_t length : {3U, 10U, 11U, 24U, 100U})
            for (const std::ptrdiff_t distance : distances(function, length)) {
                SCOPED_TRACE("dst " + std::to_string(distance) + " bytes behind");
                for (const Operand &source : sourcesOf(function)) {
                    Call call(name, length);
                    call["dst"].moveTo(call[source.name].origin + distance);
                    runAsForwardWalk(call);
                }
                for (const std::ptrdiff_t apart : {0, 16}) {
                    if (!hasTwoSources(function)) continue;
                    Call call(name, length);
                    call["dst"].moveTo(call["src1"].origin + distance);
                    call["src2"].moveTo(call["src1"].origin + apart);
                    runAsForwardWalk(call);
                }
            }
    }
}

// ---- A single source beside an array

bool holdsSingle(const Function &function) {
    return isException(function, "vv-single-loaded-once") || isException(function, "lcomb-single-loaded-once") ||
           isException(function, "sum-single-loaded-once");
}

bool holdsSingleIfAligned(const Function &function) { return isException(function, "saxpy-single-loaded-once"); }

bool mixesArrayAndSingle(const Function &function) {
    return hasTwoSources(function) && function.operands[0].array != function.operands[1].array;
}

// Object 0 of `dst` lies on the single source, which is 100; the array is 1, 10 and 20. Forms that hold the single
// source take the 100 for the later objects too, the others the result for object 0.
void expectSingle(Call &call, bool isHeld) {
    const Function &function = call.function();
    const bool arrayFirst = function.operands[0].array;
    setConstants(call);
    literal::setAll(call, arrayFirst ? "src2" : "src1", 100);
    literal::setElements(call, arrayFirst ? "src1" : "src2", call["dst"].rows, call["dst"].cols,
                         [](auto n, auto, auto) { return n == 0 ? 1.0 : 10.0 * n; });
    const auto both = [&](double fromArray, double fromSingle) {
        return arrayFirst ? combine(function, fromArray, fromSingle) : combine(function, fromSingle, fromArray);
    };
    const double first = both(1, 100);
    const double seen = isHeld ? 100 : first;
    const std::array expected{first, both(10, seen), both(20, seen)};
    ASSERT_EQ(call.run(), vonkOk);
    for (std::uint32_t n = 0; n < 3; ++n)
        literal::expectSame(std::vector<double>(call.get("dst", n).size(), expected[n]), call.get("dst", n),
                            "object " + std::to_string(n));
}

// Element for element, a transposed single matrix is not the destination.
TEST(ElementwiseSingle, IsHeldByFloatsInLanesAndReadAnewByAllOthers) {
    std::size_t holding = 0;
    for (const Function *function : all(mixesArrayAndSingle)) {
        const bool isHeld = holdsSingle(*function);
        holding += isHeld ? 1 : 0;
        const Operand &single = function->operands[function->operands[0].array ? 1 : 0];
        if ((single.transposed && !isHeld) || holdsSingleIfAligned(*function)) continue;
        for (const std::uint32_t size : literal::sizesOf(*function, {1, 4, 13}))
            for (const literal::Geometry geometry : {literal::packed, literal::spread, literal::backward}) {
                Call call(function->name, size, 3, geometry);
                call.layOver(single.name);
                expectSingle(call, isHeld);
            }
    }
    // Each in two layouts: three groups of vectors and one of linear combinations, of four sizes; of two orders four
    // groups of sums of matrices and eight of differences.
    EXPECT_EQ(holding, 2U * ((3U + 1U) * 4U + (4U + 8U) * 2U));
}

// Both pointers and both strides that are looked at lie on 16, or one of them does not.
TEST(ElementwiseSingle, IsHeldBySaxpyOfFourAndSixFloatsIfAllOfThemAreAligned) {
    struct Offsets {
        std::int32_t src1, src2AndDst, src1Stride, dstStride;
    };
    const std::vector<const Function *> functions = all(holdsSingleIfAligned);
    EXPECT_EQ(functions.size(), 2U);
    for (const Function *function : functions)
        for (const Offsets &off :
             {Offsets{0, 0, 0, 0}, Offsets{4, 0, 0, 0}, Offsets{0, 4, 0, 0}, Offsets{0, 0, 4, 0}, Offsets{0, 0, 0, 4},
              Offsets{8, 0, 0, 0}, Offsets{0, 8, 0, 0}, Offsets{0, 0, 8, 0}, Offsets{0, 0, 0, 8}}) {
            SCOPED_TRACE("off by " + std::to_string(off.src1) + " " + std::to_string(off.src2AndDst) + " " +
                         std::to_string(off.src1Stride) + " " + std::to_string(off.dstStride));
            Call call(function->name, 0, 3, literal::roomy); // with room for wider strides
            literal::moveBy(call, "src1", off.src1);
            literal::moveBy(call, "src2", off.src2AndDst);
            call.layOver("src2");
            call["src1"].objectStride = 32 + off.src1Stride;
            call["dst"].objectStride = 32 + off.dstStride;
            expectSingle(call, off.src1 + off.src2AndDst + off.src1Stride + off.dstStride == 0);
        }
}

// ---- Limits of arithmetic

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
    const bool matrix = isMatrix(function);
    for (const std::uint32_t size : literal::sizesOf(function, matrix ? std::vector{3U} : std::vector{1U, 5U, 21U})) {
        Call call(function.name, size, matrix ? 2 : 5);
        for (const auto &[name, value] : values)
            if (name.starts_with("val")) call.setConstant(name, value);
            else literal::setAll(call, name, value);
        const SettingScope scope(setting);
        SCOPED_TRACE(support::describe(setting));
        literal::expectEverywhere(call, expected);
    }
}

// ---- Sums, differences and products of two numbers

struct Pair {
    Of types;
    Setting setting;
    double left, right, expected;
};

void expectPairs(std::string_view operation, std::span<const Pair> pairs, double signOfRight = 1) {
    for (const Function *function : all()) {
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
