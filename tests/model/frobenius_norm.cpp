// Frobenius norms: sums of squares in an order that differs from form to form, and three ways to the root of the sum.
// The forms in lanes come to it by the processor's estimate of a reciprocal root, and some take four objects at a time,
// which add in another order than the objects that are left over.
#include "model/families.h"
#include "model/lanes.h"
#include "model/product_operands.h"

#include <array>
#include <cmath>
#include <vector>
#include <xmmintrin.h>

namespace model {

namespace {

using Squares = std::array<std::array<float, 6>, 6>;

class FrobeniusNorm {
public:
    explicit FrobeniusNorm(const Execution &execution)
        : form_(execution.form), memory_(execution.memory), arithmetic_(execution.memory),
          columns_(execution.dimension("cols")), rows_(execution.dimension("rows")), count_(execution.count()),
          src_(execution.operand("src", columns_)), dst_(execution.arguments.pointer("dst")) {}

    Status run();

private:
    // Array forms in lanes of these orders take four objects at a time.
    bool takesBlocks() const { return hasLanes(form_) && form_.isArray() && form_.size <= 4; }
    bool goesByColumns() const { return form_.isArray(); }
    bool goesBackwards() const {
        return form_.isArray() && form_.element == Element::real32 && form_.size != 0 &&
               (isPointerLayout(form_.layout) || form_.layout == Layout::stridedList);
    }
    bool roundsSum() const { return form_.size == 0 && !isPointerLayout(form_.layout); } // of Real64

    std::uintptr_t result(std::uint64_t n) const { return dst_ + n * form_.elementSize(); }
    std::vector<std::uintptr_t> terms(std::uint64_t n) const;
    void object(std::uint64_t n);
    float runningSum32(const std::vector<std::uintptr_t> &terms);
    Wide runningSum64(const std::vector<std::uintptr_t> &terms);

    float sum(std::initializer_list<float> two) { return arithmetic_.add(*two.begin(), *(two.begin() + 1)); }
    Squares squares(std::uint64_t n);
    float column(const Squares &p, std::uint64_t j);
    float treeOfOne(std::uint64_t n);
    float treeOfThreeInBlock(const Squares &p);
    float treeInBlock(std::uint64_t n);
    float rootByEstimate(float sum);
    void block(std::uint64_t n);
    Status runInLanes();

