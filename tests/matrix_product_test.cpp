// Products of matrices: numbers by hand in every form, the shapes that each group accepts and what it makes of them,
// which entries are looked at and when, in which order terms are added and rounded, and what a destination over a
// source comes to.
#include "support/family_test.h"

namespace {

using namespace literal::names;

std::vector<const Function *> all(bool (*wanted)(const Function &) = isAny) {
    return literal::members("matrix-product", wanted);
}

const std::vector<std::uint32_t> orders{1, 2, 3, 4, 5, 6, 7};

bool isOneOf(const std::string &word, std::initializer_list<std::string_view> list) {
    return std::ranges::find(list, word) != list.end();
}

const catalogue::Operand &left(const Function &function) { return function.operands[0]; }
const catalogue::Operand &right(const Function &function) { return function.operands[1]; }

// ---- Members

bool addsInPairs(const Function &function) { return isException(function, "product-pairs"); }

// Works rows in lanes and stores each element once; all others run sums through the cells.
bool worksInLanes(const Function &function) { return hasLanes(function) || isException(function, "product-simd"); }

bool runsThroughCells(const Function &function) { return !worksInLanes(function) && !addsInPairs(function); }

// ---- Numbers

double leftElement(std::uint32_t n, std::uint32_t i, std::uint32_t j) {
    return static_cast<int>((i * i + 3 * i * j + 2 * j + 5 * n + 1) % 7) - 3;
}

double rightElement(std::uint32_t n, std::uint32_t i, std::uint32_t j) {
    return static_cast<int>((2 * i + j * j + i * j + 3 * n) % 5) - 1;
}

using Square = std::vector<double>;

Square squareOf(double (*element)(std::uint32_t, std::uint32_t, std::uint32_t), std::uint32_t order, std::uint32_t n) {
    Square square;
    for (std::uint32_t k = 0; k < order * order; ++k) square.push_back(element(n, k / order, k % order));
    return square;
}

void fill(Call &call) {
    for (std::uint32_t n = 0; n < call.objectsOf("src1"); ++n)
        call.set("src1", n, squareOf(leftElement, call.size(), n));
    for (std::uint32_t n = 0; n < call.objectsOf("src2"); ++n)
        call.set("src2", n, squareOf(rightElement, call.size(), n));
}

Square productOf(const Function &function, std::uint32_t order, std::uint32_t n) {
    Square product(std::size_t{order} * order);
    const std::uint32_t m = left(function).array ? n : 0;
    const std::uint32_t l = right(function).array ? n : 0;
    for (std::uint32_t i = 0; i < order; ++i)
        for (std::uint32_t j = 0; j < order; ++j)
            for (std::uint32_t k = 0; k < order; ++k)
                product[i * order + j] += (left(function).transposed ? leftElement(m, k, i) : leftElement(m, i, k)) *
                                          (right(function).transposed ? rightElement(l, j, k) : rightElement(l, k, j));
    return product;
}

void expectDone(Call &call, std::uint32_t n) {
    EXPECT_EQ(call.get("dst", n), productOf(call.function(), call.size(), n));
}

const literal::Example example{fill, expectDone};

TEST(MatrixProduct, MultipliesSquareMatricesInEveryFormAndGeometry) {
    for (const Function *function : all()) literal::expectResults(*function, example, orders);
}

// 1 2 / 3 4 times 5 6 / 7 8 and what transposing makes of it.
TEST(MatrixProduct, ReadsEitherOperandTransposed) {
    const std::map<std::string, Square> expected{
        {"mm", {19, 22, 43, 50}}, {"mmT", {17, 23, 39, 53}}, {"mTm", {26, 30, 38, 44}}, {"mTmT", {23, 31, 34, 46}}};
    for (const Function *function : all(isRunTime)) {
        Call call(function->name, 2, 2);
        for (std::uint32_t n = 0; n < 2; ++n) {
            if (n < call.objectsOf("src1")) call.set("src1", n, {1, 2, 3, 4});
            if (n < call.objectsOf("src2")) call.set("src2", n, {5, 6, 7, 8});
        }
        EXPECT_EQ(call.run(), vonkOk);
        std::string group = function->group;
        std::erase(group, 'a');
        for (std::uint32_t n = 0; n < call.count(); ++n) EXPECT_EQ(call.get("dst", n), expected.at(group));
    }
}

TEST(MatrixProduct, TakesItsWordsInTheOrderOfTheHeader) {
    const float a[6] = {1, 2, 3, 4, 5, 6};              // 2 by 3
    const float b[12] = {1, 0, 9, 9, 0, 1, 9, 9, 1, 1}; // 3 by 2, rows 16 bytes apart
    float c[4] = {};
    EXPECT_EQ(vonkMul_mm_32f(a, 12, 3, 2, b, 16, 2, 3, c, 8), vonkOk);
    EXPECT_EQ(std::vector<float>(c, c + 4), (std::vector<float>{4, 5, 10, 11}));

    const float *const list[2] = {a, a + 3}; // 1 by 3 each
    float *const results[2] = {c + 2, c};
    EXPECT_EQ(vonkMul_mam_32f_LS2(list, 0, 12, 4, 3, 1, b, 16, 4, 2, 3, results, 0, 8, 4, 2), vonkOk);
    EXPECT_EQ(std::vector<float>(c, c + 4), (std::vector<float>{10, 11, 4, 5}));

    const double d[32] = {2, 0, 0, 0, 0, 2, 0, 0, 0, 0, 2, 0, 0, 0, 0, 2,
                          1, 2, 3, 4, 5, 6, 7, 8, 9, 1, 2, 3, 4, 5, 6, 7};
    double e[16] = {};
    const double *first[16];
    const double *second[16];
    double *third[16];
    for (int k = 0; k < 16; ++k) first[k] = d + k, second[k] = d + 16 + k, third[k] = e + k;
    EXPECT_EQ(vonkMul_mama_64f_4x4_PS2(first, 0, 0, second, 0, 0, third, 0, 0, 1), vonkOk);
    for (int k = 0; k < 16; ++k) EXPECT_EQ(e[k], 2 * d[16 + k]);
}

TEST(MatrixProduct, OfOrderOneIsZeroPlusTheProduct) {
    for (const Function *function : all(isRunTime)) {
        Call call(function->name, 1);
        for (const auto &[a, b, expected] : {std::array{3.0, -5.0, -15.0}, std::array{-0.0, 4.0, 0.0}}) {
            call.set("src1", 0, {a});
            call.set("src2", 0, {b});
            EXPECT_EQ(call.run(), vonkOk);
            literal::expectSame(expected, call.get("dst", 0, 0, 0), "dst");
        }
    }
}

// A stride of 0 is as good as any: all objects of the destination fall on one another, and the last one stays.
TEST(MatrixProduct, LeavesTheLastObjectWhereAllFallOnOneAnother) {
    for (const Function *function : all()) {
        if (!literal::has(*function, catalogue::Kind::objectStride)) continue;
        Call call(function->name, 4, 3);
        fill(call);
        call.pass("dstObjStride", 0);
        EXPECT_EQ(call.run(), vonkOk);
        EXPECT_EQ(call.get("dst", 0), productOf(*function, call.size(), 2));
    }
}

// ---- Shapes

enum Word { cols1, rows1, cols2, rows2 };
using Words = std::array<std::uint32_t, 4>;
constexpr std::array<const char *, 4> wordNames{"src1Cols", "src1Rows", "src2Cols", "src2Rows"};

// What a group makes of its words: which must not be 0, which two must be equal, the rows, columns and terms of the
// loops, and the entries of a table of `dst` that are looked at up front.
struct Rule {
    std::array<Word, 3> nonZero;
    std::array<Word, 2> equal;
    Word rows, cols, terms;
    std::array<Word, 2> scan;
};

const Rule &ruleOf(const Function &function) {
    static const std::map<std::string, Rule> rules{
        {"mm", {{rows1, cols1, cols2}, {cols1, rows2}, rows1, cols2, rows2, {}}},
        {"mam", {{rows1, cols1, rows2}, {rows2, cols1}, rows1, cols2, rows2, {cols1, rows2}}},
        {"mma", {{rows1, cols1, rows2}, {rows1, cols2}, rows1, cols2, rows2, {cols1, rows2}}},
        {"mama", {{rows1, cols1, rows2}, {rows1, cols2}, rows1, cols2, rows2, {cols1, rows2}}},
        {"mTm", {{rows1, cols1, cols2}, {rows1, rows2}, rows1, cols2, rows2, {}}},
        {"maTm", {{rows1, cols1, cols2}, {rows1, rows2}, rows1, cols2, rows2, {rows1, rows2}}},
        {"mTma", {{rows1, cols1, cols2}, {rows1, rows2}, rows1, cols2, rows2, {rows1, rows2}}},
        {"maTma", {{rows1, cols1, cols2}, {rows1, rows2}, rows1, cols2, rows2, {rows1, rows2}}},
        {"mmT", {{rows1, cols1, rows2}, {cols1, cols2}, rows1, cols2, rows2, {}}},
        {"mamT", {{rows1, cols1, rows2}, {cols1, cols2}, rows1, cols2, rows2, {cols1, cols2}}},
        {"mmaT", {{rows1, cols1, rows2}, {cols1, cols2}, rows1, cols2, rows2, {cols1, cols2}}},
        {"mamaT", {{rows1, cols1, rows2}, {cols1, cols2}, rows1, cols2, rows2, {cols1, cols2}}},
        {"mTmT", {{rows1, cols1, rows2}, {rows1, cols2}, rows1, cols2, rows2, {}}},
        {"maTmT", {{rows1, cols1, rows2}, {rows1, cols2}, rows1, cols2, rows2, {rows1, cols2}}},
        {"mTmaT", {{rows1, cols1, rows2}, {rows1, cols2}, rows1, cols2, rows2, {rows1, cols2}}},
        {"maTmaT", {{rows1, cols1, rows2}, {rows1, cols2}, rows1, cols2, rows2, {rows1, cols2}}},
    };
    // The one group in the one layout whose loops follow the stored shapes.
    static const Rule stored{{rows1, cols1, rows2}, {cols1, cols2}, rows1, rows2, cols1, {}};
    return function.group == "mmT" && function.layout.empty() ? stored : rules.at(function.group);
}

bool accepts(const Rule &rule, const Words &words) {
    return std::ranges::all_of(rule.nonZero, [&](Word word) { return words[word] != 0; }) &&
           words[rule.equal[0]] == words[rule.equal[1]];
}

std::string describe(const Function &function, const Words &words) {
    std::string text = function.name;
    for (Word word : {cols1, rows1, cols2, rows2})
        text += std::string(", ") + wordNames[word] + " " + std::to_string(words[word]);
    return text;
}

std::vector<Words> wordsUpTo(std::uint32_t most) {
    std::vector<Words> list;
    const std::uint32_t base = most + 1;
    for (std::uint32_t code = 0; code < base * base * base * base; ++code)
        list.push_back({code % base, code / base % base, code / base / base % base, code / base / base / base});
    return list;
}

// A call with room for three by three, told of other shapes. Tables are indexed by what the words say.
class ShapedCall {
public:
    explicit ShapedCall(const Function &function) : call(function.name, side, 2), rule(ruleOf(function)) {
        for (const char *operand : {"src1", "src2"}) square(operand);
        fill(call);
    }

