// Tests of the model of the products (matrix by matrix, matrix by vector, and that plus a vector): calls worked out by
// hand, every sum tree, the mismatched dimension rules, and which in-place calls of which form come out right.
#include "model/model.h"

#include <gtest/gtest.h>
#include <sys/mman.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <map>
#include <random>
#include <set>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace {

using Words = std::vector<std::uint64_t>;

template <class Type> std::uint64_t to(Type *pointer) { return reinterpret_cast<std::uintptr_t>(pointer); }

template <class Container> std::uint64_t to(Container &container) { return to(container.data()); }

model::Outcome run(const std::string &name, const Words &words) { return model::run({name, words}); }

// Sets the precision control of the extended unit for one scope.
class PrecisionControl {
public:
    explicit PrecisionControl(unsigned bits) {
        asm volatile("fnstcw %0" : "=m"(saved_));
        const auto wanted = static_cast<std::uint16_t>((saved_ & ~0x300U) | bits);
        asm volatile("fldcw %0" : : "m"(wanted));
    }
    ~PrecisionControl() { asm volatile("fldcw %0" : : "m"(saved_)); }
    PrecisionControl(const PrecisionControl &) = delete;
    PrecisionControl &operator=(const PrecisionControl &) = delete;

    static constexpr unsigned bits53 = 0x200;
    static constexpr unsigned bits64 = 0x300;

private:
    std::uint16_t saved_ = 0;
};

// The pieces of a name, taken apart without the model.
struct Name {
    explicit Name(const std::string &text) : whole(text) {
        std::istringstream stream(text);
        std::getline(stream, operation, '_');
        std::getline(stream, group, '_');
        std::getline(stream, type, '_');
        for (std::string piece; std::getline(stream, piece, '_');) (std::isdigit(piece[0]) ? size : layout) = piece;
    }

    bool isIn(const std::string &groups) const {
        return (" " + groups + " ").find(" " + group + " ") != std::string::npos;
    }
    bool isArray() const { return group.find('a') != std::string::npos; }
    // Square forms of run-time size are called with order 3.
    std::size_t order() const { return size.empty() ? 3 : static_cast<std::size_t>(size[0] - '0'); }
    bool isGaxpy() const { return operation == "vonkGaxpy"; }
    bool isMatrixProduct() const { return !isGaxpy() && group.find('v') == std::string::npos; }

    // The letters of one source: "m", "maT", "v" and the like.
    std::string source(std::size_t index) const {
        if (isGaxpy()) return index == 0 ? "m" : group;
        const std::size_t second = group.find_first_of("mv", 1);
        return index == 0 ? group.substr(0, second) : group.substr(second);
    }

    std::string whole, operation, group, type, size, layout;
};

bool isProduct(const Name &name) {
    return name.isGaxpy() ||
           (name.operation == "vonkMul" && name.group[0] == 'm' && name.group.find('c') == std::string::npos);
}

std::vector<Name> allProducts() {
    std::vector<Name> products;
    for (const std::string &text : model::names())
        if (isProduct(Name(text))) products.emplace_back(text);
    return products;
}

// Three objects in any layout, with gaps between all that the layout lets lie apart. A vector is one row.
template <class Real> class Operand {
public:
    static constexpr std::size_t count = 3;

    Operand(const Name &name, bool isArray, std::size_t rows, std::size_t columns)
        : layout_(name.layout), isArray_(isArray), rows_(rows), columns_(columns),
          elementStride_(layout_ == "S2" || layout_ == "LS2" || layout_ == "PS2" ? 2 : 1),
          rowStride_(columns * elementStride_ + 1), objectStride_(rows * rowStride_ + 2),
          storage(2 * count * (rows + 1) * (2 * columns + 4), Real(-77)) {
        if (layout_[0] == 'P')
            for (std::size_t i = 0; i < rows; ++i)
                for (std::size_t j = 0; j < columns; ++j) table.push_back(to(&at(0, i, j)) - shift);
        else if (isList())
            for (std::size_t n = 0; n < count; ++n) table.push_back(to(&at(n, 0, 0)) - shift);
    }

    Real &at(std::size_t n, std::size_t i, std::size_t j) {
        if (layout_[0] == 'P')
            return storage[(i * columns_ + j) * positionStride() + (isArray_ ? n : 0) * elementStride_];
        return storage[(isArray_ ? n : 0) * objectStride_ + i * rowStride_ + j * elementStride_];
    }

    std::uint64_t word(const std::string &suffix) {
        if (suffix.empty()) return table.empty() ? to(storage) : to(table);
        if (suffix == "Shift") return shift;
        if (suffix == "RowStride") return rowStride_ * sizeof(Real);
        if (suffix == "ElemStride") return elementStride_ * sizeof(Real);
        return (layout_[0] == 'P' ? elementStride_ : objectStride_) * sizeof(Real);
    }

    void fill(std::mt19937 &random, int smallest, int largest) {
        std::uniform_int_distribution<int> values(smallest, largest);
        for (std::size_t n = 0; n < count; ++n)
            for (std::size_t i = 0; i < rows_; ++i)
                for (std::size_t j = 0; j < columns_; ++j) at(n, i, j) = static_cast<Real>(values(random));
    }

private:
    static constexpr std::uint64_t shift = 24;
    bool isList() const { return layout_[0] == 'L' && isArray_; }
    std::size_t positionStride() const { return count * elementStride_ + 1; }

    std::string layout_;
    bool isArray_;
    std::size_t rows_, columns_, elementStride_, rowStride_, objectStride_;

public:
    std::vector<Real> storage;
    std::vector<std::uint64_t> table;
};

bool isArrayLetters(const std::string &letters) { return letters.find('a') != std::string::npos; }

// A call of any product with square matrices, the operands filled with small whole numbers.
template <class Real> class SquareCall {
public:
    SquareCall(const Name &name, unsigned seed, int smallest = 1, int largest = 9) : name(name), order(name.order()) {
        std::mt19937 random(seed);
        for (std::size_t index = 0; index < (name.isGaxpy() ? 3 : 2); ++index) {
            const std::string letters = name.source(index);
            sources.emplace_back(name, isArrayLetters(letters), letters[0] == 'm' ? order : 1, order);
            sources.back().fill(random, smallest, largest);
        }
        dst.emplace_back(name, name.isArray(), name.isMatrixProduct() ? order : 1, order);
    }

    // The words, with the destination on top of the source of that index if there is one.
    Words words(int inPlaceOn = -1) {
        Words result;
        for (const model::Parameter &parameter : model::parameters(name.whole)) {
            if (parameter.word == model::Word::size) {
                result.push_back(parameter.name == "count" ? Operand<Real>::count : order);
                continue;
            }
            const bool isDst = parameter.name.rfind("dst", 0) == 0;
            Operand<Real> &operand = isDst ? (inPlaceOn < 0 ? dst[0] : sources[inPlaceOn])
                                           : sources[static_cast<std::size_t>(parameter.name[3] - '1')];
            result.push_back(operand.word(parameter.name.substr(isDst ? 3 : 4)));
        }
        return result;
    }

    std::size_t objects() const { return name.isArray() ? Operand<Real>::count : 1; }
    std::size_t dstRows() const { return name.isMatrixProduct() ? order : 1; }

    Real factor(std::size_t index, std::size_t n, std::size_t i, std::size_t k) {
        const bool isTransposed = name.source(index).back() == 'T';
        return isTransposed ? sources[index].at(n, k, i) : sources[index].at(n, i, k);
    }

    // What the call is to yield, exact since the numbers are small and whole. All objects, rows and columns in a row.
    std::vector<Real> expected() {
        std::vector<Real> result;
        for (std::size_t n = 0; n < objects(); ++n)
            for (std::size_t i = 0; i < dstRows(); ++i)
                for (std::size_t j = 0; j < order; ++j) result.push_back(expectedCell(n, i, j));
        return result;
    }

    std::vector<Real> found(int inPlaceOn = -1) {
        std::vector<Real> result;
        for (std::size_t n = 0; n < objects(); ++n)
            for (std::size_t i = 0; i < dstRows(); ++i)
                for (std::size_t j = 0; j < order; ++j)
                    result.push_back((inPlaceOn < 0 ? dst[0] : sources[inPlaceOn]).at(n, i, j));
        return result;
    }

    Name name;
    std::size_t order;
    std::vector<Operand<Real>> sources;
    std::vector<Operand<Real>> dst;

private:
    Real expectedCell(std::size_t n, std::size_t i, std::size_t j) {
        Real sum = name.isGaxpy() ? sources[2].at(n, 0, j) : Real(0);
        for (std::size_t k = 0; k < order; ++k)
            sum += name.isMatrixProduct() ? factor(0, n, i, k) * factor(1, n, k, j)
                                          : factor(0, n, j, k) * sources[1].at(n, 0, k);
        return sum;
    }
};

