// Plain decomposition of arrays of matrices.
#include "peers/plain_lu.h"

namespace bench::plain {

template <class T, class W, std::size_t order>
bool decompose(const T *__restrict source, std::uint32_t *__restrict pivots, T *__restrict factors, std::size_t count) {
    for (std::size_t n = 0; n < count; ++n)
        if (!decomposeOne<T, W, order>(source + n * order * order, pivots + n * order, factors + n * order * order))
            return false;
    return true;
}

template bool decompose<float, float, 3>(const float *, std::uint32_t *, float *, std::size_t);
template bool decompose<float, float, 4>(const float *, std::uint32_t *, float *, std::size_t);
template bool decompose<float, float, 6>(const float *, std::uint32_t *, float *, std::size_t);
template bool decompose<double, double, 4>(const double *, std::uint32_t *, double *, std::size_t);
template bool decompose<double, long double, 4>(const double *, std::uint32_t *, double *, std::size_t);

} // namespace bench::plain
