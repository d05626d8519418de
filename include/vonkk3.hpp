// vonkk3 for C++: typed views of one's own data, one name per operation, each call one export of the C library.
//
//     vonk::check(vonk::multiply(rotation, vonk::members(bodies, &Body::spin), vonk::members(bodies,
//     &Body::momentum)));
//
// Header-only, C++17. A call is resolved from its operands' types: single or array, matrix or vector, float or double,
// size and layout name one export, which is called with the arguments in its order; no function pointer, no allocation
// and no copy is left of it after optimisation. Where an export has an exception that a caller would fall into, another
// one is taken; vonk::exact::add and so on take the one that is named. What does not fit is an error of the compiler,
// in one sentence that begins with "vonkk3:"; sizes and counts known at run time only give vonkErrSize before anything
// is done.
//
//     views.hpp        Matrix, Matrices, Vector, Vectors and how to make them: matrix(), matrices(), vector(),
//     vectors(),
//                      members(), soa(), transposed()
//     status.hpp       Status, check(), Error
//     vector.hpp       add, subtract, scale, saxpy, combine, dot, norm, cross
//     matrix.hpp       add, subtract, scale, transpose, trace, frobenius
//     product.hpp      multiply, gaxpy
//     copy.hpp         copy, extract, identity
//     lu.hpp           lu, lu_solve, solve, determinant, inverse
//     cholesky.hpp     cholesky, cholesky_solve
//     qr.hpp           qr, qr_solve, least_squares
//     eigen.hpp, glm.hpp   Eigen's and GLM's types as operands; not included here
//
// Each may be included alone. Sources come first, the destination last; numbers stand where the C function has them.
//
// In debug builds (without NDEBUG) strides that do not fit the sizes end the program with a sentence. With
// VONK_CHECK_ALIASING defined so does a destination that overlaps a source where the operation does not allow it.
#ifndef VONKK3_HPP
#define VONKK3_HPP

#include "vonkk3/cholesky.hpp"
#include "vonkk3/copy.hpp"
#include "vonkk3/lu.hpp"
#include "vonkk3/matrix.hpp"
#include "vonkk3/product.hpp"
#include "vonkk3/qr.hpp"
#include "vonkk3/vector.hpp"

#endif
