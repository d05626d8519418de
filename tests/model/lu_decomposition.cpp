// LU decomposition with partial pivoting through a permutation: rows never move, and the array forms look for the last
// pivot at a displaced place.
#include "model/families.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace model {

namespace {

// Absolute, and the same for both element types.
constexpr double pivotTolerance = 0x1p-23;

class Decomposition {
public:
    explicit Decomposition(const Execution &execution)
        : form_(execution.form), memory_(execution.memory), arithmetic_(execution.memory),
          order_(execution.dimension("order")), count_(execution.count()), src_(execution.operand("src", order_)),
          dst_(execution.operand("dst", order_)), pivots_(execution.arguments.pointer("pivots")) {}

    Status run();

private:
    // Of the Real64 forms: the sizes whose kernels differ from the general loop.
    bool isSmallKernel() const { return form_.size >= 3 && form_.size <= 5; }

    std::uintptr_t at(std::uint64_t i, std::uint64_t j) const { return dst_.element(object_, rows_[i], j); }
    double loadElement(std::uintptr_t address) const;
    double magnitude(std::uint64_t i, std::uint64_t k) const { return std::fabs(loadElement(at(i, k))); }
    static bool isBelowTolerance(double value) { return !(std::fabs(value) >= pivotTolerance); }

    void checkOverlaps();
    void copy();
    void setIdentity();
    void setPivot(std::uint64_t i, std::uint32_t row);
    std::uint64_t search(std::uint64_t k) const;
    void exchange(std::uint64_t k, std::uint64_t b);
    void eliminate32(std::uint64_t k, std::uint64_t i);
    void eliminate64(std::uint64_t k, std::uint64_t i);
    std::uintptr_t lastPivotAddress() const;
    Status decomposeObject();

