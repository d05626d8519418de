// Eigen's scaled sums, products and norms.
#include "peers/eigen_vectors.h"

#include <Eigen/Core>
#include <Eigen/Geometry>

namespace bench::eigen {
namespace {

using Eigen::Index;
using Eigen::Map;

using Elements = Eigen::Matrix<float, Eigen::Dynamic, 1>;
template <std::size_t length> using Objects = Eigen::Matrix<float, int(length), Eigen::Dynamic>; // one in each column

Map<const Elements> elements(const float *p, std::size_t length) { return {p, Index(length)}; }
Map<Elements> elements(float *p, std::size_t length) { return {p, Index(length)}; }

// Objects of 16 bytes lie aligned in these arrays, and somebody who knows says so.
template <std::size_t length>
using Object = Map<const Eigen::Matrix<float, int(length), 1>, length == 4 ? Eigen::Aligned16 : Eigen::Unaligned>;
template <std::size_t length>
using Result = Map<Eigen::Matrix<float, int(length), 1>, length == 4 ? Eigen::Aligned16 : Eigen::Unaligned>;

template <std::size_t length, std::size_t spacing = length> Object<length> object(const float *p, std::size_t n) {
    return Object<length>(p + n * spacing);
}
template <std::size_t length, std::size_t spacing = length> Result<length> object(float *p, std::size_t n) {
    return Result<length>(p + n * spacing);
}

template <std::size_t length, std::size_t spacing>
using All = Map<const Objects<length>, Eigen::Unaligned, Eigen::OuterStride<int(spacing)>>;

template <std::size_t length, std::size_t spacing> All<length, spacing> all(const float *p, std::size_t count) {
    return All<length, spacing>(p, int(length), Index(count));
}

} // namespace

void addScaled(const float *a, float factor, const float *b, float *d, std::size_t length) {
    elements(d, length) = elements(a, length) * factor + elements(b, length);
}
void dot(const float *a, const float *b, float *d, std::size_t length) {
    *d = elements(a, length).dot(elements(b, length));
}
void norm(const float *a, float *d, std::size_t length) { *d = elements(a, length).norm(); }

template <std::size_t length, std::size_t spacing>
void Vectors<length, spacing>::combine(const float *a, float first, const float *b, float second, float *d,
                                       std::size_t count) {
    for (std::size_t n = 0; n < count; ++n)
        object<length, spacing>(d, n) = object<length, spacing>(a, n) * first + object<length, spacing>(b, n) * second;
}

template <std::size_t length, std::size_t spacing>
void Vectors<length, spacing>::dotByOne(const float *a, const float *v, float *d, std::size_t count) {
    const Eigen::Matrix<float, int(length), 1> held = object<length>(v, 0);
    for (std::size_t n = 0; n < count; ++n) d[n] = object<length, spacing>(a, n).dot(held);
}

template <std::size_t length, std::size_t spacing>
void Vectors<length, spacing>::dotByOneAtOnce(const float *a, const float *v, float *d, std::size_t count) {
    elements(d, count).noalias() = all<length, spacing>(a, count).transpose() * object<length>(v, 0);
}

template <std::size_t length, std::size_t spacing>
void Vectors<length, spacing>::dotArrays(const float *a, const float *b, float *d, std::size_t count) {
    for (std::size_t n = 0; n < count; ++n) d[n] = object<length, spacing>(a, n).dot(object<length, spacing>(b, n));
}

template <std::size_t length, std::size_t spacing>
void Vectors<length, spacing>::norms(const float *a, float *d, std::size_t count) {
    for (std::size_t n = 0; n < count; ++n) d[n] = object<length, spacing>(a, n).norm();
}

template <std::size_t length, std::size_t spacing>
void Vectors<length, spacing>::normsAtOnce(const float *a, float *d, std::size_t count) {
    elements(d, count) = all<length, spacing>(a, count).colwise().norm();
}

template <std::size_t length, std::size_t spacing>
void Vectors<length, spacing>::cross(const float *a, const float *b, float *d, std::size_t count) {
    if constexpr (length == 3)
        for (std::size_t n = 0; n < count; ++n)
            object<3, spacing>(d, n) = object<3, spacing>(a, n).cross(object<3, spacing>(b, n));
}

template struct Vectors<3>;
template struct Vectors<3, 4>;
template struct Vectors<4>;

} // namespace bench::eigen
