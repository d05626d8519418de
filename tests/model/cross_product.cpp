// Cross products, written in three ways that differ in the sign of a zero: u v - w x, u v + (0 - w) x and u v + (-w) x.
// They also differ in what a destination over a source sees.
#include "model/families.h"
#include "model/product_operands.h"

#include <array>

namespace model {

namespace {

class CrossProduct {
public:
    explicit CrossProduct(const Execution &execution)
        : form_(execution.form), memory_(execution.memory), arithmetic_(execution.memory), count_(execution.count()),
          src1_(execution.operand("src1")), src2_(execution.operand("src2")), dst_(execution.operand("dst")) {}

    Status run();

private:
    bool isReal32() const { return form_.element == Element::real32; }
    bool mixesArrayAndSingle() const { return form_.group == "vav" || form_.group == "vva"; }
    bool isAdjacent() const { return form_.layout == Layout::standard || form_.layout == Layout::list; }
    // An array beside a single vector, but for the Real32 forms of adjacent elements.
    bool addsNegated() const { return mixesArrayAndSingle() && !(isReal32() && isAdjacent()); }
    bool loadsAllFirst() const { return form_.group == "vv" && form_.layout == Layout::standard; }
    bool takesBlocks() const { return form_.name == "vonkCrossProduct_vava_32f_3x1"; }

    bool anyTableEntryIsNull() const;
    template <class Real> Real combine(Real u, Real v, Real w, Real x);
    template <class Real> Real component(std::uint64_t n, std::uint64_t i);
    template <class Stored, class Real> void object(std::uint64_t n);
    void checkOwnOverlaps(std::uint64_t n);
    void checkLaterOverlaps(std::uint64_t n);
    bool isUnder(std::uintptr_t stored, const Operand &source, std::uint64_t n, std::uint64_t j) const;
    bool isUnder(std::uintptr_t stored, const Operand &source, std::uint64_t n) const;

    const Form &form_;
    Memory &memory_;
    Arithmetic arithmetic_;
    std::uint32_t count_;
    Operand src1_;
    Operand src2_;
    Operand dst_;
};

bool CrossProduct::anyTableEntryIsNull() const {
    return src1_.anyEntryIsNull(3) || src2_.anyEntryIsNull(3) || dst_.anyEntryIsNull(3);
}

template <class Real> Real CrossProduct::combine(Real u, Real v, Real w, Real x) {
    const Real first = arithmetic_.multiply(u, v);
    if (!addsNegated()) return arithmetic_.subtract(first, arithmetic_.multiply(w, x));
    const Real negated = isReal32() ? arithmetic_.subtract(Real{0}, w) : -w;
    return arithmetic_.add(first, arithmetic_.multiply(negated, x));
}

template <class Real> Real CrossProduct::component(std::uint64_t n, std::uint64_t i) {
    const std::uint64_t next = (i + 1) % 3;
    const std::uint64_t last = (i + 2) % 3;
    const auto load = [&](const Operand &source, std::uint64_t j) -> Real {
        if (isReal32()) return memory_.load<float>(source.element(n, j));
        return static_cast<Real>(memory_.load<double>(source.element(n, j)));
    };
    return combine(load(src1_, next), load(src2_, last), load(src1_, last), load(src2_, next));
}

template <class Stored, class Real> void CrossProduct::object(std::uint64_t n) {
    if (!loadsAllFirst()) {
        for (std::uint64_t i = 0; i < 3; ++i)
            memory_.store(dst_.element(n, i), static_cast<Stored>(component<Real>(n, i)));
        return;
    }
    std::array<Stored, 3> results{};
    for (std::uint64_t i = 0; i < 3; ++i) results[i] = static_cast<Stored>(component<Real>(n, i));
    for (std::uint64_t i = 0; i < 3; ++i) memory_.store(dst_.element(n, i), results[i]);
}

bool CrossProduct::isUnder(std::uintptr_t stored, const Operand &source, std::uint64_t n, std::uint64_t j) const {
    return overlap(stored, form_.elementSize(), source.element(n, j), form_.elementSize());
}

bool CrossProduct::isUnder(std::uintptr_t stored, const Operand &source, std::uint64_t n) const {
    return isUnder(stored, source, n, 0) || isUnder(stored, source, n, 1) || isUnder(stored, source, n, 2);
}

// The forms that subtract are free in the order of their loads and stores, but for the pair that loads all six elements
// first: no component may be stored over what a later one is made of.
void CrossProduct::checkOwnOverlaps(std::uint64_t n) {
    if (addsNegated() || loadsAllFirst()) return;
    for (const Operand *source : {&src1_, &src2_}) {
        if (isUnder(dst_.element(n, 0), *source, n)) memory_.markOpen();
        for (const std::uint64_t j : {0, 1}) // component 2 is made of these
            if (isUnder(dst_.element(n, 1), *source, n, j)) memory_.markOpen();
    }
}

// Where registers hold adjacent elements they may hold the single vector for all objects, and of one form four objects
// may be loaded before the first of them is stored.
void CrossProduct::checkLaterOverlaps(std::uint64_t n) {
    for (std::uint64_t i = 0; i < 3; ++i) {
        const std::uintptr_t stored = dst_.element(n, i);
        if (mixesArrayAndSingle() && !addsNegated() && n + 1 < count_ &&
            isUnder(stored, src1_.shape.isArray ? src2_ : src1_, 0))
            memory_.markOpen();
        if (!takesBlocks() || n >= count_ - count_ % 4) continue;
        for (std::uint64_t later = n + 1; later < n - n % 4 + 4; ++later)
            if (isUnder(stored, src1_, later) || isUnder(stored, src2_, later)) memory_.markOpen();
    }
}

Status CrossProduct::run() {
    if (isPointerLayout(form_.layout) && anyTableEntryIsNull()) return statusNullPointer;
    for (std::uint64_t n = 0; n < count_; ++n) {
        if (anyListEntryIsNull({&src1_, &src2_, &dst_}, n)) return statusNullPointer;
        checkOwnOverlaps(n);
        checkLaterOverlaps(n);
        if (isReal32()) object<float, float>(n);
        else object<double, Wide>(n);
    }
    return statusOk;
}

} // namespace

Status crossVectors(const Execution &execution) {
    if (execution.arguments.hasNullPointer()) return statusNullPointer;
    return CrossProduct(execution).run();
}

} // namespace model
