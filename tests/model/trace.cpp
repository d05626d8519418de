// Traces: the sum of the diagonal, which runs through the result's cell except in lanes.
#include "model/families.h"
#include "model/lanes.h"
#include "model/product_operands.h"

namespace model {

namespace {

class Trace {
public:
    explicit Trace(const Execution &execution)
        : form_(execution.form), memory_(execution.memory), arithmetic_(execution.memory),
          order_(execution.dimension("order")), count_(execution.count()), src_(execution.operand("src", order_)),
          dst_(execution.arguments.pointer("dst")) {}

    Status run();

private:
    bool takesPairs() const {
        return form_.element == Element::real64 && form_.size == 0 && form_.group == "m" &&
               !isPointerLayout(form_.layout);
    }
    std::uintptr_t result(std::uint64_t n) const { return dst_ + n * form_.elementSize(); }
    void inLanes(std::uint64_t n);
    void clear(std::uint64_t n);
    void add32(std::uint64_t n, std::uint64_t i);
    void add64(std::uint64_t n, std::uint64_t i);
    void prepareStep(std::uint64_t n, std::uint64_t i);
    Status running(std::uint64_t n);

    const Form &form_;
    Memory &memory_;
    Arithmetic arithmetic_;
    std::uint64_t order_;
    std::uint64_t count_;
    Operand src_;
    std::uintptr_t dst_;
    float sum32_ = 0;
    Wide sum64_ = 0;
};

// Begins with the first element, so that a sum of nothing but -0 stays -0.
void Trace::inLanes(std::uint64_t n) {
    auto sum = memory_.load<float>(src_.element(n, 0, 0));
    for (std::uint64_t i = 1; i < order_; ++i) sum = arithmetic_.add(sum, memory_.load<float>(src_.element(n, i, i)));
    memory_.store(result(n), sum);
}

void Trace::clear(std::uint64_t n) {
    sum32_ = 0;
    sum64_ = 0;
    form_.element == Element::real32 ? memory_.store(result(n), 0.0F) : memory_.store(result(n), 0.0);
}

void Trace::add32(std::uint64_t n, std::uint64_t i) {
    sum32_ = arithmetic_.add(sum32_, memory_.load<float>(src_.element(n, i, i)));
    memory_.store(result(n), sum32_);
}

void Trace::add64(std::uint64_t n, std::uint64_t i) {
    sum64_ = arithmetic_.add<Wide>(sum64_, memory_.load<double>(src_.element(n, i, i)));
    memory_.store(result(n), round64(sum64_));
}

// Where the diagonal is taken in pairs, an element that is left over is added to the sum as it stands in the cell.
void Trace::prepareStep(std::uint64_t n, std::uint64_t i) {
    const bool isSecondOfPair = i % 2 == 1;
    if (i + 1 == order_ && !isSecondOfPair) sum64_ = memory_.load<double>(result(n));
    // Whether the second of a pair is loaded before or after the step of the first is free.
    if (isSecondOfPair && overlap(result(n), sizeof(double), src_.element(n, i, i), sizeof(double))) memory_.markOpen();
}

Status Trace::running(std::uint64_t n) {
    clear(n);
    for (std::uint64_t i = 0; i < order_; ++i) {
        if (testsEntriesAlongTheWay(form_) && src_.entryIsNull(i * order_ + i)) return statusNullPointer;
        if (takesPairs()) prepareStep(n, i);
        form_.element == Element::real32 ? add32(n, i) : add64(n, i);
    }
    return statusOk;
}

Status Trace::run() {
    if (order_ == 0) return statusSize;
    // So many entries are looked at as there are elements on the diagonal, but those at the start of the table.
    if (form_.isArray() && isPointerLayout(form_.layout) && src_.anyEntryIsNull(order_)) return statusNullPointer;
    for (std::uint64_t n = 0; n < count_; ++n) {
        if (anyListEntryIsNull({&src_}, n)) return statusNullPointer;
        if (hasLanes(form_)) inLanes(n);
        else if (const Status status = running(n); status != statusOk) return status;
    }
    return statusOk;
}

} // namespace

Status sumDiagonal(const Execution &execution) {
    if (execution.arguments.hasNullPointer()) return statusNullPointer;
    return Trace(execution).run();
}

} // namespace model
