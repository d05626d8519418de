// LU decomposition and solving with Eigen: its own decomposition object for each matrix, of fixed size, over row-major
// matrices in packed arrays.
#pragma once

#include <Eigen/Core>
#include <Eigen/LU>

#include <cstddef>

namespace bench::eigen {

template <class T, std::size_t order>
using Decomposition = Eigen::PartialPivLU<Eigen::Matrix<T, int(order), int(order), Eigen::RowMajor>>;

template <class T, std::size_t order> struct Lu {
    using Factors = Decomposition<T, order>;

    static void decompose(const T *source, Factors *factors, std::size_t count);

    // Each matrix its own right-hand side.
    static void solve(const Factors *factors, const T *b, T *x, std::size_t count);

    // One matrix for all right-hand sides: one after the other, and as the columns of one matrix.
    static void solveForOne(const Factors &factors, const T *b, T *x, std::size_t count);
    static void solveForOneAtOnce(const Factors &factors, const T *b, T *x, std::size_t count);
};

} // namespace bench::eigen
