// Eigen's decomposition and solutions.
#include "peers/eigen_lu.h"

namespace bench::eigen {
namespace {

using Eigen::Map;

template <class T, std::size_t order> using Square = Eigen::Matrix<T, int(order), int(order), Eigen::RowMajor>;
template <class T, std::size_t order> using Column = Eigen::Matrix<T, int(order), 1>;
template <class T, std::size_t order> using Columns = Eigen::Matrix<T, int(order), Eigen::Dynamic>;

} // namespace

template <class T, std::size_t order>
void Lu<T, order>::decompose(const T *source, Factors *factors, std::size_t count) {
    for (std::size_t n = 0; n < count; ++n) factors[n].compute(Map<const Square<T, order>>(source + n * order * order));
}

template <class T, std::size_t order>
void Lu<T, order>::solve(const Factors *factors, const T *b, T *x, std::size_t count) {
    for (std::size_t n = 0; n < count; ++n)
        Map<Column<T, order>>(x + n * order) = factors[n].solve(Map<const Column<T, order>>(b + n * order));
}

template <class T, std::size_t order>
void Lu<T, order>::solveForOne(const Factors &factors, const T *b, T *x, std::size_t count) {
    for (std::size_t n = 0; n < count; ++n)
        Map<Column<T, order>>(x + n * order) = factors.solve(Map<const Column<T, order>>(b + n * order));
}

template <class T, std::size_t order>
void Lu<T, order>::solveForOneAtOnce(const Factors &factors, const T *b, T *x, std::size_t count) {
    Map<Columns<T, order>>(x, int(order), Eigen::Index(count)) =
        factors.solve(Map<const Columns<T, order>>(b, int(order), Eigen::Index(count)));
}

template struct Lu<float, 3>;
template struct Lu<float, 4>;
template struct Lu<float, 6>;
template struct Lu<double, 4>;

} // namespace bench::eigen
