// Products of matrix by matrix: sum over k of a(i, k) b(k, j). At run-time size the tests of the dimensions and the
// scans of the tables look at other words than the loops do; callers with square matrices never notice, and the
// mismatches stay as they are.
#include "model/families.h"
#include "model/overlaps.h"
#include "model/sums.h"

#include <algorithm>

namespace model {

namespace {

struct MatrixProduct : Execution {
    std::uint64_t columns1 = dimension("src1Cols");
    std::uint64_t rows1 = dimension("src1Rows");
    std::uint64_t columns2 = dimension("src2Cols");
    std::uint64_t rows2 = dimension("src2Rows");
    // The one group whose loops follow the stored shapes of its operands.
    bool followsStoredShapes = form.group == "mmT" && form.layout == Layout::standard;
    std::uint64_t dstColumns = followsStoredShapes ? rows2 : columns2;
    std::uint64_t terms = followsStoredShapes ? columns1 : rows2;
    Operand left = matrix("src1", rows1, columns1);
    Operand right = matrix("src2", rows2, columns2);
    Operand dst = matrix("dst", rows1, dstColumns);
    Numbers held = Numbers(36); // in rows: the second factor, six elements a row

    // Three of the four dimensions are tested. The fourth mostly falls under the test for agreement, but nothing tests
    // the columns of a single matrix behind an array.
    bool anyDimensionIsZero() const {
        const bool testsColumns2 = !right.isTransposed() && (left.isTransposed() || form.group == "mm");
        return rows1 == 0 || columns1 == 0 || (testsColumns2 ? columns2 : rows2) == 0;
    }
    bool innerDimensionsAgree() const {
        if (left.isTransposed()) return rows1 == (right.isTransposed() ? columns2 : rows2);
        if (right.isTransposed()) return columns1 == columns2;
        // An array on the right is tested as if both were transposed.
        return right.isArray() ? rows1 == columns2 : columns1 == rows2;
    }

    // ---- Cell by cell

    Status cell(std::uint64_t i, std::uint64_t j) {
        if (testsEntriesAlongTheWay() && dst.entryIsNull(i, j)) return statusNullPointer;
        CellSum sum(*this, dst.element(object, i, j));
        for (std::uint64_t k = 0; k < terms; ++k) {
            if (testsEntriesAlongTheWay() && (left.entryIsNull(i, k) || right.entryIsNull(k, j)))
                return statusNullPointer;
            const Wide product = multiply(load(left.element(object, i, k)), load(right.element(object, k, j)));
            sum.add(dst.element(object, i, j), product);
        }
        return statusOk;
    }
    Status objectByCells() {
        for (std::uint64_t i = 0; i < rows1; ++i)
            for (std::uint64_t j = 0; j < dstColumns; ++j)
                if (const Status status = cell(i, j); status != statusOk) return status;
        return statusOk;
    }

    // ---- In rows: Real32 products of fixed order that hold the second factor, read the first one row by row, and
    // store a row of dst when all of it is computed. An in-place call is right or wrong by what is held.

    bool isOneOf(std::initializer_list<const char *> groups) const {
        return std::ranges::any_of(groups, [&](const char *one) { return form.group == one; });
    }
    bool worksInRows() const {
        if (!isReal32() || form.size == 0) return false;
        if (isAdjacent()) return true;
        if (form.size == 3 && isOneOf({"mam", "maTm", "mamT"})) return true;
        if (form.layout == Layout::stridedList) return form.size == 3 && isOneOf({"maTmT"});
        if (form.layout != Layout::strided) return false;
        if (form.size == 3) return isOneOf({"mama", "maTmT"});
        return form.size == 6 ? sumsInPairs() : isOneOf({"mam", "mama"});
    }
    // Three forms gather the second factor and take dst rows in pairs; their sums are trees.
    bool sumsInPairs() const {
        return form.layout == Layout::strided && form.size == 6 && isOneOf({"mm", "mmT", "mTmT"});
    }
    // The fifth column of order 5 runs beside the four lanes. A single second factor that needs no turning round leaves
    // it in memory and fetches it for every row.
    bool rereadsColumn(std::uint64_t j) const {
        return form.size == 5 && j == 4 && !right.isTransposed() && !right.isArray();
    }
    // At order 6 the array forms hold all of the second factor from the start; a single product fetches what its second
    // pass needs when the first has stored.
    bool fetchesLastColumnsLate() const { return form.size == 6 && !form.isArray() && !sumsInPairs(); }