// Which of the Real32 forms work in lanes, form by form.
bool worksInLanes(const Name &name) {
    if (name.type == "64f" || name.size.empty()) return false;
    if (name.layout.empty() || name.layout == "L") return true;
    if (!name.isMatrixProduct()) return false;
    static const std::map<std::string, std::map<std::string, std::string>> lanes = {
        {"S2", {{"3x3", "mam mama maTm mamT maTmT"}, {"4x4", "mam mama"}, {"5x5", "mam mama"}, {"6x6", "mm mmT mTmT"}}},
        {"P", {{"3x3", "mam maTm mamT"}}},
        {"PS2", {{"3x3", "mam maTm mamT"}}},
        {"LS2", {{"3x3", "mam maTm mamT maTmT"}}},
    };
    const auto &bySize = lanes.at(name.layout);
    const auto groups = bySize.find(name.size);
    return groups != bySize.end() && name.isIn(groups->second);
}

TEST(ProductModel, KnowsEveryProduct) {
    std::map<std::string, int> counts;
    for (const Name &name : allProducts()) {
        EXPECT_TRUE(model::knows(name.whole)) << name.whole;
        ++counts[name.isGaxpy() ? "gaxpy" : name.isMatrixProduct() ? "matrix" : "vector"];
    }
    EXPECT_EQ(counts, (std::map<std::string, int>{{"gaxpy", 90}, {"matrix", 840}, {"vector", 420}}));
    EXPECT_FALSE(model::knows("vonkMul_vv_32f"));
    EXPECT_FALSE(model::knows("vonkMul_vm_32f"));
}

// The destination must be all that changes, every object must be done, and the stores must be as many as the form
// makes.
template <class Real> void expectSquareProduct(const Name &name) {
    SquareCall<Real> call(name, 1);
    const std::vector<Real> expected = call.expected();
    const std::vector<Operand<Real>> before = call.sources;
    const model::Outcome outcome = run(name.whole, call.words());
    EXPECT_EQ(outcome.status, 0) << name.whole;
    EXPECT_FALSE(outcome.open) << name.whole;
    EXPECT_FALSE(outcome.nanSeen) << name.whole;
    EXPECT_EQ(call.found(), expected) << name.whole;
    for (std::size_t index = 0; index < before.size(); ++index)
        EXPECT_EQ(call.sources[index].storage, before[index].storage) << name.whole;
    const std::vector<Real> &storage = call.dst[0].storage;
    const auto untouched = static_cast<std::size_t>(std::count(storage.begin(), storage.end(), Real(-77)));
    EXPECT_EQ(storage.size() - untouched, expected.size()) << name.whole;
    const std::size_t storesPerCell = worksInLanes(name) ? 1 : call.order + (name.isGaxpy() ? 2 : 1);
    EXPECT_EQ(outcome.writes.size(), expected.size() * storesPerCell) << name.whole;
    for (const model::Write &write : outcome.writes) EXPECT_EQ(write.size, sizeof(Real)) << name.whole;
}

TEST(ProductModel, EveryFormMultipliesSquareMatricesInEveryLayout) {
    for (const Name &name : allProducts())
        name.type == "32f" ? expectSquareProduct<float>(name) : expectSquareProduct<double>(name);
}

TEST(ProductModel, CountZeroTouchesNothingAndNullPointersAndSizesGoFirst) {
    for (const Name &name : allProducts()) {
        SquareCall<double> call(name, 1);
        Words words = call.words();
        if (name.isArray()) {
            words.back() = 0;
            const model::Outcome outcome = run(name.whole, words);
            EXPECT_EQ(outcome.status, 0) << name.whole;
            EXPECT_TRUE(outcome.writes.empty()) << name.whole;
        }
        const std::vector<model::Parameter> list = model::parameters(name.whole);
        for (std::size_t index = 0; index < list.size(); ++index)
            if (list[index].word == model::Word::size && list[index].name != "count") {
                Words zero = words;
                zero[index] = 0;
                // One dimension is not tested: behind an array, the columns of a single matrix.
                const bool isExempt = name.group == "mam" && list[index].name == "src2Cols";
                EXPECT_EQ(run(name.whole, zero).status, isExempt ? 0 : -6) << name.whole << " " << list[index].name;
            }
        for (std::size_t index = 0; index < list.size(); ++index)
            if (list[index].word == model::Word::pointer) {
                Words null = words;
                for (std::size_t other = 0; other < list.size(); ++other)
                    if (list[other].word == model::Word::size) null[other] = 0;
                null[index] = 0;
                EXPECT_EQ(run(name.whole, null).status, -8) << name.whole << " " << list[index].name;
            }
    }
}

// --- Which in-place calls are right.

// Of the layouts with adjacent elements, by order: the groups that are right with dst on the first source, and on the
// second.
struct InPlaceRow {
    std::string onFirst;
    std::string onSecond;
};

const std::map<std::size_t, InPlaceRow> inPlaceRows = {
    {3, {"mm mmT mama mamaT mam mamT", "mm mmT mama mamaT mTm mTmT mma mTma mmaT mTmaT maTma maTmaT"}},
    {4, {"mm mmT mama mamaT mam mamT", "mm mmT mama mamaT mTm mTmT mma mTma mmaT mTmaT maTma maTmaT"}},
    {5, {"mmT mama mamaT mm mam mamT", "mmT mama mamaT mTmT mma mTma mmaT mTmaT maTma maTmaT"}},
    {6, {"", "mm mTm mma mTma mmaT mTmaT mama maTma mamaT maTmaT"}},
};

bool isRightInPlace(const Name &name, int on) {
    if (!worksInLanes(name)) return false;
    if (name.layout.empty() || name.layout == "L")
        return name.isIn(on == 0 ? inPlaceRows.at(name.order()).onFirst : inPlaceRows.at(name.order()).onSecond);
    if (name.size == "6x6") return on == 0 ? name.isIn("mm mmT") : name.isIn("mm mmT mTmT"); // the sums of pairs
    return on == 0 ? name.isIn("mam mama mamT") : name.isIn("mama"); // the rest of the kernels follow their rows
}

// Whole numbers leave right results exact; positive ones cannot hide a lost element.
template <class Real> void expectInPlace(const Name &name, int on) {
    for (unsigned seed = 1; seed <= 3; ++seed) {
        SquareCall<Real> call(name, seed);
        const std::vector<Real> expected = call.expected();
        const model::Outcome outcome = run(name.whole, call.words(on));
        EXPECT_EQ(outcome.status, 0) << name.whole << " " << on;
        const bool isRight = call.found(on) == expected;
        EXPECT_EQ(isRight, isRightInPlace(name, on)) << name.whole << " on src" << on + 1;
        // One row of a pair may be read before or after the stores of the other.
        EXPECT_EQ(outcome.open, name.whole == "vonkMul_mTmT_32f_6x6_S2" && on == 0) << name.whole << " " << on;
    }
}

