// Eigen's QR decomposition and its solutions.
#include "peers/eigen_factoring.h"

namespace bench::eigen {

template struct Factoring<float, float, 3, Qr>;
template struct Factoring<float, float, 4, Qr>;
template struct Factoring<float, float, 6, Qr>;
template struct Factoring<double, double, 3, Qr>;
template struct Factoring<double, double, 4, Qr>;
template struct Factoring<double, double, 6, Qr>;

} // namespace bench::eigen
