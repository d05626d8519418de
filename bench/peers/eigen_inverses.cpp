// Eigen's determinants and inverses, over rows as the library has them.
#include "peers/inverses.h"

#include <Eigen/Dense>

namespace bench::eigen {
namespace {

template <class T, std::size_t order> using Matrix = Eigen::Matrix<T, int(order), int(order), Eigen::RowMajor>;

template <class T, std::size_t order, class Objects> void determinantsOf(Objects a, T *d, std::size_t count) {
    for (std::size_t n = 0; n < count; ++n) d[n] = reinterpret_cast<const Matrix<T, order> *>(a[n])->determinant();
}

template <class T, std::size_t order, class Objects, class Results>
void inversesOf(Objects a, Results x, std::size_t count) {
    for (std::size_t n = 0; n < count; ++n)
        reinterpret_cast<Matrix<T, order> *>(x[n])->noalias() =
            reinterpret_cast<const Matrix<T, order> *>(a[n])->inverse();
}

} // namespace

template <class T, std::size_t order>
void Inverses<T, order>::determinants(Packed<const T, order> a, T *d, std::size_t count) {
    determinantsOf<T, order>(a, d, count);
}
template <class T, std::size_t order>
void Inverses<T, order>::determinants(Listed<const T> a, T *d, std::size_t count) {
    determinantsOf<T, order>(a, d, count);
}
template <class T, std::size_t order>
void Inverses<T, order>::inverses(Packed<const T, order> a, Packed<T, order> x, std::size_t count) {
    inversesOf<T, order>(a, x, count);
}
template <class T, std::size_t order>
void Inverses<T, order>::inverses(Listed<const T> a, Listed<T> x, std::size_t count) {
    inversesOf<T, order>(a, x, count);
}

template struct Inverses<float, 3>;
template struct Inverses<float, 4>;
template struct Inverses<float, 6>;
template struct Inverses<double, 4>;

} // namespace bench::eigen