TEST(ProductModelInPlace, EveryFormIsRightOrWrongAsItsKernelHoldsItsOperands) {
    int calls = 0;
    for (const Name &name : allProducts())
        for (const int on : {0, 1}) {
            const bool canAlias = isArrayLetters(name.source(static_cast<std::size_t>(on))) == name.isArray();
            if (!name.isMatrixProduct() || !canAlias) continue;
            name.type == "32f" ? expectInPlace<float>(name, on) : expectInPlace<double>(name, on);
            ++calls;
        }
    EXPECT_EQ(calls, 4 * 30 * 2 + (4 + 4) * 60 + 4 * 60 * 2);
}

TEST(ProductModelInPlace, TheFifthColumnIsFetchedForEveryRow) {
    SquareCall<float> call(Name("vonkMul_mm_32f_5x5"), 4);
    std::vector<float> expected = call.expected();
    std::array<float, 5> column{};
    for (std::size_t k = 0; k < 5; ++k) column[k] = call.sources[1].at(0, k, 4);
    for (std::size_t i = 0; i < 5; ++i) {
        float sum = 0;
        for (std::size_t k = 0; k < 5; ++k) sum += call.sources[0].at(0, i, k) * column[k];
        column[i] = sum;
        expected[i * 5 + 4] = sum;
    }
    EXPECT_FALSE(run("vonkMul_mm_32f_5x5", call.words(1)).open);
    EXPECT_EQ(call.found(1), expected);
}

TEST(ProductModelInPlace, ATransposedSixthOrderFetchesItsLastRowsAfterTheFirstPass) {
    SquareCall<float> call(Name("vonkMul_mmT_32f_6x6"), 4, 1, 4);
    std::vector<float> expected = call.expected();
    for (std::size_t i = 0; i < 6; ++i)
        for (std::size_t j = 4; j < 6; ++j) {
            float sum = 0;
            for (std::size_t k = 0; k < 6; ++k)
                sum += call.sources[0].at(0, i, k) * (k < 4 ? expected[j * 6 + k] : call.sources[1].at(0, j, k));
            expected[i * 6 + j] = sum;
        }
    EXPECT_FALSE(run("vonkMul_mmT_32f_6x6", call.words(1)).open);
    EXPECT_EQ(call.found(1), expected);
}

TEST(ProductModelInPlace, ATransposedFirstFactorLosesWhatEarlierRowsStored) {
    std::array<float, 9> a = {1, 2, 3, 4, 5, 6, 7, 8, 9};
    const std::array<float, 9> identity = {1, 0, 0, 0, 1, 0, 0, 0, 1};
    EXPECT_FALSE(run("vonkMul_mTm_32f_3x3", {to(a), 12, to(identity), 12, to(a), 12}).open);
    // Row 0 becomes 1 4 7; row 1 is then read as 4 5 8, row 2 as 7 8 9.
    EXPECT_EQ(a, (std::array<float, 9>{1, 4, 7, 4, 5, 8, 7, 8, 9}));
}

TEST(ProductModelInPlace, TheSecondPassReadsTheFirstFactorAnew) {
    std::array<float, 36> a{};
    std::array<float, 36> b{};
    for (std::size_t k = 0; k < 6; ++k) a[k * 7] = b[k * 7] = 2;
    b[4] = 1; // adds the first column of the first factor to its fifth
    EXPECT_FALSE(run("vonkMul_mm_32f_6x6", {to(a), 24, to(b), 24, to(a), 24}).open);
    EXPECT_EQ(a[0], 4);
    EXPECT_EQ(a[4], 4); // of the stored 4, not of the 2 that was there
    EXPECT_EQ(a[35], 4);
}

TEST(ProductModelOverlap, ARowIsReadBeforeItIsStoredAndAfterTheRowAbove) {
    // The destination runs one element ahead of the first factor, times the identity.
    std::array<float, 10> a = {1, 2, 3, 4, 5, 6, 7, 8, 9, 0};
    const std::array<float, 9> identity = {1, 0, 0, 0, 1, 0, 0, 0, 1};
    EXPECT_FALSE(run("vonkMul_mm_32f_3x3", {to(a), 12, to(identity), 12, to(&a[1]), 12}).open);
    EXPECT_EQ(a, (std::array<float, 10>{1, 1, 2, 3, 3, 5, 6, 6, 8, 9}));
}

TEST(ProductModelOverlap, ASingleSecondFactorIsHeldThroughAllObjectsButForAColumnOfOrderFive) {
    std::array<float, 50> a{};
    std::array<float, 25> b{};
    for (std::size_t k = 0; k < 5; ++k) a[k * 6] = a[25 + k * 6] = b[k * 6] = 2;
    // Both objects are stored over the second factor.
    EXPECT_FALSE(run("vonkMul_mam_32f_5x5", {to(a), 100, 20, to(b), 20, to(b), 0, 20, 2}).open);
    EXPECT_EQ(b[0], 4);
    EXPECT_EQ(b[18], 4);
    EXPECT_EQ(b[24], 8);
}

TEST(ProductModelOverlap, ATransposedSecondFactorIsHeldWholeAtOrderFive) {
    const std::array<float, 25> a = {2, 0, 0, 0, 0, 0, 2, 0, 0, 0, 0, 0, 2, 0, 0, 0, 0, 0, 2, 0, 0, 0, 0, 0, 2};
    std::array<float, 45> b{};
    for (std::size_t k = 0; k < 5; ++k) b[20 + k] = static_cast<float>(k + 1); // what is to become column 4
    EXPECT_FALSE(run("vonkMul_mmT_32f_5x5", {to(a), 20, to(b), 20, to(&b[20]), 20}).open);
    for (std::size_t i = 0; i < 5; ++i) EXPECT_EQ(b[20 + 5 * i + 4], static_cast<float>(2 * (i + 1)));
}

TEST(ProductModelOverlap, TheFirstPassOfOrderSixGoesRowByRowAndTheSecondByPairs) {
    std::array<float, 36> b{};
    for (std::size_t k = 0; k < 6; ++k) b[k * 7] = 1;
    std::array<float, 48> first{};
    first[2] = 3;
    first[6] = 7; // the first element of row 1, over which row 0 is stored
    EXPECT_FALSE(run("vonkMul_mm_32f_6x6", {to(first), 24, to(b), 24, to(&first[4]), 24}).open);
    EXPECT_EQ(first[10], 3);
    b[4] = 1; // adds the first column of the first factor to its fifth
    std::array<float, 48> second{};
    second[0] = 1;
    second[6] = 5; // the first element of row 1, over which the fifth of row 0 is stored
    EXPECT_FALSE(run("vonkMul_mm_32f_6x6", {to(second), 24, to(b), 24, to(&second[2]), 24}).open);
    EXPECT_EQ(second[6], 1);
    EXPECT_EQ(second[12], 5);
}

TEST(ProductModelOverlap, IsOpenWhereALateFetchWouldShow) {
    std::array<float, 80> b{};
    const std::array<float, 36> a{};
    EXPECT_FALSE(run("vonkMul_mm_32f_6x6", {to(a), 24, to(b), 24, to(b), 24}).open);
    EXPECT_TRUE(run("vonkMul_mm_32f_6x6", {to(a), 24, to(b), 24, to(&b[1]), 24}).open);
    EXPECT_FALSE(run("vonkMul_mm_32f_6x6", {to(a), 24, to(b), 24, to(&b[36]), 24}).open);
    EXPECT_FALSE(run("vonkMul_mmT_32f_6x6", {to(a), 24, to(b), 24, to(&b[1]), 24}).open);
    EXPECT_FALSE(run("vonkMul_mma_32f_6x6", {to(a), 24, to(b), 144, 24, to(&b[1]), 144, 24, 1}).open);
}

