// LAPACK's Cholesky and QR decomposition, and its solutions.
#include "peers/lapacke_cholqr.h"

#include <lapacke.h>

#include <algorithm>

namespace bench::lapacke {
namespace {

// The routines of one type.
template <class T> struct Routines;
template <> struct Routines<float> {
    static constexpr auto potrf = LAPACKE_spotrf_work;
    static constexpr auto potrs = LAPACKE_spotrs_work;
    static constexpr auto geqrf = LAPACKE_sgeqrf_work;
    static constexpr auto ormqr = LAPACKE_sormqr_work;
    static constexpr auto trtrs = LAPACKE_strtrs_work;
};
template <> struct Routines<double> {
    static constexpr auto potrf = LAPACKE_dpotrf_work;
    static constexpr auto potrs = LAPACKE_dpotrs_work;
    static constexpr auto geqrf = LAPACKE_dgeqrf_work;
    static constexpr auto ormqr = LAPACKE_dormqr_work;
    static constexpr auto trtrs = LAPACKE_dtrtrs_work;
};

constexpr int layout = LAPACK_COL_MAJOR;
constexpr lapack_int workLength = 1024;

} // namespace

template <class T> bool factorCholesky(const T *source, T *factors, std::size_t order, std::size_t count) {
    const auto n = lapack_int(order);
    const std::size_t elements = order * order;
    for (std::size_t k = 0; k < count; ++k) {
        T *matrix = factors + k * elements;
        std::copy_n(source + k * elements, elements, matrix);
        if (Routines<T>::potrf(layout, 'L', n, matrix, n) != 0) return false;
    }
    return true;
}

template <class T> void solveCholesky(const T *factors, const T *b, T *x, std::size_t order, std::size_t count) {
    const auto n = lapack_int(order);
    for (std::size_t k = 0; k < count; ++k) {
        std::copy_n(b + k * order, order, x + k * order);
        Routines<T>::potrs(layout, 'L', n, 1, factors + k * order * order, n, x + k * order, n);
    }
}

template <class T> bool factorQr(const T *source, T *factors, T *taus, std::size_t order, std::size_t count) {
    const auto n = lapack_int(order);
    const std::size_t elements = order * order;
    T work[workLength];
    for (std::size_t k = 0; k < count; ++k) {
        T *matrix = factors + k * elements;
        std::copy_n(source + k * elements, elements, matrix);
        if (Routines<T>::geqrf(layout, n, n, matrix, n, taus + k * order, work, workLength) != 0) return false;
    }
    return true;
}

template <class T>
void solveQr(const T *factors, const T *taus, const T *b, T *x, std::size_t order, std::size_t count) {
    const auto n = lapack_int(order);
    T work[workLength];
    for (std::size_t k = 0; k < count; ++k) {
        const T *matrix = factors + k * order * order;
        T *solution = x + k * order;
        std::copy_n(b + k * order, order, solution);
        Routines<T>::ormqr(layout, 'L', 'T', n, 1, n, matrix, n, taus + k * order, solution, n, work, workLength);
        Routines<T>::trtrs(layout, 'U', 'N', 'N', n, 1, matrix, n, solution, n);
    }
}

template bool factorCholesky(const float *, float *, std::size_t, std::size_t);
template bool factorCholesky(const double *, double *, std::size_t, std::size_t);
template void solveCholesky(const float *, const float *, float *, std::size_t, std::size_t);
template void solveCholesky(const double *, const double *, double *, std::size_t, std::size_t);
template bool factorQr(const float *, float *, float *, std::size_t, std::size_t);
template bool factorQr(const double *, double *, double *, std::size_t, std::size_t);
template void solveQr(const float *, const float *, const float *, float *, std::size_t, std::size_t);
template void solveQr(const double *, const double *, const double *, double *, std::size_t, std::size_t);

} // namespace bench::lapacke