    void tell(const Words &told) {
        words = told;
        for (Word word : {cols1, rows1, cols2, rows2}) call.pass(wordNames[word], words[word]);
        square("dst");
        for (std::uint32_t n = 0; n < call.count(); ++n) call.set("dst", n, Square(side * side, unwritten));
        if (isTabled(call.function())) {
            call["src1"].cols = words[left(call.function()).transposed ? rows1 : cols1];
            call["src2"].cols = words[right(call.function()).transposed ? rows2 : cols2];
        }
        call["dst"].rows = words[rule.rows];
        call["dst"].cols = words[rule.cols];
    }

    void expectProducts() {
        const bool first = left(call.function()).transposed;
        const bool second = right(call.function()).transposed;
        for (std::uint32_t n = 0; n < call.count(); ++n)
            for (std::uint32_t i = 0; i < words[rule.rows]; ++i)
                for (std::uint32_t j = 0; j < words[rule.cols]; ++j) {
                    double sum = 0;
                    for (std::uint32_t k = 0; k < words[rule.terms]; ++k)
                        sum += call.get("src1", n, first ? k : i, first ? i : k) *
                               call.get("src2", n, second ? j : k, second ? k : j);
                    EXPECT_EQ(call.get("dst", n, i, j), sum) << n << ", " << i << ", " << j;
                }
    }

