// Scaled sums, products and norms of vectors with Eigen: object by object with its fixed-size vectors, and as one
// expression over the packed array.
#pragma once

#include <cstddef>

namespace bench::eigen {

void addScaled(const float *a, float factor, const float *b, float *d, std::size_t length);
void dot(const float *a, const float *b, float *d, std::size_t length);
void norm(const float *a, float *d, std::size_t length);

// Element 0 of object n lies at n * spacing.
template <std::size_t length, std::size_t spacing = length> struct Vectors {
    static void combine(const float *a, float first, const float *b, float second, float *d, std::size_t count);
    static void dotByOne(const float *a, const float *v, float *d, std::size_t count);
    static void dotByOneAtOnce(const float *a, const float *v, float *d, std::size_t count);
    static void dotArrays(const float *a, const float *b, float *d, std::size_t count);
    static void norms(const float *a, float *d, std::size_t count);
    static void normsAtOnce(const float *a, float *d, std::size_t count);
    static void cross(const float *a, const float *b, float *d, std::size_t count); // of length 3
};

} // namespace bench::eigen