TEST(ProductModelOverlap, IsOpenWhereARowOfAPairFeedsTheOther) {
    std::array<float, 80> a{};
    const std::array<float, 36> b{};
    const auto call = [&](float *dst) {
        return run("vonkMul_mm_32f_6x6_S2", {to(a), 24, 4, to(b), 24, 4, to(dst), 24, 4});
    };
    EXPECT_FALSE(call(a.data()).open);
    EXPECT_TRUE(call(&a[1]).open);
    EXPECT_FALSE(call(&a[12]).open); // rows 2 and 3, which are read when rows 0 and 1 are stored
}

// The cells of the destination in the order of their stores, as row and column in one number.
std::vector<int> storeOrder(const std::string &name) {
    SquareCall<float> call(Name(name), 1);
    std::vector<int> cells;
    for (const model::Write &write : run(name, call.words()).writes)
        for (std::size_t i = 0; i < 6; ++i)
            for (std::size_t j = 0; j < 6; ++j)
                if (write.address == to(&call.dst[0].at(0, i, j))) cells.push_back(static_cast<int>(10 * i + j));
    return cells;
}

TEST(ProductModelOverlap, SixthOrdersStoreInTwoPassesOrInPairsOfRows) {
    EXPECT_EQ(storeOrder("vonkMul_mTm_32f_6x6"),
              (std::vector<int>{0,  1,  2,  3,  10, 11, 12, 13, 20, 21, 22, 23, 30, 31, 32, 33, 40, 41,
                                42, 43, 50, 51, 52, 53, 4,  5,  14, 15, 24, 25, 34, 35, 44, 45, 54, 55}));
    EXPECT_EQ(storeOrder("vonkMul_mmT_32f_6x6_S2"),
              (std::vector<int>{0,  1,  2,  3,  4,  5,  14, 15, 10, 11, 12, 13, 20, 21, 22, 23, 24, 25,
                                34, 35, 30, 31, 32, 33, 40, 41, 42, 43, 44, 45, 54, 55, 50, 51, 52, 53}));
}

TEST(ProductModelOverlap, ACallThatWritesItsOwnTableIsOpen) {
    std::array<double, 3> a = {1, 2, 3};
    std::array<std::uint64_t, 1> table = {to(a)};
    std::array<std::uint64_t, 1> dstTable = {to(table)};
    EXPECT_TRUE(run("vonkMul_mm_64f_P", {to(table), 0, 1, 1, to(table), 0, 1, 1, to(dstTable), 0}).open);
}

// --- The order of the additions.

// The value of a tree such as "((0+1)+4)+(2+3)" over the products; "~" marks a sum that starts from +0.
class Tree {
public:
    Tree(std::string text, const std::vector<float> &products) : text_(std::move(text)), products_(products) {}

    float value() {
        volatile float sum = operand(); // each sum is rounded on its own
        while (at_ < text_.size() && text_[at_] == '+') {
            ++at_;
            sum = sum + operand();
        }
        return sum;
    }

private:
    float operand() {
        const char letter = text_[at_++];
        if (letter != '(') return products_[static_cast<std::size_t>(letter - '0')];
        const float inner = value();
        ++at_; // the closing parenthesis
        return inner;
    }

    std::string text_;
    const std::vector<float> &products_;
    std::size_t at_ = 0;
};

const std::map<std::size_t, std::vector<std::string>> allTrees = {
    {3, {"0+1+2", "0+(1+2)", "(0+2)+1"}},
    {4, {"0+1+2+3", "(0+2)+(1+3)", "(0+1)+(2+3)", "(0+3)+(1+2)"}},
    {5, {"0+1+2+3+4", "0+1+4+(2+3)", "0+2+4+(1+3)", "(0+1)+(2+3)+4", "0+2+(1+3)+4"}},
    {6,
     {"0+1+2+3+4+5", "0+2+4+(1+3+5)", "(0+1)+(2+3)+(4+5)", "(0+1)+((2+3)+(4+5))", "0+1+2+(3+4+5)",
      "(0+2)+(1+3)+(4+5)"}},
};

std::vector<float> rowOfFactor(SquareCall<float> &call, std::size_t n, std::size_t i) {
    std::vector<float> row;
    for (std::size_t k = 0; k < call.order; ++k) row.push_back(call.factor(0, n, i, k));
    return row;
}

// All of the second operand is 1 and any third one is 0, so the products of an element are a row of the first factor.
SquareCall<float> callOfRandomRows(const Name &name, unsigned seed) {
    SquareCall<float> call(name, seed, 1, 1);
    std::mt19937 random(seed);
    std::uniform_real_distribution<float> values(-1, 1);
    for (std::size_t n = 0; n < Operand<float>::count; ++n)
        for (std::size_t i = 0; i < call.order; ++i)
            for (std::size_t k = 0; k < call.order; ++k)
                call.sources[0].at(n, i, k) = std::ldexp(values(random), static_cast<int>(random() % 8));
    if (name.isGaxpy()) call.sources[2].fill(random, 0, 0);
    return call;
}

// The trees that agree with row i of the destination in every one of many calls.
std::set<std::string> treesOf(const Name &name, std::size_t i) {
    const std::vector<std::string> &all = allTrees.at(name.order());
    std::set<std::string> agreeing(all.begin(), all.end());
    for (unsigned seed = 1; seed <= 60; ++seed) {
        SquareCall<float> call = callOfRandomRows(name, seed);
        run(name.whole, call.words());
        for (std::size_t n = 0; n < call.objects(); ++n) {
            const std::vector<float> row = rowOfFactor(call, n, i);
            const float found = name.isMatrixProduct() ? call.dst[0].at(n, i, call.order - 1) : call.dst[0].at(n, 0, i);
            std::erase_if(agreeing, [&](const std::string &text) { return Tree(text, row).value() != found; });
        }
    }
    return agreeing;
}

std::string treeOf(const Name &name, std::size_t i) {
    const std::vector<std::string> &all = allTrees.at(name.order());
    const bool isPlain = name.isGaxpy() || name.source(0).back() != 'T';
    if (!worksInLanes(name)) return all[0];
    if (name.isMatrixProduct()) return name.size == "6x6" && name.layout == "S2" ? "(0+1)+(2+3)+(4+5)" : all[0];
    switch (name.order()) {
    case 3: return "0+1+2";
    case 4: return isPlain ? "(0+2)+(1+3)" : "(0+1)+(2+3)";
    case 5: return isPlain && i == 4 ? "0+2+4+(1+3)" : "0+1+4+(2+3)";
    default: return isPlain ? "0+2+4+(1+3+5)" : "(0+1)+(2+3)+(4+5)";
    }
}

TEST(ProductModelSums, EveryReal32FormAddsInItsOwnOrder) {
    for (const Name &name : allProducts()) {
        if (name.type != "32f") continue;
        for (std::size_t i = 0; i < name.order(); ++i)
            EXPECT_EQ(treesOf(name, i), std::set<std::string>{treeOf(name, i)}) << name.whole << " row " << i;
    }
}

TEST(ProductModelSums, SumsThroughACellBeginAtPlusZeroAndLanesAtTheFirstProduct) {
    for (const Name &name : allProducts()) {
        if (name.type != "32f") continue;
        SquareCall<float> call(name, 1, -1, -1);
        std::mt19937 random(1);
        for (std::size_t index = 1; index < call.sources.size(); ++index) call.sources[index].fill(random, 0, 0);
        if (name.isGaxpy()) // the vector added last would hide the sign of a sum of zeros unless it is -0
            for (float &element : call.sources[2].storage) element = -0.0F;
        run(name.whole, call.words());
        for (const float element : call.found()) {
            EXPECT_EQ(element, 0) << name.whole;
            EXPECT_EQ(std::signbit(element), worksInLanes(name)) << name.whole;
        }
    }
}

