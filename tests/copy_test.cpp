// Copy: every pair of layouts, the sizes that it does not test, the form that reads through the other table, and what
// becomes of a signalling NaN on the way.
#include "support/family_test.h"

namespace {

using namespace literal::names;

const std::vector<std::uint32_t> sizes{1, 2, 3, 8, 13};

std::vector<const Function *> all(bool (*wanted)(const Function &) = isAny) { return literal::members("copy", wanted); }

// Vectors from table to table.

bool readsOwnTable(const Function &function) { return !isException(function, "copy-other-table"); }

// 1, 2, 3, ... over all objects.
double number(Call &call, std::uint32_t n, std::uint32_t k) {
    const literal::Place &place = call["src"];
    return n * place.rows * place.cols + k + 1;
}

std::vector<double> numbers(Call &call, std::uint32_t n) {
    std::vector<double> values;
    for (std::uint32_t k = 0; k < call["src"].rows * call["src"].cols; ++k) values.push_back(number(call, n, k));
    return values;
}

void fill(Call &call) {
    for (std::uint32_t n = 0; n < call.count(); ++n) call.set("src", n, numbers(call, n));
}

void expectDone(Call &call, std::uint32_t n) { EXPECT_EQ(call.get("dst", n), numbers(call, n)); }

const literal::Example example{fill, expectDone};

TEST(Copy, MovesEveryElementInEveryFormAndGeometry) {
    for (const Function *function : all(readsOwnTable)) literal::expectResults(*function, example, sizes);
}

TEST(Copy, LeavesTheDataAsTheyWereInPlace) {
    for (const Function *function : all(readsOwnTable))
        if (function->layout[0] == function->layout[1]) literal::expectInPlaceResults(*function, example, "src", sizes);
}

TEST(Copy, GoesForwardWhereTheOperandsOverlap) {
    for (const char *name : {"vonkCopy_va_32f_SS", "vonkCopy_va_64f_LL", "vonkCopy_ma_32f_SL", "vonkCopy_ma_64f_SS"}) {
        SCOPED_TRACE(name);
        Call call(name, 4);
        fill(call);
        call["dst"].moveTo(call["src"].origin + call["src"].elementSize);
        EXPECT_EQ(call.run(), vonkOk);
        const std::vector<double> result = call.get("dst", 0);
        EXPECT_EQ(result, std::vector<double>(result.size(), 1));
    }
}

// In a table of positions, rows follow one another by the columns that the call has.
TEST(Copy, CountsPositionsByTheColumnsOfTheCall) {
    for (const char *name : {"vonkCopy_ma_32f_SP", "vonkCopy_ma_64f_SP"}) {
        Call call(name, 3);
        fill(call);
        call.pass("cols", 2);
        const std::vector<double> before = call.get("dst", 0);
        EXPECT_EQ(call.run(), vonkOk);
        std::vector<double> expected{1, 2, 4, 5, 7, 8};
        expected.insert(expected.end(), before.begin() + 6, before.end());
        EXPECT_EQ(call.get("dst", 0), expected) << name;
    }
}

// ---- The form that reads through the wrong table

TEST(CopyOfVectorsBetweenTables, ReadsThroughTheTableOfTheDestination) {
    for (const Function *function : all()) {
        if (readsOwnTable(*function)) continue;
        for (const bool nullEntries : {false, true}) {
            Call call(function->name, 3, 2, literal::spread);
            fill(call);
            literal::Place &destination = call["dst"];
            // The source lies one object behind the two that are written.
            for (std::byte *&entry : destination.entries) entry -= std::ptrdiff_t{destination.objectStride};
            call.pass("srcShift", static_cast<std::uint32_t>(destination.shift + 2 * destination.objectStride));
            call.pass("srcObjStride", 0);
            for (std::uint32_t j = 0; j < 3; ++j)
                call.setAt(destination.entries[j] + destination.shift + 2 * std::ptrdiff_t{destination.objectStride},
                           50.0 + j);
            if (nullEntries) literal::blankEntries(call, "src");
            EXPECT_EQ(call.run(), vonkOk);
            for (std::uint32_t n = 0; n < 2; ++n) EXPECT_EQ(call.get("dst", n), (std::vector<double>{50, 51, 52}));
        }
    }
}

TEST(CopyOfMatricesBetweenTables, ReadsThroughItsOwnTable) {
    for (const char *name : {"vonkCopy_ma_32f_PP", "vonkCopy_ma_64f_PP"})
        literal::expectResults(literal::function(name), example, {2, 3});
}

// ---- Bits

// Doubles pass through the floating-point unit, which makes a signalling NaN quiet and keeps the rest of it. Floats
// move as words.
TEST(Copy, MakesSignallingDoublesQuietAndLeavesFloatsAlone) {
    constexpr std::uint64_t signalling = 0xfff0000000012345;
    constexpr std::uint64_t quiet = 0xfff8000000012345;
    constexpr std::uint32_t signallingFloat = 0xff812345;
    for (const Function *function : all(readsOwnTable)) {
        Call call(function->name, 2, 2);
        fill(call);
        const bool wide = function->type == Type::real64;
        for (std::uint32_t n = 0; n < 2; ++n) {
            if (wide) std::memcpy(call["src"].address(n, 0, 1), &signalling, 8);
            else std::memcpy(call["src"].address(n, 0, 1), &signallingFloat, 4);
        }
        EXPECT_EQ(call.run(), vonkOk);
        for (std::uint32_t n = 0; n < 2; ++n) {
            std::uint64_t moved = 0;
            std::memcpy(&moved, call["dst"].address(n, 0, 1), wide ? 8 : 4);
            EXPECT_EQ(moved, wide ? quiet : signallingFloat);
        }
    }
}

} // namespace