    // Places in the tables that the loops come to.
    std::set<std::size_t> used(std::string_view operand) const {
        const bool first = left(call.function()).transposed;
        const bool second = right(call.function()).transposed;
        std::set<std::size_t> entries;
        for (std::size_t i = 0; i < words[rule.rows]; ++i)
            for (std::size_t j = 0; j < words[rule.cols]; ++j) {
                if (operand == "dst") entries.insert(i * words[rule.cols] + j);
                for (std::size_t k = 0; k < words[rule.terms]; ++k) {
                    if (operand == "src1") entries.insert(first ? k * words[rows1] + i : i * words[cols1] + k);
                    if (operand == "src2") entries.insert(second ? j * words[rows2] + k : k * words[cols2] + j);
                }
            }
        return entries;
    }

    std::size_t scanned(std::string_view operand) const {
        if (operand == "src1") return std::size_t{words[cols1]} * words[rows1];
        if (operand == "src2") return std::size_t{words[cols2]} * words[rows2];
        return std::size_t{words[rule.scan[0]]} * words[rule.scan[1]];
    }

    static constexpr std::uint32_t side = 3;
    static constexpr double unwritten = 77;
    Call call;

private:
    void square(const char *operand) { call[operand].rows = call[operand].cols = side; }

    const Rule &rule;
    Words words{};
};

TEST(MatrixProductShapes, AreAcceptedRefusedAndLoopedOverAsEachGroupWillHaveThem) {
    for (const Function *function : all(isRunTime)) {
        ShapedCall shaped(*function);
        for (const Words &words : wordsUpTo(3)) {
            SCOPED_TRACE(describe(*function, words));
            shaped.tell(words);
            const bool accepted = accepts(ruleOf(*function), words);
            ASSERT_EQ(shaped.call.run(), accepted ? vonkOk : vonkErrSize);
            if (accepted) shaped.expectProducts();
            EXPECT_TRUE(accepted || shaped.call.changedNothing());
            if (const auto stray = shaped.call.strayWrites()) ADD_FAILURE() << stray.what;
        }
    }
}

// 1 2 3 / 4 5 6 and whatever follows them. As a product of 2 by 3 and 3 by 4 it is refused; rows of five terms out of
// 2 by 3 run on into what lies behind the third column: 1 2 3 4 5 / 4 5 6 7 8 by 1 0 / 0 1 / 1 1 / 2 0 / 0 2.
template <typename Real, typename Export> void expectTrueProductRefusedAndFiveTermsTaken(Export product) {
    const Real first[8] = {1, 2, 3, 4, 5, 6, 7, 8};
    const Real second[12] = {1, 0, 0, 1, 1, 1, 2, 0, 0, 2, 9, 9};
    Real result[8] = {9, 9, 9, 9, 9, 9, 9, 9};
    const auto e = static_cast<std::int32_t>(sizeof(Real));
    EXPECT_EQ(product(first, 3 * e, 3, 2, second, 0, 4 * e, 4, 3, result, 0, 4 * e, 1), vonkErrSize);
    EXPECT_EQ(std::vector<Real>(result, result + 8), std::vector<Real>(8, 9));
    EXPECT_EQ(product(first, 3 * e, 3, 2, second, 0, 2 * e, 2, 5, result, 0, 2 * e, 1), vonkOk);
    EXPECT_EQ(std::vector<Real>(result, result + 5), (std::vector<Real>{12, 15, 24, 27, 9}));
}

TEST(MatrixProductShapes, OfASingleMatrixByAnArrayCompareRowsWithColumns) {
    expectTrueProductRefusedAndFiveTermsTaken<float>(vonkMul_mma_32f);
    expectTrueProductRefusedAndFiveTermsTaken<double>(vonkMul_mma_64f);
}

// 1 2 3 / 4 5 6 by 1 0 1 / 2 1 0 / 0 3 1 / 1 1 1 transposed.
TEST(MatrixProductShapes, OfATransposedSecondMatrixAreTrueInTheStandardLayoutAlone) {
    const float first[6] = {1, 2, 3, 4, 5, 6};
    const float second[12] = {1, 0, 1, 2, 1, 0, 0, 3, 1, 1, 1, 1};
    float result[12] = {};
    EXPECT_EQ(vonkMul_mmT_32f(first, 12, 3, 2, second, 12, 3, 4, result, 16), vonkOk);
    EXPECT_EQ(std::vector<float>(result, result + 8), (std::vector<float>{4, 4, 9, 6, 10, 13, 21, 15}));

    // Strided, the same words make rows of three elements and sums of four terms: 1 2 3 4 and 4 5 6 7 by the rows
    // 1 0 1 2, 2 1 0 0 and 0 3 1 1, all running on into the next row.
    const float longer[7] = {1, 2, 3, 4, 5, 6, 7};
    float strided[12] = {};
    EXPECT_EQ(vonkMul_mmT_32f_S2(longer, 12, 4, 3, 2, second, 12, 4, 3, 4, strided, 16, 4), vonkOk);
    EXPECT_EQ(std::vector<float>(strided, strided + 8), (std::vector<float>{12, 4, 13, 0, 24, 13, 28, 0}));
}

// Three rows of src1 of two columns each, told apart by 12 bytes: the third row of the result comes of the column
// behind them.
TEST(MatrixProductShapes, OfATransposedFirstMatrixTakeAsManyRowsAsItHasItself) {
    const double first[9] = {1, 2, 10, 3, 4, 20, 5, 6, 30};
    const double second[3] = {1, 1, 2};
    double result[4] = {9, 9, 9, 9};
    EXPECT_EQ(vonkMul_mTm_64f(first, 24, 2, 3, second, 8, 1, 3, result, 8), vonkOk);
    EXPECT_EQ(std::vector<double>(result, result + 4), (std::vector<double>{14, 18, 90, 9}));
}

// Where the columns of src1 count for nothing, they count for nothing at any size, and words are never negative.
TEST(MatrixProductShapes, IgnoreTheColumnsOfTheFirstMatrixInTheGroupsThatDoNotCompareThem) {
    for (const Function *function : all()) {
        if (function->order != 0 || isTabled(*function)) continue;
        const Rule &rule = ruleOf(*function);
        const bool compared = std::ranges::find(rule.equal, cols1) != rule.equal.end();
        for (const std::uint32_t told : {1U, 4U, 0x80000003U, 0xffffffffU}) {
            SCOPED_TRACE(function->name + ", " + std::to_string(told) + " columns");
            Call call(function->name, 3, 2);
            fill(call);
            call.pass("src1Cols", told);
            EXPECT_EQ(call.run(), compared ? vonkErrSize : vonkOk);
            EXPECT_EQ(call.changedNothing(), compared);
            if (!compared) literal::expectAllDone(call, example);
        }
    }
}

// ---- What is tested, and when

TEST(MatrixProductChecks, RefuseWordsThatDoNotFitAheadOfEntriesAndCount) {
    for (const Function *function : all(isRunTime)) {
        Call call(function->name, 3, 2);
        fill(call);
        call.pass(wordNames[ruleOf(*function).equal[1]], 2);
        literal::blankEntries(call);
        if (function->array()) call.pass("count", 0);
        EXPECT_EQ(call.run(), vonkErrSize);
        EXPECT_TRUE(call.changedNothing());
    }
}

// ---- Tables of positions whose extents are not what the loops use

TEST(MatrixProductTables, AreScannedByTheWordsAheadOfTheCount) {
    for (const Function *function : all()) {
        if (function->order != 0 || !isTabled(*function) || !function->array()) continue;
        ShapedCall shaped(*function);
        shaped.call.pass("count", 0);
        for (const Words &words : wordsUpTo(3)) {
            if (!accepts(ruleOf(*function), words)) continue;
            SCOPED_TRACE(describe(*function, words));
            shaped.tell(words);
            for (const char *operand : {"src1", "src2", "dst"}) {
                std::vector<std::byte *> &entries = shaped.call[operand].entries;
                for (std::size_t entry = 0; entry < entries.size(); ++entry) {
                    std::byte *const kept = entries[entry];
                    entries[entry] = nullptr;
                    EXPECT_EQ(shaped.call.run(), entry < shaped.scanned(operand) ? vonkErrNullPtr : vonkOk)
                        << operand << "[" << entry << "]";
                    EXPECT_TRUE(shaped.call.changedNothing());
                    entries[entry] = kept;
                }
            }
        }
    }
}

TEST(MatrixProductTables, MayHaveNullsBeyondTheScanWhereTheLoopsDoNotCome) {
    std::size_t blanked = 0;
    for (const Function *function : all()) {
        if (function->order != 0 || !isTabled(*function) || !function->array()) continue;
        ShapedCall shaped(*function);
        for (const Words &words : wordsUpTo(3)) {
            if (!accepts(ruleOf(*function), words)) continue;
            SCOPED_TRACE(describe(*function, words));
            shaped.tell(words);
            std::map<std::string, std::vector<std::byte *>> kept;
            for (const char *operand : {"src1", "src2", "dst"}) {
                std::vector<std::byte *> &entries = shaped.call[operand].entries;
                kept[operand] = entries;
                const auto used = shaped.used(operand);
                for (std::size_t entry = shaped.scanned(operand); entry < entries.size(); ++entry)
                    if (!used.contains(entry)) entries[entry] = nullptr, ++blanked;
            }
            EXPECT_EQ(shaped.call.run(), vonkOk);
            for (const auto &[operand, entries] : kept) shaped.call[operand].entries = entries;
            shaped.expectProducts();
        }
    }
    EXPECT_GT(blanked, 0U);
}

TEST(MatrixProductTables, AreFollowedBeyondTheScanWithoutALook) {
    std::map<std::string, std::size_t> followed;
    for (const Function *function : all()) {
        if (function->order != 0 || !isTabled(*function) || !function->array()) continue;
        ShapedCall shaped(*function);
        for (const Words &words : wordsUpTo(3)) {
            if (!accepts(ruleOf(*function), words)) continue;
            SCOPED_TRACE(describe(*function, words));
            for (const char *operand : {"src1", "src2", "dst"}) {
                shaped.tell(words);
                for (const std::size_t entry : shaped.used(operand)) {
                    if (entry < shaped.scanned(operand)) continue;
                    ++followed[operand];
                    EXPECT_EQ(literal::runThroughNull(shaped.call, operand, entry), vonkOk)
                        << operand << "[" << entry << "]";
                    shaped.expectProducts();
                }
            }
        }
    }
    EXPECT_GT(followed["src1"], 0U);
    EXPECT_EQ(followed["src2"], 0U); // whose scan is as large as its loops
    EXPECT_GT(followed["dst"], 0U);
}

// ---- Orders of addition

// Every element of every object gets the same terms: the rows of A hold them and B holds ones.
void setTerms(Call &call, const std::vector<double> &terms) {
    const std::uint32_t order = call.size();
    for (std::uint32_t n = 0; n < call.objectsOf("src1"); ++n)
        for (std::uint32_t i = 0; i < order; ++i)
            for (std::uint32_t k = 0; k < order; ++k)
                call.set("src1", n, left(call.function()).transposed ? k : i, left(call.function()).transposed ? i : k,
                         terms[k]);
    for (std::uint32_t n = 0; n < call.objectsOf("src2"); ++n)
        call.set("src2", n, Square(std::size_t{order} * order, 1));
}

void expectEverywhere(Call &call, double expected) {
    for (std::uint32_t n = 0; n < call.count(); ++n)
        literal::expectSame(Square(std::size_t{call.size()} * call.size(), expected), call.get("dst", n), "dst");
}

TEST(MatrixProductSums, RunThroughTheTermsButForThreeMembersThatAddPairs) {
    std::size_t pairs = 0;
    for (const Function *function : all()) {
        if (addsInPairs(*function)) ++pairs;
        for (const std::uint32_t order : literal::sizesOf(*function, {3, 5})) {
            const std::string tree = addsInPairs(*function) ? "(((01)(23))(45))" : literal::runningTree(order);
            Call call(function->name, order, 2);
            for (const std::vector<double> &terms : literal::threesomes(order)) {
                SCOPED_TRACE(function->name + ", " + ::testing::PrintToString(terms));
                setTerms(call, terms);
                ASSERT_EQ(call.run(), vonkOk);
                expectEverywhere(call, literal::sumByTree(tree, terms));
            }
        }
    }
    EXPECT_EQ(pairs, 3U);
}

// 1 and two halves of its last place: one after the other they are rounded away, as a pair they make a whole one.
TEST(MatrixProductSums, RoundEveryFloatAddition) {
    for (const Function *function : all(isFloat)) {
        for (const std::uint32_t order : literal::sizesOf(*function, {4})) {
            Call call(function->name, order, 2);
            std::vector<double> terms(order);
            terms[0] = 1;
            terms[order - 1] = terms[order - 2] = 0x1p-24;
            if (order == 3) terms = {1, 0x1p-24, 0x1p-24};
            setTerms(call, terms);
            ASSERT_EQ(call.run(), vonkOk);
            expectEverywhere(call, addsInPairs(*function) ? 1 + 0x1p-23 : 1);
        }
    }
}

// (1 + 2^-12)^2 is 1 + 2^-11 + 2^-24, a tie that falls back to 1 + 2^-11: no product is fused with its addition.
TEST(MatrixProductSums, RoundEveryFloatProduct) {
    for (const Function *function : all(isFloat)) {
        for (const std::uint32_t order : literal::sizesOf(*function, {2})) {
            Call call(function->name, order, 2);
            for (std::uint32_t n = 0; n < call.count(); ++n)
                for (const char *source : {"src1", "src2"})
                    if (n < call.objectsOf(source)) call.set(source, n, Square(std::size_t{order} * order, 0));
            const double side = 1 + 0x1p-12;
            for (std::uint32_t n = 0; n < call.count(); ++n) {
                const bool first = left(*function).transposed;
                const bool second = right(*function).transposed;
                if (n < call.objectsOf("src1")) {
                    call.set("src1", n, 0, 0, -(1 + 0x1p-11));
                    call.set("src1", n, first ? 1 : 0, first ? 0 : 1, side);
                }
                if (n < call.objectsOf("src2")) {
                    call.set("src2", n, 0, 0, 1);
                    call.set("src2", n, second ? 0 : 1, second ? 1 : 0, side);
                }
            }
            ASSERT_EQ(call.run(), vonkOk);
            for (std::uint32_t n = 0; n < call.count(); ++n) literal::expectSame(0, call.get("dst", n, 0, 0), "dst");
        }
    }
}

TEST(MatrixProductSums, BeginAtPlusZeroInCellsAndAtTheFirstProductInLanes) {
    for (const Function *function : all())
        for (const std::uint32_t order : literal::sizesOf(*function, {1, 4})) {
            Call call(function->name, order, 2);
            setTerms(call, std::vector<double>(order, -0.0));
            ASSERT_EQ(call.run(), vonkOk);
            expectEverywhere(call, runsThroughCells(*function) ? 0.0 : -0.0);
        }
}

bool keepsExtendedSums(const Function &function) { return isOneOf(function.layout, {"", "S2"}); }

// 1 and two halves of its last place again. In the 80-bit unit they make a whole one, unless the sum goes through the
// cell at every step or the unit is set to 53 bits.
TEST(MatrixProductSums, OfDoublesAreRoundedOnceOrAtEveryStepByLayout) {
    for (const Function *function : all(isDouble)) {
        for (const std::uint32_t order : literal::sizesOf(*function, {3, 7}))
            for (const Precision precision : {Precision::bits53, Precision::bits64}) {
                const SettingScope scope({precision, Rounding::nearest});
                Call call(function->name, order, 2);
                std::vector<double> terms(order);
                terms[0] = 1;
                terms[1] = terms[2] = 0x1p-53;
                setTerms(call, terms);
                ASSERT_EQ(call.run(), vonkOk);
                expectEverywhere(call,
                                 precision == Precision::bits64 && keepsExtendedSums(*function) ? 1 + 0x1p-52 : 1);
            }
    }
}

// (1 + 2^-30)^2 is 1 + 2^-29 + 2^-60. Its last bit outlives the subtraction of 1 + 2^-29 where the product is extended
// and nothing has rounded it yet: always if it comes second, and if it comes first where the sum stays in the unit.
TEST(MatrixProductSums, TakeProductsOfDoublesExtended) {
    for (const Function *function : all(isDouble)) {
        for (const std::uint32_t order : literal::sizesOf(*function, {2}))
            for (const Precision precision : {Precision::bits53, Precision::bits64})
                for (const std::uint32_t place : {0U, 1U}) {
                    SCOPED_TRACE(function->name + ", product " + std::to_string(place));
                    const SettingScope scope({precision, Rounding::nearest});
                    Call call(function->name, order, 2);
                    std::vector<double> terms(order);
                    terms[place] = 1 + 0x1p-30;
                    terms[1 - place] = -(1 + 0x1p-29);
                    setTerms(call, terms);
                    for (std::uint32_t n = 0; n < call.objectsOf("src2"); ++n)
                        for (std::uint32_t j = 0; j < order; ++j)
                            call.set("src2", n, right(*function).transposed ? j : place,
                                     right(*function).transposed ? place : j, 1 + 0x1p-30);
                    ASSERT_EQ(call.run(), vonkOk);
                    const bool survives =
                        precision == Precision::bits64 && (place == 1 || keepsExtendedSums(*function));
                    expectEverywhere(call, survives ? 0x1p-60 : 0);
                }
    }
}

// ---- A destination over a source

// The outcome of reads and stores in their order, on memory in which object n of `dst` is object n of a source, or the
// first one a single source.
class Aliased {
public:
    Aliased(const Function &function, std::uint32_t order, std::uint32_t count, std::string over)
        : function(function), order(order), over(std::move(over)) {
        for (std::uint32_t n = 0; n < count; ++n) {
            sources["src1"].push_back(squareOf(leftElement, order, n));
            sources["src2"].push_back(squareOf(rightElement, order, n));
            results.emplace_back(std::size_t{order} * order);
        }
    }

