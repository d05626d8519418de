// Traces: numbers by hand in every form, which forms begin with a zero and which round on the way, the partial sums
// that stand in the result, and which entries of a table are looked at.
#include "support/family_test.h"
#include "support/matrix_checks.h"

namespace {

using namespace literal::names;

std::vector<const Function *> all(bool (*wanted)(const Function &) = isAny) {
    return literal::members("trace", wanted);
}

const std::vector<std::uint32_t> orders{1, 2, 3, 4, 5, 7, 8};

// ---- Results

// The results lie in one block behind the operands.
void placeResults(Call &call) { call.pass("dst", reinterpret_cast<std::uintptr_t>(call.spareCell(0))); }

std::byte *cellOf(Call &call, std::uint32_t n) {
    return call.spareCell(0) + static_cast<std::ptrdiff_t>(n) * call["src"].elementSize;
}

double resultOf(Call &call, std::uint32_t n) { return call.getAt(cellOf(call, n)); }

double element(std::uint32_t n, std::uint32_t i, std::uint32_t j) { return 100 * (n + 1) + 16.0 * i - 5.0 * j; }

void fill(Call &call) {
    literal::setElements(call, "src", call.size(), call.size(), element);
    placeResults(call);
}

void setDiagonal(Call &call, const std::vector<double> &diagonal) {
    for (std::uint32_t n = 0; n < call.count(); ++n)
        for (std::uint32_t i = 0; i < call.size(); ++i) call.set("src", n, i, i, diagonal[i]);
}

double expected(std::uint32_t order, std::uint32_t n) {
    double sum = 0;
    for (std::uint32_t i = 0; i < order; ++i) sum += element(n, i, i);
    return sum;
}

void expectDone(Call &call, std::uint32_t n) { EXPECT_EQ(resultOf(call, n), expected(call.size(), n)); }

const literal::Example example{fill, expectDone};

TEST(Trace, SumsTheDiagonalInEveryFormAndGeometry) {
    for (const Function *function : all())
        for (const literal::Geometry geometry : {literal::packed, literal::spread, literal::backward})
            for (const std::uint32_t order : literal::sizesOf(*function, orders))
                for (const std::uint32_t count : {1U, 2U, 5U}) {
                    Call call(function->name, order, count, geometry);
                    fill(call);
                    const double beside = resultOf(call, call.count());
                    ASSERT_EQ(call.run(), vonkOk);
                    for (std::uint32_t n = 0; n < call.count(); ++n) expectDone(call, n);
                    EXPECT_EQ(resultOf(call, call.count()), beside);
                }
}

// ---- How sums begin and round

TEST(Trace, BeginsWithAZeroExceptInLanes) {
    for (const Function *function : all())
        for (const std::uint32_t order : literal::sizesOf(*function, {1, 4})) {
            Call call(function->name, order, 2);
            fill(call);
            setDiagonal(call, std::vector<double>(order, -0.0));
            ASSERT_EQ(call.run(), vonkOk);
            for (std::uint32_t n = 0; n < call.count(); ++n)
                literal::expectSame(hasLanes(*function) ? -0.0 : 0.0, resultOf(call, n), "the sum of -0");
        }
}

TEST(Trace, RoundsFloatsAtEveryStep) {
    for (const Function *function : all(isFloat)) {
        for (const std::uint32_t order : literal::sizesOf(*function, {5})) {
            Call call(function->name, order, 2);
            fill(call);
            std::vector<double> diagonal(order, 0x1p-24); // half a step above 1, each time
            diagonal[0] = 1;
            setDiagonal(call, diagonal);
            ASSERT_EQ(call.run(), vonkOk);
            for (std::uint32_t n = 0; n < call.count(); ++n) EXPECT_EQ(resultOf(call, n), 1);

            diagonal.assign(order, 0x1p-24);
            diagonal[order - 1] = 1; // those before it make a sum of their own
            setDiagonal(call, diagonal);
            ASSERT_EQ(call.run(), vonkOk);
            const double others = (order - 1) * 0x1p-24;
            EXPECT_EQ(resultOf(call, 0), static_cast<float>(1 + others));
        }
    }
}

bool takesPairs(const Function &function) { return isException(function, "trace-odd-order"); }

// 1 and two times 3/4 of half a step above it. Together they are more than half a step; one at a time they are not.
TEST(Trace, RoundsDoublesOnceAtTheEndButAheadOfALastOddElementOfTwoForms) {
    std::size_t rounding = 0;
    constexpr double small = 0.75 * 0x1p-53;
    for (const Function *function : all(isDouble)) {
        for (const std::uint32_t order : literal::sizesOf(*function, {3, 4, 5, 6})) {
            Call call(function->name, order, 2);
            fill(call);
            std::vector<double> diagonal(order, 0.0);
            diagonal[0] = 1;
            diagonal[order - 2] = diagonal[order - 1] = small;
            setDiagonal(call, diagonal);
            const bool rounds = takesPairs(*function) && order % 2 == 1;
            ASSERT_EQ(call.run(), vonkOk);
            EXPECT_EQ(resultOf(call, 0), rounds ? 1 : 1 + 0x1p-52);
            rounding += rounds ? 1 : 0;
            ASSERT_EQ(call.run({Precision::bits53, Rounding::nearest}), vonkOk);
            EXPECT_EQ(resultOf(call, 0), 1);
        }
    }
    EXPECT_EQ(rounding, 4U);
}

// The largest double twice and its opposite once: the register reaches farther than the result's cell.
TEST(Trace, LosesASumThatOverflowsOnTheWayOnlyWhereItIsReadBack) {
    constexpr double largest = 0x1.fffffffffffffp1023;
    for (const Function *function : all(isDouble)) {
        for (const std::uint32_t order : literal::sizesOf(*function, {3})) {
            Call call(function->name, order);
            fill(call);
            std::vector<double> diagonal(order, 0.0);
            diagonal[0] = diagonal[1] = largest;
            diagonal[2] = -largest;
            setDiagonal(call, diagonal);
            ASSERT_EQ(call.run(), vonkOk);
            EXPECT_EQ(resultOf(call, 0), takesPairs(*function) ? std::numeric_limits<double>::infinity() : largest);
        }
    }
}

// ---- The result in the source

// The cell is cleared first and follows every step, so it destroys what lies under it; in lanes all is read before.
TEST(Trace, DestroysAnElementUnderItsResultExceptInLanes) {
    for (const Function *function : all()) {
        if (function->array()) continue;
        for (const std::uint32_t order : literal::sizesOf(*function, {3})) {
            SCOPED_TRACE(function->name + ", order " + std::to_string(order));
            std::vector<double> diagonal;
            for (std::uint32_t i = 0; i < order; ++i) diagonal.push_back(10 + i);
            double sum = 0;
            for (const double one : diagonal) sum += one;
            for (const bool atEnd : {false, true}) {
                Call call(function->name, order);
                fill(call);
                setDiagonal(call, diagonal);
                const std::uint32_t under = atEnd ? order - 1 : 0;
                std::byte *const cell = call["src"].address(0, under, under);
                call.pass("dst", reinterpret_cast<std::uintptr_t>(cell));
                // An even order takes its last element along with the one before it.
                if (atEnd && takesPairs(*function) && order % 2 == 0) continue;
                ASSERT_EQ(call.run(), vonkOk);
                const double running = atEnd ? 2 * (sum - diagonal.back()) : sum - diagonal.front();
                EXPECT_EQ(call.getAt(cell), hasLanes(*function) ? sum : running);
            }
        }
    }
}

} // namespace
