// Transposes: numbers by hand in every form, the tables whose row lengths stand exchanged, bits that no arithmetic may
// touch, and calls in place.
#include "support/family_test.h"
#include "support/matrix_checks.h"

namespace {

using namespace literal::names;

std::vector<const Function *> all(bool (*wanted)(const Function &) = isAny) {
    return literal::members("transpose", wanted);
}

const std::vector<std::uint32_t> orders{1, 2, 3, 4, 7};

// ---- Results

double element(std::uint32_t n, std::uint32_t i, std::uint32_t j) { return 1000 * (n + 1) + 16.0 * i - j; }

void fill(Call &call) { literal::setElements(call, "src", call.size(), call.size(), element); }

void expectDone(Call &call, std::uint32_t n) {
    for (std::uint32_t i = 0; i < call["dst"].rows; ++i)
        for (std::uint32_t j = 0; j < call["dst"].cols; ++j)
            EXPECT_EQ(call.get("dst", n, i, j), element(n, j, i)) << "element " << i << ", " << j;
}

const literal::Example example{fill, expectDone};

TEST(Transpose, ExchangesRowsAndColumnsInEveryFormAndGeometry) {
    for (const Function *function : all()) literal::expectResults(*function, example, orders);
}

// The sizes are those of the source.
TEST(Transpose, TakesRowsAndColumnsOfTheSource) {
    for (const Function *function : all(isRunTime)) {
        if (isTabled(*function)) continue;
        for (const auto &[rows, cols] : {std::pair{2U, 3U}, {3U, 2U}, {1U, 5U}, {5U, 1U}, {5U, 2U}}) {
            SCOPED_TRACE(std::to_string(rows) + " by " + std::to_string(cols));
            Call call(function->name, 5, 2, literal::spread);
            literal::makeRectangular(call, rows, cols);
            call["dst"].rows = cols;
            call["dst"].cols = rows;
            literal::setElements(call, "src", rows, cols, element);
            ASSERT_EQ(call.run(), vonkOk);
            literal::expectAllDone(call, example);
        }
    }
}

// Of 3 by 3 entries, which are 1 to 9 and 100 more in each object.
void tell(Call &call, std::uint32_t cols, std::uint32_t rows) {
    call.pass("cols", cols);
    call.pass("rows", rows);
    literal::setElements(call, "src", 3, 3, [](auto n, auto i, auto j) { return 100.0 * n + 3 * i + j + 1; });
    literal::setAll(call, "dst", -1);
}

// Three rows of two: entries 0 1, 3 4, 6 7 go to 0 2, 1 3, 2 4. The third row overwrites what (0, 1) has left at 2. The
// other way round, of two rows of three, entries 0 1 2, 2 3 4 go to 0 3 6, 1 4 7.
TEST(TransposeTables, HaveTheirRowLengthsExchanged) {
    std::size_t called = 0;
    for (const Function *function : all(isRunTime)) {
        if (!isTabled(*function)) continue;
        Call call(function->name, 3, 2);
        tell(call, 2, 3);
        ASSERT_EQ(call.run(), vonkOk);
        for (std::uint32_t n = 0; n < call.count(); ++n) {
            std::vector<double> expected{1, 4, 7, 5, 8, -1, -1, -1, -1}; // of entries 0, 3, 6, 4, 7
            for (std::uint32_t k = 0; k < 5; ++k) expected[k] += 100 * n;
            EXPECT_EQ(call.get("dst", n), expected);
        }
        tell(call, 3, 2);
        ASSERT_EQ(call.run(), vonkOk);
        EXPECT_EQ(call.get("dst", 0), (std::vector<double>{1, 3, -1, 2, 4, -1, 3, 5, -1}));
        ++called;
    }
    EXPECT_EQ(called, 2U * 3U); // P of single matrices, P and PS2 of arrays, both types
}

// Of a single matrix the entries that are used are looked at, beyond those that the sizes count.
TEST(TransposeTables, OfASingleMatrixAreLookedAtWhereTheyAreUsed) {
    for (const char *name : {"vonkTranspose_m_32f_P", "vonkTranspose_m_64f_P"})
        for (const std::size_t entry : {7U, 5U}) {
            Call call(name, 3);
            tell(call, 2, 3);
            call["src"].entries[entry] = nullptr;
            EXPECT_EQ(call.run(), entry == 7 ? vonkErrNullPtr : vonkOk);
            EXPECT_EQ(call.get("dst", 0), (std::vector<double>{1, 4, 7, 5, entry == 7 ? -1.0 : 8.0, -1, -1, -1, -1}));
        }
}

// Of an array as many as there are elements are looked at up front, used or not.
TEST(TransposeTables, OfAnArrayAreLookedAtAsFarAsTheSizesCount) {
    for (const char *name : {"vonkTranspose_ma_32f_P", "vonkTranspose_ma_64f_PS2"})
        for (const char *operand : {"src", "dst"})
            for (std::size_t entry = 0; entry < 9; ++entry) {
                SCOPED_TRACE(std::string(operand) + "[" + std::to_string(entry) + "]");
                Call call(name, 3, 2);
                tell(call, 2, 3);
                EXPECT_EQ(literal::runThroughNull(call, operand, entry), entry < 6 ? vonkErrNullPtr : vonkOk);
                EXPECT_EQ(call.get("dst", 1, 1, 1), entry < 6 ? -1 : 108); // entry 4, of entry 7
            }
}

// ---- Bits

// NaNs of either kind with payloads and signs, zeros with signs, denormals, in each place in turn.
template <class Bits> void expectBitsMoved(const Function &function, const std::vector<Bits> &patterns) {
    Call call(function.name, 3);
    for (const Bits pattern : patterns)
        for (std::uint32_t i = 0; i < call.size(); ++i)
            for (std::uint32_t j = 0; j < call.size(); ++j) {
                std::memcpy(call["src"].address(0, i, j), &pattern, sizeof pattern);
                ASSERT_EQ(call.run(), vonkOk);
                EXPECT_EQ(std::memcmp(call["dst"].address(0, j, i), &pattern, sizeof pattern), 0) << i << ", " << j;
            }
}

TEST(Transpose, LeavesEveryBitAsItIs) {
    for (const Function *function : all())
        if (isFloat(*function))
            expectBitsMoved<std::uint32_t>(
                *function, {0x7fa12345, 0xff812345, 0x7fc54321, 0x80000000, 0x00000001, 0xffffffff, 0x7f800001});
        else
            expectBitsMoved<std::uint64_t>(*function, {0x7ff4123456789abc, 0xfff0000000000001, 0x7ff8765432100000,
                                                       0x8000000000000000, 0x0000000000000001, 0xffffffffffffffff,
                                                       0x7ff0000080000000});
}

// ---- In place

// 1 2 / 3 4: the 2 goes over the 3 before that is read.
TEST(TransposeInPlace, GoesElementByElement) {
    std::size_t called = 0;
    for (const Function *function : all(isRunTime)) {
        Call call(function->name, 2);
        call.layOver("src");
        call.set("src", 0, {1, 2, 3, 4});
        ASSERT_EQ(call.run(), vonkOk);
        EXPECT_EQ(call.get("dst", 0), (std::vector<double>{1, 2, 2, 4}));
        ++called;
    }
    EXPECT_EQ(called, 2U * (3U + 6U));
}

// Three rows in lanes: the lower left corner is stored before it is read.
TEST(TransposeInPlace, LosesTheLowerLeftCornerOfThree) {
    for (const char *name : {"vonkTranspose_m_32f_3x3", "vonkTranspose_ma_32f_3x3", "vonkTranspose_ma_32f_3x3_L"}) {
        Call call(name, 3, 2);
        call.layOver("src");
        literal::setObjects(call, "src", {1, 2, 3, 4, 5, 6, 7, 8, 9});
        ASSERT_EQ(call.run(), vonkOk);
        for (std::uint32_t n = 0; n < call.count(); ++n) {
            EXPECT_EQ(call.get("dst", n, 2, 0), 3);
            EXPECT_EQ(call.get("dst", n, 0, 2), 3);
            EXPECT_EQ(call.get("dst", n, 1, 1), 5);
        }
    }
}

} // namespace
