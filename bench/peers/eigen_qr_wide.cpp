// Eigen's QR decomposition and its solutions, worked in the 80-bit type.
#include "peers/eigen_factoring.h"

namespace bench::eigen {

template struct Factoring<double, long double, 3, Qr>;
template struct Factoring<double, long double, 4, Qr>;
template struct Factoring<double, long double, 6, Qr>;

} // namespace bench::eigen
