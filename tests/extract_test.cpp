// Extract: dense blocks out of every layout, the ways in which its forms transpose or do not, and the five forms that
// take their arguments as they are.
#include "support/family_test.h"

namespace {

using namespace literal::names;

std::vector<const Function *> all(bool (*wanted)(const Function &) = isAny) {
    return literal::members("extract", wanted);
}

// The forms whose shift is a parameter and nothing else.
bool leavesShiftOut(const Function &function) { return isException(function, "extract-ignored-shift"); }

// Transposed in deed, not only in name.
bool transposes(const Function &function) {
    return function.group == "mT" || (function.group == "maT" && function.layout == "LS2");
}

// An object's elements are 10 i + j + 1 for row i and column j, and 100 more for each object before it.
double number(std::uint32_t n, std::uint32_t i, std::uint32_t j) { return 100.0 * n + 10.0 * i + j + 1; }

void fill(Call &call) {
    const literal::Place &place = call["src"];
    if (leavesShiftOut(call.function())) call["src"].shift = 0;
    for (std::uint32_t n = 0; n < call.count(); ++n)
        for (std::uint32_t i = 0; i < place.rows; ++i)
            for (std::uint32_t j = 0; j < place.cols; ++j) call.set("src", n, i, j, number(n, i, j));
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

const literal::Example example{fill, [](Call &, std::uint32_t) {}};

TEST(Extract, HasExactlyTheseTwentySevenForms) {
    const std::set<std::string> expected{
        "vonkExtract_v_32f_S2",    "vonkExtract_v_32f_P",     "vonkExtract_v_64f_S2",   "vonkExtract_v_64f_P",
        "vonkExtract_va_32f_S2",   "vonkExtract_va_32f_PS2",  "vonkExtract_va_32f_LS2", "vonkExtract_va_64f_S2",
        "vonkExtract_va_64f_PS2",  "vonkExtract_va_64f_LS2",  "vonkExtract_m_32f_S2",   "vonkExtract_m_32f_P",
        "vonkExtract_m_64f_S2",    "vonkExtract_m_64f_P",     "vonkExtract_mT_32f_S2",  "vonkExtract_mT_32f_P",
        "vonkExtract_mT_64f_P",    "vonkExtract_ma_32f_S2",   "vonkExtract_ma_32f_PS2", "vonkExtract_ma_32f_LS2",
        "vonkExtract_ma_64f_S2",   "vonkExtract_ma_64f_PS2",  "vonkExtract_ma_64f_LS2", "vonkExtract_maT_32f_PS2",
        "vonkExtract_maT_32f_LS2", "vonkExtract_maT_64f_PS2", "vonkExtract_maT_64f_LS2"};
    std::set<std::string> names;
    for (const Function *function : all()) names.insert(function->name);
    EXPECT_EQ(names, expected);
}

TEST(Extract, GathersEveryElementInEveryFormAndGeometry) {
    for (const Function *function : all())
        for (const Geometry geometry : {literal::packed, literal::spread, literal::backward})
            for (const std::uint32_t size : {1U, 2U, 3U, 9U})
                for (const std::uint32_t count : {1U, 3U}) {
                    Call call(function->name, size, count, geometry);
                    fill(call);
                    EXPECT_EQ(call.run(), vonkOk);
                    EXPECT_EQ(call.results(), gathered(call));
                    EXPECT_FALSE(call.strayWrites());
                }
}

// ---- Rows and columns of a matrix that is no square: 3 columns and 2 rows

std::vector<double> firstResults(Call &call, std::size_t count) {
    std::vector<double> results = call.results();
    results.resize(count);
    return results;
}

void expectOblong(const Function &function, const std::vector<double> &expected) {
    Call call(function.name, 3);
    fill(call);
    call.pass("rows", 2);
    EXPECT_EQ(call.run(), vonkOk);
    EXPECT_EQ(firstResults(call, 6), expected);
}

TEST(ExtractOfMatrices, TakesRowsAndColumnsOfTheResultButForTransposedTables) {
    for (const Function *function : all()) {
        if (!function->operands.front().matrix) continue;
        if (leavesShiftOut(*function)) expectOblong(*function, {1, 11, 2, 12, 3, 13}); // those of the table
        else if (transposes(*function)) expectOblong(*function, {1, 11, 21, 2, 12, 22});
        else expectOblong(*function, {1, 2, 3, 11, 12, 13});
    }
}

TEST(ExtractOfMatrices, DoesNotTransposeArraysInTables) {
    for (const char *type : {"32f", "64f"}) {
        Call named(std::string("vonkExtract_maT_") + type + "_PS2", 3, 2);
        Call plain(std::string("vonkExtract_ma_") + type + "_PS2", 3, 2);
        for (Call *call : {&named, &plain}) {
            fill(*call);
            EXPECT_EQ(call->run(), vonkOk);
        }
        EXPECT_EQ(named.results(), plain.results());
        EXPECT_EQ(named.results()[1], number(0, 0, 1));
    }
}

TEST(ExtractOfMatrices, NeverAddsTheShiftOfATransposedTable) {
    for (const Function *function : all()) {
        if (!leavesShiftOut(*function)) continue;
        for (const std::uint32_t shift : {0U, 8U, 0xfffffff0U, 0x7ffffff1U}) {
            SCOPED_TRACE(function->name + ", shift " + std::to_string(shift));
            Call call(function->name, 3);
            fill(call);
            call.pass("srcShift", shift);
            // The entries lead to the elements themselves, as they were laid out with another shift.
            for (std::uint32_t k = 0; k < 9; ++k) call.setAt(call["src"].entries[k], number(0, k / 3, k % 3));
            EXPECT_EQ(call.run(), vonkOk);
            EXPECT_EQ(call.results(), gathered(call));
        }
    }
}

TEST(ExtractOfVectors, ReadsAnArrayAsTheRowsOfAMatrix) {
    for (const char *type : {"32f", "64f"}) {
        Call array(std::string("vonkExtract_va_") + type + "_S2", 3, 3, literal::spread);
        fill(array);
        EXPECT_EQ(array.run(), vonkOk);
        EXPECT_EQ(array.results(), (std::vector<double>{1, 2, 3, 101, 102, 103, 201, 202, 203}));
    }
}

// ---- Arguments

// Without elements they look at no pointer. Matrices in a table multiply their sizes, in 32 bits.
TEST(ExtractInTheTrustingForms, HasNothingToDoForSizesOfZeroWhateverThePointersAre) {
    struct Sizes {
        std::uint32_t cols, rows;
        bool isProduct;
    };
    for (const Function *function : all()) {
        if (!literal::isException(*function, "extract-unchecked")) continue;
        for (const Sizes &sizes : {Sizes{0, 5, false}, Sizes{5, 0, false}, Sizes{0x10000, 0x10000, true}}) {
            if (sizes.isProduct && function->group != "m") continue;
            Call call(function->name, 3);
            call.pass("src", 0);
            call.pass("dst", 0);
            call.pass("len", 0);
            call.pass("cols", sizes.cols);
            call.pass("rows", sizes.rows);
            EXPECT_EQ(call.run(), vonkOk);
            EXPECT_TRUE(call.changedNothing());
        }
    }
}

// ---- Bits and overlap

TEST(Extract, MakesSignallingDoublesQuietAndLeavesFloatsAlone) {
    constexpr std::uint64_t signalling = 0x7ff0000000012345;
    constexpr std::uint64_t quiet = 0x7ff8000000012345;
    constexpr std::uint32_t signallingFloat = 0x7f812345;
    for (const Function *function : all()) {
        const bool wide = function->type == Type::real64;
        Call call(function->name, 3);
        fill(call);
        if (wide) std::memcpy(call["src"].address(0, 0, 0), &signalling, 8);
        else std::memcpy(call["src"].address(0, 0, 0), &signallingFloat, 4);
        EXPECT_EQ(call.run(), vonkOk);
        std::uint64_t moved = 0;
        std::memcpy(&moved, call.block("dst").address, wide ? 8 : 4);
        EXPECT_EQ(moved, wide ? quiet : signallingFloat);
    }
}

// Packed elements are pulled one place on, each over the next.
TEST(Extract, GoesForwardWhereTheBlockOverlapsTheSource) {
    for (const char *name : {"vonkExtract_v_32f_S2", "vonkExtract_v_64f_S2"}) {
        Call call(name, 4);
        fill(call);
        const literal::Place &source = call["src"];
        call.pass("dst", reinterpret_cast<std::uintptr_t>(source.origin + source.elementSize));
        EXPECT_EQ(call.run(), vonkOk);
        EXPECT_EQ(call.get("src", 0), (std::vector<double>(4, 1))) << name;
    }
}

} // namespace
