// Cholesky decomposition, row by row: the lower factor with the reciprocals of its diagonal. Every member reaches one
// of six kernels; the array forms call them object by object and stop at the first failure.
#include "model/families.h"

#include <vector>

namespace model {

namespace {

class CholeskyDecomposition {
public:
    explicit CholeskyDecomposition(const Execution &execution)
        : form_(execution.form), memory_(execution.memory), arithmetic_(execution.memory),
          order_(execution.dimension("order")), count_(form_.isArray() ? execution.arguments.times("count") : 1),
          src_(execution.operand("src", order_)), dst_(execution.operand("dst", order_)) {
        if (!isStraight()) return;
        // These kernels step from element to element by whole elements.
        src_.elementStride &= ~(std::uint64_t{form_.elementSize()} - 1);
        dst_.elementStride &= ~(std::uint64_t{form_.elementSize()} - 1);
    }

    Status run();

private:
    // The kernels without a loop, which hold the whole factor in the arithmetic unit and never read the destination.
    bool isStraight() const { return order_ >= 3 && order_ <= 6 && !isPointerLayout(form_.layout); }

    bool objectIsNull(const Operand &operand) const;
    void checkOverlaps();
    bool isRefused(Wide pivot, std::uint64_t i) const;
    float factor32(std::uint64_t i, std::uint64_t j);
    void store32(std::uint64_t i, std::uint64_t j, float value);
    float reduced32(std::uint64_t i, std::uint64_t j);
    float reciprocalRoot32(float pivot);
    Status factorRow32(std::uint64_t i);
    Wide &kept(std::uint64_t i, std::uint64_t j) { return kept_[i * order_ + j]; }
    Wide factor64(std::uint64_t i, std::uint64_t j);
    void store64(std::uint64_t i, std::uint64_t j, Wide value);
    Wide reduced64(std::uint64_t i, std::uint64_t j);
    Status factorRow64(std::uint64_t i);
    Status factorObject();

