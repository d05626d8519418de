// Products of matrix by vector. A transposed matrix is compared with the vector by its rows and walked by its columns,
// which only callers with square matrices can take for a plain product.
#include "model/accumulation.h"
#include "model/families.h"
#include "model/matrix_vector_kernel.h"
#include "model/product_operands.h"

#include <vector>

namespace model {

namespace {

class MatrixByVector {
public:
    explicit MatrixByVector(const Execution &execution)
        : form_(execution.form), memory_(execution.memory), columns_(execution.dimension("src1Cols")),
          rows_(execution.dimension("src1Rows")), length_(execution.dimension("src2Len")), count_(execution.count()),
          matrix_(makeFactor(execution, "src1")), vector_(execution.operand("src2")), dst_(execution.operand("dst")),
          kernel_(form_, memory_) {}

    Status run();

private:
    bool sizesFit() const;
    bool anyTableEntryIsNull() const;
    bool matrixEntryIsNull(std::uint64_t i, std::uint64_t k) const;
    Status element(std::uint64_t n, std::uint64_t i);
    Status objectByElements(std::uint64_t n);
    void objectInLanes(std::uint64_t n);

    const Form &form_;
    Memory &memory_;
    std::uint64_t columns_;
    std::uint64_t rows_;
    std::uint64_t length_;
    std::uint32_t count_;
    FactorMatrix matrix_;
    Operand vector_;
    Operand dst_;
    MatrixVectorKernel kernel_;
};

bool MatrixByVector::sizesFit() const {
    return columns_ != 0 && rows_ != 0 && length_ == (matrix_.isTransposed() ? rows_ : columns_);
}

bool MatrixByVector::anyTableEntryIsNull() const {
    return matrix_.stored.anyEntryIsNull(columns_ * rows_) || vector_.anyEntryIsNull(length_) ||
           dst_.anyEntryIsNull(rows_);
}

// At order 4 the test of a transposed matrix misses one entry of its table.
bool MatrixByVector::matrixEntryIsNull(std::uint64_t i, std::uint64_t k) const {
    const bool isMissed = matrix_.isTransposed() && form_.size == 4 && matrix_.entry(i, k) == 8;
    return !isMissed && matrix_.entryIsNull(i, k);
}

Status MatrixByVector::element(std::uint64_t n, std::uint64_t i) {
    const bool testsHere = testsEntriesAlongTheWay(form_);
    if (testsHere && dst_.entryIsNull(i)) return statusNullPointer;
    CellSum sum(form_, memory_);
    sum.clear(dst_.element(n, i));
    for (std::uint64_t k = 0; k < columns_; ++k) {
        if (testsHere && (matrixEntryIsNull(i, k) || vector_.entryIsNull(k))) return statusNullPointer;
        sum.addProduct(dst_.element(n, i), matrix_.element(n, i, k), vector_.element(n, k));
    }
    return statusOk;
}

Status MatrixByVector::objectByElements(std::uint64_t n) {
    for (std::uint64_t i = 0; i < rows_; ++i)
        if (const Status status = element(n, i); status != statusOk) return status;
    return statusOk;
}

// A single operand of an array form is fetched for the first object and then held; a vector is always held while its
// object is at work.
void MatrixByVector::objectInLanes(std::uint64_t n) {
    if (n == 0 || matrix_.isArray()) kernel_.fetchMatrix(matrix_, n);
    if (n == 0 || vector_.shape.isArray) kernel_.fetchVector(vector_, n);
    const bool isHeldThroughout = form_.isArray() && !matrix_.isArray();
    if (!isHeldThroughout && anyOverlap(headOf(dst_, n, rows_), tailOf(matrix_, n, rows_))) memory_.markOpen();
    std::vector<float> results;
    for (std::uint64_t i = 0; i < rows_; ++i) results.push_back(kernel_.element(i));
    for (std::uint64_t i = 0; i < rows_; ++i) memory_.store(dst_.element(n, i), results[i]);
}

Status MatrixByVector::run() {
    if (!sizesFit()) return statusSize;
    if (form_.isArray() && isPointerLayout(form_.layout) && anyTableEntryIsNull()) return statusNullPointer;
    for (std::uint64_t n = 0; n < count_; ++n) {
        if (anyListEntryIsNull({&matrix_.stored, &vector_, &dst_}, n)) return statusNullPointer;
        if (MatrixVectorKernel::serves(form_)) objectInLanes(n);
        else if (const Status status = objectByElements(n); status != statusOk) return status;
    }
    return statusOk;
}

} // namespace

Status multiplyMatrixByVector(const Execution &execution) {
    if (execution.arguments.hasNullPointer()) return statusNullPointer;
    return MatrixByVector(execution).run();
}

} // namespace model
