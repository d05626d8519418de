// Sums and differences of vectors: a forward walk over objects and elements, but for the Real32 forms of fixed size,
// which handle an object in lanes and so read all of it before they write.
#include "model/families.h"

#include <vector>

namespace model {

namespace {

class VectorSum {
public:
    explicit VectorSum(const Execution &execution)
        : form_(execution.form), memory_(execution.memory), arithmetic_(execution.memory),
          length_(execution.dimension("len")), count_(execution.count()), src1_(execution.operand("src1")),
          src2_(execution.operand("src2")), dst_(execution.operand("dst")) {}

    Status run();

private:
    bool isDifference() const { return form_.operation == "Sub"; }
    // Fixed-size Real32 forms whose elements are adjacent.
    bool hasLanes() const {
        return form_.element == Element::real32 && form_.size != 0 &&
               (form_.layout == Layout::standard || form_.layout == Layout::list);
    }
    // The single vector beside an array is loaded once, ahead of the objects.
    bool holdsSingle() const { return hasLanes() && src1_.shape.isArray != src2_.shape.isArray; }
    // Three elements of such a form are three scalar steps; everywhere else they are one operation in lanes.
    bool isScalarBesideHeld() const { return holdsSingle() && length_ == 3; }
    bool isBlockwise() const { return form_.name == "vonkSub_vava_32f_3x1"; }

    bool anyTableEntryIsNull() const;
    bool anyListEntryIsNull(std::uint64_t n) const;
    bool anyPositionIsNull(std::uint64_t k) const;
    Status objectByElements(std::uint64_t n);
    void objectInLanes(std::uint64_t n);
    void elementBesideHeld(std::uint64_t n, std::uint64_t j);
    void step(std::uintptr_t dst, std::uintptr_t src1, std::uintptr_t src2);
    float combine(float a, float b);
    float loadHeldOrElement(const Operand &operand, std::uint64_t n, std::uint64_t j) const;
    bool runsIntoOwnSource(const Operand &source, std::uint64_t n) const;
    void checkBlock(std::uint64_t n);

    const Form &form_;
    Memory &memory_;
    Arithmetic arithmetic_;
    std::uint32_t length_;
    std::uint32_t count_;
    Operand src1_;
    Operand src2_;
    Operand dst_;
    std::vector<float> held_;
};

bool VectorSum::anyTableEntryIsNull() const {
    for (std::uint64_t k = 0; k < length_; ++k)
        if (anyPositionIsNull(k)) return true;
    return false;
}

bool VectorSum::anyPositionIsNull(std::uint64_t k) const {
    return src1_.entryIsNull(k) || src2_.entryIsNull(k) || dst_.entryIsNull(k);
}

bool VectorSum::anyListEntryIsNull(std::uint64_t n) const {
    for (const Operand *operand : {&src1_, &src2_, &dst_})
        if (operand->isList() && operand->entryIsNull(n)) return true;
    return false;
}

float VectorSum::combine(float a, float b) {
    return isDifference() ? arithmetic_.subtract(a, b) : arithmetic_.add(a, b);
}

// One element from memory to memory.
void VectorSum::step(std::uintptr_t dst, std::uintptr_t src1, std::uintptr_t src2) {
    if (form_.element == Element::real32) {
        memory_.store(dst, combine(memory_.load<float>(src1), memory_.load<float>(src2)));
        return;
    }
    const Wide a = memory_.load<double>(src1);
    const Wide b = memory_.load<double>(src2);
    memory_.store(dst, round64(isDifference() ? arithmetic_.subtract(a, b) : arithmetic_.add(a, b)));
}

// The run-time sum of two Real32 vectors works in blocks only where no overlap can show it, so it too is this walk.
Status VectorSum::objectByElements(std::uint64_t n) {
    const bool testsAlongTheWay = isPointerLayout(form_.layout) && !form_.isArray();
    for (std::uint64_t j = 0; j < length_; ++j) {
        if (testsAlongTheWay && anyPositionIsNull(j)) return statusNullPointer;
        step(dst_.element(n, j), src1_.element(n, j), src2_.element(n, j));
    }
    return statusOk;
}

float VectorSum::loadHeldOrElement(const Operand &operand, std::uint64_t n, std::uint64_t j) const {
    return holdsSingle() && !operand.shape.isArray ? held_[j] : memory_.load<float>(operand.element(n, j));
}

void VectorSum::elementBesideHeld(std::uint64_t n, std::uint64_t j) {
    const float a = loadHeldOrElement(src1_, n, j);
    memory_.store(dst_.element(n, j), combine(a, loadHeldOrElement(src2_, n, j)));
}

// Of a source that is not held: overlaps the destination of its own object, but does not lie exactly on it.
bool VectorSum::runsIntoOwnSource(const Operand &source, std::uint64_t n) const {
    if (holdsSingle() && !source.shape.isArray) return false;
    const std::uintptr_t from = source.element(n, 0);
    const std::uintptr_t to = dst_.element(n, 0);
    return from != to && overlap(from, 4 * length_, to, 4 * length_);
}

void VectorSum::objectInLanes(std::uint64_t n) {
    // Five and six elements are one operation in four lanes and one on the rest, and whether the rest is loaded before
    // or after the store of the four is free.
    if (length_ > 4 && (runsIntoOwnSource(src1_, n) || runsIntoOwnSource(src2_, n))) memory_.markOpen();
    std::vector<float> results;
    for (std::uint64_t j = 0; j < length_; ++j) {
        const float a = loadHeldOrElement(src1_, n, j);
        results.push_back(combine(a, loadHeldOrElement(src2_, n, j)));
    }
    for (std::uint64_t j = 0; j < length_; ++j) memory_.store(dst_.element(n, j), results[j]);
}

// This one form takes four objects at a time, and may load the later ones of a block before it stores the earlier ones.
// A destination on the source of an earlier object stays fixed, as does one on another destination: objects ascend.
void VectorSum::checkBlock(std::uint64_t n) {
    if (n % 4 != 0 || count_ - n < 4) return;
    for (std::uint64_t earlier = n; earlier < n + 4; ++earlier)
        for (std::uint64_t later = earlier + 1; later < n + 4; ++later)
            for (const Operand *source : {&src1_, &src2_})
                if (overlap(dst_.element(earlier, 0), 12, source->element(later, 0), 12)) memory_.markOpen();
}

Status VectorSum::run() {
    if (length_ == 0) return statusSize;
    if (form_.isArray() && isPointerLayout(form_.layout) && anyTableEntryIsNull()) return statusNullPointer;
    if (count_ == 0) return statusOk;
    if (holdsSingle())
        for (std::uint64_t j = 0; j < length_; ++j)
            held_.push_back(memory_.load<float>((src1_.shape.isArray ? src2_ : src1_).element(0, j)));
    for (std::uint64_t n = 0; n < count_; ++n) {
        if (anyListEntryIsNull(n)) return statusNullPointer;
        if (isBlockwise()) checkBlock(n);
        if (isScalarBesideHeld()) {
            for (std::uint64_t j = 0; j < length_; ++j) elementBesideHeld(n, j);
        } else if (hasLanes()) {
            objectInLanes(n);
        } else if (const Status status = objectByElements(n); status != statusOk) {
            return status;
        }
    }
    return statusOk;
}

} // namespace

Status addOrSubtractVectors(const Execution &execution) {
    if (execution.arguments.hasNullPointer()) return statusNullPointer;
    return VectorSum(execution).run();
}

} // namespace model
