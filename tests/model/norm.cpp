// Euclidean norms: the exact root of a sum of squares, or in the Real32 forms in lanes the processor's estimate of its
// reciprocal and one Newton step, which makes a NaN of the norm 0.
#include "model/families.h"
#include "model/lane_sum.h"
#include "model/lanes.h"

#include <cmath>
#include <vector>
#include <xmmintrin.h>

namespace model {

namespace {

class Norm {
public:
    explicit Norm(const Execution &execution)
        : form_(execution.form), memory_(execution.memory), arithmetic_(execution.memory),
          length_(execution.dimension("len")), count_(execution.count()), src_(execution.operand("src")),
          dst_(execution.arguments.pointer("dst")) {}

    Status run();

private:
    bool isEstimated() const { return hasLanes(form_); }
    bool testsEntries() const { return form_.name != "vonkL2Norm_va_32f_4x1_L"; }

    std::uintptr_t result(std::uint64_t n) const { return dst_ + n * form_.elementSize(); }
    float square(std::uint64_t n, std::uint64_t j);
    float sum(float a, float b) { return arithmetic_.add(a, b); }
    float tree(std::uint64_t n);
    float rootByEstimate(float sum);
    float norm32(std::uint64_t n);
    double norm64(std::uint64_t n);
    void checkOverlaps(std::uint64_t n);

    const Form &form_;
    Memory &memory_;
    Arithmetic arithmetic_;
    std::uint32_t length_;
    std::uint32_t count_;
    Operand src_;
    std::uintptr_t dst_;
};

float Norm::square(std::uint64_t n, std::uint64_t j) {
    const auto a = memory_.load<float>(src_.element(n, j));
    return arithmetic_.multiply(a, a);
}

float Norm::tree(std::uint64_t n) {
    const float two = sum(square(n, 0), square(n, 1));
    if (length_ == 3) return sum(two, square(n, 2));
    const float four = sum(two, sum(square(n, 2), square(n, 3)));
    if (length_ == 4) return four;
    return length_ == 5 ? sum(four, square(n, 4)) : sum(four, sum(square(n, 4), square(n, 5)));
}

// One step of Newton's beside the estimate. Nothing guards a sum of 0, whose estimate is infinite.
float Norm::rootByEstimate(float sum) {
    const float r = _mm_cvtss_f32(_mm_rsqrt_ss(_mm_set_ss(sum)));
    const float t = arithmetic_.multiply(sum, arithmetic_.multiply(r, r));
    const float h = arithmetic_.multiply(0.5F, arithmetic_.subtract(3.0F, t));
    return arithmetic_.multiply(sum, arithmetic_.multiply(r, h));
}

float Norm::norm32(std::uint64_t n) {
    if (isEstimated()) return rootByEstimate(tree(n));
    if (form_.name == "vonkL2Norm_v_32f")
        return std::sqrt(sumInLanes(arithmetic_, src_.base, length_, [&](std::uint64_t j) { return square(n, j); }));
    float squares = 0;
    for (std::uint64_t j = 0; j < length_; ++j) squares = sum(squares, square(n, j));
    return std::sqrt(squares);
}

// Squares of doubles do not leave the range of the extended type.
double Norm::norm64(std::uint64_t n) {
    Wide squares = 0;
    for (std::uint64_t j = 0; j < length_; ++j) {
        const Wide a = memory_.load<double>(src_.element(n, j));
        squares = arithmetic_.add(squares, arithmetic_.multiply(a, a));
    }
    return round64(std::sqrt(squares));
}

// The estimated forms take four objects at a time, and may load them all before the first result is stored.
void Norm::checkOverlaps(std::uint64_t n) {
    if (!isEstimated() || n >= count_ - count_ % 4) return;
    for (std::uint64_t later = n + 1; later < n - n % 4 + 4; ++later)
        if (!src_.isList() || !src_.entryIsNull(later))
            for (std::uint64_t j = 0; j < length_; ++j)
                if (overlap(result(n), 4, src_.element(later, j), 4)) memory_.markOpen();
}

Status Norm::run() {
    if (length_ == 0) return statusSize;
    if (isPointerLayout(form_.layout) && src_.anyEntryIsNull(length_)) return statusNullPointer;
    for (std::uint64_t n = 0; n < count_; ++n) {
        if (testsEntries() && anyListEntryIsNull({&src_}, n)) return statusNullPointer;
        checkOverlaps(n);
        if (form_.element == Element::real32) memory_.store(result(n), norm32(n));
        else memory_.store(result(n), norm64(n));
    }
    return statusOk;
}

} // namespace

Status takeNorm(const Execution &execution) {
    if (execution.arguments.hasNullPointer()) return statusNullPointer;
    return Norm(execution).run();
}

} // namespace model
