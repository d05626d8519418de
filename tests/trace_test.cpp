// Traces: numbers by hand in every form, which forms begin with a zero and which round on the way, and the partial sums
// that stand in the result.
#include "support/family_test.h"
#include "support/matrix_checks.h"

namespace {

using namespace literal::names;

std::vector<const Function *> all(bool (*wanted)(const Function &) = isAny) {
    return literal::members("trace", wanted);
}

bool takesPairs(const Function &function) { return isException(function, "trace-odd-order"); }

// Of every object, in a matrix of tens.
void setDiagonal(Call &call, const std::vector<double> &diagonal) {
    literal::setAll(call, "src", 10);
    for (std::uint32_t n = 0; n < call.count(); ++n)
        for (std::uint32_t i = 0; i < call.size(); ++i) call.set("src", n, i, i, diagonal[i]);
}

// The diagonal of object n is n + 1, n + 2, ...
const literal::Example example{
    [](Call &call) {
        literal::setElements(call, "src", call.size(), call.size(), [](auto n, auto i, auto j) {
            return i == j ? n + i + 1.0 : 1000.0 * n + 16.0 * i - 5.0 * j;
        });
    },
    [](Call &call, std::uint32_t n) {
        EXPECT_EQ(call.get("dst", n, 0, 0), call.size() * n + call.size() * (call.size() + 1) / 2);
    }};

TEST(Trace, SumsTheDiagonalInEveryFormAndGeometry) {
    for (const Function *function : all()) literal::expectResults(*function, example, {1, 2, 3, 4, 5, 7, 8});
}

// ---- How sums begin and round

TEST(Trace, BeginsWithAZeroExceptInLanes) {
    for (const Function *function : all())
        for (const std::uint32_t order : literal::sizesOf(*function, {1, 4})) {
            Call call(function->name, order, 2);
            setDiagonal(call, std::vector<double>(order, -0.0));
            literal::expectEverywhere(call, hasLanes(*function) ? -0.0 : 0.0);
        }
}

// Half a step above 1, again and again, and then ahead of the 1, where the halves make a sum of their own.
TEST(Trace, RoundsFloatsAtEveryStep) {
    for (const Function *function : all(isFloat))
        for (const std::uint32_t order : literal::sizesOf(*function, {5})) {
            Call call(function->name, order, 2);
            std::vector<double> diagonal(order, 0x1p-24);
            diagonal[0] = 1;
            setDiagonal(call, diagonal);
            literal::expectEverywhere(call, 1);
            std::swap(diagonal.front(), diagonal.back());
            setDiagonal(call, diagonal);
            literal::expectEverywhere(call, order == 3 ? 1 + 0x1p-23 : 1 + 0x1p-22); // 3 and 5 halves are ties
        }
}

// 1 and two times 3/4 of half a step above it. Together they are more than half a step; one at a time they are not.
TEST(Trace, RoundsDoublesOnceAtTheEndButAheadOfALastOddElementOfTwoForms) {
    std::size_t rounding = 0;
    for (const Function *function : all(isDouble))
        for (const std::uint32_t order : literal::sizesOf(*function, {3, 4, 5, 6})) {
            Call call(function->name, order, 2);
            std::vector<double> diagonal(order, 0.0);
            diagonal[0] = 1;
            diagonal[order - 2] = diagonal[order - 1] = 0.75 * 0x1p-53;
            setDiagonal(call, diagonal);
            const bool rounds = takesPairs(*function) && order % 2 == 1;
            rounding += rounds ? 1 : 0;
            literal::expectEverywhere(call, rounds ? 1 : 1 + 0x1p-52);
            const SettingScope scope({Precision::bits53, Rounding::nearest});
            literal::expectEverywhere(call, 1);
        }
    EXPECT_EQ(rounding, 4U);
}

// The largest double twice and its opposite once: the register reaches farther than the result's cell.
TEST(Trace, LosesASumThatOverflowsOnTheWayOnlyWhereItIsReadBack) {
    constexpr double largest = std::numeric_limits<double>::max();
    for (const Function *function : all(isDouble))
        for (const std::uint32_t order : literal::sizesOf(*function, {3})) {
            Call call(function->name, order);
            std::vector<double> diagonal(order, 0.0);
            diagonal[0] = diagonal[1] = largest;
            diagonal[2] = -largest;
            setDiagonal(call, diagonal);
            if (takesPairs(*function)) literal::expectEverywhere(call, infinity);
            else literal::expectEverywhere(call, largest);
        }
}

// ---- The result in the source

// The cell is cleared first and follows every step, so it destroys what lies under it; in lanes all is read before. Of
// ones the first is lost, or the last is the sum of those before it. Pairs of an even order take their last together.
TEST(Trace, DestroysAnElementUnderItsResultExceptInLanes) {
    for (const Function *function : all()) {
        if (function->array()) continue;
        for (const std::uint32_t order : literal::sizesOf(*function, {3}))
            for (const std::uint32_t under : {0U, order - 1}) {
                Call call(function->name, order);
                setDiagonal(call, std::vector<double>(order, 1));
                call["dst"].moveTo(call["src"].address(0, under, under));
                literal::expectEverywhere(call, hasLanes(*function) ? order : under == 0 ? order - 1 : 2 * (order - 1));
            }
    }
}

} // namespace
