// The definitions behind eigen_cholqr.h, to be instantiated in several files: compiling them takes minutes.
#pragma once

#include "peers/eigen_cholqr.h"

namespace bench::eigen {
using Eigen::Map;

template <class T, std::size_t order> using RowMajor = Eigen::Matrix<T, int(order), int(order), Eigen::RowMajor>;
template <class T, std::size_t order> using Column = Eigen::Matrix<T, int(order), 1>;
template <class T, std::size_t order> using Columns = Eigen::Matrix<T, int(order), Eigen::Dynamic>;

template <class T, class W, std::size_t order, template <class, std::size_t> class Decomposition>
void Factoring<T, W, order, Decomposition>::decompose(const T *source, Factors *factors, std::size_t count) {
    for (std::size_t n = 0; n < count; ++n)
        factors[n].compute(Map<const RowMajor<T, order>>(source + n * order * order).template cast<W>());
}

template <class T, class W, std::size_t order, template <class, std::size_t> class Decomposition>
void Factoring<T, W, order, Decomposition>::solve(const Factors *factors, const T *b, T *x, std::size_t count) {
    for (std::size_t n = 0; n < count; ++n)
        Map<Column<T, order>>(x + n * order) =
            factors[n].solve(Map<const Column<T, order>>(b + n * order).template cast<W>()).template cast<T>();
}

template <class T, class W, std::size_t order, template <class, std::size_t> class Decomposition>
void Factoring<T, W, order, Decomposition>::solveForOne(const Factors &factors, const T *b, T *x, std::size_t count) {
    for (std::size_t n = 0; n < count; ++n)
        Map<Column<T, order>>(x + n * order) =
            factors.solve(Map<const Column<T, order>>(b + n * order).template cast<W>()).template cast<T>();
}

template <class T, class W, std::size_t order, template <class, std::size_t> class Decomposition>
void Factoring<T, W, order, Decomposition>::solveForOneAtOnce(const Factors &factors, const T *b, T *x,
                                                              std::size_t count) {
    Map<Columns<T, order>>(x, int(order), Eigen::Index(count)) =
        factors.solve(Map<const Columns<T, order>>(b, int(order), Eigen::Index(count)).template cast<W>())
            .template cast<T>();
}

} // namespace bench::eigen
