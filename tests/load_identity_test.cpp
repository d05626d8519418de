// LoadIdentity: true identities for one object, the ones that run on over all objects, strides that are replaced, and
// signed sizes.
#include "support/family_test.h"

namespace {

using namespace literal::names;

std::vector<const Function *> all(bool (*wanted)(const Function &) = isAny) {
    return literal::members("identity", wanted);
}

std::vector<double> identity(std::uint32_t order) {
    std::vector<double> elements(std::size_t{order} * order);
    for (std::uint32_t i = 0; i < order; ++i) elements[std::size_t{i} * (order + 1)] = 1;
    return elements;
}

// Compared as unsigned numbers, negative strides are large ones, and stand.
TEST(LoadIdentity, LoadsOneIdentityInEveryFormAndGeometry) {
    const literal::Example example{
        [](Call &) {}, [](Call &call, std::uint32_t) { EXPECT_EQ(call.get("dst", 0), identity(call.size())); }};
    for (const Function *function : all())
        for (const Geometry geometry : {literal::packed, literal::spread, literal::backward})
            for (const std::uint32_t order : {1U, 2U, 3U, 7U}) {
                Call call(function->name, order, 1, geometry);
                EXPECT_EQ(call.run(), vonkOk);
                literal::expectAllDone(call, example);
            }
}

// ---- Ones behind the first object

// Rows with room behind them: the ones of object 1 stand in columns 3 to 5.
TEST(LoadIdentityOfTwo, PutsTheOnesOfTheSecondBehindItsSquare) {
    for (const Function *function : all()) {
        if (function->layout == "P") continue;
        Call call(function->name, 3, 2, literal::roomy);
        EXPECT_EQ(call.run(), vonkOk);
        EXPECT_EQ(call.get("dst", 0), identity(3));
        EXPECT_EQ(call.get("dst", 1), std::vector<double>(9, 0));
        for (std::uint32_t i = 0; i < 3; ++i) EXPECT_EQ(call.getAt(call["dst"].address(1, i, 3 + i)), 1) << i;
    }
}

// In a table row i of object 1 has its one in entry 3 i + 3 + i: 3, 7 and 11, of which only the last lies behind it.
// The first two are elements of the second and the third row, and the zeros of these come later.
TEST(LoadIdentityOfTwo, FollowsTheTableBehindItsEnd) {
    for (const char *name : {"vonkLoadIdentity_ma_32f_P", "vonkLoadIdentity_ma_64f_P"}) {
        Call call(name, 3, 2);
        literal::Place &place = call["dst"];
        std::byte *const cell = call.spareCell(0);
        place.entries[11] = cell - place.shift - place.objectStride;
        EXPECT_EQ(call.run(), vonkOk);
        EXPECT_EQ(call.get("dst", 0), identity(3));
        EXPECT_EQ(call.get("dst", 1), std::vector<double>(9, 0));
        EXPECT_EQ(call.getAt(cell), 1);
    }
}

// Packed rows: a one behind its row is cleared by the next row, the last one stays.
TEST(LoadIdentityOfTwo, ClearsARowAheadOfItsOne) {
    Call call("vonkLoadIdentity_ma_32f_S", 2, 2);
    EXPECT_EQ(call.run(), vonkOk);
    EXPECT_EQ(call.get("dst", 0), identity(2));
    EXPECT_EQ(call.get("dst", 1), std::vector<double>(4, 0));
    EXPECT_EQ(call.getAt(call["dst"].address(1, 1, 3)), 1);
}

// ---- Strides

TEST(LoadIdentityStrides, AreReplacedWhereTheyAreTooSmall) {
    for (const char *name : {"vonkLoadIdentity_ma_32f_S", "vonkLoadIdentity_ma_32f_L", "vonkLoadIdentity_ma_64f_S"})
        for (const std::uint32_t small : {0U, 1U, 3U}) {
            SCOPED_TRACE(name);
            Call call(name, 3);
            call.pass("dstElemStride", small);
            call.pass("dstRowStride", std::uint64_t{2} * small);
            EXPECT_EQ(call.run(), vonkOk);
            EXPECT_EQ(call.get("dst", 0), identity(3)); // packed, as this call is laid out
            EXPECT_FALSE(call.strayWrites());
        }
}

// The row's clamp takes the size of an element, not the stride between elements.
TEST(LoadIdentityStrides, OfRowsFallBackToColumnsOfTheElementsSize) {
    Call call("vonkLoadIdentity_ma_32f_S", 2);
    std::byte *const origin = call["dst"].origin;
    call.pass("dstElemStride", 16);
    call.pass("dstRowStride", 0);
    EXPECT_EQ(call.run(), vonkOk);
    EXPECT_EQ(call.getAt(origin), 1);
    EXPECT_EQ(call.getAt(origin + 16), 0);
    EXPECT_EQ(call.getAt(origin + 8), 0); // row 1 begins 2 * 4 bytes on
    EXPECT_EQ(call.getAt(origin + 8 + 16), 1);
}

TEST(LoadIdentityStrides, OfObjectsAreReplacedInTables) {
    for (const char *name : {"vonkLoadIdentity_ma_32f_P", "vonkLoadIdentity_ma_64f_P"}) {
        Call call(name, 1, 2);
        call["dst"].entries[1] = call.spareCell(0);
        call.pass("dstObjStride", 3);
        EXPECT_EQ(call.run(), vonkOk);
        EXPECT_EQ(call.get("dst", 0), (std::vector<double>{1}));
        EXPECT_EQ(call.get("dst", 1), (std::vector<double>{0})) << "the next element, cleared";
    }
}

// Its elements may lie 4 bytes apart, and then the upper half of each is the lower half of the next: row 0 writes zeros
// at 0 and 4 and its one at 0; row 1, 16 bytes on, zeros at 16 and 20 and its one at 20.
TEST(LoadIdentityStrides, OfDoublesInListsMayBeFour) {
    for (const std::uint32_t stride : {0U, 4U}) {
        Call call("vonkLoadIdentity_ma_64f_L", 2);
        std::byte *const origin = call["dst"].origin;
        call.pass("dstElemStride", stride);
        call.pass("dstRowStride", 0);
        std::byte expected[32];
        std::memcpy(expected, origin, sizeof expected);
        const double zero = 0, one = 1;
        std::memcpy(expected + 4, &zero, 8);
        std::memcpy(expected, &one, 8);
        std::memcpy(expected + 16, &zero, 8);
        std::memcpy(expected + 20, &one, 8);
        EXPECT_EQ(call.run(), vonkOk);
        EXPECT_EQ(std::memcmp(origin, expected, sizeof expected), 0);
    }
}

// ---- Sizes

TEST(LoadIdentity, LeavesObjectsWithoutRowsUntouched) {
    for (const Function *function : all())
        for (const std::uint32_t rows : {0U, 0xffffffffU, 0x80000000U}) {
            Call call(function->name, 3, 2);
            literal::blankEntries(call);
            call.pass("rows", rows);
            EXPECT_EQ(call.run(), vonkOk);
            EXPECT_TRUE(call.changedNothing());
        }
}

// With no columns the ones are written, and no zeros: on the diagonal by the strides of rows and elements, and in a
// table through entry i of row i.
TEST(LoadIdentity, WritesTheOnesWithoutColumns) {
    for (const Function *function : all()) {
        Call call(function->name, 3, 1, literal::spread);
        std::vector<double> expected = call.get("dst", 0);
        for (const std::size_t k : {0U, 1U, 2U}) expected[isTabled(*function) ? k : 4 * k] = 1;
        call.pass("cols", 0);
        EXPECT_EQ(call.run(), vonkOk);
        EXPECT_EQ(call.get("dst", 0), expected);
    }
}

} // namespace
