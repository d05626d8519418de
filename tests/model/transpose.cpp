// Transposes: elements are moved bit by bit, row by row of the source. A table of run-time size is read with the
// lengths of its rows exchanged, which shows wherever a matrix is not square.
#include "model/families.h"
#include "model/lanes.h"
#include "model/product_operands.h"

namespace model {

namespace {

class Transposition {
public:
    explicit Transposition(const Execution &execution)
        : form_(execution.form), memory_(execution.memory), columns_(execution.dimension("cols")),
          rows_(execution.dimension("rows")), count_(execution.count()), src_(execution.operand("src", rows_)),
          dst_(execution.operand("dst", columns_)) {}

    Status run();

private:
    void checkOverlap(std::uint64_t n);
    Status object(std::uint64_t n);

    const Form &form_;
    Memory &memory_;
    std::uint64_t columns_;
    std::uint64_t rows_;
    std::uint64_t count_;
    Operand src_;
    Operand dst_;
};

// In lanes loads and stores of an object mingle in an order that is free.
void Transposition::checkOverlap(std::uint64_t n) {
    Places from;
    Places to;
    for (std::uint64_t i = 0; i < rows_; ++i)
        for (std::uint64_t j = 0; j < columns_; ++j) {
            from.push_back(src_.element(n, i, j));
            to.push_back(dst_.element(n, j, i));
        }
    checkLoads(memory_, to, {from});
    checkStores(memory_, to);
}

Status Transposition::object(std::uint64_t n) {
    for (std::uint64_t i = 0; i < rows_; ++i)
        for (std::uint64_t j = 0; j < columns_; ++j) {
            if (testsEntriesAlongTheWay(form_) &&
                (src_.entryIsNull(i * rows_ + j) || dst_.entryIsNull(j * columns_ + i)))
                return statusNullPointer;
            memory_.move(dst_.element(n, j, i), src_.element(n, i, j), form_.elementSize());
        }
    return statusOk;
}

Status Transposition::run() {
    if (columns_ == 0 || rows_ == 0) return statusSize;
    const std::uint64_t entries = columns_ * rows_;
    const bool scansTables = form_.isArray() && isPointerLayout(form_.layout);
    if (scansTables && (src_.anyEntryIsNull(entries) || dst_.anyEntryIsNull(entries))) return statusNullPointer;
    for (std::uint64_t n = 0; n < count_; ++n) {
        if (anyListEntryIsNull({&src_, &dst_}, n)) return statusNullPointer;
        if (hasLanes(form_)) checkOverlap(n);
        if (const Status status = object(n); status != statusOk) return status;
    }
    return statusOk;
}

} // namespace

Status transposeMatrices(const Execution &execution) {
    if (execution.arguments.hasNullPointer()) return statusNullPointer;
    return Transposition(execution).run();
}

} // namespace model
