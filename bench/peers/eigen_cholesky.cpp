// Eigen's Cholesky decomposition and its solutions.
#include "peers/eigen_factoring.h"

namespace bench::eigen {

template struct Factoring<float, float, 3, Cholesky>;
template struct Factoring<float, float, 4, Cholesky>;
template struct Factoring<float, float, 6, Cholesky>;
template struct Factoring<double, double, 3, Cholesky>;
template struct Factoring<double, double, 4, Cholesky>;
template struct Factoring<double, double, 6, Cholesky>;
template struct Factoring<double, long double, 3, Cholesky>;
template struct Factoring<double, long double, 4, Cholesky>;
template struct Factoring<double, long double, 6, Cholesky>;

} // namespace bench::eigen
