// Eigen's QR decomposition, and its solutions.
#include "peers/eigen_cholqr_loops.h"

namespace bench::eigen {

using QrFloat3 = Qr<float, 3>;
BENCH_FACTORING(float, QrFloat3)
using QrDouble3 = Qr<double, 3>;
BENCH_FACTORING(double, QrDouble3)
using QrWide3 = Qr<long double, 3>;
BENCH_FACTORING(double, QrWide3)
using QrFloat4 = Qr<float, 4>;
BENCH_FACTORING(float, QrFloat4)
using QrDouble4 = Qr<double, 4>;
BENCH_FACTORING(double, QrDouble4)
using QrWide4 = Qr<long double, 4>;
BENCH_FACTORING(double, QrWide4)
using QrFloat6 = Qr<float, 6>;
BENCH_FACTORING(float, QrFloat6)
using QrDouble6 = Qr<double, 6>;
BENCH_FACTORING(double, QrDouble6)
using QrWide6 = Qr<long double, 6>;
BENCH_FACTORING(double, QrWide6)
template void Factoring<QrFloat4>::solveForOne(const QrFloat4 &, const float *, float *, std::size_t);
template void solveForOneAtOnce(const QrFloat4 &, const float *, float *, std::size_t);

} // namespace bench::eigen
