// Inverses: the adjugate by an elimination for every minor at run-time size, closed forms of order 3 and 4, blocks of
// order 5 and 6. The forms differ in what they take for singular and in how they come to the reciprocal of the
// determinant. Run-time size and quotients of order 3 are fixed to the last bit, the others held to accuracy.
#include "model/block_inverse.h"
#include "model/elimination.h"
#include "model/estimate.h"
#include "model/families.h"

#include <algorithm>

namespace model {

namespace {

class Inverse {
public:
    explicit Inverse(const Execution &execution)
        : form_(execution.form), memory_(execution.memory), arithmetic_(execution.memory),
          order_(execution.dimension("order")), count_(execution.count()), src_(execution.operand("src", order_)),
          dst_(execution.operand("dst", order_)) {}

    Status run();

private:
    bool isSingle() const { return form_.element == Element::real32; }
    // The kernels for speed: Real32 of fixed size with adjacent elements. They take an estimate of the reciprocal and a
    // Newton step.
    bool isFast() const {
        return isSingle() && form_.size != 0 && (form_.layout == Layout::standard || form_.layout == Layout::list);
    }
    // Of fixed size: below which magnitude of the determinant a matrix is singular; 0 for exactly 0.
    double tolerance() const { return isFast() && form_.size <= 4 ? 0 : isSingle() ? 1e-7 : 1e-15; }

    bool testsListsUpFront() const { return form_.size != 0 && !(isSingle() && form_.layout == Layout::list); }
    bool anyEntryIsNull() const;
    bool anyListEntryIsNull(std::uint64_t n) const {
        return (src_.isList() && src_.entryIsNull(n)) || (dst_.isList() && dst_.entryIsNull(n));
    }

    template <class Real> Real element(std::uint64_t i, std::uint64_t j) const {
        return memory_.load<Real>(src_.element(object_, i, j));
    }
    template <class Real> std::vector<Real> rowsWithout(std::uint64_t row, std::uint64_t column) const;
    template <class Real> Register<Real> minor(std::uint64_t row, std::uint64_t column);
    template <class Real> Status byMinors();

    void checkOverlaps();
    std::vector<std::vector<double>> matrix() const;
    template <class Real> Status ofThree();
    Status ofFour();
    Status byBlocks();
    template <class Real> Status invertObject();
    void storeElement(std::uint64_t i, std::uint64_t j, const Estimator &estimator, const Estimate &estimate);

