// A matrix times a constant: a forward walk over objects, rows and columns, but for the Real32 forms of fixed order in
// lanes.
#include "model/families.h"
#include "model/lanes.h"
#include "model/product_operands.h"

#include <vector>

namespace model {

namespace {

class ScaledMatrix {
public:
    explicit ScaledMatrix(const Execution &execution)
        : form_(execution.form), memory_(execution.memory), arithmetic_(execution.memory),
          columns_(execution.dimension("cols")), rows_(execution.dimension("rows")),
          count_(execution.count()), src_{execution.operand("src", form_.slot("src").isTransposed ? rows_ : columns_)},
          dst_(execution.operand("dst", columns_)) {
        if (form_.element == Element::real32) value32_ = execution.arguments.real32("val");
        else value64_ = execution.arguments.real64("val");
    }

    Status run();

private:
    bool eitherEntryIsNull(std::uint64_t i, std::uint64_t j) const;
    void element(std::uint64_t n, std::uint64_t i, std::uint64_t j);
    Status objectByElements(std::uint64_t n);
    void objectInLanes(std::uint64_t n);

    const Form &form_;
    Memory &memory_;
    Arithmetic arithmetic_;
    std::uint64_t columns_;
    std::uint64_t rows_;
    std::uint64_t count_;
    FactorMatrix src_;
    Operand dst_;
    float value32_ = 0;
    double value64_ = 0;
};

// One entry of a transposed table of order 4 is passed over.
bool ScaledMatrix::eitherEntryIsNull(std::uint64_t i, std::uint64_t j) const {
    const bool isPassedOver = src_.isTransposed() && form_.size == 4 && src_.entry(i, j) == 8;
    return (!isPassedOver && src_.entryIsNull(i, j)) || dst_.entryIsNull(i * columns_ + j);
}

void ScaledMatrix::element(std::uint64_t n, std::uint64_t i, std::uint64_t j) {
    const std::uintptr_t from = src_.element(n, i, j);
    const std::uintptr_t to = dst_.element(n, i, j);
    if (form_.element == Element::real32) memory_.store(to, arithmetic_.multiply(memory_.load<float>(from), value32_));
    else memory_.store(to, round64(arithmetic_.multiply<Wide>(memory_.load<double>(from), value64_)));
}

Status ScaledMatrix::objectByElements(std::uint64_t n) {
    for (std::uint64_t i = 0; i < rows_; ++i)
        for (std::uint64_t j = 0; j < columns_; ++j) {
            if (testsEntriesAlongTheWay(form_) && eitherEntryIsNull(i, j)) return statusNullPointer;
            element(n, i, j);
        }
    return statusOk;
}

void ScaledMatrix::objectInLanes(std::uint64_t n) {
    Places from;
    Places to;
    std::vector<float> results;
    for (std::uint64_t i = 0; i < rows_; ++i)
        for (std::uint64_t j = 0; j < columns_; ++j) {
            from.push_back(src_.element(n, i, j));
            to.push_back(dst_.element(n, i, j));
            results.push_back(arithmetic_.multiply(memory_.load<float>(from.back()), value32_));
        }
    checkLoads(memory_, to, {from});
    if (src_.isTransposed()) checkStores(memory_, to);
    for (std::size_t k = 0; k < to.size(); ++k) memory_.store(to[k], results[k]);
}

Status ScaledMatrix::run() {
    if (columns_ == 0 || rows_ == 0) return statusSize;
    const std::uint64_t entries = columns_ * rows_;
    const bool scansTables = form_.isArray() && isPointerLayout(form_.layout);
    if (scansTables && (src_.stored.anyEntryIsNull(entries) || dst_.anyEntryIsNull(entries))) return statusNullPointer;
    for (std::uint64_t n = 0; n < count_; ++n) {
        if (anyListEntryIsNull({&src_.stored, &dst_}, n)) return statusNullPointer;
        if (hasLanes(form_)) objectInLanes(n);
        else if (const Status status = objectByElements(n); status != statusOk) return status;
    }
    return statusOk;
}

} // namespace

Status multiplyMatrixByConstant(const Execution &execution) {
    if (execution.arguments.hasNullPointer()) return statusNullPointer;
    return ScaledMatrix(execution).run();
}

} // namespace model
