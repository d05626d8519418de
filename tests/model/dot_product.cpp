// Dot products: products added from left to right, but for a few Real32 forms with an order of their own, which in two
// of them hangs on the alignment of the operands.
#include "model/families.h"
#include "model/lane_sum.h"
#include "model/lanes.h"

namespace model {

namespace {

class DotProduct {
public:
    explicit DotProduct(const Execution &execution)
        : form_(execution.form), memory_(execution.memory), arithmetic_(execution.memory), words_(execution.arguments),
          length_(execution.dimension("len")), count_(execution.count()), src1_(execution.operand("src1")),
          src2_(execution.operand("src2")), dst_(execution.arguments.pointer("dst")) {}

    Status run();

private:
    // These trust the entries of their lists.
    bool testsEntries() const { return !(form_.layout == Layout::list && takesBlocksBesideSingle()); }
    bool takesBlocksBesideSingle() const { return hasLanes(form_) && form_.group == "vav" && form_.size <= 4; }
    bool isArrayOfThree() const { return form_.name == "vonkDotProduct_vava_32f_3x1"; }
    bool isInBlock(std::uint64_t n) const { return n < count_ - count_ % 4; }
    bool addsOuterPairFirst(std::uint64_t n) const;
    bool passesThroughDouble() const;
    bool anyTableEntryIsNull() const;

    std::uintptr_t result(std::uint64_t n) const { return dst_ + n * form_.elementSize(); }
    float product32(std::uint64_t n, std::uint64_t j);
    Wide product64(std::uint64_t n, std::uint64_t j);
    float sum32(std::uint64_t n);
    double sum64(std::uint64_t n);
    void checkOverlaps(std::uint64_t n);
    bool isUnder(std::uintptr_t stored, const Operand &source, std::uint64_t n) const;

    const Form &form_;
    Memory &memory_;
    Arithmetic arithmetic_;
    const Arguments &words_;
    std::uint32_t length_;
    std::uint32_t count_;
    Operand src1_;
    Operand src2_;
    std::uintptr_t dst_;
};

// One form of three elements does so in its blocks, and takes blocks only if every word that it has is aligned.
bool DotProduct::addsOuterPairFirst(std::uint64_t n) const {
    if (!isArrayOfThree() || !isInBlock(n)) return false;
    const std::uint64_t together =
        src1_.base | src2_.base | dst_ | words_.bytes("src1ObjStride") | words_.bytes("src2ObjStride");
    return together % 16 == 0;
}

// Of Real64 at run-time size: the sum is a double between the pairs of terms and the odd one.
bool DotProduct::passesThroughDouble() const {
    return form_.size == 0 && (!form_.isArray() || form_.layout == Layout::list);
}

bool DotProduct::anyTableEntryIsNull() const {
    for (std::uint64_t k = 0; k < length_; ++k)
        if (src1_.entryIsNull(k) || src2_.entryIsNull(k)) return true;
    return false;
}

float DotProduct::product32(std::uint64_t n, std::uint64_t j) {
    return arithmetic_.multiply(memory_.load<float>(src1_.element(n, j)), memory_.load<float>(src2_.element(n, j)));
}

Wide DotProduct::product64(std::uint64_t n, std::uint64_t j) {
    return arithmetic_.multiply<Wide>(memory_.load<double>(src1_.element(n, j)),
                                      memory_.load<double>(src2_.element(n, j)));
}

float DotProduct::sum32(std::uint64_t n) {
    if (form_.name == "vonkDotProduct_vv_32f")
        return sumInLanes(arithmetic_, src2_.base, length_, [&](std::uint64_t j) { return product32(n, j); });
    if (form_.size == 4 && takesBlocksBesideSingle()) {
        const float front = arithmetic_.add(product32(n, 0), product32(n, 1));
        return arithmetic_.add(front, arithmetic_.add(product32(n, 2), product32(n, 3)));
    }
    if (addsOuterPairFirst(n))
        return arithmetic_.add(arithmetic_.add(product32(n, 0), product32(n, 2)), product32(n, 1));
    float sum = form_.size == 0 ? arithmetic_.add(0.0F, product32(n, 0)) : product32(n, 0);
    for (std::uint64_t j = 1; j < length_; ++j) sum = arithmetic_.add(sum, product32(n, j));
    return sum;
}

double DotProduct::sum64(std::uint64_t n) {
    const std::uint64_t inPairs = passesThroughDouble() ? length_ - length_ % 2 : length_;
    Wide sum = 0;
    for (std::uint64_t j = 0; j < inPairs; ++j)
        sum = j == 0 && form_.size != 0 ? product64(n, j) : arithmetic_.add(sum, product64(n, j));
    if (inPairs == length_) return round64(sum);
    return round64(arithmetic_.add<Wide>(round64(sum), product64(n, inPairs)));
}

bool DotProduct::isUnder(std::uintptr_t stored, const Operand &source, std::uint64_t n) const {
    for (std::uint64_t j = 0; j < length_; ++j)
        if (overlap(stored, form_.elementSize(), source.element(n, j), form_.elementSize())) return true;
    return false;
}

// Four objects in lanes may all be loaded before the first result is stored, and where there are such blocks the single
// vector may be held or read anew. Everywhere else an object is done before the next one is looked at.
void DotProduct::checkOverlaps(std::uint64_t n) {
    if (!takesBlocksBesideSingle() && !isArrayOfThree()) return;
    if (takesBlocksBesideSingle() && n + 1 < count_ && isUnder(result(n), src2_, n)) memory_.markOpen();
    for (std::uint64_t later = n + 1; isInBlock(n) && later < n - n % 4 + 4; ++later)
        if (isUnder(result(n), src1_, later) || (src2_.shape.isArray && isUnder(result(n), src2_, later)))
            memory_.markOpen();
}

Status DotProduct::run() {
    if (length_ == 0) return statusSize;
    if (isPointerLayout(form_.layout) && anyTableEntryIsNull()) return statusNullPointer;
    for (std::uint64_t n = 0; n < count_; ++n) {
        if (testsEntries() && anyListEntryIsNull({&src1_, &src2_}, n)) return statusNullPointer;
        checkOverlaps(n);
        if (form_.element == Element::real32) memory_.store(result(n), sum32(n));
        else memory_.store(result(n), sum64(n));
    }
    return statusOk;
}

} // namespace

Status multiplyVectors(const Execution &execution) {
    if (execution.arguments.hasNullPointer()) return statusNullPointer;
    return DotProduct(execution).run();
}

} // namespace model
