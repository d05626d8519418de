// Cholesky and QR decomposition and solving with Eigen: its own decomposition object for each matrix, of fixed size. T
// is what memory holds, W what Eigen works in.
#pragma once

#include <Eigen/Cholesky>
#include <Eigen/Core>
#include <Eigen/QR>

#include <cstddef>

namespace bench::eigen {

template <class W, std::size_t order> using Square = Eigen::Matrix<W, int(order), int(order)>;
template <class W, std::size_t order> using Cholesky = Eigen::LLT<Square<W, order>>;
template <class W, std::size_t order> using Qr = Eigen::HouseholderQR<Square<W, order>>;

// With Factors one of these.
template <class Factors> struct Factoring {
    using W = typename Factors::Scalar;
    static constexpr std::size_t order = std::size_t(Factors::RowsAtCompileTime);

    template <class T> static void decompose(const T *source, Factors *factors, std::size_t count);

    // Each matrix its own right-hand side, or one matrix for all of them.
    template <class T> static void solve(const Factors *factors, const T *b, T *x, std::size_t count);
    template <class T> static void solveForOne(const Factors &factors, const T *b, T *x, std::size_t count);
};

// One matrix for all right-hand sides as the columns of one matrix.
template <class Factors, class T> void solveForOneAtOnce(const Factors &factors, const T *b, T *x, std::size_t count);

} // namespace bench::eigen