    const Form &form_;
    Memory &memory_;
    Arithmetic arithmetic_;
    std::uint64_t order_;
    std::uint64_t count_;
    Operand src_;
    Operand dst_;
    std::uint64_t object_ = 0;
    std::vector<Wide> kept_; // of the straight kernels: the factor as it came out of the arithmetic
};

// What a kernel is handed: the table of positions, or the address to which base, stride, entry and shift add up.
bool CholeskyDecomposition::objectIsNull(const Operand &operand) const {
    return !isPointerLayout(form_.layout) && operand.element(object_, 0, 0) == 0;
}

// Only a destination that is the source, element on element, is fixed: whether an element of the source is read before
// or after the factor's elements ahead of it are stored is free, and so is whether these are kept or read back. A
// source element that is used up by the time its bytes are overwritten does not matter.
void CholeskyDecomposition::checkOverlaps() {
    const std::size_t size = form_.elementSize();
    std::vector<std::uintptr_t> written;
    for (std::uint64_t i = 0; i < order_; ++i)
        for (std::uint64_t j = 0; j <= i; ++j) {
            const std::uintptr_t to = dst_.element(object_, i, j);
            const std::uintptr_t from = src_.element(object_, i, j);
            for (const std::uintptr_t earlier : written)
                if (overlap(earlier, size, to, size) || overlap(earlier, size, from, size)) memory_.markOpen();
            written.push_back(to);
        }
}

// A NaN fails like a zero, but for one test that stands the other way round.
bool CholeskyDecomposition::isRefused(Wide pivot, std::uint64_t i) const {
    const bool isReversed = isStraight() && form_.element == Element::real64 && order_ <= 4 && i == 0;
    return isReversed ? 0 >= pivot : !(pivot > 0);
}

float CholeskyDecomposition::factor32(std::uint64_t i, std::uint64_t j) {
    return isStraight() ? static_cast<float>(kept(i, j)) : memory_.load<float>(dst_.element(object_, i, j));
}

void CholeskyDecomposition::store32(std::uint64_t i, std::uint64_t j, float value) {
    kept(i, j) = value;
    memory_.store(dst_.element(object_, i, j), value);
}

float CholeskyDecomposition::reduced32(std::uint64_t i, std::uint64_t j) {
    float rest = memory_.load<float>(src_.element(object_, i, j));
    for (std::uint64_t k = 0; k < j; ++k) {
        rest = arithmetic_.subtract(rest, arithmetic_.multiply(factor32(i, k), factor32(j, k)));
    }
    return rest;
}

// Rounded once, but through tables of positions, where root and reciprocal are two operations of the element type.
float CholeskyDecomposition::reciprocalRoot32(float pivot) {
    if (isPointerLayout(form_.layout)) return arithmetic_.divide(1.0F, arithmetic_.squareRoot(pivot));
    return static_cast<float>(arithmetic_.divide<Wide>(1, arithmetic_.squareRoot<Wide>(pivot)));
}

Status CholeskyDecomposition::factorRow32(std::uint64_t i) {
    for (std::uint64_t j = 0; j < i; ++j) {
        const float rest = reduced32(i, j);
        store32(i, j, arithmetic_.multiply(rest, factor32(j, j)));
    }
    const float pivot = reduced32(i, i);
    if (isRefused(pivot, i)) return statusNotPositiveDefinite;
    store32(i, i, reciprocalRoot32(pivot));
    return statusOk;
}

Wide CholeskyDecomposition::factor64(std::uint64_t i, std::uint64_t j) {
    return isStraight() ? kept(i, j) : static_cast<Wide>(memory_.load<double>(dst_.element(object_, i, j)));
}

void CholeskyDecomposition::store64(std::uint64_t i, std::uint64_t j, Wide value) {
    kept(i, j) = value;
    memory_.store(dst_.element(object_, i, j), round64(value));
}

// The general loop takes products in pairs and rounds what is left after the last pair; what an odd last product leaves
// goes on unrounded.
Wide CholeskyDecomposition::reduced64(std::uint64_t i, std::uint64_t j) {
    const std::uint64_t endOfPairs = j - j % 2;
    Wide rest = memory_.load<double>(src_.element(object_, i, j));
    for (std::uint64_t k = 0; k < j; ++k) {
        if (k == endOfPairs && !isStraight()) rest = round64(rest);
        rest = arithmetic_.subtract(rest, arithmetic_.multiply(factor64(i, k), factor64(j, k)));
    }
    return endOfPairs == j && !isStraight() ? round64(rest) : rest;
}

Status CholeskyDecomposition::factorRow64(std::uint64_t i) {
    for (std::uint64_t j = 0; j < i; ++j) {
        const Wide rest = reduced64(i, j);
        store64(i, j, arithmetic_.multiply(rest, factor64(j, j)));
    }
    const Wide pivot = reduced64(i, i);
    if (isRefused(pivot, i)) return statusNotPositiveDefinite;
    store64(i, i, arithmetic_.divide<Wide>(1, arithmetic_.squareRoot(pivot)));
    return statusOk;
}

Status CholeskyDecomposition::factorObject() {
    if (objectIsNull(src_) || objectIsNull(dst_)) return statusNullPointer;
    checkOverlaps();
    kept_.assign(order_ * order_, 0);
    for (std::uint64_t i = 0; i < order_; ++i) {
        const Status status = form_.element == Element::real32 ? factorRow32(i) : factorRow64(i);
        if (status != statusOk) return status;
    }
    return statusOk;
}

Status CholeskyDecomposition::run() {
    if (order_ == 0) return statusSize;
    for (object_ = 0; object_ < count_; ++object_)
        if (const Status status = factorObject(); status != statusOk) return status;
    return statusOk;
}

} // namespace

Status decomposeCholesky(const Execution &execution) {
    if (execution.arguments.hasNullPointer()) return statusNullPointer;
    if (execution.dimension("order") == 0 || execution.count() == 0) return statusSize;
    return CholeskyDecomposition(execution).run();
}

} // namespace model
