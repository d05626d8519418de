// The two sweeps that solve with a Cholesky factor. The diagonal holds reciprocals, so nothing is divided; every
// intermediate result stands in the destination and is read back from there.
#include "model/families.h"

namespace model {

namespace {

class CholeskyBackSubstitution {
public:
    explicit CholeskyBackSubstitution(const Execution &execution)
        : form_(execution.form), memory_(execution.memory), arithmetic_(execution.memory),
          order_(form_.size != 0 ? form_.size : execution.arguments.times("order")),
          count_(form_.isArray() ? execution.arguments.times("count") : 1), matrix_(execution.operand("src1", order_)),
          right_(execution.operand("src2")), dst_(execution.operand("dst")) {}

    void run();

private:
    bool anyObjectIsNull() const;
    void checkOverlaps();
    float product32(std::uintptr_t factor, std::uint64_t k);
    Wide product64(std::uintptr_t factor, std::uint64_t k);
    void solve32();
    void solve64();

    std::uintptr_t factor(std::uint64_t i, std::uint64_t j) const { return matrix_.element(object_, i, j); }
    std::uintptr_t solution(std::uint64_t i) const { return dst_.element(object_, i); }

    const Form &form_;
    Memory &memory_;
    Arithmetic arithmetic_;
    std::uint64_t order_;
    std::uint64_t count_;
    Operand matrix_;
    Operand right_;
    Operand dst_;
    std::uint64_t object_ = 0;
};

// Of what the kernel is handed: entry and shift added up.
bool CholeskyBackSubstitution::anyObjectIsNull() const {
    if (isPointerLayout(form_.layout)) return false;
    return factor(0, 0) == 0 || right_.element(object_, 0) == 0 || solution(0) == 0;
}

// Elements of the solution that share some of their bytes: whether a step uses a value just stored or what memory makes
// of it is not to be relied on. Everything else is fixed, since every step reads memory anew.
void CholeskyBackSubstitution::checkOverlaps() {
    const std::size_t size = form_.elementSize();
    for (std::uint64_t i = 0; i < order_; ++i)
        for (std::uint64_t j = 0; j < i; ++j)
            if (solution(i) != solution(j) && overlap(solution(i), size, solution(j), size)) memory_.markOpen();
}

float CholeskyBackSubstitution::product32(std::uintptr_t factor, std::uint64_t k) {
    return arithmetic_.multiply(memory_.load<float>(factor), memory_.load<float>(solution(k)));
}

void CholeskyBackSubstitution::solve32() {
    for (std::uint64_t i = 0; i < order_; ++i) {
        float rest = memory_.load<float>(right_.element(object_, i));
        for (std::uint64_t k = 0; k < i; ++k) rest = arithmetic_.subtract(rest, product32(factor(i, k), k));
        memory_.store(solution(i), arithmetic_.multiply(rest, memory_.load<float>(factor(i, i))));
    }
    for (std::uint64_t i = order_; i-- > 0;) {
        float rest = memory_.load<float>(solution(i));
        for (std::uint64_t k = order_ - 1; k > i; --k) rest = arithmetic_.subtract(rest, product32(factor(k, i), k));
        memory_.store(solution(i), arithmetic_.multiply(rest, memory_.load<float>(factor(i, i))));
    }
}

Wide CholeskyBackSubstitution::product64(std::uintptr_t factor, std::uint64_t k) {
    return arithmetic_.multiply<Wide>(memory_.load<double>(factor), memory_.load<double>(solution(k)));
}

// A sum is rounded when it is stored and nowhere else.
void CholeskyBackSubstitution::solve64() {
    for (std::uint64_t i = 0; i < order_; ++i) {
        Wide rest = memory_.load<double>(right_.element(object_, i));
        for (std::uint64_t k = 0; k < i; ++k) rest = arithmetic_.subtract(rest, product64(factor(i, k), k));
        memory_.store(solution(i), round64(arithmetic_.multiply<Wide>(rest, memory_.load<double>(factor(i, i)))));
    }
    for (std::uint64_t i = order_; i-- > 0;) {
        Wide rest = memory_.load<double>(solution(i));
        for (std::uint64_t k = order_ - 1; k > i; --k) rest = arithmetic_.subtract(rest, product64(factor(k, i), k));
        memory_.store(solution(i), round64(arithmetic_.multiply<Wide>(rest, memory_.load<double>(factor(i, i)))));
    }
}

// An object that leads nowhere is passed over, and nobody is told.
void CholeskyBackSubstitution::run() {
    for (object_ = 0; object_ < count_; ++object_) {
        if (order_ == 0 || anyObjectIsNull()) continue;
        checkOverlaps();
        form_.element == Element::real32 ? solve32() : solve64();
    }
}

} // namespace

Status substituteBackCholesky(const Execution &execution) {
    if (execution.arguments.hasNullPointer()) return statusNullPointer;
    if (execution.dimension("order") == 0 || execution.count() == 0) return statusSize;
    CholeskyBackSubstitution(execution).run();
    return statusOk;
}

} // namespace model
