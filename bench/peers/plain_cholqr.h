// Cholesky and QR decomposition and solving as plain loops with fixed bounds, written for speed: a matrix is worked in
// a local copy that fits the registers, all loops are unrolled, the Cholesky factor has reciprocals on its diagonal. T
// is what memory holds, W what is worked in, Root what roots are taken in.
#pragma once

#include "peers/unroll.h"

#include <cstddef>

namespace bench::plain {

// Lower triangles of packed matrices; what lies above the diagonal of `factors` stays.
template <class T, class W, class Root, std::size_t order>
bool factorCholesky(const T *source, T *factors, std::size_t count);

// With each matrix for its own right-hand side, or one matrix for all of them.
template <class T, class W, std::size_t order>
void solveCholesky(const T *factors, const T *b, T *x, std::size_t count);
template <class T, class W, std::size_t order>
void solveCholeskyForOne(const T *factors, const T *b, T *x, std::size_t count);

// R on and above the diagonal, reflectors with their leading 1 left out below it. `betas` gets the reflectors' factors,
// `order` - 1 to an object. Values that are stored are rounded to T, and so are sums where the library promises it.
template <class T, class W, class Root, std::size_t order>
bool factorQr(const T *source, T *factors, T *betas, std::size_t count);

// With the factors that were kept, as one writes it by hand; or reckoned anew if `betas` is null, which gives the same
// in float.
template <bool keptBetas, class T, class W, std::size_t order>
void solveQr(const T *factors, const T *betas, const T *b, T *x, std::size_t count);
template <bool keptBetas, class T, class W, std::size_t order>
void solveQrForOne(const T *factors, const T *betas, const T *b, T *x, std::size_t count);

} // namespace bench::plain
