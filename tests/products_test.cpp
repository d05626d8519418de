// Products of matrices, of matrices and vectors, and those plus a vector: numbers by hand in every form, the shapes
// that each group accepts, which entries of tables are looked at, in which order terms are added and rounded, and what
// a destination over a source comes to.
#include "support/family_test.h"
#include "support/matrix_checks.h"

namespace {

using namespace literal::names;

std::vector<const Function *> all(bool (*wanted)(const Function &) = isAny) {
    std::vector<const Function *> found;
    for (const char *section : {"matrix-product", "matrix-vector", "gaxpy"})
        std::ranges::copy(literal::members(section, wanted), std::back_inserter(found));
    return found;
}

bool isMatrixProduct(const Function &function) { return function.section->id == "matrix-product"; }
bool isGaxpy(const Function &function) { return function.section->id == "gaxpy"; }
bool isArrayOfTables(const Function &function) {
    return isRunTime(function) && isTabled(function) && isArray(function);
}

const Operand &first(const Function &function) { return function.operands[0]; }
const Operand &second(const Function &function) { return function.operands[1]; }

bool addsInPairs(const Function &function) { return isException(function, "product-pairs"); }

// Works rows in lanes and stores each element once; all others but those that add in pairs run sums through the cells.
bool worksInLanes(const Function &function) { return hasLanes(function) || isException(function, "product-simd"); }
bool runsThroughCells(const Function &function) { return !worksInLanes(function) && !addsInPairs(function); }

// ---- Numbers

// 1 2 / 3 4 times 5 6 / 7 8 or 5 6, plus 100 200.
void fillByHand(Call &call) {
    literal::setObjects(call, "src1", {1, 2, 3, 4});
    if (isMatrixProduct(call.function())) literal::setObjects(call, "src2", {5, 6, 7, 8});
    else literal::setObjects(call, "src2", {5, 6});
    if (isGaxpy(call.function())) literal::setObjects(call, "src3", {100, 200});
}

// By group, of arrays and single operands alike.
const std::map<std::string, std::vector<double>> byHand{
    {"mm", {19, 22, 43, 50}}, {"mmT", {17, 23, 39, 53}}, {"mTm", {26, 30, 38, 44}}, {"mTmT", {23, 31, 34, 46}},
    {"mv", {17, 39}},         {"mTv", {23, 34}},         {"v", {117, 239}},
};

TEST(Products, ReadEitherOperandTransposedInEveryGeometry) {
    const literal::Example example{fillByHand, [](Call &call, std::uint32_t n) {
                                       std::string group = call.function().group;
                                       std::erase(group, 'a');
                                       EXPECT_EQ(call.get("dst", n), byHand.at(group));
                                   }};
    for (const Function *function : all(isRunTime)) literal::expectResults(*function, example, {2});
}

// Element (i, j) as it enters the product; vectors are columns.
double element(const Operand &source, std::uint32_t n, std::uint32_t i, std::uint32_t j) {
    if (!source.array) n = 0;
    if (source.name == "src1") return static_cast<int>((i * i + 3 * i * j + 2 * j + 5 * n + 1) % 7) - 3;
    if (source.name == "src3") return static_cast<int>((3 * i + 4 * n) % 9) + 20;
    return static_cast<int>((2 * i + j * j + i * j + 3 * n) % 5) + (source.matrix ? -1 : 1);
}

void setEntering(Call &call, const Operand &source, std::uint32_t n, std::uint32_t i, std::uint32_t j, double value) {
    if (source.matrix) literal::setElement(call, source.name, n, i, j, value);
    else call.set(source.name, n, 0, i, value);
}

void fill(Call &call) {
    for (const Operand &source : sourcesOf(call.function()))
        for (std::uint32_t n = 0; n < call.objectsOf(source.name); ++n)
            for (std::uint32_t i = 0; i < call.size(); ++i)
                for (std::uint32_t j = 0; j < (source.matrix ? call.size() : 1); ++j)
                    setEntering(call, source, n, i, j, element(source, n, i, j));
}

std::vector<double> productOf(const Function &function, std::uint32_t order, std::uint32_t n) {
    std::vector<double> product;
    for (std::uint32_t i = 0; i < order; ++i)
        for (std::uint32_t j = 0; j < (isMatrixProduct(function) ? order : 1); ++j) {
            product.push_back(isGaxpy(function) ? element(function.operands[2], n, i, 0) : 0);
            for (std::uint32_t k = 0; k < order; ++k)
                product.back() += element(first(function), n, i, k) * element(second(function), n, k, j);
        }
    return product;
}

const literal::Example example{fill, [](Call &call, std::uint32_t n) {
                                   EXPECT_EQ(call.get("dst", n), productOf(call.function(), call.size(), n));
                               }};

TEST(Products, AreRightOfEveryOrderInEveryFormAndGeometry) {
    for (const Function *function : all()) literal::expectResults(*function, example, {1, 2, 3, 4, 5, 6, 7});
}

// A stride of 0 is as good as any: all objects of the destination fall on one another, and the last one stays.
TEST(Products, LeaveTheLastObjectWhereAllFallOnOneAnother) {
    for (const Function *function : all(isArray)) {
        if (!literal::has(*function, Kind::objectStride)) continue;
        Call call(function->name, 4, 3);
        fill(call);
        call.pass("dstObjStride", 0);
        EXPECT_EQ(call.run(), vonkOk);
        EXPECT_EQ(call.get("dst", 0), productOf(*function, call.size(), 2));
    }
}

template <class Real, std::size_t size> std::vector<double> listOf(const Real (&numbers)[size]) {
    return {numbers, numbers + size};
}

TEST(Products, TakeTheirWordsInTheOrderOfTheHeader) {
    const float a[6] = {1, 2, 3, 4, 5, 6};              // 2 by 3
    const float b[12] = {1, 0, 9, 9, 0, 1, 9, 9, 1, 1}; // 3 by 2, rows 16 bytes apart
    float c[4] = {};
    EXPECT_EQ(vonkMul_mm_32f(a, 12, 3, 2, b, 16, 2, 3, c, 8), vonkOk);
    EXPECT_EQ(listOf(c), (std::vector<double>{4, 5, 10, 11}));

    const float *const list[2] = {a, a + 3}; // 1 by 3 each
    float *const results[2] = {c + 2, c};
    EXPECT_EQ(vonkMul_mam_32f_LS2(list, 0, 12, 4, 3, 1, b, 16, 4, 2, 3, results, 0, 8, 4, 2), vonkOk);
    EXPECT_EQ(listOf(c), (std::vector<double>{10, 11, 4, 5}));
}

TEST(Products, OfVectorsTakeTheirWordsInTheOrderOfTheHeader) {
    const float a[8] = {1, 2, 3, 99, 4, 5, 6, 99}; // 2 by 3, rows 16 bytes apart
    const float v[6] = {1, 0, 2, 1, 1, 1};
    const float w[4] = {100, 200, 10, 20};
    float x[5] = {9, 9, 9, 9, 9};
    EXPECT_EQ(vonkMul_mv_32f(a, 16, 3, 2, v, 3, x), vonkOk); // 1 0 2
    EXPECT_EQ(listOf(x), (std::vector<double>{7, 16, 9, 9, 9}));
    EXPECT_EQ(vonkMul_mav_32f_S2(a, 16, 16, 4, 3, 1, v, 8, 3, x, 8, 4, 2), vonkOk); // two of 1 by 3; 1 2 1
    EXPECT_EQ(listOf(x), (std::vector<double>{8, 16, 20, 9, 9}));
    EXPECT_EQ(vonkGaxpy_v_32f(a, 16, v, w, x, 3, 2), vonkOk);
    EXPECT_EQ(listOf(x), (std::vector<double>{107, 216, 20, 9, 9}));
    EXPECT_EQ(vonkGaxpy_va_32f(a, 16, v, 12, w, 8, x, 12, 3, 2, 2), vonkOk);
    EXPECT_EQ(listOf(x), (std::vector<double>{107, 216, 20, 16, 35}));
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
    EXPECT_EQ(listOf(x), (std::vector<double>{103, 207, 117, 239}));
}

// ---- Shapes

using Words = std::map<std::string, std::uint32_t>; // by the names of the parameters

// The two words that have to be equal, if there are any.
std::optional<std::pair<std::string, std::string>> wordsCompared(const Function &function) {
    if (isGaxpy(function)) return {};
    const bool asTransposed = isException(function, "product-size-check"); // both of them
    const std::string left = first(function).transposed || asTransposed ? "src1Rows" : "src1Cols";
    if (!isMatrixProduct(function)) return {{left, "src2Len"}};
    return {{left, second(function).transposed || asTransposed ? "src2Cols" : "src2Rows"}};
}

bool fits(const Function &function, const Words &words) {
    const auto compared = wordsCompared(function);
    return !compared || words.at(compared->first) == words.at(compared->second);
}

// Calls `visit(call, words)` for all sizes from 1 to 3, on 3x3 operands. Sizes of 0 are in ArgumentChecks.
template <class Visit> void forEachShape(const Function &function, Visit visit) {
    std::vector<Words> shapes{{}};
    for (const catalogue::Parameter &parameter : function.parameters) {
        if (parameter.kind != Kind::size) continue;
        std::vector<Words> longer;
        for (Words words : shapes)
            for (words[parameter.name] = 1; words[parameter.name] <= 3; ++words[parameter.name])
                longer.push_back(words);
        shapes = longer;
    }
    for (const Words &words : shapes) {
        Call call(function.name, 3, 2);
        fill(call);
        for (const auto &[name, value] : words) call.pass(name, value);
        SCOPED_TRACE(function.name + ", " + ::testing::PrintToString(words));
        visit(call, words);
    }
}

TEST(ProductShapes, AreAcceptedIfTheComparedWordsAreEqual) {
    for (const Function *function : all(isRunTime))
        forEachShape(*function, [&](Call &call, const Words &words) {
            EXPECT_EQ(call.run(), fits(*function, words) ? vonkOk : vonkErrSize);
        });
}

TEST(ProductShapes, ThatDoNotFitAreRefusedAheadOfEntriesAndCount) {
    for (const Function *function : all(isRunTime)) {
        if (isGaxpy(*function)) continue;
        for (const std::uint32_t other : {2U, 4U, 0x80000003U}) {
            Call call(function->name, 3, 2);
            fill(call);
            call.pass(wordsCompared(*function)->second, other);
            literal::blankEntries(call);
            if (function->array()) call.pass("count", 0);
            EXPECT_EQ(call.run(), vonkErrSize);
            EXPECT_TRUE(call.changedNothing());
        }
    }
}

// 1 2 3 / 4 5 6 and whatever follows them. As a product of 2 by 3 and 3 by 4 it is refused; rows of five terms out of
// 2 by 3 run on into what lies behind the third column: 1 2 3 4 5 / 4 5 6 7 8 by 1 0 / 0 1 / 1 1 / 2 0 / 0 2.
template <typename Real, typename Export> void expectTrueProductRefusedAndFiveTermsTaken(Export product) {
    const Real left[8] = {1, 2, 3, 4, 5, 6, 7, 8};
    const Real right[12] = {1, 0, 0, 1, 1, 1, 2, 0, 0, 2, 9, 9};
    Real result[5] = {9, 9, 9, 9, 9};
    const auto e = static_cast<std::int32_t>(sizeof(Real));
    EXPECT_EQ(product(left, 3 * e, 3, 2, right, 0, 4 * e, 4, 3, result, 0, 4 * e, 1), vonkErrSize);
    EXPECT_EQ(listOf(result), std::vector<double>(5, 9));
    EXPECT_EQ(product(left, 3 * e, 3, 2, right, 0, 2 * e, 2, 5, result, 0, 2 * e, 1), vonkOk);
    EXPECT_EQ(listOf(result), (std::vector<double>{12, 15, 24, 27, 9}));
}

TEST(ProductShapes, OfASingleMatrixByAnArrayCompareRowsWithColumns) {
    expectTrueProductRefusedAndFiveTermsTaken<float>(vonkMul_mma_32f);
    expectTrueProductRefusedAndFiveTermsTaken<double>(vonkMul_mma_64f);
}

// 1 2 3 / 4 5 6 by 1 0 1 / 2 1 0 / 0 3 1 / 1 1 1 transposed.
TEST(ProductShapes, OfATransposedSecondMatrixAreTrueInTheStandardLayoutAlone) {
    const float left[7] = {1, 2, 3, 4, 5, 6, 7};
    const float right[12] = {1, 0, 1, 2, 1, 0, 0, 3, 1, 1, 1, 1};
    float result[8] = {};
    EXPECT_EQ(vonkMul_mmT_32f(left, 12, 3, 2, right, 12, 3, 4, result, 16), vonkOk);
    EXPECT_EQ(listOf(result), (std::vector<double>{4, 4, 9, 6, 10, 13, 21, 15}));

    // Strided, the same words make rows of three elements and sums of four terms: 1 2 3 4 and 4 5 6 7 by the rows
    // 1 0 1 2, 2 1 0 0 and 0 3 1 1, all running on into the next row.
    float strided[8] = {};
    EXPECT_EQ(vonkMul_mmT_32f_S2(left, 12, 4, 3, 2, right, 12, 4, 3, 4, strided, 16, 4), vonkOk);
    EXPECT_EQ(listOf(strided), (std::vector<double>{12, 4, 13, 0, 24, 13, 28, 0}));
}

// Three rows of src1 of two columns each, told apart by 12 bytes: the third row of the result comes of the column
// behind them.
TEST(ProductShapes, OfATransposedFirstMatrixTakeAsManyRowsAsItHasItself) {
    const double left[9] = {1, 2, 10, 3, 4, 20, 5, 6, 30};
    const double right[3] = {1, 1, 2};
    double result[4] = {9, 9, 9, 9};
    EXPECT_EQ(vonkMul_mTm_64f(left, 24, 2, 3, right, 8, 1, 3, result, 8), vonkOk);
    EXPECT_EQ(listOf(result), (std::vector<double>{14, 18, 90, 9}));
}

// Where the columns of src1 are not compared, they count for nothing at any size, and words are never negative.
TEST(ProductShapes, LeaveTheColumnsOfTheFirstMatrixOutUnlessTheyAreCompared) {
    for (const Function *function : all(isRunTime)) {
        if (!isMatrixProduct(*function) || isTabled(*function)) continue;
        const bool compared = wordsCompared(*function)->first == "src1Cols";
        for (const std::uint32_t told : {1U, 4U, 0x80000003U, 0xffffffffU}) {
            Call call(function->name, 3, 2);
            fill(call);
            call.pass("src1Cols", told);
            EXPECT_EQ(call.run(), compared ? vonkErrSize : vonkOk);
            if (!compared) literal::expectAllDone(call, example);
        }
    }
}

// Two rows, three columns and a vector told to be two long: two results of three terms, out of three rows of two, and
// the third element of the vector takes part. 1 2 / 3 4 / 5 6 transposed by 1 1 10.
TEST(ProductShapes, OfATransposedMatrixByAVectorMakeAsManyResultsAsItHasRows) {
    const double a[6] = {1, 2, 3, 4, 5, 6};
    const double v[3] = {1, 1, 10};
    double x[3] = {9, 9, 9};
    EXPECT_EQ(vonkMul_mTv_64f(a, 16, 3, 2, v, 2, x), vonkOk);
    EXPECT_EQ(listOf(x), (std::vector<double>{54, 66, 9}));
    EXPECT_EQ(vonkMul_mTv_64f(a, 16, 3, 2, v, 3, x), vonkErrSize);
}

// ---- Tables of positions whose extents are not what the loops use

std::uint32_t scanned(const Function &function, const Words &words, std::string_view operand) {
    if (isGaxpy(function)) {
        if (operand == "src1") return words.at("cols") * words.at("rows");
        return words.at(operand == "src2" ? "cols" : "rows");
    }
    if (operand == "src1") return words.at("src1Cols") * words.at("src1Rows");
    if (!isMatrixProduct(function)) return words.at(operand == "src2" ? "src2Len" : "src1Rows");
    if (operand == "src2") return words.at("src2Cols") * words.at("src2Rows");
    return words.at(first(function).transposed ? "src1Rows" : "src1Cols") *
           words.at(second(function).transposed ? "src2Cols" : "src2Rows");
}

// Beyond the scan nulls are followed where the loops come to them.
TEST(ProductTables, AreScannedByTheWordsAheadOfTheCountAndFollowedBeyondThatWithoutALook) {
    for (const Function *function : all(isArrayOfTables))
        forEachShape(*function, [&](Call &call, const Words &words) {
            for (const Operand &operand : function->operands)
                for (std::size_t entry = 0; entry < call[operand.name].entries.size(); ++entry) {
                    if (!fits(*function, words)) continue;
                    SCOPED_TRACE(operand.name + "[" + std::to_string(entry) + "] null");
                    const bool isScanned = entry < scanned(*function, words, operand.name);
                    for (const std::uint32_t count : {0U, 2U}) {
                        call.pass("count", count);
                        EXPECT_EQ(literal::runThroughNull(call, operand.name, entry),
                                  isScanned ? vonkErrNullPtr : vonkOk);
                        EXPECT_TRUE(call.changedNothing() || (!isScanned && count != 0));
                    }
                }
        });
}

// Three by one times one by three: of the table of the result one entry is scanned, and nine are written. One by three
// times three by one: nine are scanned, and one is written.
TEST(ProductTables, OfResultsAreScannedByOtherWordsThanTheyAreWritten) {
    for (const char *name : {"vonkMul_mam_32f_P", "vonkMul_mam_64f_PS2"}) {
        const auto tell = [](Call &call, std::uint32_t outer, std::uint32_t inner) {
            call["src1"].rows = call["src2"].cols = outer;
            call["src1"].cols = call["src2"].rows = inner;
            for (const char *word : {"src1Rows", "src2Cols"}) call.pass(word, outer);
            for (const char *word : {"src1Cols", "src2Rows"}) call.pass(word, inner);
            for (std::uint32_t n = 0; n < 2; ++n) call.set("src1", n, {1, 2, 3});
            call.set("src2", 0, {4, 5, 6});
        };
        Call wide(name, 3, 2);
        tell(wide, 3, 1);
        EXPECT_EQ(literal::runThroughNull(wide, "dst", 8), vonkOk);
        for (std::uint32_t n = 0; n < 2; ++n)
            EXPECT_EQ(wide.get("dst", n), (std::vector<double>{4, 5, 6, 8, 10, 12, 12, 15, 18}));
        Call narrow(name, 3, 2);
        tell(narrow, 1, 3);
        EXPECT_EQ(narrow.run(), vonkOk);
        for (std::uint32_t n = 0; n < 2; ++n) EXPECT_EQ(narrow.get("dst", n, 0, 0), 32);
        EXPECT_EQ(literal::runThroughNull(narrow, "dst", 8), vonkErrNullPtr);
    }
}

// A 2x3 table that is read transposed is indexed by its rows, as 3x2: 1 2 / 3 4 / 5 6 by 1 1 10.
// The third entry of the vector is beyond the two that are scanned.
TEST(ProductTables, OfTransposedMatricesByVectorsAreIndexedByTheRows) {
    for (const Function *function : all(isRunTime)) {
        if (!isTabled(*function) || isMatrixProduct(*function) || !first(*function).transposed) continue;
        Call call(function->name, 3);
        call.pass("src1Cols", 3);
        call.pass("src1Rows", 2);
        call.pass("src2Len", 2);
        call.set("src1", 0, {1, 2, 3, 4, 5, 6, 0, 0, 0});
        call.set("src2", 0, {1, 1, 10});
        EXPECT_EQ(function->array() ? literal::runThroughNull(call, "src2", 2) : call.run(), vonkOk);
        EXPECT_EQ(call.get("dst", 0, 0, 0), 54);
        EXPECT_EQ(call.get("dst", 0, 0, 1), 66);
    }
}

// ---- Orders of addition

// Every element of every object gets the same terms, and behind those of the product the addend: the rows of A hold
// them, and B or the vector holds ones.
void setTerms(Call &call, const std::vector<double> &terms) {
    for (const Operand &source : sourcesOf(call.function()))
        for (std::uint32_t n = 0; n < call.objectsOf(source.name); ++n)
            for (std::uint32_t i = 0; i < call.size(); ++i)
                for (std::uint32_t j = 0; j < (source.matrix ? call.size() : 1); ++j)
                    setEntering(call, source, n, i, j,
                                source.name == "src1"   ? terms[j]
                                : source.name == "src2" ? 1
                                                        : terms.back());
}

// Of the matrix or the vector on the right, in each object.
void setRowOfSecond(Call &call, std::uint32_t row, double value) {
    const Operand &source = second(call.function());
    for (std::uint32_t n = 0; n < call.objectsOf("src2"); ++n)
        for (std::uint32_t j = 0; j < (source.matrix ? call.size() : 1); ++j)
            setEntering(call, source, n, row, j, value);
}

std::uint32_t termsOf(const Function &function, std::uint32_t order) { return isGaxpy(function) ? order + 1 : order; }

std::string treeOfProducts(const Function &function, std::uint32_t order, std::uint32_t element) {
    if (addsInPairs(function)) return "(((01)(23))(45))";
    if (isMatrixProduct(function) || !hasLanes(function) || order == 3) return literal::runningTree(order);
    if (first(function).transposed) {
        if (order == 4) return "((01)(23))";
        return order == 5 ? "(((01)4)(23))" : "(((01)(23))(45))";
    }
    if (order == 4) return "((02)(13))";
    if (order == 6) return "(((02)4)((13)5))";
    return element < 4 ? "(((01)4)(23))" : "(((02)4)(13))"; // the last of five goes its own way
}

std::string treeOf(const Function &function, std::uint32_t order, std::uint32_t element) {
    const std::string products = treeOfProducts(function, order, element);
    return isGaxpy(function) ? "(" + products + std::to_string(order) + ")" : products;
}

TEST(ProductSums, FollowTheTreeOfTheKernelAndElseRunThroughTheTerms) {
    for (const Function *function : all())
        for (const std::uint32_t order : literal::sizesOf(*function, {3, 5})) {
            Call call(function->name, order, 2);
            for (const std::vector<double> &terms : literal::threesomes(termsOf(*function, order))) {
                SCOPED_TRACE(::testing::PrintToString(terms));
                setTerms(call, terms);
                ASSERT_EQ(call.run(), vonkOk);
                for (std::uint32_t n = 0; n < call.count(); ++n) {
                    const std::vector<double> result = call.get("dst", n);
                    for (std::uint32_t k = 0; k < result.size(); ++k)
                        literal::expectSame(literal::sumByTree(treeOf(*function, order, k), terms), result[k],
                                            "element " + std::to_string(k));
                }
            }
        }
}

// Floats have no 2^24 + 1. Elements 0 to 3 are ((2^24 + 1) + 0) + (0 + 1) = 2^24; of a plain matrix element 4 is
// ((2^24 + 0) + 0) + (1 + 1) = 2^24 + 2.
TEST(ProductSums, OfTheLastOfFiveElementsAreRoundedInAnotherWay) {
    for (const Function *function : all(hasLanes)) {
        if (isMatrixProduct(*function) || isGaxpy(*function) || function->order != 5) continue;
        Call call(function->name, 5, 2);
        setTerms(call, {0x1p24, 1, 0, 1, 0});
        ASSERT_EQ(call.run(), vonkOk);
        std::vector<double> expected(5, 0x1p24);
        if (!first(*function).transposed) expected[4] += 2;
        for (std::uint32_t n = 0; n < call.count(); ++n) EXPECT_EQ(call.get("dst", n), expected);
    }
}

// 1 and two halves of its last place: one after the other they are rounded away, as a pair they make a whole one.
TEST(ProductSums, OfMatricesRoundEveryFloatAdditionAndThreeFormsAddPairs) {
    std::size_t pairs = 0;
    for (const Function *function : all(isFloat)) {
        if (!isMatrixProduct(*function)) continue;
        pairs += addsInPairs(*function) ? 1 : 0;
        for (const std::uint32_t order : literal::sizesOf(*function, {4})) {
            Call call(function->name, order, 2);
            std::vector<double> terms(order);
            terms[0] = 1;
            terms[order - 1] = terms[order - 2] = 0x1p-24;
            setTerms(call, terms);
            literal::expectEverywhere(call, addsInPairs(*function) ? 1 + 0x1p-23 : 1);
        }
    }
    EXPECT_EQ(pairs, 3U);
}

// (1 + 2^-12)^2 is 1 + 2^-11 + 2^-24, a tie that falls back to 1 + 2^-11: no product is fused with its addition.
TEST(ProductSums, RoundEveryFloatProduct) {
    for (const Function *function : all(isFloat))
        for (const std::uint32_t order : literal::sizesOf(*function, {2}))
            for (std::uint32_t place = 1; place < order; ++place) {
                Call call(function->name, order, 2);
                std::vector<double> terms(termsOf(*function, order));
                terms[0] = -(1 + 0x1p-11);
                terms[place] = 1 + 0x1p-12;
                setTerms(call, terms);
                setRowOfSecond(call, place, 1 + 0x1p-12);
                literal::expectEverywhere(call, 0);
            }
}

TEST(ProductSums, BeginAtPlusZeroInCellsAndAtTheFirstProductElsewhere) {
    for (const Function *function : all())
        for (const std::uint32_t order : literal::sizesOf(*function, {1, 4})) {
            Call call(function->name, order, 2);
            setTerms(call, std::vector<double>(termsOf(*function, order), -0.0));
            literal::expectEverywhere(call, runsThroughCells(*function) ? 0.0 : -0.0);
        }
}

bool keepsExtendedSums(const Function &function) { return function.layout.empty() || function.layout == "S2"; }

// 1 and two halves of its last place again. In the 80-bit unit they make a whole one, unless the sum goes through the
// cell at every step or the unit is set to 53 bits.
TEST(ProductSums, OfDoublesAreRoundedOnceOrAtEveryStepByLayout) {
    for (const Function *function : all(isDouble))
        for (const std::uint32_t order : literal::sizesOf(*function, {3, 7}))
            for (const Precision precision : {Precision::bits53, Precision::bits64}) {
                const SettingScope scope({precision, Rounding::nearest});
                Call call(function->name, order, 2);
                std::vector<double> terms(termsOf(*function, order));
                terms[0] = 1;
                terms[1] = terms.back() = 0x1p-53;
                setTerms(call, terms);
                literal::expectEverywhere(
                    call, precision == Precision::bits64 && keepsExtendedSums(*function) ? 1 + 0x1p-52 : 1);
            }
}

// (1 + 2^-30)^2 is 1 + 2^-29 + 2^-60. Its last bit outlives the subtraction of 1 + 2^-29 where the product is extended
// and nothing has rounded it yet: always if it comes second, and if it comes first where the sum stays in the unit.
TEST(ProductSums, TakeProductsOfDoublesExtended) {
    for (const Function *function : all(isDouble))
        for (const std::uint32_t order : literal::sizesOf(*function, {2}))
            for (const Precision precision : {Precision::bits53, Precision::bits64})
                for (const std::uint32_t place : {0U, 1U}) {
                    SCOPED_TRACE("product " + std::to_string(place));
                    const SettingScope scope({precision, Rounding::nearest});
                    Call call(function->name, order, 2);
                    std::vector<double> terms(termsOf(*function, order));
                    terms[place] = 1 + 0x1p-30;
                    terms[1 - place] = -(1 + 0x1p-29);
                    setTerms(call, terms);
                    setRowOfSecond(call, place, 1 + 0x1p-30);
                    const bool survives =
                        precision == Precision::bits64 && (place == 1 || keepsExtendedSums(*function));
                    literal::expectEverywhere(call, survives ? 0x1p-60 : 0);
                }
}

// ---- A destination over a source

// The zero and the partial sums go to the cell, and so onto elements that are still needed. 1 2 / 3 4 by 5 6 / 7 8 over
// the first matrix: 0 5 + 2 7 = 14, 14 6 = 84 and then 84 + 84 8 = 756; 0 5 + 4 7 = 28, 28 6 = 168, 168 + 168 8 = 1512.
// Over the second: 0 + 2 7 = 14, 0 + 2 8 = 16, 3 14 = 42 and 42 + 4 42 = 210, 3 16 = 48 and 48 + 4 48 = 240. By 5 6
// over the vector: 0 + 2 6 = 12, 3 12 = 36 and 36 + 4 36 = 180. Plus 100 200 over the vector: 12 + 100 = 112, 3 112 =
// 336 and 336 + 4 336 + 200 = 1880. Over the addend the finished sum is added to itself: 2 17, 2 39.
TEST(ProductsInPlace, OfCellsSeeTheirOwnSums) {
    const std::map<std::string, std::vector<double>> expected{
        {"mm over src1", {14, 756, 28, 1512}},
        {"mm over src2", {14, 16, 210, 240}},
        {"mv over src2", {12, 180}},
        {"v over src2", {112, 1880}},
        {"v over src3", {34, 78}},
    };
    std::size_t called = 0;
    for (const Function *function : all(isRunTime))
        for (const Operand &source : sourcesOf(*function)) {
            const auto found = expected.find(function->group + " over " + source.name);
            if (found == expected.end()) continue;
            Call call(function->name, 2);
            call.layOver(source.name);
            fillByHand(call);
            EXPECT_EQ(call.run(), vonkOk);
            EXPECT_EQ(call.get("dst", 0), found->second) << found->first;
            ++called;
        }
    EXPECT_EQ(called, 5U * 2U * 3U); // two types, three layouts of single objects
}

// A row of the result is stored over a row of the transposed matrix, which is a column of terms. All ones: 1 + 1 + 1,
// then 3 + 1 + 1, then 3 + 5 + 1.
TEST(ProductsInPlace, OfLanesSeeTheRowsThatAreStoredOverATransposedFirstMatrix) {
    for (const char *name : {"vonkMul_mTm_32f_3x3", "vonkMul_maTma_32f_3x3", "vonkMul_maTm_32f_3x3_L"}) {
        Call call(name, 3, 2);
        call.layOver("src1");
        literal::setAll(call, "src1", 1);
        literal::setAll(call, "src2", 1);
        EXPECT_EQ(call.run(), vonkOk);
        for (std::uint32_t n = 0; n < call.count(); ++n)
            EXPECT_EQ(call.get("dst", n), (std::vector<double>{3, 3, 3, 5, 5, 5, 9, 9, 9}));
    }
}

bool isOneOf(const std::string &word, std::initializer_list<std::string_view> list) {
    return std::ranges::find(list, word) != list.end();
}

// Over which matrices the product is right in place, of the forms that do not run through cells, by order and group.
enum Right { neither, overFirst, overSecond, either };

Right rightInPlace(const Function &function) {
    const std::string &group = function.group;
    if (addsInPairs(function)) return group == "mTmT" ? overSecond : either;
    if (function.order == 6)
        return isOneOf(group, {"mm", "mTm", "mma", "mTma", "mmaT", "mTmaT", "mama", "maTma", "mamaT", "maTmaT"})
                   ? overSecond
                   : neither;
    if (isOneOf(group, {"mTmT", "mma", "mTma", "mmaT", "mTmaT", "maTma", "maTmaT"})) return overSecond;
    if (isOneOf(group, {"mmT", "mama", "mamaT"})) return either;
    if (isOneOf(group, {"mam", "mamT"})) return overFirst;
    if (group == "mm") return function.order == 5 ? overFirst : either;
    if (group == "mTm") return function.order == 5 ? neither : overSecond;
    return neither; // maTm, maTmT
}

// Whether the result is right where `dst` lies over a source. Of a single source under the first object of an array
// that is said of the later objects: they are right if the source is held in lanes. Nothing where it is not promised.
std::optional<bool> isRightOver(const Function &function, const Operand &source) {
    const bool isSingle = source.array != function.array();
    const bool isPlain = isOneOf(function.layout, {"", "L"});
    if (!isMatrixProduct(function)) {
        if (source.matrix && !isSingle) return {};
        return hasLanes(function); // which fetch matrix and vector ahead of all objects
    }
    if (runsThroughCells(function)) return false;
    if (isSingle) {
        if (isPlain ? function.order == 6 && !function.layout.empty() : function.order >= 5) return {};
        return source.name == "src2" && (function.order != 5 || source.transposed);
    }
    if (worksInLanes(function) && (!isPlain || (function.order == 6 && function.layout == "L"))) return {};
    const Right right = rightInPlace(function);
    return right == either || right == (source.name == "src1" ? overFirst : overSecond);
}

TEST(ProductsInPlace, AreRightWhereTheOperandIsHeldOrReadAheadOfItsRow) {
    for (const Function *function : all())
        for (const Operand &source : sourcesOf(*function)) {
            const std::optional<bool> isRight = isRightOver(*function, source);
            if (!isRight) continue;
            for (const std::uint32_t order : literal::sizesOf(*function, {2, 3, 7})) {
                SCOPED_TRACE("dst over " + source.name);
                Call call(function->name, order, 3);
                call.layOver(source.name);
                fill(call);
                EXPECT_EQ(call.run(), vonkOk);
                bool allRight = true;
                for (std::uint32_t n = source.array == function->array() ? 0 : 1; n < call.count(); ++n)
                    allRight = allRight && call.get("dst", n) == productOf(*function, order, n);
                EXPECT_EQ(allRight, *isRight);
            }
        }
}

} // namespace
