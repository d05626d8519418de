// Eigen's Cholesky decomposition, and its solutions.
#include "peers/eigen_cholqr_loops.h"

namespace bench::eigen {

using CholeskyFloat3 = Cholesky<float, 3>;
BENCH_FACTORING(float, CholeskyFloat3)
using CholeskyDouble3 = Cholesky<double, 3>;
BENCH_FACTORING(double, CholeskyDouble3)
using CholeskyWide3 = Cholesky<long double, 3>;
BENCH_FACTORING(double, CholeskyWide3)
using CholeskyFloat4 = Cholesky<float, 4>;
BENCH_FACTORING(float, CholeskyFloat4)
using CholeskyDouble4 = Cholesky<double, 4>;
BENCH_FACTORING(double, CholeskyDouble4)
using CholeskyWide4 = Cholesky<long double, 4>;
BENCH_FACTORING(double, CholeskyWide4)
using CholeskyFloat6 = Cholesky<float, 6>;
BENCH_FACTORING(float, CholeskyFloat6)
using CholeskyDouble6 = Cholesky<double, 6>;
BENCH_FACTORING(double, CholeskyDouble6)
using CholeskyWide6 = Cholesky<long double, 6>;
BENCH_FACTORING(double, CholeskyWide6)
template void Factoring<CholeskyFloat4>::solveForOne(const CholeskyFloat4 &, const float *, float *, std::size_t);
template void solveForOneAtOnce(const CholeskyFloat4 &, const float *, float *, std::size_t);

} // namespace bench::eigen