    // A zero and each partial sum go to the cell.
    void runThroughCells() {
        for (std::uint32_t n = 0; n < results.size(); ++n)
            for (std::uint32_t i = 0; i < order; ++i)
                for (std::uint32_t j = 0; j < order; ++j) {
                    double sum = 0;
                    store(n, i, j, sum);
                    for (std::uint32_t k = 0; k < order; ++k) store(n, i, j, sum += a(n, i, k) * b(n, k, j));
                }
    }

    // B is held, for all objects if it is single; A is read as rows come up.
    void runInLanes() {
        for (std::uint32_t n = 0; n < results.size(); ++n) {
            if (n == 0 || right(function).array) hold(n, 0, order);
            if (order < 6) {
                for (std::uint32_t i = 0; i < order; ++i) passOver(n, {i}, 0, order);
                continue;
            }
            for (std::uint32_t i = 0; i < order; ++i) passOver(n, {i}, 0, 4);
            if (isOneOf(function.group, {"mmT", "mTmT"})) hold(n, 4, 6);
            for (std::uint32_t i = 0; i < order; i += 2) passOver(n, {i, i + 1}, 4, 6);
        }
    }

    std::vector<Square> results;

private:
    std::uint32_t object(const std::string &source, std::uint32_t n) const {
        return (source == "src1" ? left(function) : right(function)).array ? n : 0;
    }
    double a(std::uint32_t n, std::uint32_t i, std::uint32_t k) const {
        const Square &square = sources.at("src1")[object("src1", n)];
        return left(function).transposed ? square[k * order + i] : square[i * order + k];
    }
    double b(std::uint32_t n, std::uint32_t k, std::uint32_t j) const {
        const Square &square = sources.at("src2")[object("src2", n)];
        return right(function).transposed ? square[j * order + k] : square[k * order + j];
    }
    void store(std::uint32_t n, std::uint32_t i, std::uint32_t j, double value) {
        results[n][i * order + j] = value;
        if (object(over, n) == n) sources[over][n][i * order + j] = value;
    }
    void hold(std::uint32_t n, std::uint32_t from, std::uint32_t to) {
        held.resize(std::size_t{order} * order);
        for (std::uint32_t k = 0; k < order; ++k)
            for (std::uint32_t j = from; j < to; ++j) held[k * order + j] = b(n, k, j);
    }
    // Computes whole rows, or parts of them, before it stores. The fifth column of a plain single matrix is fetched
    // for every row.
    void passOver(std::uint32_t n, const std::vector<std::uint32_t> &rows, std::uint32_t from, std::uint32_t to) {
        if (order == 5 && !right(function).array && !right(function).transposed) hold(n, 4, 5);
        std::vector<double> sums;
        for (const std::uint32_t i : rows)
            for (std::uint32_t j = from; j < to; ++j) {
                sums.push_back(0);
                for (std::uint32_t k = 0; k < order; ++k) sums.back() += a(n, i, k) * held[k * order + j];
            }
        auto sum = sums.begin();
        for (const std::uint32_t i : rows)
            for (std::uint32_t j = from; j < to; ++j) store(n, i, j, *sum++);
    }