    const Form &form_;
    Memory &memory_;
    Arithmetic arithmetic_;
    std::uint64_t order_;
    std::uint64_t count_;
    Operand src_;
    Operand dst_;
    std::uintptr_t pivots_;
    std::uint64_t object_ = 0;
    std::vector<std::uint32_t> rows_; // the permutation of the object at work, as it stands in pivots
};

double Decomposition::loadElement(std::uintptr_t address) const {
    return form_.element == Element::real32 ? static_cast<double>(memory_.load<float>(address))
                                            : memory_.load<double>(address);
}

// Marks what would show whether a factor, a row or a row index is kept in a register or read again, which is free: an
// element of the destination that shares bytes with another one, or with the object's own row indices. A source under
// those indices is left open along with it.
// A source that overlaps the destination is no such case: the copy walks forward, and then the source is done with.
void Decomposition::checkOverlaps() {
    const std::size_t size = form_.elementSize();
    const std::uintptr_t block = pivots_ + object_ * order_ * 4;
    std::vector<std::uintptr_t> places;
    for (std::uint64_t i = 0; i < order_; ++i)
        for (std::uint64_t j = 0; j < order_; ++j) {
            places.push_back(dst_.element(object_, i, j));
            if (overlap(places.back(), size, block, order_ * 4) ||
                overlap(src_.element(object_, i, j), size, block, order_ * 4))
                memory_.markOpen();
        }
    std::sort(places.begin(), places.end());
    for (std::size_t i = 1; i < places.size(); ++i)
        if (places[i] - places[i - 1] < size) memory_.markOpen();
}

void Decomposition::copy() {
    for (std::uint64_t i = 0; i < order_; ++i)
        for (std::uint64_t j = 0; j < order_; ++j)
            memory_.move(dst_.element(object_, i, j), src_.element(object_, i, j), form_.elementSize());
}

void Decomposition::setPivot(std::uint64_t i, std::uint32_t row) {
    rows_[i] = row;
    memory_.store(pivots_ + (object_ * order_ + i) * 4, row);
}

void Decomposition::setIdentity() {
    rows_.assign(order_, 0);
    for (std::uint64_t i = 0; i < order_; ++i) setPivot(i, static_cast<std::uint32_t>(i));
}

// The first of the largest magnitudes. Real64 forms take the candidates in pairs, and what they do when the first of a
// pair cannot be ordered against the best so far (one of them is a NaN) differs between them.
std::uint64_t Decomposition::search(std::uint64_t k) const {
    const bool unorderedMovesBest = !isSmallKernel();
    const bool unorderedMovesPosition = isSmallKernel() || form_.isArray();
    double best = magnitude(k, k);
    std::uint64_t position = k;
    for (std::uint64_t i = k + 1; i < order_; ++i) {
        const double candidate = magnitude(i, k);
        const bool isFirstOfPair = (i - (k + 1)) % 2 == 0 && i + 1 < order_;
        if (form_.element == Element::real64 && isFirstOfPair && std::isunordered(candidate, best)) {
            best = unorderedMovesBest ? candidate : best;
            position = unorderedMovesPosition ? i : position;
        } else if (std::isgreater(candidate, best)) {
            best = candidate;
            position = i;
        }
    }
    return position;
}

void Decomposition::exchange(std::uint64_t k, std::uint64_t b) {
    const std::uint32_t row = rows_[k];
    setPivot(k, rows_[b]);
    setPivot(b, row);
}

void Decomposition::eliminate32(std::uint64_t k, std::uint64_t i) {
    const float multiplier = arithmetic_.divide(memory_.load<float>(at(i, k)), memory_.load<float>(at(k, k)));
    memory_.store(at(i, k), multiplier);
    const float negated = arithmetic_.subtract(0.0F, multiplier); // a zero multiplier gives +0
    for (std::uint64_t j = k + 1; j < order_; ++j) {
        const float product = arithmetic_.multiply(memory_.load<float>(at(k, j)), negated);
        memory_.store(at(i, j), arithmetic_.add(product, memory_.load<float>(at(i, j))));
    }
}

// The small kernels go on with the quotient as it came out of the division, the others with what they have stored. That
// shows at every setting of the precision: even at 53 bits a quotient may leave the range of a 64-bit element.
void Decomposition::eliminate64(std::uint64_t k, std::uint64_t i) {
    const Wide quotient = arithmetic_.divide<Wide>(memory_.load<double>(at(i, k)), memory_.load<double>(at(k, k)));
    const double multiplier = round64(quotient);
    memory_.store(at(i, k), multiplier);
    const Wide negated = isSmallKernel() ? -quotient : -static_cast<Wide>(multiplier); // a zero changes its sign
    for (std::uint64_t j = k + 1; j < order_; ++j) {
        const Wide product = arithmetic_.multiply<Wide>(memory_.load<double>(at(k, j)), negated);
        memory_.store(at(i, j), round64(arithmetic_.add<Wide>(product, memory_.load<double>(at(i, j)))));
    }
}

// Object n is tested n rows further on, as if the matrices were packed, whatever the row stride is. For n at least 1
// that is another row, another object or what lies behind the array, as it stands by then.
std::uintptr_t Decomposition::lastPivotAddress() const {
    const std::uint64_t last = order_ - 1;
    if (isPointerLayout(form_.layout)) return dst_.throughSlot(object_, (rows_[last] + object_) * order_ + last);
    return at(last, last) + object_ * order_ * dst_.elementStride;
}

Status Decomposition::decomposeObject() {
    checkOverlaps();
    copy();
    setIdentity();
    for (std::uint64_t k = 0; k + 1 < order_; ++k) {
        exchange(k, search(k));
        if (isBelowTolerance(loadElement(at(k, k)))) return statusSingular;
        for (std::uint64_t i = k + 1; i < order_; ++i)
            form_.element == Element::real32 ? eliminate32(k, i) : eliminate64(k, i);
    }
    return isBelowTolerance(loadElement(lastPivotAddress())) ? statusSingular : statusOk;
}

Status Decomposition::run() {
    if (order_ == 0) return statusSize;
    if (isPointerLayout(form_.layout) && (src_.anyEntryIsNull(order_ * order_) || dst_.anyEntryIsNull(order_ * order_)))
        return statusNullPointer;
    for (object_ = 0; object_ < count_; ++object_) {
        if (src_.isList() && (src_.entryIsNull(object_) || dst_.entryIsNull(object_))) return statusNullPointer;
        if (const Status status = decomposeObject(); status != statusOk) return status;
    }
    return statusOk;
}

} // namespace

Status decomposeLu(const Execution &execution) {
    if (execution.arguments.hasNullPointer()) return statusNullPointer;
    return Decomposition(execution).run();
}

} // namespace model
