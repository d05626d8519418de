// Products of matrix by matrix. At run-time size the tests of the dimensions and the scans of the tables look at other
// words than the loops do; callers with square matrices never notice, and the mismatches stay as they are.
#include "model/accumulation.h"
#include "model/families.h"
#include "model/product_kernels.h"
#include "model/product_operands.h"

namespace model {

namespace {

class MatrixProduct {
public:
    explicit MatrixProduct(const Execution &execution)
        : form_(execution.form), memory_(execution.memory), columns1_(execution.dimension("src1Cols")),
          rows1_(execution.dimension("src1Rows")), columns2_(execution.dimension("src2Cols")),
          rows2_(execution.dimension("src2Rows")), count_(execution.count()), left_(makeFactor(execution, "src1")),
          right_(makeFactor(execution, "src2")), dst_(execution.operand("dst", dstColumns())) {}

    Status run();

private:
    // The one group whose loops follow the stored shapes of its operands.
    bool followsStoredShapes() const { return form_.group == "mmT" && form_.layout == Layout::standard; }
    std::uint64_t dstRows() const { return rows1_; }
    std::uint64_t dstColumns() const { return followsStoredShapes() ? rows2_ : columns2_; }
    std::uint64_t terms() const { return followsStoredShapes() ? columns1_ : rows2_; }

    bool anyDimensionIsZero() const;
    bool innerDimensionsAgree() const;
    bool testsEntries() const;
    std::uint64_t scannedDstEntries() const;
    bool anyTableEntryIsNull() const;
    Status cell(std::uint64_t n, std::uint64_t i, std::uint64_t j);
    Status objectByCells(std::uint64_t n);

    const Form &form_;
    Memory &memory_;
    std::uint64_t columns1_;
    std::uint64_t rows1_;
    std::uint64_t columns2_;
    std::uint64_t rows2_;
    std::uint32_t count_;
    FactorMatrix left_;
    FactorMatrix right_;
    Operand dst_;
};

// Three of the four dimensions are tested. The fourth mostly falls under the test for agreement, but nothing tests the
// columns of a single matrix behind an array.
bool MatrixProduct::anyDimensionIsZero() const {
    const bool testsColumns2 = !right_.isTransposed() && (left_.isTransposed() || form_.group == "mm");
    return rows1_ == 0 || columns1_ == 0 || (testsColumns2 ? columns2_ : rows2_) == 0;
}

bool MatrixProduct::innerDimensionsAgree() const {
    if (left_.isTransposed()) return rows1_ == (right_.isTransposed() ? columns2_ : rows2_);
    if (right_.isTransposed()) return columns1_ == columns2_;
    // An array on the right is tested as if both were transposed.
    return right_.isArray() ? rows1_ == columns2_ : columns1_ == rows2_;
}

// The kernels in the pointer and strided list layouts trust their tables.
bool MatrixProduct::testsEntries() const { return !ProductKernel::serves(form_) || form_.layout == Layout::list; }

std::uint64_t MatrixProduct::scannedDstEntries() const {
    return (left_.isTransposed() ? rows1_ : columns1_) * (right_.isTransposed() ? columns2_ : rows2_);
}

bool MatrixProduct::anyTableEntryIsNull() const {
    return left_.stored.anyEntryIsNull(columns1_ * rows1_) || right_.stored.anyEntryIsNull(columns2_ * rows2_) ||
           dst_.anyEntryIsNull(scannedDstEntries());
}

Status MatrixProduct::cell(std::uint64_t n, std::uint64_t i, std::uint64_t j) {
    const bool testsHere = testsEntriesAlongTheWay(form_);
    if (testsHere && dst_.entryIsNull(i * dstColumns() + j)) return statusNullPointer;
    CellSum sum(form_, memory_);
    sum.clear(dst_.element(n, i, j));
    for (std::uint64_t k = 0; k < terms(); ++k) {
        if (testsHere && (left_.entryIsNull(i, k) || right_.entryIsNull(k, j))) return statusNullPointer;
        sum.addProduct(dst_.element(n, i, j), left_.element(n, i, k), right_.element(n, k, j));
    }
    return statusOk;
}

Status MatrixProduct::objectByCells(std::uint64_t n) {
    for (std::uint64_t i = 0; i < dstRows(); ++i)
        for (std::uint64_t j = 0; j < dstColumns(); ++j)
            if (const Status status = cell(n, i, j); status != statusOk) return status;
    return statusOk;
}

Status MatrixProduct::run() {
    if (anyDimensionIsZero() || !innerDimensionsAgree()) return statusSize;
    const bool scansTables = form_.isArray() && isPointerLayout(form_.layout) && testsEntries();
    if (scansTables && anyTableEntryIsNull()) return statusNullPointer;
    ProductKernel kernel(form_, memory_, left_, right_, dst_);
    for (std::uint64_t n = 0; n < count_; ++n) {
        if (testsEntries() && anyListEntryIsNull({&left_.stored, &right_.stored, &dst_}, n)) return statusNullPointer;
        if (ProductKernel::serves(form_)) kernel.object(n);
        else if (const Status status = objectByCells(n); status != statusOk) return status;
    }
    return statusOk;
}

} // namespace

Status multiplyMatrices(const Execution &execution) {
    if (execution.arguments.hasNullPointer()) return statusNullPointer;
    return MatrixProduct(execution).run();
}

} // namespace model
