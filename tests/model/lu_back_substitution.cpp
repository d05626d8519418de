// The two sweeps that solve with the factors of an LU decomposition. Every intermediate result stands in the
// destination and is read back from there.
#include "model/families.h"

#include <algorithm>
#include <array>

namespace model {

namespace {

class BackSubstitution {
public:
    explicit BackSubstitution(const Execution &execution)
        : form_(execution.form), memory_(execution.memory), arithmetic_(execution.memory),
          order_(execution.dimension("order")), count_(execution.count()), matrix_(execution.operand("src1", order_)),
          right_(execution.operand("src2")), dst_(execution.operand("dst")),
          pivots_(execution.arguments.pointer("pivots")) {
        // In these five forms columns lie 4 bytes apart, although an element has 8; callers arrange their data for it.
        if (form_.group == "mva" && form_.element == Element::real64 && form_.layout == Layout::list)
            matrix_.elementStride = 4;
    }

    Status run();

private:
    // Of the Real64 forms: those that run over the terms of a sum in pairs and keep the sum in memory between. The
    // others have one straight line of code per sum and never leave the wide register.
    bool roundsSums() const { return form_.size == 0 || form_.group == "mv" || isListLayout(form_.layout); }

    bool anyTableEntryIsNull() const;
    bool anyListEntryIsNull(std::uint64_t n) const;
    void checkOverlaps();
    std::uint64_t row(std::uint64_t i) const;
    std::uintptr_t factor(std::uint64_t i, std::uint64_t j) const { return matrix_.element(object_, row(i), j); }
    std::uintptr_t solution(std::uint64_t i) const { return dst_.element(object_, i); }
    std::uintptr_t rightSide(std::uint64_t i) const { return right_.element(object_, row(i)); }

    float sum32(std::uint64_t i, std::uint64_t begin, std::uint64_t end);
    Wide term64(std::uint64_t i, std::uint64_t j);
    Wide sum64(std::uint64_t i, std::uint64_t begin, std::uint64_t end);
    void solve32();
    void solve64();

    const Form &form_;
    Memory &memory_;
    Arithmetic arithmetic_;
    std::uint64_t order_;
    std::uint64_t count_;
    Operand matrix_;
    Operand right_;
    Operand dst_;
    std::uintptr_t pivots_;
    std::uint64_t object_ = 0;
};

bool BackSubstitution::anyTableEntryIsNull() const {
    return matrix_.anyEntryIsNull(order_ * order_) || right_.anyEntryIsNull(order_) || dst_.anyEntryIsNull(order_);
}

bool BackSubstitution::anyListEntryIsNull(std::uint64_t n) const {
    return std::ranges::any_of(std::array{&matrix_, &right_, &dst_},
                               [n](const Operand *operand) { return operand->isList() && operand->entryIsNull(n); });
}

// The physical row of logical row i: each matrix of an array has its own permutation. It is trusted as it stands. If
// the solution runs over it the call is abandoned, since an index may be kept or read again.
std::uint64_t BackSubstitution::row(std::uint64_t i) const {
    const std::uint64_t block = matrix_.shape.isArray ? object_ * order_ : 0;
    return memory_.loadIndex(pivots_ + (block + i) * 4);
}

// Elements of the solution that share some of their bytes: a value just stored and the same value read back later may
// differ, and which of them a step uses is not to be relied on. Elements that all lie on one place, and a solution over
// the right-hand side or the matrix, are fixed: every step reads memory anew.
void BackSubstitution::checkOverlaps() {
    const std::size_t size = form_.elementSize();
    for (std::uint64_t i = 0; i < order_; ++i)
        for (std::uint64_t j = 0; j < i; ++j)
            if (solution(i) != solution(j) && overlap(solution(i), size, solution(j), size)) memory_.markOpen();
}

float BackSubstitution::sum32(std::uint64_t i, std::uint64_t begin, std::uint64_t end) {
    float sum = 0.0F;
    for (std::uint64_t j = begin; j < end; ++j) {
        const float product = arithmetic_.multiply(memory_.load<float>(factor(i, j)), memory_.load<float>(solution(j)));
        sum = arithmetic_.add(sum, product);
    }
    return sum;
}

void BackSubstitution::solve32() {
    for (std::uint64_t i = 1; i < order_; ++i) {
        const float sum = sum32(i, 0, i);
        memory_.store(solution(i), arithmetic_.subtract(memory_.load<float>(rightSide(i)), sum));
    }
    const std::uint64_t last = order_ - 1;
    memory_.store(solution(last),
                  arithmetic_.divide(memory_.load<float>(solution(last)), memory_.load<float>(factor(last, last))));
    for (std::uint64_t i = last; i-- > 0;) {
        const float sum = sum32(i, i + 1, order_);
        const float rest = arithmetic_.subtract(memory_.load<float>(solution(i)), sum);
        memory_.store(solution(i), arithmetic_.divide(rest, memory_.load<float>(factor(i, i))));
    }
}

Wide BackSubstitution::term64(std::uint64_t i, std::uint64_t j) {
    return arithmetic_.multiply<Wide>(memory_.load<double>(factor(i, j)), memory_.load<double>(solution(j)));
}

// A sum that is rounded is rounded after its last pair, and once more after an odd last term, so it enters what follows
// as a 64-bit number.
Wide BackSubstitution::sum64(std::uint64_t i, std::uint64_t begin, std::uint64_t end) {
    const std::uint64_t endOfPairs = end - (end - begin) % 2;
    Wide sum = 0;
    for (std::uint64_t j = begin; j < endOfPairs; ++j) sum = arithmetic_.add(sum, term64(i, j));
    if (roundsSums()) sum = round64(sum);
    if (endOfPairs == end) return sum;
    sum = arithmetic_.add(sum, term64(i, endOfPairs));
    return roundsSums() ? round64(sum) : sum;
}

void BackSubstitution::solve64() {
    for (std::uint64_t i = 1; i < order_; ++i) {
        const Wide sum = sum64(i, 0, i);
        memory_.store(solution(i), round64(arithmetic_.subtract<Wide>(memory_.load<double>(rightSide(i)), sum)));
    }
    const std::uint64_t last = order_ - 1;
    memory_.store(solution(last), round64(arithmetic_.divide<Wide>(memory_.load<double>(solution(last)),
                                                                   memory_.load<double>(factor(last, last)))));
    for (std::uint64_t i = last; i-- > 0;) {
        const Wide sum = sum64(i, i + 1, order_);
        const Wide rest = arithmetic_.subtract<Wide>(memory_.load<double>(solution(i)), sum);
        memory_.store(solution(i), round64(arithmetic_.divide<Wide>(rest, memory_.load<double>(factor(i, i)))));
    }
}

Status BackSubstitution::run() {
    if (order_ == 0) return statusSize;
    if (isPointerLayout(form_.layout) && anyTableEntryIsNull()) return statusNullPointer;
    for (object_ = 0; object_ < count_; ++object_) {
        if (anyListEntryIsNull(object_)) return statusNullPointer;
        checkOverlaps();
        memory_.move(solution(0), rightSide(0), form_.elementSize());
        form_.element == Element::real32 ? solve32() : solve64();
    }
    return statusOk;
}

} // namespace

Status substituteBackLu(const Execution &execution) {
    if (execution.arguments.hasNullPointer()) return statusNullPointer;
    return BackSubstitution(execution).run();
}

} // namespace model