    void hold(std::uint64_t firstColumn, std::uint64_t endOfColumns) {
        for (std::uint64_t k = 0; k < form.size; ++k)
            for (std::uint64_t j = firstColumn; j < endOfColumns; ++j)
                if (!rereadsColumn(j)) held[6 * k + j] = load(right.element(object, k, j));
    }
    // A second factor that is not turned round can have its last columns fetched early as well as late, which shows
    // where the first pass has stored over them. A transposed one has them in two rows of their own, which no early
    // load touches.
    void checkLateFetch() const {
        Places stored, fetched;
        for (std::uint64_t i = 0; i < 6; ++i) {
            for (std::uint64_t j = 0; j < 4; ++j) stored.push_back(dst.element(object, i, j));
            for (std::uint64_t j = 4; j < 6; ++j) fetched.push_back(right.element(object, i, j));
        }
        markOpenIf(!right.isTransposed() && anyOverlap(stored, fetched, form.elementSize()));
    }

    // Begins with the first product, so that a sum of nothing but -0 stays -0.
    Wide ascendingSum(std::uint64_t i, std::uint64_t j) const {
        Wide sum = 0;
        for (std::uint64_t k = 0; k < form.size; ++k) {
            const Wide b = rereadsColumn(j) ? load(right.element(object, k, j)) : held[6 * k + j];
            const Wide product = multiply(load(left.element(object, i, k)), b);
            sum = k == 0 ? product : add(sum, product);
        }
        return sum;
    }
    // One step of a kernel: nothing is stored before all of it is computed.
    void rows(std::uint64_t firstRow, std::uint64_t endOfRows, std::uint64_t firstColumn, std::uint64_t endOfColumns) {
        Numbers results;
        for (std::uint64_t i = firstRow; i < endOfRows; ++i)
            for (std::uint64_t j = firstColumn; j < endOfColumns; ++j) results.push_back(ascendingSum(i, j));
        auto result = results.begin();
        for (std::uint64_t i = firstRow; i < endOfRows; ++i)
            for (std::uint64_t j = firstColumn; j < endOfColumns; ++j) store(dst.element(object, i, j), *result++);
    }
    // The first factor is read anew in the second pass: in place it has lost four columns by then.
    void sixBySixInTwoPasses() {
        for (std::uint64_t i = 0; i < 6; ++i) rows(i, i + 1, 0, 4);
        if (fetchesLastColumnsLate()) {
            checkLateFetch();
            hold(4, 6);
        }
        for (std::uint64_t i = 0; i < 6; i += 2) rows(i, i + 2, 4, 6);
    }

    // Whether the second row of a pair is read before or after the stores of the first is free.
    void rowPair(std::uint64_t i) {
        Places upper, lower, stored;
        for (std::uint64_t k = 0; k < 6; ++k) {
            upper.push_back(left.element(object, i, k));
            lower.push_back(left.element(object, i + 1, k));
            stored.push_back(dst.element(object, i, k));
        }
        markOpenIf(anyOverlap(stored, lower, form.elementSize()));
        Numbers results;
        for (const Places &row : {upper, lower})
            for (std::uint64_t j = 0; j < 6; ++j) {
                Numbers products;
                for (std::uint64_t k = 0; k < 6; ++k) products.push_back(multiply(load(row[k]), held[6 * k + j]));
                results.push_back(sumAs("(0+1)+(2+3)+(4+5)", *this, products));
            }
        for (std::uint64_t j = 0; j < 6; ++j) store(stored[j], results[j]);
        for (const std::uint64_t j : {4, 5, 0, 1, 2, 3}) store(dst.element(object, i + 1, j), results[6 + j]);
    }
    Status objectInRows() {
        if (object == 0 || right.isArray()) hold(0, fetchesLastColumnsLate() ? 4 : form.size);
        if (sumsInPairs()) {
            for (std::uint64_t i = 0; i < 6; i += 2) rowPair(i);
        } else if (form.size == 6) {
            sixBySixInTwoPasses();
        } else {
            for (std::uint64_t i = 0; i < form.size; ++i) rows(i, i + 1, 0, form.size);
        }
        return statusOk;
    }

    Status run() {
        if (anyDimensionIsZero() || !innerDimensionsAgree()) return statusSize;
        // The kernels in the pointer and strided list layouts trust their tables and lists.
        const bool testsEntries = !worksInRows() || form.layout == Layout::list;
        dst.entries = (left.isTransposed() ? rows1 : columns1) * (right.isTransposed() ? columns2 : rows2);
        const Operands tested = testsEntries ? Operands{&left, &right, &dst} : Operands{};
        if (form.isArray() && hasTables() && anyTableEntryIsNull(tested)) return statusNullPointer;
        return overObjects(tested, [&] { return worksInRows() ? objectInRows() : objectByCells(); });
    }
};

} // namespace

Status multiplyMatrices(const Execution &execution) { return MatrixProduct{execution}.run(); }

} // namespace model
