// Determinants and inverses by hand, of packed and of listed matrices.
#include "peers/inverses.h"

#include "peers/inverse_formulas.h"

#include <type_traits>

namespace bench::plain {
namespace {

template <std::size_t order, class T> struct Matrix {
    T *elements;
    T &operator()(std::size_t i, std::size_t j) const { return elements[i * order + j]; }
};

template <class W, std::size_t order, class T, class Objects>
void determinantsOf(Objects a, T *__restrict d, std::size_t count) {
    for (std::size_t n = 0; n < count; ++n) {
        const Matrix<order, const T> matrix{a[n]};
        if constexpr (order == 3) d[n] = T(determinant3<W>(matrix));
        else d[n] = T(determinant4<W>(matrix));
    }
}

template <class W, std::size_t order, class Objects, class Results>
void inversesOf(Objects a, Results x, std::size_t count) {
    for (std::size_t n = 0; n < count; ++n) {
        using T = std::remove_reference_t<decltype(*x[n])>;
        T inverse[order * order]; // not stored before all is read
        Matrix<order, T> local{inverse};
        const Matrix<order, const T> matrix{a[n]};
        if constexpr (order == 3) invert3<W>(matrix, local);
        else invert4<W>(matrix, local);
        T *const destination = x[n];
        for (std::size_t k = 0; k < order * order; ++k) destination[k] = inverse[k];
    }
}

} // namespace

template <class T, class W, std::size_t order>
void Inverses<T, W, order>::determinants(Packed<const T, order> a, T *d, std::size_t count) {
    determinantsOf<W, order>(a, d, count);
}
template <class T, class W, std::size_t order>
void Inverses<T, W, order>::determinants(Listed<const T> a, T *d, std::size_t count) {
    determinantsOf<W, order>(a, d, count);
}
template <class T, class W, std::size_t order>
void Inverses<T, W, order>::inverses(Packed<const T, order> a, Packed<T, order> x, std::size_t count) {
    inversesOf<W, order>(a, x, count);
}
template <class T, class W, std::size_t order>
void Inverses<T, W, order>::inverses(Listed<const T> a, Listed<T> x, std::size_t count) {
    inversesOf<W, order>(a, x, count);
}

template struct Inverses<float, float, 3>;
template struct Inverses<float, float, 4>;
template struct Inverses<float, long double, 3>;
template struct Inverses<float, long double, 4>;
template struct Inverses<double, double, 4>;
template struct Inverses<double, long double, 4>;

} // namespace bench::plain
