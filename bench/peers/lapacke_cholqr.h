// Cholesky and QR decomposition and solving with LAPACK by its C interface, object by object, without the interface's
// tests for NaN and with work space at hand. Matrices are packed and in LAPACK's own order, columns first.
#pragma once

#include <cstddef>

namespace bench::lapacke {

// The lower triangle of each matrix, with the roots themselves on the diagonal.
template <class T> bool factorCholesky(const T *source, T *factors, std::size_t order, std::size_t count);
template <class T> void solveCholesky(const T *factors, const T *b, T *x, std::size_t order, std::size_t count);

// `taus` gets `order` numbers to an object.
template <class T> bool factorQr(const T *source, T *factors, T *taus, std::size_t order, std::size_t count);
template <class T>
void solveQr(const T *factors, const T *taus, const T *b, T *x, std::size_t order, std::size_t count);

} // namespace bench::lapacke