// Sums 1 and two halves of its last place, by the first row of the first factor.
std::set<double> sumsOfHalves(const Name &name) {
    SquareCall<double> call(name, 1, 1, 1);
    for (std::size_t n = 0; n < Operand<double>::count; ++n)
        for (std::size_t i = 0; i < call.order; ++i)
            for (std::size_t k = 0; k < call.order; ++k)
                call.sources[0].at(n, i, k) = (name.source(0).back() == 'T' ? i : k) == 0 ? 1 : 0x1p-53;
    if (name.isGaxpy()) // takes the place of one of the halves
        for (std::size_t n = 0; n < Operand<double>::count; ++n)
            for (std::size_t j = 0; j < call.order; ++j) {
                call.sources[1].at(n, 0, j) = j < 2 ? 1 : 0;
                call.sources[2].at(n, 0, j) = 0x1p-53;
            }
    run(name.whole, call.words());
    const std::vector<double> found = call.found();
    return {found.begin(), found.end()};
}

TEST(ProductModelSums, Real64RoundsOnceInTheLayoutsWithoutTablesOrListsAndElseAtEveryStep) {
    for (const Name &name : allProducts()) {
        if (name.type != "64f" || name.order() > 3) continue;
        const bool roundsOnce = name.layout.empty() || name.layout == "S2";
        {
            const PrecisionControl wide(PrecisionControl::bits64);
            EXPECT_EQ(sumsOfHalves(name), std::set<double>{roundsOnce ? 1 + 0x1p-52 : 1}) << name.whole;
        }
        const PrecisionControl narrow(PrecisionControl::bits53);
        EXPECT_EQ(sumsOfHalves(name), std::set<double>{1}) << name.whole;
    }
}

TEST(ProductModelSums, ProductsOfReal64AreExtended) {
    const std::array<double, 2> a = {-1 - 0x1p-29, 1 + 0x1p-30};
    const std::array<double, 2> b = {1, 1 + 0x1p-30};
    std::array<double, 1> dst{};
    const std::array<std::uint64_t, 2> tableA = {to(a), to(&a[1])};
    const std::array<std::uint64_t, 2> tableB = {to(b), to(&b[1])};
    const std::array<std::uint64_t, 1> tableDst = {to(dst)};
    for (const unsigned bits : {PrecisionControl::bits53, PrecisionControl::bits64}) {
        const PrecisionControl precision(bits);
        const double expected = bits == PrecisionControl::bits64 ? 0x1p-60 : 0;
        run("vonkMul_mv_64f", {to(a), 16, 2, 1, to(b), 2, to(dst)});
        EXPECT_EQ(dst[0], expected);
        run("vonkMul_mv_64f_P", {to(tableA), 0, 2, 1, to(tableB), 0, 2, to(tableDst), 0});
        EXPECT_EQ(dst[0], expected);
    }
}

TEST(ProductModelSums, EveryPartialSumIsStored) {
    const std::array<float, 3> a = {2, 3, 4};
    // The second factor lies where the sum is stored: 0, then 0 + 2 * 0, then that times 3, and the rest from outside.
    std::array<float, 3> b = {100, 7, 5};
    const model::Outcome outcome = run("vonkMul_mm_32f", {to(a), 12, 3, 1, to(b), 4, 1, 3, to(b), 4});
    EXPECT_EQ(b[0], 3 * 7 + 4 * 5);
    EXPECT_EQ(outcome.writes.size(), 4U);
    EXPECT_FALSE(outcome.open);
    std::array<float, 3> late = {1, 7, 5};
    run("vonkMul_mm_32f", {to(a), 12, 3, 1, to(late), 4, 1, 3, to(&late[2]), 4});
    EXPECT_EQ(late[2], 2 * 1 + 3 * 7 + 4 * (2 * 1 + 3 * 7));
}

// --- The dimensions of the matrix products.

struct Dimensions {
    std::uint32_t columns1, rows1, columns2, rows2;
};

struct Bounds {
    std::size_t rows, columns, terms;
};

template <class Real>
model::Outcome multiply(const Name &name, const Dimensions &d, std::vector<Real> &a, std::vector<Real> &b,
                        std::vector<Real> &c) {
    // Objects and rows of the three operands are 8 apart, so that the loops stay inside whatever their bounds.
    const std::uint64_t row = 8 * sizeof(Real);
    Words words = {to(a)};
    const auto strides = [&](std::size_t index) {
        if (isArrayLetters(index < 2 ? name.source(index) : name.group)) words.push_back(0);
        words.push_back(row);
    };
    strides(0);
    words.insert(words.end(), {d.columns1, d.rows1, to(b)});
    strides(1);
    words.insert(words.end(), {d.columns2, d.rows2, to(c)});
    strides(2);
    if (name.isArray()) words.push_back(1);
    return run(name.whole, words);
}

template <class Real> void expectBounds(const std::string &group, const Dimensions &d, const Bounds &bounds) {
    const Name name("vonkMul_" + group + (sizeof(Real) == 4 ? "_32f" : "_64f"));
    std::vector<Real> a(64);
    std::vector<Real> b(64);
    for (std::size_t index = 0; index < 64; ++index) {
        a[index] = static_cast<Real>(index % 7 + 1);
        b[index] = static_cast<Real>(index % 5 + 1);
    }
    std::vector<Real> c(64, -77);
    std::vector<Real> expected = c;
    for (std::size_t i = 0; i < bounds.rows; ++i)
        for (std::size_t j = 0; j < bounds.columns; ++j) {
            expected[i * 8 + j] = 0;
            for (std::size_t k = 0; k < bounds.terms; ++k)
                expected[i * 8 + j] += (name.source(0).back() == 'T' ? a[k * 8 + i] : a[i * 8 + k]) *
                                       (name.source(1).back() == 'T' ? b[j * 8 + k] : b[k * 8 + j]);
        }
    const model::Outcome outcome = multiply(name, d, a, b, c);
    EXPECT_EQ(outcome.status, 0) << name.whole;
    EXPECT_EQ(c, expected) << name.whole;
    EXPECT_EQ(outcome.writes.size(), bounds.rows * bounds.columns * (bounds.terms + 1)) << name.whole;
}

void expectSize(const std::string &groups, const Dimensions &d, int status) {
    std::istringstream stream(groups);
    for (std::string group; stream >> group;) {
        std::vector<float> a(64), b(64), c(64);
        EXPECT_EQ(multiply(Name("vonkMul_" + group + "_32f"), d, a, b, c).status, status) << group;
    }
}

TEST(ProductModelDimensions, LoopsFollowTheWordsOfEachGroup) {
    const auto expect = [](const std::string &groups, const Dimensions &d, const Bounds &bounds) {
        std::istringstream stream(groups);
        for (std::string group; stream >> group;) {
            expectBounds<float>(group, d, bounds);
            expectBounds<double>(group, d, bounds);
        }
    };
    expect("mm mam", {3, 2, 4, 3}, {2, 4, 3});
    expect("mma mama", {3, 2, 2, 5}, {2, 2, 5});
    expect("mTm maTm mTma maTma", {2, 3, 4, 3}, {3, 4, 3});
    expect("mmT", {4, 2, 4, 3}, {2, 3, 4});
    expect("mamT mmaT mamaT", {4, 2, 4, 3}, {2, 4, 3});
    expect("mTmT maTmT mTmaT maTmaT", {5, 2, 2, 3}, {2, 2, 3});
}

TEST(ProductModelDimensions, OnlyMatchingWordsAreAccepted) {
    expectSize("mm mam", {3, 2, 4, 3}, 0);
    expectSize("mm mam", {3, 2, 2, 4}, -6);
    expectSize("mma mama", {3, 2, 4, 3}, -6); // a true product is refused
    expectSize("mma mama", {3, 2, 2, 5}, 0);
    expectSize("mTm maTm mTma maTma", {9, 3, 4, 3}, 0);
    expectSize("mTm maTm mTma maTma", {4, 3, 3, 4}, -6);
    expectSize("mmT mamT mmaT mamaT", {3, 2, 3, 4}, 0);
    expectSize("mmT mamT mmaT mamaT", {3, 2, 2, 3}, -6);
    expectSize("mTmT maTmT mTmaT maTmaT", {9, 3, 3, 4}, 0);
    expectSize("mTmT maTmT mTmaT maTmaT", {4, 3, 2, 4}, -6);
}

