// Dot products: numbers by hand in every form, the order of the sum wherever it can be told, where a sum of doubles is
// rounded on its way, and results that lie over their sources.
#include "support/family_test.h"

namespace {

using namespace literal::names;

std::vector<const Function *> all(bool (*wanted)(const Function &) = isAny) {
    return literal::members("dot-product", wanted);
}

const std::vector<std::uint32_t> lengths{1, 2, 3, 7, 10, 11, 12, 19, 21, 40};

// 2^24, beside which a float loses a 1.
constexpr double big = 0x1p24;

// ---- Results

double left(std::uint32_t n, std::uint32_t j) { return 3.0 * n + j + 1; }
double right(std::uint32_t n, std::uint32_t j) { return 2.0 * j - 5 - n; }

void fill(Call &call) {
    for (std::uint32_t j = 0; j < call.size(); ++j) {
        for (std::uint32_t n = 0; n < call.objectsOf("src1"); ++n) call.set("src1", n, 0, j, left(n, j));
        for (std::uint32_t n = 0; n < call.objectsOf("src2"); ++n) call.set("src2", n, 0, j, right(n, j));
    }
}

void expectDone(Call &call, std::uint32_t n) {
    double sum = 0; // of whole numbers, so that the order does not matter
    for (std::uint32_t j = 0; j < call.size(); ++j)
        sum += left(call.objectsOf("src1") == 1 ? 0 : n, j) * right(call.objectsOf("src2") == 1 ? 0 : n, j);
    EXPECT_EQ(call.get("dst", n, 0, 0), sum);
}

const literal::Example example{fill, expectDone};

TEST(DotProduct, AddsTheProductsInEveryFormAndGeometry) {
    for (const Function *function : all()) literal::expectResults(*function, example, lengths);
}

TEST(DotProduct, TakesAnyNumberOfObjects) {
    for (const Function *function : all(isArray)) literal::expectResultsOfAnyCount(*function, example, 5);
}

TEST(DotProduct, LetsNansAndInfinitiesThrough) {
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    for (const Function *function : all())
        for (const std::uint32_t size : literal::sizesOf(*function, {3, 20}))
            for (std::uint32_t j = 0; j < size; ++j)
                for (const double value : {infinity, nan}) {
                    SCOPED_TRACE(function->name + ", element " + std::to_string(j));
                    Call call(function->name, size, 5);
                    fill(call);
                    call.set("src1", 0, 0, j, value);
                    call.set("src2", 0, 0, j, -1);
                    ASSERT_EQ(call.run(), vonkOk);
                    literal::expectSame(-value, call.get("dst", 0, 0, 0), "the result");
                    for (std::uint32_t n = 1; n < call.count(); ++n)
                        EXPECT_TRUE(std::isfinite(call.get("dst", n, 0, 0)));
                }
}

// ---- The order of the sum

// Sets the products of every object.
void setProducts(Call &call, const std::vector<double> &products) {
    literal::setObjects(call, "src1", products);
    literal::setObjects(call, "src2", std::vector<double>(products.size(), 1));
}

TEST(DotProduct, StartsFromPlusZeroAtRunTimeSizeAndFromTheFirstProductAtFixedSize) {
    for (const Function *function : all())
        for (const std::uint32_t size : literal::sizesOf(*function, {1, 2, 10, 11, 40})) {
            Call call(function->name, size, 5);
            setProducts(call, std::vector<double>(size, -0.0));
            literal::expectEverywhere(call, function->order == 0 ? 0.0 : -0.0);
        }
}

// 2^24 + 1 stays 2^24, so from left to right nothing comes of the ones. In pairs two of them make a 2, which counts.
TEST(DotProductOrder, IsFromLeftToRightButForFoursOfFloatsBesideOneVector) {
    std::size_t inPairs = 0;
    for (const Function *function : all(isFloat)) {
        if (function->order == 0) continue;
        const bool pairs = isException(*function, "dot-pairs");
        inPairs += pairs ? 1 : 0;
        for (std::uint32_t count = 1; count <= 9; ++count) {
            Call call(function->name, 0, count);
            std::vector<double> products(call.size(), 1);
            products[0] = big;
            setProducts(call, products);
            literal::expectEverywhere(call, pairs ? big + 2 : big);
        }
    }
    EXPECT_EQ(inPairs, 2U);
}

// (2^24 + 1) - 2^24 = 0, but (2^24 - 2^24) + 1 = 1. Only whole blocks of four objects take the outer pair first, and
// only if the two sources, their strides and the result all lie on 16.
TEST(DotProductOrder, OfThreesOfFloatsInTwoArraysIsTheOuterPairFirstInAlignedBlocks) {
    struct Case {
        std::int32_t src1, src1Stride, src2, src2Stride, dst;
    };
    for (const Case &off :
         {Case{0, 0, 0, 0, 0}, Case{4, 0, 0, 0, 0}, Case{0, 4, 0, 0, 0}, Case{0, 0, 4, 0, 0}, Case{0, 0, 0, 4, 0},
          Case{0, 0, 0, 0, 4}, Case{8, 0, 0, 0, 0}, Case{0, 0, 0, 8, 0}, Case{0, 0, 0, 0, 1}, Case{0, -32, 0, 0, 0}})
        for (std::uint32_t count = 1; count <= 9; ++count) {
            SCOPED_TRACE("off by " + std::to_string(off.src1) + " " + std::to_string(off.src1Stride) + " " +
                         std::to_string(off.src2) + " " + std::to_string(off.src2Stride) + " " +
                         std::to_string(off.dst) + ", count " + std::to_string(count));
            Call call("vonkDotProduct_vava_32f_3x1", 0, count, {1, 5, true});
            literal::moveBy(call, "src1", off.src1 + (off.src1Stride < 0 ? 16 * static_cast<std::int32_t>(count) : 0));
            literal::moveBy(call, "src2", off.src2);
            literal::moveBy(call, "dst", off.dst);
            call["src1"].objectStride = 16 + off.src1Stride; // -32 makes it walk backwards
            call["src2"].objectStride = 16 + off.src2Stride;
            setProducts(call, {big, 1, -big});
            ASSERT_EQ(call.run(), vonkOk);
            const bool aligned = (off.src1 | off.src1Stride | off.src2 | off.src2Stride | off.dst) % 16 == 0;
            for (std::uint32_t n = 0; n < count; ++n)
                EXPECT_EQ(call.get("dst", n, 0, 0), aligned && n < count / 4 * 4 ? 1 : 0) << "object " << n;
        }
}

TEST(DotProductOrder, OfThreesOfFloatsIsFromLeftToRightEverywhereElse) {
    for (const Function *function : all(isFloat)) {
        if (function->order != 3 || isException(*function, "dot-aligned-order")) continue;
        Call call(function->name, 0, 9, {1, 4, false}); // 16 bytes from object to object where it is free
        setProducts(call, {big, 1, -big});
        literal::expectEverywhere(call, 0);
    }
}

// ---- The long form of floats on adjacent elements

// The sources lie so many bytes behind a boundary of 16.
double longSum(const std::vector<double> &products, std::ptrdiff_t offset1, std::ptrdiff_t offset2) {
    Call call("vonkDotProduct_vv_32f", static_cast<std::uint32_t>(products.size()));
    literal::moveBy(call, "src1", offset1);
    literal::moveBy(call, "src2", offset2);
    setProducts(call, products);
    EXPECT_EQ(call.run(), vonkOk);
    return call.get("dst", 0, 0, 0);
}

struct Row {
    std::vector<double> products;
    std::array<double, 4> expected; // with src2 at 0, 4, 8 and 12 bytes behind a boundary
    double leftToRight;
};

std::vector<double> onesBut(std::size_t length, std::size_t place, double value) {
    std::vector<double> products(length, 1);
    products[place] = value;
    return products;
}

std::vector<double> zerosBut(std::size_t length, const std::vector<std::pair<std::size_t, double>> &others) {
    std::vector<double> products(length, 0);
    for (const auto &[place, value] : others) products[place] = value;
    return products;
}

std::vector<Row> rows() {
    return {
        // From a boundary on, 2^24 takes its lane alone and loses the 1 of the second register: (2^24 + 2) + (2 + 2),
        // then 1 three times, which goes to 8 by way of the tie at 7 and stays there. 4 bytes behind it, three come
        // first, all eight of the block follow, and nothing is left over.
        {onesBut(11, 0, big), {big + 8, big + 6, big + 8, big + 8}, big},
        // 2^24 last: ten ones before it, but in the last lane of the one block, where it loses a 1, if three come
        // first:
        // ((3 + 1) + 1 + 2) + (2 + 2^24) is a tie at 9.
        {onesBut(11, 10, big), {big + 10, big + 8, big + 10, big + 10}, big + 10},
        // Lanes meet crosswise: (2^24 - 2^24) + (1 + 1). With three, two and one ahead of the block the first lane
        // holds
        // 2^24 + 1 - 2^24 + 1 = 1; 2^24 + 1 - 2^24 = 0 beside a 1; 2^24 + 1 = 2^24 beside -2^24 and across from a 1.
        {zerosBut(11, {{0, big}, {1, 1}, {2, -big}, {3, 1}}), {2, 1, 1, 0}, 1},
        // Two registers: 2^24 and the 1 at 8 fall on one lane, those at 4 and 12 on the same lane of the other. Off the
        // boundary those at 4 and 8 meet in one lane, and the last comes singly: 2^24 + 2 + 1 is a tie and goes to 4.
        {zerosBut(16, {{0, big}, {4, 1}, {8, 1}, {12, 1}}), {big + 2, big + 4, big + 4, big + 4}, big},
    };
}

TEST(DotProductLong, GroupsTheSumByTheAlignmentOfTheSecondSource) {
    for (const Row &row : rows())
        for (std::ptrdiff_t offset2 = 0; offset2 < 16; offset2 += 4)
            for (std::ptrdiff_t offset1 = 0; offset1 < 16; ++offset1) {
                SCOPED_TRACE("src1 at " + std::to_string(offset1) + ", src2 at " + std::to_string(offset2));
                EXPECT_EQ(longSum(row.products, offset1, offset2), row.expected.at(offset2 / 4));
            }
}

TEST(DotProductLong, AddsFromLeftToRightWhereTheSecondSourceIsOffTheGrid) {
    for (const Row &row : rows())
        for (const std::ptrdiff_t offset2 : {1, 2, 3, 5, 14})
            EXPECT_EQ(longSum(row.products, 0, offset2), row.leftToRight);
}

TEST(DotProductLong, AddsFromLeftToRightUpToTenElements) {
    for (std::ptrdiff_t offset2 = 0; offset2 < 16; offset2 += 4) {
        EXPECT_EQ(longSum(onesBut(10, 0, big), 0, offset2), big);
        EXPECT_EQ(longSum(onesBut(10, 9, big), 0, offset2), big + 8); // 9 + 2^24 is a tie
        EXPECT_EQ(longSum({3}, 0, offset2), 3);
    }
}

// ---- Doubles

// At 64 bits 1 + 2^-54 is a number of its own, and less 1 leaves 2^-54; as a double it is 1, and leaves 0.
bool passesThroughDouble(const Function &function) { return isException(function, "dot-odd-term"); }

TEST(DotProductOfDoubles, RoundsTheSumAheadOfAnOddTermInSomeFormsOfRunTimeSize) {
    std::size_t passing = 0;
    for (const Function *function : all(isDouble)) {
        passing += passesThroughDouble(*function);
        for (const std::uint32_t size : literal::sizesOf(*function, {3, 5, 4, 6}))
            for (const Precision precision : {Precision::bits53, Precision::bits64}) {
                Call call(function->name, size, 5);
                std::vector<double> products(call.size(), 0);
                products[0] = 1;
                products[1] = 0x1p-54;
                products.back() = -1; // the odd term, or the second of the last pair
                setProducts(call, products);
                const SettingScope scope({precision, Rounding::nearest});
                const bool isRounded =
                    precision == Precision::bits53 || (passesThroughDouble(*function) && size % 2 != 0);
                literal::expectEverywhere(call, isRounded ? 0 : 0x1p-54);
            }
    }
    EXPECT_EQ(passing, 3U + 2U);
}

// The square of a factor, less all but its last term.
void setSquareLess(Call &call, double factor, double leading) {
    std::vector<double> first(call.size()), second(call.size());
    first[0] = second[0] = factor;
    first[1] = -1;
    second[1] = leading;
    literal::setObjects(call, "src1", first);
    literal::setObjects(call, "src2", second);
}

// (1 + 2^-30)^2 - (1 + 2^-29) = 2^-60.
TEST(DotProductOfDoubles, LeavesProductsAsWideAsTheCallersPrecision) {
    for (const Function *function : all(isDouble))
        for (const std::uint32_t size : literal::sizesOf(*function, {2, 4}))
            for (const Precision precision : {Precision::bits53, Precision::bits64}) {
                Call call(function->name, size, 2);
                setSquareLess(call, 1 + 0x1p-30, 1 + 0x1p-29);
                const SettingScope scope({precision, Rounding::nearest});
                literal::expectEverywhere(call, precision == Precision::bits53 ? 0 : 0x1p-60);
            }
}

// (1 + 2^-12)^2 = 1 + 2^-11 + 2^-24 loses its last term ahead of the sum.
TEST(DotProductOfFloats, RoundsEveryProduct) {
    for (const Function *function : all(isFloat))
        for (const std::uint32_t size : literal::sizesOf(*function, {2, 10, 11, 24})) {
            Call call(function->name, size, 5);
            setSquareLess(call, 1 + 0x1p-12, 1 + 0x1p-11);
            literal::expectEverywhere(call, 0);
        }
}

// ---- Results over their sources

TEST(DotProductOverlap, DoesNoHarmInTheFirstElementOfTheOnlyObject) {
    for (const Function *function : all())
        for (const char *source : {"src1", "src2"})
            for (const std::uint32_t size : literal::sizesOf(*function, {1, 10, 20})) {
                SCOPED_TRACE(std::string("dst in ") + source);
                Call call(function->name, size, 1);
                fill(call);
                call["dst"].moveTo(call[source].address(0, 0, 0));
                ASSERT_EQ(call.run(), vonkOk);
                expectDone(call, 0);
            }
}

} // namespace