    const Form &form_;
    Memory &memory_;
    Arithmetic arithmetic_;
    std::uint64_t columns_;
    std::uint64_t rows_;
    std::uint64_t count_;
    Operand src_;
    std::uintptr_t dst_;
};

// ---- One after the other

std::vector<std::uintptr_t> FrobeniusNorm::terms(std::uint64_t n) const {
    std::vector<std::uintptr_t> places;
    const std::uint64_t outer = goesByColumns() ? columns_ : rows_;
    const std::uint64_t inner = goesByColumns() ? rows_ : columns_;
    for (std::uint64_t i = 0; i < outer; ++i)
        for (std::uint64_t j = 0; j < inner; ++j)
            places.push_back(goesByColumns() ? src_.element(n, j, i) : src_.element(n, i, j));
    return goesBackwards() ? std::vector<std::uintptr_t>(places.rbegin(), places.rend()) : places;
}

float FrobeniusNorm::runningSum32(const std::vector<std::uintptr_t> &terms) {
    float sum = 0;
    for (const std::uintptr_t term : terms) {
        const auto a = memory_.load<float>(term);
        sum = arithmetic_.add(sum, arithmetic_.multiply(a, a));
    }
    return sum;
}

Wide FrobeniusNorm::runningSum64(const std::vector<std::uintptr_t> &terms) {
    Wide sum = 0;
    for (const std::uintptr_t term : terms) {
        const Wide a = memory_.load<double>(term);
        sum = arithmetic_.add(sum, arithmetic_.multiply(a, a));
    }
    return sum;
}

// Whether the sum runs through the result's cell or stays in a register to the end is free, so the cell must not lie in
// the object itself.
void FrobeniusNorm::object(std::uint64_t n) {
    const std::vector<std::uintptr_t> places = terms(n);
    for (const std::uintptr_t term : places)
        if (overlap(term, form_.elementSize(), result(n), form_.elementSize())) memory_.markOpen();
    if (form_.element == Element::real32) {
        memory_.store(result(n), std::sqrt(runningSum32(places)));
    } else {
        const Wide sum = runningSum64(places);
        memory_.store(result(n), round64(std::sqrt(roundsSum() ? Wide{round64(sum)} : sum)));
    }
}

// ---- In lanes

Squares FrobeniusNorm::squares(std::uint64_t n) {
    Squares p{};
    for (std::uint64_t i = 0; i < rows_; ++i)
        for (std::uint64_t j = 0; j < columns_; ++j) {
            const auto a = memory_.load<float>(src_.element(n, i, j));
            p[i][j] = arithmetic_.multiply(a, a);
        }
    return p;
}

float FrobeniusNorm::column(const Squares &p, std::uint64_t j) {
    if (form_.size == 3) return sum({sum({p[0][j], p[1][j]}), p[2][j]});
    if (form_.size == 6 && j >= 4)
        return sum({sum({sum({p[0][j], p[2][j]}), p[4][j]}), sum({sum({p[1][j], p[3][j]}), p[5][j]})});
    const float four = sum({sum({p[0][j], p[1][j]}), sum({p[2][j], p[3][j]})});
    if (form_.size == 4) return four;
    return form_.size == 5 ? sum({four, p[4][j]}) : sum({four, sum({p[4][j], p[5][j]})});
}

float FrobeniusNorm::treeOfOne(std::uint64_t n) {
    const Squares p = squares(n);
    std::array<float, 6> c{};
    for (std::uint64_t j = 0; j < columns_; ++j) c[j] = column(p, j);
    if (form_.size == 3) return sum({sum({c[0], c[1]}), c[2]});
    const float four = sum({sum({c[0], c[2]}), sum({c[1], c[3]})});
    if (form_.size == 4) return four;
    return form_.size == 5 ? sum({four, c[4]}) : sum({four, sum({c[4], c[5]})});
}

float FrobeniusNorm::treeOfThreeInBlock(const Squares &p) {
    const float corners = sum({sum({sum({p[0][0], p[0][1]}), p[2][2]}), sum({p[0][2], p[1][0]})});
    return sum({corners, sum({sum({p[1][1], p[1][2]}), sum({p[2][0], p[2][1]})})});
}

float FrobeniusNorm::treeInBlock(std::uint64_t n) {
    const Squares p = squares(n);
    if (form_.size == 3) return treeOfThreeInBlock(p);
    return sum({sum({column(p, 0), column(p, 1)}), sum({column(p, 2), column(p, 3)})});
}

// Nothing guards a sum of 0: its estimate is infinite, and the result a NaN.
float FrobeniusNorm::rootByEstimate(float sum) {
    const float r = _mm_cvtss_f32(_mm_rsqrt_ss(_mm_set_ss(sum)));
    const float t = arithmetic_.multiply(sum, arithmetic_.multiply(r, r));
    const float w = arithmetic_.multiply(r, arithmetic_.multiply(0.5F, arithmetic_.subtract(3.0F, t)));
    return arithmetic_.multiply(sum, w);
}

void FrobeniusNorm::block(std::uint64_t n) {
    std::array<float, 4> roots{};
    for (std::uint64_t k = 0; k < 4; ++k) roots[k] = rootByEstimate(treeInBlock(n + k));
    for (std::uint64_t k = 0; k < 4; ++k) memory_.store(result(n + k), roots[k]);
}

// The list entries of a block are tested together, those of the objects that are left over not at all.
Status FrobeniusNorm::runInLanes() {
    const std::uint64_t inBlocks = takesBlocks() ? count_ - count_ % 4 : 0;
    for (std::uint64_t n = 0; n < inBlocks; n += 4) {
        for (std::uint64_t k = 0; k < 4; ++k)
            if (anyListEntryIsNull({&src_}, n + k)) return statusNullPointer;
        block(n);
    }
    for (std::uint64_t n = inBlocks; n < count_; ++n) {
        if (!takesBlocks() && anyListEntryIsNull({&src_}, n)) return statusNullPointer;
        memory_.store(result(n), rootByEstimate(treeOfOne(n)));
    }
    return statusOk;
}

Status FrobeniusNorm::run() {
    if (columns_ == 0 || rows_ == 0) return statusSize;
    if (isPointerLayout(form_.layout) && src_.anyEntryIsNull(columns_ * rows_)) return statusNullPointer;
    if (hasLanes(form_)) return runInLanes();
    for (std::uint64_t n = 0; n < count_; ++n) {
        if (anyListEntryIsNull({&src_}, n)) return statusNullPointer;
        object(n);
    }
    return statusOk;
}

} // namespace

Status takeFrobeniusNorm(const Execution &execution) {
    if (execution.arguments.hasNullPointer()) return statusNullPointer;
    return FrobeniusNorm(execution).run();
}

} // namespace model
