// Matrix by vector plus vector: the product of one single matrix, finished first, and the second vector added last.
#include "model/accumulation.h"
#include "model/families.h"
#include "model/matrix_vector_kernel.h"
#include "model/product_operands.h"

#include <vector>

namespace model {

namespace {

class Gaxpy {
public:
    explicit Gaxpy(const Execution &execution)
        : form_(execution.form), memory_(execution.memory), arithmetic_(execution.memory),
          columns_(execution.dimension("cols")), rows_(execution.dimension("rows")),
          count_(execution.count()), matrix_{execution.operand("src1", columns_)}, vector_(execution.operand("src2")),
          addend_(execution.operand("src3")), dst_(execution.operand("dst")), kernel_(form_, memory_) {}

    Status run();

private:
    bool anyTableEntryIsNull() const;
    Status element(std::uint64_t n, std::uint64_t i);
    Status objectByElements(std::uint64_t n);
    void checkOverlaps(std::uint64_t n);
    void objectInLanes(std::uint64_t n);

    const Form &form_;
    Memory &memory_;
    Arithmetic arithmetic_;
    std::uint64_t columns_;
    std::uint64_t rows_;
    std::uint32_t count_;
    FactorMatrix matrix_;
    Operand vector_;
    Operand addend_;
    Operand dst_;
    MatrixVectorKernel kernel_;
};

bool Gaxpy::anyTableEntryIsNull() const {
    return matrix_.stored.anyEntryIsNull(columns_ * rows_) || vector_.anyEntryIsNull(columns_) ||
           addend_.anyEntryIsNull(rows_) || dst_.anyEntryIsNull(rows_);
}

Status Gaxpy::element(std::uint64_t n, std::uint64_t i) {
    const bool testsHere = testsEntriesAlongTheWay(form_);
    if (testsHere && (addend_.entryIsNull(i) || dst_.entryIsNull(i))) return statusNullPointer;
    CellSum sum(form_, memory_);
    sum.clear(dst_.element(n, i));
    for (std::uint64_t k = 0; k < columns_; ++k) {
        if (testsHere && (matrix_.entryIsNull(i, k) || vector_.entryIsNull(k))) return statusNullPointer;
        sum.addProduct(dst_.element(n, i), matrix_.element(n, i, k), vector_.element(n, k));
    }
    sum.addElement(dst_.element(n, i), addend_.element(n, i));
    return statusOk;
}

Status Gaxpy::objectByElements(std::uint64_t n) {
    for (std::uint64_t i = 0; i < rows_; ++i)
        if (const Status status = element(n, i); status != statusOk) return status;
    return statusOk;
}

// Whether the matrix is fetched once for all objects or for each of them anew is free, so no object may be stored over
// what a later one would read.
void Gaxpy::checkOverlaps(std::uint64_t n) {
    const Places head = headOf(dst_, n, rows_);
    if (anyOverlap(head, tailOf(matrix_, n, rows_)) || anyOverlap(head, tailOf(addend_, n, rows_))) memory_.markOpen();
    if (n + 1 == count_) return;
    const Places matrix = allOf(matrix_, n, rows_);
    if (anyOverlap(head, matrix) || anyOverlap(tailOf(dst_, n, rows_), matrix)) memory_.markOpen();
}

void Gaxpy::objectInLanes(std::uint64_t n) {
    checkOverlaps(n);
    if (n == 0) kernel_.fetchMatrix(matrix_, n);
    kernel_.fetchVector(vector_, n);
    std::vector<float> results;
    for (std::uint64_t i = 0; i < rows_; ++i)
        results.push_back(arithmetic_.add(kernel_.element(i), memory_.load<float>(addend_.element(n, i))));
    for (std::uint64_t i = 0; i < rows_; ++i) memory_.store(dst_.element(n, i), results[i]);
}

Status Gaxpy::run() {
    if (columns_ == 0 || rows_ == 0) return statusSize;
    if (form_.isArray() && isPointerLayout(form_.layout) && anyTableEntryIsNull()) return statusNullPointer;
    for (std::uint64_t n = 0; n < count_; ++n) {
        if (anyListEntryIsNull({&vector_, &addend_, &dst_}, n)) return statusNullPointer;
        if (MatrixVectorKernel::serves(form_)) objectInLanes(n);
        else if (const Status status = objectByElements(n); status != statusOk) return status;
    }
    return statusOk;
}

} // namespace

Status multiplyAndAdd(const Execution &execution) {
    if (execution.arguments.hasNullPointer()) return statusNullPointer;
    return Gaxpy(execution).run();
}

} // namespace model
