// Plain back substitution in the 80-bit type; compiled like everything else, which suits it.
#include "peers/plain_substitution.h"

namespace bench::plain {

using Pivots = const std::uint32_t *;

template void solve<true, double, long double, 4>(const double *, Pivots, const double *, double *, std::size_t);

} // namespace bench::plain
