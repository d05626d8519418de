// Products of matrices and vectors: numbers by hand in every form, the shapes that plain and transposed forms accept,
// which entries are looked at and when, the tree in which each kernel adds, and destinations over the vector and over
// operands that serve all objects.
#include "support/family_test.h"

namespace {

using namespace literal::names;

std::vector<const Function *> all(bool (*wanted)(const Function &) = isAny) {
    return literal::members("matrix-vector", wanted);
}

const std::vector<std::uint32_t> orders{1, 2, 3, 4, 5, 6, 7};

bool isTransposed(const Function &function) { return function.operands[0].transposed; }
bool keepsExtendedSums(const Function &function) { return function.layout.empty() || function.layout == "S2"; }

// ---- Numbers

double matrixElement(std::uint32_t n, std::uint32_t i, std::uint32_t j) {
    return static_cast<int>((i * i + 3 * i * j + 2 * j + 5 * n + 1) % 7) - 3;
}

double vectorElement(std::uint32_t n, std::uint32_t j) { return static_cast<int>((j * j + 2 * j + 3 * n) % 5) + 1; }

std::vector<double> matrixOf(std::uint32_t order, std::uint32_t n) {
    std::vector<double> matrix;
    for (std::uint32_t k = 0; k < order * order; ++k) matrix.push_back(matrixElement(n, k / order, k % order));
    return matrix;
}

std::vector<double> vectorOf(std::uint32_t order, std::uint32_t n) {
    std::vector<double> vector;
    for (std::uint32_t k = 0; k < order; ++k) vector.push_back(vectorElement(n, k));
    return vector;
}

void fill(Call &call) {
    for (std::uint32_t n = 0; n < call.objectsOf("src1"); ++n) call.set("src1", n, matrixOf(call.size(), n));
    for (std::uint32_t n = 0; n < call.objectsOf("src2"); ++n) call.set("src2", n, vectorOf(call.size(), n));
}

// So many terms of element i of the product.
double sumOf(const Function &function, std::uint32_t i, std::uint32_t terms, std::uint32_t n) {
    const std::uint32_t m = function.operands[0].array ? n : 0;
    const std::uint32_t v = function.operands[1].array ? n : 0;
    double sum = 0;
    for (std::uint32_t k = 0; k < terms; ++k)
        sum += (isTransposed(function) ? matrixElement(m, k, i) : matrixElement(m, i, k)) * vectorElement(v, k);
    return sum;
}

std::vector<double> productOf(const Function &function, std::uint32_t order, std::uint32_t n) {
    std::vector<double> product;
    for (std::uint32_t i = 0; i < order; ++i) product.push_back(sumOf(function, i, order, n));
    return product;
}

void expectDone(Call &call, std::uint32_t n) {
    EXPECT_EQ(call.get("dst", n), productOf(call.function(), call.size(), n));
}

const literal::Example example{fill, expectDone};

TEST(MatrixVector, MultipliesSquareMatricesInEveryFormAndGeometry) {
    for (const Function *function : all()) literal::expectResults(*function, example, orders);
}

// 1 2 / 3 4 by 5 6.
TEST(MatrixVector, ReadsTheMatrixTransposed) {
    for (const Function *function : all(isRunTime)) {
        Call call(function->name, 2, 2);
        for (std::uint32_t n = 0; n < 2; ++n) {
            if (n < call.objectsOf("src1")) call.set("src1", n, {1, 2, 3, 4});
            if (n < call.objectsOf("src2")) call.set("src2", n, {5, 6});
        }
        EXPECT_EQ(call.run(), vonkOk);
        for (std::uint32_t n = 0; n < call.count(); ++n)
            EXPECT_EQ(call.get("dst", n),
                      isTransposed(*function) ? (std::vector<double>{23, 34}) : (std::vector<double>{17, 39}));
    }
}

TEST(MatrixVector, TakesItsWordsInTheOrderOfTheHeader) {
    const float a[8] = {1, 2, 3, 99, 4, 5, 6, 99}; // 2 by 3, rows 16 bytes apart
    const float v[5] = {1, 0, 2, 0, 1};
    float x[3] = {9, 9, 9};
    EXPECT_EQ(vonkMul_mv_32f(a, 16, 3, 2, v, 3, x), vonkOk); // 1 0 2
    EXPECT_EQ(std::vector<float>(x, x + 3), (std::vector<float>{7, 16, 9}));
    EXPECT_EQ(vonkMul_mav_32f_S2(a, 16, 16, 4, 3, 1, v, 8, 3, x, 8, 4, 2), vonkOk); // two of 1 by 3; 1 2 1
    EXPECT_EQ(std::vector<float>(x, x + 3), (std::vector<float>{8, 16, 20}));
}

TEST(MatrixVector, OfLengthOneIsZeroPlusTheProduct) {
    for (const Function *function : all(isRunTime)) {
        Call call(function->name, 1);
        for (const auto &[a, v, expected] : {std::array{3.0, -5.0, -15.0}, std::array{-0.0, 4.0, 0.0}}) {
            call.set("src1", 0, {a});
            call.set("src2", 0, {v});
            EXPECT_EQ(call.run(), vonkOk);
            literal::expectSame(expected, call.get("dst", 0, 0, 0), "dst");
        }
    }
}

// ---- Shapes

constexpr std::uint32_t side = 3; // room of the calls below

struct Shape {
    std::uint32_t cols, rows, length;

