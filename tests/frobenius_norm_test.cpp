// Frobenius norms: the order in which every form adds its squares, told from all threesomes of elements; its way to the
// root; matrices of zeros; how far sums reach; and which entries of tables and lists are looked at.
#include "support/family_test.h"
#include "support/matrix_checks.h"

#include <stdexcept>
#include <xmmintrin.h>

namespace {

using namespace literal::names;

std::vector<const Function *> all(bool (*wanted)(const Function &) = isAny) {
    return literal::members("frobenius-norm", wanted);
}

// Four objects share the lanes.
bool takesBlocks(const Function &function) { return isException(function, "frobenius-four-objects"); }

// ---- Calls

void placeResults(Call &call) { call.pass("dst", reinterpret_cast<std::uintptr_t>(call.spareCell(0))); }

double resultOf(Call &call, std::uint32_t n) {
    return call.getAt(call.spareCell(0) + static_cast<std::ptrdiff_t>(n) * call["src"].elementSize);
}

double element(std::uint32_t n, std::uint32_t i, std::uint32_t j) {
    return static_cast<int>((3 * i + 5 * j + i * j + n) % 9) - 4;
}

void fill(Call &call) {
    literal::setElements(call, "src", call.size(), call.size(), element);
    placeResults(call);
}

// ---- The three roots

// One Newton step on the processor's estimate of the reciprocal root.
float rootByEstimate(float sum) {
    const float r = _mm_cvtss_f32(_mm_rsqrt_ss(_mm_set_ss(sum)));
    const float t = sum * (r * r);
    const float w = r * (0.5F * (3.0F - t));
    return sum * w;
}

bool roundsSum(const Function &function) { return isException(function, "frobenius-rounded-sum"); }

double rootOf(const Function &function, long double sum) {
    if (function.type == Type::real64) {
        const volatile auto rounded = static_cast<double>(sum);
        return static_cast<double>(std::sqrt(roundsSum(function) ? static_cast<long double>(rounded) : sum));
    }
    const auto narrow = static_cast<float>(sum);
    return hasLanes(function) ? rootByEstimate(narrow) : std::sqrt(narrow);
}

void expectDone(Call &call, std::uint32_t n) {
    double sum = 0;
    for (const double one : call.get("src", n)) sum += one * one;
    EXPECT_EQ(resultOf(call, n), rootOf(call.function(), sum)) << "object " << n;
}

// Whole numbers, so that no sum rounds.
TEST(FrobeniusNorm, TakesTheRootOfTheSumOfSquaresInEveryFormAndGeometry) {
    for (const Function *function : all())
        for (const literal::Geometry geometry : {literal::packed, literal::spread, literal::backward})
            for (const std::uint32_t order : literal::sizesOf(*function, {1, 2, 3, 4, 7}))
                for (std::uint32_t count = 1; count <= (function->array() ? 9 : 1); ++count) {
                    SCOPED_TRACE(function->name + ", order " + std::to_string(order) + ", count " +
                                 std::to_string(count));
                    Call call(function->name, order, count, geometry);
                    fill(call);
                    const double beside = resultOf(call, count);
                    ASSERT_EQ(call.run(), vonkOk);
                    for (std::uint32_t n = 0; n < count; ++n) expectDone(call, n);
                    EXPECT_EQ(resultOf(call, count), beside);
                }
}

TEST(FrobeniusNorm, MeasuresRowsAndColumns) {
    for (const Function *function : all(isRunTime)) {
        for (const auto &[rows, cols] : {std::pair{2U, 3U}, {3U, 2U}, {1U, 5U}, {5U, 1U}, {4U, 5U}}) {
            SCOPED_TRACE(function->name + ", " + std::to_string(rows) + " by " + std::to_string(cols));
            Call call(function->name, 5, 2, literal::spread);
            for (std::uint32_t n = 0; n < call.count(); ++n) call.set("src", n, std::vector<double>(25, 77));
            literal::makeRectangular(call, rows, cols);
            literal::setElements(call, "src", rows, cols, element);
            placeResults(call);
            ASSERT_EQ(call.run(), vonkOk);
            for (std::uint32_t n = 0; n < call.count(); ++n) expectDone(call, n);
        }
    }
}

TEST(FrobeniusNorm, FindsThreeAndFourToBeFive) {
    for (const Function *function : all())
        for (const std::uint32_t order : literal::sizesOf(*function, {2})) {
            Call call(function->name, order, 5);
            literal::setAll(call, "src", 0);
            placeResults(call);
            for (std::uint32_t n = 0; n < call.count(); ++n) {
                call.set("src", n, 0, order - 1, -3);
                call.set("src", n, order - 1, 1, 4);
            }
            ASSERT_EQ(call.run(), vonkOk);
            for (std::uint32_t n = 0; n < call.count(); ++n) {
                if (hasLanes(*function)) EXPECT_NEAR(resultOf(call, n), 5, 5 * 0x1p-20);
                else EXPECT_EQ(resultOf(call, n), 5);
            }
        }
}

// The estimate of a reciprocal root of 0 is infinite, and nothing guards what becomes of it.
TEST(FrobeniusNorm, OfZerosIsANanInLanesAndZeroOtherwise) {
    for (const Function *function : all())
        for (const std::uint32_t order : literal::sizesOf(*function, {1, 3})) {
            Call call(function->name, order, 6);
            literal::setAll(call, "src", -0.0);
            if (call.count() > 1) call.set("src", 1, 0, 0, 2);
            placeResults(call);
            ASSERT_EQ(call.run(), vonkOk);
            for (std::uint32_t n = 0; n < call.count(); ++n) {
                if (n == 1) EXPECT_NEAR(resultOf(call, n), 2, 2 * 0x1p-20);
                else if (hasLanes(*function)) EXPECT_TRUE(std::isnan(resultOf(call, n)));
                else literal::expectSame(0.0, resultOf(call, n), "object " + std::to_string(n));
            }
        }
}

// A sum that is infinite has an estimate of 0, and infinity times 0 is no number.
TEST(FrobeniusNorm, OfInfinitiesIsANanInLanesAndInfiniteOtherwise) {
    for (const Function *function : all()) {
        Call call(function->name, 3, 2);
        fill(call);
        call.set("src", 0, 1, 1, -infinity);
        ASSERT_EQ(call.run(), vonkOk);
        literal::expectSame(hasLanes(*function) ? std::numeric_limits<double>::quiet_NaN() : infinity,
                            resultOf(call, 0), "the norm");
    }
}

// Of one element, 2^512 or 2^-538: its square leaves the range of a double, but not that of the register.
TEST(FrobeniusNorm, OfDoublesReachesAsFarAsItsSumIsRounded) {
    std::size_t rounding = 0;
    for (const Function *function : all(isDouble)) {
        SCOPED_TRACE(function->name);
        for (const bool large : {true, false}) {
            Call call(function->name, 3, 2);
            literal::setAll(call, "src", 0);
            const double one = large ? 0x1p512 : 0x1p-538;
            for (std::uint32_t n = 0; n < call.count(); ++n) call.set("src", n, 2, 1, one);
            placeResults(call);
            ASSERT_EQ(call.run(), vonkOk);
            const double lost = large ? std::numeric_limits<double>::infinity() : 0.0;
            for (std::uint32_t n = 0; n < call.count(); ++n)
                EXPECT_EQ(resultOf(call, n), roundsSum(*function) ? lost : one);
        }
        rounding += roundsSum(*function) ? 1 : 0;
    }
    EXPECT_EQ(rounding, 6U);
}

// ---- Orders of addition

// Leaves of a tree are elements in row order, numbered from the character 0 on.
char leaf(std::uint32_t order, std::uint32_t i, std::uint32_t j) { return static_cast<char>('0' + i * order + j); }

// The pattern with its digits replaced.
std::string withParts(std::string_view pattern, const std::function<std::string(std::uint32_t)> &part) {
    std::string tree;
    for (const char letter : pattern)
        tree +=
            letter == '(' || letter == ')' ? std::string(1, letter) : part(static_cast<std::uint32_t>(letter - '0'));
    return tree;
}

std::string columnTree(std::uint32_t order, std::uint32_t j) {
    const char *const patterns[] = {"((01)2)", "((01)(23))", "(((01)(23))4)", "(((01)(23))(45))"};
    const char *const pattern = order == 6 && j >= 4 ? "(((02)4)((13)5))" : patterns[order - 3];
    return withParts(pattern, [&](std::uint32_t i) { return std::string(1, leaf(order, i, j)); });
}

std::string laneTree(std::uint32_t order, bool inBlock) {
    if (order == 3 && inBlock) return "((((01)8)(23))((45)(67)))";
    const char *const patterns[] = {"((01)2)", "((02)(13))", "(((02)(13))4)", "(((02)(13))(45))"};
    return withParts(inBlock ? "((01)(23))" : patterns[order - 3],
                     [&](std::uint32_t j) { return columnTree(order, j); });
}

// Row by row, column by column, or the latter backwards.
std::string runningTree(const Function &function, std::uint32_t order) {
    std::string leaves;
    for (std::uint32_t k = 0; k < order * order; ++k)
        leaves += function.array() ? leaf(order, k % order, k / order) : leaf(order, k / order, k % order);
    const Layout layout = function.operands[0].layout;
    const bool backwards = function.array() && function.type == Type::real32 && function.order != 0 &&
                           (catalogue::isTable(layout) || layout == Layout::stridedList);
    if (backwards) leaves = std::string(leaves.rbegin(), leaves.rend());
    std::string tree(order * order - 1, '(');
    tree += leaves[0];
    for (const char next : leaves.substr(1)) tree += {next, ')'};
    return tree;
}

std::string treeOf(const Function &function, std::uint32_t order, bool inBlock) {
    return hasLanes(function) ? laneTree(order, inBlock) : runningTree(function, order);
}

// The sum of squares along a tree, rounded as the caller has it.
template <class Real> Real sumAlong(std::string_view &tree, const std::vector<double> &elements) {
    const char letter = tree.front();
    tree.remove_prefix(1);
    if (letter != '(') {
        const auto a = static_cast<Real>(elements[static_cast<std::size_t>(letter - '0')]);
        return a * a;
    }
    const Real left = sumAlong<Real>(tree, elements);
    const Real right = sumAlong<Real>(tree, elements);
    tree.remove_prefix(1);
    return left + right;
}

double normAlong(const Function &function, std::string_view tree, const std::vector<double> &elements) {
    if (function.type == Type::real32) return rootOf(function, sumAlong<float>(tree, elements));
    return rootOf(function, sumAlong<long double>(tree, elements));
}

// Rounded upwards, a sum with a large square in it grows by a step for each tiny one that joins it, but by one step
// only where two tiny ones have joined each other before. All threesomes tell one tree from every other.
constexpr support::Setting upwards{Precision::bits53, Rounding::up};

constexpr double tiny = 0x1p-40;

// The number above the root of 2 times a power of 4 where the root tells one step of the sum from two. Not every number
// does in lanes, and which ones do is up to the processor.
double largeFor(const Function &function) {
    const SettingScope scope(upwards);
    const double first = function.type == Type::real32 ? 5793 : 0x1.6a09e667f3bcdp0;
    for (double large = first; large < 1.1 * first; large += function.type == Type::real32 ? 1 : 0x1p-52) {
        const std::vector<double> elements{large, tiny, tiny};
        if (normAlong(function, "((01)2)", elements) != normAlong(function, "(0(12))", elements)) return large;
    }
    throw std::logic_error("no number tells one step from two");
}

void expectTrees(Call &call, const std::vector<double> &elements) {
    const Function &function = call.function();
    std::vector<double> results;
    {
        const SettingScope scope(upwards);
        ASSERT_EQ(call.run(), vonkOk);
        for (const bool inBlock : {false, true})
            results.push_back(
                normAlong(function, treeOf(function, call.size(), inBlock && takesBlocks(function)), elements));
    }
    const std::uint32_t inBlocks = takesBlocks(function) ? call.count() / 4 * 4 : 0;
    for (std::uint32_t n = 0; n < call.count(); ++n)
        ASSERT_EQ(resultOf(call, n), results[n < inBlocks ? 1 : 0]) << "object " << n;
}

TEST(FrobeniusNormOrder, IsThatOfItsFormForEveryThreesome) {
    for (const Function *function : all())
        for (const std::uint32_t order : literal::sizesOf(*function, {3})) {
            Call call(function->name, order, takesBlocks(*function) ? 6 : 2);
            literal::setAll(call, "src", 0);
            placeResults(call);
            const std::uint32_t terms = order * order;
            std::vector<double> elements(terms);
            const double large = largeFor(*function);
            const auto put = [&](std::uint32_t k, double value) {
                elements[k] = value;
                for (std::uint32_t n = 0; n < call.count(); ++n) call.set("src", n, k / order, k % order, value);
            };
            for (std::uint32_t a = 0; a < terms; ++a)
                for (std::uint32_t b = 0; b < terms; ++b)
                    for (std::uint32_t c = b + 1; c < terms; ++c) {
                        if (a == b || a == c || (terms == 36 && (a + b + c) % 4 != 0)) continue;
                        SCOPED_TRACE(function->name + ": " + std::to_string(a) + " large, " + std::to_string(b) +
                                     " and " + std::to_string(c) + " tiny");
                        put(a, large);
                        put(b, tiny);
                        put(c, tiny);
                        expectTrees(call, elements);
                        if (testing::Test::HasFatalFailure()) return;
                        for (const std::uint32_t k : {a, b, c}) put(k, 0);
                    }
        }
}

// The same matrix four times is one block, three times it is none. The two tiny ones join each other in a block only,
// so that the sum differs in its last place.
TEST(FrobeniusNormOrder, DependsOnWhetherAnObjectFallsInABlock) {
    std::size_t differing = 0;
    for (const Function *function : all()) {
        if (!takesBlocks(*function)) continue;
        SCOPED_TRACE(function->name);
        std::vector<double> first;
        for (const std::uint32_t count : {3U, 4U, 5U}) {
            Call call(function->name, 0, count);
            literal::setAll(call, "src", 0);
            placeResults(call);
            for (std::uint32_t n = 0; n < count; ++n) {
                call.set("src", n, 0, 0, largeFor(*function));
                call.set("src", n, 0, 2, tiny);
                call.set("src", n, function->order == 3 ? 1 : 0, function->order == 3 ? 0 : 3, tiny);
            }
            ASSERT_EQ(call.run(upwards), vonkOk);
            first.push_back(resultOf(call, 0));
            if (count == 5) {
                EXPECT_EQ(resultOf(call, 4), first[0]);
            }
        }
        EXPECT_EQ(first[1], first[2]);
        differing += first[0] != first[1] ? 1 : 0;
    }
    EXPECT_EQ(differing, 4U);
}

// Blocks stand for as many as 4 go into `count`, whatever is left.
TEST(FrobeniusNorm, KeepsObjectsApartInBlocks) {
    for (const Function *function : all()) {
        if (!takesBlocks(*function)) continue;
        Call call(function->name, 0, 9);
        literal::setElements(call, "src", call.size(), call.size(),
                             [](std::uint32_t n, auto, auto) { return n + 1.0; });
        placeResults(call);
        ASSERT_EQ(call.run(), vonkOk);
        for (std::uint32_t n = 0; n < 9; ++n)
            EXPECT_EQ(resultOf(call, n), rootByEstimate(static_cast<float>(call.size() * call.size()) *
                                                        static_cast<float>((n + 1) * (n + 1))));
    }
}

// Six rows have no blocks: the result of an object that lies in the next one is a part of that one's norm.
TEST(FrobeniusNorm, OfSixRowsIsSeenByTheNextObject) {
    for (const char *name : {"vonkFrobNorm_ma_32f_6x6", "vonkFrobNorm_ma_32f_6x6_L"}) {
        SCOPED_TRACE(name);
        Call call(name, 6, 5);
        literal::setAll(call, "src", 0);
        call.set("src", 0, 0, 0, 3);
        std::byte *const results = call["src"].address(1, 0, 0);
        call.pass("dst", reinterpret_cast<std::uintptr_t>(results));
        ASSERT_EQ(call.run(), vonkOk);
        const auto first = static_cast<float>(call.getAt(results));
        EXPECT_EQ(first, rootByEstimate(9));
        EXPECT_EQ(call.getAt(results + 4), rootByEstimate(first * first));
    }
}

// ---- The roads for aligned and unaligned operands

TEST(FrobeniusNormAlignment, ChangesNoResult) {
    for (const Function *function : all(hasLanes)) {
        for (const char *offender : {"", "src"})
            for (const literal::Offence &offence : literal::offences)
                for (const std::ptrdiff_t offset : {0, 4}) {
                    SCOPED_TRACE(function->name + ", " + offender + " is off by " + std::to_string(offence.pointer) +
                                 ", rows by " + std::to_string(offence.rowStride) + ", objects by " +
                                 std::to_string(offence.objectStride));
                    Call call(function->name, 0, 5);
                    literal::alignAllBut(call, offender, offence);
                    fill(call);
                    std::byte *const results = call.spareCell(1) + offset;
                    call.pass("dst", reinterpret_cast<std::uintptr_t>(results));
                    ASSERT_EQ(call.run(), vonkOk);
                    for (std::uint32_t n = 0; n < call.count(); ++n) {
                        double sum = 0;
                        for (const double one : call.get("src", n)) sum += one * one;
                        EXPECT_EQ(call.getAt(results + std::ptrdiff_t{4} * n), rootOf(*function, sum));
                    }
                }
    }
}

// ---- What is tested, and when

const literal::Example example{fill, expectDone};

} // namespace
