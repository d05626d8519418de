// Gaussian elimination through a row index array, as the determinants of run-time size and the inverses made of them do
// it in their scratch memory: what differs from the LU decomposition are the tolerances, a last pivot that has to be
// above its tolerance, a best candidate that is kept in Real32 whatever the elements are, and a multiplier that is
// never stored.
#pragma once

#include "model/arithmetic.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <numeric>
#include <utility>
#include <vector>

namespace model {

template <class Real> struct InRegister { using Type = Wide; };
template <> struct InRegister<float> { using Type = float; };

// What a number of the element type is computed in.
template <class Real> using Register = typename InRegister<Real>::Type;

template <class Real> class Elimination {
public:
    using Number = Register<Real>;

    Elimination(Memory &memory, std::uint64_t order, std::vector<Real> rows)
        : memory_(memory), arithmetic_(memory), order_(order), elements_(std::move(rows)), index_(order) {
        std::iota(index_.begin(), index_.end(), std::uint64_t{0});
    }

    // A pivot is good from the tolerance on, the last one above it.
    static constexpr double tolerance() { return sizeof(Real) == 4 ? 0x1p-23 : 0x1p-52; }

    // The product of the pivots with its sign, by steps:
    //   all columns but the last: false at a pivot that fails
    bool eliminate(Number (*keep)(Number product));
    //   the last pivot: false if it fails
    bool takeLastPivot();

    void clearProduct() { product_ = 0; }
    Number product() const { return product_; }

private:
    Real &at(std::uint64_t i, std::uint64_t j) { return elements_[index_[i] * order_ + j]; }
    std::uint64_t search(std::uint64_t k);
    void subtractRow(std::uint64_t k, std::uint64_t i);

    Memory &memory_;
    Arithmetic arithmetic_;
    std::uint64_t order_;
    std::vector<Real> elements_;
    std::vector<std::uint64_t> index_;
    Number product_ = 1;
    int sign_ = 1;
};

// The first of the largest magnitudes, against a best that has only the digits of a Real32. What a NaN among Real64
// candidates does is open.
template <class Real> std::uint64_t Elimination<Real>::search(std::uint64_t k) {
    auto best = static_cast<float>(std::fabs(at(k, k)));
    std::uint64_t position = k;
    for (std::uint64_t i = k + 1; i < order_; ++i) {
        const Real candidate = std::fabs(at(i, k));
        if (sizeof(Real) == 8 && std::isunordered(candidate, static_cast<Real>(best))) memory_.markOpen();
        if (!std::isgreater(candidate, static_cast<Real>(best))) continue;
        best = static_cast<float>(candidate);
        position = i;
    }
    return position;
}

template <class Real> void Elimination<Real>::subtractRow(std::uint64_t k, std::uint64_t i) {
    const Number multiplier = arithmetic_.divide<Number>(at(i, k), at(k, k));
    const Number negated = sizeof(Real) == 4 ? arithmetic_.subtract<Number>(0, multiplier) : -multiplier;
    for (std::uint64_t j = k + 1; j < order_; ++j)
        at(i, j) =
            static_cast<Real>(arithmetic_.add<Number>(arithmetic_.multiply<Number>(at(k, j), negated), at(i, j)));
}

// `keep` is what becomes of the product after each column: it stays in its register or is rounded by a store.
template <class Real> bool Elimination<Real>::eliminate(Number (*keep)(Number product)) {
    for (std::uint64_t k = 0; k + 1 < order_; ++k) {
        const std::uint64_t position = search(k);
        if (position != k) {
            std::swap(index_[k], index_[position]);
            sign_ = -sign_;
        }
        const Real pivot = at(k, k);
        if (!(std::fabs(pivot) >= tolerance())) return false;
        for (std::uint64_t i = k + 1; i < order_; ++i) subtractRow(k, i);
        product_ = keep(arithmetic_.multiply<Number>(pivot, product_));
    }
    return true;
}

template <class Real> bool Elimination<Real>::takeLastPivot() {
    const Real last = at(order_ - 1, order_ - 1);
    if (!(std::fabs(last) > tolerance())) return false;
    const auto sign = static_cast<Number>(sign_);
    product_ = arithmetic_.multiply<Number>(product_, arithmetic_.multiply<Number>(last, sign));
    return true;
}

} // namespace model