    bool fits(const Function &function) const {
        return cols != 0 && rows != 0 && (isTransposed(function) ? rows : cols) == length;
    }
    std::string describe() const {
        return ", " + std::to_string(rows) + " by " + std::to_string(cols) + ", length " + std::to_string(length);
    }
    // Place in the table of the matrix of the factor of term k of element i.
    std::size_t entry(const Function &function, std::size_t i, std::size_t k) const {
        return isTransposed(function) ? k * rows + i : i * cols + k;
    }
};

std::vector<Shape> shapes() {
    std::vector<Shape> list;
    for (std::uint32_t code = 0; code < 64; ++code) list.push_back({code % 4, code / 4 % 4, code / 16});
    return list;
}

void tell(Call &call, const Shape &shape) {
    call["src1"].cols = call["dst"].cols = side;
    fill(call);
    for (std::uint32_t n = 0; n < call.count(); ++n) call.set("dst", n, std::vector<double>(side, 77));
    call.pass("src1Cols", shape.cols);
    call.pass("src1Rows", shape.rows);
    call.pass("src2Len", shape.length);
    if (isTabled(call.function())) call["src1"].cols = isTransposed(call.function()) ? shape.rows : shape.cols;
    call["dst"].cols = shape.rows;
}

// Rows of `src1Rows` results, each of `src1Cols` terms, plain or transposed.
void expectShaped(Call &call, const Shape &shape) {
    const bool transposed = isTransposed(call.function());
    for (std::uint32_t n = 0; n < call.count(); ++n)
        for (std::uint32_t i = 0; i < shape.rows; ++i) {
            double sum = 0;
            for (std::uint32_t k = 0; k < shape.cols; ++k)
                sum += call.get("src1", n, transposed ? k : i, transposed ? i : k) * call.get("src2", n, 0, k);
            EXPECT_EQ(call.get("dst", n, 0, i), sum) << "object " << n << ", element " << i;
        }
}

TEST(MatrixVectorShapes, CompareTheLengthWithColumnsOrTransposedWithRows) {
    for (const Function *function : all(isRunTime)) {
        Call call(function->name, side, 2);
        for (const Shape &shape : shapes()) {
            SCOPED_TRACE(function->name + shape.describe());
            tell(call, shape);
            ASSERT_EQ(call.run(), shape.fits(*function) ? vonkOk : vonkErrSize);
            if (shape.fits(*function)) expectShaped(call, shape);
            EXPECT_TRUE(shape.fits(*function) || call.changedNothing());
            if (const auto stray = call.strayWrites()) ADD_FAILURE() << stray.what;
        }
    }
}

// Two rows, three columns and a vector told to be two long: two results of three terms, out of three rows of two, and
// the third element of the vector takes part. 1 2 / 3 4 / 5 6 transposed by 1 1 10.
TEST(MatrixVectorShapes, OfATransposedMatrixMakeAsManyResultsAsItHasRows) {
    const double a[6] = {1, 2, 3, 4, 5, 6};
    const double v[3] = {1, 1, 10};
    double x[3] = {9, 9, 9};
    EXPECT_EQ(vonkMul_mTv_64f(a, 16, 3, 2, v, 2, x), vonkOk);
    EXPECT_EQ(std::vector<double>(x, x + 3), (std::vector<double>{54, 66, 9}));
    EXPECT_EQ(vonkMul_mTv_64f(a, 16, 3, 2, v, 3, x), vonkErrSize);
}

// ---- What is tested, and when

TEST(MatrixVectorChecks, RefuseALengthThatDoesNotFitAheadOfEntriesAndCount) {
    for (const Function *function : all(isRunTime)) {
        for (const std::uint32_t length : {0U, 2U, 4U, 0x80000003U}) {
            SCOPED_TRACE(function->name + ", length " + std::to_string(length));
            Call call(function->name, 3, 2);
            fill(call);
            call.pass("src2Len", length);
            literal::blankEntries(call);
            if (function->array()) call.pass("count", 0);
            EXPECT_EQ(call.run(), vonkErrSize);
            EXPECT_TRUE(call.changedNothing());
        }
    }
}

// ---- Tables of positions whose extents are not what the loops use

std::size_t scanned(const Shape &shape, std::string_view operand) {
    if (operand == "src1") return std::size_t{shape.cols} * shape.rows;
    return operand == "src2" ? shape.length : shape.rows;
}

template <typename Visit> void forEachTabledShape(Visit visit) {
    for (const Function *function : all()) {
        if (function->order != 0 || !isTabled(*function) || !function->array()) continue;
        Call call(function->name, side, 2);
        for (const Shape &shape : shapes()) {
            if (!shape.fits(*function)) continue;
            SCOPED_TRACE(function->name + shape.describe());
            tell(call, shape);
            visit(call, shape);
        }
    }
}

TEST(MatrixVectorTables, AreScannedByTheWordsAheadOfTheCount) {
    forEachTabledShape([](Call &call, const Shape &shape) {
        call.pass("count", 0);
        for (const char *operand : {"src1", "src2", "dst"}) {
            std::vector<std::byte *> &entries = call[operand].entries;
            for (std::size_t entry = 0; entry < entries.size(); ++entry) {
                std::byte *const kept = entries[entry];
                entries[entry] = nullptr;
                EXPECT_EQ(call.run(), entry < scanned(shape, operand) ? vonkErrNullPtr : vonkOk)
                    << operand << "[" << entry << "]";
                EXPECT_TRUE(call.changedNothing());
                entries[entry] = kept;
            }
        }
    });
}

// Of a transposed matrix with more columns than rows the loops take more elements of the vector than were scanned.
TEST(MatrixVectorTables, AreFollowedBeyondTheScanWithoutALook) {
    std::size_t followed = 0;
    forEachTabledShape([&](Call &call, const Shape &shape) {
        for (std::size_t entry = shape.length; entry < shape.cols; ++entry) {
            ++followed;
            EXPECT_EQ(literal::runThroughNull(call, "src2", entry), vonkOk);
            expectShaped(call, shape);
        }
    });
    EXPECT_GT(followed, 0U);
}

TEST(MatrixVectorTables, MayHaveNullsBeyondTheScanWhereTheLoopsDoNotCome) {
    forEachTabledShape([](Call &call, const Shape &shape) {
        std::map<std::string, std::vector<std::byte *>> kept;
        for (const std::string operand : {"src1", "src2", "dst"}) {
            std::vector<std::byte *> &entries = call[operand].entries;
            kept[operand] = entries;
            const std::size_t used = operand == "src2" ? std::max(shape.length, shape.cols) : scanned(shape, operand);
            std::fill(entries.begin() + static_cast<std::ptrdiff_t>(used), entries.end(), nullptr);
        }
        EXPECT_EQ(call.run(), vonkOk);
        for (const auto &[operand, entries] : kept) call[operand].entries = entries;
        expectShaped(call, shape);
    });
}

// ---- Single products in tables: each element's entries are looked at when the sum comes to them

// A table of two rows told of three columns is indexed by rows where it is read transposed: 1 2 / 3 4 / 5 6.
TEST(MatrixVectorOfSingleTables, OfTransposedMatricesAreIndexedByTheRows) {
    for (const Function *function : all(isSingleTable)) {
        if (function->order != 0 || !isTransposed(*function)) continue;
        Call call(function->name, 3);
        tell(call, {3, 2, 2});
        for (std::uint32_t entry = 0; entry < 6; ++entry) call.set("src1", 0, entry / 2, entry % 2, entry + 1);
        call["src2"].cols = 3;
        call.set("src2", 0, {1, 1, 10});
        EXPECT_EQ(call.run(), vonkOk);
        EXPECT_EQ(call.get("dst", 0), (std::vector<double>{54, 66}));
    }
}

// ---- Orders of addition

// Every element of every object gets the same terms.
void setTerms(Call &call, const std::vector<double> &terms) {
    const std::uint32_t order = call.size();
    const bool transposed = isTransposed(call.function());
    for (std::uint32_t n = 0; n < call.objectsOf("src1"); ++n)
        for (std::uint32_t i = 0; i < order; ++i)
            for (std::uint32_t k = 0; k < order; ++k)
                call.set("src1", n, transposed ? k : i, transposed ? i : k, terms[k]);
    for (std::uint32_t n = 0; n < call.objectsOf("src2"); ++n) call.set("src2", n, std::vector<double>(order, 1));
}

std::string treeOf(const Function &function, std::uint32_t order, std::uint32_t element) {
    if (!hasLanes(function) || order == 3) return literal::runningTree(order);
    if (isTransposed(function)) {
        if (order == 4) return "((01)(23))";
        return order == 5 ? "(((01)4)(23))" : "(((01)(23))(45))";
    }
    if (order == 4) return "((02)(13))";
    if (order == 6) return "(((02)4)((13)5))";
    return element < 4 ? "(((01)4)(23))" : "(((02)4)(13))"; // the last of five goes its own way
}

void expectByTrees(Call &call, const std::vector<double> &terms) {
    for (std::uint32_t n = 0; n < call.count(); ++n)
        for (std::uint32_t i = 0; i < call.size(); ++i)
            literal::expectSame(literal::sumByTree(treeOf(call.function(), call.size(), i), terms),
                                call.get("dst", n, 0, i), "element " + std::to_string(i));
}

TEST(MatrixVectorSums, FollowTheTreeOfTheKernelAndElseRunThroughTheTerms) {
    for (const Function *function : all())
        for (const std::uint32_t order : literal::sizesOf(*function, {3, 6})) {
            Call call(function->name, order, 2);
            for (const std::vector<double> &terms : literal::threesomes(order)) {
                SCOPED_TRACE(function->name + ", " + ::testing::PrintToString(terms));
                setTerms(call, terms);
                ASSERT_EQ(call.run(), vonkOk);
                expectByTrees(call, terms);
            }
        }
}

// Floats have no 2^24 + 1. Elements 0 to 3 are ((2^24 + 1) + 0) + (0 + 1) = 2^24; of a plain matrix element 4 is
// ((2^24 + 0) + 0) + (1 + 1) = 2^24 + 2.
TEST(MatrixVectorSums, OfTheLastOfFiveElementsAreRoundedInAnotherWay) {
    for (const Function *function : all()) {
        if (!hasLanes(*function) || function->order != 5) continue;
        Call call(function->name, 5, 2);
        setTerms(call, {0x1p24, 1, 0, 1, 0});
        ASSERT_EQ(call.run(), vonkOk);
        std::vector<double> expected(5, 0x1p24);
        if (!isTransposed(*function)) expected[4] += 2;
        for (std::uint32_t n = 0; n < call.count(); ++n) EXPECT_EQ(call.get("dst", n), expected);
    }
}

TEST(MatrixVectorSums, BeginAtPlusZeroInCellsAndAtTheFirstProductInLanes) {
    for (const Function *function : all())
        for (const std::uint32_t order : literal::sizesOf(*function, {1, 4})) {
            Call call(function->name, order, 2);
            setTerms(call, std::vector<double>(order, -0.0));
            ASSERT_EQ(call.run(), vonkOk);
            for (std::uint32_t n = 0; n < call.count(); ++n)
                literal::expectSame(std::vector<double>(order, hasLanes(*function) ? -0.0 : 0.0), call.get("dst", n),
                                    "dst");
        }
}

// (1 + 2^-12)^2 is 1 + 2^-11 + 2^-24, a tie that falls back: no product is fused with its addition.
TEST(MatrixVectorSums, RoundEveryFloatProduct) {
    for (const Function *function : all(isFloat)) {
        for (const std::uint32_t order : literal::sizesOf(*function, {2}))
            for (std::uint32_t place = 1; place < order; ++place) {
                SCOPED_TRACE(function->name + ", place " + std::to_string(place));
                Call call(function->name, order, 2);
                std::vector<double> terms(order);
                terms[0] = -(1 + 0x1p-11);
                terms[place] = 1 + 0x1p-12;
                setTerms(call, terms);
                for (std::uint32_t n = 0; n < call.objectsOf("src2"); ++n) call.set("src2", n, 0, place, 1 + 0x1p-12);
                ASSERT_EQ(call.run(), vonkOk);
                for (std::uint32_t n = 0; n < call.count(); ++n)
                    EXPECT_EQ(call.get("dst", n), std::vector<double>(order, 0));
            }
    }
}

// 1 and two halves of its last place: in the 80-bit unit they make a whole one, unless the sum goes through the cell
// at every step or the unit is set to 53 bits.
TEST(MatrixVectorSums, OfDoublesAreRoundedOnceOrAtEveryStepByLayout) {
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

// With `dst` over the vector, or its first object over a single one: lanes hold the vector, and elsewhere the zero and
// all partial sums fall on it.
std::vector<std::vector<double>> expectedOverVector(const Function &function, std::uint32_t order,
                                                    std::uint32_t count) {
    std::vector<std::vector<double>> results;
    std::vector<double> single = vectorOf(order, 0);
    for (std::uint32_t n = 0; n < count; ++n) {
        if (hasLanes(function)) {
            results.push_back(productOf(function, order, n));
            continue;
        }
        const bool array = function.operands[1].array;
        std::vector<double> v = array ? vectorOf(order, n) : single;
        std::vector<double> x(order);
        const std::uint32_t m = function.operands[0].array ? n : 0;
        const auto store = [&](std::uint32_t i, double value) {
            x[i] = value;
            if (array || n == 0) v[i] = value;
        };
        for (std::uint32_t i = 0; i < order; ++i) {
            double sum = 0;
            store(i, sum);
            for (std::uint32_t k = 0; k < order; ++k)
                store(i, sum += (isTransposed(function) ? matrixElement(m, k, i) : matrixElement(m, i, k)) * v[k]);
        }
        if (n == 0) single = v;
        results.push_back(x);
    }
    return results;
}

// Also where the vector is single and the first object lies over it: lanes hold it for all objects.
TEST(MatrixVectorInPlace, IsRightOverTheVectorInLanesAlone) {
    for (const Function *function : all())
        for (const std::uint32_t order : literal::sizesOf(*function, {2, 3, 7})) {
            SCOPED_TRACE(function->name + ", order " + std::to_string(order));
            const auto results = resultsOver(*function, order, "src2");
            std::vector<std::vector<double>> products;
            for (std::uint32_t n = 0; n < results.size(); ++n) products.push_back(productOf(*function, order, n));
            EXPECT_EQ(results == products, hasLanes(*function));
            EXPECT_EQ(results, expectedOverVector(*function, order, static_cast<std::uint32_t>(results.size())));
        }
}

// The first result is stored over the first row of the only matrix. Lanes have fetched the matrix by then; loops see
// the row of the first result in all later objects.
TEST(MatrixVectorInPlace, OverASingleMatrixIsRightInLanesAlone) {
    for (const Function *function : all()) {
        if (!function->array() || function->operands[0].array) continue;
        for (const std::uint32_t order : literal::sizesOf(*function, {2, 3})) {
            SCOPED_TRACE(function->name + ", order " + std::to_string(order));
            const auto results = resultsOver(*function, order, "src1");
            bool right = true;
            for (std::uint32_t n = 0; n < results.size(); ++n)
                right = right && results[n] == productOf(*function, order, n);
            EXPECT_EQ(right, hasLanes(*function));
        }
    }
}

} // namespace
