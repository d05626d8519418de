// Plain back substitution in the type that memory holds. Compiled without automatic lanes: they wait for solutions
// that were stored one by one, and cost more than they save.
#include "peers/plain_substitution.h"

namespace bench::plain {

using Pivots = const std::uint32_t *;

template void solve<true, float, float, 3>(const float *, Pivots, const float *, float *, std::size_t);
template void solve<true, float, float, 4>(const float *, Pivots, const float *, float *, std::size_t);
template void solve<true, float, float, 6>(const float *, Pivots, const float *, float *, std::size_t);
template void solve<false, float, float, 3>(const float *, Pivots, const float *, float *, std::size_t);
template void solve<false, float, float, 4>(const float *, Pivots, const float *, float *, std::size_t);
template void solve<false, float, float, 6>(const float *, Pivots, const float *, float *, std::size_t);
template void solve<false, double, double, 4>(const double *, Pivots, const double *, double *, std::size_t);

template void solveForOne<true, float, float, 4>(const float *, Pivots, const float *, float *, std::size_t);
template void solveForOne<false, float, float, 4>(const float *, Pivots, const float *, float *, std::size_t);

} // namespace bench::plain