TEST(ProductModelDimensions, ZeroesAreRefusedEvenWhereTheWordsAgree) {
    expectSize("mm mTm maTm mTma maTma", {3, 3, 0, 3}, -6);
    expectSize("mam", {3, 3, 0, 3}, 0);
    std::vector<float> a(64), b(64), c(64);
    EXPECT_TRUE(multiply(Name("vonkMul_mam_32f"), {3, 3, 0, 3}, a, b, c).writes.empty());
    expectSize("mma mama mmT mamT mmaT mamaT mTmT maTmT mTmaT maTmaT", {3, 3, 3, 0}, -6);
    expectSize("mm mam", {0, 3, 3, 0}, -6);
    expectSize("mma mTm mTmT", {0, 3, 3, 3}, -6);
    expectSize("mma mTmT", {3, 0, 0, 3}, -6);
}

TEST(ProductModelDimensions, TheStridedTwinOfTheOneTrueTransposedProductTakesOtherBounds) {
    std::vector<float> a(64, 1), b(64, 1), c(64, -77);
    // 2 x 4 by the transpose of 3 x 4.
    run("vonkMul_mmT_32f_S2", {to(a), 32, 4, 4, 2, to(b), 32, 4, 4, 3, to(c), 32, 4});
    EXPECT_EQ(c[0], 3); // three terms
    EXPECT_EQ(c[3], 3); // in four columns
    EXPECT_EQ(c[4], -77);
    run("vonkMul_mmT_32f", {to(a), 32, 4, 2, to(b), 32, 4, 3, to(c), 32});
    EXPECT_EQ(c[0], 4);
    EXPECT_EQ(c[2], 4);
    EXPECT_EQ(c[3], 3);
}

// --- Tables.

// A table over numbers that stand in for themselves: entry e leads to e + 1.
struct Table {
    explicit Table(std::size_t entries) : values(entries), pointers(entries) {
        for (std::size_t e = 0; e < entries; ++e) {
            values[e] = static_cast<float>(e + 1);
            pointers[e] = to(&values[e]);
        }
    }
    std::vector<float> values;
    std::vector<std::uint64_t> pointers;
};

TEST(ProductModelTables, EntriesAreCountedByTheWordsThatThePatternReads) {
    const auto results = [](const std::string &group, const Dimensions &d) {
        Table a(20), b(20), c(4);
        run("vonkMul_" + group + "_32f_P",
            {to(a.pointers), 0, d.columns1, d.rows1, to(b.pointers), 0, d.columns2, d.rows2, to(c.pointers), 0});
        return c.values;
    };
    using Values = std::vector<float>;
    EXPECT_EQ(results("mm", {2, 1, 3, 2}), (Values{1 * 1 + 2 * 4, 1 * 2 + 2 * 5, 1 * 3 + 2 * 6, 4}));
    // Transposed, term k of row i is entry 2k + i, for two rows by the word.
    EXPECT_EQ(results("mTm", {5, 2, 1, 2}), (Values{1 * 1 + 3 * 2, 2 * 1 + 4 * 2, 3, 4}));
    // Transposed on the right, term k of column j is entry 2j + k, for two rows by the word.
    EXPECT_EQ(results("mmT", {3, 1, 3, 2}), (Values{1 * 1 + 2 * 2, 1 * 3 + 2 * 4, 1 * 5 + 2 * 6, 4}));
}

Words tableCall(Table &a, Table &b, Table &c, const Dimensions &d, std::uint64_t count) {
    return {to(a.pointers), 0, d.columns1, d.rows1, to(b.pointers), 0, d.columns2, d.rows2, to(c.pointers), 0, count};
}

// How many entries of each table the scan looks at: from the end, the first null entry that is found.
std::array<std::size_t, 3> scannedEntries(const std::string &group, const Dimensions &d) {
    std::array<std::size_t, 3> extents{};
    for (std::size_t which = 0; which < 3; ++which)
        for (std::size_t entry = 20; entry-- > 0 && extents[which] == 0;) {
            std::array<Table, 3> tables = {Table(20), Table(20), Table(20)};
            tables[which].pointers[entry] = 0;
            const model::Outcome outcome =
                run("vonkMul_" + group + "_32f_P", tableCall(tables[0], tables[1], tables[2], d, 0));
            EXPECT_TRUE(outcome.writes.empty());
            if (outcome.status == -8) extents[which] = entry + 1;
        }
    return extents;
}

TEST(ProductModelTables, ScansCoverOtherShapesThanTheLoops) {
    using Extents = std::array<std::size_t, 3>;
    EXPECT_EQ(scannedEntries("mam", {3, 2, 4, 3}), (Extents{6, 12, 9}));
    EXPECT_EQ(scannedEntries("mam", {3, 2, 0, 3}), (Extents{6, 0, 9}));
    for (const char *group : {"mma", "mama"})
        EXPECT_EQ(scannedEntries(group, {3, 2, 2, 5}), (Extents{6, 10, 15})) << group;
    for (const char *group : {"maTm", "mTma", "maTma"})
        EXPECT_EQ(scannedEntries(group, {2, 3, 4, 3}), (Extents{6, 12, 9})) << group;
    for (const char *group : {"mamT", "mmaT", "mamaT"})
        EXPECT_EQ(scannedEntries(group, {4, 2, 4, 3}), (Extents{8, 12, 16})) << group;
    for (const char *group : {"maTmT", "mTmaT", "maTmaT"})
        EXPECT_EQ(scannedEntries(group, {5, 2, 2, 3}), (Extents{10, 6, 4})) << group;
}

TEST(ProductModelTables, ASingleProductTestsTheEntriesOfACellAsItReachesThem) {
    Table a(4), b(4), c(4);
    const Words words = {to(a.pointers), 0, 2, 2, to(b.pointers), 0, 2, 2, to(c.pointers), 0};
    b.pointers[3] = 0; // the second term of cell 1
    model::Outcome outcome = run("vonkMul_mm_32f_P", words);
    EXPECT_EQ(outcome.status, -8);
    EXPECT_EQ(outcome.writes.size(), 3U + 2U);
    EXPECT_EQ(c.values, (std::vector<float>{7, 2, 3, 4})); // 1 * 1 + 2 * 3, then 1 * 2 alone
    b.pointers[3] = to(&b.values[3]);
    a.pointers[2] = 0; // the first term of cell 2
    outcome = run("vonkMul_mm_32f_P", words);
    EXPECT_EQ(outcome.writes.size(), 3U + 3U + 1U);
    EXPECT_EQ(c.values, (std::vector<float>{7, 10, 0, 4}));
    c.pointers[2] = 0;
    EXPECT_EQ(run("vonkMul_mm_32f_P", words).writes.size(), 6U);
}

TEST(ProductModelTables, ThreeKernelsTrustTheirTables) {
    for (const Name &name : allProducts()) {
        if (name.layout[0] != 'P' || !name.isArray()) continue;
        SquareCall<float> call(name, 1);
        call.dst[0].table.back() = 0;
        Words words = call.words();
        words.back() = 0;
        const bool trusts = name.type == "32f" && name.size == "3x3" && name.isIn("mam maTm mamT");
        EXPECT_EQ(run(name.whole, words).status, trusts ? 0 : -8) << name.whole;
    }
}

