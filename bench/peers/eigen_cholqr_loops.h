// What Eigen does with a decomposition, for the files that compile it; see eigen_cholqr.h.
#pragma once

#include "peers/eigen_cholqr.h"

namespace bench::eigen {

template <class T, std::size_t order> using RowMajor = Eigen::Matrix<T, int(order), int(order), Eigen::RowMajor>;
template <class T, std::size_t order> using Column = Eigen::Matrix<T, int(order), 1>;
template <class T, std::size_t order> using Columns = Eigen::Matrix<T, int(order), Eigen::Dynamic>;

template <class Factors>
template <class T>
void Factoring<Factors>::decompose(const T *source, Factors *factors, std::size_t count) {
    for (std::size_t n = 0; n < count; ++n)
        factors[n].compute(Eigen::Map<const RowMajor<T, order>>(source + n * order * order).template cast<W>());
}

template <class Factors>
template <class T>
void Factoring<Factors>::solve(const Factors *factors, const T *b, T *x, std::size_t count) {
    for (std::size_t n = 0; n < count; ++n) solveForOne(factors[n], b + n * order, x + n * order, 1);
}

template <class Factors>
template <class T>
void Factoring<Factors>::solveForOne(const Factors &factors, const T *b, T *x, std::size_t count) {
    for (std::size_t n = 0; n < count; ++n) {
        const Column<W, order> side = Eigen::Map<const Column<T, order>>(b + n * order).template cast<W>();
        const Column<W, order> solution = factors.solve(side);
        Eigen::Map<Column<T, order>>(x + n * order) = solution.template cast<T>();
    }
}

template <class Factors, class T> void solveForOneAtOnce(const Factors &factors, const T *b, T *x, std::size_t count) {
    constexpr std::size_t order = Factoring<Factors>::order;
    Eigen::Map<Columns<T, order>>(x, int(order), Eigen::Index(count)) =
        factors.solve(Eigen::Map<const Columns<T, order>>(b, int(order), Eigen::Index(count)));
}

#define BENCH_FACTORING(T, Factors)                                                                                    \
    template struct Factoring<Factors>;                                                                                \
    template void Factoring<Factors>::decompose(const T *, Factors *, std::size_t);                                    \
    template void Factoring<Factors>::solve(const Factors *, const T *, T *, std::size_t);

} // namespace bench::eigen