    const Form &form_;
    Memory &memory_;
    Arithmetic arithmetic_;
    std::uint64_t order_;
    std::uint64_t count_;
    Operand src_;
    Operand dst_;
    std::uint64_t object_ = 0;
};

// ---- Run-time size: source elements are read anew for each minor, between the stores

constexpr std::uint64_t none = ~std::uint64_t{0};

template <class Real> std::vector<Real> Inverse::rowsWithout(std::uint64_t row, std::uint64_t column) const {
    std::vector<Real> rows;
    for (std::uint64_t i = 0; i < order_; ++i)
        for (std::uint64_t j = 0; j < order_; ++j)
            if (i != row && j != column) rows.push_back(element<Real>(i, j));
    return rows;
}

// The product stays in its register.
template <class Number> Number kept(Number product) { return product; }

// A pivot that fails makes the product 0, and the last step is taken all the same.
template <class Real> Register<Real> Inverse::minor(std::uint64_t row, std::uint64_t column) {
    Elimination<Real> elimination(memory_, order_ - 1, rowsWithout<Real>(row, column));
    if (!elimination.eliminate(kept)) elimination.clearProduct();
    return elimination.takeLastPivot() ? elimination.product() : 0;
}

template <class Real> Status Inverse::byMinors() {
    using Number = Register<Real>;
    Elimination<Real> elimination(memory_, order_, rowsWithout<Real>(none, none));
    if (!elimination.eliminate(kept) || !elimination.takeLastPivot()) return statusSingular;
    if (order_ == 1) { // there is no minor, and what is read in its place is nobody's promise
        memory_.markOpen();
        memory_.store(dst_.element(object_, 0, 0), Real{0});
        return statusOk;
    }
    const auto reciprocal = static_cast<Real>(arithmetic_.divide<Number>(1, elimination.product()));
    for (std::uint64_t c = 0; c < order_; ++c)
        for (std::uint64_t q = 0; q < order_; ++q) {
            const auto sign = static_cast<Number>((c + q) % 2 == 0 ? 1 : -1);
            const Number scaled = arithmetic_.multiply<Number>(minor<Real>(c, q), reciprocal);
            memory_.store(dst_.element(object_, q, c), static_cast<Real>(arithmetic_.multiply(scaled, sign)));
        }
    return statusOk;
}

// ---- Fixed size

// Whether an object is read as a whole before its first store is free, and so is the order of the stores.
void Inverse::checkOverlaps() {
    const std::size_t size = form_.elementSize();
    std::vector<std::uintptr_t> from, to;
    for (std::uint64_t i = 0; i < order_; ++i)
        for (std::uint64_t j = 0; j < order_; ++j) {
            from.push_back(src_.element(object_, i, j));
            to.push_back(dst_.element(object_, i, j));
            if (memory_.holdsApproximation(from.back(), size)) memory_.markOpen();
        }
    std::sort(to.begin(), to.end());
    for (std::size_t k = 1; k < to.size(); ++k)
        if (to[k] - to[k - 1] < size) memory_.markOpen();
    for (const std::uintptr_t source : from)
        for (const std::uintptr_t destination : to)
            if (overlap(source, size, destination, size)) memory_.markOpen();
}

std::vector<std::vector<double>> Inverse::matrix() const {
    std::vector<std::vector<double>> rows(order_);
    for (std::uint64_t i = 0; i < order_; ++i)
        for (std::uint64_t j = 0; j < order_; ++j)
            rows[i].push_back(isSingle() ? element<float>(i, j) : element<double>(i, j));
    return rows;
}

void Inverse::storeElement(std::uint64_t i, std::uint64_t j, const Estimator &estimator, const Estimate &estimate) {
    const std::uintptr_t address = dst_.element(object_, i, j);
    const Estimate stored = estimator.rounded(estimate, isSingle());
    if (isSingle()) storeEstimate<float>(memory_, address, stored);
    else storeEstimate<double>(memory_, address, stored);
}

// A NaN is no singular determinant.
bool isSingular(double least, Wide determinant) {
    return least == 0 ? determinant == 0 : -least < determinant && determinant < least;
}

// Cofactors and determinant are fixed, and so is all that is made of them but for the estimate of the reciprocal.
template <class Real> Status Inverse::ofThree() {
    using Number = Register<Real>;
    Number a[3][3];
    for (int i = 0; i < 3; ++i)
        for (int j = 0; j < 3; ++j)
            a[i][j] = element<Real>(static_cast<std::uint64_t>(i), static_cast<std::uint64_t>(j));
    const auto difference = [&](Number p, Number q, Number r, Number s) {
        return arithmetic_.subtract(arithmetic_.multiply(p, q), arithmetic_.multiply(r, s));
    };
    const Number cofactors[3][3] = {
        {difference(a[1][1], a[2][2], a[1][2], a[2][1]), difference(a[0][2], a[2][1], a[0][1], a[2][2]),
         difference(a[0][1], a[1][2], a[0][2], a[1][1])},
        {difference(a[1][2], a[2][0], a[1][0], a[2][2]), difference(a[0][0], a[2][2], a[0][2], a[2][0]),
         difference(a[0][2], a[1][0], a[0][0], a[1][2])},
        {difference(a[1][0], a[2][1], a[1][1], a[2][0]), difference(a[0][1], a[2][0], a[0][0], a[2][1]),
         difference(a[0][0], a[1][1], a[0][1], a[1][0])}};
    Number determinant = arithmetic_.multiply(a[0][0], cofactors[0][0]);
    determinant = arithmetic_.add(determinant, arithmetic_.multiply(cofactors[1][0], a[0][1]));
    determinant = arithmetic_.add(determinant, arithmetic_.multiply(cofactors[2][0], a[0][2]));
    if (isSingular(tolerance(), determinant)) return statusSingular;

    const Estimator estimator(Estimator::Arithmetic::single); // of the fast forms
    const Estimate estimated =
        estimator.newtonReciprocal(Estimator::of(static_cast<double>(determinant)), Estimator::NewtonStep::byTurns);
    const Number quotient = isFast() ? Number{0} : arithmetic_.divide<Number>(1, determinant);
    for (std::uint64_t i = 0; i < 3; ++i)
        for (std::uint64_t j = 0; j < 3; ++j) {
            const Number cofactor = cofactors[i][j];
            if (isFast())
                storeElement(i, j, estimator,
                             estimator.multiply(Estimator::of(static_cast<double>(cofactor)), estimated));
            else
                memory_.store(dst_.element(object_, i, j), static_cast<Real>(arithmetic_.multiply(cofactor, quotient)));
        }
    return statusOk;
}

Status Inverse::ofFour() {
    const Estimator estimator(isSingle() ? Estimator::Arithmetic::single : Estimator::Arithmetic::extended);
    Grid grid;
    for (const std::vector<double> &row : matrix()) {
        grid.emplace_back();
        for (const double number : row) grid.back().push_back(Estimator::of(number));
    }
    const Estimate determinant = estimator.determinantInAnyNesting(grid);
    const std::optional<bool> singular = isWithin(determinant, tolerance());
    if (!singular.has_value()) memory_.markOpen();
    if (singular.value_or(false)) return statusSingular;
    const Estimate reciprocal = isFast() ? estimator.newtonReciprocal(determinant, Estimator::NewtonStep::bySquare)
                                         : estimator.reciprocal(determinant);
    const Grid inverse = estimator.scale(estimator.adjugate(grid), reciprocal);
    for (std::uint64_t i = 0; i < 4; ++i)
        for (std::uint64_t j = 0; j < 4; ++j) storeElement(i, j, estimator, inverse[i][j]);
    return statusOk;
}

// The fast kernels build the result in place, so a singular complement finds the object partly written.
Status Inverse::byBlocks() {
    const Estimator estimator(isSingle() ? Estimator::Arithmetic::single : Estimator::Arithmetic::extended);
    const BlockInverse blocks = invertByBlocks(matrix(), {isSingle(), isFast(), isFast() && order_ == 6, tolerance()});
    if (blocks.open) memory_.markOpen();
    if (blocks.result == BlockInverse::Result::singularLeadingBlock) return statusSingular;
    const bool isSingular = blocks.result == BlockInverse::Result::singularComplement;
    if (isSingular && !isFast()) return statusSingular;
    Estimate anything;
    anything.certainty = Certainty::unknown;
    for (std::uint64_t i = 0; i < order_; ++i)
        for (std::uint64_t j = 0; j < order_; ++j)
            storeElement(i, j, estimator, isSingular ? anything : blocks.inverse[i][j]);
    return isSingular ? statusSingular : statusOk;
}

// ---- All forms

bool Inverse::anyEntryIsNull() const {
    if (isPointerLayout(form_.layout))
        return src_.anyEntryIsNull(order_ * order_) || dst_.anyEntryIsNull(order_ * order_);
    if (!src_.isList() || !testsListsUpFront()) return false;
    for (std::uint64_t n = 0; n < count_; ++n)
        if (anyListEntryIsNull(n)) return true;
    return false;
}

template <class Real> Status Inverse::invertObject() {
    if (form_.size == 0) return byMinors<Real>();
    checkOverlaps();
    return form_.size == 3 ? ofThree<Real>() : form_.size == 4 ? ofFour() : byBlocks();
}

Status Inverse::run() {
    if (order_ == 0) return statusSize;
    if (anyEntryIsNull()) return statusNullPointer;
    for (object_ = 0; object_ < count_; ++object_) {
        if (form_.size == 0 && anyListEntryIsNull(object_)) return statusNullPointer;
        const Status status = isSingle() ? invertObject<float>() : invertObject<double>();
        if (status != statusOk) return status;
    }
    return statusOk;
}

} // namespace

Status computeInverse(const Execution &execution) {
    if (execution.arguments.hasNullPointer()) return statusNullPointer;
    return Inverse(execution).run();
}

} // namespace model