TEST(ProductModelTables, ListEntriesAreTestedAtTheirObjectsTurn) {
    for (const Name &name : allProducts()) {
        const bool trusts = name.whole == "vonkMul_mam_32f_3x3_LS2" || name.whole == "vonkMul_maTm_32f_3x3_LS2" ||
                            name.whole == "vonkMul_mamT_32f_3x3_LS2" || name.whole == "vonkMul_maTmT_32f_3x3_LS2";
        if (name.layout[0] != 'L' || trusts || name.type != "32f") continue;
        for (int which = -1; which < (name.isGaxpy() ? 3 : 2); ++which) {
            SquareCall<float> call(name, 1);
            const std::vector<float> expected = call.expected();
            Operand<float> &operand = which < 0 ? call.dst[0] : call.sources[which];
            if (operand.table.empty()) continue;
            operand.table[1] = 0;
            EXPECT_EQ(run(name.whole, call.words()).status, -8) << name.whole << which;
            const std::vector<float> found = call.found();
            const auto size = static_cast<std::ptrdiff_t>(expected.size() / 3);
            EXPECT_TRUE(std::equal(found.begin(), found.begin() + size, expected.begin())) << name.whole << which;
            EXPECT_EQ(std::count(found.begin() + size, found.end(), -77.0F), 2 * size) << name.whole << which;
        }
    }
}

// Memory so low that a shift alone can lead there, which makes a null entry an address like any other.
class LowMemory {
public:
    LowMemory() : place_(mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_32BIT, -1, 0)) {}
    ~LowMemory() {
        if (isThere()) munmap(place_, size);
    }
    LowMemory(const LowMemory &) = delete;
    LowMemory &operator=(const LowMemory &) = delete;

    bool isThere() const { return place_ != MAP_FAILED; }
    float *floats() const { return static_cast<float *>(place_); }

private:
    static constexpr std::size_t size = 4096;
    void *place_;
};

TEST(ProductModelTables, OneEntryOfATransposedMatrixOfOrderFourIsNotTested) {
    const LowMemory low;
    ASSERT_TRUE(low.isThere());
    low.floats()[0] = 100;
    Table a(16), v(4), c(4);
    for (std::uint64_t &pointer : a.pointers) pointer -= to(low.floats());
    const Words words = {to(a.pointers), to(low.floats()), to(v.pointers), 0, to(c.pointers), 0};
    a.pointers[8] = 0; // the third term of element 0
    EXPECT_EQ(run("vonkMul_mTv_32f_4x4_P", words).status, 0);
    EXPECT_EQ(c.values, (std::vector<float>{1 * 1 + 5 * 2 + 100 * 3 + 13 * 4, 100, 110, 120}));
    EXPECT_EQ(run("vonkMul_mv_32f_4x4_P", words).status, -8);
    a.pointers[12] = 0;
    a.pointers[8] = to(&a.values[8]) - to(low.floats());
    EXPECT_EQ(run("vonkMul_mTv_32f_4x4_P", words).status, -8);
}

TEST(ProductModelTables, FourListKernelsTrustTheirLists) {
    const LowMemory low;
    ASSERT_TRUE(low.isThere());
    std::fill_n(low.floats(), 9, 2.0F);
    const std::array<float, 9> b = {1, 0, 0, 0, 1, 0, 0, 0, 1};
    std::array<float, 9> c{};
    const std::array<std::uint64_t, 1> list = {0};
    const std::array<std::uint64_t, 1> dstList = {to(c)};
    for (const char *group : {"mam", "maTm", "mamT", "maTmT"}) {
        c = {};
        const Words words = {to(list), to(low.floats()), 12, 4, to(b), 12, 4, to(dstList), 0, 12, 4, 1};
        EXPECT_EQ(run(std::string("vonkMul_") + group + "_32f_3x3_LS2", words).status, 0) << group;
        EXPECT_EQ(c, (std::array<float, 9>{2, 2, 2, 2, 2, 2, 2, 2, 2})) << group;
        EXPECT_EQ(run(std::string("vonkMul_") + group + "_32f_4x4_LS2", words).status, -8) << group;
    }
}

// --- Matrix by vector.

TEST(ProductModelVector, TransposedFormsCompareRowsAndSumColumns) {
    const std::array<float, 12> a = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12};
    const std::array<float, 3> v = {1, 10, 100};
    std::array<float, 4> dst = {-1, -1, -1, -1};
    // Two columns, three rows by the words: three elements of two terms, read down columns that are rows apart.
    EXPECT_EQ(run("vonkMul_mTv_32f", {to(a), 16, 2, 3, to(v), 3, to(dst)}).status, 0);
    EXPECT_EQ(dst, (std::array<float, 4>{1 + 50, 2 + 60, 3 + 70, -1}));
    EXPECT_EQ(run("vonkMul_mTv_32f", {to(a), 16, 2, 3, to(v), 2, to(dst)}).status, -6);
    EXPECT_EQ(run("vonkMul_mv_32f", {to(a), 16, 2, 3, to(v), 3, to(dst)}).status, -6);
    EXPECT_EQ(run("vonkMul_mv_32f", {to(a), 16, 3, 2, to(v), 3, to(dst)}).status, 0);
    EXPECT_EQ(dst, (std::array<float, 4>{321, 765, 73, -1}));
    EXPECT_EQ(run("vonkMul_mv_32f", {to(a), 16, 0, 2, to(v), 0, to(dst)}).status, -6);
    EXPECT_EQ(run("vonkMul_mTv_32f", {to(a), 16, 2, 0, to(v), 0, to(dst)}).status, -6);
}

TEST(ProductModelVector, TablesOfTransposedFormsAreCountedByTheRows) {
    Table a(6), v(3), c(4);
    EXPECT_EQ(run("vonkMul_mTv_32f_P", {to(a.pointers), 0, 2, 3, to(v.pointers), 0, 3, to(c.pointers), 0}).status, 0);
    EXPECT_EQ(c.values, (std::vector<float>{1 * 1 + 4 * 2, 2 * 1 + 5 * 2, 3 * 1 + 6 * 2, 4}));
    // The scan covers what the words say, whatever is read.
    const Words words = {to(a.pointers), 0, 2, 3, to(v.pointers), 0, 3, to(c.pointers), 0, 0};
    c.pointers[3] = 0;
    EXPECT_EQ(run("vonkMul_maTv_32f_P", words).status, 0);
    v.pointers[2] = 0; // no term reads it
    EXPECT_EQ(run("vonkMul_maTv_32f_P", words).status, -8);
    EXPECT_EQ(run("vonkMul_mTv_32f_P", Words(words.begin(), words.end() - 1)).status, 0);
    v.pointers[2] = to(v.values);
    a.pointers[5] = 0;
    EXPECT_EQ(run("vonkMul_maTv_32f_P", words).status, -8);
    a.pointers[5] = to(a.values);
    c.pointers[2] = 0;
    EXPECT_EQ(run("vonkMul_maTv_32f_P", words).status, -8);
}

TEST(ProductModelVector, ASingleProductTestsTheEntriesOfAnElementAsItReachesThem) {
    Table a(4), v(2), c(2);
    const Words words = {to(a.pointers), 0, 2, 2, to(v.pointers), 0, 2, to(c.pointers), 0};
    a.pointers[3] = 0;
    const model::Outcome outcome = run("vonkMul_mv_32f_P", words);
    EXPECT_EQ(outcome.status, -8);
    EXPECT_EQ(outcome.writes.size(), 3U + 2U);
    EXPECT_EQ(c.values, (std::vector<float>{5, 3}));
    c.pointers[0] = 0;
    EXPECT_TRUE(run("vonkMul_mv_32f_P", words).writes.empty());
}

// In place on the vector, or on the addend, which comes last.
template <class Real> void expectVectorInPlace(const Name &name, int on, bool isRight) {
    SquareCall<Real> call(name, 5);
    const std::vector<Real> expected = call.expected();
    EXPECT_FALSE(run(name.whole, call.words(on)).open) << name.whole;
    EXPECT_EQ(call.found(on) == expected, isRight) << name.whole << " on src" << on + 1;
}

