// Determinants: elimination at run-time size, closed forms without a division at fixed size. Those of 3x3 are fixed to
// the last bit; those above tell their minors but not the order of their sums, and are held to accuracy.
#include "model/elimination.h"
#include "model/estimate.h"
#include "model/families.h"

namespace model {

namespace {

class Determinant {
public:
    explicit Determinant(const Execution &execution)
        : form_(execution.form), memory_(execution.memory), arithmetic_(execution.memory),
          order_(execution.dimension("order")), count_(execution.count()), src_(execution.operand("src", order_)),
          dst_(execution.arguments.pointer("dst")) {}

    Status run();

private:
    bool isSingle() const { return form_.element == Element::real32; }
    // Fixed sizes whose elements are adjacent have kernels that compute in extended precision, for Real32 as well.
    bool isKernel() const { return form_.layout == Layout::standard || form_.layout == Layout::list; }

    template <class Real> Real element(std::uint64_t i, std::uint64_t j) const {
        return memory_.load<Real>(src_.element(object_, i, j));
    }
    template <class Real> Real byElimination();
    template <class Number> Number difference(Number a, Number b, Number c, Number d);
    template <class Real, class Number> Real ofThree();
    Estimate byMinors();
    template <class Real> void computeObject();

    const Form &form_;
    Memory &memory_;
    Arithmetic arithmetic_;
    std::uint64_t order_;
    std::uint64_t count_;
    Operand src_;
    std::uintptr_t dst_;
    std::uint64_t object_ = 0;
};

// The result cell holds the product while it grows, so it is rounded at every column. A pivot that fails ends a single
// form; array forms go on to the last step, with what stands in its place by then, and may come to -0 or NaN.
template <class Real> Real Determinant::byElimination() {
    std::vector<Real> rows;
    for (std::uint64_t i = 0; i < order_; ++i)
        for (std::uint64_t j = 0; j < order_; ++j) rows.push_back(element<Real>(i, j));
    Elimination<Real> elimination(memory_, order_, std::move(rows));
    const auto store = [](Register<Real> product) -> Register<Real> { return static_cast<Real>(product); };
    if (!elimination.eliminate(store)) {
        if (!form_.isArray()) return 0;
        elimination.clearProduct();
    }
    return elimination.takeLastPivot() ? static_cast<Real>(elimination.product()) : 0;
}

template <class Number> Number Determinant::difference(Number a, Number b, Number c, Number d) {
    return arithmetic_.subtract(arithmetic_.multiply(a, b), arithmetic_.multiply(c, d));
}

// Three associations: the kernels of the two types expand along another row or column, with other signs inside.
template <class Real, class Number> Real Determinant::ofThree() {
    const auto a = [&](int i, int j) { return static_cast<Number>(element<Real>(i, j)); };
    const auto term = [&](Number minor, Number factor) { return arithmetic_.multiply(minor, factor); };
    Number first, second, third;
    if (!isKernel()) {
        first = term(difference(a(1, 1), a(2, 2), a(2, 1), a(1, 2)), a(0, 0));
        second = term(difference(a(1, 2), a(2, 0), a(2, 2), a(1, 0)), a(0, 1));
        third = term(difference(a(1, 0), a(2, 1), a(2, 0), a(1, 1)), a(0, 2));
    } else if (isSingle()) {
        first = term(difference(a(2, 0), a(1, 2), a(1, 0), a(2, 2)), a(0, 1));
        second = term(difference(a(2, 1), a(1, 0), a(2, 0), a(1, 1)), a(0, 2));
        third = term(difference(a(1, 1), a(2, 2), a(1, 2), a(2, 1)), a(0, 0));
    } else {
        first = term(difference(a(1, 2), a(0, 1), a(1, 1), a(0, 2)), a(2, 0));
        second = term(difference(a(1, 1), a(2, 2), a(1, 2), a(2, 1)), a(0, 0));
        third = term(difference(a(2, 1), a(0, 2), a(0, 1), a(2, 2)), a(1, 0));
    }
    return static_cast<Real>(arithmetic_.add(arithmetic_.add(first, second), third));
}

Estimate Determinant::byMinors() {
    const bool isNarrow = isSingle() && !isKernel();
    const Estimator estimator(isNarrow ? Estimator::Arithmetic::single : Estimator::Arithmetic::extended);
    Grid grid(order_);
    for (std::uint64_t i = 0; i < order_; ++i)
        for (std::uint64_t j = 0; j < order_; ++j) {
            if (memory_.holdsApproximation(src_.element(object_, i, j), form_.elementSize())) memory_.markOpen();
            grid[i].push_back(Estimator::of(isSingle() ? element<float>(i, j) : element<double>(i, j)));
        }
    return estimator.rounded(estimator.determinant(grid), isSingle());
}

template <class Real> void Determinant::computeObject() {
    const std::uintptr_t result = dst_ + object_ * sizeof(Real);
    if (form_.size > 3) return storeEstimate<Real>(memory_, result, byMinors());
    if (form_.size == 0) return memory_.store(result, byElimination<Real>());
    memory_.store(result, isKernel() ? ofThree<Real, Wide>() : ofThree<Real, Register<Real>>());
}

Status Determinant::run() {
    if (order_ == 0) return statusSize;
    if (isPointerLayout(form_.layout) && src_.anyEntryIsNull(order_ * order_)) return statusNullPointer;
    for (object_ = 0; object_ < count_; ++object_) {
        if (src_.isList() && src_.entryIsNull(object_)) return statusNullPointer;
        isSingle() ? computeObject<float>() : computeObject<double>();
    }
    return statusOk;
}

} // namespace

Status computeDeterminant(const Execution &execution) {
    if (execution.arguments.hasNullPointer()) return statusNullPointer;
    return Determinant(execution).run();
}

} // namespace model
