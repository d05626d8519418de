// A matrix times a vector plus a vector: numbers by hand in every form, shapes that need not fit, which entries are
// looked at and when, the tree in which each kernel adds before the addend joins, and destinations over the addend.
#include "support/family_test.h"

namespace {

using namespace literal::names;

std::vector<const Function *> all(bool (*wanted)(const Function &) = isAny) {
    return literal::members("gaxpy", wanted);
}

const std::vector<std::uint32_t> orders{1, 2, 3, 4, 5, 6, 7};

bool keepsExtendedSums(const Function &function) { return function.layout.empty() || function.layout == "S2"; }

// ---- Numbers

double matrixElement(std::uint32_t i, std::uint32_t j) { return static_cast<int>((i * i + 3 * i * j + 2 * j) % 7) - 3; }
double vectorElement(std::uint32_t n, std::uint32_t j) { return static_cast<int>((j * j + 2 * j + 3 * n) % 5) + 1; }
double addendElement(std::uint32_t n, std::uint32_t i) { return static_cast<int>((3 * i + 4 * n) % 9) + 20; }

template <typename Element> std::vector<double> listOf(std::uint32_t elements, Element element) {
    std::vector<double> list;
    for (std::uint32_t k = 0; k < elements; ++k) list.push_back(element(k));
    return list;
}

void fill(Call &call) {
    const std::uint32_t order = call.size();
    call.set("src1", 0, listOf(order * order, [&](auto k) { return matrixElement(k / order, k % order); }));
    for (std::uint32_t n = 0; n < call.count(); ++n) {
        call.set("src2", n, listOf(order, [&](auto k) { return vectorElement(n, k); }));
        call.set("src3", n, listOf(order, [&](auto i) { return addendElement(n, i); }));
    }
}

double sumOf(std::uint32_t i, std::uint32_t terms, std::uint32_t n) {
    double sum = 0;
    for (std::uint32_t k = 0; k < terms; ++k) sum += matrixElement(i, k) * vectorElement(n, k);
    return sum;
}

std::vector<double> resultOf(std::uint32_t order, std::uint32_t n) {
    return listOf(order, [&](auto i) { return sumOf(i, order, n) + addendElement(n, i); });
}

void expectDone(Call &call, std::uint32_t n) { EXPECT_EQ(call.get("dst", n), resultOf(call.size(), n)); }

const literal::Example example{fill, expectDone};

TEST(Gaxpy, MultipliesAndAddsInEveryFormAndGeometry) {
    for (const Function *function : all()) literal::expectResults(*function, example, orders);
}

// 1 2 3 / 4 5 6 by 1 0 2 plus 100 200.
TEST(Gaxpy, TakesItsWordsInTheOrderOfTheHeader) {
    const float a[8] = {1, 2, 3, 99, 4, 5, 6, 99};
    const float v[6] = {1, 0, 2, 1, 1, 1};
    const float w[4] = {100, 200, 10, 20};
    float x[5] = {9, 9, 9, 9, 9};
    EXPECT_EQ(vonkGaxpy_v_32f(a, 16, v, w, x, 3, 2), vonkOk);
    EXPECT_EQ(std::vector<float>(x, x + 3), (std::vector<float>{107, 216, 9}));
    EXPECT_EQ(vonkGaxpy_va_32f(a, 16, v, 12, w, 8, x, 12, 3, 2, 2), vonkOk);
    EXPECT_EQ(std::vector<float>(x, x + 5), (std::vector<float>{107, 216, 9, 16, 35}));
}

// The matrix of lists is no list.
TEST(Gaxpy, TakesTheMatrixOfListsByAPlainPointer) {
    const double a[4] = {1, 2, 3, 4};
    const double v[4] = {5, 6, 1, 1};
    const double w[2] = {100, 200};
    double x[4] = {};
    const double *const vectors[2] = {v, v + 2};
    const double *const addends[2] = {w, w};
    double *const results[2] = {x + 2, x};
    EXPECT_EQ(vonkGaxpy_va_64f_L(a, 16, vectors, 0, addends, 0, results, 0, 2, 2, 2), vonkOk);
    EXPECT_EQ(std::vector<double>(x, x + 4), (std::vector<double>{103, 207, 117, 239}));
}

// ---- Shapes

constexpr std::uint32_t side = 3; // room of the calls below

void tell(Call &call, std::uint32_t cols, std::uint32_t rows) {
    call["src1"].cols = call["dst"].cols = side;
    fill(call);
    for (std::uint32_t n = 0; n < call.count(); ++n) call.set("dst", n, std::vector<double>(side, 77));
    call.pass("cols", cols);
    call.pass("rows", rows);
    if (isTabled(call.function())) call["src1"].cols = cols;
    call["dst"].cols = rows;
}

void expectShaped(Call &call, std::uint32_t cols, std::uint32_t rows) {
    for (std::uint32_t n = 0; n < call.count(); ++n)
        for (std::uint32_t i = 0; i < rows; ++i) {
            double sum = 0;
            for (std::uint32_t k = 0; k < cols; ++k) sum += call.get("src1", 0, i, k) * call.get("src2", n, 0, k);
            EXPECT_EQ(call.get("dst", n, 0, i), sum + call.get("src3", n, 0, i)) << n << ", " << i;
        }
}

TEST(GaxpyShapes, MakeAsManyResultsAsRowsOfAsManyTermsAsColumns) {
    for (const Function *function : all(isRunTime)) {
        Call call(function->name, side, 2);
        for (std::uint32_t cols = 0; cols <= side; ++cols)
            for (std::uint32_t rows = 0; rows <= side; ++rows) {
                SCOPED_TRACE(function->name + ", " + std::to_string(rows) + " by " + std::to_string(cols));
                tell(call, cols, rows);
                const bool isNothing = cols == 0 || rows == 0;
                ASSERT_EQ(call.run(), isNothing ? vonkErrSize : vonkOk);
                EXPECT_EQ(call.changedNothing(), isNothing);
                if (!isNothing) expectShaped(call, cols, rows);
                if (const auto stray = call.strayWrites()) ADD_FAILURE() << stray.what;
            }
    }
}

// ---- What is tested, and when

// The extents are those of the loops, which no null beyond them disturbs.
TEST(GaxpyTables, AreScannedAsFarAsTheLoopsComeAheadOfTheCount) {
    for (const Function *function : all()) {
        if (function->order != 0 || !isTabled(*function) || !function->array()) continue;
        Call call(function->name, side, 2);
        for (std::uint32_t cols = 1; cols <= side; ++cols)
            for (std::uint32_t rows = 1; rows <= side; ++rows)
                for (const catalogue::Operand &operand : function->operands) {
                    tell(call, cols, rows);
                    const std::size_t extent = operand.name == "src1"   ? cols * rows
                                               : operand.name == "src2" ? cols
                                                                        : rows;
                    std::vector<std::byte *> &entries = call[operand.name].entries;
                    for (std::size_t entry = 0; entry < entries.size(); ++entry)
                        for (const std::uint32_t count : {0U, 2U}) {
                            SCOPED_TRACE(function->name + ", " + std::to_string(rows) + " by " + std::to_string(cols) +
                                         ", " + operand.name + "[" + std::to_string(entry) + "], count " +
                                         std::to_string(count));
                            call.pass("count", count);
                            std::byte *const kept = entries[entry];
                            entries[entry] = nullptr;
                            EXPECT_EQ(call.run(), entry < extent ? vonkErrNullPtr : vonkOk);
                            EXPECT_EQ(call.changedNothing(), entry < extent || count == 0);
                            entries[entry] = kept;
                            if (entry < extent || count == 0) continue;
                            expectShaped(call, cols, rows);
                            for (std::uint32_t n = 0; n < 2; ++n) call.set("dst", n, std::vector<double>(rows, 77));
                        }
                }
    }
}

// ---- Orders of addition

// Every element of every object gets the same terms and, behind them, the same addend.
void setTerms(Call &call, const std::vector<double> &terms) {
    const std::uint32_t order = call.size();
    call.set("src1", 0, listOf(order * order, [&](auto k) { return terms[k % order]; }));
    for (std::uint32_t n = 0; n < call.count(); ++n) {
        call.set("src2", n, std::vector<double>(order, 1));
        call.set("src3", n, std::vector<double>(order, terms[order]));
    }
}

std::string treeOf(const Function &function, std::uint32_t order, std::uint32_t element) {
    if (!hasLanes(function) || order == 3) return literal::runningTree(order + 1);
    if (order == 4) return "(((02)(13))4)";
    if (order == 6) return "((((02)4)((13)5))6)";
    return element < 4 ? "((((01)4)(23))5)" : "((((02)4)(13))5)"; // the last of five goes its own way
}

TEST(GaxpySums, FollowTheTreeOfTheKernelAndElseRunThroughTheTermsWithTheAddendLast) {
    for (const Function *function : all())
        for (const std::uint32_t order : literal::sizesOf(*function, {3, 6})) {
            Call call(function->name, order, 2);
            for (const std::vector<double> &terms : literal::threesomes(order + 1)) {
                SCOPED_TRACE(function->name + ", " + ::testing::PrintToString(terms));
                setTerms(call, terms);
                ASSERT_EQ(call.run(), vonkOk);
                for (std::uint32_t n = 0; n < call.count(); ++n)
                    for (std::uint32_t i = 0; i < order; ++i)
                        literal::expectSame(literal::sumByTree(treeOf(*function, order, i), terms),
                                            call.get("dst", n, 0, i), "element " + std::to_string(i));
            }
        }
}

// -0 of the products and -0 of the addend: lanes keep it, and cells begin at +0.
TEST(GaxpySums, BeginAtPlusZeroInCellsAndAtTheFirstProductInLanes) {
    for (const Function *function : all())
        for (const std::uint32_t order : literal::sizesOf(*function, {1, 4})) {
            Call call(function->name, order, 2);
            setTerms(call, std::vector<double>(order + 1, -0.0));
            ASSERT_EQ(call.run(), vonkOk);
            for (std::uint32_t n = 0; n < call.count(); ++n)
                literal::expectSame(std::vector<double>(order, hasLanes(*function) ? -0.0 : 0.0), call.get("dst", n),
                                    "dst");
        }
}

// Half a last place of the sum and half a one of the addend: in the 80-bit unit they make a whole one, unless the sum
// goes through the cell before the addend joins or the unit is set to 53 bits.
TEST(GaxpySums, OfDoublesAreRoundedWithTheAddendOrBeforeItByLayout) {
    for (const Function *function : all(isDouble)) {
        for (const std::uint32_t order : literal::sizesOf(*function, {2, 7}))
            for (const Precision precision : {Precision::bits53, Precision::bits64}) {
                const SettingScope scope({precision, Rounding::nearest});
                Call call(function->name, order, 2);
                std::vector<double> terms(order + 1);
                terms[0] = 1;
                terms[1] = terms[order] = 0x1p-53;
                setTerms(call, terms);
                ASSERT_EQ(call.run(), vonkOk);
                const bool whole = precision == Precision::bits64 && keepsExtendedSums(*function);
                for (std::uint32_t n = 0; n < call.count(); ++n)
                    EXPECT_EQ(call.get("dst", n), std::vector<double>(order, whole ? 1 + 0x1p-52 : 1));
            }
    }
}

// ---- A destination over a source

std::vector<std::vector<double>> resultsOver(const Function &function, std::uint32_t order, const std::string &source) {
    Call call(function.name, order, 3);
    call.layOver(source);
    fill(call);
    EXPECT_EQ(call.run(), vonkOk);
    if (const auto stray = call.strayWrites()) ADD_FAILURE() << stray.what;
    std::vector<std::vector<double>> results;
    for (std::uint32_t n = 0; n < call.count(); ++n) results.push_back(call.get("dst", n));
    return results;
}

// Elsewhere the finished sum stands in the place of the addend when it is added to itself.
TEST(GaxpyInPlace, IsRightOverTheAddendInLanesAlone) {
    for (const Function *function : all())
        for (const std::uint32_t order : literal::sizesOf(*function, {1, 2, 7})) {
            SCOPED_TRACE(function->name + ", order " + std::to_string(order));
            const auto results = resultsOver(*function, order, "src3");
            for (std::uint32_t n = 0; n < results.size(); ++n) {
                const std::vector<double> expected =
                    hasLanes(*function) ? resultOf(order, n)
                                        : listOf(order, [&](auto i) { return 2 * sumOf(i, order, n); });
                EXPECT_EQ(results[n], expected) << "object " << n;
            }
        }
}

// The zero of an element falls on the vector's, and so does its result, for the elements that follow.
TEST(GaxpyInPlace, IsRightOverTheVectorInLanesAlone) {
    for (const Function *function : all())
        for (const std::uint32_t order : literal::sizesOf(*function, {1, 2, 7})) {
            SCOPED_TRACE(function->name + ", order " + std::to_string(order));
            const auto results = resultsOver(*function, order, "src2");
            for (std::uint32_t n = 0; n < results.size(); ++n) {
                std::vector<double> v = listOf(order, [&](auto k) { return vectorElement(n, k); });
                for (std::uint32_t i = 0; i < order; ++i) {
                    double sum = v[i] = 0;
                    for (std::uint32_t k = 0; k < order; ++k) v[i] = sum += matrixElement(i, k) * v[k];
                    v[i] = sum + addendElement(n, i);
                }
                EXPECT_EQ(results[n], hasLanes(*function) ? resultOf(order, n) : v) << "object " << n;
            }
        }
}

// The first result is stored over the first row of the matrix. Lanes fetch the matrix ahead of all objects; elsewhere
// the second object sees the row of the first result.
TEST(GaxpyInPlace, OverTheMatrixIsRightInLanesAlone) {
    for (const Function *function : all(isArray)) {
        for (const std::uint32_t order : literal::sizesOf(*function, {2, 3})) {
            SCOPED_TRACE(function->name + ", order " + std::to_string(order));
            const auto results = resultsOver(*function, order, "src1");
            bool right = true;
            for (std::uint32_t n = 0; n < results.size(); ++n) right = right && results[n] == resultOf(order, n);
            EXPECT_EQ(right, hasLanes(*function));
        }
    }
}

} // namespace