    const Function &function;
    std::uint32_t order;
    std::string over;
    std::map<std::string, std::vector<Square>> sources;
    Square held;
};

// Which destinations over a source give the product, of the forms that work in lanes, by order and group.
enum Right { neither, first, second, either };

Right rightInPlace(const Function &function) {
    const std::string &group = function.group;
    if (function.order == 6)
        return isOneOf(group, {"mm", "mTm", "mma", "mTma", "mmaT", "mTmaT", "mama", "maTma", "mamaT", "maTmaT"})
                   ? second
                   : neither;
    if (isOneOf(group, {"mTmT", "mma", "mTma", "mmaT", "mTmaT", "maTma", "maTmaT"})) return second;
    if (isOneOf(group, {"mmT", "mama", "mamaT"})) return either;
    if (isOneOf(group, {"mam", "mamT"})) return first;
    if (group == "mm") return function.order == 5 ? first : either;
    if (group == "mTm") return function.order == 5 ? neither : second;
    return neither; // maTm, maTmT
}

std::vector<Square> resultsOver(const Function &function, std::uint32_t order, const std::string &source,
                                std::uint32_t count) {
    Call call(function.name, order, count);
    call.layOver(source);
    fill(call);
    EXPECT_EQ(call.run(), vonkOk);
    if (const auto stray = call.strayWrites()) ADD_FAILURE() << stray.what;
    std::vector<Square> results;
    for (std::uint32_t n = 0; n < call.count(); ++n) results.push_back(call.get("dst", n));
    return results;
}

bool isProduct(const Function &function, std::uint32_t order, const std::vector<Square> &results) {
    for (std::uint32_t n = 0; n < results.size(); ++n)
        if (results[n] != productOf(function, order, n)) return false;
    return true;
}

// A single source under the first object of an array is another matter, below.
std::vector<std::string> sourcesOfTheKindOfDst(const Function &function) {
    std::vector<std::string> names;
    for (const catalogue::Operand &operand : function.operands)
        if (!operand.written && operand.array == function.array()) names.push_back(operand.name);
    return names;
}

TEST(MatrixProductInPlace, IsRightInLanesWhereTheOperandIsHeldOrReadAheadOfItsRow) {
    for (const Function *function : all()) {
        if (!worksInLanes(*function) || !isOneOf(function->layout, {"", "L"})) continue;
        if (function->order == 6 && function->layout == "L") continue; // not promised
        const auto order = static_cast<std::uint32_t>(function->order);
        const Right expected = rightInPlace(*function);
        for (const std::string &source : sourcesOfTheKindOfDst(*function)) {
            SCOPED_TRACE(function->name + ", dst over " + source);
            const std::vector<Square> results = resultsOver(*function, order, source, 3);
            EXPECT_EQ(isProduct(*function, order, results),
                      expected == either || expected == (source == "src1" ? first : second));
            Aliased aliased(*function, order, static_cast<std::uint32_t>(results.size()), source);
            aliased.runInLanes();
            EXPECT_EQ(results, aliased.results);
        }
    }
}

TEST(MatrixProductInPlace, IsRightWhereTheSecondMatrixIsGatheredFirst) {
    for (const Function *function : all()) {
        if (!addsInPairs(*function)) continue;
        for (const std::string source : {"src1", "src2"}) {
            SCOPED_TRACE(function->name + ", dst over " + source);
            EXPECT_EQ(isProduct(*function, 6, resultsOver(*function, 6, source, 1)),
                      source == "src2" || function->group != "mTmT");
        }
    }
}

// The zero and the partial sums fall on elements that are still needed.
TEST(MatrixProductInPlace, GoesWrongWhereSumsRunThroughCells) {
    for (const Function *function : all()) {
        if (!runsThroughCells(*function)) continue;
        for (const std::uint32_t order : literal::sizesOf(*function, {2, 3, 7}))
            for (const std::string &source : sourcesOfTheKindOfDst(*function)) {
                SCOPED_TRACE(function->name + ", order " + std::to_string(order) + ", dst over " + source);
                const std::vector<Square> results = resultsOver(*function, order, source, 3);
                EXPECT_FALSE(isProduct(*function, order, results));
                Aliased aliased(*function, order, static_cast<std::uint32_t>(results.size()), source);
                aliased.runThroughCells();
                EXPECT_EQ(results, aliased.results);
            }
    }
}

// Of 3 by itself in place nothing is left: the cell is 0 before it is read.
TEST(MatrixProductInPlace, OfOrderOneIsZero) {
    for (const Function *function : all(isRunTime)) {
        for (const std::string &source : sourcesOfTheKindOfDst(*function)) {
            SCOPED_TRACE(function->name + ", dst over " + source);
            Call call(function->name, 1);
            call.layOver(source);
            call.set("src1", 0, {3});
            call.set("src2", 0, {3});
            EXPECT_EQ(call.run(), vonkOk);
            literal::expectSame(0, call.get("dst", 0, 0, 0), "dst");
        }
    }
}

// ---- The first object over a single source

// Whether the reads and stores of the form are fixed: of the tables and strided layouts those orders whose columns all
// fit into lanes, and at order 6 the standard layout.
bool hasFixedReads(const Function &function) {
    if (runsThroughCells(function)) return true;
    if (isOneOf(function.layout, {"", "L"})) return function.order < 6 || function.layout.empty();
    return function.order < 5;
}

TEST(MatrixProductOverASingleSource, SeesWhatTheFirstObjectLeftButForASecondMatrixInLanes) {
    std::size_t held = 0;
    for (const Function *function : all()) {
        if (!function->array() || !hasFixedReads(*function)) continue;
        for (const catalogue::Operand &operand : function->operands) {
            if (operand.array) continue;
            for (const std::uint32_t order : literal::sizesOf(*function, {2, 3})) {
                SCOPED_TRACE(function->name + ", order " + std::to_string(order) + ", dst over " + operand.name);
                const std::vector<Square> results = resultsOver(*function, order, operand.name, 3);
                Aliased aliased(*function, order, 3, operand.name);
                if (runsThroughCells(*function)) aliased.runThroughCells();
                else aliased.runInLanes();
                EXPECT_EQ(results, aliased.results);
                const bool holds =
                    worksInLanes(*function) && operand.name == "src2" && (function->order != 5 || operand.transposed);
                if (holds) ++held;
                const bool laterAreProducts =
                    results[1] == productOf(*function, order, 1) && results[2] == productOf(*function, order, 2);
                EXPECT_EQ(laterAreProducts, holds);
            }
        }
    }
    EXPECT_GT(held, 0U);
}

} // namespace