TEST(ProductModelVector, OnlyLanesAreRightInPlace) {
    for (const Name &name : allProducts())
        for (const int on : {1, 2}) {
            if (name.isMatrixProduct() || (on == 2 && !name.isGaxpy())) continue;
            if (isArrayLetters(name.source(static_cast<std::size_t>(on))) != name.isArray()) continue;
            if (name.type == "32f") expectVectorInPlace<float>(name, on, worksInLanes(name));
            else expectVectorInPlace<double>(name, on, false);
        }
}

TEST(ProductModelVector, SingleOperandsOfLanesAreHeldThroughAllObjects) {
    std::array<float, 9> a = {2, 0, 0, 0, 2, 0, 0, 0, 2};
    const std::array<float, 6> vectors = {1, 2, 3, 4, 5, 6};
    // Both objects are stored over the matrix.
    EXPECT_FALSE(run("vonkMul_mva_32f_3x3", {to(a), 12, to(vectors), 12, to(a), 12, 2}).open);
    EXPECT_EQ(a, (std::array<float, 9>{2, 4, 6, 8, 10, 12, 0, 0, 2}));
    std::array<float, 9> again = {2, 0, 0, 0, 2, 0, 0, 0, 2};
    std::array<float, 3> v = {1, 2, 3};
    EXPECT_FALSE(run("vonkMul_mav_32f_3x3", {to(again), 0, 12, to(v), to(v), 0, 3}).open);
    EXPECT_EQ(v, (std::array<float, 3>{2, 4, 6}));
}

TEST(ProductModelVector, IsOpenWhereTheFirstFourElementsRunIntoWhatServesTheRest) {
    std::array<float, 60> a{};
    const std::array<float, 6> v{};
    const auto mv = [&](const std::string &name, std::size_t rowStride, float *dst) {
        return run(name, {to(a), rowStride, to(v), to(dst)}).open;
    };
    EXPECT_FALSE(mv("vonkMul_mv_32f_5x5", 20, &a[16]));
    EXPECT_TRUE(mv("vonkMul_mv_32f_5x5", 20, &a[17])); // reaches row 4 with its fourth element
    EXPECT_FALSE(mv("vonkMul_mv_32f_5x5", 20, &a[25]));
    EXPECT_FALSE(mv("vonkMul_mTv_32f_5x5", 20, a.data()));
    EXPECT_TRUE(mv("vonkMul_mTv_32f_5x5", 20, &a[1]));
    EXPECT_TRUE(mv("vonkMul_mTv_32f_6x6", 24, &a[1]));
    EXPECT_FALSE(mv("vonkMul_mv_32f_6x6", 24, &a[20]));
    EXPECT_TRUE(mv("vonkMul_mv_32f_6x6", 24, &a[21]));
    EXPECT_FALSE(mv("vonkMul_mv_32f_4x4", 16, &a[14]));
    EXPECT_FALSE(run("vonkMul_mva_32f_5x5", {to(a), 20, to(v), 0, to(&a[17]), 0, 1}).open);
    EXPECT_TRUE(run("vonkMul_mav_32f_5x5", {to(a), 0, 20, to(v), to(&a[17]), 0, 1}).open);
}

// --- Matrix by vector plus vector.

TEST(ProductModelGaxpy, TakesAnyShapeAndAddsTheSecondVectorLast) {
    const std::array<float, 6> a = {1, 2, 3, 4, 5, 6};
    const std::array<float, 3> v = {1, 10, 100};
    std::array<float, 3> w = {1000, 2000, 3000};
    std::array<float, 3> dst = {-1, -1, -1};
    const model::Outcome outcome = run("vonkGaxpy_v_32f", {to(a), 12, to(v), to(w), to(dst), 3, 2});
    EXPECT_EQ(dst, (std::array<float, 3>{1321, 2654, -1}));
    EXPECT_EQ(outcome.writes.size(), 2U * (3 + 2));
    // In place on the addend the sum meets itself.
    run("vonkGaxpy_v_32f", {to(a), 12, to(v), to(w), to(w), 3, 2});
    EXPECT_EQ(w, (std::array<float, 3>{642, 1308, 3000}));
    EXPECT_EQ(run("vonkGaxpy_v_32f", {to(a), 12, to(v), to(w), to(dst), 0, 2}).status, -6);
    EXPECT_EQ(run("vonkGaxpy_v_32f", {to(a), 12, to(v), to(w), to(dst), 3, 0}).status, -6);
}

TEST(ProductModelGaxpy, RoundsTheSumBeforeTheAddendJoins) {
    // 1 + 2^-24 is rounded to 1 before the other 2^-24 comes.
    const std::array<float, 9> a = {1, 0x1p-24F, 0, 1, 0, 0, 1, 0, 0};
    const std::array<float, 3> v = {1, 1, 1};
    const std::array<float, 3> w = {0x1p-24F, 0x1p-23F, 0};
    std::array<float, 3> dst{};
    for (const char *name : {"vonkGaxpy_v_32f_3x3", "vonkGaxpy_v_32f"}) {
        Words words = {to(a), 12, to(v), to(w), to(dst)};
        if (std::string(name) == "vonkGaxpy_v_32f") words.insert(words.end(), {3, 3});
        run(name, words);
        EXPECT_EQ(dst, (std::array<float, 3>{1, 1 + 0x1p-23F, 1})) << name;
    }
}

TEST(ProductModelGaxpy, TestsTheEntriesOfAnElementAsItReachesThem) {
    Table a(4), v(2), w(2), c(2);
    const Words words = {to(a.pointers), 0, to(v.pointers), 0, to(w.pointers), 0, to(c.pointers), 0, 2, 2};
    v.pointers[1] = 0;
    EXPECT_EQ(run("vonkGaxpy_v_32f_P", words).writes.size(), 2U);
    EXPECT_EQ(c.values, (std::vector<float>{1, 2}));
    v.pointers[1] = to(&v.values[1]);
    w.pointers[1] = 0; // stops ahead of the zero
    const model::Outcome outcome = run("vonkGaxpy_v_32f_P", words);
    EXPECT_EQ(outcome.status, -8);
    EXPECT_EQ(outcome.writes.size(), 4U);
    EXPECT_EQ(c.values, (std::vector<float>{1 * 1 + 2 * 2 + 1, 2}));
}

TEST(ProductModelGaxpy, ScansFourTables) {
    const auto status = [](std::size_t which, std::size_t entry) {
        std::array<Table, 4> tables = {Table(8), Table(8), Table(8), Table(8)};
        tables[which].pointers[entry] = 0;
        Words words;
        for (Table &table : tables) words.insert(words.end(), {to(table.pointers), 0});
        words.insert(words.end(), {3, 2, 0}); // three columns, two rows, no objects
        return run("vonkGaxpy_va_32f_P", words).status;
    };
    const std::array<std::size_t, 4> extents = {6, 3, 2, 2};
    for (std::size_t which = 0; which < 4; ++which) {
        EXPECT_EQ(status(which, extents[which] - 1), -8) << which;
        EXPECT_EQ(status(which, extents[which]), 0) << which;
    }
}

TEST(ProductModelGaxpy, IsOpenWhereTheFirstFourElementsRunIntoTheRestOrOntoTheMatrix) {
    std::array<float, 60> a{};
    std::array<float, 12> w{};
    const std::array<float, 6> v{};
    const auto open = [&](float *dst) { return run("vonkGaxpy_v_32f_5x5", {to(a), 20, to(v), to(w), to(dst)}).open; };
    EXPECT_FALSE(open(w.data()));
    EXPECT_TRUE(open(&w[1]));
    EXPECT_FALSE(open(&w[5]));
    EXPECT_FALSE(open(&a[16]));
    EXPECT_TRUE(open(&a[17]));
    const auto many = [&](float *dst, std::uint64_t count) {
        return run("vonkGaxpy_va_32f_3x3", {to(a), 12, to(v), 0, to(w), 0, to(dst), 12, count}).open;
    };
    EXPECT_FALSE(many(&a[6], 1));
    EXPECT_TRUE(many(&a[6], 2));
    EXPECT_FALSE(many(&a[9], 2));
}

} // namespace
