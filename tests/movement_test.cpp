// Copy and extract: every pair of layouts and dense blocks out of every layout, which forms transpose and which do not,
// the copies that read through the other table, the extracts that take their arguments as they are, and what becomes of
// a signalling NaN on the way.
#include "support/family_test.h"

namespace {

using namespace literal::names;

std::vector<const Function *> copies(bool (*wanted)(const Function &) = isAny) {
    return literal::members("copy", wanted);
}

std::vector<const Function *> extracts(bool (*wanted)(const Function &) = isAny) {
    return literal::members("extract", wanted);
}

bool readsOtherTable(const Function &function) { return isException(function, "copy-other-table"); }
bool readsOwnTable(const Function &function) { return !readsOtherTable(function); }

// The shift is a parameter and nothing else.
bool leavesShiftOut(const Function &function) { return isException(function, "extract-ignored-shift"); }

double number(std::uint32_t n, std::uint32_t i, std::uint32_t j) { return 1000.0 * n + 20.0 * i + j + 1; }

void fill(Call &call) {
    literal::Place &place = call["src"];
    for (std::uint32_t n = 0; n < call.count(); ++n)
        for (std::uint32_t i = 0; i < place.rows; ++i)
            for (std::uint32_t j = 0; j < place.cols; ++j) call.set("src", n, i, j, number(n, i, j));
}

// ---- Copy

const std::vector<std::uint32_t> sizes{1, 2, 3, 8, 13};

void expectCopied(Call &call, std::uint32_t n) {
    for (std::uint32_t i = 0; i < call["dst"].rows; ++i)
        for (std::uint32_t j = 0; j < call["dst"].cols; ++j) EXPECT_EQ(call.get("dst", n, i, j), number(n, i, j));
}

const literal::Example example{fill, expectCopied};

TEST(Copy, MovesEveryElementInEveryFormAndGeometry) {
    for (const Function *function : copies(readsOwnTable)) literal::expectResults(*function, example, sizes);
}

TEST(Copy, LeavesTheDataAsTheyWereInPlace) {
    for (const Function *function : copies(readsOwnTable))
        if (function->layout[0] == function->layout[1]) literal::expectInPlaceResults(*function, example, "src", sizes);
}

TEST(Copy, GoesForwardWhereTheOperandsOverlap) {
    for (const char *name : {"vonkCopy_va_32f_SS", "vonkCopy_va_64f_LL", "vonkCopy_ma_32f_SL", "vonkCopy_ma_64f_SS"}) {
        Call call(name, 4);
        fill(call);
        call["dst"].moveTo(call["src"].origin + call["src"].elementSize);
        literal::expectEverywhere(call, 1);
    }
}

// In a table of positions, rows follow one another by the columns that the call has.
TEST(Copy, CountsPositionsByTheColumnsOfTheCall) {
    for (const char *name : {"vonkCopy_ma_32f_SP", "vonkCopy_ma_64f_SP"}) {
        Call call(name, 3);
        call.set("src", 0, {1, 2, 3, 4, 5, 6, 7, 8, 9});
        call.set("dst", 0, std::vector<double>(9, -1));
        call.pass("cols", 2);
        EXPECT_EQ(call.run(), vonkOk);
        EXPECT_EQ(call.get("dst", 0), (std::vector<double>{1, 2, 4, 5, 7, 8, -1, -1, -1}));
    }
}

// Its entries may be null, then.
TEST(CopyOfVectorsBetweenTables, ReadsThroughTheTableOfTheDestination) {
    for (const Function *function : copies(readsOtherTable))
        for (const bool nullEntries : {false, true}) {
            Call call(function->name, 3, 2, literal::spread);
            fill(call);
            literal::Place &destination = call["dst"];
            // The source lies one object behind the two that are written.
            for (std::byte *&entry : destination.entries) entry -= std::ptrdiff_t{destination.objectStride};
            const std::int32_t shift = destination.shift + 2 * destination.objectStride;
            call.pass("srcShift", static_cast<std::uint32_t>(shift));
            call.pass("srcObjStride", 0);
            for (std::uint32_t j = 0; j < 3; ++j) call.setAt(destination.entries[j] + shift, 50.0 + j);
            if (nullEntries) literal::blankEntries(call, "src");
            EXPECT_EQ(call.run(), vonkOk);
            for (std::uint32_t n = 0; n < 2; ++n) EXPECT_EQ(call.get("dst", n), (std::vector<double>{50, 51, 52}));
        }
}

// ---- Extract

// In deed, not only in name: arrays in tables are not.
bool transposes(const Function &function) {
    return function.group == "mT" || (function.group == "maT" && function.layout == "LS2");
}

// Of square matrices and of vectors.
std::vector<double> gathered(Call &call) {
    const literal::Place &place = call["src"];
    const bool swapped = transposes(call.function());
    std::vector<double> values;
    for (std::uint32_t n = 0; n < call.count(); ++n)
        for (std::uint32_t i = 0; i < place.rows; ++i)
            for (std::uint32_t j = 0; j < place.cols; ++j)
                values.push_back(swapped ? number(n, j, i) : number(n, i, j));
    return values;
}

void fillForExtract(Call &call) {
    if (leavesShiftOut(call.function())) call["src"].shift = 0;
    fill(call);
}

TEST(Extract, GathersEveryElementInEveryFormAndGeometry) {
    for (const Function *function : extracts())
        for (const Geometry geometry : {literal::packed, literal::spread, literal::backward})
            for (const std::uint32_t size : {1U, 2U, 3U, 9U})
                for (const std::uint32_t count : {1U, 3U}) {
                    Call call(function->name, size, count, geometry);
                    fillForExtract(call);
                    EXPECT_EQ(call.run(), vonkOk);
                    EXPECT_EQ(call.results(), gathered(call));
                    EXPECT_FALSE(call.strayWrites());
                }
}

// Rows and columns are those of the result, but for transposed tables those of the table.
TEST(Extract, TakesTwoRowsOfThreeColumns) {
    for (const Function *function : extracts()) {
        if (!function->operands.front().matrix) continue;
        Call call(function->name, 3);
        call["src"].shift = leavesShiftOut(*function) ? 0 : call["src"].shift;
        call.set("src", 0, {1, 2, 3, 11, 12, 13, 21, 22, 23});
        call.pass("rows", 2);
        EXPECT_EQ(call.run(), vonkOk);
        std::vector<double> results = call.results();
        results.resize(6);
        EXPECT_EQ(results, leavesShiftOut(*function) ? (std::vector<double>{1, 11, 2, 12, 3, 13})
                           : transposes(*function)   ? (std::vector<double>{1, 11, 21, 2, 12, 22})
                                                     : (std::vector<double>{1, 2, 3, 11, 12, 13}));
    }
}

TEST(Extract, NeverAddsTheShiftOfATransposedTable) {
    for (const Function *function : extracts(leavesShiftOut))
        for (const std::uint32_t shift : {8U, 0xfffffff0U, 0x7ffffff1U}) {
            Call call(function->name, 3);
            fillForExtract(call);
            call.pass("srcShift", shift);
            // The entries lead to the elements themselves, as they were laid out with another shift.
            for (std::uint32_t k = 0; k < 9; ++k) call.setAt(call["src"].entries[k], number(0, k / 3, k % 3));
            EXPECT_EQ(call.run(), vonkOk);
            EXPECT_EQ(call.results(), gathered(call));
        }
}

// Without elements they look at no pointer. Matrices in a table multiply their sizes, in 32 bits.
TEST(ExtractInTheTrustingForms, HasNothingToDoForSizesOfZeroWhateverThePointersAre) {
    for (const Function *function : extracts()) {
        if (!isException(*function, "extract-unchecked")) continue;
        for (const auto &[cols, rows] : {std::pair{0U, 5U}, {5U, 0U}, {0x10000U, 0x10000U}}) {
            if (cols == rows && function->group != "m") continue;
            Call call(function->name, 3);
            for (const char *parameter : {"src", "dst", "len"}) call.pass(parameter, 0);
            call.pass("cols", cols);
            call.pass("rows", rows);
            EXPECT_EQ(call.run(), vonkOk);
            EXPECT_TRUE(call.changedNothing());
        }
    }
}

// Packed elements are pulled one place on, each over the next.
TEST(Extract, GoesForwardWhereTheBlockOverlapsTheSource) {
    for (const char *name : {"vonkExtract_v_32f_S2", "vonkExtract_v_64f_S2"}) {
        Call call(name, 4);
        fill(call);
        const literal::Place &source = call["src"];
        call.pass("dst", wordOf(source.origin + source.elementSize));
        EXPECT_EQ(call.run(), vonkOk);
        EXPECT_EQ(call.get("src", 0), (std::vector<double>(4, 1))) << name;
    }
}

// ---- Bits

// Doubles pass through the floating-point unit, which makes a signalling NaN quiet and keeps the rest of it. Floats
// move as words.
void expectNanMoved(Call &call, std::byte *from, const std::byte *to) {
    constexpr std::uint64_t signalling = 0xfff0000000012345, quiet = 0xfff8000000012345;
    constexpr std::uint32_t signallingFloat = 0xff812345;
    const bool wide = isDouble(call.function());
    if (wide) std::memcpy(from, &signalling, 8);
    else std::memcpy(from, &signallingFloat, 4);
    EXPECT_EQ(call.run(), vonkOk);
    std::uint64_t moved = 0;
    std::memcpy(&moved, to, wide ? 8 : 4);
    EXPECT_EQ(moved, wide ? quiet : signallingFloat);
}

TEST(Copy, MakesSignallingDoublesQuietAndLeavesFloatsAlone) {
    for (const Function *function : copies(readsOwnTable))
        for (const std::uint32_t n : {0U, 1U}) {
            Call call(function->name, 2, 2);
            fill(call);
            expectNanMoved(call, call["src"].address(n, 0, 1), call["dst"].address(n, 0, 1));
        }
}

TEST(Extract, MakesSignallingDoublesQuietAndLeavesFloatsAlone) {
    for (const Function *function : extracts()) {
        Call call(function->name, 3);
        fillForExtract(call);
        expectNanMoved(call, call["src"].address(0, 0, 0), call.block("dst").address);
    }
}

} // namespace
