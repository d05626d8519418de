// Eigen's sums.
#include "peers/eigen_sums.h"

#include <Eigen/Core>

namespace bench::eigen {
namespace {

using Eigen::Index;
using Eigen::Map;

template <class T> void addMapped(const T *a, const T *b, T *d, std::size_t length) {
    using Elements = Eigen::Array<T, Eigen::Dynamic, 1>;
    const auto size = Index(length);
    Map<Elements>(d, size) = Map<const Elements>(a, size) + Map<const Elements>(b, size);
}

template <std::size_t length> using Object = Eigen::Matrix<float, int(length), 1>;
template <std::size_t length> using Objects = Eigen::Matrix<float, int(length), Eigen::Dynamic>; // one in each column

template <std::size_t length> Map<const Object<length>> object(const float *objects, std::size_t n) {
    return Map<const Object<length>>(objects + n * length);
}
template <std::size_t length> Map<Object<length>> object(float *objects, std::size_t n) {
    return Map<Object<length>>(objects + n * length);
}
template <std::size_t length> Map<const Objects<length>> all(const float *objects, std::size_t count) {
    return Map<const Objects<length>>(objects, int(length), Index(count));
}
template <std::size_t length> Map<Objects<length>> all(float *objects, std::size_t count) {
    return Map<Objects<length>>(objects, int(length), Index(count));
}

} // namespace

void add(const float *a, const float *b, float *d, std::size_t length) { addMapped(a, b, d, length); }
void add(const double *a, const double *b, double *d, std::size_t length) { addMapped(a, b, d, length); }

template <std::size_t length>
void Sums<length>::addVector(const float *a, const float *v, float *d, std::size_t count) {
    const Object<length> held = object<length>(v, 0);
    for (std::size_t n = 0; n < count; ++n) object<length>(d, n) = object<length>(a, n) + held;
}

template <std::size_t length>
void Sums<length>::subtractFromVector(const float *v, const float *a, float *d, std::size_t count) {
    const Object<length> held = object<length>(v, 0);
    for (std::size_t n = 0; n < count; ++n) object<length>(d, n) = held - object<length>(a, n);
}

template <std::size_t length>
void Sums<length>::addArrays(const float *a, const float *b, float *d, std::size_t count) {
    for (std::size_t n = 0; n < count; ++n) object<length>(d, n) = object<length>(a, n) + object<length>(b, n);
}

template <std::size_t length>
void Sums<length>::subtractArrays(const float *a, const float *b, float *d, std::size_t count) {
    for (std::size_t n = 0; n < count; ++n) object<length>(d, n) = object<length>(a, n) - object<length>(b, n);
}

template <std::size_t length>
void Sums<length>::addVectorAtOnce(const float *a, const float *v, float *d, std::size_t count) {
    const Object<length> held = object<length>(v, 0);
    all<length>(d, count) = all<length>(a, count).colwise() + held;
}

template <std::size_t length>
void Sums<length>::subtractFromVectorAtOnce(const float *v, const float *a, float *d, std::size_t count) {
    const Object<length> held = object<length>(v, 0);
    all<length>(d, count) = (-all<length>(a, count)).colwise() + held;
}

template <std::size_t length>
void Sums<length>::addArraysAtOnce(const float *a, const float *b, float *d, std::size_t count) {
    all<length>(d, count) = all<length>(a, count) + all<length>(b, count);
}

template <std::size_t length>
void Sums<length>::subtractArraysAtOnce(const float *a, const float *b, float *d, std::size_t count) {
    all<length>(d, count) = all<length>(a, count) - all<length>(b, count);
}

template struct Sums<3>;
template struct Sums<4>;
template struct Sums<6>;

} // namespace bench::eigen
