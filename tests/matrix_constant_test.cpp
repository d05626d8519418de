// Matrices times a constant: numbers by hand in every form, shapes, the roads for aligned and unaligned operands, and
// what is tested in which order.
#include "support/family_test.h"
#include "support/matrix_checks.h"

namespace {

using namespace literal::names;

std::vector<const Function *> all(bool (*wanted)(const Function &) = isAny) {
    return literal::members("matrix-constant", wanted);
}

const std::vector<std::uint32_t> orders{1, 2, 3, 4, 7};

// ---- Results

constexpr double value = -2.5;

double element(std::uint32_t n, std::uint32_t i, std::uint32_t j) { return 1000 * (n + 1) + 16.0 * i - j; }

void fill(Call &call) {
    literal::setElements(call, "src", call.size(), call.size(), element);
    call.setConstant("val", value);
}

void expectDone(Call &call, std::uint32_t n) {
    for (std::uint32_t i = 0; i < call["dst"].rows; ++i)
        for (std::uint32_t j = 0; j < call["dst"].cols; ++j)
            EXPECT_EQ(call.get("dst", n, i, j), value * element(n, i, j)) << "element " << i << ", " << j;
}

const literal::Example example{fill, expectDone};

TEST(MatrixConstant, MultipliesInEveryFormAndGeometry) {
    for (const Function *function : all()) literal::expectResults(*function, example, orders);
}

TEST(MatrixConstant, MultipliesInPlaceWhatIsNotTransposed) {
    for (const Function *function : all())
        if (!function->operands[0].transposed) literal::expectInPlaceResults(*function, example, "src", orders);
}

// 1 2 / 3 4 by 10: (0, 1) takes the 3 and leaves 30 where (1, 0) looks for the 2.
TEST(MatrixConstant, GoesWrongInPlaceOverATransposedSource) {
    std::size_t wrong = 0;
    for (const Function *function : all()) {
        if (function->order != 0 || !function->operands[0].transposed) continue;
        Call call(function->name, 2);
        call.layOver("src");
        call.set("src", 0, {1, 2, 3, 4});
        call.setConstant("val", 10);
        ASSERT_EQ(call.run(), vonkOk);
        EXPECT_EQ(call.get("dst", 0), (std::vector<double>{10, 30, 300, 40}));
        ++wrong;
    }
    EXPECT_EQ(wrong, 2U * (3U + 6U));
}

TEST(MatrixConstant, TakesRowsAndColumnsOfTheResult) {
    for (const Function *function : all(isRunTime)) {
        for (const auto &[rows, cols] : {std::pair{2U, 3U}, {3U, 2U}, {1U, 4U}, {4U, 1U}, {5U, 2U}}) {
            SCOPED_TRACE(function->name + ", " + std::to_string(rows) + " by " + std::to_string(cols));
            Call call(function->name, 5, 2, literal::spread);
            literal::makeRectangular(call, rows, cols);
            literal::setElements(call, "src", rows, cols, element);
            call.setConstant("val", value);
            ASSERT_EQ(call.run(), vonkOk);
            literal::expectAllDone(call, example);
        }
    }
}

TEST(MatrixConstantAlignment, ChangesNoResult) {
    std::size_t called = 0;
    for (const Function *function : all(hasLanes)) {
        for (const char *offender : {"", "src", "dst"})
            for (const literal::Offence &offence : literal::offences) {
                SCOPED_TRACE(function->name + ", " + offender + " is off by " + std::to_string(offence.pointer) +
                             ", rows by " + std::to_string(offence.rowStride) + ", objects by " +
                             std::to_string(offence.objectStride));
                Call call(function->name, 0, 3);
                literal::alignAllBut(call, offender, offence);
                fill(call);
                ASSERT_EQ(call.run(), vonkOk);
                literal::expectAllDone(call, example);
                ++called;
            }
    }
    EXPECT_GT(called, 0U);
}

// ---- Rounding, infinities, NaNs, zeros

} // namespace
